#!/usr/bin/env bash
# scripts/check_packages.sh against a configured build folder: the set-up's own list passes; a
# list without a package the build needs fails and names it; so do a name apt does not know, a
# library the link asks for that is not on the machine, and a CMake package no Debian package
# installs.
set -u
build=$(cd "${1:?usage: test_check_packages.sh <configured build folder>}" && pwd)
top=$(cd "$(dirname "$0")/../.." && pwd)
check=$top/scripts/check_packages.sh
if ! command -v apt-cache >/dev/null || ! command -v dpkg-query >/dev/null; then
  echo "not a Debian system: nothing to check"
  exit 0
fi
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
failures=0
out=""
expect() {  # expect <exit code> <text the output must hold> <what> -- command...  (output left in $out)
  local want=$1 text=$2 what=$3; shift 4
  local rc
  out=$("$@" 2>&1); rc=$?
  if [ "$rc" -ne "$want" ] || ! grep -qF -- "$text" <<<"$out"; then
    echo "FAIL: $what: exit $rc (wanted $want), output should hold '$text':"
    echo "$out" | sed 's/^/    /'
    failures=$((failures + 1))
  else
    echo "ok: $what"
  fi
}
list() { "$top/scripts/setup.sh" --list; }

expect 0 "come from scripts/setup.sh's list" "the set-up's own list" -- "$check" "$build"

# The two packages that once slipped: Qt Charts' CMake package needs Qt OpenGL's, and
# xlsxwriter's pkg-config module links zlib. Neither comes in through another package's Depends.
for drop in libqt6opengl6-dev zlib1g-dev; do
  list | grep -vx "$drop" >"$tmp/without-$drop"
  expect 1 "  $drop    <- " "the list without $drop" -- \
    env ORVANTIS_PACKAGES_FILE="$tmp/without-$drop" "$check" "$build"
done

{ list; echo qt6-charts-devv; } >"$tmp/misspelt"
expect 1 "qt6-charts-devv" "a name apt does not know" -- env ORVANTIS_PACKAGES_FILE="$tmp/misspelt" "$check" "$build"

# A build folder whose link asks for a library this machine lacks and whose cache found a CMake
# package that no Debian package installed (as on a fresh machine missing a -dev package, or a
# hand-installed library).
fake=$tmp/build
mkdir -p "$fake" "$tmp/local/cmake/Handmade"
touch "$tmp/local/cmake/Handmade/HandmadeConfig.cmake"
{ grep -E '^(CMAKE_CXX_COMPILER|SQLite3_LIBRARY):' "$build/CMakeCache.txt"
  echo "Handmade_DIR:PATH=$tmp/local/cmake/Handmade"; } >"$fake/CMakeCache.txt"
printf 'build bin/x: CXX_EXECUTABLE_LINKER__x main.o\n  LINK_LIBRARIES = -lorvantis_nowhere_zz  -lsqlite3\n' >"$fake/build.ninja"
expect 1 "-lorvantis_nowhere_zz (link line)" "a library missing from the machine" -- "$check" "$fake"
grep -qF "HandmadeConfig.cmake (find_package(Handmade))" <<<"$out" && echo "ok: a CMake package from no Debian package" ||
  { echo "FAIL: a CMake package from no Debian package is not reported"; failures=$((failures + 1)); }

[ $failures -eq 0 ] || { echo "$failures case(s) failed"; exit 1; }
