#!/usr/bin/env bash
# fetch.sh SOURCE: what packaging/fetch.sh lays out, of a package that is made here instead of fetched.
set -euo pipefail

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
root="$scratch/tree" build="$scratch/tree/build/release"
mkdir -p "$root/packaging" "$scratch/package"
say() { :; }
. "$1/packaging/fetch.sh"

printf 'fetched' >"$scratch/package/file"
npm() { tar -czf "$root/build/fetching-words/words.tgz" -C "$scratch" package && echo words.tgz; }
make_words() {
    touch "$scratch/ran"
    tr '[:lower:]' '[:upper:]' <"$1/unpacked/file" >"$1/words/made"
}

# try WHAT FETCHED MADE EXPECTED: fetches with the sums of these two texts.
try() {
    local ran=no laid=no
    rm -rf "$scratch/ran" "$build"
    {
        echo "unpacked/file $(printf '%s' "$2" | sha256sum | cut -d ' ' -f 1) words@1 file"
        echo "words/made $(printf '%s' "$3" | sha256sum | cut -d ' ' -f 1)"
    } >"$root/packaging/words-files.txt"
    fetch_set words
    [ ! -e "$scratch/ran" ] || ran=yes
    [ ! -e "$build/share/kiv/words/made" ] || laid=yes
    [ "ran $ran, laid out $laid" = "$4" ] || {
        echo "$1: ran $ran, laid out $laid, not $4"
        exit 1
    }
}

try "all as it should be" fetched FETCHED "ran yes, laid out yes"
try "another file was fetched" other FETCHED "ran no, laid out no"
try "another file was made" fetched OTHER "ran yes, laid out no"
