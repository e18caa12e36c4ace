<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AddressProblem</name>
    <message>
        <source>This link has no address:</source>
        <translation>このリンクにはアドレスがありません:</translation>
    </message>
    <message>
        <source>There are blanks before or behind this address:</source>
        <translation>このアドレスの前または後ろに空白があります:</translation>
    </message>
    <message>
        <source>The beginning of this address must be written in small letters:</source>
        <translation>このアドレスの先頭は小文字で書く必要があります:</translation>
    </message>
    <message>
        <source>Only Internet addresses (http, https and ftp) are opened. This is not one:</source>
        <translation>開けるのはインターネットアドレス (http、https、ftp) だけです。これは該当しません:</translation>
    </message>
    <message>
        <source>This address needs &quot;http://&quot;, &quot;https://&quot;, &quot;ftp://&quot; or &quot;www.&quot; at its beginning:</source>
        <translation>このアドレスの先頭には「http://」、「https://」、「ftp://」または「www.」が必要です:</translation>
    </message>
</context>
<context>
    <name>AddressQuestions</name>
    <message>
        <source>Open this address with the program for &quot;%1&quot; links?</source>
        <translation>このアドレスを「%1」リンク用のプログラムで開きますか?</translation>
    </message>
    <message>
        <source>Unusual address</source>
        <translation>特殊なアドレス</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Print which links the running program opened or did not, and why, newest first, and exit.</source>
        <translation>実行中のプログラムがどのリンクを開いたか、開かなかったか、その理由を新しい順に出力して終了します。</translation>
    </message>
    <message>
        <source>No running program with the folder %1 can be asked.</source>
        <translation>フォルダー %1 を使う実行中のプログラムに問い合わせできません。</translation>
    </message>
    <message>
        <source>Nothing was decided yet</source>
        <translation>まだ何も決定されていません</translation>
    </message>
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
        <source>No such kind of connection: &quot;%1&quot;.</source>
        <translation>この種類の接続はありません: 「%1」</translation>
    </message>
    <message>
        <source>Print the quick links and exit. Needs no graphical session.</source>
        <translation>クイックリンクを出力して終了します。グラフィカルセッションは不要です。</translation>
    </message>
    <message>
        <source>%1 Try --help.</source>
        <translation>%1 --help を参照してください。</translation>
    </message>
    <message>
        <source>Wait in the tray without a window; where there is no tray, the window shows.</source>
        <translation>ウィンドウを表示せずにトレイで待機します。トレイがない場合はウィンドウを表示します。</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>フォルダー「%1」はありません。</translation>
    </message>
    <message>
        <source>It is running already, as process %1, with the folder %2.</source>
        <translation>すでに実行中です (プロセス %1、フォルダー %2)。</translation>
    </message>
    <message>
        <source>Watch connections of type KIND in this run, whatever the settings say: mobile (mobile broadband), any (whatever has a default route) or manual (you press a button).</source>
        <translation>設定にかかわらず、今回は種類 KIND の接続を監視します: mobile (モバイルブロードバンド)、any (既定の経路を持つものすべて)、manual (ボタンを押す)。</translation>
    </message>
    <message>
        <source>There is no plug-in in the folder &quot;%1&quot;.</source>
        <translation>フォルダー「%1」にはプラグインがありません。</translation>
    </message>
</context>
<context>
    <name>CommonUtils</name>
    <message>
        <source>No program could be started for this address:</source>
        <translation>このアドレスを開くプログラムを起動できませんでした:</translation>
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
    <name>ConnectionDecisions</name>
    <message>
        <source>No links opened</source>
        <translation>リンクは開かれません</translation>
    </message>
    <message>
        <source>Links marked for a connection open</source>
        <translation>接続時に開くリンクが開きます</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>接続</translation>
    </message>
</context>
<context>
    <name>ConnectionPage</name>
    <message>
        <source>Connection</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>In this run the command line says which connections count. What you choose here counts from the next start on.</source>
        <translation>今回は、対象とする接続をコマンドラインが決めています。ここでの選択は次回の起動から有効です。</translation>
    </message>
    <message>
        <source>&amp;Mobile broadband</source>
        <translation>モバイルブロードバンド(&amp;M)</translation>
    </message>
    <message>
        <source>An&amp;y plan</source>
        <translation>任意のプラン(&amp;P)</translation>
    </message>
    <message>
        <source>Only the plans &amp;ticked here</source>
        <translation>ここで選んだプランのみ(&amp;T)</translation>
    </message>
    <message>
        <source>Not while &amp;roaming</source>
        <translation>ローミング中は対象外(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Any connection</source>
        <translation>任意の接続(&amp;A)</translation>
    </message>
    <message>
        <source>My own &amp;button</source>
        <translation>自分で押すボタン(&amp;B)</translation>
    </message>
    <message>
        <source>%1 (not there now)</source>
        <translation>%1 (現在なし)</translation>
    </message>
    <message>
        <source>NetworkManager does not say which plans there are.</source>
        <translation>NetworkManager からプランの一覧を得られません。</translation>
    </message>
    <message>
        <source>While none is ticked, any plan counts.</source>
        <translation>何も選ばれていない間は、すべてのプランが対象です。</translation>
    </message>
    <message>
        <source>There are no mobile plans yet.</source>
        <translation>モバイルのプランはまだありません。</translation>
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
        <source>Online by Ethernet; waiting for mobile broadband.</source>
        <translation>イーサネットでオンライン。モバイルブロードバンドを待っています。</translation>
    </message>
    <message>
        <source>Online by Wi-Fi; waiting for mobile broadband.</source>
        <translation>Wi-Fi でオンライン。モバイルブロードバンドを待っています。</translation>
    </message>
    <message>
        <source>Online by another connection; waiting for mobile broadband.</source>
        <translation>別の接続でオンライン。モバイルブロードバンドを待っています。</translation>
    </message>
    <message>
        <source>Roaming; waiting for your own network.</source>
        <translation>ローミング中。契約先のネットワークを待っています。</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>確認中…</translation>
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
    <name>DisplayChoice</name>
    <message>
        <source>On Wayland the package %1 is needed, which is not installed.</source>
        <translation>Wayland ではパッケージ %1 が必要ですが、インストールされていません。</translation>
    </message>
    <message>
        <source>There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set.</source>
        <translation>ディスプレイがありません。DISPLAY も WAYLAND_DISPLAY も設定されていません。</translation>
    </message>
    <message>
        <source>QT_QPA_PLATFORM asks for X, but DISPLAY is not set.</source>
        <translation>QT_QPA_PLATFORM は X を求めていますが、DISPLAY が設定されていません。</translation>
    </message>
    <message>
        <source>The display &quot;%1&quot; does not answer.</source>
        <translation>ディスプレイ「%1」が応答しません。</translation>
    </message>
</context>
<context>
    <name>EditLinkButton</name>
    <message>
        <source>&amp;Edit Links</source>
        <translation>リンクを編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Edit Link</source>
        <translation>リンクを編集(&amp;E)</translation>
    </message>
</context>
<context>
    <name>EntryRun</name>
    <message>
        <source>The application of this could not be started:</source>
        <translation>これに対応するアプリを起動できませんでした:</translation>
    </message>
</context>
<context>
    <name>FailureList</name>
    <message>
        <source>Not opened</source>
        <translation>開けませんでした</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>他 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>name of a link and its address</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>FixedReason</name>
    <message>
        <source>Fixed by the administrator of this computer</source>
        <translation>このコンピューターの管理者が固定しています</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Start with the session</source>
        <translation>セッションとともに開始</translation>
    </message>
    <message>
        <source>Vellum Connect then waits in the tray. Where the desktop has no tray, its window shows.</source>
        <translation>Vellum Connect はトレイで待機します。デスクトップにトレイがない場合はウィンドウを表示します。</translation>
    </message>
    <message>
        <source>This choice cannot be kept in %1.</source>
        <translation>この選択を %1 に保存できません。</translation>
    </message>
</context>
<context>
    <name>GuardMessages</name>
    <message>
        <source>The file with your quick links is missing.</source>
        <translation>クイックリンクのファイルがありません。</translation>
    </message>
    <message>
        <source>The file with your quick links is empty.</source>
        <translation>クイックリンクのファイルが空です。</translation>
    </message>
    <message>
        <source>The file with your quick links is damaged.</source>
        <translation>クイックリンクのファイルが壊れています。</translation>
    </message>
    <message>
        <source>The file with your quick links is far too large.</source>
        <translation>クイックリンクのファイルが大きすぎます。</translation>
    </message>
    <message>
        <source>The file with your quick links cannot be read.</source>
        <translation>クイックリンクのファイルを読み取れません。</translation>
    </message>
    <message>
        <source>In the place of the file with your quick links there is something that is no file.</source>
        <translation>クイックリンクのファイルの場所に、ファイルではないものがあります。</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>ディスクがいっぱいです。</translation>
    </message>
    <message>
        <source>You are not allowed to write to its folder.</source>
        <translation>そのフォルダーに書き込む権限がありません。</translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are in place again.</source>
        <translation>
            <numerusform>%1 のリンク %n 件を元に戻しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 can be brought back.</source>
        <translation>
            <numerusform>%1 のリンク %n 件を元に戻せます。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are kept, but could not be put in place.</source>
        <translation>
            <numerusform>%1 のリンク %n 件は保存されていますが、元に戻せませんでした。</numerusform>
        </translation>
    </message>
    <message>
        <source>No earlier state of the links is known.</source>
        <translation>リンクの以前の状態はわかっていません。</translation>
    </message>
    <message>
        <source>What was found there was kept:</source>
        <translation>そこにあったものはここに保存しました:</translation>
    </message>
    <message>
        <source>&amp;Bring Back</source>
        <translation>元に戻す(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Leave Out</source>
        <translation>そのままにする(&amp;L)</translation>
    </message>
    <message>
        <source>The change of your quick links could not be saved.</source>
        <translation>クイックリンクの変更を保存できませんでした。</translation>
    </message>
    <message>
        <source>The quick links were changed by another program. Do you want to load them, or to keep yours?</source>
        <translation>クイックリンクが別のプログラムによって変更されました。読み込みますか、それとも今のものを残しますか?</translation>
    </message>
    <message>
        <source>&amp;Load Them</source>
        <translation>読み込む(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>今のものを残す(&amp;K)</translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation>クイックリンク</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>再試行(&amp;T)</translation>
    </message>
    <message>
        <source>The quick links that were prepared for you could not be put in place. The program tries again at its next start.</source>
        <translation>あらかじめ用意されたクイックリンクを配置できませんでした。次回の起動時にもう一度試みます。</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>Added: %1</source>
        <translation>追加: %1</translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation>削除: %1</translation>
    </message>
    <message>
        <source>Edited: %1</source>
        <translation>編集: %1</translation>
    </message>
    <message>
        <source>Moved: %1</source>
        <translation>移動: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>他 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>%1 (now)</source>
        <translation>%1 (現在)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>リンク数</translation>
    </message>
    <message>
        <source>What Changed</source>
        <translation>変更内容</translation>
    </message>
    <message>
        <source>&amp;Go Back to This</source>
        <translation>この状態に戻す(&amp;G)</translation>
    </message>
    <message>
        <source>The states that your quick links were in, newest first; the last %1 are kept.</source>
        <translation>クイックリンクのこれまでの状態 (新しい順)。最新の %1 件が保存されます。</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>The program started</source>
        <translation>プログラムが起動しました</translation>
    </message>
    <message>
        <source>A connection came up</source>
        <translation>接続されました</translation>
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
    <name>LinkAddresses</name>
    <message>
        <source>of several marked web addresses only the lowest opens</source>
        <translation>印の付いた複数のウェブアドレスのうち、いちばん下だけが開きます</translation>
    </message>
</context>
<context>
    <name>LinkButtons</name>
    <message>
        <source>No quick links yet. Add some with Tools &gt; Settings.</source>
        <translation>クイックリンクはまだありません。「ツール &gt; 設定」で追加してください。</translation>
    </message>
    <message>
        <source>No quick link has this in its name.</source>
        <translation>名前にこの文字を含むクイックリンクはありません。</translation>
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
        <source>This is no valid address:</source>
        <translation>これは有効なアドレスではありません:</translation>
    </message>
    <message>
        <source>Addresses that are themselves a script or a page are never opened:</source>
        <translation>それ自体がスクリプトやページであるアドレスは開きません:</translation>
    </message>
    <message>
        <source>This link leads nowhere: it has no path.</source>
        <translation>このリンクには行き先がありません。パスがありません。</translation>
    </message>
    <message>
        <source>The path of an application or file must begin with &quot;/&quot;:</source>
        <translation>アプリケーションやファイルのパスは「/」で始まる必要があります:</translation>
    </message>
    <message>
        <source>Too many questions wait for an answer to ask about this address, too:</source>
        <translation>回答待ちの質問が多すぎるため、このアドレスについては確認できません:</translation>
    </message>
    <message>
        <source>This is too long to be opened:</source>
        <translation>長すぎるため開けません:</translation>
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
        <source>&amp;Why…</source>
        <translation>理由(&amp;W)…</translation>
    </message>
    <message>
        <source>See which links opened or did not, and why</source>
        <translation>どのリンクが開いたか、開かなかったか、その理由を表示</translation>
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
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>Take back the last change of the quick links</source>
        <translation>クイックリンクの最後の変更を取り消します</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>Make the change again that was taken back</source>
        <translation>取り消した変更をもう一度行います</translation>
    </message>
    <message>
        <source>&amp;Plug-ins Left Out…</source>
        <translation>読み込まないプラグイン(&amp;P)…</translation>
    </message>
    <message>
        <source>See which plug-ins crashed or hung, and load them again</source>
        <translation>異常終了または停止したプラグインを確認し、もう一度読み込む</translation>
    </message>
    <message>
        <source>Plug-ins not loaded: %1</source>
        <translation>読み込まれていないプラグイン: %1</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>プログラムを終了</translation>
    </message>
    <message>
        <source>&amp;Find a Quick Link</source>
        <translation>クイックリンクを検索(&amp;F)</translation>
    </message>
    <message>
        <source>Show only the quick links with a name that you type</source>
        <translation>入力した名前のクイックリンクだけを表示</translation>
    </message>
    <message>
        <source>Find a quick link</source>
        <translation>クイックリンクを検索</translation>
    </message>
</context>
<context>
    <name>MenuManager</name>
    <message>
        <source>You picked it</source>
        <translation>選択されました</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 を開く</translation>
    </message>
</context>
<context>
    <name>OfferLine</name>
    <message>
        <source>&amp;Put Back</source>
        <translation>元に戻す(&amp;P)</translation>
    </message>
    <message>
        <source>Leave &amp;As It Is</source>
        <translation>このままにする(&amp;A)</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message>
        <source>Opened</source>
        <translation>開きました</translation>
    </message>
    <message>
        <source>You were asked first</source>
        <translation>先に確認しました</translation>
    </message>
    <message>
        <source>Not opened: %1</source>
        <translation>開けませんでした: %1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>失敗しました: %1</translation>
    </message>
    <message>
        <source>Unknown link</source>
        <translation>不明なリンク</translation>
    </message>
    <message>
        <source>Not opened: you did not agree</source>
        <translation>開けませんでした: 許可されませんでした</translation>
    </message>
</context>
<context>
    <name>OpeningCause</name>
    <message>
        <source>A plug-in asked for it</source>
        <translation>プラグインの要求</translation>
    </message>
</context>
<context>
    <name>PluginMessages</name>
    <message>
        <source>This was not loaded, because another user owns %1:</source>
        <translation>%1 の所有者が別のユーザーのため、これは読み込まれませんでした:</translation>
    </message>
    <message>
        <source>This was not loaded, because other users may change %1:</source>
        <translation>ほかのユーザーが %1 を変更できるため、これは読み込まれませんでした:</translation>
    </message>
    <message>
        <source>This was not loaded, because it is not known who may change %1:</source>
        <translation>%1 を変更できるユーザーが不明なため、これは読み込まれませんでした:</translation>
    </message>
    <message>
        <source>This was not loaded, because it passes itself off as the quick links of this program:</source>
        <translation>このプログラムのクイックリンクになりすましているため、これは読み込まれませんでした:</translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was starting, and was left out.</source>
        <translation>プラグイン %1 は起動中に応答しなくなったため、読み込みませんでした。</translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish starting last time (it crashed or hung), and was left out.</source>
        <translation>プラグイン %1 は前回、起動を完了しなかった (異常終了または停止した) ため、読み込みませんでした。</translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was ending, and was left out.</source>
        <translation>プラグイン %1 は終了中に応答しなくなったため、読み込みませんでした。</translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish ending last time (it crashed or hung), and was left out.</source>
        <translation>プラグイン %1 は前回、終了を完了しなかった (異常終了または停止した) ため、読み込みませんでした。</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>プラグイン</translation>
    </message>
    <message>
        <source>&amp;Load at the Next Start</source>
        <translation>次回の起動時に読み込む(&amp;L)</translation>
    </message>
    <message>
        <source>Leave &amp;Out</source>
        <translation>読み込まない(&amp;O)</translation>
    </message>
</context>
<context>
    <name>ProgramEnd</name>
    <message>
        <source>it used memory that it does not have</source>
        <translation>自分のものではないメモリを使いました</translation>
    </message>
    <message>
        <source>it noticed a mistake of its own</source>
        <translation>自身の誤りに気付きました</translation>
    </message>
    <message>
        <source>it divided by zero or the like</source>
        <translation>ゼロで割るなどの計算をしました</translation>
    </message>
    <message>
        <source>it came to an instruction that the processor does not know</source>
        <translation>プロセッサーが知らない命令に達しました</translation>
    </message>
    <message>
        <source>it asked the system for what is forbidden</source>
        <translation>禁じられていることをシステムに求めました</translation>
    </message>
    <message>
        <source>This program ended at once, with the error code %1:</source>
        <translation>このプログラムはエラー コード %1 ですぐに終了しました:</translation>
    </message>
    <message>
        <source>This program crashed (signal %1, %2):</source>
        <translation>このプログラムはクラッシュしました (シグナル %1、%2):</translation>
    </message>
    <message>
        <source>This program was ended by the system or by another program (signal %1):</source>
        <translation>このプログラムはシステムまたは別のプログラムによって終了されました (シグナル %1):</translation>
    </message>
</context>
<context>
    <name>ProgramRun</name>
    <message>
        <source>This program could not be started:</source>
        <translation>このプログラムを起動できませんでした:</translation>
    </message>
</context>
<context>
    <name>PutBackOffer</name>
    <message>
        <source>&quot;%1&quot; no longer opens by itself.</source>
        <translation>「%1」は自動的に開かなくなりました。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when connected.</source>
        <translation>「%1」は接続時に開かなくなりました。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer has a recipient.</source>
        <translation>「%1」に宛先がなくなりました。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when Vellum Connect starts.</source>
        <translation>「%1」は Vellum Connect の起動時に開かなくなりました。</translation>
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
        <extracomment>Button beside that field: opens the choice of a file. 80 pixels: up to about 10 characters.</extracomment>
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
        <translation>Vellum Connect の起動時に開く</translation>
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
        <translation>このプログラムファイルは存在しません。ファイルを選んでください。</translation>
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
    <message>
        <source>Programs start without the parameters that a link has for them.</source>
        <translation>プログラムは、リンクにあるパラメーターなしで起動します。</translation>
    </message>
</context>
<context>
    <name>TransitionRules</name>
    <message>
        <source>was up before the program was there</source>
        <translation>プログラムの起動前から接続されていました</translation>
    </message>
    <message>
        <source>up, waiting to be in the Internet</source>
        <extracomment>&quot;In the Internet&quot; means that the Internet can be reached.</extracomment>
        <translation>接続済み、インターネットを待っています</translation>
    </message>
    <message>
        <source>up and in the Internet</source>
        <translation>接続済み、インターネットに到達できます</translation>
    </message>
    <message>
        <source>up, and a portal wants a login</source>
        <translation>接続済み、ポータルがログインを求めています</translation>
    </message>
    <message>
        <source>up, but not in the Internet within 10 s</source>
        <translation>接続済み、10 秒以内にインターネットに到達できませんでした</translation>
    </message>
    <message>
        <source>went down before it was told</source>
        <translation>通知される前に切断されました</translation>
    </message>
    <message>
        <source>another connection took over</source>
        <translation>別の接続に切り替わりました</translation>
    </message>
    <message>
        <source>down, waiting whether it comes back</source>
        <translation>切断、復帰を待っています</translation>
    </message>
    <message>
        <source>down</source>
        <translation>切断</translation>
    </message>
    <message>
        <source>the service is gone, waiting whether it comes back</source>
        <translation>サービスがありません、復帰を待っています</translation>
    </message>
    <message>
        <source>handed over, not a new connection</source>
        <translation>引き継がれました、新しい接続ではありません</translation>
    </message>
    <message>
        <source>was up before sleep, not a new connection</source>
        <translation>スリープ前から接続されていました、新しい接続ではありません</translation>
    </message>
    <message>
        <source>outlived a restart of the service, not a new connection</source>
        <translation>サービスの再起動後も続いています、新しい接続ではありません</translation>
    </message>
    <message>
        <source>was down again when asked, not told</source>
        <extracomment>The host asks once more before it tells of a connection that came up.</extracomment>
        <translation>確認時に再び切断されていたため、通知されません</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Window</source>
        <translation>ウィンドウを表示</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Vellum Connect keeps running here. Click the icon to show its window.</source>
        <translation>Vellum Connect はここで動作を続けます。アイコンをクリックするとウィンドウが表示されます。</translation>
    </message>
</context>
<context>
    <name>WhyWindow</name>
    <message>
        <source>What Opened, and Why</source>
        <translation>開いたものとその理由</translation>
    </message>
    <message>
        <source>What was decided about connections and links, newest first. The last %1 decisions are remembered until the program ends, and written to no file.</source>
        <translation>接続とリンクについての決定 (新しい順)。最新の %1 件がプログラムの終了まで保持され、ファイルには書き込まれません。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Link or Connection</source>
        <translation>リンクまたは接続</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>きっかけ</translation>
    </message>
    <message>
        <source>What Was Done</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>閉じる(&amp;L)</translation>
    </message>
</context>
</TS>
