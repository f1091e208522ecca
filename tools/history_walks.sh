#!/bin/sh
# Long random walks over the history of the document and over the commands that change it, and kills
# at random moments, with the tests of a build: tools/history_walks.sh [BUILD] [COMMANDS] [KILLS]
set -eu
build=${1:-build/release}
TELARIUM_WALK_COMMANDS=${2:-10000} TELARIUM_WALK_KILLS=${3:-300} \
  exec "$build/bin/core_tests" --gtest_filter='HistoryWalks.*:CommandWalk.*'
