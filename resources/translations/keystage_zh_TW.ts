<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>AboutPage</name>
    <message>
        <source>%1, version %2</source>
        <translation>%1 版本 %2</translation>
    </message>
    <message>
        <source>The desktop companion of your LCD macro keypad.</source>
        <translation>您的 LCD 巨集按鍵面板的桌面夥伴。</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>授權條款</translation>
    </message>
    <message>
        <source>%1 is free software: you can redistribute it and modify it under the terms of the GNU General Public License, version 3 or any later version. It comes with no warranty. It is built with Qt %2, used under the GNU Lesser General Public License version 3. Key titles are drawn with the Liberation Sans fonts, used under the SIL Open Font License 1.1.</source>
        <translation>%1 是自由軟體：您可以依照 GNU 通用公共授權條款 (GPL) 第 3 版或任何更新版本的條款，重新散布及修改本程式。本程式不提供任何擔保。本程式以 Qt %2 建置，Qt 依 GNU 較寬鬆通用公共授權條款 (LGPL) 第 3 版使用。按鍵標題使用 Liberation Sans 字型繪製，該字型依 SIL Open Font License 1.1 使用。</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>關於 Qt</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Log files</source>
        <translation>記錄檔</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>開啟記錄檔資料夾</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>設定檔</translation>
    </message>
    <message>
        <source>Open settings folder</source>
        <translation>開啟設定資料夾</translation>
    </message>
    <message>
        <source>The settings file carries a checksum: a file changed by hand is not loaded, and the settings start over.</source>
        <translation>設定檔帶有檢查碼：手動修改過的檔案不會載入，設定將重新開始。</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
</context>
<context>
    <name>Accessibility</name>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
</context>
<context>
    <name>ActionList</name>
    <message>
        <source>Actions</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Hotkey</source>
        <translation>快捷鍵</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>巨集</translation>
    </message>
    <message>
        <source>Launch</source>
        <extracomment>The action that starts a program or opens a file or folder.</extracomment>
        <translation>啟動</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>網站</translation>
    </message>
    <message>
        <source>Text String</source>
        <translation>文字串</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>My Favorite</source>
        <translation>我的最愛</translation>
    </message>
</context>
<context>
    <name>AddTextDialog</name>
    <message>
        <source>Add text</source>
        <translation>加入文字</translation>
    </message>
    <message>
        <source>Each character becomes a press and a release of the key that types it on a US keyboard, with Shift where a US keyboard needs it, the way the keypad types on every desktop. With another keyboard layout active some characters come out differently, and characters a US keyboard lacks are left out. To insert any text as it is, use a Text String key instead.</source>
        <translation>每個字元都會轉換成在美式鍵盤上輸入該字元的按鍵的按下與放開，美式鍵盤需要時會加上 Shift；按鍵面板在每種桌面環境都是這樣輸入的。若啟用了其他鍵盤配置，部分字元的輸出會不同，美式鍵盤上沒有的字元則會略過。若要原樣插入任何文字，請改用「文字串」按鍵。</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>文字(&amp;T)：</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>文字：</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>加入</translation>
    </message>
    <message numerus="yes">
        <source>%n step(s)</source>
        <translation>
            <numerusform>%n 個步驟</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n step(s). Left out: %1</source>
        <extracomment>%1 lists the characters that cannot be typed.</extracomment>
        <translation>
            <numerusform>%n 個步驟。已略過：%1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ApplicationChooser</name>
    <message>
        <source>Choose Application</source>
        <translation>選擇應用程式</translation>
    </message>
    <message>
        <source>&amp;Installed</source>
        <translation>已安裝(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Running</source>
        <translation>執行中(&amp;R)</translation>
    </message>
    <message>
        <source>Where the applications come from</source>
        <translation>應用程式的來源</translation>
    </message>
    <message>
        <source>&amp;Applications:</source>
        <translation>應用程式(&amp;A)：</translation>
    </message>
    <message>
        <source>Looking for running applications…</source>
        <translation>正在尋找執行中的應用程式…</translation>
    </message>
    <message>
        <source>Looking for installed applications…</source>
        <translation>正在尋找已安裝的應用程式…</translation>
    </message>
    <message>
        <source>This desktop does not tell which applications are running.</source>
        <translation>此桌面環境不提供哪些應用程式正在執行的資訊。</translation>
    </message>
    <message>
        <source>No applications found.</source>
        <translation>找不到應用程式。</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>無法建立資料夾 %1。</translation>
    </message>
    <message>
        <source>Starts %1 in the tray at login</source>
        <translation>登入時於系統匣中啟動 %1</translation>
    </message>
</context>
<context>
    <name>BookmarkChooser</name>
    <message>
        <source>Choose Bookmark</source>
        <translation>選擇書籤</translation>
    </message>
    <message>
        <source>&amp;Bookmarks:</source>
        <translation>書籤(&amp;B)：</translation>
    </message>
    <message>
        <source>&amp;Use the page title as the key title</source>
        <translation>使用網頁標題作為按鍵標題(&amp;U)</translation>
    </message>
    <message>
        <source>Reading the browsers&apos; bookmarks…</source>
        <translation>正在讀取瀏覽器的書籤…</translation>
    </message>
    <message>
        <source>Title</source>
        <extracomment>Column header: the name of a browser bookmark.</extracomment>
        <translation>標題</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>網址</translation>
    </message>
    <message>
        <source>No bookmarks of Firefox, Chromium, Google Chrome, Brave, Vivaldi or Microsoft Edge found.</source>
        <translation>找不到 Firefox、Chromium、Google Chrome、Brave、Vivaldi 或 Microsoft Edge 的書籤。</translation>
    </message>
</context>
<context>
    <name>ChooserDialog</name>
    <message>
        <source>&amp;Search:</source>
        <translation>搜尋(&amp;S)：</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>重新整理(&amp;F)</translation>
    </message>
</context>
<context>
    <name>ConfigurationBackup</name>
    <message>
        <source>%1 backup %2</source>
        <translation>%1 備份 %2</translation>
    </message>
    <message>
        <source>My Favorite</source>
        <translation>我的最愛</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>資料夾 %1 不存在。</translation>
    </message>
    <message>
        <source>No folder can be made in %1.</source>
        <translation>無法在 %1 中建立資料夾。</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>無法寫入 %1：%2</translation>
    </message>
    <message>
        <source>Layout %1 keys vertical</source>
        <extracomment>A file name: the keypad&apos;s size, then its orientation.</extracomment>
        <translation>配置 %1 鍵 直向</translation>
    </message>
    <message>
        <source>Layout %1 keys horizontal</source>
        <translation>配置 %1 鍵 橫向</translation>
    </message>
</context>
<context>
    <name>ControlAdaptor</name>
    <message>
        <source>No folder titled &quot;%1&quot; on the root page.</source>
        <translation>根頁面上沒有標題為「%1」的資料夾。</translation>
    </message>
    <message>
        <source>Key %1 is not on the keypad (0 to %2).</source>
        <translation>按鍵面板上沒有按鍵 %1（0 到 %2）。</translation>
    </message>
    <message>
        <source>Key %1 of the root page is not a folder.</source>
        <translation>根頁面的按鍵 %1 不是資料夾。</translation>
    </message>
    <message>
        <source>Key %1 has no action on this page.</source>
        <translation>此頁面上的按鍵 %1 沒有動作。</translation>
    </message>
    <message>
        <source>Brightness %1 is outside %2 to %3.</source>
        <translation>亮度 %1 不在 %2 到 %3 之間。</translation>
    </message>
    <message>
        <source>Layout %1 does not exist (0 to %2).</source>
        <translation>配置 %1 不存在（0 到 %2）。</translation>
    </message>
</context>
<context>
    <name>Dialog</name>
    <message>
        <source>Dialog</source>
        <translation>對話框</translation>
    </message>
    <message>
        <source>icon</source>
        <translation>圖示</translation>
    </message>
    <message>
        <source>subject text</source>
        <translation>主旨</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>不再顯示</translation>
    </message>
    <message>
        <source>other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>DimmingPage</name>
    <message>
        <source>Dimming</source>
        <translation>調暗</translation>
    </message>
    <message>
        <source>Dim the keypad after</source>
        <translation>無按鍵操作</translation>
    </message>
    <message>
        <source>minutes without a key press</source>
        <translation>分鐘後調暗按鍵面板</translation>
    </message>
    <message>
        <source>Minutes without a key press</source>
        <translation>無按鍵操作的分鐘數</translation>
    </message>
    <message>
        <source>Dimmed brightness:</source>
        <translation>調暗後的亮度：</translation>
    </message>
    <message>
        <source>Dimmed brightness</source>
        <translation>調暗後的亮度</translation>
    </message>
    <message>
        <source>Turn the keypad off while the screen is locked</source>
        <translation>螢幕鎖定時關閉按鍵面板</translation>
    </message>
    <message>
        <source>The next key press brings the brightness back; that press does nothing else.</source>
        <translation>下一次按鍵會恢復亮度；該次按鍵不會執行其他動作。</translation>
    </message>
    <message>
        <source>Unavailable: the keypad connection is not running.</source>
        <translation>無法使用：與按鍵面板的連線未在執行。</translation>
    </message>
    <message>
        <source>Unavailable: neither logind nor a screen saver reports screen locks on this desktop (D-Bus).</source>
        <translation>無法使用：此桌面環境中 logind 與螢幕保護程式都不會回報螢幕鎖定 (D-Bus)。</translation>
    </message>
</context>
<context>
    <name>EmojiCatalog</name>
    <message>
        <source>The list of emoji (%1) cannot be read. Install the package unicode-data.</source>
        <translation>無法讀取表情符號清單 (%1)。請安裝 unicode-data 套件。</translation>
    </message>
    <message>
        <source>The list of emoji (%1) is not valid.</source>
        <translation>表情符號清單 (%1) 無效。</translation>
    </message>
    <message>
        <source>The list of emoji holds no emoji.</source>
        <translation>表情符號清單中沒有任何表情符號。</translation>
    </message>
</context>
<context>
    <name>EmojiNames</name>
    <message>
        <source>en</source>
        <extracomment>The Unicode CLDR locale whose emoji names suit this language: ja, zh_Hant, de, fr or it. Not shown.</extracomment>
        <translation>zh_Hant</translation>
    </message>
</context>
<context>
    <name>FaceEditor</name>
    <message>
        <source>Shown on the key</source>
        <translation>顯示在按鍵上</translation>
    </message>
    <message>
        <source>Style…</source>
        <translation>樣式…</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>圖示</translation>
    </message>
    <message>
        <source>Choose icon…</source>
        <translation>選擇圖示…</translation>
    </message>
    <message>
        <source>Use default icon</source>
        <translation>使用預設圖示</translation>
    </message>
    <message>
        <source>Of the second hotkey</source>
        <translation>用於第二組快捷鍵</translation>
    </message>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>處理器</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>記憶體</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>網路</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>時鐘</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Live content:</source>
        <translation>即時內容：</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>圖表</translation>
    </message>
    <message>
        <source>A graph of the last minute under the value</source>
        <translation>在數值下方顯示最近一分鐘的圖表</translation>
    </message>
</context>
<context>
    <name>Favorite</name>
    <message>
        <source>My Favorite</source>
        <translation>我的最愛</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Empty slot</source>
        <translation>空位</translation>
    </message>
    <message>
        <source>Usage: %1 / %2</source>
        <translation>使用量：%1 / %2</translation>
    </message>
    <message>
        <source>Are you sure you want to reset all favorite items?</source>
        <translation>確定要重設所有最愛項目嗎？</translation>
    </message>
    <message>
        <source>You can&apos;t undo this action.</source>
        <translation>此動作無法復原。</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>刪除(&amp;D)</translation>
    </message>
</context>
<context>
    <name>FavoriteKeyItemModel</name>
    <message>
        <source>You have reached the limit of &quot;My Favorite&quot;.</source>
        <translation>「我的最愛」已達上限。</translation>
    </message>
    <message>
        <source>Import %1 fails.</source>
        <translation>匯入 %1 失敗。</translation>
    </message>
    <message>
        <source>The limit of &quot;My Favorite&quot; is %1 items.</source>
        <translation>「我的最愛」的上限為 %1 個項目。</translation>
    </message>
    <message>
        <source>You already have %1 item in &quot;My Favorite.&quot; If continues, %2 item will be lost. Are you sure you want to proceed?</source>
        <translation>「我的最愛」中已有 %1 個項目。若繼續，將會遺失 %2 個項目。確定要繼續嗎？</translation>
    </message>
</context>
<context>
    <name>FirefoxBookmarks</name>
    <message>
        <source>Bookmarks Menu</source>
        <translation>書籤選單</translation>
    </message>
    <message>
        <source>Bookmarks Toolbar</source>
        <translation>書籤工具列</translation>
    </message>
    <message>
        <source>Other Bookmarks</source>
        <translation>其他書籤</translation>
    </message>
    <message>
        <source>Mobile Bookmarks</source>
        <translation>行動裝置書籤</translation>
    </message>
</context>
<context>
    <name>FirmwarePage</name>
    <message>
        <source>The keypad runs firmware of its own. This program carries the newest firmware it knows for each keypad model and can install it.</source>
        <translation>按鍵面板執行自己的韌體。本程式內含它所知各款按鍵面板的最新韌體，並可進行安裝。</translation>
    </message>
    <message>
        <source>Keypad:</source>
        <translation>按鍵面板：</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>序號：</translation>
    </message>
    <message>
        <source>Installed firmware:</source>
        <translation>已安裝的韌體：</translation>
    </message>
    <message>
        <source>Firmware in this program:</source>
        <translation>本程式內含的韌體：</translation>
    </message>
    <message>
        <source>&amp;Update firmware…</source>
        <translation>更新韌體(&amp;U)…</translation>
    </message>
    <message>
        <source>Update progress</source>
        <translation>更新進度</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>韌體</translation>
    </message>
    <message>
        <source>The firmware update is still running. Closing now could leave the keypad unusable.</source>
        <translation>韌體更新仍在進行中。現在關閉可能會使按鍵面板無法使用。</translation>
    </message>
    <message>
        <source>Reading the keypad…</source>
        <translation>正在讀取按鍵面板…</translation>
    </message>
    <message>
        <source>No keypad connected</source>
        <translation>未連接按鍵面板</translation>
    </message>
    <message>
        <source>The keypad does not tell its firmware version. Unplug it, plug it in again and try once more.</source>
        <translation>按鍵面板未回報韌體版本。請拔下後重新插入，再試一次。</translation>
    </message>
    <message>
        <source>This program has no firmware for this keypad (%1), so there is no update to offer.</source>
        <translation>本程式沒有適用於此按鍵面板 (%1) 的韌體，因此沒有可提供的更新。</translation>
    </message>
    <message>
        <source>Updating the firmware. Keep the keypad plugged in; its keys do nothing until the update ends.</source>
        <translation>正在更新韌體。請保持按鍵面板連接；更新完成前其按鍵不會有任何作用。</translation>
    </message>
    <message>
        <source>The firmware was updated.</source>
        <translation>韌體已更新。</translation>
    </message>
    <message>
        <source>The firmware update failed. Keep the keypad plugged in and try again. If it stays dark, unplug it and plug it in again.</source>
        <translation>韌體更新失敗。請保持按鍵面板連接並再試一次。若按鍵面板一直沒有亮起，請拔下後重新插入。</translation>
    </message>
</context>
<context>
    <name>FolderForm</name>
    <message>
        <source>Folder</source>
        <extracomment>Heading of the form of a folder key: a key that opens a page of more keys.</extracomment>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>No application</source>
        <translation>無應用程式</translation>
    </message>
    <message>
        <source>Open this folder when an application comes to the front</source>
        <translation>當某個應用程式切換到前景時開啟此資料夾</translation>
    </message>
    <message>
        <source>Choose application…</source>
        <translation>選擇應用程式…</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>瀏覽…</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Forgets the application that opens this folder.</extracomment>
        <translation>清除</translation>
    </message>
    <message>
        <source>The folder no longer opens by itself</source>
        <translation>此資料夾不再自動開啟</translation>
    </message>
</context>
<context>
    <name>ForegroundSource</name>
    <message>
        <source>Folders open by application: %1 tells which is in front.</source>
        <translation>資料夾會依應用程式開啟：%1 會告知哪個應用程式在前景。</translation>
    </message>
    <message>
        <source>Folders open by application: the Keystage Focus extension of GNOME Shell tells which is in front.</source>
        <translation>資料夾會依應用程式開啟：GNOME Shell 擴充套件 Keystage Focus 會告知哪個應用程式在前景。</translation>
    </message>
    <message>
        <source>To open folders by application, turn on the Keystage Focus extension in Extensions, or run: gnome-extensions enable %1</source>
        <translation>若要依應用程式開啟資料夾，請在「擴充套件」中啟用 Keystage Focus，或執行：gnome-extensions enable %1</translation>
    </message>
    <message>
        <source>To open folders by application on GNOME, install Keystage&apos;s GNOME Shell extension (%1) and turn it on.</source>
        <translation>若要在 GNOME 上依應用程式開啟資料夾，請安裝 Keystage 的 GNOME Shell 擴充套件（%1）並啟用它。</translation>
    </message>
    <message>
        <source>Folders cannot open by application: there is no session bus to ask KWin.</source>
        <translation>資料夾無法依應用程式開啟：沒有可詢問 KWin 的工作階段匯流排。</translation>
    </message>
    <message>
        <source>This compositor does not tell which application is in front, so folders cannot open by application. Compositors that offer wlroots&apos; toplevel list do (sway, river, labwc, Wayfire, Hyprland).</source>
        <translation>此合成器不會告知哪個應用程式在前景，因此資料夾無法依應用程式開啟。提供 wlroots 視窗清單的合成器可以做到（sway、river、labwc、Wayfire、Hyprland）。</translation>
    </message>
    <message>
        <source>Folders open by application: the compositor&apos;s toplevel list tells which is in front.</source>
        <translation>資料夾會依應用程式開啟：合成器的視窗清單會告知哪個應用程式在前景。</translation>
    </message>
</context>
<context>
    <name>FunctionDescription</name>
    <message>
        <source>Folder
Store an organized group of key actions. Folder can be linked to an application, and folder will open automatically when the application is launched.</source>
        <translation>資料夾
存放一組整理好的按鍵動作。資料夾可以與應用程式連結，當該應用程式啟動時，資料夾會自動開啟。</translation>
    </message>
    <message>
        <source>Hotkey
A key or a combination of keys used together to perform a task or function on the operating system or applications. Recall the hotkey action by pressing on the button.</source>
        <translation>快捷鍵
一個按鍵或一組同時使用的按鍵組合，用來在作業系統或應用程式中執行工作或功能。按下按鈕即可執行快捷鍵動作。</translation>
    </message>
    <message>
        <source>Macro key
A sequence of commands or keyboard strokes stored in the assigned key. Recall the macro key action by pressing on the button.</source>
        <translation>巨集
儲存在指定按鍵中的一連串指令或鍵盤輸入。按下按鈕即可執行巨集。</translation>
    </message>
    <message>
        <source>Launch
Execute an application, file, folder path, or command-line by pressing on the button.</source>
        <translation>啟動
按下按鈕即可執行應用程式、檔案、資料夾路徑或命令列。</translation>
    </message>
    <message>
        <source>Website
Search the web or navigate the site by pressing on the button.</source>
        <translation>網站
按下按鈕即可搜尋網路或瀏覽網站。</translation>
    </message>
    <message>
        <source>Text String
A sequence of characters defined by users. Text string can be text message, source code or script that stored in the assigned key. Recall the text string by pressing on the button.</source>
        <translation>文字串
使用者定義的一串字元。文字串可以是文字訊息、原始碼或指令碼，儲存在指定的按鍵中。按下按鈕即可輸入文字串。</translation>
    </message>
    <message>
        <source>Drag an action from above list and drop into section on the left.</source>
        <translation>從上方清單拖曳一個動作，放到左側的按鍵上。</translation>
    </message>
</context>
<context>
    <name>HotkeyForm</name>
    <message>
        <source>Hotkey</source>
        <extracomment>Heading of the form of a hotkey: a keypad key that types a keyboard shortcut.</extracomment>
        <translation>快捷鍵</translation>
    </message>
    <message>
        <source>Key combination</source>
        <translation>按鍵組合</translation>
    </message>
    <message>
        <source>Toggle between two hotkeys</source>
        <translation>在兩組快捷鍵之間切換</translation>
    </message>
    <message>
        <source>Second key combination</source>
        <translation>第二組按鍵組合</translation>
    </message>
    <message>
        <source>Second title</source>
        <translation>第二個標題</translation>
    </message>
    <message>
        <source>The keypad shows the first hotkey now.</source>
        <translation>按鍵面板現在顯示第一組快捷鍵。</translation>
    </message>
    <message>
        <source>The keypad shows the second hotkey now.</source>
        <translation>按鍵面板現在顯示第二組快捷鍵。</translation>
    </message>
</context>
<context>
    <name>HotkeyRecorder</name>
    <message>
        <source>Press a key combination</source>
        <translation>請按下按鍵組合</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>未設定</translation>
    </message>
    <message>
        <source>That key cannot be typed. Press another one</source>
        <translation>無法輸入該按鍵。請按其他按鍵</translation>
    </message>
    <message>
        <source>Click, or press Enter or Space, to record a key combination</source>
        <translation>按一下，或按 Enter 或空白鍵，以錄製按鍵組合</translation>
    </message>
    <message>
        <source>Keys a keyboard may lack</source>
        <translation>鍵盤上可能沒有的按鍵</translation>
    </message>
</context>
<context>
    <name>IconChooser</name>
    <message>
        <source>Choose Icon</source>
        <translation>選擇圖示</translation>
    </message>
    <message>
        <source>Image &amp;file</source>
        <translation>圖片檔案(&amp;F)</translation>
    </message>
    <message>
        <source>Icon &amp;theme</source>
        <translation>圖示主題(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Emoji</source>
        <translation>表情符號(&amp;E)</translation>
    </message>
    <message>
        <source>The key with this icon</source>
        <translation>使用此圖示的按鍵</translation>
    </message>
    <message>
        <source>Choose image file…</source>
        <translation>選擇圖片檔案…</translation>
    </message>
    <message>
        <source>PNG, JPEG, SVG, WebP, GIF (its first picture) and the other image formats of this system. The picture is fitted into the key without distortion; transparent parts stay transparent.</source>
        <translation>PNG、JPEG、SVG、WebP、GIF (第一格畫面) 以及本系統支援的其他圖片格式。圖片會等比例縮放以符合按鍵，不會變形；透明部分保持透明。</translation>
    </message>
    <message>
        <source>&amp;Icons:</source>
        <translation>圖示(&amp;I)：</translation>
    </message>
    <message>
        <source>E&amp;moji:</source>
        <translation>表情符號(&amp;M)：</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>無法讀取 %1：%2</translation>
    </message>
    <message>
        <source>Reading the icon theme…</source>
        <translation>正在讀取圖示主題…</translation>
    </message>
    <message>
        <source>Reading the emoji…</source>
        <translation>正在讀取表情符號…</translation>
    </message>
    <message>
        <source>The icon theme &quot;%1&quot; has no icons.</source>
        <translation>圖示主題「%1」中沒有圖示。</translation>
    </message>
    <message>
        <source>No icon chosen.</source>
        <translation>未選擇圖示。</translation>
    </message>
</context>
<context>
    <name>IconGridPage</name>
    <message>
        <source>&amp;Search:</source>
        <translation>搜尋(&amp;S)：</translation>
    </message>
    <message>
        <source>Type words of the name</source>
        <translation>輸入名稱中的字詞</translation>
    </message>
    <message>
        <source>Nothing matches the search.</source>
        <translation>沒有符合搜尋的項目。</translation>
    </message>
    <message numerus="yes">
        <source>%n shown</source>
        <translation>
            <numerusform>顯示 %n 個</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportExportPage</name>
    <message>
        <source>Export layout…</source>
        <translation>匯出配置…</translation>
    </message>
    <message>
        <source>The keys of the layout in use, with their folders, as a .kslayout file.</source>
        <translation>將使用中配置的按鍵連同其資料夾匯出為 .kslayout 檔案。</translation>
    </message>
    <message>
        <source>Export My Favorite…</source>
        <translation>匯出我的最愛…</translation>
    </message>
    <message>
        <source>All of My Favorite as a .ksfavorites file.</source>
        <translation>將所有「我的最愛」匯出為 .ksfavorites 檔案。</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>匯入…</translation>
    </message>
    <message>
        <source>A .kslayout file replaces the keys of the layout in use; a .ksfavorites file adds to My Favorite. You are asked first.</source>
        <translation>.kslayout 檔案會取代使用中配置的按鍵；.ksfavorites 檔案會加入「我的最愛」。執行前會先詢問您。</translation>
    </message>
    <message>
        <source>Back up everything…</source>
        <translation>全部備份…</translation>
    </message>
    <message>
        <source>Every layout and My Favorite, each in a file of its own, into a new dated folder inside the folder you choose.</source>
        <translation>將每個配置與「我的最愛」各自存成一個檔案，放入您所選資料夾中一個以日期命名的新資料夾。</translation>
    </message>
    <message>
        <source>Import and export</source>
        <translation>匯入與匯出</translation>
    </message>
    <message>
        <source>Export layout</source>
        <translation>匯出配置</translation>
    </message>
    <message>
        <source>Keystage layout (*.kslayout)</source>
        <translation>Keystage 配置 (*.kslayout)</translation>
    </message>
    <message>
        <source>The layout was exported to %1.</source>
        <translation>配置已匯出至 %1。</translation>
    </message>
    <message>
        <source>The layout could not be exported to %1.</source>
        <translation>無法將配置匯出至 %1。</translation>
    </message>
    <message>
        <source>Export My Favorite</source>
        <translation>匯出我的最愛</translation>
    </message>
    <message>
        <source>Keystage favorites (*.ksfavorites)</source>
        <translation>Keystage 我的最愛 (*.ksfavorites)</translation>
    </message>
    <message>
        <source>My Favorite was exported to %1.</source>
        <translation>「我的最愛」已匯出至 %1。</translation>
    </message>
    <message>
        <source>My Favorite could not be exported to %1.</source>
        <translation>無法將「我的最愛」匯出至 %1。</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>匯入</translation>
    </message>
    <message>
        <source>Keystage files (*.kslayout *.ksfavorites);;Keystage layout (*.kslayout);;Keystage favorites (*.ksfavorites)</source>
        <translation>Keystage 檔案 (*.kslayout *.ksfavorites);;Keystage 配置 (*.kslayout);;Keystage 我的最愛 (*.ksfavorites)</translation>
    </message>
    <message>
        <source>Back up everything into</source>
        <translation>全部備份至</translation>
    </message>
    <message numerus="yes">
        <source>%n files were written to %1.</source>
        <translation>
            <numerusform>已將 %n 個檔案寫入 %1。</numerusform>
        </translation>
    </message>
    <message>
        <source>The backup failed. %1</source>
        <translation>備份失敗。%1</translation>
    </message>
</context>
<context>
    <name>InsertKeyDialog</name>
    <message>
        <source>Insert key</source>
        <translation>插入按鍵</translation>
    </message>
    <message>
        <source>&amp;Key to insert (a press and a release, with its modifiers around it):</source>
        <translation>要插入的按鍵(&amp;K) (一次按下與放開，前後加上其輔助鍵)：</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>插入</translation>
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
        <translation>新增資料夾(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Create Actions</source>
        <translation>建立動作(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Hotkey</source>
        <translation>快捷鍵(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Macro</source>
        <translation>巨集(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Launch</source>
        <extracomment>The action that starts a program or opens a file (a verb, as in the action palette).</extracomment>
        <translation>啟動(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Website</source>
        <translation>網站(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Text String</source>
        <translation>文字串(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Cut</source>
        <translation>剪下(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>複製(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>刪除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼上(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Save as favorite</source>
        <translation>儲存為最愛(&amp;S)</translation>
    </message>
</context>
<context>
    <name>KeyGridController</name>
    <message>
        <source>The limit of folder is different.</source>
        <translation>資料夾的上限不同。</translation>
    </message>
    <message>
        <source>If continues, some items may be lost. Are you sure you want to proceed?</source>
        <translation>若繼續，部分項目可能會遺失。確定要繼續嗎？</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this item?</source>
        <translation>確定要刪除此項目嗎？</translation>
    </message>
    <message>
        <source>You can&apos;t undo this action.</source>
        <translation>此動作無法復原。</translation>
    </message>
    <message>
        <source>Don&apos;t ask me again</source>
        <translation>不要再詢問</translation>
    </message>
</context>
<context>
    <name>KeyItemForm</name>
    <message>
        <source>Title</source>
        <extracomment>The text shown on the key of the keypad, under its icon.</extracomment>
        <translation>標題</translation>
    </message>
</context>
<context>
    <name>KeyItemGridView</name>
    <message>
        <source>Keys</source>
        <extracomment>The keys of the keypad, as the editor shows them.</extracomment>
        <translation>按鍵</translation>
    </message>
    <message>
        <source>Key %1: empty</source>
        <extracomment>%1 is the number of a key on the keypad.</extracomment>
        <translation>按鍵 %1：空白</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The key that leads out of a folder page, back to the page above.</extracomment>
        <translation>返回</translation>
    </message>
    <message>
        <source>Key %1: %2</source>
        <translation>按鍵 %1：%2</translation>
    </message>
    <message>
        <source>Key %1: %2, %3</source>
        <translation>按鍵 %1：%2，%3</translation>
    </message>
</context>
<context>
    <name>KeyItemModel</name>
    <message>
        <source>Copy</source>
        <extracomment>Title of a default key (the Copy hotkey); a key face is 72 pixels wide.</extracomment>
        <translation>複製</translation>
    </message>
    <message>
        <source>Paste</source>
        <extracomment>Title of a default key (the Paste hotkey).</extracomment>
        <translation>貼上</translation>
    </message>
    <message>
        <source>Media</source>
        <extracomment>Title of a default folder key holding the volume keys.</extracomment>
        <translation>媒體</translation>
    </message>
    <message>
        <source>Mute</source>
        <extracomment>Title of a default key: mutes the sound.</extracomment>
        <translation>靜音</translation>
    </message>
    <message>
        <source>Vol -</source>
        <extracomment>Title of a default key: turns the volume down.</extracomment>
        <translation>音量 -</translation>
    </message>
    <message>
        <source>Vol +</source>
        <extracomment>Title of a default key: turns the volume up.</extracomment>
        <translation>音量 +</translation>
    </message>
</context>
<context>
    <name>KeyItemSummary</name>
    <message numerus="yes">
        <source>%n step(s)</source>
        <translation>
            <numerusform>%n 個步驟</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n key(s)</source>
        <translation>
            <numerusform>%n 個按鍵</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>KeyMapping</name>
    <message>
        <source>Unknown key</source>
        <translation>未知按鍵</translation>
    </message>
    <message>
        <source>Left Super</source>
        <translation>左 Super</translation>
    </message>
    <message>
        <source>Right Super</source>
        <translation>右 Super</translation>
    </message>
    <message>
        <source>Left Shift</source>
        <translation>左 Shift</translation>
    </message>
    <message>
        <source>Right Shift</source>
        <translation>右 Shift</translation>
    </message>
    <message>
        <source>Left Ctrl</source>
        <translation>左 Ctrl</translation>
    </message>
    <message>
        <source>Right Ctrl</source>
        <translation>右 Ctrl</translation>
    </message>
    <message>
        <source>Left Alt</source>
        <translation>左 Alt</translation>
    </message>
    <message>
        <source>Right Alt</source>
        <translation>右 Alt</translation>
    </message>
</context>
<context>
    <name>KeyPickerMenu</name>
    <message>
        <source>F13 to F24</source>
        <translation>F13 至 F24</translation>
    </message>
    <message>
        <source>Keys the recorder uses</source>
        <translation>錄製功能使用的按鍵</translation>
    </message>
</context>
<context>
    <name>KeypadAccess</name>
    <message>
        <source>Install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d), then run &quot;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&quot; or unplug and replug the keypad.</source>
        <translation>請安裝 udev 規則 70-keystage.rules (放到 /etc/udev/rules.d，除非已有套件將它放在 /usr/lib/udev/rules.d)，然後執行「sudo udevadm control --reload &amp;&amp; sudo udevadm trigger」，或拔下後重新插入按鍵面板。</translation>
    </message>
</context>
<context>
    <name>KeypadPage</name>
    <message>
        <source>Keypad</source>
        <extracomment>The USB keypad with LCD keys this program drives.</extracomment>
        <translation>按鍵面板</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型號</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>序號</translation>
    </message>
    <message>
        <source>Firmware version</source>
        <translation>韌體版本</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Set on the keypad as you move it, and on every keypad you connect.</source>
        <translation>調整時會立即套用到按鍵面板，之後連接的每個按鍵面板也會套用。</translation>
    </message>
    <message>
        <source>Show logo</source>
        <translation>顯示標誌</translation>
    </message>
    <message>
        <source>No keypad connected</source>
        <translation>未連接按鍵面板</translation>
    </message>
    <message>
        <source>Reading the keypad…</source>
        <translation>正在讀取按鍵面板…</translation>
    </message>
    <message>
        <source>The keypad does not answer.</source>
        <translation>按鍵面板沒有回應。</translation>
    </message>
    <message>
        <source>The keypad shows its logo for a moment.</source>
        <translation>按鍵面板會短暫顯示其標誌。</translation>
    </message>
    <message>
        <source>The keypad did not show its logo.</source>
        <translation>按鍵面板未能顯示標誌。</translation>
    </message>
</context>
<context>
    <name>KeystrokeBackend</name>
    <message>
        <source>To let them type, install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d) and run &quot;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&quot;, or log in to an X11 session.</source>
        <translation>若要讓它們能夠輸入，請安裝 udev 規則 70-keystage.rules (放到 /etc/udev/rules.d，除非已有套件將它放在 /usr/lib/udev/rules.d) 並執行「sudo udevadm control --reload &amp;&amp; sudo udevadm trigger」，或登入 X11 工作階段。</translation>
    </message>
    <message>
        <source>This is a Wayland session, and without access to /dev/uinput keys are typed through XWayland, which only programs running under X receive. To reach every program, install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d), run &quot;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&quot; and start %1 again.</source>
        <translation>這是 Wayland 工作階段，由於無法存取 /dev/uinput，按鍵會透過 XWayland 輸入，只有在 X 下執行的程式才會收到。若要讓所有程式都收到，請安裝 udev 規則 70-keystage.rules（放到 /etc/udev/rules.d，除非套件已將它放在 /usr/lib/udev/rules.d），執行「sudo udevadm control --reload &amp;&amp; sudo udevadm trigger」，然後重新啟動 %1。</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>The language of %1&apos;s windows. It changes when %1 starts again.</source>
        <translation>%1 視窗使用的語言。%1 下次啟動時才會變更。</translation>
    </message>
    <message>
        <source>Use this language</source>
        <translation>使用此語言</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>The language could not be stored.</source>
        <translation>無法儲存語言設定。</translation>
    </message>
    <message>
        <source>Restart %1 now?</source>
        <translation>要立即重新啟動 %1 嗎？</translation>
    </message>
    <message>
        <source>%1 is used from the next start.</source>
        <translation>下次啟動時將使用%1。</translation>
    </message>
</context>
<context>
    <name>LaunchForm</name>
    <message>
        <source>Launch</source>
        <extracomment>Heading of the form of a Launch key: the action that starts a program or opens a file (a verb).</extracomment>
        <translation>啟動</translation>
    </message>
    <message>
        <source>A program, script, document or folder</source>
        <translation>程式、指令碼、文件或資料夾</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>指令</translation>
    </message>
    <message>
        <source>Choose file…</source>
        <translation>選擇檔案…</translation>
    </message>
    <message>
        <source>Choose application…</source>
        <translation>選擇應用程式…</translation>
    </message>
    <message>
        <source>Use as title</source>
        <translation>用作標題</translation>
    </message>
    <message>
        <source>Use &quot;%1&quot; as the title?</source>
        <translation>要使用「%1」作為標題嗎？</translation>
    </message>
</context>
<context>
    <name>LayoutPage</name>
    <message>
        <source>Choose the keypad you use and how you hold it. The editor and the keypad change at once; every layout keeps its own keys.</source>
        <translation>請選擇您使用的按鍵面板與擺放方向。編輯器與按鍵面板會立即變更；每個配置都保有自己的按鍵。</translation>
    </message>
    <message>
        <source>Keypad size</source>
        <translation>按鍵面板大小</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>橫向</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>直向</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>配置</translation>
    </message>
</context>
<context>
    <name>LayoutText</name>
    <message>
        <source>%1 keys</source>
        <translation>%1 鍵</translation>
    </message>
    <message>
        <source>%1 keys, vertical</source>
        <translation>%1 鍵，直向</translation>
    </message>
    <message>
        <source>%1 keys, horizontal</source>
        <translation>%1 鍵，橫向</translation>
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
        <translation>記憶體</translation>
    </message>
    <message>
        <source>Net B/s</source>
        <translation>網路 B/s</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>Record</source>
        <translation>錄製</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>&amp;Steps:</source>
        <translation>步驟(&amp;S)：</translation>
    </message>
    <message>
        <source>Steps:</source>
        <translation>步驟：</translation>
    </message>
    <message>
        <source>Insert key…</source>
        <translation>插入按鍵…</translation>
    </message>
    <message>
        <source>Add text…</source>
        <translation>加入文字…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Removes every step of the macro.</extracomment>
        <translation>清除</translation>
    </message>
    <message>
        <source>Add the missing releases</source>
        <translation>補上缺少的放開</translation>
    </message>
    <message>
        <source>Recording: press the keys of the macro. Esc alone or Stop ends the recording.</source>
        <translation>錄製中：請按下巨集的按鍵。單獨按 Esc 或按「停止」即可結束錄製。</translation>
    </message>
    <message numerus="yes">
        <source>%n key(s) that cannot be typed left out.</source>
        <translation>
            <numerusform>已略過 %n 個無法輸入的按鍵。</numerusform>
        </translation>
    </message>
    <message>
        <source>The macro leaves %1 held down: it stays pressed after the macro has played.</source>
        <translation>此巨集會讓 %1 保持按下：巨集播放完後它仍會維持按下狀態。</translation>
    </message>
    <message numerus="yes">
        <source>Recording: press the keys of the macro. Esc alone or Stop ends the recording. %n key(s) that cannot be typed left out.</source>
        <translation>
            <numerusform>錄製中：請按下巨集的按鍵。單獨按 Esc 或按「停止」即可結束錄製。已略過 %n 個無法輸入的按鍵。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MacroForm</name>
    <message>
        <source>Macro</source>
        <translation>巨集</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>步驟</translation>
    </message>
</context>
<context>
    <name>MacroStepModel</name>
    <message>
        <source>Down</source>
        <extracomment>A macro step presses (Down) or releases (Up) a key; read aloud after the key name.</extracomment>
        <translation>按下</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>放開</translation>
    </message>
    <message>
        <source>%1: %2 %3</source>
        <extracomment>A macro step, as a screen reader reads it: &quot;3: Shift down&quot;.</extracomment>
        <translation>%1：%2 %3</translation>
    </message>
    <message>
        <source>Key</source>
        <extracomment>Column header: the keyboard key a macro step presses or releases.</extracomment>
        <translation>按鍵</translation>
    </message>
    <message>
        <source>Press or release</source>
        <translation>按下或放開</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Hotkeys and macros cannot type keys.</source>
        <translation>快捷鍵與巨集無法輸入按鍵。</translation>
    </message>
    <message>
        <source>Your settings were damaged and have been reset.</source>
        <translation>您的設定已損毀，已重設。</translation>
    </message>
    <message>
        <source>The damaged file was kept as %1.</source>
        <translation>損毀的檔案已保留為 %1。</translation>
    </message>
    <message>
        <source>No keypad connected</source>
        <translation>未連接按鍵面板</translation>
    </message>
    <message>
        <source>Virtual keypad connected</source>
        <translation>已連接虛擬按鍵面板</translation>
    </message>
    <message>
        <source>Keypad connected</source>
        <translation>已連接按鍵面板</translation>
    </message>
    <message>
        <source>Keypad found, but no permission to use it. %1</source>
        <translation>找到按鍵面板，但沒有使用權限。%1</translation>
    </message>
    <message>
        <source>Keypad status: %1</source>
        <translation>按鍵面板狀態：%1</translation>
    </message>
    <message>
        <source>%1 could not be imported.</source>
        <translation>無法匯入 %1。</translation>
    </message>
    <message>
        <source>Replace the keys of this layout?</source>
        <translation>要取代此配置的按鍵嗎？</translation>
    </message>
    <message>
        <source>The keys of the current layout are replaced by those of %1. You can&apos;t undo this action.</source>
        <translation>目前配置的按鍵將被 %1 中的按鍵取代。此動作無法復原。</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>關於 %1</translation>
    </message>
    <message>
        <source>The desktop companion of your LCD macro keypad.</source>
        <translation>您的 LCD 巨集按鍵面板的桌面夥伴。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>%1 cannot quit now.</source>
        <translation>%1 目前無法結束。</translation>
    </message>
    <message numerus="yes">
        <source>The keys of the current layout are replaced by those of %1. You can&apos;t undo this action.
%n key(s) do not fit this layout and will be lost.</source>
        <translation>
            <numerusform>目前配置的按鍵將被 %1 中的按鍵取代。此動作無法復原。
有 %n 個按鍵放不進此配置，將會遺失。</numerusform>
        </translation>
    </message>
    <message>
        <source>Hotkeys and macros type into X applications only.</source>
        <translation>快捷鍵與巨集只能輸入到 X 應用程式。</translation>
    </message>
    <message>
        <source>Your settings cannot be saved.</source>
        <translation>無法儲存您的設定。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. Your changes are kept while %3 runs and saved as soon as the file can be written again.</source>
        <translation>無法寫入 %1：%2。在 %3 執行期間會保留您的變更，並在檔案可再次寫入時立即儲存。</translation>
    </message>
</context>
<context>
    <name>PreferenceDialog</name>
    <message>
        <source>%1 Settings</source>
        <translation>%1 設定</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>設定頁面</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>The settings cannot be closed now.</source>
        <translation>目前無法關閉設定。</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Do you want to update firmware?</source>
        <translation>要更新韌體嗎？</translation>
    </message>
    <message>
        <source>Firmware version %1 is now available - current version %2 Would you like to update now?</source>
        <extracomment>%1 is the firmware this program carries, %2 the firmware on the keypad.</extracomment>
        <translation>韌體版本 %1 現已推出，目前版本為 %2。要立即更新嗎？</translation>
    </message>
    <message>
        <source>Choose an image</source>
        <translation>選擇圖片</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>圖片 (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有檔案 (*)</translation>
    </message>
    <message>
        <source>Choose a program</source>
        <translation>選擇程式</translation>
    </message>
    <message>
        <source>Choose a program, script, document or folder</source>
        <translation>選擇程式、指令碼、文件或資料夾</translation>
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
        <translation>移除您在全部六種配置中建立的每個按鍵 (包括資料夾)，並還原為全新安裝時的按鍵。「我的最愛」與其他設定會保留。若要保留副本，請先使用「匯入與匯出」中的「全部備份」。</translation>
    </message>
    <message>
        <source>Reset all keys…</source>
        <translation>重設所有按鍵…</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Are you sure you want to reset the keys of every layout?</source>
        <translation>確定要重設每個配置的按鍵嗎？</translation>
    </message>
    <message>
        <source>You can&apos;t undo this action.</source>
        <translation>此動作無法復原。</translation>
    </message>
    <message>
        <source>Every layout has its default keys again.</source>
        <translation>每個配置都已恢復為預設按鍵。</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The file cannot be read.</source>
        <translation>無法讀取檔案。</translation>
    </message>
    <message>
        <source>The file is not a Keystage layout or favourites file.</source>
        <translation>此檔案不是 Keystage 配置檔或我的最愛檔案。</translation>
    </message>
    <message>
        <source>The file was changed or damaged after it was exported: its checksum does not match.</source>
        <translation>此檔案在匯出後曾被修改或已損毀：檢查碼不符。</translation>
    </message>
</context>
<context>
    <name>SoftwareUpdate</name>
    <message>
        <source>Checking for updates is turned off.</source>
        <translation>檢查更新已關閉。</translation>
    </message>
    <message>
        <source>This build names an update address that is not HTTPS; it is not used.</source>
        <translation>此版本指定的更新網址不是 HTTPS，因此不會使用。</translation>
    </message>
    <message>
        <source>The update information is too large.</source>
        <translation>更新資訊過大。</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>正在檢查更新…</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>已取消下載。</translation>
    </message>
    <message>
        <source>The update server answered with HTTP status %1.</source>
        <translation>更新伺服器回應 HTTP 狀態 %1。</translation>
    </message>
    <message>
        <source>The update server did not answer in time.</source>
        <translation>更新伺服器未及時回應。</translation>
    </message>
    <message>
        <source>The update server could not be reached: %1</source>
        <translation>無法連線到更新伺服器：%1</translation>
    </message>
    <message>
        <source>Keystage %1 is up to date.</source>
        <translation>Keystage %1 已是最新版本。</translation>
    </message>
    <message>
        <source>Keystage %1 is available. You have %2.</source>
        <translation>Keystage %1 已推出。您目前的版本為 %2。</translation>
    </message>
    <message>
        <source>Downloading Keystage %1…</source>
        <translation>正在下載 Keystage %1…</translation>
    </message>
    <message>
        <source>The download cannot be saved: %1</source>
        <translation>無法儲存下載內容：%1</translation>
    </message>
    <message>
        <source>The package is larger than %1 MB; it is not downloaded.</source>
        <translation>套件大於 %1 MB，不會下載。</translation>
    </message>
    <message>
        <source>The download ended early: %1 of %2 bytes arrived.</source>
        <translation>下載提前結束：收到 %2 位元組中的 %1 位元組。</translation>
    </message>
    <message>
        <source>The downloaded package does not match the checksum the update server gave, so it was deleted.</source>
        <translation>下載的套件與更新伺服器提供的檢查碼不符，因此已刪除。</translation>
    </message>
    <message>
        <source>No package installer could be opened. The verified package is saved as %1.</source>
        <translation>無法開啟任何套件安裝程式。已驗證的套件儲存為 %1。</translation>
    </message>
    <message>
        <source>The package installer has opened Keystage %1. Once it has installed it, restart Keystage to use the new version.</source>
        <translation>套件安裝程式已開啟 Keystage %1。安裝完成後，請重新啟動 Keystage 以使用新版本。</translation>
    </message>
</context>
<context>
    <name>SoftwareUpdatePage</name>
    <message>
        <source>Keystage is updated by your distribution&apos;s package manager, together with the rest of the system. Use your software centre or package manager to get new versions.</source>
        <translation>Keystage 會由您發行版的套件管理程式與系統其他部分一起更新。請使用軟體中心或套件管理程式取得新版本。</translation>
    </message>
    <message>
        <source>Updates normally come from your distribution&apos;s package manager. Keystage can also look for a newer release itself; it connects to the network only while this is turned on.</source>
        <translation>更新通常來自您發行版的套件管理程式。Keystage 也可以自行檢查是否有較新的版本；僅在此選項開啟時才會連線到網路。</translation>
    </message>
    <message>
        <source>Check for &amp;updates</source>
        <translation>檢查更新(&amp;U)</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>立即檢查(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>安裝(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Cancel download</source>
        <translation>取消下載(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Restart Keystage</source>
        <translation>重新啟動 Keystage(&amp;R)</translation>
    </message>
    <message>
        <source>Download progress</source>
        <translation>下載進度</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>軟體更新</translation>
    </message>
    <message>
        <source>Keystage is still downloading the update. Wait until it has finished, or cancel the download.</source>
        <translation>Keystage 仍在下載更新。請等待下載完成，或取消下載。</translation>
    </message>
    <message>
        <source>What is new:</source>
        <translation>新功能：</translation>
    </message>
</context>
<context>
    <name>StartAtLoginPage</name>
    <message>
        <source>Start %1 when I log in</source>
        <translation>登入時啟動 %1</translation>
    </message>
    <message>
        <source>%1 starts in the tray, so the keypad works from the start without a window in the way. The desktop reads this from %2.</source>
        <translation>%1 會在系統匣中啟動，讓按鍵面板從一開始就能使用，而不會有視窗擋路。桌面環境會從 %2 讀取此設定。</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>登入時啟動</translation>
    </message>
    <message>
        <source>This could not be changed: %1</source>
        <translation>無法變更此設定：%1</translation>
    </message>
</context>
<context>
    <name>TextStringForm</name>
    <message>
        <source>Text String</source>
        <extracomment>Heading of the form of a key that types a stored text.</extracomment>
        <translation>文字串</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>The key pastes the text through the clipboard, and the text stays on the clipboard afterwards.</source>
        <translation>此按鍵會透過剪貼簿貼上文字，之後文字仍會留在剪貼簿中。</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>TitleStyleDialog</name>
    <message>
        <source>Title Style</source>
        <translation>標題樣式</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>字型(&amp;F)：</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>大小(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>粗體(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>斜體(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>底線(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Color…</source>
        <translation>色彩(&amp;C)…</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>色彩：</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>位置：</translation>
    </message>
    <message>
        <source>The key on the keypad</source>
        <translation>按鍵面板上的按鍵</translation>
    </message>
    <message>
        <source>The key in the editor&apos;s grid</source>
        <translation>編輯器格線中的按鍵</translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation>預覽：</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top center</source>
        <translation>中上</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation>左中</translation>
    </message>
    <message>
        <source>Middle center</source>
        <translation>正中</translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation>右中</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom center</source>
        <translation>中下</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Title Color</source>
        <translation>標題色彩</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>Show</source>
        <translation>顯示</translation>
    </message>
    <message>
        <source>Virtual Keypad</source>
        <translation>虛擬按鍵面板</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>結束</translation>
    </message>
</context>
<context>
    <name>TreeView</name>
    <message>
        <source>Home</source>
        <extracomment>The top page of the keypad, above every folder.</extracomment>
        <translation>首頁</translation>
    </message>
    <message>
        <source>Folder tree</source>
        <translation>資料夾樹狀結構</translation>
    </message>
</context>
<context>
    <name>UpdateFeed</name>
    <message>
        <source>The update information is too large.</source>
        <translation>更新資訊過大。</translation>
    </message>
    <message>
        <source>The update information is not readable.</source>
        <translation>無法讀取更新資訊。</translation>
    </message>
    <message>
        <source>The update information has no valid version.</source>
        <translation>更新資訊中沒有有效的版本。</translation>
    </message>
    <message>
        <source>The update information has no valid package address (an HTTPS address of a .deb package).</source>
        <translation>更新資訊中沒有有效的套件網址 (.deb 套件的 HTTPS 網址)。</translation>
    </message>
    <message>
        <source>The update information has no valid SHA-256 checksum.</source>
        <translation>更新資訊中沒有有效的 SHA-256 檢查碼。</translation>
    </message>
</context>
<context>
    <name>UserQuestion</name>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>匯入</translation>
    </message>
</context>
<context>
    <name>VirtualKeypadWindow</name>
    <message>
        <source>Virtual Keypad</source>
        <translation>虛擬按鍵面板</translation>
    </message>
    <message>
        <source>unplugged</source>
        <translation>已拔除</translation>
    </message>
</context>
<context>
    <name>WebsiteForm</name>
    <message>
        <source>Website</source>
        <translation>網站</translation>
    </message>
    <message>
        <source>example.com or https://…</source>
        <translation>example.com 或 https://…</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>網址</translation>
    </message>
    <message>
        <source>Choose bookmark…</source>
        <translation>選擇書籤…</translation>
    </message>
    <message>
        <source>An address without &quot;https://&quot; opens as &quot;http://&quot;.</source>
        <translation>沒有「https://」的網址會以「http://」開啟。</translation>
    </message>
</context>
<context>
    <name>WindowSystem</name>
    <message>
        <source>This desktop does not tell which application is in front, so folders cannot open by application. On Wayland, sway, Hyprland, KDE Plasma and GNOME (with Keystage&apos;s extension) do.</source>
        <translation>此桌面不會告知哪個應用程式在前景，因此資料夾無法依應用程式開啟。在 Wayland 上，sway、Hyprland、KDE Plasma 與 GNOME（搭配 Keystage 的擴充套件）可以做到。</translation>
    </message>
</context>
</TS>
