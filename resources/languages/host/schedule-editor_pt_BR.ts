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
        <source>Hi&amp;gh contrast</source>
        <translation>Alto co&amp;ntraste</translation>
    </message>
    <message>
        <source>&amp;As-run of a day…</source>
        <translation>&amp;Registro de exibição de um dia…</translation>
    </message>
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
        <source>Open &amp;from a server…</source>
        <translation>A&amp;brir de um servidor…</translation>
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
    <message>
        <source>S&amp;kip to the next play</source>
        <translation>&amp;Pular para a próxima exibição</translation>
    </message>
    <message>
        <source>&amp;Cancel what is cut in</source>
        <translation>&amp;Cancelar a inserção</translation>
    </message>
    <message>
        <source>S&amp;top the schedule…</source>
        <translation>Pa&amp;rar a programação…</translation>
    </message>
    <message>
        <source>&amp;Bring back what was canceled</source>
        <translation>Rec&amp;uperar o que foi cancelado</translation>
    </message>
    <message>
        <source>&amp;Where used…</source>
        <translation>&amp;Onde é usado…</translation>
    </message>
    <message>
        <source>&amp;Versions…</source>
        <translation>&amp;Versões…</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Visualizar</translation>
    </message>
    <message>
        <source>&amp;New database…</source>
        <translation>&amp;Novo banco de dados…</translation>
    </message>
    <message>
        <source>O&amp;pen recent</source>
        <translation>Abrir recen&amp;te</translation>
    </message>
    <message>
        <source>St&amp;art the schedule…</source>
        <translation>&amp;Iniciar a programação…</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>Pesqui&amp;sar</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EditorWindow</name>
    <message>
        <source>Import: %1 percent</source>
        <translation>Importação: %1 por cento</translation>
    </message>
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
    <message>
        <source>Changes in the editor that are not saved go with it (tasks %1). Undo brings them back.</source>
        <translation>As alterações não salvas no editor também são substituídas (tarefas %1). “Desfazer” as traz de volta.</translation>
    </message>
    <message>
        <source>Save, then replace</source>
        <translation>Salvar e depois substituir</translation>
    </message>
    <message>
        <source>Replace without saving</source>
        <translation>Substituir sem salvar</translation>
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
        <source>The schedule has changes that are not saved. As a draft they are offered when this database is opened again.

Close this question to keep editing.</source>
        <translation>A programação tem alterações não salvas. Como rascunho, elas são oferecidas quando este banco de dados for aberto novamente.

Feche esta pergunta para continuar editando.</translation>
    </message>
    <message>
        <source>Keep as draft</source>
        <translation>Manter rascunho</translation>
    </message>
    <message>
        <source>Catalog</source>
        <translation>Catálogo</translation>
    </message>
    <message>
        <source>Catal&amp;og</source>
        <translation>Catálo&amp;go</translation>
    </message>
    <message>
        <source>The change is in the editor now, where it can be saved.</source>
        <translation>A alteração está agora no editor, onde pode ser salva.</translation>
    </message>
    <message>
        <source>New database</source>
        <translation>Novo banco de dados</translation>
    </message>
    <message>
        <source>The file %1 exists already. It is not written over.</source>
        <translation>O arquivo %1 já existe. Ele não é substituído.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::CataloguePanel</name>
    <message>
        <source>No programs yet. Drop media files or folders here, or choose “Import files”.</source>
        <translation>Ainda não há programas. Arraste arquivos de mídia ou pastas para cá ou escolha “Importar arquivos”.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>No program fits what is searched for.</source>
        <translation>Nenhum programa corresponde ao que se procura.</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n programs from the catalog? The files are not deleted.</source>
        <translation>
            <numerusform>Remover este programa do catálogo? O arquivo não é excluído.</numerusform>
            <numerusform>Remover %n programas do catálogo? Os arquivos não são excluídos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::CatalogueImport</name>
    <message>
        <source>Import files</source>
        <translation>Importar arquivos</translation>
    </message>
    <message>
        <source>Import folder</source>
        <translation>Importar pasta</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Importing</source>
        <translation>Importando</translation>
    </message>
    <message>
        <source>The import was canceled; nothing was imported.</source>
        <translation>A importação foi cancelada; nada foi adicionado.</translation>
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
    <message numerus="yes">
        <source>Looking for files: %n found</source>
        <translation>
            <numerusform>Procurando arquivos: %n encontrado</numerusform>
            <numerusform>Procurando arquivos: %n encontrados</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported: %1, %2.</source>
        <translation>Importação concluída: %1, %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n new</source>
        <translation>
            <numerusform>%n novo</numerusform>
            <numerusform>%n novos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n updated</source>
        <translation>
            <numerusform>%n atualizado</numerusform>
            <numerusform>%n atualizados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HostPrompts</name>
    <message>
        <source>Question</source>
        <translation>Pergunta</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensagem</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The file %1 exists already. Replace it?</source>
        <translation>O arquivo %1 já existe. Deseja substituí-lo?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Substituir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>ProblemWords</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>Não há memória suficiente.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>O disco está cheio.</translation>
    </message>
    <message>
        <source>Your share of the disk is used up.</source>
        <translation>Sua cota de disco está esgotada.</translation>
    </message>
    <message>
        <source>The system does not let this application write a larger file.</source>
        <translation>O sistema não permite que este aplicativo grave um arquivo maior.</translation>
    </message>
    <message>
        <source>The file or its folder is read-only.</source>
        <translation>O arquivo ou sua pasta é somente leitura.</translation>
    </message>
    <message>
        <source>It was opened for reading only.</source>
        <translation>Foi aberto somente para leitura.</translation>
    </message>
    <message>
        <source>Reading it took too long.</source>
        <translation>A leitura demorou demais.</translation>
    </message>
    <message numerus="yes">
        <source>A text in it is longer than %n bytes.</source>
        <translation>
            <numerusform>Contém um texto com mais de %n byte.</numerusform>
            <numerusform>Contém um texto com mais de %n bytes.</numerusform>
        </translation>
    </message>
    <message>
        <source>The database reports error %1.</source>
        <translation>O banco de dados relata o erro %1.</translation>
    </message>
    <message>
        <source>The database reports error %1. %3</source>
        <translation>O banco de dados relata o erro %1. %3</translation>
    </message>
    <message>
        <source>The database has failed its own check.</source>
        <translation>A verificação interna do banco de dados falhou.</translation>
    </message>
    <message>
        <source>The disk reports a read or write error.</source>
        <translation>O disco relata um erro de leitura ou gravação.</translation>
    </message>
    <message>
        <source>Data that must be there is missing.</source>
        <translation>Faltam dados indispensáveis.</translation>
    </message>
    <message>
        <source>The database driver is not the one that this application was made for.</source>
        <translation>O driver do banco de dados não é o previsto para este aplicativo.</translation>
    </message>
    <message>
        <source>The file is missing or empty, but its log %1 is still there.</source>
        <translation>O arquivo não existe ou está vazio, mas seu log %1 ainda existe.</translation>
    </message>
    <message>
        <source>No file can be created there.</source>
        <translation>Não é possível criar um arquivo nesse local.</translation>
    </message>
    <message>
        <source>Its log %1 belongs to another copy of the file. Put back the file that it belongs to, or move the log away to go on without it.</source>
        <translation>O log %1 pertence a outra cópia do arquivo. Recoloque o arquivo correspondente ou mova o log para continuar sem ele.</translation>
    </message>
    <message>
        <source>Its log has no index, and none can be created in a read-only folder. Copy both files to another folder.</source>
        <translation>O log não tem índice, e não é possível criar um em uma pasta somente leitura. Copie os dois arquivos para outra pasta.</translation>
    </message>
    <message>
        <source>It was removed or replaced after it was opened.</source>
        <translation>Foi removido ou substituído depois de aberto.</translation>
    </message>
    <message numerus="yes">
        <source>The name or the path of a program is longer than %n bytes.</source>
        <translation>
            <numerusform>O nome ou o caminho de um programa tem mais de %n byte.</numerusform>
            <numerusform>O nome ou o caminho de um programa tem mais de %n bytes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n numbers for programs are used up.</source>
        <translation>
            <numerusform>O único número de programa já foi usado.</numerusform>
            <numerusform>Todos os %n números de programa já foram usados.</numerusform>
        </translation>
    </message>
    <message>
        <source>Its plans do not fit together.</source>
        <translation>Seus planos não são coerentes entre si.</translation>
    </message>
    <message>
        <source>“%1” is missing.</source>
        <translation>Falta “%1”.</translation>
    </message>
    <message>
        <source>It contains “%1”, which does not belong there.</source>
        <translation>Contém “%1”, que não deveria estar ali.</translation>
    </message>
    <message>
        <source>“%1” has been changed.</source>
        <translation>“%1” foi alterado.</translation>
    </message>
    <message>
        <source>It does not say which state it is in.</source>
        <translation>Não indica em que estado se encontra.</translation>
    </message>
    <message>
        <source>It was created by an older version of this application. Set up the server again.</source>
        <translation>Foi criado por uma versão mais antiga deste aplicativo. Configure o servidor novamente.</translation>
    </message>
    <message>
        <source>The address contains a password. Passwords belong in a password file.</source>
        <translation>O endereço contém uma senha. Senhas devem ficar em um arquivo de senhas.</translation>
    </message>
    <message>
        <source>The address of a schedule on a server has this form: %1</source>
        <translation>O endereço de uma programação em um servidor tem esta forma: %1</translation>
    </message>
    <message>
        <source>The name of the schedule in the address is missing, too long or not readable.</source>
        <translation>O nome da programação no endereço está ausente, é longo demais ou não é legível.</translation>
    </message>
    <message>
        <source>The connection was lost before the server answered.</source>
        <translation>A conexão foi perdida antes de o servidor responder.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>O servidor não responde.</translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n tasks.</source>
        <translation>
            <numerusform>Há mais de %n tarefa.</numerusform>
            <numerusform>Há mais de %n tarefas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n plans.</source>
        <translation>
            <numerusform>Há mais de %n plano.</numerusform>
            <numerusform>Há mais de %n planos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n entries.</source>
        <translation>
            <numerusform>Há mais de %n entrada.</numerusform>
            <numerusform>Há mais de %n entradas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n numbers in the lists of plans.</source>
        <translation>
            <numerusform>As listas dos planos contêm mais de %n número.</numerusform>
            <numerusform>As listas dos planos contêm mais de %n números.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n programs.</source>
        <translation>
            <numerusform>Há mais de %n programa.</numerusform>
            <numerusform>Há mais de %n programas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A text of task %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>Um texto da tarefa %1 tem mais de %n byte.</numerusform>
            <numerusform>Um texto da tarefa %1 tem mais de %n bytes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>It is larger than %n bytes.</source>
        <translation>
            <numerusform>Tem mais de %n byte.</numerusform>
            <numerusform>Tem mais de %n bytes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n values.</source>
        <translation>
            <numerusform>Há mais de %n valor.</numerusform>
            <numerusform>Há mais de %n valores.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A name in line %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>Um nome na linha %1 tem mais de %n byte.</numerusform>
            <numerusform>Um nome na linha %1 tem mais de %n bytes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A text in line %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>Um texto na linha %1 tem mais de %n byte.</numerusform>
            <numerusform>Um texto na linha %1 tem mais de %n bytes.</numerusform>
        </translation>
    </message>
    <message>
        <source>It is not valid JSON (line %1, column %2).</source>
        <translation>Não é um JSON válido (linha %1, coluna %2).</translation>
    </message>
    <message>
        <source>“%1” is not a whole number.</source>
        <translation>“%1” não é um número inteiro.</translation>
    </message>
    <message>
        <source>“%1” is outside the permitted range.</source>
        <translation>“%1” está fora do intervalo permitido.</translation>
    </message>
    <message>
        <source>Wrong kind of value: expected %1, found %2.</source>
        <translation>Tipo de valor incorreto: esperado %1, encontrado %2.</translation>
    </message>
    <message>
        <source>Wrong kind of value: expected %1 or a number, found %2.</source>
        <translation>Tipo de valor incorreto: esperado %1 ou um número, encontrado %2.</translation>
    </message>
    <message>
        <source>“%2” is not known here. Expected: %1 or a number.</source>
        <translation>“%2” não é reconhecido aqui. Esperado: %1 ou um número.</translation>
    </message>
    <message>
        <source>The text is not valid Base64.</source>
        <translation>O texto não é um Base64 válido.</translation>
    </message>
    <message numerus="yes">
        <source>The text is longer than %n bytes.</source>
        <translation>
            <numerusform>O texto tem mais de %n byte.</numerusform>
            <numerusform>O texto tem mais de %n bytes.</numerusform>
        </translation>
    </message>
    <message>
        <source>The key %1 is not the ID of the task, which is %2.</source>
        <translation>A chave %1 não corresponde ao ID da tarefa (%2).</translation>
    </message>
    <message>
        <source>Another task already has the ID %1.</source>
        <translation>Outra tarefa já tem o ID %1.</translation>
    </message>
    <message>
        <source>The format is “%1” instead of “%2”.</source>
        <translation>O formato é “%1” em vez de “%2”.</translation>
    </message>
    <message>
        <source>Version %1 is newer than version %2, the newest that this application reads.</source>
        <translation>A versão %1 é mais recente que a %2, a última que este aplicativo lê.</translation>
    </message>
    <message>
        <source>There is no version %1.</source>
        <translation>A versão %1 não existe.</translation>
    </message>
    <message>
        <source>It is JSON of another kind, not a schedule.</source>
        <translation>É outro tipo de JSON, não uma programação.</translation>
    </message>
    <message>
        <source>It is not a schedule: “format” is missing.</source>
        <translation>Não é uma programação: falta “format”.</translation>
    </message>
    <message>
        <source>“%1” is not known here.</source>
        <translation>“%1” não é reconhecido aqui.</translation>
    </message>
    <message>
        <source>“%1” occurs twice here.</source>
        <translation>“%1” aparece duas vezes aqui.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>É uma pasta.</translation>
    </message>
    <message>
        <source>It is a pipe, not a file.</source>
        <translation>É um pipe, não um arquivo.</translation>
    </message>
    <message>
        <source>It is a socket, not a file.</source>
        <translation>É um socket, não um arquivo.</translation>
    </message>
    <message>
        <source>It is a device, not a file.</source>
        <translation>É um dispositivo, não um arquivo.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Não é um arquivo.</translation>
    </message>
    <message>
        <source>Nothing comes through the pipe.</source>
        <translation>Nada chega pelo pipe.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>O arquivo não existe.</translation>
    </message>
    <message>
        <source>You do not have permission to read it.</source>
        <translation>Você não tem permissão para lê-lo.</translation>
    </message>
    <message>
        <source>It cannot be opened. %1</source>
        <translation>Não é possível abrir. %1</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>O arquivo está vazio.</translation>
    </message>
    <message>
        <source>Its name is not in UTF-8. Rename the file to import it.</source>
        <translation>O nome não está em UTF-8. Renomeie o arquivo para importá-lo.</translation>
    </message>
    <message>
        <source>Addresses of this kind cannot be played.</source>
        <translation>Endereços deste tipo não podem ser exibidos.</translation>
    </message>
    <message>
        <source>It is a file on another computer. Copy it to this computer first.</source>
        <translation>O arquivo está em outro computador. Copie-o primeiro para este.</translation>
    </message>
    <message>
        <source>It is not a media file, or it is damaged.</source>
        <translation>Não é um arquivo de mídia ou está danificado.</translation>
    </message>
    <message>
        <source>Files of this format cannot be imported.</source>
        <translation>Arquivos deste formato não podem ser importados.</translation>
    </message>
    <message>
        <source>Its content cannot be read.</source>
        <translation>Não é possível ler o conteúdo.</translation>
    </message>
    <message>
        <source>The image in it cannot be read.</source>
        <translation>Não é possível ler a imagem contida nele.</translation>
    </message>
    <message>
        <source>It contains neither picture nor sound.</source>
        <translation>Não contém imagem nem som.</translation>
    </message>
    <message>
        <source>Its length cannot be determined.</source>
        <translation>Não é possível determinar a duração.</translation>
    </message>
    <message>
        <source>It could not be read in time.</source>
        <translation>Não foi possível lê-lo a tempo.</translation>
    </message>
    <message>
        <source>The media reader crashed while reading it.</source>
        <translation>O leitor de mídia falhou ao lê-lo.</translation>
    </message>
    <message>
        <source>The media reader gave no valid answer about it.</source>
        <translation>O leitor de mídia não deu uma resposta válida.</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader is missing: %1</source>
        <translation>Não é possível ler as mídias. O leitor de mídia não foi encontrado: %1</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 cannot be started. %2</source>
        <translation>Não é possível ler as mídias. Não é possível executar o leitor de mídia %1. %2</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 does not answer.</source>
        <translation>Não é possível ler as mídias. O leitor de mídia %1 não responde.</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 exits immediately.</source>
        <translation>Não é possível ler as mídias. O leitor de mídia %1 é encerrado imediatamente.</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 is of another version.</source>
        <translation>Não é possível ler as mídias. O leitor de mídia %1 é de outra versão.</translation>
    </message>
    <message>
        <source>Version %1 is damaged.</source>
        <translation>A versão %1 está danificada.</translation>
    </message>
    <message numerus="yes">
        <source>The name or the note of a version is longer than %n characters.</source>
        <translation>
            <numerusform>O nome ou a nota de uma versão tem mais de %n caractere.</numerusform>
            <numerusform>O nome ou a nota de uma versão tem mais de %n caracteres.</numerusform>
        </translation>
    </message>
    <message>
        <source>The name or the note of a version contains a character that is not visible.</source>
        <translation>O nome ou a nota de uma versão contém um caractere que não é visível.</translation>
    </message>
    <message>
        <source>No schedule file is open, so nothing can be saved.</source>
        <translation>Nenhum arquivo de programação está aberto; por isso, nada pode ser salvo.</translation>
    </message>
    <message>
        <source>%1 cannot be opened. Its folder does not exist.</source>
        <translation>Não é possível abrir %1. A pasta não existe.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 não existe.</translation>
    </message>
    <message>
        <source>%1 is not a schedule database.</source>
        <translation>%1 não é um banco de dados de programação.</translation>
    </message>
    <message>
        <source>%1 is a database of another application.</source>
        <translation>%1 é um banco de dados de outro aplicativo.</translation>
    </message>
    <message>
        <source>%1 was written by a newer version of this application.</source>
        <translation>%1 foi gravado por uma versão mais recente deste aplicativo.</translation>
    </message>
    <message>
        <source>%1 is in use by another application. Try again when that application is closed.</source>
        <translation>%1 está em uso por outro aplicativo. Tente novamente quando ele for fechado.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>Não é possível gravar %1. %2</translation>
    </message>
    <message>
        <source>%1 is damaged. %2</source>
        <translation>%1 está danificado. %2</translation>
    </message>
    <message>
        <source>%1 has been saved by another application in the meantime. Saving now would overwrite those changes.</source>
        <translation>%1 foi salvo por outro aplicativo nesse meio-tempo. Salvar agora substituiria essas alterações.</translation>
    </message>
    <message>
        <source>%1 has no room for more programs. %2</source>
        <translation>%1 não comporta mais programas. %2</translation>
    </message>
    <message>
        <source>%1 could not be read or written. %2</source>
        <translation>Não foi possível ler ou gravar %1. %2</translation>
    </message>
    <message>
        <source>%1 is not a schedule database as this application creates it. %2</source>
        <translation>%1 não é um banco de dados de programação como os que este aplicativo cria. %2</translation>
    </message>
    <message>
        <source>%1 exceeds what a schedule can hold. %2</source>
        <translation>%1 excede o que uma programação comporta. %2</translation>
    </message>
    <message>
        <source>%1 may not have been written. %2 The change is not visible in the file now, but may be there after a restart of the computer. Write the schedule to another disk, and check the current one before you go on.</source>
        <translation>Talvez %1 não tenha sido gravado. %2 A alteração não está visível no arquivo agora, mas pode aparecer depois que o computador for reiniciado. Grave a programação em outro disco e verifique o disco atual antes de continuar.</translation>
    </message>
    <message>
        <source>It is not certain whether %1 has been written. %2 Once the server can be reached again, see whether the change is there before you go on.</source>
        <translation>Não é certo que %1 tenha sido gravado. %2 Quando o servidor puder ser acessado novamente, verifique se a alteração está lá antes de continuar.</translation>
    </message>
    <message>
        <source>%1 does not exist. A schedule on a server is set up with “schedulectl server-setup”.</source>
        <translation>%1 não existe. Uma programação em um servidor é configurada com “schedulectl server-setup”.</translation>
    </message>
    <message>
        <source>You do not have permission.</source>
        <translation>Você não tem permissão.</translation>
    </message>
    <message>
        <source>The file or a folder of its path does not exist.</source>
        <translation>O arquivo ou uma pasta do caminho não existe.</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>O disco é somente leitura.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>O nome é longo demais.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Há arquivos demais abertos.</translation>
    </message>
    <message>
        <source>The file is in use.</source>
        <translation>O arquivo está em uso.</translation>
    </message>
    <message>
        <source>The system reports error %1.</source>
        <translation>O sistema relata o erro %1.</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>verdadeiro ou falso</translation>
    </message>
    <message>
        <source>number</source>
        <translation>número</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texto</translation>
    </message>
    <message>
        <source>list</source>
        <translation>lista</translation>
    </message>
    <message>
        <source>object</source>
        <translation>objeto</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nenhum valor</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>número inteiro</translation>
    </message>
    <message>
        <source>whole number as text</source>
        <translation>número inteiro como texto</translation>
    </message>
    <message>
        <source>program number that occurs once</source>
        <translation>número de programa que aparece uma única vez</translation>
    </message>
    <message>
        <source>another number</source>
        <translation>outro número</translation>
    </message>
    <message>
        <source>SHA-256 hash</source>
        <translation>hash SHA-256</translation>
    </message>
    <message>
        <source>another text</source>
        <translation>outro texto</translation>
    </message>
    <message>
        <source>%1 could not be read. %2</source>
        <translation>Não foi possível ler %1. %2</translation>
    </message>
    <message>
        <source>Line %1, %2: %3</source>
        <translation>Linha %1, %2: %3</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProgramTableModel</name>
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
        <source>Folder</source>
        <translation>Pasta</translation>
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
        <source>Write the schedule to a file</source>
        <translation>Gravar a programação em um arquivo</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>Programações (*.json)</translation>
    </message>
    <message>
        <source>Go on editing</source>
        <translation>Continuar editando</translation>
    </message>
    <message>
        <source>While you were editing, %1 was saved by another program. Your changes are not saved.</source>
        <translation>Enquanto você editava, %1 foi salvo por outro aplicativo. Suas alterações não estão salvas.</translation>
    </message>
    <message>
        <source>If you keep yours, what was saved there stays among the versions. If you take theirs, yours can be brought back until the next save.</source>
        <translation>Se mantiver as suas, o que foi salvo lá fica entre as versões. Se aceitar as outras, as suas podem ser trazidas de volta até o próximo salvamento.</translation>
    </message>
    <message>
        <source>What was changed there:</source>
        <translation>O que foi alterado lá:</translation>
    </message>
    <message>
        <source>Nothing that you would see.</source>
        <translation>Nada que se veja.</translation>
    </message>
    <message>
        <source>As it was saved there</source>
        <translation>Como foi salva lá</translation>
    </message>
    <message>
        <source>With your changes</source>
        <translation>Com suas alterações</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>Manter as minhas</translation>
    </message>
    <message>
        <source>Take theirs</source>
        <translation>Aceitar as outras</translation>
    </message>
    <message>
        <source>Write mine to a file</source>
        <translation>Gravar as minhas em um arquivo</translation>
    </message>
    <message>
        <source>While you were editing, %1 was saved by %2, on %3. Your changes are not saved.</source>
        <comment>the database, a program, and the time</comment>
        <translation>Enquanto você editava, %1 foi salvo por %2, em %3. Suas alterações não estão salvas.</translation>
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
        <source>%1: %2–%3 occurs twice; no plan of task %4 is affected.</source>
        <translation>%1: %2–%3 ocorre duas vezes; nenhum plano da tarefa %4 é afetado.</translation>
    </message>
</context>
<context>
    <name>ClockChangeText</name>
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
        <source>Choose Start to put the saved schedule into effect.</source>
        <translation>O botão “Iniciar” põe em vigor a programação salva.</translation>
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
</context>
<context>
    <name>ListText</name>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>SentenceText</name>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>DateWords</name>
    <message>
        <source>%1, %2</source>
        <comment>day of the week and date</comment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>Week</name>
    <message>
        <source>%1, task %2. %3</source>
        <comment>day, its task, and a plan with its times and programs</comment>
        <translation>%1, tarefa %2. %3</translation>
    </message>
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
    <message>
        <source>Not on screen</source>
        <translation>Fora da tela</translation>
    </message>
    <message>
        <source>In conflict</source>
        <translation>Em conflito</translation>
    </message>
    <message>
        <source>Programs of the week</source>
        <translation>Programas da semana</translation>
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
    <message>
        <source>Previous month</source>
        <translation>Mês anterior</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mês seguinte</translation>
    </message>
    <message>
        <source>Choose a day in a calendar</source>
        <translation>Escolher um dia em um calendário</translation>
    </message>
    <message>
        <source>%1. Choose a day in a calendar</source>
        <comment>days of a week</comment>
        <translation>%1. Escolher um dia em um calendário</translation>
    </message>
</context>
<context>
    <name>ProblemText</name>
    <message>
        <source>Task %1</source>
        <translation>Tarefa %1</translation>
    </message>
    <message>
        <source>Task %1, row %2</source>
        <translation>Tarefa %1, linha %2</translation>
    </message>
    <message>
        <source>The validity overlaps that of task %1 from %2 to %3.</source>
        <translation>A validade se sobrepõe à da tarefa %1 de %2 a %3.</translation>
    </message>
    <message>
        <source>The validity overlaps that of task %1.</source>
        <translation>A validade se sobrepõe à da tarefa %1.</translation>
    </message>
    <message>
        <source>The task is never valid: “%1” to “%2” is not a period.</source>
        <translation>A tarefa nunca é válida: “%1” a “%2” não é um período.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: none of its days falls within the validity of the task.</source>
        <translation>O plano %1 nunca é exibido: nenhum dos seus dias cai na validade da tarefa.</translation>
    </message>
    <message>
        <source>Plan %1 is never on screen: earlier rows such as row %2 always come first.</source>
        <translation>O plano %1 nunca aparece na tela: linhas anteriores, como a linha %2, sempre têm prioridade.</translation>
    </message>
    <message>
        <source>Plan %1 is in conflict with plan %2 in row %3 from %4 on.</source>
        <translation>O plano %1 está em conflito com o plano %2 da linha %3 a partir de %4.</translation>
    </message>
    <message>
        <source>Plan %1 is in conflict with plan %2 in row %3, but on no date.</source>
        <translation>O plano %1 está em conflito com o plano %2 da linha %3, mas em nenhuma data.</translation>
    </message>
    <message>
        <source>No picture from %1 to %2, every day.</source>
        <translation>Sem imagem de %1 a %2, todos os dias.</translation>
    </message>
    <message>
        <source>No picture from %1 to %2 on: %3.</source>
        <translation>Sem imagem de %1 a %2: %3.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it would go on after midnight, until %2.</source>
        <translation>O plano %1 nunca é exibido: passaria da meia-noite, até %2.</translation>
    </message>
    <message>
        <source>Plan %1 is cut off at midnight: it would go on until %2.</source>
        <translation>O plano %1 é cortado à meia-noite: iria até %2.</translation>
    </message>
    <message>
        <source>Plan %1 is cut off at midnight: it would go on for more than a day.</source>
        <translation>O plano %1 é cortado à meia-noite: continuaria por mais de um dia.</translation>
    </message>
    <message>
        <source>Invalid entries in plan %1: %2. The first is “%3”.</source>
        <translation>Entradas inválidas no plano %1: %2. A primeira é “%3”.</translation>
    </message>
    <message>
        <source>Missing files in plan %1: %2. The first is “%3”.</source>
        <translation>Arquivos ausentes no plano %1: %2. O primeiro é “%3”.</translation>
    </message>
    <message>
        <source>Entries without a length in plan %1: %2. The first is “%3”.</source>
        <translation>Entradas sem duração no plano %1: %2. A primeira é “%3”.</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is cut off at the end of the day.</source>
        <translation>No plano %1, “%2” é cortado no fim do dia.</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is cut off at %3, when the plan ends.</source>
        <translation>No plano %1, “%2” é cortado às %3, quando o plano termina.</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is never reached: an entry before it does not end by itself.</source>
        <translation>No plano %1, nunca se chega a “%2”: uma entrada anterior não termina sozinha.</translation>
    </message>
    <message>
        <source>Plan %1 contains no programs.</source>
        <translation>O plano %1 não contém programas.</translation>
    </message>
    <message>
        <source>Change the dates of one of the two tasks. Until then nothing can be saved.</source>
        <translation>Altere as datas de uma das duas tarefas. Até lá, nada pode ser salvo.</translation>
    </message>
    <message>
        <source>Choose a start date, and an end date that is not before it.</source>
        <translation>Escolha uma data de início e uma de fim que não seja anterior.</translation>
    </message>
    <message>
        <source>Correct the days and times of the plan.</source>
        <translation>Corrija os dias e horários do plano.</translation>
    </message>
    <message>
        <source>Change the days or times of one of the plans.</source>
        <translation>Altere os dias ou horários de um dos planos.</translation>
    </message>
    <message>
        <source>Restore the files, or choose other programs.</source>
        <translation>Restaure os arquivos ou escolha outros programas.</translation>
    </message>
    <message>
        <source>Choose the programs of the plan anew.</source>
        <translation>Escolha novamente os programas do plano.</translation>
    </message>
    <message>
        <source>Split the plan in two, or let it end before midnight.</source>
        <translation>Divida o plano em dois ou faça-o terminar antes da meia-noite.</translation>
    </message>
    <message>
        <source>Let the plan end before midnight.</source>
        <translation>Faça o plano terminar antes da meia-noite.</translation>
    </message>
    <message>
        <source>Let the plan end later, or play less.</source>
        <translation>Faça o plano terminar mais tarde ou retire programas.</translation>
    </message>
    <message>
        <source>Move the entry to the front, or into another plan.</source>
        <translation>Mova a entrada para o início ou para outro plano.</translation>
    </message>
    <message>
        <source>Add a plan, or let the plan before it end with its last frame.</source>
        <translation>Adicione um plano ou deixe o anterior terminar com a imagem congelada.</translation>
    </message>
    <message>
        <source>Move the plan if that is not wanted.</source>
        <translation>Mova o plano se isso não for desejado.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemModel</name>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Observação</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Local</translation>
    </message>
    <message>
        <source>As of</source>
        <translation>A partir de</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>O que fazer</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemPanel</name>
    <message>
        <source>No problems.</source>
        <translation>Nenhum problema.</translation>
    </message>
    <message>
        <source>Go to the row</source>
        <translation>Ir para a linha</translation>
    </message>
    <message>
        <source>Split in two</source>
        <translation>Dividir em dois</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemDock</name>
    <message>
        <source>No open problems</source>
        <translation>Nenhum problema em aberto</translation>
    </message>
    <message numerus="yes">
        <source>%n open problems</source>
        <translation>
            <numerusform>%n problema em aberto</numerusform>
            <numerusform>%n problemas em aberto</numerusform>
        </translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problemas</translation>
    </message>
    <message>
        <source>Pro&amp;blems</source>
        <translation>Pro&amp;blemas</translation>
    </message>
    <message>
        <source>Show what is wrong with the schedule</source>
        <translation>Mostrar o que há de errado na programação</translation>
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
<context>
    <name>trel::desktop::EffectActions</name>
    <message>
        <source>Stop the schedule that is in effect? The screen stays black until a schedule is started again.</source>
        <translation>Parar a programação em vigor? A tela ficará preta até que uma programação seja iniciada novamente.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>EffectWords</name>
    <message>
        <source>In effect since %1 at %2 (save %3)</source>
        <translation>Em vigor desde %1 às %2 (salvamento %3)</translation>
    </message>
    <message>
        <source>Started by %1.</source>
        <translation>Iniciada por %1.</translation>
    </message>
    <message numerus="yes">
        <source>What is saved differs in %n tasks: %1</source>
        <translation>
            <numerusform>O que está salvo difere em %n tarefa: %1</numerusform>
            <numerusform>O que está salvo difere em %n tarefas: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>a program</comment>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>the last frame of “%1”</source>
        <translation>o último quadro de “%1”</translation>
    </message>
    <message>
        <source>a black screen</source>
        <translation>a tela preta</translation>
    </message>
    <message>
        <source>%1 comes after %2, at %3; %4 comes back at %5.</source>
        <translation>%1 entra depois de %2, às %3; %4 volta às %5.</translation>
    </message>
    <message>
        <source>%1 was cut off at %2; %3 comes at %4.</source>
        <translation>%1 foi cortado às %2; %3 entra às %4.</translation>
    </message>
    <message>
        <source>%1 was cut in at %2; %3 comes back at %4.</source>
        <translation>%1 entrou às %2; %3 volta às %4.</translation>
    </message>
    <message>
        <source>%1 comes after %2, at %3.</source>
        <translation>%1 entra depois de %2, às %3.</translation>
    </message>
    <message>
        <source>%1 was cut off at %2.</source>
        <translation>%1 foi cortado às %2.</translation>
    </message>
    <message>
        <source>%1 was cut in at %2.</source>
        <translation>%1 entrou às %2.</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <comment>time and date</comment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>What is in effect could not be changed. %1</source>
        <translation>Não foi possível alterar o que está em vigor. %1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::AsRunWindow</name>
    <message>
        <source>As-run</source>
        <translation>Registro de exibição</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Tela</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dia</translation>
    </message>
    <message>
        <source>Previous day</source>
        <translation>Dia anterior</translation>
    </message>
    <message>
        <source>Next day</source>
        <translation>Próximo dia</translation>
    </message>
    <message>
        <source>Only what was not as planned</source>
        <translation>Somente o que não foi como planejado</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lendo…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::AsRunModel</name>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Até</translation>
    </message>
    <message>
        <source>Planned</source>
        <translation>Planejado</translation>
    </message>
    <message>
        <source>On screen</source>
        <translation>Na tela</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Observação</translation>
    </message>
</context>
<context>
    <name>AsRunText</name>
    <message>
        <source>Not known</source>
        <translation>Não se sabe</translation>
    </message>
    <message>
        <source>No record</source>
        <translation>Sem registro</translation>
    </message>
    <message>
        <source>No player</source>
        <translation>Sem player</translation>
    </message>
    <message>
        <source>Stand-by picture</source>
        <translation>Imagem de espera</translation>
    </message>
    <message>
        <source>Last good frame of %1</source>
        <translation>Último quadro bom de %1</translation>
    </message>
    <message>
        <source>What was on before</source>
        <translation>O que havia antes</translation>
    </message>
    <message>
        <source>Cut off: the schedule was stopped</source>
        <translation>Cortado: a programação foi parada</translation>
    </message>
    <message>
        <source>Cut off: the player was ended</source>
        <translation>Cortado: o player foi encerrado</translation>
    </message>
    <message>
        <source>Cut off: the player was killed</source>
        <translation>Cortado: o player foi interrompido</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falhou</translation>
    </message>
    <message>
        <source>Cut off: the clock was changed</source>
        <translation>Cortado: o relógio foi alterado</translation>
    </message>
    <message>
        <source>The player had been ended</source>
        <translation>O player estava encerrado</translation>
    </message>
    <message>
        <source>The player had been killed</source>
        <translation>O player havia sido interrompido</translation>
    </message>
    <message>
        <source>The machine had stopped</source>
        <translation>A máquina estava parada</translation>
    </message>
    <message>
        <source>The player had no schedule yet</source>
        <translation>O player ainda não tinha programação</translation>
    </message>
    <message>
        <source>The machine was asleep</source>
        <translation>A máquina estava suspensa</translation>
    </message>
    <message>
        <source>The records could not be kept</source>
        <translation>Não foi possível manter o registro</translation>
    </message>
    <message>
        <source>Recorded until %1.</source>
        <translation>Registrado até %1.</translation>
    </message>
    <message>
        <source>Only the first %1 lines of the day are shown.</source>
        <translation>Apenas as primeiras %1 linhas do dia são exibidas.</translation>
    </message>
    <message>
        <source>No record tells why</source>
        <translation>Nenhum registro diz por quê</translation>
    </message>
    <message>
        <source>%1 s late</source>
        <translation>%1 s de atraso</translation>
    </message>
    <message>
        <source>The records cannot be read: %1</source>
        <translation>Não é possível ler o registro: %1</translation>
    </message>
    <message>
        <source>No player has recorded anything for this database.</source>
        <translation>Nenhum player registrou nada para este banco de dados.</translation>
    </message>
    <message>
        <source>The records were changed, or some are missing. “schedulectl as-run --verify” names the place.</source>
        <translation>O registro foi alterado ou está incompleto. “schedulectl as-run --verify” indica o lugar.</translation>
    </message>
    <message>
        <source>Not as planned, and no record tells why: %1</source>
        <translation>Não foi como planejado e nenhum registro diz por quê: %1</translation>
    </message>
    <message>
        <source>There is no record of this day.</source>
        <translation>Não há registro deste dia.</translation>
    </message>
    <message>
        <source>The screen was as planned, or a record tells why not.</source>
        <translation>A tela mostrou o planejado, ou um registro diz por que não.</translation>
    </message>
    <message>
        <source>Cut off: something was cut in</source>
        <translation>Cortado: algo foi inserido</translation>
    </message>
    <message>
        <source>Cut off: another schedule came</source>
        <translation>Cortado: outra programação</translation>
    </message>
</context>
<context>
    <name>EditWords</name>
    <message>
        <source>Back to what is saved</source>
        <translation>De volta ao que está salvo</translation>
    </message>
    <message>
        <source>Saved by another program: tasks %1</source>
        <translation>Salvo por outro aplicativo: tarefas %1</translation>
    </message>
    <message>
        <source>This takes back what another program has saved as well (tasks %1). Nothing is overwritten before you save, and what was saved there stays among the versions.</source>
        <translation>Isso também desfaz o que outro aplicativo salvou (tarefas %1). Nada é sobrescrito antes de você salvar, e o que foi salvo lá fica entre as versões.</translation>
    </message>
    <message>
        <source>Take it back</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Leave it</source>
        <translation>Deixar como está</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks edited</source>
        <translation>
            <numerusform>%n tarefa editada</numerusform>
            <numerusform>%n tarefas editadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Task %1 added</source>
        <translation>Tarefa %1 adicionada</translation>
    </message>
    <message>
        <source>Task %1 deleted</source>
        <translation>Tarefa %1 excluída</translation>
    </message>
    <message>
        <source>Task %1 edited</source>
        <translation>Tarefa %1 editada</translation>
    </message>
    <message>
        <source>Task %1: first day %2 → %3</source>
        <translation>Tarefa %1: primeiro dia %2 → %3</translation>
    </message>
    <message>
        <source>Task %1: last day %2 → %3</source>
        <translation>Tarefa %1: último dia %2 → %3</translation>
    </message>
    <message>
        <source>Task %1, plan %2 added</source>
        <translation>Tarefa %1, plano %2 adicionado</translation>
    </message>
    <message>
        <source>Task %1, plan %2 deleted</source>
        <translation>Tarefa %1, plano %2 excluído</translation>
    </message>
    <message>
        <source>Task %1, plan %2 edited</source>
        <translation>Tarefa %1, plano %2 editado</translation>
    </message>
    <message>
        <source>Task %1, plan %2: other programs</source>
        <translation>Tarefa %1, plano %2: outros programas</translation>
    </message>
    <message>
        <source>Task %1, plan %2: ends at a set time</source>
        <translation>Tarefa %1, plano %2: termina em hora fixa</translation>
    </message>
    <message>
        <source>Task %1, plan %2: ends after a number of runs</source>
        <translation>Tarefa %1, plano %2: termina após um número de rodadas</translation>
    </message>
    <message>
        <source>Task %1, plan %2: start %3 → %4</source>
        <translation>Tarefa %1, plano %2: início %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: end %3 → %4</source>
        <translation>Tarefa %1, plano %2: fim %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: days %3 → %4</source>
        <translation>Tarefa %1, plano %2: dias %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: runs %3 → %4</source>
        <translation>Tarefa %1, plano %2: rodadas %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: a black screen at the end</source>
        <translation>Tarefa %1, plano %2: tela preta no fim</translation>
    </message>
    <message>
        <source>Task %1, plan %2: the last frame at the end</source>
        <translation>Tarefa %1, plano %2: último quadro congelado no fim</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>todos os dias</translation>
    </message>
    <message>
        <source>Task %1, plan %2: %3 → %4</source>
        <translation>Tarefa %1, plano %2: %3 → %4</translation>
    </message>
</context>
<context>
    <name>trel::desktop::undo::HistoryActions</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>Re&amp;fazer</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>what is done, and the step</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>trel::desktop::undo::HistoryModel</name>
    <message>
        <source>Start</source>
        <translation>Começo</translation>
    </message>
    <message>
        <source>%1 (saved)</source>
        <comment>a step</comment>
        <translation>%1 (salvo)</translation>
    </message>
    <message>
        <source>%1 (saved; editor opened)</source>
        <comment>a step</comment>
        <translation>%1 (salvo; editor aberto)</translation>
    </message>
    <message>
        <source>%1 (editor opened)</source>
        <comment>a step</comment>
        <translation>%1 (editor aberto)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::undo::HistoryDock</name>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>H&amp;istórico</translation>
    </message>
</context>
<context>
    <name>DraftWords</name>
    <message>
        <source>There are changes that were not saved. The last one was made on %1.</source>
        <translation>Há alterações que não foram salvas. A última foi feita em %1.</translation>
    </message>
    <message>
        <source>New tasks: %1</source>
        <translation>Tarefas novas: %1</translation>
    </message>
    <message>
        <source>Changed tasks: %1</source>
        <translation>Tarefas alteradas: %1</translation>
    </message>
    <message>
        <source>Deleted tasks: %1</source>
        <translation>Tarefas excluídas: %1</translation>
    </message>
    <message>
        <source>The very last change may be missing.</source>
        <translation>A última alteração pode estar faltando.</translation>
    </message>
    <message>
        <source>A part of them is damaged and cannot be read.</source>
        <translation>Uma parte está danificada e não pode ser lida.</translation>
    </message>
    <message>
        <source>They were made in another database, which stood in the place of this one.</source>
        <translation>Elas foram feitas em outro banco de dados, que estava no lugar deste.</translation>
    </message>
    <message>
        <source>The schedule was saved since then.</source>
        <translation>A programação foi salva desde então.</translation>
    </message>
    <message>
        <source>The file %1 keeps changes that were not saved. They were made with a newer version of this program, which has to be used to take them over.</source>
        <translation>O arquivo %1 contém alterações não salvas. Elas foram feitas com uma versão mais recente deste aplicativo, necessária para recuperá-las.</translation>
    </message>
    <message>
        <source>The file %1 should keep changes that were not saved, but nothing in it can be read.</source>
        <translation>O arquivo %1 deveria conter alterações não salvas, mas nada nele pode ser lido.</translation>
    </message>
    <message>
        <source>Changes that are not saved cannot be kept beside the database at the moment: if the program ends now, they are lost. %1</source>
        <translation>No momento, as alterações não salvas não podem ser mantidas ao lado do banco de dados: se o aplicativo terminar agora, elas se perdem. %1</translation>
    </message>
    <message>
        <source>The changes could not be kept beside the database. They are still in the editor.</source>
        <translation>As alterações não puderam ser mantidas ao lado do banco de dados. Elas continuam no editor.</translation>
    </message>
    <message>
        <source>Take over</source>
        <translation>Recuperar</translation>
    </message>
    <message>
        <source>Put into a file</source>
        <translation>Levar a um arquivo</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Delete the file</source>
        <translation>Excluir o arquivo</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>Decidir mais tarde</translation>
    </message>
    <message>
        <source>There are changes that were not saved. The last one was made %1, on %2.</source>
        <translation>Há alterações que não foram salvas. A última foi feita %1, em %2.</translation>
    </message>
    <message>
        <source>less than a minute ago</source>
        <translation>há menos de um minuto</translation>
    </message>
    <message>
        <source>What differs from what is saved:</source>
        <translation>O que difere do que está salvo:</translation>
    </message>
    <message>
        <source>As it is saved</source>
        <translation>Como está salva</translation>
    </message>
    <message>
        <source>With these changes</source>
        <translation>Com estas alterações</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes ago</source>
        <translation>
            <numerusform>há %n minuto</numerusform>
            <numerusform>há %n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours ago</source>
        <translation>
            <numerusform>há %n hora</numerusform>
            <numerusform>há %n horas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days ago</source>
        <translation>
            <numerusform>há %n dia</numerusform>
            <numerusform>há %n dias</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::changes::ChangesDialog</name>
    <message>
        <source>Look at it in the week</source>
        <translation>Ver na semana</translation>
    </message>
</context>
<context>
    <name>DifferenceWords</name>
    <message>
        <source>Task %1: %2</source>
        <comment>where, and what differs</comment>
        <translation>Tarefa %1: %2</translation>
    </message>
    <message>
        <source>Task %1, plan %2: %3</source>
        <comment>where, and what differs</comment>
        <translation>Tarefa %1, plano %2: %3</translation>
    </message>
    <message numerus="yes">
        <source>added, valid from %1 to %2, %n plans</source>
        <translation>
            <numerusform>adicionada, válida de %1 a %2, %n plano</numerusform>
            <numerusform>adicionada, válida de %1 a %2, %n planos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>deleted, was valid from %1 to %2, %n plans</source>
        <translation>
            <numerusform>excluída, era válida de %1 a %2, %n plano</numerusform>
            <numerusform>excluída, era válida de %1 a %2, %n planos</numerusform>
        </translation>
    </message>
    <message>
        <source>added in row %1: %2, %3 to %4, %5</source>
        <translation>adicionado na linha %1: %2, de %3 a %4, %5</translation>
    </message>
    <message>
        <source>deleted from row %1: %2, %3 to %4, %5</source>
        <translation>excluído da linha %1: %2, de %3 a %4, %5</translation>
    </message>
    <message>
        <source>no programs</source>
        <translation>sem programas</translation>
    </message>
    <message>
        <source>row %1 → %2</source>
        <translation>linha %1 → %2</translation>
    </message>
    <message>
        <source>“%1” added as entry %2</source>
        <translation>“%1” adicionado como entrada %2</translation>
    </message>
    <message>
        <source>“%1” deleted, was entry %2</source>
        <translation>“%1” excluído, era a entrada %2</translation>
    </message>
    <message>
        <source>“%1”: entry %2 → %3</source>
        <translation>“%1”: entrada %2 → %3</translation>
    </message>
    <message>
        <source>“%1”, entry %2: %3</source>
        <translation>“%1”, entrada %2: %3</translation>
    </message>
    <message>
        <source>first day %1 → %2</source>
        <translation>primeiro dia %1 → %2</translation>
    </message>
    <message>
        <source>last day %1 → %2</source>
        <translation>último dia %1 → %2</translation>
    </message>
    <message>
        <source>start %1 → %2</source>
        <translation>início %1 → %2</translation>
    </message>
    <message>
        <source>end %1 → %2</source>
        <translation>fim %1 → %2</translation>
    </message>
    <message>
        <source>runs %1 → %2</source>
        <translation>rodadas %1 → %2</translation>
    </message>
    <message>
        <source>days %1 → %2</source>
        <translation>dias %1 → %2</translation>
    </message>
    <message>
        <source>mode “%1” → “%2”</source>
        <translation>modo “%1” → “%2”</translation>
    </message>
    <message>
        <source>at the end “%1” → “%2”</source>
        <translation>ao final “%1” → “%2”</translation>
    </message>
    <message>
        <source>name “%1” → “%2”</source>
        <translation>nome “%1” → “%2”</translation>
    </message>
    <message>
        <source>plays in a row %1 → %2</source>
        <translation>exibições seguidas %1 → %2</translation>
    </message>
    <message>
        <source>now has a program without a length of its own</source>
        <translation>agora tem um programa sem duração própria</translation>
    </message>
    <message>
        <source>no longer has a program without a length of its own</source>
        <translation>não tem mais programa sem duração própria</translation>
    </message>
    <message>
        <source>now in conflict</source>
        <translation>agora em conflito</translation>
    </message>
    <message>
        <source>no longer in conflict</source>
        <translation>não está mais em conflito</translation>
    </message>
    <message>
        <source>now invalid</source>
        <translation>agora inválido</translation>
    </message>
    <message>
        <source>no longer invalid</source>
        <translation>válido novamente</translation>
    </message>
    <message>
        <source>something that the editor does not show</source>
        <translation>algo que o editor não mostra</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more differences.</source>
        <translation>
            <numerusform>… e mais %n diferença.</numerusform>
            <numerusform>… e mais %n diferenças.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProgramWords</name>
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
</context>
<context>
    <name>trel::desktop::CatalogueFilter</name>
    <message>
        <source>%1 of %2</source>
        <comment>programs found of programs</comment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Search name and folder</source>
        <translation>Procurar no nome e na pasta</translation>
    </message>
    <message>
        <source>Kind of program</source>
        <translation>Tipo de programa</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Todos os tipos</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Ausentes</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Não usados</translation>
    </message>
    <message numerus="yes">
        <source>%n programs</source>
        <translation>
            <numerusform>%n programa</numerusform>
            <numerusform>%n programas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::CalendarPopup</name>
    <message>
        <source>Calendar</source>
        <translation>Calendário</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekPage</name>
    <message>
        <source>Click a block to see why it is on screen, or why not.</source>
        <translation>Clique em um bloco para ver por que ele está na tela ou por que não.</translation>
    </message>
    <message>
        <source>Why the selected block is on screen, or why not</source>
        <translation>Por que o bloco selecionado está na tela ou por que não</translation>
    </message>
    <message>
        <source>No task is valid in this week. Add one with “Edit”, then drag programs here.</source>
        <translation>Nenhuma tarefa vale nesta semana. Adicione uma com “Editar” e depois arraste programas para cá.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::year::YearStrip</name>
    <message>
        <source>Gap: no task is valid from %1 to %2.</source>
        <translation>Lacuna: nenhuma tarefa é válida de %1 a %2.</translation>
    </message>
    <message>
        <source>Overlap: several tasks are valid from %1 to %2.</source>
        <translation>Sobreposição: várias tarefas são válidas de %1 a %2.</translation>
    </message>
    <message>
        <source>Task %1 is valid from %2 to %3.</source>
        <translation>A tarefa %1 é válida de %2 a %3.</translation>
    </message>
    <message>
        <source>Validity of the tasks in %1</source>
        <translation>Validade das tarefas em %1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::UsesWindow</name>
    <message>
        <source>Where used</source>
        <translation>Onde é usado</translation>
    </message>
    <message>
        <source>No plan plays “%1”.</source>
        <translation>Nenhum plano exibe “%1”.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” is played by %n plans.</source>
        <translation>
            <numerusform>%n plano exibe “%1”.</numerusform>
            <numerusform>%n planos exibem “%1”.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::UsesModel</name>
    <message>
        <source>Task</source>
        <translation>Tarefa</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Validade</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Plano</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Dias</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Horário</translation>
    </message>
</context>
<context>
    <name>UseWords</name>
    <message>
        <source>%1 – %2</source>
        <comment>from and to</comment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Task %1 (%2), plan %3, %4 %5</source>
        <comment>with dates, days and times</comment>
        <translation>Tarefa %1 (%2), plano %3, %4 %5</translation>
    </message>
    <message>
        <source>Not on screen any more, as the schedule in effect has it.</source>
        <translation>Não aparece mais na tela, pela programação em vigor.</translation>
    </message>
    <message>
        <source>Not on screen any more, as the schedule is edited.</source>
        <translation>Não aparece mais na tela, pela programação editada.</translation>
    </message>
    <message>
        <source>Never on screen, as the schedule in effect has it.</source>
        <translation>Nunca aparece na tela, pela programação em vigor.</translation>
    </message>
    <message>
        <source>Never on screen, as the schedule is edited.</source>
        <translation>Nunca aparece na tela, pela programação editada.</translation>
    </message>
    <message>
        <source>On screen now: task %1, plan %2.</source>
        <translation>Na tela agora: tarefa %1, plano %2.</translation>
    </message>
    <message>
        <source>Next on screen: %1, task %2, plan %3.</source>
        <translation>Próxima vez na tela: %1, tarefa %2, plano %3.</translation>
    </message>
    <message numerus="yes">
        <source>Entries become invalid in %n plans:</source>
        <translation>
            <numerusform>Entradas ficam inválidas em %n plano:</numerusform>
            <numerusform>Entradas ficam inválidas em %n planos:</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: nothing else is left of it</source>
        <translation>%1: nada mais resta nele</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more plans.</source>
        <translation>
            <numerusform>… e mais %n plano.</numerusform>
            <numerusform>… e mais %n planos.</numerusform>
        </translation>
    </message>
    <message>
        <source>every day</source>
        <translation>todos os dias</translation>
    </message>
    <message>
        <source>%1–%2</source>
        <comment>from day to day</comment>
        <translation>%1 a %2</translation>
    </message>
</context>
<context>
    <name>MoveWords</name>
    <message>
        <source>Plan %1: %2, %3 to %4</source>
        <translation>Plano %1: %2, %3 a %4</translation>
    </message>
    <message>
        <source>New plan in task %1: %2, %3 to %4</source>
        <translation>Novo plano na tarefa %1: %2, %3 a %4</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>todos os dias</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are valid on this day; that is the one in effect.</source>
        <translation>
            <numerusform>%n tarefa vale neste dia; é essa que se aplica.</numerusform>
            <numerusform>%n tarefas valem neste dia; é essa que se aplica.</numerusform>
        </translation>
    </message>
    <message>
        <source>Its times cannot be read.</source>
        <translation>Não é possível ler seus horários.</translation>
    </message>
    <message>
        <source>A plan cannot run over midnight.</source>
        <translation>Um plano não pode passar da meia-noite.</translation>
    </message>
    <message>
        <source>A plan has to start before it ends.</source>
        <translation>Um plano precisa começar antes de terminar.</translation>
    </message>
    <message>
        <source>Its end follows from its programs; it can only be moved.</source>
        <translation>Seu fim depende dos programas; só é possível movê-lo.</translation>
    </message>
    <message>
        <source>It plays every day.</source>
        <translation>É exibido todos os dias.</translation>
    </message>
    <message>
        <source>It plays on that day already.</source>
        <translation>Já é exibido nesse dia.</translation>
    </message>
    <message>
        <source>Its days cannot be read.</source>
        <translation>Não é possível ler seus dias.</translation>
    </message>
    <message>
        <source>Its task is not in effect on that day.</source>
        <translation>Sua tarefa não se aplica nesse dia.</translation>
    </message>
    <message>
        <source>Conflicts with plan %1, %2 to %3.</source>
        <translation>Conflita com o plano %1, %2 a %3.</translation>
    </message>
    <message numerus="yes">
        <source>Conflicts with %n more.</source>
        <translation>
            <numerusform>Conflita com mais %n.</numerusform>
            <numerusform>Conflita com mais %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>No task is valid on this day.</source>
        <translation>Nenhuma tarefa vale neste dia.</translation>
    </message>
    <message>
        <source>These programs cannot be planned here.</source>
        <translation>Estes programas não podem ser planejados aqui.</translation>
    </message>
    <message>
        <source>Copy the plans of %1…</source>
        <comment>a day</comment>
        <translation>Copiar os planos de %1…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekEdits</name>
    <message>
        <source>The editor is not ready yet. Please try again.</source>
        <translation>O editor ainda não está pronto. Tente novamente.</translation>
    </message>
    <message>
        <source>The schedule has changed meanwhile; nothing was moved.</source>
        <translation>A programação mudou nesse meio-tempo; nada foi movido.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::CopyDayDialog</name>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Copy onto these days, whose own plans stay:</source>
        <translation>Copiar para estes dias, que mantêm seus próprios planos:</translation>
    </message>
    <message>
        <source>%1 (no task is valid)</source>
        <comment>a day</comment>
        <translation>%1 (nenhuma tarefa vale)</translation>
    </message>
    <message>
        <source>There is no plan on that day.</source>
        <translation>Não há nenhum plano nesse dia.</translation>
    </message>
    <message numerus="yes">
        <source>%n plans play on that day. Choose the days to copy them onto.</source>
        <translation>
            <numerusform>%n plano é exibido nesse dia. Escolha os dias para os quais copiá-lo.</numerusform>
            <numerusform>%n planos são exibidos nesse dia. Escolha os dias para os quais copiá-los.</numerusform>
        </translation>
    </message>
    <message>
        <source>All of them play on these days already.</source>
        <translation>Todos já são exibidos nesses dias.</translation>
    </message>
    <message numerus="yes">
        <source>%n plans are copied.</source>
        <translation>
            <numerusform>%n plano é copiado.</numerusform>
            <numerusform>%n planos são copiados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more plans will conflict then. Nothing is lost by that: change what you want afterwards.</source>
        <translation>
            <numerusform>Mais %n plano entrará em conflito. Nada se perde: altere depois o que quiser.</numerusform>
            <numerusform>Mais %n planos entrarão em conflito. Nada se perde: altere depois o que quiser.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>VersionWords</name>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>What is in effect</source>
        <translation>Em vigor</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>O que está salvo</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>não se sabe</translation>
    </message>
    <message>
        <source>new: %1</source>
        <translation>novas: %1</translation>
    </message>
    <message>
        <source>changed: %1</source>
        <translation>alteradas: %1</translation>
    </message>
    <message>
        <source>deleted: %1</source>
        <translation>excluídas: %1</translation>
    </message>
    <message>
        <source>nothing of note</source>
        <translation>nada relevante</translation>
    </message>
    <message>
        <source>%1 (tasks %2)</source>
        <comment>what a save changed, and in which tasks</comment>
        <translation>%1 (tarefas %2)</translation>
    </message>
    <message>
        <source>version %1 restored: %2</source>
        <translation>versão %1 restaurada: %2</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>Não há diferenças.</translation>
    </message>
    <message numerus="yes">
        <source>%n differences</source>
        <translation>
            <numerusform>%n diferença</numerusform>
            <numerusform>%n diferenças</numerusform>
        </translation>
    </message>
    <message>
        <source>Restore version %1? What is saved now stays as a version, so that it can be restored in turn.</source>
        <translation>Restaurar a versão %1? O que está salvo agora permanece como versão e pode ser restaurado por sua vez.</translation>
    </message>
    <message numerus="yes">
        <source>%n of its programs are no longer in the catalog. Their entries will be invalid: %1</source>
        <translation>
            <numerusform>%n dos seus programas não está mais no catálogo. As entradas dele ficarão inválidas: %1</numerusform>
            <numerusform>%n dos seus programas não estão mais no catálogo. As entradas deles ficarão inválidas: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The schedule in the editor has changes that are not saved.</source>
        <translation>A programação no editor tem alterações não salvas.</translation>
    </message>
    <message>
        <source>Version %1 – %2</source>
        <comment>a version, and when it was saved</comment>
        <translation>Versão %1 – %2</translation>
    </message>
    <message>
        <source>Version %1 – %2 – %3</source>
        <comment>a version, when it was saved, and its name</comment>
        <translation>Versão %1 – %2 – %3</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::VersionModel</name>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Salvo</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Por</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Alterações</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::DifferenceModel</name>
    <message>
        <source>Task</source>
        <translation>Tarefa</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Plano</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferença</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::StretchModel</name>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Até</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::ComparedWeeks</name>
    <message>
        <source>Comparing…</source>
        <translation>Comparando…</translation>
    </message>
    <message>
        <source>Nothing differs on the screen in this week.</source>
        <translation>Nesta semana não há diferenças na tela.</translation>
    </message>
    <message numerus="yes">
        <source>%n stretches of this week differ on the screen:</source>
        <translation>
            <numerusform>%n trecho desta semana difere na tela:</numerusform>
            <numerusform>%n trechos desta semana diferem na tela:</numerusform>
        </translation>
    </message>
    <message>
        <source>What differs on the screen</source>
        <translation>Diferenças na tela</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::ComparisonPanel</name>
    <message>
        <source>Comparing…</source>
        <translation>Comparando…</translation>
    </message>
    <message>
        <source>Nothing is in effect.</source>
        <translation>Nada está em vigor.</translation>
    </message>
    <message>
        <source>%1 → %2: %3</source>
        <comment>two states, and how much differs</comment>
        <translation>%1 → %2: %3</translation>
    </message>
    <message>
        <source>In words</source>
        <translation>Em palavras</translation>
    </message>
    <message>
        <source>On the screen</source>
        <translation>Na tela</translation>
    </message>
    <message>
        <source>What differs</source>
        <translation>Diferenças</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::VersionNameDialog</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::VersionsWindow</name>
    <message>
        <source>Versions</source>
        <translation>Versões</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lendo…</translation>
    </message>
    <message>
        <source>No versions are kept yet.</source>
        <translation>Ainda não há versões.</translation>
    </message>
    <message>
        <source>Name and note…</source>
        <translation>Nome e nota…</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>Restaurar…</translation>
    </message>
    <message>
        <source>Write to a file…</source>
        <translation>Gravar em um arquivo…</translation>
    </message>
    <message>
        <source>Compared with</source>
        <translation>Comparado com</translation>
    </message>
    <message>
        <source>The other way round</source>
        <translation>Ao contrário</translation>
    </message>
    <message>
        <source>Write the version to a file</source>
        <translation>Gravar a versão em um arquivo</translation>
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
        <source>Save, then restore</source>
        <translation>Salvar e depois restaurar</translation>
    </message>
    <message>
        <source>Restore without saving</source>
        <translation>Restaurar sem salvar</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProgramPreview</name>
    <message>
        <source>%1 – Preview</source>
        <translation>%1 – Pré-visualização</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posição</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>position and length</comment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>The file is not found.</source>
        <translation>O arquivo não foi encontrado.</translation>
    </message>
    <message>
        <source>Sound has no picture.</source>
        <translation>O som não tem imagem.</translation>
    </message>
    <message>
        <source>A live source is seen on the screens alone.</source>
        <translation>Uma fonte ao vivo só é vista nas telas.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lendo…</translation>
    </message>
    <message>
        <source>It has no picture that can be read.</source>
        <translation>Não tem imagem que se possa ler.</translation>
    </message>
</context>
<context>
    <name>KeyTable</name>
    <message>
        <source>Main window</source>
        <translation>Janela principal</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
    <message>
        <source>Go to the next task</source>
        <translation>Ir para a próxima tarefa</translation>
    </message>
    <message>
        <source>Go to the task before</source>
        <translation>Ir para a tarefa anterior</translation>
    </message>
    <message>
        <source>Fold or open the task</source>
        <translation>Recolher ou abrir a tarefa</translation>
    </message>
    <message>
        <source>Add a task</source>
        <translation>Adicionar uma tarefa</translation>
    </message>
    <message>
        <source>Copy the task</source>
        <translation>Copiar a tarefa</translation>
    </message>
    <message>
        <source>Delete the task</source>
        <translation>Excluir a tarefa</translation>
    </message>
    <message>
        <source>Add a plan</source>
        <translation>Adicionar um plano</translation>
    </message>
    <message>
        <source>Copy the plan</source>
        <translation>Copiar o plano</translation>
    </message>
    <message>
        <source>Delete the plan</source>
        <translation>Excluir o plano</translation>
    </message>
    <message>
        <source>Choose the programs of the plan</source>
        <translation>Escolher os programas do plano</translation>
    </message>
    <message>
        <source>Save and close</source>
        <translation>Salvar e fechar</translation>
    </message>
    <message>
        <source>Save and start</source>
        <translation>Salvar e iniciar</translation>
    </message>
    <message>
        <source>Close without saving</source>
        <translation>Fechar sem salvar</translation>
    </message>
    <message>
        <source>Select another plan</source>
        <translation>Selecionar outro plano</translation>
    </message>
    <message>
        <source>Open the selected plan in the editor</source>
        <translation>Abrir o plano selecionado no editor</translation>
    </message>
    <message>
        <source>Say what is on screen then, and why</source>
        <translation>Dizer o que está na tela nesse momento e por quê</translation>
    </message>
    <message>
        <source>Move the plan by a quarter of an hour</source>
        <translation>Mover o plano em um quarto de hora</translation>
    </message>
    <message>
        <source>Move the plan to another day</source>
        <translation>Mover o plano para outro dia</translation>
    </message>
    <message>
        <source>Move the end of the plan</source>
        <translation>Mover o fim do plano</translation>
    </message>
    <message>
        <source>Move the begin of the plan</source>
        <translation>Mover o início do plano</translation>
    </message>
    <message>
        <source>Give up dragging</source>
        <translation>Desistir de arrastar</translation>
    </message>
    <message>
        <source>Copy the plans of the day</source>
        <translation>Copiar os planos do dia</translation>
    </message>
    <message>
        <source>Show another week</source>
        <translation>Mostrar outra semana</translation>
    </message>
    <message>
        <source>Show the present moment</source>
        <translation>Mostrar o momento atual</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Alterar o zoom</translation>
    </message>
    <message>
        <source>Fit the whole day</source>
        <translation>Ajustar ao dia inteiro</translation>
    </message>
    <message>
        <source>Programs of a plan</source>
        <translation>Programas de um plano</translation>
    </message>
    <message>
        <source>Go to another program</source>
        <translation>Ir para outro programa</translation>
    </message>
    <message>
        <source>Tick the program, or untick it</source>
        <translation>Marcar ou desmarcar o programa</translation>
    </message>
    <message>
        <source>Tick all programs, or none</source>
        <translation>Marcar todos os programas ou nenhum</translation>
    </message>
    <message>
        <source>Add the ticked programs, or this one</source>
        <translation>Adicionar os programas marcados, senão este</translation>
    </message>
    <message>
        <source>Take the ticked programs out, or this one</source>
        <translation>Excluir os programas marcados, senão este</translation>
    </message>
    <message>
        <source>Move the program up or down</source>
        <translation>Mover o programa para cima ou para baixo</translation>
    </message>
    <message>
        <source>Change how often the program is played</source>
        <translation>Mudar o número de exibições do programa</translation>
    </message>
    <message>
        <source>Take over the list of programs</source>
        <translation>Aceitar a lista de programas</translation>
    </message>
</context>
<context>
    <name>trel::desktop::KeySheet</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atalhos de teclado</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>trel::desktop::GuideWindow</name>
    <message>
        <source>The guide</source>
        <translation>O guia</translation>
    </message>
</context>
<context>
    <name>trel::desktop::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>Aj&amp;uda</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Guia</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>A&amp;talhos de teclado</translation>
    </message>
    <message>
        <source>&amp;About this program</source>
        <translation>&amp;Sobre este programa</translation>
    </message>
    <message>
        <source>Schedules media programs on screens, edits the schedule and follows it.</source>
        <translation>Programa mídias em telas, edita a programação e a acompanha.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirLight</name>
    <message>
        <source>On air</source>
        <translation>No ar</translation>
    </message>
    <message>
        <source>Off air</source>
        <translation>Fora do ar</translation>
    </message>
    <message>
        <source>A schedule is in effect.</source>
        <translation>Há uma programação em vigor.</translation>
    </message>
    <message>
        <source>No schedule is in effect.</source>
        <translation>Nenhuma programação em vigor.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirState</name>
    <message>
        <source>Time of day: %1</source>
        <translation>Hora: %1</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Não salvo</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Salvo: %1</translation>
    </message>
    <message>
        <source>Started: %1</source>
        <translation>Iniciado: %1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirBar</name>
    <message>
        <source>Toolbar</source>
        <translation>Barra de ferramentas</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Search the catalog</source>
        <translation>Pesquisar no catálogo</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ComingPrograms</name>
    <message>
        <source>Programs to come</source>
        <translation>Próximos programas</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::StartAction</name>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Put the schedule on air</source>
        <translation>Pôr a programação no ar</translation>
    </message>
    <message>
        <source>Put the schedule on air? What is not saved is saved first.</source>
        <translation>Pôr a programação no ar? O que não está salvo é salvo antes.</translation>
    </message>
    <message>
        <source>Open problems: %1</source>
        <translation>Problemas em aberto: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Tasks %1 and %2 are valid on the same days. The schedule can be put on air once they are not.</source>
        <translation>As tarefas %1 e %2 são válidas nos mesmos dias. A programação só pode ir ao ar quando não forem mais.</translation>
    </message>
    <message>
        <source>The schedule is on air.</source>
        <translation>A programação está no ar.</translation>
    </message>
    <message>
        <source>The schedule is on air. Open problems: %1</source>
        <translation>A programação está no ar. Problemas em aberto: %1</translation>
    </message>
</context>
<context>
    <name>DroppedMedia</name>
    <message>
        <source>None of this can be imported.</source>
        <translation>Nada disto pode ser importado.</translation>
    </message>
    <message numerus="yes">
        <source>%n files or folders</source>
        <translation>
            <numerusform>%n arquivo ou pasta</numerusform>
            <numerusform>%n arquivos ou pastas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n addresses</source>
        <translation>
            <numerusform>%n endereço</numerusform>
            <numerusform>%n endereços</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>files, and addresses</comment>
        <translation>%1 e %2</translation>
    </message>
    <message>
        <source>Import %1</source>
        <comment>files, or addresses, or both</comment>
        <translation>Importar: %1</translation>
    </message>
    <message numerus="yes">
        <source>Import %1; %n cannot be imported</source>
        <comment>files, or addresses, or both</comment>
        <translation>
            <numerusform>Importar: %1; %n não pode ser importado</numerusform>
            <numerusform>Importar: %1; %n não podem ser importados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MediaFilters</name>
    <message>
        <source>All media</source>
        <translation>Todas as mídias</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Imagens</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Som</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos os arquivos (*)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ScreenNews</name>
    <message>
        <source>Cut in: %1</source>
        <translation>Inserido: %1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekMenu</name>
    <message>
        <source>&amp;Week</source>
        <translation>&amp;Semana</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>&amp;Hoje</translation>
    </message>
    <message>
        <source>&amp;Previous week</source>
        <translation>Semana &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Next week</source>
        <translation>Semana &amp;seguinte</translation>
    </message>
    <message>
        <source>&amp;Choose a day…</source>
        <translation>&amp;Escolher um dia…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::DayDrag</name>
    <message>
        <source>Drag a day onto another one to copy its plans there.</source>
        <translation>Arraste um dia sobre outro para copiar os planos dele.</translation>
    </message>
    <message>
        <source>Copy the plans of %1 onto %2</source>
        <comment>two days</comment>
        <translation>Copiar os planos de %1 para %2</translation>
    </message>
</context>
<context>
    <name>trel::desktop::place::AddressDialog</name>
    <message>
        <source>Open from a server</source>
        <translation>Abrir de um servidor</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Endereço</translation>
    </message>
    <message>
        <source>Where the server asks for a password, it is read from the password file of the server's programs (~/.pgpass).</source>
        <translation>Se o servidor pedir uma senha, ela será lida do arquivo de senhas dos programas do servidor (~/.pgpass).</translation>
    </message>
</context>
<context>
    <name>trel::desktop::players::PlayersDock</name>
    <message>
        <source>Players</source>
        <translation>Players</translation>
    </message>
    <message>
        <source>Pla&amp;yers</source>
        <translation>P&amp;layers</translation>
    </message>
    <message>
        <source>No player follows this database. Start schedule-player with it where the screen is.</source>
        <translation>Nenhum player segue este banco de dados. Inicie o schedule-player com ele no computador da tela.</translation>
    </message>
    <message>
        <source>Show what the players show</source>
        <translation>Mostra o que os players exibem</translation>
    </message>
</context>
<context>
    <name>trel::desktop::players::PlayerModel</name>
    <message>
        <source>Screen</source>
        <translation>Tela</translation>
    </message>
    <message>
        <source>Shows</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>Heard</source>
        <comment>when a player told of itself</comment>
        <translation>Sinal</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>Falhas</translation>
    </message>
</context>
<context>
    <name>PlayerWords</name>
    <message>
        <source>Stands still in: %1</source>
        <translation>Parado em: %1</translation>
    </message>
    <message>
        <source>Has no picture for: %1</source>
        <translation>Sem imagem para: %1</translation>
    </message>
    <message>
        <source>Not since %1</source>
        <comment>a moment</comment>
        <translation>Sem sinal desde %1</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no faults</comment>
        <translation>Nenhuma</translation>
    </message>
    <message>
        <source>%1, the last at %2: %3</source>
        <comment>a number, a moment, a sentence</comment>
        <translation>%1, a última às %2: %3</translation>
    </message>
    <message>
        <source>Players: %1</source>
        <translation>Players: %1</translation>
    </message>
    <message>
        <source>Players: %1, silent: %2</source>
        <translation>Players: %1, sem sinal: %2</translation>
    </message>
</context>
<context>
    <name>MergeWords</name>
    <message numerus="yes">
        <source>%n tasks were changed at both desks: if you merge, you choose for each of them which one stays. Everything else of both is kept.</source>
        <translation>
            <numerusform>%n tarefa foi alterada nos dois postos: ao mesclar, você escolhe qual fica. Todo o resto dos dois é mantido.</numerusform>
            <numerusform>%n tarefas foram alteradas nos dois postos: ao mesclar, você escolhe para cada uma qual fica. Todo o resto dos dois é mantido.</numerusform>
        </translation>
    </message>
    <message>
        <source>No task was changed at both desks: what both have changed can be saved together.</source>
        <translation>Nenhuma tarefa foi alterada nos dois postos: as alterações dos dois podem ser salvas juntas.</translation>
    </message>
    <message>
        <source>Merge…</source>
        <translation>Mesclar…</translation>
    </message>
    <message>
        <source>Merged, your new task %1 becomes task %2: another task %1 was added there.</source>
        <translation>Ao mesclar, sua nova tarefa %1 passa a ser a tarefa %2: outra tarefa %1 foi adicionada lá.</translation>
    </message>
    <message>
        <source>Merge and save</source>
        <translation>Mesclar e salvar</translation>
    </message>
    <message>
        <source>Merge and go on editing</source>
        <translation>Mesclar e continuar editando</translation>
    </message>
    <message>
        <source>Merged, tasks %1 and %2 would be valid on the same days. That cannot be saved: they stay in the editor until you have changed their dates.</source>
        <translation>Mescladas, as tarefas %1 e %2 seriam válidas nos mesmos dias. Isso não pode ser salvo: elas ficam no editor até que você altere as datas.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::merge::ConflictsDialog</name>
    <message>
        <source>These tasks were changed here and at the other desk. Choose for each of them which one stays.</source>
        <translation>Estas tarefas foram alteradas aqui e no outro posto. Escolha para cada uma qual fica.</translation>
    </message>
    <message>
        <source>Mine, as it is edited here</source>
        <translation>A minha, como editada aqui</translation>
    </message>
    <message>
        <source>Theirs, as it was saved there</source>
        <translation>A outra, como salva lá</translation>
    </message>
    <message>
        <source>Tasks that were changed at both desks</source>
        <translation>Tarefas alteradas nos dois postos</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>Tarefa</translation>
    </message>
    <message>
        <source>What stays</source>
        <translation>O que fica</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>not chosen yet</source>
        <translation>ainda não escolhida</translation>
    </message>
    <message>
        <source>mine</source>
        <translation>a minha</translation>
    </message>
    <message>
        <source>theirs</source>
        <translation>a outra</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are still to be chosen.</source>
        <translation>
            <numerusform>Falta escolher %n tarefa.</numerusform>
            <numerusform>Falta escolher %n tarefas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Everything else of both is kept.</source>
        <translation>Todo o resto dos dois é mantido.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::DeskNotice</name>
    <message>
        <source>Also edited at %1 since %2</source>
        <comment>a desk, and a time</comment>
        <translation>Também editada em %1 desde %2</translation>
    </message>
    <message numerus="yes">
        <source>Also edited at %n other desks</source>
        <translation>
            <numerusform>Também editada em mais %n posto</numerusform>
            <numerusform>Também editada em mais %n postos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: since %2, last changed at %3, tasks %4</source>
        <comment>a desk, times, and numbers</comment>
        <translation>%1: desde %2, última alteração às %3, tarefas %4</translation>
    </message>
</context>
<context>
    <name>FileWords</name>
    <message numerus="yes">
        <source>%n programs in this file are not in the catalog. Their entries will be invalid: %1</source>
        <translation>
            <numerusform>%n programa deste arquivo não está no catálogo. As entradas dele ficarão inválidas: %1</numerusform>
            <numerusform>%n programas deste arquivo não estão no catálogo. As entradas deles ficarão inválidas: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n programs in the catalog may have another content than in this file: %1</source>
        <translation>
            <numerusform>%n programa do catálogo pode ter um conteúdo diferente do deste arquivo: %1</numerusform>
            <numerusform>%n programas do catálogo podem ter um conteúdo diferente do deste arquivo: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n programs have another name in the catalog than in this file: %1</source>
        <translation>
            <numerusform>%n programa tem no catálogo um nome diferente do deste arquivo: %1</numerusform>
            <numerusform>%n programas têm no catálogo um nome diferente do deste arquivo: %1</numerusform>
        </translation>
    </message>
</context>
</TS>
