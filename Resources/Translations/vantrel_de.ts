<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AppProcess</name>
    <message>
        <source>There is no display here to show the menu on.</source>
        <extracomment>Error when the menu is wanted where nothing can be shown, as over ssh.</extracomment>
        <translation>Hier gibt es keinen Bildschirm, auf dem sich das Menü anzeigen ließe.</translation>
    </message>
    <message>
        <source>Vantrel.app can&apos;t be found. Put it into Applications.</source>
        <extracomment>Error when the command line can&apos;t find the app.</extracomment>
        <translation>Vantrel.app wurde nicht gefunden. Es gehört in den Ordner „Programme“.</translation>
    </message>
</context>
<context>
    <name>Browser</name>
    <message>
        <source>Private Window</source>
        <extracomment>A Safari or Firefox private browsing window, in the profiles list and the menu.</extracomment>
        <translation>Privates Fenster</translation>
    </message>
    <message>
        <source>InPrivate Window</source>
        <extracomment>A Microsoft Edge private window, in the profiles list and the menu. Edge&apos;s own name for it.</extracomment>
        <translation>InPrivate-Fenster</translation>
    </message>
    <message>
        <source>Incognito Window</source>
        <extracomment>A Chrome-family private window, in the profiles list and the menu. Chrome&apos;s own name for it.</extracomment>
        <translation>Inkognitofenster</translation>
    </message>
</context>
<context>
    <name>BundleLauncherWriter</name>
    <message>
        <source>Create Launcher App</source>
        <extracomment>Title of the panel in which the place of a launcher app is chosen.</extracomment>
        <translation>Starter-App erstellen</translation>
    </message>
    <message>
        <source>Open “%1” from Spotlight, Launchpad, the Dock or Finder. Links dropped on it open in the profile.</source>
        <extracomment>Message of the panel in which the place of a launcher app is chosen. The placeholder is a profile with its browser.</extracomment>
        <translation>„%1“ lässt sich damit aus Spotlight, Launchpad, dem Dock oder dem Finder öffnen. Darauf gezogene Links werden in diesem Profil geöffnet.</translation>
    </message>
    <message>
        <source>Create</source>
        <extracomment>Button of the panel in which the place of a launcher app is chosen.</extracomment>
        <translation>Erstellen</translation>
    </message>
    <message>
        <source>Vantrel is missing a part that it needs to make launcher apps. Download Vantrel again from %1</source>
        <extracomment>Error when the app is damaged. The placeholder is a web address, which ends the sentence without a stop.</extracomment>
        <translation>Vantrel fehlt ein Teil, der zum Erstellen von Starter-Apps nötig ist. Bitte Vantrel noch einmal laden: %1</translation>
    </message>
    <message>
        <source>There is no launcher of this profile at %1.</source>
        <extracomment>Error when a launcher is to be removed. The placeholder is where it was looked for.</extracomment>
        <translation>Unter %1 gibt es keinen Starter für dieses Profil.</translation>
    </message>
</context>
<context>
    <name>BundleWorkspace</name>
    <message>
        <source>%1 is no longer a usable application. Check that the browser is installed.</source>
        <extracomment>Error when a browser was removed or damaged since it was found. The placeholder is its path.</extracomment>
        <translation>%1 ist kein brauchbares Programm mehr. Bitte prüfen, ob der Browser installiert ist.</translation>
    </message>
</context>
<context>
    <name>BusApplication</name>
    <message>
        <source>Vantrel is running on this session bus, but doesn&apos;t answer.</source>
        <extracomment>Error when the app runs elsewhere in the session but hangs.</extracomment>
        <translation>Vantrel läuft an diesem Sitzungsbus, antwortet aber nicht.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Vantrel isn&apos;t running.</source>
        <extracomment>Error of the command line.</extracomment>
        <translation>Vantrel läuft nicht.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <extracomment>Help of the command line, beside &quot;--help&quot;.</extracomment>
        <translation>Diese Hilfe anzeigen.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>Help of the command line. The placeholder is how a command is written.
----------
Help of the command line.</extracomment>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <extracomment>Error of the command line. The placeholder is the name of an argument, as the help has it.</extracomment>
        <translation>%1 fehlt.</translation>
    </message>
    <message>
        <source>“%1” is one word too many.</source>
        <extracomment>Error of the command line. The placeholder is an argument.</extracomment>
        <translation>„%1“ ist ein Wort zu viel.</translation>
    </message>
    <message>
        <source>%1
Try “%2”.</source>
        <extracomment>Error of the command line. First: what is wrong; second: a command.</extracomment>
        <translation>%1
Hilfe gibt „%2“.</translation>
    </message>
    <message>
        <source>Opens a chosen profile of a chosen web browser in one step.</source>
        <translation>Öffnet ein bestimmtes Profil eines bestimmten Webbrowsers in einem Schritt.</translation>
    </message>
    <message>
        <source>Opens the app&apos;s settings window.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>Öffnet das Einstellungsfenster der App.</translation>
    </message>
    <message>
        <source>Opens the app&apos;s menu at the pointer.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>Öffnet das Menü der App am Mauszeiger.</translation>
    </message>
    <message>
        <source>Ends the app.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>Beendet die App.</translation>
    </message>
    <message>
        <source>“%1” alone starts the app, or shows its settings when it is running.</source>
        <extracomment>Help of the command line. The placeholder is a command.</extracomment>
        <translation>„%1“ allein startet die App oder zeigt ihre Einstellungen, wenn sie schon läuft.</translation>
    </message>
    <message>
        <source>“%1” hands links to the app.</source>
        <extracomment>Help of the command line. The placeholder is a command.</extracomment>
        <translation>„%1“ übergibt Links an die App.</translation>
    </message>
    <message>
        <source>“vantrel COMMAND --help” tells more. “vantrel --version” prints the version.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>„vantrel COMMAND --help“ erklärt einen Befehl. „vantrel --version“ gibt die Version aus.</translation>
    </message>
    <message>
        <source>There is no command “%1”.</source>
        <extracomment>Error of the command line. The placeholder is what the user wrote.</extracomment>
        <translation>Den Befehl „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>application  %1</source>
        <extracomment>Line of a report on a browser. The placeholder is a file.</extracomment>
        <translation>Programm     %1</translation>
    </message>
    <message>
        <source>data folder  %1</source>
        <extracomment>Line of a report on a browser. The placeholder is a folder.</extracomment>
        <translation>Datenordner  %1</translation>
    </message>
    <message>
        <source>problem      %1</source>
        <extracomment>Line of a report on a browser. The placeholder is an error.</extracomment>
        <translation>Problem      %1</translation>
    </message>
    <message>
        <source>profiles     %1</source>
        <extracomment>Line of a report on a browser. The placeholder is a number.</extracomment>
        <translation>Profile      %1</translation>
    </message>
    <message>
        <source>does not exist for this system</source>
        <extracomment>In place of the files that were looked for, in a report on a browser.</extracomment>
        <translation>gibt es für dieses System nicht</translation>
    </message>
    <message>
        <source>Not installed, and what was looked for:</source>
        <extracomment>Headline of a list of browsers with the files that were looked for.</extracomment>
        <translation>Nicht installiert, und wonach gesucht wurde:</translation>
    </message>
    <message>
        <source>Tells of each browser that Vantrel knows where it was looked for, where its data is, how
many profiles it has, and what failed.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>Berichtet zu jedem Browser, den Vantrel kennt, wo nach ihm gesucht wurde, wo seine Daten
liegen, wie viele Profile er hat und was fehlgeschlagen ist.</translation>
    </message>
    <message>
        <source>Print one JSON array.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>Ein JSON-Array ausgeben.</translation>
    </message>
    <message>
        <source>Makes a launcher for a profile, for menus, docks and desktops. Prints where it is.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>Erstellt einen Starter für ein Profil, für Menüs, Docks und Schreibtische. Gibt aus, wo er liegt.</translation>
    </message>
    <message>
        <source>Remove the profile&apos;s launcher instead.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>Stattdessen den Starter des Profils entfernen.</translation>
    </message>
    <message>
        <source>Put it into this folder instead of the applications folder.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>In diesem Ordner statt im Ordner für Anwendungen ablegen.</translation>
    </message>
    <message>
        <source>Prints the link that opens a profile, for other programs and scripts.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>Gibt den Link aus, der ein Profil öffnet, für andere Programme und Skripte.</translation>
    </message>
    <message>
        <source>Web links to be opened in the profile.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>Weblinks, die im Profil geöffnet werden sollen.</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <extracomment>After a profile in a list: it isn&apos;t shown in the menu.</extracomment>
        <translation>(ausgeblendet)</translation>
    </message>
    <message>
        <source>Lists the profiles in your order: title and id.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>Listet die Profile in der eigenen Reihenfolge auf: Titel und ID.</translation>
    </message>
    <message>
        <source>Also the profiles that you have hidden from the menu.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>Auch die Profile, die im Menü ausgeblendet sind.</translation>
    </message>
    <message>
        <source>No browser Vantrel knows is installed. “vantrel doctor” tells where it looked.</source>
        <extracomment>Error of the command line.</extracomment>
        <translation>Kein Browser, den Vantrel kennt, ist installiert. „vantrel doctor“ zeigt, wo gesucht wurde.</translation>
    </message>
    <message>
        <source>Left out “%1”: only http, https and file links can be opened.</source>
        <extracomment>Note of the command line. The placeholder is what the user gave as a web link.</extracomment>
        <translation>„%1“ wurde ausgelassen: Nur Links mit http, https und file lassen sich öffnen.</translation>
    </message>
    <message>
        <source>The browser of this profile isn&apos;t installed.</source>
        <extracomment>Error when a profile&apos;s browser was removed.</extracomment>
        <translation>Der Browser dieses Profils ist nicht installiert.</translation>
    </message>
    <message>
        <source>An id, a title or a link as “vantrel list” shows them, or a name that only one has.</source>
        <extracomment>Help of the command line: how a profile may be named.</extracomment>
        <translation>Eine ID, ein Titel oder ein Link, wie „vantrel list“ sie zeigt, oder ein eindeutiger Name.</translation>
    </message>
    <message>
        <source>Safari&apos;s profiles can&apos;t be opened from the command line yet.</source>
        <extracomment>Error of the command line.</extracomment>
        <translation>Die Profile von Safari lassen sich noch nicht von der Befehlszeile aus öffnen.</translation>
    </message>
    <message>
        <source>Opens a profile, with web links if you name some.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>Öffnet ein Profil, auf Wunsch mit Weblinks.</translation>
    </message>
    <message>
        <source>Print what would be started instead, a JSON array a line.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>Stattdessen ausgeben, was gestartet würde: ein JSON-Array je Zeile.</translation>
    </message>
    <message>
        <source>Let the app show a failure. PROFILE must be a link; launchers use this.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>Fehler von der App anzeigen lassen. PROFILE muss ein Link sein; Starter nutzen das.</translation>
    </message>
    <message>
        <source>Web links or files to open in it.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>Weblinks oder Dateien, die darin geöffnet werden sollen.</translation>
    </message>
    <message>
        <source>%1&apos;s profiles can&apos;t be read: access to “%2” is denied. Check the folder&apos;s permissions.</source>
        <extracomment>Error of the command line. First: a browser&apos;s name; second: a folder.</extracomment>
        <translation>Die Profile von %1 lassen sich nicht lesen: Der Zugriff auf „%2“ wird verweigert. Bitte die Zugriffsrechte des Ordners prüfen.</translation>
    </message>
    <message>
        <source>%1&apos;s profiles can&apos;t be read: “%2”: %3.</source>
        <extracomment>Error of the command line. First: a browser&apos;s name; second: a folder; third: the system&apos;s reason.</extracomment>
        <translation>Die Profile von %1 lassen sich nicht lesen: „%2“: %3.</translation>
    </message>
    <message>
        <source>Saved profiles unreadable, going on without your order and names: %1: %2</source>
        <extracomment>Error of the command line. First: a file; second: what is wrong with it.</extracomment>
        <translation>Die gespeicherten Profile sind nicht lesbar, es geht ohne die eigene Reihenfolge und die eigenen Namen weiter: %1: %2</translation>
    </message>
    <message>
        <source>… and %1 more: “vantrel list --all” shows them.</source>
        <extracomment>After a list of profiles that was cut. The placeholder is a number.</extracomment>
        <translation>… und %1 weitere: „vantrel list --all“ zeigt sie.</translation>
    </message>
    <message>
        <source>More than one profile is called “%1”. Name one by its title or its id:</source>
        <extracomment>Error of the command line, before a list of profiles. The placeholder is what the user wrote.</extracomment>
        <translation>Mehr als ein Profil heißt „%1“. Bitte den Titel oder die ID eines Profils angeben:</translation>
    </message>
    <message>
        <source>There is no profile “%1”: no browser that Vantrel knows is installed.</source>
        <extracomment>Error of the command line. The placeholder is what the user wrote.</extracomment>
        <translation>Das Profil „%1“ gibt es nicht: Kein Browser, den Vantrel kennt, ist installiert.</translation>
    </message>
    <message>
        <source>There is no profile “%1”. These are there:</source>
        <extracomment>Error of the command line, before a list of profiles. The placeholder is what the user wrote.</extracomment>
        <translation>Das Profil „%1“ gibt es nicht. Vorhanden sind:</translation>
    </message>
    <message>
        <source>Not a profile link: %1</source>
        <extracomment>Error of the command line. The placeholder is a link.</extracomment>
        <translation>Kein Profil-Link: %1</translation>
    </message>
    <message>
        <source>There is no folder “%1”.</source>
        <extracomment>Error of the command line. The placeholder is what the user wrote.</extracomment>
        <translation>Den Ordner „%1“ gibt es nicht.</translation>
    </message>
</context>
<context>
    <name>DesktopLauncherWriter</name>
    <message>
        <source>Create Launcher App</source>
        <extracomment>Title of the panel in which the folder for a launcher is chosen.</extracomment>
        <translation>Starter-App erstellen</translation>
    </message>
    <message>
        <source>Open “%1” from the applications menu, the dock or the desktop. Links dropped on it open in the profile.</source>
        <extracomment>Message of the panel in which the folder for a launcher is chosen. The placeholder is a profile with its browser.</extracomment>
        <translation>„%1“ lässt sich damit aus dem Anwendungsmenü, aus dem Dock oder vom Schreibtisch öffnen. Darauf gezogene Links werden in diesem Profil geöffnet.</translation>
    </message>
    <message>
        <source>Create</source>
        <extracomment>Button of the panel in which the folder for a launcher is chosen.</extracomment>
        <translation>Erstellen</translation>
    </message>
    <message>
        <source>Opens this profile; links dropped on it open in it</source>
        <extracomment>What menus and tooltips say about a launcher.</extracomment>
        <translation>Öffnet dieses Profil; darauf gezogene Links werden darin geöffnet</translation>
    </message>
    <message>
        <source>There is no launcher at %1.</source>
        <extracomment>Error when a launcher is to be removed. The placeholder is where it was looked for.</extracomment>
        <translation>Unter %1 gibt es keinen Starter.</translation>
    </message>
</context>
<context>
    <name>DesktopWorkspace</name>
    <message>
        <source>%1 is no longer a usable application entry. Check that the browser is installed.</source>
        <extracomment>Error when a browser was removed or damaged since it was found. The placeholder is its desktop entry&apos;s path.</extracomment>
        <translation>%1 ist kein brauchbarer Programmeintrag mehr. Bitte prüfen, ob der Browser installiert ist.</translation>
    </message>
</context>
<context>
    <name>DetachedProcess</name>
    <message>
        <source>There is no program to start.</source>
        <extracomment>Error when a browser&apos;s desktop entry doesn&apos;t say which program to start.</extracomment>
        <translation>Es gibt kein Programm, das gestartet werden könnte.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be started: %2.</source>
        <extracomment>Error when a browser can&apos;t be started. First: its program; second: the system&apos;s reason.</extracomment>
        <translation>%1 lässt sich nicht starten: %2.</translation>
    </message>
</context>
<context>
    <name>DiscoveryRuns</name>
    <message>
        <source>macOS asks for your permission before Vantrel reads %1&apos;s profiles. Select the “%2” folder and click Grant Access.</source>
        <extracomment>Open panel message. First placeholder: a browser&apos;s name; second: its data folder&apos;s name. &apos;Grant Access&apos; must match the panel&apos;s button.</extracomment>
        <translation>macOS fragt um Erlaubnis, bevor Vantrel die Profile von %1 liest. Bitte den Ordner „%2“ auswählen und auf „Zugriff erlauben“ klicken.</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <extracomment>Open panel button that lets Vantrel read a browser&apos;s profiles.</extracomment>
        <translation>Zugriff erlauben</translation>
    </message>
</context>
<context>
    <name>FileSystem</name>
    <message>
        <source>%1: %2.</source>
        <extracomment>Error when a file can&apos;t be written, copied or removed. First: its path; second: the system&apos;s reason.</extracomment>
        <translation>%1: %2.</translation>
    </message>
</context>
<context>
    <name>FinishedProcess</name>
    <message>
        <source>%1 can&apos;t be started: %2.</source>
        <extracomment>Error when a program can&apos;t be started. First: its path; second: the system&apos;s reason.</extracomment>
        <translation>%1 lässt sich nicht starten: %2.</translation>
    </message>
    <message>
        <source>%1 crashed.</source>
        <extracomment>Error when a program crashed. The placeholder is its path.</extracomment>
        <translation>%1 ist abgestürzt.</translation>
    </message>
    <message>
        <source>%1 ended with the status %2.</source>
        <extracomment>Error when a program failed without saying why. First: its path; second: a number.</extracomment>
        <translation>%1 wurde mit dem Status %2 beendet.</translation>
    </message>
</context>
<context>
    <name>InstanceClient</name>
    <message>
        <source>What listens at %1 belongs to another user, so that it can&apos;t be trusted.</source>
        <extracomment>Error when another user&apos;s program listens where the app should. The placeholder is a path.</extracomment>
        <translation>Was an %1 lauscht, gehört einem anderen Benutzer und ist deshalb nicht vertrauenswürdig.</translation>
    </message>
</context>
<context>
    <name>InstanceFolder</name>
    <message>
        <source>The folder %1 belongs to another user, so that it can&apos;t be trusted. Remove it and try again.</source>
        <extracomment>Error when the folder through which the command line talks to the app isn&apos;t the user&apos;s. The placeholder is the folder.</extracomment>
        <translation>Der Ordner %1 gehört einem anderen Benutzer und ist deshalb nicht vertrauenswürdig. Bitte den Ordner entfernen und es noch einmal versuchen.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be used: %2.</source>
        <extracomment>Error when the app can&apos;t listen for requests, or be reached. First: a folder or file; second: the system&apos;s reason.</extracomment>
        <translation>%1 lässt sich nicht verwenden: %2.</translation>
    </message>
</context>
<context>
    <name>InstanceMessage</name>
    <message>
        <source>The request is malformed.</source>
        <extracomment>Error when the running app gets a request that it can&apos;t read.</extracomment>
        <translation>Die Anfrage ist fehlerhaft.</translation>
    </message>
    <message>
        <source>The request is too long.</source>
        <extracomment>Error when somebody asks the running app to open far too many or too long links.</extracomment>
        <translation>Die Anfrage ist zu lang.</translation>
    </message>
    <message>
        <source>It is another version. Quit it and start it again.</source>
        <extracomment>Error when the program was updated while it ran, so that the running app doesn&apos;t understand a request.</extracomment>
        <translation>Es läuft in einer anderen Version. Bitte beenden und neu starten.</translation>
    </message>
    <message>
        <source>Vantrel is running, but doesn&apos;t answer.</source>
        <extracomment>Error when the app runs but hangs.</extracomment>
        <translation>Vantrel läuft, antwortet aber nicht.</translation>
    </message>
    <message>
        <source>Vantrel is running, but refuses the request. %1</source>
        <extracomment>Error when the running app can&apos;t do what it is asked for. The placeholder is its reason, a sentence.</extracomment>
        <translation>Vantrel läuft, lehnt die Anfrage aber ab. %1</translation>
    </message>
</context>
<context>
    <name>KeyEquivalent</name>
    <message>
        <source>Super</source>
        <extracomment>The key between Ctrl and Alt, in a keyboard shortcut such as &quot;Super+P&quot;.</extracomment>
        <translation>Super</translation>
    </message>
</context>
<context>
    <name>KeyboardShortcuts</name>
    <message>
        <source>Space</source>
        <comment>space_key</comment>
        <extracomment>Names the space bar in a keyboard shortcut, as in &quot;⌃Space&quot;.</extracomment>
        <translation>Leertaste</translation>
    </message>
</context>
<context>
    <name>LauncherMaker</name>
    <message>
        <source>The Launcher App Wasn&apos;t Made</source>
        <extracomment>Title of the alert when making a launcher app fails.</extracomment>
        <translation>Die Starter-App wurde nicht erstellt</translation>
    </message>
</context>
<context>
    <name>LinuxApplicationInstance</name>
    <message>
        <source>Vantrel is starting or ending, but doesn&apos;t get on.</source>
        <extracomment>Error when another start of the app never gets as far as to answer.</extracomment>
        <translation>Vantrel startet gerade oder wird beendet, kommt damit aber nicht voran.</translation>
    </message>
</context>
<context>
    <name>NoTrayNotice</name>
    <message>
        <source>This desktop has no tray</source>
        <extracomment>Title of the notice on desktops without a tray.</extracomment>
        <translation>Diese Arbeitsumgebung hat keinen Infobereich</translation>
    </message>
    <message>
        <source>Vantrel is running, but there is no place for its symbol. Start Vantrel again to open its settings, or give the command “%1” a keyboard shortcut of your desktop to open its menu.</source>
        <extracomment>Notice on desktops without a tray. The placeholder is a command.</extracomment>
        <translation>Vantrel läuft, findet aber keinen Platz für sein Symbol. Ein weiterer Start von Vantrel öffnet die Einstellungen, ein Tastenkürzel der Arbeitsumgebung für den Befehl „%1“ öffnet das Menü.</translation>
    </message>
</context>
<context>
    <name>OpenLinksInProfileIntent</name>
    <message>
        <source>Open Links in Browser Profile</source>
        <extracomment>Title of an action that the system offers, in Shortcuts for instance.</extracomment>
        <translation>Links in Browserprofil öffnen</translation>
    </message>
    <message>
        <source>Links</source>
        <extracomment>An action&apos;s parameter.</extracomment>
        <translation>Links</translation>
    </message>
    <message>
        <source>Profile</source>
        <extracomment>An action&apos;s parameter.</extracomment>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Open %1 in %2</source>
        <extracomment>What an action does. First: links; second: a profile.</extracomment>
        <translation>%1 in %2 öffnen</translation>
    </message>
</context>
<context>
    <name>OpenProfileIntent</name>
    <message>
        <source>Open Browser Profile</source>
        <extracomment>Title of an action that the system offers, in Shortcuts for instance.</extracomment>
        <translation>Browserprofil öffnen</translation>
    </message>
    <message>
        <source>Profile</source>
        <extracomment>An action&apos;s parameter.</extracomment>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Open %1</source>
        <extracomment>What an action does. The placeholder is a profile.</extracomment>
        <translation>%1 öffnen</translation>
    </message>
</context>
<context>
    <name>OwnPrograms</name>
    <message>
        <source>%1 can&apos;t be started: %2.</source>
        <extracomment>Error when another program of ours can&apos;t be started. First: its path; second: the system&apos;s reason.</extracomment>
        <translation>%1 lässt sich nicht starten: %2.</translation>
    </message>
</context>
<context>
    <name>Profile</name>
    <message>
        <source>%1 – %2</source>
        <extracomment>A profile with its browser, as launcher apps and Shortcuts name it. First: the browser; second: the profile.</extracomment>
        <translation>%1 – %2</translation>
    </message>
</context>
<context>
    <name>ProfileMenu</name>
    <message>
        <source>No profiles to show</source>
        <extracomment>Disabled text in the menu when there is no profile to choose.</extracomment>
        <translation>Keine Profile vorhanden</translation>
    </message>
    <message>
        <source>Find Profiles…</source>
        <extracomment>Menu command that opens the settings, where profiles are searched.</extracomment>
        <translation>Profile suchen&#xa0;…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>Menu command that opens the settings window.</extracomment>
        <translation>Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>Quit Vantrel</source>
        <extracomment>Menu command that ends the program.</extracomment>
        <translation>Vantrel beenden</translation>
    </message>
</context>
<context>
    <name>ProfileOpener</name>
    <message>
        <source>The browser of this profile isn&apos;t installed.</source>
        <extracomment>Error when a profile&apos;s browser was removed.</extracomment>
        <translation>Der Browser dieses Profils ist nicht installiert.</translation>
    </message>
    <message>
        <source>Safari&apos;s profiles can only be opened on a Mac.</source>
        <extracomment>Error when a Safari profile is to be opened on a system without Safari.</extracomment>
        <translation>Die Profile von Safari lassen sich nur auf einem Mac öffnen.</translation>
    </message>
    <message>
        <source>The Profile Didn&apos;t Open</source>
        <extracomment>Title of the alert when opening a profile fails.</extracomment>
        <translation>Das Profil wurde nicht geöffnet</translation>
    </message>
</context>
<context>
    <name>ProfileRequests</name>
    <message>
        <source>Open this browser profile</source>
        <extracomment>Below a profile that the desktop&apos;s search has found: what choosing it does.</extracomment>
        <translation>Dieses Browserprofil öffnen</translation>
    </message>
    <message>
        <source>Open %1</source>
        <extracomment>Below a profile that the desktop&apos;s search has found: what choosing it does. The placeholder is a link.</extracomment>
        <translation>%1 öffnen</translation>
    </message>
    <message numerus="yes">
        <source>Open %n links</source>
        <extracomment>Below a profile that the desktop&apos;s search has found: what choosing it does.</extracomment>
        <translation>
            <numerusform>%n Link öffnen</numerusform>
            <numerusform>%n Links öffnen</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no profile with the id “%1”.</source>
        <extracomment>Error for another program that asks to open a profile. The placeholder is the profile&apos;s id.</extracomment>
        <translation>Es gibt kein Profil mit der Kennung „%1“.</translation>
    </message>
    <message>
        <source>“%1” is no link that a browser can open: it takes a whole one with http, https or file.</source>
        <extracomment>Error for another program that asks to open links in a profile.</extracomment>
        <translation>„%1“ ist kein Link, den ein Browser öffnen kann: Er muss vollständig sein und mit http, https oder file beginnen.</translation>
    </message>
</context>
<context>
    <name>ProgramScriptRunner</name>
    <message>
        <source>%1 can&apos;t be started: %2.</source>
        <extracomment>Error when a script can&apos;t be run. First: the program that runs scripts; second: the system&apos;s reason.</extracomment>
        <translation>%1 lässt sich nicht starten: %2.</translation>
    </message>
</context>
<context>
    <name>Safari</name>
    <message>
        <source>Vantrel needs Accessibility permission to open Safari profiles. Turn it on in System Settings ▸ Privacy &amp; Security ▸ Accessibility.</source>
        <extracomment>Error when the user hasn&apos;t let Vantrel use other programs&apos; menus. The names are those of System Settings.</extracomment>
        <translation>Vantrel benötigt die Bedienungshilfen, um Profile von Safari zu öffnen. Sie lassen sich unter Systemeinstellungen ▸ Datenschutz &amp; Sicherheit ▸ Bedienungshilfen erlauben.</translation>
    </message>
    <message>
        <source>Vantrel isn&apos;t allowed to control Safari or System Events. Allow it in System Settings ▸ Privacy &amp; Security ▸ Automation.</source>
        <extracomment>Error when the user has forbidden Vantrel to control Safari. The names are those of System Settings.</extracomment>
        <translation>Vantrel darf Safari oder System Events nicht steuern. Das lässt sich unter Systemeinstellungen ▸ Datenschutz &amp; Sicherheit ▸ Automation erlauben.</translation>
    </message>
    <message>
        <source>Safari didn&apos;t open a window for this profile. Check that the profile still exists in Safari, then find Safari&apos;s profiles again in Vantrel&apos;s settings.</source>
        <extracomment>Error when Safari was told to open a window and none came.</extracomment>
        <translation>Safari hat für dieses Profil kein Fenster geöffnet. Bitte prüfen, ob es das Profil in Safari noch gibt, und die Profile von Safari dann in den Einstellungen von Vantrel neu suchen.</translation>
    </message>
    <message>
        <source>Safari didn&apos;t start. Open it once yourself, then try again.</source>
        <extracomment>Error when Safari doesn&apos;t run although it was started.</extracomment>
        <translation>Safari ist nicht gestartet. Bitte Safari einmal selbst öffnen und es dann noch einmal versuchen.</translation>
    </message>
    <message>
        <source>Vantrel could not read Safari&apos;s File menu.</source>
        <extracomment>Error when Safari&apos;s menu, which lists its profiles, shows nothing.</extracomment>
        <translation>Vantrel konnte das Menü „Ablage“ von Safari nicht lesen.</translation>
    </message>
    <message>
        <source>Safari didn&apos;t answer in time. If it&apos;s showing a dialog, close it and try again.</source>
        <extracomment>Error when Safari takes too long to answer.</extracomment>
        <translation>Safari hat nicht rechtzeitig geantwortet. Falls dort ein Dialog offen ist, bitte schließen und es noch einmal versuchen.</translation>
    </message>
    <message>
        <source>Safari has no profile named “%1”. Find Safari&apos;s profiles again in Vantrel&apos;s settings.</source>
        <extracomment>Error when a profile is gone. The placeholder is its name.</extracomment>
        <translation>Safari hat kein Profil namens „%1“. Bitte die Profile von Safari in den Einstellungen von Vantrel neu suchen.</translation>
    </message>
</context>
<context>
    <name>SavedState</name>
    <message>
        <source>The folder %1 can&apos;t be made.</source>
        <extracomment>Reason in the log why the profiles were not saved. The placeholder is a folder&apos;s path.</extracomment>
        <translation>Der Ordner %1 lässt sich nicht anlegen.</translation>
    </message>
</context>
<context>
    <name>ServiceRegistration</name>
    <message>
        <source>Allow Vantrel to open at login in System Settings ▸ General ▸ Login Items.</source>
        <extracomment>Error when the app is to open at login and the user has yet to allow that, or has forbidden it before. The names are those of System Settings.</extracomment>
        <translation>Das Öffnen von Vantrel bei der Anmeldung lässt sich unter Systemeinstellungen ▸ Allgemein ▸ Anmeldeobjekte erlauben.</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Find Again</source>
        <extracomment>Buttons that search Safari&apos;s menu for profiles, the first time and later.</extracomment>
        <translation>Neu suchen</translation>
    </message>
    <message>
        <source>Find Profiles</source>
        <translation>Profile suchen</translation>
    </message>
    <message>
        <source>Find Profiles opens %1 and reads its profiles from the File menu. macOS asks to allow Accessibility and to let Vantrel control %1 and System Events.</source>
        <extracomment>Beside a Safari whose profiles were never searched. The placeholder is its name; Find Profiles is the button.</extracomment>
        <translation>„Profile suchen“ öffnet %1 und liest die Profile aus dem Menü „Ablage“. macOS fragt dabei, ob Vantrel die Bedienungshilfen nutzen und %1 und System Events steuern darf.</translation>
    </message>
    <message>
        <source>macOS asks for your permission before Vantrel reads %1&apos;s profiles.</source>
        <extracomment>Beside a browser whose profiles the system doesn&apos;t let the program read. The placeholder is its name.</extracomment>
        <translation>macOS fragt um Erlaubnis, bevor Vantrel die Profile von %1 liest.</translation>
    </message>
    <message>
        <source>Vantrel isn&apos;t allowed to read %1&apos;s profiles in %2. Give your user account the right to read this folder, then choose Try Again.</source>
        <extracomment>Beside a browser whose folder can&apos;t be read. First: its name; second: the folder. Try Again is the button.</extracomment>
        <translation>Vantrel darf die Profile von %1 in %2 nicht lesen. Bitte dem eigenen Benutzerkonto das Recht geben, diesen Ordner zu lesen, und dann „Erneut versuchen“ wählen.</translation>
    </message>
    <message>
        <source>Grant Access…</source>
        <extracomment>Button that asks for the right to read a browser&apos;s folder.</extracomment>
        <translation>Zugriff erlauben&#xa0;…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <extracomment>Button that reads a browser&apos;s profiles once more.</extracomment>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Vantrel Can&apos;t Be Opened at Login</source>
        <extracomment>Title of an alert. Its message is the system&apos;s.</extracomment>
        <translation>Vantrel lässt sich nicht bei der Anmeldung öffnen</translation>
    </message>
    <message>
        <source>Vantrel Can&apos;t Be Kept from Opening at Login</source>
        <translation>Das Öffnen von Vantrel bei der Anmeldung lässt sich nicht abschalten</translation>
    </message>
    <message>
        <source>%1 (not given)</source>
        <extracomment>A keyboard shortcut to which the desktop gave no keys. The placeholder is the keys that were asked for.</extracomment>
        <translation>%1 (nicht zugeteilt)</translation>
    </message>
    <message>
        <source>This desktop has no keyboard shortcuts for programs. Its own settings can give one to a command: Copy Command gives the “vantrel open” command of a profile.</source>
        <extracomment>Above the list of profiles. “vantrel open” is a command, Copy Command the button beside each profile.</extracomment>
        <translation>Diese Arbeitsumgebung bietet keine Tastenkürzel für Programme. In ihren eigenen Einstellungen lässt sich aber einem Befehl eines geben: „Befehl kopieren“ liefert den Befehl „vantrel open“ für ein Profil.</translation>
    </message>
    <message>
        <source>The desktop didn&apos;t let Vantrel have its keyboard shortcuts. Allow them in its settings, or record one again to be asked once more. It can also give a shortcut to the command “vantrel open” with a profile&apos;s id, which “vantrel list” prints.</source>
        <extracomment>Above the list of profiles. “vantrel open” and “vantrel list” are commands.</extracomment>
        <translation>Die Arbeitsumgebung hat Vantrel seine Tastenkürzel nicht überlassen. In deren Einstellungen lassen sie sich erlauben; wird eines neu aufgenommen, fragt sie noch einmal. Sie kann auch dem Befehl „vantrel open“ mit der Kennung eines Profils, die „vantrel list“ ausgibt, ein Kürzel geben.</translation>
    </message>
</context>
<context>
    <name>UnknownProfile</name>
    <message>
        <source>Vantrel doesn&apos;t know the profile “%1”. Check that it still exists in the browser, then make its launcher app again.</source>
        <extracomment>Error when a link or launcher app names a profile that isn&apos;t there. The placeholder is the profile&apos;s name.</extracomment>
        <translation>Vantrel kennt das Profil „%1“ nicht. Bitte prüfen, ob es im Browser noch vorhanden ist, und dann die Starter-App neu erstellen.</translation>
    </message>
</context>
<context>
    <name>VantrelShortcuts</name>
    <message>
        <source>Open Profile</source>
        <extracomment>Title of an action that the system offers.</extracomment>
        <translation>Profil öffnen</translation>
    </message>
    <message>
        <source>Open %1 with %2</source>
        <extracomment>A phrase that the user says to the system. First: a profile; second: the app&apos;s name.</extracomment>
        <translation>%1 mit %2 öffnen</translation>
    </message>
    <message>
        <source>Open a profile with %1</source>
        <extracomment>A phrase that the user says to the system. The placeholder is the app&apos;s name.</extracomment>
        <translation>Ein Profil mit %1 öffnen</translation>
    </message>
</context>
<context>
    <name>vantrel::AboutSettings</name>
    <message>
        <source>Version %1 (%2)</source>
        <extracomment>In the settings. First: the version, as 1.2; second: the build&apos;s number.</extracomment>
        <translation>Version %1 (%2)</translation>
    </message>
    <message>
        <source>Every browser profile, one click away.</source>
        <extracomment>The program in one line.</extracomment>
        <translation>Jedes Browserprofil nur einen Klick entfernt.</translation>
    </message>
</context>
<context>
    <name>vantrel::AutomaticUpdatesToggle</name>
    <message>
        <source>Check for Updates Automatically</source>
        <extracomment>Switch in the settings.</extracomment>
        <translation>Automatisch nach Updates suchen</translation>
    </message>
</context>
<context>
    <name>vantrel::GeneralSettings</name>
    <message>
        <source>Example</source>
        <extracomment>What screen readers call the example of a command that opens a link.</extracomment>
        <translation>Beispiel</translation>
    </message>
    <message>
        <source>Safari Profiles</source>
        <extracomment>Title of a group in the settings.</extracomment>
        <translation>Safari-Profile</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <extracomment>macOS&apos;s name for the right to use other programs&apos; menus; what follows is whether Vantrel has it.</extracomment>
        <translation>Bedienungshilfen</translation>
    </message>
    <message>
        <source>Open Privacy Settings…</source>
        <extracomment>Button that opens a page of the system&apos;s settings.</extracomment>
        <translation>Datenschutzeinstellungen öffnen&#xa0;…</translation>
    </message>
    <message>
        <source>Safari can only be told which profile to open through its File menu, so Vantrel clicks it for you. That needs Accessibility, and macOS asks to let Vantrel control Safari and System Events. Other browsers need neither.</source>
        <extracomment>In the settings, below the state of the permission.</extracomment>
        <translation>In Safari lässt sich ein bestimmtes Profil nur über das Menü „Ablage“ öffnen; das Klicken übernimmt Vantrel. Dafür sind die Bedienungshilfen nötig, und macOS fragt, ob Vantrel Safari und System Events steuern darf. Andere Browser brauchen beides nicht.</translation>
    </message>
    <message>
        <source>Links</source>
        <extracomment>Title of a group in the settings.</extracomment>
        <translation>Links</translation>
    </message>
    <message>
        <source>Other apps and scripts can open a profile with a link; Copy Link in a profile&apos;s menu in the Profiles tab gives it. Add `url=` items to open web pages in it:</source>
        <extracomment>In the settings, above an example. Copy Link is in the menu of each profile; “url=” stands in the link.</extracomment>
        <translation>Andere Apps und Skripte können ein Profil mit einem Link öffnen; „Link kopieren“ im Menü eines Profils auf der Registerkarte „Profile“ liefert ihn. Mit angehängten `url=`-Einträgen werden Webseiten darin geöffnet:</translation>
    </message>
    <message>
        <source>Allowed</source>
        <extracomment>Whether the user has given a permission.</extracomment>
        <translation>Erlaubt</translation>
    </message>
    <message>
        <source>Not allowed</source>
        <translation>Nicht erlaubt</translation>
    </message>
</context>
<context>
    <name>vantrel::GlobalShortcuts</name>
    <message>
        <source>Open %1</source>
        <extracomment>What a global shortcut does, where the desktop lets the user choose its keys. The placeholder is a browser&apos;s and a profile&apos;s name.</extracomment>
        <translation>%1 öffnen</translation>
    </message>
</context>
<context>
    <name>vantrel::LaunchAtLoginToggle</name>
    <message>
        <source>Open at Login</source>
        <extracomment>Switch in the settings: the program starts with the user&apos;s session.</extracomment>
        <translation>Bei der Anmeldung öffnen</translation>
    </message>
</context>
<context>
    <name>vantrel::ProfileRow</name>
    <message>
        <source>Copy Command</source>
        <extracomment>Button that copies the command that opens a profile, where there are no keyboard shortcuts for programs.</extracomment>
        <translation>Befehl kopieren</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>Label of the field with a profile&apos;s name.</extracomment>
        <translation>Name</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>Screen readers: the profile, and what of it a field or a button is about.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Show in the menu</source>
        <extracomment>Help on the button that leaves a profile out of the menu, or shows it there again.</extracomment>
        <translation>Im Menü anzeigen</translation>
    </message>
    <message>
        <source>Leave out of the menu</source>
        <translation>Im Menü ausblenden</translation>
    </message>
    <message>
        <source>More</source>
        <extracomment>The menu of what else can be done with a profile.</extracomment>
        <translation>Mehr</translation>
    </message>
</context>
<context>
    <name>vantrel::ProfilesSettings</name>
    <message>
        <source>No browser Vantrel knows is installed. It works with Safari, Chrome, Edge, Brave, Vivaldi, Opera and other Chromium browsers, Firefox and Zen.</source>
        <extracomment>In the settings when no browser was found.</extracomment>
        <translation>Kein Browser, den Vantrel kennt, ist installiert. Unterstützt werden Safari, Chrome, Edge, Brave, Vivaldi, Opera und andere Chromium-Browser, Firefox und Zen.</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>In a profile&apos;s menu.</extracomment>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Create Launcher App…</source>
        <extracomment>In a profile&apos;s menu.</extracomment>
        <translation>Starter-App erstellen&#xa0;…</translation>
    </message>
    <message>
        <source>Copy Link</source>
        <extracomment>In a profile&apos;s menu.</extracomment>
        <translation>Link kopieren</translation>
    </message>
    <message>
        <source>Move Up</source>
        <extracomment>In a profile&apos;s menu: one place in the list of its browser&apos;s profiles.</extracomment>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move Down</source>
        <extracomment>In a profile&apos;s menu: one place in the list of its browser&apos;s profiles.</extracomment>
        <translation>Nach unten</translation>
    </message>
</context>
<context>
    <name>vantrel::SettingsWindow</name>
    <message>
        <source>Vantrel Settings</source>
        <extracomment>Title of the settings window.</extracomment>
        <translation>Vantrel-Einstellungen</translation>
    </message>
    <message>
        <source>Profiles</source>
        <extracomment>Tabs of the settings.</extracomment>
        <translation>Profile</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
</context>
<context>
    <name>vantrel::ShortcutRecorder</name>
    <message>
        <source>Record Shortcut</source>
        <extracomment>Button that starts recording a keyboard shortcut.</extracomment>
        <translation>Kürzel aufnehmen</translation>
    </message>
    <message>
        <source>Press Keys…</source>
        <extracomment>Stands on the button of a shortcut that is being recorded.</extracomment>
        <translation>Tasten drücken&#xa0;…</translation>
    </message>
    <message>
        <source>Press the keys, Escape to cancel</source>
        <extracomment>Help on the button of a shortcut that is being recorded. Escape is the key.</extracomment>
        <translation>Tasten drücken, Esc bricht ab</translation>
    </message>
    <message>
        <source>Click, then press the shortcut that opens this profile</source>
        <extracomment>Help on the button that shows or records a keyboard shortcut.</extracomment>
        <translation>Klicken, dann das Tastenkürzel drücken, das dieses Profil öffnet</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>What screen readers say: the profile that a shortcut opens, and the shortcut or what is to be done.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Remove the shortcut</source>
        <extracomment>Help on the small button beside a keyboard shortcut.</extracomment>
        <translation>Tastenkürzel entfernen</translation>
    </message>
</context>
</TS>
