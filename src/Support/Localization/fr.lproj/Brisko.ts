<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Brisko</name>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>No usable home folder</source>
        <translation>Aucun dossier personnel utilisable</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Scan complete — %@ can be freed</source>
        <translation>Analyse terminée — %@ à libérer</translation>
    </message>
    <message>
        <source>Old Downloads</source>
        <translation>Anciens téléchargements</translation>
    </message>
    <message>
        <source>App Caches</source>
        <translation>Caches des applications</translation>
    </message>
    <message>
        <source>System Logs</source>
        <translation>Journaux système</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>Fichiers temporaires</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Corbeille</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>Rapports de plantage</translation>
    </message>
    <message>
        <source>Browser Caches</source>
        <translation>Caches des navigateurs</translation>
    </message>
    <message>
        <source>Chat App Caches</source>
        <translation>Caches des applications de discussion</translation>
    </message>
    <message>
        <source>Leftover Installers</source>
        <translation>Programmes d’installation restants</translation>
    </message>
    <message>
        <source>Scanning system caches…</source>
        <translation>Analyse des caches système…</translation>
    </message>
    <message>
        <source>Scanning Trash…</source>
        <translation>Analyse de la corbeille…</translation>
    </message>
    <message>
        <source>Scanning crash reports…</source>
        <translation>Analyse des rapports de plantage…</translation>
    </message>
    <message>
        <source>Scanning browser caches…</source>
        <translation>Analyse des caches des navigateurs…</translation>
    </message>
    <message>
        <source>Scanning chat caches…</source>
        <translation>Analyse des caches de discussion…</translation>
    </message>
    <message>
        <source>Scanning installers…</source>
        <translation>Recherche de programmes d’installation…</translation>
    </message>
    <message>
        <source>Clean %lld categories?</source>
        <translation>Nettoyer %lld catégories ?</translation>
    </message>
    <message>
        <source>Clean %lld category?</source>
        <translation>Nettoyer %lld catégorie ?</translation>
    </message>
    <message>
        <source>%@ · %@</source>
        <translation>%@ · %@</translation>
    </message>
    <message>
        <source>%lld MB</source>
        <translation>%lld Mo</translation>
    </message>
    <message>
        <source>1 GB</source>
        <translation>1 Go</translation>
    </message>
    <message>
        <source>≥ %@</source>
        <translation>≥ %@</translation>
    </message>
    <message>
        <source>%lld file selected · %@</source>
        <translation>%lld fichier sélectionné · %@</translation>
    </message>
    <message>
        <source>%lld files selected · %@</source>
        <translation>%lld fichiers sélectionnés · %@</translation>
    </message>
    <message>
        <source>%lld selected · %@</source>
        <translation>Sélection : %lld · %@</translation>
    </message>
    <message>
        <source>Add folders to scan</source>
        <translation>Ajoutez des dossiers à analyser</translation>
    </message>
    <message>
        <source>At least one copy is kept</source>
        <translation>Au moins une copie est conservée</translation>
    </message>
    <message>
        <source>Choose a folder to scan for large files.</source>
        <translation>Choisissez un dossier où rechercher les gros fichiers.</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>Copier le chemin</translation>
    </message>
    <message>
        <source>Folders:</source>
        <translation>Dossiers :</translation>
    </message>
    <message>
        <source>Grant Full Disk Access, then restart Brisko to scan the Trash, chat app caches, and other protected data.</source>
        <translation>Accordez l’accès complet au disque, puis relancez Brisko pour analyser la corbeille, les caches des applications de discussion et d’autres données protégées.</translation>
    </message>
    <message>
        <source>Hashing file contents, this may take a moment</source>
        <translation>Calcul des empreintes des fichiers, cela peut prendre un moment</translation>
    </message>
    <message>
        <source>Junk categories</source>
        <translation>Catégories de fichiers inutiles</translation>
    </message>
    <message>
        <source>Keep First</source>
        <translation>Garder la 1re</translation>
    </message>
    <message>
        <source>Large files</source>
        <translation>Gros fichiers</translation>
    </message>
    <message>
        <source>No duplicate files yet — press Scan to search</source>
        <translation>Aucun doublon pour l’instant — cliquez sur « Analyser » pour lancer la recherche</translation>
    </message>
    <message>
        <source>No junk found yet</source>
        <translation>Aucun fichier inutile trouvé pour l’instant</translation>
    </message>
    <message>
        <source>No junk found — your Mac is clean</source>
        <translation>Aucun fichier inutile trouvé — votre Mac est propre</translation>
    </message>
    <message>
        <source>No large files yet</source>
        <translation>Aucun gros fichier pour l’instant</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Press Scan to find junk files</source>
        <translation>Cliquez sur « Analyser » pour trouver les fichiers inutiles</translation>
    </message>
    <message>
        <source>Press Scan to search for caches, logs, and temporary files</source>
        <translation>Cliquez sur « Analyser » pour rechercher les caches, les journaux et les fichiers temporaires</translation>
    </message>
    <message>
        <source>Press Scan to search your folders for identical copies</source>
        <translation>Cliquez sur « Analyser » pour rechercher des copies identiques dans vos dossiers</translation>
    </message>
    <message>
        <source>Press Scan to search your folders for large files</source>
        <translation>Cliquez sur « Analyser » pour rechercher les gros fichiers dans vos dossiers</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Réanalyser</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Analyser</translation>
    </message>
    <message>
        <source>Scanning folders…</source>
        <translation>Analyse des dossiers…</translation>
    </message>
    <message>
        <source>Scanning…</source>
        <translation>Analyse en cours…</translation>
    </message>
    <message>
        <source>Select categories to clean</source>
        <translation>Sélectionnez les catégories à nettoyer</translation>
    </message>
    <message>
        <source>Select copies to remove — at least one copy of each file is kept</source>
        <translation>Sélectionnez les copies à supprimer — au moins une copie de chaque fichier est conservée</translation>
    </message>
    <message>
        <source>Select files to remove</source>
        <translation>Sélectionnez les fichiers à supprimer</translation>
    </message>
    <message>
        <source>Set threshold and press Scan</source>
        <translation>Réglez le seuil, puis cliquez sur « Analyser »</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>Afficher dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>… and %lld more</source>
        <translation>… et %lld de plus</translation>
    </message>
    <message>
        <source>This will move %lld files to Trash.</source>
        <translation>%lld fichiers seront mis à la corbeille.</translation>
    </message>
    <message>
        <source>This will move %lld file to Trash.</source>
        <translation>%lld fichier sera mis à la corbeille.</translation>
    </message>
    <message>
        <source>This will permanently delete %lld files.</source>
        <translation>%lld fichiers seront supprimés définitivement.</translation>
    </message>
    <message>
        <source>This will permanently delete %lld file.</source>
        <translation>%lld fichier sera supprimé définitivement.</translation>
    </message>
    <message>
        <source>Total Size</source>
        <translation>Taille totale</translation>
    </message>
    <message>
        <source>Clean Selected</source>
        <translation>Nettoyer la sélection</translation>
    </message>
    <message>
        <source>%@ cleaned</source>
        <translation>Nettoyage : %@</translation>
    </message>
    <message>
        <source>%@ freed</source>
        <translation>%@ d’espace libéré</translation>
    </message>
    <message>
        <source>Cleaned — %@ freed</source>
        <translation>Nettoyage terminé — %@ d’espace libéré</translation>
    </message>
    <message>
        <source>Can't clean junk</source>
        <translation>Impossible de nettoyer les fichiers inutiles</translation>
    </message>
    <message>
        <source>%@ freed, but %lld protected items were skipped (such as diagnostic reports or sandbox data). You can remove them manually in Finder.</source>
        <translation>%@ d’espace libéré. Éléments protégés ignorés : %lld (par exemple des rapports de diagnostic ou des données de bac à sable). Vous pouvez les supprimer manuellement dans le Finder.</translation>
    </message>
    <message>
        <source>Scanning for large files…</source>
        <translation>Recherche des gros fichiers…</translation>
    </message>
    <message>
        <source>Scanning… %lld files checked</source>
        <translation>Analyse en cours… %lld fichiers vérifiés</translation>
    </message>
    <message>
        <source>Remove %lld large files?</source>
        <translation>Supprimer %lld gros fichiers ?</translation>
    </message>
    <message>
        <source>Remove %lld large file?</source>
        <translation>Supprimer %lld gros fichier ?</translation>
    </message>
    <message>
        <source>The selected files will be moved to Trash.</source>
        <translation>Les fichiers sélectionnés seront mis à la corbeille.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mettre à la corbeille</translation>
    </message>
    <message>
        <source>%lld large files removed</source>
        <translation>%lld gros fichiers supprimés</translation>
    </message>
    <message>
        <source>%lld large file removed</source>
        <translation>%lld gros fichier supprimé</translation>
    </message>
    <message>
        <source>Can't move to Trash</source>
        <translation>Mise à la corbeille impossible</translation>
    </message>
    <message>
        <source>Moved to Trash — %@ freed</source>
        <translation>Mise à la corbeille terminée — %@ d’espace libéré</translation>
    </message>
    <message>
        <source>Finding duplicate files…</source>
        <translation>Recherche des doublons…</translation>
    </message>
    <message>
        <source>Collecting files…</source>
        <translation>Collecte des fichiers…</translation>
    </message>
    <message>
        <source>Collecting files… %lld</source>
        <translation>Collecte des fichiers… %lld</translation>
    </message>
    <message>
        <source>Hashing files…</source>
        <translation>Calcul des empreintes des fichiers…</translation>
    </message>
    <message>
        <source>Hashing files… %lld%%</source>
        <translation>Calcul des empreintes des fichiers… %lld %%</translation>
    </message>
    <message>
        <source>Remove %lld duplicate files?</source>
        <translation>Supprimer %lld doublons ?</translation>
    </message>
    <message>
        <source>Remove %lld duplicate file?</source>
        <translation>Supprimer %lld doublon ?</translation>
    </message>
    <message>
        <source>The selected copies will be moved to Trash. One original copy of each file is kept.</source>
        <translation>Les copies sélectionnées seront mises à la corbeille. Un original de chaque fichier est conservé.</translation>
    </message>
    <message>
        <source>Selected Files</source>
        <translation>Fichiers sélectionnés</translation>
    </message>
    <message>
        <source>%lld duplicate files removed</source>
        <translation>Doublons supprimés : %lld</translation>
    </message>
    <message>
        <source>%@ removed</source>
        <translation>Supprimé : %@</translation>
    </message>
    <message>
        <source>Removed %lld duplicates — %@ freed</source>
        <translation>Doublons supprimés : %lld — %@ d’espace libéré</translation>
    </message>
    <message>
        <source>Scanning applications…</source>
        <translation>Recherche des applications…</translation>
    </message>
    <message>
        <source>Brisko needs access to the Library folder to find app-related files.</source>
        <translation>Brisko a besoin d’accéder au dossier Library pour trouver les fichiers associés aux applications.</translation>
    </message>
    <message>
        <source>Brisko needs access to the Library folder to scan caches and logs.</source>
        <translation>Brisko a besoin d’accéder au dossier Library pour analyser les caches et les journaux.</translation>
    </message>
    <message>
        <source>Brisko needs access to the Applications folder to move apps to Trash.</source>
        <translation>Brisko a besoin d’accéder au dossier Applications pour mettre des applications à la corbeille.</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Ajouter le dossier</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>Autoriser l’accès</translation>
    </message>
    <message>
        <source>Uninstall %@?</source>
        <translation>Désinstaller %@ ?</translation>
    </message>
    <message>
        <source>%lld apps</source>
        <translation>%lld applications</translation>
    </message>
    <message>
        <source>This will move the application and related files to Trash.</source>
        <translation>L’application et les fichiers associés seront mis à la corbeille.</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Application</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Applications</translation>
    </message>
    <message>
        <source>Related Files</source>
        <translation>Fichiers associés</translation>
    </message>
    <message>
        <source>%@ uninstalled</source>
        <translation>%@ désinstallé</translation>
    </message>
    <message>
        <source>%lld apps uninstalled</source>
        <translation>%lld applications désinstallées</translation>
    </message>
    <message>
        <source>Launch Agent</source>
        <translation>Agent de lancement</translation>
    </message>
    <message>
        <source>Launch Daemon</source>
        <translation>Démon de lancement</translation>
    </message>
    <message>
        <source>Login Item</source>
        <translation>Élément d’ouverture</translation>
    </message>
    <message>
        <source>Scanning startup items…</source>
        <translation>Recherche des éléments de démarrage…</translation>
    </message>
    <message>
        <source>%@ enabled</source>
        <translation>%@ activé</translation>
    </message>
    <message>
        <source>%@ disabled</source>
        <translation>%@ désactivé</translation>
    </message>
    <message>
        <source>Remove %@?</source>
        <translation>Supprimer %@ ?</translation>
    </message>
    <message>
        <source>This will move the plist file to Trash. You can re-enable it later from the original app.</source>
        <translation>Le fichier plist sera mis à la corbeille. Vous pourrez réactiver l’élément plus tard depuis l’application d’origine.</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Removed %@</source>
        <translation>%@ supprimé</translation>
    </message>
    <message>
        <source>Can't remove startup item</source>
        <translation>Impossible de supprimer l’élément de démarrage</translation>
    </message>
    <message>
        <source>Cannot remove system-level startup items</source>
        <translation>Impossible de supprimer les éléments de démarrage du système</translation>
    </message>
    <message>
        <source>System-level items cannot be modified</source>
        <translation>Les éléments du système ne peuvent pas être modifiés</translation>
    </message>
    <message>
        <source>System-level items cannot be removed</source>
        <translation>Les éléments du système ne peuvent pas être supprimés</translation>
    </message>
    <message>
        <source>Can't reach the update server. Check your network and try again.</source>
        <translation>Impossible de joindre le serveur de mise à jour. Vérifiez votre connexion réseau et réessayez.</translation>
    </message>
    <message>
        <source>You're up to date!</source>
        <translation>Brisko est à jour !</translation>
    </message>
    <message>
        <source>%lld file · %@</source>
        <translation>%lld fichier · %@</translation>
    </message>
    <message>
        <source>%lld files · %@</source>
        <translation>%lld fichiers · %@</translation>
    </message>
    <message>
        <source>%lld category · %@ reclaimable</source>
        <translation>%lld catégorie · %@ à libérer</translation>
    </message>
    <message>
        <source>%lld categories · %@ reclaimable</source>
        <translation>%lld catégories · %@ à libérer</translation>
    </message>
    <message>
        <source>%lld file · %@ total</source>
        <translation>%lld fichier · %@ au total</translation>
    </message>
    <message>
        <source>%lld files · %@ total</source>
        <translation>%lld fichiers · %@ au total</translation>
    </message>
    <message>
        <source>%lld copies · %@ reclaimable</source>
        <translation>%lld copies · %@ à libérer</translation>
    </message>
    <message>
        <source>%lld group · %@ reclaimable</source>
        <translation>%lld groupe · %@ à libérer</translation>
    </message>
    <message>
        <source>%lld groups · %@ reclaimable</source>
        <translation>%lld groupes · %@ à libérer</translation>
    </message>
    <message>
        <source>%lld application · %@ installed</source>
        <translation>%lld application installée · %@</translation>
    </message>
    <message>
        <source>%lld applications · %@ installed</source>
        <translation>%lld applications installées · %@</translation>
    </message>
    <message>
        <source>%lld item · %@ would be removed</source>
        <translation>%lld élément serait supprimé · %@</translation>
    </message>
    <message>
        <source>%lld items · %@ would be removed</source>
        <translation>%lld éléments seraient supprimés · %@</translation>
    </message>
    <message>
        <source>%lld items · %lld enabled</source>
        <translation>%lld éléments · activés : %lld</translation>
    </message>
    <message>
        <source>No junk found</source>
        <translation>Aucun fichier inutile trouvé</translation>
    </message>
    <message>
        <source>No large files found above threshold</source>
        <translation>Aucun gros fichier trouvé au-dessus du seuil</translation>
    </message>
    <message>
        <source>No duplicate files found</source>
        <translation>Aucun doublon trouvé</translation>
    </message>
    <message>
        <source>No applications found</source>
        <translation>Aucune application trouvée</translation>
    </message>
    <message>
        <source>No startup items found</source>
        <translation>Aucun élément de démarrage trouvé</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Inutilisée</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Uninstaller</source>
        <translation>Désinstaller</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Doublons</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>Gros fichiers</translation>
    </message>
    <message>
        <source>Junk Cleaner</source>
        <translation>Nettoyage</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>Free disk space</source>
        <translation>Espace disque libre</translation>
    </message>
    <message>
        <source>Disk Temperature</source>
        <translation>Température disque</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Démarrage</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Your Mac, Cleaner and Lighter</source>
        <translation>Votre Mac, plus propre et plus léger</translation>
    </message>
    <message>
        <source>Free up space, remove junk, and keep your Mac running at its best.</source>
        <translation>Libérez de l’espace, supprimez les fichiers inutiles et gardez votre Mac au mieux de sa forme.</translation>
    </message>
    <message>
        <source>Processor load</source>
        <translation>Charge du processeur</translation>
    </message>
    <message>
        <source>NAND flash</source>
        <translation>Mémoire flash NAND</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>Indisponible</translation>
    </message>
    <message>
        <source>Freeable Space</source>
        <translation>Espace à libérer</translation>
    </message>
    <message>
        <source>Caches, duplicates &amp; unused apps</source>
        <translation>Caches, doublons et applications inutilisées</translation>
    </message>
    <message>
        <source>Unused applications</source>
        <translation>Applications inutilisées</translation>
    </message>
    <message>
        <source>Duplicate files</source>
        <translation>Fichiers en double</translation>
    </message>
    <message>
        <source>Large file cleanup</source>
        <translation>Nettoyage des gros fichiers</translation>
    </message>
    <message>
        <source>Caches &amp; logs</source>
        <translation>Caches et journaux</translation>
    </message>
    <message>
        <source>%lld%%</source>
        <translation>%lld %%</translation>
    </message>
    <message>
        <source>%@ / %@</source>
        <translation>%@ / %@</translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation>Calcul…</translation>
    </message>
    <message>
        <source>Select applications to uninstall</source>
        <translation>Sélectionnez les applications à désinstaller</translation>
    </message>
    <message>
        <source>%lld items selected · %@</source>
        <translation>%lld éléments sélectionnés · %@</translation>
    </message>
    <message>
        <source>%lld item selected · %@</source>
        <translation>%lld élément sélectionné · %@</translation>
    </message>
    <message>
        <source>%@+</source>
        <translation>%@+</translation>
    </message>
    <message>
        <source>Related Files · %@</source>
        <translation>Fichiers associés · %@</translation>
    </message>
    <message>
        <source>No related files</source>
        <translation>Aucun fichier associé</translation>
    </message>
    <message>
        <source>No related files found for this app.</source>
        <translation>Aucun fichier associé trouvé pour cette application.</translation>
    </message>
    <message>
        <source>Looking for related files…</source>
        <translation>Recherche des fichiers associés…</translation>
    </message>
    <message>
        <source>Full Disk Access required</source>
        <translation>Accès complet au disque requis</translation>
    </message>
    <message>
        <source>Full Disk Access Required</source>
        <translation>Accès complet au disque requis</translation>
    </message>
    <message>
        <source>Grant Full Disk Access, then restart Brisko to scan app container data (caches, settings) and uninstall apps completely.</source>
        <translation>Accordez l’accès complet au disque, puis relancez Brisko pour analyser les données des conteneurs d’applications (caches, réglages) et désinstaller complètement les applications.</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Ouvrir Réglages Système</translation>
    </message>
    <message>
        <source>Scan Apps</source>
        <translation>Analyser les apps</translation>
    </message>
    <message>
        <source>Show files of %@</source>
        <translation>Afficher les fichiers de « %@ »</translation>
    </message>
    <message>
        <source>Hide files of %@</source>
        <translation>Masquer les fichiers de « %@ »</translation>
    </message>
    <message>
        <source>Startup Items</source>
        <translation>Éléments de démarrage</translation>
    </message>
    <message>
        <source>Press Scan to list startup items</source>
        <translation>Lancez une analyse pour lister les éléments de démarrage</translation>
    </message>
    <message>
        <source>No startup items yet</source>
        <translation>Aucun élément de démarrage pour l’instant</translation>
    </message>
    <message>
        <source>Press Scan to find Launch Agents and Daemons</source>
        <translation>Lancez une analyse pour trouver les agents et les démons de lancement</translation>
    </message>
    <message>
        <source>%lld item · %lld enabled</source>
        <translation>%lld élément · activé : %lld</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Activer</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Désactiver</translation>
    </message>
    <message>
        <source>Remove %@</source>
        <translation>Supprimer %@</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Duplicate Scan Folders</source>
        <translation>Dossiers où chercher les doublons</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Ajouter un dossier…</translation>
    </message>
    <message>
        <source>Choose a folder to scan for duplicate files.</source>
        <translation>Choisissez un dossier où rechercher les doublons.</translation>
    </message>
    <message>
        <source>Remove folder %@</source>
        <translation>Retirer le dossier %@</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Brisko %@</source>
        <translation>Brisko %@</translation>
    </message>
    <message>
        <source>A Cleaner, Lighter Mac — More Space. A Brighter Tomorrow.</source>
        <translation>Un Mac plus propre et plus léger — plus d’espace. Un avenir plus radieux.</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Rechercher des mises à jour</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>Confidentialité</translation>
    </message>
    <message>
        <source>Terms of Service</source>
        <translation>Conditions d’utilisation</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>Nous contacter</translation>
    </message>
    <message>
        <source>Open Brisko</source>
        <translation>Ouvrir Brisko</translation>
    </message>
    <message>
        <source>Quit Brisko</source>
        <translation>Quitter Brisko</translation>
    </message>
    <message>
        <source>What's New</source>
        <translation>Nouveautés</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Ignorer cette version</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Me le rappeler plus tard</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Mise à jour disponible</translation>
    </message>
    <message>
        <source>Version %@</source>
        <translation>Version %@</translation>
    </message>
    <message>
        <source>Nothing was removed.</source>
        <translation>Rien n’a été supprimé.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Arrêté.</translation>
    </message>
    <message>
        <source>The settings file was damaged. It is kept as %@.</source>
        <translation>Le fichier de réglages était endommagé. Il est conservé sous le nom %@.</translation>
    </message>
    <message>
        <source>Too large to copy to the Trash from another disk.</source>
        <translation>Trop volumineux pour être copié dans la corbeille depuis un autre disque.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>%lld · %@</source>
        <translation>%lld · %@</translation>
    </message>
    <message>
        <source>%@?</source>
        <translation>%@ ?</translation>
    </message>
</context>
</TS>
