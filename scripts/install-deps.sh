#!/usr/bin/env bash
# Installs the Debian packages Ferolith needs to build, test and run, but only
# those that are missing, so a prepared machine needs no network.
set -euo pipefail

packages=(
    cmake ninja-build g++ ccache pkg-config
    qt6-base-dev qt6-base-dev-tools libgl-dev
    libqt6sql6-sqlite libqt6sql6-psql qt6-image-formats-plugins qt6-qpa-plugins
    fonts-dejavu-core fonts-liberation2 qt6-tools-dev libqt6opengl6-dev
    qt6-l10n-tools qt6-translations-l10n
    dpkg-dev librsvg2-bin desktop-file-utils appstream shared-mime-info
    libsqlite3-dev zlib1g-dev postgresql
    clang
)

missing=()
for p in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$p")
    fi
done

if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

echo "Installiere fehlende Pakete: ${missing[*]}"
sudo_cmd=()
if [ "$(id -u)" -ne 0 ]; then
    sudo_cmd=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq
"${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
