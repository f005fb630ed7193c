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
        <source>Cannot save the file %@. See details below for more detailed information.</source>
        <translation>Cannot save the file %@. See details below for more detailed information.</translation>
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
    <message>
        <source>Multiple values</source>
        <translation>Multiple values</translation>
    </message>
    <message>
        <source>Unexpected value: %@</source>
        <translation>Unexpected value: %@</translation>
    </message>
    <message>
        <source>GPS_LONGITUDE_FORMAT_DESC:</source>
        <translation>The longitude is not valid. Type it as degrees, minutes and seconds (151°12'33.48"E), degrees and decimal minutes (151°12.558'E) or decimal degrees (151.2093 or +151.2093 for east, -151.2093 for west).</translation>
    </message>
    <message>
        <source>GPS_LATITUDE_FORMAT_DESC</source>
        <translation>The latitude is not valid. Type it as degrees, minutes and seconds (33°52'7.68"S), degrees and decimal minutes (33°52.128'S) or decimal degrees (33.8688 or +33.8688 for north, -33.8688 for south).</translation>
    </message>
    <message>
        <source>Empty Date Value:</source>
        <translation>Empty Date Value:</translation>
    </message>
    <message>
        <source>New Time:</source>
        <translation>New Time:</translation>
    </message>
    <message>
        <source>Time Offset:</source>
        <translation>Time Offset:</translation>
    </message>
    <message>
        <source>Original Time:</source>
        <translation>Original Time:</translation>
    </message>
    <message>
        <source>Click to change the time</source>
        <translation>Click to change the time</translation>
    </message>
    <message>
        <source>Click to change the date</source>
        <translation>Click to change the date</translation>
    </message>
    <message>
        <source>Multiple values. Click to edit</source>
        <translation>Multiple values. Click to edit</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/A</translation>
    </message>
    <message>
        <source>Date/Time Editor</source>
        <translation>Date/Time Editor</translation>
    </message>
    <message>
        <source>Date/Time Configuration</source>
        <translation>Date/Time Configuration</translation>
    </message>
</context>
</TS>
