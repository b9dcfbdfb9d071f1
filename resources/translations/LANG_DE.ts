<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Velmora Halvane</source>
        <translation>Über Velmora Halvane</translation>
    </message>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>License Agreement</source>
        <translation>Lizenzvereinbarung</translation>
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
        <translation>Kein Laufwerk lässt sich öffnen</translation>
    </message>
    <message>
        <source>Velmora Halvane needs the rights of an administrator to open disks. Without them nothing can be said of their health.</source>
        <translation>Velmora Halvane braucht Administratorrechte, um Laufwerke zu öffnen. Ohne sie lässt sich über ihren Zustand nichts sagen.</translation>
    </message>
    <message>
        <source>Close the program, right-click its icon and choose &quot;Run as administrator&quot;.</source>
        <translation>Schließen Sie das Programm, klicken Sie mit der rechten Maustaste auf sein Symbol und wählen Sie „Als Administrator ausführen“.</translation>
    </message>
    <message>
        <source>Close the program and start it as root. This command does it in a terminal:</source>
        <translation>Schließen Sie das Programm und starten Sie es als root. Im Terminal geht das mit diesem Befehl:</translation>
    </message>
</context>
<context>
    <name>AttributeCatalogue</name>
    <message>
        <source>Raw Read Error Rate</source>
        <translation>Lesefehlerrate</translation>
    </message>
    <message>
        <source>Spin Up Time</source>
        <translation>Anlaufzeit</translation>
    </message>
    <message>
        <source>Start Stop Count</source>
        <translation>Start-Stopp-Zyklen</translation>
    </message>
    <message>
        <source>Reallocated Sector Count</source>
        <translation>Neu zugewiesene Sektoren</translation>
    </message>
    <message>
        <source>Seek Error Rate</source>
        <translation>Positionierfehlerrate</translation>
    </message>
    <message>
        <source>Power On Hours</source>
        <translation>Betriebsstunden</translation>
    </message>
    <message>
        <source>Spin Retry Count</source>
        <translation>Anlaufwiederholungen</translation>
    </message>
    <message>
        <source>Calibration Retry Count</source>
        <translation>Kalibrierwiederholungen</translation>
    </message>
    <message>
        <source>Power Cycle Count</source>
        <translation>Einschaltvorgänge</translation>
    </message>
    <message>
        <source>Power-Off Retract Count</source>
        <translation>Kopfrückzüge bei Abschaltung</translation>
    </message>
    <message>
        <source>Load Cycle Count</source>
        <translation>Kopfladezyklen</translation>
    </message>
    <message>
        <source>Temperature Celsius</source>
        <translation>Temperatur (Celsius)</translation>
    </message>
    <message>
        <source>Reallocated Event Count</source>
        <translation>Neuzuweisungsereignisse</translation>
    </message>
    <message>
        <source>Current Pending Sector Count</source>
        <translation>Ausstehende Sektoren</translation>
    </message>
    <message>
        <source>Offline Uncorrectable</source>
        <translation>Offline nicht korrigierbar</translation>
    </message>
    <message>
        <source>UDMA CRC Error Count</source>
        <translation>UDMA-CRC-Fehler</translation>
    </message>
    <message>
        <source>Multi Zone Error Rate</source>
        <translation>Mehrzonen-Fehlerrate</translation>
    </message>
    <message>
        <source>Available Reserved Space</source>
        <translation>Verfügbarer Reserveplatz</translation>
    </message>
    <message>
        <source>SSD Program Fail Count</source>
        <translation>SSD-Programmierfehler</translation>
    </message>
    <message>
        <source>SSD Erase Fail Count</source>
        <translation>SSD-Löschfehler</translation>
    </message>
    <message>
        <source>SSD Wear Leveling Count</source>
        <translation>SSD-Wear-Leveling-Zähler</translation>
    </message>
    <message>
        <source>Unexpected power loss count</source>
        <translation>Unerwartete Stromausfälle</translation>
    </message>
    <message>
        <source>Throughput Performance</source>
        <translation>Durchsatzleistung</translation>
    </message>
    <message>
        <source>Read Channel Margin</source>
        <translation>Lesekanalreserve</translation>
    </message>
    <message>
        <source>Seek Time Performance</source>
        <translation>Positionierleistung</translation>
    </message>
    <message>
        <source>Soft Read Error Rate</source>
        <translation>Soft-Lesefehlerrate</translation>
    </message>
    <message>
        <source>Runtime Bad Block</source>
        <translation>Defekte Blöcke im Betrieb</translation>
    </message>
    <message>
        <source>End-to-End Error </source>
        <translation>Ende-zu-Ende-Fehler </translation>
    </message>
    <message>
        <source>Reported Uncorrect</source>
        <translation>Nicht korrigierte Fehler</translation>
    </message>
    <message>
        <source>Command Timeout</source>
        <translation>Befehls-Timeouts</translation>
    </message>
    <message>
        <source>High Fly Writes</source>
        <translation>Schreiben bei hoher Flughöhe</translation>
    </message>
    <message>
        <source>Airflow Temperature Cel</source>
        <translation>Luftstromtemperatur (°C)</translation>
    </message>
    <message>
        <source>G-Sense Error Rate</source>
        <translation>G-Sensor-Fehlerrate</translation>
    </message>
    <message>
        <source>Hardware ECC Recovered</source>
        <translation>Hardware-ECC-Korrekturen</translation>
    </message>
    <message>
        <source>Multi Zone Error Rate </source>
        <translation>Mehrzonen-Fehlerrate </translation>
    </message>
    <message>
        <source>Write Error Rate</source>
        <translation>Schreibfehlerrate</translation>
    </message>
    <message>
        <source>Head Flying Hours</source>
        <translation>Kopfflugstunden</translation>
    </message>
    <message>
        <source>Total LBAs Written</source>
        <translation>Geschriebene LBAs gesamt</translation>
    </message>
    <message>
        <source>Total LBAs Read</source>
        <translation>Gelesene LBAs gesamt</translation>
    </message>
    <message>
        <source>Free Fall Sensor</source>
        <translation>Freifallsensor</translation>
    </message>
    <message>
        <source>Critical Warning</source>
        <translation>Kritische Warnung</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Available Spare</source>
        <translation>Verfügbare Reserve</translation>
    </message>
    <message>
        <source>Available Spare Threshold</source>
        <translation>Grenzwert der Reserve</translation>
    </message>
    <message>
        <source>Percentage Used</source>
        <translation>Verbrauchte Lebensdauer</translation>
    </message>
    <message>
        <source>Data Units Read</source>
        <translation>Gelesene Dateneinheiten</translation>
    </message>
    <message>
        <source>Data Units Written</source>
        <translation>Geschriebene Dateneinheiten</translation>
    </message>
    <message>
        <source>Host Read Commands</source>
        <translation>Host-Lesebefehle</translation>
    </message>
    <message>
        <source>Host Write Commands</source>
        <translation>Host-Schreibbefehle</translation>
    </message>
    <message>
        <source>Controller Busy Time</source>
        <translation>Controller-Aktivzeit</translation>
    </message>
    <message>
        <source>Power Cyles</source>
        <translation>Einschaltvorgänge</translation>
    </message>
    <message>
        <source>Unsafe Shutdowns</source>
        <translation>Unsichere Abschaltungen</translation>
    </message>
    <message>
        <source>Media and Data Integrity Errors</source>
        <translation>Medien- und Datenintegritätsfehler</translation>
    </message>
    <message>
        <source>Error Information Log Entries</source>
        <translation>Einträge im Fehlerprotokoll</translation>
    </message>
</context>
<context>
    <name>AttributeRows</name>
    <message>
        <source>FAILED</source>
        <translation>FEHLER</translation>
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
        <translation>Suche nach Updates ...</translation>
    </message>
</context>
<context>
    <name>CloneDisk</name>
    <message>
        <source>Not Available</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>Disk Number 	: </source>
        <translation>Laufwerksnummer 	: </translation>
    </message>
    <message>
        <source>Model Number	: </source>
        <translation>Modellnummer	: </translation>
    </message>
    <message>
        <source>Serial: </source>
        <translation>Seriennummer: </translation>
    </message>
    <message>
        <source>Firmware Revision : </source>
        <translation>Firmwareversion : </translation>
    </message>
    <message>
        <source>Interface Type	   : </source>
        <translation>Schnittstelle	   : </translation>
    </message>
    <message>
        <source>Capacity	: </source>
        <translation>Kapazität	: </translation>
    </message>
    <message>
        <source>Total Sector	   : </source>
        <translation>Sektoren gesamt	   : </translation>
    </message>
    <message>
        <source>Model Number : </source>
        <translation>Modellnummer : </translation>
    </message>
    <message>
        <source>Capacity           : </source>
        <translation>Kapazität           : </translation>
    </message>
    <message>
        <source>ATA Disk</source>
        <translation>ATA-Laufwerk</translation>
    </message>
    <message>
        <source> hours</source>
        <translation> Stunden</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> Minuten</translation>
    </message>
    <message>
        <source>Source and destination disks are same.</source>
        <translation>Quell- und Ziellaufwerk sind identisch.</translation>
    </message>
    <message>
        <source>Destination disk size is smaller than source disk.</source>
        <translation>Das Ziellaufwerk ist kleiner als das Quelllaufwerk.</translation>
    </message>
    <message>
        <source>Clone Disk</source>
        <translation>Laufwerk klonen</translation>
    </message>
    <message>
        <source>Select different destination disk.</source>
        <translation>Wählen Sie ein anderes Ziellaufwerk.</translation>
    </message>
    <message>
        <source>Cloning Failed</source>
        <translation>Klonen fehlgeschlagen</translation>
    </message>
    <message>
        <source>Unable to write on destination disk.</source>
        <translation>Auf das Ziellaufwerk kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Select other destination disk.</source>
        <translation>Wählen Sie ein anderes Ziellaufwerk.</translation>
    </message>
    <message>
        <source>Abort Clone</source>
        <translation>Klonen abbrechen</translation>
    </message>
    <message>
        <source>Cloning Aborted.</source>
        <translation>Klonen abgebrochen.</translation>
    </message>
    <message>
        <source>Disk Cloning complete.</source>
        <translation>Klonen des Laufwerks abgeschlossen.</translation>
    </message>
    <message>
        <source>Disk cloning process completed successfully.</source>
        <translation>Das Laufwerk wurde erfolgreich geklont.</translation>
    </message>
    <message>
        <source>Cloning aborted.</source>
        <translation>Klonen abgebrochen.</translation>
    </message>
    <message>
        <source>Cloning process aborted by the user.</source>
        <translation>Der Klonvorgang wurde vom Benutzer abgebrochen.</translation>
    </message>
    <message>
        <source>Select Destination</source>
        <translation>Ziel auswählen</translation>
    </message>
    <message>
        <source>The disks are not there any more.</source>
        <translation>Die Laufwerke sind nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Es ist nicht genügend Arbeitsspeicher vorhanden.</translation>
    </message>
    <message>
        <source>The source disk cannot be opened.</source>
        <translation>Das Quelllaufwerk kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The destination disk cannot be opened.</source>
        <translation>Das Ziellaufwerk kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The source disk is not the one that was chosen.</source>
        <translation>Das Quelllaufwerk ist nicht das ausgewählte.</translation>
    </message>
    <message>
        <source>The destination disk is not the one that was chosen.</source>
        <translation>Das Ziellaufwerk ist nicht das ausgewählte.</translation>
    </message>
    <message>
        <source>The source disk has no sectors.</source>
        <translation>Das Quelllaufwerk hat keine Sektoren.</translation>
    </message>
    <message>
        <source>The system runs from the destination disk.</source>
        <translation>Das System läuft vom Ziellaufwerk.</translation>
    </message>
    <message>
        <source>A volume of the destination disk is in use.</source>
        <translation>Ein Volume des Ziellaufwerks wird verwendet.</translation>
    </message>
    <message>
        <source>The destination disk is in use.</source>
        <translation>Das Ziellaufwerk wird verwendet.</translation>
    </message>
    <message>
        <source>It cannot be found out whether the destination disk is in use.</source>
        <translation>Es lässt sich nicht feststellen, ob das Ziellaufwerk verwendet wird.</translation>
    </message>
    <message>
        <source>The destination disk cannot be written. It may be in use.</source>
        <translation>Auf das Ziellaufwerk kann nicht geschrieben werden. Möglicherweise wird es verwendet.</translation>
    </message>
    <message>
        <source>The source disk does not answer any more.</source>
        <translation>Das Quelllaufwerk antwortet nicht mehr.</translation>
    </message>
    <message>
        <source>The destination disk does not answer any more.</source>
        <translation>Das Ziellaufwerk antwortet nicht mehr.</translation>
    </message>
    <message>
        <source>%1 sectors could not be read and were filled with zeros. %2 sectors could not be written.</source>
        <translation>%1 Sektoren konnten nicht gelesen werden und wurden mit Nullen gefüllt. %2 Sektoren konnten nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The destination disk did not confirm that all data is stored.</source>
        <translation>Das Ziellaufwerk hat nicht bestätigt, dass alle Daten gespeichert sind.</translation>
    </message>
    <message>
        <source>Disk Cloning complete with errors.</source>
        <translation>Klonen des Laufwerks mit Fehlern abgeschlossen.</translation>
    </message>
    <message>
        <source>Nothing was written on any disk.</source>
        <translation>Es wurde auf kein Laufwerk geschrieben.</translation>
    </message>
    <message>
        <source>The destination disk holds no complete copy.</source>
        <translation>Das Ziellaufwerk enthält keine vollständige Kopie.</translation>
    </message>
    <message>
        <source>Save List</source>
        <translation>Liste speichern</translation>
    </message>
    <message>
        <source>The list could not be saved.</source>
        <translation>Die Liste konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>%1 % of the disk copied</source>
        <translation>%1 % des Laufwerks kopiert</translation>
    </message>
</context>
<context>
    <name>CloningWarningDialog</name>
    <message>
        <source>Clone Disk</source>
        <translation>Laufwerk klonen</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>This action will create a clone of the source drive on the destination drive. Make sure that source and destination disk selection is correct since this operation is irreversible.</source>
        <translation>Mit dieser Aktion wird auf dem Ziellaufwerk ein Klon des Quelllaufwerks erstellt. Vergewissern Sie sich, dass Quell- und Ziellaufwerk richtig ausgewählt sind, da dieser Vorgang nicht rückgängig gemacht werden kann.</translation>
    </message>
    <message>
        <source>Existing data on the destination disk will be lost.</source>
        <translation>Vorhandene Daten auf dem Ziellaufwerk gehen verloren.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Companion</name>
    <message>
        <source>%1 · health %2 %</source>
        <translation>%1 · Zustand %2 %</translation>
    </message>
    <message>
        <source>Asleep</source>
        <translation>Im Ruhezustand</translation>
    </message>
    <message>
        <source>Asleep · last %1 at %2</source>
        <translation>Ruht · zuletzt %1 um %2</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Heiß</translation>
    </message>
    <message>
        <source>Warm since %1</source>
        <translation>Warm seit %1</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Warm</translation>
    </message>
    <message>
        <source>Unknown disk</source>
        <translation>Unbekanntes Laufwerk</translation>
    </message>
    <message>
        <source>Disk %1</source>
        <translation>Laufwerk %1</translation>
    </message>
    <message>
        <source>Missing: check its cable</source>
        <translation>Fehlt: Kabel prüfen</translation>
    </message>
    <message>
        <source>Failing: back up this disk now</source>
        <translation>Versagt: Daten jetzt sichern</translation>
    </message>
    <message>
        <source>Does not answer</source>
        <translation>Antwortet nicht</translation>
    </message>
    <message>
        <source>Tells nothing of its health</source>
        <translation>Sagt nichts über seinen Zustand</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>In Ordnung</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Braucht Aufmerksamkeit</translation>
    </message>
    <message>
        <source>No disk is watched.</source>
        <translation>Kein Laufwerk wird überwacht.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>gerade eben</translation>
    </message>
    <message>
        <source>1 minute ago</source>
        <translation>vor 1 Minute</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>vor %1 Minuten</translation>
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
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>DestinitionWarningDailog</name>
    <message>
        <source>Clone Disk</source>
        <translation>Laufwerk klonen</translation>
    </message>
    <message>
        <source>Select target disk.</source>
        <translation>Wählen Sie das Ziellaufwerk.</translation>
    </message>
    <message>
        <source>Select target disk to start cloning process.</source>
        <translation>Wählen Sie das Ziellaufwerk aus, um den Klonvorgang zu starten.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>DiskPartition</name>
    <message>
        <source>ATA Disk</source>
        <translation>ATA-Laufwerk</translation>
    </message>
</context>
<context>
    <name>DiskStatus</name>
    <message>
        <source>Not Supported</source>
        <translation>Nicht unterstützt</translation>
    </message>
    <message>
        <source>Failed: back up your data</source>
        <translation>Fehler: Daten sichern</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Not told</source>
        <translation>Nicht mitgeteilt</translation>
    </message>
</context>
<context>
    <name>DonutChartView</name>
    <message>
        <source>Disk </source>
        <translation>Laufwerk </translation>
    </message>
</context>
<context>
    <name>DownloadUpdate</name>
    <message>
        <source>Software Update</source>
        <translation>Software-Update</translation>
    </message>
    <message>
        <source>Downloading Files</source>
        <translation>Dateien werden heruntergeladen</translation>
    </message>
</context>
<context>
    <name>Flyout</name>
    <message>
        <source>No disk is watched.</source>
        <translation>Kein Laufwerk wird überwacht.</translation>
    </message>
    <message>
        <source>Alarms on again</source>
        <translation>Alarme wieder an</translation>
    </message>
    <message>
        <source>Pause alarms</source>
        <translation>Alarme pausieren</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
</context>
<context>
    <name>FlyoutRow</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Limits…</source>
        <translation>Grenzwerte…</translation>
    </message>
    <message>
        <source>Mark as seen</source>
        <translation>Als gesehen markieren</translation>
    </message>
</context>
<context>
    <name>InfoDialog</name>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save List</source>
        <translation>Liste speichern</translation>
    </message>
</context>
<context>
    <name>LimitsDialog</name>
    <message>
        <source>Limits of this disk</source>
        <translation>Grenzwerte dieses Laufwerks</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Limits of its own</source>
        <translation>Eigene Grenzwerte</translation>
    </message>
    <message>
        <source>Warning Temperature</source>
        <translation>Warntemperatur</translation>
    </message>
    <message>
        <source>Shutdown Temperature</source>
        <translation>Abschalttemperatur</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Not Available</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>Disk Drive </source>
        <translation>Laufwerk </translation>
    </message>
    <message>
        <source>English</source>
        <translation>Englisch</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Französisch</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italienisch</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spanisch</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japanisch</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chinesisch</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Koreanisch</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Niederländisch</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>Portugiesisch (Brasilien)</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>Hindi</translation>
    </message>
    <message>
        <source>   Disk Status</source>
        <translation>   Laufwerksstatus</translation>
    </message>
    <message>
        <source>View the health status of your hard disk</source>
        <translation>Zustand Ihrer Festplatte anzeigen</translation>
    </message>
    <message>
        <source>   SMART Status</source>
        <translation>   SMART-Status</translation>
    </message>
    <message>
        <source>Detailed SMART status of the hard disk</source>
        <translation>Ausführlicher SMART-Status der Festplatte</translation>
    </message>
    <message>
        <source>   Disk Partition</source>
        <translation>   Partitionen</translation>
    </message>
    <message>
        <source>View description of partitions in your hard disk</source>
        <translation>Beschreibung der Partitionen Ihrer Festplatte anzeigen</translation>
    </message>
    <message>
        <source>   Scan Disk</source>
        <translation>   Laufwerk scannen</translation>
    </message>
    <message>
        <source>Scan your hard disk for bad sectors</source>
        <translation>Festplatte auf defekte Sektoren prüfen</translation>
    </message>
    <message>
        <source>   Clone Disk</source>
        <translation>   Laufwerk klonen</translation>
    </message>
    <message>
        <source>Clone hard disk to avoid impending disk issues</source>
        <translation>Festplatte klonen, um drohenden Laufwerksproblemen zuvorzukommen</translation>
    </message>
    <message>
        <source>Extended Self-test</source>
        <translation>Erweiterter Selbsttest</translation>
    </message>
    <message>
        <source>Short Self-test</source>
        <translation>Kurzer Selbsttest</translation>
    </message>
    <message>
        <source>Aborted by User</source>
        <translation>Vom Benutzer abgebrochen</translation>
    </message>
    <message>
        <source>Successfully Completed</source>
        <translation>Erfolgreich abgeschlossen</translation>
    </message>
    <message>
        <source>Failed by Read Element</source>
        <translation>Lesefehler aufgetreten</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source> days</source>
        <translation> Tage</translation>
    </message>
    <message>
        <source> hours</source>
        <translation> Std.</translation>
    </message>
    <message>
        <source>More than 1000</source>
        <translation>Mehr als 1000</translation>
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
        <translation>Gut</translation>
    </message>
    <message>
        <source>Bad</source>
        <translation>Schlecht</translation>
    </message>
    <message>
        <source>Not Supported</source>
        <translation>Nicht unterstützt</translation>
    </message>
    <message>
        <source>Supported</source>
        <translation>Unterstützt</translation>
    </message>
    <message>
        <source>NA</source>
        <translation>k. A.</translation>
    </message>
    <message>
        <source>Disk Information:</source>
        <translation>Laufwerksinformationen:</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Details:</source>
        <translation>S.M.A.R.T.-Details:</translation>
    </message>
    <message>
        <source>Model Number:</source>
        <translation>Modellnummer:</translation>
    </message>
    <message>
        <source>Serial Number:</source>
        <translation>Seriennummer:</translation>
    </message>
    <message>
        <source>Firmware Version:</source>
        <translation>Firmwareversion:</translation>
    </message>
    <message>
        <source>Capacity:</source>
        <translation>Kapazität:</translation>
    </message>
    <message>
        <source>Sector Size:</source>
        <translation>Sektorgröße:</translation>
    </message>
    <message>
        <source>Local  Time:</source>
        <translation>Ortszeit:</translation>
    </message>
    <message>
        <source>Maximum Data Transfer Size:</source>
        <translation>Maximale Datenübertragungsgröße:</translation>
    </message>
    <message>
        <source>SMART Status:</source>
        <translation>SMART-Status:</translation>
    </message>
    <message>
        <source>Current Temperature:</source>
        <translation>Aktuelle Temperatur:</translation>
    </message>
    <message>
        <source>Performance:</source>
        <translation>Leistung:</translation>
    </message>
    <message>
        <source>Health:</source>
        <translation>Zustand:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Attribute Name</source>
        <translation>Attributname</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Self Test Details:</source>
        <translation>Selbsttest-Details:</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Details</source>
        <translation>S.M.A.R.T.-Details</translation>
    </message>
    <message>
        <source>Make:</source>
        <translation>Hersteller:</translation>
    </message>
    <message>
        <source>Rotation Rate:</source>
        <translation>Drehzahl:</translation>
    </message>
    <message>
        <source>ATA Version:</source>
        <translation>ATA-Version:</translation>
    </message>
    <message>
        <source>SATA Version:</source>
        <translation>SATA-Version:</translation>
    </message>
    <message>
        <source>Short Self-test:</source>
        <translation>Kurzer Selbsttest:</translation>
    </message>
    <message>
        <source>Estimated Completion Time:</source>
        <translation>Geschätzte Dauer:</translation>
    </message>
    <message>
        <source>Extended Self-test:</source>
        <translation>Erweiterter Selbsttest:</translation>
    </message>
    <message>
        <source>Last Run Self-test:</source>
        <translation>Letzter Selbsttest:</translation>
    </message>
    <message>
        <source>Last Self-Test Result:</source>
        <translation>Ergebnis des letzten Selbsttests:</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Min.</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Grenzwert</translation>
    </message>
    <message>
        <source>Raw Value</source>
        <translation>Rohwert</translation>
    </message>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Report</source>
        <translation>S.M.A.R.T.-Bericht</translation>
    </message>
    <message>
        <source>The information contained in this report has been generated by the Velmora Halvane profiling process.</source>
        <translation>Die Informationen in diesem Bericht wurden durch die Laufwerksanalyse von Velmora Halvane erstellt.</translation>
    </message>
    <message>
        <source>Velmora Halvane is a product of Korvane.</source>
        <translation>Velmora Halvane ist ein Produkt von Korvane.</translation>
    </message>
    <message>
        <source>Velmora Halvane is a product of Velmora.</source>
        <translation>Velmora Halvane ist ein Produkt von Velmora.</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Source disk:     </source>
        <translation>Quelllaufwerk:     </translation>
    </message>
    <message>
        <source>Destination disk:    </source>
        <translation>Ziellaufwerk:    </translation>
    </message>
    <message>
        <source>Clone Disk</source>
        <translation>Laufwerk klonen</translation>
    </message>
    <message>
        <source>Clone Running.</source>
        <translation>Klonen läuft.</translation>
    </message>
    <message>
        <source>Cloning process running.</source>
        <translation>Der Klonvorgang läuft.</translation>
    </message>
    <message>
        <source>Please halt the clone process to exit.</source>
        <translation>Bitte stoppen Sie vor dem Beenden den Klonvorgang.</translation>
    </message>
    <message>
        <source>Scan Disk</source>
        <translation>Laufwerk scannen</translation>
    </message>
    <message>
        <source>Scaning Running.</source>
        <translation>Scan läuft.</translation>
    </message>
    <message>
        <source>Disk scan running.</source>
        <translation>Der Laufwerksscan läuft.</translation>
    </message>
    <message>
        <source>Please halt the scan process to exit.</source>
        <translation>Bitte stoppen Sie vor dem Beenden den Scan.</translation>
    </message>
    <message>
        <source>SMART Status</source>
        <translation>SMART-Status</translation>
    </message>
    <message>
        <source>Please wait. Application Refreshing...</source>
        <translation>Bitte warten. Anwendung wird aktualisiert ...</translation>
    </message>
    <message>
        <source>Stop Clone</source>
        <translation>Klonen stoppen</translation>
    </message>
    <message>
        <source>Cloning can not be resumed from the current stage.</source>
        <translation>Das Klonen kann später nicht an dieser Stelle fortgesetzt werden.</translation>
    </message>
    <message>
        <source>Do you wish to abort the cloning?</source>
        <translation>Möchten Sie das Klonen abbrechen?</translation>
    </message>
    <message>
        <source>Stop Scan</source>
        <translation>Scan stoppen</translation>
    </message>
    <message>
        <source>Scan can not be resumed from the current stage.</source>
        <translation>Der Scan kann später nicht an dieser Stelle fortgesetzt werden.</translation>
    </message>
    <message>
        <source>Do you wish to abort the scan?</source>
        <translation>Möchten Sie den Scan abbrechen?</translation>
    </message>
    <message>
        <source>(BitLocker)</source>
        <translation>(BitLocker)</translation>
    </message>
    <message>
        <source>No Partition Found</source>
        <translation>Keine Partition gefunden</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Datei speichern</translation>
    </message>
    <message>
        <source>Self-test can not be resumed from the current stage.</source>
        <translation>Der Selbsttest kann später nicht an dieser Stelle fortgesetzt werden.</translation>
    </message>
    <message>
        <source>Do you wish to abort the Self-test?</source>
        <translation>Möchten Sie den Selbsttest abbrechen?</translation>
    </message>
    <message>
        <source>Please wait. Getting SMART information...</source>
        <translation>Bitte warten. SMART-Informationen werden abgerufen ...</translation>
    </message>
    <message>
        <source>Graph : </source>
        <translation>Diagramm: </translation>
    </message>
    <message>
        <source>Running, no problems found</source>
        <translation>Läuft, keine Probleme gefunden</translation>
    </message>
    <message>
        <source>Test failed by Read Element</source>
        <translation>Test wegen Lesefehler fehlgeschlagen</translation>
    </message>
    <message>
        <source>Test Interrupted by the Host</source>
        <translation>Test vom PC unterbrochen</translation>
    </message>
    <message>
        <source>Test ended by Fatal or Unknown Error</source>
        <translation>Schwerer oder unbekannter Testfehler</translation>
    </message>
    <message>
        <source>Test failed by Unknown Element</source>
        <translation>Test fehlgeschlagen, Ursache unbekannt</translation>
    </message>
    <message>
        <source>Test failed by Electrical Element</source>
        <translation>Test wegen Elektrikfehler fehlgeschlagen</translation>
    </message>
    <message>
        <source>Test failed by Servo Element</source>
        <translation>Test wegen Servofehler fehlgeschlagen</translation>
    </message>
    <message>
        <source>Test failed, Handling Damage suspected</source>
        <translation>Test fehlgeschlagen, Stoßschaden vermutet</translation>
    </message>
    <message>
        <source>Test ended with Unknown Status</source>
        <translation>Test mit unbekanntem Status beendet</translation>
    </message>
    <message>
        <source>No Status from the Drive</source>
        <translation>Kein Status vom Laufwerk</translation>
    </message>
    <message>
        <source>Test Aborted by User</source>
        <translation>Test vom Benutzer abgebrochen</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> Minuten</translation>
    </message>
    <message>
        <source>Healthy</source>
        <translation>In Ordnung</translation>
    </message>
    <message>
        <source>Not Healthy</source>
        <translation>Nicht in Ordnung</translation>
    </message>
    <message>
        <source>% Free</source>
        <translation>% frei</translation>
    </message>
    <message>
        <source> Free of </source>
        <translation> frei von </translation>
    </message>
    <message>
        <source> Available</source>
        <translation> verfügbar</translation>
    </message>
    <message>
        <source>The self-test has ended.</source>
        <translation>Der Selbsttest ist beendet.</translation>
    </message>
    <message>
        <source>%1 volumes: %2</source>
        <translation>%1 Volumes: %2</translation>
    </message>
    <message>
        <source>From %1 to %2: lowest value %3, highest %4, latest %5</source>
        <translation>Von %1 bis %2: kleinster Wert %3, größter %4, letzter %5</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Mittel</translation>
    </message>
</context>
<context>
    <name>Monitor</name>
    <message>
        <source>Back up this disk now.</source>
        <translation>Sichern Sie jetzt die Daten dieses Laufwerks.</translation>
    </message>
    <message>
        <source>temperature %1, limit %2</source>
        <translation>Temperatur %1, Grenzwert %2</translation>
    </message>
    <message>
        <source>See to its cooling.</source>
        <translation>Sorgen Sie für Kühlung.</translation>
    </message>
    <message>
        <source>temperature %1, shutdown limit %2</source>
        <translation>Temperatur %1, Grenzwert zum Herunterfahren %2</translation>
    </message>
    <message>
        <source>It is advisable to shut down the system now.</source>
        <translation>Es ist ratsam, das System jetzt herunterzufahren.</translation>
    </message>
    <message>
        <source>the drive reports that it is failing: %3</source>
        <translation>das Laufwerk meldet seinen Ausfall: %3</translation>
    </message>
    <message>
        <source>the drive reports that it is failing</source>
        <translation>das Laufwerk meldet seinen Ausfall</translation>
    </message>
    <message>
        <source>critical warning: %3</source>
        <translation>kritische Warnung: %3</translation>
    </message>
    <message>
        <source>failing attributes: %3</source>
        <translation>versagende Attribute: %3</translation>
    </message>
    <message>
        <source>reallocated sectors: %1 (before: %2)</source>
        <translation>neu zugewiesene Sektoren: %1 (zuvor: %2)</translation>
    </message>
    <message>
        <source>reallocated sectors: %1</source>
        <translation>neu zugewiesene Sektoren: %1</translation>
    </message>
    <message>
        <source>pending sectors: %1 (before: %2)</source>
        <translation>ausstehende Sektoren: %1 (zuvor: %2)</translation>
    </message>
    <message>
        <source>pending sectors: %1</source>
        <translation>ausstehende Sektoren: %1</translation>
    </message>
    <message>
        <source>uncorrectable errors: %1 (before: %2)</source>
        <translation>nicht korrigierbare Fehler: %1 (zuvor: %2)</translation>
    </message>
    <message>
        <source>uncorrectable errors: %1</source>
        <translation>nicht korrigierbare Fehler: %1</translation>
    </message>
    <message>
        <source>media errors: %1 (before: %2)</source>
        <translation>Medienfehler: %1 (zuvor: %2)</translation>
    </message>
    <message>
        <source>media errors: %1</source>
        <translation>Medienfehler: %1</translation>
    </message>
    <message>
        <source>spare %1 %, threshold %2 %</source>
        <translation>Reserve %1 %, Grenzwert %2 %</translation>
    </message>
    <message>
        <source>wear %1 %</source>
        <translation>Abnutzung %1 %</translation>
    </message>
    <message>
        <source>Plan to replace this disk, and keep a backup.</source>
        <translation>Planen Sie den Ersatz dieses Laufwerks und halten Sie eine Sicherung bereit.</translation>
    </message>
    <message>
        <source>the self-test failed: %3</source>
        <translation>der Selbsttest ist fehlgeschlagen: %3</translation>
    </message>
    <message>
        <source>the disk does not answer</source>
        <translation>das Laufwerk antwortet nicht</translation>
    </message>
    <message>
        <source>Check its cable. Back it up as soon as it answers.</source>
        <translation>Prüfen Sie das Kabel. Sichern Sie die Daten, sobald es wieder antwortet.</translation>
    </message>
    <message>
        <source>the disk is missing</source>
        <translation>das Laufwerk fehlt</translation>
    </message>
    <message>
        <source>Check its cable. If it comes back, back it up.</source>
        <translation>Prüfen Sie das Kabel. Wenn es wieder da ist, sichern Sie die Daten.</translation>
    </message>
    <message>
        <source>the disk is back</source>
        <translation>das Laufwerk ist wieder da</translation>
    </message>
    <message>
        <source>the log cannot be written: %3</source>
        <translation>das Protokoll kann nicht geschrieben werden: %3</translation>
    </message>
    <message>
        <source>Choose another file for it in Settings.</source>
        <translation>Wählen Sie in den Einstellungen eine andere Datei dafür.</translation>
    </message>
    <message>
        <source>the spare is used up</source>
        <translation>die Reserve ist aufgebraucht</translation>
    </message>
    <message>
        <source>too hot or too cold</source>
        <translation>zu heiß oder zu kalt</translation>
    </message>
    <message>
        <source>less reliable after errors of the medium</source>
        <translation>nach Fehlern des Mediums weniger zuverlässig</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>schreibgeschützt</translation>
    </message>
    <message>
        <source>the backup of its memory has failed</source>
        <translation>die Sicherung seines Speichers ist ausgefallen</translation>
    </message>
    <message>
        <source>the persistent memory is read-only</source>
        <translation>der persistente Speicher ist schreibgeschützt</translation>
    </message>
</context>
<context>
    <name>QCheckUpdate</name>
    <message>
        <source>No update available.</source>
        <translation>Kein Update verfügbar.</translation>
    </message>
</context>
<context>
    <name>QDownloadApp</name>
    <message>
        <source>Downloading under progress...</source>
        <translation>Download läuft ...</translation>
    </message>
    <message>
        <source>Time Elapsed: </source>
        <translation>Verstrichene Zeit: </translation>
    </message>
    <message>
        <source> sec </source>
        <translation> s </translation>
    </message>
    <message>
        <source> MB copied) </source>
        <translation> MB kopiert) </translation>
    </message>
    <message>
        <source> MB of  </source>
        <translation> MB von  </translation>
    </message>
    <message>
        <source>Transfer Rate: </source>
        <translation>Übertragungsrate: </translation>
    </message>
    <message>
        <source> KB/sec </source>
        <translation> KB/s </translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Software-Update</translation>
    </message>
    <message>
        <source>Update failed 

Update failed due to partial download.</source>
        <translation>Update fehlgeschlagen 

Das Update ist fehlgeschlagen, weil der Download unvollständig war.</translation>
    </message>
    <message>
        <source>The update could not be verified and was not started.</source>
        <translation>Das Update konnte nicht überprüft werden und wurde nicht gestartet.</translation>
    </message>
</context>
<context>
    <name>QGridView</name>
    <message>
        <source> to </source>
        <translation> bis </translation>
    </message>
    <message>
        <source>Start Sector of current block: </source>
        <translation>Erster Sektor des Blocks: </translation>
    </message>
    <message>
        <source>End Sector of current block: </source>
        <translation>Letzter Sektor des Blocks: </translation>
    </message>
    <message>
        <source>Current Block Size : </source>
        <translation>Größe des Blocks: </translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>%1 cells, %2 with unreadable sectors</source>
        <translation>%1 Felder, %2 mit nicht lesbaren Sektoren</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Velmora Halvane already running. Cannot start more than one instance of the application.</source>
        <translation>Velmora Halvane wird bereits ausgeführt. Es kann nur eine Instanz der Anwendung gestartet werden.</translation>
    </message>
    <message>
        <source>Velmora Halvane cannot start: there is no folder for its temporary files that other users cannot change.</source>
        <translation>Velmora Halvane kann nicht gestartet werden: Es gibt keinen Ordner für temporäre Dateien, den andere Benutzer nicht ändern können.</translation>
    </message>
</context>
<context>
    <name>QRoundProgressBar</name>
    <message>
        <source>Complete</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>QShowUpdate</name>
    <message>
        <source>A new major release </source>
        <translation>Die neue Hauptversion </translation>
    </message>
    <message>
        <source>A new minor update </source>
        <translation>Die neue Nebenversion </translation>
    </message>
    <message>
        <source> is available. Click Update to proceed further.</source>
        <translation> ist verfügbar. Klicken Sie auf „Update“, um fortzufahren.</translation>
    </message>
    <message>
        <source>Visit Update Page</source>
        <translation>Update-Seite besuchen</translation>
    </message>
</context>
<context>
    <name>QWaitClass</name>
    <message>
        <source>Initializing Velmora Halvane...</source>
        <translation>Velmora Halvane wird initialisiert ...</translation>
    </message>
</context>
<context>
    <name>SaveListButton</name>
    <message>
        <source>Save List</source>
        <translation>Liste speichern</translation>
    </message>
    <message>
        <source>The list could not be saved.</source>
        <translation>Die Liste konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Saves the bad sectors as a text or as a map file of GNU ddrescue</source>
        <translation>Speichert die defekten Sektoren als Text oder als Map-Datei von GNU ddrescue</translation>
    </message>
</context>
<context>
    <name>ScanDisk</name>
    <message>
        <source> hours</source>
        <translation> Stunden</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> Minuten</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> Sekunden</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>Verbleibende Zeit</translation>
    </message>
    <message>
        <source>Time Elapsed</source>
        <translation>Verstrichene Zeit</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Disk Scan</source>
        <translation>Laufwerksscan</translation>
    </message>
    <message>
        <source>Disk scan aborted.</source>
        <translation>Laufwerksscan abgebrochen.</translation>
    </message>
    <message>
        <source>Disk scan aborted by user.</source>
        <translation>Der Laufwerksscan wurde vom Benutzer abgebrochen.</translation>
    </message>
    <message>
        <source>Scan Completed</source>
        <translation>Scan abgeschlossen</translation>
    </message>
    <message>
        <source>Scan Completed.</source>
        <translation>Scan abgeschlossen.</translation>
    </message>
    <message>
        <source>Scan Failed</source>
        <translation>Scan fehlgeschlagen</translation>
    </message>
    <message>
        <source>Scan Failed.</source>
        <translation>Scan fehlgeschlagen.</translation>
    </message>
    <message>
        <source>The disk is no longer connected.</source>
        <translation>Das Laufwerk ist nicht mehr angeschlossen.</translation>
    </message>
    <message>
        <source>Sector %1 (LBA), byte offset %2</source>
        <translation>Sektor %1 (LBA), Byte-Offset %2</translation>
    </message>
    <message>
        <source>Sectors %1 to %2 (LBA), byte offset %3</source>
        <translation>Sektoren %1 bis %2 (LBA), Byte-Offset %3</translation>
    </message>
    <message>
        <source>Disk:</source>
        <translation>Laufwerk:</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>Seriennummer:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Scanned: the first %1 of %2 sectors</source>
        <translation>Gescannt: die ersten %1 von %2 Sektoren</translation>
    </message>
    <message>
        <source>Result:</source>
        <translation>Ergebnis:</translation>
    </message>
    <message>
        <source>Bad sectors: %1</source>
        <translation>Defekte Sektoren: %1</translation>
    </message>
</context>
<context>
    <name>ScanSwitchDialog</name>
    <message>
        <source>Scan Disk</source>
        <translation>Laufwerk scannen</translation>
    </message>
    <message>
        <source>Scan results will be lost if you move away from this screen. </source>
        <translation>Die Scanergebnisse gehen verloren, wenn Sie diese Seite verlassen. </translation>
    </message>
    <message>
        <source>Do you want to move away from this screen?</source>
        <translation>Möchten Sie diese Seite verlassen?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>SelfTestNotSupportedDialog</name>
    <message>
        <source>Drive Test</source>
        <translation>Laufwerkstest</translation>
    </message>
    <message>
        <source>Self-test not supported.</source>
        <translation>Selbsttest wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>Selected disk doesn&apos;t support self test.</source>
        <translation>Das ausgewählte Laufwerk unterstützt keinen Selbsttest.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>SelfTestPanelForm</name>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Polling Time</source>
        <translation>Geschätzte Dauer</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>Verbleibende Zeit</translation>
    </message>
    <message>
        <source>Time Elapsed</source>
        <translation>Verstrichene Zeit</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Save log file</source>
        <translation>Protokolldatei speichern</translation>
    </message>
    <message>
        <source>Your Software has all latest updates installed.</source>
        <translation>Ihre Software ist auf dem neuesten Stand.</translation>
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
        <translation>Update</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
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
        <translation>Abschaltwarnung</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Hard Disk&apos;s temperature has reached the shutdown value.</source>
        <translation>Die Temperatur der Festplatte hat den Abschaltwert erreicht.</translation>
    </message>
    <message>
        <source>It is advisable to shutdown the system immediately.</source>
        <translation>Es wird empfohlen, das System sofort herunterzufahren.</translation>
    </message>
    <message>
        <source>Shutdown</source>
        <translation>Herunterfahren</translation>
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
        <translation>Attributname</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Min.</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Grenzwert</translation>
    </message>
    <message>
        <source>Raw Value</source>
        <translation>Rohwert</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Aktualisiert</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Better</source>
        <translation>Besser</translation>
    </message>
    <message>
        <source>Overall Status</source>
        <translation>Gesamtstatus</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>AttName</source>
        <translation>AttName</translation>
    </message>
    <message>
        <source>PASSED</source>
        <translation>BESTANDEN</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>FAIELD</source>
        <translation>FEHLER</translation>
    </message>
    <message>
        <source>ATA Disk</source>
        <translation>ATA-Laufwerk</translation>
    </message>
</context>
<context>
    <name>SmartWarningDialog</name>
    <message>
        <source>SMART Warning</source>
        <translation>SMART-Warnung</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Hard Disk&apos;s temperature exceed the threshold value.</source>
        <translation>Die Temperatur der Festplatte überschreitet den Grenzwert.</translation>
    </message>
    <message>
        <source>Your hard disk&apos;s temperature has exceeded threshold value. This may damage hard disk. It is advisable to shutdown the system immediately.</source>
        <translation>Die Temperatur Ihrer Festplatte hat den Grenzwert überschritten. Dies kann die Festplatte beschädigen. Es wird empfohlen, das System sofort herunterzufahren.</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Nicht mehr anzeigen</translation>
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
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Refresh now</source>
        <translation>Jetzt aktualisieren</translation>
    </message>
    <message>
        <source>Pause alarms for an hour</source>
        <translation>Alarme eine Stunde pausieren</translation>
    </message>
    <message>
        <source>Show lowest health</source>
        <translation>Niedrigsten Zustand anzeigen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
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
        <translation>Status</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Speicherplatz</translation>
    </message>
</context>
<context>
    <name>m_pCloneDiskwgt</name>
    <message>
        <source>Disk Details</source>
        <translation>Laufwerksdetails</translation>
    </message>
    <message>
        <source>Source Disk</source>
        <translation>Quelllaufwerk</translation>
    </message>
    <message>
        <source>Target Disk</source>
        <translation>Ziellaufwerk</translation>
    </message>
    <message>
        <source>Remaining Time</source>
        <translation>Verbleibende Zeit</translation>
    </message>
</context>
<context>
    <name>m_pCloseWgt</name>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Are you sure you want to exit?</source>
        <translation>Möchten Sie das Programm wirklich beenden?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>m_pDiskPartitionWgt</name>
    <message>
        <source>Disk Partition</source>
        <translation>Partitionen</translation>
    </message>
    <message>
        <source>Partition Details</source>
        <translation>Partitionsdetails</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Kapazität</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>Schnittstelle</translation>
    </message>
</context>
<context>
    <name>m_pDiskStatus</name>
    <message>
        <source>Disk Details</source>
        <translation>Laufwerksdetails</translation>
    </message>
    <message>
        <source>Disk Number</source>
        <translation>Laufwerksnummer</translation>
    </message>
    <message>
        <source>Model Number</source>
        <translation>Modellnummer</translation>
    </message>
    <message>
        <source>Firmware Revision</source>
        <translation>Firmwareversion</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>Schnittstelle</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>Sektoren gesamt</translation>
    </message>
    <message>
        <source>Hard Disk Life</source>
        <translation>Restlebensdauer</translation>
    </message>
    <message>
        <source>Power-on Time</source>
        <translation>Betriebszeit</translation>
    </message>
    <message>
        <source>Start/Stop Count</source>
        <translation>Start-Stopp-Zyklen</translation>
    </message>
    <message>
        <source>Drive&apos;s verdict</source>
        <translation>Laufwerksurteil</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Performance</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Zustand</translation>
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
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>SMART Status</source>
        <translation>SMART-Status</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
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
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Bericht speichern</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Screenshot</translation>
    </message>
    <message>
        <source>View Velmora Halvane help document</source>
        <translation>Hilfedokument zu Velmora Halvane anzeigen</translation>
    </message>
    <message>
        <source>More Tools</source>
        <translation>Weitere Tools</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Recover Data</source>
        <translation>Daten wiederherstellen</translation>
    </message>
    <message>
        <source>Repair Video</source>
        <translation>Video reparieren</translation>
    </message>
    <message>
        <source>Repair Photo</source>
        <translation>Foto reparieren</translation>
    </message>
</context>
<context>
    <name>m_pScanDiskwgt</name>
    <message>
        <source>Scan Disk</source>
        <translation>Laufwerk scannen</translation>
    </message>
    <message>
        <source>Disk Size</source>
        <translation>Laufwerksgröße</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>Sektoren gesamt</translation>
    </message>
    <message>
        <source>Block Size</source>
        <translation>Blockgröße</translation>
    </message>
    <message>
        <source>  Processed</source>
        <translation>  Geprüft</translation>
    </message>
    <message>
        <source>  Bad Sectors</source>
        <translation>  Defekte Sektoren</translation>
    </message>
    <message>
        <source>  Processing</source>
        <translation>  In Bearbeitung</translation>
    </message>
    <message>
        <source>Short Self-test</source>
        <translation>Kurzer Selbsttest</translation>
    </message>
    <message>
        <source>Extended Self-test</source>
        <translation>Erweiterter Selbsttest</translation>
    </message>
    <message>
        <source>Perform a surface scan on the selected disk to identify if the disk has bad sectors.</source>
        <translation>Führt einen Oberflächenscan des ausgewählten Laufwerks durch, um festzustellen, ob es defekte Sektoren enthält.</translation>
    </message>
    <message>
        <source>Run this test to check the electrical and mechanical performance of a device along with the read/write operations on a portion of the disk. This test may take few minutes to complete.</source>
        <translation>Dieser Test prüft die elektrische und mechanische Leistung eines Geräts sowie die Lese- und Schreibvorgänge auf einem Teil des Laufwerks. Er kann einige Minuten dauern.</translation>
    </message>
    <message>
        <source>This test is same as a short self-test with a complete disk surface examination. This test may take up to few hours to complete.</source>
        <translation>Dieser Test entspricht dem kurzen Selbsttest, prüft aber zusätzlich die gesamte Laufwerksoberfläche. Er kann einige Stunden dauern.</translation>
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
        <translation>  Einstellungen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Show status in tray</source>
        <translation>Status im Infobereich anzeigen</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Englisch</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Französisch</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italienisch</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spanisch</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Niederländisch</translation>
    </message>
    <message>
        <source>Portuguese (Brazil)</source>
        <translation>Portugiesisch (Brasilien)</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>Hindi</translation>
    </message>
    <message>
        <source>LOGS</source>
        <translation>PROTOKOLLE</translation>
    </message>
    <message>
        <source>Save log file</source>
        <translation>Protokolldatei speichern</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Max log size (KB)</source>
        <translation>Max. Protokollgröße (KB)</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Show Temperature in</source>
        <translation>Temperatur anzeigen in</translation>
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
        <translation>Temperaturalarm aktivieren</translation>
    </message>
    <message>
        <source>Warning Temperature</source>
        <translation>Warntemperatur</translation>
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
        <translation>Abschalttemperatur</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>View Velmora Halvane help document</source>
        <translation>Hilfedokument zu Velmora Halvane anzeigen</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Sprachen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>m_pSmartWgt</name>
    <message>
        <source>SMART Status : </source>
        <translation>SMART-Status: </translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Kapazität</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>Schnittstelle</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Bericht speichern</translation>
    </message>
    <message>
        <source>Smart Status</source>
        <translation>SMART-Status</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
</TS>
