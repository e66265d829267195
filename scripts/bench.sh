#!/usr/bin/env bash
# Speed and memory figures: builds, makes (once) an office of 20,000 demonstration
# applications in build/bench-oficiu and runs `alocatii-admin bench` on it.
set -euo pipefail
radacina="$(cd "$(dirname "$0")/.." && pwd)"
"$radacina/scripts/instaleaza-dependinte.sh"
"$radacina/scripts/construieste.sh"
build="${ALOCATII_BUILD:-$radacina/build}"
oficiu="$build/bench-oficiu"
if [ ! -f "$oficiu/Tarnava.db" ]; then
  "$build/alocatii-admin" init "$oficiu" --demo 20000
fi
"$build/alocatii-admin" bench "$oficiu"
