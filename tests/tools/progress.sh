#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
# What ./run and ./test say while they install and build, in a pipe.
set -euo pipefail
cd "$(dirname "$0")/../.."
. tools/progress.sh
progress_seconds=0

expect()
{
    if [ "$2" != "$3" ]; then
        printf '%s: expected "%s", got "%s"\n' "$1" "$2" "$3" >&2
        exit 1
    fi
}

ninja_like() { printf '%s\n' "[1/3] Building a" "a warning" "[2/3] Building b"; }
apt_like()
{
    printf '%s\n' "1 upgraded, 1 newly installed, 0 to remove" "Get:1 a" "Get:2 b" \
        "Unpacking a (2.0) over (1.9)" "Setting up a (2.0)" "Unpacking b (1.0)" "Setting up b (1.0)"
}
packages_told()
{
    printf 'Packages: %s of 2 %s, then the build\n' 1 fetched 2 fetched 1 unpacked 1 "set up" 2 unpacked 2 "set up"
    printf 'Packages: 2 of 2 set up, now the build'
}
failing() { ninja_like; echo "no such file"; return 3; }

expect "a build" $'Build: 1 of 3, then the tests\nBuild: 2 of 3, then the tests\nBuild: 2 of 3, now the tests' \
    "$(with_progress Build "the tests" ninja_like 2>&1)"
expect "packages" "$(packages_told)" "$(with_progress Packages "the build" apt_like 2>&1)"
expect "nothing to tell" "" "$(with_progress Build "the tests" true 2>&1)"

code=0
output=$(with_progress Build "the tests" failing 2>&1) || code=$?
expect "the code of a failure" 3 "$code"
expect "the end of its output" 1 "$(grep -cx "no such file" <<<"$output")"
log=${output##* }
expect "the log" "$(failing || true)" "$(<"$log")"
rm "$log"
