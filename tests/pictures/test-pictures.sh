#!/usr/bin/env bash
# test-pictures.sh TAKE_PICTURES HELP: takes the pictures anew and expects those that the help has.
set -euo pipefail

take=$1
help=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/home"
HOME=$work/home XDG_CONFIG_HOME=$work/home QT_QPA_PLATFORM=offscreen "$take" "$work" >"$work/output" 2>&1 || {
    cat "$work/output"
    exit 1
}
for language in en de; do
    diff <(cd "$help/$language/pictures" && ls) <(cd "$work/$language/pictures" && ls) || {
        echo "$language: the help and tests/pictures have different pictures; scripts/pictures takes them anew"
        exit 1
    }
done
