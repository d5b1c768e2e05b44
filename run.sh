#!/usr/bin/env bash
# Sets up, builds and starts Orvantis on its default stores in the program's folder (build/bin).
set -euo pipefail
cd "$(dirname "$0")"
scripts/setup.sh
scripts/build.sh
exec build/bin/orvantis
