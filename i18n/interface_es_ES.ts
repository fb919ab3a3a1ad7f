<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="de_DE">
<context>
    <name>GUI</name>
    <message>
        <source>Simulation starten</source>
        <translation>Iniciar simulación</translation>
    </message>
    <message>
        <source>Simulation beenden</source>
        <translation>Detener simulación</translation>
    </message>
    <message>
        <source>Alarm auslösen</source>
        <translation>Generar alarma</translation>
    </message>
    <message>
        <source>Alarm beenden</source>
        <translation>Borrar alarma</translation>
    </message>
    <message>
        <source>Bestätigung</source>
        <translation>Confirmación</translation>
    </message>
    <message>
        <source>Keine Bestätigung</source>
        <translation>Sin confirmación</translation>
    </message>
    <message>
        <source>In Liste anzeigen</source>
        <translation>Mostrar en la lista</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Alarma</translation>
    </message>
    <message>
        <source>Wichtigkeit</source>
        <translation>Importancia</translation>
    </message>
    <message>
        <source>Aktion</source>
        <translation>Acción</translation>
    </message>
</context>
</TS>
