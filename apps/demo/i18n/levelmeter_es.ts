<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ControlButtons</name>
    <message>
        <source>Autosave: on</source>
        <translation>Guardado automático: sí</translation>
    </message>
    <message>
        <source>Autosave: off</source>
        <translation>Guardado automático: no</translation>
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
        <translation>Eventos</translation>
    </message>
</context>
<context>
    <name>Framework</name>
    <message>
        <source>The level meter runs alone: there is no other application.</source>
        <translation>El medidor de nivel funciona solo: no hay otra aplicación.</translation>
    </message>
    <message>
        <source>A run is under way. Stop it and close?</source>
        <translation>Hay una medición en curso. ¿Detenerla y cerrar?</translation>
    </message>
    <message>
        <source>The last result was not saved. Close all the same?</source>
        <translation>El último resultado no se ha guardado. ¿Cerrar de todos modos?</translation>
    </message>
    <message>
        <source>Close the level meter</source>
        <translation>Cerrar el medidor de nivel</translation>
    </message>
</context>
<context>
    <name>LinkPanel</name>
    <message>
        <source>Link up</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Link slow</source>
        <translation>Conexión lenta</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Conectando</translation>
    </message>
    <message>
        <source>Link lost</source>
        <translation>Conexión perdida</translation>
    </message>
    <message>
        <source>No link</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>Try again now</source>
        <translation>Reintentar ahora</translation>
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
        <translation>El registro no se guarda en un archivo.</translation>
    </message>
    <message>
        <source>The log is kept in %1</source>
        <translation>El registro está en %1</translation>
    </message>
</context>
<context>
    <name>Meter</name>
    <message>
        <source>The instrument does not say whether its test has ended.</source>
        <translation>El instrumento no indica si su prueba ha terminado.</translation>
    </message>
    <message>
        <source>Stopped without a link; the instrument&apos;s test is ended when the link is back.</source>
        <translation>Detenido sin conexión; la prueba del instrumento terminará cuando vuelva la conexión.</translation>
    </message>
    <message>
        <source>The instrument refused to launch its test &quot;%1&quot;.</source>
        <translation>El instrumento rechazó iniciar su prueba «%1».</translation>
    </message>
    <message>
        <source>The link was lost before the test ran: %1</source>
        <translation>Conexión perdida antes de iniciarse la prueba: %1</translation>
    </message>
    <message>
        <source>Link lost: %1</source>
        <translation>Conexión perdida: %1</translation>
    </message>
    <message>
        <source>The link was lost while the test ended.</source>
        <translation>La conexión se perdió mientras terminaba la prueba.</translation>
    </message>
    <message>
        <source>The instrument&apos;s test runs.</source>
        <translation>La prueba del instrumento está en marcha.</translation>
    </message>
    <message>
        <source>The link is back, the run goes on.</source>
        <translation>La conexión ha vuelto, la medición continúa.</translation>
    </message>
    <message>
        <source>Level below the threshold: %1 dBm</source>
        <translation>Nivel por debajo del umbral: %1 dBm</translation>
    </message>
    <message>
        <source>Level back above the threshold</source>
        <translation>Nivel de nuevo por encima del umbral</translation>
    </message>
    <message>
        <source>The test ended before it ran.</source>
        <translation>La prueba terminó antes de ponerse en marcha.</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenido</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Completo</translation>
    </message>
    <message>
        <source>The link is back, but the instrument&apos;s test has ended.</source>
        <translation>La conexión ha vuelto, pero la prueba del instrumento ha terminado.</translation>
    </message>
    <message>
        <source>The instrument has ended its test before the time was over.</source>
        <translation>El instrumento terminó su prueba antes de tiempo.</translation>
    </message>
</context>
<context>
    <name>MeterWindow</name>
    <message>
        <source>Measuring</source>
        <translation>Midiendo</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Level meter</source>
        <translation>Medidor de nivel</translation>
    </message>
</context>
<context>
    <name>PlotPanel</name>
    <message>
        <source>Zoom in</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>No markers</source>
        <translation>Sin marcas</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>Marcas</translation>
    </message>
    <message>
        <source>Tap the trace to set a marker.</source>
        <translation>Toque la curva para poner una marca.</translation>
    </message>
</context>
<context>
    <name>ResultFiles</name>
    <message>
        <source>Save the result</source>
        <translation>Guardar el resultado</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Guardado como %1</translation>
    </message>
    <message>
        <source>Result File Browser</source>
        <translation>Archivos de resultados</translation>
    </message>
    <message>
        <source>%1 is on the instrument now</source>
        <translation>%1 está ahora en el instrumento</translation>
    </message>
    <message>
        <source>%1 did not get to the instrument: %2</source>
        <translation>%1 no llegó al instrumento: %2</translation>
    </message>
    <message>
        <source>Files of the instrument</source>
        <translation>Archivos del instrumento</translation>
    </message>
    <message>
        <source>Delete %1? It can&apos;t be brought back.</source>
        <translation>¿Eliminar %1? No se podrá recuperar.</translation>
    </message>
    <message>
        <source>Delete a result</source>
        <translation>Eliminar un resultado</translation>
    </message>
    <message>
        <source>%1 can&apos;t be deleted.</source>
        <translation>No se puede eliminar %1.</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Choose a result at the left.</source>
        <translation>Elija un resultado a la izquierda.</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Medido</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Final</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>Nivel mínimo</translation>
    </message>
    <message>
        <source>Highest level</source>
        <translation>Nivel máximo</translation>
    </message>
    <message>
        <source>Mean power</source>
        <translation>Potencia media</translation>
    </message>
    <message>
        <source>Bit errors</source>
        <translation>Errores de bit</translation>
    </message>
    <message>
        <source>Error ratio</source>
        <translation>Tasa de error</translation>
    </message>
    <message>
        <source>Lowest level allowed</source>
        <translation>Nivel mínimo admitido</translation>
    </message>
    <message>
        <source>Error ratio allowed</source>
        <translation>Tasa de error admitida</translation>
    </message>
    <message>
        <source>Optical frequency</source>
        <translation>Frecuencia óptica</translation>
    </message>
    <message>
        <source>%1 THz</source>
        <translation>%1 THz</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Tasa de bits</translation>
    </message>
    <message>
        <source>%1 Gbit/s</source>
        <translation>%1 Gbit/s</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Instrumento</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>Puertos</translation>
    </message>
    <message>
        <source>Saved results</source>
        <translation>Resultados guardados</translation>
    </message>
    <message>
        <source>Nothing was saved yet. A run that is over is saved in the test window.</source>
        <translation>Aún no hay nada guardado. Una medición terminada se guarda en la ventana de prueba.</translation>
    </message>
    <message>
        <source>Figures of the result</source>
        <translation>Valores del resultado</translation>
    </message>
    <message>
        <source>Open another file</source>
        <translation>Abrir otro archivo</translation>
    </message>
    <message>
        <source>Upload to instrument</source>
        <translation>Enviar al instrumento</translation>
    </message>
    <message>
        <source>Progress of the upload</source>
        <translation>Progreso del envío</translation>
    </message>
    <message>
        <source>Files of instrument</source>
        <translation>Archivos del instrumento</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>RunFile</name>
    <message>
        <source>%1 can&apos;t be written: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>No se puede leer %1: %2</translation>
    </message>
    <message>
        <source>%1 is larger than %2 MiB.</source>
        <translation>%1 supera los %2 MiB.</translation>
    </message>
    <message>
        <source>%1 is no run of the level meter: %2</source>
        <translation>%1 no es una medición del medidor de nivel: %2</translation>
    </message>
</context>
<context>
    <name>RunReader</name>
    <message>
        <source>it does not begin as XML does</source>
        <translation>no comienza como XML</translation>
    </message>
    <message>
        <source>a tag in it is too long</source>
        <translation>contiene una etiqueta demasiado larga</translation>
    </message>
    <message>
        <source>another application has written it</source>
        <translation>lo escribió otra aplicación</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>it has no document type VEX</source>
        <translation>no tiene el tipo de documento VEX</translation>
    </message>
    <message>
        <source>it declares entities</source>
        <translation>declara entidades</translation>
    </message>
    <message>
        <source>line %1: unknown element %2</source>
        <translation>línea %1: elemento desconocido %2</translation>
    </message>
    <message>
        <source>its settings come after its samples</source>
        <translation>sus ajustes van después de sus muestras</translation>
    </message>
    <message>
        <source>it has too many events</source>
        <translation>tiene demasiados eventos</translation>
    </message>
    <message>
        <source>it has too many samples</source>
        <translation>tiene demasiadas muestras</translation>
    </message>
    <message>
        <source>line %1: the samples are not in order</source>
        <translation>línea %1: las muestras no están en orden</translation>
    </message>
    <message>
        <source>line %1: expected a number from %2 to %3, found &apos;%4&apos;</source>
        <translation>línea %1: se esperaba un número de %2 a %3, se halló «%4»</translation>
    </message>
</context>
<context>
    <name>SetupPage</name>
    <message>
        <source>Test at the instrument</source>
        <translation>Prueba del instrumento</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>What is measured, and its limits</source>
        <translation>Medición y límites</translation>
    </message>
    <message>
        <source>Pattern that is sent, 32 bits</source>
        <translation>Patrón emitido, 32 bits</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>Hexadecimal</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Binario</translation>
    </message>
    <message>
        <source>PAM4 symbols</source>
        <translation>Símbolos PAM4</translation>
    </message>
    <message>
        <source>The three fields show the same pattern: each follows the others.</source>
        <translation>Los tres campos muestran el mismo patrón: cada uno sigue a los otros.</translation>
    </message>
    <message>
        <source>A run is under way. It can be stopped in the test window.</source>
        <translation>Hay una medición en curso. Puede detenerse en la ventana de prueba.</translation>
    </message>
    <message>
        <source>Light colours</source>
        <translation>Colores claros</translation>
    </message>
    <message>
        <source>Dark colours</source>
        <translation>Colores oscuros</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Standard values</source>
        <translation>Valores estándar</translation>
    </message>
    <message>
        <source>Start the test</source>
        <translation>Iniciar prueba</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>Optical frequency</source>
        <translation>Frecuencia óptica</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Tasa de bits</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>Nivel mínimo</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Samples per second</source>
        <translation>Muestras por segundo</translation>
    </message>
    <message>
        <source>Error ratio limit, power of 10</source>
        <translation>Límite de error, potencia de 10</translation>
    </message>
</context>
<context>
    <name>TestPage</name>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>Save result</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>The instrument launches its test &quot;%1&quot; ...</source>
        <translation>El instrumento inicia su prueba «%1» ...</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>Midiendo</translation>
    </message>
    <message>
        <source>The link is lost. The run goes on when it is back.</source>
        <translation>Se perdió la conexión. La medición seguirá cuando vuelva.</translation>
    </message>
    <message>
        <source>The instrument ends its test ...</source>
        <translation>El instrumento termina su prueba ...</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>No link to the instrument, so no test can be started.</source>
        <translation>Sin conexión con el instrumento no se puede iniciar ninguna prueba.</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>Interrumpido</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En curso</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Level now</source>
        <translation>Nivel actual</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>Nivel mínimo</translation>
    </message>
    <message>
        <source>Mean power</source>
        <translation>Potencia media</translation>
    </message>
    <message>
        <source>Bit errors</source>
        <translation>Errores de bit</translation>
    </message>
    <message>
        <source>Error ratio</source>
        <translation>Tasa de error</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Progreso de la medición</translation>
    </message>
</context>
<context>
    <name>TracePlot</name>
    <message>
        <source>Trace of the level over time</source>
        <translation>Curva del nivel en el tiempo</translation>
    </message>
    <message>
        <source>Time in s</source>
        <translation>Tiempo en s</translation>
    </message>
    <message>
        <source>Level in dBm</source>
        <translation>Nivel en dBm</translation>
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
        <translation>sin conexión</translation>
    </message>
    <message>
        <source>Threshold %1 dBm</source>
        <translation>Umbral %1 dBm</translation>
    </message>
</context>
<context>
    <name>Wording</name>
    <message>
        <source>PASS</source>
        <translation>PASA</translation>
    </message>
    <message>
        <source>FAIL</source>
        <translation>FALLA</translation>
    </message>
    <message>
        <source>No verdict</source>
        <translation>Sin veredicto</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Completo</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenido</translation>
    </message>
    <message>
        <source>Ended by the instrument</source>
        <translation>Terminado por el instrumento</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>No iniciado</translation>
    </message>
    <message>
        <source>The instrument did not answer in time.</source>
        <translation>El instrumento no respondió a tiempo.</translation>
    </message>
    <message>
        <source>The connection broke.</source>
        <translation>La conexión se interrumpió.</translation>
    </message>
    <message>
        <source>Nothing answers at that address.</source>
        <translation>Nada responde en esa dirección.</translation>
    </message>
    <message>
        <source>The connection was closed.</source>
        <translation>La conexión se cerró.</translation>
    </message>
    <message>
        <source>There is no instrument there.</source>
        <translation>Ahí no hay ningún instrumento.</translation>
    </message>
</context>
</TS>
