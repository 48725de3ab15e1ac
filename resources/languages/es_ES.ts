<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>SheduleWidgets</name>
    <message>
        <source>zhSchedulePlayStr</source>
        <comment>Widget</comment>
        <translation>Programación</translation>
    </message>
    <message>
        <source>zhSchedulePlayStrAdd</source>
        <comment>Widget</comment>
        <translation>Añadir tarea</translation>
    </message>
    <message>
        <source>zhScheduleLoading</source>
        <comment>Widget</comment>
        <translation>Cargando…</translation>
    </message>
    <message>
        <source>zhEnable</source>
        <comment>Widget</comment>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>zhNoPlayTask</source>
        <comment>Widget</comment>
        <translation>Aún no hay tareas. Pulse «Añadir tarea» para empezar.</translation>
    </message>
    <message>
        <source>zhSegConflictStr</source>
        <comment>Widget</comment>
        <translation>tienen periodos de validez que se solapan. Cambie las fechas y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>zhPlayTaskStr</source>
        <comment>Widget</comment>
        <translation>Tarea </translation>
    </message>
    <message>
        <source>zhCancelAct</source>
        <comment>Widget</comment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>zhFixAct</source>
        <comment>Widget</comment>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>zhRefuseAct</source>
        <comment>Widget</comment>
        <translation>Rechazar</translation>
    </message>
    <message>
        <source>zhtitleTip</source>
        <comment>Widget</comment>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>zhEffectiveStr</source>
        <comment>Widget</comment>
        <translation>Validez: </translation>
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
        <translation>Crear una copia</translation>
    </message>
    <message>
        <source>szDeleteStr</source>
        <comment>Widget</comment>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>zhPlanTimeStr</source>
        <comment>Widget</comment>
        <translation>Plan </translation>
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
        <translation>Veces</translation>
    </message>
    <message>
        <source>szDateStr</source>
        <comment>Widget</comment>
        <translation>Días</translation>
    </message>
    <message>
        <source>zhEndActionStr</source>
        <comment>Widget</comment>
        <translation>Al final</translation>
    </message>
    <message>
        <source>zhBlackScreen</source>
        <comment>Widget</comment>
        <translation>Pantalla negra</translation>
    </message>
    <message>
        <source>zhFreezeCurrentFrame</source>
        <comment>Widget</comment>
        <translation>Congelar</translation>
    </message>
    <message>
        <source>szEveryDayStr</source>
        <comment>Widget</comment>
        <translation>Cada día</translation>
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
        <translation>Mié</translation>
    </message>
    <message>
        <source>szThursdayStr</source>
        <comment>Widget</comment>
        <translation>Jue</translation>
    </message>
    <message>
        <source>szFridayStr</source>
        <comment>Widget</comment>
        <translation>Vie</translation>
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
        <translation>Conflicto</translation>
    </message>
    <message>
        <source>zhnormalStr</source>
        <comment>Widget</comment>
        <translation>Correcto</translation>
    </message>
    <message>
        <source>szInvalidStr</source>
        <comment>Widget</comment>
        <translation> (no válido)</translation>
    </message>
    <message>
        <source>szProgNullStr</source>
        <comment>Widget</comment>
        <translation> (eliminado)</translation>
    </message>
    <message>
        <source>zhStartVaildTimeError</source>
        <comment>Widget</comment>
        <translation>El inicio no puede ser posterior al fin.</translation>
    </message>
    <message>
        <source>szDeletePlanConfirmStr</source>
        <comment>Widget</comment>
        <translation>¿Eliminar este plan de reproducción?</translation>
    </message>
    <message>
        <source>szDeleteTaskConfirmStr</source>
        <comment>Widget</comment>
        <translation>¿Eliminar esta tarea y todos sus planes?</translation>
    </message>
    <message>
        <source>zhSelectProgramsStr</source>
        <comment>Widget</comment>
        <translation>Seleccionar programas</translation>
    </message>
    <message>
        <source>szProgramLstStr</source>
        <comment>Widget</comment>
        <translation>Programas</translation>
    </message>
    <message>
        <source>szPlanLstStr</source>
        <comment>Widget</comment>
        <translation>Programas del plan</translation>
    </message>
    <message>
        <source>zhCheckNumber</source>
        <comment>Widget</comment>
        <translation>N.º</translation>
    </message>
    <message>
        <source>zhPlayCounts</source>
        <comment>Widget</comment>
        <translation>Veces</translation>
    </message>
    <message>
        <source>zhOnlyOne</source>
        <comment>Widget</comment>
        <translation>Marque un solo programa para moverlo.</translation>
    </message>
    <message>
        <source>zhTotalDuration</source>
        <comment>Widget</comment>
        <translation>Duración total del plan: </translation>
    </message>
    <message>
        <source>zhOverTimeTips</source>
        <comment>Widget</comment>
        <translation>El plan dura más de 24 horas. Acórtelo, por favor.</translation>
    </message>
    <message>
        <source>zhCutCurrentProg</source>
        <comment>Widget</comment>
        <translation>Insertar ahora</translation>
    </message>
    <message>
        <source>zhDelayInsert</source>
        <comment>Widget</comment>
        <translation>Insertar más tarde</translation>
    </message>
    <message>
        <source>zhProgMoveUp</source>
        <comment>Widget</comment>
        <translation>Mover hacia arriba</translation>
    </message>
    <message>
        <source>zhProgMoveDown</source>
        <comment>Widget</comment>
        <translation>Mover hacia abajo</translation>
    </message>
    <message>
        <source>zhCutProgWarnning</source>
        <comment>Widget</comment>
        <translation>La hora de reproducción ya ha pasado; no se puede insertar.</translation>
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
        <translation>Cerrar</translation>
    </message>
</context>
</TS>
