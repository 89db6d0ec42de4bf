# shellcheck shell=bash
# Completion of vantrel for bash.

# Titles, one a line; ids instead where several profiles have one title.
_vantrel_profiles() {
  vantrel list 2>/dev/null | awk '
    match($0, /  +[A-Za-z0-9.-]+\/(private|(chromium|firefox|safari):.*)$/) {
      titles[NR] = substr($0, 1, RSTART - 1); ids[NR] = substr($0, RSTART); sub(/^ +/, "", ids[NR])
      count[titles[NR]]++
    }
    END { for (row = 1; row <= NR; row++) if (row in titles) print count[titles[row]] == 1 ? titles[row] : ids[row] }'
}

# Takes a word's quotes away without running what it holds, as far as the word was typed.
_vantrel_unquoted() {
  local word=$1 text='' quote='' character backslash=\\
  local -i at
  for ((at = 0; at < ${#word}; at++)); do
    character=${word:at:1}
    if [[ $character == "$backslash" && $quote != "'" ]]; then
      at+=1
      # Between double quotes a backslash quotes only these.
      [[ $quote == '"' && ${word:at:1} != [\"\\\$\`] ]] && text+=$backslash
      text+=${word:at:1}
    elif [[ -n $quote && $character == "$quote" ]]; then
      quote=''
    elif [[ -z $quote && $character == ["'\""] ]]; then
      quote=$character
    else
      text+=$character
    fi
  done
  printf '%s' "$text"
}

# Those of the candidates, one a line, that begin with the word, quoted as it is.
_vantrel_offer() {
  local word=$1 text candidate quoted
  text=$(_vantrel_unquoted "$word"; printf .)
  while IFS= read -r candidate; do
    [[ $candidate == "${text%.}"* ]] || continue
    # Not by the option for file names everywhere: without quotes around it that leaves "$HOME" as it is.
    printf -v quoted %q "$candidate"
    [[ $word == [\"\']* ]] && quoted=$candidate
    COMPREPLY+=("$quoted")
  done
  [[ $word == [\"\']* ]] && compopt -o filenames
  __ltrim_colon_completions "$word"
}

_vantrel() {
  local cur prev words cword
  _init_completion -n := || return
  local command=${words[1]-} options='' word
  local -i index arguments=0
  if [[ $cword == 1 ]]; then
    mapfile -t COMPREPLY < <(
      compgen -W 'list open link launcher doctor settings menu quit --help --version' -- "$cur")
    return
  fi
  case $command in
    list) options='--json --all --help' ;;
    open) options='--dry-run --alert --help' ;;
    link) options='--help' ;;
    launcher) options='--remove --output --help' ;;
    doctor) options='--json --help' ;;
    *) return ;;
  esac
  if [[ $command == launcher && $prev == --output ]]; then
    _filedir -d
    return
  fi
  if [[ $cur == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$cur")
    return
  fi
  for ((index = 2; index < cword; index++)); do
    word=${words[index]}
    [[ $word == -* || ($command == launcher && ${words[index - 1]} == --output) ]] || arguments+=1
  done
  case $command:$arguments in
    open:0 | link:0 | launcher:0)
      _vantrel_offer "$cur" < <(_vantrel_profiles)
      ;;
    open:*) _filedir ;;
  esac
} &&
  complete -F _vantrel vantrel
