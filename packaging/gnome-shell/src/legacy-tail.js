
/* exported init */
function init() {
    return new ShellFocus();
}
