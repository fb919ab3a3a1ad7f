// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/helpers/logwriter.h"

void LogWriter::install()
{
    // The log stays with Qt.
}
