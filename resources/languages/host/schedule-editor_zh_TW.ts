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
        <source>&amp;Remove from catalog</source>
        <translation>從節目庫移除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>語言(&amp;L)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EditorWindow</name>
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
        <source>No programs yet. Drop media files or folders here, or choose “Import files”.</source>
        <translation>還沒有節目。請將媒體檔案或資料夾拖放到這裡，或選擇「匯入檔案」。</translation>
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
    <message numerus="yes">
        <source>Remove %n programs from the catalog? Plans that use them will show their entries as invalid. The files are not deleted.</source>
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
        <source>Looking for files: %1 found</source>
        <translation>正在尋找檔案：已找到 %1 個</translation>
    </message>
    <message>
        <source>The import was canceled; nothing was imported.</source>
        <translation>匯入已取消，未匯入任何內容。</translation>
    </message>
    <message>
        <source>Imported: %1 new, %2 updated.</source>
        <translation>已匯入：新增 %1 個，更新 %2 個。</translation>
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
        <source>Keep editing</source>
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
    <name>trel::desktop::ProgramTableModel</name>
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
        <source>File</source>
        <translation>檔案</translation>
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
        <source>Discard changes</source>
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
        <source>%1: %2–%3 occurs twice; no plan of task %4 is affected.</source>
        <translation>%1：%2–%3 出現兩次；不影響任務 %4 的計畫。</translation>
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
        <source>Choose Start in the schedule editor to put the saved schedule into effect.</source>
        <translation>按一下編輯器中的「啟用」，已儲存的排程即會生效。</translation>
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
        <translation>插播：%1</translation>
    </message>
    <message>
        <source>Original list: %1</source>
        <translation>原來：%1</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between programs</comment>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>Week</name>
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
        <translation>插播：%1</translation>
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
</context>
<context>
    <name>trel::desktop::WeekDock</name>
    <message>
        <source>Week</source>
        <translation>週</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>週(&amp;W)</translation>
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
</TS>
