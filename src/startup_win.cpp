// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "startup.h"

#include <qt_windows.h>

namespace {

// A click into a console selects its text, and a process that writes to the console then waits until the
// selection is gone: the next log line would stop the device. A console that was opened for this program
// alone selects nothing on a click; a shell's is left as it is.
void disableSelectionByClick()
{
    const HANDLE input = GetStdHandle(STD_INPUT_HANDLE);
    DWORD process = 0;
    DWORD mode = 0;
    if (GetConsoleProcessList(&process, 1) == 1 && GetConsoleMode(input, &mode)) {
        SetConsoleMode(input, (mode | ENABLE_EXTENDED_FLAGS) & ~DWORD(ENABLE_QUICK_EDIT_MODE));
    }
}

void showEscapeSequences()
{
    const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
    DWORD mode = 0;
    if (output != INVALID_HANDLE_VALUE && GetConsoleMode(output, &mode)) {
        SetConsoleMode(output, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
    }
}

} // namespace

void Startup::prepareProcess()
{
    disableSelectionByClick();
    showEscapeSequences();
    ShowWindow(GetConsoleWindow(), SW_MINIMIZE);
    AllowSetForegroundWindow(ASFW_ANY); // any process may bring the window to the front
}

void Startup::leaveTerminationToEventLoop()
{
    // Windows asks the window to close.
}
