<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="de_DE">
<context>
    <name>GUI</name>
    <message>
        <source>Simulation starten</source>
        <translation>Simulatie starten</translation>
    </message>
    <message>
        <source>Simulation beenden</source>
        <translation>Simulatie stoppen</translation>
    </message>
    <message>
        <source>Alarm auslösen</source>
        <translation>Alarm genereren</translation>
    </message>
    <message>
        <source>Alarm beenden</source>
        <translation>Alarm wissen</translation>
    </message>
    <message>
        <source>Bestätigung</source>
        <translation>Bevestiging</translation>
    </message>
    <message>
        <source>Keine Bestätigung</source>
        <translation>Geen bevestiging</translation>
    </message>
    <message>
        <source>In Liste anzeigen</source>
        <translation>In lijst weergeven</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>Wichtigkeit</source>
        <translation>Prioriteit</translation>
    </message>
    <message>
        <source>Aktion</source>
        <translation>Actie</translation>
    </message>
</context>
</TS>
