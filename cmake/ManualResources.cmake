# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT

# add_manual_resource(<out-variable> <name>.qrc <file>...)
#
# Compiles a Qt resource that is registered where the program calls Q_INIT_RESOURCE(<name>), and only there. The
# code that rcc writes also holds a static object named "dummy" which registers the data before main(); the
# definition below turns that object into an unused pointer.
function(add_manual_resource out_variable qrc)
    get_filename_component(name "${qrc}" NAME_WE)
    set(output "${CMAKE_CURRENT_BINARY_DIR}/qrc_${name}.cpp")
    # Format 1 carries no modification times, so two builds of one commit give the same bytes.
    add_custom_command(OUTPUT "${output}"
        COMMAND Qt5::rcc --name "${name}" --format-version 1 --compress 9 --threshold 0
                --output "${output}" "${CMAKE_CURRENT_SOURCE_DIR}/${qrc}"
        MAIN_DEPENDENCY "${qrc}"
        DEPENDS ${ARGN}
        VERBATIM)
    set_source_files_properties("${output}" PROPERTIES
        COMPILE_DEFINITIONS "dummy=*unregistered"
        COMPILE_OPTIONS "-w")
    set(${out_variable} "${output}" PARENT_SCOPE)
endfunction()
