<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>LegendPanel</name>
    <message>
        <source>No map</source>
        <translation>Keine Karte</translation>
    </message>
</context>
<context>
    <name>MapOverlay</name>
    <message>
        <source>N</source>
        <comment>north</comment>
        <translation>N</translation>
    </message>
    <message>
        <source>%1 km</source>
        <translation>%1 km</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>%1 mi</source>
        <translation>%1 mi</translation>
    </message>
    <message>
        <source>%1 ft</source>
        <translation>%1 ft</translation>
    </message>
</context>
<context>
    <name>ProductSelector</name>
    <message>
        <source>Bin %1</source>
        <translation>Beh. %1</translation>
    </message>
    <message>
        <source>Product %1, bin %2</source>
        <translation>Produkt %1, Behälter %2</translation>
    </message>
    <message>
        <source>PRODUCTS</source>
        <translation>PRODUKTE</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>No prescription loaded</source>
        <translation>Keine Applikationskarte geladen</translation>
    </message>
    <message>
        <source>%1 km/h</source>
        <translation>%1 km/h</translation>
    </message>
    <message>
        <source>%1 mph</source>
        <translation>%1 mph</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Steht</translation>
    </message>
    <message>
        <source>Loading %1</source>
        <translation>%1 wird geladen</translation>
    </message>
</context>
<context>
    <name>TerminalWindow</name>
    <message>
        <source>Field terminal</source>
        <translation>Feldterminal</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
</context>
</TS>
