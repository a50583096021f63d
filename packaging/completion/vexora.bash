# Completion of vexora(1) for bash.
_vexora() {
    local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()
    case $before in
        --home | --shots | --allow-files) compopt -o filenames; mapfile -t COMPREPLY < <(compgen -d -- "$current"); return ;;
        --look) mapfile -t COMPREPLY < <(compgen -W "dark light" -- "$current"); return ;;
        --date | --var) return ;;
    esac
    if [[ $current == -* ]]; then
        local options="--help --home --look --play --version"
        [[ " ${COMP_WORDS[*]} " == *" --play "* ]] && options="--allow-files --date --home --keep-going --look --recovery --shots --var"
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
    else
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    fi
}
complete -F _vexora vexora
