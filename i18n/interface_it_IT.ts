<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="de_DE">
<context>
    <name>GUI</name>
    <message>
        <source>Simulation starten</source>
        <translation>Avvia simulazione</translation>
    </message>
    <message>
        <source>Simulation beenden</source>
        <translation>Arresta simulazione</translation>
    </message>
    <message>
        <source>Alarm auslösen</source>
        <translation>Genera allarme</translation>
    </message>
    <message>
        <source>Alarm beenden</source>
        <translation>Cancella allarme</translation>
    </message>
    <message>
        <source>Bestätigung</source>
        <translation>Conferma</translation>
    </message>
    <message>
        <source>Keine Bestätigung</source>
        <translation>Nessuna conferma</translation>
    </message>
    <message>
        <source>In Liste anzeigen</source>
        <translation>Mostra in elenco</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Allarme</translation>
    </message>
    <message>
        <source>Wichtigkeit</source>
        <translation>Importanza</translation>
    </message>
    <message>
        <source>Aktion</source>
        <translation>Azione</translation>
    </message>
</context>
</TS>
