# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT

# The language level of all targets, and simulator_options, which every target links: warnings, Qt definitions,
# sanitizers and coverage.

option(SIMULATOR_WERROR "Treat compiler warnings as errors" OFF)
set(SIMULATOR_SANITIZERS "" CACHE STRING "Sanitizers to build with, such as address,undefined")
option(SIMULATOR_FUZZERS "Build the fuzz targets with libFuzzer (clang only)" OFF)
option(SIMULATOR_COVERAGE "Instrument for line coverage" OFF)

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

add_library(simulator_options INTERFACE)
target_compile_definitions(simulator_options INTERFACE
    QT_MESSAGELOGCONTEXT # without it release builds lose file, line and function of every log line
    QT_DISABLE_DEPRECATED_BEFORE=0x050F00
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_FOREACH)
target_compile_options(simulator_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    -Wcast-qual -Wformat=2 -Wundef -Wextra-semi
    -fstack-protector-strong
    "$<$<CONFIG:Release>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>" # needs optimisation; the sanitizers check more
    # Log lines name files relative to the project: the place of a build leaves no trace in the program.
    "-fmacro-prefix-map=${PROJECT_SOURCE_DIR}/="
    # Qt's category macros leave their variadic argument empty at every streamed log line.
    $<$<CXX_COMPILER_ID:Clang>:-Wno-gnu-zero-variadic-macro-arguments>
    $<$<BOOL:${SIMULATOR_WERROR}>:-Werror>)
target_link_options(simulator_options INTERFACE -fstack-protector-strong) # mingw-w64 has it in a library

if(SIMULATOR_SANITIZERS)
    set(sanitizer_flags "-fsanitize=${SIMULATOR_SANITIZERS}" -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(simulator_options INTERFACE ${sanitizer_flags})
    target_link_options(simulator_options INTERFACE ${sanitizer_flags})
endif()
if(SIMULATOR_FUZZERS)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        message(FATAL_ERROR "libFuzzer comes with clang: configure with -DCMAKE_CXX_COMPILER=clang++.")
    endif()
    target_compile_options(simulator_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(SIMULATOR_COVERAGE)
    target_compile_options(simulator_options INTERFACE --coverage)
    target_link_options(simulator_options INTERFACE --coverage)
endif()
