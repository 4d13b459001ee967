<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>BackendText</name>
    <message>
        <source>the polygons&apos; edges cross each other more than %1 times; overlaps and gaps are not told one by one</source>
        <translation>die Kanten der Flächen kreuzen sich mehr als %1-mal; Überlappungen und Lücken werden nicht einzeln genannt</translation>
    </message>
    <message>
        <source>no polygon covers %1 inside the field (%2 m wide)</source>
        <translation>keine Fläche bedeckt %1 im Feld (%2 m breit)</translation>
    </message>
    <message>
        <source>, beside %1</source>
        <translation>, angrenzend an %1</translation>
    </message>
    <message>
        <source>parts of %1 overlap on %2</source>
        <translation>Teile von %1 überlappen sich auf %2</translation>
    </message>
    <message>
        <source>%1 have the same shape, %2</source>
        <translation>%1 haben dieselbe Form, %2</translation>
    </message>
    <message>
        <source>%1 overlap on %2</source>
        <translation>%1 überlappen sich auf %2</translation>
    </message>
    <message>
        <source>overlaps</source>
        <translation>Überlappungen</translation>
    </message>
    <message>
        <source>gaps</source>
        <translation>Lücken</translation>
    </message>
    <message>
        <source>slivers</source>
        <translation>Splitter</translation>
    </message>
    <message>
        <source>narrow polygons</source>
        <translation>schmale Flächen</translation>
    </message>
    <message>
        <source>rates far from the rest</source>
        <translation>Mengen weit ab von den übrigen</translation>
    </message>
    <message>
        <source>polygons of the same shape</source>
        <translation>Flächen derselben Form</translation>
    </message>
    <message>
        <source>findings of this kind</source>
        <translation>Befunde dieser Art</translation>
    </message>
    <message>
        <source>%1 more %2</source>
        <translation>%1 weitere: %2</translation>
    </message>
    <message>
        <source>, %1 m2 in all</source>
        <translation>, zusammen %1 m2</translation>
    </message>
    <message>
        <source>record %1</source>
        <translation>Datensatz %1</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>records %1 and %2</source>
        <translation>Datensätze %1 und %2</translation>
    </message>
    <message>
        <source>record %1 is only %2 m wide</source>
        <translation>Datensatz %1 ist nur %2 m breit</translation>
    </message>
    <message>
        <source>%1 is %2 m wide, narrower than the machine (%3 m)</source>
        <translation>%1: %2 m breit, schmaler als die Maschine (%3 m)</translation>
    </message>
    <message>
        <source>%1 have the same rate and are %2 m wide together, narrower than the machine (%3 m)</source>
        <translation>%1 haben dieselbe Menge und sind zusammen %2 m breit, schmaler als die Maschine (%3 m)</translation>
    </message>
    <message>
        <source>%1 areas of one rate are narrower than the machine (%2 m), the narrowest %3 m (%4)</source>
        <translation>%1 Bereiche einer Menge sind schmaler als die Maschine (%2 m), der schmalste %3 m (%4)</translation>
    </message>
    <message>
        <source>%1 in column &quot;%2&quot; (%3) is far from the other rates, %4 to %5</source>
        <translation>%1 in Spalte „%2“ (%3) liegt weit ab von den übrigen Mengen, %4 bis %5</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; looks like totals, not rates: its numbers grow with the area of the polygons</source>
        <translation>Spalte „%1“ sieht nach Summen statt Mengen je Fläche aus: ihre Zahlen wachsen mit der Größe der Flächen</translation>
    </message>
    <message>
        <source>its coordinates are no longitudes and latitudes</source>
        <translation>ihre Koordinaten sind keine Längen und Breiten</translation>
    </message>
    <message>
        <source>, and its coordinates are no longitudes and latitudes</source>
        <translation>, und ihre Koordinaten sind keine Längen und Breiten</translation>
    </message>
    <message>
        <source>its coordinate system &quot;%1&quot; cannot be projected there</source>
        <translation>ihr Koordinatensystem „%1“ lässt sich dort nicht umrechnen</translation>
    </message>
    <message>
        <source>extends over %1 km; no field does</source>
        <translation>erstreckt sich über %1 km; so groß ist kein Feld</translation>
    </message>
    <message>
        <source>its coordinate system &quot;%1&quot; cannot be projected</source>
        <translation>ihr Koordinatensystem „%1“ lässt sich nicht umrechnen</translation>
    </message>
    <message>
        <source>record </source>
        <translation>Datensatz </translation>
    </message>
    <message>
        <source>records </source>
        <translation>Datensätze </translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> und %1 weitere</translation>
    </message>
    <message>
        <source>loading was given up</source>
        <translation>das Laden wurde aufgegeben</translation>
    </message>
    <message>
        <source>cannot be checked, there is not enough memory</source>
        <translation>kann nicht geprüft werden, der Speicher reicht nicht</translation>
    </message>
    <message>
        <source>cannot be checked: %1</source>
        <translation>kann nicht geprüft werden: %1</translation>
    </message>
    <message>
        <source>loading was cancelled</source>
        <translation>das Laden wurde abgebrochen</translation>
    </message>
    <message>
        <source>the group name &quot;%1&quot; is taken</source>
        <translation>der Gruppenname „%1“ ist vergeben</translation>
    </message>
    <message>
        <source>record %1 was left out, its rings cross each other or themselves more than %2 times</source>
        <translation>Datensatz %1 wurde ausgelassen, seine Ringe kreuzen einander oder sich selbst mehr als %2-mal</translation>
    </message>
    <message>
        <source>cannot be loaded: %1</source>
        <translation>kann nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>holds points or lines, not polygons</source>
        <translation>enthält Punkte oder Linien, keine Flächen</translation>
    </message>
    <message>
        <source>holds no polygon</source>
        <translation>enthält keine Fläche</translation>
    </message>
    <message>
        <source>holds no polygon with finite coordinates</source>
        <translation>enthält keine Fläche mit endlichen Koordinaten</translation>
    </message>
    <message>
        <source>polygon that lies more than 100 km from the others was left out</source>
        <translation>Fläche, die mehr als 100 km von den übrigen liegt, wurde ausgelassen</translation>
    </message>
    <message>
        <source>polygons that lie more than 100 km from the others were left out</source>
        <translation>Flächen, die mehr als 100 km von den übrigen liegen, wurden ausgelassen</translation>
    </message>
    <message>
        <source>; taken as WGS 84</source>
        <translation>; als WGS 84 angenommen</translation>
    </message>
    <message>
        <source>lies %1 km from what is loaded and gets a plane of its own</source>
        <translation>liegt %1 km von dem, was geladen ist, und bekommt eine eigene Ebene</translation>
    </message>
    <message>
        <source>ring that encloses nothing was left out</source>
        <translation>Ring, der nichts umschließt, wurde ausgelassen</translation>
    </message>
    <message>
        <source>rings that enclose nothing were left out</source>
        <translation>Ringe, die nichts umschließen, wurden ausgelassen</translation>
    </message>
    <message>
        <source>hole lies in no polygon and was left out</source>
        <translation>Loch liegt in keiner Fläche und wurde ausgelassen</translation>
    </message>
    <message>
        <source>holes lie in no polygon and were left out</source>
        <translation>Löcher liegen in keiner Fläche und wurden ausgelassen</translation>
    </message>
    <message>
        <source>polygon had to be repaired</source>
        <translation>Fläche musste repariert werden</translation>
    </message>
    <message>
        <source>polygons had to be repaired</source>
        <translation>Flächen mussten repariert werden</translation>
    </message>
    <message>
        <source>holds no polygon that encloses anything</source>
        <translation>enthält keine Fläche, die etwas umschließt</translation>
    </message>
    <message>
        <source>record has no rate in column &quot;%1&quot;</source>
        <translation>Datensatz hat keine Menge in Spalte „%1“</translation>
    </message>
    <message>
        <source>records have no rate in column &quot;%1&quot;</source>
        <translation>Datensätze haben keine Menge in Spalte „%1“</translation>
    </message>
    <message>
        <source>polygon is hidden under a later one of the same shape</source>
        <translation>Fläche liegt unter einer späteren derselben Form verborgen</translation>
    </message>
    <message>
        <source>polygons are hidden under later ones of the same shape</source>
        <translation>Flächen liegen unter späteren derselben Form verborgen</translation>
    </message>
    <message>
        <source>no polygon has a rate</source>
        <translation>keine Fläche hat eine Menge</translation>
    </message>
    <message>
        <source>hole cannot be drawn as one</source>
        <translation>Loch kann nicht als solches gezeichnet werden</translation>
    </message>
    <message>
        <source>holes cannot be drawn as such</source>
        <translation>Löcher können nicht als solche gezeichnet werden</translation>
    </message>
    <message>
        <source>record without geometry was skipped</source>
        <translation>Datensatz ohne Geometrie wurde übergangen</translation>
    </message>
    <message>
        <source>records without geometry were skipped</source>
        <translation>Datensätze ohne Geometrie wurden übergangen</translation>
    </message>
    <message>
        <source>record that is no polygon was skipped</source>
        <translation>Datensatz, der keine Fläche ist, wurde übergangen</translation>
    </message>
    <message>
        <source>records that are no polygons were skipped</source>
        <translation>Datensätze, die keine Flächen sind, wurden übergangen</translation>
    </message>
    <message>
        <source>record with a coordinate that is not finite was skipped</source>
        <translation>Datensatz mit einer nicht endlichen Koordinate wurde übergangen</translation>
    </message>
    <message>
        <source>records with a coordinate that is not finite were skipped</source>
        <translation>Datensätze mit einer nicht endlichen Koordinate wurden übergangen</translation>
    </message>
    <message>
        <source>record without a rate was skipped</source>
        <translation>Datensatz ohne Menge wurde übergangen</translation>
    </message>
    <message>
        <source>records without a rate were skipped</source>
        <translation>Datensätze ohne Menge wurden übergangen</translation>
    </message>
    <message>
        <source>%1 entry of column &quot;%2&quot; is no rate and was left out</source>
        <translation>%1 Eintrag der Spalte „%2“ ist keine Menge und wurde ausgelassen</translation>
    </message>
    <message>
        <source>%1 entries of column &quot;%2&quot; are no rates and were left out</source>
        <translation>%1 Einträge der Spalte „%2“ sind keine Mengen und wurden ausgelassen</translation>
    </message>
    <message>
        <source>the comma in &quot;%1&quot; of column &quot;%2&quot; is taken to set off decimals</source>
        <translation>das Komma in „%1“ der Spalte „%2“ wird als Dezimalkomma gelesen</translation>
    </message>
    <message>
        <source>there is no product to load it for</source>
        <translation>es gibt kein Produkt, für das sie geladen werden könnte</translation>
    </message>
    <message>
        <source>the unit of column &quot;%1&quot; is %2 by its entries, which count, but %3 by its name</source>
        <translation>die Einheit der Spalte „%1“ ist laut ihren Einträgen %2, was gilt, laut ihrem Namen aber %3</translation>
    </message>
    <message>
        <source>the unit of column &quot;%1&quot; is %2 by column &quot;%3&quot;, which counts, but %4 by its entries</source>
        <translation>die Einheit der Spalte „%1“ ist laut Spalte „%3“ %2, was gilt, laut ihren Einträgen aber %4</translation>
    </message>
    <message>
        <source>the unit of column &quot;%1&quot; is %2 by column &quot;%3&quot;, which counts, but %4 by its name</source>
        <translation>die Einheit der Spalte „%1“ ist laut Spalte „%3“ %2, was gilt, laut ihrem Namen aber %4</translation>
    </message>
    <message>
        <source>%1 columns are named, but the machine has %2 products</source>
        <translation>%1 Spalten sind genannt, die Maschine hat aber %2 Produkte</translation>
    </message>
    <message>
        <source>no column is named for any product</source>
        <translation>für kein Produkt ist eine Spalte genannt</translation>
    </message>
    <message>
        <source>%1 units are named, but the machine has %2 products</source>
        <translation>%1 Einheiten sind genannt, die Maschine hat aber %2 Produkte</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no unit of a rate</source>
        <translation>„%1“ ist keine Einheit einer Menge je Fläche</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; is left out, product %2 (%3) takes no prescription</source>
        <translation>Spalte „%1“ wird ausgelassen, Produkt %2 (%3) folgt keiner Karte</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; holds no rates</source>
        <translation>Spalte „%1“ enthält keine Mengen</translation>
    </message>
    <message>
        <source>no product that a prescription may drive fits the unit of %1</source>
        <translation>kein Produkt, das einer Karte folgen darf, passt zur Einheit von %1</translation>
    </message>
    <message>
        <source>column %1 feeds no product</source>
        <translation>Spalte %1 speist kein Produkt</translation>
    </message>
    <message>
        <source>columns %1 feed no product</source>
        <translation>die Spalten %1 speisen kein Produkt</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; is a guess: nothing in its name says that it holds rates</source>
        <translation>Spalte „%1“ ist geraten: nichts an ihrem Namen sagt, dass sie Mengen enthält</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; is called a total, and its numbers are taken as rates</source>
        <translation>Spalte „%1“ heißt wie eine Summe, und ihre Zahlen werden als Mengen je Fläche genommen</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; gives different units (&quot;%2&quot;, &quot;%3&quot;) and is not used for column &quot;%4&quot;</source>
        <translation>Spalte „%1“ nennt verschiedene Einheiten („%2“, „%3“) und gilt nicht für Spalte „%4“</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, given for column &quot;%2&quot;, is no unit of a rate</source>
        <translation>„%1“, angegeben für Spalte „%2“, ist keine Einheit einer Menge je Fläche</translation>
    </message>
    <message>
        <source>the unit of column &quot;%1&quot; is not known, taken as %2</source>
        <translation>die Einheit der Spalte „%1“ ist nicht bekannt, angenommen wird %2</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; is in %2, which does not fit product %3 (%4); taken as %5</source>
        <translation>Spalte „%1“ ist in %2, was nicht zu Produkt %3 (%4) passt; angenommen wird %5</translation>
    </message>
    <message>
        <source>no column &quot;%1&quot; in %2</source>
        <translation>keine Spalte „%1“ in %2</translation>
    </message>
    <message>
        <source>holds no rates: no record has one in %1</source>
        <translation>enthält keine Mengen: kein Datensatz hat eine in %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>has no column that looks like a rate; name one (its columns: %1)</source>
        <translation>hat keine Spalte, die nach einer Menge je Fläche aussieht; nennen Sie eine (ihre Spalten: %1)</translation>
    </message>
    <message>
        <source>holds no polygons</source>
        <translation>enthält keine Flächen</translation>
    </message>
    <message>
        <source>holds no records</source>
        <translation>enthält keine Datensätze</translation>
    </message>
    <message>
        <source>has no column &quot;%1&quot;</source>
        <translation>hat keine Spalte „%1“</translation>
    </message>
    <message>
        <source>has no column that looks like a rate</source>
        <translation>hat keine Spalte, die nach einer Menge je Fläche aussieht</translation>
    </message>
    <message>
        <source>has no layer &quot;%1&quot; with polygons; it has %2</source>
        <translation>hat keine Ebene „%1“ mit Flächen; vorhanden: %2</translation>
    </message>
    <message>
        <source>holds no layer</source>
        <translation>enthält keine Ebene</translation>
    </message>
    <message>
        <source>none of its layers will do: </source>
        <translation>keine ihrer Ebenen ist geeignet: </translation>
    </message>
    <message>
        <source>of its layers %1 is loaded, not %2</source>
        <translation>von ihren Ebenen wird %1 geladen, nicht %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it has more than %2 MB</source>
        <translation>„%1“ darin hat mehr als %2 MB</translation>
    </message>
    <message>
        <source> in &quot;%1&quot;</source>
        <translation> in „%1“</translation>
    </message>
    <message>
        <source>is an archive that holds no prescription%1</source>
        <translation>ist ein Archiv, das keine Applikationskarte enthält%1</translation>
    </message>
    <message>
        <source>is an archive that holds several prescriptions%1: %2; open one by its path, such as &quot;%3&quot;</source>
        <translation>ist ein Archiv mit mehreren Applikationskarten%1: %2; öffnen Sie eine mit ihrem Pfad, etwa &quot;%3&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it cannot be unpacked: %2</source>
        <translation>„%1“ darin kann nicht entpackt werden: %2</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>is a folder, not a file</source>
        <translation>ist ein Ordner, keine Datei</translation>
    </message>
    <message>
        <source>is no plain file</source>
        <translation>ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>cannot be unpacked: %1</source>
        <translation>kann nicht entpackt werden: %1</translation>
    </message>
    <message>
        <source>is none of the formats that are read: Shapefile, GeoPackage, GeoJSON (also as a text sequence), KML, FlatGeobuf, GML, task data, or one of them in a .zip</source>
        <translation>ist keines der lesbaren Formate: Shapefile, GeoPackage, GeoJSON (auch als Textfolge), KML, FlatGeobuf, GML, Auftragsdaten oder eines davon in einer .zip</translation>
    </message>
    <message>
        <source>the .%1 beside it is no plain file</source>
        <translation>die .%1 daneben ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>holds no shapes</source>
        <translation>enthält keine Formen</translation>
    </message>
    <message>
        <source>holds points, not polygons</source>
        <translation>enthält Punkte, keine Flächen</translation>
    </message>
    <message>
        <source>holds lines, not polygons</source>
        <translation>enthält Linien, keine Flächen</translation>
    </message>
    <message>
        <source>holds shapes of unknown kind %1</source>
        <translation>enthält Formen der unbekannten Art %1</translation>
    </message>
    <message>
        <source>cannot be read or is empty</source>
        <translation>kann nicht gelesen werden oder ist leer</translation>
    </message>
    <message>
        <source>is damaged (%1)</source>
        <translation>ist beschädigt (%1)</translation>
    </message>
    <message>
        <source>is no Shapefile</source>
        <translation>ist kein Shapefile</translation>
    </message>
    <message>
        <source>is cut short within its header</source>
        <translation>bricht im Dateikopf ab</translation>
    </message>
    <message>
        <source>is cut short: %1 of %2 bytes</source>
        <translation>bricht ab: %1 von %2 Bytes</translation>
    </message>
    <message>
        <source>the .dbf beside it is cut short within its header</source>
        <translation>die .dbf daneben bricht im Dateikopf ab</translation>
    </message>
    <message>
        <source>the .dbf beside it has %1 rows for %2 shapes</source>
        <translation>die .dbf daneben hat %1 Zeilen für %2 Formen</translation>
    </message>
    <message>
        <source>the .dbf beside it is cut short: %1 of %2 bytes</source>
        <translation>die .dbf daneben bricht ab: %1 von %2 Bytes</translation>
    </message>
    <message>
        <source>there is no usable .shx beside it</source>
        <translation>daneben liegt keine brauchbare .shx</translation>
    </message>
    <message>
        <source>there is no .dbf beside it</source>
        <translation>daneben liegt keine .dbf</translation>
    </message>
    <message>
        <source>is an archive that is cut short</source>
        <translation>ist ein abgebrochenes Archiv</translation>
    </message>
    <message>
        <source>is one part of an archive</source>
        <translation>ist nur ein Teil eines Archivs</translation>
    </message>
    <message>
        <source>is an archive of more than %1 files</source>
        <translation>ist ein Archiv mit mehr als %1 Dateien</translation>
    </message>
    <message>
        <source>is an archive with a damaged directory</source>
        <translation>ist ein Archiv mit beschädigtem Verzeichnis</translation>
    </message>
    <message>
        <source>the path of its entry &quot;%1&quot; leaves the archive</source>
        <translation>der Pfad ihres Eintrags „%1“ führt aus dem Archiv hinaus</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it is encrypted</source>
        <translation>„%1“ darin ist verschlüsselt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it is packed in a way that is not known</source>
        <translation>„%1“ darin ist auf unbekannte Weise gepackt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it is damaged</source>
        <translation>„%1“ darin ist beschädigt</translation>
    </message>
    <message>
        <source>has no task &quot;%1&quot;; it has no tasks</source>
        <translation>hat keinen Auftrag „%1“; sie hat keine Aufträge</translation>
    </message>
    <message>
        <source>its coordinate system &quot;%1&quot; does not say where on the earth it is</source>
        <translation>ihr Koordinatensystem „%1“ sagt nicht, wo auf der Erde sie liegt</translation>
    </message>
    <message>
        <source>its coordinate system (%1) cannot be read</source>
        <translation>ihr Koordinatensystem (%1) kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>names no coordinate system</source>
        <translation>nennt kein Koordinatensystem</translation>
    </message>
    <message>
        <source>has %1 columns; files with more than %2 are not read</source>
        <translation>hat %1 Spalten; Dateien mit mehr als %2 werden nicht gelesen</translation>
    </message>
    <message>
        <source>has no column &quot;%1&quot;; it has %2</source>
        <translation>hat keine Spalte „%1“; vorhanden: %2</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; holds no numbers</source>
        <translation>Spalte „%1“ enthält keine Zahlen</translation>
    </message>
    <message>
        <source>has more records than can be read with %1 columns; name those that are wanted</source>
        <translation>hat mehr Datensätze, als mit %1 Spalten gelesen werden können; nennen Sie die gewünschten</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>%1: the grid names no treatment zone (J)</source>
        <translation>%1: das Raster nennt keine Behandlungszone (J)</translation>
    </message>
    <message>
        <source>%1: there is no treatment zone %2</source>
        <translation>%1: es gibt keine Behandlungszone %2</translation>
    </message>
    <message>
        <source>%1: the grid of %2 x %3 cells is too large</source>
        <translation>%1: das Raster aus %2 x %3 Zellen ist zu groß</translation>
    </message>
    <message>
        <source>%1: the grid does not end on the earth</source>
        <translation>%1: das Raster endet nicht auf der Erde</translation>
    </message>
    <message>
        <source>%1: treatment zone %2 has no values</source>
        <translation>%1: Behandlungszone %2 hat keine Werte</translation>
    </message>
    <message>
        <source>%1: there is no file %2.BIN beside it</source>
        <translation>%1: daneben liegt keine Datei %2.BIN</translation>
    </message>
    <message>
        <source>%1 is too %2 for %3 x %4 cells: %5 of %6 bytes</source>
        <translation>%1 ist zu %2 für %3 x %4 Zellen: %5 von %6 Bytes</translation>
    </message>
    <message>
        <source>short</source>
        <translation>kurz</translation>
    </message>
    <message>
        <source>long</source>
        <translation>lang</translation>
    </message>
    <message>
        <source>%1: there is no treatment zone %2, which row %3, column %4 names</source>
        <translation>%1: es gibt keine Behandlungszone %2, die in Zeile %3, Spalte %4 genannt ist</translation>
    </message>
    <message>
        <source>%1 has more than %2 bytes</source>
        <translation>%1 hat mehr als %2 Bytes</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, Zeile %2</translation>
    </message>
    <message>
        <source>holds no task data but &lt;%1&gt;</source>
        <translation>enthält keine Auftragsdaten, sondern &lt;%1&gt;</translation>
    </message>
    <message>
        <source>version &quot;%1&quot; of task data is not known, read as version 4</source>
        <translation>Version „%1“ der Auftragsdaten ist nicht bekannt, gelesen wie Version 4</translation>
    </message>
    <message>
        <source>there is no file %1.XML beside it</source>
        <translation>daneben liegt keine Datei %1.XML</translation>
    </message>
    <message>
        <source>the reference to %1 goes round in a circle</source>
        <translation>der Verweis auf %1 läuft im Kreis</translation>
    </message>
    <message>
        <source>refers to more than %1 files</source>
        <translation>verweist auf mehr als %1 Dateien</translation>
    </message>
    <message>
        <source>the treatment zone has no code</source>
        <translation>die Behandlungszone hat keine Nummer</translation>
    </message>
    <message>
        <source>A=&quot;%1&quot; of PDV is no hexadecimal number</source>
        <translation>A=&quot;%1&quot; von PDV ist keine Hexadezimalzahl</translation>
    </message>
    <message>
        <source>the grid&apos;s cells have no size</source>
        <translation>die Zellen des Rasters haben keine Größe</translation>
    </message>
    <message>
        <source>the grid lacks its columns (E), rows (F) or type (I)</source>
        <translation>dem Raster fehlen Spalten (E), Zeilen (F) oder Typ (I)</translation>
    </message>
    <message>
        <source>%1=&quot;%2&quot; of %3 is out of range</source>
        <translation>%1=&quot;%2&quot; von %3 liegt außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>%1=&quot;%2&quot; of %3 is no number</source>
        <translation>%1=&quot;%2&quot; von %3 ist keine Zahl</translation>
    </message>
    <message>
        <source>%1=&quot;%2&quot; of %3 is no whole number from %4 to %5</source>
        <translation>%1=&quot;%2&quot; von %3 ist keine ganze Zahl von %4 bis %5</translation>
    </message>
    <message>
        <source>task %1 has more than %2 process data variables</source>
        <translation>Auftrag %1 hat mehr als %2 Prozessdatenvariablen</translation>
    </message>
    <message>
        <source>%1 holds no task</source>
        <translation>%1 enthält keinen Auftrag</translation>
    </message>
    <message>
        <source>has no task &quot;%1&quot;; it has %2</source>
        <translation>hat keinen Auftrag „%1“; vorhanden: %2</translation>
    </message>
    <message>
        <source>task %1 holds no prescription: it has neither zones with polygons nor a grid</source>
        <translation>Auftrag %1 enthält keine Applikationskarte: weder Zonen mit Flächen noch ein Raster</translation>
    </message>
    <message>
        <source>task &quot;%1&quot; is loaded; there is a prescription in %2, too</source>
        <translation>Auftrag „%1“ ist geladen; eine Applikationskarte ist auch in %2</translation>
    </message>
    <message>
        <source>task %1 holds no prescription: its zones have no values</source>
        <translation>Auftrag %1 enthält keine Applikationskarte: seine Zonen haben keine Werte</translation>
    </message>
    <message>
        <source>task %1 has too many zones with too many values</source>
        <translation>Auftrag %1 hat zu viele Zonen mit zu vielen Werten</translation>
    </message>
    <message>
        <source>the field&apos;s boundary is left out: %1</source>
        <translation>die Feldgrenze wird ausgelassen: %1</translation>
    </message>
    <message>
        <source>task %1 names treatment zone %2 for %3, which is not there</source>
        <translation>Auftrag %1 nennt für %3 die Behandlungszone %2, die es nicht gibt</translation>
    </message>
    <message>
        <source>places out of the field</source>
        <translation>Orte außerhalb des Feldes</translation>
    </message>
    <message>
        <source>places without a zone</source>
        <translation>Orte ohne Zone</translation>
    </message>
    <message>
        <source>a lost position</source>
        <translation>eine verlorene Position</translation>
    </message>
    <message>
        <source>.</source>
        <comment>decimal separator</comment>
        <translation>,</translation>
    </message>
    <message>
        <source>cannot be read with &quot;%1&quot; beside it: %2</source>
        <translation>kann mit „%1“ daneben nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>is being changed by another program</source>
        <translation>wird gerade von einem anderen Programm geändert</translation>
    </message>
    <message>
        <source>cannot be copied: %1</source>
        <translation>kann nicht kopiert werden: %1</translation>
    </message>
    <message>
        <source>cannot be loaded, there is not enough memory</source>
        <translation>kann nicht geladen werden, der Speicher reicht nicht</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>kann nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>ist leer</translation>
    </message>
    <message>
        <source>Dry matter</source>
        <translation>Trockenmasse</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Energie</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Anteil</translation>
    </message>
    <message>
        <source>Seeds</source>
        <comment>what is sown</comment>
        <translation>Saat</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Masse</translation>
    </message>
</context>
</TS>
