<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>Demonstration</name>
    <message>
        <source>The demonstration could not be read: %1: %2</source>
        <translation>Не удалось прочитать демонстрационное расписание: %1: %2</translation>
    </message>
    <message>
        <source>The demonstration media could not be copied to the database folder.</source>
        <translation>Не удалось скопировать демонстрационные медиафайлы в папку базы данных.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EditorMenus</name>
    <message>
        <source>Hi&amp;gh contrast</source>
        <translation>Высокая контр&amp;астность</translation>
    </message>
    <message>
        <source>&amp;As-run of a day…</source>
        <translation>&amp;Отчёт о показе за день…</translation>
    </message>
    <message>
        <source>&amp;Schedule</source>
        <translation>&amp;Расписание</translation>
    </message>
    <message>
        <source>&amp;Edit schedule</source>
        <translation>&amp;Изменить расписание</translation>
    </message>
    <message>
        <source>&amp;Open database…</source>
        <translation>&amp;Открыть базу данных…</translation>
    </message>
    <message>
        <source>Open &amp;from a server…</source>
        <translation>От&amp;крыть на сервере…</translation>
    </message>
    <message>
        <source>&amp;Read schedule from a file…</source>
        <translation>&amp;Загрузить расписание из файла…</translation>
    </message>
    <message>
        <source>&amp;Write schedule to a file…</source>
        <translation>&amp;Сохранить расписание в файл…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>&amp;Dark theme</source>
        <translation>&amp;Тёмная тема</translation>
    </message>
    <message>
        <source>&amp;Light theme</source>
        <translation>&amp;Светлая тема</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <source>&amp;Programs</source>
        <translation>&amp;Программы</translation>
    </message>
    <message>
        <source>&amp;Import files…</source>
        <translation>Импорт &amp;файлов…</translation>
    </message>
    <message>
        <source>Import &amp;folder…</source>
        <translation>Импорт &amp;папки…</translation>
    </message>
    <message>
        <source>&amp;Remove from catalog</source>
        <translation>&amp;Удалить из каталога</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Язык</translation>
    </message>
    <message>
        <source>S&amp;kip to the next play</source>
        <translation>&amp;Перейти к следующему показу</translation>
    </message>
    <message>
        <source>&amp;Cancel what is cut in</source>
        <translation>Отм&amp;енить вставку</translation>
    </message>
    <message>
        <source>S&amp;top the schedule…</source>
        <translation>Ос&amp;тановить расписание…</translation>
    </message>
    <message>
        <source>&amp;Bring back what was canceled</source>
        <translation>Вер&amp;нуть отменённое</translation>
    </message>
    <message>
        <source>&amp;Where used…</source>
        <translation>&amp;Где используется…</translation>
    </message>
    <message>
        <source>&amp;Versions…</source>
        <translation>Ве&amp;рсии…</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>П&amp;росмотр</translation>
    </message>
    <message>
        <source>&amp;New database…</source>
        <translation>Созд&amp;ать базу данных…</translation>
    </message>
    <message>
        <source>O&amp;pen recent</source>
        <translation>Не&amp;давние базы данных</translation>
    </message>
    <message>
        <source>St&amp;art the schedule…</source>
        <translation>Зап&amp;устить расписание…</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>П&amp;оиск</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EditorWindow</name>
    <message>
        <source>Import: %1 percent</source>
        <translation>Импорт: %1 процентов</translation>
    </message>
    <message>
        <source>Now and next</source>
        <translation>Сейчас и далее</translation>
    </message>
    <message>
        <source>Clock changes</source>
        <translation>Переводы часов</translation>
    </message>
    <message>
        <source>&amp;Now and next</source>
        <translation>Се&amp;йчас и далее</translation>
    </message>
    <message>
        <source>&amp;Clock changes</source>
        <translation>Переводы &amp;часов</translation>
    </message>
    <message>
        <source>Schedule editor</source>
        <translation>Редактор расписания</translation>
    </message>
    <message>
        <source>%1 – Schedule editor</source>
        <translation>%1 — Редактор расписания</translation>
    </message>
    <message>
        <source>Open database</source>
        <translation>Открыть базу данных</translation>
    </message>
    <message>
        <source>Schedules (*.db *.sqlite);;All files (*)</source>
        <translation>Расписания (*.db *.sqlite);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Write the schedule to a file</source>
        <translation>Сохранение расписания в файл</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>Расписания (*.json)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>Сохранено в файл %1.</translation>
    </message>
    <message>
        <source>Read a schedule from a file</source>
        <translation>Загрузка расписания из файла</translation>
    </message>
    <message numerus="yes">
        <source>Replace the whole schedule with the %n tasks in this file?</source>
        <translation>
            <numerusform>В этом файле %n задание. Заменить всё расписание?</numerusform>
            <numerusform>В этом файле %n задания. Заменить всё расписание?</numerusform>
            <numerusform>В этом файле %n заданий. Заменить всё расписание?</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Заменить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Changes in the editor that are not saved go with it (tasks %1). Undo brings them back.</source>
        <translation>Несохранённые изменения в редакторе тоже будут заменены (задания %1). «Отменить» вернёт их.</translation>
    </message>
    <message>
        <source>Save, then replace</source>
        <translation>Сохранить и заменить</translation>
    </message>
    <message>
        <source>Replace without saving</source>
        <translation>Заменить без сохранения</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Не сохранять</translation>
    </message>
    <message>
        <source>The schedule has changes that are not saved. As a draft they are offered when this database is opened again.

Close this question to keep editing.</source>
        <translation>В расписании есть несохранённые изменения. Черновик будет предложен, когда эта база данных откроется снова.

Закройте этот вопрос, чтобы продолжить правку.</translation>
    </message>
    <message>
        <source>Keep as draft</source>
        <translation>Оставить черновик</translation>
    </message>
    <message>
        <source>Catalog</source>
        <translation>Каталог</translation>
    </message>
    <message>
        <source>Catal&amp;og</source>
        <translation>&amp;Каталог</translation>
    </message>
    <message>
        <source>The change is in the editor now, where it can be saved.</source>
        <translation>Изменение теперь в редакторе, где его можно сохранить.</translation>
    </message>
    <message>
        <source>New database</source>
        <translation>Новая база данных</translation>
    </message>
    <message>
        <source>The file %1 exists already. It is not written over.</source>
        <translation>Файл %1 уже есть. Он не перезаписывается.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::CataloguePanel</name>
    <message>
        <source>No programs yet. Drop media files or folders here, or choose “Import files”.</source>
        <translation>Программ пока нет. Перетащите сюда медиафайлы или папки либо выберите «Импорт файлов».</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>No program fits what is searched for.</source>
        <translation>Ни одна программа не подходит под условия поиска.</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n programs from the catalog? The files are not deleted.</source>
        <translation>
            <numerusform>Удалить из каталога %n программу? Файл останется на диске.</numerusform>
            <numerusform>Удалить из каталога %n программы? Файлы останутся на диске.</numerusform>
            <numerusform>Удалить из каталога %n программ? Файлы останутся на диске.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::CatalogueImport</name>
    <message>
        <source>Import files</source>
        <translation>Импорт файлов</translation>
    </message>
    <message>
        <source>Import folder</source>
        <translation>Импорт папки</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Importing</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <source>The import was canceled; nothing was imported.</source>
        <translation>Импорт отменён, ничего не добавлено.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>file and reason</comment>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more.</source>
        <translation>
            <numerusform>… и ещё %n.</numerusform>
            <numerusform>… и ещё %n.</numerusform>
            <numerusform>… и ещё %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some files could not be imported:</source>
        <translation>Некоторые файлы не удалось импортировать:</translation>
    </message>
    <message numerus="yes">
        <source>Looking for files: %n found</source>
        <translation>
            <numerusform>Поиск файлов: найден %n</numerusform>
            <numerusform>Поиск файлов: найдено %n</numerusform>
            <numerusform>Поиск файлов: найдено %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported: %1, %2.</source>
        <translation>Импорт завершён: %1, %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n new</source>
        <translation>
            <numerusform>добавлено %n</numerusform>
            <numerusform>добавлено %n</numerusform>
            <numerusform>добавлено %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n updated</source>
        <translation>
            <numerusform>обновлено %n</numerusform>
            <numerusform>обновлено %n</numerusform>
            <numerusform>обновлено %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HostPrompts</name>
    <message>
        <source>Question</source>
        <translation>Вопрос</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Сообщение</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>The file %1 exists already. Replace it?</source>
        <translation>Файл %1 уже есть. Заменить его?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Заменить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>ProblemWords</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>Недостаточно памяти.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Диск заполнен.</translation>
    </message>
    <message>
        <source>Your share of the disk is used up.</source>
        <translation>Ваша квота на диске исчерпана.</translation>
    </message>
    <message>
        <source>The system does not let this application write a larger file.</source>
        <translation>Система не разрешает этому приложению записать файл большего размера.</translation>
    </message>
    <message>
        <source>The file or its folder is read-only.</source>
        <translation>Файл или его папка доступны только для чтения.</translation>
    </message>
    <message>
        <source>It was opened for reading only.</source>
        <translation>Файл открыт только для чтения.</translation>
    </message>
    <message>
        <source>Reading it took too long.</source>
        <translation>Чтение заняло слишком много времени.</translation>
    </message>
    <message numerus="yes">
        <source>A text in it is longer than %n bytes.</source>
        <translation>
            <numerusform>Один из текстов в нём длиннее %n байта.</numerusform>
            <numerusform>Один из текстов в нём длиннее %n байт.</numerusform>
            <numerusform>Один из текстов в нём длиннее %n байт.</numerusform>
        </translation>
    </message>
    <message>
        <source>The database reports error %1.</source>
        <translation>База данных сообщает об ошибке %1.</translation>
    </message>
    <message>
        <source>The database reports error %1. %3</source>
        <translation>База данных сообщает об ошибке %1. %3</translation>
    </message>
    <message>
        <source>The database has failed its own check.</source>
        <translation>База данных не прошла собственную проверку.</translation>
    </message>
    <message>
        <source>The disk reports a read or write error.</source>
        <translation>Диск сообщает об ошибке чтения или записи.</translation>
    </message>
    <message>
        <source>Data that must be there is missing.</source>
        <translation>Отсутствуют обязательные данные.</translation>
    </message>
    <message>
        <source>The database driver is not the one that this application was made for.</source>
        <translation>Драйвер базы данных не тот, для которого предназначено это приложение.</translation>
    </message>
    <message>
        <source>The file is missing or empty, but its log %1 is still there.</source>
        <translation>Файл отсутствует или пуст, но его журнал %1 остался.</translation>
    </message>
    <message>
        <source>No file can be created there.</source>
        <translation>Там нельзя создать файл.</translation>
    </message>
    <message>
        <source>Its log %1 belongs to another copy of the file. Put back the file that it belongs to, or move the log away to go on without it.</source>
        <translation>Журнал %1 относится к другой копии файла. Верните файл, к которому он относится, или переместите журнал, чтобы продолжить без него.</translation>
    </message>
    <message>
        <source>Its log has no index, and none can be created in a read-only folder. Copy both files to another folder.</source>
        <translation>У журнала нет индекса, и в папке, доступной только для чтения, его нельзя создать. Скопируйте оба файла в другую папку.</translation>
    </message>
    <message>
        <source>It was removed or replaced after it was opened.</source>
        <translation>Файл удалён или заменён после открытия.</translation>
    </message>
    <message numerus="yes">
        <source>The name or the path of a program is longer than %n bytes.</source>
        <translation>
            <numerusform>Имя или путь программы длиннее %n байта.</numerusform>
            <numerusform>Имя или путь программы длиннее %n байт.</numerusform>
            <numerusform>Имя или путь программы длиннее %n байт.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n numbers for programs are used up.</source>
        <translation>
            <numerusform>Израсходован %n номер программ из всех возможных.</numerusform>
            <numerusform>Израсходованы все %n номера программ.</numerusform>
            <numerusform>Израсходованы все %n номеров программ.</numerusform>
        </translation>
    </message>
    <message>
        <source>Its plans do not fit together.</source>
        <translation>Его планы не согласуются между собой.</translation>
    </message>
    <message>
        <source>“%1” is missing.</source>
        <translation>Отсутствует «%1».</translation>
    </message>
    <message>
        <source>It contains “%1”, which does not belong there.</source>
        <translation>В нём есть «%1», чего там быть не должно.</translation>
    </message>
    <message>
        <source>“%1” has been changed.</source>
        <translation>«%1» изменено.</translation>
    </message>
    <message>
        <source>It does not say which state it is in.</source>
        <translation>В нём не указано его состояние.</translation>
    </message>
    <message>
        <source>It was created by an older version of this application. Set up the server again.</source>
        <translation>Она создана более старой версией этого приложения. Настройте сервер заново.</translation>
    </message>
    <message>
        <source>The address contains a password. Passwords belong in a password file.</source>
        <translation>Адрес содержит пароль. Пароли хранятся в файле паролей.</translation>
    </message>
    <message>
        <source>The address of a schedule on a server has this form: %1</source>
        <translation>Адрес расписания на сервере имеет такой вид: %1</translation>
    </message>
    <message>
        <source>The name of the schedule in the address is missing, too long or not readable.</source>
        <translation>Имя расписания в адресе отсутствует, слишком длинное или нечитаемое.</translation>
    </message>
    <message>
        <source>The connection was lost before the server answered.</source>
        <translation>Соединение прервалось до ответа сервера.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>Сервер не отвечает.</translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n tasks.</source>
        <translation>
            <numerusform>Более %n задания.</numerusform>
            <numerusform>Более %n заданий.</numerusform>
            <numerusform>Более %n заданий.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n plans.</source>
        <translation>
            <numerusform>Более %n плана.</numerusform>
            <numerusform>Более %n планов.</numerusform>
            <numerusform>Более %n планов.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n entries.</source>
        <translation>
            <numerusform>Более %n записи.</numerusform>
            <numerusform>Более %n записей.</numerusform>
            <numerusform>Более %n записей.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n numbers in the lists of plans.</source>
        <translation>
            <numerusform>В списках планов более %n числа.</numerusform>
            <numerusform>В списках планов более %n чисел.</numerusform>
            <numerusform>В списках планов более %n чисел.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n programs.</source>
        <translation>
            <numerusform>Более %n программы.</numerusform>
            <numerusform>Более %n программ.</numerusform>
            <numerusform>Более %n программ.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A text of task %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>Один из текстов задания %1 длиннее %n байта.</numerusform>
            <numerusform>Один из текстов задания %1 длиннее %n байт.</numerusform>
            <numerusform>Один из текстов задания %1 длиннее %n байт.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>It is larger than %n bytes.</source>
        <translation>
            <numerusform>Его размер больше %n байта.</numerusform>
            <numerusform>Его размер больше %n байт.</numerusform>
            <numerusform>Его размер больше %n байт.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n values.</source>
        <translation>
            <numerusform>Более %n значения.</numerusform>
            <numerusform>Более %n значений.</numerusform>
            <numerusform>Более %n значений.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A name in line %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>Имя в строке %1 длиннее %n байта.</numerusform>
            <numerusform>Имя в строке %1 длиннее %n байт.</numerusform>
            <numerusform>Имя в строке %1 длиннее %n байт.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A text in line %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>Текст в строке %1 длиннее %n байта.</numerusform>
            <numerusform>Текст в строке %1 длиннее %n байт.</numerusform>
            <numerusform>Текст в строке %1 длиннее %n байт.</numerusform>
        </translation>
    </message>
    <message>
        <source>It is not valid JSON (line %1, column %2).</source>
        <translation>Это не корректный JSON (строка %1, столбец %2).</translation>
    </message>
    <message>
        <source>“%1” is not a whole number.</source>
        <translation>«%1» не является целым числом.</translation>
    </message>
    <message>
        <source>“%1” is outside the permitted range.</source>
        <translation>«%1» вне допустимого диапазона.</translation>
    </message>
    <message>
        <source>Wrong kind of value: expected %1, found %2.</source>
        <translation>Неверный тип значения: ожидается %1, указано %2.</translation>
    </message>
    <message>
        <source>Wrong kind of value: expected %1 or a number, found %2.</source>
        <translation>Неверный тип значения: ожидается %1 или число, указано %2.</translation>
    </message>
    <message>
        <source>“%2” is not known here. Expected: %1 or a number.</source>
        <translation>Значение «%2» здесь неизвестно. Ожидается: %1 или число.</translation>
    </message>
    <message>
        <source>The text is not valid Base64.</source>
        <translation>Текст не является корректным Base64.</translation>
    </message>
    <message numerus="yes">
        <source>The text is longer than %n bytes.</source>
        <translation>
            <numerusform>Текст длиннее %n байта.</numerusform>
            <numerusform>Текст длиннее %n байт.</numerusform>
            <numerusform>Текст длиннее %n байт.</numerusform>
        </translation>
    </message>
    <message>
        <source>The key %1 is not the ID of the task, which is %2.</source>
        <translation>Ключ %1 не совпадает с идентификатором задания (%2).</translation>
    </message>
    <message>
        <source>Another task already has the ID %1.</source>
        <translation>Идентификатор %1 уже есть у другого задания.</translation>
    </message>
    <message>
        <source>The format is “%1” instead of “%2”.</source>
        <translation>Указан формат «%1» вместо «%2».</translation>
    </message>
    <message>
        <source>Version %1 is newer than version %2, the newest that this application reads.</source>
        <translation>Версия %1 новее версии %2 — самой новой, которую читает это приложение.</translation>
    </message>
    <message>
        <source>There is no version %1.</source>
        <translation>Версии %1 не существует.</translation>
    </message>
    <message>
        <source>It is JSON of another kind, not a schedule.</source>
        <translation>Это JSON другого вида, а не расписание.</translation>
    </message>
    <message>
        <source>It is not a schedule: “format” is missing.</source>
        <translation>Это не расписание: отсутствует «format».</translation>
    </message>
    <message>
        <source>“%1” is not known here.</source>
        <translation>«%1» здесь неизвестно.</translation>
    </message>
    <message>
        <source>“%1” occurs twice here.</source>
        <translation>«%1» встречается здесь дважды.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>Это папка.</translation>
    </message>
    <message>
        <source>It is a pipe, not a file.</source>
        <translation>Это канал, а не файл.</translation>
    </message>
    <message>
        <source>It is a socket, not a file.</source>
        <translation>Это сокет, а не файл.</translation>
    </message>
    <message>
        <source>It is a device, not a file.</source>
        <translation>Это устройство, а не файл.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Это не файл.</translation>
    </message>
    <message>
        <source>Nothing comes through the pipe.</source>
        <translation>Через канал ничего не поступает.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Файл не существует.</translation>
    </message>
    <message>
        <source>You do not have permission to read it.</source>
        <translation>У вас нет прав на чтение.</translation>
    </message>
    <message>
        <source>It cannot be opened. %1</source>
        <translation>Не удаётся открыть. %1</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Файл пуст.</translation>
    </message>
    <message>
        <source>Its name is not in UTF-8. Rename the file to import it.</source>
        <translation>Имя не в кодировке UTF-8. Переименуйте файл, чтобы импортировать его.</translation>
    </message>
    <message>
        <source>Addresses of this kind cannot be played.</source>
        <translation>Адреса такого вида не поддерживаются.</translation>
    </message>
    <message>
        <source>It is a file on another computer. Copy it to this computer first.</source>
        <translation>Файл находится на другом компьютере. Сначала скопируйте его на этот.</translation>
    </message>
    <message>
        <source>It is not a media file, or it is damaged.</source>
        <translation>Это не медиафайл, или он повреждён.</translation>
    </message>
    <message>
        <source>Files of this format cannot be imported.</source>
        <translation>Файлы этого формата нельзя импортировать.</translation>
    </message>
    <message>
        <source>Its content cannot be read.</source>
        <translation>Не удаётся прочитать содержимое.</translation>
    </message>
    <message>
        <source>The image in it cannot be read.</source>
        <translation>Не удаётся прочитать изображение в нём.</translation>
    </message>
    <message>
        <source>It contains neither picture nor sound.</source>
        <translation>В нём нет ни изображения, ни звука.</translation>
    </message>
    <message>
        <source>Its length cannot be determined.</source>
        <translation>Не удаётся определить длительность.</translation>
    </message>
    <message>
        <source>It could not be read in time.</source>
        <translation>Не удалось прочитать вовремя.</translation>
    </message>
    <message>
        <source>The media reader crashed while reading it.</source>
        <translation>Модуль чтения медиафайлов аварийно завершился при чтении.</translation>
    </message>
    <message>
        <source>The media reader gave no valid answer about it.</source>
        <translation>Модуль чтения медиафайлов не дал корректного ответа.</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader is missing: %1</source>
        <translation>Не удаётся прочитать медиафайлы. Отсутствует модуль чтения медиафайлов: %1</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 cannot be started. %2</source>
        <translation>Не удаётся прочитать медиафайлы. Не удаётся запустить модуль чтения медиафайлов %1. %2</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 does not answer.</source>
        <translation>Не удаётся прочитать медиафайлы. Модуль чтения медиафайлов %1 не отвечает.</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 exits immediately.</source>
        <translation>Не удаётся прочитать медиафайлы. Модуль чтения медиафайлов %1 сразу завершается.</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 is of another version.</source>
        <translation>Не удаётся прочитать медиафайлы. Модуль чтения медиафайлов %1 другой версии.</translation>
    </message>
    <message>
        <source>Version %1 is damaged.</source>
        <translation>Версия %1 повреждена.</translation>
    </message>
    <message numerus="yes">
        <source>The name or the note of a version is longer than %n characters.</source>
        <translation>
            <numerusform>Название или примечание версии длиннее %n символа.</numerusform>
            <numerusform>Название или примечание версии длиннее %n символов.</numerusform>
            <numerusform>Название или примечание версии длиннее %n символов.</numerusform>
        </translation>
    </message>
    <message>
        <source>The name or the note of a version contains a character that is not visible.</source>
        <translation>Название или примечание версии содержит невидимый символ.</translation>
    </message>
    <message>
        <source>No schedule file is open, so nothing can be saved.</source>
        <translation>Файл расписания не открыт, поэтому сохранить ничего нельзя.</translation>
    </message>
    <message>
        <source>%1 cannot be opened. Its folder does not exist.</source>
        <translation>Не удаётся открыть %1. Папка не существует.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 не существует.</translation>
    </message>
    <message>
        <source>%1 is not a schedule database.</source>
        <translation>%1 не является базой данных расписания.</translation>
    </message>
    <message>
        <source>%1 is a database of another application.</source>
        <translation>%1 — база данных другого приложения.</translation>
    </message>
    <message>
        <source>%1 was written by a newer version of this application.</source>
        <translation>%1 создан более новой версией этого приложения.</translation>
    </message>
    <message>
        <source>%1 is in use by another application. Try again when that application is closed.</source>
        <translation>%1 используется другим приложением. Повторите попытку, когда оно будет закрыто.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>Не удаётся записать %1. %2</translation>
    </message>
    <message>
        <source>%1 is damaged. %2</source>
        <translation>Файл %1 повреждён. %2</translation>
    </message>
    <message>
        <source>%1 has been saved by another application in the meantime. Saving now would overwrite those changes.</source>
        <translation>Тем временем файл %1 сохранён другим приложением. При сохранении эти изменения будут перезаписаны.</translation>
    </message>
    <message>
        <source>%1 has no room for more programs. %2</source>
        <translation>В %1 нет места для новых программ. %2</translation>
    </message>
    <message>
        <source>%1 could not be read or written. %2</source>
        <translation>Не удалось прочитать или записать %1. %2</translation>
    </message>
    <message>
        <source>%1 is not a schedule database as this application creates it. %2</source>
        <translation>%1 отличается от баз данных расписания, которые создаёт это приложение. %2</translation>
    </message>
    <message>
        <source>%1 exceeds what a schedule can hold. %2</source>
        <translation>%1 превышает допустимый объём расписания. %2</translation>
    </message>
    <message>
        <source>%1 may not have been written. %2 The change is not visible in the file now, but may be there after a restart of the computer. Write the schedule to another disk, and check the current one before you go on.</source>
        <translation>Возможно, файл %1 не записан. %2 Сейчас изменения в файле не видно, но оно может появиться после перезагрузки компьютера. Запишите расписание на другой диск и проверьте текущий, прежде чем продолжать.</translation>
    </message>
    <message>
        <source>It is not certain whether %1 has been written. %2 Once the server can be reached again, see whether the change is there before you go on.</source>
        <translation>Неизвестно, записано ли %1. %2 Когда сервер снова станет доступен, проверьте, есть ли там изменение, прежде чем продолжать.</translation>
    </message>
    <message>
        <source>%1 does not exist. A schedule on a server is set up with “schedulectl server-setup”.</source>
        <translation>%1 не существует. Расписание на сервере настраивается командой «schedulectl server-setup».</translation>
    </message>
    <message>
        <source>You do not have permission.</source>
        <translation>У вас нет прав доступа.</translation>
    </message>
    <message>
        <source>The file or a folder of its path does not exist.</source>
        <translation>Файл или папка на пути к нему не существует.</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>Диск доступен только для чтения.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Имя слишком длинное.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Открыто слишком много файлов.</translation>
    </message>
    <message>
        <source>The file is in use.</source>
        <translation>Файл занят.</translation>
    </message>
    <message>
        <source>The system reports error %1.</source>
        <translation>Система сообщает об ошибке %1.</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>«да» или «нет»</translation>
    </message>
    <message>
        <source>number</source>
        <translation>число</translation>
    </message>
    <message>
        <source>text</source>
        <translation>текст</translation>
    </message>
    <message>
        <source>list</source>
        <translation>список</translation>
    </message>
    <message>
        <source>object</source>
        <translation>объект</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>пустое значение</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>целое число</translation>
    </message>
    <message>
        <source>whole number as text</source>
        <translation>целое число в виде текста</translation>
    </message>
    <message>
        <source>program number that occurs once</source>
        <translation>номер программы, который встречается один раз</translation>
    </message>
    <message>
        <source>another number</source>
        <translation>другое число</translation>
    </message>
    <message>
        <source>SHA-256 hash</source>
        <translation>хеш SHA-256</translation>
    </message>
    <message>
        <source>another text</source>
        <translation>другой текст</translation>
    </message>
    <message>
        <source>%1 could not be read. %2</source>
        <translation>Не удалось прочитать %1. %2</translation>
    </message>
    <message>
        <source>Line %1, %2: %3</source>
        <translation>Строка %1, %2: %3</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProgramTableModel</name>
    <message>
        <source>File not found: %1</source>
        <translation>Файл больше не существует: %1</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>№</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Программа</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Длительность</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
</context>
<context>
    <name>trel::desktop::SaveRescue</name>
    <message>
        <source>The schedule was not saved. %1

What do you want to do with your changes?</source>
        <translation>Расписание не сохранено. %1

Что сделать с вашими изменениями?</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Write to a file</source>
        <translation>Сохранить в файл</translation>
    </message>
    <message>
        <source>Write the schedule to a file</source>
        <translation>Сохранение расписания в файл</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>Расписания (*.json)</translation>
    </message>
    <message>
        <source>Go on editing</source>
        <translation>Продолжить правку</translation>
    </message>
    <message>
        <source>While you were editing, %1 was saved by another program. Your changes are not saved.</source>
        <translation>Пока вы работали, %1 сохранило другое приложение. Ваши изменения не сохранены.</translation>
    </message>
    <message>
        <source>If you keep yours, what was saved there stays among the versions. If you take theirs, yours can be brought back until the next save.</source>
        <translation>Если оставить свои, сохранённое там останется среди версий. Если принять чужие, свои можно вернуть до следующего сохранения.</translation>
    </message>
    <message>
        <source>What was changed there:</source>
        <translation>Что там изменено:</translation>
    </message>
    <message>
        <source>Nothing that you would see.</source>
        <translation>Ничего видимого.</translation>
    </message>
    <message>
        <source>As it was saved there</source>
        <translation>Как сохранено там</translation>
    </message>
    <message>
        <source>With your changes</source>
        <translation>С вашими изменениями</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>Оставить мои</translation>
    </message>
    <message>
        <source>Take theirs</source>
        <translation>Принять чужие</translation>
    </message>
    <message>
        <source>Write mine to a file</source>
        <translation>Сохранить мои в файл</translation>
    </message>
    <message>
        <source>While you were editing, %1 was saved by %2, on %3. Your changes are not saved.</source>
        <comment>the database, a program, and the time</comment>
        <translation>Пока вы работали, %1 сохранило приложение %2, %3. Ваши изменения не сохранены.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ClockChangePanel</name>
    <message>
        <source>Clock changes</source>
        <translation>Переводы часов</translation>
    </message>
    <message>
        <source>No clock change falls within the validity of any task.</source>
        <translation>На сроки действия заданий переводы часов не приходятся.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; no plan of task %4 is affected.</source>
        <translation>%1: %2–%3 пропускается; планы задания %4 не затронуты.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; no plan of task %4 is affected.</source>
        <translation>%1: %2–%3 наступает дважды; планы задания %4 не затронуты.</translation>
    </message>
</context>
<context>
    <name>ClockChangeText</name>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 does not play.</source>
        <translation>%1: %2–%3 пропускается; план %4 задания %5 не показывается.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 starts at %6 in the middle of its list.</source>
        <translation>%1: %2–%3 пропускается; план %4 задания %5 начинается в %6 с середины списка.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 is cut off at %6.</source>
        <translation>%1: %2–%3 пропускается; план %4 задания %5 обрывается в %6.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 skips this part of its list.</source>
        <translation>%1: %2–%3 пропускается; план %4 задания %5 пропускает эту часть списка.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 plays twice.</source>
        <translation>%1: %2–%3 наступает дважды; план %4 задания %5 показывается дважды.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 starts twice at %6.</source>
        <translation>%1: %2–%3 наступает дважды; план %4 задания %5 начинается дважды в %6.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 ends twice at %6.</source>
        <translation>%1: %2–%3 наступает дважды; план %4 задания %5 заканчивается дважды в %6.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 repeats this part of its list.</source>
        <translation>%1: %2–%3 наступает дважды; план %4 задания %5 повторяет эту часть списка.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::PreviewDock</name>
    <message>
        <source>Preview</source>
        <translation>Предпросмотр</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Предпросмотр</translation>
    </message>
    <message>
        <source>&amp;Full-screen preview</source>
        <translation>Предпросмотр на &amp;весь экран</translation>
    </message>
</context>
<context>
    <name>trel::desktop::PreviewScreen</name>
    <message>
        <source>Preview of the screen</source>
        <translation>Предпросмотр экрана</translation>
    </message>
</context>
<context>
    <name>trel::desktop::NowNextPanel</name>
    <message>
        <source>Now</source>
        <translation>Сейчас</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>Cut in</source>
        <translation>Вставка</translation>
    </message>
    <message>
        <source>Now and next</source>
        <translation>Сейчас и далее</translation>
    </message>
    <message>
        <source>What the screen shows</source>
        <translation>Что на экране</translation>
    </message>
    <message>
        <source>Program on screen</source>
        <translation>Программа на экране</translation>
    </message>
    <message>
        <source>Position in the program</source>
        <translation>Позиция в программе</translation>
    </message>
    <message>
        <source>Why this is on screen</source>
        <translation>Почему это на экране</translation>
    </message>
    <message>
        <source>Next program</source>
        <translation>Следующая программа</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>Не запущено</translation>
    </message>
    <message>
        <source>%1 played</source>
        <translation>Прошло %1</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>Осталось %1</translation>
    </message>
    <message>
        <source>%1, until %2, %3 left</source>
        <translation>%1, до %2, осталось %3</translation>
    </message>
    <message>
        <source>Nothing else is scheduled.</source>
        <translation>Дальше ничего не запланировано.</translation>
    </message>
    <message>
        <source>at %1, in %2</source>
        <translation>в %1, через %2</translation>
    </message>
    <message>
        <source>on %1 at %2</source>
        <translation>%1 в %2</translation>
    </message>
</context>
<context>
    <name>ScreenWords</name>
    <message>
        <source>Playing</source>
        <translation>Идёт показ</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Чёрный экран</translation>
    </message>
    <message>
        <source>Frozen</source>
        <translation>Стоп-кадр</translation>
    </message>
    <message>
        <source>Last frame of %1</source>
        <translation>Последний кадр: %1</translation>
    </message>
    <message>
        <source>Black screen</source>
        <translation>Чёрный экран</translation>
    </message>
    <message>
        <source>Entry %1 of %2, play %3 of %4</source>
        <translation>Запись %1 из %2, показ %3 из %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2</source>
        <translation>Задание %1, план %2</translation>
    </message>
    <message>
        <source>Choose Start to put the saved schedule into effect.</source>
        <translation>Кнопка «Запустить» вводит сохранённое расписание в действие.</translation>
    </message>
    <message>
        <source>No plan has started yet.</source>
        <translation>До сих пор ни один план не занимал экран.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is the first of the plans for this time.</source>
        <translation>Из планов на это время план %1 задания %2 стоит первым.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is due, but none of its programs can play.</source>
        <translation>Экран занимает план %1 задания %2, но ни одну из его программ показать нельзя.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is due, but its list is to run less than once.</source>
        <translation>Экран занимает план %1 задания %2, но его список должен показываться меньше одного раза.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 has played its list the set number of times.</source>
        <translation>План %1 задания %2 показал список нужное число раз.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is over, and no other has begun.</source>
        <translation>План %1 задания %2 закончился, а другой ещё не начался.</translation>
    </message>
    <message>
        <source>Cut in manually in place of plan %1 of task %2.</source>
        <translation>Вставлено вручную вместо плана %1 задания %2.</translation>
    </message>
    <message>
        <source>What was cut in for plan %1 of task %2 has nothing left to play.</source>
        <translation>Вставке вместо плана %1 задания %2 больше нечего показывать.</translation>
    </message>
    <message>
        <source>Cut in: %1</source>
        <translation>Вставка: %1</translation>
    </message>
    <message>
        <source>Original list: %1</source>
        <translation>До этого: %1</translation>
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
        <translation>%1, задание %2. %3</translation>
    </message>
    <message>
        <source>On screen: %1, at %2</source>
        <translation>На экране: %1, прошло %2</translation>
    </message>
    <message>
        <source>On screen: %1</source>
        <translation>На экране: %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>day and time of day</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 to %2 is skipped: the clocks go forward.</source>
        <translation>%1–%2 пропускается: часы переводят вперёд.</translation>
    </message>
    <message>
        <source>%1 to %2 occurs twice: the clocks go back.</source>
        <translation>%1–%2 наступает дважды: часы переводят назад.</translation>
    </message>
    <message numerus="yes">
        <source>%n more plans do not reach the screen.</source>
        <translation>
            <numerusform>Ещё %n план не попадает на экран.</numerusform>
            <numerusform>Ещё %n плана не попадают на экран.</numerusform>
            <numerusform>Ещё %n планов не попадают на экран.</numerusform>
        </translation>
    </message>
    <message>
        <source>Plan %1, above it, takes precedence.</source>
        <translation>План %1 стоит выше и занимает экран вместо него.</translation>
    </message>
    <message>
        <source>It conflicts with a plan above it.</source>
        <translation>Он пересекается с планом выше.</translation>
    </message>
    <message>
        <source>Its list is over at %1, before the plan ends.</source>
        <translation>Его список заканчивается в %1, раньше плана.</translation>
    </message>
    <message>
        <source>Plan %1, %2 to %3</source>
        <translation>План %1, %2–%3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>plan and its programs</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>No task is valid on this day.</source>
        <translation>В этот день не действует ни одно задание.</translation>
    </message>
    <message>
        <source>No task is valid</source>
        <translation>Нет задания</translation>
    </message>
    <message>
        <source>No task</source>
        <translation>Нет задания</translation>
    </message>
    <message>
        <source>Task %1</source>
        <translation>Задание %1</translation>
    </message>
    <message>
        <source>Frozen: %1</source>
        <translation>Стоп-кадр: %1</translation>
    </message>
    <message>
        <source>Cut in: %1</source>
        <translation>Вставка: %1</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Пропускается</translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation>Дважды</translation>
    </message>
    <message>
        <source>nothing to show</source>
        <translation>нечего показать</translation>
    </message>
    <message>
        <source>Not on screen</source>
        <translation>Не на экране</translation>
    </message>
    <message>
        <source>In conflict</source>
        <translation>Есть накладка</translation>
    </message>
    <message>
        <source>Programs of the week</source>
        <translation>Программы недели</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekView</name>
    <message>
        <source>Week</source>
        <translation>Неделя</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekPanel</name>
    <message>
        <source>Today</source>
        <translation>Сегодня</translation>
    </message>
    <message>
        <source>Whole day</source>
        <translation>Весь день</translation>
    </message>
    <message>
        <source>As edited</source>
        <translation>Редактируемое</translation>
    </message>
    <message>
        <source>In effect</source>
        <translation>Действующее</translation>
    </message>
    <message>
        <source>Previous week</source>
        <translation>Предыдущая неделя</translation>
    </message>
    <message>
        <source>Next week</source>
        <translation>Следующая неделя</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Уменьшить масштаб</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Увеличить масштаб</translation>
    </message>
    <message>
        <source>Schedule shown</source>
        <translation>Какое расписание показано</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Предыдущий месяц</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Следующий месяц</translation>
    </message>
    <message>
        <source>Choose a day in a calendar</source>
        <translation>Выбрать день в календаре</translation>
    </message>
    <message>
        <source>%1. Choose a day in a calendar</source>
        <comment>days of a week</comment>
        <translation>%1. Выбрать день в календаре</translation>
    </message>
</context>
<context>
    <name>ProblemText</name>
    <message>
        <source>Task %1</source>
        <translation>Задание %1</translation>
    </message>
    <message>
        <source>Task %1, row %2</source>
        <translation>Задание %1, строка %2</translation>
    </message>
    <message>
        <source>The validity overlaps that of task %1 from %2 to %3.</source>
        <translation>Срок действия пересекается со сроком задания %1 с %2 по %3.</translation>
    </message>
    <message>
        <source>The validity overlaps that of task %1.</source>
        <translation>Срок действия пересекается со сроком задания %1.</translation>
    </message>
    <message>
        <source>The task is never valid: “%1” to “%2” is not a period.</source>
        <translation>Задание никогда не действует: «%1» — «%2» не является сроком.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: none of its days falls within the validity of the task.</source>
        <translation>План %1 никогда не показывается: ни один из его дней не попадает в срок действия задания.</translation>
    </message>
    <message>
        <source>Plan %1 is never on screen: earlier rows such as row %2 always come first.</source>
        <translation>План %1 никогда не появляется на экране: предыдущие строки, например строка %2, всегда важнее.</translation>
    </message>
    <message>
        <source>Plan %1 is in conflict with plan %2 in row %3 from %4 on.</source>
        <translation>Накладка: план %1 и план %2 в строке %3, начиная с %4.</translation>
    </message>
    <message>
        <source>Plan %1 is in conflict with plan %2 in row %3, but on no date.</source>
        <translation>Накладка: план %1 и план %2 в строке %3, но ни на одну дату.</translation>
    </message>
    <message>
        <source>No picture from %1 to %2, every day.</source>
        <translation>Нет изображения с %1 до %2, ежедневно.</translation>
    </message>
    <message>
        <source>No picture from %1 to %2 on: %3.</source>
        <translation>Нет изображения с %1 до %2: %3.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it would go on after midnight, until %2.</source>
        <translation>План %1 никогда не показывается: он продолжался бы после полуночи до %2.</translation>
    </message>
    <message>
        <source>Plan %1 is cut off at midnight: it would go on until %2.</source>
        <translation>План %1 обрывается в полночь: он продолжался бы до %2.</translation>
    </message>
    <message>
        <source>Plan %1 is cut off at midnight: it would go on for more than a day.</source>
        <translation>План %1 обрывается в полночь: он продолжался бы ещё больше суток.</translation>
    </message>
    <message>
        <source>Invalid entries in plan %1: %2. The first is “%3”.</source>
        <translation>Недействительных записей в плане %1: %2. Первая — «%3».</translation>
    </message>
    <message>
        <source>Missing files in plan %1: %2. The first is “%3”.</source>
        <translation>Отсутствует файлов в плане %1: %2. Первый — «%3».</translation>
    </message>
    <message>
        <source>Entries without a length in plan %1: %2. The first is “%3”.</source>
        <translation>Записей без длительности в плане %1: %2. Первая — «%3».</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is cut off at the end of the day.</source>
        <translation>В плане %1 «%2» обрывается в конце дня.</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is cut off at %3, when the plan ends.</source>
        <translation>В плане %1 «%2» обрывается в %3, когда план заканчивается.</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is never reached: an entry before it does not end by itself.</source>
        <translation>В плане %1 до «%2» дело не доходит: одна из предыдущих записей не заканчивается сама.</translation>
    </message>
    <message>
        <source>Plan %1 contains no programs.</source>
        <translation>План %1 не содержит программ.</translation>
    </message>
    <message>
        <source>Change the dates of one of the two tasks. Until then nothing can be saved.</source>
        <translation>Измените даты одного из двух заданий. До тех пор ничего нельзя сохранить.</translation>
    </message>
    <message>
        <source>Choose a start date, and an end date that is not before it.</source>
        <translation>Выберите дату начала и дату окончания не раньше неё.</translation>
    </message>
    <message>
        <source>Correct the days and times of the plan.</source>
        <translation>Исправьте дни и время плана.</translation>
    </message>
    <message>
        <source>Change the days or times of one of the plans.</source>
        <translation>Измените дни или время одного из планов.</translation>
    </message>
    <message>
        <source>Restore the files, or choose other programs.</source>
        <translation>Восстановите файлы или выберите другие программы.</translation>
    </message>
    <message>
        <source>Choose the programs of the plan anew.</source>
        <translation>Выберите программы плана заново.</translation>
    </message>
    <message>
        <source>Split the plan in two, or let it end before midnight.</source>
        <translation>Разделите план надвое или закончите его до полуночи.</translation>
    </message>
    <message>
        <source>Let the plan end before midnight.</source>
        <translation>Закончите план до полуночи.</translation>
    </message>
    <message>
        <source>Let the plan end later, or play less.</source>
        <translation>Закончите план позже или уберите часть программ.</translation>
    </message>
    <message>
        <source>Move the entry to the front, or into another plan.</source>
        <translation>Переместите запись вперёд или в другой план.</translation>
    </message>
    <message>
        <source>Add a plan, or let the plan before it end with its last frame.</source>
        <translation>Добавьте план или завершите предыдущий стоп-кадром.</translation>
    </message>
    <message>
        <source>Move the plan if that is not wanted.</source>
        <translation>Переместите план, если это нежелательно.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemModel</name>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Замечание</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Место</translation>
    </message>
    <message>
        <source>As of</source>
        <translation>Начиная с</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Что не так</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Что делать</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemPanel</name>
    <message>
        <source>No problems.</source>
        <translation>Проблем нет.</translation>
    </message>
    <message>
        <source>Go to the row</source>
        <translation>К строке</translation>
    </message>
    <message>
        <source>Split in two</source>
        <translation>Разделить</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemDock</name>
    <message>
        <source>No open problems</source>
        <translation>Открытых проблем нет</translation>
    </message>
    <message numerus="yes">
        <source>%n open problems</source>
        <translation>
            <numerusform>%n открытая проблема</numerusform>
            <numerusform>%n открытые проблемы</numerusform>
            <numerusform>%n открытых проблем</numerusform>
        </translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Проблемы</translation>
    </message>
    <message>
        <source>Pro&amp;blems</source>
        <translation>Проб&amp;лемы</translation>
    </message>
    <message>
        <source>Show what is wrong with the schedule</source>
        <translation>Показать, что не так с расписанием</translation>
    </message>
</context>
<context>
    <name>PlanFaultText</name>
    <message>
        <source>Plan %1 never plays: none of its days is a day of the week.</source>
        <translation>План %1 никогда не показывается: ни один из его дней не является днём недели.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, is not a time in the form %3.</source>
        <translation>План %1 никогда не показывается: его начало «%2» не является временем вида %3.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its end, “%2”, is not a time in the form %3.</source>
        <translation>План %1 никогда не показывается: его конец «%2» не является временем вида %3.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, and its end, “%3”, are not times in the form %4.</source>
        <translation>План %1 никогда не показывается: его начало «%2» и конец «%3» не являются временем вида %4.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its list is to run less than once.</source>
        <translation>План %1 никогда не показывается: его список должен показываться меньше одного раза.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it starts and ends at %2.</source>
        <translation>План %1 никогда не показывается: он начинается и заканчивается в %2.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it ends at %3, before it starts at %2.</source>
        <translation>План %1 никогда не показывается: он начинается в %2, а заканчивается раньше, в %3.</translation>
    </message>
</context>
<context>
    <name>ZoneError</name>
    <message>
        <source>The system knows no time zone of the name “%1”, so that the local time is not known.</source>
        <translation>Система не знает часового пояса с именем «%1», поэтому местное время неизвестно.</translation>
    </message>
</context>
<context>
    <name>trel::widgets::TitleButton</name>
    <message>
        <source>Minimize</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Развернуть</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EffectActions</name>
    <message>
        <source>Stop the schedule that is in effect? The screen stays black until a schedule is started again.</source>
        <translation>Остановить действующее расписание? Экран останется чёрным, пока расписание не запустят снова.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>EffectWords</name>
    <message>
        <source>In effect since %1 at %2 (save %3)</source>
        <translation>Действует с %1, %2 (сохранение %3)</translation>
    </message>
    <message>
        <source>Started by %1.</source>
        <translation>Запущено: %1.</translation>
    </message>
    <message numerus="yes">
        <source>What is saved differs in %n tasks: %1</source>
        <translation>
            <numerusform>Сохранённое отличается в %n задании: %1</numerusform>
            <numerusform>Сохранённое отличается в %n заданиях: %1</numerusform>
            <numerusform>Сохранённое отличается в %n заданиях: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>a program</comment>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>the last frame of “%1”</source>
        <translation>последний кадр «%1»</translation>
    </message>
    <message>
        <source>a black screen</source>
        <translation>чёрный экран</translation>
    </message>
    <message>
        <source>%1 comes after %2, at %3; %4 comes back at %5.</source>
        <translation>%1 — после %2, в %3; в %5 снова %4.</translation>
    </message>
    <message>
        <source>%1 was cut off at %2; %3 comes at %4.</source>
        <translation>Показ %1 прерван в %2; в %4 — %3.</translation>
    </message>
    <message>
        <source>%1 was cut in at %2; %3 comes back at %4.</source>
        <translation>%1: вставка началась в %2; в %4 снова %3.</translation>
    </message>
    <message>
        <source>%1 comes after %2, at %3.</source>
        <translation>%1 — после %2, в %3.</translation>
    </message>
    <message>
        <source>%1 was cut off at %2.</source>
        <translation>Показ %1 прерван в %2.</translation>
    </message>
    <message>
        <source>%1 was cut in at %2.</source>
        <translation>%1: вставка началась в %2.</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <comment>time and date</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>What is in effect could not be changed. %1</source>
        <translation>Действующее расписание не удалось изменить. %1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::AsRunWindow</name>
    <message>
        <source>As-run</source>
        <translation>Отчёт о показе</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Экран</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>День</translation>
    </message>
    <message>
        <source>Previous day</source>
        <translation>Предыдущий день</translation>
    </message>
    <message>
        <source>Next day</source>
        <translation>Следующий день</translation>
    </message>
    <message>
        <source>Only what was not as planned</source>
        <translation>Только отклонения</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Чтение…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::AsRunModel</name>
    <message>
        <source>From</source>
        <translation>С</translation>
    </message>
    <message>
        <source>To</source>
        <translation>До</translation>
    </message>
    <message>
        <source>Planned</source>
        <translation>Намечено</translation>
    </message>
    <message>
        <source>On screen</source>
        <translation>На экране</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Примечание</translation>
    </message>
</context>
<context>
    <name>AsRunText</name>
    <message>
        <source>Not known</source>
        <translation>Неизвестно</translation>
    </message>
    <message>
        <source>No record</source>
        <translation>Нет в отчёте</translation>
    </message>
    <message>
        <source>No player</source>
        <translation>Нет плеера</translation>
    </message>
    <message>
        <source>Stand-by picture</source>
        <translation>Заставка ожидания</translation>
    </message>
    <message>
        <source>Last good frame of %1</source>
        <translation>Последний исправный кадр: %1</translation>
    </message>
    <message>
        <source>What was on before</source>
        <translation>То, что было до этого</translation>
    </message>
    <message>
        <source>Cut off: the schedule was stopped</source>
        <translation>Прервано: расписание остановлено</translation>
    </message>
    <message>
        <source>Cut off: the player was ended</source>
        <translation>Прервано: плеер завершён</translation>
    </message>
    <message>
        <source>Cut off: the player was killed</source>
        <translation>Прервано: плеер прекратил работу</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Сбой</translation>
    </message>
    <message>
        <source>Cut off: the clock was changed</source>
        <translation>Прервано: переведены часы</translation>
    </message>
    <message>
        <source>The player had been ended</source>
        <translation>Плеер был завершён</translation>
    </message>
    <message>
        <source>The player had been killed</source>
        <translation>Плеер прекратил работу</translation>
    </message>
    <message>
        <source>The machine had stopped</source>
        <translation>Компьютер был выключен</translation>
    </message>
    <message>
        <source>The player had no schedule yet</source>
        <translation>У плеера ещё не было расписания</translation>
    </message>
    <message>
        <source>The machine was asleep</source>
        <translation>Компьютер был в спящем режиме</translation>
    </message>
    <message>
        <source>The records could not be kept</source>
        <translation>Отчёт не удалось сохранить</translation>
    </message>
    <message>
        <source>Recorded until %1.</source>
        <translation>Записано до %1.</translation>
    </message>
    <message>
        <source>Only the first %1 lines of the day are shown.</source>
        <translation>Показаны только первые %1 строк дня.</translation>
    </message>
    <message>
        <source>No record tells why</source>
        <translation>В отчёте нет причины</translation>
    </message>
    <message>
        <source>%1 s late</source>
        <translation>Опоздание %1 с</translation>
    </message>
    <message>
        <source>The records cannot be read: %1</source>
        <translation>Отчёт невозможно прочитать: %1</translation>
    </message>
    <message>
        <source>No player has recorded anything for this database.</source>
        <translation>Для этой базы данных плееры ещё ничего не сообщили.</translation>
    </message>
    <message>
        <source>The records were changed, or some are missing. “schedulectl as-run --verify” names the place.</source>
        <translation>Отчёт изменён или неполон. «schedulectl as-run --verify» укажет место.</translation>
    </message>
    <message>
        <source>Not as planned, and no record tells why: %1</source>
        <translation>Отклонения без причины в отчёте: %1</translation>
    </message>
    <message>
        <source>There is no record of this day.</source>
        <translation>За этот день отчёта нет.</translation>
    </message>
    <message>
        <source>The screen was as planned, or a record tells why not.</source>
        <translation>Экран показывал намеченное, или в отчёте есть причина.</translation>
    </message>
    <message>
        <source>Cut off: something was cut in</source>
        <translation>Прервано: вставка</translation>
    </message>
    <message>
        <source>Cut off: another schedule came</source>
        <translation>Прервано: другое расписание</translation>
    </message>
</context>
<context>
    <name>EditWords</name>
    <message>
        <source>Back to what is saved</source>
        <translation>Возврат к сохранённому</translation>
    </message>
    <message>
        <source>Saved by another program: tasks %1</source>
        <translation>Сохранено другим приложением: задания %1</translation>
    </message>
    <message>
        <source>This takes back what another program has saved as well (tasks %1). Nothing is overwritten before you save, and what was saved there stays among the versions.</source>
        <translation>При этом отменяется и то, что сохранило другое приложение (задания %1). Пока вы не сохраните, ничего не перезаписывается, а сохранённое там остаётся среди версий.</translation>
    </message>
    <message>
        <source>Take it back</source>
        <translation>Отменить это</translation>
    </message>
    <message>
        <source>Leave it</source>
        <translation>Оставить</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks edited</source>
        <translation>
            <numerusform>Изменено %n задание</numerusform>
            <numerusform>Изменены %n задания</numerusform>
            <numerusform>Изменено %n заданий</numerusform>
        </translation>
    </message>
    <message>
        <source>Task %1 added</source>
        <translation>Задание %1 добавлено</translation>
    </message>
    <message>
        <source>Task %1 deleted</source>
        <translation>Задание %1 удалено</translation>
    </message>
    <message>
        <source>Task %1 edited</source>
        <translation>Задание %1 изменено</translation>
    </message>
    <message>
        <source>Task %1: first day %2 → %3</source>
        <translation>Задание %1: первый день %2 → %3</translation>
    </message>
    <message>
        <source>Task %1: last day %2 → %3</source>
        <translation>Задание %1: последний день %2 → %3</translation>
    </message>
    <message>
        <source>Task %1, plan %2 added</source>
        <translation>Задание %1, план %2 добавлен</translation>
    </message>
    <message>
        <source>Task %1, plan %2 deleted</source>
        <translation>Задание %1, план %2 удалён</translation>
    </message>
    <message>
        <source>Task %1, plan %2 edited</source>
        <translation>Задание %1, план %2 изменён</translation>
    </message>
    <message>
        <source>Task %1, plan %2: other programs</source>
        <translation>Задание %1, план %2: другие программы</translation>
    </message>
    <message>
        <source>Task %1, plan %2: ends at a set time</source>
        <translation>Задание %1, план %2: конец в заданное время</translation>
    </message>
    <message>
        <source>Task %1, plan %2: ends after a number of runs</source>
        <translation>Задание %1, план %2: конец после числа повторов</translation>
    </message>
    <message>
        <source>Task %1, plan %2: start %3 → %4</source>
        <translation>Задание %1, план %2: начало %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: end %3 → %4</source>
        <translation>Задание %1, план %2: конец %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: days %3 → %4</source>
        <translation>Задание %1, план %2: дни %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: runs %3 → %4</source>
        <translation>Задание %1, план %2: повторы %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: a black screen at the end</source>
        <translation>Задание %1, план %2: в конце чёрный экран</translation>
    </message>
    <message>
        <source>Task %1, plan %2: the last frame at the end</source>
        <translation>Задание %1, план %2: в конце стоп-кадр</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>каждый день</translation>
    </message>
    <message>
        <source>Task %1, plan %2: %3 → %4</source>
        <translation>Задание %1, план %2: %3 → %4</translation>
    </message>
</context>
<context>
    <name>trel::desktop::undo::HistoryActions</name>
    <message>
        <source>&amp;Undo</source>
        <translation>От&amp;менить</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>По&amp;вторить</translation>
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
        <translation>Начало</translation>
    </message>
    <message>
        <source>%1 (saved)</source>
        <comment>a step</comment>
        <translation>%1 (сохранено)</translation>
    </message>
    <message>
        <source>%1 (saved; editor opened)</source>
        <comment>a step</comment>
        <translation>%1 (сохранено; редактор открыт)</translation>
    </message>
    <message>
        <source>%1 (editor opened)</source>
        <comment>a step</comment>
        <translation>%1 (редактор открыт)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::undo::HistoryDock</name>
    <message>
        <source>History</source>
        <translation>История</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;История</translation>
    </message>
</context>
<context>
    <name>DraftWords</name>
    <message>
        <source>There are changes that were not saved. The last one was made on %1.</source>
        <translation>Есть изменения, которые не были сохранены. Последнее сделано %1.</translation>
    </message>
    <message>
        <source>New tasks: %1</source>
        <translation>Новые задания: %1</translation>
    </message>
    <message>
        <source>Changed tasks: %1</source>
        <translation>Изменённые задания: %1</translation>
    </message>
    <message>
        <source>Deleted tasks: %1</source>
        <translation>Удалённые задания: %1</translation>
    </message>
    <message>
        <source>The very last change may be missing.</source>
        <translation>Самого последнего изменения может не быть.</translation>
    </message>
    <message>
        <source>A part of them is damaged and cannot be read.</source>
        <translation>Часть из них повреждена и не читается.</translation>
    </message>
    <message>
        <source>They were made in another database, which stood in the place of this one.</source>
        <translation>Они сделаны в другой базе данных, которая была на месте этой.</translation>
    </message>
    <message>
        <source>The schedule was saved since then.</source>
        <translation>С тех пор расписание сохраняли.</translation>
    </message>
    <message>
        <source>The file %1 keeps changes that were not saved. They were made with a newer version of this program, which has to be used to take them over.</source>
        <translation>В файле %1 хранятся несохранённые изменения. Они сделаны в более новой версии этого приложения, и принять их может только она.</translation>
    </message>
    <message>
        <source>The file %1 should keep changes that were not saved, but nothing in it can be read.</source>
        <translation>В файле %1 должны быть несохранённые изменения, но прочитать в нём ничего нельзя.</translation>
    </message>
    <message>
        <source>Changes that are not saved cannot be kept beside the database at the moment: if the program ends now, they are lost. %1</source>
        <translation>Сейчас несохранённые изменения нельзя записать рядом с базой данных: если приложение завершится, они пропадут. %1</translation>
    </message>
    <message>
        <source>The changes could not be kept beside the database. They are still in the editor.</source>
        <translation>Изменения не удалось записать рядом с базой данных. В редакторе они ещё есть.</translation>
    </message>
    <message>
        <source>Take over</source>
        <translation>Принять</translation>
    </message>
    <message>
        <source>Put into a file</source>
        <translation>Записать в файл</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Delete the file</source>
        <translation>Удалить файл</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>Решить позже</translation>
    </message>
    <message>
        <source>There are changes that were not saved. The last one was made %1, on %2.</source>
        <translation>Есть изменения, которые не были сохранены. Последнее сделано %1, %2.</translation>
    </message>
    <message>
        <source>less than a minute ago</source>
        <translation>меньше минуты назад</translation>
    </message>
    <message>
        <source>What differs from what is saved:</source>
        <translation>Чем отличается от сохранённого:</translation>
    </message>
    <message>
        <source>As it is saved</source>
        <translation>Как сохранено</translation>
    </message>
    <message>
        <source>With these changes</source>
        <translation>С этими изменениями</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes ago</source>
        <translation>
            <numerusform>%n минуту назад</numerusform>
            <numerusform>%n минуты назад</numerusform>
            <numerusform>%n минут назад</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours ago</source>
        <translation>
            <numerusform>%n час назад</numerusform>
            <numerusform>%n часа назад</numerusform>
            <numerusform>%n часов назад</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days ago</source>
        <translation>
            <numerusform>%n день назад</numerusform>
            <numerusform>%n дня назад</numerusform>
            <numerusform>%n дней назад</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::changes::ChangesDialog</name>
    <message>
        <source>Look at it in the week</source>
        <translation>Показать в неделе</translation>
    </message>
</context>
<context>
    <name>DifferenceWords</name>
    <message>
        <source>Task %1: %2</source>
        <comment>where, and what differs</comment>
        <translation>Задание %1: %2</translation>
    </message>
    <message>
        <source>Task %1, plan %2: %3</source>
        <comment>where, and what differs</comment>
        <translation>Задание %1, план %2: %3</translation>
    </message>
    <message numerus="yes">
        <source>added, valid from %1 to %2, %n plans</source>
        <translation>
            <numerusform>добавлено, действует с %1 по %2, %n план</numerusform>
            <numerusform>добавлено, действует с %1 по %2, %n плана</numerusform>
            <numerusform>добавлено, действует с %1 по %2, %n планов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>deleted, was valid from %1 to %2, %n plans</source>
        <translation>
            <numerusform>удалено, действовало с %1 по %2, %n план</numerusform>
            <numerusform>удалено, действовало с %1 по %2, %n плана</numerusform>
            <numerusform>удалено, действовало с %1 по %2, %n планов</numerusform>
        </translation>
    </message>
    <message>
        <source>added in row %1: %2, %3 to %4, %5</source>
        <translation>добавлен в строке %1: %2, с %3 до %4, %5</translation>
    </message>
    <message>
        <source>deleted from row %1: %2, %3 to %4, %5</source>
        <translation>удалён из строки %1: %2, с %3 до %4, %5</translation>
    </message>
    <message>
        <source>no programs</source>
        <translation>нет программ</translation>
    </message>
    <message>
        <source>row %1 → %2</source>
        <translation>строка %1 → %2</translation>
    </message>
    <message>
        <source>“%1” added as entry %2</source>
        <translation>«%1» добавлена как запись %2</translation>
    </message>
    <message>
        <source>“%1” deleted, was entry %2</source>
        <translation>«%1» удалена, была записью %2</translation>
    </message>
    <message>
        <source>“%1”: entry %2 → %3</source>
        <translation>«%1»: запись %2 → %3</translation>
    </message>
    <message>
        <source>“%1”, entry %2: %3</source>
        <translation>«%1», запись %2: %3</translation>
    </message>
    <message>
        <source>first day %1 → %2</source>
        <translation>первый день %1 → %2</translation>
    </message>
    <message>
        <source>last day %1 → %2</source>
        <translation>последний день %1 → %2</translation>
    </message>
    <message>
        <source>start %1 → %2</source>
        <translation>начало %1 → %2</translation>
    </message>
    <message>
        <source>end %1 → %2</source>
        <translation>конец %1 → %2</translation>
    </message>
    <message>
        <source>runs %1 → %2</source>
        <translation>повторы %1 → %2</translation>
    </message>
    <message>
        <source>days %1 → %2</source>
        <translation>дни %1 → %2</translation>
    </message>
    <message>
        <source>mode “%1” → “%2”</source>
        <translation>режим «%1» → «%2»</translation>
    </message>
    <message>
        <source>at the end “%1” → “%2”</source>
        <translation>в конце «%1» → «%2»</translation>
    </message>
    <message>
        <source>name “%1” → “%2”</source>
        <translation>название «%1» → «%2»</translation>
    </message>
    <message>
        <source>plays in a row %1 → %2</source>
        <translation>показы подряд %1 → %2</translation>
    </message>
    <message>
        <source>now has a program without a length of its own</source>
        <translation>теперь есть программа без своей длительности</translation>
    </message>
    <message>
        <source>no longer has a program without a length of its own</source>
        <translation>больше нет программы без своей длительности</translation>
    </message>
    <message>
        <source>now in conflict</source>
        <translation>теперь есть накладка</translation>
    </message>
    <message>
        <source>no longer in conflict</source>
        <translation>накладки больше нет</translation>
    </message>
    <message>
        <source>now invalid</source>
        <translation>теперь недействительна</translation>
    </message>
    <message>
        <source>no longer invalid</source>
        <translation>снова действительна</translation>
    </message>
    <message>
        <source>something that the editor does not show</source>
        <translation>то, чего редактор не показывает</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more differences.</source>
        <translation>
            <numerusform>… и ещё %n различие.</numerusform>
            <numerusform>… и ещё %n различия.</numerusform>
            <numerusform>… и ещё %n различий.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProgramWords</name>
    <message>
        <source>Video</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Аудио</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Изображение</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Прямой эфир</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Другое</translation>
    </message>
</context>
<context>
    <name>trel::desktop::CatalogueFilter</name>
    <message>
        <source>%1 of %2</source>
        <comment>programs found of programs</comment>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>Search name and folder</source>
        <translation>Поиск по имени и папке</translation>
    </message>
    <message>
        <source>Kind of program</source>
        <translation>Тип программы</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Все типы</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Без файла</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Без планов</translation>
    </message>
    <message numerus="yes">
        <source>%n programs</source>
        <translation>
            <numerusform>%n программа</numerusform>
            <numerusform>%n программы</numerusform>
            <numerusform>%n программ</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::CalendarPopup</name>
    <message>
        <source>Calendar</source>
        <translation>Календарь</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekPage</name>
    <message>
        <source>Click a block to see why it is on screen, or why not.</source>
        <translation>Щёлкните блок, чтобы узнать, почему он на экране или почему нет.</translation>
    </message>
    <message>
        <source>Why the selected block is on screen, or why not</source>
        <translation>Почему выбранный блок на экране или почему нет</translation>
    </message>
    <message>
        <source>No task is valid in this week. Add one with “Edit”, then drag programs here.</source>
        <translation>На этой неделе не действует ни одно задание. Добавьте его кнопкой «Изменить», затем перетащите программы сюда.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::year::YearStrip</name>
    <message>
        <source>Gap: no task is valid from %1 to %2.</source>
        <translation>Пробел: с %1 по %2 не действует ни одно задание.</translation>
    </message>
    <message>
        <source>Overlap: several tasks are valid from %1 to %2.</source>
        <translation>Пересечение: с %1 по %2 действует несколько заданий.</translation>
    </message>
    <message>
        <source>Task %1 is valid from %2 to %3.</source>
        <translation>Задание %1 действует с %2 по %3.</translation>
    </message>
    <message>
        <source>Validity of the tasks in %1</source>
        <translation>Срок действия заданий в %1 году</translation>
    </message>
</context>
<context>
    <name>trel::desktop::UsesWindow</name>
    <message>
        <source>Where used</source>
        <translation>Где используется</translation>
    </message>
    <message>
        <source>No plan plays “%1”.</source>
        <translation>Ни один план не показывает «%1».</translation>
    </message>
    <message numerus="yes">
        <source>“%1” is played by %n plans.</source>
        <translation>
            <numerusform>«%1» показывает %n план.</numerusform>
            <numerusform>«%1» показывают %n плана.</numerusform>
            <numerusform>«%1» показывают %n планов.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::UsesModel</name>
    <message>
        <source>Task</source>
        <translation>Задание</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Действует</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>План</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Дни</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
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
        <translation>Задание %1 (%2), план %3, %4 %5</translation>
    </message>
    <message>
        <source>Not on screen any more, as the schedule in effect has it.</source>
        <translation>По действующему расписанию на экране больше не появится.</translation>
    </message>
    <message>
        <source>Not on screen any more, as the schedule is edited.</source>
        <translation>По редактируемому расписанию на экране больше не появится.</translation>
    </message>
    <message>
        <source>Never on screen, as the schedule in effect has it.</source>
        <translation>По действующему расписанию никогда не появляется на экране.</translation>
    </message>
    <message>
        <source>Never on screen, as the schedule is edited.</source>
        <translation>По редактируемому расписанию никогда не появляется на экране.</translation>
    </message>
    <message>
        <source>On screen now: task %1, plan %2.</source>
        <translation>Сейчас на экране: задание %1, план %2.</translation>
    </message>
    <message>
        <source>Next on screen: %1, task %2, plan %3.</source>
        <translation>Следующий раз на экране: %1, задание %2, план %3.</translation>
    </message>
    <message numerus="yes">
        <source>Entries become invalid in %n plans:</source>
        <translation>
            <numerusform>Записи станут недействительными в %n плане:</numerusform>
            <numerusform>Записи станут недействительными в %n планах:</numerusform>
            <numerusform>Записи станут недействительными в %n планах:</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: nothing else is left of it</source>
        <translation>%1: больше в нём ничего не останется</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more plans.</source>
        <translation>
            <numerusform>… и ещё %n план.</numerusform>
            <numerusform>… и ещё %n плана.</numerusform>
            <numerusform>… и ещё %n планов.</numerusform>
        </translation>
    </message>
    <message>
        <source>every day</source>
        <translation>каждый день</translation>
    </message>
    <message>
        <source>%1–%2</source>
        <comment>from day to day</comment>
        <translation>%1–%2</translation>
    </message>
</context>
<context>
    <name>MoveWords</name>
    <message>
        <source>Plan %1: %2, %3 to %4</source>
        <translation>План %1: %2, %3–%4</translation>
    </message>
    <message>
        <source>New plan in task %1: %2, %3 to %4</source>
        <translation>Новый план в задании %1: %2, %3–%4</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>каждый день</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are valid on this day; that is the one in effect.</source>
        <translation>
            <numerusform>В этот день действует %n задание; применяется указанное.</numerusform>
            <numerusform>В этот день действуют %n задания; применяется указанное.</numerusform>
            <numerusform>В этот день действуют %n заданий; применяется указанное.</numerusform>
        </translation>
    </message>
    <message>
        <source>Its times cannot be read.</source>
        <translation>Его время не удаётся прочитать.</translation>
    </message>
    <message>
        <source>A plan cannot run over midnight.</source>
        <translation>План не может переходить через полночь.</translation>
    </message>
    <message>
        <source>A plan has to start before it ends.</source>
        <translation>План должен начинаться раньше, чем заканчиваться.</translation>
    </message>
    <message>
        <source>Its end follows from its programs; it can only be moved.</source>
        <translation>Его конец определяется программами; его можно только переместить.</translation>
    </message>
    <message>
        <source>It plays every day.</source>
        <translation>Он показывается каждый день.</translation>
    </message>
    <message>
        <source>It plays on that day already.</source>
        <translation>В этот день он уже показывается.</translation>
    </message>
    <message>
        <source>Its days cannot be read.</source>
        <translation>Его дни не удаётся прочитать.</translation>
    </message>
    <message>
        <source>Its task is not in effect on that day.</source>
        <translation>В этот день его задание не применяется.</translation>
    </message>
    <message>
        <source>Conflicts with plan %1, %2 to %3.</source>
        <translation>Пересекается с планом %1, %2–%3.</translation>
    </message>
    <message numerus="yes">
        <source>Conflicts with %n more.</source>
        <translation>
            <numerusform>Пересекается ещё с %n.</numerusform>
            <numerusform>Пересекается ещё с %n.</numerusform>
            <numerusform>Пересекается ещё с %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>No task is valid on this day.</source>
        <translation>В этот день не действует ни одно задание.</translation>
    </message>
    <message>
        <source>These programs cannot be planned here.</source>
        <translation>Эти программы нельзя запланировать здесь.</translation>
    </message>
    <message>
        <source>Copy the plans of %1…</source>
        <comment>a day</comment>
        <translation>Копировать планы за %1…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekEdits</name>
    <message>
        <source>The editor is not ready yet. Please try again.</source>
        <translation>Редактор ещё не готов. Попробуйте снова.</translation>
    </message>
    <message>
        <source>The schedule has changed meanwhile; nothing was moved.</source>
        <translation>Расписание тем временем изменилось; ничего не перемещено.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::CopyDayDialog</name>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Copy onto these days, whose own plans stay:</source>
        <translation>Копировать на эти дни; их собственные планы останутся:</translation>
    </message>
    <message>
        <source>%1 (no task is valid)</source>
        <comment>a day</comment>
        <translation>%1 (нет действующего задания)</translation>
    </message>
    <message>
        <source>There is no plan on that day.</source>
        <translation>В этот день нет планов.</translation>
    </message>
    <message numerus="yes">
        <source>%n plans play on that day. Choose the days to copy them onto.</source>
        <translation>
            <numerusform>В этот день показывается %n план. Выберите дни, на которые его копировать.</numerusform>
            <numerusform>В этот день показываются %n плана. Выберите дни, на которые их копировать.</numerusform>
            <numerusform>В этот день показываются %n планов. Выберите дни, на которые их копировать.</numerusform>
        </translation>
    </message>
    <message>
        <source>All of them play on these days already.</source>
        <translation>В эти дни все они уже показываются.</translation>
    </message>
    <message numerus="yes">
        <source>%n plans are copied.</source>
        <translation>
            <numerusform>Копируется %n план.</numerusform>
            <numerusform>Копируются %n плана.</numerusform>
            <numerusform>Копируются %n планов.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more plans will conflict then. Nothing is lost by that: change what you want afterwards.</source>
        <translation>
            <numerusform>Тогда в конфликте будет ещё %n план. Ничего не потеряется: измените потом, что хотите.</numerusform>
            <numerusform>Тогда в конфликте будут ещё %n плана. Ничего не потеряется: измените потом, что хотите.</numerusform>
            <numerusform>Тогда в конфликте будут ещё %n планов. Ничего не потеряется: измените потом, что хотите.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>VersionWords</name>
    <message>
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>What is in effect</source>
        <translation>Действующее</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>Сохранённое</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>new: %1</source>
        <translation>новых: %1</translation>
    </message>
    <message>
        <source>changed: %1</source>
        <translation>изменено: %1</translation>
    </message>
    <message>
        <source>deleted: %1</source>
        <translation>удалено: %1</translation>
    </message>
    <message>
        <source>nothing of note</source>
        <translation>ничего существенного</translation>
    </message>
    <message>
        <source>%1 (tasks %2)</source>
        <comment>what a save changed, and in which tasks</comment>
        <translation>%1 (задания %2)</translation>
    </message>
    <message>
        <source>version %1 restored: %2</source>
        <translation>восстановлена версия %1: %2</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>Различий нет.</translation>
    </message>
    <message numerus="yes">
        <source>%n differences</source>
        <translation>
            <numerusform>%n различие</numerusform>
            <numerusform>%n различия</numerusform>
            <numerusform>%n различий</numerusform>
        </translation>
    </message>
    <message>
        <source>Restore version %1? What is saved now stays as a version, so that it can be restored in turn.</source>
        <translation>Восстановить версию %1? Сохранённое сейчас останется версией, которую тоже можно восстановить.</translation>
    </message>
    <message numerus="yes">
        <source>%n of its programs are no longer in the catalog. Their entries will be invalid: %1</source>
        <translation>
            <numerusform>%n программы из неё больше нет в каталоге. Её записи станут недействительными: %1</numerusform>
            <numerusform>%n программ из неё больше нет в каталоге. Их записи станут недействительными: %1</numerusform>
            <numerusform>%n программ из неё больше нет в каталоге. Их записи станут недействительными: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The schedule in the editor has changes that are not saved.</source>
        <translation>В расписании в редакторе есть несохранённые изменения.</translation>
    </message>
    <message>
        <source>Version %1 – %2</source>
        <comment>a version, and when it was saved</comment>
        <translation>Версия %1 — %2</translation>
    </message>
    <message>
        <source>Version %1 – %2 – %3</source>
        <comment>a version, when it was saved, and its name</comment>
        <translation>Версия %1 — %2 — %3</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::VersionModel</name>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Сохранено</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Кем</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Изменения</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Примечание</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::DifferenceModel</name>
    <message>
        <source>Task</source>
        <translation>Задание</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>План</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Различие</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::StretchModel</name>
    <message>
        <source>From</source>
        <translation>С</translation>
    </message>
    <message>
        <source>To</source>
        <translation>До</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::ComparedWeeks</name>
    <message>
        <source>Comparing…</source>
        <translation>Сравнение…</translation>
    </message>
    <message>
        <source>Nothing differs on the screen in this week.</source>
        <translation>На этой неделе на экране различий нет.</translation>
    </message>
    <message numerus="yes">
        <source>%n stretches of this week differ on the screen:</source>
        <translation>
            <numerusform>На экране различается %n отрезок этой недели:</numerusform>
            <numerusform>На экране различаются %n отрезка этой недели:</numerusform>
            <numerusform>На экране различаются %n отрезков этой недели:</numerusform>
        </translation>
    </message>
    <message>
        <source>What differs on the screen</source>
        <translation>Различия на экране</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::ComparisonPanel</name>
    <message>
        <source>Comparing…</source>
        <translation>Сравнение…</translation>
    </message>
    <message>
        <source>Nothing is in effect.</source>
        <translation>Ничего не действует.</translation>
    </message>
    <message>
        <source>%1 → %2: %3</source>
        <comment>two states, and how much differs</comment>
        <translation>%1 → %2: %3</translation>
    </message>
    <message>
        <source>In words</source>
        <translation>Словами</translation>
    </message>
    <message>
        <source>On the screen</source>
        <translation>На экране</translation>
    </message>
    <message>
        <source>What differs</source>
        <translation>Различия</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::VersionNameDialog</name>
    <message>
        <source>Name</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Примечание</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::VersionsWindow</name>
    <message>
        <source>Versions</source>
        <translation>Версии</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Чтение…</translation>
    </message>
    <message>
        <source>No versions are kept yet.</source>
        <translation>Версий пока нет.</translation>
    </message>
    <message>
        <source>Name and note…</source>
        <translation>Название и примечание…</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>Восстановить…</translation>
    </message>
    <message>
        <source>Write to a file…</source>
        <translation>Записать в файл…</translation>
    </message>
    <message>
        <source>Compared with</source>
        <translation>Сравнить с</translation>
    </message>
    <message>
        <source>The other way round</source>
        <translation>Наоборот</translation>
    </message>
    <message>
        <source>Write the version to a file</source>
        <translation>Записать версию в файл</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>Расписания (*.json)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>Записано в %1.</translation>
    </message>
    <message>
        <source>Save, then restore</source>
        <translation>Сохранить и восстановить</translation>
    </message>
    <message>
        <source>Restore without saving</source>
        <translation>Восстановить без сохранения</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProgramPreview</name>
    <message>
        <source>%1 – Preview</source>
        <translation>%1 – Предпросмотр</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Позиция</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>position and length</comment>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>The file is not found.</source>
        <translation>Файл не найден.</translation>
    </message>
    <message>
        <source>Sound has no picture.</source>
        <translation>У звука нет изображения.</translation>
    </message>
    <message>
        <source>A live source is seen on the screens alone.</source>
        <translation>Прямой эфир виден только на экранах.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Чтение…</translation>
    </message>
    <message>
        <source>It has no picture that can be read.</source>
        <translation>Нет изображения, которое можно прочитать.</translation>
    </message>
</context>
<context>
    <name>KeyTable</name>
    <message>
        <source>Main window</source>
        <translation>Главное окно</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Редактор</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Неделя</translation>
    </message>
    <message>
        <source>Go to the next task</source>
        <translation>К следующему заданию</translation>
    </message>
    <message>
        <source>Go to the task before</source>
        <translation>К предыдущему заданию</translation>
    </message>
    <message>
        <source>Fold or open the task</source>
        <translation>Свернуть или раскрыть задание</translation>
    </message>
    <message>
        <source>Add a task</source>
        <translation>Добавить задание</translation>
    </message>
    <message>
        <source>Copy the task</source>
        <translation>Копировать задание</translation>
    </message>
    <message>
        <source>Delete the task</source>
        <translation>Удалить задание</translation>
    </message>
    <message>
        <source>Add a plan</source>
        <translation>Добавить план</translation>
    </message>
    <message>
        <source>Copy the plan</source>
        <translation>Копировать план</translation>
    </message>
    <message>
        <source>Delete the plan</source>
        <translation>Удалить план</translation>
    </message>
    <message>
        <source>Choose the programs of the plan</source>
        <translation>Выбрать программы плана</translation>
    </message>
    <message>
        <source>Save and close</source>
        <translation>Сохранить и закрыть</translation>
    </message>
    <message>
        <source>Save and start</source>
        <translation>Сохранить и запустить</translation>
    </message>
    <message>
        <source>Close without saving</source>
        <translation>Закрыть без сохранения</translation>
    </message>
    <message>
        <source>Select another plan</source>
        <translation>Выбрать другой план</translation>
    </message>
    <message>
        <source>Open the selected plan in the editor</source>
        <translation>Открыть выбранный план в редакторе</translation>
    </message>
    <message>
        <source>Say what is on screen then, and why</source>
        <translation>Сообщить, что тогда на экране и почему</translation>
    </message>
    <message>
        <source>Move the plan by a quarter of an hour</source>
        <translation>Сместить план на четверть часа</translation>
    </message>
    <message>
        <source>Move the plan to another day</source>
        <translation>Переместить план на другой день</translation>
    </message>
    <message>
        <source>Move the end of the plan</source>
        <translation>Сместить конец плана</translation>
    </message>
    <message>
        <source>Move the begin of the plan</source>
        <translation>Сместить начало плана</translation>
    </message>
    <message>
        <source>Give up dragging</source>
        <translation>Отменить перетаскивание</translation>
    </message>
    <message>
        <source>Copy the plans of the day</source>
        <translation>Копировать планы дня</translation>
    </message>
    <message>
        <source>Show another week</source>
        <translation>Показать другую неделю</translation>
    </message>
    <message>
        <source>Show the present moment</source>
        <translation>Показать текущий момент</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Масштаб</translation>
    </message>
    <message>
        <source>Fit the whole day</source>
        <translation>Вместить весь день</translation>
    </message>
    <message>
        <source>Programs of a plan</source>
        <translation>Программы одного плана</translation>
    </message>
    <message>
        <source>Go to another program</source>
        <translation>Перейти к другой программе</translation>
    </message>
    <message>
        <source>Tick the program, or untick it</source>
        <translation>Отметить программу или снять отметку</translation>
    </message>
    <message>
        <source>Tick all programs, or none</source>
        <translation>Отметить все программы или ни одной</translation>
    </message>
    <message>
        <source>Add the ticked programs, or this one</source>
        <translation>Добавить отмеченные программы, иначе эту</translation>
    </message>
    <message>
        <source>Take the ticked programs out, or this one</source>
        <translation>Удалить отмеченные программы, иначе эту</translation>
    </message>
    <message>
        <source>Move the program up or down</source>
        <translation>Сместить программу вверх или вниз</translation>
    </message>
    <message>
        <source>Change how often the program is played</source>
        <translation>Изменить число показов программы</translation>
    </message>
    <message>
        <source>Take over the list of programs</source>
        <translation>Принять список программ</translation>
    </message>
</context>
<context>
    <name>trel::desktop::KeySheet</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Сочетания клавиш</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>trel::desktop::GuideWindow</name>
    <message>
        <source>The guide</source>
        <translation>Руководство</translation>
    </message>
</context>
<context>
    <name>trel::desktop::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Руководство</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>Со&amp;четания клавиш</translation>
    </message>
    <message>
        <source>&amp;About this program</source>
        <translation>&amp;О программе</translation>
    </message>
    <message>
        <source>Schedules media programs on screens, edits the schedule and follows it.</source>
        <translation>Составляет и редактирует расписание медиапрограмм на экранах и следит за ним.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirLight</name>
    <message>
        <source>On air</source>
        <translation>В эфире</translation>
    </message>
    <message>
        <source>Off air</source>
        <translation>Не в эфире</translation>
    </message>
    <message>
        <source>A schedule is in effect.</source>
        <translation>Расписание действует.</translation>
    </message>
    <message>
        <source>No schedule is in effect.</source>
        <translation>Ни одно расписание не действует.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirState</name>
    <message>
        <source>Time of day: %1</source>
        <translation>Время: %1</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Не сохранено</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Сохранено: %1</translation>
    </message>
    <message>
        <source>Started: %1</source>
        <translation>Запущено: %1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirBar</name>
    <message>
        <source>Toolbar</source>
        <translation>Панель инструментов</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Search the catalog</source>
        <translation>Поиск в каталоге</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ComingPrograms</name>
    <message>
        <source>Programs to come</source>
        <translation>Следующие программы</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::StartAction</name>
    <message>
        <source>Start</source>
        <translation>Запустить</translation>
    </message>
    <message>
        <source>Put the schedule on air</source>
        <translation>Вывести расписание в эфир</translation>
    </message>
    <message>
        <source>Put the schedule on air? What is not saved is saved first.</source>
        <translation>Вывести расписание в эфир? Несохранённое сначала будет сохранено.</translation>
    </message>
    <message>
        <source>Open problems: %1</source>
        <translation>Нерешённых проблем: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Tasks %1 and %2 are valid on the same days. The schedule can be put on air once they are not.</source>
        <translation>Задания %1 и %2 действуют в одни и те же дни. Вывести расписание в эфир можно, когда это будет исправлено.</translation>
    </message>
    <message>
        <source>The schedule is on air.</source>
        <translation>Расписание в эфире.</translation>
    </message>
    <message>
        <source>The schedule is on air. Open problems: %1</source>
        <translation>Расписание в эфире. Нерешённых проблем: %1</translation>
    </message>
</context>
<context>
    <name>DroppedMedia</name>
    <message>
        <source>None of this can be imported.</source>
        <translation>Ничего из этого импортировать нельзя.</translation>
    </message>
    <message numerus="yes">
        <source>%n files or folders</source>
        <translation>
            <numerusform>%n файл или папка</numerusform>
            <numerusform>%n файла или папки</numerusform>
            <numerusform>%n файлов или папок</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n addresses</source>
        <translation>
            <numerusform>%n адрес</numerusform>
            <numerusform>%n адреса</numerusform>
            <numerusform>%n адресов</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>files, and addresses</comment>
        <translation>%1 и %2</translation>
    </message>
    <message>
        <source>Import %1</source>
        <comment>files, or addresses, or both</comment>
        <translation>Импорт: %1</translation>
    </message>
    <message numerus="yes">
        <source>Import %1; %n cannot be imported</source>
        <comment>files, or addresses, or both</comment>
        <translation>
            <numerusform>Импорт: %1; %n нельзя импортировать</numerusform>
            <numerusform>Импорт: %1; %n нельзя импортировать</numerusform>
            <numerusform>Импорт: %1; %n нельзя импортировать</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MediaFilters</name>
    <message>
        <source>All media</source>
        <translation>Все медиафайлы</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Изображения</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Все файлы (*)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ScreenNews</name>
    <message>
        <source>Cut in: %1</source>
        <translation>Вставка: %1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekMenu</name>
    <message>
        <source>&amp;Week</source>
        <translation>&amp;Неделя</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>&amp;Сегодня</translation>
    </message>
    <message>
        <source>&amp;Previous week</source>
        <translation>&amp;Предыдущая неделя</translation>
    </message>
    <message>
        <source>&amp;Next week</source>
        <translation>С&amp;ледующая неделя</translation>
    </message>
    <message>
        <source>&amp;Choose a day…</source>
        <translation>&amp;Выбрать день…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::DayDrag</name>
    <message>
        <source>Drag a day onto another one to copy its plans there.</source>
        <translation>Перетащите день на другой, чтобы скопировать туда его планы.</translation>
    </message>
    <message>
        <source>Copy the plans of %1 onto %2</source>
        <comment>two days</comment>
        <translation>Копировать планы: %1 → %2</translation>
    </message>
</context>
<context>
    <name>trel::desktop::place::AddressDialog</name>
    <message>
        <source>Open from a server</source>
        <translation>Открыть на сервере</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message>
        <source>Where the server asks for a password, it is read from the password file of the server's programs (~/.pgpass).</source>
        <translation>Если сервер запрашивает пароль, он читается из файла паролей программ сервера (~/.pgpass).</translation>
    </message>
</context>
<context>
    <name>trel::desktop::players::PlayersDock</name>
    <message>
        <source>Players</source>
        <translation>Плееры</translation>
    </message>
    <message>
        <source>Pla&amp;yers</source>
        <translation>Пл&amp;ееры</translation>
    </message>
    <message>
        <source>No player follows this database. Start schedule-player with it where the screen is.</source>
        <translation>Ни один плеер не следует этой базе данных. Запустите с ней schedule-player на компьютере у экрана.</translation>
    </message>
    <message>
        <source>Show what the players show</source>
        <translation>Показать, что показывают плееры</translation>
    </message>
</context>
<context>
    <name>trel::desktop::players::PlayerModel</name>
    <message>
        <source>Screen</source>
        <translation>Экран</translation>
    </message>
    <message>
        <source>Shows</source>
        <translation>Показывает</translation>
    </message>
    <message>
        <source>Heard</source>
        <comment>when a player told of itself</comment>
        <translation>Отклик</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>Сбои</translation>
    </message>
</context>
<context>
    <name>PlayerWords</name>
    <message>
        <source>Stands still in: %1</source>
        <translation>Остановился на: %1</translation>
    </message>
    <message>
        <source>Has no picture for: %1</source>
        <translation>Нет изображения для: %1</translation>
    </message>
    <message>
        <source>Not since %1</source>
        <comment>a moment</comment>
        <translation>Нет с %1</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no faults</comment>
        <translation>Нет</translation>
    </message>
    <message>
        <source>%1, the last at %2: %3</source>
        <comment>a number, a moment, a sentence</comment>
        <translation>%1, последний в %2: %3</translation>
    </message>
    <message>
        <source>Players: %1</source>
        <translation>Плееры: %1</translation>
    </message>
    <message>
        <source>Players: %1, silent: %2</source>
        <translation>Плееры: %1, молчат: %2</translation>
    </message>
</context>
<context>
    <name>MergeWords</name>
    <message numerus="yes">
        <source>%n tasks were changed at both desks: if you merge, you choose for each of them which one stays. Everything else of both is kept.</source>
        <translation>
            <numerusform>%n задание изменено на обоих рабочих местах: при объединении вы выбираете, какое останется. Всё остальное с обоих мест сохраняется.</numerusform>
            <numerusform>%n задания изменены на обоих рабочих местах: при объединении вы для каждого выбираете, какое останется. Всё остальное с обоих мест сохраняется.</numerusform>
            <numerusform>%n заданий изменено на обоих рабочих местах: при объединении вы для каждого выбираете, какое останется. Всё остальное с обоих мест сохраняется.</numerusform>
        </translation>
    </message>
    <message>
        <source>No task was changed at both desks: what both have changed can be saved together.</source>
        <translation>Ни одно задание не изменено на обоих рабочих местах: изменения с обоих можно сохранить вместе.</translation>
    </message>
    <message>
        <source>Merge…</source>
        <translation>Объединить…</translation>
    </message>
    <message>
        <source>Merged, your new task %1 becomes task %2: another task %1 was added there.</source>
        <translation>При объединении ваше новое задание %1 станет заданием %2: там добавлено другое задание %1.</translation>
    </message>
    <message>
        <source>Merge and save</source>
        <translation>Объединить и сохранить</translation>
    </message>
    <message>
        <source>Merge and go on editing</source>
        <translation>Объединить и править дальше</translation>
    </message>
    <message>
        <source>Merged, tasks %1 and %2 would be valid on the same days. That cannot be saved: they stay in the editor until you have changed their dates.</source>
        <translation>При объединении задания %1 и %2 действовали бы в одни и те же дни. Так сохранить нельзя: они останутся в редакторе, пока вы не измените их даты.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::merge::ConflictsDialog</name>
    <message>
        <source>These tasks were changed here and at the other desk. Choose for each of them which one stays.</source>
        <translation>Эти задания изменены здесь и на другом рабочем месте. Выберите для каждого, какое останется.</translation>
    </message>
    <message>
        <source>Mine, as it is edited here</source>
        <translation>Моё, как изменено здесь</translation>
    </message>
    <message>
        <source>Theirs, as it was saved there</source>
        <translation>Чужое, как сохранено там</translation>
    </message>
    <message>
        <source>Tasks that were changed at both desks</source>
        <translation>Задания, изменённые на обоих рабочих местах</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>Задание</translation>
    </message>
    <message>
        <source>What stays</source>
        <translation>Что останется</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>not chosen yet</source>
        <translation>ещё не выбрано</translation>
    </message>
    <message>
        <source>mine</source>
        <translation>моё</translation>
    </message>
    <message>
        <source>theirs</source>
        <translation>чужое</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are still to be chosen.</source>
        <translation>
            <numerusform>Осталось выбрать %n задание.</numerusform>
            <numerusform>Осталось выбрать %n задания.</numerusform>
            <numerusform>Осталось выбрать %n заданий.</numerusform>
        </translation>
    </message>
    <message>
        <source>Everything else of both is kept.</source>
        <translation>Всё остальное с обоих мест сохраняется.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::DeskNotice</name>
    <message>
        <source>Also edited at %1 since %2</source>
        <comment>a desk, and a time</comment>
        <translation>Правят также на %1 с %2</translation>
    </message>
    <message numerus="yes">
        <source>Also edited at %n other desks</source>
        <translation>
            <numerusform>Правят также ещё на %n рабочем месте</numerusform>
            <numerusform>Правят также ещё на %n рабочих местах</numerusform>
            <numerusform>Правят также ещё на %n рабочих местах</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: since %2, last changed at %3, tasks %4</source>
        <comment>a desk, times, and numbers</comment>
        <translation>%1: с %2, последнее изменение в %3, задания %4</translation>
    </message>
</context>
<context>
    <name>FileWords</name>
    <message numerus="yes">
        <source>%n programs in this file are not in the catalog. Their entries will be invalid: %1</source>
        <translation>
            <numerusform>%n программы из этого файла нет в каталоге. Её записи станут недействительными: %1</numerusform>
            <numerusform>%n программ из этого файла нет в каталоге. Их записи станут недействительными: %1</numerusform>
            <numerusform>%n программ из этого файла нет в каталоге. Их записи станут недействительными: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n programs in the catalog may have another content than in this file: %1</source>
        <translation>
            <numerusform>%n программа в каталоге может иметь другое содержимое, чем в этом файле: %1</numerusform>
            <numerusform>%n программы в каталоге могут иметь другое содержимое, чем в этом файле: %1</numerusform>
            <numerusform>%n программ в каталоге могут иметь другое содержимое, чем в этом файле: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n programs have another name in the catalog than in this file: %1</source>
        <translation>
            <numerusform>%n программа называется в каталоге иначе, чем в этом файле: %1</numerusform>
            <numerusform>%n программы называются в каталоге иначе, чем в этом файле: %1</numerusform>
            <numerusform>%n программ называются в каталоге иначе, чем в этом файле: %1</numerusform>
        </translation>
    </message>
</context>
</TS>
