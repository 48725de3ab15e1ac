<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>Demonstration</name>
    <message>
        <source>The demonstration could not be read: %1: %2</source>
        <translation>No se ha podido leer la demostración: %1: %2</translation>
    </message>
    <message>
        <source>The demonstration media could not be copied to the database folder.</source>
        <translation>No se han podido copiar los archivos multimedia de la demostración en la carpeta de la base de datos.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EditorMenus</name>
    <message>
        <source>Hi&amp;gh contrast</source>
        <translation>Alto con&amp;traste</translation>
    </message>
    <message>
        <source>&amp;As-run of a day…</source>
        <translation>&amp;Registro de emisión de un día…</translation>
    </message>
    <message>
        <source>&amp;Schedule</source>
        <translation>Pro&amp;gramación</translation>
    </message>
    <message>
        <source>&amp;Edit schedule</source>
        <translation>&amp;Editar la programación</translation>
    </message>
    <message>
        <source>&amp;Open database…</source>
        <translation>&amp;Abrir base de datos…</translation>
    </message>
    <message>
        <source>Open &amp;from a server…</source>
        <translation>A&amp;brir desde un servidor…</translation>
    </message>
    <message>
        <source>&amp;Read schedule from a file…</source>
        <translation>&amp;Leer la programación de un archivo…</translation>
    </message>
    <message>
        <source>&amp;Write schedule to a file…</source>
        <translation>&amp;Guardar la programación en un archivo…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Dark theme</source>
        <translation>Tema &amp;oscuro</translation>
    </message>
    <message>
        <source>&amp;Light theme</source>
        <translation>Tema &amp;claro</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Programs</source>
        <translation>&amp;Programas</translation>
    </message>
    <message>
        <source>&amp;Import files…</source>
        <translation>&amp;Importar archivos…</translation>
    </message>
    <message>
        <source>Import &amp;folder…</source>
        <translation>Importar &amp;carpeta…</translation>
    </message>
    <message>
        <source>&amp;Remove from catalog</source>
        <translation>&amp;Quitar del catálogo</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>S&amp;kip to the next play</source>
        <translation>&amp;Pasar a la reproducción siguiente</translation>
    </message>
    <message>
        <source>&amp;Cancel what is cut in</source>
        <translation>&amp;Cancelar la inserción</translation>
    </message>
    <message>
        <source>S&amp;top the schedule…</source>
        <translation>&amp;Detener la programación…</translation>
    </message>
    <message>
        <source>&amp;Bring back what was canceled</source>
        <translation>Rec&amp;uperar lo cancelado</translation>
    </message>
    <message>
        <source>&amp;Where used…</source>
        <translation>&amp;Dónde se usa…</translation>
    </message>
    <message>
        <source>&amp;Versions…</source>
        <translation>&amp;Versiones…</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vista previa</translation>
    </message>
    <message>
        <source>&amp;New database…</source>
        <translation>&amp;Nueva base de datos…</translation>
    </message>
    <message>
        <source>O&amp;pen recent</source>
        <translation>Abrir recien&amp;tes</translation>
    </message>
    <message>
        <source>St&amp;art the schedule…</source>
        <translation>&amp;Iniciar la programación…</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Buscar</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EditorWindow</name>
    <message>
        <source>Import: %1 percent</source>
        <translation>Importación: %1 por ciento</translation>
    </message>
    <message>
        <source>Now and next</source>
        <translation>Ahora y a continuación</translation>
    </message>
    <message>
        <source>Clock changes</source>
        <translation>Cambios de hora</translation>
    </message>
    <message>
        <source>&amp;Now and next</source>
        <translation>&amp;Ahora y a continuación</translation>
    </message>
    <message>
        <source>&amp;Clock changes</source>
        <translation>Cambios de &amp;hora</translation>
    </message>
    <message>
        <source>Schedule editor</source>
        <translation>Editor de la programación</translation>
    </message>
    <message>
        <source>%1 – Schedule editor</source>
        <translation>%1 – Editor de programación</translation>
    </message>
    <message>
        <source>Open database</source>
        <translation>Abrir base de datos</translation>
    </message>
    <message>
        <source>Schedules (*.db *.sqlite);;All files (*)</source>
        <translation>Programaciones (*.db *.sqlite);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Write the schedule to a file</source>
        <translation>Guardar la programación en un archivo</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>Programaciones (*.json)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>Guardado en %1.</translation>
    </message>
    <message>
        <source>Read a schedule from a file</source>
        <translation>Leer una programación de un archivo</translation>
    </message>
    <message numerus="yes">
        <source>Replace the whole schedule with the %n tasks in this file?</source>
        <translation>
            <numerusform>Este archivo contiene %n tarea. ¿Sustituir toda la programación?</numerusform>
            <numerusform>Este archivo contiene %n tareas. ¿Sustituir toda la programación?</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Sustituir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Changes in the editor that are not saved go with it (tasks %1). Undo brings them back.</source>
        <translation>También se sustituyen los cambios del editor que no están guardados (tareas %1). «Deshacer» los recupera.</translation>
    </message>
    <message>
        <source>Save, then replace</source>
        <translation>Guardar y después sustituir</translation>
    </message>
    <message>
        <source>Replace without saving</source>
        <translation>Sustituir sin guardar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>The schedule has changes that are not saved. As a draft they are offered when this database is opened again.

Close this question to keep editing.</source>
        <translation>La programación tiene cambios sin guardar. Como borrador se ofrecerán cuando se vuelva a abrir esta base de datos.

Cierre esta pregunta para seguir editando.</translation>
    </message>
    <message>
        <source>Keep as draft</source>
        <translation>Guardar borrador</translation>
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
        <translation>El cambio está ahora en el editor, donde se puede guardar.</translation>
    </message>
    <message>
        <source>New database</source>
        <translation>Nueva base de datos</translation>
    </message>
    <message>
        <source>The file %1 exists already. It is not written over.</source>
        <translation>El archivo %1 ya existe. No se sobrescribe.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::CataloguePanel</name>
    <message>
        <source>No programs yet. Drop media files or folders here, or choose “Import files”.</source>
        <translation>Aún no hay programas. Arrastre aquí archivos multimedia o carpetas, o elija «Importar archivos».</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>No program fits what is searched for.</source>
        <translation>Ningún programa coincide con lo que se busca.</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n programs from the catalog? The files are not deleted.</source>
        <translation>
            <numerusform>¿Quitar este programa del catálogo? El archivo no se elimina.</numerusform>
            <numerusform>¿Quitar %n programas del catálogo? Los archivos no se eliminan.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::CatalogueImport</name>
    <message>
        <source>Import files</source>
        <translation>Importar archivos</translation>
    </message>
    <message>
        <source>Import folder</source>
        <translation>Importar carpeta</translation>
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
        <translation>Se ha cancelado la importación; no se ha añadido nada.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>file and reason</comment>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more.</source>
        <translation>
            <numerusform>… y %n más.</numerusform>
            <numerusform>… y %n más.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some files could not be imported:</source>
        <translation>Algunos archivos no se han podido importar:</translation>
    </message>
    <message numerus="yes">
        <source>Looking for files: %n found</source>
        <translation>
            <numerusform>Buscando archivos: %n encontrado</numerusform>
            <numerusform>Buscando archivos: %n encontrados</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported: %1, %2.</source>
        <translation>Importación terminada: %1, %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n new</source>
        <translation>
            <numerusform>%n nuevo</numerusform>
            <numerusform>%n nuevos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n updated</source>
        <translation>
            <numerusform>%n actualizado</numerusform>
            <numerusform>%n actualizados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HostPrompts</name>
    <message>
        <source>Question</source>
        <translation>Pregunta</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>The file %1 exists already. Replace it?</source>
        <translation>El archivo %1 ya existe. ¿Desea sustituirlo?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Sustituir</translation>
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
        <translation>No hay memoria suficiente.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>El disco está lleno.</translation>
    </message>
    <message>
        <source>Your share of the disk is used up.</source>
        <translation>Su cuota de disco está agotada.</translation>
    </message>
    <message>
        <source>The system does not let this application write a larger file.</source>
        <translation>El sistema no permite que esta aplicación escriba un archivo más grande.</translation>
    </message>
    <message>
        <source>The file or its folder is read-only.</source>
        <translation>El archivo o su carpeta es de solo lectura.</translation>
    </message>
    <message>
        <source>It was opened for reading only.</source>
        <translation>Se abrió solo para lectura.</translation>
    </message>
    <message>
        <source>Reading it took too long.</source>
        <translation>La lectura tardó demasiado.</translation>
    </message>
    <message numerus="yes">
        <source>A text in it is longer than %n bytes.</source>
        <translation>
            <numerusform>Contiene un texto de más de %n byte.</numerusform>
            <numerusform>Contiene un texto de más de %n bytes.</numerusform>
        </translation>
    </message>
    <message>
        <source>The database reports error %1.</source>
        <translation>La base de datos informa del error %1.</translation>
    </message>
    <message>
        <source>The database reports error %1. %3</source>
        <translation>La base de datos informa del error %1. %3</translation>
    </message>
    <message>
        <source>The database has failed its own check.</source>
        <translation>La comprobación interna de la base de datos ha fallado.</translation>
    </message>
    <message>
        <source>The disk reports a read or write error.</source>
        <translation>El disco informa de un error de lectura o escritura.</translation>
    </message>
    <message>
        <source>Data that must be there is missing.</source>
        <translation>Faltan datos imprescindibles.</translation>
    </message>
    <message>
        <source>The database driver is not the one that this application was made for.</source>
        <translation>El controlador de la base de datos no es el previsto para esta aplicación.</translation>
    </message>
    <message>
        <source>The file is missing or empty, but its log %1 is still there.</source>
        <translation>El archivo falta o está vacío, pero su registro %1 sigue ahí.</translation>
    </message>
    <message>
        <source>No file can be created there.</source>
        <translation>Ahí no se puede crear ningún archivo.</translation>
    </message>
    <message>
        <source>Its log %1 belongs to another copy of the file. Put back the file that it belongs to, or move the log away to go on without it.</source>
        <translation>Su registro %1 pertenece a otra copia del archivo. Vuelva a colocar el archivo correspondiente o mueva el registro para continuar sin él.</translation>
    </message>
    <message>
        <source>Its log has no index, and none can be created in a read-only folder. Copy both files to another folder.</source>
        <translation>Su registro no tiene índice y no se puede crear uno en una carpeta de solo lectura. Copie ambos archivos en otra carpeta.</translation>
    </message>
    <message>
        <source>It was removed or replaced after it was opened.</source>
        <translation>Se eliminó o reemplazó después de abrirlo.</translation>
    </message>
    <message numerus="yes">
        <source>The name or the path of a program is longer than %n bytes.</source>
        <translation>
            <numerusform>El nombre o la ruta de un programa supera %n byte.</numerusform>
            <numerusform>El nombre o la ruta de un programa supera los %n bytes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n numbers for programs are used up.</source>
        <translation>
            <numerusform>El único número de programa está asignado.</numerusform>
            <numerusform>Los %n números de programa están asignados.</numerusform>
        </translation>
    </message>
    <message>
        <source>Its plans do not fit together.</source>
        <translation>Sus planes no encajan entre sí.</translation>
    </message>
    <message>
        <source>“%1” is missing.</source>
        <translation>Falta «%1».</translation>
    </message>
    <message>
        <source>It contains “%1”, which does not belong there.</source>
        <translation>Contiene «%1», que no corresponde.</translation>
    </message>
    <message>
        <source>“%1” has been changed.</source>
        <translation>«%1» se ha modificado.</translation>
    </message>
    <message>
        <source>It does not say which state it is in.</source>
        <translation>No indica en qué estado se encuentra.</translation>
    </message>
    <message>
        <source>It was created by an older version of this application. Set up the server again.</source>
        <translation>Se creó con una versión anterior de esta aplicación. Vuelva a configurar el servidor.</translation>
    </message>
    <message>
        <source>The address contains a password. Passwords belong in a password file.</source>
        <translation>La dirección contiene una contraseña. Las contraseñas deben estar en un archivo de contraseñas.</translation>
    </message>
    <message>
        <source>The address of a schedule on a server has this form: %1</source>
        <translation>La dirección de una programación en un servidor tiene esta forma: %1</translation>
    </message>
    <message>
        <source>The name of the schedule in the address is missing, too long or not readable.</source>
        <translation>El nombre de la programación en la dirección falta, es demasiado largo o no se puede leer.</translation>
    </message>
    <message>
        <source>The connection was lost before the server answered.</source>
        <translation>La conexión se perdió antes de que el servidor respondiera.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>El servidor no responde.</translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n tasks.</source>
        <translation>
            <numerusform>Hay más de %n tarea.</numerusform>
            <numerusform>Hay más de %n tareas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n plans.</source>
        <translation>
            <numerusform>Hay más de %n plan.</numerusform>
            <numerusform>Hay más de %n planes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n entries.</source>
        <translation>
            <numerusform>Hay más de %n entrada.</numerusform>
            <numerusform>Hay más de %n entradas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n numbers in the lists of plans.</source>
        <translation>
            <numerusform>Las listas de los planes contienen más de %n número.</numerusform>
            <numerusform>Las listas de los planes contienen más de %n números.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n programs.</source>
        <translation>
            <numerusform>Hay más de %n programa.</numerusform>
            <numerusform>Hay más de %n programas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A text of task %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>Un texto de la tarea %1 supera %n byte.</numerusform>
            <numerusform>Un texto de la tarea %1 supera los %n bytes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>It is larger than %n bytes.</source>
        <translation>
            <numerusform>Ocupa más de %n byte.</numerusform>
            <numerusform>Ocupa más de %n bytes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n values.</source>
        <translation>
            <numerusform>Hay más de %n valor.</numerusform>
            <numerusform>Hay más de %n valores.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A name in line %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>Un nombre de la línea %1 supera %n byte.</numerusform>
            <numerusform>Un nombre de la línea %1 supera los %n bytes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A text in line %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>Un texto de la línea %1 supera %n byte.</numerusform>
            <numerusform>Un texto de la línea %1 supera los %n bytes.</numerusform>
        </translation>
    </message>
    <message>
        <source>It is not valid JSON (line %1, column %2).</source>
        <translation>No es JSON válido (línea %1, columna %2).</translation>
    </message>
    <message>
        <source>“%1” is not a whole number.</source>
        <translation>«%1» no es un número entero.</translation>
    </message>
    <message>
        <source>“%1” is outside the permitted range.</source>
        <translation>«%1» está fuera del intervalo permitido.</translation>
    </message>
    <message>
        <source>Wrong kind of value: expected %1, found %2.</source>
        <translation>Tipo de valor incorrecto: se esperaba %1, se encontró %2.</translation>
    </message>
    <message>
        <source>Wrong kind of value: expected %1 or a number, found %2.</source>
        <translation>Tipo de valor incorrecto: se esperaba %1 o un número, se encontró %2.</translation>
    </message>
    <message>
        <source>“%2” is not known here. Expected: %1 or a number.</source>
        <translation>«%2» no se reconoce aquí. Se esperaba %1 o un número.</translation>
    </message>
    <message>
        <source>The text is not valid Base64.</source>
        <translation>El texto no es Base64 válido.</translation>
    </message>
    <message numerus="yes">
        <source>The text is longer than %n bytes.</source>
        <translation>
            <numerusform>El texto supera %n byte.</numerusform>
            <numerusform>El texto supera los %n bytes.</numerusform>
        </translation>
    </message>
    <message>
        <source>The key %1 is not the ID of the task, which is %2.</source>
        <translation>La clave %1 no coincide con el id. de la tarea (%2).</translation>
    </message>
    <message>
        <source>Another task already has the ID %1.</source>
        <translation>Otra tarea ya tiene el id. %1.</translation>
    </message>
    <message>
        <source>The format is “%1” instead of “%2”.</source>
        <translation>El formato es «%1» en lugar de «%2».</translation>
    </message>
    <message>
        <source>Version %1 is newer than version %2, the newest that this application reads.</source>
        <translation>La versión %1 es posterior a la %2, la más reciente que lee esta aplicación.</translation>
    </message>
    <message>
        <source>There is no version %1.</source>
        <translation>No existe la versión %1.</translation>
    </message>
    <message>
        <source>It is JSON of another kind, not a schedule.</source>
        <translation>Es otro tipo de JSON, no una programación.</translation>
    </message>
    <message>
        <source>It is not a schedule: “format” is missing.</source>
        <translation>No es una programación: falta «format».</translation>
    </message>
    <message>
        <source>“%1” is not known here.</source>
        <translation>«%1» no se reconoce aquí.</translation>
    </message>
    <message>
        <source>“%1” occurs twice here.</source>
        <translation>«%1» aparece dos veces aquí.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>Es una carpeta.</translation>
    </message>
    <message>
        <source>It is a pipe, not a file.</source>
        <translation>Es una tubería, no un archivo.</translation>
    </message>
    <message>
        <source>It is a socket, not a file.</source>
        <translation>Es un socket, no un archivo.</translation>
    </message>
    <message>
        <source>It is a device, not a file.</source>
        <translation>Es un dispositivo, no un archivo.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>No es un archivo.</translation>
    </message>
    <message>
        <source>Nothing comes through the pipe.</source>
        <translation>No llega nada por la tubería.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>El archivo no existe.</translation>
    </message>
    <message>
        <source>You do not have permission to read it.</source>
        <translation>No tiene permiso para leerlo.</translation>
    </message>
    <message>
        <source>It cannot be opened. %1</source>
        <translation>No se puede abrir. %1</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>Its name is not in UTF-8. Rename the file to import it.</source>
        <translation>Su nombre no está en UTF-8. Cambie el nombre del archivo para importarlo.</translation>
    </message>
    <message>
        <source>Addresses of this kind cannot be played.</source>
        <translation>Las direcciones de este tipo no se pueden reproducir.</translation>
    </message>
    <message>
        <source>It is a file on another computer. Copy it to this computer first.</source>
        <translation>El archivo está en otro equipo. Cópielo primero en este.</translation>
    </message>
    <message>
        <source>It is not a media file, or it is damaged.</source>
        <translation>No es un archivo multimedia o está dañado.</translation>
    </message>
    <message>
        <source>Files of this format cannot be imported.</source>
        <translation>Los archivos de este formato no se pueden importar.</translation>
    </message>
    <message>
        <source>Its content cannot be read.</source>
        <translation>No se puede leer su contenido.</translation>
    </message>
    <message>
        <source>The image in it cannot be read.</source>
        <translation>No se puede leer la imagen que contiene.</translation>
    </message>
    <message>
        <source>It contains neither picture nor sound.</source>
        <translation>No contiene ni imagen ni sonido.</translation>
    </message>
    <message>
        <source>Its length cannot be determined.</source>
        <translation>No se puede determinar su duración.</translation>
    </message>
    <message>
        <source>It could not be read in time.</source>
        <translation>No se pudo leer a tiempo.</translation>
    </message>
    <message>
        <source>The media reader crashed while reading it.</source>
        <translation>El lector de medios falló al leerlo.</translation>
    </message>
    <message>
        <source>The media reader gave no valid answer about it.</source>
        <translation>El lector de medios no dio una respuesta válida.</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader is missing: %1</source>
        <translation>No se pueden leer los medios. Falta el lector de medios: %1</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 cannot be started. %2</source>
        <translation>No se pueden leer los medios. El lector de medios %1 no se puede iniciar. %2</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 does not answer.</source>
        <translation>No se pueden leer los medios. El lector de medios %1 no responde.</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 exits immediately.</source>
        <translation>No se pueden leer los medios. El lector de medios %1 se cierra de inmediato.</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 is of another version.</source>
        <translation>No se pueden leer los medios. El lector de medios %1 es de otra versión.</translation>
    </message>
    <message>
        <source>Version %1 is damaged.</source>
        <translation>La versión %1 está dañada.</translation>
    </message>
    <message numerus="yes">
        <source>The name or the note of a version is longer than %n characters.</source>
        <translation>
            <numerusform>El nombre o la nota de una versión tiene más de %n carácter.</numerusform>
            <numerusform>El nombre o la nota de una versión tiene más de %n caracteres.</numerusform>
        </translation>
    </message>
    <message>
        <source>The name or the note of a version contains a character that is not visible.</source>
        <translation>El nombre o la nota de una versión contiene un carácter que no es visible.</translation>
    </message>
    <message>
        <source>No schedule file is open, so nothing can be saved.</source>
        <translation>No hay ningún archivo de programación abierto, por lo que no se puede guardar nada.</translation>
    </message>
    <message>
        <source>%1 cannot be opened. Its folder does not exist.</source>
        <translation>No se puede abrir %1. Su carpeta no existe.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 no existe.</translation>
    </message>
    <message>
        <source>%1 is not a schedule database.</source>
        <translation>%1 no es una base de datos de programación.</translation>
    </message>
    <message>
        <source>%1 is a database of another application.</source>
        <translation>%1 es una base de datos de otra aplicación.</translation>
    </message>
    <message>
        <source>%1 was written by a newer version of this application.</source>
        <translation>%1 se escribió con una versión más reciente de esta aplicación.</translation>
    </message>
    <message>
        <source>%1 is in use by another application. Try again when that application is closed.</source>
        <translation>Otra aplicación está usando %1. Inténtelo de nuevo cuando se haya cerrado.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>No se puede escribir %1. %2</translation>
    </message>
    <message>
        <source>%1 is damaged. %2</source>
        <translation>%1 está dañado. %2</translation>
    </message>
    <message>
        <source>%1 has been saved by another application in the meantime. Saving now would overwrite those changes.</source>
        <translation>Otra aplicación ha guardado %1 entretanto. Si guarda ahora, se sobrescribirán esos cambios.</translation>
    </message>
    <message>
        <source>%1 has no room for more programs. %2</source>
        <translation>%1 no admite más programas. %2</translation>
    </message>
    <message>
        <source>%1 could not be read or written. %2</source>
        <translation>No se pudo leer o escribir %1. %2</translation>
    </message>
    <message>
        <source>%1 is not a schedule database as this application creates it. %2</source>
        <translation>%1 no es una base de datos de programación como las que crea esta aplicación. %2</translation>
    </message>
    <message>
        <source>%1 exceeds what a schedule can hold. %2</source>
        <translation>%1 supera lo que admite una programación. %2</translation>
    </message>
    <message>
        <source>%1 may not have been written. %2 The change is not visible in the file now, but may be there after a restart of the computer. Write the schedule to another disk, and check the current one before you go on.</source>
        <translation>Es posible que %1 no se haya escrito. %2 El cambio no se ve ahora en el archivo, pero puede aparecer tras reiniciar el equipo. Guarde la programación en otro disco y compruebe el disco actual antes de continuar.</translation>
    </message>
    <message>
        <source>It is not certain whether %1 has been written. %2 Once the server can be reached again, see whether the change is there before you go on.</source>
        <translation>No es seguro que %1 se haya escrito. %2 Cuando vuelva a tener acceso al servidor, compruebe si el cambio está ahí antes de continuar.</translation>
    </message>
    <message>
        <source>%1 does not exist. A schedule on a server is set up with “schedulectl server-setup”.</source>
        <translation>%1 no existe. Una programación en un servidor se configura con «schedulectl server-setup».</translation>
    </message>
    <message>
        <source>You do not have permission.</source>
        <translation>No tiene permiso.</translation>
    </message>
    <message>
        <source>The file or a folder of its path does not exist.</source>
        <translation>El archivo o una carpeta de su ruta no existe.</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>El disco es de solo lectura.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>El nombre es demasiado largo.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Hay demasiados archivos abiertos.</translation>
    </message>
    <message>
        <source>The file is in use.</source>
        <translation>El archivo está en uso.</translation>
    </message>
    <message>
        <source>The system reports error %1.</source>
        <translation>El sistema informa del error %1.</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>verdadero o falso</translation>
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
        <translation>ningún valor</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>número entero</translation>
    </message>
    <message>
        <source>whole number as text</source>
        <translation>número entero como texto</translation>
    </message>
    <message>
        <source>program number that occurs once</source>
        <translation>número de programa que aparece una sola vez</translation>
    </message>
    <message>
        <source>another number</source>
        <translation>otro número</translation>
    </message>
    <message>
        <source>SHA-256 hash</source>
        <translation>suma de comprobación SHA-256</translation>
    </message>
    <message>
        <source>another text</source>
        <translation>otro texto</translation>
    </message>
    <message>
        <source>%1 could not be read. %2</source>
        <translation>No se pudo leer %1. %2</translation>
    </message>
    <message>
        <source>Line %1, %2: %3</source>
        <translation>Línea %1, %2: %3</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProgramTableModel</name>
    <message>
        <source>File not found: %1</source>
        <translation>El archivo ya no existe: %1</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
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
        <translation>Duración</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
</context>
<context>
    <name>trel::desktop::SaveRescue</name>
    <message>
        <source>The schedule was not saved. %1

What do you want to do with your changes?</source>
        <translation>No se ha guardado la programación. %1

¿Qué desea hacer con los cambios?</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Write to a file</source>
        <translation>Guardar en un archivo</translation>
    </message>
    <message>
        <source>Write the schedule to a file</source>
        <translation>Guardar la programación en un archivo</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>Programaciones (*.json)</translation>
    </message>
    <message>
        <source>Go on editing</source>
        <translation>Seguir editando</translation>
    </message>
    <message>
        <source>While you were editing, %1 was saved by another program. Your changes are not saved.</source>
        <translation>Mientras editaba, otra aplicación guardó %1. Sus cambios no están guardados.</translation>
    </message>
    <message>
        <source>If you keep yours, what was saved there stays among the versions. If you take theirs, yours can be brought back until the next save.</source>
        <translation>Si conserva los suyos, lo que se guardó allí queda entre las versiones. Si toma los otros, los suyos se pueden recuperar hasta que se vuelva a guardar.</translation>
    </message>
    <message>
        <source>What was changed there:</source>
        <translation>Qué se cambió allí:</translation>
    </message>
    <message>
        <source>Nothing that you would see.</source>
        <translation>Nada que se vea.</translation>
    </message>
    <message>
        <source>As it was saved there</source>
        <translation>Como se guardó allí</translation>
    </message>
    <message>
        <source>With your changes</source>
        <translation>Con sus cambios</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>Conservar los míos</translation>
    </message>
    <message>
        <source>Take theirs</source>
        <translation>Tomar los otros</translation>
    </message>
    <message>
        <source>Write mine to a file</source>
        <translation>Guardar los míos en un archivo</translation>
    </message>
    <message>
        <source>While you were editing, %1 was saved by %2, on %3. Your changes are not saved.</source>
        <comment>the database, a program, and the time</comment>
        <translation>Mientras editaba, %2 guardó %1, el %3. Sus cambios no están guardados.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ClockChangePanel</name>
    <message>
        <source>Clock changes</source>
        <translation>Cambios de hora</translation>
    </message>
    <message>
        <source>No clock change falls within the validity of any task.</source>
        <translation>Ningún cambio de hora cae dentro de la validez de una tarea.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; no plan of task %4 is affected.</source>
        <translation>%1: se omite %2–%3; no afecta a ningún plan de la tarea %4.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; no plan of task %4 is affected.</source>
        <translation>%1: %2–%3 se repite; no afecta a ningún plan de la tarea %4.</translation>
    </message>
</context>
<context>
    <name>ClockChangeText</name>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 does not play.</source>
        <translation>%1: se omite %2–%3; el plan %4 de la tarea %5 no se reproduce.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 starts at %6 in the middle of its list.</source>
        <translation>%1: se omite %2–%3; el plan %4 de la tarea %5 empieza a las %6 a mitad de su lista.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 is cut off at %6.</source>
        <translation>%1: se omite %2–%3; el plan %4 de la tarea %5 se corta a las %6.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 skips this part of its list.</source>
        <translation>%1: se omite %2–%3; el plan %4 de la tarea %5 se salta esta parte de su lista.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 plays twice.</source>
        <translation>%1: %2–%3 se repite; el plan %4 de la tarea %5 se reproduce dos veces.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 starts twice at %6.</source>
        <translation>%1: %2–%3 se repite; el plan %4 de la tarea %5 empieza dos veces a las %6.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 ends twice at %6.</source>
        <translation>%1: %2–%3 se repite; el plan %4 de la tarea %5 termina dos veces a las %6.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 repeats this part of its list.</source>
        <translation>%1: %2–%3 se repite; el plan %4 de la tarea %5 repite esta parte de su lista.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::PreviewDock</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vista previa</translation>
    </message>
    <message>
        <source>&amp;Full-screen preview</source>
        <translation>Vista previa a &amp;pantalla completa</translation>
    </message>
</context>
<context>
    <name>trel::desktop::PreviewScreen</name>
    <message>
        <source>Preview of the screen</source>
        <translation>Vista previa de la pantalla</translation>
    </message>
</context>
<context>
    <name>trel::desktop::NowNextPanel</name>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>A continuación</translation>
    </message>
    <message>
        <source>Cut in</source>
        <translation>Insertado</translation>
    </message>
    <message>
        <source>Now and next</source>
        <translation>Ahora y a continuación</translation>
    </message>
    <message>
        <source>What the screen shows</source>
        <translation>Contenido de la pantalla</translation>
    </message>
    <message>
        <source>Program on screen</source>
        <translation>Programa en pantalla</translation>
    </message>
    <message>
        <source>Position in the program</source>
        <translation>Posición en el programa</translation>
    </message>
    <message>
        <source>Why this is on screen</source>
        <translation>Por qué está en pantalla</translation>
    </message>
    <message>
        <source>Next program</source>
        <translation>Programa siguiente</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>Sin iniciar</translation>
    </message>
    <message>
        <source>%1 played</source>
        <translation>%1 reproducido</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>quedan %1</translation>
    </message>
    <message>
        <source>%1, until %2, %3 left</source>
        <translation>%1, hasta las %2, quedan %3</translation>
    </message>
    <message>
        <source>Nothing else is scheduled.</source>
        <translation>No hay nada más programado.</translation>
    </message>
    <message>
        <source>at %1, in %2</source>
        <translation>a las %1, en %2</translation>
    </message>
    <message>
        <source>on %1 at %2</source>
        <translation>el %1 a las %2</translation>
    </message>
</context>
<context>
    <name>ScreenWords</name>
    <message>
        <source>Playing</source>
        <translation>En reproducción</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Negro</translation>
    </message>
    <message>
        <source>Frozen</source>
        <translation>Congelado</translation>
    </message>
    <message>
        <source>Last frame of %1</source>
        <translation>Último fotograma de %1</translation>
    </message>
    <message>
        <source>Black screen</source>
        <translation>Pantalla negra</translation>
    </message>
    <message>
        <source>Entry %1 of %2, play %3 of %4</source>
        <translation>Entrada %1 de %2, reproducción %3 de %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2</source>
        <translation>Tarea %1, plan %2</translation>
    </message>
    <message>
        <source>Choose Start to put the saved schedule into effect.</source>
        <translation>El botón «Iniciar» pone en vigor la programación guardada.</translation>
    </message>
    <message>
        <source>No plan has started yet.</source>
        <translation>Todavía no ha empezado ningún plan.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is the first of the plans for this time.</source>
        <translation>De los planes para esta hora, el plan %1 de la tarea %2 es el primero.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is due, but none of its programs can play.</source>
        <translation>Es el turno del plan %1 de la tarea %2, pero ninguno de sus programas puede reproducirse.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is due, but its list is to run less than once.</source>
        <translation>Es el turno del plan %1 de la tarea %2, pero su lista debe reproducirse menos de una vez.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 has played its list the set number of times.</source>
        <translation>El plan %1 de la tarea %2 ya ha reproducido su lista las veces previstas.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is over, and no other has begun.</source>
        <translation>El plan %1 de la tarea %2 ha terminado y no ha empezado otro.</translation>
    </message>
    <message>
        <source>Cut in manually in place of plan %1 of task %2.</source>
        <translation>Insertado manualmente en lugar del plan %1 de la tarea %2.</translation>
    </message>
    <message>
        <source>What was cut in for plan %1 of task %2 has nothing left to play.</source>
        <translation>La inserción en lugar del plan %1 de la tarea %2 no tiene nada más que reproducir.</translation>
    </message>
    <message>
        <source>Cut in: %1</source>
        <translation>Insertado: %1</translation>
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
        <translation>%1, tarea %2. %3</translation>
    </message>
    <message>
        <source>On screen: %1, at %2</source>
        <translation>En pantalla: %1, en %2</translation>
    </message>
    <message>
        <source>On screen: %1</source>
        <translation>En pantalla: %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>day and time of day</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 to %2 is skipped: the clocks go forward.</source>
        <translation>El intervalo de %1 a %2 se omite: se adelantan los relojes.</translation>
    </message>
    <message>
        <source>%1 to %2 occurs twice: the clocks go back.</source>
        <translation>El intervalo de %1 a %2 se repite: se atrasan los relojes.</translation>
    </message>
    <message numerus="yes">
        <source>%n more plans do not reach the screen.</source>
        <translation>
            <numerusform>%n plan más no se muestra en pantalla.</numerusform>
            <numerusform>%n planes más no se muestran en pantalla.</numerusform>
        </translation>
    </message>
    <message>
        <source>Plan %1, above it, takes precedence.</source>
        <translation>El plan %1 está por encima y tiene prioridad.</translation>
    </message>
    <message>
        <source>It conflicts with a plan above it.</source>
        <translation>Entra en conflicto con un plan que está por encima.</translation>
    </message>
    <message>
        <source>Its list is over at %1, before the plan ends.</source>
        <translation>Su lista termina a las %1, antes que el plan.</translation>
    </message>
    <message>
        <source>Plan %1, %2 to %3</source>
        <translation>Plan %1, %2 a %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>plan and its programs</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>No task is valid on this day.</source>
        <translation>Ninguna tarea es válida este día.</translation>
    </message>
    <message>
        <source>No task is valid</source>
        <translation>Sin tarea</translation>
    </message>
    <message>
        <source>No task</source>
        <translation>Sin tarea</translation>
    </message>
    <message>
        <source>Task %1</source>
        <translation>Tarea %1</translation>
    </message>
    <message>
        <source>Frozen: %1</source>
        <translation>Congelado: %1</translation>
    </message>
    <message>
        <source>Cut in: %1</source>
        <translation>Insertado: %1</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Se omite</translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation>Se repite</translation>
    </message>
    <message>
        <source>nothing to show</source>
        <translation>nada que mostrar</translation>
    </message>
    <message>
        <source>Not on screen</source>
        <translation>No en pantalla</translation>
    </message>
    <message>
        <source>In conflict</source>
        <translation>En conflicto</translation>
    </message>
    <message>
        <source>Programs of the week</source>
        <translation>Programas de la semana</translation>
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
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Whole day</source>
        <translation>Día entero</translation>
    </message>
    <message>
        <source>As edited</source>
        <translation>En edición</translation>
    </message>
    <message>
        <source>In effect</source>
        <translation>En vigor</translation>
    </message>
    <message>
        <source>Previous week</source>
        <translation>Semana anterior</translation>
    </message>
    <message>
        <source>Next week</source>
        <translation>Semana siguiente</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Schedule shown</source>
        <translation>Qué programación se muestra</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mes anterior</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mes siguiente</translation>
    </message>
    <message>
        <source>Choose a day in a calendar</source>
        <translation>Elegir un día en un calendario</translation>
    </message>
    <message>
        <source>%1. Choose a day in a calendar</source>
        <comment>days of a week</comment>
        <translation>%1. Elegir un día en un calendario</translation>
    </message>
</context>
<context>
    <name>ProblemText</name>
    <message>
        <source>Task %1</source>
        <translation>Tarea %1</translation>
    </message>
    <message>
        <source>Task %1, row %2</source>
        <translation>Tarea %1, fila %2</translation>
    </message>
    <message>
        <source>The validity overlaps that of task %1 from %2 to %3.</source>
        <translation>La validez se solapa con la de la tarea %1 del %2 al %3.</translation>
    </message>
    <message>
        <source>The validity overlaps that of task %1.</source>
        <translation>La validez se solapa con la de la tarea %1.</translation>
    </message>
    <message>
        <source>The task is never valid: “%1” to “%2” is not a period.</source>
        <translation>La tarea nunca es válida: «%1» a «%2» no es un periodo.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: none of its days falls within the validity of the task.</source>
        <translation>El plan %1 nunca se reproduce: ninguno de sus días cae en la validez de la tarea.</translation>
    </message>
    <message>
        <source>Plan %1 is never on screen: earlier rows such as row %2 always come first.</source>
        <translation>El plan %1 nunca está en pantalla: siempre tienen prioridad filas anteriores como la fila %2.</translation>
    </message>
    <message>
        <source>Plan %1 is in conflict with plan %2 in row %3 from %4 on.</source>
        <translation>El plan %1 está en conflicto con el plan %2 de la fila %3 desde el %4.</translation>
    </message>
    <message>
        <source>Plan %1 is in conflict with plan %2 in row %3, but on no date.</source>
        <translation>El plan %1 está en conflicto con el plan %2 de la fila %3, pero en ninguna fecha.</translation>
    </message>
    <message>
        <source>No picture from %1 to %2, every day.</source>
        <translation>Sin imagen de %1 a %2, todos los días.</translation>
    </message>
    <message>
        <source>No picture from %1 to %2 on: %3.</source>
        <translation>Sin imagen de %1 a %2: %3.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it would go on after midnight, until %2.</source>
        <translation>El plan %1 nunca se reproduce: pasaría de la medianoche, hasta las %2.</translation>
    </message>
    <message>
        <source>Plan %1 is cut off at midnight: it would go on until %2.</source>
        <translation>El plan %1 se corta a medianoche: seguiría hasta las %2.</translation>
    </message>
    <message>
        <source>Plan %1 is cut off at midnight: it would go on for more than a day.</source>
        <translation>El plan %1 se corta a medianoche: seguiría más de un día.</translation>
    </message>
    <message>
        <source>Invalid entries in plan %1: %2. The first is “%3”.</source>
        <translation>Entradas no válidas en el plan %1: %2. La primera es «%3».</translation>
    </message>
    <message>
        <source>Missing files in plan %1: %2. The first is “%3”.</source>
        <translation>Archivos que faltan en el plan %1: %2. El primero es «%3».</translation>
    </message>
    <message>
        <source>Entries without a length in plan %1: %2. The first is “%3”.</source>
        <translation>Entradas sin duración en el plan %1: %2. La primera es «%3».</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is cut off at the end of the day.</source>
        <translation>En el plan %1, «%2» se corta al final del día.</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is cut off at %3, when the plan ends.</source>
        <translation>En el plan %1, «%2» se corta a las %3, cuando termina el plan.</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is never reached: an entry before it does not end by itself.</source>
        <translation>En el plan %1, a «%2» nunca le llega el turno: una entrada anterior no termina por sí sola.</translation>
    </message>
    <message>
        <source>Plan %1 contains no programs.</source>
        <translation>El plan %1 no contiene programas.</translation>
    </message>
    <message>
        <source>Change the dates of one of the two tasks. Until then nothing can be saved.</source>
        <translation>Cambie las fechas de una de las dos tareas. Hasta entonces no se puede guardar nada.</translation>
    </message>
    <message>
        <source>Choose a start date, and an end date that is not before it.</source>
        <translation>Elija una fecha de inicio y una de fin que no sea anterior.</translation>
    </message>
    <message>
        <source>Correct the days and times of the plan.</source>
        <translation>Corrija los días y las horas del plan.</translation>
    </message>
    <message>
        <source>Change the days or times of one of the plans.</source>
        <translation>Cambie los días o las horas de uno de los planes.</translation>
    </message>
    <message>
        <source>Restore the files, or choose other programs.</source>
        <translation>Restaure los archivos o elija otros programas.</translation>
    </message>
    <message>
        <source>Choose the programs of the plan anew.</source>
        <translation>Elija de nuevo los programas del plan.</translation>
    </message>
    <message>
        <source>Split the plan in two, or let it end before midnight.</source>
        <translation>Divida el plan en dos o haga que termine antes de medianoche.</translation>
    </message>
    <message>
        <source>Let the plan end before midnight.</source>
        <translation>Haga que el plan termine antes de medianoche.</translation>
    </message>
    <message>
        <source>Let the plan end later, or play less.</source>
        <translation>Haga que el plan termine más tarde o quite programas.</translation>
    </message>
    <message>
        <source>Move the entry to the front, or into another plan.</source>
        <translation>Mueva la entrada al principio o a otro plan.</translation>
    </message>
    <message>
        <source>Add a plan, or let the plan before it end with its last frame.</source>
        <translation>Añada un plan o haga que el anterior termine con la imagen congelada.</translation>
    </message>
    <message>
        <source>Move the plan if that is not wanted.</source>
        <translation>Mueva el plan si no lo desea.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemModel</name>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>As of</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Qué hacer</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemPanel</name>
    <message>
        <source>No problems.</source>
        <translation>Ningún problema.</translation>
    </message>
    <message>
        <source>Go to the row</source>
        <translation>Ir a la fila</translation>
    </message>
    <message>
        <source>Split in two</source>
        <translation>Dividir en dos</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemDock</name>
    <message>
        <source>No open problems</source>
        <translation>Ningún problema abierto</translation>
    </message>
    <message numerus="yes">
        <source>%n open problems</source>
        <translation>
            <numerusform>%n problema abierto</numerusform>
            <numerusform>%n problemas abiertos</numerusform>
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
        <translation>Mostrar qué falla en la programación</translation>
    </message>
</context>
<context>
    <name>PlanFaultText</name>
    <message>
        <source>Plan %1 never plays: none of its days is a day of the week.</source>
        <translation>El plan %1 nunca se reproduce: ninguno de sus días es un día de la semana.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, is not a time in the form %3.</source>
        <translation>El plan %1 nunca se reproduce: su inicio, «%2», no es una hora con el formato %3.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its end, “%2”, is not a time in the form %3.</source>
        <translation>El plan %1 nunca se reproduce: su fin, «%2», no es una hora con el formato %3.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, and its end, “%3”, are not times in the form %4.</source>
        <translation>El plan %1 nunca se reproduce: su inicio, «%2», y su fin, «%3», no son horas con el formato %4.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its list is to run less than once.</source>
        <translation>El plan %1 nunca se reproduce: su lista debe reproducirse menos de una vez.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it starts and ends at %2.</source>
        <translation>El plan %1 nunca se reproduce: empieza y termina a las %2.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it ends at %3, before it starts at %2.</source>
        <translation>El plan %1 nunca se reproduce: empieza a las %2 y termina antes, a las %3.</translation>
    </message>
</context>
<context>
    <name>ZoneError</name>
    <message>
        <source>The system knows no time zone of the name “%1”, so that the local time is not known.</source>
        <translation>El sistema no conoce ninguna zona horaria llamada «%1», por lo que no se conoce la hora local.</translation>
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
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EffectActions</name>
    <message>
        <source>Stop the schedule that is in effect? The screen stays black until a schedule is started again.</source>
        <translation>¿Detener la programación en vigor? La pantalla quedará en negro hasta que se vuelva a iniciar una programación.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
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
        <translation>En vigor desde el %1 a las %2 (guardado %3)</translation>
    </message>
    <message>
        <source>Started by %1.</source>
        <translation>Iniciada por %1.</translation>
    </message>
    <message numerus="yes">
        <source>What is saved differs in %n tasks: %1</source>
        <translation>
            <numerusform>Lo guardado difiere en %n tarea: %1</numerusform>
            <numerusform>Lo guardado difiere en %n tareas: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>a program</comment>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>the last frame of “%1”</source>
        <translation>el último fotograma de «%1»</translation>
    </message>
    <message>
        <source>a black screen</source>
        <translation>la pantalla negra</translation>
    </message>
    <message>
        <source>%1 comes after %2, at %3; %4 comes back at %5.</source>
        <translation>%1 viene después de %2, a las %3; %4 vuelve a las %5.</translation>
    </message>
    <message>
        <source>%1 was cut off at %2; %3 comes at %4.</source>
        <translation>%1 se cortó a las %2; %3 viene a las %4.</translation>
    </message>
    <message>
        <source>%1 was cut in at %2; %3 comes back at %4.</source>
        <translation>%1 se insertó a las %2; %3 vuelve a las %4.</translation>
    </message>
    <message>
        <source>%1 comes after %2, at %3.</source>
        <translation>%1 viene después de %2, a las %3.</translation>
    </message>
    <message>
        <source>%1 was cut off at %2.</source>
        <translation>%1 se cortó a las %2.</translation>
    </message>
    <message>
        <source>%1 was cut in at %2.</source>
        <translation>%1 se insertó a las %2.</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <comment>time and date</comment>
        <translation>%1 del %2</translation>
    </message>
    <message>
        <source>What is in effect could not be changed. %1</source>
        <translation>No se pudo cambiar lo que está en vigor. %1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::AsRunWindow</name>
    <message>
        <source>As-run</source>
        <translation>Registro de emisión</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Previous day</source>
        <translation>Día anterior</translation>
    </message>
    <message>
        <source>Next day</source>
        <translation>Día siguiente</translation>
    </message>
    <message>
        <source>Only what was not as planned</source>
        <translation>Solo lo distinto de lo previsto</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Leyendo…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::AsRunModel</name>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>Planned</source>
        <translation>Previsto</translation>
    </message>
    <message>
        <source>On screen</source>
        <translation>En pantalla</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Observación</translation>
    </message>
</context>
<context>
    <name>AsRunText</name>
    <message>
        <source>Not known</source>
        <translation>No se conoce</translation>
    </message>
    <message>
        <source>No record</source>
        <translation>Sin registro</translation>
    </message>
    <message>
        <source>No player</source>
        <translation>Sin reproductor</translation>
    </message>
    <message>
        <source>Stand-by picture</source>
        <translation>Imagen de espera</translation>
    </message>
    <message>
        <source>Last good frame of %1</source>
        <translation>Último fotograma bueno de %1</translation>
    </message>
    <message>
        <source>What was on before</source>
        <translation>Lo que había antes</translation>
    </message>
    <message>
        <source>Cut off: the schedule was stopped</source>
        <translation>Cortado: se detuvo la programación</translation>
    </message>
    <message>
        <source>Cut off: the player was ended</source>
        <translation>Cortado: se cerró el reproductor</translation>
    </message>
    <message>
        <source>Cut off: the player was killed</source>
        <translation>Cortado: el reproductor se interrumpió</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falló</translation>
    </message>
    <message>
        <source>Cut off: the clock was changed</source>
        <translation>Cortado: se cambió el reloj</translation>
    </message>
    <message>
        <source>The player had been ended</source>
        <translation>El reproductor estaba cerrado</translation>
    </message>
    <message>
        <source>The player had been killed</source>
        <translation>El reproductor se había interrumpido</translation>
    </message>
    <message>
        <source>The machine had stopped</source>
        <translation>El equipo estaba parado</translation>
    </message>
    <message>
        <source>The player had no schedule yet</source>
        <translation>El reproductor aún no tenía programación</translation>
    </message>
    <message>
        <source>The machine was asleep</source>
        <translation>El equipo estaba suspendido</translation>
    </message>
    <message>
        <source>The records could not be kept</source>
        <translation>No se pudo llevar el registro</translation>
    </message>
    <message>
        <source>Recorded until %1.</source>
        <translation>Registrado hasta las %1.</translation>
    </message>
    <message>
        <source>Only the first %1 lines of the day are shown.</source>
        <translation>Solo se muestran las primeras %1 líneas del día.</translation>
    </message>
    <message>
        <source>No record tells why</source>
        <translation>Ningún registro dice por qué</translation>
    </message>
    <message>
        <source>%1 s late</source>
        <translation>%1 s de retraso</translation>
    </message>
    <message>
        <source>The records cannot be read: %1</source>
        <translation>No se puede leer el registro: %1</translation>
    </message>
    <message>
        <source>No player has recorded anything for this database.</source>
        <translation>Ningún reproductor ha registrado nada para esta base de datos.</translation>
    </message>
    <message>
        <source>The records were changed, or some are missing. “schedulectl as-run --verify” names the place.</source>
        <translation>El registro fue modificado o está incompleto. «schedulectl as-run --verify» indica el lugar.</translation>
    </message>
    <message>
        <source>Not as planned, and no record tells why: %1</source>
        <translation>Distinto de lo previsto sin que un registro diga por qué: %1</translation>
    </message>
    <message>
        <source>There is no record of this day.</source>
        <translation>No hay ningún registro de este día.</translation>
    </message>
    <message>
        <source>The screen was as planned, or a record tells why not.</source>
        <translation>La pantalla mostró lo previsto, o un registro dice por qué no.</translation>
    </message>
    <message>
        <source>Cut off: something was cut in</source>
        <translation>Cortado: se insertó algo</translation>
    </message>
    <message>
        <source>Cut off: another schedule came</source>
        <translation>Cortado: otra programación</translation>
    </message>
</context>
<context>
    <name>EditWords</name>
    <message>
        <source>Back to what is saved</source>
        <translation>Vuelta a lo guardado</translation>
    </message>
    <message>
        <source>Saved by another program: tasks %1</source>
        <translation>Guardado por otra aplicación: tareas %1</translation>
    </message>
    <message>
        <source>This takes back what another program has saved as well (tasks %1). Nothing is overwritten before you save, and what was saved there stays among the versions.</source>
        <translation>Esto deshace también lo que ha guardado otra aplicación (tareas %1). No se sobrescribe nada hasta que usted guarde, y lo que se guardó allí queda entre las versiones.</translation>
    </message>
    <message>
        <source>Take it back</source>
        <translation>Deshacerlo</translation>
    </message>
    <message>
        <source>Leave it</source>
        <translation>Dejarlo</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks edited</source>
        <translation>
            <numerusform>%n tarea editada</numerusform>
            <numerusform>%n tareas editadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Task %1 added</source>
        <translation>Tarea %1 añadida</translation>
    </message>
    <message>
        <source>Task %1 deleted</source>
        <translation>Tarea %1 eliminada</translation>
    </message>
    <message>
        <source>Task %1 edited</source>
        <translation>Tarea %1 editada</translation>
    </message>
    <message>
        <source>Task %1: first day %2 → %3</source>
        <translation>Tarea %1: primer día %2 → %3</translation>
    </message>
    <message>
        <source>Task %1: last day %2 → %3</source>
        <translation>Tarea %1: último día %2 → %3</translation>
    </message>
    <message>
        <source>Task %1, plan %2 added</source>
        <translation>Tarea %1, plan %2 añadido</translation>
    </message>
    <message>
        <source>Task %1, plan %2 deleted</source>
        <translation>Tarea %1, plan %2 eliminado</translation>
    </message>
    <message>
        <source>Task %1, plan %2 edited</source>
        <translation>Tarea %1, plan %2 editado</translation>
    </message>
    <message>
        <source>Task %1, plan %2: other programs</source>
        <translation>Tarea %1, plan %2: otros programas</translation>
    </message>
    <message>
        <source>Task %1, plan %2: ends at a set time</source>
        <translation>Tarea %1, plan %2: termina a una hora fija</translation>
    </message>
    <message>
        <source>Task %1, plan %2: ends after a number of runs</source>
        <translation>Tarea %1, plan %2: termina tras un número de pasadas</translation>
    </message>
    <message>
        <source>Task %1, plan %2: start %3 → %4</source>
        <translation>Tarea %1, plan %2: inicio %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: end %3 → %4</source>
        <translation>Tarea %1, plan %2: fin %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: days %3 → %4</source>
        <translation>Tarea %1, plan %2: días %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: runs %3 → %4</source>
        <translation>Tarea %1, plan %2: pasadas %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: a black screen at the end</source>
        <translation>Tarea %1, plan %2: pantalla negra al final</translation>
    </message>
    <message>
        <source>Task %1, plan %2: the last frame at the end</source>
        <translation>Tarea %1, plan %2: último fotograma congelado al final</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>todos los días</translation>
    </message>
    <message>
        <source>Task %1, plan %2: %3 → %4</source>
        <translation>Tarea %1, plan %2: %3 → %4</translation>
    </message>
</context>
<context>
    <name>trel::desktop::undo::HistoryActions</name>
    <message>
        <source>&amp;Undo</source>
        <translation>Des&amp;hacer</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>&amp;Rehacer</translation>
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
        <translation>Comienzo</translation>
    </message>
    <message>
        <source>%1 (saved)</source>
        <comment>a step</comment>
        <translation>%1 (guardado)</translation>
    </message>
    <message>
        <source>%1 (saved; editor opened)</source>
        <comment>a step</comment>
        <translation>%1 (guardado; editor abierto)</translation>
    </message>
    <message>
        <source>%1 (editor opened)</source>
        <comment>a step</comment>
        <translation>%1 (editor abierto)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::undo::HistoryDock</name>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>H&amp;istorial</translation>
    </message>
</context>
<context>
    <name>DraftWords</name>
    <message>
        <source>There are changes that were not saved. The last one was made on %1.</source>
        <translation>Hay cambios que no se guardaron. El último se hizo el %1.</translation>
    </message>
    <message>
        <source>New tasks: %1</source>
        <translation>Tareas nuevas: %1</translation>
    </message>
    <message>
        <source>Changed tasks: %1</source>
        <translation>Tareas modificadas: %1</translation>
    </message>
    <message>
        <source>Deleted tasks: %1</source>
        <translation>Tareas eliminadas: %1</translation>
    </message>
    <message>
        <source>The very last change may be missing.</source>
        <translation>Puede faltar el último cambio.</translation>
    </message>
    <message>
        <source>A part of them is damaged and cannot be read.</source>
        <translation>Una parte está dañada y no se puede leer.</translation>
    </message>
    <message>
        <source>They were made in another database, which stood in the place of this one.</source>
        <translation>Se hicieron en otra base de datos, que estaba en el lugar de esta.</translation>
    </message>
    <message>
        <source>The schedule was saved since then.</source>
        <translation>La programación se ha guardado desde entonces.</translation>
    </message>
    <message>
        <source>The file %1 keeps changes that were not saved. They were made with a newer version of this program, which has to be used to take them over.</source>
        <translation>El archivo %1 contiene cambios sin guardar. Se hicieron con una versión más reciente de esta aplicación, que hace falta para recuperarlos.</translation>
    </message>
    <message>
        <source>The file %1 should keep changes that were not saved, but nothing in it can be read.</source>
        <translation>El archivo %1 debería contener cambios sin guardar, pero no se puede leer nada de él.</translation>
    </message>
    <message>
        <source>Changes that are not saved cannot be kept beside the database at the moment: if the program ends now, they are lost. %1</source>
        <translation>En este momento los cambios sin guardar no se pueden conservar junto a la base de datos: si la aplicación termina ahora, se pierden. %1</translation>
    </message>
    <message>
        <source>The changes could not be kept beside the database. They are still in the editor.</source>
        <translation>Los cambios no se pudieron conservar junto a la base de datos. Siguen en el editor.</translation>
    </message>
    <message>
        <source>Take over</source>
        <translation>Recuperar</translation>
    </message>
    <message>
        <source>Put into a file</source>
        <translation>Llevar a un archivo</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Delete the file</source>
        <translation>Eliminar el archivo</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>Decidir más tarde</translation>
    </message>
    <message>
        <source>There are changes that were not saved. The last one was made %1, on %2.</source>
        <translation>Hay cambios que no se guardaron. El último se hizo %1, el %2.</translation>
    </message>
    <message>
        <source>less than a minute ago</source>
        <translation>hace menos de un minuto</translation>
    </message>
    <message>
        <source>What differs from what is saved:</source>
        <translation>Qué difiere de lo guardado:</translation>
    </message>
    <message>
        <source>As it is saved</source>
        <translation>Como está guardada</translation>
    </message>
    <message>
        <source>With these changes</source>
        <translation>Con estos cambios</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes ago</source>
        <translation>
            <numerusform>hace %n minuto</numerusform>
            <numerusform>hace %n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours ago</source>
        <translation>
            <numerusform>hace %n hora</numerusform>
            <numerusform>hace %n horas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days ago</source>
        <translation>
            <numerusform>hace %n día</numerusform>
            <numerusform>hace %n días</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::changes::ChangesDialog</name>
    <message>
        <source>Look at it in the week</source>
        <translation>Ver en la semana</translation>
    </message>
</context>
<context>
    <name>DifferenceWords</name>
    <message>
        <source>Task %1: %2</source>
        <comment>where, and what differs</comment>
        <translation>Tarea %1: %2</translation>
    </message>
    <message>
        <source>Task %1, plan %2: %3</source>
        <comment>where, and what differs</comment>
        <translation>Tarea %1, plan %2: %3</translation>
    </message>
    <message numerus="yes">
        <source>added, valid from %1 to %2, %n plans</source>
        <translation>
            <numerusform>añadida, válida del %1 al %2, %n plan</numerusform>
            <numerusform>añadida, válida del %1 al %2, %n planes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>deleted, was valid from %1 to %2, %n plans</source>
        <translation>
            <numerusform>eliminada, era válida del %1 al %2, %n plan</numerusform>
            <numerusform>eliminada, era válida del %1 al %2, %n planes</numerusform>
        </translation>
    </message>
    <message>
        <source>added in row %1: %2, %3 to %4, %5</source>
        <translation>añadido en la fila %1: %2, de %3 a %4, %5</translation>
    </message>
    <message>
        <source>deleted from row %1: %2, %3 to %4, %5</source>
        <translation>eliminado de la fila %1: %2, de %3 a %4, %5</translation>
    </message>
    <message>
        <source>no programs</source>
        <translation>sin programas</translation>
    </message>
    <message>
        <source>row %1 → %2</source>
        <translation>fila %1 → %2</translation>
    </message>
    <message>
        <source>“%1” added as entry %2</source>
        <translation>«%1» añadido como entrada %2</translation>
    </message>
    <message>
        <source>“%1” deleted, was entry %2</source>
        <translation>«%1» eliminado, era la entrada %2</translation>
    </message>
    <message>
        <source>“%1”: entry %2 → %3</source>
        <translation>«%1»: entrada %2 → %3</translation>
    </message>
    <message>
        <source>“%1”, entry %2: %3</source>
        <translation>«%1», entrada %2: %3</translation>
    </message>
    <message>
        <source>first day %1 → %2</source>
        <translation>primer día %1 → %2</translation>
    </message>
    <message>
        <source>last day %1 → %2</source>
        <translation>último día %1 → %2</translation>
    </message>
    <message>
        <source>start %1 → %2</source>
        <translation>inicio %1 → %2</translation>
    </message>
    <message>
        <source>end %1 → %2</source>
        <translation>fin %1 → %2</translation>
    </message>
    <message>
        <source>runs %1 → %2</source>
        <translation>pasadas %1 → %2</translation>
    </message>
    <message>
        <source>days %1 → %2</source>
        <translation>días %1 → %2</translation>
    </message>
    <message>
        <source>mode “%1” → “%2”</source>
        <translation>modo «%1» → «%2»</translation>
    </message>
    <message>
        <source>at the end “%1” → “%2”</source>
        <translation>al final «%1» → «%2»</translation>
    </message>
    <message>
        <source>name “%1” → “%2”</source>
        <translation>nombre «%1» → «%2»</translation>
    </message>
    <message>
        <source>plays in a row %1 → %2</source>
        <translation>reproducciones seguidas %1 → %2</translation>
    </message>
    <message>
        <source>now has a program without a length of its own</source>
        <translation>ahora tiene un programa sin duración propia</translation>
    </message>
    <message>
        <source>no longer has a program without a length of its own</source>
        <translation>ya no tiene ningún programa sin duración propia</translation>
    </message>
    <message>
        <source>now in conflict</source>
        <translation>ahora en conflicto</translation>
    </message>
    <message>
        <source>no longer in conflict</source>
        <translation>ya no está en conflicto</translation>
    </message>
    <message>
        <source>now invalid</source>
        <translation>ahora no válido</translation>
    </message>
    <message>
        <source>no longer invalid</source>
        <translation>de nuevo válido</translation>
    </message>
    <message>
        <source>something that the editor does not show</source>
        <translation>algo que el editor no muestra</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more differences.</source>
        <translation>
            <numerusform>… y %n diferencia más.</numerusform>
            <numerusform>… y %n diferencias más.</numerusform>
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
        <translation>Audio</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>En directo</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otro</translation>
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
        <translation>Buscar en nombre y carpeta</translation>
    </message>
    <message>
        <source>Kind of program</source>
        <translation>Tipo de programa</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Todos los tipos</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Faltan</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Sin usar</translation>
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
        <translation>Calendario</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekPage</name>
    <message>
        <source>Click a block to see why it is on screen, or why not.</source>
        <translation>Haga clic en un bloque para ver por qué está en pantalla o por qué no.</translation>
    </message>
    <message>
        <source>Why the selected block is on screen, or why not</source>
        <translation>Por qué el bloque seleccionado está en pantalla o por qué no</translation>
    </message>
    <message>
        <source>No task is valid in this week. Add one with “Edit”, then drag programs here.</source>
        <translation>Ninguna tarea es válida esta semana. Añada una con «Editar» y arrastre después programas aquí.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::year::YearStrip</name>
    <message>
        <source>Gap: no task is valid from %1 to %2.</source>
        <translation>Hueco: ninguna tarea es válida del %1 al %2.</translation>
    </message>
    <message>
        <source>Overlap: several tasks are valid from %1 to %2.</source>
        <translation>Solapamiento: varias tareas son válidas del %1 al %2.</translation>
    </message>
    <message>
        <source>Task %1 is valid from %2 to %3.</source>
        <translation>La tarea %1 es válida del %2 al %3.</translation>
    </message>
    <message>
        <source>Validity of the tasks in %1</source>
        <translation>Validez de las tareas en %1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::UsesWindow</name>
    <message>
        <source>Where used</source>
        <translation>Dónde se usa</translation>
    </message>
    <message>
        <source>No plan plays “%1”.</source>
        <translation>Ningún plan reproduce «%1».</translation>
    </message>
    <message numerus="yes">
        <source>“%1” is played by %n plans.</source>
        <translation>
            <numerusform>%n plan reproduce «%1».</numerusform>
            <numerusform>%n planes reproducen «%1».</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::UsesModel</name>
    <message>
        <source>Task</source>
        <translation>Tarea</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Validez</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Días</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
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
        <translation>Tarea %1 (%2), plan %3, %4 %5</translation>
    </message>
    <message>
        <source>Not on screen any more, as the schedule in effect has it.</source>
        <translation>Según la programación vigente, ya no sale en pantalla.</translation>
    </message>
    <message>
        <source>Not on screen any more, as the schedule is edited.</source>
        <translation>Según la programación editada, ya no sale en pantalla.</translation>
    </message>
    <message>
        <source>Never on screen, as the schedule in effect has it.</source>
        <translation>Según la programación vigente, no sale nunca en pantalla.</translation>
    </message>
    <message>
        <source>Never on screen, as the schedule is edited.</source>
        <translation>Según la programación editada, no sale nunca en pantalla.</translation>
    </message>
    <message>
        <source>On screen now: task %1, plan %2.</source>
        <translation>Ahora en pantalla: tarea %1, plan %2.</translation>
    </message>
    <message>
        <source>Next on screen: %1, task %2, plan %3.</source>
        <translation>Próxima vez en pantalla: %1, tarea %2, plan %3.</translation>
    </message>
    <message numerus="yes">
        <source>Entries become invalid in %n plans:</source>
        <translation>
            <numerusform>Quedan entradas no válidas en %n plan:</numerusform>
            <numerusform>Quedan entradas no válidas en %n planes:</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: nothing else is left of it</source>
        <translation>%1: no queda nada más en él</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more plans.</source>
        <translation>
            <numerusform>… y %n plan más.</numerusform>
            <numerusform>… y %n planes más.</numerusform>
        </translation>
    </message>
    <message>
        <source>every day</source>
        <translation>todos los días</translation>
    </message>
    <message>
        <source>%1–%2</source>
        <comment>from day to day</comment>
        <translation>%1-%2</translation>
    </message>
</context>
<context>
    <name>MoveWords</name>
    <message>
        <source>Plan %1: %2, %3 to %4</source>
        <translation>Plan %1: %2, %3 a %4</translation>
    </message>
    <message>
        <source>New plan in task %1: %2, %3 to %4</source>
        <translation>Plan nuevo en la tarea %1: %2, %3 a %4</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>todos los días</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are valid on this day; that is the one in effect.</source>
        <translation>
            <numerusform>Este día es válida %n tarea; esa es la que rige.</numerusform>
            <numerusform>Este día son válidas %n tareas; esa es la que rige.</numerusform>
        </translation>
    </message>
    <message>
        <source>Its times cannot be read.</source>
        <translation>No se pueden leer sus horas.</translation>
    </message>
    <message>
        <source>A plan cannot run over midnight.</source>
        <translation>Un plan no puede pasar de medianoche.</translation>
    </message>
    <message>
        <source>A plan has to start before it ends.</source>
        <translation>Un plan debe empezar antes de terminar.</translation>
    </message>
    <message>
        <source>Its end follows from its programs; it can only be moved.</source>
        <translation>Su final depende de sus programas; solo se puede mover.</translation>
    </message>
    <message>
        <source>It plays every day.</source>
        <translation>Se reproduce todos los días.</translation>
    </message>
    <message>
        <source>It plays on that day already.</source>
        <translation>Ya se reproduce ese día.</translation>
    </message>
    <message>
        <source>Its days cannot be read.</source>
        <translation>No se pueden leer sus días.</translation>
    </message>
    <message>
        <source>Its task is not in effect on that day.</source>
        <translation>Su tarea no rige ese día.</translation>
    </message>
    <message>
        <source>Conflicts with plan %1, %2 to %3.</source>
        <translation>Entra en conflicto con el plan %1, %2 a %3.</translation>
    </message>
    <message numerus="yes">
        <source>Conflicts with %n more.</source>
        <translation>
            <numerusform>Entra en conflicto con %n más.</numerusform>
            <numerusform>Entra en conflicto con %n más.</numerusform>
        </translation>
    </message>
    <message>
        <source>No task is valid on this day.</source>
        <translation>Ninguna tarea es válida este día.</translation>
    </message>
    <message>
        <source>These programs cannot be planned here.</source>
        <translation>Estos programas no se pueden planificar aquí.</translation>
    </message>
    <message>
        <source>Copy the plans of %1…</source>
        <comment>a day</comment>
        <translation>Copiar los planes del %1…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekEdits</name>
    <message>
        <source>The editor is not ready yet. Please try again.</source>
        <translation>El editor aún no está listo. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The schedule has changed meanwhile; nothing was moved.</source>
        <translation>La programación ha cambiado entretanto; no se ha movido nada.</translation>
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
        <translation>Copiar a estos días, que conservan sus propios planes:</translation>
    </message>
    <message>
        <source>%1 (no task is valid)</source>
        <comment>a day</comment>
        <translation>%1 (ninguna tarea es válida)</translation>
    </message>
    <message>
        <source>There is no plan on that day.</source>
        <translation>Ese día no hay ningún plan.</translation>
    </message>
    <message numerus="yes">
        <source>%n plans play on that day. Choose the days to copy them onto.</source>
        <translation>
            <numerusform>Ese día se reproduce %n plan. Elija los días a los que copiarlo.</numerusform>
            <numerusform>Ese día se reproducen %n planes. Elija los días a los que copiarlos.</numerusform>
        </translation>
    </message>
    <message>
        <source>All of them play on these days already.</source>
        <translation>Todos se reproducen ya esos días.</translation>
    </message>
    <message numerus="yes">
        <source>%n plans are copied.</source>
        <translation>
            <numerusform>Se copia %n plan.</numerusform>
            <numerusform>Se copian %n planes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more plans will conflict then. Nothing is lost by that: change what you want afterwards.</source>
        <translation>
            <numerusform>Entonces %n plan más estará en conflicto. No se pierde nada: cambie después lo que quiera.</numerusform>
            <numerusform>Entonces %n planes más estarán en conflicto. No se pierde nada: cambie después lo que quiera.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>VersionWords</name>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>What is in effect</source>
        <translation>En vigor</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>Lo guardado</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>no se sabe</translation>
    </message>
    <message>
        <source>new: %1</source>
        <translation>nuevas: %1</translation>
    </message>
    <message>
        <source>changed: %1</source>
        <translation>modificadas: %1</translation>
    </message>
    <message>
        <source>deleted: %1</source>
        <translation>eliminadas: %1</translation>
    </message>
    <message>
        <source>nothing of note</source>
        <translation>nada relevante</translation>
    </message>
    <message>
        <source>%1 (tasks %2)</source>
        <comment>what a save changed, and in which tasks</comment>
        <translation>%1 (tareas %2)</translation>
    </message>
    <message>
        <source>version %1 restored: %2</source>
        <translation>versión %1 restaurada: %2</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>No hay diferencias.</translation>
    </message>
    <message numerus="yes">
        <source>%n differences</source>
        <translation>
            <numerusform>%n diferencia</numerusform>
            <numerusform>%n diferencias</numerusform>
        </translation>
    </message>
    <message>
        <source>Restore version %1? What is saved now stays as a version, so that it can be restored in turn.</source>
        <translation>¿Restaurar la versión %1? Lo guardado ahora queda como versión y se puede restaurar a su vez.</translation>
    </message>
    <message numerus="yes">
        <source>%n of its programs are no longer in the catalog. Their entries will be invalid: %1</source>
        <translation>
            <numerusform>%n de sus programas ya no está en el catálogo. Sus entradas dejarán de ser válidas: %1</numerusform>
            <numerusform>%n de sus programas ya no están en el catálogo. Sus entradas dejarán de ser válidas: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The schedule in the editor has changes that are not saved.</source>
        <translation>La programación en el editor tiene cambios sin guardar.</translation>
    </message>
    <message>
        <source>Version %1 – %2</source>
        <comment>a version, and when it was saved</comment>
        <translation>Versión %1 – %2</translation>
    </message>
    <message>
        <source>Version %1 – %2 – %3</source>
        <comment>a version, when it was saved, and its name</comment>
        <translation>Versión %1 – %2 – %3</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::VersionModel</name>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Por</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Cambios</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
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
        <translation>Tarea</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::StretchModel</name>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
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
        <translation>En esta semana no hay diferencias en pantalla.</translation>
    </message>
    <message numerus="yes">
        <source>%n stretches of this week differ on the screen:</source>
        <translation>
            <numerusform>%n tramo de esta semana difiere en pantalla:</numerusform>
            <numerusform>%n tramos de esta semana difieren en pantalla:</numerusform>
        </translation>
    </message>
    <message>
        <source>What differs on the screen</source>
        <translation>Diferencias en pantalla</translation>
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
        <translation>No hay nada en vigor.</translation>
    </message>
    <message>
        <source>%1 → %2: %3</source>
        <comment>two states, and how much differs</comment>
        <translation>%1 → %2: %3</translation>
    </message>
    <message>
        <source>In words</source>
        <translation>En palabras</translation>
    </message>
    <message>
        <source>On the screen</source>
        <translation>En pantalla</translation>
    </message>
    <message>
        <source>What differs</source>
        <translation>Diferencias</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::VersionNameDialog</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
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
        <translation>Versiones</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Leyendo…</translation>
    </message>
    <message>
        <source>No versions are kept yet.</source>
        <translation>Todavía no hay versiones.</translation>
    </message>
    <message>
        <source>Name and note…</source>
        <translation>Nombre y nota…</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>Restaurar…</translation>
    </message>
    <message>
        <source>Write to a file…</source>
        <translation>Escribir en un archivo…</translation>
    </message>
    <message>
        <source>Compared with</source>
        <translation>Comparado con</translation>
    </message>
    <message>
        <source>The other way round</source>
        <translation>Al revés</translation>
    </message>
    <message>
        <source>Write the version to a file</source>
        <translation>Escribir la versión en un archivo</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>Programaciones (*.json)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>Escrito en %1.</translation>
    </message>
    <message>
        <source>Save, then restore</source>
        <translation>Guardar y después restaurar</translation>
    </message>
    <message>
        <source>Restore without saving</source>
        <translation>Restaurar sin guardar</translation>
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
        <translation>%1 – Vista previa</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>position and length</comment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>The file is not found.</source>
        <translation>No se encuentra el archivo.</translation>
    </message>
    <message>
        <source>Sound has no picture.</source>
        <translation>El sonido no tiene imagen.</translation>
    </message>
    <message>
        <source>A live source is seen on the screens alone.</source>
        <translation>Una fuente en directo solo se ve en las pantallas.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Leyendo…</translation>
    </message>
    <message>
        <source>It has no picture that can be read.</source>
        <translation>No tiene ninguna imagen que se pueda leer.</translation>
    </message>
</context>
<context>
    <name>KeyTable</name>
    <message>
        <source>Main window</source>
        <translation>Ventana principal</translation>
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
        <translation>Ir a la tarea siguiente</translation>
    </message>
    <message>
        <source>Go to the task before</source>
        <translation>Ir a la tarea anterior</translation>
    </message>
    <message>
        <source>Fold or open the task</source>
        <translation>Plegar o abrir la tarea</translation>
    </message>
    <message>
        <source>Add a task</source>
        <translation>Añadir una tarea</translation>
    </message>
    <message>
        <source>Copy the task</source>
        <translation>Copiar la tarea</translation>
    </message>
    <message>
        <source>Delete the task</source>
        <translation>Eliminar la tarea</translation>
    </message>
    <message>
        <source>Add a plan</source>
        <translation>Añadir un plan</translation>
    </message>
    <message>
        <source>Copy the plan</source>
        <translation>Copiar el plan</translation>
    </message>
    <message>
        <source>Delete the plan</source>
        <translation>Eliminar el plan</translation>
    </message>
    <message>
        <source>Choose the programs of the plan</source>
        <translation>Elegir los programas del plan</translation>
    </message>
    <message>
        <source>Save and close</source>
        <translation>Guardar y cerrar</translation>
    </message>
    <message>
        <source>Save and start</source>
        <translation>Guardar e iniciar</translation>
    </message>
    <message>
        <source>Close without saving</source>
        <translation>Cerrar sin guardar</translation>
    </message>
    <message>
        <source>Select another plan</source>
        <translation>Seleccionar otro plan</translation>
    </message>
    <message>
        <source>Open the selected plan in the editor</source>
        <translation>Abrir el plan seleccionado en el editor</translation>
    </message>
    <message>
        <source>Say what is on screen then, and why</source>
        <translation>Decir qué hay entonces en pantalla y por qué</translation>
    </message>
    <message>
        <source>Move the plan by a quarter of an hour</source>
        <translation>Mover el plan un cuarto de hora</translation>
    </message>
    <message>
        <source>Move the plan to another day</source>
        <translation>Mover el plan a otro día</translation>
    </message>
    <message>
        <source>Move the end of the plan</source>
        <translation>Mover el final del plan</translation>
    </message>
    <message>
        <source>Move the begin of the plan</source>
        <translation>Mover el inicio del plan</translation>
    </message>
    <message>
        <source>Give up dragging</source>
        <translation>Abandonar el arrastre</translation>
    </message>
    <message>
        <source>Copy the plans of the day</source>
        <translation>Copiar los planes del día</translation>
    </message>
    <message>
        <source>Show another week</source>
        <translation>Mostrar otra semana</translation>
    </message>
    <message>
        <source>Show the present moment</source>
        <translation>Mostrar el momento actual</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Cambiar el tamaño</translation>
    </message>
    <message>
        <source>Fit the whole day</source>
        <translation>Ajustar al día entero</translation>
    </message>
    <message>
        <source>Programs of a plan</source>
        <translation>Programas de un plan</translation>
    </message>
    <message>
        <source>Go to another program</source>
        <translation>Ir a otro programa</translation>
    </message>
    <message>
        <source>Tick the program, or untick it</source>
        <translation>Marcar o desmarcar el programa</translation>
    </message>
    <message>
        <source>Tick all programs, or none</source>
        <translation>Marcar todos los programas o ninguno</translation>
    </message>
    <message>
        <source>Add the ticked programs, or this one</source>
        <translation>Añadir los programas marcados, si no este</translation>
    </message>
    <message>
        <source>Take the ticked programs out, or this one</source>
        <translation>Eliminar los programas marcados, si no este</translation>
    </message>
    <message>
        <source>Move the program up or down</source>
        <translation>Mover el programa hacia arriba o abajo</translation>
    </message>
    <message>
        <source>Change how often the program is played</source>
        <translation>Cambiar las veces que se reproduce el programa</translation>
    </message>
    <message>
        <source>Take over the list of programs</source>
        <translation>Aceptar la lista de programas</translation>
    </message>
</context>
<context>
    <name>trel::desktop::KeySheet</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>trel::desktop::GuideWindow</name>
    <message>
        <source>The guide</source>
        <translation>La guía</translation>
    </message>
</context>
<context>
    <name>trel::desktop::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Guía</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>Atajos de &amp;teclado</translation>
    </message>
    <message>
        <source>&amp;About this program</source>
        <translation>&amp;Acerca de este programa</translation>
    </message>
    <message>
        <source>Schedules media programs on screens, edits the schedule and follows it.</source>
        <translation>Programa contenidos multimedia en pantallas, edita la programación y la sigue.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirLight</name>
    <message>
        <source>On air</source>
        <translation>En emisión</translation>
    </message>
    <message>
        <source>Off air</source>
        <translation>Fuera de emisión</translation>
    </message>
    <message>
        <source>A schedule is in effect.</source>
        <translation>Hay una programación en vigor.</translation>
    </message>
    <message>
        <source>No schedule is in effect.</source>
        <translation>No hay ninguna programación en vigor.</translation>
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
        <translation>Sin guardar</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Guardado: %1</translation>
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
        <translation>Barra de herramientas</translation>
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
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search the catalog</source>
        <translation>Buscar en el catálogo</translation>
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
        <translation>Poner la programación en emisión</translation>
    </message>
    <message>
        <source>Put the schedule on air? What is not saved is saved first.</source>
        <translation>¿Poner la programación en emisión? Lo que no está guardado se guarda antes.</translation>
    </message>
    <message>
        <source>Open problems: %1</source>
        <translation>Problemas abiertos: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Tasks %1 and %2 are valid on the same days. The schedule can be put on air once they are not.</source>
        <translation>Las tareas %1 y %2 son válidas en los mismos días. La programación solo puede emitirse cuando ya no lo sean.</translation>
    </message>
    <message>
        <source>The schedule is on air.</source>
        <translation>La programación está en emisión.</translation>
    </message>
    <message>
        <source>The schedule is on air. Open problems: %1</source>
        <translation>La programación está en emisión. Problemas abiertos: %1</translation>
    </message>
</context>
<context>
    <name>DroppedMedia</name>
    <message>
        <source>None of this can be imported.</source>
        <translation>Nada de esto se puede importar.</translation>
    </message>
    <message numerus="yes">
        <source>%n files or folders</source>
        <translation>
            <numerusform>%n archivo o carpeta</numerusform>
            <numerusform>%n archivos o carpetas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n addresses</source>
        <translation>
            <numerusform>%n dirección</numerusform>
            <numerusform>%n direcciones</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>files, and addresses</comment>
        <translation>%1 y %2</translation>
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
            <numerusform>Importar: %1; %n no se puede importar</numerusform>
            <numerusform>Importar: %1; %n no se pueden importar</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MediaFilters</name>
    <message>
        <source>All media</source>
        <translation>Todos los medios</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ScreenNews</name>
    <message>
        <source>Cut in: %1</source>
        <translation>Insertado: %1</translation>
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
        <translation>&amp;Hoy</translation>
    </message>
    <message>
        <source>&amp;Previous week</source>
        <translation>Semana &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Next week</source>
        <translation>Semana &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Choose a day…</source>
        <translation>&amp;Elegir un día…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::DayDrag</name>
    <message>
        <source>Drag a day onto another one to copy its plans there.</source>
        <translation>Arrastre un día sobre otro para copiar allí sus planes.</translation>
    </message>
    <message>
        <source>Copy the plans of %1 onto %2</source>
        <comment>two days</comment>
        <translation>Copiar los planes de %1 a %2</translation>
    </message>
</context>
<context>
    <name>trel::desktop::place::AddressDialog</name>
    <message>
        <source>Open from a server</source>
        <translation>Abrir desde un servidor</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Where the server asks for a password, it is read from the password file of the server's programs (~/.pgpass).</source>
        <translation>Si el servidor pide una contraseña, se lee del archivo de contraseñas de los programas del servidor (~/.pgpass).</translation>
    </message>
</context>
<context>
    <name>trel::desktop::players::PlayersDock</name>
    <message>
        <source>Players</source>
        <translation>Reproductores</translation>
    </message>
    <message>
        <source>Pla&amp;yers</source>
        <translation>R&amp;eproductores</translation>
    </message>
    <message>
        <source>No player follows this database. Start schedule-player with it where the screen is.</source>
        <translation>Ningún reproductor sigue esta base de datos. Inicie schedule-player con ella en el equipo de la pantalla.</translation>
    </message>
    <message>
        <source>Show what the players show</source>
        <translation>Muestra lo que ponen los reproductores</translation>
    </message>
</context>
<context>
    <name>trel::desktop::players::PlayerModel</name>
    <message>
        <source>Screen</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>Shows</source>
        <translation>Muestra</translation>
    </message>
    <message>
        <source>Heard</source>
        <comment>when a player told of itself</comment>
        <translation>Señal</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>Fallos</translation>
    </message>
</context>
<context>
    <name>PlayerWords</name>
    <message>
        <source>Stands still in: %1</source>
        <translation>Detenido en: %1</translation>
    </message>
    <message>
        <source>Has no picture for: %1</source>
        <translation>Sin imagen para: %1</translation>
    </message>
    <message>
        <source>Not since %1</source>
        <comment>a moment</comment>
        <translation>Sin señal desde: %1</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no faults</comment>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>%1, the last at %2: %3</source>
        <comment>a number, a moment, a sentence</comment>
        <translation>%1, el último a las %2: %3</translation>
    </message>
    <message>
        <source>Players: %1</source>
        <translation>Reproductores: %1</translation>
    </message>
    <message>
        <source>Players: %1, silent: %2</source>
        <translation>Reproductores: %1, sin señal: %2</translation>
    </message>
</context>
<context>
    <name>MergeWords</name>
    <message numerus="yes">
        <source>%n tasks were changed at both desks: if you merge, you choose for each of them which one stays. Everything else of both is kept.</source>
        <translation>
            <numerusform>%n tarea se cambió en los dos puestos: al combinar, usted elige cuál queda. Todo lo demás de ambos se conserva.</numerusform>
            <numerusform>%n tareas se cambiaron en los dos puestos: al combinar, usted elige para cada una cuál queda. Todo lo demás de ambos se conserva.</numerusform>
        </translation>
    </message>
    <message>
        <source>No task was changed at both desks: what both have changed can be saved together.</source>
        <translation>Ninguna tarea se cambió en los dos puestos: los cambios de ambos se pueden guardar juntos.</translation>
    </message>
    <message>
        <source>Merge…</source>
        <translation>Combinar…</translation>
    </message>
    <message>
        <source>Merged, your new task %1 becomes task %2: another task %1 was added there.</source>
        <translation>Al combinar, su nueva tarea %1 pasa a ser la tarea %2: allí se añadió otra tarea %1.</translation>
    </message>
    <message>
        <source>Merge and save</source>
        <translation>Combinar y guardar</translation>
    </message>
    <message>
        <source>Merge and go on editing</source>
        <translation>Combinar y seguir editando</translation>
    </message>
    <message>
        <source>Merged, tasks %1 and %2 would be valid on the same days. That cannot be saved: they stay in the editor until you have changed their dates.</source>
        <translation>Al combinar, las tareas %1 y %2 serían válidas los mismos días. Eso no se puede guardar: quedan en el editor hasta que cambie sus fechas.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::merge::ConflictsDialog</name>
    <message>
        <source>These tasks were changed here and at the other desk. Choose for each of them which one stays.</source>
        <translation>Estas tareas se cambiaron aquí y en el otro puesto. Elija para cada una cuál queda.</translation>
    </message>
    <message>
        <source>Mine, as it is edited here</source>
        <translation>La mía, como se edita aquí</translation>
    </message>
    <message>
        <source>Theirs, as it was saved there</source>
        <translation>La otra, como se guardó allí</translation>
    </message>
    <message>
        <source>Tasks that were changed at both desks</source>
        <translation>Tareas cambiadas en los dos puestos</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>Tarea</translation>
    </message>
    <message>
        <source>What stays</source>
        <translation>Qué queda</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Volver</translation>
    </message>
    <message>
        <source>not chosen yet</source>
        <translation>sin elegir</translation>
    </message>
    <message>
        <source>mine</source>
        <translation>la mía</translation>
    </message>
    <message>
        <source>theirs</source>
        <translation>la otra</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are still to be chosen.</source>
        <translation>
            <numerusform>Falta elegir %n tarea.</numerusform>
            <numerusform>Falta elegir %n tareas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Everything else of both is kept.</source>
        <translation>Todo lo demás de ambos se conserva.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::DeskNotice</name>
    <message>
        <source>Also edited at %1 since %2</source>
        <comment>a desk, and a time</comment>
        <translation>También se edita en %1 desde %2</translation>
    </message>
    <message numerus="yes">
        <source>Also edited at %n other desks</source>
        <translation>
            <numerusform>También se edita en %n puesto más</numerusform>
            <numerusform>También se edita en %n puestos más</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: since %2, last changed at %3, tasks %4</source>
        <comment>a desk, times, and numbers</comment>
        <translation>%1: desde %2, último cambio a las %3, tareas %4</translation>
    </message>
</context>
<context>
    <name>FileWords</name>
    <message numerus="yes">
        <source>%n programs in this file are not in the catalog. Their entries will be invalid: %1</source>
        <translation>
            <numerusform>%n programa de este archivo no está en el catálogo. Sus entradas no serán válidas: %1</numerusform>
            <numerusform>%n programas de este archivo no están en el catálogo. Sus entradas no serán válidas: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n programs in the catalog may have another content than in this file: %1</source>
        <translation>
            <numerusform>%n programa del catálogo puede tener un contenido distinto del de este archivo: %1</numerusform>
            <numerusform>%n programas del catálogo pueden tener un contenido distinto del de este archivo: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n programs have another name in the catalog than in this file: %1</source>
        <translation>
            <numerusform>%n programa tiene en el catálogo un nombre distinto del de este archivo: %1</numerusform>
            <numerusform>%n programas tienen en el catálogo un nombre distinto del de este archivo: %1</numerusform>
        </translation>
    </message>
</context>
</TS>
