#!/usr/bin/env bash
# Takes the pictures of the guide anew, into data/help/pictures: the windows of the program as built here,
# and its pages in Chromium. The old ones are replaced when all have been taken. Installs what is missing.
set -euo pipefail
cd "$(dirname "$(realpath "${BASH_SOURCE[0]}")")/.."

isolated=(unshare --map-root-user --mount)
if ! "${isolated[@]}" mount -t tmpfs tmpfs /home 2>/dev/null; then
  echo "$0: no folder can be mounted over /home for this program alone: user namespaces are not allowed here" \
    "(sysctl kernel.unprivileged_userns_clone, or a container without the right to mount)" >&2
  exit 1
fi

source tools/packages.sh
tools/install_packages.sh "${build_packages[@]}" "${test_packages[@]}"
cmake --preset release -DBUILD_TESTING=ON
cmake --build --preset release --target window_pictures telar telarium_folder

build=$PWD/build/release
pictures=$PWD/data/help/pictures
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
taken=$work/pictures
mkdir "$taken"

# Some windows show the program folder: it has the name that a user's has, where nobody else sees it. The
# build and the new pictures, which may lie below /home too, are reached by open folders.
"${isolated[@]}" bash -euc '
  exec 3<"$1" 4<"$2"
  mount -t tmpfs tmpfs /home
  mkdir -p /home/anna/.local/share
  cd /
  HOME=/home/anna /proc/self/fd/3/bin/window_pictures /proc/self/fd/3/share/telarium \
    /home/anna/.local/share/telarium /proc/self/fd/4' \
  bash "$build" "$taken"

take_page() {  # COMMAND WIDTH HEIGHT
  "$build/bin/telar" --cartella "$build/share/telarium" "$1" "A tavola.tlrm" --uscita "page_$1.html"
  root=()
  if [ "$(id -u)" -eq 0 ]; then root=(--no-sandbox); fi  # the browser refuses its sandbox to root
  chromium --headless=new "${root[@]}" --user-data-dir="$work/profile" --hide-scrollbars \
    --window-size="$2,$3" --screenshot="$taken/page_$1.png" "file://$work/page_$1.html"
  [ -s "$taken/page_$1.png" ]
}
cp "data/Archivio cruciverba/A tavola.tlrm" "$work"
cd "$work"
take_page html 1000 780
take_page form 1000 780

find "$pictures" -name '*.png' -delete
mv "$taken"/*.png "$pictures"
