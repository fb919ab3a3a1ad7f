<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>Alarm Service</name>
    <message>
        <source>0x0</source>
        <translation>Nessun allarme.</translation>
    </message>
    <message>
        <source>0x3067fb9f</source>
        <translation>Manca ancora una parte dell’apparecchio.</translation>
    </message>
    <message>
        <source>0x3067fba2</source>
        <translation>Coperchio dell’unità di inserimento aperto.</translation>
    </message>
    <message>
        <source>0x3101000f</source>
        <translation>Elettronica di comando difettosa. Chiamare l’assistenza.</translation>
    </message>
    <message>
        <source>0x31010011</source>
        <translation>Elettronica di comando troppo calda.</translation>
    </message>
    <message>
        <source>0x31010014</source>
        <translation>Tensione di alimentazione fuori dai limiti.</translation>
    </message>
    <message>
        <source>0x31020007</source>
        <translation>Nessun collegamento con il comando del motore.</translation>
    </message>
    <message>
        <source>0x3102000C</source>
        <translation>Corrente del motore troppo bassa, controllare il motore.</translation>
    </message>
    <message>
        <source>0x3102000b</source>
        <translation>Sovraccarico del motore.</translation>
    </message>
    <message>
        <source>0x31020011</source>
        <translation>Motore troppo caldo.</translation>
    </message>
    <message>
        <source>0x31020013</source>
        <translation>Il motore non si riavvia.</translation>
    </message>
    <message>
        <source>0x31020014</source>
        <translation>Fase del motore mancante.</translation>
    </message>
    <message>
        <source>0x31020015</source>
        <translation>Cortocircuito del motore.</translation>
    </message>
    <message>
        <source>0x31020018</source>
        <translation>Motore bloccato.</translation>
    </message>
    <message>
        <source>0x31020019</source>
        <translation>Il motore gira nel senso sbagliato.</translation>
    </message>
    <message>
        <source>0x3102001a</source>
        <translation>Marcia di emergenza del motore fallita. Chiamare l’assistenza.</translation>
    </message>
    <message>
        <source>0x31020022</source>
        <translation>Parametri del motore non validi.</translation>
    </message>
    <message>
        <source>0x31040004</source>
        <translation>Guasto del sensore di pressione. Chiamare l’assistenza.</translation>
    </message>
    <message>
        <source>0x31040007</source>
        <translation>Nessun segnale dal sensore di pressione.</translation>
    </message>
    <message>
        <source>0x3104000b</source>
        <translation>Pressione dell’aria troppo alta. Apparecchio spento.</translation>
    </message>
    <message>
        <source>0x310f000c</source>
        <translation>Pressione dell’aria troppo bassa. Trattamento impossibile.</translation>
    </message>
    <message>
        <source>0x311c0006</source>
        <translation>Unità di aspirazione ostruita. Controllare le tubazioni.</translation>
    </message>
    <message>
        <source>0x311c000b</source>
        <translation>Unità di aspirazione: depressione troppo alta.</translation>
    </message>
    <message>
        <source>0x311c000c</source>
        <translation>Unità di aspirazione: depressione troppo bassa.</translation>
    </message>
    <message>
        <source>0x311c000f</source>
        <translation>Unità di aspirazione: valore di depressione non plausibile.</translation>
    </message>
    <message>
        <source>0x311c0011</source>
        <translation>Unità di aspirazione troppo calda. Lasciare raffreddare.</translation>
    </message>
    <message>
        <source>0x3204000a</source>
        <translation>Sterilizzazione fallita: vuoto non raggiunto.</translation>
    </message>
    <message>
        <source>0x3204000f</source>
        <translation>Sterilizzazione fallita: temperatura e pressione discordanti.</translation>
    </message>
    <message>
        <source>0x32040017</source>
        <translation>Sterilizzazione fallita: tempo troppo breve.</translation>
    </message>
    <message>
        <source>0x3207001e</source>
        <translation>Stampante: rotolo di etichette errato.</translation>
    </message>
    <message>
        <source>0x32080007</source>
        <translation>Nessun collegamento con il display.</translation>
    </message>
    <message>
        <source>0x32090007</source>
        <translation>Nessun collegamento con il separatore di amalgama.</translation>
    </message>
    <message>
        <source>0x320d001f</source>
        <translation>Separatore di amalgama: contenitore pieno. Sostituirlo.</translation>
    </message>
    <message>
        <source>0x320e0022</source>
        <translation>Aggiornamento software fallito.</translation>
    </message>
    <message>
        <source>0x32120022</source>
        <translation>Impostazioni di rete non valide.</translation>
    </message>
    <message>
        <source>0x32130022</source>
        <translation>Sincronizzazione dell’ora fallita.</translation>
    </message>
    <message>
        <source>0x3215000f</source>
        <translation>Scanner ai fosfori: potenza laser errata. Chiamare l’assistenza.</translation>
    </message>
    <message>
        <source>0x32150017</source>
        <translation>Scanner ai fosfori: scansione non completata in tempo.</translation>
    </message>
    <message>
        <source>0x321b001e</source>
        <translation>Programma non consentito per questo carico.</translation>
    </message>
    <message>
        <source>0x321c000f</source>
        <translation>Unità di aspirazione: test di portata fallito.</translation>
    </message>
    <message>
        <source>0x321f0022</source>
        <translation>Memoria USB non leggibile.</translation>
    </message>
    <message>
        <source>0x32210007</source>
        <translation>Connessione al server dello studio interrotta.</translation>
    </message>
    <message>
        <source>0x32230022</source>
        <translation>Accesso bloccato dopo troppi tentativi falliti.</translation>
    </message>
    <message>
        <source>0x32240022</source>
        <translation>Licenza software non valida.</translation>
    </message>
    <message>
        <source>0x32250022</source>
        <translation>Dati di calibrazione non validi.</translation>
    </message>
    <message>
        <source>0x32268010</source>
        <translation>Quillon Pulse: connessione fallita.</translation>
    </message>
    <message>
        <source>0x32278010</source>
        <translation>Quillon Pulse: registrazione fallita. Controllare rete e codice.</translation>
    </message>
    <message>
        <source>0x322d0011</source>
        <translation>Generatore di vapore troppo caldo.</translation>
    </message>
    <message>
        <source>0x322e0023</source>
        <translation>Manutenzione in ritardo. Non usare prima dell’intervento.</translation>
    </message>
    <message>
        <source>0x322f0009</source>
        <translation>Coperchio del contenitore di raccolta aperto.</translation>
    </message>
    <message>
        <source>0x322f001d</source>
        <translation>Contenitore di raccolta mancante.</translation>
    </message>
    <message>
        <source>0x33010009</source>
        <translation>Porta aperta.</translation>
    </message>
    <message>
        <source>0x3301000d</source>
        <translation>Blocco porta inceppato. Non forzare la porta.</translation>
    </message>
    <message>
        <source>0x33030006</source>
        <translation>Filtro intasato. Sostituire il filtro.</translation>
    </message>
    <message>
        <source>0x33040006</source>
        <translation>Scarico del separatore di amalgama ostruito.</translation>
    </message>
    <message>
        <source>0x3401001d</source>
        <translation>Manca l’acqua. Aprire la valvola dell’acqua.</translation>
    </message>
    <message>
        <source>0x3404001e</source>
        <translation>Inserito disinfettante errato.</translation>
    </message>
    <message>
        <source>0x34050021</source>
        <translation>La pompa dosatrice non eroga disinfettante.</translation>
    </message>
    <message>
        <source>0x4068d8e5</source>
        <translation>Il sistema di trasporto necessita di manutenzione.</translation>
    </message>
    <message>
        <source>0x41010011</source>
        <translation>Elettronica di comando calda. Controllare la ventilazione.</translation>
    </message>
    <message>
        <source>0x41010012</source>
        <translation>L’alimentazione elettrica è stata interrotta.</translation>
    </message>
    <message>
        <source>0x41010014</source>
        <translation>Tensione di alimentazione instabile.</translation>
    </message>
    <message>
        <source>0x4101001b</source>
        <translation>Orologio interno azzerato. Impostare data e ora.</translation>
    </message>
    <message>
        <source>0x41020011</source>
        <translation>Temperatura del motore elevata.</translation>
    </message>
    <message>
        <source>0x41020013</source>
        <translation>Il motore si è riavviato più volte.</translation>
    </message>
    <message>
        <source>0x4102001a</source>
        <translation>Marcia di emergenza del motore.</translation>
    </message>
    <message>
        <source>0x4104000b</source>
        <translation>Pressione dell’aria alta.</translation>
    </message>
    <message>
        <source>0x410f000c</source>
        <translation>Pressione dell’aria bassa. Cercare perdite nelle tubazioni.</translation>
    </message>
    <message>
        <source>0x41120007</source>
        <translation>Nessun segnale dal sensore di umidità dell’essiccatore.</translation>
    </message>
    <message>
        <source>0x411c0011</source>
        <translation>Unità di aspirazione: temperatura elevata.</translation>
    </message>
    <message>
        <source>0x4122000b</source>
        <translation>Tempo di marcia del compressore elevato.</translation>
    </message>
    <message>
        <source>0x41230013</source>
        <translation>L’essiccatore si rigenera troppo spesso.</translation>
    </message>
    <message>
        <source>0x4201000a</source>
        <translation>Sterilizzatrice: il vuoto si forma lentamente.</translation>
    </message>
    <message>
        <source>0x4201000f</source>
        <translation>Sterilizzatrice: pressione in camera fuori tolleranza.</translation>
    </message>
    <message>
        <source>0x42010024</source>
        <translation>Sterilizzatrice: test del vuoto in ritardo.</translation>
    </message>
    <message>
        <source>0x42020009</source>
        <translation>Coperchio del serbatoio dell’acqua non chiuso.</translation>
    </message>
    <message>
        <source>0x4207000d</source>
        <translation>Stampante: carta inceppata.</translation>
    </message>
    <message>
        <source>0x420c0010</source>
        <translation>Manutenzione in ritardo. Fissare un appuntamento.</translation>
    </message>
    <message>
        <source>0x4211001b</source>
        <translation>Impostazioni di fabbrica ripristinate.</translation>
    </message>
    <message>
        <source>0x42140022</source>
        <translation>Esportazione rapporti fallita. Controllare la cartella.</translation>
    </message>
    <message>
        <source>0x42190022</source>
        <translation>Impossibile inviare la notifica via e-mail.</translation>
    </message>
    <message>
        <source>0x42288010</source>
        <translation>Quillon Pulse: l’autorizzazione di accesso scade a breve.</translation>
    </message>
    <message>
        <source>0x42298010</source>
        <translation>Quillon Pulse: nessun dato trasmesso da ieri.</translation>
    </message>
    <message>
        <source>0x422c8010</source>
        <translation>Backup dei dati interrotto.</translation>
    </message>
    <message>
        <source>0x43010009</source>
        <translation>La porta è stata aperta prima della fine del programma.</translation>
    </message>
    <message>
        <source>0x4301000d</source>
        <translation>Blocco porta duro. Pulire la guarnizione della porta.</translation>
    </message>
    <message>
        <source>0x43030006</source>
        <translation>Filtro sporco.</translation>
    </message>
    <message>
        <source>0x4402001d</source>
        <translation>Manca il disinfettante per aspirazione. Inserire un flacone.</translation>
    </message>
    <message>
        <source>0x4403001f</source>
        <translation>Serbatoio delle acque reflue pieno. Svuotare il serbatoio.</translation>
    </message>
    <message>
        <source>0x44060012</source>
        <translation>Tempo di azione interrotto.</translation>
    </message>
    <message>
        <source>0x45000004</source>
        <translation>Guasto del sensore di uscita!</translation>
    </message>
    <message>
        <source>0x48240028</source>
        <translation>Il file non appartiene a questo tipo di apparecchio.</translation>
    </message>
    <message>
        <source>0x48240029</source>
        <translation>Importazione dati completata con avvisi.</translation>
    </message>
    <message>
        <source>0x4824002a</source>
        <translation>Importazione dati annullata dall’utente.</translation>
    </message>
    <message>
        <source>0x48240100</source>
        <translation>Il file caricato è vuoto.</translation>
    </message>
    <message>
        <source>0x48240101</source>
        <translation>L’intestazione dell’apparecchio ha un formato non valido.</translation>
    </message>
    <message>
        <source>0x48240102</source>
        <translation>L’intestazione dell’apparecchio non contiene né REF né DEV_SN.</translation>
    </message>
    <message>
        <source>0x48240103</source>
        <translation>La REF o il DEV_SN non corrisponde all’apparecchio.</translation>
    </message>
    <message>
        <source>0x48240104</source>
        <translation>Importazione dati incompleta.</translation>
    </message>
    <message>
        <source>0x48240200</source>
        <translation>File di un software più recente. Aggiornare l’apparecchio.</translation>
    </message>
    <message>
        <source>0x48250025</source>
        <translation>Esportazione dati fallita.</translation>
    </message>
    <message>
        <source>0x51010013</source>
        <translation>Riavvio imprevisto dell’elettronica di comando.</translation>
    </message>
    <message>
        <source>0x5104000b</source>
        <translation>Pressione dell’aria brevemente sopra quella di arresto.</translation>
    </message>
    <message>
        <source>0x510f000c</source>
        <translation>Pressione dell’aria brevemente sotto quella di avvio.</translation>
    </message>
    <message>
        <source>0x5122000B</source>
        <translation>Tempo di marcia del compressore molto elevato. Controllare.</translation>
    </message>
    <message>
        <source>0x51230013</source>
        <translation>Rigenerazione dell’essiccatore riavviata.</translation>
    </message>
    <message>
        <source>0x52048009</source>
        <translation>Sterilizzazione annullata dall’utente. Carico non sterile.</translation>
    </message>
    <message>
        <source>0x52058001</source>
        <translation>Sterilizzazione avviata.</translation>
    </message>
    <message>
        <source>0x52068001</source>
        <translation>Test del vuoto avviato.</translation>
    </message>
    <message>
        <source>0x520a0010</source>
        <translation>Manutenzione annuale necessaria a breve.</translation>
    </message>
    <message>
        <source>0x520b0010</source>
        <translation>Convalida della sterilizzatrice da eseguire.</translation>
    </message>
    <message>
        <source>0x520d001f</source>
        <translation>Separatore di amalgama: contenitore quasi pieno.</translation>
    </message>
    <message>
        <source>0x520e8001</source>
        <translation>Aggiornamento software disponibile.</translation>
    </message>
    <message>
        <source>0x520e8006</source>
        <translation>Aggiornamento software installato.</translation>
    </message>
    <message>
        <source>0x52100023</source>
        <translation>Calendario: appuntamento previsto per oggi.</translation>
    </message>
    <message>
        <source>0x52118003</source>
        <translation>Impostazioni modificate.</translation>
    </message>
    <message>
        <source>0x52148001</source>
        <translation>Esportazione rapporti avviata.</translation>
    </message>
    <message>
        <source>0x52148006</source>
        <translation>Esportazione rapporti completata.</translation>
    </message>
    <message>
        <source>0x5214800a</source>
        <translation>Esportazione rapporti rinviata: cartella non raggiungibile.</translation>
    </message>
    <message>
        <source>0x52148010</source>
        <translation>Esportazione rapporti interrotta.</translation>
    </message>
    <message>
        <source>0x521d8012</source>
        <translation>Modalità notturna attiva.</translation>
    </message>
    <message>
        <source>0x521e8006</source>
        <translation>Autotest completato. Vedere il rapporto.</translation>
    </message>
    <message>
        <source>0x522a8010</source>
        <translation>Accesso remoto dell’assistenza attivato.</translation>
    </message>
    <message>
        <source>0x522b8010</source>
        <translation>Quillon Pulse: apparecchio rimosso dall’account.</translation>
    </message>
    <message>
        <source>0x522c8001</source>
        <translation>Backup dei dati avviato.</translation>
    </message>
    <message>
        <source>0x522c8006</source>
        <translation>Backup dei dati completato.</translation>
    </message>
    <message>
        <source>0x52300011</source>
        <translation>Temperatura ambiente elevata. Controllare la ventilazione.</translation>
    </message>
    <message>
        <source>0x53030006</source>
        <translation>Sostituzione del filtro necessaria a breve.</translation>
    </message>
    <message>
        <source>0x5305000b</source>
        <translation>Conducibilità dell’acqua elevata.</translation>
    </message>
    <message>
        <source>0x54060020</source>
        <translation>Disinfezione da eseguire.</translation>
    </message>
    <message>
        <source>0x55000003</source>
        <translation>Velocità non corretta!</translation>
    </message>
    <message>
        <source>0x61010013</source>
        <translation>Elettronica di comando riavviata.</translation>
    </message>
    <message>
        <source>0x61258001</source>
        <translation>Calibrazione avviata.</translation>
    </message>
    <message>
        <source>0x6207000e</source>
        <translation>Stampante: carta in esaurimento.</translation>
    </message>
    <message>
        <source>0x62070015</source>
        <translation>Stampante pronta.</translation>
    </message>
    <message>
        <source>0x62078011</source>
        <translation>Etichetta stampata.</translation>
    </message>
    <message>
        <source>0x62138006</source>
        <translation>Data e ora sincronizzate.</translation>
    </message>
    <message>
        <source>0x621a800d</source>
        <translation>Utente connesso.</translation>
    </message>
    <message>
        <source>0x62208006</source>
        <translation>Radiografia trasmessa.</translation>
    </message>
    <message>
        <source>0x622a8010</source>
        <translation>Accesso remoto dell’assistenza terminato.</translation>
    </message>
    <message>
        <source>0x622b8010</source>
        <translation>Quillon Pulse: apparecchio aggiunto all’account.</translation>
    </message>
    <message>
        <source>0x62318006</source>
        <translation>Registro della qualità dell’acqua aggiornato.</translation>
    </message>
    <message>
        <source>0x64068001</source>
        <translation>Disinfezione avviata.</translation>
    </message>
    <message>
        <source>0x64078001</source>
        <translation>Risciacquo dei condotti dell’acqua avviato.</translation>
    </message>
    <message>
        <source>0x6801001b</source>
        <translation>Memoria eventi cancellata.</translation>
    </message>
    <message>
        <source>0x68210025</source>
        <translation>Esportazione dati completata.</translation>
    </message>
    <message>
        <source>0x68220026</source>
        <translation>Rapporto salvato come file PDF.</translation>
    </message>
    <message>
        <source>0x68230027</source>
        <translation>Rapporti meno recenti archiviati.</translation>
    </message>
    <message>
        <source>0x68240029</source>
        <translation>Importazione dati completata correttamente.</translation>
    </message>
    <message>
        <source>0x68258010</source>
        <translation>Procedura guidata interrotta: Quillon Pulse non configurato.</translation>
    </message>
    <message>
        <source>0x95000005</source>
        <translation>Sensore di ingresso ostruito troppo a lungo?</translation>
    </message>
</context>
</TS>
