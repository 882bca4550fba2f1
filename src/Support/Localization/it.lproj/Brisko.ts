<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Brisko</name>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
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
        <source>No usable home folder</source>
        <translation>Nessuna cartella home utilizzabile</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fatto</translation>
    </message>
    <message>
        <source>Scan complete — %@ can be freed</source>
        <translation>Analisi completata – %@ liberabili</translation>
    </message>
    <message>
        <source>Old Downloads</source>
        <translation>Vecchi download</translation>
    </message>
    <message>
        <source>App Caches</source>
        <translation>Cache delle app</translation>
    </message>
    <message>
        <source>System Logs</source>
        <translation>Log di sistema</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>File temporanei</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Cestino</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>Rapporti di arresto anomalo</translation>
    </message>
    <message>
        <source>Browser Caches</source>
        <translation>Cache dei browser</translation>
    </message>
    <message>
        <source>Chat App Caches</source>
        <translation>Cache delle app di chat</translation>
    </message>
    <message>
        <source>Leftover Installers</source>
        <translation>Installatori residui</translation>
    </message>
    <message>
        <source>Scanning system caches…</source>
        <translation>Analisi delle cache di sistema…</translation>
    </message>
    <message>
        <source>Scanning Trash…</source>
        <translation>Analisi del Cestino…</translation>
    </message>
    <message>
        <source>Scanning crash reports…</source>
        <translation>Analisi dei rapporti di arresto anomalo…</translation>
    </message>
    <message>
        <source>Scanning browser caches…</source>
        <translation>Analisi delle cache dei browser…</translation>
    </message>
    <message>
        <source>Scanning chat caches…</source>
        <translation>Analisi delle cache delle app di chat…</translation>
    </message>
    <message>
        <source>Scanning installers…</source>
        <translation>Ricerca di installatori…</translation>
    </message>
    <message>
        <source>Clean %lld categories?</source>
        <translation>Pulire %lld categorie?</translation>
    </message>
    <message>
        <source>Clean %lld category?</source>
        <translation>Pulire %lld categoria?</translation>
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
        <translation>%lld file selezionato · %@</translation>
    </message>
    <message>
        <source>%lld files selected · %@</source>
        <translation>%lld file selezionati · %@</translation>
    </message>
    <message>
        <source>%lld selected · %@</source>
        <translation>Selezione: %lld · %@</translation>
    </message>
    <message>
        <source>Add folders to scan</source>
        <translation>Aggiungere cartelle da analizzare</translation>
    </message>
    <message>
        <source>At least one copy is kept</source>
        <translation>Almeno una copia viene conservata</translation>
    </message>
    <message>
        <source>Choose a folder to scan for large files.</source>
        <translation>Scegliere una cartella in cui cercare file grandi.</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>Copia percorso</translation>
    </message>
    <message>
        <source>Folders:</source>
        <translation>Cartelle:</translation>
    </message>
    <message>
        <source>Grant Full Disk Access, then restart Brisko to scan the Trash, chat app caches, and other protected data.</source>
        <translation>Concedere l’accesso completo al disco, quindi riavviare Brisko per analizzare il Cestino, le cache delle app di chat e altri dati protetti.</translation>
    </message>
    <message>
        <source>Hashing file contents, this may take a moment</source>
        <translation>Calcolo delle somme di controllo dei file: potrebbe richiedere qualche istante</translation>
    </message>
    <message>
        <source>Junk categories</source>
        <translation>Categorie di file inutili</translation>
    </message>
    <message>
        <source>Keep First</source>
        <translation>Tieni la prima</translation>
    </message>
    <message>
        <source>Large files</source>
        <translation>File grandi</translation>
    </message>
    <message>
        <source>No duplicate files yet — press Scan to search</source>
        <translation>Ancora nessun file duplicato – premere «Analizza» per avviare la ricerca</translation>
    </message>
    <message>
        <source>No junk found yet</source>
        <translation>Ancora nessun file inutile trovato</translation>
    </message>
    <message>
        <source>No junk found — your Mac is clean</source>
        <translation>Nessun file inutile trovato – il Mac è pulito</translation>
    </message>
    <message>
        <source>No large files yet</source>
        <translation>Ancora nessun file grande</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Originale</translation>
    </message>
    <message>
        <source>Press Scan to find junk files</source>
        <translation>Premere «Analizza» per trovare i file inutili</translation>
    </message>
    <message>
        <source>Press Scan to search for caches, logs, and temporary files</source>
        <translation>Premere «Analizza» per cercare cache, log e file temporanei</translation>
    </message>
    <message>
        <source>Press Scan to search your folders for identical copies</source>
        <translation>Premere «Analizza» per cercare copie identiche nelle cartelle</translation>
    </message>
    <message>
        <source>Press Scan to search your folders for large files</source>
        <translation>Premere «Analizza» per cercare file grandi nelle cartelle</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Rianalizza</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Analizza</translation>
    </message>
    <message>
        <source>Scanning folders…</source>
        <translation>Analisi delle cartelle…</translation>
    </message>
    <message>
        <source>Scanning…</source>
        <translation>Analisi in corso…</translation>
    </message>
    <message>
        <source>Select categories to clean</source>
        <translation>Selezionare le categorie da pulire</translation>
    </message>
    <message>
        <source>Select copies to remove — at least one copy of each file is kept</source>
        <translation>Selezionare le copie da rimuovere – di ogni file viene conservata almeno una copia</translation>
    </message>
    <message>
        <source>Select files to remove</source>
        <translation>Selezionare i file da rimuovere</translation>
    </message>
    <message>
        <source>Set threshold and press Scan</source>
        <translation>Impostare la soglia e premere «Analizza»</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>Mostra nel gestore di file</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Sconosciuto</translation>
    </message>
    <message>
        <source>… and %lld more</source>
        <translation>… altri file: %lld</translation>
    </message>
    <message>
        <source>This will move %lld files to Trash.</source>
        <translation>%lld file verranno spostati nel Cestino.</translation>
    </message>
    <message>
        <source>This will move %lld file to Trash.</source>
        <translation>%lld file verrà spostato nel Cestino.</translation>
    </message>
    <message>
        <source>This will permanently delete %lld files.</source>
        <translation>%lld file verranno eliminati definitivamente.</translation>
    </message>
    <message>
        <source>This will permanently delete %lld file.</source>
        <translation>%lld file verrà eliminato definitivamente.</translation>
    </message>
    <message>
        <source>Total Size</source>
        <translation>Dimensione totale</translation>
    </message>
    <message>
        <source>Clean Selected</source>
        <translation>Pulisci selezione</translation>
    </message>
    <message>
        <source>%@ cleaned</source>
        <translation>Pulizia: %@</translation>
    </message>
    <message>
        <source>%@ freed</source>
        <translation>%@ di spazio liberato</translation>
    </message>
    <message>
        <source>Cleaned — %@ freed</source>
        <translation>Pulizia completata – %@ di spazio liberato</translation>
    </message>
    <message>
        <source>Can't clean junk</source>
        <translation>Impossibile rimuovere i file inutili</translation>
    </message>
    <message>
        <source>%@ freed, but %lld protected items were skipped (such as diagnostic reports or sandbox data). You can remove them manually in Finder.</source>
        <translation>%@ di spazio liberato. Elementi protetti ignorati: %lld (ad esempio rapporti diagnostici o dati delle sandbox). È possibile rimuoverli manualmente nel Finder.</translation>
    </message>
    <message>
        <source>Scanning for large files…</source>
        <translation>Ricerca di file grandi…</translation>
    </message>
    <message>
        <source>Scanning… %lld files checked</source>
        <translation>Analisi in corso… %lld file controllati</translation>
    </message>
    <message>
        <source>Remove %lld large files?</source>
        <translation>Rimuovere %lld file grandi?</translation>
    </message>
    <message>
        <source>Remove %lld large file?</source>
        <translation>Rimuovere %lld file grande?</translation>
    </message>
    <message>
        <source>The selected files will be moved to Trash.</source>
        <translation>I file selezionati verranno spostati nel Cestino.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Sposta nel Cestino</translation>
    </message>
    <message>
        <source>%lld large files removed</source>
        <translation>%lld file grandi rimossi</translation>
    </message>
    <message>
        <source>%lld large file removed</source>
        <translation>%lld file grande rimosso</translation>
    </message>
    <message>
        <source>Can't move to Trash</source>
        <translation>Impossibile spostare nel Cestino</translation>
    </message>
    <message>
        <source>Moved to Trash — %@ freed</source>
        <translation>Spostamento nel Cestino completato – %@ di spazio liberato</translation>
    </message>
    <message>
        <source>Finding duplicate files…</source>
        <translation>Ricerca di file duplicati…</translation>
    </message>
    <message>
        <source>Collecting files…</source>
        <translation>Raccolta dei file…</translation>
    </message>
    <message>
        <source>Collecting files… %lld</source>
        <translation>Raccolta dei file… %lld</translation>
    </message>
    <message>
        <source>Hashing files…</source>
        <translation>Calcolo delle somme di controllo…</translation>
    </message>
    <message>
        <source>Hashing files… %lld%%</source>
        <translation>Calcolo delle somme di controllo… %lld%%</translation>
    </message>
    <message>
        <source>Remove %lld duplicate files?</source>
        <translation>Rimuovere %lld file duplicati?</translation>
    </message>
    <message>
        <source>Remove %lld duplicate file?</source>
        <translation>Rimuovere %lld file duplicato?</translation>
    </message>
    <message>
        <source>The selected copies will be moved to Trash. One original copy of each file is kept.</source>
        <translation>Le copie selezionate verranno spostate nel Cestino. Di ogni file viene conservato un originale.</translation>
    </message>
    <message>
        <source>Selected Files</source>
        <translation>File selezionati</translation>
    </message>
    <message>
        <source>%lld duplicate files removed</source>
        <translation>File duplicati rimossi: %lld</translation>
    </message>
    <message>
        <source>%@ removed</source>
        <translation>Rimosso: %@</translation>
    </message>
    <message>
        <source>Removed %lld duplicates — %@ freed</source>
        <translation>Duplicati rimossi: %lld – %@ di spazio liberato</translation>
    </message>
    <message>
        <source>Scanning applications…</source>
        <translation>Ricerca delle app…</translation>
    </message>
    <message>
        <source>Brisko needs access to the Library folder to find app-related files.</source>
        <translation>Brisko ha bisogno di accedere alla cartella Library per trovare i file correlati alle app.</translation>
    </message>
    <message>
        <source>Brisko needs access to the Library folder to scan caches and logs.</source>
        <translation>Brisko ha bisogno di accedere alla cartella Library per analizzare le cache e i log.</translation>
    </message>
    <message>
        <source>Brisko needs access to the Applications folder to move apps to Trash.</source>
        <translation>Brisko ha bisogno di accedere alla cartella Applications per spostare le app nel Cestino.</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Aggiungi cartella</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>Consenti accesso</translation>
    </message>
    <message>
        <source>Uninstall %@?</source>
        <translation>Disinstallare %@?</translation>
    </message>
    <message>
        <source>%lld apps</source>
        <translation>%lld app</translation>
    </message>
    <message>
        <source>This will move the application and related files to Trash.</source>
        <translation>L’app e i file correlati verranno spostati nel Cestino.</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>App</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>App</translation>
    </message>
    <message>
        <source>Related Files</source>
        <translation>File correlati</translation>
    </message>
    <message>
        <source>%@ uninstalled</source>
        <translation>App disinstallata: %@</translation>
    </message>
    <message>
        <source>%lld apps uninstalled</source>
        <translation>%lld app disinstallate</translation>
    </message>
    <message>
        <source>Launch Agent</source>
        <translation>Agente di avvio</translation>
    </message>
    <message>
        <source>Launch Daemon</source>
        <translation>Demone di avvio</translation>
    </message>
    <message>
        <source>Login Item</source>
        <translation>Elemento di login</translation>
    </message>
    <message>
        <source>Scanning startup items…</source>
        <translation>Ricerca degli elementi di avvio…</translation>
    </message>
    <message>
        <source>%@ enabled</source>
        <translation>%@ attivato</translation>
    </message>
    <message>
        <source>%@ disabled</source>
        <translation>%@ disattivato</translation>
    </message>
    <message>
        <source>Remove %@?</source>
        <translation>Rimuovere %@?</translation>
    </message>
    <message>
        <source>This will move the plist file to Trash. You can re-enable it later from the original app.</source>
        <translation>Il file plist verrà spostato nel Cestino. L’elemento potrà essere riattivato in seguito dall’app originale.</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Percorso</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Removed %@</source>
        <translation>%@ rimosso</translation>
    </message>
    <message>
        <source>Can't remove startup item</source>
        <translation>Impossibile rimuovere l’elemento di avvio</translation>
    </message>
    <message>
        <source>Cannot remove system-level startup items</source>
        <translation>Impossibile rimuovere gli elementi di avvio di sistema</translation>
    </message>
    <message>
        <source>System-level items cannot be modified</source>
        <translation>Gli elementi di sistema non possono essere modificati</translation>
    </message>
    <message>
        <source>System-level items cannot be removed</source>
        <translation>Gli elementi di sistema non possono essere rimossi</translation>
    </message>
    <message>
        <source>Can't reach the update server. Check your network and try again.</source>
        <translation>Impossibile raggiungere il server degli aggiornamenti. Controllare la rete e riprovare.</translation>
    </message>
    <message>
        <source>You're up to date!</source>
        <translation>Brisko è aggiornato!</translation>
    </message>
    <message>
        <source>%lld file · %@</source>
        <translation>%lld file · %@</translation>
    </message>
    <message>
        <source>%lld files · %@</source>
        <translation>%lld file · %@</translation>
    </message>
    <message>
        <source>%lld category · %@ reclaimable</source>
        <translation>%lld categoria · %@ liberabili</translation>
    </message>
    <message>
        <source>%lld categories · %@ reclaimable</source>
        <translation>%lld categorie · %@ liberabili</translation>
    </message>
    <message>
        <source>%lld file · %@ total</source>
        <translation>%lld file · %@ in totale</translation>
    </message>
    <message>
        <source>%lld files · %@ total</source>
        <translation>%lld file · %@ in totale</translation>
    </message>
    <message>
        <source>%lld copies · %@ reclaimable</source>
        <translation>%lld copie · %@ liberabili</translation>
    </message>
    <message>
        <source>%lld group · %@ reclaimable</source>
        <translation>%lld gruppo · %@ liberabili</translation>
    </message>
    <message>
        <source>%lld groups · %@ reclaimable</source>
        <translation>%lld gruppi · %@ liberabili</translation>
    </message>
    <message>
        <source>%lld application · %@ installed</source>
        <translation>%lld app installata · %@</translation>
    </message>
    <message>
        <source>%lld applications · %@ installed</source>
        <translation>%lld app installate · %@</translation>
    </message>
    <message>
        <source>%lld item · %@ would be removed</source>
        <translation>%lld elemento verrebbe rimosso · %@</translation>
    </message>
    <message>
        <source>%lld items · %@ would be removed</source>
        <translation>%lld elementi verrebbero rimossi · %@</translation>
    </message>
    <message>
        <source>%lld items · %lld enabled</source>
        <translation>%lld elementi · attivi: %lld</translation>
    </message>
    <message>
        <source>No junk found</source>
        <translation>Nessun file inutile trovato</translation>
    </message>
    <message>
        <source>No large files found above threshold</source>
        <translation>Nessun file grande trovato oltre la soglia</translation>
    </message>
    <message>
        <source>No duplicate files found</source>
        <translation>Nessun file duplicato trovato</translation>
    </message>
    <message>
        <source>No applications found</source>
        <translation>Nessuna app trovata</translation>
    </message>
    <message>
        <source>No startup items found</source>
        <translation>Nessun elemento di avvio trovato</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Inutilizzata</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Attivo</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Inattivo</translation>
    </message>
    <message>
        <source>Uninstaller</source>
        <translation>Disinstalla</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Duplicati</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>File grandi</translation>
    </message>
    <message>
        <source>Junk Cleaner</source>
        <translation>Pulizia</translation>
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
        <translation>Spazio disco libero</translation>
    </message>
    <message>
        <source>Disk Temperature</source>
        <translation>Temperatura disco</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Panoramica</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Avvio</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Your Mac, Cleaner and Lighter</source>
        <translation>Un Mac più pulito e leggero</translation>
    </message>
    <message>
        <source>Free up space, remove junk, and keep your Mac running at its best.</source>
        <translation>Più spazio, niente file inutili e un Mac sempre al meglio.</translation>
    </message>
    <message>
        <source>Processor load</source>
        <translation>Carico del processore</translation>
    </message>
    <message>
        <source>NAND flash</source>
        <translation>Memoria flash NAND</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>Non disponibile</translation>
    </message>
    <message>
        <source>Freeable Space</source>
        <translation>Spazio liberabile</translation>
    </message>
    <message>
        <source>Caches, duplicates &amp; unused apps</source>
        <translation>Cache, duplicati e app inutilizzate</translation>
    </message>
    <message>
        <source>Unused applications</source>
        <translation>App inutilizzate</translation>
    </message>
    <message>
        <source>Duplicate files</source>
        <translation>File duplicati</translation>
    </message>
    <message>
        <source>Large file cleanup</source>
        <translation>Pulizia dei file grandi</translation>
    </message>
    <message>
        <source>Caches &amp; logs</source>
        <translation>Cache e log</translation>
    </message>
    <message>
        <source>%lld%%</source>
        <translation>%lld%%</translation>
    </message>
    <message>
        <source>%@ / %@</source>
        <translation>%@ / %@</translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation>Calcolo…</translation>
    </message>
    <message>
        <source>Select applications to uninstall</source>
        <translation>Selezionare le app da disinstallare</translation>
    </message>
    <message>
        <source>%lld items selected · %@</source>
        <translation>%lld elementi selezionati · %@</translation>
    </message>
    <message>
        <source>%lld item selected · %@</source>
        <translation>%lld elemento selezionato · %@</translation>
    </message>
    <message>
        <source>%@+</source>
        <translation>%@+</translation>
    </message>
    <message>
        <source>Related Files · %@</source>
        <translation>File correlati · %@</translation>
    </message>
    <message>
        <source>No related files</source>
        <translation>Nessun file correlato</translation>
    </message>
    <message>
        <source>No related files found for this app.</source>
        <translation>Nessun file correlato trovato per questa app.</translation>
    </message>
    <message>
        <source>Looking for related files…</source>
        <translation>Ricerca dei file correlati…</translation>
    </message>
    <message>
        <source>Full Disk Access required</source>
        <translation>Accesso completo al disco richiesto</translation>
    </message>
    <message>
        <source>Full Disk Access Required</source>
        <translation>Accesso completo al disco richiesto</translation>
    </message>
    <message>
        <source>Grant Full Disk Access, then restart Brisko to scan app container data (caches, settings) and uninstall apps completely.</source>
        <translation>Concedere l’accesso completo al disco, quindi riavviare Brisko per analizzare i dati dei contenitori delle app (cache, impostazioni) e disinstallare completamente le app.</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Apri Impostazioni di Sistema</translation>
    </message>
    <message>
        <source>Scan Apps</source>
        <translation>Analizza app</translation>
    </message>
    <message>
        <source>Show files of %@</source>
        <translation>Mostra i file di «%@»</translation>
    </message>
    <message>
        <source>Hide files of %@</source>
        <translation>Nascondi i file di «%@»</translation>
    </message>
    <message>
        <source>Startup Items</source>
        <translation>Elementi di avvio</translation>
    </message>
    <message>
        <source>Press Scan to list startup items</source>
        <translation>Avviare un’analisi per elencare gli elementi di avvio</translation>
    </message>
    <message>
        <source>No startup items yet</source>
        <translation>Ancora nessun elemento di avvio</translation>
    </message>
    <message>
        <source>Press Scan to find Launch Agents and Daemons</source>
        <translation>Avviare un’analisi per trovare agenti e demoni di avvio</translation>
    </message>
    <message>
        <source>%lld item · %lld enabled</source>
        <translation>%lld elemento · attivo: %lld</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Attiva</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Disattiva</translation>
    </message>
    <message>
        <source>Remove %@</source>
        <translation>Rimuovi %@</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aspetto</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Chiaro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Scuro</translation>
    </message>
    <message>
        <source>Duplicate Scan Folders</source>
        <translation>Cartelle in cui cercare duplicati</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Aggiungi cartella…</translation>
    </message>
    <message>
        <source>Choose a folder to scan for duplicate files.</source>
        <translation>Scegliere una cartella in cui cercare file duplicati.</translation>
    </message>
    <message>
        <source>Remove folder %@</source>
        <translation>Togli la cartella %@</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Brisko %@</source>
        <translation>Brisko %@</translation>
    </message>
    <message>
        <source>A Cleaner, Lighter Mac — More Space. A Brighter Tomorrow.</source>
        <translation>Un Mac più pulito e leggero – più spazio. Un domani più luminoso.</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Cerca aggiornamenti</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Ricerca di aggiornamenti…</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>Privacy</translation>
    </message>
    <message>
        <source>Terms of Service</source>
        <translation>Condizioni d’uso</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>Contatti</translation>
    </message>
    <message>
        <source>Open Brisko</source>
        <translation>Apri Brisko</translation>
    </message>
    <message>
        <source>Quit Brisko</source>
        <translation>Esci da Brisko</translation>
    </message>
    <message>
        <source>What's New</source>
        <translation>Novità</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Scarica</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Ignora questa versione</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Ricordamelo più tardi</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Aggiornamento disponibile</translation>
    </message>
    <message>
        <source>Version %@</source>
        <translation>Versione %@</translation>
    </message>
    <message>
        <source>Nothing was removed.</source>
        <translation>Non è stato rimosso nulla.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Interrotto.</translation>
    </message>
    <message>
        <source>The settings file was damaged. It is kept as %@.</source>
        <translation>Il file delle impostazioni era danneggiato. È stato conservato come %@.</translation>
    </message>
    <message>
        <source>Too large to copy to the Trash from another disk.</source>
        <translation>Troppo grande per essere copiato nel Cestino da un altro disco.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>%lld · %@</source>
        <translation>%lld · %@</translation>
    </message>
    <message>
        <source>%@?</source>
        <translation>%@?</translation>
    </message>
</context>
</TS>
