# SPDX-License-Identifier: MIT
# fish completion: a2l2json <A2L file> <JSON file>

# Succeeds when the word that is being typed has that number, the first one being 1.
function __a2l2json_word
    test (count (commandline -opc)) -eq $argv[1]
end

# The A2L files and the folders among the files that fit.
function __a2l2json_a2l_files
    complete -C "'' "(commandline -ct) | string match --regex --ignore-case '.*(?:\.a2l|/)$'
end

complete -c a2l2json -f
complete -c a2l2json -n '__a2l2json_word 1' -a '(__a2l2json_a2l_files)'
complete -c a2l2json -n '__a2l2json_word 2' -F
