# Sourced by prepare.sh: lays out what comes from npm rather than from Debian. Without it the build
# goes on, and the program says that the feature is not available.

# fetch_set NAME: takes the files of packaging/NAME-files.txt, checks each, and puts them into
# share/kiv/NAME of the build tree, all or none. Does nothing when they are there from this list.
# A function make_NAME adds what has to be made of them; it gets the folder where they are. Nothing that
# was fetched is run, and no file of it kept, before its sum is checked.
fetch_set() {
    local list="$root/packaging/$1-files.txt" log="$root/build/fetch-$1.log"
    ! fetched "$1" || return 0
    mkdir -p "$root/build"
    say "Fetching the files for $1…"
    if ! (flock 9 && { fetched "$1" || lay_out "$1"; }) 9>"$root/build/fetch.lock" >"$log" 2>&1; then
        say "They could not be fetched (log in build/fetch-$1.log); going on without."
    fi
}

fetched() { cmp -s "$root/packaging/$1-files.txt" "$build/share/kiv/$1/files.txt"; }

lay_out() {
    local name=$1 list="$root/packaging/$1-files.txt" work="$root/build/fetching-$1"
    command -v npm || install_packages fetch
    rm -rf "$work" && mkdir -p "$work/$name" && take_files "$list" "$work" &&
        check_sums "$list" "$work" 4 || return 1
    if declare -F "make_$name"; then
        "make_$name" "$work" && check_sums "$list" "$work" 2 || return 1
    fi
    if [ -d "$work/include" ]; then
        mkdir -p "$build/fetched" && rm -rf "$build/fetched/$name" &&
            mv "$work/include" "$build/fetched/$name" || return 1
    fi
    cp "$list" "$work/$name/files.txt" && mkdir -p "$build/share/kiv" &&
        rm -rf "$build/share/kiv/$name" && mv "$work/$name" "$build/share/kiv/" && rm -rf "$work"
}

# check_sums LIST WORK FIELDS: the files whose lines have so many fields.
check_sums() {
    awk -v fields="$3" '!/^#/ && NF == fields { print $2 "  " $1 }' "$1" |
        (cd "$2" && sha256sum --check --quiet)
}

# take_files LIST WORK: each package of the list is fetched once, each of its files put in its place.
take_files() {
    local list=$1 work=$2 package archive place of path
    for package in $(awk '!/^#/ && NF == 4 { print $3 }' "$list" | sort -u); do
        archive=$(npm pack --loglevel=error --ignore-scripts --fetch-retries=1 \
            --fetch-retry-mintimeout=1000 --fetch-timeout=30000 --pack-destination="$work" \
            "$package" | tail -n 1) || return 1
        mkdir "$work/package" && tar -xzf "$work/$archive" -C "$work/package" --strip-components=1 ||
            return 1
        while read -r place _ of path; do
            [ "$of" = "$package" ] || continue
            mkdir -p "$(dirname "$work/$place")" && mv "$work/package/$path" "$work/$place" ||
                return 1
        done <"$list"
        rm -rf "$work/package" "${work:?}/$archive"
    done
}

make_speech() {
    node "$root/packaging/speech-tokens.mjs" "$1/unpacked/vocabulary.mjs" >"$1/speech/tokens.txt"
}

# Without it the program does all but call. The script says why it is missing.
fetch_voice_client() {
    local folder="$build/share/kiv/vendor"
    if [ ! -f "$folder/LICENSES" ] && ! command -v npm >/dev/null; then
        (install_packages fetch) || true
    fi
    "$root/packaging/fetch-vendor.sh" "$folder" || true
}
