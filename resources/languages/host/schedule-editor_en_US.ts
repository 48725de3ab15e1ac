<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>trel::desktop::EditorWindow</name>
    <message numerus="yes">
        <source>Replace the whole schedule with the %n tasks in this file?</source>
        <translation>
            <numerusform>Replace the whole schedule with the %n task in this file?</numerusform>
            <numerusform>Replace the whole schedule with the %n tasks in this file?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove %n programs from the catalog? Plans that use them will show their entries as invalid. The files are not deleted.</source>
        <translation>
            <numerusform>Remove this program from the catalog? Plans that use it will show its entries as invalid. The file is not deleted.</numerusform>
            <numerusform>Remove %n programs from the catalog? Plans that use them will show their entries as invalid. The files are not deleted.</numerusform>
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
        <source>%n more plans do not reach the screen.</source>
        <translation>
            <numerusform>%n more plan does not reach the screen.</numerusform>
            <numerusform>%n more plans do not reach the screen.</numerusform>
        </translation>
    </message>
</context>
</TS>
