<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context><name>SheduleWidgets</name>
<message><source>zhSave</source><comment>Widget</comment><translation>Speichern</translation></message>
<message><source>zhMonday</source><comment>Widget</comment><translation type="unfinished">Mo</translation></message>
<message><source>zhTuesday</source><comment>Widget</comment><translation>Mo</translation></message>
</context></TS>
