// What master and shut-off change on the ground: drives through zones in which no fertiliser or no herbicide is
// prescribed, and sets the shut-off in the dialog: while the machine moves, while it stands but drives off before Done,
// and while it stands. `zones` is the map's file.

terminal.machine.timeFactor = 0;
var group = terminal.open(zones, {columns: ["SEED_K_HA", "FERT_KG_HA", "HERB_L_HA"]}).group;
var noHerbicide = -100, noFertiliser = 100;
var reInits = terminal.get("quillSpan", "reInitCount");

function driveTo(x) {
    terminal.follow({kind: "swaths", angle: 90});
    terminal.drive(4);
    while (terminal.machine.x < x)
        terminal.run(0.5);
}
function halt() {
    terminal.stop();
    terminal.run(10);
}
// The rates commanded for products 1 to 3.
function sources(text, expected) {
    same([1, 2, 3].map(function (product) { return terminal.rates(product).source; }), expected, text);
}
function edit(name) {
    openDialog();
    control("productButton2").touch();
    control(name).touch();
}

driveTo(noHerbicide);
sources("without shut-off", ["prescription", "prescription", "minRate"]);
openDialog();
awaitThat(function () { return control("vehicleMovingLabel").visible; }, "not locked while the machine moves");
control("productButton2").touch();
control("zeroRateShutoffBox").touch();
done();
terminal.run(1);
sources("after a touch of the locked box", ["prescription", "prescription", "minRate"]);

halt();
sources("standing", ["stopped", "stopped", "stopped"]);
edit("zeroRateShutoffBox");
terminal.drive(4);
terminal.run(1);
awaitThat(function () { return control("doneButton").image === 1; }, "Done has not turned into Cancel");
done();
driveTo(noHerbicide);
sources("after Cancel", ["prescription", "prescription", "minRate"]);
same(terminal.get("quillSpan", "reInitCount"), reInits, "re-initialisations before Done");

halt();
edit("zeroRateShutoffBox");
done();
same(terminal.get("quillSpan", "reInitCount"), reInits + 1, "re-initialisations after Done");
driveTo(noHerbicide);
sources("with product 3's shut-off", ["prescription", "prescription", "zeroShutoff"]);
same(terminal.rates(3).commanded, 0, "commanded when shut off");
driveTo(noFertiliser);
sources("where product 2 has none", ["prescription", "minRate", "prescription"]);

halt();
edit("applyToAllBox");
done();
driveTo(noFertiliser);
sources("with product 3 as the master", ["prescription", "zeroShutoff", "prescription"]);

// The flags take effect only at the next "reInit"; the look-ahead at once.
var settings = terminal.get(group, "settings");
settings.forEach(function (product) {
    product.zeroRateShutoff = false;
    product.onLookAheadMs = 120000;
});
terminal.set(group, "settings", settings);
driveTo(-140);
sources("settings written without reInit, look-ahead", ["default", "default", "default"]);
settings.forEach(function (product) { product.onLookAheadMs = 0; });
terminal.set(group, "settings", settings);
driveTo(noFertiliser);
sources("settings written without reInit", ["prescription", "zeroShutoff", "prescription"]);
terminal.set("quillSpan", "reInit", true);
terminal.run(0.1);
sources("after reInit", ["prescription", "minRate", "prescription"]);
print("finished");
