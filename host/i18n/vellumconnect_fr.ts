<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AddressProblem</name>
    <message>
        <source>This link has no address:</source>
        <translation>Ce lien n’a pas d’adresse&#xa0;:</translation>
    </message>
    <message>
        <source>There are blanks before or behind this address:</source>
        <translation>Il y a des espaces avant ou après cette adresse&#xa0;:</translation>
    </message>
    <message>
        <source>The beginning of this address must be written in small letters:</source>
        <translation>Le début de cette adresse doit être écrit en minuscules&#xa0;:</translation>
    </message>
    <message>
        <source>Only Internet addresses (http, https and ftp) are opened. This is not one:</source>
        <translation>Seules les adresses Internet (http, https et ftp) sont ouvertes. Ceci n’en est pas une&#xa0;:</translation>
    </message>
    <message>
        <source>This address needs &quot;http://&quot;, &quot;https://&quot;, &quot;ftp://&quot; or &quot;www.&quot; at its beginning:</source>
        <translation>Cette adresse doit commencer par «&#xa0;http://&#xa0;», «&#xa0;https://&#xa0;», «&#xa0;ftp://&#xa0;» ou «&#xa0;www.&#xa0;»&#xa0;:</translation>
    </message>
</context>
<context>
    <name>AddressQuestions</name>
    <message>
        <source>Open this address with the program for &quot;%1&quot; links?</source>
        <translation>Ouvrir cette adresse avec le programme pour les liens «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>Unusual address</source>
        <translation>Adresse inhabituelle</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Print which links the running program opened or did not, and why, newest first, and exit.</source>
        <translation>Affiche les liens que le programme en cours a ouverts ou non, et pourquoi, du plus récent au plus ancien, et quitte.</translation>
    </message>
    <message>
        <source>No running program with the folder %1 can be asked.</source>
        <translation>Aucun programme en cours avec le dossier %1 ne peut être interrogé.</translation>
    </message>
    <message>
        <source>Nothing was decided yet</source>
        <translation>Rien n’a encore été décidé</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Affiche cette aide et quitte.</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>Affiche la version et quitte.</translation>
    </message>
    <message>
        <source>Keep your own data in DIR.</source>
        <translation>Conserve vos données dans DIR.</translation>
    </message>
    <message>
        <source>Load the plug-ins of DIR.</source>
        <translation>Charge les greffons de DIR.</translation>
    </message>
    <message>
        <source>Show texts in the language LANG, such as en or pt_BR.</source>
        <translation>Affiche les textes dans la langue LANG, par exemple en ou pt_BR.</translation>
    </message>
    <message>
        <source>Connection manager with quick links.</source>
        <translation>Gestionnaire de connexions avec liens rapides.</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>Argument inattendu «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Empty value after &quot;--%1&quot;.</source>
        <translation>Valeur vide après «&#xa0;--%1&#xa0;».</translation>
    </message>
    <message>
        <source>No such kind of connection: &quot;%1&quot;.</source>
        <translation>Ce type de connexion n’existe pas&#xa0;: «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Print the quick links and exit. Needs no graphical session.</source>
        <translation>Affiche les liens rapides et quitte. Ne nécessite pas de session graphique.</translation>
    </message>
    <message>
        <source>%1 Try --help.</source>
        <translation>%1 Essayez --help.</translation>
    </message>
    <message>
        <source>Wait in the tray without a window; where there is no tray, the window shows.</source>
        <translation>Attend dans la zone de notification, sans fenêtre ; sans cette zone, la fenêtre s’affiche.</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>Le dossier « %1 » n’existe pas.</translation>
    </message>
    <message>
        <source>It is running already, as process %1, with the folder %2.</source>
        <translation>Le programme est déjà en cours d’exécution, processus %1, avec le dossier %2.</translation>
    </message>
    <message>
        <source>Watch connections of type KIND in this run, whatever the settings say: mobile (mobile broadband), any (whatever has a default route) or manual (you press a button).</source>
        <translation>Surveille pour cette fois les connexions de type KIND, quels que soient les paramètres&#xa0;: mobile (haut débit mobile), any (tout ce qui a une route par défaut) ou manual (vous appuyez sur un bouton).</translation>
    </message>
    <message>
        <source>There is no plug-in in the folder &quot;%1&quot;.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» ne contient aucun greffon.</translation>
    </message>
</context>
<context>
    <name>CommonUtils</name>
    <message>
        <source>No program could be started for this address:</source>
        <translation>Aucun programme n’a pu être lancé pour cette adresse&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Second button of messages. Up to about 14 characters.</extracomment>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>ConnectionDecisions</name>
    <message>
        <source>No links opened</source>
        <translation>Aucun lien ouvert</translation>
    </message>
    <message>
        <source>Links marked for a connection open</source>
        <translation>Les liens marqués pour une connexion s’ouvrent</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
</context>
<context>
    <name>ConnectionPage</name>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>In this run the command line says which connections count. What you choose here counts from the next start on.</source>
        <translation>Pour cette fois, la ligne de commande dit quelles connexions comptent. Ce que vous choisissez ici comptera à partir du prochain démarrage.</translation>
    </message>
    <message>
        <source>&amp;Mobile broadband</source>
        <translation>Haut débit &amp;mobile</translation>
    </message>
    <message>
        <source>An&amp;y plan</source>
        <translation>&amp;Tout forfait</translation>
    </message>
    <message>
        <source>Only the plans &amp;ticked here</source>
        <translation>&amp;Seulement les forfaits cochés ici</translation>
    </message>
    <message>
        <source>Not while &amp;roaming</source>
        <translation>Pas en &amp;itinérance</translation>
    </message>
    <message>
        <source>&amp;Any connection</source>
        <translation>Toute &amp;connexion</translation>
    </message>
    <message>
        <source>My own &amp;button</source>
        <translation>Mon propre &amp;bouton</translation>
    </message>
    <message>
        <source>%1 (not there now)</source>
        <translation>%1 (absent pour l’instant)</translation>
    </message>
    <message>
        <source>NetworkManager does not say which plans there are.</source>
        <translation>NetworkManager ne dit pas quels forfaits existent.</translation>
    </message>
    <message>
        <source>While none is ticked, any plan counts.</source>
        <translation>Tant qu’aucun n’est coché, tout forfait compte.</translation>
    </message>
    <message>
        <source>There are no mobile plans yet.</source>
        <translation>Il n’y a pas encore de forfait mobile.</translation>
    </message>
</context>
<context>
    <name>ConnectionPanel</name>
    <message>
        <source>&amp;Disconnect</source>
        <translation>&amp;Déconnecter</translation>
    </message>
    <message>
        <source>Co&amp;nnect</source>
        <translation>Co&amp;nnecter</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>Connexion&#xa0;:</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>Périphérique&#xa0;:</translation>
    </message>
    <message>
        <source>Operator:</source>
        <translation>Opérateur&#xa0;:</translation>
    </message>
    <message>
        <source>Since:</source>
        <translation>Depuis&#xa0;:</translation>
    </message>
</context>
<context>
    <name>ConnectionTexts</name>
    <message>
        <source>%1: %2</source>
        <comment>state and name of the connection</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Connexion en cours…</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>This network asks for a login first.</source>
        <translation>Ce réseau demande d’abord une identification.</translation>
    </message>
    <message>
        <source>The Internet is out of reach.</source>
        <translation>Internet est inaccessible.</translation>
    </message>
    <message>
        <source>Press Connect when your connection is up.</source>
        <translation>Appuyez sur «&#xa0;Connecter&#xa0;» quand votre connexion est établie.</translation>
    </message>
    <message>
        <source>Waiting for mobile broadband.</source>
        <translation>En attente du haut débit mobile.</translation>
    </message>
    <message>
        <source>Waiting for a connection.</source>
        <translation>En attente d’une connexion.</translation>
    </message>
    <message>
        <source>before this program started</source>
        <translation>avant le démarrage de ce programme</translation>
    </message>
    <message>
        <source>NetworkManager is not running</source>
        <translation>NetworkManager n’est pas lancé</translation>
    </message>
    <message>
        <source>Online by Ethernet; waiting for mobile broadband.</source>
        <translation>En ligne par Ethernet&#xa0;; en attente du haut débit mobile.</translation>
    </message>
    <message>
        <source>Online by Wi-Fi; waiting for mobile broadband.</source>
        <translation>En ligne par Wi-Fi&#xa0;; en attente du haut débit mobile.</translation>
    </message>
    <message>
        <source>Online by another connection; waiting for mobile broadband.</source>
        <translation>En ligne par une autre connexion&#xa0;; en attente du haut débit mobile.</translation>
    </message>
    <message>
        <source>Roaming; waiting for your own network.</source>
        <translation>Itinérance&#xa0;; en attente de votre propre réseau.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Vérification…</translation>
    </message>
</context>
<context>
    <name>DesktopOpener</name>
    <message>
        <source>There is no such file or folder:</source>
        <translation>Ce fichier ou dossier n’existe pas&#xa0;:</translation>
    </message>
    <message>
        <source>No program was found that opens this:</source>
        <translation>Aucun programme trouvé pour ouvrir ceci&#xa0;:</translation>
    </message>
    <message>
        <source>The program that opens this reported a failure:</source>
        <translation>Le programme qui ouvre ceci a signalé un échec&#xa0;:</translation>
    </message>
    <message>
        <source>The desktop could not open this:</source>
        <translation>Le bureau n’a pas pu ouvrir ceci&#xa0;:</translation>
    </message>
    <message>
        <source>Opening this needs the program &quot;xdg-open&quot;, which could not be started:</source>
        <translation>L’ouverture nécessite le programme «&#xa0;xdg-open&#xa0;», qui n’a pas pu être lancé&#xa0;:</translation>
    </message>
</context>
<context>
    <name>DisplayChoice</name>
    <message>
        <source>On Wayland the package %1 is needed, which is not installed.</source>
        <translation>Sous Wayland, le paquet %1 est nécessaire, mais il n’est pas installé.</translation>
    </message>
    <message>
        <source>There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set.</source>
        <translation>Aucun écran : ni DISPLAY ni WAYLAND_DISPLAY n’est défini.</translation>
    </message>
    <message>
        <source>QT_QPA_PLATFORM asks for X, but DISPLAY is not set.</source>
        <translation>QT_QPA_PLATFORM demande X, mais DISPLAY n’est pas défini.</translation>
    </message>
    <message>
        <source>The display &quot;%1&quot; does not answer.</source>
        <translation>L’écran «&#xa0;%1&#xa0;» ne répond pas.</translation>
    </message>
</context>
<context>
    <name>EditLinkButton</name>
    <message>
        <source>&amp;Edit Links</source>
        <translation>Modi&amp;fier les liens</translation>
    </message>
    <message>
        <source>&amp;Edit Link</source>
        <translation>Modi&amp;fier le lien</translation>
    </message>
</context>
<context>
    <name>EntryRun</name>
    <message>
        <source>The application of this could not be started:</source>
        <translation>L’application correspondante n’a pas pu être lancée&#xa0;:</translation>
    </message>
</context>
<context>
    <name>FailureList</name>
    <message>
        <source>Not opened</source>
        <translation>Non ouvert</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>name of a link and its address</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>FixedReason</name>
    <message>
        <source>Fixed by the administrator of this computer</source>
        <translation>Fixé par l’administrateur de cet ordinateur</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Start with the session</source>
        <translation>Démarrer avec la session</translation>
    </message>
    <message>
        <source>Vellum Connect then waits in the tray. Where the desktop has no tray, its window shows.</source>
        <translation>Vellum Connect attend alors dans la zone de notification. Si le bureau n’en a pas, sa fenêtre s’affiche.</translation>
    </message>
    <message>
        <source>This choice cannot be kept in %1.</source>
        <translation>Ce choix ne peut pas être enregistré dans %1.</translation>
    </message>
</context>
<context>
    <name>GuardMessages</name>
    <message>
        <source>The file with your quick links is missing.</source>
        <translation>Le fichier de vos liens rapides manque.</translation>
    </message>
    <message>
        <source>The file with your quick links is empty.</source>
        <translation>Le fichier de vos liens rapides est vide.</translation>
    </message>
    <message>
        <source>The file with your quick links is damaged.</source>
        <translation>Le fichier de vos liens rapides est endommagé.</translation>
    </message>
    <message>
        <source>The file with your quick links is far too large.</source>
        <translation>Le fichier de vos liens rapides est beaucoup trop grand.</translation>
    </message>
    <message>
        <source>The file with your quick links cannot be read.</source>
        <translation>Le fichier de vos liens rapides ne peut pas être lu.</translation>
    </message>
    <message>
        <source>In the place of the file with your quick links there is something that is no file.</source>
        <translation>À la place du fichier de vos liens rapides se trouve quelque chose qui n’est pas un fichier.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Le disque est plein.</translation>
    </message>
    <message>
        <source>You are not allowed to write to its folder.</source>
        <translation>Vous n’avez pas le droit d’écrire dans son dossier.</translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are in place again.</source>
        <translation>
            <numerusform>Le lien du %1 est de nouveau en place.</numerusform>
            <numerusform>Les %n liens du %1 sont de nouveau en place.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 can be brought back.</source>
        <translation>
            <numerusform>Le lien du %1 peut être rétabli.</numerusform>
            <numerusform>Les %n liens du %1 peuvent être rétablis.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n link(s) of %1 are kept, but could not be put in place.</source>
        <translation>
            <numerusform>Le lien du %1 est conservé, mais n’a pas pu être remis en place.</numerusform>
            <numerusform>Les %n liens du %1 sont conservés, mais n’ont pas pu être remis en place.</numerusform>
        </translation>
    </message>
    <message>
        <source>No earlier state of the links is known.</source>
        <translation>Aucun état antérieur des liens n’est connu.</translation>
    </message>
    <message>
        <source>What was found there was kept:</source>
        <translation>Ce qui s’y trouvait a été conservé&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Bring Back</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Leave Out</source>
        <translation>&amp;Laisser de côté</translation>
    </message>
    <message>
        <source>The change of your quick links could not be saved.</source>
        <translation>La modification de vos liens rapides n’a pas pu être enregistrée.</translation>
    </message>
    <message>
        <source>The quick links were changed by another program. Do you want to load them, or to keep yours?</source>
        <translation>Les liens rapides ont été modifiés par un autre programme. Voulez-vous les charger ou garder les vôtres&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Load Them</source>
        <translation>Les &amp;charger</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>&amp;Garder les miens</translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation>Liens rapides</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>The quick links that were prepared for you could not be put in place. The program tries again at its next start.</source>
        <translation>Les liens rapides préparés pour vous n’ont pas pu être mis en place. Le programme réessaiera à son prochain démarrage.</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>Added: %1</source>
        <translation>Ajouté&#xa0;: %1</translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation>Supprimé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Edited: %1</source>
        <translation>Modifié&#xa0;: %1</translation>
    </message>
    <message>
        <source>Moved: %1</source>
        <translation>Déplacé&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n autre</numerusform>
            <numerusform>%n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>%1 (now)</source>
        <translation>%1 (maintenant)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Liens</translation>
    </message>
    <message>
        <source>What Changed</source>
        <translation>Ce qui a changé</translation>
    </message>
    <message>
        <source>&amp;Go Back to This</source>
        <translation>&amp;Revenir à cet état</translation>
    </message>
    <message>
        <source>The states that your quick links were in, newest first; the last %1 are kept.</source>
        <translation>Les états de vos liens rapides, du plus récent au plus ancien&#xa0;; les %1 derniers sont conservés.</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>The program started</source>
        <translation>Le programme a démarré</translation>
    </message>
    <message>
        <source>A connection came up</source>
        <translation>Une connexion a été établie</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>&amp;System Language</source>
        <translation>Langue du &amp;système</translation>
    </message>
</context>
<context>
    <name>LinkAddresses</name>
    <message>
        <source>of several marked web addresses only the lowest opens</source>
        <translation>de plusieurs adresses web marquées, seule la plus basse s’ouvre</translation>
    </message>
</context>
<context>
    <name>LinkButtons</name>
    <message>
        <source>No quick links yet. Add some with Tools &gt; Settings.</source>
        <translation>Aucun lien rapide. Ajoutez-en avec Outils &gt; Paramètres.</translation>
    </message>
    <message>
        <source>No quick link has this in its name.</source>
        <translation>Aucun lien rapide ne contient cela dans son nom.</translation>
    </message>
</context>
<context>
    <name>LinkOpener</name>
    <message>
        <source>There is no such file or folder, or you are not allowed to see it:</source>
        <translation>Ce fichier ou dossier n’existe pas, ou vous n’avez pas le droit de le voir&#xa0;:</translation>
    </message>
    <message>
        <source>You are not allowed to open this:</source>
        <translation>Vous n’avez pas le droit d’ouvrir ceci&#xa0;:</translation>
    </message>
    <message>
        <source>This is no valid address:</source>
        <translation>Cette adresse n’est pas valide&#xa0;:</translation>
    </message>
    <message>
        <source>Addresses that are themselves a script or a page are never opened:</source>
        <translation>Les adresses qui sont elles-mêmes un script ou une page ne sont jamais ouvertes&#xa0;:</translation>
    </message>
    <message>
        <source>This link leads nowhere: it has no path.</source>
        <translation>Ce lien ne mène nulle part&#xa0;: il n’a pas de chemin.</translation>
    </message>
    <message>
        <source>The path of an application or file must begin with &quot;/&quot;:</source>
        <translation>Le chemin d’une application ou d’un fichier doit commencer par «&#xa0;/&#xa0;»&#xa0;:</translation>
    </message>
    <message>
        <source>Too many questions wait for an answer to ask about this address, too:</source>
        <translation>Trop de questions attendent une réponse pour demander aussi ce qu’il en est de cette adresse&#xa0;:</translation>
    </message>
    <message>
        <source>This is too long to be opened:</source>
        <translation>Ceci est trop long pour être ouvert&#xa0;:</translation>
    </message>
</context>
<context>
    <name>LinkTable</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>Greffon</translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation>Aucun lien rapide</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;Why…</source>
        <translation>&amp;Pourquoi…</translation>
    </message>
    <message>
        <source>See which links opened or did not, and why</source>
        <translation>Voir quels liens se sont ouverts ou non, et pourquoi</translation>
    </message>
    <message>
        <source>Quick Links</source>
        <translation>Liens rapides</translation>
    </message>
    <message>
        <source>No quick links</source>
        <translation>Aucun lien rapide</translation>
    </message>
    <message>
        <source>&amp;Connection</source>
        <translation>&amp;Connexion</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Quick Links</source>
        <translation>&amp;Liens rapides</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Paramètres…</translation>
    </message>
    <message>
        <source>Add, change and order quick links</source>
        <translation>Ajouter, modifier et ordonner les liens rapides</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Status Bar</source>
        <translation>Barre d’é&amp;tat</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>&amp;About Vellum Connect</source>
        <translation>À &amp;propos de Vellum Connect</translation>
    </message>
    <message>
        <source>About Vellum Connect</source>
        <translation>À propos de Vellum Connect</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Vellum Connect %1&lt;/h3&gt;&lt;p&gt;Connection manager with quick links.&lt;/p&gt;&lt;p&gt;Free software under the MIT licence.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Vellum Connect %1&lt;/h3&gt;&lt;p&gt;Gestionnaire de connexions avec liens rapides.&lt;/p&gt;&lt;p&gt;Logiciel libre sous licence MIT.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Édi&amp;tion</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Take back the last change of the quick links</source>
        <translation>Annuler la dernière modification des liens rapides</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Make the change again that was taken back</source>
        <translation>Rétablir la modification annulée</translation>
    </message>
    <message>
        <source>&amp;Plug-ins Left Out…</source>
        <translation>&amp;Greffons laissés de côté…</translation>
    </message>
    <message>
        <source>See which plug-ins crashed or hung, and load them again</source>
        <translation>Voir quels greffons ont planté ou se sont bloqués, et les charger à nouveau</translation>
    </message>
    <message>
        <source>Plug-ins not loaded: %1</source>
        <translation>Greffons non chargés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>Quitter le programme</translation>
    </message>
    <message>
        <source>&amp;Find a Quick Link</source>
        <translation>&amp;Chercher un lien rapide</translation>
    </message>
    <message>
        <source>Show only the quick links with a name that you type</source>
        <translation>N’afficher que les liens rapides dont vous tapez le nom</translation>
    </message>
    <message>
        <source>Find a quick link</source>
        <translation>Chercher un lien rapide</translation>
    </message>
</context>
<context>
    <name>MenuManager</name>
    <message>
        <source>You picked it</source>
        <translation>Vous l’avez choisi</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Ouvrir %1</translation>
    </message>
</context>
<context>
    <name>OfferLine</name>
    <message>
        <source>&amp;Put Back</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Leave &amp;As It Is</source>
        <translation>&amp;Laisser ainsi</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message>
        <source>Opened</source>
        <translation>Ouvert</translation>
    </message>
    <message>
        <source>You were asked first</source>
        <translation>La question vous a d’abord été posée</translation>
    </message>
    <message>
        <source>Not opened: %1</source>
        <translation>Non ouvert&#xa0;: %1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Échec&#xa0;: %1</translation>
    </message>
    <message>
        <source>Unknown link</source>
        <translation>Lien inconnu</translation>
    </message>
    <message>
        <source>Not opened: you did not agree</source>
        <translation>Non ouvert&#xa0;: vous n’avez pas accepté</translation>
    </message>
</context>
<context>
    <name>OpeningCause</name>
    <message>
        <source>A plug-in asked for it</source>
        <translation>Un greffon l’a demandé</translation>
    </message>
</context>
<context>
    <name>PluginMessages</name>
    <message>
        <source>This was not loaded, because another user owns %1:</source>
        <translation>Ceci n’a pas été chargé, car %1 appartient à un autre utilisateur&#xa0;:</translation>
    </message>
    <message>
        <source>This was not loaded, because other users may change %1:</source>
        <translation>Ceci n’a pas été chargé, car d’autres utilisateurs peuvent modifier %1&#xa0;:</translation>
    </message>
    <message>
        <source>This was not loaded, because it is not known who may change %1:</source>
        <translation>Ceci n’a pas été chargé, car on ne sait pas qui peut modifier %1&#xa0;:</translation>
    </message>
    <message>
        <source>This was not loaded, because it passes itself off as the quick links of this program:</source>
        <translation>Ceci n’a pas été chargé, car il se fait passer pour les liens rapides de ce programme&#xa0;:</translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was starting, and was left out.</source>
        <translation>Le greffon %1 n’a pas répondu pendant son démarrage et a été laissé de côté.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish starting last time (it crashed or hung), and was left out.</source>
        <translation>Le greffon %1 n’a pas fini de démarrer la dernière fois (il a planté ou s’est bloqué) et a été laissé de côté.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not answer while it was ending, and was left out.</source>
        <translation>Le greffon %1 n’a pas répondu pendant sa fermeture et a été laissé de côté.</translation>
    </message>
    <message>
        <source>The plug-in %1 did not finish ending last time (it crashed or hung), and was left out.</source>
        <translation>Le greffon %1 n’a pas fini de se fermer la dernière fois (il a planté ou s’est bloqué) et a été laissé de côté.</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Greffons</translation>
    </message>
    <message>
        <source>&amp;Load at the Next Start</source>
        <translation>&amp;Charger au prochain démarrage</translation>
    </message>
    <message>
        <source>Leave &amp;Out</source>
        <translation>&amp;Laisser de côté</translation>
    </message>
</context>
<context>
    <name>ProgramEnd</name>
    <message>
        <source>it used memory that it does not have</source>
        <translation>il a utilisé de la mémoire qu’il n’a pas</translation>
    </message>
    <message>
        <source>it noticed a mistake of its own</source>
        <translation>il a remarqué une erreur de sa part</translation>
    </message>
    <message>
        <source>it divided by zero or the like</source>
        <translation>il a divisé par zéro ou fait un calcul semblable</translation>
    </message>
    <message>
        <source>it came to an instruction that the processor does not know</source>
        <translation>il est arrivé à une instruction inconnue du processeur</translation>
    </message>
    <message>
        <source>it asked the system for what is forbidden</source>
        <translation>il a demandé au système ce qui est interdit</translation>
    </message>
    <message>
        <source>This program ended at once, with the error code %1:</source>
        <translation>Ce programme s’est terminé aussitôt avec le code d’erreur %1&#xa0;:</translation>
    </message>
    <message>
        <source>This program crashed (signal %1, %2):</source>
        <translation>Ce programme a planté (signal %1, %2)&#xa0;:</translation>
    </message>
    <message>
        <source>This program was ended by the system or by another program (signal %1):</source>
        <translation>Ce programme a été arrêté par le système ou par un autre programme (signal %1)&#xa0;:</translation>
    </message>
</context>
<context>
    <name>ProgramRun</name>
    <message>
        <source>This program could not be started:</source>
        <translation>Ce programme n’a pas pu être lancé&#xa0;:</translation>
    </message>
</context>
<context>
    <name>PutBackOffer</name>
    <message>
        <source>&quot;%1&quot; no longer opens by itself.</source>
        <translation>«&#xa0;%1&#xa0;» ne s’ouvre plus automatiquement.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when connected.</source>
        <translation>«&#xa0;%1&#xa0;» ne s’ouvre plus à la connexion.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer has a recipient.</source>
        <translation>«&#xa0;%1&#xa0;» n’a plus de destinataire.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; no longer opens when Vellum Connect starts.</source>
        <translation>«&#xa0;%1&#xa0;» ne s’ouvre plus au démarrage de Vellum Connect.</translation>
    </message>
</context>
<context>
    <name>QuickLinkUIPlugin</name>
    <message>
        <source>IDS_SETTING_NAME</source>
        <extracomment>Caption of the page in the list of the settings dialog. Up to about 20 characters.</extracomment>
        <translation>Liens rapides</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TAB</source>
        <extracomment>Title of the only tab of the settings page, above the table. Up to about 30 characters (the tab widget is 280 pixels wide).</extracomment>
        <translation>Liens rapides</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_ORDER</source>
        <extracomment>Label above the table of the settings page. Up to about 35 characters (250 pixels). Labels are low: a capital letter with an accent, such as an umlaut, loses it with Qt 6.</extracomment>
        <translation>Ordre d’ouverture des liens&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME</source>
        <extracomment>Header of the table&apos;s first column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>Nom</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_TYPE</source>
        <extracomment>Header of the table&apos;s second column. Up to about 12 characters (100 pixels).</extracomment>
        <translation>Type</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_UP</source>
        <extracomment>Button below the table: moves the link up. Up to about 14 characters; the letter after the ampersand must differ from those of the page&apos;s other buttons.</extracomment>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DOWN</source>
        <extracomment>Button below the table: moves the link down. As IDS_LINK_SETTING_UP.</extracomment>
        <translation>&amp;Descendre</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW</source>
        <extracomment>Button beside the table: opens the dialog for a new link. Up to about 12 characters; with an ampersand as IDS_LINK_SETTING_UP.</extracomment>
        <translation>&amp;Nouveau…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT</source>
        <extracomment>Button beside the table: opens the dialog that changes the chosen link. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>Modi&amp;fier…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DEL</source>
        <extracomment>Button beside the table: deletes the chosen link after a question. As IDS_LINK_SETTING_NEW.</extracomment>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TITLE</source>
        <extracomment>Title of the dialog for a new link. Up to about 16 characters: most desktops put the program&apos;s name behind it.</extracomment>
        <translation>Nouveau lien</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_EDIT_TITLE</source>
        <extracomment>Title of the dialog that changes a link. As IDS_LINK_SETTING_NEW_TITLE.</extracomment>
        <translation>Modifier le lien</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_NAME</source>
        <extracomment>Label of the dialog&apos;s name field. 51 pixels: about 6 characters.</extracomment>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TYPE</source>
        <extracomment>Label of the dialog&apos;s choice of type. 70 pixels: about 9 characters.</extracomment>
        <translation>Type&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_LINK_TYPE_APPLICATION</source>
        <extracomment>Type of a link that starts a program: in the dialog&apos;s choice and on its tab, and in the table. Up to about 13 characters (100 pixels).</extracomment>
        <translation>Application</translation>
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
        <translation>Fichier du programme&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_BROWSER</source>
        <extracomment>Button beside that field: opens the choice of a file. 80 pixels: up to about 10 characters.</extracomment>
        <translation>Parcourir…</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_APP_PARA</source>
        <extracomment>Label above the field with the program&apos;s parameters. Up to about 35 characters (250 pixels).</extracomment>
        <translation>Paramètres&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_IE_URL</source>
        <extracomment>Label above the field with the Internet address. Up to about 35 characters (250 pixels).</extracomment>
        <translation>Adresse&#xa0;:</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_TAB_EMAIL_URL</source>
        <extracomment>What an e-mail link does; the only text on its panel. Up to about 35 characters (250 pixels), one line.</extracomment>
        <translation>Ouvre votre logiciel de messagerie.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK_STARTUP</source>
        <extracomment>Check box of the dialog. Up to about 32 characters (230 pixels).</extracomment>
        <translation>Ouvrir quand Vellum Connect démarre</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CHECK</source>
        <extracomment>Check box of the dialog: opens the link when a data connection comes up. Up to about 32 characters (230 pixels).</extracomment>
        <translation>Ouvrir à la connexion</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_OK</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NEW_CANCEL</source>
        <extracomment>Button of the dialog. Up to about 14 characters.</extracomment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>IDS_LINK_PROMPT</source>
        <extracomment>Title of every message about quick links. Up to about 30 characters.</extracomment>
        <translation>Liens rapides</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_INVALID_URL</source>
        <extracomment>Message: the address of the link that was picked is none. A sentence or two; keep what stands in quotation marks.</extracomment>
        <translation>Impossible d’ouvrir cette adresse. Une adresse doit contenir «&#xa0;http://&#xa0;», «&#xa0;https://&#xa0;», «&#xa0;ftp&#xa0;» ou «&#xa0;www.&#xa0;».</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_NAME_SAME</source>
        <extracomment>Message: the dialog&apos;s name is in use. A sentence or two.</extracomment>
        <translation>Un autre lien rapide porte déjà ce nom. Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_FILENOTEXIST</source>
        <extracomment>Message: the dialog&apos;s program file is missing, or none was chosen. A sentence or two.</extracomment>
        <translation>Ce fichier de programme n’existe pas. Choisissez-en un.</translation>
    </message>
    <message>
        <source>IDS_LINK_SETTING_DELETE_CONFORM</source>
        <extracomment>Question before a link is deleted, with the buttons IDS_OK and IDS_CANCEL. A sentence or two.</extracomment>
        <translation>Supprimer le lien rapide sélectionné&#xa0;?</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <extracomment>First button of messages. Up to about 14 characters.</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_CANCEL</source>
        <extracomment>Second button of messages. Up to about 14 characters.</extracomment>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>None of the loaded plug-ins has settings.</source>
        <translation>Aucun des greffons chargés n’a de paramètres.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Programs start without the parameters that a link has for them.</source>
        <translation>Les programmes démarrent sans les paramètres que contient leur lien.</translation>
    </message>
</context>
<context>
    <name>TransitionRules</name>
    <message>
        <source>was up before the program was there</source>
        <translation>était établie avant le démarrage du programme</translation>
    </message>
    <message>
        <source>up, waiting to be in the Internet</source>
        <extracomment>&quot;In the Internet&quot; means that the Internet can be reached.</extracomment>
        <translation>établie, en attente d’Internet</translation>
    </message>
    <message>
        <source>up and in the Internet</source>
        <translation>établie, avec Internet</translation>
    </message>
    <message>
        <source>up, and a portal wants a login</source>
        <translation>établie, un portail demande une identification</translation>
    </message>
    <message>
        <source>up, but not in the Internet within 10 s</source>
        <translation>établie, mais sans Internet pendant 10 s</translation>
    </message>
    <message>
        <source>went down before it was told</source>
        <translation>interrompue avant d’être signalée</translation>
    </message>
    <message>
        <source>another connection took over</source>
        <translation>une autre connexion a pris le relais</translation>
    </message>
    <message>
        <source>down, waiting whether it comes back</source>
        <translation>interrompue, en attente de son retour</translation>
    </message>
    <message>
        <source>down</source>
        <translation>interrompue</translation>
    </message>
    <message>
        <source>the service is gone, waiting whether it comes back</source>
        <translation>le service a disparu, en attente de son retour</translation>
    </message>
    <message>
        <source>handed over, not a new connection</source>
        <translation>relayée, pas une nouvelle connexion</translation>
    </message>
    <message>
        <source>was up before sleep, not a new connection</source>
        <translation>était établie avant la mise en veille, pas une nouvelle connexion</translation>
    </message>
    <message>
        <source>outlived a restart of the service, not a new connection</source>
        <translation>a survécu à un redémarrage du service, pas une nouvelle connexion</translation>
    </message>
    <message>
        <source>was down again when asked, not told</source>
        <extracomment>The host asks once more before it tells of a connection that came up.</extracomment>
        <translation>était de nouveau interrompue à la vérification, non signalée</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Show Window</source>
        <translation>Afficher la fenêtre</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Vellum Connect keeps running here. Click the icon to show its window.</source>
        <translation>Vellum Connect continue de fonctionner ici. Cliquez sur l’icône pour afficher sa fenêtre.</translation>
    </message>
</context>
<context>
    <name>WhyWindow</name>
    <message>
        <source>What Opened, and Why</source>
        <translation>Ce qui s’est ouvert, et pourquoi</translation>
    </message>
    <message>
        <source>What was decided about connections and links, newest first. The last %1 decisions are remembered until the program ends, and written to no file.</source>
        <translation>Ce qui a été décidé des connexions et des liens, du plus récent au plus ancien. Les %1 dernières décisions sont gardées en mémoire jusqu’à la fin du programme, et ne sont écrites dans aucun fichier.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Link or Connection</source>
        <translation>Lien ou connexion</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>Cause</translation>
    </message>
    <message>
        <source>What Was Done</source>
        <translation>Ce qui a été fait</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
</TS>
