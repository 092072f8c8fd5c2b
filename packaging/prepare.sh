# Sourced by ./run, ./test, ./bench, .ci/run and check-deb.sh: installs what is missing, configures and
# builds. Says something only when it does something.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build="$root/build/release"

say() { printf '%s\n' "$*" >&2; }

as_root() {
    if [ "$(id -u)" = 0 ]; then "$@"; else sudo "$@"; fi
}

# Packages of the list that are not installed: those without a mark and, with an argument, those
# marked with it.
missing_packages() {
    comm -23 <(awk -v mark="${1:-}" '!/^#/ && NF && ($2 == "" || $2 == mark) { print $1 }' \
        "$root/packaging/debian-packages.txt" | sort) \
        <(dpkg-query -W -f '${Package} ${db:Status-Status}\n' |
            awk '$2 == "installed" { print $1 }' | sort)
}

install_packages() {
    local missing log
    missing=$(missing_packages "$@")
    [ -n "$missing" ] || return 0
    say "Installing $(wc -w <<<"$missing") Debian packages…"
    mkdir -p "$root/build"
    log="$root/build/packages.log"
    # shellcheck disable=SC2086 # one word a package
    if ! { as_root apt-get update &&
        as_root env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y --no-install-recommends $missing; } >"$log" 2>&1; then
        tail -n 20 "$log" >&2
        say "The packages could not be installed; the whole log is in build/packages.log."
        exit 1
    fi
}

# A compiler needs a fifth of what is allowed here, unless it has lost its way.
compile() (
    ulimit -v 6000000
    ninja -C "$build" -j "$(nproc)" "$@" >"$root/build/build.log" 2>&1
)

# g++ now and then writes a precompiled header that it dies of reading, and ccache would hand it out again:
# makes anew those of the folders in which the compiler crashed. Fails when it did not crash.
renew_headers() {
    local log="$root/build/build.log" folder headers=()
    grep -qE 'terminated program|internal compiler error|out of memory|memory exhausted' "$log" || return 1
    say "The compiler crashed; once more with new precompiled headers…"
    while read -r folder; do
        rm "$build/$folder/cmake_pch.hxx.gch" 2>/dev/null || continue
        headers+=("$folder/cmake_pch.hxx.gch")
    done < <(sed -n 's,^FAILED: \(.*\.dir\)/.*,\1,p' "$log" | sort -u)
    [ "${#headers[@]}" = 0 ] || CCACHE_RECACHE=1 compile "${headers[@]}"
}

# build_targets [TARGET...]: all of them when none is named.
build_targets() {
    local log="$root/build/build.log"
    # A clone in another folder compiles the same files: its results are shared.
    export CCACHE_BASEDIR="$root" CCACHE_NOHASHDIR=true
    export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
    mkdir -p "$root/build"
    if [ ! -f "$build/build.ninja" ]; then
        say "Configuring…"
        if ! (cd "$root" && cmake --preset release) >"$log" 2>&1; then
            tail -n 30 "$log" >&2
            exit 1
        fi
    fi
    case "$(ninja -C "$build" -n "$@" 2>/dev/null | tail -n 1)" in
    *'no work to do'*) return 0 ;;
    esac
    say "Building (log in build/build.log)…"
    if ! compile "$@" && ! { renew_headers && compile "$@"; }; then
        grep -E 'error|FAILED' -A 8 "$log" | head -n 60 >&2
        say "The build failed."
        exit 1
    fi
}

install_packages
. "$root/packaging/fetch.sh"
fetch_set speech
fetch_voice_client
