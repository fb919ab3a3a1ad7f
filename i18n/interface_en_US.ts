<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="de_DE">
<context>
    <name>GUI</name>
    <message>
        <source>Simulation starten</source>
        <translation>Start simulation</translation>
    </message>
    <message>
        <source>Simulation beenden</source>
        <translation>Stop simulation</translation>
    </message>
    <message>
        <source>Alarm auslösen</source>
        <translation>Raise alarm</translation>
    </message>
    <message>
        <source>Alarm beenden</source>
        <translation>Clear alarm</translation>
    </message>
    <message>
        <source>Bestätigung</source>
        <translation>Confirmation</translation>
    </message>
    <message>
        <source>Keine Bestätigung</source>
        <translation>No confirmation</translation>
    </message>
    <message>
        <source>In Liste anzeigen</source>
        <translation>Show in list</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>Wichtigkeit</source>
        <translation>Importance</translation>
    </message>
    <message>
        <source>Aktion</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Seriennummer des simulierten Geräts</source>
        <translation>Serial number of the simulated device</translation>
    </message>
    <message>
        <source>Lässt den Druck steigen und fallen oder hält ihn an</source>
        <translation>Lets the pressure rise and fall, or holds it</translation>
    </message>
    <message>
        <source>Alarm, der ausgelöst werden soll</source>
        <translation>Alarm to raise</translation>
    </message>
    <message>
        <source>Wichtigkeit des Alarms</source>
        <translation>Importance of the alarm</translation>
    </message>
    <message>
        <source>Was der Master mit dem Alarm tun soll</source>
        <translation>What the master is to do with the alarm</translation>
    </message>
    <message>
        <source>Schreibt den Alarm in die Register</source>
        <translation>Writes the alarm to the registers</translation>
    </message>
    <message>
        <source>Leert die Register des Alarms</source>
        <translation>Empties the alarm’s registers</translation>
    </message>
</context>
</TS>
