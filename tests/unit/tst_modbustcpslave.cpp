// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// Frames and handlers of the Modbus slave through a real socket.

#include "common/helpers/networkhelper.h"
#include "common/modbus/varnomodbustcpslave.h"
#include "modbusclient.h"
#include "textliteral.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTcpServer>
#include <QThread>

#include <sys/socket.h>

using Emission = QPair<int, int>; // register number and count
Q_DECLARE_METATYPE(Emission)

namespace {

constexpr qint64 wholeAnswerSize = 9 + 2 * 65535;
const QByteArray readEverything = QByteArray::fromHex("0001 0000 0006 11 03 0000 FFFF");

int writeTimeouts = 0;
QtMessageHandler testMessageHandler = nullptr;

void countWriteTimeouts(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    writeTimeouts += message == QLatin1String("Write timeout.") ? 1 : 0;
    testMessageHandler(type, context, message);
}

} // namespace

class TestModbusTcpSlave : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { testMessageHandler = qInstallMessageHandler(countWriteTimeouts); }
    void init()
    {
        m_slave = new VarnoModbusTcpSlave(this);
        m_slave->addProperty("ComprPressure"_s, 5.0F, "ram"_s, "frrrr3.1"_s, 1016);
        m_slave->addProperty("Einheit ä"_s, "bar"_s, "text"_s, QString(), 1018);
        m_slave->setHoldingRegister(8002, 1000);
        m_slave->setHoldingRegister(65535, -1);
        m_slave->start(0);
        m_client = new ModbusClient(port());
        QTRY_VERIFY(acceptedSocket());
    }

    void cleanup()
    {
        delete m_client;
        delete m_slave;
    }

    void answers_data()
    {
        QTest::addColumn<QByteArray>("request");
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<Emission>("read");
        QTest::addColumn<Emission>("written");
        const Emission none(-1, -1);
        const auto row = [](const char *name, const char *request, const char *answer, Emission read, Emission written) {
            QTest::newRow(name) << QByteArray(request) << QByteArray(answer) << read << written;
        };
        // transaction, protocol, length, unit, function code, data
        row("float, low word first", "0001 0000 0006 11 03 07F0 0002", "00 01 00 00 00 07 11 03 04 00 00 40 a0", {2032, 2}, none);
        row("unset register reads 0", "0002 0000 0006 11 03 1F42 0002", "00 02 00 00 00 07 11 03 04 03 e8 00 00", {8002, 2}, none);
        row("text reads 0", "0003 0000 0006 01 03 07F4 0001", "00 03 00 00 00 05 01 03 02 00 00", {2036, 1}, none);
        row("numbers wrap", "0004 0000 0006 01 03 FFFF 0002", "00 04 00 00 00 07 01 03 04 ff ff 00 00", {65535, 2}, none);
        row("no registers", "0005 0000 0006 01 03 07F0 0000", "00 05 00 00 00 03 01 03 00", {2032, 0}, none);
        row("odd header comes back", "ABCD 1234 0063 FF 03 07F1 0001 99", "ab cd 12 34 00 05 ff 03 02 40 a0", {2033, 1}, none);
        row("write echoes swapped", "0006 0000 0009 01 10 1F44 0001 02 1234", "00 06 00 00 00 06 01 10 44 1f 01 00", none, {8004, 1});
        row("write of nothing", "0007 0000 0007 01 10 1F44 0000 00", "00 07 00 00 00 06 01 10 44 1f 00 00", none, {8004, 0});
        row("name, address low byte first", "0008 0000 0004 01 64 F007", "00 08 00 00 00 0f 01 64 43 6f 6d 70 72 50 72 65 73 73 75 72 65",
            none, none);
        row("odd address, same property", "0009 0000 0004 01 66 F107", "00 09 00 00 00 05 01 66 72 61 6d", none, none);
        row("descriptor", "000A 0000 0004 01 65 F007", "00 0a 00 00 00 0a 01 65 66 72 72 72 72 33 2e 31", none, none);
        row("value as text", "000B 0000 0004 01 67 F007", "00 0b 00 00 00 03 01 67 35", none, none);
        row("UTF-8", "000C 0000 0004 01 64 F407", "00 0c 00 00 00 0c 01 64 45 69 6e 68 65 69 74 20 c3 a4", none, none);
        row("empty text", "000D 0000 0004 01 65 F407", "00 0d 00 00 00 02 01 65", none, none);
        row("unknown property", "000E 0000 0004 01 67 0000", "00 0e 00 00 00 02 01 67", none, none);
    }

    void answers()
    {
        QFETCH(QByteArray, request);
        QFETCH(QByteArray, answer);
        const auto emission = [](const QSignalSpy &spy) {
            return spy.isEmpty() ? Emission(-1, -1) : Emission(spy[0][0].toInt(), spy[0][1].toInt());
        };
        const QSignalSpy read(m_slave, &ModbusTcpSlave::holdingRegisterRead);
        const QSignalSpy written(m_slave, &ModbusTcpSlave::holdingRegisterWritten);
        QCOMPARE(m_client->exchange(request, (answer.size() + 1) / 3), answer);
        QTEST(emission(read), "read");
        QTEST(emission(written), "written");
    }

    void silence_data()
    {
        QTest::addColumn<QByteArray>("request");
        QTest::addColumn<QByteArray>("warning");
        const auto row = [](const char *name, const char *request, const char *warning) {
            QTest::newRow(name) << QByteArray(request) << QByteArray(warning);
        };
        const char *shortHeader = "Invalid request, shorter than a Modbus TCP header.";
        row("one byte", "00", shortHeader);
        row("header alone", "0001 0000 0006 11", shortHeader);
        row("read without count", "0001 0000 0005 11 03 07F0 00", "Invalid request, too little data for function code 3");
        row("write without byte count", "0001 0000 0006 11 10 07F0 0001", "Invalid request, too little data for function code 16");
        row("write, odd byte count", "0001 0000 000A 11 10 07F0 0002 03 123456", "Invalid request, byteCount != 2 * registerCount.");
        row("write, count 128, byte count 0", "0001 0000 0007 11 10 07F0 0080 00", "Invalid request, byteCount != 2 * registerCount.");
        row("write, values missing", "0001 0000 0009 11 10 07F0 0002 04 1234", "Invalid request, too little data for function code 16");
        row("name without address", "0001 0000 0003 11 64 F0", "Invalid request, too little data for function code 100");
        row("code 104", "0001 0000 0004 11 68 F007", "The custom function code 104 is not supported.");
        row("code 131", "0001 0000 0002 11 83", "The custom function code 131 is not supported.");
    }

    void silence()
    {
        QFETCH(QByteArray, request);
        QFETCH(QByteArray, warning);
        const QSignalSpy received(acceptedSocket(), &QTcpSocket::readyRead);
        const QSignalSpy read(m_slave, &ModbusTcpSlave::holdingRegisterRead);
        const QSignalSpy written(m_slave, &ModbusTcpSlave::holdingRegisterWritten);
        QTest::ignoreMessage(QtWarningMsg, warning.constData());
        m_client->write(QByteArray::fromHex(request));
        QTRY_COMPARE(received.count(), 1);
        QCOMPARE(read.count() + written.count(), 0);
        // The next answer is the first that arrives, and it shows that nothing was written.
        QCOMPARE(m_client->ask(3, "07F0 0002").toHex(' '), QByteArray("04 00 00 40 a0"));
    }

    void registerLayout_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVariant>("low");
        QTest::addColumn<QVariant>("high");
        QTest::addColumn<QVariant>("readBack");
        QTest::newRow("float") << QVariant(5.0F) << QVariant(0) << QVariant(0x40A0) << QVariant(5.0F);
        QTest::newRow("int") << QVariant(10) << QVariant(10) << QVariant(0) << QVariant(10U);
        QTest::newRow("negative int") << QVariant(-1) << QVariant(0xFFFF) << QVariant(0xFFFF) << QVariant(0xFFFFFFFFU);
        QTest::newRow("unsigned, low half only") << QVariant(0x12345678U) << QVariant(0x12345678U) << QVariant(0) << QVariant(0x5678U);
        const QVariant text("bar"_s);
        QTest::newRow("text") << text << text << QVariant(0) << QVariant(0U);
    }

    void registerLayout()
    {
        QFETCH(QVariant, value);
        m_slave->setPropertyValue(1016, value);
        QTEST(m_slave->holdingRegister(2032), "low");
        QTEST(m_slave->holdingRegister(2033), "high");
        QTEST(m_slave->propertyValue(1016), "readBack");
        QFETCH(QVariant, readBack);
        QCOMPARE(m_slave->propertyValue(1016).userType(), readBack.userType());
    }

    void longReadWrapsItsByteCount()
    {
        const QByteArray answer = m_client->exchange("0001 0000 0006 11 03 07F0 00C8", 409);
        QCOMPARE(answer.left(38), QByteArray("00 01 00 00 01 93 11 03 90 00 00 40 a0")); // 0x90: 400 modulo 256
        QCOMPARE(answer.size(), 409 * 3 - 1);
    }

    void writtenRegistersAreReadBack()
    {
        m_client->ask(16, "07F0 0002 04 FFFF 4110"); // 9.06 as float, low word first
        QCOMPARE(m_slave->holdingRegister(2032), QVariant(0xFFFF));
        QCOMPARE(m_slave->propertyValue(1016).toFloat(), 9.06249905F);
        QCOMPARE(m_client->ask(103, "F007"), QByteArray("5")); // the text does not follow
    }

    void unknownProperty()
    {
        QTest::ignoreMessage(QtWarningMsg, "Unknown property number 7");
        m_slave->setPropertyValue(7, 1);
        QTest::ignoreMessage(QtWarningMsg, "No register set with number 14");
        QVERIFY(!m_slave->propertyValue(7).isValid());
        QCOMPARE(m_slave->propertyNumbers(), (QList<quint16>{1016, 1018}));
    }

    void fragmentsAndJoinedFrames()
    {
        const QSignalSpy received(acceptedSocket(), &QTcpSocket::readyRead);
        m_client->write(QByteArray::fromHex("0001 0000 00"));
        QTRY_COMPARE(received.count(), 1);
        m_client->write(QByteArray::fromHex("06 11 03 07F0 0002"));
        QTRY_COMPARE(received.count(), 2);
        // Two frames in one read are one frame with too many bytes.
        QCOMPARE(m_client->exchange("0001 0000 0006 11 03 07F0 0001 0002 0000 0006 11 03 07F0 0001", 11),
                 QByteArray("00 01 00 00 00 05 11 03 02 00 00"));
        ModbusClient other(port());
        QCOMPARE(other.ask(3, "07F1 0001").toHex(' '), QByteArray("02 40 a0"));
        QCOMPARE(m_client->bytesAvailable(), 0);
    }

    // Once, each further request of a master that fetched no answers held up all others for another two seconds.
    void stuckReaderCostsOneWait()
    {
        makeAnswersLong();
        ModbusClient stuck(port(), 4096);
        stuck.write(readEverything);
        QTRY_COMPARE(writeTimeouts, 1);
        for (int i = 0; i < 3; ++i) {
            stuck.write(readEverything);
            QCOMPARE(m_client->ask(3, "07F1 0001").toHex(' '), QByteArray("02 40 a0"));
        }
        QCOMPARE(writeTimeouts, 1);

        // Fetching brings the rest, then the answer to what waited meanwhile and was read as one frame.
        stuck.setReadBufferSize(0);
        qint64 fetched = 0;
        QTRY_COMPARE(fetched += stuck.readAll().size(), 2 * wholeAnswerSize);
    }

    // Qt reads such a request into the socket's buffer while it waits for the answer to leave, and tells nobody.
    void requestDuringLongAnswer()
    {
        makeAnswersLong();
        qint64 fetched = 0;
        const QScopedPointer<QThread> master(QThread::create([this, &fetched] {
            QTcpSocket socket;
            socket.connectToHost("127.0.0.1"_s, port());
            socket.waitForConnected();
            socket.write(readEverything);
            socket.waitForReadyRead();
            socket.write(readEverything);
            while (fetched < 2 * wholeAnswerSize && socket.waitForReadyRead()) {
                fetched += socket.readAll().size();
            }
        }));
        master->start();
        QTRY_VERIFY_WITH_TIMEOUT(master->isFinished(), 60000);
        QCOMPARE(fetched, 2 * wholeAnswerSize);
    }

    void socketsOfGoneMastersGo()
    {
        const ModbusClient second(port());
        QTRY_COMPARE(m_slave->findChildren<QTcpSocket *>().size(), 2);
        m_client->abort();
        QTRY_COMPARE(m_slave->findChildren<QTcpSocket *>().size(), 1);
    }

    void occupiedPort()
    {
        m_slave->stop();
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression("^Failed listening on port \\d+$"_s));
        QTcpServer occupant;
        QVERIFY(occupant.listen(QHostAddress::Any));
        m_slave->start(occupant.serverPort());
    }

    void hexText()
    {
        QCOMPARE(NetworkHelper::toHexString(QByteArray::fromHex("001AFF")), "0x0 0x1A 0xFF"_s);
        QCOMPARE(NetworkHelper::toHexString(QByteArray()), QString());
    }

    void addressTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("meaning"); // m: hardware address, p: placeholder, i: IPv4 address, n: netmask
        const auto row = [](const char *text, const char *meaning) {
            QTest::newRow(text) << QString::fromLatin1(text) << QString::fromLatin1(meaning);
        };
        row("00:11:22:aa:BB:cC", "m");
        row("00-11--22:aabbcc", "m");
        row("0000:1111:22:33:44:55", "m");
        row("00:11:22:33:44:55:", "m");
        row("zz:11:22:33:44:55", "");
        row("00:11:22:33:44", "");
        row("00:00:5e:00:53:10", "mp");
        row("00:00:5E:00:53:10", "m");
        row("00:00:00:00:12:34", "mp");
        row("255.255.255.1", "i");
        row("255.255.255.254", "in");
        row("192.168.1.255", "");
        row("192.168.1.256", "");
        row("255.255.255.000", "in");
        row("255.255.0.0", "in");
        row("255.255.254.00", "i");
        row("255.128.00.0", "in");
        row("255.0.255.0", "i");
        row("0.0.0.0", "in");
    }

    void addressTexts()
    {
        QFETCH(QString, text);
        QString meaning;
        meaning += NetworkHelper::isValidMacAddress(text) ? "m"_s : QString();
        meaning += NetworkHelper::isPlaceholderMacAddress(text) ? "p"_s : QString();
        meaning += NetworkHelper::isValidIpv4Address(text) ? "i"_s : QString();
        meaning += NetworkHelper::netmaskPattern().exactMatch(text) ? "n"_s : QString();
        QTEST(meaning, "meaning");
    }

private:
    // All registers are set, and connections accepted from now on take little of an answer at once.
    void makeAnswersLong()
    {
        for (int number = 0; number <= 0xFFFF; ++number) {
            m_slave->setHoldingRegister(static_cast<quint16>(number), number);
        }
        m_slave->setPropertyValue(1016, 5.0F);
        const int size = 4096;
        const auto listener = static_cast<int>(m_slave->findChild<QTcpServer *>()->socketDescriptor());
        QCOMPARE(setsockopt(listener, SOL_SOCKET, SO_SNDBUF, &size, sizeof size), 0);
    }

    quint16 port() const { return m_slave->findChild<QTcpServer *>()->serverPort(); }
    QTcpSocket *acceptedSocket() const { return m_slave->findChild<QTcpSocket *>(); }

    VarnoModbusTcpSlave *m_slave = nullptr;
    ModbusClient *m_client = nullptr;
};

QTEST_GUILESS_MAIN(TestModbusTcpSlave)
#include "tst_modbustcpslave.moc"
