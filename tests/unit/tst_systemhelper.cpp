// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/helpers/systemhelper.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QUuid>

#include <stdexcept>

class TestSystemHelper : public QObject
{
    Q_OBJECT

private slots:
    void configurationPath_data();
    void configurationPath();
    void inaccessibleConfigurationPath();
    void identityIsKept();
    void identityCacheIsUnusable();
    void serialNumberReplacesIdentity();
    void userAndComputerName_data();
    void userAndComputerName();
};

void TestSystemHelper::configurationPath_data()
{
    QTest::addColumn<QByteArray>("subdirectory");
    QTest::addColumn<QString>("tail");
    QTest::newRow("plain") << QByteArray() << QStringLiteral("/Pelmora/Ravel Monitor Orbis Simulator");
    QTest::newRow("per user") << QByteArray("abc")
                              << QStringLiteral("/Pelmora/Ravel Monitor Orbis Simulator/abc");
}

void TestSystemHelper::configurationPath()
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

void TestSystemHelper::inaccessibleConfigurationPath()
{
    qputenv("PROGRAMDATA", "/proc/none");
    QVERIFY_EXCEPTION_THROWN(SystemHelper::initializeConfigurationPath(), std::runtime_error);
}

void TestSystemHelper::identityIsKept()
{
    const QTemporaryDir base;
    qputenv("PROGRAMDATA", base.path().toLocal8Bit());
    SystemHelper::initializeConfigurationPath();
    const QString first = SystemHelper::getIdentifier();
    QCOMPARE(first.size(), 36);
    QCOMPARE(QUuid::fromString(first).toString(QUuid::WithoutBraces), first);
    QTest::ignoreMessage(QtInfoMsg, qPrintable(QStringLiteral("Cached ID: \"%1\"").arg(first)));
    QCOMPARE(SystemHelper::getIdentifier(), first);
}

void TestSystemHelper::identityCacheIsUnusable()
{
    const QTemporaryDir base;
    qputenv("PROGRAMDATA", base.path().toLocal8Bit());
    SystemHelper::initializeConfigurationPath();
    QVERIFY(QDir(SystemHelper::configurationPath()).mkdir(QStringLiteral("sn_cache")));
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral(
                             "^Could not read cache file: \".+\" create an uncached identifier\\.$")));
    const QString first = SystemHelper::getIdentifier();
    QCOMPARE(first.size(), 36);
    QVERIFY(SystemHelper::getIdentifier() != first);
}

void TestSystemHelper::serialNumberReplacesIdentity()
{
    const QTemporaryDir base;
    qputenv("PROGRAMDATA", base.path().toLocal8Bit());
    SystemHelper::initializeConfigurationPath();
    SystemHelper::setSerialNumberOverride(QStringLiteral("ABC123"));
    QCOMPARE(SystemHelper::getIdentifier(), QStringLiteral("ABC123"));
    QVERIFY(!QFile::exists(SystemHelper::configurationPath() + QStringLiteral("/sn_cache")));
    SystemHelper::setSerialNumberOverride(QString());
}

void TestSystemHelper::userAndComputerName_data()
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

void TestSystemHelper::userAndComputerName()
{
    QFETCH(QByteArrayList, environment);
    qputenv("USERNAME", environment.at(0));
    qputenv("CLIENTNAME", environment.at(1));
    qputenv("COMPUTERNAME", environment.at(2));
    QTEST(SystemHelper::userAndComputerName(), "name");
}

QTEST_GUILESS_MAIN(TestSystemHelper)
#include "tst_systemhelper.moc"
