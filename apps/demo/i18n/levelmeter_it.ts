<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>ControlButtons</name>
    <message>
        <source>Autosave: on</source>
        <translation>Salvataggio automatico: sì</translation>
    </message>
    <message>
        <source>Autosave: off</source>
        <translation>Salvataggio automatico: no</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
</context>
<context>
    <name>EventList</name>
    <message>
        <source>Events</source>
        <translation>Eventi</translation>
    </message>
</context>
<context>
    <name>Framework</name>
    <message>
        <source>The level meter runs alone: there is no other application.</source>
        <translation>Il misuratore di livello è solo: non ci sono altre applicazioni.</translation>
    </message>
    <message>
        <source>A run is under way. Stop it and close?</source>
        <translation>È in corso una misura. Arrestarla e chiudere?</translation>
    </message>
    <message>
        <source>The last result was not saved. Close all the same?</source>
        <translation>L&apos;ultimo risultato non è stato salvato. Chiudere comunque?</translation>
    </message>
    <message>
        <source>Close the level meter</source>
        <translation>Chiudi il misuratore di livello</translation>
    </message>
</context>
<context>
    <name>LinkPanel</name>
    <message>
        <source>Link up</source>
        <translation>Collegato</translation>
    </message>
    <message>
        <source>Link slow</source>
        <translation>Collegamento lento</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Connessione</translation>
    </message>
    <message>
        <source>Link lost</source>
        <translation>Collegamento perso</translation>
    </message>
    <message>
        <source>No link</source>
        <translation>Nessun collegamento</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Collegamento</translation>
    </message>
    <message>
        <source>Try again now</source>
        <translation>Riprova ora</translation>
    </message>
</context>
<context>
    <name>LogPanel</name>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>The log is not kept in a file.</source>
        <translation>Il registro non è salvato in un file.</translation>
    </message>
    <message>
        <source>The log is kept in %1</source>
        <translation>Il registro si trova in %1</translation>
    </message>
</context>
<context>
    <name>Meter</name>
    <message>
        <source>The instrument does not say whether its test has ended.</source>
        <translation>Lo strumento non indica se il suo test è terminato.</translation>
    </message>
    <message>
        <source>Stopped without a link; the instrument&apos;s test is ended when the link is back.</source>
        <translation>Arrestato senza collegamento; il test dello strumento sarà terminato al ritorno del collegamento.</translation>
    </message>
    <message>
        <source>The instrument refused to launch its test &quot;%1&quot;.</source>
        <translation>Lo strumento ha rifiutato di avviare il test &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The link was lost before the test ran: %1</source>
        <translation>Collegamento perso prima dell&apos;avvio del test: %1</translation>
    </message>
    <message>
        <source>Link lost: %1</source>
        <translation>Collegamento perso: %1</translation>
    </message>
    <message>
        <source>The link was lost while the test ended.</source>
        <translation>Il collegamento è stato perso durante la fine del test.</translation>
    </message>
    <message>
        <source>The instrument&apos;s test runs.</source>
        <translation>Il test dello strumento è in corso.</translation>
    </message>
    <message>
        <source>The link is back, the run goes on.</source>
        <translation>Il collegamento è tornato, la misura prosegue.</translation>
    </message>
    <message>
        <source>Level below the threshold: %1 dBm</source>
        <translation>Livello sotto la soglia: %1 dBm</translation>
    </message>
    <message>
        <source>Level back above the threshold</source>
        <translation>Livello di nuovo sopra la soglia</translation>
    </message>
    <message>
        <source>The test ended before it ran.</source>
        <translation>Il test è terminato prima di essere avviato.</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrestato</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Completato</translation>
    </message>
    <message>
        <source>The link is back, but the instrument&apos;s test has ended.</source>
        <translation>Il collegamento è tornato, ma il test dello strumento è terminato.</translation>
    </message>
    <message>
        <source>The instrument has ended its test before the time was over.</source>
        <translation>Lo strumento ha terminato il test prima del tempo.</translation>
    </message>
</context>
<context>
    <name>MeterWindow</name>
    <message>
        <source>Measuring</source>
        <translation>Misura in corso</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Level meter</source>
        <translation>Misuratore di livello</translation>
    </message>
</context>
<context>
    <name>PlotPanel</name>
    <message>
        <source>Zoom in</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Adatta</translation>
    </message>
    <message>
        <source>No markers</source>
        <translation>Senza marker</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>Marker</translation>
    </message>
    <message>
        <source>Tap the trace to set a marker.</source>
        <translation>Toccare la traccia per porre un marker.</translation>
    </message>
</context>
<context>
    <name>ResultFiles</name>
    <message>
        <source>Save the result</source>
        <translation>Salva il risultato</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Salvato come %1</translation>
    </message>
    <message>
        <source>Result File Browser</source>
        <translation>File dei risultati</translation>
    </message>
    <message>
        <source>%1 is on the instrument now</source>
        <translation>%1 è ora sullo strumento</translation>
    </message>
    <message>
        <source>%1 did not get to the instrument: %2</source>
        <translation>%1 non è arrivato allo strumento: %2</translation>
    </message>
    <message>
        <source>Files of the instrument</source>
        <translation>File dello strumento</translation>
    </message>
    <message>
        <source>Delete %1? It can&apos;t be brought back.</source>
        <translation>Eliminare %1? Non sarà recuperabile.</translation>
    </message>
    <message>
        <source>Delete a result</source>
        <translation>Elimina un risultato</translation>
    </message>
    <message>
        <source>%1 can&apos;t be deleted.</source>
        <translation>Impossibile eliminare %1.</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Risultati</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Choose a result at the left.</source>
        <translation>Scegliere un risultato a sinistra.</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Misurato</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>Livello minimo</translation>
    </message>
    <message>
        <source>Highest level</source>
        <translation>Livello massimo</translation>
    </message>
    <message>
        <source>Mean power</source>
        <translation>Potenza media</translation>
    </message>
    <message>
        <source>Bit errors</source>
        <translation>Errori di bit</translation>
    </message>
    <message>
        <source>Error ratio</source>
        <translation>Tasso di errore</translation>
    </message>
    <message>
        <source>Lowest level allowed</source>
        <translation>Livello minimo ammesso</translation>
    </message>
    <message>
        <source>Error ratio allowed</source>
        <translation>Tasso di errore ammesso</translation>
    </message>
    <message>
        <source>Optical frequency</source>
        <translation>Frequenza ottica</translation>
    </message>
    <message>
        <source>%1 THz</source>
        <translation>%1 THz</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Bit rate</translation>
    </message>
    <message>
        <source>%1 Gbit/s</source>
        <translation>%1 Gbit/s</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Strumento</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>Porte</translation>
    </message>
    <message>
        <source>Saved results</source>
        <translation>Risultati salvati</translation>
    </message>
    <message>
        <source>Nothing was saved yet. A run that is over is saved in the test window.</source>
        <translation>Ancora nulla di salvato. Una misura terminata si salva nella finestra del test.</translation>
    </message>
    <message>
        <source>Figures of the result</source>
        <translation>Valori del risultato</translation>
    </message>
    <message>
        <source>Open another file</source>
        <translation>Apri un altro file</translation>
    </message>
    <message>
        <source>Upload to instrument</source>
        <translation>Invia allo strumento</translation>
    </message>
    <message>
        <source>Progress of the upload</source>
        <translation>Avanzamento dell&apos;invio</translation>
    </message>
    <message>
        <source>Files of instrument</source>
        <translation>File dello strumento</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
</context>
<context>
    <name>RunFile</name>
    <message>
        <source>%1 can&apos;t be written: %2</source>
        <translation>Impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>Impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>%1 is larger than %2 MiB.</source>
        <translation>%1 supera %2 MiB.</translation>
    </message>
    <message>
        <source>%1 is no run of the level meter: %2</source>
        <translation>%1 non è una misura del misuratore di livello: %2</translation>
    </message>
</context>
<context>
    <name>RunReader</name>
    <message>
        <source>it does not begin as XML does</source>
        <translation>non inizia come XML</translation>
    </message>
    <message>
        <source>a tag in it is too long</source>
        <translation>contiene un tag troppo lungo</translation>
    </message>
    <message>
        <source>another application has written it</source>
        <translation>è stato scritto da un&apos;altra applicazione</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>riga %1: %2</translation>
    </message>
    <message>
        <source>it has no document type VEX</source>
        <translation>non ha il tipo di documento VEX</translation>
    </message>
    <message>
        <source>it declares entities</source>
        <translation>dichiara entità</translation>
    </message>
    <message>
        <source>line %1: unknown element %2</source>
        <translation>riga %1: elemento sconosciuto %2</translation>
    </message>
    <message>
        <source>its settings come after its samples</source>
        <translation>le impostazioni seguono i campioni</translation>
    </message>
    <message>
        <source>it has too many events</source>
        <translation>ha troppi eventi</translation>
    </message>
    <message>
        <source>it has too many samples</source>
        <translation>ha troppi campioni</translation>
    </message>
    <message>
        <source>line %1: the samples are not in order</source>
        <translation>riga %1: i campioni non sono in ordine</translation>
    </message>
    <message>
        <source>line %1: expected a number from %2 to %3, found &apos;%4&apos;</source>
        <translation>riga %1: atteso un numero da %2 a %3, trovato &apos;%4&apos;</translation>
    </message>
</context>
<context>
    <name>SetupPage</name>
    <message>
        <source>Test at the instrument</source>
        <translation>Test dello strumento</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>What is measured, and its limits</source>
        <translation>Misura e limiti</translation>
    </message>
    <message>
        <source>Pattern that is sent, 32 bits</source>
        <translation>Sequenza inviata, 32 bit</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>Esadecimale</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Binario</translation>
    </message>
    <message>
        <source>PAM4 symbols</source>
        <translation>Simboli PAM4</translation>
    </message>
    <message>
        <source>The three fields show the same pattern: each follows the others.</source>
        <translation>I tre campi mostrano la stessa sequenza: ognuno segue gli altri.</translation>
    </message>
    <message>
        <source>A run is under way. It can be stopped in the test window.</source>
        <translation>È in corso una misura. Si può arrestare nella finestra del test.</translation>
    </message>
    <message>
        <source>Light colours</source>
        <translation>Colori chiari</translation>
    </message>
    <message>
        <source>Dark colours</source>
        <translation>Colori scuri</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Standard values</source>
        <translation>Valori standard</translation>
    </message>
    <message>
        <source>Start the test</source>
        <translation>Avvia il test</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>Optical frequency</source>
        <translation>Frequenza ottica</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Bit rate</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>Livello minimo</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Samples per second</source>
        <translation>Campioni al secondo</translation>
    </message>
    <message>
        <source>Error ratio limit, power of 10</source>
        <translation>Limite di errore, potenza di 10</translation>
    </message>
</context>
<context>
    <name>TestPage</name>
    <message>
        <source>Stop</source>
        <translation>Arresta</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Salvato</translation>
    </message>
    <message>
        <source>Save result</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>The instrument launches its test &quot;%1&quot; ...</source>
        <translation>Lo strumento avvia il test &quot;%1&quot; ...</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>Misura in corso</translation>
    </message>
    <message>
        <source>The link is lost. The run goes on when it is back.</source>
        <translation>Il collegamento è perso. La misura proseguirà al suo ritorno.</translation>
    </message>
    <message>
        <source>The instrument ends its test ...</source>
        <translation>Lo strumento termina il test ...</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>No link to the instrument, so no test can be started.</source>
        <translation>Senza collegamento allo strumento non si può avviare alcun test.</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>Interrotto</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>In corso</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Level now</source>
        <translation>Livello attuale</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>Livello minimo</translation>
    </message>
    <message>
        <source>Mean power</source>
        <translation>Potenza media</translation>
    </message>
    <message>
        <source>Bit errors</source>
        <translation>Errori di bit</translation>
    </message>
    <message>
        <source>Error ratio</source>
        <translation>Tasso di errore</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Avanzamento della misura</translation>
    </message>
</context>
<context>
    <name>TracePlot</name>
    <message>
        <source>Trace of the level over time</source>
        <translation>Traccia del livello nel tempo</translation>
    </message>
    <message>
        <source>Time in s</source>
        <translation>Tempo in s</translation>
    </message>
    <message>
        <source>Level in dBm</source>
        <translation>Livello in dBm</translation>
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
        <translation>nessun collegamento</translation>
    </message>
    <message>
        <source>Threshold %1 dBm</source>
        <translation>Soglia %1 dBm</translation>
    </message>
</context>
<context>
    <name>Wording</name>
    <message>
        <source>PASS</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>FAIL</source>
        <translation>ERRORE</translation>
    </message>
    <message>
        <source>No verdict</source>
        <translation>Nessun verdetto</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Completato</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrestato</translation>
    </message>
    <message>
        <source>Ended by the instrument</source>
        <translation>Terminato dallo strumento</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>Non avviato</translation>
    </message>
    <message>
        <source>The instrument did not answer in time.</source>
        <translation>Lo strumento non ha risposto in tempo.</translation>
    </message>
    <message>
        <source>The connection broke.</source>
        <translation>La connessione si è interrotta.</translation>
    </message>
    <message>
        <source>Nothing answers at that address.</source>
        <translation>Nulla risponde a quell&apos;indirizzo.</translation>
    </message>
    <message>
        <source>The connection was closed.</source>
        <translation>La connessione è stata chiusa.</translation>
    </message>
    <message>
        <source>There is no instrument there.</source>
        <translation>Non c&apos;è alcuno strumento.</translation>
    </message>
</context>
</TS>
