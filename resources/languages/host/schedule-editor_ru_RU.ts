<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>Demonstration</name>
    <message>
        <source>The demonstration could not be read: %1: %2</source>
        <translation>Не удалось прочитать демонстрацию: %1: %2</translation>
    </message>
    <message>
        <source>The demonstration&apos;s media could not be copied beside the database.</source>
        <translation>Не удалось скопировать медиафайлы демонстрации в папку базы данных.</translation>
    </message>
</context>
<context>
    <name>EditorMenus</name>
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
        <source>&amp;Read schedule from a file…</source>
        <translation>&amp;Прочитать расписание из файла…</translation>
    </message>
    <message>
        <source>&amp;Write schedule to a file…</source>
        <translation>&amp;Записать расписание в файл…</translation>
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
        <source>&amp;Remove from catalogue</source>
        <translation>&amp;Удалить из каталога</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Язык</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>No programs yet. Drop media files or folders here, or choose Import.</source>
        <translation>Программ пока нет. Перетащите сюда медиафайлы или папки либо выберите «Импорт».</translation>
    </message>
    <message>
        <source>Schedule editor</source>
        <translation>Редактор расписания</translation>
    </message>
    <message>
        <source>%1 – Schedule editor</source>
        <translation>%1 – Редактор расписания</translation>
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
        <source>Import files</source>
        <translation>Импорт файлов</translation>
    </message>
    <message>
        <source>Import folder</source>
        <translation>Импорт папки</translation>
    </message>
    <message>
        <source>Write the schedule to a file</source>
        <translation>Запись расписания в файл</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>Расписания (*.json)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>Записано в файл %1.</translation>
    </message>
    <message>
        <source>Read a schedule from a file</source>
        <translation>Чтение расписания из файла</translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation>Не удалось прочитать %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Replace the whole schedule by the %n tasks of this file?</source>
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
    <message numerus="yes">
        <source>Remove %n programs from the catalogue? Plans that use them will show their entries as invalid. The files stay.</source>
        <translation>
            <numerusform>Удалить %n программу из каталога? В использующих её планах она будет отмечена как недействительная. Файлы останутся на месте.</numerusform>
            <numerusform>Удалить %n программы из каталога? В использующих их планах они будут отмечены как недействительные. Файлы останутся на месте.</numerusform>
            <numerusform>Удалить %n программ из каталога? В использующих их планах они будут отмечены как недействительные. Файлы останутся на месте.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Importing</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <source>The import was cancelled; nothing was taken in.</source>
        <translation>Импорт отменён, ничего не добавлено.</translation>
    </message>
    <message>
        <source>Imported: %1 new, %2 updated.</source>
        <translation>Импорт завершён: добавлено %1, обновлено %2.</translation>
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
    <message>
        <source>The schedule has changes that are not saved.</source>
        <translation>В расписании есть несохранённые изменения.</translation>
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
        <source>Stay</source>
        <translation>Продолжить</translation>
    </message>
</context>
<context>
    <name>HostPrompts</name>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
</context>
<context>
    <name>ProgramTableModel</name>
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
        <translation>Эфир</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Другое</translation>
    </message>
    <message>
        <source>The file has gone: %1</source>
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
        <source>File</source>
        <translation>Файл</translation>
    </message>
</context>
<context>
    <name>SaveRescue</name>
    <message>
        <source>The schedule was not saved. %1

What shall become of your changes?</source>
        <translation>Расписание не сохранено. %1

Что сделать с вашими изменениями?</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Write to a file</source>
        <translation>Записать в файл</translation>
    </message>
    <message>
        <source>Give up</source>
        <translation>Отказаться</translation>
    </message>
    <message>
        <source>Write the schedule to a file</source>
        <translation>Запись расписания в файл</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>Расписания (*.json)</translation>
    </message>
</context>
</TS>
