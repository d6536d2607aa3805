# Completion of kestrune's arguments for fish.
set -l commands toggle open close quit status usage settings
set -l tools home nowPlaying clipboard captures calendar shelf aiUsage weather stocks timer teleprompter mirror note system
complete -c kestrune -f
complete -c kestrune -n "not __fish_seen_subcommand_from $commands" -a "$commands"
complete -c kestrune -n "not __fish_seen_subcommand_from $commands" -l open -xa "$tools" -d 'Open the notch after the start'
complete -c kestrune -n "not __fish_seen_subcommand_from $commands" -l version -d 'Print the version'
complete -c kestrune -n "not __fish_seen_subcommand_from $commands" -l help -d 'Print a summary'
complete -c kestrune -n '__fish_seen_subcommand_from open' -a "$tools"
complete -c kestrune -n '__fish_seen_subcommand_from status usage' -l json
complete -c kestrune -n '__fish_seen_subcommand_from usage' -l home -xa '(__fish_complete_directories)'
complete -c kestrune -n '__fish_seen_subcommand_from usage' -l now -x
complete -c kestrune -n '__fish_seen_subcommand_from settings; and not __fish_seen_subcommand_from open list get set reset' -a 'open list get set reset'
complete -c kestrune -n '__fish_seen_subcommand_from get set reset' -a "(kestrune settings list 2>/dev/null | string replace -r ' .*' '')"
