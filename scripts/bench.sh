#!/usr/bin/env bash
# Speed and memory figures: builds, makes (once) an office of N demonstration applications
# (the first argument, 20000 when none is given) in build/bench-oficiu-N and runs
# `alocatii-admin bench` on it; the arguments after N go to bench (--masuri NUME,...).
set -euo pipefail
radacina="$(cd "$(dirname "$0")/.." && pwd)"
marime="${1:-20000}"
if ! [[ "$marime" =~ ^[1-9][0-9]*$ ]]; then
  echo "Utilizare: scripts/bench.sh [NUMAR_CERERI] [--masuri NUME,...]" >&2
  exit 2
fi
[ $# -gt 0 ] && shift
"$radacina/scripts/instaleaza-dependinte.sh"
"$radacina/scripts/construieste.sh"
build="${ALOCATII_BUILD:-$radacina/build}"
oficiu="$build/bench-oficiu-$marime"
if [ ! -f "$oficiu/Tarnava.db" ]; then
  rm -rf "$oficiu"
  "$build/alocatii-admin" init "$oficiu" --demo "$marime"
fi
"$build/alocatii-admin" bench "$oficiu" "$@"
