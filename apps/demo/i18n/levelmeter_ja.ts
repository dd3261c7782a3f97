<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ControlButtons</name>
    <message>
        <source>Autosave: on</source>
        <translation>自動保存:オン</translation>
    </message>
    <message>
        <source>Autosave: off</source>
        <translation>自動保存:オフ</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
</context>
<context>
    <name>EventList</name>
    <message>
        <source>Events</source>
        <translation>イベント</translation>
    </message>
</context>
<context>
    <name>Framework</name>
    <message>
        <source>The level meter runs alone: there is no other application.</source>
        <translation>レベルメーターは単独で動作中です。他のアプリケーションはありません。</translation>
    </message>
    <message>
        <source>A run is under way. Stop it and close?</source>
        <translation>測定中です。停止して閉じますか?</translation>
    </message>
    <message>
        <source>The last result was not saved. Close all the same?</source>
        <translation>最後の結果は保存されていません。それでも閉じますか?</translation>
    </message>
    <message>
        <source>Close the level meter</source>
        <translation>レベルメーターを閉じる</translation>
    </message>
</context>
<context>
    <name>LinkPanel</name>
    <message>
        <source>Link up</source>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>Link slow</source>
        <translation>接続が低速</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>接続中</translation>
    </message>
    <message>
        <source>Link lost</source>
        <translation>接続切れ</translation>
    </message>
    <message>
        <source>No link</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Try again now</source>
        <translation>今すぐ再試行</translation>
    </message>
</context>
<context>
    <name>LogPanel</name>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>The log is not kept in a file.</source>
        <translation>ログはファイルに保存されません。</translation>
    </message>
    <message>
        <source>The log is kept in %1</source>
        <translation>ログの保存先: %1</translation>
    </message>
</context>
<context>
    <name>Meter</name>
    <message>
        <source>The instrument does not say whether its test has ended.</source>
        <translation>機器からテスト終了の応答がありません。</translation>
    </message>
    <message>
        <source>Stopped without a link; the instrument&apos;s test is ended when the link is back.</source>
        <translation>接続がないまま停止しました。接続が戻ると機器のテストを終了します。</translation>
    </message>
    <message>
        <source>The instrument refused to launch its test &quot;%1&quot;.</source>
        <translation>機器がテスト「%1」の開始を拒否しました。</translation>
    </message>
    <message>
        <source>The link was lost before the test ran: %1</source>
        <translation>テスト開始前に接続が切れました: %1</translation>
    </message>
    <message>
        <source>Link lost: %1</source>
        <translation>接続が切れました: %1</translation>
    </message>
    <message>
        <source>The link was lost while the test ended.</source>
        <translation>テストの終了中に接続が切れました。</translation>
    </message>
    <message>
        <source>The instrument&apos;s test runs.</source>
        <translation>機器のテストが実行中です。</translation>
    </message>
    <message>
        <source>The link is back, the run goes on.</source>
        <translation>接続が戻りました。測定を続行します。</translation>
    </message>
    <message>
        <source>Level below the threshold: %1 dBm</source>
        <translation>レベルがしきい値未満: %1 dBm</translation>
    </message>
    <message>
        <source>Level back above the threshold</source>
        <translation>レベルがしきい値以上に復帰</translation>
    </message>
    <message>
        <source>The test ended before it ran.</source>
        <translation>テストは実行前に終了しました。</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>The link is back, but the instrument&apos;s test has ended.</source>
        <translation>接続は戻りましたが、機器のテストは終了しています。</translation>
    </message>
    <message>
        <source>The instrument has ended its test before the time was over.</source>
        <translation>機器が時間前にテストを終了しました。</translation>
    </message>
</context>
<context>
    <name>MeterWindow</name>
    <message>
        <source>Measuring</source>
        <translation>測定中</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Level meter</source>
        <translation>レベルメーター</translation>
    </message>
</context>
<context>
    <name>PlotPanel</name>
    <message>
        <source>Zoom in</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>全体</translation>
    </message>
    <message>
        <source>No markers</source>
        <translation>マーカーなし</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>マーカー</translation>
    </message>
    <message>
        <source>Tap the trace to set a marker.</source>
        <translation>波形をタップするとマーカーを設定します。</translation>
    </message>
</context>
<context>
    <name>ResultFiles</name>
    <message>
        <source>Save the result</source>
        <translation>結果を保存</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>%1 として保存しました</translation>
    </message>
    <message>
        <source>Result File Browser</source>
        <translation>結果ファイルブラウザー</translation>
    </message>
    <message>
        <source>%1 is on the instrument now</source>
        <translation>%1 を機器に送りました</translation>
    </message>
    <message>
        <source>%1 did not get to the instrument: %2</source>
        <translation>%1 を機器に送れませんでした: %2</translation>
    </message>
    <message>
        <source>Files of the instrument</source>
        <translation>機器のファイル</translation>
    </message>
    <message>
        <source>Delete %1? It can&apos;t be brought back.</source>
        <translation>%1 を削除しますか? 元に戻せません。</translation>
    </message>
    <message>
        <source>Delete a result</source>
        <translation>結果の削除</translation>
    </message>
    <message>
        <source>%1 can&apos;t be deleted.</source>
        <translation>%1 を削除できません。</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>結果</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Choose a result at the left.</source>
        <translation>左から結果を選んでください。</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>測定日時</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>最低レベル</translation>
    </message>
    <message>
        <source>Highest level</source>
        <translation>最高レベル</translation>
    </message>
    <message>
        <source>Mean power</source>
        <translation>平均パワー</translation>
    </message>
    <message>
        <source>Bit errors</source>
        <translation>ビット誤り</translation>
    </message>
    <message>
        <source>Error ratio</source>
        <translation>誤り率</translation>
    </message>
    <message>
        <source>Lowest level allowed</source>
        <translation>許容最低レベル</translation>
    </message>
    <message>
        <source>Error ratio allowed</source>
        <translation>許容誤り率</translation>
    </message>
    <message>
        <source>Optical frequency</source>
        <translation>光周波数</translation>
    </message>
    <message>
        <source>%1 THz</source>
        <translation>%1 THz</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>ビットレート</translation>
    </message>
    <message>
        <source>%1 Gbit/s</source>
        <translation>%1 Gbit/s</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>機器</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Saved results</source>
        <translation>保存した結果</translation>
    </message>
    <message>
        <source>Nothing was saved yet. A run that is over is saved in the test window.</source>
        <translation>まだ保存されていません。終了した測定はテスト画面で保存します。</translation>
    </message>
    <message>
        <source>Figures of the result</source>
        <translation>結果の数値</translation>
    </message>
    <message>
        <source>Open another file</source>
        <translation>別のファイルを開く</translation>
    </message>
    <message>
        <source>Upload to instrument</source>
        <translation>機器へ送信</translation>
    </message>
    <message>
        <source>Progress of the upload</source>
        <translation>送信の進行状況</translation>
    </message>
    <message>
        <source>Files of instrument</source>
        <translation>機器のファイル</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>RunFile</name>
    <message>
        <source>%1 can&apos;t be written: %2</source>
        <translation>%1 を書き込めません: %2</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>%1 を読み込めません: %2</translation>
    </message>
    <message>
        <source>%1 is larger than %2 MiB.</source>
        <translation>%1 は %2 MiB を超えています。</translation>
    </message>
    <message>
        <source>%1 is no run of the level meter: %2</source>
        <translation>%1 はレベルメーターの測定ではありません: %2</translation>
    </message>
</context>
<context>
    <name>RunReader</name>
    <message>
        <source>it does not begin as XML does</source>
        <translation>XML として始まっていません</translation>
    </message>
    <message>
        <source>a tag in it is too long</source>
        <translation>タグが長すぎます</translation>
    </message>
    <message>
        <source>another application has written it</source>
        <translation>別のアプリケーションが書いたものです</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>it has no document type VEX</source>
        <translation>文書型 VEX がありません</translation>
    </message>
    <message>
        <source>it declares entities</source>
        <translation>エンティティを宣言しています</translation>
    </message>
    <message>
        <source>line %1: unknown element %2</source>
        <translation>%1 行目: 不明な要素 %2</translation>
    </message>
    <message>
        <source>its settings come after its samples</source>
        <translation>設定が測定値の後にあります</translation>
    </message>
    <message>
        <source>it has too many events</source>
        <translation>イベントが多すぎます</translation>
    </message>
    <message>
        <source>it has too many samples</source>
        <translation>測定値が多すぎます</translation>
    </message>
    <message>
        <source>line %1: the samples are not in order</source>
        <translation>%1 行目: 測定値の順序が違います</translation>
    </message>
    <message>
        <source>line %1: expected a number from %2 to %3, found &apos;%4&apos;</source>
        <translation>%1 行目: %2 から %3 の数値が必要ですが「%4」です</translation>
    </message>
</context>
<context>
    <name>SetupPage</name>
    <message>
        <source>Test at the instrument</source>
        <translation>機器のテスト</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>What is measured, and its limits</source>
        <translation>測定内容と限界値</translation>
    </message>
    <message>
        <source>Pattern that is sent, 32 bits</source>
        <translation>送信パターン、32 ビット</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>16 進数</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>2 進数</translation>
    </message>
    <message>
        <source>PAM4 symbols</source>
        <translation>PAM4 シンボル</translation>
    </message>
    <message>
        <source>The three fields show the same pattern: each follows the others.</source>
        <translation>3 つの欄は同じパターンを示し、互いに連動します。</translation>
    </message>
    <message>
        <source>A run is under way. It can be stopped in the test window.</source>
        <translation>測定中です。テスト画面で停止できます。</translation>
    </message>
    <message>
        <source>Light colours</source>
        <translation>明るい配色</translation>
    </message>
    <message>
        <source>Dark colours</source>
        <translation>暗い配色</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Standard values</source>
        <translation>標準値</translation>
    </message>
    <message>
        <source>Start the test</source>
        <translation>テスト開始</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Optical frequency</source>
        <translation>光周波数</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>ビットレート</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>最低レベル</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>測定時間</translation>
    </message>
    <message>
        <source>Samples per second</source>
        <translation>毎秒の測定数</translation>
    </message>
    <message>
        <source>Error ratio limit, power of 10</source>
        <translation>誤り率の限界、10 の累乗</translation>
    </message>
</context>
<context>
    <name>TestPage</name>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>保存済み</translation>
    </message>
    <message>
        <source>Save result</source>
        <translation>結果を保存</translation>
    </message>
    <message>
        <source>The instrument launches its test &quot;%1&quot; ...</source>
        <translation>機器がテスト「%1」を開始しています...</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>測定中</translation>
    </message>
    <message>
        <source>The link is lost. The run goes on when it is back.</source>
        <translation>接続が切れました。戻ると測定を続行します。</translation>
    </message>
    <message>
        <source>The instrument ends its test ...</source>
        <translation>機器がテストを終了しています...</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>No link to the instrument, so no test can be started.</source>
        <translation>機器に接続していないため、テストを開始できません。</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>中断</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>実行中</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Level now</source>
        <translation>現在のレベル</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>最低レベル</translation>
    </message>
    <message>
        <source>Mean power</source>
        <translation>平均パワー</translation>
    </message>
    <message>
        <source>Bit errors</source>
        <translation>ビット誤り</translation>
    </message>
    <message>
        <source>Error ratio</source>
        <translation>誤り率</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>測定の進行状況</translation>
    </message>
</context>
<context>
    <name>TracePlot</name>
    <message>
        <source>Trace of the level over time</source>
        <translation>レベルの時間波形</translation>
    </message>
    <message>
        <source>Time in s</source>
        <translation>時間 (s)</translation>
    </message>
    <message>
        <source>Level in dBm</source>
        <translation>レベル (dBm)</translation>
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
        <translation>未接続</translation>
    </message>
    <message>
        <source>Threshold %1 dBm</source>
        <translation>しきい値 %1 dBm</translation>
    </message>
</context>
<context>
    <name>Wording</name>
    <message>
        <source>PASS</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>FAIL</source>
        <translation>不合格</translation>
    </message>
    <message>
        <source>No verdict</source>
        <translation>判定なし</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Ended by the instrument</source>
        <translation>機器が終了</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>未開始</translation>
    </message>
    <message>
        <source>The instrument did not answer in time.</source>
        <translation>機器が時間内に応答しませんでした。</translation>
    </message>
    <message>
        <source>The connection broke.</source>
        <translation>接続が途切れました。</translation>
    </message>
    <message>
        <source>Nothing answers at that address.</source>
        <translation>そのアドレスに応答がありません。</translation>
    </message>
    <message>
        <source>The connection was closed.</source>
        <translation>接続が閉じられました。</translation>
    </message>
    <message>
        <source>There is no instrument there.</source>
        <translation>そこに機器がありません。</translation>
    </message>
</context>
</TS>
