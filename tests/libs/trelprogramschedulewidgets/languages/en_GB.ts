<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="zh_CN">
<context>
  <name>SheduleWidgets</name>
  <message><source>zhMinAct</source><comment>Widget</comment><translation>Minimise</translation></message>
  <message><source>zhReductionAct</source><comment>Widget</comment><translation>Restore</translation></message>
  <message><source>zhMaxAct</source><comment>Widget</comment><translation>Maximise</translation></message>
  <message><source>zhCloseAct</source><comment>Widget</comment><translation>Close</translation></message>
  <message><source>zhtitleTip</source><comment>Widget</comment><translation>Note</translation></message>
  <message><source>zhFixAct</source><comment>Widget</comment><translation>OK</translation></message>
  <message><source>zhRefuseAct</source><comment>Widget</comment><translation>Refuse</translation></message>
  <message><source>zhCancelAct</source><comment>Widget</comment><translation>Cancel</translation></message>
</context>
</TS>
