<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Alarm Service</name>
    <message>
        <source>0x0</source>
        <translation>Kein Alarm.</translation>
    </message>
    <message>
        <source>0x3067fb9f</source>
        <translation>Ein Teil des Geräts fehlt noch.</translation>
    </message>
    <message>
        <source>0x3067fba2</source>
        <translation>Abdeckung der Eingabeeinheit offen.</translation>
    </message>
    <message>
        <source>0x3101000f</source>
        <translation>Steuerelektronik defekt. Kundendienst rufen.</translation>
    </message>
    <message>
        <source>0x31010011</source>
        <translation>Steuerelektronik zu heiß.</translation>
    </message>
    <message>
        <source>0x31010014</source>
        <translation>Versorgungsspannung außerhalb der Toleranz.</translation>
    </message>
    <message>
        <source>0x31020007</source>
        <translation>Keine Verbindung zur Motorsteuerung.</translation>
    </message>
    <message>
        <source>0x3102000C</source>
        <translation>Motorstrom zu niedrig, Motor prüfen.</translation>
    </message>
    <message>
        <source>0x3102000b</source>
        <translation>Motor überlastet.</translation>
    </message>
    <message>
        <source>0x31020011</source>
        <translation>Motor zu heiß.</translation>
    </message>
    <message>
        <source>0x31020013</source>
        <translation>Motor läuft nicht wieder an.</translation>
    </message>
    <message>
        <source>0x31020014</source>
        <translation>Motorphase fehlt.</translation>
    </message>
    <message>
        <source>0x31020015</source>
        <translation>Kurzschluss am Motor.</translation>
    </message>
    <message>
        <source>0x31020018</source>
        <translation>Motor blockiert.</translation>
    </message>
    <message>
        <source>0x31020019</source>
        <translation>Motor dreht in die falsche Richtung.</translation>
    </message>
    <message>
        <source>0x3102001a</source>
        <translation>Notbetrieb des Motors fehlgeschlagen. Kundendienst rufen.</translation>
    </message>
    <message>
        <source>0x31020022</source>
        <translation>Motorparameter ungültig.</translation>
    </message>
    <message>
        <source>0x31040004</source>
        <translation>Drucksensor gestört. Kundendienst rufen.</translation>
    </message>
    <message>
        <source>0x31040007</source>
        <translation>Kein Signal vom Drucksensor.</translation>
    </message>
    <message>
        <source>0x3104000b</source>
        <translation>Druckluft: Druck zu hoch. Gerät abgeschaltet.</translation>
    </message>
    <message>
        <source>0x310f000c</source>
        <translation>Druckluft: Druck zu niedrig. Behandlung nicht möglich.</translation>
    </message>
    <message>
        <source>0x311c0006</source>
        <translation>Saugmaschine blockiert. Saugleitungen prüfen.</translation>
    </message>
    <message>
        <source>0x311c000b</source>
        <translation>Saugmaschine: Unterdruck zu hoch.</translation>
    </message>
    <message>
        <source>0x311c000c</source>
        <translation>Saugmaschine: Unterdruck zu niedrig.</translation>
    </message>
    <message>
        <source>0x311c000f</source>
        <translation>Saugmaschine: Messwert des Unterdrucks unplausibel.</translation>
    </message>
    <message>
        <source>0x311c0011</source>
        <translation>Saugmaschine zu heiß. Abkühlen lassen.</translation>
    </message>
    <message>
        <source>0x3204000a</source>
        <translation>Sterilisation fehlgeschlagen: Vakuum nicht erreicht.</translation>
    </message>
    <message>
        <source>0x3204000f</source>
        <translation>Sterilisation fehlgeschlagen: Temperatur und Druck unstimmig.</translation>
    </message>
    <message>
        <source>0x32040017</source>
        <translation>Sterilisation fehlgeschlagen: Sterilisierzeit zu kurz.</translation>
    </message>
    <message>
        <source>0x3207001e</source>
        <translation>Drucker: falsche Etikettenrolle eingelegt.</translation>
    </message>
    <message>
        <source>0x32080007</source>
        <translation>Keine Verbindung zum Display.</translation>
    </message>
    <message>
        <source>0x32090007</source>
        <translation>Keine Verbindung zum Amalgamabscheider.</translation>
    </message>
    <message>
        <source>0x320d001f</source>
        <translation>Amalgamabscheider: Sammelbehälter voll. Behälter wechseln.</translation>
    </message>
    <message>
        <source>0x320e0022</source>
        <translation>Softwareaktualisierung fehlgeschlagen.</translation>
    </message>
    <message>
        <source>0x32120022</source>
        <translation>Netzwerkeinstellungen ungültig.</translation>
    </message>
    <message>
        <source>0x32130022</source>
        <translation>Zeitsynchronisation fehlgeschlagen.</translation>
    </message>
    <message>
        <source>0x3215000f</source>
        <translation>Folienscanner: Laserleistung weicht ab. Kundendienst rufen.</translation>
    </message>
    <message>
        <source>0x32150017</source>
        <translation>Folienscanner: Scan nicht rechtzeitig abgeschlossen.</translation>
    </message>
    <message>
        <source>0x321b001e</source>
        <translation>Programm für diese Beladung nicht zulässig.</translation>
    </message>
    <message>
        <source>0x321c000f</source>
        <translation>Saugmaschine: Durchflusstest fehlgeschlagen.</translation>
    </message>
    <message>
        <source>0x321f0022</source>
        <translation>USB-Speicher nicht lesbar.</translation>
    </message>
    <message>
        <source>0x32210007</source>
        <translation>Verbindung zum Praxisserver verloren.</translation>
    </message>
    <message>
        <source>0x32230022</source>
        <translation>Anmeldung nach zu vielen Fehlversuchen gesperrt.</translation>
    </message>
    <message>
        <source>0x32240022</source>
        <translation>Softwarelizenz ungültig.</translation>
    </message>
    <message>
        <source>0x32250022</source>
        <translation>Kalibrierdaten ungültig.</translation>
    </message>
    <message>
        <source>0x32268010</source>
        <translation>Quillon Pulse: Verbindung fehlgeschlagen.</translation>
    </message>
    <message>
        <source>0x32278010</source>
        <translation>Quillon Pulse: nicht registriert. Netzwerk und Code prüfen.</translation>
    </message>
    <message>
        <source>0x322d0011</source>
        <translation>Dampferzeuger zu heiß.</translation>
    </message>
    <message>
        <source>0x322e0023</source>
        <translation>Wartungsintervall überschritten. Erst nach Wartung benutzen.</translation>
    </message>
    <message>
        <source>0x322f0009</source>
        <translation>Deckel des Sammelbehälters offen.</translation>
    </message>
    <message>
        <source>0x322f001d</source>
        <translation>Sammelbehälter fehlt.</translation>
    </message>
    <message>
        <source>0x33010009</source>
        <translation>Tür offen.</translation>
    </message>
    <message>
        <source>0x3301000d</source>
        <translation>Türverriegelung klemmt. Tür nicht gewaltsam öffnen.</translation>
    </message>
    <message>
        <source>0x33030006</source>
        <translation>Filter verstopft. Filter wechseln.</translation>
    </message>
    <message>
        <source>0x33040006</source>
        <translation>Abfluss des Amalgamabscheiders verstopft.</translation>
    </message>
    <message>
        <source>0x3401001d</source>
        <translation>Keine Wasserversorgung. Wasserventil öffnen.</translation>
    </message>
    <message>
        <source>0x3404001e</source>
        <translation>Falsches Desinfektionsmittel eingesetzt.</translation>
    </message>
    <message>
        <source>0x34050021</source>
        <translation>Dosierpumpe fördert kein Desinfektionsmittel.</translation>
    </message>
    <message>
        <source>0x4068d8e5</source>
        <translation>Transportsystem muss gewartet werden.</translation>
    </message>
    <message>
        <source>0x41010011</source>
        <translation>Temperatur der Steuerelektronik hoch. Belüftung prüfen.</translation>
    </message>
    <message>
        <source>0x41010012</source>
        <translation>Stromversorgung war unterbrochen.</translation>
    </message>
    <message>
        <source>0x41010014</source>
        <translation>Versorgungsspannung schwankt.</translation>
    </message>
    <message>
        <source>0x4101001b</source>
        <translation>Interne Uhr zurückgesetzt. Datum und Uhrzeit einstellen.</translation>
    </message>
    <message>
        <source>0x41020011</source>
        <translation>Motortemperatur hoch.</translation>
    </message>
    <message>
        <source>0x41020013</source>
        <translation>Motor mehrfach neu angelaufen.</translation>
    </message>
    <message>
        <source>0x4102001a</source>
        <translation>Notbetrieb des Motors.</translation>
    </message>
    <message>
        <source>0x4104000b</source>
        <translation>Druckluft: Druck hoch.</translation>
    </message>
    <message>
        <source>0x410f000c</source>
        <translation>Druckluft: Druck niedrig. Leitungen auf Leckagen prüfen.</translation>
    </message>
    <message>
        <source>0x41120007</source>
        <translation>Kein Signal vom Feuchtesensor des Trockners.</translation>
    </message>
    <message>
        <source>0x411c0011</source>
        <translation>Saugmaschine: Temperatur hoch.</translation>
    </message>
    <message>
        <source>0x4122000b</source>
        <translation>Kompressorlaufzeit hoch.</translation>
    </message>
    <message>
        <source>0x41230013</source>
        <translation>Trockner regeneriert zu häufig.</translation>
    </message>
    <message>
        <source>0x4201000a</source>
        <translation>Sterilisator: Vakuum baut sich langsam auf.</translation>
    </message>
    <message>
        <source>0x4201000f</source>
        <translation>Sterilisator: Kammerdruck weicht vom Sollwert ab.</translation>
    </message>
    <message>
        <source>0x42010024</source>
        <translation>Sterilisator: Vakuumtest überfällig.</translation>
    </message>
    <message>
        <source>0x42020009</source>
        <translation>Deckel des Wassertanks nicht geschlossen.</translation>
    </message>
    <message>
        <source>0x4207000d</source>
        <translation>Drucker: Papierstau.</translation>
    </message>
    <message>
        <source>0x420c0010</source>
        <translation>Wartung überfällig. Wartungstermin vereinbaren.</translation>
    </message>
    <message>
        <source>0x4211001b</source>
        <translation>Werkseinstellungen wiederhergestellt.</translation>
    </message>
    <message>
        <source>0x42140022</source>
        <translation>Berichtsexport fehlgeschlagen. Zielordner prüfen.</translation>
    </message>
    <message>
        <source>0x42190022</source>
        <translation>E-Mail-Benachrichtigung konnte nicht gesendet werden.</translation>
    </message>
    <message>
        <source>0x42288010</source>
        <translation>Quillon Pulse: Zugangsberechtigung läuft bald ab.</translation>
    </message>
    <message>
        <source>0x42298010</source>
        <translation>Quillon Pulse: seit gestern keine Daten übertragen.</translation>
    </message>
    <message>
        <source>0x422c8010</source>
        <translation>Datensicherung abgebrochen.</translation>
    </message>
    <message>
        <source>0x43010009</source>
        <translation>Tür wurde vor Programmende geöffnet.</translation>
    </message>
    <message>
        <source>0x4301000d</source>
        <translation>Türverriegelung schwergängig. Türdichtung reinigen.</translation>
    </message>
    <message>
        <source>0x43030006</source>
        <translation>Filter verschmutzt.</translation>
    </message>
    <message>
        <source>0x4402001d</source>
        <translation>Desinfektionsmittel der Sauganlage fehlt. Flasche einsetzen.</translation>
    </message>
    <message>
        <source>0x4403001f</source>
        <translation>Abwasserbehälter voll. Behälter leeren.</translation>
    </message>
    <message>
        <source>0x44060012</source>
        <translation>Einwirkzeit unterbrochen.</translation>
    </message>
    <message>
        <source>0x45000004</source>
        <translation>Ausgangssensor gestört!</translation>
    </message>
    <message>
        <source>0x48240028</source>
        <translation>Die Datei gehört nicht zu diesem Gerätetyp.</translation>
    </message>
    <message>
        <source>0x48240029</source>
        <translation>Datenimport mit Warnungen abgeschlossen.</translation>
    </message>
    <message>
        <source>0x4824002a</source>
        <translation>Datenimport vom Benutzer abgebrochen.</translation>
    </message>
    <message>
        <source>0x48240100</source>
        <translation>Die hochgeladene Datei ist leer.</translation>
    </message>
    <message>
        <source>0x48240101</source>
        <translation>Der Geräte-Header hat ein ungültiges Format.</translation>
    </message>
    <message>
        <source>0x48240102</source>
        <translation>Der Geräte-Header enthält weder REF noch DEV_SN.</translation>
    </message>
    <message>
        <source>0x48240103</source>
        <translation>REF oder DEV_SN stimmt nicht mit dem Gerät überein.</translation>
    </message>
    <message>
        <source>0x48240104</source>
        <translation>Datenimport unvollständig.</translation>
    </message>
    <message>
        <source>0x48240200</source>
        <translation>Dateiversion zu neu. Gerätesoftware aktualisieren.</translation>
    </message>
    <message>
        <source>0x48250025</source>
        <translation>Datenexport fehlgeschlagen.</translation>
    </message>
    <message>
        <source>0x51010013</source>
        <translation>Steuerelektronik unerwartet neu gestartet.</translation>
    </message>
    <message>
        <source>0x5104000b</source>
        <translation>Druckluft: Druck kurzzeitig über dem Ausschaltwert.</translation>
    </message>
    <message>
        <source>0x510f000c</source>
        <translation>Druckluft: Druck kurzzeitig unter dem Einschaltwert.</translation>
    </message>
    <message>
        <source>0x5122000B</source>
        <translation>Kompressorlaufzeit sehr hoch. System prüfen.</translation>
    </message>
    <message>
        <source>0x51230013</source>
        <translation>Regeneration des Trockners neu gestartet.</translation>
    </message>
    <message>
        <source>0x52048009</source>
        <translation>Sterilisation vom Benutzer abgebrochen. Beladung nicht steril.</translation>
    </message>
    <message>
        <source>0x52058001</source>
        <translation>Sterilisation gestartet.</translation>
    </message>
    <message>
        <source>0x52068001</source>
        <translation>Vakuumtest gestartet.</translation>
    </message>
    <message>
        <source>0x520a0010</source>
        <translation>Jährliche Wartung bald fällig.</translation>
    </message>
    <message>
        <source>0x520b0010</source>
        <translation>Validierung des Sterilisators fällig.</translation>
    </message>
    <message>
        <source>0x520d001f</source>
        <translation>Amalgamabscheider: Sammelbehälter fast voll.</translation>
    </message>
    <message>
        <source>0x520e8001</source>
        <translation>Softwareaktualisierung verfügbar.</translation>
    </message>
    <message>
        <source>0x520e8006</source>
        <translation>Softwareaktualisierung installiert.</translation>
    </message>
    <message>
        <source>0x52100023</source>
        <translation>Kalender: heute steht ein Termin an.</translation>
    </message>
    <message>
        <source>0x52118003</source>
        <translation>Einstellungen geändert.</translation>
    </message>
    <message>
        <source>0x52148001</source>
        <translation>Berichtsexport gestartet.</translation>
    </message>
    <message>
        <source>0x52148006</source>
        <translation>Berichtsexport abgeschlossen.</translation>
    </message>
    <message>
        <source>0x5214800a</source>
        <translation>Berichtsexport verschoben: Zielordner nicht erreichbar.</translation>
    </message>
    <message>
        <source>0x52148010</source>
        <translation>Berichtsexport abgebrochen.</translation>
    </message>
    <message>
        <source>0x521d8012</source>
        <translation>Nachtbetrieb aktiv.</translation>
    </message>
    <message>
        <source>0x521e8006</source>
        <translation>Selbsttest abgeschlossen. Siehe Bericht.</translation>
    </message>
    <message>
        <source>0x522a8010</source>
        <translation>Fernzugriff für den Kundendienst freigegeben.</translation>
    </message>
    <message>
        <source>0x522b8010</source>
        <translation>Quillon Pulse: Gerät aus dem Konto entfernt.</translation>
    </message>
    <message>
        <source>0x522c8001</source>
        <translation>Datensicherung gestartet.</translation>
    </message>
    <message>
        <source>0x522c8006</source>
        <translation>Datensicherung abgeschlossen.</translation>
    </message>
    <message>
        <source>0x52300011</source>
        <translation>Raumtemperatur hoch. Lüftung prüfen.</translation>
    </message>
    <message>
        <source>0x53030006</source>
        <translation>Filterwechsel bald fällig.</translation>
    </message>
    <message>
        <source>0x5305000b</source>
        <translation>Leitfähigkeit des Wassers erhöht.</translation>
    </message>
    <message>
        <source>0x54060020</source>
        <translation>Desinfektion fällig.</translation>
    </message>
    <message>
        <source>0x55000003</source>
        <translation>Geschwindigkeit nicht ok!</translation>
    </message>
    <message>
        <source>0x61010013</source>
        <translation>Steuerelektronik neu gestartet.</translation>
    </message>
    <message>
        <source>0x61258001</source>
        <translation>Kalibrierung gestartet.</translation>
    </message>
    <message>
        <source>0x6207000e</source>
        <translation>Drucker: Papiervorrat niedrig.</translation>
    </message>
    <message>
        <source>0x62070015</source>
        <translation>Drucker bereit.</translation>
    </message>
    <message>
        <source>0x62078011</source>
        <translation>Etikett gedruckt.</translation>
    </message>
    <message>
        <source>0x62138006</source>
        <translation>Datum und Uhrzeit synchronisiert.</translation>
    </message>
    <message>
        <source>0x621a800d</source>
        <translation>Benutzer angemeldet.</translation>
    </message>
    <message>
        <source>0x62208006</source>
        <translation>Röntgenbild übertragen.</translation>
    </message>
    <message>
        <source>0x622a8010</source>
        <translation>Fernzugriff für den Kundendienst beendet.</translation>
    </message>
    <message>
        <source>0x622b8010</source>
        <translation>Quillon Pulse: Gerät zum Konto hinzugefügt.</translation>
    </message>
    <message>
        <source>0x62318006</source>
        <translation>Protokoll der Wasserqualität aktualisiert.</translation>
    </message>
    <message>
        <source>0x64068001</source>
        <translation>Desinfektion gestartet.</translation>
    </message>
    <message>
        <source>0x64078001</source>
        <translation>Spülung der Wasserwege gestartet.</translation>
    </message>
    <message>
        <source>0x6801001b</source>
        <translation>Ereignisspeicher gelöscht.</translation>
    </message>
    <message>
        <source>0x68210025</source>
        <translation>Datenexport abgeschlossen.</translation>
    </message>
    <message>
        <source>0x68220026</source>
        <translation>Bericht als PDF-Datei gespeichert.</translation>
    </message>
    <message>
        <source>0x68230027</source>
        <translation>Ältere Berichte archiviert.</translation>
    </message>
    <message>
        <source>0x68240029</source>
        <translation>Datenimport erfolgreich abgeschlossen.</translation>
    </message>
    <message>
        <source>0x68258010</source>
        <translation>Assistent abgebrochen: Quillon Pulse nicht eingerichtet.</translation>
    </message>
    <message>
        <source>0x95000005</source>
        <translation>Eingangssensor zu lange belegt?</translation>
    </message>
</context>
</TS>
