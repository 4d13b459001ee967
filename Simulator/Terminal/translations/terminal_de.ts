<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ChoicePage</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>ColumnRow</name>
    <message>
        <source>guess</source>
        <translation>geraten</translation>
    </message>
    <message>
        <source>total</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keines</translation>
    </message>
    <message>
        <source>feeds no product</source>
        <translation>für kein Produkt</translation>
    </message>
    <message>
        <source>Product %1</source>
        <translation>Produkt %1</translation>
    </message>
    <message>
        <source>less than 1 % without a rate</source>
        <translation>unter 1 % ohne Menge</translation>
    </message>
    <message>
        <source>%1 % without a rate</source>
        <translation>%1 % ohne Menge</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>does not fit</source>
        <translation>passt nicht</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>gewählt</translation>
    </message>
    <message>
        <source>from the format</source>
        <translation>aus dem Format</translation>
    </message>
    <message>
        <source>from a column</source>
        <translation>aus einer Spalte</translation>
    </message>
    <message>
        <source>from its texts</source>
        <translation>aus den Texten</translation>
    </message>
    <message>
        <source>from the name</source>
        <translation>aus dem Namen</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
</context>
<context>
    <name>DriveControls</name>
    <message>
        <source>%1 km/h</source>
        <translation>%1 km/h</translation>
    </message>
    <message>
        <source>%1 mph</source>
        <translation>%1 mph</translation>
    </message>
    <message>
        <source>No prescription is loaded that could be driven.</source>
        <translation>Es ist keine Applikationskarte geladen, die gefahren werden könnte.</translation>
    </message>
    <message>
        <source>The field cannot be driven in swaths.</source>
        <translation>Das Feld kann nicht in Spuren gefahren werden.</translation>
    </message>
    <message>
        <source>The field is %1 wide, narrower than the machine (%2).</source>
        <translation>Das Feld ist %1 breit, schmaler als die Maschine (%2).</translation>
    </message>
    <message>
        <source>The end of the way is reached.</source>
        <translation>Das Ende des Weges ist erreicht.</translation>
    </message>
</context>
<context>
    <name>DrivePanel</name>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Halt</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Folgen</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Swaths</source>
        <translation>Spuren</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Von Hand</translation>
    </message>
    <message>
        <source>Signal loss</source>
        <translation>Signalverlust</translation>
    </message>
    <message>
        <source>Brake</source>
        <translation>Bremse</translation>
    </message>
    <message>
        <source>Throttle</source>
        <translation>Gas</translation>
    </message>
    <message>
        <source>%1× time</source>
        <comment>pace of the simulated time</comment>
        <translation>%1× Zeit</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Langsamer</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Schneller</translation>
    </message>
    <message>
        <source>Time passes slower</source>
        <translation>Die Zeit vergeht langsamer</translation>
    </message>
    <message>
        <source>Time passes faster</source>
        <translation>Die Zeit vergeht schneller</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Aufnahme</translation>
    </message>
</context>
<context>
    <name>DriveRecord</name>
    <message>
        <source>The drive is no longer recorded</source>
        <translation>Die Fahrt wird nicht mehr aufgezeichnet</translation>
    </message>
    <message>
        <source>drive</source>
        <comment>name of a record where no field is open</comment>
        <translation>Fahrt</translation>
    </message>
    <message>
        <source>%1: this folder cannot be made</source>
        <translation>%1: dieser Ordner kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>The drive cannot be recorded</source>
        <translation>Die Fahrt kann nicht aufgezeichnet werden</translation>
    </message>
    <message>
        <source>The drive is recorded</source>
        <translation>Die Fahrt ist aufgezeichnet</translation>
    </message>
    <message>
        <source>The drive is not recorded to its end</source>
        <translation>Die Fahrt ist nicht bis zum Ende aufgezeichnet</translation>
    </message>
</context>
<context>
    <name>DriveStrip</name>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Next page of rates</source>
        <translation>Nächste Seite der Raten</translation>
    </message>
</context>
<context>
    <name>FieldView</name>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
</context>
<context>
    <name>FileOpening</name>
    <message>
        <source>Open a prescription</source>
        <translation>Applikationskarte öffnen</translation>
    </message>
    <message>
        <source>%1 is no file of this computer</source>
        <translation>%1 ist keine Datei dieses Rechners</translation>
    </message>
    <message>
        <source>%1 is a track: open the prescription of its field first</source>
        <translation>%1 ist eine Fahrspur: zuerst die Applikationskarte ihres Feldes öffnen</translation>
    </message>
    <message>
        <source>Lines of %1 left out: %2</source>
        <translation>Ausgelassene Zeilen von %1: %2</translation>
    </message>
</context>
<context>
    <name>FilePage</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Zuletzt</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Eigene Dateien</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Rechner</translation>
    </message>
    <message>
        <source>Folder up</source>
        <translation>Ordner darüber</translation>
    </message>
    <message>
        <source>No prescription was opened here before.</source>
        <translation>Hier wurde noch keine Applikationskarte geöffnet.</translation>
    </message>
    <message>
        <source>Nothing in this folder can be opened.</source>
        <translation>In diesem Ordner ist nichts, was geöffnet werden kann.</translation>
    </message>
    <message>
        <source>This folder cannot be read.</source>
        <translation>Dieser Ordner kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>is no longer there</source>
        <translation>ist nicht mehr da</translation>
    </message>
    <message>
        <source>Opened</source>
        <translation>Geöffnet</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Opened prescriptions</source>
        <translation>Geöffnete Applikationskarten</translation>
    </message>
    <message>
        <source>No prescription is open.</source>
        <translation>Keine Applikationskarte ist geöffnet.</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 Datei</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 Dateien</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>%1 schließen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Sample field</source>
        <translation>Beispielfeld</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Zuletzt geöffnete Dateien</translation>
    </message>
    <message>
        <source>No drive was recorded yet. &quot;Record&quot; records what the machine does from then on.</source>
        <translation>Noch keine Fahrt ist aufgezeichnet. &quot;Aufnahme&quot; zeichnet auf, was die Maschine von da an tut.</translation>
    </message>
</context>
<context>
    <name>FindingKind</name>
    <message>
        <source>Overlap</source>
        <translation>Überlappung</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Lücke</translation>
    </message>
    <message>
        <source>Sliver</source>
        <translation>Splitter</translation>
    </message>
    <message>
        <source>Repaired</source>
        <translation>Repariert</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Ausgelassen</translation>
    </message>
    <message>
        <source>Rate far from the rest</source>
        <translation>Menge weit ab von den übrigen</translation>
    </message>
    <message>
        <source>Totals, not rates</source>
        <translation>Summen statt Mengen</translation>
    </message>
    <message>
        <source>Unit not known</source>
        <translation>Einheit unbekannt</translation>
    </message>
    <message>
        <source>Unit does not fit</source>
        <translation>Einheit passt nicht</translation>
    </message>
    <message>
        <source>Column is a guess</source>
        <translation>Spalte ist geraten</translation>
    </message>
    <message>
        <source>Coordinate system assumed</source>
        <translation>Koordinatensystem angenommen</translation>
    </message>
    <message>
        <source>Not a number</source>
        <translation>Keine Zahl</translation>
    </message>
    <message>
        <source>Same shape twice</source>
        <translation>Gleiche Form zweimal</translation>
    </message>
    <message>
        <source>Polygon far away</source>
        <translation>Fläche weit entfernt</translation>
    </message>
    <message>
        <source>Hole without a polygon</source>
        <translation>Loch ohne Fläche</translation>
    </message>
    <message>
        <source>Narrower than the machine</source>
        <translation>Schmaler als die Maschine</translation>
    </message>
    <message>
        <source>Another field</source>
        <translation>Ein anderes Feld</translation>
    </message>
</context>
<context>
    <name>FindingUnits</name>
    <message>
        <source>%1 m²</source>
        <translation>%1 m²</translation>
    </message>
    <message>
        <source>%1 ft²</source>
        <translation>%1 ft²</translation>
    </message>
</context>
<context>
    <name>FindingsDisplay</name>
    <message>
        <source>Map check</source>
        <translation>Kartenprüfung</translation>
    </message>
    <message>
        <source>Map check: %1</source>
        <translation>Kartenprüfung: %1</translation>
    </message>
    <message>
        <source>lies %1 from %2, which feeds products, too</source>
        <translation>liegt %1 von %2, das auch Produkte speist</translation>
    </message>
</context>
<context>
    <name>FindingsPage</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Map check: %1</source>
        <translation>Kartenprüfung: %1</translation>
    </message>
</context>
<context>
    <name>FolderListing</name>
    <message>
        <source>d MMM yyyy</source>
        <comment>a date, in QLocale&apos;s letters</comment>
        <translation>d. MMM yyyy</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Fahrspur</translation>
    </message>
</context>
<context>
    <name>GuidancePage</name>
    <message>
        <source>Guidance page</source>
        <translation>Spurführungsseite</translation>
    </message>
</context>
<context>
    <name>HintCard</name>
    <message>
        <source>Got it</source>
        <translation>Verstanden</translation>
    </message>
</context>
<context>
    <name>Hints</name>
    <message>
        <source>How this terminal is used</source>
        <translation>So wird dieses Terminal bedient</translation>
    </message>
    <message>
        <source>Touch the map to read the rate there. Drag it to move it; pinch it, turn the wheel or touch + and − to come nearer or farther.</source>
        <translation>Ein Antippen der Karte zeigt die Rate dort. Ziehen verschiebt sie; mit zwei Fingern, dem Rad oder + und − kommt sie näher oder rückt weg.</translation>
    </message>
    <message>
        <source>The settings of the map are behind the button with the gear wheel: hold it for a second.</source>
        <translation>Die Einstellungen der Karte liegen hinter der Taste mit dem Zahnrad: eine Sekunde lang halten.</translation>
    </message>
    <message>
        <source>The folder opens prescriptions; moon and sun switch between day and night.</source>
        <translation>Der Ordner öffnet Applikationskarten; Mond und Sonne wechseln zwischen Tag und Nacht.</translation>
    </message>
    <message>
        <source>On a keyboard Tab goes from control to control and Enter touches; arrows move the map.</source>
        <translation>Auf einer Tastatur geht Tab von Taste zu Taste, und Enter berührt sie; Pfeile verschieben die Karte.</translation>
    </message>
    <message>
        <source>Hold this button longer</source>
        <translation>Diese Taste länger halten</translation>
    </message>
    <message>
        <source>A touch of one second opens the settings of the map.</source>
        <translation>Eine Berührung von einer Sekunde öffnet die Einstellungen der Karte.</translation>
    </message>
</context>
<context>
    <name>LegendPanel</name>
    <message>
        <source>No map</source>
        <translation>Keine Karte</translation>
    </message>
    <message>
        <source>%1 named by the operator</source>
        <translation>%1, vom Bediener genannt</translation>
    </message>
    <message>
        <source>%1 from the format</source>
        <translation>%1, aus dem Format</translation>
    </message>
    <message>
        <source>%1 from another column</source>
        <translation>%1, aus anderer Spalte</translation>
    </message>
    <message>
        <source>%1 from the texts</source>
        <translation>%1, aus den Texten</translation>
    </message>
    <message>
        <source>%1 from the name</source>
        <translation>%1, aus dem Namen</translation>
    </message>
    <message>
        <source>unit not known</source>
        <translation>Einheit unbekannt</translation>
    </message>
    <message>
        <source>not known, taken as %1</source>
        <translation>unbekannt, angenommen %1</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Legende</translation>
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
    <name>MapPreview</name>
    <message>
        <source>Map of the file</source>
        <translation>Karte der Datei</translation>
    </message>
</context>
<context>
    <name>MessagePage</name>
    <message>
        <source>This cannot be opened</source>
        <translation>Das kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>What was loaded before stays.</source>
        <translation>Was geladen war, bleibt geladen.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Another layer or task</source>
        <translation>Andere Ebene oder Aufgabe</translation>
    </message>
</context>
<context>
    <name>NumericEntry</name>
    <message>
        <source>That would be no number</source>
        <translation>Das wäre keine Zahl</translation>
    </message>
    <message>
        <source>Whole numbers only</source>
        <translation>Nur ganze Zahlen</translation>
    </message>
    <message>
        <source>Decimals: %1 at most</source>
        <translation>Nachkommastellen: höchstens %1</translation>
    </message>
    <message>
        <source>Beyond %1</source>
        <translation>Außerhalb von %1</translation>
    </message>
    <message>
        <source>Too many digits</source>
        <translation>Zu viele Stellen</translation>
    </message>
</context>
<context>
    <name>NumericKeypad</name>
    <message>
        <source>Minus</source>
        <translation>Minus</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Delete the last digit</source>
        <translation>Letzte Stelle löschen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>OpenWindow</name>
    <message>
        <source>Reading %1</source>
        <translation>%1 wird gelesen</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>%1 wird geöffnet</translation>
    </message>
    <message>
        <source>Which prescription of %1?</source>
        <translation>Welche Applikationskarte aus %1?</translation>
    </message>
    <message>
        <source>Which layer?</source>
        <translation>Welche Ebene?</translation>
    </message>
    <message>
        <source>Which task?</source>
        <translation>Welche Aufgabe?</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keines</translation>
    </message>
    <message>
        <source>Which product does %1 feed?</source>
        <translation>Für welches Produkt gilt %1?</translation>
    </message>
    <message>
        <source>In which unit is %1?</source>
        <translation>In welcher Einheit ist %1?</translation>
    </message>
    <message>
        <source>Choose the unit of %1</source>
        <translation>Einheit von %1 wählen</translation>
    </message>
    <message>
        <source>Open as %1</source>
        <translation>Als %1 öffnen</translation>
    </message>
    <message>
        <source>The file does not tell in which unit it is</source>
        <translation>Die Datei nennt ihre Einheit nicht</translation>
    </message>
    <message>
        <source>%1 from %2, which stays open</source>
        <translation>%1 von %2 entfernt, das offen bleibt</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>%1 schließen</translation>
    </message>
    <message>
        <source>Keep %1 open</source>
        <translation>%1 offen lassen</translation>
    </message>
</context>
<context>
    <name>OpenedFiles</name>
    <message>
        <source>feeds no product</source>
        <translation>für kein Produkt</translation>
    </message>
    <message>
        <source>feeds %1</source>
        <translation>für %1</translation>
    </message>
</context>
<context>
    <name>Pager</name>
    <message>
        <source>Page before</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
</context>
<context>
    <name>PreviewPage</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>Aufgabe</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>Polygons: %1</source>
        <translation>Polygone: %1</translation>
    </message>
    <message>
        <source>Choose a product for a column to open the file.</source>
        <translation>Zum Öffnen für eine Spalte ein Produkt wählen.</translation>
    </message>
    <message>
        <source>%1 is called a total, not a rate</source>
        <translation>%1 heißt wie eine Summe, nicht wie eine Menge je Fläche</translation>
    </message>
    <message>
        <source>No product</source>
        <translation>Kein Produkt</translation>
    </message>
    <message>
        <source>Replaces %1</source>
        <translation>Ersetzt %1</translation>
    </message>
    <message>
        <source>Takes %1 over from %2</source>
        <translation>Übernimmt %1 von %2</translation>
    </message>
    <message>
        <source>Lies %1 from %2</source>
        <translation>Liegt %1 von %2</translation>
    </message>
</context>
<context>
    <name>ProductFile</name>
    <message>
        <source>Seed</source>
        <translation>Saatgut</translation>
    </message>
    <message>
        <source>Seed</source>
        <comment>short</comment>
        <translation>Saat</translation>
    </message>
    <message>
        <source>Fertiliser</source>
        <translation>Dünger</translation>
    </message>
    <message>
        <source>Fert</source>
        <comment>short</comment>
        <translation>Düng</translation>
    </message>
    <message>
        <source>Herbicide</source>
        <translation>Herbizid</translation>
    </message>
    <message>
        <source>Herb</source>
        <comment>short</comment>
        <translation>Herb</translation>
    </message>
    <message>
        <source>Product %1</source>
        <translation>Produkt %1</translation>
    </message>
</context>
<context>
    <name>ProductSection</name>
    <message>
        <source>No prescription drives this product.</source>
        <translation>Keine Applikationskarte steuert dieses Produkt.</translation>
    </message>
    <message>
        <source>Column %1; look-ahead %2 s; dead time %3 s, time constant %4 s</source>
        <translation>Spalte %1; Vorausschau %2 s; Totzeit %3 s, Zeitkonstante %4 s</translation>
    </message>
    <message>
        <source>Prescribed</source>
        <translation>Soll</translation>
    </message>
    <message>
        <source>Applied</source>
        <translation>Ausgebracht</translation>
    </message>
    <message>
        <source>Each picture is %1 wide; north is up.</source>
        <translation>Jedes Bild ist %1 breit; Norden ist oben.</translation>
    </message>
    <message>
        <source>Area and amount by class</source>
        <translation>Fläche und Menge je Klasse</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Planned</source>
        <translation>Geplant</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Abweichung</translation>
    </message>
    <message>
        <source>of the plan</source>
        <translation>vom Plan</translation>
    </message>
    <message>
        <source>No rate prescribed</source>
        <translation>Kein Soll</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Error: applied minus prescribed</source>
        <translation>Fehler: ausgebracht minus Soll</translation>
    </message>
    <message>
        <source>Within %1 of what is prescribed: %2 of the area. Beyond the plot: %3.</source>
        <translation>Um höchstens %1 neben dem Soll: %2 der Fläche. Außerhalb des Diagramms: %3.</translation>
    </message>
    <message>
        <source>applied minus prescribed</source>
        <translation>ausgebracht minus Soll</translation>
    </message>
    <message>
        <source>Early and late</source>
        <translation>Zu früh und zu spät</translation>
    </message>
    <message>
        <source>No change of rate was crossed.</source>
        <translation>Es wurde kein Wechsel der Menge überfahren.</translation>
    </message>
    <message>
        <source>%1 changes of rate; median %2, %3 s. Above zero is late, below zero is early.</source>
        <translation>%1 Wechsel der Menge; Median %2, %3 s. Über null ist zu spät, unter null zu früh.</translation>
    </message>
    <message>
        <source>The %1 that are farthest from their borders:</source>
        <translation>Die %1, die am weitesten neben ihren Grenzen liegen:</translation>
    </message>
    <message>
        <source>East of the middle</source>
        <translation>Östlich der Mitte</translation>
    </message>
    <message>
        <source>North of the middle</source>
        <translation>Nördlich der Mitte</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Auf</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>Zu spät</translation>
    </message>
    <message>
        <source>Look-ahead</source>
        <translation>Vorausschau</translation>
    </message>
    <message>
        <source>A look-ahead of %1 s puts the changes nearest to the borders.</source>
        <translation>Eine Vorausschau von %1 s bringt die Wechsel am nächsten an die Grenzen.</translation>
    </message>
    <message>
        <source>look-ahead</source>
        <translation>Vorausschau</translation>
    </message>
    <message>
        <source>median lateness</source>
        <translation>Verspätung im Median</translation>
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
    <name>ProgressPage</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>RatePlot</name>
    <message>
        <source>−%1 s</source>
        <translation>−%1 s</translation>
    </message>
    <message>
        <source>now</source>
        <translation>jetzt</translation>
    </message>
    <message>
        <source>Plan here</source>
        <translation>Soll hier</translation>
    </message>
    <message>
        <source>Applied</source>
        <translation>Ist</translation>
    </message>
    <message>
        <source>Rates of the last half minute</source>
        <translation>Raten der letzten halben Minute</translation>
    </message>
</context>
<context>
    <name>RateRow</name>
    <message>
        <source>Prescription</source>
        <translation>Applikationskarte</translation>
    </message>
    <message>
        <source>Default rate</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>Zero shut-off</source>
        <translation>Nullabschaltung</translation>
    </message>
    <message>
        <source>Least rate</source>
        <translation>Mindestmenge</translation>
    </message>
    <message>
        <source>No position</source>
        <translation>Keine Position</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Steht</translation>
    </message>
    <message>
        <source>Not controlled</source>
        <translation>Nicht geregelt</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
</context>
<context>
    <name>RateTable</name>
    <message>
        <source>Product</source>
        <translation>Produkt</translation>
    </message>
    <message>
        <source>Prescribed</source>
        <translation>Soll</translation>
    </message>
    <message>
        <source>Commanded</source>
        <translation>Stellwert</translation>
    </message>
    <message>
        <source>Applied</source>
        <translation>Ist</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Rates now</source>
        <translation>Raten jetzt</translation>
    </message>
</context>
<context>
    <name>RecordWriter</name>
    <message>
        <source>%1: the record ends early: %2</source>
        <translation>%1: die Aufzeichnung endet vorzeitig: %2</translation>
    </message>
    <message>
        <source>there is no room left on the disk</source>
        <translation>auf dem Datenträger ist kein Platz mehr</translation>
    </message>
    <message>
        <source>another field is open</source>
        <translation>ein anderes Feld ist geöffnet</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>Report of a drive</source>
        <translation>Bericht einer Fahrt</translation>
    </message>
    <message>
        <source>Prescription</source>
        <translation>Applikationskarte</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>Area worked</source>
        <translation>Bearbeitete Fläche</translation>
    </message>
    <message>
        <source>Working width</source>
        <translation>Arbeitsbreite</translation>
    </message>
    <message>
        <source>Default rate of %1</source>
        <translation>Vorgabe von %1</translation>
    </message>
</context>
<context>
    <name>ShownDistance</name>
    <message>
        <source>%1 km</source>
        <translation>%1 km</translation>
    </message>
    <message>
        <source>%1 mi</source>
        <translation>%1 mi</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>%1 ft</source>
        <translation>%1 ft</translation>
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
    <message>
        <source>Paused</source>
        <translation>Pause</translation>
    </message>
</context>
<context>
    <name>SystemReason</name>
    <message>
        <source>Permission denied</source>
        <translation>keine Berechtigung</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>auf dem Datenträger ist kein Platz mehr</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>diese Datei oder diesen Ordner gibt es nicht</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>der Datenträger ist schreibgeschützt</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>der zugeteilte Speicherplatz ist aufgebraucht</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>die Datei ist zu groß</translation>
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
    <message>
        <source>Drive</source>
        <translation>Fahren</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Nacht</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Nearer</source>
        <translation>Näher</translation>
    </message>
    <message>
        <source>Farther</source>
        <translation>Weiter weg</translation>
    </message>
    <message>
        <source>The whole field</source>
        <translation>Das ganze Feld</translation>
    </message>
    <message>
        <source>Leave full screen</source>
        <translation>Vollbild verlassen</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Vollbild</translation>
    </message>
</context>
<context>
    <name>TrackParser</name>
    <message>
        <source>is no NMEA 0183 sentence</source>
        <translation>ist kein Satz nach NMEA 0183</translation>
    </message>
    <message>
        <source>its checksum is wrong</source>
        <translation>ihre Prüfsumme ist falsch</translation>
    </message>
    <message>
        <source>is cut off</source>
        <translation>ist abgeschnitten</translation>
    </message>
    <message>
        <source>its time is none</source>
        <translation>enthält keine gültige Zeit</translation>
    </message>
    <message>
        <source>its position is none</source>
        <translation>enthält keine gültige Position</translation>
    </message>
    <message>
        <source>is no head with &quot;time&quot; and &quot;x&quot;, &quot;y&quot; or &quot;lon&quot;, &quot;lat&quot;</source>
        <translation>ist keine Kopfzeile mit &quot;time&quot; und &quot;x&quot;, &quot;y&quot; oder &quot;lon&quot;, &quot;lat&quot;</translation>
    </message>
</context>
<context>
    <name>TrackReader</name>
    <message>
        <source>%1: holds no position</source>
        <translation>%1: enthält keine Position</translation>
    </message>
    <message>
        <source>%1: holds no position; %2</source>
        <translation>%1: enthält keine Position; %2</translation>
    </message>
    <message>
        <source>is longer than %1 characters</source>
        <translation>ist länger als %1 Zeichen</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>its time is beyond the year 9999</source>
        <translation>ihre Zeit liegt nach dem Jahr 9999</translation>
    </message>
    <message>
        <source>goes back in time</source>
        <translation>geht in der Zeit zurück</translation>
    </message>
    <message>
        <source>lies off the field&apos;s plane</source>
        <translation>liegt außerhalb der Ebene des Feldes</translation>
    </message>
    <message>
        <source>is in degrees, and no field is loaded to place them</source>
        <translation>ist in Grad, und kein Feld ist geladen, nach dem sie zu verorten wären</translation>
    </message>
    <message>
        <source>jumps by %1 m</source>
        <translation>springt um %1 m</translation>
    </message>
</context>
<context>
    <name>UnitPage</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>per area</source>
        <translation>je Fläche</translation>
    </message>
    <message>
        <source>As in the file</source>
        <translation>Wie in der Datei</translation>
    </message>
    <message>
        <source>Other amounts</source>
        <translation>Andere Mengen</translation>
    </message>
    <message>
        <source>it does not tell</source>
        <translation>sie nennt keine</translation>
    </message>
    <message>
        <source>thousand</source>
        <translation>Tausend</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Take %1</source>
        <translation>%1 übernehmen</translation>
    </message>
    <message>
        <source>amount and area</source>
        <translation>Menge und Fläche</translation>
    </message>
</context>
<context>
    <name>WheelBar</name>
    <message>
        <source>Steering wheel</source>
        <translation>Lenkrad</translation>
    </message>
</context>
</TS>
