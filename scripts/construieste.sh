#!/usr/bin/env bash
# Configures and builds Alocatii in build/ (or the folder given as ALOCATII_BUILD).
set -euo pipefail
radacina="$(cd "$(dirname "$0")/.." && pwd)"
build="${ALOCATII_BUILD:-$radacina/build}"
# Paths below the tree are hashed relative to it, so that clones and worktrees share the cache.
export CCACHE_BASEDIR="${CCACHE_BASEDIR:-$radacina}"
lansator=()
if command -v ccache >/dev/null 2>&1; then
  lansator=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
# Warnings are errors in CI (.ci/run sets ALOCATII_WERROR) and wherever CI=true.
werror=${ALOCATII_WERROR:-OFF}
if [ "${CI:-}" = "true" ]; then
  werror=ON
fi
cmake -S "$radacina" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE="${ALOCATII_TIP:-RelWithDebInfo}" \
  -DALOCATII_WERROR="$werror" "${lansator[@]}" >/dev/null
cmake --build "$build" -j "$(nproc)"
