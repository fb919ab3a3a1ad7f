# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT

# Run by CPack on the staged package: SIGN_COMMAND signs the program. The installer takes the files in alphabetical
# order instead of the file system's, so that two builds of one commit give the same bytes.

if(NOT "$ENV{SIGN_COMMAND}" STREQUAL "")
    execute_process(COMMAND sh -c "$SIGN_COMMAND \"$0\"" "${CPACK_TEMPORARY_DIRECTORY}/${CPACK_PACKAGE_NAME}.exe"
        COMMAND_ERROR_IS_FATAL ANY)
endif()

if(CPACK_GENERATOR STREQUAL "NSIS")
    file(GLOB_RECURSE entries LIST_DIRECTORIES ON RELATIVE "${CPACK_TEMPORARY_DIRECTORY}"
        "${CPACK_TEMPORARY_DIRECTORY}/*")
    foreach(entry IN LISTS entries)
        string(REPLACE "/" "\\" target "$INSTDIR/${entry}")
        if(IS_DIRECTORY "${CPACK_TEMPORARY_DIRECTORY}/${entry}")
            string(APPEND install "CreateDirectory \"${target}\"\n")
            string(PREPEND remove_directories "RMDir \"${target}\"\n")
        else()
            string(APPEND install "File \"/oname=${target}\" \"${CPACK_TEMPORARY_DIRECTORY}/${entry}\"\n")
            string(APPEND remove_files "Delete \"${target}\"\n")
        endif()
    endforeach()
    file(WRITE "${CPACK_TOPLEVEL_DIRECTORY}/install.nsh" "${install}")
    file(WRITE "${CPACK_TOPLEVEL_DIRECTORY}/remove.nsh" "${remove_files}${remove_directories}")
endif()
