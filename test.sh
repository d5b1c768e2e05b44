#!/usr/bin/env bash
# Sets up, builds and runs the whole test suite.
# After configuring, scripts/check_packages.sh makes sure the set-up installs every Debian
# package the build uses, so the same commands work on a fresh machine.
set -euo pipefail
cd "$(dirname "$0")"
scripts/setup.sh
scripts/build.sh --configure-only
scripts/check_packages.sh build
scripts/build.sh
cd build
QT_QPA_PLATFORM=offscreen ctest --output-on-failure --timeout 900 -j"$(nproc)"
