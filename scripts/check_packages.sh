#!/usr/bin/env bash
# After configuring: every Debian package that owns something the build found or links must be
# installed by scripts/setup.sh on a fresh machine, that is, be on its list or be a dependency
# (recommends left out, as the set-up leaves them out) of something on it.
#
# What the build found or links, read from the build folder:
#   - the CMake package configs (every <Name>_DIR in CMakeCache.txt),
#   - the libraries found for SQLite3, CURL and pkg-config modules (SQLite3_LIBRARY, CURL_LIBRARY*,
#     pkgcfg_lib_*), and each pkg-config module's .pc file with those of its Requires and
#     Requires.private, and the libraries of its --libs,
#   - every library on a link line of the generated build (absolute paths and -lname).
#
# Usage: scripts/check_packages.sh [build folder, default build/]
#   ORVANTIS_PACKAGES_FILE=<file>  take the package list from <file> (one a line) instead of
#                                  scripts/setup.sh --list
# Exits 0 when every package is covered, 1 with the list of those that are not, 2 when it
# cannot check (no configured build folder, apt cannot compute the closure).
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "${1:-$top/build}" 2>/dev/null && pwd) || { echo "check_packages: no build folder ${1:-$top/build}" >&2; exit 2; }
cache=$build/CMakeCache.txt
[ -f "$cache" ] || { echo "check_packages: $cache missing; configure first" >&2; exit 2; }
if ! command -v dpkg-query >/dev/null || ! command -v apt-cache >/dev/null; then
  echo "check_packages: not a Debian system (no dpkg or apt-cache); nothing checked"
  exit 0
fi

# --- The set-up's list and its closure -------------------------------------------------------
if [ -n "${ORVANTIS_PACKAGES_FILE:-}" ]; then
  list=$(grep -vE '^\s*(#|$)' "$ORVANTIS_PACKAGES_FILE" | tr -d ' \t' | sort -u)
else
  list=$("$top/scripts/setup.sh" --list | sort -u)
fi
[ -n "$list" ] || { echo "check_packages: the package list is empty" >&2; exit 2; }

closure_of() {
  # Packages apt would install for the list, each once, without the architecture suffix.
  # shellcheck disable=SC2086
  timeout 120 apt-cache depends --recurse --no-recommends --no-suggests --no-conflicts \
      --no-breaks --no-replaces --no-enhances $list 2>/dev/null | grep -v '^ ' | sed 's/:[a-z0-9]*$//' | sort -u
}
unknown_of() { comm -23 <(echo "$list") <(echo "$1"); }

# The closure is kept in the build folder, keyed by the list and the state of apt's and dpkg's
# databases, so a second run costs nothing.
closure_key() { { echo "$list"; stat -c '%n %Y' /var/lib/apt/lists/* /var/lib/dpkg/status 2>/dev/null; } | sha256sum | cut -c1-16; }
store=$build/package-closure
closure_file=$store/$(closure_key)
if [ -s "$closure_file" ]; then
  closure=$(cat "$closure_file")
else
  rc=0; closure=$(closure_of) || rc=$?
  [ $rc -ne 124 ] || { echo "check_packages: apt-cache took over 120 s; nothing checked" >&2; exit 2; }
  if [ -z "$closure" ] || [ "$(unknown_of "$closure" | wc -l)" -eq "$(echo "$list" | wc -l)" ]; then
    # apt knows none of the list: its package lists were never fetched on this machine.
    SUDO=""
    [ "$(id -u)" -ne 0 ] && SUDO="sudo -n"
    echo "check_packages: apt knows none of the set-up's packages; running apt-get update"
    $SUDO apt-get update -qq </dev/null || { echo "check_packages: apt-get update failed" >&2; exit 2; }
    closure_file=$store/$(closure_key)
    rc=0; closure=$(closure_of) || rc=$?
    [ $rc -ne 124 ] || { echo "check_packages: apt-cache took over 120 s; nothing checked" >&2; exit 2; }
  fi
  [ -n "$closure" ] || { echo "check_packages: apt-cache could not compute the closure of the list" >&2; exit 2; }
  bad=$(unknown_of "$closure")
  if [ -n "$bad" ]; then
    echo "check_packages: apt knows no package by these names on the set-up's list:" >&2
    echo "$bad" | sed 's/^/  /' >&2
    exit 1
  fi
  mkdir -p "$store"
  find "$store" -type f -mmin +1440 -delete 2>/dev/null || true
  tmp=$(mktemp "$store/.tmp.XXXXXX")
  echo "$closure" >"$tmp" && mv -f "$tmp" "$closure_file"
fi

# --- What the build uses ---------------------------------------------------------------------
cachevar() { sed -n "s/^$1:[A-Z]*=//p" "$cache" | head -n 1; }
compiler=$(cachevar CMAKE_CXX_COMPILER)
[ -x "$compiler" ] || compiler="c++"

declare -A why=()          # file the build uses -> what it is used for
declare -a unresolved=()   # -lname or pkg-config module that is not on this machine
use() { [ -e "$1" ] && why[$1]="${why[$1]:+${why[$1]}; }$2"; return 0; }

# A -lname against -L folders, then the compiler's own search path.
resolve_l() {
  local name=$1; shift
  local d f so=lib$name.so a=lib$name.a
  case $name in :*) so=${name#:}; a=$so ;; esac   # -l:file names the file itself
  for d in "$@"; do
    for f in "$d/$so" "$d/$a"; do [ -e "$f" ] && { echo "$f"; return 0; }; done
  done
  for f in "$so" "$a"; do
    f=$("$compiler" -print-file-name="$f" 2>/dev/null) || continue
    [ "${f#/}" != "$f" ] && [ -e "$f" ] && { echo "$f"; return 0; }
  done
  return 1
}
# Libraries from a list of link words: absolute paths and -lname (with the -L folders given).
use_link_words() {
  local what=$1; shift
  local -a dirs=() words=("$@")
  local w f
  for w in "${words[@]}"; do case $w in -L*) dirs+=("${w#-L}") ;; esac; done
  for w in "${words[@]}"; do
    case $w in
      -l*)
        if f=$(resolve_l "${w#-l}" "${dirs[@]}"); then use "$f" "$what ($w)"
        else unresolved+=("$w ($what)"); fi ;;
      /*.so|/*.so.*|/*.a)
        case $w in "$build"/*|"$top"/*) ;; *) use "$w" "$what" ;; esac ;;
    esac
  done
}

# CMake package configs.
while IFS= read -r line; do
  name=${line%%_DIR:*}; dir=${line#*=}
  case $dir in /*) ;; *) continue ;; esac
  case $dir in "$build"/*|"$top"/*) continue ;; esac
  [ -d "$dir" ] || continue
  for cfg in "$dir"/*Config.cmake "$dir"/*-config.cmake; do
    [ -e "$cfg" ] && { use "$cfg" "find_package($name)"; break; }
  done
done < <(grep -E '^[A-Za-z0-9_.+-]+_DIR:PATH=' "$cache")

# Libraries found by find modules and by pkg-config.
while IFS= read -r line; do
  use "${line#*=}" "${line%%:*}"
done < <(grep -E '^(SQLite3_LIBRAR[A-Z_]*|CURL_LIBRAR[A-Z_]*|pkgcfg_lib_[A-Za-z0-9_]+):FILEPATH=/' "$cache")

# pkg-config modules that were found: their .pc files, those they require, and their libraries.
if command -v pkg-config >/dev/null; then
  while IFS= read -r line; do
    prefix=${line#__pkg_config_arguments_}; prefix=${prefix%%:*}
    [ "$(cachevar "${prefix}_FOUND")" = 1 ] || continue
    mods=()
    IFS=';' read -r -a args <<<"${line#*=}"
    for a in "${args[@]}"; do
      case $a in REQUIRED|QUIET|IMPORTED_TARGET|GLOBAL|NO_CMAKE_PATH|NO_CMAKE_ENVIRONMENT_PATH|STATIC) ;;
        *) mods+=("${a%%[<>=]*}") ;; esac
    done
    seen=" "; todo=("${mods[@]}")
    while [ ${#todo[@]} -gt 0 ]; do
      m=${todo[0]}; todo=("${todo[@]:1}")
      case $seen in *" $m "*) continue ;; esac
      seen="$seen$m "
      pc=$(pkg-config --path "$m" 2>/dev/null) || { unresolved+=("pkg-config module $m ($prefix)"); continue; }
      use "$pc" "pkg-config $m ($prefix)"
      for r in $(pkg-config --print-requires --print-requires-private "$m" 2>/dev/null | awk '{print $1}'); do
        todo+=("$r")
      done
    done
    # shellcheck disable=SC2046
    use_link_words "pkg-config ${mods[*]}" $(pkg-config --libs "${mods[@]}" 2>/dev/null || true)
  done < <(grep -E '^__pkg_config_arguments_[A-Za-z0-9_]+:INTERNAL=' "$cache")
fi

# Every link line of the generated build.
links=""
if [ -f "$build/build.ninja" ]; then
  links=$(sed -n 's/^ *LINK_LIBRARIES = //p' "$build/build.ninja")
else
  links=$(find "$build" -name link.txt -exec cat {} + 2>/dev/null || true)
fi
# shellcheck disable=SC2046
use_link_words "link line" $(echo "$links" | tr ' ' '\n' | sort -u)

# --- Map to packages and compare -------------------------------------------------------------
# One dpkg-query for every file, asked as given, resolved, and as the other half of a merged
# /usr (/lib <-> /usr/lib): dpkg records a file under the path its package shipped it at.
files=("${!why[@]}")
[ ${#files[@]} -gt 0 ] || { echo "check_packages: found nothing the build uses in $build; is it configured?" >&2; exit 2; }
mapfile -t norm < <(realpath -sm -- "${files[@]}")
mapfile -t real < <(readlink -f -- "${files[@]}")
declare -a cand=()
for i in "${!files[@]}"; do
  n=${norm[$i]}; r=${real[$i]}
  cand[$i]="$n ${n#/usr} /usr$n $r ${r#/usr} /usr$r"
done
declare -A ownerof=()
ask_dpkg() {
  local line path pkgs w
  while IFS= read -r line; do
    case $line in diversion\ *|"") continue ;; esac
    path=${line##*: }; pkgs=${line%: *}
    ownerof[$path]=""
    for w in ${pkgs//,/ }; do ownerof[$path]+="${w%%:*} "; done
  done < <(printf '%s\n' "$@" | sort -u | xargs -r -d '\n' dpkg-query -S 2>/dev/null || true)
}
# Most files are known by their plain path; dpkg's cost grows with the number of paths asked.
ask_dpkg "${norm[@]}"
rest=()
# shellcheck disable=SC2206
for i in "${!files[@]}"; do [ -n "${ownerof[${norm[$i]}]:-}" ] || rest+=(${cand[$i]}); done
[ ${#rest[@]} -eq 0 ] || ask_dpkg "${rest[@]}"

declare -A pkgwhy=()
unowned=()
for i in "${!files[@]}"; do
  f=${files[$i]}; pk=""
  for c in ${cand[$i]}; do pk=${ownerof[$c]:-}; [ -n "$pk" ] && break; done
  if [ -n "$pk" ]; then
    for p in $pk; do pkgwhy[$p]="${pkgwhy[$p]:+${pkgwhy[$p]}, }${why[$f]}"; done
  else
    unowned+=("${norm[$i]} (${why[$f]})")
  fi
done
[ -z "${ORVANTIS_CHECK_VERBOSE:-}" ] || for p in "${!pkgwhy[@]}"; do echo "  $p <- ${pkgwhy[$p]}"; done | sort

status=0
needed=$(printf '%s\n' "${!pkgwhy[@]}" | sort -u)
missing=$(comm -23 <(echo "$needed") <(echo "$closure"))
if [ -n "$missing" ]; then
  status=1
  echo "check_packages: FAILED: the build uses these Debian packages, but scripts/setup.sh does not install them"
  echo "(neither on its list nor a dependency of something on it; add them to PKGS there):"
  while IFS= read -r p; do echo "  $p    <- ${pkgwhy[$p]}"; done <<<"$missing"
fi
if [ ${#unowned[@]} -gt 0 ]; then
  status=1
  echo "check_packages: FAILED: the build uses files that no Debian package installs (a fresh machine lacks them):"
  printf '  %s\n' "${unowned[@]}"
fi
if [ ${#unresolved[@]} -gt 0 ]; then
  status=1
  echo "check_packages: FAILED: the build asks for libraries or modules that are not on this machine"
  echo "(install the Debian package that provides each, and add it to PKGS in scripts/setup.sh):"
  printf '  %s\n' "${unresolved[@]}" | sort -u
fi
if [ $status -eq 0 ]; then
  echo "check_packages: all $(echo "$needed" | wc -l) Debian packages the build uses come from scripts/setup.sh's list ($(echo "$list" | wc -l) packages, $(echo "$closure" | wc -l) with their dependencies)"
fi
exit $status
