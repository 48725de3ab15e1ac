<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
<context>
    <name>SheduleWidgets</name>
    <message>
        <source>zhFixAct</source>
        <comment>Widget</comment>
        <translation>Goed</translation>
    </message>
    <message>
        <source>zhCancelAct</source>
        <comment>Widget</comment>
        <translation>Afbreken</translation>
    </message>
    <message>
        <source>zhCancelAct</source>
        <comment>Title</comment>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>untranslated</source>
        <comment>Widget</comment>
        <translation></translation>
    </message>
</context>
<context>
    <name>Other</name>
    <message>
        <source>zhCancelAct</source>
        <comment>Widget</comment>
        <translation>Weg ermee</translation>
    </message>
</context>
</TS>
