<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>CustomFields</name>
    <message>
        <source>IFD0:Make</source>
        <translation>Camera Make</translation>
    </message>
    <message>
        <source>IFD0:Model</source>
        <translation>Camera Model</translation>
    </message>
    <message>
        <source>ExifIFD:FNumber</source>
        <translation>Aperture (f-number)</translation>
    </message>
    <message>
        <source>ExifIFD:ISO</source>
        <translation>ISO Speed</translation>
    </message>
    <message>
        <source>ExifIFD:DateTimeOriginal</source>
        <translation>Date Taken</translation>
    </message>
    <message>
        <source>ExifIFD:CreateDate</source>
        <translation>Date Digitized</translation>
    </message>
    <message>
        <source>IFD0:ModifyDate</source>
        <translation>Date Modified</translation>
    </message>
    <message>
        <source>GPS:GPSLatitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>GPS:GPSLongitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>GPS:GPSAltitude</source>
        <translation>Altitude (m)</translation>
    </message>
    <message>
        <source>XMP-dc:Description</source>
        <translation>Caption</translation>
    </message>
    <message>
        <source>IPTC:Caption-Abstract</source>
        <translation>Caption (IPTC)</translation>
    </message>
    <message>
        <source>XMP-dc:Subject</source>
        <translation>Keywords</translation>
    </message>
</context>
</TS>
