<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AddressProblem</name>
    <message>
        <source>This link has no address:</source>
        <translation>Dieser Link hat keine Adresse:</translation>
    </message>
    <message>
        <source>There are blanks before or behind this address:</source>
        <translation>Vor oder hinter dieser Adresse stehen Leerzeichen:</translation>
    </message>
    <message>
        <source>The beginning of this address must be written in small letters:</source>
        <translation>Der Anfang dieser Adresse muss kleingeschrieben sein:</translation>
    </message>
    <message>
        <source>Only Internet addresses (http, https and ftp) are opened. This is not one:</source>
        <translation>Nur Internetadressen (http, https und ftp) werden geöffnet. Dies ist keine:</translation>
    </message>
    <message>
        <source>This address needs &quot;http://&quot;, &quot;https://&quot;, &quot;ftp://&quot; or &quot;www.&quot; at its beginning:</source>
        <translation>Diese Adresse braucht „http://“, „https://“, „ftp://“ oder „www.“ am Anfang:</translation>
    </message>
</context>
<context>
    <name>AddressQuestions</name>
    <message>
        <source>Open this address with the program for &quot;%1&quot; links?</source>
        <translation>Diese Adresse mit dem Programm für „%1“-Links öffnen?</translation>
    </message>
    <message>
        <source>Unusual address</source>
        <translation>Ungewöhnliche Adresse</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Print which links the running program opened or did not, and why, newest first, and exit.</source>
        <translation>Ausgeben, welche Links das laufende Programm geöffnet hat oder nicht, und warum, neueste zuerst, und beenden.</translation>
    </message>
    <message>
        <source>No running program with the folder %1 can be asked.</source>
        <translation>Es läuft kein Programm mit dem Ordner %1, das gefragt werden kann.</translation>
    </message>
    <message>
        <source>Nothing was decided yet</source>
        <translation>Noch wurde nichts entschieden</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Diese Hilfe anzeigen und beenden.</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>Die Version anzeigen und beenden.</translation>
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
        <translation>Texte in der Sprache LANG anzeigen, etwa en oder pt_BR.</translation>
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
        <source>No such kind of connection: &quot;%1&quot;.</source>
        <translation>Diese Art von Verbindung gibt es nicht: „%1“.</translation>
    </message>
    <message>
        <source>Print the quick links and exit. Needs no graphical session.</source>
        <translation>Die Schnellzugriff-Links ausgeben und beenden. Braucht keine grafische Sitzung.</translation>
    </message>
    <message>
        <source>%1 Try --help.</source>
        <translation>%1 Siehe --help.</translation>
    </message>
    <message>
        <source>Wait in the tray without a window; where there is no tray, the window shows.</source>
        <translation>Ohne Fenster im Infobereich warten; wo es keinen gibt, erscheint das Fenster.</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>Es gibt keinen Ordner „%1“.</translation>
    </message>
    <message>
        <source>It is running already, as process %1, with the folder %2.</source>
        <translation>Es läuft schon, als Prozess %1, mit dem Ordner %2.</translation>
    </message>
    <message>
        <source>Watch connections of type KIND in this run, whatever the settings say: mobile (mobile broadband), any (whatever has a default route) or manual (you press a button).</source>
        <translation>In diesem Lauf Verbindungen der Art KIND überwachen, was immer die Einstellungen sagen: mobile (mobiles Breitband), any (jede mit Standardroute) oder manual (per Schaltfläche).</translation>
    </message>
    <message>
        <source>There is no plug-in in the folder &quot;%1&quot;.</source>
        <translation>Im Ordner „%1“ gibt es kein Plug-in.</translation>
    </message>
</context>
<context>
    <name>CommonUtils</name>
    <message>
        <source>No program could be started for this address:</source>
        <translation>Für diese Adresse konnte kein Programm gestartet werden:</translation>
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
    <name>ConnectionDecisions</name>
    <message>
        <source>No links opened</source>
        <translation>Keine Links geöffnet</translation>
    </message>
    <message>
        <source>Links marked for a connection open</source>
        <translation>Links für eine Verbindung öffnen sich</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
</context>
<context>
    <name>ConnectionPage</name>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>In this run the command line says which connections count. What you choose here counts from the next start on.</source>
        <translation>In diesem Lauf bestimmt die Befehlszeile, welche Verbindungen zählen. Was Sie hier wählen, gilt ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>&amp;Mobile broadband</source>
        <translation>&amp;Mobiles Breitband</translation>
    </message>
    <message>
        <source>An&amp;y plan</source>
        <translation>&amp;Jeder Tarif</translation>
    </message>
    <message>
        <source>Only the plans &amp;ticked here</source>
        <translation>Nur die &amp;hier angekreuzten Tarife</translation>
    </message>
    <message>
        <source>Not while &amp;roaming</source>
        <translation>Nicht beim &amp;Roaming</translation>
    </message>
    <message>
        <source>&amp;Any connection</source>
        <translation>&amp;Beliebige Verbindung</translation>
    </message>
    <message>
        <source>My own &amp;button</source>
        <translation>&amp;Eigene Schaltfläche</translation>
    </message>
    <message>
        <source>%1 (not there now)</source>
        <translation>%1 (zurzeit nicht vorhanden)</translation>
    </message>
    <message>
        <source>NetworkManager does not say which plans there are.</source>
        <translation>NetworkManager sagt nicht, welche Tarife es gibt.</translation>
    </message>
    <message>
        <source>While none is ticked, any plan counts.</source>
        <translation>Solange keiner angekreuzt ist, zählt jeder Tarif.</translation>
    </message>
    <message>
        <source>There are no mobile plans yet.</source>
        <translation>Es gibt noch keine Mobilfunktarife.</translation>
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
        <translation>Verbindung wird hergestellt&#xa0;…</translation>
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
        <source>Online by Ethernet; waiting for mobile broadband.</source>
        <translation>Online über Ethernet; Warten auf mobiles Breitband.</translation>
    </message>
    <message>
        <source>Online by Wi-Fi; waiting for mobile broadband.</source>
        <translation>Online über WLAN; Warten auf mobiles Breitband.</translation>
    </message>
    <message>
        <source>Online by another connection; waiting for mobile broadband.</source>
        <translation>Online über eine andere Verbindung; Warten auf mobiles Breitband.</translation>
    </message>
    <message>
        <source>Roaming; waiting for your own network.</source>
        <translation>Roaming; Warten auf Ihr eigenes Netz.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Wird geprüft&#xa0;…</translation>
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
    <name>DisplayChoice</name>
    <message>
        <source>On Wayland the package %1 is needed, which is not installed.</source>
        <translation>Unter Wayland wird das Paket %1 gebraucht, das nicht installiert ist.</translation>
    </message>
    <message>
        <source>There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set.</source>
        <translation>Es gibt keinen Bildschirm: Weder DISPLAY noch WAYLAND_DISPLAY ist gesetzt.</translation>
    </message>
    <message>
        <source>QT_QPA_PLATFORM asks for X, but DISPLAY is not set.</source>
        <translation>QT_QPA_PLATFORM verlangt X, aber DISPLAY ist nicht gesetzt.</translation>
    </message>
    <message>
        <source>The display &quot;%1&quot; does not answer.</source>
        <translation>Der Bildschirm „%1“ antwortet nicht.</translation>
    </message>
</context>
<context>
    <name>EditLinkButton</name>
    <message>
        <source>&amp;Edit Links</source>
        <translation>Links &amp;bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Edit Link</source>
        <translation>Link &amp;bearbeiten</translation>
    </message>
</context>
<context>
    <name>EntryRun</name>
    <message>
        <source>The application of this could not be started:</source>
        <translation>Die Anwendung hierzu konnte nicht gestartet werden:</translation>
    </message>
</context>
<context>
    <name>FailureList</name>
    <message>
        <source>Not opened</source>
        <translation>Nicht geöffnet</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
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
        <translation>Vom Administrator dieses Computers festgelegt</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Start with the session</source>
        <translation>Mit der Sitzung starten</translation>
    </message>
    <message>
        <source>Vellum Connect then waits in the tray. Where the desktop has no tray, its window shows.</source>
        <translation>Vellum Connect wartet dann im Infobereich. Wo die Arbeitsumgebung keinen hat, erscheint das Fenster.</translation>
    </message>
    <message>
        <source>This choice cannot be kept in %1.</source>
        <translation>Diese Wahl lässt sich nicht in %1 speichern.</translation>
    </message>
</context>
<context>
    <name>GuardMessages</name>
    <message>
        <source>The file with your quick links is missing.</source>
        <translation>Die Datei mit Ihren Links fehlt.</translation>
    </message>
    <message>
        <source>The file with your quick links is empty.</source>
        <translation>Die Datei mit Ihren Links ist leer.</translation>
    </message>
    <message>
        <source>The file with your quick links is damaged.</source>
        <translation>Die Datei mit Ihren Links ist beschädigt.</translation>
    </message>
    <message>
        <source>The file with your quick links is far too large.</source>
        <translation>Die Datei mit Ihren Links ist viel zu groß.</translation>
    </message>
    <message>
        <source>The file with your quick links cannot be read.</source>
        <translation>Die Datei mit Ihren Links kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>In the place of the file with your quick links there is something that is no file.</source>
        <translation>Wo die Datei mit Ihren Links sein soll, ist etwas, das keine Datei ist.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>You are not allowed to write to its folder.</source>
        <translation>In den Ordner der Datei dürfen Sie nicht schreiben.</translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are in place again.</source>
        <translation>
            <numerusform>Der Link vom %1 ist wieder da.</numerusform>
            <numerusform>Die %n Links vom %1 sind wieder da.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 can be brought back.</source>
        <translation>
            <numerusform>Der Link vom %1 kann zurückgeholt werden.</numerusform>
            <numerusform>Die %n Links vom %1 können zurückgeholt werden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are kept, but could not be put in place.</source>
        <translation>
            <numerusform>Der Link vom %1 ist aufbewahrt, konnte aber nicht zurückgeholt werden.</numerusform>
            <numerusform>Die %n Links vom %1 sind aufbewahrt, konnten aber nicht zurückgeholt werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>No earlier state of the links is known.</source>
        <translation>Ein früherer Stand der Links ist nicht bekannt.</translation>
    </message>
    <message>
        <source>What was found there was kept:</source>
        <translation>Was dort war, ist aufbewahrt:</translation>
    </message>
    <message>
        <source>&amp;Bring Back</source>
        <translation>&amp;Zurückholen</translation>
    </message>
    <message>
        <source>&amp;Leave Out</source>
        <translation>&amp;Weglassen</translation>
    </message>
    <message>
        <source>The change of your quick links could not be saved.</source>
        <translation>Die Änderung Ihrer Links konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The quick links were changed by another program. Do you want to load them, or to keep yours?</source>
        <translation>Die Links wurden von einem anderen Programm geändert. Möchten Sie diese laden oder Ihre behalten?</translation>
    </message>
    <message>
        <source>&amp;Load Them</source>
        <translation>Diese &amp;laden</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>Meine &amp;behalten</translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation>Schnellzugriff</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Noch einmal versuchen</translation>
    </message>
    <message>
        <source>The quick links that were prepared for you could not be put in place. The program tries again at its next start.</source>
        <translation>Die für Sie vorbereiteten Links konnten nicht abgelegt werden. Das Programm versucht es beim nächsten Start noch einmal.</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>Added: %1</source>
        <translation>Hinzugefügt: %1</translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation>Entfernt: %1</translation>
    </message>
    <message>
        <source>Edited: %1</source>
        <translation>Bearbeitet: %1</translation>
    </message>
    <message>
        <source>Moved: %1</source>
        <translation>Verschoben: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n weiterer</numerusform>
            <numerusform>%n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>%1 (now)</source>
        <translation>%1 (jetzt)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>What Changed</source>
        <translation>Was sich änderte</translation>
    </message>
    <message>
        <source>&amp;Go Back to This</source>
        <translation>&amp;Hierzu zurückkehren</translation>
    </message>
    <message>
        <source>The states that your quick links were in, newest first; the last %1 are kept.</source>
        <translation>Die Zustände Ihrer Links, der neueste zuerst; die letzten %1 werden aufgehoben.</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>The program started</source>
        <translation>Das Programm wurde gestartet</translation>
    </message>
    <message>
        <source>A connection came up</source>
        <translation>Eine Verbindung kam zustande</translation>
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
    <name>LinkAddresses</name>
    <message>
        <source>of several marked web addresses only the lowest opens</source>
        <translation>von mehreren so markierten Webadressen öffnet sich nur die unterste</translation>
    </message>
</context>
<context>
    <name>LinkButtons</name>
    <message>
        <source>No quick links yet. Add some with Tools &gt; Settings.</source>
        <translation>Noch keine Links. Mit „Extras &gt; Einstellungen“ fügen Sie welche hinzu.</translation>
    </message>
    <message>
        <source>No quick link has this in its name.</source>
        <translation>Kein Link hat das in seinem Namen.</translation>
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
        <source>This is no valid address:</source>
        <translation>Dies ist keine gültige Adresse:</translation>
    </message>
    <message>
        <source>Addresses that are themselves a script or a page are never opened:</source>
        <translation>Adressen, die selbst ein Skript oder eine Seite sind, werden nie geöffnet:</translation>
    </message>
    <message>
        <source>This link leads nowhere: it has no path.</source>
        <translation>Dieser Link führt nirgendwohin: Er hat keinen Pfad.</translation>
    </message>
    <message>
        <source>The path of an application or file must begin with &quot;/&quot;:</source>
        <translation>Der Pfad einer Anwendung oder Datei muss mit „/“ beginnen:</translation>
    </message>
    <message>
        <source>Too many questions wait for an answer to ask about this address, too:</source>
        <translation>Es warten zu viele Fragen auf eine Antwort, um auch nach dieser Adresse zu fragen:</translation>
    </message>
    <message>
        <source>This is too long to be opened:</source>
        <translation>Dies ist zu lang, um geöffnet zu werden:</translation>
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
        <source>&amp;Why…</source>
        <translation>&amp;Warum&#xa0;…</translation>
    </message>
    <message>
        <source>See which links opened or did not, and why</source>
        <translation>Sehen, welche Links sich geöffnet haben oder nicht, und warum</translation>
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
        <source>&amp;Quick Links</source>
        <translation>Schnell&amp;zugriff</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>Add, change and order quick links</source>
        <translation>Schnellzugriff-Links hinzufügen, ändern und ordnen</translation>
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
    <message>
        <source>&amp;Edit</source>
        <translation>Bea&amp;rbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Take back the last change of the quick links</source>
        <translation>Die letzte Änderung der Links zurücknehmen</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Make the change again that was taken back</source>
        <translation>Die zurückgenommene Änderung wiederholen</translation>
    </message>
    <message>
        <source>&amp;Plug-ins Left Out…</source>
        <translation>Weggelassene &amp;Plug-ins&#xa0;…</translation>
    </message>
    <message>
        <source>See which plug-ins crashed or hung, and load them again</source>
        <translation>Zeigt, welche Plug-ins abgestürzt oder hängen geblieben sind, und lädt sie wieder</translation>
    </message>
    <message>
        <source>Plug-ins not loaded: %1</source>
        <translation>Nicht geladene Plug-ins: %1</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>Das Programm beenden</translation>
    </message>
    <message>
        <source>&amp;Find a Quick Link</source>
        <translation>Link &amp;suchen</translation>
    </message>
    <message>
        <source>Show only the quick links with a name that you type</source>
        <translation>Nur die Links zeigen, deren Namen Sie eintippen</translation>
    </message>
    <message>
        <source>Find a quick link</source>
        <translation>Link suchen</translation>
    </message>
</context>
<context>
    <name>MenuManager</name>
    <message>
        <source>You picked it</source>
        <translation>Von Ihnen gewählt</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 öffnen</translation>
    </message>
</context>
<context>
    <name>OfferLine</name>
    <message>
        <source>&amp;Put Back</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Leave &amp;As It Is</source>
        <translation>&amp;So lassen</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message>
        <source>Opened</source>
        <translation>Geöffnet</translation>
    </message>
    <message>
        <source>You were asked first</source>
        <translation>Sie wurden zuerst gefragt</translation>
    </message>
    <message>
        <source>Not opened: %1</source>
        <translation>Nicht geöffnet: %1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Unknown link</source>
        <translation>Unbekannter Link</translation>
    </message>
    <message>
        <source>Not opened: you did not agree</source>
        <translation>Nicht geöffnet: Sie haben nicht zugestimmt</translation>
    </message>
</context>
<context>
    <name>OpeningCause</name>
    <message>
        <source>A plug-in asked for it</source>
        <translation>Ein Plug-in wollte es</translation>
    </message>
</context>
<context>
    <name>PluginMessages</name>
    <message>
        <source>This was not loaded, because another user owns %1:</source>
        <translation>Dies wurde nicht geladen, weil %1 einem anderen Benutzer gehört:</translation>
    </message>
    <message>
        <source>This was not loaded, because other users may change %1:</source>
        <translation>Dies wurde nicht geladen, weil andere Benutzer %1 ändern dürfen:</translation>
    </message>
    <message>
        <source>This was not loaded, because it is not known who may change %1:</source>
        <translation>Dies wurde nicht geladen, weil nicht bekannt ist, wer %1 ändern darf:</translation>
    </message>
    <message>
        <source>This was not loaded, because it passes itself off as the quick links of this program:</source>
        <translation>Dies wurde nicht geladen, weil es sich als der Schnellzugriff dieses Programms ausgibt:</translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was starting, and was left out.</source>
        <translation>Das Plug-in %1 hat beim Starten nicht mehr reagiert und wurde weggelassen.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish starting last time (it crashed or hung), and was left out.</source>
        <translation>Das Plug-in %1 ist beim letzten Mal nicht fertig gestartet (abgestürzt oder hängen geblieben) und wurde weggelassen.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was ending, and was left out.</source>
        <translation>Das Plug-in %1 hat beim Beenden nicht mehr reagiert und wurde weggelassen.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish ending last time (it crashed or hung), and was left out.</source>
        <translation>Das Plug-in %1 hat sich beim letzten Mal nicht fertig beendet (abgestürzt oder hängen geblieben) und wurde weggelassen.</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Plug-ins</translation>
    </message>
    <message>
        <source>&amp;Load at the Next Start</source>
        <translation>Beim nächsten Start &amp;laden</translation>
    </message>
    <message>
        <source>Leave &amp;Out</source>
        <translation>&amp;Weglassen</translation>
    </message>
</context>
<context>
    <name>ProgramEnd</name>
    <message>
        <source>it used memory that it does not have</source>
        <translation>es benutzte Speicher, den es nicht hat</translation>
    </message>
    <message>
        <source>it noticed a mistake of its own</source>
        <translation>es bemerkte einen eigenen Fehler</translation>
    </message>
    <message>
        <source>it divided by zero or the like</source>
        <translation>es teilte durch null oder Ähnliches</translation>
    </message>
    <message>
        <source>it came to an instruction that the processor does not know</source>
        <translation>es kam zu einem Befehl, den der Prozessor nicht kennt</translation>
    </message>
    <message>
        <source>it asked the system for what is forbidden</source>
        <translation>es verlangte vom System Verbotenes</translation>
    </message>
    <message>
        <source>This program ended at once, with the error code %1:</source>
        <translation>Dieses Programm endete sofort mit dem Fehlercode %1:</translation>
    </message>
    <message>
        <source>This program crashed (signal %1, %2):</source>
        <translation>Dieses Programm ist abgestürzt (Signal %1, %2):</translation>
    </message>
    <message>
        <source>This program was ended by the system or by another program (signal %1):</source>
        <translation>Dieses Programm wurde vom System oder von einem anderen Programm beendet (Signal %1):</translation>
    </message>
</context>
<context>
    <name>ProgramRun</name>
    <message>
        <source>This program could not be started:</source>
        <translation>Dieses Programm konnte nicht gestartet werden:</translation>
    </message>
</context>
<context>
    <name>PutBackOffer</name>
    <message>
        <source>&quot;%1&quot; no longer opens by itself.</source>
        <translation>„%1“ öffnet sich nicht mehr von selbst.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when connected.</source>
        <translation>„%1“ öffnet sich nicht mehr, wenn die Verbindung steht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer has a recipient.</source>
        <translation>„%1“ hat keinen Empfänger mehr.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when Vellum Connect starts.</source>
        <translation>„%1“ öffnet sich nicht mehr beim Start von Vellum Connect.</translation>
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
        <translation>&amp;Neu&#xa0;…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT</source>
        <extracomment>Button beside the table: opens the dialog that changes the chosen link. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>&amp;Bearbeiten&#xa0;…</translation>
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
        <extracomment>Button beside that field: opens the choice of a file. 80 pixels: up to about 10 characters.</extracomment>
        <translation>Wählen&#xa0;…</translation>
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
        <translation>Beim Start von Vellum Connect öffnen</translation>
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
        <translation>Ein anderer Link hat bereits diesen Namen. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_FILENOTEXIST</source>
        <extracomment>Message: the dialog&apos;s program file is missing, or none was chosen. A sentence or two.</extracomment>
        <translation>Diese Programmdatei gibt es nicht. Wählen Sie eine aus.</translation>
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
    <message>
        <source>Programs start without the parameters that a link has for them.</source>
        <translation>Programme starten ohne die Parameter, die ein Link für sie hat.</translation>
    </message>
</context>
<context>
    <name>TransitionRules</name>
    <message>
        <source>was up before the program was there</source>
        <translation>bestand schon vor dem Start des Programms</translation>
    </message>
    <message>
        <source>up, waiting to be in the Internet</source>
        <extracomment>&quot;In the Internet&quot; means that the Internet can be reached.</extracomment>
        <translation>verbunden, wartet auf das Internet</translation>
    </message>
    <message>
        <source>up and in the Internet</source>
        <translation>verbunden, mit Internet</translation>
    </message>
    <message>
        <source>up, and a portal wants a login</source>
        <translation>verbunden, ein Portal verlangt eine Anmeldung</translation>
    </message>
    <message>
        <source>up, but not in the Internet within 10 s</source>
        <translation>verbunden, aber 10 s ohne Internet</translation>
    </message>
    <message>
        <source>went down before it was told</source>
        <translation>getrennt, bevor es gemeldet war</translation>
    </message>
    <message>
        <source>another connection took over</source>
        <translation>eine andere Verbindung hat übernommen</translation>
    </message>
    <message>
        <source>down, waiting whether it comes back</source>
        <translation>getrennt, wartet auf Rückkehr</translation>
    </message>
    <message>
        <source>down</source>
        <translation>getrennt</translation>
    </message>
    <message>
        <source>the service is gone, waiting whether it comes back</source>
        <translation>der Dienst ist weg, wartet auf Rückkehr</translation>
    </message>
    <message>
        <source>handed over, not a new connection</source>
        <translation>übergeben, keine neue Verbindung</translation>
    </message>
    <message>
        <source>was up before sleep, not a new connection</source>
        <translation>bestand vor dem Ruhezustand, keine neue Verbindung</translation>
    </message>
    <message>
        <source>outlived a restart of the service, not a new connection</source>
        <translation>hat einen Neustart des Dienstes überstanden, keine neue Verbindung</translation>
    </message>
    <message>
        <source>was down again when asked, not told</source>
        <extracomment>The host asks once more before it tells of a connection that came up.</extracomment>
        <translation>war bei der Nachfrage wieder getrennt, nicht gemeldet</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Window</source>
        <translation>Fenster anzeigen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Vellum Connect keeps running here. Click the icon to show its window.</source>
        <translation>Vellum Connect läuft hier weiter. Ein Klick auf das Symbol zeigt sein Fenster.</translation>
    </message>
</context>
<context>
    <name>WhyWindow</name>
    <message>
        <source>What Opened, and Why</source>
        <translation>Was sich öffnete und warum</translation>
    </message>
    <message>
        <source>What was decided about connections and links, newest first. The last %1 decisions are remembered until the program ends, and written to no file.</source>
        <translation>Was über Verbindungen und Links entschieden wurde, neueste zuerst. Die letzten %1 Entscheidungen bleiben bis zum Programmende im Gedächtnis und kommen in keine Datei.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Link or Connection</source>
        <translation>Link oder Verbindung</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>Anlass</translation>
    </message>
    <message>
        <source>What Was Done</source>
        <translation>Was geschah</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
</TS>
