// Drives the first ten minutes of the field, records every step, and adds up how far off the rates were.
terminal.machine.timeFactor = 0; // Time passes in run() only.
terminal.follow({kind: "swaths", width: 24});
terminal.drive(4);
terminal.record("drive.csv");

var steps = 0, right = 0;
for (var second = 0; second < 600; ++second) {
    terminal.run(1);
    var seed = terminal.rates(1);
    if (seed.source !== "prescription")
        continue;
    ++steps;
    right += Math.abs(seed.applied - seed.commanded) <= 0.05 * seed.commanded ? 1 : 0;
}
terminal.record("");
print((100 * right / steps).toFixed(1) + " % of the time within 5 % of what is commanded");
if (right < 0.95 * steps)
    throw new Error("the metering does not follow");
