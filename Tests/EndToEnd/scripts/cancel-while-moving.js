// The vehicle drives off with edits in the dialog: Done has turned into Cancel.

var group = terminal.open(sample).group;
var settings = terminal.get(group, "settings");
var mappings = terminal.get(group, "rateCalMappings");
var reInitCount = terminal.get("quillSpan", "reInitCount");
openDialog();
control("lookAheadEdit").enter("9.5");
control("defaultRateEdit").enter("61.5");
control("zeroRateShutoffBox").touch();
control("applyToAllBox").touch();
terminal.drive(5);
awaitThat(function () { return control("doneButton").image === 1; }, "no Cancel");
done();
check(mappings[0].defaultRate !== 61.5, "nothing to tell apart");
same(terminal.get(group, "settings"), settings, "settings");
same(terminal.get(group, "rateCalMappings"), mappings, "mappings");
same(terminal.get("quillSpan", "reInitCount"), reInitCount, "re-initialisations");
print("finished");
