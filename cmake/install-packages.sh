#!/bin/sh
# install-packages.sh build [demo] [test]: installs what packages.txt lists for these purposes and this
# machine lacks. Says nothing and touches nothing when all of it is there.
set -eu
list=$(dirname "$0")/../packages.txt

wanted() { # manager, purposes…
    manager=$1
    shift
    for purpose in "$@"; do
        awk -v manager="$manager" -v purpose="$purpose" \
            '$1 == manager && $2 == purpose { print $3 }' "$list"
    done
}

is_installed() {
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2> /dev/null || true)" = installed ]
}

is_known() { apt-cache show --no-all-versions "$1" > /dev/null 2>&1; }

# The first of these, with | between them, for which a question is answered with yes.
one_of() { # alternatives, question
    for package in $(echo "$1" | tr '|' ' '); do
        if "$2" "$package"; then
            echo "$package"
            return 0
        fi
    done
    return 1
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo > /dev/null; then
        sudo "$@"
    else
        echo "Installing packages needs root: run \"$*\" yourself, or install sudo." >&2
        return 1
    fi
}

if [ "$(uname)" = Darwin ]; then
    if ! command -v brew > /dev/null; then
        echo "Install Homebrew first (https://brew.sh): the program's libraries come from it." >&2
        exit 1
    fi
    missing=$(wanted brew "$@" | while read -r package; do
        brew list --versions "$package" < /dev/null > /dev/null 2>&1 || echo "$package"
    done)
    # shellcheck disable=SC2086 # one word a package
    [ -z "$missing" ] || brew install $missing
elif command -v apt-get > /dev/null; then
    missing=$(wanted apt "$@" | while read -r alternatives; do
        one_of "$alternatives" is_installed > /dev/null || echo "$alternatives"
    done)
    if [ -n "$missing" ]; then
        echo "Installing:" $missing
        as_root apt-get update -q
        packages=$(for alternatives in $missing; do
            one_of "$alternatives" is_known || echo "$alternatives"
        done)
        # shellcheck disable=SC2086
        as_root env DEBIAN_FRONTEND=noninteractive \
            apt-get install -q -y --no-install-recommends $packages
    fi
else
    echo "Neither apt nor Homebrew is here; install what packages.txt lists by hand." >&2
fi
