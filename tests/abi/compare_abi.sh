#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
# A client that was built with the last release runs with this library: nothing that it used is gone or
# has changed. What was added doesn't count. A new release writes its own ABI down: --write.
# Usage: compare_abi.sh [--write] LIBRARY SOURCE_FOLDER
set -euo pipefail
write=false
if [ "$1" = --write ]; then
    write=true
    shift
fi
library=$1
source=$2
release=$source/tests/abi/EnvCheck-1.0.abi
current=$(mktemp)
trap 'rm -f "$current"' EXIT

abidw --headers-dir "$source/agent" --drop-private-types --exported-interfaces-only --no-show-locs \
    --no-corpus-path --no-comp-dir-path --no-elf-needed --no-parameter-names --type-id-style hash \
    --out-file "$current" "$library"
if $write; then
    cp "$current" "$release"
else
    abidiff --no-added-syms --drop-private-types "$release" "$current"
fi
