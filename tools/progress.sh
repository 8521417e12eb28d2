# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
# Sourced by tools/setup.sh: long commands that tell how far they are.

progress_seconds=5 # between two lines, if the output is no terminal

# with_progress WHAT NEXT CMD...: runs a command of Ninja or apt-get, and tells how far it is: on a
# terminal in one line that moves, elsewhere in a line every few seconds. NEXT says what comes then.
# If the command fails, shows the end of its output, says where all of it is, and returns its code.
with_progress()
{
    local what=$1 next=$2 log code=0
    shift 2
    log=$(mktemp)
    "$@" 2>&1 | tee "$log" | show_progress "$what" "$next" || code=${PIPESTATUS[0]}
    if [ "$code" -ne 0 ]; then
        tail -n 100 "$log" >&2
        echo "$what failed; its whole output is in $log" >&2
        return "$code"
    fi
    rm -f "$log"
}

# package_step LINE: what apt-get did with a package, or 1 if the line tells of nothing.
package_step()
{
    case $1 in
    Get:*) echo "fetched" ;;
    "Unpacking "*) echo "unpacked" ;;
    "Setting up "*) echo "set up" ;;
    *) return 1 ;;
    esac
}

# Reads the lines of Ninja ("[12/231] ...") and those of apt-get for each package ("Get:12 ...", ...).
show_progress()
{
    local what=$1 next=$2 line state="" total="" step told=$SECONDS is_terminal=false
    local -A counts=()
    [ ! -t 2 ] || is_terminal=true
    local steps='^\[([0-9]+)/([0-9]+)\]' packages='^([0-9]+) upgraded, ([0-9]+) newly installed'
    while IFS= read -r line; do
        if [[ $line =~ $steps ]]; then
            state="${BASH_REMATCH[1]} of ${BASH_REMATCH[2]}"
        elif [[ $line =~ $packages ]]; then
            total=$((BASH_REMATCH[1] + BASH_REMATCH[2]))
            continue
        elif step=$(package_step "$line"); then
            counts[$step]=$((${counts[$step]:-0} + 1))
            state="${counts[$step]} of $total $step"
        else
            continue
        fi
        if $is_terminal; then
            printf '\r%s: %s, then %s \033[K' "$what" "$state" "$next" >&2
        elif ((SECONDS - told >= progress_seconds)); then
            printf '%s: %s, then %s\n' "$what" "$state" "$next" >&2
            told=$SECONDS
        fi
    done
    if [ -n "$state" ]; then
        ! $is_terminal || printf '\r' >&2
        printf '%s: %s, now %s\n' "$what" "$state" "$next" >&2
    fi
}
