<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CoordFormat</name>
    <message>
        <source>Degrees, minutes, seconds</source>
        <translation>Grad, Minuten, Sekunden</translation>
    </message>
    <message>
        <source>Degrees, minutes</source>
        <translation>Grad, Minuten</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>Degrees with sign</source>
        <translation>Grad mit Vorzeichen</translation>
    </message>
    <message>
        <source>UTM</source>
        <translation>UTM</translation>
    </message>
    <message>
        <source>MGRS</source>
        <translation>MGRS</translation>
    </message>
    <message>
        <source>Maidenhead locator</source>
        <translation>Maidenhead-Locator</translation>
    </message>
    <message>
        <source>GEOREF</source>
        <translation>GEOREF</translation>
    </message>
</context>
<context>
    <name>PositionReader</name>
    <message>
        <source>A latitude is at most 90°.</source>
        <translation>Eine geografische Breite beträgt höchstens 90°.</translation>
    </message>
    <message>
        <source>A longitude is at most 180°.</source>
        <translation>Eine geografische Länge beträgt höchstens 180°.</translation>
    </message>
    <message>
        <source>Minutes and seconds are less than 60.</source>
        <translation>Minuten und Sekunden liegen unter 60.</translation>
    </message>
    <message>
        <source>The grid has no such place in this zone.</source>
        <translation>Das Gitter hat in dieser Zone keinen solchen Ort.</translation>
    </message>
    <message>
        <source>Type a position such as %1.</source>
        <translation>Bitte eine Position eingeben, zum Beispiel %1.</translation>
    </message>
</context>
</TS>
