#!/usr/bin/env bash
# Sets up, builds and starts Orvantis on its default stores in the program's folder (build/bin).
# Builds the program alone; ./test.sh builds the tests and benchmarks too.
set -euo pipefail
cd "$(dirname "$0")"
scripts/setup.sh
scripts/build.sh --program
exec build/bin/orvantis
