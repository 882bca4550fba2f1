<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="zh-Hant" sourcelanguage="en">
<context>
    <name>Brisko</name>
    <message>
        <source>System</source>
        <translation>跟隨系統</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>No usable home folder</source>
        <translation>沒有可用的家目錄</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Scan complete — %@ can be freed</source>
        <translation>掃描完成，可釋放 %@</translation>
    </message>
    <message>
        <source>Old Downloads</source>
        <translation>舊的下載檔案</translation>
    </message>
    <message>
        <source>App Caches</source>
        <translation>應用程式快取</translation>
    </message>
    <message>
        <source>System Logs</source>
        <translation>系統記錄檔</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>暫存檔</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>垃圾桶</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>當機報告</translation>
    </message>
    <message>
        <source>Browser Caches</source>
        <translation>瀏覽器快取</translation>
    </message>
    <message>
        <source>Chat App Caches</source>
        <translation>聊天應用程式快取</translation>
    </message>
    <message>
        <source>Leftover Installers</source>
        <translation>殘留的安裝檔</translation>
    </message>
    <message>
        <source>Scanning system caches…</source>
        <translation>正在掃描系統快取…</translation>
    </message>
    <message>
        <source>Scanning Trash…</source>
        <translation>正在掃描垃圾桶…</translation>
    </message>
    <message>
        <source>Scanning crash reports…</source>
        <translation>正在掃描當機報告…</translation>
    </message>
    <message>
        <source>Scanning browser caches…</source>
        <translation>正在掃描瀏覽器快取…</translation>
    </message>
    <message>
        <source>Scanning chat caches…</source>
        <translation>正在掃描聊天快取…</translation>
    </message>
    <message>
        <source>Scanning installers…</source>
        <translation>正在掃描安裝檔…</translation>
    </message>
    <message>
        <source>Clean %lld categories?</source>
        <translation>要清理 %lld 個類別嗎？</translation>
    </message>
    <message>
        <source>Clean %lld category?</source>
        <translation>要清理 %lld 個類別嗎？</translation>
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
        <translation>已選取 %lld 個檔案 · %@</translation>
    </message>
    <message>
        <source>%lld files selected · %@</source>
        <translation>已選取 %lld 個檔案 · %@</translation>
    </message>
    <message>
        <source>%lld selected · %@</source>
        <translation>已選取 %lld 項 · %@</translation>
    </message>
    <message>
        <source>Add folders to scan</source>
        <translation>請加入要掃描的資料夾</translation>
    </message>
    <message>
        <source>At least one copy is kept</source>
        <translation>至少會保留一份副本</translation>
    </message>
    <message>
        <source>Choose a folder to scan for large files.</source>
        <translation>選擇要在其中尋找大型檔案的資料夾。</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>複製路徑</translation>
    </message>
    <message>
        <source>Folders:</source>
        <translation>資料夾：</translation>
    </message>
    <message>
        <source>Grant Full Disk Access, then restart Brisko to scan the Trash, chat app caches, and other protected data.</source>
        <translation>請授予「完全取用磁碟」權限，然後重新啟動 Brisko，以掃描垃圾桶、聊天應用程式快取和其他受保護的資料。</translation>
    </message>
    <message>
        <source>Hashing file contents, this may take a moment</source>
        <translation>正在計算檔案內容的雜湊值，可能需要一點時間</translation>
    </message>
    <message>
        <source>Junk categories</source>
        <translation>垃圾檔案類別</translation>
    </message>
    <message>
        <source>Keep First</source>
        <translation>保留第一個</translation>
    </message>
    <message>
        <source>Large files</source>
        <translation>大型檔案</translation>
    </message>
    <message>
        <source>No duplicate files yet — press Scan to search</source>
        <translation>尚未找到重複檔案，按一下「掃描」開始尋找</translation>
    </message>
    <message>
        <source>No junk found yet</source>
        <translation>尚未找到垃圾檔案</translation>
    </message>
    <message>
        <source>No junk found — your Mac is clean</source>
        <translation>未找到垃圾檔案，Mac 很乾淨</translation>
    </message>
    <message>
        <source>No large files yet</source>
        <translation>尚未找到大型檔案</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>原始檔</translation>
    </message>
    <message>
        <source>Press Scan to find junk files</source>
        <translation>按一下「掃描」來尋找垃圾檔案</translation>
    </message>
    <message>
        <source>Press Scan to search for caches, logs, and temporary files</source>
        <translation>按一下「掃描」來尋找快取、記錄檔和暫存檔</translation>
    </message>
    <message>
        <source>Press Scan to search your folders for identical copies</source>
        <translation>按一下「掃描」在資料夾中尋找內容相同的副本</translation>
    </message>
    <message>
        <source>Press Scan to search your folders for large files</source>
        <translation>按一下「掃描」在資料夾中尋找大型檔案</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>重新掃描</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>掃描</translation>
    </message>
    <message>
        <source>Scanning folders…</source>
        <translation>正在掃描資料夾…</translation>
    </message>
    <message>
        <source>Scanning…</source>
        <translation>正在掃描…</translation>
    </message>
    <message>
        <source>Select categories to clean</source>
        <translation>選取要清理的類別</translation>
    </message>
    <message>
        <source>Select copies to remove — at least one copy of each file is kept</source>
        <translation>選取要移除的副本，每個檔案至少會保留一份</translation>
    </message>
    <message>
        <source>Select files to remove</source>
        <translation>選取要移除的檔案</translation>
    </message>
    <message>
        <source>Set threshold and press Scan</source>
        <translation>設定大小門檻，然後按一下「掃描」</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>在檔案管理員中顯示</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>… and %lld more</source>
        <translation>…還有 %lld 個</translation>
    </message>
    <message>
        <source>This will move %lld files to Trash.</source>
        <translation>會將 %lld 個檔案移到垃圾桶。</translation>
    </message>
    <message>
        <source>This will move %lld file to Trash.</source>
        <translation>會將 %lld 個檔案移到垃圾桶。</translation>
    </message>
    <message>
        <source>This will permanently delete %lld files.</source>
        <translation>會永久刪除 %lld 個檔案。</translation>
    </message>
    <message>
        <source>This will permanently delete %lld file.</source>
        <translation>會永久刪除 %lld 個檔案。</translation>
    </message>
    <message>
        <source>Total Size</source>
        <translation>總大小</translation>
    </message>
    <message>
        <source>Clean Selected</source>
        <translation>清理所選項目</translation>
    </message>
    <message>
        <source>%@ cleaned</source>
        <translation>已清理「%@」</translation>
    </message>
    <message>
        <source>%@ freed</source>
        <translation>已釋放 %@</translation>
    </message>
    <message>
        <source>Cleaned — %@ freed</source>
        <translation>清理完成，已釋放 %@</translation>
    </message>
    <message>
        <source>Can't clean junk</source>
        <translation>無法清理垃圾檔案</translation>
    </message>
    <message>
        <source>%@ freed, but %lld protected items were skipped (such as diagnostic reports or sandbox data). You can remove them manually in Finder.</source>
        <translation>已釋放 %@，但略過了 %lld 個受保護的項目（例如診斷報告或沙箱資料）。可以在 Finder 中手動移除這些項目。</translation>
    </message>
    <message>
        <source>Scanning for large files…</source>
        <translation>正在尋找大型檔案…</translation>
    </message>
    <message>
        <source>Scanning… %lld files checked</source>
        <translation>正在掃描…已檢查 %lld 個檔案</translation>
    </message>
    <message>
        <source>Remove %lld large files?</source>
        <translation>要移除 %lld 個大型檔案嗎？</translation>
    </message>
    <message>
        <source>Remove %lld large file?</source>
        <translation>要移除 %lld 個大型檔案嗎？</translation>
    </message>
    <message>
        <source>The selected files will be moved to Trash.</source>
        <translation>會將所選檔案移到垃圾桶。</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>移到垃圾桶</translation>
    </message>
    <message>
        <source>%lld large files removed</source>
        <translation>已移除 %lld 個大型檔案</translation>
    </message>
    <message>
        <source>%lld large file removed</source>
        <translation>已移除 %lld 個大型檔案</translation>
    </message>
    <message>
        <source>Can't move to Trash</source>
        <translation>無法移到垃圾桶</translation>
    </message>
    <message>
        <source>Moved to Trash — %@ freed</source>
        <translation>已移到垃圾桶，釋放了 %@</translation>
    </message>
    <message>
        <source>Finding duplicate files…</source>
        <translation>正在尋找重複檔案…</translation>
    </message>
    <message>
        <source>Collecting files…</source>
        <translation>正在收集檔案…</translation>
    </message>
    <message>
        <source>Collecting files… %lld</source>
        <translation>正在收集檔案… %lld</translation>
    </message>
    <message>
        <source>Hashing files…</source>
        <translation>正在計算檔案雜湊值…</translation>
    </message>
    <message>
        <source>Hashing files… %lld%%</source>
        <translation>正在計算檔案雜湊值… %lld%%</translation>
    </message>
    <message>
        <source>Remove %lld duplicate files?</source>
        <translation>要移除 %lld 個重複檔案嗎？</translation>
    </message>
    <message>
        <source>Remove %lld duplicate file?</source>
        <translation>要移除 %lld 個重複檔案嗎？</translation>
    </message>
    <message>
        <source>The selected copies will be moved to Trash. One original copy of each file is kept.</source>
        <translation>會將所選副本移到垃圾桶。每個檔案會保留一份原始檔。</translation>
    </message>
    <message>
        <source>Selected Files</source>
        <translation>所選檔案</translation>
    </message>
    <message>
        <source>%lld duplicate files removed</source>
        <translation>已移除 %lld 個重複檔案</translation>
    </message>
    <message>
        <source>%@ removed</source>
        <translation>已移除 %@</translation>
    </message>
    <message>
        <source>Removed %lld duplicates — %@ freed</source>
        <translation>已移除 %lld 個重複檔案，釋放了 %@</translation>
    </message>
    <message>
        <source>Scanning applications…</source>
        <translation>正在掃描應用程式…</translation>
    </message>
    <message>
        <source>Brisko needs access to the Library folder to find app-related files.</source>
        <translation>Brisko 需要取用「資源庫」資料夾，才能尋找應用程式的相關檔案。</translation>
    </message>
    <message>
        <source>Brisko needs access to the Library folder to scan caches and logs.</source>
        <translation>Brisko 需要取用「資源庫」資料夾，才能掃描快取和記錄檔。</translation>
    </message>
    <message>
        <source>Brisko needs access to the Applications folder to move apps to Trash.</source>
        <translation>Brisko 需要取用「應用程式」資料夾，才能將應用程式移到垃圾桶。</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>加入資料夾</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>授予取用權限</translation>
    </message>
    <message>
        <source>Uninstall %@?</source>
        <translation>要解除安裝 %@ 嗎？</translation>
    </message>
    <message>
        <source>%lld apps</source>
        <translation>%lld 個應用程式</translation>
    </message>
    <message>
        <source>This will move the application and related files to Trash.</source>
        <translation>會將應用程式和相關檔案移到垃圾桶。</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>應用程式</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>應用程式</translation>
    </message>
    <message>
        <source>Related Files</source>
        <translation>相關檔案</translation>
    </message>
    <message>
        <source>%@ uninstalled</source>
        <translation>已解除安裝「%@」</translation>
    </message>
    <message>
        <source>%lld apps uninstalled</source>
        <translation>已解除安裝 %lld 個應用程式</translation>
    </message>
    <message>
        <source>Launch Agent</source>
        <translation>啟動代理程式</translation>
    </message>
    <message>
        <source>Launch Daemon</source>
        <translation>啟動常駐程式</translation>
    </message>
    <message>
        <source>Login Item</source>
        <translation>登入項目</translation>
    </message>
    <message>
        <source>Scanning startup items…</source>
        <translation>正在掃描啟動項目…</translation>
    </message>
    <message>
        <source>%@ enabled</source>
        <translation>已啟用「%@」</translation>
    </message>
    <message>
        <source>%@ disabled</source>
        <translation>已停用「%@」</translation>
    </message>
    <message>
        <source>Remove %@?</source>
        <translation>要移除「%@」嗎？</translation>
    </message>
    <message>
        <source>This will move the plist file to Trash. You can re-enable it later from the original app.</source>
        <translation>會將 plist 檔案移到垃圾桶。之後可以在原本的應用程式中重新啟用此項目。</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路徑</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Removed %@</source>
        <translation>已移除「%@」</translation>
    </message>
    <message>
        <source>Can't remove startup item</source>
        <translation>無法移除啟動項目</translation>
    </message>
    <message>
        <source>Cannot remove system-level startup items</source>
        <translation>無法移除系統層級的啟動項目</translation>
    </message>
    <message>
        <source>System-level items cannot be modified</source>
        <translation>無法更改系統層級的項目</translation>
    </message>
    <message>
        <source>System-level items cannot be removed</source>
        <translation>無法移除系統層級的項目</translation>
    </message>
    <message>
        <source>Can't reach the update server. Check your network and try again.</source>
        <translation>無法連線到更新伺服器。請檢查網路，然後再試一次。</translation>
    </message>
    <message>
        <source>You're up to date!</source>
        <translation>已是最新版本！</translation>
    </message>
    <message>
        <source>%lld file · %@</source>
        <translation>%lld 個檔案 · %@</translation>
    </message>
    <message>
        <source>%lld files · %@</source>
        <translation>%lld 個檔案 · %@</translation>
    </message>
    <message>
        <source>%lld category · %@ reclaimable</source>
        <translation>%lld 個類別 · 可釋放 %@</translation>
    </message>
    <message>
        <source>%lld categories · %@ reclaimable</source>
        <translation>%lld 個類別 · 可釋放 %@</translation>
    </message>
    <message>
        <source>%lld file · %@ total</source>
        <translation>%lld 個檔案 · 共 %@</translation>
    </message>
    <message>
        <source>%lld files · %@ total</source>
        <translation>%lld 個檔案 · 共 %@</translation>
    </message>
    <message>
        <source>%lld copies · %@ reclaimable</source>
        <translation>%lld 份副本 · 可釋放 %@</translation>
    </message>
    <message>
        <source>%lld group · %@ reclaimable</source>
        <translation>%lld 組 · 可釋放 %@</translation>
    </message>
    <message>
        <source>%lld groups · %@ reclaimable</source>
        <translation>%lld 組 · 可釋放 %@</translation>
    </message>
    <message>
        <source>%lld application · %@ installed</source>
        <translation>已安裝 %lld 個應用程式 · %@</translation>
    </message>
    <message>
        <source>%lld applications · %@ installed</source>
        <translation>已安裝 %lld 個應用程式 · %@</translation>
    </message>
    <message>
        <source>%lld item · %@ would be removed</source>
        <translation>預計移除 %lld 項 · %@</translation>
    </message>
    <message>
        <source>%lld items · %@ would be removed</source>
        <translation>預計移除 %lld 項 · %@</translation>
    </message>
    <message>
        <source>%lld items · %lld enabled</source>
        <translation>%lld 項 · 已啟用 %lld 項</translation>
    </message>
    <message>
        <source>No junk found</source>
        <translation>未找到垃圾檔案</translation>
    </message>
    <message>
        <source>No large files found above threshold</source>
        <translation>未找到超過門檻的大型檔案</translation>
    </message>
    <message>
        <source>No duplicate files found</source>
        <translation>未找到重複檔案</translation>
    </message>
    <message>
        <source>No applications found</source>
        <translation>未找到應用程式</translation>
    </message>
    <message>
        <source>No startup items found</source>
        <translation>未找到啟動項目</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>未使用</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>已啟用</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已停用</translation>
    </message>
    <message>
        <source>Uninstaller</source>
        <translation>解除安裝</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>重複檔案</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>大型檔案</translation>
    </message>
    <message>
        <source>Junk Cleaner</source>
        <translation>垃圾清理</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>記憶體</translation>
    </message>
    <message>
        <source>Free disk space</source>
        <translation>可用磁碟空間</translation>
    </message>
    <message>
        <source>Disk Temperature</source>
        <translation>磁碟溫度</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>總覽</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>啟動項目</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Your Mac, Cleaner and Lighter</source>
        <translation>讓 Mac 更乾淨、更輕快</translation>
    </message>
    <message>
        <source>Free up space, remove junk, and keep your Mac running at its best.</source>
        <translation>釋放空間、移除垃圾檔案，讓 Mac 保持最佳狀態。</translation>
    </message>
    <message>
        <source>Processor load</source>
        <translation>處理器負載</translation>
    </message>
    <message>
        <source>NAND flash</source>
        <translation>NAND 快閃記憶體</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>無法取得</translation>
    </message>
    <message>
        <source>Freeable Space</source>
        <translation>可釋放空間</translation>
    </message>
    <message>
        <source>Caches, duplicates &amp; unused apps</source>
        <translation>快取、重複檔案與未使用的應用程式</translation>
    </message>
    <message>
        <source>Unused applications</source>
        <translation>未使用的應用程式</translation>
    </message>
    <message>
        <source>Duplicate files</source>
        <translation>重複檔案</translation>
    </message>
    <message>
        <source>Large file cleanup</source>
        <translation>大型檔案清理</translation>
    </message>
    <message>
        <source>Caches &amp; logs</source>
        <translation>快取與記錄檔</translation>
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
        <translation>正在計算…</translation>
    </message>
    <message>
        <source>Select applications to uninstall</source>
        <translation>選取要解除安裝的應用程式</translation>
    </message>
    <message>
        <source>%lld items selected · %@</source>
        <translation>已選取 %lld 項 · %@</translation>
    </message>
    <message>
        <source>%lld item selected · %@</source>
        <translation>已選取 %lld 項 · %@</translation>
    </message>
    <message>
        <source>%@+</source>
        <translation>%@+</translation>
    </message>
    <message>
        <source>Related Files · %@</source>
        <translation>相關檔案 · %@</translation>
    </message>
    <message>
        <source>No related files</source>
        <translation>沒有相關檔案</translation>
    </message>
    <message>
        <source>No related files found for this app.</source>
        <translation>未找到此應用程式的相關檔案。</translation>
    </message>
    <message>
        <source>Looking for related files…</source>
        <translation>正在尋找相關檔案…</translation>
    </message>
    <message>
        <source>Full Disk Access required</source>
        <translation>需要「完全取用磁碟」權限</translation>
    </message>
    <message>
        <source>Full Disk Access Required</source>
        <translation>需要「完全取用磁碟」權限</translation>
    </message>
    <message>
        <source>Grant Full Disk Access, then restart Brisko to scan app container data (caches, settings) and uninstall apps completely.</source>
        <translation>請授予「完全取用磁碟」權限，然後重新啟動 Brisko，以掃描應用程式容器資料（快取、設定）並徹底解除安裝應用程式。</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>開啟系統設定</translation>
    </message>
    <message>
        <source>Scan Apps</source>
        <translation>掃描應用程式</translation>
    </message>
    <message>
        <source>Show files of %@</source>
        <translation>顯示「%@」的檔案</translation>
    </message>
    <message>
        <source>Hide files of %@</source>
        <translation>隱藏「%@」的檔案</translation>
    </message>
    <message>
        <source>Startup Items</source>
        <translation>啟動項目</translation>
    </message>
    <message>
        <source>Press Scan to list startup items</source>
        <translation>掃描後會列出啟動項目</translation>
    </message>
    <message>
        <source>No startup items yet</source>
        <translation>尚無啟動項目</translation>
    </message>
    <message>
        <source>Press Scan to find Launch Agents and Daemons</source>
        <translation>掃描即可尋找啟動代理程式和啟動常駐程式</translation>
    </message>
    <message>
        <source>%lld item · %lld enabled</source>
        <translation>%lld 項 · 已啟用 %lld 項</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>重新整理</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>啟用</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>停用</translation>
    </message>
    <message>
        <source>Remove %@</source>
        <translation>移除「%@」</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外觀</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>淺色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Duplicate Scan Folders</source>
        <translation>尋找重複檔案的資料夾</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>加入資料夾…</translation>
    </message>
    <message>
        <source>Choose a folder to scan for duplicate files.</source>
        <translation>選擇要在其中尋找重複檔案的資料夾。</translation>
    </message>
    <message>
        <source>Remove folder %@</source>
        <translation>從清單中移除資料夾「%@」</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>Brisko %@</source>
        <translation>Brisko %@</translation>
    </message>
    <message>
        <source>A Cleaner, Lighter Mac — More Space. A Brighter Tomorrow.</source>
        <translation>更乾淨、更輕快的 Mac。更多空間，更美好的明天。</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>檢查更新</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>正在檢查更新…</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>隱私權政策</translation>
    </message>
    <message>
        <source>Terms of Service</source>
        <translation>服務條款</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>聯絡我們</translation>
    </message>
    <message>
        <source>Open Brisko</source>
        <translation>開啟 Brisko</translation>
    </message>
    <message>
        <source>Quit Brisko</source>
        <translation>結束 Brisko</translation>
    </message>
    <message>
        <source>What's New</source>
        <translation>新功能</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下載</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>略過此版本</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>稍後提醒我</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>有可用的更新</translation>
    </message>
    <message>
        <source>Version %@</source>
        <translation>版本 %@</translation>
    </message>
    <message>
        <source>Nothing was removed.</source>
        <translation>未移除任何項目。</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>已停止。</translation>
    </message>
    <message>
        <source>The settings file was damaged. It is kept as %@.</source>
        <translation>設定檔已損毀。損毀的檔案已保留為「%@」。</translation>
    </message>
    <message>
        <source>Too large to copy to the Trash from another disk.</source>
        <translation>檔案太大，無法從其他磁碟複製到垃圾桶。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>還原</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>縮放</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>選單</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>頁面</translation>
    </message>
    <message>
        <source>%lld · %@</source>
        <translation>%lld · %@</translation>
    </message>
    <message>
        <source>%@?</source>
        <translation>%@？</translation>
    </message>
</context>
</TS>
