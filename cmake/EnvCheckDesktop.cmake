# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT

# What a desktop shows of the program, in the languages of the translations: a menu entry, and the
# description for software centres. Its words are texts of the program.

# envcheck_read_text(RESULT LANGUAGE ID): a text without its full stop.
function(envcheck_read_text result language id)
    set(path ${PROJECT_SOURCE_DIR}/share/translations/envcheck_${language}.ts)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${path})
    file(READ ${path} content)
    string(REGEX MATCH "<message id=\"${id}\">.*" content "${content}")
    string(REGEX MATCH "<translation>([^<]*)</translation>" match "${content}")
    set(text "${CMAKE_MATCH_1}")
    if(text STREQUAL "")
        message(FATAL_ERROR "${path} has no ${id}")
    endif()
    string(REGEX REPLACE "(\\.|。)$" "" text "${text}")
    set(${result} "${text}" PARENT_SCOPE)
endfunction()

get_target_property(languages translations ENVCHECK_LANGUAGES)
list(REMOVE_ITEM languages en)
list(PREPEND languages en)
set(names "")
set(comments "")
set(summaries "")
foreach(language IN LISTS languages)
    envcheck_read_text(name ${language} ID_Kestrel_SystemTesting)
    envcheck_read_text(summary ${language} ID_Host_Help_Check)
    if(language STREQUAL "en") # the words for all other languages, too
        set(key "")
        set(attribute "")
    else()
        set(key "[${language}]")
        set(attribute " xml:lang=\"${language}\"")
    endif()
    if("${name}${summary}" MATCHES "[&<]")
        message(FATAL_ERROR "The texts of the desktop are used as they stand: ${name}, ${summary}")
    endif()
    string(APPEND summaries "\n  <summary${attribute}>${summary}</summary>")
    string(APPEND names "\nGenericName${key}=${name}")
    string(APPEND comments "\nComment${key}=${summary}")
endforeach()
foreach(list names comments summaries)
    string(STRIP "${${list}}" ${list})
endforeach()
string(PREPEND summaries "  ")
configure_file(cmake/envcheck.desktop.in ${PROJECT_BINARY_DIR}/envcheck.desktop @ONLY)
configure_file(cmake/envcheck.metainfo.xml.in ${PROJECT_BINARY_DIR}/org.example.envcheck.metainfo.xml @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/envcheck.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${PROJECT_BINARY_DIR}/org.example.envcheck.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
