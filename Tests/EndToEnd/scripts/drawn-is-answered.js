// Compares, at random field points, the class of the drawn colour with the class of the answered rate. Expects `path`,
// `options` and `points` to be set. Points that disagree within a pixel of an edge are left out.

var seed = 12345;
function random() {
  seed = (seed * 1103515245 + 12345) % 2147483648;
  return seed / 2147483648;
}

function isClose(a, b) {
  return Math.abs(a[0] - b[0]) <= 3 && Math.abs(a[1] - b[1]) <= 3 && Math.abs(a[2] - b[2]) <= 3;
}

// Half of the class's colour over the ground, the way the map is drawn.
function over(color, ground) {
  var alpha = 128 / 255;
  var rgb = [1, 3, 5].map(function (at) { return parseInt(color.substr(at, 2), 16); });
  return rgb.map(function (value, i) { return value * alpha + ground[i] * (1 - alpha); });
}

// Position of the class in the legend; -1 for bare ground, -2 for a mixture.
function drawnClass(color, legend, ground) {
  if (isClose(color, ground)) return -1;
  for (var i = 0; i < legend.length; ++i)
    if (isClose(color, over(legend[i].color, ground))) return i;
  return -2;
}

function classOf(rate, legend, tolerance) {
  for (var i = 0; i < legend.length; ++i)
    if (legend[i].rate >= rate - tolerance) return i;
  return legend.length - 1;
}

// The back-end's answer, asked for as the plug-in does it.
function answeredClass(x, y, product, legend) {
  terminal.set(map.group, "queryRatesAtXYZ", { x: x, y: y, z: 0 });
  if (!terminal.get(map.group, "ratesAtXYZValid")) return -1;
  return classOf(terminal.get(map.group, "ratesAtXYZ")[product], legend, 0);
}

// The text that a touch shows; it has two decimals.
function touchedClass(x, y, legend) {
  var text = terminal.touchMap(x, y);
  return text === "" ? -1 : classOf(parseFloat(text.replace("Rx Rate: ", "")), legend, 0.006);
}

// The eight points one pixel away.
var steps = [[-1, 0], [1, 0], [0, -1], [0, 1], [-1, -1], [1, 1], [-1, 1], [1, -1]];

var map = terminal.open(path, options);
var bounds = terminal.bounds();
var width = bounds.maxX - bounds.minX;
var height = bounds.maxY - bounds.minY;
var pixel = Math.max(width, height) / 300;
var ground = terminal.mapColor(bounds.minX - 0.04 * width, bounds.minY - 0.04 * height);
var mappings = terminal.get(map.group, "rateCalMappings");
var compared = 0, covered = 0, mixed = 0, edges = 0, wrong = 0;

function isColorEdge(sample) {
  return steps.some(function (step) {
    return !isClose(sample.color, terminal.mapColor(sample.x + step[0] * pixel, sample.y + step[1] * pixel));
  });
}

// A strip narrower than a pixel need not be drawn where the back-end answers with it.
function isAnswerEdge(sample, product, legend) {
  return steps.some(function (step) {
    var there = answeredClass(sample.x + step[0] * pixel, sample.y + step[1] * pixel, product, legend);
    return there !== sample.answered;
  });
}

for (var product = 0; product < map.columns.length; ++product) {
  // Columns feed the products that their names suggest; a mapping's name ends with the product's number.
  terminal.activeProduct = parseInt(mappings[product].rateCalName.match(/\d+/)[0]);
  var legend = map.legends[product];
  // All colours first: a touch changes the display, so the view would have to be drawn again for every point.
  var samples = [];
  for (var n = 0; n < points; ++n) {
    var x = bounds.minX + random() * width;
    var y = bounds.minY + random() * height;
    var color = terminal.mapColor(x, y);
    samples.push({ x: x, y: y, color: color, drawn: drawnClass(color, legend, ground) });
  }
  var doubtful = samples.filter(function (sample, number) {
    sample.answered = answeredClass(sample.x, sample.y, product, legend);
    sample.touched = number < 20 ? touchedClass(sample.x, sample.y, legend) : sample.answered;
    if (sample.answered !== sample.drawn || sample.touched !== sample.drawn) return true;
    ++compared;
    if (sample.drawn >= 0) ++covered;
    return false;
  });
  doubtful.forEach(function (sample) {
    if (isColorEdge(sample) || isAnswerEdge(sample, product, legend)) { ++edges; return; }
    if (sample.drawn === -2) { ++mixed; return; }
    ++compared;
    ++wrong;
    if (wrong < 6) print("wrong at", JSON.stringify(sample));
  });
}
print(JSON.stringify({ compared: compared, covered: covered, mixed: mixed, edges: edges, wrong: wrong,
                       mixedShare: mixed / (points * map.columns.length) }));
