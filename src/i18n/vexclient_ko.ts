<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
<context>
    <name>AppHelpWidget</name>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>앞으로</translation>
    </message>
    <message>
        <source>Close help</source>
        <translation>도움말 닫기</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>도움말 페이지</translation>
    </message>
</context>
<context>
    <name>AppMiniMissionControlWidget</name>
    <message>
        <source>Panel</source>
        <translation>패널</translation>
    </message>
</context>
<context>
    <name>AppMissionControlWidget</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Port: %1</source>
        <translation>포트: %1</translation>
    </message>
    <message>
        <source>Open mission control</source>
        <translation>미션 컨트롤 열기</translation>
    </message>
    <message>
        <source>Close mission control</source>
        <translation>미션 컨트롤 닫기</translation>
    </message>
    <message>
        <source>System</source>
        <translation>시스템</translation>
    </message>
    <message>
        <source>Close application</source>
        <translation>응용 프로그램 닫기</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행률</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>요약</translation>
    </message>
    <message>
        <source>Application controls</source>
        <translation>응용 프로그램 제어</translation>
    </message>
</context>
<context>
    <name>BreadcrumbBar</name>
    <message>
        <source>Path</source>
        <translation>경로</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 열기</translation>
    </message>
</context>
<context>
    <name>ClientGUIBase</name>
    <message>
        <source>SETUP</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>TEST</source>
        <translation>테스트</translation>
    </message>
    <message>
        <source>RESULT</source>
        <translation>결과</translation>
    </message>
    <message>
        <source>Result File Browser</source>
        <translation>결과 파일 브라우저</translation>
    </message>
    <message>
        <source>Application Selector</source>
        <translation>응용 프로그램 선택</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>응용 프로그램</translation>
    </message>
</context>
<context>
    <name>ConflictDialog</name>
    <message>
        <source>Do the same with all that follow</source>
        <translation>이후 모든 항목에 동일하게 적용</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>파일이 있음</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already.</source>
        <translation>&quot;%1&quot;이(가) 이미 있습니다.</translation>
    </message>
    <message>
        <source>There now</source>
        <translation>기존 파일</translation>
    </message>
    <message>
        <source>To be copied</source>
        <translation>복사할 파일</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>덮어쓰기</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>건너뛰기</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>모두 유지</translation>
    </message>
    <message>
        <source>Cancel all</source>
        <translation>모두 취소</translation>
    </message>
</context>
<context>
    <name>FcpAppCORBA</name>
    <message>
        <source>the link to %1 was given up</source>
        <translation>%1에 대한 연결을 포기했습니다</translation>
    </message>
</context>
<context>
    <name>FileActionBar</name>
    <message>
        <source>List anew</source>
        <translation>새로 고침</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>새 폴더</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>이름 바꾸기</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>이동</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>붙여넣기</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
</context>
<context>
    <name>FileItemDelegate</name>
    <message>
        <source>New name</source>
        <translation>새 이름</translation>
    </message>
</context>
<context>
    <name>FileListView</name>
    <message>
        <source>Columns</source>
        <translation>열</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>this is not the name of a file</source>
        <translation>파일 이름이 아닙니다</translation>
    </message>
    <message>
        <source>its name holds bytes that are no text</source>
        <translation>이름에 텍스트가 아닌 바이트가 있습니다</translation>
    </message>
    <message>
        <source>the name is longer than %1 bytes</source>
        <translation>이름이 %1바이트보다 깁니다</translation>
    </message>
</context>
<context>
    <name>FileOperations</name>
    <message>
        <source>the instrument</source>
        <translation>계측기</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>이 컴퓨터</translation>
    </message>
    <message>
        <source>the medium %1</source>
        <translation>미디어 %1</translation>
    </message>
    <message>
        <source>No folder could be made here: it may be protected.</source>
        <translation>여기에 폴더를 만들 수 없습니다. 보호되어 있을 수 있습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be renamed to &quot;%2&quot;: the name may be taken.</source>
        <translation>&quot;%1&quot;의 이름을 &quot;%2&quot;(으)로 바꿀 수 없습니다. 이미 사용 중인 이름일 수 있습니다.</translation>
    </message>
    <message>
        <source>Renamed to &quot;%1&quot;.</source>
        <translation>이름을 &quot;%1&quot;(으)로 바꿨습니다.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>What is deleted can&apos;t be brought back.</source>
        <translation>삭제하면 복구할 수 없습니다.</translation>
    </message>
    <message>
        <source>Deleting…</source>
        <translation>삭제하는 중…</translation>
    </message>
    <message>
        <source>Deleted.</source>
        <translation>삭제했습니다.</translation>
    </message>
    <message>
        <source>%1 entries</source>
        <translation>%1개 항목</translation>
    </message>
    <message>
        <source>Open a folder and tap Paste to move %1.</source>
        <translation>%1을(를) 이동하려면 폴더를 열고 [붙여넣기]를 누르십시오.</translation>
    </message>
    <message>
        <source>Open a folder and tap Paste to copy %1.</source>
        <translation>%1을(를) 복사하려면 폴더를 열고 [붙여넣기]를 누르십시오.</translation>
    </message>
    <message>
        <source>Moving…</source>
        <translation>이동하는 중…</translation>
    </message>
    <message>
        <source>Moved.</source>
        <translation>이동했습니다.</translation>
    </message>
    <message>
        <source>Copying…</source>
        <translation>복사하는 중…</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>복사했습니다.</translation>
    </message>
    <message>
        <source>Making a folder…</source>
        <translation>폴더를 만드는 중…</translation>
    </message>
    <message>
        <source>Renaming…</source>
        <translation>이름을 바꾸는 중…</translation>
    </message>
</context>
<context>
    <name>FilePane</name>
    <message>
        <source>Up</source>
        <translation>상위 폴더로</translation>
    </message>
    <message>
        <source>Search in this folder</source>
        <translation>이 폴더에서 검색</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Types of files</source>
        <translation>파일 형식</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>The instrument can&apos;t be reached.</source>
        <translation>계측기에 연결할 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 was removed.</source>
        <translation>%1이(가) 제거되었습니다.</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>&quot;%1&quot; 폴더가 없습니다.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is gone.</source>
        <translation>&quot;%1&quot; 폴더가 더 이상 없습니다.</translation>
    </message>
    <message>
        <source>This folder can&apos;t be listed.</source>
        <translation>이 폴더의 내용을 표시할 수 없습니다.</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>불러오는 중…</translation>
    </message>
    <message>
        <source>Nothing here fits the search.</source>
        <translation>검색과 일치하는 항목이 없습니다.</translation>
    </message>
    <message>
        <source>This folder is empty.</source>
        <translation>이 폴더는 비어 있습니다.</translation>
    </message>
    <message>
        <source>The link to the instrument is lost</source>
        <translation>계측기와의 연결이 끊어졌습니다</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>This entry&apos;s name can&apos;t be used.</source>
        <translation>이 항목의 이름은 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Only %1</source>
        <translation>%1만</translation>
    </message>
    <message>
        <source>List only files of %1</source>
        <translation>%1의 파일만 표시</translation>
    </message>
    <message>
        <source>There are no files of this type here.</source>
        <translation>이 형식의 파일이 여기에 없습니다.</translation>
    </message>
</context>
<context>
    <name>FilePaths</name>
    <message>
        <source>A name is needed.</source>
        <translation>이름이 필요합니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be a name.</source>
        <translation>&quot;%1&quot;은(는) 이름으로 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>A name can&apos;t have a &quot;/&quot;.</source>
        <translation>이름에 &quot;/&quot;를 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>A name can&apos;t have the character %1.</source>
        <translation>이름에 %1 문자를 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>이름이 너무 깁니다.</translation>
    </message>
</context>
<context>
    <name>FileQuestions</name>
    <message>
        <source>1 file</source>
        <translation>파일 1개</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>파일 %1개</numerusform>
        </translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>폴더 1개</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders</source>
        <translation>
            <numerusform>폴더 %1개</numerusform>
        </translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Not everything was copied</source>
        <translation>일부가 복사되지 않음</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 및 %2</translation>
    </message>
    <message>
        <source>Delete %1 from %2?</source>
        <translation>%2에서 %1를 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>Delete %1 with everything in it from %2?</source>
        <translation>%2에서 %1를 그 안의 모든 내용과 함께 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>Delete %1 with everything in them from %2?</source>
        <translation>%2에서 %1를 그 안의 모든 내용과 함께 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>%1 copied (%2)</source>
        <translation>%1 복사됨(%2)</translation>
    </message>
    <message>
        <source>%1 skipped</source>
        <translation>%1개 건너뜀</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1개 실패</translation>
    </message>
    <message>
        <source>%1 not tried</source>
        <translation>%1개 시도 안 함</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>%1초 남음</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>%1분 남음</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>%1시간 %2분 남음</translation>
    </message>
</context>
<context>
    <name>FileTransfer</name>
    <message>
        <source>it is no file any more</source>
        <translation>더 이상 파일이 아닙니다</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>없습니다</translation>
    </message>
    <message>
        <source>it was changed while it was read</source>
        <translation>읽는 동안 변경되었습니다</translation>
    </message>
    <message>
        <source>%1 bytes came of a file of %2 bytes</source>
        <translation>%2바이트 파일 중 %1바이트를 받았습니다</translation>
    </message>
    <message>
        <source>there is no room left: %1</source>
        <translation>남은 공간이 없습니다: %1</translation>
    </message>
    <message>
        <source>there is no link to the instrument</source>
        <translation>계측기에 연결되어 있지 않습니다</translation>
    </message>
    <message>
        <source>the instrument cannot list %1</source>
        <translation>계측기가 %1의 목록을 가져올 수 없습니다</translation>
    </message>
    <message>
        <source>%1; it is unknown whether the instrument still did its last step</source>
        <translation>%1. 계측기가 마지막 단계를 수행했는지 알 수 없습니다</translation>
    </message>
    <message>
        <source>%1 (the instrument answers %2)</source>
        <translation>%1(계측기 응답: %2)</translation>
    </message>
    <message>
        <source>the instrument cannot give a file of %1 the name %2</source>
        <translation>계측기가 %1에 있는 파일의 이름을 %2(으)로 지정할 수 없습니다</translation>
    </message>
    <message>
        <source>the instrument cannot remove %1</source>
        <translation>계측기가 %1을(를) 삭제할 수 없습니다</translation>
    </message>
    <message>
        <source>the instrument cannot make a folder in %1</source>
        <translation>계측기가 %1에 폴더를 만들 수 없습니다</translation>
    </message>
    <message>
        <source>this is not the path of a file</source>
        <translation>파일 경로가 아닙니다</translation>
    </message>
    <message>
        <source>it cannot be carried into itself</source>
        <translation>자기 자신 안으로 전송할 수 없습니다</translation>
    </message>
    <message>
        <source>the folders are nested too deeply</source>
        <translation>폴더가 너무 깊게 중첩되어 있습니다</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>알 수 없는 예외</translation>
    </message>
    <message>
        <source>the folder %1 is not there</source>
        <translation>%1 폴더가 없습니다</translation>
    </message>
    <message>
        <source>%1 are needed, and %2 are free in %3</source>
        <translation>%1이(가) 필요하지만 %3의 여유 공간은 %2입니다</translation>
    </message>
    <message>
        <source>a file at the target has the name of this folder</source>
        <translation>대상에 이 폴더와 이름이 같은 파일이 있습니다</translation>
    </message>
    <message>
        <source>%1; what may be left as %2 is removed when the file is carried again</source>
        <translation>%1. %2에 남아 있을 수 있는 데이터는 파일을 다시 전송할 때 삭제됩니다</translation>
    </message>
    <message>
        <source>a folder at the target has the name of this file</source>
        <translation>대상에 이 파일과 이름이 같은 폴더가 있습니다</translation>
    </message>
</context>
<context>
    <name>FwButtonTabWidget</name>
    <message>
        <source>Previous tabs</source>
        <translation>이전 탭</translation>
    </message>
    <message>
        <source>More tabs</source>
        <translation>탭 더 보기</translation>
    </message>
</context>
<context>
    <name>FwLoadSaveDialog</name>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>계측기</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>컴퓨터</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>불러오기</translation>
    </message>
    <message>
        <source>Transfer files</source>
        <translation>파일 전송</translation>
    </message>
    <message>
        <source>Nothing can be saved here now.</source>
        <translation>지금은 여기에 저장할 수 없습니다.</translation>
    </message>
    <message>
        <source>There is a folder with the name &quot;%1&quot;.</source>
        <translation>이름이 &quot;%1&quot;인 폴더가 있습니다.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already. Overwrite it?</source>
        <translation>&quot;%1&quot;이(가) 이미 있습니다. 덮어쓰시겠습니까?</translation>
    </message>
    <message>
        <source>What it holds now will be lost.</source>
        <translation>현재 내용은 손실됩니다.</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>덮어쓰기</translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation>전송</translation>
    </message>
    <message>
        <source>Files are being copied. Cancel that and close?</source>
        <translation>파일을 복사하는 중입니다. 취소하고 닫으시겠습니까?</translation>
    </message>
    <message>
        <source>What has been copied so far stays.</source>
        <translation>지금까지 복사된 내용은 유지됩니다.</translation>
    </message>
    <message>
        <source>Cancel and close</source>
        <translation>취소하고 닫기</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>계속</translation>
    </message>
</context>
<context>
    <name>FwLogView</name>
    <message>
        <source>All levels</source>
        <translation>모든 수준</translation>
    </message>
    <message>
        <source>From info</source>
        <translation>정보 이상</translation>
    </message>
    <message>
        <source>From warning</source>
        <translation>경고 이상</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>모든 범주</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>수준</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>범주</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>다시 시작</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 중지</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>로그</translation>
    </message>
</context>
<context>
    <name>FwNavigationButton</name>
    <message>
        <source>Previous window</source>
        <translation>이전 창</translation>
    </message>
    <message>
        <source>Next window</source>
        <translation>다음 창</translation>
    </message>
</context>
<context>
    <name>HelpBrowser</name>
    <message>
        <source>Only pages on this instrument can be shown here.</source>
        <translation>이 계측기에 있는 페이지만 여기에 표시할 수 있습니다.</translation>
    </message>
    <message>
        <source>The help page is missing, or can not be read.</source>
        <translation>도움말 페이지가 없거나 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>This page can not be shown</source>
        <translation>이 페이지를 표시할 수 없습니다</translation>
    </message>
</context>
<context>
    <name>LampSign</name>
    <message>
        <source>On</source>
        <translation>켜짐</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>꺼짐</translation>
    </message>
    <message>
        <source>Indicator: %1</source>
        <translation>표시등: %1</translation>
    </message>
</context>
<context>
    <name>LocalFileCopy</name>
    <message>
        <source>it is no file any more</source>
        <translation>더 이상 파일이 아닙니다</translation>
    </message>
    <message>
        <source>it cannot be read: %1</source>
        <translation>읽을 수 없음: %1</translation>
    </message>
    <message>
        <source>it cannot be written: %1</source>
        <translation>쓸 수 없음: %1</translation>
    </message>
</context>
<context>
    <name>LocalHelperThread</name>
    <message>
        <source>Cancelled.</source>
        <translation>취소되었습니다.</translation>
    </message>
    <message>
        <source>Files are being copied, moved or deleted already.</source>
        <translation>이미 파일을 복사, 이동 또는 삭제하는 중입니다.</translation>
    </message>
    <message>
        <source>There is an entry of that name already.</source>
        <translation>같은 이름의 항목이 이미 있습니다.</translation>
    </message>
    <message>
        <source>This can&apos;t be done with this folder, or not at this place.</source>
        <translation>이 폴더나 이 위치에서는 수행할 수 없습니다.</translation>
    </message>
    <message>
        <source>This is neither a file nor a folder nor a link, and can&apos;t be copied.</source>
        <translation>파일, 폴더, 링크가 아니므로 복사할 수 없습니다.</translation>
    </message>
    <message>
        <source>It is in use.</source>
        <translation>사용 중입니다.</translation>
    </message>
    <message>
        <source>Nothing may be changed here.</source>
        <translation>여기서는 아무것도 변경할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>LocalSource</name>
    <message>
        <source>it is not there</source>
        <translation>없습니다</translation>
    </message>
    <message>
        <source>this folder cannot be read</source>
        <translation>이 폴더를 읽을 수 없습니다</translation>
    </message>
</context>
<context>
    <name>LocalTarget</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made: %2</source>
        <translation>%1 폴더를 만들 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 was changed while it was written</source>
        <translation>쓰는 동안 %1이(가) 변경되었습니다</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1을(를) 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>%1을(를) 삭제할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 cannot be flushed to the medium: %2</source>
        <translation>%1을(를) 미디어에 기록할 수 없습니다: %2</translation>
    </message>
</context>
<context>
    <name>NameField</name>
    <message>
        <source>File name</source>
        <translation>파일 이름</translation>
    </message>
</context>
<context>
    <name>NumericField</name>
    <message>
        <source>Whole numbers only</source>
        <translation>정수만 입력 가능</translation>
    </message>
    <message>
        <source>No negative values</source>
        <translation>음수는 입력할 수 없음</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no digit here</source>
        <translation>&quot;%1&quot;은(는) 여기에 입력할 수 없음</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>숫자를 입력하십시오</translation>
    </message>
    <message>
        <source>Digits after the point: %1 at most</source>
        <translation>소수점 이하: 최대 %1자리</translation>
    </message>
    <message>
        <source>Not a number in the range</source>
        <translation>범위 내의 숫자가 아님</translation>
    </message>
    <message>
        <source>The largest value is %1</source>
        <translation>최댓값: %1</translation>
    </message>
    <message>
        <source>The smallest value is %1</source>
        <translation>최솟값: %1</translation>
    </message>
</context>
<context>
    <name>NumpadKeys</name>
    <message>
        <source>Without a prefix</source>
        <translation>접두어 없음</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>백스페이스</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>커서 왼쪽으로</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>커서 오른쪽으로</translation>
    </message>
    <message>
        <source>Change the sign</source>
        <translation>부호 변경</translation>
    </message>
    <message>
        <source>Decimal point</source>
        <translation>소수점</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>최소</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>최솟값</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>최대</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>최댓값</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>기본값</translation>
    </message>
</context>
<context>
    <name>NumpadPanel</name>
    <message>
        <source>Value: %1</source>
        <translation>값: %1</translation>
    </message>
    <message>
        <source>Range: %1 to %2</source>
        <translation>범위: %1 ~ %2</translation>
    </message>
    <message>
        <source>Step: %1</source>
        <translation>증분: %1</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>암호</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>입력</translation>
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
        <source>Edit digits</source>
        <translation>자리별 편집</translation>
    </message>
    <message>
        <source>Display password</source>
        <translation>암호 표시</translation>
    </message>
    <message>
        <source>Disable password protection</source>
        <translation>암호 보호 해제</translation>
    </message>
</context>
<context>
    <name>QLrudDialog</name>
    <message>
        <source>Up</source>
        <translation>위</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>아래</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>Keypad</source>
        <translation>키패드</translation>
    </message>
    <message>
        <source>Move keys up</source>
        <translation>키 위로 이동</translation>
    </message>
    <message>
        <source>Move keys down</source>
        <translation>키 아래로 이동</translation>
    </message>
</context>
<context>
    <name>QvexDialogBorder</name>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>위로 이동</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>아래로 이동</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>왼쪽으로 이동</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>오른쪽으로 이동</translation>
    </message>
</context>
<context>
    <name>QvexFileMover</name>
    <message>
        <source>%1 was not carried: %2</source>
        <translation>%1이(가) 전송되지 않았습니다: %2</translation>
    </message>
    <message>
        <source>%1 was not carried: an unknown exception</source>
        <translation>%1이(가) 전송되지 않았습니다: 알 수 없는 예외</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1을(를) 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 exists on the instrument</source>
        <translation>%1이(가) 계측기에 있습니다</translation>
    </message>
    <message>
        <source>the instrument cannot write %1</source>
        <translation>계측기가 %1을(를) 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>the instrument could not store what was sent of %1</source>
        <translation>계측기가 전송된 %1의 데이터를 저장하지 못했습니다</translation>
    </message>
    <message>
        <source>the destination has appeared on the instrument meanwhile</source>
        <translation>그 사이에 대상이 계측기에 생성되었습니다</translation>
    </message>
    <message>
        <source>the instrument could not store the file</source>
        <translation>계측기가 파일을 저장하지 못했습니다</translation>
    </message>
    <message>
        <source>%1 has shrunk while it was read</source>
        <translation>읽는 동안 %1의 크기가 줄었습니다</translation>
    </message>
    <message>
        <source>aborted after %1 bytes</source>
        <translation>%1바이트 후 중단되었습니다</translation>
    </message>
    <message>
        <source>the instrument cannot read %1</source>
        <translation>계측기가 %1을(를) 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>%1 exists</source>
        <translation>%1이(가) 이미 있습니다</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>%1을(를) 삭제할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>the folder of %1 cannot be made</source>
        <translation>%1의 폴더를 만들 수 없습니다</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1을(를) 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>the instrument could not read the file to its end</source>
        <translation>계측기가 파일을 끝까지 읽지 못했습니다</translation>
    </message>
</context>
<context>
    <name>QvexMessageBox</name>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>버리기</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>초기화</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>기본값 복원</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>모두 저장</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>Yes to All</source>
        <translation>모두 예</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>No to All</source>
        <translation>모두 아니요</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>중단</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>무시</translation>
    </message>
    <message>
        <source>Hide Details</source>
        <translation>자세한 정보 숨기기</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>자세한 정보 표시</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>자세한 정보</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>질문</translation>
    </message>
</context>
<context>
    <name>QvexNumpadDlg</name>
    <message>
        <source>The value stays as it is</source>
        <translation>값이 그대로 유지됨</translation>
    </message>
    <message>
        <source>%1; or choose a unit</source>
        <translation>%1. 또는 단위를 선택하십시오</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>숫자를 입력하십시오</translation>
    </message>
</context>
<context>
    <name>QvexPasswordPopup</name>
    <message>
        <source>Password Protection</source>
        <translation>암호 보호</translation>
    </message>
    <message>
        <source>Password Does Not Match.
Please Type Correct Password!</source>
        <translation>암호가 일치하지 않습니다.
올바른 암호를 입력하십시오!</translation>
    </message>
</context>
<context>
    <name>QvexRemoteFileModel</name>
    <message>
        <source>It was cancelled.</source>
        <translation>취소되었습니다.</translation>
    </message>
    <message>
        <source>Another operation is still running.</source>
        <translation>다른 작업이 아직 실행 중입니다.</translation>
    </message>
    <message>
        <source>The link to the instrument was lost; it is not known whether it was done.</source>
        <translation>계측기와의 연결이 끊어졌습니다. 작업이 수행되었는지 알 수 없습니다.</translation>
    </message>
    <message>
        <source>Its name can&apos;t be used.</source>
        <translation>이 이름은 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>계측기</translation>
    </message>
    <message>
        <source>Instrument (%1)</source>
        <translation>계측기(%1)</translation>
    </message>
    <message>
        <source>Internal</source>
        <translation>Internal</translation>
    </message>
    <message>
        <source>Remote</source>
        <translation>Remote</translation>
    </message>
    <message>
        <source>It is not there any more.</source>
        <translation>더 이상 없습니다.</translation>
    </message>
    <message>
        <source>There is no permission for it.</source>
        <translation>권한이 없습니다.</translation>
    </message>
    <message>
        <source>Something of that name is there already.</source>
        <translation>같은 이름이 이미 있습니다.</translation>
    </message>
    <message>
        <source>A folder can&apos;t be put into itself.</source>
        <translation>폴더를 자기 자신 안에 넣을 수 없습니다.</translation>
    </message>
    <message>
        <source>The instrument&apos;s storage is full.</source>
        <translation>계측기의 저장 공간이 가득 찼습니다.</translation>
    </message>
    <message>
        <source>The instrument reported error %1.</source>
        <translation>계측기가 오류 %1을(를) 보고했습니다.</translation>
    </message>
    <message>
        <source>No folder could be made here: it may be protected.</source>
        <translation>여기에 폴더를 만들 수 없습니다. 보호된 위치일 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>QvextHelpDialog</name>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>앞으로</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>홈</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>도움말 페이지</translation>
    </message>
</context>
<context>
    <name>RemoteSource</name>
    <message>
        <source>it is not there</source>
        <translation>없습니다</translation>
    </message>
</context>
<context>
    <name>RemoteTarget</name>
    <message>
        <source>the instrument cannot replace %1</source>
        <translation>계측기가 %1을(를) 바꿀 수 없습니다</translation>
    </message>
    <message>
        <source>%1; the old file may be called %2 now</source>
        <translation>%1. 이전 파일의 이름이 %2(으)로 바뀌었을 수 있습니다</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Close panel</source>
        <translation>패널 닫기</translation>
    </message>
</context>
<context>
    <name>SplashLines</name>
    <message>
        <source>Start-up messages</source>
        <translation>시작 메시지</translation>
    </message>
</context>
<context>
    <name>StatusStrip</name>
    <message>
        <source>Stop</source>
        <translation>중지</translation>
    </message>
    <message>
        <source>Stop what is under way</source>
        <translation>진행 중인 작업 중지</translation>
    </message>
</context>
<context>
    <name>TransferPanel</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/초</translation>
    </message>
    <message>
        <source>Progress of the transfer</source>
        <translation>전송 진행률</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Cancel the transfer</source>
        <translation>전송 취소</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>취소하는 중…</translation>
    </message>
</context>
<context>
    <name>TransferView</name>
    <message>
        <source>&quot;%1&quot; can&apos;t be copied into itself.</source>
        <translation>&quot;%1&quot;을(를) 자기 자신 안으로 복사할 수 없습니다.</translation>
    </message>
    <message>
        <source>Both sides show the same folder.</source>
        <translation>양쪽에 같은 폴더가 표시되어 있습니다.</translation>
    </message>
    <message>
        <source>Copy to the right side</source>
        <translation>오른쪽으로 복사</translation>
    </message>
    <message>
        <source>Copy to the left side</source>
        <translation>왼쪽으로 복사</translation>
    </message>
    <message>
        <source>To %1:</source>
        <translation>대상 %1:</translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation>전송</translation>
    </message>
</context>
<context>
    <name>UnitPrefix</name>
    <message>
        <source>Enter a number before the unit</source>
        <translation>단위 앞에 숫자를 입력하십시오</translation>
    </message>
    <message>
        <source>Too many digits for this unit</source>
        <translation>이 단위에는 자릿수가 너무 많음</translation>
    </message>
</context>
<context>
    <name>VerdictSign</name>
    <message>
        <source>No result</source>
        <translation>결과 없음</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>합격</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>불합격</translation>
    </message>
    <message>
        <source>See results</source>
        <translation>결과 참조</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>subject and verdict</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>VexLinkSupervisor</name>
    <message>
        <source>registered with %1:%2 as client %3</source>
        <translation>%1:%2에 클라이언트 %3(으)로 등록되었습니다</translation>
    </message>
    <message>
        <source>the controller answers again</source>
        <translation>컨트롤러가 다시 응답합니다</translation>
    </message>
    <message>
        <source>connecting to %1:%2, attempt %3</source>
        <translation>%1:%2에 연결 중, 시도 %3회</translation>
    </message>
    <message>
        <source>no answer for %1 ms</source>
        <translation>%1 ms 동안 응답이 없습니다</translation>
    </message>
    <message>
        <source>no longer watched</source>
        <translation>더 이상 감시하지 않음</translation>
    </message>
</context>
</TS>
