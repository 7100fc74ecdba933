<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>AboutPage</name>
    <message>
        <source>%1, version %2</source>
        <translation>%1, version %2</translation>
    </message>
    <message>
        <source>The desktop companion of your LCD macro keypad.</source>
        <translation>The desktop companion of your LCD macro keypad.</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Licences</translation>
    </message>
    <message>
        <source>%1 is free software: you can redistribute it and modify it under the terms of the GNU General Public License, version 3 or any later version. It comes with no warranty. It is built with Qt %2, used under the GNU Lesser General Public License version 3. Key titles are drawn with the Liberation Sans fonts, used under the SIL Open Font License 1.1.</source>
        <translation>%1 is free software: you can redistribute it and modify it under the terms of the GNU General Public License, version 3 or any later version. It comes with no warranty. It is built with Qt %2, used under the GNU Lesser General Public License version 3. Key titles are drawn with the Liberation Sans fonts, used under the SIL Open Font License 1.1.</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>About Qt</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Log files</source>
        <translation>Log files</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Open log folder</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>Settings file</translation>
    </message>
    <message>
        <source>Open settings folder</source>
        <translation>Open settings folder</translation>
    </message>
    <message>
        <source>The settings file carries a checksum: a file changed by hand is not loaded, and the settings start over.</source>
        <translation>The settings file carries a checksum: a file changed by hand is not loaded, and the settings start over.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
</context>
<context>
    <name>Accessibility</name>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
</context>
<context>
    <name>ActionList</name>
    <message>
        <source>Actions</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Hotkey</source>
        <translation>Hotkey</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>Launch</source>
        <extracomment>The action that starts a program or opens a file or folder.</extracomment>
        <translation>Launch</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Text String</source>
        <translation>Text String</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>My Favorite</source>
        <translation>My Favorite</translation>
    </message>
</context>
<context>
    <name>AddTextDialog</name>
    <message>
        <source>Add text</source>
        <translation>Add text</translation>
    </message>
    <message>
        <source>Each character becomes a press and a release of the key that types it on a US keyboard, with Shift where a US keyboard needs it, the way the keypad types on every desktop. With another keyboard layout active some characters come out differently, and characters a US keyboard lacks are left out. To insert any text as it is, use a Text String key instead.</source>
        <translation>Each character becomes a press and a release of the key that types it on a US keyboard, with Shift where a US keyboard needs it, the way the keypad types on every desktop. With another keyboard layout active some characters come out differently, and characters a US keyboard lacks are left out. To insert any text as it is, use a Text String key instead.</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Text:</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>Text:</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message numerus="yes">
        <source>%n step(s)</source>
        <translation>
            <numerusform>%n step</numerusform>
            <numerusform>%n steps</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n step(s). Left out: %1</source>
        <extracomment>%1 lists the characters that cannot be typed.</extracomment>
        <translation>
            <numerusform>%n step. Left out: %1</numerusform>
            <numerusform>%n steps. Left out: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ApplicationChooser</name>
    <message>
        <source>Choose Application</source>
        <translation>Choose Application</translation>
    </message>
    <message>
        <source>&amp;Installed</source>
        <translation>&amp;Installed</translation>
    </message>
    <message>
        <source>&amp;Running</source>
        <translation>&amp;Running</translation>
    </message>
    <message>
        <source>Where the applications come from</source>
        <translation>Where the applications come from</translation>
    </message>
    <message>
        <source>&amp;Applications:</source>
        <translation>&amp;Applications:</translation>
    </message>
    <message>
        <source>Looking for running applications…</source>
        <translation>Looking for running applications…</translation>
    </message>
    <message>
        <source>Looking for installed applications…</source>
        <translation>Looking for installed applications…</translation>
    </message>
    <message>
        <source>This desktop does not tell which applications are running.</source>
        <translation>This desktop does not tell which applications are running.</translation>
    </message>
    <message>
        <source>No applications found.</source>
        <translation>No applications found.</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>The folder %1 cannot be made.</translation>
    </message>
    <message>
        <source>Starts %1 in the tray at login</source>
        <translation>Starts %1 in the tray at login</translation>
    </message>
</context>
<context>
    <name>BookmarkChooser</name>
    <message>
        <source>Choose Bookmark</source>
        <translation>Choose Bookmark</translation>
    </message>
    <message>
        <source>&amp;Bookmarks:</source>
        <translation>&amp;Bookmarks:</translation>
    </message>
    <message>
        <source>&amp;Use the page title as the key title</source>
        <translation>&amp;Use the page title as the key title</translation>
    </message>
    <message>
        <source>Reading the browsers&apos; bookmarks…</source>
        <translation>Reading the browsers&apos; bookmarks…</translation>
    </message>
    <message>
        <source>Title</source>
        <extracomment>Column header: the name of a browser bookmark.</extracomment>
        <translation>Title</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>No bookmarks of Firefox, Chromium, Google Chrome, Brave, Vivaldi or Microsoft Edge found.</source>
        <translation>No bookmarks of Firefox, Chromium, Google Chrome, Brave, Vivaldi or Microsoft Edge found.</translation>
    </message>
</context>
<context>
    <name>ChooserDialog</name>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Search:</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Re&amp;fresh</translation>
    </message>
</context>
<context>
    <name>ConfigurationBackup</name>
    <message>
        <source>%1 backup %2</source>
        <translation>%1 backup %2</translation>
    </message>
    <message>
        <source>My Favorite</source>
        <translation>My Favorite</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>The folder %1 does not exist.</translation>
    </message>
    <message>
        <source>No folder can be made in %1.</source>
        <translation>No folder can be made in %1.</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1 could not be written: %2</translation>
    </message>
    <message>
        <source>Layout %1 keys vertical</source>
        <extracomment>A file name: the keypad&apos;s size, then its orientation.</extracomment>
        <translation>Layout %1 keys vertical</translation>
    </message>
    <message>
        <source>Layout %1 keys horizontal</source>
        <translation>Layout %1 keys horizontal</translation>
    </message>
</context>
<context>
    <name>ControlAdaptor</name>
    <message>
        <source>No folder titled &quot;%1&quot; on the root page.</source>
        <translation>No folder titled &quot;%1&quot; on the root page.</translation>
    </message>
    <message>
        <source>Key %1 is not on the keypad (0 to %2).</source>
        <translation>Key %1 is not on the keypad (0 to %2).</translation>
    </message>
    <message>
        <source>Key %1 of the root page is not a folder.</source>
        <translation>Key %1 of the root page is not a folder.</translation>
    </message>
    <message>
        <source>Key %1 has no action on this page.</source>
        <translation>Key %1 has no action on this page.</translation>
    </message>
    <message>
        <source>Brightness %1 is outside %2 to %3.</source>
        <translation>Brightness %1 is outside %2 to %3.</translation>
    </message>
    <message>
        <source>Layout %1 does not exist (0 to %2).</source>
        <translation>Layout %1 does not exist (0 to %2).</translation>
    </message>
</context>
<context>
    <name>Dialog</name>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>icon</source>
        <translation>icon</translation>
    </message>
    <message>
        <source>subject text</source>
        <translation>subject text</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Don&apos;t show again</translation>
    </message>
    <message>
        <source>other</source>
        <translation>other</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>DimmingPage</name>
    <message>
        <source>Dimming</source>
        <translation>Dimming</translation>
    </message>
    <message>
        <source>Dim the keypad after</source>
        <translation>Dim the keypad after</translation>
    </message>
    <message>
        <source>minutes without a key press</source>
        <translation>minutes without a key press</translation>
    </message>
    <message>
        <source>Minutes without a key press</source>
        <translation>Minutes without a key press</translation>
    </message>
    <message>
        <source>Dimmed brightness:</source>
        <translation>Dimmed brightness:</translation>
    </message>
    <message>
        <source>Dimmed brightness</source>
        <translation>Dimmed brightness</translation>
    </message>
    <message>
        <source>Turn the keypad off while the screen is locked</source>
        <translation>Turn the keypad off while the screen is locked</translation>
    </message>
    <message>
        <source>The next key press brings the brightness back; that press does nothing else.</source>
        <translation>The next key press brings the brightness back; that press does nothing else.</translation>
    </message>
    <message>
        <source>Unavailable: the keypad connection is not running.</source>
        <translation>Unavailable: the keypad connection is not running.</translation>
    </message>
    <message>
        <source>Unavailable: neither logind nor a screen saver reports screen locks on this desktop (D-Bus).</source>
        <translation>Unavailable: neither logind nor a screen saver reports screen locks on this desktop (D-Bus).</translation>
    </message>
</context>
<context>
    <name>EmojiCatalog</name>
    <message>
        <source>The list of emoji (%1) cannot be read. Install the package unicode-data.</source>
        <translation>The list of emoji (%1) cannot be read. Install the package unicode-data.</translation>
    </message>
    <message>
        <source>The list of emoji (%1) is not valid.</source>
        <translation>The list of emoji (%1) is not valid.</translation>
    </message>
    <message>
        <source>The list of emoji holds no emoji.</source>
        <translation>The list of emoji holds no emoji.</translation>
    </message>
</context>
<context>
    <name>EmojiNames</name>
    <message>
        <source>en</source>
        <extracomment>The Unicode CLDR locale whose emoji names suit this language: ja, zh_Hant, de, fr or it. Not shown.</extracomment>
        <translation>en</translation>
    </message>
</context>
<context>
    <name>FaceEditor</name>
    <message>
        <source>Shown on the key</source>
        <translation>Shown on the key</translation>
    </message>
    <message>
        <source>Style…</source>
        <translation>Style…</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Icon</translation>
    </message>
    <message>
        <source>Choose icon…</source>
        <translation>Choose icon…</translation>
    </message>
    <message>
        <source>Use default icon</source>
        <translation>Use default icon</translation>
    </message>
    <message>
        <source>Of the second hotkey</source>
        <translation>Of the second hotkey</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Processor</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memory</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Network</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Clock</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Live content:</source>
        <translation>Live content:</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Graph</translation>
    </message>
    <message>
        <source>A graph of the last minute under the value</source>
        <translation>A graph of the last minute under the value</translation>
    </message>
</context>
<context>
    <name>Favorite</name>
    <message>
        <source>My Favorite</source>
        <translation>My Favorite</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Empty slot</source>
        <translation>Empty slot</translation>
    </message>
    <message>
        <source>Usage: %1 / %2</source>
        <translation>Usage: %1 / %2</translation>
    </message>
    <message>
        <source>Are you sure you want to reset all favorite items?</source>
        <translation>Are you sure you want to reset all favorite items?</translation>
    </message>
    <message>
        <source>You can&apos;t undo this action.</source>
        <translation>You can&apos;t undo this action.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Delete</translation>
    </message>
</context>
<context>
    <name>FavoriteKeyItemModel</name>
    <message>
        <source>You have reached the limit of &quot;My Favorite&quot;.</source>
        <translation>You have reached the limit of &quot;My Favorite&quot;.</translation>
    </message>
    <message>
        <source>Import %1 fails.</source>
        <translation>Import %1 fails.</translation>
    </message>
    <message>
        <source>The limit of &quot;My Favorite&quot; is %1 items.</source>
        <translation>The limit of &quot;My Favorite&quot; is %1 items.</translation>
    </message>
    <message>
        <source>You already have %1 item in &quot;My Favorite.&quot; If continues, %2 item will be lost. Are you sure you want to proceed?</source>
        <translation>You already have %1 item in &quot;My Favorite.&quot; If continues, %2 item will be lost. Are you sure you want to proceed?</translation>
    </message>
</context>
<context>
    <name>FirefoxBookmarks</name>
    <message>
        <source>Bookmarks Menu</source>
        <translation>Bookmarks Menu</translation>
    </message>
    <message>
        <source>Bookmarks Toolbar</source>
        <translation>Bookmarks Toolbar</translation>
    </message>
    <message>
        <source>Other Bookmarks</source>
        <translation>Other Bookmarks</translation>
    </message>
    <message>
        <source>Mobile Bookmarks</source>
        <translation>Mobile Bookmarks</translation>
    </message>
</context>
<context>
    <name>FirmwarePage</name>
    <message>
        <source>The keypad runs firmware of its own. This program carries the newest firmware it knows for each keypad model and can install it.</source>
        <translation>The keypad runs firmware of its own. This program carries the newest firmware it knows for each keypad model and can install it.</translation>
    </message>
    <message>
        <source>Keypad:</source>
        <translation>Keypad:</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>Serial number:</translation>
    </message>
    <message>
        <source>Installed firmware:</source>
        <translation>Installed firmware:</translation>
    </message>
    <message>
        <source>Firmware in this program:</source>
        <translation>Firmware in this program:</translation>
    </message>
    <message>
        <source>&amp;Update firmware…</source>
        <translation>&amp;Update firmware…</translation>
    </message>
    <message>
        <source>Update progress</source>
        <translation>Update progress</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>The firmware update is still running. Closing now could leave the keypad unusable.</source>
        <translation>The firmware update is still running. Closing now could leave the keypad unusable.</translation>
    </message>
    <message>
        <source>Reading the keypad…</source>
        <translation>Reading the keypad…</translation>
    </message>
    <message>
        <source>No keypad connected</source>
        <translation>No keypad connected</translation>
    </message>
    <message>
        <source>The keypad does not tell its firmware version. Unplug it, plug it in again and try once more.</source>
        <translation>The keypad does not tell its firmware version. Unplug it, plug it in again and try once more.</translation>
    </message>
    <message>
        <source>This program has no firmware for this keypad (%1), so there is no update to offer.</source>
        <translation>This program has no firmware for this keypad (%1), so there is no update to offer.</translation>
    </message>
    <message>
        <source>Updating the firmware. Keep the keypad plugged in; its keys do nothing until the update ends.</source>
        <translation>Updating the firmware. Keep the keypad plugged in; its keys do nothing until the update ends.</translation>
    </message>
    <message>
        <source>The firmware was updated.</source>
        <translation>The firmware was updated.</translation>
    </message>
    <message>
        <source>The firmware update failed. Keep the keypad plugged in and try again. If it stays dark, unplug it and plug it in again.</source>
        <translation>The firmware update failed. Keep the keypad plugged in and try again. If it stays dark, unplug it and plug it in again.</translation>
    </message>
</context>
<context>
    <name>FolderForm</name>
    <message>
        <source>Folder</source>
        <extracomment>Heading of the form of a folder key: a key that opens a page of more keys.</extracomment>
        <translation>Folder</translation>
    </message>
    <message>
        <source>No application</source>
        <translation>No application</translation>
    </message>
    <message>
        <source>Open this folder when an application comes to the front</source>
        <translation>Open this folder when an application comes to the front</translation>
    </message>
    <message>
        <source>Choose application…</source>
        <translation>Choose application…</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>Browse…</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Forgets the application that opens this folder.</extracomment>
        <translation>Clear</translation>
    </message>
    <message>
        <source>The folder no longer opens by itself</source>
        <translation>The folder no longer opens by itself</translation>
    </message>
</context>
<context>
    <name>ForegroundSource</name>
    <message>
        <source>Folders open by application: %1 tells which is in front.</source>
        <translation>Folders open by application: %1 tells which is in front.</translation>
    </message>
    <message>
        <source>Folders open by application: the Keystage Focus extension of GNOME Shell tells which is in front.</source>
        <translation>Folders open by application: the Keystage Focus extension of GNOME Shell tells which is in front.</translation>
    </message>
    <message>
        <source>To open folders by application, turn on the Keystage Focus extension in Extensions, or run: gnome-extensions enable %1</source>
        <translation>To open folders by application, turn on the Keystage Focus extension in Extensions, or run: gnome-extensions enable %1</translation>
    </message>
    <message>
        <source>To open folders by application on GNOME, install Keystage&apos;s GNOME Shell extension (%1) and turn it on.</source>
        <translation>To open folders by application on GNOME, install Keystage&apos;s GNOME Shell extension (%1) and turn it on.</translation>
    </message>
    <message>
        <source>Folders cannot open by application: there is no session bus to ask KWin.</source>
        <translation>Folders cannot open by application: there is no session bus to ask KWin.</translation>
    </message>
    <message>
        <source>This compositor does not tell which application is in front, so folders cannot open by application. Compositors that offer wlroots&apos; toplevel list do (sway, river, labwc, Wayfire, Hyprland).</source>
        <translation>This compositor does not tell which application is in front, so folders cannot open by application. Compositors that offer wlroots&apos; toplevel list do (sway, river, labwc, Wayfire, Hyprland).</translation>
    </message>
    <message>
        <source>Folders open by application: the compositor&apos;s toplevel list tells which is in front.</source>
        <translation>Folders open by application: the compositor&apos;s toplevel list tells which is in front.</translation>
    </message>
</context>
<context>
    <name>FunctionDescription</name>
    <message>
        <source>Folder
Store an organized group of key actions. Folder can be linked to an application, and folder will open automatically when the application is launched.</source>
        <translation>Folder
Store an organized group of key actions. Folder can be linked to an application, and folder will open automatically when the application is launched.</translation>
    </message>
    <message>
        <source>Hotkey
A key or a combination of keys used together to perform a task or function on the operating system or applications. Recall the hotkey action by pressing on the button.</source>
        <translation>Hotkey
A key or a combination of keys used together to perform a task or function on the operating system or applications. Recall the hotkey action by pressing on the button.</translation>
    </message>
    <message>
        <source>Macro key
A sequence of commands or keyboard strokes stored in the assigned key. Recall the macro key action by pressing on the button.</source>
        <translation>Macro key
A sequence of commands or keyboard strokes stored in the assigned key. Recall the macro key action by pressing on the button.</translation>
    </message>
    <message>
        <source>Launch
Execute an application, file, folder path, or command-line by pressing on the button.</source>
        <translation>Launch
Execute an application, file, folder path, or command-line by pressing on the button.</translation>
    </message>
    <message>
        <source>Website
Search the web or navigate the site by pressing on the button.</source>
        <translation>Website
Search the web or navigate the site by pressing on the button.</translation>
    </message>
    <message>
        <source>Text String
A sequence of characters defined by users. Text string can be text message, source code or script that stored in the assigned key. Recall the text string by pressing on the button.</source>
        <translation>Text String
A sequence of characters defined by users. Text string can be text message, source code or script that stored in the assigned key. Recall the text string by pressing on the button.</translation>
    </message>
    <message>
        <source>Drag an action from above list and drop into section on the left.</source>
        <translation>Drag an action from above list and drop into section on the left.</translation>
    </message>
</context>
<context>
    <name>HotkeyForm</name>
    <message>
        <source>Hotkey</source>
        <extracomment>Heading of the form of a hotkey: a keypad key that types a keyboard shortcut.</extracomment>
        <translation>Hotkey</translation>
    </message>
    <message>
        <source>Key combination</source>
        <translation>Key combination</translation>
    </message>
    <message>
        <source>Toggle between two hotkeys</source>
        <translation>Toggle between two hotkeys</translation>
    </message>
    <message>
        <source>Second key combination</source>
        <translation>Second key combination</translation>
    </message>
    <message>
        <source>Second title</source>
        <translation>Second title</translation>
    </message>
    <message>
        <source>The keypad shows the first hotkey now.</source>
        <translation>The keypad shows the first hotkey now.</translation>
    </message>
    <message>
        <source>The keypad shows the second hotkey now.</source>
        <translation>The keypad shows the second hotkey now.</translation>
    </message>
</context>
<context>
    <name>HotkeyRecorder</name>
    <message>
        <source>Press a key combination</source>
        <translation>Press a key combination</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Not set</translation>
    </message>
    <message>
        <source>That key cannot be typed. Press another one</source>
        <translation>That key cannot be typed. Press another one</translation>
    </message>
    <message>
        <source>Click, or press Enter or Space, to record a key combination</source>
        <translation>Click, or press Enter or Space, to record a key combination</translation>
    </message>
    <message>
        <source>Keys a keyboard may lack</source>
        <translation>Keys a keyboard may lack</translation>
    </message>
</context>
<context>
    <name>IconChooser</name>
    <message>
        <source>Choose Icon</source>
        <translation>Choose Icon</translation>
    </message>
    <message>
        <source>Image &amp;file</source>
        <translation>Image &amp;file</translation>
    </message>
    <message>
        <source>Icon &amp;theme</source>
        <translation>Icon &amp;theme</translation>
    </message>
    <message>
        <source>&amp;Emoji</source>
        <translation>&amp;Emoji</translation>
    </message>
    <message>
        <source>The key with this icon</source>
        <translation>The key with this icon</translation>
    </message>
    <message>
        <source>Choose image file…</source>
        <translation>Choose image file…</translation>
    </message>
    <message>
        <source>PNG, JPEG, SVG, WebP, GIF (its first picture) and the other image formats of this system. The picture is fitted into the key without distortion; transparent parts stay transparent.</source>
        <translation>PNG, JPEG, SVG, WebP, GIF (its first picture) and the other image formats of this system. The picture is fitted into the key without distortion; transparent parts stay transparent.</translation>
    </message>
    <message>
        <source>&amp;Icons:</source>
        <translation>&amp;Icons:</translation>
    </message>
    <message>
        <source>E&amp;moji:</source>
        <translation>E&amp;moji:</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 cannot be read: %2</translation>
    </message>
    <message>
        <source>Reading the icon theme…</source>
        <translation>Reading the icon theme…</translation>
    </message>
    <message>
        <source>Reading the emoji…</source>
        <translation>Reading the emoji…</translation>
    </message>
    <message>
        <source>The icon theme &quot;%1&quot; has no icons.</source>
        <translation>The icon theme &quot;%1&quot; has no icons.</translation>
    </message>
    <message>
        <source>No icon chosen.</source>
        <translation>No icon chosen.</translation>
    </message>
</context>
<context>
    <name>IconGridPage</name>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Search:</translation>
    </message>
    <message>
        <source>Type words of the name</source>
        <translation>Type words of the name</translation>
    </message>
    <message>
        <source>Nothing matches the search.</source>
        <translation>Nothing matches the search.</translation>
    </message>
    <message numerus="yes">
        <source>%n shown</source>
        <translation>
            <numerusform>%n shown</numerusform>
            <numerusform>%n shown</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportExportPage</name>
    <message>
        <source>Export layout…</source>
        <translation>Export layout…</translation>
    </message>
    <message>
        <source>The keys of the layout in use, with their folders, as a .kslayout file.</source>
        <translation>The keys of the layout in use, with their folders, as a .kslayout file.</translation>
    </message>
    <message>
        <source>Export My Favorite…</source>
        <translation>Export My Favorite…</translation>
    </message>
    <message>
        <source>All of My Favorite as a .ksfavorites file.</source>
        <translation>All of My Favorite as a .ksfavorites file.</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Import…</translation>
    </message>
    <message>
        <source>A .kslayout file replaces the keys of the layout in use; a .ksfavorites file adds to My Favorite. You are asked first.</source>
        <translation>A .kslayout file replaces the keys of the layout in use; a .ksfavorites file adds to My Favorite. You are asked first.</translation>
    </message>
    <message>
        <source>Back up everything…</source>
        <translation>Back up everything…</translation>
    </message>
    <message>
        <source>Every layout and My Favorite, each in a file of its own, into a new dated folder inside the folder you choose.</source>
        <translation>Every layout and My Favorite, each in a file of its own, into a new dated folder inside the folder you choose.</translation>
    </message>
    <message>
        <source>Import and export</source>
        <translation>Import and export</translation>
    </message>
    <message>
        <source>Export layout</source>
        <translation>Export layout</translation>
    </message>
    <message>
        <source>Keystage layout (*.kslayout)</source>
        <translation>Keystage layout (*.kslayout)</translation>
    </message>
    <message>
        <source>The layout was exported to %1.</source>
        <translation>The layout was exported to %1.</translation>
    </message>
    <message>
        <source>The layout could not be exported to %1.</source>
        <translation>The layout could not be exported to %1.</translation>
    </message>
    <message>
        <source>Export My Favorite</source>
        <translation>Export My Favorite</translation>
    </message>
    <message>
        <source>Keystage favorites (*.ksfavorites)</source>
        <translation>Keystage favorites (*.ksfavorites)</translation>
    </message>
    <message>
        <source>My Favorite was exported to %1.</source>
        <translation>My Favorite was exported to %1.</translation>
    </message>
    <message>
        <source>My Favorite could not be exported to %1.</source>
        <translation>My Favorite could not be exported to %1.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Keystage files (*.kslayout *.ksfavorites);;Keystage layout (*.kslayout);;Keystage favorites (*.ksfavorites)</source>
        <translation>Keystage files (*.kslayout *.ksfavorites);;Keystage layout (*.kslayout);;Keystage favorites (*.ksfavorites)</translation>
    </message>
    <message>
        <source>Back up everything into</source>
        <translation>Back up everything into</translation>
    </message>
    <message numerus="yes">
        <source>%n files were written to %1.</source>
        <translation>
            <numerusform>%n file was written to %1.</numerusform>
            <numerusform>%n files were written to %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>The backup failed. %1</source>
        <translation>The backup failed. %1</translation>
    </message>
</context>
<context>
    <name>InsertKeyDialog</name>
    <message>
        <source>Insert key</source>
        <translation>Insert key</translation>
    </message>
    <message>
        <source>&amp;Key to insert (a press and a release, with its modifiers around it):</source>
        <translation>&amp;Key to insert (a press and a release, with its modifiers around it):</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insert</translation>
    </message>
</context>
<context>
    <name>KeyChord</name>
    <message>
        <source>Super</source>
        <translation>Super</translation>
    </message>
</context>
<context>
    <name>KeyGridContextMenu</name>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;New Folder</translation>
    </message>
    <message>
        <source>&amp;Create Actions</source>
        <translation>&amp;Create Actions</translation>
    </message>
    <message>
        <source>&amp;Hotkey</source>
        <translation>&amp;Hotkey</translation>
    </message>
    <message>
        <source>&amp;Macro</source>
        <translation>&amp;Macro</translation>
    </message>
    <message>
        <source>&amp;Launch</source>
        <extracomment>The action that starts a program or opens a file (a verb, as in the action palette).</extracomment>
        <translation>&amp;Launch</translation>
    </message>
    <message>
        <source>&amp;Website</source>
        <translation>&amp;Website</translation>
    </message>
    <message>
        <source>&amp;Text String</source>
        <translation>&amp;Text String</translation>
    </message>
    <message>
        <source>&amp;Cut</source>
        <translation>&amp;Cut</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>&amp;Save as favorite</source>
        <translation>&amp;Save as favorite</translation>
    </message>
</context>
<context>
    <name>KeyGridController</name>
    <message>
        <source>The limit of folder is different.</source>
        <translation>The limit of folder is different.</translation>
    </message>
    <message>
        <source>If continues, some items may be lost. Are you sure you want to proceed?</source>
        <translation>If continues, some items may be lost. Are you sure you want to proceed?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this item?</source>
        <translation>Are you sure you want to delete this item?</translation>
    </message>
    <message>
        <source>You can&apos;t undo this action.</source>
        <translation>You can&apos;t undo this action.</translation>
    </message>
    <message>
        <source>Don&apos;t ask me again</source>
        <translation>Don&apos;t ask me again</translation>
    </message>
</context>
<context>
    <name>KeyItemForm</name>
    <message>
        <source>Title</source>
        <extracomment>The text shown on the key of the keypad, under its icon.</extracomment>
        <translation>Title</translation>
    </message>
</context>
<context>
    <name>KeyItemGridView</name>
    <message>
        <source>Keys</source>
        <extracomment>The keys of the keypad, as the editor shows them.</extracomment>
        <translation>Keys</translation>
    </message>
    <message>
        <source>Key %1: empty</source>
        <extracomment>%1 is the number of a key on the keypad.</extracomment>
        <translation>Key %1: empty</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The key that leads out of a folder page, back to the page above.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Key %1: %2</source>
        <translation>Key %1: %2</translation>
    </message>
    <message>
        <source>Key %1: %2, %3</source>
        <translation>Key %1: %2, %3</translation>
    </message>
</context>
<context>
    <name>KeyItemModel</name>
    <message>
        <source>Copy</source>
        <extracomment>Title of a default key (the Copy hotkey); a key face is 72 pixels wide.</extracomment>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Paste</source>
        <extracomment>Title of a default key (the Paste hotkey).</extracomment>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Media</source>
        <extracomment>Title of a default folder key holding the volume keys.</extracomment>
        <translation>Media</translation>
    </message>
    <message>
        <source>Mute</source>
        <extracomment>Title of a default key: mutes the sound.</extracomment>
        <translation>Mute</translation>
    </message>
    <message>
        <source>Vol -</source>
        <extracomment>Title of a default key: turns the volume down.</extracomment>
        <translation>Vol -</translation>
    </message>
    <message>
        <source>Vol +</source>
        <extracomment>Title of a default key: turns the volume up.</extracomment>
        <translation>Vol +</translation>
    </message>
</context>
<context>
    <name>KeyItemSummary</name>
    <message numerus="yes">
        <source>%n step(s)</source>
        <translation>
            <numerusform>%n step</numerusform>
            <numerusform>%n steps</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n key(s)</source>
        <translation>
            <numerusform>%n key</numerusform>
            <numerusform>%n keys</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>KeyMapping</name>
    <message>
        <source>Unknown key</source>
        <translation>Unknown key</translation>
    </message>
    <message>
        <source>Left Super</source>
        <translation>Left Super</translation>
    </message>
    <message>
        <source>Right Super</source>
        <translation>Right Super</translation>
    </message>
    <message>
        <source>Left Shift</source>
        <translation>Left Shift</translation>
    </message>
    <message>
        <source>Right Shift</source>
        <translation>Right Shift</translation>
    </message>
    <message>
        <source>Left Ctrl</source>
        <translation>Left Ctrl</translation>
    </message>
    <message>
        <source>Right Ctrl</source>
        <translation>Right Ctrl</translation>
    </message>
    <message>
        <source>Left Alt</source>
        <translation>Left Alt</translation>
    </message>
    <message>
        <source>Right Alt</source>
        <translation>Right Alt</translation>
    </message>
</context>
<context>
    <name>KeyPickerMenu</name>
    <message>
        <source>F13 to F24</source>
        <translation>F13 to F24</translation>
    </message>
    <message>
        <source>Keys the recorder uses</source>
        <translation>Keys the recorder uses</translation>
    </message>
</context>
<context>
    <name>KeypadAccess</name>
    <message>
        <source>Install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d), then run &quot;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&quot; or unplug and replug the keypad.</source>
        <translation>Install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d), then run &quot;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&quot; or unplug and replug the keypad.</translation>
    </message>
</context>
<context>
    <name>KeypadPage</name>
    <message>
        <source>Keypad</source>
        <extracomment>The USB keypad with LCD keys this program drives.</extracomment>
        <translation>Keypad</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Serial number</translation>
    </message>
    <message>
        <source>Firmware version</source>
        <translation>Firmware version</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Set on the keypad as you move it, and on every keypad you connect.</source>
        <translation>Set on the keypad as you move it, and on every keypad you connect.</translation>
    </message>
    <message>
        <source>Show logo</source>
        <translation>Show logo</translation>
    </message>
    <message>
        <source>No keypad connected</source>
        <translation>No keypad connected</translation>
    </message>
    <message>
        <source>Reading the keypad…</source>
        <translation>Reading the keypad…</translation>
    </message>
    <message>
        <source>The keypad does not answer.</source>
        <translation>The keypad does not answer.</translation>
    </message>
    <message>
        <source>The keypad shows its logo for a moment.</source>
        <translation>The keypad shows its logo for a moment.</translation>
    </message>
    <message>
        <source>The keypad did not show its logo.</source>
        <translation>The keypad did not show its logo.</translation>
    </message>
</context>
<context>
    <name>KeystrokeBackend</name>
    <message>
        <source>To let them type, install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d) and run &quot;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&quot;, or log in to an X11 session.</source>
        <translation>To let them type, install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d) and run &quot;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&quot;, or log in to an X11 session.</translation>
    </message>
    <message>
        <source>This is a Wayland session, and without access to /dev/uinput keys are typed through XWayland, which only programs running under X receive. To reach every program, install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d), run &quot;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&quot; and start %1 again.</source>
        <translation>This is a Wayland session, and without access to /dev/uinput keys are typed through XWayland, which only programs running under X receive. To reach every program, install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d), run &quot;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&quot; and start %1 again.</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>The language of %1&apos;s windows. It changes when %1 starts again.</source>
        <translation>The language of %1&apos;s windows. It changes when %1 starts again.</translation>
    </message>
    <message>
        <source>Use this language</source>
        <translation>Use this language</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>The language could not be stored.</source>
        <translation>The language could not be stored.</translation>
    </message>
    <message>
        <source>Restart %1 now?</source>
        <translation>Restart %1 now?</translation>
    </message>
    <message>
        <source>%1 is used from the next start.</source>
        <translation>%1 is used from the next start.</translation>
    </message>
</context>
<context>
    <name>LaunchForm</name>
    <message>
        <source>Launch</source>
        <extracomment>Heading of the form of a Launch key: the action that starts a program or opens a file (a verb).</extracomment>
        <translation>Launch</translation>
    </message>
    <message>
        <source>A program, script, document or folder</source>
        <translation>A program, script, document or folder</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Command</translation>
    </message>
    <message>
        <source>Choose file…</source>
        <translation>Choose file…</translation>
    </message>
    <message>
        <source>Choose application…</source>
        <translation>Choose application…</translation>
    </message>
    <message>
        <source>Use as title</source>
        <translation>Use as title</translation>
    </message>
    <message>
        <source>Use &quot;%1&quot; as the title?</source>
        <translation>Use &quot;%1&quot; as the title?</translation>
    </message>
</context>
<context>
    <name>LayoutPage</name>
    <message>
        <source>Choose the keypad you use and how you hold it. The editor and the keypad change at once; every layout keeps its own keys.</source>
        <translation>Choose the keypad you use and how you hold it. The editor and the keypad change at once; every layout keeps its own keys.</translation>
    </message>
    <message>
        <source>Keypad size</source>
        <translation>Keypad size</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
</context>
<context>
    <name>LayoutText</name>
    <message>
        <source>%1 keys</source>
        <translation>%1 keys</translation>
    </message>
    <message>
        <source>%1 keys, vertical</source>
        <translation>%1 keys, vertical</translation>
    </message>
    <message>
        <source>%1 keys, horizontal</source>
        <translation>%1 keys, horizontal</translation>
    </message>
</context>
<context>
    <name>LiveFacePainter</name>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>RAM</source>
        <translation>RAM</translation>
    </message>
    <message>
        <source>Net B/s</source>
        <translation>Net B/s</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>Record</source>
        <translation>Record</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>&amp;Steps:</source>
        <translation>&amp;Steps:</translation>
    </message>
    <message>
        <source>Steps:</source>
        <translation>Steps:</translation>
    </message>
    <message>
        <source>Insert key…</source>
        <translation>Insert key…</translation>
    </message>
    <message>
        <source>Add text…</source>
        <translation>Add text…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Move up</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Move down</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Removes every step of the macro.</extracomment>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Add the missing releases</source>
        <translation>Add the missing releases</translation>
    </message>
    <message>
        <source>Recording: press the keys of the macro. Esc alone or Stop ends the recording.</source>
        <translation>Recording: press the keys of the macro. Esc alone or Stop ends the recording.</translation>
    </message>
    <message numerus="yes">
        <source>%n key(s) that cannot be typed left out.</source>
        <translation>
            <numerusform>%n key that cannot be typed left out.</numerusform>
            <numerusform>%n keys that cannot be typed left out.</numerusform>
        </translation>
    </message>
    <message>
        <source>The macro leaves %1 held down: it stays pressed after the macro has played.</source>
        <translation>The macro leaves %1 held down: it stays pressed after the macro has played.</translation>
    </message>
    <message numerus="yes">
        <source>Recording: press the keys of the macro. Esc alone or Stop ends the recording. %n key(s) that cannot be typed left out.</source>
        <translation>
            <numerusform>Recording: press the keys of the macro. Esc alone or Stop ends the recording. %n key that cannot be typed left out.</numerusform>
            <numerusform>Recording: press the keys of the macro. Esc alone or Stop ends the recording. %n keys that cannot be typed left out.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MacroForm</name>
    <message>
        <source>Macro</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Steps</translation>
    </message>
</context>
<context>
    <name>MacroStepModel</name>
    <message>
        <source>Down</source>
        <extracomment>A macro step presses (Down) or releases (Up) a key; read aloud after the key name.</extracomment>
        <translation>Down</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Up</translation>
    </message>
    <message>
        <source>%1: %2 %3</source>
        <extracomment>A macro step, as a screen reader reads it: &quot;3: Shift down&quot;.</extracomment>
        <translation>%1: %2 %3</translation>
    </message>
    <message>
        <source>Key</source>
        <extracomment>Column header: the keyboard key a macro step presses or releases.</extracomment>
        <translation>Key</translation>
    </message>
    <message>
        <source>Press or release</source>
        <translation>Press or release</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Hotkeys and macros cannot type keys.</source>
        <translation>Hotkeys and macros cannot type keys.</translation>
    </message>
    <message>
        <source>Your settings were damaged and have been reset.</source>
        <translation>Your settings were damaged and have been reset.</translation>
    </message>
    <message>
        <source>The damaged file was kept as %1.</source>
        <translation>The damaged file was kept as %1.</translation>
    </message>
    <message>
        <source>No keypad connected</source>
        <translation>No keypad connected</translation>
    </message>
    <message>
        <source>Virtual keypad connected</source>
        <translation>Virtual keypad connected</translation>
    </message>
    <message>
        <source>Keypad connected</source>
        <translation>Keypad connected</translation>
    </message>
    <message>
        <source>Keypad found, but no permission to use it. %1</source>
        <translation>Keypad found, but no permission to use it. %1</translation>
    </message>
    <message>
        <source>Keypad status: %1</source>
        <translation>Keypad status: %1</translation>
    </message>
    <message>
        <source>%1 could not be imported.</source>
        <translation>%1 could not be imported.</translation>
    </message>
    <message>
        <source>Replace the keys of this layout?</source>
        <translation>Replace the keys of this layout?</translation>
    </message>
    <message>
        <source>The keys of the current layout are replaced by those of %1. You can&apos;t undo this action.</source>
        <translation>The keys of the current layout are replaced by those of %1. You can&apos;t undo this action.</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>About %1</translation>
    </message>
    <message>
        <source>The desktop companion of your LCD macro keypad.</source>
        <translation>The desktop companion of your LCD macro keypad.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>%1 cannot quit now.</source>
        <translation>%1 cannot quit now.</translation>
    </message>
    <message numerus="yes">
        <source>The keys of the current layout are replaced by those of %1. You can&apos;t undo this action.
%n key(s) do not fit this layout and will be lost.</source>
        <translation>
            <numerusform>The keys of the current layout are replaced by those of %1. You can&apos;t undo this action.
%n key does not fit this layout and will be lost.</numerusform>
            <numerusform>The keys of the current layout are replaced by those of %1. You can&apos;t undo this action.
%n keys do not fit this layout and will be lost.</numerusform>
        </translation>
    </message>
    <message>
        <source>Hotkeys and macros type into X applications only.</source>
        <translation>Hotkeys and macros type into X applications only.</translation>
    </message>
    <message>
        <source>Your settings cannot be saved.</source>
        <translation>Your settings cannot be saved.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. Your changes are kept while %3 runs and saved as soon as the file can be written again.</source>
        <translation>%1 cannot be written: %2. Your changes are kept while %3 runs and saved as soon as the file can be written again.</translation>
    </message>
</context>
<context>
    <name>PreferenceDialog</name>
    <message>
        <source>%1 Settings</source>
        <translation>%1 Settings</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>Settings pages</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>The settings cannot be closed now.</source>
        <translation>The settings cannot be closed now.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Do you want to update firmware?</source>
        <translation>Do you want to update firmware?</translation>
    </message>
    <message>
        <source>Firmware version %1 is now available - current version %2 Would you like to update now?</source>
        <extracomment>%1 is the firmware this program carries, %2 the firmware on the keypad.</extracomment>
        <translation>Firmware version %1 is now available - current version %2 Would you like to update now?</translation>
    </message>
    <message>
        <source>Choose an image</source>
        <translation>Choose an image</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>Images (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>All files (*)</translation>
    </message>
    <message>
        <source>Choose a program</source>
        <translation>Choose a program</translation>
    </message>
    <message>
        <source>Choose a program, script, document or folder</source>
        <translation>Choose a program, script, document or folder</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
</context>
<context>
    <name>ResetPage</name>
    <message>
        <source>Removes every key you made, on all six layouts, folders included, and puts back the keys a new installation starts with. My Favorite and the other settings stay. To keep a copy, use &quot;Back up everything&quot; under Import and export first.</source>
        <translation>Removes every key you made, on all six layouts, folders included, and puts back the keys a new installation starts with. My Favorite and the other settings stay. To keep a copy, use &quot;Back up everything&quot; under Import and export first.</translation>
    </message>
    <message>
        <source>Reset all keys…</source>
        <translation>Reset all keys…</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Are you sure you want to reset the keys of every layout?</source>
        <translation>Are you sure you want to reset the keys of every layout?</translation>
    </message>
    <message>
        <source>You can&apos;t undo this action.</source>
        <translation>You can&apos;t undo this action.</translation>
    </message>
    <message>
        <source>Every layout has its default keys again.</source>
        <translation>Every layout has its default keys again.</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The file cannot be read.</source>
        <translation>The file cannot be read.</translation>
    </message>
    <message>
        <source>The file is not a Keystage layout or favourites file.</source>
        <translation>The file is not a Keystage layout or favourites file.</translation>
    </message>
    <message>
        <source>The file was changed or damaged after it was exported: its checksum does not match.</source>
        <translation>The file was changed or damaged after it was exported: its checksum does not match.</translation>
    </message>
</context>
<context>
    <name>SoftwareUpdate</name>
    <message>
        <source>Checking for updates is turned off.</source>
        <translation>Checking for updates is turned off.</translation>
    </message>
    <message>
        <source>This build names an update address that is not HTTPS; it is not used.</source>
        <translation>This build names an update address that is not HTTPS; it is not used.</translation>
    </message>
    <message>
        <source>The update information is too large.</source>
        <translation>The update information is too large.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Checking for updates…</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>The download was cancelled.</translation>
    </message>
    <message>
        <source>The update server answered with HTTP status %1.</source>
        <translation>The update server answered with HTTP status %1.</translation>
    </message>
    <message>
        <source>The update server did not answer in time.</source>
        <translation>The update server did not answer in time.</translation>
    </message>
    <message>
        <source>The update server could not be reached: %1</source>
        <translation>The update server could not be reached: %1</translation>
    </message>
    <message>
        <source>Keystage %1 is up to date.</source>
        <translation>Keystage %1 is up to date.</translation>
    </message>
    <message>
        <source>Keystage %1 is available. You have %2.</source>
        <translation>Keystage %1 is available. You have %2.</translation>
    </message>
    <message>
        <source>Downloading Keystage %1…</source>
        <translation>Downloading Keystage %1…</translation>
    </message>
    <message>
        <source>The download cannot be saved: %1</source>
        <translation>The download cannot be saved: %1</translation>
    </message>
    <message>
        <source>The package is larger than %1 MB; it is not downloaded.</source>
        <translation>The package is larger than %1 MB; it is not downloaded.</translation>
    </message>
    <message>
        <source>The download ended early: %1 of %2 bytes arrived.</source>
        <translation>The download ended early: %1 of %2 bytes arrived.</translation>
    </message>
    <message>
        <source>The downloaded package does not match the checksum the update server gave, so it was deleted.</source>
        <translation>The downloaded package does not match the checksum the update server gave, so it was deleted.</translation>
    </message>
    <message>
        <source>No package installer could be opened. The verified package is saved as %1.</source>
        <translation>No package installer could be opened. The verified package is saved as %1.</translation>
    </message>
    <message>
        <source>The package installer has opened Keystage %1. Once it has installed it, restart Keystage to use the new version.</source>
        <translation>The package installer has opened Keystage %1. Once it has installed it, restart Keystage to use the new version.</translation>
    </message>
</context>
<context>
    <name>SoftwareUpdatePage</name>
    <message>
        <source>Keystage is updated by your distribution&apos;s package manager, together with the rest of the system. Use your software centre or package manager to get new versions.</source>
        <translation>Keystage is updated by your distribution&apos;s package manager, together with the rest of the system. Use your software centre or package manager to get new versions.</translation>
    </message>
    <message>
        <source>Updates normally come from your distribution&apos;s package manager. Keystage can also look for a newer release itself; it connects to the network only while this is turned on.</source>
        <translation>Updates normally come from your distribution&apos;s package manager. Keystage can also look for a newer release itself; it connects to the network only while this is turned on.</translation>
    </message>
    <message>
        <source>Check for &amp;updates</source>
        <translation>Check for &amp;updates</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>Check &amp;now</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Install</translation>
    </message>
    <message>
        <source>&amp;Cancel download</source>
        <translation>&amp;Cancel download</translation>
    </message>
    <message>
        <source>&amp;Restart Keystage</source>
        <translation>&amp;Restart Keystage</translation>
    </message>
    <message>
        <source>Download progress</source>
        <translation>Download progress</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Software update</translation>
    </message>
    <message>
        <source>Keystage is still downloading the update. Wait until it has finished, or cancel the download.</source>
        <translation>Keystage is still downloading the update. Wait until it has finished, or cancel the download.</translation>
    </message>
    <message>
        <source>What is new:</source>
        <translation>What is new:</translation>
    </message>
</context>
<context>
    <name>StartAtLoginPage</name>
    <message>
        <source>Start %1 when I log in</source>
        <translation>Start %1 when I log in</translation>
    </message>
    <message>
        <source>%1 starts in the tray, so the keypad works from the start without a window in the way. The desktop reads this from %2.</source>
        <translation>%1 starts in the tray, so the keypad works from the start without a window in the way. The desktop reads this from %2.</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Start at login</translation>
    </message>
    <message>
        <source>This could not be changed: %1</source>
        <translation>This could not be changed: %1</translation>
    </message>
</context>
<context>
    <name>TextStringForm</name>
    <message>
        <source>Text String</source>
        <extracomment>Heading of the form of a key that types a stored text.</extracomment>
        <translation>Text String</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>The key pastes the text through the clipboard, and the text stays on the clipboard afterwards.</source>
        <translation>The key pastes the text through the clipboard, and the text stays on the clipboard afterwards.</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimize</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>TitleStyleDialog</name>
    <message>
        <source>Title Style</source>
        <translation>Title Style</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>&amp;Font:</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Size:</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Bold</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Italic</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>&amp;Underline</translation>
    </message>
    <message>
        <source>&amp;Color…</source>
        <translation>&amp;Color…</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Color:</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Position:</translation>
    </message>
    <message>
        <source>The key on the keypad</source>
        <translation>The key on the keypad</translation>
    </message>
    <message>
        <source>The key in the editor&apos;s grid</source>
        <translation>The key in the editor&apos;s grid</translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation>Preview:</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Top left</translation>
    </message>
    <message>
        <source>Top center</source>
        <translation>Top center</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Top right</translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation>Middle left</translation>
    </message>
    <message>
        <source>Middle center</source>
        <translation>Middle center</translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation>Middle right</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Bottom left</translation>
    </message>
    <message>
        <source>Bottom center</source>
        <translation>Bottom center</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Bottom right</translation>
    </message>
    <message>
        <source>Title Color</source>
        <translation>Title Color</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>Show</source>
        <translation>Show</translation>
    </message>
    <message>
        <source>Virtual Keypad</source>
        <translation>Virtual Keypad</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Settings…</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
</context>
<context>
    <name>TreeView</name>
    <message>
        <source>Home</source>
        <extracomment>The top page of the keypad, above every folder.</extracomment>
        <translation>Home</translation>
    </message>
    <message>
        <source>Folder tree</source>
        <translation>Folder tree</translation>
    </message>
</context>
<context>
    <name>UpdateFeed</name>
    <message>
        <source>The update information is too large.</source>
        <translation>The update information is too large.</translation>
    </message>
    <message>
        <source>The update information is not readable.</source>
        <translation>The update information is not readable.</translation>
    </message>
    <message>
        <source>The update information has no valid version.</source>
        <translation>The update information has no valid version.</translation>
    </message>
    <message>
        <source>The update information has no valid package address (an HTTPS address of a .deb package).</source>
        <translation>The update information has no valid package address (an HTTPS address of a .deb package).</translation>
    </message>
    <message>
        <source>The update information has no valid SHA-256 checksum.</source>
        <translation>The update information has no valid SHA-256 checksum.</translation>
    </message>
</context>
<context>
    <name>UserQuestion</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
</context>
<context>
    <name>VirtualKeypadWindow</name>
    <message>
        <source>Virtual Keypad</source>
        <translation>Virtual Keypad</translation>
    </message>
    <message>
        <source>unplugged</source>
        <translation>unplugged</translation>
    </message>
</context>
<context>
    <name>WebsiteForm</name>
    <message>
        <source>Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>example.com or https://…</source>
        <translation>example.com or https://…</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>Choose bookmark…</source>
        <translation>Choose bookmark…</translation>
    </message>
    <message>
        <source>An address without &quot;https://&quot; opens as &quot;http://&quot;.</source>
        <translation>An address without &quot;https://&quot; opens as &quot;http://&quot;.</translation>
    </message>
</context>
<context>
    <name>WindowSystem</name>
    <message>
        <source>This desktop does not tell which application is in front, so folders cannot open by application. On Wayland, sway, Hyprland, KDE Plasma and GNOME (with Keystage&apos;s extension) do.</source>
        <translation>This desktop does not tell which application is in front, so folders cannot open by application. On Wayland, sway, Hyprland, KDE Plasma and GNOME (with Keystage&apos;s extension) do.</translation>
    </message>
</context>
</TS>
