<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>AppHelpWidget</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <source>Close help</source>
        <translation>ヘルプを閉じる</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>ヘルプページ</translation>
    </message>
</context>
<context>
    <name>AppMiniMissionControlWidget</name>
    <message>
        <source>Panel</source>
        <translation>パネル</translation>
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
        <translation>ポート: %1</translation>
    </message>
    <message>
        <source>Open mission control</source>
        <translation>ミッションコントロールを開く</translation>
    </message>
    <message>
        <source>Close mission control</source>
        <translation>ミッションコントロールを閉じる</translation>
    </message>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>Close application</source>
        <translation>アプリケーションを閉じる</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進捗</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Application controls</source>
        <translation>アプリケーションの操作</translation>
    </message>
</context>
<context>
    <name>BreadcrumbBar</name>
    <message>
        <source>Path</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 を開く</translation>
    </message>
</context>
<context>
    <name>ClientGUIBase</name>
    <message>
        <source>SETUP</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>TEST</source>
        <translation>テスト</translation>
    </message>
    <message>
        <source>RESULT</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Result File Browser</source>
        <translation>結果ファイルブラウザ</translation>
    </message>
    <message>
        <source>Application Selector</source>
        <translation>アプリケーションの選択</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>アプリケーション</translation>
    </message>
</context>
<context>
    <name>ConflictDialog</name>
    <message>
        <source>Do the same with all that follow</source>
        <translation>以降のすべてに同じ処理を行う</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>ファイルが存在します</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already.</source>
        <translation>&quot;%1&quot; はすでに存在します。</translation>
    </message>
    <message>
        <source>There now</source>
        <translation>既存のファイル</translation>
    </message>
    <message>
        <source>To be copied</source>
        <translation>コピーするファイル</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>上書き</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>両方を残す</translation>
    </message>
    <message>
        <source>Cancel all</source>
        <translation>すべてキャンセル</translation>
    </message>
</context>
<context>
    <name>FcpAppCORBA</name>
    <message>
        <source>the link to %1 was given up</source>
        <translation>%1 への接続を断念しました</translation>
    </message>
</context>
<context>
    <name>FileActionBar</name>
    <message>
        <source>List anew</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>新しいフォルダ</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前の変更</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>FileItemDelegate</name>
    <message>
        <source>New name</source>
        <translation>新しい名前</translation>
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
        <translation>ファイル名ではありません</translation>
    </message>
    <message>
        <source>its name holds bytes that are no text</source>
        <translation>名前にテキストではないバイトが含まれています</translation>
    </message>
    <message>
        <source>the name is longer than %1 bytes</source>
        <translation>名前が %1 バイトを超えています</translation>
    </message>
</context>
<context>
    <name>FileOperations</name>
    <message>
        <source>the instrument</source>
        <translation>測定器</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>このコンピュータ</translation>
    </message>
    <message>
        <source>the medium %1</source>
        <translation>メディア %1</translation>
    </message>
    <message>
        <source>No folder could be made here: it may be protected.</source>
        <translation>ここにフォルダを作成できませんでした。保護されている可能性があります。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be renamed to &quot;%2&quot;: the name may be taken.</source>
        <translation>&quot;%1&quot; の名前を &quot;%2&quot; に変更できません。その名前はすでに使われている可能性があります。</translation>
    </message>
    <message>
        <source>Renamed to &quot;%1&quot;.</source>
        <translation>名前を &quot;%1&quot; に変更しました。</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>What is deleted can&apos;t be brought back.</source>
        <translation>削除したものは元に戻せません。</translation>
    </message>
    <message>
        <source>Deleting…</source>
        <translation>削除中…</translation>
    </message>
    <message>
        <source>Deleted.</source>
        <translation>削除しました。</translation>
    </message>
    <message>
        <source>%1 entries</source>
        <translation>%1 個の項目</translation>
    </message>
    <message>
        <source>Open a folder and tap Paste to move %1.</source>
        <translation>%1 を移動するには、フォルダを開いて [貼り付け] をタップしてください。</translation>
    </message>
    <message>
        <source>Open a folder and tap Paste to copy %1.</source>
        <translation>%1 をコピーするには、フォルダを開いて [貼り付け] をタップしてください。</translation>
    </message>
    <message>
        <source>Moving…</source>
        <translation>移動中…</translation>
    </message>
    <message>
        <source>Moved.</source>
        <translation>移動しました。</translation>
    </message>
    <message>
        <source>Copying…</source>
        <translation>コピー中…</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>コピーしました。</translation>
    </message>
    <message>
        <source>Making a folder…</source>
        <translation>フォルダーを作成中…</translation>
    </message>
    <message>
        <source>Renaming…</source>
        <translation>名前を変更中…</translation>
    </message>
</context>
<context>
    <name>FilePane</name>
    <message>
        <source>Up</source>
        <translation>上の階層へ</translation>
    </message>
    <message>
        <source>Search in this folder</source>
        <translation>このフォルダ内を検索</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Types of files</source>
        <translation>ファイルの種類</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>The instrument can&apos;t be reached.</source>
        <translation>測定器に接続できません。</translation>
    </message>
    <message>
        <source>%1 was removed.</source>
        <translation>%1 が取り外されました。</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>フォルダ &quot;%1&quot; はありません。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is gone.</source>
        <translation>フォルダ &quot;%1&quot; はなくなりました。</translation>
    </message>
    <message>
        <source>This folder can&apos;t be listed.</source>
        <translation>このフォルダの内容を表示できません。</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>読み込み中…</translation>
    </message>
    <message>
        <source>Nothing here fits the search.</source>
        <translation>検索に一致する項目はありません。</translation>
    </message>
    <message>
        <source>This folder is empty.</source>
        <translation>このフォルダは空です。</translation>
    </message>
    <message>
        <source>The link to the instrument is lost</source>
        <translation>測定器との接続が失われました</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>This entry&apos;s name can&apos;t be used.</source>
        <translation>この項目の名前は使用できません。</translation>
    </message>
    <message>
        <source>Only %1</source>
        <translation>%1 のみ</translation>
    </message>
    <message>
        <source>List only files of %1</source>
        <translation>%1 のファイルだけを表示</translation>
    </message>
    <message>
        <source>There are no files of this type here.</source>
        <translation>この種類のファイルはここにはありません。</translation>
    </message>
</context>
<context>
    <name>FilePaths</name>
    <message>
        <source>A name is needed.</source>
        <translation>名前が必要です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be a name.</source>
        <translation>&quot;%1&quot; は名前に使用できません。</translation>
    </message>
    <message>
        <source>A name can&apos;t have a &quot;/&quot;.</source>
        <translation>名前に &quot;/&quot; は使用できません。</translation>
    </message>
    <message>
        <source>A name can&apos;t have the character %1.</source>
        <translation>名前に文字 %1 は使用できません。</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>この名前は長すぎます。</translation>
    </message>
</context>
<context>
    <name>FileQuestions</name>
    <message>
        <source>1 file</source>
        <translation>1 個のファイル</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 個のファイル</numerusform>
        </translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 個のフォルダ</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders</source>
        <translation>
            <numerusform>%1 個のフォルダー</numerusform>
        </translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Not everything was copied</source>
        <translation>一部コピーされていません</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>キャンセル済み</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1と %2</translation>
    </message>
    <message>
        <source>Delete %1 from %2?</source>
        <translation>%2から%1を削除しますか?</translation>
    </message>
    <message>
        <source>Delete %1 with everything in it from %2?</source>
        <translation>%2から%1を、中身も含めて削除しますか?</translation>
    </message>
    <message>
        <source>Delete %1 with everything in them from %2?</source>
        <translation>%2から%1を、中身も含めて削除しますか?</translation>
    </message>
    <message>
        <source>%1 copied (%2)</source>
        <translation>%1をコピー (%2)</translation>
    </message>
    <message>
        <source>%1 skipped</source>
        <translation>%1 件スキップ</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 件失敗</translation>
    </message>
    <message>
        <source>%1 not tried</source>
        <translation>%1 件未実行</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>残り %1 秒</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>残り %1 分</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>残り %1 時間 %2 分</translation>
    </message>
</context>
<context>
    <name>FileTransfer</name>
    <message>
        <source>it is no file any more</source>
        <translation>もうファイルではありません</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>存在しません</translation>
    </message>
    <message>
        <source>it was changed while it was read</source>
        <translation>読み取り中に変更されました</translation>
    </message>
    <message>
        <source>%1 bytes came of a file of %2 bytes</source>
        <translation>%2 バイトのファイルのうち %1 バイトしか届きませんでした</translation>
    </message>
    <message>
        <source>there is no room left: %1</source>
        <translation>空き領域がありません: %1</translation>
    </message>
    <message>
        <source>there is no link to the instrument</source>
        <translation>測定器に接続されていません</translation>
    </message>
    <message>
        <source>the instrument cannot list %1</source>
        <translation>測定器が %1 の内容を一覧できません</translation>
    </message>
    <message>
        <source>%1; it is unknown whether the instrument still did its last step</source>
        <translation>%1。測定器が最後の手順を実行したかどうかは不明です</translation>
    </message>
    <message>
        <source>%1 (the instrument answers %2)</source>
        <translation>%1 (測定器の応答: %2)</translation>
    </message>
    <message>
        <source>the instrument cannot give a file of %1 the name %2</source>
        <translation>測定器が %1 のファイルに名前 %2 を付けられません</translation>
    </message>
    <message>
        <source>the instrument cannot remove %1</source>
        <translation>測定器が %1 を削除できません</translation>
    </message>
    <message>
        <source>the instrument cannot make a folder in %1</source>
        <translation>測定器が %1 にフォルダを作成できません</translation>
    </message>
    <message>
        <source>this is not the path of a file</source>
        <translation>ファイルのパスではありません</translation>
    </message>
    <message>
        <source>it cannot be carried into itself</source>
        <translation>それ自体の中へは転送できません</translation>
    </message>
    <message>
        <source>the folders are nested too deeply</source>
        <translation>フォルダの階層が深すぎます</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>不明な例外</translation>
    </message>
    <message>
        <source>the folder %1 is not there</source>
        <translation>フォルダ %1 が存在しません</translation>
    </message>
    <message>
        <source>%1 are needed, and %2 are free in %3</source>
        <translation>%1 が必要ですが、%3 の空きは %2 です</translation>
    </message>
    <message>
        <source>a file at the target has the name of this folder</source>
        <translation>転送先にこのフォルダと同じ名前のファイルがあります</translation>
    </message>
    <message>
        <source>%1; what may be left as %2 is removed when the file is carried again</source>
        <translation>%1。%2 に残っている可能性があるデータは、次にこのファイルを転送するときに削除されます</translation>
    </message>
    <message>
        <source>a folder at the target has the name of this file</source>
        <translation>転送先にこのファイルと同じ名前のフォルダがあります</translation>
    </message>
</context>
<context>
    <name>FwButtonTabWidget</name>
    <message>
        <source>Previous tabs</source>
        <translation>前のタブ</translation>
    </message>
    <message>
        <source>More tabs</source>
        <translation>その他のタブ</translation>
    </message>
</context>
<context>
    <name>FwLoadSaveDialog</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>測定器</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>コンピュータ</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>読み込み</translation>
    </message>
    <message>
        <source>Transfer files</source>
        <translation>ファイルの転送</translation>
    </message>
    <message>
        <source>Nothing can be saved here now.</source>
        <translation>現在ここには保存できません。</translation>
    </message>
    <message>
        <source>There is a folder with the name &quot;%1&quot;.</source>
        <translation>&quot;%1&quot; という名前のフォルダがあります。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already. Overwrite it?</source>
        <translation>&quot;%1&quot; はすでに存在します。上書きしますか?</translation>
    </message>
    <message>
        <source>What it holds now will be lost.</source>
        <translation>現在の内容は失われます。</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>上書き</translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation>転送</translation>
    </message>
    <message>
        <source>Files are being copied. Cancel that and close?</source>
        <translation>ファイルをコピーしています。キャンセルして閉じますか?</translation>
    </message>
    <message>
        <source>What has been copied so far stays.</source>
        <translation>これまでにコピーされたものは残ります。</translation>
    </message>
    <message>
        <source>Cancel and close</source>
        <translation>キャンセルして閉じる</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>続行</translation>
    </message>
</context>
<context>
    <name>FwLogView</name>
    <message>
        <source>All levels</source>
        <translation>すべてのレベル</translation>
    </message>
    <message>
        <source>From info</source>
        <translation>情報以上</translation>
    </message>
    <message>
        <source>From warning</source>
        <translation>警告以上</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>すべてのカテゴリ</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>レベル</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>カテゴリ</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
</context>
<context>
    <name>FwNavigationButton</name>
    <message>
        <source>Previous window</source>
        <translation>前のウィンドウ</translation>
    </message>
    <message>
        <source>Next window</source>
        <translation>次のウィンドウ</translation>
    </message>
</context>
<context>
    <name>HelpBrowser</name>
    <message>
        <source>Only pages on this instrument can be shown here.</source>
        <translation>ここに表示できるのは、この測定器にあるページだけです。</translation>
    </message>
    <message>
        <source>The help page is missing, or can not be read.</source>
        <translation>ヘルプページがないか、読み取れません。</translation>
    </message>
    <message>
        <source>This page can not be shown</source>
        <translation>このページは表示できません</translation>
    </message>
</context>
<context>
    <name>LampSign</name>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Indicator: %1</source>
        <translation>インジケータ: %1</translation>
    </message>
</context>
<context>
    <name>LocalFileCopy</name>
    <message>
        <source>it is no file any more</source>
        <translation>もうファイルではありません</translation>
    </message>
    <message>
        <source>it cannot be read: %1</source>
        <translation>読み取れません: %1</translation>
    </message>
    <message>
        <source>it cannot be written: %1</source>
        <translation>書き込めません: %1</translation>
    </message>
</context>
<context>
    <name>LocalHelperThread</name>
    <message>
        <source>Cancelled.</source>
        <translation>キャンセルされました。</translation>
    </message>
    <message>
        <source>Files are being copied, moved or deleted already.</source>
        <translation>すでにファイルのコピー、移動、または削除が行われています。</translation>
    </message>
    <message>
        <source>There is an entry of that name already.</source>
        <translation>その名前の項目はすでに存在します。</translation>
    </message>
    <message>
        <source>This can&apos;t be done with this folder, or not at this place.</source>
        <translation>このフォルダまたはこの場所では実行できません。</translation>
    </message>
    <message>
        <source>This is neither a file nor a folder nor a link, and can&apos;t be copied.</source>
        <translation>ファイル、フォルダ、リンクのいずれでもないため、コピーできません。</translation>
    </message>
    <message>
        <source>It is in use.</source>
        <translation>使用中です。</translation>
    </message>
    <message>
        <source>Nothing may be changed here.</source>
        <translation>ここでは何も変更できません。</translation>
    </message>
</context>
<context>
    <name>LocalSource</name>
    <message>
        <source>it is not there</source>
        <translation>存在しません</translation>
    </message>
    <message>
        <source>this folder cannot be read</source>
        <translation>このフォルダを読み取れません</translation>
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
        <translation>フォルダ %1 を作成できません: %2</translation>
    </message>
    <message>
        <source>%1 was changed while it was written</source>
        <translation>%1 は書き込み中に変更されました</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>%1 を削除できません: %2</translation>
    </message>
    <message>
        <source>%1 cannot be flushed to the medium: %2</source>
        <translation>%1 をメディアに書き出せません: %2</translation>
    </message>
</context>
<context>
    <name>NameField</name>
    <message>
        <source>File name</source>
        <translation>ファイル名</translation>
    </message>
</context>
<context>
    <name>NumericField</name>
    <message>
        <source>Whole numbers only</source>
        <translation>整数のみ</translation>
    </message>
    <message>
        <source>No negative values</source>
        <translation>負の値は入力できません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no digit here</source>
        <translation>&quot;%1&quot; はここでは使用できません</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>数値を入力してください</translation>
    </message>
    <message>
        <source>Digits after the point: %1 at most</source>
        <translation>小数点以下の桁数: 最大 %1 桁</translation>
    </message>
    <message>
        <source>Not a number in the range</source>
        <translation>範囲内の数値ではありません</translation>
    </message>
    <message>
        <source>The largest value is %1</source>
        <translation>最大値は %1 です</translation>
    </message>
    <message>
        <source>The smallest value is %1</source>
        <translation>最小値は %1 です</translation>
    </message>
</context>
<context>
    <name>NumpadKeys</name>
    <message>
        <source>Without a prefix</source>
        <translation>接頭語なし</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>バックスペース</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>カーソルを左へ</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>カーソルを右へ</translation>
    </message>
    <message>
        <source>Change the sign</source>
        <translation>符号を変更</translation>
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
        <translation>最小値</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大値</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>デフォルト</translation>
    </message>
</context>
<context>
    <name>NumpadPanel</name>
    <message>
        <source>Value: %1</source>
        <translation>値: %1</translation>
    </message>
    <message>
        <source>Range: %1 to %2</source>
        <translation>範囲: %1 ～ %2</translation>
    </message>
    <message>
        <source>Step: %1</source>
        <translation>ステップ: %1</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>入力</translation>
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
        <source>Edit digits</source>
        <translation>桁を編集</translation>
    </message>
    <message>
        <source>Display password</source>
        <translation>パスワードを表示</translation>
    </message>
    <message>
        <source>Disable password protection</source>
        <translation>パスワード保護を無効にする</translation>
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
        <translation>キーパッド</translation>
    </message>
    <message>
        <source>Move keys up</source>
        <translation>キーを上へ移動</translation>
    </message>
    <message>
        <source>Move keys down</source>
        <translation>キーを下へ移動</translation>
    </message>
</context>
<context>
    <name>QvexDialogBorder</name>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>左へ移動</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>右へ移動</translation>
    </message>
</context>
<context>
    <name>QvexFileMover</name>
    <message>
        <source>%1 was not carried: %2</source>
        <translation>%1 は転送されませんでした: %2</translation>
    </message>
    <message>
        <source>%1 was not carried: an unknown exception</source>
        <translation>%1 は転送されませんでした: 不明な例外</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>%1 exists on the instrument</source>
        <translation>%1 は測定器に存在します</translation>
    </message>
    <message>
        <source>the instrument cannot write %1</source>
        <translation>測定器が %1 に書き込めません</translation>
    </message>
    <message>
        <source>the instrument could not store what was sent of %1</source>
        <translation>測定器が送信された %1 のデータを保存できませんでした</translation>
    </message>
    <message>
        <source>the destination has appeared on the instrument meanwhile</source>
        <translation>その間に転送先が測定器上に作成されました</translation>
    </message>
    <message>
        <source>the instrument could not store the file</source>
        <translation>測定器がファイルを保存できませんでした</translation>
    </message>
    <message>
        <source>%1 has shrunk while it was read</source>
        <translation>%1 が読み取り中に小さくなりました</translation>
    </message>
    <message>
        <source>aborted after %1 bytes</source>
        <translation>%1 バイトで中止されました</translation>
    </message>
    <message>
        <source>the instrument cannot read %1</source>
        <translation>測定器が %1 を読み取れません</translation>
    </message>
    <message>
        <source>%1 exists</source>
        <translation>%1 はすでに存在します</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>%1 を削除できません: %2</translation>
    </message>
    <message>
        <source>the folder of %1 cannot be made</source>
        <translation>%1 のフォルダを作成できません</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>the instrument could not read the file to its end</source>
        <translation>測定器がファイルを最後まで読み取れませんでした</translation>
    </message>
</context>
<context>
    <name>QvexMessageBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>デフォルトに戻す</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>すべて保存</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>Yes to All</source>
        <translation>すべてはい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>No to All</source>
        <translation>すべていいえ</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>無視</translation>
    </message>
    <message>
        <source>Hide Details</source>
        <translation>詳細を隠す</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>詳細を表示</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>質問</translation>
    </message>
</context>
<context>
    <name>QvexNumpadDlg</name>
    <message>
        <source>The value stays as it is</source>
        <translation>値は変更されません</translation>
    </message>
    <message>
        <source>%1; or choose a unit</source>
        <translation>%1。または単位を選択してください</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>数値を入力してください</translation>
    </message>
</context>
<context>
    <name>QvexPasswordPopup</name>
    <message>
        <source>Password Protection</source>
        <translation>パスワード保護</translation>
    </message>
    <message>
        <source>Password Does Not Match.
Please Type Correct Password!</source>
        <translation>パスワードが一致しません。
正しいパスワードを入力してください。</translation>
    </message>
</context>
<context>
    <name>QvexRemoteFileModel</name>
    <message>
        <source>It was cancelled.</source>
        <translation>キャンセルされました。</translation>
    </message>
    <message>
        <source>Another operation is still running.</source>
        <translation>別の操作がまだ実行中です。</translation>
    </message>
    <message>
        <source>The link to the instrument was lost; it is not known whether it was done.</source>
        <translation>測定器との接続が失われました。実行されたかどうかは不明です。</translation>
    </message>
    <message>
        <source>Its name can&apos;t be used.</source>
        <translation>その名前は使用できません。</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>測定器</translation>
    </message>
    <message>
        <source>Instrument (%1)</source>
        <translation>測定器 (%1)</translation>
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
        <translation>もう存在しません。</translation>
    </message>
    <message>
        <source>There is no permission for it.</source>
        <translation>権限がありません。</translation>
    </message>
    <message>
        <source>Something of that name is there already.</source>
        <translation>同じ名前のものがすでに存在します。</translation>
    </message>
    <message>
        <source>A folder can&apos;t be put into itself.</source>
        <translation>フォルダをそれ自体の中に入れることはできません。</translation>
    </message>
    <message>
        <source>The instrument&apos;s storage is full.</source>
        <translation>測定器のストレージがいっぱいです。</translation>
    </message>
    <message>
        <source>The instrument reported error %1.</source>
        <translation>測定器がエラー %1 を報告しました。</translation>
    </message>
    <message>
        <source>No folder could be made here: it may be protected.</source>
        <translation>ここにフォルダーを作成できませんでした。保護されている可能性があります。</translation>
    </message>
</context>
<context>
    <name>QvextHelpDialog</name>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>ホーム</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>ヘルプページ</translation>
    </message>
</context>
<context>
    <name>RemoteSource</name>
    <message>
        <source>it is not there</source>
        <translation>存在しません</translation>
    </message>
</context>
<context>
    <name>RemoteTarget</name>
    <message>
        <source>the instrument cannot replace %1</source>
        <translation>測定器が %1 を置き換えられません</translation>
    </message>
    <message>
        <source>%1; the old file may be called %2 now</source>
        <translation>%1。古いファイルの名前が %2 になっている可能性があります</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Close panel</source>
        <translation>パネルを閉じる</translation>
    </message>
</context>
<context>
    <name>SplashLines</name>
    <message>
        <source>Start-up messages</source>
        <translation>起動メッセージ</translation>
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
        <translation>実行中の処理を停止</translation>
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
        <translation>転送の進捗</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Cancel the transfer</source>
        <translation>転送をキャンセル</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>キャンセル中…</translation>
    </message>
</context>
<context>
    <name>TransferView</name>
    <message>
        <source>&quot;%1&quot; can&apos;t be copied into itself.</source>
        <translation>&quot;%1&quot; をそれ自体の中にコピーすることはできません。</translation>
    </message>
    <message>
        <source>Both sides show the same folder.</source>
        <translation>両側に同じフォルダが表示されています。</translation>
    </message>
    <message>
        <source>Copy to the right side</source>
        <translation>右側へコピー</translation>
    </message>
    <message>
        <source>Copy to the left side</source>
        <translation>左側へコピー</translation>
    </message>
    <message>
        <source>To %1:</source>
        <translation>転送先 %1:</translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation>転送</translation>
    </message>
</context>
<context>
    <name>UnitPrefix</name>
    <message>
        <source>Enter a number before the unit</source>
        <translation>単位の前に数値を入力してください</translation>
    </message>
    <message>
        <source>Too many digits for this unit</source>
        <translation>この単位には桁数が多すぎます</translation>
    </message>
</context>
<context>
    <name>VerdictSign</name>
    <message>
        <source>No result</source>
        <translation>結果なし</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>不合格</translation>
    </message>
    <message>
        <source>See results</source>
        <translation>結果を参照</translation>
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
        <translation>%1:%2 にクライアント %3 として登録しました</translation>
    </message>
    <message>
        <source>the controller answers again</source>
        <translation>コントローラが再び応答しています</translation>
    </message>
    <message>
        <source>connecting to %1:%2, attempt %3</source>
        <translation>%1:%2 に接続中、%3 回目の試行</translation>
    </message>
    <message>
        <source>no answer for %1 ms</source>
        <translation>%1 ms の間応答がありません</translation>
    </message>
    <message>
        <source>no longer watched</source>
        <translation>監視を終了しました</translation>
    </message>
</context>
</TS>
