# shellcheck shell=bash disable=SC2154 # root comes from lib.sh
# Tests and fuzzers by clang++ with sanitizers, which takes half the time of g++; the programs by g++ too, since it makes
# the releases. Last the objects for macOS.
install_packages build run test
command -v npm >/dev/null || install_packages macos
configure sanitize
build sanitize
configure gcc
build gcc
status=0
(cd "$root" && ctest --preset sanitize) || status=1
python3 "$root/tools/lint.py" "$root" || status=1
python3 "$root/tools/check_macos.py" "$root" || status=1
exit $status
