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
        <source>Now and next</source>
        <translation>Jetzt und danach</translation>
    </message>
    <message>
        <source>Changes of the clocks</source>
        <translation>Zeitumstellungen</translation>
    </message>
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
        <source>Looking for files: %1 found</source>
        <translation>Dateien werden gesucht: %1 gefunden</translation>
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
<context>
    <name>ClockChangePanel</name>
    <message>
        <source>Changes of the clocks</source>
        <translation>Zeitumstellungen</translation>
    </message>
    <message>
        <source>No change of the clocks falls on a day of any task.</source>
        <translation>Auf keinen Tag eines Auftrags fällt eine Zeitumstellung.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is left out;</source>
        <translation>%1: %2–%3 entfällt;</translation>
    </message>
    <message>
        <source>%1: %2–%3 comes twice;</source>
        <translation>%1: %2–%3 kommt zweimal;</translation>
    </message>
    <message>
        <source>it touches no plan of task %1.</source>
        <translation>kein Plan von Auftrag %1 ist betroffen.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 does not play.</source>
        <translation>Plan %1 von Auftrag %2 läuft nicht.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 starts at %3 in the middle of its list.</source>
        <translation>Plan %1 von Auftrag %2 beginnt um %3 mitten in seiner Liste.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 is cut off at %3.</source>
        <translation>Plan %1 von Auftrag %2 bricht um %3 ab.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 skips this part of its list.</source>
        <translation>Plan %1 von Auftrag %2 überspringt diesen Teil seiner Liste.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 plays twice.</source>
        <translation>Plan %1 von Auftrag %2 läuft zweimal.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 starts twice at %3.</source>
        <translation>Plan %1 von Auftrag %2 beginnt zweimal um %3.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 ends twice at %3.</source>
        <translation>Plan %1 von Auftrag %2 endet zweimal um %3.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 repeats this part of its list.</source>
        <translation>Plan %1 von Auftrag %2 wiederholt diesen Teil seiner Liste.</translation>
    </message>
</context>
<context>
    <name>PreviewDock</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>&amp;Full screen preview</source>
        <translation>&amp;Vollbildvorschau</translation>
    </message>
</context>
<context>
    <name>PreviewScreen</name>
    <message>
        <source>Preview of the screen</source>
        <translation>Vorschau des Bildschirms</translation>
    </message>
</context>
<context>
    <name>NowNextPanel</name>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Danach</translation>
    </message>
    <message>
        <source>Cut in</source>
        <translation>Eingefügt</translation>
    </message>
    <message>
        <source>Now and next</source>
        <translation>Jetzt und danach</translation>
    </message>
    <message>
        <source>What the screen shows</source>
        <translation>Was der Bildschirm zeigt</translation>
    </message>
    <message>
        <source>Program on screen</source>
        <translation>Programm auf dem Bildschirm</translation>
    </message>
    <message>
        <source>Position in the program</source>
        <translation>Stelle im Programm</translation>
    </message>
    <message>
        <source>Why this is on screen</source>
        <translation>Warum das zu sehen ist</translation>
    </message>
    <message>
        <source>Program that comes next</source>
        <translation>Programm, das danach kommt</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>Nicht gestartet</translation>
    </message>
    <message>
        <source>%1 played</source>
        <translation>%1 gespielt</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>%1, until %2, %3 left</source>
        <translation>%1, bis %2, noch %3</translation>
    </message>
    <message>
        <source>Nothing else comes.</source>
        <translation>Es kommt nichts weiter.</translation>
    </message>
    <message>
        <source>at %1, in %2</source>
        <translation>um %1, in %2</translation>
    </message>
    <message>
        <source>on %1 at %2</source>
        <translation>am %1 um %2</translation>
    </message>
</context>
<context>
    <name>ScreenWords</name>
    <message>
        <source>Playing</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Frozen</source>
        <translation>Eingefroren</translation>
    </message>
    <message>
        <source>Last frame of %1</source>
        <translation>Letztes Bild von %1</translation>
    </message>
    <message>
        <source>Black screen</source>
        <translation>Schwarzer Bildschirm</translation>
    </message>
    <message>
        <source>Entry %1 of %2, play %3 of %4</source>
        <translation>Eintrag %1 von %2, Wiedergabe %3 von %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2</source>
        <translation>Auftrag %1, Plan %2</translation>
    </message>
    <message>
        <source>The start button of the schedule editor puts the saved schedule into effect.</source>
        <translation>Der Startknopf im Wiedergabeplan-Editor setzt den gespeicherten Plan in Kraft.</translation>
    </message>
    <message>
        <source>No plan has had the screen up to now.</source>
        <translation>Bisher hatte kein Plan den Bildschirm.</translation>
    </message>
    <message>
        <source>Of the plans for this time of day, plan %1 of task %2 comes first.</source>
        <translation>Von den Plänen für diese Uhrzeit kommt Plan %1 von Auftrag %2 zuerst.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 has the screen, but none of its programs can play.</source>
        <translation>Plan %1 von Auftrag %2 hat den Bildschirm, aber keines seiner Programme kann laufen.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 has the screen, but its list is to run less than once.</source>
        <translation>Plan %1 von Auftrag %2 hat den Bildschirm, aber seine Liste soll weniger als einmal laufen.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 has played its list as often as it should.</source>
        <translation>Plan %1 von Auftrag %2 hat seine Liste so oft gespielt, wie er soll.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is over, and no other has begun.</source>
        <translation>Plan %1 von Auftrag %2 ist zu Ende, und kein anderer hat begonnen.</translation>
    </message>
    <message>
        <source>It was cut in by hand, in the place of plan %1 of task %2.</source>
        <translation>Von Hand eingefügt, anstelle von Plan %1 von Auftrag %2.</translation>
    </message>
    <message>
        <source>What was cut in, in the place of plan %1 of task %2, has nothing more to play.</source>
        <translation>Das anstelle von Plan %1 von Auftrag %2 Eingefügte hat nichts mehr zu spielen.</translation>
    </message>
    <message>
        <source>Cut in: %1</source>
        <translation>Eingefügt: %1</translation>
    </message>
    <message>
        <source>Before: %1</source>
        <translation>Vorher: %1</translation>
    </message>
</context>
<context>
    <name>Week</name>
    <message>
        <source>On screen: %1, %2 into it</source>
        <translation>Auf dem Bildschirm: %1, Stelle %2</translation>
    </message>
    <message>
        <source>On screen: %1</source>
        <translation>Auf dem Bildschirm: %1</translation>
    </message>
    <message>
        <source>%1 to %2 is left out: the clocks go forward.</source>
        <translation>%1 bis %2 entfällt: Die Uhren werden vorgestellt.</translation>
    </message>
    <message>
        <source>%1 to %2 comes twice: the clocks go back.</source>
        <translation>%1 bis %2 kommt zweimal: Die Uhren werden zurückgestellt.</translation>
    </message>
    <message numerus="yes">
        <source>%n more plans are kept from the screen.</source>
        <translation>
            <numerusform>%n weiterer Plan kommt nicht auf den Bildschirm.</numerusform>
            <numerusform>%n weitere Pläne kommen nicht auf den Bildschirm.</numerusform>
        </translation>
    </message>
    <message>
        <source>Plan %1 stands above it and has the screen instead.</source>
        <translation>Plan %1 steht darüber und hat stattdessen den Bildschirm.</translation>
    </message>
    <message>
        <source>It collides with a plan above it.</source>
        <translation>Er überschneidet sich mit einem Plan darüber.</translation>
    </message>
    <message>
        <source>Its list is over at %1, before the plan ends.</source>
        <translation>Seine Liste ist um %1 zu Ende, vor dem Plan.</translation>
    </message>
    <message>
        <source>Plan %1, %2 to %3</source>
        <translation>Plan %1, %2 bis %3</translation>
    </message>
    <message>
        <source>No task is valid on this day.</source>
        <translation>An diesem Tag gilt kein Auftrag.</translation>
    </message>
    <message>
        <source>No task is valid</source>
        <translation>Kein Auftrag gilt</translation>
    </message>
    <message>
        <source>No task</source>
        <translation>Kein Auftrag</translation>
    </message>
    <message>
        <source>Task %1</source>
        <translation>Auftrag %1</translation>
    </message>
    <message>
        <source>Frozen: %1</source>
        <translation>Eingefroren: %1</translation>
    </message>
    <message>
        <source>Cut in: %1</source>
        <translation>Eingefügt: %1</translation>
    </message>
    <message>
        <source>Left out: clocks go forward</source>
        <translation>Entfällt: Uhren werden vorgestellt</translation>
    </message>
    <message>
        <source>Comes twice: clocks go back</source>
        <translation>Kommt zweimal: Uhren zurück</translation>
    </message>
    <message>
        <source>nothing to show</source>
        <translation>nichts zu zeigen</translation>
    </message>
</context>
<context>
    <name>WeekDock</name>
    <message>
        <source>Week</source>
        <translation>Woche</translation>
    </message>
</context>
<context>
    <name>week::WeekView</name>
    <message>
        <source>Week</source>
        <translation>Woche</translation>
    </message>
</context>
<context>
    <name>week::WeekPanel</name>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Whole day</source>
        <translation>Ganzer Tag</translation>
    </message>
    <message>
        <source>As edited</source>
        <translation>Wie bearbeitet</translation>
    </message>
    <message>
        <source>In effect</source>
        <translation>In Kraft</translation>
    </message>
    <message>
        <source>Week before</source>
        <translation>Woche davor</translation>
    </message>
    <message>
        <source>Week after</source>
        <translation>Woche danach</translation>
    </message>
    <message>
        <source>Hours less high</source>
        <translation>Stunden niedriger</translation>
    </message>
    <message>
        <source>Hours higher</source>
        <translation>Stunden höher</translation>
    </message>
    <message>
        <source>Which schedule is shown</source>
        <translation>Welcher Plan gezeigt wird</translation>
    </message>
</context>
<context>
    <name>PlanFaultText</name>
    <message>
        <source>Plan %1 never plays: none of its days is a day of the week.</source>
        <translation>Plan %1 läuft nie: Keiner seiner Tage ist ein Wochentag.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, is not a time in the form %3.</source>
        <translation>Plan %1 läuft nie: Sein Beginn „%2“ ist keine Uhrzeit in der Form %3.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its end, “%2”, is not a time in the form %3.</source>
        <translation>Plan %1 läuft nie: Sein Ende „%2“ ist keine Uhrzeit in der Form %3.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, and its end, “%3”, are not times in the form %4.</source>
        <translation>Plan %1 läuft nie: Sein Beginn „%2“ und sein Ende „%3“ sind keine Uhrzeiten in der Form %4.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its list is to run less than once.</source>
        <translation>Plan %1 läuft nie: Seine Liste soll weniger als einmal laufen.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it ends as it starts, at %2.</source>
        <translation>Plan %1 läuft nie: Er endet, wie er beginnt, um %2.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it starts at %2 and ends before, at %3.</source>
        <translation>Plan %1 läuft nie: Er beginnt um %2 und endet davor, um %3.</translation>
    </message>
</context>
<context>
    <name>ZoneError</name>
    <message>
        <source>The system knows no time zone of the name “%1”, so that the local time is not known.</source>
        <translation>Das System kennt keine Zeitzone mit dem Namen „%1“, daher ist die Ortszeit nicht bekannt.</translation>
    </message>
</context>
</TS>
