<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Velmora Halvane</source>
        <translation>Informazioni su Velmora Halvane</translation>
    </message>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>License Agreement</source>
        <translation>Contratto di licenza</translation>
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
        <translation>Versione </translation>
    </message>
</context>
<context>
    <name>AccessNotice</name>
    <message>
        <source>No disk can be opened</source>
        <translation>Nessun disco può essere aperto</translation>
    </message>
    <message>
        <source>Velmora Halvane needs the rights of an administrator to open disks. Without them nothing can be said of their health.</source>
        <translation>Velmora Halvane ha bisogno dei diritti di amministratore per aprire i dischi. Senza di essi non si può dire nulla della loro salute.</translation>
    </message>
    <message>
        <source>Close the program, right-click its icon and choose &quot;Run as administrator&quot;.</source>
        <translation>Chiudere il programma, fare clic con il pulsante destro sulla sua icona e scegliere &quot;Esegui come amministratore&quot;.</translation>
    </message>
    <message>
        <source>Close the program and start it as root. This command does it in a terminal:</source>
        <translation>Chiudere il programma e avviarlo come root. In un terminale si usa questo comando:</translation>
    </message>
</context>
<context>
    <name>AttributeCatalogue</name>
    <message>
        <source>Raw Read Error Rate</source>
        <translation>Tasso errori di lettura</translation>
    </message>
    <message>
        <source>Spin Up Time</source>
        <translation>Tempo di avvio</translation>
    </message>
    <message>
        <source>Start Stop Count</source>
        <translation>Avvii e arresti</translation>
    </message>
    <message>
        <source>Reallocated Sector Count</source>
        <translation>Settori riallocati</translation>
    </message>
    <message>
        <source>Seek Error Rate</source>
        <translation>Tasso errori di ricerca</translation>
    </message>
    <message>
        <source>Power On Hours</source>
        <translation>Ore di accensione</translation>
    </message>
    <message>
        <source>Spin Retry Count</source>
        <translation>Tentativi di avvio</translation>
    </message>
    <message>
        <source>Calibration Retry Count</source>
        <translation>Tentativi di calibrazione</translation>
    </message>
    <message>
        <source>Power Cycle Count</source>
        <translation>Cicli di accensione</translation>
    </message>
    <message>
        <source>Power-Off Retract Count</source>
        <translation>Ritrazioni allo spegnimento</translation>
    </message>
    <message>
        <source>Load Cycle Count</source>
        <translation>Cicli di caricamento</translation>
    </message>
    <message>
        <source>Temperature Celsius</source>
        <translation>Temperatura (Celsius)</translation>
    </message>
    <message>
        <source>Reallocated Event Count</source>
        <translation>Eventi di riallocazione</translation>
    </message>
    <message>
        <source>Current Pending Sector Count</source>
        <translation>Settori in attesa</translation>
    </message>
    <message>
        <source>Offline Uncorrectable</source>
        <translation>Non correggibili offline</translation>
    </message>
    <message>
        <source>UDMA CRC Error Count</source>
        <translation>Errori CRC UDMA</translation>
    </message>
    <message>
        <source>Multi Zone Error Rate</source>
        <translation>Tasso errori multizona</translation>
    </message>
    <message>
        <source>Available Reserved Space</source>
        <translation>Spazio di riserva</translation>
    </message>
    <message>
        <source>SSD Program Fail Count</source>
        <translation>Errori di programmazione SSD</translation>
    </message>
    <message>
        <source>SSD Erase Fail Count</source>
        <translation>Errori di cancellazione SSD</translation>
    </message>
    <message>
        <source>SSD Wear Leveling Count</source>
        <translation>Livellamento usura SSD</translation>
    </message>
    <message>
        <source>Unexpected power loss count</source>
        <translation>Interruzioni di corrente</translation>
    </message>
    <message>
        <source>Throughput Performance</source>
        <translation>Prestazioni di trasferimento</translation>
    </message>
    <message>
        <source>Read Channel Margin</source>
        <translation>Margine del canale di lettura</translation>
    </message>
    <message>
        <source>Seek Time Performance</source>
        <translation>Prestazioni di ricerca</translation>
    </message>
    <message>
        <source>Soft Read Error Rate</source>
        <translation>Tasso errori di lettura soft</translation>
    </message>
    <message>
        <source>Runtime Bad Block</source>
        <translation>Blocchi difettosi in uso</translation>
    </message>
    <message>
        <source>End-to-End Error </source>
        <translation>Errori end-to-end </translation>
    </message>
    <message>
        <source>Reported Uncorrect</source>
        <translation>Errori non corretti</translation>
    </message>
    <message>
        <source>Command Timeout</source>
        <translation>Timeout dei comandi</translation>
    </message>
    <message>
        <source>High Fly Writes</source>
        <translation>Scritture testina alta</translation>
    </message>
    <message>
        <source>Airflow Temperature Cel</source>
        <translation>Temperatura dell&apos;aria</translation>
    </message>
    <message>
        <source>G-Sense Error Rate</source>
        <translation>Tasso errori da urto</translation>
    </message>
    <message>
        <source>Hardware ECC Recovered</source>
        <translation>Correzioni ECC</translation>
    </message>
    <message>
        <source>Multi Zone Error Rate </source>
        <translation>Tasso errori multizona </translation>
    </message>
    <message>
        <source>Write Error Rate</source>
        <translation>Tasso errori di scrittura</translation>
    </message>
    <message>
        <source>Head Flying Hours</source>
        <translation>Ore di volo delle testine</translation>
    </message>
    <message>
        <source>Total LBAs Written</source>
        <translation>LBA totali scritti</translation>
    </message>
    <message>
        <source>Total LBAs Read</source>
        <translation>LBA totali letti</translation>
    </message>
    <message>
        <source>Free Fall Sensor</source>
        <translation>Sensore di caduta libera</translation>
    </message>
    <message>
        <source>Critical Warning</source>
        <translation>Avviso critico</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Available Spare</source>
        <translation>Riserva disponibile</translation>
    </message>
    <message>
        <source>Available Spare Threshold</source>
        <translation>Soglia di riserva</translation>
    </message>
    <message>
        <source>Percentage Used</source>
        <translation>Percentuale di usura</translation>
    </message>
    <message>
        <source>Data Units Read</source>
        <translation>Unità di dati lette</translation>
    </message>
    <message>
        <source>Data Units Written</source>
        <translation>Unità di dati scritte</translation>
    </message>
    <message>
        <source>Host Read Commands</source>
        <translation>Comandi di lettura</translation>
    </message>
    <message>
        <source>Host Write Commands</source>
        <translation>Comandi di scrittura</translation>
    </message>
    <message>
        <source>Controller Busy Time</source>
        <translation>Tempo di occupazione</translation>
    </message>
    <message>
        <source>Power Cyles</source>
        <translation>Cicli di accensione</translation>
    </message>
    <message>
        <source>Unsafe Shutdowns</source>
        <translation>Arresti non sicuri</translation>
    </message>
    <message>
        <source>Media and Data Integrity Errors</source>
        <translation>Errori di integrità</translation>
    </message>
    <message>
        <source>Error Information Log Entries</source>
        <translation>Voci del registro errori</translation>
    </message>
</context>
<context>
    <name>AttributeRows</name>
    <message>
        <source>FAILED</source>
        <translation>FALLITO</translation>
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
        <translation>Ricerca di aggiornamenti...</translation>
    </message>
</context>
<context>
    <name>CloneDisk</name>
    <message>
        <source>Not Available</source>
        <translation>Non disponibile</translation>
    </message>
    <message>
        <source>Disk Number 	: </source>
        <translation>Numero del disco 	: </translation>
    </message>
    <message>
        <source>Model Number	: </source>
        <translation>Numero di modello	: </translation>
    </message>
    <message>
        <source>Serial: </source>
        <translation>Numero di serie: </translation>
    </message>
    <message>
        <source>Firmware Revision : </source>
        <translation>Revisione firmware : </translation>
    </message>
    <message>
        <source>Interface Type	   : </source>
        <translation>Tipo di interfaccia	   : </translation>
    </message>
    <message>
        <source>Capacity	: </source>
        <translation>Capacità	: </translation>
    </message>
    <message>
        <source>Total Sector	   : </source>
        <translation>Settori totali	   : </translation>
    </message>
    <message>
        <source>Model Number : </source>
        <translation>Numero di modello : </translation>
    </message>
    <message>
        <source>Capacity           : </source>
        <translation>Capacità           : </translation>
    </message>
    <message>
        <source>ATA Disk</source>
        <translation>Disco ATA</translation>
    </message>
    <message>
        <source> hours</source>
        <translation> ore</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> minuti</translation>
    </message>
    <message>
        <source>Source and destination disks are same.</source>
        <translation>Il disco di origine e quello di destinazione coincidono.</translation>
    </message>
    <message>
        <source>Destination disk size is smaller than source disk.</source>
        <translation>Il disco di destinazione è più piccolo di quello di origine.</translation>
    </message>
    <message>
        <source>Clone Disk</source>
        <translation>Clona disco</translation>
    </message>
    <message>
        <source>Select different destination disk.</source>
        <translation>Selezionare un altro disco di destinazione.</translation>
    </message>
    <message>
        <source>Cloning Failed</source>
        <translation>Clonazione non riuscita</translation>
    </message>
    <message>
        <source>Unable to write on destination disk.</source>
        <translation>Impossibile scrivere sul disco di destinazione.</translation>
    </message>
    <message>
        <source>Select other destination disk.</source>
        <translation>Selezionare un altro disco di destinazione.</translation>
    </message>
    <message>
        <source>Abort Clone</source>
        <translation>Interrompi clonazione</translation>
    </message>
    <message>
        <source>Cloning Aborted.</source>
        <translation>Clonazione interrotta.</translation>
    </message>
    <message>
        <source>Disk Cloning complete.</source>
        <translation>Clonazione del disco completata.</translation>
    </message>
    <message>
        <source>Disk cloning process completed successfully.</source>
        <translation>La clonazione del disco è stata completata correttamente.</translation>
    </message>
    <message>
        <source>Cloning aborted.</source>
        <translation>Clonazione interrotta.</translation>
    </message>
    <message>
        <source>Cloning process aborted by the user.</source>
        <translation>Clonazione interrotta dall&apos;utente.</translation>
    </message>
    <message>
        <source>Select Destination</source>
        <translation>Seleziona destinazione</translation>
    </message>
    <message>
        <source>The disks are not there any more.</source>
        <translation>I dischi non sono più presenti.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>La memoria non è sufficiente.</translation>
    </message>
    <message>
        <source>The source disk cannot be opened.</source>
        <translation>Impossibile aprire il disco di origine.</translation>
    </message>
    <message>
        <source>The destination disk cannot be opened.</source>
        <translation>Impossibile aprire il disco di destinazione.</translation>
    </message>
    <message>
        <source>The source disk is not the one that was chosen.</source>
        <translation>Il disco di origine non è quello scelto.</translation>
    </message>
    <message>
        <source>The destination disk is not the one that was chosen.</source>
        <translation>Il disco di destinazione non è quello scelto.</translation>
    </message>
    <message>
        <source>The source disk has no sectors.</source>
        <translation>Il disco di origine non ha settori.</translation>
    </message>
    <message>
        <source>The system runs from the destination disk.</source>
        <translation>Il sistema è in esecuzione dal disco di destinazione.</translation>
    </message>
    <message>
        <source>A volume of the destination disk is in use.</source>
        <translation>Un volume del disco di destinazione è in uso.</translation>
    </message>
    <message>
        <source>The destination disk is in use.</source>
        <translation>Il disco di destinazione è in uso.</translation>
    </message>
    <message>
        <source>It cannot be found out whether the destination disk is in use.</source>
        <translation>Impossibile stabilire se il disco di destinazione è in uso.</translation>
    </message>
    <message>
        <source>The destination disk cannot be written. It may be in use.</source>
        <translation>Impossibile scrivere sul disco di destinazione. Potrebbe essere in uso.</translation>
    </message>
    <message>
        <source>The source disk does not answer any more.</source>
        <translation>Il disco di origine non risponde più.</translation>
    </message>
    <message>
        <source>The destination disk does not answer any more.</source>
        <translation>Il disco di destinazione non risponde più.</translation>
    </message>
    <message>
        <source>%1 sectors could not be read and were filled with zeros. %2 sectors could not be written.</source>
        <translation>Non è stato possibile leggere %1 settori, che sono stati riempiti con zeri. Non è stato possibile scrivere %2 settori.</translation>
    </message>
    <message>
        <source>The destination disk did not confirm that all data is stored.</source>
        <translation>Il disco di destinazione non ha confermato che tutti i dati siano stati salvati.</translation>
    </message>
    <message>
        <source>Disk Cloning complete with errors.</source>
        <translation>Clonazione del disco completata con errori.</translation>
    </message>
    <message>
        <source>Nothing was written on any disk.</source>
        <translation>Non è stato scritto nulla su alcun disco.</translation>
    </message>
    <message>
        <source>The destination disk holds no complete copy.</source>
        <translation>Il disco di destinazione non contiene una copia completa.</translation>
    </message>
    <message>
        <source>Save List</source>
        <translation>Salva elenco</translation>
    </message>
    <message>
        <source>The list could not be saved.</source>
        <translation>Impossibile salvare l'elenco.</translation>
    </message>
    <message>
        <source>%1 % of the disk copied</source>
        <translation>%1 % del disco copiato</translation>
    </message>
</context>
<context>
    <name>CloningWarningDialog</name>
    <message>
        <source>Clone Disk</source>
        <translation>Clona disco</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>This action will create a clone of the source drive on the destination drive. Make sure that source and destination disk selection is correct since this operation is irreversible.</source>
        <translation>Questa operazione crea un clone dell&apos;unità di origine sull&apos;unità di destinazione. Verificare che i dischi di origine e di destinazione siano quelli corretti, perché l&apos;operazione è irreversibile.</translation>
    </message>
    <message>
        <source>Existing data on the destination disk will be lost.</source>
        <translation>I dati presenti sul disco di destinazione andranno persi.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>Companion</name>
    <message>
        <source>%1 · health %2 %</source>
        <translation>%1 · salute %2 %</translation>
    </message>
    <message>
        <source>Asleep</source>
        <translation>In riposo</translation>
    </message>
    <message>
        <source>Asleep · last %1 at %2</source>
        <translation>In riposo · %1 alle %2</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Molto caldo</translation>
    </message>
    <message>
        <source>Warm since %1</source>
        <translation>Caldo dalle %1</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Caldo</translation>
    </message>
    <message>
        <source>Unknown disk</source>
        <translation>Disco sconosciuto</translation>
    </message>
    <message>
        <source>Disk %1</source>
        <translation>Disco %1</translation>
    </message>
    <message>
        <source>Missing: check its cable</source>
        <translation>Assente: controllare il cavo</translation>
    </message>
    <message>
        <source>Failing: back up this disk now</source>
        <translation>In avaria: fare subito il backup</translation>
    </message>
    <message>
        <source>Does not answer</source>
        <translation>Non risponde</translation>
    </message>
    <message>
        <source>Tells nothing of its health</source>
        <translation>Non dice nulla della sua salute</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>In ordine</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Richiede attenzione</translation>
    </message>
    <message>
        <source>No disk is watched.</source>
        <translation>Nessun disco è sorvegliato.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e altri %1</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>proprio ora</translation>
    </message>
    <message>
        <source>1 minute ago</source>
        <translation>1 minuto fa</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 minuti fa</translation>
    </message>
</context>
<context>
    <name>ConfarmetionDialog</name>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
</context>
<context>
    <name>DestinitionWarningDailog</name>
    <message>
        <source>Clone Disk</source>
        <translation>Clona disco</translation>
    </message>
    <message>
        <source>Select target disk.</source>
        <translation>Selezionare il disco di destinazione.</translation>
    </message>
    <message>
        <source>Select target disk to start cloning process.</source>
        <translation>Selezionare il disco di destinazione per avviare la clonazione.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>DiskPartition</name>
    <message>
        <source>ATA Disk</source>
        <translation>Disco ATA</translation>
    </message>
</context>
<context>
    <name>DiskStatus</name>
    <message>
        <source>Not Supported</source>
        <translation>Non supportato</translation>
    </message>
    <message>
        <source>Failed: back up your data</source>
        <translation>Fallito: salva i tuoi dati</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Superato</translation>
    </message>
    <message>
        <source>Not told</source>
        <translation>Non indicato</translation>
    </message>
</context>
<context>
    <name>DonutChartView</name>
    <message>
        <source>Disk </source>
        <translation>Disco </translation>
    </message>
</context>
<context>
    <name>DownloadUpdate</name>
    <message>
        <source>Software Update</source>
        <translation>Aggiornamento software</translation>
    </message>
    <message>
        <source>Downloading Files</source>
        <translation>Download dei file</translation>
    </message>
</context>
<context>
    <name>Flyout</name>
    <message>
        <source>No disk is watched.</source>
        <translation>Nessun disco è sorvegliato.</translation>
    </message>
    <message>
        <source>Alarms on again</source>
        <translation>Riattiva gli allarmi</translation>
    </message>
    <message>
        <source>Pause alarms</source>
        <translation>Sospendi gli allarmi</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
</context>
<context>
    <name>FlyoutRow</name>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Limits…</source>
        <translation>Limiti…</translation>
    </message>
    <message>
        <source>Mark as seen</source>
        <translation>Segna come visto</translation>
    </message>
</context>
<context>
    <name>InfoDialog</name>
    <message>
        <source>Information</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save List</source>
        <translation>Salva elenco</translation>
    </message>
</context>
<context>
    <name>LimitsDialog</name>
    <message>
        <source>Limits of this disk</source>
        <translation>Limiti di questo disco</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Limits of its own</source>
        <translation>Limiti propri</translation>
    </message>
    <message>
        <source>Warning Temperature</source>
        <translation>Temperatura di avviso</translation>
    </message>
    <message>
        <source>Shutdown Temperature</source>
        <translation>Temperatura di arresto</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Not Available</source>
        <translation>Non disponibile</translation>
    </message>
    <message>
        <source>Disk Drive </source>
        <translation>Disco </translation>
    </message>
    <message>
        <source>English</source>
        <translation>Inglese</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Tedesco</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francese</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italiano</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spagnolo</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Giapponese</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Cinese</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Coreano</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Olandese</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>Portoghese (Brasile)</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>Hindi</translation>
    </message>
    <message>
        <source>   Disk Status</source>
        <translation>   Stato disco</translation>
    </message>
    <message>
        <source>View the health status of your hard disk</source>
        <translation>Mostra lo stato di salute del disco rigido</translation>
    </message>
    <message>
        <source>   SMART Status</source>
        <translation>   Stato SMART</translation>
    </message>
    <message>
        <source>Detailed SMART status of the hard disk</source>
        <translation>Stato SMART dettagliato del disco rigido</translation>
    </message>
    <message>
        <source>   Disk Partition</source>
        <translation>   Partizioni</translation>
    </message>
    <message>
        <source>View description of partitions in your hard disk</source>
        <translation>Mostra la descrizione delle partizioni del disco rigido</translation>
    </message>
    <message>
        <source>   Scan Disk</source>
        <translation>   Scansione disco</translation>
    </message>
    <message>
        <source>Scan your hard disk for bad sectors</source>
        <translation>Cerca settori danneggiati nel disco rigido</translation>
    </message>
    <message>
        <source>   Clone Disk</source>
        <translation>   Clona disco</translation>
    </message>
    <message>
        <source>Clone hard disk to avoid impending disk issues</source>
        <translation>Clona il disco rigido per prevenire problemi imminenti</translation>
    </message>
    <message>
        <source>Extended Self-test</source>
        <translation>Autotest esteso</translation>
    </message>
    <message>
        <source>Short Self-test</source>
        <translation>Autotest breve</translation>
    </message>
    <message>
        <source>Aborted by User</source>
        <translation>Interrotto dall&apos;utente</translation>
    </message>
    <message>
        <source>Successfully Completed</source>
        <translation>Completato correttamente</translation>
    </message>
    <message>
        <source>Failed by Read Element</source>
        <translation>Errore dell&apos;elemento di lettura</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Non disponibile</translation>
    </message>
    <message>
        <source> days</source>
        <translation> giorni</translation>
    </message>
    <message>
        <source> hours</source>
        <translation> ore</translation>
    </message>
    <message>
        <source>More than 1000</source>
        <translation>Più di 1000</translation>
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
        <translation>Buona</translation>
    </message>
    <message>
        <source>Bad</source>
        <translation>Cattiva</translation>
    </message>
    <message>
        <source>Not Supported</source>
        <translation>Non supportato</translation>
    </message>
    <message>
        <source>Supported</source>
        <translation>Supportato</translation>
    </message>
    <message>
        <source>NA</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Disk Information:</source>
        <translation>Informazioni sul disco:</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Details:</source>
        <translation>Dettagli S.M.A.R.T.:</translation>
    </message>
    <message>
        <source>Model Number:</source>
        <translation>Numero di modello:</translation>
    </message>
    <message>
        <source>Serial Number:</source>
        <translation>Numero di serie:</translation>
    </message>
    <message>
        <source>Firmware Version:</source>
        <translation>Versione firmware:</translation>
    </message>
    <message>
        <source>Capacity:</source>
        <translation>Capacità:</translation>
    </message>
    <message>
        <source>Sector Size:</source>
        <translation>Dimensione settore:</translation>
    </message>
    <message>
        <source>Local  Time:</source>
        <translation>Ora locale:</translation>
    </message>
    <message>
        <source>Maximum Data Transfer Size:</source>
        <translation>Dimensione massima di trasferimento:</translation>
    </message>
    <message>
        <source>SMART Status:</source>
        <translation>Stato SMART:</translation>
    </message>
    <message>
        <source>Current Temperature:</source>
        <translation>Temperatura attuale:</translation>
    </message>
    <message>
        <source>Performance:</source>
        <translation>Prestazioni:</translation>
    </message>
    <message>
        <source>Health:</source>
        <translation>Salute:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Attribute Name</source>
        <translation>Nome attributo</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valori</translation>
    </message>
    <message>
        <source>Self Test Details:</source>
        <translation>Dettagli degli autotest:</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Details</source>
        <translation>Dettagli S.M.A.R.T.</translation>
    </message>
    <message>
        <source>Make:</source>
        <translation>Produttore:</translation>
    </message>
    <message>
        <source>Rotation Rate:</source>
        <translation>Velocità di rotazione:</translation>
    </message>
    <message>
        <source>ATA Version:</source>
        <translation>Versione ATA:</translation>
    </message>
    <message>
        <source>SATA Version:</source>
        <translation>Versione SATA:</translation>
    </message>
    <message>
        <source>Short Self-test:</source>
        <translation>Autotest breve:</translation>
    </message>
    <message>
        <source>Estimated Completion Time:</source>
        <translation>Durata stimata:</translation>
    </message>
    <message>
        <source>Extended Self-test:</source>
        <translation>Autotest esteso:</translation>
    </message>
    <message>
        <source>Last Run Self-test:</source>
        <translation>Ultimo autotest eseguito:</translation>
    </message>
    <message>
        <source>Last Self-Test Result:</source>
        <translation>Risultato dell&apos;ultimo autotest:</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Min.</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Soglia</translation>
    </message>
    <message>
        <source>Raw Value</source>
        <translation>Val. grezzo</translation>
    </message>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Report</source>
        <translation>Report S.M.A.R.T.</translation>
    </message>
    <message>
        <source>The information contained in this report has been generated by the Velmora Halvane profiling process.</source>
        <translation>Le informazioni di questo report sono state generate dal processo di analisi di Velmora Halvane.</translation>
    </message>
    <message>
        <source>Velmora Halvane is a product of Korvane.</source>
        <translation>Velmora Halvane è un prodotto Korvane.</translation>
    </message>
    <message>
        <source>Velmora Halvane is a product of Velmora.</source>
        <translation>Velmora Halvane è un prodotto Velmora.</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fallito</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Superato</translation>
    </message>
    <message>
        <source>Source disk:     </source>
        <translation>Disco di origine:     </translation>
    </message>
    <message>
        <source>Destination disk:    </source>
        <translation>Disco di destinazione:    </translation>
    </message>
    <message>
        <source>Clone Disk</source>
        <translation>Clona disco</translation>
    </message>
    <message>
        <source>Clone Running.</source>
        <translation>Clonazione in corso.</translation>
    </message>
    <message>
        <source>Cloning process running.</source>
        <translation>È in corso una clonazione.</translation>
    </message>
    <message>
        <source>Please halt the clone process to exit.</source>
        <translation>Interrompere la clonazione prima di uscire.</translation>
    </message>
    <message>
        <source>Scan Disk</source>
        <translation>Scansione disco</translation>
    </message>
    <message>
        <source>Scaning Running.</source>
        <translation>Scansione in corso.</translation>
    </message>
    <message>
        <source>Disk scan running.</source>
        <translation>È in corso la scansione del disco.</translation>
    </message>
    <message>
        <source>Please halt the scan process to exit.</source>
        <translation>Interrompere la scansione prima di uscire.</translation>
    </message>
    <message>
        <source>SMART Status</source>
        <translation>Stato SMART</translation>
    </message>
    <message>
        <source>Please wait. Application Refreshing...</source>
        <translation>Attendere. Aggiornamento dell&apos;applicazione...</translation>
    </message>
    <message>
        <source>Stop Clone</source>
        <translation>Ferma clonazione</translation>
    </message>
    <message>
        <source>Cloning can not be resumed from the current stage.</source>
        <translation>La clonazione non potrà essere ripresa dal punto attuale.</translation>
    </message>
    <message>
        <source>Do you wish to abort the cloning?</source>
        <translation>Interrompere la clonazione?</translation>
    </message>
    <message>
        <source>Stop Scan</source>
        <translation>Ferma scansione</translation>
    </message>
    <message>
        <source>Scan can not be resumed from the current stage.</source>
        <translation>La scansione non potrà essere ripresa dal punto attuale.</translation>
    </message>
    <message>
        <source>Do you wish to abort the scan?</source>
        <translation>Interrompere la scansione?</translation>
    </message>
    <message>
        <source>(BitLocker)</source>
        <translation>(BitLocker)</translation>
    </message>
    <message>
        <source>No Partition Found</source>
        <translation>Nessuna partizione trovata</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Salva file</translation>
    </message>
    <message>
        <source>Self-test can not be resumed from the current stage.</source>
        <translation>L&apos;autotest non potrà essere ripreso dal punto attuale.</translation>
    </message>
    <message>
        <source>Do you wish to abort the Self-test?</source>
        <translation>Interrompere l&apos;autotest?</translation>
    </message>
    <message>
        <source>Please wait. Getting SMART information...</source>
        <translation>Attendere. Lettura delle informazioni SMART...</translation>
    </message>
    <message>
        <source>Graph : </source>
        <translation>Grafico: </translation>
    </message>
    <message>
        <source>Running, no problems found</source>
        <translation>In corso, nessun problema rilevato</translation>
    </message>
    <message>
        <source>Test failed by Read Element</source>
        <translation>Test fallito per l&apos;elemento di lettura</translation>
    </message>
    <message>
        <source>Test Interrupted by the Host</source>
        <translation>Test interrotto dal PC</translation>
    </message>
    <message>
        <source>Test ended by Fatal or Unknown Error</source>
        <translation>Errore di test grave o sconosciuto</translation>
    </message>
    <message>
        <source>Test failed by Unknown Element</source>
        <translation>Test fallito: elemento sconosciuto</translation>
    </message>
    <message>
        <source>Test failed by Electrical Element</source>
        <translation>Test fallito: elemento elettrico</translation>
    </message>
    <message>
        <source>Test failed by Servo Element</source>
        <translation>Test fallito: elemento servo</translation>
    </message>
    <message>
        <source>Test failed, Handling Damage suspected</source>
        <translation>Test fallito: probabile danno da urto</translation>
    </message>
    <message>
        <source>Test ended with Unknown Status</source>
        <translation>Test terminato, stato sconosciuto</translation>
    </message>
    <message>
        <source>No Status from the Drive</source>
        <translation>Nessuno stato dal disco</translation>
    </message>
    <message>
        <source>Test Aborted by User</source>
        <translation>Test interrotto dall&apos;utente</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> minuti</translation>
    </message>
    <message>
        <source>Healthy</source>
        <translation>Integro</translation>
    </message>
    <message>
        <source>Not Healthy</source>
        <translation>Non integro</translation>
    </message>
    <message>
        <source>% Free</source>
        <translation>% libero</translation>
    </message>
    <message>
        <source> Free of </source>
        <translation> liberi di </translation>
    </message>
    <message>
        <source> Available</source>
        <translation> disponibili</translation>
    </message>
    <message>
        <source>The self-test has ended.</source>
        <translation>L'autotest è terminato.</translation>
    </message>
    <message>
        <source>%1 volumes: %2</source>
        <translation>%1 volumi: %2</translation>
    </message>
    <message>
        <source>From %1 to %2: lowest value %3, highest %4, latest %5</source>
        <translation>Dal %1 al %2: valore minimo %3, massimo %4, ultimo %5</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Media</translation>
    </message>
</context>
<context>
    <name>Monitor</name>
    <message>
        <source>Back up this disk now.</source>
        <translation>Fare subito il backup di questo disco.</translation>
    </message>
    <message>
        <source>temperature %1, limit %2</source>
        <translation>temperatura %1, limite %2</translation>
    </message>
    <message>
        <source>See to its cooling.</source>
        <translation>Controllare il raffreddamento.</translation>
    </message>
    <message>
        <source>temperature %1, shutdown limit %2</source>
        <translation>temperatura %1, limite di spegnimento %2</translation>
    </message>
    <message>
        <source>It is advisable to shut down the system now.</source>
        <translation>È consigliabile spegnere subito il sistema.</translation>
    </message>
    <message>
        <source>the drive reports that it is failing: %3</source>
        <translation>il disco segnala la propria avaria: %3</translation>
    </message>
    <message>
        <source>the drive reports that it is failing</source>
        <translation>il disco segnala la propria avaria</translation>
    </message>
    <message>
        <source>critical warning: %3</source>
        <translation>avviso critico: %3</translation>
    </message>
    <message>
        <source>failing attributes: %3</source>
        <translation>attributi falliti: %3</translation>
    </message>
    <message>
        <source>reallocated sectors: %1 (before: %2)</source>
        <translation>settori riallocati: %1 (prima: %2)</translation>
    </message>
    <message>
        <source>reallocated sectors: %1</source>
        <translation>settori riallocati: %1</translation>
    </message>
    <message>
        <source>pending sectors: %1 (before: %2)</source>
        <translation>settori in attesa: %1 (prima: %2)</translation>
    </message>
    <message>
        <source>pending sectors: %1</source>
        <translation>settori in attesa: %1</translation>
    </message>
    <message>
        <source>uncorrectable errors: %1 (before: %2)</source>
        <translation>errori non correggibili: %1 (prima: %2)</translation>
    </message>
    <message>
        <source>uncorrectable errors: %1</source>
        <translation>errori non correggibili: %1</translation>
    </message>
    <message>
        <source>media errors: %1 (before: %2)</source>
        <translation>errori del supporto: %1 (prima: %2)</translation>
    </message>
    <message>
        <source>media errors: %1</source>
        <translation>errori del supporto: %1</translation>
    </message>
    <message>
        <source>spare %1 %, threshold %2 %</source>
        <translation>riserva %1 %, soglia %2 %</translation>
    </message>
    <message>
        <source>wear %1 %</source>
        <translation>usura %1 %</translation>
    </message>
    <message>
        <source>Plan to replace this disk, and keep a backup.</source>
        <translation>Prevedere la sostituzione di questo disco e conservare un backup.</translation>
    </message>
    <message>
        <source>the self-test failed: %3</source>
        <translation>l&apos;autotest è fallito: %3</translation>
    </message>
    <message>
        <source>the disk does not answer</source>
        <translation>il disco non risponde</translation>
    </message>
    <message>
        <source>Check its cable. Back it up as soon as it answers.</source>
        <translation>Controllare il cavo. Fare il backup appena risponde.</translation>
    </message>
    <message>
        <source>the disk is missing</source>
        <translation>il disco è assente</translation>
    </message>
    <message>
        <source>Check its cable. If it comes back, back it up.</source>
        <translation>Controllare il cavo. Se ricompare, fare il backup.</translation>
    </message>
    <message>
        <source>the disk is back</source>
        <translation>il disco è tornato</translation>
    </message>
    <message>
        <source>the log cannot be written: %3</source>
        <translation>impossibile scrivere il registro: %3</translation>
    </message>
    <message>
        <source>Choose another file for it in Settings.</source>
        <translation>Scegliere un altro file nelle impostazioni.</translation>
    </message>
    <message>
        <source>the spare is used up</source>
        <translation>la riserva è esaurita</translation>
    </message>
    <message>
        <source>too hot or too cold</source>
        <translation>troppo caldo o troppo freddo</translation>
    </message>
    <message>
        <source>less reliable after errors of the medium</source>
        <translation>meno affidabile dopo errori del supporto</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>in sola lettura</translation>
    </message>
    <message>
        <source>the backup of its memory has failed</source>
        <translation>il backup della sua memoria è guasto</translation>
    </message>
    <message>
        <source>the persistent memory is read-only</source>
        <translation>la memoria persistente è in sola lettura</translation>
    </message>
</context>
<context>
    <name>QCheckUpdate</name>
    <message>
        <source>No update available.</source>
        <translation>Nessun aggiornamento disponibile.</translation>
    </message>
</context>
<context>
    <name>QDownloadApp</name>
    <message>
        <source>Downloading under progress...</source>
        <translation>Download in corso...</translation>
    </message>
    <message>
        <source>Time Elapsed: </source>
        <translation>Tempo trascorso: </translation>
    </message>
    <message>
        <source> sec </source>
        <translation> s </translation>
    </message>
    <message>
        <source> MB copied) </source>
        <translation> MB copiati) </translation>
    </message>
    <message>
        <source> MB of  </source>
        <translation> MB di  </translation>
    </message>
    <message>
        <source>Transfer Rate: </source>
        <translation>Velocità di trasferimento: </translation>
    </message>
    <message>
        <source> KB/sec </source>
        <translation> KB/s </translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Aggiornamento software</translation>
    </message>
    <message>
        <source>Update failed 

Update failed due to partial download.</source>
        <translation>Aggiornamento non riuscito 

L&apos;aggiornamento non è riuscito perché il download è incompleto.</translation>
    </message>
    <message>
        <source>The update could not be verified and was not started.</source>
        <translation>Non è stato possibile verificare l&apos;aggiornamento, che non è stato avviato.</translation>
    </message>
</context>
<context>
    <name>QGridView</name>
    <message>
        <source> to </source>
        <translation> a </translation>
    </message>
    <message>
        <source>Start Sector of current block: </source>
        <translation>Primo settore del blocco: </translation>
    </message>
    <message>
        <source>End Sector of current block: </source>
        <translation>Ultimo settore del blocco: </translation>
    </message>
    <message>
        <source>Current Block Size : </source>
        <translation>Dimensione del blocco: </translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>%1 cells, %2 with unreadable sectors</source>
        <translation>%1 celle, %2 con settori illeggibili</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Velmora Halvane already running. Cannot start more than one instance of the application.</source>
        <translation>Velmora Halvane è già in esecuzione. Non è possibile avviare più di un&apos;istanza dell&apos;applicazione.</translation>
    </message>
    <message>
        <source>Velmora Halvane cannot start: there is no folder for its temporary files that other users cannot change.</source>
        <translation>Impossibile avviare Velmora Halvane: non esiste una cartella per i file temporanei che gli altri utenti non possano modificare.</translation>
    </message>
</context>
<context>
    <name>QRoundProgressBar</name>
    <message>
        <source>Complete</source>
        <translation>Completato</translation>
    </message>
</context>
<context>
    <name>QShowUpdate</name>
    <message>
        <source>A new major release </source>
        <translation>Una nuova versione principale </translation>
    </message>
    <message>
        <source>A new minor update </source>
        <translation>Un nuovo aggiornamento secondario </translation>
    </message>
    <message>
        <source> is available. Click Update to proceed further.</source>
        <translation> è disponibile. Fare clic su Aggiorna per continuare.</translation>
    </message>
    <message>
        <source>Visit Update Page</source>
        <translation>Visita la pagina di aggiornamento</translation>
    </message>
</context>
<context>
    <name>QWaitClass</name>
    <message>
        <source>Initializing Velmora Halvane...</source>
        <translation>Inizializzazione di Velmora Halvane...</translation>
    </message>
</context>
<context>
    <name>SaveListButton</name>
    <message>
        <source>Save List</source>
        <translation>Salva elenco</translation>
    </message>
    <message>
        <source>The list could not be saved.</source>
        <translation>Impossibile salvare l'elenco.</translation>
    </message>
    <message>
        <source>Saves the bad sectors as a text or as a map file of GNU ddrescue</source>
        <translation>Salva i settori danneggiati come testo o come file map di GNU ddrescue</translation>
    </message>
</context>
<context>
    <name>ScanDisk</name>
    <message>
        <source> hours</source>
        <translation> ore</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> minuti</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> secondi</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>Tempo rimanente</translation>
    </message>
    <message>
        <source>Time Elapsed</source>
        <translation>Tempo trascorso</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Disk Scan</source>
        <translation>Scansione disco</translation>
    </message>
    <message>
        <source>Disk scan aborted.</source>
        <translation>Scansione del disco interrotta.</translation>
    </message>
    <message>
        <source>Disk scan aborted by user.</source>
        <translation>Scansione del disco interrotta dall&apos;utente.</translation>
    </message>
    <message>
        <source>Scan Completed</source>
        <translation>Scansione completata</translation>
    </message>
    <message>
        <source>Scan Completed.</source>
        <translation>Scansione completata.</translation>
    </message>
    <message>
        <source>Scan Failed</source>
        <translation>Scansione non riuscita</translation>
    </message>
    <message>
        <source>Scan Failed.</source>
        <translation>Scansione non riuscita.</translation>
    </message>
    <message>
        <source>The disk is no longer connected.</source>
        <translation>Il disco non è più collegato.</translation>
    </message>
    <message>
        <source>Sector %1 (LBA), byte offset %2</source>
        <translation>Settore %1 (LBA), offset in byte %2</translation>
    </message>
    <message>
        <source>Sectors %1 to %2 (LBA), byte offset %3</source>
        <translation>Settori da %1 a %2 (LBA), offset in byte %3</translation>
    </message>
    <message>
        <source>Disk:</source>
        <translation>Disco:</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>Numero di serie:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Data:</translation>
    </message>
    <message>
        <source>Scanned: the first %1 of %2 sectors</source>
        <translation>Analizzati: i primi %1 settori su %2</translation>
    </message>
    <message>
        <source>Result:</source>
        <translation>Risultato:</translation>
    </message>
    <message>
        <source>Bad sectors: %1</source>
        <translation>Settori danneggiati: %1</translation>
    </message>
</context>
<context>
    <name>ScanSwitchDialog</name>
    <message>
        <source>Scan Disk</source>
        <translation>Scansione disco</translation>
    </message>
    <message>
        <source>Scan results will be lost if you move away from this screen. </source>
        <translation>I risultati della scansione andranno persi se si lascia questa schermata. </translation>
    </message>
    <message>
        <source>Do you want to move away from this screen?</source>
        <translation>Lasciare questa schermata?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
</context>
<context>
    <name>SelfTestNotSupportedDialog</name>
    <message>
        <source>Drive Test</source>
        <translation>Test dell&apos;unità</translation>
    </message>
    <message>
        <source>Self-test not supported.</source>
        <translation>Autotest non supportato.</translation>
    </message>
    <message>
        <source>Selected disk doesn&apos;t support self test.</source>
        <translation>Il disco selezionato non supporta l&apos;autotest.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>SelfTestPanelForm</name>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Numero di serie</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Polling Time</source>
        <translation>Durata prevista</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>Tempo rimanente</translation>
    </message>
    <message>
        <source>Time Elapsed</source>
        <translation>Tempo trascorso</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Save log file</source>
        <translation>Salva file di registro</translation>
    </message>
    <message>
        <source>Your Software has all latest updates installed.</source>
        <translation>Il software ha già tutti gli ultimi aggiornamenti.</translation>
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
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
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
        <translation>Avviso di arresto</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>Hard Disk&apos;s temperature has reached the shutdown value.</source>
        <translation>La temperatura del disco rigido ha raggiunto il valore di arresto.</translation>
    </message>
    <message>
        <source>It is advisable to shutdown the system immediately.</source>
        <translation>Si consiglia di arrestare subito il sistema.</translation>
    </message>
    <message>
        <source>Shutdown</source>
        <translation>Arresta</translation>
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
        <translation>Nome attributo</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Min.</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Soglia</translation>
    </message>
    <message>
        <source>Raw Value</source>
        <translation>Val. grezzo</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Aggiornato</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fallito</translation>
    </message>
    <message>
        <source>Better</source>
        <translation>Migliore</translation>
    </message>
    <message>
        <source>Overall Status</source>
        <translation>Stato generale</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valori</translation>
    </message>
    <message>
        <source>AttName</source>
        <translation>AttName</translation>
    </message>
    <message>
        <source>PASSED</source>
        <translation>SUPERATO</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Grafico</translation>
    </message>
    <message>
        <source>FAIELD</source>
        <translation>FALLITO</translation>
    </message>
    <message>
        <source>ATA Disk</source>
        <translation>Disco ATA</translation>
    </message>
</context>
<context>
    <name>SmartWarningDialog</name>
    <message>
        <source>SMART Warning</source>
        <translation>Avviso SMART</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>Hard Disk&apos;s temperature exceed the threshold value.</source>
        <translation>La temperatura del disco rigido supera la soglia.</translation>
    </message>
    <message>
        <source>Your hard disk&apos;s temperature has exceeded threshold value. This may damage hard disk. It is advisable to shutdown the system immediately.</source>
        <translation>La temperatura del disco rigido ha superato la soglia. Il disco rigido potrebbe danneggiarsi. Si consiglia di arrestare subito il sistema.</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Non mostrare più</translation>
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
        <translation>Apri</translation>
    </message>
    <message>
        <source>Refresh now</source>
        <translation>Aggiorna ora</translation>
    </message>
    <message>
        <source>Pause alarms for an hour</source>
        <translation>Sospendi gli allarmi per un&apos;ora</translation>
    </message>
    <message>
        <source>Show lowest health</source>
        <translation>Mostra la salute più bassa</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
</context>
<context>
    <name>VolumeFrame</name>
    <message>
        <source>Partition</source>
        <translation>Partizione</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spazio</translation>
    </message>
</context>
<context>
    <name>m_pCloneDiskwgt</name>
    <message>
        <source>Disk Details</source>
        <translation>Dettagli del disco</translation>
    </message>
    <message>
        <source>Source Disk</source>
        <translation>Disco di origine</translation>
    </message>
    <message>
        <source>Target Disk</source>
        <translation>Disco di destinazione</translation>
    </message>
    <message>
        <source>Remaining Time</source>
        <translation>Tempo rimanente</translation>
    </message>
</context>
<context>
    <name>m_pCloseWgt</name>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Are you sure you want to exit?</source>
        <translation>Uscire dal programma?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
</context>
<context>
    <name>m_pDiskPartitionWgt</name>
    <message>
        <source>Disk Partition</source>
        <translation>Partizioni del disco</translation>
    </message>
    <message>
        <source>Partition Details</source>
        <translation>Dettagli delle partizioni</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Numero di serie</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacità</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>Tipo di interfaccia</translation>
    </message>
</context>
<context>
    <name>m_pDiskStatus</name>
    <message>
        <source>Disk Details</source>
        <translation>Dettagli del disco</translation>
    </message>
    <message>
        <source>Disk Number</source>
        <translation>Numero del disco</translation>
    </message>
    <message>
        <source>Model Number</source>
        <translation>Numero di modello</translation>
    </message>
    <message>
        <source>Firmware Revision</source>
        <translation>Revisione firmware</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>Tipo di interfaccia</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Numero di serie</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>Settori totali</translation>
    </message>
    <message>
        <source>Hard Disk Life</source>
        <translation>Vita del disco</translation>
    </message>
    <message>
        <source>Power-on Time</source>
        <translation>Tempo di accensione</translation>
    </message>
    <message>
        <source>Start/Stop Count</source>
        <translation>Avvii/arresti</translation>
    </message>
    <message>
        <source>Drive&apos;s verdict</source>
        <translation>Verdetto del disco</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Performance</source>
        <translation>Prestazioni</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Salute</translation>
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
        <translation>Numero di serie</translation>
    </message>
    <message>
        <source>SMART Status</source>
        <translation>Stato SMART</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Clona</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Salva report</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Schermata</translation>
    </message>
    <message>
        <source>View Velmora Halvane help document</source>
        <translation>Visualizza la guida di Velmora Halvane</translation>
    </message>
    <message>
        <source>More Tools</source>
        <translation>Altri strumenti</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Riduci a icona</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Recover Data</source>
        <translation>Recupera dati</translation>
    </message>
    <message>
        <source>Repair Video</source>
        <translation>Ripara video</translation>
    </message>
    <message>
        <source>Repair Photo</source>
        <translation>Ripara foto</translation>
    </message>
</context>
<context>
    <name>m_pScanDiskwgt</name>
    <message>
        <source>Scan Disk</source>
        <translation>Scansione disco</translation>
    </message>
    <message>
        <source>Disk Size</source>
        <translation>Dimensione disco</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>Settori totali</translation>
    </message>
    <message>
        <source>Block Size</source>
        <translation>Dimensione blocco</translation>
    </message>
    <message>
        <source>  Processed</source>
        <translation>  Elaborati</translation>
    </message>
    <message>
        <source>  Bad Sectors</source>
        <translation>  Settori danneggiati</translation>
    </message>
    <message>
        <source>  Processing</source>
        <translation>  In elaborazione</translation>
    </message>
    <message>
        <source>Short Self-test</source>
        <translation>Autotest breve</translation>
    </message>
    <message>
        <source>Extended Self-test</source>
        <translation>Autotest esteso</translation>
    </message>
    <message>
        <source>Perform a surface scan on the selected disk to identify if the disk has bad sectors.</source>
        <translation>Esegue una scansione della superficie del disco selezionato per verificare se contiene settori danneggiati.</translation>
    </message>
    <message>
        <source>Run this test to check the electrical and mechanical performance of a device along with the read/write operations on a portion of the disk. This test may take few minutes to complete.</source>
        <translation>Questo test verifica le prestazioni elettriche e meccaniche del dispositivo e le operazioni di lettura e scrittura su una parte del disco. Può richiedere alcuni minuti.</translation>
    </message>
    <message>
        <source>This test is same as a short self-test with a complete disk surface examination. This test may take up to few hours to complete.</source>
        <translation>Questo test equivale all&apos;autotest breve con un esame completo della superficie del disco. Può richiedere alcune ore.</translation>
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
        <translation>  Impostazioni</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Show status in tray</source>
        <translation>Mostra lo stato nell&apos;area di notifica</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Inglese</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Tedesco</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francese</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italiano</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spagnolo</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Olandese</translation>
    </message>
    <message>
        <source>Portuguese (Brazil)</source>
        <translation>Portoghese (Brasile)</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>Hindi</translation>
    </message>
    <message>
        <source>LOGS</source>
        <translation>REGISTRI</translation>
    </message>
    <message>
        <source>Save log file</source>
        <translation>Salva file di registro</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Max log size (KB)</source>
        <translation>Dimensione max. registro (KB)</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Show Temperature in</source>
        <translation>Mostra la temperatura in</translation>
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
        <translation>Attiva l&apos;allarme temperatura</translation>
    </message>
    <message>
        <source>Warning Temperature</source>
        <translation>Temperatura di avviso</translation>
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
        <translation>Temperatura di arresto</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Cerca aggiornamenti</translation>
    </message>
    <message>
        <source>View Velmora Halvane help document</source>
        <translation>Visualizza la guida di Velmora Halvane</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Lingue</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>m_pSmartWgt</name>
    <message>
        <source>SMART Status : </source>
        <translation>Stato SMART: </translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Numero di serie</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacità</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>Tipo di interfaccia</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Salva report</translation>
    </message>
    <message>
        <source>Smart Status</source>
        <translation>Stato SMART</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
</context>
</TS>
