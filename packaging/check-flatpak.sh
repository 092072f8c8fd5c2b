#!/usr/bin/env bash
# check-flatpak.sh: what can be told of the Flatpak manifest without its runtime: flatpak-builder
# knows everything in it, and the folders that it builds from are there. Whether it builds is not
# told.
set -euo pipefail
manifest=$(realpath "$(dirname "${BASH_SOURCE[0]}")")/flatpak/ai.kiv.Desktop.yml

scratch=$(mktemp -d) # it leaves a folder where it runs
trap 'rm -r "$scratch"' EXIT
cd "$scratch"
complaints=$(flatpak-builder --show-manifest "$manifest" 2>&1 >/dev/null) || true
if [ -n "$complaints" ]; then
    printf '%s\n' "$complaints" >&2
    exit 1
fi
flatpak-builder --show-deps "$manifest" | while read -r source; do
    cd "$(dirname "$manifest")"
    [ -e "$source" ] || { echo "$manifest: there is no $source" >&2; exit 1; }
done
