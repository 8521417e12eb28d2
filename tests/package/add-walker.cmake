# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT
# Included by the project of a client, whose files stay as they are.
cmake_language(EVAL CODE
    "cmake_language(DEFER CALL target_sources client PRIVATE ${CMAKE_CURRENT_LIST_DIR}/walker.cpp)")
