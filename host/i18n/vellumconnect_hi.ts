<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi" sourcelanguage="en">
<context>
    <name>CommandLine</name>
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
        <source>Print the quick links and exit. Needs no display.</source>
        <translation>त्वरित लिंक छापकर बंद होता है। डिस्प्ले की ज़रूरत नहीं।</translation>
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
        <source>Follow connections of KIND: mobile (mobile broadband, the default), any (whatever has a default route) or manual (you press a button).</source>
        <translation>KIND प्रकार के कनेक्शन पर ध्यान देता है: mobile (मोबाइल ब्रॉडबैंड, डिफ़ॉल्ट), any (जिसका भी डिफ़ॉल्ट रूट हो) या manual (आप बटन दबाते हैं)।</translation>
    </message>
    <message>
        <source>No such kind of connection: &quot;%1&quot;.</source>
        <translation>ऐसा कोई कनेक्शन प्रकार नहीं है: &quot;%1&quot;।</translation>
    </message>
</context>
<context>
    <name>CommonUtils</name>
    <message>
        <source>Only Internet addresses (http, https and ftp) are opened. This is none:</source>
        <translation>केवल इंटरनेट पते (http, https और ftp) खोले जाते हैं। यह ऐसा पता नहीं है:</translation>
    </message>
    <message>
        <source>No program could be started for this address:</source>
        <translation>इस पते के लिए कोई प्रोग्राम शुरू नहीं हो सका:</translation>
    </message>
    <message>
        <source>Address not opened</source>
        <translation>पता नहीं खुला</translation>
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
        <translation>यह प्रोग्राम शुरू होने से पहले</translation>
    </message>
    <message>
        <source>NetworkManager is not running</source>
        <translation>NetworkManager नहीं चल रहा है</translation>
    </message>
    <message>
        <source>Built without NetworkManager</source>
        <translation>NetworkManager के बिना बना</translation>
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
    <name>LinkButtons</name>
    <message>
        <source>No quick links yet. Add some with Tools &gt; Settings.</source>
        <translation>अभी कोई त्वरित लिंक नहीं है। औज़ार &gt; सेटिंग्स से जोड़ें।</translation>
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
        <source>This program could not be started:</source>
        <translation>यह प्रोग्राम शुरू नहीं हो सका:</translation>
    </message>
    <message>
        <source>Not opened</source>
        <translation>नहीं खुला</translation>
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
        <source>Not loaded: %1</source>
        <translation>लोड नहीं हुआ: %1</translation>
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
        <source>Close the program</source>
        <translation>प्रोग्राम बंद करें</translation>
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
</context>
<context>
    <name>MenuManager</name>
    <message>
        <source>Open %1</source>
        <translation>%1 खोलें</translation>
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
        <extracomment>Button beside that field: opens the choice of a file. 80 pixels: up to about 10 characters. It is low: letters that reach below the line, such as y, lose their tails.</extracomment>
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
        <translation>प्रोग्राम शुरू होने पर खोलें</translation>
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
        <translation>यह प्रोग्राम फ़ाइल मौजूद नहीं है। कोई दूसरी चुनें।</translation>
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
</context>
<context>
    <name>Tray</name>
    <message>
        <source>The program goes on here. Click the icon to see its window.</source>
        <translation>प्रोग्राम यहाँ चलता रहता है। इसकी विंडो देखने के लिए आइकन पर क्लिक करें।</translation>
    </message>
    <message>
        <source>Show Window</source>
        <translation>विंडो दिखाएँ</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>बाहर निकलें</translation>
    </message>
</context>
</TS>
