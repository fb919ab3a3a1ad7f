// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// Rows that tests read from files in tests/data, where "#" begins a comment.

#pragma once

#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <functional>

// "text"_s is a QString.
inline QString operator""_s(const char *utf8, std::size_t size)
{
    return QString::fromUtf8(utf8, static_cast<int>(size));
}

// A line of a file: "device.txt:12" and its text.
struct DataLine
{
    QString place;
    QString text;
    QString verb() const { return text.trimmed().section(u' ', 0, 0); }
    QString rest() const { return text.trimmed().section(u' ', 1); }
    // The message for a step with an unexpected outcome.
    QString failure(const QString &expected, const QString &actual) const
    {
        return QStringList({place, "step:     "_s + text.trimmed(), "expected: "_s + expected, "actual:   "_s + actual}).join("\n   "_s);
    }
};
Q_DECLARE_METATYPE(DataLine)

inline QList<DataLine> dataLines(const char *name)
{
    QFile file(QStringLiteral(TEST_DATA "/") + QLatin1String(name));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("No test data %s", name);
    }
    QList<DataLine> lines;
    int number = 0;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        const QString text = QString(line).remove(QRegularExpression("(^| +)#.*$"_s));
        ++number;
        if (!text.isEmpty()) {
            lines += {"%1:%2"_s.arg(QLatin1String(name)).arg(number), text};
        }
    }
    return lines;
}

// Each line is a row of fields separated by "|".
inline QList<QStringList> dataTable(const char *name)
{
    QList<QStringList> rows;
    for (const DataLine &line : dataLines(name)) {
        rows += line.text.split(QRegularExpression(" *\\| *"_s));
    }
    return rows;
}

// Adds each of these rows as a test row with a column of "fields".
inline void addTable(const char *name)
{
    QTest::addColumn<QStringList>("fields");
    for (const QStringList &row : dataTable(name)) {
        QTest::newRow(qPrintable(row.join(" | "_s))) << row;
    }
}

// Adds test rows with a column of "steps": a line names a row, and the indented lines below it are the steps.
inline void addRows(const char *name)
{
    QTest::addColumn<QList<DataLine>>("steps");
    const QList<DataLine> lines = dataLines(name);
    const auto isTitle = [](const DataLine &line) { return !line.text.startsWith(u' '); };
    for (auto title = lines.begin(); title != lines.end();) {
        const auto next = std::find_if(title + 1, lines.end(), isTitle);
        QTest::newRow(qPrintable(title->text)) << QList<DataLine>(title + 1, next);
        title = next;
    }
}

// "! warning TEXT" or "! critical TEXT" in any table: the next step logs this line.
inline void expectMessage(const DataLine &step)
{
    const QString type = step.rest().section(u' ', 0, 0);
    QVERIFY2(type == "warning"_s || type == "critical"_s, qPrintable(step.failure("warning or critical"_s, type)));
    QTest::ignoreMessage(type == "warning"_s ? QtWarningMsg : QtCriticalMsg, qPrintable(step.rest().section(u' ', 1)));
}

// The lines that are logged meanwhile.
inline QStringList linesOf(const std::function<void()> &actions)
{
    static QStringList lines;
    lines.clear();
    const auto handler = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        lines += type == QtDebugMsg ? QStringList() : QStringList(QString(text).remove(u'"'));
    });
    actions();
    qInstallMessageHandler(handler);
    return lines;
}
