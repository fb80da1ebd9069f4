# shellcheck shell=bash disable=SC2154 # root comes from lib.sh
# Every check runs, so that one call shows all there is to mend.
install_packages build run test lint
configure tidy
build tidy autogen

status=0
find_sources | xargs -0 clang-format --dry-run -Werror || status=1
yamllint -s -d "{extends: default, rules: {line-length: {max: 120}}}" "$root/.github" || status=1
shellcheck -x "$root/dev" "$root/.ci/run" "$root"/tools/*.sh "$root"/tools/*/*.sh "$root"/resources/completions/*.bash ||
  status=1
python3 "$root/tools/lint.py" "$root" || status=1
run-clang-tidy -quiet -j 2 -p "$root/build/tidy" "^(?!$root/build/)" || status=1
exit $status
