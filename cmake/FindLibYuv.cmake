# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT

# LibYuv::LibYuv; the library comes without a package description of its own.
find_path(LibYuv_INCLUDE_DIR libyuv.h)
find_library(LibYuv_LIBRARY yuv)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(LibYuv DEFAULT_MSG LibYuv_LIBRARY LibYuv_INCLUDE_DIR)
mark_as_advanced(LibYuv_LIBRARY LibYuv_INCLUDE_DIR)

if(LibYuv_FOUND AND NOT TARGET LibYuv::LibYuv)
    add_library(LibYuv::LibYuv UNKNOWN IMPORTED GLOBAL)
    set_target_properties(LibYuv::LibYuv PROPERTIES
        IMPORTED_LOCATION "${LibYuv_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${LibYuv_INCLUDE_DIR}")
endif()
