<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="th" sourcelanguage="en">
<context>
    <name>Brisko</name>
    <message>
        <source>System</source>
        <translation>ระบบ</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ตกลง</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>No usable home folder</source>
        <translation>ไม่มีโฟลเดอร์บ้านที่ใช้ได้</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>เสร็จแล้ว</translation>
    </message>
    <message>
        <source>Scan complete — %@ can be freed</source>
        <translation>สแกนเสร็จแล้ว — คืนพื้นที่ได้ %@</translation>
    </message>
    <message>
        <source>Old Downloads</source>
        <translation>ไฟล์ดาวน์โหลดเก่า</translation>
    </message>
    <message>
        <source>App Caches</source>
        <translation>แคชของแอป</translation>
    </message>
    <message>
        <source>System Logs</source>
        <translation>ไฟล์บันทึกของระบบ</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>ไฟล์ชั่วคราว</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>ถังขยะ</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>รายงานข้อขัดข้อง</translation>
    </message>
    <message>
        <source>Browser Caches</source>
        <translation>แคชของเบราว์เซอร์</translation>
    </message>
    <message>
        <source>Chat App Caches</source>
        <translation>แคชของแอปแชต</translation>
    </message>
    <message>
        <source>Leftover Installers</source>
        <translation>ไฟล์ติดตั้งตกค้าง</translation>
    </message>
    <message>
        <source>Scanning system caches…</source>
        <translation>กำลังสแกนแคชของระบบ…</translation>
    </message>
    <message>
        <source>Scanning Trash…</source>
        <translation>กำลังสแกนถังขยะ…</translation>
    </message>
    <message>
        <source>Scanning crash reports…</source>
        <translation>กำลังสแกนรายงานข้อขัดข้อง…</translation>
    </message>
    <message>
        <source>Scanning browser caches…</source>
        <translation>กำลังสแกนแคชของเบราว์เซอร์…</translation>
    </message>
    <message>
        <source>Scanning chat caches…</source>
        <translation>กำลังสแกนแคชของแอปแชต…</translation>
    </message>
    <message>
        <source>Scanning installers…</source>
        <translation>กำลังสแกนไฟล์ติดตั้ง…</translation>
    </message>
    <message>
        <source>Clean %lld categories?</source>
        <translation>ล้าง %lld หมวดหมู่หรือไม่</translation>
    </message>
    <message>
        <source>Clean %lld category?</source>
        <translation>ล้าง %lld หมวดหมู่หรือไม่</translation>
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
        <translation>เลือกไว้ %lld ไฟล์ · %@</translation>
    </message>
    <message>
        <source>%lld files selected · %@</source>
        <translation>เลือกไว้ %lld ไฟล์ · %@</translation>
    </message>
    <message>
        <source>%lld selected · %@</source>
        <translation>เลือกไว้ %lld รายการ · %@</translation>
    </message>
    <message>
        <source>Add folders to scan</source>
        <translation>เพิ่มโฟลเดอร์ที่จะสแกน</translation>
    </message>
    <message>
        <source>At least one copy is kept</source>
        <translation>จะเก็บสำเนาไว้อย่างน้อยหนึ่งชุด</translation>
    </message>
    <message>
        <source>Choose a folder to scan for large files.</source>
        <translation>เลือกโฟลเดอร์ที่จะสแกนหาไฟล์ขนาดใหญ่</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>คัดลอกพาธ</translation>
    </message>
    <message>
        <source>Folders:</source>
        <translation>โฟลเดอร์:</translation>
    </message>
    <message>
        <source>Grant Full Disk Access, then restart Brisko to scan the Trash, chat app caches, and other protected data.</source>
        <translation>อนุญาตการเข้าถึงทั้งดิสก์ แล้วเริ่ม Brisko ใหม่เพื่อสแกนถังขยะ แคชของแอปแชต และข้อมูลอื่นที่มีการป้องกัน</translation>
    </message>
    <message>
        <source>Hashing file contents, this may take a moment</source>
        <translation>กำลังเปรียบเทียบเนื้อหาของไฟล์ อาจใช้เวลาสักครู่</translation>
    </message>
    <message>
        <source>Junk categories</source>
        <translation>หมวดหมู่ไฟล์ขยะ</translation>
    </message>
    <message>
        <source>Keep First</source>
        <translation>เก็บไฟล์แรก</translation>
    </message>
    <message>
        <source>Large files</source>
        <translation>ไฟล์ขนาดใหญ่</translation>
    </message>
    <message>
        <source>No duplicate files yet — press Scan to search</source>
        <translation>ยังไม่มีไฟล์ซ้ำ — กด “สแกน” เพื่อค้นหา</translation>
    </message>
    <message>
        <source>No junk found yet</source>
        <translation>ยังไม่พบไฟล์ขยะ</translation>
    </message>
    <message>
        <source>No junk found — your Mac is clean</source>
        <translation>ไม่พบไฟล์ขยะ — Mac ของคุณสะอาดแล้ว</translation>
    </message>
    <message>
        <source>No large files yet</source>
        <translation>ยังไม่มีไฟล์ขนาดใหญ่</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>ต้นฉบับ</translation>
    </message>
    <message>
        <source>Press Scan to find junk files</source>
        <translation>กด “สแกน” เพื่อค้นหาไฟล์ขยะ</translation>
    </message>
    <message>
        <source>Press Scan to search for caches, logs, and temporary files</source>
        <translation>กด “สแกน” เพื่อค้นหาแคช ไฟล์บันทึก และไฟล์ชั่วคราว</translation>
    </message>
    <message>
        <source>Press Scan to search your folders for identical copies</source>
        <translation>กด “สแกน” เพื่อค้นหาสำเนาที่เหมือนกันในโฟลเดอร์ของคุณ</translation>
    </message>
    <message>
        <source>Press Scan to search your folders for large files</source>
        <translation>กด “สแกน” เพื่อค้นหาไฟล์ขนาดใหญ่ในโฟลเดอร์ของคุณ</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>สแกนใหม่</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>สแกน</translation>
    </message>
    <message>
        <source>Scanning folders…</source>
        <translation>กำลังสแกนโฟลเดอร์…</translation>
    </message>
    <message>
        <source>Scanning…</source>
        <translation>กำลังสแกน…</translation>
    </message>
    <message>
        <source>Select categories to clean</source>
        <translation>เลือกหมวดหมู่ที่จะล้าง</translation>
    </message>
    <message>
        <source>Select copies to remove — at least one copy of each file is kept</source>
        <translation>เลือกสำเนาที่จะลบ — จะเก็บสำเนาของแต่ละไฟล์ไว้อย่างน้อยหนึ่งชุด</translation>
    </message>
    <message>
        <source>Select files to remove</source>
        <translation>เลือกไฟล์ที่จะลบ</translation>
    </message>
    <message>
        <source>Set threshold and press Scan</source>
        <translation>ตั้งเกณฑ์ขนาดแล้วกด “สแกน”</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>แสดงในตัวจัดการไฟล์</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>หยุด</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>ไม่ทราบ</translation>
    </message>
    <message>
        <source>… and %lld more</source>
        <translation>… และอีก %lld รายการ</translation>
    </message>
    <message>
        <source>This will move %lld files to Trash.</source>
        <translation>จะย้าย %lld ไฟล์ไปถังขยะ</translation>
    </message>
    <message>
        <source>This will move %lld file to Trash.</source>
        <translation>จะย้าย %lld ไฟล์ไปถังขยะ</translation>
    </message>
    <message>
        <source>This will permanently delete %lld files.</source>
        <translation>จะลบ %lld ไฟล์อย่างถาวร</translation>
    </message>
    <message>
        <source>This will permanently delete %lld file.</source>
        <translation>จะลบ %lld ไฟล์อย่างถาวร</translation>
    </message>
    <message>
        <source>Total Size</source>
        <translation>ขนาดรวม</translation>
    </message>
    <message>
        <source>Clean Selected</source>
        <translation>ล้างรายการที่เลือก</translation>
    </message>
    <message>
        <source>%@ cleaned</source>
        <translation>ล้าง%@แล้ว</translation>
    </message>
    <message>
        <source>%@ freed</source>
        <translation>คืนพื้นที่แล้ว %@</translation>
    </message>
    <message>
        <source>Cleaned — %@ freed</source>
        <translation>ล้างแล้ว — คืนพื้นที่ %@</translation>
    </message>
    <message>
        <source>Can't clean junk</source>
        <translation>ล้างไฟล์ขยะไม่ได้</translation>
    </message>
    <message>
        <source>%@ freed, but %lld protected items were skipped (such as diagnostic reports or sandbox data). You can remove them manually in Finder.</source>
        <translation>คืนพื้นที่แล้ว %@ แต่ข้ามรายการที่มีการป้องกันไป %lld รายการ (เช่น รายงานการวินิจฉัยหรือข้อมูลแซนด์บ็อกซ์) คุณลบรายการเหล่านี้เองได้ใน Finder</translation>
    </message>
    <message>
        <source>Scanning for large files…</source>
        <translation>กำลังสแกนหาไฟล์ขนาดใหญ่…</translation>
    </message>
    <message>
        <source>Scanning… %lld files checked</source>
        <translation>กำลังสแกน… ตรวจแล้ว %lld ไฟล์</translation>
    </message>
    <message>
        <source>Remove %lld large files?</source>
        <translation>ลบไฟล์ขนาดใหญ่ %lld ไฟล์หรือไม่</translation>
    </message>
    <message>
        <source>Remove %lld large file?</source>
        <translation>ลบไฟล์ขนาดใหญ่ %lld ไฟล์หรือไม่</translation>
    </message>
    <message>
        <source>The selected files will be moved to Trash.</source>
        <translation>จะย้ายไฟล์ที่เลือกไปถังขยะ</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>ย้ายไปถังขยะ</translation>
    </message>
    <message>
        <source>%lld large files removed</source>
        <translation>ลบไฟล์ขนาดใหญ่ %lld ไฟล์แล้ว</translation>
    </message>
    <message>
        <source>%lld large file removed</source>
        <translation>ลบไฟล์ขนาดใหญ่ %lld ไฟล์แล้ว</translation>
    </message>
    <message>
        <source>Can't move to Trash</source>
        <translation>ย้ายไปถังขยะไม่ได้</translation>
    </message>
    <message>
        <source>Moved to Trash — %@ freed</source>
        <translation>ย้ายไปถังขยะแล้ว — คืนพื้นที่ %@</translation>
    </message>
    <message>
        <source>Finding duplicate files…</source>
        <translation>กำลังค้นหาไฟล์ซ้ำ…</translation>
    </message>
    <message>
        <source>Collecting files…</source>
        <translation>กำลังรวบรวมไฟล์…</translation>
    </message>
    <message>
        <source>Collecting files… %lld</source>
        <translation>กำลังรวบรวมไฟล์… %lld</translation>
    </message>
    <message>
        <source>Hashing files…</source>
        <translation>กำลังเปรียบเทียบไฟล์…</translation>
    </message>
    <message>
        <source>Hashing files… %lld%%</source>
        <translation>กำลังเปรียบเทียบไฟล์… %lld%%</translation>
    </message>
    <message>
        <source>Remove %lld duplicate files?</source>
        <translation>ลบไฟล์ซ้ำ %lld ไฟล์หรือไม่</translation>
    </message>
    <message>
        <source>Remove %lld duplicate file?</source>
        <translation>ลบไฟล์ซ้ำ %lld ไฟล์หรือไม่</translation>
    </message>
    <message>
        <source>The selected copies will be moved to Trash. One original copy of each file is kept.</source>
        <translation>จะย้ายสำเนาที่เลือกไปถังขยะ และเก็บต้นฉบับของแต่ละไฟล์ไว้หนึ่งชุด</translation>
    </message>
    <message>
        <source>Selected Files</source>
        <translation>ไฟล์ที่เลือก</translation>
    </message>
    <message>
        <source>%lld duplicate files removed</source>
        <translation>ลบไฟล์ซ้ำ %lld ไฟล์แล้ว</translation>
    </message>
    <message>
        <source>%@ removed</source>
        <translation>ลบ %@ แล้ว</translation>
    </message>
    <message>
        <source>Removed %lld duplicates — %@ freed</source>
        <translation>ลบไฟล์ซ้ำ %lld ไฟล์แล้ว — คืนพื้นที่ %@</translation>
    </message>
    <message>
        <source>Scanning applications…</source>
        <translation>กำลังสแกนแอป…</translation>
    </message>
    <message>
        <source>Brisko needs access to the Library folder to find app-related files.</source>
        <translation>Brisko ต้องเข้าถึงโฟลเดอร์คลังเพื่อค้นหาไฟล์ที่เกี่ยวข้องกับแอป</translation>
    </message>
    <message>
        <source>Brisko needs access to the Library folder to scan caches and logs.</source>
        <translation>Brisko ต้องเข้าถึงโฟลเดอร์คลังเพื่อสแกนแคชและไฟล์บันทึก</translation>
    </message>
    <message>
        <source>Brisko needs access to the Applications folder to move apps to Trash.</source>
        <translation>Brisko ต้องเข้าถึงโฟลเดอร์แอปพลิเคชันเพื่อย้ายแอปไปถังขยะ</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>เพิ่มโฟลเดอร์</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>อนุญาตการเข้าถึง</translation>
    </message>
    <message>
        <source>Uninstall %@?</source>
        <translation>ถอนการติดตั้ง %@ หรือไม่</translation>
    </message>
    <message>
        <source>%lld apps</source>
        <translation>%lld แอป</translation>
    </message>
    <message>
        <source>This will move the application and related files to Trash.</source>
        <translation>จะย้ายแอปและไฟล์ที่เกี่ยวข้องไปถังขยะ</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>แอป</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>แอป</translation>
    </message>
    <message>
        <source>Related Files</source>
        <translation>ไฟล์ที่เกี่ยวข้อง</translation>
    </message>
    <message>
        <source>%@ uninstalled</source>
        <translation>ถอนการติดตั้ง %@ แล้ว</translation>
    </message>
    <message>
        <source>%lld apps uninstalled</source>
        <translation>ถอนการติดตั้ง %lld แอปแล้ว</translation>
    </message>
    <message>
        <source>Launch Agent</source>
        <translation>เอเจนต์เริ่มระบบ</translation>
    </message>
    <message>
        <source>Launch Daemon</source>
        <translation>ดีมอนเริ่มระบบ</translation>
    </message>
    <message>
        <source>Login Item</source>
        <translation>รายการเข้าสู่ระบบ</translation>
    </message>
    <message>
        <source>Scanning startup items…</source>
        <translation>กำลังสแกนรายการเริ่มระบบ…</translation>
    </message>
    <message>
        <source>%@ enabled</source>
        <translation>เปิดใช้ %@ แล้ว</translation>
    </message>
    <message>
        <source>%@ disabled</source>
        <translation>ปิดใช้ %@ แล้ว</translation>
    </message>
    <message>
        <source>Remove %@?</source>
        <translation>ลบ %@ หรือไม่</translation>
    </message>
    <message>
        <source>This will move the plist file to Trash. You can re-enable it later from the original app.</source>
        <translation>จะย้ายไฟล์ plist ไปถังขยะ คุณเปิดใช้รายการนี้อีกครั้งภายหลังได้จากแอปต้นทาง</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>ประเภท</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>พาธ</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>ลบ</translation>
    </message>
    <message>
        <source>Removed %@</source>
        <translation>ลบ %@ แล้ว</translation>
    </message>
    <message>
        <source>Can't remove startup item</source>
        <translation>ลบรายการเริ่มระบบไม่ได้</translation>
    </message>
    <message>
        <source>Cannot remove system-level startup items</source>
        <translation>ลบรายการเริ่มระบบที่เป็นของระบบไม่ได้</translation>
    </message>
    <message>
        <source>System-level items cannot be modified</source>
        <translation>แก้ไขรายการของระบบไม่ได้</translation>
    </message>
    <message>
        <source>System-level items cannot be removed</source>
        <translation>ลบรายการของระบบไม่ได้</translation>
    </message>
    <message>
        <source>Can't reach the update server. Check your network and try again.</source>
        <translation>เชื่อมต่อเซิร์ฟเวอร์อัปเดตไม่ได้ โปรดตรวจสอบเครือข่ายแล้วลองอีกครั้ง</translation>
    </message>
    <message>
        <source>You're up to date!</source>
        <translation>คุณใช้เวอร์ชันล่าสุดแล้ว</translation>
    </message>
    <message>
        <source>%lld file · %@</source>
        <translation>%lld ไฟล์ · %@</translation>
    </message>
    <message>
        <source>%lld files · %@</source>
        <translation>%lld ไฟล์ · %@</translation>
    </message>
    <message>
        <source>%lld category · %@ reclaimable</source>
        <translation>%lld หมวดหมู่ · คืนพื้นที่ได้ %@</translation>
    </message>
    <message>
        <source>%lld categories · %@ reclaimable</source>
        <translation>%lld หมวดหมู่ · คืนพื้นที่ได้ %@</translation>
    </message>
    <message>
        <source>%lld file · %@ total</source>
        <translation>%lld ไฟล์ · รวม %@</translation>
    </message>
    <message>
        <source>%lld files · %@ total</source>
        <translation>%lld ไฟล์ · รวม %@</translation>
    </message>
    <message>
        <source>%lld copies · %@ reclaimable</source>
        <translation>สำเนา %lld ชุด · คืนพื้นที่ได้ %@</translation>
    </message>
    <message>
        <source>%lld group · %@ reclaimable</source>
        <translation>%lld กลุ่ม · คืนพื้นที่ได้ %@</translation>
    </message>
    <message>
        <source>%lld groups · %@ reclaimable</source>
        <translation>%lld กลุ่ม · คืนพื้นที่ได้ %@</translation>
    </message>
    <message>
        <source>%lld application · %@ installed</source>
        <translation>%lld แอป · ติดตั้งแล้ว %@</translation>
    </message>
    <message>
        <source>%lld applications · %@ installed</source>
        <translation>%lld แอป · ติดตั้งแล้ว %@</translation>
    </message>
    <message>
        <source>%lld item · %@ would be removed</source>
        <translation>%lld รายการ · จะลบ %@</translation>
    </message>
    <message>
        <source>%lld items · %@ would be removed</source>
        <translation>%lld รายการ · จะลบ %@</translation>
    </message>
    <message>
        <source>%lld items · %lld enabled</source>
        <translation>%lld รายการ · เปิดใช้อยู่ %lld รายการ</translation>
    </message>
    <message>
        <source>No junk found</source>
        <translation>ไม่พบไฟล์ขยะ</translation>
    </message>
    <message>
        <source>No large files found above threshold</source>
        <translation>ไม่พบไฟล์ขนาดใหญ่ที่เกินเกณฑ์</translation>
    </message>
    <message>
        <source>No duplicate files found</source>
        <translation>ไม่พบไฟล์ซ้ำ</translation>
    </message>
    <message>
        <source>No applications found</source>
        <translation>ไม่พบแอป</translation>
    </message>
    <message>
        <source>No startup items found</source>
        <translation>ไม่พบรายการเริ่มระบบ</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>ไม่ได้ใช้</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>เปิดใช้อยู่</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>ปิดใช้อยู่</translation>
    </message>
    <message>
        <source>Uninstaller</source>
        <translation>ถอนการติดตั้ง</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>ไฟล์ซ้ำ</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>ไฟล์ขนาดใหญ่</translation>
    </message>
    <message>
        <source>Junk Cleaner</source>
        <translation>ล้างไฟล์ขยะ</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>หน่วยความจำ</translation>
    </message>
    <message>
        <source>Free disk space</source>
        <translation>พื้นที่ว่างบนดิสก์</translation>
    </message>
    <message>
        <source>Disk Temperature</source>
        <translation>อุณหภูมิดิสก์</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>ภาพรวม</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>การเริ่มระบบ</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>การตั้งค่า</translation>
    </message>
    <message>
        <source>Your Mac, Cleaner and Lighter</source>
        <translation>Mac ของคุณ สะอาดขึ้นและเบาขึ้น</translation>
    </message>
    <message>
        <source>Free up space, remove junk, and keep your Mac running at its best.</source>
        <translation>เพิ่มพื้นที่ว่าง ลบไฟล์ขยะ และให้ Mac ของคุณทำงานได้ดีที่สุดเสมอ</translation>
    </message>
    <message>
        <source>Processor load</source>
        <translation>ภาระงานโปรเซสเซอร์</translation>
    </message>
    <message>
        <source>NAND flash</source>
        <translation>แฟลช NAND</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>ไม่มีข้อมูล</translation>
    </message>
    <message>
        <source>Freeable Space</source>
        <translation>พื้นที่ที่คืนได้</translation>
    </message>
    <message>
        <source>Caches, duplicates &amp; unused apps</source>
        <translation>แคช ไฟล์ซ้ำ และแอปที่ไม่ได้ใช้</translation>
    </message>
    <message>
        <source>Unused applications</source>
        <translation>แอปที่ไม่ได้ใช้</translation>
    </message>
    <message>
        <source>Duplicate files</source>
        <translation>ไฟล์ซ้ำ</translation>
    </message>
    <message>
        <source>Large file cleanup</source>
        <translation>ล้างไฟล์ขนาดใหญ่</translation>
    </message>
    <message>
        <source>Caches &amp; logs</source>
        <translation>แคชและไฟล์บันทึก</translation>
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
        <translation>กำลังคำนวณ…</translation>
    </message>
    <message>
        <source>Select applications to uninstall</source>
        <translation>เลือกแอปที่จะถอนการติดตั้ง</translation>
    </message>
    <message>
        <source>%lld items selected · %@</source>
        <translation>เลือกไว้ %lld รายการ · %@</translation>
    </message>
    <message>
        <source>%lld item selected · %@</source>
        <translation>เลือกไว้ %lld รายการ · %@</translation>
    </message>
    <message>
        <source>%@+</source>
        <translation>%@+</translation>
    </message>
    <message>
        <source>Related Files · %@</source>
        <translation>ไฟล์ที่เกี่ยวข้อง · %@</translation>
    </message>
    <message>
        <source>No related files</source>
        <translation>ไม่มีไฟล์ที่เกี่ยวข้อง</translation>
    </message>
    <message>
        <source>No related files found for this app.</source>
        <translation>ไม่พบไฟล์ที่เกี่ยวข้องกับแอปนี้</translation>
    </message>
    <message>
        <source>Looking for related files…</source>
        <translation>กำลังค้นหาไฟล์ที่เกี่ยวข้อง…</translation>
    </message>
    <message>
        <source>Full Disk Access required</source>
        <translation>ต้องอนุญาตการเข้าถึงทั้งดิสก์</translation>
    </message>
    <message>
        <source>Full Disk Access Required</source>
        <translation>ต้องอนุญาตการเข้าถึงทั้งดิสก์</translation>
    </message>
    <message>
        <source>Grant Full Disk Access, then restart Brisko to scan app container data (caches, settings) and uninstall apps completely.</source>
        <translation>อนุญาตการเข้าถึงทั้งดิสก์ แล้วเริ่ม Brisko ใหม่เพื่อสแกนข้อมูลในคอนเทนเนอร์ของแอป (แคช การตั้งค่า) และถอนการติดตั้งแอปได้อย่างสมบูรณ์</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>เปิดการตั้งค่าระบบ</translation>
    </message>
    <message>
        <source>Scan Apps</source>
        <translation>สแกนแอป</translation>
    </message>
    <message>
        <source>Show files of %@</source>
        <translation>แสดงไฟล์ของ %@</translation>
    </message>
    <message>
        <source>Hide files of %@</source>
        <translation>ซ่อนไฟล์ของ %@</translation>
    </message>
    <message>
        <source>Startup Items</source>
        <translation>รายการเริ่มระบบ</translation>
    </message>
    <message>
        <source>Press Scan to list startup items</source>
        <translation>กด “สแกน” เพื่อแสดงรายการเริ่มระบบ</translation>
    </message>
    <message>
        <source>No startup items yet</source>
        <translation>ยังไม่มีรายการเริ่มระบบ</translation>
    </message>
    <message>
        <source>Press Scan to find Launch Agents and Daemons</source>
        <translation>กด “สแกน” เพื่อค้นหาเอเจนต์และดีมอนเริ่มระบบ</translation>
    </message>
    <message>
        <source>%lld item · %lld enabled</source>
        <translation>%lld รายการ · เปิดใช้อยู่ %lld รายการ</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>รีเฟรช</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>เปิดใช้</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>ปิดใช้</translation>
    </message>
    <message>
        <source>Remove %@</source>
        <translation>ลบ %@</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>ภาษา</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>รูปลักษณ์</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>สว่าง</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>มืด</translation>
    </message>
    <message>
        <source>Duplicate Scan Folders</source>
        <translation>โฟลเดอร์ที่สแกนหาไฟล์ซ้ำ</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>เพิ่มโฟลเดอร์…</translation>
    </message>
    <message>
        <source>Choose a folder to scan for duplicate files.</source>
        <translation>เลือกโฟลเดอร์ที่จะสแกนหาไฟล์ซ้ำ</translation>
    </message>
    <message>
        <source>Remove folder %@</source>
        <translation>นำโฟลเดอร์ %@ ออก</translation>
    </message>
    <message>
        <source>About</source>
        <translation>เกี่ยวกับ</translation>
    </message>
    <message>
        <source>Brisko %@</source>
        <translation>Brisko %@</translation>
    </message>
    <message>
        <source>A Cleaner, Lighter Mac — More Space. A Brighter Tomorrow.</source>
        <translation>Mac ที่สะอาดและเบากว่าเดิม — พื้นที่มากขึ้น วันพรุ่งนี้ที่สดใสกว่า</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>ตรวจหาอัปเดต</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>กำลังตรวจหาอัปเดต…</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>นโยบายความเป็นส่วนตัว</translation>
    </message>
    <message>
        <source>Terms of Service</source>
        <translation>ข้อกำหนดการให้บริการ</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>ติดต่อเรา</translation>
    </message>
    <message>
        <source>Open Brisko</source>
        <translation>เปิด Brisko</translation>
    </message>
    <message>
        <source>Quit Brisko</source>
        <translation>ออกจาก Brisko</translation>
    </message>
    <message>
        <source>What's New</source>
        <translation>มีอะไรใหม่</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>ดาวน์โหลด</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>ข้ามเวอร์ชันนี้</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>เตือนภายหลัง</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>มีอัปเดตใหม่</translation>
    </message>
    <message>
        <source>Version %@</source>
        <translation>เวอร์ชัน %@</translation>
    </message>
    <message>
        <source>Nothing was removed.</source>
        <translation>ไม่มีรายการใดถูกลบ</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>หยุดแล้ว</translation>
    </message>
    <message>
        <source>The settings file was damaged. It is kept as %@.</source>
        <translation>ไฟล์การตั้งค่าเสียหาย และถูกเก็บไว้เป็น %@</translation>
    </message>
    <message>
        <source>Too large to copy to the Trash from another disk.</source>
        <translation>ใหญ่เกินกว่าจะคัดลอกไปถังขยะจากดิสก์อื่น</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>ปิด</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>ย่อลง</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>คืนขนาด</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ขยาย</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>เมนู</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>หน้า</translation>
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
