<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>AppHelpWidget</name>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Close help</source>
        <translation>Chiudi guida</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>Pagina della guida</translation>
    </message>
</context>
<context>
    <name>AppMiniMissionControlWidget</name>
    <message>
        <source>Panel</source>
        <translation>Pannello</translation>
    </message>
</context>
<context>
    <name>AppMissionControlWidget</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Port: %1</source>
        <translation>Porta: %1</translation>
    </message>
    <message>
        <source>Open mission control</source>
        <translation>Apri pannello di controllo</translation>
    </message>
    <message>
        <source>Close mission control</source>
        <translation>Chiudi pannello di controllo</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Close application</source>
        <translation>Chiudi applicazione</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>Application controls</source>
        <translation>Comandi dell&apos;applicazione</translation>
    </message>
</context>
<context>
    <name>BreadcrumbBar</name>
    <message>
        <source>Path</source>
        <translation>Percorso</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Apri %1</translation>
    </message>
</context>
<context>
    <name>ClientGUIBase</name>
    <message>
        <source>SETUP</source>
        <translation>IMPOSTAZIONI</translation>
    </message>
    <message>
        <source>TEST</source>
        <translation>TEST</translation>
    </message>
    <message>
        <source>RESULT</source>
        <translation>RISULTATI</translation>
    </message>
    <message>
        <source>Result File Browser</source>
        <translation>File dei risultati</translation>
    </message>
    <message>
        <source>Application Selector</source>
        <translation>Selezione applicazione</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Applicazioni</translation>
    </message>
</context>
<context>
    <name>ConflictDialog</name>
    <message>
        <source>Do the same with all that follow</source>
        <translation>Fai lo stesso per tutti i successivi</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>File esistente</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already.</source>
        <translation>&quot;%1&quot; è già presente.</translation>
    </message>
    <message>
        <source>There now</source>
        <translation>Esistente</translation>
    </message>
    <message>
        <source>To be copied</source>
        <translation>Da copiare</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Sovrascrivi</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Salta</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Mantieni entrambi</translation>
    </message>
    <message>
        <source>Cancel all</source>
        <translation>Annulla tutto</translation>
    </message>
</context>
<context>
    <name>FcpAppCORBA</name>
    <message>
        <source>the link to %1 was given up</source>
        <translation>la connessione con %1 è stata abbandonata</translation>
    </message>
</context>
<context>
    <name>FileActionBar</name>
    <message>
        <source>List anew</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nuova cartella</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Sposta</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Incolla</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
</context>
<context>
    <name>FileItemDelegate</name>
    <message>
        <source>New name</source>
        <translation>Nuovo nome</translation>
    </message>
</context>
<context>
    <name>FileListView</name>
    <message>
        <source>Columns</source>
        <translation>Colonne</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>this is not the name of a file</source>
        <translation>non è il nome di un file</translation>
    </message>
    <message>
        <source>its name holds bytes that are no text</source>
        <translation>il nome contiene byte che non sono testo</translation>
    </message>
    <message>
        <source>the name is longer than %1 bytes</source>
        <translation>il nome supera %1 byte</translation>
    </message>
</context>
<context>
    <name>FileOperations</name>
    <message>
        <source>the instrument</source>
        <translatorcomment>Stands for %2 of “Delete %1 from %2?” (FileQuestions): carries the preposition.</translatorcomment>
        <translation>dallo strumento</translation>
    </message>
    <message>
        <source>this computer</source>
        <translatorcomment>Stands for %2 of “Delete %1 from %2?” (FileQuestions): carries the preposition.</translatorcomment>
        <translation>da questo computer</translation>
    </message>
    <message>
        <source>the medium %1</source>
        <translatorcomment>Stands for %2 of “Delete %1 from %2?” (FileQuestions): carries the preposition.</translatorcomment>
        <translation>dal supporto %1</translation>
    </message>
    <message>
        <source>No folder could be made here: it may be protected.</source>
        <translation>Impossibile creare una cartella qui: la posizione potrebbe essere protetta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be renamed to &quot;%2&quot;: the name may be taken.</source>
        <translation>Impossibile rinominare &quot;%1&quot; in &quot;%2&quot;: il nome potrebbe essere già in uso.</translation>
    </message>
    <message>
        <source>Renamed to &quot;%1&quot;.</source>
        <translation>Rinominato in &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>What is deleted can&apos;t be brought back.</source>
        <translation>Ciò che viene eliminato non può essere recuperato.</translation>
    </message>
    <message>
        <source>Deleting…</source>
        <translation>Eliminazione…</translation>
    </message>
    <message>
        <source>Deleted.</source>
        <translation>Eliminazione completata.</translation>
    </message>
    <message>
        <source>%1 entries</source>
        <translation>%1 elementi</translation>
    </message>
    <message>
        <source>Open a folder and tap Paste to move %1.</source>
        <translation>Aprire una cartella e toccare Incolla per spostare %1.</translation>
    </message>
    <message>
        <source>Open a folder and tap Paste to copy %1.</source>
        <translation>Aprire una cartella e toccare Incolla per copiare %1.</translation>
    </message>
    <message>
        <source>Moving…</source>
        <translation>Spostamento…</translation>
    </message>
    <message>
        <source>Moved.</source>
        <translation>Spostamento completato.</translation>
    </message>
    <message>
        <source>Copying…</source>
        <translation>Copia in corso…</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>Copia completata.</translation>
    </message>
    <message>
        <source>Making a folder…</source>
        <translation>Creazione di una cartella…</translation>
    </message>
    <message>
        <source>Renaming…</source>
        <translation>Ridenominazione…</translation>
    </message>
</context>
<context>
    <name>FilePane</name>
    <message>
        <source>Up</source>
        <translation>Cartella superiore</translation>
    </message>
    <message>
        <source>Search in this folder</source>
        <translation>Cerca in questa cartella</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Types of files</source>
        <translation>Tipi di file</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>The instrument can&apos;t be reached.</source>
        <translation>Lo strumento non è raggiungibile.</translation>
    </message>
    <message>
        <source>%1 was removed.</source>
        <translation>Il supporto %1 è stato rimosso.</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>La cartella &quot;%1&quot; non esiste.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is gone.</source>
        <translation>La cartella &quot;%1&quot; non esiste più.</translation>
    </message>
    <message>
        <source>This folder can&apos;t be listed.</source>
        <translation>Impossibile elencare il contenuto di questa cartella.</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Caricamento…</translation>
    </message>
    <message>
        <source>Nothing here fits the search.</source>
        <translation>Nessun elemento corrisponde alla ricerca.</translation>
    </message>
    <message>
        <source>This folder is empty.</source>
        <translation>Questa cartella è vuota.</translation>
    </message>
    <message>
        <source>The link to the instrument is lost</source>
        <translation>Connessione con lo strumento interrotta</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>This entry&apos;s name can&apos;t be used.</source>
        <translation>Il nome di questo elemento non può essere usato.</translation>
    </message>
    <message>
        <source>Only %1</source>
        <translation>Solo %1</translation>
    </message>
    <message>
        <source>List only files of %1</source>
        <translation>Mostra solo i file di %1</translation>
    </message>
    <message>
        <source>There are no files of this type here.</source>
        <translation>Qui non ci sono file di questo tipo.</translation>
    </message>
</context>
<context>
    <name>FilePaths</name>
    <message>
        <source>A name is needed.</source>
        <translation>È necessario un nome.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be a name.</source>
        <translation>&quot;%1&quot; non può essere un nome.</translation>
    </message>
    <message>
        <source>A name can&apos;t have a &quot;/&quot;.</source>
        <translation>Un nome non può contenere &quot;/&quot;.</translation>
    </message>
    <message>
        <source>A name can&apos;t have the character %1.</source>
        <translation>Un nome non può contenere il carattere %1.</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>Questo nome è troppo lungo.</translation>
    </message>
</context>
<context>
    <name>FileQuestions</name>
    <message>
        <source>1 file</source>
        <translation>1 file</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 file</numerusform>
            <numerusform>%1 file</numerusform>
        </translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 cartella</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders</source>
        <translation>
            <numerusform>%1 cartella</numerusform>
            <numerusform>%1 cartelle</numerusform>
        </translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Completato</translation>
    </message>
    <message>
        <source>Not everything was copied</source>
        <translation>Copia incompleta</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annullato</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 e %2</translation>
    </message>
    <message>
        <source>Delete %1 from %2?</source>
        <translation>Eliminare %2 %1?</translation>
    </message>
    <message>
        <source>Delete %1 with everything in it from %2?</source>
        <translation>Eliminare %2 %1 con tutto il contenuto?</translation>
    </message>
    <message>
        <source>Delete %1 with everything in them from %2?</source>
        <translation>Eliminare %2 %1 con tutto il contenuto?</translation>
    </message>
    <message>
        <source>%1 copied (%2)</source>
        <translation>copiati: %1 (%2)</translation>
    </message>
    <message>
        <source>%1 skipped</source>
        <translation>saltati: %1</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>non riusciti: %1</translation>
    </message>
    <message>
        <source>%1 not tried</source>
        <translation>non tentati: %1</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>%1 s rimanenti</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>%1 min rimanenti</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>%1 h %2 min rimanenti</translation>
    </message>
</context>
<context>
    <name>FileTransfer</name>
    <message>
        <source>it is no file any more</source>
        <translation>non è più un file</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>non è presente</translation>
    </message>
    <message>
        <source>it was changed while it was read</source>
        <translation>è stato modificato durante la lettura</translation>
    </message>
    <message>
        <source>%1 bytes came of a file of %2 bytes</source>
        <translation>ricevuti %1 byte di un file di %2 byte</translation>
    </message>
    <message>
        <source>there is no room left: %1</source>
        <translation>spazio esaurito: %1</translation>
    </message>
    <message>
        <source>there is no link to the instrument</source>
        <translation>nessuna connessione con lo strumento</translation>
    </message>
    <message>
        <source>the instrument cannot list %1</source>
        <translation>lo strumento non può elencare il contenuto di %1</translation>
    </message>
    <message>
        <source>%1; it is unknown whether the instrument still did its last step</source>
        <translation>%1; non è noto se lo strumento abbia ancora eseguito l&apos;ultimo passaggio</translation>
    </message>
    <message>
        <source>%1 (the instrument answers %2)</source>
        <translation>%1 (risposta dello strumento: %2)</translation>
    </message>
    <message>
        <source>the instrument cannot give a file of %1 the name %2</source>
        <translation>lo strumento non può assegnare a un file di %1 il nome %2</translation>
    </message>
    <message>
        <source>the instrument cannot remove %1</source>
        <translation>lo strumento non può rimuovere %1</translation>
    </message>
    <message>
        <source>the instrument cannot make a folder in %1</source>
        <translation>lo strumento non può creare una cartella in %1</translation>
    </message>
    <message>
        <source>this is not the path of a file</source>
        <translation>non è il percorso di un file</translation>
    </message>
    <message>
        <source>it cannot be carried into itself</source>
        <translation>non può essere trasferito in sé stesso</translation>
    </message>
    <message>
        <source>the folders are nested too deeply</source>
        <translation>le cartelle sono annidate troppo in profondità</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>eccezione sconosciuta</translation>
    </message>
    <message>
        <source>the folder %1 is not there</source>
        <translation>la cartella %1 non esiste</translation>
    </message>
    <message>
        <source>%1 are needed, and %2 are free in %3</source>
        <translation>necessari %1, disponibili %2 in %3</translation>
    </message>
    <message>
        <source>a file at the target has the name of this folder</source>
        <translation>nella destinazione c&apos;è un file con il nome di questa cartella</translation>
    </message>
    <message>
        <source>%1; what may be left as %2 is removed when the file is carried again</source>
        <translation>%1; un eventuale residuo in %2 verrà rimosso al prossimo trasferimento del file</translation>
    </message>
    <message>
        <source>a folder at the target has the name of this file</source>
        <translation>nella destinazione c&apos;è una cartella con il nome di questo file</translation>
    </message>
</context>
<context>
    <name>FwButtonTabWidget</name>
    <message>
        <source>Previous tabs</source>
        <translation>Schede precedenti</translation>
    </message>
    <message>
        <source>More tabs</source>
        <translation>Altre schede</translation>
    </message>
</context>
<context>
    <name>FwLoadSaveDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Strumento</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Carica</translation>
    </message>
    <message>
        <source>Transfer files</source>
        <translation>Trasferisci file</translation>
    </message>
    <message>
        <source>Nothing can be saved here now.</source>
        <translation>Al momento non è possibile salvare qui.</translation>
    </message>
    <message>
        <source>There is a folder with the name &quot;%1&quot;.</source>
        <translation>Esiste già una cartella con il nome &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already. Overwrite it?</source>
        <translation>&quot;%1&quot; esiste già. Sovrascrivere?</translation>
    </message>
    <message>
        <source>What it holds now will be lost.</source>
        <translation>Il contenuto attuale andrà perso.</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Sovrascrivi</translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation>Trasferimento</translation>
    </message>
    <message>
        <source>Files are being copied. Cancel that and close?</source>
        <translation>Copia di file in corso. Annullarla e chiudere?</translation>
    </message>
    <message>
        <source>What has been copied so far stays.</source>
        <translation>I file già copiati verranno mantenuti.</translation>
    </message>
    <message>
        <source>Cancel and close</source>
        <translation>Annulla e chiudi</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Continua</translation>
    </message>
</context>
<context>
    <name>FwLogView</name>
    <message>
        <source>All levels</source>
        <translation>Tutti i livelli</translation>
    </message>
    <message>
        <source>From info</source>
        <translation>Da info in su</translation>
    </message>
    <message>
        <source>From warning</source>
        <translation>Da avviso in su</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Errori</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>Tutte le categorie</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Livello</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoria</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Svuota</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
</context>
<context>
    <name>FwNavigationButton</name>
    <message>
        <source>Previous window</source>
        <translation>Finestra precedente</translation>
    </message>
    <message>
        <source>Next window</source>
        <translation>Finestra successiva</translation>
    </message>
</context>
<context>
    <name>HelpBrowser</name>
    <message>
        <source>Only pages on this instrument can be shown here.</source>
        <translation>Qui è possibile visualizzare solo pagine presenti su questo strumento.</translation>
    </message>
    <message>
        <source>The help page is missing, or can not be read.</source>
        <translation>La pagina della guida manca o non può essere letta.</translation>
    </message>
    <message>
        <source>This page can not be shown</source>
        <translation>Impossibile visualizzare questa pagina</translation>
    </message>
</context>
<context>
    <name>LampSign</name>
    <message>
        <source>On</source>
        <translation>Acceso</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Spento</translation>
    </message>
    <message>
        <source>Indicator: %1</source>
        <translation>Indicatore: %1</translation>
    </message>
</context>
<context>
    <name>LocalFileCopy</name>
    <message>
        <source>it is no file any more</source>
        <translation>non è più un file</translation>
    </message>
    <message>
        <source>it cannot be read: %1</source>
        <translation>impossibile leggerlo: %1</translation>
    </message>
    <message>
        <source>it cannot be written: %1</source>
        <translation>impossibile scriverlo: %1</translation>
    </message>
</context>
<context>
    <name>LocalHelperThread</name>
    <message>
        <source>Cancelled.</source>
        <translation>Annullato.</translation>
    </message>
    <message>
        <source>Files are being copied, moved or deleted already.</source>
        <translation>È già in corso la copia, lo spostamento o l&apos;eliminazione di file.</translation>
    </message>
    <message>
        <source>There is an entry of that name already.</source>
        <translation>Esiste già un elemento con questo nome.</translation>
    </message>
    <message>
        <source>This can&apos;t be done with this folder, or not at this place.</source>
        <translation>Operazione non consentita con questa cartella o in questa posizione.</translation>
    </message>
    <message>
        <source>This is neither a file nor a folder nor a link, and can&apos;t be copied.</source>
        <translation>Non è un file, una cartella o un collegamento e non può essere copiato.</translation>
    </message>
    <message>
        <source>It is in use.</source>
        <translation>È in uso.</translation>
    </message>
    <message>
        <source>Nothing may be changed here.</source>
        <translation>Qui non è consentita alcuna modifica.</translation>
    </message>
</context>
<context>
    <name>LocalSource</name>
    <message>
        <source>it is not there</source>
        <translation>non è presente</translation>
    </message>
    <message>
        <source>this folder cannot be read</source>
        <translation>impossibile leggere questa cartella</translation>
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
        <translation>impossibile creare la cartella %1: %2</translation>
    </message>
    <message>
        <source>%1 was changed while it was written</source>
        <translation>%1 è stato modificato durante la scrittura</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>impossibile rimuovere %1: %2</translation>
    </message>
    <message>
        <source>%1 cannot be flushed to the medium: %2</source>
        <translation>impossibile completare la scrittura di %1 sul supporto: %2</translation>
    </message>
</context>
<context>
    <name>NameField</name>
    <message>
        <source>File name</source>
        <translation>Nome file</translation>
    </message>
</context>
<context>
    <name>NumericField</name>
    <message>
        <source>Whole numbers only</source>
        <translation>Solo numeri interi</translation>
    </message>
    <message>
        <source>No negative values</source>
        <translation>Nessun valore negativo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no digit here</source>
        <translation>&quot;%1&quot; qui non è una cifra valida</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>Inserire un numero</translation>
    </message>
    <message>
        <source>Digits after the point: %1 at most</source>
        <translation>Cifre decimali: al massimo %1</translation>
    </message>
    <message>
        <source>Not a number in the range</source>
        <translation>Numero non compreso nell&apos;intervallo</translation>
    </message>
    <message>
        <source>The largest value is %1</source>
        <translation>Il valore massimo è %1</translation>
    </message>
    <message>
        <source>The smallest value is %1</source>
        <translation>Il valore minimo è %1</translation>
    </message>
</context>
<context>
    <name>NumpadKeys</name>
    <message>
        <source>Without a prefix</source>
        <translation>Senza prefisso</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Svuota</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>Cursore a sinistra</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>Cursore a destra</translation>
    </message>
    <message>
        <source>Change the sign</source>
        <translation>Cambia segno</translation>
    </message>
    <message>
        <source>Decimal point</source>
        <translation>Punto decimale</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Min</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimo</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Massimo</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predefinito</translation>
    </message>
</context>
<context>
    <name>NumpadPanel</name>
    <message>
        <source>Value: %1</source>
        <translation>Valore: %1</translation>
    </message>
    <message>
        <source>Range: %1 to %2</source>
        <translation>Intervallo: da %1 a %2</translation>
    </message>
    <message>
        <source>Step: %1</source>
        <translation>Passo: %1</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Immissione</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Edit digits</source>
        <translation>Modifica cifre</translation>
    </message>
    <message>
        <source>Display password</source>
        <translation>Mostra password</translation>
    </message>
    <message>
        <source>Disable password protection</source>
        <translation>Disattiva protezione con password</translation>
    </message>
</context>
<context>
    <name>QLrudDialog</name>
    <message>
        <source>Up</source>
        <translation>Su</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Giù</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sinistra</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Destra</translation>
    </message>
    <message>
        <source>Keypad</source>
        <translation>Tastierino</translation>
    </message>
    <message>
        <source>Move keys up</source>
        <translation>Sposta i tasti in alto</translation>
    </message>
    <message>
        <source>Move keys down</source>
        <translation>Sposta i tasti in basso</translation>
    </message>
</context>
<context>
    <name>QvexDialogBorder</name>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Sposta in alto</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Sposta in basso</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Sposta a sinistra</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Sposta a destra</translation>
    </message>
</context>
<context>
    <name>QvexFileMover</name>
    <message>
        <source>%1 was not carried: %2</source>
        <translation>%1 non è stato trasferito: %2</translation>
    </message>
    <message>
        <source>%1 was not carried: an unknown exception</source>
        <translation>%1 non è stato trasferito: eccezione sconosciuta</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>%1 exists on the instrument</source>
        <translation>%1 esiste già sullo strumento</translation>
    </message>
    <message>
        <source>the instrument cannot write %1</source>
        <translation>lo strumento non può scrivere %1</translation>
    </message>
    <message>
        <source>the instrument could not store what was sent of %1</source>
        <translation>lo strumento non ha potuto memorizzare i dati inviati di %1</translation>
    </message>
    <message>
        <source>the destination has appeared on the instrument meanwhile</source>
        <translation>nel frattempo la destinazione è comparsa sullo strumento</translation>
    </message>
    <message>
        <source>the instrument could not store the file</source>
        <translation>lo strumento non ha potuto memorizzare il file</translation>
    </message>
    <message>
        <source>%1 has shrunk while it was read</source>
        <translation>%1 si è ridotto durante la lettura</translation>
    </message>
    <message>
        <source>aborted after %1 bytes</source>
        <translation>interrotto dopo %1 byte</translation>
    </message>
    <message>
        <source>the instrument cannot read %1</source>
        <translation>lo strumento non può leggere %1</translation>
    </message>
    <message>
        <source>%1 exists</source>
        <translation>%1 esiste già</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>impossibile rimuovere %1: %2</translation>
    </message>
    <message>
        <source>the folder of %1 cannot be made</source>
        <translation>impossibile creare la cartella di %1</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>the instrument could not read the file to its end</source>
        <translation>lo strumento non ha potuto leggere il file fino alla fine</translation>
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
        <translation>Apri</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Non salvare</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reimposta</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Ripristina predefiniti</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Salva tutto</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>Yes to All</source>
        <translation>Sì a tutti</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>No to All</source>
        <translation>No a tutti</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Interrompi</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignora</translation>
    </message>
    <message>
        <source>Hide Details</source>
        <translation>Nascondi dettagli</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Mostra dettagli</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informazione</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Domanda</translation>
    </message>
</context>
<context>
    <name>QvexNumpadDlg</name>
    <message>
        <source>The value stays as it is</source>
        <translation>Il valore resta invariato</translation>
    </message>
    <message>
        <source>%1; or choose a unit</source>
        <translation>%1; oppure scegliere un&apos;unità</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>Inserire un numero</translation>
    </message>
</context>
<context>
    <name>QvexPasswordPopup</name>
    <message>
        <source>Password Protection</source>
        <translation>Protezione con password</translation>
    </message>
    <message>
        <source>Password Does Not Match.
Please Type Correct Password!</source>
        <translation>La password non corrisponde.
Digitare la password corretta.</translation>
    </message>
</context>
<context>
    <name>QvexRemoteFileModel</name>
    <message>
        <source>It was cancelled.</source>
        <translation>Operazione annullata.</translation>
    </message>
    <message>
        <source>Another operation is still running.</source>
        <translation>Un&apos;altra operazione è ancora in corso.</translation>
    </message>
    <message>
        <source>The link to the instrument was lost; it is not known whether it was done.</source>
        <translation>La connessione con lo strumento si è interrotta; non è noto se l&apos;operazione sia stata eseguita.</translation>
    </message>
    <message>
        <source>Its name can&apos;t be used.</source>
        <translation>Il nome non può essere usato.</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Strumento</translation>
    </message>
    <message>
        <source>Instrument (%1)</source>
        <translation>Strumento (%1)</translation>
    </message>
    <message>
        <source>Internal</source>
        <translatorcomment>Never shown: compared with the name of a directory on the instrument.</translatorcomment>
        <translation>Internal</translation>
    </message>
    <message>
        <source>Remote</source>
        <translatorcomment>Never shown: compared with the name of a directory on the instrument.</translatorcomment>
        <translation>Remote</translation>
    </message>
    <message>
        <source>It is not there any more.</source>
        <translation>Non esiste più.</translation>
    </message>
    <message>
        <source>There is no permission for it.</source>
        <translation>Autorizzazione mancante.</translation>
    </message>
    <message>
        <source>Something of that name is there already.</source>
        <translation>Esiste già un elemento con questo nome.</translation>
    </message>
    <message>
        <source>A folder can&apos;t be put into itself.</source>
        <translation>Una cartella non può essere inserita in sé stessa.</translation>
    </message>
    <message>
        <source>The instrument&apos;s storage is full.</source>
        <translation>La memoria dello strumento è piena.</translation>
    </message>
    <message>
        <source>The instrument reported error %1.</source>
        <translation>Lo strumento ha segnalato l&apos;errore %1.</translation>
    </message>
    <message>
        <source>No folder could be made here: it may be protected.</source>
        <translation>Impossibile creare una cartella qui: forse la posizione è protetta.</translation>
    </message>
</context>
<context>
    <name>QvextHelpDialog</name>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pagina iniziale</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>Pagina della guida</translation>
    </message>
</context>
<context>
    <name>RemoteSource</name>
    <message>
        <source>it is not there</source>
        <translation>non è presente</translation>
    </message>
</context>
<context>
    <name>RemoteTarget</name>
    <message>
        <source>the instrument cannot replace %1</source>
        <translation>lo strumento non può sostituire %1</translation>
    </message>
    <message>
        <source>%1; the old file may be called %2 now</source>
        <translation>%1; il file precedente potrebbe ora chiamarsi %2</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Close panel</source>
        <translation>Chiudi pannello</translation>
    </message>
</context>
<context>
    <name>SplashLines</name>
    <message>
        <source>Start-up messages</source>
        <translation>Messaggi di avvio</translation>
    </message>
</context>
<context>
    <name>StatusStrip</name>
    <message>
        <source>Stop</source>
        <translation>Arresta</translation>
    </message>
    <message>
        <source>Stop what is under way</source>
        <translation>Arresta l&apos;operazione in corso</translation>
    </message>
</context>
<context>
    <name>TransferPanel</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>Progress of the transfer</source>
        <translation>Avanzamento del trasferimento</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Cancel the transfer</source>
        <translation>Annulla il trasferimento</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Annullamento…</translation>
    </message>
</context>
<context>
    <name>TransferView</name>
    <message>
        <source>&quot;%1&quot; can&apos;t be copied into itself.</source>
        <translation>&quot;%1&quot; non può essere copiato in sé stesso.</translation>
    </message>
    <message>
        <source>Both sides show the same folder.</source>
        <translation>Entrambi i lati mostrano la stessa cartella.</translation>
    </message>
    <message>
        <source>Copy to the right side</source>
        <translation>Copia sul lato destro</translation>
    </message>
    <message>
        <source>Copy to the left side</source>
        <translation>Copia sul lato sinistro</translation>
    </message>
    <message>
        <source>To %1:</source>
        <translation>Verso %1:</translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation>Trasferimento</translation>
    </message>
</context>
<context>
    <name>UnitPrefix</name>
    <message>
        <source>Enter a number before the unit</source>
        <translation>Inserire un numero prima dell&apos;unità</translation>
    </message>
    <message>
        <source>Too many digits for this unit</source>
        <translation>Troppe cifre per questa unità</translation>
    </message>
</context>
<context>
    <name>VerdictSign</name>
    <message>
        <source>No result</source>
        <translation>Nessun risultato</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>Superato</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Fallito</translation>
    </message>
    <message>
        <source>See results</source>
        <translation>Vedi risultati</translation>
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
        <translation>registrato presso %1:%2 come client %3</translation>
    </message>
    <message>
        <source>the controller answers again</source>
        <translation>il controller risponde di nuovo</translation>
    </message>
    <message>
        <source>connecting to %1:%2, attempt %3</source>
        <translation>connessione a %1:%2, tentativo %3</translation>
    </message>
    <message>
        <source>no answer for %1 ms</source>
        <translation>nessuna risposta da %1 ms</translation>
    </message>
    <message>
        <source>no longer watched</source>
        <translation>sorveglianza terminata</translation>
    </message>
</context>
</TS>
