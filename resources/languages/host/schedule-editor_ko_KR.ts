<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>Demonstration</name>
    <message>
        <source>The demonstration could not be read: %1: %2</source>
        <translation>데모를 읽을 수 없습니다: %1: %2</translation>
    </message>
    <message>
        <source>The demonstration media could not be copied to the database folder.</source>
        <translation>데모 미디어를 데이터베이스가 있는 폴더에 복사할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EditorMenus</name>
    <message>
        <source>Hi&amp;gh contrast</source>
        <translation>고대비(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;As-run of a day…</source>
        <translation>하루 송출 기록(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Schedule</source>
        <translation>일정(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Edit schedule</source>
        <translation>일정 편집(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Open database…</source>
        <translation>데이터베이스 열기(&amp;O)…</translation>
    </message>
    <message>
        <source>Open &amp;from a server…</source>
        <translation>서버에서 열기(&amp;F)…</translation>
    </message>
    <message>
        <source>&amp;Read schedule from a file…</source>
        <translation>파일에서 일정 불러오기(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Write schedule to a file…</source>
        <translation>일정을 파일로 저장(&amp;W)…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>보기(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Dark theme</source>
        <translation>어두운 테마(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Light theme</source>
        <translation>밝은 테마(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>종료(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Programs</source>
        <translation>프로그램(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Import files…</source>
        <translation>파일 가져오기(&amp;I)…</translation>
    </message>
    <message>
        <source>Import &amp;folder…</source>
        <translation>폴더 가져오기(&amp;F)…</translation>
    </message>
    <message>
        <source>&amp;Remove from catalog</source>
        <translation>목록에서 제거(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>언어(&amp;L)</translation>
    </message>
    <message>
        <source>S&amp;kip to the next play</source>
        <translation>다음 재생으로 건너뛰기(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Cancel what is cut in</source>
        <translation>삽입 취소(&amp;C)</translation>
    </message>
    <message>
        <source>S&amp;top the schedule…</source>
        <translation>일정 적용 중지(&amp;T)…</translation>
    </message>
    <message>
        <source>&amp;Bring back what was canceled</source>
        <translation>취소한 변경 내용 되살리기(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Where used…</source>
        <translation>사용하는 곳(&amp;W)…</translation>
    </message>
    <message>
        <source>&amp;Versions…</source>
        <translation>버전(&amp;V)…</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>미리 보기(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;New database…</source>
        <translation>새 데이터베이스(&amp;N)…</translation>
    </message>
    <message>
        <source>O&amp;pen recent</source>
        <translation>최근 데이터베이스(&amp;P)</translation>
    </message>
    <message>
        <source>St&amp;art the schedule…</source>
        <translation>일정 적용 시작(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>검색(&amp;S)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EditorWindow</name>
    <message>
        <source>Import: %1 percent</source>
        <translation>가져오기: %1퍼센트</translation>
    </message>
    <message>
        <source>Now and next</source>
        <translation>지금과 다음</translation>
    </message>
    <message>
        <source>Clock changes</source>
        <translation>서머타임 전환</translation>
    </message>
    <message>
        <source>&amp;Now and next</source>
        <translation>지금과 다음(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Clock changes</source>
        <translation>서머타임 전환(&amp;C)</translation>
    </message>
    <message>
        <source>Schedule editor</source>
        <translation>일정 편집기</translation>
    </message>
    <message>
        <source>%1 – Schedule editor</source>
        <translation>%1 – 일정 편집기</translation>
    </message>
    <message>
        <source>Open database</source>
        <translation>데이터베이스 열기</translation>
    </message>
    <message>
        <source>Schedules (*.db *.sqlite);;All files (*)</source>
        <translation>일정 (*.db *.sqlite);;모든 파일 (*)</translation>
    </message>
    <message>
        <source>Write the schedule to a file</source>
        <translation>일정을 파일로 저장</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>일정 (*.json)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>%1에 저장했습니다.</translation>
    </message>
    <message>
        <source>Read a schedule from a file</source>
        <translation>파일에서 일정 불러오기</translation>
    </message>
    <message numerus="yes">
        <source>Replace the whole schedule with the %n tasks in this file?</source>
        <translation>
            <numerusform>전체 일정을 이 파일의 작업 %n개로 바꾸시겠습니까?</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>바꾸기</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Changes in the editor that are not saved go with it (tasks %1). Undo brings them back.</source>
        <translation>편집기에서 저장되지 않은 변경 내용(작업 %1)도 함께 바뀝니다. “실행 취소”로 되살릴 수 있습니다.</translation>
    </message>
    <message>
        <source>Save, then replace</source>
        <translation>저장 후 바꾸기</translation>
    </message>
    <message>
        <source>Replace without saving</source>
        <translation>저장하지 않고 바꾸기</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>저장 안 함</translation>
    </message>
    <message>
        <source>The schedule has changes that are not saved. As a draft they are offered when this database is opened again.

Close this question to keep editing.</source>
        <translation>일정에 저장되지 않은 변경 내용이 있습니다. 초안으로 보관하면 이 데이터베이스를 다시 열 때 처리 방법을 묻습니다.

계속 편집하려면 이 질문을 닫으세요.</translation>
    </message>
    <message>
        <source>Keep as draft</source>
        <translation>초안으로 보관</translation>
    </message>
    <message>
        <source>Catalog</source>
        <translation>프로그램 목록</translation>
    </message>
    <message>
        <source>Catal&amp;og</source>
        <translation>프로그램 목록(&amp;O)</translation>
    </message>
    <message>
        <source>The change is in the editor now, where it can be saved.</source>
        <translation>변경 내용은 이제 편집기에 있으며 거기서 저장할 수 있습니다.</translation>
    </message>
    <message>
        <source>New database</source>
        <translation>새 데이터베이스</translation>
    </message>
    <message>
        <source>The file %1 exists already. It is not written over.</source>
        <translation>파일 %1이(가) 이미 있습니다. 덮어쓰지 않습니다.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::CataloguePanel</name>
    <message>
        <source>No programs yet. Drop media files or folders here, or choose “Import files”.</source>
        <translation>아직 프로그램이 없습니다. 미디어 파일이나 폴더를 여기에 끌어다 놓거나 ‘파일 가져오기’를 선택하세요.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>No program fits what is searched for.</source>
        <translation>찾는 조건에 맞는 프로그램이 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n programs from the catalog? The files are not deleted.</source>
        <translation>
            <numerusform>목록에서 프로그램 %n개를 제거하시겠습니까? 파일은 삭제되지 않습니다.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::CatalogueImport</name>
    <message>
        <source>Import files</source>
        <translation>파일 가져오기</translation>
    </message>
    <message>
        <source>Import folder</source>
        <translation>폴더 가져오기</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Importing</source>
        <translation>가져오는 중</translation>
    </message>
    <message>
        <source>The import was canceled; nothing was imported.</source>
        <translation>가져오기가 취소되어 아무것도 가져오지 않았습니다.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>file and reason</comment>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more.</source>
        <translation>
            <numerusform>… 외 %n개.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some files could not be imported:</source>
        <translation>일부 파일을 가져올 수 없습니다:</translation>
    </message>
    <message numerus="yes">
        <source>Looking for files: %n found</source>
        <translation>
            <numerusform>파일을 찾는 중: %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported: %1, %2.</source>
        <translation>가져오기 완료: %1, %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n new</source>
        <translation>
            <numerusform>신규 %n개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n updated</source>
        <translation>
            <numerusform>업데이트 %n개</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HostPrompts</name>
    <message>
        <source>Question</source>
        <translation>질문</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>메시지</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>The file %1 exists already. Replace it?</source>
        <translation>파일 %1이(가) 이미 있습니다. 바꾸시겠습니까?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>바꾸기</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>ProblemWords</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>메모리가 부족합니다.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>디스크가 가득 찼습니다.</translation>
    </message>
    <message>
        <source>Your share of the disk is used up.</source>
        <translation>디스크 할당량을 모두 사용했습니다.</translation>
    </message>
    <message>
        <source>The system does not let this application write a larger file.</source>
        <translation>시스템에서 이 애플리케이션이 더 큰 파일을 쓰는 것을 허용하지 않습니다.</translation>
    </message>
    <message>
        <source>The file or its folder is read-only.</source>
        <translation>파일 또는 해당 폴더가 읽기 전용입니다.</translation>
    </message>
    <message>
        <source>It was opened for reading only.</source>
        <translation>읽기 전용으로 열려 있습니다.</translation>
    </message>
    <message>
        <source>Reading it took too long.</source>
        <translation>읽는 데 시간이 너무 오래 걸렸습니다.</translation>
    </message>
    <message numerus="yes">
        <source>A text in it is longer than %n bytes.</source>
        <translation>
            <numerusform>%n바이트보다 긴 텍스트가 들어 있습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>The database reports error %1.</source>
        <translation>데이터베이스에서 오류 %1을(를) 보고했습니다.</translation>
    </message>
    <message>
        <source>The database reports error %1. %3</source>
        <translation>데이터베이스에서 오류 %1을(를) 보고했습니다. %3</translation>
    </message>
    <message>
        <source>The database has failed its own check.</source>
        <translation>데이터베이스 자체 검사에 실패했습니다.</translation>
    </message>
    <message>
        <source>The disk reports a read or write error.</source>
        <translation>디스크에서 읽기 또는 쓰기 오류를 보고했습니다.</translation>
    </message>
    <message>
        <source>Data that must be there is missing.</source>
        <translation>필요한 데이터가 없습니다.</translation>
    </message>
    <message>
        <source>The database driver is not the one that this application was made for.</source>
        <translation>데이터베이스 드라이버가 이 애플리케이션과 맞지 않습니다.</translation>
    </message>
    <message>
        <source>The file is missing or empty, but its log %1 is still there.</source>
        <translation>파일이 없거나 비어 있지만 로그 %1이(가) 아직 남아 있습니다.</translation>
    </message>
    <message>
        <source>No file can be created there.</source>
        <translation>해당 위치에 파일을 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>Its log %1 belongs to another copy of the file. Put back the file that it belongs to, or move the log away to go on without it.</source>
        <translation>로그 %1은(는) 이 파일의 다른 사본에 속합니다. 해당 파일을 되돌려 놓거나, 로그를 다른 곳으로 옮긴 후 계속하십시오.</translation>
    </message>
    <message>
        <source>Its log has no index, and none can be created in a read-only folder. Copy both files to another folder.</source>
        <translation>로그에 인덱스가 없으며 읽기 전용 폴더에는 만들 수 없습니다. 두 파일을 다른 폴더로 복사하십시오.</translation>
    </message>
    <message>
        <source>It was removed or replaced after it was opened.</source>
        <translation>열린 후에 제거되었거나 바뀌었습니다.</translation>
    </message>
    <message numerus="yes">
        <source>The name or the path of a program is longer than %n bytes.</source>
        <translation>
            <numerusform>프로그램의 이름 또는 경로가 %n바이트보다 깁니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n numbers for programs are used up.</source>
        <translation>
            <numerusform>프로그램 번호 %n개를 모두 사용했습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Its plans do not fit together.</source>
        <translation>계획의 내용이 서로 맞지 않습니다.</translation>
    </message>
    <message>
        <source>“%1” is missing.</source>
        <translation>‘%1’이(가) 없습니다.</translation>
    </message>
    <message>
        <source>It contains “%1”, which does not belong there.</source>
        <translation>있어서는 안 되는 ‘%1’이(가) 들어 있습니다.</translation>
    </message>
    <message>
        <source>“%1” has been changed.</source>
        <translation>‘%1’이(가) 변경되었습니다.</translation>
    </message>
    <message>
        <source>It does not say which state it is in.</source>
        <translation>상태 정보가 없습니다.</translation>
    </message>
    <message>
        <source>It was created by an older version of this application. Set up the server again.</source>
        <translation>이 애플리케이션의 이전 버전에서 만들어졌습니다. 서버를 다시 설정하십시오.</translation>
    </message>
    <message>
        <source>The address contains a password. Passwords belong in a password file.</source>
        <translation>주소에 암호가 들어 있습니다. 암호는 암호 파일에 넣으십시오.</translation>
    </message>
    <message>
        <source>The address of a schedule on a server has this form: %1</source>
        <translation>서버에 있는 일정의 주소는 다음과 같은 형식입니다: %1</translation>
    </message>
    <message>
        <source>The name of the schedule in the address is missing, too long or not readable.</source>
        <translation>주소에 있는 일정의 이름이 없거나 너무 길거나 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>The connection was lost before the server answered.</source>
        <translation>서버가 응답하기 전에 연결이 끊어졌습니다.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>서버가 응답하지 않습니다.</translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n tasks.</source>
        <translation>
            <numerusform>작업이 %n개를 초과합니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n plans.</source>
        <translation>
            <numerusform>계획이 %n개를 초과합니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n entries.</source>
        <translation>
            <numerusform>항목이 %n개를 초과합니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n numbers in the lists of plans.</source>
        <translation>
            <numerusform>계획 목록의 숫자가 %n개를 초과합니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n programs.</source>
        <translation>
            <numerusform>프로그램이 %n개를 초과합니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A text of task %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>작업 %1의 텍스트가 %n바이트보다 깁니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>It is larger than %n bytes.</source>
        <translation>
            <numerusform>%n바이트보다 큽니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n values.</source>
        <translation>
            <numerusform>값이 %n개를 초과합니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A name in line %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>%1행의 이름이 %n바이트보다 깁니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A text in line %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>%1행의 텍스트가 %n바이트보다 깁니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>It is not valid JSON (line %1, column %2).</source>
        <translation>올바른 JSON이 아닙니다(%1행 %2열).</translation>
    </message>
    <message>
        <source>“%1” is not a whole number.</source>
        <translation>‘%1’은(는) 정수가 아닙니다.</translation>
    </message>
    <message>
        <source>“%1” is outside the permitted range.</source>
        <translation>‘%1’이(가) 허용 범위를 벗어났습니다.</translation>
    </message>
    <message>
        <source>Wrong kind of value: expected %1, found %2.</source>
        <translation>값의 종류가 올바르지 않습니다. 필요: %1, 실제: %2.</translation>
    </message>
    <message>
        <source>Wrong kind of value: expected %1 or a number, found %2.</source>
        <translation>값의 종류가 올바르지 않습니다. 필요: %1 또는 숫자, 실제: %2.</translation>
    </message>
    <message>
        <source>“%2” is not known here. Expected: %1 or a number.</source>
        <translation>여기서는 ‘%2’을(를) 인식할 수 없습니다. 필요: %1 또는 숫자.</translation>
    </message>
    <message>
        <source>The text is not valid Base64.</source>
        <translation>텍스트가 올바른 Base64가 아닙니다.</translation>
    </message>
    <message numerus="yes">
        <source>The text is longer than %n bytes.</source>
        <translation>
            <numerusform>텍스트가 %n바이트보다 깁니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>The key %1 is not the ID of the task, which is %2.</source>
        <translation>키 %1이(가) 작업의 ID(%2)와 일치하지 않습니다.</translation>
    </message>
    <message>
        <source>Another task already has the ID %1.</source>
        <translation>다른 작업에서 이미 ID %1을(를) 사용하고 있습니다.</translation>
    </message>
    <message>
        <source>The format is “%1” instead of “%2”.</source>
        <translation>형식이 ‘%2’이(가) 아니라 ‘%1’입니다.</translation>
    </message>
    <message>
        <source>Version %1 is newer than version %2, the newest that this application reads.</source>
        <translation>버전 %1은(는) 이 애플리케이션이 읽을 수 있는 최신 버전 %2보다 새 버전입니다.</translation>
    </message>
    <message>
        <source>There is no version %1.</source>
        <translation>버전 %1은(는) 없습니다.</translation>
    </message>
    <message>
        <source>It is JSON of another kind, not a schedule.</source>
        <translation>다른 종류의 JSON이며 일정이 아닙니다.</translation>
    </message>
    <message>
        <source>It is not a schedule: “format” is missing.</source>
        <translation>일정이 아닙니다. ‘format’이 없습니다.</translation>
    </message>
    <message>
        <source>“%1” is not known here.</source>
        <translation>여기서는 ‘%1’을(를) 인식할 수 없습니다.</translation>
    </message>
    <message>
        <source>“%1” occurs twice here.</source>
        <translation>여기에 ‘%1’이(가) 두 번 나옵니다.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>폴더입니다.</translation>
    </message>
    <message>
        <source>It is a pipe, not a file.</source>
        <translation>파일이 아니라 파이프입니다.</translation>
    </message>
    <message>
        <source>It is a socket, not a file.</source>
        <translation>파일이 아니라 소켓입니다.</translation>
    </message>
    <message>
        <source>It is a device, not a file.</source>
        <translation>파일이 아니라 장치입니다.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>파일이 아닙니다.</translation>
    </message>
    <message>
        <source>Nothing comes through the pipe.</source>
        <translation>파이프로 들어오는 데이터가 없습니다.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>파일이 없습니다.</translation>
    </message>
    <message>
        <source>You do not have permission to read it.</source>
        <translation>읽을 권한이 없습니다.</translation>
    </message>
    <message>
        <source>It cannot be opened. %1</source>
        <translation>열 수 없습니다. %1</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>파일이 비어 있습니다.</translation>
    </message>
    <message>
        <source>Its name is not in UTF-8. Rename the file to import it.</source>
        <translation>이름이 UTF-8이 아닙니다. 이름을 바꾼 후 가져오십시오.</translation>
    </message>
    <message>
        <source>Addresses of this kind cannot be played.</source>
        <translation>이 종류의 주소는 재생할 수 없습니다.</translation>
    </message>
    <message>
        <source>It is a file on another computer. Copy it to this computer first.</source>
        <translation>다른 컴퓨터에 있는 파일입니다. 먼저 이 컴퓨터로 복사하십시오.</translation>
    </message>
    <message>
        <source>It is not a media file, or it is damaged.</source>
        <translation>미디어 파일이 아니거나 손상되었습니다.</translation>
    </message>
    <message>
        <source>Files of this format cannot be imported.</source>
        <translation>이 형식의 파일은 가져올 수 없습니다.</translation>
    </message>
    <message>
        <source>Its content cannot be read.</source>
        <translation>내용을 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>The image in it cannot be read.</source>
        <translation>이미지를 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>It contains neither picture nor sound.</source>
        <translation>영상도 소리도 없습니다.</translation>
    </message>
    <message>
        <source>Its length cannot be determined.</source>
        <translation>길이를 확인할 수 없습니다.</translation>
    </message>
    <message>
        <source>It could not be read in time.</source>
        <translation>제시간에 읽지 못했습니다.</translation>
    </message>
    <message>
        <source>The media reader crashed while reading it.</source>
        <translation>읽는 중에 미디어 리더가 비정상 종료되었습니다.</translation>
    </message>
    <message>
        <source>The media reader gave no valid answer about it.</source>
        <translation>미디어 리더가 올바르게 응답하지 않았습니다.</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader is missing: %1</source>
        <translation>미디어를 읽을 수 없습니다. 미디어 리더가 없습니다: %1</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 cannot be started. %2</source>
        <translation>미디어를 읽을 수 없습니다. 미디어 리더 %1을(를) 실행할 수 없습니다. %2</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 does not answer.</source>
        <translation>미디어를 읽을 수 없습니다. 미디어 리더 %1이(가) 응답하지 않습니다.</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 exits immediately.</source>
        <translation>미디어를 읽을 수 없습니다. 미디어 리더 %1이(가) 즉시 종료됩니다.</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 is of another version.</source>
        <translation>미디어를 읽을 수 없습니다. 미디어 리더 %1의 버전이 다릅니다.</translation>
    </message>
    <message>
        <source>Version %1 is damaged.</source>
        <translation>버전 %1이(가) 손상되었습니다.</translation>
    </message>
    <message numerus="yes">
        <source>The name or the note of a version is longer than %n characters.</source>
        <translation>
            <numerusform>버전의 이름 또는 메모가 %n자를 초과합니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>The name or the note of a version contains a character that is not visible.</source>
        <translation>버전의 이름 또는 메모에 보이지 않는 문자가 있습니다.</translation>
    </message>
    <message>
        <source>No schedule file is open, so nothing can be saved.</source>
        <translation>열려 있는 일정 파일이 없어 저장할 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 cannot be opened. Its folder does not exist.</source>
        <translation>%1을(를) 열 수 없습니다. 해당 폴더가 없습니다.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1이(가) 없습니다.</translation>
    </message>
    <message>
        <source>%1 is not a schedule database.</source>
        <translation>%1은(는) 일정 데이터베이스가 아닙니다.</translation>
    </message>
    <message>
        <source>%1 is a database of another application.</source>
        <translation>%1은(는) 다른 애플리케이션의 데이터베이스입니다.</translation>
    </message>
    <message>
        <source>%1 was written by a newer version of this application.</source>
        <translation>%1은(는) 이 애플리케이션의 최신 버전에서 작성되었습니다.</translation>
    </message>
    <message>
        <source>%1 is in use by another application. Try again when that application is closed.</source>
        <translation>다른 애플리케이션에서 %1을(를) 사용하고 있습니다. 해당 애플리케이션을 닫은 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>%1에 쓸 수 없습니다. %2</translation>
    </message>
    <message>
        <source>%1 is damaged. %2</source>
        <translation>%1이(가) 손상되었습니다. %2</translation>
    </message>
    <message>
        <source>%1 has been saved by another application in the meantime. Saving now would overwrite those changes.</source>
        <translation>그동안 다른 애플리케이션에서 %1을(를) 저장했습니다. 지금 저장하면 해당 변경 내용을 덮어씁니다.</translation>
    </message>
    <message>
        <source>%1 has no room for more programs. %2</source>
        <translation>%1에 프로그램을 더 추가할 수 없습니다. %2</translation>
    </message>
    <message>
        <source>%1 could not be read or written. %2</source>
        <translation>%1을(를) 읽거나 쓸 수 없습니다. %2</translation>
    </message>
    <message>
        <source>%1 is not a schedule database as this application creates it. %2</source>
        <translation>%1은(는) 이 애플리케이션이 만드는 일정 데이터베이스와 다릅니다. %2</translation>
    </message>
    <message>
        <source>%1 exceeds what a schedule can hold. %2</source>
        <translation>%1이(가) 일정에 담을 수 있는 범위를 초과합니다. %2</translation>
    </message>
    <message>
        <source>%1 may not have been written. %2 The change is not visible in the file now, but may be there after a restart of the computer. Write the schedule to another disk, and check the current one before you go on.</source>
        <translation>%1에 쓰이지 않았을 수 있습니다. %2 지금은 파일에서 변경 내용이 보이지 않지만 컴퓨터를 다시 시작한 후 나타날 수 있습니다. 일정을 다른 디스크에 쓰고, 계속하기 전에 현재 디스크를 확인하십시오.</translation>
    </message>
    <message>
        <source>It is not certain whether %1 has been written. %2 Once the server can be reached again, see whether the change is there before you go on.</source>
        <translation>%1에 쓰였는지 확실하지 않습니다. %2 서버에 다시 연결할 수 있게 되면 변경 내용이 있는지 확인한 후 계속하십시오.</translation>
    </message>
    <message>
        <source>%1 does not exist. A schedule on a server is set up with “schedulectl server-setup”.</source>
        <translation>%1이(가) 없습니다. 서버의 일정은 “schedulectl server-setup”으로 설정합니다.</translation>
    </message>
    <message>
        <source>You do not have permission.</source>
        <translation>권한이 없습니다.</translation>
    </message>
    <message>
        <source>The file or a folder of its path does not exist.</source>
        <translation>파일 또는 경로의 폴더가 없습니다.</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>디스크가 읽기 전용입니다.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>이름이 너무 깁니다.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>열려 있는 파일이 너무 많습니다.</translation>
    </message>
    <message>
        <source>The file is in use.</source>
        <translation>파일이 사용 중입니다.</translation>
    </message>
    <message>
        <source>The system reports error %1.</source>
        <translation>시스템에서 오류 %1을(를) 보고했습니다.</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>참 또는 거짓</translation>
    </message>
    <message>
        <source>number</source>
        <translation>숫자</translation>
    </message>
    <message>
        <source>text</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>list</source>
        <translation>목록</translation>
    </message>
    <message>
        <source>object</source>
        <translation>개체</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>빈 값</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>정수</translation>
    </message>
    <message>
        <source>whole number as text</source>
        <translation>텍스트 형식의 정수</translation>
    </message>
    <message>
        <source>program number that occurs once</source>
        <translation>한 번만 쓰인 프로그램 번호</translation>
    </message>
    <message>
        <source>another number</source>
        <translation>다른 숫자</translation>
    </message>
    <message>
        <source>SHA-256 hash</source>
        <translation>SHA-256 해시</translation>
    </message>
    <message>
        <source>another text</source>
        <translation>다른 텍스트</translation>
    </message>
    <message>
        <source>%1 could not be read. %2</source>
        <translation>%1을(를) 읽을 수 없습니다. %2</translation>
    </message>
    <message>
        <source>Line %1, %2: %3</source>
        <translation>%1행, %2: %3</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProgramTableModel</name>
    <message>
        <source>File not found: %1</source>
        <translation>파일이 없습니다: %1</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>번호</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>프로그램</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>길이</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
</context>
<context>
    <name>trel::desktop::SaveRescue</name>
    <message>
        <source>The schedule was not saved. %1

What do you want to do with your changes?</source>
        <translation>일정을 저장하지 못했습니다. %1

변경 내용을 어떻게 하시겠습니까?</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>Write to a file</source>
        <translation>파일로 저장</translation>
    </message>
    <message>
        <source>Write the schedule to a file</source>
        <translation>일정을 파일로 저장</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>일정 (*.json)</translation>
    </message>
    <message>
        <source>Go on editing</source>
        <translation>계속 편집</translation>
    </message>
    <message>
        <source>While you were editing, %1 was saved by another program. Your changes are not saved.</source>
        <translation>편집하는 동안 다른 앱이 %1을(를) 저장했습니다. 사용자의 변경 내용은 저장되지 않았습니다.</translation>
    </message>
    <message>
        <source>If you keep yours, what was saved there stays among the versions. If you take theirs, yours can be brought back until the next save.</source>
        <translation>내 변경을 유지하면 다른 쪽에서 저장한 내용은 버전에 남습니다. 상대 쪽을 받아들이면 내 변경은 다음에 저장할 때까지 되살릴 수 있습니다.</translation>
    </message>
    <message>
        <source>What was changed there:</source>
        <translation>다른 쪽에서 변경한 내용:</translation>
    </message>
    <message>
        <source>Nothing that you would see.</source>
        <translation>눈에 보이는 변경은 없습니다.</translation>
    </message>
    <message>
        <source>As it was saved there</source>
        <translation>다른 쪽에서 저장한 상태</translation>
    </message>
    <message>
        <source>With your changes</source>
        <translation>내 변경을 적용한 상태</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>내 변경 유지</translation>
    </message>
    <message>
        <source>Take theirs</source>
        <translation>상대 변경 적용</translation>
    </message>
    <message>
        <source>Write mine to a file</source>
        <translation>내 변경을 파일로 저장</translation>
    </message>
    <message>
        <source>While you were editing, %1 was saved by %2, on %3. Your changes are not saved.</source>
        <comment>the database, a program, and the time</comment>
        <translation>편집하는 동안 %2이(가) %1을(를) 저장했습니다(%3). 사용자의 변경 내용은 저장되지 않았습니다.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ClockChangePanel</name>
    <message>
        <source>Clock changes</source>
        <translation>서머타임 전환</translation>
    </message>
    <message>
        <source>No clock change falls within the validity of any task.</source>
        <translation>작업의 유효 기간에 서머타임 전환이 없습니다.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; no plan of task %4 is affected.</source>
        <translation>%1: %2~%3은(는) 건너뜁니다. 작업 %4의 계획에는 영향이 없습니다.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; no plan of task %4 is affected.</source>
        <translation>%1: %2~%3은(는) 두 번 있습니다. 작업 %4의 계획에는 영향이 없습니다.</translation>
    </message>
</context>
<context>
    <name>ClockChangeText</name>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 does not play.</source>
        <translation>%1: %2~%3은(는) 건너뜁니다. 작업 %5의 계획 %4은(는) 재생되지 않습니다.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 starts at %6 in the middle of its list.</source>
        <translation>%1: %2~%3은(는) 건너뜁니다. 작업 %5의 계획 %4은(는) %6에 목록 중간부터 시작합니다.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 is cut off at %6.</source>
        <translation>%1: %2~%3은(는) 건너뜁니다. 작업 %5의 계획 %4은(는) %6에 끊깁니다.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 skips this part of its list.</source>
        <translation>%1: %2~%3은(는) 건너뜁니다. 작업 %5의 계획 %4은(는) 목록의 이 부분을 건너뜁니다.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 plays twice.</source>
        <translation>%1: %2~%3은(는) 두 번 있습니다. 작업 %5의 계획 %4은(는) 두 번 재생됩니다.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 starts twice at %6.</source>
        <translation>%1: %2~%3은(는) 두 번 있습니다. 작업 %5의 계획 %4은(는) %6에 두 번 시작합니다.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 ends twice at %6.</source>
        <translation>%1: %2~%3은(는) 두 번 있습니다. 작업 %5의 계획 %4은(는) %6에 두 번 끝납니다.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 repeats this part of its list.</source>
        <translation>%1: %2~%3은(는) 두 번 있습니다. 작업 %5의 계획 %4은(는) 목록의 이 부분을 반복합니다.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::PreviewDock</name>
    <message>
        <source>Preview</source>
        <translation>미리 보기</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>미리 보기(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Full-screen preview</source>
        <translation>전체 화면 미리 보기(&amp;F)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::PreviewScreen</name>
    <message>
        <source>Preview of the screen</source>
        <translation>화면 미리 보기</translation>
    </message>
</context>
<context>
    <name>trel::desktop::NowNextPanel</name>
    <message>
        <source>Now</source>
        <translation>지금</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>Cut in</source>
        <translation>삽입됨</translation>
    </message>
    <message>
        <source>Now and next</source>
        <translation>지금과 다음</translation>
    </message>
    <message>
        <source>What the screen shows</source>
        <translation>화면 상태</translation>
    </message>
    <message>
        <source>Program on screen</source>
        <translation>화면의 프로그램</translation>
    </message>
    <message>
        <source>Position in the program</source>
        <translation>프로그램 재생 위치</translation>
    </message>
    <message>
        <source>Why this is on screen</source>
        <translation>표시 이유</translation>
    </message>
    <message>
        <source>Next program</source>
        <translation>다음 프로그램</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>시작되지 않음</translation>
    </message>
    <message>
        <source>%1 played</source>
        <translation>%1 재생됨</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 남음</translation>
    </message>
    <message>
        <source>%1, until %2, %3 left</source>
        <translation>%1, %2까지, %3 남음</translation>
    </message>
    <message>
        <source>Nothing else is scheduled.</source>
        <translation>이후에는 없습니다.</translation>
    </message>
    <message>
        <source>at %1, in %2</source>
        <translation>%1, %2 후</translation>
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
        <translation>재생 중</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>검은 화면</translation>
    </message>
    <message>
        <source>Frozen</source>
        <translation>마지막 화면</translation>
    </message>
    <message>
        <source>Last frame of %1</source>
        <translation>%1의 마지막 프레임</translation>
    </message>
    <message>
        <source>Black screen</source>
        <translation>검은 화면</translation>
    </message>
    <message>
        <source>Entry %1 of %2, play %3 of %4</source>
        <translation>항목 %1/%2, 재생 %3/%4</translation>
    </message>
    <message>
        <source>Task %1, plan %2</source>
        <translation>작업 %1, 계획 %2</translation>
    </message>
    <message>
        <source>Choose Start to put the saved schedule into effect.</source>
        <translation>‘시작’을 누르면 저장된 일정이 적용됩니다.</translation>
    </message>
    <message>
        <source>No plan has started yet.</source>
        <translation>아직 시작된 계획이 없습니다.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is the first of the plans for this time.</source>
        <translation>이 시각의 계획 중 작업 %2의 계획 %1이(가) 우선합니다.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is due, but none of its programs can play.</source>
        <translation>작업 %2의 계획 %1 차례이지만 재생할 수 있는 프로그램이 없습니다.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is due, but its list is to run less than once.</source>
        <translation>작업 %2의 계획 %1 차례이지만 목록의 재생 횟수가 1회 미만입니다.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 has played its list the set number of times.</source>
        <translation>작업 %2의 계획 %1은(는) 목록을 정해진 횟수만큼 재생했습니다.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is over, and no other has begun.</source>
        <translation>작업 %2의 계획 %1이(가) 끝났고 다른 계획은 시작되지 않았습니다.</translation>
    </message>
    <message>
        <source>Cut in manually in place of plan %1 of task %2.</source>
        <translation>작업 %2의 계획 %1 대신 수동으로 삽입되었습니다.</translation>
    </message>
    <message>
        <source>What was cut in for plan %1 of task %2 has nothing left to play.</source>
        <translation>작업 %2의 계획 %1 대신 삽입된 내용은 더 재생할 것이 없습니다.</translation>
    </message>
    <message>
        <source>Cut in: %1</source>
        <translation>삽입: %1</translation>
    </message>
    <message>
        <source>Original list: %1</source>
        <translation>이전: %1</translation>
    </message>
</context>
<context>
    <name>ListText</name>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>SentenceText</name>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
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
        <translation>%1, 작업 %2. %3</translation>
    </message>
    <message>
        <source>On screen: %1, at %2</source>
        <translation>화면: %1, %2 경과</translation>
    </message>
    <message>
        <source>On screen: %1</source>
        <translation>화면: %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>day and time of day</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 to %2 is skipped: the clocks go forward.</source>
        <translation>%1~%2은(는) 건너뜁니다. 시계를 앞당깁니다.</translation>
    </message>
    <message>
        <source>%1 to %2 occurs twice: the clocks go back.</source>
        <translation>%1~%2은(는) 두 번 있습니다. 시계를 되돌립니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n more plans do not reach the screen.</source>
        <translation>
            <numerusform>다른 계획 %n개가 화면에 나오지 않습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Plan %1, above it, takes precedence.</source>
        <translation>위에 있는 계획 %1이(가) 우선합니다.</translation>
    </message>
    <message>
        <source>It conflicts with a plan above it.</source>
        <translation>위의 계획과 충돌합니다.</translation>
    </message>
    <message>
        <source>Its list is over at %1, before the plan ends.</source>
        <translation>목록은 계획이 끝나기 전인 %1에 끝납니다.</translation>
    </message>
    <message>
        <source>Plan %1, %2 to %3</source>
        <translation>계획 %1, %2~%3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>plan and its programs</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>No task is valid on this day.</source>
        <translation>이날 유효한 작업이 없습니다.</translation>
    </message>
    <message>
        <source>No task is valid</source>
        <translation>유효한 작업 없음</translation>
    </message>
    <message>
        <source>No task</source>
        <translation>작업 없음</translation>
    </message>
    <message>
        <source>Task %1</source>
        <translation>작업 %1</translation>
    </message>
    <message>
        <source>Frozen: %1</source>
        <translation>마지막 화면: %1</translation>
    </message>
    <message>
        <source>Cut in: %1</source>
        <translation>삽입: %1</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>건너뜀: 시계 앞당김</translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation>두 번: 시계 늦춤</translation>
    </message>
    <message>
        <source>nothing to show</source>
        <translation>표시할 내용 없음</translation>
    </message>
    <message>
        <source>Not on screen</source>
        <translation>화면에 나오지 않음</translation>
    </message>
    <message>
        <source>In conflict</source>
        <translation>충돌 있음</translation>
    </message>
    <message>
        <source>Programs of the week</source>
        <translation>이번 주 프로그램</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekView</name>
    <message>
        <source>Week</source>
        <translation>주</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekPanel</name>
    <message>
        <source>Today</source>
        <translation>오늘</translation>
    </message>
    <message>
        <source>Whole day</source>
        <translation>하루 전체</translation>
    </message>
    <message>
        <source>As edited</source>
        <translation>편집 중</translation>
    </message>
    <message>
        <source>In effect</source>
        <translation>적용 중</translation>
    </message>
    <message>
        <source>Previous week</source>
        <translation>이전 주</translation>
    </message>
    <message>
        <source>Next week</source>
        <translation>다음 주</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>축소</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>확대</translation>
    </message>
    <message>
        <source>Schedule shown</source>
        <translation>표시할 일정</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>이전 달</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>다음 달</translation>
    </message>
    <message>
        <source>Choose a day in a calendar</source>
        <translation>달력에서 날짜 선택</translation>
    </message>
    <message>
        <source>%1. Choose a day in a calendar</source>
        <comment>days of a week</comment>
        <translation>%1. 달력에서 날짜 선택</translation>
    </message>
</context>
<context>
    <name>ProblemText</name>
    <message>
        <source>Task %1</source>
        <translation>작업 %1</translation>
    </message>
    <message>
        <source>Task %1, row %2</source>
        <translation>작업 %1, %2행</translation>
    </message>
    <message>
        <source>The validity overlaps that of task %1 from %2 to %3.</source>
        <translation>유효 기간이 %2부터 %3까지 작업 %1의 유효 기간과 겹칩니다.</translation>
    </message>
    <message>
        <source>The validity overlaps that of task %1.</source>
        <translation>유효 기간이 작업 %1의 유효 기간과 겹칩니다.</translation>
    </message>
    <message>
        <source>The task is never valid: “%1” to “%2” is not a period.</source>
        <translation>작업이 유효해지지 않습니다. ‘%1’부터 ‘%2’까지는 기간이 아닙니다.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: none of its days falls within the validity of the task.</source>
        <translation>계획 %1은(는) 재생되지 않습니다. 작업의 유효 기간에 해당하는 요일이 없습니다.</translation>
    </message>
    <message>
        <source>Plan %1 is never on screen: earlier rows such as row %2 always come first.</source>
        <translation>계획 %1은(는) 화면에 나오지 않습니다. %2행과 같은 앞의 행이 항상 우선합니다.</translation>
    </message>
    <message>
        <source>Plan %1 is in conflict with plan %2 in row %3 from %4 on.</source>
        <translation>계획 %1이(가) %4부터 %3행의 계획 %2와(과) 충돌합니다.</translation>
    </message>
    <message>
        <source>Plan %1 is in conflict with plan %2 in row %3, but on no date.</source>
        <translation>계획 %1이(가) %3행의 계획 %2와(과) 충돌하지만 해당하는 날짜는 없습니다.</translation>
    </message>
    <message>
        <source>No picture from %1 to %2, every day.</source>
        <translation>매일 %1부터 %2까지 화면이 없습니다.</translation>
    </message>
    <message>
        <source>No picture from %1 to %2 on: %3.</source>
        <translation>%3 %1부터 %2까지 화면이 없습니다.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it would go on after midnight, until %2.</source>
        <translation>계획 %1은(는) 재생되지 않습니다. 자정을 넘어 %2까지 이어지기 때문입니다.</translation>
    </message>
    <message>
        <source>Plan %1 is cut off at midnight: it would go on until %2.</source>
        <translation>계획 %1은(는) 자정에 잘립니다. 원래는 %2까지 이어집니다.</translation>
    </message>
    <message>
        <source>Plan %1 is cut off at midnight: it would go on for more than a day.</source>
        <translation>계획 %1은(는) 자정에 잘립니다. 원래는 하루 넘게 이어집니다.</translation>
    </message>
    <message>
        <source>Invalid entries in plan %1: %2. The first is “%3”.</source>
        <translation>계획 %1의 잘못된 항목은 %2개입니다. 첫 번째는 ‘%3’입니다.</translation>
    </message>
    <message>
        <source>Missing files in plan %1: %2. The first is “%3”.</source>
        <translation>계획 %1에서 없어진 파일은 %2개입니다. 첫 번째는 ‘%3’입니다.</translation>
    </message>
    <message>
        <source>Entries without a length in plan %1: %2. The first is “%3”.</source>
        <translation>계획 %1에서 길이가 없는 항목은 %2개입니다. 첫 번째는 ‘%3’입니다.</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is cut off at the end of the day.</source>
        <translation>계획 %1에서 ‘%2’이(가) 하루가 끝날 때 잘립니다.</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is cut off at %3, when the plan ends.</source>
        <translation>계획 %1에서 ‘%2’이(가) 계획이 끝나는 %3에 잘립니다.</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is never reached: an entry before it does not end by itself.</source>
        <translation>계획 %1에서 ‘%2’은(는) 차례가 오지 않습니다. 앞의 항목이 스스로 끝나지 않기 때문입니다.</translation>
    </message>
    <message>
        <source>Plan %1 contains no programs.</source>
        <translation>계획 %1에 프로그램이 없습니다.</translation>
    </message>
    <message>
        <source>Change the dates of one of the two tasks. Until then nothing can be saved.</source>
        <translation>두 작업 중 하나의 날짜를 바꾸세요. 그때까지 저장할 수 없습니다.</translation>
    </message>
    <message>
        <source>Choose a start date, and an end date that is not before it.</source>
        <translation>시작 날짜와 그보다 앞서지 않는 종료 날짜를 선택하세요.</translation>
    </message>
    <message>
        <source>Correct the days and times of the plan.</source>
        <translation>계획의 요일과 시각을 바로잡으세요.</translation>
    </message>
    <message>
        <source>Change the days or times of one of the plans.</source>
        <translation>계획 중 하나의 요일이나 시각을 바꾸세요.</translation>
    </message>
    <message>
        <source>Restore the files, or choose other programs.</source>
        <translation>파일을 되돌리거나 다른 프로그램을 선택하세요.</translation>
    </message>
    <message>
        <source>Choose the programs of the plan anew.</source>
        <translation>계획의 프로그램을 다시 선택하세요.</translation>
    </message>
    <message>
        <source>Split the plan in two, or let it end before midnight.</source>
        <translation>계획을 둘로 나누거나 자정 전에 끝나게 하세요.</translation>
    </message>
    <message>
        <source>Let the plan end before midnight.</source>
        <translation>계획이 자정 전에 끝나게 하세요.</translation>
    </message>
    <message>
        <source>Let the plan end later, or play less.</source>
        <translation>계획이 더 늦게 끝나게 하거나 프로그램을 줄이세요.</translation>
    </message>
    <message>
        <source>Move the entry to the front, or into another plan.</source>
        <translation>그 항목을 앞으로 옮기거나 다른 계획으로 옮기세요.</translation>
    </message>
    <message>
        <source>Add a plan, or let the plan before it end with its last frame.</source>
        <translation>계획을 추가하거나 앞의 계획이 마지막 화면으로 끝나게 하세요.</translation>
    </message>
    <message>
        <source>Move the plan if that is not wanted.</source>
        <translation>원하지 않으면 계획을 옮기세요.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemModel</name>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>참고</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>위치</translation>
    </message>
    <message>
        <source>As of</source>
        <translation>시작일</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>문제</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>해결 방법</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemPanel</name>
    <message>
        <source>No problems.</source>
        <translation>문제가 없습니다.</translation>
    </message>
    <message>
        <source>Go to the row</source>
        <translation>행으로 이동</translation>
    </message>
    <message>
        <source>Split in two</source>
        <translation>둘로 나누기</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemDock</name>
    <message>
        <source>No open problems</source>
        <translation>해결할 문제 없음</translation>
    </message>
    <message numerus="yes">
        <source>%n open problems</source>
        <translation>
            <numerusform>해결할 문제 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>문제 목록</translation>
    </message>
    <message>
        <source>Pro&amp;blems</source>
        <translation>문제 목록(&amp;B)</translation>
    </message>
    <message>
        <source>Show what is wrong with the schedule</source>
        <translation>일정의 문제 보기</translation>
    </message>
</context>
<context>
    <name>PlanFaultText</name>
    <message>
        <source>Plan %1 never plays: none of its days is a day of the week.</source>
        <translation>계획 %1은(는) 재생되지 않습니다. 지정된 날 중 요일인 것이 없습니다.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, is not a time in the form %3.</source>
        <translation>계획 %1은(는) 재생되지 않습니다. 시작 ‘%2’은(는) %3 형식의 시각이 아닙니다.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its end, “%2”, is not a time in the form %3.</source>
        <translation>계획 %1은(는) 재생되지 않습니다. 끝 ‘%2’은(는) %3 형식의 시각이 아닙니다.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, and its end, “%3”, are not times in the form %4.</source>
        <translation>계획 %1은(는) 재생되지 않습니다. 시작 ‘%2’와(과) 끝 ‘%3’은(는) %4 형식의 시각이 아닙니다.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its list is to run less than once.</source>
        <translation>계획 %1은(는) 재생되지 않습니다. 목록의 재생 횟수가 1회 미만입니다.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it starts and ends at %2.</source>
        <translation>계획 %1은(는) 재생되지 않습니다. 시작과 끝이 %2(으)로 같습니다.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it ends at %3, before it starts at %2.</source>
        <translation>계획 %1은(는) 재생되지 않습니다. %2에 시작하고 그보다 앞선 %3에 끝납니다.</translation>
    </message>
</context>
<context>
    <name>ZoneError</name>
    <message>
        <source>The system knows no time zone of the name “%1”, so that the local time is not known.</source>
        <translation>시스템에 ‘%1’(이)라는 시간대가 없어 현지 시각을 알 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>trel::widgets::TitleButton</name>
    <message>
        <source>Minimize</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>최대화</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>이전 크기로 복원</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EffectActions</name>
    <message>
        <source>Stop the schedule that is in effect? The screen stays black until a schedule is started again.</source>
        <translation>적용 중인 일정을 중지할까요? 일정을 다시 시작할 때까지 검은 화면이 유지됩니다.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>중지</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>EffectWords</name>
    <message>
        <source>In effect since %1 at %2 (save %3)</source>
        <translation>%1 %2부터 적용 중(저장 %3)</translation>
    </message>
    <message>
        <source>Started by %1.</source>
        <translation>%1에서 시작했습니다.</translation>
    </message>
    <message numerus="yes">
        <source>What is saved differs in %n tasks: %1</source>
        <translation>
            <numerusform>저장된 내용과 다른 작업 %n개: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>a program</comment>
        <translation>‘%1’</translation>
    </message>
    <message>
        <source>the last frame of “%1”</source>
        <translation>‘%1’의 마지막 프레임</translation>
    </message>
    <message>
        <source>a black screen</source>
        <translation>검은 화면</translation>
    </message>
    <message>
        <source>%1 comes after %2, at %3; %4 comes back at %5.</source>
        <translation>%2 다음에 %1이(가) %3에 나오고 %5에 %4이(가) 다시 나옵니다.</translation>
    </message>
    <message>
        <source>%1 was cut off at %2; %3 comes at %4.</source>
        <translation>%1 재생이 %2에 끊겼고 %4에 %3이(가) 나옵니다.</translation>
    </message>
    <message>
        <source>%1 was cut in at %2; %3 comes back at %4.</source>
        <translation>%1이(가) %2에 삽입되었고 %4에 %3이(가) 다시 나옵니다.</translation>
    </message>
    <message>
        <source>%1 comes after %2, at %3.</source>
        <translation>%2 다음에 %1이(가) %3에 나옵니다.</translation>
    </message>
    <message>
        <source>%1 was cut off at %2.</source>
        <translation>%1 재생이 %2에 끊겼습니다.</translation>
    </message>
    <message>
        <source>%1 was cut in at %2.</source>
        <translation>%1이(가) %2에 삽입되었습니다.</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <comment>time and date</comment>
        <translation>%2 %1</translation>
    </message>
    <message>
        <source>What is in effect could not be changed. %1</source>
        <translation>적용 중인 내용을 변경하지 못했습니다. %1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::AsRunWindow</name>
    <message>
        <source>As-run</source>
        <translation>송출 기록</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>화면</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>날짜</translation>
    </message>
    <message>
        <source>Previous day</source>
        <translation>이전 날</translation>
    </message>
    <message>
        <source>Next day</source>
        <translation>다음 날</translation>
    </message>
    <message>
        <source>Only what was not as planned</source>
        <translation>예정과 다른 것만</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>읽는 중…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::AsRunModel</name>
    <message>
        <source>From</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>To</source>
        <translation>끝</translation>
    </message>
    <message>
        <source>Planned</source>
        <translation>예정</translation>
    </message>
    <message>
        <source>On screen</source>
        <translation>화면 내용</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>비고</translation>
    </message>
</context>
<context>
    <name>AsRunText</name>
    <message>
        <source>Not known</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>No record</source>
        <translation>기록 없음</translation>
    </message>
    <message>
        <source>No player</source>
        <translation>플레이어 없음</translation>
    </message>
    <message>
        <source>Stand-by picture</source>
        <translation>대기 화면</translation>
    </message>
    <message>
        <source>Last good frame of %1</source>
        <translation>%1의 마지막 정상 프레임</translation>
    </message>
    <message>
        <source>What was on before</source>
        <translation>직전 내용</translation>
    </message>
    <message>
        <source>Cut off: the schedule was stopped</source>
        <translation>중단됨: 일정이 중지됨</translation>
    </message>
    <message>
        <source>Cut off: the player was ended</source>
        <translation>중단됨: 플레이어가 종료됨</translation>
    </message>
    <message>
        <source>Cut off: the player was killed</source>
        <translation>중단됨: 플레이어가 강제 종료됨</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>Cut off: the clock was changed</source>
        <translation>중단됨: 시계가 변경됨</translation>
    </message>
    <message>
        <source>The player had been ended</source>
        <translation>플레이어가 종료되어 있었음</translation>
    </message>
    <message>
        <source>The player had been killed</source>
        <translation>플레이어가 강제 종료되어 있었음</translation>
    </message>
    <message>
        <source>The machine had stopped</source>
        <translation>장비가 멈춰 있었음</translation>
    </message>
    <message>
        <source>The player had no schedule yet</source>
        <translation>플레이어에 아직 일정이 없었음</translation>
    </message>
    <message>
        <source>The machine was asleep</source>
        <translation>장비가 절전 상태였음</translation>
    </message>
    <message>
        <source>The records could not be kept</source>
        <translation>기록을 보관할 수 없었음</translation>
    </message>
    <message>
        <source>Recorded until %1.</source>
        <translation>%1까지 기록되었습니다.</translation>
    </message>
    <message>
        <source>Only the first %1 lines of the day are shown.</source>
        <translation>이 날의 처음 %1줄만 표시됩니다.</translation>
    </message>
    <message>
        <source>No record tells why</source>
        <translation>이유를 알리는 기록 없음</translation>
    </message>
    <message>
        <source>%1 s late</source>
        <translation>%1초 늦음</translation>
    </message>
    <message>
        <source>The records cannot be read: %1</source>
        <translation>기록을 읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>No player has recorded anything for this database.</source>
        <translation>이 데이터베이스에 대한 플레이어 기록이 없습니다.</translation>
    </message>
    <message>
        <source>The records were changed, or some are missing. “schedulectl as-run --verify” names the place.</source>
        <translation>기록이 변경되었거나 일부가 없습니다. “schedulectl as-run --verify”가 위치를 알려 줍니다.</translation>
    </message>
    <message>
        <source>Not as planned, and no record tells why: %1</source>
        <translation>예정과 다르며 이유를 알리는 기록이 없는 곳: %1</translation>
    </message>
    <message>
        <source>There is no record of this day.</source>
        <translation>이날의 기록이 없습니다.</translation>
    </message>
    <message>
        <source>The screen was as planned, or a record tells why not.</source>
        <translation>화면이 예정대로였거나, 아닌 이유가 기록되어 있습니다.</translation>
    </message>
    <message>
        <source>Cut off: something was cut in</source>
        <translation>중단됨: 삽입이 있었음</translation>
    </message>
    <message>
        <source>Cut off: another schedule came</source>
        <translation>중단됨: 다른 일정</translation>
    </message>
</context>
<context>
    <name>EditWords</name>
    <message>
        <source>Back to what is saved</source>
        <translation>저장된 상태로 되돌림</translation>
    </message>
    <message>
        <source>Saved by another program: tasks %1</source>
        <translation>다른 앱이 저장함: 작업 %1</translation>
    </message>
    <message>
        <source>This takes back what another program has saved as well (tasks %1). Nothing is overwritten before you save, and what was saved there stays among the versions.</source>
        <translation>다른 앱이 저장한 내용(작업 %1)도 취소됩니다. 저장하기 전에는 아무것도 덮어쓰지 않으며, 그쪽에서 저장한 내용은 버전에 남습니다.</translation>
    </message>
    <message>
        <source>Take it back</source>
        <translation>취소하기</translation>
    </message>
    <message>
        <source>Leave it</source>
        <translation>그대로 두기</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks edited</source>
        <translation>
            <numerusform>작업 %n개 편집</numerusform>
        </translation>
    </message>
    <message>
        <source>Task %1 added</source>
        <translation>작업 %1 추가</translation>
    </message>
    <message>
        <source>Task %1 deleted</source>
        <translation>작업 %1 삭제</translation>
    </message>
    <message>
        <source>Task %1 edited</source>
        <translation>작업 %1 편집</translation>
    </message>
    <message>
        <source>Task %1: first day %2 → %3</source>
        <translation>작업 %1: 첫날 %2 → %3</translation>
    </message>
    <message>
        <source>Task %1: last day %2 → %3</source>
        <translation>작업 %1: 마지막 날 %2 → %3</translation>
    </message>
    <message>
        <source>Task %1, plan %2 added</source>
        <translation>작업 %1, 계획 %2 추가</translation>
    </message>
    <message>
        <source>Task %1, plan %2 deleted</source>
        <translation>작업 %1, 계획 %2 삭제</translation>
    </message>
    <message>
        <source>Task %1, plan %2 edited</source>
        <translation>작업 %1, 계획 %2 편집</translation>
    </message>
    <message>
        <source>Task %1, plan %2: other programs</source>
        <translation>작업 %1, 계획 %2: 프로그램 변경</translation>
    </message>
    <message>
        <source>Task %1, plan %2: ends at a set time</source>
        <translation>작업 %1, 계획 %2: 정해진 시각에 끝남</translation>
    </message>
    <message>
        <source>Task %1, plan %2: ends after a number of runs</source>
        <translation>작업 %1, 계획 %2: 횟수만큼 재생 후 끝남</translation>
    </message>
    <message>
        <source>Task %1, plan %2: start %3 → %4</source>
        <translation>작업 %1, 계획 %2: 시작 %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: end %3 → %4</source>
        <translation>작업 %1, 계획 %2: 끝 %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: days %3 → %4</source>
        <translation>작업 %1, 계획 %2: 요일 %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: runs %3 → %4</source>
        <translation>작업 %1, 계획 %2: 횟수 %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: a black screen at the end</source>
        <translation>작업 %1, 계획 %2: 끝나면 검은 화면</translation>
    </message>
    <message>
        <source>Task %1, plan %2: the last frame at the end</source>
        <translation>작업 %1, 계획 %2: 끝나면 마지막 화면</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>매일</translation>
    </message>
    <message>
        <source>Task %1, plan %2: %3 → %4</source>
        <translation>작업 %1, 계획 %2: %3 → %4</translation>
    </message>
</context>
<context>
    <name>trel::desktop::undo::HistoryActions</name>
    <message>
        <source>&amp;Undo</source>
        <translation>실행 취소(&amp;U)</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>다시 실행(&amp;D)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>what is done, and the step</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>trel::desktop::undo::HistoryModel</name>
    <message>
        <source>Start</source>
        <translation>처음</translation>
    </message>
    <message>
        <source>%1 (saved)</source>
        <comment>a step</comment>
        <translation>%1(저장됨)</translation>
    </message>
    <message>
        <source>%1 (saved; editor opened)</source>
        <comment>a step</comment>
        <translation>%1(저장됨, 편집기를 연 시점)</translation>
    </message>
    <message>
        <source>%1 (editor opened)</source>
        <comment>a step</comment>
        <translation>%1(편집기를 연 시점)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::undo::HistoryDock</name>
    <message>
        <source>History</source>
        <translation>기록</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>기록(&amp;H)</translation>
    </message>
</context>
<context>
    <name>DraftWords</name>
    <message>
        <source>There are changes that were not saved. The last one was made on %1.</source>
        <translation>저장되지 않은 변경 내용이 있습니다. 마지막 변경: %1</translation>
    </message>
    <message>
        <source>New tasks: %1</source>
        <translation>새 작업: %1</translation>
    </message>
    <message>
        <source>Changed tasks: %1</source>
        <translation>변경된 작업: %1</translation>
    </message>
    <message>
        <source>Deleted tasks: %1</source>
        <translation>삭제된 작업: %1</translation>
    </message>
    <message>
        <source>The very last change may be missing.</source>
        <translation>마지막 변경 내용이 빠졌을 수 있습니다.</translation>
    </message>
    <message>
        <source>A part of them is damaged and cannot be read.</source>
        <translation>일부가 손상되어 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>They were made in another database, which stood in the place of this one.</source>
        <translation>이전에 이 위치에 있던 다른 데이터베이스에서 변경한 내용입니다.</translation>
    </message>
    <message>
        <source>The schedule was saved since then.</source>
        <translation>그 후에 일정이 저장되었습니다.</translation>
    </message>
    <message>
        <source>The file %1 keeps changes that were not saved. They were made with a newer version of this program, which has to be used to take them over.</source>
        <translation>파일 %1에 저장되지 않은 변경 내용이 있습니다. 이 앱의 더 새로운 버전에서 만든 것이므로 가져오려면 그 버전이 필요합니다.</translation>
    </message>
    <message>
        <source>The file %1 should keep changes that were not saved, but nothing in it can be read.</source>
        <translation>파일 %1에는 저장되지 않은 변경 내용이 있어야 하지만 아무것도 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>Changes that are not saved cannot be kept beside the database at the moment: if the program ends now, they are lost. %1</source>
        <translation>지금은 저장되지 않은 변경 내용을 데이터베이스 옆에 보관할 수 없습니다. 지금 종료하면 사라집니다. %1</translation>
    </message>
    <message>
        <source>The changes could not be kept beside the database. They are still in the editor.</source>
        <translation>변경 내용을 데이터베이스 옆에 보관하지 못했습니다. 편집기에는 아직 남아 있습니다.</translation>
    </message>
    <message>
        <source>Take over</source>
        <translation>가져오기</translation>
    </message>
    <message>
        <source>Put into a file</source>
        <translation>파일에 넣기</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>버리기</translation>
    </message>
    <message>
        <source>Delete the file</source>
        <translation>파일 삭제</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>나중에 결정</translation>
    </message>
    <message>
        <source>There are changes that were not saved. The last one was made %1, on %2.</source>
        <translation>저장되지 않은 변경 내용이 있습니다. 마지막 변경: %1(%2)</translation>
    </message>
    <message>
        <source>less than a minute ago</source>
        <translation>1분 이내</translation>
    </message>
    <message>
        <source>What differs from what is saved:</source>
        <translation>저장된 내용과 다른 점:</translation>
    </message>
    <message>
        <source>As it is saved</source>
        <translation>저장된 상태</translation>
    </message>
    <message>
        <source>With these changes</source>
        <translation>이 변경을 적용한 상태</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes ago</source>
        <translation>
            <numerusform>%n분 전</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours ago</source>
        <translation>
            <numerusform>%n시간 전</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days ago</source>
        <translation>
            <numerusform>%n일 전</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::changes::ChangesDialog</name>
    <message>
        <source>Look at it in the week</source>
        <translation>주간 보기로 확인</translation>
    </message>
</context>
<context>
    <name>DifferenceWords</name>
    <message>
        <source>Task %1: %2</source>
        <comment>where, and what differs</comment>
        <translation>작업 %1: %2</translation>
    </message>
    <message>
        <source>Task %1, plan %2: %3</source>
        <comment>where, and what differs</comment>
        <translation>작업 %1, 계획 %2: %3</translation>
    </message>
    <message numerus="yes">
        <source>added, valid from %1 to %2, %n plans</source>
        <translation>
            <numerusform>추가, 유효 기간 %1~%2, 계획 %n개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>deleted, was valid from %1 to %2, %n plans</source>
        <translation>
            <numerusform>삭제, 이전 유효 기간 %1~%2, 계획 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>added in row %1: %2, %3 to %4, %5</source>
        <translation>%1행에 추가: %2, %3~%4, %5</translation>
    </message>
    <message>
        <source>deleted from row %1: %2, %3 to %4, %5</source>
        <translation>%1행에서 삭제: %2, %3~%4, %5</translation>
    </message>
    <message>
        <source>no programs</source>
        <translation>프로그램 없음</translation>
    </message>
    <message>
        <source>row %1 → %2</source>
        <translation>행 %1 → %2</translation>
    </message>
    <message>
        <source>“%1” added as entry %2</source>
        <translation>“%1” 항목 %2(으)로 추가</translation>
    </message>
    <message>
        <source>“%1” deleted, was entry %2</source>
        <translation>“%1” 삭제, 이전 항목 %2</translation>
    </message>
    <message>
        <source>“%1”: entry %2 → %3</source>
        <translation>“%1”: 항목 %2 → %3</translation>
    </message>
    <message>
        <source>“%1”, entry %2: %3</source>
        <translation>“%1”, 항목 %2: %3</translation>
    </message>
    <message>
        <source>first day %1 → %2</source>
        <translation>첫날 %1 → %2</translation>
    </message>
    <message>
        <source>last day %1 → %2</source>
        <translation>마지막 날 %1 → %2</translation>
    </message>
    <message>
        <source>start %1 → %2</source>
        <translation>시작 %1 → %2</translation>
    </message>
    <message>
        <source>end %1 → %2</source>
        <translation>끝 %1 → %2</translation>
    </message>
    <message>
        <source>runs %1 → %2</source>
        <translation>횟수 %1 → %2</translation>
    </message>
    <message>
        <source>days %1 → %2</source>
        <translation>요일 %1 → %2</translation>
    </message>
    <message>
        <source>mode “%1” → “%2”</source>
        <translation>모드 “%1” → “%2”</translation>
    </message>
    <message>
        <source>at the end “%1” → “%2”</source>
        <translation>종료 시 “%1” → “%2”</translation>
    </message>
    <message>
        <source>name “%1” → “%2”</source>
        <translation>이름 “%1” → “%2”</translation>
    </message>
    <message>
        <source>plays in a row %1 → %2</source>
        <translation>연속 재생 %1 → %2</translation>
    </message>
    <message>
        <source>now has a program without a length of its own</source>
        <translation>자체 길이가 없는 프로그램 있음</translation>
    </message>
    <message>
        <source>no longer has a program without a length of its own</source>
        <translation>자체 길이가 없는 프로그램 없음</translation>
    </message>
    <message>
        <source>now in conflict</source>
        <translation>이제 충돌함</translation>
    </message>
    <message>
        <source>no longer in conflict</source>
        <translation>더 이상 충돌하지 않음</translation>
    </message>
    <message>
        <source>now invalid</source>
        <translation>이제 무효</translation>
    </message>
    <message>
        <source>no longer invalid</source>
        <translation>더 이상 무효 아님</translation>
    </message>
    <message>
        <source>something that the editor does not show</source>
        <translation>편집기에 표시되지 않는 내용</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more differences.</source>
        <translation>
            <numerusform>… 그 밖에 차이 %n개.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProgramWords</name>
    <message>
        <source>Video</source>
        <translation>동영상</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>오디오</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>이미지</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>라이브</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>기타</translation>
    </message>
</context>
<context>
    <name>trel::desktop::CatalogueFilter</name>
    <message>
        <source>%1 of %2</source>
        <comment>programs found of programs</comment>
        <translation>%2개 중 %1개</translation>
    </message>
    <message>
        <source>Search name and folder</source>
        <translation>이름과 폴더에서 찾기</translation>
    </message>
    <message>
        <source>Kind of program</source>
        <translation>프로그램 종류</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>모든 종류</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>없는 파일</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>미사용</translation>
    </message>
    <message numerus="yes">
        <source>%n programs</source>
        <translation>
            <numerusform>프로그램 %n개</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::CalendarPopup</name>
    <message>
        <source>Calendar</source>
        <translation>달력</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekPage</name>
    <message>
        <source>Click a block to see why it is on screen, or why not.</source>
        <translation>블록을 클릭하면 화면에 나오거나 나오지 않는 이유를 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>Why the selected block is on screen, or why not</source>
        <translation>선택한 블록이 화면에 나오거나 나오지 않는 이유</translation>
    </message>
    <message>
        <source>No task is valid in this week. Add one with “Edit”, then drag programs here.</source>
        <translation>이번 주에 유효한 작업이 없습니다. ‘편집’으로 작업을 추가한 다음 프로그램을 여기로 끌어다 놓으세요.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::year::YearStrip</name>
    <message>
        <source>Gap: no task is valid from %1 to %2.</source>
        <translation>빈 기간: %1부터 %2까지 유효한 작업이 없습니다.</translation>
    </message>
    <message>
        <source>Overlap: several tasks are valid from %1 to %2.</source>
        <translation>겹침: %1부터 %2까지 여러 작업이 유효합니다.</translation>
    </message>
    <message>
        <source>Task %1 is valid from %2 to %3.</source>
        <translation>작업 %1은(는) %2부터 %3까지 유효합니다.</translation>
    </message>
    <message>
        <source>Validity of the tasks in %1</source>
        <translation>%1년 작업의 유효 기간</translation>
    </message>
</context>
<context>
    <name>trel::desktop::UsesWindow</name>
    <message>
        <source>Where used</source>
        <translation>사용하는 곳</translation>
    </message>
    <message>
        <source>No plan plays “%1”.</source>
        <translation>“%1”을(를) 재생하는 계획이 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” is played by %n plans.</source>
        <translation>
            <numerusform>“%1”은(는) 계획 %n개에서 재생됩니다.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::UsesModel</name>
    <message>
        <source>Task</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>유효 기간</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>계획</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>요일</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>시간</translation>
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
        <translation>작업 %1(%2), 계획 %3, %4 %5</translation>
    </message>
    <message>
        <source>Not on screen any more, as the schedule in effect has it.</source>
        <translation>적용 중인 일정에서는 더 이상 화면에 나오지 않습니다.</translation>
    </message>
    <message>
        <source>Not on screen any more, as the schedule is edited.</source>
        <translation>편집 중인 일정에서는 더 이상 화면에 나오지 않습니다.</translation>
    </message>
    <message>
        <source>Never on screen, as the schedule in effect has it.</source>
        <translation>적용 중인 일정에서는 한 번도 화면에 나오지 않습니다.</translation>
    </message>
    <message>
        <source>Never on screen, as the schedule is edited.</source>
        <translation>편집 중인 일정에서는 한 번도 화면에 나오지 않습니다.</translation>
    </message>
    <message>
        <source>On screen now: task %1, plan %2.</source>
        <translation>지금 화면에 있음: 작업 %1, 계획 %2.</translation>
    </message>
    <message>
        <source>Next on screen: %1, task %2, plan %3.</source>
        <translation>다음 화면 표시: %1, 작업 %2, 계획 %3.</translation>
    </message>
    <message numerus="yes">
        <source>Entries become invalid in %n plans:</source>
        <translation>
            <numerusform>계획 %n개에서 항목이 무효가 됩니다:</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: nothing else is left of it</source>
        <translation>%1: 다른 항목이 남지 않음</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more plans.</source>
        <translation>
            <numerusform>… 외 계획 %n개.</numerusform>
        </translation>
    </message>
    <message>
        <source>every day</source>
        <translation>매일</translation>
    </message>
    <message>
        <source>%1–%2</source>
        <comment>from day to day</comment>
        <translation>%1~%2</translation>
    </message>
</context>
<context>
    <name>MoveWords</name>
    <message>
        <source>Plan %1: %2, %3 to %4</source>
        <translation>계획 %1: %2, %3~%4</translation>
    </message>
    <message>
        <source>New plan in task %1: %2, %3 to %4</source>
        <translation>작업 %1의 새 계획: %2, %3~%4</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>매일</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are valid on this day; that is the one in effect.</source>
        <translation>
            <numerusform>이날 유효한 작업은 %n개이며, 실제로 적용되는 것은 이 작업입니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Its times cannot be read.</source>
        <translation>시각을 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>A plan cannot run over midnight.</source>
        <translation>계획은 자정을 넘길 수 없습니다.</translation>
    </message>
    <message>
        <source>A plan has to start before it ends.</source>
        <translation>계획은 끝나기 전에 시작해야 합니다.</translation>
    </message>
    <message>
        <source>Its end follows from its programs; it can only be moved.</source>
        <translation>끝은 프로그램에 따라 정해지므로 옮길 수만 있습니다.</translation>
    </message>
    <message>
        <source>It plays every day.</source>
        <translation>매일 재생됩니다.</translation>
    </message>
    <message>
        <source>It plays on that day already.</source>
        <translation>그날에는 이미 재생됩니다.</translation>
    </message>
    <message>
        <source>Its days cannot be read.</source>
        <translation>요일을 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>Its task is not in effect on that day.</source>
        <translation>그날에는 이 계획의 작업이 적용되지 않습니다.</translation>
    </message>
    <message>
        <source>Conflicts with plan %1, %2 to %3.</source>
        <translation>계획 %1(%2~%3)과 충돌합니다.</translation>
    </message>
    <message numerus="yes">
        <source>Conflicts with %n more.</source>
        <translation>
            <numerusform>그 밖에 %n개와 충돌합니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>No task is valid on this day.</source>
        <translation>이날 유효한 작업이 없습니다.</translation>
    </message>
    <message>
        <source>These programs cannot be planned here.</source>
        <translation>이 프로그램은 여기에 계획할 수 없습니다.</translation>
    </message>
    <message>
        <source>Copy the plans of %1…</source>
        <comment>a day</comment>
        <translation>%1의 계획 복사…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekEdits</name>
    <message>
        <source>The editor is not ready yet. Please try again.</source>
        <translation>편집기가 아직 준비되지 않았습니다. 다시 시도하세요.</translation>
    </message>
    <message>
        <source>The schedule has changed meanwhile; nothing was moved.</source>
        <translation>그사이 일정이 바뀌어 아무것도 옮기지 않았습니다.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::CopyDayDialog</name>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Copy onto these days, whose own plans stay:</source>
        <translation>다음 날에 복사합니다. 그날의 계획은 그대로 남습니다.</translation>
    </message>
    <message>
        <source>%1 (no task is valid)</source>
        <comment>a day</comment>
        <translation>%1(유효한 작업 없음)</translation>
    </message>
    <message>
        <source>There is no plan on that day.</source>
        <translation>그날에는 계획이 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n plans play on that day. Choose the days to copy them onto.</source>
        <translation>
            <numerusform>그날 재생되는 계획은 %n개입니다. 복사할 날을 선택하세요.</numerusform>
        </translation>
    </message>
    <message>
        <source>All of them play on these days already.</source>
        <translation>이 날들에는 이미 모두 재생됩니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n plans are copied.</source>
        <translation>
            <numerusform>계획 %n개를 복사합니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more plans will conflict then. Nothing is lost by that: change what you want afterwards.</source>
        <translation>
            <numerusform>계획 %n개가 더 충돌하게 됩니다. 없어지는 것은 없으니 나중에 바꾸면 됩니다.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>VersionWords</name>
    <message>
        <source>Version %1</source>
        <translation>버전 %1</translation>
    </message>
    <message>
        <source>What is in effect</source>
        <translation>적용 중</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>저장된 상태</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>new: %1</source>
        <translation>추가: %1</translation>
    </message>
    <message>
        <source>changed: %1</source>
        <translation>변경: %1</translation>
    </message>
    <message>
        <source>deleted: %1</source>
        <translation>삭제: %1</translation>
    </message>
    <message>
        <source>nothing of note</source>
        <translation>주요 변경 없음</translation>
    </message>
    <message>
        <source>%1 (tasks %2)</source>
        <comment>what a save changed, and in which tasks</comment>
        <translation>%1 (작업 %2)</translation>
    </message>
    <message>
        <source>version %1 restored: %2</source>
        <translation>버전 %1 복원: %2</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>차이가 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n differences</source>
        <translation>
            <numerusform>차이 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>Restore version %1? What is saved now stays as a version, so that it can be restored in turn.</source>
        <translation>버전 %1을(를) 복원할까요? 지금 저장된 상태도 버전으로 남아 나중에 복원할 수 있습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n of its programs are no longer in the catalog. Their entries will be invalid: %1</source>
        <translation>
            <numerusform>프로그램 %n개가 더 이상 목록에 없습니다. 해당 항목은 무효가 됩니다: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The schedule in the editor has changes that are not saved.</source>
        <translation>편집기의 일정에 저장되지 않은 변경 내용이 있습니다.</translation>
    </message>
    <message>
        <source>Version %1 – %2</source>
        <comment>a version, and when it was saved</comment>
        <translation>버전 %1 – %2</translation>
    </message>
    <message>
        <source>Version %1 – %2 – %3</source>
        <comment>a version, when it was saved, and its name</comment>
        <translation>버전 %1 – %2 – %3</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::VersionModel</name>
    <message>
        <source>Version</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>저장 시각</translation>
    </message>
    <message>
        <source>By</source>
        <translation>저장한 곳</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>변경 내용</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>메모</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::DifferenceModel</name>
    <message>
        <source>Task</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>계획</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>차이</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::StretchModel</name>
    <message>
        <source>From</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>To</source>
        <translation>끝</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::ComparedWeeks</name>
    <message>
        <source>Comparing…</source>
        <translation>비교 중…</translation>
    </message>
    <message>
        <source>Nothing differs on the screen in this week.</source>
        <translation>이 주에는 화면에 차이가 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n stretches of this week differ on the screen:</source>
        <translation>
            <numerusform>이 주의 화면에서 %n개 구간이 다릅니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>What differs on the screen</source>
        <translation>화면의 차이</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::ComparisonPanel</name>
    <message>
        <source>Comparing…</source>
        <translation>비교 중…</translation>
    </message>
    <message>
        <source>Nothing is in effect.</source>
        <translation>적용 중인 것이 없습니다.</translation>
    </message>
    <message>
        <source>%1 → %2: %3</source>
        <comment>two states, and how much differs</comment>
        <translation>%1 → %2: %3</translation>
    </message>
    <message>
        <source>In words</source>
        <translation>글로</translation>
    </message>
    <message>
        <source>On the screen</source>
        <translation>화면</translation>
    </message>
    <message>
        <source>What differs</source>
        <translation>차이</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::VersionNameDialog</name>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>메모</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::VersionsWindow</name>
    <message>
        <source>Versions</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>읽는 중…</translation>
    </message>
    <message>
        <source>No versions are kept yet.</source>
        <translation>아직 버전이 없습니다.</translation>
    </message>
    <message>
        <source>Name and note…</source>
        <translation>이름과 메모…</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>복원…</translation>
    </message>
    <message>
        <source>Write to a file…</source>
        <translation>파일에 쓰기…</translation>
    </message>
    <message>
        <source>Compared with</source>
        <translation>비교 대상</translation>
    </message>
    <message>
        <source>The other way round</source>
        <translation>반대로 비교</translation>
    </message>
    <message>
        <source>Write the version to a file</source>
        <translation>버전을 파일에 쓰기</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>일정 (*.json)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>%1에 썼습니다.</translation>
    </message>
    <message>
        <source>Save, then restore</source>
        <translation>저장 후 복원</translation>
    </message>
    <message>
        <source>Restore without saving</source>
        <translation>저장하지 않고 복원</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>복원</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProgramPreview</name>
    <message>
        <source>%1 – Preview</source>
        <translation>%1 – 미리 보기</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>위치</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>position and length</comment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>The file is not found.</source>
        <translation>파일을 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>Sound has no picture.</source>
        <translation>소리에는 화면이 없습니다.</translation>
    </message>
    <message>
        <source>A live source is seen on the screens alone.</source>
        <translation>라이브는 화면에서만 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>읽는 중…</translation>
    </message>
    <message>
        <source>It has no picture that can be read.</source>
        <translation>읽을 수 있는 화면이 없습니다.</translation>
    </message>
</context>
<context>
    <name>KeyTable</name>
    <message>
        <source>Main window</source>
        <translation>기본 창</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>편집기</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>주</translation>
    </message>
    <message>
        <source>Go to the next task</source>
        <translation>다음 작업으로 이동</translation>
    </message>
    <message>
        <source>Go to the task before</source>
        <translation>이전 작업으로 이동</translation>
    </message>
    <message>
        <source>Fold or open the task</source>
        <translation>작업 접기 또는 펼치기</translation>
    </message>
    <message>
        <source>Add a task</source>
        <translation>작업 추가</translation>
    </message>
    <message>
        <source>Copy the task</source>
        <translation>작업 복사</translation>
    </message>
    <message>
        <source>Delete the task</source>
        <translation>작업 삭제</translation>
    </message>
    <message>
        <source>Add a plan</source>
        <translation>계획 추가</translation>
    </message>
    <message>
        <source>Copy the plan</source>
        <translation>계획 복사</translation>
    </message>
    <message>
        <source>Delete the plan</source>
        <translation>계획 삭제</translation>
    </message>
    <message>
        <source>Choose the programs of the plan</source>
        <translation>계획의 프로그램 선택</translation>
    </message>
    <message>
        <source>Save and close</source>
        <translation>저장하고 닫기</translation>
    </message>
    <message>
        <source>Save and start</source>
        <translation>저장하고 시작</translation>
    </message>
    <message>
        <source>Close without saving</source>
        <translation>저장하지 않고 닫기</translation>
    </message>
    <message>
        <source>Select another plan</source>
        <translation>다른 계획 선택</translation>
    </message>
    <message>
        <source>Open the selected plan in the editor</source>
        <translation>선택한 계획을 편집기에서 열기</translation>
    </message>
    <message>
        <source>Say what is on screen then, and why</source>
        <translation>그때 화면에 나오는 것과 이유 보기</translation>
    </message>
    <message>
        <source>Move the plan by a quarter of an hour</source>
        <translation>계획을 15분 옮기기</translation>
    </message>
    <message>
        <source>Move the plan to another day</source>
        <translation>계획을 다른 날로 옮기기</translation>
    </message>
    <message>
        <source>Move the end of the plan</source>
        <translation>계획의 끝 옮기기</translation>
    </message>
    <message>
        <source>Move the begin of the plan</source>
        <translation>계획의 시작 옮기기</translation>
    </message>
    <message>
        <source>Give up dragging</source>
        <translation>끌기 그만두기</translation>
    </message>
    <message>
        <source>Copy the plans of the day</source>
        <translation>그날의 계획 복사</translation>
    </message>
    <message>
        <source>Show another week</source>
        <translation>다른 주 보기</translation>
    </message>
    <message>
        <source>Show the present moment</source>
        <translation>현재 시각 보기</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>확대/축소</translation>
    </message>
    <message>
        <source>Fit the whole day</source>
        <translation>하루 전체 맞추기</translation>
    </message>
    <message>
        <source>Programs of a plan</source>
        <translation>한 계획의 프로그램</translation>
    </message>
    <message>
        <source>Go to another program</source>
        <translation>다른 프로그램으로 이동</translation>
    </message>
    <message>
        <source>Tick the program, or untick it</source>
        <translation>프로그램 선택 표시 또는 해제</translation>
    </message>
    <message>
        <source>Tick all programs, or none</source>
        <translation>모든 프로그램 선택 표시 또는 해제</translation>
    </message>
    <message>
        <source>Add the ticked programs, or this one</source>
        <translation>선택 표시한 프로그램 추가, 없으면 이 프로그램</translation>
    </message>
    <message>
        <source>Take the ticked programs out, or this one</source>
        <translation>선택 표시한 프로그램 삭제, 없으면 이 프로그램</translation>
    </message>
    <message>
        <source>Move the program up or down</source>
        <translation>프로그램을 위나 아래로 옮기기</translation>
    </message>
    <message>
        <source>Change how often the program is played</source>
        <translation>프로그램의 재생 횟수 변경</translation>
    </message>
    <message>
        <source>Take over the list of programs</source>
        <translation>프로그램 목록 확정</translation>
    </message>
</context>
<context>
    <name>trel::desktop::KeySheet</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>키보드 단축키</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>trel::desktop::GuideWindow</name>
    <message>
        <source>The guide</source>
        <translation>안내서</translation>
    </message>
</context>
<context>
    <name>trel::desktop::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>안내서(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>키보드 단축키(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;About this program</source>
        <translation>이 프로그램 정보(&amp;A)</translation>
    </message>
    <message>
        <source>Schedules media programs on screens, edits the schedule and follows it.</source>
        <translation>화면에 나오는 미디어의 일정을 짜고 편집하며 진행을 따라갑니다.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirLight</name>
    <message>
        <source>On air</source>
        <translation>송출 중</translation>
    </message>
    <message>
        <source>Off air</source>
        <translation>송출 안 함</translation>
    </message>
    <message>
        <source>A schedule is in effect.</source>
        <translation>일정이 적용되어 있습니다.</translation>
    </message>
    <message>
        <source>No schedule is in effect.</source>
        <translation>적용된 일정이 없습니다.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirState</name>
    <message>
        <source>Time of day: %1</source>
        <translation>현재 시각: %1</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>저장되지 않음</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>저장: %1</translation>
    </message>
    <message>
        <source>Started: %1</source>
        <translation>시작: %1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirBar</name>
    <message>
        <source>Toolbar</source>
        <translation>도구 모음</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>가져오기</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>중지</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Search the catalog</source>
        <translation>프로그램 목록 검색</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ComingPrograms</name>
    <message>
        <source>Programs to come</source>
        <translation>다음 프로그램들</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::StartAction</name>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>Put the schedule on air</source>
        <translation>일정을 송출하기</translation>
    </message>
    <message>
        <source>Put the schedule on air? What is not saved is saved first.</source>
        <translation>일정을 송출할까요? 저장되지 않은 내용은 먼저 저장됩니다.</translation>
    </message>
    <message>
        <source>Open problems: %1</source>
        <translation>해결되지 않은 문제: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Tasks %1 and %2 are valid on the same days. The schedule can be put on air once they are not.</source>
        <translation>작업 %1과(와) %2이(가) 같은 날에 유효합니다. 겹치지 않게 하면 일정을 송출할 수 있습니다.</translation>
    </message>
    <message>
        <source>The schedule is on air.</source>
        <translation>일정을 송출하고 있습니다.</translation>
    </message>
    <message>
        <source>The schedule is on air. Open problems: %1</source>
        <translation>일정을 송출하고 있습니다. 해결되지 않은 문제: %1</translation>
    </message>
</context>
<context>
    <name>DroppedMedia</name>
    <message>
        <source>None of this can be imported.</source>
        <translation>가져올 수 있는 것이 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n files or folders</source>
        <translation>
            <numerusform>파일 또는 폴더 %n개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n addresses</source>
        <translation>
            <numerusform>주소 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>files, and addresses</comment>
        <translation>%1 및 %2</translation>
    </message>
    <message>
        <source>Import %1</source>
        <comment>files, or addresses, or both</comment>
        <translation>가져오기: %1</translation>
    </message>
    <message numerus="yes">
        <source>Import %1; %n cannot be imported</source>
        <comment>files, or addresses, or both</comment>
        <translation>
            <numerusform>가져오기: %1(%n개는 가져올 수 없음)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MediaFilters</name>
    <message>
        <source>All media</source>
        <translation>모든 미디어</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>동영상</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>이미지</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>소리</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>모든 파일 (*)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ScreenNews</name>
    <message>
        <source>Cut in: %1</source>
        <translation>삽입됨: %1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekMenu</name>
    <message>
        <source>&amp;Week</source>
        <translation>주(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>오늘(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Previous week</source>
        <translation>이전 주(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Next week</source>
        <translation>다음 주(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Choose a day…</source>
        <translation>날짜 선택(&amp;C)…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::DayDrag</name>
    <message>
        <source>Drag a day onto another one to copy its plans there.</source>
        <translation>날짜를 다른 날짜로 끌면 그날의 계획이 복사됩니다.</translation>
    </message>
    <message>
        <source>Copy the plans of %1 onto %2</source>
        <comment>two days</comment>
        <translation>%1의 계획을 %2(으)로 복사</translation>
    </message>
</context>
<context>
    <name>trel::desktop::place::AddressDialog</name>
    <message>
        <source>Open from a server</source>
        <translation>서버에서 열기</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>주소</translation>
    </message>
    <message>
        <source>Where the server asks for a password, it is read from the password file of the server's programs (~/.pgpass).</source>
        <translation>서버가 비밀번호를 요구하면 서버 프로그램의 비밀번호 파일(~/.pgpass)에서 읽습니다.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::players::PlayersDock</name>
    <message>
        <source>Players</source>
        <translation>플레이어</translation>
    </message>
    <message>
        <source>Pla&amp;yers</source>
        <translation>플레이어(&amp;Y)</translation>
    </message>
    <message>
        <source>No player follows this database. Start schedule-player with it where the screen is.</source>
        <translation>이 데이터베이스를 따르는 플레이어가 없습니다. 화면이 있는 컴퓨터에서 이 데이터베이스로 schedule-player를 실행하세요.</translation>
    </message>
    <message>
        <source>Show what the players show</source>
        <translation>플레이어가 보여 주는 내용을 표시합니다</translation>
    </message>
</context>
<context>
    <name>trel::desktop::players::PlayerModel</name>
    <message>
        <source>Screen</source>
        <translation>화면</translation>
    </message>
    <message>
        <source>Shows</source>
        <translation>표시 내용</translation>
    </message>
    <message>
        <source>Heard</source>
        <comment>when a player told of itself</comment>
        <translation>응답</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>장애</translation>
    </message>
</context>
<context>
    <name>PlayerWords</name>
    <message>
        <source>Stands still in: %1</source>
        <translation>멈춰 있음: %1</translation>
    </message>
    <message>
        <source>Has no picture for: %1</source>
        <translation>그림 없음: %1</translation>
    </message>
    <message>
        <source>Not since %1</source>
        <comment>a moment</comment>
        <translation>%1 이후 응답 없음</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no faults</comment>
        <translation>없음</translation>
    </message>
    <message>
        <source>%1, the last at %2: %3</source>
        <comment>a number, a moment, a sentence</comment>
        <translation>%1, 마지막 %2: %3</translation>
    </message>
    <message>
        <source>Players: %1</source>
        <translation>플레이어: %1</translation>
    </message>
    <message>
        <source>Players: %1, silent: %2</source>
        <translation>플레이어: %1, 응답 없음: %2</translation>
    </message>
</context>
<context>
    <name>MergeWords</name>
    <message numerus="yes">
        <source>%n tasks were changed at both desks: if you merge, you choose for each of them which one stays. Everything else of both is kept.</source>
        <translation>
            <numerusform>작업 %n개가 양쪽 자리에서 변경되었습니다. 병합할 때 각각 어느 쪽을 남길지 선택합니다. 양쪽의 나머지 변경은 모두 유지됩니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>No task was changed at both desks: what both have changed can be saved together.</source>
        <translation>양쪽 자리에서 모두 변경된 작업이 없습니다. 양쪽의 변경을 함께 저장할 수 있습니다.</translation>
    </message>
    <message>
        <source>Merge…</source>
        <translation>병합…</translation>
    </message>
    <message>
        <source>Merged, your new task %1 becomes task %2: another task %1 was added there.</source>
        <translation>병합하면 새 작업 %1은(는) 작업 %2이(가) 됩니다. 다른 쪽에서 다른 작업 %1이(가) 추가되었습니다.</translation>
    </message>
    <message>
        <source>Merge and save</source>
        <translation>병합하고 저장</translation>
    </message>
    <message>
        <source>Merge and go on editing</source>
        <translation>병합하고 계속 편집</translation>
    </message>
    <message>
        <source>Merged, tasks %1 and %2 would be valid on the same days. That cannot be saved: they stay in the editor until you have changed their dates.</source>
        <translation>병합하면 작업 %1과(와) 작업 %2의 유효 기간이 같은 날에 겹칩니다. 이대로는 저장할 수 없습니다. 날짜를 바꿀 때까지 편집기에 남습니다.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::merge::ConflictsDialog</name>
    <message>
        <source>These tasks were changed here and at the other desk. Choose for each of them which one stays.</source>
        <translation>이 작업들은 여기와 다른 자리에서 모두 변경되었습니다. 각각 어느 쪽을 남길지 선택하십시오.</translation>
    </message>
    <message>
        <source>Mine, as it is edited here</source>
        <translation>내 것(여기서 편집한 상태)</translation>
    </message>
    <message>
        <source>Theirs, as it was saved there</source>
        <translation>상대 것(다른 쪽에서 저장한 상태)</translation>
    </message>
    <message>
        <source>Tasks that were changed at both desks</source>
        <translation>양쪽 자리에서 변경된 작업</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>What stays</source>
        <translation>남길 쪽</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>not chosen yet</source>
        <translation>선택 안 함</translation>
    </message>
    <message>
        <source>mine</source>
        <translation>내 것</translation>
    </message>
    <message>
        <source>theirs</source>
        <translation>상대 것</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are still to be chosen.</source>
        <translation>
            <numerusform>작업 %n개를 더 선택해야 합니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Everything else of both is kept.</source>
        <translation>양쪽의 나머지 변경은 모두 유지됩니다.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::DeskNotice</name>
    <message>
        <source>Also edited at %1 since %2</source>
        <comment>a desk, and a time</comment>
        <translation>%1에서도 편집 중(%2부터)</translation>
    </message>
    <message numerus="yes">
        <source>Also edited at %n other desks</source>
        <translation>
            <numerusform>다른 자리 %n곳에서도 편집 중</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: since %2, last changed at %3, tasks %4</source>
        <comment>a desk, times, and numbers</comment>
        <translation>%1: %2부터, 마지막 변경 %3, 작업 %4</translation>
    </message>
</context>
<context>
    <name>FileWords</name>
    <message numerus="yes">
        <source>%n programs in this file are not in the catalog. Their entries will be invalid: %1</source>
        <translation>
            <numerusform>이 파일의 프로그램 %n개가 목록에 없습니다. 해당 항목은 무효가 됩니다: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n programs in the catalog may have another content than in this file: %1</source>
        <translation>
            <numerusform>목록의 프로그램 %n개는 이 파일과 내용이 다를 수 있습니다: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n programs have another name in the catalog than in this file: %1</source>
        <translation>
            <numerusform>목록의 프로그램 %n개는 이 파일과 이름이 다릅니다: %1</numerusform>
        </translation>
    </message>
</context>
</TS>
