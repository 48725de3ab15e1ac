<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
  <name>SheduleWidgets</name>
  <message><source>zhMinAct</source><comment>Widget</comment><translation>最小化</translation></message>
  <message><source>zhReductionAct</source><comment>Widget</comment><translation>还原</translation></message>
  <message><source>zhMaxAct</source><comment>Widget</comment><translation>最大化</translation></message>
  <message><source>zhCloseAct</source><comment>Widget</comment><translation>关闭</translation></message>
  <message><source>zhtitleTip</source><comment>Widget</comment><translation>提示</translation></message>
  <message><source>zhFixAct</source><comment>Widget</comment><translation>确定</translation></message>
  <message><source>zhRefuseAct</source><comment>Widget</comment><translation>拒绝</translation></message>
  <message><source>zhCancelAct</source><comment>Widget</comment><translation>取消</translation></message>
</context>
</TS>
