/* SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
 * SPDX-License-Identifier: MIT
 *
 * A minimal master on libmodbus: reads the pressure and its set points, then raises the upper set point.
 *
 *   read_device HOST
 */

#include <errno.h>
#include <modbus.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum { PRESSURE = 2032, SET_POINTS = 4040, PORT = 502 };

static void fail(const char *what)
{
    fprintf(stderr, "%s: %s\n", what, modbus_strerror(errno));
    exit(EXIT_FAILURE);
}

/* A float fills two registers, the low word first. */
static float read_float(modbus_t *device, int number)
{
    uint16_t words[2];
    if (modbus_read_registers(device, number, 2, words) != 2) {
        fail("reading");
    }
    const uint32_t bits = words[0] | (uint32_t)words[1] << 16;
    float value;
    memcpy(&value, &bits, sizeof value);
    return value;
}

static void write_float(modbus_t *device, int number, float value)
{
    uint32_t bits;
    memcpy(&bits, &value, sizeof bits);
    const uint16_t words[2] = {bits & 0xFFFF, bits >> 16};
    /* The device echoes address and count byte-swapped. libmodbus takes that for an invalid answer, although
     * the registers are written; what is left of the answer has to go before the next request. */
    if (modbus_write_registers(device, number, 2, words) != 2 && errno != EMBBADDATA) {
        fail("writing");
    }
    modbus_flush(device);
}

int main(int argc, char *argv[])
{
    modbus_t *device = argc == 2 ? modbus_new_tcp(argv[1], PORT) : NULL;
    if (!device || modbus_connect(device) != 0) {
        fail("read_device HOST");
    }
    modbus_set_response_timeout(device, 5, 0); /* seconds, microseconds; by default half a second */
    printf("pressure %.1f bar\n", read_float(device, PRESSURE));
    printf("set points %.1f and %.1f bar\n", read_float(device, SET_POINTS),
           read_float(device, SET_POINTS + 2));
    write_float(device, SET_POINTS + 2, 9.0F);
    printf("upper set point now %.1f bar\n", read_float(device, SET_POINTS + 2));
    modbus_close(device);
    modbus_free(device);
    return EXIT_SUCCESS;
}
