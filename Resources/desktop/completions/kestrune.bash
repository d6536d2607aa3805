# Completion of kestrune's arguments for bash.
_kestrune() {
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} words=
    local tools='home nowPlaying clipboard captures calendar shelf aiUsage weather stocks timer teleprompter mirror note system'
    case ${COMP_WORDS[1]-}:$COMP_CWORD:$previous in
        *:1:*) words='--open toggle open close quit status usage settings --version --help' ;;
        --open:2:* | open:2:*) words=$tools ;;
        status:2:*) words='--json' ;;
        usage:*:--home) compopt -o dirnames; return ;;
        usage:*:--now) return ;;
        usage:*) words='--json --home --now' ;;
        settings:2:*) words='open list get set reset' ;;
        settings:3:get | settings:3:set | settings:3:reset) words=$(kestrune settings list 2>/dev/null | cut -d ' ' -f 1) ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}
complete -F _kestrune kestrune
