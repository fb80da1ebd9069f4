# shellcheck shell=bash disable=SC2154 # root comes from lib.sh
# The package for Debian, hardened as Debian's own are; with --check everything that is expected of it.
check=no
case $# in
0) ;;
*) [[ $# -eq 1 && $1 == --check ]] || die "'package' takes --check or nothing; see ./dev help"; check=yes ;;
esac

install_packages build package
folder=$root/build/package
debian_flags() {
    (cd "$root" && DEB_BUILD_MAINT_OPTIONS=hardening=+all DEB_CXXFLAGS_STRIP=-g dpkg-buildflags --get "$1")
}
configure package -DCMAKE_CXX_FLAGS="$(debian_flags CXXFLAGS) $(debian_flags CPPFLAGS)" \
    -DCMAKE_EXE_LINKER_FLAGS="$(debian_flags LDFLAGS)"
rm -rf "$folder"/*.deb "$folder/newer"
build package package
package=$(echo "$folder"/*.deb)
echo "dev: made $package"
[[ $check == yes ]] || exit 0

install_packages package-check
# The same again as the next release of the package, to be upgraded to.
(cd "$folder" && cpack -D CPACK_DEBIAN_PACKAGE_RELEASE=2 -B "$folder/newer" >/dev/null)
python3 -B "$root/tools/package" "$package"
xvfb-run -a -s '-screen 0 1280x800x24' \
    "$root/tools/package/throwaway_debian.sh" "$folder/archives" python3 -B "$root/tools/package/lifecycle.py" \
    "$package" "$folder/newer/"*.deb
