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
        <source>The demonstration media could not be copied to the database folder.</source>
        <translation>デモのメディアをデータベースと同じ場所にコピーできませんでした。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EditorMenus</name>
    <message>
        <source>Hi&amp;gh contrast</source>
        <translation>ハイコントラスト(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;As-run of a day…</source>
        <translation>一日の放送実績(&amp;A)…</translation>
    </message>
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
        <source>Open &amp;from a server…</source>
        <translation>サーバーから開く(&amp;F)…</translation>
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
        <source>&amp;Remove from catalog</source>
        <translation>番組一覧から外す(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>S&amp;kip to the next play</source>
        <translation>次の再生へ進む(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Cancel what is cut in</source>
        <translation>割り込みを取り消す(&amp;C)</translation>
    </message>
    <message>
        <source>S&amp;top the schedule…</source>
        <translation>スケジュールの運用を停止(&amp;T)…</translation>
    </message>
    <message>
        <source>&amp;Bring back what was canceled</source>
        <translation>取り消した変更を元に戻す(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Where used…</source>
        <translation>使用箇所(&amp;W)…</translation>
    </message>
    <message>
        <source>&amp;Versions…</source>
        <translation>バージョン(&amp;V)…</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>プレビュー(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;New database…</source>
        <translation>新しいデータベース(&amp;N)…</translation>
    </message>
    <message>
        <source>O&amp;pen recent</source>
        <translation>最近使ったデータベース(&amp;P)</translation>
    </message>
    <message>
        <source>St&amp;art the schedule…</source>
        <translation>スケジュールの運用を開始(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>検索(&amp;S)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EditorWindow</name>
    <message>
        <source>Import: %1 percent</source>
        <translation>取り込み：%1 パーセント</translation>
    </message>
    <message>
        <source>Now and next</source>
        <translation>現在と次</translation>
    </message>
    <message>
        <source>Clock changes</source>
        <translation>夏時間の切り替え</translation>
    </message>
    <message>
        <source>&amp;Now and next</source>
        <translation>現在と次(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Clock changes</source>
        <translation>夏時間の切り替え(&amp;C)</translation>
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
    <message numerus="yes">
        <source>Replace the whole schedule with the %n tasks in this file?</source>
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
    <message>
        <source>Changes in the editor that are not saved go with it (tasks %1). Undo brings them back.</source>
        <translation>エディターで保存されていない変更（タスク %1）も置き換えられます。「元に戻す」で復元できます。</translation>
    </message>
    <message>
        <source>Save, then replace</source>
        <translation>保存してから置き換え</translation>
    </message>
    <message>
        <source>Replace without saving</source>
        <translation>保存せずに置き換え</translation>
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
        <source>The schedule has changes that are not saved. As a draft they are offered when this database is opened again.

Close this question to keep editing.</source>
        <translation>スケジュールに保存されていない変更があります。下書きとして残すと、このデータベースを次に開いたときに確認されます。

編集を続けるには、この確認を閉じてください。</translation>
    </message>
    <message>
        <source>Keep as draft</source>
        <translation>下書きとして残す</translation>
    </message>
    <message>
        <source>Catalog</source>
        <translation>番組一覧</translation>
    </message>
    <message>
        <source>Catal&amp;og</source>
        <translation>番組一覧(&amp;O)</translation>
    </message>
    <message>
        <source>The change is in the editor now, where it can be saved.</source>
        <translation>変更はエディターに入り、そこで保存できます。</translation>
    </message>
    <message>
        <source>New database</source>
        <translation>新しいデータベース</translation>
    </message>
    <message>
        <source>The file %1 exists already. It is not written over.</source>
        <translation>ファイル %1 はすでにあります。上書きはされません。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::CataloguePanel</name>
    <message>
        <source>No programs yet. Drop media files or folders here, or choose “Import files”.</source>
        <translation>番組がまだありません。メディアファイルやフォルダーをここにドロップするか、「ファイルを取り込む」を選択してください。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>外す</translation>
    </message>
    <message>
        <source>No program fits what is searched for.</source>
        <translation>検索に合う番組はありません。</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n programs from the catalog? The files are not deleted.</source>
        <translation>
            <numerusform>番組 %n 件を番組一覧から外しますか? ファイルは削除されません。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::CatalogueImport</name>
    <message>
        <source>Import files</source>
        <translation>ファイルを取り込む</translation>
    </message>
    <message>
        <source>Import folder</source>
        <translation>フォルダーを取り込む</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Importing</source>
        <translation>取り込み中</translation>
    </message>
    <message>
        <source>The import was canceled; nothing was imported.</source>
        <translation>取り込みをキャンセルしました。何も取り込まれていません。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>file and reason</comment>
        <translation>%1：%2</translation>
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
    <message numerus="yes">
        <source>Looking for files: %n found</source>
        <translation>
            <numerusform>ファイルを検索中：%n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported: %1, %2.</source>
        <translation>取り込みました：%1、%2。</translation>
    </message>
    <message numerus="yes">
        <source>%n new</source>
        <translation>
            <numerusform>新規 %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n updated</source>
        <translation>
            <numerusform>更新 %n 件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HostPrompts</name>
    <message>
        <source>Question</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The file %1 exists already. Replace it?</source>
        <translation>ファイル %1 はすでにあります。置き換えますか？</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換える</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>ProblemWords</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>メモリが不足しています。</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>ディスクがいっぱいです。</translation>
    </message>
    <message>
        <source>Your share of the disk is used up.</source>
        <translation>ディスクの割り当て容量を使い切りました。</translation>
    </message>
    <message>
        <source>The system does not let this application write a larger file.</source>
        <translation>システムの制限により、これより大きいファイルを書き込めません。</translation>
    </message>
    <message>
        <source>The file or its folder is read-only.</source>
        <translation>ファイルまたはそのフォルダーが読み取り専用です。</translation>
    </message>
    <message>
        <source>It was opened for reading only.</source>
        <translation>読み取り専用で開かれています。</translation>
    </message>
    <message>
        <source>Reading it took too long.</source>
        <translation>読み取りに時間がかかりすぎました。</translation>
    </message>
    <message numerus="yes">
        <source>A text in it is longer than %n bytes.</source>
        <translation>
            <numerusform>%n バイトを超えるテキストが含まれています。</numerusform>
        </translation>
    </message>
    <message>
        <source>The database reports error %1.</source>
        <translation>データベースがエラー %1 を報告しました。</translation>
    </message>
    <message>
        <source>The database reports error %1. %3</source>
        <translation>データベースがエラー %1 を報告しました。%3</translation>
    </message>
    <message>
        <source>The database has failed its own check.</source>
        <translation>データベースの自己検査で問題が見つかりました。</translation>
    </message>
    <message>
        <source>The disk reports a read or write error.</source>
        <translation>ディスクの読み書きでエラーが発生しました。</translation>
    </message>
    <message>
        <source>Data that must be there is missing.</source>
        <translation>必要なデータがありません。</translation>
    </message>
    <message>
        <source>The database driver is not the one that this application was made for.</source>
        <translation>データベースドライバーがこのプログラムに対応していません。</translation>
    </message>
    <message>
        <source>The file is missing or empty, but its log %1 is still there.</source>
        <translation>ファイルがないか空ですが、ログ %1 が残っています。</translation>
    </message>
    <message>
        <source>No file can be created there.</source>
        <translation>その場所にはファイルを作成できません。</translation>
    </message>
    <message>
        <source>Its log %1 belongs to another copy of the file. Put back the file that it belongs to, or move the log away to go on without it.</source>
        <translation>ログ %1 はこのファイルの別のコピーのものです。対応するファイルを戻すか、ログを移動してから続行してください。</translation>
    </message>
    <message>
        <source>Its log has no index, and none can be created in a read-only folder. Copy both files to another folder.</source>
        <translation>ログに索引がなく、読み取り専用のフォルダーには作成できません。両方のファイルを別のフォルダーにコピーしてください。</translation>
    </message>
    <message>
        <source>It was removed or replaced after it was opened.</source>
        <translation>開いた後に削除または置き換えられました。</translation>
    </message>
    <message numerus="yes">
        <source>The name or the path of a program is longer than %n bytes.</source>
        <translation>
            <numerusform>番組の名前またはパスが %n バイトを超えています。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n numbers for programs are used up.</source>
        <translation>
            <numerusform>番組番号 %n 個をすべて使い切りました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Its plans do not fit together.</source>
        <translation>計画の内容に矛盾があります。</translation>
    </message>
    <message>
        <source>“%1” is missing.</source>
        <translation>「%1」がありません。</translation>
    </message>
    <message>
        <source>It contains “%1”, which does not belong there.</source>
        <translation>あるはずのない「%1」が含まれています。</translation>
    </message>
    <message>
        <source>“%1” has been changed.</source>
        <translation>「%1」が変更されています。</translation>
    </message>
    <message>
        <source>It does not say which state it is in.</source>
        <translation>状態の記録がありません。</translation>
    </message>
    <message>
        <source>It was created by an older version of this application. Set up the server again.</source>
        <translation>このアプリケーションの古いバージョンで作成されました。サーバーを設定し直してください。</translation>
    </message>
    <message>
        <source>The address contains a password. Passwords belong in a password file.</source>
        <translation>アドレスにパスワードが含まれています。パスワードはパスワードファイルに入れてください。</translation>
    </message>
    <message>
        <source>The address of a schedule on a server has this form: %1</source>
        <translation>サーバー上のスケジュールのアドレスは次の形式です：%1</translation>
    </message>
    <message>
        <source>The name of the schedule in the address is missing, too long or not readable.</source>
        <translation>アドレスのスケジュール名がないか、長すぎるか、読み取れません。</translation>
    </message>
    <message>
        <source>The connection was lost before the server answered.</source>
        <translation>サーバーが応答する前に接続が切れました。</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>サーバーが応答しません。</translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n tasks.</source>
        <translation>
            <numerusform>タスクが %n 件を超えています。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n plans.</source>
        <translation>
            <numerusform>計画が %n 件を超えています。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n entries.</source>
        <translation>
            <numerusform>項目が %n 件を超えています。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n numbers in the lists of plans.</source>
        <translation>
            <numerusform>計画のリスト内の数値が %n 個を超えています。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n programs.</source>
        <translation>
            <numerusform>番組が %n 件を超えています。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A text of task %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>タスク %1 のテキストが %n バイトを超えています。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>It is larger than %n bytes.</source>
        <translation>
            <numerusform>%n バイトを超えています。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n values.</source>
        <translation>
            <numerusform>値が %n 個を超えています。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A name in line %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>%1 行目の名前が %n バイトを超えています。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A text in line %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>%1 行目のテキストが %n バイトを超えています。</numerusform>
        </translation>
    </message>
    <message>
        <source>It is not valid JSON (line %1, column %2).</source>
        <translation>有効な JSON ではありません（%1 行 %2 列）。</translation>
    </message>
    <message>
        <source>“%1” is not a whole number.</source>
        <translation>「%1」は整数ではありません。</translation>
    </message>
    <message>
        <source>“%1” is outside the permitted range.</source>
        <translation>「%1」は許容範囲外です。</translation>
    </message>
    <message>
        <source>Wrong kind of value: expected %1, found %2.</source>
        <translation>値の種類が正しくありません。%1が必要ですが、%2です。</translation>
    </message>
    <message>
        <source>Wrong kind of value: expected %1 or a number, found %2.</source>
        <translation>値の種類が正しくありません。%1 または数値が必要ですが、%2です。</translation>
    </message>
    <message>
        <source>“%2” is not known here. Expected: %1 or a number.</source>
        <translation>「%2」はここでは使えません。%1 または数値が必要です。</translation>
    </message>
    <message>
        <source>The text is not valid Base64.</source>
        <translation>テキストが有効な Base64 ではありません。</translation>
    </message>
    <message numerus="yes">
        <source>The text is longer than %n bytes.</source>
        <translation>
            <numerusform>テキストが %n バイトを超えています。</numerusform>
        </translation>
    </message>
    <message>
        <source>The key %1 is not the ID of the task, which is %2.</source>
        <translation>キー %1 がタスクの ID（%2）と一致しません。</translation>
    </message>
    <message>
        <source>Another task already has the ID %1.</source>
        <translation>別のタスクがすでに ID %1 を使っています。</translation>
    </message>
    <message>
        <source>The format is “%1” instead of “%2”.</source>
        <translation>形式が「%2」ではなく「%1」です。</translation>
    </message>
    <message>
        <source>Version %1 is newer than version %2, the newest that this application reads.</source>
        <translation>バージョン %1 は、このプログラムで読める最新のバージョン %2 より新しいものです。</translation>
    </message>
    <message>
        <source>There is no version %1.</source>
        <translation>バージョン %1 はありません。</translation>
    </message>
    <message>
        <source>It is JSON of another kind, not a schedule.</source>
        <translation>別の種類の JSON で、スケジュールではありません。</translation>
    </message>
    <message>
        <source>It is not a schedule: “format” is missing.</source>
        <translation>スケジュールではありません。「format」がありません。</translation>
    </message>
    <message>
        <source>“%1” is not known here.</source>
        <translation>「%1」はここでは使えません。</translation>
    </message>
    <message>
        <source>“%1” occurs twice here.</source>
        <translation>「%1」が重複しています。</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>フォルダーです。</translation>
    </message>
    <message>
        <source>It is a pipe, not a file.</source>
        <translation>パイプであり、ファイルではありません。</translation>
    </message>
    <message>
        <source>It is a socket, not a file.</source>
        <translation>ソケットであり、ファイルではありません。</translation>
    </message>
    <message>
        <source>It is a device, not a file.</source>
        <translation>デバイスであり、ファイルではありません。</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>ファイルではありません。</translation>
    </message>
    <message>
        <source>Nothing comes through the pipe.</source>
        <translation>パイプからデータが届きません。</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>ファイルが存在しません。</translation>
    </message>
    <message>
        <source>You do not have permission to read it.</source>
        <translation>読み取る権限がありません。</translation>
    </message>
    <message>
        <source>It cannot be opened. %1</source>
        <translation>開くことができません。%1</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>ファイルが空です。</translation>
    </message>
    <message>
        <source>Its name is not in UTF-8. Rename the file to import it.</source>
        <translation>名前が UTF-8 ではありません。名前を変更してからインポートしてください。</translation>
    </message>
    <message>
        <source>Addresses of this kind cannot be played.</source>
        <translation>この種類のアドレスは再生できません。</translation>
    </message>
    <message>
        <source>It is a file on another computer. Copy it to this computer first.</source>
        <translation>別のコンピューター上のファイルです。先にこのコンピューターにコピーしてください。</translation>
    </message>
    <message>
        <source>It is not a media file, or it is damaged.</source>
        <translation>メディアファイルではないか、破損しています。</translation>
    </message>
    <message>
        <source>Files of this format cannot be imported.</source>
        <translation>この形式のファイルはインポートできません。</translation>
    </message>
    <message>
        <source>Its content cannot be read.</source>
        <translation>内容を読み取れません。</translation>
    </message>
    <message>
        <source>The image in it cannot be read.</source>
        <translation>画像を読み取れません。</translation>
    </message>
    <message>
        <source>It contains neither picture nor sound.</source>
        <translation>映像も音声も含まれていません。</translation>
    </message>
    <message>
        <source>Its length cannot be determined.</source>
        <translation>長さを特定できません。</translation>
    </message>
    <message>
        <source>It could not be read in time.</source>
        <translation>時間内に読み取れませんでした。</translation>
    </message>
    <message>
        <source>The media reader crashed while reading it.</source>
        <translation>読み取り中にメディアリーダーが異常終了しました。</translation>
    </message>
    <message>
        <source>The media reader gave no valid answer about it.</source>
        <translation>メディアリーダーから有効な応答がありませんでした。</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader is missing: %1</source>
        <translation>メディアを読み取れません。メディアリーダーがありません：%1</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 cannot be started. %2</source>
        <translation>メディアを読み取れません。メディアリーダー %1 を起動できません。%2</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 does not answer.</source>
        <translation>メディアを読み取れません。メディアリーダー %1 が応答しません。</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 exits immediately.</source>
        <translation>メディアを読み取れません。メディアリーダー %1 がすぐに終了します。</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 is of another version.</source>
        <translation>メディアを読み取れません。メディアリーダー %1 のバージョンが異なります。</translation>
    </message>
    <message>
        <source>Version %1 is damaged.</source>
        <translation>バージョン %1 は破損しています。</translation>
    </message>
    <message numerus="yes">
        <source>The name or the note of a version is longer than %n characters.</source>
        <translation>
            <numerusform>バージョンの名前またはメモが %n 文字を超えています。</numerusform>
        </translation>
    </message>
    <message>
        <source>The name or the note of a version contains a character that is not visible.</source>
        <translation>バージョンの名前またはメモに、表示されない文字が含まれています。</translation>
    </message>
    <message>
        <source>No schedule file is open, so nothing can be saved.</source>
        <translation>スケジュールファイルが開かれていないため、保存できません。</translation>
    </message>
    <message>
        <source>%1 cannot be opened. Its folder does not exist.</source>
        <translation>%1 を開けません。フォルダーが存在しません。</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 は存在しません。</translation>
    </message>
    <message>
        <source>%1 is not a schedule database.</source>
        <translation>%1 はスケジュールのデータベースではありません。</translation>
    </message>
    <message>
        <source>%1 is a database of another application.</source>
        <translation>%1 は別のプログラムのデータベースです。</translation>
    </message>
    <message>
        <source>%1 was written by a newer version of this application.</source>
        <translation>%1 はこのプログラムの新しいバージョンで書き込まれています。</translation>
    </message>
    <message>
        <source>%1 is in use by another application. Try again when that application is closed.</source>
        <translation>%1 は別のプログラムで使用中です。そのプログラムを閉じてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>%1 に書き込めません。%2</translation>
    </message>
    <message>
        <source>%1 is damaged. %2</source>
        <translation>%1 は破損しています。%2</translation>
    </message>
    <message>
        <source>%1 has been saved by another application in the meantime. Saving now would overwrite those changes.</source>
        <translation>%1 はその間に別のプログラムで保存されました。今保存すると、その変更が上書きされます。</translation>
    </message>
    <message>
        <source>%1 has no room for more programs. %2</source>
        <translation>%1 にはこれ以上番組を追加できません。%2</translation>
    </message>
    <message>
        <source>%1 could not be read or written. %2</source>
        <translation>%1 の読み取りまたは書き込みができませんでした。%2</translation>
    </message>
    <message>
        <source>%1 is not a schedule database as this application creates it. %2</source>
        <translation>%1 は、このプログラムが作成するスケジュールのデータベースと異なります。%2</translation>
    </message>
    <message>
        <source>%1 exceeds what a schedule can hold. %2</source>
        <translation>%1 はスケジュールの上限を超えています。%2</translation>
    </message>
    <message>
        <source>%1 may not have been written. %2 The change is not visible in the file now, but may be there after a restart of the computer. Write the schedule to another disk, and check the current one before you go on.</source>
        <translation>%1 に書き込まれていない可能性があります。%2現在この変更はファイルにありませんが、コンピューターの再起動後に現れることがあります。スケジュールを別のディスクに書き出し、現在のディスクを確認してから続行してください。</translation>
    </message>
    <message>
        <source>It is not certain whether %1 has been written. %2 Once the server can be reached again, see whether the change is there before you go on.</source>
        <translation>%1 に書き込まれたかどうかは確かではありません。%2サーバーに再び接続できるようになったら、変更が反映されているか確認してから続行してください。</translation>
    </message>
    <message>
        <source>%1 does not exist. A schedule on a server is set up with “schedulectl server-setup”.</source>
        <translation>%1 は存在しません。サーバー上のスケジュールは「schedulectl server-setup」で設定します。</translation>
    </message>
    <message>
        <source>You do not have permission.</source>
        <translation>権限がありません。</translation>
    </message>
    <message>
        <source>The file or a folder of its path does not exist.</source>
        <translation>ファイルまたはパス上のフォルダーが存在しません。</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>ディスクが読み取り専用です。</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>名前が長すぎます。</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>開いているファイルが多すぎます。</translation>
    </message>
    <message>
        <source>The file is in use.</source>
        <translation>ファイルは使用中です。</translation>
    </message>
    <message>
        <source>The system reports error %1.</source>
        <translation>システムがエラー %1 を報告しました。</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>真偽値</translation>
    </message>
    <message>
        <source>number</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>list</source>
        <translation>リスト</translation>
    </message>
    <message>
        <source>object</source>
        <translation>オブジェクト</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>空の値</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>whole number as text</source>
        <translation>テキスト形式の整数</translation>
    </message>
    <message>
        <source>program number that occurs once</source>
        <translation>一度だけ使われる番組番号</translation>
    </message>
    <message>
        <source>another number</source>
        <translation>別の数値</translation>
    </message>
    <message>
        <source>SHA-256 hash</source>
        <translation>SHA-256 ハッシュ値</translation>
    </message>
    <message>
        <source>another text</source>
        <translation>別のテキスト</translation>
    </message>
    <message>
        <source>%1 could not be read. %2</source>
        <translation>%1 を読み取れませんでした。%2</translation>
    </message>
    <message>
        <source>Line %1, %2: %3</source>
        <translation>%1 行目、%2：%3</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProgramTableModel</name>
    <message>
        <source>File not found: %1</source>
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
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
</context>
<context>
    <name>trel::desktop::SaveRescue</name>
    <message>
        <source>The schedule was not saved. %1

What do you want to do with your changes?</source>
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
        <source>Write the schedule to a file</source>
        <translation>スケジュールをファイルに書き出す</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>スケジュール (*.json)</translation>
    </message>
    <message>
        <source>Go on editing</source>
        <translation>編集を続ける</translation>
    </message>
    <message>
        <source>While you were editing, %1 was saved by another program. Your changes are not saved.</source>
        <translation>編集中に、%1 が別のアプリによって保存されました。あなたの変更は保存されていません。</translation>
    </message>
    <message>
        <source>If you keep yours, what was saved there stays among the versions. If you take theirs, yours can be brought back until the next save.</source>
        <translation>自分の変更を残す場合、相手が保存した内容はバージョンとして残ります。相手の内容を取り入れる場合、自分の変更は次に保存するまで元に戻せます。</translation>
    </message>
    <message>
        <source>What was changed there:</source>
        <translation>相手側での変更:</translation>
    </message>
    <message>
        <source>Nothing that you would see.</source>
        <translation>目に見える変更はありません。</translation>
    </message>
    <message>
        <source>As it was saved there</source>
        <translation>相手が保存した内容</translation>
    </message>
    <message>
        <source>With your changes</source>
        <translation>自分の変更を加えた内容</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>自分の変更を残す</translation>
    </message>
    <message>
        <source>Take theirs</source>
        <translation>相手の内容にする</translation>
    </message>
    <message>
        <source>Write mine to a file</source>
        <translation>自分の変更をファイルに書き出す</translation>
    </message>
    <message>
        <source>While you were editing, %1 was saved by %2, on %3. Your changes are not saved.</source>
        <comment>the database, a program, and the time</comment>
        <translation>編集中に、%1 が %2 によって保存されました（%3）。あなたの変更は保存されていません。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ClockChangePanel</name>
    <message>
        <source>Clock changes</source>
        <translation>夏時間の切り替え</translation>
    </message>
    <message>
        <source>No clock change falls within the validity of any task.</source>
        <translation>タスクの有効期間内に夏時間の切り替えはありません。</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; no plan of task %4 is affected.</source>
        <translation>%1：%2～%3 は飛ばされます。タスク %4 の計画には影響しません。</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; no plan of task %4 is affected.</source>
        <translation>%1：%2～%3 は 2 回あります。タスク %4 の計画には影響しません。</translation>
    </message>
</context>
<context>
    <name>ClockChangeText</name>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 does not play.</source>
        <translation>%1：%2～%3 は飛ばされます。タスク %5 の計画 %4 は再生されません。</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 starts at %6 in the middle of its list.</source>
        <translation>%1：%2～%3 は飛ばされます。タスク %5 の計画 %4 は %6 にリストの途中から始まります。</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 is cut off at %6.</source>
        <translation>%1：%2～%3 は飛ばされます。タスク %5 の計画 %4 は %6 で打ち切られます。</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 skips this part of its list.</source>
        <translation>%1：%2～%3 は飛ばされます。タスク %5 の計画 %4 はリストのこの部分を飛ばします。</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 plays twice.</source>
        <translation>%1：%2～%3 は 2 回あります。タスク %5 の計画 %4 は 2 回再生されます。</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 starts twice at %6.</source>
        <translation>%1：%2～%3 は 2 回あります。タスク %5 の計画 %4 は %6 に 2 回始まります。</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 ends twice at %6.</source>
        <translation>%1：%2～%3 は 2 回あります。タスク %5 の計画 %4 は %6 に 2 回終わります。</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 repeats this part of its list.</source>
        <translation>%1：%2～%3 は 2 回あります。タスク %5 の計画 %4 はリストのこの部分を繰り返します。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::PreviewDock</name>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>プレビュー(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Full-screen preview</source>
        <translation>全画面プレビュー(&amp;F)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::PreviewScreen</name>
    <message>
        <source>Preview of the screen</source>
        <translation>画面のプレビュー</translation>
    </message>
</context>
<context>
    <name>trel::desktop::NowNextPanel</name>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次</translation>
    </message>
    <message>
        <source>Cut in</source>
        <translation>割り込み</translation>
    </message>
    <message>
        <source>Now and next</source>
        <translation>現在と次</translation>
    </message>
    <message>
        <source>What the screen shows</source>
        <translation>画面の状態</translation>
    </message>
    <message>
        <source>Program on screen</source>
        <translation>画面の番組</translation>
    </message>
    <message>
        <source>Position in the program</source>
        <translation>番組の再生位置</translation>
    </message>
    <message>
        <source>Why this is on screen</source>
        <translation>表示の理由</translation>
    </message>
    <message>
        <source>Next program</source>
        <translation>次の番組</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>開始していません</translation>
    </message>
    <message>
        <source>%1 played</source>
        <translation>%1 再生済み</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>残り %1</translation>
    </message>
    <message>
        <source>%1, until %2, %3 left</source>
        <translation>%1、%2 まで、残り %3</translation>
    </message>
    <message>
        <source>Nothing else is scheduled.</source>
        <translation>この後の番組はありません。</translation>
    </message>
    <message>
        <source>at %1, in %2</source>
        <translation>%1、あと %2</translation>
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
        <translation>再生中</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黒画面</translation>
    </message>
    <message>
        <source>Frozen</source>
        <translation>最終画面</translation>
    </message>
    <message>
        <source>Last frame of %1</source>
        <translation>%1 の最後のフレーム</translation>
    </message>
    <message>
        <source>Black screen</source>
        <translation>黒画面</translation>
    </message>
    <message>
        <source>Entry %1 of %2, play %3 of %4</source>
        <translation>項目 %1/%2、再生 %3/%4</translation>
    </message>
    <message>
        <source>Task %1, plan %2</source>
        <translation>タスク %1、計画 %2</translation>
    </message>
    <message>
        <source>Choose Start to put the saved schedule into effect.</source>
        <translation>「運用開始」を押すと、保存したスケジュールが有効になります。</translation>
    </message>
    <message>
        <source>No plan has started yet.</source>
        <translation>まだどの計画も始まっていません。</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is the first of the plans for this time.</source>
        <translation>この時刻の計画のうち、タスク %2 の計画 %1 が最優先です。</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is due, but none of its programs can play.</source>
        <translation>タスク %2 の計画 %1 の番ですが、再生できる番組がありません。</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is due, but its list is to run less than once.</source>
        <translation>タスク %2 の計画 %1 の番ですが、リストの再生回数が 1 回未満です。</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 has played its list the set number of times.</source>
        <translation>タスク %2 の計画 %1 はリストを所定の回数再生しました。</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is over, and no other has begun.</source>
        <translation>タスク %2 の計画 %1 は終わり、次の計画はまだ始まっていません。</translation>
    </message>
    <message>
        <source>Cut in manually in place of plan %1 of task %2.</source>
        <translation>タスク %2 の計画 %1 の代わりに、手動で割り込ませました。</translation>
    </message>
    <message>
        <source>What was cut in for plan %1 of task %2 has nothing left to play.</source>
        <translation>タスク %2 の計画 %1 に代わる割り込みには、もう再生するものがありません。</translation>
    </message>
    <message>
        <source>Cut in: %1</source>
        <translation>割り込み：%1</translation>
    </message>
    <message>
        <source>Original list: %1</source>
        <translation>元のリスト：%1</translation>
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
        <translation>%1、タスク %2。%3</translation>
    </message>
    <message>
        <source>On screen: %1, at %2</source>
        <translation>画面：%1、%2 経過</translation>
    </message>
    <message>
        <source>On screen: %1</source>
        <translation>画面：%1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>day and time of day</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 to %2 is skipped: the clocks go forward.</source>
        <translation>%1～%2 は飛ばされます。時計が進められます。</translation>
    </message>
    <message>
        <source>%1 to %2 occurs twice: the clocks go back.</source>
        <translation>%1～%2 は 2 回あります。時計が戻されます。</translation>
    </message>
    <message numerus="yes">
        <source>%n more plans do not reach the screen.</source>
        <translation>
            <numerusform>ほかに %n 件の計画が画面に表示されません。</numerusform>
        </translation>
    </message>
    <message>
        <source>Plan %1, above it, takes precedence.</source>
        <translation>上にある計画 %1 が優先されます。</translation>
    </message>
    <message>
        <source>It conflicts with a plan above it.</source>
        <translation>上の計画と重複しています。</translation>
    </message>
    <message>
        <source>Its list is over at %1, before the plan ends.</source>
        <translation>リストは計画の終了より前の %1 に終わります。</translation>
    </message>
    <message>
        <source>Plan %1, %2 to %3</source>
        <translation>計画 %1、%2～%3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>plan and its programs</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>No task is valid on this day.</source>
        <translation>この日に有効なタスクはありません。</translation>
    </message>
    <message>
        <source>No task is valid</source>
        <translation>有効なタスクなし</translation>
    </message>
    <message>
        <source>No task</source>
        <translation>タスクなし</translation>
    </message>
    <message>
        <source>Task %1</source>
        <translation>タスク %1</translation>
    </message>
    <message>
        <source>Frozen: %1</source>
        <translation>最終画面：%1</translation>
    </message>
    <message>
        <source>Cut in: %1</source>
        <translation>割り込み：%1</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>なし：時計が進む</translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation>2 回：時計が戻る</translation>
    </message>
    <message>
        <source>nothing to show</source>
        <translation>表示するものなし</translation>
    </message>
    <message>
        <source>Not on screen</source>
        <translation>画面に出ない</translation>
    </message>
    <message>
        <source>In conflict</source>
        <translation>重複あり</translation>
    </message>
    <message>
        <source>Programs of the week</source>
        <translation>週の番組</translation>
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
        <translation>今日</translation>
    </message>
    <message>
        <source>Whole day</source>
        <translation>一日全体</translation>
    </message>
    <message>
        <source>As edited</source>
        <translation>編集中</translation>
    </message>
    <message>
        <source>In effect</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Previous week</source>
        <translation>前の週</translation>
    </message>
    <message>
        <source>Next week</source>
        <translation>次の週</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Schedule shown</source>
        <translation>表示するスケジュール</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>前の月</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>次の月</translation>
    </message>
    <message>
        <source>Choose a day in a calendar</source>
        <translation>カレンダーで日を選択</translation>
    </message>
    <message>
        <source>%1. Choose a day in a calendar</source>
        <comment>days of a week</comment>
        <translation>%1。カレンダーで日を選択</translation>
    </message>
</context>
<context>
    <name>ProblemText</name>
    <message>
        <source>Task %1</source>
        <translation>タスク %1</translation>
    </message>
    <message>
        <source>Task %1, row %2</source>
        <translation>タスク %1、%2 行目</translation>
    </message>
    <message>
        <source>The validity overlaps that of task %1 from %2 to %3.</source>
        <translation>有効期間が %2～%3 にタスク %1 の有効期間と重なっています。</translation>
    </message>
    <message>
        <source>The validity overlaps that of task %1.</source>
        <translation>有効期間がタスク %1 の有効期間と重なっています。</translation>
    </message>
    <message>
        <source>The task is never valid: “%1” to “%2” is not a period.</source>
        <translation>タスクは有効になりません。「%1」～「%2」は期間ではありません。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: none of its days falls within the validity of the task.</source>
        <translation>計画 %1 は再生されません。タスクの有効期間に該当する曜日がありません。</translation>
    </message>
    <message>
        <source>Plan %1 is never on screen: earlier rows such as row %2 always come first.</source>
        <translation>計画 %1 は画面に出ません。%2 行目など前の行が常に優先されます。</translation>
    </message>
    <message>
        <source>Plan %1 is in conflict with plan %2 in row %3 from %4 on.</source>
        <translation>計画 %1 は %4 から %3 行目の計画 %2 と重複しています。</translation>
    </message>
    <message>
        <source>Plan %1 is in conflict with plan %2 in row %3, but on no date.</source>
        <translation>計画 %1 は %3 行目の計画 %2 と重複していますが、該当する日付はありません。</translation>
    </message>
    <message>
        <source>No picture from %1 to %2, every day.</source>
        <translation>毎日 %1～%2 に画面がありません。</translation>
    </message>
    <message>
        <source>No picture from %1 to %2 on: %3.</source>
        <translation>%3 の %1～%2 に画面がありません。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it would go on after midnight, until %2.</source>
        <translation>計画 %1 は再生されません。午前 0 時を越えて %2 まで続くためです。</translation>
    </message>
    <message>
        <source>Plan %1 is cut off at midnight: it would go on until %2.</source>
        <translation>計画 %1 は午前 0 時に打ち切られます。本来は %2 まで続きます。</translation>
    </message>
    <message>
        <source>Plan %1 is cut off at midnight: it would go on for more than a day.</source>
        <translation>計画 %1 は午前 0 時に打ち切られます。本来は 1 日以上続きます。</translation>
    </message>
    <message>
        <source>Invalid entries in plan %1: %2. The first is “%3”.</source>
        <translation>計画 %1 の無効な項目：%2 件。最初は「%3」です。</translation>
    </message>
    <message>
        <source>Missing files in plan %1: %2. The first is “%3”.</source>
        <translation>計画 %1 の見つからないファイル：%2 件。最初は「%3」です。</translation>
    </message>
    <message>
        <source>Entries without a length in plan %1: %2. The first is “%3”.</source>
        <translation>計画 %1 の長さのない項目：%2 件。最初は「%3」です。</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is cut off at the end of the day.</source>
        <translation>計画 %1 では「%2」が一日の終わりに打ち切られます。</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is cut off at %3, when the plan ends.</source>
        <translation>計画 %1 では「%2」が計画の終わる %3 に打ち切られます。</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is never reached: an entry before it does not end by itself.</source>
        <translation>計画 %1 では「%2」の番になりません。前の項目が自動的に終わらないためです。</translation>
    </message>
    <message>
        <source>Plan %1 contains no programs.</source>
        <translation>計画 %1 には番組がありません。</translation>
    </message>
    <message>
        <source>Change the dates of one of the two tasks. Until then nothing can be saved.</source>
        <translation>どちらかのタスクの日付を変更してください。それまで保存できません。</translation>
    </message>
    <message>
        <source>Choose a start date, and an end date that is not before it.</source>
        <translation>開始日と、それより前でない終了日を選んでください。</translation>
    </message>
    <message>
        <source>Correct the days and times of the plan.</source>
        <translation>計画の曜日と時刻を直してください。</translation>
    </message>
    <message>
        <source>Change the days or times of one of the plans.</source>
        <translation>どちらかの計画の曜日か時刻を変更してください。</translation>
    </message>
    <message>
        <source>Restore the files, or choose other programs.</source>
        <translation>ファイルを元に戻すか、別の番組を選んでください。</translation>
    </message>
    <message>
        <source>Choose the programs of the plan anew.</source>
        <translation>計画の番組を選び直してください。</translation>
    </message>
    <message>
        <source>Split the plan in two, or let it end before midnight.</source>
        <translation>計画を二つに分けるか、午前 0 時までに終わらせてください。</translation>
    </message>
    <message>
        <source>Let the plan end before midnight.</source>
        <translation>計画を午前 0 時までに終わらせてください。</translation>
    </message>
    <message>
        <source>Let the plan end later, or play less.</source>
        <translation>計画の終わりを遅くするか、番組を減らしてください。</translation>
    </message>
    <message>
        <source>Move the entry to the front, or into another plan.</source>
        <translation>その項目を前に移すか、別の計画に移してください。</translation>
    </message>
    <message>
        <source>Add a plan, or let the plan before it end with its last frame.</source>
        <translation>計画を追加するか、前の計画を最終画面で終わらせてください。</translation>
    </message>
    <message>
        <source>Move the plan if that is not wanted.</source>
        <translation>望ましくない場合は計画を移してください。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemModel</name>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>As of</source>
        <translation>開始日</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>対処</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemPanel</name>
    <message>
        <source>No problems.</source>
        <translation>問題はありません。</translation>
    </message>
    <message>
        <source>Go to the row</source>
        <translation>行へ移動</translation>
    </message>
    <message>
        <source>Split in two</source>
        <translation>二つに分ける</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemDock</name>
    <message>
        <source>No open problems</source>
        <translation>未解決の問題なし</translation>
    </message>
    <message numerus="yes">
        <source>%n open problems</source>
        <translation>
            <numerusform>未解決の問題 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>問題一覧</translation>
    </message>
    <message>
        <source>Pro&amp;blems</source>
        <translation>問題一覧(&amp;B)</translation>
    </message>
    <message>
        <source>Show what is wrong with the schedule</source>
        <translation>スケジュールの問題を表示</translation>
    </message>
</context>
<context>
    <name>PlanFaultText</name>
    <message>
        <source>Plan %1 never plays: none of its days is a day of the week.</source>
        <translation>計画 %1 は再生されません。指定された曜日がいずれも存在しません。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, is not a time in the form %3.</source>
        <translation>計画 %1 は再生されません。開始「%2」は %3 の形式の時刻ではありません。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its end, “%2”, is not a time in the form %3.</source>
        <translation>計画 %1 は再生されません。終了「%2」は %3 の形式の時刻ではありません。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, and its end, “%3”, are not times in the form %4.</source>
        <translation>計画 %1 は再生されません。開始「%2」と終了「%3」は %4 の形式の時刻ではありません。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its list is to run less than once.</source>
        <translation>計画 %1 は再生されません。リストの再生回数が 1 回未満です。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it starts and ends at %2.</source>
        <translation>計画 %1 は再生されません。開始と終了が同じ %2 です。</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it ends at %3, before it starts at %2.</source>
        <translation>計画 %1 は再生されません。%2 に始まり、それより前の %3 に終わります。</translation>
    </message>
</context>
<context>
    <name>ZoneError</name>
    <message>
        <source>The system knows no time zone of the name “%1”, so that the local time is not known.</source>
        <translation>「%1」という名前のタイムゾーンがシステムにないため、現地時刻がわかりません。</translation>
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
        <translation>元のサイズに戻す</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EffectActions</name>
    <message>
        <source>Stop the schedule that is in effect? The screen stays black until a schedule is started again.</source>
        <translation>有効なスケジュールの運用を停止しますか？再び運用を開始するまで黒画面のままになります。</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>EffectWords</name>
    <message>
        <source>In effect since %1 at %2 (save %3)</source>
        <translation>%1 %2 から有効（保存 %3 回目）</translation>
    </message>
    <message>
        <source>Started by %1.</source>
        <translation>%1 が開始しました。</translation>
    </message>
    <message numerus="yes">
        <source>What is saved differs in %n tasks: %1</source>
        <translation>
            <numerusform>保存内容は %n 件のタスクで異なります：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>a program</comment>
        <translation>「%1」</translation>
    </message>
    <message>
        <source>the last frame of “%1”</source>
        <translation>「%1」の最後のフレーム</translation>
    </message>
    <message>
        <source>a black screen</source>
        <translation>黒画面</translation>
    </message>
    <message>
        <source>%1 comes after %2, at %3; %4 comes back at %5.</source>
        <translation>%1は%2の後、%3 に割り込みます。%5 から%4に戻ります。</translation>
    </message>
    <message>
        <source>%1 was cut off at %2; %3 comes at %4.</source>
        <translation>%1を %2 に打ち切りました。%4 から%3に移ります。</translation>
    </message>
    <message>
        <source>%1 was cut in at %2; %3 comes back at %4.</source>
        <translation>%1が %2 に割り込みました。%4 から%3に戻ります。</translation>
    </message>
    <message>
        <source>%1 comes after %2, at %3.</source>
        <translation>%1は%2の後、%3 に割り込みます。</translation>
    </message>
    <message>
        <source>%1 was cut off at %2.</source>
        <translation>%1を %2 に打ち切りました。</translation>
    </message>
    <message>
        <source>%1 was cut in at %2.</source>
        <translation>%1が %2 に割り込みました。</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <comment>time and date</comment>
        <translation>%2 %1</translation>
    </message>
    <message>
        <source>What is in effect could not be changed. %1</source>
        <translation>有効な内容を変更できませんでした。%1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::AsRunWindow</name>
    <message>
        <source>As-run</source>
        <translation>放送実績</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>スクリーン</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Previous day</source>
        <translation>前の日</translation>
    </message>
    <message>
        <source>Next day</source>
        <translation>次の日</translation>
    </message>
    <message>
        <source>Only what was not as planned</source>
        <translation>予定どおりでないものだけ</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>読み込み中…</translation>
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
        <translation>終了</translation>
    </message>
    <message>
        <source>Planned</source>
        <translation>予定</translation>
    </message>
    <message>
        <source>On screen</source>
        <translation>表示内容</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>備考</translation>
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
        <translation>記録なし</translation>
    </message>
    <message>
        <source>No player</source>
        <translation>プレーヤーなし</translation>
    </message>
    <message>
        <source>Stand-by picture</source>
        <translation>待機画像</translation>
    </message>
    <message>
        <source>Last good frame of %1</source>
        <translation>%1 の最後の正常なフレーム</translation>
    </message>
    <message>
        <source>What was on before</source>
        <translation>直前の内容</translation>
    </message>
    <message>
        <source>Cut off: the schedule was stopped</source>
        <translation>中断：スケジュールが停止された</translation>
    </message>
    <message>
        <source>Cut off: the player was ended</source>
        <translation>中断：プレーヤーが終了した</translation>
    </message>
    <message>
        <source>Cut off: the player was killed</source>
        <translation>中断：プレーヤーが強制終了した</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Cut off: the clock was changed</source>
        <translation>中断：時計が変更された</translation>
    </message>
    <message>
        <source>The player had been ended</source>
        <translation>プレーヤーは終了していた</translation>
    </message>
    <message>
        <source>The player had been killed</source>
        <translation>プレーヤーは強制終了していた</translation>
    </message>
    <message>
        <source>The machine had stopped</source>
        <translation>機器が停止していた</translation>
    </message>
    <message>
        <source>The player had no schedule yet</source>
        <translation>プレーヤーにはまだスケジュールがなかった</translation>
    </message>
    <message>
        <source>The machine was asleep</source>
        <translation>機器がスリープしていた</translation>
    </message>
    <message>
        <source>The records could not be kept</source>
        <translation>記録を保存できなかった</translation>
    </message>
    <message>
        <source>Recorded until %1.</source>
        <translation>%1 まで記録されています。</translation>
    </message>
    <message>
        <source>Only the first %1 lines of the day are shown.</source>
        <translation>この日の最初の %1 行だけを表示しています。</translation>
    </message>
    <message>
        <source>No record tells why</source>
        <translation>理由の記録なし</translation>
    </message>
    <message>
        <source>%1 s late</source>
        <translation>%1 秒遅れ</translation>
    </message>
    <message>
        <source>The records cannot be read: %1</source>
        <translation>記録を読み込めません：%1</translation>
    </message>
    <message>
        <source>No player has recorded anything for this database.</source>
        <translation>このデータベースに対するプレーヤーの記録はありません。</translation>
    </message>
    <message>
        <source>The records were changed, or some are missing. “schedulectl as-run --verify” names the place.</source>
        <translation>記録が変更されたか、欠けています。場所は「schedulectl as-run --verify」でわかります。</translation>
    </message>
    <message>
        <source>Not as planned, and no record tells why: %1</source>
        <translation>予定どおりでなく、理由の記録がない箇所：%1</translation>
    </message>
    <message>
        <source>There is no record of this day.</source>
        <translation>この日の記録はありません。</translation>
    </message>
    <message>
        <source>The screen was as planned, or a record tells why not.</source>
        <translation>スクリーンは予定どおりか、違う理由が記録されています。</translation>
    </message>
    <message>
        <source>Cut off: something was cut in</source>
        <translation>中断：割り込みがあった</translation>
    </message>
    <message>
        <source>Cut off: another schedule came</source>
        <translation>中断：別のスケジュール</translation>
    </message>
</context>
<context>
    <name>EditWords</name>
    <message>
        <source>Back to what is saved</source>
        <translation>保存済みの状態に戻した</translation>
    </message>
    <message>
        <source>Saved by another program: tasks %1</source>
        <translation>別のアプリが保存：タスク %1</translation>
    </message>
    <message>
        <source>This takes back what another program has saved as well (tasks %1). Nothing is overwritten before you save, and what was saved there stays among the versions.</source>
        <translation>別のアプリが保存した内容（タスク %1）も取り消されます。保存するまで何も上書きされず、相手が保存した内容はバージョンとして残ります。</translation>
    </message>
    <message>
        <source>Take it back</source>
        <translation>取り消す</translation>
    </message>
    <message>
        <source>Leave it</source>
        <translation>そのままにする</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks edited</source>
        <translation>
            <numerusform>%n 件のタスクを編集</numerusform>
        </translation>
    </message>
    <message>
        <source>Task %1 added</source>
        <translation>タスク %1 を追加</translation>
    </message>
    <message>
        <source>Task %1 deleted</source>
        <translation>タスク %1 を削除</translation>
    </message>
    <message>
        <source>Task %1 edited</source>
        <translation>タスク %1 を編集</translation>
    </message>
    <message>
        <source>Task %1: first day %2 → %3</source>
        <translation>タスク %1：初日 %2 → %3</translation>
    </message>
    <message>
        <source>Task %1: last day %2 → %3</source>
        <translation>タスク %1：最終日 %2 → %3</translation>
    </message>
    <message>
        <source>Task %1, plan %2 added</source>
        <translation>タスク %1、計画 %2 を追加</translation>
    </message>
    <message>
        <source>Task %1, plan %2 deleted</source>
        <translation>タスク %1、計画 %2 を削除</translation>
    </message>
    <message>
        <source>Task %1, plan %2 edited</source>
        <translation>タスク %1、計画 %2 を編集</translation>
    </message>
    <message>
        <source>Task %1, plan %2: other programs</source>
        <translation>タスク %1、計画 %2：番組を変更</translation>
    </message>
    <message>
        <source>Task %1, plan %2: ends at a set time</source>
        <translation>タスク %1、計画 %2：決まった時刻に終了</translation>
    </message>
    <message>
        <source>Task %1, plan %2: ends after a number of runs</source>
        <translation>タスク %1、計画 %2：回数で終了</translation>
    </message>
    <message>
        <source>Task %1, plan %2: start %3 → %4</source>
        <translation>タスク %1、計画 %2：開始 %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: end %3 → %4</source>
        <translation>タスク %1、計画 %2：終了 %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: days %3 → %4</source>
        <translation>タスク %1、計画 %2：曜日 %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: runs %3 → %4</source>
        <translation>タスク %1、計画 %2：回数 %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: a black screen at the end</source>
        <translation>タスク %1、計画 %2：終了時は黒画面</translation>
    </message>
    <message>
        <source>Task %1, plan %2: the last frame at the end</source>
        <translation>タスク %1、計画 %2：終了時は最終画面</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>毎日</translation>
    </message>
    <message>
        <source>Task %1, plan %2: %3 → %4</source>
        <translation>タスク %1、計画 %2：%3 → %4</translation>
    </message>
</context>
<context>
    <name>trel::desktop::undo::HistoryActions</name>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>やり直す(&amp;D)</translation>
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
        <translation>%1（保存済み）</translation>
    </message>
    <message>
        <source>%1 (saved; editor opened)</source>
        <comment>a step</comment>
        <translation>%1（保存済み、エディターを開いた時点）</translation>
    </message>
    <message>
        <source>%1 (editor opened)</source>
        <comment>a step</comment>
        <translation>%1（エディターを開いた時点）</translation>
    </message>
</context>
<context>
    <name>trel::desktop::undo::HistoryDock</name>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>履歴(&amp;H)</translation>
    </message>
</context>
<context>
    <name>DraftWords</name>
    <message>
        <source>There are changes that were not saved. The last one was made on %1.</source>
        <translation>保存されなかった変更があります。最後の変更: %1</translation>
    </message>
    <message>
        <source>New tasks: %1</source>
        <translation>新しいタスク: %1</translation>
    </message>
    <message>
        <source>Changed tasks: %1</source>
        <translation>変更されたタスク: %1</translation>
    </message>
    <message>
        <source>Deleted tasks: %1</source>
        <translation>削除されたタスク: %1</translation>
    </message>
    <message>
        <source>The very last change may be missing.</source>
        <translation>最後の変更が欠けている可能性があります。</translation>
    </message>
    <message>
        <source>A part of them is damaged and cannot be read.</source>
        <translation>一部が破損しており、読み取れません。</translation>
    </message>
    <message>
        <source>They were made in another database, which stood in the place of this one.</source>
        <translation>以前この場所にあった別のデータベースで行われた変更です。</translation>
    </message>
    <message>
        <source>The schedule was saved since then.</source>
        <translation>その後、スケジュールは保存されています。</translation>
    </message>
    <message>
        <source>The file %1 keeps changes that were not saved. They were made with a newer version of this program, which has to be used to take them over.</source>
        <translation>ファイル %1 には保存されなかった変更があります。このアプリの新しいバージョンで行われたもので、引き継ぐにはそのバージョンが必要です。</translation>
    </message>
    <message>
        <source>The file %1 should keep changes that were not saved, but nothing in it can be read.</source>
        <translation>ファイル %1 には保存されなかった変更があるはずですが、何も読み取れません。</translation>
    </message>
    <message>
        <source>Changes that are not saved cannot be kept beside the database at the moment: if the program ends now, they are lost. %1</source>
        <translation>現在、保存されていない変更をデータベースのそばに残せません。今終了すると失われます。%1</translation>
    </message>
    <message>
        <source>The changes could not be kept beside the database. They are still in the editor.</source>
        <translation>変更をデータベースのそばに残せませんでした。エディターにはまだ残っています。</translation>
    </message>
    <message>
        <source>Take over</source>
        <translation>引き継ぐ</translation>
    </message>
    <message>
        <source>Put into a file</source>
        <translation>ファイルに入れる</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>捨てる</translation>
    </message>
    <message>
        <source>Delete the file</source>
        <translation>ファイルを削除</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>後で決める</translation>
    </message>
    <message>
        <source>There are changes that were not saved. The last one was made %1, on %2.</source>
        <translation>保存されなかった変更があります。最後の変更: %1（%2）</translation>
    </message>
    <message>
        <source>less than a minute ago</source>
        <translation>1 分以内</translation>
    </message>
    <message>
        <source>What differs from what is saved:</source>
        <translation>保存されている内容との違い:</translation>
    </message>
    <message>
        <source>As it is saved</source>
        <translation>保存されている内容</translation>
    </message>
    <message>
        <source>With these changes</source>
        <translation>この変更を加えた内容</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes ago</source>
        <translation>
            <numerusform>%n 分前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours ago</source>
        <translation>
            <numerusform>%n 時間前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days ago</source>
        <translation>
            <numerusform>%n 日前</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::changes::ChangesDialog</name>
    <message>
        <source>Look at it in the week</source>
        <translation>週で見る</translation>
    </message>
</context>
<context>
    <name>DifferenceWords</name>
    <message>
        <source>Task %1: %2</source>
        <comment>where, and what differs</comment>
        <translation>タスク %1：%2</translation>
    </message>
    <message>
        <source>Task %1, plan %2: %3</source>
        <comment>where, and what differs</comment>
        <translation>タスク %1、計画 %2：%3</translation>
    </message>
    <message numerus="yes">
        <source>added, valid from %1 to %2, %n plans</source>
        <translation>
            <numerusform>追加、有効期間 %1～%2、計画 %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>deleted, was valid from %1 to %2, %n plans</source>
        <translation>
            <numerusform>削除、元の有効期間 %1～%2、計画 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>added in row %1: %2, %3 to %4, %5</source>
        <translation>%1 行目に追加：%2、%3～%4、%5</translation>
    </message>
    <message>
        <source>deleted from row %1: %2, %3 to %4, %5</source>
        <translation>%1 行目から削除：%2、%3～%4、%5</translation>
    </message>
    <message>
        <source>no programs</source>
        <translation>番組なし</translation>
    </message>
    <message>
        <source>row %1 → %2</source>
        <translation>行 %1 → %2</translation>
    </message>
    <message>
        <source>“%1” added as entry %2</source>
        <translation>「%1」を項目 %2 として追加</translation>
    </message>
    <message>
        <source>“%1” deleted, was entry %2</source>
        <translation>「%1」を削除、元は項目 %2</translation>
    </message>
    <message>
        <source>“%1”: entry %2 → %3</source>
        <translation>「%1」：項目 %2 → %3</translation>
    </message>
    <message>
        <source>“%1”, entry %2: %3</source>
        <translation>「%1」、項目 %2：%3</translation>
    </message>
    <message>
        <source>first day %1 → %2</source>
        <translation>初日 %1 → %2</translation>
    </message>
    <message>
        <source>last day %1 → %2</source>
        <translation>最終日 %1 → %2</translation>
    </message>
    <message>
        <source>start %1 → %2</source>
        <translation>開始 %1 → %2</translation>
    </message>
    <message>
        <source>end %1 → %2</source>
        <translation>終了 %1 → %2</translation>
    </message>
    <message>
        <source>runs %1 → %2</source>
        <translation>回数 %1 → %2</translation>
    </message>
    <message>
        <source>days %1 → %2</source>
        <translation>曜日 %1 → %2</translation>
    </message>
    <message>
        <source>mode “%1” → “%2”</source>
        <translation>モード 「%1」 → 「%2」</translation>
    </message>
    <message>
        <source>at the end “%1” → “%2”</source>
        <translation>終了時 「%1」 → 「%2」</translation>
    </message>
    <message>
        <source>name “%1” → “%2”</source>
        <translation>名前 「%1」 → 「%2」</translation>
    </message>
    <message>
        <source>plays in a row %1 → %2</source>
        <translation>連続再生 %1 → %2</translation>
    </message>
    <message>
        <source>now has a program without a length of its own</source>
        <translation>固有の長さのない番組あり</translation>
    </message>
    <message>
        <source>no longer has a program without a length of its own</source>
        <translation>固有の長さのない番組なし</translation>
    </message>
    <message>
        <source>now in conflict</source>
        <translation>重複あり</translation>
    </message>
    <message>
        <source>no longer in conflict</source>
        <translation>重複なし</translation>
    </message>
    <message>
        <source>now invalid</source>
        <translation>無効になった</translation>
    </message>
    <message>
        <source>no longer invalid</source>
        <translation>再び有効</translation>
    </message>
    <message>
        <source>something that the editor does not show</source>
        <translation>エディターに表示されない内容</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more differences.</source>
        <translation>
            <numerusform>…ほか %n 件の違い。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProgramWords</name>
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
</context>
<context>
    <name>trel::desktop::CatalogueFilter</name>
    <message>
        <source>%1 of %2</source>
        <comment>programs found of programs</comment>
        <translation>%2 件中 %1 件</translation>
    </message>
    <message>
        <source>Search name and folder</source>
        <translation>名前とフォルダーを検索</translation>
    </message>
    <message>
        <source>Kind of program</source>
        <translation>番組の種類</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>すべての種類</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>未使用</translation>
    </message>
    <message numerus="yes">
        <source>%n programs</source>
        <translation>
            <numerusform>番組 %n 件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::CalendarPopup</name>
    <message>
        <source>Calendar</source>
        <translation>カレンダー</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekPage</name>
    <message>
        <source>Click a block to see why it is on screen, or why not.</source>
        <translation>ブロックをクリックすると、画面に出る理由または出ない理由が表示されます。</translation>
    </message>
    <message>
        <source>Why the selected block is on screen, or why not</source>
        <translation>選択したブロックが画面に出る理由または出ない理由</translation>
    </message>
    <message>
        <source>No task is valid in this week. Add one with “Edit”, then drag programs here.</source>
        <translation>この週に有効なタスクはありません。「編集」でタスクを追加し、番組をここへドラッグしてください。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::year::YearStrip</name>
    <message>
        <source>Gap: no task is valid from %1 to %2.</source>
        <translation>空き：%1から%2まで有効なタスクがありません。</translation>
    </message>
    <message>
        <source>Overlap: several tasks are valid from %1 to %2.</source>
        <translation>重なり：%1から%2まで複数のタスクが有効です。</translation>
    </message>
    <message>
        <source>Task %1 is valid from %2 to %3.</source>
        <translation>タスク%1は%2から%3まで有効です。</translation>
    </message>
    <message>
        <source>Validity of the tasks in %1</source>
        <translation>%1年のタスクの有効期間</translation>
    </message>
</context>
<context>
    <name>trel::desktop::UsesWindow</name>
    <message>
        <source>Where used</source>
        <translation>使用箇所</translation>
    </message>
    <message>
        <source>No plan plays “%1”.</source>
        <translation>「%1」を再生する計画はありません。</translation>
    </message>
    <message numerus="yes">
        <source>“%1” is played by %n plans.</source>
        <translation>
            <numerusform>「%1」は %n 件の計画で再生されます。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::UsesModel</name>
    <message>
        <source>Task</source>
        <translation>タスク</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>有効期間</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>計画</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>曜日</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
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
        <translation>タスク %1 (%2)、計画 %3、%4 %5</translation>
    </message>
    <message>
        <source>Not on screen any more, as the schedule in effect has it.</source>
        <translation>適用中のスケジュールでは、もう画面に出ません。</translation>
    </message>
    <message>
        <source>Not on screen any more, as the schedule is edited.</source>
        <translation>編集中のスケジュールでは、もう画面に出ません。</translation>
    </message>
    <message>
        <source>Never on screen, as the schedule in effect has it.</source>
        <translation>適用中のスケジュールでは、一度も画面に出ません。</translation>
    </message>
    <message>
        <source>Never on screen, as the schedule is edited.</source>
        <translation>編集中のスケジュールでは、一度も画面に出ません。</translation>
    </message>
    <message>
        <source>On screen now: task %1, plan %2.</source>
        <translation>現在画面に表示中: タスク %1、計画 %2。</translation>
    </message>
    <message>
        <source>Next on screen: %1, task %2, plan %3.</source>
        <translation>次に画面に出るのは: %1、タスク %2、計画 %3。</translation>
    </message>
    <message numerus="yes">
        <source>Entries become invalid in %n plans:</source>
        <translation>
            <numerusform>%n 件の計画で項目が無効になります:</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: nothing else is left of it</source>
        <translation>%1: ほかには何も残りません</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more plans.</source>
        <translation>
            <numerusform>…ほか %n 件の計画。</numerusform>
        </translation>
    </message>
    <message>
        <source>every day</source>
        <translation>毎日</translation>
    </message>
    <message>
        <source>%1–%2</source>
        <comment>from day to day</comment>
        <translation>%1～%2</translation>
    </message>
</context>
<context>
    <name>MoveWords</name>
    <message>
        <source>Plan %1: %2, %3 to %4</source>
        <translation>計画 %1：%2、%3～%4</translation>
    </message>
    <message>
        <source>New plan in task %1: %2, %3 to %4</source>
        <translation>タスク %1 の新しい計画：%2、%3～%4</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>毎日</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are valid on this day; that is the one in effect.</source>
        <translation>
            <numerusform>この日に有効なタスクは %n 件で、実際に使われるのはこのタスクです。</numerusform>
        </translation>
    </message>
    <message>
        <source>Its times cannot be read.</source>
        <translation>時刻を読み取れません。</translation>
    </message>
    <message>
        <source>A plan cannot run over midnight.</source>
        <translation>計画は日付をまたげません。</translation>
    </message>
    <message>
        <source>A plan has to start before it ends.</source>
        <translation>計画の開始は終了より前でなければなりません。</translation>
    </message>
    <message>
        <source>Its end follows from its programs; it can only be moved.</source>
        <translation>終了は番組から決まるため、移動だけができます。</translation>
    </message>
    <message>
        <source>It plays every day.</source>
        <translation>毎日再生されます。</translation>
    </message>
    <message>
        <source>It plays on that day already.</source>
        <translation>その日にはすでに再生されます。</translation>
    </message>
    <message>
        <source>Its days cannot be read.</source>
        <translation>曜日を読み取れません。</translation>
    </message>
    <message>
        <source>Its task is not in effect on that day.</source>
        <translation>その日にはこの計画のタスクが使われません。</translation>
    </message>
    <message>
        <source>Conflicts with plan %1, %2 to %3.</source>
        <translation>計画 %1（%2～%3）と重複します。</translation>
    </message>
    <message numerus="yes">
        <source>Conflicts with %n more.</source>
        <translation>
            <numerusform>ほかに %n 件と重複します。</numerusform>
        </translation>
    </message>
    <message>
        <source>No task is valid on this day.</source>
        <translation>この日に有効なタスクはありません。</translation>
    </message>
    <message>
        <source>These programs cannot be planned here.</source>
        <translation>これらの番組はここには計画できません。</translation>
    </message>
    <message>
        <source>Copy the plans of %1…</source>
        <comment>a day</comment>
        <translation>%1の計画をコピー…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekEdits</name>
    <message>
        <source>The editor is not ready yet. Please try again.</source>
        <translation>エディターの準備がまだできていません。もう一度お試しください。</translation>
    </message>
    <message>
        <source>The schedule has changed meanwhile; nothing was moved.</source>
        <translation>その間にスケジュールが変わったため、何も移動していません。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::CopyDayDialog</name>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Copy onto these days, whose own plans stay:</source>
        <translation>次の日にコピーします。その日の計画はそのまま残ります。</translation>
    </message>
    <message>
        <source>%1 (no task is valid)</source>
        <comment>a day</comment>
        <translation>%1（有効なタスクなし）</translation>
    </message>
    <message>
        <source>There is no plan on that day.</source>
        <translation>その日に計画はありません。</translation>
    </message>
    <message numerus="yes">
        <source>%n plans play on that day. Choose the days to copy them onto.</source>
        <translation>
            <numerusform>その日に再生される計画は %n 件です。コピー先の日を選んでください。</numerusform>
        </translation>
    </message>
    <message>
        <source>All of them play on these days already.</source>
        <translation>これらの日にはすべてすでに再生されます。</translation>
    </message>
    <message numerus="yes">
        <source>%n plans are copied.</source>
        <translation>
            <numerusform>%n 件の計画をコピーします。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more plans will conflict then. Nothing is lost by that: change what you want afterwards.</source>
        <translation>
            <numerusform>さらに %n 件の計画が重複します。失われるものはないので、あとで変更できます。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>VersionWords</name>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>What is in effect</source>
        <translation>運用中</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>保存済み</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>new: %1</source>
        <translation>新規：%1</translation>
    </message>
    <message>
        <source>changed: %1</source>
        <translation>変更：%1</translation>
    </message>
    <message>
        <source>deleted: %1</source>
        <translation>削除：%1</translation>
    </message>
    <message>
        <source>nothing of note</source>
        <translation>目立った変更なし</translation>
    </message>
    <message>
        <source>%1 (tasks %2)</source>
        <comment>what a save changed, and in which tasks</comment>
        <translation>%1（タスク %2）</translation>
    </message>
    <message>
        <source>version %1 restored: %2</source>
        <translation>バージョン %1 を復元：%2</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>違いはありません。</translation>
    </message>
    <message numerus="yes">
        <source>%n differences</source>
        <translation>
            <numerusform>%n 件の違い</numerusform>
        </translation>
    </message>
    <message>
        <source>Restore version %1? What is saved now stays as a version, so that it can be restored in turn.</source>
        <translation>バージョン %1 を復元しますか？現在保存されている内容もバージョンとして残り、後で復元できます。</translation>
    </message>
    <message numerus="yes">
        <source>%n of its programs are no longer in the catalog. Their entries will be invalid: %1</source>
        <translation>
            <numerusform>%n 件の番組が番組一覧にありません。その項目は無効になります：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>The schedule in the editor has changes that are not saved.</source>
        <translation>エディターのスケジュールには保存されていない変更があります。</translation>
    </message>
    <message>
        <source>Version %1 – %2</source>
        <comment>a version, and when it was saved</comment>
        <translation>バージョン %1 – %2</translation>
    </message>
    <message>
        <source>Version %1 – %2 – %3</source>
        <comment>a version, when it was saved, and its name</comment>
        <translation>バージョン %1 – %2 – %3</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::VersionModel</name>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>保存日時</translation>
    </message>
    <message>
        <source>By</source>
        <translation>保存元</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>変更内容</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>メモ</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::DifferenceModel</name>
    <message>
        <source>Task</source>
        <translation>タスク</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>計画</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>違い</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::StretchModel</name>
    <message>
        <source>From</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>To</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::ComparedWeeks</name>
    <message>
        <source>Comparing…</source>
        <translation>比較中…</translation>
    </message>
    <message>
        <source>Nothing differs on the screen in this week.</source>
        <translation>この週の画面に違いはありません。</translation>
    </message>
    <message numerus="yes">
        <source>%n stretches of this week differ on the screen:</source>
        <translation>
            <numerusform>この週の画面で %n 区間が異なります：</numerusform>
        </translation>
    </message>
    <message>
        <source>What differs on the screen</source>
        <translation>画面の違い</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::ComparisonPanel</name>
    <message>
        <source>Comparing…</source>
        <translation>比較中…</translation>
    </message>
    <message>
        <source>Nothing is in effect.</source>
        <translation>運用中のものはありません。</translation>
    </message>
    <message>
        <source>%1 → %2: %3</source>
        <comment>two states, and how much differs</comment>
        <translation>%1 → %2：%3</translation>
    </message>
    <message>
        <source>In words</source>
        <translation>言葉で</translation>
    </message>
    <message>
        <source>On the screen</source>
        <translation>画面上</translation>
    </message>
    <message>
        <source>What differs</source>
        <translation>違い</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::VersionNameDialog</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>メモ</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::VersionsWindow</name>
    <message>
        <source>Versions</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>読み取り中…</translation>
    </message>
    <message>
        <source>No versions are kept yet.</source>
        <translation>バージョンはまだありません。</translation>
    </message>
    <message>
        <source>Name and note…</source>
        <translation>名前とメモ…</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>復元…</translation>
    </message>
    <message>
        <source>Write to a file…</source>
        <translation>ファイルに書き出す…</translation>
    </message>
    <message>
        <source>Compared with</source>
        <translation>比較相手</translation>
    </message>
    <message>
        <source>The other way round</source>
        <translation>逆向きに比較</translation>
    </message>
    <message>
        <source>Write the version to a file</source>
        <translation>バージョンをファイルに書き出す</translation>
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
        <source>Save, then restore</source>
        <translation>保存してから復元</translation>
    </message>
    <message>
        <source>Restore without saving</source>
        <translation>保存せずに復元</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>復元</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProgramPreview</name>
    <message>
        <source>%1 – Preview</source>
        <translation>%1 – プレビュー</translation>
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
        <translation>ファイルが見つかりません。</translation>
    </message>
    <message>
        <source>Sound has no picture.</source>
        <translation>音声に映像はありません。</translation>
    </message>
    <message>
        <source>A live source is seen on the screens alone.</source>
        <translation>ライブは画面でのみ見られます。</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>読み込み中…</translation>
    </message>
    <message>
        <source>It has no picture that can be read.</source>
        <translation>読み込める映像がありません。</translation>
    </message>
</context>
<context>
    <name>KeyTable</name>
    <message>
        <source>Main window</source>
        <translation>メインウィンドウ</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>エディター</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>週</translation>
    </message>
    <message>
        <source>Go to the next task</source>
        <translation>次のタスクへ移動</translation>
    </message>
    <message>
        <source>Go to the task before</source>
        <translation>前のタスクへ移動</translation>
    </message>
    <message>
        <source>Fold or open the task</source>
        <translation>タスクを折りたたむ・開く</translation>
    </message>
    <message>
        <source>Add a task</source>
        <translation>タスクを追加</translation>
    </message>
    <message>
        <source>Copy the task</source>
        <translation>タスクをコピー</translation>
    </message>
    <message>
        <source>Delete the task</source>
        <translation>タスクを削除</translation>
    </message>
    <message>
        <source>Add a plan</source>
        <translation>計画を追加</translation>
    </message>
    <message>
        <source>Copy the plan</source>
        <translation>計画をコピー</translation>
    </message>
    <message>
        <source>Delete the plan</source>
        <translation>計画を削除</translation>
    </message>
    <message>
        <source>Choose the programs of the plan</source>
        <translation>計画の番組を選ぶ</translation>
    </message>
    <message>
        <source>Save and close</source>
        <translation>保存して閉じる</translation>
    </message>
    <message>
        <source>Save and start</source>
        <translation>保存して開始</translation>
    </message>
    <message>
        <source>Close without saving</source>
        <translation>保存せずに閉じる</translation>
    </message>
    <message>
        <source>Select another plan</source>
        <translation>別の計画を選択</translation>
    </message>
    <message>
        <source>Open the selected plan in the editor</source>
        <translation>選択した計画をエディターで開く</translation>
    </message>
    <message>
        <source>Say what is on screen then, and why</source>
        <translation>そのとき画面に出るものと理由を表示</translation>
    </message>
    <message>
        <source>Move the plan by a quarter of an hour</source>
        <translation>計画を15分移動</translation>
    </message>
    <message>
        <source>Move the plan to another day</source>
        <translation>計画を別の日に移動</translation>
    </message>
    <message>
        <source>Move the end of the plan</source>
        <translation>計画の終了を移動</translation>
    </message>
    <message>
        <source>Move the begin of the plan</source>
        <translation>計画の開始を移動</translation>
    </message>
    <message>
        <source>Give up dragging</source>
        <translation>ドラッグを中止</translation>
    </message>
    <message>
        <source>Copy the plans of the day</source>
        <translation>その日の計画をコピー</translation>
    </message>
    <message>
        <source>Show another week</source>
        <translation>別の週を表示</translation>
    </message>
    <message>
        <source>Show the present moment</source>
        <translation>現在を表示</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>拡大・縮小</translation>
    </message>
    <message>
        <source>Fit the whole day</source>
        <translation>1日全体に合わせる</translation>
    </message>
    <message>
        <source>Programs of a plan</source>
        <translation>1 つの計画の番組</translation>
    </message>
    <message>
        <source>Go to another program</source>
        <translation>別の番組へ移る</translation>
    </message>
    <message>
        <source>Tick the program, or untick it</source>
        <translation>番組のチェックを付ける・外す</translation>
    </message>
    <message>
        <source>Tick all programs, or none</source>
        <translation>すべての番組のチェックを付ける・外す</translation>
    </message>
    <message>
        <source>Add the ticked programs, or this one</source>
        <translation>チェックした番組を追加（なければこの番組）</translation>
    </message>
    <message>
        <source>Take the ticked programs out, or this one</source>
        <translation>チェックした番組を削除（なければこの番組）</translation>
    </message>
    <message>
        <source>Move the program up or down</source>
        <translation>番組を上または下へ移動</translation>
    </message>
    <message>
        <source>Change how often the program is played</source>
        <translation>番組の再生回数を変更</translation>
    </message>
    <message>
        <source>Take over the list of programs</source>
        <translation>番組のリストを確定</translation>
    </message>
</context>
<context>
    <name>trel::desktop::KeySheet</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>trel::desktop::GuideWindow</name>
    <message>
        <source>The guide</source>
        <translation>ガイド</translation>
    </message>
</context>
<context>
    <name>trel::desktop::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>ガイド(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>キーボードショートカット(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;About this program</source>
        <translation>このアプリについて(&amp;A)</translation>
    </message>
    <message>
        <source>Schedules media programs on screens, edits the schedule and follows it.</source>
        <translation>画面に出すメディアのスケジュールを作成・編集し、その進行を追います。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirLight</name>
    <message>
        <source>On air</source>
        <translation>放送中</translation>
    </message>
    <message>
        <source>Off air</source>
        <translation>放送停止中</translation>
    </message>
    <message>
        <source>A schedule is in effect.</source>
        <translation>スケジュールが有効です。</translation>
    </message>
    <message>
        <source>No schedule is in effect.</source>
        <translation>有効なスケジュールはありません。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirState</name>
    <message>
        <source>Time of day: %1</source>
        <translation>現在時刻：%1</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>未保存</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>保存：%1</translation>
    </message>
    <message>
        <source>Started: %1</source>
        <translation>運用開始：%1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirBar</name>
    <message>
        <source>Toolbar</source>
        <translation>ツールバー</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>取り込む</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search the catalog</source>
        <translation>番組一覧を検索</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ComingPrograms</name>
    <message>
        <source>Programs to come</source>
        <translation>この後の番組</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::StartAction</name>
    <message>
        <source>Start</source>
        <translation>運用開始</translation>
    </message>
    <message>
        <source>Put the schedule on air</source>
        <translation>スケジュールを放送に出す</translation>
    </message>
    <message>
        <source>Put the schedule on air? What is not saved is saved first.</source>
        <translation>スケジュールを放送に出しますか？未保存の内容は先に保存されます。</translation>
    </message>
    <message>
        <source>Open problems: %1</source>
        <translation>未解決の問題：%1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Tasks %1 and %2 are valid on the same days. The schedule can be put on air once they are not.</source>
        <translation>タスク%1と%2が同じ日に有効です。重ならないようにすると、スケジュールを放送に出せます。</translation>
    </message>
    <message>
        <source>The schedule is on air.</source>
        <translation>スケジュールを放送中です。</translation>
    </message>
    <message>
        <source>The schedule is on air. Open problems: %1</source>
        <translation>スケジュールを放送中です。未解決の問題：%1</translation>
    </message>
</context>
<context>
    <name>DroppedMedia</name>
    <message>
        <source>None of this can be imported.</source>
        <translation>取り込めるものはありません。</translation>
    </message>
    <message numerus="yes">
        <source>%n files or folders</source>
        <translation>
            <numerusform>ファイルまたはフォルダー %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n addresses</source>
        <translation>
            <numerusform>アドレス %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>files, and addresses</comment>
        <translation>%1と%2</translation>
    </message>
    <message>
        <source>Import %1</source>
        <comment>files, or addresses, or both</comment>
        <translation>取り込み: %1</translation>
    </message>
    <message numerus="yes">
        <source>Import %1; %n cannot be imported</source>
        <comment>files, or addresses, or both</comment>
        <translation>
            <numerusform>取り込み: %1 (%n 件は取り込めません)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MediaFilters</name>
    <message>
        <source>All media</source>
        <translation>すべてのメディア</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>音声</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ScreenNews</name>
    <message>
        <source>Cut in: %1</source>
        <translation>割り込み：%1</translation>
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
        <translation>今日(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Previous week</source>
        <translation>前の週(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Next week</source>
        <translation>次の週(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Choose a day…</source>
        <translation>日を選択(&amp;C)…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::DayDrag</name>
    <message>
        <source>Drag a day onto another one to copy its plans there.</source>
        <translation>日を別の日へドラッグすると、その日の計画がコピーされます。</translation>
    </message>
    <message>
        <source>Copy the plans of %1 onto %2</source>
        <comment>two days</comment>
        <translation>%1の計画を%2へコピー</translation>
    </message>
</context>
<context>
    <name>trel::desktop::place::AddressDialog</name>
    <message>
        <source>Open from a server</source>
        <translation>サーバーから開く</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Where the server asks for a password, it is read from the password file of the server's programs (~/.pgpass).</source>
        <translation>サーバーがパスワードを求める場合は、サーバーのプログラムのパスワードファイル (~/.pgpass) から読み取られます。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::players::PlayersDock</name>
    <message>
        <source>Players</source>
        <translation>プレーヤー</translation>
    </message>
    <message>
        <source>Pla&amp;yers</source>
        <translation>プレーヤー(&amp;Y)</translation>
    </message>
    <message>
        <source>No player follows this database. Start schedule-player with it where the screen is.</source>
        <translation>このデータベースに従うプレーヤーはありません。画面側のコンピューターで、これを指定して schedule-player を起動してください。</translation>
    </message>
    <message>
        <source>Show what the players show</source>
        <translation>プレーヤーの表示内容を示します</translation>
    </message>
</context>
<context>
    <name>trel::desktop::players::PlayerModel</name>
    <message>
        <source>Screen</source>
        <translation>スクリーン</translation>
    </message>
    <message>
        <source>Shows</source>
        <translation>表示内容</translation>
    </message>
    <message>
        <source>Heard</source>
        <comment>when a player told of itself</comment>
        <translation>応答</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>障害</translation>
    </message>
</context>
<context>
    <name>PlayerWords</name>
    <message>
        <source>Stands still in: %1</source>
        <translation>停止中：%1</translation>
    </message>
    <message>
        <source>Has no picture for: %1</source>
        <translation>画像なし：%1</translation>
    </message>
    <message>
        <source>Not since %1</source>
        <comment>a moment</comment>
        <translation>%1から応答なし</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no faults</comment>
        <translation>なし</translation>
    </message>
    <message>
        <source>%1, the last at %2: %3</source>
        <comment>a number, a moment, a sentence</comment>
        <translation>%1、最後は%2：%3</translation>
    </message>
    <message>
        <source>Players: %1</source>
        <translation>プレーヤー：%1</translation>
    </message>
    <message>
        <source>Players: %1, silent: %2</source>
        <translation>プレーヤー：%1、応答なし：%2</translation>
    </message>
</context>
<context>
    <name>MergeWords</name>
    <message numerus="yes">
        <source>%n tasks were changed at both desks: if you merge, you choose for each of them which one stays. Everything else of both is kept.</source>
        <translation>
            <numerusform>%n 件のタスクが両方の席で変更されました。統合すると、それぞれどちらを残すかを選びます。両方のそれ以外の変更はすべて残ります。</numerusform>
        </translation>
    </message>
    <message>
        <source>No task was changed at both desks: what both have changed can be saved together.</source>
        <translation>両方の席で変更されたタスクはありません。両方の変更をまとめて保存できます。</translation>
    </message>
    <message>
        <source>Merge…</source>
        <translation>統合…</translation>
    </message>
    <message>
        <source>Merged, your new task %1 becomes task %2: another task %1 was added there.</source>
        <translation>統合すると、新しいタスク %1 はタスク %2 になります。相手側で別のタスク %1 が追加されたためです。</translation>
    </message>
    <message>
        <source>Merge and save</source>
        <translation>統合して保存</translation>
    </message>
    <message>
        <source>Merge and go on editing</source>
        <translation>統合して編集を続ける</translation>
    </message>
    <message>
        <source>Merged, tasks %1 and %2 would be valid on the same days. That cannot be saved: they stay in the editor until you have changed their dates.</source>
        <translation>統合すると、タスク %1 とタスク %2 の有効期間が同じ日に重なります。このままでは保存できません。日付を変更するまで、編集画面に残ります。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::merge::ConflictsDialog</name>
    <message>
        <source>These tasks were changed here and at the other desk. Choose for each of them which one stays.</source>
        <translation>これらのタスクは、ここと相手側の両方で変更されました。それぞれどちらを残すかを選んでください。</translation>
    </message>
    <message>
        <source>Mine, as it is edited here</source>
        <translation>自分のもの（ここで編集した内容）</translation>
    </message>
    <message>
        <source>Theirs, as it was saved there</source>
        <translation>相手のもの（相手側で保存した内容）</translation>
    </message>
    <message>
        <source>Tasks that were changed at both desks</source>
        <translation>両方の席で変更されたタスク</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>タスク</translation>
    </message>
    <message>
        <source>What stays</source>
        <translation>残すもの</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>not chosen yet</source>
        <translation>未選択</translation>
    </message>
    <message>
        <source>mine</source>
        <translation>自分のもの</translation>
    </message>
    <message>
        <source>theirs</source>
        <translation>相手のもの</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are still to be chosen.</source>
        <translation>
            <numerusform>あと %n 件のタスクを選んでください。</numerusform>
        </translation>
    </message>
    <message>
        <source>Everything else of both is kept.</source>
        <translation>両方のそれ以外の変更はすべて残ります。</translation>
    </message>
</context>
<context>
    <name>trel::desktop::DeskNotice</name>
    <message>
        <source>Also edited at %1 since %2</source>
        <comment>a desk, and a time</comment>
        <translation>%1 でも編集中（%2 から）</translation>
    </message>
    <message numerus="yes">
        <source>Also edited at %n other desks</source>
        <translation>
            <numerusform>ほかの %n 席でも編集中</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: since %2, last changed at %3, tasks %4</source>
        <comment>a desk, times, and numbers</comment>
        <translation>%1：%2 から、最終変更 %3、タスク %4</translation>
    </message>
</context>
<context>
    <name>FileWords</name>
    <message numerus="yes">
        <source>%n programs in this file are not in the catalog. Their entries will be invalid: %1</source>
        <translation>
            <numerusform>このファイルの %n 件の番組が番組一覧にありません。その項目は無効になります：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n programs in the catalog may have another content than in this file: %1</source>
        <translation>
            <numerusform>番組一覧の %n 件の番組は、このファイルの番組と内容が異なる可能性があります：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n programs have another name in the catalog than in this file: %1</source>
        <translation>
            <numerusform>番組一覧の %n 件の番組は、このファイルと名前が異なります：%1</numerusform>
        </translation>
    </message>
</context>
</TS>
