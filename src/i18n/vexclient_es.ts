<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>AppHelpWidget</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Close help</source>
        <translation>Cerrar ayuda</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>Página de ayuda</translation>
    </message>
</context>
<context>
    <name>AppMiniMissionControlWidget</name>
    <message>
        <source>Panel</source>
        <translation>Panel</translation>
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
        <translation>Puerto: %1</translation>
    </message>
    <message>
        <source>Open mission control</source>
        <translation>Abrir centro de control</translation>
    </message>
    <message>
        <source>Close mission control</source>
        <translation>Cerrar centro de control</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Close application</source>
        <translation>Cerrar aplicación</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Application controls</source>
        <translation>Controles de la aplicación</translation>
    </message>
</context>
<context>
    <name>BreadcrumbBar</name>
    <message>
        <source>Path</source>
        <translation>Ruta</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Abrir %1</translation>
    </message>
</context>
<context>
    <name>ClientGUIBase</name>
    <message>
        <source>SETUP</source>
        <translation>AJUSTES</translation>
    </message>
    <message>
        <source>TEST</source>
        <translation>PRUEBA</translation>
    </message>
    <message>
        <source>RESULT</source>
        <translation>RESULTADO</translation>
    </message>
    <message>
        <source>Result File Browser</source>
        <translation>Archivos de resultados</translation>
    </message>
    <message>
        <source>Application Selector</source>
        <translation>Selector de aplicaciones</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Aplicaciones</translation>
    </message>
</context>
<context>
    <name>ConflictDialog</name>
    <message>
        <source>Do the same with all that follow</source>
        <translation>Hacer lo mismo con todos los siguientes</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>El archivo ya existe</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already.</source>
        <translation>«%1» ya existe.</translation>
    </message>
    <message>
        <source>There now</source>
        <translation>Existente</translation>
    </message>
    <message>
        <source>To be copied</source>
        <translation>Por copiar</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Sobrescribir</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Conservar ambos</translation>
    </message>
    <message>
        <source>Cancel all</source>
        <translation>Cancelar todo</translation>
    </message>
</context>
<context>
    <name>FcpAppCORBA</name>
    <message>
        <source>the link to %1 was given up</source>
        <translation>se abandonó el enlace con %1</translation>
    </message>
</context>
<context>
    <name>FileActionBar</name>
    <message>
        <source>List anew</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nueva carpeta</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>FileItemDelegate</name>
    <message>
        <source>New name</source>
        <translation>Nuevo nombre</translation>
    </message>
</context>
<context>
    <name>FileListView</name>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>this is not the name of a file</source>
        <translation>no es un nombre de archivo</translation>
    </message>
    <message>
        <source>its name holds bytes that are no text</source>
        <translation>su nombre contiene bytes que no son texto</translation>
    </message>
    <message>
        <source>the name is longer than %1 bytes</source>
        <translation>el nombre supera los %1&#xa0;bytes</translation>
    </message>
</context>
<context>
    <name>FileOperations</name>
    <message>
        <source>the instrument</source>
        <translation>el instrumento</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>este ordenador</translation>
    </message>
    <message>
        <source>the medium %1</source>
        <translation>el medio %1</translation>
    </message>
    <message>
        <source>No folder could be made here: it may be protected.</source>
        <translation>No se pudo crear una carpeta aquí: es posible que la ubicación esté protegida.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be renamed to &quot;%2&quot;: the name may be taken.</source>
        <translation>No se puede cambiar el nombre de «%1» a «%2»: es posible que ya esté en uso.</translation>
    </message>
    <message>
        <source>Renamed to &quot;%1&quot;.</source>
        <translation>Nombre cambiado a «%1».</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>What is deleted can&apos;t be brought back.</source>
        <translation>Lo eliminado no se puede recuperar.</translation>
    </message>
    <message>
        <source>Deleting…</source>
        <translation>Eliminando…</translation>
    </message>
    <message>
        <source>Deleted.</source>
        <translation>Eliminación completada.</translation>
    </message>
    <message>
        <source>%1 entries</source>
        <translation>%1 elementos</translation>
    </message>
    <message>
        <source>Open a folder and tap Paste to move %1.</source>
        <translation>Abra una carpeta y toque Pegar para mover %1.</translation>
    </message>
    <message>
        <source>Open a folder and tap Paste to copy %1.</source>
        <translation>Abra una carpeta y toque Pegar para copiar %1.</translation>
    </message>
    <message>
        <source>Moving…</source>
        <translation>Moviendo…</translation>
    </message>
    <message>
        <source>Moved.</source>
        <translation>Traslado completado.</translation>
    </message>
    <message>
        <source>Copying…</source>
        <translation>Copiando…</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>Copia completada.</translation>
    </message>
    <message>
        <source>Making a folder…</source>
        <translation>Creando una carpeta…</translation>
    </message>
    <message>
        <source>Renaming…</source>
        <translation>Cambiando el nombre…</translation>
    </message>
</context>
<context>
    <name>FilePane</name>
    <message>
        <source>Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Search in this folder</source>
        <translation>Buscar en esta carpeta</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Types of files</source>
        <translation>Tipos de archivos</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>The instrument can&apos;t be reached.</source>
        <translation>No se puede acceder al instrumento.</translation>
    </message>
    <message>
        <source>%1 was removed.</source>
        <translation>Se ha retirado %1.</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>La carpeta «%1» no existe.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is gone.</source>
        <translation>La carpeta «%1» ya no existe.</translation>
    </message>
    <message>
        <source>This folder can&apos;t be listed.</source>
        <translation>No se puede mostrar el contenido de esta carpeta.</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Cargando…</translation>
    </message>
    <message>
        <source>Nothing here fits the search.</source>
        <translation>Ningún resultado en esta carpeta.</translation>
    </message>
    <message>
        <source>This folder is empty.</source>
        <translation>Esta carpeta está vacía.</translation>
    </message>
    <message>
        <source>The link to the instrument is lost</source>
        <translation>Se ha perdido el enlace con el instrumento</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>This entry&apos;s name can&apos;t be used.</source>
        <translation>No se puede usar el nombre de este elemento.</translation>
    </message>
    <message>
        <source>Only %1</source>
        <translation>Solo %1</translation>
    </message>
    <message>
        <source>List only files of %1</source>
        <translation>Mostrar solo los archivos de %1</translation>
    </message>
    <message>
        <source>There are no files of this type here.</source>
        <translation>Aquí no hay archivos de este tipo.</translation>
    </message>
</context>
<context>
    <name>FilePaths</name>
    <message>
        <source>A name is needed.</source>
        <translation>Se requiere un nombre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be a name.</source>
        <translation>«%1» no es un nombre válido.</translation>
    </message>
    <message>
        <source>A name can&apos;t have a &quot;/&quot;.</source>
        <translation>Un nombre no puede contener «/».</translation>
    </message>
    <message>
        <source>A name can&apos;t have the character %1.</source>
        <translation>Un nombre no puede contener el carácter %1.</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>Este nombre es demasiado largo.</translation>
    </message>
</context>
<context>
    <name>FileQuestions</name>
    <message>
        <source>1 file</source>
        <translation>1 archivo</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 archivo</numerusform>
            <numerusform>%1 archivos</numerusform>
        </translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 carpeta</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders</source>
        <translation>
            <numerusform>%1 carpeta</numerusform>
            <numerusform>%1 carpetas</numerusform>
        </translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Finalizado</translation>
    </message>
    <message>
        <source>Not everything was copied</source>
        <translation>No se ha copiado todo</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>Delete %1 from %2?</source>
        <translation>¿Eliminar %1 en %2?</translation>
    </message>
    <message>
        <source>Delete %1 with everything in it from %2?</source>
        <translation>¿Eliminar %1 con todo su contenido en %2?</translation>
    </message>
    <message>
        <source>Delete %1 with everything in them from %2?</source>
        <translation>¿Eliminar %1 con todo su contenido en %2?</translation>
    </message>
    <message>
        <source>%1 copied (%2)</source>
        <translation>%1 copiado(s) (%2)</translation>
    </message>
    <message>
        <source>%1 skipped</source>
        <translation>%1 omitido(s)</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 con error</translation>
    </message>
    <message>
        <source>%1 not tried</source>
        <translation>%1 sin intentar</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>quedan %1&#xa0;s</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>quedan %1&#xa0;min</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>quedan %1&#xa0;h %2&#xa0;min</translation>
    </message>
</context>
<context>
    <name>FileTransfer</name>
    <message>
        <source>it is no file any more</source>
        <translation>ya no es un archivo</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>no existe</translation>
    </message>
    <message>
        <source>it was changed while it was read</source>
        <translation>se modificó durante la lectura</translation>
    </message>
    <message>
        <source>%1 bytes came of a file of %2 bytes</source>
        <translation>se recibieron %1&#xa0;bytes de un archivo de %2&#xa0;bytes</translation>
    </message>
    <message>
        <source>there is no room left: %1</source>
        <translation>no queda espacio libre: %1</translation>
    </message>
    <message>
        <source>there is no link to the instrument</source>
        <translation>no hay enlace con el instrumento</translation>
    </message>
    <message>
        <source>the instrument cannot list %1</source>
        <translation>el instrumento no puede listar %1</translation>
    </message>
    <message>
        <source>%1; it is unknown whether the instrument still did its last step</source>
        <translation>%1; se desconoce si el instrumento llegó a ejecutar el último paso</translation>
    </message>
    <message>
        <source>%1 (the instrument answers %2)</source>
        <translation>%1 (respuesta del instrumento: %2)</translation>
    </message>
    <message>
        <source>the instrument cannot give a file of %1 the name %2</source>
        <translation>el instrumento no puede dar el nombre %2 a un archivo de %1</translation>
    </message>
    <message>
        <source>the instrument cannot remove %1</source>
        <translation>el instrumento no puede eliminar %1</translation>
    </message>
    <message>
        <source>the instrument cannot make a folder in %1</source>
        <translation>el instrumento no puede crear una carpeta en %1</translation>
    </message>
    <message>
        <source>this is not the path of a file</source>
        <translation>no es una ruta de archivo</translation>
    </message>
    <message>
        <source>it cannot be carried into itself</source>
        <translation>no se puede transferir dentro de sí mismo</translation>
    </message>
    <message>
        <source>the folders are nested too deeply</source>
        <translation>las carpetas están anidadas a demasiada profundidad</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>una excepción desconocida</translation>
    </message>
    <message>
        <source>the folder %1 is not there</source>
        <translation>la carpeta %1 no existe</translation>
    </message>
    <message>
        <source>%1 are needed, and %2 are free in %3</source>
        <translation>se necesitan %1 y hay %2 libres en %3</translation>
    </message>
    <message>
        <source>a file at the target has the name of this folder</source>
        <translation>en el destino hay un archivo con el nombre de esta carpeta</translation>
    </message>
    <message>
        <source>%1; what may be left as %2 is removed when the file is carried again</source>
        <translation>%1; los posibles restos en %2 se eliminarán al volver a transferir el archivo</translation>
    </message>
    <message>
        <source>a folder at the target has the name of this file</source>
        <translation>en el destino hay una carpeta con el nombre de este archivo</translation>
    </message>
</context>
<context>
    <name>FwButtonTabWidget</name>
    <message>
        <source>Previous tabs</source>
        <translation>Pestañas anteriores</translation>
    </message>
    <message>
        <source>More tabs</source>
        <translation>Más pestañas</translation>
    </message>
</context>
<context>
    <name>FwLoadSaveDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Instrumento</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordenador</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Cargar</translation>
    </message>
    <message>
        <source>Transfer files</source>
        <translation>Transferir archivos</translation>
    </message>
    <message>
        <source>Nothing can be saved here now.</source>
        <translation>Ahora no se puede guardar nada aquí.</translation>
    </message>
    <message>
        <source>There is a folder with the name &quot;%1&quot;.</source>
        <translation>Existe una carpeta con el nombre «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already. Overwrite it?</source>
        <translation>«%1» ya existe. ¿Desea sobrescribirlo?</translation>
    </message>
    <message>
        <source>What it holds now will be lost.</source>
        <translation>Se perderá su contenido actual.</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Sobrescribir</translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation>Transferencia</translation>
    </message>
    <message>
        <source>Files are being copied. Cancel that and close?</source>
        <translation>Se están copiando archivos. ¿Desea cancelar la copia y cerrar?</translation>
    </message>
    <message>
        <source>What has been copied so far stays.</source>
        <translation>Lo copiado hasta ahora se conserva.</translation>
    </message>
    <message>
        <source>Cancel and close</source>
        <translation>Cancelar y cerrar</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Continuar</translation>
    </message>
</context>
<context>
    <name>FwLogView</name>
    <message>
        <source>All levels</source>
        <translation>Todos los niveles</translation>
    </message>
    <message>
        <source>From info</source>
        <translation>Información y superior</translation>
    </message>
    <message>
        <source>From warning</source>
        <translation>Advertencia y superior</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Errores</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>Todas las categorías</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivel</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
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
        <translation>Ventana anterior</translation>
    </message>
    <message>
        <source>Next window</source>
        <translation>Ventana siguiente</translation>
    </message>
</context>
<context>
    <name>HelpBrowser</name>
    <message>
        <source>Only pages on this instrument can be shown here.</source>
        <translation>Aquí solo se pueden mostrar páginas de este instrumento.</translation>
    </message>
    <message>
        <source>The help page is missing, or can not be read.</source>
        <translation>La página de ayuda no existe o no se puede leer.</translation>
    </message>
    <message>
        <source>This page can not be shown</source>
        <translation>No se puede mostrar esta página</translation>
    </message>
</context>
<context>
    <name>LampSign</name>
    <message>
        <source>On</source>
        <translation>Encendido</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Apagado</translation>
    </message>
    <message>
        <source>Indicator: %1</source>
        <translation>Indicador: %1</translation>
    </message>
</context>
<context>
    <name>LocalFileCopy</name>
    <message>
        <source>it is no file any more</source>
        <translation>ya no es un archivo</translation>
    </message>
    <message>
        <source>it cannot be read: %1</source>
        <translation>no se puede leer: %1</translation>
    </message>
    <message>
        <source>it cannot be written: %1</source>
        <translation>no se puede escribir: %1</translation>
    </message>
</context>
<context>
    <name>LocalHelperThread</name>
    <message>
        <source>Cancelled.</source>
        <translation>Operación cancelada.</translation>
    </message>
    <message>
        <source>Files are being copied, moved or deleted already.</source>
        <translation>Ya se están copiando, moviendo o eliminando archivos.</translation>
    </message>
    <message>
        <source>There is an entry of that name already.</source>
        <translation>Ya existe un elemento con ese nombre.</translation>
    </message>
    <message>
        <source>This can&apos;t be done with this folder, or not at this place.</source>
        <translation>Esta operación no es posible con esta carpeta o en esta ubicación.</translation>
    </message>
    <message>
        <source>This is neither a file nor a folder nor a link, and can&apos;t be copied.</source>
        <translation>No es un archivo, ni una carpeta ni un vínculo, y no se puede copiar.</translation>
    </message>
    <message>
        <source>It is in use.</source>
        <translation>Está en uso.</translation>
    </message>
    <message>
        <source>Nothing may be changed here.</source>
        <translation>Aquí no se permite ningún cambio.</translation>
    </message>
</context>
<context>
    <name>LocalSource</name>
    <message>
        <source>it is not there</source>
        <translation>no existe</translation>
    </message>
    <message>
        <source>this folder cannot be read</source>
        <translation>no se puede leer esta carpeta</translation>
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
        <translation>no se puede crear la carpeta %1: %2</translation>
    </message>
    <message>
        <source>%1 was changed while it was written</source>
        <translation>%1 se modificó durante la escritura</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>no se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>no se puede eliminar %1: %2</translation>
    </message>
    <message>
        <source>%1 cannot be flushed to the medium: %2</source>
        <translation>no se puede volcar %1 en el medio: %2</translation>
    </message>
</context>
<context>
    <name>NameField</name>
    <message>
        <source>File name</source>
        <translation>Nombre de archivo</translation>
    </message>
</context>
<context>
    <name>NumericField</name>
    <message>
        <source>Whole numbers only</source>
        <translation>Solo números enteros</translation>
    </message>
    <message>
        <source>No negative values</source>
        <translation>Sin valores negativos</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no digit here</source>
        <translation>«%1» no es un dígito aquí</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>Introduzca un número</translation>
    </message>
    <message>
        <source>Digits after the point: %1 at most</source>
        <translation>Decimales: %1 como máximo</translation>
    </message>
    <message>
        <source>Not a number in the range</source>
        <translation>No es un número del rango</translation>
    </message>
    <message>
        <source>The largest value is %1</source>
        <translation>El valor máximo es %1</translation>
    </message>
    <message>
        <source>The smallest value is %1</source>
        <translation>El valor mínimo es %1</translation>
    </message>
</context>
<context>
    <name>NumpadKeys</name>
    <message>
        <source>Without a prefix</source>
        <translation>Sin prefijo</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retroceso</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>Cursor a la izquierda</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>Cursor a la derecha</translation>
    </message>
    <message>
        <source>Change the sign</source>
        <translation>Cambiar el signo</translation>
    </message>
    <message>
        <source>Decimal point</source>
        <translation>Punto decimal</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Mín</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Máx</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Estándar</translation>
    </message>
</context>
<context>
    <name>NumpadPanel</name>
    <message>
        <source>Value: %1</source>
        <translation>Valor: %1</translation>
    </message>
    <message>
        <source>Range: %1 to %2</source>
        <translation>Rango: de %1 a %2</translation>
    </message>
    <message>
        <source>Step: %1</source>
        <translation>Paso: %1</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Edit digits</source>
        <translation>Editar dígitos</translation>
    </message>
    <message>
        <source>Display password</source>
        <translation>Mostrar contraseña</translation>
    </message>
    <message>
        <source>Disable password protection</source>
        <translation>Desactivar protección por contraseña</translation>
    </message>
</context>
<context>
    <name>QLrudDialog</name>
    <message>
        <source>Up</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Keypad</source>
        <translation>Teclado numérico</translation>
    </message>
    <message>
        <source>Move keys up</source>
        <translation>Mover teclas hacia arriba</translation>
    </message>
    <message>
        <source>Move keys down</source>
        <translation>Mover teclas hacia abajo</translation>
    </message>
</context>
<context>
    <name>QvexDialogBorder</name>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Mover hacia arriba</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Mover hacia abajo</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Mover a la izquierda</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Mover a la derecha</translation>
    </message>
</context>
<context>
    <name>QvexFileMover</name>
    <message>
        <source>%1 was not carried: %2</source>
        <translation>no se transfirió %1: %2</translation>
    </message>
    <message>
        <source>%1 was not carried: an unknown exception</source>
        <translation>no se transfirió %1: una excepción desconocida</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>no se puede leer %1: %2</translation>
    </message>
    <message>
        <source>%1 exists on the instrument</source>
        <translation>%1 ya existe en el instrumento</translation>
    </message>
    <message>
        <source>the instrument cannot write %1</source>
        <translation>el instrumento no puede escribir %1</translation>
    </message>
    <message>
        <source>the instrument could not store what was sent of %1</source>
        <translation>el instrumento no pudo guardar los datos enviados de %1</translation>
    </message>
    <message>
        <source>the destination has appeared on the instrument meanwhile</source>
        <translation>el destino ha aparecido entretanto en el instrumento</translation>
    </message>
    <message>
        <source>the instrument could not store the file</source>
        <translation>el instrumento no pudo guardar el archivo</translation>
    </message>
    <message>
        <source>%1 has shrunk while it was read</source>
        <translation>el tamaño de %1 disminuyó durante la lectura</translation>
    </message>
    <message>
        <source>aborted after %1 bytes</source>
        <translation>interrumpido tras %1&#xa0;bytes</translation>
    </message>
    <message>
        <source>the instrument cannot read %1</source>
        <translation>el instrumento no puede leer %1</translation>
    </message>
    <message>
        <source>%1 exists</source>
        <translation>%1 ya existe</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>no se puede eliminar %1: %2</translation>
    </message>
    <message>
        <source>the folder of %1 cannot be made</source>
        <translation>no se puede crear la carpeta de %1</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>no se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>the instrument could not read the file to its end</source>
        <translation>el instrumento no pudo leer el archivo hasta el final</translation>
    </message>
</context>
<context>
    <name>QvexMessageBox</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Restaurar los valores predeterminados</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Guardar todo</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Yes to All</source>
        <translation>Sí a todo</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>No to All</source>
        <translation>No a todo</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Interrumpir</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>Hide Details</source>
        <translation>Ocultar los detalles</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Mostrar los detalles</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Pregunta</translation>
    </message>
</context>
<context>
    <name>QvexNumpadDlg</name>
    <message>
        <source>The value stays as it is</source>
        <translation>El valor no cambia</translation>
    </message>
    <message>
        <source>%1; or choose a unit</source>
        <translation>%1; o elija una unidad</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>Introduzca un número</translation>
    </message>
</context>
<context>
    <name>QvexPasswordPopup</name>
    <message>
        <source>Password Protection</source>
        <translation>Protección por contraseña</translation>
    </message>
    <message>
        <source>Password Does Not Match.
Please Type Correct Password!</source>
        <translation>La contraseña no coincide.
¡Introduzca la contraseña correcta!</translation>
    </message>
</context>
<context>
    <name>QvexRemoteFileModel</name>
    <message>
        <source>It was cancelled.</source>
        <translation>Se canceló la operación.</translation>
    </message>
    <message>
        <source>Another operation is still running.</source>
        <translation>Hay otra operación en curso.</translation>
    </message>
    <message>
        <source>The link to the instrument was lost; it is not known whether it was done.</source>
        <translation>Se perdió el enlace con el instrumento; se desconoce si se realizó la operación.</translation>
    </message>
    <message>
        <source>Its name can&apos;t be used.</source>
        <translation>No se puede usar su nombre.</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Instrumento</translation>
    </message>
    <message>
        <source>Instrument (%1)</source>
        <translation>Instrumento (%1)</translation>
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
        <translation>Ya no existe.</translation>
    </message>
    <message>
        <source>There is no permission for it.</source>
        <translation>No hay permiso para ello.</translation>
    </message>
    <message>
        <source>Something of that name is there already.</source>
        <translation>Ese nombre ya está en uso.</translation>
    </message>
    <message>
        <source>A folder can&apos;t be put into itself.</source>
        <translation>Una carpeta no se puede colocar dentro de sí misma.</translation>
    </message>
    <message>
        <source>The instrument&apos;s storage is full.</source>
        <translation>El almacenamiento del instrumento está lleno.</translation>
    </message>
    <message>
        <source>The instrument reported error %1.</source>
        <translation>El instrumento ha comunicado el error %1.</translation>
    </message>
    <message>
        <source>No folder could be made here: it may be protected.</source>
        <translation>No se pudo crear una carpeta aquí: puede que esté protegido.</translation>
    </message>
</context>
<context>
    <name>QvextHelpDialog</name>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>Página de ayuda</translation>
    </message>
</context>
<context>
    <name>RemoteSource</name>
    <message>
        <source>it is not there</source>
        <translation>no existe</translation>
    </message>
</context>
<context>
    <name>RemoteTarget</name>
    <message>
        <source>the instrument cannot replace %1</source>
        <translation>el instrumento no puede reemplazar %1</translation>
    </message>
    <message>
        <source>%1; the old file may be called %2 now</source>
        <translation>%1; es posible que el archivo anterior se llame ahora %2</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Close panel</source>
        <translation>Cerrar panel</translation>
    </message>
</context>
<context>
    <name>SplashLines</name>
    <message>
        <source>Start-up messages</source>
        <translation>Mensajes de inicio</translation>
    </message>
</context>
<context>
    <name>StatusStrip</name>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Stop what is under way</source>
        <translation>Detener la operación en curso</translation>
    </message>
</context>
<context>
    <name>TransferPanel</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>Progress of the transfer</source>
        <translation>Progreso de la transferencia</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Cancel the transfer</source>
        <translation>Cancelar la transferencia</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Cancelando…</translation>
    </message>
</context>
<context>
    <name>TransferView</name>
    <message>
        <source>&quot;%1&quot; can&apos;t be copied into itself.</source>
        <translation>«%1» no se puede copiar dentro de sí mismo.</translation>
    </message>
    <message>
        <source>Both sides show the same folder.</source>
        <translation>Ambos lados muestran la misma carpeta.</translation>
    </message>
    <message>
        <source>Copy to the right side</source>
        <translation>Copiar al lado derecho</translation>
    </message>
    <message>
        <source>Copy to the left side</source>
        <translation>Copiar al lado izquierdo</translation>
    </message>
    <message>
        <source>To %1:</source>
        <translation>Destino %1:</translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation>Transferencia</translation>
    </message>
</context>
<context>
    <name>UnitPrefix</name>
    <message>
        <source>Enter a number before the unit</source>
        <translation>Introduzca un número antes de la unidad</translation>
    </message>
    <message>
        <source>Too many digits for this unit</source>
        <translation>Demasiados dígitos para esta unidad</translation>
    </message>
</context>
<context>
    <name>VerdictSign</name>
    <message>
        <source>No result</source>
        <translation>Sin resultado</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>Apto</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>No apto</translation>
    </message>
    <message>
        <source>See results</source>
        <translation>Ver resultados</translation>
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
        <translation>registrado en %1:%2 como cliente %3</translation>
    </message>
    <message>
        <source>the controller answers again</source>
        <translation>el controlador vuelve a responder</translation>
    </message>
    <message>
        <source>connecting to %1:%2, attempt %3</source>
        <translation>conectando con %1:%2, intento %3</translation>
    </message>
    <message>
        <source>no answer for %1 ms</source>
        <translation>sin respuesta desde hace %1&#xa0;ms</translation>
    </message>
    <message>
        <source>no longer watched</source>
        <translation>ya no se supervisa</translation>
    </message>
</context>
</TS>
