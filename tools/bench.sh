# shellcheck shell=bash disable=SC2154 # root comes from lib.sh
install_packages build run bench
configure release -DQUILLON_BENCH=ON
build release
xvfb-run -a -s '-screen 0 1280x800x24' python3 -B "$root/tools/bench" "$root/build/release" "$@"
