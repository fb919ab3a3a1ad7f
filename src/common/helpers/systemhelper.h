// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// Ties the program to its host: configuration directory, identity of the simulated device, machine and user
// names.
//
// The configuration directory and the serial-number override are process-wide. They are set once on the main
// thread during start-up and only read afterwards, so no call takes a lock.
class SystemHelper
{
public:
    SystemHelper() = delete;

    // Determines the configuration directory, creates it with all parents where it is missing and prints it
    // to standard output:
    //   %PROGRAMDATA%/Pelmora/Ravel Monitor Orbis Simulator[/%TP_PD%]
    // with "C:/ProgramData" where PROGRAMDATA is empty. Needs no application object.
    // Throws std::runtime_error when the directory cannot be created.
    static void initializeConfigurationPath();

    // Absolute path of the configuration directory; empty, with a warning, before
    // initializeConfigurationPath().
    static QString configurationPath();

    // A non-empty serial number replaces the cached identity altogether.
    static void setSerialNumberOverride(const QString &serialNumber);

    // Identity (serial number) of the simulated device: the override or else the UUID kept in the file
    // "sn_cache" of the configuration directory, which the first call creates. Where that file can be neither
    // written nor read, every call returns a fresh UUID.
    static QString getIdentifier();

    // Identifier of this installation of the operating system; empty, with a warning, where there is none.
    static QString machineId();

    // "user@computer", in a remote session "user@client.computer", from the environment variables USERNAME,
    // CLIENTNAME and COMPUTERNAME. Without a user name there is no "@" either.
    static QString userAndComputerName();

    // Raises the number of descriptors that the process may open to the most that the system allows.
    static void raiseDescriptorLimit();

    // How many descriptors the process may open, sockets included.
    static int maximumDescriptors();

    // How many of them the single-instance channel takes at most.
    static int channelDescriptors();

    // Whether the process has administrator rights.
    static bool isUserAdmin();

private:
    static QString rawMachineId(); // as the system writes it
};
