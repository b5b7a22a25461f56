<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>XMessageDialog</name>
    <message>
        <source>Error</source>
        <comment>Message severity</comment>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <comment>Message severity</comment>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Information</source>
        <comment>Message severity</comment>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Diese Meldung nicht mehr anzeigen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <comment>Message dialog</comment>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copies the whole message to the clipboard</source>
        <translation>Kopiert die ganze Meldung in die Zwischenablage</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <comment>Message dialog</comment>
        <translation>&amp;Einzelheiten</translation>
    </message>
</context>
</TS>
