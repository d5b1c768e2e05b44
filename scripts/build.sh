#!/usr/bin/env bash
# Configures and builds into build/ (the program's folder is build/bin).
#   scripts/build.sh [cmake options]               configure and build
#   scripts/build.sh --configure-only [options]    configure only
set -euo pipefail
cd "$(dirname "$0")/.."
configure_only=0
if [ "${1:-}" = "--configure-only" ]; then configure_only=1; shift; fi
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@" >/dev/null
[ $configure_only -eq 1 ] || cmake --build build -j"$(nproc)"
