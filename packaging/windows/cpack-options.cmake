# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT

# Read by CPack once for each package format.
if(CPACK_GENERATOR STREQUAL "NSIS")
    string(APPEND CPACK_PACKAGE_FILE_NAME "-setup")
endif()
