// The vehicle drives off while the operator has the keypad open.

var group = terminal.open(sample).group;
var settings = terminal.get(group, "settings");
openDialog();
var shown = control("lookAheadEdit").text;
control("lookAheadEdit").touch();
check(terminal.find("keypad7") !== null && control("keypad7").visible, "no keypad");
terminal.drive(3);
awaitThat(function () {
  var key = terminal.find("keypad7");
  return key === null || !key.visible;
}, "the keypad stays");
control("lookAheadEdit").enter("7");
check(terminal.find("keypad7") === null || !control("keypad7").visible, "a locked field opens the keypad");
same(control("lookAheadEdit").text, shown, "what a locked field shows");
done();
same(terminal.get(group, "settings"), settings, "settings");
print("finished");
