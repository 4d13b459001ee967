<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>BackendText</name>
    <message>
        <source>the polygons&apos; edges cross each other more than %1 times; overlaps and gaps are not told one by one</source>
        <translation>as bordas dos polígonos se cruzam mais de %1 vezes; sobreposições e lacunas não são enumeradas</translation>
    </message>
    <message>
        <source>no polygon covers %1 inside the field (%2 m wide)</source>
        <translation>%1 sem polígono dentro do talhão (%2 m de largura)</translation>
    </message>
    <message>
        <source>, beside %1</source>
        <translation>, fazendo divisa com %1</translation>
    </message>
    <message>
        <source>parts of %1 overlap on %2</source>
        <translation>%1 tem partes que se sobrepõem em %2</translation>
    </message>
    <message>
        <source>%1 have the same shape, %2</source>
        <translation>%1 têm a mesma forma, %2</translation>
    </message>
    <message>
        <source>%1 overlap on %2</source>
        <translation>%1 se sobrepõem em %2</translation>
    </message>
    <message>
        <source>overlaps</source>
        <translation>sobreposições</translation>
    </message>
    <message>
        <source>gaps</source>
        <translation>lacunas</translation>
    </message>
    <message>
        <source>slivers</source>
        <translation>lascas</translation>
    </message>
    <message>
        <source>narrow polygons</source>
        <translation>polígonos estreitos</translation>
    </message>
    <message>
        <source>rates far from the rest</source>
        <translation>doses distantes das demais</translation>
    </message>
    <message>
        <source>polygons of the same shape</source>
        <translation>polígonos com a mesma forma</translation>
    </message>
    <message>
        <source>findings of this kind</source>
        <translation>ocorrências deste tipo</translation>
    </message>
    <message>
        <source>%1 more %2</source>
        <translation>%2: mais %1</translation>
    </message>
    <message>
        <source>, %1 m2 in all</source>
        <translation>, %1 m2 no total</translation>
    </message>
    <message>
        <source>record %1</source>
        <translation>o registro %1</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>mais %1</translation>
    </message>
    <message>
        <source>records %1 and %2</source>
        <translation>os registros %1 e %2</translation>
    </message>
    <message>
        <source>record %1 is only %2 m wide</source>
        <translation>o registro %1 tem só %2 m de largura</translation>
    </message>
    <message>
        <source>%1 is %2 m wide, narrower than the machine (%3 m)</source>
        <translation>%1 tem %2 m de largura, menos que a máquina (%3 m)</translation>
    </message>
    <message>
        <source>%1 have the same rate and are %2 m wide together, narrower than the machine (%3 m)</source>
        <translation>%1 têm a mesma dose e juntos %2 m de largura, menos que a máquina (%3 m)</translation>
    </message>
    <message>
        <source>%1 areas of one rate are narrower than the machine (%2 m), the narrowest %3 m (%4)</source>
        <translation>%1 zonas de uma mesma dose são mais estreitas que a máquina (%2 m); a mais estreita tem %3 m (%4)</translation>
    </message>
    <message>
        <source>%1 in column &quot;%2&quot; (%3) is far from the other rates, %4 to %5</source>
        <translation>%1 na coluna “%2” (%3) está longe das demais doses, de %4 a %5</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; looks like totals, not rates: its numbers grow with the area of the polygons</source>
        <translation>a coluna “%1” parece conter totais e não doses: seus valores crescem com a área dos polígonos</translation>
    </message>
    <message>
        <source>its coordinates are no longitudes and latitudes</source>
        <translation>suas coordenadas não são longitudes e latitudes</translation>
    </message>
    <message>
        <source>, and its coordinates are no longitudes and latitudes</source>
        <translation>, e suas coordenadas não são longitudes e latitudes</translation>
    </message>
    <message>
        <source>its coordinate system &quot;%1&quot; cannot be projected there</source>
        <translation>seu sistema de coordenadas “%1” não pode ser projetado ali</translation>
    </message>
    <message>
        <source>extends over %1 km; no field does</source>
        <translation>estende-se por %1 km; nenhum talhão é tão grande</translation>
    </message>
    <message>
        <source>its coordinate system &quot;%1&quot; cannot be projected</source>
        <translation>seu sistema de coordenadas “%1” não pode ser projetado</translation>
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
        <translation> e mais %1</translation>
    </message>
    <message>
        <source>loading was given up</source>
        <translation>o carregamento foi abandonado</translation>
    </message>
    <message>
        <source>cannot be checked, there is not enough memory</source>
        <translation>não pode ser verificado, não há memória suficiente</translation>
    </message>
    <message>
        <source>cannot be checked: %1</source>
        <translation>não pode ser verificado: %1</translation>
    </message>
    <message>
        <source>loading was cancelled</source>
        <translation>o carregamento foi cancelado</translation>
    </message>
    <message>
        <source>the group name &quot;%1&quot; is taken</source>
        <translation>o nome de grupo “%1” já está em uso</translation>
    </message>
    <message>
        <source>record %1 was left out, its rings cross each other or themselves more than %2 times</source>
        <translation>o registro %1 foi omitido, seus anéis se cruzam entre si ou consigo mesmos mais de %2 vezes</translation>
    </message>
    <message>
        <source>cannot be loaded: %1</source>
        <translation>não pode ser carregado: %1</translation>
    </message>
    <message>
        <source>holds points or lines, not polygons</source>
        <translation>contém pontos ou linhas, não polígonos</translation>
    </message>
    <message>
        <source>holds no polygon</source>
        <translation>não contém nenhum polígono</translation>
    </message>
    <message>
        <source>holds no polygon with finite coordinates</source>
        <translation>não contém nenhum polígono com coordenadas finitas</translation>
    </message>
    <message>
        <source>polygon that lies more than 100 km from the others was left out</source>
        <translation>polígono situado a mais de 100 km dos demais foi omitido</translation>
    </message>
    <message>
        <source>polygons that lie more than 100 km from the others were left out</source>
        <translation>polígonos situados a mais de 100 km dos demais foram omitidos</translation>
    </message>
    <message>
        <source>; taken as WGS 84</source>
        <translation>; supõe-se WGS 84</translation>
    </message>
    <message>
        <source>lies %1 km from what is loaded and gets a plane of its own</source>
        <translation>fica a %1 km do que está carregado e recebe seu próprio plano</translation>
    </message>
    <message>
        <source>ring that encloses nothing was left out</source>
        <translation>anel que não cerca nada foi omitido</translation>
    </message>
    <message>
        <source>rings that enclose nothing were left out</source>
        <translation>anéis que não cercam nada foram omitidos</translation>
    </message>
    <message>
        <source>hole lies in no polygon and was left out</source>
        <translation>buraco não está em nenhum polígono e foi omitido</translation>
    </message>
    <message>
        <source>holes lie in no polygon and were left out</source>
        <translation>buracos não estão em nenhum polígono e foram omitidos</translation>
    </message>
    <message>
        <source>polygon had to be repaired</source>
        <translation>polígono teve de ser reparado</translation>
    </message>
    <message>
        <source>polygons had to be repaired</source>
        <translation>polígonos tiveram de ser reparados</translation>
    </message>
    <message>
        <source>holds no polygon that encloses anything</source>
        <translation>não contém nenhum polígono que cerque algo</translation>
    </message>
    <message>
        <source>record has no rate in column &quot;%1&quot;</source>
        <translation>registro não tem dose na coluna “%1”</translation>
    </message>
    <message>
        <source>records have no rate in column &quot;%1&quot;</source>
        <translation>registros não têm dose na coluna “%1”</translation>
    </message>
    <message>
        <source>polygon is hidden under a later one of the same shape</source>
        <translation>polígono está oculto sob outro posterior com a mesma forma</translation>
    </message>
    <message>
        <source>polygons are hidden under later ones of the same shape</source>
        <translation>polígonos estão ocultos sob outros posteriores com a mesma forma</translation>
    </message>
    <message>
        <source>no polygon has a rate</source>
        <translation>nenhum polígono tem dose</translation>
    </message>
    <message>
        <source>hole cannot be drawn as one</source>
        <translation>buraco não pode ser desenhado como tal</translation>
    </message>
    <message>
        <source>holes cannot be drawn as such</source>
        <translation>buracos não podem ser desenhados como tais</translation>
    </message>
    <message>
        <source>record without geometry was skipped</source>
        <translation>registro sem geometria foi ignorado</translation>
    </message>
    <message>
        <source>records without geometry were skipped</source>
        <translation>registros sem geometria foram ignorados</translation>
    </message>
    <message>
        <source>record that is no polygon was skipped</source>
        <translation>registro que não é um polígono foi ignorado</translation>
    </message>
    <message>
        <source>records that are no polygons were skipped</source>
        <translation>registros que não são polígonos foram ignorados</translation>
    </message>
    <message>
        <source>record with a coordinate that is not finite was skipped</source>
        <translation>registro com uma coordenada não finita foi ignorado</translation>
    </message>
    <message>
        <source>records with a coordinate that is not finite were skipped</source>
        <translation>registros com uma coordenada não finita foram ignorados</translation>
    </message>
    <message>
        <source>record without a rate was skipped</source>
        <translation>registro sem dose foi ignorado</translation>
    </message>
    <message>
        <source>records without a rate were skipped</source>
        <translation>registros sem dose foram ignorados</translation>
    </message>
    <message>
        <source>%1 entry of column &quot;%2&quot; is no rate and was left out</source>
        <translation>%1 valor da coluna “%2” não é uma dose e foi omitido</translation>
    </message>
    <message>
        <source>%1 entries of column &quot;%2&quot; are no rates and were left out</source>
        <translation>%1 valores da coluna “%2” não são doses e foram omitidos</translation>
    </message>
    <message>
        <source>the comma in &quot;%1&quot; of column &quot;%2&quot; is taken to set off decimals</source>
        <translation>a vírgula de “%1” na coluna “%2” é lida como vírgula decimal</translation>
    </message>
    <message>
        <source>there is no product to load it for</source>
        <translation>não há nenhum produto para o qual carregá-lo</translation>
    </message>
    <message>
        <source>the unit of column &quot;%1&quot; is %2 by its entries, which count, but %3 by its name</source>
        <translation>a unidade da coluna “%1” é %2 segundo os seus valores, que contam, mas %3 segundo o seu nome</translation>
    </message>
    <message>
        <source>the unit of column &quot;%1&quot; is %2 by column &quot;%3&quot;, which counts, but %4 by its entries</source>
        <translation>a unidade da coluna “%1” é %2 segundo a coluna “%3”, que conta, mas %4 segundo os seus valores</translation>
    </message>
    <message>
        <source>the unit of column &quot;%1&quot; is %2 by column &quot;%3&quot;, which counts, but %4 by its name</source>
        <translation>a unidade da coluna “%1” é %2 segundo a coluna “%3”, que conta, mas %4 segundo o seu nome</translation>
    </message>
    <message>
        <source>%1 columns are named, but the machine has %2 products</source>
        <translation>foram indicadas mais colunas (%1) do que os produtos da máquina (%2)</translation>
    </message>
    <message>
        <source>no column is named for any product</source>
        <translation>nenhuma coluna foi indicada para nenhum produto</translation>
    </message>
    <message>
        <source>%1 units are named, but the machine has %2 products</source>
        <translation>foram indicadas mais unidades (%1) do que os produtos da máquina (%2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no unit of a rate</source>
        <translation>“%1” não é uma unidade de dose</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; is left out, product %2 (%3) takes no prescription</source>
        <translation>a coluna “%1” é omitida, o produto %2 (%3) não segue nenhuma prescrição</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; holds no rates</source>
        <translation>a coluna “%1” não contém doses</translation>
    </message>
    <message>
        <source>no product that a prescription may drive fits the unit of %1</source>
        <translation>nenhum produto que uma prescrição possa controlar corresponde à unidade de %1</translation>
    </message>
    <message>
        <source>column %1 feeds no product</source>
        <translation>a coluna %1 não alimenta nenhum produto</translation>
    </message>
    <message>
        <source>columns %1 feed no product</source>
        <translation>as colunas %1 não alimentam nenhum produto</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; is a guess: nothing in its name says that it holds rates</source>
        <translation>a coluna “%1” é uma suposição: nada em seu nome indica que contenha doses</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; is called a total, and its numbers are taken as rates</source>
        <translation>a coluna “%1” tem o nome de um total, e seus números são tomados como doses</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; gives different units (&quot;%2&quot;, &quot;%3&quot;) and is not used for column &quot;%4&quot;</source>
        <translation>a coluna “%1” dá unidades diferentes (“%2”, “%3”) e não é usada para a coluna “%4”</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, given for column &quot;%2&quot;, is no unit of a rate</source>
        <translation>“%1”, indicado para a coluna “%2”, não é uma unidade de dose</translation>
    </message>
    <message>
        <source>the unit of column &quot;%1&quot; is not known, taken as %2</source>
        <translation>a unidade da coluna “%1” é desconhecida, tomada como %2</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; is in %2, which does not fit product %3 (%4); taken as %5</source>
        <translation>a coluna “%1” está em %2, o que não corresponde ao produto %3 (%4); tomada como %5</translation>
    </message>
    <message>
        <source>no column &quot;%1&quot; in %2</source>
        <translation>não há coluna “%1” em %2</translation>
    </message>
    <message>
        <source>holds no rates: no record has one in %1</source>
        <translation>não contém doses: nenhum registro tem uma em %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhuma</translation>
    </message>
    <message>
        <source>has no column that looks like a rate; name one (its columns: %1)</source>
        <translation>não tem nenhuma coluna que pareça uma dose; indique uma (suas colunas: %1)</translation>
    </message>
    <message>
        <source>holds no polygons</source>
        <translation>não contém polígonos</translation>
    </message>
    <message>
        <source>holds no records</source>
        <translation>não contém registros</translation>
    </message>
    <message>
        <source>has no column &quot;%1&quot;</source>
        <translation>não tem coluna “%1”</translation>
    </message>
    <message>
        <source>has no column that looks like a rate</source>
        <translation>não tem nenhuma coluna que pareça uma dose</translation>
    </message>
    <message>
        <source>has no layer &quot;%1&quot; with polygons; it has %2</source>
        <translation>não tem camada “%1” com polígonos; existentes: %2</translation>
    </message>
    <message>
        <source>holds no layer</source>
        <translation>não contém nenhuma camada</translation>
    </message>
    <message>
        <source>none of its layers will do: </source>
        <translation>nenhuma de suas camadas serve: </translation>
    </message>
    <message>
        <source>of its layers %1 is loaded, not %2</source>
        <translation>de suas camadas, %1 é carregada, não %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it has more than %2 MB</source>
        <translation>“%1” dentro dele passa de %2 MB</translation>
    </message>
    <message>
        <source> in &quot;%1&quot;</source>
        <translation> em “%1”</translation>
    </message>
    <message>
        <source>is an archive that holds no prescription%1</source>
        <translation>é um arquivo compactado que não contém nenhuma prescrição%1</translation>
    </message>
    <message>
        <source>is an archive that holds several prescriptions%1: %2; open one by its path, such as &quot;%3&quot;</source>
        <translation>é um arquivo compactado que contém várias prescrições%1: %2; abra uma pelo caminho, por exemplo &quot;%3&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it cannot be unpacked: %2</source>
        <translation>“%1” dentro dele não pode ser descompactado: %2</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>este arquivo não existe</translation>
    </message>
    <message>
        <source>is a folder, not a file</source>
        <translation>é uma pasta, não um arquivo</translation>
    </message>
    <message>
        <source>is no plain file</source>
        <translation>não é um arquivo comum</translation>
    </message>
    <message>
        <source>cannot be unpacked: %1</source>
        <translation>não pode ser descompactado: %1</translation>
    </message>
    <message>
        <source>is none of the formats that are read: Shapefile, GeoPackage, GeoJSON (also as a text sequence), KML, FlatGeobuf, GML, task data, or one of them in a .zip</source>
        <translation>não está em nenhum dos formatos lidos: Shapefile, GeoPackage, GeoJSON (também como sequência de textos), KML, FlatGeobuf, GML, dados de tarefas ou um deles em um .zip</translation>
    </message>
    <message>
        <source>the .%1 beside it is no plain file</source>
        <translation>o .%1 ao lado não é um arquivo comum</translation>
    </message>
    <message>
        <source>holds no shapes</source>
        <translation>não contém formas</translation>
    </message>
    <message>
        <source>holds points, not polygons</source>
        <translation>contém pontos, não polígonos</translation>
    </message>
    <message>
        <source>holds lines, not polygons</source>
        <translation>contém linhas, não polígonos</translation>
    </message>
    <message>
        <source>holds shapes of unknown kind %1</source>
        <translation>contém formas de tipo desconhecido %1</translation>
    </message>
    <message>
        <source>cannot be read or is empty</source>
        <translation>não pode ser lido ou está vazio</translation>
    </message>
    <message>
        <source>is damaged (%1)</source>
        <translation>está danificado (%1)</translation>
    </message>
    <message>
        <source>is no Shapefile</source>
        <translation>não é um Shapefile</translation>
    </message>
    <message>
        <source>is cut short within its header</source>
        <translation>está truncado no cabeçalho</translation>
    </message>
    <message>
        <source>is cut short: %1 of %2 bytes</source>
        <translation>está truncado: %1 de %2 bytes</translation>
    </message>
    <message>
        <source>the .dbf beside it is cut short within its header</source>
        <translation>o .dbf ao lado está truncado no cabeçalho</translation>
    </message>
    <message>
        <source>the .dbf beside it has %1 rows for %2 shapes</source>
        <translation>o .dbf ao lado tem %1 linhas para %2 formas</translation>
    </message>
    <message>
        <source>the .dbf beside it is cut short: %1 of %2 bytes</source>
        <translation>o .dbf ao lado está truncado: %1 de %2 bytes</translation>
    </message>
    <message>
        <source>there is no usable .shx beside it</source>
        <translation>não há ao lado um .shx utilizável</translation>
    </message>
    <message>
        <source>there is no .dbf beside it</source>
        <translation>não há ao lado nenhum .dbf</translation>
    </message>
    <message>
        <source>is an archive that is cut short</source>
        <translation>é um arquivo compactado truncado</translation>
    </message>
    <message>
        <source>is one part of an archive</source>
        <translation>é só uma parte de um arquivo compactado</translation>
    </message>
    <message>
        <source>is an archive of more than %1 files</source>
        <translation>é um arquivo compactado com mais de %1 arquivos</translation>
    </message>
    <message>
        <source>is an archive with a damaged directory</source>
        <translation>é um arquivo compactado com o diretório danificado</translation>
    </message>
    <message>
        <source>the path of its entry &quot;%1&quot; leaves the archive</source>
        <translation>o caminho de sua entrada “%1” sai do arquivo compactado</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it is encrypted</source>
        <translation>“%1” dentro dele está criptografado</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it is packed in a way that is not known</source>
        <translation>“%1” dentro dele está compactado de uma forma desconhecida</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in it is damaged</source>
        <translation>“%1” dentro dele está danificado</translation>
    </message>
    <message>
        <source>has no task &quot;%1&quot;; it has no tasks</source>
        <translation>não tem tarefa “%1”; não tem nenhuma</translation>
    </message>
    <message>
        <source>its coordinate system &quot;%1&quot; does not say where on the earth it is</source>
        <translation>seu sistema de coordenadas “%1” não diz em que lugar da Terra ele está</translation>
    </message>
    <message>
        <source>its coordinate system (%1) cannot be read</source>
        <translation>seu sistema de coordenadas (%1) não pode ser lido</translation>
    </message>
    <message>
        <source>names no coordinate system</source>
        <translation>não indica nenhum sistema de coordenadas</translation>
    </message>
    <message>
        <source>has %1 columns; files with more than %2 are not read</source>
        <translation>tem %1 colunas; arquivos com mais de %2 não são lidos</translation>
    </message>
    <message>
        <source>has no column &quot;%1&quot;; it has %2</source>
        <translation>não tem coluna “%1”; existentes: %2</translation>
    </message>
    <message>
        <source>column &quot;%1&quot; holds no numbers</source>
        <translation>a coluna “%1” não contém números</translation>
    </message>
    <message>
        <source>has more records than can be read with %1 columns; name those that are wanted</source>
        <translation>tem mais registros do que se pode ler com %1 colunas; indique as desejadas</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 e mais %2</translation>
    </message>
    <message>
        <source>%1: the grid names no treatment zone (J)</source>
        <translation>%1: a grade não indica nenhuma zona de tratamento (J)</translation>
    </message>
    <message>
        <source>%1: there is no treatment zone %2</source>
        <translation>%1: não existe a zona de tratamento %2</translation>
    </message>
    <message>
        <source>%1: the grid of %2 x %3 cells is too large</source>
        <translation>%1: a grade de %2 x %3 células é grande demais</translation>
    </message>
    <message>
        <source>%1: the grid does not end on the earth</source>
        <translation>%1: a grade ultrapassa os limites da Terra</translation>
    </message>
    <message>
        <source>%1: treatment zone %2 has no values</source>
        <translation>%1: a zona de tratamento %2 não tem valores</translation>
    </message>
    <message>
        <source>%1: there is no file %2.BIN beside it</source>
        <translation>%1: não há ao lado nenhum arquivo %2.BIN</translation>
    </message>
    <message>
        <source>%1 is too %2 for %3 x %4 cells: %5 of %6 bytes</source>
        <translation>%1 é %2 demais para %3 x %4 células: %5 de %6 bytes</translation>
    </message>
    <message>
        <source>short</source>
        <translation>curto</translation>
    </message>
    <message>
        <source>long</source>
        <translation>longo</translation>
    </message>
    <message>
        <source>%1: there is no treatment zone %2, which row %3, column %4 names</source>
        <translation>%1: não existe a zona de tratamento %2, indicada na linha %3, coluna %4</translation>
    </message>
    <message>
        <source>%1 has more than %2 bytes</source>
        <translation>%1 tem mais de %2 bytes</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 não pode ser lido: %2</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, linha %2</translation>
    </message>
    <message>
        <source>holds no task data but &lt;%1&gt;</source>
        <translation>contém &lt;%1&gt; em vez de dados de tarefas</translation>
    </message>
    <message>
        <source>version &quot;%1&quot; of task data is not known, read as version 4</source>
        <translation>a versão “%1” dos dados de tarefas é desconhecida, lida como versão 4</translation>
    </message>
    <message>
        <source>there is no file %1.XML beside it</source>
        <translation>não há ao lado nenhum arquivo %1.XML</translation>
    </message>
    <message>
        <source>the reference to %1 goes round in a circle</source>
        <translation>a referência a %1 é circular</translation>
    </message>
    <message>
        <source>refers to more than %1 files</source>
        <translation>remete a mais de %1 arquivos</translation>
    </message>
    <message>
        <source>the treatment zone has no code</source>
        <translation>a zona de tratamento não tem código</translation>
    </message>
    <message>
        <source>A=&quot;%1&quot; of PDV is no hexadecimal number</source>
        <translation>A=&quot;%1&quot; de PDV não é um número hexadecimal</translation>
    </message>
    <message>
        <source>the grid&apos;s cells have no size</source>
        <translation>as células da grade não têm tamanho</translation>
    </message>
    <message>
        <source>the grid lacks its columns (E), rows (F) or type (I)</source>
        <translation>faltam à grade as colunas (E), as linhas (F) ou o tipo (I)</translation>
    </message>
    <message>
        <source>%1=&quot;%2&quot; of %3 is out of range</source>
        <translation>%1=&quot;%2&quot; de %3 está fora dos limites</translation>
    </message>
    <message>
        <source>%1=&quot;%2&quot; of %3 is no number</source>
        <translation>%1=&quot;%2&quot; de %3 não é um número</translation>
    </message>
    <message>
        <source>%1=&quot;%2&quot; of %3 is no whole number from %4 to %5</source>
        <translation>%1=&quot;%2&quot; de %3 não é um número inteiro de %4 a %5</translation>
    </message>
    <message>
        <source>task %1 has more than %2 process data variables</source>
        <translation>a tarefa %1 tem mais de %2 variáveis de dados de processo</translation>
    </message>
    <message>
        <source>%1 holds no task</source>
        <translation>%1 não contém nenhuma tarefa</translation>
    </message>
    <message>
        <source>has no task &quot;%1&quot;; it has %2</source>
        <translation>não tem tarefa “%1”; existentes: %2</translation>
    </message>
    <message>
        <source>task %1 holds no prescription: it has neither zones with polygons nor a grid</source>
        <translation>a tarefa %1 não contém nenhuma prescrição: nem zonas com polígonos nem grade</translation>
    </message>
    <message>
        <source>task &quot;%1&quot; is loaded; there is a prescription in %2, too</source>
        <translation>a tarefa “%1” é carregada; também há uma prescrição em %2</translation>
    </message>
    <message>
        <source>task %1 holds no prescription: its zones have no values</source>
        <translation>a tarefa %1 não contém nenhuma prescrição: suas zonas não têm valores</translation>
    </message>
    <message>
        <source>task %1 has too many zones with too many values</source>
        <translation>a tarefa %1 tem zonas demais com valores demais</translation>
    </message>
    <message>
        <source>the field&apos;s boundary is left out: %1</source>
        <translation>o contorno do talhão é omitido: %1</translation>
    </message>
    <message>
        <source>task %1 names treatment zone %2 for %3, which is not there</source>
        <translation>a tarefa %1 indica para %3 a zona de tratamento %2, que não existe</translation>
    </message>
    <message>
        <source>places out of the field</source>
        <translation>os locais fora do talhão</translation>
    </message>
    <message>
        <source>places without a zone</source>
        <translation>os locais sem zona</translation>
    </message>
    <message>
        <source>a lost position</source>
        <translation>uma posição perdida</translation>
    </message>
    <message>
        <source>.</source>
        <comment>decimal separator</comment>
        <translation>,</translation>
    </message>
    <message>
        <source>cannot be read with &quot;%1&quot; beside it: %2</source>
        <translation>não pode ser lido com “%1” ao lado: %2</translation>
    </message>
    <message>
        <source>is being changed by another program</source>
        <translation>está sendo alterado por outro programa</translation>
    </message>
    <message>
        <source>cannot be copied: %1</source>
        <translation>não pode ser copiado: %1</translation>
    </message>
    <message>
        <source>cannot be loaded, there is not enough memory</source>
        <translation>não pode ser carregado, não há memória suficiente</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>não pode ser aberto: %1</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>está vazio</translation>
    </message>
    <message>
        <source>Dry matter</source>
        <translation>Matéria seca</translation>
    </message>
    <message>
        <source>Energy</source>
        <translation>Energia</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Espaçamento</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largura</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Parte</translation>
    </message>
    <message>
        <source>Seeds</source>
        <comment>what is sown</comment>
        <translation>Grãos</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Massa</translation>
    </message>
</context>
</TS>
