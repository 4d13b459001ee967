<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>BackendText</name>
    <message>
        <source>the polygons&apos; edges cross each other more than %1 times; overlaps and gaps are not told one by one</source>
        <translation>les bords des polygones se croisent plus de %1 fois&#xa0;; recouvrements et lacunes ne sont pas énumérés</translation>
    </message>
    <message>
        <source>no polygon covers %1 inside the field (%2 m wide)</source>
        <translation>%1 sans polygone à l’intérieur de la parcelle (%2 m de large)</translation>
    </message>
    <message>
        <source>, beside %1</source>
        <translation>, jouxtant %1</translation>
    </message>
    <message>
        <source>parts of %1 overlap on %2</source>
        <translation>des parties de %1 se recouvrent sur %2</translation>
    </message>
    <message>
        <source>%1 have the same shape, %2</source>
        <translation>%1 ont la même forme, %2</translation>
    </message>
    <message>
        <source>%1 overlap on %2</source>
        <translation>%1 se recouvrent sur %2</translation>
    </message>
    <message>
        <source>overlaps</source>
        <translation>recouvrements</translation>
    </message>
    <message>
        <source>gaps</source>
        <translation>lacunes</translation>
    </message>
    <message>
        <source>slivers</source>
        <translation>éclats</translation>
    </message>
    <message>
        <source>narrow polygons</source>
        <translation>polygones étroits</translation>
    </message>
    <message>
        <source>rates far from the rest</source>
        <translation>doses éloignées des autres</translation>
    </message>
    <message>
        <source>polygons of the same shape</source>
        <translation>polygones de même forme</translation>
    </message>
    <message>
        <source>findings of this kind</source>
        <translation>constats de ce type</translation>
    </message>
    <message>
        <source>%1 more %2</source>
        <translation>%2&#xa0;: encore %1</translation>
    </message>
    <message>
        <source>, %1 m2 in all</source>
        <translation>, %1 m2 au total</translation>
    </message>
    <message>
        <source>record %1</source>
        <translation>l’enregistrement %1</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 de plus</translation>
    </message>
    <message>
        <source>records %1 and %2</source>
        <translation>les enregistrements %1 et %2</translation>
    </message>
    <message>
        <source>record %1 is only %2 m wide</source>
        <translation>l’enregistrement %1 ne fait que %2 m de large</translation>
    </message>
    <message>
        <source>%1 is %2 m wide, narrower than the machine (%3 m)</source>
        <translation>%1 fait %2 m de large, moins que la machine (%3 m)</translation>
    </message>
    <message>
        <source>%1 have the same rate and are %2 m wide together, narrower than the machine (%3 m)</source>
        <translation>%1 ont la même dose et font ensemble %2 m de large, moins que la machine (%3 m)</translation>
    </message>
    <message>
        <source>%1 areas of one rate are narrower than the machine (%2 m), the narrowest %3 m (%4)</source>
        <translation>%1 zones d’une même dose sont plus étroites que la machine (%2 m), la plus étroite fait %3 m (%4)</translation>
    </message>
    <message>
        <source>%1 in column &quot;%2&quot; (%3) is far from the other rates, %4 to %5</source>
        <translation>%1 dans la colonne «&#xa0;%2&#xa0;» (%3) est loin des autres doses, de %4 à %5</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; looks like totals, not rates: its numbers grow with the area of the polygons</source>
        <translation>la colonne «&#xa0;%1&#xa0;» semble contenir des totaux et non des doses&#xa0;: ses valeurs croissent avec la surface des polygones</translation>
    </message>
    <message>
        <source>its coordinates are no longitudes and latitudes</source>
        <translation>ses coordonnées ne sont pas des longitudes et latitudes</translation>
    </message>
    <message>
        <source>, and its coordinates are no longitudes and latitudes</source>
        <translation>, et ses coordonnées ne sont pas des longitudes et latitudes</translation>
    </message>
    <message>
        <source>its coordinate system &quot;%1&quot; cannot be projected there</source>
        <translation>son système de coordonnées «&#xa0;%1&#xa0;» ne peut pas y être projeté</translation>
    </message>
    <message>
        <source>extends over %1 km; no field does</source>
        <translation>s’étend sur %1 km&#xa0;; aucune parcelle n’est aussi grande</translation>
    </message>
    <message>
        <source>its coordinate system &quot;%1&quot; cannot be projected</source>
        <translation>son système de coordonnées «&#xa0;%1&#xa0;» ne peut pas être projeté</translation>
    </message>
    <message>
        <source>record </source>
        <translation>enregistrement </translation>
    </message>
    <message>
        <source>records </source>
        <translation>enregistrements </translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> et %1 de plus</translation>
    </message>
    <message>
        <source>loading was given up</source>
        <translation>le chargement a été abandonné</translation>
    </message>
    <message>
        <source>cannot be checked, there is not enough memory</source>
        <translation>ne peut pas être contrôlé, la mémoire ne suffit pas</translation>
    </message>
    <message>
        <source>cannot be checked: %1</source>
        <translation>ne peut pas être contrôlé&#xa0;: %1</translation>
    </message>
    <message>
        <source>loading was cancelled</source>
        <translation>le chargement a été annulé</translation>
    </message>
    <message>
        <source>the group name &quot;%1&quot; is taken</source>
        <translation>le nom de groupe «&#xa0;%1&#xa0;» est déjà pris</translation>
    </message>
    <message>
        <source>record %1 was left out, its rings cross each other or themselves more than %2 times</source>
        <translation>l’enregistrement %1 a été omis, ses anneaux se croisent entre eux ou eux-mêmes plus de %2 fois</translation>
    </message>
    <message>
        <source>cannot be loaded: %1</source>
        <translation>ne peut pas être chargé&#xa0;: %1</translation>
    </message>
    <message>
        <source>holds points or lines, not polygons</source>
        <translation>contient des points ou des lignes, pas des polygones</translation>
    </message>
    <message>
        <source>holds no polygon</source>
        <translation>ne contient aucun polygone</translation>
    </message>
    <message>
        <source>holds no polygon with finite coordinates</source>
        <translation>ne contient aucun polygone aux coordonnées finies</translation>
    </message>
    <message>
        <source>polygon that lies more than 100 km from the others was left out</source>
        <translation>polygone situé à plus de 100 km des autres a été omis</translation>
    </message>
    <message>
        <source>polygons that lie more than 100 km from the others were left out</source>
        <translation>polygones situés à plus de 100 km des autres ont été omis</translation>
    </message>
    <message>
        <source>; taken as WGS 84</source>
        <translation>&#xa0;; WGS 84 est supposé</translation>
    </message>
    <message>
        <source>lies %1 km from what is loaded and gets a plane of its own</source>
        <translation>se trouve à %1 km de ce qui est chargé et reçoit son propre plan</translation>
    </message>
    <message>
        <source>ring that encloses nothing was left out</source>
        <translation>anneau qui n’entoure rien a été omis</translation>
    </message>
    <message>
        <source>rings that enclose nothing were left out</source>
        <translation>anneaux qui n’entourent rien ont été omis</translation>
    </message>
    <message>
        <source>hole lies in no polygon and was left out</source>
        <translation>trou ne se trouve dans aucun polygone et a été omis</translation>
    </message>
    <message>
        <source>holes lie in no polygon and were left out</source>
        <translation>trous ne se trouvent dans aucun polygone et ont été omis</translation>
    </message>
    <message>
        <source>polygon had to be repaired</source>
        <translation>polygone a dû être réparé</translation>
    </message>
    <message>
        <source>polygons had to be repaired</source>
        <translation>polygones ont dû être réparés</translation>
    </message>
    <message>
        <source>holds no polygon that encloses anything</source>
        <translation>ne contient aucun polygone qui entoure quelque chose</translation>
    </message>
    <message>
        <source>record has no rate in column &quot;%1&quot;</source>
        <translation>enregistrement n’a pas de dose dans la colonne «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>records have no rate in column &quot;%1&quot;</source>
        <translation>enregistrements n’ont pas de dose dans la colonne «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>polygon is hidden under a later one of the same shape</source>
        <translation>polygone est caché sous un polygone suivant de même forme</translation>
    </message>
    <message>
        <source>polygons are hidden under later ones of the same shape</source>
        <translation>polygones sont cachés sous des polygones suivants de même forme</translation>
    </message>
    <message>
        <source>no polygon has a rate</source>
        <translation>aucun polygone n’a de dose</translation>
    </message>
    <message>
        <source>hole cannot be drawn as one</source>
        <translation>trou ne peut pas être dessiné comme tel</translation>
    </message>
    <message>
        <source>holes cannot be drawn as such</source>
        <translation>trous ne peuvent pas être dessinés comme tels</translation>
    </message>
    <message>
        <source>record without geometry was skipped</source>
        <translation>enregistrement sans géométrie a été ignoré</translation>
    </message>
    <message>
        <source>records without geometry were skipped</source>
        <translation>enregistrements sans géométrie ont été ignorés</translation>
    </message>
    <message>
        <source>record that is no polygon was skipped</source>
        <translation>enregistrement qui n’est pas un polygone a été ignoré</translation>
    </message>
    <message>
        <source>records that are no polygons were skipped</source>
        <translation>enregistrements qui ne sont pas des polygones ont été ignorés</translation>
    </message>
    <message>
        <source>record with a coordinate that is not finite was skipped</source>
        <translation>enregistrement avec une coordonnée non finie a été ignoré</translation>
    </message>
    <message>
        <source>records with a coordinate that is not finite were skipped</source>
        <translation>enregistrements avec une coordonnée non finie ont été ignorés</translation>
    </message>
    <message>
        <source>record without a rate was skipped</source>
        <translation>enregistrement sans dose a été ignoré</translation>
    </message>
    <message>
        <source>records without a rate were skipped</source>
        <translation>enregistrements sans dose ont été ignorés</translation>
    </message>
    <message>
        <source>%1 entry of column &quot;%2&quot; is no rate and was left out</source>
        <translation>%1 valeur de la colonne «&#xa0;%2&#xa0;» n’est pas une dose et a été omise</translation>
    </message>
    <message>
        <source>%1 entries of column &quot;%2&quot; are no rates and were left out</source>
        <translation>%1 valeurs de la colonne «&#xa0;%2&#xa0;» ne sont pas des doses et ont été omises</translation>
    </message>
    <message>
        <source>the comma in &quot;%1&quot; of column &quot;%2&quot; is taken to set off decimals</source>
        <translation>la virgule de «&#xa0;%1&#xa0;» dans la colonne «&#xa0;%2&#xa0;» est lue comme virgule décimale</translation>
    </message>
    <message>
        <source>there is no product to load it for</source>
        <translation>il n’y a aucun produit pour lequel le charger</translation>
    </message>
    <message>
        <source>the unit of column &quot;%1&quot; is %2 by its entries, which count, but %3 by its name</source>
        <translation>l’unité de la colonne «&#xa0;%1&#xa0;» est %2 d’après ses valeurs, qui comptent, mais %3 d’après son nom</translation>
    </message>
    <message>
        <source>the unit of column &quot;%1&quot; is %2 by column &quot;%3&quot;, which counts, but %4 by its entries</source>
        <translation>l’unité de la colonne «&#xa0;%1&#xa0;» est %2 d’après la colonne «&#xa0;%3&#xa0;», qui compte, mais %4 d’après ses valeurs</translation>
    </message>
    <message>
        <source>the unit of column &quot;%1&quot; is %2 by column &quot;%3&quot;, which counts, but %4 by its name</source>
        <translation>l’unité de la colonne «&#xa0;%1&#xa0;» est %2 d’après la colonne «&#xa0;%3&#xa0;», qui compte, mais %4 d’après son nom</translation>
    </message>
    <message>
        <source>%1 columns are named, but the machine has %2 products</source>
        <translation>plus de colonnes indiquées (%1) que de produits sur la machine (%2)</translation>
    </message>
    <message>
        <source>no column is named for any product</source>
        <translation>aucune colonne n’est indiquée pour aucun produit</translation>
    </message>
    <message>
        <source>%1 units are named, but the machine has %2 products</source>
        <translation>plus d’unités indiquées (%1) que de produits sur la machine (%2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no unit of a rate</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une unité de dose</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; is left out, product %2 (%3) takes no prescription</source>
        <translation>la colonne «&#xa0;%1&#xa0;» est omise, le produit %2 (%3) ne suit aucune préconisation</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; holds no rates</source>
        <translation>la colonne «&#xa0;%1&#xa0;» ne contient aucune dose</translation>
    </message>
    <message>
        <source>no product that a prescription may drive fits the unit of %1</source>
        <translation>aucun produit qu’une préconisation peut commander ne convient à l’unité de %1</translation>
    </message>
    <message>
        <source>column %1 feeds no product</source>
        <translation>la colonne %1 n’alimente aucun produit</translation>
    </message>
    <message>
        <source>columns %1 feed no product</source>
        <translation>les colonnes %1 n’alimentent aucun produit</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; is a guess: nothing in its name says that it holds rates</source>
        <translation>la colonne «&#xa0;%1&#xa0;» est supposée&#xa0;: rien dans son nom n’indique qu’elle contient des doses</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; is called a total, and its numbers are taken as rates</source>
        <translation>la colonne «&#xa0;%1&#xa0;» porte le nom d’un total, et ses nombres sont pris pour des doses</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; gives different units (&quot;%2&quot;, &quot;%3&quot;) and is not used for column &quot;%4&quot;</source>
        <translation>la colonne «&#xa0;%1&#xa0;» donne des unités différentes («&#xa0;%2&#xa0;», «&#xa0;%3&#xa0;») et n’est pas utilisée pour la colonne «&#xa0;%4&#xa0;»</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, given for column &quot;%2&quot;, is no unit of a rate</source>
        <translation>«&#xa0;%1&#xa0;», indiqué pour la colonne «&#xa0;%2&#xa0;», n’est pas une unité de dose</translation>
    </message>
    <message>
        <source>the unit of column &quot;%1&quot; is not known, taken as %2</source>
        <translation>l’unité de la colonne «&#xa0;%1&#xa0;» est inconnue, prise comme %2</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; is in %2, which does not fit product %3 (%4); taken as %5</source>
        <translation>la colonne «&#xa0;%1&#xa0;» est en %2, ce qui ne convient pas au produit %3 (%4)&#xa0;; prise comme %5</translation>
    </message>
    <message>
        <source>no column &quot;%1&quot; in %2</source>
        <translation>aucune colonne «&#xa0;%1&#xa0;» dans %2</translation>
    </message>
    <message>
        <source>holds no rates: no record has one in %1</source>
        <translation>ne contient aucune dose&#xa0;: aucun enregistrement n’en a dans %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>has no column that looks like a rate; name one (its columns: %1)</source>
        <translation>n’a aucune colonne qui ressemble à une dose&#xa0;; indiquez-en une (ses colonnes&#xa0;: %1)</translation>
    </message>
    <message>
        <source>holds no polygons</source>
        <translation>ne contient pas de polygones</translation>
    </message>
    <message>
        <source>holds no records</source>
        <translation>ne contient pas d’enregistrements</translation>
    </message>
    <message>
        <source>has no column &quot;%1&quot;</source>
        <translation>n’a pas de colonne «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>has no column that looks like a rate</source>
        <translation>n’a aucune colonne qui ressemble à une dose</translation>
    </message>
    <message>
        <source>has no layer &quot;%1&quot; with polygons; it has %2</source>
        <translation>n’a pas de couche «&#xa0;%1&#xa0;» avec des polygones&#xa0;; présentes&#xa0;: %2</translation>
    </message>
    <message>
        <source>holds no layer</source>
        <translation>ne contient aucune couche</translation>
    </message>
    <message>
        <source>none of its layers will do: </source>
        <translation>aucune de ses couches ne convient&#xa0;: </translation>
    </message>
    <message>
        <source>of its layers %1 is loaded, not %2</source>
        <translation>de ses couches, %1 est chargée, mais pas %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it has more than %2 MB</source>
        <translation>«&#xa0;%1&#xa0;» qu’il contient dépasse %2 Mo</translation>
    </message>
    <message>
        <source> in &quot;%1&quot;</source>
        <translation> dans «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>is an archive that holds no prescription%1</source>
        <translation>est une archive qui ne contient aucune préconisation%1</translation>
    </message>
    <message>
        <source>is an archive that holds several prescriptions%1: %2; open one by its path, such as &quot;%3&quot;</source>
        <translation>est une archive qui contient plusieurs préconisations%1&#xa0;: %2&#xa0;; ouvrez-en une par son chemin, par exemple &quot;%3&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it cannot be unpacked: %2</source>
        <translation>«&#xa0;%1&#xa0;» qu’il contient ne peut pas être décompressé&#xa0;: %2</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>is a folder, not a file</source>
        <translation>est un dossier, pas un fichier</translation>
    </message>
    <message>
        <source>is no plain file</source>
        <translation>n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>cannot be unpacked: %1</source>
        <translation>ne peut pas être décompressé&#xa0;: %1</translation>
    </message>
    <message>
        <source>is none of the formats that are read: Shapefile, GeoPackage, GeoJSON (also as a text sequence), KML, FlatGeobuf, GML, task data, or one of them in a .zip</source>
        <translation>n’est dans aucun des formats lus&#xa0;: Shapefile, GeoPackage, GeoJSON (aussi en séquence de textes), KML, FlatGeobuf, GML, données de tâches ou l’un d’eux dans un .zip</translation>
    </message>
    <message>
        <source>the .%1 beside it is no plain file</source>
        <translation>le .%1 à côté n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>holds no shapes</source>
        <translation>ne contient aucune forme</translation>
    </message>
    <message>
        <source>holds points, not polygons</source>
        <translation>contient des points, pas des polygones</translation>
    </message>
    <message>
        <source>holds lines, not polygons</source>
        <translation>contient des lignes, pas des polygones</translation>
    </message>
    <message>
        <source>holds shapes of unknown kind %1</source>
        <translation>contient des formes de type inconnu %1</translation>
    </message>
    <message>
        <source>cannot be read or is empty</source>
        <translation>ne peut pas être lu ou est vide</translation>
    </message>
    <message>
        <source>is damaged (%1)</source>
        <translation>est endommagé (%1)</translation>
    </message>
    <message>
        <source>is no Shapefile</source>
        <translation>n’est pas un Shapefile</translation>
    </message>
    <message>
        <source>is cut short within its header</source>
        <translation>est tronqué dans son en-tête</translation>
    </message>
    <message>
        <source>is cut short: %1 of %2 bytes</source>
        <translation>est tronqué&#xa0;: %1 octets sur %2</translation>
    </message>
    <message>
        <source>the .dbf beside it is cut short within its header</source>
        <translation>le .dbf à côté est tronqué dans son en-tête</translation>
    </message>
    <message>
        <source>the .dbf beside it has %1 rows for %2 shapes</source>
        <translation>le .dbf à côté a %1 lignes pour %2 formes</translation>
    </message>
    <message>
        <source>the .dbf beside it is cut short: %1 of %2 bytes</source>
        <translation>le .dbf à côté est tronqué&#xa0;: %1 octets sur %2</translation>
    </message>
    <message>
        <source>there is no usable .shx beside it</source>
        <translation>il n’y a pas de .shx utilisable à côté</translation>
    </message>
    <message>
        <source>there is no .dbf beside it</source>
        <translation>il n’y a pas de .dbf à côté</translation>
    </message>
    <message>
        <source>is an archive that is cut short</source>
        <translation>est une archive tronquée</translation>
    </message>
    <message>
        <source>is one part of an archive</source>
        <translation>n’est qu’une partie d’une archive</translation>
    </message>
    <message>
        <source>is an archive of more than %1 files</source>
        <translation>est une archive de plus de %1 fichiers</translation>
    </message>
    <message>
        <source>is an archive with a damaged directory</source>
        <translation>est une archive dont le répertoire est endommagé</translation>
    </message>
    <message>
        <source>the path of its entry &quot;%1&quot; leaves the archive</source>
        <translation>le chemin de son entrée «&#xa0;%1&#xa0;» sort de l’archive</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it is encrypted</source>
        <translation>«&#xa0;%1&#xa0;» qu’il contient est chiffré</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it is packed in a way that is not known</source>
        <translation>«&#xa0;%1&#xa0;» qu’il contient est compressé d’une façon inconnue</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it is damaged</source>
        <translation>«&#xa0;%1&#xa0;» qu’il contient est endommagé</translation>
    </message>
    <message>
        <source>has no task &quot;%1&quot;; it has no tasks</source>
        <translation>n’a pas de tâche «&#xa0;%1&#xa0;»&#xa0;; il n’en a aucune</translation>
    </message>
    <message>
        <source>its coordinate system &quot;%1&quot; does not say where on the earth it is</source>
        <translation>son système de coordonnées «&#xa0;%1&#xa0;» ne dit pas où il se trouve sur la Terre</translation>
    </message>
    <message>
        <source>its coordinate system (%1) cannot be read</source>
        <translation>son système de coordonnées (%1) ne peut pas être lu</translation>
    </message>
    <message>
        <source>names no coordinate system</source>
        <translation>n’indique aucun système de coordonnées</translation>
    </message>
    <message>
        <source>has %1 columns; files with more than %2 are not read</source>
        <translation>a %1 colonnes&#xa0;; les fichiers de plus de %2 ne sont pas lus</translation>
    </message>
    <message>
        <source>has no column &quot;%1&quot;; it has %2</source>
        <translation>n’a pas de colonne «&#xa0;%1&#xa0;»&#xa0;; présentes&#xa0;: %2</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; holds no numbers</source>
        <translation>la colonne «&#xa0;%1&#xa0;» ne contient pas de nombres</translation>
    </message>
    <message>
        <source>has more records than can be read with %1 columns; name those that are wanted</source>
        <translation>a plus d’enregistrements qu’on ne peut en lire avec %1 colonnes&#xa0;; indiquez celles qu’il vous faut</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 de plus</translation>
    </message>
    <message>
        <source>%1: the grid names no treatment zone (J)</source>
        <translation>%1&#xa0;: la grille n’indique aucune zone de traitement (J)</translation>
    </message>
    <message>
        <source>%1: there is no treatment zone %2</source>
        <translation>%1&#xa0;: il n’y a pas de zone de traitement %2</translation>
    </message>
    <message>
        <source>%1: the grid of %2 x %3 cells is too large</source>
        <translation>%1&#xa0;: la grille de %2 x %3 cellules est trop grande</translation>
    </message>
    <message>
        <source>%1: the grid does not end on the earth</source>
        <translation>%1&#xa0;: la grille s’étend au-delà de la Terre</translation>
    </message>
    <message>
        <source>%1: treatment zone %2 has no values</source>
        <translation>%1&#xa0;: la zone de traitement %2 n’a pas de valeurs</translation>
    </message>
    <message>
        <source>%1: there is no file %2.BIN beside it</source>
        <translation>%1&#xa0;: il n’y a pas de fichier %2.BIN à côté</translation>
    </message>
    <message>
        <source>%1 is too %2 for %3 x %4 cells: %5 of %6 bytes</source>
        <translation>%1 est trop %2 pour %3 x %4 cellules&#xa0;: %5 octets pour %6</translation>
    </message>
    <message>
        <source>short</source>
        <translation>court</translation>
    </message>
    <message>
        <source>long</source>
        <translation>long</translation>
    </message>
    <message>
        <source>%1: there is no treatment zone %2, which row %3, column %4 names</source>
        <translation>%1&#xa0;: la zone de traitement %2, indiquée à la ligne %3, colonne %4, n’existe pas</translation>
    </message>
    <message>
        <source>%1 has more than %2 bytes</source>
        <translation>%1 a plus de %2 octets</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ne peut pas être lu&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, ligne %2</translation>
    </message>
    <message>
        <source>holds no task data but &lt;%1&gt;</source>
        <translation>contient &lt;%1&gt; au lieu de données de tâches</translation>
    </message>
    <message>
        <source>version &quot;%1&quot; of task data is not known, read as version 4</source>
        <translation>la version «&#xa0;%1&#xa0;» des données de tâches est inconnue, lue comme version 4</translation>
    </message>
    <message>
        <source>there is no file %1.XML beside it</source>
        <translation>il n’y a pas de fichier %1.XML à côté</translation>
    </message>
    <message>
        <source>the reference to %1 goes round in a circle</source>
        <translation>la référence à %1 tourne en rond</translation>
    </message>
    <message>
        <source>refers to more than %1 files</source>
        <translation>renvoie à plus de %1 fichiers</translation>
    </message>
    <message>
        <source>the treatment zone has no code</source>
        <translation>la zone de traitement n’a pas de code</translation>
    </message>
    <message>
        <source>A=&quot;%1&quot; of PDV is no hexadecimal number</source>
        <translation>A=&quot;%1&quot; de PDV n’est pas un nombre hexadécimal</translation>
    </message>
    <message>
        <source>the grid&apos;s cells have no size</source>
        <translation>les cellules de la grille n’ont pas de taille</translation>
    </message>
    <message>
        <source>the grid lacks its columns (E), rows (F) or type (I)</source>
        <translation>il manque à la grille ses colonnes (E), ses lignes (F) ou son type (I)</translation>
    </message>
    <message>
        <source>%1=&quot;%2&quot; of %3 is out of range</source>
        <translation>%1=&quot;%2&quot; de %3 est hors limites</translation>
    </message>
    <message>
        <source>%1=&quot;%2&quot; of %3 is no number</source>
        <translation>%1=&quot;%2&quot; de %3 n’est pas un nombre</translation>
    </message>
    <message>
        <source>%1=&quot;%2&quot; of %3 is no whole number from %4 to %5</source>
        <translation>%1=&quot;%2&quot; de %3 n’est pas un nombre entier de %4 à %5</translation>
    </message>
    <message>
        <source>task %1 has more than %2 process data variables</source>
        <translation>la tâche %1 a plus de %2 variables de données de processus</translation>
    </message>
    <message>
        <source>%1 holds no task</source>
        <translation>%1 ne contient aucune tâche</translation>
    </message>
    <message>
        <source>has no task &quot;%1&quot;; it has %2</source>
        <translation>n’a pas de tâche «&#xa0;%1&#xa0;»&#xa0;; présentes&#xa0;: %2</translation>
    </message>
    <message>
        <source>task %1 holds no prescription: it has neither zones with polygons nor a grid</source>
        <translation>la tâche %1 ne contient aucune préconisation&#xa0;: ni zones avec polygones, ni grille</translation>
    </message>
    <message>
        <source>task &quot;%1&quot; is loaded; there is a prescription in %2, too</source>
        <translation>la tâche «&#xa0;%1&#xa0;» est chargée&#xa0;; il y a aussi une préconisation dans %2</translation>
    </message>
    <message>
        <source>task %1 holds no prescription: its zones have no values</source>
        <translation>la tâche %1 ne contient aucune préconisation&#xa0;: ses zones n’ont pas de valeurs</translation>
    </message>
    <message>
        <source>task %1 has too many zones with too many values</source>
        <translation>la tâche %1 a trop de zones avec trop de valeurs</translation>
    </message>
    <message>
        <source>the field&apos;s boundary is left out: %1</source>
        <translation>le contour de la parcelle est omis&#xa0;: %1</translation>
    </message>
    <message>
        <source>task %1 names treatment zone %2 for %3, which is not there</source>
        <translation>la tâche %1 indique pour %3 la zone de traitement %2, qui n’existe pas</translation>
    </message>
    <message>
        <source>places out of the field</source>
        <translation>les endroits hors de la parcelle</translation>
    </message>
    <message>
        <source>places without a zone</source>
        <translation>les endroits sans zone</translation>
    </message>
    <message>
        <source>a lost position</source>
        <translation>une position perdue</translation>
    </message>
    <message>
        <source>.</source>
        <comment>decimal separator</comment>
        <translation>,</translation>
    </message>
    <message>
        <source>cannot be read with &quot;%1&quot; beside it: %2</source>
        <translation>ne peut pas être lu avec «&#xa0;%1&#xa0;» à côté&#xa0;: %2</translation>
    </message>
    <message>
        <source>is being changed by another program</source>
        <translation>est en cours de modification par un autre programme</translation>
    </message>
    <message>
        <source>cannot be copied: %1</source>
        <translation>ne peut pas être copié&#xa0;: %1</translation>
    </message>
    <message>
        <source>cannot be loaded, there is not enough memory</source>
        <translation>ne peut pas être chargé, la mémoire ne suffit pas</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>ne peut pas être ouvert&#xa0;: %1</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>est vide</translation>
    </message>
    <message>
        <source>Dry matter</source>
        <translation>Matière sèche</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Énergie</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Espacement</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Part</translation>
    </message>
    <message>
        <source>Seeds</source>
        <comment>what is sown</comment>
        <translation>Grain</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Masse</translation>
    </message>
</context>
</TS>
