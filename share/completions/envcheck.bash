# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
# Completes envcheck in bash. Commands and options come from the program's own help.

_envcheck()
{
    local cur prev words cword
    _init_completion || return
    local program=${words[0]} commands command="" word
    commands=$("$program" --help 2>/dev/null | sed -n '1s/.*\[\([a-z|]*\)\]$/\1/p' | tr '|' ' ')
    for word in "${words[@]:1:cword-1}"; do
        [[ " $commands " != *" $word "* ]] || command=$word
    done
    case $prev in
        --platform) mapfile -t COMPREPLY < <(compgen -W "devices scripted" -- "$cur") ;;
        --redact) mapfile -t COMPREPLY < <(compgen -W "none personal hash" -- "$cur") ;;
        --format) mapfile -t COMPREPLY < <(compgen -W "text html json room map csv jsonl" -- "$cur") ;;
        --language)
            mapfile -t COMPREPLY < <(compgen -W "ar de en es fr ja ko pt_BR ru vi zh_CN zh_TW" -- "$cur")
            ;;
        --tour) _filedir -d ;;
        --scenario | --results | --report | --report-token-file | --diagnose | --files-from) _filedir ;;
        --server | --account | --nickname | --cdn | --report-url | --count | --port) ;;
        *)
            if [[ $cur == -* ]]; then
                mapfile -t COMPREPLY < <(compgen -W "$("$program" ${command:+"$command"} --help 2>/dev/null |
                    grep -oE '^  (-[a-z], )?--[a-z-]+' | grep -oE -- '--[a-z-]+')" -- "$cur")
            elif [ -z "$command" ]; then
                mapfile -t COMPREPLY < <(compgen -W "$commands" -- "$cur")
            elif [ "$command" = report ]; then
                _filedir
            fi
            ;;
    esac
} && complete -F _envcheck envcheck
