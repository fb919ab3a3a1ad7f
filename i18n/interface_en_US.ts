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
</context>
</TS>
