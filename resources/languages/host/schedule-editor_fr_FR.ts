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
        <source>The demonstration media could not be copied to the database folder.</source>
        <translation>Impossible de copier les médias de la démonstration dans le dossier de la base de données.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EditorMenus</name>
    <message>
        <source>Hi&amp;gh contrast</source>
        <translation>Con&amp;traste élevé</translation>
    </message>
    <message>
        <source>&amp;As-run of a day…</source>
        <translation>&amp;Relevé de diffusion d’un jour…</translation>
    </message>
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
        <source>Open &amp;from a server…</source>
        <translation>Ouvrir depuis un &amp;serveur…</translation>
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
        <source>&amp;Remove from catalog</source>
        <translation>&amp;Retirer du catalogue</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>S&amp;kip to the next play</source>
        <translation>Passer à la &amp;diffusion suivante</translation>
    </message>
    <message>
        <source>&amp;Cancel what is cut in</source>
        <translation>A&amp;nnuler l’insertion</translation>
    </message>
    <message>
        <source>S&amp;top the schedule…</source>
        <translation>&amp;Arrêter la programmation…</translation>
    </message>
    <message>
        <source>&amp;Bring back what was canceled</source>
        <translation>Ré&amp;tablir ce qui a été annulé</translation>
    </message>
    <message>
        <source>&amp;Where used…</source>
        <translation>&amp;Où utilisé…</translation>
    </message>
    <message>
        <source>&amp;Versions…</source>
        <translation>&amp;Versions…</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Aperçu</translation>
    </message>
    <message>
        <source>&amp;New database…</source>
        <translation>Nouvelle &amp;base de données…</translation>
    </message>
    <message>
        <source>O&amp;pen recent</source>
        <translation>Bases ré&amp;centes</translation>
    </message>
    <message>
        <source>St&amp;art the schedule…</source>
        <translation>Démarrer la &amp;programmation…</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>R&amp;echercher</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EditorWindow</name>
    <message>
        <source>Import: %1 percent</source>
        <translation>Importation : %1 pour cent</translation>
    </message>
    <message>
        <source>Now and next</source>
        <translation>Maintenant et ensuite</translation>
    </message>
    <message>
        <source>Clock changes</source>
        <translation>Changements d’heure</translation>
    </message>
    <message>
        <source>&amp;Now and next</source>
        <translation>&amp;Maintenant et ensuite</translation>
    </message>
    <message>
        <source>&amp;Clock changes</source>
        <translation>Changements d’&amp;heure</translation>
    </message>
    <message>
        <source>Schedule editor</source>
        <translation>Éditeur de la programmation</translation>
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
    <message numerus="yes">
        <source>Replace the whole schedule with the %n tasks in this file?</source>
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
    <message>
        <source>Changes in the editor that are not saved go with it (tasks %1). Undo brings them back.</source>
        <translation>Les modifications non enregistrées de l’éditeur sont remplacées aussi (tâches %1). «&#xa0;Annuler&#xa0;» les récupère.</translation>
    </message>
    <message>
        <source>Save, then replace</source>
        <translation>Enregistrer, puis remplacer</translation>
    </message>
    <message>
        <source>Replace without saving</source>
        <translation>Remplacer sans enregistrer</translation>
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
        <source>The schedule has changes that are not saved. As a draft they are offered when this database is opened again.

Close this question to keep editing.</source>
        <translation>La programmation contient des modifications non enregistrées. Conservées comme brouillon, elles sont proposées à la prochaine ouverture de cette base de données.

Fermez cette question pour continuer à modifier.</translation>
    </message>
    <message>
        <source>Keep as draft</source>
        <translation>Garder le brouillon</translation>
    </message>
    <message>
        <source>Catalog</source>
        <translation>Catalogue</translation>
    </message>
    <message>
        <source>Catal&amp;og</source>
        <translation>Catalo&amp;gue</translation>
    </message>
    <message>
        <source>The change is in the editor now, where it can be saved.</source>
        <translation>La modification est maintenant dans l’éditeur, où elle peut être enregistrée.</translation>
    </message>
    <message>
        <source>New database</source>
        <translation>Nouvelle base de données</translation>
    </message>
    <message>
        <source>The file %1 exists already. It is not written over.</source>
        <translation>Le fichier %1 existe déjà. Il n’est pas remplacé.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::CataloguePanel</name>
    <message>
        <source>No programs yet. Drop media files or folders here, or choose “Import files”.</source>
        <translation>Aucun programme pour l’instant. Déposez ici des fichiers multimédias ou des dossiers, ou choisissez «&#xa0;Importer des fichiers&#xa0;».</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>No program fits what is searched for.</source>
        <translation>Aucun programme ne correspond à la recherche.</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n programs from the catalog? The files are not deleted.</source>
        <translation>
            <numerusform>Retirer ce programme du catalogue ? Le fichier n’est pas supprimé.</numerusform>
            <numerusform>Retirer %n programmes du catalogue ? Les fichiers ne sont pas supprimés.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::CatalogueImport</name>
    <message>
        <source>Import files</source>
        <translation>Importer des fichiers</translation>
    </message>
    <message>
        <source>Import folder</source>
        <translation>Importer un dossier</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Importing</source>
        <translation>Importation</translation>
    </message>
    <message>
        <source>The import was canceled; nothing was imported.</source>
        <translation>L’importation a été annulée&#xa0;; rien n’a été ajouté.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>file and reason</comment>
        <translation>%1&#xa0;: %2</translation>
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
    <message numerus="yes">
        <source>Looking for files: %n found</source>
        <translation>
            <numerusform>Recherche de fichiers&#xa0;: %n trouvé</numerusform>
            <numerusform>Recherche de fichiers&#xa0;: %n trouvés</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported: %1, %2.</source>
        <translation>Importation terminée&#xa0;: %1, %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n new</source>
        <translation>
            <numerusform>%n ajout</numerusform>
            <numerusform>%n ajouts</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n updated</source>
        <translation>
            <numerusform>%n mise à jour</numerusform>
            <numerusform>%n mises à jour</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HostPrompts</name>
    <message>
        <source>Question</source>
        <translation>Question</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The file %1 exists already. Replace it?</source>
        <translation>Le fichier %1 existe déjà. Faut-il le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>ProblemWords</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>La mémoire est insuffisante.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Le disque est plein.</translation>
    </message>
    <message>
        <source>Your share of the disk is used up.</source>
        <translation>Votre quota de disque est épuisé.</translation>
    </message>
    <message>
        <source>The system does not let this application write a larger file.</source>
        <translation>Le système n’autorise pas ce logiciel à écrire un fichier plus volumineux.</translation>
    </message>
    <message>
        <source>The file or its folder is read-only.</source>
        <translation>Le fichier ou son dossier est protégé en écriture.</translation>
    </message>
    <message>
        <source>It was opened for reading only.</source>
        <translation>Il a été ouvert pour consultation uniquement.</translation>
    </message>
    <message>
        <source>Reading it took too long.</source>
        <translation>Lire ce fichier a pris trop de temps.</translation>
    </message>
    <message numerus="yes">
        <source>A text in it is longer than %n bytes.</source>
        <translation>
            <numerusform>Un texte y dépasse %n octet.</numerusform>
            <numerusform>Un texte y dépasse %n octets.</numerusform>
        </translation>
    </message>
    <message>
        <source>The database reports error %1.</source>
        <translation>La base de données signale l’erreur %1.</translation>
    </message>
    <message>
        <source>The database reports error %1. %3</source>
        <translation>La base de données signale l’erreur %1. %3</translation>
    </message>
    <message>
        <source>The database has failed its own check.</source>
        <translation>La base de données n’a pas passé sa propre vérification.</translation>
    </message>
    <message>
        <source>The disk reports a read or write error.</source>
        <translation>Le disque signale une erreur d’entrée-sortie.</translation>
    </message>
    <message>
        <source>Data that must be there is missing.</source>
        <translation>Des données indispensables sont absentes.</translation>
    </message>
    <message>
        <source>The database driver is not the one that this application was made for.</source>
        <translation>Le pilote de base de données n’est pas celui prévu pour ce logiciel.</translation>
    </message>
    <message>
        <source>The file is missing or empty, but its log %1 is still there.</source>
        <translation>Le fichier est absent ou vide, mais son journal %1 existe encore.</translation>
    </message>
    <message>
        <source>No file can be created there.</source>
        <translation>Aucun fichier ne peut y être créé.</translation>
    </message>
    <message>
        <source>Its log %1 belongs to another copy of the file. Put back the file that it belongs to, or move the log away to go on without it.</source>
        <translation>Son journal %1 appartient à une autre copie du fichier. Remettez en place le fichier correspondant, ou déplacez le journal pour continuer sans lui.</translation>
    </message>
    <message>
        <source>Its log has no index, and none can be created in a read-only folder. Copy both files to another folder.</source>
        <translation>Son journal n’a pas d’index, et il est impossible d’en créer un dans un dossier protégé en écriture. Copiez les deux fichiers dans un autre dossier.</translation>
    </message>
    <message>
        <source>It was removed or replaced after it was opened.</source>
        <translation>Il a été supprimé ou remplacé après son ouverture.</translation>
    </message>
    <message numerus="yes">
        <source>The name or the path of a program is longer than %n bytes.</source>
        <translation>
            <numerusform>Le nom ou le chemin d’un programme dépasse %n octet.</numerusform>
            <numerusform>Le nom ou le chemin d’un programme dépasse %n octets.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n numbers for programs are used up.</source>
        <translation>
            <numerusform>Le seul numéro de programme est attribué.</numerusform>
            <numerusform>Les %n numéros de programme sont tous attribués.</numerusform>
        </translation>
    </message>
    <message>
        <source>Its plans do not fit together.</source>
        <translation>Ses créneaux ne concordent pas.</translation>
    </message>
    <message>
        <source>“%1” is missing.</source>
        <translation>«&#xa0;%1&#xa0;» est absent.</translation>
    </message>
    <message>
        <source>It contains “%1”, which does not belong there.</source>
        <translation>Il contient «&#xa0;%1&#xa0;», qui n’a pas sa place ici.</translation>
    </message>
    <message>
        <source>“%1” has been changed.</source>
        <translation>«&#xa0;%1&#xa0;» a été modifié.</translation>
    </message>
    <message>
        <source>It does not say which state it is in.</source>
        <translation>Il n’indique pas son état.</translation>
    </message>
    <message>
        <source>It was created by an older version of this application. Set up the server again.</source>
        <translation>Elle a été créée par une version plus ancienne de cette application. Configurez de nouveau le serveur.</translation>
    </message>
    <message>
        <source>The address contains a password. Passwords belong in a password file.</source>
        <translation>L’adresse contient un mot de passe. Les mots de passe doivent se trouver dans un fichier de mots de passe.</translation>
    </message>
    <message>
        <source>The address of a schedule on a server has this form: %1</source>
        <translation>L’adresse d’une programmation sur un serveur a cette forme&#xa0;: %1</translation>
    </message>
    <message>
        <source>The name of the schedule in the address is missing, too long or not readable.</source>
        <translation>Le nom de la programmation dans l’adresse manque, est trop long ou illisible.</translation>
    </message>
    <message>
        <source>The connection was lost before the server answered.</source>
        <translation>La connexion a été perdue avant la réponse du serveur.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>Le serveur ne répond pas.</translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n tasks.</source>
        <translation>
            <numerusform>Il y a plus de %n tâche.</numerusform>
            <numerusform>Il y a plus de %n tâches.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n plans.</source>
        <translation>
            <numerusform>Il y a plus de %n créneau.</numerusform>
            <numerusform>Il y a plus de %n créneaux.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n entries.</source>
        <translation>
            <numerusform>Il y a plus de %n entrée.</numerusform>
            <numerusform>Il y a plus de %n entrées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n numbers in the lists of plans.</source>
        <translation>
            <numerusform>Les listes des créneaux contiennent plus de %n nombre.</numerusform>
            <numerusform>Les listes des créneaux contiennent plus de %n nombres.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n programs.</source>
        <translation>
            <numerusform>Il y a plus de %n programme.</numerusform>
            <numerusform>Il y a plus de %n programmes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A text of task %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>Un texte de la tâche %1 dépasse %n octet.</numerusform>
            <numerusform>Un texte de la tâche %1 dépasse %n octets.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>It is larger than %n bytes.</source>
        <translation>
            <numerusform>Il dépasse %n octet.</numerusform>
            <numerusform>Il dépasse %n octets.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n values.</source>
        <translation>
            <numerusform>Il y a plus de %n valeur.</numerusform>
            <numerusform>Il y a plus de %n valeurs.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A name in line %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>Un nom à la ligne %1 dépasse %n octet.</numerusform>
            <numerusform>Un nom à la ligne %1 dépasse %n octets.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A text in line %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>Un texte à la ligne %1 dépasse %n octet.</numerusform>
            <numerusform>Un texte à la ligne %1 dépasse %n octets.</numerusform>
        </translation>
    </message>
    <message>
        <source>It is not valid JSON (line %1, column %2).</source>
        <translation>Ce n’est pas du JSON valide (ligne %1, colonne %2).</translation>
    </message>
    <message>
        <source>“%1” is not a whole number.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre entier.</translation>
    </message>
    <message>
        <source>“%1” is outside the permitted range.</source>
        <translation>«&#xa0;%1&#xa0;» est hors de la plage autorisée.</translation>
    </message>
    <message>
        <source>Wrong kind of value: expected %1, found %2.</source>
        <translation>Type de valeur incorrect&#xa0;: attendu %1, trouvé %2.</translation>
    </message>
    <message>
        <source>Wrong kind of value: expected %1 or a number, found %2.</source>
        <translation>Type de valeur incorrect&#xa0;: attendu %1 ou un nombre, trouvé %2.</translation>
    </message>
    <message>
        <source>“%2” is not known here. Expected: %1 or a number.</source>
        <translation>«&#xa0;%2&#xa0;» est inconnu ici. Attendu&#xa0;: %1 ou un nombre.</translation>
    </message>
    <message>
        <source>The text is not valid Base64.</source>
        <translation>Le texte n’est pas du Base64 valide.</translation>
    </message>
    <message numerus="yes">
        <source>The text is longer than %n bytes.</source>
        <translation>
            <numerusform>Le texte dépasse %n octet.</numerusform>
            <numerusform>Le texte dépasse %n octets.</numerusform>
        </translation>
    </message>
    <message>
        <source>The key %1 is not the ID of the task, which is %2.</source>
        <translation>La clé %1 ne correspond pas à l’identifiant de la tâche (%2).</translation>
    </message>
    <message>
        <source>Another task already has the ID %1.</source>
        <translation>Une autre tâche porte déjà l’identifiant %1.</translation>
    </message>
    <message>
        <source>The format is “%1” instead of “%2”.</source>
        <translation>Le format est «&#xa0;%1&#xa0;» au lieu de «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>Version %1 is newer than version %2, the newest that this application reads.</source>
        <translation>La version %1 est plus récente que la version %2, la dernière que ce logiciel sait lire.</translation>
    </message>
    <message>
        <source>There is no version %1.</source>
        <translation>Il n’existe pas de version %1.</translation>
    </message>
    <message>
        <source>It is JSON of another kind, not a schedule.</source>
        <translation>C’est un autre type de JSON, pas une programmation.</translation>
    </message>
    <message>
        <source>It is not a schedule: “format” is missing.</source>
        <translation>Ce n’est pas une programmation&#xa0;: «&#xa0;format&#xa0;» est absent.</translation>
    </message>
    <message>
        <source>“%1” is not known here.</source>
        <translation>«&#xa0;%1&#xa0;» est inconnu ici.</translation>
    </message>
    <message>
        <source>“%1” occurs twice here.</source>
        <translation>«&#xa0;%1&#xa0;» figure deux fois ici.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>C’est un dossier.</translation>
    </message>
    <message>
        <source>It is a pipe, not a file.</source>
        <translation>C’est un tube, pas un fichier.</translation>
    </message>
    <message>
        <source>It is a socket, not a file.</source>
        <translation>C’est un socket, pas un fichier.</translation>
    </message>
    <message>
        <source>It is a device, not a file.</source>
        <translation>C’est un périphérique, pas un fichier.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Ce n’est pas un fichier.</translation>
    </message>
    <message>
        <source>Nothing comes through the pipe.</source>
        <translation>Rien n’arrive par le tube.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Le fichier n’existe pas.</translation>
    </message>
    <message>
        <source>You do not have permission to read it.</source>
        <translation>Vous n’avez pas l’autorisation de le lire.</translation>
    </message>
    <message>
        <source>It cannot be opened. %1</source>
        <translation>Impossible de l’ouvrir. %1</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>Its name is not in UTF-8. Rename the file to import it.</source>
        <translation>Son nom n’est pas en UTF-8. Renommez le fichier pour l’importer.</translation>
    </message>
    <message>
        <source>Addresses of this kind cannot be played.</source>
        <translation>Les adresses de ce type ne peuvent pas être diffusées.</translation>
    </message>
    <message>
        <source>It is a file on another computer. Copy it to this computer first.</source>
        <translation>Ce fichier se trouve sur un autre ordinateur. Copiez-le d’abord sur celui-ci.</translation>
    </message>
    <message>
        <source>It is not a media file, or it is damaged.</source>
        <translation>Ce n’est pas un fichier multimédia, ou il est endommagé.</translation>
    </message>
    <message>
        <source>Files of this format cannot be imported.</source>
        <translation>Les fichiers de ce format ne peuvent pas être importés.</translation>
    </message>
    <message>
        <source>Its content cannot be read.</source>
        <translation>Son contenu est illisible.</translation>
    </message>
    <message>
        <source>The image in it cannot be read.</source>
        <translation>L’image qu’il contient est illisible.</translation>
    </message>
    <message>
        <source>It contains neither picture nor sound.</source>
        <translation>Il ne contient ni image ni son.</translation>
    </message>
    <message>
        <source>Its length cannot be determined.</source>
        <translation>Impossible de déterminer sa durée.</translation>
    </message>
    <message>
        <source>It could not be read in time.</source>
        <translation>Il n’a pas pu être lu à temps.</translation>
    </message>
    <message>
        <source>The media reader crashed while reading it.</source>
        <translation>Le lecteur de médias s’est arrêté brutalement en le lisant.</translation>
    </message>
    <message>
        <source>The media reader gave no valid answer about it.</source>
        <translation>Le lecteur de médias n’a pas donné de réponse valable.</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader is missing: %1</source>
        <translation>Impossible de lire les médias. Le lecteur de médias est absent&#xa0;: %1</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 cannot be started. %2</source>
        <translation>Impossible de lire les médias. Le lecteur de médias %1 ne peut pas être lancé. %2</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 does not answer.</source>
        <translation>Impossible de lire les médias. Le lecteur de médias %1 ne répond pas.</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 exits immediately.</source>
        <translation>Impossible de lire les médias. Le lecteur de médias %1 se ferme aussitôt.</translation>
    </message>
    <message>
        <source>Media cannot be read. The media reader %1 is of another version.</source>
        <translation>Impossible de lire les médias. Le lecteur de médias %1 est d’une autre version.</translation>
    </message>
    <message>
        <source>Version %1 is damaged.</source>
        <translation>La version %1 est endommagée.</translation>
    </message>
    <message numerus="yes">
        <source>The name or the note of a version is longer than %n characters.</source>
        <translation>
            <numerusform>Le nom ou la note d’une version dépasse %n caractère.</numerusform>
            <numerusform>Le nom ou la note d’une version dépasse %n caractères.</numerusform>
        </translation>
    </message>
    <message>
        <source>The name or the note of a version contains a character that is not visible.</source>
        <translation>Le nom ou la note d’une version contient un caractère invisible.</translation>
    </message>
    <message>
        <source>No schedule file is open, so nothing can be saved.</source>
        <translation>Aucun fichier de programmation n’est ouvert, rien ne peut donc être enregistré.</translation>
    </message>
    <message>
        <source>%1 cannot be opened. Its folder does not exist.</source>
        <translation>Impossible d’ouvrir %1. Son dossier n’existe pas.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 n’existe pas.</translation>
    </message>
    <message>
        <source>%1 is not a schedule database.</source>
        <translation>%1 n’est pas une base de données de programmation.</translation>
    </message>
    <message>
        <source>%1 is a database of another application.</source>
        <translation>%1 est une base de données d’un autre logiciel.</translation>
    </message>
    <message>
        <source>%1 was written by a newer version of this application.</source>
        <translation>%1 a été écrit par une version plus récente de ce logiciel.</translation>
    </message>
    <message>
        <source>%1 is in use by another application. Try again when that application is closed.</source>
        <translation>%1 est utilisé par un autre logiciel. Réessayez lorsque celui-ci sera fermé.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>Impossible d’écrire %1. %2</translation>
    </message>
    <message>
        <source>%1 is damaged. %2</source>
        <translation>%1 est endommagé. %2</translation>
    </message>
    <message>
        <source>%1 has been saved by another application in the meantime. Saving now would overwrite those changes.</source>
        <translation>%1 a été enregistré entre-temps par un autre logiciel. Enregistrer maintenant écraserait ces modifications.</translation>
    </message>
    <message>
        <source>%1 has no room for more programs. %2</source>
        <translation>%1 ne peut pas contenir d’autres programmes. %2</translation>
    </message>
    <message>
        <source>%1 could not be read or written. %2</source>
        <translation>Impossible de lire ou d’écrire %1. %2</translation>
    </message>
    <message>
        <source>%1 is not a schedule database as this application creates it. %2</source>
        <translation>%1 n’est pas une base de données de programmation telle que ce logiciel les crée. %2</translation>
    </message>
    <message>
        <source>%1 exceeds what a schedule can hold. %2</source>
        <translation>%1 dépasse ce qu’une programmation peut contenir. %2</translation>
    </message>
    <message>
        <source>%1 may not have been written. %2 The change is not visible in the file now, but may be there after a restart of the computer. Write the schedule to another disk, and check the current one before you go on.</source>
        <translation>%1 n’a peut-être pas été écrit. %2 La modification n’est pas visible dans le fichier pour l’instant, mais peut y figurer après un redémarrage de l’ordinateur. Enregistrez la programmation sur un autre disque et vérifiez le disque actuel avant de continuer.</translation>
    </message>
    <message>
        <source>It is not certain whether %1 has been written. %2 Once the server can be reached again, see whether the change is there before you go on.</source>
        <translation>Il n’est pas certain que %1 ait été écrit. %2 Dès que le serveur est de nouveau joignable, vérifiez si la modification s’y trouve avant de continuer.</translation>
    </message>
    <message>
        <source>%1 does not exist. A schedule on a server is set up with “schedulectl server-setup”.</source>
        <translation>%1 n’existe pas. Une programmation sur un serveur se configure avec «&#xa0;schedulectl server-setup&#xa0;».</translation>
    </message>
    <message>
        <source>You do not have permission.</source>
        <translation>Vous n’avez pas l’autorisation.</translation>
    </message>
    <message>
        <source>The file or a folder of its path does not exist.</source>
        <translation>Le fichier ou un dossier de son chemin n’existe pas.</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>Le disque est protégé en écriture.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Le nom est trop long.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Trop de fichiers sont ouverts.</translation>
    </message>
    <message>
        <source>The file is in use.</source>
        <translation>Le fichier est en cours d’utilisation.</translation>
    </message>
    <message>
        <source>The system reports error %1.</source>
        <translation>Le système signale l’erreur %1.</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>vrai ou faux</translation>
    </message>
    <message>
        <source>number</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texte</translation>
    </message>
    <message>
        <source>list</source>
        <translation>liste</translation>
    </message>
    <message>
        <source>object</source>
        <translation>objet</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>aucune valeur</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>nombre entier</translation>
    </message>
    <message>
        <source>whole number as text</source>
        <translation>nombre entier sous forme de texte</translation>
    </message>
    <message>
        <source>program number that occurs once</source>
        <translation>numéro de programme qui n’apparaît qu’une fois</translation>
    </message>
    <message>
        <source>another number</source>
        <translation>un autre nombre</translation>
    </message>
    <message>
        <source>SHA-256 hash</source>
        <translation>empreinte SHA-256</translation>
    </message>
    <message>
        <source>another text</source>
        <translation>un autre texte</translation>
    </message>
    <message>
        <source>%1 could not be read. %2</source>
        <translation>Impossible de lire %1. %2</translation>
    </message>
    <message>
        <source>Line %1, %2: %3</source>
        <translation>Ligne %1, %2&#xa0;: %3</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProgramTableModel</name>
    <message>
        <source>File not found: %1</source>
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
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
</context>
<context>
    <name>trel::desktop::SaveRescue</name>
    <message>
        <source>The schedule was not saved. %1

What do you want to do with your changes?</source>
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
        <source>Write the schedule to a file</source>
        <translation>Enregistrer la programmation dans un fichier</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>Programmations (*.json)</translation>
    </message>
    <message>
        <source>Go on editing</source>
        <translation>Continuer à modifier</translation>
    </message>
    <message>
        <source>While you were editing, %1 was saved by another program. Your changes are not saved.</source>
        <translation>Pendant vos modifications, %1 a été enregistrée par une autre application. Vos modifications ne sont pas enregistrées.</translation>
    </message>
    <message>
        <source>If you keep yours, what was saved there stays among the versions. If you take theirs, yours can be brought back until the next save.</source>
        <translation>Si vous gardez les vôtres, ce qui a été enregistré là-bas reste parmi les versions. Si vous prenez les autres, les vôtres peuvent être récupérées jusqu’au prochain enregistrement.</translation>
    </message>
    <message>
        <source>What was changed there:</source>
        <translation>Ce qui y a été modifié :</translation>
    </message>
    <message>
        <source>Nothing that you would see.</source>
        <translation>Rien de visible.</translation>
    </message>
    <message>
        <source>As it was saved there</source>
        <translation>Comme enregistrée là-bas</translation>
    </message>
    <message>
        <source>With your changes</source>
        <translation>Avec vos modifications</translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation>Garder les miennes</translation>
    </message>
    <message>
        <source>Take theirs</source>
        <translation>Prendre les autres</translation>
    </message>
    <message>
        <source>Write mine to a file</source>
        <translation>Enregistrer les miennes dans un fichier</translation>
    </message>
    <message>
        <source>While you were editing, %1 was saved by %2, on %3. Your changes are not saved.</source>
        <comment>the database, a program, and the time</comment>
        <translation>Pendant vos modifications, %1 a été enregistrée par %2, le %3. Vos modifications ne sont pas enregistrées.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ClockChangePanel</name>
    <message>
        <source>Clock changes</source>
        <translation>Changements d’heure</translation>
    </message>
    <message>
        <source>No clock change falls within the validity of any task.</source>
        <translation>Aucun changement d’heure ne tombe pendant la validité d’une tâche.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; no plan of task %4 is affected.</source>
        <translation>%1&#xa0;: la plage %2–%3 est sautée&#xa0;; aucun créneau de la tâche %4 n’est concerné.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; no plan of task %4 is affected.</source>
        <translation>%1&#xa0;: la plage %2–%3 a lieu deux fois&#xa0;; aucun créneau de la tâche %4 n’est concerné.</translation>
    </message>
</context>
<context>
    <name>ClockChangeText</name>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 does not play.</source>
        <translation>%1&#xa0;: la plage %2–%3 est sautée&#xa0;; le créneau %4 de la tâche %5 n’est pas diffusé.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 starts at %6 in the middle of its list.</source>
        <translation>%1&#xa0;: la plage %2–%3 est sautée&#xa0;; le créneau %4 de la tâche %5 commence à %6 au milieu de sa liste.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 is cut off at %6.</source>
        <translation>%1&#xa0;: la plage %2–%3 est sautée&#xa0;; le créneau %4 de la tâche %5 est interrompu à %6.</translation>
    </message>
    <message>
        <source>%1: %2–%3 is skipped; plan %4 of task %5 skips this part of its list.</source>
        <translation>%1&#xa0;: la plage %2–%3 est sautée&#xa0;; le créneau %4 de la tâche %5 saute cette partie de sa liste.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 plays twice.</source>
        <translation>%1&#xa0;: la plage %2–%3 a lieu deux fois&#xa0;; le créneau %4 de la tâche %5 est diffusé deux fois.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 starts twice at %6.</source>
        <translation>%1&#xa0;: la plage %2–%3 a lieu deux fois&#xa0;; le créneau %4 de la tâche %5 commence deux fois à %6.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 ends twice at %6.</source>
        <translation>%1&#xa0;: la plage %2–%3 a lieu deux fois&#xa0;; le créneau %4 de la tâche %5 se termine deux fois à %6.</translation>
    </message>
    <message>
        <source>%1: %2–%3 occurs twice; plan %4 of task %5 repeats this part of its list.</source>
        <translation>%1&#xa0;: la plage %2–%3 a lieu deux fois&#xa0;; le créneau %4 de la tâche %5 répète cette partie de sa liste.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::PreviewDock</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Aperçu</translation>
    </message>
    <message>
        <source>&amp;Full-screen preview</source>
        <translation>Aperçu en &amp;plein écran</translation>
    </message>
</context>
<context>
    <name>trel::desktop::PreviewScreen</name>
    <message>
        <source>Preview of the screen</source>
        <translation>Aperçu de l’écran</translation>
    </message>
</context>
<context>
    <name>trel::desktop::NowNextPanel</name>
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
        <translation>Contenu de l’écran</translation>
    </message>
    <message>
        <source>Program on screen</source>
        <translation>Programme à l’écran</translation>
    </message>
    <message>
        <source>Position in the program</source>
        <translation>Position dans le programme</translation>
    </message>
    <message>
        <source>Why this is on screen</source>
        <translation>Raison de l’affichage</translation>
    </message>
    <message>
        <source>Next program</source>
        <translation>Programme suivant</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>Programmation non démarrée</translation>
    </message>
    <message>
        <source>%1 played</source>
        <translation>%1 diffusé</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>reste %1</translation>
    </message>
    <message>
        <source>%1, until %2, %3 left</source>
        <translation>%1, jusqu’à %2, reste %3</translation>
    </message>
    <message>
        <source>Nothing else is scheduled.</source>
        <translation>Rien d’autre n’est prévu.</translation>
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
        <translation>En diffusion</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>Frozen</source>
        <translation>Image figée</translation>
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
        <translation>Entrée %1 sur %2, diffusion %3 sur %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2</source>
        <translation>Tâche %1, créneau %2</translation>
    </message>
    <message>
        <source>Choose Start to put the saved schedule into effect.</source>
        <translation>Le bouton «&#xa0;Démarrer&#xa0;» met en vigueur la programmation enregistrée.</translation>
    </message>
    <message>
        <source>No plan has started yet.</source>
        <translation>Aucun créneau n’a encore commencé.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is the first of the plans for this time.</source>
        <translation>Parmi les créneaux prévus à cette heure, le créneau %1 de la tâche %2 vient en premier.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is due, but none of its programs can play.</source>
        <translation>C’est le tour du créneau %1 de la tâche %2, mais aucun de ses programmes ne peut être diffusé.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is due, but its list is to run less than once.</source>
        <translation>C’est le tour du créneau %1 de la tâche %2, mais sa liste doit être diffusée moins d’une fois.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 has played its list the set number of times.</source>
        <translation>Le créneau %1 de la tâche %2 a diffusé sa liste autant de fois que prévu.</translation>
    </message>
    <message>
        <source>Plan %1 of task %2 is over, and no other has begun.</source>
        <translation>Le créneau %1 de la tâche %2 est terminé et aucun autre n’a commencé.</translation>
    </message>
    <message>
        <source>Cut in manually in place of plan %1 of task %2.</source>
        <translation>Inséré manuellement à la place du créneau %1 de la tâche %2.</translation>
    </message>
    <message>
        <source>What was cut in for plan %1 of task %2 has nothing left to play.</source>
        <translation>L’insertion à la place du créneau %1 de la tâche %2 n’a plus rien à diffuser.</translation>
    </message>
    <message>
        <source>Cut in: %1</source>
        <translation>Inséré&#xa0;: %1</translation>
    </message>
    <message>
        <source>Original list: %1</source>
        <translation>Liste d’origine&#xa0;: %1</translation>
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
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>Week</name>
    <message>
        <source>%1, task %2. %3</source>
        <comment>day, its task, and a plan with its times and programs</comment>
        <translation>%1, tâche %2. %3</translation>
    </message>
    <message>
        <source>On screen: %1, at %2</source>
        <translation>À l’écran&#xa0;: %1, à %2</translation>
    </message>
    <message>
        <source>On screen: %1</source>
        <translation>À l’écran&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>day and time of day</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 to %2 is skipped: the clocks go forward.</source>
        <translation>La plage %1–%2 est sautée&#xa0;: on avance les horloges.</translation>
    </message>
    <message>
        <source>%1 to %2 occurs twice: the clocks go back.</source>
        <translation>La plage %1–%2 a lieu deux fois&#xa0;: on recule les horloges.</translation>
    </message>
    <message numerus="yes">
        <source>%n more plans do not reach the screen.</source>
        <translation>
            <numerusform>%n autre créneau n’est pas affiché à l’écran.</numerusform>
            <numerusform>%n autres créneaux ne sont pas affichés à l’écran.</numerusform>
        </translation>
    </message>
    <message>
        <source>Plan %1, above it, takes precedence.</source>
        <translation>Le créneau %1, placé au-dessus, est prioritaire.</translation>
    </message>
    <message>
        <source>It conflicts with a plan above it.</source>
        <translation>Il est en conflit avec un créneau placé au-dessus.</translation>
    </message>
    <message>
        <source>Its list is over at %1, before the plan ends.</source>
        <translation>Sa liste se termine à %1, avant le créneau.</translation>
    </message>
    <message>
        <source>Plan %1, %2 to %3</source>
        <translation>Créneau %1, de %2 à %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>plan and its programs</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>No task is valid on this day.</source>
        <translation>Aucune tâche n’est valide ce jour-là.</translation>
    </message>
    <message>
        <source>No task is valid</source>
        <translation>Aucune tâche</translation>
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
        <translation>Image figée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Cut in: %1</source>
        <translation>Inséré&#xa0;: %1</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Plage sautée</translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation>Plage doublée</translation>
    </message>
    <message>
        <source>nothing to show</source>
        <translation>rien à montrer</translation>
    </message>
    <message>
        <source>Not on screen</source>
        <translation>Pas à l’écran</translation>
    </message>
    <message>
        <source>In conflict</source>
        <translation>En conflit</translation>
    </message>
    <message>
        <source>Programs of the week</source>
        <translation>Programmes de la semaine</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekView</name>
    <message>
        <source>Week</source>
        <translation>Semaine</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekPanel</name>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
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
        <source>Previous week</source>
        <translation>Semaine précédente</translation>
    </message>
    <message>
        <source>Next week</source>
        <translation>Semaine suivante</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Schedule shown</source>
        <translation>Programmation affichée</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Mois précédent</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Mois suivant</translation>
    </message>
    <message>
        <source>Choose a day in a calendar</source>
        <translation>Choisir un jour dans un calendrier</translation>
    </message>
    <message>
        <source>%1. Choose a day in a calendar</source>
        <comment>days of a week</comment>
        <translation>%1. Choisir un jour dans un calendrier</translation>
    </message>
</context>
<context>
    <name>ProblemText</name>
    <message>
        <source>Task %1</source>
        <translation>Tâche %1</translation>
    </message>
    <message>
        <source>Task %1, row %2</source>
        <translation>Tâche %1, ligne %2</translation>
    </message>
    <message>
        <source>The validity overlaps that of task %1 from %2 to %3.</source>
        <translation>La validité chevauche celle de la tâche %1 du %2 au %3.</translation>
    </message>
    <message>
        <source>The validity overlaps that of task %1.</source>
        <translation>La validité chevauche celle de la tâche %1.</translation>
    </message>
    <message>
        <source>The task is never valid: “%1” to “%2” is not a period.</source>
        <translation>La tâche n’est jamais valide : « %1 » à « %2 » n’est pas une période.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: none of its days falls within the validity of the task.</source>
        <translation>Le créneau %1 n’est jamais diffusé : aucun de ses jours ne tombe dans la validité de la tâche.</translation>
    </message>
    <message>
        <source>Plan %1 is never on screen: earlier rows such as row %2 always come first.</source>
        <translation>Le créneau %1 n’est jamais à l’écran : des lignes précédentes, comme la ligne %2, passent toujours avant.</translation>
    </message>
    <message>
        <source>Plan %1 is in conflict with plan %2 in row %3 from %4 on.</source>
        <translation>Le créneau %1 est en conflit avec le créneau %2 de la ligne %3 à partir du %4.</translation>
    </message>
    <message>
        <source>Plan %1 is in conflict with plan %2 in row %3, but on no date.</source>
        <translation>Le créneau %1 est en conflit avec le créneau %2 de la ligne %3, mais à aucune date.</translation>
    </message>
    <message>
        <source>No picture from %1 to %2, every day.</source>
        <translation>Pas d’image de %1 à %2, tous les jours.</translation>
    </message>
    <message>
        <source>No picture from %1 to %2 on: %3.</source>
        <translation>Pas d’image de %1 à %2 : %3.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it would go on after midnight, until %2.</source>
        <translation>Le créneau %1 n’est jamais diffusé : il dépasserait minuit, jusqu’à %2.</translation>
    </message>
    <message>
        <source>Plan %1 is cut off at midnight: it would go on until %2.</source>
        <translation>Le créneau %1 est coupé à minuit : il irait jusqu’à %2.</translation>
    </message>
    <message>
        <source>Plan %1 is cut off at midnight: it would go on for more than a day.</source>
        <translation>Le créneau %1 est coupé à minuit : il durerait encore plus d’un jour.</translation>
    </message>
    <message>
        <source>Invalid entries in plan %1: %2. The first is “%3”.</source>
        <translation>Entrées non valides dans le créneau %1 : %2. La première est « %3 ».</translation>
    </message>
    <message>
        <source>Missing files in plan %1: %2. The first is “%3”.</source>
        <translation>Fichiers manquants dans le créneau %1 : %2. Le premier est « %3 ».</translation>
    </message>
    <message>
        <source>Entries without a length in plan %1: %2. The first is “%3”.</source>
        <translation>Entrées sans durée dans le créneau %1 : %2. La première est « %3 ».</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is cut off at the end of the day.</source>
        <translation>Dans le créneau %1, « %2 » est coupé à la fin du jour.</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is cut off at %3, when the plan ends.</source>
        <translation>Dans le créneau %1, « %2 » est coupé à %3, à la fin du créneau.</translation>
    </message>
    <message>
        <source>In plan %1, “%2” is never reached: an entry before it does not end by itself.</source>
        <translation>Dans le créneau %1, « %2 » n’est jamais atteint : une entrée qui précède ne se termine pas d’elle-même.</translation>
    </message>
    <message>
        <source>Plan %1 contains no programs.</source>
        <translation>Le créneau %1 ne contient aucun programme.</translation>
    </message>
    <message>
        <source>Change the dates of one of the two tasks. Until then nothing can be saved.</source>
        <translation>Modifiez les dates de l’une des deux tâches. D’ici là, rien ne peut être enregistré.</translation>
    </message>
    <message>
        <source>Choose a start date, and an end date that is not before it.</source>
        <translation>Choisissez une date de début et une date de fin qui ne la précède pas.</translation>
    </message>
    <message>
        <source>Correct the days and times of the plan.</source>
        <translation>Corrigez les jours et les heures du créneau.</translation>
    </message>
    <message>
        <source>Change the days or times of one of the plans.</source>
        <translation>Modifiez les jours ou les heures de l’un des créneaux.</translation>
    </message>
    <message>
        <source>Restore the files, or choose other programs.</source>
        <translation>Restaurez les fichiers, ou choisissez d’autres programmes.</translation>
    </message>
    <message>
        <source>Choose the programs of the plan anew.</source>
        <translation>Choisissez à nouveau les programmes du créneau.</translation>
    </message>
    <message>
        <source>Split the plan in two, or let it end before midnight.</source>
        <translation>Divisez le créneau en deux, ou faites-le finir avant minuit.</translation>
    </message>
    <message>
        <source>Let the plan end before midnight.</source>
        <translation>Faites finir le créneau avant minuit.</translation>
    </message>
    <message>
        <source>Let the plan end later, or play less.</source>
        <translation>Faites finir le créneau plus tard, ou diffusez moins de programmes.</translation>
    </message>
    <message>
        <source>Move the entry to the front, or into another plan.</source>
        <translation>Déplacez l’entrée vers le début, ou dans un autre créneau.</translation>
    </message>
    <message>
        <source>Add a plan, or let the plan before it end with its last frame.</source>
        <translation>Ajoutez un créneau, ou laissez le créneau précédent finir sur une image figée.</translation>
    </message>
    <message>
        <source>Move the plan if that is not wanted.</source>
        <translation>Déplacez le créneau si cela n’est pas souhaité.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemModel</name>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>As of</source>
        <translation>À partir du</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Que faire</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemPanel</name>
    <message>
        <source>No problems.</source>
        <translation>Aucun problème.</translation>
    </message>
    <message>
        <source>Go to the row</source>
        <translation>Aller à la ligne</translation>
    </message>
    <message>
        <source>Split in two</source>
        <translation>Diviser en deux</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemDock</name>
    <message>
        <source>No open problems</source>
        <translation>Aucun problème en suspens</translation>
    </message>
    <message numerus="yes">
        <source>%n open problems</source>
        <translation>
            <numerusform>%n problème en suspens</numerusform>
            <numerusform>%n problèmes en suspens</numerusform>
        </translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problèmes</translation>
    </message>
    <message>
        <source>Pro&amp;blems</source>
        <translation>Pro&amp;blèmes</translation>
    </message>
    <message>
        <source>Show what is wrong with the schedule</source>
        <translation>Afficher ce qui ne va pas dans la programmation</translation>
    </message>
</context>
<context>
    <name>PlanFaultText</name>
    <message>
        <source>Plan %1 never plays: none of its days is a day of the week.</source>
        <translation>Le créneau %1 n’est jamais diffusé&#xa0;: aucun de ses jours n’est un jour de la semaine.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, is not a time in the form %3.</source>
        <translation>Le créneau %1 n’est jamais diffusé&#xa0;: son début, «&#xa0;%2&#xa0;», n’est pas une heure au format %3.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its end, “%2”, is not a time in the form %3.</source>
        <translation>Le créneau %1 n’est jamais diffusé&#xa0;: sa fin, «&#xa0;%2&#xa0;», n’est pas une heure au format %3.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its start, “%2”, and its end, “%3”, are not times in the form %4.</source>
        <translation>Le créneau %1 n’est jamais diffusé&#xa0;: son début, «&#xa0;%2&#xa0;», et sa fin, «&#xa0;%3&#xa0;», ne sont pas des heures au format %4.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: its list is to run less than once.</source>
        <translation>Le créneau %1 n’est jamais diffusé&#xa0;: sa liste doit être diffusée moins d’une fois.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it starts and ends at %2.</source>
        <translation>Le créneau %1 n’est jamais diffusé&#xa0;: il commence et se termine à %2.</translation>
    </message>
    <message>
        <source>Plan %1 never plays: it ends at %3, before it starts at %2.</source>
        <translation>Le créneau %1 n’est jamais diffusé&#xa0;: il commence à %2 et se termine avant, à %3.</translation>
    </message>
</context>
<context>
    <name>ZoneError</name>
    <message>
        <source>The system knows no time zone of the name “%1”, so that the local time is not known.</source>
        <translation>Le système ne connaît aucun fuseau horaire du nom de «&#xa0;%1&#xa0;»&#xa0;; l’heure locale n’est donc pas connue.</translation>
    </message>
</context>
<context>
    <name>trel::widgets::TitleButton</name>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>trel::desktop::EffectActions</name>
    <message>
        <source>Stop the schedule that is in effect? The screen stays black until a schedule is started again.</source>
        <translation>Arrêter la programmation en vigueur&#xa0;? L’écran restera noir jusqu’au prochain démarrage d’une programmation.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>EffectWords</name>
    <message>
        <source>In effect since %1 at %2 (save %3)</source>
        <translation>En vigueur depuis le %1 à %2 (version %3)</translation>
    </message>
    <message>
        <source>Started by %1.</source>
        <translation>Démarrée par %1.</translation>
    </message>
    <message numerus="yes">
        <source>What is saved differs in %n tasks: %1</source>
        <translation>
            <numerusform>La version enregistrée diffère pour %n tâche&#xa0;: %1</numerusform>
            <numerusform>La version enregistrée diffère pour %n tâches&#xa0;: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <comment>a program</comment>
        <translation>«&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the last frame of “%1”</source>
        <translation>la dernière image de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>a black screen</source>
        <translation>l’écran noir</translation>
    </message>
    <message>
        <source>%1 comes after %2, at %3; %4 comes back at %5.</source>
        <translation>%1 passe après %2, à %3&#xa0;; %4 revient à %5.</translation>
    </message>
    <message>
        <source>%1 was cut off at %2; %3 comes at %4.</source>
        <translation>%1 a été coupé à %2&#xa0;; %3 vient à %4.</translation>
    </message>
    <message>
        <source>%1 was cut in at %2; %3 comes back at %4.</source>
        <translation>%1 a été inséré à %2&#xa0;; %3 revient à %4.</translation>
    </message>
    <message>
        <source>%1 comes after %2, at %3.</source>
        <translation>%1 passe après %2, à %3.</translation>
    </message>
    <message>
        <source>%1 was cut off at %2.</source>
        <translation>%1 a été coupé à %2.</translation>
    </message>
    <message>
        <source>%1 was cut in at %2.</source>
        <translation>%1 a été inséré à %2.</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <comment>time and date</comment>
        <translation>%1 le %2</translation>
    </message>
    <message>
        <source>What is in effect could not be changed. %1</source>
        <translation>Ce qui est en vigueur n’a pas pu être modifié. %1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::AsRunWindow</name>
    <message>
        <source>As-run</source>
        <translation>Relevé de diffusion</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Écran</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Previous day</source>
        <translation>Jour précédent</translation>
    </message>
    <message>
        <source>Next day</source>
        <translation>Jour suivant</translation>
    </message>
    <message>
        <source>Only what was not as planned</source>
        <translation>Seulement ce qui n’était pas prévu</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Chargement…</translation>
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
        <translation>À</translation>
    </message>
    <message>
        <source>Planned</source>
        <translation>Prévu</translation>
    </message>
    <message>
        <source>On screen</source>
        <translation>À l’écran</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Remarque</translation>
    </message>
</context>
<context>
    <name>AsRunText</name>
    <message>
        <source>Not known</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>No record</source>
        <translation>Aucune trace</translation>
    </message>
    <message>
        <source>No player</source>
        <translation>Aucun lecteur</translation>
    </message>
    <message>
        <source>Stand-by picture</source>
        <translation>Image d’attente</translation>
    </message>
    <message>
        <source>Last good frame of %1</source>
        <translation>Dernière bonne image de %1</translation>
    </message>
    <message>
        <source>What was on before</source>
        <translation>Ce qui précédait</translation>
    </message>
    <message>
        <source>Cut off: the schedule was stopped</source>
        <translation>Coupé : programmation arrêtée</translation>
    </message>
    <message>
        <source>Cut off: the player was ended</source>
        <translation>Coupé : lecteur fermé</translation>
    </message>
    <message>
        <source>Cut off: the player was killed</source>
        <translation>Coupé : lecteur interrompu</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Cut off: the clock was changed</source>
        <translation>Coupé : horloge modifiée</translation>
    </message>
    <message>
        <source>The player had been ended</source>
        <translation>Le lecteur était fermé</translation>
    </message>
    <message>
        <source>The player had been killed</source>
        <translation>Le lecteur avait été interrompu</translation>
    </message>
    <message>
        <source>The machine had stopped</source>
        <translation>La machine était arrêtée</translation>
    </message>
    <message>
        <source>The player had no schedule yet</source>
        <translation>Le lecteur n’avait pas encore de programmation</translation>
    </message>
    <message>
        <source>The machine was asleep</source>
        <translation>La machine était en veille</translation>
    </message>
    <message>
        <source>The records could not be kept</source>
        <translation>Le relevé n’a pas pu être tenu</translation>
    </message>
    <message>
        <source>Recorded until %1.</source>
        <translation>Consigné jusqu’à %1.</translation>
    </message>
    <message>
        <source>Only the first %1 lines of the day are shown.</source>
        <translation>Seules les %1 premières lignes du jour sont affichées.</translation>
    </message>
    <message>
        <source>No record tells why</source>
        <translation>Aucune trace ne dit pourquoi</translation>
    </message>
    <message>
        <source>%1 s late</source>
        <translation>%1 s de retard</translation>
    </message>
    <message>
        <source>The records cannot be read: %1</source>
        <translation>Le relevé ne peut pas être lu : %1</translation>
    </message>
    <message>
        <source>No player has recorded anything for this database.</source>
        <translation>Aucun lecteur n’a rien consigné pour cette base de données.</translation>
    </message>
    <message>
        <source>The records were changed, or some are missing. “schedulectl as-run --verify” names the place.</source>
        <translation>Le relevé a été modifié ou est incomplet. « schedulectl as-run --verify » indique l’endroit.</translation>
    </message>
    <message>
        <source>Not as planned, and no record tells why: %1</source>
        <translation>Différent de ce qui était prévu, sans trace qui dise pourquoi : %1</translation>
    </message>
    <message>
        <source>There is no record of this day.</source>
        <translation>Il n’y a aucune trace de ce jour.</translation>
    </message>
    <message>
        <source>The screen was as planned, or a record tells why not.</source>
        <translation>L’écran a montré ce qui était prévu, ou une trace dit pourquoi non.</translation>
    </message>
    <message>
        <source>Cut off: something was cut in</source>
        <translation>Coupé : quelque chose a été inséré</translation>
    </message>
    <message>
        <source>Cut off: another schedule came</source>
        <translation>Coupé : autre programmation</translation>
    </message>
</context>
<context>
    <name>EditWords</name>
    <message>
        <source>Back to what is saved</source>
        <translation>Retour à ce qui est enregistré</translation>
    </message>
    <message>
        <source>Saved by another program: tasks %1</source>
        <translation>Enregistré par une autre application&#xa0;: tâches %1</translation>
    </message>
    <message>
        <source>This takes back what another program has saved as well (tasks %1). Nothing is overwritten before you save, and what was saved there stays among the versions.</source>
        <translation>Cela annule aussi ce qu’une autre application a enregistré (tâches %1). Rien n’est écrasé tant que vous n’enregistrez pas, et ce qui a été enregistré là-bas reste parmi les versions.</translation>
    </message>
    <message>
        <source>Take it back</source>
        <translation>L’annuler</translation>
    </message>
    <message>
        <source>Leave it</source>
        <translation>Le laisser</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks edited</source>
        <translation>
            <numerusform>%n tâche modifiée</numerusform>
            <numerusform>%n tâches modifiées</numerusform>
        </translation>
    </message>
    <message>
        <source>Task %1 added</source>
        <translation>Tâche %1 ajoutée</translation>
    </message>
    <message>
        <source>Task %1 deleted</source>
        <translation>Tâche %1 supprimée</translation>
    </message>
    <message>
        <source>Task %1 edited</source>
        <translation>Tâche %1 modifiée</translation>
    </message>
    <message>
        <source>Task %1: first day %2 → %3</source>
        <translation>Tâche %1 : premier jour %2 → %3</translation>
    </message>
    <message>
        <source>Task %1: last day %2 → %3</source>
        <translation>Tâche %1 : dernier jour %2 → %3</translation>
    </message>
    <message>
        <source>Task %1, plan %2 added</source>
        <translation>Tâche %1, créneau %2 ajouté</translation>
    </message>
    <message>
        <source>Task %1, plan %2 deleted</source>
        <translation>Tâche %1, créneau %2 supprimé</translation>
    </message>
    <message>
        <source>Task %1, plan %2 edited</source>
        <translation>Tâche %1, créneau %2 modifié</translation>
    </message>
    <message>
        <source>Task %1, plan %2: other programs</source>
        <translation>Tâche %1, créneau %2 : autres programmes</translation>
    </message>
    <message>
        <source>Task %1, plan %2: ends at a set time</source>
        <translation>Tâche %1, créneau %2 : finit à une heure fixe</translation>
    </message>
    <message>
        <source>Task %1, plan %2: ends after a number of runs</source>
        <translation>Tâche %1, créneau %2 : finit après un nombre de passages</translation>
    </message>
    <message>
        <source>Task %1, plan %2: start %3 → %4</source>
        <translation>Tâche %1, créneau %2 : début %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: end %3 → %4</source>
        <translation>Tâche %1, créneau %2 : fin %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: days %3 → %4</source>
        <translation>Tâche %1, créneau %2 : jours %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: runs %3 → %4</source>
        <translation>Tâche %1, créneau %2 : passages %3 → %4</translation>
    </message>
    <message>
        <source>Task %1, plan %2: a black screen at the end</source>
        <translation>Tâche %1, créneau %2 : écran noir à la fin</translation>
    </message>
    <message>
        <source>Task %1, plan %2: the last frame at the end</source>
        <translation>Tâche %1, créneau %2 : image figée à la fin</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>tous les jours</translation>
    </message>
    <message>
        <source>Task %1, plan %2: %3 → %4</source>
        <translation>Tâche %1, créneau %2 : %3 → %4</translation>
    </message>
</context>
<context>
    <name>trel::desktop::undo::HistoryActions</name>
    <message>
        <source>&amp;Undo</source>
        <translation>Ann&amp;uler</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>what is done, and the step</comment>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>trel::desktop::undo::HistoryModel</name>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>%1 (saved)</source>
        <comment>a step</comment>
        <translation>%1 (enregistré)</translation>
    </message>
    <message>
        <source>%1 (saved; editor opened)</source>
        <comment>a step</comment>
        <translation>%1 (enregistré ; éditeur ouvert)</translation>
    </message>
    <message>
        <source>%1 (editor opened)</source>
        <comment>a step</comment>
        <translation>%1 (éditeur ouvert)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::undo::HistoryDock</name>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>H&amp;istorique</translation>
    </message>
</context>
<context>
    <name>DraftWords</name>
    <message>
        <source>There are changes that were not saved. The last one was made on %1.</source>
        <translation>Des modifications n’ont pas été enregistrées. La dernière date du %1.</translation>
    </message>
    <message>
        <source>New tasks: %1</source>
        <translation>Nouvelles tâches : %1</translation>
    </message>
    <message>
        <source>Changed tasks: %1</source>
        <translation>Tâches modifiées : %1</translation>
    </message>
    <message>
        <source>Deleted tasks: %1</source>
        <translation>Tâches supprimées : %1</translation>
    </message>
    <message>
        <source>The very last change may be missing.</source>
        <translation>La toute dernière modification peut manquer.</translation>
    </message>
    <message>
        <source>A part of them is damaged and cannot be read.</source>
        <translation>Une partie est endommagée et illisible.</translation>
    </message>
    <message>
        <source>They were made in another database, which stood in the place of this one.</source>
        <translation>Elles ont été faites dans une autre base de données, qui se trouvait à la place de celle-ci.</translation>
    </message>
    <message>
        <source>The schedule was saved since then.</source>
        <translation>La programmation a été enregistrée depuis.</translation>
    </message>
    <message>
        <source>The file %1 keeps changes that were not saved. They were made with a newer version of this program, which has to be used to take them over.</source>
        <translation>Le fichier %1 contient des modifications non enregistrées. Elles viennent d’une version plus récente de cette application, nécessaire pour les reprendre.</translation>
    </message>
    <message>
        <source>The file %1 should keep changes that were not saved, but nothing in it can be read.</source>
        <translation>Le fichier %1 devrait contenir des modifications non enregistrées, mais rien n’y est lisible.</translation>
    </message>
    <message>
        <source>Changes that are not saved cannot be kept beside the database at the moment: if the program ends now, they are lost. %1</source>
        <translation>Les modifications non enregistrées ne peuvent pas être conservées à côté de la base de données pour le moment : si l’application s’arrête maintenant, elles sont perdues. %1</translation>
    </message>
    <message>
        <source>The changes could not be kept beside the database. They are still in the editor.</source>
        <translation>Les modifications n’ont pas pu être conservées à côté de la base de données. Elles sont encore dans l’éditeur.</translation>
    </message>
    <message>
        <source>Take over</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Put into a file</source>
        <translation>Mettre dans un fichier</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Delete the file</source>
        <translation>Supprimer le fichier</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>Décider plus tard</translation>
    </message>
    <message>
        <source>There are changes that were not saved. The last one was made %1, on %2.</source>
        <translation>Des modifications n’ont pas été enregistrées. La dernière a été faite %1, le %2.</translation>
    </message>
    <message>
        <source>less than a minute ago</source>
        <translation>il y a moins d’une minute</translation>
    </message>
    <message>
        <source>What differs from what is saved:</source>
        <translation>Ce qui diffère de ce qui est enregistré :</translation>
    </message>
    <message>
        <source>As it is saved</source>
        <translation>Comme enregistrée</translation>
    </message>
    <message>
        <source>With these changes</source>
        <translation>Avec ces modifications</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes ago</source>
        <translation>
            <numerusform>il y a %n minute</numerusform>
            <numerusform>il y a %n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours ago</source>
        <translation>
            <numerusform>il y a %n heure</numerusform>
            <numerusform>il y a %n heures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days ago</source>
        <translation>
            <numerusform>il y a %n jour</numerusform>
            <numerusform>il y a %n jours</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::changes::ChangesDialog</name>
    <message>
        <source>Look at it in the week</source>
        <translation>Voir dans la semaine</translation>
    </message>
</context>
<context>
    <name>DifferenceWords</name>
    <message>
        <source>Task %1: %2</source>
        <comment>where, and what differs</comment>
        <translation>Tâche %1 : %2</translation>
    </message>
    <message>
        <source>Task %1, plan %2: %3</source>
        <comment>where, and what differs</comment>
        <translation>Tâche %1, créneau %2 : %3</translation>
    </message>
    <message numerus="yes">
        <source>added, valid from %1 to %2, %n plans</source>
        <translation>
            <numerusform>ajoutée, valable du %1 au %2, %n créneau</numerusform>
            <numerusform>ajoutée, valable du %1 au %2, %n créneaux</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>deleted, was valid from %1 to %2, %n plans</source>
        <translation>
            <numerusform>supprimée, était valable du %1 au %2, %n créneau</numerusform>
            <numerusform>supprimée, était valable du %1 au %2, %n créneaux</numerusform>
        </translation>
    </message>
    <message>
        <source>added in row %1: %2, %3 to %4, %5</source>
        <translation>ajouté en ligne %1 : %2, de %3 à %4, %5</translation>
    </message>
    <message>
        <source>deleted from row %1: %2, %3 to %4, %5</source>
        <translation>supprimé de la ligne %1 : %2, de %3 à %4, %5</translation>
    </message>
    <message>
        <source>no programs</source>
        <translation>aucun programme</translation>
    </message>
    <message>
        <source>row %1 → %2</source>
        <translation>ligne %1 → %2</translation>
    </message>
    <message>
        <source>“%1” added as entry %2</source>
        <translation>« %1 » ajouté comme entrée %2</translation>
    </message>
    <message>
        <source>“%1” deleted, was entry %2</source>
        <translation>« %1 » supprimé, était l’entrée %2</translation>
    </message>
    <message>
        <source>“%1”: entry %2 → %3</source>
        <translation>« %1 » : entrée %2 → %3</translation>
    </message>
    <message>
        <source>“%1”, entry %2: %3</source>
        <translation>« %1 », entrée %2 : %3</translation>
    </message>
    <message>
        <source>first day %1 → %2</source>
        <translation>premier jour %1 → %2</translation>
    </message>
    <message>
        <source>last day %1 → %2</source>
        <translation>dernier jour %1 → %2</translation>
    </message>
    <message>
        <source>start %1 → %2</source>
        <translation>début %1 → %2</translation>
    </message>
    <message>
        <source>end %1 → %2</source>
        <translation>fin %1 → %2</translation>
    </message>
    <message>
        <source>runs %1 → %2</source>
        <translation>passages %1 → %2</translation>
    </message>
    <message>
        <source>days %1 → %2</source>
        <translation>jours %1 → %2</translation>
    </message>
    <message>
        <source>mode “%1” → “%2”</source>
        <translation>mode « %1 » → « %2 »</translation>
    </message>
    <message>
        <source>at the end “%1” → “%2”</source>
        <translation>à la fin « %1 » → « %2 »</translation>
    </message>
    <message>
        <source>name “%1” → “%2”</source>
        <translation>nom « %1 » → « %2 »</translation>
    </message>
    <message>
        <source>plays in a row %1 → %2</source>
        <translation>diffusions de suite %1 → %2</translation>
    </message>
    <message>
        <source>now has a program without a length of its own</source>
        <translation>a maintenant un programme sans durée propre</translation>
    </message>
    <message>
        <source>no longer has a program without a length of its own</source>
        <translation>n’a plus de programme sans durée propre</translation>
    </message>
    <message>
        <source>now in conflict</source>
        <translation>maintenant en conflit</translation>
    </message>
    <message>
        <source>no longer in conflict</source>
        <translation>plus en conflit</translation>
    </message>
    <message>
        <source>now invalid</source>
        <translation>maintenant non valide</translation>
    </message>
    <message>
        <source>no longer invalid</source>
        <translation>de nouveau valide</translation>
    </message>
    <message>
        <source>something that the editor does not show</source>
        <translation>quelque chose que l’éditeur ne montre pas</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more differences.</source>
        <translation>
            <numerusform>… et %n autre différence.</numerusform>
            <numerusform>… et %n autres différences.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProgramWords</name>
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
        <translation>En direct</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autre</translation>
    </message>
</context>
<context>
    <name>trel::desktop::CatalogueFilter</name>
    <message>
        <source>%1 of %2</source>
        <comment>programs found of programs</comment>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Search name and folder</source>
        <translation>Rechercher dans le nom et le dossier</translation>
    </message>
    <message>
        <source>Kind of program</source>
        <translation>Type de programme</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Tous les types</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Introuvables</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Non utilisés</translation>
    </message>
    <message numerus="yes">
        <source>%n programs</source>
        <translation>
            <numerusform>%n programme</numerusform>
            <numerusform>%n programmes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::CalendarPopup</name>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekPage</name>
    <message>
        <source>Click a block to see why it is on screen, or why not.</source>
        <translation>Cliquez sur un bloc pour savoir pourquoi il est à l’écran, ou pourquoi non.</translation>
    </message>
    <message>
        <source>Why the selected block is on screen, or why not</source>
        <translation>Pourquoi le bloc sélectionné est à l’écran, ou pourquoi non</translation>
    </message>
    <message>
        <source>No task is valid in this week. Add one with “Edit”, then drag programs here.</source>
        <translation>Aucune tâche n’est valide cette semaine. Ajoutez-en une avec « Modifier », puis faites glisser des programmes ici.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::year::YearStrip</name>
    <message>
        <source>Gap: no task is valid from %1 to %2.</source>
        <translation>Lacune : aucune tâche n’est valide du %1 au %2.</translation>
    </message>
    <message>
        <source>Overlap: several tasks are valid from %1 to %2.</source>
        <translation>Chevauchement : plusieurs tâches sont valides du %1 au %2.</translation>
    </message>
    <message>
        <source>Task %1 is valid from %2 to %3.</source>
        <translation>La tâche %1 est valide du %2 au %3.</translation>
    </message>
    <message>
        <source>Validity of the tasks in %1</source>
        <translation>Validité des tâches en %1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::UsesWindow</name>
    <message>
        <source>Where used</source>
        <translation>Où utilisé</translation>
    </message>
    <message>
        <source>No plan plays “%1”.</source>
        <translation>Aucun créneau ne diffuse « %1 ».</translation>
    </message>
    <message numerus="yes">
        <source>“%1” is played by %n plans.</source>
        <translation>
            <numerusform>%n créneau diffuse « %1 ».</numerusform>
            <numerusform>%n créneaux diffusent « %1 ».</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::UsesModel</name>
    <message>
        <source>Task</source>
        <translation>Tâche</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Validité</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Créneau</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Jours</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
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
        <translation>Tâche %1 (%2), créneau %3, %4 %5</translation>
    </message>
    <message>
        <source>Not on screen any more, as the schedule in effect has it.</source>
        <translation>Plus à l’écran, d’après la programmation en vigueur.</translation>
    </message>
    <message>
        <source>Not on screen any more, as the schedule is edited.</source>
        <translation>Plus à l’écran, d’après la programmation modifiée.</translation>
    </message>
    <message>
        <source>Never on screen, as the schedule in effect has it.</source>
        <translation>Jamais à l’écran, d’après la programmation en vigueur.</translation>
    </message>
    <message>
        <source>Never on screen, as the schedule is edited.</source>
        <translation>Jamais à l’écran, d’après la programmation modifiée.</translation>
    </message>
    <message>
        <source>On screen now: task %1, plan %2.</source>
        <translation>À l’écran maintenant : tâche %1, créneau %2.</translation>
    </message>
    <message>
        <source>Next on screen: %1, task %2, plan %3.</source>
        <translation>Prochain passage à l’écran : %1, tâche %2, créneau %3.</translation>
    </message>
    <message numerus="yes">
        <source>Entries become invalid in %n plans:</source>
        <translation>
            <numerusform>Des entrées deviennent non valides, dans %n créneau :</numerusform>
            <numerusform>Des entrées deviennent non valides, dans %n créneaux :</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: nothing else is left of it</source>
        <translation>%1 : il n’y reste rien d’autre</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more plans.</source>
        <translation>
            <numerusform>… et %n autre créneau.</numerusform>
            <numerusform>… et %n autres créneaux.</numerusform>
        </translation>
    </message>
    <message>
        <source>every day</source>
        <translation>tous les jours</translation>
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
        <translation>Créneau %1 : %2, de %3 à %4</translation>
    </message>
    <message>
        <source>New plan in task %1: %2, %3 to %4</source>
        <translation>Nouveau créneau dans la tâche %1 : %2, de %3 à %4</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>tous les jours</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are valid on this day; that is the one in effect.</source>
        <translation>
            <numerusform>%n tâche est valide ce jour-là ; c’est celle qui s’applique.</numerusform>
            <numerusform>%n tâches sont valides ce jour-là ; c’est celle qui s’applique.</numerusform>
        </translation>
    </message>
    <message>
        <source>Its times cannot be read.</source>
        <translation>Ses heures sont illisibles.</translation>
    </message>
    <message>
        <source>A plan cannot run over midnight.</source>
        <translation>Un créneau ne peut pas dépasser minuit.</translation>
    </message>
    <message>
        <source>A plan has to start before it ends.</source>
        <translation>Un créneau doit commencer avant de finir.</translation>
    </message>
    <message>
        <source>Its end follows from its programs; it can only be moved.</source>
        <translation>Sa fin découle de ses programmes ; il ne peut être que déplacé.</translation>
    </message>
    <message>
        <source>It plays every day.</source>
        <translation>Il est lu tous les jours.</translation>
    </message>
    <message>
        <source>It plays on that day already.</source>
        <translation>Il est déjà lu ce jour-là.</translation>
    </message>
    <message>
        <source>Its days cannot be read.</source>
        <translation>Ses jours sont illisibles.</translation>
    </message>
    <message>
        <source>Its task is not in effect on that day.</source>
        <translation>Sa tâche ne s’applique pas ce jour-là.</translation>
    </message>
    <message>
        <source>Conflicts with plan %1, %2 to %3.</source>
        <translation>En conflit avec le créneau %1, de %2 à %3.</translation>
    </message>
    <message numerus="yes">
        <source>Conflicts with %n more.</source>
        <translation>
            <numerusform>En conflit avec %n autre.</numerusform>
            <numerusform>En conflit avec %n autres.</numerusform>
        </translation>
    </message>
    <message>
        <source>No task is valid on this day.</source>
        <translation>Aucune tâche n’est valide ce jour-là.</translation>
    </message>
    <message>
        <source>These programs cannot be planned here.</source>
        <translation>Ces programmes ne peuvent pas être planifiés ici.</translation>
    </message>
    <message>
        <source>Copy the plans of %1…</source>
        <comment>a day</comment>
        <translation>Copier les créneaux du %1…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekEdits</name>
    <message>
        <source>The editor is not ready yet. Please try again.</source>
        <translation>L’éditeur n’est pas encore prêt. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>The schedule has changed meanwhile; nothing was moved.</source>
        <translation>La programmation a changé entre-temps ; rien n’a été déplacé.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::CopyDayDialog</name>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Copy onto these days, whose own plans stay:</source>
        <translation>Copier sur ces jours, qui gardent leurs propres créneaux :</translation>
    </message>
    <message>
        <source>%1 (no task is valid)</source>
        <comment>a day</comment>
        <translation>%1 (aucune tâche n’est valide)</translation>
    </message>
    <message>
        <source>There is no plan on that day.</source>
        <translation>Il n’y a aucun créneau ce jour-là.</translation>
    </message>
    <message numerus="yes">
        <source>%n plans play on that day. Choose the days to copy them onto.</source>
        <translation>
            <numerusform>%n créneau est lu ce jour-là. Choisissez les jours où le copier.</numerusform>
            <numerusform>%n créneaux sont lus ce jour-là. Choisissez les jours où les copier.</numerusform>
        </translation>
    </message>
    <message>
        <source>All of them play on these days already.</source>
        <translation>Ils sont déjà tous lus ces jours-là.</translation>
    </message>
    <message numerus="yes">
        <source>%n plans are copied.</source>
        <translation>
            <numerusform>%n créneau est copié.</numerusform>
            <numerusform>%n créneaux sont copiés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more plans will conflict then. Nothing is lost by that: change what you want afterwards.</source>
        <translation>
            <numerusform>%n créneau de plus sera alors en conflit. Rien n’est perdu : modifiez ensuite ce que vous voulez.</numerusform>
            <numerusform>%n créneaux de plus seront alors en conflit. Rien n’est perdu : modifiez ensuite ce que vous voulez.</numerusform>
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
        <translation>En vigueur</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>Ce qui est enregistré</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>new: %1</source>
        <translation>nouvelles : %1</translation>
    </message>
    <message>
        <source>changed: %1</source>
        <translation>modifiées : %1</translation>
    </message>
    <message>
        <source>deleted: %1</source>
        <translation>supprimées : %1</translation>
    </message>
    <message>
        <source>nothing of note</source>
        <translation>rien de notable</translation>
    </message>
    <message>
        <source>%1 (tasks %2)</source>
        <comment>what a save changed, and in which tasks</comment>
        <translation>%1 (tâches %2)</translation>
    </message>
    <message>
        <source>version %1 restored: %2</source>
        <translation>version %1 restaurée : %2</translation>
    </message>
    <message>
        <source>Nothing differs.</source>
        <translation>Aucune différence.</translation>
    </message>
    <message numerus="yes">
        <source>%n differences</source>
        <translation>
            <numerusform>%n différence</numerusform>
            <numerusform>%n différences</numerusform>
        </translation>
    </message>
    <message>
        <source>Restore version %1? What is saved now stays as a version, so that it can be restored in turn.</source>
        <translation>Restaurer la version %1 ? Ce qui est enregistré maintenant reste comme version et peut être restauré à son tour.</translation>
    </message>
    <message numerus="yes">
        <source>%n of its programs are no longer in the catalog. Their entries will be invalid: %1</source>
        <translation>
            <numerusform>%n de ses programmes n’est plus dans le catalogue. Ses entrées seront non valides : %1</numerusform>
            <numerusform>%n de ses programmes ne sont plus dans le catalogue. Leurs entrées seront non valides : %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The schedule in the editor has changes that are not saved.</source>
        <translation>La programmation dans l’éditeur a des modifications non enregistrées.</translation>
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
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Par</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Modifications</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::DifferenceModel</name>
    <message>
        <source>Task</source>
        <translation>Tâche</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Créneau</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Différence</translation>
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
        <translation>À</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::ComparedWeeks</name>
    <message>
        <source>Comparing…</source>
        <translation>Comparaison…</translation>
    </message>
    <message>
        <source>Nothing differs on the screen in this week.</source>
        <translation>Cette semaine, rien ne diffère à l’écran.</translation>
    </message>
    <message numerus="yes">
        <source>%n stretches of this week differ on the screen:</source>
        <translation>
            <numerusform>%n intervalle de cette semaine diffère à l’écran :</numerusform>
            <numerusform>%n intervalles de cette semaine diffèrent à l’écran :</numerusform>
        </translation>
    </message>
    <message>
        <source>What differs on the screen</source>
        <translation>Différences à l’écran</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::ComparisonPanel</name>
    <message>
        <source>Comparing…</source>
        <translation>Comparaison…</translation>
    </message>
    <message>
        <source>Nothing is in effect.</source>
        <translation>Rien n’est en vigueur.</translation>
    </message>
    <message>
        <source>%1 → %2: %3</source>
        <comment>two states, and how much differs</comment>
        <translation>%1 → %2 : %3</translation>
    </message>
    <message>
        <source>In words</source>
        <translation>En mots</translation>
    </message>
    <message>
        <source>On the screen</source>
        <translation>À l’écran</translation>
    </message>
    <message>
        <source>What differs</source>
        <translation>Différences</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::VersionNameDialog</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::VersionsWindow</name>
    <message>
        <source>Versions</source>
        <translation>Versions</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Chargement…</translation>
    </message>
    <message>
        <source>No versions are kept yet.</source>
        <translation>Il n’y a encore aucune version.</translation>
    </message>
    <message>
        <source>Name and note…</source>
        <translation>Nom et note…</translation>
    </message>
    <message>
        <source>Restore…</source>
        <translation>Restaurer…</translation>
    </message>
    <message>
        <source>Write to a file…</source>
        <translation>Écrire dans un fichier…</translation>
    </message>
    <message>
        <source>Compared with</source>
        <translation>Comparé à</translation>
    </message>
    <message>
        <source>The other way round</source>
        <translation>Dans l’autre sens</translation>
    </message>
    <message>
        <source>Write the version to a file</source>
        <translation>Écrire la version dans un fichier</translation>
    </message>
    <message>
        <source>Schedules (*.json)</source>
        <translation>Programmations (*.json)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>Écrit dans %1.</translation>
    </message>
    <message>
        <source>Save, then restore</source>
        <translation>Enregistrer, puis restaurer</translation>
    </message>
    <message>
        <source>Restore without saving</source>
        <translation>Restaurer sans enregistrer</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProgramPreview</name>
    <message>
        <source>%1 – Preview</source>
        <translation>%1 – Aperçu</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>position and length</comment>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>The file is not found.</source>
        <translation>Le fichier est introuvable.</translation>
    </message>
    <message>
        <source>Sound has no picture.</source>
        <translation>Le son n’a pas d’image.</translation>
    </message>
    <message>
        <source>A live source is seen on the screens alone.</source>
        <translation>Une source en direct n’est visible que sur les écrans.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Chargement…</translation>
    </message>
    <message>
        <source>It has no picture that can be read.</source>
        <translation>Aucune image ne peut en être lue.</translation>
    </message>
</context>
<context>
    <name>KeyTable</name>
    <message>
        <source>Main window</source>
        <translation>Fenêtre principale</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Éditeur</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semaine</translation>
    </message>
    <message>
        <source>Go to the next task</source>
        <translation>Aller à la tâche suivante</translation>
    </message>
    <message>
        <source>Go to the task before</source>
        <translation>Aller à la tâche précédente</translation>
    </message>
    <message>
        <source>Fold or open the task</source>
        <translation>Replier ou ouvrir la tâche</translation>
    </message>
    <message>
        <source>Add a task</source>
        <translation>Ajouter une tâche</translation>
    </message>
    <message>
        <source>Copy the task</source>
        <translation>Copier la tâche</translation>
    </message>
    <message>
        <source>Delete the task</source>
        <translation>Supprimer la tâche</translation>
    </message>
    <message>
        <source>Add a plan</source>
        <translation>Ajouter un créneau</translation>
    </message>
    <message>
        <source>Copy the plan</source>
        <translation>Copier le créneau</translation>
    </message>
    <message>
        <source>Delete the plan</source>
        <translation>Supprimer le créneau</translation>
    </message>
    <message>
        <source>Choose the programs of the plan</source>
        <translation>Choisir les programmes du créneau</translation>
    </message>
    <message>
        <source>Save and close</source>
        <translation>Enregistrer et fermer</translation>
    </message>
    <message>
        <source>Save and start</source>
        <translation>Enregistrer et démarrer</translation>
    </message>
    <message>
        <source>Close without saving</source>
        <translation>Fermer sans enregistrer</translation>
    </message>
    <message>
        <source>Select another plan</source>
        <translation>Sélectionner un autre créneau</translation>
    </message>
    <message>
        <source>Open the selected plan in the editor</source>
        <translation>Ouvrir le créneau sélectionné dans l’éditeur</translation>
    </message>
    <message>
        <source>Say what is on screen then, and why</source>
        <translation>Dire ce qui est alors à l’écran et pourquoi</translation>
    </message>
    <message>
        <source>Move the plan by a quarter of an hour</source>
        <translation>Déplacer le créneau d’un quart d’heure</translation>
    </message>
    <message>
        <source>Move the plan to another day</source>
        <translation>Déplacer le créneau à un autre jour</translation>
    </message>
    <message>
        <source>Move the end of the plan</source>
        <translation>Déplacer la fin du créneau</translation>
    </message>
    <message>
        <source>Move the begin of the plan</source>
        <translation>Déplacer le début du créneau</translation>
    </message>
    <message>
        <source>Give up dragging</source>
        <translation>Abandonner le glissement</translation>
    </message>
    <message>
        <source>Copy the plans of the day</source>
        <translation>Copier les créneaux du jour</translation>
    </message>
    <message>
        <source>Show another week</source>
        <translation>Afficher une autre semaine</translation>
    </message>
    <message>
        <source>Show the present moment</source>
        <translation>Afficher l’instant présent</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoomer</translation>
    </message>
    <message>
        <source>Fit the whole day</source>
        <translation>Ajuster à la journée entière</translation>
    </message>
    <message>
        <source>Programs of a plan</source>
        <translation>Programmes d’un créneau</translation>
    </message>
    <message>
        <source>Go to another program</source>
        <translation>Aller à un autre programme</translation>
    </message>
    <message>
        <source>Tick the program, or untick it</source>
        <translation>Cocher ou décocher le programme</translation>
    </message>
    <message>
        <source>Tick all programs, or none</source>
        <translation>Cocher tous les programmes ou aucun</translation>
    </message>
    <message>
        <source>Add the ticked programs, or this one</source>
        <translation>Ajouter les programmes cochés, sinon celui-ci</translation>
    </message>
    <message>
        <source>Take the ticked programs out, or this one</source>
        <translation>Supprimer les programmes cochés, sinon celui-ci</translation>
    </message>
    <message>
        <source>Move the program up or down</source>
        <translation>Déplacer le programme vers le haut ou le bas</translation>
    </message>
    <message>
        <source>Change how often the program is played</source>
        <translation>Changer le nombre de diffusions du programme</translation>
    </message>
    <message>
        <source>Take over the list of programs</source>
        <translation>Valider la liste des programmes</translation>
    </message>
</context>
<context>
    <name>trel::desktop::KeySheet</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>trel::desktop::GuideWindow</name>
    <message>
        <source>The guide</source>
        <translation>Le guide</translation>
    </message>
</context>
<context>
    <name>trel::desktop::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Guide</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>&amp;Raccourcis clavier</translation>
    </message>
    <message>
        <source>&amp;About this program</source>
        <translation>À &amp;propos de ce programme</translation>
    </message>
    <message>
        <source>Schedules media programs on screens, edits the schedule and follows it.</source>
        <translation>Programme des médias sur des écrans, modifie la programmation et la suit.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirLight</name>
    <message>
        <source>On air</source>
        <translation>À l’antenne</translation>
    </message>
    <message>
        <source>Off air</source>
        <translation>Hors antenne</translation>
    </message>
    <message>
        <source>A schedule is in effect.</source>
        <translation>Une programmation est en vigueur.</translation>
    </message>
    <message>
        <source>No schedule is in effect.</source>
        <translation>Aucune programmation n’est en vigueur.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirState</name>
    <message>
        <source>Time of day: %1</source>
        <translation>Heure : %1</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Non enregistré</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Enregistré : %1</translation>
    </message>
    <message>
        <source>Started: %1</source>
        <translation>Démarré : %1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::AirBar</name>
    <message>
        <source>Toolbar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search the catalog</source>
        <translation>Rechercher dans le catalogue</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ComingPrograms</name>
    <message>
        <source>Programs to come</source>
        <translation>Programmes à venir</translation>
    </message>
</context>
<context>
    <name>trel::desktop::air::StartAction</name>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Put the schedule on air</source>
        <translation>Mettre la programmation à l’antenne</translation>
    </message>
    <message>
        <source>Put the schedule on air? What is not saved is saved first.</source>
        <translation>Mettre la programmation à l’antenne ? Ce qui n’est pas enregistré l’est d’abord.</translation>
    </message>
    <message>
        <source>Open problems: %1</source>
        <translation>Problèmes ouverts : %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Tasks %1 and %2 are valid on the same days. The schedule can be put on air once they are not.</source>
        <translation>Les tâches %1 et %2 sont valides les mêmes jours. La programmation ne peut passer à l’antenne que lorsqu’elles ne le sont plus.</translation>
    </message>
    <message>
        <source>The schedule is on air.</source>
        <translation>La programmation est à l’antenne.</translation>
    </message>
    <message>
        <source>The schedule is on air. Open problems: %1</source>
        <translation>La programmation est à l’antenne. Problèmes ouverts : %1</translation>
    </message>
</context>
<context>
    <name>DroppedMedia</name>
    <message>
        <source>None of this can be imported.</source>
        <translation>Rien de cela ne peut être importé.</translation>
    </message>
    <message numerus="yes">
        <source>%n files or folders</source>
        <translation>
            <numerusform>%n fichier ou dossier</numerusform>
            <numerusform>%n fichiers ou dossiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n addresses</source>
        <translation>
            <numerusform>%n adresse</numerusform>
            <numerusform>%n adresses</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>files, and addresses</comment>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>Import %1</source>
        <comment>files, or addresses, or both</comment>
        <translation>Importer : %1</translation>
    </message>
    <message numerus="yes">
        <source>Import %1; %n cannot be imported</source>
        <comment>files, or addresses, or both</comment>
        <translation>
            <numerusform>Importer : %1 ; %n ne peut pas être importé</numerusform>
            <numerusform>Importer : %1 ; %n ne peuvent pas être importés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MediaFilters</name>
    <message>
        <source>All media</source>
        <translation>Tous les médias</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Vidéos</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>trel::desktop::ScreenNews</name>
    <message>
        <source>Cut in: %1</source>
        <translation>Inséré : %1</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::WeekMenu</name>
    <message>
        <source>&amp;Week</source>
        <translation>&amp;Semaine</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>&amp;Aujourd’hui</translation>
    </message>
    <message>
        <source>&amp;Previous week</source>
        <translation>Semaine &amp;précédente</translation>
    </message>
    <message>
        <source>&amp;Next week</source>
        <translation>Semaine &amp;suivante</translation>
    </message>
    <message>
        <source>&amp;Choose a day…</source>
        <translation>&amp;Choisir un jour…</translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::DayDrag</name>
    <message>
        <source>Drag a day onto another one to copy its plans there.</source>
        <translation>Faites glisser un jour sur un autre pour y copier ses créneaux.</translation>
    </message>
    <message>
        <source>Copy the plans of %1 onto %2</source>
        <comment>two days</comment>
        <translation>Copier les créneaux du %1 vers %2</translation>
    </message>
</context>
<context>
    <name>trel::desktop::place::AddressDialog</name>
    <message>
        <source>Open from a server</source>
        <translation>Ouvrir depuis un serveur</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Where the server asks for a password, it is read from the password file of the server's programs (~/.pgpass).</source>
        <translation>Si le serveur demande un mot de passe, il est lu dans le fichier de mots de passe des programmes du serveur (~/.pgpass).</translation>
    </message>
</context>
<context>
    <name>trel::desktop::players::PlayersDock</name>
    <message>
        <source>Players</source>
        <translation>Lecteurs</translation>
    </message>
    <message>
        <source>Pla&amp;yers</source>
        <translation>&amp;Lecteurs</translation>
    </message>
    <message>
        <source>No player follows this database. Start schedule-player with it where the screen is.</source>
        <translation>Aucun lecteur ne suit cette base de données. Lancez schedule-player avec elle sur l’ordinateur de l’écran.</translation>
    </message>
    <message>
        <source>Show what the players show</source>
        <translation>Affiche ce que montrent les lecteurs</translation>
    </message>
</context>
<context>
    <name>trel::desktop::players::PlayerModel</name>
    <message>
        <source>Screen</source>
        <translation>Écran</translation>
    </message>
    <message>
        <source>Shows</source>
        <translation>Affiche</translation>
    </message>
    <message>
        <source>Heard</source>
        <comment>when a player told of itself</comment>
        <translation>Signal</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>Défauts</translation>
    </message>
</context>
<context>
    <name>PlayerWords</name>
    <message>
        <source>Stands still in: %1</source>
        <translation>Figé sur : %1</translation>
    </message>
    <message>
        <source>Has no picture for: %1</source>
        <translation>Pas d’image pour : %1</translation>
    </message>
    <message>
        <source>Not since %1</source>
        <comment>a moment</comment>
        <translation>Aucun depuis %1</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no faults</comment>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>%1, the last at %2: %3</source>
        <comment>a number, a moment, a sentence</comment>
        <translation>%1, le dernier à %2 : %3</translation>
    </message>
    <message>
        <source>Players: %1</source>
        <translation>Lecteurs : %1</translation>
    </message>
    <message>
        <source>Players: %1, silent: %2</source>
        <translation>Lecteurs : %1, muets : %2</translation>
    </message>
</context>
<context>
    <name>MergeWords</name>
    <message numerus="yes">
        <source>%n tasks were changed at both desks: if you merge, you choose for each of them which one stays. Everything else of both is kept.</source>
        <translation>
            <numerusform>%n tâche a été modifiée aux deux postes : à la fusion, vous choisissez laquelle reste. Tout le reste des deux est conservé.</numerusform>
            <numerusform>%n tâches ont été modifiées aux deux postes : à la fusion, vous choisissez pour chacune laquelle reste. Tout le reste des deux est conservé.</numerusform>
        </translation>
    </message>
    <message>
        <source>No task was changed at both desks: what both have changed can be saved together.</source>
        <translation>Aucune tâche n’a été modifiée aux deux postes : les modifications des deux peuvent être enregistrées ensemble.</translation>
    </message>
    <message>
        <source>Merge…</source>
        <translation>Fusionner…</translation>
    </message>
    <message>
        <source>Merged, your new task %1 becomes task %2: another task %1 was added there.</source>
        <translation>À la fusion, votre nouvelle tâche %1 devient la tâche %2 : une autre tâche %1 a été ajoutée là-bas.</translation>
    </message>
    <message>
        <source>Merge and save</source>
        <translation>Fusionner et enregistrer</translation>
    </message>
    <message>
        <source>Merge and go on editing</source>
        <translation>Fusionner et continuer à modifier</translation>
    </message>
    <message>
        <source>Merged, tasks %1 and %2 would be valid on the same days. That cannot be saved: they stay in the editor until you have changed their dates.</source>
        <translation>Fusionnées, les tâches %1 et %2 seraient valables les mêmes jours. Cela ne peut pas être enregistré : elles restent dans l’éditeur jusqu’à ce que vous ayez changé leurs dates.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::merge::ConflictsDialog</name>
    <message>
        <source>These tasks were changed here and at the other desk. Choose for each of them which one stays.</source>
        <translation>Ces tâches ont été modifiées ici et à l’autre poste. Choisissez pour chacune laquelle reste.</translation>
    </message>
    <message>
        <source>Mine, as it is edited here</source>
        <translation>La mienne, comme modifiée ici</translation>
    </message>
    <message>
        <source>Theirs, as it was saved there</source>
        <translation>L’autre, comme enregistrée là-bas</translation>
    </message>
    <message>
        <source>Tasks that were changed at both desks</source>
        <translation>Tâches modifiées aux deux postes</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>Tâche</translation>
    </message>
    <message>
        <source>What stays</source>
        <translation>Ce qui reste</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>not chosen yet</source>
        <translation>pas encore choisie</translation>
    </message>
    <message>
        <source>mine</source>
        <translation>la mienne</translation>
    </message>
    <message>
        <source>theirs</source>
        <translation>l’autre</translation>
    </message>
    <message numerus="yes">
        <source>%n tasks are still to be chosen.</source>
        <translation>
            <numerusform>%n tâche reste à choisir.</numerusform>
            <numerusform>%n tâches restent à choisir.</numerusform>
        </translation>
    </message>
    <message>
        <source>Everything else of both is kept.</source>
        <translation>Tout le reste des deux est conservé.</translation>
    </message>
</context>
<context>
    <name>trel::desktop::DeskNotice</name>
    <message>
        <source>Also edited at %1 since %2</source>
        <comment>a desk, and a time</comment>
        <translation>Aussi modifiée à %1 depuis %2</translation>
    </message>
    <message numerus="yes">
        <source>Also edited at %n other desks</source>
        <translation>
            <numerusform>Aussi modifiée à %n autre poste</numerusform>
            <numerusform>Aussi modifiée à %n autres postes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: since %2, last changed at %3, tasks %4</source>
        <comment>a desk, times, and numbers</comment>
        <translation>%1 : depuis %2, dernière modification à %3, tâches %4</translation>
    </message>
</context>
<context>
    <name>FileWords</name>
    <message numerus="yes">
        <source>%n programs in this file are not in the catalog. Their entries will be invalid: %1</source>
        <translation>
            <numerusform>%n programme de ce fichier n’est pas dans le catalogue. Ses entrées seront non valides&#xa0;: %1</numerusform>
            <numerusform>%n programmes de ce fichier ne sont pas dans le catalogue. Leurs entrées seront non valides&#xa0;: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n programs in the catalog may have another content than in this file: %1</source>
        <translation>
            <numerusform>%n programme du catalogue a peut-être un autre contenu que dans ce fichier&#xa0;: %1</numerusform>
            <numerusform>%n programmes du catalogue ont peut-être un autre contenu que dans ce fichier&#xa0;: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n programs have another name in the catalog than in this file: %1</source>
        <translation>
            <numerusform>%n programme porte un autre nom dans le catalogue que dans ce fichier&#xa0;: %1</numerusform>
            <numerusform>%n programmes portent un autre nom dans le catalogue que dans ce fichier&#xa0;: %1</numerusform>
        </translation>
    </message>
</context>
</TS>
