<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Brisko</name>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
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
        <source>No usable home folder</source>
        <translation>No hay ninguna carpeta personal utilizable</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminado</translation>
    </message>
    <message>
        <source>Scan complete — %@ can be freed</source>
        <translation>Análisis completado: %@ liberables</translation>
    </message>
    <message>
        <source>Old Downloads</source>
        <translation>Descargas antiguas</translation>
    </message>
    <message>
        <source>App Caches</source>
        <translation>Cachés de aplicaciones</translation>
    </message>
    <message>
        <source>System Logs</source>
        <translation>Registros del sistema</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>Archivos temporales</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Papelera</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>Informes de fallos</translation>
    </message>
    <message>
        <source>Browser Caches</source>
        <translation>Cachés de navegadores</translation>
    </message>
    <message>
        <source>Chat App Caches</source>
        <translation>Cachés de aplicaciones de chat</translation>
    </message>
    <message>
        <source>Leftover Installers</source>
        <translation>Instaladores sobrantes</translation>
    </message>
    <message>
        <source>Scanning system caches…</source>
        <translation>Analizando las cachés del sistema…</translation>
    </message>
    <message>
        <source>Scanning Trash…</source>
        <translation>Analizando la papelera…</translation>
    </message>
    <message>
        <source>Scanning crash reports…</source>
        <translation>Analizando los informes de fallos…</translation>
    </message>
    <message>
        <source>Scanning browser caches…</source>
        <translation>Analizando las cachés de navegadores…</translation>
    </message>
    <message>
        <source>Scanning chat caches…</source>
        <translation>Analizando las cachés de chat…</translation>
    </message>
    <message>
        <source>Scanning installers…</source>
        <translation>Buscando instaladores…</translation>
    </message>
    <message>
        <source>Clean %lld categories?</source>
        <translation>¿Limpiar %lld categorías?</translation>
    </message>
    <message>
        <source>Clean %lld category?</source>
        <translation>¿Limpiar %lld categoría?</translation>
    </message>
    <message>
        <source>%@ · %@</source>
        <translation>%@ · %@</translation>
    </message>
    <message>
        <source>%lld MB</source>
        <translation>%lld MB</translation>
    </message>
    <message>
        <source>1 GB</source>
        <translation>1 GB</translation>
    </message>
    <message>
        <source>≥ %@</source>
        <translation>≥ %@</translation>
    </message>
    <message>
        <source>%lld file selected · %@</source>
        <translation>%lld archivo seleccionado · %@</translation>
    </message>
    <message>
        <source>%lld files selected · %@</source>
        <translation>%lld archivos seleccionados · %@</translation>
    </message>
    <message>
        <source>%lld selected · %@</source>
        <translation>Selección: %lld · %@</translation>
    </message>
    <message>
        <source>Add folders to scan</source>
        <translation>Añada carpetas para analizar</translation>
    </message>
    <message>
        <source>At least one copy is kept</source>
        <translation>Se conserva al menos una copia</translation>
    </message>
    <message>
        <source>Choose a folder to scan for large files.</source>
        <translation>Elija una carpeta en la que buscar archivos grandes.</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>Copiar ruta</translation>
    </message>
    <message>
        <source>Folders:</source>
        <translation>Carpetas:</translation>
    </message>
    <message>
        <source>Grant Full Disk Access, then restart Brisko to scan the Trash, chat app caches, and other protected data.</source>
        <translation>Conceda el acceso total al disco y reinicie Brisko para analizar la papelera, las cachés de las aplicaciones de chat y otros datos protegidos.</translation>
    </message>
    <message>
        <source>Hashing file contents, this may take a moment</source>
        <translation>Calculando las sumas de verificación de los archivos; puede tardar un momento</translation>
    </message>
    <message>
        <source>Junk categories</source>
        <translation>Categorías de archivos innecesarios</translation>
    </message>
    <message>
        <source>Keep First</source>
        <translation>Conservar la 1.ª</translation>
    </message>
    <message>
        <source>Large files</source>
        <translation>Archivos grandes</translation>
    </message>
    <message>
        <source>No duplicate files yet — press Scan to search</source>
        <translation>Aún no hay archivos duplicados: pulse «Analizar» para buscarlos</translation>
    </message>
    <message>
        <source>No junk found yet</source>
        <translation>Aún no se han encontrado archivos innecesarios</translation>
    </message>
    <message>
        <source>No junk found — your Mac is clean</source>
        <translation>No se han encontrado archivos innecesarios: su Mac está limpio</translation>
    </message>
    <message>
        <source>No large files yet</source>
        <translation>Aún no hay archivos grandes</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Press Scan to find junk files</source>
        <translation>Pulse «Analizar» para encontrar archivos innecesarios</translation>
    </message>
    <message>
        <source>Press Scan to search for caches, logs, and temporary files</source>
        <translation>Pulse «Analizar» para buscar cachés, registros y archivos temporales</translation>
    </message>
    <message>
        <source>Press Scan to search your folders for identical copies</source>
        <translation>Pulse «Analizar» para buscar copias idénticas en sus carpetas</translation>
    </message>
    <message>
        <source>Press Scan to search your folders for large files</source>
        <translation>Pulse «Analizar» para buscar archivos grandes en sus carpetas</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Reanalizar</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Analizar</translation>
    </message>
    <message>
        <source>Scanning folders…</source>
        <translation>Analizando las carpetas…</translation>
    </message>
    <message>
        <source>Scanning…</source>
        <translation>Analizando…</translation>
    </message>
    <message>
        <source>Select categories to clean</source>
        <translation>Seleccione las categorías que desea limpiar</translation>
    </message>
    <message>
        <source>Select copies to remove — at least one copy of each file is kept</source>
        <translation>Seleccione las copias que desea eliminar: se conserva al menos una copia de cada archivo</translation>
    </message>
    <message>
        <source>Select files to remove</source>
        <translation>Seleccione los archivos que desea eliminar</translation>
    </message>
    <message>
        <source>Set threshold and press Scan</source>
        <translation>Ajuste el umbral y pulse «Analizar»</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>Mostrar en el gestor de archivos</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>… and %lld more</source>
        <translation>… y %lld más</translation>
    </message>
    <message>
        <source>This will move %lld files to Trash.</source>
        <translation>Se moverán %lld archivos a la papelera.</translation>
    </message>
    <message>
        <source>This will move %lld file to Trash.</source>
        <translation>Se moverá %lld archivo a la papelera.</translation>
    </message>
    <message>
        <source>This will permanently delete %lld files.</source>
        <translation>Se eliminarán definitivamente %lld archivos.</translation>
    </message>
    <message>
        <source>This will permanently delete %lld file.</source>
        <translation>Se eliminará definitivamente %lld archivo.</translation>
    </message>
    <message>
        <source>Total Size</source>
        <translation>Tamaño total</translation>
    </message>
    <message>
        <source>Clean Selected</source>
        <translation>Limpiar selección</translation>
    </message>
    <message>
        <source>%@ cleaned</source>
        <translation>Limpieza: %@</translation>
    </message>
    <message>
        <source>%@ freed</source>
        <translation>Espacio liberado: %@</translation>
    </message>
    <message>
        <source>Cleaned — %@ freed</source>
        <translation>Limpieza completada. Espacio liberado: %@</translation>
    </message>
    <message>
        <source>Can't clean junk</source>
        <translation>No se pueden limpiar los archivos innecesarios</translation>
    </message>
    <message>
        <source>%@ freed, but %lld protected items were skipped (such as diagnostic reports or sandbox data). You can remove them manually in Finder.</source>
        <translation>Espacio liberado: %@. Elementos protegidos omitidos: %lld (por ejemplo, informes de diagnóstico o datos de entornos aislados). Puede eliminarlos manualmente en el Finder.</translation>
    </message>
    <message>
        <source>Scanning for large files…</source>
        <translation>Buscando archivos grandes…</translation>
    </message>
    <message>
        <source>Scanning… %lld files checked</source>
        <translation>Analizando… %lld archivos comprobados</translation>
    </message>
    <message>
        <source>Remove %lld large files?</source>
        <translation>¿Eliminar %lld archivos grandes?</translation>
    </message>
    <message>
        <source>Remove %lld large file?</source>
        <translation>¿Eliminar %lld archivo grande?</translation>
    </message>
    <message>
        <source>The selected files will be moved to Trash.</source>
        <translation>Los archivos seleccionados se moverán a la papelera.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mover a la papelera</translation>
    </message>
    <message>
        <source>%lld large files removed</source>
        <translation>%lld archivos grandes eliminados</translation>
    </message>
    <message>
        <source>%lld large file removed</source>
        <translation>%lld archivo grande eliminado</translation>
    </message>
    <message>
        <source>Can't move to Trash</source>
        <translation>No se puede mover a la papelera</translation>
    </message>
    <message>
        <source>Moved to Trash — %@ freed</source>
        <translation>Movido a la papelera. Espacio liberado: %@</translation>
    </message>
    <message>
        <source>Finding duplicate files…</source>
        <translation>Buscando archivos duplicados…</translation>
    </message>
    <message>
        <source>Collecting files…</source>
        <translation>Recopilando archivos…</translation>
    </message>
    <message>
        <source>Collecting files… %lld</source>
        <translation>Recopilando archivos… %lld</translation>
    </message>
    <message>
        <source>Hashing files…</source>
        <translation>Calculando sumas de verificación…</translation>
    </message>
    <message>
        <source>Hashing files… %lld%%</source>
        <translation>Calculando sumas de verificación… %lld %%</translation>
    </message>
    <message>
        <source>Remove %lld duplicate files?</source>
        <translation>¿Eliminar %lld archivos duplicados?</translation>
    </message>
    <message>
        <source>Remove %lld duplicate file?</source>
        <translation>¿Eliminar %lld archivo duplicado?</translation>
    </message>
    <message>
        <source>The selected copies will be moved to Trash. One original copy of each file is kept.</source>
        <translation>Las copias seleccionadas se moverán a la papelera. Se conserva un original de cada archivo.</translation>
    </message>
    <message>
        <source>Selected Files</source>
        <translation>Archivos seleccionados</translation>
    </message>
    <message>
        <source>%lld duplicate files removed</source>
        <translation>Archivos duplicados eliminados: %lld</translation>
    </message>
    <message>
        <source>%@ removed</source>
        <translation>Eliminado: %@</translation>
    </message>
    <message>
        <source>Removed %lld duplicates — %@ freed</source>
        <translation>Duplicados eliminados: %lld. Espacio liberado: %@</translation>
    </message>
    <message>
        <source>Scanning applications…</source>
        <translation>Buscando aplicaciones…</translation>
    </message>
    <message>
        <source>Brisko needs access to the Library folder to find app-related files.</source>
        <translation>Brisko necesita acceder a la carpeta Library para encontrar los archivos asociados a las aplicaciones.</translation>
    </message>
    <message>
        <source>Brisko needs access to the Library folder to scan caches and logs.</source>
        <translation>Brisko necesita acceder a la carpeta Library para analizar las cachés y los registros.</translation>
    </message>
    <message>
        <source>Brisko needs access to the Applications folder to move apps to Trash.</source>
        <translation>Brisko necesita acceder a la carpeta Applications para mover aplicaciones a la papelera.</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Añadir carpeta</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>Permitir acceso</translation>
    </message>
    <message>
        <source>Uninstall %@?</source>
        <translation>¿Desinstalar %@?</translation>
    </message>
    <message>
        <source>%lld apps</source>
        <translation>%lld aplicaciones</translation>
    </message>
    <message>
        <source>This will move the application and related files to Trash.</source>
        <translation>La aplicación y los archivos asociados se moverán a la papelera.</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Aplicación</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Aplicaciones</translation>
    </message>
    <message>
        <source>Related Files</source>
        <translation>Archivos asociados</translation>
    </message>
    <message>
        <source>%@ uninstalled</source>
        <translation>Se ha desinstalado %@</translation>
    </message>
    <message>
        <source>%lld apps uninstalled</source>
        <translation>Se han desinstalado %lld aplicaciones</translation>
    </message>
    <message>
        <source>Launch Agent</source>
        <translation>Agente de inicio</translation>
    </message>
    <message>
        <source>Launch Daemon</source>
        <translation>Demonio de inicio</translation>
    </message>
    <message>
        <source>Login Item</source>
        <translation>Inicio de sesión</translation>
    </message>
    <message>
        <source>Scanning startup items…</source>
        <translation>Buscando elementos de inicio…</translation>
    </message>
    <message>
        <source>%@ enabled</source>
        <translation>Se ha activado %@</translation>
    </message>
    <message>
        <source>%@ disabled</source>
        <translation>Se ha desactivado %@</translation>
    </message>
    <message>
        <source>Remove %@?</source>
        <translation>¿Eliminar %@?</translation>
    </message>
    <message>
        <source>This will move the plist file to Trash. You can re-enable it later from the original app.</source>
        <translation>El archivo plist se moverá a la papelera. Podrá volver a activar el elemento más adelante desde la aplicación original.</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ruta</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Removed %@</source>
        <translation>Se ha eliminado %@</translation>
    </message>
    <message>
        <source>Can't remove startup item</source>
        <translation>No se puede eliminar el elemento de inicio</translation>
    </message>
    <message>
        <source>Cannot remove system-level startup items</source>
        <translation>No se pueden eliminar los elementos de inicio del sistema</translation>
    </message>
    <message>
        <source>System-level items cannot be modified</source>
        <translation>Los elementos del sistema no se pueden modificar</translation>
    </message>
    <message>
        <source>System-level items cannot be removed</source>
        <translation>Los elementos del sistema no se pueden eliminar</translation>
    </message>
    <message>
        <source>Can't reach the update server. Check your network and try again.</source>
        <translation>No se puede conectar con el servidor de actualizaciones. Compruebe la red e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>You're up to date!</source>
        <translation>¡Brisko está al día!</translation>
    </message>
    <message>
        <source>%lld file · %@</source>
        <translation>%lld archivo · %@</translation>
    </message>
    <message>
        <source>%lld files · %@</source>
        <translation>%lld archivos · %@</translation>
    </message>
    <message>
        <source>%lld category · %@ reclaimable</source>
        <translation>%lld categoría · %@ liberables</translation>
    </message>
    <message>
        <source>%lld categories · %@ reclaimable</source>
        <translation>%lld categorías · %@ liberables</translation>
    </message>
    <message>
        <source>%lld file · %@ total</source>
        <translation>%lld archivo · %@ en total</translation>
    </message>
    <message>
        <source>%lld files · %@ total</source>
        <translation>%lld archivos · %@ en total</translation>
    </message>
    <message>
        <source>%lld copies · %@ reclaimable</source>
        <translation>%lld copias · %@ liberables</translation>
    </message>
    <message>
        <source>%lld group · %@ reclaimable</source>
        <translation>%lld grupo · %@ liberables</translation>
    </message>
    <message>
        <source>%lld groups · %@ reclaimable</source>
        <translation>%lld grupos · %@ liberables</translation>
    </message>
    <message>
        <source>%lld application · %@ installed</source>
        <translation>%lld aplicación instalada · %@</translation>
    </message>
    <message>
        <source>%lld applications · %@ installed</source>
        <translation>%lld aplicaciones instaladas · %@</translation>
    </message>
    <message>
        <source>%lld item · %@ would be removed</source>
        <translation>Se eliminaría %lld elemento · %@</translation>
    </message>
    <message>
        <source>%lld items · %@ would be removed</source>
        <translation>Se eliminarían %lld elementos · %@</translation>
    </message>
    <message>
        <source>%lld items · %lld enabled</source>
        <translation>%lld elementos · activos: %lld</translation>
    </message>
    <message>
        <source>No junk found</source>
        <translation>No se han encontrado archivos innecesarios</translation>
    </message>
    <message>
        <source>No large files found above threshold</source>
        <translation>No se han encontrado archivos grandes por encima del umbral</translation>
    </message>
    <message>
        <source>No duplicate files found</source>
        <translation>No se han encontrado archivos duplicados</translation>
    </message>
    <message>
        <source>No applications found</source>
        <translation>No se han encontrado aplicaciones</translation>
    </message>
    <message>
        <source>No startup items found</source>
        <translation>No se han encontrado elementos de inicio</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Sin usar</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activo</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Inactivo</translation>
    </message>
    <message>
        <source>Uninstaller</source>
        <translation>Desinstalar</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Duplicados</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>Archivos grandes</translation>
    </message>
    <message>
        <source>Junk Cleaner</source>
        <translation>Limpieza</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Free disk space</source>
        <translation>Espacio libre</translation>
    </message>
    <message>
        <source>Disk Temperature</source>
        <translation>Temp. del disco</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Al inicio</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Your Mac, Cleaner and Lighter</source>
        <translation>Su Mac, más limpio y ligero</translation>
    </message>
    <message>
        <source>Free up space, remove junk, and keep your Mac running at its best.</source>
        <translation>Libere espacio, elimine los archivos innecesarios y mantenga su Mac en plena forma.</translation>
    </message>
    <message>
        <source>Processor load</source>
        <translation>Carga del procesador</translation>
    </message>
    <message>
        <source>NAND flash</source>
        <translation>Memoria flash NAND</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>No disponible</translation>
    </message>
    <message>
        <source>Freeable Space</source>
        <translation>Espacio liberable</translation>
    </message>
    <message>
        <source>Caches, duplicates &amp; unused apps</source>
        <translation>Cachés, duplicados y aplicaciones sin usar</translation>
    </message>
    <message>
        <source>Unused applications</source>
        <translation>Aplicaciones sin usar</translation>
    </message>
    <message>
        <source>Duplicate files</source>
        <translation>Archivos duplicados</translation>
    </message>
    <message>
        <source>Large file cleanup</source>
        <translation>Limpiar archivos grandes</translation>
    </message>
    <message>
        <source>Caches &amp; logs</source>
        <translation>Cachés y registros</translation>
    </message>
    <message>
        <source>%lld%%</source>
        <translation>%lld %%</translation>
    </message>
    <message>
        <source>%@ / %@</source>
        <translation>%@ / %@</translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation>Calculando…</translation>
    </message>
    <message>
        <source>Select applications to uninstall</source>
        <translation>Seleccione las aplicaciones que desea desinstalar</translation>
    </message>
    <message>
        <source>%lld items selected · %@</source>
        <translation>%lld elementos seleccionados · %@</translation>
    </message>
    <message>
        <source>%lld item selected · %@</source>
        <translation>%lld elemento seleccionado · %@</translation>
    </message>
    <message>
        <source>%@+</source>
        <translation>%@+</translation>
    </message>
    <message>
        <source>Related Files · %@</source>
        <translation>Archivos asociados · %@</translation>
    </message>
    <message>
        <source>No related files</source>
        <translation>Sin archivos asociados</translation>
    </message>
    <message>
        <source>No related files found for this app.</source>
        <translation>No se han encontrado archivos asociados a esta aplicación.</translation>
    </message>
    <message>
        <source>Looking for related files…</source>
        <translation>Buscando archivos asociados…</translation>
    </message>
    <message>
        <source>Full Disk Access required</source>
        <translation>Se requiere acceso total al disco</translation>
    </message>
    <message>
        <source>Full Disk Access Required</source>
        <translation>Se requiere acceso total al disco</translation>
    </message>
    <message>
        <source>Grant Full Disk Access, then restart Brisko to scan app container data (caches, settings) and uninstall apps completely.</source>
        <translation>Conceda el acceso total al disco y reinicie Brisko para analizar los datos de los contenedores de aplicaciones (cachés, ajustes) y desinstalar las aplicaciones por completo.</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Abrir Ajustes del Sistema</translation>
    </message>
    <message>
        <source>Scan Apps</source>
        <translation>Analizar apps</translation>
    </message>
    <message>
        <source>Show files of %@</source>
        <translation>Mostrar los archivos de «%@»</translation>
    </message>
    <message>
        <source>Hide files of %@</source>
        <translation>Ocultar los archivos de «%@»</translation>
    </message>
    <message>
        <source>Startup Items</source>
        <translation>Elementos de inicio</translation>
    </message>
    <message>
        <source>Press Scan to list startup items</source>
        <translation>Haga un análisis para ver los elementos de inicio</translation>
    </message>
    <message>
        <source>No startup items yet</source>
        <translation>Aún no hay elementos de inicio</translation>
    </message>
    <message>
        <source>Press Scan to find Launch Agents and Daemons</source>
        <translation>Haga un análisis para encontrar agentes y demonios de inicio</translation>
    </message>
    <message>
        <source>%lld item · %lld enabled</source>
        <translation>%lld elemento · activo: %lld</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Activar</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Desactivar</translation>
    </message>
    <message>
        <source>Remove %@</source>
        <translation>Eliminar %@</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>Duplicate Scan Folders</source>
        <translation>Carpetas donde buscar duplicados</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Añadir carpeta…</translation>
    </message>
    <message>
        <source>Choose a folder to scan for duplicate files.</source>
        <translation>Elija una carpeta en la que buscar archivos duplicados.</translation>
    </message>
    <message>
        <source>Remove folder %@</source>
        <translation>Quitar la carpeta %@</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Brisko %@</source>
        <translation>Brisko %@</translation>
    </message>
    <message>
        <source>A Cleaner, Lighter Mac — More Space. A Brighter Tomorrow.</source>
        <translation>Un Mac más limpio y ligero. Más espacio. Un mañana más brillante.</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Buscando actualizaciones…</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>Privacidad</translation>
    </message>
    <message>
        <source>Terms of Service</source>
        <translation>Condiciones de uso</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>Contacto</translation>
    </message>
    <message>
        <source>Open Brisko</source>
        <translation>Abrir Brisko</translation>
    </message>
    <message>
        <source>Quit Brisko</source>
        <translation>Salir de Brisko</translation>
    </message>
    <message>
        <source>What's New</source>
        <translation>Novedades</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Omitir esta versión</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Recordármelo más tarde</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Actualización disponible</translation>
    </message>
    <message>
        <source>Version %@</source>
        <translation>Versión %@</translation>
    </message>
    <message>
        <source>Nothing was removed.</source>
        <translation>No se ha eliminado nada.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Detenido.</translation>
    </message>
    <message>
        <source>The settings file was damaged. It is kept as %@.</source>
        <translation>El archivo de ajustes estaba dañado. Se conserva como %@.</translation>
    </message>
    <message>
        <source>Too large to copy to the Trash from another disk.</source>
        <translation>Es demasiado grande para copiarlo a la papelera desde otro disco.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>%lld · %@</source>
        <translation>%lld · %@</translation>
    </message>
    <message>
        <source>%@?</source>
        <translation>¿%@?</translation>
    </message>
</context>
</TS>
