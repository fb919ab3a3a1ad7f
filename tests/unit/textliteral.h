// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// "text"_s is a QString.
inline QString operator""_s(const char *utf8, std::size_t size)
{
    return QString::fromUtf8(utf8, static_cast<int>(size));
}
