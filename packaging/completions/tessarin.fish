# fish completion for tessarin

set -l first 'test (count (commandline -opc)) -eq 1'
set -l file "$first; or contains -- (commandline -opc)[-1] --import --export"
set -l listing '__fish_contains_opt search list'
set -l files '(__fish_complete_suffix .json | string match -er "(\.json|/)(\t|\$)")'
complete -c tessarin -f
complete -c tessarin -n $first -l help -d 'Show a summary of the options'
complete -c tessarin -n $first -l version -d 'Show the version'
complete -c tessarin -n $first -l settings -d 'Open the settings'
complete -c tessarin -n $first -l toggle -d 'Switch expansion off or on'
complete -c tessarin -n $first -l quit -d 'End the running program'
complete -c tessarin -n $first -l allow -d 'Let Tessarin judge keys and write into other applications'
complete -c tessarin -n $first -l disallow -d 'Take that back'
complete -c tessarin -n $first -l list -d 'Print the own snippets'
complete -c tessarin -n $first -l add -x -d 'Add a snippet: trigger and text'
complete -c tessarin -n '__fish_contains_opt add' -l name -x -d 'What it is called'
complete -c tessarin -n '__fish_contains_opt add' -l keywords -x -d 'Further words to find it by'
complete -c tessarin -n $first -l remove -x -d 'Remove the snippets with that trigger'
complete -c tessarin -n $file -l import -r -F -d 'Add the snippets of a file or folder'
complete -c tessarin -n $file -l export -x -a $files -d 'Write the own snippets to a file'
complete -c tessarin -n $first -l search -x -d 'Print what matches'
complete -c tessarin -n $listing -l json -d 'Print it as JSON'
complete -c tessarin -n '__fish_contains_opt search' -l limit -x -d 'Print at most so many'
