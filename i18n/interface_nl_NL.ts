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
    <message>
        <source>Seriennummer des simulierten Geräts</source>
        <translation>Serienummer van het gesimuleerde apparaat</translation>
    </message>
    <message>
        <source>Lässt den Druck steigen und fallen oder hält ihn an</source>
        <translation>Laat de druk stijgen en dalen of houdt de druk vast</translation>
    </message>
    <message>
        <source>Alarm, der ausgelöst werden soll</source>
        <translation>Te genereren alarm</translation>
    </message>
    <message>
        <source>Wichtigkeit des Alarms</source>
        <translation>Prioriteit van het alarm</translation>
    </message>
    <message>
        <source>Was der Master mit dem Alarm tun soll</source>
        <translation>Wat de master met het alarm moet doen</translation>
    </message>
    <message>
        <source>Schreibt den Alarm in die Register</source>
        <translation>Schrijft het alarm naar de registers</translation>
    </message>
    <message>
        <source>Leert die Register des Alarms</source>
        <translation>Maakt de registers van het alarm leeg</translation>
    </message>
</context>
</TS>
