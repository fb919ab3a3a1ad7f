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
    <message>
        <source>Seriennummer des simulierten Geräts</source>
        <translation>Numéro de série de l’appareil simulé</translation>
    </message>
    <message>
        <source>Lässt den Druck steigen und fallen oder hält ihn an</source>
        <translation>Fait monter et descendre la pression, ou la maintient</translation>
    </message>
    <message>
        <source>Alarm, der ausgelöst werden soll</source>
        <translation>Alarme à déclencher</translation>
    </message>
    <message>
        <source>Wichtigkeit des Alarms</source>
        <translation>Importance de l’alarme</translation>
    </message>
    <message>
        <source>Was der Master mit dem Alarm tun soll</source>
        <translation>Ce que le maître doit faire de l’alarme</translation>
    </message>
    <message>
        <source>Schreibt den Alarm in die Register</source>
        <translation>Écrit l’alarme dans les registres</translation>
    </message>
    <message>
        <source>Leert die Register des Alarms</source>
        <translation>Vide les registres de l’alarme</translation>
    </message>
</context>
</TS>
