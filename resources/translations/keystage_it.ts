<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>AboutPage</name>
    <message>
        <source>%1, version %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The desktop companion of your LCD macro keypad.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Licences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is free software: you can redistribute it and modify it under the terms of the GNU General Public License, version 3 or any later version. It comes with no warranty. It is built with Qt %2, used under the GNU Lesser General Public License version 3. Key titles are drawn with the Liberation Sans fonts, used under the SIL Open Font License 1.1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open settings folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings file carries a checksum: a file changed by hand is not loaded, and the settings start over.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Accessibility</name>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ActionList</name>
    <message>
        <source>Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hotkey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Macro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Launch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Website</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text String</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>My Favorite</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AddTextDialog</name>
    <message>
        <source>Add text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each character becomes a press and a release of the key that types it on a US keyboard, with Shift where a US keyboard needs it, the way the keypad types on every desktop. With another keyboard layout active some characters come out differently, and characters a US keyboard lacks are left out. To insert any text as it is, use a Text String key instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n step(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ApplicationChooser</name>
    <message>
        <source>Choose Application</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the applications come from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Applications:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for running applications…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for installed applications…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This desktop does not tell which applications are running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No applications found.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BookmarkChooser</name>
    <message>
        <source>Choose Bookmark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bookmarks:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Use the page title as the key title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the browsers&apos; bookmarks…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No bookmarks of Firefox, Chromium, Google Chrome, Brave, Vivaldi or Microsoft Edge found.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChooserDialog</name>
    <message>
        <source>&amp;Search:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConfigurationBackup</name>
    <message>
        <source>%1 backup %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>vertical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>horizontal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layout %1 keys %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>My Favorite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No folder can be made in %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Dialog</name>
    <message>
        <source>Dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>subject text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DimmingPage</name>
    <message>
        <source>Dimming</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dim the keypad after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>minutes without a key press</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minutes without a key press</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dimmed brightness:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dimmed brightness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn the keypad off while the screen is locked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The next key press brings the brightness back; that press does nothing else.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unavailable: the keypad connection is not running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unavailable: neither logind nor a screen saver reports screen locks on this desktop (D-Bus).</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EmojiCatalog</name>
    <message>
        <source>The list of emoji (%1) cannot be read. Install the package unicode-data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list of emoji (%1) is not valid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list of emoji holds no emoji.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FaceEditor</name>
    <message>
        <source>Shown on the key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Style…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose icon…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use default icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of the second hotkey</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Favorite</name>
    <message>
        <source>My Favorite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty slot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usage: %1 / %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to reset all favorite items?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can&apos;t undo this action.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FavoriteKeyItemModel</name>
    <message>
        <source>You have reached the limit of &quot;My Favorite&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import %1 fails.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The limit of &quot;My Favorite&quot; is %1 items.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You already have %1 item in &quot;My Favorite.&quot; If continues, %2 item will be lost. Are you sure you want to proceed?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FirefoxBookmarks</name>
    <message>
        <source>Bookmarks Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bookmarks Toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other Bookmarks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mobile Bookmarks</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FirmwarePage</name>
    <message>
        <source>The keypad runs firmware of its own. This program carries the newest firmware it knows for each keypad model and can install it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keypad:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installed firmware:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firmware in this program:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Update firmware…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The firmware update is still running. Closing now could leave the keypad unusable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the keypad…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No keypad connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The keypad does not tell its firmware version. Unplug it, plug it in again and try once more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This program has no firmware for this keypad (%1), so there is no update to offer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updating the firmware. Keep the keypad plugged in; its keys do nothing until the update ends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The firmware was updated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The firmware update failed. Keep the keypad plugged in and try again. If it stays dark, unplug it and plug it in again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderCondition</name>
    <message>
        <source>This desktop does not tell which application is in front, so folders cannot open by application.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderForm</name>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No application</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open this folder when an application comes to the front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose application…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder no longer opens by itself</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FunctionDescription</name>
    <message>
        <source>Folder
Store an organized group of key actions. Folder can be linked to an application, and folder will open automatically when the application is launched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hotkey
A key or a combination of keys used together to perform a task or function on the operating system or applications. Recall the hotkey action by pressing on the button.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Macro key
A sequence of commands or keyboard strokes stored in the assigned key. Recall the macro key action by pressing on the button.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Launch
Execute an application, file, folder path, or command-line by pressing on the button.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Website
Search the web or navigate the site by pressing on the button.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text String
A sequence of characters defined by users. Text string can be text message, source code or script that stored in the assigned key. Recall the text string by pressing on the button.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag an action from above list and drop into section on the left.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HotkeyForm</name>
    <message>
        <source>Hotkey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key combination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toggle between two hotkeys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second key combination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The keypad shows the first hotkey now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The keypad shows the second hotkey now.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HotkeyRecorder</name>
    <message>
        <source>Press a key combination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That key cannot be typed. Press another one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click, or press Enter or Space, to record a key combination</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys a keyboard may lack</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>IconChooser</name>
    <message>
        <source>Choose Icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image &amp;file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Icon &amp;theme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Emoji</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key with this icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose image file…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG, JPEG, SVG, WebP, GIF (its first picture) and the other image formats of this system. The picture is fitted into the key without distortion; transparent parts stay transparent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Icons:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;moji:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the icon theme…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the emoji…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The icon theme &quot;%1&quot; has no icons.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No icon chosen.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>IconGridPage</name>
    <message>
        <source>&amp;Search:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type words of the name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing matches the search.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n shown</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportExportPage</name>
    <message>
        <source>Export layout…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The keys of the layout in use, with their folders, as a .kslayout file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export My Favorite…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All of My Favorite as a .ksfavorites file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A .kslayout file replaces the keys of the layout in use; a .ksfavorites file adds to My Favorite. You are asked first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back up everything…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every layout and My Favorite, each in a file of its own, into a new dated folder inside the folder you choose.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import and export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keystage layout (*.kslayout)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The layout was exported to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The layout could not be exported to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export My Favorite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keystage favorites (*.ksfavorites)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>My Favorite was exported to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>My Favorite could not be exported to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keystage files (*.kslayout *.ksfavorites);;Keystage layout (*.kslayout);;Keystage favorites (*.ksfavorites)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back up everything into</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n files were written to %1.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The backup failed. %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InsertKeyDialog</name>
    <message>
        <source>Insert key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Key to insert (a press and a release, with its modifiers around it):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyChord</name>
    <message>
        <source>Super</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyGridContextMenu</name>
    <message>
        <source>&amp;New Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Create Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Hotkey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Macro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Launch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Website</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Text String</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save as favorite</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyGridController</name>
    <message>
        <source>The limit of folder is different.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If continues, some items may be lost. Are you sure you want to proceed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete this item?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can&apos;t undo this action.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don&apos;t ask me again</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyItemForm</name>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyItemGridView</name>
    <message>
        <source>Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key %1: empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key %1: %2, %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyItemSummary</name>
    <message numerus="yes">
        <source>%n step(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n key(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyMapping</name>
    <message>
        <source>Unknown key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left Super</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right Super</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left Shift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right Shift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left Ctrl</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right Ctrl</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left Alt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right Alt</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyPickerMenu</name>
    <message>
        <source>F13 to F24</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys the recorder uses</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeypadAccess</name>
    <message>
        <source>Install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d), then run &quot;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&quot; or unplug and replug the keypad.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeypadPage</name>
    <message>
        <source>Keypad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firmware version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set on the keypad as you move it, and on every keypad you connect.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show logo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No keypad connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the keypad…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The keypad does not answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The keypad shows its logo for a moment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The keypad did not show its logo.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeystrokeBackend</name>
    <message>
        <source>To let them type, install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d) and run &quot;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&quot;, or log in to an X11 session.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>The language of %1&apos;s windows. It changes when %1 starts again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use this language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The language could not be stored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restart %1 now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is used from the next start.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LaunchForm</name>
    <message>
        <source>Launch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A program, script, document or folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose file…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose application…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use as title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use &quot;%1&quot; as the title?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LayoutPage</name>
    <message>
        <source>Choose the keypad you use and how you hold it. The editor and the keypad change at once; every layout keeps its own keys.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keypad size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layout</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LayoutText</name>
    <message>
        <source>%1 keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 keys, vertical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 keys, horizontal</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Steps:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steps:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert key…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add text…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add the missing releases</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording: press the keys of the macro. Esc alone or Stop ends the recording.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n key(s) that cannot be typed left out.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The macro leaves %1 held down: it stays pressed after the macro has played.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MacroForm</name>
    <message>
        <source>Macro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steps</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MacroStepModel</name>
    <message>
        <source>Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 %3</source>
        <extracomment>A macro step, as a screen reader reads it: &quot;3: Shift down&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press or release</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Hotkeys and macros cannot type keys.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your settings were damaged and have been reset.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The damaged file was kept as %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No keypad connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Virtual keypad connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keypad connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keypad found, but no permission to use it. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keypad status: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be imported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace the keys of this layout?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The keys of the current layout are replaced by those of %1. You can&apos;t undo this action.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n key(s) do not fit this layout and will be lost.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>About %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The desktop companion of your LCD macro keypad.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot quit now.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PreferenceDialog</name>
    <message>
        <source>%1 Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings cannot be closed now.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Do you want to update firmware?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firmware version %1 is now available - current version %2 Would you like to update now?</source>
        <extracomment>%1 is the firmware this program carries, %2 the firmware on the keypad.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose an image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a program, script, document or folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ResetPage</name>
    <message>
        <source>Removes every key you made, on all six layouts, folders included, and puts back the keys a new installation starts with. My Favorite and the other settings stay. To keep a copy, use &quot;Back up everything&quot; under Import and export first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset all keys…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to reset the keys of every layout?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can&apos;t undo this action.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every layout has its default keys again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The file cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not a Keystage layout or favourites file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file was changed or damaged after it was exported: its checksum does not match.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SoftwareUpdate</name>
    <message>
        <source>Checking for updates is turned off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This build names an update address that is not HTTPS; it is not used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update information is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update server answered with HTTP status %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update server did not answer in time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update server could not be reached: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keystage %1 is up to date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keystage %1 is available. You have %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading Keystage %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The download cannot be saved: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The package is larger than %1 MB; it is not downloaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The download ended early: %1 of %2 bytes arrived.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The downloaded package does not match the checksum the update server gave, so it was deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No package installer could be opened. The verified package is saved as %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The package installer has opened Keystage %1. Once it has installed it, restart Keystage to use the new version.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SoftwareUpdatePage</name>
    <message>
        <source>Keystage is updated by your distribution&apos;s package manager, together with the rest of the system. Use your software centre or package manager to get new versions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updates normally come from your distribution&apos;s package manager. Keystage can also look for a newer release itself; it connects to the network only while this is turned on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for &amp;updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Restart Keystage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Software update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keystage is still downloading the update. Wait until it has finished, or cancel the download.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is new:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StartAtLoginPage</name>
    <message>
        <source>Start %1 when I log in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 starts in the tray, so the keypad works from the start without a window in the way. The desktop reads this from %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This could not be changed: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TextStringForm</name>
    <message>
        <source>Text String</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key pastes the text through the clipboard, and the text stays on the clipboard afterwards.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TitleStyleDialog</name>
    <message>
        <source>Title Style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Color…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key on the keypad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key in the editor&apos;s grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Middle center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title Color</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Virtual Keypad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TreeView</name>
    <message>
        <source>Home</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder tree</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdateFeed</name>
    <message>
        <source>The update information is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update information is not readable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update information has no valid version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update information has no valid package address (an HTTPS address of a .deb package).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update information has no valid SHA-256 checksum.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UserQuestion</name>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VirtualKeypadWindow</name>
    <message>
        <source>Virtual Keypad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unplugged</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WebsiteForm</name>
    <message>
        <source>Website</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>example.com or https://…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose bookmark…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An address without &quot;https://&quot; opens as &quot;http://&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
