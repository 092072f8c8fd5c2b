#!/usr/bin/env bash
# check-deb.sh [--lint]: makes the Debian package of the release build, lets lintian look at it and,
# unless that is all that is asked for, proves it in a clean root: installs it there with everything it
# depends on, opens the window off screen, asks a question, and removes it without a trace.
# The clean root needs root, debootstrap and a Debian mirror; KIV_ROOT keeps one for the next time.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. packaging/prepare.sh

lint_only=false
[ "${1:-}" != --lint ] || lint_only=true

say "Comparing what the views import with what the package asks for"
lacking=$(/usr/lib/qt6/libexec/qmlimportscanner -rootPath src -rootPath plugins \
    -importPath "/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/qt6/qml" |
    sed -n 's|.*"path": "\(/usr/[^"]*\)".*|\1/qmldir|p' | xargs dpkg -S | cut -d : -f 1 | sort -u |
    comm -23 - <(grep -v '^#' packaging/debian/depends.txt | sort))
if [ -n "$lacking" ]; then
    say "packaging/debian/depends.txt lacks:" "$lacking"
    exit 1
fi

say "Making the package"
build_targets kiv-packaging kiv-tour
rm -rf "$build/package"
(cd "$build" && cpack) >"$root/build/package.log" 2>&1 || {
    tail -n 20 "$root/build/package.log" >&2
    exit 1
}
package=$(ls "$build"/package/kiv_*.deb)
say "$(basename "$package"), $(du -h "$package" | cut -f 1)"

say "Looking at it with lintian"
lintian --allow-root --fail-on error --suppress-tags bad-distribution-in-changes-file "$package"
! $lint_only || exit 0

if [ "$(id -u)" != 0 ] || ! command -v debootstrap >/dev/null; then
    say "The clean root was left out: it needs root and debootstrap."
    exit 0
fi

clean=${KIV_ROOT:-$(mktemp -d)}
chmod 755 "$clean" # an ordinary user opens the window in there
leave() { [ -n "${KIV_ROOT:-}" ] || rm -rf --one-file-system "$clean"; }
trap leave EXIT
# A root of its own, not a changed one (there, programs may still shut their processes in), with no
# processes but its own.
# shellcheck disable=SC2016
enter='mount --rbind "$0" "$0" && cd "$0" && mount -t proc proc proc &&
    mount -t tmpfs -o mode=1777 tmpfs dev/shm && pivot_root . . &&
    umount -l . && exec chroot . "$@"'
inside() {
    env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive \
        unshare --mount --propagation private --pid --fork --kill-child sh -c "$enter" "$clean" "$@"
}

if [ ! -e "$clean/etc/debian_version" ]; then
    say "Making a clean root"
    debootstrap --variant=minbase bookworm "$clean" ${KIV_MIRROR:+"$KIV_MIRROR"} \
        >"$root/build/debootstrap.log" 2>&1 || {
        tail -n 5 "$root/build/debootstrap.log" >&2
        exit 1
    }
fi
say "Installing"
cp "$package" "$clean/tmp/kiv.deb"
inside apt-get update -q >"$root/build/install.log" 2>&1
inside apt-get install -y -q --no-install-recommends /tmp/kiv.deb >>"$root/build/install.log" 2>&1 || {
    tail -n 20 "$root/build/install.log" >&2
    exit 1
}

say "Opening the window and asking"
# Nothing but the program's own dependencies is there: no bus, no display, no home of anybody.
inside userdel --remove visitor >/dev/null 2>&1 || true # of a root that was kept
inside useradd --create-home --shell /bin/sh visitor
# shellcheck disable=SC2016 # all of it is for the person's own shell
person='cd; export QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software XDG_RUNTIME_DIR=$HOME; chmod 700 .
    serves() { ls -l /proc/[0-9]*/exe 2>/dev/null | grep -q kiv-sandbox; }'
as_person() { inside su visitor -c "$person; $1"; }
as_person 'timeout 60 kiv --version'
as_person 'kiv & kiv=$!
    for second in $(seq 60); do ! serves || break; sleep 1; done
    serves || { cat .local/state/kiv/kiv.log; exit 1; }
    kill $kiv; wait $kiv || true
    sleep 2; ! serves'
# The tour is no part of the package, nor is what it is driven by: it uses the window as a person
# does, on what is installed.
inside apt-get install -y -q --no-install-recommends libqt6test6 >>"$root/build/install.log" 2>&1
install -m 755 "$build/bin/kiv-tour" "$clean/usr/bin/kiv-tour"
as_person 'timeout 300 kiv-tour pictures && test -s pictures/report.png'
as_person 'printf "| Month | Spend |\n|---|---|\n| May | 4 |\n| June | 6 |\n" |
    kiv-canvas render --question "Spend by month" -o answer.png - && test -s answer.png'
as_person '! command -v kiv-speech || { echo "{\"end\":true}" | timeout 60 kiv-speech | grep ready; }'
rm "$clean/usr/bin/kiv-tour"
inside userdel --remove visitor 2>/dev/null || true

say "Removing"
inside dpkg -L kiv >"$root/build/package-files.txt"
inside apt-get purge -y -q kiv >>"$root/build/install.log" 2>&1
# Folders that others have as well stay; nothing else may, and nothing that the program has made.
left=$({
    while read -r path; do
        [ ! -e "$clean$path" ] || inside dpkg -S "$path" >/dev/null 2>&1 || echo "$path"
    done <"$root/build/package-files.txt"
    find "$clean/etc" "$clean/usr" "$clean/var/lib" "$clean/home" -xdev \( -name kiv -o \
        -name 'kiv[.-]*' -o -name 'ai.kiv*' \)
})
if [ -n "$left" ]; then
    say "This was left behind:" "$left"
    exit 1
fi
say "The package installs, works and leaves nothing behind."
