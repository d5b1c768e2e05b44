#!/usr/bin/env bash
# Installs every Debian package the build, the tests and the screenshots need.
#   scripts/setup.sh          installs what is missing (with apt, through sudo when not root)
#   scripts/setup.sh --list   prints the list, one package a line (scripts/check_packages.sh reads it)
# Installs leave out recommends, so everything the build uses must be on this list or be a
# dependency of something on it; scripts/check_packages.sh checks that after configuring.
set -euo pipefail
PKGS=(cmake ninja-build g++ pkg-config ccache qt6-base-dev libqt6opengl6-dev qt6-charts-dev libsqlite3-dev sqlite3
      libcurl4-openssl-dev libxlsxwriter-dev zlib1g-dev libmuparser-dev libgtest-dev libgmock-dev libbenchmark-dev
      python3-pyftpdlib python3-openpyxl poppler-utils xvfb xauth libgl1-mesa-dri fonts-dejavu-core
      imagemagick x11-apps)
if [ "${1:-}" = "--list" ]; then
  printf '%s\n' "${PKGS[@]}"
  exit 0
fi
missing=()
for p in "${PKGS[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  SUDO=""
  [ "$(id -u)" -ne 0 ] && SUDO="sudo"
  echo "Installing ${#missing[@]} packages: ${missing[*]}"
  $SUDO apt-get update -qq
  $SUDO env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" </dev/null
fi
