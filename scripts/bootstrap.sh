#!/usr/bin/env bash
# Installs the Debian packages the project builds with, when any is missing. Safe to run again.
set -euo pipefail

packages=(cmake g++ make qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libgl-dev pkg-config libxml2-utils libjemalloc-dev "$@")
missing=()
for package in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "ok installed"; then
        missing+=("$package")
    fi
done
if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi
sudo=""
if [ "$(id -u)" -ne 0 ]; then
    sudo=sudo
fi
echo "Installing: ${missing[*]}"
$sudo apt-get update -q
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -q --no-install-recommends "${missing[@]}"
