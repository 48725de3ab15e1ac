<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>SheduleWidgets</name>
    <message>
        <source>zhSchedulePlayStr</source>
        <comment>Widget</comment>
        <translation>Programação</translation>
    </message>
    <message>
        <source>zhSchedulePlayStrAdd</source>
        <comment>Widget</comment>
        <translation>Adicionar tarefa</translation>
    </message>
    <message>
        <source>zhScheduleLoading</source>
        <comment>Widget</comment>
        <translation>Carregando…</translation>
    </message>
    <message>
        <source>zhEnable</source>
        <comment>Widget</comment>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>zhNoPlayTask</source>
        <comment>Widget</comment>
        <translation>Ainda não há tarefas. Clique em “Adicionar tarefa” para começar.</translation>
    </message>
    <message>
        <source>zhSegConflictStr</source>
        <comment>Widget</comment>
        <translation>têm períodos de validade que se sobrepõem. Altere as datas e tente novamente.</translation>
    </message>
    <message>
        <source>zhPlayTaskStr</source>
        <comment>Widget</comment>
        <translation>Tarefa </translation>
    </message>
    <message>
        <source>zhCancelAct</source>
        <comment>Widget</comment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>zhFixAct</source>
        <comment>Widget</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>zhRefuseAct</source>
        <comment>Widget</comment>
        <translation>Recusar</translation>
    </message>
    <message>
        <source>zhtitleTip</source>
        <comment>Widget</comment>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>zhEffectiveStr</source>
        <comment>Widget</comment>
        <translation>Validade: </translation>
    </message>
    <message>
        <source>zhFromStr</source>
        <comment>Widget</comment>
        <translation>de</translation>
    </message>
    <message>
        <source>zhToStr</source>
        <comment>Widget</comment>
        <translation>a</translation>
    </message>
    <message>
        <source>zhCreateCopy</source>
        <comment>Widget</comment>
        <translation>Criar cópia</translation>
    </message>
    <message>
        <source>szDeleteStr</source>
        <comment>Widget</comment>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>zhPlanTimeStr</source>
        <comment>Widget</comment>
        <translation>Nº </translation>
    </message>
    <message>
        <source>zhModeStr</source>
        <comment>Widget</comment>
        <translation>Modo</translation>
    </message>
    <message>
        <source>zhTimeStr</source>
        <comment>Widget</comment>
        <translation>Hora</translation>
    </message>
    <message>
        <source>zhfrequencyStr</source>
        <comment>Widget</comment>
        <translation>Vezes</translation>
    </message>
    <message>
        <source>szDateStr</source>
        <comment>Widget</comment>
        <translation>Dias</translation>
    </message>
    <message>
        <source>zhEndActionStr</source>
        <comment>Widget</comment>
        <translation>Ao final</translation>
    </message>
    <message>
        <source>zhBlackScreen</source>
        <comment>Widget</comment>
        <translation>Tela preta</translation>
    </message>
    <message>
        <source>zhFreezeCurrentFrame</source>
        <comment>Widget</comment>
        <translation>Congelar tela</translation>
    </message>
    <message>
        <source>szEveryDayStr</source>
        <comment>Widget</comment>
        <translation>Todo dia</translation>
    </message>
    <message>
        <source>szMondayStr</source>
        <comment>Widget</comment>
        <translation>Seg</translation>
    </message>
    <message>
        <source>szTuesdayStr</source>
        <comment>Widget</comment>
        <translation>Ter</translation>
    </message>
    <message>
        <source>szWednesdayStr</source>
        <comment>Widget</comment>
        <translation>Qua</translation>
    </message>
    <message>
        <source>szThursdayStr</source>
        <comment>Widget</comment>
        <translation>Qui</translation>
    </message>
    <message>
        <source>szFridayStr</source>
        <comment>Widget</comment>
        <translation>Sex</translation>
    </message>
    <message>
        <source>szSaturdayStr</source>
        <comment>Widget</comment>
        <translation>Sáb</translation>
    </message>
    <message>
        <source>szSundayStr</source>
        <comment>Widget</comment>
        <translation>Dom</translation>
    </message>
    <message>
        <source>zhconflictStr</source>
        <comment>Widget</comment>
        <translation>Conflito</translation>
    </message>
    <message>
        <source>zhnormalStr</source>
        <comment>Widget</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>szInvalidStr</source>
        <comment>Widget</comment>
        <translation> (inválido)</translation>
    </message>
    <message>
        <source>szProgNullStr</source>
        <comment>Widget</comment>
        <translation> (excluído)</translation>
    </message>
    <message>
        <source>zhStartVaildTimeError</source>
        <comment>Widget</comment>
        <translation>O início não pode ser posterior ao fim.</translation>
    </message>
    <message>
        <source>szDeletePlanConfirmStr</source>
        <comment>Widget</comment>
        <translation>Excluir este plano de exibição?</translation>
    </message>
    <message>
        <source>szDeleteTaskConfirmStr</source>
        <comment>Widget</comment>
        <translation>Excluir esta tarefa e todos os seus planos?</translation>
    </message>
    <message>
        <source>zhSelectProgramsStr</source>
        <comment>Widget</comment>
        <translation>Selecionar programas</translation>
    </message>
    <message>
        <source>szProgramLstStr</source>
        <comment>Widget</comment>
        <translation>Programas</translation>
    </message>
    <message>
        <source>szPlanLstStr</source>
        <comment>Widget</comment>
        <translation>Programas do plano</translation>
    </message>
    <message>
        <source>zhCheckNumber</source>
        <comment>Widget</comment>
        <translation>Nº</translation>
    </message>
    <message>
        <source>zhPlayCounts</source>
        <comment>Widget</comment>
        <translation>Exibições</translation>
    </message>
    <message>
        <source>zhOnlyOne</source>
        <comment>Widget</comment>
        <translation>Marque apenas um programa para movê-lo.</translation>
    </message>
    <message>
        <source>zhTotalDuration</source>
        <comment>Widget</comment>
        <translation>Duração total do plano: </translation>
    </message>
    <message>
        <source>zhOverTimeTips</source>
        <comment>Widget</comment>
        <translation>O plano passa de 24 horas. Reduza a duração.</translation>
    </message>
    <message>
        <source>zhCutCurrentProg</source>
        <comment>Widget</comment>
        <translation>Inserir agora</translation>
    </message>
    <message>
        <source>zhDelayInsert</source>
        <comment>Widget</comment>
        <translation>Inserir mais tarde</translation>
    </message>
    <message>
        <source>zhProgMoveUp</source>
        <comment>Widget</comment>
        <translation>Mover para cima</translation>
    </message>
    <message>
        <source>zhProgMoveDown</source>
        <comment>Widget</comment>
        <translation>Mover para baixo</translation>
    </message>
    <message>
        <source>zhCutProgWarnning</source>
        <comment>Widget</comment>
        <translation>O horário de exibição já passou; não é possível inserir.</translation>
    </message>
    <message>
        <source>zhMinAct</source>
        <comment>Widget</comment>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>zhReductionAct</source>
        <comment>Widget</comment>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>zhMaxAct</source>
        <comment>Widget</comment>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>zhCloseAct</source>
        <comment>Widget</comment>
        <translation>Fechar</translation>
    </message>
</context>
</TS>
