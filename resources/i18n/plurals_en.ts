<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<!-- The English plural forms of every text that counts with %n; installed as a translator at
     start, so QCoreApplication::translate(context, text, nullptr, n) says "1 file", "2 files". -->
<context>
    <name>Localizable</name>
    <message numerus="yes">
        <source>reading it took longer than %n second(s)</source>
        <translation>
            <numerusform>reading it took longer than %n second</numerusform>
            <numerusform>reading it took longer than %n seconds</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file “%1” had %n other name(s) (hard links); they keep the content it had before this save.</source>
        <translation>
            <numerusform>The file “%1” had another name (a hard link); it keeps the content the file had before this save.</numerusform>
            <numerusform>The file “%1” had %n other names (hard links); they keep the content it had before this save.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExifRunnerSaveOperation</name>
    <message numerus="yes">
        <source>The value "%1" of %2 is longer than IPTC allows (at most %n byte(s)), so the file was not changed.</source>
        <translation>
            <numerusform>The value "%1" of %2 is longer than IPTC allows (at most %n byte), so the file was not changed.</numerusform>
            <numerusform>The value "%1" of %2 is longer than IPTC allows (at most %n bytes), so the file was not changed.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileOperations</name>
    <message numerus="yes">
        <source>All metadata cannot be removed from the %n selected file(s) without making them unreadable (camera raw files need their tags).</source>
        <translation>
            <numerusform>All metadata cannot be removed from the selected file without making it unreadable (camera raw files need their tags).</numerusform>
            <numerusform>All metadata cannot be removed from the %n selected files without making them unreadable (camera raw files need their tags).</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n other selected file(s) cannot lose all metadata and stay as they are.</source>
        <translation>
            <numerusform>%n other selected file cannot lose all metadata and stays as it is.</numerusform>
            <numerusform>%n other selected files cannot lose all metadata and stay as they are.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove all metadata from %n file(s)?</source>
        <translation>
            <numerusform>Remove all metadata from %n file?</numerusform>
            <numerusform>Remove all metadata from %n files?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileListPresenter</name>
    <message numerus="yes">
        <source>Remove %n file(s) with unsaved changes from the list?</source>
        <translation>
            <numerusform>Remove %n file with unsaved changes from the list?</numerusform>
            <numerusform>Remove %n files with unsaved changes from the list?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MapWindow</name>
    <message numerus="yes">
        <source>Remove the pin from %n file(s)?</source>
        <translation>
            <numerusform>Remove the pin from %n file?</numerusform>
            <numerusform>Remove the pin from %n files?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PasteMetadataDialog</name>
    <message numerus="yes">
        <source>Paste the values copied from “%1” into %n file(s):</source>
        <translation>
            <numerusform>Paste the values copied from “%1” into %n file:</numerusform>
            <numerusform>Paste the values copied from “%1” into %n files:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TextEditor</name>
    <message numerus="yes">
        <source>%n other language(s)</source>
        <translation>
            <numerusform>%n other language</numerusform>
            <numerusform>%n other languages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) left</source>
        <translation>
            <numerusform>%n byte left</numerusform>
            <numerusform>%n bytes left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) too many</source>
        <translation>
            <numerusform>%n byte too many</numerusform>
            <numerusform>%n bytes too many</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FieldEditor</name>
    <message numerus="yes">
        <source>In %n of the selected files the copies of this field differ. In %1:</source>
        <translation>
            <numerusform>In %n of the selected files the copies of this field differ. In %1:</numerusform>
            <numerusform>In %n of the selected files the copies of this field differ. In %1:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>GeotagDialog</name>
    <message numerus="yes">
        <source>%n photo(s) recorded the camera's time zone (OffsetTimeOriginal); it is used for them.</source>
        <translation>
            <numerusform>%n photo recorded the camera's time zone (OffsetTimeOriginal); it is used for it.</numerusform>
            <numerusform>%n photos recorded the camera's time zone (OffsetTimeOriginal); it is used for them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) carry no time zone: they are matched in the zone chosen here.</source>
        <translation>
            <numerusform>%n photo carries no time zone: it is matched in the zone chosen here.</numerusform>
            <numerusform>%n photos carry no time zone: they are matched in the zone chosen here.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PresetsWindow</name>
    <message numerus="yes">
        <source>%1 (removes %n tag(s))</source>
        <translation>
            <numerusform>%1 (removes %n tag)</numerusform>
            <numerusform>%1 (removes %n tags)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ResultsModel</name>
    <message numerus="yes">
        <source>There are %n error(s) and %1</source>
        <translation>
            <numerusform>There is %n error and %1</numerusform>
            <numerusform>There are %n errors and %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warning(s)</source>
        <translation>
            <numerusform>%n warning</numerusform>
            <numerusform>%n warnings</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are %n error(s)</source>
        <translation>
            <numerusform>There is %n error</numerusform>
            <numerusform>There are %n errors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There are %n warning(s)</source>
        <translation>
            <numerusform>There is %n warning</numerusform>
            <numerusform>There are %n warnings</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReviewChangesModel</name>
    <message numerus="yes">
        <source>Longer than IPTC allows (at most %n byte(s)): the save will not write this file until it is shortened.</source>
        <translation>
            <numerusform>Longer than IPTC allows (at most %n byte): the save will not write this file until it is shortened.</numerusform>
            <numerusform>Longer than IPTC allows (at most %n bytes): the save will not write this file until it is shortened.</numerusform>
        </translation>
    </message>
</context>
</TS>
