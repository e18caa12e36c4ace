<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>AddressProblem</name>
    <message>
        <source>This link has no address:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are blanks before or behind this address:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The beginning of this address must be written in small letters:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only Internet addresses (http, https and ftp) are opened. This is not one:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This address needs &quot;http://&quot;, &quot;https://&quot;, &quot;ftp://&quot; or &quot;www.&quot; at its beginning:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AddressQuestions</name>
    <message>
        <source>Open this address with the program for &quot;%1&quot; links?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unusual address</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Print which links the running program opened or did not, and why, newest first, and exit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No running program with the folder %1 can be asked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was decided yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep your own data in DIR.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load the plug-ins of DIR.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show texts in the language LANG, such as en or pt_BR.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection manager with quick links.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty value after &quot;--%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No such kind of connection: &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the quick links and exit. Needs no graphical session.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Try --help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wait in the tray without a window; where there is no tray, the window shows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is running already, as process %1, with the folder %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watch connections of type KIND in this run, whatever the settings say: mobile (mobile broadband), any (whatever has a default route) or manual (you press a button).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no plug-in in the folder &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommonUtils</name>
    <message>
        <source>No program could be started for this address:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Second button of messages. Up to about 14 characters.</extracomment>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>ConnectionDecisions</name>
    <message>
        <source>No links opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Links marked for a connection open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConnectionPage</name>
    <message>
        <source>Connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In this run the command line says which connections count. What you choose here counts from the next start on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mobile broadband</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An&amp;y plan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only the plans &amp;ticked here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not while &amp;roaming</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Any connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>My own &amp;button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (not there now)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NetworkManager does not say which plans there are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>While none is ticked, any plan counts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no mobile plans yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConnectionPanel</name>
    <message>
        <source>&amp;Disconnect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Co&amp;nnect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operator:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Since:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConnectionTexts</name>
    <message>
        <source>%1: %2</source>
        <comment>state and name of the connection</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This network asks for a login first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Internet is out of reach.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press Connect when your connection is up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for mobile broadband.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for a connection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>before this program started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NetworkManager is not running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Online by Ethernet; waiting for mobile broadband.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Online by Wi-Fi; waiting for mobile broadband.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Online by another connection; waiting for mobile broadband.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roaming; waiting for your own network.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DesktopOpener</name>
    <message>
        <source>There is no such file or folder:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No program was found that opens this:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program that opens this reported a failure:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The desktop could not open this:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opening this needs the program &quot;xdg-open&quot;, which could not be started:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DisplayChoice</name>
    <message>
        <source>On Wayland the package %1 is needed, which is not installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QT_QPA_PLATFORM asks for X, but DISPLAY is not set.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The display &quot;%1&quot; does not answer.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditLinkButton</name>
    <message>
        <source>&amp;Edit Links</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit Link</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EntryRun</name>
    <message>
        <source>The application of this could not be started:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FailureList</name>
    <message>
        <source>Not opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>name of a link and its address</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FixedReason</name>
    <message>
        <source>Fixed by the administrator of this computer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start with the session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vellum Connect then waits in the tray. Where the desktop has no tray, its window shows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This choice cannot be kept in %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GuardMessages</name>
    <message>
        <source>The file with your quick links is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file with your quick links is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file with your quick links is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file with your quick links is far too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file with your quick links cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the place of the file with your quick links there is something that is no file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are not allowed to write to its folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are in place again.</source>
        <translation>
            <numerusform>The link of %1 is in place again.</numerusform>
            <numerusform>The %n links of %1 are in place again.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 can be brought back.</source>
        <translation>
            <numerusform>The link of %1 can be brought back.</numerusform>
            <numerusform>The %n links of %1 can be brought back.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are kept, but could not be put in place.</source>
        <translation>
            <numerusform>The link of %1 is kept, but could not be put in place.</numerusform>
            <numerusform>The %n links of %1 are kept, but could not be put in place.</numerusform>
        </translation>
    </message>
    <message>
        <source>No earlier state of the links is known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was found there was kept:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bring Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Leave Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The change of your quick links could not be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The quick links were changed by another program. Do you want to load them, or to keep yours?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Load Them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The quick links that were prepared for you could not be put in place. The program tries again at its next start.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>Added: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edited: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moved: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n more</numerusform>
            <numerusform>%n more</numerusform>
        </translation>
    </message>
    <message>
        <source>History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (now)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Links</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Go Back to This</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The states that your quick links were in, newest first; the last %1 are kept.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>The program started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A connection came up</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LinkAddresses</name>
    <message>
        <source>of several marked web addresses only the lowest opens</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LinkButtons</name>
    <message>
        <source>No quick links yet. Add some with Tools &gt; Settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No quick link has this in its name.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LinkOpener</name>
    <message>
        <source>There is no such file or folder, or you are not allowed to see it:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are not allowed to open this:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no valid address:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Addresses that are themselves a script or a page are never opened:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This link leads nowhere: it has no path.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The path of an application or file must begin with &quot;/&quot;:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too many questions wait for an answer to ask about this address, too:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is too long to be opened:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LinkTable</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;Why…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See which links opened or did not, and why</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quick Links</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add, change and order quick links</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Vellum Connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Vellum Connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;Vellum Connect %1&lt;/h3&gt;&lt;p&gt;Connection manager with quick links.&lt;/p&gt;&lt;p&gt;Free software under the MIT licence.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take back the last change of the quick links</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make the change again that was taken back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Plug-ins Left Out…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See which plug-ins crashed or hung, and load them again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plug-ins not loaded: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find a Quick Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show only the quick links with a name that you type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find a quick link</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuManager</name>
    <message>
        <source>You picked it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OfferLine</name>
    <message>
        <source>&amp;Put Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave &amp;As It Is</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message>
        <source>Opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You were asked first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not opened: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not opened: you did not agree</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OpeningCause</name>
    <message>
        <source>A plug-in asked for it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PluginMessages</name>
    <message>
        <source>This was not loaded, because another user owns %1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This was not loaded, because other users may change %1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This was not loaded, because it is not known who may change %1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This was not loaded, because it passes itself off as the quick links of this program:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was starting, and was left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish starting last time (it crashed or hung), and was left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was ending, and was left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish ending last time (it crashed or hung), and was left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Load at the Next Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave &amp;Out</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProgramEnd</name>
    <message>
        <source>it used memory that it does not have</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it noticed a mistake of its own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it divided by zero or the like</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it came to an instruction that the processor does not know</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it asked the system for what is forbidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This program ended at once, with the error code %1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This program crashed (signal %1, %2):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This program was ended by the system or by another program (signal %1):</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProgramRun</name>
    <message>
        <source>This program could not be started:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PutBackOffer</name>
    <message>
        <source>&quot;%1&quot; no longer opens by itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when connected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer has a recipient.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when Vellum Connect starts.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QuickLinkUIPlugin</name>
    <message>
        <source>IDS_SETTING_NAME</source>
        <extracomment>Caption of the page in the list of the settings dialog. Up to about 20 characters.</extracomment>
        <translation>Quick Links</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TAB</source>
        <extracomment>Title of the only tab of the settings page, above the table. Up to about 30 characters (the tab widget is 280 pixels wide).</extracomment>
        <translation>Quick Links</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_ORDER</source>
        <extracomment>Label above the table of the settings page. Up to about 35 characters (250 pixels). Labels are low: a capital letter with an accent, such as an umlaut, loses it with Qt 6.</extracomment>
        <translation>Links open in this order:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME</source>
        <extracomment>Header of the table&apos;s first column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>Name</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TYPE</source>
        <extracomment>Header of the table&apos;s second column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>Type</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_UP</source>
        <extracomment>Button below the table: moves the link up. Up to about 14 characters; the letter after the ampersand must differ from those of the page&apos;s other buttons.</extracomment>
        <translation>&amp;Up</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DOWN</source>
        <extracomment>Button below the table: moves the link down. As IDS_LINK_SETTING_UP.</extracomment>
        <translation>&amp;Down</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW</source>
        <extracomment>Button beside the table: opens the dialog for a new link. Up to about 12 characters; with an ampersand as IDS_LINK_SETTING_UP.</extracomment>
        <translation>&amp;New…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT</source>
        <extracomment>Button beside the table: opens the dialog that changes the chosen link. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>&amp;Edit…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DEL</source>
        <extracomment>Button beside the table: deletes the chosen link after a question. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>De&amp;lete</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TITLE</source>
        <extracomment>Title of the dialog for a new link. Up to about 16 characters: most desktops put the program&apos;s name behind it.</extracomment>
        <translation>New Quick Link</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT_TITLE</source>
        <extracomment>Title of the dialog that changes a link. As IDS_LINK_SETTING_NEW_TITLE.</extracomment>
        <translation>Edit Quick Link</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_NAME</source>
        <extracomment>Label of the dialog&apos;s name field. 51 pixels: about 6 characters.</extracomment>
        <translation>Name:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TYPE</source>
        <extracomment>Label of the dialog&apos;s choice of type. 70 pixels: about 9 characters.</extracomment>
        <translation>Type:</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_APPLICATION</source>
        <extracomment>Type of a link that starts a program: in the dialog&apos;s choice and on its tab, and in the table. Up to about 13 characters (100 pixels).</extracomment>
        <translation>Application</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_E-MAIL</source>
        <extracomment>Type of a link that opens the mail program. As IDS_LINK_TYPE_APPLICATION.</extracomment>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_INTERNET</source>
        <extracomment>Type of a link that opens an Internet address. As IDS_LINK_TYPE_APPLICATION.</extracomment>
        <translation>Internet</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_URL</source>
        <extracomment>Label above the field with the path of the program. Up to about 25 characters (184 pixels).</extracomment>
        <translation>Program file:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_BROWSER</source>
        <extracomment>Button beside that field: opens the choice of a file. 80 pixels: up to about 10 characters.</extracomment>
        <translation>Browse…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_PARA</source>
        <extracomment>Label above the field with the program&apos;s parameters. Up to about 35 characters (250 pixels).</extracomment>
        <translation>Parameters:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_IE_URL</source>
        <extracomment>Label above the field with the Internet address. Up to about 35 characters (250 pixels).</extracomment>
        <translation>Address:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_EMAIL_URL</source>
        <extracomment>What an e-mail link does; the only text on its panel. Up to about 35 characters (250 pixels), one line.</extracomment>
        <translation>Opens your mail program.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK_STARTUP</source>
        <extracomment>Check box of the dialog. Up to about 32 characters (230 pixels).</extracomment>
        <translation>Open when Vellum Connect starts</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK</source>
        <extracomment>Check box of the dialog: opens the link when a data connection comes up. Up to about 32 characters (230 pixels).</extracomment>
        <translation>Open when connected</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_OK</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CANCEL</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>IDS_LINK_PROMPT</source>
        <extracomment>Title of every message about quick links. Up to about 30 characters.</extracomment>
        <translation>Quick Links</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_INVALID_URL</source>
        <extracomment>Message: the address of the link that was picked is none. A sentence or two; keep what stands in quotation marks.</extracomment>
        <translation>This address cannot be opened. An address needs &quot;http://&quot;, &quot;https://&quot;, &quot;ftp&quot; or &quot;www.&quot; in it.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME_SAME</source>
        <extracomment>Message: the dialog&apos;s name is in use. A sentence or two.</extracomment>
        <translation>Another quick link has this name. Choose a different one.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_FILENOTEXIST</source>
        <extracomment>Message: the dialog&apos;s program file is missing, or none was chosen. A sentence or two.</extracomment>
        <translation>There is no such program file. Choose one.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DELETE_CONFORM</source>
        <extracomment>Question before a link is deleted, with the buttons IDS_OK and IDS_CANCEL. A sentence or two.</extracomment>
        <translation>Delete the selected quick link?</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Second button of messages. Up to about 14 characters.</extracomment>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None of the loaded plug-ins has settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Programs start without the parameters that a link has for them.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TransitionRules</name>
    <message>
        <source>was up before the program was there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>up, waiting to be in the Internet</source>
        <extracomment>&quot;In the Internet&quot; means that the Internet can be reached.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>up and in the Internet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>up, and a portal wants a login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>up, but not in the Internet within 10 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>went down before it was told</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another connection took over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>down, waiting whether it comes back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the service is gone, waiting whether it comes back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>handed over, not a new connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>was up before sleep, not a new connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>outlived a restart of the service, not a new connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>was down again when asked, not told</source>
        <extracomment>The host asks once more before it tells of a connection that came up.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vellum Connect keeps running here. Click the icon to show its window.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WhyWindow</name>
    <message>
        <source>What Opened, and Why</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was decided about connections and links, newest first. The last %1 decisions are remembered until the program ends, and written to no file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link or Connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What Was Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
