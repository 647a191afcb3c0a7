#!/usr/bin/env bash
# Shows that no compiler alters a number. Builds what has no window with each compiler at each level, runs the kit's
# tests, the scenarios and random users there, and compares each user's session with the first build's.
#
#   tools/compilers.sh [-l LEVELS] [-u USERS] [-o FOLDER] [COMPILER...]
#
#   COMPILER   g++-14, clang++-19, ...; by default all with such names
#   -l LEVELS  of optimisation, and "sanitize" for -O2 with the sanitizers; by default "O0 O2 O3"
#   -u USERS   how many random users; by default 20000
#   -o FOLDER  for the builds; by default build/compilers. FOLDER/ends has the sessions of each build, a line each:
#              those of two systems can be compared by diff
#
# Installs nothing. Each compiler builds GoogleTest from /usr/src/googletest, which libgtest-dev installs: a library
# compiled by a newer one may not link. The environment's CMAKE_BUILD_PARALLEL_LEVEL and CMAKE_CXX_COMPILER_LAUNCHER are
# honoured.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

levels=(O0 O2 O3)
users=20000
folder=build/compilers
googletest=/usr/src/googletest
jobs=${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)}
# As in the preset for tests with sanitizers.
export ASAN_OPTIONS=detect_stack_use_after_return=1:intercept_tls_get_addr=0

refuse() {
    printf 'compilers.sh: %s\n' "$*" >&2
    exit 2
}

while getopts l:u:o: option; do
    case $option in
    l) read -ra levels <<<"$OPTARG" ;;
    u) users=$OPTARG ;;
    o) folder=$OPTARG ;;
    *) refuse "usage: tools/compilers.sh [-l LEVELS] [-u USERS] [-o FOLDER] [COMPILER...]" ;;
    esac
done
shift $((OPTIND - 1))

compilers=("$@")
[[ ${#compilers[@]} -gt 0 ]] ||
    mapfile -t compilers < <(compgen -c | grep -E '^(g|clang)\+\+-[0-9]+$' | sort -uV)
[[ ${#compilers[@]} -gt 0 ]] || refuse "no compiler of a name like g++-14 or clang++-19 is here: install one"
for compiler in "${compilers[@]}"; do
    command -v "$compiler" >/dev/null || refuse "no compiler $compiler is here: install it, or name another one"
done
[[ ${#levels[@]} -gt 0 ]] || refuse "name a level: O0, O1, O2, O3 or sanitize"
for level in "${levels[@]}"; do
    [[ $level =~ ^(O[0-3]|sanitize)$ ]] || refuse "no such level as $level: name O0, O1, O2, O3 or sanitize"
done
[[ $users =~ ^[1-9][0-9]*$ ]] || refuse "not a number of users: $users"
[[ -d $googletest ]] || refuse "no sources of GoogleTest in $googletest: install libgtest-dev"
for tool in cmake ninja; do
    command -v "$tool" >/dev/null || refuse "no $tool is here: install it"
done

mkdir -p "$folder/ends" "$folder/logs"

# build COMPILER LEVEL INTO: GoogleTest once per compiler, then what has no window.
build() {
    local compiler=$1 level=$2 into=$3 flags=("-DCMAKE_CXX_FLAGS_DEBUG=-$2")
    local tests=$folder/$compiler-googletest
    [[ $level != sanitize ]] || flags=(-DCMAKE_CXX_FLAGS_DEBUG="-O2 -g1" -DONDELIS_SANITIZE=ON)
    if [[ ! -d $tests/installed ]]; then
        cmake -G Ninja -S "$googletest" -B "$tests" -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_BUILD_TYPE=Release &&
            cmake --build "$tests" -j "$jobs" && cmake --install "$tests" --prefix "$tests/installed" || return
    fi
    cmake -G Ninja -S . -B "$into" -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_BUILD_TYPE=Debug "${flags[@]}" \
        -DGTest_ROOT="$PWD/$tests/installed" &&
        cmake --build "$into" -j "$jobs" --target pilote fuzz test_kit test_kit_oracle
}

# check BUILD PREFIX: the tests of a prefix; says how many passed.
check() {
    local log=$folder/logs/${1##*/}-$2
    ctest --test-dir "$1" -R "^$2\\." -j "$jobs" --output-on-failure --no-tests=error >"$log" 2>&1 || true
    sed -nE 's/.* tests passed, ([0-9]+) tests? failed out of ([0-9]+)$/\1 \2/p' "$log" |
        { read -r failed all && echo "$((all - failed)) of $all"; } || echo "none: $log"
}

# play BUILD ENDS: the random users, some of them at a time.
# shellcheck disable=SC2016 # the inner shell expands its own parameters
play() {
    local portion=500 parts=$2.parts from
    rm -rf "$parts" && mkdir "$parts"
    for ((from = 1; from <= users; from += portion)); do
        printf '%d %d\n' "$from" "$((users - from < portion ? users - from + 1 : portion))"
    done | xargs -L1 -P "$jobs" bash -c '"$0" ends "$2" "$3" >"$1/$2"' "$1/tests/fuzz/fuzz" "$parts" &&
        find "$parts" -type f | sort -V | xargs cat >"$2" && rm -r "$parts"
}

# alike ENDS: how many sessions ended like those of the first build.
alike() {
    local differing
    differing=$(diff "$first" "$1" | grep -c '^>') || true
    echo "$((users - differing)) of $users"
}

first=
table=()
for compiler in "${compilers[@]}"; do
    for level in "${levels[@]}"; do
        name=$compiler-$level
        ends=$folder/ends/$name
        row=("does not build: $folder/logs/$name-build" - -)
        if build "$compiler" "$level" "$folder/$name" >"$folder/logs/$name-build" 2>&1; then
            row=("$(check "$folder/$name" kit)" "$(check "$folder/$name" scenario)" "none")
            if play "$folder/$name" "$ends"; then
                first=${first:-$ends}
                row[2]=$(alike "$ends")
            fi
        fi
        table+=("$(printf '%-20s %-14s %-14s %s' "$name" "${row[@]}")")
        printf '%s\n' "${table[-1]}"
    done
done

printf '\n%-20s %-14s %-14s %s\n' build "kit's tests" scenarios "sessions alike"
printf '%s\n' "${table[@]}"
# All is well if each build passed everything: "N of N", three times.
! printf '%s\n' "${table[@]}" | grep -qvE '^\S+ +([0-9]+) of \1 +([0-9]+) of \2 +([0-9]+) of \3$'
