// Without a position the last one counts for two seconds; then the default rate is put out.
function check(condition, text) { if (!condition) throw new Error(text); }

terminal.machine.timeFactor = 0;
terminal.follow({kind: "swaths"});
terminal.drive(4);
while (terminal.rates(1).source !== "prescription")
    terminal.run(1);

terminal.signal(false);
terminal.run(1.8);
check(terminal.rates(1).source === "prescription", "given up too early");
terminal.run(0.4);
check(terminal.rates(1).source === "noPosition", "the source is " + terminal.rates(1).source);
terminal.signal(true);
terminal.run(0.2);
check(terminal.rates(1).source !== "noPosition", "the position does not come back");
print("default rate after two seconds, and back");
