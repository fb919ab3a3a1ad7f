// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/helpers/systemhelper.h"
#include "testdata.h"

#include <QDir>
#include <QSettings>
#include <QUuid>

class TestSystemHelper : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QTest::ignoreMessage(QtWarningMsg, "Configuration path not set!");
        QCOMPARE(SystemHelper::configurationPath(), QString());
        SystemHelper::initializeConfigurationPath();
    }

    void fallbackDirectory()
    {
        const QByteArray usual = qgetenv("PROGRAMDATA");
        const QString usualDirectory = QDir::currentPath();
        QVERIFY(QDir::setCurrent(QDir::tempPath()));
        qputenv("PROGRAMDATA", "");
        SystemHelper::initializeConfigurationPath();
        const QDir fallback("C:/ProgramData/Pelmora/Ravel Monitor Orbis Simulator"_s); // a relative path where drives have no letters
        QCOMPARE(SystemHelper::configurationPath(), fallback.absolutePath());
        QVERIFY(fallback.exists());
        qputenv("PROGRAMDATA", usual);
        SystemHelper::initializeConfigurationPath();
        QVERIFY(QDir::setCurrent(usualDirectory)); // to the drive with the test data, too
    }

    void userAndComputerName_data() { addTable("users.txt"); }
    void userAndComputerName()
    {
        QFETCH(QStringList, fields);
        qputenv("USERNAME", fields.at(0).toLatin1());
        qputenv("CLIENTNAME", fields.at(1).toLatin1());
        qputenv("COMPUTERNAME", fields.at(2).toLatin1());
        QCOMPARE(SystemHelper::userAndComputerName(), fields.at(3));
    }

#ifdef Q_OS_WIN // in the test's own Windows installation
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
