// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/helpers/systemhelper.h"
#include "testdata.h"

#include <QDir>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QUuid>

#include <stdexcept>

class TestSystemHelper : public QObject
{
    Q_OBJECT

private slots:
    void configurationPath_data()
    {
        QTest::addColumn<QByteArray>("subdirectory");
        QTest::addColumn<QString>("tail");
        QTest::newRow("plain") << QByteArray() << "/Pelmora/Ravel Monitor Orbis Simulator"_s;
        QTest::newRow("per user") << QByteArray("abc") << "/Pelmora/Ravel Monitor Orbis Simulator/abc"_s;
    }

    void configurationPath()
    {
        QFETCH(QByteArray, subdirectory);
        QFETCH(QString, tail);
        const QTemporaryDir base;
        qputenv("PROGRAMDATA", base.path().toLocal8Bit());
        qputenv("TP_PD", subdirectory);
        SystemHelper::initializeConfigurationPath();
        qunsetenv("TP_PD");
        QCOMPARE(SystemHelper::configurationPath(), base.path() + tail);
        QVERIFY(QFile::exists(base.path() + tail));
    }

    void inaccessibleConfigurationPath()
    {
        qputenv("PROGRAMDATA", "/proc/none");
        QVERIFY_EXCEPTION_THROWN(SystemHelper::initializeConfigurationPath(), std::runtime_error);
    }

    void identityIsKept()
    {
        const QTemporaryDir base;
        qputenv("PROGRAMDATA", base.path().toLocal8Bit());
        SystemHelper::initializeConfigurationPath();
        const QString first = SystemHelper::getIdentifier();
        QCOMPARE(first.size(), 36);
        QCOMPARE(QUuid::fromString(first).toString(QUuid::WithoutBraces), first);
        QTest::ignoreMessage(QtInfoMsg, qPrintable("Cached ID: \"%1\""_s.arg(first)));
        QCOMPARE(SystemHelper::getIdentifier(), first);
    }

    void identityCacheIsUnusable()
    {
        const QTemporaryDir base;
        qputenv("PROGRAMDATA", base.path().toLocal8Bit());
        SystemHelper::initializeConfigurationPath();
        QVERIFY(QDir(SystemHelper::configurationPath()).mkdir("sn_cache"_s));
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("^Could not read cache file: \".+\" create an uncached identifier\\.$")));
        const QString first = SystemHelper::getIdentifier();
        QCOMPARE(first.size(), 36);
        QVERIFY(SystemHelper::getIdentifier() != first);
    }

    void serialNumberReplacesIdentity()
    {
        const QTemporaryDir base;
        qputenv("PROGRAMDATA", base.path().toLocal8Bit());
        SystemHelper::initializeConfigurationPath();
        SystemHelper::setSerialNumberOverride("ABC123"_s);
        QCOMPARE(SystemHelper::getIdentifier(), "ABC123"_s);
        QVERIFY(!QFile::exists(SystemHelper::configurationPath() + "/sn_cache"_s));
        SystemHelper::setSerialNumberOverride(QString());
    }

    void userAndComputerName_data()
    {
        QTest::addColumn<QByteArrayList>("environment");
        QTest::addColumn<QString>("name");
        const auto row = [](const char *title, const QByteArrayList &environment, const char *name) {
            QTest::newRow(title) << environment << QString::fromLatin1(name);
        };
        row("local session", {"anna", "", "PC1"}, "anna@PC1");
        row("remote session", {"anna", "T1", "PC1"}, "anna@T1.PC1");
        row("client only", {"anna", "T1", ""}, "anna@T1");
        row("user alone", {"anna", "", ""}, "anna");
        row("no user, no at sign", {"", "T1", "PC1"}, "T1.PC1");
    }

    void userAndComputerName()
    {
        QFETCH(QByteArrayList, environment);
        qputenv("USERNAME", environment.at(0));
        qputenv("CLIENTNAME", environment.at(1));
        qputenv("COMPUTERNAME", environment.at(2));
        QTEST(SystemHelper::userAndComputerName(), "name");
    }

#ifdef Q_OS_WIN // in the test's own installation of it
    void registryAndRights()
    {
        QSettings registry("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Cryptography"_s, QSettings::NativeFormat);
        QCOMPARE(QUuid::fromString(SystemHelper::machineId()).toString(QUuid::WithoutBraces), SystemHelper::machineId());
        registry.setValue("MachineGuid"_s, " \"a b\" "_s);
        registry.sync();
        QCOMPARE(SystemHelper::machineId(), "a b"_s);
        registry.remove("MachineGuid"_s);
        registry.sync();
        QTest::ignoreMessage(QtWarningMsg, "No machine id found!");
        QCOMPARE(SystemHelper::machineId(), QString());
        QVERIFY(SystemHelper::isUserAdmin());
    }
#endif
};

QTEST_GUILESS_MAIN(TestSystemHelper)
#include "tst_systemhelper.moc"
