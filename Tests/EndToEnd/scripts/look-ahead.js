// What the look-ahead changes: drives over the border between two zones, once with a look-ahead of one second, once
// with the three seconds that the operator enters in the dialog, and prints how far before the border the rate changes.
// `zones` is the map's file; the record is written to `folder`.

terminal.machine.timeFactor = 0;
terminal.open(zones, {columns: ["SEED_K_HA"]});

// Metres before the border, 50 m west of the field's middle, at which the command changes.
function metresAhead() {
    terminal.follow({kind: "swaths", angle: 90});
    terminal.drive(4);
    while (terminal.rates(1).commanded !== 70)
        terminal.run(0.1);
    while (terminal.rates(1).commanded === 70)
        terminal.run(0.1);
    var ahead = -50 - terminal.machine.x;
    check(terminal.rates(1).source === "prescription", "the source is " + terminal.rates(1).source);
    terminal.stop();
    terminal.run(10);
    check(terminal.rates(1).source === "stopped", "the source is " + terminal.rates(1).source);
    return ahead;
}

var before = metresAhead();
openDialog();
control("lookAheadEdit").enter("3.0");
done();
var after = metresAhead();
print("the rate changes " + before.toFixed(1) + " m, then " + after.toFixed(1) + " m before the border");
check(Math.abs(before - 4) < 0.5 && Math.abs(after - 12) < 0.5, "the look-ahead did not act");

// Records the rest of the swath.
terminal.record(folder + "/rest.csv");
terminal.drive(4);
terminal.run(20);
terminal.record("");
print("finished");
