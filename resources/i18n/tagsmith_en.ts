<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>Localizable</name>
    <message>
        <source>Tagsmith</source>
        <translation>Tagsmith</translation>
    </message>
</context>
</TS>
