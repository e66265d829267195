#!/usr/bin/env bash
# Writes anew the saved expected outputs under tests/data (the documents, the report grids and
# the text boxes of the printed forms) from what the program makes now, for a change that is
# meant. Run it after the build; then read `git diff tests/data`: every line that moved must be
# one you meant. Only the file engine writes them; the server runs compare with the same files.
set -euo pipefail
radacina="$(cd "$(dirname "$0")/.." && pwd)"
build="${ALOCATII_BUILD:-$radacina/build}"
if [ ! -f "$build/CTestTestfile.cmake" ]; then
  echo "Nu exista o constructie in $build: rulati intai ./scripts/construieste.sh (sau ALOCATII_BUILD=...)." >&2
  exit 2
fi
ALOCATII_REGENEREAZA=1 QT_QPA_PLATFORM=offscreen ctest --test-dir "$build" --output-on-failure \
  -R '^(documents_tst_ComandaDocument|reports_tst_RapoarteAsteptate|forms_tst_FormulareAsteptate)$'
git -C "$radacina" status --short -- tests/data
