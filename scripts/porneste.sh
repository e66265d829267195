#!/usr/bin/env bash
# Installs what is missing, builds, and starts Alocatii on the demonstration office in run/:
# run/setariTarnava.ini (the program folder's settings) and run/oficiu/Tarnava.db, made once
# with `alocatii-admin init --demo`.
set -euo pipefail
radacina="$(cd "$(dirname "$0")/.." && pwd)"
# Opening documents needs the desktop's opener and LibreOffice Writer.
"$radacina/scripts/instaleaza-dependinte.sh" xdg-utils 'libreoffice-writer|libreoffice-writer-nogui'
"$radacina/scripts/construieste.sh"

build="${ALOCATII_BUILD:-$radacina/build}"
run="$radacina/run"
mkdir -p "$run"
if [ ! -f "$run/oficiu/Tarnava.db" ]; then
  echo "Se creeaza oficiul demonstrativ in $run/oficiu ..."
  "$build/alocatii-admin" init "$run/oficiu" --demo "${ALOCATII_DEMO:-300}"
fi
if ! grep -qi '^CaleBD=' "$run/setariTarnava.ini" 2>/dev/null; then
  # The demonstration works in the current month.
  printf '[Generale]\r\nCaleBD=%s\r\n[Setari]\r\nLunaSetata=%s\r\nAnSetat=%s\r\n' \
    "$run/oficiu" "$(date +%-m)" "$(date +%Y)" >> "$run/setariTarnava.ini"
fi

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ] && [ -z "${QT_QPA_PLATFORM:-}" ]; then
  cat >&2 <<MESAJ
Programul a fost construit, dar acest calculator nu are un ecran (nici DISPLAY, nici WAYLAND_DISPLAY).
Porniti-l sub un ecran virtual, de exemplu:
    sudo apt-get install -y xvfb && xvfb-run -a $0
sau, pe un calculator cu ecran, rulati din nou: $0
MESAJ
  exit 1
fi
export ALOCATII_FOLDER_PROGRAM="$run"
exec "$build/alocatii"
