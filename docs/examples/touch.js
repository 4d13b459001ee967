// What does each product get in two places of the field?
var area = terminal.bounds();
var answers = 0;

for (var product = 1; product <= 3; ++product) {
    terminal.activeProduct = product;
    var texts = [0.25, 0.75].map(function (share) {
        var x = area.minX + (area.maxX - area.minX) * share;
        var text = terminal.touchMap(x, area.minY + (area.maxY - area.minY) * 0.25);
        answers += text !== "" ? 1 : 0;
        return text === "" ? "nothing" : text;
    });
    print("product " + product + ": west " + texts[0] + ", east " + texts[1]);
}
if (answers === 0)
    throw new Error("no place has a rate");
