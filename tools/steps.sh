# What run.sh and test.sh share; both source it from the root of the project.
# shellcheck shell=bash

steps=()         # what the report says of each step
parallel_folder= # the folder of the steps that run in parallel, if there are any

# step WORDS COMMAND...: runs a command under a heading and notes how long it took. The first one that fails ends the
# script.
step() {
    local words=$1 start=$SECONDS
    shift
    printf '\n== %s\n' "$words"
    if "$@"; then
        add_to_report "$(printf 'passed   %5d s  %s' $((SECONDS - start)) "$words")"
        ! parallel_failed || fail
    else
        add_to_report "$(printf 'FAILED   %5d s  %s' $((SECONDS - start)) "$words")"
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
        add_to_report "$(printf 'left out          %s: here is %s %s, not %s' "$1" "$tool" "$found" "$version")"
    fi
}

# in_parallel FUNCTION: runs a function of steps in parallel with those that follow, up to `join_parallel`, which shows
# its output.
in_parallel() {
    parallel_folder=$(mktemp -d)
    trap stop_parallel EXIT
    set -m # a process group of its own, which can be ended as a whole
    { "$1" || fail; } >"$parallel_folder/output" 2>&1 </dev/null &
    parallel_process=$!
    set +m
}

join_parallel() {
    wait "$parallel_process" || fail
    cat "$parallel_folder/output"
    end_parallel
}

parallel_failed() { [[ -n $parallel_folder && -e $parallel_folder/failed ]]; }

# Ends the parallel steps; those that are done go into the report.
end_parallel() {
    [[ ! -e $parallel_folder/steps ]] || mapfile -t -O "${#steps[@]}" steps <"$parallel_folder/steps"
    stop_parallel
}

stop_parallel() {
    [[ -n $parallel_folder ]] || return 0
    kill -- "-$parallel_process" 2>/dev/null || true
    rm -rf "$parallel_folder"
    parallel_folder=
}

is_parallel() { [[ $BASHPID != "$$" ]]; }

add_to_report() {
    if is_parallel; then echo "$1" >>"$parallel_folder/steps"; else steps+=("$1"); fi
}

# Ends the script, and with it the parallel steps.
fail() {
    if is_parallel; then
        touch "$parallel_folder/failed"
    else
        ! parallel_failed || cat "$parallel_folder/output"
        [[ -z $parallel_folder ]] || end_parallel
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
