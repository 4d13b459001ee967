// An operator who sees the terminal for the first time drives the sample field by touch, finds the settings locked,
// changes the look-ahead and sees what that does. `sample` is the field's file; if `pictures` names a folder, pictures
// of the display are written there.

terminal.machine.timeFactor = 0;
terminal.open(sample, {columns: ["SEED_KS_HA", "FERT_KG_HA", "HERB_L_HA"]});
terminal.activeProduct = 2;

function keepPicture(name) {
    terminal.wait(300);
    if (pictures !== "")
        terminal.screenshot(pictures + "/" + name + ".png");
}
// The rate prescribed where the machine is; NaN when there is none.
function rateHere() {
    return parseFloat(terminal.touchMap(terminal.machine.x, terminal.machine.y).replace("Rx Rate: ", ""));
}
// Drives to the next border; returns how many metres before it the fertiliser's command changes.
function metresAhead() {
    var before, after;
    do {
        before = terminal.rates(2);
        terminal.run(0.1);
        after = terminal.rates(2);
    } while (after.commanded === before.commanded || after.source !== "prescription" || isNaN(rateHere())
             || rateHere() === after.commanded);
    var x = terminal.machine.x, y = terminal.machine.y;
    while (rateHere() !== after.commanded)
        terminal.run(0.1);
    terminal.touchMap(1e6, 1e6);
    return Math.sqrt(Math.pow(terminal.machine.x - x, 2) + Math.pow(terminal.machine.y - y, 2));
}

control("drive").touch();
check(control("drivePanel").visible && control("driveStrip").visible, "no controls");
check(!control("selectProduct1").visible, "the products cover the controls");
check(control("rxOptions").visible, "the plug-in's button is covered");
control("driveStart").touch();
terminal.run(500);
check(terminal.machine.mode === "swaths" && terminal.machine.speed === 3, "it does not drive");
var usual = metresAhead();
terminal.run(2);
control("followCamera").touch();
keepPicture("driving");

openDialog();
awaitThat(function () { return control("vehicleMovingLabel").visible; }, "not locked while the machine moves");
keepPicture("settings-locked");
done();

control("driveStop").touch();
terminal.run(5);
openDialog();
check(!control("vehicleMovingLabel").visible, "locked while the machine stands");
control("productButton1").touch();
control("lookAheadEdit").enter("5.0");
keepPicture("settings");
done();

control("driveStart").touch();
terminal.run(10);
var early = metresAhead();
terminal.run(2);
keepPicture("driving-early");
print("the rate changes " + usual.toFixed(1) + " m, then " + early.toFixed(1) + " m before the border");
check(Math.abs(usual - 3) < 0.5 && Math.abs(early - 15) < 0.5, "the look-ahead did not act");

// The other buttons.
control("speedUp").touch();
awaitThat(function () { return control("driveSpeed").text === "11.0 km/h"; }, "speed " + control("driveSpeed").text);
terminal.run(2);
check(Math.abs(terminal.machine.speed - 11 / 3.6) < 1e-6, "speed " + terminal.machine.speed);
control("signalLoss").touch();
terminal.run(2.5);
same(terminal.rates(2).source, "noPosition", "source without a signal");
control("driveByHand").touch();
same(terminal.machine.mode, "hand", "mode");
check(control("wheel").visible && control("brake").visible, "no wheel");
keepPicture("driving-by-hand");
control("signalLoss").touch();
control("paceUp").touch();
control("paceUp").touch();
control("drivePause").touch();
same(terminal.machine.timeFactor, 5, "time factor");
control("drivePause").touch();
same(terminal.machine.timeFactor, 0, "time factor in a pause");
control("drive").touch();
check(control("selectProduct1").visible && !control("drivePanel").visible, "the products do not come back");
print("finished");
