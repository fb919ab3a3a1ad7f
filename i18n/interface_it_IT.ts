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
    <message>
        <source>Seriennummer des simulierten Geräts</source>
        <translation>Numero di serie dell’apparecchio simulato</translation>
    </message>
    <message>
        <source>Lässt den Druck steigen und fallen oder hält ihn an</source>
        <translation>Fa salire e scendere la pressione oppure la mantiene</translation>
    </message>
    <message>
        <source>Alarm, der ausgelöst werden soll</source>
        <translation>Allarme da generare</translation>
    </message>
    <message>
        <source>Wichtigkeit des Alarms</source>
        <translation>Importanza dell’allarme</translation>
    </message>
    <message>
        <source>Was der Master mit dem Alarm tun soll</source>
        <translation>Che cosa deve fare il master con l’allarme</translation>
    </message>
    <message>
        <source>Schreibt den Alarm in die Register</source>
        <translation>Scrive l’allarme nei registri</translation>
    </message>
    <message>
        <source>Leert die Register des Alarms</source>
        <translation>Svuota i registri dell’allarme</translation>
    </message>
</context>
</TS>
