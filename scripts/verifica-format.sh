#!/usr/bin/env bash
# Checks that clang-format (the configuration in .clang-format) would change no source file.
# With --scrie it formats them instead. Prints the files it would change; exits with 1 if any.
set -euo pipefail
cd "$(dirname "$0")/.."
clang=${CLANG_FORMAT:-clang-format}
if ! command -v "$clang" >/dev/null 2>&1; then
  echo "Lipseste clang-format (pachetul Debian clang-format); scripts/teste.sh il instaleaza."
  exit 1
fi
mapfile -t fisiere < <(find src tests -name '*.cpp' -o -name '*.h' | sort)
if [ "${1:-}" = "--scrie" ]; then
  "$clang" -i "${fisiere[@]}"
  exit 0
fi
gresite=0
for f in "${fisiere[@]}"; do
  if ! "$clang" "$f" | cmp -s - "$f"; then
    echo "$f nu este formatat: scripts/verifica-format.sh --scrie"
    gresite=1
  fi
done
exit "$gresite"
