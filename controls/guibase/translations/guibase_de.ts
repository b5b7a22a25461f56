<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AnimationWidget</name>
    <message>
        <source>Busy</source>
        <translation>Beschäftigt</translation>
    </message>
</context>
<context>
    <name>ClosableTabWidget</name>
    <message>
        <source>Close Tabs &amp;Below</source>
        <translation>Reiter &amp;unterhalb schließen</translation>
    </message>
    <message>
        <source>Close Tabs to the &amp;Left</source>
        <translation>Reiter &amp;links davon schließen</translation>
    </message>
    <message>
        <source>Close Tabs to the &amp;Right</source>
        <translation>Reiter &amp;rechts davon schließen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Close &amp;Others</source>
        <translation>&amp;Andere schließen</translation>
    </message>
    <message>
        <source>Reo&amp;pen Closed Tab</source>
        <translation>Geschlossenen Reiter &amp;wieder öffnen</translation>
    </message>
</context>
<context>
    <name>ColorCircle</name>
    <message>
        <source>Hue %1°, saturation %2 %, brightness %3 %</source>
        <translation>Farbton %1°, Sättigung %2 %, Helligkeit %3 %</translation>
    </message>
</context>
<context>
    <name>ColorPreview</name>
    <message>
        <source>Preview of the chosen colours</source>
        <translation>Vorschau der gewählten Farben</translation>
    </message>
</context>
<context>
    <name>ColorSelect</name>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
</context>
<context>
    <name>ColorSet</name>
    <message>
        <source> [changed]</source>
        <translation> [geändert]</translation>
    </message>
    <message>
        <source>File Error</source>
        <translation>Dateifehler</translation>
    </message>
    <message>
        <source>Cannot open file for writing! Continue?</source>
        <translation>Die Datei lässt sich nicht zum Schreiben öffnen. Fortfahren?</translation>
    </message>
    <message>
        <source>Save current ColorSet</source>
        <translation>Aktuellen Farbsatz speichern</translation>
    </message>
    <message>
        <source>Load ColorSet</source>
        <translation>Farbsatz laden</translation>
    </message>
    <message>
        <source>Current ColorSet was changed. Do you want to save now?</source>
        <translation>Der aktuelle Farbsatz wurde geändert. Jetzt speichern?</translation>
    </message>
    <message>
        <source>Read ColorSet</source>
        <translation>Farbsatz lesen</translation>
    </message>
    <message>
        <source>Cannot open Color Definition File! Continue?</source>
        <translation>Die Farbdatei lässt sich nicht öffnen. Fortfahren?</translation>
    </message>
    <message>
        <source>Assignments</source>
        <translation>Zuordnungen</translation>
    </message>
    <message>
        <source>*** Dark Desktop ***</source>
        <translation>*** Dunkle Oberfläche ***</translation>
    </message>
    <message>
        <source>*** Color Blind ***</source>
        <translation>*** Farbfehlsichtig ***</translation>
    </message>
    <message>
        <source>*** Factory Default ***</source>
        <translation>*** Werkseinstellung ***</translation>
    </message>
</context>
<context>
    <name>Colors</name>
    <message>
        <source>System::Background</source>
        <translation>System::Hintergrund</translation>
    </message>
    <message>
        <source>System::Text</source>
        <translation>System::Text</translation>
    </message>
    <message>
        <source>System::CaptionText</source>
        <translation>System::Titeltext</translation>
    </message>
    <message>
        <source>System::Caption</source>
        <translation>System::Titel</translation>
    </message>
    <message>
        <source>System::Light</source>
        <translation>System::Hell</translation>
    </message>
    <message>
        <source>System::Dark</source>
        <translation>System::Dunkel</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Turquoise</source>
        <translation>Türkis</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Braun</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Light Gray</source>
        <translation>Hellgrau</translation>
    </message>
    <message>
        <source>Light Blue</source>
        <translation>Hellblau</translation>
    </message>
    <message>
        <source>Light Green</source>
        <translation>Hellgrün</translation>
    </message>
    <message>
        <source>Light Turquoise</source>
        <translation>Helltürkis</translation>
    </message>
    <message>
        <source>Light Red</source>
        <translation>Hellrot</translation>
    </message>
    <message>
        <source>Light Magenta</source>
        <translation>Hellmagenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Blue 1</source>
        <translation>Blau 1</translation>
    </message>
    <message>
        <source>Blue 2</source>
        <translation>Blau 2</translation>
    </message>
    <message>
        <source>Blue 3</source>
        <translation>Blau 3</translation>
    </message>
    <message>
        <source>Blue 4</source>
        <translation>Blau 4</translation>
    </message>
    <message>
        <source>Blue 5</source>
        <translation>Blau 5</translation>
    </message>
    <message>
        <source>Blue 6</source>
        <translation>Blau 6</translation>
    </message>
    <message>
        <source>Blue 7</source>
        <translation>Blau 7</translation>
    </message>
    <message>
        <source>Blue 8</source>
        <translation>Blau 8</translation>
    </message>
    <message>
        <source>Turquoise 1</source>
        <translation>Türkis 1</translation>
    </message>
    <message>
        <source>Turquoise 2</source>
        <translation>Türkis 2</translation>
    </message>
    <message>
        <source>Turquoise 3</source>
        <translation>Türkis 3</translation>
    </message>
    <message>
        <source>Turquoise 4</source>
        <translation>Türkis 4</translation>
    </message>
    <message>
        <source>Turquoise 5</source>
        <translation>Türkis 5</translation>
    </message>
    <message>
        <source>Turquoise 6</source>
        <translation>Türkis 6</translation>
    </message>
    <message>
        <source>Turquoise 7</source>
        <translation>Türkis 7</translation>
    </message>
    <message>
        <source>Turquoise 8</source>
        <translation>Türkis 8</translation>
    </message>
    <message>
        <source>Green 1</source>
        <translation>Grün 1</translation>
    </message>
    <message>
        <source>Green 2</source>
        <translation>Grün 2</translation>
    </message>
    <message>
        <source>Green 3</source>
        <translation>Grün 3</translation>
    </message>
    <message>
        <source>Green 4</source>
        <translation>Grün 4</translation>
    </message>
    <message>
        <source>Green 5</source>
        <translation>Grün 5</translation>
    </message>
    <message>
        <source>Green 6</source>
        <translation>Grün 6</translation>
    </message>
    <message>
        <source>Green 7</source>
        <translation>Grün 7</translation>
    </message>
    <message>
        <source>Green 8</source>
        <translation>Grün 8</translation>
    </message>
    <message>
        <source>Gray 80%</source>
        <translation>Grau 80 %</translation>
    </message>
    <message>
        <source>Gray 70%</source>
        <translation>Grau 70 %</translation>
    </message>
    <message>
        <source>Gray 60%</source>
        <translation>Grau 60 %</translation>
    </message>
    <message>
        <source>Gray 40%</source>
        <translation>Grau 40 %</translation>
    </message>
    <message>
        <source>Gray 30%</source>
        <translation>Grau 30 %</translation>
    </message>
    <message>
        <source>Gray 20%</source>
        <translation>Grau 20 %</translation>
    </message>
    <message>
        <source>Gray 10%</source>
        <translation>Grau 10 %</translation>
    </message>
    <message>
        <source>BlueGray</source>
        <translation>Blaugrau</translation>
    </message>
    <message>
        <source>Brown 1</source>
        <translation>Braun 1</translation>
    </message>
    <message>
        <source>Brown 2</source>
        <translation>Braun 2</translation>
    </message>
    <message>
        <source>Brown 3</source>
        <translation>Braun 3</translation>
    </message>
    <message>
        <source>Brown 4</source>
        <translation>Braun 4</translation>
    </message>
    <message>
        <source>Orange 1</source>
        <translation>Orange 1</translation>
    </message>
    <message>
        <source>Orange 2</source>
        <translation>Orange 2</translation>
    </message>
    <message>
        <source>Orange 3</source>
        <translation>Orange 3</translation>
    </message>
    <message>
        <source>Orange 4</source>
        <translation>Orange 4</translation>
    </message>
    <message>
        <source>Magenta 1</source>
        <translation>Magenta 1</translation>
    </message>
    <message>
        <source>Magenta 2</source>
        <translation>Magenta 2</translation>
    </message>
    <message>
        <source>Magenta 3</source>
        <translation>Magenta 3</translation>
    </message>
    <message>
        <source>Magenta 4</source>
        <translation>Magenta 4</translation>
    </message>
    <message>
        <source>Magenta 5</source>
        <translation>Magenta 5</translation>
    </message>
    <message>
        <source>Magenta 6</source>
        <translation>Magenta 6</translation>
    </message>
    <message>
        <source>Magenta 7</source>
        <translation>Magenta 7</translation>
    </message>
    <message>
        <source>Magenta 8</source>
        <translation>Magenta 8</translation>
    </message>
    <message>
        <source>Yellow 1</source>
        <translation>Gelb 1</translation>
    </message>
    <message>
        <source>Yellow 2</source>
        <translation>Gelb 2</translation>
    </message>
    <message>
        <source>Yellow 3</source>
        <translation>Gelb 3</translation>
    </message>
    <message>
        <source>Yellow 4</source>
        <translation>Gelb 4</translation>
    </message>
    <message>
        <source>Yellow 5</source>
        <translation>Gelb 5</translation>
    </message>
    <message>
        <source>Yellow 6</source>
        <translation>Gelb 6</translation>
    </message>
    <message>
        <source>Yellow 7</source>
        <translation>Gelb 7</translation>
    </message>
    <message>
        <source>Yellow 8</source>
        <translation>Gelb 8</translation>
    </message>
    <message>
        <source>Red 1</source>
        <translation>Rot 1</translation>
    </message>
    <message>
        <source>Red 2</source>
        <translation>Rot 2</translation>
    </message>
    <message>
        <source>Red 3</source>
        <translation>Rot 3</translation>
    </message>
    <message>
        <source>Red 4</source>
        <translation>Rot 4</translation>
    </message>
    <message>
        <source>Red 5</source>
        <translation>Rot 5</translation>
    </message>
    <message>
        <source>Red 6</source>
        <translation>Rot 6</translation>
    </message>
    <message>
        <source>Red 7</source>
        <translation>Rot 7</translation>
    </message>
    <message>
        <source>Red 8</source>
        <translation>Rot 8</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Ocean</source>
        <translation>Ozean</translation>
    </message>
    <message>
        <source>Orange new 2</source>
        <translation>Orange neu 2</translation>
    </message>
    <message>
        <source>Kakhi1</source>
        <translation>Khaki 1</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Gold</translation>
    </message>
    <message>
        <source>SteelBlue1</source>
        <translation>Stahlblau 1</translation>
    </message>
    <message>
        <source>LightBlue1</source>
        <translation>Hellblau 1</translation>
    </message>
    <message>
        <source>MediumAquamarine</source>
        <translation>Mittleres Aquamarin</translation>
    </message>
    <message>
        <source>Aquamarine</source>
        <translation>Aquamarin</translation>
    </message>
    <message>
        <source>CornflowerBlue</source>
        <translation>Kornblumenblau</translation>
    </message>
    <message>
        <source>Chocolate</source>
        <translation>Schokolade</translation>
    </message>
    <message>
        <source>Tan4</source>
        <translation>Hellbraun 4</translation>
    </message>
    <message>
        <source>Tomato2</source>
        <translation>Tomate 2</translation>
    </message>
    <message>
        <source>FireBrick</source>
        <translation>Ziegelrot</translation>
    </message>
    <message>
        <source>FireBrick2</source>
        <translation>Ziegelrot 2</translation>
    </message>
    <message>
        <source>DarkCyan</source>
        <translation>Dunkelcyan</translation>
    </message>
    <message>
        <source>Chocolate2</source>
        <translation>Schokolade 2</translation>
    </message>
    <message>
        <source>SteelBlue 2</source>
        <translation>Stahlblau 2</translation>
    </message>
    <message>
        <source>user %1</source>
        <translation>Benutzer %1</translation>
    </message>
    <message>
        <source>Undefined</source>
        <translation>Nicht festgelegt</translation>
    </message>
</context>
<context>
    <name>ColorsCtrl</name>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Fixed to System Background</source>
        <translation>Fest: Hintergrund des Systems</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Out of Zoom</source>
        <translation>Außerhalb des Zooms</translation>
    </message>
    <message>
        <source>Background Hi</source>
        <translation>Hintergrund oben</translation>
    </message>
    <message>
        <source>Background Lo</source>
        <translation>Hintergrund unten</translation>
    </message>
    <message>
        <source>Background (low)</source>
        <translation>Hintergrund (unten)</translation>
    </message>
    <message>
        <source>Background (high)</source>
        <translation>Hintergrund (oben)</translation>
    </message>
    <message>
        <source>Background in Bandwidth</source>
        <translation>Hintergrund in der Bandbreite</translation>
    </message>
    <message>
        <source>Background in Audio Bandwidth</source>
        <translation>Hintergrund in der NF-Bandbreite</translation>
    </message>
    <message>
        <source>Background in Job</source>
        <translation>Hintergrund im Auftrag</translation>
    </message>
    <message>
        <source>Background out of Job</source>
        <translation>Hintergrund außerhalb des Auftrags</translation>
    </message>
    <message>
        <source>Result Panel Text</source>
        <translation>Text des Ergebnisfelds</translation>
    </message>
    <message>
        <source>Minimum Points</source>
        <translation>Minima</translation>
    </message>
    <message>
        <source>Maximum Points</source>
        <translation>Maxima</translation>
    </message>
    <message>
        <source>Main Curve</source>
        <translation>Hauptkurve</translation>
    </message>
    <message>
        <source>Main Curve Maximum Shadow</source>
        <translation>Hauptkurve, Maximum-Schatten</translation>
    </message>
    <message>
        <source>Main Curve - Frozen</source>
        <translation>Hauptkurve – eingefroren</translation>
    </message>
    <message>
        <source>Main Curve Maximum Shadow - Frozen</source>
        <translation>Hauptkurve, Maximum-Schatten – eingefroren</translation>
    </message>
    <message>
        <source>Secondary Curve</source>
        <translation>Nebenkurve</translation>
    </message>
    <message>
        <source>Secondary Curve - Frozen</source>
        <translation>Nebenkurve – eingefroren</translation>
    </message>
    <message>
        <source>Filtered Background</source>
        <translation>Gefilterter Hintergrund</translation>
    </message>
    <message>
        <source>Background, where no KFactors available</source>
        <translation>Hintergrund ohne verfügbare K-Faktoren</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Color is calculated from background to black or white</source>
        <translation>Farbe wird aus dem Hintergrund zu Schwarz oder Weiß berechnet</translation>
    </message>
    <message>
        <source>Overload 0</source>
        <translation>Übersteuerung 0</translation>
    </message>
    <message>
        <source>Overload 1</source>
        <translation>Übersteuerung 1</translation>
    </message>
    <message>
        <source>Overload 2</source>
        <translation>Übersteuerung 2</translation>
    </message>
    <message>
        <source>Overload 3</source>
        <translation>Übersteuerung 3</translation>
    </message>
    <message>
        <source>Overload 4</source>
        <translation>Übersteuerung 4</translation>
    </message>
    <message>
        <source>Overload 5</source>
        <translation>Übersteuerung 5</translation>
    </message>
    <message>
        <source>Overload 6</source>
        <translation>Übersteuerung 6</translation>
    </message>
    <message>
        <source>Overload 7</source>
        <translation>Übersteuerung 7</translation>
    </message>
    <message>
        <source>Overload 8</source>
        <translation>Übersteuerung 8</translation>
    </message>
    <message>
        <source>Overload 9</source>
        <translation>Übersteuerung 9</translation>
    </message>
    <message>
        <source>Hold Maximum</source>
        <translation>Maximum halten</translation>
    </message>
    <message>
        <source>Additional (Red)</source>
        <translation>Zusätzlich (Rot)</translation>
    </message>
    <message>
        <source>Additional (Blue)</source>
        <translation>Zusätzlich (Blau)</translation>
    </message>
    <message>
        <source>Additional (Cyan)</source>
        <translation>Zusätzlich (Cyan)</translation>
    </message>
    <message>
        <source>Main (Frequency)</source>
        <translation>Haupt (Frequenz)</translation>
    </message>
    <message>
        <source>Additional Frequency</source>
        <translation>Zusätzliche Frequenz</translation>
    </message>
    <message>
        <source>Secondary (Threshold)</source>
        <translation>Neben (Schwelle)</translation>
    </message>
    <message>
        <source>Measurement</source>
        <translation>Messung</translation>
    </message>
    <message>
        <source>Measurement - Centered</source>
        <translation>Messung – zentriert</translation>
    </message>
    <message>
        <source>Grayed</source>
        <translation>Ausgegraut</translation>
    </message>
    <message>
        <source>Background Focussed</source>
        <translation>Hintergrund mit Fokus</translation>
    </message>
    <message>
        <source>Focussed Text</source>
        <translation>Text mit Fokus</translation>
    </message>
    <message>
        <source>Background not Focussed</source>
        <translation>Hintergrund ohne Fokus</translation>
    </message>
    <message>
        <source>Not Focussed Text</source>
        <translation>Text ohne Fokus</translation>
    </message>
    <message>
        <source>Highlighted Focussed Text</source>
        <translation>Hervorgehobener Text mit Fokus</translation>
    </message>
    <message>
        <source>High Border</source>
        <translation>Obere Grenze</translation>
    </message>
    <message>
        <source>Low Border</source>
        <translation>Untere Grenze</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>Innen</translation>
    </message>
    <message>
        <source>Background Highlighted</source>
        <translation>Hintergrund hervorgehoben</translation>
    </message>
    <message>
        <source>in Bandwidth</source>
        <translation>in der Bandbreite</translation>
    </message>
    <message>
        <source>Local Suppress</source>
        <translation>Lokal unterdrückt</translation>
    </message>
    <message>
        <source>Global Suppress</source>
        <translation>Global unterdrückt</translation>
    </message>
    <message>
        <source>Bit 0</source>
        <translation>Bit 0</translation>
    </message>
    <message>
        <source>Bit 1</source>
        <translation>Bit 1</translation>
    </message>
    <message>
        <source>Below Threshold</source>
        <translation>Unter der Schwelle</translation>
    </message>
    <message>
        <source>Active Pen</source>
        <translation>Aktiver Stift</translation>
    </message>
    <message>
        <source>Active Brush</source>
        <translation>Aktive Füllung</translation>
    </message>
    <message>
        <source>Inactive Pen</source>
        <translation>Inaktiver Stift</translation>
    </message>
    <message>
        <source>Inactive Brush</source>
        <translation>Inaktive Füllung</translation>
    </message>
    <message>
        <source>Current Pen</source>
        <translation>Aktueller Stift</translation>
    </message>
    <message>
        <source>Current Active Brush</source>
        <translation>Aktuelle aktive Füllung</translation>
    </message>
    <message>
        <source>Current Inactive Brush</source>
        <translation>Aktuelle inaktive Füllung</translation>
    </message>
    <message>
        <source>Starboard</source>
        <translation>Steuerbord</translation>
    </message>
    <message>
        <source>Portside</source>
        <translation>Backbord</translation>
    </message>
    <message>
        <source>0 and 180 deg</source>
        <translation>0 und 180 Grad</translation>
    </message>
    <message>
        <source>Planned</source>
        <translation>Geplant</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>In Bearbeitung</translation>
    </message>
    <message>
        <source>Submitted</source>
        <translation>Übergeben</translation>
    </message>
    <message>
        <source>AboutToStart</source>
        <translation>Startet gleich</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Beendet</translation>
    </message>
    <message>
        <source>Aborted</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Production</source>
        <translation>Produktion</translation>
    </message>
    <message>
        <source>Tuner</source>
        <translation>Tuner</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Surveillance</source>
        <translation>Überwachung</translation>
    </message>
    <message>
        <source>Pool</source>
        <translation>Pool</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstiges</translation>
    </message>
    <message>
        <source>Exciter</source>
        <translation>Steuersender</translation>
    </message>
    <message>
        <source>Antenna</source>
        <translation>Antenne</translation>
    </message>
    <message>
        <source>Skorn Receiver</source>
        <translation>Skorn-Empfänger</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Halt</translation>
    </message>
    <message>
        <source>Yield</source>
        <translation>Achtung</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Frei</translation>
    </message>
    <message>
        <source>Limit Line</source>
        <translation>Grenzwertlinie</translation>
    </message>
    <message>
        <source>Min Max Hold</source>
        <translation>Min/Max halten</translation>
    </message>
    <message>
        <source>Reference Curve</source>
        <translation>Referenzkurve</translation>
    </message>
    <message>
        <source>Time Diagram Main Curve</source>
        <translation>Zeitdiagramm: Hauptkurve</translation>
    </message>
    <message>
        <source>Time Diagram Secondary Curve</source>
        <translation>Zeitdiagramm: Nebenkurve</translation>
    </message>
    <message>
        <source>Time Diagram Background (high)</source>
        <translation>Zeitdiagramm: Hintergrund (oben)</translation>
    </message>
    <message>
        <source>Time Diagram Background (low)</source>
        <translation>Zeitdiagramm: Hintergrund (unten)</translation>
    </message>
    <message>
        <source>Eye Diagram Curve</source>
        <translation>Augendiagramm: Kurve</translation>
    </message>
    <message>
        <source>Eye Diagram Background (high)</source>
        <translation>Augendiagramm: Hintergrund (oben)</translation>
    </message>
    <message>
        <source>Eye Diagram Background (low)</source>
        <translation>Augendiagramm: Hintergrund (unten)</translation>
    </message>
    <message>
        <source>IQ Diagram Curve</source>
        <translation>IQ-Diagramm: Kurve</translation>
    </message>
    <message>
        <source>IQ Diagram Background (high)</source>
        <translation>IQ-Diagramm: Hintergrund (oben)</translation>
    </message>
    <message>
        <source>IQ Diagram Background (low)</source>
        <translation>IQ-Diagramm: Hintergrund (unten)</translation>
    </message>
    <message>
        <source>Central</source>
        <translation>Zentral</translation>
    </message>
    <message>
        <source>Invalid</source>
        <translation>Ungültig</translation>
    </message>
    <message>
        <source>IF</source>
        <translation>ZF</translation>
    </message>
    <message>
        <source>Remote</source>
        <translation>Fern</translation>
    </message>
    <message>
        <source>Local</source>
        <translation>Lokal</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Axis</source>
        <translation>Achse</translation>
    </message>
    <message>
        <source>Frequency Axis</source>
        <translation>Frequenzachse</translation>
    </message>
    <message>
        <source>Y Axis</source>
        <translation>Y-Achse</translation>
    </message>
    <message>
        <source>Drawpane</source>
        <translation>Zeichenfläche</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Balken</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>Marker</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Frequency Types</source>
        <translation>Frequenzarten</translation>
    </message>
    <message>
        <source>JobFrame</source>
        <translation>Auftragsrahmen</translation>
    </message>
    <message>
        <source>Frequency Bar</source>
        <translation>Frequenzleiste</translation>
    </message>
    <message>
        <source>Frequency Bar New</source>
        <translation>Frequenzleiste neu</translation>
    </message>
    <message>
        <source>Bit Stream</source>
        <translation>Bitstrom</translation>
    </message>
    <message>
        <source>Detection Conventional - Attention, Colors will be or&apos;ed with Background!</source>
        <translation>Detektion konventionell – Achtung: Farben werden mit dem Hintergrund ODER-verknüpft!</translation>
    </message>
    <message>
        <source>Axis Colors - Relative Bearing Mode</source>
        <translation>Achsenfarben – relative Peilung</translation>
    </message>
    <message>
        <source>Planner Colors: Type and State</source>
        <translation>Planerfarben: Art und Zustand</translation>
    </message>
    <message>
        <source>Traffic lights: multi purpose red, yellow, green</source>
        <translation>Ampel: Rot, Gelb, Grün für viele Zwecke</translation>
    </message>
    <message>
        <source>Drawpane Special Curves</source>
        <translation>Zeichenfläche: besondere Kurven</translation>
    </message>
    <message>
        <source>Time/Eye/IQ Diagram</source>
        <translation>Zeit-/Augen-/IQ-Diagramm</translation>
    </message>
    <message>
        <source>Production Result</source>
        <translation>Produktionsergebnis</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Bedienelement</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>Hard to see on its background</source>
        <translation>Auf seinem Hintergrund schlecht zu sehen</translation>
    </message>
    <message>
        <source>File Open</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>File Save As</source>
        <translation>Datei speichern unter</translation>
    </message>
    <message>
        <source>Filter by element or colour</source>
        <translation>Nach Element oder Farbe filtern</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>&amp;User Colours</source>
        <translation>&amp;Benutzerfarben</translation>
    </message>
    <message>
        <source>Redefine a user colour, at once and everywhere</source>
        <translation>Eine Benutzerfarbe neu festlegen, sofort und überall</translation>
    </message>
    <message>
        <source>Press Return on a row to choose another colour.</source>
        <translation>Eingabetaste auf einer Zeile: andere Farbe wählen.</translation>
    </message>
    <message>
        <source>Contrast with the background: %L1 : 1, hard to see below %L2 : 1.</source>
        <translation>Kontrast zum Hintergrund: %L1 : 1, unter %L2 : 1 schlecht zu sehen.</translation>
    </message>
    <message>
        <source>Contrast with the background: %L1 : 1.</source>
        <translation>Kontrast zum Hintergrund: %L1 : 1.</translation>
    </message>
</context>
<context>
    <name>ColumnMenu</name>
    <message>
        <source>Show All</source>
        <translation>Alle anzeigen</translation>
    </message>
</context>
<context>
    <name>CoordinateEdit</name>
    <message>
        <source>Type a position from %1 to %2.</source>
        <translation>Bitte eine Position von %1 bis %2 eingeben.</translation>
    </message>
</context>
<context>
    <name>DisplayFormat</name>
    <message>
        <source>This text is too long. Type a shorter one.</source>
        <translation>Dieser Text ist zu lang. Bitte einen kürzeren eingeben.</translation>
    </message>
    <message>
        <source>This cannot be read. Type another value.</source>
        <translation>Das lässt sich nicht lesen. Bitte einen anderen Wert eingeben.</translation>
    </message>
    <message>
        <source>Type a number from %1 to %2.</source>
        <translation>Bitte eine Zahl von %1 bis %2 eingeben.</translation>
    </message>
    <message>
        <source>Type whole hertz: at most %1 decimals in %2.</source>
        <translation>Bitte ganze Hertz eingeben: höchstens %1 Nachkommastellen in %2.</translation>
    </message>
    <message>
        <source>Type a whole number, without decimals.</source>
        <translation>Bitte eine ganze Zahl ohne Nachkommastellen eingeben.</translation>
    </message>
    <message>
        <source>Type date and time as in &quot;%1&quot;.</source>
        <translation>Bitte Datum und Uhrzeit wie in „%1“ eingeben.</translation>
    </message>
    <message>
        <source>Type a number, such as %1.</source>
        <translation>Bitte eine Zahl eingeben, etwa %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read. Type a number such as %2.</source>
        <translation>„%1“ lässt sich nicht lesen. Bitte eine Zahl wie %2 eingeben.</translation>
    </message>
    <message>
        <source>Ambiguous: type %1 or %2.</source>
        <translation>Mehrdeutig: Bitte %1 oder %2 eingeben.</translation>
    </message>
    <message>
        <source>Type whole numbers without separators: %1.</source>
        <translation>Bitte ganze Zahlen ohne Trennzeichen eingeben: %1.</translation>
    </message>
    <message>
        <source>This cannot be read. Type it as in &quot;%1&quot;.</source>
        <translation>Das lässt sich nicht lesen. Bitte wie in „%1“ eingeben.</translation>
    </message>
</context>
<context>
    <name>EnhancedDockWidgetTitleBar</name>
    <message>
        <source>Dock</source>
        <comment>Tool tip: put a window back into the main window</comment>
        <translation>Andocken</translation>
    </message>
    <message>
        <source>Float</source>
        <comment>Tool tip: make a dock a window of its own</comment>
        <translation>Ablösen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Weitere</translation>
    </message>
</context>
<context>
    <name>FileOpenManager</name>
    <message>
        <source>File Open Dialog</source>
        <translation>Datei öffnen</translation>
    </message>
</context>
<context>
    <name>GuiBase</name>
    <message>
        <source>Unidentified</source>
        <translation>Nicht identifiziert</translation>
    </message>
    <message>
        <source>Unidentified - probably important</source>
        <translation>Nicht identifiziert – vermutlich wichtig</translation>
    </message>
    <message>
        <source>Unidentified - probably not important</source>
        <translation>Nicht identifiziert – vermutlich unwichtig</translation>
    </message>
    <message>
        <source>Known - not important - Info</source>
        <translation>Bekannt – unwichtig – zur Information</translation>
    </message>
    <message>
        <source>Known - friend</source>
        <translation>Bekannt – eigen</translation>
    </message>
    <message>
        <source>Known - important</source>
        <translation>Bekannt – wichtig</translation>
    </message>
    <message>
        <source>Known - very important - critical</source>
        <translation>Bekannt – sehr wichtig – kritisch</translation>
    </message>
    <message>
        <source>Unidentified - Fixed</source>
        <translation>Nicht identifiziert – Festfrequenz</translation>
    </message>
    <message>
        <source>Unidentified - Chirp</source>
        <translation>Nicht identifiziert – Chirp</translation>
    </message>
    <message>
        <source>Unidentified - Hopper</source>
        <translation>Nicht identifiziert – Frequenzspringer</translation>
    </message>
    <message>
        <source>Unidentified - Burst</source>
        <translation>Nicht identifiziert – Burst</translation>
    </message>
    <message>
        <source>Type_L</source>
        <translation>Typ_L</translation>
    </message>
    <message>
        <source>Type_M</source>
        <translation>Typ_M</translation>
    </message>
    <message>
        <source>Type_N</source>
        <translation>Typ_N</translation>
    </message>
    <message>
        <source>Type_O</source>
        <translation>Typ_O</translation>
    </message>
    <message>
        <source>Type_P</source>
        <translation>Typ_P</translation>
    </message>
    <message>
        <source>Type_Q</source>
        <translation>Typ_Q</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>The same key also does: %1</source>
        <translation>Dieselbe Taste bewirkt auch: %1</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>Geltungsbereich</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Keyboard - Hotkeys Overview</source>
        <translation>Tastatur – Übersicht der Tastenkürzel</translation>
    </message>
    <message>
        <source>&amp;Hotkeys</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>C&amp;hange...</source>
        <translation>Ä&amp;ndern ...</translation>
    </message>
    <message>
        <source>&amp;Default</source>
        <translation>&amp;Vorgabe</translation>
    </message>
    <message>
        <source>Press Return on a row to give it another key.</source>
        <translation>Eingabetaste auf einer Zeile: eine andere Taste vergeben.</translation>
    </message>
    <message>
        <source>Hot keys that share a key: %1. All of them act when it is pressed; give each one a key of its own.</source>
        <translation>Tastenkürzel mit gemeinsamer Taste: %1. Ein Druck löst alle aus; jedes sollte eine eigene Taste bekommen.</translation>
    </message>
    <message>
        <source>HotKeys</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>No Hotkeys applied</source>
        <translation>Keine Tastenkürzel vergeben</translation>
    </message>
    <message>
        <source>Application Wide</source>
        <translation>Überall im Programm</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulator</translation>
    </message>
    <message>
        <source>Backtab</source>
        <translation>Tabulator rückwärts</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfg</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>SysReq</source>
        <translation>S-Abf</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Auf</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Ab</translation>
    </message>
    <message>
        <source>Prior</source>
        <translation>Bild auf</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Bild ab</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Meta</source>
        <translation>Meta</translation>
    </message>
    <message>
        <source>CapsLock</source>
        <translation>Feststell</translation>
    </message>
    <message>
        <source>NumLock</source>
        <translation>Num</translation>
    </message>
    <message>
        <source>ScrollLock</source>
        <translation>Rollen</translation>
    </message>
    <message>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <source>F2</source>
        <translation>F2</translation>
    </message>
    <message>
        <source>F3</source>
        <translation>F3</translation>
    </message>
    <message>
        <source>F4</source>
        <translation>F4</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>F6</source>
        <translation>F6</translation>
    </message>
    <message>
        <source>F7</source>
        <translation>F7</translation>
    </message>
    <message>
        <source>F8</source>
        <translation>F8</translation>
    </message>
    <message>
        <source>F9</source>
        <translation>F9</translation>
    </message>
    <message>
        <source>F10</source>
        <translation>F10</translation>
    </message>
    <message>
        <source>F11</source>
        <translation>F11</translation>
    </message>
    <message>
        <source>F12</source>
        <translation>F12</translation>
    </message>
    <message>
        <source>F13</source>
        <translation>F13</translation>
    </message>
    <message>
        <source>F14</source>
        <translation>F14</translation>
    </message>
    <message>
        <source>F15</source>
        <translation>F15</translation>
    </message>
    <message>
        <source>F16</source>
        <translation>F16</translation>
    </message>
    <message>
        <source>F17</source>
        <translation>F17</translation>
    </message>
    <message>
        <source>F18</source>
        <translation>F18</translation>
    </message>
    <message>
        <source>F19</source>
        <translation>F19</translation>
    </message>
    <message>
        <source>F20</source>
        <translation>F20</translation>
    </message>
    <message>
        <source>F21</source>
        <translation>F21</translation>
    </message>
    <message>
        <source>F22</source>
        <translation>F22</translation>
    </message>
    <message>
        <source>F23</source>
        <translation>F23</translation>
    </message>
    <message>
        <source>F24</source>
        <translation>F24</translation>
    </message>
    <message>
        <source>F25</source>
        <translation>F25</translation>
    </message>
    <message>
        <source>F26</source>
        <translation>F26</translation>
    </message>
    <message>
        <source>F27</source>
        <translation>F27</translation>
    </message>
    <message>
        <source>F28</source>
        <translation>F28</translation>
    </message>
    <message>
        <source>F29</source>
        <translation>F29</translation>
    </message>
    <message>
        <source>F30</source>
        <translation>F30</translation>
    </message>
    <message>
        <source>F31</source>
        <translation>F31</translation>
    </message>
    <message>
        <source>F32</source>
        <translation>F32</translation>
    </message>
    <message>
        <source>F33</source>
        <translation>F33</translation>
    </message>
    <message>
        <source>F34</source>
        <translation>F34</translation>
    </message>
    <message>
        <source>F35</source>
        <translation>F35</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Exclam</source>
        <translation>Ausrufezeichen</translation>
    </message>
    <message>
        <source>QuoteDbl</source>
        <translation>Anführungszeichen</translation>
    </message>
    <message>
        <source>NumberSign</source>
        <translation>Raute</translation>
    </message>
    <message>
        <source>Dollar</source>
        <translation>Dollar</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>Ampersand</source>
        <translation>Kaufmanns-Und</translation>
    </message>
    <message>
        <source>Apostrophe</source>
        <translation>Apostroph</translation>
    </message>
    <message>
        <source>Plus</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>Minus</source>
        <translation>Minus</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Slash</source>
        <translation>Schrägstrich</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>6</source>
        <translation>6</translation>
    </message>
    <message>
        <source>7</source>
        <translation>7</translation>
    </message>
    <message>
        <source>8</source>
        <translation>8</translation>
    </message>
    <message>
        <source>9</source>
        <translation>9</translation>
    </message>
    <message>
        <source>Colon</source>
        <translation>Doppelpunkt</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Strichpunkt</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>Equal</source>
        <translation>Gleich</translation>
    </message>
    <message>
        <source>Greater</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Fragezeichen</translation>
    </message>
    <message>
        <source>At</source>
        <translation>Klammeraffe</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>C</source>
        <translation>C</translation>
    </message>
    <message>
        <source>D</source>
        <translation>D</translation>
    </message>
    <message>
        <source>E</source>
        <translation>E</translation>
    </message>
    <message>
        <source>F</source>
        <translation>F</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>H</source>
        <translation>H</translation>
    </message>
    <message>
        <source>I</source>
        <translation>I</translation>
    </message>
    <message>
        <source>J</source>
        <translation>J</translation>
    </message>
    <message>
        <source>K</source>
        <translation>K</translation>
    </message>
    <message>
        <source>L</source>
        <translation>L</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>O</source>
        <translation>O</translation>
    </message>
    <message>
        <source>P</source>
        <translation>P</translation>
    </message>
    <message>
        <source>Q</source>
        <translation>Q</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>T</source>
        <translation>T</translation>
    </message>
    <message>
        <source>U</source>
        <translation>U</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>BracketLeft</source>
        <translation>Eckige Klammer auf</translation>
    </message>
    <message>
        <source>Backslash</source>
        <translation>Umgekehrter Schrägstrich</translation>
    </message>
    <message>
        <source>BracketRight</source>
        <translation>Eckige Klammer zu</translation>
    </message>
    <message>
        <source>AsciiCircum</source>
        <translation>Zirkumflex</translation>
    </message>
    <message>
        <source>Underscore</source>
        <translation>Unterstrich</translation>
    </message>
    <message>
        <source>QuoteLeft</source>
        <translation>Gravis</translation>
    </message>
    <message>
        <source>BraceLeft</source>
        <translation>Geschweifte Klammer auf</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Senkrechter Strich</translation>
    </message>
    <message>
        <source>BraceRight</source>
        <translation>Geschweifte Klammer zu</translation>
    </message>
    <message>
        <source>AsciiTilde</source>
        <translation>Tilde</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>Reset View to Program Start</source>
        <comment>Menu entry: Reset window view</comment>
        <translation>Ansicht wie beim Programmstart</translation>
    </message>
    <message>
        <source>Reset View to Factory Default</source>
        <comment>Menu entry: Reset window view</comment>
        <translation>Ansicht wie ab Werk</translation>
    </message>
    <message>
        <source>Time in UTC</source>
        <translation>Zeit in UTC</translation>
    </message>
    <message>
        <source>Local Time</source>
        <translation>Ortszeit</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <comment>Help menu title</comment>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Manual...</source>
        <comment>Help menu entry, shows manual</comment>
        <translation>&amp;Handbuch ...</translation>
    </message>
    <message>
        <source>&amp;Keyboard...</source>
        <comment>Help menu entry, shows keyboard map</comment>
        <translation>&amp;Tastatur ...</translation>
    </message>
    <message>
        <source>Show key shortcuts</source>
        <comment>Status tip for help menu entry</comment>
        <translation>Tastenkürzel anzeigen</translation>
    </message>
    <message>
        <source>&amp;Info...</source>
        <comment>Help menu entry, shows info dialog</comment>
        <translation>&amp;Info ...</translation>
    </message>
    <message>
        <source>Show info dialog</source>
        <comment>Status tip for help menu entry</comment>
        <translation>Info-Dialog anzeigen</translation>
    </message>
    <message>
        <source>Helpfile not configured.</source>
        <translation>Keine Hilfedatei eingerichtet.</translation>
    </message>
    <message>
        <source>Helpfile not yet available.</source>
        <translation>Hilfedatei noch nicht vorhanden.</translation>
    </message>
    <message>
        <source>The desktop has no program that opens %1.</source>
        <translation>Die Arbeitsumgebung hat kein Programm, das %1 öffnet.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Es gibt keine Datei %1.</translation>
    </message>
    <message>
        <source>%1 was looked for in %2 and in %3.</source>
        <translation>%1 wurde in %2 und in %3 gesucht.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Klassisch</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Windows</translation>
    </message>
    <message>
        <source>Windows XP</source>
        <translation>Windows XP</translation>
    </message>
</context>
<context>
    <name>GuiUndoRecordingHelper</name>
    <message>
        <source>Undo: last action</source>
        <comment>Undo step</comment>
        <translation>Rückgängig: letzte Aktion</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Notifications</source>
        <comment>Window title</comment>
        <translation>Benachrichtigungen</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
</context>
<context>
    <name>HotKeyEditor</name>
    <message>
        <source>Change Hot Key</source>
        <translation>Tastenkürzel ändern</translation>
    </message>
    <message>
        <source>No key: press or type one</source>
        <translation>Keine Taste: drücken oder eintippen</translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation>&amp;Taste:</translation>
    </message>
    <message>
        <source>C&amp;trl</source>
        <translation>St&amp;rg</translation>
    </message>
    <message>
        <source>&amp;Alt</source>
        <translation>&amp;Alt</translation>
    </message>
    <message>
        <source>&amp;Shift</source>
        <translation>&amp;Umschalt</translation>
    </message>
    <message>
        <source>With:</source>
        <translation>Mit:</translation>
    </message>
    <message>
        <source>Scope:</source>
        <translation>Bereich:</translation>
    </message>
    <message>
        <source>Comment:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Default</source>
        <translation>&amp;Vorgabe</translation>
    </message>
    <message>
        <source>This key is also for typing: it would fire while somebody types.</source>
        <translation>Diese Taste dient auch zum Schreiben: Das Tastenkürzel würde beim Tippen ausgelöst.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no key. Type a name such as F7 or Insert, or press the key.</source>
        <translation>„%1“ ist keine Taste. Bitte einen Namen wie F7 oder Einfg eintippen oder die Taste drücken.</translation>
    </message>
</context>
<context>
    <name>ModalDialogs</name>
    <message>
        <source>%1 already exists. Do you want to replace it?</source>
        <translation>%1 ist schon vorhanden. Ersetzen?</translation>
    </message>
</context>
<context>
    <name>MorePopup</name>
    <message numerus="yes">
        <source>%n more</source>
        <comment>Pop-ups that do not fit</comment>
        <translation>
            <numerusform>%n weitere</numerusform>
            <numerusform>%n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QDockWidgetHelpers::DockWidgetState</name>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Maximized</source>
        <translation>Maximiert</translation>
    </message>
    <message>
        <source>Minimized</source>
        <translation>Minimiert</translation>
    </message>
</context>
<context>
    <name>QDockWidgetHelpers::MaximizeMinimizeSupport</name>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
</context>
<context>
    <name>QMainWindowHelpers::AutoHideSupport</name>
    <message>
        <source>Popup on mouse hover</source>
        <translation>Aufklappen, wenn die Maus darauf zeigt</translation>
    </message>
    <message>
        <source>Hide automatically</source>
        <translation>Automatisch ausblenden</translation>
    </message>
</context>
<context>
    <name>QMainWindowHelpers::TabifySupport</name>
    <message>
        <source>Tabify docks on the left</source>
        <translation>Andockfenster links als Reiter anordnen</translation>
    </message>
    <message>
        <source>Tabify docks on the right</source>
        <translation>Andockfenster rechts als Reiter anordnen</translation>
    </message>
    <message>
        <source>Tabify docks at the top</source>
        <translation>Andockfenster oben als Reiter anordnen</translation>
    </message>
    <message>
        <source>Tabify docks at the bottom</source>
        <translation>Andockfenster unten als Reiter anordnen</translation>
    </message>
</context>
<context>
    <name>QMainWindowHelpers::TileSupport</name>
    <message>
        <source>Tile docks on the left</source>
        <translation>Andockfenster links nebeneinander anordnen</translation>
    </message>
    <message>
        <source>Tile docks on the right</source>
        <translation>Andockfenster rechts nebeneinander anordnen</translation>
    </message>
    <message>
        <source>Tile docks at the top</source>
        <translation>Andockfenster oben nebeneinander anordnen</translation>
    </message>
    <message>
        <source>Tile docks at the bottom</source>
        <translation>Andockfenster unten nebeneinander anordnen</translation>
    </message>
</context>
<context>
    <name>SortListView</name>
    <message>
        <source>Column to the left</source>
        <translation>Spalte links davon</translation>
    </message>
    <message>
        <source>Column to the right</source>
        <translation>Spalte rechts davon</translation>
    </message>
    <message>
        <source>Move column to the left</source>
        <translation>Spalte nach links verschieben</translation>
    </message>
    <message>
        <source>Move column to the right</source>
        <translation>Spalte nach rechts verschieben</translation>
    </message>
    <message>
        <source>Sort by column, ascending</source>
        <translation>Nach Spalte aufsteigend sortieren</translation>
    </message>
    <message>
        <source>Sort by column, descending</source>
        <translation>Nach Spalte absteigend sortieren</translation>
    </message>
    <message>
        <source>Show or hide columns</source>
        <translation>Spalten ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>Listen</translation>
    </message>
</context>
<context>
    <name>SortRowTable</name>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Pegel</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Do you want to delete item &quot;%1, %2&quot;?</source>
        <translation>Den Eintrag „%1, %2“ löschen?</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>%1 rows were added. %2 more rows on the clipboard were left out; paste them in smaller blocks.</source>
        <translation>%1 Zeilen wurden hinzugefügt. %2 weitere Zeilen der Zwischenablage wurden ausgelassen; bitte in kleineren Blöcken einfügen.</translation>
    </message>
</context>
<context>
    <name>SpinBox</name>
    <message>
        <source>Type a value from %1 to %2.</source>
        <translation>Bitte einen Wert von %1 bis %2 eingeben.</translation>
    </message>
</context>
<context>
    <name>SplitterHandle</name>
    <message>
        <source>Divider</source>
        <translation>Trennleiste</translation>
    </message>
    <message>
        <source>Arrow keys move the divider, Enter gives both sides the same size.</source>
        <translation>Pfeiltasten verschieben die Trennleiste, die Eingabetaste macht beide Seiten gleich groß.</translation>
    </message>
</context>
<context>
    <name>ToolBarContainer</name>
    <message>
        <source>More</source>
        <translation>Weitere</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>It goes on in the background. A click on its icon opens the window again; &quot;Quit&quot; in the menu of the icon ends it.</source>
        <translation>Das Programm läuft im Hintergrund weiter. Ein Klick auf sein Symbol öffnet das Fenster wieder; „Beenden“ im Menü des Symbols beendet es.</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Störung</translation>
    </message>
</context>
<context>
    <name>UndoActions</name>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
</context>
<context>
    <name>UserColorsMenu</name>
    <message>
        <source>%1...</source>
        <translation>%1 ...</translation>
    </message>
</context>
<context>
    <name>ValueWidgetBinding::InputMark</name>
    <message>
        <source>The value is %1, which cannot be shown here.</source>
        <translation>Der Wert ist %1 und lässt sich hier nicht anzeigen.</translation>
    </message>
</context>
</TS>
