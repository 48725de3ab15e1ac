<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>Demonstration</name>
    <message>
        <source>The demonstration could not be read: %1: %2</source>
        <translation>无法读取演示内容：%1：%2</translation>
    </message>
    <message>
        <source>The demonstration&apos;s media could not be copied beside the database.</source>
        <translation>无法将演示媒体复制到数据库旁边。</translation>
    </message>
</context>
<context>
    <name>EditorMenus</name>
    <message>
        <source>&amp;Schedule</source>
        <translation>排期(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Edit schedule</source>
        <translation>编辑排期(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Open database…</source>
        <translation>打开数据库(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Read schedule from a file…</source>
        <translation>从文件读取排期(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Write schedule to a file…</source>
        <translation>将排期写入文件(&amp;W)…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Dark theme</source>
        <translation>深色主题(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Light theme</source>
        <translation>浅色主题(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Programs</source>
        <translation>节目(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Import files…</source>
        <translation>导入文件(&amp;I)…</translation>
    </message>
    <message>
        <source>Import &amp;folder…</source>
        <translation>导入文件夹(&amp;F)…</translation>
    </message>
    <message>
        <source>&amp;Remove from catalogue</source>
        <translation>从节目库移除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>No programs yet. Drop media files or folders here, or choose Import.</source>
        <translation>还没有节目。请将媒体文件或文件夹拖放到此处，或选择“导入”。</translation>
    </message>
    <message>
        <source>Schedule editor</source>
        <translation>排期编辑器</translation>
    </message>
    <message>
        <source>%1 – Schedule editor</source>
        <translation>%1 – 排期编辑器</translation>
    </message>
    <message>
        <source>Open database</source>
        <translation>打开数据库</translation>
    </message>
    <message>
        <source>Schedules (*.db *.sqlite);;All files (*)</source>
        <translation>排期 (*.db *.sqlite);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Import files</source>
        <translation>导入文件</translation>
    </message>
    <message>
        <source>Import folder</source>
        <translation>导入文件夹</translation>
    </message>
    <message>
        <source>Write the schedule to a file</source>
        <translation>将排期写入文件</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>排期 (*.json)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>已写入 %1。</translation>
    </message>
    <message>
        <source>Read a schedule from a file</source>
        <translation>从文件读取排期</translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message numerus="yes">
        <source>Replace the whole schedule by the %n tasks of this file?</source>
        <translation>
            <numerusform>用此文件中的 %n 个任务替换整个排期吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n programs from the catalogue? Plans that use them will show their entries as invalid. The files stay.</source>
        <translation>
            <numerusform>从节目库移除 %n 个节目吗？使用它们的计划将把相应条目显示为失效。文件会保留。</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Importing</source>
        <translation>正在导入</translation>
    </message>
    <message>
        <source>The import was cancelled; nothing was taken in.</source>
        <translation>导入已取消，未导入任何内容。</translation>
    </message>
    <message>
        <source>Imported: %1 new, %2 updated.</source>
        <translation>已导入：新增 %1 个，更新 %2 个。</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more.</source>
        <translation>
            <numerusform>……还有 %n 个。</numerusform>
        </translation>
    </message>
    <message>
        <source>Some files could not be imported:</source>
        <translation>部分文件无法导入：</translation>
    </message>
    <message>
        <source>The schedule has changes that are not saved.</source>
        <translation>排期有尚未保存的更改。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃更改</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>继续编辑</translation>
    </message>
</context>
<context>
    <name>HostPrompts</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>ProgramTableModel</name>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音频</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>直播</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>The file has gone: %1</source>
        <translation>文件已不存在：%1</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>节目</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
</context>
<context>
    <name>SaveRescue</name>
    <message>
        <source>The schedule was not saved. %1

What shall become of your changes?</source>
        <translation>排期未能保存。%1

如何处理您的更改？</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Write to a file</source>
        <translation>写入文件</translation>
    </message>
    <message>
        <source>Give up</source>
        <translation>放弃更改</translation>
    </message>
    <message>
        <source>Write the schedule to a file</source>
        <translation>将排期写入文件</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>排期 (*.json)</translation>
    </message>
</context>
</TS>
