<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>Demonstration</name>
    <message>
        <source>The demonstration could not be read: %1: %2</source>
        <translation>Die Demo konnte nicht gelesen werden: %1: %2</translation>
    </message>
    <message>
        <source>The demonstration media could not be copied to the database folder.</source>
        <translation>Die Medien der Demo konnten nicht in den Ordner der Datenbank kopiert werden.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EditorMenus</name>
    <message>
        <source>Hi&amp;gh contrast</source>
        <translation>Hoher Kon&amp;trast</translation>
    </message>
    <message>
        <source>&amp;As-run of a day…</source>
        <translation>&amp;Sendeprotokoll eines Tages…</translation>
    </message>
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
        <source>Open &amp;from a server…</source>
        <translation>Vo&amp;m Server öffnen…</translation>
    </message>
    <message>
        <source>&amp;Read schedule from a file…</source>
        <translation>Wiedergabeplan aus Datei &amp;laden…</translation>
    </message>
    <message>
        <source>&amp;Write schedule to a file…</source>
        <translation>Wiedergabeplan in Datei &amp;speichern…</translation>
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
        <source>&amp;Remove from catalog</source>
        <translation>Aus dem &amp;Katalog entfernen</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>S&amp;kip to the next play</source>
        <translation>Zur &amp;nächsten Wiedergabe springen</translation>
    </message>
    <message>
        <source>&amp;Cancel what is cut in</source>
        <translation>Einspielung &amp;abbrechen</translation>
    </message>
    <message>
        <source>S&amp;top the schedule…</source>
        <translation>Wiedergabeplan s&amp;toppen…</translation>
    </message>
    <message>
        <source>&amp;Bring back what was canceled</source>
        <translation>&amp;Verworfenes zurückholen</translation>
    </message>
    <message>
        <source>&amp;Where used…</source>
        <translation>&amp;Wo verwendet…</translation>
    </message>
    <message>
        <source>&amp;Versions…</source>
        <translation>Vers&amp;ionen…</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>&amp;New database…</source>
        <translation>Neue &amp;Datenbank…</translation>
    </message>
    <message>
        <source>O&amp;pen recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>St&amp;art the schedule…</source>
        <translation>Wieder&amp;gabeplan starten…</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EditorWindow</name>
    <message>
        <source>Import: %1 percent</source>
        <translation>Import: %1 Prozent</translation>
    </message>
    <message>
        <source>Now and next</source>
        <translation>Jetzt und danach</translation>
    </message>
    <message>
        <source>Clock changes</source>
        <translation>Zeitumstellungen</translation>
    </message>
    <message>
        <source>&amp;Now and next</source>
        <translation>&amp;Jetzt und danach</translation>
    </message>
    <message>
        <source>&amp;Clock changes</source>
        <translation>&amp;Zeitumstellungen</translation>
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
        <source>Write the schedule to a file</source>
        <translation>Wiedergabeplan in einer Datei speichern</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>Wiedergabepläne (*.json)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>In %1 gespeichert.</translation>
    </message>
    <message>
        <source>Read a schedule from a file</source>
        <translation>Wiedergabeplan aus einer Datei laden</translation>
    </message>
    <message numerus="yes">
        <source>Replace the whole schedule with the %n tasks in this file?</source>
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
    <message>
        <source>Changes in the editor that are not saved go with it (tasks %1). Undo brings them back.</source>
        <translation>Nicht gespeicherte Änderungen im Editor werden mit ersetzt (Aufträge %1). „Rückgängig“ holt sie zurück.</translation>
    </message>
    <message>
        <source>Save, then replace</source>
        <translation>Speichern, dann ersetzen</translation>
    </message>
    <message>
        <source>Replace without saving</source>
        <translation>Ohne Speichern ersetzen</translation>
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
        <source>The schedule has changes that are not saved. As a draft they are offered when this database is opened again.

Close this question to keep editing.</source>
        <translation>Der Wiedergabeplan enthält ungespeicherte Änderungen. Als Entwurf werden sie angeboten, wenn diese Datenbank wieder geöffnet wird.

Schließen Sie diese Frage, um weiter zu bearbeiten.</translation>
    </message>
    <message>
        <source>Keep as draft</source>
        <translation>Als Entwurf behalten</translation>
    </message>
    <message>
        <source>Catalog</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>Catal&amp;og</source>
        <translation>&amp;Katalog</translation>
    </message>
    <message>
        <source>The change is in the editor now, where it can be saved.</source>
        <translation>Die Änderung steht jetzt im Editor und kann dort gespeichert werden.</translation>
    </message>
    <message>
        <source>New database</source>
        <translation>Neue Datenbank</translation>
    </message>
    <message>
        <source>The file %1 exists already. It is not written over.</source>
        <translation>Die Datei %1 gibt es schon. Sie wird nicht überschrieben.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::CataloguePanel</name>
    <message>
        <source>No programs yet. Drop media files or folders here, or choose “Import files”.</source>
        <translation>Noch keine Programme. Ziehen Sie Mediendateien oder Ordner hierher oder wählen Sie „Dateien importieren“.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>No program fits what is searched for.</source>
        <translation>Kein Programm passt zu dem, was gesucht wird.</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n programs from the catalog? The files are not deleted.</source>
        <translation>
            <numerusform>Dieses Programm aus dem Katalog entfernen? Die Datei bleibt erhalten.</numerusform>
            <numerusform>%n Programme aus dem Katalog entfernen? Die Dateien bleiben erhalten.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::CatalogueImport</name>
    <message>
        <source>Import files</source>
        <translation>Dateien importieren</translation>
    </message>
    <message>
        <source>Import folder</source>
        <translation>Ordner importieren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Importing</source>
        <translation>Import läuft</translation>
    </message>
    <message>
        <source>The import was canceled; nothing was imported.</source>
        <translation>Der Import wurde abgebrochen; es wurde nichts übernommen.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>file and reason</comment>
        <translation>%1: %2</translation>
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
    <message numerus="yes">
        <source>Looking for files: %n found</source>
        <translation>
            <numerusform>Dateien werden gesucht: %n gefunden</numerusform>
            <numerusform>Dateien werden gesucht: %n gefunden</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported: %1, %2.</source>
        <translation>Importiert: %1, %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n new</source>
        <translation>
            <numerusform>%n neu</numerusform>
            <numerusform>%n neu</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n updated</source>
        <translation>
            <numerusform>%n aktualisiert</numerusform>
            <numerusform>%n aktualisiert</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HostPrompts</name>
    <message>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The file %1 exists already. Replace it?</source>
        <translation>Die Datei %1 gibt es schon. Soll sie ersetzt werden?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ProblemWords</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>Der Arbeitsspeicher reicht nicht aus.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>Your share of the disk is used up.</source>
        <translation>Ihr Speicherkontingent auf dem Datenträger ist aufgebraucht.</translation>
    </message>
    <message>
        <source>The system does not let this application write a larger file.</source>
        <translation>Das System lässt diese Anwendung keine größere Datei schreiben.</translation>
    </message>
    <message>
        <source>The file or its folder is read-only.</source>
        <translation>Die Datei oder ihr Ordner ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>It was opened for reading only.</source>
        <translation>Sie wurde nur zum Lesen geöffnet.</translation>
    </message>
    <message>
        <source>Reading it took too long.</source>
        <translation>Das Lesen hat zu lange gedauert.</translation>
    </message>
    <message numerus="yes">
        <source>A text in it is longer than %n bytes.</source>
        <translation>
            <numerusform>Ein Text darin ist länger als %n Byte.</numerusform>
            <numerusform>Ein Text darin ist länger als %n Byte.</numerusform>
        </translation>
    </message>
    <message>
        <source>The database reports error %1.</source>
        <translation>Die Datenbank meldet den Fehler %1.</translation>
    </message>
    <message>
        <source>The database reports error %1. %3</source>
        <translation>Die Datenbank meldet den Fehler %1. %3</translation>
    </message>
    <message>
        <source>The database has failed its own check.</source>
        <translation>Die Selbstprüfung der Datenbank ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>The disk reports a read or write error.</source>
        <translation>Der Datenträger meldet einen Lese- oder Schreibfehler.</translation>
    </message>
    <message>
        <source>Data that must be there is missing.</source>
        <translation>Notwendige Daten fehlen.</translation>
    </message>
    <message>
        <source>The database driver is not the one that this application was made for.</source>
        <translation>Der Datenbanktreiber passt nicht zu dieser Anwendung.</translation>
    </message>
    <message>
        <source>The file is missing or empty, but its log %1 is still there.</source>
        <translation>Die Datei fehlt oder ist leer, aber ihr Protokoll %1 ist noch vorhanden.</translation>
    </message>
    <message>
        <source>No file can be created there.</source>
        <translation>Dort kann keine Datei angelegt werden.</translation>
    </message>
    <message>
        <source>Its log %1 belongs to another copy of the file. Put back the file that it belongs to, or move the log away to go on without it.</source>
        <translation>Ihr Protokoll %1 gehört zu einer anderen Kopie der Datei. Legen Sie die zugehörige Datei zurück, oder verschieben Sie das Protokoll, um ohne es fortzufahren.</translation>
    </message>
    <message>
        <source>Its log has no index, and none can be created in a read-only folder. Copy both files to another folder.</source>
        <translation>Ihr Protokoll hat keinen Index, und in einem schreibgeschützten Ordner kann keiner angelegt werden. Kopieren Sie beide Dateien in einen anderen Ordner.</translation>
    </message>
    <message>
        <source>It was removed or replaced after it was opened.</source>
        <translation>Sie wurde nach dem Öffnen entfernt oder ersetzt.</translation>
    </message>
    <message numerus="yes">
        <source>The name or the path of a program is longer than %n bytes.</source>
        <translation>
            <numerusform>Name oder Pfad eines Programms ist länger als %n Byte.</numerusform>
            <numerusform>Name oder Pfad eines Programms ist länger als %n Byte.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n numbers for programs are used up.</source>
        <translation>
            <numerusform>Die einzige Programmnummer ist vergeben.</numerusform>
            <numerusform>Alle %n Programmnummern sind vergeben.</numerusform>
        </translation>
    </message>
    <message>
        <source>Its plans do not fit together.</source>
        <translation>Ihre Pläne passen nicht zusammen.</translation>
    </message>
    <message>
        <source>“%1” is missing.</source>
        <translation>„%1“ fehlt.</translation>
    </message>
    <message>
        <source>It contains “%1”, which does not belong there.</source>
        <translation>Sie enthält „%1“, das dort nicht hingehört.</translation>
    </message>
    <message>
        <source>“%1” has been changed.</source>
        <translation>„%1“ wurde verändert.</translation>
    </message>
    <message>
        <source>It does not say which state it is in.</source>
        <translation>Sie enthält keine Angabe zu ihrem Zustand.</translation>
    </message>
    <message>
        <source>It was created by an older version of this application. Set up the server again.</source>
        <translation>Es wurde mit einer älteren Version dieser Anwendung angelegt. Richten Sie den Server neu ein.</translation>
    </message>
    <message>
        <source>The address contains a password. Passwords belong in a password file.</source>
        <translation>Die Adresse enthält ein Passwort. Passwörter gehören in eine Passwortdatei.</translation>
    </message>
    <message>
        <source>The address of a schedule on a server has this form: %1</source>
        <translation>Die Adresse eines Wiedergabeplans auf einem Server hat diese Form: %1</translation>
    </message>
    <message>
        <source>The name of the schedule in the address is missing, too long or not readable.</source>
        <translation>Der Name des Wiedergabeplans in der Adresse fehlt, ist zu lang oder nicht lesbar.</translation>
    </message>
    <message>
        <source>The connection was lost before the server answered.</source>
        <translation>Die Verbindung brach ab, bevor der Server antwortete.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>Der Server antwortet nicht.</translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n tasks.</source>
        <translation>
            <numerusform>Es gibt mehr als %n Auftrag.</numerusform>
            <numerusform>Es gibt mehr als %n Aufträge.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n plans.</source>
        <translation>
            <numerusform>Es gibt mehr als %n Plan.</numerusform>
            <numerusform>Es gibt mehr als %n Pläne.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n entries.</source>
        <translation>
            <numerusform>Es gibt mehr als %n Eintrag.</numerusform>
            <numerusform>Es gibt mehr als %n Einträge.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n numbers in the lists of plans.</source>
        <translation>
            <numerusform>Die Listen der Pläne enthalten mehr als %n Zahl.</numerusform>
            <numerusform>Die Listen der Pläne enthalten mehr als %n Zahlen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n programs.</source>
        <translation>
            <numerusform>Es gibt mehr als %n Programm.</numerusform>
            <numerusform>Es gibt mehr als %n Programme.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A text of task %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>Ein Text von Auftrag %1 ist länger als %n Byte.</numerusform>
            <numerusform>Ein Text von Auftrag %1 ist länger als %n Byte.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>It is larger than %n bytes.</source>
        <translation>
            <numerusform>Sie ist größer als %n Byte.</numerusform>
            <numerusform>Sie ist größer als %n Byte.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n values.</source>
        <translation>
            <numerusform>Es gibt mehr als %n Wert.</numerusform>
            <numerusform>Es gibt mehr als %n Werte.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A name in line %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>Ein Name in Zeile %1 ist länger als %n Byte.</numerusform>
            <numerusform>Ein Name in Zeile %1 ist länger als %n Byte.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A text in line %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>Ein Text in Zeile %1 ist länger als %n Byte.</numerusform>
            <numerusform>Ein Text in Zeile %1 ist länger als %n Byte.</numerusform>
        </translation>
    </message>
    <message>
        <source>It is not valid JSON (line %1, column %2).</source>
        <translation>Sie enthält kein gültiges JSON (Zeile %1, Spalte %2).</translation>
    </message>
    <message>
        <source>“%1” is not a whole number.</source>
        <translation>„%1“ ist keine ganze Zahl.</translation>
    </message>
    <message>
        <source>“%1” is outside the permitted range.</source>
        <translation>„%1“ liegt außerhalb des zulässigen Bereichs.</translation>
    </message>
    <message>
        <source>Wrong kind of value: expected %1, found %2.</source>
        <translation>Falsche Art von Wert: erwartet %1, gefunden %2.</translation>
    </message>
    <message>
        <source>Wrong kind of value: expected %1 or a number, found %2.</source>
        <translation>Falsche Art von Wert: erwartet %1 oder eine Zahl, gefunden %2.</translation>
    </message>
    <message>
        <source>“%2” is not known here. Expected: %1 or a number.</source>
        <translation>„%2“ ist hier nicht bekannt. Erwartet: %1 oder eine Zahl.</translation>
    </message>
    <message>
        <source>The text is not valid Base64.</source>
        <translation>Der Text ist kein gültiges Base64.</translation>
    </message>
    <message numerus="yes">
        <source>The text is longer than %n bytes.</source>
        <translation>
            <numerusform>Der Text ist länger als %n Byte.</numerusform>
            <numerusform>Der Text ist länger als %n Byte.</numerusform>
        </translation>
    </message>
    <message>
        <source>The key %1 is not the ID of the task, which is %2.</source>
        <translation>Der Schlüssel %1 stimmt nicht mit der ID des Auftrags (%2) überein.</translation>
    </message>
    <message>
        <source>Another task already has the ID %1.</source>
        <translation>Ein anderer Auftrag hat bereits die ID %1.</translation>
    </message>
    <message>
        <source>The format is “%1” instead of “%2”.</source>
        <translation>Das Format ist „%1“ statt „%2“.</translation>
    </message>
    <message>
        <source>Version %1 is newer than version %2, the newest that this application reads.</source>
        <translation>Version %1 ist neuer als Version %2, die neueste, die diese Anwendung liest.</translation>
    </message>
    <message>
        <source>There is no version %1.</source>
        <translation>Eine Version %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>It is JSON of another kind, not a schedule.</source>
        <translation>Sie enthält JSON anderer Art, keinen Wiedergabeplan.</translation>
    </message>
    <message>
        <source>It is not a schedule: “format” is missing.</source>
        <translation>Sie ist kein Wiedergabeplan: „format“ fehlt.</translation>
    </message>
    <message>
        <source>“%1” is not known here.</source>
        <translation>„%1“ ist hier nicht bekannt.</translation>
    </message>
    <message>
        <source>“%1” occurs twice here.</source>
        <translation>„%1“ kommt hier zweimal vor.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>Es ist ein Ordner.</translation>
    </message>
    <message>
        <source>It is a pipe, not a file.</source>
        <translation>Es ist eine Pipe, keine Datei.</translation>
    </message>
    <message>
        <source>It is a socket, not a file.</source>
        <translation>Es ist ein Socket, keine Datei.</translation>
    </message>
    <message>
        <source>It is a device, not a file.</source>
        <translation>Es ist ein Gerät, keine Datei.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Es ist keine Datei.</translation>
    </message>
    <message>
        <source>Nothing comes through the pipe.</source>
        <translation>Durch die Pipe kommen keine Daten.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Die Datei existiert nicht.</translation>
    </message>
    <message>
        <source>You do not have permission to read it.</source>
        <translation>Sie haben keine Leseberechtigung.</translation>
    </message>
    <message>
        <source>It cannot be opened. %1</source>
        <translation>Sie lässt sich nicht öffnen. %1</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>Its name is not in UTF-8. Rename the file to import it.</source>
        <translation>Der Name ist nicht in UTF-8. Benennen Sie die Datei um, um sie zu importieren.</translation>
    </message>
    <message>
        <source>Addresses of this kind cannot be played.</source>
        <translation>Adressen dieser Art können nicht abgespielt werden.</translation>
    </message>
    <message>
        <source>It is a file on another computer. Copy it to this computer first.</source>
        <translation>Die Datei liegt auf einem anderen Computer. Kopieren Sie sie zuerst auf diesen.</translation>
    </message>
    <message>
        <source>It is not a media file, or it is damaged.</source>
        <translation>Es ist keine Mediendatei, oder sie ist beschädigt.</translation>
    </message>
    <message>
        <source>Files of this format cannot be imported.</source>
        <translation>Dateien dieses Formats können nicht importiert werden.</translation>
    </message>
    <message>
        <source>Its content cannot be read.</source>
        <translation>Ihr Inhalt kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The image in it cannot be read.</source>
        <translation>Das Bild darin kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>It contains neither picture nor sound.</source>
        <translation>Sie enthält weder Bild noch Ton.</translation>
    </message>
    <message>
        <source>Its length cannot be determined.</source>
        <translation>Ihre Länge lässt sich nicht ermitteln.</translation>
    </message>
    <message>
        <source>It could not be read in time.</source>
        <translation>Sie konnte nicht rechtzeitig gelesen werden.</translation>
    </message>
    <message>
        <source>The media reader crashed while reading it.</source>
        <translation>Das Medienleseprogramm ist beim Lesen abgestürzt.</translation>
    </message>
    <message>
        <source>The media reader gave no valid answer about it.</source>
        <translation>Das Medienleseprogramm hat keine gültige Antwort gegeben.</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader is missing: %1</source>
        <translation>Medien können nicht gelesen werden. Das Medienleseprogramm fehlt: %1</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 cannot be started. %2</source>
        <translation>Medien können nicht gelesen werden. Das Medienleseprogramm %1 lässt sich nicht starten. %2</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 does not answer.</source>
        <translation>Medien können nicht gelesen werden. Das Medienleseprogramm %1 antwortet nicht.</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 exits immediately.</source>
        <translation>Medien können nicht gelesen werden. Das Medienleseprogramm %1 beendet sich sofort.</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 is of another version.</source>
        <translation>Medien können nicht gelesen werden. Das Medienleseprogramm %1 gehört zu einer anderen Version.</translation>
    </message>
    <message>
        <source>Version %1 is damaged.</source>
        <translation>Version %1 ist beschädigt.</translation>
    </message>
    <message numerus="yes">
        <source>The name or the note of a version is longer than %n characters.</source>
        <translation>
            <numerusform>Der Name oder die Notiz einer Version ist länger als %n Zeichen.</numerusform>
            <numerusform>Der Name oder die Notiz einer Version ist länger als %n Zeichen.</numerusform>
        </translation>
    </message>
    <message>
        <source>The name or the note of a version contains a character that is not visible.</source>
        <translation>Der Name oder die Notiz einer Version enthält ein unsichtbares Zeichen.</translation>
    </message>
    <message>
        <source>No schedule file is open, so nothing can be saved.</source>
        <translation>Es ist keine Wiedergabeplan-Datei geöffnet, daher kann nichts gespeichert werden.</translation>
    </message>
    <message>
        <source>%1 cannot be opened. Its folder does not exist.</source>
        <translation>%1 lässt sich nicht öffnen. Der Ordner existiert nicht.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 existiert nicht.</translation>
    </message>
    <message>
        <source>%1 is not a schedule database.</source>
        <translation>%1 ist keine Wiedergabeplan-Datenbank.</translation>
    </message>
    <message>
        <source>%1 is a database of another application.</source>
        <translation>%1 ist eine Datenbank einer anderen Anwendung.</translation>
    </message>
    <message>
        <source>%1 was written by a newer version of this application.</source>
        <translation>%1 wurde von einer neueren Version dieser Anwendung geschrieben.</translation>
    </message>
    <message>
        <source>%1 is in use by another application. Try again when that application is closed.</source>
        <translation>%1 wird von einer anderen Anwendung verwendet. Versuchen Sie es erneut, wenn diese geschlossen ist.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>%1 kann nicht geschrieben werden. %2</translation>
    </message>
    <message>
        <source>%1 is damaged. %2</source>
        <translation>%1 ist beschädigt. %2</translation>
    </message>
    <message>
        <source>%1 has been saved by another application in the meantime. Saving now would overwrite those changes.</source>
        <translation>%1 wurde inzwischen von einer anderen Anwendung gespeichert. Speichern Sie jetzt, gehen diese Änderungen verloren.</translation>
    </message>
    <message>
        <source>%1 has no room for more programs. %2</source>
        <translation>%1 kann keine weiteren Programme aufnehmen. %2</translation>
    </message>
    <message>
        <source>%1 could not be read or written. %2</source>
        <translation>%1 konnte nicht gelesen oder geschrieben werden. %2</translation>
    </message>
    <message>
        <source>%1 is not a schedule database as this application creates it. %2</source>
        <translation>%1 ist keine Wiedergabeplan-Datenbank, wie diese Anwendung sie anlegt. %2</translation>
    </message>
    <message>
        <source>%1 exceeds what a schedule can hold. %2</source>
        <translation>%1 überschreitet den zulässigen Umfang eines Wiedergabeplans. %2</translation>
    </message>
    <message>
        <source>%1 may not have been written. %2 The change is not visible in the file now, but may be there after a restart of the computer. Write the schedule to another disk, and check the current one before you go on.</source>
        <translation>%1 wurde möglicherweise nicht geschrieben. %2 Die Änderung ist derzeit nicht in der Datei zu sehen, kann aber nach einem Neustart des Computers vorhanden sein. Speichern Sie den Wiedergabeplan auf einem anderen Datenträger, und prüfen Sie den bisherigen, bevor Sie fortfahren.</translation>
    </message>
    <message>
        <source>It is not certain whether %1 has been written. %2 Once the server can be reached again, see whether the change is there before you go on.</source>
        <translation>Es ist nicht sicher, ob %1 geschrieben wurde. %2 Sehen Sie nach, ob die Änderung vorhanden ist, sobald der Server wieder erreichbar ist, bevor Sie fortfahren.</translation>
    </message>
    <message>
        <source>%1 does not exist. A schedule on a server is set up with “schedulectl server-setup”.</source>
        <translation>%1 existiert nicht. Ein Wiedergabeplan auf einem Server wird mit „schedulectl server-setup“ eingerichtet.</translation>
    </message>
    <message>
        <source>You do not have permission.</source>
        <translation>Sie haben keine Berechtigung.</translation>
    </message>
    <message>
        <source>The file or a folder of its path does not exist.</source>
        <translation>Die Datei oder ein Ordner ihres Pfads existiert nicht.</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>Der Datenträger ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Der Name ist zu lang.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Es sind zu viele Dateien geöffnet.</translation>
    </message>
    <message>
        <source>The file is in use.</source>
        <translation>Die Datei wird gerade verwendet.</translation>
    </message>
    <message>
        <source>The system reports error %1.</source>
        <translation>Das System meldet den Fehler %1.</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>Wahr oder Falsch</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>list</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>object</source>
        <translation>Objekt</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>kein Wert</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>ganze Zahl</translation>
    </message>
    <message>
        <source>whole number as text</source>
        <translation>ganze Zahl als Text</translation>
    </message>
    <message>
        <source>program number that occurs once</source>
        <translation>Programmnummer, die nur einmal vorkommt</translation>
    </message>
    <message>
        <source>another number</source>
        <translation>eine andere Zahl</translation>
    </message>
    <message>
        <source>SHA-256 hash</source>
        <translation>SHA-256-Prüfsumme</translation>
    </message>
    <message>
        <source>another text</source>
        <translation>ein anderer Text</translation>
    </message>
    <message>
        <source>%1 could not be read. %2</source>
        <translation>%1 konnte nicht gelesen werden. %2</translation>
    </message>
    <message>
        <source>Line %1, %2: %3</source>
        <translation>Zeile %1, %2: %3</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProgramTableModel</name>
    <message>
        <source>File not found: %1</source>
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
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
</context>
<context>
    <name>trel::desktop::SaveRescue</name>
    <message>
        <source>The schedule was not saved. %1

What do you want to do with your changes?</source>
        <translation>Der Wiedergabeplan wurde nicht gespeichert. %1

Was soll mit Ihren Änderungen geschehen?</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Write to a file</source>
        <translation>In Datei speichern</translation>
    </message>
    <message>
        <source>Write the schedule to a file</source>
        <translation>Wiedergabeplan in einer Datei speichern</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>Wiedergabepläne (*.json)</translation>
    </message>
    <message>
        <source>Go on editing</source>
        <translation>Weiter bearbeiten</translation>
    </message>
    <message>
        <source>While you were editing, %1 was saved by another program. Your changes are not saved.</source>
        <translation>Während Sie bearbeitet haben, wurde %1 von einer anderen Anwendung gespeichert. Ihre Änderungen sind nicht gespeichert.</translation>
    </message>
    <message>
        <source>If you keep yours, what was saved there stays among the versions. If you take theirs, yours can be brought back until the next save.</source>
        <translation>Wenn Sie Ihre behalten, bleibt das dort Gespeicherte unter den Versionen. Wenn Sie die anderen übernehmen, lassen sich Ihre bis zum nächsten Speichern zurückholen.</translation>
    </message>
    <message>
        <source>What was changed there:</source>
        <translation>Was dort geändert wurde:</translation>
    </message>
    <message>
        <source>Nothing that you would see.</source>
        <translation>Nichts, was Sie sehen würden.</translation>
    </message>
    <message>
        <source>As it was saved there</source>
        <translation>Wie dort gespeichert</translation>
    </message>
    <message>
        <source>With your changes</source>
        <translation>Mit Ihren Änderungen</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>Meine behalten</translation>
    </message>
    <message>
        <source>Take theirs</source>
        <translation>Andere übernehmen</translation>
    </message>
    <message>
        <source>Write mine to a file</source>
        <translation>Meine in Datei speichern</translation>
    </message>
    <message>
        <source>While you were editing, %1 was saved by %2, on %3. Your changes are not saved.</source>
        <comment>the database, a program, and the time</comment>
        <translation>Während Sie bearbeitet haben, wurde %1 von %2 gespeichert, am %3. Ihre Änderungen sind nicht gespeichert.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ClockChangePanel</name>
    <message>
        <source>Clock changes</source>
        <translation>Zeitumstellungen</translation>
    </message>
    <message>
        <source>No clock change falls within the validity of any task.</source>
        <translation>In den Gültigkeitszeitraum der Aufträge fällt keine Zeitumstellung.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; no plan of task %4 is affected.</source>
        <translation>%1: %2–%3 entfällt; kein Plan von Auftrag %4 ist betroffen.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; no plan of task %4 is affected.</source>
        <translation>%1: %2–%3 gibt es zweimal; kein Plan von Auftrag %4 ist betroffen.</translation>
    </message>
</context>
<context>
    <name>ClockChangeText</name>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 does not play.</source>
        <translation>%1: %2–%3 entfällt; Plan %4 von Auftrag %5 läuft nicht.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 starts at %6 in the middle of its list.</source>
        <translation>%1: %2–%3 entfällt; Plan %4 von Auftrag %5 beginnt um %6 mitten in seiner Liste.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 is cut off at %6.</source>
        <translation>%1: %2–%3 entfällt; Plan %4 von Auftrag %5 bricht um %6 ab.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 skips this part of its list.</source>
        <translation>%1: %2–%3 entfällt; Plan %4 von Auftrag %5 überspringt diesen Teil seiner Liste.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 plays twice.</source>
        <translation>%1: %2–%3 gibt es zweimal; Plan %4 von Auftrag %5 läuft zweimal.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 starts twice at %6.</source>
        <translation>%1: %2–%3 gibt es zweimal; Plan %4 von Auftrag %5 beginnt zweimal um %6.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 ends twice at %6.</source>
        <translation>%1: %2–%3 gibt es zweimal; Plan %4 von Auftrag %5 endet zweimal um %6.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 repeats this part of its list.</source>
        <translation>%1: %2–%3 gibt es zweimal; Plan %4 von Auftrag %5 wiederholt diesen Teil seiner Liste.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::PreviewDock</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>Vo&amp;rschau</translation>
    </message>
    <message>
        <source>&amp;Full-screen preview</source>
        <translation>&amp;Vollbildvorschau</translation>
    </message>
</context>
<context>
    <name>trel::desktop::PreviewScreen</name>
    <message>
        <source>Preview of the screen</source>
        <translation>Vorschau des Bildschirms</translation>
    </message>
</context>
<context>
    <name>trel::desktop::NowNextPanel</name>
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
        <translation>Eingespielt</translation>
    </message>
    <message>
        <source>Now and next</source>
        <translation>Jetzt und danach</translation>
    </message>
    <message>
        <source>What the screen shows</source>
        <translation>Inhalt des Bildschirms</translation>
    </message>
    <message>
        <source>Program on screen</source>
        <translation>Programm auf dem Bildschirm</translation>
    </message>
    <message>
        <source>Position in the program</source>
        <translation>Position im Programm</translation>
    </message>
    <message>
        <source>Why this is on screen</source>
        <translation>Grund der Anzeige</translation>
    </message>
    <message>
        <source>Next program</source>
        <translation>Nächstes Programm</translation>
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
        <source>Nothing else is scheduled.</source>
        <translation>Danach kommt nichts mehr.</translation>
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
        <translation>Schwarzbild</translation>
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
        <source>Choose Start to put the saved schedule into effect.</source>
        <translation>„Starten“ setzt den gespeicherten Wiedergabeplan in Kraft.</translation>
    </message>
    <message>
        <source>No plan has started yet.</source>
        <translation>Bisher hat noch kein Plan begonnen.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is the first of the plans for this time.</source>
        <translation>Von den Plänen für diese Uhrzeit kommt Plan %1 von Auftrag %2 zuerst.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is due, but none of its programs can play.</source>
        <translation>Plan %1 von Auftrag %2 ist an der Reihe, aber keines seiner Programme lässt sich abspielen.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is due, but its list is to run less than once.</source>
        <translation>Plan %1 von Auftrag %2 ist an der Reihe, aber seine Liste soll weniger als einmal laufen.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 has played its list the set number of times.</source>
        <translation>Plan %1 von Auftrag %2 hat seine Liste so oft wie vorgesehen abgespielt.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is over, and no other has begun.</source>
        <translation>Plan %1 von Auftrag %2 ist zu Ende, und kein anderer hat begonnen.</translation>
    </message>
    <message>
        <source>Cut in manually in place of plan %1 of task %2.</source>
        <translation>Manuell eingespielt anstelle von Plan %1 von Auftrag %2.</translation>
    </message>
    <message>
        <source>What was cut in for plan %1 of task %2 has nothing left to play.</source>
        <translation>Die Einspielung anstelle von Plan %1 von Auftrag %2 hat nichts mehr abzuspielen.</translation>
    </message>
    <message>
        <source>Cut in: %1</source>
        <translation>Eingespielt: %1</translation>
    </message>
    <message>
        <source>Original list: %1</source>
        <translation>Vorher: %1</translation>
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
        <translation>%1, Auftrag %2. %3</translation>
    </message>
    <message>
        <source>On screen: %1, at %2</source>
        <translation>Auf dem Bildschirm: %1, bei %2</translation>
    </message>
    <message>
        <source>On screen: %1</source>
        <translation>Auf dem Bildschirm: %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>day and time of day</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 to %2 is skipped: the clocks go forward.</source>
        <translation>%1 bis %2 entfällt: Die Uhren werden vorgestellt.</translation>
    </message>
    <message>
        <source>%1 to %2 occurs twice: the clocks go back.</source>
        <translation>%1 bis %2 gibt es zweimal: Die Uhren werden zurückgestellt.</translation>
    </message>
    <message numerus="yes">
        <source>%n more plans do not reach the screen.</source>
        <translation>
            <numerusform>%n weiterer Plan kommt nicht auf den Bildschirm.</numerusform>
            <numerusform>%n weitere Pläne kommen nicht auf den Bildschirm.</numerusform>
        </translation>
    </message>
    <message>
        <source>Plan %1, above it, takes precedence.</source>
        <translation>Plan %1 steht darüber und hat Vorrang.</translation>
    </message>
    <message>
        <source>It conflicts with a plan above it.</source>
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
        <source>%1: %2</source>
        <comment>plan and its programs</comment>
        <translation>%1: %2</translation>
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
        <translation>Eingespielt: %1</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Entfällt</translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation>Doppelt</translation>
    </message>
    <message>
        <source>nothing to show</source>
        <translation>nichts zu zeigen</translation>
    </message>
    <message>
        <source>Not on screen</source>
        <translation>Nicht auf dem Bildschirm</translation>
    </message>
    <message>
        <source>In conflict</source>
        <translation>In Konflikt</translation>
    </message>
    <message>
        <source>Programs of the week</source>
        <translation>Programme der Woche</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekView</name>
    <message>
        <source>Week</source>
        <translation>Woche</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekPanel</name>
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
        <translation>Entwurf</translation>
    </message>
    <message>
        <source>In effect</source>
        <translation>In Kraft</translation>
    </message>
    <message>
        <source>Previous week</source>
        <translation>Vorherige Woche</translation>
    </message>
    <message>
        <source>Next week</source>
        <translation>Folgende Woche</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Schedule shown</source>
        <translation>Angezeigter Wiedergabeplan</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Vorheriger Monat</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Folgender Monat</translation>
    </message>
    <message>
        <source>Choose a day in a calendar</source>
        <translation>Einen Tag im Kalender wählen</translation>
    </message>
    <message>
        <source>%1. Choose a day in a calendar</source>
        <comment>days of a week</comment>
        <translation>%1. Einen Tag im Kalender wählen</translation>
    </message>
</context>
<context>
    <name>ProblemText</name>
    <message>
        <source>Task %1</source>
        <translation>Auftrag %1</translation>
    </message>
    <message>
        <source>Task %1, row %2</source>
        <translation>Auftrag %1, Zeile %2</translation>
    </message>
    <message>
        <source>The validity overlaps that of task %1 from %2 to %3.</source>
        <translation>Die Gültigkeit überschneidet sich von %2 bis %3 mit der von Auftrag %1.</translation>
    </message>
    <message>
        <source>The validity overlaps that of task %1.</source>
        <translation>Die Gültigkeit überschneidet sich mit der von Auftrag %1.</translation>
    </message>
    <message>
        <source>The task is never valid: “%1” to “%2” is not a period.</source>
        <translation>Der Auftrag gilt nie: „%1“ bis „%2“ ist kein Zeitraum.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: none of its days falls within the validity of the task.</source>
        <translation>Plan %1 läuft nie: Keiner seiner Tage liegt in der Gültigkeit des Auftrags.</translation>
    </message>
    <message>
        <source>Plan %1 is never on screen: earlier rows such as row %2 always come first.</source>
        <translation>Plan %1 ist nie auf dem Bildschirm: Frühere Zeilen wie Zeile %2 haben immer Vorrang.</translation>
    </message>
    <message>
        <source>Plan %1 is in conflict with plan %2 in row %3 from %4 on.</source>
        <translation>Plan %1 steht ab %4 im Konflikt mit Plan %2 in Zeile %3.</translation>
    </message>
    <message>
        <source>Plan %1 is in conflict with plan %2 in row %3, but on no date.</source>
        <translation>Plan %1 steht im Konflikt mit Plan %2 in Zeile %3, aber an keinem Datum.</translation>
    </message>
    <message>
        <source>No picture from %1 to %2, every day.</source>
        <translation>Kein Bild von %1 bis %2, täglich.</translation>
    </message>
    <message>
        <source>No picture from %1 to %2 on: %3.</source>
        <translation>Kein Bild von %1 bis %2 an: %3.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it would go on after midnight, until %2.</source>
        <translation>Plan %1 läuft nie: Er ginge über Mitternacht hinaus bis %2.</translation>
    </message>
    <message>
        <source>Plan %1 is cut off at midnight: it would go on until %2.</source>
        <translation>Plan %1 wird um Mitternacht abgeschnitten: Er ginge bis %2.</translation>
    </message>
    <message>
        <source>Plan %1 is cut off at midnight: it would go on for more than a day.</source>
        <translation>Plan %1 wird um Mitternacht abgeschnitten: Er ginge mehr als einen Tag weiter.</translation>
    </message>
    <message>
        <source>Invalid entries in plan %1: %2. The first is “%3”.</source>
        <translation>Ungültige Einträge in Plan %1: %2. Der erste ist „%3“.</translation>
    </message>
    <message>
        <source>Missing files in plan %1: %2. The first is “%3”.</source>
        <translation>Fehlende Dateien in Plan %1: %2. Die erste ist „%3“.</translation>
    </message>
    <message>
        <source>Entries without a length in plan %1: %2. The first is “%3”.</source>
        <translation>Einträge ohne Länge in Plan %1: %2. Der erste ist „%3“.</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is cut off at the end of the day.</source>
        <translation>In Plan %1 wird „%2“ am Ende des Tages abgeschnitten.</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is cut off at %3, when the plan ends.</source>
        <translation>In Plan %1 wird „%2“ um %3 abgeschnitten, wenn der Plan endet.</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is never reached: an entry before it does not end by itself.</source>
        <translation>In Plan %1 kommt „%2“ nie an die Reihe: Ein Eintrag davor endet nicht von selbst.</translation>
    </message>
    <message>
        <source>Plan %1 contains no programs.</source>
        <translation>Plan %1 enthält keine Programme.</translation>
    </message>
    <message>
        <source>Change the dates of one of the two tasks. Until then nothing can be saved.</source>
        <translation>Ändern Sie die Daten eines der beiden Aufträge. Bis dahin kann nichts gespeichert werden.</translation>
    </message>
    <message>
        <source>Choose a start date, and an end date that is not before it.</source>
        <translation>Wählen Sie ein Startdatum und ein Enddatum, das nicht davor liegt.</translation>
    </message>
    <message>
        <source>Correct the days and times of the plan.</source>
        <translation>Korrigieren Sie Tage und Zeiten des Plans.</translation>
    </message>
    <message>
        <source>Change the days or times of one of the plans.</source>
        <translation>Ändern Sie Tage oder Zeiten eines der Pläne.</translation>
    </message>
    <message>
        <source>Restore the files, or choose other programs.</source>
        <translation>Stellen Sie die Dateien wieder her, oder wählen Sie andere Programme.</translation>
    </message>
    <message>
        <source>Choose the programs of the plan anew.</source>
        <translation>Wählen Sie die Programme des Plans neu.</translation>
    </message>
    <message>
        <source>Split the plan in two, or let it end before midnight.</source>
        <translation>Teilen Sie den Plan, oder lassen Sie ihn vor Mitternacht enden.</translation>
    </message>
    <message>
        <source>Let the plan end before midnight.</source>
        <translation>Lassen Sie den Plan vor Mitternacht enden.</translation>
    </message>
    <message>
        <source>Let the plan end later, or play less.</source>
        <translation>Lassen Sie den Plan später enden, oder nehmen Sie weniger Programme auf.</translation>
    </message>
    <message>
        <source>Move the entry to the front, or into another plan.</source>
        <translation>Verschieben Sie den Eintrag nach vorn oder in einen anderen Plan.</translation>
    </message>
    <message>
        <source>Add a plan, or let the plan before it end with its last frame.</source>
        <translation>Fügen Sie einen Plan hinzu, oder lassen Sie das letzte Bild des Plans davor eingefroren.</translation>
    </message>
    <message>
        <source>Move the plan if that is not wanted.</source>
        <translation>Verschieben Sie den Plan, falls das nicht gewünscht ist.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemModel</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Stelle</translation>
    </message>
    <message>
        <source>As of</source>
        <translation>Ab</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Abhilfe</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemPanel</name>
    <message>
        <source>No problems.</source>
        <translation>Keine Probleme.</translation>
    </message>
    <message>
        <source>Go to the row</source>
        <translation>Zur Zeile</translation>
    </message>
    <message>
        <source>Split in two</source>
        <translation>Teilen</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemDock</name>
    <message>
        <source>No open problems</source>
        <translation>Keine offenen Probleme</translation>
    </message>
    <message numerus="yes">
        <source>%n open problems</source>
        <translation>
            <numerusform>%n offenes Problem</numerusform>
            <numerusform>%n offene Probleme</numerusform>
        </translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Pro&amp;blems</source>
        <translation>&amp;Probleme</translation>
    </message>
    <message>
        <source>Show what is wrong with the schedule</source>
        <translation>Zeigt, was am Wiedergabeplan nicht stimmt</translation>
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
        <source>Plan %1 never plays: it starts and ends at %2.</source>
        <translation>Plan %1 läuft nie: Beginn und Ende sind gleich (%2).</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it ends at %3, before it starts at %2.</source>
        <translation>Plan %1 läuft nie: Sein Ende (%3) liegt vor seinem Beginn (%2).</translation>
    </message>
</context>
<context>
    <name>ZoneError</name>
    <message>
        <source>The system knows no time zone of the name “%1”, so that the local time is not known.</source>
        <translation>Das System kennt keine Zeitzone mit dem Namen „%1“, daher ist die Ortszeit nicht bekannt.</translation>
    </message>
</context>
<context>
    <name>trel::widgets::TitleButton</name>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EffectActions</name>
    <message>
        <source>Stop the schedule that is in effect? The screen stays black until a schedule is started again.</source>
        <translation>Den Wiedergabeplan, der in Kraft ist, stoppen? Der Bildschirm bleibt schwarz, bis wieder ein Wiedergabeplan gestartet wird.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>EffectWords</name>
    <message>
        <source>In effect since %1 at %2 (save %3)</source>
        <translation>In Kraft seit dem %1 um %2 (Speicherung %3)</translation>
    </message>
    <message>
        <source>Started by %1.</source>
        <translation>Gestartet von %1.</translation>
    </message>
    <message numerus="yes">
        <source>What is saved differs in %n tasks: %1</source>
        <translation>
            <numerusform>Der gespeicherte Stand weicht in %n Auftrag ab: %1</numerusform>
            <numerusform>Der gespeicherte Stand weicht in %n Aufträgen ab: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>a program</comment>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>the last frame of “%1”</source>
        <translation>das letzte Bild von „%1“</translation>
    </message>
    <message>
        <source>a black screen</source>
        <translation>Schwarzbild</translation>
    </message>
    <message>
        <source>%1 comes after %2, at %3; %4 comes back at %5.</source>
        <translation>%1 kommt nach %2, um %3; um %5 kommt wieder %4.</translation>
    </message>
    <message>
        <source>%1 was cut off at %2; %3 comes at %4.</source>
        <translation>%1 wurde um %2 abgebrochen; um %4 kommt %3.</translation>
    </message>
    <message>
        <source>%1 was cut in at %2; %3 comes back at %4.</source>
        <translation>%1 wurde um %2 eingespielt; um %4 kommt wieder %3.</translation>
    </message>
    <message>
        <source>%1 comes after %2, at %3.</source>
        <translation>%1 kommt nach %2, um %3.</translation>
    </message>
    <message>
        <source>%1 was cut off at %2.</source>
        <translation>%1 wurde um %2 abgebrochen.</translation>
    </message>
    <message>
        <source>%1 was cut in at %2.</source>
        <translation>%1 wurde um %2 eingespielt.</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <comment>time and date</comment>
        <translation>%1 am %2</translation>
    </message>
    <message>
        <source>What is in effect could not be changed. %1</source>
        <translation>Was in Kraft ist, konnte nicht geändert werden. %1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::AsRunWindow</name>
    <message>
        <source>As-run</source>
        <translation>Sendeprotokoll</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Previous day</source>
        <translation>Voriger Tag</translation>
    </message>
    <message>
        <source>Next day</source>
        <translation>Nächster Tag</translation>
    </message>
    <message>
        <source>Only what was not as planned</source>
        <translation>Nur Abweichungen</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::AsRunModel</name>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Planned</source>
        <translation>Geplant</translation>
    </message>
    <message>
        <source>On screen</source>
        <translation>Auf dem Bildschirm</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Anmerkung</translation>
    </message>
</context>
<context>
    <name>AsRunText</name>
    <message>
        <source>Not known</source>
        <translation>Nicht bekannt</translation>
    </message>
    <message>
        <source>No record</source>
        <translation>Keine Aufzeichnung</translation>
    </message>
    <message>
        <source>No player</source>
        <translation>Kein Player</translation>
    </message>
    <message>
        <source>Stand-by picture</source>
        <translation>Ersatzbild</translation>
    </message>
    <message>
        <source>Last good frame of %1</source>
        <translation>Letztes gutes Bild von %1</translation>
    </message>
    <message>
        <source>What was on before</source>
        <translation>Was vorher lief</translation>
    </message>
    <message>
        <source>Cut off: the schedule was stopped</source>
        <translation>Unterbrochen: Wiedergabeplan beendet</translation>
    </message>
    <message>
        <source>Cut off: the player was ended</source>
        <translation>Unterbrochen: Player beendet</translation>
    </message>
    <message>
        <source>Cut off: the player was killed</source>
        <translation>Unterbrochen: Player abgebrochen</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Cut off: the clock was changed</source>
        <translation>Unterbrochen: Uhr verstellt</translation>
    </message>
    <message>
        <source>The player had been ended</source>
        <translation>Der Player war beendet</translation>
    </message>
    <message>
        <source>The player had been killed</source>
        <translation>Der Player war abgebrochen</translation>
    </message>
    <message>
        <source>The machine had stopped</source>
        <translation>Der Rechner war aus</translation>
    </message>
    <message>
        <source>The player had no schedule yet</source>
        <translation>Der Player hatte noch keinen Wiedergabeplan</translation>
    </message>
    <message>
        <source>The machine was asleep</source>
        <translation>Der Rechner schlief</translation>
    </message>
    <message>
        <source>The records could not be kept</source>
        <translation>Das Protokoll konnte nicht geführt werden</translation>
    </message>
    <message>
        <source>Recorded until %1.</source>
        <translation>Protokolliert bis %1.</translation>
    </message>
    <message>
        <source>Only the first %1 lines of the day are shown.</source>
        <translation>Nur die ersten %1 Zeilen des Tages werden gezeigt.</translation>
    </message>
    <message>
        <source>No record tells why</source>
        <translation>Keine Aufzeichnung sagt, warum</translation>
    </message>
    <message>
        <source>%1 s late</source>
        <translation>%1 s zu spät</translation>
    </message>
    <message>
        <source>The records cannot be read: %1</source>
        <translation>Das Protokoll kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>No player has recorded anything for this database.</source>
        <translation>Zu dieser Datenbank hat noch kein Player etwas protokolliert.</translation>
    </message>
    <message>
        <source>The records were changed, or some are missing. “schedulectl as-run --verify” names the place.</source>
        <translation>Das Protokoll wurde verändert oder ist lückenhaft. „schedulectl as-run --verify“ nennt die Stelle.</translation>
    </message>
    <message>
        <source>Not as planned, and no record tells why: %1</source>
        <translation>Abweichungen, die keine Aufzeichnung erklärt: %1</translation>
    </message>
    <message>
        <source>There is no record of this day.</source>
        <translation>Zu diesem Tag gibt es keine Aufzeichnung.</translation>
    </message>
    <message>
        <source>The screen was as planned, or a record tells why not.</source>
        <translation>Der Bildschirm zeigte das Geplante, oder eine Aufzeichnung sagt, warum nicht.</translation>
    </message>
    <message>
        <source>Cut off: something was cut in</source>
        <translation>Unterbrochen: etwas wurde eingespielt</translation>
    </message>
    <message>
        <source>Cut off: another schedule came</source>
        <translation>Unterbrochen: anderer Wiedergabeplan</translation>
    </message>
</context>
<context>
    <name>EditWords</name>
    <message>
        <source>Back to what is saved</source>
        <translation>Zurück zum gespeicherten Stand</translation>
    </message>
    <message>
        <source>Saved by another program: tasks %1</source>
        <translation>Von einer anderen Anwendung gespeichert: Aufträge %1</translation>
    </message>
    <message>
        <source>This takes back what another program has saved as well (tasks %1). Nothing is overwritten before you save, and what was saved there stays among the versions.</source>
        <translation>Damit wird auch zurückgenommen, was eine andere Anwendung gespeichert hat (Aufträge %1). Bis Sie speichern, wird nichts überschrieben, und das dort Gespeicherte bleibt unter den Versionen.</translation>
    </message>
    <message>
        <source>Take it back</source>
        <translation>Zurücknehmen</translation>
    </message>
    <message>
        <source>Leave it</source>
        <translation>So lassen</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks edited</source>
        <translation>
            <numerusform>%n Auftrag geändert</numerusform>
            <numerusform>%n Aufträge geändert</numerusform>
        </translation>
    </message>
    <message>
        <source>Task %1 added</source>
        <translation>Auftrag %1 hinzugefügt</translation>
    </message>
    <message>
        <source>Task %1 deleted</source>
        <translation>Auftrag %1 gelöscht</translation>
    </message>
    <message>
        <source>Task %1 edited</source>
        <translation>Auftrag %1 geändert</translation>
    </message>
    <message>
        <source>Task %1: first day %2 → %3</source>
        <translation>Auftrag %1: erster Tag %2 → %3</translation>
    </message>
    <message>
        <source>Task %1: last day %2 → %3</source>
        <translation>Auftrag %1: letzter Tag %2 → %3</translation>
    </message>
    <message>
        <source>Task %1, plan %2 added</source>
        <translation>Auftrag %1, Plan %2 hinzugefügt</translation>
    </message>
    <message>
        <source>Task %1, plan %2 deleted</source>
        <translation>Auftrag %1, Plan %2 gelöscht</translation>
    </message>
    <message>
        <source>Task %1, plan %2 edited</source>
        <translation>Auftrag %1, Plan %2 geändert</translation>
    </message>
    <message>
        <source>Task %1, plan %2: other programs</source>
        <translation>Auftrag %1, Plan %2: andere Programme</translation>
    </message>
    <message>
        <source>Task %1, plan %2: ends at a set time</source>
        <translation>Auftrag %1, Plan %2: endet zu fester Zeit</translation>
    </message>
    <message>
        <source>Task %1, plan %2: ends after a number of runs</source>
        <translation>Auftrag %1, Plan %2: endet nach einer Zahl von Durchläufen</translation>
    </message>
    <message>
        <source>Task %1, plan %2: start %3 → %4</source>
        <translation>Auftrag %1, Plan %2: Beginn %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: end %3 → %4</source>
        <translation>Auftrag %1, Plan %2: Ende %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: days %3 → %4</source>
        <translation>Auftrag %1, Plan %2: Tage %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: runs %3 → %4</source>
        <translation>Auftrag %1, Plan %2: Durchläufe %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: a black screen at the end</source>
        <translation>Auftrag %1, Plan %2: Schwarzbild am Ende</translation>
    </message>
    <message>
        <source>Task %1, plan %2: the last frame at the end</source>
        <translation>Auftrag %1, Plan %2: letztes Bild am Ende eingefroren</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>jeden Tag</translation>
    </message>
    <message>
        <source>Task %1, plan %2: %3 → %4</source>
        <translation>Auftrag %1, Plan %2: %3 → %4</translation>
    </message>
</context>
<context>
    <name>trel::desktop::undo::HistoryActions</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>&amp;Wiederherstellen</translation>
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
        <translation>Anfang</translation>
    </message>
    <message>
        <source>%1 (saved)</source>
        <comment>a step</comment>
        <translation>%1 (gespeichert)</translation>
    </message>
    <message>
        <source>%1 (saved; editor opened)</source>
        <comment>a step</comment>
        <translation>%1 (gespeichert; Editor geöffnet)</translation>
    </message>
    <message>
        <source>%1 (editor opened)</source>
        <comment>a step</comment>
        <translation>%1 (Editor geöffnet)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::undo::HistoryDock</name>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>Ver&amp;lauf</translation>
    </message>
</context>
<context>
    <name>DraftWords</name>
    <message>
        <source>There are changes that were not saved. The last one was made on %1.</source>
        <translation>Es gibt Änderungen, die nicht gespeichert wurden. Die letzte stammt vom %1.</translation>
    </message>
    <message>
        <source>New tasks: %1</source>
        <translation>Neue Aufträge: %1</translation>
    </message>
    <message>
        <source>Changed tasks: %1</source>
        <translation>Geänderte Aufträge: %1</translation>
    </message>
    <message>
        <source>Deleted tasks: %1</source>
        <translation>Gelöschte Aufträge: %1</translation>
    </message>
    <message>
        <source>The very last change may be missing.</source>
        <translation>Die allerletzte Änderung kann fehlen.</translation>
    </message>
    <message>
        <source>A part of them is damaged and cannot be read.</source>
        <translation>Ein Teil davon ist beschädigt und nicht lesbar.</translation>
    </message>
    <message>
        <source>They were made in another database, which stood in the place of this one.</source>
        <translation>Sie wurden in einer anderen Datenbank vorgenommen, die an der Stelle dieser stand.</translation>
    </message>
    <message>
        <source>The schedule was saved since then.</source>
        <translation>Der Wiedergabeplan wurde seitdem gespeichert.</translation>
    </message>
    <message>
        <source>The file %1 keeps changes that were not saved. They were made with a newer version of this program, which has to be used to take them over.</source>
        <translation>Die Datei %1 enthält ungespeicherte Änderungen. Sie stammen von einer neueren Version dieses Programms, die gebraucht wird, um sie zu übernehmen.</translation>
    </message>
    <message>
        <source>The file %1 should keep changes that were not saved, but nothing in it can be read.</source>
        <translation>Die Datei %1 sollte ungespeicherte Änderungen enthalten, aber nichts darin ist lesbar.</translation>
    </message>
    <message>
        <source>Changes that are not saved cannot be kept beside the database at the moment: if the program ends now, they are lost. %1</source>
        <translation>Ungespeicherte Änderungen können im Moment nicht neben der Datenbank festgehalten werden: Endet das Programm jetzt, gehen sie verloren. %1</translation>
    </message>
    <message>
        <source>The changes could not be kept beside the database. They are still in the editor.</source>
        <translation>Die Änderungen konnten nicht neben der Datenbank festgehalten werden. Im Editor sind sie noch da.</translation>
    </message>
    <message>
        <source>Take over</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Put into a file</source>
        <translation>In Datei ablegen</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete the file</source>
        <translation>Datei löschen</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>Später entscheiden</translation>
    </message>
    <message>
        <source>There are changes that were not saved. The last one was made %1, on %2.</source>
        <translation>Es gibt Änderungen, die nicht gespeichert wurden. Die letzte wurde %1 vorgenommen, am %2.</translation>
    </message>
    <message>
        <source>less than a minute ago</source>
        <translation>vor weniger als einer Minute</translation>
    </message>
    <message>
        <source>What differs from what is saved:</source>
        <translation>Was vom Gespeicherten abweicht:</translation>
    </message>
    <message>
        <source>As it is saved</source>
        <translation>Wie gespeichert</translation>
    </message>
    <message>
        <source>With these changes</source>
        <translation>Mit diesen Änderungen</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes ago</source>
        <translation>
            <numerusform>vor %n Minute</numerusform>
            <numerusform>vor %n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours ago</source>
        <translation>
            <numerusform>vor %n Stunde</numerusform>
            <numerusform>vor %n Stunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days ago</source>
        <translation>
            <numerusform>vor %n Tag</numerusform>
            <numerusform>vor %n Tagen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::changes::ChangesDialog</name>
    <message>
        <source>Look at it in the week</source>
        <translation>In der Woche ansehen</translation>
    </message>
</context>
<context>
    <name>DifferenceWords</name>
    <message>
        <source>Task %1: %2</source>
        <comment>where, and what differs</comment>
        <translation>Auftrag %1: %2</translation>
    </message>
    <message>
        <source>Task %1, plan %2: %3</source>
        <comment>where, and what differs</comment>
        <translation>Auftrag %1, Plan %2: %3</translation>
    </message>
    <message numerus="yes">
        <source>added, valid from %1 to %2, %n plans</source>
        <translation>
            <numerusform>hinzugefügt, gilt vom %1 bis %2, %n Plan</numerusform>
            <numerusform>hinzugefügt, gilt vom %1 bis %2, %n Pläne</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>deleted, was valid from %1 to %2, %n plans</source>
        <translation>
            <numerusform>gelöscht, galt vom %1 bis %2, %n Plan</numerusform>
            <numerusform>gelöscht, galt vom %1 bis %2, %n Pläne</numerusform>
        </translation>
    </message>
    <message>
        <source>added in row %1: %2, %3 to %4, %5</source>
        <translation>hinzugefügt in Zeile %1: %2, %3 bis %4, %5</translation>
    </message>
    <message>
        <source>deleted from row %1: %2, %3 to %4, %5</source>
        <translation>gelöscht aus Zeile %1: %2, %3 bis %4, %5</translation>
    </message>
    <message>
        <source>no programs</source>
        <translation>keine Programme</translation>
    </message>
    <message>
        <source>row %1 → %2</source>
        <translation>Zeile %1 → %2</translation>
    </message>
    <message>
        <source>“%1” added as entry %2</source>
        <translation>„%1“ als Eintrag %2 hinzugefügt</translation>
    </message>
    <message>
        <source>“%1” deleted, was entry %2</source>
        <translation>„%1“ gelöscht, war Eintrag %2</translation>
    </message>
    <message>
        <source>“%1”: entry %2 → %3</source>
        <translation>„%1“: Eintrag %2 → %3</translation>
    </message>
    <message>
        <source>“%1”, entry %2: %3</source>
        <translation>„%1“, Eintrag %2: %3</translation>
    </message>
    <message>
        <source>first day %1 → %2</source>
        <translation>erster Tag %1 → %2</translation>
    </message>
    <message>
        <source>last day %1 → %2</source>
        <translation>letzter Tag %1 → %2</translation>
    </message>
    <message>
        <source>start %1 → %2</source>
        <translation>Beginn %1 → %2</translation>
    </message>
    <message>
        <source>end %1 → %2</source>
        <translation>Ende %1 → %2</translation>
    </message>
    <message>
        <source>runs %1 → %2</source>
        <translation>Durchläufe %1 → %2</translation>
    </message>
    <message>
        <source>days %1 → %2</source>
        <translation>Tage %1 → %2</translation>
    </message>
    <message>
        <source>mode “%1” → “%2”</source>
        <translation>Modus „%1“ → „%2“</translation>
    </message>
    <message>
        <source>at the end “%1” → “%2”</source>
        <translation>am Ende „%1“ → „%2“</translation>
    </message>
    <message>
        <source>name “%1” → “%2”</source>
        <translation>Name „%1“ → „%2“</translation>
    </message>
    <message>
        <source>plays in a row %1 → %2</source>
        <translation>Wiedergaben in Folge %1 → %2</translation>
    </message>
    <message>
        <source>now has a program without a length of its own</source>
        <translation>hat jetzt ein Programm ohne eigene Länge</translation>
    </message>
    <message>
        <source>no longer has a program without a length of its own</source>
        <translation>hat kein Programm ohne eigene Länge mehr</translation>
    </message>
    <message>
        <source>now in conflict</source>
        <translation>jetzt im Konflikt</translation>
    </message>
    <message>
        <source>no longer in conflict</source>
        <translation>nicht mehr im Konflikt</translation>
    </message>
    <message>
        <source>now invalid</source>
        <translation>jetzt ungültig</translation>
    </message>
    <message>
        <source>no longer invalid</source>
        <translation>nicht mehr ungültig</translation>
    </message>
    <message>
        <source>something that the editor does not show</source>
        <translation>etwas, das der Editor nicht anzeigt</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more differences.</source>
        <translation>
            <numerusform>… und %n weiterer Unterschied.</numerusform>
            <numerusform>… und %n weitere Unterschiede.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProgramWords</name>
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
</context>
<context>
    <name>trel::desktop::CatalogueFilter</name>
    <message>
        <source>%1 of %2</source>
        <comment>programs found of programs</comment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Search name and folder</source>
        <translation>Name und Ordner durchsuchen</translation>
    </message>
    <message>
        <source>Kind of program</source>
        <translation>Art des Programms</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Alle Arten</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Fehlende</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Unbenutzte</translation>
    </message>
    <message numerus="yes">
        <source>%n programs</source>
        <translation>
            <numerusform>%n Programm</numerusform>
            <numerusform>%n Programme</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::CalendarPopup</name>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekPage</name>
    <message>
        <source>Click a block to see why it is on screen, or why not.</source>
        <translation>Klicken Sie auf einen Block, um zu sehen, warum er auf dem Bildschirm ist oder nicht.</translation>
    </message>
    <message>
        <source>Why the selected block is on screen, or why not</source>
        <translation>Warum der gewählte Block auf dem Bildschirm ist oder nicht</translation>
    </message>
    <message>
        <source>No task is valid in this week. Add one with “Edit”, then drag programs here.</source>
        <translation>In dieser Woche gilt kein Auftrag. Fügen Sie mit „Bearbeiten“ einen hinzu, und ziehen Sie dann Programme hierher.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::year::YearStrip</name>
    <message>
        <source>Gap: no task is valid from %1 to %2.</source>
        <translation>Lücke: Von %1 bis %2 ist kein Auftrag gültig.</translation>
    </message>
    <message>
        <source>Overlap: several tasks are valid from %1 to %2.</source>
        <translation>Überschneidung: Von %1 bis %2 sind mehrere Aufträge gültig.</translation>
    </message>
    <message>
        <source>Task %1 is valid from %2 to %3.</source>
        <translation>Auftrag %1 ist von %2 bis %3 gültig.</translation>
    </message>
    <message>
        <source>Validity of the tasks in %1</source>
        <translation>Gültigkeit der Aufträge im Jahr %1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::UsesWindow</name>
    <message>
        <source>Where used</source>
        <translation>Wo verwendet</translation>
    </message>
    <message>
        <source>No plan plays “%1”.</source>
        <translation>Kein Plan gibt „%1“ wieder.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” is played by %n plans.</source>
        <translation>
            <numerusform>„%1“ wird von %n Plan wiedergegeben.</numerusform>
            <numerusform>„%1“ wird von %n Plänen wiedergegeben.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::UsesModel</name>
    <message>
        <source>Task</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Gültig</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
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
        <translation>Auftrag %1 (%2), Plan %3, %4 %5</translation>
    </message>
    <message>
        <source>Not on screen any more, as the schedule in effect has it.</source>
        <translation>Nach dem geltenden Wiedergabeplan nicht mehr auf dem Bildschirm.</translation>
    </message>
    <message>
        <source>Not on screen any more, as the schedule is edited.</source>
        <translation>Nach dem bearbeiteten Wiedergabeplan nicht mehr auf dem Bildschirm.</translation>
    </message>
    <message>
        <source>Never on screen, as the schedule in effect has it.</source>
        <translation>Nach dem geltenden Wiedergabeplan nie auf dem Bildschirm.</translation>
    </message>
    <message>
        <source>Never on screen, as the schedule is edited.</source>
        <translation>Nach dem bearbeiteten Wiedergabeplan nie auf dem Bildschirm.</translation>
    </message>
    <message>
        <source>On screen now: task %1, plan %2.</source>
        <translation>Jetzt auf dem Bildschirm: Auftrag %1, Plan %2.</translation>
    </message>
    <message>
        <source>Next on screen: %1, task %2, plan %3.</source>
        <translation>Nächstes Mal auf dem Bildschirm: %1, Auftrag %2, Plan %3.</translation>
    </message>
    <message numerus="yes">
        <source>Entries become invalid in %n plans:</source>
        <translation>
            <numerusform>Einträge werden ungültig in %n Plan:</numerusform>
            <numerusform>Einträge werden ungültig in %n Plänen:</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: nothing else is left of it</source>
        <translation>%1: sonst bleibt davon nichts übrig</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more plans.</source>
        <translation>
            <numerusform>… und %n weiterer Plan.</numerusform>
            <numerusform>… und %n weitere Pläne.</numerusform>
        </translation>
    </message>
    <message>
        <source>every day</source>
        <translation>täglich</translation>
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
        <translation>Plan %1: %2, %3 bis %4</translation>
    </message>
    <message>
        <source>New plan in task %1: %2, %3 to %4</source>
        <translation>Neuer Plan in Auftrag %1: %2, %3 bis %4</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>jeden Tag</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are valid on this day; that is the one in effect.</source>
        <translation>
            <numerusform>An diesem Tag gilt %n Auftrag; das ist der wirksame.</numerusform>
            <numerusform>An diesem Tag gelten %n Aufträge; das ist der wirksame.</numerusform>
        </translation>
    </message>
    <message>
        <source>Its times cannot be read.</source>
        <translation>Seine Zeiten sind nicht lesbar.</translation>
    </message>
    <message>
        <source>A plan cannot run over midnight.</source>
        <translation>Ein Plan kann nicht über Mitternacht laufen.</translation>
    </message>
    <message>
        <source>A plan has to start before it ends.</source>
        <translation>Ein Plan muss vor seinem Ende beginnen.</translation>
    </message>
    <message>
        <source>Its end follows from its programs; it can only be moved.</source>
        <translation>Sein Ende ergibt sich aus seinen Programmen; er lässt sich nur verschieben.</translation>
    </message>
    <message>
        <source>It plays every day.</source>
        <translation>Er läuft jeden Tag.</translation>
    </message>
    <message>
        <source>It plays on that day already.</source>
        <translation>Er läuft an diesem Tag schon.</translation>
    </message>
    <message>
        <source>Its days cannot be read.</source>
        <translation>Seine Tage sind nicht lesbar.</translation>
    </message>
    <message>
        <source>Its task is not in effect on that day.</source>
        <translation>Sein Auftrag ist an diesem Tag nicht in Kraft.</translation>
    </message>
    <message>
        <source>Conflicts with plan %1, %2 to %3.</source>
        <translation>Überschneidet sich mit Plan %1, %2 bis %3.</translation>
    </message>
    <message numerus="yes">
        <source>Conflicts with %n more.</source>
        <translation>
            <numerusform>Überschneidet sich mit %n weiteren.</numerusform>
            <numerusform>Überschneidet sich mit %n weiteren.</numerusform>
        </translation>
    </message>
    <message>
        <source>No task is valid on this day.</source>
        <translation>An diesem Tag gilt kein Auftrag.</translation>
    </message>
    <message>
        <source>These programs cannot be planned here.</source>
        <translation>Diese Programme lassen sich hier nicht einplanen.</translation>
    </message>
    <message>
        <source>Copy the plans of %1…</source>
        <comment>a day</comment>
        <translation>Pläne vom %1 kopieren…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekEdits</name>
    <message>
        <source>The editor is not ready yet. Please try again.</source>
        <translation>Der Editor ist noch nicht bereit. Bitte versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The schedule has changed meanwhile; nothing was moved.</source>
        <translation>Der Wiedergabeplan hat sich inzwischen geändert; es wurde nichts verschoben.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::CopyDayDialog</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Copy onto these days, whose own plans stay:</source>
        <translation>Auf diese Tage kopieren, deren eigene Pläne bleiben:</translation>
    </message>
    <message>
        <source>%1 (no task is valid)</source>
        <comment>a day</comment>
        <translation>%1 (kein Auftrag gilt)</translation>
    </message>
    <message>
        <source>There is no plan on that day.</source>
        <translation>An diesem Tag gibt es keinen Plan.</translation>
    </message>
    <message numerus="yes">
        <source>%n plans play on that day. Choose the days to copy them onto.</source>
        <translation>
            <numerusform>An diesem Tag läuft %n Plan. Wählen Sie die Tage, auf die er kopiert wird.</numerusform>
            <numerusform>An diesem Tag laufen %n Pläne. Wählen Sie die Tage, auf die sie kopiert werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>All of them play on these days already.</source>
        <translation>Sie laufen an diesen Tagen schon alle.</translation>
    </message>
    <message numerus="yes">
        <source>%n plans are copied.</source>
        <translation>
            <numerusform>%n Plan wird kopiert.</numerusform>
            <numerusform>%n Pläne werden kopiert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more plans will conflict then. Nothing is lost by that: change what you want afterwards.</source>
        <translation>
            <numerusform>%n weiterer Plan hat dann einen Konflikt. Dabei geht nichts verloren: Ändern Sie danach, was Sie wollen.</numerusform>
            <numerusform>%n weitere Pläne haben dann einen Konflikt. Dabei geht nichts verloren: Ändern Sie danach, was Sie wollen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>VersionWords</name>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>What is in effect</source>
        <translation>In Kraft</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>Gespeicherter Stand</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>new: %1</source>
        <translation>neu: %1</translation>
    </message>
    <message>
        <source>changed: %1</source>
        <translation>geändert: %1</translation>
    </message>
    <message>
        <source>deleted: %1</source>
        <translation>gelöscht: %1</translation>
    </message>
    <message>
        <source>nothing of note</source>
        <translation>nichts von Belang</translation>
    </message>
    <message>
        <source>%1 (tasks %2)</source>
        <comment>what a save changed, and in which tasks</comment>
        <translation>%1 (Aufträge %2)</translation>
    </message>
    <message>
        <source>version %1 restored: %2</source>
        <translation>Version %1 wiederhergestellt: %2</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>Kein Unterschied.</translation>
    </message>
    <message numerus="yes">
        <source>%n differences</source>
        <translation>
            <numerusform>%n Unterschied</numerusform>
            <numerusform>%n Unterschiede</numerusform>
        </translation>
    </message>
    <message>
        <source>Restore version %1? What is saved now stays as a version, so that it can be restored in turn.</source>
        <translation>Version %1 wiederherstellen? Der jetzt gespeicherte Stand bleibt als Version erhalten und kann seinerseits wiederhergestellt werden.</translation>
    </message>
    <message numerus="yes">
        <source>%n of its programs are no longer in the catalog. Their entries will be invalid: %1</source>
        <translation>
            <numerusform>%n ihrer Programme ist nicht mehr im Katalog. Seine Einträge werden ungültig: %1</numerusform>
            <numerusform>%n ihrer Programme sind nicht mehr im Katalog. Ihre Einträge werden ungültig: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The schedule in the editor has changes that are not saved.</source>
        <translation>Der Wiedergabeplan im Editor enthält Änderungen, die nicht gespeichert sind.</translation>
    </message>
    <message>
        <source>Version %1 – %2</source>
        <comment>a version, and when it was saved</comment>
        <translation>Version %1 – %2</translation>
    </message>
    <message>
        <source>Version %1 – %2 – %3</source>
        <comment>a version, when it was saved, and its name</comment>
        <translation>Version %1 – %2 – %3</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::VersionModel</name>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::DifferenceModel</name>
    <message>
        <source>Task</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Unterschied</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::StretchModel</name>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::ComparedWeeks</name>
    <message>
        <source>Comparing…</source>
        <translation>Wird verglichen…</translation>
    </message>
    <message>
        <source>Nothing differs on the screen in this week.</source>
        <translation>In dieser Woche gibt es auf dem Bildschirm keinen Unterschied.</translation>
    </message>
    <message numerus="yes">
        <source>%n stretches of this week differ on the screen:</source>
        <translation>
            <numerusform>%n Abschnitt dieser Woche unterscheidet sich auf dem Bildschirm:</numerusform>
            <numerusform>%n Abschnitte dieser Woche unterscheiden sich auf dem Bildschirm:</numerusform>
        </translation>
    </message>
    <message>
        <source>What differs on the screen</source>
        <translation>Unterschiede auf dem Bildschirm</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::ComparisonPanel</name>
    <message>
        <source>Comparing…</source>
        <translation>Wird verglichen…</translation>
    </message>
    <message>
        <source>Nothing is in effect.</source>
        <translation>Nichts ist in Kraft.</translation>
    </message>
    <message>
        <source>%1 → %2: %3</source>
        <comment>two states, and how much differs</comment>
        <translation>%1 → %2: %3</translation>
    </message>
    <message>
        <source>In words</source>
        <translation>In Worten</translation>
    </message>
    <message>
        <source>On the screen</source>
        <translation>Auf dem Bildschirm</translation>
    </message>
    <message>
        <source>What differs</source>
        <translation>Unterschiede</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::VersionNameDialog</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::VersionsWindow</name>
    <message>
        <source>Versions</source>
        <translation>Versionen</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen…</translation>
    </message>
    <message>
        <source>No versions are kept yet.</source>
        <translation>Es gibt noch keine Versionen.</translation>
    </message>
    <message>
        <source>Name and note…</source>
        <translation>Name und Notiz…</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>Wiederherstellen…</translation>
    </message>
    <message>
        <source>Write to a file…</source>
        <translation>In Datei speichern…</translation>
    </message>
    <message>
        <source>Compared with</source>
        <translation>Verglichen mit</translation>
    </message>
    <message>
        <source>The other way round</source>
        <translation>Andersherum</translation>
    </message>
    <message>
        <source>Write the version to a file</source>
        <translation>Version in einer Datei speichern</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>Wiedergabepläne (*.json)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>In %1 gespeichert.</translation>
    </message>
    <message>
        <source>Save, then restore</source>
        <translation>Speichern, dann wiederherstellen</translation>
    </message>
    <message>
        <source>Restore without saving</source>
        <translation>Ohne Speichern wiederherstellen</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProgramPreview</name>
    <message>
        <source>%1 – Preview</source>
        <translation>%1 – Vorschau</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>position and length</comment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>The file is not found.</source>
        <translation>Die Datei wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Sound has no picture.</source>
        <translation>Ton hat kein Bild.</translation>
    </message>
    <message>
        <source>A live source is seen on the screens alone.</source>
        <translation>Eine Livequelle ist nur auf den Bildschirmen zu sehen.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen…</translation>
    </message>
    <message>
        <source>It has no picture that can be read.</source>
        <translation>Es gibt kein Bild, das gelesen werden kann.</translation>
    </message>
</context>
<context>
    <name>KeyTable</name>
    <message>
        <source>Main window</source>
        <translation>Hauptfenster</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Woche</translation>
    </message>
    <message>
        <source>Go to the next task</source>
        <translation>Zum nächsten Auftrag</translation>
    </message>
    <message>
        <source>Go to the task before</source>
        <translation>Zum vorigen Auftrag</translation>
    </message>
    <message>
        <source>Fold or open the task</source>
        <translation>Auftrag auf- oder zuklappen</translation>
    </message>
    <message>
        <source>Add a task</source>
        <translation>Auftrag hinzufügen</translation>
    </message>
    <message>
        <source>Copy the task</source>
        <translation>Auftrag kopieren</translation>
    </message>
    <message>
        <source>Delete the task</source>
        <translation>Auftrag löschen</translation>
    </message>
    <message>
        <source>Add a plan</source>
        <translation>Plan hinzufügen</translation>
    </message>
    <message>
        <source>Copy the plan</source>
        <translation>Plan kopieren</translation>
    </message>
    <message>
        <source>Delete the plan</source>
        <translation>Plan löschen</translation>
    </message>
    <message>
        <source>Choose the programs of the plan</source>
        <translation>Programme des Plans wählen</translation>
    </message>
    <message>
        <source>Save and close</source>
        <translation>Speichern und schließen</translation>
    </message>
    <message>
        <source>Save and start</source>
        <translation>Speichern und starten</translation>
    </message>
    <message>
        <source>Close without saving</source>
        <translation>Schließen, ohne zu speichern</translation>
    </message>
    <message>
        <source>Select another plan</source>
        <translation>Anderen Plan auswählen</translation>
    </message>
    <message>
        <source>Open the selected plan in the editor</source>
        <translation>Ausgewählten Plan im Editor öffnen</translation>
    </message>
    <message>
        <source>Say what is on screen then, and why</source>
        <translation>Sagen, was dann auf dem Bildschirm ist und warum</translation>
    </message>
    <message>
        <source>Move the plan by a quarter of an hour</source>
        <translation>Plan um eine Viertelstunde verschieben</translation>
    </message>
    <message>
        <source>Move the plan to another day</source>
        <translation>Plan auf einen anderen Tag verschieben</translation>
    </message>
    <message>
        <source>Move the end of the plan</source>
        <translation>Ende des Plans verschieben</translation>
    </message>
    <message>
        <source>Move the begin of the plan</source>
        <translation>Beginn des Plans verschieben</translation>
    </message>
    <message>
        <source>Give up dragging</source>
        <translation>Ziehen abbrechen</translation>
    </message>
    <message>
        <source>Copy the plans of the day</source>
        <translation>Pläne des Tages kopieren</translation>
    </message>
    <message>
        <source>Show another week</source>
        <translation>Andere Woche zeigen</translation>
    </message>
    <message>
        <source>Show the present moment</source>
        <translation>Die Gegenwart zeigen</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Größe ändern</translation>
    </message>
    <message>
        <source>Fit the whole day</source>
        <translation>Ganzen Tag einpassen</translation>
    </message>
    <message>
        <source>Programs of a plan</source>
        <translation>Programme eines Plans</translation>
    </message>
    <message>
        <source>Go to another program</source>
        <translation>Zu einem anderen Programm gehen</translation>
    </message>
    <message>
        <source>Tick the program, or untick it</source>
        <translation>Programm ankreuzen oder nicht</translation>
    </message>
    <message>
        <source>Tick all programs, or none</source>
        <translation>Alle Programme ankreuzen oder keines</translation>
    </message>
    <message>
        <source>Add the ticked programs, or this one</source>
        <translation>Angekreuzte Programme hinzufügen, sonst dieses</translation>
    </message>
    <message>
        <source>Take the ticked programs out, or this one</source>
        <translation>Angekreuzte Programme löschen, sonst dieses</translation>
    </message>
    <message>
        <source>Move the program up or down</source>
        <translation>Programm nach oben oder unten verschieben</translation>
    </message>
    <message>
        <source>Change how often the program is played</source>
        <translation>Ändern, wie oft das Programm läuft</translation>
    </message>
    <message>
        <source>Take over the list of programs</source>
        <translation>Liste der Programme übernehmen</translation>
    </message>
</context>
<context>
    <name>trel::desktop::KeySheet</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>trel::desktop::GuideWindow</name>
    <message>
        <source>The guide</source>
        <translation>Die Anleitung</translation>
    </message>
</context>
<context>
    <name>trel::desktop::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Anleitung</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>&amp;About this program</source>
        <translation>Ü&amp;ber dieses Programm</translation>
    </message>
    <message>
        <source>Schedules media programs on screens, edits the schedule and follows it.</source>
        <translation>Plant Medienprogramme auf Bildschirmen, bearbeitet den Wiedergabeplan und verfolgt ihn.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirLight</name>
    <message>
        <source>On air</source>
        <translation>Auf Sendung</translation>
    </message>
    <message>
        <source>Off air</source>
        <translation>Nicht auf Sendung</translation>
    </message>
    <message>
        <source>A schedule is in effect.</source>
        <translation>Ein Wiedergabeplan ist in Kraft.</translation>
    </message>
    <message>
        <source>No schedule is in effect.</source>
        <translation>Kein Wiedergabeplan ist in Kraft.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirState</name>
    <message>
        <source>Time of day: %1</source>
        <translation>Uhrzeit: %1</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Nicht gespeichert</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Gespeichert: %1</translation>
    </message>
    <message>
        <source>Started: %1</source>
        <translation>Gestartet: %1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirBar</name>
    <message>
        <source>Toolbar</source>
        <translation>Symbolleiste</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search the catalog</source>
        <translation>Im Katalog suchen</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ComingPrograms</name>
    <message>
        <source>Programs to come</source>
        <translation>Folgende Programme</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::StartAction</name>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Put the schedule on air</source>
        <translation>Den Wiedergabeplan auf Sendung bringen</translation>
    </message>
    <message>
        <source>Put the schedule on air? What is not saved is saved first.</source>
        <translation>Den Wiedergabeplan auf Sendung bringen? Was nicht gespeichert ist, wird vorher gespeichert.</translation>
    </message>
    <message>
        <source>Open problems: %1</source>
        <translation>Offene Probleme: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Tasks %1 and %2 are valid on the same days. The schedule can be put on air once they are not.</source>
        <translation>Die Aufträge %1 und %2 sind an denselben Tagen gültig. Erst wenn das nicht mehr so ist, kann der Wiedergabeplan auf Sendung gehen.</translation>
    </message>
    <message>
        <source>The schedule is on air.</source>
        <translation>Der Wiedergabeplan ist auf Sendung.</translation>
    </message>
    <message>
        <source>The schedule is on air. Open problems: %1</source>
        <translation>Der Wiedergabeplan ist auf Sendung. Offene Probleme: %1</translation>
    </message>
</context>
<context>
    <name>DroppedMedia</name>
    <message>
        <source>None of this can be imported.</source>
        <translation>Nichts davon kann importiert werden.</translation>
    </message>
    <message numerus="yes">
        <source>%n files or folders</source>
        <translation>
            <numerusform>%n Datei oder Ordner</numerusform>
            <numerusform>%n Dateien oder Ordner</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n addresses</source>
        <translation>
            <numerusform>%n Adresse</numerusform>
            <numerusform>%n Adressen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>files, and addresses</comment>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>Import %1</source>
        <comment>files, or addresses, or both</comment>
        <translation>Importieren: %1</translation>
    </message>
    <message numerus="yes">
        <source>Import %1; %n cannot be imported</source>
        <comment>files, or addresses, or both</comment>
        <translation>
            <numerusform>Importieren: %1; %n kann nicht importiert werden</numerusform>
            <numerusform>Importieren: %1; %n können nicht importiert werden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MediaFilters</name>
    <message>
        <source>All media</source>
        <translation>Alle Medien</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Filme</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ScreenNews</name>
    <message>
        <source>Cut in: %1</source>
        <translation>Eingespielt: %1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekMenu</name>
    <message>
        <source>&amp;Week</source>
        <translation>Wo&amp;che</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>&amp;Heute</translation>
    </message>
    <message>
        <source>&amp;Previous week</source>
        <translation>&amp;Vorherige Woche</translation>
    </message>
    <message>
        <source>&amp;Next week</source>
        <translation>&amp;Folgende Woche</translation>
    </message>
    <message>
        <source>&amp;Choose a day…</source>
        <translation>&amp;Tag wählen…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::DayDrag</name>
    <message>
        <source>Drag a day onto another one to copy its plans there.</source>
        <translation>Einen Tag auf einen anderen ziehen, um seine Pläne dorthin zu kopieren.</translation>
    </message>
    <message>
        <source>Copy the plans of %1 onto %2</source>
        <comment>two days</comment>
        <translation>Pläne vom %1 auf %2 kopieren</translation>
    </message>
</context>
<context>
    <name>trel::desktop::place::AddressDialog</name>
    <message>
        <source>Open from a server</source>
        <translation>Vom Server öffnen</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Where the server asks for a password, it is read from the password file of the server's programs (~/.pgpass).</source>
        <translation>Verlangt der Server ein Passwort, wird es aus der Passwortdatei der Serverprogramme (~/.pgpass) gelesen.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::players::PlayersDock</name>
    <message>
        <source>Players</source>
        <translation>Player</translation>
    </message>
    <message>
        <source>Pla&amp;yers</source>
        <translation>Pl&amp;ayer</translation>
    </message>
    <message>
        <source>No player follows this database. Start schedule-player with it where the screen is.</source>
        <translation>Kein Player folgt dieser Datenbank. Starten Sie schedule-player mit ihr am Computer des Bildschirms.</translation>
    </message>
    <message>
        <source>Show what the players show</source>
        <translation>Zeigt, was auf den Bildschirmen der Player läuft</translation>
    </message>
</context>
<context>
    <name>trel::desktop::players::PlayerModel</name>
    <message>
        <source>Screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Shows</source>
        <translation>Zeigt</translation>
    </message>
    <message>
        <source>Heard</source>
        <comment>when a player told of itself</comment>
        <translation>Gehört</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>Störungen</translation>
    </message>
</context>
<context>
    <name>PlayerWords</name>
    <message>
        <source>Stands still in: %1</source>
        <translation>Steht still bei: %1</translation>
    </message>
    <message>
        <source>Has no picture for: %1</source>
        <translation>Hat kein Bild für: %1</translation>
    </message>
    <message>
        <source>Not since %1</source>
        <comment>a moment</comment>
        <translation>Nicht seit %1</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no faults</comment>
        <translation>Keine</translation>
    </message>
    <message>
        <source>%1, the last at %2: %3</source>
        <comment>a number, a moment, a sentence</comment>
        <translation>%1, die letzte um %2: %3</translation>
    </message>
    <message>
        <source>Players: %1</source>
        <translation>Player: %1</translation>
    </message>
    <message>
        <source>Players: %1, silent: %2</source>
        <translation>Player: %1, stumm: %2</translation>
    </message>
</context>
<context>
    <name>MergeWords</name>
    <message numerus="yes">
        <source>%n tasks were changed at both desks: if you merge, you choose for each of them which one stays. Everything else of both is kept.</source>
        <translation>
            <numerusform>%n Auftrag wurde an beiden Plätzen geändert: Beim Zusammenführen wählen Sie, welcher bleibt. Alles andere von beiden bleibt erhalten.</numerusform>
            <numerusform>%n Aufträge wurden an beiden Plätzen geändert: Beim Zusammenführen wählen Sie für jeden, welcher bleibt. Alles andere von beiden bleibt erhalten.</numerusform>
        </translation>
    </message>
    <message>
        <source>No task was changed at both desks: what both have changed can be saved together.</source>
        <translation>Kein Auftrag wurde an beiden Plätzen geändert: Die Änderungen von beiden lassen sich zusammen speichern.</translation>
    </message>
    <message>
        <source>Merge…</source>
        <translation>Zusammenführen…</translation>
    </message>
    <message>
        <source>Merged, your new task %1 becomes task %2: another task %1 was added there.</source>
        <translation>Zusammengeführt wird aus Ihrem neuen Auftrag %1 der Auftrag %2: Dort kam ein anderer Auftrag %1 hinzu.</translation>
    </message>
    <message>
        <source>Merge and save</source>
        <translation>Zusammenführen und speichern</translation>
    </message>
    <message>
        <source>Merge and go on editing</source>
        <translation>Zusammenführen und bearbeiten</translation>
    </message>
    <message>
        <source>Merged, tasks %1 and %2 would be valid on the same days. That cannot be saved: they stay in the editor until you have changed their dates.</source>
        <translation>Zusammengeführt würden Auftrag %1 und Auftrag %2 an denselben Tagen gelten. Das lässt sich nicht speichern: Beide bleiben im Editor, bis Sie einen anderen Zeitraum eintragen.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::merge::ConflictsDialog</name>
    <message>
        <source>These tasks were changed here and at the other desk. Choose for each of them which one stays.</source>
        <translation>Diese Aufträge wurden hier und am anderen Platz geändert. Wählen Sie für jeden, welcher bleibt.</translation>
    </message>
    <message>
        <source>Mine, as it is edited here</source>
        <translation>Meiner, wie hier bearbeitet</translation>
    </message>
    <message>
        <source>Theirs, as it was saved there</source>
        <translation>Der andere, wie dort gespeichert</translation>
    </message>
    <message>
        <source>Tasks that were changed at both desks</source>
        <translation>An beiden Plätzen geänderte Aufträge</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>What stays</source>
        <translation>Was bleibt</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>not chosen yet</source>
        <translation>noch nicht gewählt</translation>
    </message>
    <message>
        <source>mine</source>
        <translation>meiner</translation>
    </message>
    <message>
        <source>theirs</source>
        <translation>der andere</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are still to be chosen.</source>
        <translation>
            <numerusform>%n Auftrag ist noch zu wählen.</numerusform>
            <numerusform>%n Aufträge sind noch zu wählen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Everything else of both is kept.</source>
        <translation>Alles andere von beiden bleibt erhalten.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::DeskNotice</name>
    <message>
        <source>Also edited at %1 since %2</source>
        <comment>a desk, and a time</comment>
        <translation>Auch bearbeitet an %1 seit %2</translation>
    </message>
    <message numerus="yes">
        <source>Also edited at %n other desks</source>
        <translation>
            <numerusform>Auch an %n anderem Platz bearbeitet</numerusform>
            <numerusform>Auch an %n anderen Plätzen bearbeitet</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: since %2, last changed at %3, tasks %4</source>
        <comment>a desk, times, and numbers</comment>
        <translation>%1: seit %2, zuletzt geändert um %3, Aufträge %4</translation>
    </message>
</context>
<context>
    <name>FileWords</name>
    <message numerus="yes">
        <source>%n programs in this file are not in the catalog. Their entries will be invalid: %1</source>
        <translation>
            <numerusform>%n Programm aus dieser Datei ist nicht im Katalog. Seine Einträge werden ungültig: %1</numerusform>
            <numerusform>%n Programme aus dieser Datei sind nicht im Katalog. Ihre Einträge werden ungültig: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n programs in the catalog may have another content than in this file: %1</source>
        <translation>
            <numerusform>%n Programm im Katalog hat vielleicht einen anderen Inhalt als in dieser Datei: %1</numerusform>
            <numerusform>%n Programme im Katalog haben vielleicht einen anderen Inhalt als in dieser Datei: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n programs have another name in the catalog than in this file: %1</source>
        <translation>
            <numerusform>%n Programm heißt im Katalog anders als in dieser Datei: %1</numerusform>
            <numerusform>%n Programme heißen im Katalog anders als in dieser Datei: %1</numerusform>
        </translation>
    </message>
</context>
</TS>
