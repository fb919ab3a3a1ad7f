// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QVariant>

#include <optional>

class QByteArray;

// Reads a value back from the bytes that "QDataStream << QVariant" made of it (stream version of Qt 5.13
// to 5.15).
//
// Safe on any bytes: QDataStream itself trusts counts, nests without end, opens files for time zones and
// calls function pointers that it finds in the stream, so the bytes are checked as a whole before Qt sees
// them. Readable are the numbers and the texts, dates, geometry, patterns, lists and maps of Qt Core, JSON
// documents, QColor, QFont and QKeySequence; an invalid QVariant counts as a value. Everything else
// (pictures, easing curves, user types, more than 100 levels of nesting, bytes missing) gives no
// value.
//
// Callable from any thread, throws nothing.
std::optional<QVariant> readSnapshotValue(const QByteArray &bytes);
