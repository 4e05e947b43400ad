# shellcheck shell=bash
# Completes the command lines of qdv12host and qdv12sim in bash. The programs themselves know what may be there.
_qdv12() {
    local candidate files=
    COMPREPLY=()
    while IFS= read -r candidate; do
        if [ "$candidate" = :files ]; then files=yes; else COMPREPLY+=("$candidate"); fi
    done < <("${1/#\~/$HOME}" __complete "${COMP_LINE:0:COMP_POINT}" "$2" 2>/dev/null)
    case ${COMPREPLY[0]} in
        '') [ -z "$files" ] || compopt -o default ;;
        *[=:]) compopt -o nospace ;;
    esac
    case ${COMPREPLY[*]} in *\ *) compopt -o filenames ;; esac
}
complete -F _qdv12 qdv12host qdv12sim
