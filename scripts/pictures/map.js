// A touch of the sample field, by day and by night. `sample` is the field's file, `pictures` the folder for the
// pictures.

terminal.machine.timeFactor = 0;
terminal.open(sample);
terminal.activeProduct = 2;
check(terminal.touchMap(-80, 190) === "Rx Rate: 190.00", "the field answers " + terminal.touchMap(-80, 190));
terminal.wait(1000);
terminal.screenshot(pictures + "/map.png");
control("themeButton").touch();
terminal.wait(300);
terminal.screenshot(pictures + "/night.png");
