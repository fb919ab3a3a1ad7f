/* SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
 * SPDX-License-Identifier: MIT
 *
 * Prints the properties of a device and its alarm, and confirms the alarm if the device asks for it, on
 * libmodbus.
 *
 *   monitor HOST
 */

#include <errno.h>
#include <fcntl.h>
#include <modbus.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/socket.h>
#include <sys/time.h>

enum { PORT = 502, UNIT = 1, ITERATOR = 8002, END = 0xFFFF };
enum { ALARM = 1000, ALARM_SIGNATURE = 1001, ALARM_ACTION = 4002, ALARM_MSG = 4004 };
enum { NAME = 100, DESCRIPTOR, STORAGE, VALUE };
enum { CONFIRM = 1 }; /* what an alarm's action is while a confirmation is expected */
enum { HEADER = 6, PREFIX = 2, ANSWER = 260 };

static void fail(const char *what)
{
    fprintf(stderr, "%s: %s\n", what, modbus_strerror(errno));
    exit(EXIT_FAILURE);
}

/* libmodbus leaves the socket non-blocking. */
static void make_blocking(int socket, int seconds)
{
    const struct timeval patience = {.tv_sec = seconds};
    if (fcntl(socket, F_SETFL, 0) != 0
        || setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience) != 0) {
        fail("connecting");
    }
}

static void receive(modbus_t *device, uint8_t *data, size_t size)
{
    if (recv(modbus_get_socket(device), data, size, MSG_WAITALL) != (ssize_t)size) {
        fail("receiving");
    }
}

/* Codes 100 to 103 take the property's register, low byte first. The text is valid until the next call for
 * this code. */
static const char *text(modbus_t *device, int code, int property)
{
    static char texts[VALUE + 1][ANSWER + 1];
    const int number = 2 * property;
    const uint8_t request[] = {UNIT, (uint8_t)code, number & 0xFF, (uint8_t)(number >> 8)};
    if (modbus_send_raw_request(device, request, sizeof request) < 0) {
        fail("asking");
    }
    /* libmodbus doesn't know how long these answers are, so it must not receive them: the header tells. */
    uint8_t header[HEADER];
    uint8_t answer[ANSWER] = {0};
    receive(device, header, sizeof header);
    const size_t size = (size_t)header[4] << 8 | header[5];
    if (size < PREFIX || size > sizeof answer) {
        fail("receiving");
    }
    receive(device, answer, size);
    memcpy(texts[code], answer + PREFIX, size - PREFIX);
    texts[code][size - PREFIX] = '\0';
    return texts[code];
}

/* The low word comes first. */
static uint32_t read_property(modbus_t *device, int property)
{
    uint16_t words[2];
    if (modbus_read_registers(device, 2 * property, 2, words) != 2) {
        fail("reading");
    }
    return words[0] | (uint32_t)words[1] << 16;
}

static void write_zero(modbus_t *device, int number)
{
    const uint16_t words[2] = {0, 0};
    /* The device echoes address and count byte-swapped. libmodbus takes that for an invalid answer, although
     * the registers are written; what is left of the answer has to go before the next request. */
    if (modbus_write_registers(device, number, 2, words) != 2 && errno != EMBBADDATA) {
        fail("writing");
    }
    modbus_flush(device);
}

static void show_table(modbus_t *device)
{
    int numbers[128];
    int count = 0;
    write_zero(device, ITERATOR);
    while (count < 128 && (numbers[count] = (int)(read_property(device, ITERATOR / 2) & 0xFFFF)) != END) {
        count++;
    }
    for (int i = 0; i < count; i++) {
        printf("%d %-18s %-8s %-7s %s\n", numbers[i], text(device, NAME, numbers[i]),
               text(device, DESCRIPTOR, numbers[i]), text(device, STORAGE, numbers[i]),
               text(device, VALUE, numbers[i]));
    }
}

/* Returns what the device expects of its master. */
static uint32_t show_alarm(modbus_t *device)
{
    const uint32_t action = read_property(device, ALARM_ACTION);
    printf("alarm %u, signature 0x%08X, action %u: %s\n", read_property(device, ALARM),
           read_property(device, ALARM_SIGNATURE), action, text(device, VALUE, ALARM_MSG));
    return action;
}

int main(int argc, char *argv[])
{
    modbus_t *device = argc == 2 ? modbus_new_tcp(argv[1], PORT) : NULL;
    if (!device || modbus_connect(device) != 0) {
        fail("monitor HOST");
    }
    make_blocking(modbus_get_socket(device), 5);
    modbus_set_response_timeout(device, 5, 0); /* seconds, microseconds; by default half a second */

    show_table(device);
    if (show_alarm(device) == CONFIRM) {
        write_zero(device, 2 * ALARM_ACTION);
        show_alarm(device);
    }
    modbus_close(device);
    modbus_free(device);
    return EXIT_SUCCESS;
}
