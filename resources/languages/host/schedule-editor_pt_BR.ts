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
        <source>The demonstration&apos;s media could not be copied beside the database.</source>
        <translation>Não foi possível copiar as mídias da demonstração para junto do banco de dados.</translation>
    </message>
</context>
<context>
    <name>EditorMenus</name>
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
        <source>&amp;Remove from catalogue</source>
        <translation>&amp;Remover do catálogo</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>Now and next</source>
        <translation>Agora e depois</translation>
    </message>
    <message>
        <source>Changes of the clocks</source>
        <translation>Mudanças de horário</translation>
    </message>
    <message>
        <source>No programs yet. Drop media files or folders here, or choose Import.</source>
        <translation>Ainda não há programas. Arraste arquivos de mídia ou pastas para cá ou escolha “Importar”.</translation>
    </message>
    <message>
        <source>Schedule editor</source>
        <translation>Editor de programação</translation>
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
        <source>Replace the whole schedule by the %n tasks of this file?</source>
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
        <source>Remove %n programs from the catalogue? Plans that use them will show their entries as invalid. The files stay.</source>
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
        <source>The import was cancelled; nothing was taken in.</source>
        <translation>A importação foi cancelada; nada foi adicionado.</translation>
    </message>
    <message>
        <source>Imported: %1 new, %2 updated.</source>
        <translation>Importação concluída: %1 novos, %2 atualizados.</translation>
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
        <source>Stay</source>
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
    <name>ProgramTableModel</name>
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
        <source>The file has gone: %1</source>
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
    <name>SaveRescue</name>
    <message>
        <source>The schedule was not saved. %1

What shall become of your changes?</source>
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
        <source>Give up</source>
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
    <name>ClockChangePanel</name>
    <message>
        <source>Changes of the clocks</source>
        <translation>Mudanças de horário</translation>
    </message>
    <message>
        <source>No change of the clocks falls on a day of any task.</source>
        <translation>Nenhuma mudança de horário cai em um dia de uma tarefa.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is left out;</source>
        <translation>%1: %2–%3 não existe;</translation>
    </message>
    <message>
        <source>%1: %2–%3 comes twice;</source>
        <translation>%1: %2–%3 ocorre duas vezes;</translation>
    </message>
    <message>
        <source>it touches no plan of task %1.</source>
        <translation>nenhum plano da tarefa %1 é afetado.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 does not play.</source>
        <translation>o plano %1 da tarefa %2 não é reproduzido.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 starts at %3 in the middle of its list.</source>
        <translation>o plano %1 da tarefa %2 começa às %3 no meio da lista.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 is cut off at %3.</source>
        <translation>o plano %1 da tarefa %2 é cortado às %3.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 skips this part of its list.</source>
        <translation>o plano %1 da tarefa %2 pula esta parte da lista.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 plays twice.</source>
        <translation>o plano %1 da tarefa %2 é reproduzido duas vezes.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 starts twice at %3.</source>
        <translation>o plano %1 da tarefa %2 começa duas vezes às %3.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 ends twice at %3.</source>
        <translation>o plano %1 da tarefa %2 termina duas vezes às %3.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 repeats this part of its list.</source>
        <translation>o plano %1 da tarefa %2 repete esta parte da lista.</translation>
    </message>
</context>
<context>
    <name>PreviewDock</name>
    <message>
        <source>Preview</source>
        <translation>Pré-visualização</translation>
    </message>
    <message>
        <source>&amp;Full screen preview</source>
        <translation>Pré-visualização em &amp;tela cheia</translation>
    </message>
</context>
<context>
    <name>PreviewScreen</name>
    <message>
        <source>Preview of the screen</source>
        <translation>Pré-visualização da tela</translation>
    </message>
</context>
<context>
    <name>NowNextPanel</name>
    <message>
        <source>Now</source>
        <translation>Agora</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Depois</translation>
    </message>
    <message>
        <source>Cut in</source>
        <translation>Inserido</translation>
    </message>
    <message>
        <source>Now and next</source>
        <translation>Agora e depois</translation>
    </message>
    <message>
        <source>What the screen shows</source>
        <translation>O que a tela mostra</translation>
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
        <source>Program that comes next</source>
        <translation>Programa que vem depois</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>Não iniciado</translation>
    </message>
    <message>
        <source>%1 played</source>
        <translation>%1 reproduzido</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>resta %1</translation>
    </message>
    <message>
        <source>%1, until %2, %3 left</source>
        <translation>%1, até %2, resta %3</translation>
    </message>
    <message>
        <source>Nothing else comes.</source>
        <translation>Nada mais vem.</translation>
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
        <translation>Reproduzindo</translation>
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
        <translation>Entrada %1 de %2, reprodução %3 de %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2</source>
        <translation>Tarefa %1, plano %2</translation>
    </message>
    <message>
        <source>The start button of the schedule editor puts the saved schedule into effect.</source>
        <translation>O botão de início do editor põe em vigor a programação salva.</translation>
    </message>
    <message>
        <source>No plan has had the screen up to now.</source>
        <translation>Até agora nenhum plano teve a tela.</translation>
    </message>
    <message>
        <source>Of the plans for this time of day, plan %1 of task %2 comes first.</source>
        <translation>Dos planos para esta hora, o plano %1 da tarefa %2 vem primeiro.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 has the screen, but none of its programs can play.</source>
        <translation>O plano %1 da tarefa %2 tem a tela, mas nenhum programa pode ser reproduzido.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 has the screen, but its list is to run less than once.</source>
        <translation>O plano %1 da tarefa %2 tem a tela, mas sua lista deve ser reproduzida menos de uma vez.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 has played its list as often as it should.</source>
        <translation>O plano %1 da tarefa %2 já reproduziu sua lista as vezes previstas.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is over, and no other has begun.</source>
        <translation>O plano %1 da tarefa %2 terminou, e nenhum outro começou.</translation>
    </message>
    <message>
        <source>It was cut in by hand, in the place of plan %1 of task %2.</source>
        <translation>Inserido à mão, no lugar do plano %1 da tarefa %2.</translation>
    </message>
    <message>
        <source>What was cut in, in the place of plan %1 of task %2, has nothing more to play.</source>
        <translation>O que foi inserido no lugar do plano %1 da tarefa %2 não tem mais nada a reproduzir.</translation>
    </message>
    <message>
        <source>Cut in: %1</source>
        <translation>Inserido: %1</translation>
    </message>
    <message>
        <source>Before: %1</source>
        <translation>Antes: %1</translation>
    </message>
</context>
<context>
    <name>Week</name>
    <message>
        <source>On screen: %1, %2 into it</source>
        <translation>Na tela: %1, em %2</translation>
    </message>
    <message>
        <source>On screen: %1</source>
        <translation>Na tela: %1</translation>
    </message>
    <message>
        <source>%1 to %2 is left out: the clocks go forward.</source>
        <translation>De %1 a %2 não existe: os relógios são adiantados.</translation>
    </message>
    <message>
        <source>%1 to %2 comes twice: the clocks go back.</source>
        <translation>De %1 a %2 ocorre duas vezes: os relógios são atrasados.</translation>
    </message>
    <message numerus="yes">
        <source>%n more plans are kept from the screen.</source>
        <translation>
            <numerusform>Mais %n plano não obtém a tela.</numerusform>
            <numerusform>Mais %n planos não obtêm a tela.</numerusform>
        </translation>
    </message>
    <message>
        <source>Plan %1 stands above it and has the screen instead.</source>
        <translation>O plano %1 está acima e tem a tela em seu lugar.</translation>
    </message>
    <message>
        <source>It collides with a plan above it.</source>
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
        <source>No task is valid on this day.</source>
        <translation>Nenhuma tarefa vale neste dia.</translation>
    </message>
    <message>
        <source>No task is valid</source>
        <translation>Nenhuma tarefa válida</translation>
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
        <source>Left out: clocks go forward</source>
        <translation>Não existe: adianta-se a hora</translation>
    </message>
    <message>
        <source>Comes twice: clocks go back</source>
        <translation>Duas vezes: atrasa-se a hora</translation>
    </message>
    <message>
        <source>nothing to show</source>
        <translation>nada a mostrar</translation>
    </message>
</context>
<context>
    <name>WeekDock</name>
    <message>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
</context>
<context>
    <name>week::WeekView</name>
    <message>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
</context>
<context>
    <name>week::WeekPanel</name>
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
        <source>Week before</source>
        <translation>Semana anterior</translation>
    </message>
    <message>
        <source>Week after</source>
        <translation>Semana seguinte</translation>
    </message>
    <message>
        <source>Hours less high</source>
        <translation>Horas mais baixas</translation>
    </message>
    <message>
        <source>Hours higher</source>
        <translation>Horas mais altas</translation>
    </message>
    <message>
        <source>Which schedule is shown</source>
        <translation>Qual programação é mostrada</translation>
    </message>
</context>
<context>
    <name>PlanFaultText</name>
    <message>
        <source>Plan %1 never plays: none of its days is a day of the week.</source>
        <translation>O plano %1 nunca é reproduzido: nenhum dos seus dias é um dia da semana.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, is not a time in the form %3.</source>
        <translation>O plano %1 nunca é reproduzido: seu início, “%2”, não é uma hora no formato %3.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its end, “%2”, is not a time in the form %3.</source>
        <translation>O plano %1 nunca é reproduzido: seu fim, “%2”, não é uma hora no formato %3.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, and its end, “%3”, are not times in the form %4.</source>
        <translation>O plano %1 nunca é reproduzido: seu início, “%2”, e seu fim, “%3”, não são horas no formato %4.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its list is to run less than once.</source>
        <translation>O plano %1 nunca é reproduzido: sua lista deve ser reproduzida menos de uma vez.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it ends as it starts, at %2.</source>
        <translation>O plano %1 nunca é reproduzido: termina ao começar, às %2.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it starts at %2 and ends before, at %3.</source>
        <translation>O plano %1 nunca é reproduzido: começa às %2 e termina antes, às %3.</translation>
    </message>
</context>
<context>
    <name>ZoneError</name>
    <message>
        <source>The system knows no time zone of the name “%1”, so that the local time is not known.</source>
        <translation>O sistema não conhece nenhum fuso horário chamado “%1”; por isso a hora local não é conhecida.</translation>
    </message>
</context>
</TS>
