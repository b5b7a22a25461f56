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
</TS>
