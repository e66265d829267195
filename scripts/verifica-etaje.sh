#!/usr/bin/env bash
# Checks the floors of src/: a file includes only headers of its own floor and of those below it.
# Prints each include that goes up a floor and exits with 1 when there is one.
set -euo pipefail
cd "$(dirname "$0")/.."

etaj() {
  case "$1" in
    common) echo 0 ;;
    database | history) echo 1 ;;
    gui) echo 2 ;;
    documents) echo 3 ;;
    shell | amounts | applications | import | preluare | decisions | registers | maintenance | reports | forms) echo 4 ;;
    mainwindow) echo 5 ;;
    admin | app) echo 6 ;;
    *) echo "" ;;
  esac
}

gresite=0
while IFS= read -r fisier; do
  sub=${fisier#src/}
  sub=${sub%%/*}
  jos=$(etaj "$sub")
  if [ -z "$jos" ]; then
    echo "$fisier: folderul $sub nu are etaj in scripts/verifica-etaje.sh"
    gresite=1
    continue
  fi
  while IFS= read -r inc; do
    tinta=${inc%%/*}
    sus=$(etaj "$tinta")
    [ -n "$sus" ] || continue
    if [ "$sus" -gt "$jos" ]; then
      echo "$fisier include \"$inc\", de la un etaj de deasupra"
      gresite=1
    fi
  done < <(sed -n 's/^#include "\([a-z]*\/[^"]*\)".*/\1/p' "$fisier")
done < <(find src -name '*.cpp' -o -name '*.h' | sort)
exit "$gresite"
