<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>AppHelpWidget</name>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help page</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppMiniMissionControlWidget</name>
    <message>
        <source>Panel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppMissionControlWidget</name>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open mission control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close mission control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close application</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application controls</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BreadcrumbBar</name>
    <message>
        <source>Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ClientGUIBase</name>
    <message>
        <source>SETUP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TEST</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RESULT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Result File Browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application Selector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applications</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConflictDialog</name>
    <message>
        <source>Do the same with all that follow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File exists</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To be copied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel all</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FcpAppCORBA</name>
    <message>
        <source>the link to %1 was given up</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileActionBar</name>
    <message>
        <source>List anew</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileItemDelegate</name>
    <message>
        <source>New name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileListView</name>
    <message>
        <source>Columns</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>this is not the name of a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its name holds bytes that are no text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name is longer than %1 bytes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileOperations</name>
    <message>
        <source>the instrument</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the medium %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No folder could be made here: it may be protected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be renamed to &quot;%2&quot;: the name may be taken.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Renamed to &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is deleted can&apos;t be brought back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deleting…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a folder and tap Paste to move %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a folder and tap Paste to copy %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moving…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copying…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Making a folder…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Renaming…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FilePane</name>
    <message>
        <source>Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search in this folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Types of files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The instrument can&apos;t be reached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is gone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This folder can&apos;t be listed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing here fits the search.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This folder is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The link to the instrument is lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This entry&apos;s name can&apos;t be used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List only files of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no files of this type here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FilePaths</name>
    <message>
        <source>A name is needed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A name can&apos;t have a &quot;/&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A name can&apos;t have the character %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileQuestions</name>
    <message>
        <source>1 file</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 files</numerusform>
            <numerusform>%1 files</numerusform>
        </translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 folders</source>
        <translation>
            <numerusform>%1 folders</numerusform>
            <numerusform>%1 folders</numerusform>
        </translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not everything was copied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete %1 from %2?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete %1 with everything in it from %2?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete %1 with everything in them from %2?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 copied (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 skipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 not tried</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileTransfer</name>
    <message>
        <source>it is no file any more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it was changed while it was read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bytes came of a file of %2 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no room left: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no link to the instrument</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the instrument cannot list %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; it is unknown whether the instrument still did its last step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (the instrument answers %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the instrument cannot give a file of %1 the name %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the instrument cannot remove %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the instrument cannot make a folder in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is not the path of a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it cannot be carried into itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the folders are nested too deeply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the folder %1 is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 are needed, and %2 are free in %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a file at the target has the name of this folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; what may be left as %2 is removed when the file is carried again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a folder at the target has the name of this file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FwButtonTabWidget</name>
    <message>
        <source>Previous tabs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More tabs</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FwLoadSaveDialog</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transfer files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing can be saved here now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a folder with the name &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already. Overwrite it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What it holds now will be lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files are being copied. Cancel that and close?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What has been copied so far stays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel and close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go on</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FwLogView</name>
    <message>
        <source>All levels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All categories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FwNavigationButton</name>
    <message>
        <source>Previous window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next window</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpBrowser</name>
    <message>
        <source>Only pages on this instrument can be shown here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The help page is missing, or can not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This page can not be shown</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LampSign</name>
    <message>
        <source>On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Indicator: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LocalFileCopy</name>
    <message>
        <source>it is no file any more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it cannot be written: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LocalHelperThread</name>
    <message>
        <source>Cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files are being copied, moved or deleted already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is an entry of that name already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This can&apos;t be done with this folder, or not at this place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is neither a file nor a folder nor a link, and can&apos;t be copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is in use.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing may be changed here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LocalSource</name>
    <message>
        <source>it is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this folder cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LocalTarget</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the folder %1 cannot be made: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was changed while it was written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be flushed to the medium: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NameField</name>
    <message>
        <source>File name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NumericField</name>
    <message>
        <source>Whole numbers only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No negative values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no digit here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Digits after the point: %1 at most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not a number in the range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The largest value is %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The smallest value is %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NumpadKeys</name>
    <message>
        <source>Without a prefix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the sign</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decimal point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NumpadPanel</name>
    <message>
        <source>Value: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Range: %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit digits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable password protection</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QLrudDialog</name>
    <message>
        <source>Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keypad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move keys up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move keys down</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QvexDialogBorder</name>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move right</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QvexFileMover</name>
    <message>
        <source>%1 was not carried: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not carried: an unknown exception</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 exists on the instrument</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the instrument cannot write %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the instrument could not store what was sent of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the destination has appeared on the instrument meanwhile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the instrument could not store the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has shrunk while it was read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>aborted after %1 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the instrument cannot read %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 exists</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the folder of %1 cannot be made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the instrument could not read the file to its end</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QvexMessageBox</name>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes to All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No to All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abort</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Retry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Question</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QvexNumpadDlg</name>
    <message>
        <source>The value stays as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; or choose a unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QvexPasswordPopup</name>
    <message>
        <source>Password Protection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password Does Not Match.
Please Type Correct Password!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QvexRemoteFileModel</name>
    <message>
        <source>It was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another operation is still running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The link to the instrument was lost; it is not known whether it was done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its name can&apos;t be used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Instrument (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remote</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is not there any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no permission for it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Something of that name is there already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A folder can&apos;t be put into itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The instrument&apos;s storage is full.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The instrument reported error %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No folder could be made here: it may be protected.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QvextHelpDialog</name>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Home</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help page</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RemoteSource</name>
    <message>
        <source>it is not there</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RemoteTarget</name>
    <message>
        <source>the instrument cannot replace %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; the old file may be called %2 now</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Close panel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SplashLines</name>
    <message>
        <source>Start-up messages</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatusStrip</name>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop what is under way</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TransferPanel</name>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress of the transfer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel the transfer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TransferView</name>
    <message>
        <source>&quot;%1&quot; can&apos;t be copied into itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Both sides show the same folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy to the right side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy to the left side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To %1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UnitPrefix</name>
    <message>
        <source>Enter a number before the unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too many digits for this unit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VerdictSign</name>
    <message>
        <source>No result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>subject and verdict</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VexLinkSupervisor</name>
    <message>
        <source>registered with %1:%2 as client %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the controller answers again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>connecting to %1:%2, attempt %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no answer for %1 ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no longer watched</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
