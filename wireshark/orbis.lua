-- SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
-- SPDX-License-Identifier: MIT
--
-- Shows what travels between the device and its masters: Orvet discovery on UDP ports 45123 and 45124, and over
-- Modbus TCP the values of properties and the device's own function codes 100 to 103. Wireshark loads it from its
-- personal plugin folder; "tshark -X lua_script:orbis.lua" loads it for one run.

-- Property number: type letter of its descriptor and name. A property holds registers 2N and 2N + 1.
local properties = {
    [1000] = { "d", "Alarm" },
    [1001] = { "x", "Alarm_Signature" },
    [1002] = { "d", "Alarm_Id" },
    [1003] = { "d", "Alarm_Sound" },
    [1004] = { "d", "Alarm_Cnt" },
    [1005] = { "T", "Alarm_Tick" },
    [1014] = { "p", "Humidity" },
    [1016] = { "f", "ComprPressure" },
    [1018] = { "s", "ComprPressure_Unit" },
    [2013] = { "p", "Humidity_SetH" },
    [2019] = { "f", "ComprPressure_Max" },
    [2020] = { "f", "ComprPressure_SetL" },
    [2021] = { "f", "ComprPressure_SetH" },
    [4002] = { "d", "Alarm_Action" },
    [4004] = { "s", "Alarm_Msg" },
    [4005] = { "d", "Care_TimeNext" },
    [5001] = { "s", "REF" },
    [5002] = { "s", "DEV_SN" },
    [5003] = { "s", "PCB_SN" },
    [5004] = { "s", "REF_Name" },
    [5006] = { "s", "version" },
}

local orbis = Proto("orbis", "Duo Orbis property")
local number_field = ProtoField.uint16("orbis.number", "Number")
local name_field = ProtoField.string("orbis.name", "Name")
local value_field = ProtoField.string("orbis.value", "Value")
local text_field = ProtoField.string("orbis.text", "Text")
orbis.fields = { number_field, name_field, value_field, text_field }

local swapped_echo = ProtoExpert.new("orbis.swapped_echo", "The device swaps the bytes of both fields: it has written",
                                     expert.group.PROTOCOL, expert.severity.NOTE)
local no_answer = ProtoExpert.new("orbis.no_answer", "The device did not answer this request",
                                  expert.group.SEQUENCE, expert.severity.WARN)
local earlier_unanswered = ProtoExpert.new("orbis.earlier_unanswered", "The request before was not answered",
                                           expert.group.SEQUENCE, expert.severity.NOTE)
orbis.experts = { swapped_echo, no_answer, earlier_unanswered }

-- What codes 100 to 103 ask for.
local questions = { [100] = "Name", [101] = "Descriptor", [102] = "Storage class", [103] = "Value" }

-- By frame number: requests, the request that an answer belongs to, and the one that was left without an answer before a
-- request. Whether a request is answered is known only at a second look at its frame, as Wireshark and "tshark -2" take.
local requests, request_of, unanswered_before = {}, {}, {}
local open_request = {} -- by connection: the frame number of the request that waits for its answer

function orbis.init()
    requests, request_of, unanswered_before, open_request = {}, {}, {}, {}
end

local function word(bytes, position)
    return bytes:byte(position) * 256 + bytes:byte(position + 1)
end

local function add_note(pinfo, text)
    pinfo.cols.info:append(" [" .. text .. "]")
end

local function add_property(tree, number)
    local name = properties[number] and properties[number][2] or "unknown"
    local branch = tree:add(orbis)
    branch:set_text("Duo Orbis property " .. number .. ": " .. name)
    branch:add(number_field, number)
    branch:add(name_field, name)
    return branch, name
end

local function add_remark(tree, pinfo, kind, text)
    local branch = tree:add(orbis)
    branch:set_text("Duo Orbis: " .. text)
    branch:add_proto_expert_info(kind)
    add_note(pinfo, text)
end

local function value_text(kind, low, high)
    if kind == "f" then
        return string.format("%g", (Struct.unpack("<f", Struct.pack("<I2I2", low, high))))
    elseif kind == "x" then
        return string.format("0x%08X", high * 65536 + low)
    end
    return tostring((Struct.unpack("<i4", Struct.pack("<I2I2", low, high))))
end

-- Every property of which both registers are concerned, with its value if there are "words".
local function show_registers(first, count, words, pinfo, tree)
    local shown = {}
    for i = first % 2, count - 2, 2 do
        local number = math.floor((first + i) / 2)
        local property = properties[number]
        if property then
            local branch, text = add_property(tree, number)
            if #words >= 2 * i + 4 and property[1] ~= "s" then
                local value = value_text(property[1], word(words, 2 * i + 1), word(words, 2 * i + 3))
                branch:add(value_field, value)
                text = text .. " = " .. value
            end
            shown[#shown + 1] = text
        end
    end
    if #shown > 0 then
        add_note(pinfo, table.concat(shown, ", "))
    end
end

-- "unit" is what follows the header: unit identifier, function code, data.
local function read_request(unit)
    local request = { code = unit:byte(2), first = 0, count = 0, words = unit:sub(8) }
    if questions[request.code] and #unit >= 4 then
        request.property = math.floor((unit:byte(3) + unit:byte(4) * 256) / 2)
    elseif (request.code == 3 or request.code == 16) and #unit >= 6 then
        request.first, request.count = word(unit, 3), word(unit, 5)
    end
    return request
end

local function show_request(request, pinfo, tree)
    if request.property then
        local _, name = add_property(tree, request.property)
        add_note(pinfo, questions[request.code] .. " of " .. name)
    else
        show_registers(request.first, request.count, request.words, pinfo, tree)
    end
    if pinfo.visited and not request.answered then
        add_remark(tree, pinfo, no_answer, "no answer")
    end
    local before = unanswered_before[pinfo.number]
    if before then
        add_remark(tree, pinfo, earlier_unanswered, "no answer to frame " .. before)
    end
end

local function show_answer(request, unit, pinfo, tree)
    if request.property then
        local branch, name = add_property(tree, request.property)
        local what, text = questions[request.code], unit:sub(3)
        branch:add(text_field, text):set_text(what .. ": " .. text)
        add_note(pinfo, what .. " of " .. name .. ": " .. text)
    elseif request.code == 3 then
        show_registers(request.first, request.count, unit:sub(4), pinfo, tree)
    elseif request.code == 16 and #unit >= 6 and request.first == unit:byte(4) * 256 + unit:byte(3) then
        add_remark(tree, pinfo, swapped_echo, "swapped echo of register " .. request.first)
    end
end

local function follow(unit, pinfo, connection, is_request)
    local open = open_request[connection]
    if is_request then
        requests[pinfo.number] = read_request(unit)
        open_request[connection], unanswered_before[pinfo.number] = pinfo.number, open
    elseif open and requests[open].code == unit:byte(2) then
        requests[open].answered = true
        open_request[connection], request_of[pinfo.number] = nil, requests[open]
    end
end

-- Wireshark knows codes 3 and 16 well and calls the others unknown, so this only adds to its view of a frame. The device
-- takes what arrives together for one request; of several in a frame only the first is looked at.
local modbus = Dissector.get("mbtcp")

function orbis.dissector(buffer, pinfo, tree)
    local consumed = modbus:call(buffer, pinfo, tree)
    local size = buffer:len() > 8 and buffer(4, 2):uint() or 0
    if size < 2 or buffer:len() < 6 + size then
        return consumed
    end
    local unit = buffer:raw(6, size)
    local is_request = pinfo.dst_port == 502
    if not pinfo.visited then
        local master = is_request and { pinfo.src, pinfo.src_port, pinfo.dst } or { pinfo.dst, pinfo.dst_port, pinfo.src }
        follow(unit, pinfo, tostring(master[1]) .. " " .. master[2] .. " " .. tostring(master[3]), is_request)
    end
    if requests[pinfo.number] then
        show_request(requests[pinfo.number], pinfo, tree)
    elseif request_of[pinfo.number] then
        show_answer(request_of[pinfo.number], unit, pinfo, tree)
    end
    return consumed
end

DissectorTable.get("tcp.port"):add(502, orbis)

local orvet = Proto("orvet", "Orvet discovery")
local kinds = { D = "Discover", E = "Echo", G = "Get", P = "Put", A = "Apply",
                d = "Discover response", e = "Echo response", g = "Get response",
                p = "Put response", a = "Apply response" }
local orvet_fields = {
    kind = ProtoField.string("orvet.type", "Type"),
    requester = ProtoField.string("orvet.requester", "Requester"),
    address = ProtoField.string("orvet.hardware_address", "Hardware address"),
    ip = ProtoField.string("orvet.ip_address", "IP address"),
    name = ProtoField.string("orvet.name", "Name"),
    description = ProtoField.string("orvet.description", "Description"),
    property = ProtoField.string("orvet.property", "Property"),
}
orvet.fields = orvet_fields

-- Adds what the pattern's captures match from "start" on; odd captures are positions, as "()(text)" gives them.
local function add_captures(buffer, tree, text, start, pattern, ...)
    local captures = { text:find(pattern, start) }
    for i, field in ipairs({ ... }) do
        local position, piece = captures[2 * i + 1], captures[2 * i + 2]
        if piece and #piece > 0 then
            tree:add(field, buffer(position - 1, #piece), piece)
        end
    end
end

local function add_properties(buffer, tree, text, start)
    for position, line in text:sub(start):gmatch("()([^\n]+)") do
        tree:add(orvet_fields.property, buffer(start + position - 2, #line), line)
    end
end

function orvet.dissector(buffer, pinfo, root)
    local text = buffer:raw()
    local letter = text:sub(1, 1)
    local kind = kinds[letter]
    if not kind then
        return 0
    end
    pinfo.cols.protocol = "Orvet"
    pinfo.cols.info = kind .. ": " .. text:sub(3):gsub("%c", " ")
    local tree = root:add(orvet, buffer(), "Orvet discovery, " .. kind:lower())
    tree:add(orvet_fields.kind, buffer(0, 1), letter):append_text(" (" .. kind .. ")")

    if letter == "D" then
        add_captures(buffer, tree, text, 3, "()(.+)", orvet_fields.requester)
    elseif letter == "d" then
        add_captures(buffer, tree, text, 3, "^()(%S+)[ \t]()([^\t]*)\t?()([^\t]*)\t?()([^\t]*)",
                     orvet_fields.address, orvet_fields.ip, orvet_fields.name, orvet_fields.description)
    elseif letter:find("[GPAg]") then
        add_captures(buffer, tree, text, 3, "^()(%S+)", orvet_fields.address)
        add_properties(buffer, tree, text, 21)
    end
    return buffer:len()
end

local udp_ports = DissectorTable.get("udp.port")
udp_ports:add(45123, orvet)
udp_ports:add(45124, orvet)
