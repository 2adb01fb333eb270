#!/usr/bin/env bash
# test-install.sh CMAKE BUILD SAMPLE: installs the program elsewhere, looks for its files there and starts it.
set -euo pipefail

cmake=$1
build=$2
sample=$3
source_root=$(cd "$(dirname "$0")/../.." && pwd)
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT

"$cmake" --install "$build" --prefix "$prefix" >/dev/null

failed=0
for file in \
    bin/lingomat \
    share/lingomat/{Example.lmt,ExampleGerman.lmt,marke.gif} \
    share/lingomat/help/{de,en}/contents.html \
    share/applications/org.lingomat.Lingomat.desktop \
    share/metainfo/org.lingomat.Lingomat.metainfo.xml \
    share/mime/packages/org.lingomat.Lingomat.xml \
    share/icons/hicolor/scalable/apps/org.lingomat.Lingomat.svg \
    share/doc/lingomat/copyright; do
    if [[ ! -s $prefix/$file ]]; then
        echo "not installed: $file"
        failed=1
    fi
done
((failed == 0))
exec "$source_root/scripts/smoke-start" "$prefix/bin/lingomat" "$sample"
