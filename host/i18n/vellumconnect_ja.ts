<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>CommandLine</name>
    <message>
        <source>Show this help and exit.</source>
        <translation>このヘルプを表示して終了します。</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>バージョンを表示して終了します。</translation>
    </message>
    <message>
        <source>Keep your own data in DIR.</source>
        <translation>自分のデータを DIR に保存します。</translation>
    </message>
    <message>
        <source>Load the plug-ins of DIR.</source>
        <translation>DIR のプラグインを読み込みます。</translation>
    </message>
    <message>
        <source>Show texts in the language LANG, such as en or pt_BR.</source>
        <translation>言語 LANG (en や pt_BR など) で表示します。</translation>
    </message>
    <message>
        <source>Print the quick links and exit. Needs no display.</source>
        <translation>クイックリンクを出力して終了します。画面は不要です。</translation>
    </message>
    <message>
        <source>Connection manager with quick links.</source>
        <translation>クイックリンクを備えた接続マネージャー。</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>予期しない引数「%1」です。</translation>
    </message>
    <message>
        <source>Empty value after &quot;--%1&quot;.</source>
        <translation>「--%1」の後の値が空です。</translation>
    </message>
    <message>
        <source>Follow connections of KIND: mobile (mobile broadband, the default), any (whatever has a default route) or manual (you press a button).</source>
        <translation>種類 KIND の接続を追います: mobile (モバイルブロードバンド、既定)、any (既定の経路を持つものすべて)、manual (ボタンを押す)。</translation>
    </message>
    <message>
        <source>No such kind of connection: &quot;%1&quot;.</source>
        <translation>この種類の接続はありません: 「%1」</translation>
    </message>
</context>
<context>
    <name>CommonUtils</name>
    <message>
        <source>Only Internet addresses (http, https and ftp) are opened. This is none:</source>
        <translation>開けるのはインターネットアドレス (http、https、ftp) だけです。これは該当しません:</translation>
    </message>
    <message>
        <source>No program could be started for this address:</source>
        <translation>このアドレスを開くプログラムを起動できませんでした:</translation>
    </message>
    <message>
        <source>Address not opened</source>
        <translation>アドレスを開けませんでした</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Second button of messages. Up to about 14 characters.</extracomment>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>ConnectionPanel</name>
    <message>
        <source>&amp;Disconnect</source>
        <translation>切断(&amp;D)</translation>
    </message>
    <message>
        <source>Co&amp;nnect</source>
        <translation>接続(&amp;N)</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>接続:</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>デバイス:</translation>
    </message>
    <message>
        <source>Operator:</source>
        <translation>通信事業者:</translation>
    </message>
    <message>
        <source>Since:</source>
        <translation>開始:</translation>
    </message>
</context>
<context>
    <name>ConnectionTexts</name>
    <message>
        <source>%1: %2</source>
        <comment>state and name of the connection</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>接続しています…</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>This network asks for a login first.</source>
        <translation>このネットワークでは、先にログインが必要です。</translation>
    </message>
    <message>
        <source>The Internet is out of reach.</source>
        <translation>インターネットに到達できません。</translation>
    </message>
    <message>
        <source>Press Connect when your connection is up.</source>
        <translation>接続が確立したら「接続」を押してください。</translation>
    </message>
    <message>
        <source>Waiting for mobile broadband.</source>
        <translation>モバイルブロードバンドを待っています。</translation>
    </message>
    <message>
        <source>Waiting for a connection.</source>
        <translation>接続を待っています。</translation>
    </message>
    <message>
        <source>before this program started</source>
        <translation>このプログラムの起動前</translation>
    </message>
    <message>
        <source>NetworkManager is not running</source>
        <translation>NetworkManager が動作していません</translation>
    </message>
    <message>
        <source>Built without NetworkManager</source>
        <translation>NetworkManager なしでビルドされています</translation>
    </message>
</context>
<context>
    <name>DesktopOpener</name>
    <message>
        <source>There is no such file or folder:</source>
        <translation>このファイルまたはフォルダーはありません:</translation>
    </message>
    <message>
        <source>No program was found that opens this:</source>
        <translation>これを開くプログラムが見つかりませんでした:</translation>
    </message>
    <message>
        <source>The program that opens this reported a failure:</source>
        <translation>これを開くプログラムがエラーを報告しました:</translation>
    </message>
    <message>
        <source>The desktop could not open this:</source>
        <translation>デスクトップ環境がこれを開けませんでした:</translation>
    </message>
    <message>
        <source>Opening this needs the program &quot;xdg-open&quot;, which could not be started:</source>
        <translation>これを開くにはプログラム「xdg-open」が必要ですが、起動できませんでした:</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>システムの言語(&amp;S)</translation>
    </message>
</context>
<context>
    <name>LinkButtons</name>
    <message>
        <source>No quick links yet. Add some with Tools &gt; Settings.</source>
        <translation>クイックリンクはまだありません。「ツール &gt; 設定」で追加してください。</translation>
    </message>
</context>
<context>
    <name>LinkOpener</name>
    <message>
        <source>There is no such file or folder, or you are not allowed to see it:</source>
        <translation>このファイルまたはフォルダーは存在しないか、表示する権限がありません:</translation>
    </message>
    <message>
        <source>You are not allowed to open this:</source>
        <translation>これを開く権限がありません:</translation>
    </message>
    <message>
        <source>This program could not be started:</source>
        <translation>このプログラムを起動できませんでした:</translation>
    </message>
    <message>
        <source>Not opened</source>
        <translation>開けませんでした</translation>
    </message>
</context>
<context>
    <name>LinkTable</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>プラグイン</translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation>クイックリンクはありません</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Not loaded: %1</source>
        <translation>読み込まれていません: %1</translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation>クイックリンク</translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation>クイックリンクはありません</translation>
    </message>
    <message>
        <source>&amp;Connection</source>
        <translation>接続(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>プログラムを閉じる</translation>
    </message>
    <message>
        <source>&amp;Quick Links</source>
        <translation>クイックリンク(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>ツール(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>設定(&amp;S)…</translation>
    </message>
    <message>
        <source>Add, change and order quick links</source>
        <translation>クイックリンクの追加、変更、並べ替え</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>ステータスバー(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About Vellum Connect</source>
        <translation>Vellum Connect について(&amp;A)</translation>
    </message>
    <message>
        <source>About Vellum Connect</source>
        <translation>Vellum Connect について</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Vellum Connect %1&lt;/h3&gt;&lt;p&gt;Connection manager with quick links.&lt;/p&gt;&lt;p&gt;Free software under the MIT licence.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Vellum Connect %1&lt;/h3&gt;&lt;p&gt;クイックリンクを備えた接続マネージャー。&lt;/p&gt;&lt;p&gt;MIT ライセンスの自由ソフトウェアです。&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>MenuManager</name>
    <message>
        <source>Open %1</source>
        <translation>%1 を開く</translation>
    </message>
</context>
<context>
    <name>QuickLinkUIPlugin</name>
    <message>
        <source>IDS_SETTING_NAME</source>
        <extracomment>Caption of the page in the list of the settings dialog. Up to about 20 characters.</extracomment>
        <translation>クイックリンク</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TAB</source>
        <extracomment>Title of the only tab of the settings page, above the table. Up to about 30 characters (the tab widget is 280 pixels wide).</extracomment>
        <translation>クイックリンク</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_ORDER</source>
        <extracomment>Label above the table of the settings page. Up to about 35 characters (250 pixels). Labels are low: a capital letter with an accent, such as an umlaut, loses it with Qt 6.</extracomment>
        <translation>リンクはこの順に開きます:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME</source>
        <extracomment>Header of the table&apos;s first column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>名前</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TYPE</source>
        <extracomment>Header of the table&apos;s second column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>種類</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_UP</source>
        <extracomment>Button below the table: moves the link up. Up to about 14 characters; the letter after the ampersand must differ from those of the page&apos;s other buttons.</extracomment>
        <translation>上へ(&amp;U)</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DOWN</source>
        <extracomment>Button below the table: moves the link down. As IDS_LINK_SETTING_UP.</extracomment>
        <translation>下へ(&amp;D)</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW</source>
        <extracomment>Button beside the table: opens the dialog for a new link. Up to about 12 characters; with an ampersand as IDS_LINK_SETTING_UP.</extracomment>
        <translation>新規(&amp;N)…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT</source>
        <extracomment>Button beside the table: opens the dialog that changes the chosen link. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>編集(&amp;E)…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DEL</source>
        <extracomment>Button beside the table: deletes the chosen link after a question. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>削除(&amp;L)</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TITLE</source>
        <extracomment>Title of the dialog for a new link. Up to about 16 characters: most desktops put the program&apos;s name behind it.</extracomment>
        <translation>新しいクイックリンク</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT_TITLE</source>
        <extracomment>Title of the dialog that changes a link. As IDS_LINK_SETTING_NEW_TITLE.</extracomment>
        <translation>クイックリンクの編集</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_NAME</source>
        <extracomment>Label of the dialog&apos;s name field. 51 pixels: about 6 characters.</extracomment>
        <translation>名前:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TYPE</source>
        <extracomment>Label of the dialog&apos;s choice of type. 70 pixels: about 9 characters.</extracomment>
        <translation>種類:</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_APPLICATION</source>
        <extracomment>Type of a link that starts a program: in the dialog&apos;s choice and on its tab, and in the table. Up to about 13 characters (100 pixels).</extracomment>
        <translation>アプリ</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_E-MAIL</source>
        <extracomment>Type of a link that opens the mail program. As IDS_LINK_TYPE_APPLICATION.</extracomment>
        <translation>メール</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_INTERNET</source>
        <extracomment>Type of a link that opens an Internet address. As IDS_LINK_TYPE_APPLICATION.</extracomment>
        <translation>インターネット</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_URL</source>
        <extracomment>Label above the field with the path of the program. Up to about 25 characters (184 pixels).</extracomment>
        <translation>プログラムファイル:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_BROWSER</source>
        <extracomment>Button beside that field: opens the choice of a file. 80 pixels: up to about 10 characters. It is low: letters that reach below the line, such as y, lose their tails.</extracomment>
        <translation>参照…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_PARA</source>
        <extracomment>Label above the field with the program&apos;s parameters. Up to about 35 characters (250 pixels).</extracomment>
        <translation>引数:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_IE_URL</source>
        <extracomment>Label above the field with the Internet address. Up to about 35 characters (250 pixels).</extracomment>
        <translation>アドレス:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_EMAIL_URL</source>
        <extracomment>What an e-mail link does; the only text on its panel. Up to about 35 characters (250 pixels), one line.</extracomment>
        <translation>メールソフトを開きます。</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK_STARTUP</source>
        <extracomment>Check box of the dialog. Up to about 32 characters (230 pixels).</extracomment>
        <translation>プログラムの起動時に開く</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK</source>
        <extracomment>Check box of the dialog: opens the link when a data connection comes up. Up to about 32 characters (230 pixels).</extracomment>
        <translation>接続したときに開く</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_OK</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CANCEL</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>IDS_LINK_PROMPT</source>
        <extracomment>Title of every message about quick links. Up to about 30 characters.</extracomment>
        <translation>クイックリンク</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_INVALID_URL</source>
        <extracomment>Message: the address of the link that was picked is none. A sentence or two; keep what stands in quotation marks.</extracomment>
        <translation>このアドレスは開けません。アドレスには「http://」、「https://」、「ftp」、「www.」のいずれかが必要です。</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME_SAME</source>
        <extracomment>Message: the dialog&apos;s name is in use. A sentence or two.</extracomment>
        <translation>この名前は別のクイックリンクで使われています。別の名前を指定してください。</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_FILENOTEXIST</source>
        <extracomment>Message: the dialog&apos;s program file is missing, or none was chosen. A sentence or two.</extracomment>
        <translation>このプログラムファイルは存在しません。別のファイルを選んでください。</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DELETE_CONFORM</source>
        <extracomment>Question before a link is deleted, with the buttons IDS_OK and IDS_CANCEL. A sentence or two.</extracomment>
        <translation>選択したクイックリンクを削除しますか?</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Second button of messages. Up to about 14 characters.</extracomment>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>None of the loaded plug-ins has settings.</source>
        <translation>読み込まれたプラグインには設定がありません。</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>The program goes on here. Click the icon to see its window.</source>
        <translation>プログラムはここで動作を続けます。アイコンをクリックするとウィンドウが表示されます。</translation>
    </message>
    <message>
        <source>Show Window</source>
        <translation>ウィンドウを表示</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
</context>
</TS>
