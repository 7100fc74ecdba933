<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>AboutPage</name>
    <message>
        <source>%1, version %2</source>
        <translation>%1, versione %2</translation>
    </message>
    <message>
        <source>The desktop companion of your LCD macro keypad.</source>
        <translation>L&apos;applicazione desktop per il tuo tastierino macro con tasti LCD.</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Licenze</translation>
    </message>
    <message>
        <source>%1 is free software: you can redistribute it and modify it under the terms of the GNU General Public License, version 3 or any later version. It comes with no warranty. It is built with Qt %2, used under the GNU Lesser General Public License version 3. Key titles are drawn with the Liberation Sans fonts, used under the SIL Open Font License 1.1.</source>
        <translation>%1 è software libero: puoi redistribuirlo e modificarlo secondo i termini della GNU General Public License, versione 3 o qualsiasi versione successiva. È fornito senza alcuna garanzia. È realizzato con Qt %2, usato secondo la GNU Lesser General Public License versione 3. I titoli dei tasti sono disegnati con i caratteri Liberation Sans, usati secondo la SIL Open Font License 1.1.</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>Informazioni su Qt</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Log files</source>
        <translation>File di registro</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Apri la cartella dei registri</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>File delle impostazioni</translation>
    </message>
    <message>
        <source>Open settings folder</source>
        <translation>Apri la cartella delle impostazioni</translation>
    </message>
    <message>
        <source>The settings file carries a checksum: a file changed by hand is not loaded, and the settings start over.</source>
        <translation>Il file delle impostazioni contiene un codice di controllo: un file modificato a mano non viene caricato e le impostazioni ripartono da zero.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
</context>
<context>
    <name>Accessibility</name>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
</context>
<context>
    <name>ActionList</name>
    <message>
        <source>Actions</source>
        <translation>Azioni</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Hotkey</source>
        <translation>Scorciatoia</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>Launch</source>
        <extracomment>The action that starts a program or opens a file or folder.</extracomment>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Sito web</translation>
    </message>
    <message>
        <source>Text String</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>My Favorite</source>
        <translation>I miei preferiti</translation>
    </message>
</context>
<context>
    <name>AddTextDialog</name>
    <message>
        <source>Add text</source>
        <translation>Aggiungi testo</translation>
    </message>
    <message>
        <source>Each character becomes a press and a release of the key that types it on a US keyboard, with Shift where a US keyboard needs it, the way the keypad types on every desktop. With another keyboard layout active some characters come out differently, and characters a US keyboard lacks are left out. To insert any text as it is, use a Text String key instead.</source>
        <translation>Ogni carattere diventa una pressione e un rilascio del tasto che lo digita su una tastiera statunitense, con Maiusc dove una tastiera statunitense lo richiede: è così che il tastierino digita su ogni desktop. Con un&apos;altra disposizione di tastiera attiva alcuni caratteri escono diversi, e i caratteri che mancano su una tastiera statunitense vengono omessi. Per inserire un testo così com&apos;è, usa invece un tasto Testo.</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Testo:</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>Testo:</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message numerus="yes">
        <source>%n step(s)</source>
        <translation>
            <numerusform>%n passo</numerusform>
            <numerusform>%n passi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n step(s). Left out: %1</source>
        <extracomment>%1 lists the characters that cannot be typed.</extracomment>
        <translation>
            <numerusform>%n passo. Omessi: %1</numerusform>
            <numerusform>%n passi. Omessi: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ApplicationChooser</name>
    <message>
        <source>Choose Application</source>
        <translation>Scegli applicazione</translation>
    </message>
    <message>
        <source>&amp;Installed</source>
        <translation>&amp;Installate</translation>
    </message>
    <message>
        <source>&amp;Running</source>
        <translation>In &amp;esecuzione</translation>
    </message>
    <message>
        <source>Where the applications come from</source>
        <translation>Da dove provengono le applicazioni</translation>
    </message>
    <message>
        <source>&amp;Applications:</source>
        <translation>&amp;Applicazioni:</translation>
    </message>
    <message>
        <source>Looking for running applications…</source>
        <translation>Ricerca delle applicazioni in esecuzione…</translation>
    </message>
    <message>
        <source>Looking for installed applications…</source>
        <translation>Ricerca delle applicazioni installate…</translation>
    </message>
    <message>
        <source>This desktop does not tell which applications are running.</source>
        <translation>Questo desktop non indica quali applicazioni sono in esecuzione.</translation>
    </message>
    <message>
        <source>No applications found.</source>
        <translation>Nessuna applicazione trovata.</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Impossibile creare la cartella %1.</translation>
    </message>
    <message>
        <source>Starts %1 in the tray at login</source>
        <translation>Avvia %1 nell&apos;area di notifica all&apos;accesso</translation>
    </message>
</context>
<context>
    <name>BookmarkChooser</name>
    <message>
        <source>Choose Bookmark</source>
        <translation>Scegli segnalibro</translation>
    </message>
    <message>
        <source>&amp;Bookmarks:</source>
        <translation>&amp;Segnalibri:</translation>
    </message>
    <message>
        <source>&amp;Use the page title as the key title</source>
        <translation>&amp;Usa il titolo della pagina come titolo del tasto</translation>
    </message>
    <message>
        <source>Reading the browsers&apos; bookmarks…</source>
        <translation>Lettura dei segnalibri dei browser…</translation>
    </message>
    <message>
        <source>Title</source>
        <extracomment>Column header: the name of a browser bookmark.</extracomment>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Indirizzo</translation>
    </message>
    <message>
        <source>No bookmarks of Firefox, Chromium, Google Chrome, Brave, Vivaldi or Microsoft Edge found.</source>
        <translation>Nessun segnalibro di Firefox, Chromium, Google Chrome, Brave, Vivaldi o Microsoft Edge trovato.</translation>
    </message>
</context>
<context>
    <name>ChooserDialog</name>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Cerca:</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>A&amp;ggiorna</translation>
    </message>
</context>
<context>
    <name>ConfigurationBackup</name>
    <message>
        <source>%1 backup %2</source>
        <translation>Backup %1 %2</translation>
    </message>
    <message>
        <source>My Favorite</source>
        <translation>I miei preferiti</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>La cartella %1 non esiste.</translation>
    </message>
    <message>
        <source>No folder can be made in %1.</source>
        <translation>Impossibile creare una cartella in %1.</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>Impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>Layout %1 keys vertical</source>
        <extracomment>A file name: the keypad&apos;s size, then its orientation.</extracomment>
        <translation>Layout %1 tasti verticale</translation>
    </message>
    <message>
        <source>Layout %1 keys horizontal</source>
        <translation>Layout %1 tasti orizzontale</translation>
    </message>
</context>
<context>
    <name>ControlAdaptor</name>
    <message>
        <source>No folder titled &quot;%1&quot; on the root page.</source>
        <translation>Nessuna cartella con il titolo «%1» nella pagina principale.</translation>
    </message>
    <message>
        <source>Key %1 is not on the keypad (0 to %2).</source>
        <translation>Il tasto %1 non esiste sul tastierino (da 0 a %2).</translation>
    </message>
    <message>
        <source>Key %1 of the root page is not a folder.</source>
        <translation>Il tasto %1 della pagina principale non è una cartella.</translation>
    </message>
    <message>
        <source>Key %1 has no action on this page.</source>
        <translation>Il tasto %1 non ha alcuna azione in questa pagina.</translation>
    </message>
    <message>
        <source>Brightness %1 is outside %2 to %3.</source>
        <translation>La luminosità %1 non è compresa tra %2 e %3.</translation>
    </message>
    <message>
        <source>Layout %1 does not exist (0 to %2).</source>
        <translation>Il layout %1 non esiste (da 0 a %2).</translation>
    </message>
</context>
<context>
    <name>Dialog</name>
    <message>
        <source>Dialog</source>
        <translation>Finestra di dialogo</translation>
    </message>
    <message>
        <source>icon</source>
        <translation>icona</translation>
    </message>
    <message>
        <source>subject text</source>
        <translation>oggetto</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Non mostrare più</translation>
    </message>
    <message>
        <source>other</source>
        <translation>altro</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>DimmingPage</name>
    <message>
        <source>Dimming</source>
        <translation>Attenuazione</translation>
    </message>
    <message>
        <source>Dim the keypad after</source>
        <translation>Attenua il tastierino dopo</translation>
    </message>
    <message>
        <source>minutes without a key press</source>
        <translation>minuti senza pressione di tasti</translation>
    </message>
    <message>
        <source>Minutes without a key press</source>
        <translation>Minuti senza pressione di tasti</translation>
    </message>
    <message>
        <source>Dimmed brightness:</source>
        <translation>Luminosità attenuata:</translation>
    </message>
    <message>
        <source>Dimmed brightness</source>
        <translation>Luminosità attenuata</translation>
    </message>
    <message>
        <source>Turn the keypad off while the screen is locked</source>
        <translation>Spegni il tastierino mentre lo schermo è bloccato</translation>
    </message>
    <message>
        <source>The next key press brings the brightness back; that press does nothing else.</source>
        <translation>La pressione successiva di un tasto ripristina la luminosità; quella pressione non fa nient&apos;altro.</translation>
    </message>
    <message>
        <source>Unavailable: the keypad connection is not running.</source>
        <translation>Non disponibile: la connessione al tastierino non è attiva.</translation>
    </message>
    <message>
        <source>Unavailable: neither logind nor a screen saver reports screen locks on this desktop (D-Bus).</source>
        <translation>Non disponibile: né logind né un salvaschermo segnalano il blocco dello schermo su questo desktop (D-Bus).</translation>
    </message>
</context>
<context>
    <name>EmojiCatalog</name>
    <message>
        <source>The list of emoji (%1) cannot be read. Install the package unicode-data.</source>
        <translation>Impossibile leggere l&apos;elenco delle emoji (%1). Installa il pacchetto unicode-data.</translation>
    </message>
    <message>
        <source>The list of emoji (%1) is not valid.</source>
        <translation>L&apos;elenco delle emoji (%1) non è valido.</translation>
    </message>
    <message>
        <source>The list of emoji holds no emoji.</source>
        <translation>L&apos;elenco delle emoji non contiene emoji.</translation>
    </message>
</context>
<context>
    <name>EmojiNames</name>
    <message>
        <source>en</source>
        <extracomment>The Unicode CLDR locale whose emoji names suit this language: ja, zh_Hant, de, fr or it. Not shown.</extracomment>
        <translation>it</translation>
    </message>
</context>
<context>
    <name>FaceEditor</name>
    <message>
        <source>Shown on the key</source>
        <translation>Mostrato sul tasto</translation>
    </message>
    <message>
        <source>Style…</source>
        <translation>Stile…</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Icona</translation>
    </message>
    <message>
        <source>Choose icon…</source>
        <translation>Scegli icona…</translation>
    </message>
    <message>
        <source>Use default icon</source>
        <translation>Usa l&apos;icona predefinita</translation>
    </message>
    <message>
        <source>Of the second hotkey</source>
        <translation>Per la seconda scorciatoia</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Processore</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rete</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Orologio</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Live content:</source>
        <translation>Contenuto dal vivo:</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Grafico</translation>
    </message>
    <message>
        <source>A graph of the last minute under the value</source>
        <translation>Un grafico dell’ultimo minuto sotto il valore</translation>
    </message>
</context>
<context>
    <name>Favorite</name>
    <message>
        <source>My Favorite</source>
        <translation>I miei preferiti</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Empty slot</source>
        <translation>Posto vuoto</translation>
    </message>
    <message>
        <source>Usage: %1 / %2</source>
        <translation>Utilizzo: %1 / %2</translation>
    </message>
    <message>
        <source>Are you sure you want to reset all favorite items?</source>
        <translation>Ripristinare davvero tutti i preferiti?</translation>
    </message>
    <message>
        <source>You can&apos;t undo this action.</source>
        <translation>Questa azione non può essere annullata.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
</context>
<context>
    <name>FavoriteKeyItemModel</name>
    <message>
        <source>You have reached the limit of &quot;My Favorite&quot;.</source>
        <translation>Hai raggiunto il limite di «I miei preferiti».</translation>
    </message>
    <message>
        <source>Import %1 fails.</source>
        <translation>Importazione di %1 non riuscita.</translation>
    </message>
    <message>
        <source>The limit of &quot;My Favorite&quot; is %1 items.</source>
        <translation>Il limite di «I miei preferiti» è di %1 elementi.</translation>
    </message>
    <message>
        <source>You already have %1 item in &quot;My Favorite.&quot; If continues, %2 item will be lost. Are you sure you want to proceed?</source>
        <translation>Hai già %1 elementi in «I miei preferiti». Se continui, %2 elementi andranno persi. Vuoi davvero procedere?</translation>
    </message>
</context>
<context>
    <name>FirefoxBookmarks</name>
    <message>
        <source>Bookmarks Menu</source>
        <translation>Menu segnalibri</translation>
    </message>
    <message>
        <source>Bookmarks Toolbar</source>
        <translation>Barra dei segnalibri</translation>
    </message>
    <message>
        <source>Other Bookmarks</source>
        <translation>Altri segnalibri</translation>
    </message>
    <message>
        <source>Mobile Bookmarks</source>
        <translation>Segnalibri dispositivi mobili</translation>
    </message>
</context>
<context>
    <name>FirmwarePage</name>
    <message>
        <source>The keypad runs firmware of its own. This program carries the newest firmware it knows for each keypad model and can install it.</source>
        <translation>Il tastierino esegue un proprio firmware. Questo programma contiene il firmware più recente che conosce per ogni modello di tastierino e può installarlo.</translation>
    </message>
    <message>
        <source>Keypad:</source>
        <translation>Tastierino:</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>Numero di serie:</translation>
    </message>
    <message>
        <source>Installed firmware:</source>
        <translation>Firmware installato:</translation>
    </message>
    <message>
        <source>Firmware in this program:</source>
        <translation>Firmware in questo programma:</translation>
    </message>
    <message>
        <source>&amp;Update firmware…</source>
        <translation>&amp;Aggiorna firmware…</translation>
    </message>
    <message>
        <source>Update progress</source>
        <translation>Avanzamento dell&apos;aggiornamento</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>The firmware update is still running. Closing now could leave the keypad unusable.</source>
        <translation>L&apos;aggiornamento del firmware è ancora in corso. Chiudere ora potrebbe rendere inutilizzabile il tastierino.</translation>
    </message>
    <message>
        <source>Reading the keypad…</source>
        <translation>Lettura del tastierino…</translation>
    </message>
    <message>
        <source>No keypad connected</source>
        <translation>Nessun tastierino collegato</translation>
    </message>
    <message>
        <source>The keypad does not tell its firmware version. Unplug it, plug it in again and try once more.</source>
        <translation>Il tastierino non indica la versione del firmware. Scollegalo, ricollegalo e riprova.</translation>
    </message>
    <message>
        <source>This program has no firmware for this keypad (%1), so there is no update to offer.</source>
        <translation>Questo programma non ha firmware per questo tastierino (%1), quindi non c&apos;è alcun aggiornamento da offrire.</translation>
    </message>
    <message>
        <source>Updating the firmware. Keep the keypad plugged in; its keys do nothing until the update ends.</source>
        <translation>Aggiornamento del firmware in corso. Tieni collegato il tastierino; i suoi tasti non fanno nulla finché l&apos;aggiornamento non termina.</translation>
    </message>
    <message>
        <source>The firmware was updated.</source>
        <translation>Il firmware è stato aggiornato.</translation>
    </message>
    <message>
        <source>The firmware update failed. Keep the keypad plugged in and try again. If it stays dark, unplug it and plug it in again.</source>
        <translation>Aggiornamento del firmware non riuscito. Tieni collegato il tastierino e riprova. Se resta spento, scollegalo e ricollegalo.</translation>
    </message>
</context>
<context>
    <name>FolderForm</name>
    <message>
        <source>Folder</source>
        <extracomment>Heading of the form of a folder key: a key that opens a page of more keys.</extracomment>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>No application</source>
        <translation>Nessuna applicazione</translation>
    </message>
    <message>
        <source>Open this folder when an application comes to the front</source>
        <translation>Apri questa cartella quando un&apos;applicazione passa in primo piano</translation>
    </message>
    <message>
        <source>Choose application…</source>
        <translation>Scegli applicazione…</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>Sfoglia…</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Forgets the application that opens this folder.</extracomment>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>The folder no longer opens by itself</source>
        <translation>La cartella non si apre più da sola</translation>
    </message>
</context>
<context>
    <name>ForegroundSource</name>
    <message>
        <source>Folders open by application: %1 tells which is in front.</source>
        <translation>Le cartelle si aprono in base all’applicazione: %1 indica quale è in primo piano.</translation>
    </message>
    <message>
        <source>Folders open by application: the Keystage Focus extension of GNOME Shell tells which is in front.</source>
        <translation>Le cartelle si aprono in base all’applicazione: l’estensione di GNOME Shell Keystage Focus indica quale è in primo piano.</translation>
    </message>
    <message>
        <source>To open folders by application, turn on the Keystage Focus extension in Extensions, or run: gnome-extensions enable %1</source>
        <translation>Per aprire le cartelle in base all’applicazione, attiva l’estensione Keystage Focus in «Estensioni» oppure esegui: gnome-extensions enable %1</translation>
    </message>
    <message>
        <source>To open folders by application on GNOME, install Keystage&apos;s GNOME Shell extension (%1) and turn it on.</source>
        <translation>Per aprire le cartelle in base all’applicazione su GNOME, installa l’estensione di GNOME Shell di Keystage (%1) e attivala.</translation>
    </message>
    <message>
        <source>Folders cannot open by application: there is no session bus to ask KWin.</source>
        <translation>Le cartelle non possono aprirsi in base all’applicazione: non c’è un bus di sessione per interrogare KWin.</translation>
    </message>
    <message>
        <source>This compositor does not tell which application is in front, so folders cannot open by application. Compositors that offer wlroots&apos; toplevel list do (sway, river, labwc, Wayfire, Hyprland).</source>
        <translation>Questo compositor non indica quale applicazione è in primo piano, quindi le cartelle non possono aprirsi in base all’applicazione. I compositor che offrono l’elenco delle finestre di wlroots lo fanno (sway, river, labwc, Wayfire, Hyprland).</translation>
    </message>
    <message>
        <source>Folders open by application: the compositor&apos;s toplevel list tells which is in front.</source>
        <translation>Le cartelle si aprono in base all’applicazione: l’elenco delle finestre del compositor indica quale è in primo piano.</translation>
    </message>
</context>
<context>
    <name>FunctionDescription</name>
    <message>
        <source>Folder
Store an organized group of key actions. Folder can be linked to an application, and folder will open automatically when the application is launched.</source>
        <translation>Cartella
Raccoglie un gruppo ordinato di azioni dei tasti. Una cartella può essere collegata a un&apos;applicazione e si apre automaticamente quando l&apos;applicazione viene avviata.</translation>
    </message>
    <message>
        <source>Hotkey
A key or a combination of keys used together to perform a task or function on the operating system or applications. Recall the hotkey action by pressing on the button.</source>
        <translation>Scorciatoia
Un tasto o una combinazione di tasti usati insieme per eseguire un&apos;operazione o una funzione del sistema operativo o delle applicazioni. Premi il tasto per richiamare la scorciatoia.</translation>
    </message>
    <message>
        <source>Macro key
A sequence of commands or keyboard strokes stored in the assigned key. Recall the macro key action by pressing on the button.</source>
        <translation>Macro
Una sequenza di comandi o di battute di tasti memorizzata nel tasto assegnato. Premi il tasto per richiamare la macro.</translation>
    </message>
    <message>
        <source>Launch
Execute an application, file, folder path, or command-line by pressing on the button.</source>
        <translation>Avvia
Esegue un&apos;applicazione, un file, il percorso di una cartella o una riga di comando quando premi il tasto.</translation>
    </message>
    <message>
        <source>Website
Search the web or navigate the site by pressing on the button.</source>
        <translation>Sito web
Cerca sul web o apri un sito premendo il tasto.</translation>
    </message>
    <message>
        <source>Text String
A sequence of characters defined by users. Text string can be text message, source code or script that stored in the assigned key. Recall the text string by pressing on the button.</source>
        <translation>Testo
Una sequenza di caratteri definita da te. Il testo può essere un messaggio, codice sorgente o uno script memorizzato nel tasto assegnato. Premi il tasto per richiamare il testo.</translation>
    </message>
    <message>
        <source>Drag an action from above list and drop into section on the left.</source>
        <translation>Trascina un&apos;azione dall&apos;elenco sopra e rilasciala su un tasto a sinistra.</translation>
    </message>
</context>
<context>
    <name>HotkeyForm</name>
    <message>
        <source>Hotkey</source>
        <extracomment>Heading of the form of a hotkey: a keypad key that types a keyboard shortcut.</extracomment>
        <translation>Scorciatoia</translation>
    </message>
    <message>
        <source>Key combination</source>
        <translation>Combinazione di tasti</translation>
    </message>
    <message>
        <source>Toggle between two hotkeys</source>
        <translation>Alterna tra due scorciatoie</translation>
    </message>
    <message>
        <source>Second key combination</source>
        <translation>Seconda combinazione di tasti</translation>
    </message>
    <message>
        <source>Second title</source>
        <translation>Secondo titolo</translation>
    </message>
    <message>
        <source>The keypad shows the first hotkey now.</source>
        <translation>Ora il tastierino mostra la prima scorciatoia.</translation>
    </message>
    <message>
        <source>The keypad shows the second hotkey now.</source>
        <translation>Ora il tastierino mostra la seconda scorciatoia.</translation>
    </message>
</context>
<context>
    <name>HotkeyRecorder</name>
    <message>
        <source>Press a key combination</source>
        <translation>Premi una combinazione di tasti</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Non impostata</translation>
    </message>
    <message>
        <source>That key cannot be typed. Press another one</source>
        <translation>Quel tasto non può essere digitato. Premine un altro</translation>
    </message>
    <message>
        <source>Click, or press Enter or Space, to record a key combination</source>
        <translation>Fai clic, oppure premi Invio o Spazio, per registrare una combinazione di tasti</translation>
    </message>
    <message>
        <source>Keys a keyboard may lack</source>
        <translation>Tasti che possono mancare su una tastiera</translation>
    </message>
</context>
<context>
    <name>IconChooser</name>
    <message>
        <source>Choose Icon</source>
        <translation>Scegli icona</translation>
    </message>
    <message>
        <source>Image &amp;file</source>
        <translation>&amp;File immagine</translation>
    </message>
    <message>
        <source>Icon &amp;theme</source>
        <translation>&amp;Tema di icone</translation>
    </message>
    <message>
        <source>&amp;Emoji</source>
        <translation>&amp;Emoji</translation>
    </message>
    <message>
        <source>The key with this icon</source>
        <translation>Il tasto con questa icona</translation>
    </message>
    <message>
        <source>Choose image file…</source>
        <translation>Scegli file immagine…</translation>
    </message>
    <message>
        <source>PNG, JPEG, SVG, WebP, GIF (its first picture) and the other image formats of this system. The picture is fitted into the key without distortion; transparent parts stay transparent.</source>
        <translation>PNG, JPEG, SVG, WebP, GIF (la sua prima immagine) e gli altri formati di immagine di questo sistema. L&apos;immagine viene adattata al tasto senza distorsioni; le parti trasparenti restano trasparenti.</translation>
    </message>
    <message>
        <source>&amp;Icons:</source>
        <translation>&amp;Icone:</translation>
    </message>
    <message>
        <source>E&amp;moji:</source>
        <translation>E&amp;moji:</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>Reading the icon theme…</source>
        <translation>Lettura del tema di icone…</translation>
    </message>
    <message>
        <source>Reading the emoji…</source>
        <translation>Lettura delle emoji…</translation>
    </message>
    <message>
        <source>The icon theme &quot;%1&quot; has no icons.</source>
        <translation>Il tema di icone «%1» non ha icone.</translation>
    </message>
    <message>
        <source>No icon chosen.</source>
        <translation>Nessuna icona scelta.</translation>
    </message>
</context>
<context>
    <name>IconGridPage</name>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Cerca:</translation>
    </message>
    <message>
        <source>Type words of the name</source>
        <translation>Digita parole del nome</translation>
    </message>
    <message>
        <source>Nothing matches the search.</source>
        <translation>Nessun risultato per la ricerca.</translation>
    </message>
    <message numerus="yes">
        <source>%n shown</source>
        <translation>
            <numerusform>%n mostrato</numerusform>
            <numerusform>%n mostrati</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportExportPage</name>
    <message>
        <source>Export layout…</source>
        <translation>Esporta layout…</translation>
    </message>
    <message>
        <source>The keys of the layout in use, with their folders, as a .kslayout file.</source>
        <translation>I tasti del layout in uso, con le loro cartelle, in un file .kslayout.</translation>
    </message>
    <message>
        <source>Export My Favorite…</source>
        <translation>Esporta I miei preferiti…</translation>
    </message>
    <message>
        <source>All of My Favorite as a .ksfavorites file.</source>
        <translation>Tutti i preferiti in un file .ksfavorites.</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importa…</translation>
    </message>
    <message>
        <source>A .kslayout file replaces the keys of the layout in use; a .ksfavorites file adds to My Favorite. You are asked first.</source>
        <translation>Un file .kslayout sostituisce i tasti del layout in uso; un file .ksfavorites si aggiunge a I miei preferiti. Prima ti viene chiesta conferma.</translation>
    </message>
    <message>
        <source>Back up everything…</source>
        <translation>Backup completo…</translation>
    </message>
    <message>
        <source>Every layout and My Favorite, each in a file of its own, into a new dated folder inside the folder you choose.</source>
        <translation>Ogni layout e I miei preferiti, ciascuno in un proprio file, in una nuova cartella datata all&apos;interno della cartella scelta.</translation>
    </message>
    <message>
        <source>Import and export</source>
        <translation>Importazione ed esportazione</translation>
    </message>
    <message>
        <source>Export layout</source>
        <translation>Esporta layout</translation>
    </message>
    <message>
        <source>Keystage layout (*.kslayout)</source>
        <translation>Layout Keystage (*.kslayout)</translation>
    </message>
    <message>
        <source>The layout was exported to %1.</source>
        <translation>Il layout è stato esportato in %1.</translation>
    </message>
    <message>
        <source>The layout could not be exported to %1.</source>
        <translation>Impossibile esportare il layout in %1.</translation>
    </message>
    <message>
        <source>Export My Favorite</source>
        <translation>Esporta I miei preferiti</translation>
    </message>
    <message>
        <source>Keystage favorites (*.ksfavorites)</source>
        <translation>Preferiti Keystage (*.ksfavorites)</translation>
    </message>
    <message>
        <source>My Favorite was exported to %1.</source>
        <translation>I miei preferiti sono stati esportati in %1.</translation>
    </message>
    <message>
        <source>My Favorite could not be exported to %1.</source>
        <translation>Impossibile esportare I miei preferiti in %1.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importa</translation>
    </message>
    <message>
        <source>Keystage files (*.kslayout *.ksfavorites);;Keystage layout (*.kslayout);;Keystage favorites (*.ksfavorites)</source>
        <translation>File Keystage (*.kslayout *.ksfavorites);;Layout Keystage (*.kslayout);;Preferiti Keystage (*.ksfavorites)</translation>
    </message>
    <message>
        <source>Back up everything into</source>
        <translation>Esegui il backup completo in</translation>
    </message>
    <message numerus="yes">
        <source>%n files were written to %1.</source>
        <translation>
            <numerusform>%n file è stato scritto in %1.</numerusform>
            <numerusform>%n file sono stati scritti in %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>The backup failed. %1</source>
        <translation>Backup non riuscito. %1</translation>
    </message>
</context>
<context>
    <name>InsertKeyDialog</name>
    <message>
        <source>Insert key</source>
        <translation>Inserisci tasto</translation>
    </message>
    <message>
        <source>&amp;Key to insert (a press and a release, with its modifiers around it):</source>
        <translation>&amp;Tasto da inserire (una pressione e un rilascio, con i suoi modificatori intorno):</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Inserisci</translation>
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
        <translation>&amp;Nuova cartella</translation>
    </message>
    <message>
        <source>&amp;Create Actions</source>
        <translation>&amp;Crea azioni</translation>
    </message>
    <message>
        <source>&amp;Hotkey</source>
        <translation>&amp;Scorciatoia</translation>
    </message>
    <message>
        <source>&amp;Macro</source>
        <translation>&amp;Macro</translation>
    </message>
    <message>
        <source>&amp;Launch</source>
        <extracomment>The action that starts a program or opens a file (a verb, as in the action palette).</extracomment>
        <translation>&amp;Avvia</translation>
    </message>
    <message>
        <source>&amp;Website</source>
        <translation>Sito &amp;web</translation>
    </message>
    <message>
        <source>&amp;Text String</source>
        <translation>&amp;Testo</translation>
    </message>
    <message>
        <source>&amp;Cut</source>
        <translation>&amp;Taglia</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>C&amp;opia</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Incolla</translation>
    </message>
    <message>
        <source>&amp;Save as favorite</source>
        <translation>&amp;Salva come preferito</translation>
    </message>
</context>
<context>
    <name>KeyGridController</name>
    <message>
        <source>The limit of folder is different.</source>
        <translation>Il limite di cartelle è diverso.</translation>
    </message>
    <message>
        <source>If continues, some items may be lost. Are you sure you want to proceed?</source>
        <translation>Se continui, alcuni elementi potrebbero andare persi. Vuoi davvero procedere?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this item?</source>
        <translation>Eliminare davvero questo elemento?</translation>
    </message>
    <message>
        <source>You can&apos;t undo this action.</source>
        <translation>Questa azione non può essere annullata.</translation>
    </message>
    <message>
        <source>Don&apos;t ask me again</source>
        <translation>Non chiedere più</translation>
    </message>
</context>
<context>
    <name>KeyItemForm</name>
    <message>
        <source>Title</source>
        <extracomment>The text shown on the key of the keypad, under its icon.</extracomment>
        <translation>Titolo</translation>
    </message>
</context>
<context>
    <name>KeyItemGridView</name>
    <message>
        <source>Keys</source>
        <extracomment>The keys of the keypad, as the editor shows them.</extracomment>
        <translation>Tasti</translation>
    </message>
    <message>
        <source>Key %1: empty</source>
        <extracomment>%1 is the number of a key on the keypad.</extracomment>
        <translation>Tasto %1: vuoto</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The key that leads out of a folder page, back to the page above.</extracomment>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Key %1: %2</source>
        <translation>Tasto %1: %2</translation>
    </message>
    <message>
        <source>Key %1: %2, %3</source>
        <translation>Tasto %1: %2, %3</translation>
    </message>
</context>
<context>
    <name>KeyItemModel</name>
    <message>
        <source>Copy</source>
        <extracomment>Title of a default key (the Copy hotkey); a key face is 72 pixels wide.</extracomment>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Paste</source>
        <extracomment>Title of a default key (the Paste hotkey).</extracomment>
        <translation>Incolla</translation>
    </message>
    <message>
        <source>Media</source>
        <extracomment>Title of a default folder key holding the volume keys.</extracomment>
        <translation>Multimedia</translation>
    </message>
    <message>
        <source>Mute</source>
        <extracomment>Title of a default key: mutes the sound.</extracomment>
        <translation>Muto</translation>
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
            <numerusform>%n passo</numerusform>
            <numerusform>%n passi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n key(s)</source>
        <translation>
            <numerusform>%n tasto</numerusform>
            <numerusform>%n tasti</numerusform>
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
        <translation>Tasto sconosciuto</translation>
    </message>
    <message>
        <source>Left Super</source>
        <translation>Super sinistro</translation>
    </message>
    <message>
        <source>Right Super</source>
        <translation>Super destro</translation>
    </message>
    <message>
        <source>Left Shift</source>
        <translation>Maiusc sinistro</translation>
    </message>
    <message>
        <source>Right Shift</source>
        <translation>Maiusc destro</translation>
    </message>
    <message>
        <source>Left Ctrl</source>
        <translation>Ctrl sinistro</translation>
    </message>
    <message>
        <source>Right Ctrl</source>
        <translation>Ctrl destro</translation>
    </message>
    <message>
        <source>Left Alt</source>
        <translation>Alt sinistro</translation>
    </message>
    <message>
        <source>Right Alt</source>
        <translation>Alt destro</translation>
    </message>
</context>
<context>
    <name>KeyPickerMenu</name>
    <message>
        <source>F13 to F24</source>
        <translation>Da F13 a F24</translation>
    </message>
    <message>
        <source>Keys the recorder uses</source>
        <translation>Tasti usati dal registratore</translation>
    </message>
</context>
<context>
    <name>KeypadAccess</name>
    <message>
        <source>Install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d), then run &quot;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&quot; or unplug and replug the keypad.</source>
        <translation>Installa la regola udev 70-keystage.rules (in /etc/udev/rules.d, a meno che un pacchetto non l&apos;abbia messa in /usr/lib/udev/rules.d), poi esegui «sudo udevadm control --reload &amp;&amp; sudo udevadm trigger» oppure scollega e ricollega il tastierino.</translation>
    </message>
</context>
<context>
    <name>KeypadPage</name>
    <message>
        <source>Keypad</source>
        <extracomment>The USB keypad with LCD keys this program drives.</extracomment>
        <translation>Tastierino</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numero di serie</translation>
    </message>
    <message>
        <source>Firmware version</source>
        <translation>Versione del firmware</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Set on the keypad as you move it, and on every keypad you connect.</source>
        <translation>Applicata al tastierino mentre la regoli, e a ogni tastierino che colleghi.</translation>
    </message>
    <message>
        <source>Show logo</source>
        <translation>Mostra logo</translation>
    </message>
    <message>
        <source>No keypad connected</source>
        <translation>Nessun tastierino collegato</translation>
    </message>
    <message>
        <source>Reading the keypad…</source>
        <translation>Lettura del tastierino…</translation>
    </message>
    <message>
        <source>The keypad does not answer.</source>
        <translation>Il tastierino non risponde.</translation>
    </message>
    <message>
        <source>The keypad shows its logo for a moment.</source>
        <translation>Il tastierino mostra il suo logo per un momento.</translation>
    </message>
    <message>
        <source>The keypad did not show its logo.</source>
        <translation>Il tastierino non ha mostrato il suo logo.</translation>
    </message>
</context>
<context>
    <name>KeystrokeBackend</name>
    <message>
        <source>To let them type, install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d) and run &quot;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&quot;, or log in to an X11 session.</source>
        <translation>Per permettere loro di digitare, installa la regola udev 70-keystage.rules (in /etc/udev/rules.d, a meno che un pacchetto non l&apos;abbia messa in /usr/lib/udev/rules.d) ed esegui «sudo udevadm control --reload &amp;&amp; sudo udevadm trigger», oppure accedi a una sessione X11.</translation>
    </message>
    <message>
        <source>This is a Wayland session, and without access to /dev/uinput keys are typed through XWayland, which only programs running under X receive. To reach every program, install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d), run &quot;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&quot; and start %1 again.</source>
        <translation>Questa è una sessione Wayland e, senza accesso a /dev/uinput, i tasti vengono digitati tramite XWayland, che raggiunge solo i programmi eseguiti sotto X. Per raggiungere ogni programma, installa la regola udev 70-keystage.rules (in /etc/udev/rules.d, a meno che un pacchetto non l’abbia già messa in /usr/lib/udev/rules.d), esegui «sudo udevadm control --reload &amp;&amp; sudo udevadm trigger» e riavvia %1.</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>The language of %1&apos;s windows. It changes when %1 starts again.</source>
        <translation>La lingua delle finestre di %1. Cambia al prossimo avvio di %1.</translation>
    </message>
    <message>
        <source>Use this language</source>
        <translation>Usa questa lingua</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>The language could not be stored.</source>
        <translation>Impossibile salvare la lingua.</translation>
    </message>
    <message>
        <source>Restart %1 now?</source>
        <translation>Riavviare %1 ora?</translation>
    </message>
    <message>
        <source>%1 is used from the next start.</source>
        <translation>%1 verrà usato dal prossimo avvio.</translation>
    </message>
</context>
<context>
    <name>LaunchForm</name>
    <message>
        <source>Launch</source>
        <extracomment>Heading of the form of a Launch key: the action that starts a program or opens a file (a verb).</extracomment>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>A program, script, document or folder</source>
        <translation>Un programma, uno script, un documento o una cartella</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Choose file…</source>
        <translation>Scegli file…</translation>
    </message>
    <message>
        <source>Choose application…</source>
        <translation>Scegli applicazione…</translation>
    </message>
    <message>
        <source>Use as title</source>
        <translation>Usa come titolo</translation>
    </message>
    <message>
        <source>Use &quot;%1&quot; as the title?</source>
        <translation>Usare «%1» come titolo?</translation>
    </message>
</context>
<context>
    <name>LayoutPage</name>
    <message>
        <source>Choose the keypad you use and how you hold it. The editor and the keypad change at once; every layout keeps its own keys.</source>
        <translation>Scegli il tastierino che usi e come lo tieni. L&apos;editor e il tastierino cambiano subito; ogni layout conserva i propri tasti.</translation>
    </message>
    <message>
        <source>Keypad size</source>
        <translation>Dimensione del tastierino</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientamento</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Orizzontale</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Verticale</translation>
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
        <translation>%1 tasti</translation>
    </message>
    <message>
        <source>%1 keys, vertical</source>
        <translation>%1 tasti, verticale</translation>
    </message>
    <message>
        <source>%1 keys, horizontal</source>
        <translation>%1 tasti, orizzontale</translation>
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
        <translation>Rete B/s</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>Record</source>
        <translation>Registra</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>&amp;Steps:</source>
        <translation>&amp;Passi:</translation>
    </message>
    <message>
        <source>Steps:</source>
        <translation>Passi:</translation>
    </message>
    <message>
        <source>Insert key…</source>
        <translation>Inserisci tasto…</translation>
    </message>
    <message>
        <source>Add text…</source>
        <translation>Aggiungi testo…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Sposta su</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Sposta giù</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Removes every step of the macro.</extracomment>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>Add the missing releases</source>
        <translation>Aggiungi i rilasci mancanti</translation>
    </message>
    <message>
        <source>Recording: press the keys of the macro. Esc alone or Stop ends the recording.</source>
        <translation>Registrazione: premi i tasti della macro. Esc da solo o Ferma termina la registrazione.</translation>
    </message>
    <message numerus="yes">
        <source>%n key(s) that cannot be typed left out.</source>
        <translation>
            <numerusform>%n tasto non digitabile omesso.</numerusform>
            <numerusform>%n tasti non digitabili omessi.</numerusform>
        </translation>
    </message>
    <message>
        <source>The macro leaves %1 held down: it stays pressed after the macro has played.</source>
        <translation>La macro lascia %1 premuto: resta premuto dopo l&apos;esecuzione della macro.</translation>
    </message>
    <message numerus="yes">
        <source>Recording: press the keys of the macro. Esc alone or Stop ends the recording. %n key(s) that cannot be typed left out.</source>
        <translation>
            <numerusform>Registrazione: premi i tasti della macro. Esc da solo o Ferma termina la registrazione. %n tasto non digitabile omesso.</numerusform>
            <numerusform>Registrazione: premi i tasti della macro. Esc da solo o Ferma termina la registrazione. %n tasti non digitabili omessi.</numerusform>
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
        <translation>Passi</translation>
    </message>
</context>
<context>
    <name>MacroStepModel</name>
    <message>
        <source>Down</source>
        <extracomment>A macro step presses (Down) or releases (Up) a key; read aloud after the key name.</extracomment>
        <translation>Pressione</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Rilascio</translation>
    </message>
    <message>
        <source>%1: %2 %3</source>
        <extracomment>A macro step, as a screen reader reads it: &quot;3: Shift down&quot;.</extracomment>
        <translation>%1: %2 %3</translation>
    </message>
    <message>
        <source>Key</source>
        <extracomment>Column header: the keyboard key a macro step presses or releases.</extracomment>
        <translation>Tasto</translation>
    </message>
    <message>
        <source>Press or release</source>
        <translation>Pressione o rilascio</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Hotkeys and macros cannot type keys.</source>
        <translation>Scorciatoie e macro non possono digitare tasti.</translation>
    </message>
    <message>
        <source>Your settings were damaged and have been reset.</source>
        <translation>Le impostazioni erano danneggiate e sono state ripristinate.</translation>
    </message>
    <message>
        <source>The damaged file was kept as %1.</source>
        <translation>Il file danneggiato è stato conservato come %1.</translation>
    </message>
    <message>
        <source>No keypad connected</source>
        <translation>Nessun tastierino collegato</translation>
    </message>
    <message>
        <source>Virtual keypad connected</source>
        <translation>Tastierino virtuale collegato</translation>
    </message>
    <message>
        <source>Keypad connected</source>
        <translation>Tastierino collegato</translation>
    </message>
    <message>
        <source>Keypad found, but no permission to use it. %1</source>
        <translation>Tastierino trovato, ma senza il permesso di usarlo. %1</translation>
    </message>
    <message>
        <source>Keypad status: %1</source>
        <translation>Stato del tastierino: %1</translation>
    </message>
    <message>
        <source>%1 could not be imported.</source>
        <translation>Impossibile importare %1.</translation>
    </message>
    <message>
        <source>Replace the keys of this layout?</source>
        <translation>Sostituire i tasti di questo layout?</translation>
    </message>
    <message>
        <source>The keys of the current layout are replaced by those of %1. You can&apos;t undo this action.</source>
        <translation>I tasti del layout attuale vengono sostituiti da quelli di %1. Questa azione non può essere annullata.</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Informazioni su %1</translation>
    </message>
    <message>
        <source>The desktop companion of your LCD macro keypad.</source>
        <translation>L&apos;applicazione desktop per il tuo tastierino macro con tasti LCD.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>%1 cannot quit now.</source>
        <translation>%1 non può uscire ora.</translation>
    </message>
    <message numerus="yes">
        <source>The keys of the current layout are replaced by those of %1. You can&apos;t undo this action.
%n key(s) do not fit this layout and will be lost.</source>
        <translation>
            <numerusform>I tasti del layout attuale vengono sostituiti da quelli di %1. Questa azione non può essere annullata.
%n tasto non entra in questo layout e andrà perso.</numerusform>
            <numerusform>I tasti del layout attuale vengono sostituiti da quelli di %1. Questa azione non può essere annullata.
%n tasti non entrano in questo layout e andranno persi.</numerusform>
        </translation>
    </message>
    <message>
        <source>Hotkeys and macros type into X applications only.</source>
        <translation>Scorciatoie e macro digitano solo nelle applicazioni X.</translation>
    </message>
    <message>
        <source>Your settings cannot be saved.</source>
        <translation>Impossibile salvare le impostazioni.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. Your changes are kept while %3 runs and saved as soon as the file can be written again.</source>
        <translation>Impossibile scrivere %1: %2. Le modifiche restano finché %3 è in esecuzione e vengono salvate appena il file torna scrivibile.</translation>
    </message>
</context>
<context>
    <name>PreferenceDialog</name>
    <message>
        <source>%1 Settings</source>
        <translation>Impostazioni di %1</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>Pagine delle impostazioni</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>The settings cannot be closed now.</source>
        <translation>Le impostazioni non possono essere chiuse ora.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Do you want to update firmware?</source>
        <translation>Aggiornare il firmware?</translation>
    </message>
    <message>
        <source>Firmware version %1 is now available - current version %2 Would you like to update now?</source>
        <extracomment>%1 is the firmware this program carries, %2 the firmware on the keypad.</extracomment>
        <translation>È disponibile la versione %1 del firmware; versione attuale: %2. Vuoi aggiornare ora?</translation>
    </message>
    <message>
        <source>Choose an image</source>
        <translation>Scegli un&apos;immagine</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>Immagini (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <source>Choose a program</source>
        <translation>Scegli un programma</translation>
    </message>
    <message>
        <source>Choose a program, script, document or folder</source>
        <translation>Scegli un programma, uno script, un documento o una cartella</translation>
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
        <translation>Maiusc</translation>
    </message>
</context>
<context>
    <name>ResetPage</name>
    <message>
        <source>Removes every key you made, on all six layouts, folders included, and puts back the keys a new installation starts with. My Favorite and the other settings stay. To keep a copy, use &quot;Back up everything&quot; under Import and export first.</source>
        <translation>Rimuove ogni tasto che hai creato, su tutti e sei i layout, cartelle comprese, e rimette i tasti di una nuova installazione. I miei preferiti e le altre impostazioni restano. Per conservarne una copia, usa prima «Backup completo» in Importazione ed esportazione.</translation>
    </message>
    <message>
        <source>Reset all keys…</source>
        <translation>Ripristina tutti i tasti…</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Are you sure you want to reset the keys of every layout?</source>
        <translation>Ripristinare davvero i tasti di tutti i layout?</translation>
    </message>
    <message>
        <source>You can&apos;t undo this action.</source>
        <translation>Questa azione non può essere annullata.</translation>
    </message>
    <message>
        <source>Every layout has its default keys again.</source>
        <translation>Ogni layout ha di nuovo i suoi tasti predefiniti.</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The file cannot be read.</source>
        <translation>Impossibile leggere il file.</translation>
    </message>
    <message>
        <source>The file is not a Keystage layout or favourites file.</source>
        <translation>Il file non è un file di layout o di preferiti di Keystage.</translation>
    </message>
    <message>
        <source>The file was changed or damaged after it was exported: its checksum does not match.</source>
        <translation>Il file è stato modificato o danneggiato dopo l&apos;esportazione: il suo codice di controllo non corrisponde.</translation>
    </message>
</context>
<context>
    <name>SoftwareUpdate</name>
    <message>
        <source>Checking for updates is turned off.</source>
        <translation>La ricerca degli aggiornamenti è disattivata.</translation>
    </message>
    <message>
        <source>This build names an update address that is not HTTPS; it is not used.</source>
        <translation>Questa build indica un indirizzo di aggiornamento non HTTPS; non viene usato.</translation>
    </message>
    <message>
        <source>The update information is too large.</source>
        <translation>Le informazioni di aggiornamento sono troppo grandi.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Ricerca di aggiornamenti…</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Lo scaricamento è stato annullato.</translation>
    </message>
    <message>
        <source>The update server answered with HTTP status %1.</source>
        <translation>Il server degli aggiornamenti ha risposto con lo stato HTTP %1.</translation>
    </message>
    <message>
        <source>The update server did not answer in time.</source>
        <translation>Il server degli aggiornamenti non ha risposto in tempo.</translation>
    </message>
    <message>
        <source>The update server could not be reached: %1</source>
        <translation>Impossibile raggiungere il server degli aggiornamenti: %1</translation>
    </message>
    <message>
        <source>Keystage %1 is up to date.</source>
        <translation>Keystage %1 è aggiornato.</translation>
    </message>
    <message>
        <source>Keystage %1 is available. You have %2.</source>
        <translation>È disponibile Keystage %1. Hai la versione %2.</translation>
    </message>
    <message>
        <source>Downloading Keystage %1…</source>
        <translation>Scaricamento di Keystage %1…</translation>
    </message>
    <message>
        <source>The download cannot be saved: %1</source>
        <translation>Impossibile salvare lo scaricamento: %1</translation>
    </message>
    <message>
        <source>The package is larger than %1 MB; it is not downloaded.</source>
        <translation>Il pacchetto supera %1 MB; non viene scaricato.</translation>
    </message>
    <message>
        <source>The download ended early: %1 of %2 bytes arrived.</source>
        <translation>Lo scaricamento si è interrotto prima: sono arrivati %1 byte su %2.</translation>
    </message>
    <message>
        <source>The downloaded package does not match the checksum the update server gave, so it was deleted.</source>
        <translation>Il pacchetto scaricato non corrisponde al codice di controllo fornito dal server degli aggiornamenti, quindi è stato eliminato.</translation>
    </message>
    <message>
        <source>No package installer could be opened. The verified package is saved as %1.</source>
        <translation>Impossibile aprire un programma di installazione dei pacchetti. Il pacchetto verificato è salvato come %1.</translation>
    </message>
    <message>
        <source>The package installer has opened Keystage %1. Once it has installed it, restart Keystage to use the new version.</source>
        <translation>Il programma di installazione dei pacchetti ha aperto Keystage %1. Una volta installato, riavvia Keystage per usare la nuova versione.</translation>
    </message>
</context>
<context>
    <name>SoftwareUpdatePage</name>
    <message>
        <source>Keystage is updated by your distribution&apos;s package manager, together with the rest of the system. Use your software centre or package manager to get new versions.</source>
        <translation>Keystage viene aggiornato dal gestore dei pacchetti della tua distribuzione, insieme al resto del sistema. Usa il tuo gestore del software o dei pacchetti per ottenere le nuove versioni.</translation>
    </message>
    <message>
        <source>Updates normally come from your distribution&apos;s package manager. Keystage can also look for a newer release itself; it connects to the network only while this is turned on.</source>
        <translation>Di norma gli aggiornamenti arrivano dal gestore dei pacchetti della tua distribuzione. Keystage può anche cercare da sé una versione più recente; si connette alla rete solo mentre questa opzione è attiva.</translation>
    </message>
    <message>
        <source>Check for &amp;updates</source>
        <translation>Cerca &amp;aggiornamenti</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>Cerca &amp;ora</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installa</translation>
    </message>
    <message>
        <source>&amp;Cancel download</source>
        <translation>A&amp;nnulla scaricamento</translation>
    </message>
    <message>
        <source>&amp;Restart Keystage</source>
        <translation>&amp;Riavvia Keystage</translation>
    </message>
    <message>
        <source>Download progress</source>
        <translation>Avanzamento dello scaricamento</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Aggiornamento software</translation>
    </message>
    <message>
        <source>Keystage is still downloading the update. Wait until it has finished, or cancel the download.</source>
        <translation>Keystage sta ancora scaricando l&apos;aggiornamento. Attendi la fine dello scaricamento oppure annullalo.</translation>
    </message>
    <message>
        <source>What is new:</source>
        <translation>Novità:</translation>
    </message>
</context>
<context>
    <name>StartAtLoginPage</name>
    <message>
        <source>Start %1 when I log in</source>
        <translation>Avvia %1 all&apos;accesso</translation>
    </message>
    <message>
        <source>%1 starts in the tray, so the keypad works from the start without a window in the way. The desktop reads this from %2.</source>
        <translation>%1 si avvia nell&apos;area di notifica, così il tastierino funziona fin dall&apos;inizio senza finestre in mezzo. Il desktop legge questa impostazione da %2.</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Avvio all&apos;accesso</translation>
    </message>
    <message>
        <source>This could not be changed: %1</source>
        <translation>Impossibile modificare questa impostazione: %1</translation>
    </message>
</context>
<context>
    <name>TextStringForm</name>
    <message>
        <source>Text String</source>
        <extracomment>Heading of the form of a key that types a stored text.</extracomment>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>The key pastes the text through the clipboard, and the text stays on the clipboard afterwards.</source>
        <translation>Il tasto incolla il testo tramite gli appunti, e il testo resta negli appunti anche dopo.</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizza</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>TitleStyleDialog</name>
    <message>
        <source>Title Style</source>
        <translation>Stile del titolo</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>&amp;Carattere:</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Dimensione:</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Grassetto</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>Cors&amp;ivo</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>&amp;Sottolineato</translation>
    </message>
    <message>
        <source>&amp;Color…</source>
        <translation>C&amp;olore…</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Colore:</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Posizione:</translation>
    </message>
    <message>
        <source>The key on the keypad</source>
        <translation>Il tasto sul tastierino</translation>
    </message>
    <message>
        <source>The key in the editor&apos;s grid</source>
        <translation>Il tasto nella griglia dell&apos;editor</translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation>Anteprima:</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>In alto a sinistra</translation>
    </message>
    <message>
        <source>Top center</source>
        <translation>In alto al centro</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>In alto a destra</translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation>Al centro a sinistra</translation>
    </message>
    <message>
        <source>Middle center</source>
        <translation>Al centro</translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation>Al centro a destra</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>In basso a sinistra</translation>
    </message>
    <message>
        <source>Bottom center</source>
        <translation>In basso al centro</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>In basso a destra</translation>
    </message>
    <message>
        <source>Title Color</source>
        <translation>Colore del titolo</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>Show</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>Virtual Keypad</source>
        <translation>Tastierino virtuale</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Impostazioni…</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
</context>
<context>
    <name>TreeView</name>
    <message>
        <source>Home</source>
        <extracomment>The top page of the keypad, above every folder.</extracomment>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>Folder tree</source>
        <translation>Albero delle cartelle</translation>
    </message>
</context>
<context>
    <name>UpdateFeed</name>
    <message>
        <source>The update information is too large.</source>
        <translation>Le informazioni di aggiornamento sono troppo grandi.</translation>
    </message>
    <message>
        <source>The update information is not readable.</source>
        <translation>Le informazioni di aggiornamento non sono leggibili.</translation>
    </message>
    <message>
        <source>The update information has no valid version.</source>
        <translation>Le informazioni di aggiornamento non hanno una versione valida.</translation>
    </message>
    <message>
        <source>The update information has no valid package address (an HTTPS address of a .deb package).</source>
        <translation>Le informazioni di aggiornamento non hanno un indirizzo di pacchetto valido (un indirizzo HTTPS di un pacchetto .deb).</translation>
    </message>
    <message>
        <source>The update information has no valid SHA-256 checksum.</source>
        <translation>Le informazioni di aggiornamento non hanno un codice di controllo SHA-256 valido.</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importa</translation>
    </message>
</context>
<context>
    <name>VirtualKeypadWindow</name>
    <message>
        <source>Virtual Keypad</source>
        <translation>Tastierino virtuale</translation>
    </message>
    <message>
        <source>unplugged</source>
        <translation>scollegato</translation>
    </message>
</context>
<context>
    <name>WebsiteForm</name>
    <message>
        <source>Website</source>
        <translation>Sito web</translation>
    </message>
    <message>
        <source>example.com or https://…</source>
        <translation>example.com o https://…</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Indirizzo</translation>
    </message>
    <message>
        <source>Choose bookmark…</source>
        <translation>Scegli segnalibro…</translation>
    </message>
    <message>
        <source>An address without &quot;https://&quot; opens as &quot;http://&quot;.</source>
        <translation>Un indirizzo senza «https://» si apre come «http://».</translation>
    </message>
</context>
<context>
    <name>WindowSystem</name>
    <message>
        <source>This desktop does not tell which application is in front, so folders cannot open by application. On Wayland, sway, Hyprland, KDE Plasma and GNOME (with Keystage&apos;s extension) do.</source>
        <translation>Questo desktop non indica quale applicazione è in primo piano, quindi le cartelle non possono aprirsi in base all’applicazione. Su Wayland lo fanno sway, Hyprland, KDE Plasma e GNOME (con l’estensione di Keystage).</translation>
    </message>
</context>
</TS>
