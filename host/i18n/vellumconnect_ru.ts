<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>AddressProblem</name>
    <message>
        <source>This link has no address:</source>
        <translation>У этой ссылки нет адреса:</translation>
    </message>
    <message>
        <source>There are blanks before or behind this address:</source>
        <translation>Перед этим адресом или после него стоят пробелы:</translation>
    </message>
    <message>
        <source>The beginning of this address must be written in small letters:</source>
        <translation>Начало этого адреса должно быть написано строчными буквами:</translation>
    </message>
    <message>
        <source>Only Internet addresses (http, https and ftp) are opened. This is not one:</source>
        <translation>Открываются только интернет-адреса (http, https и ftp). Это не такой адрес:</translation>
    </message>
    <message>
        <source>This address needs &quot;http://&quot;, &quot;https://&quot;, &quot;ftp://&quot; or &quot;www.&quot; at its beginning:</source>
        <translation>В начале этого адреса должно быть «http://», «https://», «ftp://» или «www.»:</translation>
    </message>
</context>
<context>
    <name>AddressQuestions</name>
    <message>
        <source>Open this address with the program for &quot;%1&quot; links?</source>
        <translation>Открыть этот адрес программой для ссылок «%1»?</translation>
    </message>
    <message>
        <source>Unusual address</source>
        <translation>Необычный адрес</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Print which links the running program opened or did not, and why, newest first, and exit.</source>
        <translation>Вывести, какие ссылки запущенная программа открыла или нет и почему, сначала новые, и выйти.</translation>
    </message>
    <message>
        <source>No running program with the folder %1 can be asked.</source>
        <translation>Нет запущенной программы с папкой %1, которую можно спросить.</translation>
    </message>
    <message>
        <source>Nothing was decided yet</source>
        <translation>Решений ещё не было</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Показать эту справку и выйти.</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>Показать версию и выйти.</translation>
    </message>
    <message>
        <source>Keep your own data in DIR.</source>
        <translation>Хранить ваши данные в DIR.</translation>
    </message>
    <message>
        <source>Load the plug-ins of DIR.</source>
        <translation>Загрузить подключаемые модули из DIR.</translation>
    </message>
    <message>
        <source>Show texts in the language LANG, such as en or pt_BR.</source>
        <translation>Показывать тексты на языке LANG, например en или pt_BR.</translation>
    </message>
    <message>
        <source>Connection manager with quick links.</source>
        <translation>Диспетчер подключений с быстрыми ссылками.</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>Неожиданный аргумент «%1».</translation>
    </message>
    <message>
        <source>Empty value after &quot;--%1&quot;.</source>
        <translation>Пустое значение после «--%1».</translation>
    </message>
    <message>
        <source>No such kind of connection: &quot;%1&quot;.</source>
        <translation>Нет такого вида подключения: «%1».</translation>
    </message>
    <message>
        <source>Print the quick links and exit. Needs no graphical session.</source>
        <translation>Вывести быстрые ссылки и выйти. Графический сеанс не нужен.</translation>
    </message>
    <message>
        <source>%1 Try --help.</source>
        <translation>%1 См. --help.</translation>
    </message>
    <message>
        <source>Wait in the tray without a window; where there is no tray, the window shows.</source>
        <translation>Ждать в области уведомлений без окна; если её нет, показать окно.</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>Нет папки «%1».</translation>
    </message>
    <message>
        <source>It is running already, as process %1, with the folder %2.</source>
        <translation>Программа уже запущена: процесс %1, папка %2.</translation>
    </message>
    <message>
        <source>Watch connections of type KIND in this run, whatever the settings say: mobile (mobile broadband), any (whatever has a default route) or manual (you press a button).</source>
        <translation>В этом запуске следить за подключениями вида KIND, что бы ни говорила настройка: mobile (мобильное широкополосное), any (любое с маршрутом по умолчанию) или manual (вы нажимаете кнопку).</translation>
    </message>
    <message>
        <source>There is no plug-in in the folder &quot;%1&quot;.</source>
        <translation>В папке «%1» нет модулей.</translation>
    </message>
</context>
<context>
    <name>CommonUtils</name>
    <message>
        <source>No program could be started for this address:</source>
        <translation>Не удалось запустить программу для этого адреса:</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Second button of messages. Up to about 14 characters.</extracomment>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>ConnectionDecisions</name>
    <message>
        <source>No links opened</source>
        <translation>Ссылки не открыты</translation>
    </message>
    <message>
        <source>Links marked for a connection open</source>
        <translation>Открываются ссылки, отмеченные для подключения</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Подключение</translation>
    </message>
</context>
<context>
    <name>ConnectionPage</name>
    <message>
        <source>Connection</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <source>In this run the command line says which connections count. What you choose here counts from the next start on.</source>
        <translation>В этом запуске командная строка определяет, какие подключения считаются. Выбранное здесь действует со следующего запуска.</translation>
    </message>
    <message>
        <source>&amp;Mobile broadband</source>
        <translation>&amp;Мобильное широкополосное подключение</translation>
    </message>
    <message>
        <source>An&amp;y plan</source>
        <translation>Любой &amp;тариф</translation>
    </message>
    <message>
        <source>Only the plans &amp;ticked here</source>
        <translation>Только отмеченные &amp;здесь тарифы</translation>
    </message>
    <message>
        <source>Not while &amp;roaming</source>
        <translation>Не в &amp;роуминге</translation>
    </message>
    <message>
        <source>&amp;Any connection</source>
        <translation>&amp;Любое подключение</translation>
    </message>
    <message>
        <source>My own &amp;button</source>
        <translation>Своя &amp;кнопка</translation>
    </message>
    <message>
        <source>%1 (not there now)</source>
        <translation>%1 (сейчас отсутствует)</translation>
    </message>
    <message>
        <source>NetworkManager does not say which plans there are.</source>
        <translation>NetworkManager не сообщает, какие есть тарифы.</translation>
    </message>
    <message>
        <source>While none is ticked, any plan counts.</source>
        <translation>Пока ни один не отмечен, считается любой тариф.</translation>
    </message>
    <message>
        <source>There are no mobile plans yet.</source>
        <translation>Мобильных тарифов пока нет.</translation>
    </message>
</context>
<context>
    <name>ConnectionPanel</name>
    <message>
        <source>&amp;Disconnect</source>
        <translation>&amp;Отключить</translation>
    </message>
    <message>
        <source>Co&amp;nnect</source>
        <translation>По&amp;дключить</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>Подключение:</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>Устройство:</translation>
    </message>
    <message>
        <source>Operator:</source>
        <translation>Оператор:</translation>
    </message>
    <message>
        <source>Since:</source>
        <translation>Начало:</translation>
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
        <translation>Подключено</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Подключение…</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Не подключено</translation>
    </message>
    <message>
        <source>This network asks for a login first.</source>
        <translation>Эта сеть сначала требует входа.</translation>
    </message>
    <message>
        <source>The Internet is out of reach.</source>
        <translation>Интернет недоступен.</translation>
    </message>
    <message>
        <source>Press Connect when your connection is up.</source>
        <translation>Нажмите «Подключить», когда подключение будет установлено.</translation>
    </message>
    <message>
        <source>Waiting for mobile broadband.</source>
        <translation>Ожидание мобильного широкополосного подключения.</translation>
    </message>
    <message>
        <source>Waiting for a connection.</source>
        <translation>Ожидание подключения.</translation>
    </message>
    <message>
        <source>before this program started</source>
        <translation>до запуска этой программы</translation>
    </message>
    <message>
        <source>NetworkManager is not running</source>
        <translation>NetworkManager не запущен</translation>
    </message>
    <message>
        <source>Online by Ethernet; waiting for mobile broadband.</source>
        <translation>В сети через Ethernet; ожидание мобильного широкополосного подключения.</translation>
    </message>
    <message>
        <source>Online by Wi-Fi; waiting for mobile broadband.</source>
        <translation>В сети через Wi-Fi; ожидание мобильного широкополосного подключения.</translation>
    </message>
    <message>
        <source>Online by another connection; waiting for mobile broadband.</source>
        <translation>В сети через другое подключение; ожидание мобильного широкополосного подключения.</translation>
    </message>
    <message>
        <source>Roaming; waiting for your own network.</source>
        <translation>Роуминг; ожидание вашей собственной сети.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Проверка…</translation>
    </message>
</context>
<context>
    <name>DesktopOpener</name>
    <message>
        <source>There is no such file or folder:</source>
        <translation>Нет такого файла или папки:</translation>
    </message>
    <message>
        <source>No program was found that opens this:</source>
        <translation>Не найдена программа, которая это открывает:</translation>
    </message>
    <message>
        <source>The program that opens this reported a failure:</source>
        <translation>Программа, которая это открывает, сообщила об ошибке:</translation>
    </message>
    <message>
        <source>The desktop could not open this:</source>
        <translation>Среда рабочего стола не смогла это открыть:</translation>
    </message>
    <message>
        <source>Opening this needs the program &quot;xdg-open&quot;, which could not be started:</source>
        <translation>Для открытия нужна программа «xdg-open», которую не удалось запустить:</translation>
    </message>
</context>
<context>
    <name>DisplayChoice</name>
    <message>
        <source>On Wayland the package %1 is needed, which is not installed.</source>
        <translation>Для Wayland нужен пакет %1, который не установлен.</translation>
    </message>
    <message>
        <source>There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set.</source>
        <translation>Нет экрана: не заданы ни DISPLAY, ни WAYLAND_DISPLAY.</translation>
    </message>
    <message>
        <source>QT_QPA_PLATFORM asks for X, but DISPLAY is not set.</source>
        <translation>QT_QPA_PLATFORM требует X, но DISPLAY не задан.</translation>
    </message>
    <message>
        <source>The display &quot;%1&quot; does not answer.</source>
        <translation>Экран «%1» не отвечает.</translation>
    </message>
</context>
<context>
    <name>EditLinkButton</name>
    <message>
        <source>&amp;Edit Links</source>
        <translation>&amp;Изменить ссылки</translation>
    </message>
    <message>
        <source>&amp;Edit Link</source>
        <translation>&amp;Изменить ссылку</translation>
    </message>
</context>
<context>
    <name>EntryRun</name>
    <message>
        <source>The application of this could not be started:</source>
        <translation>Не удалось запустить приложение этого ярлыка:</translation>
    </message>
</context>
<context>
    <name>FailureList</name>
    <message>
        <source>Not opened</source>
        <translation>Не открыто</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
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
        <translation>Задано администратором этого компьютера</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Start with the session</source>
        <translation>Запускать вместе с сеансом</translation>
    </message>
    <message>
        <source>Vellum Connect then waits in the tray. Where the desktop has no tray, its window shows.</source>
        <translation>Тогда Vellum Connect ждёт в области уведомлений. Если её нет на рабочем столе, появляется окно.</translation>
    </message>
    <message>
        <source>This choice cannot be kept in %1.</source>
        <translation>Этот выбор нельзя сохранить в %1.</translation>
    </message>
</context>
<context>
    <name>GuardMessages</name>
    <message>
        <source>The file with your quick links is missing.</source>
        <translation>Файл с вашими быстрыми ссылками отсутствует.</translation>
    </message>
    <message>
        <source>The file with your quick links is empty.</source>
        <translation>Файл с вашими быстрыми ссылками пуст.</translation>
    </message>
    <message>
        <source>The file with your quick links is damaged.</source>
        <translation>Файл с вашими быстрыми ссылками повреждён.</translation>
    </message>
    <message>
        <source>The file with your quick links is far too large.</source>
        <translation>Файл с вашими быстрыми ссылками слишком велик.</translation>
    </message>
    <message>
        <source>The file with your quick links cannot be read.</source>
        <translation>Файл с вашими быстрыми ссылками нельзя прочитать.</translation>
    </message>
    <message>
        <source>In the place of the file with your quick links there is something that is no file.</source>
        <translation>На месте файла с вашими быстрыми ссылками находится то, что не является файлом.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Диск заполнен.</translation>
    </message>
    <message>
        <source>You are not allowed to write to its folder.</source>
        <translation>Недостаточно прав для записи в его папку.</translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are in place again.</source>
        <translation>
            <numerusform>%n ссылка от %1 снова на месте.</numerusform>
            <numerusform>%n ссылки от %1 снова на месте.</numerusform>
            <numerusform>%n ссылок от %1 снова на месте.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 can be brought back.</source>
        <translation>
            <numerusform>%n ссылку от %1 можно вернуть.</numerusform>
            <numerusform>%n ссылки от %1 можно вернуть.</numerusform>
            <numerusform>%n ссылок от %1 можно вернуть.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are kept, but could not be put in place.</source>
        <translation>
            <numerusform>%n ссылка от %1 сохранена, но вернуть её на место не удалось.</numerusform>
            <numerusform>%n ссылки от %1 сохранены, но вернуть их на место не удалось.</numerusform>
            <numerusform>%n ссылок от %1 сохранены, но вернуть их на место не удалось.</numerusform>
        </translation>
    </message>
    <message>
        <source>No earlier state of the links is known.</source>
        <translation>Прежнее состояние ссылок неизвестно.</translation>
    </message>
    <message>
        <source>What was found there was kept:</source>
        <translation>То, что там было, сохранено:</translation>
    </message>
    <message>
        <source>&amp;Bring Back</source>
        <translation>&amp;Вернуть</translation>
    </message>
    <message>
        <source>&amp;Leave Out</source>
        <translation>&amp;Не возвращать</translation>
    </message>
    <message>
        <source>The change of your quick links could not be saved.</source>
        <translation>Не удалось сохранить изменение быстрых ссылок.</translation>
    </message>
    <message>
        <source>The quick links were changed by another program. Do you want to load them, or to keep yours?</source>
        <translation>Быстрые ссылки изменены другой программой. Загрузить их или оставить ваши?</translation>
    </message>
    <message>
        <source>&amp;Load Them</source>
        <translation>&amp;Загрузить</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>&amp;Оставить мои</translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation>Быстрые ссылки</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>The quick links that were prepared for you could not be put in place. The program tries again at its next start.</source>
        <translation>Не удалось поместить на место подготовленные для вас быстрые ссылки. Программа попробует ещё раз при следующем запуске.</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>Added: %1</source>
        <translation>Добавлено: %1</translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation>Удалено: %1</translation>
    </message>
    <message>
        <source>Edited: %1</source>
        <translation>Изменено: %1</translation>
    </message>
    <message>
        <source>Moved: %1</source>
        <translation>Перемещено: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>ещё %n</numerusform>
            <numerusform>ещё %n</numerusform>
            <numerusform>ещё %n</numerusform>
        </translation>
    </message>
    <message>
        <source>History</source>
        <translation>История</translation>
    </message>
    <message>
        <source>%1 (now)</source>
        <translation>%1 (сейчас)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Ссылки</translation>
    </message>
    <message>
        <source>What Changed</source>
        <translation>Что изменилось</translation>
    </message>
    <message>
        <source>&amp;Go Back to This</source>
        <translation>&amp;Вернуться к этому</translation>
    </message>
    <message>
        <source>The states that your quick links were in, newest first; the last %1 are kept.</source>
        <translation>Состояния быстрых ссылок, сначала новые; хранятся последние %1.</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>The program started</source>
        <translation>Программа запущена</translation>
    </message>
    <message>
        <source>A connection came up</source>
        <translation>Появилось подключение</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Язык</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>Язык &amp;системы</translation>
    </message>
</context>
<context>
    <name>LinkAddresses</name>
    <message>
        <source>of several marked web addresses only the lowest opens</source>
        <translation>из нескольких отмеченных веб-адресов открывается только нижний</translation>
    </message>
</context>
<context>
    <name>LinkButtons</name>
    <message>
        <source>No quick links yet. Add some with Tools &gt; Settings.</source>
        <translation>Быстрых ссылок пока нет. Добавьте их через меню «Инструменты &gt; Настройка».</translation>
    </message>
    <message>
        <source>No quick link has this in its name.</source>
        <translation>Ни у одной быстрой ссылки нет этого в названии.</translation>
    </message>
</context>
<context>
    <name>LinkOpener</name>
    <message>
        <source>There is no such file or folder, or you are not allowed to see it:</source>
        <translation>Нет такого файла или папки либо недостаточно прав для просмотра:</translation>
    </message>
    <message>
        <source>You are not allowed to open this:</source>
        <translation>Недостаточно прав для открытия:</translation>
    </message>
    <message>
        <source>This is no valid address:</source>
        <translation>Это недопустимый адрес:</translation>
    </message>
    <message>
        <source>Addresses that are themselves a script or a page are never opened:</source>
        <translation>Адреса, которые сами являются скриптом или страницей, никогда не открываются:</translation>
    </message>
    <message>
        <source>This link leads nowhere: it has no path.</source>
        <translation>Эта ссылка никуда не ведёт: в ней нет пути.</translation>
    </message>
    <message>
        <source>The path of an application or file must begin with &quot;/&quot;:</source>
        <translation>Путь к приложению или файлу должен начинаться с «/»:</translation>
    </message>
    <message>
        <source>Too many questions wait for an answer to ask about this address, too:</source>
        <translation>Слишком много вопросов ждут ответа, чтобы спросить и об этом адресе:</translation>
    </message>
    <message>
        <source>This is too long to be opened:</source>
        <translation>Это слишком длинно, чтобы открыть:</translation>
    </message>
</context>
<context>
    <name>LinkTable</name>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>Модуль</translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation>Нет быстрых ссылок</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;Why…</source>
        <translation>&amp;Почему…</translation>
    </message>
    <message>
        <source>See which links opened or did not, and why</source>
        <translation>Посмотреть, какие ссылки открылись или нет и почему</translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation>Быстрые ссылки</translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation>Нет быстрых ссылок</translation>
    </message>
    <message>
        <source>&amp;Connection</source>
        <translation>&amp;Подключение</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <source>&amp;Quick Links</source>
        <translation>&amp;Быстрые ссылки</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Инструменты</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Настройка…</translation>
    </message>
    <message>
        <source>Add, change and order quick links</source>
        <translation>Добавить, изменить и упорядочить быстрые ссылки</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>&amp;Строка состояния</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>&amp;About Vellum Connect</source>
        <translation>&amp;О программе Vellum Connect</translation>
    </message>
    <message>
        <source>About Vellum Connect</source>
        <translation>О программе Vellum Connect</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Vellum Connect %1&lt;/h3&gt;&lt;p&gt;Connection manager with quick links.&lt;/p&gt;&lt;p&gt;Free software under the MIT licence.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Vellum Connect %1&lt;/h3&gt;&lt;p&gt;Диспетчер подключений с быстрыми ссылками.&lt;/p&gt;&lt;p&gt;Свободная программа под лицензией MIT.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Пр&amp;авка</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>Take back the last change of the quick links</source>
        <translation>Отменить последнее изменение быстрых ссылок</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>Make the change again that was taken back</source>
        <translation>Повторить отменённое изменение</translation>
    </message>
    <message>
        <source>&amp;Plug-ins Left Out…</source>
        <translation>Не&amp;загруженные модули…</translation>
    </message>
    <message>
        <source>See which plug-ins crashed or hung, and load them again</source>
        <translation>Показать модули, которые дали сбой или зависли, и загрузить их снова</translation>
    </message>
    <message>
        <source>Plug-ins not loaded: %1</source>
        <translation>Не загружены модули: %1</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>Завершить работу программы</translation>
    </message>
    <message>
        <source>&amp;Find a Quick Link</source>
        <translation>&amp;Найти быструю ссылку</translation>
    </message>
    <message>
        <source>Show only the quick links with a name that you type</source>
        <translation>Показывать только быстрые ссылки с введённым названием</translation>
    </message>
    <message>
        <source>Find a quick link</source>
        <translation>Найти быструю ссылку</translation>
    </message>
</context>
<context>
    <name>MenuManager</name>
    <message>
        <source>You picked it</source>
        <translation>Выбрано вами</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Открыть %1</translation>
    </message>
</context>
<context>
    <name>OfferLine</name>
    <message>
        <source>&amp;Put Back</source>
        <translation>&amp;Вернуть</translation>
    </message>
    <message>
        <source>Leave &amp;As It Is</source>
        <translation>&amp;Оставить так</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message>
        <source>Opened</source>
        <translation>Открыто</translation>
    </message>
    <message>
        <source>You were asked first</source>
        <translation>Сначала был задан вопрос</translation>
    </message>
    <message>
        <source>Not opened: %1</source>
        <translation>Не открыто: %1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Сбой: %1</translation>
    </message>
    <message>
        <source>Unknown link</source>
        <translation>Неизвестная ссылка</translation>
    </message>
    <message>
        <source>Not opened: you did not agree</source>
        <translation>Не открыто: вы не согласились</translation>
    </message>
</context>
<context>
    <name>OpeningCause</name>
    <message>
        <source>A plug-in asked for it</source>
        <translation>По запросу модуля</translation>
    </message>
</context>
<context>
    <name>PluginMessages</name>
    <message>
        <source>This was not loaded, because another user owns %1:</source>
        <translation>Это не загружено, так как %1 принадлежит другому пользователю:</translation>
    </message>
    <message>
        <source>This was not loaded, because other users may change %1:</source>
        <translation>Это не загружено, так как другие пользователи могут изменять %1:</translation>
    </message>
    <message>
        <source>This was not loaded, because it is not known who may change %1:</source>
        <translation>Это не загружено, так как неизвестно, кто может изменять %1:</translation>
    </message>
    <message>
        <source>This was not loaded, because it passes itself off as the quick links of this program:</source>
        <translation>Это не загружено, так как выдаёт себя за быстрые ссылки этой программы:</translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was starting, and was left out.</source>
        <translation>Модуль %1 не отвечал при запуске и не был загружен.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish starting last time (it crashed or hung), and was left out.</source>
        <translation>Модуль %1 в прошлый раз не завершил запуск (сбой или зависание) и не был загружен.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was ending, and was left out.</source>
        <translation>Модуль %1 не отвечал при завершении и не был загружен.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish ending last time (it crashed or hung), and was left out.</source>
        <translation>Модуль %1 в прошлый раз не завершил работу (сбой или зависание) и не был загружен.</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Модули</translation>
    </message>
    <message>
        <source>&amp;Load at the Next Start</source>
        <translation>&amp;Загрузить при следующем запуске</translation>
    </message>
    <message>
        <source>Leave &amp;Out</source>
        <translation>&amp;Не загружать</translation>
    </message>
</context>
<context>
    <name>ProgramEnd</name>
    <message>
        <source>it used memory that it does not have</source>
        <translation>она обратилась к чужой памяти</translation>
    </message>
    <message>
        <source>it noticed a mistake of its own</source>
        <translation>она заметила собственную ошибку</translation>
    </message>
    <message>
        <source>it divided by zero or the like</source>
        <translation>она разделила на ноль или сделала подобное</translation>
    </message>
    <message>
        <source>it came to an instruction that the processor does not know</source>
        <translation>она дошла до команды, неизвестной процессору</translation>
    </message>
    <message>
        <source>it asked the system for what is forbidden</source>
        <translation>она потребовала от системы запрещённого</translation>
    </message>
    <message>
        <source>This program ended at once, with the error code %1:</source>
        <translation>Эта программа сразу завершилась с кодом ошибки %1:</translation>
    </message>
    <message>
        <source>This program crashed (signal %1, %2):</source>
        <translation>Эта программа аварийно завершилась (сигнал %1, %2):</translation>
    </message>
    <message>
        <source>This program was ended by the system or by another program (signal %1):</source>
        <translation>Эту программу завершила система или другая программа (сигнал %1):</translation>
    </message>
</context>
<context>
    <name>ProgramRun</name>
    <message>
        <source>This program could not be started:</source>
        <translation>Не удалось запустить эту программу:</translation>
    </message>
</context>
<context>
    <name>PutBackOffer</name>
    <message>
        <source>&quot;%1&quot; no longer opens by itself.</source>
        <translation>«%1» больше не открывается автоматически.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when connected.</source>
        <translation>«%1» больше не открывается при подключении.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer has a recipient.</source>
        <translation>У «%1» больше нет получателя.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when Vellum Connect starts.</source>
        <translation>«%1» больше не открывается при запуске Vellum Connect.</translation>
    </message>
</context>
<context>
    <name>QuickLinkUIPlugin</name>
    <message>
        <source>IDS_SETTING_NAME</source>
        <extracomment>Caption of the page in the list of the settings dialog. Up to about 20 characters.</extracomment>
        <translation>Быстрые ссылки</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TAB</source>
        <extracomment>Title of the only tab of the settings page, above the table. Up to about 30 characters (the tab widget is 280 pixels wide).</extracomment>
        <translation>Быстрые ссылки</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_ORDER</source>
        <extracomment>Label above the table of the settings page. Up to about 35 characters (250 pixels). Labels are low: a capital letter with an accent, such as an umlaut, loses it with Qt 6.</extracomment>
        <translation>Порядок открытия ссылок:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME</source>
        <extracomment>Header of the table&apos;s first column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>Имя</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TYPE</source>
        <extracomment>Header of the table&apos;s second column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>Тип</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_UP</source>
        <extracomment>Button below the table: moves the link up. Up to about 14 characters; the letter after the ampersand must differ from those of the page&apos;s other buttons.</extracomment>
        <translation>В&amp;верх</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DOWN</source>
        <extracomment>Button below the table: moves the link down. As IDS_LINK_SETTING_UP.</extracomment>
        <translation>В&amp;низ</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW</source>
        <extracomment>Button beside the table: opens the dialog for a new link. Up to about 12 characters; with an ampersand as IDS_LINK_SETTING_UP.</extracomment>
        <translation>&amp;Создать…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT</source>
        <extracomment>Button beside the table: opens the dialog that changes the chosen link. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>&amp;Изменить…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DEL</source>
        <extracomment>Button beside the table: deletes the chosen link after a question. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TITLE</source>
        <extracomment>Title of the dialog for a new link. Up to about 16 characters: most desktops put the program&apos;s name behind it.</extracomment>
        <translation>Новая ссылка</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT_TITLE</source>
        <extracomment>Title of the dialog that changes a link. As IDS_LINK_SETTING_NEW_TITLE.</extracomment>
        <translation>Изменение ссылки</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_NAME</source>
        <extracomment>Label of the dialog&apos;s name field. 51 pixels: about 6 characters.</extracomment>
        <translation>Имя:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TYPE</source>
        <extracomment>Label of the dialog&apos;s choice of type. 70 pixels: about 9 characters.</extracomment>
        <translation>Тип:</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_APPLICATION</source>
        <extracomment>Type of a link that starts a program: in the dialog&apos;s choice and on its tab, and in the table. Up to about 13 characters (100 pixels).</extracomment>
        <translation>Приложение</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_E-MAIL</source>
        <extracomment>Type of a link that opens the mail program. As IDS_LINK_TYPE_APPLICATION.</extracomment>
        <translation>Эл. почта</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_INTERNET</source>
        <extracomment>Type of a link that opens an Internet address. As IDS_LINK_TYPE_APPLICATION.</extracomment>
        <translation>Интернет</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_URL</source>
        <extracomment>Label above the field with the path of the program. Up to about 25 characters (184 pixels).</extracomment>
        <translation>Файл программы:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_BROWSER</source>
        <extracomment>Button beside that field: opens the choice of a file. 80 pixels: up to about 10 characters.</extracomment>
        <translation>Указать…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_PARA</source>
        <extracomment>Label above the field with the program&apos;s parameters. Up to about 35 characters (250 pixels).</extracomment>
        <translation>Параметры:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_IE_URL</source>
        <extracomment>Label above the field with the Internet address. Up to about 35 characters (250 pixels).</extracomment>
        <translation>Адрес:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_EMAIL_URL</source>
        <extracomment>What an e-mail link does; the only text on its panel. Up to about 35 characters (250 pixels), one line.</extracomment>
        <translation>Открывает почтовую программу.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK_STARTUP</source>
        <extracomment>Check box of the dialog. Up to about 32 characters (230 pixels).</extracomment>
        <translation>Открыть при запуске Vellum Connect</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK</source>
        <extracomment>Check box of the dialog: opens the link when a data connection comes up. Up to about 32 characters (230 pixels).</extracomment>
        <translation>Открыть при подключении</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_OK</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CANCEL</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>IDS_LINK_PROMPT</source>
        <extracomment>Title of every message about quick links. Up to about 30 characters.</extracomment>
        <translation>Быстрые ссылки</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_INVALID_URL</source>
        <extracomment>Message: the address of the link that was picked is none. A sentence or two; keep what stands in quotation marks.</extracomment>
        <translation>Не удаётся открыть этот адрес. В адресе должно быть «http://», «https://», «ftp» или «www.».</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME_SAME</source>
        <extracomment>Message: the dialog&apos;s name is in use. A sentence or two.</extracomment>
        <translation>Это имя уже есть у другой быстрой ссылки. Выберите другое.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_FILENOTEXIST</source>
        <extracomment>Message: the dialog&apos;s program file is missing, or none was chosen. A sentence or two.</extracomment>
        <translation>Такого файла программы нет. Выберите файл.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DELETE_CONFORM</source>
        <extracomment>Question before a link is deleted, with the buttons IDS_OK and IDS_CANCEL. A sentence or two.</extracomment>
        <translation>Удалить выбранную быструю ссылку?</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Second button of messages. Up to about 14 characters.</extracomment>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Настройка</translation>
    </message>
    <message>
        <source>None of the loaded plug-ins has settings.</source>
        <translation>Ни у одного из загруженных модулей нет настроек.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Страницы</translation>
    </message>
    <message>
        <source>Programs start without the parameters that a link has for them.</source>
        <translation>Программы запускаются без параметров, указанных в их ссылках.</translation>
    </message>
</context>
<context>
    <name>TransitionRules</name>
    <message>
        <source>was up before the program was there</source>
        <translation>было установлено до запуска программы</translation>
    </message>
    <message>
        <source>up, waiting to be in the Internet</source>
        <extracomment>&quot;In the Internet&quot; means that the Internet can be reached.</extracomment>
        <translation>установлено, ожидание Интернета</translation>
    </message>
    <message>
        <source>up and in the Internet</source>
        <translation>установлено, Интернет доступен</translation>
    </message>
    <message>
        <source>up, and a portal wants a login</source>
        <translation>установлено, портал требует входа</translation>
    </message>
    <message>
        <source>up, but not in the Internet within 10 s</source>
        <translation>установлено, но без Интернета в течение 10 с</translation>
    </message>
    <message>
        <source>went down before it was told</source>
        <translation>разорвано до того, как о нём сообщено</translation>
    </message>
    <message>
        <source>another connection took over</source>
        <translation>его сменило другое подключение</translation>
    </message>
    <message>
        <source>down, waiting whether it comes back</source>
        <translation>разорвано, ожидание возвращения</translation>
    </message>
    <message>
        <source>down</source>
        <translation>разорвано</translation>
    </message>
    <message>
        <source>the service is gone, waiting whether it comes back</source>
        <translation>службы нет, ожидание её возвращения</translation>
    </message>
    <message>
        <source>handed over, not a new connection</source>
        <translation>передано, это не новое подключение</translation>
    </message>
    <message>
        <source>was up before sleep, not a new connection</source>
        <translation>было установлено до сна, это не новое подключение</translation>
    </message>
    <message>
        <source>outlived a restart of the service, not a new connection</source>
        <translation>пережило перезапуск службы, это не новое подключение</translation>
    </message>
    <message>
        <source>was down again when asked, not told</source>
        <extracomment>The host asks once more before it tells of a connection that came up.</extracomment>
        <translation>при проверке снова разорвано, не сообщено</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Window</source>
        <translation>Показать окно</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Vellum Connect keeps running here. Click the icon to show its window.</source>
        <translation>Vellum Connect продолжает работать здесь. Нажмите на значок, чтобы показать его окно.</translation>
    </message>
</context>
<context>
    <name>WhyWindow</name>
    <message>
        <source>What Opened, and Why</source>
        <translation>Что открылось и почему</translation>
    </message>
    <message>
        <source>What was decided about connections and links, newest first. The last %1 decisions are remembered until the program ends, and written to no file.</source>
        <translation>Решения о подключениях и ссылках, сначала новые. Последние %1 решений хранятся в памяти до конца работы программы и не записываются в файлы.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Link or Connection</source>
        <translation>Ссылка или подключение</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>Причина</translation>
    </message>
    <message>
        <source>What Was Done</source>
        <translation>Что сделано</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копировать</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Закрыть</translation>
    </message>
</context>
</TS>
