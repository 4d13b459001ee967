// What Done writes when two maps share the products.

function mappings(map) { return terminal.get(map.group, "rateCalMappings"); }
function enterRate(product, rate) {
  control("productButton" + product).touch();
  control("defaultRateEdit").enter(rate);
}
var zones = openZones(), strips = openStrips();
var zoneMappings = mappings(zones), stripMappings = mappings(strips);
same([zoneMappings.length, stripMappings.length], [3, 2], "mappings");
same(zoneMappings.map(function (m) { return m.rateCalName !== ""; }), [false, true, false], "what the zones feed");
openDialog();
enterRate(0, "12.5");
enterRate(1, "33");
enterRate(2, "44.5");
done();
// The products that the strips took over are edited there; the zones' own entries for them stay.
zoneMappings[1].defaultRate = 33;
stripMappings[0].defaultRate = 12.5;
stripMappings[1].defaultRate = 44.5;
same(mappings(zones), zoneMappings, "mappings of the zones");
same(mappings(strips), stripMappings, "mappings of the strips");

// A product that is given back has the older map's entry again.
var formerRate = zoneMappings[0].defaultRate;
check(formerRate !== 12.5, "nothing to tell apart");
terminal.close(strips.group);
openDialog();
same(Number(control("defaultRateEdit").text), formerRate, "default rate given back");
control("productButton1").touch();
same(control("defaultRateEdit").text, "33", "default rate of the zones' own product");
enterRate(0, "21");
done();
zoneMappings[0].defaultRate = 21;
same(mappings(zones).map(function (m) { return m.defaultRate; }),
     zoneMappings.map(function (m) { return m.defaultRate; }), "default rates of the zones alone");
same(mappings(zones).map(function (m) { return m.rateCalName !== ""; }), [true, true, true], "products given back");
print("finished");
