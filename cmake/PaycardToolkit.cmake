# SPDX-License-Identifier: LGPL-2.1-or-later
#
# Finds the toolkit in the release that PAYCARD_QT_VERSION names. Gives
#   PAYCARD_QT             package and prefix of its targets
#   PAYCARD_QT_LIBRARIES   what the library links
#   paycard_add_resources  compiles a resource file: <variable> <file>
#   paycard_wrap_forms     makes headers of forms: <variable> <file>...
#                          CMake's AUTOUIC does not tell Ninja of them, which compiled a changed form a build later.
#
# The reference host needs Qt 5 or 6; with Qt 4 only the parts of the test kit that the tests use are built.

set(PAYCARD_QT Qt${PAYCARD_QT_VERSION})

if(PAYCARD_QT_VERSION EQUAL 4)
    find_package(Qt4 4.8 REQUIRED COMPONENTS QtCore QtGui)
    set(PAYCARD_QT_LIBRARIES Qt4::QtGui)
    macro(paycard_add_resources variable file)
        qt4_add_resources(${variable} ${file})
    endmacro()
    macro(paycard_wrap_forms variable)
        qt4_wrap_ui(${variable} ${ARGN})
    endmacro()
elseif(PAYCARD_QT_VERSION EQUAL 5)
    find_package(Qt5 5.12 REQUIRED COMPONENTS Core Gui Widgets)
    set(PAYCARD_QT_LIBRARIES Qt5::Widgets)
    macro(paycard_add_resources variable file)
        qt5_add_resources(${variable} ${file})
    endmacro()
    macro(paycard_wrap_forms variable)
        qt5_wrap_ui(${variable} ${ARGN})
    endmacro()
elseif(PAYCARD_QT_VERSION EQUAL 6)
    find_package(Qt6 REQUIRED COMPONENTS Core Gui Widgets)
    set(PAYCARD_QT_LIBRARIES Qt6::Widgets)
    macro(paycard_add_resources variable file)
        qt6_add_resources(${variable} ${file})
    endmacro()
    macro(paycard_wrap_forms variable)
        qt6_wrap_ui(${variable} ${ARGN})
    endmacro()
else()
    message(FATAL_ERROR "PAYCARD_QT_VERSION must be 6, 5 or 4, not \"${PAYCARD_QT_VERSION}\"")
endif()

# An older build's, which would be found first.
file(GLOB stale_headers ${PROJECT_BINARY_DIR}/*/*_autogen/include/ui_*.h)
if(stale_headers)
    file(REMOVE ${stale_headers})
endif()
