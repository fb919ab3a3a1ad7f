// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

using System;
using System.Collections.Generic;
using System.IO;
using System.Net.Sockets;
using System.Text;

/// <summary>A Modbus TCP connection to the device. Where it does not answer in time, the methods throw IOException.</summary>
sealed class Device : IDisposable
{
    public enum Text : byte { Name = 100, Descriptor, Storage, Value } // function codes

    readonly TcpClient client;

    public Device(string host)
    {
        client = new TcpClient(host, 502) { NoDelay = true, ReceiveTimeout = 5000 };
    }

    public void Dispose()
    {
        client.Close();
    }

    /// <summary>Codes 100 to 103 take the property's register, low byte first.</summary>
    public string Read(Text text, int property)
    {
        return Encoding.UTF8.GetString(Ask((byte)text, (byte)(2 * property), (byte)(2 * property >> 8)));
    }

    /// <summary>What the device or a master wrote last into the property's two registers, the low word first.</summary>
    public uint Read(int property)
    {
        int number = 2 * property;
        byte[] answer = Ask(3, (byte)(number >> 8), (byte)number, 0, 2); // byte count, then each register high byte first
        return (uint)(answer[3] << 24 | answer[4] << 16 | answer[1] << 8 | answer[2]);
    }

    public float ReadFloat(int property)
    {
        return BitConverter.ToSingle(BitConverter.GetBytes(Read(property)), 0);
    }

    /// <summary>Both registers at once: single ones don't count. The answer is not looked at: it repeats address and
    /// count with their bytes swapped.</summary>
    public void Write(int property, uint value)
    {
        int number = 2 * property;
        Ask(16, (byte)(number >> 8), (byte)number, 0, 2, 4,
            (byte)(value >> 8), (byte)value, (byte)(value >> 24), (byte)(value >> 16));
    }

    /// <summary>The device's list of its properties. There is one reading position for all masters.</summary>
    public List<int> Properties()
    {
        const int iterator = 4001;
        var properties = new List<int>();
        Write(iterator, 0);
        for (uint next = Read(iterator) & 0xFFFF; next != 0xFFFF; next = Read(iterator) & 0xFFFF)
        {
            properties.Add((int)next);
        }
        return properties;
    }

    // The request leaves in one piece, as the device wants it. What comes back is what follows the function code.
    byte[] Ask(byte code, params byte[] data)
    {
        var request = new byte[8 + data.Length];
        request[5] = (byte)(2 + data.Length);
        request[6] = 1;
        request[7] = code;
        data.CopyTo(request, 8);
        client.GetStream().Write(request, 0, request.Length);
        byte[] header = Receive(6);
        byte[] answer = Receive(header[4] << 8 | header[5]);
        return new ArraySegment<byte>(answer, 2, answer.Length - 2).ToArray();
    }

    byte[] Receive(int size)
    {
        var bytes = new byte[size];
        for (int received = 0; received < size;)
        {
            int count = client.GetStream().Read(bytes, received, size - received);
            if (count == 0)
            {
                throw new IOException("The device has closed the connection.");
            }
            received += count;
        }
        return bytes;
    }
}

/// <summary>Prints the properties of a device and its alarm, and confirms the alarm if the device asks for it.</summary>
static class Monitor
{
    const int Alarm = 1000, AlarmSignature = 1001, AlarmAction = 4002, AlarmMsg = 4004;
    const uint Confirm = 1; // what an alarm's action is while a confirmation is expected

    static void Show(Device device)
    {
        Console.WriteLine("alarm {0}, signature 0x{1:X8}, action {2}: {3}", device.Read(Alarm), device.Read(AlarmSignature),
                          device.Read(AlarmAction), device.Read(Device.Text.Value, AlarmMsg));
    }

    static void Main(string[] arguments)
    {
        using (var device = new Device(arguments[0]))
        {
            foreach (int number in device.Properties())
            {
                Console.WriteLine("{0} {1,-18} {2,-8} {3,-7} {4}", number, device.Read(Device.Text.Name, number),
                                  device.Read(Device.Text.Descriptor, number), device.Read(Device.Text.Storage, number),
                                  device.Read(Device.Text.Value, number));
            }
            Show(device);
            if (device.Read(AlarmAction) == Confirm)
            {
                device.Write(AlarmAction, 0);
                Show(device);
            }
        }
    }
}
