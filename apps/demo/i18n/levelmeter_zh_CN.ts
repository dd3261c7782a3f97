<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ControlButtons</name>
    <message>
        <source>Autosave: on</source>
        <translation>自动保存:开</translation>
    </message>
    <message>
        <source>Autosave: off</source>
        <translation>自动保存:关</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
</context>
<context>
    <name>EventList</name>
    <message>
        <source>Events</source>
        <translation>事件</translation>
    </message>
</context>
<context>
    <name>Framework</name>
    <message>
        <source>The level meter runs alone: there is no other application.</source>
        <translation>电平表单独运行:没有其他应用程序。</translation>
    </message>
    <message>
        <source>A run is under way. Stop it and close?</source>
        <translation>测量正在进行。停止并关闭吗?</translation>
    </message>
    <message>
        <source>The last result was not saved. Close all the same?</source>
        <translation>上一个结果未保存。仍要关闭吗?</translation>
    </message>
    <message>
        <source>Close the level meter</source>
        <translation>关闭电平表</translation>
    </message>
</context>
<context>
    <name>LinkPanel</name>
    <message>
        <source>Link up</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Link slow</source>
        <translation>连接缓慢</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>正在连接</translation>
    </message>
    <message>
        <source>Link lost</source>
        <translation>连接丢失</translation>
    </message>
    <message>
        <source>No link</source>
        <translation>无连接</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Try again now</source>
        <translation>立即重试</translation>
    </message>
</context>
<context>
    <name>LogPanel</name>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>The log is not kept in a file.</source>
        <translation>日志未保存到文件。</translation>
    </message>
    <message>
        <source>The log is kept in %1</source>
        <translation>日志保存在 %1</translation>
    </message>
</context>
<context>
    <name>Meter</name>
    <message>
        <source>The instrument does not say whether its test has ended.</source>
        <translation>仪器未说明其测试是否已结束。</translation>
    </message>
    <message>
        <source>Stopped without a link; the instrument&apos;s test is ended when the link is back.</source>
        <translation>已在无连接时停止;连接恢复后结束仪器的测试。</translation>
    </message>
    <message>
        <source>The instrument refused to launch its test &quot;%1&quot;.</source>
        <translation>仪器拒绝启动测试“%1”。</translation>
    </message>
    <message>
        <source>The link was lost before the test ran: %1</source>
        <translation>测试运行前连接丢失:%1</translation>
    </message>
    <message>
        <source>Link lost: %1</source>
        <translation>连接丢失:%1</translation>
    </message>
    <message>
        <source>The link was lost while the test ended.</source>
        <translation>测试结束时连接丢失。</translation>
    </message>
    <message>
        <source>The instrument&apos;s test runs.</source>
        <translation>仪器的测试正在运行。</translation>
    </message>
    <message>
        <source>The link is back, the run goes on.</source>
        <translation>连接已恢复,测量继续。</translation>
    </message>
    <message>
        <source>Level below the threshold: %1 dBm</source>
        <translation>电平低于阈值:%1 dBm</translation>
    </message>
    <message>
        <source>Level back above the threshold</source>
        <translation>电平恢复到阈值以上</translation>
    </message>
    <message>
        <source>The test ended before it ran.</source>
        <translation>测试在运行前已结束。</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>The link is back, but the instrument&apos;s test has ended.</source>
        <translation>连接已恢复,但仪器的测试已结束。</translation>
    </message>
    <message>
        <source>The instrument has ended its test before the time was over.</source>
        <translation>仪器提前结束了测试。</translation>
    </message>
</context>
<context>
    <name>MeterWindow</name>
    <message>
        <source>Measuring</source>
        <translation>正在测量</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Level meter</source>
        <translation>电平表</translation>
    </message>
</context>
<context>
    <name>PlotPanel</name>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>适合</translation>
    </message>
    <message>
        <source>No markers</source>
        <translation>无标记</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>标记</translation>
    </message>
    <message>
        <source>Tap the trace to set a marker.</source>
        <translation>点按曲线以设置标记。</translation>
    </message>
</context>
<context>
    <name>ResultFiles</name>
    <message>
        <source>Save the result</source>
        <translation>保存结果</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>已保存为 %1</translation>
    </message>
    <message>
        <source>Result File Browser</source>
        <translation>结果文件浏览器</translation>
    </message>
    <message>
        <source>%1 is on the instrument now</source>
        <translation>%1 已在仪器上</translation>
    </message>
    <message>
        <source>%1 did not get to the instrument: %2</source>
        <translation>%1 未能传到仪器:%2</translation>
    </message>
    <message>
        <source>Files of the instrument</source>
        <translation>仪器的文件</translation>
    </message>
    <message>
        <source>Delete %1? It can&apos;t be brought back.</source>
        <translation>删除 %1 吗?删除后无法恢复。</translation>
    </message>
    <message>
        <source>Delete a result</source>
        <translation>删除结果</translation>
    </message>
    <message>
        <source>%1 can&apos;t be deleted.</source>
        <translation>无法删除 %1。</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>结果</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Choose a result at the left.</source>
        <translation>请在左侧选择结果。</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>测量时间</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>结束方式</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>最低电平</translation>
    </message>
    <message>
        <source>Highest level</source>
        <translation>最高电平</translation>
    </message>
    <message>
        <source>Mean power</source>
        <translation>平均功率</translation>
    </message>
    <message>
        <source>Bit errors</source>
        <translation>误码</translation>
    </message>
    <message>
        <source>Error ratio</source>
        <translation>误码率</translation>
    </message>
    <message>
        <source>Lowest level allowed</source>
        <translation>允许的最低电平</translation>
    </message>
    <message>
        <source>Error ratio allowed</source>
        <translation>允许的误码率</translation>
    </message>
    <message>
        <source>Optical frequency</source>
        <translation>光频率</translation>
    </message>
    <message>
        <source>%1 THz</source>
        <translation>%1 THz</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>比特率</translation>
    </message>
    <message>
        <source>%1 Gbit/s</source>
        <translation>%1 Gbit/s</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>仪器</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Saved results</source>
        <translation>已保存的结果</translation>
    </message>
    <message>
        <source>Nothing was saved yet. A run that is over is saved in the test window.</source>
        <translation>尚未保存任何内容。测量结束后可在测试窗口中保存。</translation>
    </message>
    <message>
        <source>Figures of the result</source>
        <translation>结果数值</translation>
    </message>
    <message>
        <source>Open another file</source>
        <translation>打开其他文件</translation>
    </message>
    <message>
        <source>Upload to instrument</source>
        <translation>上传到仪器</translation>
    </message>
    <message>
        <source>Progress of the upload</source>
        <translation>上传进度</translation>
    </message>
    <message>
        <source>Files of instrument</source>
        <translation>仪器的文件</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>RunFile</name>
    <message>
        <source>%1 can&apos;t be written: %2</source>
        <translation>无法写入 %1:%2</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>无法读取 %1:%2</translation>
    </message>
    <message>
        <source>%1 is larger than %2 MiB.</source>
        <translation>%1 大于 %2 MiB。</translation>
    </message>
    <message>
        <source>%1 is no run of the level meter: %2</source>
        <translation>%1 不是电平表的测量:%2</translation>
    </message>
</context>
<context>
    <name>RunReader</name>
    <message>
        <source>it does not begin as XML does</source>
        <translation>开头不是 XML</translation>
    </message>
    <message>
        <source>a tag in it is too long</source>
        <translation>其中的标签过长</translation>
    </message>
    <message>
        <source>another application has written it</source>
        <translation>由其他应用程序写入</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行:%2</translation>
    </message>
    <message>
        <source>it has no document type VEX</source>
        <translation>没有文档类型 VEX</translation>
    </message>
    <message>
        <source>it declares entities</source>
        <translation>它声明了实体</translation>
    </message>
    <message>
        <source>line %1: unknown element %2</source>
        <translation>第 %1 行:未知元素 %2</translation>
    </message>
    <message>
        <source>its settings come after its samples</source>
        <translation>设置位于样本之后</translation>
    </message>
    <message>
        <source>it has too many events</source>
        <translation>事件过多</translation>
    </message>
    <message>
        <source>it has too many samples</source>
        <translation>样本过多</translation>
    </message>
    <message>
        <source>line %1: the samples are not in order</source>
        <translation>第 %1 行:样本顺序错误</translation>
    </message>
    <message>
        <source>line %1: expected a number from %2 to %3, found &apos;%4&apos;</source>
        <translation>第 %1 行:应为 %2 到 %3 的数字,实际为“%4”</translation>
    </message>
</context>
<context>
    <name>SetupPage</name>
    <message>
        <source>Test at the instrument</source>
        <translation>仪器的测试</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>What is measured, and its limits</source>
        <translation>测量内容及限值</translation>
    </message>
    <message>
        <source>Pattern that is sent, 32 bits</source>
        <translation>发送的码型,32 位</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>十六进制</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>二进制</translation>
    </message>
    <message>
        <source>PAM4 symbols</source>
        <translation>PAM4 符号</translation>
    </message>
    <message>
        <source>The three fields show the same pattern: each follows the others.</source>
        <translation>三个字段显示同一码型:彼此同步。</translation>
    </message>
    <message>
        <source>A run is under way. It can be stopped in the test window.</source>
        <translation>测量正在进行。可在测试窗口中停止。</translation>
    </message>
    <message>
        <source>Light colours</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark colours</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Standard values</source>
        <translation>默认值</translation>
    </message>
    <message>
        <source>Start the test</source>
        <translation>开始测试</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1(%2)</translation>
    </message>
    <message>
        <source>Optical frequency</source>
        <translation>光频率</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>比特率</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>最低电平</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>持续时间</translation>
    </message>
    <message>
        <source>Samples per second</source>
        <translation>每秒样本数</translation>
    </message>
    <message>
        <source>Error ratio limit, power of 10</source>
        <translation>误码率限值,10 的幂</translation>
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
        <translation>开始</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>已保存</translation>
    </message>
    <message>
        <source>Save result</source>
        <translation>保存结果</translation>
    </message>
    <message>
        <source>The instrument launches its test &quot;%1&quot; ...</source>
        <translation>仪器正在启动测试“%1”...</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>正在测量</translation>
    </message>
    <message>
        <source>The link is lost. The run goes on when it is back.</source>
        <translation>连接丢失。恢复后测量将继续。</translation>
    </message>
    <message>
        <source>The instrument ends its test ...</source>
        <translation>仪器正在结束测试...</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>No link to the instrument, so no test can be started.</source>
        <translation>未连接仪器,无法开始测试。</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>已中断</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>运行中</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Level now</source>
        <translation>当前电平</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>最低电平</translation>
    </message>
    <message>
        <source>Mean power</source>
        <translation>平均功率</translation>
    </message>
    <message>
        <source>Bit errors</source>
        <translation>误码</translation>
    </message>
    <message>
        <source>Error ratio</source>
        <translation>误码率</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>测量进度</translation>
    </message>
</context>
<context>
    <name>TracePlot</name>
    <message>
        <source>Trace of the level over time</source>
        <translation>电平随时间变化曲线</translation>
    </message>
    <message>
        <source>Time in s</source>
        <translation>时间(s)</translation>
    </message>
    <message>
        <source>Level in dBm</source>
        <translation>电平(dBm)</translation>
    </message>
    <message>
        <source>%1: %2 s, %3 dBm</source>
        <translation>%1:%2 s,%3 dBm</translation>
    </message>
    <message>
        <source>B - A: %1 s, %2 dB</source>
        <translation>B - A:%1 s,%2 dB</translation>
    </message>
    <message>
        <source>no link</source>
        <translation>无连接</translation>
    </message>
    <message>
        <source>Threshold %1 dBm</source>
        <translation>阈值 %1 dBm</translation>
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
        <translation>无结论</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Ended by the instrument</source>
        <translation>由仪器结束</translation>
    </message>
    <message>
        <source>Not started</source>
        <translation>未开始</translation>
    </message>
    <message>
        <source>The instrument did not answer in time.</source>
        <translation>仪器未及时响应。</translation>
    </message>
    <message>
        <source>The connection broke.</source>
        <translation>连接中断。</translation>
    </message>
    <message>
        <source>Nothing answers at that address.</source>
        <translation>该地址无响应。</translation>
    </message>
    <message>
        <source>The connection was closed.</source>
        <translation>连接已关闭。</translation>
    </message>
    <message>
        <source>There is no instrument there.</source>
        <translation>那里没有仪器。</translation>
    </message>
</context>
</TS>
