<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>SheduleWidgets</name>
    <message>
        <source>zhSchedulePlayStr</source>
        <comment>Widget</comment>
        <translation>Palinsesto</translation>
    </message>
    <message>
        <source>zhSchedulePlayStrAdd</source>
        <comment>Widget</comment>
        <translation>Aggiungi attività</translation>
    </message>
    <message>
        <source>zhScheduleLoading</source>
        <comment>Widget</comment>
        <translation>Caricamento…</translation>
    </message>
    <message>
        <source>zhEnable</source>
        <comment>Widget</comment>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>zhNoPlayTask</source>
        <comment>Widget</comment>
        <translation>Non ci sono ancora attività. Premere «Aggiungi attività» per cominciare.</translation>
    </message>
    <message>
        <source>zhSegConflictStr</source>
        <comment>Widget</comment>
        <translation>hanno periodi di validità che si sovrappongono. Cambiare le date e riprovare.</translation>
    </message>
    <message>
        <source>zhPlayTaskStr</source>
        <comment>Widget</comment>
        <translation>Attività </translation>
    </message>
    <message>
        <source>zhCancelAct</source>
        <comment>Widget</comment>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>zhFixAct</source>
        <comment>Widget</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>zhRefuseAct</source>
        <comment>Widget</comment>
        <translation>Rifiuta</translation>
    </message>
    <message>
        <source>zhtitleTip</source>
        <comment>Widget</comment>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>zhEffectiveStr</source>
        <comment>Widget</comment>
        <translation>Valida </translation>
    </message>
    <message>
        <source>zhFromStr</source>
        <comment>Widget</comment>
        <translation>dal</translation>
    </message>
    <message>
        <source>zhToStr</source>
        <comment>Widget</comment>
        <translation>al</translation>
    </message>
    <message>
        <source>zhCreateCopy</source>
        <comment>Widget</comment>
        <translation>Crea una copia</translation>
    </message>
    <message>
        <source>szDeleteStr</source>
        <comment>Widget</comment>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>zhPlanTimeStr</source>
        <comment>Widget</comment>
        <translation>Piano </translation>
    </message>
    <message>
        <source>zhModeStr</source>
        <comment>Widget</comment>
        <translation>Modo</translation>
    </message>
    <message>
        <source>zhTimeStr</source>
        <comment>Widget</comment>
        <translation>Orario</translation>
    </message>
    <message>
        <source>zhfrequencyStr</source>
        <comment>Widget</comment>
        <translation>Ripetizioni</translation>
    </message>
    <message>
        <source>szDateStr</source>
        <comment>Widget</comment>
        <translation>Giorni</translation>
    </message>
    <message>
        <source>zhEndActionStr</source>
        <comment>Widget</comment>
        <translation>Alla fine</translation>
    </message>
    <message>
        <source>zhBlackScreen</source>
        <comment>Widget</comment>
        <translation>Schermo nero</translation>
    </message>
    <message>
        <source>zhFreezeCurrentFrame</source>
        <comment>Widget</comment>
        <translation>Fermo immagine</translation>
    </message>
    <message>
        <source>szEveryDayStr</source>
        <comment>Widget</comment>
        <translation>Ogni giorno</translation>
    </message>
    <message>
        <source>szMondayStr</source>
        <comment>Widget</comment>
        <translation>Lun</translation>
    </message>
    <message>
        <source>szTuesdayStr</source>
        <comment>Widget</comment>
        <translation>Mar</translation>
    </message>
    <message>
        <source>szWednesdayStr</source>
        <comment>Widget</comment>
        <translation>Mer</translation>
    </message>
    <message>
        <source>szThursdayStr</source>
        <comment>Widget</comment>
        <translation>Gio</translation>
    </message>
    <message>
        <source>szFridayStr</source>
        <comment>Widget</comment>
        <translation>Ven</translation>
    </message>
    <message>
        <source>szSaturdayStr</source>
        <comment>Widget</comment>
        <translation>Sab</translation>
    </message>
    <message>
        <source>szSundayStr</source>
        <comment>Widget</comment>
        <translation>Dom</translation>
    </message>
    <message>
        <source>zhconflictStr</source>
        <comment>Widget</comment>
        <translation>Conflitto</translation>
    </message>
    <message>
        <source>zhnormalStr</source>
        <comment>Widget</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>szInvalidStr</source>
        <comment>Widget</comment>
        <translation> (non valido)</translation>
    </message>
    <message>
        <source>szProgNullStr</source>
        <comment>Widget</comment>
        <translation> (eliminato)</translation>
    </message>
    <message>
        <source>zhStartVaildTimeError</source>
        <comment>Widget</comment>
        <translation>L’inizio non può essere dopo la fine.</translation>
    </message>
    <message>
        <source>szDeletePlanConfirmStr</source>
        <comment>Widget</comment>
        <translation>Eliminare questo piano?</translation>
    </message>
    <message>
        <source>szDeleteTaskConfirmStr</source>
        <comment>Widget</comment>
        <translation>Eliminare questa attività e tutti i suoi piani?</translation>
    </message>
    <message>
        <source>zhSelectProgramsStr</source>
        <comment>Widget</comment>
        <translation>Scegli i programmi</translation>
    </message>
    <message>
        <source>szProgramLstStr</source>
        <comment>Widget</comment>
        <translation>Programmi</translation>
    </message>
    <message>
        <source>szPlanLstStr</source>
        <comment>Widget</comment>
        <translation>Programmi del piano</translation>
    </message>
    <message>
        <source>zhCheckNumber</source>
        <comment>Widget</comment>
        <translation>N.</translation>
    </message>
    <message>
        <source>zhPlayCounts</source>
        <comment>Widget</comment>
        <translation>Volte</translation>
    </message>
    <message>
        <source>zhOnlyOne</source>
        <comment>Widget</comment>
        <translation>Segnare un solo programma per spostarlo.</translation>
    </message>
    <message>
        <source>zhTotalDuration</source>
        <comment>Widget</comment>
        <translation>Durata totale del piano: </translation>
    </message>
    <message>
        <source>zhOverTimeTips</source>
        <comment>Widget</comment>
        <translation>Il piano dura più di 24 ore. Accorciarlo.</translation>
    </message>
    <message>
        <source>zhCutCurrentProg</source>
        <comment>Widget</comment>
        <translation>Inserisci subito</translation>
    </message>
    <message>
        <source>zhDelayInsert</source>
        <comment>Widget</comment>
        <translation>Inserisci dopo</translation>
    </message>
    <message>
        <source>zhProgMoveUp</source>
        <comment>Widget</comment>
        <translation>Sposta su</translation>
    </message>
    <message>
        <source>zhProgMoveDown</source>
        <comment>Widget</comment>
        <translation>Sposta giù</translation>
    </message>
    <message>
        <source>zhCutProgWarnning</source>
        <comment>Widget</comment>
        <translation>L’orario del piano è passato; non si può più inserire nulla.</translation>
    </message>
    <message>
        <source>zhMinAct</source>
        <comment>Widget</comment>
        <translation>Riduci a icona</translation>
    </message>
    <message>
        <source>zhReductionAct</source>
        <comment>Widget</comment>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>zhMaxAct</source>
        <comment>Widget</comment>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>zhCloseAct</source>
        <comment>Widget</comment>
        <translation>Chiudi</translation>
    </message>
</context>
</TS>
