<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>DbGroupQmlUnitsConverter</name>
    <message>
        <source>k/ac</source>
        <comment>count per area: 1000/acre</comment>
        <translation>k/ac</translation>
    </message>
    <message>
        <source>k/ha</source>
        <comment>count per area: 1000/hectare</comment>
        <translation>k/ha</translation>
    </message>
    <message>
        <source>k/tu</source>
        <comment>count per area: 1000/turf</comment>
        <translation>k/tu</translation>
    </message>
    <message>
        <source>fl oz/gal</source>
        <comment>fluid ounces/galon</comment>
        <translation>fl oz/gal</translation>
    </message>
    <message>
        <source>L/L</source>
        <comment>liter/liter</comment>
        <translation>L/L</translation>
    </message>
    <message>
        <source>fl oz/ac</source>
        <comment>fluid ounce/acre</comment>
        <translation>fl oz/ac</translation>
    </message>
    <message>
        <source>mL/ha</source>
        <comment>milliliter/hectare</comment>
        <translation>mL/ha</translation>
    </message>
    <message>
        <source>fl oz/tu</source>
        <comment>fluid ounce/turf</comment>
        <translation>fl oz/tu</translation>
    </message>
    <message>
        <source>gal/ac</source>
        <comment>gallons/acre</comment>
        <translation>gal/ac</translation>
    </message>
    <message>
        <source>L/ha</source>
        <comment>liter/hectare</comment>
        <translation>L/ha</translation>
    </message>
    <message>
        <source>gal/tu</source>
        <comment>gallons/turf</comment>
        <translation>gal/tu</translation>
    </message>
    <message>
        <source>lb/ac</source>
        <comment>pound/acre</comment>
        <translation>lb/ac</translation>
    </message>
    <message>
        <source>kg/ha</source>
        <comment>kilogram/hectare</comment>
        <translation>kg/ha</translation>
    </message>
    <message>
        <source>lb/tu</source>
        <comment>pound/turf</comment>
        <translation>lb/tu</translation>
    </message>
    <message>
        <source>psi</source>
        <comment>unit of pressure: pound-force per square inch</comment>
        <translation>psi</translation>
    </message>
    <message>
        <source>kPa</source>
        <comment>unit of pressure: kilopascals</comment>
        <translation>kPa</translation>
    </message>
    <message>
        <source>bar</source>
        <comment>metric unit of pressure</comment>
        <translation>bar</translation>
    </message>
    <message>
        <source>inHg</source>
        <comment>unit of pressure: inch of mercury</comment>
        <translation>inHg</translation>
    </message>
    <message>
        <source>mmHg</source>
        <comment>unit of pressure: millemeter of mercury</comment>
        <translation>mmHg</translation>
    </message>
    <message>
        <source>atm</source>
        <comment>unit of pressure: atmosphere</comment>
        <translation>atm</translation>
    </message>
    <message>
        <source>hPa</source>
        <comment>unit of pressure: hectopascal</comment>
        <translation>hPa</translation>
    </message>
</context>
<context>
    <name>RxMapGraphicsList</name>
    <message>
        <source>Rx Rate: </source>
        <translation>Sollmenge: </translation>
    </message>
</context>
<context>
    <name>RxMapWidget</name>
    <message>
        <source>Product Control</source>
        <translation>Produktsteuerung</translation>
    </message>
    <message>
        <source>Rx Map Settings</source>
        <translation>Einstellungen Applikationskarte</translation>
    </message>
</context>
<context>
    <name>RxMapWidgetDialog01</name>
    <message>
        <source>Rx Map Settings</source>
        <translation>Einstellungen Applikationskarte</translation>
    </message>
    <message>
        <source>Enable Zero Rate Shutoff</source>
        <translation>Nullmengenabschaltung</translation>
    </message>
    <message>
        <source>Apply to all products</source>
        <translation>Auf alle Produkte anwenden</translation>
    </message>
    <message>
        <source>On look-ahead (seconds)</source>
        <translation>Vorausschauzeit Ein (s)</translation>
    </message>
    <message>
        <source>This product node is not under VRA control.</source>
        <translation>Dieser Produktknoten wird nicht per VRA gesteuert.</translation>
    </message>
    <message>
        <source>Changes not permitted while vehicle is moving.</source>
        <translation>Änderungen sind während der Fahrt nicht zulässig.</translation>
    </message>
    <message>
        <source>P</source>
        <translation>P</translation>
    </message>
    <message>
        <source>P
R
O
D
U
C
T
S</source>
        <translation>P
R
O
D
U
K
T
E</translation>
    </message>
    <message>
        <source>Default Rate</source>
        <translation>Vorgabe</translation>
    </message>
</context>
<context>
    <name>UiPluginRxMap</name>
    <message>
        <source>Single VRA</source>
        <translation>Einzel-VRA</translation>
    </message>
    <message>
        <source>Multi VRA</source>
        <translation>Mehrfach-VRA</translation>
    </message>
</context>
</TS>
