<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: MIT -->
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>Brisko</name>
    <message>
        <source>System</source>
        <translation>시스템</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>No usable home folder</source>
        <translation>사용할 수 있는 홈 폴더가 없습니다</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Scan complete — %@ can be freed</source>
        <translation>스캔 완료, %@를 확보할 수 있습니다</translation>
    </message>
    <message>
        <source>Old Downloads</source>
        <translation>오래된 다운로드</translation>
    </message>
    <message>
        <source>App Caches</source>
        <translation>앱 캐시</translation>
    </message>
    <message>
        <source>System Logs</source>
        <translation>시스템 로그</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>임시 파일</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>휴지통</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>충돌 보고서</translation>
    </message>
    <message>
        <source>Browser Caches</source>
        <translation>브라우저 캐시</translation>
    </message>
    <message>
        <source>Chat App Caches</source>
        <translation>채팅 앱 캐시</translation>
    </message>
    <message>
        <source>Leftover Installers</source>
        <translation>남은 설치 파일</translation>
    </message>
    <message>
        <source>Scanning system caches…</source>
        <translation>시스템 캐시 스캔 중…</translation>
    </message>
    <message>
        <source>Scanning Trash…</source>
        <translation>휴지통 스캔 중…</translation>
    </message>
    <message>
        <source>Scanning crash reports…</source>
        <translation>충돌 보고서 스캔 중…</translation>
    </message>
    <message>
        <source>Scanning browser caches…</source>
        <translation>브라우저 캐시 스캔 중…</translation>
    </message>
    <message>
        <source>Scanning chat caches…</source>
        <translation>채팅 캐시 스캔 중…</translation>
    </message>
    <message>
        <source>Scanning installers…</source>
        <translation>설치 파일 스캔 중…</translation>
    </message>
    <message>
        <source>Clean %lld categories?</source>
        <translation>카테고리 %lld개를 정리하시겠습니까?</translation>
    </message>
    <message>
        <source>Clean %lld category?</source>
        <translation>카테고리 %lld개를 정리하시겠습니까?</translation>
    </message>
    <message>
        <source>%@ · %@</source>
        <translation>%@ · %@</translation>
    </message>
    <message>
        <source>%lld MB</source>
        <translation>%lldMB</translation>
    </message>
    <message>
        <source>1 GB</source>
        <translation>1GB</translation>
    </message>
    <message>
        <source>≥ %@</source>
        <translation>≥ %@</translation>
    </message>
    <message>
        <source>%lld file selected · %@</source>
        <translation>파일 %lld개 선택됨 · %@</translation>
    </message>
    <message>
        <source>%lld files selected · %@</source>
        <translation>파일 %lld개 선택됨 · %@</translation>
    </message>
    <message>
        <source>%lld selected · %@</source>
        <translation>%lld개 선택됨 · %@</translation>
    </message>
    <message>
        <source>Add folders to scan</source>
        <translation>스캔할 폴더를 추가하세요</translation>
    </message>
    <message>
        <source>At least one copy is kept</source>
        <translation>사본을 최소 한 개는 남겨 둡니다</translation>
    </message>
    <message>
        <source>Choose a folder to scan for large files.</source>
        <translation>대용량 파일을 찾을 폴더를 선택하세요.</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>경로 복사</translation>
    </message>
    <message>
        <source>Folders:</source>
        <translation>폴더:</translation>
    </message>
    <message>
        <source>Grant Full Disk Access, then restart Brisko to scan the Trash, chat app caches, and other protected data.</source>
        <translation>휴지통, 채팅 앱 캐시 및 기타 보호된 데이터를 스캔하려면 전체 디스크 접근 권한을 허용한 다음 Brisko를 다시 시작하세요.</translation>
    </message>
    <message>
        <source>Hashing file contents, this may take a moment</source>
        <translation>파일 내용의 해시를 계산하는 중이며, 시간이 조금 걸릴 수 있습니다</translation>
    </message>
    <message>
        <source>Junk categories</source>
        <translation>정크 파일 카테고리</translation>
    </message>
    <message>
        <source>Keep First</source>
        <translation>첫 파일 유지</translation>
    </message>
    <message>
        <source>Large files</source>
        <translation>대용량 파일</translation>
    </message>
    <message>
        <source>No duplicate files yet — press Scan to search</source>
        <translation>아직 찾은 중복 파일이 없습니다. ‘스캔’을 눌러 찾아보세요.</translation>
    </message>
    <message>
        <source>No junk found yet</source>
        <translation>아직 찾은 정크 파일이 없습니다</translation>
    </message>
    <message>
        <source>No junk found — your Mac is clean</source>
        <translation>정크 파일이 없어 Mac이 깨끗합니다</translation>
    </message>
    <message>
        <source>No large files yet</source>
        <translation>아직 찾은 대용량 파일이 없습니다</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>원본</translation>
    </message>
    <message>
        <source>Press Scan to find junk files</source>
        <translation>‘스캔’을 눌러 정크 파일을 찾아보세요</translation>
    </message>
    <message>
        <source>Press Scan to search for caches, logs, and temporary files</source>
        <translation>‘스캔’을 누르면 캐시, 로그 및 임시 파일을 찾습니다</translation>
    </message>
    <message>
        <source>Press Scan to search your folders for identical copies</source>
        <translation>‘스캔’을 누르면 폴더에서 내용이 같은 사본을 찾습니다</translation>
    </message>
    <message>
        <source>Press Scan to search your folders for large files</source>
        <translation>‘스캔’을 누르면 폴더에서 대용량 파일을 찾습니다</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>다시 스캔</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>스캔</translation>
    </message>
    <message>
        <source>Scanning folders…</source>
        <translation>폴더 스캔 중…</translation>
    </message>
    <message>
        <source>Scanning…</source>
        <translation>스캔 중…</translation>
    </message>
    <message>
        <source>Select categories to clean</source>
        <translation>정리할 카테고리를 선택하세요</translation>
    </message>
    <message>
        <source>Select copies to remove — at least one copy of each file is kept</source>
        <translation>삭제할 사본을 선택하세요. 각 파일의 사본은 최소 한 개 남겨 둡니다.</translation>
    </message>
    <message>
        <source>Select files to remove</source>
        <translation>삭제할 파일을 선택하세요</translation>
    </message>
    <message>
        <source>Set threshold and press Scan</source>
        <translation>기준 크기를 설정하고 ‘스캔’을 누르세요</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>파일 관리자에서 보기</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>중단</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>… and %lld more</source>
        <translation>… 외 %lld개</translation>
    </message>
    <message>
        <source>This will move %lld files to Trash.</source>
        <translation>파일 %lld개를 휴지통으로 이동합니다.</translation>
    </message>
    <message>
        <source>This will move %lld file to Trash.</source>
        <translation>파일 %lld개를 휴지통으로 이동합니다.</translation>
    </message>
    <message>
        <source>This will permanently delete %lld files.</source>
        <translation>파일 %lld개를 영구적으로 삭제합니다.</translation>
    </message>
    <message>
        <source>This will permanently delete %lld file.</source>
        <translation>파일 %lld개를 영구적으로 삭제합니다.</translation>
    </message>
    <message>
        <source>Total Size</source>
        <translation>총 크기</translation>
    </message>
    <message>
        <source>Clean Selected</source>
        <translation>선택 항목 정리</translation>
    </message>
    <message>
        <source>%@ cleaned</source>
        <translation>%@ 정리됨</translation>
    </message>
    <message>
        <source>%@ freed</source>
        <translation>%@ 확보됨</translation>
    </message>
    <message>
        <source>Cleaned — %@ freed</source>
        <translation>정리 완료, %@를 확보했습니다</translation>
    </message>
    <message>
        <source>Can't clean junk</source>
        <translation>정크 파일을 정리할 수 없음</translation>
    </message>
    <message>
        <source>%@ freed, but %lld protected items were skipped (such as diagnostic reports or sandbox data). You can remove them manually in Finder.</source>
        <translation>%@를 확보했지만 보호된 항목 %lld개(진단 보고서, 샌드박스 데이터 등)는 건너뛰었습니다. Finder에서 직접 삭제할 수 있습니다.</translation>
    </message>
    <message>
        <source>Scanning for large files…</source>
        <translation>대용량 파일 찾는 중…</translation>
    </message>
    <message>
        <source>Scanning… %lld files checked</source>
        <translation>스캔 중… 파일 %lld개 확인함</translation>
    </message>
    <message>
        <source>Remove %lld large files?</source>
        <translation>대용량 파일 %lld개를 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>Remove %lld large file?</source>
        <translation>대용량 파일 %lld개를 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>The selected files will be moved to Trash.</source>
        <translation>선택한 파일을 휴지통으로 이동합니다.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>휴지통으로 이동</translation>
    </message>
    <message>
        <source>%lld large files removed</source>
        <translation>대용량 파일 %lld개 삭제됨</translation>
    </message>
    <message>
        <source>%lld large file removed</source>
        <translation>대용량 파일 %lld개 삭제됨</translation>
    </message>
    <message>
        <source>Can't move to Trash</source>
        <translation>휴지통으로 이동할 수 없음</translation>
    </message>
    <message>
        <source>Moved to Trash — %@ freed</source>
        <translation>휴지통으로 이동하여 %@를 확보했습니다</translation>
    </message>
    <message>
        <source>Finding duplicate files…</source>
        <translation>중복 파일 찾는 중…</translation>
    </message>
    <message>
        <source>Collecting files…</source>
        <translation>파일 수집 중…</translation>
    </message>
    <message>
        <source>Collecting files… %lld</source>
        <translation>파일 수집 중… %lld</translation>
    </message>
    <message>
        <source>Hashing files…</source>
        <translation>파일 해시 계산 중…</translation>
    </message>
    <message>
        <source>Hashing files… %lld%%</source>
        <translation>파일 해시 계산 중… %lld%%</translation>
    </message>
    <message>
        <source>Remove %lld duplicate files?</source>
        <translation>중복 파일 %lld개를 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>Remove %lld duplicate file?</source>
        <translation>중복 파일 %lld개를 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>The selected copies will be moved to Trash. One original copy of each file is kept.</source>
        <translation>선택한 사본을 휴지통으로 이동합니다. 각 파일의 원본 하나는 남겨 둡니다.</translation>
    </message>
    <message>
        <source>Selected Files</source>
        <translation>선택한 파일</translation>
    </message>
    <message>
        <source>%lld duplicate files removed</source>
        <translation>중복 파일 %lld개 삭제됨</translation>
    </message>
    <message>
        <source>%@ removed</source>
        <translation>%@ 삭제됨</translation>
    </message>
    <message>
        <source>Removed %lld duplicates — %@ freed</source>
        <translation>중복 파일 %lld개를 삭제하여 %@를 확보했습니다</translation>
    </message>
    <message>
        <source>Scanning applications…</source>
        <translation>앱 스캔 중…</translation>
    </message>
    <message>
        <source>Brisko needs access to the Library folder to find app-related files.</source>
        <translation>앱 관련 파일을 찾으려면 Brisko에 라이브러리 폴더 접근 권한이 필요합니다.</translation>
    </message>
    <message>
        <source>Brisko needs access to the Library folder to scan caches and logs.</source>
        <translation>캐시와 로그를 스캔하려면 Brisko에 라이브러리 폴더 접근 권한이 필요합니다.</translation>
    </message>
    <message>
        <source>Brisko needs access to the Applications folder to move apps to Trash.</source>
        <translation>앱을 휴지통으로 이동하려면 Brisko에 응용 프로그램 폴더 접근 권한이 필요합니다.</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>폴더 추가</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>접근 허용</translation>
    </message>
    <message>
        <source>Uninstall %@?</source>
        <translation>%@ 제거를 진행하시겠습니까?</translation>
    </message>
    <message>
        <source>%lld apps</source>
        <translation>앱 %lld개</translation>
    </message>
    <message>
        <source>This will move the application and related files to Trash.</source>
        <translation>앱과 관련 파일을 휴지통으로 이동합니다.</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>앱</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>앱</translation>
    </message>
    <message>
        <source>Related Files</source>
        <translation>관련 파일</translation>
    </message>
    <message>
        <source>%@ uninstalled</source>
        <translation>%@ 제거됨</translation>
    </message>
    <message>
        <source>%lld apps uninstalled</source>
        <translation>앱 %lld개 제거됨</translation>
    </message>
    <message>
        <source>Launch Agent</source>
        <translation>실행 에이전트</translation>
    </message>
    <message>
        <source>Launch Daemon</source>
        <translation>실행 데몬</translation>
    </message>
    <message>
        <source>Login Item</source>
        <translation>로그인 항목</translation>
    </message>
    <message>
        <source>Scanning startup items…</source>
        <translation>시작 항목 스캔 중…</translation>
    </message>
    <message>
        <source>%@ enabled</source>
        <translation>%@ 활성화됨</translation>
    </message>
    <message>
        <source>%@ disabled</source>
        <translation>%@ 비활성화됨</translation>
    </message>
    <message>
        <source>Remove %@?</source>
        <translation>‘%@’을(를) 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>This will move the plist file to Trash. You can re-enable it later from the original app.</source>
        <translation>plist 파일을 휴지통으로 이동합니다. 나중에 원래 앱에서 다시 활성화할 수 있습니다.</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>경로</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Removed %@</source>
        <translation>%@ 삭제됨</translation>
    </message>
    <message>
        <source>Can't remove startup item</source>
        <translation>시작 항목을 삭제할 수 없음</translation>
    </message>
    <message>
        <source>Cannot remove system-level startup items</source>
        <translation>시스템 수준의 시작 항목은 삭제할 수 없습니다</translation>
    </message>
    <message>
        <source>System-level items cannot be modified</source>
        <translation>시스템 수준의 항목은 변경할 수 없습니다</translation>
    </message>
    <message>
        <source>System-level items cannot be removed</source>
        <translation>시스템 수준의 항목은 삭제할 수 없습니다</translation>
    </message>
    <message>
        <source>Can't reach the update server. Check your network and try again.</source>
        <translation>업데이트 서버에 연결할 수 없습니다. 네트워크를 확인하고 다시 시도하세요.</translation>
    </message>
    <message>
        <source>You're up to date!</source>
        <translation>최신 버전입니다!</translation>
    </message>
    <message>
        <source>%lld file · %@</source>
        <translation>파일 %lld개 · %@</translation>
    </message>
    <message>
        <source>%lld files · %@</source>
        <translation>파일 %lld개 · %@</translation>
    </message>
    <message>
        <source>%lld category · %@ reclaimable</source>
        <translation>카테고리 %lld개 · %@ 확보 가능</translation>
    </message>
    <message>
        <source>%lld categories · %@ reclaimable</source>
        <translation>카테고리 %lld개 · %@ 확보 가능</translation>
    </message>
    <message>
        <source>%lld file · %@ total</source>
        <translation>파일 %lld개 · 총 %@</translation>
    </message>
    <message>
        <source>%lld files · %@ total</source>
        <translation>파일 %lld개 · 총 %@</translation>
    </message>
    <message>
        <source>%lld copies · %@ reclaimable</source>
        <translation>사본 %lld개 · %@ 확보 가능</translation>
    </message>
    <message>
        <source>%lld group · %@ reclaimable</source>
        <translation>그룹 %lld개 · %@ 확보 가능</translation>
    </message>
    <message>
        <source>%lld groups · %@ reclaimable</source>
        <translation>그룹 %lld개 · %@ 확보 가능</translation>
    </message>
    <message>
        <source>%lld application · %@ installed</source>
        <translation>설치된 앱 %lld개 · %@</translation>
    </message>
    <message>
        <source>%lld applications · %@ installed</source>
        <translation>설치된 앱 %lld개 · %@</translation>
    </message>
    <message>
        <source>%lld item · %@ would be removed</source>
        <translation>삭제 대상 항목 %lld개 · %@</translation>
    </message>
    <message>
        <source>%lld items · %@ would be removed</source>
        <translation>삭제 대상 항목 %lld개 · %@</translation>
    </message>
    <message>
        <source>%lld items · %lld enabled</source>
        <translation>항목 %lld개 · 활성 %lld개</translation>
    </message>
    <message>
        <source>No junk found</source>
        <translation>정크 파일이 없습니다</translation>
    </message>
    <message>
        <source>No large files found above threshold</source>
        <translation>기준 크기를 넘는 대용량 파일이 없습니다</translation>
    </message>
    <message>
        <source>No duplicate files found</source>
        <translation>중복 파일이 없습니다</translation>
    </message>
    <message>
        <source>No applications found</source>
        <translation>찾은 앱이 없습니다</translation>
    </message>
    <message>
        <source>No startup items found</source>
        <translation>시작 항목이 없습니다</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>미사용</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>활성</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>비활성</translation>
    </message>
    <message>
        <source>Uninstaller</source>
        <translation>앱 제거</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>중복 파일</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>대용량 파일</translation>
    </message>
    <message>
        <source>Junk Cleaner</source>
        <translation>정크 정리</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>메모리</translation>
    </message>
    <message>
        <source>Free disk space</source>
        <translation>디스크 여유 공간</translation>
    </message>
    <message>
        <source>Disk Temperature</source>
        <translation>디스크 온도</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>개요</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>시작 항목</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Your Mac, Cleaner and Lighter</source>
        <translation>Mac을 더 깨끗하고 가볍게</translation>
    </message>
    <message>
        <source>Free up space, remove junk, and keep your Mac running at its best.</source>
        <translation>공간을 확보하고 정크 파일을 삭제하여 Mac을 최상의 상태로 유지하세요.</translation>
    </message>
    <message>
        <source>Processor load</source>
        <translation>프로세서 사용률</translation>
    </message>
    <message>
        <source>NAND flash</source>
        <translation>NAND 플래시</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>확인할 수 없음</translation>
    </message>
    <message>
        <source>Freeable Space</source>
        <translation>확보 가능한 공간</translation>
    </message>
    <message>
        <source>Caches, duplicates &amp; unused apps</source>
        <translation>캐시, 중복 파일, 미사용 앱</translation>
    </message>
    <message>
        <source>Unused applications</source>
        <translation>미사용 앱</translation>
    </message>
    <message>
        <source>Duplicate files</source>
        <translation>중복 파일</translation>
    </message>
    <message>
        <source>Large file cleanup</source>
        <translation>대용량 파일 정리</translation>
    </message>
    <message>
        <source>Caches &amp; logs</source>
        <translation>캐시 및 로그</translation>
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
        <translation>계산 중…</translation>
    </message>
    <message>
        <source>Select applications to uninstall</source>
        <translation>제거할 앱을 선택하세요</translation>
    </message>
    <message>
        <source>%lld items selected · %@</source>
        <translation>항목 %lld개 선택됨 · %@</translation>
    </message>
    <message>
        <source>%lld item selected · %@</source>
        <translation>항목 %lld개 선택됨 · %@</translation>
    </message>
    <message>
        <source>%@+</source>
        <translation>%@+</translation>
    </message>
    <message>
        <source>Related Files · %@</source>
        <translation>관련 파일 · %@</translation>
    </message>
    <message>
        <source>No related files</source>
        <translation>관련 파일 없음</translation>
    </message>
    <message>
        <source>No related files found for this app.</source>
        <translation>이 앱의 관련 파일을 찾지 못했습니다.</translation>
    </message>
    <message>
        <source>Looking for related files…</source>
        <translation>관련 파일 찾는 중…</translation>
    </message>
    <message>
        <source>Full Disk Access required</source>
        <translation>전체 디스크 접근 권한 필요</translation>
    </message>
    <message>
        <source>Full Disk Access Required</source>
        <translation>전체 디스크 접근 권한 필요</translation>
    </message>
    <message>
        <source>Grant Full Disk Access, then restart Brisko to scan app container data (caches, settings) and uninstall apps completely.</source>
        <translation>앱 컨테이너 데이터(캐시, 설정)를 스캔하고 앱을 완전히 제거하려면 전체 디스크 접근 권한을 허용한 다음 Brisko를 다시 시작하세요.</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>시스템 설정 열기</translation>
    </message>
    <message>
        <source>Scan Apps</source>
        <translation>앱 스캔</translation>
    </message>
    <message>
        <source>Show files of %@</source>
        <translation>%@의 파일 표시</translation>
    </message>
    <message>
        <source>Hide files of %@</source>
        <translation>%@의 파일 숨기기</translation>
    </message>
    <message>
        <source>Startup Items</source>
        <translation>시작 항목</translation>
    </message>
    <message>
        <source>Press Scan to list startup items</source>
        <translation>스캔하면 시작 항목 목록이 표시됩니다</translation>
    </message>
    <message>
        <source>No startup items yet</source>
        <translation>아직 시작 항목이 없습니다</translation>
    </message>
    <message>
        <source>Press Scan to find Launch Agents and Daemons</source>
        <translation>스캔하면 실행 에이전트와 데몬을 찾습니다</translation>
    </message>
    <message>
        <source>%lld item · %lld enabled</source>
        <translation>항목 %lld개 · 활성 %lld개</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>새로 고침</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>활성화</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>비활성화</translation>
    </message>
    <message>
        <source>Remove %@</source>
        <translation>%@ 삭제</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>화면 모드</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>라이트</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>다크</translation>
    </message>
    <message>
        <source>Duplicate Scan Folders</source>
        <translation>중복 파일 스캔 폴더</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>폴더 추가…</translation>
    </message>
    <message>
        <source>Choose a folder to scan for duplicate files.</source>
        <translation>중복 파일을 찾을 폴더를 선택하세요.</translation>
    </message>
    <message>
        <source>Remove folder %@</source>
        <translation>%@ 폴더를 목록에서 제거</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Brisko %@</source>
        <translation>Brisko %@</translation>
    </message>
    <message>
        <source>A Cleaner, Lighter Mac — More Space. A Brighter Tomorrow.</source>
        <translation>더 깨끗하고 가벼운 Mac. 더 넓은 공간, 더 밝은 내일.</translation>
    </message>
    <message>
        <source>Check for Updates</source>
        <translation>업데이트 확인</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>업데이트 확인 중…</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>개인정보 처리방침</translation>
    </message>
    <message>
        <source>Terms of Service</source>
        <translation>서비스 이용 약관</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>문의</translation>
    </message>
    <message>
        <source>Open Brisko</source>
        <translation>Brisko 열기</translation>
    </message>
    <message>
        <source>Quit Brisko</source>
        <translation>Brisko 종료</translation>
    </message>
    <message>
        <source>What's New</source>
        <translation>새로운 기능</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>다운로드</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>이 버전 건너뛰기</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>나중에 알림</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>새 업데이트가 있습니다</translation>
    </message>
    <message>
        <source>Version %@</source>
        <translation>버전 %@</translation>
    </message>
    <message>
        <source>Nothing was removed.</source>
        <translation>삭제된 항목이 없습니다.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>중단되었습니다.</translation>
    </message>
    <message>
        <source>The settings file was damaged. It is kept as %@.</source>
        <translation>설정 파일이 손상되었습니다. 손상된 파일은 %@(으)로 보관했습니다.</translation>
    </message>
    <message>
        <source>Too large to copy to the Trash from another disk.</source>
        <translation>다른 디스크에서 휴지통으로 복사하기에는 너무 큽니다.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>복원</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>확대</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>메뉴</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>페이지</translation>
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
