# Completion of calora-files for bash.
_calora_files() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]}
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W 'check diff report --help --version' -- "$current")
        return
    fi
    if [[ $previous == --language ]]; then
        local program folder file
        program=$(type -P "${COMP_WORDS[0]}") || return
        folder=$(dirname "$(readlink -f "$program")")
        [[ -d $folder/language ]] || folder=$folder/../lib/calora-configurator
        for file in "$folder"/language/"$current"*.json; do
            [[ -e $file ]] && file=${file##*/} && COMPREPLY+=("${file%.json}")
        done
        return
    fi
    if [[ $current == -* ]]; then
        local options='--language --fahrenheit --help'
        case $command in
        check) options+=' --json --no-pages' ;;
        diff) options+=' --json --default --paths' ;;
        report) options+=' --output' ;;
        esac
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
        return
    fi
    compopt -o filenames
    mapfile -t COMPREPLY < <(compgen -d -- "$current"; compgen -f -X '!*.json' -- "$current")
    if [[ $previous == -o || $previous == --output ]]; then
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    fi
}
complete -F _calora_files calora-files
