# SPDX-License-Identifier: LGPL-2.1-or-later
#
# Packages for Debian or for RPM systems, by CPack; script/package makes both. Their components:
#   runtime, development  what is installed; guides and examples, too
#   debug                 the debug symbols of the library
#   documentation         the API reference, where there is one

set(PAYCARD_PACKAGES DEB CACHE STRING "Packages that cpack makes: DEB or RPM")
set_property(CACHE PAYCARD_PACKAGES PROPERTY STRINGS DEB RPM)
set(PAYCARD_REFERENCE "" CACHE PATH "API reference to package, as script/docs leaves it")

# Names carry the toolkit release, as a host's dependency has to; "@" stands for it.
if(PAYCARD_PACKAGES STREQUAL RPM)
    set(development_name libpaycard-gui@-devel)
    set(debug_name libpaycard-gui${PROJECT_VERSION_MAJOR}@-debuginfo)
    set(exactly "= ${PROJECT_VERSION}")
else()
    set(development_name libpaycard-gui@-dev)
    set(debug_name libpaycard-gui${PROJECT_VERSION_MAJOR}@-dbgsym)
    set(exactly "(= ${PROJECT_VERSION})")
endif()
set(runtime_name libpaycard-gui${PROJECT_VERSION_MAJOR}@)
set(documentation_name libpaycard-gui-doc)
# The packages of other releases have the same files, as those had whose names did not tell the release.
foreach(component runtime development)
    set(others)
    foreach(other "" -qt4 -qt5 -qt6)
        if(NOT other STREQUAL "-qt${PAYCARD_QT_VERSION}")
            string(REPLACE @ "${other}" name ${${component}_name})
            list(APPEND others ${name})
        endif()
    endforeach()
    list(JOIN others ", " ${component}_conflicts)
endforeach()
set(components runtime development debug documentation)
foreach(component IN LISTS components)
    string(REPLACE @ -qt${PAYCARD_QT_VERSION} ${component}_name ${${component}_name})
endforeach()
set(development_depends "${runtime_name} ${exactly}")
set(debug_depends "${runtime_name} ${exactly}")

# For both kinds of packages.
if(NOT PAYCARD_REFERENCE)
    list(REMOVE_ITEM components documentation)
endif()
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_GENERATOR ${PAYCARD_PACKAGES})
set(CPACK_COMPONENTS_ALL ${components})
set(CPACK_PACKAGE_NAME paycard-gui)
set(CPACK_PACKAGE_VENDOR "ORMA")
set(CPACK_PACKAGE_CONTACT "ORMA <support@orma-drivers.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://www.orma-drivers.example")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "A payment-card driver loads this library to have a shop's technician set up
the payment system and a cashier confirm a payment. It is built with
Qt ${PAYCARD_QT_VERSION}; the driver's process must use the same release.")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "Headers, CMake package, pkg-config file, test kit, checker of drivers, guides
and examples for the makers of payment-card drivers and of the driver
family's other graphical modules.")
set(CPACK_COMPONENT_DEBUG_DESCRIPTION "What a debugger needs to name the library's functions and source lines.")
set(CPACK_COMPONENT_DOCUMENTATION_DESCRIPTION "HTML pages with each function and class of the library.")

foreach(component IN LISTS components)
    string(TOUPPER ${component} upper)
    foreach(kind DEBIAN RPM)
        set(CPACK_${kind}_${upper}_PACKAGE_NAME ${${component}_name})
        set(CPACK_${kind}_${upper}_PACKAGE_CONFLICTS "${${component}_conflicts}")
    endforeach()
    set(CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS "${${component}_depends}")
    set(CPACK_RPM_${upper}_PACKAGE_REQUIRES "${${component}_depends}")
endforeach()

# Debian's
set(translations_6 qt6-translations-l10n)
set(translations_5 qttranslations5-l10n)
set(toolkit_6 ", qt6-base-dev")
set(toolkit_5 ", qtbase5-dev")
set(debian ${CMAKE_CURRENT_BINARY_DIR}/debian)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS "${translations_${PAYCARD_QT_VERSION}}")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${debian}/shlibs ${CMAKE_CURRENT_SOURCE_DIR}/cmake/debian/triggers)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS ON) # the checker's
string(APPEND CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${toolkit_${PAYCARD_QT_VERSION}}")
set(CPACK_DEBIAN_DEBUG_PACKAGE_SECTION debug)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)
file(WRITE ${debian}/shlibs "libpaycard_gui ${PROJECT_VERSION_MAJOR} ${runtime_name} (>= ${PROJECT_VERSION})\n")

# RPM's
set(CPACK_RPM_COMPONENT_INSTALL ON)
set(CPACK_RPM_FILE_NAME RPM-DEFAULT)
set(CPACK_RPM_PACKAGE_LICENSE LGPL-2.1-or-later)
set(CPACK_RPM_PACKAGE_GROUP System/Libraries)
set(CPACK_RPM_DOCUMENTATION_PACKAGE_ARCHITECTURE noarch)
# The debug symbols are where they belong. CPack knows no recommendations; the name of this one differs between systems.
set(CPACK_RPM_SPEC_MORE_DEFINE "%define _build_id_links none
%if \"%{name}\" == \"${runtime_name}\"
Recommends: (qt${PAYCARD_QT_VERSION}-qttranslations or qt${PAYCARD_QT_VERSION}-translations)
%endif")
set(rpm ${CMAKE_CURRENT_BINARY_DIR}/rpm)
file(WRITE ${rpm}/ldconfig "/sbin/ldconfig\n")
set(CPACK_RPM_RUNTIME_POST_INSTALL_SCRIPT_FILE ${rpm}/ldconfig)
set(CPACK_RPM_RUNTIME_POST_UNINSTALL_SCRIPT_FILE ${rpm}/ldconfig)
# Debian's change log in RPM's form.
file(READ cmake/debian/changelog changelog)
string(REGEX REPLACE "^[^(]*\\(([^)]*)\\)[^*]*\\* (.*)\n\n -- (.*>)  (...), (..) (...) (....).*"
    "* \\4 \\6 \\5 \\7 \\3 - \\1-1\n- \\2\n" changelog "${changelog}")
file(WRITE ${rpm}/changelog "${changelog}")
set(CPACK_RPM_CHANGELOG_FILE ${rpm}/changelog)
# Directories that belong to the system.
set(shared ${CMAKE_INSTALL_DATADIR})
foreach(directory
        ${CMAKE_INSTALL_BINDIR} ${CMAKE_INSTALL_LIBDIR} ${CMAKE_INSTALL_LIBDIR}/cmake ${CMAKE_INSTALL_LIBDIR}/pkgconfig
        lib lib/debug lib/debug/.build-id ${CMAKE_INSTALL_INCLUDEDIR} ${shared} ${shared}/doc ${shared}/licenses)
    list(APPEND CPACK_RPM_EXCLUDE_FROM_AUTO_FILELIST_ADDITION /usr/${directory})
endforeach()

# What only packages have.
find_program(GZIP gzip REQUIRED)
execute_process(COMMAND ${GZIP} -9nc ${CMAKE_CURRENT_SOURCE_DIR}/cmake/debian/changelog
    OUTPUT_FILE ${debian}/changelog.gz)
foreach(component IN LISTS components)
    set(${component}_documents ${shared}/doc/${${component}_name})
    if(PAYCARD_PACKAGES STREQUAL RPM)
        install(FILES LICENSE DESTINATION ${shared}/licenses/${${component}_name}
            COMPONENT ${component} EXCLUDE_FROM_ALL)
    else()
        install(FILES cmake/debian/copyright ${debian}/changelog.gz DESTINATION ${${component}_documents}
            COMPONENT ${component} EXCLUDE_FROM_ALL)
        if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/cmake/debian/${component}.overrides)
            install(FILES cmake/debian/${component}.overrides DESTINATION ${shared}/lintian/overrides
                RENAME ${${component}_name} COMPONENT ${component} EXCLUDE_FROM_ALL)
        endif()
    endif()
endforeach()
# Guides and examples keep their places to each other.
install(DIRECTORY docs examples DESTINATION ${development_documents}
    COMPONENT development EXCLUDE_FROM_ALL)
if(PAYCARD_REFERENCE)
    install(DIRECTORY ${PAYCARD_REFERENCE}/ DESTINATION ${documentation_documents}/html
        COMPONENT documentation EXCLUDE_FROM_ALL)
endif()
# CPack leaves the debug symbols in static libraries.
if(PAYCARD_BUILD_TEST_KIT AND NOT PAYCARD_QT_VERSION EQUAL 4)
    install(CODE "
        execute_process(COMMAND \"${CMAKE_STRIP}\" --strip-debug --enable-deterministic-archives
            \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/$<TARGET_FILE_NAME:paycard_testing>\")"
        COMPONENT development EXCLUDE_FROM_ALL)
endif()
# Where debuggers look for the symbols of a file with this build id.
install(CODE "
    execute_process(COMMAND \"${CMAKE_READELF}\" --notes \"$<TARGET_FILE:paycard_gui>\" OUTPUT_VARIABLE notes)
    string(REGEX MATCH \"Build ID: (..)([0-9a-f]+)\" id \"\${notes}\")
    set(directory \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/lib/debug/.build-id/\${CMAKE_MATCH_1}\")
    file(MAKE_DIRECTORY \"\${directory}\")
    execute_process(COMMAND \"${CMAKE_OBJCOPY}\" --only-keep-debug --compress-debug-sections
        \"$<TARGET_FILE:paycard_gui>\" \"\${directory}/\${CMAKE_MATCH_2}.debug\")
    execute_process(COMMAND chmod 644 \"\${directory}/\${CMAKE_MATCH_2}.debug\")"
    COMPONENT debug EXCLUDE_FROM_ALL)

include(CPack)
