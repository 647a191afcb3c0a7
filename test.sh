#!/usr/bin/env bash
# Checks everything: installs what is missing, builds with warnings as errors, checks the code's formatting and lints
# it, makes the package and checks what people install, and runs every test twice, the second time with sanitizers.
# Stops at the first step that fails. What passed before, and has not changed since, is not built, linted or run again.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source tools/steps.sh

jobs=$(nproc)

check_scripts() {
    shellcheck -x ./*.sh tools/*.sh tools/*/*.sh packaging/*.sh debian/tests/panel .ci/run
}

check_format() {
    find src tests tools bench -name '*.h' -print0 -o -name '*.cpp' -print0 |
        xargs -0 -n40 -P"$jobs" clang-format --dry-run -Werror
}

build_release() {
    local flags
    mapfile -t flags < <(debian/rules flags) && build release "${flags[@]}"
}

# Made from the build that was tested, beside it.
make_package() {
    dh_clean && BUILT=build/release dpkg-buildpackage --rules-target=binary
}

# Runs at a low priority, so as not to slow down what runs in parallel.
yielding() (
    renice -n 10 "$BASHPID" >/dev/null && "$@"
)

# Checks what people get.
check_release() {
    step "Tests (release)" tools/tests.py release
    step "Debian package" make_package
    step "Installation and package (validators)" packaging/check.sh build/release
}

step "Packages" tools/install-packages.sh program screen checks
step "Scripts (shellcheck)" check_scripts
pinned clang-format 14 "Formatting (clang-format)" check_format
step "Release build, as for a package, warnings as errors" build_release
beside check_release
pinned clang-tidy 14 "Lint (clang-tidy)" yielding tools/lint.py build/release
step "Build with address and undefined behaviour sanitizers" yielding build sanitize
step "Tests (sanitizers)" tools/tests.py sanitize
join_beside
report
