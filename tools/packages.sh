# The Debian packages that the project needs, for run.sh and test.sh.
build_packages=(g++ cmake ninja-build xz-utils qt6-base-dev libqt6svg6-dev qt6-translations-l10n
  libcurl4-openssl-dev ca-certificates libsqlite3-dev libx11-dev fonts-liberation
  fonts-dejavu-core)
test_packages=(libgtest-dev libbenchmark-dev clang-format-14 poppler-utils
  chromium chromium-driver python3-selenium dpkg-dev file man-db desktop-file-utils appstream)
