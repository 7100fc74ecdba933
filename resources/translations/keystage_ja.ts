<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>AboutPage</name>
    <message>
        <source>%1, version %2</source>
        <translation>%1 バージョン %2</translation>
    </message>
    <message>
        <source>The desktop companion of your LCD macro keypad.</source>
        <translation>LCD マクロキーパッドのためのデスクトップアプリです。</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>ライセンス</translation>
    </message>
    <message>
        <source>%1 is free software: you can redistribute it and modify it under the terms of the GNU General Public License, version 3 or any later version. It comes with no warranty. It is built with Qt %2, used under the GNU Lesser General Public License version 3. Key titles are drawn with the Liberation Sans fonts, used under the SIL Open Font License 1.1.</source>
        <translation>%1 はフリーソフトウェアです。GNU 一般公衆利用許諾書 (GPL) バージョン 3 またはそれ以降のバージョンの条件に従って、再配布および改変できます。いかなる保証もありません。Qt %2 を使用して作られており、Qt は GNU 劣等一般公衆利用許諾書 (LGPL) バージョン 3 のもとで使用しています。キーのタイトルは Liberation Sans フォントで描画しており、このフォントは SIL Open Font License 1.1 のもとで使用しています。</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>Qt について</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Log files</source>
        <translation>ログファイル</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>ログフォルダーを開く</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>設定ファイル</translation>
    </message>
    <message>
        <source>Open settings folder</source>
        <translation>設定フォルダーを開く</translation>
    </message>
    <message>
        <source>The settings file carries a checksum: a file changed by hand is not loaded, and the settings start over.</source>
        <translation>設定ファイルにはチェックサムが含まれています。手作業で変更されたファイルは読み込まれず、設定は初期状態に戻ります。</translation>
    </message>
    <message>
        <source>About</source>
        <translation>このアプリについて</translation>
    </message>
</context>
<context>
    <name>Accessibility</name>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
</context>
<context>
    <name>ActionList</name>
    <message>
        <source>Actions</source>
        <translation>アクション</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Hotkey</source>
        <translation>ホットキー</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>マクロ</translation>
    </message>
    <message>
        <source>Launch</source>
        <extracomment>The action that starts a program or opens a file or folder.</extracomment>
        <translation>起動</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>ウェブサイト</translation>
    </message>
    <message>
        <source>Text String</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>My Favorite</source>
        <translation>お気に入り</translation>
    </message>
</context>
<context>
    <name>AddTextDialog</name>
    <message>
        <source>Add text</source>
        <translation>テキストを追加</translation>
    </message>
    <message>
        <source>Each character becomes a press and a release of the key that types it on a US keyboard, with Shift where a US keyboard needs it, the way the keypad types on every desktop. With another keyboard layout active some characters come out differently, and characters a US keyboard lacks are left out. To insert any text as it is, use a Text String key instead.</source>
        <translation>各文字は、US キーボードでその文字を入力するキーの押下と解放になり、US キーボードで必要な場合は Shift も加わります。キーパッドはどのデスクトップでもこの方法で入力します。別のキーボードレイアウトが有効な場合は一部の文字が異なって入力され、US キーボードにない文字は省かれます。テキストをそのまま入力するには、代わりにテキストキーを使ってください。</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>テキスト(&amp;T):</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>テキスト:</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message numerus="yes">
        <source>%n step(s)</source>
        <translation>
            <numerusform>%n ステップ</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n step(s). Left out: %1</source>
        <extracomment>%1 lists the characters that cannot be typed.</extracomment>
        <translation>
            <numerusform>%n ステップ。省いた文字: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ApplicationChooser</name>
    <message>
        <source>Choose Application</source>
        <translation>アプリケーションの選択</translation>
    </message>
    <message>
        <source>&amp;Installed</source>
        <translation>インストール済み(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Running</source>
        <translation>実行中(&amp;R)</translation>
    </message>
    <message>
        <source>Where the applications come from</source>
        <translation>アプリケーションの取得元</translation>
    </message>
    <message>
        <source>&amp;Applications:</source>
        <translation>アプリケーション(&amp;A):</translation>
    </message>
    <message>
        <source>Looking for running applications…</source>
        <translation>実行中のアプリケーションを検索しています…</translation>
    </message>
    <message>
        <source>Looking for installed applications…</source>
        <translation>インストール済みのアプリケーションを検索しています…</translation>
    </message>
    <message>
        <source>This desktop does not tell which applications are running.</source>
        <translation>このデスクトップでは、実行中のアプリケーションを取得できません。</translation>
    </message>
    <message>
        <source>No applications found.</source>
        <translation>アプリケーションが見つかりません。</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>フォルダー %1 を作成できません。</translation>
    </message>
    <message>
        <source>Starts %1 in the tray at login</source>
        <translation>ログイン時に %1 をシステムトレイで起動します</translation>
    </message>
</context>
<context>
    <name>BookmarkChooser</name>
    <message>
        <source>Choose Bookmark</source>
        <translation>ブックマークの選択</translation>
    </message>
    <message>
        <source>&amp;Bookmarks:</source>
        <translation>ブックマーク(&amp;B):</translation>
    </message>
    <message>
        <source>&amp;Use the page title as the key title</source>
        <translation>ページのタイトルをキーのタイトルにする(&amp;U)</translation>
    </message>
    <message>
        <source>Reading the browsers&apos; bookmarks…</source>
        <translation>ブラウザーのブックマークを読み込んでいます…</translation>
    </message>
    <message>
        <source>Title</source>
        <extracomment>Column header: the name of a browser bookmark.</extracomment>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>No bookmarks of Firefox, Chromium, Google Chrome, Brave, Vivaldi or Microsoft Edge found.</source>
        <translation>Firefox、Chromium、Google Chrome、Brave、Vivaldi、Microsoft Edge のブックマークが見つかりません。</translation>
    </message>
</context>
<context>
    <name>ChooserDialog</name>
    <message>
        <source>&amp;Search:</source>
        <translation>検索(&amp;S):</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>再読み込み(&amp;F)</translation>
    </message>
</context>
<context>
    <name>ConfigurationBackup</name>
    <message>
        <source>%1 backup %2</source>
        <translation>%1 バックアップ %2</translation>
    </message>
    <message>
        <source>My Favorite</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>フォルダー %1 は存在しません。</translation>
    </message>
    <message>
        <source>No folder can be made in %1.</source>
        <translation>%1 にフォルダーを作成できません。</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1 に書き込めませんでした: %2</translation>
    </message>
    <message>
        <source>Layout %1 keys vertical</source>
        <extracomment>A file name: the keypad&apos;s size, then its orientation.</extracomment>
        <translation>レイアウト %1 キー 縦</translation>
    </message>
    <message>
        <source>Layout %1 keys horizontal</source>
        <translation>レイアウト %1 キー 横</translation>
    </message>
</context>
<context>
    <name>ControlAdaptor</name>
    <message>
        <source>No folder titled &quot;%1&quot; on the root page.</source>
        <translation>ルートページに「%1」というフォルダーはありません。</translation>
    </message>
    <message>
        <source>Key %1 is not on the keypad (0 to %2).</source>
        <translation>キー %1 はキーパッドにありません（0～%2）。</translation>
    </message>
    <message>
        <source>Key %1 of the root page is not a folder.</source>
        <translation>ルートページのキー %1 はフォルダーではありません。</translation>
    </message>
    <message>
        <source>Key %1 has no action on this page.</source>
        <translation>このページのキー %1 には動作がありません。</translation>
    </message>
    <message>
        <source>Brightness %1 is outside %2 to %3.</source>
        <translation>明るさ %1 は %2～%3 の範囲外です。</translation>
    </message>
    <message>
        <source>Layout %1 does not exist (0 to %2).</source>
        <translation>レイアウト %1 はありません（0～%2）。</translation>
    </message>
</context>
<context>
    <name>Dialog</name>
    <message>
        <source>Dialog</source>
        <translation>ダイアログ</translation>
    </message>
    <message>
        <source>icon</source>
        <translation>アイコン</translation>
    </message>
    <message>
        <source>subject text</source>
        <translation>件名</translation>
    </message>
    <message>
        <source>Don&apos;t show again</source>
        <translation>今後表示しない</translation>
    </message>
    <message>
        <source>other</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>DimmingPage</name>
    <message>
        <source>Dimming</source>
        <translation>減光</translation>
    </message>
    <message>
        <source>Dim the keypad after</source>
        <translation>キー操作がないまま</translation>
    </message>
    <message>
        <source>minutes without a key press</source>
        <translation>分たったらキーパッドを暗くする</translation>
    </message>
    <message>
        <source>Minutes without a key press</source>
        <translation>キー操作がない時間 (分)</translation>
    </message>
    <message>
        <source>Dimmed brightness:</source>
        <translation>減光時の明るさ:</translation>
    </message>
    <message>
        <source>Dimmed brightness</source>
        <translation>減光時の明るさ</translation>
    </message>
    <message>
        <source>Turn the keypad off while the screen is locked</source>
        <translation>画面のロック中はキーパッドを消灯する</translation>
    </message>
    <message>
        <source>The next key press brings the brightness back; that press does nothing else.</source>
        <translation>次にキーを押すと明るさが戻ります。そのキー押下ではほかの動作は行われません。</translation>
    </message>
    <message>
        <source>Unavailable: the keypad connection is not running.</source>
        <translation>利用できません: キーパッドとの接続が動作していません。</translation>
    </message>
    <message>
        <source>Unavailable: neither logind nor a screen saver reports screen locks on this desktop (D-Bus).</source>
        <translation>利用できません: このデスクトップでは logind もスクリーンセーバーも画面ロックを通知しません (D-Bus)。</translation>
    </message>
</context>
<context>
    <name>EmojiCatalog</name>
    <message>
        <source>The list of emoji (%1) cannot be read. Install the package unicode-data.</source>
        <translation>絵文字の一覧 (%1) を読み込めません。unicode-data パッケージをインストールしてください。</translation>
    </message>
    <message>
        <source>The list of emoji (%1) is not valid.</source>
        <translation>絵文字の一覧 (%1) が正しくありません。</translation>
    </message>
    <message>
        <source>The list of emoji holds no emoji.</source>
        <translation>絵文字の一覧に絵文字がありません。</translation>
    </message>
</context>
<context>
    <name>EmojiNames</name>
    <message>
        <source>en</source>
        <extracomment>The Unicode CLDR locale whose emoji names suit this language: ja, zh_Hant, de, fr or it. Not shown.</extracomment>
        <translation>ja</translation>
    </message>
</context>
<context>
    <name>FaceEditor</name>
    <message>
        <source>Shown on the key</source>
        <translation>キーに表示</translation>
    </message>
    <message>
        <source>Style…</source>
        <translation>スタイル…</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>アイコン</translation>
    </message>
    <message>
        <source>Choose icon…</source>
        <translation>アイコンを選択…</translation>
    </message>
    <message>
        <source>Use default icon</source>
        <translation>既定のアイコンを使う</translation>
    </message>
    <message>
        <source>Of the second hotkey</source>
        <translation>2 つ目のホットキー用</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>プロセッサー</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリー</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>時計</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Live content:</source>
        <translation>ライブ表示:</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>グラフ</translation>
    </message>
    <message>
        <source>A graph of the last minute under the value</source>
        <translation>値の下に直近 1 分間のグラフを表示</translation>
    </message>
</context>
<context>
    <name>Favorite</name>
    <message>
        <source>My Favorite</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Empty slot</source>
        <translation>空きスロット</translation>
    </message>
    <message>
        <source>Usage: %1 / %2</source>
        <translation>使用数: %1 / %2</translation>
    </message>
    <message>
        <source>Are you sure you want to reset all favorite items?</source>
        <translation>すべてのお気に入りをリセットしてもよろしいですか？</translation>
    </message>
    <message>
        <source>You can&apos;t undo this action.</source>
        <translation>この操作は元に戻せません。</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
</context>
<context>
    <name>FavoriteKeyItemModel</name>
    <message>
        <source>You have reached the limit of &quot;My Favorite&quot;.</source>
        <translation>「お気に入り」の上限に達しました。</translation>
    </message>
    <message>
        <source>Import %1 fails.</source>
        <translation>%1 のインポートに失敗しました。</translation>
    </message>
    <message>
        <source>The limit of &quot;My Favorite&quot; is %1 items.</source>
        <translation>「お気に入り」の上限は %1 個です。</translation>
    </message>
    <message>
        <source>You already have %1 item in &quot;My Favorite.&quot; If continues, %2 item will be lost. Are you sure you want to proceed?</source>
        <translation>「お気に入り」にはすでに %1 個の項目があります。続行すると %2 個の項目が失われます。続行してもよろしいですか？</translation>
    </message>
</context>
<context>
    <name>FirefoxBookmarks</name>
    <message>
        <source>Bookmarks Menu</source>
        <translation>ブックマークメニュー</translation>
    </message>
    <message>
        <source>Bookmarks Toolbar</source>
        <translation>ブックマークツールバー</translation>
    </message>
    <message>
        <source>Other Bookmarks</source>
        <translation>他のブックマーク</translation>
    </message>
    <message>
        <source>Mobile Bookmarks</source>
        <translation>モバイルのブックマーク</translation>
    </message>
</context>
<context>
    <name>FirmwarePage</name>
    <message>
        <source>The keypad runs firmware of its own. This program carries the newest firmware it knows for each keypad model and can install it.</source>
        <translation>キーパッドは独自のファームウェアで動作しています。このプログラムは、キーパッドの各モデルについて把握している最新のファームウェアを内蔵しており、それをインストールできます。</translation>
    </message>
    <message>
        <source>Keypad:</source>
        <translation>キーパッド:</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>シリアル番号:</translation>
    </message>
    <message>
        <source>Installed firmware:</source>
        <translation>インストール済みのファームウェア:</translation>
    </message>
    <message>
        <source>Firmware in this program:</source>
        <translation>このプログラムのファームウェア:</translation>
    </message>
    <message>
        <source>&amp;Update firmware…</source>
        <translation>ファームウェアを更新(&amp;U)…</translation>
    </message>
    <message>
        <source>Update progress</source>
        <translation>更新の進行状況</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>ファームウェア</translation>
    </message>
    <message>
        <source>The firmware update is still running. Closing now could leave the keypad unusable.</source>
        <translation>ファームウェアの更新中です。今閉じるとキーパッドが使えなくなるおそれがあります。</translation>
    </message>
    <message>
        <source>Reading the keypad…</source>
        <translation>キーパッドを読み込んでいます…</translation>
    </message>
    <message>
        <source>No keypad connected</source>
        <translation>キーパッドが接続されていません</translation>
    </message>
    <message>
        <source>The keypad does not tell its firmware version. Unplug it, plug it in again and try once more.</source>
        <translation>キーパッドがファームウェアのバージョンを返しません。いったん取り外してから接続し直し、もう一度お試しください。</translation>
    </message>
    <message>
        <source>This program has no firmware for this keypad (%1), so there is no update to offer.</source>
        <translation>このプログラムにはこのキーパッド (%1) 用のファームウェアがないため、提供できる更新はありません。</translation>
    </message>
    <message>
        <source>Updating the firmware. Keep the keypad plugged in; its keys do nothing until the update ends.</source>
        <translation>ファームウェアを更新しています。キーパッドを接続したままにしてください。更新が終わるまでキーは動作しません。</translation>
    </message>
    <message>
        <source>The firmware was updated.</source>
        <translation>ファームウェアを更新しました。</translation>
    </message>
    <message>
        <source>The firmware update failed. Keep the keypad plugged in and try again. If it stays dark, unplug it and plug it in again.</source>
        <translation>ファームウェアの更新に失敗しました。キーパッドを接続したまま、もう一度お試しください。画面が暗いままの場合は、いったん取り外してから接続し直してください。</translation>
    </message>
</context>
<context>
    <name>FolderForm</name>
    <message>
        <source>Folder</source>
        <extracomment>Heading of the form of a folder key: a key that opens a page of more keys.</extracomment>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>No application</source>
        <translation>アプリケーションなし</translation>
    </message>
    <message>
        <source>Open this folder when an application comes to the front</source>
        <translation>アプリケーションが前面に来たらこのフォルダーを開く</translation>
    </message>
    <message>
        <source>Choose application…</source>
        <translation>アプリケーションを選択…</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>参照…</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Forgets the application that opens this folder.</extracomment>
        <translation>クリア</translation>
    </message>
    <message>
        <source>The folder no longer opens by itself</source>
        <translation>フォルダーは自動では開かなくなりました</translation>
    </message>
</context>
<context>
    <name>ForegroundSource</name>
    <message>
        <source>Folders open by application: %1 tells which is in front.</source>
        <translation>アプリケーションごとにフォルダーを開きます: 前面のアプリケーションは %1 から通知されます。</translation>
    </message>
    <message>
        <source>Folders open by application: the Keystage Focus extension of GNOME Shell tells which is in front.</source>
        <translation>アプリケーションごとにフォルダーを開きます: 前面のアプリケーションは GNOME Shell 拡張機能 Keystage Focus から通知されます。</translation>
    </message>
    <message>
        <source>To open folders by application, turn on the Keystage Focus extension in Extensions, or run: gnome-extensions enable %1</source>
        <translation>アプリケーションごとにフォルダーを開くには、「拡張機能」で Keystage Focus を有効にするか、次を実行してください: gnome-extensions enable %1</translation>
    </message>
    <message>
        <source>To open folders by application on GNOME, install Keystage&apos;s GNOME Shell extension (%1) and turn it on.</source>
        <translation>GNOME でアプリケーションごとにフォルダーを開くには、Keystage の GNOME Shell 拡張機能 (%1) をインストールして有効にしてください。</translation>
    </message>
    <message>
        <source>Folders cannot open by application: there is no session bus to ask KWin.</source>
        <translation>アプリケーションごとにフォルダーを開けません: KWin に問い合わせるセッションバスがありません。</translation>
    </message>
    <message>
        <source>This compositor does not tell which application is in front, so folders cannot open by application. Compositors that offer wlroots&apos; toplevel list do (sway, river, labwc, Wayfire, Hyprland).</source>
        <translation>このコンポジターは前面のアプリケーションを通知しないため、アプリケーションごとにフォルダーを開けません。wlroots のウィンドウ一覧を提供するコンポジター (sway、river、labwc、Wayfire、Hyprland) では開けます。</translation>
    </message>
    <message>
        <source>Folders open by application: the compositor&apos;s toplevel list tells which is in front.</source>
        <translation>アプリケーションごとにフォルダーを開きます: 前面のアプリケーションはコンポジターのウィンドウ一覧から通知されます。</translation>
    </message>
</context>
<context>
    <name>FunctionDescription</name>
    <message>
        <source>Folder
Store an organized group of key actions. Folder can be linked to an application, and folder will open automatically when the application is launched.</source>
        <translation>フォルダー
キーアクションをまとめて整理します。フォルダーはアプリケーションに関連付けることができ、そのアプリケーションが起動すると自動的に開きます。</translation>
    </message>
    <message>
        <source>Hotkey
A key or a combination of keys used together to perform a task or function on the operating system or applications. Recall the hotkey action by pressing on the button.</source>
        <translation>ホットキー
オペレーティングシステムやアプリケーションでタスクや機能を実行するキー、またはキーの組み合わせです。ボタンを押すとホットキーが実行されます。</translation>
    </message>
    <message>
        <source>Macro key
A sequence of commands or keyboard strokes stored in the assigned key. Recall the macro key action by pressing on the button.</source>
        <translation>マクロ
割り当てたキーに保存されたコマンドやキー入力の連続です。ボタンを押すとマクロが実行されます。</translation>
    </message>
    <message>
        <source>Launch
Execute an application, file, folder path, or command-line by pressing on the button.</source>
        <translation>起動
ボタンを押すと、アプリケーション、ファイル、フォルダーのパス、またはコマンドラインを実行します。</translation>
    </message>
    <message>
        <source>Website
Search the web or navigate the site by pressing on the button.</source>
        <translation>ウェブサイト
ボタンを押すと、ウェブを検索したりサイトを開いたりします。</translation>
    </message>
    <message>
        <source>Text String
A sequence of characters defined by users. Text string can be text message, source code or script that stored in the assigned key. Recall the text string by pressing on the button.</source>
        <translation>テキスト
ユーザーが定義した文字列です。メッセージ、ソースコード、スクリプトなどを割り当てたキーに保存できます。ボタンを押すとテキストが入力されます。</translation>
    </message>
    <message>
        <source>Drag an action from above list and drop into section on the left.</source>
        <translation>上の一覧からアクションをドラッグし、左側のキーにドロップしてください。</translation>
    </message>
</context>
<context>
    <name>HotkeyForm</name>
    <message>
        <source>Hotkey</source>
        <extracomment>Heading of the form of a hotkey: a keypad key that types a keyboard shortcut.</extracomment>
        <translation>ホットキー</translation>
    </message>
    <message>
        <source>Key combination</source>
        <translation>キーの組み合わせ</translation>
    </message>
    <message>
        <source>Toggle between two hotkeys</source>
        <translation>2 つのホットキーを切り替える</translation>
    </message>
    <message>
        <source>Second key combination</source>
        <translation>2 つ目のキーの組み合わせ</translation>
    </message>
    <message>
        <source>Second title</source>
        <translation>2 つ目のタイトル</translation>
    </message>
    <message>
        <source>The keypad shows the first hotkey now.</source>
        <translation>キーパッドは現在 1 つ目のホットキーを表示しています。</translation>
    </message>
    <message>
        <source>The keypad shows the second hotkey now.</source>
        <translation>キーパッドは現在 2 つ目のホットキーを表示しています。</translation>
    </message>
</context>
<context>
    <name>HotkeyRecorder</name>
    <message>
        <source>Press a key combination</source>
        <translation>キーの組み合わせを押してください</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>未設定</translation>
    </message>
    <message>
        <source>That key cannot be typed. Press another one</source>
        <translation>そのキーは入力できません。別のキーを押してください</translation>
    </message>
    <message>
        <source>Click, or press Enter or Space, to record a key combination</source>
        <translation>クリックするか Enter キーまたは Space キーを押して、キーの組み合わせを記録します</translation>
    </message>
    <message>
        <source>Keys a keyboard may lack</source>
        <translation>キーボードにないことがあるキー</translation>
    </message>
</context>
<context>
    <name>IconChooser</name>
    <message>
        <source>Choose Icon</source>
        <translation>アイコンの選択</translation>
    </message>
    <message>
        <source>Image &amp;file</source>
        <translation>画像ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>Icon &amp;theme</source>
        <translation>アイコンテーマ(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Emoji</source>
        <translation>絵文字(&amp;E)</translation>
    </message>
    <message>
        <source>The key with this icon</source>
        <translation>このアイコンのキー</translation>
    </message>
    <message>
        <source>Choose image file…</source>
        <translation>画像ファイルを選択…</translation>
    </message>
    <message>
        <source>PNG, JPEG, SVG, WebP, GIF (its first picture) and the other image formats of this system. The picture is fitted into the key without distortion; transparent parts stay transparent.</source>
        <translation>PNG、JPEG、SVG、WebP、GIF (最初のコマ) と、このシステムで扱えるその他の画像形式。画像はゆがまないようにキーに合わせて縮小・拡大され、透明な部分は透明のまま残ります。</translation>
    </message>
    <message>
        <source>&amp;Icons:</source>
        <translation>アイコン(&amp;I):</translation>
    </message>
    <message>
        <source>E&amp;moji:</source>
        <translation>絵文字(&amp;M):</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 を読み込めません: %2</translation>
    </message>
    <message>
        <source>Reading the icon theme…</source>
        <translation>アイコンテーマを読み込んでいます…</translation>
    </message>
    <message>
        <source>Reading the emoji…</source>
        <translation>絵文字を読み込んでいます…</translation>
    </message>
    <message>
        <source>The icon theme &quot;%1&quot; has no icons.</source>
        <translation>アイコンテーマ「%1」にはアイコンがありません。</translation>
    </message>
    <message>
        <source>No icon chosen.</source>
        <translation>アイコンが選択されていません。</translation>
    </message>
</context>
<context>
    <name>IconGridPage</name>
    <message>
        <source>&amp;Search:</source>
        <translation>検索(&amp;S):</translation>
    </message>
    <message>
        <source>Type words of the name</source>
        <translation>名前に含まれる語を入力</translation>
    </message>
    <message>
        <source>Nothing matches the search.</source>
        <translation>検索に一致するものはありません。</translation>
    </message>
    <message numerus="yes">
        <source>%n shown</source>
        <translation>
            <numerusform>%n 件を表示</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportExportPage</name>
    <message>
        <source>Export layout…</source>
        <translation>レイアウトをエクスポート…</translation>
    </message>
    <message>
        <source>The keys of the layout in use, with their folders, as a .kslayout file.</source>
        <translation>使用中のレイアウトのキーを、フォルダーも含めて .kslayout ファイルに書き出します。</translation>
    </message>
    <message>
        <source>Export My Favorite…</source>
        <translation>お気に入りをエクスポート…</translation>
    </message>
    <message>
        <source>All of My Favorite as a .ksfavorites file.</source>
        <translation>お気に入りのすべてを .ksfavorites ファイルに書き出します。</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>インポート…</translation>
    </message>
    <message>
        <source>A .kslayout file replaces the keys of the layout in use; a .ksfavorites file adds to My Favorite. You are asked first.</source>
        <translation>.kslayout ファイルは使用中のレイアウトのキーを置き換え、.ksfavorites ファイルはお気に入りに追加されます。実行前に確認します。</translation>
    </message>
    <message>
        <source>Back up everything…</source>
        <translation>すべてをバックアップ…</translation>
    </message>
    <message>
        <source>Every layout and My Favorite, each in a file of its own, into a new dated folder inside the folder you choose.</source>
        <translation>すべてのレイアウトとお気に入りを、それぞれ個別のファイルとして、選んだフォルダー内に作成する日付付きの新しいフォルダーに保存します。</translation>
    </message>
    <message>
        <source>Import and export</source>
        <translation>インポートとエクスポート</translation>
    </message>
    <message>
        <source>Export layout</source>
        <translation>レイアウトのエクスポート</translation>
    </message>
    <message>
        <source>Keystage layout (*.kslayout)</source>
        <translation>Keystage レイアウト (*.kslayout)</translation>
    </message>
    <message>
        <source>The layout was exported to %1.</source>
        <translation>レイアウトを %1 にエクスポートしました。</translation>
    </message>
    <message>
        <source>The layout could not be exported to %1.</source>
        <translation>レイアウトを %1 にエクスポートできませんでした。</translation>
    </message>
    <message>
        <source>Export My Favorite</source>
        <translation>お気に入りのエクスポート</translation>
    </message>
    <message>
        <source>Keystage favorites (*.ksfavorites)</source>
        <translation>Keystage お気に入り (*.ksfavorites)</translation>
    </message>
    <message>
        <source>My Favorite was exported to %1.</source>
        <translation>お気に入りを %1 にエクスポートしました。</translation>
    </message>
    <message>
        <source>My Favorite could not be exported to %1.</source>
        <translation>お気に入りを %1 にエクスポートできませんでした。</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>Keystage files (*.kslayout *.ksfavorites);;Keystage layout (*.kslayout);;Keystage favorites (*.ksfavorites)</source>
        <translation>Keystage ファイル (*.kslayout *.ksfavorites);;Keystage レイアウト (*.kslayout);;Keystage お気に入り (*.ksfavorites)</translation>
    </message>
    <message>
        <source>Back up everything into</source>
        <translation>すべてのバックアップ先</translation>
    </message>
    <message numerus="yes">
        <source>%n files were written to %1.</source>
        <translation>
            <numerusform>%n 個のファイルを %1 に書き込みました。</numerusform>
        </translation>
    </message>
    <message>
        <source>The backup failed. %1</source>
        <translation>バックアップに失敗しました。%1</translation>
    </message>
</context>
<context>
    <name>InsertKeyDialog</name>
    <message>
        <source>Insert key</source>
        <translation>キーの挿入</translation>
    </message>
    <message>
        <source>&amp;Key to insert (a press and a release, with its modifiers around it):</source>
        <translation>挿入するキー(&amp;K) (押下と解放を、修飾キーで囲んで挿入します):</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>挿入</translation>
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
        <translation>新しいフォルダー(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Create Actions</source>
        <translation>アクションを作成(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Hotkey</source>
        <translation>ホットキー(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Macro</source>
        <translation>マクロ(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Launch</source>
        <extracomment>The action that starts a program or opens a file (a verb, as in the action palette).</extracomment>
        <translation>起動(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Website</source>
        <translation>ウェブサイト(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Text String</source>
        <translation>テキスト(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Cut</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Save as favorite</source>
        <translation>お気に入りに保存(&amp;S)</translation>
    </message>
</context>
<context>
    <name>KeyGridController</name>
    <message>
        <source>The limit of folder is different.</source>
        <translation>フォルダーの上限が異なります。</translation>
    </message>
    <message>
        <source>If continues, some items may be lost. Are you sure you want to proceed?</source>
        <translation>続行すると一部の項目が失われる可能性があります。続行してもよろしいですか？</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this item?</source>
        <translation>この項目を削除してもよろしいですか？</translation>
    </message>
    <message>
        <source>You can&apos;t undo this action.</source>
        <translation>この操作は元に戻せません。</translation>
    </message>
    <message>
        <source>Don&apos;t ask me again</source>
        <translation>今後確認しない</translation>
    </message>
</context>
<context>
    <name>KeyItemForm</name>
    <message>
        <source>Title</source>
        <extracomment>The text shown on the key of the keypad, under its icon.</extracomment>
        <translation>タイトル</translation>
    </message>
</context>
<context>
    <name>KeyItemGridView</name>
    <message>
        <source>Keys</source>
        <extracomment>The keys of the keypad, as the editor shows them.</extracomment>
        <translation>キー</translation>
    </message>
    <message>
        <source>Key %1: empty</source>
        <extracomment>%1 is the number of a key on the keypad.</extracomment>
        <translation>キー %1: 空</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The key that leads out of a folder page, back to the page above.</extracomment>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Key %1: %2</source>
        <translation>キー %1: %2</translation>
    </message>
    <message>
        <source>Key %1: %2, %3</source>
        <translation>キー %1: %2、%3</translation>
    </message>
</context>
<context>
    <name>KeyItemModel</name>
    <message>
        <source>Copy</source>
        <extracomment>Title of a default key (the Copy hotkey); a key face is 72 pixels wide.</extracomment>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Paste</source>
        <extracomment>Title of a default key (the Paste hotkey).</extracomment>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Media</source>
        <extracomment>Title of a default folder key holding the volume keys.</extracomment>
        <translation>メディア</translation>
    </message>
    <message>
        <source>Mute</source>
        <extracomment>Title of a default key: mutes the sound.</extracomment>
        <translation>ミュート</translation>
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
            <numerusform>%n ステップ</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n key(s)</source>
        <translation>
            <numerusform>%n キー</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>KeyMapping</name>
    <message>
        <source>Unknown key</source>
        <translation>不明なキー</translation>
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
        <translation>F13〜F24</translation>
    </message>
    <message>
        <source>Keys the recorder uses</source>
        <translation>記録に使うキー</translation>
    </message>
</context>
<context>
    <name>KeypadAccess</name>
    <message>
        <source>Install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d), then run &quot;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&quot; or unplug and replug the keypad.</source>
        <translation>udev ルール 70-keystage.rules を (パッケージが /usr/lib/udev/rules.d に置いていない場合は /etc/udev/rules.d に) インストールしてから、「sudo udevadm control --reload &amp;&amp; sudo udevadm trigger」を実行するか、キーパッドを接続し直してください。</translation>
    </message>
</context>
<context>
    <name>KeypadPage</name>
    <message>
        <source>Keypad</source>
        <extracomment>The USB keypad with LCD keys this program drives.</extracomment>
        <translation>キーパッド</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>Firmware version</source>
        <translation>ファームウェアのバージョン</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Set on the keypad as you move it, and on every keypad you connect.</source>
        <translation>動かすとキーパッドに反映され、接続するすべてのキーパッドにも適用されます。</translation>
    </message>
    <message>
        <source>Show logo</source>
        <translation>ロゴを表示</translation>
    </message>
    <message>
        <source>No keypad connected</source>
        <translation>キーパッドが接続されていません</translation>
    </message>
    <message>
        <source>Reading the keypad…</source>
        <translation>キーパッドを読み込んでいます…</translation>
    </message>
    <message>
        <source>The keypad does not answer.</source>
        <translation>キーパッドが応答しません。</translation>
    </message>
    <message>
        <source>The keypad shows its logo for a moment.</source>
        <translation>キーパッドにロゴが少しの間表示されます。</translation>
    </message>
    <message>
        <source>The keypad did not show its logo.</source>
        <translation>キーパッドにロゴを表示できませんでした。</translation>
    </message>
</context>
<context>
    <name>KeystrokeBackend</name>
    <message>
        <source>To let them type, install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d) and run &quot;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&quot;, or log in to an X11 session.</source>
        <translation>入力できるようにするには、udev ルール 70-keystage.rules を (パッケージが /usr/lib/udev/rules.d に置いていない場合は /etc/udev/rules.d に) インストールして「sudo udevadm control --reload &amp;&amp; sudo udevadm trigger」を実行するか、X11 セッションにログインしてください。</translation>
    </message>
    <message>
        <source>This is a Wayland session, and without access to /dev/uinput keys are typed through XWayland, which only programs running under X receive. To reach every program, install the udev rule 70-keystage.rules (into /etc/udev/rules.d, unless a package has put it into /usr/lib/udev/rules.d), run &quot;sudo udevadm control --reload &amp;&amp; sudo udevadm trigger&quot; and start %1 again.</source>
        <translation>これは Wayland セッションで、/dev/uinput にアクセスできないため、キーは XWayland を通して入力され、X で動くプログラムにしか届きません。すべてのプログラムに届けるには、udev ルール 70-keystage.rules をインストールし（パッケージが /usr/lib/udev/rules.d に置いていない場合は /etc/udev/rules.d へ）、「sudo udevadm control --reload &amp;&amp; sudo udevadm trigger」を実行してから %1 を起動し直してください。</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>The language of %1&apos;s windows. It changes when %1 starts again.</source>
        <translation>%1 のウィンドウの言語です。%1 の次回起動時に変わります。</translation>
    </message>
    <message>
        <source>Use this language</source>
        <translation>この言語を使う</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>The language could not be stored.</source>
        <translation>言語を保存できませんでした。</translation>
    </message>
    <message>
        <source>Restart %1 now?</source>
        <translation>%1 を今すぐ再起動しますか？</translation>
    </message>
    <message>
        <source>%1 is used from the next start.</source>
        <translation>次回の起動から %1 を使用します。</translation>
    </message>
</context>
<context>
    <name>LaunchForm</name>
    <message>
        <source>Launch</source>
        <extracomment>Heading of the form of a Launch key: the action that starts a program or opens a file (a verb).</extracomment>
        <translation>起動</translation>
    </message>
    <message>
        <source>A program, script, document or folder</source>
        <translation>プログラム、スクリプト、文書、またはフォルダー</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Choose file…</source>
        <translation>ファイルを選択…</translation>
    </message>
    <message>
        <source>Choose application…</source>
        <translation>アプリケーションを選択…</translation>
    </message>
    <message>
        <source>Use as title</source>
        <translation>タイトルとして使う</translation>
    </message>
    <message>
        <source>Use &quot;%1&quot; as the title?</source>
        <translation>「%1」をタイトルとして使いますか？</translation>
    </message>
</context>
<context>
    <name>LayoutPage</name>
    <message>
        <source>Choose the keypad you use and how you hold it. The editor and the keypad change at once; every layout keeps its own keys.</source>
        <translation>使用するキーパッドと、その向きを選んでください。エディターとキーパッドはすぐに切り替わります。レイアウトごとに独自のキーが保持されます。</translation>
    </message>
    <message>
        <source>Keypad size</source>
        <translation>キーパッドのサイズ</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>向き</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>横</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>縦</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>レイアウト</translation>
    </message>
</context>
<context>
    <name>LayoutText</name>
    <message>
        <source>%1 keys</source>
        <translation>%1 キー</translation>
    </message>
    <message>
        <source>%1 keys, vertical</source>
        <translation>%1 キー、縦</translation>
    </message>
    <message>
        <source>%1 keys, horizontal</source>
        <translation>%1 キー、横</translation>
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
        <translation>メモリ</translation>
    </message>
    <message>
        <source>Net B/s</source>
        <translation>ネット B/s</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>Record</source>
        <translation>記録</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>&amp;Steps:</source>
        <translation>ステップ(&amp;S):</translation>
    </message>
    <message>
        <source>Steps:</source>
        <translation>ステップ:</translation>
    </message>
    <message>
        <source>Insert key…</source>
        <translation>キーを挿入…</translation>
    </message>
    <message>
        <source>Add text…</source>
        <translation>テキストを追加…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>Removes every step of the macro.</extracomment>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Add the missing releases</source>
        <translation>足りない解放を追加</translation>
    </message>
    <message>
        <source>Recording: press the keys of the macro. Esc alone or Stop ends the recording.</source>
        <translation>記録中: マクロのキーを押してください。Esc キーのみを押すか「停止」で記録を終了します。</translation>
    </message>
    <message numerus="yes">
        <source>%n key(s) that cannot be typed left out.</source>
        <translation>
            <numerusform>入力できないキー %n 個を省きました。</numerusform>
        </translation>
    </message>
    <message>
        <source>The macro leaves %1 held down: it stays pressed after the macro has played.</source>
        <translation>このマクロは %1 を押したままにします。マクロの再生後も押されたままになります。</translation>
    </message>
    <message numerus="yes">
        <source>Recording: press the keys of the macro. Esc alone or Stop ends the recording. %n key(s) that cannot be typed left out.</source>
        <translation>
            <numerusform>記録中: マクロのキーを押してください。Esc キーのみを押すか「停止」で記録を終了します。入力できないキー %n 個を省きました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MacroForm</name>
    <message>
        <source>Macro</source>
        <translation>マクロ</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>ステップ</translation>
    </message>
</context>
<context>
    <name>MacroStepModel</name>
    <message>
        <source>Down</source>
        <extracomment>A macro step presses (Down) or releases (Up) a key; read aloud after the key name.</extracomment>
        <translation>押下</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>解放</translation>
    </message>
    <message>
        <source>%1: %2 %3</source>
        <extracomment>A macro step, as a screen reader reads it: &quot;3: Shift down&quot;.</extracomment>
        <translation>%1: %2 %3</translation>
    </message>
    <message>
        <source>Key</source>
        <extracomment>Column header: the keyboard key a macro step presses or releases.</extracomment>
        <translation>キー</translation>
    </message>
    <message>
        <source>Press or release</source>
        <translation>押下または解放</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Hotkeys and macros cannot type keys.</source>
        <translation>ホットキーとマクロでキーを入力できません。</translation>
    </message>
    <message>
        <source>Your settings were damaged and have been reset.</source>
        <translation>設定が破損していたため、リセットしました。</translation>
    </message>
    <message>
        <source>The damaged file was kept as %1.</source>
        <translation>破損したファイルは %1 として保存しました。</translation>
    </message>
    <message>
        <source>No keypad connected</source>
        <translation>キーパッドが接続されていません</translation>
    </message>
    <message>
        <source>Virtual keypad connected</source>
        <translation>仮想キーパッドが接続されました</translation>
    </message>
    <message>
        <source>Keypad connected</source>
        <translation>キーパッドが接続されました</translation>
    </message>
    <message>
        <source>Keypad found, but no permission to use it. %1</source>
        <translation>キーパッドが見つかりましたが、使用する権限がありません。%1</translation>
    </message>
    <message>
        <source>Keypad status: %1</source>
        <translation>キーパッドの状態: %1</translation>
    </message>
    <message>
        <source>%1 could not be imported.</source>
        <translation>%1 をインポートできませんでした。</translation>
    </message>
    <message>
        <source>Replace the keys of this layout?</source>
        <translation>このレイアウトのキーを置き換えますか？</translation>
    </message>
    <message>
        <source>The keys of the current layout are replaced by those of %1. You can&apos;t undo this action.</source>
        <translation>現在のレイアウトのキーは %1 のキーで置き換えられます。この操作は元に戻せません。</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>%1 について</translation>
    </message>
    <message>
        <source>The desktop companion of your LCD macro keypad.</source>
        <translation>LCD マクロキーパッドのためのデスクトップアプリです。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>%1 cannot quit now.</source>
        <translation>%1 は今は終了できません。</translation>
    </message>
    <message numerus="yes">
        <source>The keys of the current layout are replaced by those of %1. You can&apos;t undo this action.
%n key(s) do not fit this layout and will be lost.</source>
        <translation>
            <numerusform>現在のレイアウトのキーは %1 のキーで置き換えられます。この操作は元に戻せません。
%n 個のキーはこのレイアウトに収まらないため失われます。</numerusform>
        </translation>
    </message>
    <message>
        <source>Hotkeys and macros type into X applications only.</source>
        <translation>ホットキーとマクロは X アプリケーションにしか入力されません。</translation>
    </message>
    <message>
        <source>Your settings cannot be saved.</source>
        <translation>設定を保存できません。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. Your changes are kept while %3 runs and saved as soon as the file can be written again.</source>
        <translation>%1 に書き込めません: %2。変更は %3 の実行中は保持され、ファイルに書き込めるようになりしだい保存されます。</translation>
    </message>
</context>
<context>
    <name>PreferenceDialog</name>
    <message>
        <source>%1 Settings</source>
        <translation>%1 の設定</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>設定ページ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>The settings cannot be closed now.</source>
        <translation>今は設定を閉じられません。</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Do you want to update firmware?</source>
        <translation>ファームウェアを更新しますか？</translation>
    </message>
    <message>
        <source>Firmware version %1 is now available - current version %2 Would you like to update now?</source>
        <extracomment>%1 is the firmware this program carries, %2 the firmware on the keypad.</extracomment>
        <translation>ファームウェアのバージョン %1 が利用可能です (現在のバージョン: %2)。今すぐ更新しますか？</translation>
    </message>
    <message>
        <source>Choose an image</source>
        <translation>画像の選択</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>画像 (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Choose a program</source>
        <translation>プログラムの選択</translation>
    </message>
    <message>
        <source>Choose a program, script, document or folder</source>
        <translation>プログラム、スクリプト、文書、フォルダーの選択</translation>
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
        <translation>6 つすべてのレイアウトで、作成したすべてのキーをフォルダーも含めて削除し、新規インストール時のキーに戻します。お気に入りとその他の設定はそのまま残ります。コピーを残すには、先に「インポートとエクスポート」の「すべてをバックアップ」を使ってください。</translation>
    </message>
    <message>
        <source>Reset all keys…</source>
        <translation>すべてのキーをリセット…</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Are you sure you want to reset the keys of every layout?</source>
        <translation>すべてのレイアウトのキーをリセットしてもよろしいですか？</translation>
    </message>
    <message>
        <source>You can&apos;t undo this action.</source>
        <translation>この操作は元に戻せません。</translation>
    </message>
    <message>
        <source>Every layout has its default keys again.</source>
        <translation>すべてのレイアウトが既定のキーに戻りました。</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The file cannot be read.</source>
        <translation>ファイルを読み込めません。</translation>
    </message>
    <message>
        <source>The file is not a Keystage layout or favourites file.</source>
        <translation>このファイルは Keystage のレイアウトファイルでもお気に入りファイルでもありません。</translation>
    </message>
    <message>
        <source>The file was changed or damaged after it was exported: its checksum does not match.</source>
        <translation>このファイルはエクスポート後に変更されたか破損しています。チェックサムが一致しません。</translation>
    </message>
</context>
<context>
    <name>SoftwareUpdate</name>
    <message>
        <source>Checking for updates is turned off.</source>
        <translation>更新の確認はオフになっています。</translation>
    </message>
    <message>
        <source>This build names an update address that is not HTTPS; it is not used.</source>
        <translation>このビルドは HTTPS ではない更新アドレスを指定しているため、使用しません。</translation>
    </message>
    <message>
        <source>The update information is too large.</source>
        <translation>更新情報が大きすぎます。</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>更新を確認しています…</translation>
    </message>
    <message>
        <source>The download was cancelled.</source>
        <translation>ダウンロードはキャンセルされました。</translation>
    </message>
    <message>
        <source>The update server answered with HTTP status %1.</source>
        <translation>更新サーバーが HTTP ステータス %1 を返しました。</translation>
    </message>
    <message>
        <source>The update server did not answer in time.</source>
        <translation>更新サーバーが時間内に応答しませんでした。</translation>
    </message>
    <message>
        <source>The update server could not be reached: %1</source>
        <translation>更新サーバーに接続できませんでした: %1</translation>
    </message>
    <message>
        <source>Keystage %1 is up to date.</source>
        <translation>Keystage %1 は最新です。</translation>
    </message>
    <message>
        <source>Keystage %1 is available. You have %2.</source>
        <translation>Keystage %1 が利用可能です。現在のバージョンは %2 です。</translation>
    </message>
    <message>
        <source>Downloading Keystage %1…</source>
        <translation>Keystage %1 をダウンロードしています…</translation>
    </message>
    <message>
        <source>The download cannot be saved: %1</source>
        <translation>ダウンロードを保存できません: %1</translation>
    </message>
    <message>
        <source>The package is larger than %1 MB; it is not downloaded.</source>
        <translation>パッケージが %1 MB を超えているため、ダウンロードしません。</translation>
    </message>
    <message>
        <source>The download ended early: %1 of %2 bytes arrived.</source>
        <translation>ダウンロードが途中で終了しました: %2 バイト中 %1 バイトを受信しました。</translation>
    </message>
    <message>
        <source>The downloaded package does not match the checksum the update server gave, so it was deleted.</source>
        <translation>ダウンロードしたパッケージが更新サーバーの示したチェックサムと一致しないため、削除しました。</translation>
    </message>
    <message>
        <source>No package installer could be opened. The verified package is saved as %1.</source>
        <translation>パッケージインストーラーを開けませんでした。検証済みのパッケージは %1 として保存されています。</translation>
    </message>
    <message>
        <source>The package installer has opened Keystage %1. Once it has installed it, restart Keystage to use the new version.</source>
        <translation>パッケージインストーラーで Keystage %1 を開きました。インストールが終わったら、Keystage を再起動して新しいバージョンを使ってください。</translation>
    </message>
</context>
<context>
    <name>SoftwareUpdatePage</name>
    <message>
        <source>Keystage is updated by your distribution&apos;s package manager, together with the rest of the system. Use your software centre or package manager to get new versions.</source>
        <translation>Keystage は、システムのほかの部分と一緒にディストリビューションのパッケージマネージャーで更新されます。新しいバージョンは、ソフトウェアセンターまたはパッケージマネージャーから入手してください。</translation>
    </message>
    <message>
        <source>Updates normally come from your distribution&apos;s package manager. Keystage can also look for a newer release itself; it connects to the network only while this is turned on.</source>
        <translation>更新は通常、ディストリビューションのパッケージマネージャーから提供されます。Keystage 自身が新しいリリースを確認することもできます。ネットワークに接続するのは、この設定がオンの間だけです。</translation>
    </message>
    <message>
        <source>Check for &amp;updates</source>
        <translation>更新を確認する(&amp;U)</translation>
    </message>
    <message>
        <source>Check &amp;now</source>
        <translation>今すぐ確認(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>インストール(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Cancel download</source>
        <translation>ダウンロードをキャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Restart Keystage</source>
        <translation>Keystage を再起動(&amp;R)</translation>
    </message>
    <message>
        <source>Download progress</source>
        <translation>ダウンロードの進行状況</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>ソフトウェアの更新</translation>
    </message>
    <message>
        <source>Keystage is still downloading the update. Wait until it has finished, or cancel the download.</source>
        <translation>Keystage は更新をダウンロード中です。完了するまで待つか、ダウンロードをキャンセルしてください。</translation>
    </message>
    <message>
        <source>What is new:</source>
        <translation>新機能:</translation>
    </message>
</context>
<context>
    <name>StartAtLoginPage</name>
    <message>
        <source>Start %1 when I log in</source>
        <translation>ログイン時に %1 を起動する</translation>
    </message>
    <message>
        <source>%1 starts in the tray, so the keypad works from the start without a window in the way. The desktop reads this from %2.</source>
        <translation>%1 はシステムトレイで起動するため、ウィンドウに邪魔されることなく最初からキーパッドが使えます。デスクトップはこの設定を %2 から読み込みます。</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>ログイン時に起動</translation>
    </message>
    <message>
        <source>This could not be changed: %1</source>
        <translation>変更できませんでした: %1</translation>
    </message>
</context>
<context>
    <name>TextStringForm</name>
    <message>
        <source>Text String</source>
        <extracomment>Heading of the form of a key that types a stored text.</extracomment>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>The key pastes the text through the clipboard, and the text stays on the clipboard afterwards.</source>
        <translation>このキーはクリップボード経由でテキストを貼り付けます。貼り付けた後もテキストはクリップボードに残ります。</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>About</source>
        <translation>このアプリについて</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>TitleStyleDialog</name>
    <message>
        <source>Title Style</source>
        <translation>タイトルのスタイル</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>フォント(&amp;F):</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>サイズ(&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>太字(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>斜体(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>下線(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Color…</source>
        <translation>色(&amp;C)…</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>色:</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>位置:</translation>
    </message>
    <message>
        <source>The key on the keypad</source>
        <translation>キーパッド上のキー</translation>
    </message>
    <message>
        <source>The key in the editor&apos;s grid</source>
        <translation>エディターのグリッド上のキー</translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation>プレビュー:</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top center</source>
        <translation>中央上</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation>左中央</translation>
    </message>
    <message>
        <source>Middle center</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation>右中央</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom center</source>
        <translation>中央下</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Title Color</source>
        <translation>タイトルの色</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Virtual Keypad</source>
        <translation>仮想キーパッド</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>About</source>
        <translation>このアプリについて</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>TreeView</name>
    <message>
        <source>Home</source>
        <extracomment>The top page of the keypad, above every folder.</extracomment>
        <translation>ホーム</translation>
    </message>
    <message>
        <source>Folder tree</source>
        <translation>フォルダーツリー</translation>
    </message>
</context>
<context>
    <name>UpdateFeed</name>
    <message>
        <source>The update information is too large.</source>
        <translation>更新情報が大きすぎます。</translation>
    </message>
    <message>
        <source>The update information is not readable.</source>
        <translation>更新情報を読み取れません。</translation>
    </message>
    <message>
        <source>The update information has no valid version.</source>
        <translation>更新情報に有効なバージョンがありません。</translation>
    </message>
    <message>
        <source>The update information has no valid package address (an HTTPS address of a .deb package).</source>
        <translation>更新情報に有効なパッケージのアドレス (.deb パッケージの HTTPS アドレス) がありません。</translation>
    </message>
    <message>
        <source>The update information has no valid SHA-256 checksum.</source>
        <translation>更新情報に有効な SHA-256 チェックサムがありません。</translation>
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
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続行</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
</context>
<context>
    <name>VirtualKeypadWindow</name>
    <message>
        <source>Virtual Keypad</source>
        <translation>仮想キーパッド</translation>
    </message>
    <message>
        <source>unplugged</source>
        <translation>未接続</translation>
    </message>
</context>
<context>
    <name>WebsiteForm</name>
    <message>
        <source>Website</source>
        <translation>ウェブサイト</translation>
    </message>
    <message>
        <source>example.com or https://…</source>
        <translation>example.com または https://…</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Choose bookmark…</source>
        <translation>ブックマークを選択…</translation>
    </message>
    <message>
        <source>An address without &quot;https://&quot; opens as &quot;http://&quot;.</source>
        <translation>「https://」のないアドレスは「http://」として開きます。</translation>
    </message>
</context>
<context>
    <name>WindowSystem</name>
    <message>
        <source>This desktop does not tell which application is in front, so folders cannot open by application. On Wayland, sway, Hyprland, KDE Plasma and GNOME (with Keystage&apos;s extension) do.</source>
        <translation>このデスクトップは前面のアプリケーションを知らせないため、アプリケーションごとにフォルダーを開けません。Wayland では sway、Hyprland、KDE Plasma、GNOME（Keystage の拡張機能を使用）が対応しています。</translation>
    </message>
</context>
</TS>
