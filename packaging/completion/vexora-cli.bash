# Completion of vexora-cli(1) for bash.
_vexora_cli_options() { # command, sub-command
    case $1 in
        check | tree) echo "--format --help --home" ;;
        export) echo "--format --help --home --out --strict" ;;
        save) echo "--format --help --home --out" ;;
        diff) echo "--help --home" ;;
        table) echo "--format --help --home --list --no-head --system" ;;
        play) echo "--allow-files --date --home --keep-going --recovery --var" ;;
        refdb)
            case $2 in
                build) echo "--data --help --out" ;;
                import) echo "--compounds --help" ;;
                add) echo "--formula --help --list --name --rn" ;;
                check) echo "--help --summary" ;;
                *) echo "--help" ;;
            esac
            ;;
        *) echo "--help --version" ;;
    esac
}

_vexora_cli() {
    local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    local command=${COMP_WORDS[1]} words=""
    COMPREPLY=()
    case $before in
        --home | --out | --data | --allow-files) compopt -o filenames; mapfile -t COMPREPLY < <(compgen -d -- "$current"); return ;;
        --format)
            words="text json jsonl"
            [[ $command == table ]] && words="tsv csv json"
            mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
            return
            ;;
        --date | --var | --rn | --formula | --name) return ;;
    esac
    if [[ $current == -* ]]; then
        ((COMP_CWORD == 1)) && command=""
        words=$(_vexora_cli_options "$command" "${COMP_WORDS[2]}")
    elif ((COMP_CWORD == 1)); then
        words="check diff export play refdb save table tree"
    elif ((COMP_CWORD == 2)) && [[ $command == refdb ]]; then
        words="add added build check import"
    fi
    if [[ -n $words ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
    else
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    fi
}
complete -F _vexora_cli vexora-cli
