<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>BoundForm</name>
    <message>
        <source>Change %1</source>
        <translation>%1 ändern</translation>
    </message>
</context>
<context>
    <name>GuiBase</name>
    <message>
        <source>Application Wide</source>
        <translation>Überall im Programm</translation>
    </message>
</context>
<context>
    <name>bandmonitor::BandPlanKeeper</name>
    <message>
        <source>Bookmarks</source>
        <translation>Lesezeichen</translation>
    </message>
    <message>
        <source>Band plan</source>
        <translation>Bandplan</translation>
    </message>
    <message>
        <source>Text files (*.txt *.csv);;All files (*)</source>
        <translation>Textdateien (*.txt *.csv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Band plan with errors</source>
        <translation>Bandplan mit Fehlern</translation>
    </message>
</context>
<context>
    <name>bandmonitor::BandView</name>
    <message>
        <source>Press Space to replay the recording</source>
        <translation>Leertaste gibt die Aufzeichnung wieder</translation>
    </message>
</context>
<context>
    <name>bandmonitor::BearingsPanel</name>
    <message>
        <source>Heading &amp;up</source>
        <translation>Kurs &amp;oben</translation>
    </message>
    <message>
        <source>Turns the rose so that the heading is up instead of north</source>
        <translation>Dreht die Rose so, dass der Kurs statt Nord oben ist</translation>
    </message>
    <message>
        <source>Bearings</source>
        <translation>Peilungen</translation>
    </message>
    <message>
        <source>Heading</source>
        <translation>Kurs</translation>
    </message>
    <message>
        <source>The direction of the bow, clockwise from north</source>
        <translation>Die Richtung des Bugs, im Uhrzeigersinn von Nord</translation>
    </message>
    <message>
        <source>Hea&amp;ding:</source>
        <translation>&amp;Kurs:</translation>
    </message>
    <message>
        <source>The bearings are simulated.</source>
        <translation>Die Peilungen sind simuliert.</translation>
    </message>
    <message>
        <source>Recordings hold no bearings. These are made up from the frequencies and levels of the signals.</source>
        <translation>Aufzeichnungen enthalten keine Peilungen. Diese sind aus Frequenzen und Pegeln der Signale erfunden.</translation>
    </message>
</context>
<context>
    <name>bandmonitor::ColorsDialog</name>
    <message>
        <source>Edit colours</source>
        <translation>Farben bearbeiten</translation>
    </message>
</context>
<context>
    <name>bandmonitor::ColorsKeeper</name>
    <message>
        <source>Change colours</source>
        <translation>Farben ändern</translation>
    </message>
</context>
<context>
    <name>bandmonitor::ColorsMenu</name>
    <message>
        <source>&amp;Colours</source>
        <translation>Fa&amp;rben</translation>
    </message>
    <message>
        <source>Colour &amp;set</source>
        <translation>Farb&amp;satz</translation>
    </message>
    <message>
        <source>&amp;Edit colours…</source>
        <translation>Farben &amp;bearbeiten …</translation>
    </message>
    <message>
        <source>&amp;Load…</source>
        <translation>&amp;Laden …</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>&amp;Factory colours</source>
        <translation>Farben ab &amp;Werk</translation>
    </message>
    <message>
        <source>Load colours</source>
        <translation>Farben laden</translation>
    </message>
    <message>
        <source>Colour sets (*.cst);;All files (*)</source>
        <translation>Farbsätze (*.cst);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save colours</source>
        <translation>Farben speichern</translation>
    </message>
    <message>
        <source>Colour sets (*.cst)</source>
        <translation>Farbsätze (*.cst)</translation>
    </message>
</context>
<context>
    <name>bandmonitor::CommandLine</name>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>Es gibt keine Datei „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, not a recording.</source>
        <translation>„%1“ ist ein Ordner, keine Aufzeichnung.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a regular file.</source>
        <translation>„%1“ ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; may not be read.</source>
        <translation>Die Datei „%1“ darf nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Only one recording can be opened, but %1 were given.</source>
        <translation>Es lässt sich nur eine Aufzeichnung öffnen, angegeben sind %1.</translation>
    </message>
    <message>
        <source>Pictures are taken of recordings, not of live input.</source>
        <translation>Bilder entstehen nur von Aufzeichnungen, nicht von Live-Eingaben.</translation>
    </message>
    <message>
        <source>Print this text and end.</source>
        <translation>Diesen Text ausgeben und enden.</translation>
    </message>
    <message>
        <source>Print the version and end.</source>
        <translation>Die Version ausgeben und enden.</translation>
    </message>
    <message>
        <source>Keep the settings in the folder DIR.</source>
        <translation>Die Einstellungen im Ordner DIR aufbewahren.</translation>
    </message>
    <message>
        <source>Write pictures of the windows into the folder DIR and end.</source>
        <translation>Bilder der Fenster in den Ordner DIR schreiben und enden.</translation>
    </message>
    <message>
        <source>Start to replay at once, FACTOR (0.1 to 10000) times as fast as recorded.</source>
        <translation>Sofort wiedergeben, FACTOR-mal (0.1 bis 10000) so schnell wie aufgezeichnet.</translation>
    </message>
    <message>
        <source>Keep so many megabytes (1 to 1000000) of live sweeps; 512 by default.</source>
        <translation>So viele Megabyte (1 bis 1000000) an Live-Durchläufen behalten; Vorgabe 512.</translation>
    </message>
    <message>
        <source>Show texts in the language LANG, such as de, or system; only this time.</source>
        <translation>Texte in der Sprache LANG zeigen, etwa en, oder system; nur dieses Mal.</translation>
    </message>
    <message>
        <source>Tell of a file that cannot be opened in a dialog instead of ending.</source>
        <translation>Eine Datei, die sich nicht öffnen lässt, in einem Dialog melden, statt zu enden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a folder.</source>
        <translation>„%1“ ist kein Ordner.</translation>
    </message>
    <message>
        <source>The replay factor must be a number from 0.1 to 10000, not &quot;%1&quot;.</source>
        <translation>Der Wiedergabefaktor muss eine Zahl von 0.1 bis 10000 sein, nicht „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no language.</source>
        <translation>„%1“ ist keine Sprache.</translation>
    </message>
    <message>
        <source>The history must be a number of megabytes from 1 to 1000000, not &quot;%1&quot;.</source>
        <translation>Der Verlauf muss eine Anzahl Megabyte von 1 bis 1000000 sein, nicht „%1“.</translation>
    </message>
    <message>
        <source>Shows and replays recordings of a band: spectrum, waterfall and hold maximum.</source>
        <translation>Zeigt Aufzeichnungen eines Bandes und gibt sie wieder: Spektrum, Wasserfall und gehaltenes Maximum.</translation>
    </message>
    <message>
        <source>The recording to open; a FIFO, or - for the standard input, is shown live; without it, the built-in sample.</source>
        <translation>Die Aufzeichnung; eine FIFO oder - für die Standardeingabe wird live gezeigt; ohne Angabe das eingebaute Beispiel.</translation>
    </message>
    <message>
        <source>Show the sweeps of FILE live, while another program writes it; it need not be there yet.</source>
        <translation>Die Durchläufe von FILE live zeigen, während ein anderes Programm die Datei schreibt; es muss sie noch nicht geben.</translation>
    </message>
</context>
<context>
    <name>bandmonitor::CommandSource</name>
    <message>
        <source>stopped</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>it has crashed</source>
        <translation>abgestürzt</translation>
    </message>
    <message>
        <source>there is no such command</source>
        <translation>es gibt keinen solchen Befehl</translation>
    </message>
    <message>
        <source>it has ended</source>
        <translation>er ist zu Ende</translation>
    </message>
    <message>
        <source>it has ended with status %1</source>
        <translation>er hat mit Status %1 geendet</translation>
    </message>
</context>
<context>
    <name>bandmonitor::DescriptorSource</name>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>the sender has ended</source>
        <translation>der Sender hat geendet</translation>
    </message>
    <message>
        <source>the writer has closed it; waiting for the next one</source>
        <translation>der Schreiber hat geschlossen; auf den nächsten wird gewartet</translation>
    </message>
</context>
<context>
    <name>bandmonitor::DialogCloser</name>
    <message>
        <source>Closed unanswered: %1 %2</source>
        <translation>Unbeantwortet geschlossen: %1 %2</translation>
    </message>
</context>
<context>
    <name>bandmonitor::EventLogPanel</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Recorded</source>
        <translation>Aufgezeichnet</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Clear the event log</source>
        <translation>Ereignisprotokoll leeren</translation>
    </message>
    <message>
        <source>Event log</source>
        <translation>Ereignisprotokoll</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Filter of the events</source>
        <translation>Filter der Ereignisse</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>No events to show. What happens to recordings, signals, jobs and modes appears here.</source>
        <translation>Keine Ereignisse. Hier erscheint, was mit Aufzeichnungen, Signalen, Aufträgen und Modi geschieht.</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copies the selected events, or all when none is selected</source>
        <translation>Kopiert die ausgewählten Ereignisse, ohne Auswahl alle</translation>
    </message>
    <message>
        <source>S&amp;ave as text…</source>
        <translation>&amp;Als Text speichern …</translation>
    </message>
    <message>
        <source>Writes the shown events to a file</source>
        <translation>Schreibt die gezeigten Ereignisse in eine Datei</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Deletes all events</source>
        <translation>Löscht alle Ereignisse</translation>
    </message>
    <message>
        <source>&amp;Go to the sweep</source>
        <translation>&amp;Zum Durchlauf springen</translation>
    </message>
    <message>
        <source>Shows the sweep that was shown at the event</source>
        <translation>Zeigt den Durchlauf, der beim Ereignis zu sehen war</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filter</translation>
    </message>
    <message>
        <source>Goes to the filter</source>
        <translation>Springt zum Filter</translation>
    </message>
    <message>
        <source>Events: %1</source>
        <translation>Ereignisse: %1</translation>
    </message>
    <message>
        <source>Events: %1 of %2</source>
        <translation>Ereignisse: %1 von %2</translation>
    </message>
    <message>
        <source>The events cannot be written to %1: %2</source>
        <translation>Die Ereignisse lassen sich nicht nach %1 schreiben: %2</translation>
    </message>
    <message>
        <source>Save the events</source>
        <translation>Ereignisse speichern</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>Textdateien (*.txt)</translation>
    </message>
</context>
<context>
    <name>bandmonitor::EventRecorder</name>
    <message>
        <source>Not opened: %1</source>
        <translation>Nicht geöffnet: %1</translation>
    </message>
    <message>
        <source>Live input from %1</source>
        <translation>Live-Eingabe von %1</translation>
    </message>
    <message>
        <source>Live input has ended. %1</source>
        <translation>Die Live-Eingabe ist zu Ende. %1</translation>
    </message>
    <message>
        <source>No live input. %1</source>
        <translation>Keine Live-Eingabe. %1</translation>
    </message>
    <message>
        <source>%1 opened: %2</source>
        <translation>%1 geöffnet: %2</translation>
    </message>
    <message>
        <source>Mode: %1</source>
        <translation>Modus: %1</translation>
    </message>
    <message>
        <source>%1: started</source>
        <translation>%1: gestartet</translation>
    </message>
    <message>
        <source>%1: done</source>
        <translation>%1: erledigt</translation>
    </message>
    <message>
        <source>%1: failed</source>
        <translation>%1: fehlgeschlagen</translation>
    </message>
    <message>
        <source>%1: called off</source>
        <translation>%1: abgesagt</translation>
    </message>
    <message>
        <source>%1, %2 dB</source>
        <translation>%1, %2 dB</translation>
    </message>
    <message>
        <source>Following the signals has restarted</source>
        <translation>Signalverfolgung neu begonnen</translation>
    </message>
    <message>
        <source>Appeared: %1</source>
        <translation>Erschienen: %1</translation>
    </message>
    <message>
        <source>Disappeared: %1</source>
        <translation>Verschwunden: %1</translation>
    </message>
</context>
<context>
    <name>bandmonitor::Exports</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>E&amp;xportieren</translation>
    </message>
    <message>
        <source>%1…</source>
        <translation>%1 …</translation>
    </message>
    <message>
        <source>Picture of the &amp;window</source>
        <translation>Bild des &amp;Fensters</translation>
    </message>
    <message>
        <source>window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Picture of the &amp;spectrum</source>
        <translation>Bild des &amp;Spektrums</translation>
    </message>
    <message>
        <source>spectrum</source>
        <translation>Spektrum</translation>
    </message>
    <message>
        <source>Picture of the wate&amp;rfall</source>
        <translation>Bild des &amp;Wasserfalls</translation>
    </message>
    <message>
        <source>waterfall</source>
        <translation>Wasserfall</translation>
    </message>
    <message>
        <source>S&amp;ignals as text</source>
        <translation>S&amp;ignale als Text</translation>
    </message>
    <message>
        <source>signals</source>
        <translation>Signale</translation>
    </message>
    <message>
        <source>&amp;Events as text</source>
        <translation>&amp;Ereignisse als Text</translation>
    </message>
    <message>
        <source>events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Kopiert: %1</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>Bilder (*.png)</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>Textdateien (*.txt)</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Gespeichert als %1</translation>
    </message>
</context>
<context>
    <name>bandmonitor::FloodGate</name>
    <message>
        <source>%1 more messages; the last one: %2</source>
        <translation>%1 weitere Meldungen; die letzte: %2</translation>
    </message>
</context>
<context>
    <name>bandmonitor::FollowedFile</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>the file was truncated</source>
        <translation>die Datei wurde gekürzt</translation>
    </message>
    <message>
        <source>the file was replaced</source>
        <translation>die Datei wurde ersetzt</translation>
    </message>
    <message>
        <source>there is no such file yet</source>
        <translation>die Datei gibt es noch nicht</translation>
    </message>
    <message>
        <source>the file is gone</source>
        <translation>die Datei ist weg</translation>
    </message>
    <message>
        <source>the file is there now</source>
        <translation>die Datei ist jetzt da</translation>
    </message>
</context>
<context>
    <name>bandmonitor::HistoryPanel</name>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>At the start</source>
        <translation>Am Anfang</translation>
    </message>
</context>
<context>
    <name>bandmonitor::InfoDialog</name>
    <message>
        <source>factory</source>
        <translation>ab Werk</translation>
    </message>
    <message>
        <source>About bandmonitor</source>
        <translation>Über bandmonitor</translation>
    </message>
    <message>
        <source>bandmonitor</source>
        <translation>bandmonitor</translation>
    </message>
    <message>
        <source>Shows and replays recordings of a band, built with GuiBase.</source>
        <translation>Zeigt Aufzeichnungen eines Bandes und gibt sie wieder; gebaut mit GuiBase.</translation>
    </message>
    <message>
        <source>Version:</source>
        <translation>Version:</translation>
    </message>
    <message>
        <source>Qt:</source>
        <translation>Qt:</translation>
    </message>
    <message>
        <source>Licence:</source>
        <translation>Lizenz:</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Einstellungen:</translation>
    </message>
    <message>
        <source>Colours:</source>
        <translation>Farben:</translation>
    </message>
</context>
<context>
    <name>bandmonitor::Jobs</name>
    <message>
        <source>%1: done</source>
        <translation>%1: erledigt</translation>
    </message>
    <message>
        <source>%1: failed</source>
        <translation>%1: fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>bandmonitor::JobsMenu</name>
    <message>
        <source>Jobs by &amp;name</source>
        <translation>Aufträge nach &amp;Namen</translation>
    </message>
    <message>
        <source>Jobs by &amp;state</source>
        <translation>Aufträge nach &amp;Zustand</translation>
    </message>
    <message>
        <source>Jobs by &amp;time, latest first</source>
        <translation>Aufträge nach Z&amp;eit, neueste zuerst</translation>
    </message>
    <message>
        <source>S&amp;ort</source>
        <translation>S&amp;ortieren</translation>
    </message>
    <message>
        <source>&amp;Jobs</source>
        <translation>A&amp;ufträge</translation>
    </message>
    <message>
        <source>Sort the jobs</source>
        <translation>Aufträge sortieren</translation>
    </message>
    <message>
        <source>%1 – waiting since %2</source>
        <translation>%1 – wartet seit %2</translation>
    </message>
    <message>
        <source>%1 – failed at %2</source>
        <translation>%1 – fehlgeschlagen um %2</translation>
    </message>
    <message>
        <source>%1 – done at %2</source>
        <translation>%1 – erledigt um %2</translation>
    </message>
</context>
<context>
    <name>bandmonitor::JobsPanel</name>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Time line</source>
        <translation>Zeitleiste</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Begonnen</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Beendet</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Erledigt</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Called off</source>
        <translation>Abgesagt</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Aufträge</translation>
    </message>
    <message>
        <source>The jobs of the replay appear here, each with its state and its time.</source>
        <translation>Hier erscheinen die Aufträge der Wiedergabe, jeder mit Zustand und Zeit.</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Starten</translation>
    </message>
    <message>
        <source>Starts the job, or calls it off</source>
        <translation>Startet den Auftrag oder sagt ihn ab</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, from %2 to %3</source>
        <translation>%1, von %2 bis %3</translation>
    </message>
    <message>
        <source>%1, since %2</source>
        <translation>%1, seit %2</translation>
    </message>
    <message>
        <source>Time line: %1 to %2, now %3</source>
        <translation>Zeitleiste: %1 bis %2, jetzt %3</translation>
    </message>
    <message>
        <source>No recording</source>
        <translation>Keine Aufzeichnung</translation>
    </message>
    <message>
        <source>&amp;Call off</source>
        <translation>&amp;Absagen</translation>
    </message>
</context>
<context>
    <name>bandmonitor::LanguageChoice</name>
    <message>
        <source>As the system</source>
        <comment>Language</comment>
        <translation>Wie das System</translation>
    </message>
</context>
<context>
    <name>bandmonitor::LevelsPanel</name>
    <message>
        <source>Reference levels</source>
        <translation>Referenzpegel</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>Adds a reference level</source>
        <translation>Fügt einen Referenzpegel hinzu</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Deletes the selected rows</source>
        <translation>Löscht die ausgewählten Zeilen</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>Alle lösch&amp;en</translation>
    </message>
    <message>
        <source>Deletes all reference levels</source>
        <translation>Löscht alle Referenzpegel</translation>
    </message>
    <message>
        <source>Reference levels appear here, and as a line in the spectrum.</source>
        <translation>Hier erscheinen die Referenzpegel, im Spektrum als Linie.</translation>
    </message>
    <message>
        <source>Add reference level</source>
        <translation>Referenzpegel hinzufügen</translation>
    </message>
    <message>
        <source>Delete reference level</source>
        <translation>Referenzpegel löschen</translation>
    </message>
    <message>
        <source>Change reference level</source>
        <translation>Referenzpegel ändern</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Alle löschen</translation>
    </message>
    <message>
        <source>Delete all reference levels?</source>
        <translation>Alle Referenzpegel löschen?</translation>
    </message>
    <message>
        <source>This cannot be read; the row is not drawn.</source>
        <translation>Das lässt sich nicht lesen; die Zeile wird nicht gezeichnet.</translation>
    </message>
</context>
<context>
    <name>bandmonitor::LiveDialog</name>
    <message>
        <source>Live input</source>
        <translation>Live-Eingabe</translation>
    </message>
    <message>
        <source>&amp;Command that writes sweeps to its standard output:</source>
        <translation>&amp;Befehl, der Durchläufe auf seine Standardausgabe schreibt:</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Ausführen</translation>
    </message>
</context>
<context>
    <name>bandmonitor::LiveInput</name>
    <message>
        <source>A line was skipped. %1</source>
        <translation>Eine Zeile wurde übersprungen. %1</translation>
    </message>
    <message>
        <source>%1 lines were skipped. %2</source>
        <translation>%1 Zeilen wurden übersprungen. %2</translation>
    </message>
    <message>
        <source>No sweep has come for %1.</source>
        <translation>Seit %1 ist kein Durchlauf gekommen.</translation>
    </message>
    <message>
        <source>Sweeps are coming again.</source>
        <translation>Es kommen wieder Durchläufe.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>bandmonitor::LiveWatch</name>
    <message>
        <source>The time stamps jump back by %1.</source>
        <translation>Die Zeitstempel springen um %1 zurück.</translation>
    </message>
    <message>
        <source>The time stamps jump ahead by %1.</source>
        <translation>Die Zeitstempel springen um %1 vor.</translation>
    </message>
    <message>
        <source>The span is %1 to %2 MHz now.</source>
        <translation>Der Frequenzbereich ist jetzt %1 bis %2 MHz.</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
</context>
<context>
    <name>bandmonitor::MainWindow</name>
    <message>
        <source>Jump to the start</source>
        <translation>Zum Anfang springen</translation>
    </message>
    <message>
        <source>Restart the hold maximum</source>
        <translation>Gehaltenes Maximum neu beginnen</translation>
    </message>
    <message>
        <source>Export the shown sweep…</source>
        <translation>Gezeigten Durchlauf exportieren …</translation>
    </message>
    <message>
        <source>Pause at the next new signal</source>
        <translation>Beim nächsten neuen Signal anhalten</translation>
    </message>
    <message>
        <source>Pause above the reference levels</source>
        <translation>Über den Referenzpegeln anhalten</translation>
    </message>
    <message>
        <source>Export the sweep</source>
        <translation>Durchlauf exportieren</translation>
    </message>
    <message>
        <source>Recordings (*.csv)</source>
        <translation>Aufzeichnungen (*.csv)</translation>
    </message>
    <message>
        <source>No levels are shown that could be saved.</source>
        <translation>Es sind keine Pegel zu sehen, die sich speichern ließen.</translation>
    </message>
    <message>
        <source>%1 sweep %2.csv</source>
        <translation>%1 Durchlauf %2.csv</translation>
    </message>
    <message>
        <source>&amp;Live…</source>
        <translation>&amp;Live …</translation>
    </message>
    <message>
        <source>S&amp;top live input</source>
        <translation>Live-Eingabe an&amp;halten</translation>
    </message>
    <message>
        <source>Save re&amp;cording as…</source>
        <translation>Aufzeichn&amp;ung speichern unter …</translation>
    </message>
    <message>
        <source>Live input has ended. %1</source>
        <translation>Die Live-Eingabe ist zu Ende. %1</translation>
    </message>
    <message>
        <source>No live input</source>
        <translation>Keine Live-Eingabe</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Gespeichert als %1</translation>
    </message>
    <message>
        <source>Recording not saved</source>
        <translation>Aufzeichnung nicht gespeichert</translation>
    </message>
    <message>
        <source>%1.csv</source>
        <translation>%1.csv</translation>
    </message>
    <message>
        <source>Saving as %1…</source>
        <translation>Wird als %1 gespeichert …</translation>
    </message>
    <message>
        <source>live %1</source>
        <translation>live %1</translation>
    </message>
    <message>
        <source>Spectrum and waterfall</source>
        <translation>Spektrum und Wasserfall</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>&amp;Save visible sweep as…</source>
        <translation>Gezeigten Durchlauf &amp;speichern unter …</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Show &amp;history</source>
        <translation>&amp;Verlauf zeigen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Frequency &amp;unit</source>
        <translation>Frequenzein&amp;heit</translation>
    </message>
    <message>
        <source>Frequencies in %1</source>
        <translation>Frequenzen in %1</translation>
    </message>
    <message>
        <source>Frequency &amp;resolution</source>
        <translation>Frequenzauf&amp;lösung</translation>
    </message>
    <message>
        <source>Frequencies to %1</source>
        <translation>Frequenzen auf %1 genau</translation>
    </message>
    <message>
        <source>Position &amp;format</source>
        <translation>&amp;Positionsformat</translation>
    </message>
    <message>
        <source>Position in %1</source>
        <translation>Position: %1</translation>
    </message>
    <message>
        <source>Time &amp;zone</source>
        <translation>Zeit&amp;zone</translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation>Spra&amp;che</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Whole ban&amp;d</source>
        <translation>Ganzes &amp;Band</translation>
    </message>
    <message>
        <source>Zoom in in tim&amp;e</source>
        <translation>Zei&amp;tachse vergrößern</translation>
    </message>
    <message>
        <source>Zoom out in &amp;time</source>
        <translation>Zeitachse &amp;verkleinern</translation>
    </message>
    <message>
        <source>Trace&amp;s</source>
        <translation>Kurve&amp;n</translation>
    </message>
    <message>
        <source>Set &amp;pin at the cursor</source>
        <translation>Marker am Cursor &amp;setzen</translation>
    </message>
    <message>
        <source>Remove &amp;all pins</source>
        <translation>&amp;Alle Marker entfernen</translation>
    </message>
    <message>
        <source>&amp;Bookmark the cursor</source>
        <translation>Lesezeichen am C&amp;ursor setzen</translation>
    </message>
    <message>
        <source>Band p&amp;lan…</source>
        <translation>Ban&amp;dplan …</translation>
    </message>
    <message>
        <source>No band pla&amp;n</source>
        <translation>K&amp;ein Bandplan</translation>
    </message>
    <message>
        <source>O&amp;verview of all sweeps</source>
        <translation>Übe&amp;rsicht aller Durchläufe</translation>
    </message>
    <message>
        <source>&amp;Current</source>
        <translation>A&amp;ktuell</translation>
    </message>
    <message>
        <source>&amp;Average</source>
        <translation>Mittel&amp;wert</translation>
    </message>
    <message>
        <source>&amp;Hold maximum</source>
        <translation>&amp;Maximum halten</translation>
    </message>
    <message>
        <source>Hold &amp;minimum</source>
        <translation>M&amp;inimum halten</translation>
    </message>
    <message>
        <source>R&amp;eset hold</source>
        <translation>Maximum &amp;neu beginnen</translation>
    </message>
    <message>
        <source>&amp;Mode</source>
        <translation>M&amp;odus</translation>
    </message>
    <message>
        <source>&amp;Replay</source>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message>
        <source>&amp;Signals</source>
        <translation>&amp;Signale</translation>
    </message>
    <message>
        <source>&amp;Event log</source>
        <translation>&amp;Ereignisprotokoll</translation>
    </message>
    <message>
        <source>&amp;Reference levels</source>
        <translation>&amp;Referenzpegel</translation>
    </message>
    <message>
        <source>&amp;Jobs</source>
        <translation>&amp;Aufträge</translation>
    </message>
    <message>
        <source>&amp;Bearings</source>
        <translation>&amp;Peilungen</translation>
    </message>
    <message>
        <source>Re&amp;ceiver</source>
        <translation>Emp&amp;fänger</translation>
    </message>
    <message>
        <source>H&amp;istory</source>
        <translation>Verla&amp;uf</translation>
    </message>
    <message>
        <source>Loading cancelled</source>
        <translation>Laden abgebrochen</translation>
    </message>
    <message>
        <source>Recording not opened</source>
        <translation>Aufzeichnung nicht geöffnet</translation>
    </message>
    <message>
        <source>1 Hz</source>
        <translation>1 Hz</translation>
    </message>
    <message>
        <source>1 kHz</source>
        <translation>1 kHz</translation>
    </message>
    <message>
        <source>Position of the receiver</source>
        <translation>Position des Empfängers</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stops loading (Esc)</source>
        <translation>Bricht das Laden ab (Esc)</translation>
    </message>
    <message>
        <source>Sweep not saved</source>
        <translation>Durchlauf nicht gespeichert</translation>
    </message>
    <message>
        <source>Not exported</source>
        <translation>Nicht exportiert</translation>
    </message>
    <message>
        <source>No sweep was shown at this event.</source>
        <translation>Bei diesem Ereignis war kein Durchlauf zu sehen.</translation>
    </message>
    <message>
        <source>The recording of this event is closed.</source>
        <translation>Die Aufzeichnung dieses Ereignisses ist geschlossen.</translation>
    </message>
    <message>
        <source>Loading %1  %p %</source>
        <translation>%1 wird geladen  %p %</translation>
    </message>
    <message>
        <source>%1, up to %2</source>
        <translation>%1, bis zu %2</translation>
    </message>
    <message>
        <source>Recording opened with gaps</source>
        <translation>Aufzeichnung mit Lücken geöffnet</translation>
    </message>
    <message>
        <source>%1 cannot be read as a whole: %2.</source>
        <translation>%1 lässt sich nicht ganz lesen: %2.</translation>
    </message>
    <message>
        <source>%1 – live – bandmonitor</source>
        <translation>%1 – live – bandmonitor</translation>
    </message>
    <message>
        <source>%1 – sweep %2 of %3 – bandmonitor</source>
        <translation>%1 – Durchlauf %2 von %3 – bandmonitor</translation>
    </message>
    <message>
        <source>Receiver: no position in this format</source>
        <translation>Empfänger: keine Position in diesem Format</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Empfänger: %1</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>The language changes when bandmonitor starts the next time.</source>
        <translation>Die Sprache wechselt beim nächsten Start von bandmonitor.</translation>
    </message>
    <message>
        <source>The sweep of this event is not kept any more.</source>
        <translation>Der Durchlauf dieses Ereignisses ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 lässt sich nicht schreiben: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be written: there is no folder %2.</source>
        <translation>%1 lässt sich nicht schreiben: Den Ordner %2 gibt es nicht.</translation>
    </message>
</context>
<context>
    <name>bandmonitor::Modes</name>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>&amp;Measure</source>
        <translation>&amp;Messen</translation>
    </message>
    <message>
        <source>&amp;Plan</source>
        <translation>&amp;Planen</translation>
    </message>
    <message>
        <source>&amp;Waterfall</source>
        <translation>&amp;Wasserfall</translation>
    </message>
</context>
<context>
    <name>bandmonitor::Panel</name>
    <message>
        <source>&amp;Panels</source>
        <translation>&amp;Bereiche</translation>
    </message>
</context>
<context>
    <name>bandmonitor::PanesKeeper</name>
    <message>
        <source>Pins snap to peaks</source>
        <translation>Marker rasten an Spitzen ein</translation>
    </message>
    <message>
        <source>Bandwidths at the cursor</source>
        <translation>Bandbreiten am Cursor</translation>
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
        <source>Zoom in time</source>
        <translation>Zeitachse zoomen</translation>
    </message>
</context>
<context>
    <name>bandmonitor::PinKeeper</name>
    <message>
        <source>Remove pins</source>
        <translation>Marker entfernen</translation>
    </message>
    <message>
        <source>Set pin</source>
        <translation>Marker setzen</translation>
    </message>
    <message>
        <source>Change pin</source>
        <translation>Marker ändern</translation>
    </message>
</context>
<context>
    <name>bandmonitor::ReceiverBar</name>
    <message>
        <source>Re&amp;ceiver bar</source>
        <translation>Empfängerle&amp;iste</translation>
    </message>
    <message>
        <source>Centre frequency</source>
        <translation>Mittenfrequenz</translation>
    </message>
    <message>
        <source>Span</source>
        <translation>Darstellbreite</translation>
    </message>
</context>
<context>
    <name>bandmonitor::ReceiverControl</name>
    <message>
        <source>Move the view</source>
        <translation>Ausschnitt verschieben</translation>
    </message>
    <message>
        <source>Receiver %1</source>
        <translation>Empfänger %1</translation>
    </message>
    <message>
        <source>%1 lies outside the recording, which reaches from %2 to %3.</source>
        <translation>%1 liegt außerhalb der Aufzeichnung, die von %2 bis %3 reicht.</translation>
    </message>
</context>
<context>
    <name>bandmonitor::ReceiverPanel</name>
    <message>
        <source>Receiver</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Centre frequenc&amp;y:</source>
        <translation>&amp;Mittenfrequenz:</translation>
    </message>
    <message>
        <source>The middle of what the spectrum shows</source>
        <translation>Die Mitte dessen, was das Spektrum zeigt</translation>
    </message>
    <message>
        <source>S&amp;pan:</source>
        <translation>Darstellbre&amp;ite:</translation>
    </message>
    <message>
        <source>The width of what the spectrum shows; 0 for the whole band</source>
        <translation>Die Breite dessen, was das Spektrum zeigt; 0 für das ganze Band</translation>
    </message>
    <message>
        <source>Resolution &amp;bandwidth:</source>
        <translation>Auf&amp;lösebandbreite:</translation>
    </message>
    <message>
        <source>Narrower bins are combined; 0 leaves them as they were recorded</source>
        <translation>Schmalere Bins werden zusammengefasst; 0 lässt sie wie aufgezeichnet</translation>
    </message>
    <message>
        <source>&amp;Gain:</source>
        <translation>&amp;Verstärkung:</translation>
    </message>
    <message>
        <source>Added to the recorded levels</source>
        <translation>Wird zu den aufgezeichneten Pegeln addiert</translation>
    </message>
    <message>
        <source>A&amp;ttenuation:</source>
        <translation>Dämpfu&amp;ng:</translation>
    </message>
    <message>
        <source>Subtracted from the recorded levels; negative ones amplify</source>
        <translation>Wird von den aufgezeichneten Pegeln abgezogen; negative Werte verstärken</translation>
    </message>
    <message>
        <source>Sample c&amp;ount:</source>
        <translation>Ab&amp;tastwerte:</translation>
    </message>
    <message>
        <source>Averages as many of the last sweeps as it takes to reach this number of samples; 0 shows the current sweep only</source>
        <translation>Mittelt so viele der letzten Durchläufe, bis diese Anzahl Abtastwerte erreicht ist; 0 zeigt nur den aktuellen Durchlauf</translation>
    </message>
    <message>
        <source>Dev&amp;ice address:</source>
        <translation>&amp;Geräteadresse:</translation>
    </message>
    <message>
        <source>Shown in the spectrum and written to exported sweeps; 0 for none</source>
        <translation>Wird im Spektrum gezeigt und in exportierte Durchläufe geschrieben; 0 für keine</translation>
    </message>
    <message>
        <source>He&amp;x</source>
        <translation>He&amp;x</translation>
    </message>
    <message>
        <source>Device address in hexadecimal digits</source>
        <translation>Geräteadresse in hexadezimalen Ziffern</translation>
    </message>
    <message>
        <source>Hexadecimal or decimal digits</source>
        <translation>Hexadezimale oder dezimale Ziffern</translation>
    </message>
    <message>
        <source>Start ti&amp;me:</source>
        <translation>Start&amp;zeit:</translation>
    </message>
    <message>
        <source>Goes to the first sweep at or after this time</source>
        <translation>Springt zum ersten Durchlauf ab dieser Zeit</translation>
    </message>
    <message>
        <source>Thresho&amp;ld:</source>
        <translation>S&amp;chwelle:</translation>
    </message>
    <message>
        <source>Signals are the bins that reach this level; off: whatever stands out of the noise</source>
        <translation>Signale sind die Bins, die diesen Pegel erreichen; aus: was sich vom Rauschen abhebt</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>as recorded</source>
        <translation>wie aufgezeichnet</translation>
    </message>
    <message>
        <source>of one sweep</source>
        <translation>von einem Durchlauf</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Positio&amp;n:</source>
        <translation>P&amp;osition:</translation>
    </message>
    <message>
        <source>Shown in the status bar; any of the position formats can be typed</source>
        <translation>Steht in der Statuszeile; jedes der Positionsformate kann eingegeben werden</translation>
    </message>
</context>
<context>
    <name>bandmonitor::RecentRecordings</name>
    <message>
        <source>Open &amp;recent</source>
        <translation>Zuletzt &amp;geöffnet</translation>
    </message>
    <message>
        <source>Recordings (*.csv *.txt);;All files (*)</source>
        <translation>Aufzeichnungen (*.csv *.txt);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>bandmonitor::RecordingLoader</name>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 gibt es nicht.</translation>
    </message>
    <message>
        <source>%1 is a folder, not a recording.</source>
        <translation>%1 ist ein Ordner, keine Aufzeichnung.</translation>
    </message>
    <message>
        <source>%1 is not a regular file.</source>
        <translation>%1 ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>%1 holds no sweep of a band scan.</source>
        <translation>%1 enthält keinen Durchlauf eines Bandscans.</translation>
    </message>
</context>
<context>
    <name>bandmonitor::RecordingParser</name>
    <message>
        <source>no valid date and time</source>
        <translation>Datum und Uhrzeit ungültig</translation>
    </message>
    <message>
        <source>no valid frequencies and step</source>
        <translation>Frequenzen und Schrittweite ungültig</translation>
    </message>
    <message>
        <source>no valid number of samples</source>
        <translation>Anzahl der Abtastwerte ungültig</translation>
    </message>
    <message>
        <source>a level is not a number</source>
        <translation>ein Pegel ist keine Zahl</translation>
    </message>
    <message>
        <source>no levels</source>
        <translation>keine Pegel</translation>
    </message>
    <message>
        <source>the number of levels does not fit the frequencies and the step</source>
        <translation>die Anzahl der Pegel passt nicht zu Frequenzen und Schrittweite</translation>
    </message>
    <message>
        <source>the line has no end within 64 MB</source>
        <translation>die Zeile endet nicht innerhalb von 64 MB</translation>
    </message>
    <message>
        <source>the recording is too large</source>
        <translation>die Aufzeichnung ist zu groß</translation>
    </message>
    <message>
        <source>Line %1: %2.</source>
        <translation>Zeile %1: %2.</translation>
    </message>
    <message>
        <source>Expected: date, time, lowest Hz, highest Hz, step in Hz, samples, levels in dB, as in &quot;2026-05-04, 12:00:00, 88000000, 89000000, 250000, 100, -70.1, -69.8, -45, -71.3&quot;.</source>
        <translation>Erwartet: Datum, Uhrzeit, tiefste Hz, höchste Hz, Schrittweite in Hz, Abtastwerte, Pegel in dB, wie in &quot;2026-05-04, 12:00:00, 88000000, 89000000, 250000, 100, -70.1, -69.8, -45, -71.3&quot;.</translation>
    </message>
    <message>
        <source>Skipped lines: %n.</source>
        <translation>Übersprungene Zeilen: %n.</translation>
    </message>
</context>
<context>
    <name>bandmonitor::ReplayBar</name>
    <message>
        <source>&amp;First sweep</source>
        <translation>&amp;Erster Durchlauf</translation>
    </message>
    <message>
        <source>Step &amp;back</source>
        <translation>Schritt &amp;zurück</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Wiedergeben</translation>
    </message>
    <message>
        <source>Step f&amp;orward</source>
        <translation>Schritt &amp;vor</translation>
    </message>
    <message>
        <source>&amp;Last sweep</source>
        <translation>&amp;Letzter Durchlauf</translation>
    </message>
    <message>
        <source>Sweep</source>
        <translation>Durchlauf</translation>
    </message>
    <message>
        <source>Current sweep</source>
        <translation>Aktueller Durchlauf</translation>
    </message>
    <message>
        <source>&amp;Speed</source>
        <translation>Tem&amp;po</translation>
    </message>
    <message>
        <source>Replay speed</source>
        <translation>Wiedergabetempo</translation>
    </message>
    <message>
        <source>Replay speed, 0.1 to 10,000 times as fast as recorded</source>
        <translation>Wiedergabetempo, 0.1- bis 10 000-mal so schnell wie aufgezeichnet</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>UTC</source>
        <translation>UTC</translation>
    </message>
    <message>
        <source>local</source>
        <translation>Ortszeit</translation>
    </message>
</context>
<context>
    <name>bandmonitor::Session</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>bandmonitor::SignalNotifier</name>
    <message>
        <source>%1, %2 dB</source>
        <translation>%1, %2 dB</translation>
    </message>
    <message>
        <source>New signal</source>
        <translation>Neues Signal</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Verfolgen</translation>
    </message>
    <message>
        <source>Notified: %1</source>
        <translation>Gemeldet: %1</translation>
    </message>
    <message>
        <source>Not notified, too many in a minute: %1</source>
        <translation>Nicht gemeldet, zu viele in einer Minute: %1</translation>
    </message>
</context>
<context>
    <name>bandmonitor::SignalsPanel</name>
    <message>
        <source>Follow</source>
        <translation>Folgen</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Pegel</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Bandbreite</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>First seen</source>
        <translation>Zuerst</translation>
    </message>
    <message>
        <source>Last seen</source>
        <translation>Zuletzt</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copies all signals as text</source>
        <translation>Kopiert alle Signale als Text</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Signale</translation>
    </message>
    <message>
        <source>Follow the signal</source>
        <translation>Dem Signal folgen</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
</context>
<context>
    <name>bandmonitor::SourceLabel</name>
    <message>
        <source>%1 sweeps/s</source>
        <translation>%1 Durchläufe/s</translation>
    </message>
    <message>
        <source>What is shown: live input, or the replay of a recording</source>
        <translation>Was zu sehen ist: eine Live-Eingabe oder die Wiedergabe einer Aufzeichnung</translation>
    </message>
    <message>
        <source>Live: waiting for the first sweep</source>
        <translation>Live: Warten auf den ersten Durchlauf</translation>
    </message>
    <message>
        <source>Live: no sweeps are coming</source>
        <translation>Live: Es kommen keine Durchläufe</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>%1 behind</source>
        <translation>%1 zurück</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Live: %1</source>
        <translation>Live: %1</translation>
    </message>
    <message>
        <source>Replay: %1</source>
        <translation>Wiedergabe: %1</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>Wiedergabe</translation>
    </message>
</context>
<context>
    <name>bandmonitor::TrayStatus</name>
    <message>
        <source>&amp;Go on without the window</source>
        <translation>Ohne Fenster &amp;weiterlaufen</translation>
    </message>
    <message>
        <source>%1, no sweeps are coming</source>
        <translation>%1, es kommen keine Durchläufe</translation>
    </message>
</context>
<context>
    <name>bandmonitor::WindowMenu</name>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>Ne&amp;xt part of the window</source>
        <translation>&amp;Nächster Teil des Fensters</translation>
    </message>
    <message>
        <source>&amp;Previous part of the window</source>
        <translation>&amp;Voriger Teil des Fensters</translation>
    </message>
    <message>
        <source>Tabif&amp;y</source>
        <translation>Als Rei&amp;ter anordnen</translation>
    </message>
    <message>
        <source>&amp;Tile</source>
        <translation>Ne&amp;beneinander anordnen</translation>
    </message>
    <message>
        <source>Active panel</source>
        <translation>Aktiver Bereich</translation>
    </message>
    <message>
        <source>&amp;Float</source>
        <translation>Ab&amp;lösen</translation>
    </message>
    <message>
        <source>&amp;Maximize</source>
        <translation>&amp;Maximieren</translation>
    </message>
    <message>
        <source>Hide &amp;automatically</source>
        <translation>Automatisch ausblen&amp;den</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>bandmonitor::counts</name>
    <message>
        <source>1 sweep</source>
        <translation>1 Durchlauf</translation>
    </message>
    <message>
        <source>%1 sweeps</source>
        <translation>%1 Durchläufe</translation>
    </message>
    <message>
        <source>1 bin</source>
        <translation>1 Bin</translation>
    </message>
    <message>
        <source>%1 bins</source>
        <translation>%1 Bins</translation>
    </message>
    <message>
        <source>1 line was skipped</source>
        <translation>1 Zeile wurde übersprungen</translation>
    </message>
    <message>
        <source>%1 lines were skipped</source>
        <translation>%1 Zeilen wurden übersprungen</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>There is no display for the window.</source>
        <translation>Es gibt keinen Bildschirm für das Fenster.</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; cannot be written.</source>
        <translation>Das Bild „%1“ lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>Recording not opened</source>
        <translation>Aufzeichnung nicht geöffnet</translation>
    </message>
</context>
</TS>
