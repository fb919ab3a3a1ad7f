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
    <message>
        <source>Seriennummer des simulierten Geräts</source>
        <translation>Número de serie del equipo simulado</translation>
    </message>
    <message>
        <source>Lässt den Druck steigen und fallen oder hält ihn an</source>
        <translation>Hace subir y bajar la presión o la mantiene</translation>
    </message>
    <message>
        <source>Alarm, der ausgelöst werden soll</source>
        <translation>Alarma que se generará</translation>
    </message>
    <message>
        <source>Wichtigkeit des Alarms</source>
        <translation>Importancia de la alarma</translation>
    </message>
    <message>
        <source>Was der Master mit dem Alarm tun soll</source>
        <translation>Qué debe hacer el maestro con la alarma</translation>
    </message>
    <message>
        <source>Schreibt den Alarm in die Register</source>
        <translation>Escribe la alarma en los registros</translation>
    </message>
    <message>
        <source>Leert die Register des Alarms</source>
        <translation>Vacía los registros de la alarma</translation>
    </message>
</context>
</TS>
