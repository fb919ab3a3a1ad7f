-- SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
-- SPDX-License-Identifier: MIT
std = "lua52"
max_line_length = 130
-- What Wireshark gives to its scripts.
read_globals = { "Dissector", "DissectorTable", "Proto", "ProtoExpert", "ProtoField", "Struct", "expert" }
