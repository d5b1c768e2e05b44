#!/usr/bin/env bash
# Installs every Debian package the build, the tests and the screenshots need.
set -euo pipefail
PKGS=(cmake ninja-build g++ pkg-config ccache qt6-base-dev libqt6opengl6-dev qt6-charts-dev libsqlite3-dev sqlite3
      libcurl4-openssl-dev libxlsxwriter-dev zlib1g-dev libmuparser-dev libgtest-dev libgmock-dev libbenchmark-dev
      python3-pyftpdlib python3-openpyxl poppler-utils xvfb xauth libgl1-mesa-dri fonts-dejavu-core
      imagemagick x11-apps)
missing=()
for p in "${PKGS[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  SUDO=""
  [ "$(id -u)" -ne 0 ] && SUDO="sudo"
  $SUDO apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
