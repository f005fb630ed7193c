<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>Localizable</name>
    <message>
        <source>SAVE_FAILED_DLG_MSG</source>
        <translation>Some files could not be saved.</translation>
    </message>
    <message>
        <source>SAVE_FAILED_DLG_INFO</source>
        <translation>Their changes are not on disk. The results window lists what went wrong for each file.</translation>
    </message>
    <message>
        <source>REMOVE_ALL_METADATA_WARNING2</source>
        <translation>All tags will be removed immediately. TIFF and Photoshop files keep their image data in tags of their own, which are kept; everything else goes.</translation>
    </message>
    <message>
        <source>dialog.fix-maker.title</source>
        <translation>Repair the maker notes of the selected files?</translation>
    </message>
    <message>
        <source>dialog.fix-maker.ok-button</source>
        <translation>Repair Maker Notes</translation>
    </message>
    <message>
        <source>dialog.fix-maker.cancel-button</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>dialog.fix-maker.into-text</source>
        <translation>The maker notes of these files cannot be read. Repairing rewrites them so that they can be read again; values that cannot be recovered are removed.</translation>
    </message>
    <message>
        <source>The files could not be read.</source>
        <translation>The files could not be read.</translation>
    </message>
</context>
</TS>
