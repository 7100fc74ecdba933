<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>AboutPage</name>
    <message>
        <source>%1, version %2</source>
        <translation>%1, Version %2</translation>
    </message>
    <message>
        <source>The desktop companion of your LCD macro keypad.</source>
        <translation>Das Begleitprogramm für Ihr LCD-Makro-Tastenfeld.</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Lizenzen</translation>
    </message>
    <message>
        <source>%1 is free software: you can redistribute it and modify it under the terms of the GNU General Public License, version 3 or any later version. It comes with no warranty. It is built with Qt %2, used under the GNU Lesser General Public License version 3. Key titles are drawn with the Liberation Sans fonts, used under the SIL Open Font License 1.1.</source>
        <translation>%1 ist freie Software: Sie können sie unter den Bedingungen der GNU General Public License, Version 3 oder jeder späteren Version, weitergeben und verändern. Sie wird ohne jede Gewährleistung bereitgestellt. Sie ist mit Qt %2 erstellt, das unter der GNU Lesser General Public License Version 3 verwendet wird. Tastentitel werden mit den Schriften Liberation Sans gezeichnet, die unter der SIL Open Font License 1.1 verwendet werden.</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>Über Qt</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Log files</source>
        <translation>Protokolldateien</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Protokollordner öffnen</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>Einstellungsdatei</translation>
    </message>
    <message>
        <source>Open settings folder</source>
        <translation>Einstellungsordner öffnen</translation>
    </message>
    <message>
        <source>The settings file carries a checksum: a file changed by hand is not loaded, and the settings start over.</source>
        <translation>Die Einstellungsdatei enthält eine Prüfsumme: Eine von Hand geänderte Datei wird nicht geladen, und die Einstellungen beginnen von vorn.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
</context>
<context>
    <name>Accessibility</name>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>ActionList</name>
    <message>
        <source>Actions</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Hotkey</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>Makro</translation>
    </message>
    <message>
        <source>Launch</source>
        <extracomment>The action that starts a program or opens a file or folder.</extracomment>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Webseite</translation>
    </message>
    <message>
        <source>Text String</source>
        <translation>Textbaustein</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>My Favorite</source>
        <translation>Meine Favoriten</translation>
    </message>
</context>
<context>
    <name>AddTextDialog</name>
    <message>
        <source>Add text</source>
        <translation>Text hinzufügen</translation>
    </message>
    <message>
        <source>Each character becomes a press and a release of the key that types it on a US keyboard, with Shift where a US keyboard needs it, the way the keypad types on every desktop. With another keyboard layout active some characters come out differently, and characters a US keyboard lacks are left out. To insert any text as it is, use a Text String key instead.</source>
        <translation>Jedes Zeichen wird zu einem Drücken und Loslassen der Taste, die es auf einer US-Tastatur tippt, mit Umschalt, wo eine US-Tastatur sie braucht – so tippt das Tastenfeld auf jeder Arbeitsumgebung. Bei einer anderen aktiven Tastaturbelegung kommen manche Zeichen anders heraus, und Zeichen, die einer US-Tastatur fehlen, werden ausgelassen. Um beliebigen Text unverändert einzufügen, verwenden Sie stattdessen eine Textbaustein-Taste.</translation>
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
        <translation>Hinzufügen</translation>
    </message>
    <message numerus="yes">
        <source>%n step(s)</source>
        <translation>
            <numerusform>%n Schritt</numerusform>
            <numerusform>%n Schritte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n step(s). Left out: %1</source>
        <extracomment>%1 lists the characters that cannot be typed.</extracomment>
        <translation>
            <numerusform>%n Schritt. Ausgelassen: %1</numerusform>
            <numerusform>%n Schritte. Ausgelassen: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ApplicationChooser</name>
    <message>
        <source>Choose Application</source>
        <translation>Anwendung auswählen</translation>
    </message>
    <message>
        <source>&amp;Installed</source>
        <translation>&amp;Installiert</translation>
    </message>
    <message>
        <source>&amp;Running</source>
        <translation>&amp;Laufend</translation>
    </message>
    <message>
        <source>Where the applications come from</source>
        <translation>Herkunft der Anwendungen</translation>
    </message>
    <message>
        <source>&amp;Applications:</source>
        <translation>&amp;Anwendungen:</translation>
    </message>
    <message>
        <source>Looking for running applications…</source>
        <translation>Laufende Anwendungen werden gesucht …</translation>
    </message>
    <message>
        <source>Looking for installed applications…</source>
        <translation>Installierte Anwendungen werden gesucht …</translation>
    </message>
    <message>
        <source>This desktop does not tell which applications are running.</source>
        <translation>Diese Arbeitsumgebung gibt nicht an, welche Anwendungen laufen.</translation>
    </message>
    <message>
        <source>No applications found.</source>
        <translation>Keine Anwendungen gefunden.</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Starts %1 in the tray at login</source>
        <translation>Startet %1 beim Anmelden im Systemabschnitt der Kontrollleiste</translation>
    </message>
</context>
<context>
    <name>BookmarkChooser</name>
    <message>
        <source>Choose Bookmark</source>
        <translation>Lesezeichen auswählen</translation>
    </message>
    <message>
        <source>&amp;Bookmarks:</source>
        <translation>&amp;Lesezeichen:</translation>
    </message>
    <message>
        <source>&amp;Use the page title as the key title</source>
        <translation>Seitentitel als Tastentitel &amp;verwenden</translation>
    </message>
    <message>
        <source>Reading the browsers&apos; bookmarks…</source>
        <translation>Lesezeichen der Browser werden gelesen …</translation>
    </message>
    <message>
        <source>Title</source>
        <extracomment>Column header: the name of a browser bookmark.</extracomment>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>No bookmarks of Firefox, Chromium, Google Chrome, Brave, Vivaldi or Microsoft Edge found.</source>
        <translation>Keine Lesezeichen von Firefox, Chromium, Google Chrome, Brave, Vivaldi oder Microsoft Edge gefunden.</translation>
    </message>
</context>
<context>
    <name>ChooserDialog</name>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>A&amp;ktualisieren</translation>
    </message>
</context>
<context>
    <name>ConfigurationBackup</name>
    <message>
        <source>%1 backup %2</source>
        <translation>%1-Sicherung %2</translation>
    </message>
    <message>
        <source>My Favorite</source>
        <translation>Meine Favoriten</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>Der Ordner %1 existiert nicht.</translation>
    </message>
    <message>
        <source>No folder can be made in %1.</source>
        <translation>In %1 kann kein Ordner angelegt werden.</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1 konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Layout %1 keys vertical</source>
        <extracomment>A file name: the keypad&apos;s size, then its orientation.</extracomment>
        <translation>Layout %1 Tasten hochkant</translation>
    </message>
    <message>
        <source>Layout %1 keys horizontal</source>
        <translation>Layout %1 Tasten quer</translation>
    </message>
</context>
<context>
    <name>ControlAdaptor</name>
    <message>
        <source>No folder titled &quot;%1&quot; on the root page.</source>
        <translation>Auf der Startseite gibt es keinen Ordner mit dem Titel „%1“.</translation>
    </message>
    <message>
        <source>Key %1 is not on the keypad (0 to %2).</source>
        <translation>Taste %1 gibt es auf dem Tastenfeld nicht (0 bis %2).</translation>
    </message>
    <message>
        <source>Key %1 of the root page is not a folder.</source>
        <translation>Taste %1 der Startseite ist kein Ordner.</translation>
    </message>
    <message>
        <source>Key %1 has no action on this page.</source>
        <translation>Taste %1 hat auf dieser Seite keine Aktion.</translation>
    </message>
    <message>
        <source>Brightness %1 is outside %2 to %3.</source>
        <translation>Die Helligkeit %1 liegt nicht zwischen %2 und %3.</translation>
    </message>
    <message>
        <source>Layout %1 does not exist (0 to %2).</source>
        <translation>Das Layout %1 gibt es nicht (0 bis %2).</translation>
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
        <translation>Symbol</translation>
    </message>
    <message>
        <source>subject text</source>
        <translation>Betreff</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Nicht mehr anzeigen</translation>
    </message>
    <message>
        <source>other</source>
        <translation>Sonstiges</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>DimmingPage</name>
    <message>
        <source>Dimming</source>
        <translation>Abdunkeln</translation>
    </message>
    <message>
        <source>Dim the keypad after</source>
        <translation>Tastenfeld abdunkeln nach</translation>
    </message>
    <message>
        <source>minutes without a key press</source>
        <translation>Minuten ohne Tastendruck</translation>
    </message>
    <message>
        <source>Minutes without a key press</source>
        <translation>Minuten ohne Tastendruck</translation>
    </message>
    <message>
        <source>Dimmed brightness:</source>
        <translation>Gedimmte Helligkeit:</translation>
    </message>
    <message>
        <source>Dimmed brightness</source>
        <translation>Gedimmte Helligkeit</translation>
    </message>
    <message>
        <source>Turn the keypad off while the screen is locked</source>
        <translation>Tastenfeld ausschalten, solange der Bildschirm gesperrt ist</translation>
    </message>
    <message>
        <source>The next key press brings the brightness back; that press does nothing else.</source>
        <translation>Der nächste Tastendruck stellt die Helligkeit wieder her; dieser Druck bewirkt sonst nichts.</translation>
    </message>
    <message>
        <source>Unavailable: the keypad connection is not running.</source>
        <translation>Nicht verfügbar: Die Verbindung zum Tastenfeld läuft nicht.</translation>
    </message>
    <message>
        <source>Unavailable: neither logind nor a screen saver reports screen locks on this desktop (D-Bus).</source>
        <translation>Nicht verfügbar: Weder logind noch ein Bildschirmschoner meldet auf dieser Arbeitsumgebung Bildschirmsperren (D-Bus).</translation>
    </message>
</context>
<context>
    <name>EmojiCatalog</name>
    <message>
        <source>The list of emoji (%1) cannot be read. Install the package unicode-data.</source>
        <translation>Die Emoji-Liste (%1) kann nicht gelesen werden. Installieren Sie das Paket unicode-data.</translation>
    </message>
    <message>
        <source>The list of emoji (%1) is not valid.</source>
        <translation>Die Emoji-Liste (%1) ist ungültig.</translation>
    </message>
    <message>
        <source>The list of emoji holds no emoji.</source>
        <translation>Die Emoji-Liste enthält keine Emoji.</translation>
    </message>
</context>
<context>
    <name>EmojiNames</name>
    <message>
        <source>en</source>
        <extracomment>The Unicode CLDR locale whose emoji names suit this language: ja, zh_Hant, de, fr or it. Not shown.</extracomment>
        <translation>de</translation>
    </message>
</context>
<context>
    <name>FaceEditor</name>
    <message>
        <source>Shown on the key</source>
        <translation>Auf der Taste angezeigt</translation>
    </message>
    <message>
        <source>Style…</source>
        <translation>Stil …</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Choose icon…</source>
        <translation>Symbol auswählen …</translation>
    </message>
    <message>
        <source>Use default icon</source>
        <translation>Standardsymbol verwenden</translation>
    </message>
    <message>
        <source>Of the second hotkey</source>
        <translation>Für das zweite Tastenkürzel</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Prozessor</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Live content:</source>
        <translation>Live-Inhalt:</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>A graph of the last minute under the value</source>
        <translation>Ein Verlauf der letzten Minute unter dem Wert</translation>
    </message>
</context>
<context>
    <name>Favorite</name>
    <message>
        <source>My Favorite</source>
        <translation>Meine Favoriten</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Empty slot</source>
        <translation>Leerer Platz</translation>
    </message>
    <message>
        <source>Usage: %1 / %2</source>
        <translation>Belegt: %1 / %2</translation>
    </message>
    <message>
        <source>Are you sure you want to reset all favorite items?</source>
        <translation>Möchten Sie wirklich alle Favoriten zurücksetzen?</translation>
    </message>
    <message>
        <source>You can&apos;t undo this action.</source>
        <translation>Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
</context>
<context>
    <name>FavoriteKeyItemModel</name>
    <message>
        <source>You have reached the limit of &quot;My Favorite&quot;.</source>
        <translation>Sie haben die Höchstzahl von „Meine Favoriten“ erreicht.</translation>
    </message>
    <message>
        <source>Import %1 fails.</source>
        <translation>Import von %1 fehlgeschlagen.</translation>
    </message>
    <message>
        <source>The limit of &quot;My Favorite&quot; is %1 items.</source>
        <translation>„Meine Favoriten“ fasst höchstens %1 Einträge.</translation>
    </message>
    <message>
        <source>You already have %1 item in &quot;My Favorite.&quot; If continues, %2 item will be lost. Are you sure you want to proceed?</source>
        <translation>Sie haben bereits %1 Einträge in „Meine Favoriten“. Wenn Sie fortfahren, gehen %2 Einträge verloren. Möchten Sie wirklich fortfahren?</translation>
    </message>
</context>
<context>
    <name>FirefoxBookmarks</name>
    <message>
        <source>Bookmarks Menu</source>
        <translation>Lesezeichen-Menü</translation>
    </message>
    <message>
        <source>Bookmarks Toolbar</source>
        <translation>Lesezeichen-Symbolleiste</translation>
    </message>
    <message>
        <source>Other Bookmarks</source>
        <translation>Weitere Lesezeichen</translation>
    </message>
    <message>
        <source>Mobile Bookmarks</source>
        <translation>Mobile Lesezeichen</translation>
    </message>
</context>
<context>
    <name>FirmwarePage</name>
    <message>
        <source>The keypad runs firmware of its own. This program carries the newest firmware it knows for each keypad model and can install it.</source>
        <translation>Das Tastenfeld hat eine eigene Firmware. Dieses Programm enthält die neueste ihm bekannte Firmware für jedes Tastenfeldmodell und kann sie installieren.</translation>
    </message>
    <message>
        <source>Keypad:</source>
        <translation>Tastenfeld:</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>Seriennummer:</translation>
    </message>
    <message>
        <source>Installed firmware:</source>
        <translation>Installierte Firmware:</translation>
    </message>
    <message>
        <source>Firmware in this program:</source>
        <translation>Firmware in diesem Programm:</translation>
    </message>
    <message>
        <source>&amp;Update firmware…</source>
        <translation>Firmware &amp;aktualisieren …</translation>
    </message>
    <message>
        <source>Update progress</source>
        <translation>Fortschritt der Aktualisierung</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>The firmware update is still running. Closing now could leave the keypad unusable.</source>
        <translation>Die Firmware-Aktualisierung läuft noch. Wenn Sie jetzt schließen, kann das Tastenfeld unbrauchbar werden.</translation>
    </message>
    <message>
        <source>Reading the keypad…</source>
        <translation>Tastenfeld wird gelesen …</translation>
    </message>
    <message>
        <source>No keypad connected</source>
        <translation>Kein Tastenfeld angeschlossen</translation>
    </message>
    <message>
        <source>The keypad does not tell its firmware version. Unplug it, plug it in again and try once more.</source>
        <translation>Das Tastenfeld nennt seine Firmware-Version nicht. Ziehen Sie es ab, stecken Sie es wieder an und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>This program has no firmware for this keypad (%1), so there is no update to offer.</source>
        <translation>Dieses Programm hat keine Firmware für dieses Tastenfeld (%1), daher gibt es keine Aktualisierung.</translation>
    </message>
    <message>
        <source>Updating the firmware. Keep the keypad plugged in; its keys do nothing until the update ends.</source>
        <translation>Die Firmware wird aktualisiert. Lassen Sie das Tastenfeld angeschlossen; seine Tasten tun nichts, bis die Aktualisierung beendet ist.</translation>
    </message>
    <message>
        <source>The firmware was updated.</source>
        <translation>Die Firmware wurde aktualisiert.</translation>
    </message>
    <message>
        <source>The firmware update failed. Keep the keypad plugged in and try again. If it stays dark, unplug it and plug it in again.</source>
        <translation>Die Firmware-Aktualisierung ist fehlgeschlagen. Lassen Sie das Tastenfeld angeschlossen und versuchen Sie es erneut. Bleibt es dunkel, ziehen Sie es ab und stecken Sie es wieder an.</translation>
    </message>
</context>
<context>
    <name>FolderForm</name>
    <message>
        <source>Folder</source>
        <extracomment>Heading of the form of a folder key: a key that opens a page of more keys.</extracomment>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>No application</source>
        <translation>Keine Anwendung</translation>
    </message>
    <message>
        <source>Open this folder when an application comes to the front</source>
        <translation>Diesen Ordner öffnen, wenn eine Anwendung in den Vordergrund kommt</translation>
    </message>
    <message>
        <source>Choose application…</source>
        <translation>Anwendung auswählen …</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>Durchsuchen …</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Forgets the application that opens this folder.</extracomment>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>The folder no longer opens by itself</source>
        <translation>Der Ordner öffnet sich nicht mehr von selbst</translation>
    </message>
</context>
<context>
    <name>ForegroundSource</name>
    <message>
        <source>Folders open by application: %1 tells which is in front.</source>
        <translation>Ordner öffnen sich je nach Anwendung: %1 meldet, welche im Vordergrund ist.</translation>
    </message>
    <message>
        <source>Folders open by application: the Keystage Focus extension of GNOME Shell tells which is in front.</source>
        <translation>Ordner öffnen sich je nach Anwendung: die GNOME-Shell-Erweiterung Keystage Focus meldet, welche im Vordergrund ist.</translation>
    </message>
    <message>
        <source>To open folders by application, turn on the Keystage Focus extension in Extensions, or run: gnome-extensions enable %1</source>
        <translation>Damit sich Ordner je nach Anwendung öffnen, schalten Sie die Erweiterung Keystage Focus unter „Erweiterungen“ ein oder führen Sie aus: gnome-extensions enable %1</translation>
    </message>
    <message>
        <source>To open folders by application on GNOME, install Keystage&apos;s GNOME Shell extension (%1) and turn it on.</source>
        <translation>Damit sich Ordner unter GNOME je nach Anwendung öffnen, installieren Sie die GNOME-Shell-Erweiterung von Keystage (%1) und schalten Sie sie ein.</translation>
    </message>
    <message>
        <source>Folders cannot open by application: there is no session bus to ask KWin.</source>
        <translation>Ordner können sich nicht je nach Anwendung öffnen: Es gibt keinen Sitzungsbus, über den KWin gefragt werden kann.</translation>
    </message>
    <message>
        <source>This compositor does not tell which application is in front, so folders cannot open by application. Compositors that offer wlroots&apos; toplevel list do (sway, river, labwc, Wayfire, Hyprland).</source>
        <translation>Dieser Compositor meldet nicht, welche Anwendung im Vordergrund ist, daher können sich Ordner nicht je nach Anwendung öffnen. Compositors mit der Fensterliste von wlroots melden es (sway, river, labwc, Wayfire, Hyprland).</translation>
    </message>
    <message>
        <source>Folders open by application: the compositor&apos;s toplevel list tells which is in front.</source>
        <translation>Ordner öffnen sich je nach Anwendung: Die Fensterliste des Compositors meldet, welche im Vordergrund ist.</translation>
    </message>
</context>
<context>
    <name>FunctionDescription</name>
    <message>
        <source>Folder
Store an organized group of key actions. Folder can be linked to an application, and folder will open automatically when the application is launched.</source>
        <translation>Ordner
Speichert eine geordnete Gruppe von Tastenaktionen. Ein Ordner kann mit einer Anwendung verknüpft werden und öffnet sich dann automatisch, wenn die Anwendung gestartet wird.</translation>
    </message>
    <message>
        <source>Hotkey
A key or a combination of keys used together to perform a task or function on the operating system or applications. Recall the hotkey action by pressing on the button.</source>
        <translation>Tastenkürzel
Eine Taste oder Tastenkombination, die eine Aufgabe oder Funktion im Betriebssystem oder in Anwendungen ausführt. Drücken Sie die Taste, um das Tastenkürzel auszulösen.</translation>
    </message>
    <message>
        <source>Macro key
A sequence of commands or keyboard strokes stored in the assigned key. Recall the macro key action by pressing on the button.</source>
        <translation>Makro
Eine Folge von Befehlen oder Tastenanschlägen, die auf der zugewiesenen Taste gespeichert ist. Drücken Sie die Taste, um das Makro abzuspielen.</translation>
    </message>
    <message>
        <source>Launch
Execute an application, file, folder path, or command-line by pressing on the button.</source>
        <translation>Starten
Startet eine Anwendung, eine Datei, einen Ordnerpfad oder eine Befehlszeile, wenn Sie die Taste drücken.</translation>
    </message>
    <message>
        <source>Website
Search the web or navigate the site by pressing on the button.</source>
        <translation>Webseite
Durchsuchen Sie das Web oder öffnen Sie eine Seite, wenn Sie die Taste drücken.</translation>
    </message>
    <message>
        <source>Text String
A sequence of characters defined by users. Text string can be text message, source code or script that stored in the assigned key. Recall the text string by pressing on the button.</source>
        <translation>Textbaustein
Eine von Ihnen festgelegte Zeichenfolge. Ein Textbaustein kann eine Textnachricht, Quellcode oder ein Skript sein, das auf der zugewiesenen Taste gespeichert ist. Drücken Sie die Taste, um den Textbaustein einzufügen.</translation>
    </message>
    <message>
        <source>Drag an action from above list and drop into section on the left.</source>
        <translation>Ziehen Sie eine Aktion aus der Liste oben auf eine Taste links.</translation>
    </message>
</context>
<context>
    <name>HotkeyForm</name>
    <message>
        <source>Hotkey</source>
        <extracomment>Heading of the form of a hotkey: a keypad key that types a keyboard shortcut.</extracomment>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Key combination</source>
        <translation>Tastenkombination</translation>
    </message>
    <message>
        <source>Toggle between two hotkeys</source>
        <translation>Zwischen zwei Tastenkürzeln umschalten</translation>
    </message>
    <message>
        <source>Second key combination</source>
        <translation>Zweite Tastenkombination</translation>
    </message>
    <message>
        <source>Second title</source>
        <translation>Zweiter Titel</translation>
    </message>
    <message>
        <source>The keypad shows the first hotkey now.</source>
        <translation>Das Tastenfeld zeigt jetzt das erste Tastenkürzel.</translation>
    </message>
    <message>
        <source>The keypad shows the second hotkey now.</source>
        <translation>Das Tastenfeld zeigt jetzt das zweite Tastenkürzel.</translation>
    </message>
</context>
<context>
    <name>HotkeyRecorder</name>
    <message>
        <source>Press a key combination</source>
        <translation>Tastenkombination drücken</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Nicht festgelegt</translation>
    </message>
    <message>
        <source>That key cannot be typed. Press another one</source>
        <translation>Diese Taste kann nicht getippt werden. Drücken Sie eine andere</translation>
    </message>
    <message>
        <source>Click, or press Enter or Space, to record a key combination</source>
        <translation>Klicken oder Eingabe bzw. Leertaste drücken, um eine Tastenkombination aufzuzeichnen</translation>
    </message>
    <message>
        <source>Keys a keyboard may lack</source>
        <translation>Tasten, die einer Tastatur fehlen können</translation>
    </message>
</context>
<context>
    <name>IconChooser</name>
    <message>
        <source>Choose Icon</source>
        <translation>Symbol auswählen</translation>
    </message>
    <message>
        <source>Image &amp;file</source>
        <translation>Bild&amp;datei</translation>
    </message>
    <message>
        <source>Icon &amp;theme</source>
        <translation>Symbol&amp;thema</translation>
    </message>
    <message>
        <source>&amp;Emoji</source>
        <translation>&amp;Emoji</translation>
    </message>
    <message>
        <source>The key with this icon</source>
        <translation>Die Taste mit diesem Symbol</translation>
    </message>
    <message>
        <source>Choose image file…</source>
        <translation>Bilddatei auswählen …</translation>
    </message>
    <message>
        <source>PNG, JPEG, SVG, WebP, GIF (its first picture) and the other image formats of this system. The picture is fitted into the key without distortion; transparent parts stay transparent.</source>
        <translation>PNG, JPEG, SVG, WebP, GIF (dessen erstes Bild) und die anderen Bildformate dieses Systems. Das Bild wird unverzerrt in die Taste eingepasst; transparente Bereiche bleiben transparent.</translation>
    </message>
    <message>
        <source>&amp;Icons:</source>
        <translation>S&amp;ymbole:</translation>
    </message>
    <message>
        <source>E&amp;moji:</source>
        <translation>E&amp;moji:</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Reading the icon theme…</source>
        <translation>Symbolthema wird gelesen …</translation>
    </message>
    <message>
        <source>Reading the emoji…</source>
        <translation>Emoji werden gelesen …</translation>
    </message>
    <message>
        <source>The icon theme &quot;%1&quot; has no icons.</source>
        <translation>Das Symbolthema „%1“ enthält keine Symbole.</translation>
    </message>
    <message>
        <source>No icon chosen.</source>
        <translation>Kein Symbol ausgewählt.</translation>
    </message>
</context>
<context>
    <name>IconGridPage</name>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>Type words of the name</source>
        <translation>Wörter des Namens eingeben</translation>
    </message>
    <message>
        <source>Nothing matches the search.</source>
        <translation>Nichts passt zur Suche.</translation>
    </message>
    <message numerus="yes">
        <source>%n shown</source>
        <translation>
            <numerusform>%n angezeigt</numerusform>
            <numerusform>%n angezeigt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportExportPage</name>
    <message>
        <source>Export layout…</source>
        <translation>Layout exportieren …</translation>
    </message>
    <message>
        <source>The keys of the layout in use, with their folders, as a .kslayout file.</source>
        <translation>Die Tasten des verwendeten Layouts mit ihren Ordnern als .kslayout-Datei.</translation>
    </message>
    <message>
        <source>Export My Favorite…</source>
        <translation>Meine Favoriten exportieren …</translation>
    </message>
    <message>
        <source>All of My Favorite as a .ksfavorites file.</source>
        <translation>Alle Favoriten als .ksfavorites-Datei.</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren …</translation>
    </message>
    <message>
        <source>A .kslayout file replaces the keys of the layout in use; a .ksfavorites file adds to My Favorite. You are asked first.</source>
        <translation>Eine .kslayout-Datei ersetzt die Tasten des verwendeten Layouts; eine .ksfavorites-Datei ergänzt „Meine Favoriten“. Sie werden vorher gefragt.</translation>
    </message>
    <message>
        <source>Back up everything…</source>
        <translation>Alles sichern …</translation>
    </message>
    <message>
        <source>Every layout and My Favorite, each in a file of its own, into a new dated folder inside the folder you choose.</source>
        <translation>Jedes Layout und „Meine Favoriten“, jeweils in einer eigenen Datei, in einem neuen datierten Ordner innerhalb des gewählten Ordners.</translation>
    </message>
    <message>
        <source>Import and export</source>
        <translation>Import und Export</translation>
    </message>
    <message>
        <source>Export layout</source>
        <translation>Layout exportieren</translation>
    </message>
    <message>
        <source>Keystage layout (*.kslayout)</source>
        <translation>Keystage-Layout (*.kslayout)</translation>
    </message>
    <message>
        <source>The layout was exported to %1.</source>
        <translation>Das Layout wurde nach %1 exportiert.</translation>
    </message>
    <message>
        <source>The layout could not be exported to %1.</source>
        <translation>Das Layout konnte nicht nach %1 exportiert werden.</translation>
    </message>
    <message>
        <source>Export My Favorite</source>
        <translation>Meine Favoriten exportieren</translation>
    </message>
    <message>
        <source>Keystage favorites (*.ksfavorites)</source>
        <translation>Keystage-Favoriten (*.ksfavorites)</translation>
    </message>
    <message>
        <source>My Favorite was exported to %1.</source>
        <translation>„Meine Favoriten“ wurde nach %1 exportiert.</translation>
    </message>
    <message>
        <source>My Favorite could not be exported to %1.</source>
        <translation>„Meine Favoriten“ konnte nicht nach %1 exportiert werden.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Keystage files (*.kslayout *.ksfavorites);;Keystage layout (*.kslayout);;Keystage favorites (*.ksfavorites)</source>
        <translation>Keystage-Dateien (*.kslayout *.ksfavorites);;Keystage-Layout (*.kslayout);;Keystage-Favoriten (*.ksfavorites)</translation>
    </message>
    <message>
        <source>Back up everything into</source>
        <translation>Alles sichern in</translation>
    </message>
    <message numerus="yes">
        <source>%n files were written to %1.</source>
        <translation>
            <numerusform>%n Datei wurde nach %1 geschrieben.</numerusform>
            <numerusform>%n Dateien wurden nach %1 geschrieben.</numerusform>
        </translation>
    </message>
    <message>
        <source>The backup failed. %1</source>
        <translation>Die Sicherung ist fehlgeschlagen. %1</translation>
    </message>
</context>
<context>
    <name>InsertKeyDialog</name>
    <message>
        <source>Insert key</source>
        <translation>Taste einfügen</translation>
    </message>
    <message>
        <source>&amp;Key to insert (a press and a release, with its modifiers around it):</source>
        <translation>Einzufügende &amp;Taste (ein Drücken und Loslassen, umgeben von ihren Zusatztasten):</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
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
        <translation>&amp;Neuer Ordner</translation>
    </message>
    <message>
        <source>&amp;Create Actions</source>
        <translation>Aktion &amp;erstellen</translation>
    </message>
    <message>
        <source>&amp;Hotkey</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>&amp;Macro</source>
        <translation>&amp;Makro</translation>
    </message>
    <message>
        <source>&amp;Launch</source>
        <extracomment>The action that starts a program or opens a file (a verb, as in the action palette).</extracomment>
        <translation>&amp;Starten</translation>
    </message>
    <message>
        <source>&amp;Website</source>
        <translation>&amp;Webseite</translation>
    </message>
    <message>
        <source>&amp;Text String</source>
        <translation>Te&amp;xtbaustein</translation>
    </message>
    <message>
        <source>&amp;Cut</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>E&amp;infügen</translation>
    </message>
    <message>
        <source>&amp;Save as favorite</source>
        <translation>Als &amp;Favorit speichern</translation>
    </message>
</context>
<context>
    <name>KeyGridController</name>
    <message>
        <source>The limit of folder is different.</source>
        <translation>Die Höchstzahl der Ordner ist verschieden.</translation>
    </message>
    <message>
        <source>If continues, some items may be lost. Are you sure you want to proceed?</source>
        <translation>Wenn Sie fortfahren, können Einträge verloren gehen. Möchten Sie wirklich fortfahren?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this item?</source>
        <translation>Möchten Sie diesen Eintrag wirklich löschen?</translation>
    </message>
    <message>
        <source>You can&apos;t undo this action.</source>
        <translation>Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Don&apos;t ask me again</source>
        <translation>Nicht mehr fragen</translation>
    </message>
</context>
<context>
    <name>KeyItemForm</name>
    <message>
        <source>Title</source>
        <extracomment>The text shown on the key of the keypad, under its icon.</extracomment>
        <translation>Titel</translation>
    </message>
</context>
<context>
    <name>KeyItemGridView</name>
    <message>
        <source>Keys</source>
        <extracomment>The keys of the keypad, as the editor shows them.</extracomment>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Key %1: empty</source>
        <extracomment>%1 is the number of a key on the keypad.</extracomment>
        <translation>Taste %1: leer</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The key that leads out of a folder page, back to the page above.</extracomment>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Key %1: %2</source>
        <translation>Taste %1: %2</translation>
    </message>
    <message>
        <source>Key %1: %2, %3</source>
        <translation>Taste %1: %2, %3</translation>
    </message>
</context>
<context>
    <name>KeyItemModel</name>
    <message>
        <source>Copy</source>
        <extracomment>Title of a default key (the Copy hotkey); a key face is 72 pixels wide.</extracomment>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <extracomment>Title of a default key (the Paste hotkey).</extracomment>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Media</source>
        <extracomment>Title of a default folder key holding the volume keys.</extracomment>
        <translation>Medien</translation>
    </message>
    <message>
        <source>Mute</source>
        <extracomment>Title of a default key: mutes the sound.</extracomment>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Vol -</source>
        <extracomment>Title of a default key: turns the volume down.</extracomment>
        <translation>Leiser</translation>
    </message>
    <message>
        <source>Vol +</source>
        <extracomment>Title of a default key: turns the volume up.</extracomment>
        <translation>Lauter</translation>
    </message>
</context>
<context>
    <name>KeyItemSummary</name>
    <message numerus="yes">
        <source>%n step(s)</source>
        <translation>
            <numerusform>%n Schritt</numerusform>
            <numerusform>%n Schritte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n key(s)</source>
        <translation>
            <numerusform>%n Taste</numerusform>
            <numerusform>%n Tasten</numerusform>
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
        <translation>Unbekannte Taste</translation>
    </message>
    <message>
        <source>Left Super</source>
        <translation>Super links</translation>
    </message>
    <message>
        <source>Right Super</source>
        <translation>Super rechts</translation>
    </message>
    <message>
        <source>Left Shift</source>
        <translation>Umschalt links</translation>
    </message>
    <message>
        <source>Right Shift</source>
        <translation>Umschalt rechts</translation>
    </message>
    <message>
        <source>Left Ctrl</source>
        <translation>Strg links</translation>
    </message>
    <message>
        <source>Right Ctrl</source>
        <translation>Strg rechts</translation>
    </message>
    <message>
        <source>Left Alt</source>
        <translation>Alt links</translation>
    </message>
    <message>
        <source>Right Alt</source>
        <translation>Alt rechts</translation>
    </message>
</context>
<context>
    <name>KeyPickerMenu</name>
    <message>
        <source>F13 to F24</source>
        <translation>F13 bis F24</translation>
    </message>
    <message>
        <source>Keys the recorder uses</source>
        <translation>Tasten, die die Aufzeichnung verwendet</translation>
    </message>
</context>
<context>
    <name>KeypadAccess</name>
    <message>
        <source>Install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d), then run &quot;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&quot; or unplug and replug the keypad.</source>
        <translation>Installieren Sie die udev-Regel 70-keystage.rules (nach /etc/udev/rules.d, sofern kein Paket sie nach /usr/lib/udev/rules.d gelegt hat), führen Sie dann „sudo udevadm control --reload &amp;&amp; sudo udevadm trigger“ aus oder ziehen Sie das Tastenfeld ab und stecken Sie es wieder an.</translation>
    </message>
</context>
<context>
    <name>KeypadPage</name>
    <message>
        <source>Keypad</source>
        <extracomment>The USB keypad with LCD keys this program drives.</extracomment>
        <translation>Tastenfeld</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Firmware version</source>
        <translation>Firmware-Version</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Set on the keypad as you move it, and on every keypad you connect.</source>
        <translation>Wird beim Verschieben auf dem Tastenfeld eingestellt, und auf jedem Tastenfeld, das Sie anschließen.</translation>
    </message>
    <message>
        <source>Show logo</source>
        <translation>Logo anzeigen</translation>
    </message>
    <message>
        <source>No keypad connected</source>
        <translation>Kein Tastenfeld angeschlossen</translation>
    </message>
    <message>
        <source>Reading the keypad…</source>
        <translation>Tastenfeld wird gelesen …</translation>
    </message>
    <message>
        <source>The keypad does not answer.</source>
        <translation>Das Tastenfeld antwortet nicht.</translation>
    </message>
    <message>
        <source>The keypad shows its logo for a moment.</source>
        <translation>Das Tastenfeld zeigt kurz sein Logo.</translation>
    </message>
    <message>
        <source>The keypad did not show its logo.</source>
        <translation>Das Tastenfeld hat sein Logo nicht gezeigt.</translation>
    </message>
</context>
<context>
    <name>KeystrokeBackend</name>
    <message>
        <source>To let them type, install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d) and run &quot;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&quot;, or log in to an X11 session.</source>
        <translation>Damit sie tippen können, installieren Sie die udev-Regel 70-keystage.rules (nach /etc/udev/rules.d, sofern kein Paket sie nach /usr/lib/udev/rules.d gelegt hat) und führen Sie „sudo udevadm control --reload &amp;&amp; sudo udevadm trigger“ aus, oder melden Sie sich in einer X11-Sitzung an.</translation>
    </message>
    <message>
        <source>This is a Wayland session, and without access to /dev/uinput keys are typed through XWayland, which only programs running under X receive. To reach every program, install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d), run &quot;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&quot; and start %1 again.</source>
        <translation>Dies ist eine Wayland-Sitzung, und ohne Zugriff auf /dev/uinput werden Tasten über XWayland getippt, das nur Programme unter X erreicht. Damit jedes Programm sie erhält, installieren Sie die udev-Regel 70-keystage.rules (nach /etc/udev/rules.d, sofern ein Paket sie nicht schon nach /usr/lib/udev/rules.d gelegt hat), führen Sie „sudo udevadm control --reload &amp;&amp; sudo udevadm trigger“ aus und starten Sie %1 neu.</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>The language of %1&apos;s windows. It changes when %1 starts again.</source>
        <translation>Die Sprache der Fenster von %1. Sie ändert sich, wenn %1 neu startet.</translation>
    </message>
    <message>
        <source>Use this language</source>
        <translation>Diese Sprache verwenden</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>The language could not be stored.</source>
        <translation>Die Sprache konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Restart %1 now?</source>
        <translation>%1 jetzt neu starten?</translation>
    </message>
    <message>
        <source>%1 is used from the next start.</source>
        <translation>%1 wird ab dem nächsten Start verwendet.</translation>
    </message>
</context>
<context>
    <name>LaunchForm</name>
    <message>
        <source>Launch</source>
        <extracomment>Heading of the form of a Launch key: the action that starts a program or opens a file (a verb).</extracomment>
        <translation>Starten</translation>
    </message>
    <message>
        <source>A program, script, document or folder</source>
        <translation>Ein Programm, Skript, Dokument oder Ordner</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Choose file…</source>
        <translation>Datei auswählen …</translation>
    </message>
    <message>
        <source>Choose application…</source>
        <translation>Anwendung auswählen …</translation>
    </message>
    <message>
        <source>Use as title</source>
        <translation>Als Titel verwenden</translation>
    </message>
    <message>
        <source>Use &quot;%1&quot; as the title?</source>
        <translation>„%1“ als Titel verwenden?</translation>
    </message>
</context>
<context>
    <name>LayoutPage</name>
    <message>
        <source>Choose the keypad you use and how you hold it. The editor and the keypad change at once; every layout keeps its own keys.</source>
        <translation>Wählen Sie Ihr Tastenfeld und wie Sie es halten. Editor und Tastenfeld ändern sich sofort; jedes Layout behält seine eigenen Tasten.</translation>
    </message>
    <message>
        <source>Keypad size</source>
        <translation>Größe des Tastenfelds</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Quer</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Hochkant</translation>
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
        <translation>%1 Tasten</translation>
    </message>
    <message>
        <source>%1 keys, vertical</source>
        <translation>%1 Tasten, hochkant</translation>
    </message>
    <message>
        <source>%1 keys, horizontal</source>
        <translation>%1 Tasten, quer</translation>
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
        <translation>Netz B/s</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>Record</source>
        <translation>Aufzeichnen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>&amp;Steps:</source>
        <translation>&amp;Schritte:</translation>
    </message>
    <message>
        <source>Steps:</source>
        <translation>Schritte:</translation>
    </message>
    <message>
        <source>Insert key…</source>
        <translation>Taste einfügen …</translation>
    </message>
    <message>
        <source>Add text…</source>
        <translation>Text hinzufügen …</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Removes every step of the macro.</extracomment>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Add the missing releases</source>
        <translation>Fehlendes Loslassen ergänzen</translation>
    </message>
    <message>
        <source>Recording: press the keys of the macro. Esc alone or Stop ends the recording.</source>
        <translation>Aufzeichnung: Drücken Sie die Tasten des Makros. Esc allein oder Stopp beendet die Aufzeichnung.</translation>
    </message>
    <message numerus="yes">
        <source>%n key(s) that cannot be typed left out.</source>
        <translation>
            <numerusform>%n Taste, die nicht getippt werden kann, ausgelassen.</numerusform>
            <numerusform>%n Tasten, die nicht getippt werden können, ausgelassen.</numerusform>
        </translation>
    </message>
    <message>
        <source>The macro leaves %1 held down: it stays pressed after the macro has played.</source>
        <translation>Das Makro lässt %1 gedrückt: Sie bleibt gedrückt, nachdem das Makro abgespielt wurde.</translation>
    </message>
    <message numerus="yes">
        <source>Recording: press the keys of the macro. Esc alone or Stop ends the recording. %n key(s) that cannot be typed left out.</source>
        <translation>
            <numerusform>Aufzeichnung: Drücken Sie die Tasten des Makros. Esc allein oder Stopp beendet die Aufzeichnung. %n Taste, die nicht getippt werden kann, ausgelassen.</numerusform>
            <numerusform>Aufzeichnung: Drücken Sie die Tasten des Makros. Esc allein oder Stopp beendet die Aufzeichnung. %n Tasten, die nicht getippt werden können, ausgelassen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MacroForm</name>
    <message>
        <source>Macro</source>
        <translation>Makro</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Schritte</translation>
    </message>
</context>
<context>
    <name>MacroStepModel</name>
    <message>
        <source>Down</source>
        <extracomment>A macro step presses (Down) or releases (Up) a key; read aloud after the key name.</extracomment>
        <translation>Drücken</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Loslassen</translation>
    </message>
    <message>
        <source>%1: %2 %3</source>
        <extracomment>A macro step, as a screen reader reads it: &quot;3: Shift down&quot;.</extracomment>
        <translation>%1: %2 %3</translation>
    </message>
    <message>
        <source>Key</source>
        <extracomment>Column header: the keyboard key a macro step presses or releases.</extracomment>
        <translation>Taste</translation>
    </message>
    <message>
        <source>Press or release</source>
        <translation>Drücken oder Loslassen</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Hotkeys and macros cannot type keys.</source>
        <translation>Tastenkürzel und Makros können keine Tasten tippen.</translation>
    </message>
    <message>
        <source>Your settings were damaged and have been reset.</source>
        <translation>Ihre Einstellungen waren beschädigt und wurden zurückgesetzt.</translation>
    </message>
    <message>
        <source>The damaged file was kept as %1.</source>
        <translation>Die beschädigte Datei wurde als %1 aufbewahrt.</translation>
    </message>
    <message>
        <source>No keypad connected</source>
        <translation>Kein Tastenfeld angeschlossen</translation>
    </message>
    <message>
        <source>Virtual keypad connected</source>
        <translation>Virtuelles Tastenfeld angeschlossen</translation>
    </message>
    <message>
        <source>Keypad connected</source>
        <translation>Tastenfeld angeschlossen</translation>
    </message>
    <message>
        <source>Keypad found, but no permission to use it. %1</source>
        <translation>Tastenfeld gefunden, aber keine Berechtigung, es zu verwenden. %1</translation>
    </message>
    <message>
        <source>Keypad status: %1</source>
        <translation>Tastenfeld-Status: %1</translation>
    </message>
    <message>
        <source>%1 could not be imported.</source>
        <translation>%1 konnte nicht importiert werden.</translation>
    </message>
    <message>
        <source>Replace the keys of this layout?</source>
        <translation>Die Tasten dieses Layouts ersetzen?</translation>
    </message>
    <message>
        <source>The keys of the current layout are replaced by those of %1. You can&apos;t undo this action.</source>
        <translation>Die Tasten des aktuellen Layouts werden durch die aus %1 ersetzt. Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>The desktop companion of your LCD macro keypad.</source>
        <translation>Das Begleitprogramm für Ihr LCD-Makro-Tastenfeld.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>%1 cannot quit now.</source>
        <translation>%1 kann jetzt nicht beendet werden.</translation>
    </message>
    <message numerus="yes">
        <source>The keys of the current layout are replaced by those of %1. You can&apos;t undo this action.
%n key(s) do not fit this layout and will be lost.</source>
        <translation>
            <numerusform>Die Tasten des aktuellen Layouts werden durch die aus %1 ersetzt. Dies kann nicht rückgängig gemacht werden.
%n Taste passt nicht in dieses Layout und geht verloren.</numerusform>
            <numerusform>Die Tasten des aktuellen Layouts werden durch die aus %1 ersetzt. Dies kann nicht rückgängig gemacht werden.
%n Tasten passen nicht in dieses Layout und gehen verloren.</numerusform>
        </translation>
    </message>
    <message>
        <source>Hotkeys and macros type into X applications only.</source>
        <translation>Tastenkürzel und Makros tippen nur in X-Anwendungen.</translation>
    </message>
    <message>
        <source>Your settings cannot be saved.</source>
        <translation>Ihre Einstellungen können nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. Your changes are kept while %3 runs and saved as soon as the file can be written again.</source>
        <translation>%1 kann nicht geschrieben werden: %2. Ihre Änderungen bleiben erhalten, solange %3 läuft, und werden gespeichert, sobald die Datei wieder geschrieben werden kann.</translation>
    </message>
</context>
<context>
    <name>PreferenceDialog</name>
    <message>
        <source>%1 Settings</source>
        <translation>%1 – Einstellungen</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>Einstellungsseiten</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>The settings cannot be closed now.</source>
        <translation>Die Einstellungen können jetzt nicht geschlossen werden.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Do you want to update firmware?</source>
        <translation>Möchten Sie die Firmware aktualisieren?</translation>
    </message>
    <message>
        <source>Firmware version %1 is now available - current version %2 Would you like to update now?</source>
        <extracomment>%1 is the firmware this program carries, %2 the firmware on the keypad.</extracomment>
        <translation>Firmware-Version %1 ist jetzt verfügbar – installiert ist %2. Möchten Sie jetzt aktualisieren?</translation>
    </message>
    <message>
        <source>Choose an image</source>
        <translation>Bild auswählen</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>Bilder (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Choose a program</source>
        <translation>Programm auswählen</translation>
    </message>
    <message>
        <source>Choose a program, script, document or folder</source>
        <translation>Programm, Skript, Dokument oder Ordner auswählen</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
</context>
<context>
    <name>ResetPage</name>
    <message>
        <source>Removes every key you made, on all six layouts, folders included, and puts back the keys a new installation starts with. My Favorite and the other settings stay. To keep a copy, use &quot;Back up everything&quot; under Import and export first.</source>
        <translation>Entfernt jede von Ihnen erstellte Taste auf allen sechs Layouts, samt Ordnern, und stellt die Tasten einer Neuinstallation wieder her. „Meine Favoriten“ und die übrigen Einstellungen bleiben erhalten. Um eine Kopie zu behalten, verwenden Sie vorher „Alles sichern“ unter „Import und Export“.</translation>
    </message>
    <message>
        <source>Reset all keys…</source>
        <translation>Alle Tasten zurücksetzen …</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Are you sure you want to reset the keys of every layout?</source>
        <translation>Möchten Sie die Tasten aller Layouts wirklich zurücksetzen?</translation>
    </message>
    <message>
        <source>You can&apos;t undo this action.</source>
        <translation>Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Every layout has its default keys again.</source>
        <translation>Jedes Layout hat wieder seine Standardtasten.</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The file cannot be read.</source>
        <translation>Die Datei kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file is not a Keystage layout or favourites file.</source>
        <translation>Die Datei ist keine Keystage-Layout- oder -Favoritendatei.</translation>
    </message>
    <message>
        <source>The file was changed or damaged after it was exported: its checksum does not match.</source>
        <translation>Die Datei wurde nach dem Export verändert oder beschädigt: Ihre Prüfsumme stimmt nicht.</translation>
    </message>
</context>
<context>
    <name>SoftwareUpdate</name>
    <message>
        <source>Checking for updates is turned off.</source>
        <translation>Die Suche nach Aktualisierungen ist ausgeschaltet.</translation>
    </message>
    <message>
        <source>This build names an update address that is not HTTPS; it is not used.</source>
        <translation>Dieser Build nennt eine Aktualisierungsadresse ohne HTTPS; sie wird nicht verwendet.</translation>
    </message>
    <message>
        <source>The update information is too large.</source>
        <translation>Die Aktualisierungsinformationen sind zu groß.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Suche nach Aktualisierungen …</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Der Download wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The update server answered with HTTP status %1.</source>
        <translation>Der Aktualisierungsserver antwortete mit HTTP-Status %1.</translation>
    </message>
    <message>
        <source>The update server did not answer in time.</source>
        <translation>Der Aktualisierungsserver hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>The update server could not be reached: %1</source>
        <translation>Der Aktualisierungsserver war nicht erreichbar: %1</translation>
    </message>
    <message>
        <source>Keystage %1 is up to date.</source>
        <translation>Keystage %1 ist aktuell.</translation>
    </message>
    <message>
        <source>Keystage %1 is available. You have %2.</source>
        <translation>Keystage %1 ist verfügbar. Sie haben %2.</translation>
    </message>
    <message>
        <source>Downloading Keystage %1…</source>
        <translation>Keystage %1 wird heruntergeladen …</translation>
    </message>
    <message>
        <source>The download cannot be saved: %1</source>
        <translation>Der Download kann nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>The package is larger than %1 MB; it is not downloaded.</source>
        <translation>Das Paket ist größer als %1 MB; es wird nicht heruntergeladen.</translation>
    </message>
    <message>
        <source>The download ended early: %1 of %2 bytes arrived.</source>
        <translation>Der Download endete vorzeitig: %1 von %2 Bytes sind angekommen.</translation>
    </message>
    <message>
        <source>The downloaded package does not match the checksum the update server gave, so it was deleted.</source>
        <translation>Das heruntergeladene Paket passt nicht zur Prüfsumme des Aktualisierungsservers und wurde daher gelöscht.</translation>
    </message>
    <message>
        <source>No package installer could be opened. The verified package is saved as %1.</source>
        <translation>Kein Paketinstaller konnte geöffnet werden. Das geprüfte Paket ist als %1 gespeichert.</translation>
    </message>
    <message>
        <source>The package installer has opened Keystage %1. Once it has installed it, restart Keystage to use the new version.</source>
        <translation>Der Paketinstaller hat Keystage %1 geöffnet. Sobald es installiert ist, starten Sie Keystage neu, um die neue Version zu verwenden.</translation>
    </message>
</context>
<context>
    <name>SoftwareUpdatePage</name>
    <message>
        <source>Keystage is updated by your distribution&apos;s package manager, together with the rest of the system. Use your software centre or package manager to get new versions.</source>
        <translation>Keystage wird von der Paketverwaltung Ihrer Distribution zusammen mit dem restlichen System aktualisiert. Neue Versionen erhalten Sie über Ihre Softwareverwaltung oder Paketverwaltung.</translation>
    </message>
    <message>
        <source>Updates normally come from your distribution&apos;s package manager. Keystage can also look for a newer release itself; it connects to the network only while this is turned on.</source>
        <translation>Aktualisierungen kommen normalerweise über die Paketverwaltung Ihrer Distribution. Keystage kann auch selbst nach einer neueren Version suchen; es verbindet sich nur mit dem Netzwerk, solange dies eingeschaltet ist.</translation>
    </message>
    <message>
        <source>Check for &amp;updates</source>
        <translation>Nach &amp;Aktualisierungen suchen</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>&amp;Jetzt suchen</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installieren</translation>
    </message>
    <message>
        <source>&amp;Cancel download</source>
        <translation>Download a&amp;bbrechen</translation>
    </message>
    <message>
        <source>&amp;Restart Keystage</source>
        <translation>Keystage &amp;neu starten</translation>
    </message>
    <message>
        <source>Download progress</source>
        <translation>Download-Fortschritt</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Software-Aktualisierung</translation>
    </message>
    <message>
        <source>Keystage is still downloading the update. Wait until it has finished, or cancel the download.</source>
        <translation>Keystage lädt die Aktualisierung noch herunter. Warten Sie, bis der Download beendet ist, oder brechen Sie ihn ab.</translation>
    </message>
    <message>
        <source>What is new:</source>
        <translation>Neuerungen:</translation>
    </message>
</context>
<context>
    <name>StartAtLoginPage</name>
    <message>
        <source>Start %1 when I log in</source>
        <translation>%1 beim Anmelden starten</translation>
    </message>
    <message>
        <source>%1 starts in the tray, so the keypad works from the start without a window in the way. The desktop reads this from %2.</source>
        <translation>%1 startet im Systemabschnitt der Kontrollleiste, sodass das Tastenfeld von Anfang an funktioniert, ohne dass ein Fenster im Weg ist. Die Arbeitsumgebung liest dies aus %2.</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Beim Anmelden starten</translation>
    </message>
    <message>
        <source>This could not be changed: %1</source>
        <translation>Dies konnte nicht geändert werden: %1</translation>
    </message>
</context>
<context>
    <name>TextStringForm</name>
    <message>
        <source>Text String</source>
        <extracomment>Heading of the form of a key that types a stored text.</extracomment>
        <translation>Textbaustein</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>The key pastes the text through the clipboard, and the text stays on the clipboard afterwards.</source>
        <translation>Die Taste fügt den Text über die Zwischenablage ein; der Text bleibt danach in der Zwischenablage.</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>TitleStyleDialog</name>
    <message>
        <source>Title Style</source>
        <translation>Titelstil</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>&amp;Schrift:</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Fett</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Kursiv</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>&amp;Unterstrichen</translation>
    </message>
    <message>
        <source>&amp;Color…</source>
        <translation>Fa&amp;rbe …</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Farbe:</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Position:</translation>
    </message>
    <message>
        <source>The key on the keypad</source>
        <translation>Die Taste auf dem Tastenfeld</translation>
    </message>
    <message>
        <source>The key in the editor&apos;s grid</source>
        <translation>Die Taste im Raster des Editors</translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation>Vorschau:</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top center</source>
        <translation>Oben mittig</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation>Mitte links</translation>
    </message>
    <message>
        <source>Middle center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation>Mitte rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom center</source>
        <translation>Unten mittig</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Title Color</source>
        <translation>Titelfarbe</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Virtual Keypad</source>
        <translation>Virtuelles Tastenfeld</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>TreeView</name>
    <message>
        <source>Home</source>
        <extracomment>The top page of the keypad, above every folder.</extracomment>
        <translation>Startseite</translation>
    </message>
    <message>
        <source>Folder tree</source>
        <translation>Ordnerbaum</translation>
    </message>
</context>
<context>
    <name>UpdateFeed</name>
    <message>
        <source>The update information is too large.</source>
        <translation>Die Aktualisierungsinformationen sind zu groß.</translation>
    </message>
    <message>
        <source>The update information is not readable.</source>
        <translation>Die Aktualisierungsinformationen sind nicht lesbar.</translation>
    </message>
    <message>
        <source>The update information has no valid version.</source>
        <translation>Die Aktualisierungsinformationen enthalten keine gültige Version.</translation>
    </message>
    <message>
        <source>The update information has no valid package address (an HTTPS address of a .deb package).</source>
        <translation>Die Aktualisierungsinformationen enthalten keine gültige Paketadresse (eine HTTPS-Adresse eines .deb-Pakets).</translation>
    </message>
    <message>
        <source>The update information has no valid SHA-256 checksum.</source>
        <translation>Die Aktualisierungsinformationen enthalten keine gültige SHA-256-Prüfsumme.</translation>
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
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
</context>
<context>
    <name>VirtualKeypadWindow</name>
    <message>
        <source>Virtual Keypad</source>
        <translation>Virtuelles Tastenfeld</translation>
    </message>
    <message>
        <source>unplugged</source>
        <translation>abgesteckt</translation>
    </message>
</context>
<context>
    <name>WebsiteForm</name>
    <message>
        <source>Website</source>
        <translation>Webseite</translation>
    </message>
    <message>
        <source>example.com or https://…</source>
        <translation>example.com oder https://…</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Choose bookmark…</source>
        <translation>Lesezeichen auswählen …</translation>
    </message>
    <message>
        <source>An address without &quot;https://&quot; opens as &quot;http://&quot;.</source>
        <translation>Eine Adresse ohne „https://“ wird als „http://“ geöffnet.</translation>
    </message>
</context>
<context>
    <name>WindowSystem</name>
    <message>
        <source>This desktop does not tell which application is in front, so folders cannot open by application. On Wayland, sway, Hyprland, KDE Plasma and GNOME (with Keystage&apos;s extension) do.</source>
        <translation>Diese Arbeitsumgebung meldet nicht, welche Anwendung im Vordergrund ist, deshalb können sich Ordner nicht je nach Anwendung öffnen. Unter Wayland können das sway, Hyprland, KDE Plasma und GNOME (mit der Erweiterung von Keystage).</translation>
    </message>
</context>
</TS>
