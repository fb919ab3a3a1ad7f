// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// libmodbus PORT: a server with one thread around select(), the way libmodbus is commonly used for several
// masters. Registers 0 to 65535, with the float 5.0 in 2032 (low word) and 2033.

#include <modbus.h>
#include <sys/select.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>

int main(int argc, char **argv)
{
    modbus_t *context = argc == 2 ? modbus_new_tcp("0.0.0.0", std::atoi(argv[1])) : nullptr;
    modbus_mapping_t *registers = modbus_mapping_new(0, 0, 65535, 0);
    if (!context || !registers) {
        return EXIT_FAILURE;
    }
    registers->tab_registers[2033] = 0x40A0;
    const int server = modbus_tcp_listen(context, 50);
    if (server < 0) {
        return EXIT_FAILURE;
    }

    fd_set watched;
    FD_ZERO(&watched);
    FD_SET(server, &watched);
    int highest = server;
    for (;;) {
        fd_set ready = watched;
        if (select(highest + 1, &ready, nullptr, nullptr, nullptr) < 0) {
            return EXIT_FAILURE;
        }
        for (int descriptor = 0; descriptor <= highest; ++descriptor) {
            if (!FD_ISSET(descriptor, &ready)) {
                continue;
            }
            if (descriptor == server) {
                int client = server;
                modbus_tcp_accept(context, &client);
                const int accepted = modbus_get_socket(context);
                FD_SET(accepted, &watched);
                highest = std::max(highest, accepted);
                continue;
            }
            modbus_set_socket(context, descriptor);
            std::array<std::uint8_t, MODBUS_TCP_MAX_ADU_LENGTH> request = {};
            const int size = modbus_receive(context, request.data());
            if (size > 0) {
                modbus_reply(context, request.data(), size, registers);
            } else if (size < 0) {
                close(descriptor);
                FD_CLR(descriptor, &watched);
            }
        }
    }
}
