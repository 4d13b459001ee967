<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>ChoicePage</name>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
</context>
<context>
    <name>ColumnRow</name>
    <message>
        <source>guess</source>
        <translation>suposto</translation>
    </message>
    <message>
        <source>total</source>
        <translation>total</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>feeds no product</source>
        <translation>sem produto</translation>
    </message>
    <message>
        <source>Product %1</source>
        <translation>Produto %1</translation>
    </message>
    <message>
        <source>less than 1 % without a rate</source>
        <translation>menos de 1 % sem dose</translation>
    </message>
    <message>
        <source>%1 % without a rate</source>
        <translation>%1 % sem dose</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>desconhecida</translation>
    </message>
    <message>
        <source>does not fit</source>
        <translation>não corresponde</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>escolhida</translation>
    </message>
    <message>
        <source>from the format</source>
        <translation>do formato</translation>
    </message>
    <message>
        <source>from a column</source>
        <translation>de uma coluna</translation>
    </message>
    <message>
        <source>from its texts</source>
        <translation>dos textos</translation>
    </message>
    <message>
        <source>from the name</source>
        <translation>do nome</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidade</translation>
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
        <translation>Nenhuma prescrição carregada para percorrer.</translation>
    </message>
    <message>
        <source>The field cannot be driven in swaths.</source>
        <translation>O talhão não pode ser percorrido em passadas.</translation>
    </message>
    <message>
        <source>The field is %1 wide, narrower than the machine (%2).</source>
        <translation>O talhão tem %1 de largura, menos que a máquina (%2).</translation>
    </message>
    <message>
        <source>The end of the way is reached.</source>
        <translation>O fim do percurso foi alcançado.</translation>
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
        <translation>Câmera</translation>
    </message>
    <message>
        <source>Swaths</source>
        <translation>Passadas</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>À mão</translation>
    </message>
    <message>
        <source>Signal loss</source>
        <translation>Perda de sinal</translation>
    </message>
    <message>
        <source>Brake</source>
        <translation>Freio</translation>
    </message>
    <message>
        <source>Throttle</source>
        <translation>Acelerar</translation>
    </message>
    <message>
        <source>%1× time</source>
        <comment>pace of the simulated time</comment>
        <translation>%1× tempo</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Mais devagar</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Mais rápido</translation>
    </message>
    <message>
        <source>Time passes slower</source>
        <translation>O tempo passa mais devagar</translation>
    </message>
    <message>
        <source>Time passes faster</source>
        <translation>O tempo passa mais rápido</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>Reproduzir</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Gravar</translation>
    </message>
</context>
<context>
    <name>DriveRecord</name>
    <message>
        <source>The drive is no longer recorded</source>
        <translation>O percurso não está mais sendo gravado</translation>
    </message>
    <message>
        <source>drive</source>
        <comment>name of a record where no field is open</comment>
        <translation>percurso</translation>
    </message>
    <message>
        <source>%1: this folder cannot be made</source>
        <translation>%1: esta pasta não pode ser criada</translation>
    </message>
    <message>
        <source>The drive cannot be recorded</source>
        <translation>O percurso não pode ser gravado</translation>
    </message>
    <message>
        <source>The drive is recorded</source>
        <translation>O percurso está gravado</translation>
    </message>
    <message>
        <source>The drive is not recorded to its end</source>
        <translation>O percurso não está gravado até o fim</translation>
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
        <translation>Próxima página de doses</translation>
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
        <translation>Abrir uma prescrição</translation>
    </message>
    <message>
        <source>%1 is no file of this computer</source>
        <translation>%1 não é um arquivo deste computador</translation>
    </message>
    <message>
        <source>%1 is a track: open the prescription of its field first</source>
        <translation>%1 é um percurso: abra primeiro a prescrição do campo</translation>
    </message>
    <message>
        <source>Lines of %1 left out: %2</source>
        <translation>Linhas omitidas de %1: %2</translation>
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
        <translation>Recentes</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pasta pessoal</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computador</translation>
    </message>
    <message>
        <source>Folder up</source>
        <translation>Pasta acima</translation>
    </message>
    <message>
        <source>No prescription was opened here before.</source>
        <translation>Nenhuma prescrição foi aberta aqui ainda.</translation>
    </message>
    <message>
        <source>Nothing in this folder can be opened.</source>
        <translation>Nada nesta pasta pode ser aberto.</translation>
    </message>
    <message>
        <source>This folder cannot be read.</source>
        <translation>Esta pasta não pode ser lida.</translation>
    </message>
    <message>
        <source>is no longer there</source>
        <translation>não está mais lá</translation>
    </message>
    <message>
        <source>Opened</source>
        <translation>Abertos</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Opened prescriptions</source>
        <translation>Prescrições abertas</translation>
    </message>
    <message>
        <source>No prescription is open.</source>
        <translation>Nenhuma prescrição está aberta.</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 arquivo</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 arquivos</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Fechar %1</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Sample field</source>
        <translation>Talhão de exemplo</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Arquivos recentes</translation>
    </message>
    <message>
        <source>No drive was recorded yet. &quot;Record&quot; records what the machine does from then on.</source>
        <translation>Nenhum percurso foi gravado ainda. &quot;Gravar&quot; grava o que a máquina faz a partir de então.</translation>
    </message>
</context>
<context>
    <name>FindingKind</name>
    <message>
        <source>Overlap</source>
        <translation>Sobreposição</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Lacuna</translation>
    </message>
    <message>
        <source>Sliver</source>
        <translation>Lasca</translation>
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
        <translation>Dose distante das demais</translation>
    </message>
    <message>
        <source>Totals, not rates</source>
        <translation>Totais, não doses</translation>
    </message>
    <message>
        <source>Unit not known</source>
        <translation>Unidade desconhecida</translation>
    </message>
    <message>
        <source>Unit does not fit</source>
        <translation>Unidade incompatível</translation>
    </message>
    <message>
        <source>Column is a guess</source>
        <translation>Coluna suposta</translation>
    </message>
    <message>
        <source>Coordinate system assumed</source>
        <translation>Sistema de coordenadas suposto</translation>
    </message>
    <message>
        <source>Not a number</source>
        <translation>Não é um número</translation>
    </message>
    <message>
        <source>Same shape twice</source>
        <translation>A mesma forma duas vezes</translation>
    </message>
    <message>
        <source>Polygon far away</source>
        <translation>Polígono distante</translation>
    </message>
    <message>
        <source>Hole without a polygon</source>
        <translation>Buraco sem polígono</translation>
    </message>
    <message>
        <source>Narrower than the machine</source>
        <translation>Mais estreito que a máquina</translation>
    </message>
    <message>
        <source>Another field</source>
        <translation>Outro talhão</translation>
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
        <translation>Verificar mapa</translation>
    </message>
    <message>
        <source>Map check: %1</source>
        <translation>Verificação do mapa: %1</translation>
    </message>
    <message>
        <source>lies %1 from %2, which feeds products, too</source>
        <translation>fica a %1 de %2, que também alimenta produtos</translation>
    </message>
</context>
<context>
    <name>FindingsPage</name>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Map check: %1</source>
        <translation>Verificação do mapa: %1</translation>
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
        <translation>Percurso</translation>
    </message>
</context>
<context>
    <name>GuidancePage</name>
    <message>
        <source>Guidance page</source>
        <translation>Página de orientação</translation>
    </message>
</context>
<context>
    <name>HintCard</name>
    <message>
        <source>Got it</source>
        <translation>Entendi</translation>
    </message>
</context>
<context>
    <name>Hints</name>
    <message>
        <source>How this terminal is used</source>
        <translation>Como usar este terminal</translation>
    </message>
    <message>
        <source>Touch the map to read the rate there. Drag it to move it; pinch it, turn the wheel or touch + and − to come nearer or farther.</source>
        <translation>Toque no mapa para ler a dose naquele ponto. Arraste-o para movê-lo; use dois dedos, a roda ou + e − para aproximar ou afastar.</translation>
    </message>
    <message>
        <source>The settings of the map are behind the button with the gear wheel: hold it for a second.</source>
        <translation>As configurações do mapa estão no botão com a engrenagem: segure-o por um segundo.</translation>
    </message>
    <message>
        <source>The folder opens prescriptions; moon and sun switch between day and night.</source>
        <translation>A pasta abre prescrições; a lua e o sol alternam entre dia e noite.</translation>
    </message>
    <message>
        <source>On a keyboard Tab goes from control to control and Enter touches; arrows move the map.</source>
        <translation>No teclado, Tab passa de um controle a outro e Enter o toca; as setas movem o mapa.</translation>
    </message>
    <message>
        <source>Hold this button longer</source>
        <translation>Segure este botão por mais tempo</translation>
    </message>
    <message>
        <source>A touch of one second opens the settings of the map.</source>
        <translation>Um toque de um segundo abre as configurações do mapa.</translation>
    </message>
</context>
<context>
    <name>LegendPanel</name>
    <message>
        <source>No map</source>
        <translation>Sem mapa</translation>
    </message>
    <message>
        <source>%1 named by the operator</source>
        <translation>%1, segundo o operador</translation>
    </message>
    <message>
        <source>%1 from the format</source>
        <translation>%1, segundo o formato</translation>
    </message>
    <message>
        <source>%1 from another column</source>
        <translation>%1, segundo outra coluna</translation>
    </message>
    <message>
        <source>%1 from the texts</source>
        <translation>%1, segundo os textos</translation>
    </message>
    <message>
        <source>%1 from the name</source>
        <translation>%1, segundo o nome</translation>
    </message>
    <message>
        <source>unit not known</source>
        <translation>unidade desconhecida</translation>
    </message>
    <message>
        <source>not known, taken as %1</source>
        <translation>desconhecida, tomada como %1</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Área</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Legenda</translation>
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
        <translation>Mapa do arquivo</translation>
    </message>
</context>
<context>
    <name>MessagePage</name>
    <message>
        <source>This cannot be opened</source>
        <translation>Isto não pode ser aberto</translation>
    </message>
    <message>
        <source>What was loaded before stays.</source>
        <translation>O que estava carregado permanece.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Another layer or task</source>
        <translation>Outra camada ou tarefa</translation>
    </message>
</context>
<context>
    <name>NumericEntry</name>
    <message>
        <source>That would be no number</source>
        <translation>Isso não seria um número</translation>
    </message>
    <message>
        <source>Whole numbers only</source>
        <translation>Somente números inteiros</translation>
    </message>
    <message>
        <source>Decimals: %1 at most</source>
        <translation>Casas decimais: %1 no máximo</translation>
    </message>
    <message>
        <source>Beyond %1</source>
        <translation>Fora de %1</translation>
    </message>
    <message>
        <source>Too many digits</source>
        <translation>Dígitos demais</translation>
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
        <translation>Ponto</translation>
    </message>
    <message>
        <source>Delete the last digit</source>
        <translation>Apagar o último dígito</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
</context>
<context>
    <name>OpenWindow</name>
    <message>
        <source>Reading %1</source>
        <translation>Lendo %1</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Abrindo %1</translation>
    </message>
    <message>
        <source>Which prescription of %1?</source>
        <translation>Qual prescrição de %1?</translation>
    </message>
    <message>
        <source>Which layer?</source>
        <translation>Qual camada?</translation>
    </message>
    <message>
        <source>Which task?</source>
        <translation>Qual tarefa?</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Which product does %1 feed?</source>
        <translation>Para qual produto é %1?</translation>
    </message>
    <message>
        <source>In which unit is %1?</source>
        <translation>Em qual unidade está %1?</translation>
    </message>
    <message>
        <source>Choose the unit of %1</source>
        <translation>Escolher a unidade de %1</translation>
    </message>
    <message>
        <source>Open as %1</source>
        <translation>Abrir como %1</translation>
    </message>
    <message>
        <source>The file does not tell in which unit it is</source>
        <translation>O arquivo não informa sua unidade</translation>
    </message>
    <message>
        <source>%1 from %2, which stays open</source>
        <translation>A %1 de %2, que continua aberto</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Fechar %1</translation>
    </message>
    <message>
        <source>Keep %1 open</source>
        <translation>Manter %1 aberto</translation>
    </message>
</context>
<context>
    <name>OpenedFiles</name>
    <message>
        <source>feeds no product</source>
        <translation>sem produto</translation>
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
        <translation>Próxima página</translation>
    </message>
</context>
<context>
    <name>PreviewPage</name>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Camada</translation>
    </message>
    <message>
        <source>Task</source>
        <translation>Tarefa</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Pular</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>mais %1</translation>
    </message>
    <message>
        <source>Polygons: %1</source>
        <translation>Polígonos: %1</translation>
    </message>
    <message>
        <source>Choose a product for a column to open the file.</source>
        <translation>Escolha um produto para uma coluna para abrir o arquivo.</translation>
    </message>
    <message>
        <source>%1 is called a total, not a rate</source>
        <translation>%1 tem o nome de um total, não de uma dose</translation>
    </message>
    <message>
        <source>No product</source>
        <translation>Nenhum produto</translation>
    </message>
    <message>
        <source>Replaces %1</source>
        <translation>Substitui %1</translation>
    </message>
    <message>
        <source>Takes %1 over from %2</source>
        <translation>Assume %1 de %2</translation>
    </message>
    <message>
        <source>Lies %1 from %2</source>
        <translation>Fica a %1 de %2</translation>
    </message>
</context>
<context>
    <name>ProductFile</name>
    <message>
        <source>Seed</source>
        <translation>Semente</translation>
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
        <translation>Produto %1</translation>
    </message>
</context>
<context>
    <name>ProductSection</name>
    <message>
        <source>No prescription drives this product.</source>
        <translation>Nenhuma prescrição controla este produto.</translation>
    </message>
    <message>
        <source>Column %1; look-ahead %2 s; dead time %3 s, time constant %4 s</source>
        <translation>Coluna %1; antecipação %2 s; tempo morto %3 s, constante de tempo %4 s</translation>
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
        <translation>Cada imagem tem %1 de largura; o norte está em cima.</translation>
    </message>
    <message>
        <source>Area and amount by class</source>
        <translation>Área e quantidade por classe</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Classe</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Área</translation>
    </message>
    <message>
        <source>Planned</source>
        <translation>Previsto</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferença</translation>
    </message>
    <message>
        <source>of the plan</source>
        <translation>do previsto</translation>
    </message>
    <message>
        <source>No rate prescribed</source>
        <translation>Sem dose prescrita</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Error: applied minus prescribed</source>
        <translation>Erro: aplicado menos prescrito</translation>
    </message>
    <message>
        <source>Within %1 of what is prescribed: %2 of the area. Beyond the plot: %3.</source>
        <translation>A no máximo %1 do prescrito: %2 da área. Fora do gráfico: %3.</translation>
    </message>
    <message>
        <source>applied minus prescribed</source>
        <translation>aplicado menos prescrito</translation>
    </message>
    <message>
        <source>Early and late</source>
        <translation>Adiantamento e atraso</translation>
    </message>
    <message>
        <source>No change of rate was crossed.</source>
        <translation>Nenhuma mudança de dose foi cruzada.</translation>
    </message>
    <message>
        <source>%1 changes of rate; median %2, %3 s. Above zero is late, below zero is early.</source>
        <translation>%1 mudanças de dose; mediana %2, %3 s. Acima de zero há atraso; abaixo, adiantamento.</translation>
    </message>
    <message>
        <source>The %1 that are farthest from their borders:</source>
        <translation>As %1 mais distantes dos seus limites:</translation>
    </message>
    <message>
        <source>East of the middle</source>
        <translation>A leste do centro</translation>
    </message>
    <message>
        <source>North of the middle</source>
        <translation>Ao norte do centro</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Para</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>Atraso</translation>
    </message>
    <message>
        <source>Look-ahead</source>
        <translation>Antecipação</translation>
    </message>
    <message>
        <source>A look-ahead of %1 s puts the changes nearest to the borders.</source>
        <translation>Uma antecipação de %1 s deixa as mudanças mais perto dos limites.</translation>
    </message>
    <message>
        <source>look-ahead</source>
        <translation>antecipação</translation>
    </message>
    <message>
        <source>median lateness</source>
        <translation>atraso mediano</translation>
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
        <translation>Produto %1, depósito %2</translation>
    </message>
    <message>
        <source>PRODUCTS</source>
        <translation>PRODUTOS</translation>
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
        <translation>agora</translation>
    </message>
    <message>
        <source>Plan here</source>
        <translation>Plano aqui</translation>
    </message>
    <message>
        <source>Applied</source>
        <translation>Aplicada</translation>
    </message>
    <message>
        <source>Rates of the last half minute</source>
        <translation>Doses do último meio minuto</translation>
    </message>
</context>
<context>
    <name>RateRow</name>
    <message>
        <source>Prescription</source>
        <translation>Prescrição</translation>
    </message>
    <message>
        <source>Default rate</source>
        <translation>Dose padrão</translation>
    </message>
    <message>
        <source>Zero shut-off</source>
        <translation>Corte com zero</translation>
    </message>
    <message>
        <source>Least rate</source>
        <translation>Dose mínima</translation>
    </message>
    <message>
        <source>No position</source>
        <translation>Sem posição</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Parado</translation>
    </message>
    <message>
        <source>Not controlled</source>
        <translation>Sem controle</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desl.</translation>
    </message>
</context>
<context>
    <name>RateTable</name>
    <message>
        <source>Product</source>
        <translation>Produto</translation>
    </message>
    <message>
        <source>Prescribed</source>
        <translation>Prescrita</translation>
    </message>
    <message>
        <source>Commanded</source>
        <translation>Comandada</translation>
    </message>
    <message>
        <source>Applied</source>
        <translation>Aplicada</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origem</translation>
    </message>
    <message>
        <source>Rates now</source>
        <translation>Doses agora</translation>
    </message>
</context>
<context>
    <name>RecordWriter</name>
    <message>
        <source>%1: the record ends early: %2</source>
        <translation>%1: a gravação termina antes do tempo: %2</translation>
    </message>
    <message>
        <source>there is no room left on the disk</source>
        <translation>não há mais espaço no disco</translation>
    </message>
    <message>
        <source>another field is open</source>
        <translation>outro talhão está aberto</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>Report of a drive</source>
        <translation>Relatório de um percurso</translation>
    </message>
    <message>
        <source>Prescription</source>
        <translation>Prescrição</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distância</translation>
    </message>
    <message>
        <source>Area worked</source>
        <translation>Área trabalhada</translation>
    </message>
    <message>
        <source>Working width</source>
        <translation>Largura de trabalho</translation>
    </message>
    <message>
        <source>Default rate of %1</source>
        <translation>Dose padrão de %1</translation>
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
        <translation>Nenhum mapa de prescrição carregado</translation>
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
        <translation>Parado</translation>
    </message>
    <message>
        <source>Loading %1</source>
        <translation>Carregando %1</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Em pausa</translation>
    </message>
</context>
<context>
    <name>SystemReason</name>
    <message>
        <source>Permission denied</source>
        <translation>permissão negada</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>não há mais espaço no disco</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>este arquivo ou pasta não existe</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>o disco é somente leitura</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>o espaço atribuído se esgotou</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>o arquivo é grande demais</translation>
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
        <translation>Talhão</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Dirigir</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noite</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dia</translation>
    </message>
    <message>
        <source>Nearer</source>
        <translation>Mais perto</translation>
    </message>
    <message>
        <source>Farther</source>
        <translation>Mais longe</translation>
    </message>
    <message>
        <source>The whole field</source>
        <translation>O talhão inteiro</translation>
    </message>
    <message>
        <source>Leave full screen</source>
        <translation>Sair da tela cheia</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Tela cheia</translation>
    </message>
</context>
<context>
    <name>TrackParser</name>
    <message>
        <source>is no NMEA 0183 sentence</source>
        <translation>não é uma sentença NMEA 0183</translation>
    </message>
    <message>
        <source>its checksum is wrong</source>
        <translation>sua soma de verificação está errada</translation>
    </message>
    <message>
        <source>is cut off</source>
        <translation>está cortada</translation>
    </message>
    <message>
        <source>its time is none</source>
        <translation>sua hora não é válida</translation>
    </message>
    <message>
        <source>its position is none</source>
        <translation>sua posição não é válida</translation>
    </message>
    <message>
        <source>is no head with &quot;time&quot; and &quot;x&quot;, &quot;y&quot; or &quot;lon&quot;, &quot;lat&quot;</source>
        <translation>não é um cabeçalho com &quot;time&quot; e &quot;x&quot;, &quot;y&quot; ou &quot;lon&quot;, &quot;lat&quot;</translation>
    </message>
</context>
<context>
    <name>TrackReader</name>
    <message>
        <source>%1: holds no position</source>
        <translation>%1: não contém nenhuma posição</translation>
    </message>
    <message>
        <source>%1: holds no position; %2</source>
        <translation>%1: não contém nenhuma posição; %2</translation>
    </message>
    <message>
        <source>is longer than %1 characters</source>
        <translation>tem mais de %1 caracteres</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>linha %1: %2</translation>
    </message>
    <message>
        <source>its time is beyond the year 9999</source>
        <translation>sua hora é posterior ao ano 9999</translation>
    </message>
    <message>
        <source>goes back in time</source>
        <translation>volta no tempo</translation>
    </message>
    <message>
        <source>lies off the field&apos;s plane</source>
        <translation>está fora do plano do campo</translation>
    </message>
    <message>
        <source>is in degrees, and no field is loaded to place them</source>
        <translation>está em graus e nenhum campo está carregado para situá-los</translation>
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
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Quantidade</translation>
    </message>
    <message>
        <source>per area</source>
        <translation>por área</translation>
    </message>
    <message>
        <source>As in the file</source>
        <translation>Como no arquivo</translation>
    </message>
    <message>
        <source>Other amounts</source>
        <translation>Outras quantidades</translation>
    </message>
    <message>
        <source>it does not tell</source>
        <translation>ele não a informa</translation>
    </message>
    <message>
        <source>thousand</source>
        <translation>milhares</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>Usar</translation>
    </message>
    <message>
        <source>Take %1</source>
        <translation>Usar %1</translation>
    </message>
    <message>
        <source>amount and area</source>
        <translation>quantidade e área</translation>
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
