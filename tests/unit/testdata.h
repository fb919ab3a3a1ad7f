// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// Rows that tests read from files in tests/data, where "#" begins a comment.

#pragma once

#include <QFile>
#include <QRegularExpression>
#include <QTest>

// "text"_s is a QString.
inline QString operator""_s(const char *utf8, std::size_t size)
{
    return QString::fromUtf8(utf8, static_cast<int>(size));
}

inline QStringList dataLines(const char *name)
{
    QFile file(QStringLiteral(TEST_DATA "/") + QLatin1String(name));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("No test data %s", name);
    }
    const QString text = QString::fromUtf8(file.readAll());
    return QString(text).remove(QRegularExpression("(^| +)#.*$"_s, QRegularExpression::MultilineOption)).split(u'\n', Qt::SkipEmptyParts);
}

// Each line is a row of fields between "|".
inline QList<QStringList> dataTable(const char *name)
{
    QList<QStringList> rows;
    for (const QString &line : dataLines(name)) {
        rows += line.split(QRegularExpression(" *\\| *"_s));
    }
    return rows;
}

// Adds test rows with a column of "steps": a line names a row, and the indented lines below it are the steps.
inline void addRows(const char *name)
{
    QTest::addColumn<QStringList>("steps");
    for (const QString &row : dataLines(name).join(u'\n').split(QRegularExpression("\\n(?! )"_s))) {
        const QStringList lines = row.split(QRegularExpression("\\n +"_s));
        QTest::newRow(qPrintable(lines.first())) << QStringList(lines.mid(1));
    }
}
