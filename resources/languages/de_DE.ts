<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>SheduleWidgets</name>
    <message>
        <source>zhSchedulePlayStr</source>
        <comment>Widget</comment>
        <translation>Wiedergabeplan</translation>
    </message>
    <message>
        <source>zhSchedulePlayStrAdd</source>
        <comment>Widget</comment>
        <translation>Auftrag hinzufügen</translation>
    </message>
    <message>
        <source>zhScheduleLoading</source>
        <comment>Widget</comment>
        <translation>Wird geladen…</translation>
    </message>
    <message>
        <source>zhEnable</source>
        <comment>Widget</comment>
        <translation>Starten</translation>
    </message>
    <message>
        <source>zhNoPlayTask</source>
        <comment>Widget</comment>
        <translation>Noch keine Aufträge vorhanden. Klicken Sie auf „Auftrag hinzufügen“, um zu beginnen.</translation>
    </message>
    <message>
        <source>zhSegConflictStr</source>
        <comment>Widget</comment>
        <translation>überschneiden sich in ihrer Gültigkeit. Bitte ändern Sie die Zeiträume und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>zhPlayTaskStr</source>
        <comment>Widget</comment>
        <translation>Auftrag </translation>
    </message>
    <message>
        <source>zhCancelAct</source>
        <comment>Widget</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>zhFixAct</source>
        <comment>Widget</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>zhRefuseAct</source>
        <comment>Widget</comment>
        <translation>Ablehnen</translation>
    </message>
    <message>
        <source>zhtitleTip</source>
        <comment>Widget</comment>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>zhEffectiveStr</source>
        <comment>Widget</comment>
        <translation>Gültig </translation>
    </message>
    <message>
        <source>zhFromStr</source>
        <comment>Widget</comment>
        <translation>von</translation>
    </message>
    <message>
        <source>zhToStr</source>
        <comment>Widget</comment>
        <translation>bis</translation>
    </message>
    <message>
        <source>zhCreateCopy</source>
        <comment>Widget</comment>
        <translation>Kopie erstellen</translation>
    </message>
    <message>
        <source>szDeleteStr</source>
        <comment>Widget</comment>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>zhPlanTimeStr</source>
        <comment>Widget</comment>
        <translation>Plan </translation>
    </message>
    <message>
        <source>zhModeStr</source>
        <comment>Widget</comment>
        <translation>Modus</translation>
    </message>
    <message>
        <source>zhTimeStr</source>
        <comment>Widget</comment>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>zhfrequencyStr</source>
        <comment>Widget</comment>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>szDateStr</source>
        <comment>Widget</comment>
        <translation>Tage</translation>
    </message>
    <message>
        <source>zhEndActionStr</source>
        <comment>Widget</comment>
        <translation>Am Ende</translation>
    </message>
    <message>
        <source>zhBlackScreen</source>
        <comment>Widget</comment>
        <translation>Schwarzbild</translation>
    </message>
    <message>
        <source>zhFreezeCurrentFrame</source>
        <comment>Widget</comment>
        <translation>Bild einfrieren</translation>
    </message>
    <message>
        <source>szEveryDayStr</source>
        <comment>Widget</comment>
        <translation>Täglich</translation>
    </message>
    <message>
        <source>szMondayStr</source>
        <comment>Widget</comment>
        <translation>Mo</translation>
    </message>
    <message>
        <source>szTuesdayStr</source>
        <comment>Widget</comment>
        <translation>Di</translation>
    </message>
    <message>
        <source>szWednesdayStr</source>
        <comment>Widget</comment>
        <translation>Mi</translation>
    </message>
    <message>
        <source>szThursdayStr</source>
        <comment>Widget</comment>
        <translation>Do</translation>
    </message>
    <message>
        <source>szFridayStr</source>
        <comment>Widget</comment>
        <translation>Fr</translation>
    </message>
    <message>
        <source>szSaturdayStr</source>
        <comment>Widget</comment>
        <translation>Sa</translation>
    </message>
    <message>
        <source>szSundayStr</source>
        <comment>Widget</comment>
        <translation>So</translation>
    </message>
    <message>
        <source>zhconflictStr</source>
        <comment>Widget</comment>
        <translation>Konflikt</translation>
    </message>
    <message>
        <source>zhnormalStr</source>
        <comment>Widget</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>szInvalidStr</source>
        <comment>Widget</comment>
        <translation> (ungültig)</translation>
    </message>
    <message>
        <source>szProgNullStr</source>
        <comment>Widget</comment>
        <translation> (gelöscht)</translation>
    </message>
    <message>
        <source>zhStartVaildTimeError</source>
        <comment>Widget</comment>
        <translation>Der Beginn darf nicht nach dem Ende liegen.</translation>
    </message>
    <message>
        <source>szDeletePlanConfirmStr</source>
        <comment>Widget</comment>
        <translation>Diesen Plan löschen?</translation>
    </message>
    <message>
        <source>szDeleteTaskConfirmStr</source>
        <comment>Widget</comment>
        <translation>Diesen Auftrag mit allen Plänen löschen?</translation>
    </message>
    <message>
        <source>zhSelectProgramsStr</source>
        <comment>Widget</comment>
        <translation>Programme auswählen</translation>
    </message>
    <message>
        <source>szProgramLstStr</source>
        <comment>Widget</comment>
        <translation>Programme</translation>
    </message>
    <message>
        <source>szPlanLstStr</source>
        <comment>Widget</comment>
        <translation>Programme des Plans</translation>
    </message>
    <message>
        <source>zhCheckNumber</source>
        <comment>Widget</comment>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>zhPlayCounts</source>
        <comment>Widget</comment>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>zhOnlyOne</source>
        <comment>Widget</comment>
        <translation>Zum Verschieben genau ein Programm ankreuzen.</translation>
    </message>
    <message>
        <source>zhTotalDuration</source>
        <comment>Widget</comment>
        <translation>Gesamtdauer des Plans: </translation>
    </message>
    <message>
        <source>zhOverTimeTips</source>
        <comment>Widget</comment>
        <translation>Der Plan ist länger als 24 Stunden. Bitte kürzen Sie ihn.</translation>
    </message>
    <message>
        <source>zhCutCurrentProg</source>
        <comment>Widget</comment>
        <translation>Sofort einspielen</translation>
    </message>
    <message>
        <source>zhDelayInsert</source>
        <comment>Widget</comment>
        <translation>Später einspielen</translation>
    </message>
    <message>
        <source>zhProgMoveUp</source>
        <comment>Widget</comment>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>zhProgMoveDown</source>
        <comment>Widget</comment>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>zhCutProgWarnning</source>
        <comment>Widget</comment>
        <translation>Die Wiedergabezeit ist vorbei; Einspielen nicht möglich.</translation>
    </message>
    <message>
        <source>zhMinAct</source>
        <comment>Widget</comment>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>zhReductionAct</source>
        <comment>Widget</comment>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>zhMaxAct</source>
        <comment>Widget</comment>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>zhCloseAct</source>
        <comment>Widget</comment>
        <translation>Schließen</translation>
    </message>
</context>
</TS>
