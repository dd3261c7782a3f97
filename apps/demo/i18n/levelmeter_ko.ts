<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>ControlButtons</name>
    <message>
        <source>Autosave: on</source>
        <translation>자동 저장: 켬</translation>
    </message>
    <message>
        <source>Autosave: off</source>
        <translation>자동 저장: 끔</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>로그</translation>
    </message>
</context>
<context>
    <name>EventList</name>
    <message>
        <source>Events</source>
        <translation>이벤트</translation>
    </message>
</context>
<context>
    <name>Framework</name>
    <message>
        <source>The level meter runs alone: there is no other application.</source>
        <translation>레벨 미터만 실행 중입니다. 다른 애플리케이션이 없습니다.</translation>
    </message>
    <message>
        <source>A run is under way. Stop it and close?</source>
        <translation>측정 중입니다. 중지하고 닫을까요?</translation>
    </message>
    <message>
        <source>The last result was not saved. Close all the same?</source>
        <translation>마지막 결과를 저장하지 않았습니다. 그래도 닫을까요?</translation>
    </message>
    <message>
        <source>Close the level meter</source>
        <translation>레벨 미터 닫기</translation>
    </message>
</context>
<context>
    <name>LinkPanel</name>
    <message>
        <source>Link up</source>
        <translation>연결됨</translation>
    </message>
    <message>
        <source>Link slow</source>
        <translation>연결 느림</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>연결 중</translation>
    </message>
    <message>
        <source>Link lost</source>
        <translation>연결 끊김</translation>
    </message>
    <message>
        <source>No link</source>
        <translation>연결 없음</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>Try again now</source>
        <translation>지금 다시 시도</translation>
    </message>
</context>
<context>
    <name>LogPanel</name>
    <message>
        <source>Log</source>
        <translation>로그</translation>
    </message>
    <message>
        <source>The log is not kept in a file.</source>
        <translation>로그를 파일에 보관하지 않습니다.</translation>
    </message>
    <message>
        <source>The log is kept in %1</source>
        <translation>로그 위치: %1</translation>
    </message>
</context>
<context>
    <name>Meter</name>
    <message>
        <source>The instrument does not say whether its test has ended.</source>
        <translation>계측기가 테스트 종료 여부를 알리지 않습니다.</translation>
    </message>
    <message>
        <source>Stopped without a link; the instrument&apos;s test is ended when the link is back.</source>
        <translation>연결 없이 중지했습니다. 연결이 복구되면 계측기의 테스트를 종료합니다.</translation>
    </message>
    <message>
        <source>The instrument refused to launch its test &quot;%1&quot;.</source>
        <translation>계측기가 테스트 &quot;%1&quot; 시작을 거부했습니다.</translation>
    </message>
    <message>
        <source>The link was lost before the test ran: %1</source>
        <translation>테스트 시작 전에 연결이 끊겼습니다: %1</translation>
    </message>
    <message>
        <source>Link lost: %1</source>
        <translation>연결이 끊겼습니다: %1</translation>
    </message>
    <message>
        <source>The link was lost while the test ended.</source>
        <translation>테스트 종료 중에 연결이 끊겼습니다.</translation>
    </message>
    <message>
        <source>The instrument&apos;s test runs.</source>
        <translation>계측기의 테스트가 실행 중입니다.</translation>
    </message>
    <message>
        <source>The link is back, the run goes on.</source>
        <translation>연결이 복구되어 측정을 계속합니다.</translation>
    </message>
    <message>
        <source>Level below the threshold: %1 dBm</source>
        <translation>레벨이 임계값 미만: %1 dBm</translation>
    </message>
    <message>
        <source>Level back above the threshold</source>
        <translation>레벨이 임계값 위로 복귀</translation>
    </message>
    <message>
        <source>The test ended before it ran.</source>
        <translation>테스트가 실행되기 전에 종료되었습니다.</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>중지됨</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>The link is back, but the instrument&apos;s test has ended.</source>
        <translation>연결이 복구되었지만 계측기의 테스트가 종료되었습니다.</translation>
    </message>
    <message>
        <source>The instrument has ended its test before the time was over.</source>
        <translation>계측기가 시간 전에 테스트를 종료했습니다.</translation>
    </message>
</context>
<context>
    <name>MeterWindow</name>
    <message>
        <source>Measuring</source>
        <translation>측정 중</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>준비됨</translation>
    </message>
    <message>
        <source>Level meter</source>
        <translation>레벨 미터</translation>
    </message>
</context>
<context>
    <name>PlotPanel</name>
    <message>
        <source>Zoom in</source>
        <translation>확대</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>축소</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>맞춤</translation>
    </message>
    <message>
        <source>No markers</source>
        <translation>마커 없음</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>마커</translation>
    </message>
    <message>
        <source>Tap the trace to set a marker.</source>
        <translation>트레이스를 탭하면 마커가 설정됩니다.</translation>
    </message>
</context>
<context>
    <name>ResultFiles</name>
    <message>
        <source>Save the result</source>
        <translation>결과 저장</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>%1(으)로 저장됨</translation>
    </message>
    <message>
        <source>Result File Browser</source>
        <translation>결과 파일 브라우저</translation>
    </message>
    <message>
        <source>%1 is on the instrument now</source>
        <translation>%1이(가) 계측기에 저장됨</translation>
    </message>
    <message>
        <source>%1 did not get to the instrument: %2</source>
        <translation>%1을(를) 계측기로 보내지 못했습니다: %2</translation>
    </message>
    <message>
        <source>Files of the instrument</source>
        <translation>계측기의 파일</translation>
    </message>
    <message>
        <source>Delete %1? It can&apos;t be brought back.</source>
        <translation>%1을(를) 삭제할까요? 복구할 수 없습니다.</translation>
    </message>
    <message>
        <source>Delete a result</source>
        <translation>결과 삭제</translation>
    </message>
    <message>
        <source>%1 can&apos;t be deleted.</source>
        <translation>%1을(를) 삭제할 수 없습니다.</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>결과</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Choose a result at the left.</source>
        <translation>왼쪽에서 결과를 선택하십시오.</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>측정 일시</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>최저 레벨</translation>
    </message>
    <message>
        <source>Highest level</source>
        <translation>최고 레벨</translation>
    </message>
    <message>
        <source>Mean power</source>
        <translation>평균 전력</translation>
    </message>
    <message>
        <source>Bit errors</source>
        <translation>비트 오류</translation>
    </message>
    <message>
        <source>Error ratio</source>
        <translation>오류율</translation>
    </message>
    <message>
        <source>Lowest level allowed</source>
        <translation>허용 최저 레벨</translation>
    </message>
    <message>
        <source>Error ratio allowed</source>
        <translation>허용 오류율</translation>
    </message>
    <message>
        <source>Optical frequency</source>
        <translation>광주파수</translation>
    </message>
    <message>
        <source>%1 THz</source>
        <translation>%1 THz</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>비트 전송률</translation>
    </message>
    <message>
        <source>%1 Gbit/s</source>
        <translation>%1 Gbit/s</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>계측기</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>포트</translation>
    </message>
    <message>
        <source>Saved results</source>
        <translation>저장된 결과</translation>
    </message>
    <message>
        <source>Nothing was saved yet. A run that is over is saved in the test window.</source>
        <translation>아직 저장된 것이 없습니다. 끝난 측정은 테스트 창에서 저장합니다.</translation>
    </message>
    <message>
        <source>Figures of the result</source>
        <translation>결과 수치</translation>
    </message>
    <message>
        <source>Open another file</source>
        <translation>다른 파일 열기</translation>
    </message>
    <message>
        <source>Upload to instrument</source>
        <translation>계측기로 업로드</translation>
    </message>
    <message>
        <source>Progress of the upload</source>
        <translation>업로드 진행률</translation>
    </message>
    <message>
        <source>Files of instrument</source>
        <translation>계측기의 파일</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
</context>
<context>
    <name>RunFile</name>
    <message>
        <source>%1 can&apos;t be written: %2</source>
        <translation>%1을(를) 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>%1을(를) 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 is larger than %2 MiB.</source>
        <translation>%1이(가) %2 MiB보다 큽니다.</translation>
    </message>
    <message>
        <source>%1 is no run of the level meter: %2</source>
        <translation>%1은(는) 레벨 미터의 측정이 아닙니다: %2</translation>
    </message>
</context>
<context>
    <name>RunReader</name>
    <message>
        <source>it does not begin as XML does</source>
        <translation>XML로 시작하지 않습니다</translation>
    </message>
    <message>
        <source>a tag in it is too long</source>
        <translation>태그가 너무 깁니다</translation>
    </message>
    <message>
        <source>another application has written it</source>
        <translation>다른 애플리케이션이 쓴 파일입니다</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1행: %2</translation>
    </message>
    <message>
        <source>it has no document type VEX</source>
        <translation>문서 유형 VEX가 없습니다</translation>
    </message>
    <message>
        <source>it declares entities</source>
        <translation>엔터티를 선언합니다</translation>
    </message>
    <message>
        <source>line %1: unknown element %2</source>
        <translation>%1행: 알 수 없는 요소 %2</translation>
    </message>
    <message>
        <source>its settings come after its samples</source>
        <translation>설정이 샘플 뒤에 있습니다</translation>
    </message>
    <message>
        <source>it has too many events</source>
        <translation>이벤트가 너무 많습니다</translation>
    </message>
    <message>
        <source>it has too many samples</source>
        <translation>샘플이 너무 많습니다</translation>
    </message>
    <message>
        <source>line %1: the samples are not in order</source>
        <translation>%1행: 샘플의 순서가 맞지 않습니다</translation>
    </message>
    <message>
        <source>line %1: expected a number from %2 to %3, found &apos;%4&apos;</source>
        <translation>%1행: %2에서 %3 사이의 숫자가 필요하지만 &apos;%4&apos;입니다</translation>
    </message>
</context>
<context>
    <name>SetupPage</name>
    <message>
        <source>Test at the instrument</source>
        <translation>계측기의 테스트</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>What is measured, and its limits</source>
        <translation>측정 항목과 한계값</translation>
    </message>
    <message>
        <source>Pattern that is sent, 32 bits</source>
        <translation>전송 패턴, 32비트</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>16진수</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>2진수</translation>
    </message>
    <message>
        <source>PAM4 symbols</source>
        <translation>PAM4 심볼</translation>
    </message>
    <message>
        <source>The three fields show the same pattern: each follows the others.</source>
        <translation>세 필드는 같은 패턴을 표시하며 서로 연동됩니다.</translation>
    </message>
    <message>
        <source>A run is under way. It can be stopped in the test window.</source>
        <translation>측정 중입니다. 테스트 창에서 중지할 수 있습니다.</translation>
    </message>
    <message>
        <source>Light colours</source>
        <translation>밝은 색상</translation>
    </message>
    <message>
        <source>Dark colours</source>
        <translation>어두운 색상</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>Standard values</source>
        <translation>기본값</translation>
    </message>
    <message>
        <source>Start the test</source>
        <translation>테스트 시작</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Optical frequency</source>
        <translation>광주파수</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>비트 전송률</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>최저 레벨</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>측정 시간</translation>
    </message>
    <message>
        <source>Samples per second</source>
        <translation>초당 샘플 수</translation>
    </message>
    <message>
        <source>Error ratio limit, power of 10</source>
        <translation>오류율 한계, 10의 거듭제곱</translation>
    </message>
</context>
<context>
    <name>TestPage</name>
    <message>
        <source>Stop</source>
        <translation>중지</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>저장됨</translation>
    </message>
    <message>
        <source>Save result</source>
        <translation>결과 저장</translation>
    </message>
    <message>
        <source>The instrument launches its test &quot;%1&quot; ...</source>
        <translation>계측기가 테스트 &quot;%1&quot;을(를) 시작하는 중...</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>측정 중</translation>
    </message>
    <message>
        <source>The link is lost. The run goes on when it is back.</source>
        <translation>연결이 끊겼습니다. 복구되면 측정을 계속합니다.</translation>
    </message>
    <message>
        <source>The instrument ends its test ...</source>
        <translation>계측기가 테스트를 종료하는 중...</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>준비됨</translation>
    </message>
    <message>
        <source>No link to the instrument, so no test can be started.</source>
        <translation>계측기와 연결되지 않아 테스트를 시작할 수 없습니다.</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>중단됨</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>실행 중</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Level now</source>
        <translation>현재 레벨</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>최저 레벨</translation>
    </message>
    <message>
        <source>Mean power</source>
        <translation>평균 전력</translation>
    </message>
    <message>
        <source>Bit errors</source>
        <translation>비트 오류</translation>
    </message>
    <message>
        <source>Error ratio</source>
        <translation>오류율</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>측정 진행률</translation>
    </message>
</context>
<context>
    <name>TracePlot</name>
    <message>
        <source>Trace of the level over time</source>
        <translation>시간에 따른 레벨 트레이스</translation>
    </message>
    <message>
        <source>Time in s</source>
        <translation>시간 (s)</translation>
    </message>
    <message>
        <source>Level in dBm</source>
        <translation>레벨 (dBm)</translation>
    </message>
    <message>
        <source>%1: %2 s, %3 dBm</source>
        <translation>%1: %2 s, %3 dBm</translation>
    </message>
    <message>
        <source>B - A: %1 s, %2 dB</source>
        <translation>B - A: %1 s, %2 dB</translation>
    </message>
    <message>
        <source>no link</source>
        <translation>연결 없음</translation>
    </message>
    <message>
        <source>Threshold %1 dBm</source>
        <translation>임계값 %1 dBm</translation>
    </message>
</context>
<context>
    <name>Wording</name>
    <message>
        <source>PASS</source>
        <translation>합격</translation>
    </message>
    <message>
        <source>FAIL</source>
        <translation>불합격</translation>
    </message>
    <message>
        <source>No verdict</source>
        <translation>판정 없음</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>중지됨</translation>
    </message>
    <message>
        <source>Ended by the instrument</source>
        <translation>계측기가 종료</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>시작 안 됨</translation>
    </message>
    <message>
        <source>The instrument did not answer in time.</source>
        <translation>계측기가 제때 응답하지 않았습니다.</translation>
    </message>
    <message>
        <source>The connection broke.</source>
        <translation>연결이 끊어졌습니다.</translation>
    </message>
    <message>
        <source>Nothing answers at that address.</source>
        <translation>해당 주소에서 응답이 없습니다.</translation>
    </message>
    <message>
        <source>The connection was closed.</source>
        <translation>연결이 닫혔습니다.</translation>
    </message>
    <message>
        <source>There is no instrument there.</source>
        <translation>그곳에 계측기가 없습니다.</translation>
    </message>
</context>
</TS>
