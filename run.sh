#!/usr/bin/env bash
# Builds Telarium and starts the desktop with FILE. Without a display it shows the program's main job in the
# terminal instead: takes FILE, or a new crossword from the first model, fills it whole with common
# Italian words and prints it. Installs what is missing.
#   ./run.sh [FILE]
set -euo pipefail

if [ $# -gt 1 ]; then
  echo "Uso: ./run.sh [FILE]" >&2
  exit 2
fi
crossword=${1:+$(realpath -- "$1")}
cd "$(dirname "$(realpath "${BASH_SOURCE[0]}")")"

source tools/packages.sh
tools/install_packages.sh "${build_packages[@]}"

log=build/run.log
mkdir -p build
if ! { cmake --preset release -DBUILD_TESTING=OFF &&
  cmake --build --preset release --target telarium telar telarium_data; } >"$log" 2>&1; then
  tail -n 40 "$log" >&2
  echo "La compilazione non è riuscita; tutto il resoconto è in $log" >&2
  exit 1
fi

export TELARIUM_CARTELLA="$PWD/build/release/share/telarium"
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec build/release/bin/telarium ${crossword:+"$crossword"}
fi
echo "Nessuno schermo (DISPLAY e WAYLAND_DISPLAY mancano): ecco un cruciverba composto nel terminale."

telar=build/release/bin/telar
trap 'exit 130' INT  # telar ends in order on Ctrl+C; what follows shall not run
output="$PWD/build/composto.tlrm"

if [ -z "$crossword" ]; then
  crossword="$PWD/build/nuovo.tlrm"
  "$telar" nuovo "$crossword" --modello 1
fi

# As a reader likes it best: every word with a clue, as long as that is possible.
status=0
for clues in obbligatorie preferite; do
  status=0
  report=$("$telar" componi "$crossword" "$output" --definizioni "$clues" 2>build/componi.log) || status=$?
  [ "$status" -eq 3 ] || [ "$status" -eq 1 ] || break
done
if [ "$status" -ne 0 ]; then
  cat build/componi.log >&2
  awk -F'\t' '
    $1 == "colpevole" { printf "  senza parole: %d %s, %s\n", $2, ($3 == "O" ? "orizzontale" : "verticale"), $7 }
    $1 == "rimedio" { printf "  rimedio provato: %s %s %s\n", $2, $3, $4 }' <<<"$report" >&2
  exit "$status"
fi

echo
"$telar" griglia "$output" | sed 's/\*/#/g; s/./& /g; s/^/  /'
echo
echo "  N.  Parola"
"$telar" parole "$output" |
  awk -F'\t' '{ printf "%4d %s %s\n", $1, ($2 == "O" ? "orizz." : "vert. "), $6 }'
echo
awk -F'\t' '
  $1 == "voci" { entries = $2 }
  $1 == "punteggio" { mean = $2 }
  $1 == "definite" { clued = $2 }
  $1 == "in tutto" { printf "%d voci, %d con definizione, punteggio medio %s, in %s secondi\n", entries, clued, mean, $2 }' \
  <<<"$report"
echo "Cruciverba scritto in $output"
