#!/usr/bin/env bash
# Sets up, builds and runs the whole test suite.
set -euo pipefail
cd "$(dirname "$0")"
scripts/setup.sh
scripts/build.sh
cd build
QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j"$(nproc)"
