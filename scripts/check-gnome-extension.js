// gjs scripts/check-gnome-extension.js DIR: the GNOME Shell extension in DIR
// parses (without running: there is no shell here) and its metadata names
// the directory and an init function's file. Exits non-zero otherwise.
const { GLib } = imports.gi;

function read(path) {
    const [, bytes] = GLib.file_get_contents(path);
    return new TextDecoder().decode(bytes);
}

const dir = ARGV[0];
const metadata = JSON.parse(read(`${dir}/metadata.json`));
if (metadata.uuid !== GLib.path_get_basename(dir))
    throw new Error(`metadata uuid ${metadata.uuid} is not the directory's name`);
const source = read(`${dir}/extension.js`);
// Compiles the file as a function body: a syntax error throws here.
new Function(source);
if (!/\bfunction init\(/.test(source))
    throw new Error('extension.js has no init()');
print(`${metadata.uuid}: parses`);
