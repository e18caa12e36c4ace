<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>AddressProblem</name>
    <message>
        <source>This link has no address:</source>
        <translation>Bu kısayolun adresi yok:</translation>
    </message>
    <message>
        <source>There are blanks before or behind this address:</source>
        <translation>Bu adresin önünde veya arkasında boşluk var:</translation>
    </message>
    <message>
        <source>The beginning of this address must be written in small letters:</source>
        <translation>Bu adresin başı küçük harflerle yazılmalıdır:</translation>
    </message>
    <message>
        <source>Only Internet addresses (http, https and ftp) are opened. This is not one:</source>
        <translation>Yalnızca internet adresleri (http, https ve ftp) açılır. Bu bir internet adresi değil:</translation>
    </message>
    <message>
        <source>This address needs &quot;http://&quot;, &quot;https://&quot;, &quot;ftp://&quot; or &quot;www.&quot; at its beginning:</source>
        <translation>Bu adresin başında &quot;http://&quot;, &quot;https://&quot;, &quot;ftp://&quot; veya &quot;www.&quot; olmalıdır:</translation>
    </message>
</context>
<context>
    <name>AddressQuestions</name>
    <message>
        <source>Open this address with the program for &quot;%1&quot; links?</source>
        <translation>Bu adres &quot;%1&quot; bağlantılarının programıyla açılsın mı?</translation>
    </message>
    <message>
        <source>Unusual address</source>
        <translation>Alışılmadık adres</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Print which links the running program opened or did not, and why, newest first, and exit.</source>
        <translation>Çalışan programın hangi kısayolları açtığını ya da açmadığını ve nedenini, en yenisi önce olmak üzere listeler ve çıkar.</translation>
    </message>
    <message>
        <source>No running program with the folder %1 can be asked.</source>
        <translation>%1 klasörüyle çalışan ve sorulabilecek bir program yok.</translation>
    </message>
    <message>
        <source>Nothing was decided yet</source>
        <translation>Henüz bir karar verilmedi</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Bu yardımı gösterir ve çıkar.</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>Sürümü gösterir ve çıkar.</translation>
    </message>
    <message>
        <source>Keep your own data in DIR.</source>
        <translation>Verilerinizi DIR içinde tutar.</translation>
    </message>
    <message>
        <source>Load the plug-ins of DIR.</source>
        <translation>DIR içindeki eklentileri yükler.</translation>
    </message>
    <message>
        <source>Show texts in the language LANG, such as en or pt_BR.</source>
        <translation>Metinleri LANG dilinde gösterir, örneğin en veya pt_BR.</translation>
    </message>
    <message>
        <source>Connection manager with quick links.</source>
        <translation>Kısayolları olan bağlantı yöneticisi.</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>Beklenmeyen argüman &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Empty value after &quot;--%1&quot;.</source>
        <translation>&quot;--%1&quot; sonrasında boş değer.</translation>
    </message>
    <message>
        <source>No such kind of connection: &quot;%1&quot;.</source>
        <translation>Böyle bir bağlantı türü yok: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Print the quick links and exit. Needs no graphical session.</source>
        <translation>Kısayolları listeler ve çıkar. Grafik oturumu gerektirmez.</translation>
    </message>
    <message>
        <source>%1 Try --help.</source>
        <translation>%1 Bkz. --help.</translation>
    </message>
    <message>
        <source>Wait in the tray without a window; where there is no tray, the window shows.</source>
        <translation>Penceresiz olarak sistem tepsisinde bekler; tepsi yoksa pencere görünür.</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>&quot;%1&quot; klasörü yok.</translation>
    </message>
    <message>
        <source>It is running already, as process %1, with the folder %2.</source>
        <translation>Zaten çalışıyor: işlem %1, klasör %2.</translation>
    </message>
    <message>
        <source>Watch connections of type KIND in this run, whatever the settings say: mobile (mobile broadband), any (whatever has a default route) or manual (you press a button).</source>
        <translation>Ayarlar ne derse desin bu çalıştırmada KIND türündeki bağlantıları izler: mobile (mobil geniş bant), any (öntanımlı rotası olan her bağlantı) veya manual (bir düğmeye basarsınız).</translation>
    </message>
    <message>
        <source>There is no plug-in in the folder &quot;%1&quot;.</source>
        <translation>&quot;%1&quot; klasöründe eklenti yok.</translation>
    </message>
</context>
<context>
    <name>CommonUtils</name>
    <message>
        <source>No program could be started for this address:</source>
        <translation>Bu adres için hiçbir program başlatılamadı:</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Second button of messages. Up to about 14 characters.</extracomment>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>ConnectionDecisions</name>
    <message>
        <source>No links opened</source>
        <translation>Kısayol açılmadı</translation>
    </message>
    <message>
        <source>Links marked for a connection open</source>
        <translation>Bağlantı için işaretli kısayollar açılır</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Bağlantı</translation>
    </message>
</context>
<context>
    <name>ConnectionPage</name>
    <message>
        <source>Connection</source>
        <translation>Bağlantı</translation>
    </message>
    <message>
        <source>In this run the command line says which connections count. What you choose here counts from the next start on.</source>
        <translation>Bu çalıştırmada hangi bağlantıların sayılacağını komut satırı belirler. Burada seçtiğiniz bir sonraki başlatmadan itibaren geçerlidir.</translation>
    </message>
    <message>
        <source>&amp;Mobile broadband</source>
        <translation>&amp;Mobil geniş bant</translation>
    </message>
    <message>
        <source>An&amp;y plan</source>
        <translation>Herhangi bir &amp;tarife</translation>
    </message>
    <message>
        <source>Only the plans &amp;ticked here</source>
        <translation>&amp;Yalnızca burada işaretlenen tarifeler</translation>
    </message>
    <message>
        <source>Not while &amp;roaming</source>
        <translation>&amp;Dolaşımda değil</translation>
    </message>
    <message>
        <source>&amp;Any connection</source>
        <translation>Herhangi bir &amp;bağlantı</translation>
    </message>
    <message>
        <source>My own &amp;button</source>
        <translation>&amp;Kendi düğmem</translation>
    </message>
    <message>
        <source>%1 (not there now)</source>
        <translation>%1 (şu anda yok)</translation>
    </message>
    <message>
        <source>NetworkManager does not say which plans there are.</source>
        <translation>NetworkManager hangi tarifelerin olduğunu söylemiyor.</translation>
    </message>
    <message>
        <source>While none is ticked, any plan counts.</source>
        <translation>Hiçbiri işaretli değilken her tarife sayılır.</translation>
    </message>
    <message>
        <source>There are no mobile plans yet.</source>
        <translation>Henüz mobil tarife yok.</translation>
    </message>
</context>
<context>
    <name>ConnectionPanel</name>
    <message>
        <source>&amp;Disconnect</source>
        <translation>Bağlantıyı K&amp;es</translation>
    </message>
    <message>
        <source>Co&amp;nnect</source>
        <translation>Bağ&amp;lan</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>Bağlantı:</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>Aygıt:</translation>
    </message>
    <message>
        <source>Operator:</source>
        <translation>Operatör:</translation>
    </message>
    <message>
        <source>Since:</source>
        <translation>Başlangıç:</translation>
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
        <translation>Bağlı</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Bağlanıyor…</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Bağlı değil</translation>
    </message>
    <message>
        <source>This network asks for a login first.</source>
        <translation>Bu ağ önce oturum açmanızı istiyor.</translation>
    </message>
    <message>
        <source>The Internet is out of reach.</source>
        <translation>İnternete erişilemiyor.</translation>
    </message>
    <message>
        <source>Press Connect when your connection is up.</source>
        <translation>Bağlantınız kurulduğunda &quot;Bağlan&quot; düğmesine basın.</translation>
    </message>
    <message>
        <source>Waiting for mobile broadband.</source>
        <translation>Mobil geniş bant bekleniyor.</translation>
    </message>
    <message>
        <source>Waiting for a connection.</source>
        <translation>Bağlantı bekleniyor.</translation>
    </message>
    <message>
        <source>before this program started</source>
        <translation>bu program başlamadan önce</translation>
    </message>
    <message>
        <source>NetworkManager is not running</source>
        <translation>NetworkManager çalışmıyor</translation>
    </message>
    <message>
        <source>Online by Ethernet; waiting for mobile broadband.</source>
        <translation>Ethernet ile çevrimiçi; mobil geniş bant bekleniyor.</translation>
    </message>
    <message>
        <source>Online by Wi-Fi; waiting for mobile broadband.</source>
        <translation>Wi-Fi ile çevrimiçi; mobil geniş bant bekleniyor.</translation>
    </message>
    <message>
        <source>Online by another connection; waiting for mobile broadband.</source>
        <translation>Başka bir bağlantıyla çevrimiçi; mobil geniş bant bekleniyor.</translation>
    </message>
    <message>
        <source>Roaming; waiting for your own network.</source>
        <translation>Dolaşımda; kendi şebekeniz bekleniyor.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Denetleniyor…</translation>
    </message>
</context>
<context>
    <name>DesktopOpener</name>
    <message>
        <source>There is no such file or folder:</source>
        <translation>Böyle bir dosya veya klasör yok:</translation>
    </message>
    <message>
        <source>No program was found that opens this:</source>
        <translation>Bunu açacak bir program bulunamadı:</translation>
    </message>
    <message>
        <source>The program that opens this reported a failure:</source>
        <translation>Bunu açan program bir hata bildirdi:</translation>
    </message>
    <message>
        <source>The desktop could not open this:</source>
        <translation>Masaüstü bunu açamadı:</translation>
    </message>
    <message>
        <source>Opening this needs the program &quot;xdg-open&quot;, which could not be started:</source>
        <translation>Bunu açmak için gereken &quot;xdg-open&quot; programı başlatılamadı:</translation>
    </message>
</context>
<context>
    <name>DisplayChoice</name>
    <message>
        <source>On Wayland the package %1 is needed, which is not installed.</source>
        <translation>Wayland için %1 paketi gerekir, ancak kurulu değil.</translation>
    </message>
    <message>
        <source>There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set.</source>
        <translation>Ekran yok: ne DISPLAY ne de WAYLAND_DISPLAY ayarlı.</translation>
    </message>
    <message>
        <source>QT_QPA_PLATFORM asks for X, but DISPLAY is not set.</source>
        <translation>QT_QPA_PLATFORM X istiyor, ancak DISPLAY ayarlı değil.</translation>
    </message>
    <message>
        <source>The display &quot;%1&quot; does not answer.</source>
        <translation>&quot;%1&quot; ekranı yanıt vermiyor.</translation>
    </message>
</context>
<context>
    <name>EditLinkButton</name>
    <message>
        <source>&amp;Edit Links</source>
        <translation>Kısayolları &amp;düzenle</translation>
    </message>
    <message>
        <source>&amp;Edit Link</source>
        <translation>Kısayolu &amp;düzenle</translation>
    </message>
</context>
<context>
    <name>EntryRun</name>
    <message>
        <source>The application of this could not be started:</source>
        <translation>Bunun uygulaması başlatılamadı:</translation>
    </message>
</context>
<context>
    <name>FailureList</name>
    <message>
        <source>Not opened</source>
        <translation>Açılamadı</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>ve %n tane daha</numerusform>
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
        <translation>Bu bilgisayarın yöneticisi tarafından sabitlendi</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>General</source>
        <translation>Genel</translation>
    </message>
    <message>
        <source>Start with the session</source>
        <translation>Oturumla birlikte başlat</translation>
    </message>
    <message>
        <source>Vellum Connect then waits in the tray. Where the desktop has no tray, its window shows.</source>
        <translation>Vellum Connect o zaman sistem tepsisinde bekler. Masaüstünde tepsi yoksa penceresi görünür.</translation>
    </message>
    <message>
        <source>This choice cannot be kept in %1.</source>
        <translation>Bu seçim %1 içine kaydedilemiyor.</translation>
    </message>
</context>
<context>
    <name>GuardMessages</name>
    <message>
        <source>The file with your quick links is missing.</source>
        <translation>Kısayollarınızın dosyası yok.</translation>
    </message>
    <message>
        <source>The file with your quick links is empty.</source>
        <translation>Kısayollarınızın dosyası boş.</translation>
    </message>
    <message>
        <source>The file with your quick links is damaged.</source>
        <translation>Kısayollarınızın dosyası bozuk.</translation>
    </message>
    <message>
        <source>The file with your quick links is far too large.</source>
        <translation>Kısayollarınızın dosyası çok büyük.</translation>
    </message>
    <message>
        <source>The file with your quick links cannot be read.</source>
        <translation>Kısayollarınızın dosyası okunamıyor.</translation>
    </message>
    <message>
        <source>In the place of the file with your quick links there is something that is no file.</source>
        <translation>Kısayollarınızın dosyasının yerinde dosya olmayan bir şey var.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Disk dolu.</translation>
    </message>
    <message>
        <source>You are not allowed to write to its folder.</source>
        <translation>Klasörüne yazma izniniz yok.</translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are in place again.</source>
        <translation>
            <numerusform>%1 tarihli %n kısayol yeniden yerinde.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 can be brought back.</source>
        <translation>
            <numerusform>%1 tarihli %n kısayol geri getirilebilir.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are kept, but could not be put in place.</source>
        <translation>
            <numerusform>%1 tarihli %n kısayol saklandı, ancak yerine konamadı.</numerusform>
        </translation>
    </message>
    <message>
        <source>No earlier state of the links is known.</source>
        <translation>Kısayolların önceki bir durumu bilinmiyor.</translation>
    </message>
    <message>
        <source>What was found there was kept:</source>
        <translation>Orada bulunan saklandı:</translation>
    </message>
    <message>
        <source>&amp;Bring Back</source>
        <translation>&amp;Geri Getir</translation>
    </message>
    <message>
        <source>&amp;Leave Out</source>
        <translation>&amp;Bırak</translation>
    </message>
    <message>
        <source>The change of your quick links could not be saved.</source>
        <translation>Kısayollarınızdaki değişiklik kaydedilemedi.</translation>
    </message>
    <message>
        <source>The quick links were changed by another program. Do you want to load them, or to keep yours?</source>
        <translation>Kısayollar başka bir program tarafından değiştirildi. Onları yüklemek mi, sizinkileri korumak mı istersiniz?</translation>
    </message>
    <message>
        <source>&amp;Load Them</source>
        <translation>On&amp;ları Yükle</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>&amp;Benimkileri Koru</translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation>Kısayollar</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Yeniden Dene</translation>
    </message>
    <message>
        <source>The quick links that were prepared for you could not be put in place. The program tries again at its next start.</source>
        <translation>Sizin için hazırlanan kısayollar yerine konamadı. Program bir sonraki başlatılışında yeniden deneyecek.</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>Added: %1</source>
        <translation>Eklendi: %1</translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation>Kaldırıldı: %1</translation>
    </message>
    <message>
        <source>Edited: %1</source>
        <translation>Düzenlendi: %1</translation>
    </message>
    <message>
        <source>Moved: %1</source>
        <translation>Taşındı: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n tane daha</numerusform>
        </translation>
    </message>
    <message>
        <source>History</source>
        <translation>Geçmiş</translation>
    </message>
    <message>
        <source>%1 (now)</source>
        <translation>%1 (şimdi)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zaman</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Kısayollar</translation>
    </message>
    <message>
        <source>What Changed</source>
        <translation>Değişenler</translation>
    </message>
    <message>
        <source>&amp;Go Back to This</source>
        <translation>Buna &amp;Geri Dön</translation>
    </message>
    <message>
        <source>The states that your quick links were in, newest first; the last %1 are kept.</source>
        <translation>Kısayollarınızın durumları, en yenisi önce; son %1 tanesi saklanır.</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>The program started</source>
        <translation>Program başladı</translation>
    </message>
    <message>
        <source>A connection came up</source>
        <translation>Bir bağlantı kuruldu</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>Di&amp;l</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>&amp;Sistem Dili</translation>
    </message>
</context>
<context>
    <name>LinkAddresses</name>
    <message>
        <source>of several marked web addresses only the lowest opens</source>
        <translation>işaretli birkaç web adresinden yalnızca en alttaki açılır</translation>
    </message>
</context>
<context>
    <name>LinkButtons</name>
    <message>
        <source>No quick links yet. Add some with Tools &gt; Settings.</source>
        <translation>Henüz kısayol yok. Araçlar &gt; Ayarlar ile ekleyin.</translation>
    </message>
    <message>
        <source>No quick link has this in its name.</source>
        <translation>Adında bu geçen bir kısayol yok.</translation>
    </message>
</context>
<context>
    <name>LinkOpener</name>
    <message>
        <source>There is no such file or folder, or you are not allowed to see it:</source>
        <translation>Böyle bir dosya veya klasör yok ya da görme izniniz yok:</translation>
    </message>
    <message>
        <source>You are not allowed to open this:</source>
        <translation>Bunu açma izniniz yok:</translation>
    </message>
    <message>
        <source>This is no valid address:</source>
        <translation>Bu geçerli bir adres değil:</translation>
    </message>
    <message>
        <source>Addresses that are themselves a script or a page are never opened:</source>
        <translation>Kendisi bir betik veya sayfa olan adresler hiçbir zaman açılmaz:</translation>
    </message>
    <message>
        <source>This link leads nowhere: it has no path.</source>
        <translation>Bu kısayol hiçbir yere götürmüyor: yolu yok.</translation>
    </message>
    <message>
        <source>The path of an application or file must begin with &quot;/&quot;:</source>
        <translation>Bir uygulamanın veya dosyanın yolu &quot;/&quot; ile başlamalıdır:</translation>
    </message>
    <message>
        <source>Too many questions wait for an answer to ask about this address, too:</source>
        <translation>Yanıt bekleyen çok fazla soru olduğundan bu adres de sorulamadı:</translation>
    </message>
    <message>
        <source>This is too long to be opened:</source>
        <translation>Bu, açılamayacak kadar uzun:</translation>
    </message>
</context>
<context>
    <name>LinkTable</name>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>Eklenti</translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation>Kısayol yok</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;Why…</source>
        <translation>&amp;Neden…</translation>
    </message>
    <message>
        <source>See which links opened or did not, and why</source>
        <translation>Hangi kısayolların açıldığını ya da açılmadığını ve nedenini gör</translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation>Kısayollar</translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation>Kısayol yok</translation>
    </message>
    <message>
        <source>&amp;Connection</source>
        <translation>&amp;Bağlantı</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Çık</translation>
    </message>
    <message>
        <source>&amp;Quick Links</source>
        <translation>&amp;Kısayollar</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Araçlar</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Ayarlar…</translation>
    </message>
    <message>
        <source>Add, change and order quick links</source>
        <translation>Kısayol ekle, değiştir ve sırala</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Görünüm</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>&amp;Durum Çubuğu</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Yardım</translation>
    </message>
    <message>
        <source>&amp;About Vellum Connect</source>
        <translation>Vellum Connect &amp;Hakkında</translation>
    </message>
    <message>
        <source>About Vellum Connect</source>
        <translation>Vellum Connect Hakkında</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Vellum Connect %1&lt;/h3&gt;&lt;p&gt;Connection manager with quick links.&lt;/p&gt;&lt;p&gt;Free software under the MIT licence.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Vellum Connect %1&lt;/h3&gt;&lt;p&gt;Kısayolları olan bağlantı yöneticisi.&lt;/p&gt;&lt;p&gt;MIT lisansıyla özgür yazılım.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Düzen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Geri Al</translation>
    </message>
    <message>
        <source>Take back the last change of the quick links</source>
        <translation>Kısayollardaki son değişikliği geri al</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Yinele</translation>
    </message>
    <message>
        <source>Make the change again that was taken back</source>
        <translation>Geri alınan değişikliği yinele</translation>
    </message>
    <message>
        <source>&amp;Plug-ins Left Out…</source>
        <translation>Yüklenmeyen &amp;eklentiler…</translation>
    </message>
    <message>
        <source>See which plug-ins crashed or hung, and load them again</source>
        <translation>Hangi eklentilerin çöktüğünü veya takıldığını görün ve yeniden yükleyin</translation>
    </message>
    <message>
        <source>Plug-ins not loaded: %1</source>
        <translation>Yüklenmeyen eklentiler: %1</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>Programdan çık</translation>
    </message>
    <message>
        <source>&amp;Find a Quick Link</source>
        <translation>Kısayol &amp;Bul</translation>
    </message>
    <message>
        <source>Show only the quick links with a name that you type</source>
        <translation>Yalnızca adını yazdığınız kısayolları göster</translation>
    </message>
    <message>
        <source>Find a quick link</source>
        <translation>Kısayol bul</translation>
    </message>
</context>
<context>
    <name>MenuManager</name>
    <message>
        <source>You picked it</source>
        <translation>Siz seçtiniz</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 kısayolunu aç</translation>
    </message>
</context>
<context>
    <name>OfferLine</name>
    <message>
        <source>&amp;Put Back</source>
        <translation>&amp;Geri Koy</translation>
    </message>
    <message>
        <source>Leave &amp;As It Is</source>
        <translation>&amp;Olduğu Gibi Bırak</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message>
        <source>Opened</source>
        <translation>Açıldı</translation>
    </message>
    <message>
        <source>You were asked first</source>
        <translation>Önce size soruldu</translation>
    </message>
    <message>
        <source>Not opened: %1</source>
        <translation>Açılmadı: %1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Başarısız: %1</translation>
    </message>
    <message>
        <source>Unknown link</source>
        <translation>Bilinmeyen kısayol</translation>
    </message>
    <message>
        <source>Not opened: you did not agree</source>
        <translation>Açılmadı: onaylamadınız</translation>
    </message>
</context>
<context>
    <name>OpeningCause</name>
    <message>
        <source>A plug-in asked for it</source>
        <translation>Bir eklenti istedi</translation>
    </message>
</context>
<context>
    <name>PluginMessages</name>
    <message>
        <source>This was not loaded, because another user owns %1:</source>
        <translation>%1 başka bir kullanıcıya ait olduğu için bu yüklenmedi:</translation>
    </message>
    <message>
        <source>This was not loaded, because other users may change %1:</source>
        <translation>Başka kullanıcılar %1 üzerinde değişiklik yapabildiği için bu yüklenmedi:</translation>
    </message>
    <message>
        <source>This was not loaded, because it is not known who may change %1:</source>
        <translation>%1 üzerinde kimin değişiklik yapabildiği bilinmediği için bu yüklenmedi:</translation>
    </message>
    <message>
        <source>This was not loaded, because it passes itself off as the quick links of this program:</source>
        <translation>Kendini bu programın kısayolları gibi gösterdiği için bu yüklenmedi:</translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was starting, and was left out.</source>
        <translation>%1 eklentisi başlarken yanıt vermedi ve yüklenmedi.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish starting last time (it crashed or hung), and was left out.</source>
        <translation>%1 eklentisi geçen sefer başlamayı bitirmedi (çöktü veya takıldı) ve yüklenmedi.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was ending, and was left out.</source>
        <translation>%1 eklentisi kapanırken yanıt vermedi ve yüklenmedi.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish ending last time (it crashed or hung), and was left out.</source>
        <translation>%1 eklentisi geçen sefer kapanmayı bitirmedi (çöktü veya takıldı) ve yüklenmedi.</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Eklentiler</translation>
    </message>
    <message>
        <source>&amp;Load at the Next Start</source>
        <translation>&amp;Sonraki başlangıçta yükle</translation>
    </message>
    <message>
        <source>Leave &amp;Out</source>
        <translation>Y&amp;ükleme</translation>
    </message>
</context>
<context>
    <name>ProgramEnd</name>
    <message>
        <source>it used memory that it does not have</source>
        <translation>kendisine ait olmayan belleği kullandı</translation>
    </message>
    <message>
        <source>it noticed a mistake of its own</source>
        <translation>kendi hatasını fark etti</translation>
    </message>
    <message>
        <source>it divided by zero or the like</source>
        <translation>sıfıra böldü ya da benzerini yaptı</translation>
    </message>
    <message>
        <source>it came to an instruction that the processor does not know</source>
        <translation>işlemcinin bilmediği bir komuta geldi</translation>
    </message>
    <message>
        <source>it asked the system for what is forbidden</source>
        <translation>sistemden yasak olanı istedi</translation>
    </message>
    <message>
        <source>This program ended at once, with the error code %1:</source>
        <translation>Bu program hemen %1 hata koduyla sona erdi:</translation>
    </message>
    <message>
        <source>This program crashed (signal %1, %2):</source>
        <translation>Bu program çöktü (sinyal %1, %2):</translation>
    </message>
    <message>
        <source>This program was ended by the system or by another program (signal %1):</source>
        <translation>Bu program sistem veya başka bir program tarafından sonlandırıldı (sinyal %1):</translation>
    </message>
</context>
<context>
    <name>ProgramRun</name>
    <message>
        <source>This program could not be started:</source>
        <translation>Bu program başlatılamadı:</translation>
    </message>
</context>
<context>
    <name>PutBackOffer</name>
    <message>
        <source>&quot;%1&quot; no longer opens by itself.</source>
        <translation>&quot;%1&quot; artık kendiliğinden açılmıyor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when connected.</source>
        <translation>&quot;%1&quot; artık bağlanınca açılmıyor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer has a recipient.</source>
        <translation>&quot;%1&quot; için artık alıcı yok.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when Vellum Connect starts.</source>
        <translation>&quot;%1&quot; artık Vellum Connect başlayınca açılmıyor.</translation>
    </message>
</context>
<context>
    <name>QuickLinkUIPlugin</name>
    <message>
        <source>IDS_SETTING_NAME</source>
        <extracomment>Caption of the page in the list of the settings dialog. Up to about 20 characters.</extracomment>
        <translation>Kısayollar</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TAB</source>
        <extracomment>Title of the only tab of the settings page, above the table. Up to about 30 characters (the tab widget is 280 pixels wide).</extracomment>
        <translation>Kısayollar</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_ORDER</source>
        <extracomment>Label above the table of the settings page. Up to about 35 characters (250 pixels). Labels are low: a capital letter with an accent, such as an umlaut, loses it with Qt 6.</extracomment>
        <translation>Kısayollar bu sırayla açılır:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME</source>
        <extracomment>Header of the table&apos;s first column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>Ad</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TYPE</source>
        <extracomment>Header of the table&apos;s second column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>Tür</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_UP</source>
        <extracomment>Button below the table: moves the link up. Up to about 14 characters; the letter after the ampersand must differ from those of the page&apos;s other buttons.</extracomment>
        <translation>&amp;Yukarı</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DOWN</source>
        <extracomment>Button below the table: moves the link down. As IDS_LINK_SETTING_UP.</extracomment>
        <translation>&amp;Aşağı</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW</source>
        <extracomment>Button beside the table: opens the dialog for a new link. Up to about 12 characters; with an ampersand as IDS_LINK_SETTING_UP.</extracomment>
        <translation>Y&amp;eni…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT</source>
        <extracomment>Button beside the table: opens the dialog that changes the chosen link. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>&amp;Düzenle…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DEL</source>
        <extracomment>Button beside the table: deletes the chosen link after a question. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>&amp;Sil</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TITLE</source>
        <extracomment>Title of the dialog for a new link. Up to about 16 characters: most desktops put the program&apos;s name behind it.</extracomment>
        <translation>Yeni Kısayol</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT_TITLE</source>
        <extracomment>Title of the dialog that changes a link. As IDS_LINK_SETTING_NEW_TITLE.</extracomment>
        <translation>Kısayolu Düzenle</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_NAME</source>
        <extracomment>Label of the dialog&apos;s name field. 51 pixels: about 6 characters.</extracomment>
        <translation>Ad:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TYPE</source>
        <extracomment>Label of the dialog&apos;s choice of type. 70 pixels: about 9 characters.</extracomment>
        <translation>Tür:</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_APPLICATION</source>
        <extracomment>Type of a link that starts a program: in the dialog&apos;s choice and on its tab, and in the table. Up to about 13 characters (100 pixels).</extracomment>
        <translation>Uygulama</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_E-MAIL</source>
        <extracomment>Type of a link that opens the mail program. As IDS_LINK_TYPE_APPLICATION.</extracomment>
        <translation>E-posta</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_INTERNET</source>
        <extracomment>Type of a link that opens an Internet address. As IDS_LINK_TYPE_APPLICATION.</extracomment>
        <translation>İnternet</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_URL</source>
        <extracomment>Label above the field with the path of the program. Up to about 25 characters (184 pixels).</extracomment>
        <translation>Program dosyası:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_BROWSER</source>
        <extracomment>Button beside that field: opens the choice of a file. 80 pixels: up to about 10 characters.</extracomment>
        <translation>Gözat…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_PARA</source>
        <extracomment>Label above the field with the program&apos;s parameters. Up to about 35 characters (250 pixels).</extracomment>
        <translation>Parametreler:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_IE_URL</source>
        <extracomment>Label above the field with the Internet address. Up to about 35 characters (250 pixels).</extracomment>
        <translation>Adres:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_EMAIL_URL</source>
        <extracomment>What an e-mail link does; the only text on its panel. Up to about 35 characters (250 pixels), one line.</extracomment>
        <translation>E-posta programınızı açar.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK_STARTUP</source>
        <extracomment>Check box of the dialog. Up to about 32 characters (230 pixels).</extracomment>
        <translation>Vellum Connect başladığında aç</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK</source>
        <extracomment>Check box of the dialog: opens the link when a data connection comes up. Up to about 32 characters (230 pixels).</extracomment>
        <translation>Bağlanıldığında aç</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_OK</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CANCEL</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>İptal</translation>
    </message>
    <message>
        <source>IDS_LINK_PROMPT</source>
        <extracomment>Title of every message about quick links. Up to about 30 characters.</extracomment>
        <translation>Kısayollar</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_INVALID_URL</source>
        <extracomment>Message: the address of the link that was picked is none. A sentence or two; keep what stands in quotation marks.</extracomment>
        <translation>Bu adres açılamıyor. Bir adreste &quot;http://&quot;, &quot;https://&quot;, &quot;ftp&quot; veya &quot;www.&quot; bulunmalıdır.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME_SAME</source>
        <extracomment>Message: the dialog&apos;s name is in use. A sentence or two.</extracomment>
        <translation>Bu ad başka bir kısayolda kullanılıyor. Farklı bir ad seçin.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_FILENOTEXIST</source>
        <extracomment>Message: the dialog&apos;s program file is missing, or none was chosen. A sentence or two.</extracomment>
        <translation>Böyle bir program dosyası yok. Bir dosya seçin.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DELETE_CONFORM</source>
        <extracomment>Question before a link is deleted, with the buttons IDS_OK and IDS_CANCEL. A sentence or two.</extracomment>
        <translation>Seçilen kısayol silinsin mi?</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Second button of messages. Up to about 14 characters.</extracomment>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>None of the loaded plug-ins has settings.</source>
        <translation>Yüklü eklentilerin hiçbirinin ayarı yok.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Sayfalar</translation>
    </message>
    <message>
        <source>Programs start without the parameters that a link has for them.</source>
        <translation>Programlar, kısayollarındaki parametreler olmadan başlar.</translation>
    </message>
</context>
<context>
    <name>TransitionRules</name>
    <message>
        <source>was up before the program was there</source>
        <translation>program başlamadan önce kuruluydu</translation>
    </message>
    <message>
        <source>up, waiting to be in the Internet</source>
        <extracomment>&quot;In the Internet&quot; means that the Internet can be reached.</extracomment>
        <translation>kuruldu, internet bekleniyor</translation>
    </message>
    <message>
        <source>up and in the Internet</source>
        <translation>kuruldu, internete erişiliyor</translation>
    </message>
    <message>
        <source>up, and a portal wants a login</source>
        <translation>kuruldu, bir portal oturum açmanızı istiyor</translation>
    </message>
    <message>
        <source>up, but not in the Internet within 10 s</source>
        <translation>kuruldu, ama 10 sn içinde internete erişilemedi</translation>
    </message>
    <message>
        <source>went down before it was told</source>
        <translation>bildirilmeden önce kesildi</translation>
    </message>
    <message>
        <source>another connection took over</source>
        <translation>yerine başka bir bağlantı geçti</translation>
    </message>
    <message>
        <source>down, waiting whether it comes back</source>
        <translation>kesildi, geri gelmesi bekleniyor</translation>
    </message>
    <message>
        <source>down</source>
        <translation>kesildi</translation>
    </message>
    <message>
        <source>the service is gone, waiting whether it comes back</source>
        <translation>hizmet yok, geri gelmesi bekleniyor</translation>
    </message>
    <message>
        <source>handed over, not a new connection</source>
        <translation>devredildi, yeni bir bağlantı değil</translation>
    </message>
    <message>
        <source>was up before sleep, not a new connection</source>
        <translation>uykudan önce kuruluydu, yeni bir bağlantı değil</translation>
    </message>
    <message>
        <source>outlived a restart of the service, not a new connection</source>
        <translation>hizmetin yeniden başlamasından sonra da sürüyor, yeni bir bağlantı değil</translation>
    </message>
    <message>
        <source>was down again when asked, not told</source>
        <extracomment>The host asks once more before it tells of a connection that came up.</extracomment>
        <translation>sorulduğunda yine kesikti, bildirilmedi</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Window</source>
        <translation>Pencereyi Göster</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
    <message>
        <source>Vellum Connect keeps running here. Click the icon to show its window.</source>
        <translation>Vellum Connect burada çalışmayı sürdürüyor. Penceresini göstermek için simgeye tıklayın.</translation>
    </message>
</context>
<context>
    <name>WhyWindow</name>
    <message>
        <source>What Opened, and Why</source>
        <translation>Ne Açıldı, Neden</translation>
    </message>
    <message>
        <source>What was decided about connections and links, newest first. The last %1 decisions are remembered until the program ends, and written to no file.</source>
        <translation>Bağlantılar ve kısayollar hakkında verilen kararlar, en yenisi önce. Son %1 karar program kapanana kadar bellekte tutulur ve hiçbir dosyaya yazılmaz.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zaman</translation>
    </message>
    <message>
        <source>Link or Connection</source>
        <translation>Kısayol veya bağlantı</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>Sebep</translation>
    </message>
    <message>
        <source>What Was Done</source>
        <translation>Ne yapıldı</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopyala</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Ka&amp;pat</translation>
    </message>
</context>
</TS>
