#!/usr/bin/env bash
# check-flatpak.sh: what can be told of the Flatpak manifest without its runtime: flatpak-builder
# knows everything in it, the folders that it builds from are there, and with its options the program
# can be configured. Whether it builds and runs is not told.
set -euo pipefail
packaging=$(realpath "$(dirname "${BASH_SOURCE[0]}")")
manifest=$packaging/flatpak/ai.kiv.Desktop.yml

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

# Options that CMake has never heard of would have no effect there. The paths in them are the builder's.
mapfile -t options < <(flatpak-builder --show-manifest "$manifest" 2>/dev/null | python3 -c '
import json, sys
for module in json.load(sys.stdin)["modules"]:
    if module["name"] == "kiv":
        print(*module["config-opts"], sep="\n")' |
    sed "s#=/app#=$scratch/app#; s#=/run/build#=$scratch/run#")
if ! cmake -G Ninja -S "$packaging/.." -B "$scratch/build" "${options[@]}" >"$scratch/log" 2>&1 ||
    grep -q 'not used by the project' "$scratch/log"; then
    tail -n 20 "$scratch/log" >&2
    exit 1
fi
