// One visit to the dialog, from the long touch to Done, during which the vehicle drives off, and a second visit.

var group = terminal.open(sample).group;
var before = terminal.get(group, "settings");
var mappings = terminal.get(group, "rateCalMappings");
var reInitCount = terminal.get("quillSpan", "reInitCount");
openDialog();
control("productButton1").touch();
control("lookAheadEdit").enter("2.5");
control("defaultRateEdit").enter("77.5");

terminal.drive(3);
awaitThat(function () { return control("vehicleMovingLabel").visible; }, "no message while the vehicle moves");
["lookAheadEdit", "defaultRateEdit", "zeroRateShutoffBox", "applyToAllBox"].forEach(function (name) {
  check(!control(name).enabled, name + " can be edited while the vehicle moves");
});
same(control("doneButton").image, 1, "Cancel");
control("zeroRateShutoffBox").touch();
same(control("zeroRateShutoffBox").image, 0, "a locked box");

terminal.stop();
awaitThat(function () { return !control("vehicleMovingLabel").visible; }, "the message stays");
check(control("lookAheadEdit").enabled, "stays locked");
same(control("doneButton").image, 0, "Done");
same(control("lookAheadEdit").text, "2.5", "what was typed before the lock");
control("zeroRateShutoffBox").touch();
control("applyToAllBox").touch();
same(terminal.get(group, "settings"), before, "settings before Done");
done();

var after = before.map(function (entry, index) {
  entry.zeroRateShutoff = true;
  entry.isMaster = index === 1;
  if (index === 1) entry.onLookAheadMs = 2500;
  return entry;
});
same(terminal.get(group, "settings"), after, "settings");
mappings[1].defaultRate = 77.5;
same(terminal.get(group, "rateCalMappings"), mappings, "mappings");
same(terminal.get("quillSpan", "reInitCount"), reInitCount + 1, "re-initialisations");

openDialog();
same(control("productButton1").image, 1, "master selected again");
same(control("lookAheadEdit").text, "2.5", "look-ahead shown again");
same(control("defaultRateEdit").text, "77.5", "default rate shown again");
same(control("zeroRateShutoffBox").image, 1, "shut-off shown again");
same(control("applyToAllBox").image, 1, "master shown again");
control("productButton0").touch();
check(before[0].onLookAheadMs !== 2500, "nothing to tell apart");
same(control("lookAheadEdit").text, (before[0].onLookAheadMs / 1000).toFixed(1), "the first product's look-ahead");
same(control("zeroRateShutoffBox").image, 1, "the master's shut-off");
done();
print("finished");
