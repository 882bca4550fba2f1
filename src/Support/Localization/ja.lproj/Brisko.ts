<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Brisko</name>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>No usable home folder</source>
        <translation>使用できるホームフォルダがありません</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Scan complete — %@ can be freed</source>
        <translation>スキャン完了 — %@を解放できます</translation>
    </message>
    <message>
        <source>Old Downloads</source>
        <translation>古いダウンロード</translation>
    </message>
    <message>
        <source>App Caches</source>
        <translation>アプリのキャッシュ</translation>
    </message>
    <message>
        <source>System Logs</source>
        <translation>システムログ</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>一時ファイル</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>ゴミ箱</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>クラッシュレポート</translation>
    </message>
    <message>
        <source>Browser Caches</source>
        <translation>ブラウザのキャッシュ</translation>
    </message>
    <message>
        <source>Chat App Caches</source>
        <translation>チャットアプリのキャッシュ</translation>
    </message>
    <message>
        <source>Leftover Installers</source>
        <translation>残ったインストーラ</translation>
    </message>
    <message>
        <source>Scanning system caches…</source>
        <translation>システムキャッシュをスキャン中…</translation>
    </message>
    <message>
        <source>Scanning Trash…</source>
        <translation>ゴミ箱をスキャン中…</translation>
    </message>
    <message>
        <source>Scanning crash reports…</source>
        <translation>クラッシュレポートをスキャン中…</translation>
    </message>
    <message>
        <source>Scanning browser caches…</source>
        <translation>ブラウザのキャッシュをスキャン中…</translation>
    </message>
    <message>
        <source>Scanning chat caches…</source>
        <translation>チャットのキャッシュをスキャン中…</translation>
    </message>
    <message>
        <source>Scanning installers…</source>
        <translation>インストーラをスキャン中…</translation>
    </message>
    <message>
        <source>Clean %lld categories?</source>
        <translation>%lld個のカテゴリをクリーンアップしますか？</translation>
    </message>
    <message>
        <source>Clean %lld category?</source>
        <translation>%lld個のカテゴリをクリーンアップしますか？</translation>
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
        <translation>%lld個のファイルを選択中 · %@</translation>
    </message>
    <message>
        <source>%lld files selected · %@</source>
        <translation>%lld個のファイルを選択中 · %@</translation>
    </message>
    <message>
        <source>%lld selected · %@</source>
        <translation>%lld個を選択中 · %@</translation>
    </message>
    <message>
        <source>Add folders to scan</source>
        <translation>スキャンするフォルダを追加してください</translation>
    </message>
    <message>
        <source>At least one copy is kept</source>
        <translation>少なくとも1つのコピーは残ります</translation>
    </message>
    <message>
        <source>Choose a folder to scan for large files.</source>
        <translation>大きなファイルを検索するフォルダを選択してください。</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>パスをコピー</translation>
    </message>
    <message>
        <source>Folders:</source>
        <translation>フォルダ:</translation>
    </message>
    <message>
        <source>Grant Full Disk Access, then restart Brisko to scan the Trash, chat app caches, and other protected data.</source>
        <translation>フルディスクアクセスを許可してからBriskoを再起動すると、ゴミ箱、チャットアプリのキャッシュ、その他の保護されたデータをスキャンできます。</translation>
    </message>
    <message>
        <source>Hashing file contents, this may take a moment</source>
        <translation>ファイルの内容を比較しています。しばらくお待ちください</translation>
    </message>
    <message>
        <source>Junk categories</source>
        <translation>不要ファイルのカテゴリ</translation>
    </message>
    <message>
        <source>Keep First</source>
        <translation>最初のみ残す</translation>
    </message>
    <message>
        <source>Large files</source>
        <translation>大きなファイル</translation>
    </message>
    <message>
        <source>No duplicate files yet — press Scan to search</source>
        <translation>重複ファイルはまだありません — 「スキャン」を押して検索してください</translation>
    </message>
    <message>
        <source>No junk found yet</source>
        <translation>不要ファイルはまだ見つかっていません</translation>
    </message>
    <message>
        <source>No junk found — your Mac is clean</source>
        <translation>不要ファイルは見つかりませんでした — Macはきれいです</translation>
    </message>
    <message>
        <source>No large files yet</source>
        <translation>大きなファイルはまだありません</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>オリジナル</translation>
    </message>
    <message>
        <source>Press Scan to find junk files</source>
        <translation>「スキャン」を押すと、不要ファイルを検索します</translation>
    </message>
    <message>
        <source>Press Scan to search for caches, logs, and temporary files</source>
        <translation>「スキャン」を押すと、キャッシュ、ログ、一時ファイルを検索します</translation>
    </message>
    <message>
        <source>Press Scan to search your folders for identical copies</source>
        <translation>「スキャン」を押すと、フォルダ内の同一コピーを検索します</translation>
    </message>
    <message>
        <source>Press Scan to search your folders for large files</source>
        <translation>「スキャン」を押すと、フォルダ内の大きなファイルを検索します</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>再スキャン</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>スキャン</translation>
    </message>
    <message>
        <source>Scanning folders…</source>
        <translation>フォルダをスキャン中…</translation>
    </message>
    <message>
        <source>Scanning…</source>
        <translation>スキャン中…</translation>
    </message>
    <message>
        <source>Select categories to clean</source>
        <translation>クリーンアップするカテゴリを選択</translation>
    </message>
    <message>
        <source>Select copies to remove — at least one copy of each file is kept</source>
        <translation>削除するコピーを選択 — 各ファイルの少なくとも1つのコピーは残ります</translation>
    </message>
    <message>
        <source>Select files to remove</source>
        <translation>削除するファイルを選択</translation>
    </message>
    <message>
        <source>Set threshold and press Scan</source>
        <translation>しきい値を設定して「スキャン」を押してください</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>ファイルマネージャで表示</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>… and %lld more</source>
        <translation>…ほか%lld個</translation>
    </message>
    <message>
        <source>This will move %lld files to Trash.</source>
        <translation>%lld個のファイルをゴミ箱に移動します。</translation>
    </message>
    <message>
        <source>This will move %lld file to Trash.</source>
        <translation>%lld個のファイルをゴミ箱に移動します。</translation>
    </message>
    <message>
        <source>This will permanently delete %lld files.</source>
        <translation>%lld個のファイルを完全に削除します。</translation>
    </message>
    <message>
        <source>This will permanently delete %lld file.</source>
        <translation>%lld個のファイルを完全に削除します。</translation>
    </message>
    <message>
        <source>Total Size</source>
        <translation>合計サイズ</translation>
    </message>
    <message>
        <source>Clean Selected</source>
        <translation>選択項目をクリーンアップ</translation>
    </message>
    <message>
        <source>%@ cleaned</source>
        <translation>%@をクリーンアップしました</translation>
    </message>
    <message>
        <source>%@ freed</source>
        <translation>%@を解放しました</translation>
    </message>
    <message>
        <source>Cleaned — %@ freed</source>
        <translation>クリーンアップ完了 — %@を解放しました</translation>
    </message>
    <message>
        <source>Can't clean junk</source>
        <translation>不要ファイルをクリーンアップできません</translation>
    </message>
    <message>
        <source>%@ freed, but %lld protected items were skipped (such as diagnostic reports or sandbox data). You can remove them manually in Finder.</source>
        <translation>%@を解放しましたが、保護された%lld個の項目（診断レポートやサンドボックスのデータなど）はスキップされました。Finderで手動で削除できます。</translation>
    </message>
    <message>
        <source>Scanning for large files…</source>
        <translation>大きなファイルを検索中…</translation>
    </message>
    <message>
        <source>Scanning… %lld files checked</source>
        <translation>スキャン中… %lld個のファイルを確認済み</translation>
    </message>
    <message>
        <source>Remove %lld large files?</source>
        <translation>%lld個の大きなファイルを削除しますか？</translation>
    </message>
    <message>
        <source>Remove %lld large file?</source>
        <translation>%lld個の大きなファイルを削除しますか？</translation>
    </message>
    <message>
        <source>The selected files will be moved to Trash.</source>
        <translation>選択したファイルをゴミ箱に移動します。</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>ゴミ箱に移動</translation>
    </message>
    <message>
        <source>%lld large files removed</source>
        <translation>%lld個の大きなファイルを削除しました</translation>
    </message>
    <message>
        <source>%lld large file removed</source>
        <translation>%lld個の大きなファイルを削除しました</translation>
    </message>
    <message>
        <source>Can't move to Trash</source>
        <translation>ゴミ箱に移動できません</translation>
    </message>
    <message>
        <source>Moved to Trash — %@ freed</source>
        <translation>ゴミ箱に移動しました — %@を解放しました</translation>
    </message>
    <message>
        <source>Finding duplicate files…</source>
        <translation>重複ファイルを検索中…</translation>
    </message>
    <message>
        <source>Collecting files…</source>
        <translation>ファイルを収集中…</translation>
    </message>
    <message>
        <source>Collecting files… %lld</source>
        <translation>ファイルを収集中… %lld</translation>
    </message>
    <message>
        <source>Hashing files…</source>
        <translation>ファイルを比較中…</translation>
    </message>
    <message>
        <source>Hashing files… %lld%%</source>
        <translation>ファイルを比較中… %lld%%</translation>
    </message>
    <message>
        <source>Remove %lld duplicate files?</source>
        <translation>%lld個の重複ファイルを削除しますか？</translation>
    </message>
    <message>
        <source>Remove %lld duplicate file?</source>
        <translation>%lld個の重複ファイルを削除しますか？</translation>
    </message>
    <message>
        <source>The selected copies will be moved to Trash. One original copy of each file is kept.</source>
        <translation>選択したコピーをゴミ箱に移動します。各ファイルのオリジナルは1つ残ります。</translation>
    </message>
    <message>
        <source>Selected Files</source>
        <translation>選択したファイル</translation>
    </message>
    <message>
        <source>%lld duplicate files removed</source>
        <translation>%lld個の重複ファイルを削除しました</translation>
    </message>
    <message>
        <source>%@ removed</source>
        <translation>%@を削除しました</translation>
    </message>
    <message>
        <source>Removed %lld duplicates — %@ freed</source>
        <translation>%lld個の重複ファイルを削除 — %@を解放しました</translation>
    </message>
    <message>
        <source>Scanning applications…</source>
        <translation>アプリをスキャン中…</translation>
    </message>
    <message>
        <source>Brisko needs access to the Library folder to find app-related files.</source>
        <translation>アプリの関連ファイルを見つけるために、Briskoにはライブラリフォルダへのアクセスが必要です。</translation>
    </message>
    <message>
        <source>Brisko needs access to the Library folder to scan caches and logs.</source>
        <translation>キャッシュとログをスキャンするために、Briskoにはライブラリフォルダへのアクセスが必要です。</translation>
    </message>
    <message>
        <source>Brisko needs access to the Applications folder to move apps to Trash.</source>
        <translation>アプリをゴミ箱に移動するために、Briskoにはアプリケーションフォルダへのアクセスが必要です。</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>フォルダを追加</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>アクセスを許可</translation>
    </message>
    <message>
        <source>Uninstall %@?</source>
        <translation>%@をアンインストールしますか？</translation>
    </message>
    <message>
        <source>%lld apps</source>
        <translation>%lld個のアプリ</translation>
    </message>
    <message>
        <source>This will move the application and related files to Trash.</source>
        <translation>アプリと関連ファイルをゴミ箱に移動します。</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>アプリ</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>アプリ</translation>
    </message>
    <message>
        <source>Related Files</source>
        <translation>関連ファイル</translation>
    </message>
    <message>
        <source>%@ uninstalled</source>
        <translation>%@をアンインストールしました</translation>
    </message>
    <message>
        <source>%lld apps uninstalled</source>
        <translation>%lld個のアプリをアンインストールしました</translation>
    </message>
    <message>
        <source>Launch Agent</source>
        <translation>起動エージェント</translation>
    </message>
    <message>
        <source>Launch Daemon</source>
        <translation>起動デーモン</translation>
    </message>
    <message>
        <source>Login Item</source>
        <translation>ログイン項目</translation>
    </message>
    <message>
        <source>Scanning startup items…</source>
        <translation>スタートアップ項目をスキャン中…</translation>
    </message>
    <message>
        <source>%@ enabled</source>
        <translation>%@を有効にしました</translation>
    </message>
    <message>
        <source>%@ disabled</source>
        <translation>%@を無効にしました</translation>
    </message>
    <message>
        <source>Remove %@?</source>
        <translation>%@を削除しますか？</translation>
    </message>
    <message>
        <source>This will move the plist file to Trash. You can re-enable it later from the original app.</source>
        <translation>plistファイルをゴミ箱に移動します。後で元のアプリから再度有効にできます。</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Removed %@</source>
        <translation>%@を削除しました</translation>
    </message>
    <message>
        <source>Can't remove startup item</source>
        <translation>スタートアップ項目を削除できません</translation>
    </message>
    <message>
        <source>Cannot remove system-level startup items</source>
        <translation>システムレベルのスタートアップ項目は削除できません</translation>
    </message>
    <message>
        <source>System-level items cannot be modified</source>
        <translation>システムレベルの項目は変更できません</translation>
    </message>
    <message>
        <source>System-level items cannot be removed</source>
        <translation>システムレベルの項目は削除できません</translation>
    </message>
    <message>
        <source>Can't reach the update server. Check your network and try again.</source>
        <translation>アップデートサーバに接続できません。ネットワークを確認してもう一度お試しください。</translation>
    </message>
    <message>
        <source>You're up to date!</source>
        <translation>最新の状態です！</translation>
    </message>
    <message>
        <source>%lld file · %@</source>
        <translation>%lld個のファイル · %@</translation>
    </message>
    <message>
        <source>%lld files · %@</source>
        <translation>%lld個のファイル · %@</translation>
    </message>
    <message>
        <source>%lld category · %@ reclaimable</source>
        <translation>%lld個のカテゴリ · %@を解放可能</translation>
    </message>
    <message>
        <source>%lld categories · %@ reclaimable</source>
        <translation>%lld個のカテゴリ · %@を解放可能</translation>
    </message>
    <message>
        <source>%lld file · %@ total</source>
        <translation>%lld個のファイル · 合計%@</translation>
    </message>
    <message>
        <source>%lld files · %@ total</source>
        <translation>%lld個のファイル · 合計%@</translation>
    </message>
    <message>
        <source>%lld copies · %@ reclaimable</source>
        <translation>%lld個のコピー · %@を解放可能</translation>
    </message>
    <message>
        <source>%lld group · %@ reclaimable</source>
        <translation>%lld個のグループ · %@を解放可能</translation>
    </message>
    <message>
        <source>%lld groups · %@ reclaimable</source>
        <translation>%lld個のグループ · %@を解放可能</translation>
    </message>
    <message>
        <source>%lld application · %@ installed</source>
        <translation>%lld個のアプリ · インストールサイズ%@</translation>
    </message>
    <message>
        <source>%lld applications · %@ installed</source>
        <translation>%lld個のアプリ · インストールサイズ%@</translation>
    </message>
    <message>
        <source>%lld item · %@ would be removed</source>
        <translation>%lld個の項目 · %@が削除されます</translation>
    </message>
    <message>
        <source>%lld items · %@ would be removed</source>
        <translation>%lld個の項目 · %@が削除されます</translation>
    </message>
    <message>
        <source>%lld items · %lld enabled</source>
        <translation>%lld個の項目 · %lld個が有効</translation>
    </message>
    <message>
        <source>No junk found</source>
        <translation>不要ファイルは見つかりませんでした</translation>
    </message>
    <message>
        <source>No large files found above threshold</source>
        <translation>しきい値を超える大きなファイルは見つかりませんでした</translation>
    </message>
    <message>
        <source>No duplicate files found</source>
        <translation>重複ファイルは見つかりませんでした</translation>
    </message>
    <message>
        <source>No applications found</source>
        <translation>アプリは見つかりませんでした</translation>
    </message>
    <message>
        <source>No startup items found</source>
        <translation>スタートアップ項目は見つかりませんでした</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>未使用</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>Uninstaller</source>
        <translation>アンインストーラ</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>重複ファイル</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>大きなファイル</translation>
    </message>
    <message>
        <source>Junk Cleaner</source>
        <translation>不要ファイル</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>Free disk space</source>
        <translation>ディスクの空き容量</translation>
    </message>
    <message>
        <source>Disk Temperature</source>
        <translation>ディスクの温度</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>スタートアップ</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Your Mac, Cleaner and Lighter</source>
        <translation>Macをもっときれいに、もっと軽く</translation>
    </message>
    <message>
        <source>Free up space, remove junk, and keep your Mac running at its best.</source>
        <translation>空き容量を増やし、不要ファイルを削除して、Macを快適に保ちましょう。</translation>
    </message>
    <message>
        <source>Processor load</source>
        <translation>プロセッサの負荷</translation>
    </message>
    <message>
        <source>NAND flash</source>
        <translation>NANDフラッシュ</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>利用できません</translation>
    </message>
    <message>
        <source>Freeable Space</source>
        <translation>解放できる容量</translation>
    </message>
    <message>
        <source>Caches, duplicates &amp; unused apps</source>
        <translation>キャッシュ、重複ファイル、未使用のアプリ</translation>
    </message>
    <message>
        <source>Unused applications</source>
        <translation>未使用のアプリ</translation>
    </message>
    <message>
        <source>Duplicate files</source>
        <translation>重複ファイル</translation>
    </message>
    <message>
        <source>Large file cleanup</source>
        <translation>大きなファイルの整理</translation>
    </message>
    <message>
        <source>Caches &amp; logs</source>
        <translation>キャッシュとログ</translation>
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
        <translation>計算中…</translation>
    </message>
    <message>
        <source>Select applications to uninstall</source>
        <translation>アンインストールするアプリを選択</translation>
    </message>
    <message>
        <source>%lld items selected · %@</source>
        <translation>%lld個の項目を選択中 · %@</translation>
    </message>
    <message>
        <source>%lld item selected · %@</source>
        <translation>%lld個の項目を選択中 · %@</translation>
    </message>
    <message>
        <source>%@+</source>
        <translation>%@+</translation>
    </message>
    <message>
        <source>Related Files · %@</source>
        <translation>関連ファイル · %@</translation>
    </message>
    <message>
        <source>No related files</source>
        <translation>関連ファイルなし</translation>
    </message>
    <message>
        <source>No related files found for this app.</source>
        <translation>このアプリの関連ファイルは見つかりませんでした。</translation>
    </message>
    <message>
        <source>Looking for related files…</source>
        <translation>関連ファイルを検索中…</translation>
    </message>
    <message>
        <source>Full Disk Access required</source>
        <translation>フルディスクアクセスが必要です</translation>
    </message>
    <message>
        <source>Full Disk Access Required</source>
        <translation>フルディスクアクセスが必要です</translation>
    </message>
    <message>
        <source>Grant Full Disk Access, then restart Brisko to scan app container data (caches, settings) and uninstall apps completely.</source>
        <translation>フルディスクアクセスを許可してからBriskoを再起動すると、アプリのコンテナのデータ（キャッシュ、設定）をスキャンし、アプリを完全にアンインストールできます。</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>システム設定を開く</translation>
    </message>
    <message>
        <source>Scan Apps</source>
        <translation>アプリをスキャン</translation>
    </message>
    <message>
        <source>Show files of %@</source>
        <translation>%@のファイルを表示</translation>
    </message>
    <message>
        <source>Hide files of %@</source>
        <translation>%@のファイルを隠す</translation>
    </message>
    <message>
        <source>Startup Items</source>
        <translation>スタートアップ項目</translation>
    </message>
    <message>
        <source>Press Scan to list startup items</source>
        <translation>「スキャン」を押すと、スタートアップ項目を一覧表示します</translation>
    </message>
    <message>
        <source>No startup items yet</source>
        <translation>スタートアップ項目はまだありません</translation>
    </message>
    <message>
        <source>Press Scan to find Launch Agents and Daemons</source>
        <translation>「スキャン」を押すと、起動エージェントと起動デーモンを検索します</translation>
    </message>
    <message>
        <source>%lld item · %lld enabled</source>
        <translation>%lld個の項目 · %lld個が有効</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>有効にする</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>無効にする</translation>
    </message>
    <message>
        <source>Remove %@</source>
        <translation>%@を削除</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>Duplicate Scan Folders</source>
        <translation>重複ファイルを検索するフォルダ</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>フォルダを追加…</translation>
    </message>
    <message>
        <source>Choose a folder to scan for duplicate files.</source>
        <translation>重複ファイルを検索するフォルダを選択してください。</translation>
    </message>
    <message>
        <source>Remove folder %@</source>
        <translation>フォルダ%@を取り除く</translation>
    </message>
    <message>
        <source>About</source>
        <translation>このアプリについて</translation>
    </message>
    <message>
        <source>Brisko %@</source>
        <translation>Brisko %@</translation>
    </message>
    <message>
        <source>A Cleaner, Lighter Mac — More Space. A Brighter Tomorrow.</source>
        <translation>もっときれいで軽いMac。広がる空き容量と、明るい明日。</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>アップデートを確認</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>アップデートを確認中…</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>プライバシーポリシー</translation>
    </message>
    <message>
        <source>Terms of Service</source>
        <translation>利用規約</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>お問い合わせ</translation>
    </message>
    <message>
        <source>Open Brisko</source>
        <translation>Briskoを開く</translation>
    </message>
    <message>
        <source>Quit Brisko</source>
        <translation>Briskoを終了</translation>
    </message>
    <message>
        <source>What's New</source>
        <translation>新機能</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>このバージョンをスキップ</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>あとで通知</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>アップデートがあります</translation>
    </message>
    <message>
        <source>Version %@</source>
        <translation>バージョン%@</translation>
    </message>
    <message>
        <source>Nothing was removed.</source>
        <translation>何も削除されませんでした。</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>停止しました。</translation>
    </message>
    <message>
        <source>The settings file was damaged. It is kept as %@.</source>
        <translation>設定ファイルが壊れていました。%@として保管されています。</translation>
    </message>
    <message>
        <source>Too large to copy to the Trash from another disk.</source>
        <translation>別のディスクからゴミ箱にコピーするには大きすぎます。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>元のサイズに戻す</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>拡大/縮小</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>%lld · %@</source>
        <translation>%lld · %@</translation>
    </message>
    <message>
        <source>%@?</source>
        <translation>%@しますか？</translation>
    </message>
</context>
</TS>
