# shellcheck shell=bash
# What the scripts of the front door share. They source this file and stand in the project's folder.

# shellcheck disable=SC2034  # for the scripts that source this file
callerFolder=$PWD
projectFolder=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
logFolder=$projectFolder/build/logs
jobs=$(nproc)

# One line for each step.
Step() {
    printf '%s\n' "$*"
}

Fail() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# Runs a command with its output in build/logs/<name>.log; shows the end of it when it fails.
Logged() {
    local log=$logFolder/$1.log
    shift
    mkdir -p "$logFolder"
    if ! "$@" >"$log" 2>&1 </dev/null; then
        tail -n 60 "$log" >&2
        printf 'The whole output is in %s\n' "$log" >&2
        return 1
    fi
}

# Configures a preset and builds its targets, or all of it: Build PRESET [TARGET...]
Build() {
    local preset=$1
    shift
    local targets=()
    [[ $# -eq 0 ]] || targets=(--target "$@")
    Step "Building ($preset)."
    Logged "configure-$preset" cmake --preset "$preset" -S "$projectFolder" \
        -DCMAKE_CXX_COMPILER_LAUNCHER="$(command -v ccache || true)" ||
        Fail "The build of the preset $preset could not be configured."
    Logged "build-$preset" cmake --build "$projectFolder/build/$preset" -j "$jobs" "${targets[@]}" ||
        Fail "The build of the preset $preset failed."
}

# shellcheck source=scripts/lib/packages.sh
source "$projectFolder/scripts/lib/packages.sh"
cd "$projectFolder" || exit 1
