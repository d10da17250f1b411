#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Makes sure that Debian packages are there: installs what is missing where it may, else says exactly what is missing.
#   tools/ensure_packages.sh PACKAGE...
set -euo pipefail

missing=()
for package in "$@"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q '^install ok installed$'; then
        missing+=("$package")
    fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=()
if [ "$(id -u)" -ne 0 ]; then
    if command -v sudo >/dev/null && sudo -n true 2>/dev/null; then
        sudo=(sudo -n)
    else
        echo "Missing packages: ${missing[*]}" >&2
        echo "Install them with:  apt-get install ${missing[*]}" >&2
        exit 1
    fi
fi
echo "Installing: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
if ! { "${sudo[@]}" apt-get update -qq && "${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"; } \
    >/tmp/quarn-packages.$$.log 2>&1; then
    tail -n 20 /tmp/quarn-packages.$$.log >&2
    rm -f /tmp/quarn-packages.$$.log
    echo "Could not install: ${missing[*]}" >&2
    exit 1
fi
rm -f /tmp/quarn-packages.$$.log
