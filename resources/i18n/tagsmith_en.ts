<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>Localizable</name>
    <message>
        <source>Tagsmith</source>
        <translation>Tagsmith</translation>
    </message>
    <message>
        <source>No errors or warnings</source>
        <translation>No errors or warnings</translation>
    </message>
    <message>
        <source>No errors</source>
        <translation>No errors</translation>
    </message>
    <message>
        <source>There are %i error(s) and %i warning(s)</source>
        <translation>There are %i error(s) and %i warning(s)</translation>
    </message>
    <message>
        <source>There are %i error(s)</source>
        <translation>There are %i error(s)</translation>
    </message>
    <message>
        <source>There are %i warning(s)</source>
        <translation>There are %i warning(s)</translation>
    </message>
    <message>
        <source>Cannot save the file %@. See details bellow for more detailed information.</source>
        <translation>Cannot save the file %@. See details bellow for more detailed information.</translation>
    </message>
    <message>
        <source>[minor] </source>
        <translation>[minor] </translation>
    </message>
    <message>
        <source>Processing %@</source>
        <translation>Processing %@</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Results</translation>
    </message>
</context>
</TS>
