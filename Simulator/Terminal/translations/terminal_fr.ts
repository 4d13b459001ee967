<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ChoicePage</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>ColumnRow</name>
    <message>
        <source>guess</source>
        <translation>supposé</translation>
    </message>
    <message>
        <source>total</source>
        <translation>total</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>feeds no product</source>
        <translation>n’alimente rien</translation>
    </message>
    <message>
        <source>Product %1</source>
        <translation>Produit %1</translation>
    </message>
    <message>
        <source>less than 1 % without a rate</source>
        <translation>moins de 1 % sans dose</translation>
    </message>
    <message>
        <source>%1 % without a rate</source>
        <translation>%1 % sans dose</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>inconnue</translation>
    </message>
    <message>
        <source>does not fit</source>
        <translation>ne convient pas</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>choisie</translation>
    </message>
    <message>
        <source>from the format</source>
        <translation>du format</translation>
    </message>
    <message>
        <source>from a column</source>
        <translation>d’une colonne</translation>
    </message>
    <message>
        <source>from its texts</source>
        <translation>de ses textes</translation>
    </message>
    <message>
        <source>from the name</source>
        <translation>du nom</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
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
        <translation>Aucune carte de préconisation à parcourir n’est chargée.</translation>
    </message>
    <message>
        <source>The field cannot be driven in swaths.</source>
        <translation>La parcelle ne peut pas être parcourue en passages.</translation>
    </message>
    <message>
        <source>The field is %1 wide, narrower than the machine (%2).</source>
        <translation>La parcelle fait %1 de large, moins que la machine (%2).</translation>
    </message>
    <message>
        <source>The end of the way is reached.</source>
        <translation>La fin du parcours est atteinte.</translation>
    </message>
</context>
<context>
    <name>DrivePanel</name>
    <message>
        <source>Start</source>
        <translation>Départ</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Suivre</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>Swaths</source>
        <translation>Passages</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>À la main</translation>
    </message>
    <message>
        <source>Signal loss</source>
        <translation>Perte du signal</translation>
    </message>
    <message>
        <source>Brake</source>
        <translation>Frein</translation>
    </message>
    <message>
        <source>Throttle</source>
        <translation>Gaz</translation>
    </message>
    <message>
        <source>%1× time</source>
        <comment>pace of the simulated time</comment>
        <translation>%1× temps</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Plus lent</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Plus vite</translation>
    </message>
    <message>
        <source>Time passes slower</source>
        <translation>Le temps passe plus lentement</translation>
    </message>
    <message>
        <source>Time passes faster</source>
        <translation>Le temps passe plus vite</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>Rejouer</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>DriveRecord</name>
    <message>
        <source>The drive is no longer recorded</source>
        <translation>Le trajet n’est plus enregistré</translation>
    </message>
    <message>
        <source>drive</source>
        <comment>name of a record where no field is open</comment>
        <translation>trajet</translation>
    </message>
    <message>
        <source>%1: this folder cannot be made</source>
        <translation>%1 : ce dossier ne peut pas être créé</translation>
    </message>
    <message>
        <source>The drive cannot be recorded</source>
        <translation>Le trajet ne peut pas être enregistré</translation>
    </message>
    <message>
        <source>The drive is recorded</source>
        <translation>Le trajet est enregistré</translation>
    </message>
    <message>
        <source>The drive is not recorded to its end</source>
        <translation>Le trajet n’est pas enregistré jusqu’au bout</translation>
    </message>
</context>
<context>
    <name>DriveStrip</name>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Next page of rates</source>
        <translation>Page suivante des doses</translation>
    </message>
</context>
<context>
    <name>FieldView</name>
    <message>
        <source>Map</source>
        <translation>Carte</translation>
    </message>
</context>
<context>
    <name>FileOpening</name>
    <message>
        <source>Open a prescription</source>
        <translation>Ouvrir une préconisation</translation>
    </message>
    <message>
        <source>%1 is no file of this computer</source>
        <translation>%1 n’est pas un fichier de cet ordinateur</translation>
    </message>
    <message>
        <source>%1 is a track: open the prescription of its field first</source>
        <translation>%1 est un trajet : ouvrez d’abord la carte de sa parcelle</translation>
    </message>
    <message>
        <source>Lines of %1 left out: %2</source>
        <translation>Lignes omises de %1 : %2</translation>
    </message>
</context>
<context>
    <name>FilePage</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Récents</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Dossier personnel</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>Folder up</source>
        <translation>Dossier parent</translation>
    </message>
    <message>
        <source>No prescription was opened here before.</source>
        <translation>Aucune préconisation n’a encore été ouverte ici.</translation>
    </message>
    <message>
        <source>Nothing in this folder can be opened.</source>
        <translation>Rien dans ce dossier ne peut être ouvert.</translation>
    </message>
    <message>
        <source>This folder cannot be read.</source>
        <translation>Ce dossier ne peut pas être lu.</translation>
    </message>
    <message>
        <source>is no longer there</source>
        <translation>n’est plus là</translation>
    </message>
    <message>
        <source>Opened</source>
        <translation>Ouverts</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Opened prescriptions</source>
        <translation>Préconisations ouvertes</translation>
    </message>
    <message>
        <source>No prescription is open.</source>
        <translation>Aucune préconisation n’est ouverte.</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 fichier</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 fichiers</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Fermer %1</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Sample field</source>
        <translation>Parcelle d’exemple</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Fichiers récents</translation>
    </message>
    <message>
        <source>No drive was recorded yet. &quot;Record&quot; records what the machine does from then on.</source>
        <translation>Aucun trajet n’est encore enregistré. &quot;Enregistrer&quot; enregistre ce que la machine fait dès lors.</translation>
    </message>
</context>
<context>
    <name>FindingKind</name>
    <message>
        <source>Overlap</source>
        <translation>Recouvrement</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Lacune</translation>
    </message>
    <message>
        <source>Sliver</source>
        <translation>Éclat</translation>
    </message>
    <message>
        <source>Repaired</source>
        <translation>Réparé</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Omis</translation>
    </message>
    <message>
        <source>Rate far from the rest</source>
        <translation>Dose éloignée des autres</translation>
    </message>
    <message>
        <source>Totals, not rates</source>
        <translation>Totaux au lieu de doses</translation>
    </message>
    <message>
        <source>Unit not known</source>
        <translation>Unité inconnue</translation>
    </message>
    <message>
        <source>Unit does not fit</source>
        <translation>Unité incompatible</translation>
    </message>
    <message>
        <source>Column is a guess</source>
        <translation>Colonne supposée</translation>
    </message>
    <message>
        <source>Coordinate system assumed</source>
        <translation>Système de coordonnées supposé</translation>
    </message>
    <message>
        <source>Not a number</source>
        <translation>Pas un nombre</translation>
    </message>
    <message>
        <source>Same shape twice</source>
        <translation>Même forme deux fois</translation>
    </message>
    <message>
        <source>Polygon far away</source>
        <translation>Polygone éloigné</translation>
    </message>
    <message>
        <source>Hole without a polygon</source>
        <translation>Trou sans polygone</translation>
    </message>
    <message>
        <source>Narrower than the machine</source>
        <translation>Plus étroit que la machine</translation>
    </message>
    <message>
        <source>Another field</source>
        <translation>Une autre parcelle</translation>
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
        <translation>Contrôle carte</translation>
    </message>
    <message>
        <source>Map check: %1</source>
        <translation>Contrôle de la carte&#xa0;: %1</translation>
    </message>
    <message>
        <source>lies %1 from %2, which feeds products, too</source>
        <translation>se trouve à %1 de %2, qui alimente aussi des produits</translation>
    </message>
</context>
<context>
    <name>FindingsPage</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Map check: %1</source>
        <translation>Contrôle de la carte&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>FolderListing</name>
    <message>
        <source>d MMM yyyy</source>
        <comment>a date, in QLocale&apos;s letters</comment>
        <translation>d MMM yyyy</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Trajet</translation>
    </message>
</context>
<context>
    <name>GuidancePage</name>
    <message>
        <source>Guidance page</source>
        <translation>Page de guidage</translation>
    </message>
</context>
<context>
    <name>HintCard</name>
    <message>
        <source>Got it</source>
        <translation>Compris</translation>
    </message>
</context>
<context>
    <name>Hints</name>
    <message>
        <source>How this terminal is used</source>
        <translation>Comment utiliser ce terminal</translation>
    </message>
    <message>
        <source>Touch the map to read the rate there. Drag it to move it; pinch it, turn the wheel or touch + and − to come nearer or farther.</source>
        <translation>Touchez la carte pour lire la dose à cet endroit. Faites-la glisser pour la déplacer&#xa0;; pincez-la, tournez la molette ou touchez + et − pour l’approcher ou l’éloigner.</translation>
    </message>
    <message>
        <source>The settings of the map are behind the button with the gear wheel: hold it for a second.</source>
        <translation>Les réglages de la carte sont derrière le bouton avec la roue dentée&#xa0;: maintenez-le une seconde.</translation>
    </message>
    <message>
        <source>The folder opens prescriptions; moon and sun switch between day and night.</source>
        <translation>Le dossier ouvre les préconisations&#xa0;; la lune et le soleil alternent jour et nuit.</translation>
    </message>
    <message>
        <source>On a keyboard Tab goes from control to control and Enter touches; arrows move the map.</source>
        <translation>Au clavier, Tab passe d’une commande à l’autre et Entrée la touche&#xa0;; les flèches déplacent la carte.</translation>
    </message>
    <message>
        <source>Hold this button longer</source>
        <translation>Maintenez ce bouton plus longtemps</translation>
    </message>
    <message>
        <source>A touch of one second opens the settings of the map.</source>
        <translation>Un appui d’une seconde ouvre les réglages de la carte.</translation>
    </message>
</context>
<context>
    <name>LegendPanel</name>
    <message>
        <source>No map</source>
        <translation>Aucune carte</translation>
    </message>
    <message>
        <source>%1 named by the operator</source>
        <translation>%1, selon l’opérateur</translation>
    </message>
    <message>
        <source>%1 from the format</source>
        <translation>%1, selon le format</translation>
    </message>
    <message>
        <source>%1 from another column</source>
        <translation>%1, selon une autre colonne</translation>
    </message>
    <message>
        <source>%1 from the texts</source>
        <translation>%1, selon les textes</translation>
    </message>
    <message>
        <source>%1 from the name</source>
        <translation>%1, selon le nom</translation>
    </message>
    <message>
        <source>unit not known</source>
        <translation>unité inconnue</translation>
    </message>
    <message>
        <source>not known, taken as %1</source>
        <translation>inconnue, prise comme %1</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Surface</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Légende</translation>
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
        <translation>Carte du fichier</translation>
    </message>
</context>
<context>
    <name>MessagePage</name>
    <message>
        <source>This cannot be opened</source>
        <translation>Ceci ne peut pas être ouvert</translation>
    </message>
    <message>
        <source>What was loaded before stays.</source>
        <translation>Ce qui était chargé le reste.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Another layer or task</source>
        <translation>Autre couche ou tâche</translation>
    </message>
</context>
<context>
    <name>NumericEntry</name>
    <message>
        <source>That would be no number</source>
        <translation>Ce ne serait pas un nombre</translation>
    </message>
    <message>
        <source>Whole numbers only</source>
        <translation>Nombres entiers seulement</translation>
    </message>
    <message>
        <source>Decimals: %1 at most</source>
        <translation>Décimales&#xa0;: %1 au plus</translation>
    </message>
    <message>
        <source>Beyond %1</source>
        <translation>Hors de %1</translation>
    </message>
    <message>
        <source>Too many digits</source>
        <translation>Trop de chiffres</translation>
    </message>
</context>
<context>
    <name>NumericKeypad</name>
    <message>
        <source>Minus</source>
        <translation>Moins</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Point</translation>
    </message>
    <message>
        <source>Delete the last digit</source>
        <translation>Effacer le dernier chiffre</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>OpenWindow</name>
    <message>
        <source>Reading %1</source>
        <translation>Lecture de %1</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Ouverture de %1</translation>
    </message>
    <message>
        <source>Which prescription of %1?</source>
        <translation>Quelle préconisation de %1&#xa0;?</translation>
    </message>
    <message>
        <source>Which layer?</source>
        <translation>Quelle couche&#xa0;?</translation>
    </message>
    <message>
        <source>Which task?</source>
        <translation>Quelle tâche&#xa0;?</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Which product does %1 feed?</source>
        <translation>Quel produit %1 alimente-t-elle&#xa0;?</translation>
    </message>
    <message>
        <source>In which unit is %1?</source>
        <translation>Dans quelle unité est %1&#xa0;?</translation>
    </message>
    <message>
        <source>Choose the unit of %1</source>
        <translation>Choisir l’unité de %1</translation>
    </message>
    <message>
        <source>Open as %1</source>
        <translation>Ouvrir en %1</translation>
    </message>
    <message>
        <source>The file does not tell in which unit it is</source>
        <translation>Le fichier n’indique pas son unité</translation>
    </message>
    <message>
        <source>%1 from %2, which stays open</source>
        <translation>À %1 de %2, qui reste ouvert</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Fermer %1</translation>
    </message>
    <message>
        <source>Keep %1 open</source>
        <translation>Garder %1 ouvert</translation>
    </message>
</context>
<context>
    <name>OpenedFiles</name>
    <message>
        <source>feeds no product</source>
        <translation>n’alimente rien</translation>
    </message>
    <message>
        <source>feeds %1</source>
        <translation>alimente %1</translation>
    </message>
</context>
<context>
    <name>Pager</name>
    <message>
        <source>Page before</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
</context>
<context>
    <name>PreviewPage</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Couche</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>Tâche</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Passer</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>encore %1</translation>
    </message>
    <message>
        <source>Polygons: %1</source>
        <translation>Polygones&#xa0;: %1</translation>
    </message>
    <message>
        <source>Choose a product for a column to open the file.</source>
        <translation>Choisissez le produit d’une colonne pour ouvrir le fichier.</translation>
    </message>
    <message>
        <source>%1 is called a total, not a rate</source>
        <translation>%1 porte le nom d’un total, non d’une dose</translation>
    </message>
    <message>
        <source>No product</source>
        <translation>Aucun produit</translation>
    </message>
    <message>
        <source>Replaces %1</source>
        <translation>Remplace %1</translation>
    </message>
    <message>
        <source>Takes %1 over from %2</source>
        <translation>Reprend %1 de %2</translation>
    </message>
    <message>
        <source>Lies %1 from %2</source>
        <translation>Se trouve à %1 de %2</translation>
    </message>
</context>
<context>
    <name>ProductFile</name>
    <message>
        <source>Seed</source>
        <translation>Semence</translation>
    </message>
    <message>
        <source>Seed</source>
        <comment>short</comment>
        <translation>Sem.</translation>
    </message>
    <message>
        <source>Fertiliser</source>
        <translation>Engrais</translation>
    </message>
    <message>
        <source>Fert</source>
        <comment>short</comment>
        <translation>Engr</translation>
    </message>
    <message>
        <source>Herbicide</source>
        <translation>Herbicide</translation>
    </message>
    <message>
        <source>Herb</source>
        <comment>short</comment>
        <translation>Herb</translation>
    </message>
    <message>
        <source>Product %1</source>
        <translation>Produit %1</translation>
    </message>
</context>
<context>
    <name>ProductSection</name>
    <message>
        <source>No prescription drives this product.</source>
        <translation>Aucune préconisation ne commande ce produit.</translation>
    </message>
    <message>
        <source>Column %1; look-ahead %2 s; dead time %3 s, time constant %4 s</source>
        <translation>Colonne %1&#xa0;; anticipation %2 s&#xa0;; temps mort %3 s, constante de temps %4 s</translation>
    </message>
    <message>
        <source>Prescribed</source>
        <translation>Préconisé</translation>
    </message>
    <message>
        <source>Applied</source>
        <translation>Appliqué</translation>
    </message>
    <message>
        <source>Each picture is %1 wide; north is up.</source>
        <translation>Chaque image fait %1 de large&#xa0;; le nord est en haut.</translation>
    </message>
    <message>
        <source>Area and amount by class</source>
        <translation>Surface et quantité par classe</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Classe</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Surface</translation>
    </message>
    <message>
        <source>Planned</source>
        <translation>Prévu</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Écart</translation>
    </message>
    <message>
        <source>of the plan</source>
        <translation>du prévu</translation>
    </message>
    <message>
        <source>No rate prescribed</source>
        <translation>Aucune dose préconisée</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Error: applied minus prescribed</source>
        <translation>Erreur&#xa0;: appliqué moins préconisé</translation>
    </message>
    <message>
        <source>Within %1 of what is prescribed: %2 of the area. Beyond the plot: %3.</source>
        <translation>À %1 au plus de la préconisation&#xa0;: %2 de la surface. Hors du graphique&#xa0;: %3.</translation>
    </message>
    <message>
        <source>applied minus prescribed</source>
        <translation>appliqué moins préconisé</translation>
    </message>
    <message>
        <source>Early and late</source>
        <translation>En avance et en retard</translation>
    </message>
    <message>
        <source>No change of rate was crossed.</source>
        <translation>Aucun changement de dose n’a été franchi.</translation>
    </message>
    <message>
        <source>%1 changes of rate; median %2, %3 s. Above zero is late, below zero is early.</source>
        <translation>%1 changements de dose&#xa0;; médiane %2, %3 s. Au-dessus de zéro&#xa0;: en retard&#xa0;; au-dessous&#xa0;: en avance.</translation>
    </message>
    <message>
        <source>The %1 that are farthest from their borders:</source>
        <translation>Les %1 les plus éloignés de leurs limites&#xa0;:</translation>
    </message>
    <message>
        <source>East of the middle</source>
        <translation>À l’est du centre</translation>
    </message>
    <message>
        <source>North of the middle</source>
        <translation>Au nord du centre</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>À</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>Retard</translation>
    </message>
    <message>
        <source>Look-ahead</source>
        <translation>Anticipation</translation>
    </message>
    <message>
        <source>A look-ahead of %1 s puts the changes nearest to the borders.</source>
        <translation>Une anticipation de %1 s place les changements au plus près des limites.</translation>
    </message>
    <message>
        <source>look-ahead</source>
        <translation>anticipation</translation>
    </message>
    <message>
        <source>median lateness</source>
        <translation>retard médian</translation>
    </message>
</context>
<context>
    <name>ProductSelector</name>
    <message>
        <source>Bin %1</source>
        <translation>Rés. %1</translation>
    </message>
    <message>
        <source>Product %1, bin %2</source>
        <translation>Produit %1, réservoir %2</translation>
    </message>
    <message>
        <source>PRODUCTS</source>
        <translation>PRODUITS</translation>
    </message>
</context>
<context>
    <name>ProgressPage</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
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
        <translation>présent</translation>
    </message>
    <message>
        <source>Plan here</source>
        <translation>Plan ici</translation>
    </message>
    <message>
        <source>Applied</source>
        <translation>Appliquée</translation>
    </message>
    <message>
        <source>Rates of the last half minute</source>
        <translation>Doses de la dernière demi-minute</translation>
    </message>
</context>
<context>
    <name>RateRow</name>
    <message>
        <source>Prescription</source>
        <translation>Préconisation</translation>
    </message>
    <message>
        <source>Default rate</source>
        <translation>Dose standard</translation>
    </message>
    <message>
        <source>Zero shut-off</source>
        <translation>Coupure à zéro</translation>
    </message>
    <message>
        <source>Least rate</source>
        <translation>Dose minimale</translation>
    </message>
    <message>
        <source>No position</source>
        <translation>Sans position</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>À l’arrêt</translation>
    </message>
    <message>
        <source>Not controlled</source>
        <translation>Non piloté</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Arrêt</translation>
    </message>
</context>
<context>
    <name>RateTable</name>
    <message>
        <source>Product</source>
        <translation>Produit</translation>
    </message>
    <message>
        <source>Prescribed</source>
        <translation>Préconisée</translation>
    </message>
    <message>
        <source>Commanded</source>
        <translation>Demandée</translation>
    </message>
    <message>
        <source>Applied</source>
        <translation>Appliquée</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origine</translation>
    </message>
    <message>
        <source>Rates now</source>
        <translation>Doses actuelles</translation>
    </message>
</context>
<context>
    <name>RecordWriter</name>
    <message>
        <source>%1: the record ends early: %2</source>
        <translation>%1 : l’enregistrement se termine trop tôt : %2</translation>
    </message>
    <message>
        <source>there is no room left on the disk</source>
        <translation>il n’y a plus de place sur le disque</translation>
    </message>
    <message>
        <source>another field is open</source>
        <translation>une autre parcelle est ouverte</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>Report of a drive</source>
        <translation>Rapport d’un parcours</translation>
    </message>
    <message>
        <source>Prescription</source>
        <translation>Préconisation</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Area worked</source>
        <translation>Surface travaillée</translation>
    </message>
    <message>
        <source>Working width</source>
        <translation>Largeur de travail</translation>
    </message>
    <message>
        <source>Default rate of %1</source>
        <translation>Dose standard de %1</translation>
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
        <translation>Aucune carte de préconisation chargée</translation>
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
        <translation>À l’arrêt</translation>
    </message>
    <message>
        <source>Loading %1</source>
        <translation>Chargement de %1</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
</context>
<context>
    <name>SystemReason</name>
    <message>
        <source>Permission denied</source>
        <translation>permission refusée</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>il n’y a plus de place sur le disque</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>ce fichier ou dossier n’existe pas</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>le disque est en lecture seule</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>l’espace attribué est épuisé</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>le fichier est trop grand</translation>
    </message>
</context>
<context>
    <name>TerminalWindow</name>
    <message>
        <source>Field terminal</source>
        <translation>Terminal agricole</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Parcelle</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Conduire</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Nuit</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Nearer</source>
        <translation>Plus près</translation>
    </message>
    <message>
        <source>Farther</source>
        <translation>Plus loin</translation>
    </message>
    <message>
        <source>The whole field</source>
        <translation>Toute la parcelle</translation>
    </message>
    <message>
        <source>Leave full screen</source>
        <translation>Quitter le plein écran</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
</context>
<context>
    <name>TrackParser</name>
    <message>
        <source>is no NMEA 0183 sentence</source>
        <translation>n’est pas une phrase NMEA 0183</translation>
    </message>
    <message>
        <source>its checksum is wrong</source>
        <translation>sa somme de contrôle est fausse</translation>
    </message>
    <message>
        <source>is cut off</source>
        <translation>est coupée</translation>
    </message>
    <message>
        <source>its time is none</source>
        <translation>son heure n’est pas valable</translation>
    </message>
    <message>
        <source>its position is none</source>
        <translation>sa position n’est pas valable</translation>
    </message>
    <message>
        <source>is no head with &quot;time&quot; and &quot;x&quot;, &quot;y&quot; or &quot;lon&quot;, &quot;lat&quot;</source>
        <translation>n’est pas un en-tête avec &quot;time&quot; et &quot;x&quot;, &quot;y&quot; ou &quot;lon&quot;, &quot;lat&quot;</translation>
    </message>
</context>
<context>
    <name>TrackReader</name>
    <message>
        <source>%1: holds no position</source>
        <translation>%1 : ne contient aucune position</translation>
    </message>
    <message>
        <source>%1: holds no position; %2</source>
        <translation>%1 : ne contient aucune position ; %2</translation>
    </message>
    <message>
        <source>is longer than %1 characters</source>
        <translation>a plus de %1 caractères</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
    <message>
        <source>its time is beyond the year 9999</source>
        <translation>son heure est postérieure à l’an 9999</translation>
    </message>
    <message>
        <source>goes back in time</source>
        <translation>remonte dans le temps</translation>
    </message>
    <message>
        <source>lies off the field&apos;s plane</source>
        <translation>se trouve hors du plan de la parcelle</translation>
    </message>
    <message>
        <source>is in degrees, and no field is loaded to place them</source>
        <translation>est en degrés, et aucune parcelle n’est chargée pour les situer</translation>
    </message>
    <message>
        <source>jumps by %1 m</source>
        <translation>saute de %1 m</translation>
    </message>
</context>
<context>
    <name>UnitPage</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Quantité</translation>
    </message>
    <message>
        <source>per area</source>
        <translation>par surface</translation>
    </message>
    <message>
        <source>As in the file</source>
        <translation>Comme dans le fichier</translation>
    </message>
    <message>
        <source>Other amounts</source>
        <translation>Autres quantités</translation>
    </message>
    <message>
        <source>it does not tell</source>
        <translation>il ne la dit pas</translation>
    </message>
    <message>
        <source>thousand</source>
        <translation>milliers</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Prendre</translation>
    </message>
    <message>
        <source>Take %1</source>
        <translation>Prendre %1</translation>
    </message>
    <message>
        <source>amount and area</source>
        <translation>quantité et surface</translation>
    </message>
</context>
<context>
    <name>WheelBar</name>
    <message>
        <source>Steering wheel</source>
        <translation>Volant</translation>
    </message>
</context>
</TS>
