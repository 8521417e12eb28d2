#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
# Walks through every page and state in every language, and on a sharp screen, at once: a tour waits
# far more than it works. Fails if one doesn't get through or finds a text that can't be read.
# Usage: tours.sh PROGRAM FOLDER LANGUAGE...
set -uo pipefail
program=$1
folder=$2
shift 2
export QT_QPA_PLATFORM=offscreen QT_FONT_DPI=96

tour()
{
    local name=$1 language=$2 scale=$3 output status=0
    output=$(QT_SCALE_FACTOR=$scale "$program" --platform scripted --language "$language" --tour "$folder/$name" 2>&1) || status=$?
    printf '%s: exit code %s\n' "$name" "$status"
    [ "$status" -eq 0 ] || printf '%s\n' "$output"
    return "$status"
}

rm -rf "$folder"
mkdir -p "$folder"
jobs=()
for language in "$@"; do
    tour "$language" "$language" 1 &
    jobs+=($!)
done
for language in en zh_CN; do
    tour "$language@2x" "$language" 2 &
    jobs+=($!)
done
failed=0
for job in "${jobs[@]}"; do
    wait "$job" || failed=$((failed + 1))
done
echo "${#jobs[@]} tours, $failed failed"
exit $((failed > 0))
