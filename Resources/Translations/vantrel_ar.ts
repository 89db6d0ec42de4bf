<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>AppProcess</name>
    <message>
        <source>There is no display here to show the menu on.</source>
        <extracomment>Error when the menu is wanted where nothing can be shown, as over ssh.</extracomment>
        <translation>لا توجد هنا شاشة لعرض القائمة عليها.</translation>
    </message>
    <message>
        <source>Vantrel.app can&apos;t be found. Put it into Applications.</source>
        <extracomment>Error when the command line can&apos;t find the app.</extracomment>
        <translation>لم يُعثر على Vantrel.app. ضعه في مجلد التطبيقات.</translation>
    </message>
</context>
<context>
    <name>Browser</name>
    <message>
        <source>Private Window</source>
        <extracomment>A Safari or Firefox private browsing window, in the profiles list and the menu.</extracomment>
        <translation>نافذة خاصة</translation>
    </message>
    <message>
        <source>InPrivate Window</source>
        <extracomment>A Microsoft Edge private window, in the profiles list and the menu. Edge&apos;s own name for it.</extracomment>
        <translation>نافذة InPrivate</translation>
    </message>
    <message>
        <source>Incognito Window</source>
        <extracomment>A Chrome-family private window, in the profiles list and the menu. Chrome&apos;s own name for it.</extracomment>
        <translation>نافذة التصفح المتخفي</translation>
    </message>
</context>
<context>
    <name>BundleLauncherWriter</name>
    <message>
        <source>Create Launcher App</source>
        <extracomment>Title of the panel in which the place of a launcher app is chosen.</extracomment>
        <translation>إنشاء تطبيق تشغيل</translation>
    </message>
    <message>
        <source>Open “%1” from Spotlight, Launchpad, the Dock or Finder. Links dropped on it open in the profile.</source>
        <extracomment>Message of the panel in which the place of a launcher app is chosen. The placeholder is a profile with its browser.</extracomment>
        <translation>يمكن فتح «⁨%1⁩» من Spotlight أو Launchpad أو Dock أو Finder. الروابط التي تُفلَت عليه تُفتح في هذا الملف الشخصي.</translation>
    </message>
    <message>
        <source>Create</source>
        <extracomment>Button of the panel in which the place of a launcher app is chosen.</extracomment>
        <translation>إنشاء</translation>
    </message>
    <message>
        <source>Vantrel is missing a part that it needs to make launcher apps. Download Vantrel again from %1</source>
        <extracomment>Error when the app is damaged. The placeholder is a web address, which ends the sentence without a stop.</extracomment>
        <translation>ينقص Vantrel جزء يحتاج إليه لإنشاء تطبيقات التشغيل. نزِّل Vantrel مرة أخرى من ‎%1‎</translation>
    </message>
    <message>
        <source>There is no launcher of this profile at %1.</source>
        <extracomment>Error when a launcher is to be removed. The placeholder is where it was looked for.</extracomment>
        <translation>لا يوجد مُشغِّل لهذا الملف الشخصي في ‎%1‎.</translation>
    </message>
</context>
<context>
    <name>BundleWorkspace</name>
    <message>
        <source>%1 is no longer a usable application. Check that the browser is installed.</source>
        <extracomment>Error when a browser was removed or damaged since it was found. The placeholder is its path.</extracomment>
        <translation>لم يعد ‎%1‎ تطبيقًا صالحًا للاستخدام. تحقق من أن المتصفح مثبت.</translation>
    </message>
</context>
<context>
    <name>BusApplication</name>
    <message>
        <source>Vantrel is running on this session bus, but doesn&apos;t answer.</source>
        <extracomment>Error when the app runs elsewhere in the session but hangs.</extracomment>
        <translation>يعمل Vantrel على ناقل هذه الجلسة، لكنه لا يستجيب.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Vantrel isn&apos;t running.</source>
        <extracomment>Error of the command line.</extracomment>
        <translation>لا يعمل Vantrel حاليًا.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <extracomment>Help of the command line, beside &quot;--help&quot;.</extracomment>
        <translation>عرض هذه المساعدة.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>Help of the command line. The placeholder is how a command is written.
----------
Help of the command line.</extracomment>
        <translation>الاستخدام: ‎%1‎</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <extracomment>Error of the command line. The placeholder is the name of an argument, as the help has it.</extracomment>
        <translation>ينقص ‎%1‎.</translation>
    </message>
    <message>
        <source>“%1” is one word too many.</source>
        <extracomment>Error of the command line. The placeholder is an argument.</extracomment>
        <translation>«%1» كلمة زائدة.</translation>
    </message>
    <message>
        <source>%1
Try “%2”.</source>
        <extracomment>Error of the command line. First: what is wrong; second: a command.</extracomment>
        <translation>%1
جرِّب «‎%2‎».</translation>
    </message>
    <message>
        <source>Opens a chosen profile of a chosen web browser in one step.</source>
        <translation>يفتح ملفًا شخصيًا محددًا في متصفح ويب محدد بخطوة واحدة.</translation>
    </message>
    <message>
        <source>Opens the app&apos;s settings window.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>يفتح نافذة إعدادات التطبيق.</translation>
    </message>
    <message>
        <source>Opens the app&apos;s menu at the pointer.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>يفتح قائمة التطبيق عند المؤشر.</translation>
    </message>
    <message>
        <source>Ends the app.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>يُنهي التطبيق.</translation>
    </message>
    <message>
        <source>“%1” alone starts the app, or shows its settings when it is running.</source>
        <extracomment>Help of the command line. The placeholder is a command.</extracomment>
        <translation>الأمر «‎%1‎» وحده يشغِّل التطبيق، أو يعرض إعداداته إن كان يعمل.</translation>
    </message>
    <message>
        <source>“%1” hands links to the app.</source>
        <extracomment>Help of the command line. The placeholder is a command.</extracomment>
        <translation>الأمر «‎%1‎» يسلِّم الروابط إلى التطبيق.</translation>
    </message>
    <message>
        <source>“vantrel COMMAND --help” tells more. “vantrel --version” prints the version.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>الأمر «‎vantrel COMMAND --help‎» يعرض المزيد، والأمر «‎vantrel --version‎» يطبع الإصدار.</translation>
    </message>
    <message>
        <source>There is no command “%1”.</source>
        <extracomment>Error of the command line. The placeholder is what the user wrote.</extracomment>
        <translation>لا يوجد أمر باسم «%1».</translation>
    </message>
    <message>
        <source>application  %1</source>
        <extracomment>Line of a report on a browser. The placeholder is a file.</extracomment>
        <translation>التطبيق          ‎%1‎</translation>
    </message>
    <message>
        <source>data folder  %1</source>
        <extracomment>Line of a report on a browser. The placeholder is a folder.</extracomment>
        <translation>مجلد البيانات    ‎%1‎</translation>
    </message>
    <message>
        <source>problem      %1</source>
        <extracomment>Line of a report on a browser. The placeholder is an error.</extracomment>
        <translation>المشكلة          %1</translation>
    </message>
    <message>
        <source>profiles     %1</source>
        <extracomment>Line of a report on a browser. The placeholder is a number.</extracomment>
        <translation>الملفات الشخصية  %1</translation>
    </message>
    <message>
        <source>does not exist for this system</source>
        <extracomment>In place of the files that were looked for, in a report on a browser.</extracomment>
        <translation>غير متوفر لهذا النظام</translation>
    </message>
    <message>
        <source>Not installed, and what was looked for:</source>
        <extracomment>Headline of a list of browsers with the files that were looked for.</extracomment>
        <translation>غير المثبَّت، وما جرى البحث عنه:</translation>
    </message>
    <message>
        <source>Tells of each browser that Vantrel knows where it was looked for, where its data is, how
many profiles it has, and what failed.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>يعرض لكل متصفح يعرفه Vantrel أين جرى البحث عنه، وأين بياناته،
وكم ملفًا شخصيًا فيه، وما الذي تعذَّر.</translation>
    </message>
    <message>
        <source>Print one JSON array.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>طباعة مصفوفة JSON واحدة.</translation>
    </message>
    <message>
        <source>Makes a launcher for a profile, for menus, docks and desktops. Prints where it is.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>يُنشئ مُشغِّلًا لملف شخصي، للقوائم وأشرطة التطبيقات وأسطح المكتب، ويطبع مكانه.</translation>
    </message>
    <message>
        <source>Remove the profile&apos;s launcher instead.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>إزالة مُشغِّل الملف الشخصي بدلًا من ذلك.</translation>
    </message>
    <message>
        <source>Put it into this folder instead of the applications folder.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>وضعه في هذا المجلد بدلًا من مجلد التطبيقات.</translation>
    </message>
    <message>
        <source>Prints the link that opens a profile, for other programs and scripts.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>يطبع الرابط الذي يفتح ملفًا شخصيًا، للبرامج والنصوص البرمجية الأخرى.</translation>
    </message>
    <message>
        <source>Web links to be opened in the profile.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>روابط ويب تُفتح في الملف الشخصي.</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <extracomment>After a profile in a list: it isn&apos;t shown in the menu.</extracomment>
        <translation>(مخفي)</translation>
    </message>
    <message>
        <source>Lists the profiles in your order: title and id.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>يسرد الملفات الشخصية بترتيبك: العنوان والمعرِّف.</translation>
    </message>
    <message>
        <source>Also the profiles that you have hidden from the menu.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>الملفات الشخصية التي أخفيتها من القائمة أيضًا.</translation>
    </message>
    <message>
        <source>No browser Vantrel knows is installed. “vantrel doctor” tells where it looked.</source>
        <extracomment>Error of the command line.</extracomment>
        <translation>لا يوجد متصفح مثبَّت يعرفه Vantrel. الأمر «‎vantrel doctor‎» يعرض أماكن البحث.</translation>
    </message>
    <message>
        <source>Left out “%1”: only http, https and file links can be opened.</source>
        <extracomment>Note of the command line. The placeholder is what the user gave as a web link.</extracomment>
        <translation>استُبعد «‎%1‎»: لا تُفتح إلا روابط http وhttps وfile.</translation>
    </message>
    <message>
        <source>The browser of this profile isn&apos;t installed.</source>
        <extracomment>Error when a profile&apos;s browser was removed.</extracomment>
        <translation>متصفح هذا الملف الشخصي غير مثبَّت.</translation>
    </message>
    <message>
        <source>An id, a title or a link as “vantrel list” shows them, or a name that only one has.</source>
        <extracomment>Help of the command line: how a profile may be named.</extracomment>
        <translation>معرِّف أو عنوان أو رابط كما يعرضها «‎vantrel list‎»، أو اسم لا يحمله إلا ملف شخصي واحد.</translation>
    </message>
    <message>
        <source>Safari&apos;s profiles can&apos;t be opened from the command line yet.</source>
        <extracomment>Error of the command line.</extracomment>
        <translation>لا يمكن بعد فتح ملفات Safari الشخصية من سطر الأوامر.</translation>
    </message>
    <message>
        <source>Opens a profile, with web links if you name some.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>يفتح ملفًا شخصيًا، مع روابط ويب إن ذُكرت.</translation>
    </message>
    <message>
        <source>Print what would be started instead, a JSON array a line.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>طباعة ما كان سيُشغَّل بدلًا من تشغيله: مصفوفة JSON في كل سطر.</translation>
    </message>
    <message>
        <source>Let the app show a failure. PROFILE must be a link; launchers use this.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>ترك عرض الخطأ للتطبيق. يجب أن يكون ‎PROFILE‎ رابطًا؛ تستخدمه المُشغِّلات.</translation>
    </message>
    <message>
        <source>Web links or files to open in it.</source>
        <extracomment>Help of the command line.</extracomment>
        <translation>روابط ويب أو ملفات تُفتح فيه.</translation>
    </message>
    <message>
        <source>%1&apos;s profiles can&apos;t be read: access to “%2” is denied. Check the folder&apos;s permissions.</source>
        <extracomment>Error of the command line. First: a browser&apos;s name; second: a folder.</extracomment>
        <translation>تتعذر قراءة ملفات %1 الشخصية: الوصول إلى «‎%2‎» مرفوض. تحقق من أذونات المجلد.</translation>
    </message>
    <message>
        <source>%1&apos;s profiles can&apos;t be read: “%2”: %3.</source>
        <extracomment>Error of the command line. First: a browser&apos;s name; second: a folder; third: the system&apos;s reason.</extracomment>
        <translation>تتعذر قراءة ملفات %1 الشخصية: «‎%2‎»: %3.</translation>
    </message>
    <message>
        <source>Saved profiles unreadable, going on without your order and names: %1: %2</source>
        <extracomment>Error of the command line. First: a file; second: what is wrong with it.</extracomment>
        <translation>تتعذر قراءة الملفات الشخصية المحفوظة، وستجري المتابعة دون ترتيبك وأسمائك: ‎%1‎: %2</translation>
    </message>
    <message>
        <source>… and %1 more: “vantrel list --all” shows them.</source>
        <extracomment>After a list of profiles that was cut. The placeholder is a number.</extracomment>
        <translation>… و%1 أخرى: الأمر «‎vantrel list --all‎» يعرضها.</translation>
    </message>
    <message>
        <source>More than one profile is called “%1”. Name one by its title or its id:</source>
        <extracomment>Error of the command line, before a list of profiles. The placeholder is what the user wrote.</extracomment>
        <translation>يحمل الاسم «%1» أكثر من ملف شخصي واحد. حدِّد أحدها بعنوانه أو بمعرِّفه:</translation>
    </message>
    <message>
        <source>There is no profile “%1”: no browser that Vantrel knows is installed.</source>
        <extracomment>Error of the command line. The placeholder is what the user wrote.</extracomment>
        <translation>لا يوجد ملف شخصي باسم «%1»: لا يوجد متصفح مثبَّت يعرفه Vantrel.</translation>
    </message>
    <message>
        <source>There is no profile “%1”. These are there:</source>
        <extracomment>Error of the command line, before a list of profiles. The placeholder is what the user wrote.</extracomment>
        <translation>لا يوجد ملف شخصي باسم «%1». الموجود هو:</translation>
    </message>
    <message>
        <source>Not a profile link: %1</source>
        <extracomment>Error of the command line. The placeholder is a link.</extracomment>
        <translation>ليس رابط ملف شخصي: ‎%1‎</translation>
    </message>
    <message>
        <source>There is no folder “%1”.</source>
        <extracomment>Error of the command line. The placeholder is what the user wrote.</extracomment>
        <translation>لا يوجد مجلد «‎%1‎».</translation>
    </message>
</context>
<context>
    <name>DesktopLauncherWriter</name>
    <message>
        <source>Create Launcher App</source>
        <extracomment>Title of the panel in which the folder for a launcher is chosen.</extracomment>
        <translation>إنشاء تطبيق تشغيل</translation>
    </message>
    <message>
        <source>Open “%1” from the applications menu, the dock or the desktop. Links dropped on it open in the profile.</source>
        <extracomment>Message of the panel in which the folder for a launcher is chosen. The placeholder is a profile with its browser.</extracomment>
        <translation>يمكن فتح «⁨%1⁩» من قائمة التطبيقات أو شريط التطبيقات أو سطح المكتب. الروابط التي تُفلَت عليه تُفتح في هذا الملف الشخصي.</translation>
    </message>
    <message>
        <source>Create</source>
        <extracomment>Button of the panel in which the folder for a launcher is chosen.</extracomment>
        <translation>إنشاء</translation>
    </message>
    <message>
        <source>Opens this profile; links dropped on it open in it</source>
        <extracomment>What menus and tooltips say about a launcher.</extracomment>
        <translation>يفتح هذا الملف الشخصي؛ والروابط التي تُفلَت عليه تُفتح فيه</translation>
    </message>
    <message>
        <source>There is no launcher at %1.</source>
        <extracomment>Error when a launcher is to be removed. The placeholder is where it was looked for.</extracomment>
        <translation>لا يوجد مُشغِّل في ‎%1‎.</translation>
    </message>
</context>
<context>
    <name>DesktopWorkspace</name>
    <message>
        <source>%1 is no longer a usable application entry. Check that the browser is installed.</source>
        <extracomment>Error when a browser was removed or damaged since it was found. The placeholder is its desktop entry&apos;s path.</extracomment>
        <translation>لم يعد ‎%1‎ مدخل تطبيق صالحًا للاستخدام. تحقق من أن المتصفح مثبَّت.</translation>
    </message>
</context>
<context>
    <name>DetachedProcess</name>
    <message>
        <source>There is no program to start.</source>
        <extracomment>Error when a browser&apos;s desktop entry doesn&apos;t say which program to start.</extracomment>
        <translation>لا يوجد برنامج لتشغيله.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be started: %2.</source>
        <extracomment>Error when a browser can&apos;t be started. First: its program; second: the system&apos;s reason.</extracomment>
        <translation>يتعذر تشغيل ‎%1‎: %2.</translation>
    </message>
</context>
<context>
    <name>DiscoveryRuns</name>
    <message>
        <source>macOS asks for your permission before Vantrel reads %1&apos;s profiles. Select the “%2” folder and click Grant Access.</source>
        <extracomment>Open panel message. First placeholder: a browser&apos;s name; second: its data folder&apos;s name. &apos;Grant Access&apos; must match the panel&apos;s button.</extracomment>
        <translation>يطلب macOS إذنك قبل أن يقرأ Vantrel ملفات ⁨%1⁩ الشخصية. حدِّد المجلد «⁨%2⁩» وانقر على «منح الوصول».</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <extracomment>Open panel button that lets Vantrel read a browser&apos;s profiles.</extracomment>
        <translation>منح الوصول</translation>
    </message>
</context>
<context>
    <name>FileSystem</name>
    <message>
        <source>%1: %2.</source>
        <extracomment>Error when a file can&apos;t be written, copied or removed. First: its path; second: the system&apos;s reason.</extracomment>
        <translation>‎%1‎: %2.</translation>
    </message>
</context>
<context>
    <name>FinishedProcess</name>
    <message>
        <source>%1 can&apos;t be started: %2.</source>
        <extracomment>Error when a program can&apos;t be started. First: its path; second: the system&apos;s reason.</extracomment>
        <translation>يتعذر تشغيل ‎%1‎: %2.</translation>
    </message>
    <message>
        <source>%1 crashed.</source>
        <extracomment>Error when a program crashed. The placeholder is its path.</extracomment>
        <translation>تعطَّل ‎%1‎.</translation>
    </message>
    <message>
        <source>%1 ended with the status %2.</source>
        <extracomment>Error when a program failed without saying why. First: its path; second: a number.</extracomment>
        <translation>انتهى ‎%1‎ بالحالة %2.</translation>
    </message>
</context>
<context>
    <name>InstanceClient</name>
    <message>
        <source>What listens at %1 belongs to another user, so that it can&apos;t be trusted.</source>
        <extracomment>Error when another user&apos;s program listens where the app should. The placeholder is a path.</extracomment>
        <translation>ما يستمع عند ‎%1‎ يخص مستخدمًا آخر، ولذلك لا يمكن الوثوق به.</translation>
    </message>
</context>
<context>
    <name>InstanceFolder</name>
    <message>
        <source>The folder %1 belongs to another user, so that it can&apos;t be trusted. Remove it and try again.</source>
        <extracomment>Error when the folder through which the command line talks to the app isn&apos;t the user&apos;s. The placeholder is the folder.</extracomment>
        <translation>المجلد ‎%1‎ يخص مستخدمًا آخر، ولذلك لا يمكن الوثوق به. أزِله وحاول مرة أخرى.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be used: %2.</source>
        <extracomment>Error when the app can&apos;t listen for requests, or be reached. First: a folder or file; second: the system&apos;s reason.</extracomment>
        <translation>يتعذر استخدام ‎%1‎: %2.</translation>
    </message>
</context>
<context>
    <name>InstanceMessage</name>
    <message>
        <source>The request is malformed.</source>
        <extracomment>Error when the running app gets a request that it can&apos;t read.</extracomment>
        <translation>الطلب غير صحيح الصياغة.</translation>
    </message>
    <message>
        <source>The request is too long.</source>
        <extracomment>Error when somebody asks the running app to open far too many or too long links.</extracomment>
        <translation>الطلب طويل جدًا.</translation>
    </message>
    <message>
        <source>It is another version. Quit it and start it again.</source>
        <extracomment>Error when the program was updated while it ran, so that the running app doesn&apos;t understand a request.</extracomment>
        <translation>إنه إصدار آخر. أنهِه ثم شغِّله من جديد.</translation>
    </message>
    <message>
        <source>Vantrel is running, but doesn&apos;t answer.</source>
        <extracomment>Error when the app runs but hangs.</extracomment>
        <translation>يعمل Vantrel، لكنه لا يستجيب.</translation>
    </message>
    <message>
        <source>Vantrel is running, but refuses the request. %1</source>
        <extracomment>Error when the running app can&apos;t do what it is asked for. The placeholder is its reason, a sentence.</extracomment>
        <translation>يعمل Vantrel، لكنه يرفض الطلب. %1</translation>
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
        <translation>مسافة</translation>
    </message>
</context>
<context>
    <name>LauncherMaker</name>
    <message>
        <source>The Launcher App Wasn&apos;t Made</source>
        <extracomment>Title of the alert when making a launcher app fails.</extracomment>
        <translation>لم يُنشأ تطبيق التشغيل</translation>
    </message>
</context>
<context>
    <name>LinuxApplicationInstance</name>
    <message>
        <source>Vantrel is starting or ending, but doesn&apos;t get on.</source>
        <extracomment>Error when another start of the app never gets as far as to answer.</extracomment>
        <translation>يبدأ Vantrel أو ينتهي، لكنه لا يتقدم.</translation>
    </message>
</context>
<context>
    <name>NoTrayNotice</name>
    <message>
        <source>This desktop has no tray</source>
        <extracomment>Title of the notice on desktops without a tray.</extracomment>
        <translation>لا توجد علبة نظام في بيئة سطح المكتب هذه</translation>
    </message>
    <message>
        <source>Vantrel is running, but there is no place for its symbol. Start Vantrel again to open its settings, or give the command “%1” a keyboard shortcut of your desktop to open its menu.</source>
        <extracomment>Notice on desktops without a tray. The placeholder is a command.</extracomment>
        <translation>يعمل Vantrel، لكن لا مكان لرمزه. شغِّل Vantrel مرة أخرى لفتح إعداداته، أو خصِّص للأمر «⁦%1⁩» اختصارًا من بيئة سطح المكتب لفتح قائمته.</translation>
    </message>
</context>
<context>
    <name>OpenLinksInProfileIntent</name>
    <message>
        <source>Open Links in Browser Profile</source>
        <extracomment>Title of an action that the system offers, in Shortcuts for instance.</extracomment>
        <translation>فتح الروابط في ملف المتصفح الشخصي</translation>
    </message>
    <message>
        <source>Links</source>
        <extracomment>An action&apos;s parameter.</extracomment>
        <translation>الروابط</translation>
    </message>
    <message>
        <source>Profile</source>
        <extracomment>An action&apos;s parameter.</extracomment>
        <translation>الملف الشخصي</translation>
    </message>
    <message>
        <source>Open %1 in %2</source>
        <extracomment>What an action does. First: links; second: a profile.</extracomment>
        <translation>فتح %1 في %2</translation>
    </message>
</context>
<context>
    <name>OpenProfileIntent</name>
    <message>
        <source>Open Browser Profile</source>
        <extracomment>Title of an action that the system offers, in Shortcuts for instance.</extracomment>
        <translation>فتح ملف المتصفح الشخصي</translation>
    </message>
    <message>
        <source>Profile</source>
        <extracomment>An action&apos;s parameter.</extracomment>
        <translation>الملف الشخصي</translation>
    </message>
    <message>
        <source>Open %1</source>
        <extracomment>What an action does. The placeholder is a profile.</extracomment>
        <translation>فتح %1</translation>
    </message>
</context>
<context>
    <name>OwnPrograms</name>
    <message>
        <source>%1 can&apos;t be started: %2.</source>
        <extracomment>Error when another program of ours can&apos;t be started. First: its path; second: the system&apos;s reason.</extracomment>
        <translation>يتعذر تشغيل ‎%1‎: %2.</translation>
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
        <translation>لا توجد ملفات شخصية لعرضها</translation>
    </message>
    <message>
        <source>Find Profiles…</source>
        <extracomment>Menu command that opens the settings, where profiles are searched.</extracomment>
        <translation>البحث عن ملفات شخصية…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>Menu command that opens the settings window.</extracomment>
        <translation>الإعدادات…</translation>
    </message>
    <message>
        <source>Quit Vantrel</source>
        <extracomment>Menu command that ends the program.</extracomment>
        <translation>إنهاء Vantrel</translation>
    </message>
</context>
<context>
    <name>ProfileOpener</name>
    <message>
        <source>The browser of this profile isn&apos;t installed.</source>
        <extracomment>Error when a profile&apos;s browser was removed.</extracomment>
        <translation>متصفح هذا الملف الشخصي غير مثبَّت.</translation>
    </message>
    <message>
        <source>Safari&apos;s profiles can only be opened on a Mac.</source>
        <extracomment>Error when a Safari profile is to be opened on a system without Safari.</extracomment>
        <translation>لا تُفتح ملفات Safari الشخصية إلا على Mac.</translation>
    </message>
    <message>
        <source>The Profile Didn&apos;t Open</source>
        <extracomment>Title of the alert when opening a profile fails.</extracomment>
        <translation>لم يُفتح الملف الشخصي</translation>
    </message>
</context>
<context>
    <name>ProfileRequests</name>
    <message>
        <source>Open this browser profile</source>
        <extracomment>Below a profile that the desktop&apos;s search has found: what choosing it does.</extracomment>
        <translation>فتح ملف المتصفح الشخصي هذا</translation>
    </message>
    <message>
        <source>Open %1</source>
        <extracomment>Below a profile that the desktop&apos;s search has found: what choosing it does. The placeholder is a link.</extracomment>
        <translation>فتح ‎%1‎</translation>
    </message>
    <message numerus="yes">
        <source>Open %n links</source>
        <extracomment>Below a profile that the desktop&apos;s search has found: what choosing it does.</extracomment>
        <translation>
            <numerusform>فتح %n رابط</numerusform>
            <numerusform>فتح رابط واحد (%n)</numerusform>
            <numerusform>فتح رابطين (%n)</numerusform>
            <numerusform>فتح %n روابط</numerusform>
            <numerusform>فتح %n رابطًا</numerusform>
            <numerusform>فتح %n رابط</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no profile with the id “%1”.</source>
        <extracomment>Error for another program that asks to open a profile. The placeholder is the profile&apos;s id.</extracomment>
        <translation>لا يوجد ملف شخصي بالمعرّف «⁦%1⁩».</translation>
    </message>
    <message>
        <source>“%1” is no link that a browser can open: it takes a whole one with http, https or file.</source>
        <extracomment>Error for another program that asks to open links in a profile.</extracomment>
        <translation>«⁦%1⁩» ليس رابطًا يستطيع المتصفح فتحه: يجب أن يكون كاملًا ويبدأ بـ http أو https أو file.</translation>
    </message>
</context>
<context>
    <name>ProgramScriptRunner</name>
    <message>
        <source>%1 can&apos;t be started: %2.</source>
        <extracomment>Error when a script can&apos;t be run. First: the program that runs scripts; second: the system&apos;s reason.</extracomment>
        <translation>يتعذر تشغيل ‎%1‎: %2.</translation>
    </message>
</context>
<context>
    <name>Safari</name>
    <message>
        <source>Vantrel needs Accessibility permission to open Safari profiles. Turn it on in System Settings ▸ Privacy &amp; Security ▸ Accessibility.</source>
        <extracomment>Error when the user hasn&apos;t let Vantrel use other programs&apos; menus. The names are those of System Settings.</extracomment>
        <translation>يحتاج Vantrel إلى إذن تسهيلات الاستخدام لفتح ملفات Safari الشخصية. فعِّله في إعدادات النظام ◂ الخصوصية والأمن ◂ تسهيلات الاستخدام.</translation>
    </message>
    <message>
        <source>Vantrel isn&apos;t allowed to control Safari or System Events. Allow it in System Settings ▸ Privacy &amp; Security ▸ Automation.</source>
        <extracomment>Error when the user has forbidden Vantrel to control Safari. The names are those of System Settings.</extracomment>
        <translation>غير مسموح لـ Vantrel بالتحكم في Safari أو System Events. اسمح بذلك في إعدادات النظام ◂ الخصوصية والأمن ◂ الأتمتة.</translation>
    </message>
    <message>
        <source>Safari didn&apos;t open a window for this profile. Check that the profile still exists in Safari, then find Safari&apos;s profiles again in Vantrel&apos;s settings.</source>
        <extracomment>Error when Safari was told to open a window and none came.</extracomment>
        <translation>لم يفتح Safari نافذة لهذا الملف الشخصي. تحقق من أن الملف الشخصي ما زال موجودًا في Safari، ثم ابحث عن ملفات Safari الشخصية مجددًا في إعدادات Vantrel.</translation>
    </message>
    <message>
        <source>Safari didn&apos;t start. Open it once yourself, then try again.</source>
        <extracomment>Error when Safari doesn&apos;t run although it was started.</extracomment>
        <translation>لم يبدأ Safari. افتحه مرة بنفسك، ثم حاول من جديد.</translation>
    </message>
    <message>
        <source>Vantrel could not read Safari&apos;s File menu.</source>
        <extracomment>Error when Safari&apos;s menu, which lists its profiles, shows nothing.</extracomment>
        <translation>تعذرت على Vantrel قراءة قائمة «ملف» في Safari.</translation>
    </message>
    <message>
        <source>Safari didn&apos;t answer in time. If it&apos;s showing a dialog, close it and try again.</source>
        <extracomment>Error when Safari takes too long to answer.</extracomment>
        <translation>لم يستجب Safari في الوقت المناسب. إن كان يعرض مربع حوار، فأغلِقه وحاول مرة أخرى.</translation>
    </message>
    <message>
        <source>Safari has no profile named “%1”. Find Safari&apos;s profiles again in Vantrel&apos;s settings.</source>
        <extracomment>Error when a profile is gone. The placeholder is its name.</extracomment>
        <translation>لا يوجد في Safari ملف شخصي باسم «%1». ابحث عن ملفات Safari الشخصية مجددًا في إعدادات Vantrel.</translation>
    </message>
</context>
<context>
    <name>SavedState</name>
    <message>
        <source>The folder %1 can&apos;t be made.</source>
        <extracomment>Reason in the log why the profiles were not saved. The placeholder is a folder&apos;s path.</extracomment>
        <translation>يتعذر إنشاء المجلد ‎%1‎.</translation>
    </message>
</context>
<context>
    <name>ServiceRegistration</name>
    <message>
        <source>Allow Vantrel to open at login in System Settings ▸ General ▸ Login Items.</source>
        <extracomment>Error when the app is to open at login and the user has yet to allow that, or has forbidden it before. The names are those of System Settings.</extracomment>
        <translation>اسمح لـ Vantrel بالفتح عند تسجيل الدخول في إعدادات النظام ◂ عام ◂ عناصر تسجيل الدخول.</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Find Again</source>
        <extracomment>Buttons that search Safari&apos;s menu for profiles, the first time and later.</extracomment>
        <translation>البحث مجددًا</translation>
    </message>
    <message>
        <source>Find Profiles</source>
        <translation>البحث عن ملفات شخصية</translation>
    </message>
    <message>
        <source>Find Profiles opens %1 and reads its profiles from the File menu. macOS asks to allow Accessibility and to let Vantrel control %1 and System Events.</source>
        <extracomment>Beside a Safari whose profiles were never searched. The placeholder is its name; Find Profiles is the button.</extracomment>
        <translation>يفتح «البحث عن ملفات شخصية» ⁨%1⁩ ويقرأ ملفاته الشخصية من قائمة «ملف». ويطلب macOS السماح بتسهيلات الاستخدام والسماح لـ Vantrel بالتحكم في ⁨%1⁩ وSystem Events.</translation>
    </message>
    <message>
        <source>macOS asks for your permission before Vantrel reads %1&apos;s profiles.</source>
        <extracomment>Beside a browser whose profiles the system doesn&apos;t let the program read. The placeholder is its name.</extracomment>
        <translation>يطلب macOS إذنك قبل أن يقرأ Vantrel ملفات ⁨%1⁩ الشخصية.</translation>
    </message>
    <message>
        <source>Vantrel isn&apos;t allowed to read %1&apos;s profiles in %2. Give your user account the right to read this folder, then choose Try Again.</source>
        <extracomment>Beside a browser whose folder can&apos;t be read. First: its name; second: the folder. Try Again is the button.</extracomment>
        <translation>غير مسموح لـ Vantrel بقراءة ملفات ⁨%1⁩ الشخصية في ⁨%2⁩. امنح حساب المستخدم لديك حق قراءة هذا المجلد، ثم اختر «حاول مرة أخرى».</translation>
    </message>
    <message>
        <source>Grant Access…</source>
        <extracomment>Button that asks for the right to read a browser&apos;s folder.</extracomment>
        <translation>منح الوصول…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <extracomment>Button that reads a browser&apos;s profiles once more.</extracomment>
        <translation>حاول مرة أخرى</translation>
    </message>
    <message>
        <source>Vantrel Can&apos;t Be Opened at Login</source>
        <extracomment>Title of an alert. Its message is the system&apos;s.</extracomment>
        <translation>يتعذر فتح Vantrel عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>Vantrel Can&apos;t Be Kept from Opening at Login</source>
        <translation>يتعذر إيقاف فتح Vantrel عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>%1 (not given)</source>
        <extracomment>A keyboard shortcut to which the desktop gave no keys. The placeholder is the keys that were asked for.</extracomment>
        <translation>⁨%1⁩ (لم يُمنح)</translation>
    </message>
    <message>
        <source>This desktop has no keyboard shortcuts for programs. Its own settings can give one to a command: Copy Command gives the “vantrel open” command of a profile.</source>
        <extracomment>Above the list of profiles. “vantrel open” is a command, Copy Command the button beside each profile.</extracomment>
        <translation>لا توفر بيئة سطح المكتب هذه اختصارات لوحة مفاتيح للبرامج. يمكن في إعداداتها تخصيص اختصار لأمر: «نسخ الأمر» يعطي أمر «⁦vantrel open⁩» لملف شخصي.</translation>
    </message>
    <message>
        <source>The desktop didn&apos;t let Vantrel have its keyboard shortcuts. Allow them in its settings, or record one again to be asked once more. It can also give a shortcut to the command “vantrel open” with a profile&apos;s id, which “vantrel list” prints.</source>
        <extracomment>Above the list of profiles. “vantrel open” and “vantrel list” are commands.</extracomment>
        <translation>لم يسمح سطح المكتب لـ Vantrel باختصارات لوحة المفاتيح. اسمح بها في إعداداته، أو سجّل اختصارًا من جديد ليُطلب الإذن مرة أخرى. ويمكنه أيضًا أن يعطي اختصارًا للأمر «⁦vantrel open⁩» مع معرّف ملف شخصي يطبعه «⁦vantrel list⁩».</translation>
    </message>
</context>
<context>
    <name>UnknownProfile</name>
    <message>
        <source>Vantrel doesn&apos;t know the profile “%1”. Check that it still exists in the browser, then make its launcher app again.</source>
        <extracomment>Error when a link or launcher app names a profile that isn&apos;t there. The placeholder is the profile&apos;s name.</extracomment>
        <translation>لا يعرف Vantrel الملف الشخصي «%1». تحقق من أنه ما زال موجودًا في المتصفح، ثم أنشئ تطبيق تشغيله من جديد.</translation>
    </message>
</context>
<context>
    <name>VantrelShortcuts</name>
    <message>
        <source>Open Profile</source>
        <extracomment>Title of an action that the system offers.</extracomment>
        <translation>فتح الملف الشخصي</translation>
    </message>
    <message>
        <source>Open %1 with %2</source>
        <extracomment>A phrase that the user says to the system. First: a profile; second: the app&apos;s name.</extracomment>
        <translation>فتح %1 باستخدام %2</translation>
    </message>
    <message>
        <source>Open a profile with %1</source>
        <extracomment>A phrase that the user says to the system. The placeholder is the app&apos;s name.</extracomment>
        <translation>فتح ملف شخصي باستخدام %1</translation>
    </message>
</context>
<context>
    <name>vantrel::AboutSettings</name>
    <message>
        <source>Version %1 (%2)</source>
        <extracomment>In the settings. First: the version, as 1.2; second: the build&apos;s number.</extracomment>
        <translation>الإصدار ⁦%1⁩ (⁦%2⁩)</translation>
    </message>
    <message>
        <source>Every browser profile, one click away.</source>
        <extracomment>The program in one line.</extracomment>
        <translation>كل ملف شخصي لمتصفح على بُعد نقرة واحدة.</translation>
    </message>
</context>
<context>
    <name>vantrel::AutomaticUpdatesToggle</name>
    <message>
        <source>Check for Updates Automatically</source>
        <extracomment>Switch in the settings.</extracomment>
        <translation>التحقق من التحديثات تلقائيًا</translation>
    </message>
</context>
<context>
    <name>vantrel::GeneralSettings</name>
    <message>
        <source>Example</source>
        <extracomment>What screen readers call the example of a command that opens a link.</extracomment>
        <translation>مثال</translation>
    </message>
    <message>
        <source>Safari Profiles</source>
        <extracomment>Title of a group in the settings.</extracomment>
        <translation>ملفات Safari الشخصية</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <extracomment>macOS&apos;s name for the right to use other programs&apos; menus; what follows is whether Vantrel has it.</extracomment>
        <translation>تسهيلات الاستخدام</translation>
    </message>
    <message>
        <source>Open Privacy Settings…</source>
        <extracomment>Button that opens a page of the system&apos;s settings.</extracomment>
        <translation>فتح إعدادات الخصوصية…</translation>
    </message>
    <message>
        <source>Safari can only be told which profile to open through its File menu, so Vantrel clicks it for you. That needs Accessibility, and macOS asks to let Vantrel control Safari and System Events. Other browsers need neither.</source>
        <extracomment>In the settings, below the state of the permission.</extracomment>
        <translation>لا يمكن إخبار Safari بالملف الشخصي المطلوب إلا من قائمة «ملف»، ولذلك ينقر Vantrel عليها نيابةً عنك. ويتطلب ذلك تسهيلات الاستخدام، ويطلب macOS السماح لـ Vantrel بالتحكم في Safari وSystem Events. ولا تحتاج المتصفحات الأخرى إلى أيٍّ منهما.</translation>
    </message>
    <message>
        <source>Links</source>
        <extracomment>Title of a group in the settings.</extracomment>
        <translation>الروابط</translation>
    </message>
    <message>
        <source>Other apps and scripts can open a profile with a link; Copy Link in a profile&apos;s menu in the Profiles tab gives it. Add `url=` items to open web pages in it:</source>
        <extracomment>In the settings, above an example. Copy Link is in the menu of each profile; “url=” stands in the link.</extracomment>
        <translation>يمكن للتطبيقات والنصوص البرمجية الأخرى فتح ملف شخصي برابط؛ يعطيه «نسخ الرابط» في قائمة الملف الشخصي ضمن علامة التبويب «الملفات الشخصية». أضف عناصر ⁦`url=`⁩ لفتح صفحات ويب فيه:</translation>
    </message>
    <message>
        <source>Allowed</source>
        <extracomment>Whether the user has given a permission.</extracomment>
        <translation>مسموح</translation>
    </message>
    <message>
        <source>Not allowed</source>
        <translation>غير مسموح</translation>
    </message>
</context>
<context>
    <name>vantrel::GlobalShortcuts</name>
    <message>
        <source>Open %1</source>
        <extracomment>What a global shortcut does, where the desktop lets the user choose its keys. The placeholder is a browser&apos;s and a profile&apos;s name.</extracomment>
        <translation>فتح ⁨%1⁩</translation>
    </message>
</context>
<context>
    <name>vantrel::LaunchAtLoginToggle</name>
    <message>
        <source>Open at Login</source>
        <extracomment>Switch in the settings: the program starts with the user&apos;s session.</extracomment>
        <translation>الفتح عند تسجيل الدخول</translation>
    </message>
</context>
<context>
    <name>vantrel::ProfileRow</name>
    <message>
        <source>Copy Command</source>
        <extracomment>Button that copies the command that opens a profile, where there are no keyboard shortcuts for programs.</extracomment>
        <translation>نسخ الأمر</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>Label of the field with a profile&apos;s name.</extracomment>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>Screen readers: the profile, and what of it a field or a button is about.</extracomment>
        <translation>⁨%1⁩: %2</translation>
    </message>
    <message>
        <source>Show in the menu</source>
        <extracomment>Help on the button that leaves a profile out of the menu, or shows it there again.</extracomment>
        <translation>إظهار في القائمة</translation>
    </message>
    <message>
        <source>Leave out of the menu</source>
        <translation>إخفاء من القائمة</translation>
    </message>
    <message>
        <source>More</source>
        <extracomment>The menu of what else can be done with a profile.</extracomment>
        <translation>المزيد</translation>
    </message>
</context>
<context>
    <name>vantrel::ProfilesSettings</name>
    <message>
        <source>No browser Vantrel knows is installed. It works with Safari, Chrome, Edge, Brave, Vivaldi, Opera and other Chromium browsers, Firefox and Zen.</source>
        <extracomment>In the settings when no browser was found.</extracomment>
        <translation>لا يوجد متصفح مثبَّت يعرفه Vantrel. وهو يعمل مع Safari وChrome وEdge وBrave وVivaldi وOpera ومتصفحات Chromium الأخرى وFirefox وZen.</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>In a profile&apos;s menu.</extracomment>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Create Launcher App…</source>
        <extracomment>In a profile&apos;s menu.</extracomment>
        <translation>إنشاء تطبيق تشغيل…</translation>
    </message>
    <message>
        <source>Copy Link</source>
        <extracomment>In a profile&apos;s menu.</extracomment>
        <translation>نسخ الرابط</translation>
    </message>
    <message>
        <source>Move Up</source>
        <extracomment>In a profile&apos;s menu: one place in the list of its browser&apos;s profiles.</extracomment>
        <translation>نقل لأعلى</translation>
    </message>
    <message>
        <source>Move Down</source>
        <extracomment>In a profile&apos;s menu: one place in the list of its browser&apos;s profiles.</extracomment>
        <translation>نقل لأسفل</translation>
    </message>
</context>
<context>
    <name>vantrel::SettingsWindow</name>
    <message>
        <source>Vantrel Settings</source>
        <extracomment>Title of the settings window.</extracomment>
        <translation>إعدادات Vantrel</translation>
    </message>
    <message>
        <source>Profiles</source>
        <extracomment>Tabs of the settings.</extracomment>
        <translation>الملفات الشخصية</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>About</source>
        <translation>حول</translation>
    </message>
</context>
<context>
    <name>vantrel::ShortcutRecorder</name>
    <message>
        <source>Record Shortcut</source>
        <extracomment>Button that starts recording a keyboard shortcut.</extracomment>
        <translation>تسجيل اختصار</translation>
    </message>
    <message>
        <source>Press Keys…</source>
        <extracomment>Stands on the button of a shortcut that is being recorded.</extracomment>
        <translation>اضغط المفاتيح…</translation>
    </message>
    <message>
        <source>Press the keys, Escape to cancel</source>
        <extracomment>Help on the button of a shortcut that is being recorded. Escape is the key.</extracomment>
        <translation>اضغط المفاتيح، أو Escape للإلغاء</translation>
    </message>
    <message>
        <source>Click, then press the shortcut that opens this profile</source>
        <extracomment>Help on the button that shows or records a keyboard shortcut.</extracomment>
        <translation>انقر، ثم اضغط الاختصار الذي يفتح هذا الملف الشخصي</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>What screen readers say: the profile that a shortcut opens, and the shortcut or what is to be done.</extracomment>
        <translation>⁨%1⁩: %2</translation>
    </message>
    <message>
        <source>Remove the shortcut</source>
        <extracomment>Help on the small button beside a keyboard shortcut.</extracomment>
        <translation>إزالة الاختصار</translation>
    </message>
</context>
</TS>
