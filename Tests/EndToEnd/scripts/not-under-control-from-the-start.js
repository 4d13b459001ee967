// The product shown first is not under prescription control: the dialog shows both messages, and Done cancels.

var group = terminal.open(sample, {columns: ["", "FERT_KG_HA"]}).group;
var mappings = terminal.get(group, "rateCalMappings");
var reInitCount = terminal.get("quillSpan", "reInitCount");
openDialog();
terminal.wait(700);
check(control("notUnderVraLabel").visible, "no message that the product is not under control");
check(control("vehicleMovingLabel").visible, "the moving message is not shown");
check(!control("lookAheadEdit").visible, "controls of a product that is not under control");
same(control("doneButton").image, 0, "the Done image");
// The group is given other settings meanwhile, which tells cancelling from writing.
var settings = terminal.get(group, "settings");
settings[0].onLookAheadMs += 1500;
settings[0].zeroRateShutoff = !settings[0].zeroRateShutoff;
terminal.set(group, "settings", settings);
done();
same(terminal.get(group, "settings"), settings, "settings");
same(terminal.get(group, "rateCalMappings"), mappings, "mappings");
same(terminal.get("quillSpan", "reInitCount"), reInitCount, "re-initialisations");
print("finished");
