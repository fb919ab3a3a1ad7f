<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="de_DE">
<context>
    <name>GUI</name>
    <message>
        <source>Simulation starten</source>
        <translation>Simulation starten</translation>
    </message>
    <message>
        <source>Simulation beenden</source>
        <translation>Simulation beenden</translation>
    </message>
    <message>
        <source>Alarm auslösen</source>
        <translation>Alarm auslösen</translation>
    </message>
    <message>
        <source>Alarm beenden</source>
        <translation>Alarm beenden</translation>
    </message>
    <message>
        <source>Bestätigung</source>
        <translation>Bestätigung</translation>
    </message>
    <message>
        <source>Keine Bestätigung</source>
        <translation>Keine Bestätigung</translation>
    </message>
    <message>
        <source>In Liste anzeigen</source>
        <translation>In Liste anzeigen</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>Wichtigkeit</source>
        <translation>Wichtigkeit</translation>
    </message>
    <message>
        <source>Aktion</source>
        <translation>Aktion</translation>
    </message>
</context>
</TS>
