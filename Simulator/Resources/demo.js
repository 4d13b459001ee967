// What the terminal does, without an operator.

var sample = "Simulator/Resources/sample/sample-field.shp";
var pictures = "build/demo/";

var map = terminal.open(sample,
                        {columns: ["SEED_KS_HA", "FERT_KG_HA", "HERB_L_HA"]});
print("Opened " + map.group + ": " + map.outers + " polygons with " + map.holes + " holes, columns "
      + map.columns.join(", "));

// A point of the field that has a rate for every product.
function findPoint() {
    var area = terminal.bounds();
    for (var step = 1; step < 12; ++step) {
        var x = area.minX + (area.maxX - area.minX) * step / 12;
        var y = area.minY + (area.maxY - area.minY) * (0.35 + step / 40);
        if (terminal.touchMap(x, y) !== "")
            return {x: x, y: y};
    }
    throw new Error("no rate anywhere on the field");
}

var point = findPoint();
for (var product = 1; product <= map.columns.length; ++product) {
    terminal.activeProduct = product;
    var text = terminal.touchMap(point.x, point.y);
    print("Product " + product + " (" + map.columns[product - 1] + ") at " + point.x.toFixed(1) + ", "
          + point.y.toFixed(1) + " m: " + text);
    terminal.screenshot(pictures + "map" + product + ".png");
    print("Picture of the map: " + pictures + "map" + product + ".png");
}

terminal.activeProduct = 1;
var button = terminal.find("rxOptions");
if (button === null)
    throw new Error("the guidance page has no rxOptions");
button.longTouch();
terminal.screenshot(pictures + "settings.png");
print("Picture of the settings dialog: " + pictures + "settings.png");
terminal.find("doneButton").touch();
