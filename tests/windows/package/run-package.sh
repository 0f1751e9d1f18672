#!/bin/sh
# run-package.sh BUILD CMAKE CPACK VERSION: makes the package twice, which must give the same bytes, and looks at it: it
# holds the files of package.contents and no others, the page of the workbench as it was given, its checksums and its list of
# contents hold, its pages are there as HTML with a search that finds each of their headings, its tools tell the version and
# find nothing wrong with it, and a dialog opens from it. With LYT_UPDATE set it writes package.contents instead.
set -u
build=$1
cmake=$2
cpack=$3
version=$4
here=$(cd "$(dirname "$0")" && pwd)
folder=$(mktemp -d) || exit 2
trap 'rm -rf "$folder"' EXIT
bad=0
complain() { echo "$1"; bad=1; }

# make NAME ZONE MASK: makes the package in a folder of that name, at a place with that time, under that mask for rights.
make() {
    (umask "$3" && TZ=$2 "$cpack" --config "$build/CPackConfig.cmake" -B "$folder/$1" >"$folder/$1.log" 2>&1) ||
        { cat "$folder/$1.log"; exit 1; }
}
# The package takes the page as it is, and what makes the page is not needed here.
mkdir "$folder/page"
echo '<!DOCTYPE html><title>A page</title>' >"$folder/page/workbench.html"
export LYT_WORKBENCH="$folder/page/workbench.html"

make first UTC 022
make second Asia/Tokyo 077
zip=lyt64-$version.zip
cmp "$folder/first/$zip" "$folder/second/$zip" || bad=1

cd "$folder" && "$cmake" -E tar xf "first/$zip" && cd "lyt64-$version" || exit 1
find . -type f | sed 's,^\./,,' | LC_ALL=C sort >../contents
if [ -n "${LYT_UPDATE:-}" ]; then
    cp ../contents "$here/package.contents"
else
    diff -u "$here/package.contents" ../contents || bad=1
fi
"$cmake" -E tar tf "../first/$zip" | grep -v '/$' | sed 's,^[^/]*/,,' | LC_ALL=C sort -c || complain "the entries are not sorted"

cmp "$LYT_WORKBENCH" workbench.html || bad=1
sha256sum --check --quiet --strict SHA256SUMS || bad=1
sed 's/^[^ ]*  //' SHA256SUMS >../summed
grep -vx SHA256SUMS ../contents | diff -u - ../summed || complain "SHA256SUMS tells of other files"

# Signed, the library works as before and has another sum; without its signature it is the same file again.
cp lyt64.dll ../unsigned.dll
openssl req -x509 -newkey rsa:2048 -nodes -keyout ../key.pem -out ../certificate.pem -subj /CN=lyt64 -days 1 2>../signing &&
    osslsigncode sign -certs ../certificate.pem -key ../key.pem -in ../unsigned.dll -out ../signed.dll >>../signing &&
    osslsigncode remove-signature -in ../signed.dll -out ../again.dll >>../signing &&
    cmp ../unsigned.dll ../again.dll || { cat ../signing; complain "the library cannot be signed, or not without a trace"; }
cp ../signed.dll lyt64.dll
sha256sum --check --quiet SHA256SUMS >../checked 2>&1 && complain "a signature does not change the sum"
"$here/../../../scripts/make-sums" . "$version"
sha256sum --check --quiet --strict SHA256SUMS || complain "make-sums does not write the sums again"
"$build/wine-run.sh" ./lytcall.exe text Buttons 001 >../call || { cat ../call; complain "the signed library does not work"; }
cp ../unsigned.dll lyt64.dll
"$here/../../../scripts/make-sums" . "$version"

"$cmake" --install "$build" --prefix "$folder/installed" >/dev/null || bad=1
diff -r "$folder/installed" . || bad=1

"$here/check-pages.py" || complain "the pages are not all there as HTML"
"$here/check-contents.py" "$version" || complain "lyt64.cdx.json does not list what is there"
grep -q "^# lyt64 $version\$" README.md || complain "README.md tells another version"

for tool in lytcall lytdlg; do
    told=$("$build/wine-run.sh" ./$tool.exe --version)
    [ "$told" = "$tool $version" ] || complain "$tool tells the version as \"$told\""
done
printf 'window\npress ok\n' >../steps
"$build/wine-run.sh" ./lytcall.exe symbol --script ../steps >../call
grep -q '^result = 2 (unchanged)' ../call || { cat ../call; complain "no dialog opens"; }
"$build/wine-run.sh" ./lytcall.exe doctor . --init samples/init --dialogs samples/dialogs >../judged || { cat ../judged; complain "the tools find something wrong with it"; }
exit $bad
