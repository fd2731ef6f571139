# SPDX-License-Identifier: LGPL-2.1-or-later
#
# Installation: the library, its translations and headers, a CMake package and a pkg-config file; and two Debian packages of them.

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

install(FILES ${PAYCARD_TRANSLATIONS}
    DESTINATION ${CMAKE_INSTALL_DATADIR}/paycard_gui/translations
    COMPONENT runtime)

install(EXPORT paycard_guiTargets
    NAMESPACE paycard_gui::
    DESTINATION ${package_dir}
    COMPONENT development)
configure_package_config_file(cmake/paycard_guiConfig.cmake.in paycard_guiConfig.cmake
    INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(paycard_guiConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
        ${CMAKE_CURRENT_BINARY_DIR}/paycard_guiConfig.cmake
        ${CMAKE_CURRENT_BINARY_DIR}/paycard_guiConfigVersion.cmake
    DESTINATION ${package_dir}
    COMPONENT development)

if(PAYCARD_QT_VERSION EQUAL 4)
    set(PAYCARD_PC_REQUIRES "QtGui QtXml")
else()
    set(PAYCARD_PC_REQUIRES "Qt${PAYCARD_QT_VERSION}Widgets Qt${PAYCARD_QT_VERSION}Xml")
endif()
# From the file's own place to the prefix, so that an installation can be moved.
file(RELATIVE_PATH PAYCARD_PC_PREFIX ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(cmake/paycard_gui.pc.in paycard_gui.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/paycard_gui.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT development)

# The Debian packages: libpaycard-gui9 and libpaycard-gui-dev, named after the soname as is the custom there.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME paycard-gui)
set(CPACK_PACKAGE_VENDOR "ORMA")
set(CPACK_PACKAGE_CONTACT "ORMA <support@orma-drivers.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://www.orma-drivers.example")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "A payment-card driver loads this library to have a shop's technician set up
the payment system and a cashier confirm a payment. It is built with
Qt ${PAYCARD_QT_VERSION}; the driver's process must use the same release.")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "Headers, CMake package and pkg-config file for the makers of payment-card
drivers and of the driver family's other graphical modules.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libpaycard-gui${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA
    ${CMAKE_CURRENT_BINARY_DIR}/debian/shlibs ${CMAKE_CURRENT_SOURCE_DIR}/cmake/debian/triggers)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libpaycard-gui-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(qt_dev_packages_6 qt6-base-dev)
set(qt_dev_packages_5 qtbase5-dev)
set(qt_dev_packages_4 libqt4-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME} (= ${PROJECT_VERSION}), ${qt_dev_packages_${PAYCARD_QT_VERSION}}")

# What Debian's policy asks of every package; not for a plain installation.
set(debian ${CMAKE_CURRENT_BINARY_DIR}/debian)
file(WRITE ${debian}/shlibs
    "libpaycard_gui ${PROJECT_VERSION_MAJOR} ${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME} (>= ${PROJECT_VERSION})\n")
find_program(GZIP gzip REQUIRED)
execute_process(
    COMMAND ${GZIP} -9nc ${CMAKE_CURRENT_SOURCE_DIR}/cmake/debian/changelog
    OUTPUT_FILE ${debian}/changelog.gz)
foreach(component RUNTIME DEVELOPMENT)
    string(TOLOWER ${component} lower)
    install(FILES cmake/debian/copyright ${debian}/changelog.gz
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${component}_PACKAGE_NAME}
        COMPONENT ${lower}
        EXCLUDE_FROM_ALL)
endforeach()

include(CPack)
