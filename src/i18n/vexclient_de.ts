<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AppHelpWidget</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Close help</source>
        <translation>Hilfe schließen</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>Hilfeseite</translation>
    </message>
</context>
<context>
    <name>AppMiniMissionControlWidget</name>
    <message>
        <source>Panel</source>
        <translation>Bereich</translation>
    </message>
</context>
<context>
    <name>AppMissionControlWidget</name>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Port: %1</source>
        <translation>Port: %1</translation>
    </message>
    <message>
        <source>Open mission control</source>
        <translation>Kontrollzentrum öffnen</translation>
    </message>
    <message>
        <source>Close mission control</source>
        <translation>Kontrollzentrum schließen</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Close application</source>
        <translation>Anwendung schließen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>Application controls</source>
        <translation>Bedienelemente der Anwendung</translation>
    </message>
</context>
<context>
    <name>BreadcrumbBar</name>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 öffnen</translation>
    </message>
</context>
<context>
    <name>ClientGUIBase</name>
    <message>
        <source>SETUP</source>
        <translation>SETUP</translation>
    </message>
    <message>
        <source>TEST</source>
        <translation>TEST</translation>
    </message>
    <message>
        <source>RESULT</source>
        <translation>ERGEBNIS</translation>
    </message>
    <message>
        <source>Result File Browser</source>
        <translation>Ergebnisdateien</translation>
    </message>
    <message>
        <source>Application Selector</source>
        <translation>Anwendungsauswahl</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Anwendungen</translation>
    </message>
</context>
<context>
    <name>ConflictDialog</name>
    <message>
        <source>Do the same with all that follow</source>
        <translation>Für alle folgenden übernehmen</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Datei vorhanden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already.</source>
        <translation>„%1“ ist bereits vorhanden.</translation>
    </message>
    <message>
        <source>There now</source>
        <translation>Vorhanden</translation>
    </message>
    <message>
        <source>To be copied</source>
        <translation>Zu kopieren</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Beide behalten</translation>
    </message>
    <message>
        <source>Cancel all</source>
        <translation>Alles abbrechen</translation>
    </message>
</context>
<context>
    <name>FcpAppCORBA</name>
    <message>
        <source>the link to %1 was given up</source>
        <translation>die Verbindung zu %1 wurde aufgegeben</translation>
    </message>
</context>
<context>
    <name>FileActionBar</name>
    <message>
        <source>List anew</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>FileItemDelegate</name>
    <message>
        <source>New name</source>
        <translation>Neuer Name</translation>
    </message>
</context>
<context>
    <name>FileListView</name>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>this is not the name of a file</source>
        <translation>dies ist kein Dateiname</translation>
    </message>
    <message>
        <source>its name holds bytes that are no text</source>
        <translation>der Name enthält Bytes, die kein Text sind</translation>
    </message>
    <message>
        <source>the name is longer than %1 bytes</source>
        <translation>der Name ist länger als %1 Byte</translation>
    </message>
</context>
<context>
    <name>FileOperations</name>
    <message>
        <source>the instrument</source>
        <translation>dem Gerät</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>diesem Computer</translation>
    </message>
    <message>
        <source>the medium %1</source>
        <translation>dem Datenträger %1</translation>
    </message>
    <message>
        <source>No folder could be made here: it may be protected.</source>
        <translation>Hier konnte kein Ordner angelegt werden: Der Ort ist möglicherweise schreibgeschützt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be renamed to &quot;%2&quot;: the name may be taken.</source>
        <translation>„%1“ kann nicht in „%2“ umbenannt werden: Der Name ist möglicherweise vergeben.</translation>
    </message>
    <message>
        <source>Renamed to &quot;%1&quot;.</source>
        <translation>In „%1“ umbenannt.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>What is deleted can&apos;t be brought back.</source>
        <translation>Gelöschtes kann nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>Deleting…</source>
        <translation>Löschen…</translation>
    </message>
    <message>
        <source>Deleted.</source>
        <translation>Gelöscht.</translation>
    </message>
    <message>
        <source>%1 entries</source>
        <translation>%1 Einträge</translation>
    </message>
    <message>
        <source>Open a folder and tap Paste to move %1.</source>
        <translation>Ordner öffnen und auf „Einfügen“ tippen, um %1 zu verschieben.</translation>
    </message>
    <message>
        <source>Open a folder and tap Paste to copy %1.</source>
        <translation>Ordner öffnen und auf „Einfügen“ tippen, um %1 zu kopieren.</translation>
    </message>
    <message>
        <source>Moving…</source>
        <translation>Verschieben…</translation>
    </message>
    <message>
        <source>Moved.</source>
        <translation>Verschoben.</translation>
    </message>
    <message>
        <source>Copying…</source>
        <translation>Kopieren…</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>Kopiert.</translation>
    </message>
    <message>
        <source>Making a folder…</source>
        <translation>Ordner wird angelegt…</translation>
    </message>
    <message>
        <source>Renaming…</source>
        <translation>Wird umbenannt…</translation>
    </message>
</context>
<context>
    <name>FilePane</name>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Search in this folder</source>
        <translation>In diesem Ordner suchen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Types of files</source>
        <translation>Dateitypen</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>The instrument can&apos;t be reached.</source>
        <translation>Das Gerät ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>%1 was removed.</source>
        <translation>%1 wurde entfernt.</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>Der Ordner „%1“ ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is gone.</source>
        <translation>Der Ordner „%1“ ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>This folder can&apos;t be listed.</source>
        <translation>Der Inhalt dieses Ordners kann nicht angezeigt werden.</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Laden…</translation>
    </message>
    <message>
        <source>Nothing here fits the search.</source>
        <translation>Keine Treffer in diesem Ordner.</translation>
    </message>
    <message>
        <source>This folder is empty.</source>
        <translation>Dieser Ordner ist leer.</translation>
    </message>
    <message>
        <source>The link to the instrument is lost</source>
        <translation>Die Verbindung zum Gerät ist unterbrochen</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>This entry&apos;s name can&apos;t be used.</source>
        <translation>Der Name dieses Eintrags kann nicht verwendet werden.</translation>
    </message>
    <message>
        <source>Only %1</source>
        <translation>Nur %1</translation>
    </message>
    <message>
        <source>List only files of %1</source>
        <translation>Nur Dateien von %1 anzeigen</translation>
    </message>
    <message>
        <source>There are no files of this type here.</source>
        <translation>Hier gibt es keine Dateien dieses Typs.</translation>
    </message>
</context>
<context>
    <name>FilePaths</name>
    <message>
        <source>A name is needed.</source>
        <translation>Ein Name ist erforderlich.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be a name.</source>
        <translation>„%1“ ist kein gültiger Name.</translation>
    </message>
    <message>
        <source>A name can&apos;t have a &quot;/&quot;.</source>
        <translation>Ein Name darf kein „/“ enthalten.</translation>
    </message>
    <message>
        <source>A name can&apos;t have the character %1.</source>
        <translation>Ein Name darf das Zeichen %1 nicht enthalten.</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>Dieser Name ist zu lang.</translation>
    </message>
</context>
<context>
    <name>FileQuestions</name>
    <message>
        <source>1 file</source>
        <translation>1 Datei</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 Datei</numerusform>
            <numerusform>%1 Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 Ordner</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders</source>
        <translation>
            <numerusform>%1 Ordner</numerusform>
            <numerusform>%1 Ordner</numerusform>
        </translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Not everything was copied</source>
        <translation>Nicht alles wurde kopiert</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>Delete %1 from %2?</source>
        <translation>%1 auf %2 löschen?</translation>
    </message>
    <message>
        <source>Delete %1 with everything in it from %2?</source>
        <translation>%1 mit gesamtem Inhalt auf %2 löschen?</translation>
    </message>
    <message>
        <source>Delete %1 with everything in them from %2?</source>
        <translation>%1 mit gesamtem Inhalt auf %2 löschen?</translation>
    </message>
    <message>
        <source>%1 copied (%2)</source>
        <translation>%1 kopiert (%2)</translation>
    </message>
    <message>
        <source>%1 skipped</source>
        <translation>%1 übersprungen</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 fehlgeschlagen</translation>
    </message>
    <message>
        <source>%1 not tried</source>
        <translation>%1 nicht versucht</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>noch %1&#xa0;s</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>noch %1&#xa0;min</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>noch %1&#xa0;h %2&#xa0;min</translation>
    </message>
</context>
<context>
    <name>FileTransfer</name>
    <message>
        <source>it is no file any more</source>
        <translation>keine Datei mehr</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>nicht vorhanden</translation>
    </message>
    <message>
        <source>it was changed while it was read</source>
        <translation>wurde während des Lesens geändert</translation>
    </message>
    <message>
        <source>%1 bytes came of a file of %2 bytes</source>
        <translation>%1 Byte empfangen, die Datei hat jedoch %2 Byte</translation>
    </message>
    <message>
        <source>there is no room left: %1</source>
        <translation>kein Speicherplatz mehr frei: %1</translation>
    </message>
    <message>
        <source>there is no link to the instrument</source>
        <translation>keine Verbindung zum Gerät</translation>
    </message>
    <message>
        <source>the instrument cannot list %1</source>
        <translation>das Gerät kann den Inhalt von %1 nicht auflisten</translation>
    </message>
    <message>
        <source>%1; it is unknown whether the instrument still did its last step</source>
        <translation>%1; es ist nicht bekannt, ob das Gerät den letzten Schritt noch ausgeführt hat</translation>
    </message>
    <message>
        <source>%1 (the instrument answers %2)</source>
        <translation>%1 (Antwort des Geräts: %2)</translation>
    </message>
    <message>
        <source>the instrument cannot give a file of %1 the name %2</source>
        <translation>das Gerät kann einer Datei in %1 nicht den Namen %2 geben</translation>
    </message>
    <message>
        <source>the instrument cannot remove %1</source>
        <translation>das Gerät kann %1 nicht entfernen</translation>
    </message>
    <message>
        <source>the instrument cannot make a folder in %1</source>
        <translation>das Gerät kann in %1 keinen Ordner anlegen</translation>
    </message>
    <message>
        <source>this is not the path of a file</source>
        <translation>dies ist kein Dateipfad</translation>
    </message>
    <message>
        <source>it cannot be carried into itself</source>
        <translation>kann nicht in sich selbst übertragen werden</translation>
    </message>
    <message>
        <source>the folders are nested too deeply</source>
        <translation>die Ordner sind zu tief verschachtelt</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>eine unbekannte Ausnahme</translation>
    </message>
    <message>
        <source>the folder %1 is not there</source>
        <translation>der Ordner %1 ist nicht vorhanden</translation>
    </message>
    <message>
        <source>%1 are needed, and %2 are free in %3</source>
        <translation>%1 werden benötigt, %2 sind in %3 frei</translation>
    </message>
    <message>
        <source>a file at the target has the name of this folder</source>
        <translation>am Ziel gibt es eine Datei mit dem Namen dieses Ordners</translation>
    </message>
    <message>
        <source>%1; what may be left as %2 is removed when the file is carried again</source>
        <translation>%1; ein möglicher Rest unter %2 wird beim erneuten Übertragen der Datei entfernt</translation>
    </message>
    <message>
        <source>a folder at the target has the name of this file</source>
        <translation>am Ziel gibt es einen Ordner mit dem Namen dieser Datei</translation>
    </message>
</context>
<context>
    <name>FwButtonTabWidget</name>
    <message>
        <source>Previous tabs</source>
        <translation>Vorherige Register</translation>
    </message>
    <message>
        <source>More tabs</source>
        <translation>Weitere Register</translation>
    </message>
</context>
<context>
    <name>FwLoadSaveDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Transfer files</source>
        <translation>Dateien übertragen</translation>
    </message>
    <message>
        <source>Nothing can be saved here now.</source>
        <translation>Hier kann derzeit nichts gespeichert werden.</translation>
    </message>
    <message>
        <source>There is a folder with the name &quot;%1&quot;.</source>
        <translation>Es gibt einen Ordner mit dem Namen „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already. Overwrite it?</source>
        <translation>„%1“ ist bereits vorhanden. Überschreiben?</translation>
    </message>
    <message>
        <source>What it holds now will be lost.</source>
        <translation>Der bisherige Inhalt geht verloren.</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation>Übertragung</translation>
    </message>
    <message>
        <source>Files are being copied. Cancel that and close?</source>
        <translation>Es werden gerade Dateien kopiert. Abbrechen und schließen?</translation>
    </message>
    <message>
        <source>What has been copied so far stays.</source>
        <translation>Bereits Kopiertes bleibt erhalten.</translation>
    </message>
    <message>
        <source>Cancel and close</source>
        <translation>Abbrechen und schließen</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Fortsetzen</translation>
    </message>
</context>
<context>
    <name>FwLogView</name>
    <message>
        <source>All levels</source>
        <translation>Alle Stufen</translation>
    </message>
    <message>
        <source>From info</source>
        <translation>Ab Information</translation>
    </message>
    <message>
        <source>From warning</source>
        <translation>Ab Warnung</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>Alle Kategorien</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
</context>
<context>
    <name>FwNavigationButton</name>
    <message>
        <source>Previous window</source>
        <translation>Vorheriges Fenster</translation>
    </message>
    <message>
        <source>Next window</source>
        <translation>Nächstes Fenster</translation>
    </message>
</context>
<context>
    <name>HelpBrowser</name>
    <message>
        <source>Only pages on this instrument can be shown here.</source>
        <translation>Hier können nur Seiten dieses Geräts angezeigt werden.</translation>
    </message>
    <message>
        <source>The help page is missing, or can not be read.</source>
        <translation>Die Hilfeseite fehlt oder kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>This page can not be shown</source>
        <translation>Diese Seite kann nicht angezeigt werden</translation>
    </message>
</context>
<context>
    <name>LampSign</name>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Indicator: %1</source>
        <translation>Anzeige: %1</translation>
    </message>
</context>
<context>
    <name>LocalFileCopy</name>
    <message>
        <source>it is no file any more</source>
        <translation>keine Datei mehr</translation>
    </message>
    <message>
        <source>it cannot be read: %1</source>
        <translation>sie kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>it cannot be written: %1</source>
        <translation>sie kann nicht geschrieben werden: %1</translation>
    </message>
</context>
<context>
    <name>LocalHelperThread</name>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>Files are being copied, moved or deleted already.</source>
        <translation>Es werden bereits Dateien kopiert, verschoben oder gelöscht.</translation>
    </message>
    <message>
        <source>There is an entry of that name already.</source>
        <translation>Es gibt bereits einen Eintrag mit diesem Namen.</translation>
    </message>
    <message>
        <source>This can&apos;t be done with this folder, or not at this place.</source>
        <translation>Dies ist mit diesem Ordner oder an diesem Ort nicht möglich.</translation>
    </message>
    <message>
        <source>This is neither a file nor a folder nor a link, and can&apos;t be copied.</source>
        <translation>Dies ist weder eine Datei noch ein Ordner noch eine Verknüpfung und kann nicht kopiert werden.</translation>
    </message>
    <message>
        <source>It is in use.</source>
        <translation>Wird gerade verwendet.</translation>
    </message>
    <message>
        <source>Nothing may be changed here.</source>
        <translation>Hier darf nichts geändert werden.</translation>
    </message>
</context>
<context>
    <name>LocalSource</name>
    <message>
        <source>it is not there</source>
        <translation>nicht vorhanden</translation>
    </message>
    <message>
        <source>this folder cannot be read</source>
        <translation>dieser Ordner kann nicht gelesen werden</translation>
    </message>
</context>
<context>
    <name>LocalTarget</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made: %2</source>
        <translation>der Ordner %1 kann nicht angelegt werden: %2</translation>
    </message>
    <message>
        <source>%1 was changed while it was written</source>
        <translation>%1 wurde während des Schreibens geändert</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>%1 kann nicht entfernt werden: %2</translation>
    </message>
    <message>
        <source>%1 cannot be flushed to the medium: %2</source>
        <translation>%1 kann nicht auf den Datenträger geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>NameField</name>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
</context>
<context>
    <name>NumericField</name>
    <message>
        <source>Whole numbers only</source>
        <translation>Nur ganze Zahlen</translation>
    </message>
    <message>
        <source>No negative values</source>
        <translation>Keine negativen Werte</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no digit here</source>
        <translation>„%1“ ist hier keine Ziffer</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>Zahl eingeben</translation>
    </message>
    <message>
        <source>Digits after the point: %1 at most</source>
        <translation>Nachkommastellen: höchstens %1</translation>
    </message>
    <message>
        <source>Not a number in the range</source>
        <translation>Keine Zahl im zulässigen Bereich</translation>
    </message>
    <message>
        <source>The largest value is %1</source>
        <translation>Der größte Wert ist %1</translation>
    </message>
    <message>
        <source>The smallest value is %1</source>
        <translation>Der kleinste Wert ist %1</translation>
    </message>
</context>
<context>
    <name>NumpadKeys</name>
    <message>
        <source>Without a prefix</source>
        <translation>Ohne Vorsatz</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>Cursor nach links</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>Cursor nach rechts</translation>
    </message>
    <message>
        <source>Change the sign</source>
        <translation>Vorzeichen wechseln</translation>
    </message>
    <message>
        <source>Decimal point</source>
        <translation>Dezimalpunkt</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Min</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
</context>
<context>
    <name>NumpadPanel</name>
    <message>
        <source>Value: %1</source>
        <translation>Wert: %1</translation>
    </message>
    <message>
        <source>Range: %1 to %2</source>
        <translation>Bereich: %1 bis %2</translation>
    </message>
    <message>
        <source>Step: %1</source>
        <translation>Schritt: %1</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Edit digits</source>
        <translation>Ziffern bearbeiten</translation>
    </message>
    <message>
        <source>Display password</source>
        <translation>Passwort anzeigen</translation>
    </message>
    <message>
        <source>Disable password protection</source>
        <translation>Passwortschutz deaktivieren</translation>
    </message>
</context>
<context>
    <name>QLrudDialog</name>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Nach links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Nach rechts</translation>
    </message>
    <message>
        <source>Keypad</source>
        <translation>Tastenfeld</translation>
    </message>
    <message>
        <source>Move keys up</source>
        <translation>Tasten nach oben verschieben</translation>
    </message>
    <message>
        <source>Move keys down</source>
        <translation>Tasten nach unten verschieben</translation>
    </message>
</context>
<context>
    <name>QvexDialogBorder</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben verschieben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten verschieben</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Nach links verschieben</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Nach rechts verschieben</translation>
    </message>
</context>
<context>
    <name>QvexFileMover</name>
    <message>
        <source>%1 was not carried: %2</source>
        <translation>%1 wurde nicht übertragen: %2</translation>
    </message>
    <message>
        <source>%1 was not carried: an unknown exception</source>
        <translation>%1 wurde nicht übertragen: eine unbekannte Ausnahme</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 exists on the instrument</source>
        <translation>%1 ist auf dem Gerät bereits vorhanden</translation>
    </message>
    <message>
        <source>the instrument cannot write %1</source>
        <translation>das Gerät kann %1 nicht schreiben</translation>
    </message>
    <message>
        <source>the instrument could not store what was sent of %1</source>
        <translation>das Gerät konnte die gesendeten Daten von %1 nicht speichern</translation>
    </message>
    <message>
        <source>the destination has appeared on the instrument meanwhile</source>
        <translation>das Ziel ist inzwischen auf dem Gerät vorhanden</translation>
    </message>
    <message>
        <source>the instrument could not store the file</source>
        <translation>das Gerät konnte die Datei nicht speichern</translation>
    </message>
    <message>
        <source>%1 has shrunk while it was read</source>
        <translation>%1 ist während des Lesens kleiner geworden</translation>
    </message>
    <message>
        <source>aborted after %1 bytes</source>
        <translation>nach %1 Byte abgebrochen</translation>
    </message>
    <message>
        <source>the instrument cannot read %1</source>
        <translation>das Gerät kann %1 nicht lesen</translation>
    </message>
    <message>
        <source>%1 exists</source>
        <translation>%1 ist bereits vorhanden</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>%1 kann nicht entfernt werden: %2</translation>
    </message>
    <message>
        <source>the folder of %1 cannot be made</source>
        <translation>der Ordner von %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>the instrument could not read the file to its end</source>
        <translation>das Gerät konnte die Datei nicht bis zum Ende lesen</translation>
    </message>
</context>
<context>
    <name>QvexMessageBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Voreinstellungen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Alles speichern</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Yes to All</source>
        <translation>Ja, alle</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>No to All</source>
        <translation>Nein, keine</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>Hide Details</source>
        <translation>Details ausblenden</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Details einblenden</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
</context>
<context>
    <name>QvexNumpadDlg</name>
    <message>
        <source>The value stays as it is</source>
        <translation>Der Wert bleibt unverändert</translation>
    </message>
    <message>
        <source>%1; or choose a unit</source>
        <translation>%1; oder eine Einheit wählen</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>Zahl eingeben</translation>
    </message>
</context>
<context>
    <name>QvexPasswordPopup</name>
    <message>
        <source>Password Protection</source>
        <translation>Passwortschutz</translation>
    </message>
    <message>
        <source>Password Does Not Match.
Please Type Correct Password!</source>
        <translation>Das Passwort stimmt nicht überein.
Bitte geben Sie das richtige Passwort ein!</translation>
    </message>
</context>
<context>
    <name>QvexRemoteFileModel</name>
    <message>
        <source>It was cancelled.</source>
        <translation>Der Vorgang wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Another operation is still running.</source>
        <translation>Ein anderer Vorgang läuft noch.</translation>
    </message>
    <message>
        <source>The link to the instrument was lost; it is not known whether it was done.</source>
        <translation>Die Verbindung zum Gerät wurde unterbrochen; es ist nicht bekannt, ob der Vorgang ausgeführt wurde.</translation>
    </message>
    <message>
        <source>Its name can&apos;t be used.</source>
        <translation>Der Name kann nicht verwendet werden.</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Instrument (%1)</source>
        <translation>Gerät (%1)</translation>
    </message>
    <message>
        <source>Internal</source>
        <translation>Internal</translation>
    </message>
    <message>
        <source>Remote</source>
        <translation>Remote</translation>
    </message>
    <message>
        <source>It is not there any more.</source>
        <translation>Nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>There is no permission for it.</source>
        <translation>Keine Berechtigung dafür.</translation>
    </message>
    <message>
        <source>Something of that name is there already.</source>
        <translation>Dieser Name ist bereits vergeben.</translation>
    </message>
    <message>
        <source>A folder can&apos;t be put into itself.</source>
        <translation>Ein Ordner kann nicht in sich selbst abgelegt werden.</translation>
    </message>
    <message>
        <source>The instrument&apos;s storage is full.</source>
        <translation>Der Speicher des Geräts ist voll.</translation>
    </message>
    <message>
        <source>The instrument reported error %1.</source>
        <translation>Das Gerät hat den Fehler %1 gemeldet.</translation>
    </message>
    <message>
        <source>No folder could be made here: it may be protected.</source>
        <translation>Hier konnte kein Ordner angelegt werden: Vielleicht ist der Ort geschützt.</translation>
    </message>
</context>
<context>
    <name>QvextHelpDialog</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Startseite</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>Hilfeseite</translation>
    </message>
</context>
<context>
    <name>RemoteSource</name>
    <message>
        <source>it is not there</source>
        <translation>nicht vorhanden</translation>
    </message>
</context>
<context>
    <name>RemoteTarget</name>
    <message>
        <source>the instrument cannot replace %1</source>
        <translation>das Gerät kann %1 nicht ersetzen</translation>
    </message>
    <message>
        <source>%1; the old file may be called %2 now</source>
        <translation>%1; die alte Datei heißt jetzt möglicherweise %2</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Close panel</source>
        <translation>Bereich schließen</translation>
    </message>
</context>
<context>
    <name>SplashLines</name>
    <message>
        <source>Start-up messages</source>
        <translation>Startmeldungen</translation>
    </message>
</context>
<context>
    <name>StatusStrip</name>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Stop what is under way</source>
        <translation>Laufenden Vorgang stoppen</translation>
    </message>
</context>
<context>
    <name>TransferPanel</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>Progress of the transfer</source>
        <translation>Fortschritt der Übertragung</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Cancel the transfer</source>
        <translation>Übertragung abbrechen</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Wird abgebrochen…</translation>
    </message>
</context>
<context>
    <name>TransferView</name>
    <message>
        <source>&quot;%1&quot; can&apos;t be copied into itself.</source>
        <translation>„%1“ kann nicht in sich selbst kopiert werden.</translation>
    </message>
    <message>
        <source>Both sides show the same folder.</source>
        <translation>Beide Seiten zeigen denselben Ordner.</translation>
    </message>
    <message>
        <source>Copy to the right side</source>
        <translation>Auf die rechte Seite kopieren</translation>
    </message>
    <message>
        <source>Copy to the left side</source>
        <translation>Auf die linke Seite kopieren</translation>
    </message>
    <message>
        <source>To %1:</source>
        <translation>Ziel %1:</translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation>Übertragung</translation>
    </message>
</context>
<context>
    <name>UnitPrefix</name>
    <message>
        <source>Enter a number before the unit</source>
        <translation>Vor der Einheit eine Zahl eingeben</translation>
    </message>
    <message>
        <source>Too many digits for this unit</source>
        <translation>Zu viele Stellen für diese Einheit</translation>
    </message>
</context>
<context>
    <name>VerdictSign</name>
    <message>
        <source>No result</source>
        <translation>Kein Ergebnis</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Nicht bestanden</translation>
    </message>
    <message>
        <source>See results</source>
        <translation>Siehe Ergebnisse</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>subject and verdict</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>VexLinkSupervisor</name>
    <message>
        <source>registered with %1:%2 as client %3</source>
        <translation>bei %1:%2 als Client %3 angemeldet</translation>
    </message>
    <message>
        <source>the controller answers again</source>
        <translation>die Steuerung antwortet wieder</translation>
    </message>
    <message>
        <source>connecting to %1:%2, attempt %3</source>
        <translation>Verbindung zu %1:%2, Versuch %3</translation>
    </message>
    <message>
        <source>no answer for %1 ms</source>
        <translation>seit %1&#xa0;ms keine Antwort</translation>
    </message>
    <message>
        <source>no longer watched</source>
        <translation>nicht mehr überwacht</translation>
    </message>
</context>
</TS>
