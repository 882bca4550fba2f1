<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Brisko</name>
    <message>
        <source>System</source>
        <translation>System</translation>
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
        <source>No usable home folder</source>
        <translation>Kein verwendbarer Benutzerordner</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Scan complete — %@ can be freed</source>
        <translation>Scan abgeschlossen – %@ können freigegeben werden</translation>
    </message>
    <message>
        <source>Old Downloads</source>
        <translation>Alte Downloads</translation>
    </message>
    <message>
        <source>App Caches</source>
        <translation>App-Caches</translation>
    </message>
    <message>
        <source>System Logs</source>
        <translation>Systemprotokolle</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>Temporäre Dateien</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Papierkorb</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>Absturzberichte</translation>
    </message>
    <message>
        <source>Browser Caches</source>
        <translation>Browser-Caches</translation>
    </message>
    <message>
        <source>Chat App Caches</source>
        <translation>Chat-App-Caches</translation>
    </message>
    <message>
        <source>Leftover Installers</source>
        <translation>Verbliebene Installationsdateien</translation>
    </message>
    <message>
        <source>Scanning system caches…</source>
        <translation>System-Caches werden durchsucht …</translation>
    </message>
    <message>
        <source>Scanning Trash…</source>
        <translation>Papierkorb wird durchsucht …</translation>
    </message>
    <message>
        <source>Scanning crash reports…</source>
        <translation>Absturzberichte werden durchsucht …</translation>
    </message>
    <message>
        <source>Scanning browser caches…</source>
        <translation>Browser-Caches werden durchsucht …</translation>
    </message>
    <message>
        <source>Scanning chat caches…</source>
        <translation>Chat-Caches werden durchsucht …</translation>
    </message>
    <message>
        <source>Scanning installers…</source>
        <translation>Installationsdateien werden gesucht …</translation>
    </message>
    <message>
        <source>Clean %lld categories?</source>
        <translation>%lld Kategorien bereinigen?</translation>
    </message>
    <message>
        <source>Clean %lld category?</source>
        <translation>%lld Kategorie bereinigen?</translation>
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
        <translation>%lld Datei ausgewählt · %@</translation>
    </message>
    <message>
        <source>%lld files selected · %@</source>
        <translation>%lld Dateien ausgewählt · %@</translation>
    </message>
    <message>
        <source>%lld selected · %@</source>
        <translation>%lld ausgewählt · %@</translation>
    </message>
    <message>
        <source>Add folders to scan</source>
        <translation>Füge Ordner zum Durchsuchen hinzu</translation>
    </message>
    <message>
        <source>At least one copy is kept</source>
        <translation>Mindestens eine Kopie bleibt erhalten</translation>
    </message>
    <message>
        <source>Choose a folder to scan for large files.</source>
        <translation>Wähle einen Ordner, der nach großen Dateien durchsucht werden soll.</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>Pfad kopieren</translation>
    </message>
    <message>
        <source>Folders:</source>
        <translation>Ordner:</translation>
    </message>
    <message>
        <source>Grant Full Disk Access, then restart Brisko to scan the Trash, chat app caches, and other protected data.</source>
        <translation>Gewähre den Festplattenvollzugriff und starte Brisko dann neu, um den Papierkorb, die Caches von Chat-Apps und andere geschützte Daten zu durchsuchen.</translation>
    </message>
    <message>
        <source>Hashing file contents, this may take a moment</source>
        <translation>Dateiinhalte werden verglichen, das kann einen Moment dauern</translation>
    </message>
    <message>
        <source>Junk categories</source>
        <translation>Kategorien von Datenmüll</translation>
    </message>
    <message>
        <source>Keep First</source>
        <translation>Erste behalten</translation>
    </message>
    <message>
        <source>Large files</source>
        <translation>Große Dateien</translation>
    </message>
    <message>
        <source>No duplicate files yet — press Scan to search</source>
        <translation>Noch keine doppelten Dateien – klicke auf „Scannen“, um zu suchen</translation>
    </message>
    <message>
        <source>No junk found yet</source>
        <translation>Noch kein Datenmüll gefunden</translation>
    </message>
    <message>
        <source>No junk found — your Mac is clean</source>
        <translation>Kein Datenmüll gefunden – dein Mac ist sauber</translation>
    </message>
    <message>
        <source>No large files yet</source>
        <translation>Noch keine großen Dateien</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Press Scan to find junk files</source>
        <translation>Klicke auf „Scannen“, um Datenmüll zu finden</translation>
    </message>
    <message>
        <source>Press Scan to search for caches, logs, and temporary files</source>
        <translation>Klicke auf „Scannen“, um nach Caches, Protokollen und temporären Dateien zu suchen</translation>
    </message>
    <message>
        <source>Press Scan to search your folders for identical copies</source>
        <translation>Klicke auf „Scannen“, um deine Ordner nach identischen Kopien zu durchsuchen</translation>
    </message>
    <message>
        <source>Press Scan to search your folders for large files</source>
        <translation>Klicke auf „Scannen“, um deine Ordner nach großen Dateien zu durchsuchen</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Neu scannen</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Scannen</translation>
    </message>
    <message>
        <source>Scanning folders…</source>
        <translation>Ordner werden durchsucht …</translation>
    </message>
    <message>
        <source>Scanning…</source>
        <translation>Wird gescannt …</translation>
    </message>
    <message>
        <source>Select categories to clean</source>
        <translation>Wähle Kategorien zum Bereinigen aus</translation>
    </message>
    <message>
        <source>Select copies to remove — at least one copy of each file is kept</source>
        <translation>Wähle Kopien zum Entfernen aus – mindestens eine Kopie jeder Datei bleibt erhalten</translation>
    </message>
    <message>
        <source>Select files to remove</source>
        <translation>Wähle Dateien zum Entfernen aus</translation>
    </message>
    <message>
        <source>Set threshold and press Scan</source>
        <translation>Lege die Mindestgröße fest und klicke auf „Scannen“</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>Im Dateimanager anzeigen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>… and %lld more</source>
        <translation>… und %lld weitere</translation>
    </message>
    <message>
        <source>This will move %lld files to Trash.</source>
        <translation>%lld Dateien werden in den Papierkorb verschoben.</translation>
    </message>
    <message>
        <source>This will move %lld file to Trash.</source>
        <translation>%lld Datei wird in den Papierkorb verschoben.</translation>
    </message>
    <message>
        <source>This will permanently delete %lld files.</source>
        <translation>%lld Dateien werden endgültig gelöscht.</translation>
    </message>
    <message>
        <source>This will permanently delete %lld file.</source>
        <translation>%lld Datei wird endgültig gelöscht.</translation>
    </message>
    <message>
        <source>Total Size</source>
        <translation>Gesamtgröße</translation>
    </message>
    <message>
        <source>Clean Selected</source>
        <translation>Auswahl bereinigen</translation>
    </message>
    <message>
        <source>%@ cleaned</source>
        <translation>%@ bereinigt</translation>
    </message>
    <message>
        <source>%@ freed</source>
        <translation>%@ freigegeben</translation>
    </message>
    <message>
        <source>Cleaned — %@ freed</source>
        <translation>Bereinigt – %@ freigegeben</translation>
    </message>
    <message>
        <source>Can't clean junk</source>
        <translation>Datenmüll kann nicht bereinigt werden</translation>
    </message>
    <message>
        <source>%@ freed, but %lld protected items were skipped (such as diagnostic reports or sandbox data). You can remove them manually in Finder.</source>
        <translation>%@ freigegeben, aber %lld geschützte Objekte wurden übersprungen (etwa Diagnoseberichte oder Sandbox-Daten). Du kannst sie im Finder selbst entfernen.</translation>
    </message>
    <message>
        <source>Scanning for large files…</source>
        <translation>Große Dateien werden gesucht …</translation>
    </message>
    <message>
        <source>Scanning… %lld files checked</source>
        <translation>Wird gescannt … %lld Dateien geprüft</translation>
    </message>
    <message>
        <source>Remove %lld large files?</source>
        <translation>%lld große Dateien entfernen?</translation>
    </message>
    <message>
        <source>Remove %lld large file?</source>
        <translation>%lld große Datei entfernen?</translation>
    </message>
    <message>
        <source>The selected files will be moved to Trash.</source>
        <translation>Die ausgewählten Dateien werden in den Papierkorb verschoben.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
    <message>
        <source>%lld large files removed</source>
        <translation>%lld große Dateien entfernt</translation>
    </message>
    <message>
        <source>%lld large file removed</source>
        <translation>%lld große Datei entfernt</translation>
    </message>
    <message>
        <source>Can't move to Trash</source>
        <translation>Verschieben in den Papierkorb nicht möglich</translation>
    </message>
    <message>
        <source>Moved to Trash — %@ freed</source>
        <translation>In den Papierkorb verschoben – %@ freigegeben</translation>
    </message>
    <message>
        <source>Finding duplicate files…</source>
        <translation>Doppelte Dateien werden gesucht …</translation>
    </message>
    <message>
        <source>Collecting files…</source>
        <translation>Dateien werden erfasst …</translation>
    </message>
    <message>
        <source>Collecting files… %lld</source>
        <translation>Dateien werden erfasst … %lld</translation>
    </message>
    <message>
        <source>Hashing files…</source>
        <translation>Dateien werden verglichen …</translation>
    </message>
    <message>
        <source>Hashing files… %lld%%</source>
        <translation>Dateien werden verglichen … %lld %%</translation>
    </message>
    <message>
        <source>Remove %lld duplicate files?</source>
        <translation>%lld doppelte Dateien entfernen?</translation>
    </message>
    <message>
        <source>Remove %lld duplicate file?</source>
        <translation>%lld doppelte Datei entfernen?</translation>
    </message>
    <message>
        <source>The selected copies will be moved to Trash. One original copy of each file is kept.</source>
        <translation>Die ausgewählten Kopien werden in den Papierkorb verschoben. Von jeder Datei bleibt ein Original erhalten.</translation>
    </message>
    <message>
        <source>Selected Files</source>
        <translation>Ausgewählte Dateien</translation>
    </message>
    <message>
        <source>%lld duplicate files removed</source>
        <translation>%lld doppelte Dateien entfernt</translation>
    </message>
    <message>
        <source>%@ removed</source>
        <translation>%@ entfernt</translation>
    </message>
    <message>
        <source>Removed %lld duplicates — %@ freed</source>
        <translation>%lld Duplikate entfernt – %@ freigegeben</translation>
    </message>
    <message>
        <source>Scanning applications…</source>
        <translation>Apps werden gesucht …</translation>
    </message>
    <message>
        <source>Brisko needs access to the Library folder to find app-related files.</source>
        <translation>Brisko benötigt Zugriff auf den Library-Ordner, um zugehörige Dateien von Apps zu finden.</translation>
    </message>
    <message>
        <source>Brisko needs access to the Library folder to scan caches and logs.</source>
        <translation>Brisko benötigt Zugriff auf den Library-Ordner, um Caches und Protokolle zu durchsuchen.</translation>
    </message>
    <message>
        <source>Brisko needs access to the Applications folder to move apps to Trash.</source>
        <translation>Brisko benötigt Zugriff auf den Programme-Ordner, um Apps in den Papierkorb zu verschieben.</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>Zugriff gewähren</translation>
    </message>
    <message>
        <source>Uninstall %@?</source>
        <translation>%@ deinstallieren?</translation>
    </message>
    <message>
        <source>%lld apps</source>
        <translation>%lld Apps</translation>
    </message>
    <message>
        <source>This will move the application and related files to Trash.</source>
        <translation>Die App und die zugehörigen Dateien werden in den Papierkorb verschoben.</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>App</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Apps</translation>
    </message>
    <message>
        <source>Related Files</source>
        <translation>Zugehörige Dateien</translation>
    </message>
    <message>
        <source>%@ uninstalled</source>
        <translation>%@ deinstalliert</translation>
    </message>
    <message>
        <source>%lld apps uninstalled</source>
        <translation>%lld Apps deinstalliert</translation>
    </message>
    <message>
        <source>Launch Agent</source>
        <translation>Startagent</translation>
    </message>
    <message>
        <source>Launch Daemon</source>
        <translation>Startdienst</translation>
    </message>
    <message>
        <source>Login Item</source>
        <translation>Anmeldeobjekt</translation>
    </message>
    <message>
        <source>Scanning startup items…</source>
        <translation>Startobjekte werden gesucht …</translation>
    </message>
    <message>
        <source>%@ enabled</source>
        <translation>%@ aktiviert</translation>
    </message>
    <message>
        <source>%@ disabled</source>
        <translation>%@ deaktiviert</translation>
    </message>
    <message>
        <source>Remove %@?</source>
        <translation>%@ entfernen?</translation>
    </message>
    <message>
        <source>This will move the plist file to Trash. You can re-enable it later from the original app.</source>
        <translation>Die plist-Datei wird in den Papierkorb verschoben. Du kannst das Objekt später in der zugehörigen App wieder aktivieren.</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Removed %@</source>
        <translation>%@ entfernt</translation>
    </message>
    <message>
        <source>Can't remove startup item</source>
        <translation>Startobjekt kann nicht entfernt werden</translation>
    </message>
    <message>
        <source>Cannot remove system-level startup items</source>
        <translation>Startobjekte des Systems können nicht entfernt werden</translation>
    </message>
    <message>
        <source>System-level items cannot be modified</source>
        <translation>Objekte des Systems können nicht geändert werden</translation>
    </message>
    <message>
        <source>System-level items cannot be removed</source>
        <translation>Objekte des Systems können nicht entfernt werden</translation>
    </message>
    <message>
        <source>Can't reach the update server. Check your network and try again.</source>
        <translation>Der Update-Server ist nicht erreichbar. Überprüfe die Netzwerkverbindung und versuche es erneut.</translation>
    </message>
    <message>
        <source>You're up to date!</source>
        <translation>Brisko ist auf dem neuesten Stand!</translation>
    </message>
    <message>
        <source>%lld file · %@</source>
        <translation>%lld Datei · %@</translation>
    </message>
    <message>
        <source>%lld files · %@</source>
        <translation>%lld Dateien · %@</translation>
    </message>
    <message>
        <source>%lld category · %@ reclaimable</source>
        <translation>%lld Kategorie · %@ freigebbar</translation>
    </message>
    <message>
        <source>%lld categories · %@ reclaimable</source>
        <translation>%lld Kategorien · %@ freigebbar</translation>
    </message>
    <message>
        <source>%lld file · %@ total</source>
        <translation>%lld Datei · insgesamt %@</translation>
    </message>
    <message>
        <source>%lld files · %@ total</source>
        <translation>%lld Dateien · insgesamt %@</translation>
    </message>
    <message>
        <source>%lld copies · %@ reclaimable</source>
        <translation>%lld Kopien · %@ freigebbar</translation>
    </message>
    <message>
        <source>%lld group · %@ reclaimable</source>
        <translation>%lld Gruppe · %@ freigebbar</translation>
    </message>
    <message>
        <source>%lld groups · %@ reclaimable</source>
        <translation>%lld Gruppen · %@ freigebbar</translation>
    </message>
    <message>
        <source>%lld application · %@ installed</source>
        <translation>%lld App · %@ installiert</translation>
    </message>
    <message>
        <source>%lld applications · %@ installed</source>
        <translation>%lld Apps · %@ installiert</translation>
    </message>
    <message>
        <source>%lld item · %@ would be removed</source>
        <translation>%lld Objekt · %@ würden entfernt</translation>
    </message>
    <message>
        <source>%lld items · %@ would be removed</source>
        <translation>%lld Objekte · %@ würden entfernt</translation>
    </message>
    <message>
        <source>%lld items · %lld enabled</source>
        <translation>%lld Objekte · %lld aktiv</translation>
    </message>
    <message>
        <source>No junk found</source>
        <translation>Kein Datenmüll gefunden</translation>
    </message>
    <message>
        <source>No large files found above threshold</source>
        <translation>Keine großen Dateien über der Mindestgröße gefunden</translation>
    </message>
    <message>
        <source>No duplicate files found</source>
        <translation>Keine doppelten Dateien gefunden</translation>
    </message>
    <message>
        <source>No applications found</source>
        <translation>Keine Apps gefunden</translation>
    </message>
    <message>
        <source>No startup items found</source>
        <translation>Keine Startobjekte gefunden</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Ungenutzt</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>Uninstaller</source>
        <translation>Deinstallation</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Duplikate</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>Große Dateien</translation>
    </message>
    <message>
        <source>Junk Cleaner</source>
        <translation>Datenmüll</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Arbeitsspeicher</translation>
    </message>
    <message>
        <source>Free disk space</source>
        <translation>Freier Speicher</translation>
    </message>
    <message>
        <source>Disk Temperature</source>
        <translation>Laufwerkstemperatur</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Autostart</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Your Mac, Cleaner and Lighter</source>
        <translation>Dein Mac, sauberer und leichter</translation>
    </message>
    <message>
        <source>Free up space, remove junk, and keep your Mac running at its best.</source>
        <translation>Schaffe Platz, entferne Datenmüll und halte deinen Mac in Bestform.</translation>
    </message>
    <message>
        <source>Processor load</source>
        <translation>Prozessorauslastung</translation>
    </message>
    <message>
        <source>NAND flash</source>
        <translation>NAND-Flash</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>Freeable Space</source>
        <translation>Freigebbarer Speicher</translation>
    </message>
    <message>
        <source>Caches, duplicates &amp; unused apps</source>
        <translation>Caches, Duplikate und ungenutzte Apps</translation>
    </message>
    <message>
        <source>Unused applications</source>
        <translation>Ungenutzte Apps</translation>
    </message>
    <message>
        <source>Duplicate files</source>
        <translation>Doppelte Dateien</translation>
    </message>
    <message>
        <source>Large file cleanup</source>
        <translation>Große Dateien aufräumen</translation>
    </message>
    <message>
        <source>Caches &amp; logs</source>
        <translation>Caches und Protokolle</translation>
    </message>
    <message>
        <source>%lld%%</source>
        <translation>%lld %%</translation>
    </message>
    <message>
        <source>%@ / %@</source>
        <translation>%@ / %@</translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation>Wird berechnet …</translation>
    </message>
    <message>
        <source>Select applications to uninstall</source>
        <translation>Wähle Apps zum Deinstallieren aus</translation>
    </message>
    <message>
        <source>%lld items selected · %@</source>
        <translation>%lld Objekte ausgewählt · %@</translation>
    </message>
    <message>
        <source>%lld item selected · %@</source>
        <translation>%lld Objekt ausgewählt · %@</translation>
    </message>
    <message>
        <source>%@+</source>
        <translation>%@+</translation>
    </message>
    <message>
        <source>Related Files · %@</source>
        <translation>Zugehörige Dateien · %@</translation>
    </message>
    <message>
        <source>No related files</source>
        <translation>Keine zugehörigen Dateien</translation>
    </message>
    <message>
        <source>No related files found for this app.</source>
        <translation>Zu dieser App wurden keine zugehörigen Dateien gefunden.</translation>
    </message>
    <message>
        <source>Looking for related files…</source>
        <translation>Zugehörige Dateien werden gesucht …</translation>
    </message>
    <message>
        <source>Full Disk Access required</source>
        <translation>Festplattenvollzugriff erforderlich</translation>
    </message>
    <message>
        <source>Full Disk Access Required</source>
        <translation>Festplattenvollzugriff erforderlich</translation>
    </message>
    <message>
        <source>Grant Full Disk Access, then restart Brisko to scan app container data (caches, settings) and uninstall apps completely.</source>
        <translation>Gewähre den Festplattenvollzugriff und starte Brisko dann neu, um Daten in App-Containern (Caches, Einstellungen) zu durchsuchen und Apps vollständig zu deinstallieren.</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Systemeinstellungen öffnen</translation>
    </message>
    <message>
        <source>Scan Apps</source>
        <translation>Apps suchen</translation>
    </message>
    <message>
        <source>Show files of %@</source>
        <translation>Dateien von %@ anzeigen</translation>
    </message>
    <message>
        <source>Hide files of %@</source>
        <translation>Dateien von %@ ausblenden</translation>
    </message>
    <message>
        <source>Startup Items</source>
        <translation>Startobjekte</translation>
    </message>
    <message>
        <source>Press Scan to list startup items</source>
        <translation>Klicke auf „Scannen“, um Startobjekte aufzulisten</translation>
    </message>
    <message>
        <source>No startup items yet</source>
        <translation>Noch keine Startobjekte</translation>
    </message>
    <message>
        <source>Press Scan to find Launch Agents and Daemons</source>
        <translation>Klicke auf „Scannen“, um Startagenten und Startdienste zu finden</translation>
    </message>
    <message>
        <source>%lld item · %lld enabled</source>
        <translation>%lld Objekt · %lld aktiv</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Aktivieren</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Deaktivieren</translation>
    </message>
    <message>
        <source>Remove %@</source>
        <translation>%@ entfernen</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Duplicate Scan Folders</source>
        <translation>Ordner für die Duplikatsuche</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Ordner hinzufügen …</translation>
    </message>
    <message>
        <source>Choose a folder to scan for duplicate files.</source>
        <translation>Wähle einen Ordner, der nach doppelten Dateien durchsucht werden soll.</translation>
    </message>
    <message>
        <source>Remove folder %@</source>
        <translation>Ordner %@ aus der Liste entfernen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Brisko %@</source>
        <translation>Brisko %@</translation>
    </message>
    <message>
        <source>A Cleaner, Lighter Mac — More Space. A Brighter Tomorrow.</source>
        <translation>Ein sauberer, leichterer Mac – mehr Platz. Ein helleres Morgen.</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Updates werden gesucht …</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>Datenschutz</translation>
    </message>
    <message>
        <source>Terms of Service</source>
        <translation>Nutzungsbedingungen</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>Kontakt</translation>
    </message>
    <message>
        <source>Open Brisko</source>
        <translation>Brisko öffnen</translation>
    </message>
    <message>
        <source>Quit Brisko</source>
        <translation>Brisko beenden</translation>
    </message>
    <message>
        <source>What's New</source>
        <translation>Neuigkeiten</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Version überspringen</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Später erinnern</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Update verfügbar</translation>
    </message>
    <message>
        <source>Version %@</source>
        <translation>Version %@</translation>
    </message>
    <message>
        <source>Nothing was removed.</source>
        <translation>Es wurde nichts entfernt.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Gestoppt.</translation>
    </message>
    <message>
        <source>The settings file was damaged. It is kept as %@.</source>
        <translation>Die Einstellungsdatei war beschädigt. Sie wurde als %@ aufbewahrt.</translation>
    </message>
    <message>
        <source>Too large to copy to the Trash from another disk.</source>
        <translation>Zu groß, um von einem anderen Laufwerk in den Papierkorb kopiert zu werden.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoomen</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
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
