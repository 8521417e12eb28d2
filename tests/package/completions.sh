#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
# What bash, zsh and fish offer for a line is what the program takes. Usage: completions.sh PROGRAM SOURCE_FOLDER
set -euo pipefail
program=$1
completions=$2/share/completions
export LC_ALL=C.UTF-8 PATH="${program%/*}:$PATH" HOME
HOME=$(mktemp -d)
trap 'rm -rf "$HOME"' EXIT
cd "$HOME"
touch one.json

# offered_SHELL WORD...: what the shell offers for the last word.
offered_bash()
{
    bash --norc -c '
        . /usr/share/bash-completion/bash_completion
        . "$0/envcheck.bash"
        COMP_WORDS=("$@") COMP_CWORD=$(($# - 1)) COMP_LINE="$*" COMP_POINT=${#COMP_LINE}
        _envcheck
        printf "%s\n" "${COMPREPLY[@]}"' "$completions" "$@"
}

# zsh offers all that fits the place and compares with the word itself.
offered_zsh()
{
    zsh -f -c '
        compadd() { [[ $1 != -- ]] || shift; print -l -- ${(M)@:#${words[CURRENT]}*} }
        _files() { print -l -- ${words[CURRENT]}*(N) }
        words=("$@") CURRENT=$#
        complete_it() { . $0_file }
        functions[complete_it]="$(<$completions/_envcheck)"
        complete_it' zsh "$@"
}

offered_fish()
{
    fish --no-config -c 'source $argv[1]; complete -C (string join " " -- $argv[2..])' "$completions/envcheck.fish" "$@" | cut -f1
}
export completions

failures=0
# expect "LINE" WORD...: exactly these are offered, by every shell.
expect()
{
    local line=$1 shell offered wanted words
    shift
    wanted=$(printf '%s\n' "$@" | sort)
    IFS=' ' read -ra words <<<"$line"
    [ "${line: -1}" != ' ' ] || words+=('')
    for shell in bash zsh fish; do
        offered=$("offered_$shell" "${words[@]}" | sed '/^$/d' | sort -u)
        if [ "$offered" != "$wanted" ]; then
            printf '%s, "%s": offered\n%s\nbut wanted\n%s\n\n' "$shell" "$line" "$offered" "$wanted"
            failures=1
        fi
    done
}

mapfile -t commands < <(envcheck --help | sed -n '1s/.*\[\([a-z|]*\)\]$/\1/p' | tr '|' '\n')
[ "${#commands[@]}" -ge 5 ] || { echo "The help names no commands"; exit 1; }
expect 'envcheck ' "${commands[@]}"
expect 'envcheck dev' devices
expect 'envcheck --re' --redact --report --report-token-file --report-url --results
expect 'envcheck devices --j' --json
expect 'envcheck serve --p' --port
expect 'envcheck report o' one.json
expect 'envcheck --report o' one.json
expect 'envcheck --report-token-file o' one.json
expect 'envcheck --redact p' personal
expect 'envcheck report --format js' json jsonl
languages=()
for file in "$completions"/../translations/envcheck_*.ts; do
    file=${file##*/envcheck_}
    languages+=("${file%.ts}")
done
expect 'envcheck --language ' "${languages[@]}"

# Each option of each command has its place: with a value, or without.
for command in "" "${commands[@]}"; do
    while read -r option; do
        for file in "$completions"/*; do
            grep -qE -- "(--|-l |[ (])$option\b" "$file" || { echo "${file##*/} doesn't know the value of --$option"; failures=1; }
        done
    done < <(envcheck ${command:+"$command"} --help | sed -nE 's/^  --([a-z-]+) <.*/\1/p')
done
exit $failures
