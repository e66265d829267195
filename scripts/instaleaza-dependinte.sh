#!/usr/bin/env bash
# Installs, with apt-get, the packages needed to build and test Alocatii, only those missing.
set -euo pipefail

pachete=(cmake g++ ninja-build pkg-config qt6-base-dev libqt6sql6-sqlite libxlsxwriter-dev sqlite3 ccache poppler-utils unzip)
lipsa=()
for p in "${pachete[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || lipsa+=("$p")
done
if [ ${#lipsa[@]} -eq 0 ]; then
  exit 0
fi
echo "Se instaleaza: ${lipsa[*]}"
sudo_cmd=()
if [ "$(id -u)" -ne 0 ]; then
  sudo_cmd=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq
"${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${lipsa[@]}" >/dev/null
