<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="de_DE">
<context>
    <name>GUI</name>
    <message>
        <source>Simulation starten</source>
        <translation>Démarrer la simulation</translation>
    </message>
    <message>
        <source>Simulation beenden</source>
        <translation>Arrêter la simulation</translation>
    </message>
    <message>
        <source>Alarm auslösen</source>
        <translation>Déclencher l’alarme</translation>
    </message>
    <message>
        <source>Alarm beenden</source>
        <translation>Effacer l’alarme</translation>
    </message>
    <message>
        <source>Bestätigung</source>
        <translation>Confirmation</translation>
    </message>
    <message>
        <source>Keine Bestätigung</source>
        <translation>Sans confirmation</translation>
    </message>
    <message>
        <source>In Liste anzeigen</source>
        <translation>Afficher dans la liste</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Alarme</translation>
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
