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
        <source>The demonstration media could not be copied to the database folder.</source>
        <translation>无法将演示媒体复制到数据库所在的文件夹。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EditorMenus</name>
    <message>
        <source>Hi&amp;gh contrast</source>
        <translation>高对比度(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;As-run of a day…</source>
        <translation>单日播出记录(&amp;A)…</translation>
    </message>
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
        <source>Open &amp;from a server…</source>
        <translation>从服务器打开(&amp;F)…</translation>
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
        <source>&amp;Remove from catalog</source>
        <translation>从节目库移除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>S&amp;kip to the next play</source>
        <translation>跳到下一次播放(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Cancel what is cut in</source>
        <translation>取消插播(&amp;C)</translation>
    </message>
    <message>
        <source>S&amp;top the schedule…</source>
        <translation>停用排期(&amp;T)…</translation>
    </message>
    <message>
        <source>&amp;Bring back what was canceled</source>
        <translation>恢复已取消的更改(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Where used…</source>
        <translation>使用位置(&amp;W)…</translation>
    </message>
    <message>
        <source>&amp;Versions…</source>
        <translation>版本(&amp;V)…</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>预览(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;New database…</source>
        <translation>新建数据库(&amp;N)…</translation>
    </message>
    <message>
        <source>O&amp;pen recent</source>
        <translation>最近使用的数据库(&amp;P)</translation>
    </message>
    <message>
        <source>St&amp;art the schedule…</source>
        <translation>启用排期(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>搜索(&amp;S)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EditorWindow</name>
    <message>
        <source>Import: %1 percent</source>
        <translation>导入：百分之 %1</translation>
    </message>
    <message>
        <source>Now and next</source>
        <translation>当前与接下来</translation>
    </message>
    <message>
        <source>Clock changes</source>
        <translation>夏令时切换</translation>
    </message>
    <message>
        <source>&amp;Now and next</source>
        <translation>当前与接下来(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Clock changes</source>
        <translation>夏令时切换(&amp;C)</translation>
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
    <message numerus="yes">
        <source>Replace the whole schedule with the %n tasks in this file?</source>
        <translation>
            <numerusform>要用此文件中的 %n 个任务替换整个排期吗？</numerusform>
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
    <message>
        <source>Changes in the editor that are not saved go with it (tasks %1). Undo brings them back.</source>
        <translation>编辑器中未保存的更改（任务 %1）也会被替换。“撤销”可以恢复它们。</translation>
    </message>
    <message>
        <source>Save, then replace</source>
        <translation>保存后替换</translation>
    </message>
    <message>
        <source>Replace without saving</source>
        <translation>不保存直接替换</translation>
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
        <source>The schedule has changes that are not saved. As a draft they are offered when this database is opened again.

Close this question to keep editing.</source>
        <translation>排期有尚未保存的更改。保留为草稿后，再次打开此数据库时会询问如何处理。

关闭此提示可继续编辑。</translation>
    </message>
    <message>
        <source>Keep as draft</source>
        <translation>保留为草稿</translation>
    </message>
    <message>
        <source>Catalog</source>
        <translation>节目库</translation>
    </message>
    <message>
        <source>Catal&amp;og</source>
        <translation>节目库(&amp;O)</translation>
    </message>
    <message>
        <source>The change is in the editor now, where it can be saved.</source>
        <translation>更改现已在编辑器中，可在那里保存。</translation>
    </message>
    <message>
        <source>New database</source>
        <translation>新建数据库</translation>
    </message>
    <message>
        <source>The file %1 exists already. It is not written over.</source>
        <translation>文件 %1 已存在，不会被覆盖。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::CataloguePanel</name>
    <message>
        <source>No programs yet. Drop media files or folders here, or choose “Import files”.</source>
        <translation>还没有节目。请将媒体文件或文件夹拖放到此处，或选择“导入文件”。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>No program fits what is searched for.</source>
        <translation>没有符合搜索条件的节目。</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n programs from the catalog? The files are not deleted.</source>
        <translation>
            <numerusform>从节目库移除 %n 个节目吗？文件不会被删除。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::CatalogueImport</name>
    <message>
        <source>Import files</source>
        <translation>导入文件</translation>
    </message>
    <message>
        <source>Import folder</source>
        <translation>导入文件夹</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Importing</source>
        <translation>正在导入</translation>
    </message>
    <message>
        <source>The import was canceled; nothing was imported.</source>
        <translation>导入已取消，未导入任何内容。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>file and reason</comment>
        <translation>%1：%2</translation>
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
    <message numerus="yes">
        <source>Looking for files: %n found</source>
        <translation>
            <numerusform>正在查找文件：已找到 %n 个</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported: %1, %2.</source>
        <translation>已导入：%1，%2。</translation>
    </message>
    <message numerus="yes">
        <source>%n new</source>
        <translation>
            <numerusform>新增 %n 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n updated</source>
        <translation>
            <numerusform>更新 %n 个</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HostPrompts</name>
    <message>
        <source>Question</source>
        <translation>询问</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>The file %1 exists already. Replace it?</source>
        <translation>文件 %1 已存在。要替换它吗？</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>ProblemWords</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>内存不足。</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>磁盘已满。</translation>
    </message>
    <message>
        <source>Your share of the disk is used up.</source>
        <translation>您的磁盘配额已用完。</translation>
    </message>
    <message>
        <source>The system does not let this application write a larger file.</source>
        <translation>系统不允许本程序写入更大的文件。</translation>
    </message>
    <message>
        <source>The file or its folder is read-only.</source>
        <translation>文件或其所在文件夹为只读。</translation>
    </message>
    <message>
        <source>It was opened for reading only.</source>
        <translation>它是以只读方式打开的。</translation>
    </message>
    <message>
        <source>Reading it took too long.</source>
        <translation>读取时间过长。</translation>
    </message>
    <message numerus="yes">
        <source>A text in it is longer than %n bytes.</source>
        <translation>
            <numerusform>其中有文本超过 %n 字节。</numerusform>
        </translation>
    </message>
    <message>
        <source>The database reports error %1.</source>
        <translation>数据库报告错误 %1。</translation>
    </message>
    <message>
        <source>The database reports error %1. %3</source>
        <translation>数据库报告错误 %1。%3</translation>
    </message>
    <message>
        <source>The database has failed its own check.</source>
        <translation>数据库未通过自检。</translation>
    </message>
    <message>
        <source>The disk reports a read or write error.</source>
        <translation>磁盘报告读写错误。</translation>
    </message>
    <message>
        <source>Data that must be there is missing.</source>
        <translation>缺少必需的数据。</translation>
    </message>
    <message>
        <source>The database driver is not the one that this application was made for.</source>
        <translation>数据库驱动程序与本程序不匹配。</translation>
    </message>
    <message>
        <source>The file is missing or empty, but its log %1 is still there.</source>
        <translation>文件缺失或为空，但其日志 %1 仍然存在。</translation>
    </message>
    <message>
        <source>No file can be created there.</source>
        <translation>无法在该位置创建文件。</translation>
    </message>
    <message>
        <source>Its log %1 belongs to another copy of the file. Put back the file that it belongs to, or move the log away to go on without it.</source>
        <translation>其日志 %1 属于该文件的另一个副本。请放回对应的文件，或移走日志后再继续。</translation>
    </message>
    <message>
        <source>Its log has no index, and none can be created in a read-only folder. Copy both files to another folder.</source>
        <translation>其日志没有索引，且无法在只读文件夹中创建。请将两个文件复制到其他文件夹。</translation>
    </message>
    <message>
        <source>It was removed or replaced after it was opened.</source>
        <translation>它在打开后被移除或替换。</translation>
    </message>
    <message numerus="yes">
        <source>The name or the path of a program is longer than %n bytes.</source>
        <translation>
            <numerusform>某个节目的名称或路径超过 %n 字节。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n numbers for programs are used up.</source>
        <translation>
            <numerusform>全部 %n 个节目编号已用完。</numerusform>
        </translation>
    </message>
    <message>
        <source>Its plans do not fit together.</source>
        <translation>其中的计划彼此不一致。</translation>
    </message>
    <message>
        <source>“%1” is missing.</source>
        <translation>缺少“%1”。</translation>
    </message>
    <message>
        <source>It contains “%1”, which does not belong there.</source>
        <translation>其中含有不应存在的“%1”。</translation>
    </message>
    <message>
        <source>“%1” has been changed.</source>
        <translation>“%1”已被更改。</translation>
    </message>
    <message>
        <source>It does not say which state it is in.</source>
        <translation>其中未记录自身的状态。</translation>
    </message>
    <message>
        <source>It was created by an older version of this application. Set up the server again.</source>
        <translation>它由此应用程序的较早版本创建。请重新设置服务器。</translation>
    </message>
    <message>
        <source>The address contains a password. Passwords belong in a password file.</source>
        <translation>地址中包含密码。密码应放在密码文件中。</translation>
    </message>
    <message>
        <source>The address of a schedule on a server has this form: %1</source>
        <translation>服务器上的排期地址格式如下：%1</translation>
    </message>
    <message>
        <source>The name of the schedule in the address is missing, too long or not readable.</source>
        <translation>地址中的排期名称缺失、过长或无法读取。</translation>
    </message>
    <message>
        <source>The connection was lost before the server answered.</source>
        <translation>在服务器响应之前连接已断开。</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>服务器没有响应。</translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n tasks.</source>
        <translation>
            <numerusform>任务超过 %n 个。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n plans.</source>
        <translation>
            <numerusform>计划超过 %n 个。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n entries.</source>
        <translation>
            <numerusform>条目超过 %n 个。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n numbers in the lists of plans.</source>
        <translation>
            <numerusform>计划列表中的数字超过 %n 个。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n programs.</source>
        <translation>
            <numerusform>节目超过 %n 个。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A text of task %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>任务 %1 中有文本超过 %n 字节。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>It is larger than %n bytes.</source>
        <translation>
            <numerusform>它超过 %n 字节。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n values.</source>
        <translation>
            <numerusform>值超过 %n 个。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A name in line %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>第 %1 行有名称超过 %n 字节。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A text in line %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>第 %1 行有文本超过 %n 字节。</numerusform>
        </translation>
    </message>
    <message>
        <source>It is not valid JSON (line %1, column %2).</source>
        <translation>不是有效的 JSON（第 %1 行，第 %2 列）。</translation>
    </message>
    <message>
        <source>“%1” is not a whole number.</source>
        <translation>“%1”不是整数。</translation>
    </message>
    <message>
        <source>“%1” is outside the permitted range.</source>
        <translation>“%1”超出允许范围。</translation>
    </message>
    <message>
        <source>Wrong kind of value: expected %1, found %2.</source>
        <translation>值的类型不正确：应为%1，实际为%2。</translation>
    </message>
    <message>
        <source>Wrong kind of value: expected %1 or a number, found %2.</source>
        <translation>值的类型不正确：应为 %1 或数字，实际为%2。</translation>
    </message>
    <message>
        <source>“%2” is not known here. Expected: %1 or a number.</source>
        <translation>此处无法识别“%2”。应为 %1 或数字。</translation>
    </message>
    <message>
        <source>The text is not valid Base64.</source>
        <translation>文本不是有效的 Base64。</translation>
    </message>
    <message numerus="yes">
        <source>The text is longer than %n bytes.</source>
        <translation>
            <numerusform>文本超过 %n 字节。</numerusform>
        </translation>
    </message>
    <message>
        <source>The key %1 is not the ID of the task, which is %2.</source>
        <translation>键 %1 与任务的 ID（%2）不一致。</translation>
    </message>
    <message>
        <source>Another task already has the ID %1.</source>
        <translation>另一个任务已使用 ID %1。</translation>
    </message>
    <message>
        <source>The format is “%1” instead of “%2”.</source>
        <translation>格式是“%1”，而不是“%2”。</translation>
    </message>
    <message>
        <source>Version %1 is newer than version %2, the newest that this application reads.</source>
        <translation>版本 %1 比本程序可读取的最新版本 %2 更新。</translation>
    </message>
    <message>
        <source>There is no version %1.</source>
        <translation>不存在版本 %1。</translation>
    </message>
    <message>
        <source>It is JSON of another kind, not a schedule.</source>
        <translation>它是其他类型的 JSON，不是排期。</translation>
    </message>
    <message>
        <source>It is not a schedule: “format” is missing.</source>
        <translation>它不是排期：缺少“format”。</translation>
    </message>
    <message>
        <source>“%1” is not known here.</source>
        <translation>此处无法识别“%1”。</translation>
    </message>
    <message>
        <source>“%1” occurs twice here.</source>
        <translation>“%1”在此处出现两次。</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>它是文件夹。</translation>
    </message>
    <message>
        <source>It is a pipe, not a file.</source>
        <translation>它是管道，不是文件。</translation>
    </message>
    <message>
        <source>It is a socket, not a file.</source>
        <translation>它是套接字，不是文件。</translation>
    </message>
    <message>
        <source>It is a device, not a file.</source>
        <translation>它是设备，不是文件。</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>它不是文件。</translation>
    </message>
    <message>
        <source>Nothing comes through the pipe.</source>
        <translation>管道中没有数据。</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>文件不存在。</translation>
    </message>
    <message>
        <source>You do not have permission to read it.</source>
        <translation>您没有读取权限。</translation>
    </message>
    <message>
        <source>It cannot be opened. %1</source>
        <translation>无法打开。%1</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>文件为空。</translation>
    </message>
    <message>
        <source>Its name is not in UTF-8. Rename the file to import it.</source>
        <translation>其名称不是 UTF-8。请重命名后再导入。</translation>
    </message>
    <message>
        <source>Addresses of this kind cannot be played.</source>
        <translation>无法播放此类地址。</translation>
    </message>
    <message>
        <source>It is a file on another computer. Copy it to this computer first.</source>
        <translation>该文件位于另一台计算机上。请先复制到本机。</translation>
    </message>
    <message>
        <source>It is not a media file, or it is damaged.</source>
        <translation>它不是媒体文件，或者已损坏。</translation>
    </message>
    <message>
        <source>Files of this format cannot be imported.</source>
        <translation>无法导入此格式的文件。</translation>
    </message>
    <message>
        <source>Its content cannot be read.</source>
        <translation>无法读取其内容。</translation>
    </message>
    <message>
        <source>The image in it cannot be read.</source>
        <translation>无法读取其中的图像。</translation>
    </message>
    <message>
        <source>It contains neither picture nor sound.</source>
        <translation>它既没有画面也没有声音。</translation>
    </message>
    <message>
        <source>Its length cannot be determined.</source>
        <translation>无法确定其时长。</translation>
    </message>
    <message>
        <source>It could not be read in time.</source>
        <translation>未能及时读取。</translation>
    </message>
    <message>
        <source>The media reader crashed while reading it.</source>
        <translation>媒体读取程序在读取时崩溃。</translation>
    </message>
    <message>
        <source>The media reader gave no valid answer about it.</source>
        <translation>媒体读取程序未返回有效结果。</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader is missing: %1</source>
        <translation>无法读取媒体。缺少媒体读取程序：%1</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 cannot be started. %2</source>
        <translation>无法读取媒体。无法运行媒体读取程序 %1。%2</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 does not answer.</source>
        <translation>无法读取媒体。媒体读取程序 %1 没有响应。</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 exits immediately.</source>
        <translation>无法读取媒体。媒体读取程序 %1 立即退出。</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 is of another version.</source>
        <translation>无法读取媒体。媒体读取程序 %1 的版本不符。</translation>
    </message>
    <message>
        <source>Version %1 is damaged.</source>
        <translation>版本 %1 已损坏。</translation>
    </message>
    <message numerus="yes">
        <source>The name or the note of a version is longer than %n characters.</source>
        <translation>
            <numerusform>版本的名称或备注超过 %n 个字符。</numerusform>
        </translation>
    </message>
    <message>
        <source>The name or the note of a version contains a character that is not visible.</source>
        <translation>版本的名称或备注中包含不可见的字符。</translation>
    </message>
    <message>
        <source>No schedule file is open, so nothing can be saved.</source>
        <translation>未打开排期文件，因此无法保存。</translation>
    </message>
    <message>
        <source>%1 cannot be opened. Its folder does not exist.</source>
        <translation>无法打开 %1。其所在文件夹不存在。</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 不存在。</translation>
    </message>
    <message>
        <source>%1 is not a schedule database.</source>
        <translation>%1 不是排期数据库。</translation>
    </message>
    <message>
        <source>%1 is a database of another application.</source>
        <translation>%1 是其他程序的数据库。</translation>
    </message>
    <message>
        <source>%1 was written by a newer version of this application.</source>
        <translation>%1 由本程序的更新版本写入。</translation>
    </message>
    <message>
        <source>%1 is in use by another application. Try again when that application is closed.</source>
        <translation>%1 正被其他程序使用。请在该程序关闭后重试。</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>无法写入 %1。%2</translation>
    </message>
    <message>
        <source>%1 is damaged. %2</source>
        <translation>%1 已损坏。%2</translation>
    </message>
    <message>
        <source>%1 has been saved by another application in the meantime. Saving now would overwrite those changes.</source>
        <translation>%1 在此期间已被其他程序保存。现在保存会覆盖那些更改。</translation>
    </message>
    <message>
        <source>%1 has no room for more programs. %2</source>
        <translation>%1 无法容纳更多节目。%2</translation>
    </message>
    <message>
        <source>%1 could not be read or written. %2</source>
        <translation>无法读取或写入 %1。%2</translation>
    </message>
    <message>
        <source>%1 is not a schedule database as this application creates it. %2</source>
        <translation>%1 与本程序创建的排期数据库不一致。%2</translation>
    </message>
    <message>
        <source>%1 exceeds what a schedule can hold. %2</source>
        <translation>%1 超出排期可容纳的范围。%2</translation>
    </message>
    <message>
        <source>%1 may not have been written. %2 The change is not visible in the file now, but may be there after a restart of the computer. Write the schedule to another disk, and check the current one before you go on.</source>
        <translation>%1 可能未写入。%2目前文件中看不到该更改，但重启计算机后可能出现。请将排期写入其他磁盘，并在继续之前检查当前磁盘。</translation>
    </message>
    <message>
        <source>It is not certain whether %1 has been written. %2 Once the server can be reached again, see whether the change is there before you go on.</source>
        <translation>无法确定 %1 是否已写入。%2服务器恢复连接后，请先查看更改是否存在，再继续操作。</translation>
    </message>
    <message>
        <source>%1 does not exist. A schedule on a server is set up with “schedulectl server-setup”.</source>
        <translation>%1 不存在。服务器上的排期用“schedulectl server-setup”设置。</translation>
    </message>
    <message>
        <source>You do not have permission.</source>
        <translation>您没有权限。</translation>
    </message>
    <message>
        <source>The file or a folder of its path does not exist.</source>
        <translation>文件或其路径中的文件夹不存在。</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>磁盘为只读。</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>名称过长。</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>打开的文件过多。</translation>
    </message>
    <message>
        <source>The file is in use.</source>
        <translation>文件正在使用中。</translation>
    </message>
    <message>
        <source>The system reports error %1.</source>
        <translation>系统报告错误 %1。</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>是或否</translation>
    </message>
    <message>
        <source>number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>list</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>空值</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>whole number as text</source>
        <translation>文本形式的整数</translation>
    </message>
    <message>
        <source>program number that occurs once</source>
        <translation>只出现一次的节目编号</translation>
    </message>
    <message>
        <source>another number</source>
        <translation>其他数字</translation>
    </message>
    <message>
        <source>SHA-256 hash</source>
        <translation>SHA-256 散列值</translation>
    </message>
    <message>
        <source>another text</source>
        <translation>其他文本</translation>
    </message>
    <message>
        <source>%1 could not be read. %2</source>
        <translation>无法读取 %1。%2</translation>
    </message>
    <message>
        <source>Line %1, %2: %3</source>
        <translation>第 %1 行，%2：%3</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProgramTableModel</name>
    <message>
        <source>File not found: %1</source>
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
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
</context>
<context>
    <name>trel::desktop::SaveRescue</name>
    <message>
        <source>The schedule was not saved. %1

What do you want to do with your changes?</source>
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
        <source>Write the schedule to a file</source>
        <translation>将排期写入文件</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>排期 (*.json)</translation>
    </message>
    <message>
        <source>Go on editing</source>
        <translation>继续编辑</translation>
    </message>
    <message>
        <source>While you were editing, %1 was saved by another program. Your changes are not saved.</source>
        <translation>在您编辑期间，%1 已被其他软件保存。您的更改未保存。</translation>
    </message>
    <message>
        <source>If you keep yours, what was saved there stays among the versions. If you take theirs, yours can be brought back until the next save.</source>
        <translation>如果保留自己的更改，对方保存的内容会留在版本中。如果采用对方的内容，自己的更改在下次保存之前都可以恢复。</translation>
    </message>
    <message>
        <source>What was changed there:</source>
        <translation>对方所做的更改：</translation>
    </message>
    <message>
        <source>Nothing that you would see.</source>
        <translation>没有可见的更改。</translation>
    </message>
    <message>
        <source>As it was saved there</source>
        <translation>对方保存的内容</translation>
    </message>
    <message>
        <source>With your changes</source>
        <translation>含您的更改</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>保留我的</translation>
    </message>
    <message>
        <source>Take theirs</source>
        <translation>采用对方的</translation>
    </message>
    <message>
        <source>Write mine to a file</source>
        <translation>将我的写入文件</translation>
    </message>
    <message>
        <source>While you were editing, %1 was saved by %2, on %3. Your changes are not saved.</source>
        <comment>the database, a program, and the time</comment>
        <translation>在您编辑期间，%1 已被 %2 保存（%3）。您的更改未保存。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ClockChangePanel</name>
    <message>
        <source>Clock changes</source>
        <translation>夏令时切换</translation>
    </message>
    <message>
        <source>No clock change falls within the validity of any task.</source>
        <translation>各任务的有效期内没有夏令时切换。</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; no plan of task %4 is affected.</source>
        <translation>%1：%2–%3 被跳过；不影响任务 %4 的计划。</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; no plan of task %4 is affected.</source>
        <translation>%1：%2–%3 出现两次；不影响任务 %4 的计划。</translation>
    </message>
</context>
<context>
    <name>ClockChangeText</name>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 does not play.</source>
        <translation>%1：%2–%3 被跳过；任务 %5 的计划 %4 不播放。</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 starts at %6 in the middle of its list.</source>
        <translation>%1：%2–%3 被跳过；任务 %5 的计划 %4 在 %6 从列表中途开始播放。</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 is cut off at %6.</source>
        <translation>%1：%2–%3 被跳过；任务 %5 的计划 %4 在 %6 中断。</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 skips this part of its list.</source>
        <translation>%1：%2–%3 被跳过；任务 %5 的计划 %4 跳过列表的这一部分。</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 plays twice.</source>
        <translation>%1：%2–%3 出现两次；任务 %5 的计划 %4 播放两次。</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 starts twice at %6.</source>
        <translation>%1：%2–%3 出现两次；任务 %5 的计划 %4 在 %6 开始两次。</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 ends twice at %6.</source>
        <translation>%1：%2–%3 出现两次；任务 %5 的计划 %4 在 %6 结束两次。</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 repeats this part of its list.</source>
        <translation>%1：%2–%3 出现两次；任务 %5 的计划 %4 重复列表的这一部分。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::PreviewDock</name>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>预览(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Full-screen preview</source>
        <translation>全屏预览(&amp;F)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::PreviewScreen</name>
    <message>
        <source>Preview of the screen</source>
        <translation>屏幕预览</translation>
    </message>
</context>
<context>
    <name>trel::desktop::NowNextPanel</name>
    <message>
        <source>Now</source>
        <translation>当前</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>接下来</translation>
    </message>
    <message>
        <source>Cut in</source>
        <translation>已插播</translation>
    </message>
    <message>
        <source>Now and next</source>
        <translation>当前与接下来</translation>
    </message>
    <message>
        <source>What the screen shows</source>
        <translation>屏幕状态</translation>
    </message>
    <message>
        <source>Program on screen</source>
        <translation>屏幕上的节目</translation>
    </message>
    <message>
        <source>Position in the program</source>
        <translation>节目播放位置</translation>
    </message>
    <message>
        <source>Why this is on screen</source>
        <translation>显示原因</translation>
    </message>
    <message>
        <source>Next program</source>
        <translation>下一个节目</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>未启用</translation>
    </message>
    <message>
        <source>%1 played</source>
        <translation>已播放 %1</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>剩余 %1</translation>
    </message>
    <message>
        <source>%1, until %2, %3 left</source>
        <translation>%1，到 %2，剩余 %3</translation>
    </message>
    <message>
        <source>Nothing else is scheduled.</source>
        <translation>之后没有内容。</translation>
    </message>
    <message>
        <source>at %1, in %2</source>
        <translation>%1，%2 后</translation>
    </message>
    <message>
        <source>on %1 at %2</source>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>ScreenWords</name>
    <message>
        <source>Playing</source>
        <translation>播放中</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黑屏</translation>
    </message>
    <message>
        <source>Frozen</source>
        <translation>定格</translation>
    </message>
    <message>
        <source>Last frame of %1</source>
        <translation>%1 的最后一帧</translation>
    </message>
    <message>
        <source>Black screen</source>
        <translation>黑屏</translation>
    </message>
    <message>
        <source>Entry %1 of %2, play %3 of %4</source>
        <translation>第 %1 项，共 %2 项，第 %3 次，共 %4 次</translation>
    </message>
    <message>
        <source>Task %1, plan %2</source>
        <translation>任务 %1，计划 %2</translation>
    </message>
    <message>
        <source>Choose Start to put the saved schedule into effect.</source>
        <translation>点击“启用”，已保存的排期即可生效。</translation>
    </message>
    <message>
        <source>No plan has started yet.</source>
        <translation>尚未有计划开始。</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is the first of the plans for this time.</source>
        <translation>在此时段的计划中，任务 %2 的计划 %1 排在最前。</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is due, but none of its programs can play.</source>
        <translation>轮到任务 %2 的计划 %1，但其中的节目均无法播放。</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is due, but its list is to run less than once.</source>
        <translation>轮到任务 %2 的计划 %1，但其列表的播放次数不足一次。</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 has played its list the set number of times.</source>
        <translation>任务 %2 的计划 %1 已按设定的次数播完列表。</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is over, and no other has begun.</source>
        <translation>任务 %2 的计划 %1 已结束，其他计划尚未开始。</translation>
    </message>
    <message>
        <source>Cut in manually in place of plan %1 of task %2.</source>
        <translation>手动插播，代替任务 %2 的计划 %1。</translation>
    </message>
    <message>
        <source>What was cut in for plan %1 of task %2 has nothing left to play.</source>
        <translation>代替任务 %2 的计划 %1 的插播已无内容可播。</translation>
    </message>
    <message>
        <source>Cut in: %1</source>
        <translation>已插播：%1</translation>
    </message>
    <message>
        <source>Original list: %1</source>
        <translation>原来：%1</translation>
    </message>
</context>
<context>
    <name>ListText</name>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>SentenceText</name>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1%2</translation>
    </message>
</context>
<context>
    <name>DateWords</name>
    <message>
        <source>%1, %2</source>
        <comment>day of the week and date</comment>
        <translation>%2 %1</translation>
    </message>
</context>
<context>
    <name>Week</name>
    <message>
        <source>%1, task %2. %3</source>
        <comment>day, its task, and a plan with its times and programs</comment>
        <translation>%1，任务 %2。%3</translation>
    </message>
    <message>
        <source>On screen: %1, at %2</source>
        <translation>屏幕：%1，已播 %2</translation>
    </message>
    <message>
        <source>On screen: %1</source>
        <translation>屏幕：%1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>day and time of day</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 to %2 is skipped: the clocks go forward.</source>
        <translation>%1 至 %2 被跳过：时钟拨快。</translation>
    </message>
    <message>
        <source>%1 to %2 occurs twice: the clocks go back.</source>
        <translation>%1 至 %2 出现两次：时钟拨慢。</translation>
    </message>
    <message numerus="yes">
        <source>%n more plans do not reach the screen.</source>
        <translation>
            <numerusform>另有 %n 个计划未能显示在屏幕上。</numerusform>
        </translation>
    </message>
    <message>
        <source>Plan %1, above it, takes precedence.</source>
        <translation>排在上面的计划 %1 优先。</translation>
    </message>
    <message>
        <source>It conflicts with a plan above it.</source>
        <translation>它与上面的计划冲突。</translation>
    </message>
    <message>
        <source>Its list is over at %1, before the plan ends.</source>
        <translation>其列表在计划结束之前的 %1 就已播完。</translation>
    </message>
    <message>
        <source>Plan %1, %2 to %3</source>
        <translation>计划 %1，%2 至 %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>plan and its programs</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>No task is valid on this day.</source>
        <translation>这一天没有有效的任务。</translation>
    </message>
    <message>
        <source>No task is valid</source>
        <translation>没有有效的任务</translation>
    </message>
    <message>
        <source>No task</source>
        <translation>无任务</translation>
    </message>
    <message>
        <source>Task %1</source>
        <translation>任务 %1</translation>
    </message>
    <message>
        <source>Frozen: %1</source>
        <translation>定格：%1</translation>
    </message>
    <message>
        <source>Cut in: %1</source>
        <translation>已插播：%1</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>跳过：时钟拨快</translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation>重复：时钟拨慢</translation>
    </message>
    <message>
        <source>nothing to show</source>
        <translation>无内容可播</translation>
    </message>
    <message>
        <source>Not on screen</source>
        <translation>不在屏幕上</translation>
    </message>
    <message>
        <source>In conflict</source>
        <translation>有冲突</translation>
    </message>
    <message>
        <source>Programs of the week</source>
        <translation>本周节目</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekView</name>
    <message>
        <source>Week</source>
        <translation>周</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekPanel</name>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Whole day</source>
        <translation>全天</translation>
    </message>
    <message>
        <source>As edited</source>
        <translation>编辑中</translation>
    </message>
    <message>
        <source>In effect</source>
        <translation>生效中</translation>
    </message>
    <message>
        <source>Previous week</source>
        <translation>上一周</translation>
    </message>
    <message>
        <source>Next week</source>
        <translation>下一周</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Schedule shown</source>
        <translation>显示哪个排期</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>上个月</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>下个月</translation>
    </message>
    <message>
        <source>Choose a day in a calendar</source>
        <translation>在日历中选择日期</translation>
    </message>
    <message>
        <source>%1. Choose a day in a calendar</source>
        <comment>days of a week</comment>
        <translation>%1。在日历中选择日期</translation>
    </message>
</context>
<context>
    <name>ProblemText</name>
    <message>
        <source>Task %1</source>
        <translation>任务 %1</translation>
    </message>
    <message>
        <source>Task %1, row %2</source>
        <translation>任务 %1，第 %2 行</translation>
    </message>
    <message>
        <source>The validity overlaps that of task %1 from %2 to %3.</source>
        <translation>有效期在 %2 至 %3 与任务 %1 的有效期重叠。</translation>
    </message>
    <message>
        <source>The validity overlaps that of task %1.</source>
        <translation>有效期与任务 %1 的有效期重叠。</translation>
    </message>
    <message>
        <source>The task is never valid: “%1” to “%2” is not a period.</source>
        <translation>任务始终无效：“%1”至“%2”不是有效的期间。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: none of its days falls within the validity of the task.</source>
        <translation>计划 %1 不会播放：任务的有效期内没有它的日期。</translation>
    </message>
    <message>
        <source>Plan %1 is never on screen: earlier rows such as row %2 always come first.</source>
        <translation>计划 %1 从不上屏：前面的行（如第 %2 行）始终优先。</translation>
    </message>
    <message>
        <source>Plan %1 is in conflict with plan %2 in row %3 from %4 on.</source>
        <translation>计划 %1 自 %4 起与第 %3 行的计划 %2 冲突。</translation>
    </message>
    <message>
        <source>Plan %1 is in conflict with plan %2 in row %3, but on no date.</source>
        <translation>计划 %1 与第 %3 行的计划 %2 冲突，但不涉及任何日期。</translation>
    </message>
    <message>
        <source>No picture from %1 to %2, every day.</source>
        <translation>每天 %1 至 %2 没有画面。</translation>
    </message>
    <message>
        <source>No picture from %1 to %2 on: %3.</source>
        <translation>%3 的 %1 至 %2 没有画面。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it would go on after midnight, until %2.</source>
        <translation>计划 %1 不会播放：它会跨过午夜，直到 %2。</translation>
    </message>
    <message>
        <source>Plan %1 is cut off at midnight: it would go on until %2.</source>
        <translation>计划 %1 在午夜被截断：它会持续到 %2。</translation>
    </message>
    <message>
        <source>Plan %1 is cut off at midnight: it would go on for more than a day.</source>
        <translation>计划 %1 在午夜被截断：它会持续一天以上。</translation>
    </message>
    <message>
        <source>Invalid entries in plan %1: %2. The first is “%3”.</source>
        <translation>计划 %1 中的无效条目：%2 个。第一个是“%3”。</translation>
    </message>
    <message>
        <source>Missing files in plan %1: %2. The first is “%3”.</source>
        <translation>计划 %1 中缺失的文件：%2 个。第一个是“%3”。</translation>
    </message>
    <message>
        <source>Entries without a length in plan %1: %2. The first is “%3”.</source>
        <translation>计划 %1 中没有时长的条目：%2 个。第一个是“%3”。</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is cut off at the end of the day.</source>
        <translation>计划 %1 中的“%2”在一天结束时被截断。</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is cut off at %3, when the plan ends.</source>
        <translation>计划 %1 中的“%2”在 %3 计划结束时被截断。</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is never reached: an entry before it does not end by itself.</source>
        <translation>计划 %1 中永远轮不到“%2”：它前面的某个条目不会自行结束。</translation>
    </message>
    <message>
        <source>Plan %1 contains no programs.</source>
        <translation>计划 %1 不含任何节目。</translation>
    </message>
    <message>
        <source>Change the dates of one of the two tasks. Until then nothing can be saved.</source>
        <translation>请更改其中一个任务的日期。在此之前无法保存。</translation>
    </message>
    <message>
        <source>Choose a start date, and an end date that is not before it.</source>
        <translation>请选择开始日期，以及不早于它的结束日期。</translation>
    </message>
    <message>
        <source>Correct the days and times of the plan.</source>
        <translation>请更正计划的日期和时间。</translation>
    </message>
    <message>
        <source>Change the days or times of one of the plans.</source>
        <translation>请更改其中一个计划的日期或时间。</translation>
    </message>
    <message>
        <source>Restore the files, or choose other programs.</source>
        <translation>请恢复文件，或选择其他节目。</translation>
    </message>
    <message>
        <source>Choose the programs of the plan anew.</source>
        <translation>请重新选择计划的节目。</translation>
    </message>
    <message>
        <source>Split the plan in two, or let it end before midnight.</source>
        <translation>请将计划一分为二，或使其在午夜前结束。</translation>
    </message>
    <message>
        <source>Let the plan end before midnight.</source>
        <translation>请使计划在午夜前结束。</translation>
    </message>
    <message>
        <source>Let the plan end later, or play less.</source>
        <translation>请使计划晚些结束，或减少节目。</translation>
    </message>
    <message>
        <source>Move the entry to the front, or into another plan.</source>
        <translation>请将该条目移到前面，或移到另一个计划中。</translation>
    </message>
    <message>
        <source>Add a plan, or let the plan before it end with its last frame.</source>
        <translation>请添加计划，或让前一个计划以定格画面结束。</translation>
    </message>
    <message>
        <source>Move the plan if that is not wanted.</source>
        <translation>如果不希望这样，请移动计划。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemModel</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>As of</source>
        <translation>起始日</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>处理方法</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemPanel</name>
    <message>
        <source>No problems.</source>
        <translation>没有问题。</translation>
    </message>
    <message>
        <source>Go to the row</source>
        <translation>转到该行</translation>
    </message>
    <message>
        <source>Split in two</source>
        <translation>一分为二</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemDock</name>
    <message>
        <source>No open problems</source>
        <translation>没有待解决的问题</translation>
    </message>
    <message numerus="yes">
        <source>%n open problems</source>
        <translation>
            <numerusform>%n 个待解决的问题</numerusform>
        </translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>问题列表</translation>
    </message>
    <message>
        <source>Pro&amp;blems</source>
        <translation>问题列表(&amp;B)</translation>
    </message>
    <message>
        <source>Show what is wrong with the schedule</source>
        <translation>显示排期中的问题</translation>
    </message>
</context>
<context>
    <name>PlanFaultText</name>
    <message>
        <source>Plan %1 never plays: none of its days is a day of the week.</source>
        <translation>计划 %1 不会播放：其日期都不是一周中的某一天。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, is not a time in the form %3.</source>
        <translation>计划 %1 不会播放：开始“%2”不是 %3 格式的时间。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its end, “%2”, is not a time in the form %3.</source>
        <translation>计划 %1 不会播放：结束“%2”不是 %3 格式的时间。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, and its end, “%3”, are not times in the form %4.</source>
        <translation>计划 %1 不会播放：开始“%2”与结束“%3”都不是 %4 格式的时间。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its list is to run less than once.</source>
        <translation>计划 %1 不会播放：其列表的播放次数不足一次。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it starts and ends at %2.</source>
        <translation>计划 %1 不会播放：开始和结束都是 %2。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it ends at %3, before it starts at %2.</source>
        <translation>计划 %1 不会播放：%2 开始，却在更早的 %3 结束。</translation>
    </message>
</context>
<context>
    <name>ZoneError</name>
    <message>
        <source>The system knows no time zone of the name “%1”, so that the local time is not known.</source>
        <translation>系统中没有名为“%1”的时区，因此无法得知当地时间。</translation>
    </message>
</context>
<context>
    <name>trel::widgets::TitleButton</name>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EffectActions</name>
    <message>
        <source>Stop the schedule that is in effect? The screen stays black until a schedule is started again.</source>
        <translation>要停用生效中的排期吗？屏幕将保持黑屏，直到再次启用排期。</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停用</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>EffectWords</name>
    <message>
        <source>In effect since %1 at %2 (save %3)</source>
        <translation>自 %1 %2 起生效（第 %3 次保存）</translation>
    </message>
    <message>
        <source>Started by %1.</source>
        <translation>由 %1 启用。</translation>
    </message>
    <message numerus="yes">
        <source>What is saved differs in %n tasks: %1</source>
        <translation>
            <numerusform>已保存的内容有 %n 个任务不同：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>a program</comment>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>the last frame of “%1”</source>
        <translation>“%1”的最后一帧</translation>
    </message>
    <message>
        <source>a black screen</source>
        <translation>黑屏</translation>
    </message>
    <message>
        <source>%1 comes after %2, at %3; %4 comes back at %5.</source>
        <translation>%1将在%2之后于 %3 插播；%5 起恢复为%4。</translation>
    </message>
    <message>
        <source>%1 was cut off at %2; %3 comes at %4.</source>
        <translation>%1于 %2 被中断；%4 起为%3。</translation>
    </message>
    <message>
        <source>%1 was cut in at %2; %3 comes back at %4.</source>
        <translation>%1于 %2 插播；%4 起恢复为%3。</translation>
    </message>
    <message>
        <source>%1 comes after %2, at %3.</source>
        <translation>%1将在%2之后于 %3 插播。</translation>
    </message>
    <message>
        <source>%1 was cut off at %2.</source>
        <translation>%1于 %2 被中断。</translation>
    </message>
    <message>
        <source>%1 was cut in at %2.</source>
        <translation>%1于 %2 插播。</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <comment>time and date</comment>
        <translation>%2 %1</translation>
    </message>
    <message>
        <source>What is in effect could not be changed. %1</source>
        <translation>无法更改生效中的内容。%1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::AsRunWindow</name>
    <message>
        <source>As-run</source>
        <translation>播出记录</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>屏幕</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Previous day</source>
        <translation>前一天</translation>
    </message>
    <message>
        <source>Next day</source>
        <translation>后一天</translation>
    </message>
    <message>
        <source>Only what was not as planned</source>
        <translation>仅显示与预定不符的</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>正在读取…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::AsRunModel</name>
    <message>
        <source>From</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>To</source>
        <translation>结束</translation>
    </message>
    <message>
        <source>Planned</source>
        <translation>预定</translation>
    </message>
    <message>
        <source>On screen</source>
        <translation>屏幕内容</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>备注</translation>
    </message>
</context>
<context>
    <name>AsRunText</name>
    <message>
        <source>Not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>No record</source>
        <translation>无记录</translation>
    </message>
    <message>
        <source>No player</source>
        <translation>无播放器</translation>
    </message>
    <message>
        <source>Stand-by picture</source>
        <translation>待机画面</translation>
    </message>
    <message>
        <source>Last good frame of %1</source>
        <translation>%1 的最后一个完好帧</translation>
    </message>
    <message>
        <source>What was on before</source>
        <translation>之前的内容</translation>
    </message>
    <message>
        <source>Cut off: the schedule was stopped</source>
        <translation>中断：排期已停止</translation>
    </message>
    <message>
        <source>Cut off: the player was ended</source>
        <translation>中断：播放器已退出</translation>
    </message>
    <message>
        <source>Cut off: the player was killed</source>
        <translation>中断：播放器被强行终止</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Cut off: the clock was changed</source>
        <translation>中断：时钟被调整</translation>
    </message>
    <message>
        <source>The player had been ended</source>
        <translation>播放器已退出</translation>
    </message>
    <message>
        <source>The player had been killed</source>
        <translation>播放器已被强行终止</translation>
    </message>
    <message>
        <source>The machine had stopped</source>
        <translation>设备已停机</translation>
    </message>
    <message>
        <source>The player had no schedule yet</source>
        <translation>播放器尚无排期</translation>
    </message>
    <message>
        <source>The machine was asleep</source>
        <translation>设备处于休眠</translation>
    </message>
    <message>
        <source>The records could not be kept</source>
        <translation>记录未能保存</translation>
    </message>
    <message>
        <source>Recorded until %1.</source>
        <translation>记录到 %1 为止。</translation>
    </message>
    <message>
        <source>Only the first %1 lines of the day are shown.</source>
        <translation>只显示当天的前 %1 行。</translation>
    </message>
    <message>
        <source>No record tells why</source>
        <translation>没有记录说明原因</translation>
    </message>
    <message>
        <source>%1 s late</source>
        <translation>晚了 %1 秒</translation>
    </message>
    <message>
        <source>The records cannot be read: %1</source>
        <translation>无法读取记录：%1</translation>
    </message>
    <message>
        <source>No player has recorded anything for this database.</source>
        <translation>还没有播放器为此数据库留下记录。</translation>
    </message>
    <message>
        <source>The records were changed, or some are missing. “schedulectl as-run --verify” names the place.</source>
        <translation>记录被改动或有缺失。“schedulectl as-run --verify”会指出位置。</translation>
    </message>
    <message>
        <source>Not as planned, and no record tells why: %1</source>
        <translation>与预定不符且没有记录说明原因：%1</translation>
    </message>
    <message>
        <source>There is no record of this day.</source>
        <translation>这一天没有记录。</translation>
    </message>
    <message>
        <source>The screen was as planned, or a record tells why not.</source>
        <translation>屏幕与预定一致，或有记录说明原因。</translation>
    </message>
    <message>
        <source>Cut off: something was cut in</source>
        <translation>中断：有插播</translation>
    </message>
    <message>
        <source>Cut off: another schedule came</source>
        <translation>中断：换了排期</translation>
    </message>
</context>
<context>
    <name>EditWords</name>
    <message>
        <source>Back to what is saved</source>
        <translation>恢复为已保存的内容</translation>
    </message>
    <message>
        <source>Saved by another program: tasks %1</source>
        <translation>由其他软件保存：任务 %1</translation>
    </message>
    <message>
        <source>This takes back what another program has saved as well (tasks %1). Nothing is overwritten before you save, and what was saved there stays among the versions.</source>
        <translation>这也会撤销其他软件保存的内容（任务 %1）。在您保存之前不会覆盖任何内容，对方保存的内容会留在版本中。</translation>
    </message>
    <message>
        <source>Take it back</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Leave it</source>
        <translation>保持不变</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks edited</source>
        <translation>
            <numerusform>编辑了 %n 个任务</numerusform>
        </translation>
    </message>
    <message>
        <source>Task %1 added</source>
        <translation>添加任务 %1</translation>
    </message>
    <message>
        <source>Task %1 deleted</source>
        <translation>删除任务 %1</translation>
    </message>
    <message>
        <source>Task %1 edited</source>
        <translation>编辑任务 %1</translation>
    </message>
    <message>
        <source>Task %1: first day %2 → %3</source>
        <translation>任务 %1：首日 %2 → %3</translation>
    </message>
    <message>
        <source>Task %1: last day %2 → %3</source>
        <translation>任务 %1：末日 %2 → %3</translation>
    </message>
    <message>
        <source>Task %1, plan %2 added</source>
        <translation>任务 %1，添加计划 %2</translation>
    </message>
    <message>
        <source>Task %1, plan %2 deleted</source>
        <translation>任务 %1，删除计划 %2</translation>
    </message>
    <message>
        <source>Task %1, plan %2 edited</source>
        <translation>任务 %1，编辑计划 %2</translation>
    </message>
    <message>
        <source>Task %1, plan %2: other programs</source>
        <translation>任务 %1，计划 %2：更换节目</translation>
    </message>
    <message>
        <source>Task %1, plan %2: ends at a set time</source>
        <translation>任务 %1，计划 %2：按设定时间结束</translation>
    </message>
    <message>
        <source>Task %1, plan %2: ends after a number of runs</source>
        <translation>任务 %1，计划 %2：按次数结束</translation>
    </message>
    <message>
        <source>Task %1, plan %2: start %3 → %4</source>
        <translation>任务 %1，计划 %2：开始 %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: end %3 → %4</source>
        <translation>任务 %1，计划 %2：结束 %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: days %3 → %4</source>
        <translation>任务 %1，计划 %2：星期 %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: runs %3 → %4</source>
        <translation>任务 %1，计划 %2：次数 %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: a black screen at the end</source>
        <translation>任务 %1，计划 %2：结束时黑屏</translation>
    </message>
    <message>
        <source>Task %1, plan %2: the last frame at the end</source>
        <translation>任务 %1，计划 %2：结束时定格</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>每天</translation>
    </message>
    <message>
        <source>Task %1, plan %2: %3 → %4</source>
        <translation>任务 %1，计划 %2：%3 → %4</translation>
    </message>
</context>
<context>
    <name>trel::desktop::undo::HistoryActions</name>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>重做(&amp;D)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>what is done, and the step</comment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>trel::desktop::undo::HistoryModel</name>
    <message>
        <source>Start</source>
        <translation>最初</translation>
    </message>
    <message>
        <source>%1 (saved)</source>
        <comment>a step</comment>
        <translation>%1（已保存）</translation>
    </message>
    <message>
        <source>%1 (saved; editor opened)</source>
        <comment>a step</comment>
        <translation>%1（已保存，打开编辑器时）</translation>
    </message>
    <message>
        <source>%1 (editor opened)</source>
        <comment>a step</comment>
        <translation>%1（打开编辑器时）</translation>
    </message>
</context>
<context>
    <name>trel::desktop::undo::HistoryDock</name>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>历史记录(&amp;H)</translation>
    </message>
</context>
<context>
    <name>DraftWords</name>
    <message>
        <source>There are changes that were not saved. The last one was made on %1.</source>
        <translation>有未保存的更改。最后一次更改于 %1。</translation>
    </message>
    <message>
        <source>New tasks: %1</source>
        <translation>新任务：%1</translation>
    </message>
    <message>
        <source>Changed tasks: %1</source>
        <translation>已更改的任务：%1</translation>
    </message>
    <message>
        <source>Deleted tasks: %1</source>
        <translation>已删除的任务：%1</translation>
    </message>
    <message>
        <source>The very last change may be missing.</source>
        <translation>最后一次更改可能缺失。</translation>
    </message>
    <message>
        <source>A part of them is damaged and cannot be read.</source>
        <translation>其中一部分已损坏，无法读取。</translation>
    </message>
    <message>
        <source>They were made in another database, which stood in the place of this one.</source>
        <translation>这些更改是在另一个数据库中进行的，该数据库原先位于此处。</translation>
    </message>
    <message>
        <source>The schedule was saved since then.</source>
        <translation>此后排期已保存过。</translation>
    </message>
    <message>
        <source>The file %1 keeps changes that were not saved. They were made with a newer version of this program, which has to be used to take them over.</source>
        <translation>文件 %1 中有未保存的更改。它们由此软件的较新版本写入，需要用该版本来采用。</translation>
    </message>
    <message>
        <source>The file %1 should keep changes that were not saved, but nothing in it can be read.</source>
        <translation>文件 %1 应包含未保存的更改，但其中的内容无法读取。</translation>
    </message>
    <message>
        <source>Changes that are not saved cannot be kept beside the database at the moment: if the program ends now, they are lost. %1</source>
        <translation>目前无法在数据库旁保留未保存的更改：如果现在退出，这些更改将丢失。%1</translation>
    </message>
    <message>
        <source>The changes could not be kept beside the database. They are still in the editor.</source>
        <translation>无法在数据库旁保留更改。更改仍在编辑器中。</translation>
    </message>
    <message>
        <source>Take over</source>
        <translation>采用</translation>
    </message>
    <message>
        <source>Put into a file</source>
        <translation>存入文件</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>丢弃</translation>
    </message>
    <message>
        <source>Delete the file</source>
        <translation>删除文件</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>稍后决定</translation>
    </message>
    <message>
        <source>There are changes that were not saved. The last one was made %1, on %2.</source>
        <translation>有未保存的更改。最后一次更改于 %1（%2）。</translation>
    </message>
    <message>
        <source>less than a minute ago</source>
        <translation>不到一分钟前</translation>
    </message>
    <message>
        <source>What differs from what is saved:</source>
        <translation>与已保存内容的差异：</translation>
    </message>
    <message>
        <source>As it is saved</source>
        <translation>已保存的内容</translation>
    </message>
    <message>
        <source>With these changes</source>
        <translation>含这些更改</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes ago</source>
        <translation>
            <numerusform>%n 分钟前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours ago</source>
        <translation>
            <numerusform>%n 小时前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days ago</source>
        <translation>
            <numerusform>%n 天前</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::changes::ChangesDialog</name>
    <message>
        <source>Look at it in the week</source>
        <translation>在周视图中查看</translation>
    </message>
</context>
<context>
    <name>DifferenceWords</name>
    <message>
        <source>Task %1: %2</source>
        <comment>where, and what differs</comment>
        <translation>任务 %1：%2</translation>
    </message>
    <message>
        <source>Task %1, plan %2: %3</source>
        <comment>where, and what differs</comment>
        <translation>任务 %1，计划 %2：%3</translation>
    </message>
    <message numerus="yes">
        <source>added, valid from %1 to %2, %n plans</source>
        <translation>
            <numerusform>已添加，有效期 %1 至 %2，%n 个计划</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>deleted, was valid from %1 to %2, %n plans</source>
        <translation>
            <numerusform>已删除，原有效期 %1 至 %2，%n 个计划</numerusform>
        </translation>
    </message>
    <message>
        <source>added in row %1: %2, %3 to %4, %5</source>
        <translation>已添加到第 %1 行：%2，%3 至 %4，%5</translation>
    </message>
    <message>
        <source>deleted from row %1: %2, %3 to %4, %5</source>
        <translation>已从第 %1 行删除：%2，%3 至 %4，%5</translation>
    </message>
    <message>
        <source>no programs</source>
        <translation>无节目</translation>
    </message>
    <message>
        <source>row %1 → %2</source>
        <translation>行 %1 → %2</translation>
    </message>
    <message>
        <source>“%1” added as entry %2</source>
        <translation>“%1”添加为条目 %2</translation>
    </message>
    <message>
        <source>“%1” deleted, was entry %2</source>
        <translation>“%1”已删除，原为条目 %2</translation>
    </message>
    <message>
        <source>“%1”: entry %2 → %3</source>
        <translation>“%1”：条目 %2 → %3</translation>
    </message>
    <message>
        <source>“%1”, entry %2: %3</source>
        <translation>“%1”，条目 %2：%3</translation>
    </message>
    <message>
        <source>first day %1 → %2</source>
        <translation>首日 %1 → %2</translation>
    </message>
    <message>
        <source>last day %1 → %2</source>
        <translation>末日 %1 → %2</translation>
    </message>
    <message>
        <source>start %1 → %2</source>
        <translation>开始 %1 → %2</translation>
    </message>
    <message>
        <source>end %1 → %2</source>
        <translation>结束 %1 → %2</translation>
    </message>
    <message>
        <source>runs %1 → %2</source>
        <translation>次数 %1 → %2</translation>
    </message>
    <message>
        <source>days %1 → %2</source>
        <translation>星期 %1 → %2</translation>
    </message>
    <message>
        <source>mode “%1” → “%2”</source>
        <translation>模式“%1” → “%2”</translation>
    </message>
    <message>
        <source>at the end “%1” → “%2”</source>
        <translation>结束动作“%1” → “%2”</translation>
    </message>
    <message>
        <source>name “%1” → “%2”</source>
        <translation>名称“%1” → “%2”</translation>
    </message>
    <message>
        <source>plays in a row %1 → %2</source>
        <translation>连续播放 %1 → %2</translation>
    </message>
    <message>
        <source>now has a program without a length of its own</source>
        <translation>现在有无自身时长的节目</translation>
    </message>
    <message>
        <source>no longer has a program without a length of its own</source>
        <translation>不再有无自身时长的节目</translation>
    </message>
    <message>
        <source>now in conflict</source>
        <translation>现在有冲突</translation>
    </message>
    <message>
        <source>no longer in conflict</source>
        <translation>不再有冲突</translation>
    </message>
    <message>
        <source>now invalid</source>
        <translation>现已失效</translation>
    </message>
    <message>
        <source>no longer invalid</source>
        <translation>不再失效</translation>
    </message>
    <message>
        <source>something that the editor does not show</source>
        <translation>编辑器不显示的内容</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more differences.</source>
        <translation>
            <numerusform>… 还有 %n 处差异。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProgramWords</name>
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
</context>
<context>
    <name>trel::desktop::CatalogueFilter</name>
    <message>
        <source>%1 of %2</source>
        <comment>programs found of programs</comment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Search name and folder</source>
        <translation>搜索名称和文件夹</translation>
    </message>
    <message>
        <source>Kind of program</source>
        <translation>节目类型</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>所有类型</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>缺失</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>未使用</translation>
    </message>
    <message numerus="yes">
        <source>%n programs</source>
        <translation>
            <numerusform>%n 个节目</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::CalendarPopup</name>
    <message>
        <source>Calendar</source>
        <translation>日历</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekPage</name>
    <message>
        <source>Click a block to see why it is on screen, or why not.</source>
        <translation>单击一个区块，查看它为何在屏幕上或为何不在。</translation>
    </message>
    <message>
        <source>Why the selected block is on screen, or why not</source>
        <translation>所选区块为何在屏幕上或为何不在</translation>
    </message>
    <message>
        <source>No task is valid in this week. Add one with “Edit”, then drag programs here.</source>
        <translation>本周没有有效的任务。请用“编辑”添加任务，然后将节目拖到此处。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::year::YearStrip</name>
    <message>
        <source>Gap: no task is valid from %1 to %2.</source>
        <translation>空档：%1至%2没有有效的任务。</translation>
    </message>
    <message>
        <source>Overlap: several tasks are valid from %1 to %2.</source>
        <translation>重叠：%1至%2有多个任务有效。</translation>
    </message>
    <message>
        <source>Task %1 is valid from %2 to %3.</source>
        <translation>任务%1的有效期为%2至%3。</translation>
    </message>
    <message>
        <source>Validity of the tasks in %1</source>
        <translation>%1年任务的有效期</translation>
    </message>
</context>
<context>
    <name>trel::desktop::UsesWindow</name>
    <message>
        <source>Where used</source>
        <translation>使用位置</translation>
    </message>
    <message>
        <source>No plan plays “%1”.</source>
        <translation>没有计划播放“%1”。</translation>
    </message>
    <message numerus="yes">
        <source>“%1” is played by %n plans.</source>
        <translation>
            <numerusform>有 %n 个计划播放“%1”。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::UsesModel</name>
    <message>
        <source>Task</source>
        <translation>任务</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>有效期</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>计划</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
</context>
<context>
    <name>UseWords</name>
    <message>
        <source>%1 – %2</source>
        <comment>from and to</comment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Task %1 (%2), plan %3, %4 %5</source>
        <comment>with dates, days and times</comment>
        <translation>任务 %1（%2），计划 %3，%4 %5</translation>
    </message>
    <message>
        <source>Not on screen any more, as the schedule in effect has it.</source>
        <translation>按生效的排期，不再出现在屏幕上。</translation>
    </message>
    <message>
        <source>Not on screen any more, as the schedule is edited.</source>
        <translation>按编辑中的排期，不再出现在屏幕上。</translation>
    </message>
    <message>
        <source>Never on screen, as the schedule in effect has it.</source>
        <translation>按生效的排期，从不出现在屏幕上。</translation>
    </message>
    <message>
        <source>Never on screen, as the schedule is edited.</source>
        <translation>按编辑中的排期，从不出现在屏幕上。</translation>
    </message>
    <message>
        <source>On screen now: task %1, plan %2.</source>
        <translation>现在在屏幕上：任务 %1，计划 %2。</translation>
    </message>
    <message>
        <source>Next on screen: %1, task %2, plan %3.</source>
        <translation>下次在屏幕上：%1，任务 %2，计划 %3。</translation>
    </message>
    <message numerus="yes">
        <source>Entries become invalid in %n plans:</source>
        <translation>
            <numerusform>%n 个计划中的条目将失效：</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: nothing else is left of it</source>
        <translation>%1：其中不再有其他节目</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more plans.</source>
        <translation>
            <numerusform>……以及另外 %n 个计划。</numerusform>
        </translation>
    </message>
    <message>
        <source>every day</source>
        <translation>每天</translation>
    </message>
    <message>
        <source>%1–%2</source>
        <comment>from day to day</comment>
        <translation>%1至%2</translation>
    </message>
</context>
<context>
    <name>MoveWords</name>
    <message>
        <source>Plan %1: %2, %3 to %4</source>
        <translation>计划 %1：%2，%3 至 %4</translation>
    </message>
    <message>
        <source>New plan in task %1: %2, %3 to %4</source>
        <translation>任务 %1 中的新计划：%2，%3 至 %4</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>每天</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are valid on this day; that is the one in effect.</source>
        <translation>
            <numerusform>这一天有 %n 个有效任务，实际生效的是该任务。</numerusform>
        </translation>
    </message>
    <message>
        <source>Its times cannot be read.</source>
        <translation>无法读取其时间。</translation>
    </message>
    <message>
        <source>A plan cannot run over midnight.</source>
        <translation>计划不能跨越午夜。</translation>
    </message>
    <message>
        <source>A plan has to start before it ends.</source>
        <translation>计划的开始必须早于结束。</translation>
    </message>
    <message>
        <source>Its end follows from its programs; it can only be moved.</source>
        <translation>其结束由节目决定，只能移动。</translation>
    </message>
    <message>
        <source>It plays every day.</source>
        <translation>它每天都播放。</translation>
    </message>
    <message>
        <source>It plays on that day already.</source>
        <translation>它在那一天已经播放。</translation>
    </message>
    <message>
        <source>Its days cannot be read.</source>
        <translation>无法读取其日期。</translation>
    </message>
    <message>
        <source>Its task is not in effect on that day.</source>
        <translation>其任务在那一天不生效。</translation>
    </message>
    <message>
        <source>Conflicts with plan %1, %2 to %3.</source>
        <translation>与计划 %1（%2 至 %3）冲突。</translation>
    </message>
    <message numerus="yes">
        <source>Conflicts with %n more.</source>
        <translation>
            <numerusform>另与 %n 个冲突。</numerusform>
        </translation>
    </message>
    <message>
        <source>No task is valid on this day.</source>
        <translation>这一天没有有效的任务。</translation>
    </message>
    <message>
        <source>These programs cannot be planned here.</source>
        <translation>这些节目不能安排在这里。</translation>
    </message>
    <message>
        <source>Copy the plans of %1…</source>
        <comment>a day</comment>
        <translation>复制 %1 的计划…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekEdits</name>
    <message>
        <source>The editor is not ready yet. Please try again.</source>
        <translation>编辑器尚未就绪，请重试。</translation>
    </message>
    <message>
        <source>The schedule has changed meanwhile; nothing was moved.</source>
        <translation>排期在此期间已更改，未移动任何内容。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::CopyDayDialog</name>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Copy onto these days, whose own plans stay:</source>
        <translation>复制到以下日期，其原有计划保留：</translation>
    </message>
    <message>
        <source>%1 (no task is valid)</source>
        <comment>a day</comment>
        <translation>%1（无有效任务）</translation>
    </message>
    <message>
        <source>There is no plan on that day.</source>
        <translation>那一天没有计划。</translation>
    </message>
    <message numerus="yes">
        <source>%n plans play on that day. Choose the days to copy them onto.</source>
        <translation>
            <numerusform>那一天播放 %n 个计划。请选择要复制到的日期。</numerusform>
        </translation>
    </message>
    <message>
        <source>All of them play on these days already.</source>
        <translation>它们在这些日期都已播放。</translation>
    </message>
    <message numerus="yes">
        <source>%n plans are copied.</source>
        <translation>
            <numerusform>将复制 %n 个计划。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more plans will conflict then. Nothing is lost by that: change what you want afterwards.</source>
        <translation>
            <numerusform>届时将再有 %n 个计划冲突。不会丢失任何内容，之后可随意修改。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>VersionWords</name>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>What is in effect</source>
        <translation>生效内容</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>已保存的内容</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>new: %1</source>
        <translation>新增：%1</translation>
    </message>
    <message>
        <source>changed: %1</source>
        <translation>更改：%1</translation>
    </message>
    <message>
        <source>deleted: %1</source>
        <translation>删除：%1</translation>
    </message>
    <message>
        <source>nothing of note</source>
        <translation>无重要更改</translation>
    </message>
    <message>
        <source>%1 (tasks %2)</source>
        <comment>what a save changed, and in which tasks</comment>
        <translation>%1（任务 %2）</translation>
    </message>
    <message>
        <source>version %1 restored: %2</source>
        <translation>恢复版本 %1：%2</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>没有差异。</translation>
    </message>
    <message numerus="yes">
        <source>%n differences</source>
        <translation>
            <numerusform>%n 处差异</numerusform>
        </translation>
    </message>
    <message>
        <source>Restore version %1? What is saved now stays as a version, so that it can be restored in turn.</source>
        <translation>恢复版本 %1？当前已保存的内容将保留为一个版本，之后也可以恢复。</translation>
    </message>
    <message numerus="yes">
        <source>%n of its programs are no longer in the catalog. Their entries will be invalid: %1</source>
        <translation>
            <numerusform>其中 %n 个节目已不在节目库中，相应条目将失效：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>The schedule in the editor has changes that are not saved.</source>
        <translation>编辑器中的排期有未保存的更改。</translation>
    </message>
    <message>
        <source>Version %1 – %2</source>
        <comment>a version, and when it was saved</comment>
        <translation>版本 %1 – %2</translation>
    </message>
    <message>
        <source>Version %1 – %2 – %3</source>
        <comment>a version, when it was saved, and its name</comment>
        <translation>版本 %1 – %2 – %3</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::VersionModel</name>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>保存时间</translation>
    </message>
    <message>
        <source>By</source>
        <translation>保存者</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>备注</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::DifferenceModel</name>
    <message>
        <source>Task</source>
        <translation>任务</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>计划</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>差异</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::StretchModel</name>
    <message>
        <source>From</source>
        <translation>从</translation>
    </message>
    <message>
        <source>To</source>
        <translation>至</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::ComparedWeeks</name>
    <message>
        <source>Comparing…</source>
        <translation>正在比较…</translation>
    </message>
    <message>
        <source>Nothing differs on the screen in this week.</source>
        <translation>本周屏幕上没有差异。</translation>
    </message>
    <message numerus="yes">
        <source>%n stretches of this week differ on the screen:</source>
        <translation>
            <numerusform>本周屏幕上有 %n 段不同：</numerusform>
        </translation>
    </message>
    <message>
        <source>What differs on the screen</source>
        <translation>屏幕上的差异</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::ComparisonPanel</name>
    <message>
        <source>Comparing…</source>
        <translation>正在比较…</translation>
    </message>
    <message>
        <source>Nothing is in effect.</source>
        <translation>没有内容生效。</translation>
    </message>
    <message>
        <source>%1 → %2: %3</source>
        <comment>two states, and how much differs</comment>
        <translation>%1 → %2：%3</translation>
    </message>
    <message>
        <source>In words</source>
        <translation>文字说明</translation>
    </message>
    <message>
        <source>On the screen</source>
        <translation>屏幕上</translation>
    </message>
    <message>
        <source>What differs</source>
        <translation>差异</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::VersionNameDialog</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>备注</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::VersionsWindow</name>
    <message>
        <source>Versions</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>正在读取…</translation>
    </message>
    <message>
        <source>No versions are kept yet.</source>
        <translation>还没有版本。</translation>
    </message>
    <message>
        <source>Name and note…</source>
        <translation>名称和备注…</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>恢复…</translation>
    </message>
    <message>
        <source>Write to a file…</source>
        <translation>写入文件…</translation>
    </message>
    <message>
        <source>Compared with</source>
        <translation>比较对象</translation>
    </message>
    <message>
        <source>The other way round</source>
        <translation>反向比较</translation>
    </message>
    <message>
        <source>Write the version to a file</source>
        <translation>将版本写入文件</translation>
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
        <source>Save, then restore</source>
        <translation>保存后恢复</translation>
    </message>
    <message>
        <source>Restore without saving</source>
        <translation>不保存直接恢复</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProgramPreview</name>
    <message>
        <source>%1 – Preview</source>
        <translation>%1 – 预览</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>position and length</comment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>The file is not found.</source>
        <translation>找不到文件。</translation>
    </message>
    <message>
        <source>Sound has no picture.</source>
        <translation>音频没有画面。</translation>
    </message>
    <message>
        <source>A live source is seen on the screens alone.</source>
        <translation>直播源只在屏幕上可见。</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>正在读取…</translation>
    </message>
    <message>
        <source>It has no picture that can be read.</source>
        <translation>没有可以读取的画面。</translation>
    </message>
</context>
<context>
    <name>KeyTable</name>
    <message>
        <source>Main window</source>
        <translation>主窗口</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>编辑器</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>周</translation>
    </message>
    <message>
        <source>Go to the next task</source>
        <translation>转到下一个任务</translation>
    </message>
    <message>
        <source>Go to the task before</source>
        <translation>转到上一个任务</translation>
    </message>
    <message>
        <source>Fold or open the task</source>
        <translation>折叠或展开任务</translation>
    </message>
    <message>
        <source>Add a task</source>
        <translation>添加任务</translation>
    </message>
    <message>
        <source>Copy the task</source>
        <translation>复制任务</translation>
    </message>
    <message>
        <source>Delete the task</source>
        <translation>删除任务</translation>
    </message>
    <message>
        <source>Add a plan</source>
        <translation>添加计划</translation>
    </message>
    <message>
        <source>Copy the plan</source>
        <translation>复制计划</translation>
    </message>
    <message>
        <source>Delete the plan</source>
        <translation>删除计划</translation>
    </message>
    <message>
        <source>Choose the programs of the plan</source>
        <translation>选择计划的节目</translation>
    </message>
    <message>
        <source>Save and close</source>
        <translation>保存并关闭</translation>
    </message>
    <message>
        <source>Save and start</source>
        <translation>保存并启用</translation>
    </message>
    <message>
        <source>Close without saving</source>
        <translation>不保存并关闭</translation>
    </message>
    <message>
        <source>Select another plan</source>
        <translation>选择另一个计划</translation>
    </message>
    <message>
        <source>Open the selected plan in the editor</source>
        <translation>在编辑器中打开所选计划</translation>
    </message>
    <message>
        <source>Say what is on screen then, and why</source>
        <translation>说明届时屏幕上的内容及原因</translation>
    </message>
    <message>
        <source>Move the plan by a quarter of an hour</source>
        <translation>将计划移动一刻钟</translation>
    </message>
    <message>
        <source>Move the plan to another day</source>
        <translation>将计划移到另一天</translation>
    </message>
    <message>
        <source>Move the end of the plan</source>
        <translation>移动计划的结束</translation>
    </message>
    <message>
        <source>Move the begin of the plan</source>
        <translation>移动计划的开始</translation>
    </message>
    <message>
        <source>Give up dragging</source>
        <translation>放弃拖动</translation>
    </message>
    <message>
        <source>Copy the plans of the day</source>
        <translation>复制当天的计划</translation>
    </message>
    <message>
        <source>Show another week</source>
        <translation>显示另一周</translation>
    </message>
    <message>
        <source>Show the present moment</source>
        <translation>显示当前时刻</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Fit the whole day</source>
        <translation>适应整天</translation>
    </message>
    <message>
        <source>Programs of a plan</source>
        <translation>一个计划的节目</translation>
    </message>
    <message>
        <source>Go to another program</source>
        <translation>转到另一个节目</translation>
    </message>
    <message>
        <source>Tick the program, or untick it</source>
        <translation>勾选或取消勾选节目</translation>
    </message>
    <message>
        <source>Tick all programs, or none</source>
        <translation>勾选所有节目或全部取消</translation>
    </message>
    <message>
        <source>Add the ticked programs, or this one</source>
        <translation>添加勾选的节目，没有勾选时添加此节目</translation>
    </message>
    <message>
        <source>Take the ticked programs out, or this one</source>
        <translation>删除勾选的节目，没有勾选时删除此节目</translation>
    </message>
    <message>
        <source>Move the program up or down</source>
        <translation>上移或下移节目</translation>
    </message>
    <message>
        <source>Change how often the program is played</source>
        <translation>更改节目的播放次数</translation>
    </message>
    <message>
        <source>Take over the list of programs</source>
        <translation>采用节目列表</translation>
    </message>
</context>
<context>
    <name>trel::desktop::KeySheet</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>trel::desktop::GuideWindow</name>
    <message>
        <source>The guide</source>
        <translation>指南</translation>
    </message>
</context>
<context>
    <name>trel::desktop::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>指南(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>键盘快捷键(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;About this program</source>
        <translation>关于本程序(&amp;A)</translation>
    </message>
    <message>
        <source>Schedules media programs on screens, edits the schedule and follows it.</source>
        <translation>为屏幕上的媒体节目编排、编辑排期并跟踪其播出。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirLight</name>
    <message>
        <source>On air</source>
        <translation>正在播出</translation>
    </message>
    <message>
        <source>Off air</source>
        <translation>未播出</translation>
    </message>
    <message>
        <source>A schedule is in effect.</source>
        <translation>已有排期生效。</translation>
    </message>
    <message>
        <source>No schedule is in effect.</source>
        <translation>没有排期生效。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirState</name>
    <message>
        <source>Time of day: %1</source>
        <translation>当前时间：%1</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>未保存</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>已保存：%1</translation>
    </message>
    <message>
        <source>Started: %1</source>
        <translation>已启用：%1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirBar</name>
    <message>
        <source>Toolbar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停用</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Search the catalog</source>
        <translation>搜索节目库</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ComingPrograms</name>
    <message>
        <source>Programs to come</source>
        <translation>接下来的节目</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::StartAction</name>
    <message>
        <source>Start</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Put the schedule on air</source>
        <translation>启用排期并播出</translation>
    </message>
    <message>
        <source>Put the schedule on air? What is not saved is saved first.</source>
        <translation>要启用排期并播出吗？未保存的内容会先保存。</translation>
    </message>
    <message>
        <source>Open problems: %1</source>
        <translation>未解决的问题：%1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Tasks %1 and %2 are valid on the same days. The schedule can be put on air once they are not.</source>
        <translation>任务%1和任务%2在同一天有效。调整后才能启用排期并播出。</translation>
    </message>
    <message>
        <source>The schedule is on air.</source>
        <translation>排期已启用并在播出。</translation>
    </message>
    <message>
        <source>The schedule is on air. Open problems: %1</source>
        <translation>排期已启用并在播出。未解决的问题：%1</translation>
    </message>
</context>
<context>
    <name>DroppedMedia</name>
    <message>
        <source>None of this can be imported.</source>
        <translation>这些都无法导入。</translation>
    </message>
    <message numerus="yes">
        <source>%n files or folders</source>
        <translation>
            <numerusform>%n 个文件或文件夹</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n addresses</source>
        <translation>
            <numerusform>%n 个地址</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>files, and addresses</comment>
        <translation>%1和%2</translation>
    </message>
    <message>
        <source>Import %1</source>
        <comment>files, or addresses, or both</comment>
        <translation>导入：%1</translation>
    </message>
    <message numerus="yes">
        <source>Import %1; %n cannot be imported</source>
        <comment>files, or addresses, or both</comment>
        <translation>
            <numerusform>导入：%1；%n 个无法导入</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MediaFilters</name>
    <message>
        <source>All media</source>
        <translation>所有媒体</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>音频</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ScreenNews</name>
    <message>
        <source>Cut in: %1</source>
        <translation>已插播：%1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekMenu</name>
    <message>
        <source>&amp;Week</source>
        <translation>周(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>今天(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Previous week</source>
        <translation>上一周(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Next week</source>
        <translation>下一周(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Choose a day…</source>
        <translation>选择日期(&amp;C)…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::DayDrag</name>
    <message>
        <source>Drag a day onto another one to copy its plans there.</source>
        <translation>将一天拖到另一天，即可把其计划复制过去。</translation>
    </message>
    <message>
        <source>Copy the plans of %1 onto %2</source>
        <comment>two days</comment>
        <translation>将 %1 的计划复制到 %2</translation>
    </message>
</context>
<context>
    <name>trel::desktop::place::AddressDialog</name>
    <message>
        <source>Open from a server</source>
        <translation>从服务器打开</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Where the server asks for a password, it is read from the password file of the server's programs (~/.pgpass).</source>
        <translation>如果服务器要求密码，将从服务器程序的密码文件 (~/.pgpass) 中读取。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::players::PlayersDock</name>
    <message>
        <source>Players</source>
        <translation>播放器</translation>
    </message>
    <message>
        <source>Pla&amp;yers</source>
        <translation>播放器(&amp;Y)</translation>
    </message>
    <message>
        <source>No player follows this database. Start schedule-player with it where the screen is.</source>
        <translation>没有播放器跟随此数据库。请在连接屏幕的计算机上，用此数据库运行 schedule-player。</translation>
    </message>
    <message>
        <source>Show what the players show</source>
        <translation>显示各播放器的画面内容</translation>
    </message>
</context>
<context>
    <name>trel::desktop::players::PlayerModel</name>
    <message>
        <source>Screen</source>
        <translation>屏幕</translation>
    </message>
    <message>
        <source>Shows</source>
        <translation>显示内容</translation>
    </message>
    <message>
        <source>Heard</source>
        <comment>when a player told of itself</comment>
        <translation>响应</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>故障</translation>
    </message>
</context>
<context>
    <name>PlayerWords</name>
    <message>
        <source>Stands still in: %1</source>
        <translation>停在：%1</translation>
    </message>
    <message>
        <source>Has no picture for: %1</source>
        <translation>没有画面：%1</translation>
    </message>
    <message>
        <source>Not since %1</source>
        <comment>a moment</comment>
        <translation>自 %1 起无响应</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no faults</comment>
        <translation>无</translation>
    </message>
    <message>
        <source>%1, the last at %2: %3</source>
        <comment>a number, a moment, a sentence</comment>
        <translation>%1，最近一次 %2：%3</translation>
    </message>
    <message>
        <source>Players: %1</source>
        <translation>播放器：%1</translation>
    </message>
    <message>
        <source>Players: %1, silent: %2</source>
        <translation>播放器：%1，无响应：%2</translation>
    </message>
</context>
<context>
    <name>MergeWords</name>
    <message numerus="yes">
        <source>%n tasks were changed at both desks: if you merge, you choose for each of them which one stays. Everything else of both is kept.</source>
        <translation>
            <numerusform>%n 个任务在两边都被更改：合并时，由您为每个任务选择保留哪一个。双方的其他更改全部保留。</numerusform>
        </translation>
    </message>
    <message>
        <source>No task was changed at both desks: what both have changed can be saved together.</source>
        <translation>没有任务在两边都被更改：双方的更改可以一起保存。</translation>
    </message>
    <message>
        <source>Merge…</source>
        <translation>合并…</translation>
    </message>
    <message>
        <source>Merged, your new task %1 becomes task %2: another task %1 was added there.</source>
        <translation>合并后，您新建的任务 %1 将成为任务 %2：对方添加了另一个任务 %1。</translation>
    </message>
    <message>
        <source>Merge and save</source>
        <translation>合并并保存</translation>
    </message>
    <message>
        <source>Merge and go on editing</source>
        <translation>合并并继续编辑</translation>
    </message>
    <message>
        <source>Merged, tasks %1 and %2 would be valid on the same days. That cannot be saved: they stay in the editor until you have changed their dates.</source>
        <translation>合并后，任务 %1 和任务 %2 会在相同的日期有效，因此无法保存：在您更改日期之前，它们留在编辑器中。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::merge::ConflictsDialog</name>
    <message>
        <source>These tasks were changed here and at the other desk. Choose for each of them which one stays.</source>
        <translation>这些任务在此处和对方那里都被更改。请为每个任务选择保留哪一个。</translation>
    </message>
    <message>
        <source>Mine, as it is edited here</source>
        <translation>我的（此处编辑的内容）</translation>
    </message>
    <message>
        <source>Theirs, as it was saved there</source>
        <translation>对方的（对方保存的内容）</translation>
    </message>
    <message>
        <source>Tasks that were changed at both desks</source>
        <translation>在两边都被更改的任务</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>任务</translation>
    </message>
    <message>
        <source>What stays</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>not chosen yet</source>
        <translation>尚未选择</translation>
    </message>
    <message>
        <source>mine</source>
        <translation>我的</translation>
    </message>
    <message>
        <source>theirs</source>
        <translation>对方的</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are still to be chosen.</source>
        <translation>
            <numerusform>还有 %n 个任务需要选择。</numerusform>
        </translation>
    </message>
    <message>
        <source>Everything else of both is kept.</source>
        <translation>双方的其他更改全部保留。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::DeskNotice</name>
    <message>
        <source>Also edited at %1 since %2</source>
        <comment>a desk, and a time</comment>
        <translation>%1 也在编辑（自 %2 起）</translation>
    </message>
    <message numerus="yes">
        <source>Also edited at %n other desks</source>
        <translation>
            <numerusform>另有 %n 处也在编辑</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: since %2, last changed at %3, tasks %4</source>
        <comment>a desk, times, and numbers</comment>
        <translation>%1：自 %2 起，最后更改 %3，任务 %4</translation>
    </message>
</context>
<context>
    <name>FileWords</name>
    <message numerus="yes">
        <source>%n programs in this file are not in the catalog. Their entries will be invalid: %1</source>
        <translation>
            <numerusform>此文件中有 %n 个节目不在节目库中，相应条目将失效：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n programs in the catalog may have another content than in this file: %1</source>
        <translation>
            <numerusform>节目库中有 %n 个节目的内容可能与此文件中的不同：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n programs have another name in the catalog than in this file: %1</source>
        <translation>
            <numerusform>有 %n 个节目在节目库中的名称与此文件中的不同：%1</numerusform>
        </translation>
    </message>
</context>
</TS>
