<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>AboutPage</name>
    <message>
        <source>%1, version %2</source>
        <translation>%1, version %2</translation>
    </message>
    <message>
        <source>The desktop companion of your LCD macro keypad.</source>
        <translation>Le compagnon de bureau de votre pavé de macros à écrans LCD.</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Licences</translation>
    </message>
    <message>
        <source>%1 is free software: you can redistribute it and modify it under the terms of the GNU General Public License, version 3 or any later version. It comes with no warranty. It is built with Qt %2, used under the GNU Lesser General Public License version 3. Key titles are drawn with the Liberation Sans fonts, used under the SIL Open Font License 1.1.</source>
        <translation>%1 est un logiciel libre&#xa0;: vous pouvez le redistribuer et le modifier selon les termes de la licence publique générale GNU (GPL), version 3 ou toute version ultérieure. Il est fourni sans aucune garantie. Il est construit avec Qt %2, utilisé sous la licence publique générale limitée GNU (LGPL) version 3. Les titres des touches sont dessinés avec les polices Liberation Sans, utilisées sous la licence SIL Open Font License 1.1.</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>À propos de Qt</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Log files</source>
        <translation>Fichiers journaux</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Ouvrir le dossier des journaux</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>Fichier de paramètres</translation>
    </message>
    <message>
        <source>Open settings folder</source>
        <translation>Ouvrir le dossier des paramètres</translation>
    </message>
    <message>
        <source>The settings file carries a checksum: a file changed by hand is not loaded, and the settings start over.</source>
        <translation>Le fichier de paramètres contient une somme de contrôle&#xa0;: un fichier modifié à la main n’est pas chargé, et les paramètres repartent de zéro.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
</context>
<context>
    <name>Accessibility</name>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
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
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Hotkey</source>
        <translation>Raccourci clavier</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>Launch</source>
        <extracomment>The action that starts a program or opens a file or folder.</extracomment>
        <translation>Lancer</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Text String</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>My Favorite</source>
        <translation>Mes favoris</translation>
    </message>
</context>
<context>
    <name>AddTextDialog</name>
    <message>
        <source>Add text</source>
        <translation>Ajouter du texte</translation>
    </message>
    <message>
        <source>Each character becomes a press and a release of the key that types it on a US keyboard, with Shift where a US keyboard needs it, the way the keypad types on every desktop. With another keyboard layout active some characters come out differently, and characters a US keyboard lacks are left out. To insert any text as it is, use a Text String key instead.</source>
        <translation>Chaque caractère devient un appui et un relâchement de la touche qui le tape sur un clavier américain, avec Maj là où un clavier américain en a besoin&#xa0;: c’est ainsi que le pavé tape sur tous les bureaux. Avec une autre disposition de clavier active, certains caractères sortent différemment, et les caractères absents d’un clavier américain sont omis. Pour insérer un texte tel quel, utilisez plutôt une touche Texte.</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Texte&#xa0;:</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>Texte&#xa0;:</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message numerus="yes">
        <source>%n step(s)</source>
        <translation>
            <numerusform>%n étape</numerusform>
            <numerusform>%n étapes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n step(s). Left out: %1</source>
        <extracomment>%1 lists the characters that cannot be typed.</extracomment>
        <translation>
            <numerusform>%n étape. Omis&#xa0;: %1</numerusform>
            <numerusform>%n étapes. Omis&#xa0;: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ApplicationChooser</name>
    <message>
        <source>Choose Application</source>
        <translation>Choisir une application</translation>
    </message>
    <message>
        <source>&amp;Installed</source>
        <translation>&amp;Installées</translation>
    </message>
    <message>
        <source>&amp;Running</source>
        <translation>&amp;En cours d’exécution</translation>
    </message>
    <message>
        <source>Where the applications come from</source>
        <translation>Origine des applications</translation>
    </message>
    <message>
        <source>&amp;Applications:</source>
        <translation>&amp;Applications&#xa0;:</translation>
    </message>
    <message>
        <source>Looking for running applications…</source>
        <translation>Recherche des applications en cours d’exécution…</translation>
    </message>
    <message>
        <source>Looking for installed applications…</source>
        <translation>Recherche des applications installées…</translation>
    </message>
    <message>
        <source>This desktop does not tell which applications are running.</source>
        <translation>Ce bureau n’indique pas quelles applications sont en cours d’exécution.</translation>
    </message>
    <message>
        <source>No applications found.</source>
        <translation>Aucune application trouvée.</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Le dossier %1 ne peut pas être créé.</translation>
    </message>
    <message>
        <source>Starts %1 in the tray at login</source>
        <translation>Lance %1 dans la zone de notification à l’ouverture de session</translation>
    </message>
</context>
<context>
    <name>BookmarkChooser</name>
    <message>
        <source>Choose Bookmark</source>
        <translation>Choisir un marque-page</translation>
    </message>
    <message>
        <source>&amp;Bookmarks:</source>
        <translation>&amp;Marque-pages&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Use the page title as the key title</source>
        <translation>&amp;Utiliser le titre de la page comme titre de la touche</translation>
    </message>
    <message>
        <source>Reading the browsers&apos; bookmarks…</source>
        <translation>Lecture des marque-pages des navigateurs…</translation>
    </message>
    <message>
        <source>Title</source>
        <extracomment>Column header: the name of a browser bookmark.</extracomment>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>No bookmarks of Firefox, Chromium, Google Chrome, Brave, Vivaldi or Microsoft Edge found.</source>
        <translation>Aucun marque-page de Firefox, Chromium, Google Chrome, Brave, Vivaldi ou Microsoft Edge trouvé.</translation>
    </message>
</context>
<context>
    <name>ChooserDialog</name>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Rechercher&#xa0;:</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Actua&amp;liser</translation>
    </message>
</context>
<context>
    <name>ConfigurationBackup</name>
    <message>
        <source>%1 backup %2</source>
        <translation>Sauvegarde %1 %2</translation>
    </message>
    <message>
        <source>My Favorite</source>
        <translation>Mes favoris</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>Le dossier %1 n’existe pas.</translation>
    </message>
    <message>
        <source>No folder can be made in %1.</source>
        <translation>Aucun dossier ne peut être créé dans %1.</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1 n’a pas pu être écrit&#xa0;: %2</translation>
    </message>
    <message>
        <source>Layout %1 keys vertical</source>
        <extracomment>A file name: the keypad&apos;s size, then its orientation.</extracomment>
        <translation>Disposition %1 touches verticale</translation>
    </message>
    <message>
        <source>Layout %1 keys horizontal</source>
        <translation>Disposition %1 touches horizontale</translation>
    </message>
</context>
<context>
    <name>ControlAdaptor</name>
    <message>
        <source>No folder titled &quot;%1&quot; on the root page.</source>
        <translation>Aucun dossier intitulé «&#xa0;%1&#xa0;» sur la page d’accueil.</translation>
    </message>
    <message>
        <source>Key %1 is not on the keypad (0 to %2).</source>
        <translation>La touche %1 n’existe pas sur le pavé (0 à %2).</translation>
    </message>
    <message>
        <source>Key %1 of the root page is not a folder.</source>
        <translation>La touche %1 de la page d’accueil n’est pas un dossier.</translation>
    </message>
    <message>
        <source>Key %1 has no action on this page.</source>
        <translation>La touche %1 n’a pas d’action sur cette page.</translation>
    </message>
    <message>
        <source>Brightness %1 is outside %2 to %3.</source>
        <translation>La luminosité %1 n’est pas comprise entre %2 et %3.</translation>
    </message>
    <message>
        <source>Layout %1 does not exist (0 to %2).</source>
        <translation>La disposition %1 n’existe pas (0 à %2).</translation>
    </message>
</context>
<context>
    <name>Dialog</name>
    <message>
        <source>Dialog</source>
        <translation>Boîte de dialogue</translation>
    </message>
    <message>
        <source>icon</source>
        <translation>icône</translation>
    </message>
    <message>
        <source>subject text</source>
        <translation>objet</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>Ne plus afficher</translation>
    </message>
    <message>
        <source>other</source>
        <translation>autre</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>DimmingPage</name>
    <message>
        <source>Dimming</source>
        <translation>Atténuation</translation>
    </message>
    <message>
        <source>Dim the keypad after</source>
        <translation>Atténuer le pavé après</translation>
    </message>
    <message>
        <source>minutes without a key press</source>
        <translation>minutes sans appui sur une touche</translation>
    </message>
    <message>
        <source>Minutes without a key press</source>
        <translation>Minutes sans appui sur une touche</translation>
    </message>
    <message>
        <source>Dimmed brightness:</source>
        <translation>Luminosité atténuée&#xa0;:</translation>
    </message>
    <message>
        <source>Dimmed brightness</source>
        <translation>Luminosité atténuée</translation>
    </message>
    <message>
        <source>Turn the keypad off while the screen is locked</source>
        <translation>Éteindre le pavé tant que l’écran est verrouillé</translation>
    </message>
    <message>
        <source>The next key press brings the brightness back; that press does nothing else.</source>
        <translation>Le prochain appui sur une touche rétablit la luminosité&#x202f;; cet appui ne fait rien d’autre.</translation>
    </message>
    <message>
        <source>Unavailable: the keypad connection is not running.</source>
        <translation>Indisponible&#xa0;: la connexion au pavé n’est pas active.</translation>
    </message>
    <message>
        <source>Unavailable: neither logind nor a screen saver reports screen locks on this desktop (D-Bus).</source>
        <translation>Indisponible&#xa0;: ni logind ni un économiseur d’écran ne signale le verrouillage de l’écran sur ce bureau (D-Bus).</translation>
    </message>
</context>
<context>
    <name>EmojiCatalog</name>
    <message>
        <source>The list of emoji (%1) cannot be read. Install the package unicode-data.</source>
        <translation>La liste des émojis (%1) ne peut pas être lue. Installez le paquet unicode-data.</translation>
    </message>
    <message>
        <source>The list of emoji (%1) is not valid.</source>
        <translation>La liste des émojis (%1) n’est pas valide.</translation>
    </message>
    <message>
        <source>The list of emoji holds no emoji.</source>
        <translation>La liste des émojis ne contient aucun émoji.</translation>
    </message>
</context>
<context>
    <name>EmojiNames</name>
    <message>
        <source>en</source>
        <extracomment>The Unicode CLDR locale whose emoji names suit this language: ja, zh_Hant, de, fr or it. Not shown.</extracomment>
        <translation>fr</translation>
    </message>
</context>
<context>
    <name>FaceEditor</name>
    <message>
        <source>Shown on the key</source>
        <translation>Affiché sur la touche</translation>
    </message>
    <message>
        <source>Style…</source>
        <translation>Style…</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>Icône</translation>
    </message>
    <message>
        <source>Choose icon…</source>
        <translation>Choisir une icône…</translation>
    </message>
    <message>
        <source>Use default icon</source>
        <translation>Utiliser l’icône par défaut</translation>
    </message>
    <message>
        <source>Of the second hotkey</source>
        <translation>Pour le second raccourci</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Processeur</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Horloge</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Live content:</source>
        <translation>Contenu en direct&#xa0;:</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Graphique</translation>
    </message>
    <message>
        <source>A graph of the last minute under the value</source>
        <translation>Un graphique de la dernière minute sous la valeur</translation>
    </message>
</context>
<context>
    <name>Favorite</name>
    <message>
        <source>My Favorite</source>
        <translation>Mes favoris</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Empty slot</source>
        <translation>Emplacement vide</translation>
    </message>
    <message>
        <source>Usage: %1 / %2</source>
        <translation>Utilisation&#xa0;: %1 / %2</translation>
    </message>
    <message>
        <source>Are you sure you want to reset all favorite items?</source>
        <translation>Voulez-vous vraiment réinitialiser tous les favoris&#x202f;?</translation>
    </message>
    <message>
        <source>You can&apos;t undo this action.</source>
        <translation>Cette action est irréversible.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
</context>
<context>
    <name>FavoriteKeyItemModel</name>
    <message>
        <source>You have reached the limit of &quot;My Favorite&quot;.</source>
        <translation>Vous avez atteint la limite de «&#xa0;Mes favoris&#xa0;».</translation>
    </message>
    <message>
        <source>Import %1 fails.</source>
        <translation>L’importation de %1 a échoué.</translation>
    </message>
    <message>
        <source>The limit of &quot;My Favorite&quot; is %1 items.</source>
        <translation>La limite de «&#xa0;Mes favoris&#xa0;» est de %1 éléments.</translation>
    </message>
    <message>
        <source>You already have %1 item in &quot;My Favorite.&quot; If continues, %2 item will be lost. Are you sure you want to proceed?</source>
        <translation>Vous avez déjà %1 éléments dans «&#xa0;Mes favoris&#xa0;». Si vous continuez, %2 éléments seront perdus. Voulez-vous vraiment continuer&#x202f;?</translation>
    </message>
</context>
<context>
    <name>FirefoxBookmarks</name>
    <message>
        <source>Bookmarks Menu</source>
        <translation>Menu des marque-pages</translation>
    </message>
    <message>
        <source>Bookmarks Toolbar</source>
        <translation>Barre personnelle</translation>
    </message>
    <message>
        <source>Other Bookmarks</source>
        <translation>Autres marque-pages</translation>
    </message>
    <message>
        <source>Mobile Bookmarks</source>
        <translation>Marque-pages des appareils mobiles</translation>
    </message>
</context>
<context>
    <name>FirmwarePage</name>
    <message>
        <source>The keypad runs firmware of its own. This program carries the newest firmware it knows for each keypad model and can install it.</source>
        <translation>Le pavé exécute son propre micrologiciel. Ce programme contient le micrologiciel le plus récent qu’il connaît pour chaque modèle de pavé et peut l’installer.</translation>
    </message>
    <message>
        <source>Keypad:</source>
        <translation>Pavé&#xa0;:</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>Numéro de série&#xa0;:</translation>
    </message>
    <message>
        <source>Installed firmware:</source>
        <translation>Micrologiciel installé&#xa0;:</translation>
    </message>
    <message>
        <source>Firmware in this program:</source>
        <translation>Micrologiciel de ce programme&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Update firmware…</source>
        <translation>Mettre à &amp;jour le micrologiciel…</translation>
    </message>
    <message>
        <source>Update progress</source>
        <translation>Progression de la mise à jour</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Micrologiciel</translation>
    </message>
    <message>
        <source>The firmware update is still running. Closing now could leave the keypad unusable.</source>
        <translation>La mise à jour du micrologiciel est en cours. Fermer maintenant pourrait rendre le pavé inutilisable.</translation>
    </message>
    <message>
        <source>Reading the keypad…</source>
        <translation>Lecture du pavé…</translation>
    </message>
    <message>
        <source>No keypad connected</source>
        <translation>Aucun pavé connecté</translation>
    </message>
    <message>
        <source>The keypad does not tell its firmware version. Unplug it, plug it in again and try once more.</source>
        <translation>Le pavé n’indique pas la version de son micrologiciel. Débranchez-le, rebranchez-le et réessayez.</translation>
    </message>
    <message>
        <source>This program has no firmware for this keypad (%1), so there is no update to offer.</source>
        <translation>Ce programme n’a pas de micrologiciel pour ce pavé (%1)&#x202f;; il n’y a donc pas de mise à jour à proposer.</translation>
    </message>
    <message>
        <source>Updating the firmware. Keep the keypad plugged in; its keys do nothing until the update ends.</source>
        <translation>Mise à jour du micrologiciel. Laissez le pavé branché&#x202f;; ses touches sont inactives jusqu’à la fin de la mise à jour.</translation>
    </message>
    <message>
        <source>The firmware was updated.</source>
        <translation>Le micrologiciel a été mis à jour.</translation>
    </message>
    <message>
        <source>The firmware update failed. Keep the keypad plugged in and try again. If it stays dark, unplug it and plug it in again.</source>
        <translation>La mise à jour du micrologiciel a échoué. Laissez le pavé branché et réessayez. S’il reste éteint, débranchez-le et rebranchez-le.</translation>
    </message>
</context>
<context>
    <name>FolderForm</name>
    <message>
        <source>Folder</source>
        <extracomment>Heading of the form of a folder key: a key that opens a page of more keys.</extracomment>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>No application</source>
        <translation>Aucune application</translation>
    </message>
    <message>
        <source>Open this folder when an application comes to the front</source>
        <translation>Ouvrir ce dossier quand une application passe au premier plan</translation>
    </message>
    <message>
        <source>Choose application…</source>
        <translation>Choisir une application…</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>Parcourir…</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Forgets the application that opens this folder.</extracomment>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>The folder no longer opens by itself</source>
        <translation>Le dossier ne s’ouvre plus de lui-même</translation>
    </message>
</context>
<context>
    <name>ForegroundSource</name>
    <message>
        <source>Folders open by application: %1 tells which is in front.</source>
        <translation>Les dossiers s’ouvrent selon l’application&#xa0;: %1 indique celle qui est au premier plan.</translation>
    </message>
    <message>
        <source>Folders open by application: the Keystage Focus extension of GNOME Shell tells which is in front.</source>
        <translation>Les dossiers s’ouvrent selon l’application&#xa0;: l’extension GNOME Shell Keystage Focus indique celle qui est au premier plan.</translation>
    </message>
    <message>
        <source>To open folders by application, turn on the Keystage Focus extension in Extensions, or run: gnome-extensions enable %1</source>
        <translation>Pour ouvrir les dossiers selon l’application, activez l’extension Keystage Focus dans «&#xa0;Extensions&#xa0;», ou exécutez&#xa0;: gnome-extensions enable %1</translation>
    </message>
    <message>
        <source>To open folders by application on GNOME, install Keystage&apos;s GNOME Shell extension (%1) and turn it on.</source>
        <translation>Pour ouvrir les dossiers selon l’application sous GNOME, installez l’extension GNOME Shell de Keystage (%1) et activez-la.</translation>
    </message>
    <message>
        <source>Folders cannot open by application: there is no session bus to ask KWin.</source>
        <translation>Les dossiers ne peuvent pas s’ouvrir selon l’application&#xa0;: aucun bus de session ne permet d’interroger KWin.</translation>
    </message>
    <message>
        <source>This compositor does not tell which application is in front, so folders cannot open by application. Compositors that offer wlroots&apos; toplevel list do (sway, river, labwc, Wayfire, Hyprland).</source>
        <translation>Ce compositeur n’indique pas quelle application est au premier plan, les dossiers ne peuvent donc pas s’ouvrir selon l’application. Les compositeurs qui offrent la liste des fenêtres de wlroots le font (sway, river, labwc, Wayfire, Hyprland).</translation>
    </message>
    <message>
        <source>Folders open by application: the compositor&apos;s toplevel list tells which is in front.</source>
        <translation>Les dossiers s’ouvrent selon l’application&#xa0;: la liste des fenêtres du compositeur indique celle qui est au premier plan.</translation>
    </message>
</context>
<context>
    <name>FunctionDescription</name>
    <message>
        <source>Folder
Store an organized group of key actions. Folder can be linked to an application, and folder will open automatically when the application is launched.</source>
        <translation>Dossier
Regroupe et organise des actions de touches. Un dossier peut être lié à une application&#x202f;; il s’ouvre alors automatiquement au lancement de l’application.</translation>
    </message>
    <message>
        <source>Hotkey
A key or a combination of keys used together to perform a task or function on the operating system or applications. Recall the hotkey action by pressing on the button.</source>
        <translation>Raccourci clavier
Une touche ou une combinaison de touches qui exécute une tâche ou une fonction du système ou d’une application. Appuyez sur la touche pour déclencher le raccourci.</translation>
    </message>
    <message>
        <source>Macro key
A sequence of commands or keyboard strokes stored in the assigned key. Recall the macro key action by pressing on the button.</source>
        <translation>Macro
Une suite de commandes ou de frappes enregistrée sur la touche choisie. Appuyez sur la touche pour rejouer la macro.</translation>
    </message>
    <message>
        <source>Launch
Execute an application, file, folder path, or command-line by pressing on the button.</source>
        <translation>Lancer
Ouvre une application, un fichier, un dossier ou une ligne de commande quand vous appuyez sur la touche.</translation>
    </message>
    <message>
        <source>Website
Search the web or navigate the site by pressing on the button.</source>
        <translation>Site web
Faites une recherche sur le web ou ouvrez un site en appuyant sur la touche.</translation>
    </message>
    <message>
        <source>Text String
A sequence of characters defined by users. Text string can be text message, source code or script that stored in the assigned key. Recall the text string by pressing on the button.</source>
        <translation>Texte
Une suite de caractères que vous définissez&#xa0;: message, code source ou script enregistré sur la touche choisie. Appuyez sur la touche pour insérer le texte.</translation>
    </message>
    <message>
        <source>Drag an action from above list and drop into section on the left.</source>
        <translation>Faites glisser une action de la liste ci-dessus vers une touche à gauche.</translation>
    </message>
</context>
<context>
    <name>HotkeyForm</name>
    <message>
        <source>Hotkey</source>
        <extracomment>Heading of the form of a hotkey: a keypad key that types a keyboard shortcut.</extracomment>
        <translation>Raccourci clavier</translation>
    </message>
    <message>
        <source>Key combination</source>
        <translation>Combinaison de touches</translation>
    </message>
    <message>
        <source>Toggle between two hotkeys</source>
        <translation>Alterner entre deux raccourcis</translation>
    </message>
    <message>
        <source>Second key combination</source>
        <translation>Seconde combinaison de touches</translation>
    </message>
    <message>
        <source>Second title</source>
        <translation>Second titre</translation>
    </message>
    <message>
        <source>The keypad shows the first hotkey now.</source>
        <translation>Le pavé affiche maintenant le premier raccourci.</translation>
    </message>
    <message>
        <source>The keypad shows the second hotkey now.</source>
        <translation>Le pavé affiche maintenant le second raccourci.</translation>
    </message>
</context>
<context>
    <name>HotkeyRecorder</name>
    <message>
        <source>Press a key combination</source>
        <translation>Appuyez sur une combinaison de touches</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Non défini</translation>
    </message>
    <message>
        <source>That key cannot be typed. Press another one</source>
        <translation>Cette touche ne peut pas être tapée. Appuyez sur une autre</translation>
    </message>
    <message>
        <source>Click, or press Enter or Space, to record a key combination</source>
        <translation>Cliquez, ou appuyez sur Entrée ou Espace, pour enregistrer une combinaison de touches</translation>
    </message>
    <message>
        <source>Keys a keyboard may lack</source>
        <translation>Touches qui peuvent manquer sur un clavier</translation>
    </message>
</context>
<context>
    <name>IconChooser</name>
    <message>
        <source>Choose Icon</source>
        <translation>Choisir une icône</translation>
    </message>
    <message>
        <source>Image &amp;file</source>
        <translation>&amp;Fichier image</translation>
    </message>
    <message>
        <source>Icon &amp;theme</source>
        <translation>&amp;Thème d’icônes</translation>
    </message>
    <message>
        <source>&amp;Emoji</source>
        <translation>&amp;Émojis</translation>
    </message>
    <message>
        <source>The key with this icon</source>
        <translation>La touche avec cette icône</translation>
    </message>
    <message>
        <source>Choose image file…</source>
        <translation>Choisir un fichier image…</translation>
    </message>
    <message>
        <source>PNG, JPEG, SVG, WebP, GIF (its first picture) and the other image formats of this system. The picture is fitted into the key without distortion; transparent parts stay transparent.</source>
        <translation>PNG, JPEG, SVG, WebP, GIF (sa première image) et les autres formats d’image de ce système. L’image est ajustée à la touche sans déformation&#x202f;; les parties transparentes restent transparentes.</translation>
    </message>
    <message>
        <source>&amp;Icons:</source>
        <translation>&amp;Icônes&#xa0;:</translation>
    </message>
    <message>
        <source>E&amp;moji:</source>
        <translation>É&amp;mojis&#xa0;:</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ne peut pas être lu&#xa0;: %2</translation>
    </message>
    <message>
        <source>Reading the icon theme…</source>
        <translation>Lecture du thème d’icônes…</translation>
    </message>
    <message>
        <source>Reading the emoji…</source>
        <translation>Lecture des émojis…</translation>
    </message>
    <message>
        <source>The icon theme &quot;%1&quot; has no icons.</source>
        <translation>Le thème d’icônes «&#xa0;%1&#xa0;» ne contient aucune icône.</translation>
    </message>
    <message>
        <source>No icon chosen.</source>
        <translation>Aucune icône choisie.</translation>
    </message>
</context>
<context>
    <name>IconGridPage</name>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Rechercher&#xa0;:</translation>
    </message>
    <message>
        <source>Type words of the name</source>
        <translation>Saisissez des mots du nom</translation>
    </message>
    <message>
        <source>Nothing matches the search.</source>
        <translation>Aucun résultat pour cette recherche.</translation>
    </message>
    <message numerus="yes">
        <source>%n shown</source>
        <translation>
            <numerusform>%n affiché</numerusform>
            <numerusform>%n affichés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportExportPage</name>
    <message>
        <source>Export layout…</source>
        <translation>Exporter la disposition…</translation>
    </message>
    <message>
        <source>The keys of the layout in use, with their folders, as a .kslayout file.</source>
        <translation>Les touches de la disposition utilisée, avec leurs dossiers, dans un fichier .kslayout.</translation>
    </message>
    <message>
        <source>Export My Favorite…</source>
        <translation>Exporter Mes favoris…</translation>
    </message>
    <message>
        <source>All of My Favorite as a .ksfavorites file.</source>
        <translation>Tous les favoris dans un fichier .ksfavorites.</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>A .kslayout file replaces the keys of the layout in use; a .ksfavorites file adds to My Favorite. You are asked first.</source>
        <translation>Un fichier .kslayout remplace les touches de la disposition utilisée&#x202f;; un fichier .ksfavorites complète Mes favoris. Une confirmation vous est demandée.</translation>
    </message>
    <message>
        <source>Back up everything…</source>
        <translation>Tout sauvegarder…</translation>
    </message>
    <message>
        <source>Every layout and My Favorite, each in a file of its own, into a new dated folder inside the folder you choose.</source>
        <translation>Chaque disposition et Mes favoris, chacun dans son propre fichier, dans un nouveau dossier daté à l’intérieur du dossier choisi.</translation>
    </message>
    <message>
        <source>Import and export</source>
        <translation>Importation et exportation</translation>
    </message>
    <message>
        <source>Export layout</source>
        <translation>Exporter la disposition</translation>
    </message>
    <message>
        <source>Keystage layout (*.kslayout)</source>
        <translation>Disposition Keystage (*.kslayout)</translation>
    </message>
    <message>
        <source>The layout was exported to %1.</source>
        <translation>La disposition a été exportée vers %1.</translation>
    </message>
    <message>
        <source>The layout could not be exported to %1.</source>
        <translation>La disposition n’a pas pu être exportée vers %1.</translation>
    </message>
    <message>
        <source>Export My Favorite</source>
        <translation>Exporter Mes favoris</translation>
    </message>
    <message>
        <source>Keystage favorites (*.ksfavorites)</source>
        <translation>Favoris Keystage (*.ksfavorites)</translation>
    </message>
    <message>
        <source>My Favorite was exported to %1.</source>
        <translation>Mes favoris ont été exportés vers %1.</translation>
    </message>
    <message>
        <source>My Favorite could not be exported to %1.</source>
        <translation>Mes favoris n’ont pas pu être exportés vers %1.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Keystage files (*.kslayout *.ksfavorites);;Keystage layout (*.kslayout);;Keystage favorites (*.ksfavorites)</source>
        <translation>Fichiers Keystage (*.kslayout *.ksfavorites);;Disposition Keystage (*.kslayout);;Favoris Keystage (*.ksfavorites)</translation>
    </message>
    <message>
        <source>Back up everything into</source>
        <translation>Tout sauvegarder dans</translation>
    </message>
    <message numerus="yes">
        <source>%n files were written to %1.</source>
        <translation>
            <numerusform>%n fichier a été écrit dans %1.</numerusform>
            <numerusform>%n fichiers ont été écrits dans %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>The backup failed. %1</source>
        <translation>La sauvegarde a échoué. %1</translation>
    </message>
</context>
<context>
    <name>InsertKeyDialog</name>
    <message>
        <source>Insert key</source>
        <translation>Insérer une touche</translation>
    </message>
    <message>
        <source>&amp;Key to insert (a press and a release, with its modifiers around it):</source>
        <translation>&amp;Touche à insérer (un appui et un relâchement, entourés de ses modificateurs)&#xa0;:</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insérer</translation>
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
        <translation>&amp;Nouveau dossier</translation>
    </message>
    <message>
        <source>&amp;Create Actions</source>
        <translation>&amp;Créer une action</translation>
    </message>
    <message>
        <source>&amp;Hotkey</source>
        <translation>&amp;Raccourci clavier</translation>
    </message>
    <message>
        <source>&amp;Macro</source>
        <translation>&amp;Macro</translation>
    </message>
    <message>
        <source>&amp;Launch</source>
        <extracomment>The action that starts a program or opens a file (a verb, as in the action palette).</extracomment>
        <translation>&amp;Lancer</translation>
    </message>
    <message>
        <source>&amp;Website</source>
        <translation>&amp;Site web</translation>
    </message>
    <message>
        <source>&amp;Text String</source>
        <translation>&amp;Texte</translation>
    </message>
    <message>
        <source>&amp;Cut</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>C&amp;opier</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>Su&amp;pprimer</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Co&amp;ller</translation>
    </message>
    <message>
        <source>&amp;Save as favorite</source>
        <translation>Enregistrer comme &amp;favori</translation>
    </message>
</context>
<context>
    <name>KeyGridController</name>
    <message>
        <source>The limit of folder is different.</source>
        <translation>La limite de dossiers est différente.</translation>
    </message>
    <message>
        <source>If continues, some items may be lost. Are you sure you want to proceed?</source>
        <translation>Si vous continuez, certains éléments peuvent être perdus. Voulez-vous vraiment continuer&#x202f;?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this item?</source>
        <translation>Voulez-vous vraiment supprimer cet élément&#x202f;?</translation>
    </message>
    <message>
        <source>You can&apos;t undo this action.</source>
        <translation>Cette action est irréversible.</translation>
    </message>
    <message>
        <source>Don&apos;t ask me again</source>
        <translation>Ne plus me demander</translation>
    </message>
</context>
<context>
    <name>KeyItemForm</name>
    <message>
        <source>Title</source>
        <extracomment>The text shown on the key of the keypad, under its icon.</extracomment>
        <translation>Titre</translation>
    </message>
</context>
<context>
    <name>KeyItemGridView</name>
    <message>
        <source>Keys</source>
        <extracomment>The keys of the keypad, as the editor shows them.</extracomment>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Key %1: empty</source>
        <extracomment>%1 is the number of a key on the keypad.</extracomment>
        <translation>Touche %1&#xa0;: vide</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The key that leads out of a folder page, back to the page above.</extracomment>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Key %1: %2</source>
        <translation>Touche %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Key %1: %2, %3</source>
        <translation>Touche %1&#xa0;: %2, %3</translation>
    </message>
</context>
<context>
    <name>KeyItemModel</name>
    <message>
        <source>Copy</source>
        <extracomment>Title of a default key (the Copy hotkey); a key face is 72 pixels wide.</extracomment>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <extracomment>Title of a default key (the Paste hotkey).</extracomment>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Media</source>
        <extracomment>Title of a default folder key holding the volume keys.</extracomment>
        <translation>Médias</translation>
    </message>
    <message>
        <source>Mute</source>
        <extracomment>Title of a default key: mutes the sound.</extracomment>
        <translation>Muet</translation>
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
            <numerusform>%n étape</numerusform>
            <numerusform>%n étapes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n key(s)</source>
        <translation>
            <numerusform>%n touche</numerusform>
            <numerusform>%n touches</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
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
        <translation>Touche inconnue</translation>
    </message>
    <message>
        <source>Left Super</source>
        <translation>Super gauche</translation>
    </message>
    <message>
        <source>Right Super</source>
        <translation>Super droite</translation>
    </message>
    <message>
        <source>Left Shift</source>
        <translation>Maj gauche</translation>
    </message>
    <message>
        <source>Right Shift</source>
        <translation>Maj droite</translation>
    </message>
    <message>
        <source>Left Ctrl</source>
        <translation>Ctrl gauche</translation>
    </message>
    <message>
        <source>Right Ctrl</source>
        <translation>Ctrl droite</translation>
    </message>
    <message>
        <source>Left Alt</source>
        <translation>Alt gauche</translation>
    </message>
    <message>
        <source>Right Alt</source>
        <translation>Alt droite</translation>
    </message>
</context>
<context>
    <name>KeyPickerMenu</name>
    <message>
        <source>F13 to F24</source>
        <translation>F13 à F24</translation>
    </message>
    <message>
        <source>Keys the recorder uses</source>
        <translation>Touches utilisées par l’enregistreur</translation>
    </message>
</context>
<context>
    <name>KeypadAccess</name>
    <message>
        <source>Install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d), then run &quot;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&quot; or unplug and replug the keypad.</source>
        <translation>Installez la règle udev 70-keystage.rules (dans /etc/udev/rules.d, sauf si un paquet l’a placée dans /usr/lib/udev/rules.d), puis exécutez «&#xa0;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&#xa0;» ou débranchez et rebranchez le pavé.</translation>
    </message>
</context>
<context>
    <name>KeypadPage</name>
    <message>
        <source>Keypad</source>
        <extracomment>The USB keypad with LCD keys this program drives.</extracomment>
        <translation>Pavé</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>Firmware version</source>
        <translation>Version du micrologiciel</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Set on the keypad as you move it, and on every keypad you connect.</source>
        <translation>Appliquée au pavé pendant que vous la réglez, et à chaque pavé que vous connectez.</translation>
    </message>
    <message>
        <source>Show logo</source>
        <translation>Afficher le logo</translation>
    </message>
    <message>
        <source>No keypad connected</source>
        <translation>Aucun pavé connecté</translation>
    </message>
    <message>
        <source>Reading the keypad…</source>
        <translation>Lecture du pavé…</translation>
    </message>
    <message>
        <source>The keypad does not answer.</source>
        <translation>Le pavé ne répond pas.</translation>
    </message>
    <message>
        <source>The keypad shows its logo for a moment.</source>
        <translation>Le pavé affiche son logo un instant.</translation>
    </message>
    <message>
        <source>The keypad did not show its logo.</source>
        <translation>Le pavé n’a pas affiché son logo.</translation>
    </message>
</context>
<context>
    <name>KeystrokeBackend</name>
    <message>
        <source>To let them type, install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d) and run &quot;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&quot;, or log in to an X11 session.</source>
        <translation>Pour leur permettre de taper, installez la règle udev 70-keystage.rules (dans /etc/udev/rules.d, sauf si un paquet l’a placée dans /usr/lib/udev/rules.d) et exécutez «&#xa0;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&#xa0;», ou ouvrez une session X11.</translation>
    </message>
    <message>
        <source>This is a Wayland session, and without access to /dev/uinput keys are typed through XWayland, which only programs running under X receive. To reach every program, install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d), run &quot;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&quot; and start %1 again.</source>
        <translation>Ceci est une session Wayland et, sans accès à /dev/uinput, les touches passent par XWayland, que seuls les programmes fonctionnant sous X reçoivent. Pour atteindre tous les programmes, installez la règle udev 70-keystage.rules (dans /etc/udev/rules.d, sauf si un paquet l’a placée dans /usr/lib/udev/rules.d), exécutez «&#xa0;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&#xa0;» et relancez %1.</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>The language of %1&apos;s windows. It changes when %1 starts again.</source>
        <translation>La langue des fenêtres de %1. Elle change au prochain démarrage de %1.</translation>
    </message>
    <message>
        <source>Use this language</source>
        <translation>Utiliser cette langue</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>The language could not be stored.</source>
        <translation>La langue n’a pas pu être enregistrée.</translation>
    </message>
    <message>
        <source>Restart %1 now?</source>
        <translation>Redémarrer %1 maintenant&#x202f;?</translation>
    </message>
    <message>
        <source>%1 is used from the next start.</source>
        <translation>%1 sera utilisé au prochain démarrage.</translation>
    </message>
</context>
<context>
    <name>LaunchForm</name>
    <message>
        <source>Launch</source>
        <extracomment>Heading of the form of a Launch key: the action that starts a program or opens a file (a verb).</extracomment>
        <translation>Lancer</translation>
    </message>
    <message>
        <source>A program, script, document or folder</source>
        <translation>Un programme, un script, un document ou un dossier</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Choose file…</source>
        <translation>Choisir un fichier…</translation>
    </message>
    <message>
        <source>Choose application…</source>
        <translation>Choisir une application…</translation>
    </message>
    <message>
        <source>Use as title</source>
        <translation>Utiliser comme titre</translation>
    </message>
    <message>
        <source>Use &quot;%1&quot; as the title?</source>
        <translation>Utiliser «&#xa0;%1&#xa0;» comme titre&#x202f;?</translation>
    </message>
</context>
<context>
    <name>LayoutPage</name>
    <message>
        <source>Choose the keypad you use and how you hold it. The editor and the keypad change at once; every layout keeps its own keys.</source>
        <translation>Choisissez le pavé que vous utilisez et son orientation. L’éditeur et le pavé changent aussitôt&#x202f;; chaque disposition garde ses propres touches.</translation>
    </message>
    <message>
        <source>Keypad size</source>
        <translation>Taille du pavé</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontale</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Verticale</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Disposition</translation>
    </message>
</context>
<context>
    <name>LayoutText</name>
    <message>
        <source>%1 keys</source>
        <translation>%1 touches</translation>
    </message>
    <message>
        <source>%1 keys, vertical</source>
        <translation>%1 touches, vertical</translation>
    </message>
    <message>
        <source>%1 keys, horizontal</source>
        <translation>%1 touches, horizontal</translation>
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
        <translation>Réseau o/s</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>Record</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>&amp;Steps:</source>
        <translation>É&amp;tapes&#xa0;:</translation>
    </message>
    <message>
        <source>Steps:</source>
        <translation>Étapes&#xa0;:</translation>
    </message>
    <message>
        <source>Insert key…</source>
        <translation>Insérer une touche…</translation>
    </message>
    <message>
        <source>Add text…</source>
        <translation>Ajouter du texte…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Removes every step of the macro.</extracomment>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Add the missing releases</source>
        <translation>Ajouter les relâchements manquants</translation>
    </message>
    <message>
        <source>Recording: press the keys of the macro. Esc alone or Stop ends the recording.</source>
        <translation>Enregistrement&#xa0;: appuyez sur les touches de la macro. Échap seul ou Arrêter termine l’enregistrement.</translation>
    </message>
    <message numerus="yes">
        <source>%n key(s) that cannot be typed left out.</source>
        <translation>
            <numerusform>%n touche impossible à taper a été omise.</numerusform>
            <numerusform>%n touches impossibles à taper ont été omises.</numerusform>
        </translation>
    </message>
    <message>
        <source>The macro leaves %1 held down: it stays pressed after the macro has played.</source>
        <translation>La macro laisse %1 enfoncée&#xa0;: elle reste appuyée après la lecture de la macro.</translation>
    </message>
    <message numerus="yes">
        <source>Recording: press the keys of the macro. Esc alone or Stop ends the recording. %n key(s) that cannot be typed left out.</source>
        <translation>
            <numerusform>Enregistrement&#xa0;: appuyez sur les touches de la macro. Échap seul ou Arrêter termine l’enregistrement. %n touche impossible à taper a été omise.</numerusform>
            <numerusform>Enregistrement&#xa0;: appuyez sur les touches de la macro. Échap seul ou Arrêter termine l’enregistrement. %n touches impossibles à taper ont été omises.</numerusform>
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
        <translation>Étapes</translation>
    </message>
</context>
<context>
    <name>MacroStepModel</name>
    <message>
        <source>Down</source>
        <extracomment>A macro step presses (Down) or releases (Up) a key; read aloud after the key name.</extracomment>
        <translation>Appui</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Relâchement</translation>
    </message>
    <message>
        <source>%1: %2 %3</source>
        <extracomment>A macro step, as a screen reader reads it: &quot;3: Shift down&quot;.</extracomment>
        <translation>%1&#xa0;: %2 %3</translation>
    </message>
    <message>
        <source>Key</source>
        <extracomment>Column header: the keyboard key a macro step presses or releases.</extracomment>
        <translation>Touche</translation>
    </message>
    <message>
        <source>Press or release</source>
        <translation>Appui ou relâchement</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Hotkeys and macros cannot type keys.</source>
        <translation>Les raccourcis clavier et les macros ne peuvent pas taper de touches.</translation>
    </message>
    <message>
        <source>Your settings were damaged and have been reset.</source>
        <translation>Vos paramètres étaient endommagés et ont été réinitialisés.</translation>
    </message>
    <message>
        <source>The damaged file was kept as %1.</source>
        <translation>Le fichier endommagé a été conservé sous %1.</translation>
    </message>
    <message>
        <source>No keypad connected</source>
        <translation>Aucun pavé connecté</translation>
    </message>
    <message>
        <source>Virtual keypad connected</source>
        <translation>Pavé virtuel connecté</translation>
    </message>
    <message>
        <source>Keypad connected</source>
        <translation>Pavé connecté</translation>
    </message>
    <message>
        <source>Keypad found, but no permission to use it. %1</source>
        <translation>Pavé trouvé, mais sans autorisation de l’utiliser. %1</translation>
    </message>
    <message>
        <source>Keypad status: %1</source>
        <translation>État du pavé&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 could not be imported.</source>
        <translation>%1 n’a pas pu être importé.</translation>
    </message>
    <message>
        <source>Replace the keys of this layout?</source>
        <translation>Remplacer les touches de cette disposition&#x202f;?</translation>
    </message>
    <message>
        <source>The keys of the current layout are replaced by those of %1. You can&apos;t undo this action.</source>
        <translation>Les touches de la disposition actuelle sont remplacées par celles de %1. Cette action est irréversible.</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>The desktop companion of your LCD macro keypad.</source>
        <translation>Le compagnon de bureau de votre pavé de macros à écrans LCD.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>%1 cannot quit now.</source>
        <translation>%1 ne peut pas quitter maintenant.</translation>
    </message>
    <message numerus="yes">
        <source>The keys of the current layout are replaced by those of %1. You can&apos;t undo this action.
%n key(s) do not fit this layout and will be lost.</source>
        <translation>
            <numerusform>Les touches de la disposition actuelle sont remplacées par celles de %1. Cette action est irréversible.
%n touche ne tient pas dans cette disposition et sera perdue.</numerusform>
            <numerusform>Les touches de la disposition actuelle sont remplacées par celles de %1. Cette action est irréversible.
%n touches ne tiennent pas dans cette disposition et seront perdues.</numerusform>
        </translation>
    </message>
    <message>
        <source>Hotkeys and macros type into X applications only.</source>
        <translation>Les raccourcis clavier et les macros ne tapent que dans les applications X.</translation>
    </message>
    <message>
        <source>Your settings cannot be saved.</source>
        <translation>Vos paramètres ne peuvent pas être enregistrés.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. Your changes are kept while %3 runs and saved as soon as the file can be written again.</source>
        <translation>Impossible d’écrire %1&#xa0;: %2. Vos modifications sont conservées tant que %3 fonctionne et seront enregistrées dès que le fichier pourra de nouveau être écrit.</translation>
    </message>
</context>
<context>
    <name>PreferenceDialog</name>
    <message>
        <source>%1 Settings</source>
        <translation>Paramètres de %1</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>Pages des paramètres</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>The settings cannot be closed now.</source>
        <translation>Les paramètres ne peuvent pas être fermés maintenant.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Do you want to update firmware?</source>
        <translation>Voulez-vous mettre à jour le micrologiciel&#x202f;?</translation>
    </message>
    <message>
        <source>Firmware version %1 is now available - current version %2 Would you like to update now?</source>
        <extracomment>%1 is the firmware this program carries, %2 the firmware on the keypad.</extracomment>
        <translation>La version %1 du micrologiciel est disponible&#x202f;; version actuelle&#xa0;: %2. Voulez-vous mettre à jour maintenant&#x202f;?</translation>
    </message>
    <message>
        <source>Choose an image</source>
        <translation>Choisir une image</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>Images (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Choose a program</source>
        <translation>Choisir un programme</translation>
    </message>
    <message>
        <source>Choose a program, script, document or folder</source>
        <translation>Choisir un programme, un script, un document ou un dossier</translation>
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
        <translation>Maj</translation>
    </message>
</context>
<context>
    <name>ResetPage</name>
    <message>
        <source>Removes every key you made, on all six layouts, folders included, and puts back the keys a new installation starts with. My Favorite and the other settings stay. To keep a copy, use &quot;Back up everything&quot; under Import and export first.</source>
        <translation>Supprime toutes les touches que vous avez créées, sur les six dispositions, dossiers compris, et remet les touches d’une nouvelle installation. Mes favoris et les autres paramètres sont conservés. Pour garder une copie, utilisez d’abord «&#xa0;Tout sauvegarder&#xa0;» dans Importation et exportation.</translation>
    </message>
    <message>
        <source>Reset all keys…</source>
        <translation>Réinitialiser toutes les touches…</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Are you sure you want to reset the keys of every layout?</source>
        <translation>Voulez-vous vraiment réinitialiser les touches de toutes les dispositions&#x202f;?</translation>
    </message>
    <message>
        <source>You can&apos;t undo this action.</source>
        <translation>Cette action est irréversible.</translation>
    </message>
    <message>
        <source>Every layout has its default keys again.</source>
        <translation>Chaque disposition a retrouvé ses touches par défaut.</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The file cannot be read.</source>
        <translation>Le fichier ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The file is not a Keystage layout or favourites file.</source>
        <translation>Le fichier n’est pas un fichier de disposition ou de favoris Keystage.</translation>
    </message>
    <message>
        <source>The file was changed or damaged after it was exported: its checksum does not match.</source>
        <translation>Le fichier a été modifié ou endommagé après son exportation&#xa0;: sa somme de contrôle ne correspond pas.</translation>
    </message>
</context>
<context>
    <name>SoftwareUpdate</name>
    <message>
        <source>Checking for updates is turned off.</source>
        <translation>La recherche de mises à jour est désactivée.</translation>
    </message>
    <message>
        <source>This build names an update address that is not HTTPS; it is not used.</source>
        <translation>Cette version indique une adresse de mise à jour qui n’est pas en HTTPS&#x202f;; elle n’est pas utilisée.</translation>
    </message>
    <message>
        <source>The update information is too large.</source>
        <translation>Les informations de mise à jour sont trop volumineuses.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>Le téléchargement a été annulé.</translation>
    </message>
    <message>
        <source>The update server answered with HTTP status %1.</source>
        <translation>Le serveur de mises à jour a répondu avec le code HTTP %1.</translation>
    </message>
    <message>
        <source>The update server did not answer in time.</source>
        <translation>Le serveur de mises à jour n’a pas répondu à temps.</translation>
    </message>
    <message>
        <source>The update server could not be reached: %1</source>
        <translation>Le serveur de mises à jour est injoignable&#xa0;: %1</translation>
    </message>
    <message>
        <source>Keystage %1 is up to date.</source>
        <translation>Keystage %1 est à jour.</translation>
    </message>
    <message>
        <source>Keystage %1 is available. You have %2.</source>
        <translation>Keystage %1 est disponible. Vous avez la version %2.</translation>
    </message>
    <message>
        <source>Downloading Keystage %1…</source>
        <translation>Téléchargement de Keystage %1…</translation>
    </message>
    <message>
        <source>The download cannot be saved: %1</source>
        <translation>Le téléchargement ne peut pas être enregistré&#xa0;: %1</translation>
    </message>
    <message>
        <source>The package is larger than %1 MB; it is not downloaded.</source>
        <translation>Le paquet dépasse %1 Mo&#x202f;; il n’est pas téléchargé.</translation>
    </message>
    <message>
        <source>The download ended early: %1 of %2 bytes arrived.</source>
        <translation>Le téléchargement s’est arrêté trop tôt&#xa0;: %1 octets sur %2 reçus.</translation>
    </message>
    <message>
        <source>The downloaded package does not match the checksum the update server gave, so it was deleted.</source>
        <translation>Le paquet téléchargé ne correspond pas à la somme de contrôle donnée par le serveur de mises à jour&#x202f;; il a donc été supprimé.</translation>
    </message>
    <message>
        <source>No package installer could be opened. The verified package is saved as %1.</source>
        <translation>Aucun installateur de paquets n’a pu être ouvert. Le paquet vérifié est enregistré sous %1.</translation>
    </message>
    <message>
        <source>The package installer has opened Keystage %1. Once it has installed it, restart Keystage to use the new version.</source>
        <translation>L’installateur de paquets a ouvert Keystage %1. Une fois l’installation terminée, redémarrez Keystage pour utiliser la nouvelle version.</translation>
    </message>
</context>
<context>
    <name>SoftwareUpdatePage</name>
    <message>
        <source>Keystage is updated by your distribution&apos;s package manager, together with the rest of the system. Use your software centre or package manager to get new versions.</source>
        <translation>Keystage est mis à jour par le gestionnaire de paquets de votre distribution, avec le reste du système. Utilisez votre logithèque ou votre gestionnaire de paquets pour obtenir les nouvelles versions.</translation>
    </message>
    <message>
        <source>Updates normally come from your distribution&apos;s package manager. Keystage can also look for a newer release itself; it connects to the network only while this is turned on.</source>
        <translation>Les mises à jour viennent normalement du gestionnaire de paquets de votre distribution. Keystage peut aussi rechercher lui-même une version plus récente&#x202f;; il ne se connecte au réseau que si cette option est activée.</translation>
    </message>
    <message>
        <source>Check for &amp;updates</source>
        <translation>Rechercher des &amp;mises à jour</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>Rechercher mai&amp;ntenant</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installer</translation>
    </message>
    <message>
        <source>&amp;Cancel download</source>
        <translation>&amp;Annuler le téléchargement</translation>
    </message>
    <message>
        <source>&amp;Restart Keystage</source>
        <translation>&amp;Redémarrer Keystage</translation>
    </message>
    <message>
        <source>Download progress</source>
        <translation>Progression du téléchargement</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Mise à jour du logiciel</translation>
    </message>
    <message>
        <source>Keystage is still downloading the update. Wait until it has finished, or cancel the download.</source>
        <translation>Keystage télécharge encore la mise à jour. Attendez la fin du téléchargement, ou annulez-le.</translation>
    </message>
    <message>
        <source>What is new:</source>
        <translation>Nouveautés&#xa0;:</translation>
    </message>
</context>
<context>
    <name>StartAtLoginPage</name>
    <message>
        <source>Start %1 when I log in</source>
        <translation>Lancer %1 à l’ouverture de session</translation>
    </message>
    <message>
        <source>%1 starts in the tray, so the keypad works from the start without a window in the way. The desktop reads this from %2.</source>
        <translation>%1 démarre dans la zone de notification, pour que le pavé fonctionne dès le début sans fenêtre qui gêne. Le bureau lit ce réglage dans %2.</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Lancer à l’ouverture de session</translation>
    </message>
    <message>
        <source>This could not be changed: %1</source>
        <translation>Impossible de modifier ce réglage&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>TextStringForm</name>
    <message>
        <source>Text String</source>
        <extracomment>Heading of the form of a key that types a stored text.</extracomment>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>The key pastes the text through the clipboard, and the text stays on the clipboard afterwards.</source>
        <translation>La touche colle le texte par le presse-papiers, et le texte reste ensuite dans le presse-papiers.</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>TitleStyleDialog</name>
    <message>
        <source>Title Style</source>
        <translation>Style du titre</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>&amp;Police&#xa0;:</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Taille&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Gras</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Italique</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>&amp;Souligné</translation>
    </message>
    <message>
        <source>&amp;Color…</source>
        <translation>&amp;Couleur…</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>Couleur&#xa0;:</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>Position&#xa0;:</translation>
    </message>
    <message>
        <source>The key on the keypad</source>
        <translation>La touche sur le pavé</translation>
    </message>
    <message>
        <source>The key in the editor&apos;s grid</source>
        <translation>La touche dans la grille de l’éditeur</translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation>Aperçu&#xa0;:</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Top center</source>
        <translation>En haut au centre</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation>Au milieu à gauche</translation>
    </message>
    <message>
        <source>Middle center</source>
        <translation>Au centre</translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation>Au milieu à droite</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Bottom center</source>
        <translation>En bas au centre</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>Title Color</source>
        <translation>Couleur du titre</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Virtual Keypad</source>
        <translation>Pavé virtuel</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
</context>
<context>
    <name>TreeView</name>
    <message>
        <source>Home</source>
        <extracomment>The top page of the keypad, above every folder.</extracomment>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Folder tree</source>
        <translation>Arborescence des dossiers</translation>
    </message>
</context>
<context>
    <name>UpdateFeed</name>
    <message>
        <source>The update information is too large.</source>
        <translation>Les informations de mise à jour sont trop volumineuses.</translation>
    </message>
    <message>
        <source>The update information is not readable.</source>
        <translation>Les informations de mise à jour sont illisibles.</translation>
    </message>
    <message>
        <source>The update information has no valid version.</source>
        <translation>Les informations de mise à jour n’ont pas de version valide.</translation>
    </message>
    <message>
        <source>The update information has no valid package address (an HTTPS address of a .deb package).</source>
        <translation>Les informations de mise à jour n’ont pas d’adresse de paquet valide (une adresse HTTPS d’un paquet .deb).</translation>
    </message>
    <message>
        <source>The update information has no valid SHA-256 checksum.</source>
        <translation>Les informations de mise à jour n’ont pas de somme de contrôle SHA-256 valide.</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
</context>
<context>
    <name>VirtualKeypadWindow</name>
    <message>
        <source>Virtual Keypad</source>
        <translation>Pavé virtuel</translation>
    </message>
    <message>
        <source>unplugged</source>
        <translation>débranché</translation>
    </message>
</context>
<context>
    <name>WebsiteForm</name>
    <message>
        <source>Website</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>example.com or https://…</source>
        <translation>example.com ou https://…</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Choose bookmark…</source>
        <translation>Choisir un marque-page…</translation>
    </message>
    <message>
        <source>An address without &quot;https://&quot; opens as &quot;http://&quot;.</source>
        <translation>Une adresse sans «&#xa0;https://&#xa0;» s’ouvre en «&#xa0;http://&#xa0;».</translation>
    </message>
</context>
<context>
    <name>WindowSystem</name>
    <message>
        <source>This desktop does not tell which application is in front, so folders cannot open by application. On Wayland, sway, Hyprland, KDE Plasma and GNOME (with Keystage&apos;s extension) do.</source>
        <translation>Ce bureau n’indique pas quelle application est au premier plan&#xa0;: les dossiers ne peuvent donc pas s’ouvrir selon l’application. Sous Wayland, sway, Hyprland, KDE Plasma et GNOME (avec l’extension de Keystage) le permettent.</translation>
    </message>
</context>
</TS>
