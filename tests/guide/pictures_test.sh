#!/bin/sh
# Whether the pictures of the guide can still be taken, and are those that it has:
#   pictures_test.sh WINDOW_PICTURES DATA_FOLDER
set -eu
kept=$(dirname "$0")/../../data/help/pictures
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
"$1" "$2" "$folder/telarium" "$folder/pictures"
for picture in "$folder"/pictures/*.png; do
  [ -e "$kept/$(basename "$picture")" ] || { echo "not in the guide's folder: $picture"; exit 1; }
done
