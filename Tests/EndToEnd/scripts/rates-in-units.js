// Default rates in the operator's units; for every product the test says what to expect: the unit, the rate shown, and
// what a typed 10 is in base units.

// The field shows six significant digits.
function isAbout(actual, expected) { return Math.abs(actual - expected) <= 1e-5 * Math.abs(expected); }

var map = terminal.open(sample, {columns: columns});
var before = terminal.get(map.group, "rateCalMappings");
same(before.length, products.length, "mappings");
openDialog();
products.forEach(function (product, index) {
  control("productButton" + index).touch();
  same(control("defaultRateLabel").text, "Default Rate (" + product.unit + ")", "caption");
  var shown = Number(control("defaultRateEdit").text);
  check(isAbout(shown, product.shown), product.unit + " shown: " + shown);
  control("defaultRateEdit").enter("10");
});
done();
terminal.get(map.group, "rateCalMappings").forEach(function (mapping, index) {
  var product = products[index];
  check(isAbout(mapping.defaultRate, product.ten), product.unit + " stored: " + mapping.defaultRate);
});
print("finished");
