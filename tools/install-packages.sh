#!/usr/bin/env bash
# Installs the Debian packages of the named groups (build, wayland, test, bench, format) that are missing, with root or
# sudo.
# Touches nothing when all are there.
set -euo pipefail

group_packages() {
    case "$1" in
    build) echo build-essential cmake ninja-build qt6-base-dev qt6-svg-dev qt6-translations-l10n libsqlite3-dev libeigen3-dev libsuitesparse-dev libopenblas-dev fonts-liberation ;;
    wayland) echo qt6-wayland ;;
    test) echo libgtest-dev xvfb xauth openbox locales ;;
    bench) echo libbenchmark-dev qt6-tools-dev libqt6opengl6-dev ;; # the last is a piece of UiTools that no package asks for
    format) echo clang-format git ;;
    *)
        echo "install-packages.sh: unknown group $1" >&2
        return 2
        ;;
    esac
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echo "Root or sudo is needed for: $*" >&2
        return 1
    fi
}

missing=()
for group in "$@"; do
    packages=$(group_packages "$group")
    for package in $packages; do
        state=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)
        [ "$state" = installed ] || missing+=("$package")
    done
done

if [ "${#missing[@]}" -gt 0 ]; then
    echo "Installing ${missing[*]}"
    as_root apt-get update -q
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${missing[@]}"
fi

# The tests also run under the Italian locale, whose decimal comma must reach no number.
case " $* " in
*" test "*)
    if ! locale -a | grep -qix 'it_IT\.utf-\?8'; then
        as_root localedef -i it_IT -f UTF-8 it_IT.UTF-8
    fi
    ;;
esac
