# shellcheck shell=bash disable=SC2154 # root comes from lib.sh
# Tests by g++ with sanitizers, then by clang++ the fuzzers. Last the objects for macOS, which are clang's too; it
# compiles what only Linux has in ./dev lint.
install_packages build run test
command -v npm >/dev/null || install_packages macos
configure sanitize
build sanitize
configure fuzz
build fuzz fuzzers
status=0
(cd "$root" && ctest --preset sanitize) || status=1
(cd "$root" && ctest --preset fuzz) || status=1
python3 "$root/tools/lint.py" "$root" || status=1
python3 "$root/tools/check_macos.py" "$root" || status=1
exit $status
