#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test (windows offscreen).
set -euo pipefail
radacina="$(cd "$(dirname "$0")/.." && pwd)"
# LibreOffice, so that the test that converts a written document runs instead of being skipped;
# the PostgreSQL server, on which the suite runs a second time; clang-format, which the suite
# runs over every source (the same version as the configuration's, Debian's).
"$radacina/scripts/instaleaza-dependinte.sh" 'libreoffice-writer-nogui|libreoffice-writer' poppler-utils unzip postgresql \
  clang-format
"$radacina/scripts/construieste.sh"
build="${ALOCATII_BUILD:-$radacina/build}"
export QT_QPA_PLATFORM=offscreen
ctest --test-dir "$build" --output-on-failure -j "$(nproc)" "$@"
