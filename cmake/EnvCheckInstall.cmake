# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT

include(CMakePackageConfigHelpers)

set(include_folder ${CMAKE_INSTALL_INCLUDEDIR}/envcheck)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})

# envcheck_install_package(NAME NAMESPACE): the CMake package of the targets exported as NAMETargets.
function(envcheck_install_package name)
    set(folder ${CMAKE_INSTALL_LIBDIR}/cmake/${name})
    install(EXPORT ${name}Targets NAMESPACE ${name}:: DESTINATION ${folder})
    configure_package_config_file(cmake/${name}Config.cmake.in
        ${PROJECT_BINARY_DIR}/${name}Config.cmake
        INSTALL_DESTINATION ${folder} PATH_VARS ENVCHECK_DATA_FOLDER)
    write_basic_package_version_file(${PROJECT_BINARY_DIR}/${name}ConfigVersion.cmake
        COMPATIBILITY SameMajorVersion)
    install(FILES
        ${PROJECT_BINARY_DIR}/${name}Config.cmake
        ${PROJECT_BINARY_DIR}/${name}ConfigVersion.cmake
        DESTINATION ${folder})
endfunction()

# What a developer of a client needs: the library, its header and the CMake package.
install(TARGETS EnvCheck EXPORT EnvCheckTargets)
install(FILES agent/EnvCheckAgent.h agent/EnvCheckExport.h ${PROJECT_BINARY_DIR}/agent/EnvCheckVersion.h
    DESTINATION ${include_folder}/agent)
envcheck_install_package(EnvCheck)
install(FILES cmake/EnvCheckDeploy.cmake DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/EnvCheck)

# The pictures of the client, below the names that the library has for them.
set(picture_folder ${ENVCHECK_DATA_FOLDER}/pictures)
install(FILES cmake/client-pictures.qrc host/resources/invite_more.svg
    host/resources/radiobutton_checked_disabled.svg DESTINATION ${picture_folder})
foreach(state checked unchecked)
    install(FILES resources/images/radio_${state}.svg
        DESTINATION ${picture_folder} RENAME radiobutton_${state}.svg)
endforeach()
install(FILES resources/images/radio_disabled.svg
    DESTINATION ${picture_folder} RENAME radiobutton_unchecked_disabled.svg)

# envcheck_install_pkg_config(NAME): for clients that don't use CMake.
function(envcheck_install_pkg_config name)
    set(folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
    file(RELATIVE_PATH to_prefix /${folder} /)
    configure_file(cmake/${name}.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${folder})
endfunction()
envcheck_install_pkg_config(EnvCheck)

if(NOT ENVCHECK_ENGINE STREQUAL "bundled")
    # The engine stays where it is.
    set_target_properties(EnvCheck PROPERTIES INSTALL_RPATH_USE_LINK_PATH ON)
    return()
endif()

# The bundled engine with its scripted back end. Elsewhere than on Windows it stands in a folder of
# its own: its names are too general for one that everybody shares.
set(engine_libraries
    ClassroomBackend ClassroomScripted CommEngine CoreEngine LumMedia LumUtility LumWidgets)
set(backends ClassroomScripted)
if(ENVCHECK_DEVICES)
    list(APPEND engine_libraries ClassroomDevices)
    list(APPEND backends ClassroomDevices)
    install(FILES platform/devices/DeliveryOutcome.h platform/devices/DeviceEngine.h platform/devices/DeviceEngineConfig.h
        DESTINATION ${include_folder}/platform/devices)
endif()
if(WIN32)
    set(engine_folder ${CMAKE_INSTALL_LIBDIR})
else()
    set(engine_folder ${ENVCHECK_PROGRAM_FOLDER})
endif()
install(TARGETS ${engine_libraries} EXPORT ClassroomEngineTargets
    LIBRARY DESTINATION ${engine_folder}
    INCLUDES DESTINATION ${include_folder})
if(TARGET ClassroomStun) # loaded, never linked
    install(TARGETS ClassroomStun LIBRARY DESTINATION ${engine_folder} NAMELINK_SKIP)
endif()
foreach(name CommEngine CoreEngine LumMedia LumUtility LumWidgets)
    install(DIRECTORY platform/${name} ${PROJECT_BINARY_DIR}/platform/${name}
        DESTINATION ${include_folder}
        FILES_MATCHING PATTERN *.h PATTERN *_autogen EXCLUDE PATTERN CMakeFiles EXCLUDE)
endforeach()
install(DIRECTORY platform/backend platform/scripted DESTINATION ${include_folder}/platform
    FILES_MATCHING PATTERN *.h)
foreach(name ClassroomBackend ${backends})
    install(FILES ${PROJECT_BINARY_DIR}/platform/${name}/${name}Export.h
        DESTINATION ${include_folder}/${name})
endforeach()
envcheck_install_package(ClassroomEngine)
list(TRANSFORM engine_libraries PREPEND -l OUTPUT_VARIABLE engine_link_flags)
list(JOIN engine_link_flags " " engine_link_flags)
envcheck_install_pkg_config(ClassroomEngine)

# The program. It looks for its texts and sounds beside itself.
install(TARGETS envcheck RUNTIME DESTINATION ${ENVCHECK_PROGRAM_FOLDER})
if(WIN32)
    return()
endif()

file(RELATIVE_PATH to_program /${CMAKE_INSTALL_BINDIR} /${ENVCHECK_PROGRAM_FOLDER}/envcheck)
file(RELATIVE_PATH to_engine /${CMAKE_INSTALL_LIBDIR} /${engine_folder})
file(RELATIVE_PATH to_library /${ENVCHECK_PROGRAM_FOLDER} /${CMAKE_INSTALL_LIBDIR})
file(RELATIVE_PATH to_data /${ENVCHECK_PROGRAM_FOLDER} /${ENVCHECK_DATA_FOLDER})

# envcheck_install_link(TARGET FOLDER NAME)
function(envcheck_install_link target folder name)
    file(CREATE_LINK ${target} ${PROJECT_BINARY_DIR}/link-${name} SYMBOLIC)
    install(FILES ${PROJECT_BINARY_DIR}/link-${name} DESTINATION ${folder} RENAME ${name})
endfunction()
envcheck_install_link(${to_program} ${CMAKE_INSTALL_BINDIR} envcheck)
envcheck_install_link(${to_data}/html ${ENVCHECK_PROGRAM_FOLDER} html)
envcheck_install_link(${to_data}/translations ${ENVCHECK_PROGRAM_FOLDER} translations)
set_target_properties(${engine_libraries} PROPERTIES INSTALL_RPATH $ORIGIN)
set_target_properties(EnvCheck PROPERTIES INSTALL_RPATH $ORIGIN/${to_engine})
set_target_properties(envcheck PROPERTIES INSTALL_RPATH "$ORIGIN;$ORIGIN/${to_library}")

include(EnvCheckDesktop)
# Where Debian's shells look; the names are theirs.
install(FILES share/completions/envcheck.bash
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME envcheck)
install(FILES share/completions/_envcheck DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
install(FILES share/completions/envcheck.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
install(FILES host/resources/envcheck.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES docs/envcheck.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 OPTIONAL)
