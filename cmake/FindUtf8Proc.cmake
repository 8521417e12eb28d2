# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT

# Utf8Proc::Utf8Proc; Debian's package has no CMake description. For Windows tools/windows/prepare
# builds a static library.
find_path(Utf8Proc_INCLUDE_DIR utf8proc.h)
find_library(Utf8Proc_LIBRARY utf8proc)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Utf8Proc DEFAULT_MSG Utf8Proc_LIBRARY Utf8Proc_INCLUDE_DIR)
mark_as_advanced(Utf8Proc_LIBRARY Utf8Proc_INCLUDE_DIR)

if(Utf8Proc_FOUND AND NOT TARGET Utf8Proc::Utf8Proc)
    add_library(Utf8Proc::Utf8Proc UNKNOWN IMPORTED GLOBAL)
    set_target_properties(Utf8Proc::Utf8Proc PROPERTIES
        IMPORTED_LOCATION "${Utf8Proc_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${Utf8Proc_INCLUDE_DIR}"
        INTERFACE_COMPILE_DEFINITIONS "$<$<PLATFORM_ID:Windows>:UTF8PROC_STATIC>")
endif()
