#!/usr/bin/env bash
# usage: throwaway_debian.sh ARCHIVES COMMAND...
# Runs COMMAND as root, with the root folder of a small Debian as last argument: this machine's release from this
# machine's sources, what is essential and apt, nothing else. It is gone afterwards; packages that were downloaded stay
# in ARCHIVES.
set -euo pipefail
((EUID == 0)) || exec sudo --preserve-env=DISPLAY,XAUTHORITY "$0" "$@"

ARCHIVES=$1
shift
COMMAND=$(printf '%q ' "$@")
export ARCHIVES COMMAND
mkdir -p "$ARCHIVES"
release=$(sed -n 's/^VERSION_CODENAME=//p' /etc/os-release)

# shellcheck disable=SC2016 # apt-get and the hooks' shell expand these
apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' 'Origin: Debian' |
    mmdebstrap --quiet --mode=root --variant=apt --format=null --skip=download/empty,essential/unlink \
        --setup-hook='mkdir -p "$1/var/cache/apt" && cp -r "$ARCHIVES" "$1/var/cache/apt/archives"' \
        --customize-hook='eval "$COMMAND \"\$1\""' \
        --customize-hook='cp -u "$1"/var/cache/apt/archives/*.deb "$ARCHIVES"' \
        "$release" /dev/null -
