<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Velmora Halvane</source>
        <translation>关于 Velmora Halvane</translation>
    </message>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>License Agreement</source>
        <translation>许可协议</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>AboutDlg</name>
    <message>
        <source>Version </source>
        <translation>版本 </translation>
    </message>
</context>
<context>
    <name>AccessNotice</name>
    <message>
        <source>No disk can be opened</source>
        <translation>无法打开任何磁盘</translation>
    </message>
    <message>
        <source>Velmora Halvane needs the rights of an administrator to open disks. Without them nothing can be said of their health.</source>
        <translation>Velmora Halvane 需要管理员权限才能打开磁盘。没有该权限，就无法判断磁盘的健康状态。</translation>
    </message>
    <message>
        <source>Close the program, right-click its icon and choose &quot;Run as administrator&quot;.</source>
        <translation>请关闭程序，右键单击其图标，然后选择“以管理员身份运行”。</translation>
    </message>
    <message>
        <source>Close the program and start it as root. This command does it in a terminal:</source>
        <translation>请关闭程序，并以 root 身份启动。在终端中可使用以下命令：</translation>
    </message>
</context>
<context>
    <name>AttributeCatalogue</name>
    <message>
        <source>Raw Read Error Rate</source>
        <translation>底层数据读取错误率</translation>
    </message>
    <message>
        <source>Spin Up Time</source>
        <translation>主轴启动时间</translation>
    </message>
    <message>
        <source>Start Stop Count</source>
        <translation>启停次数</translation>
    </message>
    <message>
        <source>Reallocated Sector Count</source>
        <translation>重新分配扇区数</translation>
    </message>
    <message>
        <source>Seek Error Rate</source>
        <translation>寻道错误率</translation>
    </message>
    <message>
        <source>Power On Hours</source>
        <translation>通电时间</translation>
    </message>
    <message>
        <source>Spin Retry Count</source>
        <translation>主轴启动重试次数</translation>
    </message>
    <message>
        <source>Calibration Retry Count</source>
        <translation>校准重试次数</translation>
    </message>
    <message>
        <source>Power Cycle Count</source>
        <translation>通电次数</translation>
    </message>
    <message>
        <source>Power-Off Retract Count</source>
        <translation>断电磁头缩回次数</translation>
    </message>
    <message>
        <source>Load Cycle Count</source>
        <translation>磁头加载次数</translation>
    </message>
    <message>
        <source>Temperature Celsius</source>
        <translation>温度（摄氏）</translation>
    </message>
    <message>
        <source>Reallocated Event Count</source>
        <translation>重新分配事件次数</translation>
    </message>
    <message>
        <source>Current Pending Sector Count</source>
        <translation>当前待处理扇区数</translation>
    </message>
    <message>
        <source>Offline Uncorrectable</source>
        <translation>脱机无法校正扇区数</translation>
    </message>
    <message>
        <source>UDMA CRC Error Count</source>
        <translation>UDMA CRC 错误计数</translation>
    </message>
    <message>
        <source>Multi Zone Error Rate</source>
        <translation>多区域错误率</translation>
    </message>
    <message>
        <source>Available Reserved Space</source>
        <translation>可用预留空间</translation>
    </message>
    <message>
        <source>SSD Program Fail Count</source>
        <translation>SSD 编程失败次数</translation>
    </message>
    <message>
        <source>SSD Erase Fail Count</source>
        <translation>SSD 擦除失败次数</translation>
    </message>
    <message>
        <source>SSD Wear Leveling Count</source>
        <translation>SSD 磨损均衡次数</translation>
    </message>
    <message>
        <source>Unexpected power loss count</source>
        <translation>意外断电次数</translation>
    </message>
    <message>
        <source>Throughput Performance</source>
        <translation>吞吐性能</translation>
    </message>
    <message>
        <source>Read Channel Margin</source>
        <translation>读取通道余量</translation>
    </message>
    <message>
        <source>Seek Time Performance</source>
        <translation>寻道时间性能</translation>
    </message>
    <message>
        <source>Soft Read Error Rate</source>
        <translation>软读取错误率</translation>
    </message>
    <message>
        <source>Runtime Bad Block</source>
        <translation>运行时坏块</translation>
    </message>
    <message>
        <source>End-to-End Error </source>
        <translation>端到端错误 </translation>
    </message>
    <message>
        <source>Reported Uncorrect</source>
        <translation>报告的不可校正错误</translation>
    </message>
    <message>
        <source>Command Timeout</source>
        <translation>命令超时</translation>
    </message>
    <message>
        <source>High Fly Writes</source>
        <translation>磁头飞高写入</translation>
    </message>
    <message>
        <source>Airflow Temperature Cel</source>
        <translation>气流温度</translation>
    </message>
    <message>
        <source>G-Sense Error Rate</source>
        <translation>冲击错误率</translation>
    </message>
    <message>
        <source>Hardware ECC Recovered</source>
        <translation>硬件 ECC 恢复</translation>
    </message>
    <message>
        <source>Multi Zone Error Rate </source>
        <translation>多区域错误率 </translation>
    </message>
    <message>
        <source>Write Error Rate</source>
        <translation>写入错误率</translation>
    </message>
    <message>
        <source>Head Flying Hours</source>
        <translation>磁头飞行时间</translation>
    </message>
    <message>
        <source>Total LBAs Written</source>
        <translation>LBA 写入总数</translation>
    </message>
    <message>
        <source>Total LBAs Read</source>
        <translation>LBA 读取总数</translation>
    </message>
    <message>
        <source>Free Fall Sensor</source>
        <translation>自由落体传感器</translation>
    </message>
    <message>
        <source>Critical Warning</source>
        <translation>严重警告</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Available Spare</source>
        <translation>可用备用空间</translation>
    </message>
    <message>
        <source>Available Spare Threshold</source>
        <translation>备用空间阈值</translation>
    </message>
    <message>
        <source>Percentage Used</source>
        <translation>已用寿命百分比</translation>
    </message>
    <message>
        <source>Data Units Read</source>
        <translation>读取数据单元</translation>
    </message>
    <message>
        <source>Data Units Written</source>
        <translation>写入数据单元</translation>
    </message>
    <message>
        <source>Host Read Commands</source>
        <translation>主机读取命令</translation>
    </message>
    <message>
        <source>Host Write Commands</source>
        <translation>主机写入命令</translation>
    </message>
    <message>
        <source>Controller Busy Time</source>
        <translation>控制器忙碌时间</translation>
    </message>
    <message>
        <source>Power Cyles</source>
        <translation>通电次数</translation>
    </message>
    <message>
        <source>Unsafe Shutdowns</source>
        <translation>不安全关机次数</translation>
    </message>
    <message>
        <source>Media and Data Integrity Errors</source>
        <translation>介质和数据完整性错误</translation>
    </message>
    <message>
        <source>Error Information Log Entries</source>
        <translation>错误日志条目数</translation>
    </message>
</context>
<context>
    <name>AttributeRows</name>
    <message>
        <source>FAILED</source>
        <translation>异常</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>正常</translation>
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
        <translation>正在检查更新...</translation>
    </message>
</context>
<context>
    <name>CloneDisk</name>
    <message>
        <source>Not Available</source>
        <translation>不可用</translation>
    </message>
    <message>
        <source>Disk Number 	: </source>
        <translation>磁盘编号 	: </translation>
    </message>
    <message>
        <source>Model Number	: </source>
        <translation>型号	: </translation>
    </message>
    <message>
        <source>Serial: </source>
        <translation>序列号: </translation>
    </message>
    <message>
        <source>Firmware Revision : </source>
        <translation>固件版本 : </translation>
    </message>
    <message>
        <source>Interface Type	   : </source>
        <translation>接口类型	   : </translation>
    </message>
    <message>
        <source>Capacity	: </source>
        <translation>容量	: </translation>
    </message>
    <message>
        <source>Total Sector	   : </source>
        <translation>扇区总数	   : </translation>
    </message>
    <message>
        <source>Model Number : </source>
        <translation>型号 : </translation>
    </message>
    <message>
        <source>Capacity           : </source>
        <translation>容量           : </translation>
    </message>
    <message>
        <source>ATA Disk</source>
        <translation>ATA 磁盘</translation>
    </message>
    <message>
        <source> hours</source>
        <translation> 小时</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> 分钟</translation>
    </message>
    <message>
        <source>Source and destination disks are same.</source>
        <translation>源磁盘和目标磁盘相同。</translation>
    </message>
    <message>
        <source>Destination disk size is smaller than source disk.</source>
        <translation>目标磁盘小于源磁盘。</translation>
    </message>
    <message>
        <source>Clone Disk</source>
        <translation>克隆磁盘</translation>
    </message>
    <message>
        <source>Select different destination disk.</source>
        <translation>请选择其他目标磁盘。</translation>
    </message>
    <message>
        <source>Cloning Failed</source>
        <translation>克隆失败</translation>
    </message>
    <message>
        <source>Unable to write on destination disk.</source>
        <translation>无法写入目标磁盘。</translation>
    </message>
    <message>
        <source>Select other destination disk.</source>
        <translation>请选择其他目标磁盘。</translation>
    </message>
    <message>
        <source>Abort Clone</source>
        <translation>中止克隆</translation>
    </message>
    <message>
        <source>Cloning Aborted.</source>
        <translation>克隆已中止。</translation>
    </message>
    <message>
        <source>Disk Cloning complete.</source>
        <translation>磁盘克隆完成。</translation>
    </message>
    <message>
        <source>Disk cloning process completed successfully.</source>
        <translation>磁盘克隆已成功完成。</translation>
    </message>
    <message>
        <source>Cloning aborted.</source>
        <translation>克隆已中止。</translation>
    </message>
    <message>
        <source>Cloning process aborted by the user.</source>
        <translation>用户已中止克隆过程。</translation>
    </message>
    <message>
        <source>Select Destination</source>
        <translation>选择目标</translation>
    </message>
    <message>
        <source>The disks are not there any more.</source>
        <translation>磁盘已不存在。</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>内存不足。</translation>
    </message>
    <message>
        <source>The source disk cannot be opened.</source>
        <translation>无法打开源磁盘。</translation>
    </message>
    <message>
        <source>The destination disk cannot be opened.</source>
        <translation>无法打开目标磁盘。</translation>
    </message>
    <message>
        <source>The source disk is not the one that was chosen.</source>
        <translation>源磁盘不是所选的磁盘。</translation>
    </message>
    <message>
        <source>The destination disk is not the one that was chosen.</source>
        <translation>目标磁盘不是所选的磁盘。</translation>
    </message>
    <message>
        <source>The source disk has no sectors.</source>
        <translation>源磁盘没有扇区。</translation>
    </message>
    <message>
        <source>The system runs from the destination disk.</source>
        <translation>系统正从目标磁盘运行。</translation>
    </message>
    <message>
        <source>A volume of the destination disk is in use.</source>
        <translation>目标磁盘的一个卷正在使用中。</translation>
    </message>
    <message>
        <source>The destination disk is in use.</source>
        <translation>目标磁盘正在使用中。</translation>
    </message>
    <message>
        <source>It cannot be found out whether the destination disk is in use.</source>
        <translation>无法确定目标磁盘是否正在使用。</translation>
    </message>
    <message>
        <source>The destination disk cannot be written. It may be in use.</source>
        <translation>无法写入目标磁盘。它可能正在使用中。</translation>
    </message>
    <message>
        <source>The source disk does not answer any more.</source>
        <translation>源磁盘不再响应。</translation>
    </message>
    <message>
        <source>The destination disk does not answer any more.</source>
        <translation>目标磁盘不再响应。</translation>
    </message>
    <message>
        <source>%1 sectors could not be read and were filled with zeros. %2 sectors could not be written.</source>
        <translation>%1 个扇区无法读取，已用零填充。%2 个扇区无法写入。</translation>
    </message>
    <message>
        <source>The destination disk did not confirm that all data is stored.</source>
        <translation>目标磁盘未确认所有数据均已存储。</translation>
    </message>
    <message>
        <source>Disk Cloning complete with errors.</source>
        <translation>磁盘克隆已完成，但有错误。</translation>
    </message>
    <message>
        <source>Nothing was written on any disk.</source>
        <translation>未向任何磁盘写入数据。</translation>
    </message>
    <message>
        <source>The destination disk holds no complete copy.</source>
        <translation>目标磁盘上没有完整的副本。</translation>
    </message>
    <message>
        <source>Save List</source>
        <translation>保存列表</translation>
    </message>
    <message>
        <source>The list could not be saved.</source>
        <translation>无法保存列表。</translation>
    </message>
    <message>
        <source>%1 % of the disk copied</source>
        <translation>已复制磁盘的 %1 %</translation>
    </message>
</context>
<context>
    <name>CloningWarningDialog</name>
    <message>
        <source>Clone Disk</source>
        <translation>克隆磁盘</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>This action will create a clone of the source drive on the destination drive. Make sure that source and destination disk selection is correct since this operation is irreversible.</source>
        <translation>此操作将在目标驱动器上创建源驱动器的克隆。此操作不可撤销，请确保源磁盘和目标磁盘选择正确。</translation>
    </message>
    <message>
        <source>Existing data on the destination disk will be lost.</source>
        <translation>目标磁盘上的现有数据将会丢失。</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>Companion</name>
    <message>
        <source>%1 · health %2 %</source>
        <translation>%1 · 健康状态 %2 %</translation>
    </message>
    <message>
        <source>Asleep</source>
        <translation>休眠中</translation>
    </message>
    <message>
        <source>Asleep · last %1 at %2</source>
        <translation>休眠中 · 上次为 %1（%2）</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>过热</translation>
    </message>
    <message>
        <source>Warm since %1</source>
        <translation>自 %1 起偏热</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>偏热</translation>
    </message>
    <message>
        <source>Unknown disk</source>
        <translation>未知磁盘</translation>
    </message>
    <message>
        <source>Disk %1</source>
        <translation>磁盘 %1</translation>
    </message>
    <message>
        <source>Missing: check its cable</source>
        <translation>缺失：请检查连接线</translation>
    </message>
    <message>
        <source>Failing: back up this disk now</source>
        <translation>即将失效：请立即备份</translation>
    </message>
    <message>
        <source>Does not answer</source>
        <translation>没有响应</translation>
    </message>
    <message>
        <source>Tells nothing of its health</source>
        <translation>不提供健康状态信息</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>需要注意</translation>
    </message>
    <message>
        <source>No disk is watched.</source>
        <translation>没有正在监视的磁盘。</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>另有 %1 个</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>刚刚</translation>
    </message>
    <message>
        <source>1 minute ago</source>
        <translation>1 分钟前</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 分钟前</translation>
    </message>
</context>
<context>
    <name>ConfarmetionDialog</name>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
</context>
<context>
    <name>DestinitionWarningDailog</name>
    <message>
        <source>Clone Disk</source>
        <translation>克隆磁盘</translation>
    </message>
    <message>
        <source>Select target disk.</source>
        <translation>请选择目标磁盘。</translation>
    </message>
    <message>
        <source>Select target disk to start cloning process.</source>
        <translation>请选择目标磁盘以开始克隆。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>DiskPartition</name>
    <message>
        <source>ATA Disk</source>
        <translation>ATA 磁盘</translation>
    </message>
</context>
<context>
    <name>DiskStatus</name>
    <message>
        <source>Not Supported</source>
        <translation>不支持</translation>
    </message>
    <message>
        <source>Failed: back up your data</source>
        <translation>未通过: 请备份数据</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>通过</translation>
    </message>
    <message>
        <source>Not told</source>
        <translation>未告知</translation>
    </message>
</context>
<context>
    <name>DonutChartView</name>
    <message>
        <source>Disk </source>
        <translation>磁盘 </translation>
    </message>
</context>
<context>
    <name>DownloadUpdate</name>
    <message>
        <source>Software Update</source>
        <translation>软件更新</translation>
    </message>
    <message>
        <source>Downloading Files</source>
        <translation>正在下载文件</translation>
    </message>
</context>
<context>
    <name>Flyout</name>
    <message>
        <source>No disk is watched.</source>
        <translation>没有正在监视的磁盘。</translation>
    </message>
    <message>
        <source>Alarms on again</source>
        <translation>恢复警报</translation>
    </message>
    <message>
        <source>Pause alarms</source>
        <translation>暂停警报</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
</context>
<context>
    <name>FlyoutRow</name>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Limits…</source>
        <translation>限值…</translation>
    </message>
    <message>
        <source>Mark as seen</source>
        <translation>标记为已读</translation>
    </message>
</context>
<context>
    <name>InfoDialog</name>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Save List</source>
        <translation>保存列表</translation>
    </message>
</context>
<context>
    <name>LimitsDialog</name>
    <message>
        <source>Limits of this disk</source>
        <translation>此磁盘的限值</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Limits of its own</source>
        <translation>使用单独的限值</translation>
    </message>
    <message>
        <source>Warning Temperature</source>
        <translation>警告温度</translation>
    </message>
    <message>
        <source>Shutdown Temperature</source>
        <translation>关机温度</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Not Available</source>
        <translation>不可用</translation>
    </message>
    <message>
        <source>Disk Drive </source>
        <translation>磁盘驱动器 </translation>
    </message>
    <message>
        <source>English</source>
        <translation>英语</translation>
    </message>
    <message>
        <source>German</source>
        <translation>德语</translation>
    </message>
    <message>
        <source>French</source>
        <translation>法语</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>意大利语</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>西班牙语</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日语</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中文</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韩语</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>荷兰语</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>葡萄牙语（巴西）</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>印地语</translation>
    </message>
    <message>
        <source>   Disk Status</source>
        <translation>   磁盘状态</translation>
    </message>
    <message>
        <source>View the health status of your hard disk</source>
        <translation>查看硬盘的健康状态</translation>
    </message>
    <message>
        <source>   SMART Status</source>
        <translation>   SMART 状态</translation>
    </message>
    <message>
        <source>Detailed SMART status of the hard disk</source>
        <translation>硬盘的详细 SMART 状态</translation>
    </message>
    <message>
        <source>   Disk Partition</source>
        <translation>   磁盘分区</translation>
    </message>
    <message>
        <source>View description of partitions in your hard disk</source>
        <translation>查看硬盘分区的说明</translation>
    </message>
    <message>
        <source>   Scan Disk</source>
        <translation>   扫描磁盘</translation>
    </message>
    <message>
        <source>Scan your hard disk for bad sectors</source>
        <translation>扫描硬盘上的坏扇区</translation>
    </message>
    <message>
        <source>   Clone Disk</source>
        <translation>   克隆磁盘</translation>
    </message>
    <message>
        <source>Clone hard disk to avoid impending disk issues</source>
        <translation>克隆硬盘，防患于未然</translation>
    </message>
    <message>
        <source>Extended Self-test</source>
        <translation>扩展自检</translation>
    </message>
    <message>
        <source>Short Self-test</source>
        <translation>快速自检</translation>
    </message>
    <message>
        <source>Aborted by User</source>
        <translation>已被用户中止</translation>
    </message>
    <message>
        <source>Successfully Completed</source>
        <translation>已成功完成</translation>
    </message>
    <message>
        <source>Failed by Read Element</source>
        <translation>读取部件失败</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>不可用</translation>
    </message>
    <message>
        <source> days</source>
        <translation> 天</translation>
    </message>
    <message>
        <source> hours</source>
        <translation> 小时</translation>
    </message>
    <message>
        <source>More than 1000</source>
        <translation>超过 1000</translation>
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
        <translation>良好</translation>
    </message>
    <message>
        <source>Bad</source>
        <translation>不良</translation>
    </message>
    <message>
        <source>Not Supported</source>
        <translation>不支持</translation>
    </message>
    <message>
        <source>Supported</source>
        <translation>支持</translation>
    </message>
    <message>
        <source>NA</source>
        <translation>不适用</translation>
    </message>
    <message>
        <source>Disk Information:</source>
        <translation>磁盘信息：</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Details:</source>
        <translation>S.M.A.R.T. 详细信息：</translation>
    </message>
    <message>
        <source>Model Number:</source>
        <translation>型号：</translation>
    </message>
    <message>
        <source>Serial Number:</source>
        <translation>序列号：</translation>
    </message>
    <message>
        <source>Firmware Version:</source>
        <translation>固件版本：</translation>
    </message>
    <message>
        <source>Capacity:</source>
        <translation>容量：</translation>
    </message>
    <message>
        <source>Sector Size:</source>
        <translation>扇区大小：</translation>
    </message>
    <message>
        <source>Local  Time:</source>
        <translation>本地时间：</translation>
    </message>
    <message>
        <source>Maximum Data Transfer Size:</source>
        <translation>最大数据传输大小：</translation>
    </message>
    <message>
        <source>SMART Status:</source>
        <translation>SMART 状态：</translation>
    </message>
    <message>
        <source>Current Temperature:</source>
        <translation>当前温度：</translation>
    </message>
    <message>
        <source>Performance:</source>
        <translation>性能：</translation>
    </message>
    <message>
        <source>Health:</source>
        <translation>健康状态：</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Attribute Name</source>
        <translation>属性名称</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Self Test Details:</source>
        <translation>自检详细信息：</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Details</source>
        <translation>S.M.A.R.T. 详细信息</translation>
    </message>
    <message>
        <source>Make:</source>
        <translation>制造商：</translation>
    </message>
    <message>
        <source>Rotation Rate:</source>
        <translation>转速：</translation>
    </message>
    <message>
        <source>ATA Version:</source>
        <translation>ATA 版本：</translation>
    </message>
    <message>
        <source>SATA Version:</source>
        <translation>SATA 版本：</translation>
    </message>
    <message>
        <source>Short Self-test:</source>
        <translation>快速自检：</translation>
    </message>
    <message>
        <source>Estimated Completion Time:</source>
        <translation>预计完成时间：</translation>
    </message>
    <message>
        <source>Extended Self-test:</source>
        <translation>扩展自检：</translation>
    </message>
    <message>
        <source>Last Run Self-test:</source>
        <translation>上次运行的自检：</translation>
    </message>
    <message>
        <source>Last Self-Test Result:</source>
        <translation>上次自检结果：</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>当前值</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>最差值</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>阈值</translation>
    </message>
    <message>
        <source>Raw Value</source>
        <translation>原始值</translation>
    </message>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Report</source>
        <translation>S.M.A.R.T. 报告</translation>
    </message>
    <message>
        <source>The information contained in this report has been generated by the Velmora Halvane profiling process.</source>
        <translation>本报告中的信息由 Velmora Halvane 分析过程生成。</translation>
    </message>
    <message>
        <source>Velmora Halvane is a product of Korvane.</source>
        <translation>Velmora Halvane 是 Korvane 的产品。</translation>
    </message>
    <message>
        <source>Velmora Halvane is a product of Velmora.</source>
        <translation>Velmora Halvane 是 Velmora 的产品。</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>未通过</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>通过</translation>
    </message>
    <message>
        <source>Source disk:     </source>
        <translation>源磁盘:     </translation>
    </message>
    <message>
        <source>Destination disk:    </source>
        <translation>目标磁盘:    </translation>
    </message>
    <message>
        <source>Clone Disk</source>
        <translation>克隆磁盘</translation>
    </message>
    <message>
        <source>Clone Running.</source>
        <translation>正在克隆。</translation>
    </message>
    <message>
        <source>Cloning process running.</source>
        <translation>克隆过程正在运行。</translation>
    </message>
    <message>
        <source>Please halt the clone process to exit.</source>
        <translation>请先停止克隆再退出。</translation>
    </message>
    <message>
        <source>Scan Disk</source>
        <translation>扫描磁盘</translation>
    </message>
    <message>
        <source>Scaning Running.</source>
        <translation>正在扫描。</translation>
    </message>
    <message>
        <source>Disk scan running.</source>
        <translation>磁盘扫描正在运行。</translation>
    </message>
    <message>
        <source>Please halt the scan process to exit.</source>
        <translation>请先停止扫描再退出。</translation>
    </message>
    <message>
        <source>SMART Status</source>
        <translation>SMART 状态</translation>
    </message>
    <message>
        <source>Please wait. Application Refreshing...</source>
        <translation>请稍候。正在刷新...</translation>
    </message>
    <message>
        <source>Stop Clone</source>
        <translation>停止克隆</translation>
    </message>
    <message>
        <source>Cloning can not be resumed from the current stage.</source>
        <translation>克隆无法从当前阶段继续。</translation>
    </message>
    <message>
        <source>Do you wish to abort the cloning?</source>
        <translation>要中止克隆吗？</translation>
    </message>
    <message>
        <source>Stop Scan</source>
        <translation>停止扫描</translation>
    </message>
    <message>
        <source>Scan can not be resumed from the current stage.</source>
        <translation>扫描无法从当前阶段继续。</translation>
    </message>
    <message>
        <source>Do you wish to abort the scan?</source>
        <translation>要中止扫描吗？</translation>
    </message>
    <message>
        <source>(BitLocker)</source>
        <translation>(BitLocker)</translation>
    </message>
    <message>
        <source>No Partition Found</source>
        <translation>未找到分区</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>保存文件</translation>
    </message>
    <message>
        <source>Self-test can not be resumed from the current stage.</source>
        <translation>自检无法从当前阶段继续。</translation>
    </message>
    <message>
        <source>Do you wish to abort the Self-test?</source>
        <translation>要中止自检吗？</translation>
    </message>
    <message>
        <source>Please wait. Getting SMART information...</source>
        <translation>请稍候。正在获取 SMART 信息...</translation>
    </message>
    <message>
        <source>Graph : </source>
        <translation>图表: </translation>
    </message>
    <message>
        <source>Running, no problems found</source>
        <translation>正在运行，未发现问题</translation>
    </message>
    <message>
        <source>Test failed by Read Element</source>
        <translation>测试因读取部件而失败</translation>
    </message>
    <message>
        <source>Test Interrupted by the Host</source>
        <translation>测试被主机中断</translation>
    </message>
    <message>
        <source>Test ended by Fatal or Unknown Error</source>
        <translation>因致命或未知错误而终止</translation>
    </message>
    <message>
        <source>Test failed by Unknown Element</source>
        <translation>测试因未知部件而失败</translation>
    </message>
    <message>
        <source>Test failed by Electrical Element</source>
        <translation>测试因电气部件而失败</translation>
    </message>
    <message>
        <source>Test failed by Servo Element</source>
        <translation>测试因伺服部件而失败</translation>
    </message>
    <message>
        <source>Test failed, Handling Damage suspected</source>
        <translation>测试失败，疑似搬运损坏</translation>
    </message>
    <message>
        <source>Test ended with Unknown Status</source>
        <translation>测试以未知状态结束</translation>
    </message>
    <message>
        <source>No Status from the Drive</source>
        <translation>磁盘未返回状态</translation>
    </message>
    <message>
        <source>Test Aborted by User</source>
        <translation>测试已被用户中止</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> 分钟</translation>
    </message>
    <message>
        <source>Healthy</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Not Healthy</source>
        <translation>异常</translation>
    </message>
    <message>
        <source>% Free</source>
        <translation>% 可用</translation>
    </message>
    <message>
        <source> Free of </source>
        <translation> 可用，共 </translation>
    </message>
    <message>
        <source> Available</source>
        <translation> 可用</translation>
    </message>
    <message>
        <source>The self-test has ended.</source>
        <translation>自检已结束。</translation>
    </message>
    <message>
        <source>%1 volumes: %2</source>
        <translation>%1 个卷: %2</translation>
    </message>
    <message>
        <source>From %1 to %2: lowest value %3, highest %4, latest %5</source>
        <translation>%1 至 %2: 最小值 %3，最大值 %4，最新值 %5</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>一般</translation>
    </message>
</context>
<context>
    <name>Monitor</name>
    <message>
        <source>Back up this disk now.</source>
        <translation>请立即备份此磁盘。</translation>
    </message>
    <message>
        <source>temperature %1, limit %2</source>
        <translation>温度 %1，限值 %2</translation>
    </message>
    <message>
        <source>See to its cooling.</source>
        <translation>请检查其散热。</translation>
    </message>
    <message>
        <source>temperature %1, shutdown limit %2</source>
        <translation>温度 %1，关机限值 %2</translation>
    </message>
    <message>
        <source>It is advisable to shut down the system now.</source>
        <translation>建议立即关闭系统。</translation>
    </message>
    <message>
        <source>the drive reports that it is failing: %3</source>
        <translation>磁盘报告自身即将失效：%3</translation>
    </message>
    <message>
        <source>the drive reports that it is failing</source>
        <translation>磁盘报告自身即将失效</translation>
    </message>
    <message>
        <source>critical warning: %3</source>
        <translation>严重警告：%3</translation>
    </message>
    <message>
        <source>failing attributes: %3</source>
        <translation>未通过的属性：%3</translation>
    </message>
    <message>
        <source>reallocated sectors: %1 (before: %2)</source>
        <translation>重新分配的扇区：%1（之前：%2）</translation>
    </message>
    <message>
        <source>reallocated sectors: %1</source>
        <translation>重新分配的扇区：%1</translation>
    </message>
    <message>
        <source>pending sectors: %1 (before: %2)</source>
        <translation>待处理的扇区：%1（之前：%2）</translation>
    </message>
    <message>
        <source>pending sectors: %1</source>
        <translation>待处理的扇区：%1</translation>
    </message>
    <message>
        <source>uncorrectable errors: %1 (before: %2)</source>
        <translation>无法校正的错误：%1（之前：%2）</translation>
    </message>
    <message>
        <source>uncorrectable errors: %1</source>
        <translation>无法校正的错误：%1</translation>
    </message>
    <message>
        <source>media errors: %1 (before: %2)</source>
        <translation>介质错误：%1（之前：%2）</translation>
    </message>
    <message>
        <source>media errors: %1</source>
        <translation>介质错误：%1</translation>
    </message>
    <message>
        <source>spare %1 %, threshold %2 %</source>
        <translation>备用空间 %1 %，阈值 %2 %</translation>
    </message>
    <message>
        <source>wear %1 %</source>
        <translation>磨损 %1 %</translation>
    </message>
    <message>
        <source>Plan to replace this disk, and keep a backup.</source>
        <translation>请计划更换此磁盘，并保留备份。</translation>
    </message>
    <message>
        <source>the self-test failed: %3</source>
        <translation>自检失败：%3</translation>
    </message>
    <message>
        <source>the disk does not answer</source>
        <translation>磁盘没有响应</translation>
    </message>
    <message>
        <source>Check its cable. Back it up as soon as it answers.</source>
        <translation>请检查连接线。一有响应就立即备份。</translation>
    </message>
    <message>
        <source>the disk is missing</source>
        <translation>磁盘缺失</translation>
    </message>
    <message>
        <source>Check its cable. If it comes back, back it up.</source>
        <translation>请检查连接线。如果恢复，请备份。</translation>
    </message>
    <message>
        <source>the disk is back</source>
        <translation>磁盘已恢复</translation>
    </message>
    <message>
        <source>the log cannot be written: %3</source>
        <translation>无法写入日志：%3</translation>
    </message>
    <message>
        <source>Choose another file for it in Settings.</source>
        <translation>请在设置中选择其他文件。</translation>
    </message>
    <message>
        <source>the spare is used up</source>
        <translation>备用空间已用尽</translation>
    </message>
    <message>
        <source>too hot or too cold</source>
        <translation>温度过高或过低</translation>
    </message>
    <message>
        <source>less reliable after errors of the medium</source>
        <translation>介质出错后可靠性下降</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>the backup of its memory has failed</source>
        <translation>内存备份装置失效</translation>
    </message>
    <message>
        <source>the persistent memory is read-only</source>
        <translation>持久内存为只读</translation>
    </message>
</context>
<context>
    <name>QCheckUpdate</name>
    <message>
        <source>No update available.</source>
        <translation>没有可用的更新。</translation>
    </message>
</context>
<context>
    <name>QDownloadApp</name>
    <message>
        <source>Downloading under progress...</source>
        <translation>正在下载...</translation>
    </message>
    <message>
        <source>Time Elapsed: </source>
        <translation>已用时间: </translation>
    </message>
    <message>
        <source> sec </source>
        <translation> 秒 </translation>
    </message>
    <message>
        <source> MB copied) </source>
        <translation> MB 已复制) </translation>
    </message>
    <message>
        <source> MB of  </source>
        <translation> MB /  </translation>
    </message>
    <message>
        <source>Transfer Rate: </source>
        <translation>传输速率: </translation>
    </message>
    <message>
        <source> KB/sec </source>
        <translation> KB/秒 </translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>软件更新</translation>
    </message>
    <message>
        <source>Update failed 

Update failed due to partial download.</source>
        <translation>更新失败 

由于下载不完整，更新失败。</translation>
    </message>
    <message>
        <source>The update could not be verified and was not started.</source>
        <translation>无法验证此更新，因此未启动。</translation>
    </message>
</context>
<context>
    <name>QGridView</name>
    <message>
        <source> to </source>
        <translation> 至 </translation>
    </message>
    <message>
        <source>Start Sector of current block: </source>
        <translation>当前块的起始扇区: </translation>
    </message>
    <message>
        <source>End Sector of current block: </source>
        <translation>当前块的结束扇区: </translation>
    </message>
    <message>
        <source>Current Block Size : </source>
        <translation>当前块大小: </translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>%1 cells, %2 with unreadable sectors</source>
        <translation>%1 个单元格，其中 %2 个含有无法读取的扇区</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Velmora Halvane already running. Cannot start more than one instance of the application.</source>
        <translation>Velmora Halvane 已在运行。无法启动多个应用程序实例。</translation>
    </message>
    <message>
        <source>Velmora Halvane cannot start: there is no folder for its temporary files that other users cannot change.</source>
        <translation>无法启动 Velmora Halvane：没有其他用户无法更改的临时文件夹。</translation>
    </message>
</context>
<context>
    <name>QRoundProgressBar</name>
    <message>
        <source>Complete</source>
        <translation>已完成</translation>
    </message>
</context>
<context>
    <name>QShowUpdate</name>
    <message>
        <source>A new major release </source>
        <translation>新的主要版本 </translation>
    </message>
    <message>
        <source>A new minor update </source>
        <translation>新的次要更新 </translation>
    </message>
    <message>
        <source> is available. Click Update to proceed further.</source>
        <translation> 已发布。请单击“更新”继续。</translation>
    </message>
    <message>
        <source>Visit Update Page</source>
        <translation>访问更新页面</translation>
    </message>
</context>
<context>
    <name>QWaitClass</name>
    <message>
        <source>Initializing Velmora Halvane...</source>
        <translation>正在初始化 Velmora Halvane...</translation>
    </message>
</context>
<context>
    <name>SaveListButton</name>
    <message>
        <source>Save List</source>
        <translation>保存列表</translation>
    </message>
    <message>
        <source>The list could not be saved.</source>
        <translation>无法保存列表。</translation>
    </message>
    <message>
        <source>Saves the bad sectors as a text or as a map file of GNU ddrescue</source>
        <translation>将坏扇区保存为文本或 GNU ddrescue 的映射文件</translation>
    </message>
</context>
<context>
    <name>ScanDisk</name>
    <message>
        <source> hours</source>
        <translation> 小时</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> 分钟</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>剩余时间</translation>
    </message>
    <message>
        <source>Time Elapsed</source>
        <translation>已用时间</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Disk Scan</source>
        <translation>磁盘扫描</translation>
    </message>
    <message>
        <source>Disk scan aborted.</source>
        <translation>磁盘扫描已中止。</translation>
    </message>
    <message>
        <source>Disk scan aborted by user.</source>
        <translation>用户已中止磁盘扫描。</translation>
    </message>
    <message>
        <source>Scan Completed</source>
        <translation>扫描完成</translation>
    </message>
    <message>
        <source>Scan Completed.</source>
        <translation>扫描已完成。</translation>
    </message>
    <message>
        <source>Scan Failed</source>
        <translation>扫描失败</translation>
    </message>
    <message>
        <source>Scan Failed.</source>
        <translation>扫描失败。</translation>
    </message>
    <message>
        <source>The disk is no longer connected.</source>
        <translation>磁盘已断开连接。</translation>
    </message>
    <message>
        <source>Sector %1 (LBA), byte offset %2</source>
        <translation>扇区 %1 (LBA)，字节偏移 %2</translation>
    </message>
    <message>
        <source>Sectors %1 to %2 (LBA), byte offset %3</source>
        <translation>扇区 %1 至 %2 (LBA)，字节偏移 %3</translation>
    </message>
    <message>
        <source>Disk:</source>
        <translation>磁盘:</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>序列号:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>日期:</translation>
    </message>
    <message>
        <source>Scanned: the first %1 of %2 sectors</source>
        <translation>已扫描: 前 %1 个扇区，共 %2 个</translation>
    </message>
    <message>
        <source>Result:</source>
        <translation>结果:</translation>
    </message>
    <message>
        <source>Bad sectors: %1</source>
        <translation>坏扇区: %1</translation>
    </message>
</context>
<context>
    <name>ScanSwitchDialog</name>
    <message>
        <source>Scan Disk</source>
        <translation>扫描磁盘</translation>
    </message>
    <message>
        <source>Scan results will be lost if you move away from this screen. </source>
        <translation>离开此屏幕将丢失扫描结果。 </translation>
    </message>
    <message>
        <source>Do you want to move away from this screen?</source>
        <translation>要离开此屏幕吗？</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
</context>
<context>
    <name>SelfTestNotSupportedDialog</name>
    <message>
        <source>Drive Test</source>
        <translation>驱动器测试</translation>
    </message>
    <message>
        <source>Self-test not supported.</source>
        <translation>不支持自检。</translation>
    </message>
    <message>
        <source>Selected disk doesn&apos;t support self test.</source>
        <translation>所选磁盘不支持自检。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>SelfTestPanelForm</name>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Polling Time</source>
        <translation>预计时间</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>剩余时间</translation>
    </message>
    <message>
        <source>Time Elapsed</source>
        <translation>已用时间</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Save log file</source>
        <translation>保存日志文件</translation>
    </message>
    <message>
        <source>Your Software has all latest updates installed.</source>
        <translation>您的软件已安装所有最新更新。</translation>
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
        <translation>更新</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
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
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>SmartShutdownDialog</name>
    <message>
        <source>Shutdown Warning</source>
        <translation>关机警告</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Hard Disk&apos;s temperature has reached the shutdown value.</source>
        <translation>硬盘温度已达到关机值。</translation>
    </message>
    <message>
        <source>It is advisable to shutdown the system immediately.</source>
        <translation>建议立即关闭系统。</translation>
    </message>
    <message>
        <source>Shutdown</source>
        <translation>关机</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
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
        <translation>属性名称</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>当前值</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>最差值</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>阈值</translation>
    </message>
    <message>
        <source>Raw Value</source>
        <translation>原始值</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>未通过</translation>
    </message>
    <message>
        <source>Better</source>
        <translation>改善</translation>
    </message>
    <message>
        <source>Overall Status</source>
        <translation>总体状态</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>值</translation>
    </message>
    <message>
        <source>AttName</source>
        <translation>AttName</translation>
    </message>
    <message>
        <source>PASSED</source>
        <translation>通过</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>图表</translation>
    </message>
    <message>
        <source>FAIELD</source>
        <translation>未通过</translation>
    </message>
    <message>
        <source>ATA Disk</source>
        <translation>ATA 磁盘</translation>
    </message>
</context>
<context>
    <name>SmartWarningDialog</name>
    <message>
        <source>SMART Warning</source>
        <translation>SMART 警告</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Hard Disk&apos;s temperature exceed the threshold value.</source>
        <translation>硬盘温度超过阈值。</translation>
    </message>
    <message>
        <source>Your hard disk&apos;s temperature has exceeded threshold value. This may damage hard disk. It is advisable to shutdown the system immediately.</source>
        <translation>硬盘温度已超过阈值，可能会损坏硬盘。建议立即关闭系统。</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>不再显示</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Refresh now</source>
        <translation>立即刷新</translation>
    </message>
    <message>
        <source>Pause alarms for an hour</source>
        <translation>暂停警报一小时</translation>
    </message>
    <message>
        <source>Show lowest health</source>
        <translation>显示最低健康状态</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
</context>
<context>
    <name>VolumeFrame</name>
    <message>
        <source>Partition</source>
        <translation>分区</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空间</translation>
    </message>
</context>
<context>
    <name>m_pCloneDiskwgt</name>
    <message>
        <source>Disk Details</source>
        <translation>磁盘详细信息</translation>
    </message>
    <message>
        <source>Source Disk</source>
        <translation>源磁盘</translation>
    </message>
    <message>
        <source>Target Disk</source>
        <translation>目标磁盘</translation>
    </message>
    <message>
        <source>Remaining Time</source>
        <translation>剩余时间</translation>
    </message>
</context>
<context>
    <name>m_pCloseWgt</name>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Are you sure you want to exit?</source>
        <translation>确定要退出吗？</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
</context>
<context>
    <name>m_pDiskPartitionWgt</name>
    <message>
        <source>Disk Partition</source>
        <translation>磁盘分区</translation>
    </message>
    <message>
        <source>Partition Details</source>
        <translation>分区详细信息</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>接口类型</translation>
    </message>
</context>
<context>
    <name>m_pDiskStatus</name>
    <message>
        <source>Disk Details</source>
        <translation>磁盘详细信息</translation>
    </message>
    <message>
        <source>Disk Number</source>
        <translation>磁盘编号</translation>
    </message>
    <message>
        <source>Model Number</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Firmware Revision</source>
        <translation>固件版本</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>接口类型</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>扇区总数</translation>
    </message>
    <message>
        <source>Hard Disk Life</source>
        <translation>硬盘寿命</translation>
    </message>
    <message>
        <source>Power-on Time</source>
        <translation>通电时间</translation>
    </message>
    <message>
        <source>Start/Stop Count</source>
        <translation>启停次数</translation>
    </message>
    <message>
        <source>Drive&apos;s verdict</source>
        <translation>硬盘自身结论</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Performance</source>
        <translation>性能</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>健康状态</translation>
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
        <translation>序列号</translation>
    </message>
    <message>
        <source>SMART Status</source>
        <translation>SMART 状态</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>克隆</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>保存报告</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>屏幕截图</translation>
    </message>
    <message>
        <source>View Velmora Halvane help document</source>
        <translation>查看 Velmora Halvane 帮助文档</translation>
    </message>
    <message>
        <source>More Tools</source>
        <translation>更多工具</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Recover Data</source>
        <translation>恢复数据</translation>
    </message>
    <message>
        <source>Repair Video</source>
        <translation>修复视频</translation>
    </message>
    <message>
        <source>Repair Photo</source>
        <translation>修复照片</translation>
    </message>
</context>
<context>
    <name>m_pScanDiskwgt</name>
    <message>
        <source>Scan Disk</source>
        <translation>扫描磁盘</translation>
    </message>
    <message>
        <source>Disk Size</source>
        <translation>磁盘大小</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>扇区总数</translation>
    </message>
    <message>
        <source>Block Size</source>
        <translation>块大小</translation>
    </message>
    <message>
        <source>  Processed</source>
        <translation>  已处理</translation>
    </message>
    <message>
        <source>  Bad Sectors</source>
        <translation>  坏扇区</translation>
    </message>
    <message>
        <source>  Processing</source>
        <translation>  处理中</translation>
    </message>
    <message>
        <source>Short Self-test</source>
        <translation>快速自检</translation>
    </message>
    <message>
        <source>Extended Self-test</source>
        <translation>扩展自检</translation>
    </message>
    <message>
        <source>Perform a surface scan on the selected disk to identify if the disk has bad sectors.</source>
        <translation>对所选磁盘进行表面扫描，检查磁盘是否有坏扇区。</translation>
    </message>
    <message>
        <source>Run this test to check the electrical and mechanical performance of a device along with the read/write operations on a portion of the disk. This test may take few minutes to complete.</source>
        <translation>此测试检查设备的电气和机械性能，以及磁盘部分区域的读写操作。测试可能需要几分钟。</translation>
    </message>
    <message>
        <source>This test is same as a short self-test with a complete disk surface examination. This test may take up to few hours to complete.</source>
        <translation>此测试与快速自检相同，并会检查整个磁盘表面。测试可能需要几个小时。</translation>
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
        <translation>  设置</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Show status in tray</source>
        <translation>在托盘中显示状态</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英语</translation>
    </message>
    <message>
        <source>German</source>
        <translation>德语</translation>
    </message>
    <message>
        <source>French</source>
        <translation>法语</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>意大利语</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>西班牙语</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>荷兰语</translation>
    </message>
    <message>
        <source>Portuguese (Brazil)</source>
        <translation>葡萄牙语（巴西）</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>印地语</translation>
    </message>
    <message>
        <source>LOGS</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Save log file</source>
        <translation>保存日志文件</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Max log size (KB)</source>
        <translation>日志大小上限 (KB)</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Show Temperature in</source>
        <translation>温度显示单位</translation>
    </message>
    <message>
        <source>Celsius</source>
        <translation>摄氏度</translation>
    </message>
    <message>
        <source>Fahrenheit</source>
        <translation>华氏度</translation>
    </message>
    <message>
        <source>Enable Temperature Alarm</source>
        <translation>启用温度警报</translation>
    </message>
    <message>
        <source>Warning Temperature</source>
        <translation>警告温度</translation>
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
        <translation>关机温度</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>检查更新</translation>
    </message>
    <message>
        <source>View Velmora Halvane help document</source>
        <translation>查看 Velmora Halvane 帮助文档</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>m_pSmartWgt</name>
    <message>
        <source>SMART Status : </source>
        <translation>SMART 状态: </translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>接口类型</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>保存报告</translation>
    </message>
    <message>
        <source>Smart Status</source>
        <translation>SMART 状态</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
</context>
</TS>
