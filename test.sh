#!/usr/bin/env bash
# Builds everything with warnings as errors and runs all tests, once plainly and once under address and
# undefined-behaviour sanitizers; those of what runs in several threads also under the thread sanitizer.
# Installs what is missing.
set -euo pipefail
cd "$(dirname "$(realpath "${BASH_SOURCE[0]}")")"

source tools/packages.sh
tools/install_packages.sh "${build_packages[@]}" "${test_packages[@]}"

for preset in release asan tsan; do
  echo "== $preset"
  cmake --preset "$preset" -DBUILD_TESTING=ON
  cmake --build --preset "$preset"
  ctest --preset "$preset"
done
