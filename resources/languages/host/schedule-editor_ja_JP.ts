<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>Demonstration</name>
    <message>
        <source>The demonstration could not be read: %1: %2</source>
        <translation>デモを読み込めませんでした：%1：%2</translation>
    </message>
    <message>
        <source>The demonstration&apos;s media could not be copied beside the database.</source>
        <translation>デモのメディアをデータベースと同じ場所にコピーできませんでした。</translation>
    </message>
</context>
<context>
    <name>EditorMenus</name>
    <message>
        <source>&amp;Schedule</source>
        <translation>スケジュール(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Edit schedule</source>
        <translation>スケジュールを編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Open database…</source>
        <translation>データベースを開く(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Read schedule from a file…</source>
        <translation>スケジュールをファイルから読み込む(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Write schedule to a file…</source>
        <translation>スケジュールをファイルに書き出す(&amp;W)…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Dark theme</source>
        <translation>ダークテーマ(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Light theme</source>
        <translation>ライトテーマ(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Programs</source>
        <translation>番組(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Import files…</source>
        <translation>ファイルを取り込む(&amp;I)…</translation>
    </message>
    <message>
        <source>Import &amp;folder…</source>
        <translation>フォルダーを取り込む(&amp;F)…</translation>
    </message>
    <message>
        <source>&amp;Remove from catalogue</source>
        <translation>番組一覧から外す(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>No programs yet. Drop media files or folders here, or choose Import.</source>
        <translation>番組がまだありません。メディアファイルやフォルダーをここにドロップするか、メニューから取り込んでください。</translation>
    </message>
    <message>
        <source>Schedule editor</source>
        <translation>スケジュールエディター</translation>
    </message>
    <message>
        <source>%1 – Schedule editor</source>
        <translation>%1 – スケジュールエディター</translation>
    </message>
    <message>
        <source>Open database</source>
        <translation>データベースを開く</translation>
    </message>
    <message>
        <source>Schedules (*.db *.sqlite);;All files (*)</source>
        <translation>スケジュール (*.db *.sqlite);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Import files</source>
        <translation>ファイルを取り込む</translation>
    </message>
    <message>
        <source>Import folder</source>
        <translation>フォルダーを取り込む</translation>
    </message>
    <message>
        <source>Write the schedule to a file</source>
        <translation>スケジュールをファイルに書き出す</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>スケジュール (*.json)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>%1 に書き出しました。</translation>
    </message>
    <message>
        <source>Read a schedule from a file</source>
        <translation>スケジュールをファイルから読み込む</translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation>%1 を読み込めませんでした：%2</translation>
    </message>
    <message numerus="yes">
        <source>Replace the whole schedule by the %n tasks of this file?</source>
        <translation>
            <numerusform>スケジュール全体を、このファイルの %n 件のタスクに置き換えますか？</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換える</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n programs from the catalogue? Plans that use them will show their entries as invalid. The files stay.</source>
        <translation>
            <numerusform>%n 件の番組を番組一覧から外しますか？これらを使っている再生計画では無効と表示されます。ファイルは残ります。</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>外す</translation>
    </message>
    <message>
        <source>Importing</source>
        <translation>取り込み中</translation>
    </message>
    <message>
        <source>The import was cancelled; nothing was taken in.</source>
        <translation>取り込みをキャンセルしました。何も取り込まれていません。</translation>
    </message>
    <message>
        <source>Imported: %1 new, %2 updated.</source>
        <translation>取り込みました：新規 %1 件、更新 %2 件。</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more.</source>
        <translation>
            <numerusform>…ほか %n 件。</numerusform>
        </translation>
    </message>
    <message>
        <source>Some files could not be imported:</source>
        <translation>取り込めなかったファイルがあります：</translation>
    </message>
    <message>
        <source>The schedule has changes that are not saved.</source>
        <translation>スケジュールに保存されていない変更があります。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>保存しない</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>編集を続ける</translation>
    </message>
</context>
<context>
    <name>HostPrompts</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ProgramTableModel</name>
    <message>
        <source>Video</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音声</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>ライブ</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>The file has gone: %1</source>
        <translation>ファイルが見つかりません：%1</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>番組</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
</context>
<context>
    <name>SaveRescue</name>
    <message>
        <source>The schedule was not saved. %1

What shall become of your changes?</source>
        <translation>スケジュールを保存できませんでした。%1

変更をどうしますか？</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Write to a file</source>
        <translation>ファイルに書き出す</translation>
    </message>
    <message>
        <source>Give up</source>
        <translation>変更を破棄</translation>
    </message>
    <message>
        <source>Write the schedule to a file</source>
        <translation>スケジュールをファイルに書き出す</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>スケジュール (*.json)</translation>
    </message>
</context>
</TS>
