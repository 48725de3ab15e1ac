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
        <source>The demonstration&apos;s media could not be copied beside the database.</source>
        <translation>데모 미디어를 데이터베이스 옆에 복사할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>EditorMenus</name>
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
        <source>&amp;Read schedule from a file…</source>
        <translation>파일에서 일정 읽기(&amp;R)…</translation>
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
        <source>&amp;Remove from catalogue</source>
        <translation>목록에서 제거(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>언어(&amp;L)</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>No programs yet. Drop media files or folders here, or choose Import.</source>
        <translation>아직 프로그램이 없습니다. 미디어 파일이나 폴더를 여기에 끌어다 놓거나 가져오기를 선택하세요.</translation>
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
        <source>Import files</source>
        <translation>파일 가져오기</translation>
    </message>
    <message>
        <source>Import folder</source>
        <translation>폴더 가져오기</translation>
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
        <translation>파일에서 일정 읽기</translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation>%1을(를) 읽을 수 없습니다: %2</translation>
    </message>
    <message numerus="yes">
        <source>Replace the whole schedule by the %n tasks of this file?</source>
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
    <message numerus="yes">
        <source>Remove %n programs from the catalogue? Plans that use them will show their entries as invalid. The files stay.</source>
        <translation>
            <numerusform>프로그램 %n개를 목록에서 제거하시겠습니까? 이를 사용하는 계획에서는 해당 항목이 무효로 표시됩니다. 파일은 그대로 남습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Importing</source>
        <translation>가져오는 중</translation>
    </message>
    <message>
        <source>The import was cancelled; nothing was taken in.</source>
        <translation>가져오기가 취소되어 아무것도 가져오지 않았습니다.</translation>
    </message>
    <message>
        <source>Imported: %1 new, %2 updated.</source>
        <translation>가져오기 완료: 신규 %1개, 업데이트 %2개.</translation>
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
    <message>
        <source>The schedule has changes that are not saved.</source>
        <translation>일정에 저장되지 않은 변경 내용이 있습니다.</translation>
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
        <source>Stay</source>
        <translation>계속 편집</translation>
    </message>
</context>
<context>
    <name>HostPrompts</name>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>ProgramTableModel</name>
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
    <message>
        <source>The file has gone: %1</source>
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
        <source>File</source>
        <translation>파일</translation>
    </message>
</context>
<context>
    <name>SaveRescue</name>
    <message>
        <source>The schedule was not saved. %1

What shall become of your changes?</source>
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
        <source>Give up</source>
        <translation>변경 내용 버리기</translation>
    </message>
    <message>
        <source>Write the schedule to a file</source>
        <translation>일정을 파일로 저장</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>일정 (*.json)</translation>
    </message>
</context>
</TS>
