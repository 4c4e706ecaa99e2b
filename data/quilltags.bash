# Completion for quilltags.
_quilltags() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command= known i
  local commands="text check repair export concordance summary agree picture"
  for ((i = 1; i < COMP_CWORD; i++)); do
    for known in $commands; do
      [ "${COMP_WORDS[i]}" = "$known" ] && { command=$known; break 2; }
    done
  done
  case $before in
    --to) mapfile -t COMPREPLY < <(compgen -W "csv jsonld xmi" -- "$word"); return ;;
    --by) mapfile -t COMPREPLY < <(compgen -W "user session file" -- "$word"); return ;;
    --match) mapfile -t COMPREPLY < <(compgen -W "exact overlap" -- "$word"); return ;;
    --width) return ;;
  esac
  local options="--help -o --output --force"
  case $command in
    "") options="--help --version" ;;
    check | summary) options+=" --tags --csv" ;;
    repair | picture) options+=" --tags" ;;
    export) options+=" --tags --to" ;;
    concordance) options+=" --tags --width" ;;
    agree) options+=" --tags --csv --by --match" ;;
  esac
  if [[ $word == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
  elif [ -z "$command" ]; then
    mapfile -t COMPREPLY < <(compgen -W "$commands" -- "$word")
  else
    compopt -o filenames
    mapfile -t COMPREPLY < <(compgen -f -- "$word")
  fi
}
complete -F _quilltags quilltags
