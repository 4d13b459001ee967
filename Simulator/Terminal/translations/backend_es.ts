<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>BackendText</name>
    <message>
        <source>the polygons&apos; edges cross each other more than %1 times; overlaps and gaps are not told one by one</source>
        <translation>los bordes de los polígonos se cruzan más de %1 veces; las superposiciones y los huecos no se enumeran</translation>
    </message>
    <message>
        <source>no polygon covers %1 inside the field (%2 m wide)</source>
        <translation>%1 sin polígono dentro del campo (%2 m de ancho)</translation>
    </message>
    <message>
        <source>, beside %1</source>
        <translation>, lindando con %1</translation>
    </message>
    <message>
        <source>parts of %1 overlap on %2</source>
        <translation>%1 tiene partes que se superponen en %2</translation>
    </message>
    <message>
        <source>%1 have the same shape, %2</source>
        <translation>%1 tienen la misma forma, %2</translation>
    </message>
    <message>
        <source>%1 overlap on %2</source>
        <translation>%1 se superponen en %2</translation>
    </message>
    <message>
        <source>overlaps</source>
        <translation>superposiciones</translation>
    </message>
    <message>
        <source>gaps</source>
        <translation>huecos</translation>
    </message>
    <message>
        <source>slivers</source>
        <translation>astillas</translation>
    </message>
    <message>
        <source>narrow polygons</source>
        <translation>polígonos estrechos</translation>
    </message>
    <message>
        <source>rates far from the rest</source>
        <translation>dosis alejadas de las demás</translation>
    </message>
    <message>
        <source>polygons of the same shape</source>
        <translation>polígonos de la misma forma</translation>
    </message>
    <message>
        <source>findings of this kind</source>
        <translation>hallazgos de este tipo</translation>
    </message>
    <message>
        <source>%1 more %2</source>
        <translation>%2: %1 más</translation>
    </message>
    <message>
        <source>, %1 m2 in all</source>
        <translation>, %1 m2 en total</translation>
    </message>
    <message>
        <source>record %1</source>
        <translation>el registro %1</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 más</translation>
    </message>
    <message>
        <source>records %1 and %2</source>
        <translation>los registros %1 y %2</translation>
    </message>
    <message>
        <source>record %1 is only %2 m wide</source>
        <translation>el registro %1 solo tiene %2 m de ancho</translation>
    </message>
    <message>
        <source>%1 is %2 m wide, narrower than the machine (%3 m)</source>
        <translation>%1 tiene %2 m de ancho, menos que la máquina (%3 m)</translation>
    </message>
    <message>
        <source>%1 have the same rate and are %2 m wide together, narrower than the machine (%3 m)</source>
        <translation>%1 tienen la misma dosis y juntos %2 m de ancho, menos que la máquina (%3 m)</translation>
    </message>
    <message>
        <source>%1 areas of one rate are narrower than the machine (%2 m), the narrowest %3 m (%4)</source>
        <translation>%1 zonas de una misma dosis son más estrechas que la máquina (%2 m); la más estrecha tiene %3 m (%4)</translation>
    </message>
    <message>
        <source>%1 in column &quot;%2&quot; (%3) is far from the other rates, %4 to %5</source>
        <translation>%1 en la columna «%2» (%3) está lejos de las demás dosis, de %4 a %5</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; looks like totals, not rates: its numbers grow with the area of the polygons</source>
        <translation>la columna «%1» parece contener totales y no dosis: sus valores crecen con la superficie de los polígonos</translation>
    </message>
    <message>
        <source>its coordinates are no longitudes and latitudes</source>
        <translation>sus coordenadas no son longitudes y latitudes</translation>
    </message>
    <message>
        <source>, and its coordinates are no longitudes and latitudes</source>
        <translation>, y sus coordenadas no son longitudes y latitudes</translation>
    </message>
    <message>
        <source>its coordinate system &quot;%1&quot; cannot be projected there</source>
        <translation>su sistema de coordenadas «%1» no se puede proyectar allí</translation>
    </message>
    <message>
        <source>extends over %1 km; no field does</source>
        <translation>se extiende %1 km; ningún campo es tan grande</translation>
    </message>
    <message>
        <source>its coordinate system &quot;%1&quot; cannot be projected</source>
        <translation>su sistema de coordenadas «%1» no se puede proyectar</translation>
    </message>
    <message>
        <source>record </source>
        <translation>registro </translation>
    </message>
    <message>
        <source>records </source>
        <translation>registros </translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> y %1 más</translation>
    </message>
    <message>
        <source>loading was given up</source>
        <translation>se abandonó la carga</translation>
    </message>
    <message>
        <source>cannot be checked, there is not enough memory</source>
        <translation>no se puede revisar, no hay memoria suficiente</translation>
    </message>
    <message>
        <source>cannot be checked: %1</source>
        <translation>no se puede revisar: %1</translation>
    </message>
    <message>
        <source>loading was cancelled</source>
        <translation>se canceló la carga</translation>
    </message>
    <message>
        <source>the group name &quot;%1&quot; is taken</source>
        <translation>el nombre de grupo «%1» ya está en uso</translation>
    </message>
    <message>
        <source>record %1 was left out, its rings cross each other or themselves more than %2 times</source>
        <translation>se omitió el registro %1, sus anillos se cruzan entre sí o consigo mismos más de %2 veces</translation>
    </message>
    <message>
        <source>cannot be loaded: %1</source>
        <translation>no se puede cargar: %1</translation>
    </message>
    <message>
        <source>holds points or lines, not polygons</source>
        <translation>contiene puntos o líneas, no polígonos</translation>
    </message>
    <message>
        <source>holds no polygon</source>
        <translation>no contiene ningún polígono</translation>
    </message>
    <message>
        <source>holds no polygon with finite coordinates</source>
        <translation>no contiene ningún polígono con coordenadas finitas</translation>
    </message>
    <message>
        <source>polygon that lies more than 100 km from the others was left out</source>
        <translation>polígono situado a más de 100 km de los demás se omitió</translation>
    </message>
    <message>
        <source>polygons that lie more than 100 km from the others were left out</source>
        <translation>polígonos situados a más de 100 km de los demás se omitieron</translation>
    </message>
    <message>
        <source>; taken as WGS 84</source>
        <translation>; se supone WGS 84</translation>
    </message>
    <message>
        <source>lies %1 km from what is loaded and gets a plane of its own</source>
        <translation>está a %1 km de lo cargado y recibe su propio plano</translation>
    </message>
    <message>
        <source>ring that encloses nothing was left out</source>
        <translation>anillo que no encierra nada se omitió</translation>
    </message>
    <message>
        <source>rings that enclose nothing were left out</source>
        <translation>anillos que no encierran nada se omitieron</translation>
    </message>
    <message>
        <source>hole lies in no polygon and was left out</source>
        <translation>agujero no está en ningún polígono y se omitió</translation>
    </message>
    <message>
        <source>holes lie in no polygon and were left out</source>
        <translation>agujeros no están en ningún polígono y se omitieron</translation>
    </message>
    <message>
        <source>polygon had to be repaired</source>
        <translation>polígono tuvo que repararse</translation>
    </message>
    <message>
        <source>polygons had to be repaired</source>
        <translation>polígonos tuvieron que repararse</translation>
    </message>
    <message>
        <source>holds no polygon that encloses anything</source>
        <translation>no contiene ningún polígono que encierre algo</translation>
    </message>
    <message>
        <source>record has no rate in column &quot;%1&quot;</source>
        <translation>registro no tiene dosis en la columna «%1»</translation>
    </message>
    <message>
        <source>records have no rate in column &quot;%1&quot;</source>
        <translation>registros no tienen dosis en la columna «%1»</translation>
    </message>
    <message>
        <source>polygon is hidden under a later one of the same shape</source>
        <translation>polígono queda oculto bajo otro posterior de la misma forma</translation>
    </message>
    <message>
        <source>polygons are hidden under later ones of the same shape</source>
        <translation>polígonos quedan ocultos bajo otros posteriores de la misma forma</translation>
    </message>
    <message>
        <source>no polygon has a rate</source>
        <translation>ningún polígono tiene dosis</translation>
    </message>
    <message>
        <source>hole cannot be drawn as one</source>
        <translation>agujero no se puede dibujar como tal</translation>
    </message>
    <message>
        <source>holes cannot be drawn as such</source>
        <translation>agujeros no se pueden dibujar como tales</translation>
    </message>
    <message>
        <source>record without geometry was skipped</source>
        <translation>registro sin geometría se ignoró</translation>
    </message>
    <message>
        <source>records without geometry were skipped</source>
        <translation>registros sin geometría se ignoraron</translation>
    </message>
    <message>
        <source>record that is no polygon was skipped</source>
        <translation>registro que no es un polígono se ignoró</translation>
    </message>
    <message>
        <source>records that are no polygons were skipped</source>
        <translation>registros que no son polígonos se ignoraron</translation>
    </message>
    <message>
        <source>record with a coordinate that is not finite was skipped</source>
        <translation>registro con una coordenada no finita se ignoró</translation>
    </message>
    <message>
        <source>records with a coordinate that is not finite were skipped</source>
        <translation>registros con una coordenada no finita se ignoraron</translation>
    </message>
    <message>
        <source>record without a rate was skipped</source>
        <translation>registro sin dosis se ignoró</translation>
    </message>
    <message>
        <source>records without a rate were skipped</source>
        <translation>registros sin dosis se ignoraron</translation>
    </message>
    <message>
        <source>%1 entry of column &quot;%2&quot; is no rate and was left out</source>
        <translation>%1 valor de la columna «%2» no es una dosis y se omitió</translation>
    </message>
    <message>
        <source>%1 entries of column &quot;%2&quot; are no rates and were left out</source>
        <translation>%1 valores de la columna «%2» no son dosis y se omitieron</translation>
    </message>
    <message>
        <source>the comma in &quot;%1&quot; of column &quot;%2&quot; is taken to set off decimals</source>
        <translation>la coma de «%1» en la columna «%2» se lee como coma decimal</translation>
    </message>
    <message>
        <source>there is no product to load it for</source>
        <translation>no hay ningún producto para el que cargarlo</translation>
    </message>
    <message>
        <source>the unit of column &quot;%1&quot; is %2 by its entries, which count, but %3 by its name</source>
        <translation>la unidad de la columna «%1» es %2 según sus valores, que cuentan, pero %3 según su nombre</translation>
    </message>
    <message>
        <source>the unit of column &quot;%1&quot; is %2 by column &quot;%3&quot;, which counts, but %4 by its entries</source>
        <translation>la unidad de la columna «%1» es %2 según la columna «%3», que cuenta, pero %4 según sus valores</translation>
    </message>
    <message>
        <source>the unit of column &quot;%1&quot; is %2 by column &quot;%3&quot;, which counts, but %4 by its name</source>
        <translation>la unidad de la columna «%1» es %2 según la columna «%3», que cuenta, pero %4 según su nombre</translation>
    </message>
    <message>
        <source>%1 columns are named, but the machine has %2 products</source>
        <translation>se indican más columnas (%1) que productos tiene la máquina (%2)</translation>
    </message>
    <message>
        <source>no column is named for any product</source>
        <translation>no se indica ninguna columna para ningún producto</translation>
    </message>
    <message>
        <source>%1 units are named, but the machine has %2 products</source>
        <translation>se indican más unidades (%1) que productos tiene la máquina (%2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no unit of a rate</source>
        <translation>«%1» no es una unidad de dosis</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; is left out, product %2 (%3) takes no prescription</source>
        <translation>se omite la columna «%1», el producto %2 (%3) no sigue ninguna prescripción</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; holds no rates</source>
        <translation>la columna «%1» no contiene dosis</translation>
    </message>
    <message>
        <source>no product that a prescription may drive fits the unit of %1</source>
        <translation>ningún producto que una prescripción pueda controlar corresponde a la unidad de %1</translation>
    </message>
    <message>
        <source>column %1 feeds no product</source>
        <translation>la columna %1 no alimenta ningún producto</translation>
    </message>
    <message>
        <source>columns %1 feed no product</source>
        <translation>las columnas %1 no alimentan ningún producto</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; is a guess: nothing in its name says that it holds rates</source>
        <translation>la columna «%1» es una suposición: nada en su nombre indica que contenga dosis</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; is called a total, and its numbers are taken as rates</source>
        <translation>la columna «%1» lleva el nombre de un total, y sus números se toman como dosis</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; gives different units (&quot;%2&quot;, &quot;%3&quot;) and is not used for column &quot;%4&quot;</source>
        <translation>la columna «%1» da unidades distintas («%2», «%3») y no se usa para la columna «%4»</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, given for column &quot;%2&quot;, is no unit of a rate</source>
        <translation>«%1», indicado para la columna «%2», no es una unidad de dosis</translation>
    </message>
    <message>
        <source>the unit of column &quot;%1&quot; is not known, taken as %2</source>
        <translation>la unidad de la columna «%1» es desconocida, tomada como %2</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; is in %2, which does not fit product %3 (%4); taken as %5</source>
        <translation>la columna «%1» está en %2, que no corresponde al producto %3 (%4); tomada como %5</translation>
    </message>
    <message>
        <source>no column &quot;%1&quot; in %2</source>
        <translation>no hay columna «%1» en %2</translation>
    </message>
    <message>
        <source>holds no rates: no record has one in %1</source>
        <translation>no contiene dosis: ningún registro tiene una en %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>has no column that looks like a rate; name one (its columns: %1)</source>
        <translation>no tiene ninguna columna que parezca una dosis; indique una (sus columnas: %1)</translation>
    </message>
    <message>
        <source>holds no polygons</source>
        <translation>no contiene polígonos</translation>
    </message>
    <message>
        <source>holds no records</source>
        <translation>no contiene registros</translation>
    </message>
    <message>
        <source>has no column &quot;%1&quot;</source>
        <translation>no tiene columna «%1»</translation>
    </message>
    <message>
        <source>has no column that looks like a rate</source>
        <translation>no tiene ninguna columna que parezca una dosis</translation>
    </message>
    <message>
        <source>has no layer &quot;%1&quot; with polygons; it has %2</source>
        <translation>no tiene capa «%1» con polígonos; hay: %2</translation>
    </message>
    <message>
        <source>holds no layer</source>
        <translation>no contiene ninguna capa</translation>
    </message>
    <message>
        <source>none of its layers will do: </source>
        <translation>ninguna de sus capas sirve: </translation>
    </message>
    <message>
        <source>of its layers %1 is loaded, not %2</source>
        <translation>de sus capas se carga %1, no %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it has more than %2 MB</source>
        <translation>«%1» en su interior supera los %2 MB</translation>
    </message>
    <message>
        <source> in &quot;%1&quot;</source>
        <translation> en «%1»</translation>
    </message>
    <message>
        <source>is an archive that holds no prescription%1</source>
        <translation>es un archivo comprimido que no contiene ninguna prescripción%1</translation>
    </message>
    <message>
        <source>is an archive that holds several prescriptions%1: %2; open one by its path, such as &quot;%3&quot;</source>
        <translation>es un archivo comprimido que contiene varias prescripciones%1: %2; abra una por su ruta, por ejemplo &quot;%3&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it cannot be unpacked: %2</source>
        <translation>«%1» en su interior no se puede descomprimir: %2</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>este archivo no existe</translation>
    </message>
    <message>
        <source>is a folder, not a file</source>
        <translation>es una carpeta, no un archivo</translation>
    </message>
    <message>
        <source>is no plain file</source>
        <translation>no es un archivo normal</translation>
    </message>
    <message>
        <source>cannot be unpacked: %1</source>
        <translation>no se puede descomprimir: %1</translation>
    </message>
    <message>
        <source>is none of the formats that are read: Shapefile, GeoPackage, GeoJSON (also as a text sequence), KML, FlatGeobuf, GML, task data, or one of them in a .zip</source>
        <translation>no está en ninguno de los formatos que se leen: Shapefile, GeoPackage, GeoJSON (también como secuencia de textos), KML, FlatGeobuf, GML, datos de tareas o uno de ellos en un .zip</translation>
    </message>
    <message>
        <source>the .%1 beside it is no plain file</source>
        <translation>el .%1 que está al lado no es un archivo normal</translation>
    </message>
    <message>
        <source>holds no shapes</source>
        <translation>no contiene formas</translation>
    </message>
    <message>
        <source>holds points, not polygons</source>
        <translation>contiene puntos, no polígonos</translation>
    </message>
    <message>
        <source>holds lines, not polygons</source>
        <translation>contiene líneas, no polígonos</translation>
    </message>
    <message>
        <source>holds shapes of unknown kind %1</source>
        <translation>contiene formas de tipo desconocido %1</translation>
    </message>
    <message>
        <source>cannot be read or is empty</source>
        <translation>no se puede leer o está vacío</translation>
    </message>
    <message>
        <source>is damaged (%1)</source>
        <translation>está dañado (%1)</translation>
    </message>
    <message>
        <source>is no Shapefile</source>
        <translation>no es un Shapefile</translation>
    </message>
    <message>
        <source>is cut short within its header</source>
        <translation>está truncado en su cabecera</translation>
    </message>
    <message>
        <source>is cut short: %1 of %2 bytes</source>
        <translation>está truncado: %1 de %2 bytes</translation>
    </message>
    <message>
        <source>the .dbf beside it is cut short within its header</source>
        <translation>el .dbf que está al lado está truncado en su cabecera</translation>
    </message>
    <message>
        <source>the .dbf beside it has %1 rows for %2 shapes</source>
        <translation>el .dbf que está al lado tiene %1 filas para %2 formas</translation>
    </message>
    <message>
        <source>the .dbf beside it is cut short: %1 of %2 bytes</source>
        <translation>el .dbf que está al lado está truncado: %1 de %2 bytes</translation>
    </message>
    <message>
        <source>there is no usable .shx beside it</source>
        <translation>no hay al lado ningún .shx utilizable</translation>
    </message>
    <message>
        <source>there is no .dbf beside it</source>
        <translation>no hay al lado ningún .dbf</translation>
    </message>
    <message>
        <source>is an archive that is cut short</source>
        <translation>es un archivo comprimido truncado</translation>
    </message>
    <message>
        <source>is one part of an archive</source>
        <translation>es solo una parte de un archivo comprimido</translation>
    </message>
    <message>
        <source>is an archive of more than %1 files</source>
        <translation>es un archivo comprimido con más de %1 archivos</translation>
    </message>
    <message>
        <source>is an archive with a damaged directory</source>
        <translation>es un archivo comprimido con el directorio dañado</translation>
    </message>
    <message>
        <source>the path of its entry &quot;%1&quot; leaves the archive</source>
        <translation>la ruta de su entrada «%1» sale del archivo comprimido</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it is encrypted</source>
        <translation>«%1» en su interior está cifrado</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it is packed in a way that is not known</source>
        <translation>«%1» en su interior está comprimido de una forma desconocida</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it is damaged</source>
        <translation>«%1» en su interior está dañado</translation>
    </message>
    <message>
        <source>has no task &quot;%1&quot;; it has no tasks</source>
        <translation>no tiene tarea «%1»; no tiene ninguna</translation>
    </message>
    <message>
        <source>its coordinate system &quot;%1&quot; does not say where on the earth it is</source>
        <translation>su sistema de coordenadas «%1» no dice en qué lugar de la Tierra está</translation>
    </message>
    <message>
        <source>its coordinate system (%1) cannot be read</source>
        <translation>su sistema de coordenadas (%1) no se puede leer</translation>
    </message>
    <message>
        <source>names no coordinate system</source>
        <translation>no indica ningún sistema de coordenadas</translation>
    </message>
    <message>
        <source>has %1 columns; files with more than %2 are not read</source>
        <translation>tiene %1 columnas; los archivos con más de %2 no se leen</translation>
    </message>
    <message>
        <source>has no column &quot;%1&quot;; it has %2</source>
        <translation>no tiene columna «%1»; hay: %2</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; holds no numbers</source>
        <translation>la columna «%1» no contiene números</translation>
    </message>
    <message>
        <source>has more records than can be read with %1 columns; name those that are wanted</source>
        <translation>tiene más registros de los que se pueden leer con %1 columnas; indique las que necesita</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
    <message>
        <source>%1: the grid names no treatment zone (J)</source>
        <translation>%1: la cuadrícula no indica ninguna zona de tratamiento (J)</translation>
    </message>
    <message>
        <source>%1: there is no treatment zone %2</source>
        <translation>%1: no existe la zona de tratamiento %2</translation>
    </message>
    <message>
        <source>%1: the grid of %2 x %3 cells is too large</source>
        <translation>%1: la cuadrícula de %2 x %3 celdas es demasiado grande</translation>
    </message>
    <message>
        <source>%1: the grid does not end on the earth</source>
        <translation>%1: la cuadrícula se sale de la Tierra</translation>
    </message>
    <message>
        <source>%1: treatment zone %2 has no values</source>
        <translation>%1: la zona de tratamiento %2 no tiene valores</translation>
    </message>
    <message>
        <source>%1: there is no file %2.BIN beside it</source>
        <translation>%1: no hay al lado ningún archivo %2.BIN</translation>
    </message>
    <message>
        <source>%1 is too %2 for %3 x %4 cells: %5 of %6 bytes</source>
        <translation>%1 es demasiado %2 para %3 x %4 celdas: %5 de %6 bytes</translation>
    </message>
    <message>
        <source>short</source>
        <translation>corto</translation>
    </message>
    <message>
        <source>long</source>
        <translation>largo</translation>
    </message>
    <message>
        <source>%1: there is no treatment zone %2, which row %3, column %4 names</source>
        <translation>%1: no existe la zona de tratamiento %2, indicada en la fila %3, columna %4</translation>
    </message>
    <message>
        <source>%1 has more than %2 bytes</source>
        <translation>%1 tiene más de %2 bytes</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 no se puede leer: %2</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, línea %2</translation>
    </message>
    <message>
        <source>holds no task data but &lt;%1&gt;</source>
        <translation>contiene &lt;%1&gt; en lugar de datos de tareas</translation>
    </message>
    <message>
        <source>version &quot;%1&quot; of task data is not known, read as version 4</source>
        <translation>la versión «%1» de los datos de tareas es desconocida, se lee como versión 4</translation>
    </message>
    <message>
        <source>there is no file %1.XML beside it</source>
        <translation>no hay al lado ningún archivo %1.XML</translation>
    </message>
    <message>
        <source>the reference to %1 goes round in a circle</source>
        <translation>la referencia a %1 es circular</translation>
    </message>
    <message>
        <source>refers to more than %1 files</source>
        <translation>remite a más de %1 archivos</translation>
    </message>
    <message>
        <source>the treatment zone has no code</source>
        <translation>la zona de tratamiento no tiene código</translation>
    </message>
    <message>
        <source>A=&quot;%1&quot; of PDV is no hexadecimal number</source>
        <translation>A=&quot;%1&quot; de PDV no es un número hexadecimal</translation>
    </message>
    <message>
        <source>the grid&apos;s cells have no size</source>
        <translation>las celdas de la cuadrícula no tienen tamaño</translation>
    </message>
    <message>
        <source>the grid lacks its columns (E), rows (F) or type (I)</source>
        <translation>a la cuadrícula le faltan las columnas (E), las filas (F) o el tipo (I)</translation>
    </message>
    <message>
        <source>%1=&quot;%2&quot; of %3 is out of range</source>
        <translation>%1=&quot;%2&quot; de %3 está fuera de los límites</translation>
    </message>
    <message>
        <source>%1=&quot;%2&quot; of %3 is no number</source>
        <translation>%1=&quot;%2&quot; de %3 no es un número</translation>
    </message>
    <message>
        <source>%1=&quot;%2&quot; of %3 is no whole number from %4 to %5</source>
        <translation>%1=&quot;%2&quot; de %3 no es un número entero de %4 a %5</translation>
    </message>
    <message>
        <source>task %1 has more than %2 process data variables</source>
        <translation>la tarea %1 tiene más de %2 variables de datos de proceso</translation>
    </message>
    <message>
        <source>%1 holds no task</source>
        <translation>%1 no contiene ninguna tarea</translation>
    </message>
    <message>
        <source>has no task &quot;%1&quot;; it has %2</source>
        <translation>no tiene tarea «%1»; hay: %2</translation>
    </message>
    <message>
        <source>task %1 holds no prescription: it has neither zones with polygons nor a grid</source>
        <translation>la tarea %1 no contiene ninguna prescripción: ni zonas con polígonos ni cuadrícula</translation>
    </message>
    <message>
        <source>task &quot;%1&quot; is loaded; there is a prescription in %2, too</source>
        <translation>se carga la tarea «%1»; también hay una prescripción en %2</translation>
    </message>
    <message>
        <source>task %1 holds no prescription: its zones have no values</source>
        <translation>la tarea %1 no contiene ninguna prescripción: sus zonas no tienen valores</translation>
    </message>
    <message>
        <source>task %1 has too many zones with too many values</source>
        <translation>la tarea %1 tiene demasiadas zonas con demasiados valores</translation>
    </message>
    <message>
        <source>the field&apos;s boundary is left out: %1</source>
        <translation>se omite el contorno del campo: %1</translation>
    </message>
    <message>
        <source>task %1 names treatment zone %2 for %3, which is not there</source>
        <translation>la tarea %1 indica para %3 la zona de tratamiento %2, que no existe</translation>
    </message>
    <message>
        <source>places out of the field</source>
        <translation>los lugares fuera del campo</translation>
    </message>
    <message>
        <source>places without a zone</source>
        <translation>los lugares sin zona</translation>
    </message>
    <message>
        <source>a lost position</source>
        <translation>una posición perdida</translation>
    </message>
    <message>
        <source>.</source>
        <comment>decimal separator</comment>
        <translation>,</translation>
    </message>
    <message>
        <source>cannot be read with &quot;%1&quot; beside it: %2</source>
        <translation>no se puede leer con «%1» al lado: %2</translation>
    </message>
    <message>
        <source>is being changed by another program</source>
        <translation>otro programa lo está modificando</translation>
    </message>
    <message>
        <source>cannot be copied: %1</source>
        <translation>no se puede copiar: %1</translation>
    </message>
    <message>
        <source>cannot be loaded, there is not enough memory</source>
        <translation>no se puede cargar, no hay memoria suficiente</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>no se puede abrir: %1</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>está vacío</translation>
    </message>
    <message>
        <source>Dry matter</source>
        <translation>Materia seca</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Energía</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Espaciado</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ancho</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Parte</translation>
    </message>
    <message>
        <source>Seeds</source>
        <comment>what is sown</comment>
        <translation>Grano</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Masa</translation>
    </message>
</context>
</TS>
