<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="zh-Hans" sourcelanguage="en">
<context>
    <name>Brisko</name>
    <message>
        <source>System</source>
        <translation>跟随系统</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>No usable home folder</source>
        <translation>没有可用的主文件夹</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Scan complete — %@ can be freed</source>
        <translation>扫描完成，可释放 %@</translation>
    </message>
    <message>
        <source>Old Downloads</source>
        <translation>旧的下载文件</translation>
    </message>
    <message>
        <source>App Caches</source>
        <translation>应用缓存</translation>
    </message>
    <message>
        <source>System Logs</source>
        <translation>系统日志</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>临时文件</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>废纸篓</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>崩溃报告</translation>
    </message>
    <message>
        <source>Browser Caches</source>
        <translation>浏览器缓存</translation>
    </message>
    <message>
        <source>Chat App Caches</source>
        <translation>聊天应用缓存</translation>
    </message>
    <message>
        <source>Leftover Installers</source>
        <translation>残留的安装包</translation>
    </message>
    <message>
        <source>Scanning system caches…</source>
        <translation>正在扫描系统缓存…</translation>
    </message>
    <message>
        <source>Scanning Trash…</source>
        <translation>正在扫描废纸篓…</translation>
    </message>
    <message>
        <source>Scanning crash reports…</source>
        <translation>正在扫描崩溃报告…</translation>
    </message>
    <message>
        <source>Scanning browser caches…</source>
        <translation>正在扫描浏览器缓存…</translation>
    </message>
    <message>
        <source>Scanning chat caches…</source>
        <translation>正在扫描聊天缓存…</translation>
    </message>
    <message>
        <source>Scanning installers…</source>
        <translation>正在扫描安装包…</translation>
    </message>
    <message>
        <source>Clean %lld categories?</source>
        <translation>清理 %lld 个类别？</translation>
    </message>
    <message>
        <source>Clean %lld category?</source>
        <translation>清理 %lld 个类别？</translation>
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
        <translation>已选择 %lld 个文件 · %@</translation>
    </message>
    <message>
        <source>%lld files selected · %@</source>
        <translation>已选择 %lld 个文件 · %@</translation>
    </message>
    <message>
        <source>%lld selected · %@</source>
        <translation>已选择 %lld 项 · %@</translation>
    </message>
    <message>
        <source>Add folders to scan</source>
        <translation>请添加要扫描的文件夹</translation>
    </message>
    <message>
        <source>At least one copy is kept</source>
        <translation>至少会保留一份副本</translation>
    </message>
    <message>
        <source>Choose a folder to scan for large files.</source>
        <translation>选择要在其中查找大文件的文件夹。</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>复制路径</translation>
    </message>
    <message>
        <source>Folders:</source>
        <translation>文件夹：</translation>
    </message>
    <message>
        <source>Grant Full Disk Access, then restart Brisko to scan the Trash, chat app caches, and other protected data.</source>
        <translation>请授予完全磁盘访问权限，然后重新启动 Brisko，以扫描废纸篓、聊天应用缓存及其他受保护的数据。</translation>
    </message>
    <message>
        <source>Hashing file contents, this may take a moment</source>
        <translation>正在计算文件内容的哈希值，可能需要一点时间</translation>
    </message>
    <message>
        <source>Junk categories</source>
        <translation>垃圾文件类别</translation>
    </message>
    <message>
        <source>Keep First</source>
        <translation>保留第一个</translation>
    </message>
    <message>
        <source>Large files</source>
        <translation>大文件</translation>
    </message>
    <message>
        <source>No duplicate files yet — press Scan to search</source>
        <translation>尚未找到重复文件，点按“扫描”开始查找</translation>
    </message>
    <message>
        <source>No junk found yet</source>
        <translation>尚未找到垃圾文件</translation>
    </message>
    <message>
        <source>No junk found — your Mac is clean</source>
        <translation>未找到垃圾文件，Mac 很干净</translation>
    </message>
    <message>
        <source>No large files yet</source>
        <translation>尚未找到大文件</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>原件</translation>
    </message>
    <message>
        <source>Press Scan to find junk files</source>
        <translation>点按“扫描”以查找垃圾文件</translation>
    </message>
    <message>
        <source>Press Scan to search for caches, logs, and temporary files</source>
        <translation>点按“扫描”以查找缓存、日志和临时文件</translation>
    </message>
    <message>
        <source>Press Scan to search your folders for identical copies</source>
        <translation>点按“扫描”以在文件夹中查找内容相同的副本</translation>
    </message>
    <message>
        <source>Press Scan to search your folders for large files</source>
        <translation>点按“扫描”以在文件夹中查找大文件</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>重新扫描</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>扫描</translation>
    </message>
    <message>
        <source>Scanning folders…</source>
        <translation>正在扫描文件夹…</translation>
    </message>
    <message>
        <source>Scanning…</source>
        <translation>正在扫描…</translation>
    </message>
    <message>
        <source>Select categories to clean</source>
        <translation>选择要清理的类别</translation>
    </message>
    <message>
        <source>Select copies to remove — at least one copy of each file is kept</source>
        <translation>选择要移除的副本，每个文件至少会保留一份</translation>
    </message>
    <message>
        <source>Select files to remove</source>
        <translation>选择要移除的文件</translation>
    </message>
    <message>
        <source>Set threshold and press Scan</source>
        <translation>设定大小阈值，然后点按“扫描”</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>在文件管理器中显示</translation>
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
        <translation>…另有 %lld 个</translation>
    </message>
    <message>
        <source>This will move %lld files to Trash.</source>
        <translation>%lld 个文件将移到废纸篓。</translation>
    </message>
    <message>
        <source>This will move %lld file to Trash.</source>
        <translation>%lld 个文件将移到废纸篓。</translation>
    </message>
    <message>
        <source>This will permanently delete %lld files.</source>
        <translation>%lld 个文件将被永久删除。</translation>
    </message>
    <message>
        <source>This will permanently delete %lld file.</source>
        <translation>%lld 个文件将被永久删除。</translation>
    </message>
    <message>
        <source>Total Size</source>
        <translation>总大小</translation>
    </message>
    <message>
        <source>Clean Selected</source>
        <translation>清理所选项</translation>
    </message>
    <message>
        <source>%@ cleaned</source>
        <translation>已清理“%@”</translation>
    </message>
    <message>
        <source>%@ freed</source>
        <translation>已释放 %@</translation>
    </message>
    <message>
        <source>Cleaned — %@ freed</source>
        <translation>清理完成，已释放 %@</translation>
    </message>
    <message>
        <source>Can't clean junk</source>
        <translation>无法清理垃圾文件</translation>
    </message>
    <message>
        <source>%@ freed, but %lld protected items were skipped (such as diagnostic reports or sandbox data). You can remove them manually in Finder.</source>
        <translation>已释放 %@，但跳过了 %lld 个受保护的项目（例如诊断报告或沙盒数据）。可以在访达中手动移除这些项目。</translation>
    </message>
    <message>
        <source>Scanning for large files…</source>
        <translation>正在查找大文件…</translation>
    </message>
    <message>
        <source>Scanning… %lld files checked</source>
        <translation>正在扫描…已检查 %lld 个文件</translation>
    </message>
    <message>
        <source>Remove %lld large files?</source>
        <translation>移除 %lld 个大文件？</translation>
    </message>
    <message>
        <source>Remove %lld large file?</source>
        <translation>移除 %lld 个大文件？</translation>
    </message>
    <message>
        <source>The selected files will be moved to Trash.</source>
        <translation>所选文件将移到废纸篓。</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>移到废纸篓</translation>
    </message>
    <message>
        <source>%lld large files removed</source>
        <translation>已移除 %lld 个大文件</translation>
    </message>
    <message>
        <source>%lld large file removed</source>
        <translation>已移除 %lld 个大文件</translation>
    </message>
    <message>
        <source>Can't move to Trash</source>
        <translation>无法移到废纸篓</translation>
    </message>
    <message>
        <source>Moved to Trash — %@ freed</source>
        <translation>已移到废纸篓，释放了 %@</translation>
    </message>
    <message>
        <source>Finding duplicate files…</source>
        <translation>正在查找重复文件…</translation>
    </message>
    <message>
        <source>Collecting files…</source>
        <translation>正在收集文件…</translation>
    </message>
    <message>
        <source>Collecting files… %lld</source>
        <translation>正在收集文件… %lld</translation>
    </message>
    <message>
        <source>Hashing files…</source>
        <translation>正在计算文件哈希值…</translation>
    </message>
    <message>
        <source>Hashing files… %lld%%</source>
        <translation>正在计算文件哈希值… %lld%%</translation>
    </message>
    <message>
        <source>Remove %lld duplicate files?</source>
        <translation>移除 %lld 个重复文件？</translation>
    </message>
    <message>
        <source>Remove %lld duplicate file?</source>
        <translation>移除 %lld 个重复文件？</translation>
    </message>
    <message>
        <source>The selected copies will be moved to Trash. One original copy of each file is kept.</source>
        <translation>所选副本将移到废纸篓。每个文件会保留一份原件。</translation>
    </message>
    <message>
        <source>Selected Files</source>
        <translation>所选文件</translation>
    </message>
    <message>
        <source>%lld duplicate files removed</source>
        <translation>已移除 %lld 个重复文件</translation>
    </message>
    <message>
        <source>%@ removed</source>
        <translation>已移除 %@</translation>
    </message>
    <message>
        <source>Removed %lld duplicates — %@ freed</source>
        <translation>已移除 %lld 个重复文件，释放了 %@</translation>
    </message>
    <message>
        <source>Scanning applications…</source>
        <translation>正在扫描应用…</translation>
    </message>
    <message>
        <source>Brisko needs access to the Library folder to find app-related files.</source>
        <translation>Brisko 需要访问“资源库”文件夹，以查找应用的相关文件。</translation>
    </message>
    <message>
        <source>Brisko needs access to the Library folder to scan caches and logs.</source>
        <translation>Brisko 需要访问“资源库”文件夹，以扫描缓存和日志。</translation>
    </message>
    <message>
        <source>Brisko needs access to the Applications folder to move apps to Trash.</source>
        <translation>Brisko 需要访问“应用程序”文件夹，以将应用移到废纸篓。</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>添加文件夹</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>授予访问权限</translation>
    </message>
    <message>
        <source>Uninstall %@?</source>
        <translation>卸载 %@？</translation>
    </message>
    <message>
        <source>%lld apps</source>
        <translation>%lld 个应用</translation>
    </message>
    <message>
        <source>This will move the application and related files to Trash.</source>
        <translation>应用及其相关文件将移到废纸篓。</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Related Files</source>
        <translation>相关文件</translation>
    </message>
    <message>
        <source>%@ uninstalled</source>
        <translation>已卸载“%@”</translation>
    </message>
    <message>
        <source>%lld apps uninstalled</source>
        <translation>已卸载 %lld 个应用</translation>
    </message>
    <message>
        <source>Launch Agent</source>
        <translation>启动代理</translation>
    </message>
    <message>
        <source>Launch Daemon</source>
        <translation>启动守护进程</translation>
    </message>
    <message>
        <source>Login Item</source>
        <translation>登录项</translation>
    </message>
    <message>
        <source>Scanning startup items…</source>
        <translation>正在扫描启动项…</translation>
    </message>
    <message>
        <source>%@ enabled</source>
        <translation>已启用“%@”</translation>
    </message>
    <message>
        <source>%@ disabled</source>
        <translation>已停用“%@”</translation>
    </message>
    <message>
        <source>Remove %@?</source>
        <translation>移除“%@”？</translation>
    </message>
    <message>
        <source>This will move the plist file to Trash. You can re-enable it later from the original app.</source>
        <translation>plist 文件将移到废纸篓。之后可以在原来的应用中重新启用此项目。</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Removed %@</source>
        <translation>已移除“%@”</translation>
    </message>
    <message>
        <source>Can't remove startup item</source>
        <translation>无法移除启动项</translation>
    </message>
    <message>
        <source>Cannot remove system-level startup items</source>
        <translation>无法移除系统级启动项</translation>
    </message>
    <message>
        <source>System-level items cannot be modified</source>
        <translation>无法更改系统级项目</translation>
    </message>
    <message>
        <source>System-level items cannot be removed</source>
        <translation>无法移除系统级项目</translation>
    </message>
    <message>
        <source>Can't reach the update server. Check your network and try again.</source>
        <translation>无法连接到更新服务器。请检查网络，然后重试。</translation>
    </message>
    <message>
        <source>You're up to date!</source>
        <translation>已是最新版本！</translation>
    </message>
    <message>
        <source>%lld file · %@</source>
        <translation>%lld 个文件 · %@</translation>
    </message>
    <message>
        <source>%lld files · %@</source>
        <translation>%lld 个文件 · %@</translation>
    </message>
    <message>
        <source>%lld category · %@ reclaimable</source>
        <translation>%lld 个类别 · 可释放 %@</translation>
    </message>
    <message>
        <source>%lld categories · %@ reclaimable</source>
        <translation>%lld 个类别 · 可释放 %@</translation>
    </message>
    <message>
        <source>%lld file · %@ total</source>
        <translation>%lld 个文件 · 共 %@</translation>
    </message>
    <message>
        <source>%lld files · %@ total</source>
        <translation>%lld 个文件 · 共 %@</translation>
    </message>
    <message>
        <source>%lld copies · %@ reclaimable</source>
        <translation>%lld 份副本 · 可释放 %@</translation>
    </message>
    <message>
        <source>%lld group · %@ reclaimable</source>
        <translation>%lld 组 · 可释放 %@</translation>
    </message>
    <message>
        <source>%lld groups · %@ reclaimable</source>
        <translation>%lld 组 · 可释放 %@</translation>
    </message>
    <message>
        <source>%lld application · %@ installed</source>
        <translation>已安装 %lld 个应用 · %@</translation>
    </message>
    <message>
        <source>%lld applications · %@ installed</source>
        <translation>已安装 %lld 个应用 · %@</translation>
    </message>
    <message>
        <source>%lld item · %@ would be removed</source>
        <translation>预计移除 %lld 项 · %@</translation>
    </message>
    <message>
        <source>%lld items · %@ would be removed</source>
        <translation>预计移除 %lld 项 · %@</translation>
    </message>
    <message>
        <source>%lld items · %lld enabled</source>
        <translation>%lld 项 · 已启用 %lld 项</translation>
    </message>
    <message>
        <source>No junk found</source>
        <translation>未找到垃圾文件</translation>
    </message>
    <message>
        <source>No large files found above threshold</source>
        <translation>未找到超过阈值的大文件</translation>
    </message>
    <message>
        <source>No duplicate files found</source>
        <translation>未找到重复文件</translation>
    </message>
    <message>
        <source>No applications found</source>
        <translation>未找到应用</translation>
    </message>
    <message>
        <source>No startup items found</source>
        <translation>未找到启动项</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>未使用</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>已启用</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已停用</translation>
    </message>
    <message>
        <source>Uninstaller</source>
        <translation>应用卸载</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>重复文件</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>大文件</translation>
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
        <translation>内存</translation>
    </message>
    <message>
        <source>Free disk space</source>
        <translation>可用磁盘空间</translation>
    </message>
    <message>
        <source>Disk Temperature</source>
        <translation>磁盘温度</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概览</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>启动项</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Your Mac, Cleaner and Lighter</source>
        <translation>让 Mac 更干净、更轻快</translation>
    </message>
    <message>
        <source>Free up space, remove junk, and keep your Mac running at its best.</source>
        <translation>释放空间，移除垃圾文件，让 Mac 保持最佳状态。</translation>
    </message>
    <message>
        <source>Processor load</source>
        <translation>处理器负载</translation>
    </message>
    <message>
        <source>NAND flash</source>
        <translation>NAND 闪存</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>无法获取</translation>
    </message>
    <message>
        <source>Freeable Space</source>
        <translation>可释放空间</translation>
    </message>
    <message>
        <source>Caches, duplicates &amp; unused apps</source>
        <translation>缓存、重复文件和未使用的应用</translation>
    </message>
    <message>
        <source>Unused applications</source>
        <translation>未使用的应用</translation>
    </message>
    <message>
        <source>Duplicate files</source>
        <translation>重复文件</translation>
    </message>
    <message>
        <source>Large file cleanup</source>
        <translation>大文件清理</translation>
    </message>
    <message>
        <source>Caches &amp; logs</source>
        <translation>缓存和日志</translation>
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
        <translation>正在计算…</translation>
    </message>
    <message>
        <source>Select applications to uninstall</source>
        <translation>选择要卸载的应用</translation>
    </message>
    <message>
        <source>%lld items selected · %@</source>
        <translation>已选择 %lld 项 · %@</translation>
    </message>
    <message>
        <source>%lld item selected · %@</source>
        <translation>已选择 %lld 项 · %@</translation>
    </message>
    <message>
        <source>%@+</source>
        <translation>%@+</translation>
    </message>
    <message>
        <source>Related Files · %@</source>
        <translation>相关文件 · %@</translation>
    </message>
    <message>
        <source>No related files</source>
        <translation>无相关文件</translation>
    </message>
    <message>
        <source>No related files found for this app.</source>
        <translation>未找到此应用的相关文件。</translation>
    </message>
    <message>
        <source>Looking for related files…</source>
        <translation>正在查找相关文件…</translation>
    </message>
    <message>
        <source>Full Disk Access required</source>
        <translation>需要完全磁盘访问权限</translation>
    </message>
    <message>
        <source>Full Disk Access Required</source>
        <translation>需要完全磁盘访问权限</translation>
    </message>
    <message>
        <source>Grant Full Disk Access, then restart Brisko to scan app container data (caches, settings) and uninstall apps completely.</source>
        <translation>请授予完全磁盘访问权限，然后重新启动 Brisko，以扫描应用容器数据（缓存、设置）并彻底卸载应用。</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>打开系统设置</translation>
    </message>
    <message>
        <source>Scan Apps</source>
        <translation>扫描应用</translation>
    </message>
    <message>
        <source>Show files of %@</source>
        <translation>显示“%@”的文件</translation>
    </message>
    <message>
        <source>Hide files of %@</source>
        <translation>隐藏“%@”的文件</translation>
    </message>
    <message>
        <source>Startup Items</source>
        <translation>启动项</translation>
    </message>
    <message>
        <source>Press Scan to list startup items</source>
        <translation>扫描后将列出启动项</translation>
    </message>
    <message>
        <source>No startup items yet</source>
        <translation>尚无启动项</translation>
    </message>
    <message>
        <source>Press Scan to find Launch Agents and Daemons</source>
        <translation>扫描即可查找启动代理和启动守护进程</translation>
    </message>
    <message>
        <source>%lld item · %lld enabled</source>
        <translation>%lld 项 · 已启用 %lld 项</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>停用</translation>
    </message>
    <message>
        <source>Remove %@</source>
        <translation>移除“%@”</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Duplicate Scan Folders</source>
        <translation>查找重复文件的文件夹</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>添加文件夹…</translation>
    </message>
    <message>
        <source>Choose a folder to scan for duplicate files.</source>
        <translation>选择要在其中查找重复文件的文件夹。</translation>
    </message>
    <message>
        <source>Remove folder %@</source>
        <translation>从列表中移除文件夹“%@”</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Brisko %@</source>
        <translation>Brisko %@</translation>
    </message>
    <message>
        <source>A Cleaner, Lighter Mac — More Space. A Brighter Tomorrow.</source>
        <translation>更干净、更轻快的 Mac。更多空间，更美好的明天。</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>检查更新</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>正在检查更新…</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>隐私政策</translation>
    </message>
    <message>
        <source>Terms of Service</source>
        <translation>服务条款</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>联系我们</translation>
    </message>
    <message>
        <source>Open Brisko</source>
        <translation>打开 Brisko</translation>
    </message>
    <message>
        <source>Quit Brisko</source>
        <translation>退出 Brisko</translation>
    </message>
    <message>
        <source>What's New</source>
        <translation>新功能</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>跳过此版本</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>稍后提醒我</translation>
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
        <translation>未移除任何项目。</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>已停止。</translation>
    </message>
    <message>
        <source>The settings file was damaged. It is kept as %@.</source>
        <translation>设置文件已损坏。损坏的文件已保留为“%@”。</translation>
    </message>
    <message>
        <source>Too large to copy to the Trash from another disk.</source>
        <translation>文件太大，无法从其他磁盘复制到废纸篓。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
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
