<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
<context>
    <name>Alarm Service</name>
    <message>
        <source>0x0</source>
        <translation>Geen alarm.</translation>
    </message>
    <message>
        <source>0x3067fb9f</source>
        <translation>Er ontbreekt nog een deel van het apparaat.</translation>
    </message>
    <message>
        <source>0x3067fba2</source>
        <translation>Klep van de invoereenheid open.</translation>
    </message>
    <message>
        <source>0x3101000f</source>
        <translation>Besturingselektronica defect. Service bellen.</translation>
    </message>
    <message>
        <source>0x31010011</source>
        <translation>Besturingselektronica te heet.</translation>
    </message>
    <message>
        <source>0x31010014</source>
        <translation>Voedingsspanning buiten toegestane grenzen.</translation>
    </message>
    <message>
        <source>0x31020007</source>
        <translation>Geen verbinding met de motorbesturing.</translation>
    </message>
    <message>
        <source>0x3102000C</source>
        <translation>Motorstroom te laag, motor controleren.</translation>
    </message>
    <message>
        <source>0x3102000b</source>
        <translation>Motor overbelast.</translation>
    </message>
    <message>
        <source>0x31020011</source>
        <translation>Motor te heet.</translation>
    </message>
    <message>
        <source>0x31020013</source>
        <translation>Motor start niet opnieuw.</translation>
    </message>
    <message>
        <source>0x31020014</source>
        <translation>Motorfase ontbreekt.</translation>
    </message>
    <message>
        <source>0x31020015</source>
        <translation>Kortsluiting in de motor.</translation>
    </message>
    <message>
        <source>0x31020018</source>
        <translation>Motor geblokkeerd.</translation>
    </message>
    <message>
        <source>0x31020019</source>
        <translation>Motor draait in de verkeerde richting.</translation>
    </message>
    <message>
        <source>0x3102001a</source>
        <translation>Noodbedrijf van de motor mislukt. Service bellen.</translation>
    </message>
    <message>
        <source>0x31020022</source>
        <translation>Motorparameters ongeldig.</translation>
    </message>
    <message>
        <source>0x31040004</source>
        <translation>Storing van de druksensor. Service bellen.</translation>
    </message>
    <message>
        <source>0x31040007</source>
        <translation>Geen signaal van de druksensor.</translation>
    </message>
    <message>
        <source>0x3104000b</source>
        <translation>Perslucht: druk te hoog. Apparaat uitgeschakeld.</translation>
    </message>
    <message>
        <source>0x310f000c</source>
        <translation>Perslucht: druk te laag. Behandeling niet mogelijk.</translation>
    </message>
    <message>
        <source>0x311c0006</source>
        <translation>Afzuigunit verstopt. Zuigleidingen controleren.</translation>
    </message>
    <message>
        <source>0x311c000b</source>
        <translation>Afzuigunit: onderdruk te hoog.</translation>
    </message>
    <message>
        <source>0x311c000c</source>
        <translation>Afzuigunit: onderdruk te laag.</translation>
    </message>
    <message>
        <source>0x311c000f</source>
        <translation>Afzuigunit: gemeten onderdruk niet plausibel.</translation>
    </message>
    <message>
        <source>0x311c0011</source>
        <translation>Afzuigunit te heet. Laten afkoelen.</translation>
    </message>
    <message>
        <source>0x3204000a</source>
        <translation>Sterilisatie mislukt: vacuüm niet bereikt.</translation>
    </message>
    <message>
        <source>0x3204000f</source>
        <translation>Sterilisatie mislukt: temperatuur en druk komen niet overeen.</translation>
    </message>
    <message>
        <source>0x32040017</source>
        <translation>Sterilisatie mislukt: sterilisatietijd te kort.</translation>
    </message>
    <message>
        <source>0x3207001e</source>
        <translation>Printer: verkeerde etikettenrol geplaatst.</translation>
    </message>
    <message>
        <source>0x32080007</source>
        <translation>Geen verbinding met het display.</translation>
    </message>
    <message>
        <source>0x32090007</source>
        <translation>Geen verbinding met de amalgaamafscheider.</translation>
    </message>
    <message>
        <source>0x320d001f</source>
        <translation>Amalgaamafscheider: opvangreservoir vol. Vervangen.</translation>
    </message>
    <message>
        <source>0x320e0022</source>
        <translation>Software-update mislukt.</translation>
    </message>
    <message>
        <source>0x32120022</source>
        <translation>Netwerkinstellingen ongeldig.</translation>
    </message>
    <message>
        <source>0x32130022</source>
        <translation>Tijdsynchronisatie mislukt.</translation>
    </message>
    <message>
        <source>0x3215000f</source>
        <translation>Fosforplaatscanner: laservermogen wijkt af. Service bellen.</translation>
    </message>
    <message>
        <source>0x32150017</source>
        <translation>Fosforplaatscanner: scan niet op tijd voltooid.</translation>
    </message>
    <message>
        <source>0x321b001e</source>
        <translation>Programma niet toegestaan voor deze lading.</translation>
    </message>
    <message>
        <source>0x321c000f</source>
        <translation>Afzuigunit: debiettest mislukt.</translation>
    </message>
    <message>
        <source>0x321f0022</source>
        <translation>USB-stick niet leesbaar.</translation>
    </message>
    <message>
        <source>0x32210007</source>
        <translation>Verbinding met de praktijkserver verbroken.</translation>
    </message>
    <message>
        <source>0x32230022</source>
        <translation>Aanmelding geblokkeerd na te veel mislukte pogingen.</translation>
    </message>
    <message>
        <source>0x32240022</source>
        <translation>Softwarelicentie ongeldig.</translation>
    </message>
    <message>
        <source>0x32250022</source>
        <translation>Kalibratiegegevens ongeldig.</translation>
    </message>
    <message>
        <source>0x32268010</source>
        <translation>Quillon Pulse: verbinding mislukt.</translation>
    </message>
    <message>
        <source>0x32278010</source>
        <translation>Quillon Pulse: registratie mislukt. Netwerk en code nagaan.</translation>
    </message>
    <message>
        <source>0x322d0011</source>
        <translation>Stoomgenerator te heet.</translation>
    </message>
    <message>
        <source>0x322e0023</source>
        <translation>Onderhoud te laat. Pas na onderhoud weer gebruiken.</translation>
    </message>
    <message>
        <source>0x322f0009</source>
        <translation>Deksel van het opvangreservoir open.</translation>
    </message>
    <message>
        <source>0x322f001d</source>
        <translation>Opvangreservoir ontbreekt.</translation>
    </message>
    <message>
        <source>0x33010009</source>
        <translation>Deur open.</translation>
    </message>
    <message>
        <source>0x3301000d</source>
        <translation>Deurvergrendeling klemt. Deur niet forceren.</translation>
    </message>
    <message>
        <source>0x33030006</source>
        <translation>Filter verstopt. Filter vervangen.</translation>
    </message>
    <message>
        <source>0x33040006</source>
        <translation>Afvoer van de amalgaamafscheider verstopt.</translation>
    </message>
    <message>
        <source>0x3401001d</source>
        <translation>Geen watertoevoer. Waterkraan openen.</translation>
    </message>
    <message>
        <source>0x3404001e</source>
        <translation>Verkeerd desinfectiemiddel geplaatst.</translation>
    </message>
    <message>
        <source>0x34050021</source>
        <translation>Doseerpomp levert geen desinfectiemiddel.</translation>
    </message>
    <message>
        <source>0x4068d8e5</source>
        <translation>Transportsysteem heeft onderhoud nodig.</translation>
    </message>
    <message>
        <source>0x41010011</source>
        <translation>Besturingselektronica warm. Ventilatie controleren.</translation>
    </message>
    <message>
        <source>0x41010012</source>
        <translation>Stroomvoorziening was onderbroken.</translation>
    </message>
    <message>
        <source>0x41010014</source>
        <translation>Voedingsspanning schommelt.</translation>
    </message>
    <message>
        <source>0x4101001b</source>
        <translation>Interne klok gereset. Datum en tijd instellen.</translation>
    </message>
    <message>
        <source>0x41020011</source>
        <translation>Motortemperatuur hoog.</translation>
    </message>
    <message>
        <source>0x41020013</source>
        <translation>Motor meerdere keren opnieuw gestart.</translation>
    </message>
    <message>
        <source>0x4102001a</source>
        <translation>Noodbedrijf van de motor.</translation>
    </message>
    <message>
        <source>0x4104000b</source>
        <translation>Perslucht: druk hoog.</translation>
    </message>
    <message>
        <source>0x410f000c</source>
        <translation>Perslucht: druk laag. Leidingen op lekkage controleren.</translation>
    </message>
    <message>
        <source>0x41120007</source>
        <translation>Geen signaal van de vochtsensor van de droger.</translation>
    </message>
    <message>
        <source>0x411c0011</source>
        <translation>Afzuigunit: temperatuur hoog.</translation>
    </message>
    <message>
        <source>0x4122000b</source>
        <translation>Draaitijd van de compressor hoog.</translation>
    </message>
    <message>
        <source>0x41230013</source>
        <translation>Droger regenereert te vaak.</translation>
    </message>
    <message>
        <source>0x4201000a</source>
        <translation>Sterilisator: vacuüm wordt langzaam opgebouwd.</translation>
    </message>
    <message>
        <source>0x4201000f</source>
        <translation>Sterilisator: kamerdruk wijkt af van de ingestelde waarde.</translation>
    </message>
    <message>
        <source>0x42010024</source>
        <translation>Sterilisator: vacuümtest achterstallig.</translation>
    </message>
    <message>
        <source>0x42020009</source>
        <translation>Deksel van de watertank niet gesloten.</translation>
    </message>
    <message>
        <source>0x4207000d</source>
        <translation>Printer: papier vastgelopen.</translation>
    </message>
    <message>
        <source>0x420c0010</source>
        <translation>Onderhoud achterstallig. Onderhoudsafspraak maken.</translation>
    </message>
    <message>
        <source>0x4211001b</source>
        <translation>Fabrieksinstellingen hersteld.</translation>
    </message>
    <message>
        <source>0x42140022</source>
        <translation>Rapportexport mislukt. Doelmap controleren.</translation>
    </message>
    <message>
        <source>0x42190022</source>
        <translation>E-mailmelding kon niet worden verzonden.</translation>
    </message>
    <message>
        <source>0x42288010</source>
        <translation>Quillon Pulse: toegangsmachtiging verloopt binnenkort.</translation>
    </message>
    <message>
        <source>0x42298010</source>
        <translation>Quillon Pulse: sinds gisteren geen gegevens verzonden.</translation>
    </message>
    <message>
        <source>0x422c8010</source>
        <translation>Gegevensback-up afgebroken.</translation>
    </message>
    <message>
        <source>0x43010009</source>
        <translation>Deur is vóór het einde van het programma geopend.</translation>
    </message>
    <message>
        <source>0x4301000d</source>
        <translation>Deurvergrendeling loopt stroef. Deurafdichting reinigen.</translation>
    </message>
    <message>
        <source>0x43030006</source>
        <translation>Filter vervuild.</translation>
    </message>
    <message>
        <source>0x4402001d</source>
        <translation>Desinfectiemiddel voor afzuiging ontbreekt. Fles plaatsen.</translation>
    </message>
    <message>
        <source>0x4403001f</source>
        <translation>Afvalwaterreservoir vol. Reservoir legen.</translation>
    </message>
    <message>
        <source>0x44060012</source>
        <translation>Inwerktijd onderbroken.</translation>
    </message>
    <message>
        <source>0x45000004</source>
        <translation>Storing van de uitgangssensor!</translation>
    </message>
    <message>
        <source>0x48240028</source>
        <translation>Het bestand hoort niet bij dit type apparaat.</translation>
    </message>
    <message>
        <source>0x48240029</source>
        <translation>Gegevensimport voltooid met waarschuwingen.</translation>
    </message>
    <message>
        <source>0x4824002a</source>
        <translation>Gegevensimport door gebruiker geannuleerd.</translation>
    </message>
    <message>
        <source>0x48240100</source>
        <translation>Het geüploade bestand is leeg.</translation>
    </message>
    <message>
        <source>0x48240101</source>
        <translation>De apparaatheader heeft een ongeldige indeling.</translation>
    </message>
    <message>
        <source>0x48240102</source>
        <translation>De apparaatheader bevat noch REF noch DEV_SN.</translation>
    </message>
    <message>
        <source>0x48240103</source>
        <translation>De REF of DEV_SN komt niet overeen met het apparaat.</translation>
    </message>
    <message>
        <source>0x48240104</source>
        <translation>Gegevensimport onvolledig.</translation>
    </message>
    <message>
        <source>0x48240200</source>
        <translation>Bestand vereist nieuwere software. Apparaat bijwerken.</translation>
    </message>
    <message>
        <source>0x48250025</source>
        <translation>Gegevensexport mislukt.</translation>
    </message>
    <message>
        <source>0x51010013</source>
        <translation>Besturingselektronica onverwacht opnieuw gestart.</translation>
    </message>
    <message>
        <source>0x5104000b</source>
        <translation>Perslucht: druk kortstondig boven de uitschakelwaarde.</translation>
    </message>
    <message>
        <source>0x510f000c</source>
        <translation>Perslucht: druk kortstondig onder de inschakelwaarde.</translation>
    </message>
    <message>
        <source>0x5122000B</source>
        <translation>Draaitijd van de compressor zeer hoog. Systeem controleren.</translation>
    </message>
    <message>
        <source>0x51230013</source>
        <translation>Regeneratie van de droger opnieuw gestart.</translation>
    </message>
    <message>
        <source>0x52048009</source>
        <translation>Sterilisatie door gebruiker geannuleerd. Lading niet steriel.</translation>
    </message>
    <message>
        <source>0x52058001</source>
        <translation>Sterilisatie gestart.</translation>
    </message>
    <message>
        <source>0x52068001</source>
        <translation>Vacuümtest gestart.</translation>
    </message>
    <message>
        <source>0x520a0010</source>
        <translation>Jaarlijks onderhoud binnenkort nodig.</translation>
    </message>
    <message>
        <source>0x520b0010</source>
        <translation>Validatie van de sterilisator nodig.</translation>
    </message>
    <message>
        <source>0x520d001f</source>
        <translation>Amalgaamafscheider: opvangreservoir bijna vol.</translation>
    </message>
    <message>
        <source>0x520e8001</source>
        <translation>Software-update beschikbaar.</translation>
    </message>
    <message>
        <source>0x520e8006</source>
        <translation>Software-update geïnstalleerd.</translation>
    </message>
    <message>
        <source>0x52100023</source>
        <translation>Agenda: afspraak voor vandaag.</translation>
    </message>
    <message>
        <source>0x52118003</source>
        <translation>Instellingen gewijzigd.</translation>
    </message>
    <message>
        <source>0x52148001</source>
        <translation>Rapportexport gestart.</translation>
    </message>
    <message>
        <source>0x52148006</source>
        <translation>Rapportexport voltooid.</translation>
    </message>
    <message>
        <source>0x5214800a</source>
        <translation>Rapportexport uitgesteld: doelmap niet bereikbaar.</translation>
    </message>
    <message>
        <source>0x52148010</source>
        <translation>Rapportexport afgebroken.</translation>
    </message>
    <message>
        <source>0x521d8012</source>
        <translation>Nachtstand actief.</translation>
    </message>
    <message>
        <source>0x521e8006</source>
        <translation>Zelftest voltooid. Zie rapport.</translation>
    </message>
    <message>
        <source>0x522a8010</source>
        <translation>Externe toegang voor service ingeschakeld.</translation>
    </message>
    <message>
        <source>0x522b8010</source>
        <translation>Quillon Pulse: apparaat uit het account verwijderd.</translation>
    </message>
    <message>
        <source>0x522c8001</source>
        <translation>Gegevensback-up gestart.</translation>
    </message>
    <message>
        <source>0x522c8006</source>
        <translation>Gegevensback-up voltooid.</translation>
    </message>
    <message>
        <source>0x52300011</source>
        <translation>Ruimtetemperatuur hoog. Ruimteventilatie controleren.</translation>
    </message>
    <message>
        <source>0x53030006</source>
        <translation>Filter binnenkort vervangen.</translation>
    </message>
    <message>
        <source>0x5305000b</source>
        <translation>Geleidbaarheid van het water verhoogd.</translation>
    </message>
    <message>
        <source>0x54060020</source>
        <translation>Desinfectie nodig.</translation>
    </message>
    <message>
        <source>0x55000003</source>
        <translation>Snelheid niet in orde!</translation>
    </message>
    <message>
        <source>0x61010013</source>
        <translation>Besturingselektronica opnieuw gestart.</translation>
    </message>
    <message>
        <source>0x61258001</source>
        <translation>Kalibratie gestart.</translation>
    </message>
    <message>
        <source>0x6207000e</source>
        <translation>Printer: papier bijna op.</translation>
    </message>
    <message>
        <source>0x62070015</source>
        <translation>Printer gereed.</translation>
    </message>
    <message>
        <source>0x62078011</source>
        <translation>Etiket afgedrukt.</translation>
    </message>
    <message>
        <source>0x62138006</source>
        <translation>Datum en tijd gesynchroniseerd.</translation>
    </message>
    <message>
        <source>0x621a800d</source>
        <translation>Gebruiker aangemeld.</translation>
    </message>
    <message>
        <source>0x62208006</source>
        <translation>Röntgenopname verzonden.</translation>
    </message>
    <message>
        <source>0x622a8010</source>
        <translation>Externe toegang voor service beëindigd.</translation>
    </message>
    <message>
        <source>0x622b8010</source>
        <translation>Quillon Pulse: apparaat aan het account toegevoegd.</translation>
    </message>
    <message>
        <source>0x62318006</source>
        <translation>Logboek van de waterkwaliteit bijgewerkt.</translation>
    </message>
    <message>
        <source>0x64068001</source>
        <translation>Desinfectie gestart.</translation>
    </message>
    <message>
        <source>0x64078001</source>
        <translation>Spoelen van de waterleidingen gestart.</translation>
    </message>
    <message>
        <source>0x6801001b</source>
        <translation>Gebeurtenisgeheugen gewist.</translation>
    </message>
    <message>
        <source>0x68210025</source>
        <translation>Gegevensexport voltooid.</translation>
    </message>
    <message>
        <source>0x68220026</source>
        <translation>Rapport opgeslagen als pdf-bestand.</translation>
    </message>
    <message>
        <source>0x68230027</source>
        <translation>Oudere rapporten gearchiveerd.</translation>
    </message>
    <message>
        <source>0x68240029</source>
        <translation>Gegevensimport met succes voltooid.</translation>
    </message>
    <message>
        <source>0x68258010</source>
        <translation>Wizard afgebroken: Quillon Pulse niet geconfigureerd.</translation>
    </message>
    <message>
        <source>0x95000005</source>
        <translation>Ingangssensor te lang geblokkeerd?</translation>
    </message>
</context>
</TS>
