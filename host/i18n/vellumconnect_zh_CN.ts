<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CommandLine</name>
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
        <source>Print the quick links and exit. Needs no display.</source>
        <translation>输出快速链接并退出。无需显示器。</translation>
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
        <source>Follow connections of KIND: mobile (mobile broadband, the default), any (whatever has a default route) or manual (you press a button).</source>
        <translation>跟踪 KIND 类型的连接：mobile（移动宽带，默认）、any（任何有默认路由的连接）或 manual（由您按按钮）。</translation>
    </message>
    <message>
        <source>No such kind of connection: &quot;%1&quot;.</source>
        <translation>没有此连接类型：“%1”。</translation>
    </message>
</context>
<context>
    <name>CommonUtils</name>
    <message>
        <source>Only Internet addresses (http, https and ftp) are opened. This is none:</source>
        <translation>只能打开互联网地址（http、https 和 ftp）。这不是互联网地址：</translation>
    </message>
    <message>
        <source>No program could be started for this address:</source>
        <translation>无法为此地址启动任何程序：</translation>
    </message>
    <message>
        <source>Address not opened</source>
        <translation>未打开地址</translation>
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
        <source>Built without NetworkManager</source>
        <translation>构建时未包含 NetworkManager</translation>
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
        <translation>打开此项的程序报告失败：</translation>
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
    <name>LinkButtons</name>
    <message>
        <source>No quick links yet. Add some with Tools &gt; Settings.</source>
        <translation>还没有快速链接。请通过“工具 &gt; 设置”添加。</translation>
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
        <source>This program could not be started:</source>
        <translation>无法启动此程序：</translation>
    </message>
    <message>
        <source>Not opened</source>
        <translation>未打开</translation>
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
        <source>Not loaded: %1</source>
        <translation>未加载：%1</translation>
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
        <source>Close the program</source>
        <translation>关闭程序</translation>
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
</context>
<context>
    <name>MenuManager</name>
    <message>
        <source>Open %1</source>
        <translation>打开 %1</translation>
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
        <extracomment>Button beside that field: opens the choice of a file. 80 pixels: up to about 10 characters. It is low: letters that reach below the line, such as y, lose their tails.</extracomment>
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
        <translation>程序启动时打开</translation>
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
        <translation>此程序文件不存在。请选择其他文件。</translation>
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
</context>
<context>
    <name>Tray</name>
    <message>
        <source>The program goes on here. Click the icon to see its window.</source>
        <translation>程序在此继续运行。点击图标可显示其窗口。</translation>
    </message>
    <message>
        <source>Show Window</source>
        <translation>显示窗口</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
</context>
</TS>
