#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
# Builds and installs the library on the minimal engine, and walks through the check on it in a client
# that knows the two by their CMake packages. Then ends the session around every kind of question box;
# what is seen stands in docs/integration.md.
# Usage: build_and_run.sh SOURCE_FOLDER BUILD_FOLDER
set -euo pipefail
source=$1
build=$2

cmake -G Ninja -S "$source/tests/external-engine" -B "$build/engine" -DCMAKE_CXX_COMPILER_LAUNCHER=ccache
cmake --build "$build/engine"
cmake -G Ninja -S "$source" -B "$build/library" -DENVCHECK_ENGINE=external \
    -DClassroomEngine_DIR="$build/engine" -DENVCHECK_WARNINGS_AS_ERRORS=ON
cmake --build "$build/library"
"$source/tests/abi/exported_symbols.sh" "$build/library/lib/libEnvCheck.so"
cmake --install "$build/library" --prefix "$build/installed"
cmake -G Ninja -S "$source/tests/external-engine/program" -B "$build/program" \
    -DCMAKE_PREFIX_PATH="$build/installed" -DClassroomEngine_DIR="$build/engine" \
    -DCMAKE_CXX_COMPILER_LAUNCHER=ccache
cmake --build "$build/program"
QT_QPA_PLATFORM=offscreen "$build/program/run_check"
QT_QPA_PLATFORM=offscreen "$build/program/run_questions" > "$build/question-boxes.md"
sed -n '/^| question box/,/^$/{/^$/!p}' "$source/docs/integration.md" | diff - "$build/question-boxes.md"
