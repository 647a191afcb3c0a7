#!/usr/bin/env bash
# check.sh BUILD
# Checks what people install from a release build, and the Debian packages made from it, which must exist. Stops at the
# first check that fails.
set -euo pipefail

build=$1
here=$(dirname "${BASH_SOURCE[0]}")
debian=$here/../debian

scratch=$(mktemp -d)
running="Preparation"
finish() {
    local status=$?
    rm -rf "$scratch"
    [[ $status -eq 0 ]] || echo "FAILED: $running" >&2
}
trap finish EXIT

staged=$scratch/staged/opt/ondelis # a prefix that no default knows
unpacked=$scratch/unpacked

version=$(sed -n 's/^CMAKE_PROJECT_VERSION:.*=//p' "$build/CMakeCache.txt")
architecture=$(dpkg --print-architecture)
package=$build/ondelis_${version}_$architecture.deb
symbols=$build/ondelis-dbgsym_${version}_$architecture.deb
guide=$build/ondelis-doc_${version}_all.deb

# As debian/rules has it.
overrides=()
! grep -q '^VERSION_ID="12"$' /etc/os-release || overrides=(lintian/overrides/ondelis)

# check WORDS COMMAND...
check() {
    running=$1
    echo "$running"
    shift
    "$@"
}

# silent COMMAND...: succeeds, without any warning.
silent() {
    local said
    if ! said=$("$@" 2>&1) || [[ -n $said ]]; then
        printf '%s\n' "$said" >&2
        return 1
    fi
}

unpack() {
    DESTDIR=$scratch/staged cmake --install "$build" --prefix /opt/ondelis >"$scratch/log"
    dpkg-deb -x "$package" "$unpacked"
}

# files FOLDER OTHER...: the folder holds what belongs to the program on any system, the others under share, and nothing
# else but the guide; nothing in it is closed to other users.
files() {
    local folder=$1
    shift
    {
        printf '%s\n' bin/ondelis share/applications/ondelis.desktop share/metainfo/org.example.ondelis.metainfo.xml \
            share/icons/hicolor/{16x16,22x22,24x24,32x32,48x48,64x64,128x128,256x256,512x512}/apps/ondelis.png \
            share/icons/hicolor/scalable/apps/ondelis.svg
        printf "share/%s\n" "$@"
    } | LC_ALL=C sort >"$scratch/expected"
    (cd "$folder" && find . -path ./share/doc/ondelis/guide -prune -o ! -type d -printf '%P\n') | LC_ALL=C sort |
        diff "$scratch/expected" -
    silent find "$folder" ! -perm -o=r
}

icons() {
    local icon size
    for icon in "$staged"/share/icons/hicolor/*x*/apps/ondelis.png; do
        size=$(identify -format '%wx%h' "$icon")
        [[ $icon == */"$size"/apps/* ]] || { echo "$icon is of $size" >&2; return 1; }
    done
}

# The metainfo states the sizes of the pictures that it names.
screenshots() {
    local metainfo=$here/org.example.ondelis.metainfo.xml width height name
    sed -n 's|.*<image .*width="\(.*\)" height="\(.*\)">.*/pictures/\(.*\)</image>|\1 \2 \3|p' \
        "$metainfo" >"$scratch/pictures"
    [[ $(wc -l <"$scratch/pictures") -eq $(grep -c '<image' "$metainfo") ]]
    while read -r width height name; do
        diff <(echo "$width $height") <(identify -format '%w %h\n' "$here/../docs/pictures/$name")
    done <"$scratch/pictures"
}

# Every list of releases begins with the version being built.
releases() {
    local says
    says=$(printf '%s\n' "$(sed -n 's/^## \[\([0-9.]*\)\].*/\1/p' "$here/../CHANGELOG.md" | head -n1)" \
        "$(sed -n 's/.*<release version="\([^"]*\)".*/\1/p' "$here/org.example.ondelis.metainfo.xml" | head -n1)" \
        "$(dpkg-parsechangelog -l "$debian/changelog" -S Version)" | sort -u)
    [[ $says == "$version" ]] || { printf '%s\n' "$says" "is not $version" >&2; return 1; }
}

# The package's terms are those of the licence: as a field, indented, with a point on each empty line.
licence() {
    diff <(sed '1,/developers$/d' "$here/../LICENSE" | sed 1d) \
        <(sed '1,/^License: .*$/d' "$debian/copyright" | sed '1,/^License: /d; s/^ \.$//; s/^ //')
}

# The only complaint allowed: later versions of the tool want another element for the developers, which Debian 12's does
# not know.
metainfo() {
    local said
    said=$(appstreamcli validate --no-net "$staged"/share/metainfo/*.xml) || { printf '%s\n' "$said" >&2; return 1; }
    ! grep '^[EWI]: ' <<<"$said" | grep -v ' developer-name-tag-deprecated$\| developer-info-missing$' >&2
}

man_pages() {
    local page warnings
    for page in "$staged"/share/man/{,fr/}man1/ondelis.1; do
        warnings=$(LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >/dev/null)
        [[ -z $warnings ]] || { printf '%s\n' "$warnings" >&2; return 1; }
        lexgrog "$page" >/dev/null
    done
}

# The debug package holds the symbols of exactly this program.
debug_package() {
    local id
    id=$(readelf -n "$unpacked/usr/bin/ondelis" | sed -n 's/.*Build ID: //p')
    dpkg-deb -c "$symbols" | grep "/${id:0:2}/${id:2}.debug$" >/dev/null
}

# The guide's package holds a page for each panel, where the program and the desktop entry look for it.
guide_package() {
    local folder=usr/share/doc/ondelis/guide page
    dpkg-deb -x "$guide" "$scratch/guide"
    for page in index commencer je-veux $(cd "$here/../docs/guide/panneaux" && printf '%s\n' *.md | sed 's/\.md$//'); do
        [[ -s $scratch/guide/$folder/$page.html ]] || { echo "no page $page" >&2; return 1; }
    done
    grep -q "^Exec=xdg-open /$folder/index.html$" "$unpacked/usr/share/applications/ondelis.desktop"
}

# starts FOLDER: the program of the desktop entry, installed there, answers real keys on a display.
starts() {
    [[ -x $1/bin/$(sed -n 's/^Exec=\([^ ]*\)$/\1/p' "$1/share/applications/ondelis.desktop") ]]
    PATH=$(realpath "$1/bin"):$PATH AUTOPKGTEST_ARTIFACTS=$scratch "$debian/tests/panel" >"$scratch/shown" ||
        { cat "$scratch/shown" >&2; return 1; }
}

check "Installation into a prefix, and the package unpacked" unpack
check "The files of the installation" files "$staged" \
    man/{,fr/}man1/ondelis.1 doc/ondelis/{LICENSE,CHANGELOG.md}
check "The files of the package" files "$unpacked/usr" \
    man/{,fr/}man1/ondelis.1.gz doc/ondelis/{copyright,changelog.gz} "${overrides[@]}"
check "The debug package" debug_package
check "The guide's package" guide_package
check "The sizes of the icons" icons
check "The sizes of the screenshots" screenshots
check "The version in all lists of releases" releases
check "The terms of the licence" licence
check "Desktop entry (desktop-file-validate)" silent desktop-file-validate "$staged/share/applications/ondelis.desktop"
check "Metainfo (appstreamcli)" metainfo
check "Man pages" man_pages
check "Packages (lintian)" lintian --allow-root --display-info --pedantic --fail-on error,warning,info,pedantic \
    "$package" "$symbols" "$guide"
check "The installed program starts" starts "$staged"
check "The packaged program starts" starts "$unpacked/usr"
