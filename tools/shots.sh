# shellcheck shell=bash disable=SC2154 # root comes from lib.sh
install_packages build run test shots
configure sanitize
build sanitize quillon_shots

# A desktop of its own, whose service draws what the program tells the user unasked.
notifications() {
    local theme=Adwaita
    [[ $scheme == light ]] || theme=Adwaita:dark
    # shellcheck disable=SC2016 # the inner shell's
    env -u LANGUAGE LC_ALL="$locale" GTK_THEME=$theme GDK_SCALE="$screen_scale" GDK_DPI_SCALE="$text_scale" \
        xvfb-run -a -s '-screen 0 2400x1200x24' dbus-run-session -- bash -c '
            /usr/lib/notification-daemon/notification-daemon &
            "$@"
            status=$?
            kill $!
            exit $status' bash "$shots" "$folder/$setup" "$text_scale" "$scheme"
}

# A folder for each set-up of the system, and all pictures of it in two sheets beside it. Each gets a process of its
# own: language, scale and the fonts that go with them are settled once, at its start. What is enlarged would make sheets
# beyond what Debian lets ImageMagick use.
folder=${1:-$root/build/shots}
shots=$root/build/sanitize/tools/shots/quillon_shots
export LSAN_OPTIONS=suppressions=$root/tests/support/leaks.txt:print_suppressions=0
while read -r setup locale screen_scale text_scale; do
    mkdir -p "$folder/$setup"
    env -u LANGUAGE LC_ALL="$locale" QT_SCALE_FACTOR="$screen_scale" \
        "$shots" "$folder/$setup" "$text_scale" </dev/null 2>"$folder/$setup/log" || die "$setup: $(<"$folder/$setup/log")"
    for scheme in light dark; do
        notifications </dev/null >"$folder/$setup/log" 2>&1 || die "$setup: $(<"$folder/$setup/log")"
        montage -pointsize 20 -label '%t' "$folder/$setup/$scheme"-*.png -resize $((100 / screen_scale))% \
            -tile 4x -geometry '+6+6' "$folder/sheet-$setup-$scheme.png"
    done
done <<'END'
en en_US.UTF-8 1 1
de de_DE.UTF-8 1 1
fr fr_FR.UTF-8 1 1
es es_ES.UTF-8 1 1
it it_IT.UTF-8 1 1
nl nl_NL.UTF-8 1 1
pt_BR pt_BR.UTF-8 1 1
ja ja_JP.UTF-8 1 1
zh_CN zh_CN.UTF-8 1 1
en-200-percent en_US.UTF-8 2 1
de-200-percent de_DE.UTF-8 2 1
en-large-text en_US.UTF-8 1 2
de-large-text de_DE.UTF-8 1 2
END
