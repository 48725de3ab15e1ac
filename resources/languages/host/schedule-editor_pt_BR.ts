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
</TS>
