<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>AddressProblem</name>
    <message>
        <source>This link has no address:</source>
        <translation>Ten odnośnik nie ma adresu:</translation>
    </message>
    <message>
        <source>There are blanks before or behind this address:</source>
        <translation>Przed tym adresem lub za nim są spacje:</translation>
    </message>
    <message>
        <source>The beginning of this address must be written in small letters:</source>
        <translation>Początek tego adresu musi być napisany małymi literami:</translation>
    </message>
    <message>
        <source>Only Internet addresses (http, https and ftp) are opened. This is not one:</source>
        <translation>Otwierane są tylko adresy internetowe (http, https i ftp). To nie jest taki adres:</translation>
    </message>
    <message>
        <source>This address needs &quot;http://&quot;, &quot;https://&quot;, &quot;ftp://&quot; or &quot;www.&quot; at its beginning:</source>
        <translation>Ten adres musi się zaczynać od „http://”, „https://”, „ftp://” lub „www.”:</translation>
    </message>
</context>
<context>
    <name>AddressQuestions</name>
    <message>
        <source>Open this address with the program for &quot;%1&quot; links?</source>
        <translation>Otworzyć ten adres programem do odnośników „%1”?</translation>
    </message>
    <message>
        <source>Unusual address</source>
        <translation>Nietypowy adres</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Print which links the running program opened or did not, and why, newest first, and exit.</source>
        <translation>Wypisuje, które odnośniki działający program otworzył lub nie i dlaczego, od najnowszego, i kończy działanie.</translation>
    </message>
    <message>
        <source>No running program with the folder %1 can be asked.</source>
        <translation>Nie ma działającego programu z folderem %1, który można zapytać.</translation>
    </message>
    <message>
        <source>Nothing was decided yet</source>
        <translation>Jeszcze o niczym nie zdecydowano</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Wyświetla tę pomoc i kończy działanie.</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>Wyświetla wersję i kończy działanie.</translation>
    </message>
    <message>
        <source>Keep your own data in DIR.</source>
        <translation>Przechowuje dane użytkownika w DIR.</translation>
    </message>
    <message>
        <source>Load the plug-ins of DIR.</source>
        <translation>Wczytuje wtyczki z DIR.</translation>
    </message>
    <message>
        <source>Show texts in the language LANG, such as en or pt_BR.</source>
        <translation>Wyświetla teksty w języku LANG, np. en lub pt_BR.</translation>
    </message>
    <message>
        <source>Connection manager with quick links.</source>
        <translation>Menedżer połączeń z szybkimi odnośnikami.</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>Nieoczekiwany argument „%1”.</translation>
    </message>
    <message>
        <source>Empty value after &quot;--%1&quot;.</source>
        <translation>Pusta wartość po „--%1”.</translation>
    </message>
    <message>
        <source>No such kind of connection: &quot;%1&quot;.</source>
        <translation>Nie ma takiego rodzaju połączenia: „%1”.</translation>
    </message>
    <message>
        <source>Print the quick links and exit. Needs no graphical session.</source>
        <translation>Wypisuje szybkie odnośniki i kończy działanie. Nie wymaga sesji graficznej.</translation>
    </message>
    <message>
        <source>%1 Try --help.</source>
        <translation>%1 Zobacz --help.</translation>
    </message>
    <message>
        <source>Wait in the tray without a window; where there is no tray, the window shows.</source>
        <translation>Czeka w zasobniku bez okna; gdy nie ma zasobnika, okno się pojawia.</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>Nie ma folderu „%1”.</translation>
    </message>
    <message>
        <source>It is running already, as process %1, with the folder %2.</source>
        <translation>Program już działa jako proces %1 z folderem %2.</translation>
    </message>
    <message>
        <source>Watch connections of type KIND in this run, whatever the settings say: mobile (mobile broadband), any (whatever has a default route) or manual (you press a button).</source>
        <translation>W tym uruchomieniu śledzi połączenia rodzaju KIND, niezależnie od ustawień: mobile (komórkowe szerokopasmowe), any (każde z trasą domyślną) lub manual (naciskasz przycisk).</translation>
    </message>
    <message>
        <source>There is no plug-in in the folder &quot;%1&quot;.</source>
        <translation>W folderze „%1” nie ma wtyczki.</translation>
    </message>
</context>
<context>
    <name>CommonUtils</name>
    <message>
        <source>No program could be started for this address:</source>
        <translation>Nie udało się uruchomić programu dla tego adresu:</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Second button of messages. Up to about 14 characters.</extracomment>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>ConnectionDecisions</name>
    <message>
        <source>No links opened</source>
        <translation>Nie otwarto odnośników</translation>
    </message>
    <message>
        <source>Links marked for a connection open</source>
        <translation>Otwierają się odnośniki oznaczone dla połączenia</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Połączenie</translation>
    </message>
</context>
<context>
    <name>ConnectionPage</name>
    <message>
        <source>Connection</source>
        <translation>Połączenie</translation>
    </message>
    <message>
        <source>In this run the command line says which connections count. What you choose here counts from the next start on.</source>
        <translation>W tym uruchomieniu to wiersz poleceń mówi, które połączenia się liczą. Wybór dokonany tutaj liczy się od następnego uruchomienia.</translation>
    </message>
    <message>
        <source>&amp;Mobile broadband</source>
        <translation>Szerokopasmowe połączenie &amp;komórkowe</translation>
    </message>
    <message>
        <source>An&amp;y plan</source>
        <translation>&amp;Dowolny plan</translation>
    </message>
    <message>
        <source>Only the plans &amp;ticked here</source>
        <translation>&amp;Tylko plany zaznaczone tutaj</translation>
    </message>
    <message>
        <source>Not while &amp;roaming</source>
        <translation>Nie w &amp;roamingu</translation>
    </message>
    <message>
        <source>&amp;Any connection</source>
        <translation>Dowolne &amp;połączenie</translation>
    </message>
    <message>
        <source>My own &amp;button</source>
        <translation>Własny przy&amp;cisk</translation>
    </message>
    <message>
        <source>%1 (not there now)</source>
        <translation>%1 (teraz nieobecny)</translation>
    </message>
    <message>
        <source>NetworkManager does not say which plans there are.</source>
        <translation>NetworkManager nie podaje, jakie są plany.</translation>
    </message>
    <message>
        <source>While none is ticked, any plan counts.</source>
        <translation>Dopóki żaden nie jest zaznaczony, liczy się każdy plan.</translation>
    </message>
    <message>
        <source>There are no mobile plans yet.</source>
        <translation>Nie ma jeszcze planów komórkowych.</translation>
    </message>
</context>
<context>
    <name>ConnectionPanel</name>
    <message>
        <source>&amp;Disconnect</source>
        <translation>&amp;Rozłącz</translation>
    </message>
    <message>
        <source>Co&amp;nnect</source>
        <translation>P&amp;ołącz</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>Połączenie:</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>Urządzenie:</translation>
    </message>
    <message>
        <source>Operator:</source>
        <translation>Operator:</translation>
    </message>
    <message>
        <source>Since:</source>
        <translation>Początek:</translation>
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
        <translation>Połączono</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Łączenie…</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nie połączono</translation>
    </message>
    <message>
        <source>This network asks for a login first.</source>
        <translation>Ta sieć wymaga najpierw zalogowania.</translation>
    </message>
    <message>
        <source>The Internet is out of reach.</source>
        <translation>Internet jest nieosiągalny.</translation>
    </message>
    <message>
        <source>Press Connect when your connection is up.</source>
        <translation>Naciśnij „Połącz”, gdy połączenie będzie aktywne.</translation>
    </message>
    <message>
        <source>Waiting for mobile broadband.</source>
        <translation>Oczekiwanie na szerokopasmowe połączenie komórkowe.</translation>
    </message>
    <message>
        <source>Waiting for a connection.</source>
        <translation>Oczekiwanie na połączenie.</translation>
    </message>
    <message>
        <source>before this program started</source>
        <translation>przed uruchomieniem tego programu</translation>
    </message>
    <message>
        <source>NetworkManager is not running</source>
        <translation>NetworkManager nie działa</translation>
    </message>
    <message>
        <source>Online by Ethernet; waiting for mobile broadband.</source>
        <translation>Online przez Ethernet; oczekiwanie na szerokopasmowe połączenie komórkowe.</translation>
    </message>
    <message>
        <source>Online by Wi-Fi; waiting for mobile broadband.</source>
        <translation>Online przez Wi-Fi; oczekiwanie na szerokopasmowe połączenie komórkowe.</translation>
    </message>
    <message>
        <source>Online by another connection; waiting for mobile broadband.</source>
        <translation>Online przez inne połączenie; oczekiwanie na szerokopasmowe połączenie komórkowe.</translation>
    </message>
    <message>
        <source>Roaming; waiting for your own network.</source>
        <translation>Roaming; oczekiwanie na własną sieć.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Sprawdzanie…</translation>
    </message>
</context>
<context>
    <name>DesktopOpener</name>
    <message>
        <source>There is no such file or folder:</source>
        <translation>Nie ma takiego pliku ani folderu:</translation>
    </message>
    <message>
        <source>No program was found that opens this:</source>
        <translation>Nie znaleziono programu, który to otwiera:</translation>
    </message>
    <message>
        <source>The program that opens this reported a failure:</source>
        <translation>Program, który to otwiera, zgłosił błąd:</translation>
    </message>
    <message>
        <source>The desktop could not open this:</source>
        <translation>Środowisko graficzne nie mogło tego otworzyć:</translation>
    </message>
    <message>
        <source>Opening this needs the program &quot;xdg-open&quot;, which could not be started:</source>
        <translation>Do otwarcia potrzebny jest program „xdg-open”, którego nie udało się uruchomić:</translation>
    </message>
</context>
<context>
    <name>DisplayChoice</name>
    <message>
        <source>On Wayland the package %1 is needed, which is not installed.</source>
        <translation>Na Waylandzie potrzebny jest pakiet %1, który nie jest zainstalowany.</translation>
    </message>
    <message>
        <source>There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set.</source>
        <translation>Nie ma ekranu: nie ustawiono ani DISPLAY, ani WAYLAND_DISPLAY.</translation>
    </message>
    <message>
        <source>QT_QPA_PLATFORM asks for X, but DISPLAY is not set.</source>
        <translation>QT_QPA_PLATFORM żąda X, ale nie ustawiono DISPLAY.</translation>
    </message>
    <message>
        <source>The display &quot;%1&quot; does not answer.</source>
        <translation>Ekran „%1” nie odpowiada.</translation>
    </message>
</context>
<context>
    <name>EditLinkButton</name>
    <message>
        <source>&amp;Edit Links</source>
        <translation>&amp;Edytuj odnośniki</translation>
    </message>
    <message>
        <source>&amp;Edit Link</source>
        <translation>&amp;Edytuj odnośnik</translation>
    </message>
</context>
<context>
    <name>EntryRun</name>
    <message>
        <source>The application of this could not be started:</source>
        <translation>Nie można uruchomić aplikacji tego wpisu:</translation>
    </message>
</context>
<context>
    <name>FailureList</name>
    <message>
        <source>Not opened</source>
        <translation>Nie otwarto</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>i jeszcze %n</numerusform>
            <numerusform>i jeszcze %n</numerusform>
            <numerusform>i jeszcze %n</numerusform>
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
        <translation>Ustalone przez administratora tego komputera</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Start with the session</source>
        <translation>Uruchamiaj z sesją</translation>
    </message>
    <message>
        <source>Vellum Connect then waits in the tray. Where the desktop has no tray, its window shows.</source>
        <translation>Vellum Connect czeka wtedy w zasobniku. Jeśli pulpit nie ma zasobnika, pojawia się okno.</translation>
    </message>
    <message>
        <source>This choice cannot be kept in %1.</source>
        <translation>Tego wyboru nie można zapisać w %1.</translation>
    </message>
</context>
<context>
    <name>GuardMessages</name>
    <message>
        <source>The file with your quick links is missing.</source>
        <translation>Brak pliku z szybkimi odnośnikami.</translation>
    </message>
    <message>
        <source>The file with your quick links is empty.</source>
        <translation>Plik z szybkimi odnośnikami jest pusty.</translation>
    </message>
    <message>
        <source>The file with your quick links is damaged.</source>
        <translation>Plik z szybkimi odnośnikami jest uszkodzony.</translation>
    </message>
    <message>
        <source>The file with your quick links is far too large.</source>
        <translation>Plik z szybkimi odnośnikami jest o wiele za duży.</translation>
    </message>
    <message>
        <source>The file with your quick links cannot be read.</source>
        <translation>Nie można odczytać pliku z szybkimi odnośnikami.</translation>
    </message>
    <message>
        <source>In the place of the file with your quick links there is something that is no file.</source>
        <translation>W miejscu pliku z szybkimi odnośnikami jest coś, co nie jest plikiem.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Dysk jest pełny.</translation>
    </message>
    <message>
        <source>You are not allowed to write to its folder.</source>
        <translation>Brak uprawnień do zapisu w jego folderze.</translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are in place again.</source>
        <translation>
            <numerusform>Odnośnik z %1 jest znów na miejscu.</numerusform>
            <numerusform>%n odnośniki z %1 są znów na miejscu.</numerusform>
            <numerusform>%n odnośników z %1 jest znów na miejscu.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 can be brought back.</source>
        <translation>
            <numerusform>Odnośnik z %1 można przywrócić.</numerusform>
            <numerusform>%n odnośniki z %1 można przywrócić.</numerusform>
            <numerusform>%n odnośników z %1 można przywrócić.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are kept, but could not be put in place.</source>
        <translation>
            <numerusform>Odnośnik z %1 jest zachowany, ale nie udało się go przywrócić.</numerusform>
            <numerusform>%n odnośniki z %1 są zachowane, ale nie udało się ich przywrócić.</numerusform>
            <numerusform>%n odnośników z %1 jest zachowanych, ale nie udało się ich przywrócić.</numerusform>
        </translation>
    </message>
    <message>
        <source>No earlier state of the links is known.</source>
        <translation>Nie jest znany żaden wcześniejszy stan odnośników.</translation>
    </message>
    <message>
        <source>What was found there was kept:</source>
        <translation>To, co tam było, zostało zachowane:</translation>
    </message>
    <message>
        <source>&amp;Bring Back</source>
        <translation>&amp;Przywróć</translation>
    </message>
    <message>
        <source>&amp;Leave Out</source>
        <translation>P&amp;omiń</translation>
    </message>
    <message>
        <source>The change of your quick links could not be saved.</source>
        <translation>Nie udało się zapisać zmiany szybkich odnośników.</translation>
    </message>
    <message>
        <source>The quick links were changed by another program. Do you want to load them, or to keep yours?</source>
        <translation>Inny program zmienił szybkie odnośniki. Wczytać je czy zachować własne?</translation>
    </message>
    <message>
        <source>&amp;Load Them</source>
        <translation>&amp;Wczytaj</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>&amp;Zachowaj moje</translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation>Szybkie odnośniki</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Spróbuj ponownie</translation>
    </message>
    <message>
        <source>The quick links that were prepared for you could not be put in place. The program tries again at its next start.</source>
        <translation>Nie udało się umieścić przygotowanych dla Ciebie szybkich odnośników. Program spróbuje ponownie przy następnym uruchomieniu.</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>Added: %1</source>
        <translation>Dodano: %1</translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation>Usunięto: %1</translation>
    </message>
    <message>
        <source>Edited: %1</source>
        <translation>Zmieniono: %1</translation>
    </message>
    <message>
        <source>Moved: %1</source>
        <translation>Przeniesiono: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>jeszcze %n</numerusform>
            <numerusform>jeszcze %n</numerusform>
            <numerusform>jeszcze %n</numerusform>
        </translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>%1 (now)</source>
        <translation>%1 (teraz)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Odnośniki</translation>
    </message>
    <message>
        <source>What Changed</source>
        <translation>Co się zmieniło</translation>
    </message>
    <message>
        <source>&amp;Go Back to This</source>
        <translation>&amp;Wróć do tego</translation>
    </message>
    <message>
        <source>The states that your quick links were in, newest first; the last %1 are kept.</source>
        <translation>Stany, w jakich były szybkie odnośniki, od najnowszego; przechowywane jest ostatnich %1.</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>The program started</source>
        <translation>Program został uruchomiony</translation>
    </message>
    <message>
        <source>A connection came up</source>
        <translation>Nawiązano połączenie</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Język</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>Język &amp;systemu</translation>
    </message>
</context>
<context>
    <name>LinkAddresses</name>
    <message>
        <source>of several marked web addresses only the lowest opens</source>
        <translation>z kilku oznaczonych adresów internetowych otwiera się tylko najniższy</translation>
    </message>
</context>
<context>
    <name>LinkButtons</name>
    <message>
        <source>No quick links yet. Add some with Tools &gt; Settings.</source>
        <translation>Nie ma jeszcze szybkich odnośników. Dodaj je przez Narzędzia &gt; Ustawienia.</translation>
    </message>
    <message>
        <source>No quick link has this in its name.</source>
        <translation>Żaden szybki odnośnik nie ma tego w nazwie.</translation>
    </message>
</context>
<context>
    <name>LinkOpener</name>
    <message>
        <source>There is no such file or folder, or you are not allowed to see it:</source>
        <translation>Nie ma takiego pliku ani folderu albo brak uprawnień do wyświetlenia:</translation>
    </message>
    <message>
        <source>You are not allowed to open this:</source>
        <translation>Brak uprawnień do otwarcia:</translation>
    </message>
    <message>
        <source>This is no valid address:</source>
        <translation>To nie jest prawidłowy adres:</translation>
    </message>
    <message>
        <source>Addresses that are themselves a script or a page are never opened:</source>
        <translation>Adresy, które same są skryptem lub stroną, nigdy nie są otwierane:</translation>
    </message>
    <message>
        <source>This link leads nowhere: it has no path.</source>
        <translation>Ten odnośnik donikąd nie prowadzi: nie ma ścieżki.</translation>
    </message>
    <message>
        <source>The path of an application or file must begin with &quot;/&quot;:</source>
        <translation>Ścieżka aplikacji lub pliku musi zaczynać się od „/”:</translation>
    </message>
    <message>
        <source>Too many questions wait for an answer to ask about this address, too:</source>
        <translation>Zbyt wiele pytań czeka na odpowiedź, aby zapytać także o ten adres:</translation>
    </message>
    <message>
        <source>This is too long to be opened:</source>
        <translation>To jest zbyt długie, aby to otworzyć:</translation>
    </message>
</context>
<context>
    <name>LinkTable</name>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>Wtyczka</translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation>Brak szybkich odnośników</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;Why…</source>
        <translation>&amp;Dlaczego…</translation>
    </message>
    <message>
        <source>See which links opened or did not, and why</source>
        <translation>Zobacz, które odnośniki się otworzyły lub nie i dlaczego</translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation>Szybkie odnośniki</translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation>Brak szybkich odnośników</translation>
    </message>
    <message>
        <source>&amp;Connection</source>
        <translation>&amp;Połączenie</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Za&amp;kończ</translation>
    </message>
    <message>
        <source>&amp;Quick Links</source>
        <translation>&amp;Szybkie odnośniki</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Narzędzia</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Ustawienia…</translation>
    </message>
    <message>
        <source>Add, change and order quick links</source>
        <translation>Dodawanie, zmiana i porządkowanie szybkich odnośników</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Widok</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>Pasek &amp;stanu</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message>
        <source>&amp;About Vellum Connect</source>
        <translation>&amp;O programie Vellum Connect</translation>
    </message>
    <message>
        <source>About Vellum Connect</source>
        <translation>O programie Vellum Connect</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Vellum Connect %1&lt;/h3&gt;&lt;p&gt;Connection manager with quick links.&lt;/p&gt;&lt;p&gt;Free software under the MIT licence.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Vellum Connect %1&lt;/h3&gt;&lt;p&gt;Menedżer połączeń z szybkimi odnośnikami.&lt;/p&gt;&lt;p&gt;Wolne oprogramowanie na licencji MIT.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edycja</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Cofnij</translation>
    </message>
    <message>
        <source>Take back the last change of the quick links</source>
        <translation>Cofa ostatnią zmianę szybkich odnośników</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ponów</translation>
    </message>
    <message>
        <source>Make the change again that was taken back</source>
        <translation>Ponawia cofniętą zmianę</translation>
    </message>
    <message>
        <source>&amp;Plug-ins Left Out…</source>
        <translation>&amp;Pominięte wtyczki…</translation>
    </message>
    <message>
        <source>See which plug-ins crashed or hung, and load them again</source>
        <translation>Pokaż wtyczki, które uległy awarii lub zawiesiły się, i wczytaj je ponownie</translation>
    </message>
    <message>
        <source>Plug-ins not loaded: %1</source>
        <translation>Nie wczytano wtyczek: %1</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>Zakończ działanie programu</translation>
    </message>
    <message>
        <source>&amp;Find a Quick Link</source>
        <translation>&amp;Znajdź szybki odnośnik</translation>
    </message>
    <message>
        <source>Show only the quick links with a name that you type</source>
        <translation>Pokaż tylko szybkie odnośniki o wpisanej nazwie</translation>
    </message>
    <message>
        <source>Find a quick link</source>
        <translation>Znajdź szybki odnośnik</translation>
    </message>
</context>
<context>
    <name>MenuManager</name>
    <message>
        <source>You picked it</source>
        <translation>Twój wybór</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Otwórz %1</translation>
    </message>
</context>
<context>
    <name>OfferLine</name>
    <message>
        <source>&amp;Put Back</source>
        <translation>&amp;Przywróć</translation>
    </message>
    <message>
        <source>Leave &amp;As It Is</source>
        <translation>Zostaw &amp;tak</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message>
        <source>Opened</source>
        <translation>Otwarto</translation>
    </message>
    <message>
        <source>You were asked first</source>
        <translation>Najpierw zadano pytanie</translation>
    </message>
    <message>
        <source>Not opened: %1</source>
        <translation>Nie otwarto: %1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Niepowodzenie: %1</translation>
    </message>
    <message>
        <source>Unknown link</source>
        <translation>Nieznany odnośnik</translation>
    </message>
    <message>
        <source>Not opened: you did not agree</source>
        <translation>Nie otwarto: brak zgody</translation>
    </message>
</context>
<context>
    <name>OpeningCause</name>
    <message>
        <source>A plug-in asked for it</source>
        <translation>Na żądanie wtyczki</translation>
    </message>
</context>
<context>
    <name>PluginMessages</name>
    <message>
        <source>This was not loaded, because another user owns %1:</source>
        <translation>Tego nie wczytano, ponieważ %1 należy do innego użytkownika:</translation>
    </message>
    <message>
        <source>This was not loaded, because other users may change %1:</source>
        <translation>Tego nie wczytano, ponieważ inni użytkownicy mogą zmieniać %1:</translation>
    </message>
    <message>
        <source>This was not loaded, because it is not known who may change %1:</source>
        <translation>Tego nie wczytano, ponieważ nie wiadomo, kto może zmieniać %1:</translation>
    </message>
    <message>
        <source>This was not loaded, because it passes itself off as the quick links of this program:</source>
        <translation>Tego nie wczytano, ponieważ podaje się za szybkie odnośniki tego programu:</translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was starting, and was left out.</source>
        <translation>Wtyczka %1 nie odpowiadała podczas uruchamiania i została pominięta.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish starting last time (it crashed or hung), and was left out.</source>
        <translation>Wtyczka %1 nie dokończyła ostatnio uruchamiania (uległa awarii lub zawiesiła się) i została pominięta.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was ending, and was left out.</source>
        <translation>Wtyczka %1 nie odpowiadała podczas zamykania i została pominięta.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish ending last time (it crashed or hung), and was left out.</source>
        <translation>Wtyczka %1 nie dokończyła ostatnio zamykania (uległa awarii lub zawiesiła się) i została pominięta.</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Wtyczki</translation>
    </message>
    <message>
        <source>&amp;Load at the Next Start</source>
        <translation>&amp;Wczytaj przy następnym uruchomieniu</translation>
    </message>
    <message>
        <source>Leave &amp;Out</source>
        <translation>&amp;Pomiń</translation>
    </message>
</context>
<context>
    <name>ProgramEnd</name>
    <message>
        <source>it used memory that it does not have</source>
        <translation>użył pamięci, której nie ma</translation>
    </message>
    <message>
        <source>it noticed a mistake of its own</source>
        <translation>zauważył własny błąd</translation>
    </message>
    <message>
        <source>it divided by zero or the like</source>
        <translation>podzielił przez zero lub podobnie</translation>
    </message>
    <message>
        <source>it came to an instruction that the processor does not know</source>
        <translation>natrafił na rozkaz, którego procesor nie zna</translation>
    </message>
    <message>
        <source>it asked the system for what is forbidden</source>
        <translation>zażądał od systemu czegoś zabronionego</translation>
    </message>
    <message>
        <source>This program ended at once, with the error code %1:</source>
        <translation>Ten program zakończył się od razu z kodem błędu %1:</translation>
    </message>
    <message>
        <source>This program crashed (signal %1, %2):</source>
        <translation>Ten program uległ awarii (sygnał %1, %2):</translation>
    </message>
    <message>
        <source>This program was ended by the system or by another program (signal %1):</source>
        <translation>Ten program został zakończony przez system lub inny program (sygnał %1):</translation>
    </message>
</context>
<context>
    <name>ProgramRun</name>
    <message>
        <source>This program could not be started:</source>
        <translation>Nie udało się uruchomić tego programu:</translation>
    </message>
</context>
<context>
    <name>PutBackOffer</name>
    <message>
        <source>&quot;%1&quot; no longer opens by itself.</source>
        <translation>„%1” nie otwiera się już samo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when connected.</source>
        <translation>„%1” nie otwiera się już po połączeniu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer has a recipient.</source>
        <translation>„%1” nie ma już odbiorcy.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when Vellum Connect starts.</source>
        <translation>„%1” nie otwiera się już po uruchomieniu Vellum Connect.</translation>
    </message>
</context>
<context>
    <name>QuickLinkUIPlugin</name>
    <message>
        <source>IDS_SETTING_NAME</source>
        <extracomment>Caption of the page in the list of the settings dialog. Up to about 20 characters.</extracomment>
        <translation>Szybkie odnośniki</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TAB</source>
        <extracomment>Title of the only tab of the settings page, above the table. Up to about 30 characters (the tab widget is 280 pixels wide).</extracomment>
        <translation>Szybkie odnośniki</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_ORDER</source>
        <extracomment>Label above the table of the settings page. Up to about 35 characters (250 pixels). Labels are low: a capital letter with an accent, such as an umlaut, loses it with Qt 6.</extracomment>
        <translation>Kolejność otwierania:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME</source>
        <extracomment>Header of the table&apos;s first column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TYPE</source>
        <extracomment>Header of the table&apos;s second column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>Typ</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_UP</source>
        <extracomment>Button below the table: moves the link up. Up to about 14 characters; the letter after the ampersand must differ from those of the page&apos;s other buttons.</extracomment>
        <translation>W &amp;górę</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DOWN</source>
        <extracomment>Button below the table: moves the link down. As IDS_LINK_SETTING_UP.</extracomment>
        <translation>W &amp;dół</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW</source>
        <extracomment>Button beside the table: opens the dialog for a new link. Up to about 12 characters; with an ampersand as IDS_LINK_SETTING_UP.</extracomment>
        <translation>&amp;Nowy…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT</source>
        <extracomment>Button beside the table: opens the dialog that changes the chosen link. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>&amp;Edytuj…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DEL</source>
        <extracomment>Button beside the table: deletes the chosen link after a question. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TITLE</source>
        <extracomment>Title of the dialog for a new link. Up to about 16 characters: most desktops put the program&apos;s name behind it.</extracomment>
        <translation>Nowy odnośnik</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT_TITLE</source>
        <extracomment>Title of the dialog that changes a link. As IDS_LINK_SETTING_NEW_TITLE.</extracomment>
        <translation>Edycja odnośnika</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_NAME</source>
        <extracomment>Label of the dialog&apos;s name field. 51 pixels: about 6 characters.</extracomment>
        <translation>Nazwa:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TYPE</source>
        <extracomment>Label of the dialog&apos;s choice of type. 70 pixels: about 9 characters.</extracomment>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_APPLICATION</source>
        <extracomment>Type of a link that starts a program: in the dialog&apos;s choice and on its tab, and in the table. Up to about 13 characters (100 pixels).</extracomment>
        <translation>Aplikacja</translation>
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
        <translation>Plik programu:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_BROWSER</source>
        <extracomment>Button beside that field: opens the choice of a file. 80 pixels: up to about 10 characters.</extracomment>
        <translation>Wskaż…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_PARA</source>
        <extracomment>Label above the field with the program&apos;s parameters. Up to about 35 characters (250 pixels).</extracomment>
        <translation>Parametry:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_IE_URL</source>
        <extracomment>Label above the field with the Internet address. Up to about 35 characters (250 pixels).</extracomment>
        <translation>Adres:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_EMAIL_URL</source>
        <extracomment>What an e-mail link does; the only text on its panel. Up to about 35 characters (250 pixels), one line.</extracomment>
        <translation>Otwiera program pocztowy.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK_STARTUP</source>
        <extracomment>Check box of the dialog. Up to about 32 characters (230 pixels).</extracomment>
        <translation>Otwórz przy starcie Vellum Connect</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK</source>
        <extracomment>Check box of the dialog: opens the link when a data connection comes up. Up to about 32 characters (230 pixels).</extracomment>
        <translation>Otwórz po połączeniu</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_OK</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CANCEL</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>IDS_LINK_PROMPT</source>
        <extracomment>Title of every message about quick links. Up to about 30 characters.</extracomment>
        <translation>Szybkie odnośniki</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_INVALID_URL</source>
        <extracomment>Message: the address of the link that was picked is none. A sentence or two; keep what stands in quotation marks.</extracomment>
        <translation>Nie można otworzyć tego adresu. Adres musi zawierać „http://”, „https://”, „ftp” lub „www.”.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME_SAME</source>
        <extracomment>Message: the dialog&apos;s name is in use. A sentence or two.</extracomment>
        <translation>Inny szybki odnośnik ma już tę nazwę. Wybierz inną.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_FILENOTEXIST</source>
        <extracomment>Message: the dialog&apos;s program file is missing, or none was chosen. A sentence or two.</extracomment>
        <translation>Nie ma takiego pliku programu. Wskaż plik.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DELETE_CONFORM</source>
        <extracomment>Question before a link is deleted, with the buttons IDS_OK and IDS_CANCEL. A sentence or two.</extracomment>
        <translation>Usunąć zaznaczony szybki odnośnik?</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Second button of messages. Up to about 14 characters.</extracomment>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>None of the loaded plug-ins has settings.</source>
        <translation>Żadna z wczytanych wtyczek nie ma ustawień.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Strony</translation>
    </message>
    <message>
        <source>Programs start without the parameters that a link has for them.</source>
        <translation>Programy uruchamiają się bez parametrów, które ma ich odnośnik.</translation>
    </message>
</context>
<context>
    <name>TransitionRules</name>
    <message>
        <source>was up before the program was there</source>
        <translation>było nawiązane przed uruchomieniem programu</translation>
    </message>
    <message>
        <source>up, waiting to be in the Internet</source>
        <extracomment>&quot;In the Internet&quot; means that the Internet can be reached.</extracomment>
        <translation>nawiązane, oczekuje na Internet</translation>
    </message>
    <message>
        <source>up and in the Internet</source>
        <translation>nawiązane, z dostępem do Internetu</translation>
    </message>
    <message>
        <source>up, and a portal wants a login</source>
        <translation>nawiązane, portal wymaga zalogowania</translation>
    </message>
    <message>
        <source>up, but not in the Internet within 10 s</source>
        <translation>nawiązane, ale bez Internetu przez 10 s</translation>
    </message>
    <message>
        <source>went down before it was told</source>
        <translation>przerwane, zanim o nim powiadomiono</translation>
    </message>
    <message>
        <source>another connection took over</source>
        <translation>przejęło je inne połączenie</translation>
    </message>
    <message>
        <source>down, waiting whether it comes back</source>
        <translation>przerwane, oczekuje na powrót</translation>
    </message>
    <message>
        <source>down</source>
        <translation>przerwane</translation>
    </message>
    <message>
        <source>the service is gone, waiting whether it comes back</source>
        <translation>usługi nie ma, oczekuje na jej powrót</translation>
    </message>
    <message>
        <source>handed over, not a new connection</source>
        <translation>przekazane, to nie nowe połączenie</translation>
    </message>
    <message>
        <source>was up before sleep, not a new connection</source>
        <translation>było nawiązane przed uśpieniem, to nie nowe połączenie</translation>
    </message>
    <message>
        <source>outlived a restart of the service, not a new connection</source>
        <translation>przetrwało ponowne uruchomienie usługi, to nie nowe połączenie</translation>
    </message>
    <message>
        <source>was down again when asked, not told</source>
        <extracomment>The host asks once more before it tells of a connection that came up.</extracomment>
        <translation>przy sprawdzeniu było znów przerwane, nie powiadomiono</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Window</source>
        <translation>Pokaż okno</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Vellum Connect keeps running here. Click the icon to show its window.</source>
        <translation>Vellum Connect działa dalej tutaj. Kliknij ikonę, aby pokazać jego okno.</translation>
    </message>
</context>
<context>
    <name>WhyWindow</name>
    <message>
        <source>What Opened, and Why</source>
        <translation>Co się otworzyło i dlaczego</translation>
    </message>
    <message>
        <source>What was decided about connections and links, newest first. The last %1 decisions are remembered until the program ends, and written to no file.</source>
        <translation>Decyzje o połączeniach i odnośnikach, od najnowszej. Ostatnich %1 decyzji program pamięta do zakończenia i nie zapisuje ich w żadnym pliku.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Link or Connection</source>
        <translation>Odnośnik lub połączenie</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>Przyczyna</translation>
    </message>
    <message>
        <source>What Was Done</source>
        <translation>Co zrobiono</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Zamknij</translation>
    </message>
</context>
</TS>
