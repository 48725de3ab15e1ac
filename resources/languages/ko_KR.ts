<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
<context>
    <name>SheduleWidgets</name>
    <message>
        <source>zhSchedulePlayStr</source>
        <comment>Widget</comment>
        <translation>재생 일정</translation>
    </message>
    <message>
        <source>zhSchedulePlayStrAdd</source>
        <comment>Widget</comment>
        <translation>재생 작업 추가</translation>
    </message>
    <message>
        <source>zhScheduleLoading</source>
        <comment>Widget</comment>
        <translation>불러오는 중…</translation>
    </message>
    <message>
        <source>zhEnable</source>
        <comment>Widget</comment>
        <translation>시작</translation>
    </message>
    <message>
        <source>zhNoPlayTask</source>
        <comment>Widget</comment>
        <translation>재생 작업이 없습니다. ‘재생 작업 추가’를 눌러 시작하세요.</translation>
    </message>
    <message>
        <source>zhSegConflictStr</source>
        <comment>Widget</comment>
        <translation>간 유효 기간이 겹칩니다. 날짜를 변경한 후 다시 시도하세요.</translation>
    </message>
    <message>
        <source>zhPlayTaskStr</source>
        <comment>Widget</comment>
        <translation>재생 작업 </translation>
    </message>
    <message>
        <source>zhCancelAct</source>
        <comment>Widget</comment>
        <translation>취소</translation>
    </message>
    <message>
        <source>zhFixAct</source>
        <comment>Widget</comment>
        <translation>확인</translation>
    </message>
    <message>
        <source>zhRefuseAct</source>
        <comment>Widget</comment>
        <translation>거부</translation>
    </message>
    <message>
        <source>zhtitleTip</source>
        <comment>Widget</comment>
        <translation>알림</translation>
    </message>
    <message>
        <source>zhEffectiveStr</source>
        <comment>Widget</comment>
        <translation>유효 기간 </translation>
    </message>
    <message>
        <source>zhFromStr</source>
        <comment>Widget</comment>
        <translation>시작</translation>
    </message>
    <message>
        <source>zhToStr</source>
        <comment>Widget</comment>
        <translation>~</translation>
    </message>
    <message>
        <source>zhCreateCopy</source>
        <comment>Widget</comment>
        <translation>사본 만들기</translation>
    </message>
    <message>
        <source>szDeleteStr</source>
        <comment>Widget</comment>
        <translation>삭제</translation>
    </message>
    <message>
        <source>zhPlanTimeStr</source>
        <comment>Widget</comment>
        <translation>계획</translation>
    </message>
    <message>
        <source>zhModeStr</source>
        <comment>Widget</comment>
        <translation>모드</translation>
    </message>
    <message>
        <source>zhTimeStr</source>
        <comment>Widget</comment>
        <translation>시간</translation>
    </message>
    <message>
        <source>zhfrequencyStr</source>
        <comment>Widget</comment>
        <translation>횟수</translation>
    </message>
    <message>
        <source>szDateStr</source>
        <comment>Widget</comment>
        <translation>요일</translation>
    </message>
    <message>
        <source>zhEndActionStr</source>
        <comment>Widget</comment>
        <translation>종료 시</translation>
    </message>
    <message>
        <source>zhBlackScreen</source>
        <comment>Widget</comment>
        <translation>검은 화면</translation>
    </message>
    <message>
        <source>zhFreezeCurrentFrame</source>
        <comment>Widget</comment>
        <translation>마지막 화면 유지</translation>
    </message>
    <message>
        <source>szEveryDayStr</source>
        <comment>Widget</comment>
        <translation>매일</translation>
    </message>
    <message>
        <source>szMondayStr</source>
        <comment>Widget</comment>
        <translation>월</translation>
    </message>
    <message>
        <source>szTuesdayStr</source>
        <comment>Widget</comment>
        <translation>화</translation>
    </message>
    <message>
        <source>szWednesdayStr</source>
        <comment>Widget</comment>
        <translation>수</translation>
    </message>
    <message>
        <source>szThursdayStr</source>
        <comment>Widget</comment>
        <translation>목</translation>
    </message>
    <message>
        <source>szFridayStr</source>
        <comment>Widget</comment>
        <translation>금</translation>
    </message>
    <message>
        <source>szSaturdayStr</source>
        <comment>Widget</comment>
        <translation>토</translation>
    </message>
    <message>
        <source>szSundayStr</source>
        <comment>Widget</comment>
        <translation>일</translation>
    </message>
    <message>
        <source>zhconflictStr</source>
        <comment>Widget</comment>
        <translation>충돌</translation>
    </message>
    <message>
        <source>zhnormalStr</source>
        <comment>Widget</comment>
        <translation>정상</translation>
    </message>
    <message>
        <source>szInvalidStr</source>
        <comment>Widget</comment>
        <translation> (무효)</translation>
    </message>
    <message>
        <source>szProgNullStr</source>
        <comment>Widget</comment>
        <translation> (삭제됨)</translation>
    </message>
    <message>
        <source>zhStartVaildTimeError</source>
        <comment>Widget</comment>
        <translation>시작은 종료보다 늦을 수 없습니다. 다시 설정하세요.</translation>
    </message>
    <message>
        <source>szDeletePlanConfirmStr</source>
        <comment>Widget</comment>
        <translation>이 재생 계획을 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>szDeleteTaskConfirmStr</source>
        <comment>Widget</comment>
        <translation>이 재생 작업과 모든 계획을 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>zhSelectProgramsStr</source>
        <comment>Widget</comment>
        <translation>프로그램 선택</translation>
    </message>
    <message>
        <source>szProgramLstStr</source>
        <comment>Widget</comment>
        <translation>프로그램 목록</translation>
    </message>
    <message>
        <source>szPlanLstStr</source>
        <comment>Widget</comment>
        <translation>계획의 프로그램</translation>
    </message>
    <message>
        <source>zhCheckNumber</source>
        <comment>Widget</comment>
        <translation>번호</translation>
    </message>
    <message>
        <source>zhPlayCounts</source>
        <comment>Widget</comment>
        <translation>재생 횟수</translation>
    </message>
    <message>
        <source>zhOnlyOne</source>
        <comment>Widget</comment>
        <translation>프로그램을 하나만 선택하세요.</translation>
    </message>
    <message>
        <source>zhTotalDuration</source>
        <comment>Widget</comment>
        <translation>계획의 총길이: </translation>
    </message>
    <message>
        <source>zhOverTimeTips</source>
        <comment>Widget</comment>
        <translation>계획의 총길이가 24시간을 넘었습니다. 프로그램을 줄이세요.</translation>
    </message>
    <message>
        <source>zhCutCurrentProg</source>
        <comment>Widget</comment>
        <translation>지금 삽입</translation>
    </message>
    <message>
        <source>zhDelayInsert</source>
        <comment>Widget</comment>
        <translation>나중에 삽입</translation>
    </message>
    <message>
        <source>zhProgMoveUp</source>
        <comment>Widget</comment>
        <translation>위로 이동</translation>
    </message>
    <message>
        <source>zhProgMoveDown</source>
        <comment>Widget</comment>
        <translation>아래로 이동</translation>
    </message>
    <message>
        <source>zhCutProgWarnning</source>
        <comment>Widget</comment>
        <translation>재생 시간이 지나 프로그램을 삽입할 수 없습니다.</translation>
    </message>
    <message>
        <source>zhMinAct</source>
        <comment>Widget</comment>
        <translation>최소화</translation>
    </message>
    <message>
        <source>zhReductionAct</source>
        <comment>Widget</comment>
        <translation>이전 크기로 복원</translation>
    </message>
    <message>
        <source>zhMaxAct</source>
        <comment>Widget</comment>
        <translation>최대화</translation>
    </message>
    <message>
        <source>zhCloseAct</source>
        <comment>Widget</comment>
        <translation>닫기</translation>
    </message>
</context>
</TS>
