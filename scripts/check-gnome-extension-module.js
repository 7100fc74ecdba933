// gjs -m scripts/check-gnome-extension-module.js DIR: the GNOME Shell 45+
// extension in DIR loads as an ES module and its default export is an
// extension with enable() and disable(), and its metadata names the
// directory. Shell's own modules are not here: the Extension base class is
// replaced by a stand-in. Exits non-zero otherwise.
import GLib from 'gi://GLib';
import System from 'system';

function read(path) {
    const [, bytes] = GLib.file_get_contents(path);
    return new TextDecoder().decode(bytes);
}

function check(dir) {
    const metadata = JSON.parse(read(`${dir}/metadata.json`));
    if (metadata.uuid !== GLib.path_get_basename(dir))
        throw new Error(`metadata uuid ${metadata.uuid} is not the directory's name`);
    if (!metadata['shell-version'].every(version => parseInt(version) >= 45))
        throw new Error('an ES module extension loads on GNOME 45 and later only');
    const shellModule = 'resource:///org/gnome/shell/extensions/extension.js';
    const source = read(`${dir}/extension.js`);
    if (!source.includes(shellModule))
        throw new Error(`extension.js does not import ${shellModule}`);
    const scratch = GLib.dir_make_tmp('keystage-extension-XXXXXX');
    GLib.file_set_contents(`${scratch}/shell.js`, 'export class Extension { constructor(metadata) { this.metadata = metadata; } }\n');
    GLib.file_set_contents(`${scratch}/extension.js`, source.replace(shellModule, './shell.js'));
    return import(`file://${scratch}/extension.js`).then(module => {
        const prototype = module.default && module.default.prototype;
        if (!prototype || typeof prototype.enable !== 'function' || typeof prototype.disable !== 'function')
            throw new Error('the default export has no enable() and disable()');
        print(`${metadata.uuid}: loads as a module`);
    });
}

check(ARGV[0]).catch(error => {
    printerr(error);
    System.exit(1);
});
