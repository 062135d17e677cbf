#!/usr/bin/env bash
# Installs the Debian packages the build and the tests need; quiet when all are present.
set -euo pipefail

pakete=(
    cmake ninja-build g++ make pkg-config
    libgtest-dev libgmock-dev libbenchmark-dev
    qt6-base-dev libgl-dev
    xvfb xauth clang-format
    qt6-translations-l10n fonts-liberation poppler-utils
    python3
    clang-14 libclang-rt-14-dev
)

fehlend=()
for p in "${pakete[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
        fehlend+=("$p")
    fi
done
[ ${#fehlend[@]} -eq 0 ] && exit 0

als_root=()
[ "$(id -u)" -ne 0 ] && als_root=(sudo)
echo "Installiere: ${fehlend[*]}"
"${als_root[@]}" apt-get update -qq
DEBIAN_FRONTEND=noninteractive "${als_root[@]}" apt-get install -y -qq --no-install-recommends "${fehlend[@]}" >/dev/null
