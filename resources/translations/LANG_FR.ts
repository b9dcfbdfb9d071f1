<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Velmora Halvane</source>
        <translation>À propos de Velmora Halvane</translation>
    </message>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>License Agreement</source>
        <translation>Contrat de licence</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>AboutDlg</name>
    <message>
        <source>Version </source>
        <translation>Version </translation>
    </message>
</context>
<context>
    <name>AccessNotice</name>
    <message>
        <source>No disk can be opened</source>
        <translation>Aucun disque ne peut être ouvert</translation>
    </message>
    <message>
        <source>Velmora Halvane needs the rights of an administrator to open disks. Without them nothing can be said of their health.</source>
        <translation>Velmora Halvane a besoin des droits d&apos;administrateur pour ouvrir les disques. Sans ces droits, on ne peut rien dire de la santé des disques.</translation>
    </message>
    <message>
        <source>Close the program, right-click its icon and choose &quot;Run as administrator&quot;.</source>
        <translation>Fermez le programme, faites un clic droit sur son icône et choisissez « Exécuter en tant qu&apos;administrateur ».</translation>
    </message>
    <message>
        <source>Close the program and start it as root. This command does it in a terminal:</source>
        <translation>Fermez le programme et lancez-le en tant que root. Dans un terminal, utilisez cette commande :</translation>
    </message>
</context>
<context>
    <name>AttributeCatalogue</name>
    <message>
        <source>Raw Read Error Rate</source>
        <translation>Taux d&apos;erreurs de lecture</translation>
    </message>
    <message>
        <source>Spin Up Time</source>
        <translation>Temps de démarrage</translation>
    </message>
    <message>
        <source>Start Stop Count</source>
        <translation>Démarrages/arrêts</translation>
    </message>
    <message>
        <source>Reallocated Sector Count</source>
        <translation>Secteurs réalloués</translation>
    </message>
    <message>
        <source>Seek Error Rate</source>
        <translation>Taux d&apos;erreurs de recherche</translation>
    </message>
    <message>
        <source>Power On Hours</source>
        <translation>Heures de fonctionnement</translation>
    </message>
    <message>
        <source>Spin Retry Count</source>
        <translation>Reprises de démarrage</translation>
    </message>
    <message>
        <source>Calibration Retry Count</source>
        <translation>Reprises de calibrage</translation>
    </message>
    <message>
        <source>Power Cycle Count</source>
        <translation>Cycles d&apos;alimentation</translation>
    </message>
    <message>
        <source>Power-Off Retract Count</source>
        <translation>Retraits à l&apos;extinction</translation>
    </message>
    <message>
        <source>Load Cycle Count</source>
        <translation>Cycles de chargement</translation>
    </message>
    <message>
        <source>Temperature Celsius</source>
        <translation>Température (Celsius)</translation>
    </message>
    <message>
        <source>Reallocated Event Count</source>
        <translation>Événements de réallocation</translation>
    </message>
    <message>
        <source>Current Pending Sector Count</source>
        <translation>Secteurs en attente</translation>
    </message>
    <message>
        <source>Offline Uncorrectable</source>
        <translation>Secteurs non corrigibles</translation>
    </message>
    <message>
        <source>UDMA CRC Error Count</source>
        <translation>Erreurs CRC UDMA</translation>
    </message>
    <message>
        <source>Multi Zone Error Rate</source>
        <translation>Taux d&apos;erreurs multizone</translation>
    </message>
    <message>
        <source>Available Reserved Space</source>
        <translation>Espace de réserve</translation>
    </message>
    <message>
        <source>SSD Program Fail Count</source>
        <translation>Échecs de programmation SSD</translation>
    </message>
    <message>
        <source>SSD Erase Fail Count</source>
        <translation>Échecs d&apos;effacement SSD</translation>
    </message>
    <message>
        <source>SSD Wear Leveling Count</source>
        <translation>Nivellement d&apos;usure SSD</translation>
    </message>
    <message>
        <source>Unexpected power loss count</source>
        <translation>Pertes d&apos;alimentation</translation>
    </message>
    <message>
        <source>Throughput Performance</source>
        <translation>Performance du débit</translation>
    </message>
    <message>
        <source>Read Channel Margin</source>
        <translation>Marge du canal de lecture</translation>
    </message>
    <message>
        <source>Seek Time Performance</source>
        <translation>Performance de recherche</translation>
    </message>
    <message>
        <source>Soft Read Error Rate</source>
        <translation>Taux d&apos;erreurs légères</translation>
    </message>
    <message>
        <source>Runtime Bad Block</source>
        <translation>Blocs défectueux apparus</translation>
    </message>
    <message>
        <source>End-to-End Error </source>
        <translation>Erreurs de bout en bout </translation>
    </message>
    <message>
        <source>Reported Uncorrect</source>
        <translation>Erreurs non corrigées</translation>
    </message>
    <message>
        <source>Command Timeout</source>
        <translation>Délais dépassés</translation>
    </message>
    <message>
        <source>High Fly Writes</source>
        <translation>Écritures tête trop haute</translation>
    </message>
    <message>
        <source>Airflow Temperature Cel</source>
        <translation>Température de l&apos;air</translation>
    </message>
    <message>
        <source>G-Sense Error Rate</source>
        <translation>Taux d&apos;erreurs de choc</translation>
    </message>
    <message>
        <source>Hardware ECC Recovered</source>
        <translation>Corrections ECC</translation>
    </message>
    <message>
        <source>Multi Zone Error Rate </source>
        <translation>Taux d&apos;erreurs multizone </translation>
    </message>
    <message>
        <source>Write Error Rate</source>
        <translation>Taux d&apos;erreurs d&apos;écriture</translation>
    </message>
    <message>
        <source>Head Flying Hours</source>
        <translation>Heures de vol des têtes</translation>
    </message>
    <message>
        <source>Total LBAs Written</source>
        <translation>Total des LBA écrits</translation>
    </message>
    <message>
        <source>Total LBAs Read</source>
        <translation>Total des LBA lus</translation>
    </message>
    <message>
        <source>Free Fall Sensor</source>
        <translation>Capteur de chute libre</translation>
    </message>
    <message>
        <source>Critical Warning</source>
        <translation>Alerte critique</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Available Spare</source>
        <translation>Réserve disponible</translation>
    </message>
    <message>
        <source>Available Spare Threshold</source>
        <translation>Seuil de réserve</translation>
    </message>
    <message>
        <source>Percentage Used</source>
        <translation>Usure (pourcentage)</translation>
    </message>
    <message>
        <source>Data Units Read</source>
        <translation>Unités de données lues</translation>
    </message>
    <message>
        <source>Data Units Written</source>
        <translation>Unités de données écrites</translation>
    </message>
    <message>
        <source>Host Read Commands</source>
        <translation>Commandes de lecture</translation>
    </message>
    <message>
        <source>Host Write Commands</source>
        <translation>Commandes d&apos;écriture</translation>
    </message>
    <message>
        <source>Controller Busy Time</source>
        <translation>Temps d&apos;occupation</translation>
    </message>
    <message>
        <source>Power Cyles</source>
        <translation>Cycles d&apos;alimentation</translation>
    </message>
    <message>
        <source>Unsafe Shutdowns</source>
        <translation>Arrêts brutaux</translation>
    </message>
    <message>
        <source>Media and Data Integrity Errors</source>
        <translation>Erreurs d&apos;intégrité</translation>
    </message>
    <message>
        <source>Error Information Log Entries</source>
        <translation>Entrées du journal d&apos;erreurs</translation>
    </message>
</context>
<context>
    <name>AttributeRows</name>
    <message>
        <source>FAILED</source>
        <translation>ÉCHEC</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>CheckUpdate</name>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Recherche de mises à jour...</translation>
    </message>
</context>
<context>
    <name>CloneDisk</name>
    <message>
        <source>Not Available</source>
        <translation>Non disponible</translation>
    </message>
    <message>
        <source>Disk Number 	: </source>
        <translation>Numéro du disque 	: </translation>
    </message>
    <message>
        <source>Model Number	: </source>
        <translation>Numéro de modèle	: </translation>
    </message>
    <message>
        <source>Serial: </source>
        <translation>Numéro de série : </translation>
    </message>
    <message>
        <source>Firmware Revision : </source>
        <translation>Révision du firmware : </translation>
    </message>
    <message>
        <source>Interface Type	   : </source>
        <translation>Type d&apos;interface	   : </translation>
    </message>
    <message>
        <source>Capacity	: </source>
        <translation>Capacité	: </translation>
    </message>
    <message>
        <source>Total Sector	   : </source>
        <translation>Total des secteurs	   : </translation>
    </message>
    <message>
        <source>Model Number : </source>
        <translation>Numéro de modèle : </translation>
    </message>
    <message>
        <source>Capacity           : </source>
        <translation>Capacité           : </translation>
    </message>
    <message>
        <source>ATA Disk</source>
        <translation>Disque ATA</translation>
    </message>
    <message>
        <source> hours</source>
        <translation> heures</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> minutes</translation>
    </message>
    <message>
        <source>Source and destination disks are same.</source>
        <translation>Les disques source et cible sont identiques.</translation>
    </message>
    <message>
        <source>Destination disk size is smaller than source disk.</source>
        <translation>Le disque cible est plus petit que le disque source.</translation>
    </message>
    <message>
        <source>Clone Disk</source>
        <translation>Cloner le disque</translation>
    </message>
    <message>
        <source>Select different destination disk.</source>
        <translation>Sélectionnez un autre disque cible.</translation>
    </message>
    <message>
        <source>Cloning Failed</source>
        <translation>Échec du clonage</translation>
    </message>
    <message>
        <source>Unable to write on destination disk.</source>
        <translation>Impossible d&apos;écrire sur le disque cible.</translation>
    </message>
    <message>
        <source>Select other destination disk.</source>
        <translation>Sélectionnez un autre disque cible.</translation>
    </message>
    <message>
        <source>Abort Clone</source>
        <translation>Abandonner le clonage</translation>
    </message>
    <message>
        <source>Cloning Aborted.</source>
        <translation>Clonage abandonné.</translation>
    </message>
    <message>
        <source>Disk Cloning complete.</source>
        <translation>Clonage du disque terminé.</translation>
    </message>
    <message>
        <source>Disk cloning process completed successfully.</source>
        <translation>Le clonage du disque s&apos;est terminé avec succès.</translation>
    </message>
    <message>
        <source>Cloning aborted.</source>
        <translation>Clonage abandonné.</translation>
    </message>
    <message>
        <source>Cloning process aborted by the user.</source>
        <translation>Le clonage a été abandonné par l&apos;utilisateur.</translation>
    </message>
    <message>
        <source>Select Destination</source>
        <translation>Sélectionnez la cible</translation>
    </message>
    <message>
        <source>The disks are not there any more.</source>
        <translation>Les disques ne sont plus présents.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>La mémoire est insuffisante.</translation>
    </message>
    <message>
        <source>The source disk cannot be opened.</source>
        <translation>Impossible d&apos;ouvrir le disque source.</translation>
    </message>
    <message>
        <source>The destination disk cannot be opened.</source>
        <translation>Impossible d&apos;ouvrir le disque cible.</translation>
    </message>
    <message>
        <source>The source disk is not the one that was chosen.</source>
        <translation>Le disque source n&apos;est pas celui qui a été choisi.</translation>
    </message>
    <message>
        <source>The destination disk is not the one that was chosen.</source>
        <translation>Le disque cible n&apos;est pas celui qui a été choisi.</translation>
    </message>
    <message>
        <source>The source disk has no sectors.</source>
        <translation>Le disque source n&apos;a aucun secteur.</translation>
    </message>
    <message>
        <source>The system runs from the destination disk.</source>
        <translation>Le système s&apos;exécute à partir du disque cible.</translation>
    </message>
    <message>
        <source>A volume of the destination disk is in use.</source>
        <translation>Un volume du disque cible est en cours d&apos;utilisation.</translation>
    </message>
    <message>
        <source>The destination disk is in use.</source>
        <translation>Le disque cible est en cours d&apos;utilisation.</translation>
    </message>
    <message>
        <source>It cannot be found out whether the destination disk is in use.</source>
        <translation>Impossible de déterminer si le disque cible est en cours d&apos;utilisation.</translation>
    </message>
    <message>
        <source>The destination disk cannot be written. It may be in use.</source>
        <translation>Impossible d&apos;écrire sur le disque cible. Il est peut-être en cours d&apos;utilisation.</translation>
    </message>
    <message>
        <source>The source disk does not answer any more.</source>
        <translation>Le disque source ne répond plus.</translation>
    </message>
    <message>
        <source>The destination disk does not answer any more.</source>
        <translation>Le disque cible ne répond plus.</translation>
    </message>
    <message>
        <source>%1 sectors could not be read and were filled with zeros. %2 sectors could not be written.</source>
        <translation>%1 secteurs n&apos;ont pas pu être lus et ont été remplis de zéros. %2 secteurs n&apos;ont pas pu être écrits.</translation>
    </message>
    <message>
        <source>The destination disk did not confirm that all data is stored.</source>
        <translation>Le disque cible n&apos;a pas confirmé que toutes les données sont enregistrées.</translation>
    </message>
    <message>
        <source>Disk Cloning complete with errors.</source>
        <translation>Clonage du disque terminé avec des erreurs.</translation>
    </message>
    <message>
        <source>Nothing was written on any disk.</source>
        <translation>Rien n&apos;a été écrit sur aucun disque.</translation>
    </message>
    <message>
        <source>The destination disk holds no complete copy.</source>
        <translation>Le disque cible ne contient pas de copie complète.</translation>
    </message>
    <message>
        <source>Save List</source>
        <translation>Enregistrer la liste</translation>
    </message>
    <message>
        <source>The list could not be saved.</source>
        <translation>Impossible d'enregistrer la liste.</translation>
    </message>
    <message>
        <source>%1 % of the disk copied</source>
        <translation>%1 % du disque copiés</translation>
    </message>
</context>
<context>
    <name>CloningWarningDialog</name>
    <message>
        <source>Clone Disk</source>
        <translation>Cloner le disque</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>This action will create a clone of the source drive on the destination drive. Make sure that source and destination disk selection is correct since this operation is irreversible.</source>
        <translation>Cette action crée un clone du disque source sur le disque cible. Vérifiez que les disques source et cible sont correctement sélectionnés, car cette opération est irréversible.</translation>
    </message>
    <message>
        <source>Existing data on the destination disk will be lost.</source>
        <translation>Les données présentes sur le disque cible seront perdues.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>Companion</name>
    <message>
        <source>%1 · health %2 %</source>
        <translation>%1 · santé %2 %</translation>
    </message>
    <message>
        <source>Asleep</source>
        <translation>En veille</translation>
    </message>
    <message>
        <source>Asleep · last %1 at %2</source>
        <translation>En veille · %1 à %2</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Très chaud</translation>
    </message>
    <message>
        <source>Warm since %1</source>
        <translation>Chaud depuis %1</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Chaud</translation>
    </message>
    <message>
        <source>Unknown disk</source>
        <translation>Disque inconnu</translation>
    </message>
    <message>
        <source>Disk %1</source>
        <translation>Disque %1</translation>
    </message>
    <message>
        <source>Missing: check its cable</source>
        <translation>Absent : vérifiez son câble</translation>
    </message>
    <message>
        <source>Failing: back up this disk now</source>
        <translation>Défaillant : sauvegardez-le</translation>
    </message>
    <message>
        <source>Does not answer</source>
        <translation>Ne répond pas</translation>
    </message>
    <message>
        <source>Tells nothing of its health</source>
        <translation>N&apos;indique rien sur sa santé</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>En ordre</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>À surveiller</translation>
    </message>
    <message>
        <source>No disk is watched.</source>
        <translation>Aucun disque n&apos;est surveillé.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>à l&apos;instant</translation>
    </message>
    <message>
        <source>1 minute ago</source>
        <translation>il y a 1 minute</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>il y a %1 minutes</translation>
    </message>
</context>
<context>
    <name>ConfarmetionDialog</name>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
</context>
<context>
    <name>DestinitionWarningDailog</name>
    <message>
        <source>Clone Disk</source>
        <translation>Cloner le disque</translation>
    </message>
    <message>
        <source>Select target disk.</source>
        <translation>Sélectionnez le disque cible.</translation>
    </message>
    <message>
        <source>Select target disk to start cloning process.</source>
        <translation>Sélectionnez le disque cible pour lancer le clonage.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>DiskPartition</name>
    <message>
        <source>ATA Disk</source>
        <translation>Disque ATA</translation>
    </message>
</context>
<context>
    <name>DiskStatus</name>
    <message>
        <source>Not Supported</source>
        <translation>Non géré</translation>
    </message>
    <message>
        <source>Failed: back up your data</source>
        <translation>Échec : sauvegardez</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Réussi</translation>
    </message>
    <message>
        <source>Not told</source>
        <translation>Non indiqué</translation>
    </message>
</context>
<context>
    <name>DonutChartView</name>
    <message>
        <source>Disk </source>
        <translation>Disque </translation>
    </message>
</context>
<context>
    <name>DownloadUpdate</name>
    <message>
        <source>Software Update</source>
        <translation>Mise à jour du logiciel</translation>
    </message>
    <message>
        <source>Downloading Files</source>
        <translation>Téléchargement des fichiers</translation>
    </message>
</context>
<context>
    <name>Flyout</name>
    <message>
        <source>No disk is watched.</source>
        <translation>Aucun disque n&apos;est surveillé.</translation>
    </message>
    <message>
        <source>Alarms on again</source>
        <translation>Réactiver les alarmes</translation>
    </message>
    <message>
        <source>Pause alarms</source>
        <translation>Suspendre les alarmes</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
</context>
<context>
    <name>FlyoutRow</name>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Limits…</source>
        <translation>Limites…</translation>
    </message>
    <message>
        <source>Mark as seen</source>
        <translation>Marquer comme vu</translation>
    </message>
</context>
<context>
    <name>InfoDialog</name>
    <message>
        <source>Information</source>
        <translation>Informations</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save List</source>
        <translation>Enregistrer la liste</translation>
    </message>
</context>
<context>
    <name>LimitsDialog</name>
    <message>
        <source>Limits of this disk</source>
        <translation>Limites de ce disque</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Limits of its own</source>
        <translation>Limites propres</translation>
    </message>
    <message>
        <source>Warning Temperature</source>
        <translation>Température d&apos;alerte</translation>
    </message>
    <message>
        <source>Shutdown Temperature</source>
        <translation>Température d&apos;arrêt</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Not Available</source>
        <translation>Non disponible</translation>
    </message>
    <message>
        <source>Disk Drive </source>
        <translation>Disque </translation>
    </message>
    <message>
        <source>English</source>
        <translation>Anglais</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Allemand</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italien</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Espagnol</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japonais</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chinois</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Coréen</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Néerlandais</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>Portugais (Brésil)</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>Hindi</translation>
    </message>
    <message>
        <source>   Disk Status</source>
        <translation>   État du disque</translation>
    </message>
    <message>
        <source>View the health status of your hard disk</source>
        <translation>Affiche l&apos;état de santé de votre disque dur</translation>
    </message>
    <message>
        <source>   SMART Status</source>
        <translation>   État SMART</translation>
    </message>
    <message>
        <source>Detailed SMART status of the hard disk</source>
        <translation>État SMART détaillé du disque dur</translation>
    </message>
    <message>
        <source>   Disk Partition</source>
        <translation>   Partitions</translation>
    </message>
    <message>
        <source>View description of partitions in your hard disk</source>
        <translation>Affiche la description des partitions de votre disque dur</translation>
    </message>
    <message>
        <source>   Scan Disk</source>
        <translation>   Analyser</translation>
    </message>
    <message>
        <source>Scan your hard disk for bad sectors</source>
        <translation>Recherche les secteurs défectueux de votre disque dur</translation>
    </message>
    <message>
        <source>   Clone Disk</source>
        <translation>   Cloner le disque</translation>
    </message>
    <message>
        <source>Clone hard disk to avoid impending disk issues</source>
        <translation>Clonez le disque dur pour prévenir les problèmes à venir</translation>
    </message>
    <message>
        <source>Extended Self-test</source>
        <translation>Autotest étendu</translation>
    </message>
    <message>
        <source>Short Self-test</source>
        <translation>Autotest court</translation>
    </message>
    <message>
        <source>Aborted by User</source>
        <translation>Abandonné par l&apos;utilisateur</translation>
    </message>
    <message>
        <source>Successfully Completed</source>
        <translation>Terminé avec succès</translation>
    </message>
    <message>
        <source>Failed by Read Element</source>
        <translation>Échec de l&apos;élément de lecture</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Non disponible</translation>
    </message>
    <message>
        <source> days</source>
        <translation> jours</translation>
    </message>
    <message>
        <source> hours</source>
        <translation> heures</translation>
    </message>
    <message>
        <source>More than 1000</source>
        <translation>Plus de 1000</translation>
    </message>
    <message>
        <source>ID#</source>
        <translation>ID#</translation>
    </message>
    <message>
        <source>ATTRIBUTE_NAME</source>
        <translation>ATTRIBUTE_NAME</translation>
    </message>
    <message>
        <source>FLAG</source>
        <translation>FLAG</translation>
    </message>
    <message>
        <source>VALUE</source>
        <translation>VALUE</translation>
    </message>
    <message>
        <source>SMART/Health Information (NVMe Log</source>
        <translation>SMART/Health Information (NVMe Log</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Bonne</translation>
    </message>
    <message>
        <source>Bad</source>
        <translation>Mauvaise</translation>
    </message>
    <message>
        <source>Not Supported</source>
        <translation>Non géré</translation>
    </message>
    <message>
        <source>Supported</source>
        <translation>Géré</translation>
    </message>
    <message>
        <source>NA</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Disk Information:</source>
        <translation>Informations sur le disque :</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Details:</source>
        <translation>Détails S.M.A.R.T. :</translation>
    </message>
    <message>
        <source>Model Number:</source>
        <translation>Numéro de modèle :</translation>
    </message>
    <message>
        <source>Serial Number:</source>
        <translation>Numéro de série :</translation>
    </message>
    <message>
        <source>Firmware Version:</source>
        <translation>Version du firmware :</translation>
    </message>
    <message>
        <source>Capacity:</source>
        <translation>Capacité :</translation>
    </message>
    <message>
        <source>Sector Size:</source>
        <translation>Taille de secteur :</translation>
    </message>
    <message>
        <source>Local  Time:</source>
        <translation>Heure locale :</translation>
    </message>
    <message>
        <source>Maximum Data Transfer Size:</source>
        <translation>Taille maximale de transfert :</translation>
    </message>
    <message>
        <source>SMART Status:</source>
        <translation>État SMART :</translation>
    </message>
    <message>
        <source>Current Temperature:</source>
        <translation>Température actuelle :</translation>
    </message>
    <message>
        <source>Performance:</source>
        <translation>Performance :</translation>
    </message>
    <message>
        <source>Health:</source>
        <translation>Santé :</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Attribute Name</source>
        <translation>Nom de l&apos;attribut</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valeurs</translation>
    </message>
    <message>
        <source>Self Test Details:</source>
        <translation>Détails des autotests :</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Details</source>
        <translation>Détails S.M.A.R.T.</translation>
    </message>
    <message>
        <source>Make:</source>
        <translation>Fabricant :</translation>
    </message>
    <message>
        <source>Rotation Rate:</source>
        <translation>Vitesse de rotation :</translation>
    </message>
    <message>
        <source>ATA Version:</source>
        <translation>Version ATA :</translation>
    </message>
    <message>
        <source>SATA Version:</source>
        <translation>Version SATA :</translation>
    </message>
    <message>
        <source>Short Self-test:</source>
        <translation>Autotest court :</translation>
    </message>
    <message>
        <source>Estimated Completion Time:</source>
        <translation>Durée estimée :</translation>
    </message>
    <message>
        <source>Extended Self-test:</source>
        <translation>Autotest étendu :</translation>
    </message>
    <message>
        <source>Last Run Self-test:</source>
        <translation>Dernier autotest exécuté :</translation>
    </message>
    <message>
        <source>Last Self-Test Result:</source>
        <translation>Résultat du dernier autotest :</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Pire</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Seuil</translation>
    </message>
    <message>
        <source>Raw Value</source>
        <translation>Val. brute</translation>
    </message>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Report</source>
        <translation>Rapport S.M.A.R.T.</translation>
    </message>
    <message>
        <source>The information contained in this report has been generated by the Velmora Halvane profiling process.</source>
        <translation>Les informations de ce rapport ont été produites par l&apos;analyse de profil de Velmora Halvane.</translation>
    </message>
    <message>
        <source>Velmora Halvane is a product of Korvane.</source>
        <translation>Velmora Halvane est un produit de Korvane.</translation>
    </message>
    <message>
        <source>Velmora Halvane is a product of Velmora.</source>
        <translation>Velmora Halvane est un produit de Velmora.</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Réussi</translation>
    </message>
    <message>
        <source>Source disk:     </source>
        <translation>Disque source :     </translation>
    </message>
    <message>
        <source>Destination disk:    </source>
        <translation>Disque cible :    </translation>
    </message>
    <message>
        <source>Clone Disk</source>
        <translation>Cloner le disque</translation>
    </message>
    <message>
        <source>Clone Running.</source>
        <translation>Clonage en cours.</translation>
    </message>
    <message>
        <source>Cloning process running.</source>
        <translation>Un clonage est en cours.</translation>
    </message>
    <message>
        <source>Please halt the clone process to exit.</source>
        <translation>Arrêtez le clonage avant de quitter.</translation>
    </message>
    <message>
        <source>Scan Disk</source>
        <translation>Analyser le disque</translation>
    </message>
    <message>
        <source>Scaning Running.</source>
        <translation>Analyse en cours.</translation>
    </message>
    <message>
        <source>Disk scan running.</source>
        <translation>L&apos;analyse du disque est en cours.</translation>
    </message>
    <message>
        <source>Please halt the scan process to exit.</source>
        <translation>Arrêtez l&apos;analyse avant de quitter.</translation>
    </message>
    <message>
        <source>SMART Status</source>
        <translation>État SMART</translation>
    </message>
    <message>
        <source>Please wait. Application Refreshing...</source>
        <translation>Veuillez patienter. Actualisation en cours...</translation>
    </message>
    <message>
        <source>Stop Clone</source>
        <translation>Arrêter le clonage</translation>
    </message>
    <message>
        <source>Cloning can not be resumed from the current stage.</source>
        <translation>Le clonage ne pourra pas être repris là où il s&apos;est arrêté.</translation>
    </message>
    <message>
        <source>Do you wish to abort the cloning?</source>
        <translation>Voulez-vous abandonner le clonage ?</translation>
    </message>
    <message>
        <source>Stop Scan</source>
        <translation>Arrêter l&apos;analyse</translation>
    </message>
    <message>
        <source>Scan can not be resumed from the current stage.</source>
        <translation>L&apos;analyse ne pourra pas être reprise là où elle s&apos;est arrêtée.</translation>
    </message>
    <message>
        <source>Do you wish to abort the scan?</source>
        <translation>Voulez-vous abandonner l&apos;analyse ?</translation>
    </message>
    <message>
        <source>(BitLocker)</source>
        <translation>(BitLocker)</translation>
    </message>
    <message>
        <source>No Partition Found</source>
        <translation>Aucune partition trouvée</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Enregistrer le fichier</translation>
    </message>
    <message>
        <source>Self-test can not be resumed from the current stage.</source>
        <translation>L&apos;autotest ne pourra pas être repris là où il s&apos;est arrêté.</translation>
    </message>
    <message>
        <source>Do you wish to abort the Self-test?</source>
        <translation>Voulez-vous abandonner l&apos;autotest ?</translation>
    </message>
    <message>
        <source>Please wait. Getting SMART information...</source>
        <translation>Veuillez patienter. Lecture des informations SMART...</translation>
    </message>
    <message>
        <source>Graph : </source>
        <translation>Graphique : </translation>
    </message>
    <message>
        <source>Running, no problems found</source>
        <translation>En cours, aucun problème détecté</translation>
    </message>
    <message>
        <source>Test failed by Read Element</source>
        <translation>Échec du test : élément de lecture</translation>
    </message>
    <message>
        <source>Test Interrupted by the Host</source>
        <translation>Test interrompu par le PC</translation>
    </message>
    <message>
        <source>Test ended by Fatal or Unknown Error</source>
        <translation>Test terminé : erreur grave ou inconnue</translation>
    </message>
    <message>
        <source>Test failed by Unknown Element</source>
        <translation>Échec du test : élément inconnu</translation>
    </message>
    <message>
        <source>Test failed by Electrical Element</source>
        <translation>Échec du test : élément électrique</translation>
    </message>
    <message>
        <source>Test failed by Servo Element</source>
        <translation>Échec du test : asservissement</translation>
    </message>
    <message>
        <source>Test failed, Handling Damage suspected</source>
        <translation>Échec du test : choc probable</translation>
    </message>
    <message>
        <source>Test ended with Unknown Status</source>
        <translation>Test terminé : état inconnu</translation>
    </message>
    <message>
        <source>No Status from the Drive</source>
        <translation>Aucun état reçu du disque</translation>
    </message>
    <message>
        <source>Test Aborted by User</source>
        <translation>Test abandonné par l&apos;utilisateur</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> minutes</translation>
    </message>
    <message>
        <source>Healthy</source>
        <translation>En bon état</translation>
    </message>
    <message>
        <source>Not Healthy</source>
        <translation>En mauvais état</translation>
    </message>
    <message>
        <source>% Free</source>
        <translation>% libres</translation>
    </message>
    <message>
        <source> Free of </source>
        <translation> libres sur </translation>
    </message>
    <message>
        <source> Available</source>
        <translation> disponibles</translation>
    </message>
    <message>
        <source>The self-test has ended.</source>
        <translation>L'autotest est terminé.</translation>
    </message>
    <message>
        <source>%1 volumes: %2</source>
        <translation>%1 volumes : %2</translation>
    </message>
    <message>
        <source>From %1 to %2: lowest value %3, highest %4, latest %5</source>
        <translation>Du %1 au %2 : valeur minimale %3, maximale %4, dernière %5</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Moyenne</translation>
    </message>
</context>
<context>
    <name>Monitor</name>
    <message>
        <source>Back up this disk now.</source>
        <translation>Sauvegardez ce disque maintenant.</translation>
    </message>
    <message>
        <source>temperature %1, limit %2</source>
        <translation>température %1, limite %2</translation>
    </message>
    <message>
        <source>See to its cooling.</source>
        <translation>Veillez à son refroidissement.</translation>
    </message>
    <message>
        <source>temperature %1, shutdown limit %2</source>
        <translation>température %1, limite d&apos;arrêt %2</translation>
    </message>
    <message>
        <source>It is advisable to shut down the system now.</source>
        <translation>Il est conseillé d&apos;arrêter le système maintenant.</translation>
    </message>
    <message>
        <source>the drive reports that it is failing: %3</source>
        <translation>le disque signale sa défaillance : %3</translation>
    </message>
    <message>
        <source>the drive reports that it is failing</source>
        <translation>le disque signale sa défaillance</translation>
    </message>
    <message>
        <source>critical warning: %3</source>
        <translation>avertissement critique : %3</translation>
    </message>
    <message>
        <source>failing attributes: %3</source>
        <translation>attributs en échec : %3</translation>
    </message>
    <message>
        <source>reallocated sectors: %1 (before: %2)</source>
        <translation>secteurs réalloués : %1 (avant : %2)</translation>
    </message>
    <message>
        <source>reallocated sectors: %1</source>
        <translation>secteurs réalloués : %1</translation>
    </message>
    <message>
        <source>pending sectors: %1 (before: %2)</source>
        <translation>secteurs en attente : %1 (avant : %2)</translation>
    </message>
    <message>
        <source>pending sectors: %1</source>
        <translation>secteurs en attente : %1</translation>
    </message>
    <message>
        <source>uncorrectable errors: %1 (before: %2)</source>
        <translation>erreurs non corrigibles : %1 (avant : %2)</translation>
    </message>
    <message>
        <source>uncorrectable errors: %1</source>
        <translation>erreurs non corrigibles : %1</translation>
    </message>
    <message>
        <source>media errors: %1 (before: %2)</source>
        <translation>erreurs de support : %1 (avant : %2)</translation>
    </message>
    <message>
        <source>media errors: %1</source>
        <translation>erreurs de support : %1</translation>
    </message>
    <message>
        <source>spare %1 %, threshold %2 %</source>
        <translation>réserve %1 %, seuil %2 %</translation>
    </message>
    <message>
        <source>wear %1 %</source>
        <translation>usure %1 %</translation>
    </message>
    <message>
        <source>Plan to replace this disk, and keep a backup.</source>
        <translation>Prévoyez de remplacer ce disque et gardez une sauvegarde.</translation>
    </message>
    <message>
        <source>the self-test failed: %3</source>
        <translation>l&apos;autotest a échoué : %3</translation>
    </message>
    <message>
        <source>the disk does not answer</source>
        <translation>le disque ne répond pas</translation>
    </message>
    <message>
        <source>Check its cable. Back it up as soon as it answers.</source>
        <translation>Vérifiez son câble. Sauvegardez-le dès qu&apos;il répond.</translation>
    </message>
    <message>
        <source>the disk is missing</source>
        <translation>le disque est absent</translation>
    </message>
    <message>
        <source>Check its cable. If it comes back, back it up.</source>
        <translation>Vérifiez son câble. S&apos;il réapparaît, sauvegardez-le.</translation>
    </message>
    <message>
        <source>the disk is back</source>
        <translation>le disque est de retour</translation>
    </message>
    <message>
        <source>the log cannot be written: %3</source>
        <translation>le journal ne peut pas être écrit : %3</translation>
    </message>
    <message>
        <source>Choose another file for it in Settings.</source>
        <translation>Choisissez un autre fichier dans les paramètres.</translation>
    </message>
    <message>
        <source>the spare is used up</source>
        <translation>la réserve est épuisée</translation>
    </message>
    <message>
        <source>too hot or too cold</source>
        <translation>trop chaud ou trop froid</translation>
    </message>
    <message>
        <source>less reliable after errors of the medium</source>
        <translation>moins fiable après des erreurs du support</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>en lecture seule</translation>
    </message>
    <message>
        <source>the backup of its memory has failed</source>
        <translation>la sauvegarde de sa mémoire est défaillante</translation>
    </message>
    <message>
        <source>the persistent memory is read-only</source>
        <translation>la mémoire persistante est en lecture seule</translation>
    </message>
</context>
<context>
    <name>QCheckUpdate</name>
    <message>
        <source>No update available.</source>
        <translation>Aucune mise à jour disponible.</translation>
    </message>
</context>
<context>
    <name>QDownloadApp</name>
    <message>
        <source>Downloading under progress...</source>
        <translation>Téléchargement en cours...</translation>
    </message>
    <message>
        <source>Time Elapsed: </source>
        <translation>Temps écoulé : </translation>
    </message>
    <message>
        <source> sec </source>
        <translation> s </translation>
    </message>
    <message>
        <source> MB copied) </source>
        <translation> MB copiés) </translation>
    </message>
    <message>
        <source> MB of  </source>
        <translation> MB sur  </translation>
    </message>
    <message>
        <source>Transfer Rate: </source>
        <translation>Débit : </translation>
    </message>
    <message>
        <source> KB/sec </source>
        <translation> KB/s </translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Mise à jour du logiciel</translation>
    </message>
    <message>
        <source>Update failed 

Update failed due to partial download.</source>
        <translation>Échec de la mise à jour 

La mise à jour a échoué : le téléchargement est incomplet.</translation>
    </message>
    <message>
        <source>The update could not be verified and was not started.</source>
        <translation>La mise à jour n&apos;a pas pu être vérifiée et n&apos;a pas été lancée.</translation>
    </message>
</context>
<context>
    <name>QGridView</name>
    <message>
        <source> to </source>
        <translation> à </translation>
    </message>
    <message>
        <source>Start Sector of current block: </source>
        <translation>Premier secteur du bloc : </translation>
    </message>
    <message>
        <source>End Sector of current block: </source>
        <translation>Dernier secteur du bloc : </translation>
    </message>
    <message>
        <source>Current Block Size : </source>
        <translation>Taille du bloc : </translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>%1 cells, %2 with unreadable sectors</source>
        <translation>%1 cases, dont %2 avec des secteurs illisibles</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Velmora Halvane already running. Cannot start more than one instance of the application.</source>
        <translation>Velmora Halvane est déjà en cours d&apos;exécution. Une seule instance de l&apos;application peut être lancée.</translation>
    </message>
    <message>
        <source>Velmora Halvane cannot start: there is no folder for its temporary files that other users cannot change.</source>
        <translation>Impossible de démarrer Velmora Halvane : aucun dossier pour ses fichiers temporaires n&apos;est à l&apos;abri de modifications par d&apos;autres utilisateurs.</translation>
    </message>
</context>
<context>
    <name>QRoundProgressBar</name>
    <message>
        <source>Complete</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>QShowUpdate</name>
    <message>
        <source>A new major release </source>
        <translation>Une nouvelle version majeure </translation>
    </message>
    <message>
        <source>A new minor update </source>
        <translation>Une nouvelle mise à jour mineure </translation>
    </message>
    <message>
        <source> is available. Click Update to proceed further.</source>
        <translation> est disponible. Cliquez sur Mettre à jour pour continuer.</translation>
    </message>
    <message>
        <source>Visit Update Page</source>
        <translation>Page des mises à jour</translation>
    </message>
</context>
<context>
    <name>QWaitClass</name>
    <message>
        <source>Initializing Velmora Halvane...</source>
        <translation>Initialisation de Velmora Halvane...</translation>
    </message>
</context>
<context>
    <name>SaveListButton</name>
    <message>
        <source>Save List</source>
        <translation>Enregistrer la liste</translation>
    </message>
    <message>
        <source>The list could not be saved.</source>
        <translation>Impossible d'enregistrer la liste.</translation>
    </message>
    <message>
        <source>Saves the bad sectors as a text or as a map file of GNU ddrescue</source>
        <translation>Enregistre les secteurs défectueux sous forme de texte ou de fichier map de GNU ddrescue</translation>
    </message>
</context>
<context>
    <name>ScanDisk</name>
    <message>
        <source> hours</source>
        <translation> heures</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> minutes</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> secondes</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>Temps restant</translation>
    </message>
    <message>
        <source>Time Elapsed</source>
        <translation>Temps écoulé</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Disk Scan</source>
        <translation>Analyse du disque</translation>
    </message>
    <message>
        <source>Disk scan aborted.</source>
        <translation>Analyse du disque abandonnée.</translation>
    </message>
    <message>
        <source>Disk scan aborted by user.</source>
        <translation>Analyse du disque abandonnée par l&apos;utilisateur.</translation>
    </message>
    <message>
        <source>Scan Completed</source>
        <translation>Analyse terminée</translation>
    </message>
    <message>
        <source>Scan Completed.</source>
        <translation>Analyse terminée.</translation>
    </message>
    <message>
        <source>Scan Failed</source>
        <translation>Échec de l&apos;analyse</translation>
    </message>
    <message>
        <source>Scan Failed.</source>
        <translation>Échec de l&apos;analyse.</translation>
    </message>
    <message>
        <source>The disk is no longer connected.</source>
        <translation>Le disque n&apos;est plus connecté.</translation>
    </message>
    <message>
        <source>Sector %1 (LBA), byte offset %2</source>
        <translation>Secteur %1 (LBA), décalage en octets %2</translation>
    </message>
    <message>
        <source>Sectors %1 to %2 (LBA), byte offset %3</source>
        <translation>Secteurs %1 à %2 (LBA), décalage en octets %3</translation>
    </message>
    <message>
        <source>Disk:</source>
        <translation>Disque :</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>Numéro de série :</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Date :</translation>
    </message>
    <message>
        <source>Scanned: the first %1 of %2 sectors</source>
        <translation>Analysés : les %1 premiers secteurs sur %2</translation>
    </message>
    <message>
        <source>Result:</source>
        <translation>Résultat :</translation>
    </message>
    <message>
        <source>Bad sectors: %1</source>
        <translation>Secteurs défectueux : %1</translation>
    </message>
</context>
<context>
    <name>ScanSwitchDialog</name>
    <message>
        <source>Scan Disk</source>
        <translation>Analyser le disque</translation>
    </message>
    <message>
        <source>Scan results will be lost if you move away from this screen. </source>
        <translation>Les résultats de l&apos;analyse seront perdus si vous quittez cet écran. </translation>
    </message>
    <message>
        <source>Do you want to move away from this screen?</source>
        <translation>Voulez-vous quitter cet écran ?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
</context>
<context>
    <name>SelfTestNotSupportedDialog</name>
    <message>
        <source>Drive Test</source>
        <translation>Test du disque</translation>
    </message>
    <message>
        <source>Self-test not supported.</source>
        <translation>Autotest non géré.</translation>
    </message>
    <message>
        <source>Selected disk doesn&apos;t support self test.</source>
        <translation>Le disque sélectionné ne gère pas l&apos;autotest.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>SelfTestPanelForm</name>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Polling Time</source>
        <translation>Durée prévue</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>Temps restant</translation>
    </message>
    <message>
        <source>Time Elapsed</source>
        <translation>Temps écoulé</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Save log file</source>
        <translation>Enregistrer le fichier journal</translation>
    </message>
    <message>
        <source>Your Software has all latest updates installed.</source>
        <translation>Toutes les dernières mises à jour de votre logiciel sont installées.</translation>
    </message>
</context>
<context>
    <name>ShowUpdateAvail</name>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>SmallMsg</name>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>SmartShutdownDialog</name>
    <message>
        <source>Shutdown Warning</source>
        <translation>Avertissement d&apos;arrêt</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Hard Disk&apos;s temperature has reached the shutdown value.</source>
        <translation>La température du disque dur a atteint la valeur d&apos;arrêt.</translation>
    </message>
    <message>
        <source>It is advisable to shutdown the system immediately.</source>
        <translation>Il est conseillé d&apos;arrêter immédiatement le système.</translation>
    </message>
    <message>
        <source>Shutdown</source>
        <translation>Arrêter le système</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>SmartStatus</name>
    <message>
        <source>     ID</source>
        <translation>     ID</translation>
    </message>
    <message>
        <source>Attribute Name</source>
        <translation>Nom de l&apos;attribut</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Pire</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Seuil</translation>
    </message>
    <message>
        <source>Raw Value</source>
        <translation>Val. brute</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Mis à jour</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Better</source>
        <translation>Mieux</translation>
    </message>
    <message>
        <source>Overall Status</source>
        <translation>État général</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valeurs</translation>
    </message>
    <message>
        <source>AttName</source>
        <translation>AttName</translation>
    </message>
    <message>
        <source>PASSED</source>
        <translation>RÉUSSI</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Graphique</translation>
    </message>
    <message>
        <source>FAIELD</source>
        <translation>ÉCHEC</translation>
    </message>
    <message>
        <source>ATA Disk</source>
        <translation>Disque ATA</translation>
    </message>
</context>
<context>
    <name>SmartWarningDialog</name>
    <message>
        <source>SMART Warning</source>
        <translation>Alerte SMART</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Hard Disk&apos;s temperature exceed the threshold value.</source>
        <translation>La température du disque dur dépasse le seuil.</translation>
    </message>
    <message>
        <source>Your hard disk&apos;s temperature has exceeded threshold value. This may damage hard disk. It is advisable to shutdown the system immediately.</source>
        <translation>La température de votre disque dur a dépassé le seuil. Cela peut endommager le disque dur. Il est conseillé d&apos;arrêter immédiatement le système.</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Ne plus afficher</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Refresh now</source>
        <translation>Actualiser maintenant</translation>
    </message>
    <message>
        <source>Pause alarms for an hour</source>
        <translation>Suspendre les alarmes une heure</translation>
    </message>
    <message>
        <source>Show lowest health</source>
        <translation>Afficher la santé la plus basse</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
</context>
<context>
    <name>VolumeFrame</name>
    <message>
        <source>Partition</source>
        <translation>Partition</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
</context>
<context>
    <name>m_pCloneDiskwgt</name>
    <message>
        <source>Disk Details</source>
        <translation>Détails du disque</translation>
    </message>
    <message>
        <source>Source Disk</source>
        <translation>Disque source</translation>
    </message>
    <message>
        <source>Target Disk</source>
        <translation>Disque cible</translation>
    </message>
    <message>
        <source>Remaining Time</source>
        <translation>Temps restant</translation>
    </message>
</context>
<context>
    <name>m_pCloseWgt</name>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Are you sure you want to exit?</source>
        <translation>Voulez-vous vraiment quitter ?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
</context>
<context>
    <name>m_pDiskPartitionWgt</name>
    <message>
        <source>Disk Partition</source>
        <translation>Partitions du disque</translation>
    </message>
    <message>
        <source>Partition Details</source>
        <translation>Détails des partitions</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacité</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>Type d&apos;interface</translation>
    </message>
</context>
<context>
    <name>m_pDiskStatus</name>
    <message>
        <source>Disk Details</source>
        <translation>Détails du disque</translation>
    </message>
    <message>
        <source>Disk Number</source>
        <translation>Numéro du disque</translation>
    </message>
    <message>
        <source>Model Number</source>
        <translation>Numéro de modèle</translation>
    </message>
    <message>
        <source>Firmware Revision</source>
        <translation>Révision du firmware</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>Type d&apos;interface</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>Total des secteurs</translation>
    </message>
    <message>
        <source>Hard Disk Life</source>
        <translation>Durée de vie</translation>
    </message>
    <message>
        <source>Power-on Time</source>
        <translation>Temps de fonctionnement</translation>
    </message>
    <message>
        <source>Start/Stop Count</source>
        <translation>Démarrages/arrêts</translation>
    </message>
    <message>
        <source>Drive&apos;s verdict</source>
        <translation>Verdict du disque</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Performance</source>
        <translation>Performance</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Santé</translation>
    </message>
</context>
<context>
    <name>m_pMainWindow</name>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>SMART Status</source>
        <translation>État SMART</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Cloner</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Enregistrer le rapport</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Capture d&apos;écran</translation>
    </message>
    <message>
        <source>View Velmora Halvane help document</source>
        <translation>Consulter l&apos;aide de Velmora Halvane</translation>
    </message>
    <message>
        <source>More Tools</source>
        <translation>Autres outils</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Recover Data</source>
        <translation>Récupérer des données</translation>
    </message>
    <message>
        <source>Repair Video</source>
        <translation>Réparer une vidéo</translation>
    </message>
    <message>
        <source>Repair Photo</source>
        <translation>Réparer une photo</translation>
    </message>
</context>
<context>
    <name>m_pScanDiskwgt</name>
    <message>
        <source>Scan Disk</source>
        <translation>Analyser le disque</translation>
    </message>
    <message>
        <source>Disk Size</source>
        <translation>Taille du disque</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>Total des secteurs</translation>
    </message>
    <message>
        <source>Block Size</source>
        <translation>Taille de bloc</translation>
    </message>
    <message>
        <source>  Processed</source>
        <translation>  Traités</translation>
    </message>
    <message>
        <source>  Bad Sectors</source>
        <translation>  Secteurs défectueux</translation>
    </message>
    <message>
        <source>  Processing</source>
        <translation>  En traitement</translation>
    </message>
    <message>
        <source>Short Self-test</source>
        <translation>Autotest court</translation>
    </message>
    <message>
        <source>Extended Self-test</source>
        <translation>Autotest étendu</translation>
    </message>
    <message>
        <source>Perform a surface scan on the selected disk to identify if the disk has bad sectors.</source>
        <translation>Analyse la surface du disque sélectionné pour savoir s&apos;il contient des secteurs défectueux.</translation>
    </message>
    <message>
        <source>Run this test to check the electrical and mechanical performance of a device along with the read/write operations on a portion of the disk. This test may take few minutes to complete.</source>
        <translation>Ce test vérifie le fonctionnement électrique et mécanique du disque ainsi que la lecture et l&apos;écriture sur une partie du disque. Il peut durer quelques minutes.</translation>
    </message>
    <message>
        <source>This test is same as a short self-test with a complete disk surface examination. This test may take up to few hours to complete.</source>
        <translation>Ce test est identique à l&apos;autotest court, avec un examen complet de la surface du disque. Il peut durer plusieurs heures.</translation>
    </message>
</context>
<context>
    <name>m_pSettingswgt</name>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>  Settings</source>
        <translation>  Paramètres</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Show status in tray</source>
        <translation>Afficher l&apos;état dans la zone de notification</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Anglais</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Allemand</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italien</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Espagnol</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Néerlandais</translation>
    </message>
    <message>
        <source>Portuguese (Brazil)</source>
        <translation>Portugais (Brésil)</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>Hindi</translation>
    </message>
    <message>
        <source>LOGS</source>
        <translation>JOURNAUX</translation>
    </message>
    <message>
        <source>Save log file</source>
        <translation>Enregistrer le fichier journal</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Max log size (KB)</source>
        <translation>Taille max. du journal (KB)</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Show Temperature in</source>
        <translation>Afficher la température en</translation>
    </message>
    <message>
        <source>Celsius</source>
        <translation>Celsius</translation>
    </message>
    <message>
        <source>Fahrenheit</source>
        <translation>Fahrenheit</translation>
    </message>
    <message>
        <source>Enable Temperature Alarm</source>
        <translation>Activer l&apos;alarme de température</translation>
    </message>
    <message>
        <source>Warning Temperature</source>
        <translation>Température d&apos;alerte</translation>
    </message>
    <message>
        <source>°C</source>
        <translation>°C</translation>
    </message>
    <message>
        <source>°F</source>
        <translation>°F</translation>
    </message>
    <message>
        <source>Shutdown Temperature</source>
        <translation>Température d&apos;arrêt</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Rechercher des mises à jour</translation>
    </message>
    <message>
        <source>View Velmora Halvane help document</source>
        <translation>Consulter l&apos;aide de Velmora Halvane</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Langues</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>m_pSmartWgt</name>
    <message>
        <source>SMART Status : </source>
        <translation>État SMART : </translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacité</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>Type d&apos;interface</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Enregistrer le rapport</translation>
    </message>
    <message>
        <source>Smart Status</source>
        <translation>État SMART</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
</context>
</TS>
