// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

// Writes the log to standard error in place of Qt, line by line as Qt does, but a crowd of lines in few
// writes: most of what a line costs is the system's part, and one request of a master may bring 65,535 of
// them.
namespace LogWriter {

// To be called on the main thread, right before its event loop starts. On Windows the log stays with Qt,
// which knows whether it belongs to a console or a debugger.
void install();

} // namespace LogWriter
