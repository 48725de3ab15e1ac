<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>trel::desktop::EditorWindow</name>
    <message numerus="yes">
        <source>Replace the whole schedule with the %n tasks in this file?</source>
        <translation>
            <numerusform>Replace the whole schedule with the %n task in this file?</numerusform>
            <numerusform>Replace the whole schedule with the %n tasks in this file?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::CataloguePanel</name>
    <message numerus="yes">
        <source>Remove %n programs from the catalog? The files are not deleted.</source>
        <translation>
            <numerusform>Remove this program from the catalog? The file is not deleted.</numerusform>
            <numerusform>Remove %n programs from the catalog? The files are not deleted.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::CatalogueImport</name>
    <message numerus="yes">
        <source>… and %n more.</source>
        <translation>
            <numerusform>… and %n more.</numerusform>
            <numerusform>… and %n more.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Looking for files: %n found</source>
        <translation>
            <numerusform>Looking for files: %n found</numerusform>
            <numerusform>Looking for files: %n found</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new</source>
        <translation>
            <numerusform>%n new</numerusform>
            <numerusform>%n new</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n updated</source>
        <translation>
            <numerusform>%n updated</numerusform>
            <numerusform>%n updated</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Week</name>
    <message numerus="yes">
        <source>%n more plans do not reach the screen.</source>
        <translation>
            <numerusform>%n more plan does not reach the screen.</numerusform>
            <numerusform>%n more plans do not reach the screen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProblemWords</name>
    <message numerus="yes">
        <source>A text in it is longer than %n bytes.</source>
        <translation>
            <numerusform>A text in it is longer than %n byte.</numerusform>
            <numerusform>A text in it is longer than %n bytes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The name or the path of a program is longer than %n bytes.</source>
        <translation>
            <numerusform>The name or the path of a program is longer than %n byte.</numerusform>
            <numerusform>The name or the path of a program is longer than %n bytes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n numbers for programs are used up.</source>
        <translation>
            <numerusform>The only number for programs is used up.</numerusform>
            <numerusform>All %n numbers for programs are used up.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n tasks.</source>
        <translation>
            <numerusform>There is more than %n task.</numerusform>
            <numerusform>There are more than %n tasks.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n plans.</source>
        <translation>
            <numerusform>There is more than %n plan.</numerusform>
            <numerusform>There are more than %n plans.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n entries.</source>
        <translation>
            <numerusform>There is more than %n entry.</numerusform>
            <numerusform>There are more than %n entries.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n numbers in the lists of plans.</source>
        <translation>
            <numerusform>There is more than %n number in the lists of plans.</numerusform>
            <numerusform>There are more than %n numbers in the lists of plans.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n programs.</source>
        <translation>
            <numerusform>There is more than %n program.</numerusform>
            <numerusform>There are more than %n programs.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A text of task %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>A text of task %1 is longer than %n byte.</numerusform>
            <numerusform>A text of task %1 is longer than %n bytes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>It is larger than %n bytes.</source>
        <translation>
            <numerusform>It is larger than %n byte.</numerusform>
            <numerusform>It is larger than %n bytes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are more than %n values.</source>
        <translation>
            <numerusform>There is more than %n value.</numerusform>
            <numerusform>There are more than %n values.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A name in line %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>A name in line %1 is longer than %n byte.</numerusform>
            <numerusform>A name in line %1 is longer than %n bytes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A text in line %1 is longer than %n bytes.</source>
        <translation>
            <numerusform>A text in line %1 is longer than %n byte.</numerusform>
            <numerusform>A text in line %1 is longer than %n bytes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The text is longer than %n bytes.</source>
        <translation>
            <numerusform>The text is longer than %n byte.</numerusform>
            <numerusform>The text is longer than %n bytes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The name or the note of a version is longer than %n characters.</source>
        <translation>
            <numerusform>The name or the note of a version is longer than %n character.</numerusform>
            <numerusform>The name or the note of a version is longer than %n characters.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>EffectWords</name>
    <message numerus="yes">
        <source>What is saved differs in %n tasks: %1</source>
        <translation>
            <numerusform>What is saved differs in %n task: %1</numerusform>
            <numerusform>What is saved differs in %n tasks: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>EditWords</name>
    <message numerus="yes">
        <source>%n tasks edited</source>
        <translation>
            <numerusform>%n task edited</numerusform>
            <numerusform>%n tasks edited</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DifferenceWords</name>
    <message numerus="yes">
        <source>added, valid from %1 to %2, %n plans</source>
        <translation>
            <numerusform>added, valid from %1 to %2, %n plan</numerusform>
            <numerusform>added, valid from %1 to %2, %n plans</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>deleted, was valid from %1 to %2, %n plans</source>
        <translation>
            <numerusform>deleted, was valid from %1 to %2, %n plan</numerusform>
            <numerusform>deleted, was valid from %1 to %2, %n plans</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>… and %n more differences.</source>
        <translation>
            <numerusform>… and %n more difference.</numerusform>
            <numerusform>… and %n more differences.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::CatalogueFilter</name>
    <message numerus="yes">
        <source>%n programs</source>
        <translation>
            <numerusform>%n program</numerusform>
            <numerusform>%n programs</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DraftWords</name>
    <message numerus="yes">
        <source>%n minutes ago</source>
        <translation>
            <numerusform>%n minute ago</numerusform>
            <numerusform>%n minutes ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hours ago</source>
        <translation>
            <numerusform>%n hour ago</numerusform>
            <numerusform>%n hours ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days ago</source>
        <translation>
            <numerusform>%n day ago</numerusform>
            <numerusform>%n days ago</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::UsesWindow</name>
    <message numerus="yes">
        <source>“%1” is played by %n plans.</source>
        <translation>
            <numerusform>“%1” is played by %n plan.</numerusform>
            <numerusform>“%1” is played by %n plans.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UseWords</name>
    <message numerus="yes">
        <source>Entries become invalid in %n plans:</source>
        <translation>
            <numerusform>Entries become invalid in %n plan:</numerusform>
            <numerusform>Entries become invalid in %n plans:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>… and %n more plans.</source>
        <translation>
            <numerusform>… and %n more plan.</numerusform>
            <numerusform>… and %n more plans.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MoveWords</name>
    <message numerus="yes">
        <source>%n tasks are valid on this day; that is the one in effect.</source>
        <translation>
            <numerusform>%n task is valid on this day; that is the one in effect.</numerusform>
            <numerusform>%n tasks are valid on this day; that is the one in effect.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Conflicts with %n more.</source>
        <translation>
            <numerusform>Conflicts with %n more.</numerusform>
            <numerusform>Conflicts with %n more.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::week::CopyDayDialog</name>
    <message numerus="yes">
        <source>%n plans play on that day. Choose the days to copy them onto.</source>
        <translation>
            <numerusform>%n plan plays on that day. Choose the days to copy it onto.</numerusform>
            <numerusform>%n plans play on that day. Choose the days to copy them onto.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n plans are copied.</source>
        <translation>
            <numerusform>%n plan is copied.</numerusform>
            <numerusform>%n plans are copied.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more plans will conflict then. Nothing is lost by that: change what you want afterwards.</source>
        <translation>
            <numerusform>%n more plan will conflict then. Nothing is lost by that: change what you want afterwards.</numerusform>
            <numerusform>%n more plans will conflict then. Nothing is lost by that: change what you want afterwards.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::ProblemDock</name>
    <message numerus="yes">
        <source>%n open problems</source>
        <translation>
            <numerusform>%n open problem</numerusform>
            <numerusform>%n open problems</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>VersionWords</name>
    <message numerus="yes">
        <source>%n differences</source>
        <translation>
            <numerusform>%n difference</numerusform>
            <numerusform>%n differences</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of its programs are no longer in the catalog. Their entries will be invalid: %1</source>
        <translation>
            <numerusform>%n of its programs is no longer in the catalog. Its entries will be invalid: %1</numerusform>
            <numerusform>%n of its programs are no longer in the catalog. Their entries will be invalid: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::versions::ComparedWeeks</name>
    <message numerus="yes">
        <source>%n stretches of this week differ on the screen:</source>
        <translation>
            <numerusform>%n stretch of this week differs on the screen:</numerusform>
            <numerusform>%n stretches of this week differ on the screen:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DroppedMedia</name>
    <message numerus="yes">
        <source>%n files or folders</source>
        <translation>
            <numerusform>%n file or folder</numerusform>
            <numerusform>%n files or folders</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n addresses</source>
        <translation>
            <numerusform>%n address</numerusform>
            <numerusform>%n addresses</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Import %1; %n cannot be imported</source>
        <comment>files, or addresses, or both</comment>
        <translation>
            <numerusform>Import %1; %n cannot be imported</numerusform>
            <numerusform>Import %1; %n cannot be imported</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MergeWords</name>
    <message numerus="yes">
        <source>%n tasks were changed at both desks: if you merge, you choose for each of them which one stays. Everything else of both is kept.</source>
        <translation>
            <numerusform>%n task was changed at both desks: if you merge, you choose which one stays. Everything else of both is kept.</numerusform>
            <numerusform>%n tasks were changed at both desks: if you merge, you choose for each of them which one stays. Everything else of both is kept.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::merge::ConflictsDialog</name>
    <message numerus="yes">
        <source>%n tasks are still to be chosen.</source>
        <translation>
            <numerusform>%n task is still to be chosen.</numerusform>
            <numerusform>%n tasks are still to be chosen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>trel::desktop::DeskNotice</name>
    <message numerus="yes">
        <source>Also edited at %n other desks</source>
        <translation>
            <numerusform>Also edited at %n other desk</numerusform>
            <numerusform>Also edited at %n other desks</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileWords</name>
    <message numerus="yes">
        <source>%n programs in this file are not in the catalog. Their entries will be invalid: %1</source>
        <translation>
            <numerusform>%n program in this file is not in the catalog. Its entries will be invalid: %1</numerusform>
            <numerusform>%n programs in this file are not in the catalog. Their entries will be invalid: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n programs in the catalog may have another content than in this file: %1</source>
        <translation>
            <numerusform>%n program in the catalog may have another content than in this file: %1</numerusform>
            <numerusform>%n programs in the catalog may have another content than in this file: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n programs have another name in the catalog than in this file: %1</source>
        <translation>
            <numerusform>%n program has another name in the catalog than in this file: %1</numerusform>
            <numerusform>%n programs have another name in the catalog than in this file: %1</numerusform>
        </translation>
    </message>
</context>
</TS>
