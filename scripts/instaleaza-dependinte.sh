#!/usr/bin/env bash
# Installs, with apt-get, the packages needed to build and test Alocatii, only those missing.
# The arguments are extra packages for the caller (the desktop command: what opens documents;
# the tests: LibreOffice for the conversion test). "a|b" is satisfied by either package and
# installs the first one when neither is there.
set -euo pipefail

pachete=(cmake g++ ninja-build pkg-config qt6-base-dev libqt6sql6-sqlite libqt6sql6-psql libxlsxwriter-dev sqlite3 libsqlite3-dev
  postgresql-client ccache
  fonts-liberation fonts-urw-base35 qt6-translations-l10n "$@")

instalat() {
  dpkg-query -W -f='${Status}' "$1" 2>/dev/null | grep -q "install ok installed"
}

lipsa=()
for p in "${pachete[@]}"; do
  IFS='|' read -r -a variante <<<"$p"
  gasit=0
  for v in "${variante[@]}"; do
    if instalat "$v"; then
      gasit=1
      break
    fi
  done
  [ "$gasit" -eq 1 ] || lipsa+=("${variante[0]}")
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
