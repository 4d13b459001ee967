// Opens a file that gives no unit and has findings, using the open window. The window shows the file when the script
// begins; `pictures` names the folder for the pictures.

function keepPicture(name) {
    terminal.wait(300);
    terminal.screenshot(pictures + "/" + name + ".png");
}
function touch(name) {
    awaitThat(function () { var found = terminal.find(name); return found !== null && found.visible; }, "no " + name);
    control(name).touch();
}

touch("columnRow0Product");
touch("choice1");
awaitThat(function () { return terminal.find("openAccept").visible; }, "the file is not shown");
keepPicture("opening");
touch("columnRow0Unit");
touch("unitAmount0");
touch("unitArea0");
keepPicture("unit");
touch("unitAccept");
touch("openAccept");
touch("findingsButton");
keepPicture("findings");
touch("finding1");
keepPicture("finding");
