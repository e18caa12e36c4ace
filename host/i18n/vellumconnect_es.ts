<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AddressProblem</name>
    <message>
        <source>This link has no address:</source>
        <translation>Este enlace no tiene dirección:</translation>
    </message>
    <message>
        <source>There are blanks before or behind this address:</source>
        <translation>Hay espacios delante o detrás de esta dirección:</translation>
    </message>
    <message>
        <source>The beginning of this address must be written in small letters:</source>
        <translation>El comienzo de esta dirección debe escribirse en minúsculas:</translation>
    </message>
    <message>
        <source>Only Internet addresses (http, https and ftp) are opened. This is not one:</source>
        <translation>Solo se abren direcciones de Internet (http, https y ftp). Esta no lo es:</translation>
    </message>
    <message>
        <source>This address needs &quot;http://&quot;, &quot;https://&quot;, &quot;ftp://&quot; or &quot;www.&quot; at its beginning:</source>
        <translation>Esta dirección necesita «http://», «https://», «ftp://» o «www.» al principio:</translation>
    </message>
</context>
<context>
    <name>AddressQuestions</name>
    <message>
        <source>Open this address with the program for &quot;%1&quot; links?</source>
        <translation>¿Abrir esta dirección con el programa para enlaces «%1»?</translation>
    </message>
    <message>
        <source>Unusual address</source>
        <translation>Dirección inusual</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Print which links the running program opened or did not, and why, newest first, and exit.</source>
        <translation>Muestra qué enlaces abrió o no el programa en ejecución, y por qué, primero lo más reciente, y sale.</translation>
    </message>
    <message>
        <source>No running program with the folder %1 can be asked.</source>
        <translation>No hay ningún programa en ejecución con la carpeta %1 al que preguntar.</translation>
    </message>
    <message>
        <source>Nothing was decided yet</source>
        <translation>Aún no se ha decidido nada</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Muestra esta ayuda y sale.</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>Muestra la versión y sale.</translation>
    </message>
    <message>
        <source>Keep your own data in DIR.</source>
        <translation>Guarda sus datos en DIR.</translation>
    </message>
    <message>
        <source>Load the plug-ins of DIR.</source>
        <translation>Carga los complementos de DIR.</translation>
    </message>
    <message>
        <source>Show texts in the language LANG, such as en or pt_BR.</source>
        <translation>Muestra los textos en el idioma LANG, por ejemplo en o pt_BR.</translation>
    </message>
    <message>
        <source>Connection manager with quick links.</source>
        <translation>Gestor de conexiones con enlaces rápidos.</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>Argumento inesperado «%1».</translation>
    </message>
    <message>
        <source>Empty value after &quot;--%1&quot;.</source>
        <translation>Valor vacío después de «--%1».</translation>
    </message>
    <message>
        <source>No such kind of connection: &quot;%1&quot;.</source>
        <translation>No existe este tipo de conexión: «%1».</translation>
    </message>
    <message>
        <source>Print the quick links and exit. Needs no graphical session.</source>
        <translation>Muestra los enlaces rápidos y sale. No necesita una sesión gráfica.</translation>
    </message>
    <message>
        <source>%1 Try --help.</source>
        <translation>%1 Pruebe --help.</translation>
    </message>
    <message>
        <source>Wait in the tray without a window; where there is no tray, the window shows.</source>
        <translation>Espera en la bandeja sin ventana; si no hay bandeja, se muestra la ventana.</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>No existe la carpeta «%1».</translation>
    </message>
    <message>
        <source>It is running already, as process %1, with the folder %2.</source>
        <translation>Ya se está ejecutando, como proceso %1, con la carpeta %2.</translation>
    </message>
    <message>
        <source>Watch connections of type KIND in this run, whatever the settings say: mobile (mobile broadband), any (whatever has a default route) or manual (you press a button).</source>
        <translation>Vigila en esta ejecución las conexiones de tipo KIND, diga lo que diga la configuración: mobile (banda ancha móvil), any (cualquiera con una ruta predeterminada) o manual (con un botón).</translation>
    </message>
    <message>
        <source>There is no plug-in in the folder &quot;%1&quot;.</source>
        <translation>No hay ningún complemento en la carpeta «%1».</translation>
    </message>
</context>
<context>
    <name>CommonUtils</name>
    <message>
        <source>No program could be started for this address:</source>
        <translation>No se pudo iniciar ningún programa para esta dirección:</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Second button of messages. Up to about 14 characters.</extracomment>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>ConnectionDecisions</name>
    <message>
        <source>No links opened</source>
        <translation>No se abrieron enlaces</translation>
    </message>
    <message>
        <source>Links marked for a connection open</source>
        <translation>Se abren los enlaces marcados para una conexión</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
</context>
<context>
    <name>ConnectionPage</name>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>In this run the command line says which connections count. What you choose here counts from the next start on.</source>
        <translation>En esta ejecución la línea de órdenes decide qué conexiones cuentan. Lo que elija aquí cuenta a partir del próximo inicio.</translation>
    </message>
    <message>
        <source>&amp;Mobile broadband</source>
        <translation>Banda ancha &amp;móvil</translation>
    </message>
    <message>
        <source>An&amp;y plan</source>
        <translation>Cualquier &amp;plan</translation>
    </message>
    <message>
        <source>Only the plans &amp;ticked here</source>
        <translation>&amp;Solo los planes marcados aquí</translation>
    </message>
    <message>
        <source>Not while &amp;roaming</source>
        <translation>No en &amp;itinerancia</translation>
    </message>
    <message>
        <source>&amp;Any connection</source>
        <translation>Cualquier cone&amp;xión</translation>
    </message>
    <message>
        <source>My own &amp;button</source>
        <translation>Mi propio &amp;botón</translation>
    </message>
    <message>
        <source>%1 (not there now)</source>
        <translation>%1 (no está ahora)</translation>
    </message>
    <message>
        <source>NetworkManager does not say which plans there are.</source>
        <translation>NetworkManager no dice qué planes hay.</translation>
    </message>
    <message>
        <source>While none is ticked, any plan counts.</source>
        <translation>Mientras no se marque ninguno, cuenta cualquier plan.</translation>
    </message>
    <message>
        <source>There are no mobile plans yet.</source>
        <translation>Todavía no hay planes móviles.</translation>
    </message>
</context>
<context>
    <name>ConnectionPanel</name>
    <message>
        <source>&amp;Disconnect</source>
        <translation>&amp;Desconectar</translation>
    </message>
    <message>
        <source>Co&amp;nnect</source>
        <translation>C&amp;onectar</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>Conexión:</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>Dispositivo:</translation>
    </message>
    <message>
        <source>Operator:</source>
        <translation>Operador:</translation>
    </message>
    <message>
        <source>Since:</source>
        <translation>Desde:</translation>
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
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>No conectado</translation>
    </message>
    <message>
        <source>This network asks for a login first.</source>
        <translation>Esta red pide antes iniciar sesión.</translation>
    </message>
    <message>
        <source>The Internet is out of reach.</source>
        <translation>No se puede acceder a Internet.</translation>
    </message>
    <message>
        <source>Press Connect when your connection is up.</source>
        <translation>Pulse «Conectar» cuando su conexión esté activa.</translation>
    </message>
    <message>
        <source>Waiting for mobile broadband.</source>
        <translation>Esperando la banda ancha móvil.</translation>
    </message>
    <message>
        <source>Waiting for a connection.</source>
        <translation>Esperando una conexión.</translation>
    </message>
    <message>
        <source>before this program started</source>
        <translation>antes de iniciarse este programa</translation>
    </message>
    <message>
        <source>NetworkManager is not running</source>
        <translation>NetworkManager no está en ejecución</translation>
    </message>
    <message>
        <source>Online by Ethernet; waiting for mobile broadband.</source>
        <translation>En línea por Ethernet; esperando la banda ancha móvil.</translation>
    </message>
    <message>
        <source>Online by Wi-Fi; waiting for mobile broadband.</source>
        <translation>En línea por Wi-Fi; esperando la banda ancha móvil.</translation>
    </message>
    <message>
        <source>Online by another connection; waiting for mobile broadband.</source>
        <translation>En línea por otra conexión; esperando la banda ancha móvil.</translation>
    </message>
    <message>
        <source>Roaming; waiting for your own network.</source>
        <translation>En itinerancia; esperando su propia red.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Comprobando…</translation>
    </message>
</context>
<context>
    <name>DesktopOpener</name>
    <message>
        <source>There is no such file or folder:</source>
        <translation>No existe este archivo o carpeta:</translation>
    </message>
    <message>
        <source>No program was found that opens this:</source>
        <translation>No se encontró ningún programa que abra esto:</translation>
    </message>
    <message>
        <source>The program that opens this reported a failure:</source>
        <translation>El programa que abre esto informó de un error:</translation>
    </message>
    <message>
        <source>The desktop could not open this:</source>
        <translation>El escritorio no pudo abrir esto:</translation>
    </message>
    <message>
        <source>Opening this needs the program &quot;xdg-open&quot;, which could not be started:</source>
        <translation>Para abrir esto se necesita el programa «xdg-open», que no se pudo iniciar:</translation>
    </message>
</context>
<context>
    <name>DisplayChoice</name>
    <message>
        <source>On Wayland the package %1 is needed, which is not installed.</source>
        <translation>En Wayland hace falta el paquete %1, que no está instalado.</translation>
    </message>
    <message>
        <source>There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set.</source>
        <translation>No hay pantalla: no se ha definido ni DISPLAY ni WAYLAND_DISPLAY.</translation>
    </message>
    <message>
        <source>QT_QPA_PLATFORM asks for X, but DISPLAY is not set.</source>
        <translation>QT_QPA_PLATFORM pide X, pero no se ha definido DISPLAY.</translation>
    </message>
    <message>
        <source>The display &quot;%1&quot; does not answer.</source>
        <translation>La pantalla «%1» no responde.</translation>
    </message>
</context>
<context>
    <name>EditLinkButton</name>
    <message>
        <source>&amp;Edit Links</source>
        <translation>&amp;Editar enlaces</translation>
    </message>
    <message>
        <source>&amp;Edit Link</source>
        <translation>&amp;Editar enlace</translation>
    </message>
</context>
<context>
    <name>EntryRun</name>
    <message>
        <source>The application of this could not be started:</source>
        <translation>No se pudo iniciar la aplicación de esta entrada:</translation>
    </message>
</context>
<context>
    <name>FailureList</name>
    <message>
        <source>Not opened</source>
        <translation>No abierto</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>y %n más</numerusform>
            <numerusform>y %n más</numerusform>
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
        <translation>Fijado por el administrador de este equipo</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Start with the session</source>
        <translation>Iniciar con la sesión</translation>
    </message>
    <message>
        <source>Vellum Connect then waits in the tray. Where the desktop has no tray, its window shows.</source>
        <translation>Vellum Connect espera entonces en la bandeja. Si el escritorio no tiene bandeja, se muestra su ventana.</translation>
    </message>
    <message>
        <source>This choice cannot be kept in %1.</source>
        <translation>No se puede guardar esta elección en %1.</translation>
    </message>
</context>
<context>
    <name>GuardMessages</name>
    <message>
        <source>The file with your quick links is missing.</source>
        <translation>Falta el archivo con sus enlaces rápidos.</translation>
    </message>
    <message>
        <source>The file with your quick links is empty.</source>
        <translation>El archivo con sus enlaces rápidos está vacío.</translation>
    </message>
    <message>
        <source>The file with your quick links is damaged.</source>
        <translation>El archivo con sus enlaces rápidos está dañado.</translation>
    </message>
    <message>
        <source>The file with your quick links is far too large.</source>
        <translation>El archivo con sus enlaces rápidos es demasiado grande.</translation>
    </message>
    <message>
        <source>The file with your quick links cannot be read.</source>
        <translation>No se puede leer el archivo con sus enlaces rápidos.</translation>
    </message>
    <message>
        <source>In the place of the file with your quick links there is something that is no file.</source>
        <translation>En el lugar del archivo con sus enlaces rápidos hay algo que no es un archivo.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>El disco está lleno.</translation>
    </message>
    <message>
        <source>You are not allowed to write to its folder.</source>
        <translation>No tiene permiso para escribir en su carpeta.</translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are in place again.</source>
        <translation>
            <numerusform>El enlace del %1 está de nuevo en su lugar.</numerusform>
            <numerusform>Los %n enlaces del %1 están de nuevo en su lugar.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 can be brought back.</source>
        <translation>
            <numerusform>El enlace del %1 se puede recuperar.</numerusform>
            <numerusform>Los %n enlaces del %1 se pueden recuperar.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are kept, but could not be put in place.</source>
        <translation>
            <numerusform>El enlace del %1 está guardado, pero no se pudo poner en su lugar.</numerusform>
            <numerusform>Los %n enlaces del %1 están guardados, pero no se pudieron poner en su lugar.</numerusform>
        </translation>
    </message>
    <message>
        <source>No earlier state of the links is known.</source>
        <translation>No se conoce ningún estado anterior de los enlaces.</translation>
    </message>
    <message>
        <source>What was found there was kept:</source>
        <translation>Lo que había allí se ha guardado:</translation>
    </message>
    <message>
        <source>&amp;Bring Back</source>
        <translation>&amp;Recuperar</translation>
    </message>
    <message>
        <source>&amp;Leave Out</source>
        <translation>&amp;Dejar fuera</translation>
    </message>
    <message>
        <source>The change of your quick links could not be saved.</source>
        <translation>No se pudo guardar el cambio de sus enlaces rápidos.</translation>
    </message>
    <message>
        <source>The quick links were changed by another program. Do you want to load them, or to keep yours?</source>
        <translation>Otro programa ha cambiado los enlaces rápidos. ¿Desea cargarlos o conservar los suyos?</translation>
    </message>
    <message>
        <source>&amp;Load Them</source>
        <translation>Car&amp;garlos</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>&amp;Conservar los míos</translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation>Enlaces rápidos</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Intentar de nuevo</translation>
    </message>
    <message>
        <source>The quick links that were prepared for you could not be put in place. The program tries again at its next start.</source>
        <translation>No se pudieron poner en su lugar los enlaces rápidos preparados para usted. El programa volverá a intentarlo la próxima vez que se inicie.</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>Added: %1</source>
        <translation>Añadido: %1</translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation>Quitado: %1</translation>
    </message>
    <message>
        <source>Edited: %1</source>
        <translation>Editado: %1</translation>
    </message>
    <message>
        <source>Moved: %1</source>
        <translation>Movido: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n más</numerusform>
            <numerusform>%n más</numerusform>
        </translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>%1 (now)</source>
        <translation>%1 (ahora)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Enlaces</translation>
    </message>
    <message>
        <source>What Changed</source>
        <translation>Qué cambió</translation>
    </message>
    <message>
        <source>&amp;Go Back to This</source>
        <translation>&amp;Volver a este</translation>
    </message>
    <message>
        <source>The states that your quick links were in, newest first; the last %1 are kept.</source>
        <translation>Los estados en que estuvieron sus enlaces rápidos, primero el más reciente; se guardan los últimos %1.</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>The program started</source>
        <translation>El programa se inició</translation>
    </message>
    <message>
        <source>A connection came up</source>
        <translation>Se estableció una conexión</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>Idioma del &amp;sistema</translation>
    </message>
</context>
<context>
    <name>LinkAddresses</name>
    <message>
        <source>of several marked web addresses only the lowest opens</source>
        <translation>de varias direcciones web marcadas solo se abre la última de la lista</translation>
    </message>
</context>
<context>
    <name>LinkButtons</name>
    <message>
        <source>No quick links yet. Add some with Tools &gt; Settings.</source>
        <translation>Aún no hay enlaces rápidos. Añádalos con Herramientas &gt; Configuración.</translation>
    </message>
    <message>
        <source>No quick link has this in its name.</source>
        <translation>Ningún enlace rápido tiene esto en su nombre.</translation>
    </message>
</context>
<context>
    <name>LinkOpener</name>
    <message>
        <source>There is no such file or folder, or you are not allowed to see it:</source>
        <translation>No existe este archivo o carpeta, o no tiene permiso para verlo:</translation>
    </message>
    <message>
        <source>You are not allowed to open this:</source>
        <translation>No tiene permiso para abrir esto:</translation>
    </message>
    <message>
        <source>This is no valid address:</source>
        <translation>Esta dirección no es válida:</translation>
    </message>
    <message>
        <source>Addresses that are themselves a script or a page are never opened:</source>
        <translation>Las direcciones que son ellas mismas un script o una página no se abren nunca:</translation>
    </message>
    <message>
        <source>This link leads nowhere: it has no path.</source>
        <translation>Este enlace no lleva a ninguna parte: no tiene ruta.</translation>
    </message>
    <message>
        <source>The path of an application or file must begin with &quot;/&quot;:</source>
        <translation>La ruta de una aplicación o de un archivo debe empezar por «/»:</translation>
    </message>
    <message>
        <source>Too many questions wait for an answer to ask about this address, too:</source>
        <translation>Hay demasiadas preguntas sin responder para preguntar también por esta dirección:</translation>
    </message>
    <message>
        <source>This is too long to be opened:</source>
        <translation>Esto es demasiado largo para abrirlo:</translation>
    </message>
</context>
<context>
    <name>LinkTable</name>
    <message>
        <source>Name</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>Complemento</translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation>No hay enlaces rápidos</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;Why…</source>
        <translation>&amp;Por qué…</translation>
    </message>
    <message>
        <source>See which links opened or did not, and why</source>
        <translation>Ver qué enlaces se abrieron o no, y por qué</translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation>Enlaces rápidos</translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation>No hay enlaces rápidos</translation>
    </message>
    <message>
        <source>&amp;Connection</source>
        <translation>&amp;Conexión</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Quick Links</source>
        <translation>&amp;Enlaces rápidos</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Configuración…</translation>
    </message>
    <message>
        <source>Add, change and order quick links</source>
        <translation>Añadir, cambiar y ordenar enlaces rápidos</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>Barra de &amp;estado</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;About Vellum Connect</source>
        <translation>&amp;Acerca de Vellum Connect</translation>
    </message>
    <message>
        <source>About Vellum Connect</source>
        <translation>Acerca de Vellum Connect</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Vellum Connect %1&lt;/h3&gt;&lt;p&gt;Connection manager with quick links.&lt;/p&gt;&lt;p&gt;Free software under the MIT licence.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Vellum Connect %1&lt;/h3&gt;&lt;p&gt;Gestor de conexiones con enlaces rápidos.&lt;/p&gt;&lt;p&gt;Software libre con licencia MIT.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Ed&amp;ición</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Take back the last change of the quick links</source>
        <translation>Deshacer el último cambio de los enlaces rápidos</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Make the change again that was taken back</source>
        <translation>Rehacer el cambio deshecho</translation>
    </message>
    <message>
        <source>&amp;Plug-ins Left Out…</source>
        <translation>Com&amp;plementos dejados fuera…</translation>
    </message>
    <message>
        <source>See which plug-ins crashed or hung, and load them again</source>
        <translation>Ver qué complementos fallaron o se bloquearon, y volver a cargarlos</translation>
    </message>
    <message>
        <source>Plug-ins not loaded: %1</source>
        <translation>Complementos no cargados: %1</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>Salir del programa</translation>
    </message>
    <message>
        <source>&amp;Find a Quick Link</source>
        <translation>&amp;Buscar un enlace rápido</translation>
    </message>
    <message>
        <source>Show only the quick links with a name that you type</source>
        <translation>Mostrar solo los enlaces rápidos cuyo nombre se escribe</translation>
    </message>
    <message>
        <source>Find a quick link</source>
        <translation>Buscar un enlace rápido</translation>
    </message>
</context>
<context>
    <name>MenuManager</name>
    <message>
        <source>You picked it</source>
        <translation>Usted lo eligió</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Abrir %1</translation>
    </message>
</context>
<context>
    <name>OfferLine</name>
    <message>
        <source>&amp;Put Back</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>Leave &amp;As It Is</source>
        <translation>&amp;Dejar así</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message>
        <source>Opened</source>
        <translation>Abierto</translation>
    </message>
    <message>
        <source>You were asked first</source>
        <translation>Se le preguntó primero</translation>
    </message>
    <message>
        <source>Not opened: %1</source>
        <translation>No abierto: %1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Falló: %1</translation>
    </message>
    <message>
        <source>Unknown link</source>
        <translation>Enlace desconocido</translation>
    </message>
    <message>
        <source>Not opened: you did not agree</source>
        <translation>No abierto: usted no lo aceptó</translation>
    </message>
</context>
<context>
    <name>OpeningCause</name>
    <message>
        <source>A plug-in asked for it</source>
        <translation>Lo pidió un complemento</translation>
    </message>
</context>
<context>
    <name>PluginMessages</name>
    <message>
        <source>This was not loaded, because another user owns %1:</source>
        <translation>Esto no se cargó porque %1 pertenece a otro usuario:</translation>
    </message>
    <message>
        <source>This was not loaded, because other users may change %1:</source>
        <translation>Esto no se cargó porque otros usuarios pueden modificar %1:</translation>
    </message>
    <message>
        <source>This was not loaded, because it is not known who may change %1:</source>
        <translation>Esto no se cargó porque no se sabe quién puede modificar %1:</translation>
    </message>
    <message>
        <source>This was not loaded, because it passes itself off as the quick links of this program:</source>
        <translation>Esto no se cargó porque se hace pasar por los enlaces rápidos de este programa:</translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was starting, and was left out.</source>
        <translation>El complemento %1 no respondió al iniciarse y se dejó fuera.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish starting last time (it crashed or hung), and was left out.</source>
        <translation>El complemento %1 no terminó de iniciarse la última vez (falló o se bloqueó) y se dejó fuera.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was ending, and was left out.</source>
        <translation>El complemento %1 no respondió al cerrarse y se dejó fuera.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish ending last time (it crashed or hung), and was left out.</source>
        <translation>El complemento %1 no terminó de cerrarse la última vez (falló o se bloqueó) y se dejó fuera.</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Complementos</translation>
    </message>
    <message>
        <source>&amp;Load at the Next Start</source>
        <translation>&amp;Cargar en el próximo inicio</translation>
    </message>
    <message>
        <source>Leave &amp;Out</source>
        <translation>&amp;Dejar fuera</translation>
    </message>
</context>
<context>
    <name>ProgramEnd</name>
    <message>
        <source>it used memory that it does not have</source>
        <translation>usó memoria que no tiene</translation>
    </message>
    <message>
        <source>it noticed a mistake of its own</source>
        <translation>advirtió un error propio</translation>
    </message>
    <message>
        <source>it divided by zero or the like</source>
        <translation>dividió por cero o algo parecido</translation>
    </message>
    <message>
        <source>it came to an instruction that the processor does not know</source>
        <translation>llegó a una instrucción que el procesador no conoce</translation>
    </message>
    <message>
        <source>it asked the system for what is forbidden</source>
        <translation>pidió al sistema algo prohibido</translation>
    </message>
    <message>
        <source>This program ended at once, with the error code %1:</source>
        <translation>Este programa terminó enseguida con el código de error %1:</translation>
    </message>
    <message>
        <source>This program crashed (signal %1, %2):</source>
        <translation>Este programa falló (señal %1, %2):</translation>
    </message>
    <message>
        <source>This program was ended by the system or by another program (signal %1):</source>
        <translation>El sistema u otro programa terminó este programa (señal %1):</translation>
    </message>
</context>
<context>
    <name>ProgramRun</name>
    <message>
        <source>This program could not be started:</source>
        <translation>No se pudo iniciar este programa:</translation>
    </message>
</context>
<context>
    <name>PutBackOffer</name>
    <message>
        <source>&quot;%1&quot; no longer opens by itself.</source>
        <translation>«%1» ya no se abre por sí solo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when connected.</source>
        <translation>«%1» ya no se abre al conectarse.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer has a recipient.</source>
        <translation>«%1» ya no tiene destinatario.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when Vellum Connect starts.</source>
        <translation>«%1» ya no se abre al iniciar Vellum Connect.</translation>
    </message>
</context>
<context>
    <name>QuickLinkUIPlugin</name>
    <message>
        <source>IDS_SETTING_NAME</source>
        <extracomment>Caption of the page in the list of the settings dialog. Up to about 20 characters.</extracomment>
        <translation>Enlaces rápidos</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TAB</source>
        <extracomment>Title of the only tab of the settings page, above the table. Up to about 30 characters (the tab widget is 280 pixels wide).</extracomment>
        <translation>Enlaces rápidos</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_ORDER</source>
        <extracomment>Label above the table of the settings page. Up to about 35 characters (250 pixels). Labels are low: a capital letter with an accent, such as an umlaut, loses it with Qt 6.</extracomment>
        <translation>Orden de apertura:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME</source>
        <extracomment>Header of the table&apos;s first column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>Título</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TYPE</source>
        <extracomment>Header of the table&apos;s second column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_UP</source>
        <extracomment>Button below the table: moves the link up. Up to about 14 characters; the letter after the ampersand must differ from those of the page&apos;s other buttons.</extracomment>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DOWN</source>
        <extracomment>Button below the table: moves the link down. As IDS_LINK_SETTING_UP.</extracomment>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW</source>
        <extracomment>Button beside the table: opens the dialog for a new link. Up to about 12 characters; with an ampersand as IDS_LINK_SETTING_UP.</extracomment>
        <translation>&amp;Nuevo…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT</source>
        <extracomment>Button beside the table: opens the dialog that changes the chosen link. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>&amp;Editar…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DEL</source>
        <extracomment>Button beside the table: deletes the chosen link after a question. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TITLE</source>
        <extracomment>Title of the dialog for a new link. Up to about 16 characters: most desktops put the program&apos;s name behind it.</extracomment>
        <translation>Nuevo enlace</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT_TITLE</source>
        <extracomment>Title of the dialog that changes a link. As IDS_LINK_SETTING_NEW_TITLE.</extracomment>
        <translation>Editar enlace</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_NAME</source>
        <extracomment>Label of the dialog&apos;s name field. 51 pixels: about 6 characters.</extracomment>
        <translation>Título:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TYPE</source>
        <extracomment>Label of the dialog&apos;s choice of type. 70 pixels: about 9 characters.</extracomment>
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_APPLICATION</source>
        <extracomment>Type of a link that starts a program: in the dialog&apos;s choice and on its tab, and in the table. Up to about 13 characters (100 pixels).</extracomment>
        <translation>Aplicación</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_E-MAIL</source>
        <extracomment>Type of a link that opens the mail program. As IDS_LINK_TYPE_APPLICATION.</extracomment>
        <translation>Correo</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_INTERNET</source>
        <extracomment>Type of a link that opens an Internet address. As IDS_LINK_TYPE_APPLICATION.</extracomment>
        <translation>Internet</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_URL</source>
        <extracomment>Label above the field with the path of the program. Up to about 25 characters (184 pixels).</extracomment>
        <translation>Archivo del programa:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_BROWSER</source>
        <extracomment>Button beside that field: opens the choice of a file. 80 pixels: up to about 10 characters.</extracomment>
        <translation>Examinar…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_PARA</source>
        <extracomment>Label above the field with the program&apos;s parameters. Up to about 35 characters (250 pixels).</extracomment>
        <translation>Parámetros:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_IE_URL</source>
        <extracomment>Label above the field with the Internet address. Up to about 35 characters (250 pixels).</extracomment>
        <translation>Dirección:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_EMAIL_URL</source>
        <extracomment>What an e-mail link does; the only text on its panel. Up to about 35 characters (250 pixels), one line.</extracomment>
        <translation>Abre su programa de correo.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK_STARTUP</source>
        <extracomment>Check box of the dialog. Up to about 32 characters (230 pixels).</extracomment>
        <translation>Abrir al iniciar Vellum Connect</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK</source>
        <extracomment>Check box of the dialog: opens the link when a data connection comes up. Up to about 32 characters (230 pixels).</extracomment>
        <translation>Abrir al conectarse</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_OK</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CANCEL</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>IDS_LINK_PROMPT</source>
        <extracomment>Title of every message about quick links. Up to about 30 characters.</extracomment>
        <translation>Enlaces rápidos</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_INVALID_URL</source>
        <extracomment>Message: the address of the link that was picked is none. A sentence or two; keep what stands in quotation marks.</extracomment>
        <translation>No se puede abrir esta dirección. Una dirección debe contener «http://», «https://», «ftp» o «www.».</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME_SAME</source>
        <extracomment>Message: the dialog&apos;s name is in use. A sentence or two.</extracomment>
        <translation>Otro enlace rápido ya tiene este título. Elija uno diferente.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_FILENOTEXIST</source>
        <extracomment>Message: the dialog&apos;s program file is missing, or none was chosen. A sentence or two.</extracomment>
        <translation>No existe este archivo de programa. Elija uno.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DELETE_CONFORM</source>
        <extracomment>Question before a link is deleted, with the buttons IDS_OK and IDS_CANCEL. A sentence or two.</extracomment>
        <translation>¿Eliminar el enlace rápido seleccionado?</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Second button of messages. Up to about 14 characters.</extracomment>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>None of the loaded plug-ins has settings.</source>
        <translation>Ninguno de los complementos cargados tiene configuración.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Programs start without the parameters that a link has for them.</source>
        <translation>Los programas se inician sin los parámetros que tiene su enlace.</translation>
    </message>
</context>
<context>
    <name>TransitionRules</name>
    <message>
        <source>was up before the program was there</source>
        <translation>ya estaba activa antes de iniciarse el programa</translation>
    </message>
    <message>
        <source>up, waiting to be in the Internet</source>
        <extracomment>&quot;In the Internet&quot; means that the Internet can be reached.</extracomment>
        <translation>activa, a la espera de Internet</translation>
    </message>
    <message>
        <source>up and in the Internet</source>
        <translation>activa y con Internet</translation>
    </message>
    <message>
        <source>up, and a portal wants a login</source>
        <translation>activa, y un portal pide iniciar sesión</translation>
    </message>
    <message>
        <source>up, but not in the Internet within 10 s</source>
        <translation>activa, pero sin Internet durante 10 s</translation>
    </message>
    <message>
        <source>went down before it was told</source>
        <translation>cayó antes de comunicarse</translation>
    </message>
    <message>
        <source>another connection took over</source>
        <translation>otra conexión tomó el relevo</translation>
    </message>
    <message>
        <source>down, waiting whether it comes back</source>
        <translation>caída, a la espera de que vuelva</translation>
    </message>
    <message>
        <source>down</source>
        <translation>caída</translation>
    </message>
    <message>
        <source>the service is gone, waiting whether it comes back</source>
        <translation>el servicio no está, a la espera de que vuelva</translation>
    </message>
    <message>
        <source>handed over, not a new connection</source>
        <translation>traspasada, no es una conexión nueva</translation>
    </message>
    <message>
        <source>was up before sleep, not a new connection</source>
        <translation>estaba activa antes de la suspensión, no es una conexión nueva</translation>
    </message>
    <message>
        <source>outlived a restart of the service, not a new connection</source>
        <translation>sobrevivió a un reinicio del servicio, no es una conexión nueva</translation>
    </message>
    <message>
        <source>was down again when asked, not told</source>
        <extracomment>The host asks once more before it tells of a connection that came up.</extracomment>
        <translation>había vuelto a caer al preguntar, no se comunicó</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Window</source>
        <translation>Mostrar la ventana</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Vellum Connect keeps running here. Click the icon to show its window.</source>
        <translation>Vellum Connect sigue funcionando aquí. Haga clic en el icono para mostrar su ventana.</translation>
    </message>
</context>
<context>
    <name>WhyWindow</name>
    <message>
        <source>What Opened, and Why</source>
        <translation>Qué se abrió y por qué</translation>
    </message>
    <message>
        <source>What was decided about connections and links, newest first. The last %1 decisions are remembered until the program ends, and written to no file.</source>
        <translation>Lo que se decidió sobre conexiones y enlaces, primero lo más reciente. Las últimas %1 decisiones se recuerdan hasta que termina el programa y no se escriben en ningún archivo.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Link or Connection</source>
        <translation>Enlace o conexión</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>Causa</translation>
    </message>
    <message>
        <source>What Was Done</source>
        <translation>Qué se hizo</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>C&amp;errar</translation>
    </message>
</context>
</TS>
