<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AddressProblem</name>
    <message>
        <source>This link has no address:</source>
        <translation>此链接没有地址：</translation>
    </message>
    <message>
        <source>There are blanks before or behind this address:</source>
        <translation>此地址前面或后面有空格：</translation>
    </message>
    <message>
        <source>The beginning of this address must be written in small letters:</source>
        <translation>此地址的开头必须用小写字母书写：</translation>
    </message>
    <message>
        <source>Only Internet addresses (http, https and ftp) are opened. This is not one:</source>
        <translation>只能打开互联网地址（http、https 和 ftp）。这不是互联网地址：</translation>
    </message>
    <message>
        <source>This address needs &quot;http://&quot;, &quot;https://&quot;, &quot;ftp://&quot; or &quot;www.&quot; at its beginning:</source>
        <translation>此地址的开头需要“http://”、“https://”、“ftp://”或“www.”：</translation>
    </message>
</context>
<context>
    <name>AddressQuestions</name>
    <message>
        <source>Open this address with the program for &quot;%1&quot; links?</source>
        <translation>用“%1”链接的程序打开此地址吗？</translation>
    </message>
    <message>
        <source>Unusual address</source>
        <translation>不常见的地址</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Print which links the running program opened or did not, and why, newest first, and exit.</source>
        <translation>输出正在运行的程序打开或未打开哪些链接及其原因（最新的在前）并退出。</translation>
    </message>
    <message>
        <source>No running program with the folder %1 can be asked.</source>
        <translation>没有使用文件夹 %1 的正在运行的程序可供查询。</translation>
    </message>
    <message>
        <source>Nothing was decided yet</source>
        <translation>尚未作出任何决定</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>显示此帮助并退出。</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>显示版本并退出。</translation>
    </message>
    <message>
        <source>Keep your own data in DIR.</source>
        <translation>将您自己的数据保存在 DIR 中。</translation>
    </message>
    <message>
        <source>Load the plug-ins of DIR.</source>
        <translation>加载 DIR 中的插件。</translation>
    </message>
    <message>
        <source>Show texts in the language LANG, such as en or pt_BR.</source>
        <translation>以语言 LANG（如 en 或 pt_BR）显示文本。</translation>
    </message>
    <message>
        <source>Connection manager with quick links.</source>
        <translation>带有快速链接的连接管理器。</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>意外的参数“%1”。</translation>
    </message>
    <message>
        <source>Empty value after &quot;--%1&quot;.</source>
        <translation>“--%1”后面的值为空。</translation>
    </message>
    <message>
        <source>No such kind of connection: &quot;%1&quot;.</source>
        <translation>没有此连接类型：“%1”。</translation>
    </message>
    <message>
        <source>Print the quick links and exit. Needs no graphical session.</source>
        <translation>输出快速链接并退出。无需图形会话。</translation>
    </message>
    <message>
        <source>%1 Try --help.</source>
        <translation>%1 请参阅 --help。</translation>
    </message>
    <message>
        <source>Wait in the tray without a window; where there is no tray, the window shows.</source>
        <translation>在托盘中等待而不显示窗口；没有托盘时显示窗口。</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>没有文件夹“%1”。</translation>
    </message>
    <message>
        <source>It is running already, as process %1, with the folder %2.</source>
        <translation>程序已在运行，进程 %1，文件夹 %2。</translation>
    </message>
    <message>
        <source>Watch connections of type KIND in this run, whatever the settings say: mobile (mobile broadband), any (whatever has a default route) or manual (you press a button).</source>
        <translation>不论设置如何，本次运行监视 KIND 类型的连接：mobile（移动宽带）、any（任何有默认路由的连接）或 manual（由您按按钮）。</translation>
    </message>
    <message>
        <source>There is no plug-in in the folder &quot;%1&quot;.</source>
        <translation>文件夹“%1”中没有插件。</translation>
    </message>
</context>
<context>
    <name>CommonUtils</name>
    <message>
        <source>No program could be started for this address:</source>
        <translation>无法为此地址启动任何程序：</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>确定</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Second button of messages. Up to about 14 characters.</extracomment>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>ConnectionDecisions</name>
    <message>
        <source>No links opened</source>
        <translation>未打开链接</translation>
    </message>
    <message>
        <source>Links marked for a connection open</source>
        <translation>打开标记为连接时打开的链接</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
</context>
<context>
    <name>ConnectionPage</name>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>In this run the command line says which connections count. What you choose here counts from the next start on.</source>
        <translation>本次运行由命令行决定哪些连接算数。您在此处的选择从下次启动起生效。</translation>
    </message>
    <message>
        <source>&amp;Mobile broadband</source>
        <translation>移动宽带(&amp;M)</translation>
    </message>
    <message>
        <source>An&amp;y plan</source>
        <translation>任何套餐(&amp;P)</translation>
    </message>
    <message>
        <source>Only the plans &amp;ticked here</source>
        <translation>仅此处勾选的套餐(&amp;T)</translation>
    </message>
    <message>
        <source>Not while &amp;roaming</source>
        <translation>漫游时不算(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Any connection</source>
        <translation>任何连接(&amp;A)</translation>
    </message>
    <message>
        <source>My own &amp;button</source>
        <translation>我自己的按钮(&amp;B)</translation>
    </message>
    <message>
        <source>%1 (not there now)</source>
        <translation>%1（目前不存在）</translation>
    </message>
    <message>
        <source>NetworkManager does not say which plans there are.</source>
        <translation>NetworkManager 未告知有哪些套餐。</translation>
    </message>
    <message>
        <source>While none is ticked, any plan counts.</source>
        <translation>未勾选任何套餐时，任何套餐都算数。</translation>
    </message>
    <message>
        <source>There are no mobile plans yet.</source>
        <translation>还没有移动套餐。</translation>
    </message>
</context>
<context>
    <name>ConnectionPanel</name>
    <message>
        <source>&amp;Disconnect</source>
        <translation>断开(&amp;D)</translation>
    </message>
    <message>
        <source>Co&amp;nnect</source>
        <translation>连接(&amp;N)</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>连接：</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>设备：</translation>
    </message>
    <message>
        <source>Operator:</source>
        <translation>运营商：</translation>
    </message>
    <message>
        <source>Since:</source>
        <translation>开始于：</translation>
    </message>
</context>
<context>
    <name>ConnectionTexts</name>
    <message>
        <source>%1: %2</source>
        <comment>state and name of the connection</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>正在连接…</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>This network asks for a login first.</source>
        <translation>此网络要求先登录。</translation>
    </message>
    <message>
        <source>The Internet is out of reach.</source>
        <translation>无法访问互联网。</translation>
    </message>
    <message>
        <source>Press Connect when your connection is up.</source>
        <translation>您的连接建立后，请按“连接”。</translation>
    </message>
    <message>
        <source>Waiting for mobile broadband.</source>
        <translation>正在等待移动宽带。</translation>
    </message>
    <message>
        <source>Waiting for a connection.</source>
        <translation>正在等待连接。</translation>
    </message>
    <message>
        <source>before this program started</source>
        <translation>此程序启动之前</translation>
    </message>
    <message>
        <source>NetworkManager is not running</source>
        <translation>NetworkManager 未运行</translation>
    </message>
    <message>
        <source>Online by Ethernet; waiting for mobile broadband.</source>
        <translation>已通过以太网联网；正在等待移动宽带。</translation>
    </message>
    <message>
        <source>Online by Wi-Fi; waiting for mobile broadband.</source>
        <translation>已通过 Wi-Fi 联网；正在等待移动宽带。</translation>
    </message>
    <message>
        <source>Online by another connection; waiting for mobile broadband.</source>
        <translation>已通过其他连接联网；正在等待移动宽带。</translation>
    </message>
    <message>
        <source>Roaming; waiting for your own network.</source>
        <translation>正在漫游；正在等待您自己的网络。</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>正在检查…</translation>
    </message>
</context>
<context>
    <name>DesktopOpener</name>
    <message>
        <source>There is no such file or folder:</source>
        <translation>没有此文件或文件夹：</translation>
    </message>
    <message>
        <source>No program was found that opens this:</source>
        <translation>找不到可打开此项的程序：</translation>
    </message>
    <message>
        <source>The program that opens this reported a failure:</source>
        <translation>打开此项的程序报告了错误：</translation>
    </message>
    <message>
        <source>The desktop could not open this:</source>
        <translation>桌面环境无法打开此项：</translation>
    </message>
    <message>
        <source>Opening this needs the program &quot;xdg-open&quot;, which could not be started:</source>
        <translation>打开此项需要程序“xdg-open”，但无法启动该程序：</translation>
    </message>
</context>
<context>
    <name>DisplayChoice</name>
    <message>
        <source>On Wayland the package %1 is needed, which is not installed.</source>
        <translation>在 Wayland 上需要软件包 %1，但它未安装。</translation>
    </message>
    <message>
        <source>There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set.</source>
        <translation>没有显示器：DISPLAY 和 WAYLAND_DISPLAY 均未设置。</translation>
    </message>
    <message>
        <source>QT_QPA_PLATFORM asks for X, but DISPLAY is not set.</source>
        <translation>QT_QPA_PLATFORM 要求使用 X，但未设置 DISPLAY。</translation>
    </message>
    <message>
        <source>The display &quot;%1&quot; does not answer.</source>
        <translation>显示器“%1”没有响应。</translation>
    </message>
</context>
<context>
    <name>EditLinkButton</name>
    <message>
        <source>&amp;Edit Links</source>
        <translation>编辑链接(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Edit Link</source>
        <translation>编辑链接(&amp;E)</translation>
    </message>
</context>
<context>
    <name>EntryRun</name>
    <message>
        <source>The application of this could not be started:</source>
        <translation>无法启动与此对应的应用程序：</translation>
    </message>
</context>
<context>
    <name>FailureList</name>
    <message>
        <source>Not opened</source>
        <translation>未打开</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>还有 %n 项</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>name of a link and its address</comment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>FixedReason</name>
    <message>
        <source>Fixed by the administrator of this computer</source>
        <translation>由此计算机的管理员固定</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Start with the session</source>
        <translation>随会话启动</translation>
    </message>
    <message>
        <source>Vellum Connect then waits in the tray. Where the desktop has no tray, its window shows.</source>
        <translation>Vellum Connect 会在托盘中等待。桌面没有托盘时显示其窗口。</translation>
    </message>
    <message>
        <source>This choice cannot be kept in %1.</source>
        <translation>无法将此选择保存到 %1。</translation>
    </message>
</context>
<context>
    <name>GuardMessages</name>
    <message>
        <source>The file with your quick links is missing.</source>
        <translation>您的快速链接文件不存在。</translation>
    </message>
    <message>
        <source>The file with your quick links is empty.</source>
        <translation>您的快速链接文件是空的。</translation>
    </message>
    <message>
        <source>The file with your quick links is damaged.</source>
        <translation>您的快速链接文件已损坏。</translation>
    </message>
    <message>
        <source>The file with your quick links is far too large.</source>
        <translation>您的快速链接文件过大。</translation>
    </message>
    <message>
        <source>The file with your quick links cannot be read.</source>
        <translation>无法读取您的快速链接文件。</translation>
    </message>
    <message>
        <source>In the place of the file with your quick links there is something that is no file.</source>
        <translation>快速链接文件所在的位置上有一个不是文件的东西。</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>磁盘已满。</translation>
    </message>
    <message>
        <source>You are not allowed to write to its folder.</source>
        <translation>您无权写入它所在的文件夹。</translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are in place again.</source>
        <translation>
            <numerusform>%1 的 %n 个链接已恢复。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 can be brought back.</source>
        <translation>
            <numerusform>可以恢复 %1 的 %n 个链接。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are kept, but could not be put in place.</source>
        <translation>
            <numerusform>%1 的 %n 个链接已保留，但无法恢复。</numerusform>
        </translation>
    </message>
    <message>
        <source>No earlier state of the links is known.</source>
        <translation>没有已知的早期链接状态。</translation>
    </message>
    <message>
        <source>What was found there was kept:</source>
        <translation>原有内容已保留在：</translation>
    </message>
    <message>
        <source>&amp;Bring Back</source>
        <translation>恢复(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Leave Out</source>
        <translation>不恢复(&amp;L)</translation>
    </message>
    <message>
        <source>The change of your quick links could not be saved.</source>
        <translation>无法保存对快速链接的更改。</translation>
    </message>
    <message>
        <source>The quick links were changed by another program. Do you want to load them, or to keep yours?</source>
        <translation>快速链接已被其他程序更改。要加载它们，还是保留您的链接？</translation>
    </message>
    <message>
        <source>&amp;Load Them</source>
        <translation>加载(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>保留我的(&amp;K)</translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation>快速链接</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>重试(&amp;T)</translation>
    </message>
    <message>
        <source>The quick links that were prepared for you could not be put in place. The program tries again at its next start.</source>
        <translation>无法放置为您准备的快速链接。程序将在下次启动时重试。</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>Added: %1</source>
        <translation>已添加：%1</translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation>已移除：%1</translation>
    </message>
    <message>
        <source>Edited: %1</source>
        <translation>已编辑：%1</translation>
    </message>
    <message>
        <source>Moved: %1</source>
        <translation>已移动：%1</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>另外 %n 个</numerusform>
        </translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>%1 (now)</source>
        <translation>%1（现在）</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>What Changed</source>
        <translation>变更内容</translation>
    </message>
    <message>
        <source>&amp;Go Back to This</source>
        <translation>回到此状态(&amp;G)</translation>
    </message>
    <message>
        <source>The states that your quick links were in, newest first; the last %1 are kept.</source>
        <translation>快速链接的各个状态，最新的在前；保留最近 %1 个。</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>The program started</source>
        <translation>程序已启动</translation>
    </message>
    <message>
        <source>A connection came up</source>
        <translation>连接已建立</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>系统语言(&amp;S)</translation>
    </message>
</context>
<context>
    <name>LinkAddresses</name>
    <message>
        <source>of several marked web addresses only the lowest opens</source>
        <translation>多个已标记的网址中只打开最下面的一个</translation>
    </message>
</context>
<context>
    <name>LinkButtons</name>
    <message>
        <source>No quick links yet. Add some with Tools &gt; Settings.</source>
        <translation>还没有快速链接。请通过“工具 &gt; 设置”添加。</translation>
    </message>
    <message>
        <source>No quick link has this in its name.</source>
        <translation>没有名称中包含此内容的快速链接。</translation>
    </message>
</context>
<context>
    <name>LinkOpener</name>
    <message>
        <source>There is no such file or folder, or you are not allowed to see it:</source>
        <translation>没有此文件或文件夹，或者您无权查看：</translation>
    </message>
    <message>
        <source>You are not allowed to open this:</source>
        <translation>您无权打开此项：</translation>
    </message>
    <message>
        <source>This is no valid address:</source>
        <translation>这不是有效的地址：</translation>
    </message>
    <message>
        <source>Addresses that are themselves a script or a page are never opened:</source>
        <translation>本身就是脚本或网页的地址永远不会打开：</translation>
    </message>
    <message>
        <source>This link leads nowhere: it has no path.</source>
        <translation>此链接没有目标：没有路径。</translation>
    </message>
    <message>
        <source>The path of an application or file must begin with &quot;/&quot;:</source>
        <translation>应用程序或文件的路径必须以“/”开头：</translation>
    </message>
    <message>
        <source>Too many questions wait for an answer to ask about this address, too:</source>
        <translation>等待回答的问题太多，无法再询问此地址：</translation>
    </message>
    <message>
        <source>This is too long to be opened:</source>
        <translation>此项太长，无法打开：</translation>
    </message>
</context>
<context>
    <name>LinkTable</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>插件</translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation>没有快速链接</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;Why…</source>
        <translation>为什么(&amp;W)…</translation>
    </message>
    <message>
        <source>See which links opened or did not, and why</source>
        <translation>查看哪些链接已打开或未打开及其原因</translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation>快速链接</translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation>没有快速链接</translation>
    </message>
    <message>
        <source>&amp;Connection</source>
        <translation>连接(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Quick Links</source>
        <translation>快速链接(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>设置(&amp;S)…</translation>
    </message>
    <message>
        <source>Add, change and order quick links</source>
        <translation>添加、更改和排列快速链接</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>状态栏(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About Vellum Connect</source>
        <translation>关于 Vellum Connect(&amp;A)</translation>
    </message>
    <message>
        <source>About Vellum Connect</source>
        <translation>关于 Vellum Connect</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Vellum Connect %1&lt;/h3&gt;&lt;p&gt;Connection manager with quick links.&lt;/p&gt;&lt;p&gt;Free software under the MIT licence.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Vellum Connect %1&lt;/h3&gt;&lt;p&gt;带有快速链接的连接管理器。&lt;/p&gt;&lt;p&gt;采用 MIT 许可证的自由软件。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>Take back the last change of the quick links</source>
        <translation>撤销对快速链接的上一次更改</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Make the change again that was taken back</source>
        <translation>重新执行已撤销的更改</translation>
    </message>
    <message>
        <source>&amp;Plug-ins Left Out…</source>
        <translation>未加载的插件(&amp;P)…</translation>
    </message>
    <message>
        <source>See which plug-ins crashed or hung, and load them again</source>
        <translation>查看哪些插件崩溃或挂起，并重新加载</translation>
    </message>
    <message>
        <source>Plug-ins not loaded: %1</source>
        <translation>未加载的插件：%1</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>退出程序</translation>
    </message>
    <message>
        <source>&amp;Find a Quick Link</source>
        <translation>查找快速链接(&amp;F)</translation>
    </message>
    <message>
        <source>Show only the quick links with a name that you type</source>
        <translation>仅显示名称与所输入内容相符的快速链接</translation>
    </message>
    <message>
        <source>Find a quick link</source>
        <translation>查找快速链接</translation>
    </message>
</context>
<context>
    <name>MenuManager</name>
    <message>
        <source>You picked it</source>
        <translation>由您选择</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>打开 %1</translation>
    </message>
</context>
<context>
    <name>OfferLine</name>
    <message>
        <source>&amp;Put Back</source>
        <translation>恢复(&amp;P)</translation>
    </message>
    <message>
        <source>Leave &amp;As It Is</source>
        <translation>保持现状(&amp;A)</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message>
        <source>Opened</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>You were asked first</source>
        <translation>先询问了您</translation>
    </message>
    <message>
        <source>Not opened: %1</source>
        <translation>未打开：%1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>失败：%1</translation>
    </message>
    <message>
        <source>Unknown link</source>
        <translation>未知链接</translation>
    </message>
    <message>
        <source>Not opened: you did not agree</source>
        <translation>未打开：您未同意</translation>
    </message>
</context>
<context>
    <name>OpeningCause</name>
    <message>
        <source>A plug-in asked for it</source>
        <translation>由插件请求</translation>
    </message>
</context>
<context>
    <name>PluginMessages</name>
    <message>
        <source>This was not loaded, because another user owns %1:</source>
        <translation>由于 %1 属于其他用户，未加载：</translation>
    </message>
    <message>
        <source>This was not loaded, because other users may change %1:</source>
        <translation>由于其他用户可以更改 %1，未加载：</translation>
    </message>
    <message>
        <source>This was not loaded, because it is not known who may change %1:</source>
        <translation>由于不知道谁可以更改 %1，未加载：</translation>
    </message>
    <message>
        <source>This was not loaded, because it passes itself off as the quick links of this program:</source>
        <translation>由于它冒充本程序的快速链接，未加载：</translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was starting, and was left out.</source>
        <translation>插件 %1 在启动时没有响应，未加载。</translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish starting last time (it crashed or hung), and was left out.</source>
        <translation>插件 %1 上次没有完成启动（崩溃或挂起），未加载。</translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was ending, and was left out.</source>
        <translation>插件 %1 在结束时没有响应，未加载。</translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish ending last time (it crashed or hung), and was left out.</source>
        <translation>插件 %1 上次没有完成结束（崩溃或挂起），未加载。</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>插件</translation>
    </message>
    <message>
        <source>&amp;Load at the Next Start</source>
        <translation>下次启动时加载(&amp;L)</translation>
    </message>
    <message>
        <source>Leave &amp;Out</source>
        <translation>不加载(&amp;O)</translation>
    </message>
</context>
<context>
    <name>ProgramEnd</name>
    <message>
        <source>it used memory that it does not have</source>
        <translation>它使用了不属于它的内存</translation>
    </message>
    <message>
        <source>it noticed a mistake of its own</source>
        <translation>它发现了自身的错误</translation>
    </message>
    <message>
        <source>it divided by zero or the like</source>
        <translation>它除以零或进行了类似的运算</translation>
    </message>
    <message>
        <source>it came to an instruction that the processor does not know</source>
        <translation>它遇到了处理器不认识的指令</translation>
    </message>
    <message>
        <source>it asked the system for what is forbidden</source>
        <translation>它向系统请求了被禁止的操作</translation>
    </message>
    <message>
        <source>This program ended at once, with the error code %1:</source>
        <translation>此程序立即结束，错误代码为 %1：</translation>
    </message>
    <message>
        <source>This program crashed (signal %1, %2):</source>
        <translation>此程序崩溃了（信号 %1，%2）：</translation>
    </message>
    <message>
        <source>This program was ended by the system or by another program (signal %1):</source>
        <translation>此程序被系统或其他程序结束（信号 %1）：</translation>
    </message>
</context>
<context>
    <name>ProgramRun</name>
    <message>
        <source>This program could not be started:</source>
        <translation>无法启动此程序：</translation>
    </message>
</context>
<context>
    <name>PutBackOffer</name>
    <message>
        <source>&quot;%1&quot; no longer opens by itself.</source>
        <translation>“%1”不再自动打开。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when connected.</source>
        <translation>连接后不再打开“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer has a recipient.</source>
        <translation>“%1”不再有收件人。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when Vellum Connect starts.</source>
        <translation>Vellum Connect 启动时不再打开“%1”。</translation>
    </message>
</context>
<context>
    <name>QuickLinkUIPlugin</name>
    <message>
        <source>IDS_SETTING_NAME</source>
        <extracomment>Caption of the page in the list of the settings dialog. Up to about 20 characters.</extracomment>
        <translation>快速链接</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TAB</source>
        <extracomment>Title of the only tab of the settings page, above the table. Up to about 30 characters (the tab widget is 280 pixels wide).</extracomment>
        <translation>快速链接</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_ORDER</source>
        <extracomment>Label above the table of the settings page. Up to about 35 characters (250 pixels). Labels are low: a capital letter with an accent, such as an umlaut, loses it with Qt 6.</extracomment>
        <translation>链接按此顺序打开：</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME</source>
        <extracomment>Header of the table&apos;s first column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>名称</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TYPE</source>
        <extracomment>Header of the table&apos;s second column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>类型</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_UP</source>
        <extracomment>Button below the table: moves the link up. Up to about 14 characters; the letter after the ampersand must differ from those of the page&apos;s other buttons.</extracomment>
        <translation>上移(&amp;U)</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DOWN</source>
        <extracomment>Button below the table: moves the link down. As IDS_LINK_SETTING_UP.</extracomment>
        <translation>下移(&amp;D)</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW</source>
        <extracomment>Button beside the table: opens the dialog for a new link. Up to about 12 characters; with an ampersand as IDS_LINK_SETTING_UP.</extracomment>
        <translation>新建(&amp;N)…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT</source>
        <extracomment>Button beside the table: opens the dialog that changes the chosen link. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>编辑(&amp;E)…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DEL</source>
        <extracomment>Button beside the table: deletes the chosen link after a question. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>删除(&amp;L)</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TITLE</source>
        <extracomment>Title of the dialog for a new link. Up to about 16 characters: most desktops put the program&apos;s name behind it.</extracomment>
        <translation>新建快速链接</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT_TITLE</source>
        <extracomment>Title of the dialog that changes a link. As IDS_LINK_SETTING_NEW_TITLE.</extracomment>
        <translation>编辑快速链接</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_NAME</source>
        <extracomment>Label of the dialog&apos;s name field. 51 pixels: about 6 characters.</extracomment>
        <translation>名称：</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TYPE</source>
        <extracomment>Label of the dialog&apos;s choice of type. 70 pixels: about 9 characters.</extracomment>
        <translation>类型：</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_APPLICATION</source>
        <extracomment>Type of a link that starts a program: in the dialog&apos;s choice and on its tab, and in the table. Up to about 13 characters (100 pixels).</extracomment>
        <translation>应用程序</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_E-MAIL</source>
        <extracomment>Type of a link that opens the mail program. As IDS_LINK_TYPE_APPLICATION.</extracomment>
        <translation>电子邮件</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_INTERNET</source>
        <extracomment>Type of a link that opens an Internet address. As IDS_LINK_TYPE_APPLICATION.</extracomment>
        <translation>互联网</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_URL</source>
        <extracomment>Label above the field with the path of the program. Up to about 25 characters (184 pixels).</extracomment>
        <translation>程序文件：</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_BROWSER</source>
        <extracomment>Button beside that field: opens the choice of a file. 80 pixels: up to about 10 characters.</extracomment>
        <translation>浏览…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_PARA</source>
        <extracomment>Label above the field with the program&apos;s parameters. Up to about 35 characters (250 pixels).</extracomment>
        <translation>参数：</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_IE_URL</source>
        <extracomment>Label above the field with the Internet address. Up to about 35 characters (250 pixels).</extracomment>
        <translation>地址：</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_EMAIL_URL</source>
        <extracomment>What an e-mail link does; the only text on its panel. Up to about 35 characters (250 pixels), one line.</extracomment>
        <translation>打开您的邮件程序。</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK_STARTUP</source>
        <extracomment>Check box of the dialog. Up to about 32 characters (230 pixels).</extracomment>
        <translation>Vellum Connect 启动时打开</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK</source>
        <extracomment>Check box of the dialog: opens the link when a data connection comes up. Up to about 32 characters (230 pixels).</extracomment>
        <translation>连接后打开</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_OK</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>确定</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CANCEL</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>取消</translation>
    </message>
    <message>
        <source>IDS_LINK_PROMPT</source>
        <extracomment>Title of every message about quick links. Up to about 30 characters.</extracomment>
        <translation>快速链接</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_INVALID_URL</source>
        <extracomment>Message: the address of the link that was picked is none. A sentence or two; keep what stands in quotation marks.</extracomment>
        <translation>无法打开此地址。地址中必须包含“http://”、“https://”、“ftp”或“www.”。</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME_SAME</source>
        <extracomment>Message: the dialog&apos;s name is in use. A sentence or two.</extracomment>
        <translation>已有快速链接使用此名称。请选择其他名称。</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_FILENOTEXIST</source>
        <extracomment>Message: the dialog&apos;s program file is missing, or none was chosen. A sentence or two.</extracomment>
        <translation>没有此程序文件。请选择一个文件。</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DELETE_CONFORM</source>
        <extracomment>Question before a link is deleted, with the buttons IDS_OK and IDS_CANCEL. A sentence or two.</extracomment>
        <translation>要删除所选的快速链接吗？</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>确定</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Second button of messages. Up to about 14 characters.</extracomment>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>None of the loaded plug-ins has settings.</source>
        <translation>已加载的插件都没有设置项。</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Programs start without the parameters that a link has for them.</source>
        <translation>程序启动时不会使用其链接中的参数。</translation>
    </message>
</context>
<context>
    <name>TransitionRules</name>
    <message>
        <source>was up before the program was there</source>
        <translation>在程序启动之前已连接</translation>
    </message>
    <message>
        <source>up, waiting to be in the Internet</source>
        <extracomment>&quot;In the Internet&quot; means that the Internet can be reached.</extracomment>
        <translation>已连接，正在等待互联网</translation>
    </message>
    <message>
        <source>up and in the Internet</source>
        <translation>已连接，可以访问互联网</translation>
    </message>
    <message>
        <source>up, and a portal wants a login</source>
        <translation>已连接，门户要求登录</translation>
    </message>
    <message>
        <source>up, but not in the Internet within 10 s</source>
        <translation>已连接，但 10 秒内无法访问互联网</translation>
    </message>
    <message>
        <source>went down before it was told</source>
        <translation>在通知之前已断开</translation>
    </message>
    <message>
        <source>another connection took over</source>
        <translation>由另一个连接接替</translation>
    </message>
    <message>
        <source>down, waiting whether it comes back</source>
        <translation>已断开，等待恢复</translation>
    </message>
    <message>
        <source>down</source>
        <translation>已断开</translation>
    </message>
    <message>
        <source>the service is gone, waiting whether it comes back</source>
        <translation>服务不可用，等待恢复</translation>
    </message>
    <message>
        <source>handed over, not a new connection</source>
        <translation>已切换，不是新连接</translation>
    </message>
    <message>
        <source>was up before sleep, not a new connection</source>
        <translation>休眠前已连接，不是新连接</translation>
    </message>
    <message>
        <source>outlived a restart of the service, not a new connection</source>
        <translation>服务重启后仍保持，不是新连接</translation>
    </message>
    <message>
        <source>was down again when asked, not told</source>
        <extracomment>The host asks once more before it tells of a connection that came up.</extracomment>
        <translation>再次查询时已断开，未通知</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Window</source>
        <translation>显示窗口</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Vellum Connect keeps running here. Click the icon to show its window.</source>
        <translation>Vellum Connect 在此继续运行。点击图标可显示其窗口。</translation>
    </message>
</context>
<context>
    <name>WhyWindow</name>
    <message>
        <source>What Opened, and Why</source>
        <translation>打开了什么及其原因</translation>
    </message>
    <message>
        <source>What was decided about connections and links, newest first. The last %1 decisions are remembered until the program ends, and written to no file.</source>
        <translation>关于连接和链接的决定，最新的在前。最近 %1 个决定在程序结束前保留在内存中，不写入任何文件。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Link or Connection</source>
        <translation>链接或连接</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>What Was Done</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>关闭(&amp;L)</translation>
    </message>
</context>
</TS>
