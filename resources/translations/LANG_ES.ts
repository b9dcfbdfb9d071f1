<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Velmora Halvane</source>
        <translation>Acerca de Velmora Halvane</translation>
    </message>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>License Agreement</source>
        <translation>Contrato de licencia</translation>
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
        <translation>Versión </translation>
    </message>
</context>
<context>
    <name>AccessNotice</name>
    <message>
        <source>No disk can be opened</source>
        <translation>No se puede abrir ningún disco</translation>
    </message>
    <message>
        <source>Velmora Halvane needs the rights of an administrator to open disks. Without them nothing can be said of their health.</source>
        <translation>Velmora Halvane necesita derechos de administrador para abrir los discos. Sin esos derechos no se puede decir nada de la salud de los discos.</translation>
    </message>
    <message>
        <source>Close the program, right-click its icon and choose &quot;Run as administrator&quot;.</source>
        <translation>Cierre el programa, haga clic con el botón derecho en su icono y elija &quot;Ejecutar como administrador&quot;.</translation>
    </message>
    <message>
        <source>Close the program and start it as root. This command does it in a terminal:</source>
        <translation>Cierre el programa e inícielo como root. En un terminal, use este comando:</translation>
    </message>
</context>
<context>
    <name>AttributeCatalogue</name>
    <message>
        <source>Raw Read Error Rate</source>
        <translation>Tasa de error de lectura</translation>
    </message>
    <message>
        <source>Spin Up Time</source>
        <translation>Tiempo de arranque</translation>
    </message>
    <message>
        <source>Start Stop Count</source>
        <translation>Arranques y paradas</translation>
    </message>
    <message>
        <source>Reallocated Sector Count</source>
        <translation>Sectores reasignados</translation>
    </message>
    <message>
        <source>Seek Error Rate</source>
        <translation>Tasa de error de búsqueda</translation>
    </message>
    <message>
        <source>Power On Hours</source>
        <translation>Horas de encendido</translation>
    </message>
    <message>
        <source>Spin Retry Count</source>
        <translation>Reintentos de giro</translation>
    </message>
    <message>
        <source>Calibration Retry Count</source>
        <translation>Reintentos de calibración</translation>
    </message>
    <message>
        <source>Power Cycle Count</source>
        <translation>Ciclos de encendido</translation>
    </message>
    <message>
        <source>Power-Off Retract Count</source>
        <translation>Retracciones por apagado</translation>
    </message>
    <message>
        <source>Load Cycle Count</source>
        <translation>Ciclos de carga</translation>
    </message>
    <message>
        <source>Temperature Celsius</source>
        <translation>Temperatura (Celsius)</translation>
    </message>
    <message>
        <source>Reallocated Event Count</source>
        <translation>Eventos de reasignación</translation>
    </message>
    <message>
        <source>Current Pending Sector Count</source>
        <translation>Sectores pendientes</translation>
    </message>
    <message>
        <source>Offline Uncorrectable</source>
        <translation>Sectores incorregibles</translation>
    </message>
    <message>
        <source>UDMA CRC Error Count</source>
        <translation>Errores CRC UDMA</translation>
    </message>
    <message>
        <source>Multi Zone Error Rate</source>
        <translation>Tasa de error multizona</translation>
    </message>
    <message>
        <source>Available Reserved Space</source>
        <translation>Espacio reservado disponible</translation>
    </message>
    <message>
        <source>SSD Program Fail Count</source>
        <translation>Fallos de programación SSD</translation>
    </message>
    <message>
        <source>SSD Erase Fail Count</source>
        <translation>Fallos de borrado SSD</translation>
    </message>
    <message>
        <source>SSD Wear Leveling Count</source>
        <translation>Nivelación de desgaste SSD</translation>
    </message>
    <message>
        <source>Unexpected power loss count</source>
        <translation>Cortes de alimentación</translation>
    </message>
    <message>
        <source>Throughput Performance</source>
        <translation>Rendimiento de transferencia</translation>
    </message>
    <message>
        <source>Read Channel Margin</source>
        <translation>Margen del canal de lectura</translation>
    </message>
    <message>
        <source>Seek Time Performance</source>
        <translation>Rendimiento de búsqueda</translation>
    </message>
    <message>
        <source>Soft Read Error Rate</source>
        <translation>Tasa de error leve de lectura</translation>
    </message>
    <message>
        <source>Runtime Bad Block</source>
        <translation>Bloques defectuosos en uso</translation>
    </message>
    <message>
        <source>End-to-End Error </source>
        <translation>Errores de extremo a extremo </translation>
    </message>
    <message>
        <source>Reported Uncorrect</source>
        <translation>Errores no corregidos</translation>
    </message>
    <message>
        <source>Command Timeout</source>
        <translation>Comandos sin respuesta</translation>
    </message>
    <message>
        <source>High Fly Writes</source>
        <translation>Escrituras a gran altura</translation>
    </message>
    <message>
        <source>Airflow Temperature Cel</source>
        <translation>Temperatura del aire</translation>
    </message>
    <message>
        <source>G-Sense Error Rate</source>
        <translation>Tasa de error por golpes</translation>
    </message>
    <message>
        <source>Hardware ECC Recovered</source>
        <translation>ECC recuperados</translation>
    </message>
    <message>
        <source>Multi Zone Error Rate </source>
        <translation>Tasa de error multizona </translation>
    </message>
    <message>
        <source>Write Error Rate</source>
        <translation>Tasa de error de escritura</translation>
    </message>
    <message>
        <source>Head Flying Hours</source>
        <translation>Horas de vuelo de cabezales</translation>
    </message>
    <message>
        <source>Total LBAs Written</source>
        <translation>Total de LBA escritos</translation>
    </message>
    <message>
        <source>Total LBAs Read</source>
        <translation>Total de LBA leídos</translation>
    </message>
    <message>
        <source>Free Fall Sensor</source>
        <translation>Sensor de caída libre</translation>
    </message>
    <message>
        <source>Critical Warning</source>
        <translation>Advertencia crítica</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Available Spare</source>
        <translation>Reserva disponible</translation>
    </message>
    <message>
        <source>Available Spare Threshold</source>
        <translation>Umbral de reserva</translation>
    </message>
    <message>
        <source>Percentage Used</source>
        <translation>Porcentaje de desgaste</translation>
    </message>
    <message>
        <source>Data Units Read</source>
        <translation>Unidades de datos leídas</translation>
    </message>
    <message>
        <source>Data Units Written</source>
        <translation>Unidades de datos escritas</translation>
    </message>
    <message>
        <source>Host Read Commands</source>
        <translation>Comandos de lectura</translation>
    </message>
    <message>
        <source>Host Write Commands</source>
        <translation>Comandos de escritura</translation>
    </message>
    <message>
        <source>Controller Busy Time</source>
        <translation>Tiempo ocupado</translation>
    </message>
    <message>
        <source>Power Cyles</source>
        <translation>Ciclos de encendido</translation>
    </message>
    <message>
        <source>Unsafe Shutdowns</source>
        <translation>Apagados no seguros</translation>
    </message>
    <message>
        <source>Media and Data Integrity Errors</source>
        <translation>Errores de integridad</translation>
    </message>
    <message>
        <source>Error Information Log Entries</source>
        <translation>Entradas del registro de errores</translation>
    </message>
</context>
<context>
    <name>AttributeRows</name>
    <message>
        <source>FAILED</source>
        <translation>FALLO</translation>
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
        <translation>Buscando actualizaciones...</translation>
    </message>
</context>
<context>
    <name>CloneDisk</name>
    <message>
        <source>Not Available</source>
        <translation>No disponible</translation>
    </message>
    <message>
        <source>Disk Number 	: </source>
        <translation>Número de disco 	: </translation>
    </message>
    <message>
        <source>Model Number	: </source>
        <translation>Número de modelo	: </translation>
    </message>
    <message>
        <source>Serial: </source>
        <translation>Número de serie: </translation>
    </message>
    <message>
        <source>Firmware Revision : </source>
        <translation>Revisión de firmware : </translation>
    </message>
    <message>
        <source>Interface Type	   : </source>
        <translation>Tipo de interfaz	   : </translation>
    </message>
    <message>
        <source>Capacity	: </source>
        <translation>Capacidad	: </translation>
    </message>
    <message>
        <source>Total Sector	   : </source>
        <translation>Total de sectores	   : </translation>
    </message>
    <message>
        <source>Model Number : </source>
        <translation>Número de modelo : </translation>
    </message>
    <message>
        <source>Capacity           : </source>
        <translation>Capacidad           : </translation>
    </message>
    <message>
        <source>ATA Disk</source>
        <translation>Disco ATA</translation>
    </message>
    <message>
        <source> hours</source>
        <translation> horas</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> minutos</translation>
    </message>
    <message>
        <source>Source and destination disks are same.</source>
        <translation>Los discos de origen y destino son el mismo.</translation>
    </message>
    <message>
        <source>Destination disk size is smaller than source disk.</source>
        <translation>El disco de destino es más pequeño que el de origen.</translation>
    </message>
    <message>
        <source>Clone Disk</source>
        <translation>Clonar disco</translation>
    </message>
    <message>
        <source>Select different destination disk.</source>
        <translation>Seleccione otro disco de destino.</translation>
    </message>
    <message>
        <source>Cloning Failed</source>
        <translation>Error al clonar</translation>
    </message>
    <message>
        <source>Unable to write on destination disk.</source>
        <translation>No se puede escribir en el disco de destino.</translation>
    </message>
    <message>
        <source>Select other destination disk.</source>
        <translation>Seleccione otro disco de destino.</translation>
    </message>
    <message>
        <source>Abort Clone</source>
        <translation>Anular clonación</translation>
    </message>
    <message>
        <source>Cloning Aborted.</source>
        <translation>Clonación anulada.</translation>
    </message>
    <message>
        <source>Disk Cloning complete.</source>
        <translation>Clonación del disco completada.</translation>
    </message>
    <message>
        <source>Disk cloning process completed successfully.</source>
        <translation>La clonación del disco ha finalizado correctamente.</translation>
    </message>
    <message>
        <source>Cloning aborted.</source>
        <translation>Clonación anulada.</translation>
    </message>
    <message>
        <source>Cloning process aborted by the user.</source>
        <translation>El usuario ha anulado la clonación.</translation>
    </message>
    <message>
        <source>Select Destination</source>
        <translation>Seleccione el destino</translation>
    </message>
    <message>
        <source>The disks are not there any more.</source>
        <translation>Los discos ya no están presentes.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>No hay memoria suficiente.</translation>
    </message>
    <message>
        <source>The source disk cannot be opened.</source>
        <translation>No se puede abrir el disco de origen.</translation>
    </message>
    <message>
        <source>The destination disk cannot be opened.</source>
        <translation>No se puede abrir el disco de destino.</translation>
    </message>
    <message>
        <source>The source disk is not the one that was chosen.</source>
        <translation>El disco de origen no es el que se eligió.</translation>
    </message>
    <message>
        <source>The destination disk is not the one that was chosen.</source>
        <translation>El disco de destino no es el que se eligió.</translation>
    </message>
    <message>
        <source>The source disk has no sectors.</source>
        <translation>El disco de origen no tiene sectores.</translation>
    </message>
    <message>
        <source>The system runs from the destination disk.</source>
        <translation>El sistema se ejecuta desde el disco de destino.</translation>
    </message>
    <message>
        <source>A volume of the destination disk is in use.</source>
        <translation>Un volumen del disco de destino está en uso.</translation>
    </message>
    <message>
        <source>The destination disk is in use.</source>
        <translation>El disco de destino está en uso.</translation>
    </message>
    <message>
        <source>It cannot be found out whether the destination disk is in use.</source>
        <translation>No se puede averiguar si el disco de destino está en uso.</translation>
    </message>
    <message>
        <source>The destination disk cannot be written. It may be in use.</source>
        <translation>No se puede escribir en el disco de destino. Puede que esté en uso.</translation>
    </message>
    <message>
        <source>The source disk does not answer any more.</source>
        <translation>El disco de origen ya no responde.</translation>
    </message>
    <message>
        <source>The destination disk does not answer any more.</source>
        <translation>El disco de destino ya no responde.</translation>
    </message>
    <message>
        <source>%1 sectors could not be read and were filled with zeros. %2 sectors could not be written.</source>
        <translation>No se pudieron leer %1 sectores y se rellenaron con ceros. No se pudieron escribir %2 sectores.</translation>
    </message>
    <message>
        <source>The destination disk did not confirm that all data is stored.</source>
        <translation>El disco de destino no confirmó que todos los datos estén guardados.</translation>
    </message>
    <message>
        <source>Disk Cloning complete with errors.</source>
        <translation>Clonación del disco completada con errores.</translation>
    </message>
    <message>
        <source>Nothing was written on any disk.</source>
        <translation>No se escribió nada en ningún disco.</translation>
    </message>
    <message>
        <source>The destination disk holds no complete copy.</source>
        <translation>El disco de destino no contiene una copia completa.</translation>
    </message>
    <message>
        <source>Save List</source>
        <translation>Guardar lista</translation>
    </message>
    <message>
        <source>The list could not be saved.</source>
        <translation>No se pudo guardar la lista.</translation>
    </message>
    <message>
        <source>%1 % of the disk copied</source>
        <translation>%1 % del disco copiado</translation>
    </message>
</context>
<context>
    <name>CloningWarningDialog</name>
    <message>
        <source>Clone Disk</source>
        <translation>Clonar disco</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>This action will create a clone of the source drive on the destination drive. Make sure that source and destination disk selection is correct since this operation is irreversible.</source>
        <translation>Esta acción creará un clon de la unidad de origen en la unidad de destino. Asegúrese de que los discos de origen y destino seleccionados son correctos, ya que esta operación es irreversible.</translation>
    </message>
    <message>
        <source>Existing data on the destination disk will be lost.</source>
        <translation>Se perderán los datos que haya en el disco de destino.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>Companion</name>
    <message>
        <source>%1 · health %2 %</source>
        <translation>%1 · salud %2 %</translation>
    </message>
    <message>
        <source>Asleep</source>
        <translation>En reposo</translation>
    </message>
    <message>
        <source>Asleep · last %1 at %2</source>
        <translation>En reposo · %1 a las %2</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Muy caliente</translation>
    </message>
    <message>
        <source>Warm since %1</source>
        <translation>Caliente desde %1</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Caliente</translation>
    </message>
    <message>
        <source>Unknown disk</source>
        <translation>Disco desconocido</translation>
    </message>
    <message>
        <source>Disk %1</source>
        <translation>Disco %1</translation>
    </message>
    <message>
        <source>Missing: check its cable</source>
        <translation>Falta: compruebe el cable</translation>
    </message>
    <message>
        <source>Failing: back up this disk now</source>
        <translation>Fallando: haga ya una copia</translation>
    </message>
    <message>
        <source>Does not answer</source>
        <translation>No responde</translation>
    </message>
    <message>
        <source>Tells nothing of its health</source>
        <translation>No informa de su salud</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>En orden</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Requiere atención</translation>
    </message>
    <message>
        <source>No disk is watched.</source>
        <translation>No se vigila ningún disco.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>ahora mismo</translation>
    </message>
    <message>
        <source>1 minute ago</source>
        <translation>hace 1 minuto</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>hace %1 minutos</translation>
    </message>
</context>
<context>
    <name>ConfarmetionDialog</name>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
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
        <translation>Clonar disco</translation>
    </message>
    <message>
        <source>Select target disk.</source>
        <translation>Seleccione el disco de destino.</translation>
    </message>
    <message>
        <source>Select target disk to start cloning process.</source>
        <translation>Seleccione el disco de destino para iniciar la clonación.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
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
        <translation>No admitido</translation>
    </message>
    <message>
        <source>Failed: back up your data</source>
        <translation>Fallo: copie sus datos</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Superado</translation>
    </message>
    <message>
        <source>Not told</source>
        <translation>No indicado</translation>
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
        <translation>Actualización de software</translation>
    </message>
    <message>
        <source>Downloading Files</source>
        <translation>Descargando archivos</translation>
    </message>
</context>
<context>
    <name>Flyout</name>
    <message>
        <source>No disk is watched.</source>
        <translation>No se vigila ningún disco.</translation>
    </message>
    <message>
        <source>Alarms on again</source>
        <translation>Reactivar las alarmas</translation>
    </message>
    <message>
        <source>Pause alarms</source>
        <translation>Pausar las alarmas</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
</context>
<context>
    <name>FlyoutRow</name>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Limits…</source>
        <translation>Límites…</translation>
    </message>
    <message>
        <source>Mark as seen</source>
        <translation>Marcar como visto</translation>
    </message>
</context>
<context>
    <name>InfoDialog</name>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save List</source>
        <translation>Guardar lista</translation>
    </message>
</context>
<context>
    <name>LimitsDialog</name>
    <message>
        <source>Limits of this disk</source>
        <translation>Límites de este disco</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Limits of its own</source>
        <translation>Límites propios</translation>
    </message>
    <message>
        <source>Warning Temperature</source>
        <translation>Temperatura de aviso</translation>
    </message>
    <message>
        <source>Shutdown Temperature</source>
        <translation>Temperatura de apagado</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Not Available</source>
        <translation>No disponible</translation>
    </message>
    <message>
        <source>Disk Drive </source>
        <translation>Disco </translation>
    </message>
    <message>
        <source>English</source>
        <translation>Inglés</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Alemán</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francés</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italiano</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Español</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japonés</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chino</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Coreano</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Neerlandés</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>Portugués (Brasil)</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>Hindi</translation>
    </message>
    <message>
        <source>   Disk Status</source>
        <translation>   Estado del disco</translation>
    </message>
    <message>
        <source>View the health status of your hard disk</source>
        <translation>Muestra el estado de salud del disco duro</translation>
    </message>
    <message>
        <source>   SMART Status</source>
        <translation>   Estado SMART</translation>
    </message>
    <message>
        <source>Detailed SMART status of the hard disk</source>
        <translation>Estado SMART detallado del disco duro</translation>
    </message>
    <message>
        <source>   Disk Partition</source>
        <translation>   Particiones</translation>
    </message>
    <message>
        <source>View description of partitions in your hard disk</source>
        <translation>Muestra la descripción de las particiones del disco duro</translation>
    </message>
    <message>
        <source>   Scan Disk</source>
        <translation>   Analizar disco</translation>
    </message>
    <message>
        <source>Scan your hard disk for bad sectors</source>
        <translation>Busca sectores defectuosos en el disco duro</translation>
    </message>
    <message>
        <source>   Clone Disk</source>
        <translation>   Clonar disco</translation>
    </message>
    <message>
        <source>Clone hard disk to avoid impending disk issues</source>
        <translation>Clone el disco duro para evitar problemas inminentes</translation>
    </message>
    <message>
        <source>Extended Self-test</source>
        <translation>Autoprueba extendida</translation>
    </message>
    <message>
        <source>Short Self-test</source>
        <translation>Autoprueba corta</translation>
    </message>
    <message>
        <source>Aborted by User</source>
        <translation>Anulada por el usuario</translation>
    </message>
    <message>
        <source>Successfully Completed</source>
        <translation>Completada correctamente</translation>
    </message>
    <message>
        <source>Failed by Read Element</source>
        <translation>Error del elemento de lectura</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>No disponible</translation>
    </message>
    <message>
        <source> days</source>
        <translation> días</translation>
    </message>
    <message>
        <source> hours</source>
        <translation> horas</translation>
    </message>
    <message>
        <source>More than 1000</source>
        <translation>Más de 1000</translation>
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
        <translation>Buena</translation>
    </message>
    <message>
        <source>Bad</source>
        <translation>Mala</translation>
    </message>
    <message>
        <source>Not Supported</source>
        <translation>No admitido</translation>
    </message>
    <message>
        <source>Supported</source>
        <translation>Admitido</translation>
    </message>
    <message>
        <source>NA</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Disk Information:</source>
        <translation>Información del disco:</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Details:</source>
        <translation>Detalles S.M.A.R.T.:</translation>
    </message>
    <message>
        <source>Model Number:</source>
        <translation>Número de modelo:</translation>
    </message>
    <message>
        <source>Serial Number:</source>
        <translation>Número de serie:</translation>
    </message>
    <message>
        <source>Firmware Version:</source>
        <translation>Versión de firmware:</translation>
    </message>
    <message>
        <source>Capacity:</source>
        <translation>Capacidad:</translation>
    </message>
    <message>
        <source>Sector Size:</source>
        <translation>Tamaño de sector:</translation>
    </message>
    <message>
        <source>Local  Time:</source>
        <translation>Hora local:</translation>
    </message>
    <message>
        <source>Maximum Data Transfer Size:</source>
        <translation>Tamaño máximo de transferencia:</translation>
    </message>
    <message>
        <source>SMART Status:</source>
        <translation>Estado SMART:</translation>
    </message>
    <message>
        <source>Current Temperature:</source>
        <translation>Temperatura actual:</translation>
    </message>
    <message>
        <source>Performance:</source>
        <translation>Rendimiento:</translation>
    </message>
    <message>
        <source>Health:</source>
        <translation>Salud:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Attribute Name</source>
        <translation>Nombre del atributo</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valores</translation>
    </message>
    <message>
        <source>Self Test Details:</source>
        <translation>Detalles de las autopruebas:</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Details</source>
        <translation>Detalles S.M.A.R.T.</translation>
    </message>
    <message>
        <source>Make:</source>
        <translation>Fabricante:</translation>
    </message>
    <message>
        <source>Rotation Rate:</source>
        <translation>Velocidad de rotación:</translation>
    </message>
    <message>
        <source>ATA Version:</source>
        <translation>Versión ATA:</translation>
    </message>
    <message>
        <source>SATA Version:</source>
        <translation>Versión SATA:</translation>
    </message>
    <message>
        <source>Short Self-test:</source>
        <translation>Autoprueba corta:</translation>
    </message>
    <message>
        <source>Estimated Completion Time:</source>
        <translation>Duración estimada:</translation>
    </message>
    <message>
        <source>Extended Self-test:</source>
        <translation>Autoprueba extendida:</translation>
    </message>
    <message>
        <source>Last Run Self-test:</source>
        <translation>Última autoprueba ejecutada:</translation>
    </message>
    <message>
        <source>Last Self-Test Result:</source>
        <translation>Resultado de la última autoprueba:</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Peor</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Umbral</translation>
    </message>
    <message>
        <source>Raw Value</source>
        <translation>Valor bruto</translation>
    </message>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Report</source>
        <translation>Informe S.M.A.R.T.</translation>
    </message>
    <message>
        <source>The information contained in this report has been generated by the Velmora Halvane profiling process.</source>
        <translation>La información de este informe la ha generado el proceso de análisis de Velmora Halvane.</translation>
    </message>
    <message>
        <source>Velmora Halvane is a product of Korvane.</source>
        <translation>Velmora Halvane es un producto de Korvane.</translation>
    </message>
    <message>
        <source>Velmora Halvane is a product of Velmora.</source>
        <translation>Velmora Halvane es un producto de Velmora.</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fallo</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Superado</translation>
    </message>
    <message>
        <source>Source disk:     </source>
        <translation>Disco de origen:     </translation>
    </message>
    <message>
        <source>Destination disk:    </source>
        <translation>Disco de destino:    </translation>
    </message>
    <message>
        <source>Clone Disk</source>
        <translation>Clonar disco</translation>
    </message>
    <message>
        <source>Clone Running.</source>
        <translation>Clonación en curso.</translation>
    </message>
    <message>
        <source>Cloning process running.</source>
        <translation>Hay una clonación en curso.</translation>
    </message>
    <message>
        <source>Please halt the clone process to exit.</source>
        <translation>Detenga la clonación antes de salir.</translation>
    </message>
    <message>
        <source>Scan Disk</source>
        <translation>Analizar disco</translation>
    </message>
    <message>
        <source>Scaning Running.</source>
        <translation>Análisis en curso.</translation>
    </message>
    <message>
        <source>Disk scan running.</source>
        <translation>Se está analizando el disco.</translation>
    </message>
    <message>
        <source>Please halt the scan process to exit.</source>
        <translation>Detenga el análisis antes de salir.</translation>
    </message>
    <message>
        <source>SMART Status</source>
        <translation>Estado SMART</translation>
    </message>
    <message>
        <source>Please wait. Application Refreshing...</source>
        <translation>Espere. Actualizando la aplicación...</translation>
    </message>
    <message>
        <source>Stop Clone</source>
        <translation>Detener clonación</translation>
    </message>
    <message>
        <source>Cloning can not be resumed from the current stage.</source>
        <translation>La clonación no podrá reanudarse desde el punto actual.</translation>
    </message>
    <message>
        <source>Do you wish to abort the cloning?</source>
        <translation>¿Desea anular la clonación?</translation>
    </message>
    <message>
        <source>Stop Scan</source>
        <translation>Detener análisis</translation>
    </message>
    <message>
        <source>Scan can not be resumed from the current stage.</source>
        <translation>El análisis no podrá reanudarse desde el punto actual.</translation>
    </message>
    <message>
        <source>Do you wish to abort the scan?</source>
        <translation>¿Desea anular el análisis?</translation>
    </message>
    <message>
        <source>(BitLocker)</source>
        <translation>(BitLocker)</translation>
    </message>
    <message>
        <source>No Partition Found</source>
        <translation>No se encontró ninguna partición</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Guardar archivo</translation>
    </message>
    <message>
        <source>Self-test can not be resumed from the current stage.</source>
        <translation>La autoprueba no podrá reanudarse desde el punto actual.</translation>
    </message>
    <message>
        <source>Do you wish to abort the Self-test?</source>
        <translation>¿Desea anular la autoprueba?</translation>
    </message>
    <message>
        <source>Please wait. Getting SMART information...</source>
        <translation>Espere. Obteniendo la información SMART...</translation>
    </message>
    <message>
        <source>Graph : </source>
        <translation>Gráfico: </translation>
    </message>
    <message>
        <source>Running, no problems found</source>
        <translation>En curso, sin problemas detectados</translation>
    </message>
    <message>
        <source>Test failed by Read Element</source>
        <translation>Prueba fallida: elemento de lectura</translation>
    </message>
    <message>
        <source>Test Interrupted by the Host</source>
        <translation>Prueba interrumpida por el equipo</translation>
    </message>
    <message>
        <source>Test ended by Fatal or Unknown Error</source>
        <translation>Prueba terminada: error grave o desconocido</translation>
    </message>
    <message>
        <source>Test failed by Unknown Element</source>
        <translation>Prueba fallida: elemento desconocido</translation>
    </message>
    <message>
        <source>Test failed by Electrical Element</source>
        <translation>Prueba fallida: elemento eléctrico</translation>
    </message>
    <message>
        <source>Test failed by Servo Element</source>
        <translation>Prueba fallida: servomecanismo</translation>
    </message>
    <message>
        <source>Test failed, Handling Damage suspected</source>
        <translation>Prueba fallida: posible daño por golpe</translation>
    </message>
    <message>
        <source>Test ended with Unknown Status</source>
        <translation>Prueba terminada: estado desconocido</translation>
    </message>
    <message>
        <source>No Status from the Drive</source>
        <translation>El disco no indica su estado</translation>
    </message>
    <message>
        <source>Test Aborted by User</source>
        <translation>Prueba anulada por el usuario</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> minutos</translation>
    </message>
    <message>
        <source>Healthy</source>
        <translation>En buen estado</translation>
    </message>
    <message>
        <source>Not Healthy</source>
        <translation>En mal estado</translation>
    </message>
    <message>
        <source>% Free</source>
        <translation>% libre</translation>
    </message>
    <message>
        <source> Free of </source>
        <translation> libres de </translation>
    </message>
    <message>
        <source> Available</source>
        <translation> disponibles</translation>
    </message>
    <message>
        <source>The self-test has ended.</source>
        <translation>La autoprueba ha terminado.</translation>
    </message>
    <message>
        <source>%1 volumes: %2</source>
        <translation>%1 volúmenes: %2</translation>
    </message>
    <message>
        <source>From %1 to %2: lowest value %3, highest %4, latest %5</source>
        <translation>Del %1 al %2: valor mínimo %3, máximo %4, último %5</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Regular</translation>
    </message>
</context>
<context>
    <name>Monitor</name>
    <message>
        <source>Back up this disk now.</source>
        <translation>Haga ya una copia de seguridad de este disco.</translation>
    </message>
    <message>
        <source>temperature %1, limit %2</source>
        <translation>temperatura %1, límite %2</translation>
    </message>
    <message>
        <source>See to its cooling.</source>
        <translation>Revise su refrigeración.</translation>
    </message>
    <message>
        <source>temperature %1, shutdown limit %2</source>
        <translation>temperatura %1, límite de apagado %2</translation>
    </message>
    <message>
        <source>It is advisable to shut down the system now.</source>
        <translation>Es aconsejable apagar el sistema ahora.</translation>
    </message>
    <message>
        <source>the drive reports that it is failing: %3</source>
        <translation>el disco avisa de que está fallando: %3</translation>
    </message>
    <message>
        <source>the drive reports that it is failing</source>
        <translation>el disco avisa de que está fallando</translation>
    </message>
    <message>
        <source>critical warning: %3</source>
        <translation>advertencia crítica: %3</translation>
    </message>
    <message>
        <source>failing attributes: %3</source>
        <translation>atributos con fallo: %3</translation>
    </message>
    <message>
        <source>reallocated sectors: %1 (before: %2)</source>
        <translation>sectores reasignados: %1 (antes: %2)</translation>
    </message>
    <message>
        <source>reallocated sectors: %1</source>
        <translation>sectores reasignados: %1</translation>
    </message>
    <message>
        <source>pending sectors: %1 (before: %2)</source>
        <translation>sectores pendientes: %1 (antes: %2)</translation>
    </message>
    <message>
        <source>pending sectors: %1</source>
        <translation>sectores pendientes: %1</translation>
    </message>
    <message>
        <source>uncorrectable errors: %1 (before: %2)</source>
        <translation>errores incorregibles: %1 (antes: %2)</translation>
    </message>
    <message>
        <source>uncorrectable errors: %1</source>
        <translation>errores incorregibles: %1</translation>
    </message>
    <message>
        <source>media errors: %1 (before: %2)</source>
        <translation>errores del medio: %1 (antes: %2)</translation>
    </message>
    <message>
        <source>media errors: %1</source>
        <translation>errores del medio: %1</translation>
    </message>
    <message>
        <source>spare %1 %, threshold %2 %</source>
        <translation>reserva %1 %, umbral %2 %</translation>
    </message>
    <message>
        <source>wear %1 %</source>
        <translation>desgaste %1 %</translation>
    </message>
    <message>
        <source>Plan to replace this disk, and keep a backup.</source>
        <translation>Prevea sustituir este disco y conserve una copia de seguridad.</translation>
    </message>
    <message>
        <source>the self-test failed: %3</source>
        <translation>la autoprueba ha fallado: %3</translation>
    </message>
    <message>
        <source>the disk does not answer</source>
        <translation>el disco no responde</translation>
    </message>
    <message>
        <source>Check its cable. Back it up as soon as it answers.</source>
        <translation>Compruebe el cable. Haga una copia de seguridad en cuanto responda.</translation>
    </message>
    <message>
        <source>the disk is missing</source>
        <translation>falta el disco</translation>
    </message>
    <message>
        <source>Check its cable. If it comes back, back it up.</source>
        <translation>Compruebe el cable. Si vuelve, haga una copia de seguridad.</translation>
    </message>
    <message>
        <source>the disk is back</source>
        <translation>el disco ha vuelto</translation>
    </message>
    <message>
        <source>the log cannot be written: %3</source>
        <translation>no se puede escribir el registro: %3</translation>
    </message>
    <message>
        <source>Choose another file for it in Settings.</source>
        <translation>Elija otro archivo en Configuración.</translation>
    </message>
    <message>
        <source>the spare is used up</source>
        <translation>la reserva está agotada</translation>
    </message>
    <message>
        <source>too hot or too cold</source>
        <translation>demasiado caliente o demasiado frío</translation>
    </message>
    <message>
        <source>less reliable after errors of the medium</source>
        <translation>menos fiable tras errores del medio</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>de solo lectura</translation>
    </message>
    <message>
        <source>the backup of its memory has failed</source>
        <translation>ha fallado el respaldo de su memoria</translation>
    </message>
    <message>
        <source>the persistent memory is read-only</source>
        <translation>la memoria persistente es de solo lectura</translation>
    </message>
</context>
<context>
    <name>QCheckUpdate</name>
    <message>
        <source>No update available.</source>
        <translation>No hay actualizaciones disponibles.</translation>
    </message>
</context>
<context>
    <name>QDownloadApp</name>
    <message>
        <source>Downloading under progress...</source>
        <translation>Descarga en curso...</translation>
    </message>
    <message>
        <source>Time Elapsed: </source>
        <translation>Tiempo transcurrido: </translation>
    </message>
    <message>
        <source> sec </source>
        <translation> s </translation>
    </message>
    <message>
        <source> MB copied) </source>
        <translation> MB copiados) </translation>
    </message>
    <message>
        <source> MB of  </source>
        <translation> MB de  </translation>
    </message>
    <message>
        <source>Transfer Rate: </source>
        <translation>Velocidad de transferencia: </translation>
    </message>
    <message>
        <source> KB/sec </source>
        <translation> KB/s </translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Actualización de software</translation>
    </message>
    <message>
        <source>Update failed 

Update failed due to partial download.</source>
        <translation>Error de actualización 

La actualización falló porque la descarga quedó incompleta.</translation>
    </message>
    <message>
        <source>The update could not be verified and was not started.</source>
        <translation>No se pudo verificar la actualización y no se inició.</translation>
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
        <translation>Primer sector del bloque: </translation>
    </message>
    <message>
        <source>End Sector of current block: </source>
        <translation>Último sector del bloque: </translation>
    </message>
    <message>
        <source>Current Block Size : </source>
        <translation>Tamaño del bloque: </translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>%1 cells, %2 with unreadable sectors</source>
        <translation>%1 celdas, %2 con sectores ilegibles</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Velmora Halvane already running. Cannot start more than one instance of the application.</source>
        <translation>Velmora Halvane ya se está ejecutando. No se puede iniciar más de una instancia de la aplicación.</translation>
    </message>
    <message>
        <source>Velmora Halvane cannot start: there is no folder for its temporary files that other users cannot change.</source>
        <translation>No se puede iniciar Velmora Halvane: no hay ninguna carpeta para sus archivos temporales que otros usuarios no puedan modificar.</translation>
    </message>
</context>
<context>
    <name>QRoundProgressBar</name>
    <message>
        <source>Complete</source>
        <translation>Completado</translation>
    </message>
</context>
<context>
    <name>QShowUpdate</name>
    <message>
        <source>A new major release </source>
        <translation>Una nueva versión principal </translation>
    </message>
    <message>
        <source>A new minor update </source>
        <translation>Una nueva actualización menor </translation>
    </message>
    <message>
        <source> is available. Click Update to proceed further.</source>
        <translation> está disponible. Haga clic en Actualizar para continuar.</translation>
    </message>
    <message>
        <source>Visit Update Page</source>
        <translation>Visitar la página de actualización</translation>
    </message>
</context>
<context>
    <name>QWaitClass</name>
    <message>
        <source>Initializing Velmora Halvane...</source>
        <translation>Iniciando Velmora Halvane...</translation>
    </message>
</context>
<context>
    <name>SaveListButton</name>
    <message>
        <source>Save List</source>
        <translation>Guardar lista</translation>
    </message>
    <message>
        <source>The list could not be saved.</source>
        <translation>No se pudo guardar la lista.</translation>
    </message>
    <message>
        <source>Saves the bad sectors as a text or as a map file of GNU ddrescue</source>
        <translation>Guarda los sectores defectuosos como texto o como archivo map de GNU ddrescue</translation>
    </message>
</context>
<context>
    <name>ScanDisk</name>
    <message>
        <source> hours</source>
        <translation> horas</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> minutos</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> segundos</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>Tiempo restante</translation>
    </message>
    <message>
        <source>Time Elapsed</source>
        <translation>Tiempo transcurrido</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Disk Scan</source>
        <translation>Análisis del disco</translation>
    </message>
    <message>
        <source>Disk scan aborted.</source>
        <translation>Análisis del disco anulado.</translation>
    </message>
    <message>
        <source>Disk scan aborted by user.</source>
        <translation>El usuario ha anulado el análisis del disco.</translation>
    </message>
    <message>
        <source>Scan Completed</source>
        <translation>Análisis completado</translation>
    </message>
    <message>
        <source>Scan Completed.</source>
        <translation>Análisis completado.</translation>
    </message>
    <message>
        <source>Scan Failed</source>
        <translation>Análisis fallido</translation>
    </message>
    <message>
        <source>Scan Failed.</source>
        <translation>El análisis ha fallado.</translation>
    </message>
    <message>
        <source>The disk is no longer connected.</source>
        <translation>El disco ya no está conectado.</translation>
    </message>
    <message>
        <source>Sector %1 (LBA), byte offset %2</source>
        <translation>Sector %1 (LBA), desplazamiento en bytes %2</translation>
    </message>
    <message>
        <source>Sectors %1 to %2 (LBA), byte offset %3</source>
        <translation>Sectores %1 a %2 (LBA), desplazamiento en bytes %3</translation>
    </message>
    <message>
        <source>Disk:</source>
        <translation>Disco:</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>Número de serie:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Fecha:</translation>
    </message>
    <message>
        <source>Scanned: the first %1 of %2 sectors</source>
        <translation>Analizados: los primeros %1 de %2 sectores</translation>
    </message>
    <message>
        <source>Result:</source>
        <translation>Resultado:</translation>
    </message>
    <message>
        <source>Bad sectors: %1</source>
        <translation>Sectores defectuosos: %1</translation>
    </message>
</context>
<context>
    <name>ScanSwitchDialog</name>
    <message>
        <source>Scan Disk</source>
        <translation>Analizar disco</translation>
    </message>
    <message>
        <source>Scan results will be lost if you move away from this screen. </source>
        <translation>Los resultados del análisis se perderán si sale de esta pantalla. </translation>
    </message>
    <message>
        <source>Do you want to move away from this screen?</source>
        <translation>¿Desea salir de esta pantalla?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
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
        <translation>Prueba de la unidad</translation>
    </message>
    <message>
        <source>Self-test not supported.</source>
        <translation>Autoprueba no admitida.</translation>
    </message>
    <message>
        <source>Selected disk doesn&apos;t support self test.</source>
        <translation>El disco seleccionado no admite la autoprueba.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>SelfTestPanelForm</name>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Polling Time</source>
        <translation>Duración prevista</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>Tiempo restante</translation>
    </message>
    <message>
        <source>Time Elapsed</source>
        <translation>Tiempo transcurrido</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Save log file</source>
        <translation>Guardar archivo de registro</translation>
    </message>
    <message>
        <source>Your Software has all latest updates installed.</source>
        <translation>El software tiene instaladas las últimas actualizaciones.</translation>
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
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
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
        <translation>Advertencia de apagado</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Hard Disk&apos;s temperature has reached the shutdown value.</source>
        <translation>La temperatura del disco duro ha alcanzado el valor de apagado.</translation>
    </message>
    <message>
        <source>It is advisable to shutdown the system immediately.</source>
        <translation>Se recomienda apagar el sistema de inmediato.</translation>
    </message>
    <message>
        <source>Shutdown</source>
        <translation>Apagar</translation>
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
        <translation>Nombre del atributo</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Peor</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Umbral</translation>
    </message>
    <message>
        <source>Raw Value</source>
        <translation>Valor bruto</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Actualizado</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fallo</translation>
    </message>
    <message>
        <source>Better</source>
        <translation>Mejor</translation>
    </message>
    <message>
        <source>Overall Status</source>
        <translation>Estado general</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valores</translation>
    </message>
    <message>
        <source>AttName</source>
        <translation>AttName</translation>
    </message>
    <message>
        <source>PASSED</source>
        <translation>SUPERADO</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Gráfico</translation>
    </message>
    <message>
        <source>FAIELD</source>
        <translation>FALLO</translation>
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
        <translation>Advertencia SMART</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Hard Disk&apos;s temperature exceed the threshold value.</source>
        <translation>La temperatura del disco duro supera el umbral.</translation>
    </message>
    <message>
        <source>Your hard disk&apos;s temperature has exceeded threshold value. This may damage hard disk. It is advisable to shutdown the system immediately.</source>
        <translation>La temperatura del disco duro ha superado el umbral. Esto puede dañar el disco duro. Se recomienda apagar el sistema de inmediato.</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>No volver a mostrar</translation>
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
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Refresh now</source>
        <translation>Actualizar ahora</translation>
    </message>
    <message>
        <source>Pause alarms for an hour</source>
        <translation>Pausar las alarmas una hora</translation>
    </message>
    <message>
        <source>Show lowest health</source>
        <translation>Mostrar la salud más baja</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>VolumeFrame</name>
    <message>
        <source>Partition</source>
        <translation>Partición</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
</context>
<context>
    <name>m_pCloneDiskwgt</name>
    <message>
        <source>Disk Details</source>
        <translation>Detalles del disco</translation>
    </message>
    <message>
        <source>Source Disk</source>
        <translation>Disco de origen</translation>
    </message>
    <message>
        <source>Target Disk</source>
        <translation>Disco de destino</translation>
    </message>
    <message>
        <source>Remaining Time</source>
        <translation>Tiempo restante</translation>
    </message>
</context>
<context>
    <name>m_pCloseWgt</name>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Are you sure you want to exit?</source>
        <translation>¿Seguro que desea salir?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
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
        <translation>Particiones del disco</translation>
    </message>
    <message>
        <source>Partition Details</source>
        <translation>Detalles de las particiones</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacidad</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>Tipo de interfaz</translation>
    </message>
</context>
<context>
    <name>m_pDiskStatus</name>
    <message>
        <source>Disk Details</source>
        <translation>Detalles del disco</translation>
    </message>
    <message>
        <source>Disk Number</source>
        <translation>Número de disco</translation>
    </message>
    <message>
        <source>Model Number</source>
        <translation>Número de modelo</translation>
    </message>
    <message>
        <source>Firmware Revision</source>
        <translation>Revisión de firmware</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>Tipo de interfaz</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>Total de sectores</translation>
    </message>
    <message>
        <source>Hard Disk Life</source>
        <translation>Vida útil del disco</translation>
    </message>
    <message>
        <source>Power-on Time</source>
        <translation>Tiempo encendido</translation>
    </message>
    <message>
        <source>Start/Stop Count</source>
        <translation>Arranques/paradas</translation>
    </message>
    <message>
        <source>Drive&apos;s verdict</source>
        <translation>Veredicto del disco</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Performance</source>
        <translation>Rendimiento</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Salud</translation>
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
        <translation>Número de serie</translation>
    </message>
    <message>
        <source>SMART Status</source>
        <translation>Estado SMART</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>Clonar</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Guardar informe</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Captura</translation>
    </message>
    <message>
        <source>View Velmora Halvane help document</source>
        <translation>Ver el documento de ayuda de Velmora Halvane</translation>
    </message>
    <message>
        <source>More Tools</source>
        <translation>Más herramientas</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Recover Data</source>
        <translation>Recuperar datos</translation>
    </message>
    <message>
        <source>Repair Video</source>
        <translation>Reparar vídeo</translation>
    </message>
    <message>
        <source>Repair Photo</source>
        <translation>Reparar foto</translation>
    </message>
</context>
<context>
    <name>m_pScanDiskwgt</name>
    <message>
        <source>Scan Disk</source>
        <translation>Analizar disco</translation>
    </message>
    <message>
        <source>Disk Size</source>
        <translation>Tamaño del disco</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>Total de sectores</translation>
    </message>
    <message>
        <source>Block Size</source>
        <translation>Tamaño de bloque</translation>
    </message>
    <message>
        <source>  Processed</source>
        <translation>  Procesados</translation>
    </message>
    <message>
        <source>  Bad Sectors</source>
        <translation>  Sectores defectuosos</translation>
    </message>
    <message>
        <source>  Processing</source>
        <translation>  En proceso</translation>
    </message>
    <message>
        <source>Short Self-test</source>
        <translation>Autoprueba corta</translation>
    </message>
    <message>
        <source>Extended Self-test</source>
        <translation>Autoprueba extendida</translation>
    </message>
    <message>
        <source>Perform a surface scan on the selected disk to identify if the disk has bad sectors.</source>
        <translation>Analiza la superficie del disco seleccionado para averiguar si tiene sectores defectuosos.</translation>
    </message>
    <message>
        <source>Run this test to check the electrical and mechanical performance of a device along with the read/write operations on a portion of the disk. This test may take few minutes to complete.</source>
        <translation>Esta prueba comprueba el funcionamiento eléctrico y mecánico del dispositivo, así como la lectura y escritura en una parte del disco. Puede tardar unos minutos.</translation>
    </message>
    <message>
        <source>This test is same as a short self-test with a complete disk surface examination. This test may take up to few hours to complete.</source>
        <translation>Esta prueba equivale a la autoprueba corta con un examen completo de la superficie del disco. Puede tardar varias horas.</translation>
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
        <translation>  Configuración</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Show status in tray</source>
        <translation>Mostrar el estado en la bandeja</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Inglés</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Alemán</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francés</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italiano</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Español</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Neerlandés</translation>
    </message>
    <message>
        <source>Portuguese (Brazil)</source>
        <translation>Portugués (Brasil)</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>Hindi</translation>
    </message>
    <message>
        <source>LOGS</source>
        <translation>REGISTROS</translation>
    </message>
    <message>
        <source>Save log file</source>
        <translation>Guardar archivo de registro</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Max log size (KB)</source>
        <translation>Tamaño máx. del registro (KB)</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Show Temperature in</source>
        <translation>Mostrar la temperatura en</translation>
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
        <translation>Activar la alarma de temperatura</translation>
    </message>
    <message>
        <source>Warning Temperature</source>
        <translation>Temperatura de aviso</translation>
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
        <translation>Temperatura de apagado</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>View Velmora Halvane help document</source>
        <translation>Ver el documento de ayuda de Velmora Halvane</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Idiomas</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>m_pSmartWgt</name>
    <message>
        <source>SMART Status : </source>
        <translation>Estado SMART: </translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacidad</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>Tipo de interfaz</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Guardar informe</translation>
    </message>
    <message>
        <source>Smart Status</source>
        <translation>Estado SMART</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
</context>
</TS>
