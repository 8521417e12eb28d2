# SPDX-FileCopyrightText: 2026 The EnvCheck authors
# SPDX-License-Identifier: MIT

install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/envcheck RENAME copyright)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME envcheck)
# Whoever passes the package on names somebody who answers: no mail reaches example.org.
set(ENVCHECK_PACKAGE_CONTACT "The EnvCheck authors <envcheck@example.org>" CACHE STRING
    "Who looks after the Debian package: NAME <MAIL>")
set(CPACK_PACKAGE_CONTACT ${ENVCHECK_PACKAGE_CONTACT})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
# A plug-in, which nothing links: it draws the pictures.
set(CPACK_DEBIAN_PACKAGE_DEPENDS libqt5svg5)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qttranslations5-l10n, fonts-noto-core, fonts-noto-cjk")
if(TARGET PkgConfig::V4L2)
    # Likewise: the elements of the cameras' pipeline.
    string(APPEND CPACK_DEBIAN_PACKAGE_RECOMMENDS
        ", gstreamer1.0-plugins-base, gstreamer1.0-plugins-good")
endif()
include(CPack)
