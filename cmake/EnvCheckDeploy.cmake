# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT

# envcheck_deploy(TARGET): what the check needs of a client. Its sounds (html/) and texts (translations/)
# come beside the program when that is built, and five pictures into it.
function(envcheck_deploy target)
    foreach(piece html translations pictures/client-pictures.qrc)
        if(NOT EXISTS ${EnvCheck_DATA_FOLDER}/${piece})
            message(FATAL_ERROR
                "EnvCheck is not completely installed: there is no ${EnvCheck_DATA_FOLDER}/${piece}")
        endif()
    endforeach()
    find_package(Qt5 5.15 REQUIRED COMPONENTS Core)
    qt5_add_resources(pictures ${EnvCheck_DATA_FOLDER}/pictures/client-pictures.qrc)
    target_sources(${target} PRIVATE ${pictures})
    foreach(folder html translations)
        add_custom_command(TARGET ${target} POST_BUILD
            COMMAND ${CMAKE_COMMAND} -E copy_directory
                ${EnvCheck_DATA_FOLDER}/${folder} $<TARGET_FILE_DIR:${target}>/${folder}
            VERBATIM)
    endforeach()
endfunction()
