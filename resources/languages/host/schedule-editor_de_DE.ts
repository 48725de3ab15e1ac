<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>Demonstration</name>
    <message>
        <source>The demonstration could not be read: %1: %2</source>
        <translation>Die Demonstration konnte nicht gelesen werden: %1: %2</translation>
    </message>
    <message>
        <source>The demonstration&apos;s media could not be copied beside the database.</source>
        <translation>Die Medien der Demonstration konnten nicht neben die Datenbank kopiert werden.</translation>
    </message>
</context>
<context>
    <name>EditorMenus</name>
    <message>
        <source>&amp;Schedule</source>
        <translation>&amp;Wiedergabeplan</translation>
    </message>
    <message>
        <source>&amp;Edit schedule</source>
        <translation>Wiedergabeplan &amp;bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Open database…</source>
        <translation>Datenbank ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>&amp;Read schedule from a file…</source>
        <translation>Wiedergabeplan aus Datei &amp;lesen…</translation>
    </message>
    <message>
        <source>&amp;Write schedule to a file…</source>
        <translation>Wiedergabeplan in Datei &amp;schreiben…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Dark theme</source>
        <translation>&amp;Dunkles Design</translation>
    </message>
    <message>
        <source>&amp;Light theme</source>
        <translation>&amp;Helles Design</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>B&amp;eenden</translation>
    </message>
    <message>
        <source>&amp;Programs</source>
        <translation>&amp;Programme</translation>
    </message>
    <message>
        <source>&amp;Import files…</source>
        <translation>Dateien &amp;importieren…</translation>
    </message>
    <message>
        <source>Import &amp;folder…</source>
        <translation>&amp;Ordner importieren…</translation>
    </message>
    <message>
        <source>&amp;Remove from catalogue</source>
        <translation>Aus dem &amp;Katalog entfernen</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>No programs yet. Drop media files or folders here, or choose Import.</source>
        <translation>Noch keine Programme. Ziehen Sie Mediendateien oder Ordner hierher oder wählen Sie „Importieren“.</translation>
    </message>
    <message>
        <source>Schedule editor</source>
        <translation>Wiedergabeplan-Editor</translation>
    </message>
    <message>
        <source>%1 – Schedule editor</source>
        <translation>%1 – Wiedergabeplan-Editor</translation>
    </message>
    <message>
        <source>Open database</source>
        <translation>Datenbank öffnen</translation>
    </message>
    <message>
        <source>Schedules (*.db *.sqlite);;All files (*)</source>
        <translation>Wiedergabepläne (*.db *.sqlite);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Import files</source>
        <translation>Dateien importieren</translation>
    </message>
    <message>
        <source>Import folder</source>
        <translation>Ordner importieren</translation>
    </message>
    <message>
        <source>Write the schedule to a file</source>
        <translation>Wiedergabeplan in eine Datei schreiben</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>Wiedergabepläne (*.json)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>In %1 geschrieben.</translation>
    </message>
    <message>
        <source>Read a schedule from a file</source>
        <translation>Wiedergabeplan aus einer Datei lesen</translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation>%1 konnte nicht gelesen werden: %2</translation>
    </message>
    <message numerus="yes">
        <source>Replace the whole schedule by the %n tasks of this file?</source>
        <translation>
            <numerusform>Diese Datei enthält %n Auftrag. Den gesamten Wiedergabeplan dadurch ersetzen?</numerusform>
            <numerusform>Diese Datei enthält %n Aufträge. Den gesamten Wiedergabeplan dadurch ersetzen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n programs from the catalogue? Plans that use them will show their entries as invalid. The files stay.</source>
        <translation>
            <numerusform>Dieses Programm aus dem Katalog entfernen? Pläne, die es verwenden, zeigen ihre Einträge dann als ungültig an. Die Datei bleibt erhalten.</numerusform>
            <numerusform>%n Programme aus dem Katalog entfernen? Pläne, die sie verwenden, zeigen ihre Einträge dann als ungültig an. Die Dateien bleiben erhalten.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Importing</source>
        <translation>Import läuft</translation>
    </message>
    <message>
        <source>The import was cancelled; nothing was taken in.</source>
        <translation>Der Import wurde abgebrochen; es wurde nichts übernommen.</translation>
    </message>
    <message>
        <source>Imported: %1 new, %2 updated.</source>
        <translation>Importiert: %1 neu, %2 aktualisiert.</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more.</source>
        <translation>
            <numerusform>… und %n weitere.</numerusform>
            <numerusform>… und %n weitere.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some files could not be imported:</source>
        <translation>Einige Dateien konnten nicht importiert werden:</translation>
    </message>
    <message>
        <source>The schedule has changes that are not saved.</source>
        <translation>Der Wiedergabeplan enthält ungespeicherte Änderungen.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Weiter bearbeiten</translation>
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
        <translation>Video</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstiges</translation>
    </message>
    <message>
        <source>The file has gone: %1</source>
        <translation>Die Datei ist nicht mehr vorhanden: %1</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
</context>
<context>
    <name>SaveRescue</name>
    <message>
        <source>The schedule was not saved. %1

What shall become of your changes?</source>
        <translation>Der Wiedergabeplan wurde nicht gespeichert. %1

Was soll mit Ihren Änderungen geschehen?</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Write to a file</source>
        <translation>In Datei schreiben</translation>
    </message>
    <message>
        <source>Give up</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Write the schedule to a file</source>
        <translation>Wiedergabeplan in eine Datei schreiben</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>Wiedergabepläne (*.json)</translation>
    </message>
</context>
</TS>
