# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT

# Windows on x86-64, built by the distribution's mingw-w64 with POSIX threads: Qt is built with the same.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES QT_WINDOWS)
if(NOT QT_WINDOWS)
    execute_process(COMMAND "${CMAKE_CURRENT_LIST_DIR}/../packaging/windows/provide-qt"
        WORKING_DIRECTORY "${CMAKE_CURRENT_LIST_DIR}/.."
        OUTPUT_VARIABLE qt_windows OUTPUT_STRIP_TRAILING_WHITESPACE
        COMMAND_ERROR_IS_FATAL ANY)
    set(QT_WINDOWS "${qt_windows}" CACHE PATH "Qt for Windows with tools for this machine")
endif()

set(CMAKE_FIND_ROOT_PATH "${QT_WINDOWS}" /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The translation tools come from this machine's Qt: they only make data.
file(GLOB host_linguist_tools /usr/lib/*/cmake/Qt5LinguistTools /usr/lib*/cmake/Qt5LinguistTools)
list(GET host_linguist_tools 0 Qt5LinguistTools_DIR)

# Programs of the build run under Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../packaging/windows/test/launch")
