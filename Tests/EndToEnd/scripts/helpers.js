// What the operator's scripts share; it runs before each of them.

function check(condition, text) { if (!condition) throw new Error(text); }
function same(actual, expected, text) {
  var a = JSON.stringify(actual), e = JSON.stringify(expected);
  if (a !== e) throw new Error(text + ": " + a + " instead of " + e);
}
// Lets the terminal run until the condition holds; the dialog checks the vehicle twice a second.
function awaitThat(condition, text) {
  for (var waited = 0; !condition(); waited += 20) {
    check(waited < 20000, text);
    terminal.wait(20);
  }
}
function control(name) {
  var found = terminal.find(name);
  check(found !== null, "no control " + name);
  return found;
}
function openDialog() {
  control("rxOptions").longTouch();
  check(terminal.find("rxMapSettings") !== null, "the dialog did not open");
}
function done() {
  control("doneButton").touch();
  terminal.wait(50);
  check(terminal.find("rxMapSettings") === null, "the dialog did not close");
}
