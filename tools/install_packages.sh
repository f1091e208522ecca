#!/usr/bin/env bash
# Installs what is missing of the given Debian packages, as root or with sudo. Does nothing, quickly,
# when all are there.
set -euo pipefail

missing=()
for package in "$@"; do
  status=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)
  [ "$status" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
  if ! command -v sudo >/dev/null; then
    echo "Mancano dei pacchetti e sudo: installare come root ${missing[*]}" >&2
    exit 1
  fi
  as_root=(sudo)
fi
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
  apt-get install -y -qq --no-install-recommends "${missing[@]}"
