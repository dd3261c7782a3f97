<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>FcpAppCORBA</name>
    <message>
        <source>the link to %1 was given up</source>
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
