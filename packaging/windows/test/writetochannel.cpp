// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// writetochannel HEX: writes the bytes to the single-instance channel of the running program and hangs up.

#include <string>
#include <windows.h>

int main(int, char *argv[])
{
    const std::string digits = argv[1];
    std::string message;
    for (size_t i = 0; i < digits.size(); i += 2) {
        message += static_cast<char>(std::stoi(digits.substr(i, 2), nullptr, 16));
    }

    const char *name = R"(\\.\pipe\RavelMonitorOrbisSimulator)";
    WaitNamedPipeA(name, NMPWAIT_WAIT_FOREVER);
    const HANDLE channel = CreateFileA(name, GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    DWORD written = 0;
    return WriteFile(channel, message.data(), static_cast<DWORD>(message.size()), &written, nullptr) ? 0 : 1;
}
