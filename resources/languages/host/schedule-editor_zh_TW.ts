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
        <source>The demonstration media could not be copied to the database folder.</source>
        <translation>無法將示範媒體複製到資料庫所在的資料夾。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EditorMenus</name>
    <message>
        <source>Hi&amp;gh contrast</source>
        <translation>高對比(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;As-run of a day…</source>
        <translation>單日播出記錄(&amp;A)…</translation>
    </message>
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
        <source>Open &amp;from a server…</source>
        <translation>從伺服器開啟(&amp;F)…</translation>
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
        <source>&amp;Remove from catalog</source>
        <translation>從節目庫移除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>語言(&amp;L)</translation>
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
        <translation>停用排程(&amp;T)…</translation>
    </message>
    <message>
        <source>&amp;Bring back what was canceled</source>
        <translation>復原已取消的變更(&amp;B)</translation>
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
        <translation>預覽(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;New database…</source>
        <translation>新增資料庫(&amp;N)…</translation>
    </message>
    <message>
        <source>O&amp;pen recent</source>
        <translation>最近使用的資料庫(&amp;P)</translation>
    </message>
    <message>
        <source>St&amp;art the schedule…</source>
        <translation>啟用排程(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>搜尋(&amp;S)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EditorWindow</name>
    <message>
        <source>Import: %1 percent</source>
        <translation>匯入：百分之 %1</translation>
    </message>
    <message>
        <source>Now and next</source>
        <translation>目前與接下來</translation>
    </message>
    <message>
        <source>Clock changes</source>
        <translation>日光節約時間切換</translation>
    </message>
    <message>
        <source>&amp;Now and next</source>
        <translation>目前與接下來(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Clock changes</source>
        <translation>日光節約時間切換(&amp;C)</translation>
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
    <message numerus="yes">
        <source>Replace the whole schedule with the %n tasks in this file?</source>
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
    <message>
        <source>Changes in the editor that are not saved go with it (tasks %1). Undo brings them back.</source>
        <translation>編輯器中未儲存的變更（任務 %1）也會被取代。「復原」可以恢復它們。</translation>
    </message>
    <message>
        <source>Save, then replace</source>
        <translation>儲存後取代</translation>
    </message>
    <message>
        <source>Replace without saving</source>
        <translation>不儲存直接取代</translation>
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
        <source>The schedule has changes that are not saved. As a draft they are offered when this database is opened again.

Close this question to keep editing.</source>
        <translation>排程有尚未儲存的變更。保留為草稿後，再次開啟此資料庫時會詢問如何處理。

關閉此提示可繼續編輯。</translation>
    </message>
    <message>
        <source>Keep as draft</source>
        <translation>保留為草稿</translation>
    </message>
    <message>
        <source>Catalog</source>
        <translation>節目庫</translation>
    </message>
    <message>
        <source>Catal&amp;og</source>
        <translation>節目庫(&amp;O)</translation>
    </message>
    <message>
        <source>The change is in the editor now, where it can be saved.</source>
        <translation>變更現已在編輯器中，可在那裡儲存。</translation>
    </message>
    <message>
        <source>New database</source>
        <translation>新增資料庫</translation>
    </message>
    <message>
        <source>The file %1 exists already. It is not written over.</source>
        <translation>檔案 %1 已存在，不會被覆寫。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::CataloguePanel</name>
    <message>
        <source>No programs yet. Drop media files or folders here, or choose “Import files”.</source>
        <translation>還沒有節目。請將媒體檔案或資料夾拖放到這裡，或選擇「匯入檔案」。</translation>
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
        <translation>沒有符合搜尋條件的節目。</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n programs from the catalog? The files are not deleted.</source>
        <translation>
            <numerusform>要從節目庫移除 %n 個節目嗎？檔案不會被刪除。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::CatalogueImport</name>
    <message>
        <source>Import files</source>
        <translation>匯入檔案</translation>
    </message>
    <message>
        <source>Import folder</source>
        <translation>匯入資料夾</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Importing</source>
        <translation>正在匯入</translation>
    </message>
    <message>
        <source>The import was canceled; nothing was imported.</source>
        <translation>匯入已取消，未匯入任何內容。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>file and reason</comment>
        <translation>%1：%2</translation>
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
    <message numerus="yes">
        <source>Looking for files: %n found</source>
        <translation>
            <numerusform>正在尋找檔案：已找到 %n 個</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported: %1, %2.</source>
        <translation>已匯入：%1，%2。</translation>
    </message>
    <message numerus="yes">
        <source>%n new</source>
        <translation>
            <numerusform>新增 %n 個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n updated</source>
        <translation>
            <numerusform>更新 %n 個</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HostPrompts</name>
    <message>
        <source>Question</source>
        <translation>詢問</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>訊息</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>The file %1 exists already. Replace it?</source>
        <translation>檔案 %1 已存在。要取代它嗎？</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>取代</translation>
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
        <translation>記憶體不足。</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>磁碟已滿。</translation>
    </message>
    <message>
        <source>Your share of the disk is used up.</source>
        <translation>您的磁碟配額已用完。</translation>
    </message>
    <message>
        <source>The system does not let this application write a larger file.</source>
        <translation>系統不允許本程式寫入更大的檔案。</translation>
    </message>
    <message>
        <source>The file or its folder is read-only.</source>
        <translation>檔案或其所在資料夾為唯讀。</translation>
    </message>
    <message>
        <source>It was opened for reading only.</source>
        <translation>它是以唯讀方式開啟的。</translation>
    </message>
    <message>
        <source>Reading it took too long.</source>
        <translation>讀取時間過長。</translation>
    </message>
    <message numerus="yes">
        <source>A text in it is longer than %n bytes.</source>
        <translation>
            <numerusform>其中有文字超過 %n 位元組。</numerusform>
        </translation>
    </message>
    <message>
        <source>The database reports error %1.</source>
        <translation>資料庫回報錯誤 %1。</translation>
    </message>
    <message>
        <source>The database reports error %1. %3</source>
        <translation>資料庫回報錯誤 %1。%3</translation>
    </message>
    <message>
        <source>The database has failed its own check.</source>
        <translation>資料庫未通過自我檢查。</translation>
    </message>
    <message>
        <source>The disk reports a read or write error.</source>
        <translation>磁碟回報讀寫錯誤。</translation>
    </message>
    <message>
        <source>Data that must be there is missing.</source>
        <translation>缺少必要的資料。</translation>
    </message>
    <message>
        <source>The database driver is not the one that this application was made for.</source>
        <translation>資料庫驅動程式與本程式不相符。</translation>
    </message>
    <message>
        <source>The file is missing or empty, but its log %1 is still there.</source>
        <translation>檔案遺失或為空，但其記錄檔 %1 仍然存在。</translation>
    </message>
    <message>
        <source>No file can be created there.</source>
        <translation>無法在該位置建立檔案。</translation>
    </message>
    <message>
        <source>Its log %1 belongs to another copy of the file. Put back the file that it belongs to, or move the log away to go on without it.</source>
        <translation>其記錄檔 %1 屬於該檔案的另一個副本。請放回對應的檔案，或移走記錄檔後再繼續。</translation>
    </message>
    <message>
        <source>Its log has no index, and none can be created in a read-only folder. Copy both files to another folder.</source>
        <translation>其記錄檔沒有索引，且無法在唯讀資料夾中建立。請將兩個檔案複製到其他資料夾。</translation>
    </message>
    <message>
        <source>It was removed or replaced after it was opened.</source>
        <translation>它在開啟後被移除或取代。</translation>
    </message>
    <message numerus="yes">
        <source>The name or the path of a program is longer than %n bytes.</source>
        <translation>
            <numerusform>某個節目的名稱或路徑超過 %n 位元組。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n numbers for programs are used up.</source>
        <translation>
            <numerusform>全部 %n 個節目編號已用完。</numerusform>
        </translation>
    </message>
    <message>
        <source>Its plans do not fit together.</source>
        <translation>其中的計畫彼此不一致。</translation>
    </message>
    <message>
        <source>“%1” is missing.</source>
        <translation>缺少「%1」。</translation>
    </message>
    <message>
        <source>It contains “%1”, which does not belong there.</source>
        <translation>其中含有不應存在的「%1」。</translation>
    </message>
    <message>
        <source>“%1” has been changed.</source>
        <translation>「%1」已被變更。</translation>
    </message>
    <message>
        <source>It does not say which state it is in.</source>
        <translation>其中未記錄自身的狀態。</translation>
    </message>
    <message>
        <source>It was created by an older version of this application. Set up the server again.</source>
        <translation>它由此應用程式的較早版本建立。請重新設定伺服器。</translation>
    </message>
    <message>
        <source>The address contains a password. Passwords belong in a password file.</source>
        <translation>位址中包含密碼。密碼應放在密碼檔案中。</translation>
    </message>
    <message>
        <source>The address of a schedule on a server has this form: %1</source>
        <translation>伺服器上的排程位址格式如下：%1</translation>
    </message>
    <message>
        <source>The name of the schedule in the address is missing, too long or not readable.</source>
        <translation>位址中的排程名稱缺漏、過長或無法讀取。</translation>
    </message>
    <message>
        <source>The connection was lost before the server answered.</source>
        <translation>在伺服器回應之前連線已中斷。</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>伺服器沒有回應。</translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n tasks.</source>
        <translation>
            <numerusform>任務超過 %n 個。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n plans.</source>
        <translation>
            <numerusform>計畫超過 %n 個。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n entries.</source>
        <translation>
            <numerusform>項目超過 %n 個。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n numbers in the lists of plans.</source>
        <translation>
            <numerusform>計畫清單中的數字超過 %n 個。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n programs.</source>
        <translation>
            <numerusform>節目超過 %n 個。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A text of task %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>任務 %1 中有文字超過 %n 位元組。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>It is larger than %n bytes.</source>
        <translation>
            <numerusform>它超過 %n 位元組。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n values.</source>
        <translation>
            <numerusform>值超過 %n 個。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A name in line %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>第 %1 行有名稱超過 %n 位元組。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A text in line %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>第 %1 行有文字超過 %n 位元組。</numerusform>
        </translation>
    </message>
    <message>
        <source>It is not valid JSON (line %1, column %2).</source>
        <translation>不是有效的 JSON（第 %1 行，第 %2 欄）。</translation>
    </message>
    <message>
        <source>“%1” is not a whole number.</source>
        <translation>「%1」不是整數。</translation>
    </message>
    <message>
        <source>“%1” is outside the permitted range.</source>
        <translation>「%1」超出允許範圍。</translation>
    </message>
    <message>
        <source>Wrong kind of value: expected %1, found %2.</source>
        <translation>值的類型不正確：應為%1，實際為%2。</translation>
    </message>
    <message>
        <source>Wrong kind of value: expected %1 or a number, found %2.</source>
        <translation>值的類型不正確：應為 %1 或數字，實際為%2。</translation>
    </message>
    <message>
        <source>“%2” is not known here. Expected: %1 or a number.</source>
        <translation>此處無法辨識「%2」。應為 %1 或數字。</translation>
    </message>
    <message>
        <source>The text is not valid Base64.</source>
        <translation>文字不是有效的 Base64。</translation>
    </message>
    <message numerus="yes">
        <source>The text is longer than %n bytes.</source>
        <translation>
            <numerusform>文字超過 %n 位元組。</numerusform>
        </translation>
    </message>
    <message>
        <source>The key %1 is not the ID of the task, which is %2.</source>
        <translation>鍵 %1 與任務的 ID（%2）不一致。</translation>
    </message>
    <message>
        <source>Another task already has the ID %1.</source>
        <translation>另一個任務已使用 ID %1。</translation>
    </message>
    <message>
        <source>The format is “%1” instead of “%2”.</source>
        <translation>格式是「%1」，而不是「%2」。</translation>
    </message>
    <message>
        <source>Version %1 is newer than version %2, the newest that this application reads.</source>
        <translation>版本 %1 比本程式可讀取的最新版本 %2 更新。</translation>
    </message>
    <message>
        <source>There is no version %1.</source>
        <translation>不存在版本 %1。</translation>
    </message>
    <message>
        <source>It is JSON of another kind, not a schedule.</source>
        <translation>它是其他類型的 JSON，不是排程。</translation>
    </message>
    <message>
        <source>It is not a schedule: “format” is missing.</source>
        <translation>它不是排程：缺少「format」。</translation>
    </message>
    <message>
        <source>“%1” is not known here.</source>
        <translation>此處無法辨識「%1」。</translation>
    </message>
    <message>
        <source>“%1” occurs twice here.</source>
        <translation>「%1」在此處出現兩次。</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>它是資料夾。</translation>
    </message>
    <message>
        <source>It is a pipe, not a file.</source>
        <translation>它是管道，不是檔案。</translation>
    </message>
    <message>
        <source>It is a socket, not a file.</source>
        <translation>它是通訊端，不是檔案。</translation>
    </message>
    <message>
        <source>It is a device, not a file.</source>
        <translation>它是裝置，不是檔案。</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>它不是檔案。</translation>
    </message>
    <message>
        <source>Nothing comes through the pipe.</source>
        <translation>管道中沒有資料。</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>檔案不存在。</translation>
    </message>
    <message>
        <source>You do not have permission to read it.</source>
        <translation>您沒有讀取權限。</translation>
    </message>
    <message>
        <source>It cannot be opened. %1</source>
        <translation>無法開啟。%1</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>檔案為空。</translation>
    </message>
    <message>
        <source>Its name is not in UTF-8. Rename the file to import it.</source>
        <translation>其名稱不是 UTF-8。請重新命名後再匯入。</translation>
    </message>
    <message>
        <source>Addresses of this kind cannot be played.</source>
        <translation>無法播放此類位址。</translation>
    </message>
    <message>
        <source>It is a file on another computer. Copy it to this computer first.</source>
        <translation>該檔案位於另一部電腦上。請先複製到本機。</translation>
    </message>
    <message>
        <source>It is not a media file, or it is damaged.</source>
        <translation>它不是媒體檔案，或者已損毀。</translation>
    </message>
    <message>
        <source>Files of this format cannot be imported.</source>
        <translation>無法匯入此格式的檔案。</translation>
    </message>
    <message>
        <source>Its content cannot be read.</source>
        <translation>無法讀取其內容。</translation>
    </message>
    <message>
        <source>The image in it cannot be read.</source>
        <translation>無法讀取其中的影像。</translation>
    </message>
    <message>
        <source>It contains neither picture nor sound.</source>
        <translation>它既沒有畫面也沒有聲音。</translation>
    </message>
    <message>
        <source>Its length cannot be determined.</source>
        <translation>無法判定其時長。</translation>
    </message>
    <message>
        <source>It could not be read in time.</source>
        <translation>未能及時讀取。</translation>
    </message>
    <message>
        <source>The media reader crashed while reading it.</source>
        <translation>媒體讀取程式在讀取時當機。</translation>
    </message>
    <message>
        <source>The media reader gave no valid answer about it.</source>
        <translation>媒體讀取程式未傳回有效結果。</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader is missing: %1</source>
        <translation>無法讀取媒體。缺少媒體讀取程式：%1</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 cannot be started. %2</source>
        <translation>無法讀取媒體。無法執行媒體讀取程式 %1。%2</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 does not answer.</source>
        <translation>無法讀取媒體。媒體讀取程式 %1 沒有回應。</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 exits immediately.</source>
        <translation>無法讀取媒體。媒體讀取程式 %1 立即結束。</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 is of another version.</source>
        <translation>無法讀取媒體。媒體讀取程式 %1 的版本不符。</translation>
    </message>
    <message>
        <source>Version %1 is damaged.</source>
        <translation>版本 %1 已損毀。</translation>
    </message>
    <message numerus="yes">
        <source>The name or the note of a version is longer than %n characters.</source>
        <translation>
            <numerusform>版本的名稱或備註超過 %n 個字元。</numerusform>
        </translation>
    </message>
    <message>
        <source>The name or the note of a version contains a character that is not visible.</source>
        <translation>版本的名稱或備註中包含不可見的字元。</translation>
    </message>
    <message>
        <source>No schedule file is open, so nothing can be saved.</source>
        <translation>未開啟排程檔案，因此無法儲存。</translation>
    </message>
    <message>
        <source>%1 cannot be opened. Its folder does not exist.</source>
        <translation>無法開啟 %1。其所在資料夾不存在。</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 不存在。</translation>
    </message>
    <message>
        <source>%1 is not a schedule database.</source>
        <translation>%1 不是排程資料庫。</translation>
    </message>
    <message>
        <source>%1 is a database of another application.</source>
        <translation>%1 是其他程式的資料庫。</translation>
    </message>
    <message>
        <source>%1 was written by a newer version of this application.</source>
        <translation>%1 由本程式的較新版本寫入。</translation>
    </message>
    <message>
        <source>%1 is in use by another application. Try again when that application is closed.</source>
        <translation>%1 正由其他程式使用。請在該程式關閉後再試一次。</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>無法寫入 %1。%2</translation>
    </message>
    <message>
        <source>%1 is damaged. %2</source>
        <translation>%1 已損毀。%2</translation>
    </message>
    <message>
        <source>%1 has been saved by another application in the meantime. Saving now would overwrite those changes.</source>
        <translation>%1 在此期間已由其他程式儲存。現在儲存會覆寫那些變更。</translation>
    </message>
    <message>
        <source>%1 has no room for more programs. %2</source>
        <translation>%1 無法容納更多節目。%2</translation>
    </message>
    <message>
        <source>%1 could not be read or written. %2</source>
        <translation>無法讀取或寫入 %1。%2</translation>
    </message>
    <message>
        <source>%1 is not a schedule database as this application creates it. %2</source>
        <translation>%1 與本程式建立的排程資料庫不一致。%2</translation>
    </message>
    <message>
        <source>%1 exceeds what a schedule can hold. %2</source>
        <translation>%1 超出排程可容納的範圍。%2</translation>
    </message>
    <message>
        <source>%1 may not have been written. %2 The change is not visible in the file now, but may be there after a restart of the computer. Write the schedule to another disk, and check the current one before you go on.</source>
        <translation>%1 可能未寫入。%2目前檔案中看不到該變更，但電腦重新開機後可能出現。請將排程寫入其他磁碟，並在繼續之前檢查目前的磁碟。</translation>
    </message>
    <message>
        <source>It is not certain whether %1 has been written. %2 Once the server can be reached again, see whether the change is there before you go on.</source>
        <translation>無法確定 %1 是否已寫入。%2伺服器恢復連線後，請先查看變更是否存在，再繼續操作。</translation>
    </message>
    <message>
        <source>%1 does not exist. A schedule on a server is set up with “schedulectl server-setup”.</source>
        <translation>%1 不存在。伺服器上的排程以「schedulectl server-setup」設定。</translation>
    </message>
    <message>
        <source>You do not have permission.</source>
        <translation>您沒有權限。</translation>
    </message>
    <message>
        <source>The file or a folder of its path does not exist.</source>
        <translation>檔案或其路徑中的資料夾不存在。</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>磁碟為唯讀。</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>名稱過長。</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>開啟的檔案過多。</translation>
    </message>
    <message>
        <source>The file is in use.</source>
        <translation>檔案正在使用中。</translation>
    </message>
    <message>
        <source>The system reports error %1.</source>
        <translation>系統回報錯誤 %1。</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>是或否</translation>
    </message>
    <message>
        <source>number</source>
        <translation>數字</translation>
    </message>
    <message>
        <source>text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>list</source>
        <translation>清單</translation>
    </message>
    <message>
        <source>object</source>
        <translation>物件</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>空值</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>整數</translation>
    </message>
    <message>
        <source>whole number as text</source>
        <translation>文字形式的整數</translation>
    </message>
    <message>
        <source>program number that occurs once</source>
        <translation>只出現一次的節目編號</translation>
    </message>
    <message>
        <source>another number</source>
        <translation>其他數字</translation>
    </message>
    <message>
        <source>SHA-256 hash</source>
        <translation>SHA-256 雜湊值</translation>
    </message>
    <message>
        <source>another text</source>
        <translation>其他文字</translation>
    </message>
    <message>
        <source>%1 could not be read. %2</source>
        <translation>無法讀取 %1。%2</translation>
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
        <source>Folder</source>
        <translation>資料夾</translation>
    </message>
</context>
<context>
    <name>trel::desktop::SaveRescue</name>
    <message>
        <source>The schedule was not saved. %1

What do you want to do with your changes?</source>
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
        <source>Write the schedule to a file</source>
        <translation>將排程寫入檔案</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>排程 (*.json)</translation>
    </message>
    <message>
        <source>Go on editing</source>
        <translation>繼續編輯</translation>
    </message>
    <message>
        <source>While you were editing, %1 was saved by another program. Your changes are not saved.</source>
        <translation>在您編輯期間，%1 已被其他軟體儲存。您的變更未儲存。</translation>
    </message>
    <message>
        <source>If you keep yours, what was saved there stays among the versions. If you take theirs, yours can be brought back until the next save.</source>
        <translation>如果保留自己的變更，對方儲存的內容會留在版本中。如果採用對方的內容，自己的變更在下次儲存之前都可以恢復。</translation>
    </message>
    <message>
        <source>What was changed there:</source>
        <translation>對方所做的變更：</translation>
    </message>
    <message>
        <source>Nothing that you would see.</source>
        <translation>沒有可見的變更。</translation>
    </message>
    <message>
        <source>As it was saved there</source>
        <translation>對方儲存的內容</translation>
    </message>
    <message>
        <source>With your changes</source>
        <translation>含您的變更</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>保留我的</translation>
    </message>
    <message>
        <source>Take theirs</source>
        <translation>採用對方的</translation>
    </message>
    <message>
        <source>Write mine to a file</source>
        <translation>將我的寫入檔案</translation>
    </message>
    <message>
        <source>While you were editing, %1 was saved by %2, on %3. Your changes are not saved.</source>
        <comment>the database, a program, and the time</comment>
        <translation>在您編輯期間，%1 已被 %2 儲存（%3）。您的變更未儲存。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ClockChangePanel</name>
    <message>
        <source>Clock changes</source>
        <translation>日光節約時間切換</translation>
    </message>
    <message>
        <source>No clock change falls within the validity of any task.</source>
        <translation>各任務的有效期內沒有日光節約時間切換。</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; no plan of task %4 is affected.</source>
        <translation>%1：%2–%3 被跳過；不影響任務 %4 的計畫。</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; no plan of task %4 is affected.</source>
        <translation>%1：%2–%3 出現兩次；不影響任務 %4 的計畫。</translation>
    </message>
</context>
<context>
    <name>ClockChangeText</name>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 does not play.</source>
        <translation>%1：%2–%3 被跳過；任務 %5 的計畫 %4 不播放。</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 starts at %6 in the middle of its list.</source>
        <translation>%1：%2–%3 被跳過；任務 %5 的計畫 %4 在 %6 從清單中途開始播放。</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 is cut off at %6.</source>
        <translation>%1：%2–%3 被跳過；任務 %5 的計畫 %4 在 %6 中斷。</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 skips this part of its list.</source>
        <translation>%1：%2–%3 被跳過；任務 %5 的計畫 %4 跳過清單的這一部分。</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 plays twice.</source>
        <translation>%1：%2–%3 出現兩次；任務 %5 的計畫 %4 播放兩次。</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 starts twice at %6.</source>
        <translation>%1：%2–%3 出現兩次；任務 %5 的計畫 %4 在 %6 開始兩次。</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 ends twice at %6.</source>
        <translation>%1：%2–%3 出現兩次；任務 %5 的計畫 %4 在 %6 結束兩次。</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 repeats this part of its list.</source>
        <translation>%1：%2–%3 出現兩次；任務 %5 的計畫 %4 重複清單的這一部分。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::PreviewDock</name>
    <message>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>預覽(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Full-screen preview</source>
        <translation>全螢幕預覽(&amp;F)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::PreviewScreen</name>
    <message>
        <source>Preview of the screen</source>
        <translation>螢幕預覽</translation>
    </message>
</context>
<context>
    <name>trel::desktop::NowNextPanel</name>
    <message>
        <source>Now</source>
        <translation>目前</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>接下來</translation>
    </message>
    <message>
        <source>Cut in</source>
        <translation>已插播</translation>
    </message>
    <message>
        <source>Now and next</source>
        <translation>目前與接下來</translation>
    </message>
    <message>
        <source>What the screen shows</source>
        <translation>螢幕狀態</translation>
    </message>
    <message>
        <source>Program on screen</source>
        <translation>螢幕上的節目</translation>
    </message>
    <message>
        <source>Position in the program</source>
        <translation>節目播放位置</translation>
    </message>
    <message>
        <source>Why this is on screen</source>
        <translation>顯示原因</translation>
    </message>
    <message>
        <source>Next program</source>
        <translation>下一個節目</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>未啟用</translation>
    </message>
    <message>
        <source>%1 played</source>
        <translation>已播放 %1</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>剩餘 %1</translation>
    </message>
    <message>
        <source>%1, until %2, %3 left</source>
        <translation>%1，到 %2，剩餘 %3</translation>
    </message>
    <message>
        <source>Nothing else is scheduled.</source>
        <translation>之後沒有內容。</translation>
    </message>
    <message>
        <source>at %1, in %2</source>
        <translation>%1，%2 後</translation>
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
        <translation>黑畫面</translation>
    </message>
    <message>
        <source>Frozen</source>
        <translation>定格</translation>
    </message>
    <message>
        <source>Last frame of %1</source>
        <translation>%1 的最後畫面</translation>
    </message>
    <message>
        <source>Black screen</source>
        <translation>黑畫面</translation>
    </message>
    <message>
        <source>Entry %1 of %2, play %3 of %4</source>
        <translation>第 %1 項，共 %2 項，第 %3 次，共 %4 次</translation>
    </message>
    <message>
        <source>Task %1, plan %2</source>
        <translation>任務 %1，計畫 %2</translation>
    </message>
    <message>
        <source>Choose Start to put the saved schedule into effect.</source>
        <translation>按一下「啟用」，已儲存的排程即會生效。</translation>
    </message>
    <message>
        <source>No plan has started yet.</source>
        <translation>尚未有計畫開始。</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is the first of the plans for this time.</source>
        <translation>在此時段的計畫中，任務 %2 的計畫 %1 排在最前。</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is due, but none of its programs can play.</source>
        <translation>輪到任務 %2 的計畫 %1，但其中的節目都無法播放。</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is due, but its list is to run less than once.</source>
        <translation>輪到任務 %2 的計畫 %1，但其清單的播放次數不足一次。</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 has played its list the set number of times.</source>
        <translation>任務 %2 的計畫 %1 已按設定的次數播完清單。</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is over, and no other has begun.</source>
        <translation>任務 %2 的計畫 %1 已結束，其他計畫尚未開始。</translation>
    </message>
    <message>
        <source>Cut in manually in place of plan %1 of task %2.</source>
        <translation>手動插播，代替任務 %2 的計畫 %1。</translation>
    </message>
    <message>
        <source>What was cut in for plan %1 of task %2 has nothing left to play.</source>
        <translation>代替任務 %2 的計畫 %1 的插播已無內容可播。</translation>
    </message>
    <message>
        <source>Cut in: %1</source>
        <translation>已插播：%1</translation>
    </message>
    <message>
        <source>Original list: %1</source>
        <translation>原來：%1</translation>
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
        <translation>%1，任務 %2。%3</translation>
    </message>
    <message>
        <source>On screen: %1, at %2</source>
        <translation>螢幕：%1，已播 %2</translation>
    </message>
    <message>
        <source>On screen: %1</source>
        <translation>螢幕：%1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>day and time of day</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 to %2 is skipped: the clocks go forward.</source>
        <translation>%1 至 %2 被跳過：時鐘撥快。</translation>
    </message>
    <message>
        <source>%1 to %2 occurs twice: the clocks go back.</source>
        <translation>%1 至 %2 出現兩次：時鐘撥慢。</translation>
    </message>
    <message numerus="yes">
        <source>%n more plans do not reach the screen.</source>
        <translation>
            <numerusform>另有 %n 個計畫未能顯示在螢幕上。</numerusform>
        </translation>
    </message>
    <message>
        <source>Plan %1, above it, takes precedence.</source>
        <translation>排在上面的計畫 %1 優先。</translation>
    </message>
    <message>
        <source>It conflicts with a plan above it.</source>
        <translation>它與上面的計畫衝突。</translation>
    </message>
    <message>
        <source>Its list is over at %1, before the plan ends.</source>
        <translation>其清單在計畫結束之前的 %1 就已播完。</translation>
    </message>
    <message>
        <source>Plan %1, %2 to %3</source>
        <translation>計畫 %1，%2 至 %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>plan and its programs</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>No task is valid on this day.</source>
        <translation>這一天沒有有效的任務。</translation>
    </message>
    <message>
        <source>No task is valid</source>
        <translation>沒有有效的任務</translation>
    </message>
    <message>
        <source>No task</source>
        <translation>無任務</translation>
    </message>
    <message>
        <source>Task %1</source>
        <translation>任務 %1</translation>
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
        <translation>跳過：時鐘撥快</translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation>重複：時鐘撥慢</translation>
    </message>
    <message>
        <source>nothing to show</source>
        <translation>無內容可播</translation>
    </message>
    <message>
        <source>Not on screen</source>
        <translation>不在螢幕上</translation>
    </message>
    <message>
        <source>In conflict</source>
        <translation>有衝突</translation>
    </message>
    <message>
        <source>Programs of the week</source>
        <translation>本週節目</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekView</name>
    <message>
        <source>Week</source>
        <translation>週</translation>
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
        <translation>編輯中</translation>
    </message>
    <message>
        <source>In effect</source>
        <translation>生效中</translation>
    </message>
    <message>
        <source>Previous week</source>
        <translation>上一週</translation>
    </message>
    <message>
        <source>Next week</source>
        <translation>下一週</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Schedule shown</source>
        <translation>顯示哪個排程</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>上個月</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>下個月</translation>
    </message>
    <message>
        <source>Choose a day in a calendar</source>
        <translation>在月曆中選擇日期</translation>
    </message>
    <message>
        <source>%1. Choose a day in a calendar</source>
        <comment>days of a week</comment>
        <translation>%1。在月曆中選擇日期</translation>
    </message>
</context>
<context>
    <name>ProblemText</name>
    <message>
        <source>Task %1</source>
        <translation>任務 %1</translation>
    </message>
    <message>
        <source>Task %1, row %2</source>
        <translation>任務 %1，第 %2 列</translation>
    </message>
    <message>
        <source>The validity overlaps that of task %1 from %2 to %3.</source>
        <translation>有效期在 %2 至 %3 與任務 %1 的有效期重疊。</translation>
    </message>
    <message>
        <source>The validity overlaps that of task %1.</source>
        <translation>有效期與任務 %1 的有效期重疊。</translation>
    </message>
    <message>
        <source>The task is never valid: “%1” to “%2” is not a period.</source>
        <translation>任務始終無效：「%1」至「%2」不是有效的期間。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: none of its days falls within the validity of the task.</source>
        <translation>計畫 %1 不會播放：任務的有效期內沒有它的日期。</translation>
    </message>
    <message>
        <source>Plan %1 is never on screen: earlier rows such as row %2 always come first.</source>
        <translation>計畫 %1 從不上螢幕：前面的列（如第 %2 列）始終優先。</translation>
    </message>
    <message>
        <source>Plan %1 is in conflict with plan %2 in row %3 from %4 on.</source>
        <translation>計畫 %1 自 %4 起與第 %3 列的計畫 %2 衝突。</translation>
    </message>
    <message>
        <source>Plan %1 is in conflict with plan %2 in row %3, but on no date.</source>
        <translation>計畫 %1 與第 %3 列的計畫 %2 衝突，但不涉及任何日期。</translation>
    </message>
    <message>
        <source>No picture from %1 to %2, every day.</source>
        <translation>每天 %1 至 %2 沒有畫面。</translation>
    </message>
    <message>
        <source>No picture from %1 to %2 on: %3.</source>
        <translation>%3 的 %1 至 %2 沒有畫面。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it would go on after midnight, until %2.</source>
        <translation>計畫 %1 不會播放：它會跨過午夜，直到 %2。</translation>
    </message>
    <message>
        <source>Plan %1 is cut off at midnight: it would go on until %2.</source>
        <translation>計畫 %1 在午夜被截斷：它會持續到 %2。</translation>
    </message>
    <message>
        <source>Plan %1 is cut off at midnight: it would go on for more than a day.</source>
        <translation>計畫 %1 在午夜被截斷：它會持續一天以上。</translation>
    </message>
    <message>
        <source>Invalid entries in plan %1: %2. The first is “%3”.</source>
        <translation>計畫 %1 中的無效項目：%2 個。第一個是「%3」。</translation>
    </message>
    <message>
        <source>Missing files in plan %1: %2. The first is “%3”.</source>
        <translation>計畫 %1 中遺失的檔案：%2 個。第一個是「%3」。</translation>
    </message>
    <message>
        <source>Entries without a length in plan %1: %2. The first is “%3”.</source>
        <translation>計畫 %1 中沒有長度的項目：%2 個。第一個是「%3」。</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is cut off at the end of the day.</source>
        <translation>計畫 %1 中的「%2」在一天結束時被截斷。</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is cut off at %3, when the plan ends.</source>
        <translation>計畫 %1 中的「%2」在 %3 計畫結束時被截斷。</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is never reached: an entry before it does not end by itself.</source>
        <translation>計畫 %1 中永遠輪不到「%2」：它前面的某個項目不會自行結束。</translation>
    </message>
    <message>
        <source>Plan %1 contains no programs.</source>
        <translation>計畫 %1 不含任何節目。</translation>
    </message>
    <message>
        <source>Change the dates of one of the two tasks. Until then nothing can be saved.</source>
        <translation>請變更其中一個任務的日期。在此之前無法儲存。</translation>
    </message>
    <message>
        <source>Choose a start date, and an end date that is not before it.</source>
        <translation>請選擇開始日期，以及不早於它的結束日期。</translation>
    </message>
    <message>
        <source>Correct the days and times of the plan.</source>
        <translation>請更正計畫的日期和時間。</translation>
    </message>
    <message>
        <source>Change the days or times of one of the plans.</source>
        <translation>請變更其中一個計畫的日期或時間。</translation>
    </message>
    <message>
        <source>Restore the files, or choose other programs.</source>
        <translation>請還原檔案，或選擇其他節目。</translation>
    </message>
    <message>
        <source>Choose the programs of the plan anew.</source>
        <translation>請重新選擇計畫的節目。</translation>
    </message>
    <message>
        <source>Split the plan in two, or let it end before midnight.</source>
        <translation>請將計畫一分為二，或使其在午夜前結束。</translation>
    </message>
    <message>
        <source>Let the plan end before midnight.</source>
        <translation>請使計畫在午夜前結束。</translation>
    </message>
    <message>
        <source>Let the plan end later, or play less.</source>
        <translation>請使計畫晚些結束，或減少節目。</translation>
    </message>
    <message>
        <source>Move the entry to the front, or into another plan.</source>
        <translation>請將該項目移到前面，或移到另一個計畫中。</translation>
    </message>
    <message>
        <source>Add a plan, or let the plan before it end with its last frame.</source>
        <translation>請新增計畫，或讓前一個計畫以定格畫面結束。</translation>
    </message>
    <message>
        <source>Move the plan if that is not wanted.</source>
        <translation>如果不希望這樣，請移動計畫。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemModel</name>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
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
        <translation>問題</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>處理方法</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemPanel</name>
    <message>
        <source>No problems.</source>
        <translation>沒有問題。</translation>
    </message>
    <message>
        <source>Go to the row</source>
        <translation>前往該列</translation>
    </message>
    <message>
        <source>Split in two</source>
        <translation>一分為二</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemDock</name>
    <message>
        <source>No open problems</source>
        <translation>沒有待解決的問題</translation>
    </message>
    <message numerus="yes">
        <source>%n open problems</source>
        <translation>
            <numerusform>%n 個待解決的問題</numerusform>
        </translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>問題清單</translation>
    </message>
    <message>
        <source>Pro&amp;blems</source>
        <translation>問題清單(&amp;B)</translation>
    </message>
    <message>
        <source>Show what is wrong with the schedule</source>
        <translation>顯示排程中的問題</translation>
    </message>
</context>
<context>
    <name>PlanFaultText</name>
    <message>
        <source>Plan %1 never plays: none of its days is a day of the week.</source>
        <translation>計畫 %1 不會播放：其日期都不是一週中的某一天。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, is not a time in the form %3.</source>
        <translation>計畫 %1 不會播放：開始「%2」不是 %3 格式的時間。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its end, “%2”, is not a time in the form %3.</source>
        <translation>計畫 %1 不會播放：結束「%2」不是 %3 格式的時間。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, and its end, “%3”, are not times in the form %4.</source>
        <translation>計畫 %1 不會播放：開始「%2」與結束「%3」都不是 %4 格式的時間。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its list is to run less than once.</source>
        <translation>計畫 %1 不會播放：其清單的播放次數不足一次。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it starts and ends at %2.</source>
        <translation>計畫 %1 不會播放：開始和結束都是 %2。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it ends at %3, before it starts at %2.</source>
        <translation>計畫 %1 不會播放：%2 開始，卻在更早的 %3 結束。</translation>
    </message>
</context>
<context>
    <name>ZoneError</name>
    <message>
        <source>The system knows no time zone of the name “%1”, so that the local time is not known.</source>
        <translation>系統中沒有名為「%1」的時區，因此無法得知當地時間。</translation>
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
        <translation>還原</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EffectActions</name>
    <message>
        <source>Stop the schedule that is in effect? The screen stays black until a schedule is started again.</source>
        <translation>要停用生效中的排程嗎？螢幕將保持黑畫面，直到再次啟用排程。</translation>
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
        <translation>自 %1 %2 起生效（第 %3 次儲存）</translation>
    </message>
    <message>
        <source>Started by %1.</source>
        <translation>由 %1 啟用。</translation>
    </message>
    <message numerus="yes">
        <source>What is saved differs in %n tasks: %1</source>
        <translation>
            <numerusform>已儲存的內容有 %n 個任務不同：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>a program</comment>
        <translation>「%1」</translation>
    </message>
    <message>
        <source>the last frame of “%1”</source>
        <translation>「%1」的最後畫面</translation>
    </message>
    <message>
        <source>a black screen</source>
        <translation>黑畫面</translation>
    </message>
    <message>
        <source>%1 comes after %2, at %3; %4 comes back at %5.</source>
        <translation>%1將在%2之後於 %3 插播；%5 起恢復為%4。</translation>
    </message>
    <message>
        <source>%1 was cut off at %2; %3 comes at %4.</source>
        <translation>%1於 %2 被中斷；%4 起為%3。</translation>
    </message>
    <message>
        <source>%1 was cut in at %2; %3 comes back at %4.</source>
        <translation>%1於 %2 插播；%4 起恢復為%3。</translation>
    </message>
    <message>
        <source>%1 comes after %2, at %3.</source>
        <translation>%1將在%2之後於 %3 插播。</translation>
    </message>
    <message>
        <source>%1 was cut off at %2.</source>
        <translation>%1於 %2 被中斷。</translation>
    </message>
    <message>
        <source>%1 was cut in at %2.</source>
        <translation>%1於 %2 插播。</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <comment>time and date</comment>
        <translation>%2 %1</translation>
    </message>
    <message>
        <source>What is in effect could not be changed. %1</source>
        <translation>無法變更生效中的內容。%1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::AsRunWindow</name>
    <message>
        <source>As-run</source>
        <translation>播出記錄</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>螢幕</translation>
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
        <translation>後一天</translation>
    </message>
    <message>
        <source>Only what was not as planned</source>
        <translation>僅顯示與預定不符的</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>正在讀取…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::AsRunModel</name>
    <message>
        <source>From</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>To</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Planned</source>
        <translation>預定</translation>
    </message>
    <message>
        <source>On screen</source>
        <translation>螢幕內容</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>備註</translation>
    </message>
</context>
<context>
    <name>AsRunText</name>
    <message>
        <source>Not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>No record</source>
        <translation>無記錄</translation>
    </message>
    <message>
        <source>No player</source>
        <translation>無播放器</translation>
    </message>
    <message>
        <source>Stand-by picture</source>
        <translation>待機畫面</translation>
    </message>
    <message>
        <source>Last good frame of %1</source>
        <translation>%1 的最後一個完好畫面</translation>
    </message>
    <message>
        <source>What was on before</source>
        <translation>先前的內容</translation>
    </message>
    <message>
        <source>Cut off: the schedule was stopped</source>
        <translation>中斷：排程已停止</translation>
    </message>
    <message>
        <source>Cut off: the player was ended</source>
        <translation>中斷：播放器已結束</translation>
    </message>
    <message>
        <source>Cut off: the player was killed</source>
        <translation>中斷：播放器被強制終止</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Cut off: the clock was changed</source>
        <translation>中斷：時鐘被調整</translation>
    </message>
    <message>
        <source>The player had been ended</source>
        <translation>播放器已結束</translation>
    </message>
    <message>
        <source>The player had been killed</source>
        <translation>播放器已被強制終止</translation>
    </message>
    <message>
        <source>The machine had stopped</source>
        <translation>裝置已停機</translation>
    </message>
    <message>
        <source>The player had no schedule yet</source>
        <translation>播放器尚無排程</translation>
    </message>
    <message>
        <source>The machine was asleep</source>
        <translation>裝置處於休眠</translation>
    </message>
    <message>
        <source>The records could not be kept</source>
        <translation>記錄未能保存</translation>
    </message>
    <message>
        <source>Recorded until %1.</source>
        <translation>記錄到 %1 為止。</translation>
    </message>
    <message>
        <source>Only the first %1 lines of the day are shown.</source>
        <translation>只顯示當天的前 %1 列。</translation>
    </message>
    <message>
        <source>No record tells why</source>
        <translation>沒有記錄說明原因</translation>
    </message>
    <message>
        <source>%1 s late</source>
        <translation>晚了 %1 秒</translation>
    </message>
    <message>
        <source>The records cannot be read: %1</source>
        <translation>無法讀取記錄：%1</translation>
    </message>
    <message>
        <source>No player has recorded anything for this database.</source>
        <translation>還沒有播放器為此資料庫留下記錄。</translation>
    </message>
    <message>
        <source>The records were changed, or some are missing. “schedulectl as-run --verify” names the place.</source>
        <translation>記錄遭到變更或有缺漏。「schedulectl as-run --verify」會指出位置。</translation>
    </message>
    <message>
        <source>Not as planned, and no record tells why: %1</source>
        <translation>與預定不符且沒有記錄說明原因：%1</translation>
    </message>
    <message>
        <source>There is no record of this day.</source>
        <translation>這一天沒有記錄。</translation>
    </message>
    <message>
        <source>The screen was as planned, or a record tells why not.</source>
        <translation>螢幕與預定一致，或有記錄說明原因。</translation>
    </message>
    <message>
        <source>Cut off: something was cut in</source>
        <translation>中斷：有插播</translation>
    </message>
    <message>
        <source>Cut off: another schedule came</source>
        <translation>中斷：換了排程</translation>
    </message>
</context>
<context>
    <name>EditWords</name>
    <message>
        <source>Back to what is saved</source>
        <translation>恢復為已儲存的內容</translation>
    </message>
    <message>
        <source>Saved by another program: tasks %1</source>
        <translation>由其他軟體儲存：任務 %1</translation>
    </message>
    <message>
        <source>This takes back what another program has saved as well (tasks %1). Nothing is overwritten before you save, and what was saved there stays among the versions.</source>
        <translation>這也會復原其他軟體儲存的內容（任務 %1）。在您儲存之前不會覆寫任何內容，對方儲存的內容會留在版本中。</translation>
    </message>
    <message>
        <source>Take it back</source>
        <translation>復原</translation>
    </message>
    <message>
        <source>Leave it</source>
        <translation>保持不變</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks edited</source>
        <translation>
            <numerusform>編輯了 %n 個任務</numerusform>
        </translation>
    </message>
    <message>
        <source>Task %1 added</source>
        <translation>新增任務 %1</translation>
    </message>
    <message>
        <source>Task %1 deleted</source>
        <translation>刪除任務 %1</translation>
    </message>
    <message>
        <source>Task %1 edited</source>
        <translation>編輯任務 %1</translation>
    </message>
    <message>
        <source>Task %1: first day %2 → %3</source>
        <translation>任務 %1：首日 %2 → %3</translation>
    </message>
    <message>
        <source>Task %1: last day %2 → %3</source>
        <translation>任務 %1：末日 %2 → %3</translation>
    </message>
    <message>
        <source>Task %1, plan %2 added</source>
        <translation>任務 %1，新增計畫 %2</translation>
    </message>
    <message>
        <source>Task %1, plan %2 deleted</source>
        <translation>任務 %1，刪除計畫 %2</translation>
    </message>
    <message>
        <source>Task %1, plan %2 edited</source>
        <translation>任務 %1，編輯計畫 %2</translation>
    </message>
    <message>
        <source>Task %1, plan %2: other programs</source>
        <translation>任務 %1，計畫 %2：更換節目</translation>
    </message>
    <message>
        <source>Task %1, plan %2: ends at a set time</source>
        <translation>任務 %1，計畫 %2：依設定時間結束</translation>
    </message>
    <message>
        <source>Task %1, plan %2: ends after a number of runs</source>
        <translation>任務 %1，計畫 %2：依次數結束</translation>
    </message>
    <message>
        <source>Task %1, plan %2: start %3 → %4</source>
        <translation>任務 %1，計畫 %2：開始 %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: end %3 → %4</source>
        <translation>任務 %1，計畫 %2：結束 %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: days %3 → %4</source>
        <translation>任務 %1，計畫 %2：星期 %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: runs %3 → %4</source>
        <translation>任務 %1，計畫 %2：次數 %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: a black screen at the end</source>
        <translation>任務 %1，計畫 %2：結束時黑畫面</translation>
    </message>
    <message>
        <source>Task %1, plan %2: the last frame at the end</source>
        <translation>任務 %1，計畫 %2：結束時定格</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>每天</translation>
    </message>
    <message>
        <source>Task %1, plan %2: %3 → %4</source>
        <translation>任務 %1，計畫 %2：%3 → %4</translation>
    </message>
</context>
<context>
    <name>trel::desktop::undo::HistoryActions</name>
    <message>
        <source>&amp;Undo</source>
        <translation>復原(&amp;U)</translation>
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
        <translation>%1（已儲存）</translation>
    </message>
    <message>
        <source>%1 (saved; editor opened)</source>
        <comment>a step</comment>
        <translation>%1（已儲存，開啟編輯器時）</translation>
    </message>
    <message>
        <source>%1 (editor opened)</source>
        <comment>a step</comment>
        <translation>%1（開啟編輯器時）</translation>
    </message>
</context>
<context>
    <name>trel::desktop::undo::HistoryDock</name>
    <message>
        <source>History</source>
        <translation>歷程記錄</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>歷程記錄(&amp;H)</translation>
    </message>
</context>
<context>
    <name>DraftWords</name>
    <message>
        <source>There are changes that were not saved. The last one was made on %1.</source>
        <translation>有未儲存的變更。最後一次變更於 %1。</translation>
    </message>
    <message>
        <source>New tasks: %1</source>
        <translation>新任務：%1</translation>
    </message>
    <message>
        <source>Changed tasks: %1</source>
        <translation>已變更的任務：%1</translation>
    </message>
    <message>
        <source>Deleted tasks: %1</source>
        <translation>已刪除的任務：%1</translation>
    </message>
    <message>
        <source>The very last change may be missing.</source>
        <translation>最後一次變更可能遺失。</translation>
    </message>
    <message>
        <source>A part of them is damaged and cannot be read.</source>
        <translation>其中一部分已損毀，無法讀取。</translation>
    </message>
    <message>
        <source>They were made in another database, which stood in the place of this one.</source>
        <translation>這些變更是在另一個資料庫中進行的，該資料庫原先位於此處。</translation>
    </message>
    <message>
        <source>The schedule was saved since then.</source>
        <translation>此後排程已儲存過。</translation>
    </message>
    <message>
        <source>The file %1 keeps changes that were not saved. They were made with a newer version of this program, which has to be used to take them over.</source>
        <translation>檔案 %1 中有未儲存的變更。它們由此軟體的較新版本寫入，需要用該版本來採用。</translation>
    </message>
    <message>
        <source>The file %1 should keep changes that were not saved, but nothing in it can be read.</source>
        <translation>檔案 %1 應包含未儲存的變更，但其中的內容無法讀取。</translation>
    </message>
    <message>
        <source>Changes that are not saved cannot be kept beside the database at the moment: if the program ends now, they are lost. %1</source>
        <translation>目前無法在資料庫旁保留未儲存的變更：如果現在結束，這些變更將遺失。%1</translation>
    </message>
    <message>
        <source>The changes could not be kept beside the database. They are still in the editor.</source>
        <translation>無法在資料庫旁保留變更。變更仍在編輯器中。</translation>
    </message>
    <message>
        <source>Take over</source>
        <translation>採用</translation>
    </message>
    <message>
        <source>Put into a file</source>
        <translation>存入檔案</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>丟棄</translation>
    </message>
    <message>
        <source>Delete the file</source>
        <translation>刪除檔案</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>稍後決定</translation>
    </message>
    <message>
        <source>There are changes that were not saved. The last one was made %1, on %2.</source>
        <translation>有未儲存的變更。最後一次變更於 %1（%2）。</translation>
    </message>
    <message>
        <source>less than a minute ago</source>
        <translation>不到一分鐘前</translation>
    </message>
    <message>
        <source>What differs from what is saved:</source>
        <translation>與已儲存內容的差異：</translation>
    </message>
    <message>
        <source>As it is saved</source>
        <translation>已儲存的內容</translation>
    </message>
    <message>
        <source>With these changes</source>
        <translation>含這些變更</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes ago</source>
        <translation>
            <numerusform>%n 分鐘前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours ago</source>
        <translation>
            <numerusform>%n 小時前</numerusform>
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
        <translation>在週檢視中查看</translation>
    </message>
</context>
<context>
    <name>DifferenceWords</name>
    <message>
        <source>Task %1: %2</source>
        <comment>where, and what differs</comment>
        <translation>任務 %1：%2</translation>
    </message>
    <message>
        <source>Task %1, plan %2: %3</source>
        <comment>where, and what differs</comment>
        <translation>任務 %1，計畫 %2：%3</translation>
    </message>
    <message numerus="yes">
        <source>added, valid from %1 to %2, %n plans</source>
        <translation>
            <numerusform>已新增，有效期 %1 至 %2，%n 個計畫</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>deleted, was valid from %1 to %2, %n plans</source>
        <translation>
            <numerusform>已刪除，原有效期 %1 至 %2，%n 個計畫</numerusform>
        </translation>
    </message>
    <message>
        <source>added in row %1: %2, %3 to %4, %5</source>
        <translation>已新增到第 %1 列：%2，%3 至 %4，%5</translation>
    </message>
    <message>
        <source>deleted from row %1: %2, %3 to %4, %5</source>
        <translation>已從第 %1 列刪除：%2，%3 至 %4，%5</translation>
    </message>
    <message>
        <source>no programs</source>
        <translation>無節目</translation>
    </message>
    <message>
        <source>row %1 → %2</source>
        <translation>列 %1 → %2</translation>
    </message>
    <message>
        <source>“%1” added as entry %2</source>
        <translation>「%1」新增為項目 %2</translation>
    </message>
    <message>
        <source>“%1” deleted, was entry %2</source>
        <translation>「%1」已刪除，原為項目 %2</translation>
    </message>
    <message>
        <source>“%1”: entry %2 → %3</source>
        <translation>「%1」：項目 %2 → %3</translation>
    </message>
    <message>
        <source>“%1”, entry %2: %3</source>
        <translation>「%1」，項目 %2：%3</translation>
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
        <translation>開始 %1 → %2</translation>
    </message>
    <message>
        <source>end %1 → %2</source>
        <translation>結束 %1 → %2</translation>
    </message>
    <message>
        <source>runs %1 → %2</source>
        <translation>次數 %1 → %2</translation>
    </message>
    <message>
        <source>days %1 → %2</source>
        <translation>星期 %1 → %2</translation>
    </message>
    <message>
        <source>mode “%1” → “%2”</source>
        <translation>模式 「%1」 → 「%2」</translation>
    </message>
    <message>
        <source>at the end “%1” → “%2”</source>
        <translation>結束動作 「%1」 → 「%2」</translation>
    </message>
    <message>
        <source>name “%1” → “%2”</source>
        <translation>名稱 「%1」 → 「%2」</translation>
    </message>
    <message>
        <source>plays in a row %1 → %2</source>
        <translation>連續播放 %1 → %2</translation>
    </message>
    <message>
        <source>now has a program without a length of its own</source>
        <translation>現在有無自身長度的節目</translation>
    </message>
    <message>
        <source>no longer has a program without a length of its own</source>
        <translation>不再有無自身長度的節目</translation>
    </message>
    <message>
        <source>now in conflict</source>
        <translation>現在有衝突</translation>
    </message>
    <message>
        <source>no longer in conflict</source>
        <translation>不再有衝突</translation>
    </message>
    <message>
        <source>now invalid</source>
        <translation>現已失效</translation>
    </message>
    <message>
        <source>no longer invalid</source>
        <translation>不再失效</translation>
    </message>
    <message>
        <source>something that the editor does not show</source>
        <translation>編輯器不顯示的內容</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more differences.</source>
        <translation>
            <numerusform>… 還有 %n 處差異。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProgramWords</name>
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
        <translation>搜尋名稱和資料夾</translation>
    </message>
    <message>
        <source>Kind of program</source>
        <translation>節目類型</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>所有類型</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>遺失</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>未使用</translation>
    </message>
    <message numerus="yes">
        <source>%n programs</source>
        <translation>
            <numerusform>%n 個節目</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::CalendarPopup</name>
    <message>
        <source>Calendar</source>
        <translation>月曆</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekPage</name>
    <message>
        <source>Click a block to see why it is on screen, or why not.</source>
        <translation>按一下區塊，查看它為何在螢幕上或為何不在。</translation>
    </message>
    <message>
        <source>Why the selected block is on screen, or why not</source>
        <translation>所選區塊為何在螢幕上或為何不在</translation>
    </message>
    <message>
        <source>No task is valid in this week. Add one with “Edit”, then drag programs here.</source>
        <translation>本週沒有有效的任務。請用「編輯」新增任務，然後將節目拖到此處。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::year::YearStrip</name>
    <message>
        <source>Gap: no task is valid from %1 to %2.</source>
        <translation>空檔：%1至%2沒有有效的任務。</translation>
    </message>
    <message>
        <source>Overlap: several tasks are valid from %1 to %2.</source>
        <translation>重疊：%1至%2有多個任務有效。</translation>
    </message>
    <message>
        <source>Task %1 is valid from %2 to %3.</source>
        <translation>任務%1的有效期為%2至%3。</translation>
    </message>
    <message>
        <source>Validity of the tasks in %1</source>
        <translation>%1年任務的有效期</translation>
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
        <translation>沒有計畫播放「%1」。</translation>
    </message>
    <message numerus="yes">
        <source>“%1” is played by %n plans.</source>
        <translation>
            <numerusform>有 %n 個計畫播放「%1」。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::UsesModel</name>
    <message>
        <source>Task</source>
        <translation>任務</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>有效期間</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>計畫</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
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
        <translation>任務 %1（%2），計畫 %3，%4 %5</translation>
    </message>
    <message>
        <source>Not on screen any more, as the schedule in effect has it.</source>
        <translation>依生效的排程，不再出現在螢幕上。</translation>
    </message>
    <message>
        <source>Not on screen any more, as the schedule is edited.</source>
        <translation>依編輯中的排程，不再出現在螢幕上。</translation>
    </message>
    <message>
        <source>Never on screen, as the schedule in effect has it.</source>
        <translation>依生效的排程，從不出現在螢幕上。</translation>
    </message>
    <message>
        <source>Never on screen, as the schedule is edited.</source>
        <translation>依編輯中的排程，從不出現在螢幕上。</translation>
    </message>
    <message>
        <source>On screen now: task %1, plan %2.</source>
        <translation>現在在螢幕上：任務 %1，計畫 %2。</translation>
    </message>
    <message>
        <source>Next on screen: %1, task %2, plan %3.</source>
        <translation>下次在螢幕上：%1，任務 %2，計畫 %3。</translation>
    </message>
    <message numerus="yes">
        <source>Entries become invalid in %n plans:</source>
        <translation>
            <numerusform>%n 個計畫中的項目將失效：</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: nothing else is left of it</source>
        <translation>%1：其中不再有其他節目</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more plans.</source>
        <translation>
            <numerusform>……以及另外 %n 個計畫。</numerusform>
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
        <translation>計畫 %1：%2，%3 至 %4</translation>
    </message>
    <message>
        <source>New plan in task %1: %2, %3 to %4</source>
        <translation>任務 %1 中的新計畫：%2，%3 至 %4</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>每天</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are valid on this day; that is the one in effect.</source>
        <translation>
            <numerusform>這一天有 %n 個有效任務，實際生效的是該任務。</numerusform>
        </translation>
    </message>
    <message>
        <source>Its times cannot be read.</source>
        <translation>無法讀取其時間。</translation>
    </message>
    <message>
        <source>A plan cannot run over midnight.</source>
        <translation>計畫不能跨越午夜。</translation>
    </message>
    <message>
        <source>A plan has to start before it ends.</source>
        <translation>計畫的開始必須早於結束。</translation>
    </message>
    <message>
        <source>Its end follows from its programs; it can only be moved.</source>
        <translation>其結束由節目決定，只能移動。</translation>
    </message>
    <message>
        <source>It plays every day.</source>
        <translation>它每天都播放。</translation>
    </message>
    <message>
        <source>It plays on that day already.</source>
        <translation>它在那一天已經播放。</translation>
    </message>
    <message>
        <source>Its days cannot be read.</source>
        <translation>無法讀取其日期。</translation>
    </message>
    <message>
        <source>Its task is not in effect on that day.</source>
        <translation>其任務在那一天不生效。</translation>
    </message>
    <message>
        <source>Conflicts with plan %1, %2 to %3.</source>
        <translation>與計畫 %1（%2 至 %3）衝突。</translation>
    </message>
    <message numerus="yes">
        <source>Conflicts with %n more.</source>
        <translation>
            <numerusform>另與 %n 個衝突。</numerusform>
        </translation>
    </message>
    <message>
        <source>No task is valid on this day.</source>
        <translation>這一天沒有有效的任務。</translation>
    </message>
    <message>
        <source>These programs cannot be planned here.</source>
        <translation>這些節目不能安排在這裡。</translation>
    </message>
    <message>
        <source>Copy the plans of %1…</source>
        <comment>a day</comment>
        <translation>複製 %1 的計畫…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekEdits</name>
    <message>
        <source>The editor is not ready yet. Please try again.</source>
        <translation>編輯器尚未就緒，請再試一次。</translation>
    </message>
    <message>
        <source>The schedule has changed meanwhile; nothing was moved.</source>
        <translation>排程在此期間已變更，未移動任何內容。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::CopyDayDialog</name>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Copy onto these days, whose own plans stay:</source>
        <translation>複製到以下日期，其原有計畫保留：</translation>
    </message>
    <message>
        <source>%1 (no task is valid)</source>
        <comment>a day</comment>
        <translation>%1（無有效任務）</translation>
    </message>
    <message>
        <source>There is no plan on that day.</source>
        <translation>那一天沒有計畫。</translation>
    </message>
    <message numerus="yes">
        <source>%n plans play on that day. Choose the days to copy them onto.</source>
        <translation>
            <numerusform>那一天播放 %n 個計畫。請選擇要複製到的日期。</numerusform>
        </translation>
    </message>
    <message>
        <source>All of them play on these days already.</source>
        <translation>它們在這些日期都已播放。</translation>
    </message>
    <message numerus="yes">
        <source>%n plans are copied.</source>
        <translation>
            <numerusform>將複製 %n 個計畫。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more plans will conflict then. Nothing is lost by that: change what you want afterwards.</source>
        <translation>
            <numerusform>屆時將再有 %n 個計畫衝突。不會遺失任何內容，之後可隨意修改。</numerusform>
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
        <translation>生效內容</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>已儲存的內容</translation>
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
        <translation>變更：%1</translation>
    </message>
    <message>
        <source>deleted: %1</source>
        <translation>刪除：%1</translation>
    </message>
    <message>
        <source>nothing of note</source>
        <translation>無重要變更</translation>
    </message>
    <message>
        <source>%1 (tasks %2)</source>
        <comment>what a save changed, and in which tasks</comment>
        <translation>%1（任務 %2）</translation>
    </message>
    <message>
        <source>version %1 restored: %2</source>
        <translation>還原版本 %1：%2</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>沒有差異。</translation>
    </message>
    <message numerus="yes">
        <source>%n differences</source>
        <translation>
            <numerusform>%n 處差異</numerusform>
        </translation>
    </message>
    <message>
        <source>Restore version %1? What is saved now stays as a version, so that it can be restored in turn.</source>
        <translation>還原版本 %1？目前已儲存的內容將保留為一個版本，之後也可以還原。</translation>
    </message>
    <message numerus="yes">
        <source>%n of its programs are no longer in the catalog. Their entries will be invalid: %1</source>
        <translation>
            <numerusform>其中 %n 個節目已不在節目庫中，相應項目將失效：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>The schedule in the editor has changes that are not saved.</source>
        <translation>編輯器中的排程有未儲存的變更。</translation>
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
        <translation>儲存時間</translation>
    </message>
    <message>
        <source>By</source>
        <translation>儲存者</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>變更</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>備註</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::DifferenceModel</name>
    <message>
        <source>Task</source>
        <translation>任務</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>計畫</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>差異</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::StretchModel</name>
    <message>
        <source>From</source>
        <translation>從</translation>
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
        <translation>正在比較…</translation>
    </message>
    <message>
        <source>Nothing differs on the screen in this week.</source>
        <translation>本週螢幕上沒有差異。</translation>
    </message>
    <message numerus="yes">
        <source>%n stretches of this week differ on the screen:</source>
        <translation>
            <numerusform>本週螢幕上有 %n 段不同：</numerusform>
        </translation>
    </message>
    <message>
        <source>What differs on the screen</source>
        <translation>螢幕上的差異</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::ComparisonPanel</name>
    <message>
        <source>Comparing…</source>
        <translation>正在比較…</translation>
    </message>
    <message>
        <source>Nothing is in effect.</source>
        <translation>沒有內容生效。</translation>
    </message>
    <message>
        <source>%1 → %2: %3</source>
        <comment>two states, and how much differs</comment>
        <translation>%1 → %2：%3</translation>
    </message>
    <message>
        <source>In words</source>
        <translation>文字說明</translation>
    </message>
    <message>
        <source>On the screen</source>
        <translation>螢幕上</translation>
    </message>
    <message>
        <source>What differs</source>
        <translation>差異</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::VersionNameDialog</name>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>備註</translation>
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
        <translation>正在讀取…</translation>
    </message>
    <message>
        <source>No versions are kept yet.</source>
        <translation>還沒有版本。</translation>
    </message>
    <message>
        <source>Name and note…</source>
        <translation>名稱和備註…</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>還原…</translation>
    </message>
    <message>
        <source>Write to a file…</source>
        <translation>寫入檔案…</translation>
    </message>
    <message>
        <source>Compared with</source>
        <translation>比較對象</translation>
    </message>
    <message>
        <source>The other way round</source>
        <translation>反向比較</translation>
    </message>
    <message>
        <source>Write the version to a file</source>
        <translation>將版本寫入檔案</translation>
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
        <source>Save, then restore</source>
        <translation>儲存後還原</translation>
    </message>
    <message>
        <source>Restore without saving</source>
        <translation>不儲存直接還原</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>還原</translation>
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
        <translation>%1 – 預覽</translation>
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
        <translation>找不到檔案。</translation>
    </message>
    <message>
        <source>Sound has no picture.</source>
        <translation>音訊沒有畫面。</translation>
    </message>
    <message>
        <source>A live source is seen on the screens alone.</source>
        <translation>直播來源只在螢幕上可見。</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>正在讀取…</translation>
    </message>
    <message>
        <source>It has no picture that can be read.</source>
        <translation>沒有可以讀取的畫面。</translation>
    </message>
</context>
<context>
    <name>KeyTable</name>
    <message>
        <source>Main window</source>
        <translation>主視窗</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>編輯器</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>週</translation>
    </message>
    <message>
        <source>Go to the next task</source>
        <translation>前往下一個任務</translation>
    </message>
    <message>
        <source>Go to the task before</source>
        <translation>前往上一個任務</translation>
    </message>
    <message>
        <source>Fold or open the task</source>
        <translation>摺疊或展開任務</translation>
    </message>
    <message>
        <source>Add a task</source>
        <translation>新增任務</translation>
    </message>
    <message>
        <source>Copy the task</source>
        <translation>複製任務</translation>
    </message>
    <message>
        <source>Delete the task</source>
        <translation>刪除任務</translation>
    </message>
    <message>
        <source>Add a plan</source>
        <translation>新增計畫</translation>
    </message>
    <message>
        <source>Copy the plan</source>
        <translation>複製計畫</translation>
    </message>
    <message>
        <source>Delete the plan</source>
        <translation>刪除計畫</translation>
    </message>
    <message>
        <source>Choose the programs of the plan</source>
        <translation>選擇計畫的節目</translation>
    </message>
    <message>
        <source>Save and close</source>
        <translation>儲存並關閉</translation>
    </message>
    <message>
        <source>Save and start</source>
        <translation>儲存並啟用</translation>
    </message>
    <message>
        <source>Close without saving</source>
        <translation>不儲存並關閉</translation>
    </message>
    <message>
        <source>Select another plan</source>
        <translation>選取另一個計畫</translation>
    </message>
    <message>
        <source>Open the selected plan in the editor</source>
        <translation>在編輯器中開啟所選計畫</translation>
    </message>
    <message>
        <source>Say what is on screen then, and why</source>
        <translation>說明屆時螢幕上的內容及原因</translation>
    </message>
    <message>
        <source>Move the plan by a quarter of an hour</source>
        <translation>將計畫移動一刻鐘</translation>
    </message>
    <message>
        <source>Move the plan to another day</source>
        <translation>將計畫移到另一天</translation>
    </message>
    <message>
        <source>Move the end of the plan</source>
        <translation>移動計畫的結束</translation>
    </message>
    <message>
        <source>Move the begin of the plan</source>
        <translation>移動計畫的開始</translation>
    </message>
    <message>
        <source>Give up dragging</source>
        <translation>放棄拖曳</translation>
    </message>
    <message>
        <source>Copy the plans of the day</source>
        <translation>複製當天的計畫</translation>
    </message>
    <message>
        <source>Show another week</source>
        <translation>顯示另一週</translation>
    </message>
    <message>
        <source>Show the present moment</source>
        <translation>顯示目前時刻</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>縮放</translation>
    </message>
    <message>
        <source>Fit the whole day</source>
        <translation>符合整天</translation>
    </message>
    <message>
        <source>Programs of a plan</source>
        <translation>一個計畫的節目</translation>
    </message>
    <message>
        <source>Go to another program</source>
        <translation>移至另一個節目</translation>
    </message>
    <message>
        <source>Tick the program, or untick it</source>
        <translation>勾選或取消勾選節目</translation>
    </message>
    <message>
        <source>Tick all programs, or none</source>
        <translation>勾選所有節目或全部取消</translation>
    </message>
    <message>
        <source>Add the ticked programs, or this one</source>
        <translation>新增勾選的節目，沒有勾選時新增此節目</translation>
    </message>
    <message>
        <source>Take the ticked programs out, or this one</source>
        <translation>刪除勾選的節目，沒有勾選時刪除此節目</translation>
    </message>
    <message>
        <source>Move the program up or down</source>
        <translation>上移或下移節目</translation>
    </message>
    <message>
        <source>Change how often the program is played</source>
        <translation>變更節目的播放次數</translation>
    </message>
    <message>
        <source>Take over the list of programs</source>
        <translation>採用節目清單</translation>
    </message>
</context>
<context>
    <name>trel::desktop::KeySheet</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>鍵盤快速鍵</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
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
        <translation>說明(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>指南(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>鍵盤快速鍵(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;About this program</source>
        <translation>關於本程式(&amp;A)</translation>
    </message>
    <message>
        <source>Schedules media programs on screens, edits the schedule and follows it.</source>
        <translation>為螢幕上的媒體節目編排、編輯排程並追蹤其播出。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirLight</name>
    <message>
        <source>On air</source>
        <translation>播出中</translation>
    </message>
    <message>
        <source>Off air</source>
        <translation>未播出</translation>
    </message>
    <message>
        <source>A schedule is in effect.</source>
        <translation>已有排程生效。</translation>
    </message>
    <message>
        <source>No schedule is in effect.</source>
        <translation>沒有排程生效。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirState</name>
    <message>
        <source>Time of day: %1</source>
        <translation>目前時間：%1</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>未儲存</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>已儲存：%1</translation>
    </message>
    <message>
        <source>Started: %1</source>
        <translation>已啟用：%1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirBar</name>
    <message>
        <source>Toolbar</source>
        <translation>工具列</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編輯</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>匯入</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>復原</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停用</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜尋</translation>
    </message>
    <message>
        <source>Search the catalog</source>
        <translation>搜尋節目庫</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ComingPrograms</name>
    <message>
        <source>Programs to come</source>
        <translation>接下來的節目</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::StartAction</name>
    <message>
        <source>Start</source>
        <translation>啟用</translation>
    </message>
    <message>
        <source>Put the schedule on air</source>
        <translation>啟用排程並播出</translation>
    </message>
    <message>
        <source>Put the schedule on air? What is not saved is saved first.</source>
        <translation>要啟用排程並播出嗎？未儲存的內容會先儲存。</translation>
    </message>
    <message>
        <source>Open problems: %1</source>
        <translation>未解決的問題：%1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Tasks %1 and %2 are valid on the same days. The schedule can be put on air once they are not.</source>
        <translation>任務%1和任務%2在同一天有效。調整後才能啟用排程並播出。</translation>
    </message>
    <message>
        <source>The schedule is on air.</source>
        <translation>排程已啟用並在播出。</translation>
    </message>
    <message>
        <source>The schedule is on air. Open problems: %1</source>
        <translation>排程已啟用並在播出。未解決的問題：%1</translation>
    </message>
</context>
<context>
    <name>DroppedMedia</name>
    <message>
        <source>None of this can be imported.</source>
        <translation>這些都無法匯入。</translation>
    </message>
    <message numerus="yes">
        <source>%n files or folders</source>
        <translation>
            <numerusform>%n 個檔案或資料夾</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n addresses</source>
        <translation>
            <numerusform>%n 個位址</numerusform>
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
        <translation>匯入：%1</translation>
    </message>
    <message numerus="yes">
        <source>Import %1; %n cannot be imported</source>
        <comment>files, or addresses, or both</comment>
        <translation>
            <numerusform>匯入：%1；%n 個無法匯入</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MediaFilters</name>
    <message>
        <source>All media</source>
        <translation>所有媒體</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>圖片</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>音訊</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有檔案 (*)</translation>
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
        <translation>週(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>今天(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Previous week</source>
        <translation>上一週(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Next week</source>
        <translation>下一週(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Choose a day…</source>
        <translation>選擇日期(&amp;C)…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::DayDrag</name>
    <message>
        <source>Drag a day onto another one to copy its plans there.</source>
        <translation>將一天拖到另一天，即可把其計畫複製過去。</translation>
    </message>
    <message>
        <source>Copy the plans of %1 onto %2</source>
        <comment>two days</comment>
        <translation>將 %1 的計畫複製到 %2</translation>
    </message>
</context>
<context>
    <name>trel::desktop::place::AddressDialog</name>
    <message>
        <source>Open from a server</source>
        <translation>從伺服器開啟</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>位址</translation>
    </message>
    <message>
        <source>Where the server asks for a password, it is read from the password file of the server's programs (~/.pgpass).</source>
        <translation>如果伺服器要求密碼，將從伺服器程式的密碼檔 (~/.pgpass) 讀取。</translation>
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
        <translation>沒有播放器跟隨此資料庫。請在連接螢幕的電腦上，用此資料庫執行 schedule-player。</translation>
    </message>
    <message>
        <source>Show what the players show</source>
        <translation>顯示各播放器的畫面內容</translation>
    </message>
</context>
<context>
    <name>trel::desktop::players::PlayerModel</name>
    <message>
        <source>Screen</source>
        <translation>螢幕</translation>
    </message>
    <message>
        <source>Shows</source>
        <translation>顯示內容</translation>
    </message>
    <message>
        <source>Heard</source>
        <comment>when a player told of itself</comment>
        <translation>回應</translation>
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
        <translation>沒有畫面：%1</translation>
    </message>
    <message>
        <source>Not since %1</source>
        <comment>a moment</comment>
        <translation>自 %1 起無回應</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no faults</comment>
        <translation>無</translation>
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
        <translation>播放器：%1，無回應：%2</translation>
    </message>
</context>
<context>
    <name>MergeWords</name>
    <message numerus="yes">
        <source>%n tasks were changed at both desks: if you merge, you choose for each of them which one stays. Everything else of both is kept.</source>
        <translation>
            <numerusform>%n 個任務在兩邊都被變更：合併時，由您為每個任務選擇保留哪一個。雙方的其他變更全部保留。</numerusform>
        </translation>
    </message>
    <message>
        <source>No task was changed at both desks: what both have changed can be saved together.</source>
        <translation>沒有任務在兩邊都被變更：雙方的變更可以一起儲存。</translation>
    </message>
    <message>
        <source>Merge…</source>
        <translation>合併…</translation>
    </message>
    <message>
        <source>Merged, your new task %1 becomes task %2: another task %1 was added there.</source>
        <translation>合併後，您新增的任務 %1 將成為任務 %2：對方新增了另一個任務 %1。</translation>
    </message>
    <message>
        <source>Merge and save</source>
        <translation>合併並儲存</translation>
    </message>
    <message>
        <source>Merge and go on editing</source>
        <translation>合併並繼續編輯</translation>
    </message>
    <message>
        <source>Merged, tasks %1 and %2 would be valid on the same days. That cannot be saved: they stay in the editor until you have changed their dates.</source>
        <translation>合併後，任務 %1 和任務 %2 會在相同的日期有效，因此無法儲存：在您變更日期之前，它們留在編輯器中。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::merge::ConflictsDialog</name>
    <message>
        <source>These tasks were changed here and at the other desk. Choose for each of them which one stays.</source>
        <translation>這些任務在此處和對方那裡都被變更。請為每個任務選擇保留哪一個。</translation>
    </message>
    <message>
        <source>Mine, as it is edited here</source>
        <translation>我的（此處編輯的內容）</translation>
    </message>
    <message>
        <source>Theirs, as it was saved there</source>
        <translation>對方的（對方儲存的內容）</translation>
    </message>
    <message>
        <source>Tasks that were changed at both desks</source>
        <translation>在兩邊都被變更的任務</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>任務</translation>
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
        <translation>尚未選擇</translation>
    </message>
    <message>
        <source>mine</source>
        <translation>我的</translation>
    </message>
    <message>
        <source>theirs</source>
        <translation>對方的</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are still to be chosen.</source>
        <translation>
            <numerusform>還有 %n 個任務需要選擇。</numerusform>
        </translation>
    </message>
    <message>
        <source>Everything else of both is kept.</source>
        <translation>雙方的其他變更全部保留。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::DeskNotice</name>
    <message>
        <source>Also edited at %1 since %2</source>
        <comment>a desk, and a time</comment>
        <translation>%1 也在編輯（自 %2 起）</translation>
    </message>
    <message numerus="yes">
        <source>Also edited at %n other desks</source>
        <translation>
            <numerusform>另有 %n 處也在編輯</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: since %2, last changed at %3, tasks %4</source>
        <comment>a desk, times, and numbers</comment>
        <translation>%1：自 %2 起，最後變更 %3，任務 %4</translation>
    </message>
</context>
<context>
    <name>FileWords</name>
    <message numerus="yes">
        <source>%n programs in this file are not in the catalog. Their entries will be invalid: %1</source>
        <translation>
            <numerusform>此檔案中有 %n 個節目不在節目庫中，相應項目將失效：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n programs in the catalog may have another content than in this file: %1</source>
        <translation>
            <numerusform>節目庫中有 %n 個節目的內容可能與此檔案中的不同：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n programs have another name in the catalog than in this file: %1</source>
        <translation>
            <numerusform>有 %n 個節目在節目庫中的名稱與此檔案中的不同：%1</numerusform>
        </translation>
    </message>
</context>
</TS>
