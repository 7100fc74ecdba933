/* Keystage Focus: publishes the process id of the focused window on the
 * session bus as io.vantorix.Keystage.ShellFocus, so that Keystage can
 * open the keypad folder linked to the application in front. GNOME Shell
 * tells no other client which window has the focus on Wayland. */
const BusName = 'io.vantorix.Keystage.ShellFocus';
const ObjectPath = '/io/vantorix/Keystage/ShellFocus';
const InterfaceXml = `
<node>
  <interface name="io.vantorix.Keystage.ShellFocus">
    <property name="FocusedPid" type="u" access="read"/>
    <signal name="FocusChanged">
      <arg name="pid" type="u"/>
    </signal>
  </interface>
</node>`;

class ShellFocus {
    constructor() {
        this._pid = 0;
        this._exported = null;
        this._ownerId = 0;
        this._focusId = 0;
    }

    get FocusedPid() {
        return this._pid;
    }

    enable() {
        this._exported = Gio.DBusExportedObject.wrapJSObject(InterfaceXml, this);
        this._exported.export(Gio.DBus.session, ObjectPath);
        this._ownerId = Gio.bus_own_name_on_connection(Gio.DBus.session, BusName,
            Gio.BusNameOwnerFlags.NONE, null, null);
        this._focusId = global.display.connect('notify::focus-window', () => this._update());
        this._update();
    }

    disable() {
        if (this._focusId)
            global.display.disconnect(this._focusId);
        this._focusId = 0;
        if (this._ownerId)
            Gio.bus_unown_name(this._ownerId);
        this._ownerId = 0;
        if (this._exported)
            this._exported.unexport();
        this._exported = null;
        this._pid = 0;
    }

    _update() {
        const window = global.display.focus_window;
        const pid = window ? Math.max(window.get_pid(), 0) : 0;
        if (pid === this._pid)
            return;
        this._pid = pid;
        this._exported.emit_property_changed('FocusedPid', new GLib.Variant('u', pid));
        this._exported.emit_signal('FocusChanged', new GLib.Variant('(u)', [pid]));
    }
}
