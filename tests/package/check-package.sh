#!/usr/bin/env bash
# check-package.sh BUILD_DIR SOURCE_DIR: builds the Debian package with cpack,
# unpacks it into a temporary root and checks it as a user would meet it:
# the programs run from there, the desktop entry, metainfo, file type, icons
# and manual pages are in place and pass their validators.
set -euo pipefail
build=$1
source=$2

fail() {
    echo "FAIL: $*" >&2
    exit 1
}

missing=()
for tool in cpack dpkg-deb dpkg-shlibdeps desktop-file-validate appstreamcli update-mime-database; do
    command -v "$tool" >/dev/null || missing+=("$tool")
done
[ ${#missing[@]} -eq 0 ] || fail "missing tools: ${missing[*]} (scripts/install-deps.sh installs them)"

tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

# The package.
if ! cpack --config "$build/CPackConfig.cmake" -G DEB -B "$tmp/out" >"$tmp/cpack.log" 2>&1; then
    cat "$tmp/cpack.log" >&2
    fail "cpack could not build the package"
fi
debs=("$tmp"/out/*.deb)
[ ${#debs[@]} -eq 1 ] && [ -f "${debs[0]}" ] || fail "expected one .deb, found: ${debs[*]}"
deb=${debs[0]}
echo "package: $(basename "$deb"), $(stat -c %s "$deb") bytes"
dpkg-deb --field "$deb"

# The dependencies come from the libraries the programs link, plus the
# plug-ins Qt loads at run time.
depends=$(dpkg-deb --field "$deb" Depends)
for dep in libqt6widgets6 libqt6gui6 libqt6core6 libc6 libqt6sql6-sqlite; do
    [[ ", $depends," == *", $dep "* || ", $depends," == *", $dep,"* ]] \
        || fail "Depends lacks $dep: $depends"
done

root=$tmp/root
dpkg-deb -x "$deb" "$root"
echo "contents:"
(cd "$root" && find . -type f -o -type l | sort | sed 's|^\./|  /|')

id=de.tolvane.ferolith
expected=(
    usr/bin/ferolith
    usr/bin/ferolith-cli
    usr/share/applications/$id.desktop
    usr/share/metainfo/$id.metainfo.xml
    usr/share/mime/packages/$id.xml
    usr/share/icons/hicolor/scalable/apps/$id.svg
    usr/share/man/man1/ferolith.1.gz
    usr/share/man/man1/ferolith-cli.1.gz
    usr/share/man/de/man1/ferolith.1.gz
    usr/share/man/de/man1/ferolith-cli.1.gz
)
for size in 16 22 24 32 48 64 128 256 512; do
    expected+=(usr/share/icons/hicolor/${size}x${size}/apps/$id.png)
done
for f in "${expected[@]}"; do
    [ -e "$root/$f" ] || fail "the package lacks /$f"
done
# Nothing of the build tree or the development files comes along.
unexpected=$(cd "$root" && find . -type f \( -name '*.a' -o -name '*.h' -o -name '*.ini' -o -name '*.cmake' \))
[ -z "$unexpected" ] || fail "files that do not belong in the package: $unexpected"

# Each PNG icon is as large as the folder it lies in says.
for size in 16 22 24 32 48 64 128 256 512; do
    png=$root/usr/share/icons/hicolor/${size}x${size}/apps/$id.png
    [ "$(head -c 8 "$png" | od -An -tx1 | tr -d ' \n')" = 89504e470d0a1a0a ] || fail "$png is no PNG"
    read -r w h < <(od -An -j16 -N8 -tu1 "$png" | awk '{print $1*16777216+$2*65536+$3*256+$4, $5*16777216+$6*65536+$7*256+$8}')
    [ "$w" = "$size" ] && [ "$h" = "$size" ] || fail "$png is ${w}x${h}"
done

# The programs run from the unpacked root with the system's Qt; the user's
# settings go to a home folder of the test's own.
export HOME=$tmp/home
unset XDG_CONFIG_HOME
mkdir -p "$HOME"
export QT_QPA_PLATFORM=offscreen
version=$("$root/usr/bin/ferolith-cli" --version)
echo "$version"
[[ $version =~ ^ferolith-cli\ v[0-9]+\.[0-9]+\.[0-9]+\ build\ [0-9]+$ ]] || fail "unexpected version text: $version"
app_version=$("$root/usr/bin/ferolith" --version)
[ "$app_version" = "ferolith ${version#ferolith-cli }" ] || fail "the two programs disagree: $app_version"
"$root/usr/bin/ferolith" --help | grep -q -- --screenshot || fail "ferolith --help does not list --screenshot"

picture=$tmp/Kunden.png
out=$("$root/usr/bin/ferolith-cli" render "$source/examples/masks/Kunden.dbm" "$picture")
[ "$out" = "$picture" ] || fail "render printed '$out', not the picture's path"
[ "$(head -c 8 "$picture" | od -An -tx1 | tr -d ' \n')" = 89504e470d0a1a0a ] || fail "render wrote no PNG"
read -r w h < <(od -An -j16 -N8 -tu1 "$picture" | awk '{print $1*16777216+$2*65536+$3*256+$4, $5*16777216+$6*65536+$7*256+$8}')
[ "$w" -ge 400 ] && [ "$h" -ge 300 ] || fail "the rendered mask is only ${w}x${h}"
echo "render: ${w}x${h}"

# Validators, offline. Hints count as failures too: a clean entry says nothing.
result=$(desktop-file-validate "$root/usr/share/applications/$id.desktop" 2>&1) \
    || fail "desktop-file-validate: $result"
[ -z "$result" ] || fail "desktop-file-validate: $result"
echo "desktop-file-validate: no findings"
appstreamcli validate --no-net --pedantic "$root/usr/share/metainfo/$id.metainfo.xml" \
    || fail "appstreamcli validate found problems in the metainfo"
appstreamcli validate-tree --no-net "$root" || fail "appstreamcli validate-tree found problems"

# The file type compiles into a MIME database and knows masks by name.
mkdir -p "$tmp/mime/packages"
cp "$root/usr/share/mime/packages/$id.xml" "$tmp/mime/packages/"
XDG_DATA_HOME=$tmp update-mime-database "$tmp/mime" || fail "update-mime-database rejected the file type"
[ -f "$tmp/mime/application/x-quorbex-mask.xml" ] || fail "the MIME database lacks application/x-quorbex-mask"
grep -q '^\*\.dbm$\|:\*\.dbm$' "$tmp/mime/globs2" || fail "the MIME database does not know *.dbm"

# Manual pages: intact, and free of formatting warnings where man is there.
for page in "$root"/usr/share/man/man1/*.gz "$root"/usr/share/man/de/man1/*.gz; do
    gzip -t "$page" || fail "$page is damaged"
    if command -v man >/dev/null; then
        warnings=$(LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -l "$page" 2>&1 >/dev/null)
        [ -z "$warnings" ] || fail "$page: $warnings"
    fi
done
echo "package checked"
