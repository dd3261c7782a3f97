<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AppHelpWidget</name>
    <message>
        <source>Back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Close help</source>
        <translation>关闭帮助</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>帮助页面</translation>
    </message>
</context>
<context>
    <name>AppMiniMissionControlWidget</name>
    <message>
        <source>Panel</source>
        <translation>面板</translation>
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
        <translation>端口：%1</translation>
    </message>
    <message>
        <source>Open mission control</source>
        <translation>打开任务控制面板</translation>
    </message>
    <message>
        <source>Close mission control</source>
        <translation>关闭任务控制面板</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>Close application</source>
        <translation>关闭应用程序</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Application controls</source>
        <translation>应用程序控件</translation>
    </message>
</context>
<context>
    <name>BreadcrumbBar</name>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>打开 %1</translation>
    </message>
</context>
<context>
    <name>ClientGUIBase</name>
    <message>
        <source>SETUP</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>TEST</source>
        <translation>测试</translation>
    </message>
    <message>
        <source>RESULT</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Result File Browser</source>
        <translation>结果文件浏览器</translation>
    </message>
    <message>
        <source>Application Selector</source>
        <translation>应用程序选择</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>应用程序</translation>
    </message>
</context>
<context>
    <name>ConflictDialog</name>
    <message>
        <source>Do the same with all that follow</source>
        <translation>对后续所有项执行相同操作</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>文件已存在</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already.</source>
        <translation>“%1”已存在。</translation>
    </message>
    <message>
        <source>There now</source>
        <translation>现有文件</translation>
    </message>
    <message>
        <source>To be copied</source>
        <translation>要复制的文件</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>覆盖</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>跳过</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>保留两者</translation>
    </message>
    <message>
        <source>Cancel all</source>
        <translation>全部取消</translation>
    </message>
</context>
<context>
    <name>FcpAppCORBA</name>
    <message>
        <source>the link to %1 was given up</source>
        <translation>已放弃与 %1 的连接</translation>
    </message>
</context>
<context>
    <name>FileActionBar</name>
    <message>
        <source>List anew</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>FileItemDelegate</name>
    <message>
        <source>New name</source>
        <translation>新名称</translation>
    </message>
</context>
<context>
    <name>FileListView</name>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>this is not the name of a file</source>
        <translation>这不是文件名</translation>
    </message>
    <message>
        <source>its name holds bytes that are no text</source>
        <translation>名称中含有非文本字节</translation>
    </message>
    <message>
        <source>the name is longer than %1 bytes</source>
        <translation>名称长度超过 %1 字节</translation>
    </message>
</context>
<context>
    <name>FileOperations</name>
    <message>
        <source>the instrument</source>
        <translation>仪器</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>此计算机</translation>
    </message>
    <message>
        <source>the medium %1</source>
        <translation>存储介质 %1</translation>
    </message>
    <message>
        <source>No folder could be made here: it may be protected.</source>
        <translation>无法在此处创建文件夹：该位置可能受保护。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be renamed to &quot;%2&quot;: the name may be taken.</source>
        <translation>无法将“%1”重命名为“%2”：该名称可能已被占用。</translation>
    </message>
    <message>
        <source>Renamed to &quot;%1&quot;.</source>
        <translation>已重命名为“%1”。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>What is deleted can&apos;t be brought back.</source>
        <translation>删除后无法恢复。</translation>
    </message>
    <message>
        <source>Deleting…</source>
        <translation>正在删除…</translation>
    </message>
    <message>
        <source>Deleted.</source>
        <translation>已删除。</translation>
    </message>
    <message>
        <source>%1 entries</source>
        <translation>%1 个项目</translation>
    </message>
    <message>
        <source>Open a folder and tap Paste to move %1.</source>
        <translation>要移动 %1，请打开文件夹并点按“粘贴”。</translation>
    </message>
    <message>
        <source>Open a folder and tap Paste to copy %1.</source>
        <translation>要复制 %1，请打开文件夹并点按“粘贴”。</translation>
    </message>
    <message>
        <source>Moving…</source>
        <translation>正在移动…</translation>
    </message>
    <message>
        <source>Moved.</source>
        <translation>已移动。</translation>
    </message>
    <message>
        <source>Copying…</source>
        <translation>正在复制…</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>已复制。</translation>
    </message>
    <message>
        <source>Making a folder…</source>
        <translation>正在创建文件夹…</translation>
    </message>
    <message>
        <source>Renaming…</source>
        <translation>正在重命名…</translation>
    </message>
</context>
<context>
    <name>FilePane</name>
    <message>
        <source>Up</source>
        <translation>上一级</translation>
    </message>
    <message>
        <source>Search in this folder</source>
        <translation>在此文件夹中搜索</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Types of files</source>
        <translation>文件类型</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>The instrument can&apos;t be reached.</source>
        <translation>无法连接到仪器。</translation>
    </message>
    <message>
        <source>%1 was removed.</source>
        <translation>%1 已被移除。</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>文件夹“%1”不存在。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is gone.</source>
        <translation>文件夹“%1”已不存在。</translation>
    </message>
    <message>
        <source>This folder can&apos;t be listed.</source>
        <translation>无法列出此文件夹的内容。</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>正在加载…</translation>
    </message>
    <message>
        <source>Nothing here fits the search.</source>
        <translation>没有与搜索匹配的项目。</translation>
    </message>
    <message>
        <source>This folder is empty.</source>
        <translation>此文件夹为空。</translation>
    </message>
    <message>
        <source>The link to the instrument is lost</source>
        <translation>与仪器的连接已断开</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>This entry&apos;s name can&apos;t be used.</source>
        <translation>此项目的名称无法使用。</translation>
    </message>
    <message>
        <source>Only %1</source>
        <translation>仅 %1</translation>
    </message>
    <message>
        <source>List only files of %1</source>
        <translation>仅列出 %1 的文件</translation>
    </message>
    <message>
        <source>There are no files of this type here.</source>
        <translation>此处没有此类型的文件。</translation>
    </message>
</context>
<context>
    <name>FilePaths</name>
    <message>
        <source>A name is needed.</source>
        <translation>需要输入名称。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be a name.</source>
        <translation>“%1”不能用作名称。</translation>
    </message>
    <message>
        <source>A name can&apos;t have a &quot;/&quot;.</source>
        <translation>名称中不能包含“/”。</translation>
    </message>
    <message>
        <source>A name can&apos;t have the character %1.</source>
        <translation>名称中不能包含字符 %1。</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>名称过长。</translation>
    </message>
</context>
<context>
    <name>FileQuestions</name>
    <message>
        <source>1 file</source>
        <translation>1 个文件</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 个文件</numerusform>
        </translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 个文件夹</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders</source>
        <translation>
            <numerusform>%1 个文件夹</numerusform>
        </translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Not everything was copied</source>
        <translation>部分内容未复制</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1和 %2</translation>
    </message>
    <message>
        <source>Delete %1 from %2?</source>
        <translation>要从%2中删除 %1吗？</translation>
    </message>
    <message>
        <source>Delete %1 with everything in it from %2?</source>
        <translation>要从%2中删除 %1及其中的所有内容吗？</translation>
    </message>
    <message>
        <source>Delete %1 with everything in them from %2?</source>
        <translation>要从%2中删除 %1及其中的所有内容吗？</translation>
    </message>
    <message>
        <source>%1 copied (%2)</source>
        <translation>已复制 %1（%2）</translation>
    </message>
    <message>
        <source>%1 skipped</source>
        <translation>已跳过 %1 个</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>失败 %1 个</translation>
    </message>
    <message>
        <source>%1 not tried</source>
        <translation>未尝试 %1 个</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>剩余 %1 秒</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>剩余 %1 分钟</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>剩余 %1 小时 %2 分钟</translation>
    </message>
</context>
<context>
    <name>FileTransfer</name>
    <message>
        <source>it is no file any more</source>
        <translation>它已不再是文件</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>它不存在</translation>
    </message>
    <message>
        <source>it was changed while it was read</source>
        <translation>它在读取过程中被更改</translation>
    </message>
    <message>
        <source>%1 bytes came of a file of %2 bytes</source>
        <translation>文件大小为 %2 字节，实际收到 %1 字节</translation>
    </message>
    <message>
        <source>there is no room left: %1</source>
        <translation>没有剩余空间：%1</translation>
    </message>
    <message>
        <source>there is no link to the instrument</source>
        <translation>未与仪器连接</translation>
    </message>
    <message>
        <source>the instrument cannot list %1</source>
        <translation>仪器无法列出 %1</translation>
    </message>
    <message>
        <source>%1; it is unknown whether the instrument still did its last step</source>
        <translation>%1；不确定仪器是否执行了最后一步</translation>
    </message>
    <message>
        <source>%1 (the instrument answers %2)</source>
        <translation>%1（仪器返回 %2）</translation>
    </message>
    <message>
        <source>the instrument cannot give a file of %1 the name %2</source>
        <translation>仪器无法将 %1 中的文件命名为 %2</translation>
    </message>
    <message>
        <source>the instrument cannot remove %1</source>
        <translation>仪器无法删除 %1</translation>
    </message>
    <message>
        <source>the instrument cannot make a folder in %1</source>
        <translation>仪器无法在 %1 中创建文件夹</translation>
    </message>
    <message>
        <source>this is not the path of a file</source>
        <translation>这不是文件路径</translation>
    </message>
    <message>
        <source>it cannot be carried into itself</source>
        <translation>无法将其传输到自身内部</translation>
    </message>
    <message>
        <source>the folders are nested too deeply</source>
        <translation>文件夹嵌套层次过深</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>未知异常</translation>
    </message>
    <message>
        <source>the folder %1 is not there</source>
        <translation>文件夹 %1 不存在</translation>
    </message>
    <message>
        <source>%1 are needed, and %2 are free in %3</source>
        <translation>需要 %1，而 %3 中的可用空间为 %2</translation>
    </message>
    <message>
        <source>a file at the target has the name of this folder</source>
        <translation>目标位置有与此文件夹同名的文件</translation>
    </message>
    <message>
        <source>%1; what may be left as %2 is removed when the file is carried again</source>
        <translation>%1；可能残留的 %2 将在再次传输该文件时删除</translation>
    </message>
    <message>
        <source>a folder at the target has the name of this file</source>
        <translation>目标位置有与此文件同名的文件夹</translation>
    </message>
</context>
<context>
    <name>FwButtonTabWidget</name>
    <message>
        <source>Previous tabs</source>
        <translation>前面的选项卡</translation>
    </message>
    <message>
        <source>More tabs</source>
        <translation>更多选项卡</translation>
    </message>
</context>
<context>
    <name>FwLoadSaveDialog</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>仪器</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>计算机</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>加载</translation>
    </message>
    <message>
        <source>Transfer files</source>
        <translation>传输文件</translation>
    </message>
    <message>
        <source>Nothing can be saved here now.</source>
        <translation>目前无法在此处保存。</translation>
    </message>
    <message>
        <source>There is a folder with the name &quot;%1&quot;.</source>
        <translation>已有名为“%1”的文件夹。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already. Overwrite it?</source>
        <translation>“%1”已存在。是否覆盖？</translation>
    </message>
    <message>
        <source>What it holds now will be lost.</source>
        <translation>其当前内容将丢失。</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>覆盖</translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation>传输</translation>
    </message>
    <message>
        <source>Files are being copied. Cancel that and close?</source>
        <translation>正在复制文件。要取消并关闭吗？</translation>
    </message>
    <message>
        <source>What has been copied so far stays.</source>
        <translation>已复制的内容将保留。</translation>
    </message>
    <message>
        <source>Cancel and close</source>
        <translation>取消并关闭</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>继续</translation>
    </message>
</context>
<context>
    <name>FwLogView</name>
    <message>
        <source>All levels</source>
        <translation>所有级别</translation>
    </message>
    <message>
        <source>From info</source>
        <translation>信息及以上</translation>
    </message>
    <message>
        <source>From warning</source>
        <translation>警告及以上</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>所有类别</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
</context>
<context>
    <name>FwNavigationButton</name>
    <message>
        <source>Previous window</source>
        <translation>上一个窗口</translation>
    </message>
    <message>
        <source>Next window</source>
        <translation>下一个窗口</translation>
    </message>
</context>
<context>
    <name>HelpBrowser</name>
    <message>
        <source>Only pages on this instrument can be shown here.</source>
        <translation>此处只能显示本仪器上的页面。</translation>
    </message>
    <message>
        <source>The help page is missing, or can not be read.</source>
        <translation>帮助页面缺失或无法读取。</translation>
    </message>
    <message>
        <source>This page can not be shown</source>
        <translation>无法显示此页面</translation>
    </message>
</context>
<context>
    <name>LampSign</name>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Indicator: %1</source>
        <translation>指示灯：%1</translation>
    </message>
</context>
<context>
    <name>LocalFileCopy</name>
    <message>
        <source>it is no file any more</source>
        <translation>它已不再是文件</translation>
    </message>
    <message>
        <source>it cannot be read: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message>
        <source>it cannot be written: %1</source>
        <translation>无法写入：%1</translation>
    </message>
</context>
<context>
    <name>LocalHelperThread</name>
    <message>
        <source>Cancelled.</source>
        <translation>已取消。</translation>
    </message>
    <message>
        <source>Files are being copied, moved or deleted already.</source>
        <translation>已在复制、移动或删除文件。</translation>
    </message>
    <message>
        <source>There is an entry of that name already.</source>
        <translation>已有同名项目。</translation>
    </message>
    <message>
        <source>This can&apos;t be done with this folder, or not at this place.</source>
        <translation>无法对此文件夹或在此位置执行该操作。</translation>
    </message>
    <message>
        <source>This is neither a file nor a folder nor a link, and can&apos;t be copied.</source>
        <translation>这不是文件、文件夹或链接，无法复制。</translation>
    </message>
    <message>
        <source>It is in use.</source>
        <translation>正在使用中。</translation>
    </message>
    <message>
        <source>Nothing may be changed here.</source>
        <translation>此处不允许更改。</translation>
    </message>
</context>
<context>
    <name>LocalSource</name>
    <message>
        <source>it is not there</source>
        <translation>它不存在</translation>
    </message>
    <message>
        <source>this folder cannot be read</source>
        <translation>无法读取此文件夹</translation>
    </message>
</context>
<context>
    <name>LocalTarget</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made: %2</source>
        <translation>无法创建文件夹 %1：%2</translation>
    </message>
    <message>
        <source>%1 was changed while it was written</source>
        <translation>%1 在写入过程中被更改</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>无法删除 %1：%2</translation>
    </message>
    <message>
        <source>%1 cannot be flushed to the medium: %2</source>
        <translation>无法将 %1 写入存储介质：%2</translation>
    </message>
</context>
<context>
    <name>NameField</name>
    <message>
        <source>File name</source>
        <translation>文件名</translation>
    </message>
</context>
<context>
    <name>NumericField</name>
    <message>
        <source>Whole numbers only</source>
        <translation>仅限整数</translation>
    </message>
    <message>
        <source>No negative values</source>
        <translation>不允许负值</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no digit here</source>
        <translation>此处不能输入“%1”</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>请输入数字</translation>
    </message>
    <message>
        <source>Digits after the point: %1 at most</source>
        <translation>小数位数：最多 %1 位</translation>
    </message>
    <message>
        <source>Not a number in the range</source>
        <translation>不是范围内的数字</translation>
    </message>
    <message>
        <source>The largest value is %1</source>
        <translation>最大值为 %1</translation>
    </message>
    <message>
        <source>The smallest value is %1</source>
        <translation>最小值为 %1</translation>
    </message>
</context>
<context>
    <name>NumpadKeys</name>
    <message>
        <source>Without a prefix</source>
        <translation>无词头</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>退格</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>光标左移</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>光标右移</translation>
    </message>
    <message>
        <source>Change the sign</source>
        <translation>更改符号</translation>
    </message>
    <message>
        <source>Decimal point</source>
        <translation>小数点</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>最小</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
</context>
<context>
    <name>NumpadPanel</name>
    <message>
        <source>Value: %1</source>
        <translation>值：%1</translation>
    </message>
    <message>
        <source>Range: %1 to %2</source>
        <translation>范围：%1 至 %2</translation>
    </message>
    <message>
        <source>Step: %1</source>
        <translation>步进：%1</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>输入</translation>
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
        <source>Edit digits</source>
        <translation>逐位编辑</translation>
    </message>
    <message>
        <source>Display password</source>
        <translation>显示密码</translation>
    </message>
    <message>
        <source>Disable password protection</source>
        <translation>禁用密码保护</translation>
    </message>
</context>
<context>
    <name>QLrudDialog</name>
    <message>
        <source>Up</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Keypad</source>
        <translation>小键盘</translation>
    </message>
    <message>
        <source>Move keys up</source>
        <translation>上移按键</translation>
    </message>
    <message>
        <source>Move keys down</source>
        <translation>下移按键</translation>
    </message>
</context>
<context>
    <name>QvexDialogBorder</name>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>左移</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>右移</translation>
    </message>
</context>
<context>
    <name>QvexFileMover</name>
    <message>
        <source>%1 was not carried: %2</source>
        <translation>未传输 %1：%2</translation>
    </message>
    <message>
        <source>%1 was not carried: an unknown exception</source>
        <translation>未传输 %1：未知异常</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>%1 exists on the instrument</source>
        <translation>仪器上已存在 %1</translation>
    </message>
    <message>
        <source>the instrument cannot write %1</source>
        <translation>仪器无法写入 %1</translation>
    </message>
    <message>
        <source>the instrument could not store what was sent of %1</source>
        <translation>仪器无法存储已发送的 %1 的数据</translation>
    </message>
    <message>
        <source>the destination has appeared on the instrument meanwhile</source>
        <translation>其间目标已在仪器上出现</translation>
    </message>
    <message>
        <source>the instrument could not store the file</source>
        <translation>仪器无法存储该文件</translation>
    </message>
    <message>
        <source>%1 has shrunk while it was read</source>
        <translation>%1 在读取过程中变小</translation>
    </message>
    <message>
        <source>aborted after %1 bytes</source>
        <translation>在 %1 字节后中止</translation>
    </message>
    <message>
        <source>the instrument cannot read %1</source>
        <translation>仪器无法读取 %1</translation>
    </message>
    <message>
        <source>%1 exists</source>
        <translation>%1 已存在</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>无法删除 %1：%2</translation>
    </message>
    <message>
        <source>the folder of %1 cannot be made</source>
        <translation>无法创建 %1 的文件夹</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>the instrument could not read the file to its end</source>
        <translation>仪器未能完整读取该文件</translation>
    </message>
</context>
<context>
    <name>QvexMessageBox</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>丢弃</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>恢复默认值</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>全部保存</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>Yes to All</source>
        <translation>全是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>No to All</source>
        <translation>全否</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>Hide Details</source>
        <translation>隐藏详情</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>显示详情</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详情</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>问题</translation>
    </message>
</context>
<context>
    <name>QvexNumpadDlg</name>
    <message>
        <source>The value stays as it is</source>
        <translation>值保持不变</translation>
    </message>
    <message>
        <source>%1; or choose a unit</source>
        <translation>%1；或选择单位</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>请输入数字</translation>
    </message>
</context>
<context>
    <name>QvexPasswordPopup</name>
    <message>
        <source>Password Protection</source>
        <translation>密码保护</translation>
    </message>
    <message>
        <source>Password Does Not Match.
Please Type Correct Password!</source>
        <translation>密码不匹配。
请输入正确的密码！</translation>
    </message>
</context>
<context>
    <name>QvexRemoteFileModel</name>
    <message>
        <source>It was cancelled.</source>
        <translation>已取消。</translation>
    </message>
    <message>
        <source>Another operation is still running.</source>
        <translation>另一项操作仍在进行中。</translation>
    </message>
    <message>
        <source>The link to the instrument was lost; it is not known whether it was done.</source>
        <translation>与仪器的连接已断开；不确定操作是否已完成。</translation>
    </message>
    <message>
        <source>Its name can&apos;t be used.</source>
        <translation>其名称无法使用。</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>仪器</translation>
    </message>
    <message>
        <source>Instrument (%1)</source>
        <translation>仪器（%1）</translation>
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
        <translation>它已不存在。</translation>
    </message>
    <message>
        <source>There is no permission for it.</source>
        <translation>没有相应权限。</translation>
    </message>
    <message>
        <source>Something of that name is there already.</source>
        <translation>已有同名项。</translation>
    </message>
    <message>
        <source>A folder can&apos;t be put into itself.</source>
        <translation>无法将文件夹放入其自身。</translation>
    </message>
    <message>
        <source>The instrument&apos;s storage is full.</source>
        <translation>仪器的存储空间已满。</translation>
    </message>
    <message>
        <source>The instrument reported error %1.</source>
        <translation>仪器报告了错误 %1。</translation>
    </message>
    <message>
        <source>No folder could be made here: it may be protected.</source>
        <translation>无法在此处创建文件夹：此位置可能受保护。</translation>
    </message>
</context>
<context>
    <name>QvextHelpDialog</name>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>主页</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>帮助页面</translation>
    </message>
</context>
<context>
    <name>RemoteSource</name>
    <message>
        <source>it is not there</source>
        <translation>它不存在</translation>
    </message>
</context>
<context>
    <name>RemoteTarget</name>
    <message>
        <source>the instrument cannot replace %1</source>
        <translation>仪器无法替换 %1</translation>
    </message>
    <message>
        <source>%1; the old file may be called %2 now</source>
        <translation>%1；旧文件现在的名称可能是 %2</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Close panel</source>
        <translation>关闭面板</translation>
    </message>
</context>
<context>
    <name>SplashLines</name>
    <message>
        <source>Start-up messages</source>
        <translation>启动消息</translation>
    </message>
</context>
<context>
    <name>StatusStrip</name>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Stop what is under way</source>
        <translation>停止正在进行的操作</translation>
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
        <translation>%1/秒</translation>
    </message>
    <message>
        <source>Progress of the transfer</source>
        <translation>传输进度</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Cancel the transfer</source>
        <translation>取消传输</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>正在取消…</translation>
    </message>
</context>
<context>
    <name>TransferView</name>
    <message>
        <source>&quot;%1&quot; can&apos;t be copied into itself.</source>
        <translation>无法将“%1”复制到其自身内部。</translation>
    </message>
    <message>
        <source>Both sides show the same folder.</source>
        <translation>两侧显示的是同一个文件夹。</translation>
    </message>
    <message>
        <source>Copy to the right side</source>
        <translation>复制到右侧</translation>
    </message>
    <message>
        <source>Copy to the left side</source>
        <translation>复制到左侧</translation>
    </message>
    <message>
        <source>To %1:</source>
        <translation>传输到 %1：</translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation>传输</translation>
    </message>
</context>
<context>
    <name>UnitPrefix</name>
    <message>
        <source>Enter a number before the unit</source>
        <translation>请在单位前输入数字</translation>
    </message>
    <message>
        <source>Too many digits for this unit</source>
        <translation>此单位的位数过多</translation>
    </message>
</context>
<context>
    <name>VerdictSign</name>
    <message>
        <source>No result</source>
        <translation>无结果</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>通过</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>未通过</translation>
    </message>
    <message>
        <source>See results</source>
        <translation>查看结果</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>subject and verdict</comment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>VexLinkSupervisor</name>
    <message>
        <source>registered with %1:%2 as client %3</source>
        <translation>已在 %1:%2 注册为客户端 %3</translation>
    </message>
    <message>
        <source>the controller answers again</source>
        <translation>控制器已恢复响应</translation>
    </message>
    <message>
        <source>connecting to %1:%2, attempt %3</source>
        <translation>正在连接 %1:%2，第 %3 次尝试</translation>
    </message>
    <message>
        <source>no answer for %1 ms</source>
        <translation>%1 毫秒无应答</translation>
    </message>
    <message>
        <source>no longer watched</source>
        <translation>不再监视</translation>
    </message>
</context>
</TS>
