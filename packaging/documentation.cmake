# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT

# install_documentation(<destination>): pages, examples and the dissector, side by side so that their links hold.
function(install_documentation destination)
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs" "${PROJECT_SOURCE_DIR}/examples" "${PROJECT_SOURCE_DIR}/wireshark"
        DESTINATION "${destination}"
        PATTERN test EXCLUDE
        PATTERN __pycache__ EXCLUDE)
endfunction()
