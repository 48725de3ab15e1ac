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
        <source>Now and next</source>
        <translation>지금과 다음</translation>
    </message>
    <message>
        <source>Changes of the clocks</source>
        <translation>시각 변경</translation>
    </message>
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
        <source>Looking for files: %1 found</source>
        <translation>파일을 찾는 중: %1개</translation>
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
<context>
    <name>ClockChangePanel</name>
    <message>
        <source>Changes of the clocks</source>
        <translation>시각 변경</translation>
    </message>
    <message>
        <source>No change of the clocks falls on a day of any task.</source>
        <translation>어느 작업의 날에도 시각 변경이 없습니다.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is left out;</source>
        <translation>%1: %2–%3 은(는) 건너뜁니다.</translation>
    </message>
    <message>
        <source>%1: %2–%3 comes twice;</source>
        <translation>%1: %2–%3 은(는) 두 번 옵니다.</translation>
    </message>
    <message>
        <source>it touches no plan of task %1.</source>
        <translation>작업 %1의 계획에는 영향이 없습니다.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 does not play.</source>
        <translation>작업 %2의 계획 %1은(는) 재생되지 않습니다.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 starts at %3 in the middle of its list.</source>
        <translation>작업 %2의 계획 %1은(는) %3에 목록 중간부터 시작합니다.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 is cut off at %3.</source>
        <translation>작업 %2의 계획 %1은(는) %3에 끊깁니다.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 skips this part of its list.</source>
        <translation>작업 %2의 계획 %1은(는) 목록의 이 부분을 건너뜁니다.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 plays twice.</source>
        <translation>작업 %2의 계획 %1은(는) 두 번 재생됩니다.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 starts twice at %3.</source>
        <translation>작업 %2의 계획 %1은(는) %3에 두 번 시작합니다.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 ends twice at %3.</source>
        <translation>작업 %2의 계획 %1은(는) %3에 두 번 끝납니다.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 repeats this part of its list.</source>
        <translation>작업 %2의 계획 %1은(는) 목록의 이 부분을 반복합니다.</translation>
    </message>
</context>
<context>
    <name>PreviewDock</name>
    <message>
        <source>Preview</source>
        <translation>미리 보기</translation>
    </message>
    <message>
        <source>&amp;Full screen preview</source>
        <translation>전체 화면 미리 보기(&amp;F)</translation>
    </message>
</context>
<context>
    <name>PreviewScreen</name>
    <message>
        <source>Preview of the screen</source>
        <translation>화면 미리 보기</translation>
    </message>
</context>
<context>
    <name>NowNextPanel</name>
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
        <source>Program that comes next</source>
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
        <source>Nothing else comes.</source>
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
        <translation>정지</translation>
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
        <source>The start button of the schedule editor puts the saved schedule into effect.</source>
        <translation>편집기의 시작 버튼이 저장된 일정을 적용합니다.</translation>
    </message>
    <message>
        <source>No plan has had the screen up to now.</source>
        <translation>지금까지 화면을 사용한 계획이 없습니다.</translation>
    </message>
    <message>
        <source>Of the plans for this time of day, plan %1 of task %2 comes first.</source>
        <translation>이 시각의 계획 중 작업 %2의 계획 %1이(가) 처음입니다.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 has the screen, but none of its programs can play.</source>
        <translation>작업 %2의 계획 %1 차례이지만 재생할 수 있는 프로그램이 없습니다.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 has the screen, but its list is to run less than once.</source>
        <translation>작업 %2의 계획 %1 차례이지만 목록의 재생 횟수가 1회 미만입니다.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 has played its list as often as it should.</source>
        <translation>작업 %2의 계획 %1은(는) 목록을 정해진 횟수만큼 재생했습니다.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is over, and no other has begun.</source>
        <translation>작업 %2의 계획 %1이(가) 끝났고 다른 계획은 시작되지 않았습니다.</translation>
    </message>
    <message>
        <source>It was cut in by hand, in the place of plan %1 of task %2.</source>
        <translation>작업 %2의 계획 %1 대신 수동으로 삽입되었습니다.</translation>
    </message>
    <message>
        <source>What was cut in, in the place of plan %1 of task %2, has nothing more to play.</source>
        <translation>작업 %2의 계획 %1 대신 삽입된 내용은 더 재생할 것이 없습니다.</translation>
    </message>
    <message>
        <source>Cut in: %1</source>
        <translation>삽입: %1</translation>
    </message>
    <message>
        <source>Before: %1</source>
        <translation>이전: %1</translation>
    </message>
</context>
<context>
    <name>Week</name>
    <message>
        <source>On screen: %1, %2 into it</source>
        <translation>화면: %1, %2 경과</translation>
    </message>
    <message>
        <source>On screen: %1</source>
        <translation>화면: %1</translation>
    </message>
    <message>
        <source>%1 to %2 is left out: the clocks go forward.</source>
        <translation>%1~%2은(는) 건너뜁니다: 시계를 앞당깁니다.</translation>
    </message>
    <message>
        <source>%1 to %2 comes twice: the clocks go back.</source>
        <translation>%1~%2은(는) 두 번 옵니다: 시계를 늦춥니다.</translation>
    </message>
    <message numerus="yes">
        <source>%n more plans are kept from the screen.</source>
        <translation>
            <numerusform>다른 계획 %n개가 화면에 나오지 않습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Plan %1 stands above it and has the screen instead.</source>
        <translation>위에 있는 계획 %1이(가) 대신 화면을 씁니다.</translation>
    </message>
    <message>
        <source>It collides with a plan above it.</source>
        <translation>위의 계획과 겹칩니다.</translation>
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
        <source>No task is valid on this day.</source>
        <translation>이 날에 유효한 작업이 없습니다.</translation>
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
        <translation>정지: %1</translation>
    </message>
    <message>
        <source>Cut in: %1</source>
        <translation>삽입: %1</translation>
    </message>
    <message>
        <source>Left out: clocks go forward</source>
        <translation>없음: 시계 앞당김</translation>
    </message>
    <message>
        <source>Comes twice: clocks go back</source>
        <translation>두 번: 시계 늦춤</translation>
    </message>
    <message>
        <source>nothing to show</source>
        <translation>보여 줄 것 없음</translation>
    </message>
</context>
<context>
    <name>WeekDock</name>
    <message>
        <source>Week</source>
        <translation>주</translation>
    </message>
</context>
<context>
    <name>week::WeekView</name>
    <message>
        <source>Week</source>
        <translation>주</translation>
    </message>
</context>
<context>
    <name>week::WeekPanel</name>
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
        <source>Week before</source>
        <translation>이전 주</translation>
    </message>
    <message>
        <source>Week after</source>
        <translation>다음 주</translation>
    </message>
    <message>
        <source>Hours less high</source>
        <translation>시간 낮게</translation>
    </message>
    <message>
        <source>Hours higher</source>
        <translation>시간 높게</translation>
    </message>
    <message>
        <source>Which schedule is shown</source>
        <translation>표시할 일정</translation>
    </message>
</context>
<context>
    <name>PlanFaultText</name>
    <message>
        <source>Plan %1 never plays: none of its days is a day of the week.</source>
        <translation>계획 %1은(는) 재생되지 않습니다: 지정된 날 중 요일인 것이 없습니다.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, is not a time in the form %3.</source>
        <translation>계획 %1은(는) 재생되지 않습니다: 시작 “%2”은(는) %3 형식의 시각이 아닙니다.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its end, “%2”, is not a time in the form %3.</source>
        <translation>계획 %1은(는) 재생되지 않습니다: 끝 “%2”은(는) %3 형식의 시각이 아닙니다.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, and its end, “%3”, are not times in the form %4.</source>
        <translation>계획 %1은(는) 재생되지 않습니다: 시작 “%2”과(와) 끝 “%3”은(는) %4 형식의 시각이 아닙니다.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its list is to run less than once.</source>
        <translation>계획 %1은(는) 재생되지 않습니다: 목록의 재생 횟수가 1회 미만입니다.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it ends as it starts, at %2.</source>
        <translation>계획 %1은(는) 재생되지 않습니다: 시작과 끝이 %2로 같습니다.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it starts at %2 and ends before, at %3.</source>
        <translation>계획 %1은(는) 재생되지 않습니다: %2에 시작하고 그보다 앞선 %3에 끝납니다.</translation>
    </message>
</context>
<context>
    <name>ZoneError</name>
    <message>
        <source>The system knows no time zone of the name “%1”, so that the local time is not known.</source>
        <translation>시스템에 “%1”(이)라는 시간대가 없어 현지 시각을 알 수 없습니다.</translation>
    </message>
</context>
</TS>
