<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CommandLine</name>
    <message>
        <source>Show this help and exit.</source>
        <translation>Diese Hilfe zeigen und enden.</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>Die Version zeigen und enden.</translation>
    </message>
    <message>
        <source>Keep your own data in DIR.</source>
        <translation>Ihre eigenen Daten in DIR aufbewahren.</translation>
    </message>
    <message>
        <source>Load the plug-ins of DIR.</source>
        <translation>Die Plug-ins aus DIR laden.</translation>
    </message>
    <message>
        <source>Show texts in the language LANG, such as en or pt_BR.</source>
        <translation>Texte in der Sprache LANG zeigen, etwa en oder pt_BR.</translation>
    </message>
    <message>
        <source>Print the quick links and exit. Needs no display.</source>
        <translation>Die Links ausgeben und enden. Braucht keine Anzeige.</translation>
    </message>
    <message>
        <source>Connection manager with quick links.</source>
        <translation>Verbindungsmanager mit Schnellzugriff.</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>Unerwartetes Argument „%1“.</translation>
    </message>
    <message>
        <source>Empty value after &quot;--%1&quot;.</source>
        <translation>Leerer Wert nach „--%1“.</translation>
    </message>
    <message>
        <source>Follow connections of KIND: mobile (mobile broadband, the default), any (whatever has a default route) or manual (you press a button).</source>
        <translation>Verbindungen der Art KIND folgen: mobile (mobiles Breitband, die Vorgabe), any (was immer eine Standardroute hat) oder manual (Sie drücken einen Knopf).</translation>
    </message>
    <message>
        <source>No such kind of connection: &quot;%1&quot;.</source>
        <translation>Diese Art von Verbindung gibt es nicht: „%1“.</translation>
    </message>
</context>
<context>
    <name>CommonUtils</name>
    <message>
        <source>Only Internet addresses (http, https and ftp) are opened. This is none:</source>
        <translation>Nur Internetadressen (http, https und ftp) werden geöffnet. Dies ist keine:</translation>
    </message>
    <message>
        <source>No program could be started for this address:</source>
        <translation>Für diese Adresse konnte kein Programm gestartet werden:</translation>
    </message>
    <message>
        <source>Address not opened</source>
        <translation>Adresse nicht geöffnet</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Second button of messages. Up to about 14 characters.</extracomment>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ConnectionPanel</name>
    <message>
        <source>&amp;Disconnect</source>
        <translation>&amp;Trennen</translation>
    </message>
    <message>
        <source>Co&amp;nnect</source>
        <translation>Ver&amp;binden</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>Verbindung:</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>Gerät:</translation>
    </message>
    <message>
        <source>Operator:</source>
        <translation>Netzbetreiber:</translation>
    </message>
    <message>
        <source>Since:</source>
        <translation>Seit:</translation>
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
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Verbindung wird hergestellt…</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>This network asks for a login first.</source>
        <translation>Dieses Netz verlangt zuerst eine Anmeldung.</translation>
    </message>
    <message>
        <source>The Internet is out of reach.</source>
        <translation>Das Internet ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>Press Connect when your connection is up.</source>
        <translation>Drücken Sie „Verbinden“, wenn Ihre Verbindung steht.</translation>
    </message>
    <message>
        <source>Waiting for mobile broadband.</source>
        <translation>Warten auf mobiles Breitband.</translation>
    </message>
    <message>
        <source>Waiting for a connection.</source>
        <translation>Warten auf eine Verbindung.</translation>
    </message>
    <message>
        <source>before this program started</source>
        <translation>vor dem Start dieses Programms</translation>
    </message>
    <message>
        <source>NetworkManager is not running</source>
        <translation>NetworkManager läuft nicht</translation>
    </message>
    <message>
        <source>Built without NetworkManager</source>
        <translation>Ohne NetworkManager gebaut</translation>
    </message>
</context>
<context>
    <name>DesktopOpener</name>
    <message>
        <source>There is no such file or folder:</source>
        <translation>Diese Datei oder diesen Ordner gibt es nicht:</translation>
    </message>
    <message>
        <source>No program was found that opens this:</source>
        <translation>Es wurde kein Programm gefunden, das dies öffnet:</translation>
    </message>
    <message>
        <source>The program that opens this reported a failure:</source>
        <translation>Das Programm, das dies öffnet, hat einen Fehler gemeldet:</translation>
    </message>
    <message>
        <source>The desktop could not open this:</source>
        <translation>Die Arbeitsumgebung konnte dies nicht öffnen:</translation>
    </message>
    <message>
        <source>Opening this needs the program &quot;xdg-open&quot;, which could not be started:</source>
        <translation>Zum Öffnen wird das Programm „xdg-open“ gebraucht, das nicht gestartet werden konnte:</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>S&amp;prache</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>&amp;Systemsprache</translation>
    </message>
</context>
<context>
    <name>LinkButtons</name>
    <message>
        <source>No quick links yet. Add some with Tools &gt; Settings.</source>
        <translation>Noch keine Links. Mit „Extras &gt; Einstellungen“ fügen Sie welche hinzu.</translation>
    </message>
</context>
<context>
    <name>LinkOpener</name>
    <message>
        <source>There is no such file or folder, or you are not allowed to see it:</source>
        <translation>Diese Datei oder diesen Ordner gibt es nicht, oder Sie dürfen sie nicht sehen:</translation>
    </message>
    <message>
        <source>You are not allowed to open this:</source>
        <translation>Sie dürfen dies nicht öffnen:</translation>
    </message>
    <message>
        <source>This program could not be started:</source>
        <translation>Dieses Programm konnte nicht gestartet werden:</translation>
    </message>
    <message>
        <source>Not opened</source>
        <translation>Nicht geöffnet</translation>
    </message>
</context>
<context>
    <name>LinkTable</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>Plug-in</translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation>Keine Links</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Not loaded: %1</source>
        <translation>Nicht geladen: %1</translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation>Schnellzugriff</translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation>Keine Links</translation>
    </message>
    <message>
        <source>&amp;Connection</source>
        <translation>&amp;Verbindung</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>Das Programm beenden</translation>
    </message>
    <message>
        <source>&amp;Quick Links</source>
        <translation>Schnell&amp;zugriff</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>Add, change and order quick links</source>
        <translation>Links hinzufügen, ändern und ordnen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>&amp;Statusleiste</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About Vellum Connect</source>
        <translation>&amp;Über Vellum Connect</translation>
    </message>
    <message>
        <source>About Vellum Connect</source>
        <translation>Über Vellum Connect</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Vellum Connect %1&lt;/h3&gt;&lt;p&gt;Connection manager with quick links.&lt;/p&gt;&lt;p&gt;Free software under the MIT licence.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Vellum Connect %1&lt;/h3&gt;&lt;p&gt;Verbindungsmanager mit Schnellzugriff.&lt;/p&gt;&lt;p&gt;Freie Software unter der MIT-Lizenz.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>MenuManager</name>
    <message>
        <source>Open %1</source>
        <translation>%1 öffnen</translation>
    </message>
</context>
<context>
    <name>QuickLinkUIPlugin</name>
    <message>
        <source>IDS_SETTING_NAME</source>
        <extracomment>Caption of the page in the list of the settings dialog. Up to about 20 characters.</extracomment>
        <translation>Schnellzugriff</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TAB</source>
        <extracomment>Title of the only tab of the settings page, above the table. Up to about 30 characters (the tab widget is 280 pixels wide).</extracomment>
        <translation>Schnellzugriff</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_ORDER</source>
        <extracomment>Label above the table of the settings page. Up to about 35 characters (250 pixels). Labels are low: a capital letter with an accent, such as an umlaut, loses it with Qt 6.</extracomment>
        <translation>Reihenfolge der Links:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME</source>
        <extracomment>Header of the table&apos;s first column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>Name</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TYPE</source>
        <extracomment>Header of the table&apos;s second column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>Typ</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_UP</source>
        <extracomment>Button below the table: moves the link up. Up to about 14 characters; the letter after the ampersand must differ from those of the page&apos;s other buttons.</extracomment>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DOWN</source>
        <extracomment>Button below the table: moves the link down. As IDS_LINK_SETTING_UP.</extracomment>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW</source>
        <extracomment>Button beside the table: opens the dialog for a new link. Up to about 12 characters; with an ampersand as IDS_LINK_SETTING_UP.</extracomment>
        <translation>&amp;Neu…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT</source>
        <extracomment>Button beside the table: opens the dialog that changes the chosen link. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>&amp;Bearbeiten…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DEL</source>
        <extracomment>Button beside the table: deletes the chosen link after a question. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TITLE</source>
        <extracomment>Title of the dialog for a new link. Up to about 16 characters: most desktops put the program&apos;s name behind it.</extracomment>
        <translation>Neuer Link</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT_TITLE</source>
        <extracomment>Title of the dialog that changes a link. As IDS_LINK_SETTING_NEW_TITLE.</extracomment>
        <translation>Link bearbeiten</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_NAME</source>
        <extracomment>Label of the dialog&apos;s name field. 51 pixels: about 6 characters.</extracomment>
        <translation>Name:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TYPE</source>
        <extracomment>Label of the dialog&apos;s choice of type. 70 pixels: about 9 characters.</extracomment>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_APPLICATION</source>
        <extracomment>Type of a link that starts a program: in the dialog&apos;s choice and on its tab, and in the table. Up to about 13 characters (100 pixels).</extracomment>
        <translation>Anwendung</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_E-MAIL</source>
        <extracomment>Type of a link that opens the mail program. As IDS_LINK_TYPE_APPLICATION.</extracomment>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_INTERNET</source>
        <extracomment>Type of a link that opens an Internet address. As IDS_LINK_TYPE_APPLICATION.</extracomment>
        <translation>Internet</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_URL</source>
        <extracomment>Label above the field with the path of the program. Up to about 25 characters (184 pixels).</extracomment>
        <translation>Programmdatei:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_BROWSER</source>
        <extracomment>Button beside that field: opens the choice of a file. 80 pixels: up to about 10 characters. It is low: letters that reach below the line, such as y, lose their tails.</extracomment>
        <translation>Wählen…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_PARA</source>
        <extracomment>Label above the field with the program&apos;s parameters. Up to about 35 characters (250 pixels).</extracomment>
        <translation>Parameter:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_IE_URL</source>
        <extracomment>Label above the field with the Internet address. Up to about 35 characters (250 pixels).</extracomment>
        <translation>Adresse:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_EMAIL_URL</source>
        <extracomment>What an e-mail link does; the only text on its panel. Up to about 35 characters (250 pixels), one line.</extracomment>
        <translation>Startet Ihr E-Mail-Programm.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK_STARTUP</source>
        <extracomment>Check box of the dialog. Up to about 32 characters (230 pixels).</extracomment>
        <translation>Beim Programmstart öffnen</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK</source>
        <extracomment>Check box of the dialog: opens the link when a data connection comes up. Up to about 32 characters (230 pixels).</extracomment>
        <translation>Beim Verbinden öffnen</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_OK</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CANCEL</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>IDS_LINK_PROMPT</source>
        <extracomment>Title of every message about quick links. Up to about 30 characters.</extracomment>
        <translation>Schnellzugriff</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_INVALID_URL</source>
        <extracomment>Message: the address of the link that was picked is none. A sentence or two; keep what stands in quotation marks.</extracomment>
        <translation>Diese Adresse kann nicht geöffnet werden. Eine Adresse muss „http://“, „https://“, „ftp“ oder „www.“ enthalten.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME_SAME</source>
        <extracomment>Message: the dialog&apos;s name is in use. A sentence or two.</extracomment>
        <translation>Ein anderer Link hat bereits diesen Namen. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_FILENOTEXIST</source>
        <extracomment>Message: the dialog&apos;s program file is missing, or none was chosen. A sentence or two.</extracomment>
        <translation>Diese Programmdatei gibt es nicht. Wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DELETE_CONFORM</source>
        <extracomment>Question before a link is deleted, with the buttons IDS_OK and IDS_CANCEL. A sentence or two.</extracomment>
        <translation>Den ausgewählten Link löschen?</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Second button of messages. Up to about 14 characters.</extracomment>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>None of the loaded plug-ins has settings.</source>
        <translation>Keines der geladenen Plug-ins hat Einstellungen.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>The program goes on here. Click the icon to see its window.</source>
        <translation>Das Programm läuft hier weiter. Ein Klick auf das Symbol zeigt sein Fenster.</translation>
    </message>
    <message>
        <source>Show Window</source>
        <translation>Fenster zeigen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
</TS>
