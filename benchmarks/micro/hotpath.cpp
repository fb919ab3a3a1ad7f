// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// What one request costs inside the program, without the kernel and Qt's event loop around it.

#include "common/modbus/tcpapplicationdataunit.h"
#include "common/modbus/varnomodbustcpslave.h"
#include "common/modbus/varnomodbustcpslave_p.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <benchmark/benchmark.h>

namespace {

constexpr quint16 pressure = 1016;

class Slave : public VarnoModbusTcpSlave
{
public:
    Slave()
    {
        addProperty(QStringLiteral("ComprPressure"), 5.0F, QStringLiteral("ram"), QStringLiteral("frrrr3.1"),
                    pressure);
    }

    ModbusTcpSlavePrivate *handlers() const { return d; }
};

QByteArray readRequest()
{
    return QByteArray::fromHex("0001 0000 0006 01 03 07F0 0002");
}

TcpApplicationDataUnit parsed(const char *hex)
{
    return TcpApplicationDataUnit::fromByteArray(QByteArray::fromHex(hex));
}

void parse(benchmark::State &state)
{
    const QByteArray bytes = readRequest();
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(TcpApplicationDataUnit::fromByteArray(bytes));
    }
}

void serialise(benchmark::State &state)
{
    const auto unit = TcpApplicationDataUnit::fromByteArray(readRequest());
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(unit.toByteArray());
    }
}

void readHandler(benchmark::State &state)
{
    const Slave slave;
    const auto request = TcpApplicationDataUnit::fromByteArray(readRequest());
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(slave.handlers()->handleReadHoldingRegisters(request));
    }
}

void writeHandler(benchmark::State &state)
{
    const Slave slave;
    const auto request = parsed("0001 0000 000B 01 10 07F0 0002 04 0000 40A0");
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(slave.handlers()->handleWriteMultipleRegisters(request));
    }
}

void textHandler(benchmark::State &state)
{
    const Slave slave;
    const auto request = parsed("0001 0000 0004 01 67 F007");
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(slave.handlers()->handleCustomFunctionCode(request));
    }
}

void propertyWrite(benchmark::State &state)
{
    Slave slave;
    float value = 0;
    for ([[maybe_unused]] auto round : state) {
        slave.setPropertyValue(pressure, value);
        value += 1;
    }
}

BENCHMARK(parse);
BENCHMARK(readHandler);
BENCHMARK(writeHandler);
BENCHMARK(textHandler);
BENCHMARK(propertyWrite);
BENCHMARK(serialise);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
