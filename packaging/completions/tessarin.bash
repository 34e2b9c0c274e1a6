# bash completion for tessarin

_tessarin() {
  local word=${COMP_WORDS[COMP_CWORD]} options
  COMPREPLY=()
  if ((COMP_CWORD == 1)); then
    options="--help --version --settings --toggle --quit --allow --disallow --list --add --remove --import --export --search"
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
    return
  fi
  case ${COMP_WORDS[1]} in
    --import)
      ((COMP_CWORD == 2)) || return
      compopt -o filenames
      mapfile -t COMPREPLY < <(compgen -f -- "$word")
      ;;
    --export)
      ((COMP_CWORD == 2)) || return
      compopt -o filenames
      mapfile -t COMPREPLY < <(compgen -f -X '!*.json' -- "$word"; compgen -d -- "$word")
      ;;
    --list)
      mapfile -t COMPREPLY < <(compgen -W "--json" -- "$word")
      ;;
    --add)
      ((COMP_CWORD < 4)) || mapfile -t COMPREPLY < <(compgen -W "--name --keywords" -- "$word")
      ;;
    --search)
      ((COMP_CWORD < 3)) || mapfile -t COMPREPLY < <(compgen -W "--json --limit" -- "$word")
      ;;
  esac
}
complete -F _tessarin tessarin
