# shellcheck shell=bash
install_packages lint
find_sources | xargs -0 clang-format -i
