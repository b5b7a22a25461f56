<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>RadioPanes::BandPanes</name>
    <message>
        <source>Plan</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>Marks</source>
        <translation>Marken</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>Traces</source>
        <translation>Kurven</translation>
    </message>
    <message>
        <source>Pins and cursor</source>
        <translation>Marker und Cursor</translation>
    </message>
    <message>
        <source>Pins snap to peaks</source>
        <translation>Marker rasten an Spitzen ein</translation>
    </message>
    <message>
        <source>Bookmark the cursor</source>
        <translation>Lesezeichen am Cursor setzen</translation>
    </message>
    <message>
        <source>Bandwidths at the cursor</source>
        <translation>Bandbreiten am Cursor</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Legend of the traces</source>
        <translation>Legende der Kurven</translation>
    </message>
    <message>
        <source>Legend of the waterfall</source>
        <translation>Legende des Wasserfalls</translation>
    </message>
    <message>
        <source>Overview of all sweeps</source>
        <translation>Übersicht aller Durchläufe</translation>
    </message>
    <message>
        <source>Colours of the waterfall</source>
        <translation>Farben des Wasserfalls</translation>
    </message>
    <message>
        <source>Pin %1</source>
        <translation>Marker %1</translation>
    </message>
    <message>
        <source>Name…</source>
        <translation>Benennen …</translation>
    </message>
    <message>
        <source>To the peak nearby</source>
        <translation>Zur nächsten Spitze</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Go to this time</source>
        <translation>Zu diesem Zeitpunkt springen</translation>
    </message>
    <message>
        <source>Follow the newest sweep</source>
        <translation>Dem neuesten Durchlauf folgen</translation>
    </message>
    <message>
        <source>Zoom in in time</source>
        <translation>Zeitachse vergrößern</translation>
    </message>
    <message>
        <source>Zoom out in time</source>
        <translation>Zeitachse verkleinern</translation>
    </message>
</context>
<context>
    <name>RadioPanes::BandPlan</name>
    <message>
        <source>“%1” is no frequency</source>
        <translation>„%1“ ist keine Frequenz</translation>
    </message>
    <message>
        <source>the stop is below the start</source>
        <translation>das Ende liegt unter dem Anfang</translation>
    </message>
    <message>
        <source>Line %1: more than %2 entries</source>
        <translation>Zeile %1: mehr als %2 Einträge</translation>
    </message>
    <message>
        <source>Line %1: %2. Expected: start, stop, name – as in “87.5 MHz, 108 MHz, FM broadcast”.</source>
        <translation>Zeile %1: %2. Erwartet: Anfang, Ende, Name – wie in „87.5 MHz, 108 MHz, UKW-Rundfunk“.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>%1 is no band plan: it has more than 4 MB</source>
        <translation>%1 ist kein Bandplan: Die Datei ist größer als 4 MB</translation>
    </message>
</context>
<context>
    <name>RadioPanes::BandPlanRow</name>
    <message>
        <source>&amp;Name…</source>
        <translation>&amp;Benennen …</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
</context>
<context>
    <name>RadioPanes::BearingRose</name>
    <message>
        <source>Compass rose of the bearings</source>
        <translation>Kompassrose der Peilungen</translation>
    </message>
    <message>
        <source>ahead</source>
        <translation>voraus</translation>
    </message>
    <message>
        <source>astern</source>
        <translation>achteraus</translation>
    </message>
    <message>
        <source>%1° to starboard</source>
        <translation>%1° an Steuerbord</translation>
    </message>
    <message>
        <source>%1° to portside</source>
        <translation>%1° an Backbord</translation>
    </message>
    <message>
        <source>%1: bearing %2° ± %3°, %4</source>
        <translation>%1: Peilung %2° ± %3°, %4</translation>
    </message>
    <message>
        <source>Signals: %1, none selected</source>
        <translation>Signale: %1, keines ausgewählt</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>E</source>
        <translation>O</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>H</source>
        <comment>Mark of the heading</comment>
        <translation>K</translation>
    </message>
    <message>
        <source>No signals. Their bearings appear here.</source>
        <translation>Keine Signale. Hier erscheinen ihre Peilungen.</translation>
    </message>
</context>
<context>
    <name>RadioPanes::ColorMap</name>
    <message>
        <source>Blue to yellow</source>
        <translation>Blau bis Gelb</translation>
    </message>
    <message>
        <source>Fire</source>
        <translation>Feuer</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Colour set</source>
        <translation>Farbsatz</translation>
    </message>
</context>
<context>
    <name>RadioPanes::NameField</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
</context>
<context>
    <name>RadioPanes::OverviewPane</name>
    <message>
        <source>Overview of all sweeps</source>
        <translation>Übersicht aller Durchläufe</translation>
    </message>
</context>
<context>
    <name>RadioPanes::SpectrumPane</name>
    <message>
        <source>  (hold %1)</source>
        <translation>  (Max. %1)</translation>
    </message>
    <message>
        <source>  (average %1)</source>
        <translation>  (Mittel %1)</translation>
    </message>
    <message>
        <source>  (minimum %1)</source>
        <translation>  (Min. %1)</translation>
    </message>
    <message>
        <source>-3 dB  %1,  99 % of the view  %2</source>
        <translation>−3 dB  %1,  99 % des Ausschnitts  %2</translation>
    </message>
    <message>
        <source>Cursor</source>
        <translation>Cursor</translation>
    </message>
    <message>
        <source>Pin %1</source>
        <translation>Marker %1</translation>
    </message>
    <message>
        <source>Spectrum</source>
        <translation>Spektrum</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Hold maximum</source>
        <translation>Maximum halten</translation>
    </message>
    <message>
        <source>Hold minimum</source>
        <translation>Minimum halten</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Aktuell</translation>
    </message>
</context>
<context>
    <name>RadioPanes::WaterfallPane</name>
    <message>
        <source>Waterfall</source>
        <translation>Wasserfall</translation>
    </message>
    <message>
        <source>Scrolled back: End follows the newest sweep</source>
        <translation>Zurückgeblättert: Ende folgt dem neuesten Durchlauf</translation>
    </message>
</context>
</TS>
