# What run.sh and test.sh share; both source it from the root of the project.
# shellcheck shell=bash

steps=() # what the report says of each step
lane=    # the folder of the steps that run in parallel, if there are any

# step WORDS COMMAND...: runs a command under a heading and notes how long it took. The first one that fails ends the
# script.
step() {
    local words=$1 start=$SECONDS
    shift
    printf '\n== %s\n' "$words"
    if "$@"; then
        note "$(printf 'passed   %5d s  %s' $((SECONDS - start)) "$words")"
        ! lane_failed || fail
    else
        note "$(printf 'FAILED   %5d s  %s' $((SECONDS - start)) "$words")"
        fail
    fi
}

# pinned TOOL VERSION WORDS COMMAND...: a step that needs this version of a tool. Another version would ask for other
# code, so the step is left out there.
pinned() {
    local tool=$1 version=$2 found
    shift 2
    if ! command -v "$tool" >/dev/null; then
        echo "$tool is not here: install it, or call tools/install-packages.sh checks." >&2
        fail
    fi
    found=$("$tool" --version | sed -n 's/.*version \([0-9]*\).*/\1/p' | head -n1)
    if [[ $found == "$version" ]]; then
        step "$@"
    else
        printf '\n== %s\nLeft out: the code follows %s %s, and here is %s.\n' "$1" "$tool" "$version" "$found"
        note "$(printf 'left out          %s: here is %s %s, not %s' "$1" "$tool" "$found" "$version")"
    fi
}

# beside FUNCTION: runs a function of steps in parallel with the steps that follow, up to `join_beside`, which shows its
# output.
beside() {
    lane=$(mktemp -d)
    trap stop_lane EXIT
    set -m # a process group of its own, which can be ended as a whole
    { "$1" || fail; } >"$lane/said" 2>&1 </dev/null &
    lane_process=$!
    set +m
}

join_beside() {
    wait "$lane_process" || fail
    cat "$lane/said"
    end_lane
}

lane_failed() { [[ -n $lane && -e $lane/failed ]]; }

# Ends the parallel steps; those that are done go into the report.
end_lane() {
    [[ ! -e $lane/steps ]] || mapfile -t -O "${#steps[@]}" steps <"$lane/steps"
    stop_lane
}

stop_lane() {
    [[ -n $lane ]] || return 0
    kill -- "-$lane_process" 2>/dev/null || true
    rm -rf "$lane"
    lane=
}

in_lane() { [[ $BASHPID != "$$" ]]; }

note() {
    if in_lane; then echo "$1" >>"$lane/steps"; else steps+=("$1"); fi
}

# Ends the script, and with it the parallel steps.
fail() {
    if in_lane; then
        touch "$lane/failed"
    else
        ! lane_failed || cat "$lane/said"
        [[ -z $lane ]] || end_lane
        report
    fi
    exit 1
}

# All steps, with their times.
report() {
    printf '\n'
    [[ ${#steps[@]} -eq 0 ]] || printf '%s\n' "${steps[@]}"
    printf 'in all   %5d s\n' "$SECONDS"
}

# build PRESET [-DSETTING...] [TARGET...]. A folder that could not be configured would remember what it found of the
# compiler: it is removed.
build() {
    local preset=$1 settings=()
    shift
    export CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER-$(command -v ccache)}
    export CCACHE_SLOPPINESS=pch_defines,time_macros # without this it does not cache what uses precompiled headers
    while [[ ${1-} == -D* ]]; do
        settings+=("$1")
        shift
    done
    if ! cmake --preset "$preset" --log-level=WARNING "${settings[@]}"; then
        [[ -e build/$preset/build.ninja ]] || rm -rf "build/$preset"
        return 1
    fi
    cmake --build --preset "$preset" ${1:+--target "$@"}
}
