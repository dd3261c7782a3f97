<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ControlButtons</name>
    <message>
        <source>Autosave: on</source>
        <translation>Automatisch speichern: ein</translation>
    </message>
    <message>
        <source>Autosave: off</source>
        <translation>Automatisch speichern: aus</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
</context>
<context>
    <name>EventList</name>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
</context>
<context>
    <name>Framework</name>
    <message>
        <source>The level meter runs alone: there is no other application.</source>
        <translation>Der Pegelmesser läuft allein: Es gibt keine andere Anwendung.</translation>
    </message>
    <message>
        <source>A run is under way. Stop it and close?</source>
        <translation>Eine Messung läuft. Anhalten und schließen?</translation>
    </message>
    <message>
        <source>The last result was not saved. Close all the same?</source>
        <translation>Das letzte Ergebnis ist nicht gespeichert. Trotzdem schließen?</translation>
    </message>
    <message>
        <source>Close the level meter</source>
        <translation>Pegelmesser schließen</translation>
    </message>
</context>
<context>
    <name>LinkPanel</name>
    <message>
        <source>Link up</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Link slow</source>
        <translation>Verbindung träge</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Link lost</source>
        <translation>Verbindung verloren</translation>
    </message>
    <message>
        <source>No link</source>
        <translation>Keine Verbindung</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Try again now</source>
        <translation>Jetzt erneut versuchen</translation>
    </message>
</context>
<context>
    <name>LogPanel</name>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>The log is not kept in a file.</source>
        <translation>Das Protokoll wird in keiner Datei geführt.</translation>
    </message>
    <message>
        <source>The log is kept in %1</source>
        <translation>Das Protokoll steht in %1</translation>
    </message>
</context>
<context>
    <name>Meter</name>
    <message>
        <source>The instrument does not say whether its test has ended.</source>
        <translation>Das Gerät meldet nicht, ob sein Test beendet ist.</translation>
    </message>
    <message>
        <source>Stopped without a link; the instrument&apos;s test is ended when the link is back.</source>
        <translation>Ohne Verbindung angehalten; der Test im Gerät wird beendet, sobald die Verbindung zurück ist.</translation>
    </message>
    <message>
        <source>The instrument refused to launch its test &quot;%1&quot;.</source>
        <translation>Das Gerät hat den Start seines Tests „%1“ abgelehnt.</translation>
    </message>
    <message>
        <source>The link was lost before the test ran: %1</source>
        <translation>Verbindung verloren, bevor der Test lief: %1</translation>
    </message>
    <message>
        <source>Link lost: %1</source>
        <translation>Verbindung verloren: %1</translation>
    </message>
    <message>
        <source>The link was lost while the test ended.</source>
        <translation>Die Verbindung ging verloren, während der Test endete.</translation>
    </message>
    <message>
        <source>The instrument&apos;s test runs.</source>
        <translation>Der Test im Gerät läuft.</translation>
    </message>
    <message>
        <source>The link is back, the run goes on.</source>
        <translation>Die Verbindung ist zurück, die Messung geht weiter.</translation>
    </message>
    <message>
        <source>Level below the threshold: %1 dBm</source>
        <translation>Pegel unter der Schwelle: %1 dBm</translation>
    </message>
    <message>
        <source>Level back above the threshold</source>
        <translation>Pegel wieder über der Schwelle</translation>
    </message>
    <message>
        <source>The test ended before it ran.</source>
        <translation>Der Test endete, bevor er lief.</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Vollständig</translation>
    </message>
    <message>
        <source>The link is back, but the instrument&apos;s test has ended.</source>
        <translation>Die Verbindung ist zurück, aber der Test im Gerät ist beendet.</translation>
    </message>
    <message>
        <source>The instrument has ended its test before the time was over.</source>
        <translation>Das Gerät hat seinen Test vor Ablauf der Zeit beendet.</translation>
    </message>
</context>
<context>
    <name>MeterWindow</name>
    <message>
        <source>Measuring</source>
        <translation>Messung läuft</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Level meter</source>
        <translation>Pegelmesser</translation>
    </message>
</context>
<context>
    <name>PlotPanel</name>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>No markers</source>
        <translation>Keine Marker</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>Marker</translation>
    </message>
    <message>
        <source>Tap the trace to set a marker.</source>
        <translation>Die Kurve antippen, um einen Marker zu setzen.</translation>
    </message>
</context>
<context>
    <name>ResultFiles</name>
    <message>
        <source>Save the result</source>
        <translation>Ergebnis speichern</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Gespeichert als %1</translation>
    </message>
    <message>
        <source>Result File Browser</source>
        <translation>Ergebnisdateien</translation>
    </message>
    <message>
        <source>%1 is on the instrument now</source>
        <translation>%1 ist jetzt auf dem Gerät</translation>
    </message>
    <message>
        <source>%1 did not get to the instrument: %2</source>
        <translation>%1 kam nicht auf das Gerät: %2</translation>
    </message>
    <message>
        <source>Files of the instrument</source>
        <translation>Dateien des Geräts</translation>
    </message>
    <message>
        <source>Delete %1? It can&apos;t be brought back.</source>
        <translation>%1 löschen? Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Delete a result</source>
        <translation>Ergebnis löschen</translation>
    </message>
    <message>
        <source>%1 can&apos;t be deleted.</source>
        <translation>%1 lässt sich nicht löschen.</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Choose a result at the left.</source>
        <translation>Links ein Ergebnis wählen.</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Gemessen</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>Niedrigster Pegel</translation>
    </message>
    <message>
        <source>Highest level</source>
        <translation>Höchster Pegel</translation>
    </message>
    <message>
        <source>Mean power</source>
        <translation>Mittlere Leistung</translation>
    </message>
    <message>
        <source>Bit errors</source>
        <translation>Bitfehler</translation>
    </message>
    <message>
        <source>Error ratio</source>
        <translation>Fehlerquote</translation>
    </message>
    <message>
        <source>Lowest level allowed</source>
        <translation>Zulässiger Mindestpegel</translation>
    </message>
    <message>
        <source>Error ratio allowed</source>
        <translation>Zulässige Fehlerquote</translation>
    </message>
    <message>
        <source>Optical frequency</source>
        <translation>Optische Frequenz</translation>
    </message>
    <message>
        <source>%1 THz</source>
        <translation>%1 THz</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>%1 Gbit/s</source>
        <translation>%1 Gbit/s</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>Anschlüsse</translation>
    </message>
    <message>
        <source>Saved results</source>
        <translation>Gespeicherte Ergebnisse</translation>
    </message>
    <message>
        <source>Nothing was saved yet. A run that is over is saved in the test window.</source>
        <translation>Noch nichts gespeichert. Eine beendete Messung wird im Testfenster gespeichert.</translation>
    </message>
    <message>
        <source>Figures of the result</source>
        <translation>Zahlen des Ergebnisses</translation>
    </message>
    <message>
        <source>Open another file</source>
        <translation>Andere Datei öffnen</translation>
    </message>
    <message>
        <source>Upload to instrument</source>
        <translation>Auf Gerät laden</translation>
    </message>
    <message>
        <source>Progress of the upload</source>
        <translation>Fortschritt des Hochladens</translation>
    </message>
    <message>
        <source>Files of instrument</source>
        <translation>Dateien des Geräts</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>RunFile</name>
    <message>
        <source>%1 can&apos;t be written: %2</source>
        <translation>%1 lässt sich nicht schreiben: %2</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>%1 lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>%1 is larger than %2 MiB.</source>
        <translation>%1 ist größer als %2 MiB.</translation>
    </message>
    <message>
        <source>%1 is no run of the level meter: %2</source>
        <translation>%1 ist keine Messung des Pegelmessers: %2</translation>
    </message>
</context>
<context>
    <name>RunReader</name>
    <message>
        <source>it does not begin as XML does</source>
        <translation>sie beginnt nicht wie XML</translation>
    </message>
    <message>
        <source>a tag in it is too long</source>
        <translation>ein Tag darin ist zu lang</translation>
    </message>
    <message>
        <source>another application has written it</source>
        <translation>eine andere Anwendung hat sie geschrieben</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>it has no document type VEX</source>
        <translation>ihr fehlt der Dokumenttyp VEX</translation>
    </message>
    <message>
        <source>it declares entities</source>
        <translation>sie deklariert Entitäten</translation>
    </message>
    <message>
        <source>line %1: unknown element %2</source>
        <translation>Zeile %1: unbekanntes Element %2</translation>
    </message>
    <message>
        <source>its settings come after its samples</source>
        <translation>ihre Einstellungen stehen hinter den Messwerten</translation>
    </message>
    <message>
        <source>it has too many events</source>
        <translation>sie hat zu viele Ereignisse</translation>
    </message>
    <message>
        <source>it has too many samples</source>
        <translation>sie hat zu viele Messwerte</translation>
    </message>
    <message>
        <source>line %1: the samples are not in order</source>
        <translation>Zeile %1: Die Messwerte sind nicht in der Reihenfolge</translation>
    </message>
    <message>
        <source>line %1: expected a number from %2 to %3, found &apos;%4&apos;</source>
        <translation>Zeile %1: Zahl von %2 bis %3 erwartet, „%4“ gefunden</translation>
    </message>
</context>
<context>
    <name>SetupPage</name>
    <message>
        <source>Test at the instrument</source>
        <translation>Test im Gerät</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>What is measured, and its limits</source>
        <translation>Messung und Grenzwerte</translation>
    </message>
    <message>
        <source>Pattern that is sent, 32 bits</source>
        <translation>Gesendetes Muster, 32 Bit</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>Hexadezimal</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Binär</translation>
    </message>
    <message>
        <source>PAM4 symbols</source>
        <translation>PAM4-Symbole</translation>
    </message>
    <message>
        <source>The three fields show the same pattern: each follows the others.</source>
        <translation>Die drei Felder zeigen dasselbe Muster: Jedes folgt den anderen.</translation>
    </message>
    <message>
        <source>A run is under way. It can be stopped in the test window.</source>
        <translation>Eine Messung läuft. Sie lässt sich im Testfenster anhalten.</translation>
    </message>
    <message>
        <source>Light colours</source>
        <translation>Helle Farben</translation>
    </message>
    <message>
        <source>Dark colours</source>
        <translation>Dunkle Farben</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Standard values</source>
        <translation>Standardwerte</translation>
    </message>
    <message>
        <source>Start the test</source>
        <translation>Test starten</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>Optical frequency</source>
        <translation>Optische Frequenz</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>Niedrigster Pegel</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Samples per second</source>
        <translation>Messwerte pro Sekunde</translation>
    </message>
    <message>
        <source>Error ratio limit, power of 10</source>
        <translation>Grenze der Fehlerquote, Zehnerpotenz</translation>
    </message>
</context>
<context>
    <name>TestPage</name>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Save result</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>The instrument launches its test &quot;%1&quot; ...</source>
        <translation>Das Gerät startet seinen Test „%1“ ...</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>Messung läuft</translation>
    </message>
    <message>
        <source>The link is lost. The run goes on when it is back.</source>
        <translation>Die Verbindung ist verloren. Die Messung geht weiter, wenn sie zurück ist.</translation>
    </message>
    <message>
        <source>The instrument ends its test ...</source>
        <translation>Das Gerät beendet seinen Test ...</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>No link to the instrument, so no test can be started.</source>
        <translation>Keine Verbindung zum Gerät, daher kann kein Test gestartet werden.</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>Unterbrochen</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Level now</source>
        <translation>Pegel jetzt</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>Niedrigster Pegel</translation>
    </message>
    <message>
        <source>Mean power</source>
        <translation>Mittlere Leistung</translation>
    </message>
    <message>
        <source>Bit errors</source>
        <translation>Bitfehler</translation>
    </message>
    <message>
        <source>Error ratio</source>
        <translation>Fehlerquote</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Fortschritt der Messung</translation>
    </message>
</context>
<context>
    <name>TracePlot</name>
    <message>
        <source>Trace of the level over time</source>
        <translation>Pegelverlauf über der Zeit</translation>
    </message>
    <message>
        <source>Time in s</source>
        <translation>Zeit in s</translation>
    </message>
    <message>
        <source>Level in dBm</source>
        <translation>Pegel in dBm</translation>
    </message>
    <message>
        <source>%1: %2 s, %3 dBm</source>
        <translation>%1: %2 s, %3 dBm</translation>
    </message>
    <message>
        <source>B - A: %1 s, %2 dB</source>
        <translation>B - A: %1 s, %2 dB</translation>
    </message>
    <message>
        <source>no link</source>
        <translation>keine Verbindung</translation>
    </message>
    <message>
        <source>Threshold %1 dBm</source>
        <translation>Schwelle %1 dBm</translation>
    </message>
</context>
<context>
    <name>Wording</name>
    <message>
        <source>PASS</source>
        <translation>GUT</translation>
    </message>
    <message>
        <source>FAIL</source>
        <translation>FEHLER</translation>
    </message>
    <message>
        <source>No verdict</source>
        <translation>Kein Urteil</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Vollständig</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Ended by the instrument</source>
        <translation>Vom Gerät beendet</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>Nicht gestartet</translation>
    </message>
    <message>
        <source>The instrument did not answer in time.</source>
        <translation>Das Gerät hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>The connection broke.</source>
        <translation>Die Verbindung ist abgebrochen.</translation>
    </message>
    <message>
        <source>Nothing answers at that address.</source>
        <translation>Unter dieser Adresse antwortet nichts.</translation>
    </message>
    <message>
        <source>The connection was closed.</source>
        <translation>Die Verbindung wurde geschlossen.</translation>
    </message>
    <message>
        <source>There is no instrument there.</source>
        <translation>Dort gibt es kein Gerät.</translation>
    </message>
</context>
</TS>
