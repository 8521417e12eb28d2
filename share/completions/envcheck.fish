# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
# Completes envcheck in fish. Commands and options come from the program's own help.

function __envcheck_commands
    envcheck --help 2>/dev/null | sed -n '1s/.*\[\([a-z|]*\)\]$/\1/p' | tr '|' '\n'
end

# The command of the line so far, if it has one.
function __envcheck_command
    set -l commands (__envcheck_commands)
    for word in (commandline -opc)[2..]
        if contains -- $word $commands
            echo $word
        end
    end
end

function __envcheck_options
    envcheck (__envcheck_command) --help 2>/dev/null | grep -oE '^  (-[a-z], )?--[a-z-]+' | grep -oE -- '--[a-z-]+'
end

function __envcheck_takes
    contains -- --$argv[1] (__envcheck_options)
end

# An option with a value, and what is offered for that.
function __envcheck_value
    complete -c envcheck -n "__envcheck_takes $argv[1]" -l $argv[1] $argv[2..]
end

complete -c envcheck -f
complete -c envcheck -n 'not count (__envcheck_command) >/dev/null' -a '(__envcheck_commands)'
complete -c envcheck -n 'string match -q -- "-*" (commandline -ct)' -a '(__envcheck_options)'
complete -c envcheck -n 'string match -q report (__envcheck_command)' -F
__envcheck_value platform -x -a 'devices scripted'
__envcheck_value redact -x -a 'none personal hash'
__envcheck_value format -x -a 'text html json room map csv jsonl'
__envcheck_value language -x -a 'ar de en es fr ja ko pt_BR ru vi zh_CN zh_TW'
__envcheck_value tour -x -a '(__fish_complete_directories)'
for name in scenario results report report-token-file diagnose files-from
    __envcheck_value $name -r -F
end
for name in server account nickname cdn report-url count port
    __envcheck_value $name -x
end
