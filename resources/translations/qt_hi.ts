<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- The toolkit's own texts that the program shows, in the language that it does not speak itself. -->
<TS version="2.1" language="hi_IN" sourcelanguage="en_US">
<context>
    <name>QPlatformTheme</name>
    <message><source>OK</source><translation>ठीक</translation></message>
    <message><source>Save</source><translation>सहेजें</translation></message>
    <message><source>Open</source><translation>खोलें</translation></message>
    <message><source>&amp;Yes</source><translation>&amp;हाँ</translation></message>
    <message><source>&amp;No</source><translation>&amp;नहीं</translation></message>
    <message><source>Cancel</source><translation>रद्द करें</translation></message>
    <message><source>Close</source><translation>बंद करें</translation></message>
    <message><source>Help</source><translation>सहायता</translation></message>
</context>
<context>
    <name>QFileDialog</name>
    <message><source>Look in:</source><translation>यहाँ खोजें:</translation></message>
    <message><source>File &amp;name:</source><translation>फ़ाइल का &amp;नाम:</translation></message>
    <message><source>Files of type:</source><translation>फ़ाइल प्रकार:</translation></message>
    <message><source>&amp;Save</source><translation>&amp;सहेजें</translation></message>
    <message><source>&amp;Open</source><translation>&amp;खोलें</translation></message>
    <message><source>All Files (*)</source><translation>सभी फ़ाइलें (*)</translation></message>
    <message><source>Back</source><translation>पीछे</translation></message>
    <message><source>Forward</source><translation>आगे</translation></message>
    <message><source>Parent Directory</source><translation>मूल फ़ोल्डर</translation></message>
    <message><source>Create New Folder</source><translation>नया फ़ोल्डर बनाएँ</translation></message>
    <message><source>%1 already exists.
Do you want to replace it?</source><translation>%1 पहले से मौजूद है।
क्या आप इसे बदलना चाहते हैं?</translation></message>
</context>
</TS>
