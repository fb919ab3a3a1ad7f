-- SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
-- SPDX-License-Identifier: MIT
--
-- Shows what travels between the device and its clients: Orvet discovery on UDP ports 45123 and 45124, and over
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

-- What codes 100 to 103 ask for.
local questions = { [100] = "Name", [101] = "Descriptor", [102] = "Storage class", [103] = "Value" }

local function_code = Field.new("modbus.func_code")
local data = Field.new("modbus.data")
local request_frame = Field.new("modbus.request_frame")
local register_numbers = Field.new("modbus.regnum16")
local register_values = Field.new("modbus.regval_uint16")

local function add_property(tree, number)
    local name = properties[number] and properties[number][2] or "unknown"
    local branch = tree:add(orbis)
    branch:set_text("Duo Orbis property " .. number .. ": " .. name)
    branch:add(number_field, number)
    branch:add(name_field, name)
    return branch, name
end

-- Answers to codes 100 to 103 don't say which property they are about: frame of the request to property number.
local asked = {}

function orbis.init()
    asked = {}
end

local function show_question(code, pinfo, tree)
    local address = data()
    if address and address.len >= 2 then
        asked[pinfo.number] = math.floor(address.range(0, 2):le_uint() / 2)
        local _, name = add_property(tree, asked[pinfo.number])
        pinfo.cols.info:append(" [" .. questions[code] .. " of " .. name .. "]")
    end
end

local function show_answer(code, pinfo, tree)
    local request = request_frame()
    local number = request and asked[request.value]
    if number then
        local branch, name = add_property(tree, number)
        local text = data() and data().range:string(ENC_UTF_8) or ""
        branch:add(text_field, text):set_text(questions[code] .. ": " .. text)
        pinfo.cols.info:append(" [" .. questions[code] .. " of " .. name .. ": " .. text .. "]")
    end
end

local function value_text(kind, low, high)
    if kind == "f" then
        return string.format("%g", (Struct.unpack("<f", Struct.pack("<I2I2", low, high))))
    elseif kind == "x" then
        return string.format("0x%08X", high * 65536 + low)
    end
    return tostring((Struct.unpack("<i4", Struct.pack("<I2I2", low, high))))
end

local function show_registers(tree)
    local numbers, words = { register_numbers() }, { register_values() }
    for i = 1, #words - 1 do
        local number = numbers[i].value / 2
        local property = properties[number]
        if property and property[1] ~= "s" then
            local branch = add_property(tree, number)
            branch:add(value_field, value_text(property[1], words[i].value, words[i + 1].value))
        end
    end
end

-- Wireshark knows codes 3 and 16 well and calls the others unknown, so this only adds to its view of a frame.
function orbis.dissector(_, pinfo, tree)
    local code = function_code()
    if not code then
        return
    elseif not questions[code.value] then
        show_registers(tree)
    elseif pinfo.src_port == 502 then
        show_answer(code.value, pinfo, tree)
    else
        show_question(code.value, pinfo, tree)
    end
end

register_postdissector(orbis)

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
