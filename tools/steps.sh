# What run.sh and test.sh share; both source it from the root of the project.
# shellcheck shell=bash

steps=()

# step WORDS COMMAND...: runs a command under a heading and notes how long it took. The first one that fails
# ends the script.
step() {
    local words=$1 start=$SECONDS
    shift
    printf '\n== %s\n' "$words"
    if ! "$@"; then
        report
        printf 'FAILED  %s\n' "$words"
        exit 1
    fi
    steps+=("$(printf '%6d s  %s' $((SECONDS - start)) "$words")")
}

# The steps that ran to their end, with their times.
report() {
    printf '\n'
    [[ ${#steps[@]} -eq 0 ]] || printf 'passed %s\n' "${steps[@]}"
    printf 'in all %6d s\n' "$SECONDS"
}

# build PRESET [-DSETTING...] [TARGET...]. A folder that could not be configured holds what it found of the compiler: it
# goes.
build() {
    local preset=$1 settings=()
    shift
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
