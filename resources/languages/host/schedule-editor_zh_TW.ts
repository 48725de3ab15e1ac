<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>Demonstration</name>
    <message>
        <source>The demonstration could not be read: %1: %2</source>
        <translation>無法讀取示範內容：%1：%2</translation>
    </message>
    <message>
        <source>The demonstration&apos;s media could not be copied beside the database.</source>
        <translation>無法將示範媒體複製到資料庫旁邊。</translation>
    </message>
</context>
<context>
    <name>EditorMenus</name>
    <message>
        <source>&amp;Schedule</source>
        <translation>排程(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Edit schedule</source>
        <translation>編輯排程(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Open database…</source>
        <translation>開啟資料庫(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Read schedule from a file…</source>
        <translation>從檔案讀取排程(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Write schedule to a file…</source>
        <translation>將排程寫入檔案(&amp;W)…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>檢視(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Dark theme</source>
        <translation>深色主題(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Light theme</source>
        <translation>淺色主題(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>結束(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Programs</source>
        <translation>節目(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Import files…</source>
        <translation>匯入檔案(&amp;I)…</translation>
    </message>
    <message>
        <source>Import &amp;folder…</source>
        <translation>匯入資料夾(&amp;F)…</translation>
    </message>
    <message>
        <source>&amp;Remove from catalogue</source>
        <translation>從節目庫移除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>語言(&amp;L)</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>No programs yet. Drop media files or folders here, or choose Import.</source>
        <translation>還沒有節目。請將媒體檔案或資料夾拖放到這裡，或選擇「匯入」。</translation>
    </message>
    <message>
        <source>Schedule editor</source>
        <translation>排程編輯器</translation>
    </message>
    <message>
        <source>%1 – Schedule editor</source>
        <translation>%1 – 排程編輯器</translation>
    </message>
    <message>
        <source>Open database</source>
        <translation>開啟資料庫</translation>
    </message>
    <message>
        <source>Schedules (*.db *.sqlite);;All files (*)</source>
        <translation>排程 (*.db *.sqlite);;所有檔案 (*)</translation>
    </message>
    <message>
        <source>Import files</source>
        <translation>匯入檔案</translation>
    </message>
    <message>
        <source>Import folder</source>
        <translation>匯入資料夾</translation>
    </message>
    <message>
        <source>Write the schedule to a file</source>
        <translation>將排程寫入檔案</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>排程 (*.json)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>已寫入 %1。</translation>
    </message>
    <message>
        <source>Read a schedule from a file</source>
        <translation>從檔案讀取排程</translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation>無法讀取 %1：%2</translation>
    </message>
    <message numerus="yes">
        <source>Replace the whole schedule by the %n tasks of this file?</source>
        <translation>
            <numerusform>要以此檔案中的 %n 個任務取代整個排程嗎？</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>取代</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n programs from the catalogue? Plans that use them will show their entries as invalid. The files stay.</source>
        <translation>
            <numerusform>要從節目庫移除 %n 個節目嗎？使用這些節目的計畫會將相關項目顯示為失效。檔案會保留。</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Importing</source>
        <translation>正在匯入</translation>
    </message>
    <message>
        <source>The import was cancelled; nothing was taken in.</source>
        <translation>匯入已取消，未匯入任何內容。</translation>
    </message>
    <message>
        <source>Imported: %1 new, %2 updated.</source>
        <translation>已匯入：新增 %1 個，更新 %2 個。</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more.</source>
        <translation>
            <numerusform>……還有 %n 個。</numerusform>
        </translation>
    </message>
    <message>
        <source>Some files could not be imported:</source>
        <translation>部分檔案無法匯入：</translation>
    </message>
    <message>
        <source>The schedule has changes that are not saved.</source>
        <translation>排程有尚未儲存的變更。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>儲存</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>捨棄變更</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>繼續編輯</translation>
    </message>
</context>
<context>
    <name>HostPrompts</name>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
</context>
<context>
    <name>ProgramTableModel</name>
    <message>
        <source>Video</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音訊</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>圖片</translation>
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
        <translation>檔案已不存在：%1</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>編號</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>節目</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長度</translation>
    </message>
    <message>
        <source>File</source>
        <translation>檔案</translation>
    </message>
</context>
<context>
    <name>SaveRescue</name>
    <message>
        <source>The schedule was not saved. %1

What shall become of your changes?</source>
        <translation>排程未能儲存。%1

要如何處理您的變更？</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重試</translation>
    </message>
    <message>
        <source>Write to a file</source>
        <translation>寫入檔案</translation>
    </message>
    <message>
        <source>Give up</source>
        <translation>捨棄變更</translation>
    </message>
    <message>
        <source>Write the schedule to a file</source>
        <translation>將排程寫入檔案</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>排程 (*.json)</translation>
    </message>
</context>
</TS>
