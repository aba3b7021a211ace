# bash completion for selvane-cli: the subcommands, then the options that each
# subcommand's own --help names, so the two never disagree.
_selvane_cli()
{
    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD-1]} program=${COMP_WORDS[0]}
    if [ "$COMP_CWORD" -eq 1 ]; then
        local subcommands
        subcommands=$("$program" --help 2>/dev/null | sed -n '/^Subcommands/,/^$/ s/^  \([a-z]\+\)  \+[A-Z].*/\1/p')
        COMPREPLY=($(compgen -W "$subcommands --help --version" -- "$cur"))
        return
    fi
    local help
    help=$("$program" "${COMP_WORDS[1]}" --help 2>/dev/null) || return
    case $(printf '%s\n' "$help" | sed -n "s/^ \+\(-[a-z?], \)\?$prev <\([a-z]\+\)>.*/\2/p") in
    file | path) COMPREPLY=($(compgen -f -- "$cur")) ;;
    dir) COMPREPLY=($(compgen -d -- "$cur")) ;;
    '')
        if [[ $cur == -* ]]; then
            COMPREPLY=($(compgen -W "$(printf '%s\n' "$help" | grep -o -- '--[a-z-]\+' | sort -u)" -- "$cur"))
        else
            COMPREPLY=($(compgen -f -- "$cur"))
        fi
        ;;
    esac
}
complete -o filenames -F _selvane_cli selvane-cli
