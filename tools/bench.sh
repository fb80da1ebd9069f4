# shellcheck shell=bash disable=SC2154 # root comes from lib.sh
install_packages build run bench
configure release -DQUILLON_BENCH=ON
build release
QT_QPA_PLATFORM=offscreen "$root/build/release/bench/quillon_bench"
xvfb-run -a -s '-screen 0 1280x800x24' python3 "$root/tools/bench_program.py" "$root/build/release" 60
