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
    <message>
        <source>Seriennummer des simulierten Geräts</source>
        <translation>Seriennummer des simulierten Geräts</translation>
    </message>
    <message>
        <source>Lässt den Druck steigen und fallen oder hält ihn an</source>
        <translation>Lässt den Druck steigen und fallen oder hält ihn an</translation>
    </message>
    <message>
        <source>Alarm, der ausgelöst werden soll</source>
        <translation>Alarm, der ausgelöst werden soll</translation>
    </message>
    <message>
        <source>Wichtigkeit des Alarms</source>
        <translation>Wichtigkeit des Alarms</translation>
    </message>
    <message>
        <source>Was der Master mit dem Alarm tun soll</source>
        <translation>Was der Master mit dem Alarm tun soll</translation>
    </message>
    <message>
        <source>Schreibt den Alarm in die Register</source>
        <translation>Schreibt den Alarm in die Register</translation>
    </message>
    <message>
        <source>Leert die Register des Alarms</source>
        <translation>Leert die Register des Alarms</translation>
    </message>
</context>
</TS>
