#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
# Builds the library against the minimal engine and walks through the check on it.
# Usage: build_and_run.sh SOURCE_FOLDER BUILD_FOLDER
set -euo pipefail
source=$1
build=$2

cmake -G Ninja -S "$source/tests/external-engine" -B "$build/engine" -DCMAKE_CXX_COMPILER_LAUNCHER=ccache
cmake --build "$build/engine"
cmake -G Ninja -S "$source" -B "$build/library" -DENVCHECK_ENGINE=external \
    -DClassroomEngine_DIR="$build/engine" -DENVCHECK_WARNINGS_AS_ERRORS=ON
cmake --build "$build/library" --target EnvCheck
"$source/tests/abi/exported_symbols.sh" "$build/library/lib/libEnvCheck.so"
cmake -G Ninja -S "$source/tests/external-engine/program" -B "$build/program" \
    -DClassroomEngine_DIR="$build/engine" -DENVCHECK_SOURCE_DIR="$source" \
    -DENVCHECK_LIBRARY="$build/library/lib/libEnvCheck.so" -DCMAKE_CXX_COMPILER_LAUNCHER=ccache
cmake --build "$build/program"
QT_QPA_PLATFORM=offscreen "$build/program/run_check"
