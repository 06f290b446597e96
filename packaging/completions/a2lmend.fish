# SPDX-License-Identifier: MIT
# fish completion: a2lmend [options] <A2L file> [<file to write>]

# Succeeds if that number of files stands before the word that is being typed.
function __a2lmend_files
    set -l words (commandline -opc)[2..-1]
    set -l count 0
    set -l skip 0
    for word in $words
        if test $skip -eq 1
            set skip 0
        else if contains -- $word -I --encoding --format
            set skip 1
        else if not string match --quiet --regex '^-.' -- $word
            set count (math $count + 1)
        end
    end
    test $count -eq $argv[1]
end

# The A2L files and folders among the matching files.
function __a2lmend_a2l_files
    complete -C "'' "(commandline -ct) | string match --regex --ignore-case '.*(?:\.a2l|/)$'
end

complete -c a2lmend -f
complete -c a2lmend -n '__a2lmend_files 0' -a '(__a2lmend_a2l_files)'
complete -c a2lmend -n '__a2lmend_files 1' -F
complete -c a2lmend -o I -x -a '(__fish_complete_directories)' -d 'folder to look for included files in'
complete -c a2lmend -l encoding -x -a 'ISO-8859-1 ISO-8859-15 windows-1252 UTF-8' -d 'encoding of the input'
complete -c a2lmend -l format -x -a 'text json sarif' -d 'how findings are printed'
complete -c a2lmend -l allow-outside -d 'also include files outside of the given folders'
complete -c a2lmend -l quiet -d 'print no findings'
complete -c a2lmend -s h -l help -d 'print help'
complete -c a2lmend -l version -d 'print the version'
