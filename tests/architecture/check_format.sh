#!/usr/bin/env bash
# Fails when a C++ source is not formatted as .clang-format says. $1: the clang-format to ask.
set -euo pipefail
find src tests bench -name '*.cpp' -o -name '*.h' | xargs "$1" --dry-run -Werror
