#!/usr/bin/env bash
# Configures and builds into build/ (the program's folder is build/bin).
#   scripts/build.sh [cmake options]               configure and build everything
#   scripts/build.sh --configure-only [options]    configure only
#   scripts/build.sh --program [options]           configure and build the program alone
set -euo pipefail
cd "$(dirname "$0")/.."
what=all
case "${1:-}" in
  --configure-only) what=none; shift ;;
  --program) what=orvantis; shift ;;
esac
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@" >/dev/null
case $what in
  none) ;;
  all) cmake --build build -j"$(nproc)" ;;
  *) cmake --build build -j"$(nproc)" --target "$what" ;;
esac
