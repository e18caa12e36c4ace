<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>AddressProblem</name>
    <message>
        <source>This link has no address:</source>
        <translation>Este atalho não tem endereço:</translation>
    </message>
    <message>
        <source>There are blanks before or behind this address:</source>
        <translation>Há espaços antes ou depois deste endereço:</translation>
    </message>
    <message>
        <source>The beginning of this address must be written in small letters:</source>
        <translation>O início deste endereço deve ser escrito em letras minúsculas:</translation>
    </message>
    <message>
        <source>Only Internet addresses (http, https and ftp) are opened. This is not one:</source>
        <translation>Somente endereços da Internet (http, https e ftp) são abertos. Este não é um deles:</translation>
    </message>
    <message>
        <source>This address needs &quot;http://&quot;, &quot;https://&quot;, &quot;ftp://&quot; or &quot;www.&quot; at its beginning:</source>
        <translation>Este endereço precisa de &quot;http://&quot;, &quot;https://&quot;, &quot;ftp://&quot; ou &quot;www.&quot; no início:</translation>
    </message>
</context>
<context>
    <name>AddressQuestions</name>
    <message>
        <source>Open this address with the program for &quot;%1&quot; links?</source>
        <translation>Abrir este endereço com o programa para links &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>Unusual address</source>
        <translation>Endereço incomum</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Print which links the running program opened or did not, and why, newest first, and exit.</source>
        <translation>Lista quais atalhos o programa em execução abriu ou não, e por quê, do mais recente ao mais antigo, e sai.</translation>
    </message>
    <message>
        <source>No running program with the folder %1 can be asked.</source>
        <translation>Nenhum programa em execução com a pasta %1 pode ser consultado.</translation>
    </message>
    <message>
        <source>Nothing was decided yet</source>
        <translation>Nada foi decidido ainda</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Mostra esta ajuda e sai.</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>Mostra a versão e sai.</translation>
    </message>
    <message>
        <source>Keep your own data in DIR.</source>
        <translation>Guarda os seus dados em DIR.</translation>
    </message>
    <message>
        <source>Load the plug-ins of DIR.</source>
        <translation>Carrega os plug-ins de DIR.</translation>
    </message>
    <message>
        <source>Show texts in the language LANG, such as en or pt_BR.</source>
        <translation>Mostra os textos no idioma LANG, por exemplo en ou pt_BR.</translation>
    </message>
    <message>
        <source>Connection manager with quick links.</source>
        <translation>Gerenciador de conexões com atalhos.</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>Argumento inesperado &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Empty value after &quot;--%1&quot;.</source>
        <translation>Valor vazio após &quot;--%1&quot;.</translation>
    </message>
    <message>
        <source>No such kind of connection: &quot;%1&quot;.</source>
        <translation>Não existe este tipo de conexão: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Print the quick links and exit. Needs no graphical session.</source>
        <translation>Lista os atalhos e sai. Não precisa de sessão gráfica.</translation>
    </message>
    <message>
        <source>%1 Try --help.</source>
        <translation>%1 Veja --help.</translation>
    </message>
    <message>
        <source>Wait in the tray without a window; where there is no tray, the window shows.</source>
        <translation>Espera na bandeja, sem janela; onde não há bandeja, a janela aparece.</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>A pasta &quot;%1&quot; não existe.</translation>
    </message>
    <message>
        <source>It is running already, as process %1, with the folder %2.</source>
        <translation>O programa já está em execução, como processo %1, com a pasta %2.</translation>
    </message>
    <message>
        <source>Watch connections of type KIND in this run, whatever the settings say: mobile (mobile broadband), any (whatever has a default route) or manual (you press a button).</source>
        <translation>Monitora nesta execução as conexões do tipo KIND, seja o que for que digam as configurações: mobile (banda larga móvel), any (qualquer uma com rota padrão) ou manual (por um botão).</translation>
    </message>
    <message>
        <source>There is no plug-in in the folder &quot;%1&quot;.</source>
        <translation>Não há nenhum plug-in na pasta &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>CommonUtils</name>
    <message>
        <source>No program could be started for this address:</source>
        <translation>Não foi possível iniciar um programa para este endereço:</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>OK</translation>
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
        <translation>Nenhum atalho aberto</translation>
    </message>
    <message>
        <source>Links marked for a connection open</source>
        <translation>Os atalhos marcados para uma conexão se abrem</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexão</translation>
    </message>
</context>
<context>
    <name>ConnectionPage</name>
    <message>
        <source>Connection</source>
        <translation>Conexão</translation>
    </message>
    <message>
        <source>In this run the command line says which connections count. What you choose here counts from the next start on.</source>
        <translation>Nesta execução a linha de comando decide quais conexões contam. O que você escolher aqui vale a partir do próximo início.</translation>
    </message>
    <message>
        <source>&amp;Mobile broadband</source>
        <translation>Banda larga &amp;móvel</translation>
    </message>
    <message>
        <source>An&amp;y plan</source>
        <translation>Qualquer &amp;plano</translation>
    </message>
    <message>
        <source>Only the plans &amp;ticked here</source>
        <translation>&amp;Somente os planos marcados aqui</translation>
    </message>
    <message>
        <source>Not while &amp;roaming</source>
        <translation>Não em &amp;roaming</translation>
    </message>
    <message>
        <source>&amp;Any connection</source>
        <translation>Qualquer cone&amp;xão</translation>
    </message>
    <message>
        <source>My own &amp;button</source>
        <translation>Meu próprio &amp;botão</translation>
    </message>
    <message>
        <source>%1 (not there now)</source>
        <translation>%1 (ausente agora)</translation>
    </message>
    <message>
        <source>NetworkManager does not say which plans there are.</source>
        <translation>O NetworkManager não diz quais planos existem.</translation>
    </message>
    <message>
        <source>While none is ticked, any plan counts.</source>
        <translation>Enquanto nenhum estiver marcado, qualquer plano conta.</translation>
    </message>
    <message>
        <source>There are no mobile plans yet.</source>
        <translation>Ainda não há planos móveis.</translation>
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
        <translation>Conexão:</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>Dispositivo:</translation>
    </message>
    <message>
        <source>Operator:</source>
        <translation>Operadora:</translation>
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
        <translation>Não conectado</translation>
    </message>
    <message>
        <source>This network asks for a login first.</source>
        <translation>Esta rede exige login primeiro.</translation>
    </message>
    <message>
        <source>The Internet is out of reach.</source>
        <translation>A Internet não está acessível.</translation>
    </message>
    <message>
        <source>Press Connect when your connection is up.</source>
        <translation>Pressione &quot;Conectar&quot; quando a sua conexão estiver ativa.</translation>
    </message>
    <message>
        <source>Waiting for mobile broadband.</source>
        <translation>Aguardando a banda larga móvel.</translation>
    </message>
    <message>
        <source>Waiting for a connection.</source>
        <translation>Aguardando uma conexão.</translation>
    </message>
    <message>
        <source>before this program started</source>
        <translation>antes do início deste programa</translation>
    </message>
    <message>
        <source>NetworkManager is not running</source>
        <translation>O NetworkManager não está em execução</translation>
    </message>
    <message>
        <source>Online by Ethernet; waiting for mobile broadband.</source>
        <translation>Online por Ethernet; aguardando a banda larga móvel.</translation>
    </message>
    <message>
        <source>Online by Wi-Fi; waiting for mobile broadband.</source>
        <translation>Online por Wi-Fi; aguardando a banda larga móvel.</translation>
    </message>
    <message>
        <source>Online by another connection; waiting for mobile broadband.</source>
        <translation>Online por outra conexão; aguardando a banda larga móvel.</translation>
    </message>
    <message>
        <source>Roaming; waiting for your own network.</source>
        <translation>Em roaming; aguardando a sua própria rede.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Verificando…</translation>
    </message>
</context>
<context>
    <name>DesktopOpener</name>
    <message>
        <source>There is no such file or folder:</source>
        <translation>Este arquivo ou pasta não existe:</translation>
    </message>
    <message>
        <source>No program was found that opens this:</source>
        <translation>Nenhum programa que abra isto foi encontrado:</translation>
    </message>
    <message>
        <source>The program that opens this reported a failure:</source>
        <translation>O programa que abre isto informou um erro:</translation>
    </message>
    <message>
        <source>The desktop could not open this:</source>
        <translation>A área de trabalho não conseguiu abrir isto:</translation>
    </message>
    <message>
        <source>Opening this needs the program &quot;xdg-open&quot;, which could not be started:</source>
        <translation>Para abrir isto é necessário o programa &quot;xdg-open&quot;, que não pôde ser iniciado:</translation>
    </message>
</context>
<context>
    <name>DisplayChoice</name>
    <message>
        <source>On Wayland the package %1 is needed, which is not installed.</source>
        <translation>No Wayland é necessário o pacote %1, que não está instalado.</translation>
    </message>
    <message>
        <source>There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set.</source>
        <translation>Não há tela: nem DISPLAY nem WAYLAND_DISPLAY está definido.</translation>
    </message>
    <message>
        <source>QT_QPA_PLATFORM asks for X, but DISPLAY is not set.</source>
        <translation>QT_QPA_PLATFORM pede X, mas DISPLAY não está definido.</translation>
    </message>
    <message>
        <source>The display &quot;%1&quot; does not answer.</source>
        <translation>A tela &quot;%1&quot; não responde.</translation>
    </message>
</context>
<context>
    <name>EditLinkButton</name>
    <message>
        <source>&amp;Edit Links</source>
        <translation>&amp;Editar atalhos</translation>
    </message>
    <message>
        <source>&amp;Edit Link</source>
        <translation>&amp;Editar atalho</translation>
    </message>
</context>
<context>
    <name>EntryRun</name>
    <message>
        <source>The application of this could not be started:</source>
        <translation>Não foi possível iniciar o aplicativo deste item:</translation>
    </message>
</context>
<context>
    <name>FailureList</name>
    <message>
        <source>Not opened</source>
        <translation>Não aberto</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>e mais %n</numerusform>
            <numerusform>e mais %n</numerusform>
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
        <translation>Fixado pelo administrador deste computador</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Start with the session</source>
        <translation>Iniciar com a sessão</translation>
    </message>
    <message>
        <source>Vellum Connect then waits in the tray. Where the desktop has no tray, its window shows.</source>
        <translation>O Vellum Connect espera então na bandeja. Onde a área de trabalho não tem bandeja, a janela aparece.</translation>
    </message>
    <message>
        <source>This choice cannot be kept in %1.</source>
        <translation>Não é possível guardar esta escolha em %1.</translation>
    </message>
</context>
<context>
    <name>GuardMessages</name>
    <message>
        <source>The file with your quick links is missing.</source>
        <translation>O arquivo com os seus atalhos não existe.</translation>
    </message>
    <message>
        <source>The file with your quick links is empty.</source>
        <translation>O arquivo com os seus atalhos está vazio.</translation>
    </message>
    <message>
        <source>The file with your quick links is damaged.</source>
        <translation>O arquivo com os seus atalhos está danificado.</translation>
    </message>
    <message>
        <source>The file with your quick links is far too large.</source>
        <translation>O arquivo com os seus atalhos é grande demais.</translation>
    </message>
    <message>
        <source>The file with your quick links cannot be read.</source>
        <translation>O arquivo com os seus atalhos não pode ser lido.</translation>
    </message>
    <message>
        <source>In the place of the file with your quick links there is something that is no file.</source>
        <translation>No lugar do arquivo com os seus atalhos há algo que não é um arquivo.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>O disco está cheio.</translation>
    </message>
    <message>
        <source>You are not allowed to write to its folder.</source>
        <translation>Você não tem permissão para gravar na pasta dele.</translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are in place again.</source>
        <translation>
            <numerusform>O atalho de %1 está de volta.</numerusform>
            <numerusform>Os %n atalhos de %1 estão de volta.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 can be brought back.</source>
        <translation>
            <numerusform>O atalho de %1 pode ser recuperado.</numerusform>
            <numerusform>Os %n atalhos de %1 podem ser recuperados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are kept, but could not be put in place.</source>
        <translation>
            <numerusform>O atalho de %1 está guardado, mas não pôde ser recolocado.</numerusform>
            <numerusform>Os %n atalhos de %1 estão guardados, mas não puderam ser recolocados.</numerusform>
        </translation>
    </message>
    <message>
        <source>No earlier state of the links is known.</source>
        <translation>Nenhum estado anterior dos atalhos é conhecido.</translation>
    </message>
    <message>
        <source>What was found there was kept:</source>
        <translation>O que havia lá foi guardado:</translation>
    </message>
    <message>
        <source>&amp;Bring Back</source>
        <translation>&amp;Recuperar</translation>
    </message>
    <message>
        <source>&amp;Leave Out</source>
        <translation>&amp;Deixar de fora</translation>
    </message>
    <message>
        <source>The change of your quick links could not be saved.</source>
        <translation>A alteração dos seus atalhos não pôde ser salva.</translation>
    </message>
    <message>
        <source>The quick links were changed by another program. Do you want to load them, or to keep yours?</source>
        <translation>Os atalhos foram alterados por outro programa. Deseja carregá-los ou manter os seus?</translation>
    </message>
    <message>
        <source>&amp;Load Them</source>
        <translation>&amp;Carregar</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>&amp;Manter os meus</translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation>Atalhos</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Tentar de novo</translation>
    </message>
    <message>
        <source>The quick links that were prepared for you could not be put in place. The program tries again at its next start.</source>
        <translation>Os atalhos preparados para você não puderam ser colocados no lugar. O programa tentará de novo na próxima vez que for iniciado.</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>Added: %1</source>
        <translation>Adicionado: %1</translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation>Removido: %1</translation>
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
            <numerusform>mais %n</numerusform>
            <numerusform>mais %n</numerusform>
        </translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>%1 (now)</source>
        <translation>%1 (agora)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Atalhos</translation>
    </message>
    <message>
        <source>What Changed</source>
        <translation>O que mudou</translation>
    </message>
    <message>
        <source>&amp;Go Back to This</source>
        <translation>&amp;Voltar a este</translation>
    </message>
    <message>
        <source>The states that your quick links were in, newest first; the last %1 are kept.</source>
        <translation>Os estados em que os seus atalhos estiveram, do mais recente ao mais antigo; os últimos %1 são mantidos.</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>The program started</source>
        <translation>O programa foi iniciado</translation>
    </message>
    <message>
        <source>A connection came up</source>
        <translation>Uma conexão foi estabelecida</translation>
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
        <translation>Idioma do &amp;sistema</translation>
    </message>
</context>
<context>
    <name>LinkAddresses</name>
    <message>
        <source>of several marked web addresses only the lowest opens</source>
        <translation>de vários endereços da web marcados, só o mais baixo se abre</translation>
    </message>
</context>
<context>
    <name>LinkButtons</name>
    <message>
        <source>No quick links yet. Add some with Tools &gt; Settings.</source>
        <translation>Ainda não há atalhos. Adicione-os em Ferramentas &gt; Configurações.</translation>
    </message>
    <message>
        <source>No quick link has this in its name.</source>
        <translation>Nenhum atalho tem isto no nome.</translation>
    </message>
</context>
<context>
    <name>LinkOpener</name>
    <message>
        <source>There is no such file or folder, or you are not allowed to see it:</source>
        <translation>Este arquivo ou pasta não existe, ou você não tem permissão para vê-lo:</translation>
    </message>
    <message>
        <source>You are not allowed to open this:</source>
        <translation>Você não tem permissão para abrir isto:</translation>
    </message>
    <message>
        <source>This is no valid address:</source>
        <translation>Este endereço não é válido:</translation>
    </message>
    <message>
        <source>Addresses that are themselves a script or a page are never opened:</source>
        <translation>Endereços que são eles próprios um script ou uma página nunca são abertos:</translation>
    </message>
    <message>
        <source>This link leads nowhere: it has no path.</source>
        <translation>Este atalho não leva a lugar nenhum: não tem caminho.</translation>
    </message>
    <message>
        <source>The path of an application or file must begin with &quot;/&quot;:</source>
        <translation>O caminho de um aplicativo ou arquivo deve começar com &quot;/&quot;:</translation>
    </message>
    <message>
        <source>Too many questions wait for an answer to ask about this address, too:</source>
        <translation>Há perguntas demais aguardando resposta para perguntar também sobre este endereço:</translation>
    </message>
    <message>
        <source>This is too long to be opened:</source>
        <translation>Isto é longo demais para ser aberto:</translation>
    </message>
</context>
<context>
    <name>LinkTable</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>Plug-in</translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation>Sem atalhos</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;Why…</source>
        <translation>&amp;Por quê…</translation>
    </message>
    <message>
        <source>See which links opened or did not, and why</source>
        <translation>Ver quais atalhos se abriram ou não, e por quê</translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation>Atalhos</translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation>Sem atalhos</translation>
    </message>
    <message>
        <source>&amp;Connection</source>
        <translation>&amp;Conexão</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>&amp;Quick Links</source>
        <translation>&amp;Atalhos</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Ferramentas</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Configurações…</translation>
    </message>
    <message>
        <source>Add, change and order quick links</source>
        <translation>Adicionar, alterar e ordenar atalhos</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>E&amp;xibir</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>Barra de &amp;status</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aj&amp;uda</translation>
    </message>
    <message>
        <source>&amp;About Vellum Connect</source>
        <translation>&amp;Sobre o Vellum Connect</translation>
    </message>
    <message>
        <source>About Vellum Connect</source>
        <translation>Sobre o Vellum Connect</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Vellum Connect %1&lt;/h3&gt;&lt;p&gt;Connection manager with quick links.&lt;/p&gt;&lt;p&gt;Free software under the MIT licence.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Vellum Connect %1&lt;/h3&gt;&lt;p&gt;Gerenciador de conexões com atalhos.&lt;/p&gt;&lt;p&gt;Software livre sob a licença MIT.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>Take back the last change of the quick links</source>
        <translation>Desfazer a última alteração dos atalhos</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Make the change again that was taken back</source>
        <translation>Refazer a alteração desfeita</translation>
    </message>
    <message>
        <source>&amp;Plug-ins Left Out…</source>
        <translation>&amp;Plug-ins deixados de fora…</translation>
    </message>
    <message>
        <source>See which plug-ins crashed or hung, and load them again</source>
        <translation>Ver quais plug-ins falharam ou travaram, e carregá-los de novo</translation>
    </message>
    <message>
        <source>Plug-ins not loaded: %1</source>
        <translation>Plug-ins não carregados: %1</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>Sair do programa</translation>
    </message>
    <message>
        <source>&amp;Find a Quick Link</source>
        <translation>&amp;Localizar um atalho</translation>
    </message>
    <message>
        <source>Show only the quick links with a name that you type</source>
        <translation>Mostrar só os atalhos com o nome digitado</translation>
    </message>
    <message>
        <source>Find a quick link</source>
        <translation>Localizar um atalho</translation>
    </message>
</context>
<context>
    <name>MenuManager</name>
    <message>
        <source>You picked it</source>
        <translation>Você o escolheu</translation>
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
        <translation>&amp;Deixar assim</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message>
        <source>Opened</source>
        <translation>Aberto</translation>
    </message>
    <message>
        <source>You were asked first</source>
        <translation>Você foi consultado primeiro</translation>
    </message>
    <message>
        <source>Not opened: %1</source>
        <translation>Não aberto: %1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Falhou: %1</translation>
    </message>
    <message>
        <source>Unknown link</source>
        <translation>Atalho desconhecido</translation>
    </message>
    <message>
        <source>Not opened: you did not agree</source>
        <translation>Não aberto: você não concordou</translation>
    </message>
</context>
<context>
    <name>OpeningCause</name>
    <message>
        <source>A plug-in asked for it</source>
        <translation>Um plug-in pediu</translation>
    </message>
</context>
<context>
    <name>PluginMessages</name>
    <message>
        <source>This was not loaded, because another user owns %1:</source>
        <translation>Isto não foi carregado, porque %1 pertence a outro usuário:</translation>
    </message>
    <message>
        <source>This was not loaded, because other users may change %1:</source>
        <translation>Isto não foi carregado, porque outros usuários podem alterar %1:</translation>
    </message>
    <message>
        <source>This was not loaded, because it is not known who may change %1:</source>
        <translation>Isto não foi carregado, porque não se sabe quem pode alterar %1:</translation>
    </message>
    <message>
        <source>This was not loaded, because it passes itself off as the quick links of this program:</source>
        <translation>Isto não foi carregado, porque se faz passar pelos atalhos deste programa:</translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was starting, and was left out.</source>
        <translation>O plug-in %1 não respondeu ao iniciar e foi deixado de fora.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish starting last time (it crashed or hung), and was left out.</source>
        <translation>O plug-in %1 não terminou de iniciar da última vez (falhou ou travou) e foi deixado de fora.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was ending, and was left out.</source>
        <translation>O plug-in %1 não respondeu ao encerrar e foi deixado de fora.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish ending last time (it crashed or hung), and was left out.</source>
        <translation>O plug-in %1 não terminou de encerrar da última vez (falhou ou travou) e foi deixado de fora.</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Plug-ins</translation>
    </message>
    <message>
        <source>&amp;Load at the Next Start</source>
        <translation>&amp;Carregar no próximo início</translation>
    </message>
    <message>
        <source>Leave &amp;Out</source>
        <translation>&amp;Deixar de fora</translation>
    </message>
</context>
<context>
    <name>ProgramEnd</name>
    <message>
        <source>it used memory that it does not have</source>
        <translation>usou memória que não tem</translation>
    </message>
    <message>
        <source>it noticed a mistake of its own</source>
        <translation>percebeu um erro próprio</translation>
    </message>
    <message>
        <source>it divided by zero or the like</source>
        <translation>dividiu por zero ou algo parecido</translation>
    </message>
    <message>
        <source>it came to an instruction that the processor does not know</source>
        <translation>chegou a uma instrução que o processador não conhece</translation>
    </message>
    <message>
        <source>it asked the system for what is forbidden</source>
        <translation>pediu ao sistema algo proibido</translation>
    </message>
    <message>
        <source>This program ended at once, with the error code %1:</source>
        <translation>Este programa terminou imediatamente com o código de erro %1:</translation>
    </message>
    <message>
        <source>This program crashed (signal %1, %2):</source>
        <translation>Este programa falhou (sinal %1, %2):</translation>
    </message>
    <message>
        <source>This program was ended by the system or by another program (signal %1):</source>
        <translation>Este programa foi encerrado pelo sistema ou por outro programa (sinal %1):</translation>
    </message>
</context>
<context>
    <name>ProgramRun</name>
    <message>
        <source>This program could not be started:</source>
        <translation>Não foi possível iniciar este programa:</translation>
    </message>
</context>
<context>
    <name>PutBackOffer</name>
    <message>
        <source>&quot;%1&quot; no longer opens by itself.</source>
        <translation>&quot;%1&quot; não abre mais sozinho.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when connected.</source>
        <translation>&quot;%1&quot; não abre mais ao conectar.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer has a recipient.</source>
        <translation>&quot;%1&quot; não tem mais destinatário.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when Vellum Connect starts.</source>
        <translation>&quot;%1&quot; não abre mais ao iniciar o Vellum Connect.</translation>
    </message>
</context>
<context>
    <name>QuickLinkUIPlugin</name>
    <message>
        <source>IDS_SETTING_NAME</source>
        <extracomment>Caption of the page in the list of the settings dialog. Up to about 20 characters.</extracomment>
        <translation>Atalhos</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TAB</source>
        <extracomment>Title of the only tab of the settings page, above the table. Up to about 30 characters (the tab widget is 280 pixels wide).</extracomment>
        <translation>Atalhos</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_ORDER</source>
        <extracomment>Label above the table of the settings page. Up to about 35 characters (250 pixels). Labels are low: a capital letter with an accent, such as an umlaut, loses it with Qt 6.</extracomment>
        <translation>Ordem de abertura:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME</source>
        <extracomment>Header of the table&apos;s first column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>Nome</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TYPE</source>
        <extracomment>Header of the table&apos;s second column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_UP</source>
        <extracomment>Button below the table: moves the link up. Up to about 14 characters; the letter after the ampersand must differ from those of the page&apos;s other buttons.</extracomment>
        <translation>Para &amp;cima</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DOWN</source>
        <extracomment>Button below the table: moves the link down. As IDS_LINK_SETTING_UP.</extracomment>
        <translation>Para &amp;baixo</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW</source>
        <extracomment>Button beside the table: opens the dialog for a new link. Up to about 12 characters; with an ampersand as IDS_LINK_SETTING_UP.</extracomment>
        <translation>&amp;Novo…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT</source>
        <extracomment>Button beside the table: opens the dialog that changes the chosen link. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>&amp;Editar…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DEL</source>
        <extracomment>Button beside the table: deletes the chosen link after a question. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>E&amp;xcluir</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TITLE</source>
        <extracomment>Title of the dialog for a new link. Up to about 16 characters: most desktops put the program&apos;s name behind it.</extracomment>
        <translation>Novo atalho</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT_TITLE</source>
        <extracomment>Title of the dialog that changes a link. As IDS_LINK_SETTING_NEW_TITLE.</extracomment>
        <translation>Editar atalho</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_NAME</source>
        <extracomment>Label of the dialog&apos;s name field. 51 pixels: about 6 characters.</extracomment>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TYPE</source>
        <extracomment>Label of the dialog&apos;s choice of type. 70 pixels: about 9 characters.</extracomment>
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_APPLICATION</source>
        <extracomment>Type of a link that starts a program: in the dialog&apos;s choice and on its tab, and in the table. Up to about 13 characters (100 pixels).</extracomment>
        <translation>Aplicativo</translation>
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
        <translation>Arquivo do programa:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_BROWSER</source>
        <extracomment>Button beside that field: opens the choice of a file. 80 pixels: up to about 10 characters.</extracomment>
        <translation>Procurar…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_PARA</source>
        <extracomment>Label above the field with the program&apos;s parameters. Up to about 35 characters (250 pixels).</extracomment>
        <translation>Parâmetros:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_IE_URL</source>
        <extracomment>Label above the field with the Internet address. Up to about 35 characters (250 pixels).</extracomment>
        <translation>Endereço:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_EMAIL_URL</source>
        <extracomment>What an e-mail link does; the only text on its panel. Up to about 35 characters (250 pixels), one line.</extracomment>
        <translation>Abre o seu programa de e-mail.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK_STARTUP</source>
        <extracomment>Check box of the dialog. Up to about 32 characters (230 pixels).</extracomment>
        <translation>Abrir ao iniciar o Vellum Connect</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK</source>
        <extracomment>Check box of the dialog: opens the link when a data connection comes up. Up to about 32 characters (230 pixels).</extracomment>
        <translation>Abrir ao conectar</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_OK</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CANCEL</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>IDS_LINK_PROMPT</source>
        <extracomment>Title of every message about quick links. Up to about 30 characters.</extracomment>
        <translation>Atalhos</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_INVALID_URL</source>
        <extracomment>Message: the address of the link that was picked is none. A sentence or two; keep what stands in quotation marks.</extracomment>
        <translation>Não é possível abrir este endereço. Um endereço deve conter &quot;http://&quot;, &quot;https://&quot;, &quot;ftp&quot; ou &quot;www.&quot;.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME_SAME</source>
        <extracomment>Message: the dialog&apos;s name is in use. A sentence or two.</extracomment>
        <translation>Outro atalho já tem este nome. Escolha um diferente.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_FILENOTEXIST</source>
        <extracomment>Message: the dialog&apos;s program file is missing, or none was chosen. A sentence or two.</extracomment>
        <translation>Este arquivo de programa não existe. Escolha um.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DELETE_CONFORM</source>
        <extracomment>Question before a link is deleted, with the buttons IDS_OK and IDS_CANCEL. A sentence or two.</extracomment>
        <translation>Excluir o atalho selecionado?</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>OK</translation>
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
        <translation>Configurações</translation>
    </message>
    <message>
        <source>None of the loaded plug-ins has settings.</source>
        <translation>Nenhum dos plug-ins carregados tem configurações.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Programs start without the parameters that a link has for them.</source>
        <translation>Os programas são iniciados sem os parâmetros que o atalho tem para eles.</translation>
    </message>
</context>
<context>
    <name>TransitionRules</name>
    <message>
        <source>was up before the program was there</source>
        <translation>estava ativa antes do início do programa</translation>
    </message>
    <message>
        <source>up, waiting to be in the Internet</source>
        <extracomment>&quot;In the Internet&quot; means that the Internet can be reached.</extracomment>
        <translation>ativa, aguardando a Internet</translation>
    </message>
    <message>
        <source>up and in the Internet</source>
        <translation>ativa e com Internet</translation>
    </message>
    <message>
        <source>up, and a portal wants a login</source>
        <translation>ativa, e um portal exige login</translation>
    </message>
    <message>
        <source>up, but not in the Internet within 10 s</source>
        <translation>ativa, mas sem Internet por 10 s</translation>
    </message>
    <message>
        <source>went down before it was told</source>
        <translation>caiu antes de ser informada</translation>
    </message>
    <message>
        <source>another connection took over</source>
        <translation>outra conexão assumiu</translation>
    </message>
    <message>
        <source>down, waiting whether it comes back</source>
        <translation>caiu, aguardando se volta</translation>
    </message>
    <message>
        <source>down</source>
        <translation>caiu</translation>
    </message>
    <message>
        <source>the service is gone, waiting whether it comes back</source>
        <translation>o serviço não está, aguardando se volta</translation>
    </message>
    <message>
        <source>handed over, not a new connection</source>
        <translation>transferida, não é uma conexão nova</translation>
    </message>
    <message>
        <source>was up before sleep, not a new connection</source>
        <translation>estava ativa antes da suspensão, não é uma conexão nova</translation>
    </message>
    <message>
        <source>outlived a restart of the service, not a new connection</source>
        <translation>sobreviveu a um reinício do serviço, não é uma conexão nova</translation>
    </message>
    <message>
        <source>was down again when asked, not told</source>
        <extracomment>The host asks once more before it tells of a connection that came up.</extracomment>
        <translation>estava inativa de novo na verificação, não informada</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Window</source>
        <translation>Mostrar janela</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Vellum Connect keeps running here. Click the icon to show its window.</source>
        <translation>O Vellum Connect continua em execução aqui. Clique no ícone para mostrar a janela.</translation>
    </message>
</context>
<context>
    <name>WhyWindow</name>
    <message>
        <source>What Opened, and Why</source>
        <translation>O que se abriu e por quê</translation>
    </message>
    <message>
        <source>What was decided about connections and links, newest first. The last %1 decisions are remembered until the program ends, and written to no file.</source>
        <translation>O que foi decidido sobre conexões e atalhos, do mais recente ao mais antigo. As últimas %1 decisões são lembradas até o fim do programa e não são gravadas em nenhum arquivo.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Link or Connection</source>
        <translation>Atalho ou conexão</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>Causa</translation>
    </message>
    <message>
        <source>What Was Done</source>
        <translation>O que foi feito</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fechar</translation>
    </message>
</context>
</TS>
