<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Velmora Halvane</source>
        <translation>Sobre o Velmora Halvane</translation>
    </message>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>License Agreement</source>
        <translation>Contrato de licença</translation>
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
        <translation>Versão </translation>
    </message>
</context>
<context>
    <name>AccessNotice</name>
    <message>
        <source>No disk can be opened</source>
        <translation>Nenhum disco pode ser aberto</translation>
    </message>
    <message>
        <source>Velmora Halvane needs the rights of an administrator to open disks. Without them nothing can be said of their health.</source>
        <translation>O Velmora Halvane precisa dos direitos de administrador para abrir os discos. Sem eles, nada se pode dizer sobre a saúde deles.</translation>
    </message>
    <message>
        <source>Close the program, right-click its icon and choose &quot;Run as administrator&quot;.</source>
        <translation>Feche o programa, clique com o botão direito no ícone e escolha &quot;Executar como administrador&quot;.</translation>
    </message>
    <message>
        <source>Close the program and start it as root. This command does it in a terminal:</source>
        <translation>Feche o programa e inicie-o como root. Em um terminal, use este comando:</translation>
    </message>
</context>
<context>
    <name>AttributeCatalogue</name>
    <message>
        <source>Raw Read Error Rate</source>
        <translation>Taxa de erro de leitura</translation>
    </message>
    <message>
        <source>Spin Up Time</source>
        <translation>Tempo de partida</translation>
    </message>
    <message>
        <source>Start Stop Count</source>
        <translation>Partidas e paradas</translation>
    </message>
    <message>
        <source>Reallocated Sector Count</source>
        <translation>Setores realocados</translation>
    </message>
    <message>
        <source>Seek Error Rate</source>
        <translation>Taxa de erro de busca</translation>
    </message>
    <message>
        <source>Power On Hours</source>
        <translation>Horas ligado</translation>
    </message>
    <message>
        <source>Spin Retry Count</source>
        <translation>Tentativas de rotação</translation>
    </message>
    <message>
        <source>Calibration Retry Count</source>
        <translation>Tentativas de calibração</translation>
    </message>
    <message>
        <source>Power Cycle Count</source>
        <translation>Ciclos de energia</translation>
    </message>
    <message>
        <source>Power-Off Retract Count</source>
        <translation>Retrações ao desligar</translation>
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
        <translation>Eventos de realocação</translation>
    </message>
    <message>
        <source>Current Pending Sector Count</source>
        <translation>Setores pendentes</translation>
    </message>
    <message>
        <source>Offline Uncorrectable</source>
        <translation>Incorrigíveis off-line</translation>
    </message>
    <message>
        <source>UDMA CRC Error Count</source>
        <translation>Erros de CRC UDMA</translation>
    </message>
    <message>
        <source>Multi Zone Error Rate</source>
        <translation>Taxa de erro multizona</translation>
    </message>
    <message>
        <source>Available Reserved Space</source>
        <translation>Espaço reservado disponível</translation>
    </message>
    <message>
        <source>SSD Program Fail Count</source>
        <translation>Falhas de programação SSD</translation>
    </message>
    <message>
        <source>SSD Erase Fail Count</source>
        <translation>Falhas de apagamento SSD</translation>
    </message>
    <message>
        <source>SSD Wear Leveling Count</source>
        <translation>Nivelamento de desgaste SSD</translation>
    </message>
    <message>
        <source>Unexpected power loss count</source>
        <translation>Quedas de energia</translation>
    </message>
    <message>
        <source>Throughput Performance</source>
        <translation>Desempenho de transferência</translation>
    </message>
    <message>
        <source>Read Channel Margin</source>
        <translation>Margem do canal de leitura</translation>
    </message>
    <message>
        <source>Seek Time Performance</source>
        <translation>Desempenho de busca</translation>
    </message>
    <message>
        <source>Soft Read Error Rate</source>
        <translation>Taxa de erro leve de leitura</translation>
    </message>
    <message>
        <source>Runtime Bad Block</source>
        <translation>Blocos defeituosos em uso</translation>
    </message>
    <message>
        <source>End-to-End Error </source>
        <translation>Erros de ponta a ponta </translation>
    </message>
    <message>
        <source>Reported Uncorrect</source>
        <translation>Erros não corrigidos</translation>
    </message>
    <message>
        <source>Command Timeout</source>
        <translation>Comandos sem resposta</translation>
    </message>
    <message>
        <source>High Fly Writes</source>
        <translation>Gravações em altura elevada</translation>
    </message>
    <message>
        <source>Airflow Temperature Cel</source>
        <translation>Temperatura do ar</translation>
    </message>
    <message>
        <source>G-Sense Error Rate</source>
        <translation>Taxa de erro por impacto</translation>
    </message>
    <message>
        <source>Hardware ECC Recovered</source>
        <translation>Correções de ECC</translation>
    </message>
    <message>
        <source>Multi Zone Error Rate </source>
        <translation>Taxa de erro multizona </translation>
    </message>
    <message>
        <source>Write Error Rate</source>
        <translation>Taxa de erro de gravação</translation>
    </message>
    <message>
        <source>Head Flying Hours</source>
        <translation>Horas de voo das cabeças</translation>
    </message>
    <message>
        <source>Total LBAs Written</source>
        <translation>Total de LBAs gravados</translation>
    </message>
    <message>
        <source>Total LBAs Read</source>
        <translation>Total de LBAs lidos</translation>
    </message>
    <message>
        <source>Free Fall Sensor</source>
        <translation>Sensor de queda livre</translation>
    </message>
    <message>
        <source>Critical Warning</source>
        <translation>Aviso crítico</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Available Spare</source>
        <translation>Reserva disponível</translation>
    </message>
    <message>
        <source>Available Spare Threshold</source>
        <translation>Limite da reserva</translation>
    </message>
    <message>
        <source>Percentage Used</source>
        <translation>Porcentagem de desgaste</translation>
    </message>
    <message>
        <source>Data Units Read</source>
        <translation>Unidades de dados lidas</translation>
    </message>
    <message>
        <source>Data Units Written</source>
        <translation>Unidades de dados gravadas</translation>
    </message>
    <message>
        <source>Host Read Commands</source>
        <translation>Comandos de leitura</translation>
    </message>
    <message>
        <source>Host Write Commands</source>
        <translation>Comandos de gravação</translation>
    </message>
    <message>
        <source>Controller Busy Time</source>
        <translation>Tempo ocupado</translation>
    </message>
    <message>
        <source>Power Cyles</source>
        <translation>Ciclos de energia</translation>
    </message>
    <message>
        <source>Unsafe Shutdowns</source>
        <translation>Desligamentos inseguros</translation>
    </message>
    <message>
        <source>Media and Data Integrity Errors</source>
        <translation>Erros de integridade</translation>
    </message>
    <message>
        <source>Error Information Log Entries</source>
        <translation>Entradas do log de erros</translation>
    </message>
</context>
<context>
    <name>AttributeRows</name>
    <message>
        <source>FAILED</source>
        <translation>FALHA</translation>
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
        <translation>Procurando atualizações...</translation>
    </message>
</context>
<context>
    <name>CloneDisk</name>
    <message>
        <source>Not Available</source>
        <translation>Não disponível</translation>
    </message>
    <message>
        <source>Disk Number 	: </source>
        <translation>Número do disco 	: </translation>
    </message>
    <message>
        <source>Model Number	: </source>
        <translation>Número do modelo	: </translation>
    </message>
    <message>
        <source>Serial: </source>
        <translation>Número de série: </translation>
    </message>
    <message>
        <source>Firmware Revision : </source>
        <translation>Revisão do firmware : </translation>
    </message>
    <message>
        <source>Interface Type	   : </source>
        <translation>Tipo de interface	   : </translation>
    </message>
    <message>
        <source>Capacity	: </source>
        <translation>Capacidade	: </translation>
    </message>
    <message>
        <source>Total Sector	   : </source>
        <translation>Total de setores	   : </translation>
    </message>
    <message>
        <source>Model Number : </source>
        <translation>Número do modelo : </translation>
    </message>
    <message>
        <source>Capacity           : </source>
        <translation>Capacidade           : </translation>
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
        <translation>Os discos de origem e de destino são o mesmo.</translation>
    </message>
    <message>
        <source>Destination disk size is smaller than source disk.</source>
        <translation>O disco de destino é menor que o disco de origem.</translation>
    </message>
    <message>
        <source>Clone Disk</source>
        <translation>Clonar disco</translation>
    </message>
    <message>
        <source>Select different destination disk.</source>
        <translation>Selecione outro disco de destino.</translation>
    </message>
    <message>
        <source>Cloning Failed</source>
        <translation>Falha na clonagem</translation>
    </message>
    <message>
        <source>Unable to write on destination disk.</source>
        <translation>Não foi possível gravar no disco de destino.</translation>
    </message>
    <message>
        <source>Select other destination disk.</source>
        <translation>Selecione outro disco de destino.</translation>
    </message>
    <message>
        <source>Abort Clone</source>
        <translation>Cancelar clonagem</translation>
    </message>
    <message>
        <source>Cloning Aborted.</source>
        <translation>Clonagem cancelada.</translation>
    </message>
    <message>
        <source>Disk Cloning complete.</source>
        <translation>Clonagem do disco concluída.</translation>
    </message>
    <message>
        <source>Disk cloning process completed successfully.</source>
        <translation>O disco foi clonado com sucesso.</translation>
    </message>
    <message>
        <source>Cloning aborted.</source>
        <translation>Clonagem cancelada.</translation>
    </message>
    <message>
        <source>Cloning process aborted by the user.</source>
        <translation>Clonagem cancelada pelo usuário.</translation>
    </message>
    <message>
        <source>Select Destination</source>
        <translation>Selecione o destino</translation>
    </message>
    <message>
        <source>The disks are not there any more.</source>
        <translation>Os discos não estão mais presentes.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Não há memória suficiente.</translation>
    </message>
    <message>
        <source>The source disk cannot be opened.</source>
        <translation>Não foi possível abrir o disco de origem.</translation>
    </message>
    <message>
        <source>The destination disk cannot be opened.</source>
        <translation>Não foi possível abrir o disco de destino.</translation>
    </message>
    <message>
        <source>The source disk is not the one that was chosen.</source>
        <translation>O disco de origem não é o que foi escolhido.</translation>
    </message>
    <message>
        <source>The destination disk is not the one that was chosen.</source>
        <translation>O disco de destino não é o que foi escolhido.</translation>
    </message>
    <message>
        <source>The source disk has no sectors.</source>
        <translation>O disco de origem não tem setores.</translation>
    </message>
    <message>
        <source>The system runs from the destination disk.</source>
        <translation>O sistema está sendo executado a partir do disco de destino.</translation>
    </message>
    <message>
        <source>A volume of the destination disk is in use.</source>
        <translation>Um volume do disco de destino está em uso.</translation>
    </message>
    <message>
        <source>The destination disk is in use.</source>
        <translation>O disco de destino está em uso.</translation>
    </message>
    <message>
        <source>It cannot be found out whether the destination disk is in use.</source>
        <translation>Não foi possível determinar se o disco de destino está em uso.</translation>
    </message>
    <message>
        <source>The destination disk cannot be written. It may be in use.</source>
        <translation>Não foi possível gravar no disco de destino. Ele pode estar em uso.</translation>
    </message>
    <message>
        <source>The source disk does not answer any more.</source>
        <translation>O disco de origem não responde mais.</translation>
    </message>
    <message>
        <source>The destination disk does not answer any more.</source>
        <translation>O disco de destino não responde mais.</translation>
    </message>
    <message>
        <source>%1 sectors could not be read and were filled with zeros. %2 sectors could not be written.</source>
        <translation>%1 setores não puderam ser lidos e foram preenchidos com zeros. %2 setores não puderam ser gravados.</translation>
    </message>
    <message>
        <source>The destination disk did not confirm that all data is stored.</source>
        <translation>O disco de destino não confirmou que todos os dados foram armazenados.</translation>
    </message>
    <message>
        <source>Disk Cloning complete with errors.</source>
        <translation>Clonagem do disco concluída com erros.</translation>
    </message>
    <message>
        <source>Nothing was written on any disk.</source>
        <translation>Nada foi gravado em nenhum disco.</translation>
    </message>
    <message>
        <source>The destination disk holds no complete copy.</source>
        <translation>O disco de destino não contém uma cópia completa.</translation>
    </message>
    <message>
        <source>Save List</source>
        <translation>Salvar lista</translation>
    </message>
    <message>
        <source>The list could not be saved.</source>
        <translation>Não foi possível salvar a lista.</translation>
    </message>
    <message>
        <source>%1 % of the disk copied</source>
        <translation>%1 % do disco copiado</translation>
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
        <translation>Aviso</translation>
    </message>
    <message>
        <source>This action will create a clone of the source drive on the destination drive. Make sure that source and destination disk selection is correct since this operation is irreversible.</source>
        <translation>Esta ação criará um clone da unidade de origem na unidade de destino. Verifique se os discos de origem e de destino estão selecionados corretamente, pois esta operação é irreversível.</translation>
    </message>
    <message>
        <source>Existing data on the destination disk will be lost.</source>
        <translation>Os dados existentes no disco de destino serão perdidos.</translation>
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
        <translation>%1 · saúde %2 %</translation>
    </message>
    <message>
        <source>Asleep</source>
        <translation>Em repouso</translation>
    </message>
    <message>
        <source>Asleep · last %1 at %2</source>
        <translation>Em repouso · %1 às %2</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Muito quente</translation>
    </message>
    <message>
        <source>Warm since %1</source>
        <translation>Quente desde %1</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Quente</translation>
    </message>
    <message>
        <source>Unknown disk</source>
        <translation>Disco desconhecido</translation>
    </message>
    <message>
        <source>Disk %1</source>
        <translation>Disco %1</translation>
    </message>
    <message>
        <source>Missing: check its cable</source>
        <translation>Ausente: verifique o cabo</translation>
    </message>
    <message>
        <source>Failing: back up this disk now</source>
        <translation>Falhando: faça backup agora</translation>
    </message>
    <message>
        <source>Does not answer</source>
        <translation>Não responde</translation>
    </message>
    <message>
        <source>Tells nothing of its health</source>
        <translation>Não informa sua saúde</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>Em ordem</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Requer atenção</translation>
    </message>
    <message>
        <source>No disk is watched.</source>
        <translation>Nenhum disco é monitorado.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e mais %1</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>agora mesmo</translation>
    </message>
    <message>
        <source>1 minute ago</source>
        <translation>há 1 minuto</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>há %1 minutos</translation>
    </message>
</context>
<context>
    <name>ConfarmetionDialog</name>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
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
        <translation>Selecione o disco de destino.</translation>
    </message>
    <message>
        <source>Select target disk to start cloning process.</source>
        <translation>Selecione o disco de destino para iniciar a clonagem.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
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
        <translation>Sem suporte</translation>
    </message>
    <message>
        <source>Failed: back up your data</source>
        <translation>Falha: faça backup</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Aprovado</translation>
    </message>
    <message>
        <source>Not told</source>
        <translation>Não informado</translation>
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
        <translation>Atualização de software</translation>
    </message>
    <message>
        <source>Downloading Files</source>
        <translation>Baixando arquivos</translation>
    </message>
</context>
<context>
    <name>Flyout</name>
    <message>
        <source>No disk is watched.</source>
        <translation>Nenhum disco é monitorado.</translation>
    </message>
    <message>
        <source>Alarms on again</source>
        <translation>Reativar alarmes</translation>
    </message>
    <message>
        <source>Pause alarms</source>
        <translation>Pausar alarmes</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
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
        <translation>Limites…</translation>
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
        <translation>Informações</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save List</source>
        <translation>Salvar lista</translation>
    </message>
</context>
<context>
    <name>LimitsDialog</name>
    <message>
        <source>Limits of this disk</source>
        <translation>Limites deste disco</translation>
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
        <translation>Limites próprios</translation>
    </message>
    <message>
        <source>Warning Temperature</source>
        <translation>Temperatura de aviso</translation>
    </message>
    <message>
        <source>Shutdown Temperature</source>
        <translation>Temperatura de desligamento</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Not Available</source>
        <translation>Não disponível</translation>
    </message>
    <message>
        <source>Disk Drive </source>
        <translation>Disco </translation>
    </message>
    <message>
        <source>English</source>
        <translation>Inglês</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Alemão</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francês</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italiano</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Espanhol</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japonês</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chinês</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Coreano</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Holandês</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>Português (Brasil)</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>Hindi</translation>
    </message>
    <message>
        <source>   Disk Status</source>
        <translation>   Status do disco</translation>
    </message>
    <message>
        <source>View the health status of your hard disk</source>
        <translation>Mostra o estado de saúde do disco rígido</translation>
    </message>
    <message>
        <source>   SMART Status</source>
        <translation>   Status SMART</translation>
    </message>
    <message>
        <source>Detailed SMART status of the hard disk</source>
        <translation>Status SMART detalhado do disco rígido</translation>
    </message>
    <message>
        <source>   Disk Partition</source>
        <translation>   Partições</translation>
    </message>
    <message>
        <source>View description of partitions in your hard disk</source>
        <translation>Mostra a descrição das partições do disco rígido</translation>
    </message>
    <message>
        <source>   Scan Disk</source>
        <translation>   Verificar disco</translation>
    </message>
    <message>
        <source>Scan your hard disk for bad sectors</source>
        <translation>Procura setores defeituosos no disco rígido</translation>
    </message>
    <message>
        <source>   Clone Disk</source>
        <translation>   Clonar disco</translation>
    </message>
    <message>
        <source>Clone hard disk to avoid impending disk issues</source>
        <translation>Clone o disco rígido para evitar problemas iminentes</translation>
    </message>
    <message>
        <source>Extended Self-test</source>
        <translation>Autoteste estendido</translation>
    </message>
    <message>
        <source>Short Self-test</source>
        <translation>Autoteste curto</translation>
    </message>
    <message>
        <source>Aborted by User</source>
        <translation>Cancelado pelo usuário</translation>
    </message>
    <message>
        <source>Successfully Completed</source>
        <translation>Concluído com sucesso</translation>
    </message>
    <message>
        <source>Failed by Read Element</source>
        <translation>Falha do elemento de leitura</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Não disponível</translation>
    </message>
    <message>
        <source> days</source>
        <translation> dias</translation>
    </message>
    <message>
        <source> hours</source>
        <translation> horas</translation>
    </message>
    <message>
        <source>More than 1000</source>
        <translation>Mais de 1000</translation>
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
        <translation>Boa</translation>
    </message>
    <message>
        <source>Bad</source>
        <translation>Ruim</translation>
    </message>
    <message>
        <source>Not Supported</source>
        <translation>Sem suporte</translation>
    </message>
    <message>
        <source>Supported</source>
        <translation>Suportado</translation>
    </message>
    <message>
        <source>NA</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Disk Information:</source>
        <translation>Informações do disco:</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Details:</source>
        <translation>Detalhes S.M.A.R.T.:</translation>
    </message>
    <message>
        <source>Model Number:</source>
        <translation>Número do modelo:</translation>
    </message>
    <message>
        <source>Serial Number:</source>
        <translation>Número de série:</translation>
    </message>
    <message>
        <source>Firmware Version:</source>
        <translation>Versão do firmware:</translation>
    </message>
    <message>
        <source>Capacity:</source>
        <translation>Capacidade:</translation>
    </message>
    <message>
        <source>Sector Size:</source>
        <translation>Tamanho do setor:</translation>
    </message>
    <message>
        <source>Local  Time:</source>
        <translation>Hora local:</translation>
    </message>
    <message>
        <source>Maximum Data Transfer Size:</source>
        <translation>Tamanho máximo de transferência:</translation>
    </message>
    <message>
        <source>SMART Status:</source>
        <translation>Status SMART:</translation>
    </message>
    <message>
        <source>Current Temperature:</source>
        <translation>Temperatura atual:</translation>
    </message>
    <message>
        <source>Performance:</source>
        <translation>Desempenho:</translation>
    </message>
    <message>
        <source>Health:</source>
        <translation>Saúde:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Attribute Name</source>
        <translation>Nome do atributo</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valores</translation>
    </message>
    <message>
        <source>Self Test Details:</source>
        <translation>Detalhes dos autotestes:</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Details</source>
        <translation>Detalhes S.M.A.R.T.</translation>
    </message>
    <message>
        <source>Make:</source>
        <translation>Fabricante:</translation>
    </message>
    <message>
        <source>Rotation Rate:</source>
        <translation>Velocidade de rotação:</translation>
    </message>
    <message>
        <source>ATA Version:</source>
        <translation>Versão ATA:</translation>
    </message>
    <message>
        <source>SATA Version:</source>
        <translation>Versão SATA:</translation>
    </message>
    <message>
        <source>Short Self-test:</source>
        <translation>Autoteste curto:</translation>
    </message>
    <message>
        <source>Estimated Completion Time:</source>
        <translation>Duração estimada:</translation>
    </message>
    <message>
        <source>Extended Self-test:</source>
        <translation>Autoteste estendido:</translation>
    </message>
    <message>
        <source>Last Run Self-test:</source>
        <translation>Último autoteste executado:</translation>
    </message>
    <message>
        <source>Last Self-Test Result:</source>
        <translation>Resultado do último autoteste:</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Pior</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Limite</translation>
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
        <translation>Relatório S.M.A.R.T.</translation>
    </message>
    <message>
        <source>The information contained in this report has been generated by the Velmora Halvane profiling process.</source>
        <translation>As informações deste relatório foram geradas pelo processo de análise do Velmora Halvane.</translation>
    </message>
    <message>
        <source>Velmora Halvane is a product of Korvane.</source>
        <translation>O Velmora Halvane é um produto da Korvane.</translation>
    </message>
    <message>
        <source>Velmora Halvane is a product of Velmora.</source>
        <translation>O Velmora Halvane é um produto da Velmora.</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falha</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Aprovado</translation>
    </message>
    <message>
        <source>Source disk:     </source>
        <translation>Disco de origem:     </translation>
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
        <translation>Clonagem em andamento.</translation>
    </message>
    <message>
        <source>Cloning process running.</source>
        <translation>Há uma clonagem em andamento.</translation>
    </message>
    <message>
        <source>Please halt the clone process to exit.</source>
        <translation>Interrompa a clonagem antes de sair.</translation>
    </message>
    <message>
        <source>Scan Disk</source>
        <translation>Verificar disco</translation>
    </message>
    <message>
        <source>Scaning Running.</source>
        <translation>Verificação em andamento.</translation>
    </message>
    <message>
        <source>Disk scan running.</source>
        <translation>A verificação do disco está em andamento.</translation>
    </message>
    <message>
        <source>Please halt the scan process to exit.</source>
        <translation>Interrompa a verificação antes de sair.</translation>
    </message>
    <message>
        <source>SMART Status</source>
        <translation>Status SMART</translation>
    </message>
    <message>
        <source>Please wait. Application Refreshing...</source>
        <translation>Aguarde. Atualizando o aplicativo...</translation>
    </message>
    <message>
        <source>Stop Clone</source>
        <translation>Parar clonagem</translation>
    </message>
    <message>
        <source>Cloning can not be resumed from the current stage.</source>
        <translation>A clonagem não poderá ser retomada do ponto atual.</translation>
    </message>
    <message>
        <source>Do you wish to abort the cloning?</source>
        <translation>Deseja cancelar a clonagem?</translation>
    </message>
    <message>
        <source>Stop Scan</source>
        <translation>Parar verificação</translation>
    </message>
    <message>
        <source>Scan can not be resumed from the current stage.</source>
        <translation>A verificação não poderá ser retomada do ponto atual.</translation>
    </message>
    <message>
        <source>Do you wish to abort the scan?</source>
        <translation>Deseja cancelar a verificação?</translation>
    </message>
    <message>
        <source>(BitLocker)</source>
        <translation>(BitLocker)</translation>
    </message>
    <message>
        <source>No Partition Found</source>
        <translation>Nenhuma partição encontrada</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Salvar arquivo</translation>
    </message>
    <message>
        <source>Self-test can not be resumed from the current stage.</source>
        <translation>O autoteste não poderá ser retomado do ponto atual.</translation>
    </message>
    <message>
        <source>Do you wish to abort the Self-test?</source>
        <translation>Deseja cancelar o autoteste?</translation>
    </message>
    <message>
        <source>Please wait. Getting SMART information...</source>
        <translation>Aguarde. Obtendo as informações SMART...</translation>
    </message>
    <message>
        <source>Graph : </source>
        <translation>Gráfico: </translation>
    </message>
    <message>
        <source>Running, no problems found</source>
        <translation>Em andamento, nenhum problema encontrado</translation>
    </message>
    <message>
        <source>Test failed by Read Element</source>
        <translation>Falha no teste: elemento de leitura</translation>
    </message>
    <message>
        <source>Test Interrupted by the Host</source>
        <translation>Teste interrompido pelo PC</translation>
    </message>
    <message>
        <source>Test ended by Fatal or Unknown Error</source>
        <translation>Erro de teste fatal ou desconhecido</translation>
    </message>
    <message>
        <source>Test failed by Unknown Element</source>
        <translation>Falha no teste: elemento desconhecido</translation>
    </message>
    <message>
        <source>Test failed by Electrical Element</source>
        <translation>Falha no teste: elemento elétrico</translation>
    </message>
    <message>
        <source>Test failed by Servo Element</source>
        <translation>Falha no teste: elemento servo</translation>
    </message>
    <message>
        <source>Test failed, Handling Damage suspected</source>
        <translation>Falha no teste: possível dano por impacto</translation>
    </message>
    <message>
        <source>Test ended with Unknown Status</source>
        <translation>Teste encerrado, estado desconhecido</translation>
    </message>
    <message>
        <source>No Status from the Drive</source>
        <translation>Nenhum estado recebido do disco</translation>
    </message>
    <message>
        <source>Test Aborted by User</source>
        <translation>Teste cancelado pelo usuário</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> minutos</translation>
    </message>
    <message>
        <source>Healthy</source>
        <translation>Íntegro</translation>
    </message>
    <message>
        <source>Not Healthy</source>
        <translation>Com problemas</translation>
    </message>
    <message>
        <source>% Free</source>
        <translation>% livre</translation>
    </message>
    <message>
        <source> Free of </source>
        <translation> livres de </translation>
    </message>
    <message>
        <source> Available</source>
        <translation> disponíveis</translation>
    </message>
    <message>
        <source>The self-test has ended.</source>
        <translation>O autoteste terminou.</translation>
    </message>
    <message>
        <source>%1 volumes: %2</source>
        <translation>%1 volumes: %2</translation>
    </message>
    <message>
        <source>From %1 to %2: lowest value %3, highest %4, latest %5</source>
        <translation>De %1 a %2: menor valor %3, maior %4, último %5</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Média</translation>
    </message>
</context>
<context>
    <name>Monitor</name>
    <message>
        <source>Back up this disk now.</source>
        <translation>Faça backup deste disco agora.</translation>
    </message>
    <message>
        <source>temperature %1, limit %2</source>
        <translation>temperatura %1, limite %2</translation>
    </message>
    <message>
        <source>See to its cooling.</source>
        <translation>Verifique a refrigeração.</translation>
    </message>
    <message>
        <source>temperature %1, shutdown limit %2</source>
        <translation>temperatura %1, limite de desligamento %2</translation>
    </message>
    <message>
        <source>It is advisable to shut down the system now.</source>
        <translation>É aconselhável desligar o sistema agora.</translation>
    </message>
    <message>
        <source>the drive reports that it is failing: %3</source>
        <translation>o disco informa que está falhando: %3</translation>
    </message>
    <message>
        <source>the drive reports that it is failing</source>
        <translation>o disco informa que está falhando</translation>
    </message>
    <message>
        <source>critical warning: %3</source>
        <translation>aviso crítico: %3</translation>
    </message>
    <message>
        <source>failing attributes: %3</source>
        <translation>atributos com falha: %3</translation>
    </message>
    <message>
        <source>reallocated sectors: %1 (before: %2)</source>
        <translation>setores realocados: %1 (antes: %2)</translation>
    </message>
    <message>
        <source>reallocated sectors: %1</source>
        <translation>setores realocados: %1</translation>
    </message>
    <message>
        <source>pending sectors: %1 (before: %2)</source>
        <translation>setores pendentes: %1 (antes: %2)</translation>
    </message>
    <message>
        <source>pending sectors: %1</source>
        <translation>setores pendentes: %1</translation>
    </message>
    <message>
        <source>uncorrectable errors: %1 (before: %2)</source>
        <translation>erros incorrigíveis: %1 (antes: %2)</translation>
    </message>
    <message>
        <source>uncorrectable errors: %1</source>
        <translation>erros incorrigíveis: %1</translation>
    </message>
    <message>
        <source>media errors: %1 (before: %2)</source>
        <translation>erros de mídia: %1 (antes: %2)</translation>
    </message>
    <message>
        <source>media errors: %1</source>
        <translation>erros de mídia: %1</translation>
    </message>
    <message>
        <source>spare %1 %, threshold %2 %</source>
        <translation>reserva %1 %, limite %2 %</translation>
    </message>
    <message>
        <source>wear %1 %</source>
        <translation>desgaste %1 %</translation>
    </message>
    <message>
        <source>Plan to replace this disk, and keep a backup.</source>
        <translation>Planeje substituir este disco e mantenha um backup.</translation>
    </message>
    <message>
        <source>the self-test failed: %3</source>
        <translation>o autoteste falhou: %3</translation>
    </message>
    <message>
        <source>the disk does not answer</source>
        <translation>o disco não responde</translation>
    </message>
    <message>
        <source>Check its cable. Back it up as soon as it answers.</source>
        <translation>Verifique o cabo. Faça backup assim que ele responder.</translation>
    </message>
    <message>
        <source>the disk is missing</source>
        <translation>o disco está ausente</translation>
    </message>
    <message>
        <source>Check its cable. If it comes back, back it up.</source>
        <translation>Verifique o cabo. Se ele voltar, faça backup.</translation>
    </message>
    <message>
        <source>the disk is back</source>
        <translation>o disco voltou</translation>
    </message>
    <message>
        <source>the log cannot be written: %3</source>
        <translation>não é possível gravar o log: %3</translation>
    </message>
    <message>
        <source>Choose another file for it in Settings.</source>
        <translation>Escolha outro arquivo nas configurações.</translation>
    </message>
    <message>
        <source>the spare is used up</source>
        <translation>a reserva acabou</translation>
    </message>
    <message>
        <source>too hot or too cold</source>
        <translation>quente demais ou frio demais</translation>
    </message>
    <message>
        <source>less reliable after errors of the medium</source>
        <translation>menos confiável após erros de mídia</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>somente leitura</translation>
    </message>
    <message>
        <source>the backup of its memory has failed</source>
        <translation>a proteção da memória falhou</translation>
    </message>
    <message>
        <source>the persistent memory is read-only</source>
        <translation>a memória persistente é somente leitura</translation>
    </message>
</context>
<context>
    <name>QCheckUpdate</name>
    <message>
        <source>No update available.</source>
        <translation>Nenhuma atualização disponível.</translation>
    </message>
</context>
<context>
    <name>QDownloadApp</name>
    <message>
        <source>Downloading under progress...</source>
        <translation>Download em andamento...</translation>
    </message>
    <message>
        <source>Time Elapsed: </source>
        <translation>Tempo decorrido: </translation>
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
        <translation>Taxa de transferência: </translation>
    </message>
    <message>
        <source> KB/sec </source>
        <translation> KB/s </translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Atualização de software</translation>
    </message>
    <message>
        <source>Update failed 

Update failed due to partial download.</source>
        <translation>Falha na atualização 

A atualização falhou porque o download ficou incompleto.</translation>
    </message>
    <message>
        <source>The update could not be verified and was not started.</source>
        <translation>Não foi possível verificar a atualização e ela não foi iniciada.</translation>
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
        <translation>Primeiro setor do bloco: </translation>
    </message>
    <message>
        <source>End Sector of current block: </source>
        <translation>Último setor do bloco: </translation>
    </message>
    <message>
        <source>Current Block Size : </source>
        <translation>Tamanho do bloco: </translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>%1 cells, %2 with unreadable sectors</source>
        <translation>%1 células, %2 com setores ilegíveis</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Velmora Halvane already running. Cannot start more than one instance of the application.</source>
        <translation>O Velmora Halvane já está em execução. Não é possível iniciar mais de uma instância do aplicativo.</translation>
    </message>
    <message>
        <source>Velmora Halvane cannot start: there is no folder for its temporary files that other users cannot change.</source>
        <translation>Não é possível iniciar o Velmora Halvane: não há nenhuma pasta para os arquivos temporários que outros usuários não possam alterar.</translation>
    </message>
</context>
<context>
    <name>QRoundProgressBar</name>
    <message>
        <source>Complete</source>
        <translation>Concluído</translation>
    </message>
</context>
<context>
    <name>QShowUpdate</name>
    <message>
        <source>A new major release </source>
        <translation>Uma nova versão principal </translation>
    </message>
    <message>
        <source>A new minor update </source>
        <translation>Uma nova atualização secundária </translation>
    </message>
    <message>
        <source> is available. Click Update to proceed further.</source>
        <translation> está disponível. Clique em Atualizar para continuar.</translation>
    </message>
    <message>
        <source>Visit Update Page</source>
        <translation>Visitar a página de atualização</translation>
    </message>
</context>
<context>
    <name>QWaitClass</name>
    <message>
        <source>Initializing Velmora Halvane...</source>
        <translation>Inicializando o Velmora Halvane...</translation>
    </message>
</context>
<context>
    <name>SaveListButton</name>
    <message>
        <source>Save List</source>
        <translation>Salvar lista</translation>
    </message>
    <message>
        <source>The list could not be saved.</source>
        <translation>Não foi possível salvar a lista.</translation>
    </message>
    <message>
        <source>Saves the bad sectors as a text or as a map file of GNU ddrescue</source>
        <translation>Salva os setores defeituosos como texto ou como arquivo map do GNU ddrescue</translation>
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
        <translation>Tempo restante</translation>
    </message>
    <message>
        <source>Time Elapsed</source>
        <translation>Tempo decorrido</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Disk Scan</source>
        <translation>Verificação do disco</translation>
    </message>
    <message>
        <source>Disk scan aborted.</source>
        <translation>Verificação do disco cancelada.</translation>
    </message>
    <message>
        <source>Disk scan aborted by user.</source>
        <translation>Verificação do disco cancelada pelo usuário.</translation>
    </message>
    <message>
        <source>Scan Completed</source>
        <translation>Verificação concluída</translation>
    </message>
    <message>
        <source>Scan Completed.</source>
        <translation>Verificação concluída.</translation>
    </message>
    <message>
        <source>Scan Failed</source>
        <translation>Falha na verificação</translation>
    </message>
    <message>
        <source>Scan Failed.</source>
        <translation>A verificação falhou.</translation>
    </message>
    <message>
        <source>The disk is no longer connected.</source>
        <translation>O disco não está mais conectado.</translation>
    </message>
    <message>
        <source>Sector %1 (LBA), byte offset %2</source>
        <translation>Setor %1 (LBA), deslocamento em bytes %2</translation>
    </message>
    <message>
        <source>Sectors %1 to %2 (LBA), byte offset %3</source>
        <translation>Setores %1 a %2 (LBA), deslocamento em bytes %3</translation>
    </message>
    <message>
        <source>Disk:</source>
        <translation>Disco:</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>Número de série:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Data:</translation>
    </message>
    <message>
        <source>Scanned: the first %1 of %2 sectors</source>
        <translation>Verificados: os primeiros %1 de %2 setores</translation>
    </message>
    <message>
        <source>Result:</source>
        <translation>Resultado:</translation>
    </message>
    <message>
        <source>Bad sectors: %1</source>
        <translation>Setores defeituosos: %1</translation>
    </message>
</context>
<context>
    <name>ScanSwitchDialog</name>
    <message>
        <source>Scan Disk</source>
        <translation>Verificar disco</translation>
    </message>
    <message>
        <source>Scan results will be lost if you move away from this screen. </source>
        <translation>Os resultados da verificação serão perdidos se você sair desta tela. </translation>
    </message>
    <message>
        <source>Do you want to move away from this screen?</source>
        <translation>Deseja sair desta tela?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
</context>
<context>
    <name>SelfTestNotSupportedDialog</name>
    <message>
        <source>Drive Test</source>
        <translation>Teste da unidade</translation>
    </message>
    <message>
        <source>Self-test not supported.</source>
        <translation>Autoteste não suportado.</translation>
    </message>
    <message>
        <source>Selected disk doesn&apos;t support self test.</source>
        <translation>O disco selecionado não suporta o autoteste.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
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
        <translation>Número de série</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Polling Time</source>
        <translation>Duração prevista</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>Tempo restante</translation>
    </message>
    <message>
        <source>Time Elapsed</source>
        <translation>Tempo decorrido</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Save log file</source>
        <translation>Salvar arquivo de log</translation>
    </message>
    <message>
        <source>Your Software has all latest updates installed.</source>
        <translation>O software já tem todas as atualizações mais recentes.</translation>
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
        <translation>Atualizar</translation>
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
        <translation>Aviso de desligamento</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Hard Disk&apos;s temperature has reached the shutdown value.</source>
        <translation>A temperatura do disco rígido atingiu o valor de desligamento.</translation>
    </message>
    <message>
        <source>It is advisable to shutdown the system immediately.</source>
        <translation>É recomendável desligar o sistema imediatamente.</translation>
    </message>
    <message>
        <source>Shutdown</source>
        <translation>Desligar</translation>
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
        <translation>Nome do atributo</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Pior</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Limite</translation>
    </message>
    <message>
        <source>Raw Value</source>
        <translation>Valor bruto</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Atualizado</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falha</translation>
    </message>
    <message>
        <source>Better</source>
        <translation>Melhor</translation>
    </message>
    <message>
        <source>Overall Status</source>
        <translation>Status geral</translation>
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
        <translation>APROVADO</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Gráfico</translation>
    </message>
    <message>
        <source>FAIELD</source>
        <translation>FALHA</translation>
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
        <translation>Aviso SMART</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Hard Disk&apos;s temperature exceed the threshold value.</source>
        <translation>A temperatura do disco rígido ultrapassou o limite.</translation>
    </message>
    <message>
        <source>Your hard disk&apos;s temperature has exceeded threshold value. This may damage hard disk. It is advisable to shutdown the system immediately.</source>
        <translation>A temperatura do disco rígido ultrapassou o limite. Isso pode danificar o disco rígido. É recomendável desligar o sistema imediatamente.</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Não mostrar novamente</translation>
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
        <translation>Atualizar agora</translation>
    </message>
    <message>
        <source>Pause alarms for an hour</source>
        <translation>Pausar alarmes por uma hora</translation>
    </message>
    <message>
        <source>Show lowest health</source>
        <translation>Mostrar a saúde mais baixa</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
</context>
<context>
    <name>VolumeFrame</name>
    <message>
        <source>Partition</source>
        <translation>Partição</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espaço</translation>
    </message>
</context>
<context>
    <name>m_pCloneDiskwgt</name>
    <message>
        <source>Disk Details</source>
        <translation>Detalhes do disco</translation>
    </message>
    <message>
        <source>Source Disk</source>
        <translation>Disco de origem</translation>
    </message>
    <message>
        <source>Target Disk</source>
        <translation>Disco de destino</translation>
    </message>
    <message>
        <source>Remaining Time</source>
        <translation>Tempo restante</translation>
    </message>
</context>
<context>
    <name>m_pCloseWgt</name>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Are you sure you want to exit?</source>
        <translation>Tem certeza de que deseja sair?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
</context>
<context>
    <name>m_pDiskPartitionWgt</name>
    <message>
        <source>Disk Partition</source>
        <translation>Partições do disco</translation>
    </message>
    <message>
        <source>Partition Details</source>
        <translation>Detalhes das partições</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Número de série</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacidade</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>Tipo de interface</translation>
    </message>
</context>
<context>
    <name>m_pDiskStatus</name>
    <message>
        <source>Disk Details</source>
        <translation>Detalhes do disco</translation>
    </message>
    <message>
        <source>Disk Number</source>
        <translation>Número do disco</translation>
    </message>
    <message>
        <source>Model Number</source>
        <translation>Número do modelo</translation>
    </message>
    <message>
        <source>Firmware Revision</source>
        <translation>Revisão do firmware</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>Tipo de interface</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Número de série</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>Total de setores</translation>
    </message>
    <message>
        <source>Hard Disk Life</source>
        <translation>Vida útil do disco</translation>
    </message>
    <message>
        <source>Power-on Time</source>
        <translation>Tempo ligado</translation>
    </message>
    <message>
        <source>Start/Stop Count</source>
        <translation>Partidas/paradas</translation>
    </message>
    <message>
        <source>Drive&apos;s verdict</source>
        <translation>Veredito do disco</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Performance</source>
        <translation>Desempenho</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Saúde</translation>
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
        <translation>Número de série</translation>
    </message>
    <message>
        <source>SMART Status</source>
        <translation>Status SMART</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
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
        <translation>Parar</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Salvar relatório</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Captura de tela</translation>
    </message>
    <message>
        <source>View Velmora Halvane help document</source>
        <translation>Ver o documento de ajuda do Velmora Halvane</translation>
    </message>
    <message>
        <source>More Tools</source>
        <translation>Mais ferramentas</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Recover Data</source>
        <translation>Recuperar dados</translation>
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
        <translation>Verificar disco</translation>
    </message>
    <message>
        <source>Disk Size</source>
        <translation>Tamanho do disco</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>Total de setores</translation>
    </message>
    <message>
        <source>Block Size</source>
        <translation>Tamanho do bloco</translation>
    </message>
    <message>
        <source>  Processed</source>
        <translation>  Processados</translation>
    </message>
    <message>
        <source>  Bad Sectors</source>
        <translation>  Setores defeituosos</translation>
    </message>
    <message>
        <source>  Processing</source>
        <translation>  Em processamento</translation>
    </message>
    <message>
        <source>Short Self-test</source>
        <translation>Autoteste curto</translation>
    </message>
    <message>
        <source>Extended Self-test</source>
        <translation>Autoteste estendido</translation>
    </message>
    <message>
        <source>Perform a surface scan on the selected disk to identify if the disk has bad sectors.</source>
        <translation>Verifique a superfície do disco selecionado para descobrir se ele tem setores defeituosos.</translation>
    </message>
    <message>
        <source>Run this test to check the electrical and mechanical performance of a device along with the read/write operations on a portion of the disk. This test may take few minutes to complete.</source>
        <translation>Este teste verifica o desempenho elétrico e mecânico do dispositivo, além da leitura e da gravação em uma parte do disco. Pode levar alguns minutos.</translation>
    </message>
    <message>
        <source>This test is same as a short self-test with a complete disk surface examination. This test may take up to few hours to complete.</source>
        <translation>Este teste é igual ao autoteste curto, com um exame completo da superfície do disco. Pode levar algumas horas.</translation>
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
        <translation>  Configurações</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Show status in tray</source>
        <translation>Mostrar status na bandeja</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Inglês</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Alemão</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francês</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italiano</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Espanhol</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Holandês</translation>
    </message>
    <message>
        <source>Portuguese (Brazil)</source>
        <translation>Português (Brasil)</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>Hindi</translation>
    </message>
    <message>
        <source>LOGS</source>
        <translation>LOGS</translation>
    </message>
    <message>
        <source>Save log file</source>
        <translation>Salvar arquivo de log</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Max log size (KB)</source>
        <translation>Tamanho máx. do log (KB)</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Show Temperature in</source>
        <translation>Mostrar temperatura em</translation>
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
        <translation>Ativar alarme de temperatura</translation>
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
        <translation>Temperatura de desligamento</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Procurar atualizações</translation>
    </message>
    <message>
        <source>View Velmora Halvane help document</source>
        <translation>Ver o documento de ajuda do Velmora Halvane</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Idiomas</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>m_pSmartWgt</name>
    <message>
        <source>SMART Status : </source>
        <translation>Status SMART: </translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Número de série</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacidade</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>Tipo de interface</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Salvar relatório</translation>
    </message>
    <message>
        <source>Smart Status</source>
        <translation>Status SMART</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
</context>
</TS>
