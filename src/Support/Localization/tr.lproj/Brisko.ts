<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>Brisko</name>
    <message>
        <source>System</source>
        <translation>Sistem</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>No usable home folder</source>
        <translation>Kullanılabilir ev klasörü yok</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>Scan complete — %@ can be freed</source>
        <translation>Tarama tamamlandı — %@ boşaltılabilir</translation>
    </message>
    <message>
        <source>Old Downloads</source>
        <translation>Eski İndirilenler</translation>
    </message>
    <message>
        <source>App Caches</source>
        <translation>Uygulama Önbellekleri</translation>
    </message>
    <message>
        <source>System Logs</source>
        <translation>Sistem Günlükleri</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>Geçici Dosyalar</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Çöp</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>Çökme Raporları</translation>
    </message>
    <message>
        <source>Browser Caches</source>
        <translation>Tarayıcı Önbellekleri</translation>
    </message>
    <message>
        <source>Chat App Caches</source>
        <translation>Sohbet Uygulaması Önbellekleri</translation>
    </message>
    <message>
        <source>Leftover Installers</source>
        <translation>Kalan Yükleyiciler</translation>
    </message>
    <message>
        <source>Scanning system caches…</source>
        <translation>Sistem önbellekleri taranıyor…</translation>
    </message>
    <message>
        <source>Scanning Trash…</source>
        <translation>Çöp taranıyor…</translation>
    </message>
    <message>
        <source>Scanning crash reports…</source>
        <translation>Çökme raporları taranıyor…</translation>
    </message>
    <message>
        <source>Scanning browser caches…</source>
        <translation>Tarayıcı önbellekleri taranıyor…</translation>
    </message>
    <message>
        <source>Scanning chat caches…</source>
        <translation>Sohbet önbellekleri taranıyor…</translation>
    </message>
    <message>
        <source>Scanning installers…</source>
        <translation>Yükleyiciler taranıyor…</translation>
    </message>
    <message>
        <source>Clean %lld categories?</source>
        <translation>%lld kategori temizlensin mi?</translation>
    </message>
    <message>
        <source>Clean %lld category?</source>
        <translation>%lld kategori temizlensin mi?</translation>
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
        <translation>%lld dosya seçili · %@</translation>
    </message>
    <message>
        <source>%lld files selected · %@</source>
        <translation>%lld dosya seçili · %@</translation>
    </message>
    <message>
        <source>%lld selected · %@</source>
        <translation>%lld seçili · %@</translation>
    </message>
    <message>
        <source>Add folders to scan</source>
        <translation>Taranacak klasörleri ekleyin</translation>
    </message>
    <message>
        <source>At least one copy is kept</source>
        <translation>En az bir kopya korunur</translation>
    </message>
    <message>
        <source>Choose a folder to scan for large files.</source>
        <translation>Büyük dosyalar için taranacak klasörü seçin.</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>Yolu Kopyala</translation>
    </message>
    <message>
        <source>Folders:</source>
        <translation>Klasörler:</translation>
    </message>
    <message>
        <source>Grant Full Disk Access, then restart Brisko to scan the Trash, chat app caches, and other protected data.</source>
        <translation>Çöpü, sohbet uygulaması önbelleklerini ve diğer korunan verileri taramak için Tam Disk Erişimi izni verin, ardından Brisko’yu yeniden başlatın.</translation>
    </message>
    <message>
        <source>Hashing file contents, this may take a moment</source>
        <translation>Dosya içerikleri karşılaştırılıyor, bu biraz sürebilir</translation>
    </message>
    <message>
        <source>Junk categories</source>
        <translation>Gereksiz dosya kategorileri</translation>
    </message>
    <message>
        <source>Keep First</source>
        <translation>İlkini Koru</translation>
    </message>
    <message>
        <source>Large files</source>
        <translation>Büyük dosyalar</translation>
    </message>
    <message>
        <source>No duplicate files yet — press Scan to search</source>
        <translation>Henüz yinelenen dosya yok — aramak için Tara’ya basın</translation>
    </message>
    <message>
        <source>No junk found yet</source>
        <translation>Henüz gereksiz dosya bulunmadı</translation>
    </message>
    <message>
        <source>No junk found — your Mac is clean</source>
        <translation>Gereksiz dosya bulunamadı — Mac’iniz temiz</translation>
    </message>
    <message>
        <source>No large files yet</source>
        <translation>Henüz büyük dosya yok</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Asıl</translation>
    </message>
    <message>
        <source>Press Scan to find junk files</source>
        <translation>Gereksiz dosyaları bulmak için Tara’ya basın</translation>
    </message>
    <message>
        <source>Press Scan to search for caches, logs, and temporary files</source>
        <translation>Önbellekleri, günlükleri ve geçici dosyaları aramak için Tara’ya basın</translation>
    </message>
    <message>
        <source>Press Scan to search your folders for identical copies</source>
        <translation>Klasörlerinizde birebir aynı kopyaları aramak için Tara’ya basın</translation>
    </message>
    <message>
        <source>Press Scan to search your folders for large files</source>
        <translation>Klasörlerinizde büyük dosyaları aramak için Tara’ya basın</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Yeniden Tara</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Tara</translation>
    </message>
    <message>
        <source>Scanning folders…</source>
        <translation>Klasörler taranıyor…</translation>
    </message>
    <message>
        <source>Scanning…</source>
        <translation>Taranıyor…</translation>
    </message>
    <message>
        <source>Select categories to clean</source>
        <translation>Temizlenecek kategorileri seçin</translation>
    </message>
    <message>
        <source>Select copies to remove — at least one copy of each file is kept</source>
        <translation>Silinecek kopyaları seçin — her dosyanın en az bir kopyası korunur</translation>
    </message>
    <message>
        <source>Select files to remove</source>
        <translation>Silinecek dosyaları seçin</translation>
    </message>
    <message>
        <source>Set threshold and press Scan</source>
        <translation>Alt sınırı belirleyip Tara’ya basın</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>Dosya Yöneticisinde Göster</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Durdur</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Bilinmiyor</translation>
    </message>
    <message>
        <source>… and %lld more</source>
        <translation>… ve %lld tane daha</translation>
    </message>
    <message>
        <source>This will move %lld files to Trash.</source>
        <translation>%lld dosya çöpe taşınacak.</translation>
    </message>
    <message>
        <source>This will move %lld file to Trash.</source>
        <translation>%lld dosya çöpe taşınacak.</translation>
    </message>
    <message>
        <source>This will permanently delete %lld files.</source>
        <translation>%lld dosya kalıcı olarak silinecek.</translation>
    </message>
    <message>
        <source>This will permanently delete %lld file.</source>
        <translation>%lld dosya kalıcı olarak silinecek.</translation>
    </message>
    <message>
        <source>Total Size</source>
        <translation>Toplam Boyut</translation>
    </message>
    <message>
        <source>Clean Selected</source>
        <translation>Seçilenleri Temizle</translation>
    </message>
    <message>
        <source>%@ cleaned</source>
        <translation>%@ temizlendi</translation>
    </message>
    <message>
        <source>%@ freed</source>
        <translation>%@ boşaltıldı</translation>
    </message>
    <message>
        <source>Cleaned — %@ freed</source>
        <translation>Temizlendi — %@ boşaltıldı</translation>
    </message>
    <message>
        <source>Can't clean junk</source>
        <translation>Gereksiz dosyalar temizlenemedi</translation>
    </message>
    <message>
        <source>%@ freed, but %lld protected items were skipped (such as diagnostic reports or sandbox data). You can remove them manually in Finder.</source>
        <translation>%@ boşaltıldı ama korunan %lld öğe atlandı (tanılama raporları veya korumalı alan verileri gibi). Bunları Finder’da elle silebilirsiniz.</translation>
    </message>
    <message>
        <source>Scanning for large files…</source>
        <translation>Büyük dosyalar aranıyor…</translation>
    </message>
    <message>
        <source>Scanning… %lld files checked</source>
        <translation>Taranıyor… %lld dosya denetlendi</translation>
    </message>
    <message>
        <source>Remove %lld large files?</source>
        <translation>%lld büyük dosya silinsin mi?</translation>
    </message>
    <message>
        <source>Remove %lld large file?</source>
        <translation>%lld büyük dosya silinsin mi?</translation>
    </message>
    <message>
        <source>The selected files will be moved to Trash.</source>
        <translation>Seçilen dosyalar çöpe taşınacak.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Çöpe Taşı</translation>
    </message>
    <message>
        <source>%lld large files removed</source>
        <translation>%lld büyük dosya silindi</translation>
    </message>
    <message>
        <source>%lld large file removed</source>
        <translation>%lld büyük dosya silindi</translation>
    </message>
    <message>
        <source>Can't move to Trash</source>
        <translation>Çöpe taşınamadı</translation>
    </message>
    <message>
        <source>Moved to Trash — %@ freed</source>
        <translation>Çöpe taşındı — %@ boşaltıldı</translation>
    </message>
    <message>
        <source>Finding duplicate files…</source>
        <translation>Yinelenen dosyalar aranıyor…</translation>
    </message>
    <message>
        <source>Collecting files…</source>
        <translation>Dosyalar toplanıyor…</translation>
    </message>
    <message>
        <source>Collecting files… %lld</source>
        <translation>Dosyalar toplanıyor… %lld</translation>
    </message>
    <message>
        <source>Hashing files…</source>
        <translation>Dosyalar karşılaştırılıyor…</translation>
    </message>
    <message>
        <source>Hashing files… %lld%%</source>
        <translation>Dosyalar karşılaştırılıyor… %%%lld</translation>
    </message>
    <message>
        <source>Remove %lld duplicate files?</source>
        <translation>%lld yinelenen dosya silinsin mi?</translation>
    </message>
    <message>
        <source>Remove %lld duplicate file?</source>
        <translation>%lld yinelenen dosya silinsin mi?</translation>
    </message>
    <message>
        <source>The selected copies will be moved to Trash. One original copy of each file is kept.</source>
        <translation>Seçilen kopyalar çöpe taşınacak. Her dosyanın bir asıl kopyası korunur.</translation>
    </message>
    <message>
        <source>Selected Files</source>
        <translation>Seçilen Dosyalar</translation>
    </message>
    <message>
        <source>%lld duplicate files removed</source>
        <translation>%lld yinelenen dosya silindi</translation>
    </message>
    <message>
        <source>%@ removed</source>
        <translation>%@ silindi</translation>
    </message>
    <message>
        <source>Removed %lld duplicates — %@ freed</source>
        <translation>%lld yinelenen dosya silindi — %@ boşaltıldı</translation>
    </message>
    <message>
        <source>Scanning applications…</source>
        <translation>Uygulamalar taranıyor…</translation>
    </message>
    <message>
        <source>Brisko needs access to the Library folder to find app-related files.</source>
        <translation>Brisko’nun uygulamalarla ilgili dosyaları bulmak için Kitaplık klasörüne erişmesi gerekiyor.</translation>
    </message>
    <message>
        <source>Brisko needs access to the Library folder to scan caches and logs.</source>
        <translation>Brisko’nun önbellekleri ve günlükleri taramak için Kitaplık klasörüne erişmesi gerekiyor.</translation>
    </message>
    <message>
        <source>Brisko needs access to the Applications folder to move apps to Trash.</source>
        <translation>Brisko’nun uygulamaları çöpe taşımak için Uygulamalar klasörüne erişmesi gerekiyor.</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Klasör Ekle</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>Erişim İzni Ver</translation>
    </message>
    <message>
        <source>Uninstall %@?</source>
        <translation>%@ kaldırılsın mı?</translation>
    </message>
    <message>
        <source>%lld apps</source>
        <translation>%lld uygulama</translation>
    </message>
    <message>
        <source>This will move the application and related files to Trash.</source>
        <translation>Uygulama ve ilgili dosyalar çöpe taşınacak.</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Uygulama</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Uygulamalar</translation>
    </message>
    <message>
        <source>Related Files</source>
        <translation>İlgili Dosyalar</translation>
    </message>
    <message>
        <source>%@ uninstalled</source>
        <translation>%@ kaldırıldı</translation>
    </message>
    <message>
        <source>%lld apps uninstalled</source>
        <translation>%lld uygulama kaldırıldı</translation>
    </message>
    <message>
        <source>Launch Agent</source>
        <translation>Açılış Aracısı</translation>
    </message>
    <message>
        <source>Launch Daemon</source>
        <translation>Açılış Hizmeti</translation>
    </message>
    <message>
        <source>Login Item</source>
        <translation>Giriş Öğesi</translation>
    </message>
    <message>
        <source>Scanning startup items…</source>
        <translation>Başlangıç öğeleri taranıyor…</translation>
    </message>
    <message>
        <source>%@ enabled</source>
        <translation>%@ etkinleştirildi</translation>
    </message>
    <message>
        <source>%@ disabled</source>
        <translation>%@ devre dışı bırakıldı</translation>
    </message>
    <message>
        <source>Remove %@?</source>
        <translation>%@ silinsin mi?</translation>
    </message>
    <message>
        <source>This will move the plist file to Trash. You can re-enable it later from the original app.</source>
        <translation>Bu işlem plist dosyasını çöpe taşır. Öğeyi daha sonra ait olduğu uygulamadan yeniden etkinleştirebilirsiniz.</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tür</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Yol</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Removed %@</source>
        <translation>%@ silindi</translation>
    </message>
    <message>
        <source>Can't remove startup item</source>
        <translation>Başlangıç öğesi silinemedi</translation>
    </message>
    <message>
        <source>Cannot remove system-level startup items</source>
        <translation>Sistem düzeyindeki başlangıç öğeleri silinemez</translation>
    </message>
    <message>
        <source>System-level items cannot be modified</source>
        <translation>Sistem düzeyindeki öğeler değiştirilemez</translation>
    </message>
    <message>
        <source>System-level items cannot be removed</source>
        <translation>Sistem düzeyindeki öğeler silinemez</translation>
    </message>
    <message>
        <source>Can't reach the update server. Check your network and try again.</source>
        <translation>Güncelleme sunucusuna ulaşılamıyor. Ağ bağlantınızı denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>You're up to date!</source>
        <translation>Brisko güncel!</translation>
    </message>
    <message>
        <source>%lld file · %@</source>
        <translation>%lld dosya · %@</translation>
    </message>
    <message>
        <source>%lld files · %@</source>
        <translation>%lld dosya · %@</translation>
    </message>
    <message>
        <source>%lld category · %@ reclaimable</source>
        <translation>%lld kategori · %@ boşaltılabilir</translation>
    </message>
    <message>
        <source>%lld categories · %@ reclaimable</source>
        <translation>%lld kategori · %@ boşaltılabilir</translation>
    </message>
    <message>
        <source>%lld file · %@ total</source>
        <translation>%lld dosya · toplam %@</translation>
    </message>
    <message>
        <source>%lld files · %@ total</source>
        <translation>%lld dosya · toplam %@</translation>
    </message>
    <message>
        <source>%lld copies · %@ reclaimable</source>
        <translation>%lld kopya · %@ boşaltılabilir</translation>
    </message>
    <message>
        <source>%lld group · %@ reclaimable</source>
        <translation>%lld grup · %@ boşaltılabilir</translation>
    </message>
    <message>
        <source>%lld groups · %@ reclaimable</source>
        <translation>%lld grup · %@ boşaltılabilir</translation>
    </message>
    <message>
        <source>%lld application · %@ installed</source>
        <translation>%lld uygulama · %@ kurulu</translation>
    </message>
    <message>
        <source>%lld applications · %@ installed</source>
        <translation>%lld uygulama · %@ kurulu</translation>
    </message>
    <message>
        <source>%lld item · %@ would be removed</source>
        <translation>%lld öğe · %@ silinirdi</translation>
    </message>
    <message>
        <source>%lld items · %@ would be removed</source>
        <translation>%lld öğe · %@ silinirdi</translation>
    </message>
    <message>
        <source>%lld items · %lld enabled</source>
        <translation>%lld öğe · %lld etkin</translation>
    </message>
    <message>
        <source>No junk found</source>
        <translation>Gereksiz dosya bulunamadı</translation>
    </message>
    <message>
        <source>No large files found above threshold</source>
        <translation>Alt sınırın üzerinde büyük dosya bulunamadı</translation>
    </message>
    <message>
        <source>No duplicate files found</source>
        <translation>Yinelenen dosya bulunamadı</translation>
    </message>
    <message>
        <source>No applications found</source>
        <translation>Uygulama bulunamadı</translation>
    </message>
    <message>
        <source>No startup items found</source>
        <translation>Başlangıç öğesi bulunamadı</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Kullanılmıyor</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Etkin</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Kapalı</translation>
    </message>
    <message>
        <source>Uninstaller</source>
        <translation>Kaldırıcı</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Yinelenenler</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>Büyük Dosyalar</translation>
    </message>
    <message>
        <source>Junk Cleaner</source>
        <translation>Gereksizler</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Bellek</translation>
    </message>
    <message>
        <source>Free disk space</source>
        <translation>Boş disk alanı</translation>
    </message>
    <message>
        <source>Disk Temperature</source>
        <translation>Disk Sıcaklığı</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Genel Bakış</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Başlangıç</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>Your Mac, Cleaner and Lighter</source>
        <translation>Mac’iniz Daha Temiz ve Daha Hafif</translation>
    </message>
    <message>
        <source>Free up space, remove junk, and keep your Mac running at its best.</source>
        <translation>Yer açın, gereksiz dosyaları silin ve Mac’inizi en iyi durumda tutun.</translation>
    </message>
    <message>
        <source>Processor load</source>
        <translation>İşlemci yükü</translation>
    </message>
    <message>
        <source>NAND flash</source>
        <translation>NAND flaş bellek</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>Bilgi yok</translation>
    </message>
    <message>
        <source>Freeable Space</source>
        <translation>Boşaltılabilir Alan</translation>
    </message>
    <message>
        <source>Caches, duplicates &amp; unused apps</source>
        <translation>Önbellek, yinelenen ve kullanılmayanlar</translation>
    </message>
    <message>
        <source>Unused applications</source>
        <translation>Kullanılmayan uygulamalar</translation>
    </message>
    <message>
        <source>Duplicate files</source>
        <translation>Yinelenen dosyalar</translation>
    </message>
    <message>
        <source>Large file cleanup</source>
        <translation>Büyük dosya temizliği</translation>
    </message>
    <message>
        <source>Caches &amp; logs</source>
        <translation>Önbellekler ve günlükler</translation>
    </message>
    <message>
        <source>%lld%%</source>
        <translation>%%%lld</translation>
    </message>
    <message>
        <source>%@ / %@</source>
        <translation>%@ / %@</translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation>Hesaplanıyor…</translation>
    </message>
    <message>
        <source>Select applications to uninstall</source>
        <translation>Kaldırılacak uygulamaları seçin</translation>
    </message>
    <message>
        <source>%lld items selected · %@</source>
        <translation>%lld öğe seçili · %@</translation>
    </message>
    <message>
        <source>%lld item selected · %@</source>
        <translation>%lld öğe seçili · %@</translation>
    </message>
    <message>
        <source>%@+</source>
        <translation>%@+</translation>
    </message>
    <message>
        <source>Related Files · %@</source>
        <translation>İlgili Dosyalar · %@</translation>
    </message>
    <message>
        <source>No related files</source>
        <translation>İlgili dosya yok</translation>
    </message>
    <message>
        <source>No related files found for this app.</source>
        <translation>Bu uygulamayla ilgili dosya bulunamadı.</translation>
    </message>
    <message>
        <source>Looking for related files…</source>
        <translation>İlgili dosyalar aranıyor…</translation>
    </message>
    <message>
        <source>Full Disk Access required</source>
        <translation>Tam Disk Erişimi gerekli</translation>
    </message>
    <message>
        <source>Full Disk Access Required</source>
        <translation>Tam Disk Erişimi Gerekli</translation>
    </message>
    <message>
        <source>Grant Full Disk Access, then restart Brisko to scan app container data (caches, settings) and uninstall apps completely.</source>
        <translation>Uygulama kapsayıcılarındaki verileri (önbellekler, ayarlar) taramak ve uygulamaları tamamen kaldırmak için Tam Disk Erişimi izni verin, ardından Brisko’yu yeniden başlatın.</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Sistem Ayarlarını Aç</translation>
    </message>
    <message>
        <source>Scan Apps</source>
        <translation>Uygulama Tara</translation>
    </message>
    <message>
        <source>Show files of %@</source>
        <translation>%@ dosyalarını göster</translation>
    </message>
    <message>
        <source>Hide files of %@</source>
        <translation>%@ dosyalarını gizle</translation>
    </message>
    <message>
        <source>Startup Items</source>
        <translation>Başlangıç Öğeleri</translation>
    </message>
    <message>
        <source>Press Scan to list startup items</source>
        <translation>Başlangıç öğelerini listelemek için Tara’ya basın</translation>
    </message>
    <message>
        <source>No startup items yet</source>
        <translation>Henüz başlangıç öğesi yok</translation>
    </message>
    <message>
        <source>Press Scan to find Launch Agents and Daemons</source>
        <translation>Açılış aracılarını ve hizmetlerini bulmak için Tara’ya basın</translation>
    </message>
    <message>
        <source>%lld item · %lld enabled</source>
        <translation>%lld öğe · %lld etkin</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Yenile</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Etkinleştir</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Devre Dışı Bırak</translation>
    </message>
    <message>
        <source>Remove %@</source>
        <translation>%@ öğesini sil</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Görünüm</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Açık</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Koyu</translation>
    </message>
    <message>
        <source>Duplicate Scan Folders</source>
        <translation>Yinelenenlerin Aranacağı Klasörler</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Klasör Ekle…</translation>
    </message>
    <message>
        <source>Choose a folder to scan for duplicate files.</source>
        <translation>Yinelenen dosyalar için taranacak klasörü seçin.</translation>
    </message>
    <message>
        <source>Remove folder %@</source>
        <translation>%@ klasörünü çıkar</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Hakkında</translation>
    </message>
    <message>
        <source>Brisko %@</source>
        <translation>Brisko %@</translation>
    </message>
    <message>
        <source>A Cleaner, Lighter Mac — More Space. A Brighter Tomorrow.</source>
        <translation>Daha Temiz, Daha Hafif Bir Mac — Daha Çok Yer. Daha Aydınlık Bir Yarın.</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>Güncellemeleri Denetle</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Güncellemeler denetleniyor…</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>Gizlilik Politikası</translation>
    </message>
    <message>
        <source>Terms of Service</source>
        <translation>Hizmet Koşulları</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>Bize Ulaşın</translation>
    </message>
    <message>
        <source>Open Brisko</source>
        <translation>Brisko’yu Aç</translation>
    </message>
    <message>
        <source>Quit Brisko</source>
        <translation>Brisko’dan Çık</translation>
    </message>
    <message>
        <source>What's New</source>
        <translation>Yenilikler</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>İndir</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Bu Sürümü Atla</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Sonra Hatırlat</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Güncelleme Var</translation>
    </message>
    <message>
        <source>Version %@</source>
        <translation>Sürüm %@</translation>
    </message>
    <message>
        <source>Nothing was removed.</source>
        <translation>Hiçbir şey silinmedi.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Durduruldu.</translation>
    </message>
    <message>
        <source>The settings file was damaged. It is kept as %@.</source>
        <translation>Ayar dosyası bozulmuştu. %@ olarak saklandı.</translation>
    </message>
    <message>
        <source>Too large to copy to the Trash from another disk.</source>
        <translation>Başka bir diskten çöpe kopyalanamayacak kadar büyük.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Simge Durumuna Küçült</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Önceki Boyut</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Büyüt</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Sayfalar</translation>
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
