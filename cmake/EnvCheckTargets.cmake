# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
if(WIN32)
    set(CMAKE_SHARED_LIBRARY_PREFIX "")
endif()
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_AUTORCC ON)
# The newer format writes down when each file was last changed: every clone would differ.
set(CMAKE_AUTORCC_OPTIONS --format-version 1)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# Programs, tests and the sounds below them stand in one folder, as they do after the installation.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)

# Where the program is installed, and the texts and sounds. It looks for them beside itself: elsewhere
# than on Windows it finds links there, because they are the same for every kind of machine.
if(WIN32)
    set(ENVCHECK_PROGRAM_FOLDER ${CMAKE_INSTALL_BINDIR})
    set(ENVCHECK_DATA_FOLDER ${CMAKE_INSTALL_BINDIR})
else()
    set(ENVCHECK_PROGRAM_FOLDER ${CMAKE_INSTALL_LIBDIR}/envcheck)
    set(ENVCHECK_DATA_FOLDER ${CMAKE_INSTALL_DATADIR}/envcheck)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
    set(cache_settings "")
    # Clones in other folders share the cache, unless the user has arranged that otherwise.
    execute_process(COMMAND ${CCACHE_PROGRAM} --get-config base_dir
        OUTPUT_VARIABLE base_dir OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT base_dir)
        list(APPEND cache_settings CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1)
    endif()
    # By its manual, ccache keeps what precompiled headers went into only with both.
    if(ENVCHECK_PRECOMPILED_HEADERS AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        list(APPEND cache_settings CCACHE_SLOPPINESS=pch_defines,time_macros)
        add_compile_options(-fpch-preprocess)
    endif()
    if(cache_settings)
        list(PREPEND CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env ${cache_settings})
    endif()
endif()

# What every target of the project is compiled with.
add_library(EnvCheckOptions INTERFACE)
target_compile_definitions(EnvCheckOptions INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_MESSAGELOGCONTEXT QT_DEPRECATED_WARNINGS)
target_compile_options(EnvCheckOptions INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion
    $<$<BOOL:${ENVCHECK_WARNINGS_AS_ERRORS}>:-Werror>)
# envcheck_precompile(TARGET [HEADER...]): what most sources of a large target include, beside HEADER. They
# include it themselves, too, as builds without precompiled headers show.
function(envcheck_precompile target)
    if(ENVCHECK_PRECOMPILED_HEADERS)
        target_precompile_headers(${target} PRIVATE
            <QCoreApplication> <QDateTime> <QFile> <QJsonArray> <QJsonDocument> <QJsonObject> <QMap>
            <QObject> <QString> <QStringList> <QTimer> <QVariant>
            <algorithm> <chrono> <functional> <map> <memory> <mutex> <optional> <vector>
            ${ARGN})
    endif()
endfunction()

if(ENVCHECK_SANITIZERS)
    target_compile_options(EnvCheckOptions INTERFACE
        -fsanitize=${ENVCHECK_SANITIZERS} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(EnvCheckOptions INTERFACE -fsanitize=${ENVCHECK_SANITIZERS})
endif()
