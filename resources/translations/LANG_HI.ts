<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi_IN" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Velmora Halvane</source>
        <translation>Velmora Halvane के बारे में</translation>
    </message>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>License Agreement</source>
        <translation>लाइसेंस अनुबंध</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ठीक</translation>
    </message>
</context>
<context>
    <name>AboutDlg</name>
    <message>
        <source>Version </source>
        <translation>संस्करण </translation>
    </message>
</context>
<context>
    <name>AccessNotice</name>
    <message>
        <source>No disk can be opened</source>
        <translation>कोई डिस्क नहीं खोली जा सकती</translation>
    </message>
    <message>
        <source>Velmora Halvane needs the rights of an administrator to open disks. Without them nothing can be said of their health.</source>
        <translation>डिस्क खोलने के लिए Velmora Halvane को व्यवस्थापक के अधिकार चाहिए। इनके बिना डिस्क के स्वास्थ्य के बारे में कुछ नहीं कहा जा सकता।</translation>
    </message>
    <message>
        <source>Close the program, right-click its icon and choose &quot;Run as administrator&quot;.</source>
        <translation>प्रोग्राम बंद करें, उसके आइकन पर राइट-क्लिक करें और &quot;व्यवस्थापक के रूप में चलाएँ&quot; चुनें।</translation>
    </message>
    <message>
        <source>Close the program and start it as root. This command does it in a terminal:</source>
        <translation>प्रोग्राम बंद करें और उसे root के रूप में शुरू करें। टर्मिनल में यह आदेश ऐसा करता है:</translation>
    </message>
</context>
<context>
    <name>AttributeCatalogue</name>
    <message>
        <source>Raw Read Error Rate</source>
        <translation>रीड त्रुटि दर</translation>
    </message>
    <message>
        <source>Spin Up Time</source>
        <translation>स्पिन-अप समय</translation>
    </message>
    <message>
        <source>Start Stop Count</source>
        <translation>चालू/बंद संख्या</translation>
    </message>
    <message>
        <source>Reallocated Sector Count</source>
        <translation>पुनः आवंटित सेक्टर संख्या</translation>
    </message>
    <message>
        <source>Seek Error Rate</source>
        <translation>सीक त्रुटि दर</translation>
    </message>
    <message>
        <source>Power On Hours</source>
        <translation>चालू घंटे</translation>
    </message>
    <message>
        <source>Spin Retry Count</source>
        <translation>स्पिन पुनः प्रयास संख्या</translation>
    </message>
    <message>
        <source>Calibration Retry Count</source>
        <translation>कैलिब्रेशन पुनः प्रयास</translation>
    </message>
    <message>
        <source>Power Cycle Count</source>
        <translation>पावर चक्र संख्या</translation>
    </message>
    <message>
        <source>Power-Off Retract Count</source>
        <translation>पावर-ऑफ़ रिट्रैक्ट संख्या</translation>
    </message>
    <message>
        <source>Load Cycle Count</source>
        <translation>लोड चक्र संख्या</translation>
    </message>
    <message>
        <source>Temperature Celsius</source>
        <translation>तापमान (सेल्सियस)</translation>
    </message>
    <message>
        <source>Reallocated Event Count</source>
        <translation>पुनः आवंटन घटनाएँ</translation>
    </message>
    <message>
        <source>Current Pending Sector Count</source>
        <translation>लंबित सेक्टर संख्या</translation>
    </message>
    <message>
        <source>Offline Uncorrectable</source>
        <translation>ऑफ़लाइन असुधार्य सेक्टर</translation>
    </message>
    <message>
        <source>UDMA CRC Error Count</source>
        <translation>UDMA CRC त्रुटि संख्या</translation>
    </message>
    <message>
        <source>Multi Zone Error Rate</source>
        <translation>मल्टी ज़ोन त्रुटि दर</translation>
    </message>
    <message>
        <source>Available Reserved Space</source>
        <translation>उपलब्ध आरक्षित स्थान</translation>
    </message>
    <message>
        <source>SSD Program Fail Count</source>
        <translation>SSD प्रोग्राम विफलताएँ</translation>
    </message>
    <message>
        <source>SSD Erase Fail Count</source>
        <translation>SSD इरेज़ विफलताएँ</translation>
    </message>
    <message>
        <source>SSD Wear Leveling Count</source>
        <translation>SSD वियर लेवलिंग संख्या</translation>
    </message>
    <message>
        <source>Unexpected power loss count</source>
        <translation>अचानक बिजली जाने की संख्या</translation>
    </message>
    <message>
        <source>Throughput Performance</source>
        <translation>थ्रूपुट प्रदर्शन</translation>
    </message>
    <message>
        <source>Read Channel Margin</source>
        <translation>रीड चैनल मार्जिन</translation>
    </message>
    <message>
        <source>Seek Time Performance</source>
        <translation>सीक समय प्रदर्शन</translation>
    </message>
    <message>
        <source>Soft Read Error Rate</source>
        <translation>सॉफ़्ट रीड त्रुटि दर</translation>
    </message>
    <message>
        <source>Runtime Bad Block</source>
        <translation>रनटाइम ख़राब ब्लॉक</translation>
    </message>
    <message>
        <source>End-to-End Error </source>
        <translation>एंड-टू-एंड त्रुटि </translation>
    </message>
    <message>
        <source>Reported Uncorrect</source>
        <translation>सूचित असुधार्य त्रुटियाँ</translation>
    </message>
    <message>
        <source>Command Timeout</source>
        <translation>कमांड टाइमआउट</translation>
    </message>
    <message>
        <source>High Fly Writes</source>
        <translation>हाई फ़्लाई राइट</translation>
    </message>
    <message>
        <source>Airflow Temperature Cel</source>
        <translation>वायु प्रवाह तापमान</translation>
    </message>
    <message>
        <source>G-Sense Error Rate</source>
        <translation>G-सेंस त्रुटि दर</translation>
    </message>
    <message>
        <source>Hardware ECC Recovered</source>
        <translation>हार्डवेयर ECC सुधार</translation>
    </message>
    <message>
        <source>Multi Zone Error Rate </source>
        <translation>मल्टी ज़ोन त्रुटि दर </translation>
    </message>
    <message>
        <source>Write Error Rate</source>
        <translation>राइट त्रुटि दर</translation>
    </message>
    <message>
        <source>Head Flying Hours</source>
        <translation>हेड उड़ान घंटे</translation>
    </message>
    <message>
        <source>Total LBAs Written</source>
        <translation>कुल लिखे गए LBA</translation>
    </message>
    <message>
        <source>Total LBAs Read</source>
        <translation>कुल पढ़े गए LBA</translation>
    </message>
    <message>
        <source>Free Fall Sensor</source>
        <translation>फ़्री फ़ॉल सेंसर</translation>
    </message>
    <message>
        <source>Critical Warning</source>
        <translation>गंभीर चेतावनी</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>तापमान</translation>
    </message>
    <message>
        <source>Available Spare</source>
        <translation>उपलब्ध स्पेयर</translation>
    </message>
    <message>
        <source>Available Spare Threshold</source>
        <translation>स्पेयर सीमा</translation>
    </message>
    <message>
        <source>Percentage Used</source>
        <translation>उपयोग प्रतिशत</translation>
    </message>
    <message>
        <source>Data Units Read</source>
        <translation>पढ़ी गई डेटा इकाइयाँ</translation>
    </message>
    <message>
        <source>Data Units Written</source>
        <translation>लिखी गई डेटा इकाइयाँ</translation>
    </message>
    <message>
        <source>Host Read Commands</source>
        <translation>होस्ट रीड कमांड</translation>
    </message>
    <message>
        <source>Host Write Commands</source>
        <translation>होस्ट राइट कमांड</translation>
    </message>
    <message>
        <source>Controller Busy Time</source>
        <translation>कंट्रोलर व्यस्त समय</translation>
    </message>
    <message>
        <source>Power Cyles</source>
        <translation>पावर चक्र संख्या</translation>
    </message>
    <message>
        <source>Unsafe Shutdowns</source>
        <translation>असुरक्षित शटडाउन</translation>
    </message>
    <message>
        <source>Media and Data Integrity Errors</source>
        <translation>डेटा अखंडता त्रुटियाँ</translation>
    </message>
    <message>
        <source>Error Information Log Entries</source>
        <translation>त्रुटि लॉग प्रविष्टियाँ</translation>
    </message>
</context>
<context>
    <name>AttributeRows</name>
    <message>
        <source>FAILED</source>
        <translation>विफल</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ठीक</translation>
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
        <translation>अपडेट जाँचे जा रहे हैं...</translation>
    </message>
</context>
<context>
    <name>CloneDisk</name>
    <message>
        <source>Not Available</source>
        <translation>उपलब्ध नहीं</translation>
    </message>
    <message>
        <source>Disk Number 	: </source>
        <translation>डिस्क नंबर 	: </translation>
    </message>
    <message>
        <source>Model Number	: </source>
        <translation>मॉडल नंबर	: </translation>
    </message>
    <message>
        <source>Serial: </source>
        <translation>सीरियल नंबर: </translation>
    </message>
    <message>
        <source>Firmware Revision : </source>
        <translation>फ़र्मवेयर संस्करण : </translation>
    </message>
    <message>
        <source>Interface Type	   : </source>
        <translation>इंटरफ़ेस प्रकार	   : </translation>
    </message>
    <message>
        <source>Capacity	: </source>
        <translation>क्षमता	: </translation>
    </message>
    <message>
        <source>Total Sector	   : </source>
        <translation>कुल सेक्टर	   : </translation>
    </message>
    <message>
        <source>Model Number : </source>
        <translation>मॉडल नंबर : </translation>
    </message>
    <message>
        <source>Capacity           : </source>
        <translation>क्षमता           : </translation>
    </message>
    <message>
        <source>ATA Disk</source>
        <translation>ATA डिस्क</translation>
    </message>
    <message>
        <source> hours</source>
        <translation> घंटे</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> मिनट</translation>
    </message>
    <message>
        <source>Source and destination disks are same.</source>
        <translation>स्रोत और गंतव्य डिस्क एक ही हैं।</translation>
    </message>
    <message>
        <source>Destination disk size is smaller than source disk.</source>
        <translation>गंतव्य डिस्क स्रोत डिस्क से छोटी है।</translation>
    </message>
    <message>
        <source>Clone Disk</source>
        <translation>डिस्क क्लोन करें</translation>
    </message>
    <message>
        <source>Select different destination disk.</source>
        <translation>कोई दूसरी गंतव्य डिस्क चुनें।</translation>
    </message>
    <message>
        <source>Cloning Failed</source>
        <translation>क्लोनिंग विफल</translation>
    </message>
    <message>
        <source>Unable to write on destination disk.</source>
        <translation>गंतव्य डिस्क पर लिखा नहीं जा सका।</translation>
    </message>
    <message>
        <source>Select other destination disk.</source>
        <translation>कोई दूसरी गंतव्य डिस्क चुनें।</translation>
    </message>
    <message>
        <source>Abort Clone</source>
        <translation>क्लोन रद्द करें</translation>
    </message>
    <message>
        <source>Cloning Aborted.</source>
        <translation>क्लोनिंग रद्द की गई।</translation>
    </message>
    <message>
        <source>Disk Cloning complete.</source>
        <translation>डिस्क क्लोनिंग पूरी हुई।</translation>
    </message>
    <message>
        <source>Disk cloning process completed successfully.</source>
        <translation>डिस्क क्लोनिंग सफलतापूर्वक पूरी हुई।</translation>
    </message>
    <message>
        <source>Cloning aborted.</source>
        <translation>क्लोनिंग रद्द की गई।</translation>
    </message>
    <message>
        <source>Cloning process aborted by the user.</source>
        <translation>उपयोगकर्ता ने क्लोनिंग रद्द की।</translation>
    </message>
    <message>
        <source>Select Destination</source>
        <translation>गंतव्य चुनें</translation>
    </message>
    <message>
        <source>The disks are not there any more.</source>
        <translation>डिस्क अब मौजूद नहीं हैं।</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>पर्याप्त मेमोरी नहीं है।</translation>
    </message>
    <message>
        <source>The source disk cannot be opened.</source>
        <translation>स्रोत डिस्क खोली नहीं जा सकी।</translation>
    </message>
    <message>
        <source>The destination disk cannot be opened.</source>
        <translation>गंतव्य डिस्क खोली नहीं जा सकी।</translation>
    </message>
    <message>
        <source>The source disk is not the one that was chosen.</source>
        <translation>स्रोत डिस्क वह नहीं है जो चुनी गई थी।</translation>
    </message>
    <message>
        <source>The destination disk is not the one that was chosen.</source>
        <translation>गंतव्य डिस्क वह नहीं है जो चुनी गई थी।</translation>
    </message>
    <message>
        <source>The source disk has no sectors.</source>
        <translation>स्रोत डिस्क में कोई सेक्टर नहीं है।</translation>
    </message>
    <message>
        <source>The system runs from the destination disk.</source>
        <translation>सिस्टम गंतव्य डिस्क से चल रहा है।</translation>
    </message>
    <message>
        <source>A volume of the destination disk is in use.</source>
        <translation>गंतव्य डिस्क का एक वॉल्यूम उपयोग में है।</translation>
    </message>
    <message>
        <source>The destination disk is in use.</source>
        <translation>गंतव्य डिस्क उपयोग में है।</translation>
    </message>
    <message>
        <source>It cannot be found out whether the destination disk is in use.</source>
        <translation>यह पता नहीं चल सका कि गंतव्य डिस्क उपयोग में है या नहीं।</translation>
    </message>
    <message>
        <source>The destination disk cannot be written. It may be in use.</source>
        <translation>गंतव्य डिस्क पर लिखा नहीं जा सका। हो सकता है वह उपयोग में हो।</translation>
    </message>
    <message>
        <source>The source disk does not answer any more.</source>
        <translation>स्रोत डिस्क अब उत्तर नहीं दे रही है।</translation>
    </message>
    <message>
        <source>The destination disk does not answer any more.</source>
        <translation>गंतव्य डिस्क अब उत्तर नहीं दे रही है।</translation>
    </message>
    <message>
        <source>%1 sectors could not be read and were filled with zeros. %2 sectors could not be written.</source>
        <translation>%1 सेक्टर पढ़े नहीं जा सके और उन्हें शून्य से भरा गया। %2 सेक्टर लिखे नहीं जा सके।</translation>
    </message>
    <message>
        <source>The destination disk did not confirm that all data is stored.</source>
        <translation>गंतव्य डिस्क ने पुष्टि नहीं की कि सारा डेटा सहेजा गया है।</translation>
    </message>
    <message>
        <source>Disk Cloning complete with errors.</source>
        <translation>डिस्क क्लोनिंग त्रुटियों के साथ पूरी हुई।</translation>
    </message>
    <message>
        <source>Nothing was written on any disk.</source>
        <translation>किसी भी डिस्क पर कुछ नहीं लिखा गया।</translation>
    </message>
    <message>
        <source>The destination disk holds no complete copy.</source>
        <translation>गंतव्य डिस्क पर पूरी प्रति नहीं है।</translation>
    </message>
    <message>
        <source>Save List</source>
        <translation>सूची सहेजें</translation>
    </message>
    <message>
        <source>The list could not be saved.</source>
        <translation>सूची सहेजी नहीं जा सकी।</translation>
    </message>
    <message>
        <source>%1 % of the disk copied</source>
        <translation>डिस्क का %1 % कॉपी हुआ</translation>
    </message>
</context>
<context>
    <name>CloningWarningDialog</name>
    <message>
        <source>Clone Disk</source>
        <translation>डिस्क क्लोन करें</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>चेतावनी</translation>
    </message>
    <message>
        <source>This action will create a clone of the source drive on the destination drive. Make sure that source and destination disk selection is correct since this operation is irreversible.</source>
        <translation>यह क्रिया गंतव्य ड्राइव पर स्रोत ड्राइव का क्लोन बनाएगी। सुनिश्चित करें कि स्रोत और गंतव्य डिस्क सही चुनी गई हैं, क्योंकि यह क्रिया वापस नहीं ली जा सकती।</translation>
    </message>
    <message>
        <source>Existing data on the destination disk will be lost.</source>
        <translation>गंतव्य डिस्क पर मौजूद डेटा मिट जाएगा।</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>शुरू करें</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
</context>
<context>
    <name>Companion</name>
    <message>
        <source>%1 · health %2 %</source>
        <translation>%1 · स्वास्थ्य %2 %</translation>
    </message>
    <message>
        <source>Asleep</source>
        <translation>निष्क्रिय अवस्था में</translation>
    </message>
    <message>
        <source>Asleep · last %1 at %2</source>
        <translation>निष्क्रिय · पिछला मान %1, %2</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>बहुत गर्म</translation>
    </message>
    <message>
        <source>Warm since %1</source>
        <translation>%1 से गर्म</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>गर्म</translation>
    </message>
    <message>
        <source>Unknown disk</source>
        <translation>अज्ञात डिस्क</translation>
    </message>
    <message>
        <source>Disk %1</source>
        <translation>डिस्क %1</translation>
    </message>
    <message>
        <source>Missing: check its cable</source>
        <translation>अनुपस्थित: केबल जाँचें</translation>
    </message>
    <message>
        <source>Failing: back up this disk now</source>
        <translation>विफल हो रही है: अभी बैकअप लें</translation>
    </message>
    <message>
        <source>Does not answer</source>
        <translation>उत्तर नहीं दे रही</translation>
    </message>
    <message>
        <source>Tells nothing of its health</source>
        <translation>अपने स्वास्थ्य की जानकारी नहीं देती</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>ठीक है</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>ध्यान देना आवश्यक</translation>
    </message>
    <message>
        <source>No disk is watched.</source>
        <translation>किसी डिस्क की निगरानी नहीं हो रही है।</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>और %1 अन्य</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>अभी-अभी</translation>
    </message>
    <message>
        <source>1 minute ago</source>
        <translation>1 मिनट पहले</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 मिनट पहले</translation>
    </message>
</context>
<context>
    <name>ConfarmetionDialog</name>
    <message>
        <source>Yes</source>
        <translation>हाँ</translation>
    </message>
    <message>
        <source>No</source>
        <translation>नहीं</translation>
    </message>
</context>
<context>
    <name>DestinitionWarningDailog</name>
    <message>
        <source>Clone Disk</source>
        <translation>डिस्क क्लोन करें</translation>
    </message>
    <message>
        <source>Select target disk.</source>
        <translation>गंतव्य डिस्क चुनें।</translation>
    </message>
    <message>
        <source>Select target disk to start cloning process.</source>
        <translation>क्लोनिंग शुरू करने के लिए गंतव्य डिस्क चुनें।</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>बंद करें</translation>
    </message>
</context>
<context>
    <name>DiskPartition</name>
    <message>
        <source>ATA Disk</source>
        <translation>ATA डिस्क</translation>
    </message>
</context>
<context>
    <name>DiskStatus</name>
    <message>
        <source>Not Supported</source>
        <translation>समर्थित नहीं</translation>
    </message>
    <message>
        <source>Failed: back up your data</source>
        <translation>विफल: डेटा का बैकअप लें</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>सफल</translation>
    </message>
    <message>
        <source>Not told</source>
        <translation>नहीं बताया</translation>
    </message>
</context>
<context>
    <name>DonutChartView</name>
    <message>
        <source>Disk </source>
        <translation>डिस्क </translation>
    </message>
</context>
<context>
    <name>DownloadUpdate</name>
    <message>
        <source>Software Update</source>
        <translation>सॉफ़्टवेयर अपडेट</translation>
    </message>
    <message>
        <source>Downloading Files</source>
        <translation>फ़ाइलें डाउनलोड हो रही हैं</translation>
    </message>
</context>
<context>
    <name>Flyout</name>
    <message>
        <source>No disk is watched.</source>
        <translation>किसी डिस्क की निगरानी नहीं हो रही है।</translation>
    </message>
    <message>
        <source>Alarms on again</source>
        <translation>अलार्म फिर चालू करें</translation>
    </message>
    <message>
        <source>Pause alarms</source>
        <translation>अलार्म रोकें</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>सेटिंग्स</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>खोलें</translation>
    </message>
</context>
<context>
    <name>FlyoutRow</name>
    <message>
        <source>Open</source>
        <translation>खोलें</translation>
    </message>
    <message>
        <source>Limits…</source>
        <translation>सीमाएँ…</translation>
    </message>
    <message>
        <source>Mark as seen</source>
        <translation>देखा हुआ चिह्नित करें</translation>
    </message>
</context>
<context>
    <name>InfoDialog</name>
    <message>
        <source>Information</source>
        <translation>जानकारी</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ठीक</translation>
    </message>
    <message>
        <source>Save List</source>
        <translation>सूची सहेजें</translation>
    </message>
</context>
<context>
    <name>LimitsDialog</name>
    <message>
        <source>Limits of this disk</source>
        <translation>इस डिस्क की सीमाएँ</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ठीक</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>Limits of its own</source>
        <translation>अपनी अलग सीमाएँ</translation>
    </message>
    <message>
        <source>Warning Temperature</source>
        <translation>चेतावनी तापमान</translation>
    </message>
    <message>
        <source>Shutdown Temperature</source>
        <translation>शटडाउन तापमान</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Not Available</source>
        <translation>उपलब्ध नहीं</translation>
    </message>
    <message>
        <source>Disk Drive </source>
        <translation>डिस्क ड्राइव </translation>
    </message>
    <message>
        <source>English</source>
        <translation>अंग्रेज़ी</translation>
    </message>
    <message>
        <source>German</source>
        <translation>जर्मन</translation>
    </message>
    <message>
        <source>French</source>
        <translation>फ़्रेंच</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>इतालवी</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>स्पेनिश</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>जापानी</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>चीनी</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>कोरियाई</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>डच</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>पुर्तगाली (ब्राज़ील)</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>हिन्दी</translation>
    </message>
    <message>
        <source>   Disk Status</source>
        <translation>   डिस्क स्थिति</translation>
    </message>
    <message>
        <source>View the health status of your hard disk</source>
        <translation>अपनी हार्ड डिस्क का स्वास्थ्य देखें</translation>
    </message>
    <message>
        <source>   SMART Status</source>
        <translation>   SMART स्थिति</translation>
    </message>
    <message>
        <source>Detailed SMART status of the hard disk</source>
        <translation>हार्ड डिस्क की विस्तृत SMART स्थिति</translation>
    </message>
    <message>
        <source>   Disk Partition</source>
        <translation>   पार्टिशन</translation>
    </message>
    <message>
        <source>View description of partitions in your hard disk</source>
        <translation>अपनी हार्ड डिस्क के पार्टिशन का विवरण देखें</translation>
    </message>
    <message>
        <source>   Scan Disk</source>
        <translation>   डिस्क स्कैन</translation>
    </message>
    <message>
        <source>Scan your hard disk for bad sectors</source>
        <translation>हार्ड डिस्क में ख़राब सेक्टर खोजें</translation>
    </message>
    <message>
        <source>   Clone Disk</source>
        <translation>   डिस्क क्लोन</translation>
    </message>
    <message>
        <source>Clone hard disk to avoid impending disk issues</source>
        <translation>संभावित समस्याओं से बचने के लिए हार्ड डिस्क क्लोन करें</translation>
    </message>
    <message>
        <source>Extended Self-test</source>
        <translation>विस्तृत स्व-परीक्षण</translation>
    </message>
    <message>
        <source>Short Self-test</source>
        <translation>लघु स्व-परीक्षण</translation>
    </message>
    <message>
        <source>Aborted by User</source>
        <translation>उपयोगकर्ता ने रद्द किया</translation>
    </message>
    <message>
        <source>Successfully Completed</source>
        <translation>सफलतापूर्वक पूरा हुआ</translation>
    </message>
    <message>
        <source>Failed by Read Element</source>
        <translation>रीड एलिमेंट के कारण विफल</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>उपलब्ध नहीं</translation>
    </message>
    <message>
        <source> days</source>
        <translation> दिन</translation>
    </message>
    <message>
        <source> hours</source>
        <translation> घंटे</translation>
    </message>
    <message>
        <source>More than 1000</source>
        <translation>1000 से अधिक</translation>
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
        <translation>अच्छा</translation>
    </message>
    <message>
        <source>Bad</source>
        <translation>ख़राब</translation>
    </message>
    <message>
        <source>Not Supported</source>
        <translation>समर्थित नहीं</translation>
    </message>
    <message>
        <source>Supported</source>
        <translation>समर्थित</translation>
    </message>
    <message>
        <source>NA</source>
        <translation>लागू नहीं</translation>
    </message>
    <message>
        <source>Disk Information:</source>
        <translation>डिस्क जानकारी:</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Details:</source>
        <translation>S.M.A.R.T. विवरण:</translation>
    </message>
    <message>
        <source>Model Number:</source>
        <translation>मॉडल नंबर:</translation>
    </message>
    <message>
        <source>Serial Number:</source>
        <translation>सीरियल नंबर:</translation>
    </message>
    <message>
        <source>Firmware Version:</source>
        <translation>फ़र्मवेयर संस्करण:</translation>
    </message>
    <message>
        <source>Capacity:</source>
        <translation>क्षमता:</translation>
    </message>
    <message>
        <source>Sector Size:</source>
        <translation>सेक्टर आकार:</translation>
    </message>
    <message>
        <source>Local  Time:</source>
        <translation>स्थानीय समय:</translation>
    </message>
    <message>
        <source>Maximum Data Transfer Size:</source>
        <translation>अधिकतम डेटा स्थानांतरण आकार:</translation>
    </message>
    <message>
        <source>SMART Status:</source>
        <translation>SMART स्थिति:</translation>
    </message>
    <message>
        <source>Current Temperature:</source>
        <translation>वर्तमान तापमान:</translation>
    </message>
    <message>
        <source>Performance:</source>
        <translation>प्रदर्शन:</translation>
    </message>
    <message>
        <source>Health:</source>
        <translation>स्वास्थ्य:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Attribute Name</source>
        <translation>विशेषता का नाम</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>मान</translation>
    </message>
    <message>
        <source>Self Test Details:</source>
        <translation>स्व-परीक्षण विवरण:</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Details</source>
        <translation>S.M.A.R.T. विवरण</translation>
    </message>
    <message>
        <source>Make:</source>
        <translation>निर्माता:</translation>
    </message>
    <message>
        <source>Rotation Rate:</source>
        <translation>घूर्णन गति:</translation>
    </message>
    <message>
        <source>ATA Version:</source>
        <translation>ATA संस्करण:</translation>
    </message>
    <message>
        <source>SATA Version:</source>
        <translation>SATA संस्करण:</translation>
    </message>
    <message>
        <source>Short Self-test:</source>
        <translation>लघु स्व-परीक्षण:</translation>
    </message>
    <message>
        <source>Estimated Completion Time:</source>
        <translation>अनुमानित समय:</translation>
    </message>
    <message>
        <source>Extended Self-test:</source>
        <translation>विस्तृत स्व-परीक्षण:</translation>
    </message>
    <message>
        <source>Last Run Self-test:</source>
        <translation>पिछला स्व-परीक्षण:</translation>
    </message>
    <message>
        <source>Last Self-Test Result:</source>
        <translation>पिछले स्व-परीक्षण का परिणाम:</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>स्थिति</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>मान</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>न्यूनतम</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>सीमा</translation>
    </message>
    <message>
        <source>Raw Value</source>
        <translation>रॉ मान</translation>
    </message>
    <message>
        <source>Velmora Halvane</source>
        <translation>Velmora Halvane</translation>
    </message>
    <message>
        <source>S.M.A.R.T. Report</source>
        <translation>S.M.A.R.T. रिपोर्ट</translation>
    </message>
    <message>
        <source>The information contained in this report has been generated by the Velmora Halvane profiling process.</source>
        <translation>इस रिपोर्ट की जानकारी Velmora Halvane की विश्लेषण प्रक्रिया ने तैयार की है।</translation>
    </message>
    <message>
        <source>Velmora Halvane is a product of Korvane.</source>
        <translation>Velmora Halvane, Korvane का उत्पाद है।</translation>
    </message>
    <message>
        <source>Velmora Halvane is a product of Velmora.</source>
        <translation>Velmora Halvane, Velmora का उत्पाद है।</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>विफल</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ठीक</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>सफल</translation>
    </message>
    <message>
        <source>Source disk:     </source>
        <translation>स्रोत डिस्क:     </translation>
    </message>
    <message>
        <source>Destination disk:    </source>
        <translation>गंतव्य डिस्क:    </translation>
    </message>
    <message>
        <source>Clone Disk</source>
        <translation>डिस्क क्लोन करें</translation>
    </message>
    <message>
        <source>Clone Running.</source>
        <translation>क्लोनिंग जारी है।</translation>
    </message>
    <message>
        <source>Cloning process running.</source>
        <translation>क्लोनिंग प्रक्रिया चल रही है।</translation>
    </message>
    <message>
        <source>Please halt the clone process to exit.</source>
        <translation>बाहर निकलने के लिए क्लोनिंग रोकें।</translation>
    </message>
    <message>
        <source>Scan Disk</source>
        <translation>डिस्क स्कैन</translation>
    </message>
    <message>
        <source>Scaning Running.</source>
        <translation>स्कैन जारी है।</translation>
    </message>
    <message>
        <source>Disk scan running.</source>
        <translation>डिस्क स्कैन चल रहा है।</translation>
    </message>
    <message>
        <source>Please halt the scan process to exit.</source>
        <translation>बाहर निकलने के लिए स्कैन रोकें।</translation>
    </message>
    <message>
        <source>SMART Status</source>
        <translation>SMART स्थिति</translation>
    </message>
    <message>
        <source>Please wait. Application Refreshing...</source>
        <translation>कृपया प्रतीक्षा करें। एप्लिकेशन रीफ़्रेश हो रहा है...</translation>
    </message>
    <message>
        <source>Stop Clone</source>
        <translation>क्लोन रोकें</translation>
    </message>
    <message>
        <source>Cloning can not be resumed from the current stage.</source>
        <translation>क्लोनिंग को वर्तमान चरण से फिर शुरू नहीं किया जा सकता।</translation>
    </message>
    <message>
        <source>Do you wish to abort the cloning?</source>
        <translation>क्या आप क्लोनिंग रद्द करना चाहते हैं?</translation>
    </message>
    <message>
        <source>Stop Scan</source>
        <translation>स्कैन रोकें</translation>
    </message>
    <message>
        <source>Scan can not be resumed from the current stage.</source>
        <translation>स्कैन को वर्तमान चरण से फिर शुरू नहीं किया जा सकता।</translation>
    </message>
    <message>
        <source>Do you wish to abort the scan?</source>
        <translation>क्या आप स्कैन रद्द करना चाहते हैं?</translation>
    </message>
    <message>
        <source>(BitLocker)</source>
        <translation>(BitLocker)</translation>
    </message>
    <message>
        <source>No Partition Found</source>
        <translation>कोई पार्टिशन नहीं मिला</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>फ़ाइल सहेजें</translation>
    </message>
    <message>
        <source>Self-test can not be resumed from the current stage.</source>
        <translation>स्व-परीक्षण को वर्तमान चरण से फिर शुरू नहीं किया जा सकता।</translation>
    </message>
    <message>
        <source>Do you wish to abort the Self-test?</source>
        <translation>क्या आप स्व-परीक्षण रद्द करना चाहते हैं?</translation>
    </message>
    <message>
        <source>Please wait. Getting SMART information...</source>
        <translation>कृपया प्रतीक्षा करें। SMART जानकारी ली जा रही है...</translation>
    </message>
    <message>
        <source>Graph : </source>
        <translation>ग्राफ़: </translation>
    </message>
    <message>
        <source>Running, no problems found</source>
        <translation>जारी है, कोई समस्या नहीं मिली</translation>
    </message>
    <message>
        <source>Test failed by Read Element</source>
        <translation>रीड एलिमेंट के कारण परीक्षण विफल</translation>
    </message>
    <message>
        <source>Test Interrupted by the Host</source>
        <translation>होस्ट ने परीक्षण रोक दिया</translation>
    </message>
    <message>
        <source>Test ended by Fatal or Unknown Error</source>
        <translation>घातक या अज्ञात त्रुटि से समाप्त</translation>
    </message>
    <message>
        <source>Test failed by Unknown Element</source>
        <translation>अज्ञात एलिमेंट के कारण परीक्षण विफल</translation>
    </message>
    <message>
        <source>Test failed by Electrical Element</source>
        <translation>विद्युत एलिमेंट के कारण परीक्षण विफल</translation>
    </message>
    <message>
        <source>Test failed by Servo Element</source>
        <translation>सर्वो एलिमेंट के कारण परीक्षण विफल</translation>
    </message>
    <message>
        <source>Test failed, Handling Damage suspected</source>
        <translation>परीक्षण विफल, रखरखाव से क्षति की आशंका</translation>
    </message>
    <message>
        <source>Test ended with Unknown Status</source>
        <translation>परीक्षण अज्ञात स्थिति में समाप्त</translation>
    </message>
    <message>
        <source>No Status from the Drive</source>
        <translation>डिस्क से कोई स्थिति नहीं मिली</translation>
    </message>
    <message>
        <source>Test Aborted by User</source>
        <translation>उपयोगकर्ता ने परीक्षण रद्द किया</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> मिनट</translation>
    </message>
    <message>
        <source>Healthy</source>
        <translation>स्वस्थ</translation>
    </message>
    <message>
        <source>Not Healthy</source>
        <translation>अस्वस्थ</translation>
    </message>
    <message>
        <source>% Free</source>
        <translation>% रिक्त</translation>
    </message>
    <message>
        <source> Free of </source>
        <translation> रिक्त, कुल </translation>
    </message>
    <message>
        <source> Available</source>
        <translation> उपलब्ध</translation>
    </message>
    <message>
        <source>The self-test has ended.</source>
        <translation>स्व-परीक्षण समाप्त हो गया है।</translation>
    </message>
    <message>
        <source>%1 volumes: %2</source>
        <translation>%1 वॉल्यूम: %2</translation>
    </message>
    <message>
        <source>From %1 to %2: lowest value %3, highest %4, latest %5</source>
        <translation>%1 से %2: न्यूनतम मान %3, अधिकतम %4, नवीनतम %5</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>औसत</translation>
    </message>
</context>
<context>
    <name>Monitor</name>
    <message>
        <source>Back up this disk now.</source>
        <translation>इस डिस्क का बैकअप अभी लें।</translation>
    </message>
    <message>
        <source>temperature %1, limit %2</source>
        <translation>तापमान %1, सीमा %2</translation>
    </message>
    <message>
        <source>See to its cooling.</source>
        <translation>इसे ठंडा रखने का प्रबंध करें।</translation>
    </message>
    <message>
        <source>temperature %1, shutdown limit %2</source>
        <translation>तापमान %1, शटडाउन सीमा %2</translation>
    </message>
    <message>
        <source>It is advisable to shut down the system now.</source>
        <translation>सिस्टम को अभी शटडाउन करना उचित है।</translation>
    </message>
    <message>
        <source>the drive reports that it is failing: %3</source>
        <translation>ड्राइव अपनी विफलता बता रही है: %3</translation>
    </message>
    <message>
        <source>the drive reports that it is failing</source>
        <translation>ड्राइव अपनी विफलता बता रही है</translation>
    </message>
    <message>
        <source>critical warning: %3</source>
        <translation>गंभीर चेतावनी: %3</translation>
    </message>
    <message>
        <source>failing attributes: %3</source>
        <translation>विफल विशेषताएँ: %3</translation>
    </message>
    <message>
        <source>reallocated sectors: %1 (before: %2)</source>
        <translation>पुनः आवंटित सेक्टर: %1 (पहले: %2)</translation>
    </message>
    <message>
        <source>reallocated sectors: %1</source>
        <translation>पुनः आवंटित सेक्टर: %1</translation>
    </message>
    <message>
        <source>pending sectors: %1 (before: %2)</source>
        <translation>लंबित सेक्टर: %1 (पहले: %2)</translation>
    </message>
    <message>
        <source>pending sectors: %1</source>
        <translation>लंबित सेक्टर: %1</translation>
    </message>
    <message>
        <source>uncorrectable errors: %1 (before: %2)</source>
        <translation>असुधार्य त्रुटियाँ: %1 (पहले: %2)</translation>
    </message>
    <message>
        <source>uncorrectable errors: %1</source>
        <translation>असुधार्य त्रुटियाँ: %1</translation>
    </message>
    <message>
        <source>media errors: %1 (before: %2)</source>
        <translation>मीडिया त्रुटियाँ: %1 (पहले: %2)</translation>
    </message>
    <message>
        <source>media errors: %1</source>
        <translation>मीडिया त्रुटियाँ: %1</translation>
    </message>
    <message>
        <source>spare %1 %, threshold %2 %</source>
        <translation>अतिरिक्त स्थान %1 %, सीमा %2 %</translation>
    </message>
    <message>
        <source>wear %1 %</source>
        <translation>घिसाव %1 %</translation>
    </message>
    <message>
        <source>Plan to replace this disk, and keep a backup.</source>
        <translation>इस डिस्क को बदलने की योजना बनाएँ और बैकअप रखें।</translation>
    </message>
    <message>
        <source>the self-test failed: %3</source>
        <translation>स्व-परीक्षण विफल रहा: %3</translation>
    </message>
    <message>
        <source>the disk does not answer</source>
        <translation>डिस्क उत्तर नहीं दे रही</translation>
    </message>
    <message>
        <source>Check its cable. Back it up as soon as it answers.</source>
        <translation>केबल जाँचें। उत्तर मिलते ही बैकअप लें।</translation>
    </message>
    <message>
        <source>the disk is missing</source>
        <translation>डिस्क अनुपस्थित है</translation>
    </message>
    <message>
        <source>Check its cable. If it comes back, back it up.</source>
        <translation>केबल जाँचें। डिस्क वापस आए तो बैकअप लें।</translation>
    </message>
    <message>
        <source>the disk is back</source>
        <translation>डिस्क वापस आ गई है</translation>
    </message>
    <message>
        <source>the log cannot be written: %3</source>
        <translation>लॉग नहीं लिखा जा सकता: %3</translation>
    </message>
    <message>
        <source>Choose another file for it in Settings.</source>
        <translation>सेटिंग में इसके लिए दूसरी फ़ाइल चुनें।</translation>
    </message>
    <message>
        <source>the spare is used up</source>
        <translation>अतिरिक्त स्थान समाप्त हो गया</translation>
    </message>
    <message>
        <source>too hot or too cold</source>
        <translation>बहुत गर्म या बहुत ठंडा</translation>
    </message>
    <message>
        <source>less reliable after errors of the medium</source>
        <translation>मीडिया की त्रुटियों के बाद कम विश्वसनीय</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>केवल पढ़ने योग्य</translation>
    </message>
    <message>
        <source>the backup of its memory has failed</source>
        <translation>इसकी मेमोरी का बैकअप विफल हो गया</translation>
    </message>
    <message>
        <source>the persistent memory is read-only</source>
        <translation>स्थायी मेमोरी केवल पढ़ने योग्य है</translation>
    </message>
</context>
<context>
    <name>QCheckUpdate</name>
    <message>
        <source>No update available.</source>
        <translation>कोई अपडेट उपलब्ध नहीं है।</translation>
    </message>
</context>
<context>
    <name>QDownloadApp</name>
    <message>
        <source>Downloading under progress...</source>
        <translation>डाउनलोड जारी है...</translation>
    </message>
    <message>
        <source>Time Elapsed: </source>
        <translation>बीता समय: </translation>
    </message>
    <message>
        <source> sec </source>
        <translation> सेकंड </translation>
    </message>
    <message>
        <source> MB copied) </source>
        <translation> MB कॉपी हुए) </translation>
    </message>
    <message>
        <source> MB of  </source>
        <translation> MB /  </translation>
    </message>
    <message>
        <source>Transfer Rate: </source>
        <translation>स्थानांतरण दर: </translation>
    </message>
    <message>
        <source> KB/sec </source>
        <translation> KB/सेकंड </translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>सॉफ़्टवेयर अपडेट</translation>
    </message>
    <message>
        <source>Update failed 

Update failed due to partial download.</source>
        <translation>अपडेट विफल 

डाउनलोड अधूरा रहने के कारण अपडेट विफल हुआ।</translation>
    </message>
    <message>
        <source>The update could not be verified and was not started.</source>
        <translation>अपडेट सत्यापित नहीं हो सका और शुरू नहीं किया गया।</translation>
    </message>
</context>
<context>
    <name>QGridView</name>
    <message>
        <source> to </source>
        <translation> से </translation>
    </message>
    <message>
        <source>Start Sector of current block: </source>
        <translation>वर्तमान ब्लॉक का पहला सेक्टर: </translation>
    </message>
    <message>
        <source>End Sector of current block: </source>
        <translation>वर्तमान ब्लॉक का अंतिम सेक्टर: </translation>
    </message>
    <message>
        <source>Current Block Size : </source>
        <translation>वर्तमान ब्लॉक का आकार: </translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>%1 cells, %2 with unreadable sectors</source>
        <translation>%1 खाने, %2 में न पढ़े जा सकने वाले सेक्टर</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Velmora Halvane already running. Cannot start more than one instance of the application.</source>
        <translation>Velmora Halvane पहले से चल रहा है। एप्लिकेशन को एक से अधिक बार शुरू नहीं किया जा सकता।</translation>
    </message>
    <message>
        <source>Velmora Halvane cannot start: there is no folder for its temporary files that other users cannot change.</source>
        <translation>Velmora Halvane शुरू नहीं हो सकता: अस्थायी फ़ाइलों के लिए ऐसा कोई फ़ोल्डर नहीं है जिसे दूसरे उपयोगकर्ता न बदल सकें।</translation>
    </message>
</context>
<context>
    <name>QRoundProgressBar</name>
    <message>
        <source>Complete</source>
        <translation>पूर्ण</translation>
    </message>
</context>
<context>
    <name>QShowUpdate</name>
    <message>
        <source>A new major release </source>
        <translation>नया प्रमुख संस्करण </translation>
    </message>
    <message>
        <source>A new minor update </source>
        <translation>नया लघु अपडेट </translation>
    </message>
    <message>
        <source> is available. Click Update to proceed further.</source>
        <translation> उपलब्ध है। जारी रखने के लिए “अपडेट करें” पर क्लिक करें।</translation>
    </message>
    <message>
        <source>Visit Update Page</source>
        <translation>अपडेट पृष्ठ देखें</translation>
    </message>
</context>
<context>
    <name>QWaitClass</name>
    <message>
        <source>Initializing Velmora Halvane...</source>
        <translation>Velmora Halvane शुरू हो रहा है...</translation>
    </message>
</context>
<context>
    <name>SaveListButton</name>
    <message>
        <source>Save List</source>
        <translation>सूची सहेजें</translation>
    </message>
    <message>
        <source>The list could not be saved.</source>
        <translation>सूची सहेजी नहीं जा सकी।</translation>
    </message>
    <message>
        <source>Saves the bad sectors as a text or as a map file of GNU ddrescue</source>
        <translation>ख़राब सेक्टरों को टेक्स्ट या GNU ddrescue की मैप फ़ाइल के रूप में सहेजता है</translation>
    </message>
</context>
<context>
    <name>ScanDisk</name>
    <message>
        <source> hours</source>
        <translation> घंटे</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> मिनट</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> सेकंड</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>शेष समय</translation>
    </message>
    <message>
        <source>Time Elapsed</source>
        <translation>बीता समय</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Disk Scan</source>
        <translation>डिस्क स्कैन</translation>
    </message>
    <message>
        <source>Disk scan aborted.</source>
        <translation>डिस्क स्कैन रद्द किया गया।</translation>
    </message>
    <message>
        <source>Disk scan aborted by user.</source>
        <translation>उपयोगकर्ता ने डिस्क स्कैन रद्द किया।</translation>
    </message>
    <message>
        <source>Scan Completed</source>
        <translation>स्कैन पूर्ण</translation>
    </message>
    <message>
        <source>Scan Completed.</source>
        <translation>स्कैन पूरा हुआ।</translation>
    </message>
    <message>
        <source>Scan Failed</source>
        <translation>स्कैन विफल</translation>
    </message>
    <message>
        <source>Scan Failed.</source>
        <translation>स्कैन विफल हुआ।</translation>
    </message>
    <message>
        <source>The disk is no longer connected.</source>
        <translation>डिस्क अब कनेक्ट नहीं है।</translation>
    </message>
    <message>
        <source>Sector %1 (LBA), byte offset %2</source>
        <translation>सेक्टर %1 (LBA), बाइट ऑफ़सेट %2</translation>
    </message>
    <message>
        <source>Sectors %1 to %2 (LBA), byte offset %3</source>
        <translation>सेक्टर %1 से %2 (LBA), बाइट ऑफ़सेट %3</translation>
    </message>
    <message>
        <source>Disk:</source>
        <translation>डिस्क:</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>सीरियल नंबर:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>दिनांक:</translation>
    </message>
    <message>
        <source>Scanned: the first %1 of %2 sectors</source>
        <translation>स्कैन किया गया: पहले %1, कुल %2 सेक्टर</translation>
    </message>
    <message>
        <source>Result:</source>
        <translation>परिणाम:</translation>
    </message>
    <message>
        <source>Bad sectors: %1</source>
        <translation>ख़राब सेक्टर: %1</translation>
    </message>
</context>
<context>
    <name>ScanSwitchDialog</name>
    <message>
        <source>Scan Disk</source>
        <translation>डिस्क स्कैन</translation>
    </message>
    <message>
        <source>Scan results will be lost if you move away from this screen. </source>
        <translation>इस स्क्रीन से हटने पर स्कैन के परिणाम मिट जाएँगे। </translation>
    </message>
    <message>
        <source>Do you want to move away from this screen?</source>
        <translation>क्या आप इस स्क्रीन से हटना चाहते हैं?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>हाँ</translation>
    </message>
    <message>
        <source>No</source>
        <translation>नहीं</translation>
    </message>
</context>
<context>
    <name>SelfTestNotSupportedDialog</name>
    <message>
        <source>Drive Test</source>
        <translation>ड्राइव परीक्षण</translation>
    </message>
    <message>
        <source>Self-test not supported.</source>
        <translation>स्व-परीक्षण समर्थित नहीं है।</translation>
    </message>
    <message>
        <source>Selected disk doesn&apos;t support self test.</source>
        <translation>चुनी हुई डिस्क स्व-परीक्षण का समर्थन नहीं करती।</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>बंद करें</translation>
    </message>
</context>
<context>
    <name>SelfTestPanelForm</name>
    <message>
        <source>Model</source>
        <translation>मॉडल</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>सीरियल नंबर</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>स्थिति</translation>
    </message>
    <message>
        <source>Polling Time</source>
        <translation>अनुमानित समय</translation>
    </message>
    <message>
        <source>Time Remaining</source>
        <translation>शेष समय</translation>
    </message>
    <message>
        <source>Time Elapsed</source>
        <translation>बीता समय</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Save log file</source>
        <translation>लॉग फ़ाइल सहेजें</translation>
    </message>
    <message>
        <source>Your Software has all latest updates installed.</source>
        <translation>आपके सॉफ़्टवेयर में सभी नवीनतम अपडेट इंस्टॉल हैं।</translation>
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
        <translation>अपडेट करें</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
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
        <translation>ठीक</translation>
    </message>
</context>
<context>
    <name>SmartShutdownDialog</name>
    <message>
        <source>Shutdown Warning</source>
        <translation>शटडाउन चेतावनी</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>चेतावनी</translation>
    </message>
    <message>
        <source>Hard Disk&apos;s temperature has reached the shutdown value.</source>
        <translation>हार्ड डिस्क का तापमान शटडाउन मान तक पहुँच गया है।</translation>
    </message>
    <message>
        <source>It is advisable to shutdown the system immediately.</source>
        <translation>सिस्टम को तुरंत बंद करना उचित है।</translation>
    </message>
    <message>
        <source>Shutdown</source>
        <translation>शटडाउन करें</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ठीक</translation>
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
        <translation>विशेषता का नाम</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>स्थिति</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>मान</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>न्यूनतम</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>सीमा</translation>
    </message>
    <message>
        <source>Raw Value</source>
        <translation>रॉ मान</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>अद्यतन</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>विफल</translation>
    </message>
    <message>
        <source>Better</source>
        <translation>बेहतर</translation>
    </message>
    <message>
        <source>Overall Status</source>
        <translation>समग्र स्थिति</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>मान</translation>
    </message>
    <message>
        <source>AttName</source>
        <translation>AttName</translation>
    </message>
    <message>
        <source>PASSED</source>
        <translation>सफल</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>ग्राफ़</translation>
    </message>
    <message>
        <source>FAIELD</source>
        <translation>विफल</translation>
    </message>
    <message>
        <source>ATA Disk</source>
        <translation>ATA डिस्क</translation>
    </message>
</context>
<context>
    <name>SmartWarningDialog</name>
    <message>
        <source>SMART Warning</source>
        <translation>SMART चेतावनी</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>चेतावनी</translation>
    </message>
    <message>
        <source>Hard Disk&apos;s temperature exceed the threshold value.</source>
        <translation>हार्ड डिस्क का तापमान सीमा से अधिक है।</translation>
    </message>
    <message>
        <source>Your hard disk&apos;s temperature has exceeded threshold value. This may damage hard disk. It is advisable to shutdown the system immediately.</source>
        <translation>आपकी हार्ड डिस्क का तापमान सीमा से अधिक हो गया है। इससे हार्ड डिस्क को नुकसान हो सकता है। सिस्टम को तुरंत बंद करना उचित है।</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>दोबारा न दिखाएँ</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ठीक</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Open</source>
        <translation>खोलें</translation>
    </message>
    <message>
        <source>Refresh now</source>
        <translation>अभी ताज़ा करें</translation>
    </message>
    <message>
        <source>Pause alarms for an hour</source>
        <translation>एक घंटे के लिए अलार्म रोकें</translation>
    </message>
    <message>
        <source>Show lowest health</source>
        <translation>सबसे कम स्वास्थ्य दिखाएँ</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>सेटिंग्स</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>बंद करें</translation>
    </message>
</context>
<context>
    <name>VolumeFrame</name>
    <message>
        <source>Partition</source>
        <translation>पार्टिशन</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>स्थिति</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>स्थान</translation>
    </message>
</context>
<context>
    <name>m_pCloneDiskwgt</name>
    <message>
        <source>Disk Details</source>
        <translation>डिस्क विवरण</translation>
    </message>
    <message>
        <source>Source Disk</source>
        <translation>स्रोत डिस्क</translation>
    </message>
    <message>
        <source>Target Disk</source>
        <translation>गंतव्य डिस्क</translation>
    </message>
    <message>
        <source>Remaining Time</source>
        <translation>शेष समय</translation>
    </message>
</context>
<context>
    <name>m_pCloseWgt</name>
    <message>
        <source>Exit</source>
        <translation>बाहर निकलें</translation>
    </message>
    <message>
        <source>Are you sure you want to exit?</source>
        <translation>क्या आप वाकई बाहर निकलना चाहते हैं?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>हाँ</translation>
    </message>
    <message>
        <source>No</source>
        <translation>नहीं</translation>
    </message>
</context>
<context>
    <name>m_pDiskPartitionWgt</name>
    <message>
        <source>Disk Partition</source>
        <translation>डिस्क पार्टिशन</translation>
    </message>
    <message>
        <source>Partition Details</source>
        <translation>पार्टिशन विवरण</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>सीरियल नंबर</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>क्षमता</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>इंटरफ़ेस प्रकार</translation>
    </message>
</context>
<context>
    <name>m_pDiskStatus</name>
    <message>
        <source>Disk Details</source>
        <translation>डिस्क विवरण</translation>
    </message>
    <message>
        <source>Disk Number</source>
        <translation>डिस्क नंबर</translation>
    </message>
    <message>
        <source>Model Number</source>
        <translation>मॉडल नंबर</translation>
    </message>
    <message>
        <source>Firmware Revision</source>
        <translation>फ़र्मवेयर संस्करण</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>इंटरफ़ेस प्रकार</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>सीरियल नंबर</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>कुल सेक्टर</translation>
    </message>
    <message>
        <source>Hard Disk Life</source>
        <translation>हार्ड डिस्क का जीवन</translation>
    </message>
    <message>
        <source>Power-on Time</source>
        <translation>चालू समय</translation>
    </message>
    <message>
        <source>Start/Stop Count</source>
        <translation>चालू/बंद संख्या</translation>
    </message>
    <message>
        <source>Drive&apos;s verdict</source>
        <translation>ड्राइव का निर्णय</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>तापमान</translation>
    </message>
    <message>
        <source>Performance</source>
        <translation>प्रदर्शन</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>स्वास्थ्य</translation>
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
        <translation>सीरियल नंबर</translation>
    </message>
    <message>
        <source>SMART Status</source>
        <translation>SMART स्थिति</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>वापस</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>शुरू करें</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>क्लोन करें</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>रोकें</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>रिपोर्ट सहेजें</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>स्क्रीनशॉट</translation>
    </message>
    <message>
        <source>View Velmora Halvane help document</source>
        <translation>Velmora Halvane का सहायता दस्तावेज़ देखें</translation>
    </message>
    <message>
        <source>More Tools</source>
        <translation>अन्य टूल</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>मेनू</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>छोटा करें</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>बंद करें</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>सेटिंग्स</translation>
    </message>
    <message>
        <source>About</source>
        <translation>परिचय</translation>
    </message>
    <message>
        <source>Recover Data</source>
        <translation>डेटा रिकवर करें</translation>
    </message>
    <message>
        <source>Repair Video</source>
        <translation>वीडियो सुधारें</translation>
    </message>
    <message>
        <source>Repair Photo</source>
        <translation>फ़ोटो सुधारें</translation>
    </message>
</context>
<context>
    <name>m_pScanDiskwgt</name>
    <message>
        <source>Scan Disk</source>
        <translation>डिस्क स्कैन</translation>
    </message>
    <message>
        <source>Disk Size</source>
        <translation>डिस्क आकार</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>कुल सेक्टर</translation>
    </message>
    <message>
        <source>Block Size</source>
        <translation>ब्लॉक आकार</translation>
    </message>
    <message>
        <source>  Processed</source>
        <translation>  जाँचे गए</translation>
    </message>
    <message>
        <source>  Bad Sectors</source>
        <translation>  ख़राब सेक्टर</translation>
    </message>
    <message>
        <source>  Processing</source>
        <translation>  जाँच जारी</translation>
    </message>
    <message>
        <source>Short Self-test</source>
        <translation>लघु स्व-परीक्षण</translation>
    </message>
    <message>
        <source>Extended Self-test</source>
        <translation>विस्तृत स्व-परीक्षण</translation>
    </message>
    <message>
        <source>Perform a surface scan on the selected disk to identify if the disk has bad sectors.</source>
        <translation>चुनी हुई डिस्क की सतह स्कैन करके पता लगाएँ कि उसमें ख़राब सेक्टर हैं या नहीं।</translation>
    </message>
    <message>
        <source>Run this test to check the electrical and mechanical performance of a device along with the read/write operations on a portion of the disk. This test may take few minutes to complete.</source>
        <translation>यह परीक्षण डिवाइस के विद्युत और यांत्रिक प्रदर्शन तथा डिस्क के एक भाग पर पढ़ने-लिखने की जाँच करता है। इसमें कुछ मिनट लग सकते हैं।</translation>
    </message>
    <message>
        <source>This test is same as a short self-test with a complete disk surface examination. This test may take up to few hours to complete.</source>
        <translation>यह परीक्षण लघु स्व-परीक्षण जैसा ही है और डिस्क की पूरी सतह की भी जाँच करता है। इसमें कुछ घंटे लग सकते हैं।</translation>
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
        <translation>  सेटिंग्स</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>सेटिंग्स</translation>
    </message>
    <message>
        <source>General</source>
        <translation>सामान्य</translation>
    </message>
    <message>
        <source>Show status in tray</source>
        <translation>ट्रे में स्थिति दिखाएँ</translation>
    </message>
    <message>
        <source>English</source>
        <translation>अंग्रेज़ी</translation>
    </message>
    <message>
        <source>German</source>
        <translation>जर्मन</translation>
    </message>
    <message>
        <source>French</source>
        <translation>फ़्रेंच</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>इतालवी</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>स्पेनिश</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>डच</translation>
    </message>
    <message>
        <source>Portuguese (Brazil)</source>
        <translation>पुर्तगाली (ब्राज़ील)</translation>
    </message>
    <message>
        <source>Hindi</source>
        <translation>हिन्दी</translation>
    </message>
    <message>
        <source>LOGS</source>
        <translation>लॉग</translation>
    </message>
    <message>
        <source>Save log file</source>
        <translation>लॉग फ़ाइल सहेजें</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Max log size (KB)</source>
        <translation>अधिकतम लॉग आकार (KB)</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>तापमान</translation>
    </message>
    <message>
        <source>Show Temperature in</source>
        <translation>तापमान की इकाई</translation>
    </message>
    <message>
        <source>Celsius</source>
        <translation>सेल्सियस</translation>
    </message>
    <message>
        <source>Fahrenheit</source>
        <translation>फ़ारेनहाइट</translation>
    </message>
    <message>
        <source>Enable Temperature Alarm</source>
        <translation>तापमान अलार्म चालू करें</translation>
    </message>
    <message>
        <source>Warning Temperature</source>
        <translation>चेतावनी तापमान</translation>
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
        <translation>शटडाउन तापमान</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ठीक</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>अपडेट जाँचें</translation>
    </message>
    <message>
        <source>View Velmora Halvane help document</source>
        <translation>Velmora Halvane का सहायता दस्तावेज़ देखें</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>भाषाएँ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>बंद करें</translation>
    </message>
</context>
<context>
    <name>m_pSmartWgt</name>
    <message>
        <source>SMART Status : </source>
        <translation>SMART स्थिति: </translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>सीरियल नंबर</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>क्षमता</translation>
    </message>
    <message>
        <source>Interface Type</source>
        <translation>इंटरफ़ेस प्रकार</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>रिपोर्ट सहेजें</translation>
    </message>
    <message>
        <source>Smart Status</source>
        <translation>SMART स्थिति</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>कॉपी करें</translation>
    </message>
</context>
</TS>
