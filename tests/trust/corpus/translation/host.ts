<TS version="2.1" language="pl_PL"><context><name>EditorWindow</name>
<message><source>Save</source><translation>&amp;Zapisz</translation></message>
<message numerus="yes"><source>%n program(s) were imported.</source><translation><numerusform>%n program</numerusform><numerusform>%n &#x105;</numerusform></translation></message>
<message><source>x</source><translation type="vanished"><![CDATA[x]]></translation></message>
</context></TS>
