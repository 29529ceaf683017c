#!/usr/bin/env bash
# Installs the Debian packages the build, the tests and the demo need; does nothing when all are present.
set -euo pipefail

packages=(
  build-essential cmake ninja-build ccache pkg-config clang-format
  lua5.1 liblua5.1-0-dev
  libboost-dev libboost-regex-dev libboost-date-time-dev
  libicu-dev libcairo2-dev libpango1.0-dev libpugixml-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  valgrind clang-14 libclang-rt-14-dev
  fonts-dejavu-core
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

cmd=(apt-get install -y --no-install-recommends "${missing[@]}")
if [ "$(id -u)" -ne 0 ]; then
  echo "Missing packages. Run as root:" >&2
  echo "  apt-get update && ${cmd[*]}" >&2
  exit 1
fi
export DEBIAN_FRONTEND=noninteractive
apt-get update -qq
"${cmd[@]}"
