<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>AddressProblem</name>
    <message>
        <source>This link has no address:</source>
        <translation>لا عنوان لهذا الرابط:</translation>
    </message>
    <message>
        <source>There are blanks before or behind this address:</source>
        <translation>توجد مسافات قبل هذا العنوان أو بعده:</translation>
    </message>
    <message>
        <source>The beginning of this address must be written in small letters:</source>
        <translation>يجب أن تُكتب بداية هذا العنوان بأحرف صغيرة:</translation>
    </message>
    <message>
        <source>Only Internet addresses (http, https and ftp) are opened. This is not one:</source>
        <translation>تُفتح عناوين الإنترنت فقط (http وhttps وftp). هذا ليس عنوان إنترنت:</translation>
    </message>
    <message>
        <source>This address needs &quot;http://&quot;, &quot;https://&quot;, &quot;ftp://&quot; or &quot;www.&quot; at its beginning:</source>
        <translation>يجب أن يبدأ هذا العنوان بـ &quot;‎http://‎&quot; أو &quot;‎https://‎&quot; أو &quot;‎ftp://‎&quot; أو &quot;‎www.‎&quot;:</translation>
    </message>
</context>
<context>
    <name>AddressQuestions</name>
    <message>
        <source>Open this address with the program for &quot;%1&quot; links?</source>
        <translation>هل تريد فتح هذا العنوان بالبرنامج المخصص لروابط &quot;%1&quot;؟</translation>
    </message>
    <message>
        <source>Unusual address</source>
        <translation>عنوان غير معتاد</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Print which links the running program opened or did not, and why, newest first, and exit.</source>
        <translation>عرض الروابط التي فتحها البرنامج الجاري أو لم يفتحها وأسباب ذلك، الأحدث أولًا، ثم الخروج.</translation>
    </message>
    <message>
        <source>No running program with the folder %1 can be asked.</source>
        <translation>لا يوجد برنامج قيد التشغيل بالمجلد %1 يمكن سؤاله.</translation>
    </message>
    <message>
        <source>Nothing was decided yet</source>
        <translation>لم يُقرَّر شيء بعد</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>عرض هذه المساعدة ثم الخروج.</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>عرض الإصدار ثم الخروج.</translation>
    </message>
    <message>
        <source>Keep your own data in DIR.</source>
        <translation>حفظ بياناتك في DIR.</translation>
    </message>
    <message>
        <source>Load the plug-ins of DIR.</source>
        <translation>تحميل الملحقات الموجودة في DIR.</translation>
    </message>
    <message>
        <source>Show texts in the language LANG, such as en or pt_BR.</source>
        <translation>عرض النصوص باللغة LANG، مثل en أو pt_BR.</translation>
    </message>
    <message>
        <source>Connection manager with quick links.</source>
        <translation>مدير اتصالات مزوَّد بروابط سريعة.</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>معامل غير متوقع &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Empty value after &quot;--%1&quot;.</source>
        <translation>قيمة فارغة بعد &quot;‎--%1&quot;.</translation>
    </message>
    <message>
        <source>No such kind of connection: &quot;%1&quot;.</source>
        <translation>لا يوجد نوع اتصال كهذا: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Print the quick links and exit. Needs no graphical session.</source>
        <translation>عرض الروابط السريعة ثم الخروج. لا يحتاج إلى جلسة رسومية.</translation>
    </message>
    <message>
        <source>%1 Try --help.</source>
        <translation>%1 جرّب ‎--help.</translation>
    </message>
    <message>
        <source>Wait in the tray without a window; where there is no tray, the window shows.</source>
        <translation>الانتظار في علبة النظام دون نافذة؛ وإن لم توجد علبة نظام تظهر النافذة.</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>لا يوجد مجلد &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>It is running already, as process %1, with the folder %2.</source>
        <translation>البرنامج قيد التشغيل بالفعل، بالعملية %1، مع المجلد %2.</translation>
    </message>
    <message>
        <source>Watch connections of type KIND in this run, whatever the settings say: mobile (mobile broadband), any (whatever has a default route) or manual (you press a button).</source>
        <translation>مراقبة الاتصالات من النوع KIND في هذا التشغيل، أيًا كان ما في الإعدادات: إما mobile (النطاق العريض المحمول) أو any (أي اتصال له مسار مبدئي) أو manual (بزر تضغطه).</translation>
    </message>
    <message>
        <source>There is no plug-in in the folder &quot;%1&quot;.</source>
        <translation>لا يوجد ملحق في المجلد &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>CommonUtils</name>
    <message>
        <source>No program could be started for this address:</source>
        <translation>تعذر تشغيل أي برنامج لهذا العنوان:</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Second button of messages. Up to about 14 characters.</extracomment>
        <translation>ألغِ</translation>
    </message>
</context>
<context>
    <name>ConnectionDecisions</name>
    <message>
        <source>No links opened</source>
        <translation>لم تُفتح روابط</translation>
    </message>
    <message>
        <source>Links marked for a connection open</source>
        <translation>تُفتح الروابط المحددة للاتصال</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>اتصال</translation>
    </message>
</context>
<context>
    <name>ConnectionPage</name>
    <message>
        <source>Connection</source>
        <translation>الاتصال</translation>
    </message>
    <message>
        <source>In this run the command line says which connections count. What you choose here counts from the next start on.</source>
        <translation>في هذا التشغيل يحدد سطر الأوامر الاتصالات التي تُحتسب. ما تختاره هنا يُحتسب ابتداءً من التشغيل التالي.</translation>
    </message>
    <message>
        <source>&amp;Mobile broadband</source>
        <translation>النطاق العريض المحمول (&amp;M)</translation>
    </message>
    <message>
        <source>An&amp;y plan</source>
        <translation>أي باقة (&amp;P)</translation>
    </message>
    <message>
        <source>Only the plans &amp;ticked here</source>
        <translation>الباقات المحددة هنا فقط (&amp;T)</translation>
    </message>
    <message>
        <source>Not while &amp;roaming</source>
        <translation>ليس أثناء التجوال (&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Any connection</source>
        <translation>أي اتصال (&amp;A)</translation>
    </message>
    <message>
        <source>My own &amp;button</source>
        <translation>زر خاص بي (&amp;B)</translation>
    </message>
    <message>
        <source>%1 (not there now)</source>
        <translation>%1 (غير موجودة الآن)</translation>
    </message>
    <message>
        <source>NetworkManager does not say which plans there are.</source>
        <translation>لا يخبر NetworkManager بالباقات الموجودة.</translation>
    </message>
    <message>
        <source>While none is ticked, any plan counts.</source>
        <translation>ما لم تُحدَّد أي باقة تُحتسب كل باقة.</translation>
    </message>
    <message>
        <source>There are no mobile plans yet.</source>
        <translation>لا توجد باقات محمول بعد.</translation>
    </message>
</context>
<context>
    <name>ConnectionPanel</name>
    <message>
        <source>&amp;Disconnect</source>
        <translation>قطع الاتصال (&amp;D)</translation>
    </message>
    <message>
        <source>Co&amp;nnect</source>
        <translation>اتصال (&amp;N)</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>الاتصال:</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>الجهاز:</translation>
    </message>
    <message>
        <source>Operator:</source>
        <translation>المشغّل:</translation>
    </message>
    <message>
        <source>Since:</source>
        <translation>منذ:</translation>
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
        <translation>متصل</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>جارٍ الاتصال…</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>This network asks for a login first.</source>
        <translation>تتطلب هذه الشبكة تسجيل الدخول أولًا.</translation>
    </message>
    <message>
        <source>The Internet is out of reach.</source>
        <translation>لا يمكن الوصول إلى الإنترنت.</translation>
    </message>
    <message>
        <source>Press Connect when your connection is up.</source>
        <translation>اضغط &quot;اتصال&quot; عندما يعمل اتصالك.</translation>
    </message>
    <message>
        <source>Waiting for mobile broadband.</source>
        <translation>في انتظار النطاق العريض المحمول.</translation>
    </message>
    <message>
        <source>Waiting for a connection.</source>
        <translation>في انتظار اتصال.</translation>
    </message>
    <message>
        <source>before this program started</source>
        <translation>قبل بدء هذا البرنامج</translation>
    </message>
    <message>
        <source>NetworkManager is not running</source>
        <translation>لا يعمل NetworkManager</translation>
    </message>
    <message>
        <source>Online by Ethernet; waiting for mobile broadband.</source>
        <translation>متصل بالإنترنت عبر Ethernet؛ في انتظار النطاق العريض المحمول.</translation>
    </message>
    <message>
        <source>Online by Wi-Fi; waiting for mobile broadband.</source>
        <translation>متصل بالإنترنت عبر Wi-Fi؛ في انتظار النطاق العريض المحمول.</translation>
    </message>
    <message>
        <source>Online by another connection; waiting for mobile broadband.</source>
        <translation>متصل بالإنترنت عبر اتصال آخر؛ في انتظار النطاق العريض المحمول.</translation>
    </message>
    <message>
        <source>Roaming; waiting for your own network.</source>
        <translation>تجوال؛ في انتظار شبكتك.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>جارٍ التحقق…</translation>
    </message>
</context>
<context>
    <name>DesktopOpener</name>
    <message>
        <source>There is no such file or folder:</source>
        <translation>لا يوجد ملف أو مجلد كهذا:</translation>
    </message>
    <message>
        <source>No program was found that opens this:</source>
        <translation>لم يُعثر على برنامج يفتح هذا:</translation>
    </message>
    <message>
        <source>The program that opens this reported a failure:</source>
        <translation>أبلغ البرنامج الذي يفتح هذا عن خطأ:</translation>
    </message>
    <message>
        <source>The desktop could not open this:</source>
        <translation>تعذر على سطح المكتب فتح هذا:</translation>
    </message>
    <message>
        <source>Opening this needs the program &quot;xdg-open&quot;, which could not be started:</source>
        <translation>لفتح هذا يلزم البرنامج &quot;xdg-open&quot;، وقد تعذّر تشغيله:</translation>
    </message>
</context>
<context>
    <name>DisplayChoice</name>
    <message>
        <source>On Wayland the package %1 is needed, which is not installed.</source>
        <translation>يلزم على Wayland الحزمة %1، وهي غير مثبتة.</translation>
    </message>
    <message>
        <source>There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set.</source>
        <translation>لا توجد شاشة: لم يُعيَّن DISPLAY ولا WAYLAND_DISPLAY.</translation>
    </message>
    <message>
        <source>QT_QPA_PLATFORM asks for X, but DISPLAY is not set.</source>
        <translation>يطلب QT_QPA_PLATFORM شاشة X، لكن DISPLAY غير معيَّن.</translation>
    </message>
    <message>
        <source>The display &quot;%1&quot; does not answer.</source>
        <translation>الشاشة &quot;%1&quot; لا تستجيب.</translation>
    </message>
</context>
<context>
    <name>EditLinkButton</name>
    <message>
        <source>&amp;Edit Links</source>
        <translation>تحرير الروابط (&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Edit Link</source>
        <translation>تحرير الرابط (&amp;E)</translation>
    </message>
</context>
<context>
    <name>EntryRun</name>
    <message>
        <source>The application of this could not be started:</source>
        <translation>تعذر بدء التطبيق الخاص بهذا:</translation>
    </message>
</context>
<context>
    <name>FailureList</name>
    <message>
        <source>Not opened</source>
        <translation>لم يُفتح</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>ولا شيء غيرها</numerusform>
            <numerusform>وواحد آخر</numerusform>
            <numerusform>واثنان آخران</numerusform>
            <numerusform>و%n أخرى</numerusform>
            <numerusform>و%n آخر</numerusform>
            <numerusform>و%n آخر</numerusform>
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
        <translation>ثبّته مدير هذا الحاسوب</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>Start with the session</source>
        <translation>البدء مع الجلسة</translation>
    </message>
    <message>
        <source>Vellum Connect then waits in the tray. Where the desktop has no tray, its window shows.</source>
        <translation>ينتظر Vellum Connect عندئذ في علبة النظام. وإن لم تكن لسطح المكتب علبة نظام تظهر نافذته.</translation>
    </message>
    <message>
        <source>This choice cannot be kept in %1.</source>
        <translation>لا يمكن حفظ هذا الاختيار في %1.</translation>
    </message>
</context>
<context>
    <name>GuardMessages</name>
    <message>
        <source>The file with your quick links is missing.</source>
        <translation>ملف روابطك السريعة مفقود.</translation>
    </message>
    <message>
        <source>The file with your quick links is empty.</source>
        <translation>ملف روابطك السريعة فارغ.</translation>
    </message>
    <message>
        <source>The file with your quick links is damaged.</source>
        <translation>ملف روابطك السريعة تالف.</translation>
    </message>
    <message>
        <source>The file with your quick links is far too large.</source>
        <translation>ملف روابطك السريعة كبير جدًا.</translation>
    </message>
    <message>
        <source>The file with your quick links cannot be read.</source>
        <translation>لا يمكن قراءة ملف روابطك السريعة.</translation>
    </message>
    <message>
        <source>In the place of the file with your quick links there is something that is no file.</source>
        <translation>في مكان ملف روابطك السريعة شيء ليس ملفًا.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>القرص ممتلئ.</translation>
    </message>
    <message>
        <source>You are not allowed to write to its folder.</source>
        <translation>لا يُسمح لك بالكتابة في مجلده.</translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are in place again.</source>
        <translation>
            <numerusform>لا روابط من %1 في مكانها.</numerusform>
            <numerusform>عاد الرابط من %1 إلى مكانه.</numerusform>
            <numerusform>عاد الرابطان من %1 إلى مكانهما.</numerusform>
            <numerusform>عادت الروابط الـ%n من %1 إلى مكانها.</numerusform>
            <numerusform>عادت الروابط الـ%n من %1 إلى مكانها.</numerusform>
            <numerusform>عادت الروابط الـ%n من %1 إلى مكانها.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 can be brought back.</source>
        <translation>
            <numerusform>لا روابط من %1 يمكن استعادتها.</numerusform>
            <numerusform>يمكن استعادة الرابط من %1.</numerusform>
            <numerusform>يمكن استعادة الرابطين من %1.</numerusform>
            <numerusform>يمكن استعادة الروابط الـ%n من %1.</numerusform>
            <numerusform>يمكن استعادة الروابط الـ%n من %1.</numerusform>
            <numerusform>يمكن استعادة الروابط الـ%n من %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are kept, but could not be put in place.</source>
        <translation>
            <numerusform>لا روابط محفوظة من %1.</numerusform>
            <numerusform>الرابط من %1 محفوظ، لكن تعذّرت إعادته إلى مكانه.</numerusform>
            <numerusform>الرابطان من %1 محفوظان، لكن تعذّرت إعادتهما إلى مكانهما.</numerusform>
            <numerusform>الروابط الـ%n من %1 محفوظة، لكن تعذّرت إعادتها إلى مكانها.</numerusform>
            <numerusform>الروابط الـ%n من %1 محفوظة، لكن تعذّرت إعادتها إلى مكانها.</numerusform>
            <numerusform>الروابط الـ%n من %1 محفوظة، لكن تعذّرت إعادتها إلى مكانها.</numerusform>
        </translation>
    </message>
    <message>
        <source>No earlier state of the links is known.</source>
        <translation>لا تُعرف حالة سابقة للروابط.</translation>
    </message>
    <message>
        <source>What was found there was kept:</source>
        <translation>حُفظ ما وُجد هناك:</translation>
    </message>
    <message>
        <source>&amp;Bring Back</source>
        <translation>استعادة (&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Leave Out</source>
        <translation>ترك (&amp;L)</translation>
    </message>
    <message>
        <source>The change of your quick links could not be saved.</source>
        <translation>تعذّر حفظ تغيير روابطك السريعة.</translation>
    </message>
    <message>
        <source>The quick links were changed by another program. Do you want to load them, or to keep yours?</source>
        <translation>غيّر برنامج آخر الروابط السريعة. هل تريد تحميلها أم الاحتفاظ بروابطك؟</translation>
    </message>
    <message>
        <source>&amp;Load Them</source>
        <translation>تحميلها (&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>الاحتفاظ بروابطي (&amp;K)</translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation>الروابط السريعة</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>حاول مرة أخرى (&amp;T)</translation>
    </message>
    <message>
        <source>The quick links that were prepared for you could not be put in place. The program tries again at its next start.</source>
        <translation>تعذّر وضع الروابط السريعة المُعدّة لك في مكانها. سيحاول البرنامج مرة أخرى عند تشغيله التالي.</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>Added: %1</source>
        <translation>أُضيف: %1</translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation>أُزيل: %1</translation>
    </message>
    <message>
        <source>Edited: %1</source>
        <translation>عُدّل: %1</translation>
    </message>
    <message>
        <source>Moved: %1</source>
        <translation>نُقل: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n غيرها</numerusform>
            <numerusform>واحد غيرها</numerusform>
            <numerusform>اثنان غيرها</numerusform>
            <numerusform>%n غيرها</numerusform>
            <numerusform>%n غيرها</numerusform>
            <numerusform>%n غيرها</numerusform>
        </translation>
    </message>
    <message>
        <source>History</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>%1 (now)</source>
        <translation>%1 (الآن)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>الوقت</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>الروابط</translation>
    </message>
    <message>
        <source>What Changed</source>
        <translation>ما تغيّر</translation>
    </message>
    <message>
        <source>&amp;Go Back to This</source>
        <translation>العودة إلى هذه (&amp;G)</translation>
    </message>
    <message>
        <source>The states that your quick links were in, newest first; the last %1 are kept.</source>
        <translation>حالات روابطك السريعة، الأحدث أولًا؛ يُحتفظ بآخر %1 منها.</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>The program started</source>
        <translation>بدأ البرنامج</translation>
    </message>
    <message>
        <source>A connection came up</source>
        <translation>قام اتصال</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>اللغة (&amp;L)</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>لغة النظام (&amp;S)</translation>
    </message>
</context>
<context>
    <name>LinkAddresses</name>
    <message>
        <source>of several marked web addresses only the lowest opens</source>
        <translation>من عدة عناوين ويب محددة لا يُفتح إلا الأدنى</translation>
    </message>
</context>
<context>
    <name>LinkButtons</name>
    <message>
        <source>No quick links yet. Add some with Tools &gt; Settings.</source>
        <translation>لا توجد روابط سريعة بعد. أضفها من الأدوات &gt; الإعدادات.</translation>
    </message>
    <message>
        <source>No quick link has this in its name.</source>
        <translation>لا يحتوي اسم أي رابط سريع على هذا النص.</translation>
    </message>
</context>
<context>
    <name>LinkOpener</name>
    <message>
        <source>There is no such file or folder, or you are not allowed to see it:</source>
        <translation>لا يوجد ملف أو مجلد كهذا، أو لا يُسمح لك برؤيته:</translation>
    </message>
    <message>
        <source>You are not allowed to open this:</source>
        <translation>لا يُسمح لك بفتح هذا:</translation>
    </message>
    <message>
        <source>This is no valid address:</source>
        <translation>هذا العنوان غير صالح:</translation>
    </message>
    <message>
        <source>Addresses that are themselves a script or a page are never opened:</source>
        <translation>لا تُفتح أبدًا العناوين التي هي نفسها نص برمجي أو صفحة:</translation>
    </message>
    <message>
        <source>This link leads nowhere: it has no path.</source>
        <translation>هذا الرابط لا يؤدي إلى شيء: ليس له مسار.</translation>
    </message>
    <message>
        <source>The path of an application or file must begin with &quot;/&quot;:</source>
        <translation>يجب أن يبدأ مسار التطبيق أو الملف بالرمز &quot;/&quot;:</translation>
    </message>
    <message>
        <source>Too many questions wait for an answer to ask about this address, too:</source>
        <translation>تنتظر أسئلة كثيرة الإجابة، فلم يُسأل عن هذا العنوان أيضًا:</translation>
    </message>
    <message>
        <source>This is too long to be opened:</source>
        <translation>هذا أطول من أن يُفتح:</translation>
    </message>
</context>
<context>
    <name>LinkTable</name>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>الملحق</translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation>لا توجد روابط سريعة</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;Why…</source>
        <translation>لماذا (&amp;W)…</translation>
    </message>
    <message>
        <source>See which links opened or did not, and why</source>
        <translation>عرض الروابط التي فُتحت أو لم تُفتح وأسباب ذلك</translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation>الروابط السريعة</translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation>لا توجد روابط سريعة</translation>
    </message>
    <message>
        <source>&amp;Connection</source>
        <translation>الاتصال (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>إنهاء (&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Quick Links</source>
        <translation>الروابط السريعة (&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>الأدوات (&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>الإعدادات (&amp;S)…</translation>
    </message>
    <message>
        <source>Add, change and order quick links</source>
        <translation>إضافة الروابط السريعة وتغييرها وترتيبها</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>العرض (&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>شريط الحالة (&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>المساعدة (&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About Vellum Connect</source>
        <translation>حول Vellum Connect (&amp;A)</translation>
    </message>
    <message>
        <source>About Vellum Connect</source>
        <translation>حول Vellum Connect</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Vellum Connect %1&lt;/h3&gt;&lt;p&gt;Connection manager with quick links.&lt;/p&gt;&lt;p&gt;Free software under the MIT licence.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Vellum Connect %1&lt;/h3&gt;&lt;p&gt;مدير اتصالات مزوَّد بروابط سريعة.&lt;/p&gt;&lt;p&gt;برمجية حرة برخصة MIT.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>تحرير (&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>تراجع (&amp;U)</translation>
    </message>
    <message>
        <source>Take back the last change of the quick links</source>
        <translation>التراجع عن آخر تغيير في الروابط السريعة</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>إعادة (&amp;R)</translation>
    </message>
    <message>
        <source>Make the change again that was taken back</source>
        <translation>إعادة التغيير الذي جرى التراجع عنه</translation>
    </message>
    <message>
        <source>&amp;Plug-ins Left Out…</source>
        <translation>الملحقات المتروكة (&amp;P)…</translation>
    </message>
    <message>
        <source>See which plug-ins crashed or hung, and load them again</source>
        <translation>عرض الملحقات التي انهارت أو توقفت عن الاستجابة، وتحميلها من جديد</translation>
    </message>
    <message>
        <source>Plug-ins not loaded: %1</source>
        <translation>لم تُحمَّل هذه الملحقات: %1</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>إنهاء البرنامج</translation>
    </message>
    <message>
        <source>&amp;Find a Quick Link</source>
        <translation>بحث عن رابط سريع (&amp;F)</translation>
    </message>
    <message>
        <source>Show only the quick links with a name that you type</source>
        <translation>عرض الروابط السريعة التي تكتب اسمها فقط</translation>
    </message>
    <message>
        <source>Find a quick link</source>
        <translation>البحث عن رابط سريع</translation>
    </message>
</context>
<context>
    <name>MenuManager</name>
    <message>
        <source>You picked it</source>
        <translation>أنت اخترته</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>فتح %1</translation>
    </message>
</context>
<context>
    <name>OfferLine</name>
    <message>
        <source>&amp;Put Back</source>
        <translation>أعِدها (&amp;P)</translation>
    </message>
    <message>
        <source>Leave &amp;As It Is</source>
        <translation>اتركها كما هي (&amp;A)</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message>
        <source>Opened</source>
        <translation>فُتح</translation>
    </message>
    <message>
        <source>You were asked first</source>
        <translation>سُئلت أولًا</translation>
    </message>
    <message>
        <source>Not opened: %1</source>
        <translation>لم يُفتح: %1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>فشل: %1</translation>
    </message>
    <message>
        <source>Unknown link</source>
        <translation>رابط غير معروف</translation>
    </message>
    <message>
        <source>Not opened: you did not agree</source>
        <translation>لم يُفتح: لم توافق</translation>
    </message>
</context>
<context>
    <name>OpeningCause</name>
    <message>
        <source>A plug-in asked for it</source>
        <translation>طلبه ملحق</translation>
    </message>
</context>
<context>
    <name>PluginMessages</name>
    <message>
        <source>This was not loaded, because another user owns %1:</source>
        <translation>لم يُحمَّل هذا لأن %1 ملك لمستخدم آخر:</translation>
    </message>
    <message>
        <source>This was not loaded, because other users may change %1:</source>
        <translation>لم يُحمَّل هذا لأن مستخدمين آخرين يستطيعون تغيير %1:</translation>
    </message>
    <message>
        <source>This was not loaded, because it is not known who may change %1:</source>
        <translation>لم يُحمَّل هذا لأنه لا يُعرف من يستطيع تغيير %1:</translation>
    </message>
    <message>
        <source>This was not loaded, because it passes itself off as the quick links of this program:</source>
        <translation>لم يُحمَّل هذا لأنه ينتحل صفة الروابط السريعة لهذا البرنامج:</translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was starting, and was left out.</source>
        <translation>لم يستجب الملحق %1 أثناء بدئه، فتُرك.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish starting last time (it crashed or hung), and was left out.</source>
        <translation>لم يُكمل الملحق %1 بدأه في المرة السابقة (انهار أو توقف عن الاستجابة)، فتُرك.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was ending, and was left out.</source>
        <translation>لم يستجب الملحق %1 أثناء إنهائه، فتُرك.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish ending last time (it crashed or hung), and was left out.</source>
        <translation>لم يُكمل الملحق %1 إنهاءه في المرة السابقة (انهار أو توقف عن الاستجابة)، فتُرك.</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>الملحقات</translation>
    </message>
    <message>
        <source>&amp;Load at the Next Start</source>
        <translation>تحميل عند البدء التالي (&amp;L)</translation>
    </message>
    <message>
        <source>Leave &amp;Out</source>
        <translation>ترك (&amp;O)</translation>
    </message>
</context>
<context>
    <name>ProgramEnd</name>
    <message>
        <source>it used memory that it does not have</source>
        <translation>استخدم ذاكرة لا يملكها</translation>
    </message>
    <message>
        <source>it noticed a mistake of its own</source>
        <translation>لاحظ خطأً في نفسه</translation>
    </message>
    <message>
        <source>it divided by zero or the like</source>
        <translation>قسم على صفر أو ما شابه</translation>
    </message>
    <message>
        <source>it came to an instruction that the processor does not know</source>
        <translation>وصل إلى تعليمة لا يعرفها المعالج</translation>
    </message>
    <message>
        <source>it asked the system for what is forbidden</source>
        <translation>طلب من النظام ما هو ممنوع</translation>
    </message>
    <message>
        <source>This program ended at once, with the error code %1:</source>
        <translation>انتهى هذا البرنامج فورًا برمز الخطأ %1:</translation>
    </message>
    <message>
        <source>This program crashed (signal %1, %2):</source>
        <translation>تعطل هذا البرنامج (الإشارة %1، %2):</translation>
    </message>
    <message>
        <source>This program was ended by the system or by another program (signal %1):</source>
        <translation>أنهى النظام أو برنامج آخر هذا البرنامج (الإشارة %1):</translation>
    </message>
</context>
<context>
    <name>ProgramRun</name>
    <message>
        <source>This program could not be started:</source>
        <translation>تعذر تشغيل هذا البرنامج:</translation>
    </message>
</context>
<context>
    <name>PutBackOffer</name>
    <message>
        <source>&quot;%1&quot; no longer opens by itself.</source>
        <translation>لم يعد &quot;%1&quot; يُفتح تلقائيًا.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when connected.</source>
        <translation>لم يعد &quot;%1&quot; يُفتح عند الاتصال.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer has a recipient.</source>
        <translation>لم يعد لـ &quot;%1&quot; مستلم.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when Vellum Connect starts.</source>
        <translation>لم يعد &quot;%1&quot; يُفتح عند بدء Vellum Connect.</translation>
    </message>
</context>
<context>
    <name>QuickLinkUIPlugin</name>
    <message>
        <source>IDS_SETTING_NAME</source>
        <extracomment>Caption of the page in the list of the settings dialog. Up to about 20 characters.</extracomment>
        <translation>الروابط السريعة</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TAB</source>
        <extracomment>Title of the only tab of the settings page, above the table. Up to about 30 characters (the tab widget is 280 pixels wide).</extracomment>
        <translation>الروابط السريعة</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_ORDER</source>
        <extracomment>Label above the table of the settings page. Up to about 35 characters (250 pixels). Labels are low: a capital letter with an accent, such as an umlaut, loses it with Qt 6.</extracomment>
        <translation>ترتيب فتح الروابط:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME</source>
        <extracomment>Header of the table&apos;s first column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TYPE</source>
        <extracomment>Header of the table&apos;s second column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>النوع</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_UP</source>
        <extracomment>Button below the table: moves the link up. Up to about 14 characters; the letter after the ampersand must differ from those of the page&apos;s other buttons.</extracomment>
        <translation>لأعلى (&amp;U)</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DOWN</source>
        <extracomment>Button below the table: moves the link down. As IDS_LINK_SETTING_UP.</extracomment>
        <translation>لأسفل (&amp;D)</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW</source>
        <extracomment>Button beside the table: opens the dialog for a new link. Up to about 12 characters; with an ampersand as IDS_LINK_SETTING_UP.</extracomment>
        <translation>جديد (&amp;N)…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT</source>
        <extracomment>Button beside the table: opens the dialog that changes the chosen link. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>تحرير (&amp;E)…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DEL</source>
        <extracomment>Button beside the table: deletes the chosen link after a question. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>حذف (&amp;L)</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TITLE</source>
        <extracomment>Title of the dialog for a new link. Up to about 16 characters: most desktops put the program&apos;s name behind it.</extracomment>
        <translation>رابط سريع جديد</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT_TITLE</source>
        <extracomment>Title of the dialog that changes a link. As IDS_LINK_SETTING_NEW_TITLE.</extracomment>
        <translation>تحرير الرابط السريع</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_NAME</source>
        <extracomment>Label of the dialog&apos;s name field. 51 pixels: about 6 characters.</extracomment>
        <translation>الاسم:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TYPE</source>
        <extracomment>Label of the dialog&apos;s choice of type. 70 pixels: about 9 characters.</extracomment>
        <translation>النوع:</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_APPLICATION</source>
        <extracomment>Type of a link that starts a program: in the dialog&apos;s choice and on its tab, and in the table. Up to about 13 characters (100 pixels).</extracomment>
        <translation>تطبيق</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_E-MAIL</source>
        <extracomment>Type of a link that opens the mail program. As IDS_LINK_TYPE_APPLICATION.</extracomment>
        <translation>بريد إلكتروني</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_INTERNET</source>
        <extracomment>Type of a link that opens an Internet address. As IDS_LINK_TYPE_APPLICATION.</extracomment>
        <translation>إنترنت</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_URL</source>
        <extracomment>Label above the field with the path of the program. Up to about 25 characters (184 pixels).</extracomment>
        <translation>ملف البرنامج:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_BROWSER</source>
        <extracomment>Button beside that field: opens the choice of a file. 80 pixels: up to about 10 characters.</extracomment>
        <translation>انتقاء…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_PARA</source>
        <extracomment>Label above the field with the program&apos;s parameters. Up to about 35 characters (250 pixels).</extracomment>
        <translation>المعاملات:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_IE_URL</source>
        <extracomment>Label above the field with the Internet address. Up to about 35 characters (250 pixels).</extracomment>
        <translation>العنوان:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_EMAIL_URL</source>
        <extracomment>What an e-mail link does; the only text on its panel. Up to about 35 characters (250 pixels), one line.</extracomment>
        <translation>يفتح برنامج البريد لديك.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK_STARTUP</source>
        <extracomment>Check box of the dialog. Up to about 32 characters (230 pixels).</extracomment>
        <translation>الفتح عند بدء Vellum Connect</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK</source>
        <extracomment>Check box of the dialog: opens the link when a data connection comes up. Up to about 32 characters (230 pixels).</extracomment>
        <translation>الفتح عند الاتصال</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_OK</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CANCEL</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>IDS_LINK_PROMPT</source>
        <extracomment>Title of every message about quick links. Up to about 30 characters.</extracomment>
        <translation>الروابط السريعة</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_INVALID_URL</source>
        <extracomment>Message: the address of the link that was picked is none. A sentence or two; keep what stands in quotation marks.</extracomment>
        <translation>لا يمكن فتح هذا العنوان. يجب أن يحتوي العنوان على &quot;‎http://‎&quot; أو &quot;‎https://‎&quot; أو &quot;ftp&quot; أو &quot;‎www.‎&quot;.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME_SAME</source>
        <extracomment>Message: the dialog&apos;s name is in use. A sentence or two.</extracomment>
        <translation>يحمل رابط سريع آخر هذا الاسم. اختر اسمًا مختلفًا.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_FILENOTEXIST</source>
        <extracomment>Message: the dialog&apos;s program file is missing, or none was chosen. A sentence or two.</extracomment>
        <translation>لا يوجد ملف برنامج كهذا. اختر ملفًا.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DELETE_CONFORM</source>
        <extracomment>Question before a link is deleted, with the buttons IDS_OK and IDS_CANCEL. A sentence or two.</extracomment>
        <translation>هل تريد حذف الرابط السريع المحدد؟</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Second button of messages. Up to about 14 characters.</extracomment>
        <translation>ألغِ</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>None of the loaded plug-ins has settings.</source>
        <translation>لا توجد إعدادات لأي من الملحقات المحمَّلة.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
    <message>
        <source>Programs start without the parameters that a link has for them.</source>
        <translation>تبدأ البرامج دون المعاملات الموجودة في روابطها.</translation>
    </message>
</context>
<context>
    <name>TransitionRules</name>
    <message>
        <source>was up before the program was there</source>
        <translation>كان قائمًا قبل بدء البرنامج</translation>
    </message>
    <message>
        <source>up, waiting to be in the Internet</source>
        <extracomment>&quot;In the Internet&quot; means that the Internet can be reached.</extracomment>
        <translation>قائم، في انتظار الإنترنت</translation>
    </message>
    <message>
        <source>up and in the Internet</source>
        <translation>قائم ومتصل بالإنترنت</translation>
    </message>
    <message>
        <source>up, and a portal wants a login</source>
        <translation>قائم، وتطلب بوابة تسجيل الدخول</translation>
    </message>
    <message>
        <source>up, but not in the Internet within 10 s</source>
        <translation>قائم، لكن دون إنترنت خلال 10 ث</translation>
    </message>
    <message>
        <source>went down before it was told</source>
        <translation>انقطع قبل الإبلاغ عنه</translation>
    </message>
    <message>
        <source>another connection took over</source>
        <translation>حلّ محله اتصال آخر</translation>
    </message>
    <message>
        <source>down, waiting whether it comes back</source>
        <translation>منقطع، في انتظار عودته</translation>
    </message>
    <message>
        <source>down</source>
        <translation>منقطع</translation>
    </message>
    <message>
        <source>the service is gone, waiting whether it comes back</source>
        <translation>الخدمة غائبة، في انتظار عودتها</translation>
    </message>
    <message>
        <source>handed over, not a new connection</source>
        <translation>انتقل، وليس اتصالًا جديدًا</translation>
    </message>
    <message>
        <source>was up before sleep, not a new connection</source>
        <translation>كان قائمًا قبل السكون، وليس اتصالًا جديدًا</translation>
    </message>
    <message>
        <source>outlived a restart of the service, not a new connection</source>
        <translation>بقي بعد إعادة تشغيل الخدمة، وليس اتصالًا جديدًا</translation>
    </message>
    <message>
        <source>was down again when asked, not told</source>
        <extracomment>The host asks once more before it tells of a connection that came up.</extracomment>
        <translation>كان قد انقطع ثانية عند السؤال، فلم يُبلَّغ عنه</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Window</source>
        <translation>إظهار النافذة</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>Vellum Connect keeps running here. Click the icon to show its window.</source>
        <translation>يستمر Vellum Connect في العمل هنا. انقر الأيقونة لإظهار نافذته.</translation>
    </message>
</context>
<context>
    <name>WhyWindow</name>
    <message>
        <source>What Opened, and Why</source>
        <translation>ما فُتح ولماذا</translation>
    </message>
    <message>
        <source>What was decided about connections and links, newest first. The last %1 decisions are remembered until the program ends, and written to no file.</source>
        <translation>ما تقرر بشأن الاتصالات والروابط، الأحدث أولًا. تُحفظ آخر %1 من القرارات في الذاكرة حتى نهاية البرنامج، ولا تُكتب في أي ملف.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>الوقت</translation>
    </message>
    <message>
        <source>Link or Connection</source>
        <translation>الرابط أو الاتصال</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>السبب</translation>
    </message>
    <message>
        <source>What Was Done</source>
        <translation>ما حدث</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>نسخ (&amp;C)</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>إغلاق (&amp;L)</translation>
    </message>
</context>
</TS>
