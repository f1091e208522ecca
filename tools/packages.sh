# The Debian packages that the project needs, for run.sh and test.sh.
build_packages=(g++ cmake ninja-build xz-utils)
test_packages=(libgtest-dev libbenchmark-dev clang-format-14)
