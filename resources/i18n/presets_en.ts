<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>Localizable</name>
    <message>
        <source>Checking the ExifTool version…</source>
        <translation>Checking the ExifTool version…</translation>
    </message>
    <message>
        <source>Decimal degrees</source>
        <translation>Decimal degrees</translation>
    </message>
    <message>
        <source>Degrees and decimal minutes</source>
        <translation>Degrees and decimal minutes</translation>
    </message>
    <message>
        <source>Degrees, minutes and seconds</source>
        <translation>Degrees, minutes and seconds</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Display</translation>
    </message>
    <message>
        <source>ExifTool</source>
        <translation>ExifTool</translation>
    </message>
    <message>
        <source>ExifTool %1 at %2</source>
        <translation>ExifTool %1 at %2</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>File creation date:</source>
        <translation>File creation date:</translation>
    </message>
    <message>
        <source>File modification date:</source>
        <translation>File modification date:</translation>
    </message>
    <message>
        <source>Fix the maker notes offsets while writing (ExifTool -F)</source>
        <translation>Fix the maker notes offsets while writing (ExifTool -F)</translation>
    </message>
    <message>
        <source>GPS coordinates:</source>
        <translation>GPS coordinates:</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Ignore minor errors and warnings (ExifTool -m)</source>
        <translation>Ignore minor errors and warnings (ExifTool -m)</translation>
    </message>
    <message>
        <source>Keep the date the file had</source>
        <translation>Keep the date the file had</translation>
    </message>
    <message>
        <source>Leave the date of the write</source>
        <translation>Leave the date of the write</translation>
    </message>
    <message>
        <source>Linux file systems do not let programs set a file's creation date; this setting applies only where the system allows it.</source>
        <translation>Linux file systems do not let programs set a file's creation date; this setting applies only where the system allows it.</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferences</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferences…</translation>
    </message>
    <message>
        <source>Quit Tagsmith</source>
        <translation>Quit Tagsmith</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Saving</translation>
    </message>
    <message>
        <source>Set to the image's create date</source>
        <translation>Set to the image's create date</translation>
    </message>
    <message>
        <source>Set to the image's modify date</source>
        <translation>Set to the image's modify date</translation>
    </message>
    <message>
        <source>Tagsmith Help</source>
        <translation>Tagsmith Help</translation>
    </message>
    <message>
        <source>Tagsmith Support</source>
        <translation>Tagsmith Support</translation>
    </message>
    <message>
        <source>Tagsmith Web Site</source>
        <translation>Tagsmith Web Site</translation>
    </message>
</context>
</TS>
