# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT

# Run by CPack on a finished package: writes the zip again with its files in alphabetical order, since CPack takes
# them in the order of the file system, which differs between builds.

foreach(zip IN LISTS CPACK_PACKAGE_FILES)
    if(zip MATCHES "\\.zip$")
        file(GLOB_RECURSE files RELATIVE "${CPACK_TOPLEVEL_DIRECTORY}" "${CPACK_TEMPORARY_DIRECTORY}/*")
        list(JOIN files "\n" files)
        file(WRITE "${CPACK_TOPLEVEL_DIRECTORY}/files.txt" "${files}")
        execute_process(
            COMMAND "${CMAKE_COMMAND}" -E tar cf "${zip}" --format=zip
                    "--files-from=${CPACK_TOPLEVEL_DIRECTORY}/files.txt"
            WORKING_DIRECTORY "${CPACK_TOPLEVEL_DIRECTORY}"
            COMMAND_ERROR_IS_FATAL ANY)
    endif()
endforeach()
