#!/usr/bin/env bash
# tools/fuzz.sh [SECONDS [NAME...]]
#
# Looks with clang's libFuzzer for inputs that end a target of tests/fuzz: each target, or those
# named, for so many seconds (60), from the corpus of the tests and from what earlier runs found in
# build/fuzz/corpus. An input that ends one is left in build/fuzz/found, and ends the search. Short
# files that reach code which nothing in the corpus of the tests reaches go there, as few as do.
set -euo pipefail
cd "$(dirname "$(realpath "${BASH_SOURCE[0]}")")/.."

seconds=${1:-60}
shift || true
cmake --preset fuzz
cmake --build --preset fuzz

# The targets write small files by the million.
[[ -d /dev/shm ]] && export TMPDIR=/dev/shm
export UBSAN_OPTIONS=print_stacktrace=1

fuzz() {
  local program=build/fuzz/bin/fuzz_$1 kept=tests/fuzz/corpus/$1 all=build/fuzz/corpus/$1
  local longest=300 short
  [[ $1 == dictionary ]] && longest=500  # its table has 440 bytes
  mkdir -p "$all" build/fuzz/found
  # Leaks are looked for at the end: the state that stays between two inputs would let each one
  # be searched for them.
  "$program" -max_total_time="$seconds" -max_len=4096 -timeout=20 -detect_leaks=0 \
    -print_final_stats=1 -artifact_prefix="build/fuzz/found/$1-" "$all" "$kept"
  short=$(mktemp -d)
  find "$all" -type f -size -$((longest + 1))c -exec cp -t "$short" {} +
  # How often code runs is left out of account, or the files would be hundreds.
  "$program" -set_cover_merge=1 -use_counters=0 "$kept" "$short"
  rm -r "$short"
}

names=("$@")
if [[ ${#names[@]} == 0 ]]; then
  for program in build/fuzz/bin/fuzz_*; do names+=("${program##*/fuzz_}"); done
fi
for name in "${names[@]}"; do
  fuzz "$name"
done
