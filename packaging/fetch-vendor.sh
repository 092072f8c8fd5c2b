#!/usr/bin/env bash
# fetch-vendor.sh FOLDER: puts the browser client of the voice service, as the workspace server hands it
# out, into FOLDER, with the licences of all that is in it. Does nothing when it is there already.
#
# Every archive is checked before anything of it is read or run, and the result as well.
set -euo pipefail

script=elevenlabs-client.1.21.0.js
script_sum=b744061e9d468844faf77d66e7cd876eddd09646d8e2bbe2c686befa9635d457

# name@version, SHA-256 of its archive, file that holds its licence. The first two make the script;
# the second carries the rest inside itself.
packages="
@elevenlabs/client@1.21.0   e2fa52c399d05bb573456f3d96edc4a3d422f7a8bf87af2357d9377cd836c4d2 LICENSE
livekit-client@2.23.0       993eafb83afb4c566bb388108ad6469bf499d76200014c96c35fe3b39fee859d LICENSE
@livekit/mutex@1.1.1        7351cd2b33360c1187d3f8fbf20647f4a9c6b63b26132651288677000388027a LICENSE
@livekit/protocol@1.52.1    81778df877bf4cbe5c55c7bec460b52aef3c64ea67fd8501bef751d1c2839b1a LICENSE
@bufbuild/protobuf@1.10.1   fb3994714b44282407a1317b084949921d881df03393bacff2c799e474d85007 dist/esm/google/varint.js
events@3.3.0                2c30dd630b58299bdfaac8688f763c6f312d29779c500b1e3701a1d4fb3b534b LICENSE
jose@6.2.17                 367aaae5b1529eeac73c77999283dd095f7d866afbd492e36634b8c7e93f06fc LICENSE.md
loglevel@1.9.2              9d9aadc0cb581318551ba42f04fe336e3876b42a294cae2d80500e49bdf728ee LICENSE-MIT
machina@7.0.1               1c6fcd310cc5ebed8bc951cd84c2ddcfc6509d8d4cb012b23620f31203808086 LICENSE
sdp@3.2.2                   16cb5b3ad5428756234c5d9e2e685fa1f7b0f2e63eb6304344944299920311f4 LICENSE
sdp-transform@2.15.0        b1015dc1df8d9a6eaf919947106f3dd2049953bade2b6df0283ce6c02090cfef LICENSE
tslib@2.8.1                 66f635d5eeabae44807534976913a102cf615b9a045368359c9f79ae6ee2119e LICENSE.txt
typed-emitter@2.1.0         89b18bc5949a43ec667139d198342e7013b48ea3e0e65961af98639f3b038cd4 LICENSE
webrtc-adapter@9.0.6        361e50645a020ab2f598b5ea740ab81e49db32a22e1c588ecfde36ce874b428e LICENSE.md
"
# The bundler, one for each kind of machine.
case "$(uname -m)" in
aarch64)
    bundler="@esbuild/linux-arm64@0.28.2 a96dbfa41d3ef5dbd1ef22b1c10d5187be9267e86093a870f06402a7ec931596 -"
    ;;
*)
    bundler="@esbuild/linux-x64@0.28.2 9573bb2233aab0f9ea7647d5cca9726113cc1768de61d66b17267f4db84488f6 -"
    ;;
esac

folder=${1:?the folder to fill}
scratch=

give_up() {
    printf '%s\n' "The voice client could not be fetched ($*): the embedded workspace will have no calls." >&2
    exit 1
}

sum_of() { sha256sum "$1" | cut -d ' ' -f 1; }

# Each archive lands unpacked under node_modules, where the bundler looks.
unpack() {
    local package sum rest name archive
    while read -r package sum rest; do
        [ -n "$package" ] || continue
        name=${package%@*}
        archive=${name#@}
        archive=${archive//\//-}-${package##*@}.tgz
        [ -f "$archive" ] || give_up "$package is missing"
        [ "$(sum_of "$archive")" = "$sum" ] || give_up "$package is not what it was"
        mkdir -p "node_modules/$name"
        tar -xzf "$archive" -C "node_modules/$name" --strip-components=1
    done
}

licences() {
    local package sum file name
    while read -r package sum file; do
        [ -n "$package" ] || continue
        name=${package%@*}
        printf '%s\n\n' "== ${name} ${package##*@} =="
        case "$file" in
        *.js) sed -n '/^[^/]/q; s|^// \{0,1\}||p' "node_modules/$name/$file" ;;
        *) cat "node_modules/$name/$file" ;;
        esac
        printf '\n\n'
    done
}

if [ -f "$folder/$script" ] && [ -f "$folder/LICENSES" ] &&
    [ "$(sum_of "$folder/$script")" = "$script_sum" ]; then
    exit 0
fi
command -v npm >/dev/null || give_up "npm is not installed"
mkdir -p "$folder"
folder=$(cd "$folder" && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"

mapfile -t names < <(printf '%s\n%s\n' "$packages" "$bundler" | awk 'NF { print $1 }')
npm pack --silent --ignore-scripts --fetch-retries=1 --fetch-timeout=30000 "${names[@]}" \
    >npm.log 2>&1 || give_up "npm pack: $(tail -n 1 npm.log)"
printf '%s\n%s\n' "$packages" "$bundler" | unpack || exit 1

printf '%s\n' 'import { Conversation } from "@elevenlabs/client";' \
    'window.__ElevenConversation = Conversation;' >entry.js
"node_modules/${bundler%%@0*}/bin/esbuild" entry.js --bundle --format=iife --target=chrome102 \
    --minify --legal-comments=none --log-level=error --outfile="$script" ||
    give_up "it could not be bundled"
[ "$(sum_of "$script")" = "$script_sum" ] || give_up "the bundle is not what it was"
printf '%s\n' "$packages" | licences >LICENSES
mv "$script" LICENSES "$folder/"
