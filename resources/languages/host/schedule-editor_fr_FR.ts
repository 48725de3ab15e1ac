<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>Demonstration</name>
    <message>
        <source>The demonstration could not be read: %1: %2</source>
        <translation>Impossible de lire la démonstration&#xa0;: %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The demonstration&apos;s media could not be copied beside the database.</source>
        <translation>Impossible de copier les médias de la démonstration à côté de la base de données.</translation>
    </message>
</context>
<context>
    <name>EditorMenus</name>
    <message>
        <source>&amp;Schedule</source>
        <translation>&amp;Programmation</translation>
    </message>
    <message>
        <source>&amp;Edit schedule</source>
        <translation>&amp;Modifier la programmation</translation>
    </message>
    <message>
        <source>&amp;Open database…</source>
        <translation>&amp;Ouvrir une base de données…</translation>
    </message>
    <message>
        <source>&amp;Read schedule from a file…</source>
        <translation>&amp;Lire la programmation depuis un fichier…</translation>
    </message>
    <message>
        <source>&amp;Write schedule to a file…</source>
        <translation>&amp;Enregistrer la programmation dans un fichier…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Dark theme</source>
        <translation>Thème &amp;sombre</translation>
    </message>
    <message>
        <source>&amp;Light theme</source>
        <translation>Thème &amp;clair</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Programs</source>
        <translation>P&amp;rogrammes</translation>
    </message>
    <message>
        <source>&amp;Import files…</source>
        <translation>&amp;Importer des fichiers…</translation>
    </message>
    <message>
        <source>Import &amp;folder…</source>
        <translation>Importer un &amp;dossier…</translation>
    </message>
    <message>
        <source>&amp;Remove from catalogue</source>
        <translation>&amp;Retirer du catalogue</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>Now and next</source>
        <translation>Maintenant et ensuite</translation>
    </message>
    <message>
        <source>Changes of the clocks</source>
        <translation>Changements d&apos;heure</translation>
    </message>
    <message>
        <source>No programs yet. Drop media files or folders here, or choose Import.</source>
        <translation>Aucun programme pour l’instant. Déposez ici des fichiers multimédias ou des dossiers, ou choisissez «&#xa0;Importer&#xa0;».</translation>
    </message>
    <message>
        <source>Schedule editor</source>
        <translation>Éditeur de programmation</translation>
    </message>
    <message>
        <source>%1 – Schedule editor</source>
        <translation>%1 – Éditeur de programmation</translation>
    </message>
    <message>
        <source>Open database</source>
        <translation>Ouvrir une base de données</translation>
    </message>
    <message>
        <source>Schedules (*.db *.sqlite);;All files (*)</source>
        <translation>Programmations (*.db *.sqlite);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Import files</source>
        <translation>Importer des fichiers</translation>
    </message>
    <message>
        <source>Import folder</source>
        <translation>Importer un dossier</translation>
    </message>
    <message>
        <source>Write the schedule to a file</source>
        <translation>Enregistrer la programmation dans un fichier</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>Programmations (*.json)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>Enregistré dans %1.</translation>
    </message>
    <message>
        <source>Read a schedule from a file</source>
        <translation>Lire une programmation depuis un fichier</translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation>Impossible de lire %1&#xa0;: %2</translation>
    </message>
    <message numerus="yes">
        <source>Replace the whole schedule by the %n tasks of this file?</source>
        <translation>
            <numerusform>Ce fichier contient %n tâche. Remplacer toute la programmation&#xa0;?</numerusform>
            <numerusform>Ce fichier contient %n tâches. Remplacer toute la programmation&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n programs from the catalogue? Plans that use them will show their entries as invalid. The files stay.</source>
        <translation>
            <numerusform>Retirer ce programme du catalogue&#xa0;? Les créneaux qui l’utilisent l’afficheront comme non valide. Le fichier est conservé.</numerusform>
            <numerusform>Retirer %n programmes du catalogue&#xa0;? Les créneaux qui les utilisent les afficheront comme non valides. Les fichiers sont conservés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Importing</source>
        <translation>Importation</translation>
    </message>
    <message>
        <source>Looking for files: %1 found</source>
        <translation>Recherche de fichiers&#xa0;: %1 trouvé(s)</translation>
    </message>
    <message>
        <source>The import was cancelled; nothing was taken in.</source>
        <translation>L’importation a été annulée&#xa0;; rien n’a été ajouté.</translation>
    </message>
    <message>
        <source>Imported: %1 new, %2 updated.</source>
        <translation>Importation terminée&#xa0;: %1 ajout(s), %2 mise(s) à jour.</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more.</source>
        <translation>
            <numerusform>… et %n autre.</numerusform>
            <numerusform>… et %n autres.</numerusform>
        </translation>
    </message>
    <message>
        <source>Some files could not be imported:</source>
        <translation>Certains fichiers n’ont pas pu être importés&#xa0;:</translation>
    </message>
    <message>
        <source>The schedule has changes that are not saved.</source>
        <translation>La programmation contient des modifications non enregistrées.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Continuer</translation>
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
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Direct</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autre</translation>
    </message>
    <message>
        <source>The file has gone: %1</source>
        <translation>Le fichier n’existe plus&#xa0;: %1</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
</context>
<context>
    <name>SaveRescue</name>
    <message>
        <source>The schedule was not saved. %1

What shall become of your changes?</source>
        <translation>La programmation n’a pas été enregistrée. %1

Que faire de vos modifications&#xa0;?</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Write to a file</source>
        <translation>Enregistrer dans un fichier</translation>
    </message>
    <message>
        <source>Give up</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Write the schedule to a file</source>
        <translation>Enregistrer la programmation dans un fichier</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>Programmations (*.json)</translation>
    </message>
</context>
<context>
    <name>ClockChangePanel</name>
    <message>
        <source>Changes of the clocks</source>
        <translation>Changements d&apos;heure</translation>
    </message>
    <message>
        <source>No change of the clocks falls on a day of any task.</source>
        <translation>Aucun changement d&apos;heure ne tombe un jour d&apos;une tâche.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is left out;</source>
        <translation>%1 : %2–%3 n&apos;existe pas ;</translation>
    </message>
    <message>
        <source>%1: %2–%3 comes twice;</source>
        <translation>%1 : %2–%3 revient deux fois ;</translation>
    </message>
    <message>
        <source>it touches no plan of task %1.</source>
        <translation>aucun plan de la tâche %1 n&apos;est touché.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 does not play.</source>
        <translation>le plan %1 de la tâche %2 n&apos;est pas joué.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 starts at %3 in the middle of its list.</source>
        <translation>le plan %1 de la tâche %2 commence à %3 au milieu de sa liste.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 is cut off at %3.</source>
        <translation>le plan %1 de la tâche %2 est coupé à %3.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 skips this part of its list.</source>
        <translation>le plan %1 de la tâche %2 saute cette partie de sa liste.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 plays twice.</source>
        <translation>le plan %1 de la tâche %2 est joué deux fois.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 starts twice at %3.</source>
        <translation>le plan %1 de la tâche %2 commence deux fois à %3.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 ends twice at %3.</source>
        <translation>le plan %1 de la tâche %2 finit deux fois à %3.</translation>
    </message>
    <message>
        <source>plan %1 of task %2 repeats this part of its list.</source>
        <translation>le plan %1 de la tâche %2 répète cette partie de sa liste.</translation>
    </message>
</context>
<context>
    <name>PreviewDock</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>&amp;Full screen preview</source>
        <translation>Aperçu en &amp;plein écran</translation>
    </message>
</context>
<context>
    <name>PreviewScreen</name>
    <message>
        <source>Preview of the screen</source>
        <translation>Aperçu de l&apos;écran</translation>
    </message>
</context>
<context>
    <name>NowNextPanel</name>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Ensuite</translation>
    </message>
    <message>
        <source>Cut in</source>
        <translation>Inséré</translation>
    </message>
    <message>
        <source>Now and next</source>
        <translation>Maintenant et ensuite</translation>
    </message>
    <message>
        <source>What the screen shows</source>
        <translation>Ce que montre l&apos;écran</translation>
    </message>
    <message>
        <source>Program on screen</source>
        <translation>Programme à l&apos;écran</translation>
    </message>
    <message>
        <source>Position in the program</source>
        <translation>Position dans le programme</translation>
    </message>
    <message>
        <source>Why this is on screen</source>
        <translation>Pourquoi cela est à l&apos;écran</translation>
    </message>
    <message>
        <source>Program that comes next</source>
        <translation>Programme qui vient ensuite</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>Pas démarré</translation>
    </message>
    <message>
        <source>%1 played</source>
        <translation>%1 joué</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>reste %1</translation>
    </message>
    <message>
        <source>%1, until %2, %3 left</source>
        <translation>%1, jusqu&apos;à %2, reste %3</translation>
    </message>
    <message>
        <source>Nothing else comes.</source>
        <translation>Rien d&apos;autre ne vient.</translation>
    </message>
    <message>
        <source>at %1, in %2</source>
        <translation>à %1, dans %2</translation>
    </message>
    <message>
        <source>on %1 at %2</source>
        <translation>le %1 à %2</translation>
    </message>
</context>
<context>
    <name>ScreenWords</name>
    <message>
        <source>Playing</source>
        <translation>En lecture</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>Frozen</source>
        <translation>Figé</translation>
    </message>
    <message>
        <source>Last frame of %1</source>
        <translation>Dernière image de %1</translation>
    </message>
    <message>
        <source>Black screen</source>
        <translation>Écran noir</translation>
    </message>
    <message>
        <source>Entry %1 of %2, play %3 of %4</source>
        <translation>Entrée %1 sur %2, lecture %3 sur %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2</source>
        <translation>Tâche %1, plan %2</translation>
    </message>
    <message>
        <source>The start button of the schedule editor puts the saved schedule into effect.</source>
        <translation>Le bouton de démarrage de l&apos;éditeur met en vigueur le planning enregistré.</translation>
    </message>
    <message>
        <source>No plan has had the screen up to now.</source>
        <translation>Aucun plan n&apos;a encore eu l&apos;écran.</translation>
    </message>
    <message>
        <source>Of the plans for this time of day, plan %1 of task %2 comes first.</source>
        <translation>Parmi les plans de cette heure, le plan %1 de la tâche %2 vient en premier.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 has the screen, but none of its programs can play.</source>
        <translation>Le plan %1 de la tâche %2 a l&apos;écran, mais aucun de ses programmes ne peut être joué.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 has the screen, but its list is to run less than once.</source>
        <translation>Le plan %1 de la tâche %2 a l&apos;écran, mais sa liste doit être jouée moins d&apos;une fois.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 has played its list as often as it should.</source>
        <translation>Le plan %1 de la tâche %2 a joué sa liste autant de fois que prévu.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is over, and no other has begun.</source>
        <translation>Le plan %1 de la tâche %2 est terminé et aucun autre n&apos;a commencé.</translation>
    </message>
    <message>
        <source>It was cut in by hand, in the place of plan %1 of task %2.</source>
        <translation>Inséré à la main, à la place du plan %1 de la tâche %2.</translation>
    </message>
    <message>
        <source>What was cut in, in the place of plan %1 of task %2, has nothing more to play.</source>
        <translation>Ce qui fut inséré à la place du plan %1 de la tâche %2 n&apos;a plus rien à jouer.</translation>
    </message>
    <message>
        <source>Cut in: %1</source>
        <translation>Inséré : %1</translation>
    </message>
    <message>
        <source>Before: %1</source>
        <translation>Avant : %1</translation>
    </message>
</context>
<context>
    <name>Week</name>
    <message>
        <source>On screen: %1, %2 into it</source>
        <translation>À l&apos;écran : %1, à %2</translation>
    </message>
    <message>
        <source>On screen: %1</source>
        <translation>À l&apos;écran : %1</translation>
    </message>
    <message>
        <source>%1 to %2 is left out: the clocks go forward.</source>
        <translation>De %1 à %2 n&apos;existe pas : on avance les horloges.</translation>
    </message>
    <message>
        <source>%1 to %2 comes twice: the clocks go back.</source>
        <translation>De %1 à %2 revient deux fois : on recule les horloges.</translation>
    </message>
    <message numerus="yes">
        <source>%n more plans are kept from the screen.</source>
        <translation>
            <numerusform>%n autre plan n&apos;a pas l&apos;écran.</numerusform>
            <numerusform>%n autres plans n&apos;ont pas l&apos;écran.</numerusform>
        </translation>
    </message>
    <message>
        <source>Plan %1 stands above it and has the screen instead.</source>
        <translation>Le plan %1 est au-dessus et a l&apos;écran à sa place.</translation>
    </message>
    <message>
        <source>It collides with a plan above it.</source>
        <translation>Il chevauche un plan au-dessus.</translation>
    </message>
    <message>
        <source>Its list is over at %1, before the plan ends.</source>
        <translation>Sa liste est finie à %1, avant le plan.</translation>
    </message>
    <message>
        <source>Plan %1, %2 to %3</source>
        <translation>Plan %1, %2 à %3</translation>
    </message>
    <message>
        <source>No task is valid on this day.</source>
        <translation>Aucune tâche n&apos;est valable ce jour.</translation>
    </message>
    <message>
        <source>No task is valid</source>
        <translation>Aucune tâche valable</translation>
    </message>
    <message>
        <source>No task</source>
        <translation>Aucune tâche</translation>
    </message>
    <message>
        <source>Task %1</source>
        <translation>Tâche %1</translation>
    </message>
    <message>
        <source>Frozen: %1</source>
        <translation>Figé : %1</translation>
    </message>
    <message>
        <source>Cut in: %1</source>
        <translation>Inséré : %1</translation>
    </message>
    <message>
        <source>Left out: clocks go forward</source>
        <translation>N&apos;existe pas : on avance l&apos;heure</translation>
    </message>
    <message>
        <source>Comes twice: clocks go back</source>
        <translation>Deux fois : on recule l&apos;heure</translation>
    </message>
    <message>
        <source>nothing to show</source>
        <translation>rien à montrer</translation>
    </message>
</context>
<context>
    <name>WeekDock</name>
    <message>
        <source>Week</source>
        <translation>Semaine</translation>
    </message>
</context>
<context>
    <name>week::WeekView</name>
    <message>
        <source>Week</source>
        <translation>Semaine</translation>
    </message>
</context>
<context>
    <name>week::WeekPanel</name>
    <message>
        <source>Today</source>
        <translation>Aujourd&apos;hui</translation>
    </message>
    <message>
        <source>Whole day</source>
        <translation>Jour entier</translation>
    </message>
    <message>
        <source>As edited</source>
        <translation>En édition</translation>
    </message>
    <message>
        <source>In effect</source>
        <translation>En vigueur</translation>
    </message>
    <message>
        <source>Week before</source>
        <translation>Semaine précédente</translation>
    </message>
    <message>
        <source>Week after</source>
        <translation>Semaine suivante</translation>
    </message>
    <message>
        <source>Hours less high</source>
        <translation>Heures moins hautes</translation>
    </message>
    <message>
        <source>Hours higher</source>
        <translation>Heures plus hautes</translation>
    </message>
    <message>
        <source>Which schedule is shown</source>
        <translation>Planning affiché</translation>
    </message>
</context>
<context>
    <name>PlanFaultText</name>
    <message>
        <source>Plan %1 never plays: none of its days is a day of the week.</source>
        <translation>Le plan %1 n&apos;est jamais joué : aucun de ses jours n&apos;est un jour de la semaine.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, is not a time in the form %3.</source>
        <translation>Le plan %1 n&apos;est jamais joué : son début, « %2 », n&apos;est pas une heure de la forme %3.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its end, “%2”, is not a time in the form %3.</source>
        <translation>Le plan %1 n&apos;est jamais joué : sa fin, « %2 », n&apos;est pas une heure de la forme %3.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, and its end, “%3”, are not times in the form %4.</source>
        <translation>Le plan %1 n&apos;est jamais joué : son début, « %2 », et sa fin, « %3 », ne sont pas des heures de la forme %4.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its list is to run less than once.</source>
        <translation>Le plan %1 n&apos;est jamais joué : sa liste doit être jouée moins d&apos;une fois.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it ends as it starts, at %2.</source>
        <translation>Le plan %1 n&apos;est jamais joué : il finit dès qu&apos;il commence, à %2.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it starts at %2 and ends before, at %3.</source>
        <translation>Le plan %1 n&apos;est jamais joué : il commence à %2 et finit avant, à %3.</translation>
    </message>
</context>
<context>
    <name>ZoneError</name>
    <message>
        <source>The system knows no time zone of the name “%1”, so that the local time is not known.</source>
        <translation>Le système ne connaît aucun fuseau horaire du nom de « %1 » ; l&apos;heure locale n&apos;est donc pas connue.</translation>
    </message>
</context>
</TS>
