# SPDX-License-Identifier: MIT
# fish completion: a2l2json <A2L file> <JSON file>

# Succeeds if the word that is being typed has that number; the first word is 1.
function __a2l2json_word
    test (count (commandline -opc)) -eq $argv[1]
end

# The A2L files and folders among the matching files.
function __a2l2json_a2l_files
    complete -C "'' "(commandline -ct) | string match --regex --ignore-case '.*(?:\.a2l|/)$'
end

complete -c a2l2json -f
complete -c a2l2json -n '__a2l2json_word 1' -a '(__a2l2json_a2l_files)'
complete -c a2l2json -n '__a2l2json_word 2' -F
