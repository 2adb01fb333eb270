# shellcheck shell=bash
# Sourced by the other scripts: goes to the project's root, and lets the compiler use ccache where there is one.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

if command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache
    # Clones at different places share their objects.
    export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1
    # What includes precompiled headers is cached only if their macros and times are trusted.
    export CCACHE_SLOPPINESS=pch_defines,time_macros
fi

say() { printf '%s\n' "$*"; }
complain() { printf '%s\n' "$*" >&2; }

# heading TEXT: announces a step, with the seconds since the script began.
heading() { printf '\n== %s (%d s)\n' "$*" "$SECONDS"; }

# build PRESET [TARGET...]: configures where that has not been done, then builds.
build() {
    local preset=$1
    shift
    [[ -f build/$preset/build.ninja ]] || cmake --preset "$preset"
    cmake --build --preset "$preset" ${1:+--target "$@"}
}
