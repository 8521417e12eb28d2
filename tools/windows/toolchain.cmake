# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT

# MinGW-w64, posix threads. The prefix of the cross-built Qt comes from tools/windows/prepare.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# The same default as in environment.sh.
if(NOT ENVCHECK_WINDOWS_QT)
    if(DEFINED ENV{ENVCHECK_WINDOWS_QT})
        set(ENVCHECK_WINDOWS_QT $ENV{ENVCHECK_WINDOWS_QT})
    else()
        cmake_path(SET ENVCHECK_WINDOWS_QT NORMALIZE ${CMAKE_CURRENT_LIST_DIR}/../../build/qt5-mingw64)
    endif()
endif()
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES ENVCHECK_WINDOWS_QT)
set(CMAKE_FIND_ROOT_PATH ${ENVCHECK_WINDOWS_QT} /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# pkg-config must not offer what this machine has for itself.
set(ENV{PKG_CONFIG_LIBDIR} ${ENVCHECK_WINDOWS_QT}/lib/pkgconfig)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/run-program)
