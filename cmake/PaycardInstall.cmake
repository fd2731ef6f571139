# SPDX-License-Identifier: LGPL-2.1-or-later
#
# Installation: the library, its translations and headers, a CMake package and a pkg-config file, the checker of drivers.
# The test kit is a component of that package with a file of targets of its own.

include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/paycard_gui)

install(TARGETS paycard_gui paycard_headers
    EXPORT paycard_guiTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development)
foreach(header IN LISTS PAYCARD_PUBLIC_HEADERS)
    get_filename_component(directory ${header} DIRECTORY)
    install(FILES paycard_gui/${header}
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/paycard_gui/${directory}
        COMPONENT development)
endforeach()
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/paycard_gui/common/paycard_export.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/paycard_gui/common
    COMPONENT development)

if(TARGET paycard_check)
    install(TARGETS paycard_check RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT development)
endif()

install(FILES ${PAYCARD_TRANSLATIONS}
    DESTINATION ${CMAKE_INSTALL_DATADIR}/paycard_gui/translations
    COMPONENT runtime)

install(EXPORT paycard_guiTargets
    NAMESPACE paycard_gui::
    DESTINATION ${package_dir}
    COMPONENT development)
if(PAYCARD_BUILD_TEST_KIT AND NOT PAYCARD_QT_VERSION EQUAL 4)
    install(TARGETS paycard_testing
        EXPORT paycard_guiTestingTargets
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
    list(TRANSFORM PAYCARD_TESTING_HEADERS PREPEND testing/)
    install(FILES ${PAYCARD_TESTING_HEADERS}
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/paycard_gui/testing
        COMPONENT development)
    install(EXPORT paycard_guiTestingTargets
        NAMESPACE paycard_gui::
        DESTINATION ${package_dir}
        COMPONENT development)
endif()

configure_package_config_file(cmake/paycard_guiConfig.cmake.in paycard_guiConfig.cmake
    INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(paycard_guiConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
        ${CMAKE_CURRENT_BINARY_DIR}/paycard_guiConfig.cmake
        ${CMAKE_CURRENT_BINARY_DIR}/paycard_guiConfigVersion.cmake
    DESTINATION ${package_dir}
    COMPONENT development)

if(PAYCARD_QT_VERSION EQUAL 4)
    set(PAYCARD_PC_REQUIRES QtGui)
else()
    set(PAYCARD_PC_REQUIRES Qt${PAYCARD_QT_VERSION}Widgets)
    # The headers of the toolkit insist on it, but its own .pc files do not say so.
    set(PAYCARD_PC_CFLAGS "-fPIC ")
endif()
# From the file's own place to the prefix, so that an installation can be moved.
file(RELATIVE_PATH PAYCARD_PC_PREFIX ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(cmake/paycard_gui.pc.in paycard_gui.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/paycard_gui.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT development)
