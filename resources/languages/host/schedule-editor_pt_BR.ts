<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
<context>
    <name>Demonstration</name>
    <message>
        <source>The demonstration could not be read: %1: %2</source>
        <translation>Não foi possível ler a demonstração: %1: %2</translation>
    </message>
    <message>
        <source>The demonstration media could not be copied to the database folder.</source>
        <translation>Não foi possível copiar as mídias da demonstração para a pasta do banco de dados.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EditorMenus</name>
    <message>
        <source>&amp;Schedule</source>
        <translation>Pro&amp;gramação</translation>
    </message>
    <message>
        <source>&amp;Edit schedule</source>
        <translation>&amp;Editar a programação</translation>
    </message>
    <message>
        <source>&amp;Open database…</source>
        <translation>&amp;Abrir banco de dados…</translation>
    </message>
    <message>
        <source>&amp;Read schedule from a file…</source>
        <translation>&amp;Ler a programação de um arquivo…</translation>
    </message>
    <message>
        <source>&amp;Write schedule to a file…</source>
        <translation>&amp;Gravar a programação em um arquivo…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>E&amp;xibir</translation>
    </message>
    <message>
        <source>&amp;Dark theme</source>
        <translation>Tema &amp;escuro</translation>
    </message>
    <message>
        <source>&amp;Light theme</source>
        <translation>Tema &amp;claro</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>&amp;Programs</source>
        <translation>&amp;Programas</translation>
    </message>
    <message>
        <source>&amp;Import files…</source>
        <translation>&amp;Importar arquivos…</translation>
    </message>
    <message>
        <source>Import &amp;folder…</source>
        <translation>Importar &amp;pasta…</translation>
    </message>
    <message>
        <source>&amp;Remove from catalog</source>
        <translation>&amp;Remover do catálogo</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EditorWindow</name>
    <message>
        <source>Now and next</source>
        <translation>Agora e a seguir</translation>
    </message>
    <message>
        <source>Clock changes</source>
        <translation>Mudanças de horário</translation>
    </message>
    <message>
        <source>&amp;Now and next</source>
        <translation>&amp;Agora e a seguir</translation>
    </message>
    <message>
        <source>&amp;Clock changes</source>
        <translation>Mudanças de &amp;horário</translation>
    </message>
    <message>
        <source>No programs yet. Drop media files or folders here, or choose “Import files”.</source>
        <translation>Ainda não há programas. Arraste arquivos de mídia ou pastas para cá ou escolha “Importar arquivos”.</translation>
    </message>
    <message>
        <source>Schedule editor</source>
        <translation>Editor da programação</translation>
    </message>
    <message>
        <source>%1 – Schedule editor</source>
        <translation>%1 – Editor de programação</translation>
    </message>
    <message>
        <source>Open database</source>
        <translation>Abrir banco de dados</translation>
    </message>
    <message>
        <source>Schedules (*.db *.sqlite);;All files (*)</source>
        <translation>Programações (*.db *.sqlite);;Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>Import files</source>
        <translation>Importar arquivos</translation>
    </message>
    <message>
        <source>Import folder</source>
        <translation>Importar pasta</translation>
    </message>
    <message>
        <source>Write the schedule to a file</source>
        <translation>Gravar a programação em um arquivo</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>Programações (*.json)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>Gravado em %1.</translation>
    </message>
    <message>
        <source>Read a schedule from a file</source>
        <translation>Ler uma programação de um arquivo</translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation>Não foi possível ler %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Replace the whole schedule with the %n tasks in this file?</source>
        <translation>
            <numerusform>Este arquivo contém %n tarefa. Substituir toda a programação?</numerusform>
            <numerusform>Este arquivo contém %n tarefas. Substituir toda a programação?</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Substituir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n programs from the catalog? Plans that use them will show their entries as invalid. The files are not deleted.</source>
        <translation>
            <numerusform>Remover este programa do catálogo? Os planos que o utilizam mostrarão as entradas dele como inválidas. O arquivo é mantido.</numerusform>
            <numerusform>Remover %n programas do catálogo? Os planos que os utilizam mostrarão as entradas deles como inválidas. Os arquivos são mantidos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Importing</source>
        <translation>Importando</translation>
    </message>
    <message>
        <source>Looking for files: %1 found</source>
        <translation>Procurando arquivos: %1 encontrados</translation>
    </message>
    <message>
        <source>The import was canceled; nothing was imported.</source>
        <translation>A importação foi cancelada; nada foi adicionado.</translation>
    </message>
    <message>
        <source>Imported: %1 new, %2 updated.</source>
        <translation>Importação concluída: %1 novos, %2 atualizados.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>file and reason</comment>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more.</source>
        <translation>
            <numerusform>… e mais %n.</numerusform>
            <numerusform>… e mais %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some files could not be imported:</source>
        <translation>Alguns arquivos não puderam ser importados:</translation>
    </message>
    <message>
        <source>The schedule has changes that are not saved.</source>
        <translation>A programação tem alterações não salvas.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Keep editing</source>
        <translation>Continuar editando</translation>
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
    <name>trel::desktop::ProgramTableModel</name>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Áudio</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Ao vivo</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Outro</translation>
    </message>
    <message>
        <source>File not found: %1</source>
        <translation>O arquivo não existe mais: %1</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nº</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
</context>
<context>
    <name>trel::desktop::SaveRescue</name>
    <message>
        <source>The schedule was not saved. %1

What do you want to do with your changes?</source>
        <translation>A programação não foi salva. %1

O que deseja fazer com as alterações?</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Write to a file</source>
        <translation>Gravar em um arquivo</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Write the schedule to a file</source>
        <translation>Gravar a programação em um arquivo</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>Programações (*.json)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ClockChangePanel</name>
    <message>
        <source>Clock changes</source>
        <translation>Mudanças de horário</translation>
    </message>
    <message>
        <source>No clock change falls within the validity of any task.</source>
        <translation>Nenhuma mudança de horário ocorre dentro da validade de uma tarefa.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; no plan of task %4 is affected.</source>
        <translation>%1: %2–%3 não existe; nenhum plano da tarefa %4 é afetado.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 does not play.</source>
        <translation>%1: %2–%3 não existe; o plano %4 da tarefa %5 não é exibido.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 starts at %6 in the middle of its list.</source>
        <translation>%1: %2–%3 não existe; o plano %4 da tarefa %5 começa às %6 no meio da lista.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 is cut off at %6.</source>
        <translation>%1: %2–%3 não existe; o plano %4 da tarefa %5 é cortado às %6.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 skips this part of its list.</source>
        <translation>%1: %2–%3 não existe; o plano %4 da tarefa %5 pula esta parte da lista.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; no plan of task %4 is affected.</source>
        <translation>%1: %2–%3 ocorre duas vezes; nenhum plano da tarefa %4 é afetado.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 plays twice.</source>
        <translation>%1: %2–%3 ocorre duas vezes; o plano %4 da tarefa %5 é exibido duas vezes.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 starts twice at %6.</source>
        <translation>%1: %2–%3 ocorre duas vezes; o plano %4 da tarefa %5 começa duas vezes às %6.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 ends twice at %6.</source>
        <translation>%1: %2–%3 ocorre duas vezes; o plano %4 da tarefa %5 termina duas vezes às %6.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 repeats this part of its list.</source>
        <translation>%1: %2–%3 ocorre duas vezes; o plano %4 da tarefa %5 repete esta parte da lista.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::PreviewDock</name>
    <message>
        <source>Preview</source>
        <translation>Pré-visualização</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Pré-visualização</translation>
    </message>
    <message>
        <source>&amp;Full-screen preview</source>
        <translation>Pré-visualização em &amp;tela cheia</translation>
    </message>
</context>
<context>
    <name>trel::desktop::PreviewScreen</name>
    <message>
        <source>Preview of the screen</source>
        <translation>Pré-visualização da tela</translation>
    </message>
</context>
<context>
    <name>trel::desktop::NowNextPanel</name>
    <message>
        <source>Now</source>
        <translation>Agora</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>A seguir</translation>
    </message>
    <message>
        <source>Cut in</source>
        <translation>Inserido</translation>
    </message>
    <message>
        <source>Now and next</source>
        <translation>Agora e a seguir</translation>
    </message>
    <message>
        <source>What the screen shows</source>
        <translation>Conteúdo da tela</translation>
    </message>
    <message>
        <source>Program on screen</source>
        <translation>Programa na tela</translation>
    </message>
    <message>
        <source>Position in the program</source>
        <translation>Posição no programa</translation>
    </message>
    <message>
        <source>Why this is on screen</source>
        <translation>Por que isto está na tela</translation>
    </message>
    <message>
        <source>Next program</source>
        <translation>Próximo programa</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>Não iniciada</translation>
    </message>
    <message>
        <source>%1 played</source>
        <translation>%1 exibido</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>restam %1</translation>
    </message>
    <message>
        <source>%1, until %2, %3 left</source>
        <translation>%1, até as %2, restam %3</translation>
    </message>
    <message>
        <source>Nothing else is scheduled.</source>
        <translation>Não há mais nada programado.</translation>
    </message>
    <message>
        <source>at %1, in %2</source>
        <translation>às %1, em %2</translation>
    </message>
    <message>
        <source>on %1 at %2</source>
        <translation>em %1 às %2</translation>
    </message>
</context>
<context>
    <name>ScreenWords</name>
    <message>
        <source>Playing</source>
        <translation>Em exibição</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Preto</translation>
    </message>
    <message>
        <source>Frozen</source>
        <translation>Congelado</translation>
    </message>
    <message>
        <source>Last frame of %1</source>
        <translation>Último quadro de %1</translation>
    </message>
    <message>
        <source>Black screen</source>
        <translation>Tela preta</translation>
    </message>
    <message>
        <source>Entry %1 of %2, play %3 of %4</source>
        <translation>Entrada %1 de %2, exibição %3 de %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2</source>
        <translation>Tarefa %1, plano %2</translation>
    </message>
    <message>
        <source>Choose Start in the schedule editor to put the saved schedule into effect.</source>
        <translation>O botão “Iniciar” do editor põe em vigor a programação salva.</translation>
    </message>
    <message>
        <source>No plan has started yet.</source>
        <translation>Nenhum plano começou até agora.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is the first of the plans for this time.</source>
        <translation>Entre os planos deste horário, o plano %1 da tarefa %2 vem primeiro.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is due, but none of its programs can play.</source>
        <translation>É a vez do plano %1 da tarefa %2, mas nenhum de seus programas pode ser exibido.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is due, but its list is to run less than once.</source>
        <translation>É a vez do plano %1 da tarefa %2, mas sua lista deve ser exibida menos de uma vez.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 has played its list the set number of times.</source>
        <translation>O plano %1 da tarefa %2 já exibiu sua lista o número de vezes previsto.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is over, and no other has begun.</source>
        <translation>O plano %1 da tarefa %2 terminou, e nenhum outro começou.</translation>
    </message>
    <message>
        <source>Cut in manually in place of plan %1 of task %2.</source>
        <translation>Inserido manualmente no lugar do plano %1 da tarefa %2.</translation>
    </message>
    <message>
        <source>What was cut in for plan %1 of task %2 has nothing left to play.</source>
        <translation>A inserção no lugar do plano %1 da tarefa %2 não tem mais nada a exibir.</translation>
    </message>
    <message>
        <source>Cut in: %1</source>
        <translation>Inserido: %1</translation>
    </message>
    <message>
        <source>Original list: %1</source>
        <translation>Antes: %1</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between programs</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>Week</name>
    <message>
        <source>On screen: %1, at %2</source>
        <translation>Na tela: %1, em %2</translation>
    </message>
    <message>
        <source>On screen: %1</source>
        <translation>Na tela: %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>day and time of day</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 to %2 is skipped: the clocks go forward.</source>
        <translation>O intervalo de %1 a %2 não existe: os relógios são adiantados.</translation>
    </message>
    <message>
        <source>%1 to %2 occurs twice: the clocks go back.</source>
        <translation>O intervalo de %1 a %2 ocorre duas vezes: os relógios são atrasados.</translation>
    </message>
    <message numerus="yes">
        <source>%n more plans do not reach the screen.</source>
        <translation>
            <numerusform>Mais %n plano não aparece na tela.</numerusform>
            <numerusform>Mais %n planos não aparecem na tela.</numerusform>
        </translation>
    </message>
    <message>
        <source>Plan %1, above it, takes precedence.</source>
        <translation>O plano %1 está acima e tem prioridade.</translation>
    </message>
    <message>
        <source>It conflicts with a plan above it.</source>
        <translation>Conflita com um plano acima.</translation>
    </message>
    <message>
        <source>Its list is over at %1, before the plan ends.</source>
        <translation>Sua lista termina às %1, antes do plano.</translation>
    </message>
    <message>
        <source>Plan %1, %2 to %3</source>
        <translation>Plano %1, %2 a %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>plan and its programs</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>No task is valid on this day.</source>
        <translation>Nenhuma tarefa vale neste dia.</translation>
    </message>
    <message>
        <source>No task is valid</source>
        <translation>Sem tarefa</translation>
    </message>
    <message>
        <source>No task</source>
        <translation>Sem tarefa</translation>
    </message>
    <message>
        <source>Task %1</source>
        <translation>Tarefa %1</translation>
    </message>
    <message>
        <source>Frozen: %1</source>
        <translation>Congelado: %1</translation>
    </message>
    <message>
        <source>Cut in: %1</source>
        <translation>Inserido: %1</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Não existe</translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation>Duas vezes</translation>
    </message>
    <message>
        <source>nothing to show</source>
        <translation>nada a mostrar</translation>
    </message>
</context>
<context>
    <name>trel::desktop::WeekDock</name>
    <message>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>&amp;Semana</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekView</name>
    <message>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekPanel</name>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>Whole day</source>
        <translation>Dia inteiro</translation>
    </message>
    <message>
        <source>As edited</source>
        <translation>Em edição</translation>
    </message>
    <message>
        <source>In effect</source>
        <translation>Em vigor</translation>
    </message>
    <message>
        <source>Previous week</source>
        <translation>Semana anterior</translation>
    </message>
    <message>
        <source>Next week</source>
        <translation>Semana seguinte</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Reduzir</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Schedule shown</source>
        <translation>Qual programação é mostrada</translation>
    </message>
</context>
<context>
    <name>PlanFaultText</name>
    <message>
        <source>Plan %1 never plays: none of its days is a day of the week.</source>
        <translation>O plano %1 nunca é exibido: nenhum dos seus dias é um dia da semana.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, is not a time in the form %3.</source>
        <translation>O plano %1 nunca é exibido: seu início, “%2”, não é um horário no formato %3.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its end, “%2”, is not a time in the form %3.</source>
        <translation>O plano %1 nunca é exibido: seu fim, “%2”, não é um horário no formato %3.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, and its end, “%3”, are not times in the form %4.</source>
        <translation>O plano %1 nunca é exibido: seu início, “%2”, e seu fim, “%3”, não são horários no formato %4.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its list is to run less than once.</source>
        <translation>O plano %1 nunca é exibido: sua lista deve ser exibida menos de uma vez.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it starts and ends at %2.</source>
        <translation>O plano %1 nunca é exibido: começa e termina às %2.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it ends at %3, before it starts at %2.</source>
        <translation>O plano %1 nunca é exibido: começa às %2 e termina antes, às %3.</translation>
    </message>
</context>
<context>
    <name>ZoneError</name>
    <message>
        <source>The system knows no time zone of the name “%1”, so that the local time is not known.</source>
        <translation>O sistema não conhece nenhum fuso horário chamado “%1”; por isso a hora local não é conhecida.</translation>
    </message>
</context>
<context>
    <name>trel::widgets::TitleButton</name>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
</TS>
