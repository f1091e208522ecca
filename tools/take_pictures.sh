#!/usr/bin/env bash
# Takes the pictures of the guide anew, into data/help/pictures: the windows of the program as built here,
# and its pages in Chromium. Installs what is missing.
set -euo pipefail
cd "$(dirname "$(realpath "${BASH_SOURCE[0]}")")/.."

source tools/packages.sh
tools/install_packages.sh "${build_packages[@]}" "${test_packages[@]}"
cmake --preset release -DBUILD_TESTING=ON
cmake --build --preset release --target window_pictures telar telarium_data

bin=$PWD/build/release/bin
data=$PWD/build/release/share/telarium
pictures=$PWD/data/help/pictures
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
find "$pictures" -name '*.png' -delete

# Some windows show the program folder: it has the name that a user's has, where nobody else sees it.
unshare --map-root-user --mount bash -euc '
  mount -t tmpfs tmpfs /home
  mkdir -p /home/anna/.local/share
  HOME=/home/anna "$1" "$2" /home/anna/.local/share/telarium "$3"' \
  bash "$bin/window_pictures" "$data" "$pictures"

take_page() {  # COMMAND WIDTH HEIGHT
  "$bin/telar" --cartella "$data" "$1" "A tavola.tlrm" --uscita "page_$1.html"
  root=()
  if [ "$(id -u)" -eq 0 ]; then root=(--no-sandbox); fi  # the browser refuses its sandbox to root
  chromium --headless=new "${root[@]}" --user-data-dir="$work/profile" --hide-scrollbars \
    --window-size="$2,$3" --screenshot="$pictures/page_$1.png" "file://$work/page_$1.html"
}
cp "data/Archivio cruciverba/A tavola.tlrm" "$work"
cd "$work"
take_page html 1000 780
take_page form 1000 780
