<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi" sourcelanguage="en">
<context>
    <name>AddressProblem</name>
    <message>
        <source>This link has no address:</source>
        <translation>इस लिंक में कोई पता नहीं है:</translation>
    </message>
    <message>
        <source>There are blanks before or behind this address:</source>
        <translation>इस पते के पहले या बाद में रिक्त स्थान हैं:</translation>
    </message>
    <message>
        <source>The beginning of this address must be written in small letters:</source>
        <translation>इस पते की शुरुआत छोटे अक्षरों में लिखी होनी चाहिए:</translation>
    </message>
    <message>
        <source>Only Internet addresses (http, https and ftp) are opened. This is not one:</source>
        <translation>केवल इंटरनेट पते (http, https और ftp) खोले जाते हैं। यह ऐसा पता नहीं है:</translation>
    </message>
    <message>
        <source>This address needs &quot;http://&quot;, &quot;https://&quot;, &quot;ftp://&quot; or &quot;www.&quot; at its beginning:</source>
        <translation>इस पते की शुरुआत में &quot;http://&quot;, &quot;https://&quot;, &quot;ftp://&quot; या &quot;www.&quot; होना चाहिए:</translation>
    </message>
</context>
<context>
    <name>AddressQuestions</name>
    <message>
        <source>Open this address with the program for &quot;%1&quot; links?</source>
        <translation>यह पता &quot;%1&quot; लिंक के प्रोग्राम से खोलें?</translation>
    </message>
    <message>
        <source>Unusual address</source>
        <translation>असामान्य पता</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Print which links the running program opened or did not, and why, newest first, and exit.</source>
        <translation>चल रहे प्रोग्राम ने कौन-से लिंक खोले या नहीं, और क्यों, सबसे नया पहले, यह दिखाकर बंद होता है।</translation>
    </message>
    <message>
        <source>No running program with the folder %1 can be asked.</source>
        <translation>फ़ोल्डर %1 वाला कोई चल रहा प्रोग्राम नहीं है जिससे पूछा जा सके।</translation>
    </message>
    <message>
        <source>Nothing was decided yet</source>
        <translation>अब तक कुछ तय नहीं हुआ</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>यह सहायता दिखाकर बंद होता है।</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>संस्करण दिखाकर बंद होता है।</translation>
    </message>
    <message>
        <source>Keep your own data in DIR.</source>
        <translation>आपका डेटा DIR में रखता है।</translation>
    </message>
    <message>
        <source>Load the plug-ins of DIR.</source>
        <translation>DIR के प्लग-इन लोड करता है।</translation>
    </message>
    <message>
        <source>Show texts in the language LANG, such as en or pt_BR.</source>
        <translation>पाठ LANG भाषा में दिखाता है, जैसे en या pt_BR।</translation>
    </message>
    <message>
        <source>Connection manager with quick links.</source>
        <translation>त्वरित लिंक वाला कनेक्शन प्रबंधक।</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>अप्रत्याशित आर्गुमेंट &quot;%1&quot;।</translation>
    </message>
    <message>
        <source>Empty value after &quot;--%1&quot;.</source>
        <translation>&quot;--%1&quot; के बाद खाली मान है।</translation>
    </message>
    <message>
        <source>No such kind of connection: &quot;%1&quot;.</source>
        <translation>ऐसा कोई कनेक्शन प्रकार नहीं है: &quot;%1&quot;।</translation>
    </message>
    <message>
        <source>Print the quick links and exit. Needs no graphical session.</source>
        <translation>त्वरित लिंक दिखाकर बंद होता है। ग्राफ़िकल सत्र की ज़रूरत नहीं।</translation>
    </message>
    <message>
        <source>%1 Try --help.</source>
        <translation>%1 --help देखें।</translation>
    </message>
    <message>
        <source>Wait in the tray without a window; where there is no tray, the window shows.</source>
        <translation>बिना विंडो के ट्रे में रुकता है; जहाँ ट्रे नहीं है, वहाँ विंडो दिखती है।</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>&quot;%1&quot; नाम का कोई फ़ोल्डर नहीं है।</translation>
    </message>
    <message>
        <source>It is running already, as process %1, with the folder %2.</source>
        <translation>यह पहले से चल रहा है, प्रोसेस %1 के रूप में, फ़ोल्डर %2 के साथ।</translation>
    </message>
    <message>
        <source>Watch connections of type KIND in this run, whatever the settings say: mobile (mobile broadband), any (whatever has a default route) or manual (you press a button).</source>
        <translation>सेटिंग्स कुछ भी कहें, इस बार KIND प्रकार के कनेक्शन पर नज़र रखता है: mobile (मोबाइल ब्रॉडबैंड), any (जिसका भी डिफ़ॉल्ट रूट हो) या manual (आप बटन दबाते हैं)।</translation>
    </message>
    <message>
        <source>There is no plug-in in the folder &quot;%1&quot;.</source>
        <translation>फ़ोल्डर &quot;%1&quot; में कोई प्लग-इन नहीं है।</translation>
    </message>
</context>
<context>
    <name>CommonUtils</name>
    <message>
        <source>No program could be started for this address:</source>
        <translation>इस पते के लिए कोई प्रोग्राम शुरू नहीं हो सका:</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>ठीक है</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Second button of messages. Up to about 14 characters.</extracomment>
        <translation>रद्द करें</translation>
    </message>
</context>
<context>
    <name>ConnectionDecisions</name>
    <message>
        <source>No links opened</source>
        <translation>कोई लिंक नहीं खुला</translation>
    </message>
    <message>
        <source>Links marked for a connection open</source>
        <translation>कनेक्शन के लिए चिह्नित लिंक खुलते हैं</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>कनेक्शन</translation>
    </message>
</context>
<context>
    <name>ConnectionPage</name>
    <message>
        <source>Connection</source>
        <translation>कनेक्शन</translation>
    </message>
    <message>
        <source>In this run the command line says which connections count. What you choose here counts from the next start on.</source>
        <translation>इस बार कमांड लाइन तय करती है कि कौन से कनेक्शन गिने जाएँ। यहाँ का चुनाव अगली बार शुरू होने से लागू होगा।</translation>
    </message>
    <message>
        <source>&amp;Mobile broadband</source>
        <translation>मोबाइल ब्रॉडबैंड (&amp;M)</translation>
    </message>
    <message>
        <source>An&amp;y plan</source>
        <translation>कोई भी प्लान (&amp;P)</translation>
    </message>
    <message>
        <source>Only the plans &amp;ticked here</source>
        <translation>केवल यहाँ चुने गए प्लान (&amp;T)</translation>
    </message>
    <message>
        <source>Not while &amp;roaming</source>
        <translation>रोमिंग में नहीं (&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Any connection</source>
        <translation>कोई भी कनेक्शन (&amp;A)</translation>
    </message>
    <message>
        <source>My own &amp;button</source>
        <translation>मेरा अपना बटन (&amp;B)</translation>
    </message>
    <message>
        <source>%1 (not there now)</source>
        <translation>%1 (अभी मौजूद नहीं)</translation>
    </message>
    <message>
        <source>NetworkManager does not say which plans there are.</source>
        <translation>NetworkManager नहीं बताता कि कौन से प्लान हैं।</translation>
    </message>
    <message>
        <source>While none is ticked, any plan counts.</source>
        <translation>जब तक कोई चुना नहीं गया, हर प्लान गिना जाता है।</translation>
    </message>
    <message>
        <source>There are no mobile plans yet.</source>
        <translation>अभी कोई मोबाइल प्लान नहीं है।</translation>
    </message>
</context>
<context>
    <name>ConnectionPanel</name>
    <message>
        <source>&amp;Disconnect</source>
        <translation>डिस्कनेक्ट करें (&amp;D)</translation>
    </message>
    <message>
        <source>Co&amp;nnect</source>
        <translation>कनेक्ट करें (&amp;N)</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>कनेक्शन:</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>डिवाइस:</translation>
    </message>
    <message>
        <source>Operator:</source>
        <translation>ऑपरेटर:</translation>
    </message>
    <message>
        <source>Since:</source>
        <translation>कब से:</translation>
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
        <translation>कनेक्टेड</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>कनेक्ट हो रहा है…</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>कनेक्ट नहीं है</translation>
    </message>
    <message>
        <source>This network asks for a login first.</source>
        <translation>यह नेटवर्क पहले लॉगिन माँगता है।</translation>
    </message>
    <message>
        <source>The Internet is out of reach.</source>
        <translation>इंटरनेट तक पहुँच नहीं है।</translation>
    </message>
    <message>
        <source>Press Connect when your connection is up.</source>
        <translation>आपका कनेक्शन चालू होने पर &quot;कनेक्ट करें&quot; दबाएँ।</translation>
    </message>
    <message>
        <source>Waiting for mobile broadband.</source>
        <translation>मोबाइल ब्रॉडबैंड की प्रतीक्षा है।</translation>
    </message>
    <message>
        <source>Waiting for a connection.</source>
        <translation>कनेक्शन की प्रतीक्षा है।</translation>
    </message>
    <message>
        <source>before this program started</source>
        <translation>यह प्रोग्राम शुरू होने से पहले से</translation>
    </message>
    <message>
        <source>NetworkManager is not running</source>
        <translation>NetworkManager नहीं चल रहा है</translation>
    </message>
    <message>
        <source>Online by Ethernet; waiting for mobile broadband.</source>
        <translation>ईथरनेट से ऑनलाइन; मोबाइल ब्रॉडबैंड की प्रतीक्षा है।</translation>
    </message>
    <message>
        <source>Online by Wi-Fi; waiting for mobile broadband.</source>
        <translation>वाई-फ़ाई से ऑनलाइन; मोबाइल ब्रॉडबैंड की प्रतीक्षा है।</translation>
    </message>
    <message>
        <source>Online by another connection; waiting for mobile broadband.</source>
        <translation>दूसरे कनेक्शन से ऑनलाइन; मोबाइल ब्रॉडबैंड की प्रतीक्षा है।</translation>
    </message>
    <message>
        <source>Roaming; waiting for your own network.</source>
        <translation>रोमिंग; आपके अपने नेटवर्क की प्रतीक्षा है।</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>जाँच की जा रही है…</translation>
    </message>
</context>
<context>
    <name>DesktopOpener</name>
    <message>
        <source>There is no such file or folder:</source>
        <translation>ऐसी कोई फ़ाइल या फ़ोल्डर नहीं है:</translation>
    </message>
    <message>
        <source>No program was found that opens this:</source>
        <translation>इसे खोलने वाला कोई प्रोग्राम नहीं मिला:</translation>
    </message>
    <message>
        <source>The program that opens this reported a failure:</source>
        <translation>इसे खोलने वाले प्रोग्राम ने विफलता बताई:</translation>
    </message>
    <message>
        <source>The desktop could not open this:</source>
        <translation>डेस्कटॉप इसे नहीं खोल सका:</translation>
    </message>
    <message>
        <source>Opening this needs the program &quot;xdg-open&quot;, which could not be started:</source>
        <translation>इसे खोलने के लिए &quot;xdg-open&quot; प्रोग्राम चाहिए, जो शुरू नहीं हो सका:</translation>
    </message>
</context>
<context>
    <name>DisplayChoice</name>
    <message>
        <source>On Wayland the package %1 is needed, which is not installed.</source>
        <translation>Wayland पर पैकेज %1 चाहिए, जो इंस्टॉल नहीं है।</translation>
    </message>
    <message>
        <source>There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set.</source>
        <translation>कोई डिस्प्ले नहीं है: न DISPLAY सेट है, न WAYLAND_DISPLAY।</translation>
    </message>
    <message>
        <source>QT_QPA_PLATFORM asks for X, but DISPLAY is not set.</source>
        <translation>QT_QPA_PLATFORM X माँगता है, लेकिन DISPLAY सेट नहीं है।</translation>
    </message>
    <message>
        <source>The display &quot;%1&quot; does not answer.</source>
        <translation>डिस्प्ले &quot;%1&quot; जवाब नहीं दे रहा है।</translation>
    </message>
</context>
<context>
    <name>EditLinkButton</name>
    <message>
        <source>&amp;Edit Links</source>
        <translation>लिंक संपादित करें (&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Edit Link</source>
        <translation>लिंक संपादित करें (&amp;E)</translation>
    </message>
</context>
<context>
    <name>EntryRun</name>
    <message>
        <source>The application of this could not be started:</source>
        <translation>इसका ऐप्लिकेशन शुरू नहीं हो सका:</translation>
    </message>
</context>
<context>
    <name>FailureList</name>
    <message>
        <source>Not opened</source>
        <translation>नहीं खुला</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>और %n अन्य</numerusform>
            <numerusform>और %n अन्य</numerusform>
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
        <translation>इस कंप्यूटर के व्यवस्थापक ने तय किया है</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>General</source>
        <translation>सामान्य</translation>
    </message>
    <message>
        <source>Start with the session</source>
        <translation>सत्र के साथ शुरू करें</translation>
    </message>
    <message>
        <source>Vellum Connect then waits in the tray. Where the desktop has no tray, its window shows.</source>
        <translation>तब Vellum Connect ट्रे में रुकता है। जहाँ डेस्कटॉप में ट्रे नहीं है, वहाँ इसकी विंडो दिखती है।</translation>
    </message>
    <message>
        <source>This choice cannot be kept in %1.</source>
        <translation>यह चुनाव %1 में सहेजा नहीं जा सकता।</translation>
    </message>
</context>
<context>
    <name>GuardMessages</name>
    <message>
        <source>The file with your quick links is missing.</source>
        <translation>आपके त्वरित लिंक की फ़ाइल नहीं है।</translation>
    </message>
    <message>
        <source>The file with your quick links is empty.</source>
        <translation>आपके त्वरित लिंक की फ़ाइल खाली है।</translation>
    </message>
    <message>
        <source>The file with your quick links is damaged.</source>
        <translation>आपके त्वरित लिंक की फ़ाइल क्षतिग्रस्त है।</translation>
    </message>
    <message>
        <source>The file with your quick links is far too large.</source>
        <translation>आपके त्वरित लिंक की फ़ाइल बहुत बड़ी है।</translation>
    </message>
    <message>
        <source>The file with your quick links cannot be read.</source>
        <translation>आपके त्वरित लिंक की फ़ाइल पढ़ी नहीं जा सकती।</translation>
    </message>
    <message>
        <source>In the place of the file with your quick links there is something that is no file.</source>
        <translation>आपके त्वरित लिंक की फ़ाइल की जगह कुछ ऐसा है जो फ़ाइल नहीं है।</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>डिस्क भरी हुई है।</translation>
    </message>
    <message>
        <source>You are not allowed to write to its folder.</source>
        <translation>आपको इसके फ़ोल्डर में लिखने की अनुमति नहीं है।</translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are in place again.</source>
        <translation>
            <numerusform>%1 का लिंक फिर से अपनी जगह पर है।</numerusform>
            <numerusform>%1 के %n लिंक फिर से अपनी जगह पर हैं।</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 can be brought back.</source>
        <translation>
            <numerusform>%1 का लिंक वापस लाया जा सकता है।</numerusform>
            <numerusform>%1 के %n लिंक वापस लाए जा सकते हैं।</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are kept, but could not be put in place.</source>
        <translation>
            <numerusform>%1 का लिंक सुरक्षित है, पर अपनी जगह पर नहीं लाया जा सका।</numerusform>
            <numerusform>%1 के %n लिंक सुरक्षित हैं, पर अपनी जगह पर नहीं लाए जा सके।</numerusform>
        </translation>
    </message>
    <message>
        <source>No earlier state of the links is known.</source>
        <translation>लिंक की कोई पिछली स्थिति ज्ञात नहीं है।</translation>
    </message>
    <message>
        <source>What was found there was kept:</source>
        <translation>वहाँ जो मिला, वह सुरक्षित रखा गया:</translation>
    </message>
    <message>
        <source>&amp;Bring Back</source>
        <translation>वापस लाएँ (&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Leave Out</source>
        <translation>छोड़ दें (&amp;L)</translation>
    </message>
    <message>
        <source>The change of your quick links could not be saved.</source>
        <translation>आपके त्वरित लिंक का बदलाव सहेजा नहीं जा सका।</translation>
    </message>
    <message>
        <source>The quick links were changed by another program. Do you want to load them, or to keep yours?</source>
        <translation>किसी दूसरे प्रोग्राम ने त्वरित लिंक बदल दिए हैं। क्या आप उन्हें लोड करना चाहते हैं या अपने रखना चाहते हैं?</translation>
    </message>
    <message>
        <source>&amp;Load Them</source>
        <translation>लोड करें (&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>मेरे रखें (&amp;K)</translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation>त्वरित लिंक</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>फिर से कोशिश करें (&amp;T)</translation>
    </message>
    <message>
        <source>The quick links that were prepared for you could not be put in place. The program tries again at its next start.</source>
        <translation>आपके लिए तैयार किए गए त्वरित लिंक अपनी जगह पर नहीं रखे जा सके। प्रोग्राम अगली बार शुरू होने पर फिर कोशिश करेगा।</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>Added: %1</source>
        <translation>जोड़ा गया: %1</translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation>हटाया गया: %1</translation>
    </message>
    <message>
        <source>Edited: %1</source>
        <translation>संपादित: %1</translation>
    </message>
    <message>
        <source>Moved: %1</source>
        <translation>खिसकाया गया: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n और</numerusform>
            <numerusform>%n और</numerusform>
        </translation>
    </message>
    <message>
        <source>History</source>
        <translation>इतिहास</translation>
    </message>
    <message>
        <source>%1 (now)</source>
        <translation>%1 (अभी)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>समय</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>लिंक</translation>
    </message>
    <message>
        <source>What Changed</source>
        <translation>क्या बदला</translation>
    </message>
    <message>
        <source>&amp;Go Back to This</source>
        <translation>इस पर वापस जाएँ (&amp;G)</translation>
    </message>
    <message>
        <source>The states that your quick links were in, newest first; the last %1 are kept.</source>
        <translation>आपके त्वरित लिंक की अवस्थाएँ, सबसे नई पहले; पिछली %1 रखी जाती हैं।</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>The program started</source>
        <translation>प्रोग्राम शुरू हुआ</translation>
    </message>
    <message>
        <source>A connection came up</source>
        <translation>कनेक्शन बना</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>भाषा (&amp;L)</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>सिस्टम की भाषा (&amp;S)</translation>
    </message>
</context>
<context>
    <name>LinkAddresses</name>
    <message>
        <source>of several marked web addresses only the lowest opens</source>
        <translation>कई चिह्नित वेब पतों में से केवल सबसे नीचे वाला खुलता है</translation>
    </message>
</context>
<context>
    <name>LinkButtons</name>
    <message>
        <source>No quick links yet. Add some with Tools &gt; Settings.</source>
        <translation>अभी कोई त्वरित लिंक नहीं है। औज़ार &gt; सेटिंग्स से जोड़ें।</translation>
    </message>
    <message>
        <source>No quick link has this in its name.</source>
        <translation>किसी त्वरित लिंक के नाम में यह नहीं है।</translation>
    </message>
</context>
<context>
    <name>LinkOpener</name>
    <message>
        <source>There is no such file or folder, or you are not allowed to see it:</source>
        <translation>ऐसी कोई फ़ाइल या फ़ोल्डर नहीं है, या आपको इसे देखने की अनुमति नहीं है:</translation>
    </message>
    <message>
        <source>You are not allowed to open this:</source>
        <translation>आपको इसे खोलने की अनुमति नहीं है:</translation>
    </message>
    <message>
        <source>This is no valid address:</source>
        <translation>यह पता मान्य नहीं है:</translation>
    </message>
    <message>
        <source>Addresses that are themselves a script or a page are never opened:</source>
        <translation>जो पते स्वयं स्क्रिप्ट या पेज हैं, वे कभी नहीं खोले जाते:</translation>
    </message>
    <message>
        <source>This link leads nowhere: it has no path.</source>
        <translation>यह लिंक कहीं नहीं ले जाता: इसमें कोई पथ नहीं है।</translation>
    </message>
    <message>
        <source>The path of an application or file must begin with &quot;/&quot;:</source>
        <translation>एप्लिकेशन या फ़ाइल का पथ &quot;/&quot; से शुरू होना चाहिए:</translation>
    </message>
    <message>
        <source>Too many questions wait for an answer to ask about this address, too:</source>
        <translation>बहुत सारे प्रश्न उत्तर की प्रतीक्षा में हैं, इसलिए इस पते के बारे में नहीं पूछा गया:</translation>
    </message>
    <message>
        <source>This is too long to be opened:</source>
        <translation>यह खोलने के लिए बहुत लंबा है:</translation>
    </message>
</context>
<context>
    <name>LinkTable</name>
    <message>
        <source>Name</source>
        <translation>नाम</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>प्लग-इन</translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation>कोई त्वरित लिंक नहीं</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;Why…</source>
        <translation>क्यों (&amp;W)…</translation>
    </message>
    <message>
        <source>See which links opened or did not, and why</source>
        <translation>देखें कि कौन-से लिंक खुले या नहीं, और क्यों</translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation>त्वरित लिंक</translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation>कोई त्वरित लिंक नहीं</translation>
    </message>
    <message>
        <source>&amp;Connection</source>
        <translation>कनेक्शन (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>बाहर निकलें (&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Quick Links</source>
        <translation>त्वरित लिंक (&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>औज़ार (&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>सेटिंग्स (&amp;S)…</translation>
    </message>
    <message>
        <source>Add, change and order quick links</source>
        <translation>त्वरित लिंक जोड़ें, बदलें और क्रम में लगाएँ</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>दृश्य (&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>स्थिति पट्टी (&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>सहायता (&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About Vellum Connect</source>
        <translation>Vellum Connect के बारे में (&amp;A)</translation>
    </message>
    <message>
        <source>About Vellum Connect</source>
        <translation>Vellum Connect के बारे में</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Vellum Connect %1&lt;/h3&gt;&lt;p&gt;Connection manager with quick links.&lt;/p&gt;&lt;p&gt;Free software under the MIT licence.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Vellum Connect %1&lt;/h3&gt;&lt;p&gt;त्वरित लिंक वाला कनेक्शन प्रबंधक।&lt;/p&gt;&lt;p&gt;MIT लाइसेंस के अंतर्गत मुक्त सॉफ़्टवेयर।&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>संपादन (&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>पूर्ववत करें (&amp;U)</translation>
    </message>
    <message>
        <source>Take back the last change of the quick links</source>
        <translation>त्वरित लिंक का पिछला बदलाव वापस लें</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>फिर से करें (&amp;R)</translation>
    </message>
    <message>
        <source>Make the change again that was taken back</source>
        <translation>वापस लिया गया बदलाव फिर से करें</translation>
    </message>
    <message>
        <source>&amp;Plug-ins Left Out…</source>
        <translation>छोड़े गए प्लग-इन (&amp;P)…</translation>
    </message>
    <message>
        <source>See which plug-ins crashed or hung, and load them again</source>
        <translation>देखें कि कौन-से प्लग-इन क्रैश हुए या अटके, और उन्हें फिर से लोड करें</translation>
    </message>
    <message>
        <source>Plug-ins not loaded: %1</source>
        <translation>ये प्लग-इन लोड नहीं हुए: %1</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>प्रोग्राम से बाहर निकलें</translation>
    </message>
    <message>
        <source>&amp;Find a Quick Link</source>
        <translation>त्वरित लिंक खोजें (&amp;F)</translation>
    </message>
    <message>
        <source>Show only the quick links with a name that you type</source>
        <translation>केवल वे त्वरित लिंक दिखाएँ जिनका नाम आप लिखते हैं</translation>
    </message>
    <message>
        <source>Find a quick link</source>
        <translation>त्वरित लिंक खोजें</translation>
    </message>
</context>
<context>
    <name>MenuManager</name>
    <message>
        <source>You picked it</source>
        <translation>आपने इसे चुना</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 खोलें</translation>
    </message>
</context>
<context>
    <name>OfferLine</name>
    <message>
        <source>&amp;Put Back</source>
        <translation>लौटाएँ (&amp;P)</translation>
    </message>
    <message>
        <source>Leave &amp;As It Is</source>
        <translation>ऐसे ही रहने दें (&amp;A)</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message>
        <source>Opened</source>
        <translation>खुला</translation>
    </message>
    <message>
        <source>You were asked first</source>
        <translation>पहले आपसे पूछा गया</translation>
    </message>
    <message>
        <source>Not opened: %1</source>
        <translation>नहीं खुला: %1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>विफल: %1</translation>
    </message>
    <message>
        <source>Unknown link</source>
        <translation>अज्ञात लिंक</translation>
    </message>
    <message>
        <source>Not opened: you did not agree</source>
        <translation>नहीं खुला: आपने अनुमति नहीं दी</translation>
    </message>
</context>
<context>
    <name>OpeningCause</name>
    <message>
        <source>A plug-in asked for it</source>
        <translation>किसी प्लग-इन ने माँगा</translation>
    </message>
</context>
<context>
    <name>PluginMessages</name>
    <message>
        <source>This was not loaded, because another user owns %1:</source>
        <translation>इसे लोड नहीं किया गया, क्योंकि %1 किसी दूसरे उपयोगकर्ता का है:</translation>
    </message>
    <message>
        <source>This was not loaded, because other users may change %1:</source>
        <translation>इसे लोड नहीं किया गया, क्योंकि दूसरे उपयोगकर्ता %1 को बदल सकते हैं:</translation>
    </message>
    <message>
        <source>This was not loaded, because it is not known who may change %1:</source>
        <translation>इसे लोड नहीं किया गया, क्योंकि यह पता नहीं कि %1 को कौन बदल सकता है:</translation>
    </message>
    <message>
        <source>This was not loaded, because it passes itself off as the quick links of this program:</source>
        <translation>इसे लोड नहीं किया गया, क्योंकि यह खुद को इस प्रोग्राम के त्वरित लिंक बताता है:</translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was starting, and was left out.</source>
        <translation>प्लग-इन %1 ने शुरू होते समय जवाब नहीं दिया और उसे छोड़ दिया गया।</translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish starting last time (it crashed or hung), and was left out.</source>
        <translation>प्लग-इन %1 पिछली बार पूरी तरह शुरू नहीं हुआ (वह क्रैश हुआ या अटक गया) और उसे छोड़ दिया गया।</translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was ending, and was left out.</source>
        <translation>प्लग-इन %1 ने बंद होते समय जवाब नहीं दिया और उसे छोड़ दिया गया।</translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish ending last time (it crashed or hung), and was left out.</source>
        <translation>प्लग-इन %1 पिछली बार पूरी तरह बंद नहीं हुआ (वह क्रैश हुआ या अटक गया) और उसे छोड़ दिया गया।</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>प्लग-इन</translation>
    </message>
    <message>
        <source>&amp;Load at the Next Start</source>
        <translation>अगली शुरुआत पर लोड करें (&amp;L)</translation>
    </message>
    <message>
        <source>Leave &amp;Out</source>
        <translation>छोड़ दें (&amp;O)</translation>
    </message>
</context>
<context>
    <name>ProgramEnd</name>
    <message>
        <source>it used memory that it does not have</source>
        <translation>इसने ऐसी मेमोरी का उपयोग किया जो इसकी नहीं है</translation>
    </message>
    <message>
        <source>it noticed a mistake of its own</source>
        <translation>इसे अपनी ही एक गलती मिली</translation>
    </message>
    <message>
        <source>it divided by zero or the like</source>
        <translation>इसने शून्य से भाग या वैसा ही कुछ किया</translation>
    </message>
    <message>
        <source>it came to an instruction that the processor does not know</source>
        <translation>इसे ऐसा निर्देश मिला जिसे प्रोसेसर नहीं जानता</translation>
    </message>
    <message>
        <source>it asked the system for what is forbidden</source>
        <translation>इसने सिस्टम से वर्जित चीज़ माँगी</translation>
    </message>
    <message>
        <source>This program ended at once, with the error code %1:</source>
        <translation>यह प्रोग्राम त्रुटि कोड %1 के साथ तुरंत समाप्त हो गया:</translation>
    </message>
    <message>
        <source>This program crashed (signal %1, %2):</source>
        <translation>यह प्रोग्राम क्रैश हो गया (सिग्नल %1, %2):</translation>
    </message>
    <message>
        <source>This program was ended by the system or by another program (signal %1):</source>
        <translation>सिस्टम या किसी दूसरे प्रोग्राम ने यह प्रोग्राम समाप्त किया (सिग्नल %1):</translation>
    </message>
</context>
<context>
    <name>ProgramRun</name>
    <message>
        <source>This program could not be started:</source>
        <translation>यह प्रोग्राम शुरू नहीं हो सका:</translation>
    </message>
</context>
<context>
    <name>PutBackOffer</name>
    <message>
        <source>&quot;%1&quot; no longer opens by itself.</source>
        <translation>&quot;%1&quot; अब अपने आप नहीं खुलता।</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when connected.</source>
        <translation>कनेक्ट होने पर &quot;%1&quot; अब नहीं खुलता।</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer has a recipient.</source>
        <translation>&quot;%1&quot; का अब कोई प्राप्तकर्ता नहीं है।</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when Vellum Connect starts.</source>
        <translation>Vellum Connect शुरू होने पर &quot;%1&quot; अब नहीं खुलता।</translation>
    </message>
</context>
<context>
    <name>QuickLinkUIPlugin</name>
    <message>
        <source>IDS_SETTING_NAME</source>
        <extracomment>Caption of the page in the list of the settings dialog. Up to about 20 characters.</extracomment>
        <translation>त्वरित लिंक</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TAB</source>
        <extracomment>Title of the only tab of the settings page, above the table. Up to about 30 characters (the tab widget is 280 pixels wide).</extracomment>
        <translation>त्वरित लिंक</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_ORDER</source>
        <extracomment>Label above the table of the settings page. Up to about 35 characters (250 pixels). Labels are low: a capital letter with an accent, such as an umlaut, loses it with Qt 6.</extracomment>
        <translation>लिंक इस क्रम में खुलते हैं:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME</source>
        <extracomment>Header of the table&apos;s first column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>नाम</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TYPE</source>
        <extracomment>Header of the table&apos;s second column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>प्रकार</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_UP</source>
        <extracomment>Button below the table: moves the link up. Up to about 14 characters; the letter after the ampersand must differ from those of the page&apos;s other buttons.</extracomment>
        <translation>ऊपर (&amp;U)</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DOWN</source>
        <extracomment>Button below the table: moves the link down. As IDS_LINK_SETTING_UP.</extracomment>
        <translation>नीचे (&amp;D)</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW</source>
        <extracomment>Button beside the table: opens the dialog for a new link. Up to about 12 characters; with an ampersand as IDS_LINK_SETTING_UP.</extracomment>
        <translation>नया (&amp;N)…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT</source>
        <extracomment>Button beside the table: opens the dialog that changes the chosen link. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>संपादन (&amp;E)…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DEL</source>
        <extracomment>Button beside the table: deletes the chosen link after a question. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>हटाएँ (&amp;L)</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TITLE</source>
        <extracomment>Title of the dialog for a new link. Up to about 16 characters: most desktops put the program&apos;s name behind it.</extracomment>
        <translation>नया लिंक</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT_TITLE</source>
        <extracomment>Title of the dialog that changes a link. As IDS_LINK_SETTING_NEW_TITLE.</extracomment>
        <translation>लिंक संपादित करें</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_NAME</source>
        <extracomment>Label of the dialog&apos;s name field. 51 pixels: about 6 characters.</extracomment>
        <translation>नाम:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TYPE</source>
        <extracomment>Label of the dialog&apos;s choice of type. 70 pixels: about 9 characters.</extracomment>
        <translation>प्रकार:</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_APPLICATION</source>
        <extracomment>Type of a link that starts a program: in the dialog&apos;s choice and on its tab, and in the table. Up to about 13 characters (100 pixels).</extracomment>
        <translation>अनुप्रयोग</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_E-MAIL</source>
        <extracomment>Type of a link that opens the mail program. As IDS_LINK_TYPE_APPLICATION.</extracomment>
        <translation>ई-मेल</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_INTERNET</source>
        <extracomment>Type of a link that opens an Internet address. As IDS_LINK_TYPE_APPLICATION.</extracomment>
        <translation>इंटरनेट</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_URL</source>
        <extracomment>Label above the field with the path of the program. Up to about 25 characters (184 pixels).</extracomment>
        <translation>प्रोग्राम फ़ाइल:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_BROWSER</source>
        <extracomment>Button beside that field: opens the choice of a file. 80 pixels: up to about 10 characters.</extracomment>
        <translation>ब्राउज़…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_PARA</source>
        <extracomment>Label above the field with the program&apos;s parameters. Up to about 35 characters (250 pixels).</extracomment>
        <translation>पैरामीटर:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_IE_URL</source>
        <extracomment>Label above the field with the Internet address. Up to about 35 characters (250 pixels).</extracomment>
        <translation>पता:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_EMAIL_URL</source>
        <extracomment>What an e-mail link does; the only text on its panel. Up to about 35 characters (250 pixels), one line.</extracomment>
        <translation>आपका मेल प्रोग्राम खोलता है।</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK_STARTUP</source>
        <extracomment>Check box of the dialog. Up to about 32 characters (230 pixels).</extracomment>
        <translation>Vellum Connect शुरू होने पर खोलें</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK</source>
        <extracomment>Check box of the dialog: opens the link when a data connection comes up. Up to about 32 characters (230 pixels).</extracomment>
        <translation>कनेक्ट होने पर खोलें</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_OK</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>ठीक है</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CANCEL</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>IDS_LINK_PROMPT</source>
        <extracomment>Title of every message about quick links. Up to about 30 characters.</extracomment>
        <translation>त्वरित लिंक</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_INVALID_URL</source>
        <extracomment>Message: the address of the link that was picked is none. A sentence or two; keep what stands in quotation marks.</extracomment>
        <translation>यह पता नहीं खोला जा सकता। पते में &quot;http://&quot;, &quot;https://&quot;, &quot;ftp&quot; या &quot;www.&quot; होना चाहिए।</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME_SAME</source>
        <extracomment>Message: the dialog&apos;s name is in use. A sentence or two.</extracomment>
        <translation>किसी अन्य त्वरित लिंक का यही नाम है। कोई दूसरा नाम चुनें।</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_FILENOTEXIST</source>
        <extracomment>Message: the dialog&apos;s program file is missing, or none was chosen. A sentence or two.</extracomment>
        <translation>ऐसी कोई प्रोग्राम फ़ाइल नहीं है। कोई एक चुनें।</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DELETE_CONFORM</source>
        <extracomment>Question before a link is deleted, with the buttons IDS_OK and IDS_CANCEL. A sentence or two.</extracomment>
        <translation>चुना हुआ त्वरित लिंक हटाएँ?</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>ठीक है</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Second button of messages. Up to about 14 characters.</extracomment>
        <translation>रद्द करें</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>सेटिंग्स</translation>
    </message>
    <message>
        <source>None of the loaded plug-ins has settings.</source>
        <translation>लोड किए गए किसी प्लग-इन की सेटिंग्स नहीं हैं।</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>पृष्ठ</translation>
    </message>
    <message>
        <source>Programs start without the parameters that a link has for them.</source>
        <translation>प्रोग्राम उन पैरामीटर के बिना शुरू होते हैं जो उनके लिंक में हैं।</translation>
    </message>
</context>
<context>
    <name>TransitionRules</name>
    <message>
        <source>was up before the program was there</source>
        <translation>प्रोग्राम शुरू होने से पहले से जुड़ा था</translation>
    </message>
    <message>
        <source>up, waiting to be in the Internet</source>
        <extracomment>&quot;In the Internet&quot; means that the Internet can be reached.</extracomment>
        <translation>जुड़ा है, इंटरनेट की प्रतीक्षा है</translation>
    </message>
    <message>
        <source>up and in the Internet</source>
        <translation>जुड़ा है, इंटरनेट के साथ</translation>
    </message>
    <message>
        <source>up, and a portal wants a login</source>
        <translation>जुड़ा है, और एक पोर्टल लॉगिन माँगता है</translation>
    </message>
    <message>
        <source>up, but not in the Internet within 10 s</source>
        <translation>जुड़ा है, पर 10 से॰ तक इंटरनेट नहीं</translation>
    </message>
    <message>
        <source>went down before it was told</source>
        <translation>बताए जाने से पहले टूट गया</translation>
    </message>
    <message>
        <source>another connection took over</source>
        <translation>दूसरे कनेक्शन ने जगह ली</translation>
    </message>
    <message>
        <source>down, waiting whether it comes back</source>
        <translation>टूटा है, लौटने की प्रतीक्षा है</translation>
    </message>
    <message>
        <source>down</source>
        <translation>टूटा है</translation>
    </message>
    <message>
        <source>the service is gone, waiting whether it comes back</source>
        <translation>सेवा नहीं है, उसके लौटने की प्रतीक्षा है</translation>
    </message>
    <message>
        <source>handed over, not a new connection</source>
        <translation>सौंपा गया, नया कनेक्शन नहीं</translation>
    </message>
    <message>
        <source>was up before sleep, not a new connection</source>
        <translation>सुप्त होने से पहले जुड़ा था, नया कनेक्शन नहीं</translation>
    </message>
    <message>
        <source>outlived a restart of the service, not a new connection</source>
        <translation>सेवा के दोबारा शुरू होने पर भी बना रहा, नया कनेक्शन नहीं</translation>
    </message>
    <message>
        <source>was down again when asked, not told</source>
        <extracomment>The host asks once more before it tells of a connection that came up.</extracomment>
        <translation>पूछने पर फिर टूटा था, बताया नहीं गया</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Window</source>
        <translation>विंडो दिखाएँ</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>बाहर निकलें</translation>
    </message>
    <message>
        <source>Vellum Connect keeps running here. Click the icon to show its window.</source>
        <translation>Vellum Connect यहाँ चलता रहता है। इसकी विंडो दिखाने के लिए आइकन पर क्लिक करें।</translation>
    </message>
</context>
<context>
    <name>WhyWindow</name>
    <message>
        <source>What Opened, and Why</source>
        <translation>क्या खुला और क्यों</translation>
    </message>
    <message>
        <source>What was decided about connections and links, newest first. The last %1 decisions are remembered until the program ends, and written to no file.</source>
        <translation>कनेक्शन और लिंक के बारे में जो तय हुआ, सबसे नया पहले। पिछले %1 निर्णय प्रोग्राम के अंत तक याद रहते हैं और किसी फ़ाइल में नहीं लिखे जाते।</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>समय</translation>
    </message>
    <message>
        <source>Link or Connection</source>
        <translation>लिंक या कनेक्शन</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>कारण</translation>
    </message>
    <message>
        <source>What Was Done</source>
        <translation>क्या हुआ</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>कॉपी करें (&amp;C)</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>बंद करें (&amp;L)</translation>
    </message>
</context>
</TS>
