// The second product is not under prescription control; the first one could be edited before it was chosen.

var group = terminal.open(sample, {columns: ["FERT_KG_HA"]}).group;
openDialog();
check(control("lookAheadEdit").visible, "the first product has its controls");
control("lookAheadEdit").enter("3.5");
control("productButton1").touch();
check(control("notUnderVraLabel").visible, "no message");
check(!control("lookAheadEdit").visible, "controls of a product that is not under control");
control("productButton0").touch();
check(!control("notUnderVraLabel").visible, "the message stays");
control("productButton1").touch();

// Whether the machine moves makes no difference here: Done is still Done.
terminal.drive(3);
terminal.wait(700);
check(!control("vehicleMovingLabel").visible, "the moving message");
same(control("doneButton").image, 0, "the Done image");
done();
same(terminal.get(group, "settings")[0].onLookAheadMs, 3500, "look-ahead");
terminal.stop();
print("finished");
