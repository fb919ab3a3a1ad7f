// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

// The steps of start-up that each platform takes in its own way.
namespace Startup {

// Makes process and console fit for a program that runs for weeks. To be called before the application object
// exists, as that chooses its event loop for good. A step that fails is not worth stopping for.
void prepareProcess();

// Has requests to terminate end the event loop. To be called right before it runs: until then nobody would
// act on a request, so that it has to end the process by itself.
void leaveTerminationToEventLoop();

} // namespace Startup
