#!/bin/sh
# Whether the pictures of the guide can still be taken, and are those that it has, in their sizes:
#   pictures_test.sh WINDOW_PICTURES DATA_FOLDER
# Pictures of the pages, page_*.png, are taken by tools/take_pictures.sh itself, in a browser.
set -eu
kept=$(dirname "$0")/../../data/help/pictures
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
"$1" "$2" "$folder/telarium" "$folder/pictures"

sizes() {  # FOLDER; of what is no picture, what it is
  (cd "$1" && file --no-pad -- *) | grep -v '^page_' | cut -d, -f1,2
}
sizes "$folder/pictures" >"$folder/taken"
sizes "$kept" >"$folder/kept"
if ! diff "$folder/kept" "$folder/taken"; then
  echo "the pictures of the guide (<) are not those that would be taken (>): tools/take_pictures.sh"
  exit 1
fi
