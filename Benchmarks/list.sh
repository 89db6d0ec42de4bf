#!/bin/sh
# Lists the profiles as `vantrel list` does, with the tools that a script has: what the program is measured against. It
# knows native packages only, assumes characters one column wide and names without control characters. Five processes:
# this shell, awk for the desktop entries, sqlite3, jq for the Local States, and jq for the Preferences that are needed.
set -eu
LC_ALL=C.UTF-8
export LC_ALL
here=${0%/*}
tab='	'
line='
'
config=${XDG_CONFIG_HOME:-$HOME/.config}
folders=${XDG_DATA_HOME:-$HOME/.local/share}:${XDG_DATA_DIRS:-/usr/local/share:/usr/share}

# Name, identifier, family, data folder, private window's name and programs of each browser that has an entry.
entries=$(awk -F "$tab" -v folders="$folders" '
    function read_entry(file,    text, status, inside) {
        name = program = trial = ""
        hidden = inside = 0
        while ((status = (getline text < file)) > 0) {
            if (text ~ /^\[/) {
                if (inside)
                    break
                inside = 1
            } else if (text ~ /^Name=/)
                name = substr(text, 6)
            else if (text ~ /^Exec=/) {
                program = substr(text, 6)
                sub(/ .*/, "", program)
                gsub(/"/, "", program)
            } else if (text ~ /^TryExec=/)
                trial = substr(text, 9)
            else if (text == "Hidden=true")
                hidden = 1
        }
        if (status >= 0)
            close(file)
        return status >= 0
    }
    BEGIN { count = split(folders, folder, ":") }
    FNR > 1 {
        for (number = 1; number <= count; ++number) {
            if (!read_entry(folder[number] "/applications/" $1))
                continue
            if (!hidden)
                printf "%s\t%s\t%s\t%s\t%s\t%s\t%s\n", name, $2, $3, $4, $5, program, trial
            break
        }
    }' "$here/browsers.tsv")

# The installed browsers; their profiles' folders as they are on the disk; and the databases' rows after their roots.
browsers=
profiles=
groups=
set --
IFS=$line
for entry in $entries; do
    IFS=$tab
    read -r name id family folder private program trial <<END
$entry
END
    command -v "$program" >/dev/null || continue
    [ -z "$trial" ] || command -v "$trial" >/dev/null || continue
    if [ "$family" = firefox ]; then
        data=$HOME/$folder
        for file in "$data/Profile Groups"/*.sqlite; do
            [ -f "$file" ] || break
            rows=$(sqlite3 -readonly -separator "$tab" "$file" 'select path, name from Profiles')
            groups=$groups$data$line$rows$line
            break
        done
    else
        data=$config/$folder
        for profile in "$data/Default" "$data/Profile "*; do
            [ ! -d "$profile" ] || profiles=$profiles$profile$line
        done
        [ ! -f "$data/Local State" ] || set -- "$@" "$data/Local State"
    fi
    browsers=$browsers$name$tab$id$tab$family$tab$data$tab$private$line
done

# Each profile's folder and its name, which is empty where Local State has none.
[ $# -gt 0 ] || set -- /dev/null
names=$(jq --null-input --raw-output --arg profiles "$profiles" '
    (reduce inputs as $state ({}; .[input_filename | rtrimstr("/Local State")] = $state.profile.info_cache)) as $caches
    | $profiles | rtrimstr("\n") | split("\n")[]
    | (split("/") | [(.[:-1] | join("/")), .[-1]]) as [$data, $folder]
    | . + "\t" + ($caches[$data][$folder].name // "")' "$@")

set --
IFS=$line
for profile in $names; do
    case $profile in
        *"$tab") [ ! -f "${profile%"$tab"}/Preferences" ] || set -- "$@" "${profile%"$tab"}/Preferences" ;;
    esac
done

[ $# -gt 0 ] || set -- /dev/null
exec jq --null-input --raw-output --arg browsers "$browsers" --arg names "$names" --arg groups "$groups" '
    def lines: rtrimstr("\n") | split("\n")[] | select(. != "") | split("\t");
    def rank: if . == "Default" then 0 else (ltrimstr("Profile ") | tonumber + 1) end;
    def folder_name: split("/")[-1];
    def firefox_profile: [if .[1] == "" then .[0] | folder_name else .[1] end, .[0]];
    (reduce inputs as $preferences ({}; .[input_filename | rtrimstr("/Preferences")] = $preferences.profile.name))
        as $fallbacks
    | (reduce ($names | lines) as [$path, $name] ({};
        ($path | folder_name) as $folder
        | (if $name == "" then $fallbacks[$path] // $folder else $name end) as $shown
        | .[$path | rtrimstr("/" + $folder)] += [[$shown, $folder]])) as $chromium
    | (reduce ($groups | lines) as $row ({};
        if ($row | length) == 1 then .root = $row[0] else .profiles[.root] += [$row] end) | .profiles) as $firefox
    | [[$browsers | lines] | sort_by(.[0] | ascii_downcase)[] as [$browser, $id, $family, $data, $private]
        | (if $family == "firefox" then
              ($firefox[$data] // [])[] | firefox_profile | [.[0], "firefox:\($data)/\(.[1])"]
          else
              ($chromium[$data] // []) | sort_by(.[1] | rank)[] | [.[0], "chromium:\(.[1])"]
          end), [$private, "private"]
        | ["\($browser) – \(.[0])", "\($id)/\(.[1])"]]
    | (map(.[0] | length) | max) as $width
    | .[] | .[0] + (" " * ($width - (.[0] | length)) // "") + "  " + .[1]' "$@"
