# shellcheck shell=bash disable=SC2154 # root comes from lib.sh
# Years of schedule in virtual time, optimised: what was due, made, skipped and why; lost and doubled have to be 0.
(($# <= 2)) || die "'soak' takes a number of years and a seed; see ./dev help"
install_packages build run test
configure soak
build soak quillon_soak
exec "$root/build/soak/tests/soak/quillon_soak" "${1:-10}" "${@:2}"
