<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>Alarm Service</name>
    <message>
        <source>0x0</source>
        <translation>Aucune alarme.</translation>
    </message>
    <message>
        <source>0x3067fb9f</source>
        <translation>Il manque encore une partie de l’appareil.</translation>
    </message>
    <message>
        <source>0x3067fba2</source>
        <translation>Capot de l’unité d’introduction ouvert.</translation>
    </message>
    <message>
        <source>0x3101000f</source>
        <translation>Électronique de commande défectueuse. Appeler le SAV.</translation>
    </message>
    <message>
        <source>0x31010011</source>
        <translation>Électronique de commande trop chaude.</translation>
    </message>
    <message>
        <source>0x31010014</source>
        <translation>Tension d’alimentation hors plage.</translation>
    </message>
    <message>
        <source>0x31020007</source>
        <translation>Aucune connexion à la commande du moteur.</translation>
    </message>
    <message>
        <source>0x3102000C</source>
        <translation>Courant du moteur trop faible, vérifier le moteur.</translation>
    </message>
    <message>
        <source>0x3102000b</source>
        <translation>Surcharge du moteur.</translation>
    </message>
    <message>
        <source>0x31020011</source>
        <translation>Moteur trop chaud.</translation>
    </message>
    <message>
        <source>0x31020013</source>
        <translation>Le moteur ne redémarre pas.</translation>
    </message>
    <message>
        <source>0x31020014</source>
        <translation>Phase du moteur manquante.</translation>
    </message>
    <message>
        <source>0x31020015</source>
        <translation>Court-circuit du moteur.</translation>
    </message>
    <message>
        <source>0x31020018</source>
        <translation>Moteur bloqué.</translation>
    </message>
    <message>
        <source>0x31020019</source>
        <translation>Le moteur tourne dans le mauvais sens.</translation>
    </message>
    <message>
        <source>0x3102001a</source>
        <translation>Échec de la marche de secours du moteur. Appeler le SAV.</translation>
    </message>
    <message>
        <source>0x31020022</source>
        <translation>Paramètres du moteur non valides.</translation>
    </message>
    <message>
        <source>0x31040004</source>
        <translation>Défaut du capteur de pression. Appeler le SAV.</translation>
    </message>
    <message>
        <source>0x31040007</source>
        <translation>Aucun signal du capteur de pression.</translation>
    </message>
    <message>
        <source>0x3104000b</source>
        <translation>Pression d’air trop élevée. Appareil arrêté.</translation>
    </message>
    <message>
        <source>0x310f000c</source>
        <translation>Pression d’air trop faible. Soins impossibles.</translation>
    </message>
    <message>
        <source>0x311c0006</source>
        <translation>Unité d’aspiration obstruée. Vérifier les conduites.</translation>
    </message>
    <message>
        <source>0x311c000b</source>
        <translation>Unité d’aspiration : dépression trop élevée.</translation>
    </message>
    <message>
        <source>0x311c000c</source>
        <translation>Unité d’aspiration : dépression trop faible.</translation>
    </message>
    <message>
        <source>0x311c000f</source>
        <translation>Unité d’aspiration : mesure de dépression non plausible.</translation>
    </message>
    <message>
        <source>0x311c0011</source>
        <translation>Unité d’aspiration trop chaude. Laisser refroidir.</translation>
    </message>
    <message>
        <source>0x3204000a</source>
        <translation>Échec de stérilisation : vide non atteint.</translation>
    </message>
    <message>
        <source>0x3204000f</source>
        <translation>Échec de stérilisation : température et pression discordantes.</translation>
    </message>
    <message>
        <source>0x32040017</source>
        <translation>Échec de stérilisation : durée de stérilisation trop courte.</translation>
    </message>
    <message>
        <source>0x3207001e</source>
        <translation>Imprimante&#xa0;: rouleau d’étiquettes incorrect.</translation>
    </message>
    <message>
        <source>0x32080007</source>
        <translation>Aucune connexion à l’écran.</translation>
    </message>
    <message>
        <source>0x32090007</source>
        <translation>Aucune connexion au séparateur d’amalgame.</translation>
    </message>
    <message>
        <source>0x320d001f</source>
        <translation>Séparateur d’amalgame : récipient collecteur plein. À changer.</translation>
    </message>
    <message>
        <source>0x320e0022</source>
        <translation>Échec de la mise à jour du logiciel.</translation>
    </message>
    <message>
        <source>0x32120022</source>
        <translation>Paramètres réseau non valides.</translation>
    </message>
    <message>
        <source>0x32130022</source>
        <translation>Échec de la synchronisation de l’heure.</translation>
    </message>
    <message>
        <source>0x3215000f</source>
        <translation>Scanner ERLM : puissance laser anormale. Appeler le SAV.</translation>
    </message>
    <message>
        <source>0x32150017</source>
        <translation>Scanner ERLM : délai de lecture dépassé.</translation>
    </message>
    <message>
        <source>0x321b001e</source>
        <translation>Programme non autorisé pour cette charge.</translation>
    </message>
    <message>
        <source>0x321c000f</source>
        <translation>Unité d’aspiration : échec du test de débit.</translation>
    </message>
    <message>
        <source>0x321f0022</source>
        <translation>Support USB illisible.</translation>
    </message>
    <message>
        <source>0x32210007</source>
        <translation>Connexion au serveur du cabinet perdue.</translation>
    </message>
    <message>
        <source>0x32230022</source>
        <translation>Ouverture de session bloquée après trop d’échecs.</translation>
    </message>
    <message>
        <source>0x32240022</source>
        <translation>Licence du logiciel non valide.</translation>
    </message>
    <message>
        <source>0x32250022</source>
        <translation>Données d’étalonnage non valides.</translation>
    </message>
    <message>
        <source>0x32268010</source>
        <translation>Quillon Pulse : échec de la connexion.</translation>
    </message>
    <message>
        <source>0x32278010</source>
        <translation>Quillon Pulse : échec de l’inscription. Vérifier réseau et code.</translation>
    </message>
    <message>
        <source>0x322d0011</source>
        <translation>Générateur de vapeur trop chaud.</translation>
    </message>
    <message>
        <source>0x322e0023</source>
        <translation>Maintenance échue. Ne pas utiliser avant intervention.</translation>
    </message>
    <message>
        <source>0x322f0009</source>
        <translation>Couvercle du récipient collecteur ouvert.</translation>
    </message>
    <message>
        <source>0x322f001d</source>
        <translation>Récipient collecteur manquant.</translation>
    </message>
    <message>
        <source>0x33010009</source>
        <translation>Porte ouverte.</translation>
    </message>
    <message>
        <source>0x3301000d</source>
        <translation>Verrouillage de porte coincé. Ne pas forcer la porte.</translation>
    </message>
    <message>
        <source>0x33030006</source>
        <translation>Filtre colmaté. Remplacer le filtre.</translation>
    </message>
    <message>
        <source>0x33040006</source>
        <translation>Évacuation du séparateur d’amalgame obstruée.</translation>
    </message>
    <message>
        <source>0x3401001d</source>
        <translation>Pas d’alimentation en eau. Ouvrir la vanne d’eau.</translation>
    </message>
    <message>
        <source>0x3404001e</source>
        <translation>Mauvais désinfectant mis en place.</translation>
    </message>
    <message>
        <source>0x34050021</source>
        <translation>La pompe doseuse ne délivre pas de désinfectant.</translation>
    </message>
    <message>
        <source>0x4068d8e5</source>
        <translation>Le système de transport nécessite une maintenance.</translation>
    </message>
    <message>
        <source>0x41010011</source>
        <translation>Électronique de commande chaude. Vérifier la ventilation.</translation>
    </message>
    <message>
        <source>0x41010012</source>
        <translation>L’alimentation électrique a été interrompue.</translation>
    </message>
    <message>
        <source>0x41010014</source>
        <translation>Tension d’alimentation instable.</translation>
    </message>
    <message>
        <source>0x4101001b</source>
        <translation>Horloge interne réinitialisée. Régler la date et l’heure.</translation>
    </message>
    <message>
        <source>0x41020011</source>
        <translation>Température du moteur élevée.</translation>
    </message>
    <message>
        <source>0x41020013</source>
        <translation>Le moteur a redémarré plusieurs fois.</translation>
    </message>
    <message>
        <source>0x4102001a</source>
        <translation>Marche de secours du moteur.</translation>
    </message>
    <message>
        <source>0x4104000b</source>
        <translation>Pression d’air élevée.</translation>
    </message>
    <message>
        <source>0x410f000c</source>
        <translation>Pression d’air faible. Rechercher les fuites des conduites.</translation>
    </message>
    <message>
        <source>0x41120007</source>
        <translation>Aucun signal du capteur d’humidité du sécheur.</translation>
    </message>
    <message>
        <source>0x411c0011</source>
        <translation>Unité d’aspiration : température élevée.</translation>
    </message>
    <message>
        <source>0x4122000b</source>
        <translation>Durée de marche du compresseur élevée.</translation>
    </message>
    <message>
        <source>0x41230013</source>
        <translation>Le sécheur se régénère trop souvent.</translation>
    </message>
    <message>
        <source>0x4201000a</source>
        <translation>Stérilisateur&#xa0;: le vide s’établit lentement.</translation>
    </message>
    <message>
        <source>0x4201000f</source>
        <translation>Stérilisateur : pression de chambre hors consigne.</translation>
    </message>
    <message>
        <source>0x42010024</source>
        <translation>Stérilisateur&#xa0;: test de vide en retard.</translation>
    </message>
    <message>
        <source>0x42020009</source>
        <translation>Couvercle du réservoir d’eau non fermé.</translation>
    </message>
    <message>
        <source>0x4207000d</source>
        <translation>Imprimante&#xa0;: bourrage papier.</translation>
    </message>
    <message>
        <source>0x420c0010</source>
        <translation>Maintenance en retard. Prendre rendez-vous avec le SAV.</translation>
    </message>
    <message>
        <source>0x4211001b</source>
        <translation>Réglages d’usine rétablis.</translation>
    </message>
    <message>
        <source>0x42140022</source>
        <translation>Échec de l’exportation des rapports. Vérifier le dossier.</translation>
    </message>
    <message>
        <source>0x42190022</source>
        <translation>La notification par e-mail n’a pas pu être envoyée.</translation>
    </message>
    <message>
        <source>0x42288010</source>
        <translation>Quillon Pulse&#xa0;: l’autorisation d’accès expire bientôt.</translation>
    </message>
    <message>
        <source>0x42298010</source>
        <translation>Quillon Pulse&#xa0;: aucune donnée transmise depuis hier.</translation>
    </message>
    <message>
        <source>0x422c8010</source>
        <translation>Sauvegarde des données interrompue.</translation>
    </message>
    <message>
        <source>0x43010009</source>
        <translation>La porte a été ouverte avant la fin du programme.</translation>
    </message>
    <message>
        <source>0x4301000d</source>
        <translation>Verrouillage de porte dur. Nettoyer le joint de porte.</translation>
    </message>
    <message>
        <source>0x43030006</source>
        <translation>Filtre encrassé.</translation>
    </message>
    <message>
        <source>0x4402001d</source>
        <translation>Désinfectant d’aspiration manquant. Insérer un flacon.</translation>
    </message>
    <message>
        <source>0x4403001f</source>
        <translation>Réservoir d’eaux usées plein. Vider le réservoir.</translation>
    </message>
    <message>
        <source>0x44060012</source>
        <translation>Temps d’action interrompu.</translation>
    </message>
    <message>
        <source>0x45000004</source>
        <translation>Défaut du capteur de sortie&#xa0;!</translation>
    </message>
    <message>
        <source>0x48240028</source>
        <translation>Le fichier ne correspond pas à ce type d’appareil.</translation>
    </message>
    <message>
        <source>0x48240029</source>
        <translation>Importation des données terminée avec avertissements.</translation>
    </message>
    <message>
        <source>0x4824002a</source>
        <translation>Importation des données annulée par l’utilisateur.</translation>
    </message>
    <message>
        <source>0x48240100</source>
        <translation>Le fichier chargé est vide.</translation>
    </message>
    <message>
        <source>0x48240101</source>
        <translation>L’en-tête de l’appareil a un format non valide.</translation>
    </message>
    <message>
        <source>0x48240102</source>
        <translation>L’en-tête de l’appareil ne contient ni REF ni DEV_SN.</translation>
    </message>
    <message>
        <source>0x48240103</source>
        <translation>La REF ou le DEV_SN ne correspond pas à l’appareil.</translation>
    </message>
    <message>
        <source>0x48240104</source>
        <translation>Importation des données incomplète.</translation>
    </message>
    <message>
        <source>0x48240200</source>
        <translation>Fichier trop récent. Mettre à jour le logiciel de l’appareil.</translation>
    </message>
    <message>
        <source>0x48250025</source>
        <translation>Échec de l’exportation des données.</translation>
    </message>
    <message>
        <source>0x51010013</source>
        <translation>Redémarrage inattendu de l’électronique de commande.</translation>
    </message>
    <message>
        <source>0x5104000b</source>
        <translation>Pression d’air brièvement au-dessus du seuil d’arrêt.</translation>
    </message>
    <message>
        <source>0x510f000c</source>
        <translation>Pression d’air brièvement sous le seuil de démarrage.</translation>
    </message>
    <message>
        <source>0x5122000B</source>
        <translation>Durée de marche du compresseur très élevée. À vérifier.</translation>
    </message>
    <message>
        <source>0x51230013</source>
        <translation>Régénération du sécheur relancée.</translation>
    </message>
    <message>
        <source>0x52048009</source>
        <translation>Stérilisation annulée par l’utilisateur. Charge non stérile.</translation>
    </message>
    <message>
        <source>0x52058001</source>
        <translation>Stérilisation démarrée.</translation>
    </message>
    <message>
        <source>0x52068001</source>
        <translation>Test de vide démarré.</translation>
    </message>
    <message>
        <source>0x520a0010</source>
        <translation>Maintenance annuelle à effectuer prochainement.</translation>
    </message>
    <message>
        <source>0x520b0010</source>
        <translation>Validation du stérilisateur à effectuer.</translation>
    </message>
    <message>
        <source>0x520d001f</source>
        <translation>Séparateur d’amalgame&#xa0;: récipient collecteur presque plein.</translation>
    </message>
    <message>
        <source>0x520e8001</source>
        <translation>Mise à jour du logiciel disponible.</translation>
    </message>
    <message>
        <source>0x520e8006</source>
        <translation>Mise à jour du logiciel installée.</translation>
    </message>
    <message>
        <source>0x52100023</source>
        <translation>Calendrier : rendez-vous aujourd’hui.</translation>
    </message>
    <message>
        <source>0x52118003</source>
        <translation>Réglages modifiés.</translation>
    </message>
    <message>
        <source>0x52148001</source>
        <translation>Exportation des rapports démarrée.</translation>
    </message>
    <message>
        <source>0x52148006</source>
        <translation>Exportation des rapports terminée.</translation>
    </message>
    <message>
        <source>0x5214800a</source>
        <translation>Exportation des rapports reportée : dossier inaccessible.</translation>
    </message>
    <message>
        <source>0x52148010</source>
        <translation>Exportation des rapports interrompue.</translation>
    </message>
    <message>
        <source>0x521d8012</source>
        <translation>Mode nuit actif.</translation>
    </message>
    <message>
        <source>0x521e8006</source>
        <translation>Autotest terminé. Voir le rapport.</translation>
    </message>
    <message>
        <source>0x522a8010</source>
        <translation>Accès à distance du SAV activé.</translation>
    </message>
    <message>
        <source>0x522b8010</source>
        <translation>Quillon Pulse : appareil retiré du compte.</translation>
    </message>
    <message>
        <source>0x522c8001</source>
        <translation>Sauvegarde des données démarrée.</translation>
    </message>
    <message>
        <source>0x522c8006</source>
        <translation>Sauvegarde des données terminée.</translation>
    </message>
    <message>
        <source>0x52300011</source>
        <translation>Température ambiante élevée. Vérifier la ventilation.</translation>
    </message>
    <message>
        <source>0x53030006</source>
        <translation>Filtre à remplacer prochainement.</translation>
    </message>
    <message>
        <source>0x5305000b</source>
        <translation>Conductivité de l’eau élevée.</translation>
    </message>
    <message>
        <source>0x54060020</source>
        <translation>Désinfection à effectuer.</translation>
    </message>
    <message>
        <source>0x55000003</source>
        <translation>Vitesse incorrecte&#xa0;!</translation>
    </message>
    <message>
        <source>0x61010013</source>
        <translation>Électronique de commande redémarrée.</translation>
    </message>
    <message>
        <source>0x61258001</source>
        <translation>Étalonnage démarré.</translation>
    </message>
    <message>
        <source>0x6207000e</source>
        <translation>Imprimante : papier bientôt épuisé.</translation>
    </message>
    <message>
        <source>0x62070015</source>
        <translation>Imprimante prête.</translation>
    </message>
    <message>
        <source>0x62078011</source>
        <translation>Étiquette imprimée.</translation>
    </message>
    <message>
        <source>0x62138006</source>
        <translation>Date et heure synchronisées.</translation>
    </message>
    <message>
        <source>0x621a800d</source>
        <translation>Utilisateur connecté.</translation>
    </message>
    <message>
        <source>0x62208006</source>
        <translation>Radiographie transmise.</translation>
    </message>
    <message>
        <source>0x622a8010</source>
        <translation>Accès à distance du SAV terminé.</translation>
    </message>
    <message>
        <source>0x622b8010</source>
        <translation>Quillon Pulse&#xa0;: appareil ajouté au compte.</translation>
    </message>
    <message>
        <source>0x62318006</source>
        <translation>Journal de la qualité de l’eau mis à jour.</translation>
    </message>
    <message>
        <source>0x64068001</source>
        <translation>Désinfection démarrée.</translation>
    </message>
    <message>
        <source>0x64078001</source>
        <translation>Rinçage des conduites d’eau démarré.</translation>
    </message>
    <message>
        <source>0x6801001b</source>
        <translation>Mémoire d’événements effacée.</translation>
    </message>
    <message>
        <source>0x68210025</source>
        <translation>Exportation des données terminée.</translation>
    </message>
    <message>
        <source>0x68220026</source>
        <translation>Rapport enregistré au format PDF.</translation>
    </message>
    <message>
        <source>0x68230027</source>
        <translation>Anciens rapports archivés.</translation>
    </message>
    <message>
        <source>0x68240029</source>
        <translation>Importation des données terminée avec succès.</translation>
    </message>
    <message>
        <source>0x68258010</source>
        <translation>Assistant interrompu : Quillon Pulse n’est pas configuré.</translation>
    </message>
    <message>
        <source>0x95000005</source>
        <translation>Capteur d’entrée masqué trop longtemps ?</translation>
    </message>
</context>
</TS>
