#!/usr/bin/env bash
# Builds Telarium and starts the desktop with FILE. Without a display it shows the program's main job in the
# terminal instead: takes FILE, or a new crossword from the first model, fills it from the Italian
# dictionary and prints it. Installs what is missing.
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
echo "Nessuno schermo (DISPLAY e WAYLAND_DISPLAY mancano): ecco l'estrazione automatica nel terminale."

telar=build/release/bin/telar
trap 'exit 130' INT  # telar ends in order on Ctrl+C; what follows shall not run
output="$PWD/build/estratto.tlrm"

if [ -z "$crossword" ]; then
  crossword="$PWD/build/nuovo.tlrm"
  "$telar" nuovo "$crossword" --modello 1
fi

# First a fill without any dead end, for a few seconds at the most; then whatever comes.
if ! "$telar" estrai "$crossword" "$output" --infinito --tentativi 4000 2>build/estrai.log; then
  if ! "$telar" estrai "$crossword" "$output" 2>build/estrai.log; then
    cat build/estrai.log >&2
    exit 1
  fi
  echo "$(wc -l <build/estrai.log) vicoli ciechi accettati: alcune parole non sono nel dizionario."
fi

echo
"$telar" griglia "$output" | sed 's/\*/#/g; s/./& /g; s/^/  /'
echo
echo "  N.  Parola"
"$telar" parole "$output" |
  awk -F'\t' '{ printf "%4d %s %s\n", $1, ($2 == "O" ? "orizz." : "vert. "), $6 }'
echo
echo "Cruciverba scritto in $output"
