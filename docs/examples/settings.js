// The look-ahead that is entered in the settings is kept; while the machine moves it cannot be changed.
function check(condition, text) { if (!condition) throw new Error(text); }

terminal.find("rxOptions").longTouch();
terminal.find("lookAheadEdit").enter("2.5");
terminal.find("doneButton").touch();

terminal.find("rxOptions").longTouch();
check(terminal.find("lookAheadEdit").text === "2.5", "it is " + terminal.find("lookAheadEdit").text);
check(terminal.find("lookAheadEdit").enabled, "locked while the machine stands");

// The dialog looks at the machine twice a second.
terminal.drive(3);
terminal.wait(1200);
check(terminal.find("vehicleMovingLabel").visible, "not locked while the machine moves");
terminal.find("doneButton").touch();
print("kept, and locked while moving");
