// Two maps share the products: the map loaded last takes over a product, and the older one gets it back.

function seen(product, x) {
  // Choosing the active product once more would make the terminal look for its map again.
  if (terminal.activeProduct !== product) terminal.activeProduct = product;
  return [terminal.touchMap(x, 0), terminal.mapColor(x, 0)];
}
// Each map alone; the origin is then its own centre.
var strips = openStrips();
var stripA = seen(1, 50), stripB = seen(3, 50);
var ground = terminal.mapColor(0, 300);
terminal.close(strips.group);
var zones = openZones();
var zone = [1, 2, 3].map(function (product) { return seen(product, 0); });
var farZone = seen(1, 100);
same([stripA[0], stripB[0]], ["Rx Rate: 20.00", "Rx Rate: 6.00"], "the strips alone");
same(zone.map(function (s) { return s[0]; }), ["Rx Rate: 80.00", "Rx Rate: 150.00", "Rx Rate: 2.50"],
     "the zones alone");
check(JSON.stringify(stripA[1]) !== JSON.stringify(ground), "the strips are not drawn");
check(JSON.stringify(stripA[1]) !== JSON.stringify(zone[0][1]), "the colours do not tell the maps apart");

function checkStripsHaveProducts1And3() {
  same([seen(1, 0), seen(2, 0), seen(3, 0)], [stripA, zone[1], stripB], "middle");
  // Where the newer map has no polygon its product has no rate, whatever rate the older map has there.
  same([seen(3, 100), seen(1, 100)], [["", ground], ["", ground]], "east");
}
openStrips();
checkStripsHaveProducts1And3();
// A map that is loaded again counts as the newest.
openZones();
same([seen(1, 0), seen(2, 0), seen(3, 0), seen(1, 100)], [zone[0], zone[1], zone[2], farZone],
     "the zones again");
openStrips();
checkStripsHaveProducts1And3();
terminal.close(strips.group);
same([seen(1, 0), seen(2, 0), seen(3, 0), seen(1, 100)], [zone[0], zone[1], zone[2], farZone],
     "after the strips are gone");
openStrips();
terminal.close(zones.group);
same([seen(1, 0), seen(2, 0), seen(3, 0)], [stripA, ["", ground], stripB], "after the zones are gone");
print("finished");
