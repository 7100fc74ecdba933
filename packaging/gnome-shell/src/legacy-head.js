// GNOME Shell 40 to 44: a script with an init() function.
'use strict';

const { Gio, GLib } = imports.gi;

