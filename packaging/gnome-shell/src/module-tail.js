
export default class KeystageFocusExtension extends Extension {
    enable() {
        this._focus = new ShellFocus();
        this._focus.enable();
    }

    disable() {
        this._focus.disable();
        this._focus = null;
    }
}
