<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Velmora Halvane</source>
        <translation>Over Velmora Halvane</translation>
    </message>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>License Agreement</source>
        <translation>Licentieovereenkomst</translation>
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
        <translation>Versie </translation>
    </message>
</context>
<context>
    <name>AccessNotice</name>
    <message>
        <source>No disk can be opened</source>
        <translation>Geen enkele schijf kan worden geopend</translation>
    </message>
    <message>
        <source>Velmora Halvane needs the rights of an administrator to open disks. Without them nothing can be said of their health.</source>
        <translation>Velmora Halvane heeft beheerdersrechten nodig om schijven te openen. Zonder die rechten valt er niets over hun conditie te zeggen.</translation>
    </message>
    <message>
        <source>Close the program, right-click its icon and choose &quot;Run as administrator&quot;.</source>
        <translation>Sluit het programma, klik met de rechtermuisknop op het pictogram en kies &quot;Als administrator uitvoeren&quot;.</translation>
    </message>
    <message>
        <source>Close the program and start it as root. This command does it in a terminal:</source>
        <translation>Sluit het programma en start het als root. In een terminal gaat dat met deze opdracht:</translation>
    </message>
</context>
<context>
    <name>AttributeCatalogue</name>
    <message>
        <source>Raw Read Error Rate</source>
        <translation>Leesfoutfrequentie</translation>
    </message>
    <message>
        <source>Spin Up Time</source>
        <translation>Opspintijd</translation>
    </message>
    <message>
        <source>Start Stop Count</source>
        <translation>Start-stopcycli</translation>
    </message>
    <message>
        <source>Reallocated Sector Count</source>
        <translation>Opnieuw toegewezen sectoren</translation>
    </message>
    <message>
        <source>Seek Error Rate</source>
        <translation>Zoekfoutfrequentie</translation>
    </message>
    <message>
        <source>Power On Hours</source>
        <translation>Bedrijfsuren</translation>
    </message>
    <message>
        <source>Spin Retry Count</source>
        <translation>Herhaalde opspinpogingen</translation>
    </message>
    <message>
        <source>Calibration Retry Count</source>
        <translation>Herhaalde kalibraties</translation>
    </message>
    <message>
        <source>Power Cycle Count</source>
        <translation>Aantal inschakelingen</translation>
    </message>
    <message>
        <source>Power-Off Retract Count</source>
        <translation>Koppen geparkeerd bij uitval</translation>
    </message>
    <message>
        <source>Load Cycle Count</source>
        <translation>Laadcycli van de koppen</translation>
    </message>
    <message>
        <source>Temperature Celsius</source>
        <translation>Temperatuur (Celsius)</translation>
    </message>
    <message>
        <source>Reallocated Event Count</source>
        <translation>Hertoewijzingen</translation>
    </message>
    <message>
        <source>Current Pending Sector Count</source>
        <translation>Sectoren in afwachting</translation>
    </message>
    <message>
        <source>Offline Uncorrectable</source>
        <translation>Offline niet te corrigeren</translation>
    </message>
    <message>
        <source>UDMA CRC Error Count</source>
        <translation>UDMA-CRC-fouten</translation>
    </message>
    <message>
        <source>Multi Zone Error Rate</source>
        <translation>Multizone-foutfrequentie</translation>
    </message>
    <message>
        <source>Available Reserved Space</source>
        <translation>Beschikbare reserveruimte</translation>
    </message>
    <message>
        <source>SSD Program Fail Count</source>
        <translation>SSD-programmeerfouten</translation>
    </message>
    <message>
        <source>SSD Erase Fail Count</source>
        <translation>SSD-wisfouten</translation>
    </message>
    <message>
        <source>SSD Wear Leveling Count</source>
        <translation>SSD-wear-levelingteller</translation>
    </message>
    <message>
        <source>Unexpected power loss count</source>
        <translation>Onverwachte stroomuitval</translation>
    </message>
    <message>
        <source>Throughput Performance</source>
        <translation>Doorvoerprestaties</translation>
    </message>
    <message>
        <source>Read Channel Margin</source>
        <translation>Marge leeskanaal</translation>
    </message>
    <message>
        <source>Seek Time Performance</source>
        <translation>Zoektijdprestaties</translation>
    </message>
    <message>
        <source>Soft Read Error Rate</source>
        <translation>Frequentie zachte leesfouten</translation>
    </message>
    <message>
        <source>Runtime Bad Block</source>
        <translation>Slechte blokken in gebruik</translation>
    </message>
    <message>
        <source>End-to-End Error </source>
        <translation>End-to-end-fouten </translation>
    </message>
    <message>
        <source>Reported Uncorrect</source>
        <translation>Niet-gecorrigeerde fouten</translation>
    </message>
    <message>
        <source>Command Timeout</source>
        <translation>Time-outs van opdrachten</translation>
    </message>
    <message>
        <source>High Fly Writes</source>
        <translation>Schrijven bij hoge vlieghoogte</translation>
    </message>
    <message>
        <source>Airflow Temperature Cel</source>
        <translation>Luchtstroomtemperatuur (°C)</translation>
    </message>
    <message>
        <source>G-Sense Error Rate</source>
        <translation>G-sensorfoutfrequentie</translation>
    </message>
    <message>
        <source>Hardware ECC Recovered</source>
        <translation>Hardware-ECC-correcties</translation>
    </message>
    <message>
        <source>Multi Zone Error Rate </source>
        <translation>Multizone-foutfrequentie </translation>
    </message>
    <message>
        <source>Write Error Rate</source>
        <translation>Schrijffoutfrequentie</translation>
    </message>
    <message>
        <source>Head Flying Hours</source>
        <translation>Vlieguren van de koppen</translation>
    </message>
    <message>
        <source>Total LBAs Written</source>
        <translation>Totaal geschreven LBA&apos;s</translation>
    </message>
    <message>
        <source>Total LBAs Read</source>
        <translation>Totaal gelezen LBA&apos;s</translation>
    </message>
    <message>
        <source>Free Fall Sensor</source>
        <translation>Vrijevalsensor</translation>
    </message>
    <message>
        <source>Critical Warning</source>
        <translation>Kritieke waarschuwing</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatuur</translation>
    </message>
    <message>
        <source>Available Spare</source>
        <translation>Beschikbare reserve</translation>
    </message>
    <message>
        <source>Available Spare Threshold</source>
        <translation>Drempel van de reserve</translation>
    </message>
    <message>
        <source>Percentage Used</source>
        <translation>Verbruikte levensduur</translation>
    </message>
    <message>
        <source>Data Units Read</source>
        <translation>Gelezen gegevenseenheden</translation>
    </message>
    <message>
        <source>Data Units Written</source>
        <translation>Geschreven gegevenseenheden</translation>
    </message>
    <message>
        <source>Host Read Commands</source>
        <translation>Leesopdrachten van de host</translation>
    </message>
    <message>
        <source>Host Write Commands</source>
        <translation>Schrijfopdrachten van de host</translation>
    </message>
    <message>
        <source>Controller Busy Time</source>
        <translation>Actieve tijd van de controller</translation>
    </message>
    <message>
        <source>Power Cyles</source>
        <translation>Aantal inschakelingen</translation>
    </message>
    <message>
        <source>Unsafe Shutdowns</source>
        <translation>Onveilige afsluitingen</translation>
    </message>
    <message>
        <source>Media and Data Integrity Errors</source>
        <translation>Media- en gegevensintegriteitsfouten</translation>
    </message>
    <message>
        <source>Error Information Log Entries</source>
        <translation>Vermeldingen in het foutenlogboek</translation>
    </message>
</context>
<context>
    <name>AttributeRows</name>
    <message>
        <source>FAILED</source>
        <translation>MISLUKT</translation>
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
        <translation>Controleren op updates...</translation>
    </message>
</context>
<context>
    <name>CloneDisk</name>
    <message>
        <source>Not Available</source>
        <translation>Niet beschikbaar</translation>
    </message>
    <message>
        <source>Disk Number 	: </source>
        <translation>Schijfnummer 	: </translation>
    </message>
    <message>
        <source>Model Number	: </source>
        <translation>Modelnummer	: </translation>
    </message>
    <message>
        <source>Serial: </source>
        <translation>Serienummer: </translation>
    </message>
    <message>
        <source>Firmware Revision : </source>
        <translation>Firmwareversie : </translation>
    </message>
    <message>
        <source>Interface Type	   : </source>
        <translation>Interfacetype	   : </translation>
    </message>
    <message>
        <source>Capacity	: </source>
        <translation>Capaciteit	: </translation>
    </message>
    <message>
        <source>Total Sector	   : </source>
        <translation>Aantal sectoren	   : </translation>
    </message>
    <message>
        <source>Model Number : </source>
        <translation>Modelnummer : </translation>
    </message>
    <message>
        <source>Capacity           : </source>
        <translation>Capaciteit           : </translation>
    </message>
    <message>
        <source>ATA Disk</source>
        <translation>ATA-schijf</translation>
    </message>
    <message>
        <source> hours</source>
        <translation> uur</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> minuten</translation>
    </message>
    <message>
        <source>Source and destination disks are same.</source>
        <translation>De bronschijf en de doelschijf zijn dezelfde.</translation>
    </message>
    <message>
        <source>Destination disk size is smaller than source disk.</source>
        <translation>De doelschijf is kleiner dan de bronschijf.</translation>
    </message>
    <message>
        <source>Clone Disk</source>
        <translation>Schijf klonen</translation>
    </message>
    <message>
        <source>Select different destination disk.</source>
        <translation>Selecteer een andere doelschijf.</translation>
    </message>
    <message>
        <source>Cloning Failed</source>
        <translation>Klonen mislukt</translation>
    </message>
    <message>
        <source>Unable to write on destination disk.</source>
        <translation>Kan niet naar de doelschijf schrijven.</translation>
    </message>
    <message>
        <source>Select other destination disk.</source>
        <translation>Selecteer een andere doelschijf.</translation>
    </message>
    <message>
        <source>Abort Clone</source>
        <translation>Klonen afbreken</translation>
    </message>
    <message>
        <source>Cloning Aborted.</source>
        <translation>Klonen afgebroken.</translation>
    </message>
    <message>
        <source>Disk Cloning complete.</source>
        <translation>Klonen van de schijf voltooid.</translation>
    </message>
    <message>
        <source>Disk cloning process completed successfully.</source>
        <translation>De schijf is met succes gekloond.</translation>
    </message>
    <message>
        <source>Cloning aborted.</source>
        <translation>Klonen afgebroken.</translation>
    </message>
    <message>
        <source>Cloning process aborted by the user.</source>
        <translation>Het klonen is door de gebruiker afgebroken.</translation>
    </message>
    <message>
        <source>Select Destination</source>
        <translation>Doel selecteren</translation>
    </message>
    <message>
        <source>The disks are not there any more.</source>
        <translation>De schijven zijn er niet meer.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Er is niet genoeg geheugen.</translation>
    </message>
    <message>
        <source>The source disk cannot be opened.</source>
        <translation>De bronschijf kan niet worden geopend.</translation>
    </message>
    <message>
        <source>The destination disk cannot be opened.</source>
        <translation>De doelschijf kan niet worden geopend.</translation>
    </message>
    <message>
        <source>The source disk is not the one that was chosen.</source>
        <translation>De bronschijf is niet de gekozen schijf.</translation>
    </message>
    <message>
        <source>The destination disk is not the one that was chosen.</source>
        <translation>De doelschijf is niet de gekozen schijf.</translation>
    </message>
    <message>
        <source>The source disk has no sectors.</source>
        <translation>De bronschijf heeft geen sectoren.</translation>
    </message>
    <message>
        <source>The system runs from the destination disk.</source>
        <translation>Het systeem draait vanaf de doelschijf.</translation>
    </message>
    <message>
        <source>A volume of the destination disk is in use.</source>
        <translation>Een volume van de doelschijf is in gebruik.</translation>
    </message>
    <message>
        <source>The destination disk is in use.</source>
        <translation>De doelschijf is in gebruik.</translation>
    </message>
    <message>
        <source>It cannot be found out whether the destination disk is in use.</source>
        <translation>Er kan niet worden vastgesteld of de doelschijf in gebruik is.</translation>
    </message>
    <message>
        <source>The destination disk cannot be written. It may be in use.</source>
        <translation>Kan niet naar de doelschijf schrijven. Mogelijk is die in gebruik.</translation>
    </message>
    <message>
        <source>The source disk does not answer any more.</source>
        <translation>De bronschijf reageert niet meer.</translation>
    </message>
    <message>
        <source>The destination disk does not answer any more.</source>
        <translation>De doelschijf reageert niet meer.</translation>
    </message>
    <message>
        <source>%1 sectors could not be read and were filled with zeros. %2 sectors could not be written.</source>
        <translation>%1 sectoren konden niet worden gelezen en zijn met nullen gevuld. %2 sectoren konden niet worden geschreven.</translation>
    </message>
    <message>
        <source>The destination disk did not confirm that all data is stored.</source>
        <translation>De doelschijf heeft niet bevestigd dat alle gegevens zijn opgeslagen.</translation>
    </message>
    <message>
        <source>Disk Cloning complete with errors.</source>
        <translation>Klonen van de schijf voltooid, met fouten.</translation>
    </message>
    <message>
        <source>Nothing was written on any disk.</source>
        <translation>Er is op geen enkele schijf geschreven.</translation>
    </message>
    <message>
        <source>The destination disk holds no complete copy.</source>
        <translation>De doelschijf bevat geen volledige kopie.</translation>
    </message>
    <message>
        <source>Save List</source>
        <translation>Lijst opslaan</translation>
    </message>
    <message>
        <source>The list could not be saved.</source>
        <translation>De lijst kon niet worden opgeslagen.</translation>
    </message>
    <message>
        <source>%1 % of the disk copied</source>
        <translation>%1 % van de schijf gekopieerd</translation>
    </message>
</context>
<context>
    <name>CloningWarningDialog</name>
    <message>
        <source>Clone Disk</source>
        <translation>Schijf klonen</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Waarschuwing</translation>
    </message>
    <message>
        <source>This action will create a clone of the source drive on the destination drive. Make sure that source and destination disk selection is correct since this operation is irreversible.</source>
        <translation>Met deze bewerking wordt een kloon van de bronschijf op de doelschijf gemaakt. Controleer of de bronschijf en de doelschijf juist zijn geselecteerd, want deze bewerking kan niet ongedaan worden gemaakt.</translation>
    </message>
    <message>
        <source>Existing data on the destination disk will be lost.</source>
        <translation>Bestaande gegevens op de doelschijf gaan verloren.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>Companion</name>
    <message>
        <source>%1 · health %2 %</source>
        <translation>%1 · conditie %2 %</translation>
    </message>
    <message>
        <source>Asleep</source>
        <translation>In slaapstand</translation>
    </message>
    <message>
        <source>Asleep · last %1 at %2</source>
        <translation>In slaapstand · %1 om %2</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Heet</translation>
    </message>
    <message>
        <source>Warm since %1</source>
        <translation>Warm sinds %1</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Warm</translation>
    </message>
    <message>
        <source>Unknown disk</source>
        <translation>Onbekende schijf</translation>
    </message>
    <message>
        <source>Disk %1</source>
        <translation>Schijf %1</translation>
    </message>
    <message>
        <source>Missing: check its cable</source>
        <translation>Ontbreekt: controleer de kabel</translation>
    </message>
    <message>
        <source>Failing: back up this disk now</source>
        <translation>Defect: maak nu een back-up</translation>
    </message>
    <message>
        <source>Does not answer</source>
        <translation>Antwoordt niet</translation>
    </message>
    <message>
        <source>Tells nothing of its health</source>
        <translation>Meldt niets over de conditie</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>In orde</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Vraagt aandacht</translation>
    </message>
    <message>
        <source>No disk is watched.</source>
        <translation>Er wordt geen schijf bewaakt.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>en nog %1</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>zojuist</translation>
    </message>
    <message>
        <source>1 minute ago</source>
        <translation>1 minuut geleden</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 minuten geleden</translation>
    </message>
</context>
<context>
    <name>ConfarmetionDialog</name>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nee</translation>
    </message>
</context>
<context>
    <name>DestinitionWarningDailog</name>
    <message>
        <source>Clone Disk</source>
        <translation>Schijf klonen</translation>
    </message>
    <message>
        <source>Select target disk.</source>
        <translation>Selecteer de doelschijf.</translation>
    </message>
    <message>
        <source>Select target disk to start cloning process.</source>
        <translation>Selecteer de doelschijf om het klonen te starten.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>DiskPartition</name>
    <message>
        <source>ATA Disk</source>
        <translation>ATA-schijf</translation>
    </message>
</context>
<context>
    <name>DiskStatus</name>
    <message>
        <source>Not Supported</source>
        <translation>Niet ondersteund</translation>
    </message>
    <message>
        <source>Failed: back up your data</source>
        <translation>Mislukt: maak een back-up</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Geslaagd</translation>
    </message>
    <message>
        <source>Not told</source>
        <translation>Niet gemeld</translation>
    </message>
</context>
<context>
    <name>DonutChartView</name>
    <message>
        <source>Disk </source>
        <translation>Schijf </translation>
    </message>
</context>
<context>
    <name>DownloadUpdate</name>
    <message>
        <source>Software Update</source>
        <translation>Software-update</translation>
    </message>
    <message>
        <source>Downloading Files</source>
        <translation>Bestanden downloaden</translation>
    </message>
</context>
<context>
    <name>Flyout</name>
    <message>
        <source>No disk is watched.</source>
        <translation>Er wordt geen schijf bewaakt.</translation>
    </message>
    <message>
        <source>Alarms on again</source>
        <translation>Alarmen weer aan</translation>
    </message>
    <message>
        <source>Pause alarms</source>
        <translation>Alarmen pauzeren</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Openen</translation>
    </message>
</context>
<context>
    <name>FlyoutRow</name>
    <message>
        <source>Open</source>
        <translation>Openen</translation>
    </message>
    <message>
        <source>Limits…</source>
        <translation>Limieten…</translation>
    </message>
    <message>
        <source>Mark as seen</source>
        <translation>Als gezien markeren</translation>
    </message>
</context>
<context>
    <name>InfoDialog</name>
    <message>
        <source>Information</source>
        <translation>Informatie</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save List</source>
        <translation>Lijst opslaan</translation>
    </message>
</context>
<context>
    <name>LimitsDialog</name>
    <message>
        <source>Limits of this disk</source>
        <translation>Limieten van deze schijf</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Limits of its own</source>
        <translation>Eigen limieten</translation>
    </message>
    <message>
        <source>Warning Temperature</source>
        <translation>Waarschuwingstemperatuur</translation>
    </message>
    <message>
        <source>Shutdown Temperature</source>
        <translation>Afsluittemperatuur</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Not Available</source>
        <translation>Niet beschikbaar</translation>
    </message>
    <message>
        <source>Disk Drive </source>
        <translation>Schijf </translation>
    </message>
    <message>
        <source>English</source>
        <translation>Engels</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Duits</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Frans</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italiaans</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spaans</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japans</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chinees</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Koreaans</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Nederlands</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>Portugees (Brazilië)</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>Hindi</translation>
    </message>
    <message>
        <source>   Disk Status</source>
        <translation>   Schijfstatus</translation>
    </message>
    <message>
        <source>View the health status of your hard disk</source>
        <translation>De conditie van uw harde schijf weergeven</translation>
    </message>
    <message>
        <source>   SMART Status</source>
        <translation>   SMART-status</translation>
    </message>
    <message>
        <source>Detailed SMART status of the hard disk</source>
        <translation>Gedetailleerde SMART-status van de harde schijf</translation>
    </message>
    <message>
        <source>   Disk Partition</source>
        <translation>   Partities</translation>
    </message>
    <message>
        <source>View description of partitions in your hard disk</source>
        <translation>Beschrijving van de partities op uw harde schijf weergeven</translation>
    </message>
    <message>
        <source>   Scan Disk</source>
        <translation>   Schijf scannen</translation>
    </message>
    <message>
        <source>Scan your hard disk for bad sectors</source>
        <translation>Uw harde schijf op slechte sectoren scannen</translation>
    </message>
    <message>
        <source>   Clone Disk</source>
        <translation>   Schijf klonen</translation>
    </message>
    <message>
        <source>Clone hard disk to avoid impending disk issues</source>
        <translation>Harde schijf klonen om dreigende schijfproblemen voor te zijn</translation>
    </message>
    <message>
        <source>Extended Self-test</source>
        <translation>Uitgebreide zelftest</translation>
    </message>
    <message>
        <source>Short Self-test</source>
        <translation>Korte zelftest</translation>
    </message>
    <message>
        <source>Aborted by User</source>
        <translation>Afgebroken door gebruiker</translation>
    </message>
    <message>
        <source>Successfully Completed</source>
        <translation>Met succes voltooid</translation>
    </message>
    <message>
        <source>Failed by Read Element</source>
        <translation>Mislukt door leesfout</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Niet beschikbaar</translation>
    </message>
    <message>
        <source> days</source>
        <translation> dagen</translation>
    </message>
    <message>
        <source> hours</source>
        <translation> uur</translation>
    </message>
    <message>
        <source>More than 1000</source>
        <translation>Meer dan 1000</translation>
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
        <translation>Goed</translation>
    </message>
    <message>
        <source>Bad</source>
        <translation>Slecht</translation>
    </message>
    <message>
        <source>Not Supported</source>
        <translation>Niet ondersteund</translation>
    </message>
    <message>
        <source>Supported</source>
        <translation>Ondersteund</translation>
    </message>
    <message>
        <source>NA</source>
        <translation>n.v.t.</translation>
    </message>
    <message>
        <source>Disk Information:</source>
        <translation>Schijfgegevens:</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Details:</source>
        <translation>S.M.A.R.T.-details:</translation>
    </message>
    <message>
        <source>Model Number:</source>
        <translation>Modelnummer:</translation>
    </message>
    <message>
        <source>Serial Number:</source>
        <translation>Serienummer:</translation>
    </message>
    <message>
        <source>Firmware Version:</source>
        <translation>Firmwareversie:</translation>
    </message>
    <message>
        <source>Capacity:</source>
        <translation>Capaciteit:</translation>
    </message>
    <message>
        <source>Sector Size:</source>
        <translation>Sectorgrootte:</translation>
    </message>
    <message>
        <source>Local  Time:</source>
        <translation>Lokale tijd:</translation>
    </message>
    <message>
        <source>Maximum Data Transfer Size:</source>
        <translation>Maximale overdrachtsgrootte:</translation>
    </message>
    <message>
        <source>SMART Status:</source>
        <translation>SMART-status:</translation>
    </message>
    <message>
        <source>Current Temperature:</source>
        <translation>Huidige temperatuur:</translation>
    </message>
    <message>
        <source>Performance:</source>
        <translation>Prestaties:</translation>
    </message>
    <message>
        <source>Health:</source>
        <translation>Conditie:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Attribute Name</source>
        <translation>Attribuutnaam</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Waarden</translation>
    </message>
    <message>
        <source>Self Test Details:</source>
        <translation>Details van de zelftest:</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Details</source>
        <translation>S.M.A.R.T.-details</translation>
    </message>
    <message>
        <source>Make:</source>
        <translation>Merk:</translation>
    </message>
    <message>
        <source>Rotation Rate:</source>
        <translation>Toerental:</translation>
    </message>
    <message>
        <source>ATA Version:</source>
        <translation>ATA-versie:</translation>
    </message>
    <message>
        <source>SATA Version:</source>
        <translation>SATA-versie:</translation>
    </message>
    <message>
        <source>Short Self-test:</source>
        <translation>Korte zelftest:</translation>
    </message>
    <message>
        <source>Estimated Completion Time:</source>
        <translation>Geschatte duur:</translation>
    </message>
    <message>
        <source>Extended Self-test:</source>
        <translation>Uitgebreide zelftest:</translation>
    </message>
    <message>
        <source>Last Run Self-test:</source>
        <translation>Laatste zelftest:</translation>
    </message>
    <message>
        <source>Last Self-Test Result:</source>
        <translation>Resultaat van laatste zelftest:</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Laagst</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Drempel</translation>
    </message>
    <message>
        <source>Raw Value</source>
        <translation>Ruwe waarde</translation>
    </message>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Report</source>
        <translation>S.M.A.R.T.-rapport</translation>
    </message>
    <message>
        <source>The information contained in this report has been generated by the Velmora Halvane profiling process.</source>
        <translation>De gegevens in dit rapport zijn gegenereerd door het analyseproces van Velmora Halvane.</translation>
    </message>
    <message>
        <source>Velmora Halvane is a product of Korvane.</source>
        <translation>Velmora Halvane is een product van Korvane.</translation>
    </message>
    <message>
        <source>Velmora Halvane is a product of Velmora.</source>
        <translation>Velmora Halvane is een product van Velmora.</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Mislukt</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Geslaagd</translation>
    </message>
    <message>
        <source>Source disk:     </source>
        <translation>Bronschijf:     </translation>
    </message>
    <message>
        <source>Destination disk:    </source>
        <translation>Doelschijf:    </translation>
    </message>
    <message>
        <source>Clone Disk</source>
        <translation>Schijf klonen</translation>
    </message>
    <message>
        <source>Clone Running.</source>
        <translation>Bezig met klonen.</translation>
    </message>
    <message>
        <source>Cloning process running.</source>
        <translation>De schijf wordt gekloond.</translation>
    </message>
    <message>
        <source>Please halt the clone process to exit.</source>
        <translation>Stop het klonen voordat u afsluit.</translation>
    </message>
    <message>
        <source>Scan Disk</source>
        <translation>Schijf scannen</translation>
    </message>
    <message>
        <source>Scaning Running.</source>
        <translation>Bezig met scannen.</translation>
    </message>
    <message>
        <source>Disk scan running.</source>
        <translation>De schijf wordt gescand.</translation>
    </message>
    <message>
        <source>Please halt the scan process to exit.</source>
        <translation>Stop de scan voordat u afsluit.</translation>
    </message>
    <message>
        <source>SMART Status</source>
        <translation>SMART-status</translation>
    </message>
    <message>
        <source>Please wait. Application Refreshing...</source>
        <translation>Een ogenblik geduld. De toepassing wordt vernieuwd...</translation>
    </message>
    <message>
        <source>Stop Clone</source>
        <translation>Klonen stoppen</translation>
    </message>
    <message>
        <source>Cloning can not be resumed from the current stage.</source>
        <translation>Het klonen kan later niet vanaf dit punt worden hervat.</translation>
    </message>
    <message>
        <source>Do you wish to abort the cloning?</source>
        <translation>Wilt u het klonen afbreken?</translation>
    </message>
    <message>
        <source>Stop Scan</source>
        <translation>Scan stoppen</translation>
    </message>
    <message>
        <source>Scan can not be resumed from the current stage.</source>
        <translation>De scan kan later niet vanaf dit punt worden hervat.</translation>
    </message>
    <message>
        <source>Do you wish to abort the scan?</source>
        <translation>Wilt u de scan afbreken?</translation>
    </message>
    <message>
        <source>(BitLocker)</source>
        <translation>(BitLocker)</translation>
    </message>
    <message>
        <source>No Partition Found</source>
        <translation>Geen partitie gevonden</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Bestand opslaan</translation>
    </message>
    <message>
        <source>Self-test can not be resumed from the current stage.</source>
        <translation>De zelftest kan later niet vanaf dit punt worden hervat.</translation>
    </message>
    <message>
        <source>Do you wish to abort the Self-test?</source>
        <translation>Wilt u de zelftest afbreken?</translation>
    </message>
    <message>
        <source>Please wait. Getting SMART information...</source>
        <translation>Een ogenblik geduld. SMART-gegevens worden opgehaald...</translation>
    </message>
    <message>
        <source>Graph : </source>
        <translation>Grafiek: </translation>
    </message>
    <message>
        <source>Running, no problems found</source>
        <translation>Bezig, geen problemen gevonden</translation>
    </message>
    <message>
        <source>Test failed by Read Element</source>
        <translation>Test mislukt door leesfout</translation>
    </message>
    <message>
        <source>Test Interrupted by the Host</source>
        <translation>Test onderbroken door de pc</translation>
    </message>
    <message>
        <source>Test ended by Fatal or Unknown Error</source>
        <translation>Ernstige of onbekende testfout</translation>
    </message>
    <message>
        <source>Test failed by Unknown Element</source>
        <translation>Test mislukt door onbekend onderdeel</translation>
    </message>
    <message>
        <source>Test failed by Electrical Element</source>
        <translation>Test mislukt door elektrische fout</translation>
    </message>
    <message>
        <source>Test failed by Servo Element</source>
        <translation>Test mislukt door servofout</translation>
    </message>
    <message>
        <source>Test failed, Handling Damage suspected</source>
        <translation>Test mislukt, vermoedelijk stootschade</translation>
    </message>
    <message>
        <source>Test ended with Unknown Status</source>
        <translation>Test beëindigd met onbekende status</translation>
    </message>
    <message>
        <source>No Status from the Drive</source>
        <translation>Geen status van de schijf</translation>
    </message>
    <message>
        <source>Test Aborted by User</source>
        <translation>Test afgebroken door gebruiker</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> minuten</translation>
    </message>
    <message>
        <source>Healthy</source>
        <translation>In orde</translation>
    </message>
    <message>
        <source>Not Healthy</source>
        <translation>Niet in orde</translation>
    </message>
    <message>
        <source>% Free</source>
        <translation>% vrij</translation>
    </message>
    <message>
        <source> Free of </source>
        <translation> vrij van </translation>
    </message>
    <message>
        <source> Available</source>
        <translation> beschikbaar</translation>
    </message>
    <message>
        <source>The self-test has ended.</source>
        <translation>De zelftest is beëindigd.</translation>
    </message>
    <message>
        <source>%1 volumes: %2</source>
        <translation>%1 volumes: %2</translation>
    </message>
    <message>
        <source>From %1 to %2: lowest value %3, highest %4, latest %5</source>
        <translation>Van %1 tot %2: laagste waarde %3, hoogste %4, laatste %5</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Gemiddeld</translation>
    </message>
</context>
<context>
    <name>Monitor</name>
    <message>
        <source>Back up this disk now.</source>
        <translation>Maak nu een back-up van deze schijf.</translation>
    </message>
    <message>
        <source>temperature %1, limit %2</source>
        <translation>temperatuur %1, limiet %2</translation>
    </message>
    <message>
        <source>See to its cooling.</source>
        <translation>Zorg voor koeling.</translation>
    </message>
    <message>
        <source>temperature %1, shutdown limit %2</source>
        <translation>temperatuur %1, afsluitlimiet %2</translation>
    </message>
    <message>
        <source>It is advisable to shut down the system now.</source>
        <translation>Het is raadzaam het systeem nu af te sluiten.</translation>
    </message>
    <message>
        <source>the drive reports that it is failing: %3</source>
        <translation>de schijf meldt dat hij defect raakt: %3</translation>
    </message>
    <message>
        <source>the drive reports that it is failing</source>
        <translation>de schijf meldt dat hij defect raakt</translation>
    </message>
    <message>
        <source>critical warning: %3</source>
        <translation>kritieke waarschuwing: %3</translation>
    </message>
    <message>
        <source>failing attributes: %3</source>
        <translation>falende attributen: %3</translation>
    </message>
    <message>
        <source>reallocated sectors: %1 (before: %2)</source>
        <translation>opnieuw toegewezen sectoren: %1 (eerder: %2)</translation>
    </message>
    <message>
        <source>reallocated sectors: %1</source>
        <translation>opnieuw toegewezen sectoren: %1</translation>
    </message>
    <message>
        <source>pending sectors: %1 (before: %2)</source>
        <translation>sectoren in afwachting: %1 (eerder: %2)</translation>
    </message>
    <message>
        <source>pending sectors: %1</source>
        <translation>sectoren in afwachting: %1</translation>
    </message>
    <message>
        <source>uncorrectable errors: %1 (before: %2)</source>
        <translation>niet te corrigeren fouten: %1 (eerder: %2)</translation>
    </message>
    <message>
        <source>uncorrectable errors: %1</source>
        <translation>niet te corrigeren fouten: %1</translation>
    </message>
    <message>
        <source>media errors: %1 (before: %2)</source>
        <translation>mediafouten: %1 (eerder: %2)</translation>
    </message>
    <message>
        <source>media errors: %1</source>
        <translation>mediafouten: %1</translation>
    </message>
    <message>
        <source>spare %1 %, threshold %2 %</source>
        <translation>reserve %1 %, drempel %2 %</translation>
    </message>
    <message>
        <source>wear %1 %</source>
        <translation>slijtage %1 %</translation>
    </message>
    <message>
        <source>Plan to replace this disk, and keep a backup.</source>
        <translation>Plan de vervanging van deze schijf en bewaar een back-up.</translation>
    </message>
    <message>
        <source>the self-test failed: %3</source>
        <translation>de zelftest is mislukt: %3</translation>
    </message>
    <message>
        <source>the disk does not answer</source>
        <translation>de schijf antwoordt niet</translation>
    </message>
    <message>
        <source>Check its cable. Back it up as soon as it answers.</source>
        <translation>Controleer de kabel. Maak een back-up zodra hij antwoordt.</translation>
    </message>
    <message>
        <source>the disk is missing</source>
        <translation>de schijf ontbreekt</translation>
    </message>
    <message>
        <source>Check its cable. If it comes back, back it up.</source>
        <translation>Controleer de kabel. Maak een back-up als hij terug is.</translation>
    </message>
    <message>
        <source>the disk is back</source>
        <translation>de schijf is terug</translation>
    </message>
    <message>
        <source>the log cannot be written: %3</source>
        <translation>het logboek kan niet worden geschreven: %3</translation>
    </message>
    <message>
        <source>Choose another file for it in Settings.</source>
        <translation>Kies in de instellingen een ander bestand.</translation>
    </message>
    <message>
        <source>the spare is used up</source>
        <translation>de reserve is op</translation>
    </message>
    <message>
        <source>too hot or too cold</source>
        <translation>te heet of te koud</translation>
    </message>
    <message>
        <source>less reliable after errors of the medium</source>
        <translation>minder betrouwbaar na mediafouten</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>alleen-lezen</translation>
    </message>
    <message>
        <source>the backup of its memory has failed</source>
        <translation>de back-up van het geheugen is uitgevallen</translation>
    </message>
    <message>
        <source>the persistent memory is read-only</source>
        <translation>het persistente geheugen is alleen-lezen</translation>
    </message>
</context>
<context>
    <name>QCheckUpdate</name>
    <message>
        <source>No update available.</source>
        <translation>Geen update beschikbaar.</translation>
    </message>
</context>
<context>
    <name>QDownloadApp</name>
    <message>
        <source>Downloading under progress...</source>
        <translation>Bezig met downloaden...</translation>
    </message>
    <message>
        <source>Time Elapsed: </source>
        <translation>Verstreken tijd: </translation>
    </message>
    <message>
        <source> sec </source>
        <translation> s </translation>
    </message>
    <message>
        <source> MB copied) </source>
        <translation> MB gekopieerd) </translation>
    </message>
    <message>
        <source> MB of  </source>
        <translation> MB van  </translation>
    </message>
    <message>
        <source>Transfer Rate: </source>
        <translation>Overdrachtssnelheid: </translation>
    </message>
    <message>
        <source> KB/sec </source>
        <translation> KB/s </translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Software-update</translation>
    </message>
    <message>
        <source>Update failed 

Update failed due to partial download.</source>
        <translation>Update mislukt 

De update is mislukt doordat de download onvolledig was.</translation>
    </message>
    <message>
        <source>The update could not be verified and was not started.</source>
        <translation>De update kon niet worden gecontroleerd en is niet gestart.</translation>
    </message>
</context>
<context>
    <name>QGridView</name>
    <message>
        <source> to </source>
        <translation> t/m </translation>
    </message>
    <message>
        <source>Start Sector of current block: </source>
        <translation>Eerste sector van dit blok: </translation>
    </message>
    <message>
        <source>End Sector of current block: </source>
        <translation>Laatste sector van dit blok: </translation>
    </message>
    <message>
        <source>Current Block Size : </source>
        <translation>Grootte van dit blok: </translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>%1 cells, %2 with unreadable sectors</source>
        <translation>%1 vakken, %2 met onleesbare sectoren</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Velmora Halvane already running. Cannot start more than one instance of the application.</source>
        <translation>Velmora Halvane is al geopend. Er kan maar één exemplaar van de toepassing worden gestart.</translation>
    </message>
    <message>
        <source>Velmora Halvane cannot start: there is no folder for its temporary files that other users cannot change.</source>
        <translation>Velmora Halvane kan niet worden gestart: er is geen map voor tijdelijke bestanden die andere gebruikers niet kunnen wijzigen.</translation>
    </message>
</context>
<context>
    <name>QRoundProgressBar</name>
    <message>
        <source>Complete</source>
        <translation>Voltooid</translation>
    </message>
</context>
<context>
    <name>QShowUpdate</name>
    <message>
        <source>A new major release </source>
        <translation>De nieuwe hoofdversie </translation>
    </message>
    <message>
        <source>A new minor update </source>
        <translation>De nieuwe tussenversie </translation>
    </message>
    <message>
        <source> is available. Click Update to proceed further.</source>
        <translation> is beschikbaar. Klik op Bijwerken om door te gaan.</translation>
    </message>
    <message>
        <source>Visit Update Page</source>
        <translation>Updatepagina bezoeken</translation>
    </message>
</context>
<context>
    <name>QWaitClass</name>
    <message>
        <source>Initializing Velmora Halvane...</source>
        <translation>Velmora Halvane wordt geïnitialiseerd...</translation>
    </message>
</context>
<context>
    <name>SaveListButton</name>
    <message>
        <source>Save List</source>
        <translation>Lijst opslaan</translation>
    </message>
    <message>
        <source>The list could not be saved.</source>
        <translation>De lijst kon niet worden opgeslagen.</translation>
    </message>
    <message>
        <source>Saves the bad sectors as a text or as a map file of GNU ddrescue</source>
        <translation>Slaat de slechte sectoren op als tekst of als mapbestand van GNU ddrescue</translation>
    </message>
</context>
<context>
    <name>ScanDisk</name>
    <message>
        <source> hours</source>
        <translation> uur</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> minuten</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> seconden</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>Resterende tijd</translation>
    </message>
    <message>
        <source>Time Elapsed</source>
        <translation>Verstreken tijd</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Disk Scan</source>
        <translation>Schijfscan</translation>
    </message>
    <message>
        <source>Disk scan aborted.</source>
        <translation>Schijfscan afgebroken.</translation>
    </message>
    <message>
        <source>Disk scan aborted by user.</source>
        <translation>De schijfscan is door de gebruiker afgebroken.</translation>
    </message>
    <message>
        <source>Scan Completed</source>
        <translation>Scan voltooid</translation>
    </message>
    <message>
        <source>Scan Completed.</source>
        <translation>Scan voltooid.</translation>
    </message>
    <message>
        <source>Scan Failed</source>
        <translation>Scan mislukt</translation>
    </message>
    <message>
        <source>Scan Failed.</source>
        <translation>Scan mislukt.</translation>
    </message>
    <message>
        <source>The disk is no longer connected.</source>
        <translation>De schijf is niet meer aangesloten.</translation>
    </message>
    <message>
        <source>Sector %1 (LBA), byte offset %2</source>
        <translation>Sector %1 (LBA), byte-offset %2</translation>
    </message>
    <message>
        <source>Sectors %1 to %2 (LBA), byte offset %3</source>
        <translation>Sectoren %1 tot %2 (LBA), byte-offset %3</translation>
    </message>
    <message>
        <source>Disk:</source>
        <translation>Schijf:</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>Serienummer:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Scanned: the first %1 of %2 sectors</source>
        <translation>Gescand: de eerste %1 van %2 sectoren</translation>
    </message>
    <message>
        <source>Result:</source>
        <translation>Resultaat:</translation>
    </message>
    <message>
        <source>Bad sectors: %1</source>
        <translation>Slechte sectoren: %1</translation>
    </message>
</context>
<context>
    <name>ScanSwitchDialog</name>
    <message>
        <source>Scan Disk</source>
        <translation>Schijf scannen</translation>
    </message>
    <message>
        <source>Scan results will be lost if you move away from this screen. </source>
        <translation>De scanresultaten gaan verloren als u dit scherm verlaat. </translation>
    </message>
    <message>
        <source>Do you want to move away from this screen?</source>
        <translation>Wilt u dit scherm verlaten?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nee</translation>
    </message>
</context>
<context>
    <name>SelfTestNotSupportedDialog</name>
    <message>
        <source>Drive Test</source>
        <translation>Schijftest</translation>
    </message>
    <message>
        <source>Self-test not supported.</source>
        <translation>Zelftest niet ondersteund.</translation>
    </message>
    <message>
        <source>Selected disk doesn&apos;t support self test.</source>
        <translation>De geselecteerde schijf ondersteunt geen zelftest.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>SelfTestPanelForm</name>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Serienummer</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Polling Time</source>
        <translation>Geschatte duur</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>Resterende tijd</translation>
    </message>
    <message>
        <source>Time Elapsed</source>
        <translation>Verstreken tijd</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Save log file</source>
        <translation>Logboekbestand opslaan</translation>
    </message>
    <message>
        <source>Your Software has all latest updates installed.</source>
        <translation>De nieuwste updates van uw software zijn geïnstalleerd.</translation>
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
        <translation>Bijwerken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
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
        <translation>Afsluitwaarschuwing</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Waarschuwing</translation>
    </message>
    <message>
        <source>Hard Disk&apos;s temperature has reached the shutdown value.</source>
        <translation>De temperatuur van de harde schijf heeft de afsluitwaarde bereikt.</translation>
    </message>
    <message>
        <source>It is advisable to shutdown the system immediately.</source>
        <translation>Het is raadzaam het systeem onmiddellijk af te sluiten.</translation>
    </message>
    <message>
        <source>Shutdown</source>
        <translation>Afsluiten</translation>
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
        <translation>Attribuutnaam</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Laagst</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Drempel</translation>
    </message>
    <message>
        <source>Raw Value</source>
        <translation>Ruwe waarde</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Bijgewerkt</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Mislukt</translation>
    </message>
    <message>
        <source>Better</source>
        <translation>Beter</translation>
    </message>
    <message>
        <source>Overall Status</source>
        <translation>Algemene status</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Waarden</translation>
    </message>
    <message>
        <source>AttName</source>
        <translation>AttName</translation>
    </message>
    <message>
        <source>PASSED</source>
        <translation>GESLAAGD</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Grafiek</translation>
    </message>
    <message>
        <source>FAIELD</source>
        <translation>MISLUKT</translation>
    </message>
    <message>
        <source>ATA Disk</source>
        <translation>ATA-schijf</translation>
    </message>
</context>
<context>
    <name>SmartWarningDialog</name>
    <message>
        <source>SMART Warning</source>
        <translation>SMART-waarschuwing</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Waarschuwing</translation>
    </message>
    <message>
        <source>Hard Disk&apos;s temperature exceed the threshold value.</source>
        <translation>De temperatuur van de harde schijf overschrijdt de drempelwaarde.</translation>
    </message>
    <message>
        <source>Your hard disk&apos;s temperature has exceeded threshold value. This may damage hard disk. It is advisable to shutdown the system immediately.</source>
        <translation>De temperatuur van uw harde schijf heeft de drempelwaarde overschreden. Hierdoor kan de harde schijf beschadigd raken. Het is raadzaam het systeem onmiddellijk af te sluiten.</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Niet meer weergeven</translation>
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
        <translation>Openen</translation>
    </message>
    <message>
        <source>Refresh now</source>
        <translation>Nu vernieuwen</translation>
    </message>
    <message>
        <source>Pause alarms for an hour</source>
        <translation>Alarmen een uur pauzeren</translation>
    </message>
    <message>
        <source>Show lowest health</source>
        <translation>Laagste conditie tonen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Afsluiten</translation>
    </message>
</context>
<context>
    <name>VolumeFrame</name>
    <message>
        <source>Partition</source>
        <translation>Partitie</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Ruimte</translation>
    </message>
</context>
<context>
    <name>m_pCloneDiskwgt</name>
    <message>
        <source>Disk Details</source>
        <translation>Schijfdetails</translation>
    </message>
    <message>
        <source>Source Disk</source>
        <translation>Bronschijf</translation>
    </message>
    <message>
        <source>Target Disk</source>
        <translation>Doelschijf</translation>
    </message>
    <message>
        <source>Remaining Time</source>
        <translation>Resterende tijd</translation>
    </message>
</context>
<context>
    <name>m_pCloseWgt</name>
    <message>
        <source>Exit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>Are you sure you want to exit?</source>
        <translation>Weet u zeker dat u wilt afsluiten?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nee</translation>
    </message>
</context>
<context>
    <name>m_pDiskPartitionWgt</name>
    <message>
        <source>Disk Partition</source>
        <translation>Partities</translation>
    </message>
    <message>
        <source>Partition Details</source>
        <translation>Partitiedetails</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Serienummer</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capaciteit</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>Interfacetype</translation>
    </message>
</context>
<context>
    <name>m_pDiskStatus</name>
    <message>
        <source>Disk Details</source>
        <translation>Schijfdetails</translation>
    </message>
    <message>
        <source>Disk Number</source>
        <translation>Schijfnummer</translation>
    </message>
    <message>
        <source>Model Number</source>
        <translation>Modelnummer</translation>
    </message>
    <message>
        <source>Firmware Revision</source>
        <translation>Firmwareversie</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>Interfacetype</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Serienummer</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>Aantal sectoren</translation>
    </message>
    <message>
        <source>Hard Disk Life</source>
        <translation>Resterende levensduur</translation>
    </message>
    <message>
        <source>Power-on Time</source>
        <translation>Bedrijfstijd</translation>
    </message>
    <message>
        <source>Start/Stop Count</source>
        <translation>Start-stopcycli</translation>
    </message>
    <message>
        <source>Drive&apos;s verdict</source>
        <translation>Oordeel van schijf</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatuur</translation>
    </message>
    <message>
        <source>Performance</source>
        <translation>Prestaties</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Conditie</translation>
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
        <translation>Serienummer</translation>
    </message>
    <message>
        <source>SMART Status</source>
        <translation>SMART-status</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Klonen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Rapport opslaan</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Schermafdruk</translation>
    </message>
    <message>
        <source>View Velmora Halvane help document</source>
        <translation>Helpdocument van Velmora Halvane weergeven</translation>
    </message>
    <message>
        <source>More Tools</source>
        <translation>Meer hulpprogramma&apos;s</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimaliseren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Over</translation>
    </message>
    <message>
        <source>Recover Data</source>
        <translation>Gegevens herstellen</translation>
    </message>
    <message>
        <source>Repair Video</source>
        <translation>Video herstellen</translation>
    </message>
    <message>
        <source>Repair Photo</source>
        <translation>Foto herstellen</translation>
    </message>
</context>
<context>
    <name>m_pScanDiskwgt</name>
    <message>
        <source>Scan Disk</source>
        <translation>Schijf scannen</translation>
    </message>
    <message>
        <source>Disk Size</source>
        <translation>Schijfgrootte</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>Aantal sectoren</translation>
    </message>
    <message>
        <source>Block Size</source>
        <translation>Blokgrootte</translation>
    </message>
    <message>
        <source>  Processed</source>
        <translation>  Gescand</translation>
    </message>
    <message>
        <source>  Bad Sectors</source>
        <translation>  Slechte sectoren</translation>
    </message>
    <message>
        <source>  Processing</source>
        <translation>  Bezig</translation>
    </message>
    <message>
        <source>Short Self-test</source>
        <translation>Korte zelftest</translation>
    </message>
    <message>
        <source>Extended Self-test</source>
        <translation>Uitgebreide zelftest</translation>
    </message>
    <message>
        <source>Perform a surface scan on the selected disk to identify if the disk has bad sectors.</source>
        <translation>Voer een oppervlaktescan uit op de geselecteerde schijf om na te gaan of de schijf slechte sectoren heeft.</translation>
    </message>
    <message>
        <source>Run this test to check the electrical and mechanical performance of a device along with the read/write operations on a portion of the disk. This test may take few minutes to complete.</source>
        <translation>Voer deze test uit om de elektrische en mechanische prestaties van een apparaat en de lees- en schrijfbewerkingen op een deel van de schijf te controleren. Deze test kan enkele minuten duren.</translation>
    </message>
    <message>
        <source>This test is same as a short self-test with a complete disk surface examination. This test may take up to few hours to complete.</source>
        <translation>Deze test is gelijk aan een korte zelftest, maar controleert ook het volledige schijfoppervlak. Deze test kan enkele uren duren.</translation>
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
        <translation>  Instellingen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Show status in tray</source>
        <translation>Status in systeemvak weergeven</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Engels</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Duits</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Frans</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italiaans</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spaans</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Nederlands</translation>
    </message>
    <message>
        <source>Portuguese (Brazil)</source>
        <translation>Portugees (Brazilië)</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>Hindi</translation>
    </message>
    <message>
        <source>LOGS</source>
        <translation>LOGBOEKEN</translation>
    </message>
    <message>
        <source>Save log file</source>
        <translation>Logboekbestand opslaan</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Max log size (KB)</source>
        <translation>Max. logboekgrootte (KB)</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatuur</translation>
    </message>
    <message>
        <source>Show Temperature in</source>
        <translation>Temperatuur weergeven in</translation>
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
        <translation>Temperatuuralarm inschakelen</translation>
    </message>
    <message>
        <source>Warning Temperature</source>
        <translation>Waarschuwingstemperatuur</translation>
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
        <translation>Afsluittemperatuur</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Controleren op updates</translation>
    </message>
    <message>
        <source>View Velmora Halvane help document</source>
        <translation>Helpdocument van Velmora Halvane weergeven</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Talen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>m_pSmartWgt</name>
    <message>
        <source>SMART Status : </source>
        <translation>SMART-status: </translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Serienummer</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capaciteit</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>Interfacetype</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Rapport opslaan</translation>
    </message>
    <message>
        <source>Smart Status</source>
        <translation>SMART-status</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiëren</translation>
    </message>
</context>
</TS>
