// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QVariant>

#include <optional>

class QByteArray;

// What the costly values of one snapshot may use up: pictures (32 MB of pixels), QRegExp patterns and
// gradients.
constexpr double snapshotBudget = 1;

// Reads a value back from the bytes that "QDataStream << QVariant" made of it (stream version of Qt 5.13
// to 5.15), and takes its cost from the budget.
//
// Safe on any bytes: QDataStream itself trusts counts, nests without end, opens files for time zones and
// icons and calls function pointers that it finds in the stream, so the bytes are checked as a whole before
// Qt makes a value of them. All built-in types are readable, an invalid QVariant too. No value give:
// pointers, easing curves with a function of their own, QRegion, icons of plugins, user types, more than 100
// levels of nesting, missing bytes, and what goes beyond the budget.
//
// Callable from any thread, throws nothing.
std::optional<QVariant> readSnapshotValue(const QByteArray &bytes, double &budget);
