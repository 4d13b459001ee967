// A file that does not tell its unit is given one in the open window, and its map is looked over.
function check(condition, text) { if (!condition) throw new Error(text); }

// Pages come as soon as the file is read.
function touch(name) {
    for (var waited = 0; waited < 10000; waited += 50) {
        var control = terminal.find(name);
        if (control !== null && control.visible)
            return control.touch();
        terminal.wait(50);
    }
    throw new Error("no " + name + " to touch");
}

touch("columnRow0Product");
touch("choice1"); // the product that the file brings
touch("columnRow0Unit");
touch("unitAmount5"); // lb
touch("unitArea1");   // ac
touch("unitAccept");
touch("openAccept");
touch("findingsButton");
print(terminal.find("findingsHeading").text);
touch("finding2");

var area = terminal.bounds();
var text = terminal.touchMap(area.minX + 20, area.minY + 20);
check(text === "Rx Rate: 134.50", "120 lb/ac are shown as " + text);
print(text);
