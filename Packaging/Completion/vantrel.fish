# Completion of vantrel for fish.

# Titles, one a line; ids instead where several profiles have one title. The shell quotes them.
function __vantrel_profiles
    vantrel list 2>/dev/null | awk '
      match($0, /  +[A-Za-z0-9.-]+\/(private|(chromium|firefox|safari):.*)$/) {
        titles[NR] = substr($0, 1, RSTART - 1); ids[NR] = substr($0, RSTART); sub(/^ +/, "", ids[NR])
        count[titles[NR]]++
      }
      END { for (row = 1; row <= NR; row++) if (row in titles) print count[titles[row]] == 1 ? titles[row] : ids[row] }'
end

# Whether a command has none of its arguments yet, options left aside.
function __vantrel_wants_profile
    set -l words (commandline -opc)
    contains -- "$words[2]" open link launcher
    or return 1
    set -l count 0
    set -l previous
    for word in $words[3..]
        if not string match -q -- '-*' $word; and test "$previous" != --output
            set count (math $count + 1)
        end
        set previous $word
    end
    test $count -eq 0 -a "$previous" != --output
end

complete -c vantrel -f
complete -c vantrel -n __fish_use_subcommand -l help -d 'Show the help'
complete -c vantrel -n __fish_use_subcommand -l version -d 'Print the version'
complete -c vantrel -n __fish_use_subcommand -a list -d 'List the profiles'
complete -c vantrel -n __fish_use_subcommand -a open -d 'Open a profile, with links or files'
complete -c vantrel -n __fish_use_subcommand -a link -d "Print a profile's link"
complete -c vantrel -n __fish_use_subcommand -a launcher -d "Make a profile's launcher"
complete -c vantrel -n __fish_use_subcommand -a doctor -d 'Tell where browsers were looked for'
complete -c vantrel -n __fish_use_subcommand -a settings -d "Open the app's settings"
complete -c vantrel -n __fish_use_subcommand -a menu -d "Open the app's menu at the pointer"
complete -c vantrel -n __fish_use_subcommand -a quit -d 'End the app'
complete -c vantrel -n '__fish_seen_subcommand_from list open link launcher doctor' -l help -d 'Show the help'
complete -c vantrel -n '__fish_seen_subcommand_from list doctor' -l json -d 'Print one JSON array'
complete -c vantrel -n '__fish_seen_subcommand_from list' -l all -d 'Also hidden profiles'
complete -c vantrel -n '__fish_seen_subcommand_from open' -l dry-run -d 'Print what would be started'
complete -c vantrel -n '__fish_seen_subcommand_from open' -l alert -d 'Let the app show a failure'
complete -c vantrel -n '__fish_seen_subcommand_from launcher' -l remove -d "Remove the profile's launcher"
complete -c vantrel -n '__fish_seen_subcommand_from launcher' -l output -x -a '(__fish_complete_directories)' -d 'Put it into a folder'
complete -c vantrel -k -n __vantrel_wants_profile -a '(__vantrel_profiles)'
complete -c vantrel -n '__fish_seen_subcommand_from open; and not __vantrel_wants_profile' -F
