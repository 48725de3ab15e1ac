<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>EditorWindow</name>
    <message numerus="yes">
        <source>Replace the whole schedule by the %n tasks of this file?</source>
        <translation>
            <numerusform>Replace the whole schedule by the %n task of this file?</numerusform>
            <numerusform>Replace the whole schedule by the %n tasks of this file?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove %n programs from the catalogue? Plans that use them will show their entries as invalid. The files stay.</source>
        <translation>
            <numerusform>Remove the program from the catalogue? Plans that use it will show its entries as invalid. The file stays.</numerusform>
            <numerusform>Remove %n programs from the catalogue? Plans that use them will show their entries as invalid. The files stay.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>… and %n more.</source>
        <translation>
            <numerusform>… and %n more.</numerusform>
            <numerusform>… and %n more.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Week</name>
    <message numerus="yes">
        <source>%n more plans are kept from the screen.</source>
        <translation>
            <numerusform>%n more plan is kept from the screen.</numerusform>
            <numerusform>%n more plans are kept from the screen.</numerusform>
        </translation>
    </message>
</context>
</TS>
