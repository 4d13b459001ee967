<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ChoicePage</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>ColumnRow</name>
    <message>
        <source>guess</source>
        <translation>supuesto</translation>
    </message>
    <message>
        <source>total</source>
        <translation>total</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>feeds no product</source>
        <translation>no alimenta nada</translation>
    </message>
    <message>
        <source>Product %1</source>
        <translation>Producto %1</translation>
    </message>
    <message>
        <source>less than 1 % without a rate</source>
        <translation>menos de 1 % sin dosis</translation>
    </message>
    <message>
        <source>%1 % without a rate</source>
        <translation>%1 % sin dosis</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>desconocida</translation>
    </message>
    <message>
        <source>does not fit</source>
        <translation>no corresponde</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>elegida</translation>
    </message>
    <message>
        <source>from the format</source>
        <translation>del formato</translation>
    </message>
    <message>
        <source>from a column</source>
        <translation>de una columna</translation>
    </message>
    <message>
        <source>from its texts</source>
        <translation>de sus textos</translation>
    </message>
    <message>
        <source>from the name</source>
        <translation>del nombre</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidad</translation>
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
        <translation>No hay ninguna prescripción cargada que recorrer.</translation>
    </message>
    <message>
        <source>The field cannot be driven in swaths.</source>
        <translation>No se puede recorrer el campo en pasadas.</translation>
    </message>
    <message>
        <source>The field is %1 wide, narrower than the machine (%2).</source>
        <translation>El campo mide %1 de ancho, menos que la máquina (%2).</translation>
    </message>
    <message>
        <source>The end of the way is reached.</source>
        <translation>Se ha llegado al final del recorrido.</translation>
    </message>
</context>
<context>
    <name>DrivePanel</name>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Seguir</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Swaths</source>
        <translation>Pasadas</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>A mano</translation>
    </message>
    <message>
        <source>Signal loss</source>
        <translation>Pérdida de señal</translation>
    </message>
    <message>
        <source>Brake</source>
        <translation>Freno</translation>
    </message>
    <message>
        <source>Throttle</source>
        <translation>Acelerar</translation>
    </message>
    <message>
        <source>%1× time</source>
        <comment>pace of the simulated time</comment>
        <translation>%1× tiempo</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Más lento</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Más rápido</translation>
    </message>
    <message>
        <source>Time passes slower</source>
        <translation>El tiempo pasa más lento</translation>
    </message>
    <message>
        <source>Time passes faster</source>
        <translation>El tiempo pasa más rápido</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Grabar</translation>
    </message>
</context>
<context>
    <name>DriveRecord</name>
    <message>
        <source>The drive is no longer recorded</source>
        <translation>El recorrido ya no se graba</translation>
    </message>
    <message>
        <source>drive</source>
        <comment>name of a record where no field is open</comment>
        <translation>recorrido</translation>
    </message>
    <message>
        <source>%1: this folder cannot be made</source>
        <translation>%1: esta carpeta no se puede crear</translation>
    </message>
    <message>
        <source>The drive cannot be recorded</source>
        <translation>El recorrido no se puede grabar</translation>
    </message>
    <message>
        <source>The drive is recorded</source>
        <translation>El recorrido está grabado</translation>
    </message>
    <message>
        <source>The drive is not recorded to its end</source>
        <translation>El recorrido no está grabado hasta el final</translation>
    </message>
</context>
<context>
    <name>DriveStrip</name>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>Next page of rates</source>
        <translation>Página siguiente de dosis</translation>
    </message>
</context>
<context>
    <name>FieldView</name>
    <message>
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
</context>
<context>
    <name>FileOpening</name>
    <message>
        <source>Open a prescription</source>
        <translation>Abrir una prescripción</translation>
    </message>
    <message>
        <source>%1 is no file of this computer</source>
        <translation>%1 no es un archivo de este equipo</translation>
    </message>
    <message>
        <source>%1 is a track: open the prescription of its field first</source>
        <translation>%1 es un recorrido: abra primero la prescripción de su campo</translation>
    </message>
    <message>
        <source>Lines of %1 left out: %2</source>
        <translation>Líneas omitidas de %1: %2</translation>
    </message>
</context>
<context>
    <name>FilePage</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recientes</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Carpeta personal</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Folder up</source>
        <translation>Carpeta superior</translation>
    </message>
    <message>
        <source>No prescription was opened here before.</source>
        <translation>Aquí aún no se ha abierto ninguna prescripción.</translation>
    </message>
    <message>
        <source>Nothing in this folder can be opened.</source>
        <translation>En esta carpeta no hay nada que se pueda abrir.</translation>
    </message>
    <message>
        <source>This folder cannot be read.</source>
        <translation>Esta carpeta no se puede leer.</translation>
    </message>
    <message>
        <source>is no longer there</source>
        <translation>ya no está</translation>
    </message>
    <message>
        <source>Opened</source>
        <translation>Abiertos</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Opened prescriptions</source>
        <translation>Prescripciones abiertas</translation>
    </message>
    <message>
        <source>No prescription is open.</source>
        <translation>No hay ninguna prescripción abierta.</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 archivo</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 archivos</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Cerrar %1</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Sample field</source>
        <translation>Campo de muestra</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Archivos recientes</translation>
    </message>
    <message>
        <source>No drive was recorded yet. &quot;Record&quot; records what the machine does from then on.</source>
        <translation>Aún no se ha grabado ningún recorrido. &quot;Grabar&quot; graba lo que la máquina hace a partir de entonces.</translation>
    </message>
</context>
<context>
    <name>FindingKind</name>
    <message>
        <source>Overlap</source>
        <translation>Superposición</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Hueco</translation>
    </message>
    <message>
        <source>Sliver</source>
        <translation>Astilla</translation>
    </message>
    <message>
        <source>Repaired</source>
        <translation>Reparado</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Omitido</translation>
    </message>
    <message>
        <source>Rate far from the rest</source>
        <translation>Dosis alejada de las demás</translation>
    </message>
    <message>
        <source>Totals, not rates</source>
        <translation>Totales, no dosis</translation>
    </message>
    <message>
        <source>Unit not known</source>
        <translation>Unidad desconocida</translation>
    </message>
    <message>
        <source>Unit does not fit</source>
        <translation>Unidad incompatible</translation>
    </message>
    <message>
        <source>Column is a guess</source>
        <translation>Columna supuesta</translation>
    </message>
    <message>
        <source>Coordinate system assumed</source>
        <translation>Sistema de coordenadas supuesto</translation>
    </message>
    <message>
        <source>Not a number</source>
        <translation>No es un número</translation>
    </message>
    <message>
        <source>Same shape twice</source>
        <translation>La misma forma dos veces</translation>
    </message>
    <message>
        <source>Polygon far away</source>
        <translation>Polígono alejado</translation>
    </message>
    <message>
        <source>Hole without a polygon</source>
        <translation>Agujero sin polígono</translation>
    </message>
    <message>
        <source>Narrower than the machine</source>
        <translation>Más estrecho que la máquina</translation>
    </message>
    <message>
        <source>Another field</source>
        <translation>Otro campo</translation>
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
        <translation>Revisión del mapa</translation>
    </message>
    <message>
        <source>Map check: %1</source>
        <translation>Revisión del mapa: %1</translation>
    </message>
    <message>
        <source>lies %1 from %2, which feeds products, too</source>
        <translation>está a %1 de %2, que también alimenta productos</translation>
    </message>
</context>
<context>
    <name>FindingsPage</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Map check: %1</source>
        <translation>Revisión del mapa: %1</translation>
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
        <translation>Recorrido</translation>
    </message>
</context>
<context>
    <name>GuidancePage</name>
    <message>
        <source>Guidance page</source>
        <translation>Página de guiado</translation>
    </message>
</context>
<context>
    <name>HintCard</name>
    <message>
        <source>Got it</source>
        <translation>Entendido</translation>
    </message>
</context>
<context>
    <name>Hints</name>
    <message>
        <source>How this terminal is used</source>
        <translation>Cómo se usa este terminal</translation>
    </message>
    <message>
        <source>Touch the map to read the rate there. Drag it to move it; pinch it, turn the wheel or touch + and − to come nearer or farther.</source>
        <translation>Toque el mapa para leer la dosis en ese lugar. Arrástrelo para moverlo; use dos dedos, la rueda o + y − para acercarlo o alejarlo.</translation>
    </message>
    <message>
        <source>The settings of the map are behind the button with the gear wheel: hold it for a second.</source>
        <translation>Los ajustes del mapa están en el botón con el engranaje: manténgalo pulsado un segundo.</translation>
    </message>
    <message>
        <source>The folder opens prescriptions; moon and sun switch between day and night.</source>
        <translation>La carpeta abre prescripciones; la luna y el sol cambian entre día y noche.</translation>
    </message>
    <message>
        <source>On a keyboard Tab goes from control to control and Enter touches; arrows move the map.</source>
        <translation>Con un teclado, Tab pasa de un control a otro y Entrar lo toca; las flechas mueven el mapa.</translation>
    </message>
    <message>
        <source>Hold this button longer</source>
        <translation>Mantenga este botón más tiempo</translation>
    </message>
    <message>
        <source>A touch of one second opens the settings of the map.</source>
        <translation>Un toque de un segundo abre los ajustes del mapa.</translation>
    </message>
</context>
<context>
    <name>LegendPanel</name>
    <message>
        <source>No map</source>
        <translation>Sin mapa</translation>
    </message>
    <message>
        <source>%1 named by the operator</source>
        <translation>%1, según el operador</translation>
    </message>
    <message>
        <source>%1 from the format</source>
        <translation>%1, según el formato</translation>
    </message>
    <message>
        <source>%1 from another column</source>
        <translation>%1, según otra columna</translation>
    </message>
    <message>
        <source>%1 from the texts</source>
        <translation>%1, según los textos</translation>
    </message>
    <message>
        <source>%1 from the name</source>
        <translation>%1, según el nombre</translation>
    </message>
    <message>
        <source>unit not known</source>
        <translation>unidad desconocida</translation>
    </message>
    <message>
        <source>not known, taken as %1</source>
        <translation>desconocida, tomada como %1</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Superficie</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Leyenda</translation>
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
        <translation>Mapa del archivo</translation>
    </message>
</context>
<context>
    <name>MessagePage</name>
    <message>
        <source>This cannot be opened</source>
        <translation>Esto no se puede abrir</translation>
    </message>
    <message>
        <source>What was loaded before stays.</source>
        <translation>Lo que estaba cargado permanece.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Another layer or task</source>
        <translation>Otra capa o tarea</translation>
    </message>
</context>
<context>
    <name>NumericEntry</name>
    <message>
        <source>That would be no number</source>
        <translation>Eso no sería un número</translation>
    </message>
    <message>
        <source>Whole numbers only</source>
        <translation>Solo números enteros</translation>
    </message>
    <message>
        <source>Decimals: %1 at most</source>
        <translation>Decimales: %1 como máximo</translation>
    </message>
    <message>
        <source>Beyond %1</source>
        <translation>Fuera de %1</translation>
    </message>
    <message>
        <source>Too many digits</source>
        <translation>Demasiadas cifras</translation>
    </message>
</context>
<context>
    <name>NumericKeypad</name>
    <message>
        <source>Minus</source>
        <translation>Menos</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punto</translation>
    </message>
    <message>
        <source>Delete the last digit</source>
        <translation>Borrar la última cifra</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
</context>
<context>
    <name>OpenWindow</name>
    <message>
        <source>Reading %1</source>
        <translation>Leyendo %1</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Abriendo %1</translation>
    </message>
    <message>
        <source>Which prescription of %1?</source>
        <translation>¿Qué prescripción de %1?</translation>
    </message>
    <message>
        <source>Which layer?</source>
        <translation>¿Qué capa?</translation>
    </message>
    <message>
        <source>Which task?</source>
        <translation>¿Qué tarea?</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Which product does %1 feed?</source>
        <translation>¿Para qué producto es %1?</translation>
    </message>
    <message>
        <source>In which unit is %1?</source>
        <translation>¿En qué unidad está %1?</translation>
    </message>
    <message>
        <source>Choose the unit of %1</source>
        <translation>Elegir la unidad de %1</translation>
    </message>
    <message>
        <source>Open as %1</source>
        <translation>Abrir como %1</translation>
    </message>
    <message>
        <source>The file does not tell in which unit it is</source>
        <translation>El archivo no indica su unidad</translation>
    </message>
    <message>
        <source>%1 from %2, which stays open</source>
        <translation>A %1 de %2, que sigue abierto</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Cerrar %1</translation>
    </message>
    <message>
        <source>Keep %1 open</source>
        <translation>Dejar %1 abierto</translation>
    </message>
</context>
<context>
    <name>OpenedFiles</name>
    <message>
        <source>feeds no product</source>
        <translation>no alimenta nada</translation>
    </message>
    <message>
        <source>feeds %1</source>
        <translation>alimenta %1</translation>
    </message>
</context>
<context>
    <name>Pager</name>
    <message>
        <source>Page before</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Página siguiente</translation>
    </message>
</context>
<context>
    <name>PreviewPage</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Capa</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>Tarea</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 más</translation>
    </message>
    <message>
        <source>Polygons: %1</source>
        <translation>Polígonos: %1</translation>
    </message>
    <message>
        <source>Choose a product for a column to open the file.</source>
        <translation>Elija un producto para una columna para abrir el archivo.</translation>
    </message>
    <message>
        <source>%1 is called a total, not a rate</source>
        <translation>%1 lleva el nombre de un total, no de una dosis</translation>
    </message>
    <message>
        <source>No product</source>
        <translation>Ningún producto</translation>
    </message>
    <message>
        <source>Replaces %1</source>
        <translation>Sustituye a %1</translation>
    </message>
    <message>
        <source>Takes %1 over from %2</source>
        <translation>Toma %1 de %2</translation>
    </message>
    <message>
        <source>Lies %1 from %2</source>
        <translation>Está a %1 de %2</translation>
    </message>
</context>
<context>
    <name>ProductFile</name>
    <message>
        <source>Seed</source>
        <translation>Semilla</translation>
    </message>
    <message>
        <source>Seed</source>
        <comment>short</comment>
        <translation>Sem.</translation>
    </message>
    <message>
        <source>Fertiliser</source>
        <translation>Fertilizante</translation>
    </message>
    <message>
        <source>Fert</source>
        <comment>short</comment>
        <translation>Fert</translation>
    </message>
    <message>
        <source>Herbicide</source>
        <translation>Herbicida</translation>
    </message>
    <message>
        <source>Herb</source>
        <comment>short</comment>
        <translation>Herb</translation>
    </message>
    <message>
        <source>Product %1</source>
        <translation>Producto %1</translation>
    </message>
</context>
<context>
    <name>ProductSection</name>
    <message>
        <source>No prescription drives this product.</source>
        <translation>Ninguna prescripción controla este producto.</translation>
    </message>
    <message>
        <source>Column %1; look-ahead %2 s; dead time %3 s, time constant %4 s</source>
        <translation>Columna %1; anticipación %2 s; tiempo muerto %3 s, constante de tiempo %4 s</translation>
    </message>
    <message>
        <source>Prescribed</source>
        <translation>Prescrito</translation>
    </message>
    <message>
        <source>Applied</source>
        <translation>Aplicado</translation>
    </message>
    <message>
        <source>Each picture is %1 wide; north is up.</source>
        <translation>Cada imagen abarca %1 de ancho; el norte está arriba.</translation>
    </message>
    <message>
        <source>Area and amount by class</source>
        <translation>Superficie y cantidad por clase</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Clase</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Superficie</translation>
    </message>
    <message>
        <source>Planned</source>
        <translation>Previsto</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <source>of the plan</source>
        <translation>de lo previsto</translation>
    </message>
    <message>
        <source>No rate prescribed</source>
        <translation>Sin dosis prescrita</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Error: applied minus prescribed</source>
        <translation>Error: aplicado menos prescrito</translation>
    </message>
    <message>
        <source>Within %1 of what is prescribed: %2 of the area. Beyond the plot: %3.</source>
        <translation>A no más de %1 de lo prescrito: %2 de la superficie. Fuera del gráfico: %3.</translation>
    </message>
    <message>
        <source>applied minus prescribed</source>
        <translation>aplicado menos prescrito</translation>
    </message>
    <message>
        <source>Early and late</source>
        <translation>Adelanto y retraso</translation>
    </message>
    <message>
        <source>No change of rate was crossed.</source>
        <translation>No se cruzó ningún cambio de dosis.</translation>
    </message>
    <message>
        <source>%1 changes of rate; median %2, %3 s. Above zero is late, below zero is early.</source>
        <translation>%1 cambios de dosis; mediana %2, %3 s. Por encima de cero hay retraso; por debajo, adelanto.</translation>
    </message>
    <message>
        <source>The %1 that are farthest from their borders:</source>
        <translation>Los %1 más alejados de sus límites:</translation>
    </message>
    <message>
        <source>East of the middle</source>
        <translation>Al este del centro</translation>
    </message>
    <message>
        <source>North of the middle</source>
        <translation>Al norte del centro</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>Retraso</translation>
    </message>
    <message>
        <source>Look-ahead</source>
        <translation>Anticipación</translation>
    </message>
    <message>
        <source>A look-ahead of %1 s puts the changes nearest to the borders.</source>
        <translation>Una anticipación de %1 s acerca más los cambios a los límites.</translation>
    </message>
    <message>
        <source>look-ahead</source>
        <translation>anticipación</translation>
    </message>
    <message>
        <source>median lateness</source>
        <translation>retraso mediano</translation>
    </message>
</context>
<context>
    <name>ProductSelector</name>
    <message>
        <source>Bin %1</source>
        <translation>Dep. %1</translation>
    </message>
    <message>
        <source>Product %1, bin %2</source>
        <translation>Producto %1, depósito %2</translation>
    </message>
    <message>
        <source>PRODUCTS</source>
        <translation>PRODUCTOS</translation>
    </message>
</context>
<context>
    <name>ProgressPage</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
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
        <translation>ahora</translation>
    </message>
    <message>
        <source>Plan here</source>
        <translation>Plan aquí</translation>
    </message>
    <message>
        <source>Applied</source>
        <translation>Aplicada</translation>
    </message>
    <message>
        <source>Rates of the last half minute</source>
        <translation>Dosis del último medio minuto</translation>
    </message>
</context>
<context>
    <name>RateRow</name>
    <message>
        <source>Prescription</source>
        <translation>Prescripción</translation>
    </message>
    <message>
        <source>Default rate</source>
        <translation>Dosis estándar</translation>
    </message>
    <message>
        <source>Zero shut-off</source>
        <translation>Corte con cero</translation>
    </message>
    <message>
        <source>Least rate</source>
        <translation>Dosis mínima</translation>
    </message>
    <message>
        <source>No position</source>
        <translation>Sin posición</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenido</translation>
    </message>
    <message>
        <source>Not controlled</source>
        <translation>Sin control</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Apagado</translation>
    </message>
</context>
<context>
    <name>RateTable</name>
    <message>
        <source>Product</source>
        <translation>Producto</translation>
    </message>
    <message>
        <source>Prescribed</source>
        <translation>Prescrita</translation>
    </message>
    <message>
        <source>Commanded</source>
        <translation>Ordenada</translation>
    </message>
    <message>
        <source>Applied</source>
        <translation>Aplicada</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origen</translation>
    </message>
    <message>
        <source>Rates now</source>
        <translation>Dosis actuales</translation>
    </message>
</context>
<context>
    <name>RecordWriter</name>
    <message>
        <source>%1: the record ends early: %2</source>
        <translation>%1: la grabación termina antes de tiempo: %2</translation>
    </message>
    <message>
        <source>there is no room left on the disk</source>
        <translation>no queda espacio en el disco</translation>
    </message>
    <message>
        <source>another field is open</source>
        <translation>está abierto otro campo</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>Report of a drive</source>
        <translation>Informe de un recorrido</translation>
    </message>
    <message>
        <source>Prescription</source>
        <translation>Prescripción</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distancia</translation>
    </message>
    <message>
        <source>Area worked</source>
        <translation>Superficie trabajada</translation>
    </message>
    <message>
        <source>Working width</source>
        <translation>Ancho de trabajo</translation>
    </message>
    <message>
        <source>Default rate of %1</source>
        <translation>Dosis estándar de %1</translation>
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
        <translation>Ningún mapa de prescripción cargado</translation>
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
        <translation>Detenido</translation>
    </message>
    <message>
        <source>Loading %1</source>
        <translation>Cargando %1</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
</context>
<context>
    <name>SystemReason</name>
    <message>
        <source>Permission denied</source>
        <translation>permiso denegado</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>no queda espacio en el disco</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>no existe este archivo o carpeta</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>el disco es de solo lectura</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>se ha agotado el espacio asignado</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>el archivo es demasiado grande</translation>
    </message>
</context>
<context>
    <name>TerminalWindow</name>
    <message>
        <source>Field terminal</source>
        <translation>Terminal de campo</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Conducir</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noche</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Nearer</source>
        <translation>Más cerca</translation>
    </message>
    <message>
        <source>Farther</source>
        <translation>Más lejos</translation>
    </message>
    <message>
        <source>The whole field</source>
        <translation>Todo el campo</translation>
    </message>
    <message>
        <source>Leave full screen</source>
        <translation>Salir de pantalla completa</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Pantalla completa</translation>
    </message>
</context>
<context>
    <name>TrackParser</name>
    <message>
        <source>is no NMEA 0183 sentence</source>
        <translation>no es una sentencia NMEA 0183</translation>
    </message>
    <message>
        <source>its checksum is wrong</source>
        <translation>su suma de control es incorrecta</translation>
    </message>
    <message>
        <source>is cut off</source>
        <translation>está cortada</translation>
    </message>
    <message>
        <source>its time is none</source>
        <translation>su hora no es válida</translation>
    </message>
    <message>
        <source>its position is none</source>
        <translation>su posición no es válida</translation>
    </message>
    <message>
        <source>is no head with &quot;time&quot; and &quot;x&quot;, &quot;y&quot; or &quot;lon&quot;, &quot;lat&quot;</source>
        <translation>no es un encabezado con &quot;time&quot; y &quot;x&quot;, &quot;y&quot; o &quot;lon&quot;, &quot;lat&quot;</translation>
    </message>
</context>
<context>
    <name>TrackReader</name>
    <message>
        <source>%1: holds no position</source>
        <translation>%1: no contiene ninguna posición</translation>
    </message>
    <message>
        <source>%1: holds no position; %2</source>
        <translation>%1: no contiene ninguna posición; %2</translation>
    </message>
    <message>
        <source>is longer than %1 characters</source>
        <translation>tiene más de %1 caracteres</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>its time is beyond the year 9999</source>
        <translation>su hora es posterior al año 9999</translation>
    </message>
    <message>
        <source>goes back in time</source>
        <translation>retrocede en el tiempo</translation>
    </message>
    <message>
        <source>lies off the field&apos;s plane</source>
        <translation>está fuera del plano del campo</translation>
    </message>
    <message>
        <source>is in degrees, and no field is loaded to place them</source>
        <translation>está en grados y no hay ningún campo cargado para situarlos</translation>
    </message>
    <message>
        <source>jumps by %1 m</source>
        <translation>salta %1 m</translation>
    </message>
</context>
<context>
    <name>UnitPage</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>per area</source>
        <translation>por superficie</translation>
    </message>
    <message>
        <source>As in the file</source>
        <translation>Como en el archivo</translation>
    </message>
    <message>
        <source>Other amounts</source>
        <translation>Otras cantidades</translation>
    </message>
    <message>
        <source>it does not tell</source>
        <translation>no la indica</translation>
    </message>
    <message>
        <source>thousand</source>
        <translation>miles</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Tomar</translation>
    </message>
    <message>
        <source>Take %1</source>
        <translation>Tomar %1</translation>
    </message>
    <message>
        <source>amount and area</source>
        <translation>cantidad y superficie</translation>
    </message>
</context>
<context>
    <name>WheelBar</name>
    <message>
        <source>Steering wheel</source>
        <translation>Volante</translation>
    </message>
</context>
</TS>
