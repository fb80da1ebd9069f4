# shellcheck shell=bash
# Completion of quillonctl(1) for bash.

_quillonctl()
{
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]} offers=''
    local durations='30m 1h 2h 4h 8h 12h 1d 2d 1w'
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        offers='status destinations next history doctor backup stop pause resume skip postpone retry skip-retry rules settings
            --help --version'
    elif [[ $previous == --disk ]]; then
        # A line is an identifier, the disk's name, and whether it was used last.
        mapfile -t COMPREPLY < <(quillonctl destinations 2>/dev/null | sed 's/^[^ ]*  //; s/  (last used)$//' |
            while IFS= read -r name; do
                [[ $name != "$word"* ]] || printf '%q\n' "$name"
            done)
        return
    else
        case $command in
            status) offers='--watch --json' ;;
            next) offers='--count --from --json' ;;
            history) offers='--count --json' ;;
            backup) offers='--disk --json' ;;
            pause) offers="$durations --until --json" ;;
            postpone) offers="$durations --json" ;;
            rules) offers='add remove --json' ;;
            destinations | doctor | stop | resume | skip | retry | skip-retry | settings) offers='--json' ;;
        esac
        case $previous in
            add) offers='every-day weekdays Monday Tuesday Wednesday Thursday Friday Saturday Sunday' ;;
            remove | --until | --count | --from) offers='' ;;
        esac
    fi
    mapfile -t COMPREPLY < <(compgen -W "$offers" -- "$word")
}

complete -F _quillonctl quillonctl
