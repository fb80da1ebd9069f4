# shellcheck shell=bash disable=SC2154 # root comes from lib.sh
# Tests by g++ with sanitizers, then by clang++ the fuzzers and the programs, which only have to compile; the tests are
# compiled by clang++ in ./dev lint. Last the objects for macOS.
install_packages build run test
command -v npm >/dev/null || install_packages macos
configure sanitize
build sanitize
configure clang
build clang fuzzers quillon quillonctl tmutil quillon_shots
status=0
(cd "$root" && ctest --preset sanitize) || status=1
(cd "$root" && ctest --preset fuzz) || status=1
python3 "$root/tools/lint.py" "$root" || status=1
python3 "$root/tools/check_macos.py" "$root" || status=1
exit $status
