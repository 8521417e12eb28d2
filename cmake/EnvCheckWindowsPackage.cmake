# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT

# A zip that needs nothing else: everything that the program loads stands beside it, where Windows
# looks first.
set(qt_folder ${ENVCHECK_WINDOWS_QT})
foreach(plugin
        platforms/qwindows styles/qwindowsvistastyle imageformats/qsvg imageformats/qico
        iconengines/qsvgicon)
    cmake_path(GET plugin PARENT_PATH kind)
    install(FILES ${qt_folder}/plugins/${plugin}.dll DESTINATION ${CMAKE_INSTALL_BINDIR}/${kind})
endforeach()

# Qt looks for its plug-ins beside the program, wherever Qt itself was built.
file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/qt.conf CONTENT "[Paths]\nPrefix=.\nPlugins=.\n")
install(FILES ${PROJECT_BINARY_DIR}/qt.conf DESTINATION ${CMAKE_INSTALL_BINDIR})

foreach(library Core Gui Network Svg Widgets)
    install(FILES ${qt_folder}/bin/Qt5${library}.dll DESTINATION ${CMAKE_INSTALL_BINDIR})
endforeach()
foreach(library libcares libjpeg-62 libmpg123-0 libnice-stun libyuv)
    install(FILES ${qt_folder}/bin/${library}.dll DESTINATION ${CMAKE_INSTALL_BINDIR})
endforeach()
foreach(runtime libgcc_s_seh-1 libstdc++-6 libwinpthread-1)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${runtime}.dll
        OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE)
    install(FILES ${file} DESTINATION ${CMAKE_INSTALL_BINDIR})
endforeach()

install(FILES
    /usr/share/common-licenses/LGPL-3
    /usr/share/common-licenses/GPL-3
    DESTINATION ${CMAKE_INSTALL_DOCDIR}/licenses)
install(FILES ${qt_folder}/share/utf8proc/LICENSE.md
    DESTINATION ${CMAKE_INSTALL_DOCDIR}/licenses RENAME utf8proc.md)
install(FILES ${qt_folder}/share/c-ares/LICENSE.md
    DESTINATION ${CMAKE_INSTALL_DOCDIR}/licenses RENAME c-ares.md)
foreach(library kissfft libjpeg-turbo libnice libsamplerate libyuv mpg123)
    install(DIRECTORY ${qt_folder}/share/${library} DESTINATION ${CMAKE_INSTALL_DOCDIR}/licenses)
endforeach()

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME EnvCheck-${PROJECT_VERSION}-win64)
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_STRIP_FILES ON)
include(CPack)
