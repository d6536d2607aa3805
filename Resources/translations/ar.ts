<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>notch</name>
    <message>
        <source>Unpin</source>
        <translation>إلغاء التثبيت</translation>
    </message>
    <message>
        <source>Keep open</source>
        <translation>إبقاؤه مفتوحًا</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Good night</source>
        <translation>ليلة سعيدة</translation>
    </message>
    <message>
        <source>Good morning</source>
        <translation>صباح الخير</translation>
    </message>
    <message>
        <source>Good afternoon</source>
        <translation>نهارك سعيد</translation>
    </message>
    <message>
        <source>Good evening</source>
        <translation>مساء الخير</translation>
    </message>
    <message>
        <source>Choose what Home shows in Settings › Home screen.</source>
        <translation>اختر ما يظهر هنا من الإعدادات › الشاشة الرئيسية.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>ملاحظة</translation>
    </message>
    <message>
        <source>Quick note… it saves as you type.</source>
        <translation>ملاحظة سريعة… تُحفظ أثناء الكتابة.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Timer</source>
        <translation>المؤقت</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>استئناف</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>بدء</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>إعادة ضبط</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>%d min</source>
        <translation>%d د</translation>
    </message>
    <message>
        <source>The time stays visible beside the closed notch.</source>
        <translation>يبقى الوقت ظاهرًا بجانب النتوء المغلق.</translation>
    </message>
    <message>
        <source>Fennivar’s notch is on, so Kestrune is paused.</source>
        <translation>نتوء Fennivar مفعّل، لذا أُوقف Kestrune مؤقتًا.</translation>
    </message>
    <message>
        <source>Turn off Notch in Fennivar to use Kestrune.</source>
        <translation>لاستخدام Kestrune، عطّل النتوء في Fennivar.</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>الرئيسية</translation>
    </message>
    <message>
        <source>Now Playing</source>
        <translation>قيد التشغيل</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>الحافظة</translation>
    </message>
    <message>
        <source>Screenshots</source>
        <translation>لقطات الشاشة</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>التقويم</translation>
    </message>
    <message>
        <source>Shelf</source>
        <translation>الرف</translation>
    </message>
    <message>
        <source>AI Usage</source>
        <translation>استخدام AI</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>الطقس</translation>
    </message>
    <message>
        <source>Stocks</source>
        <translation>الأسهم</translation>
    </message>
    <message>
        <source>Teleprompter</source>
        <translation>الملقن الآلي</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>المرآة</translation>
    </message>
    <message>
        <source>System</source>
        <translation>النظام</translation>
    </message>
    <message>
        <source>Greeting and date</source>
        <translation>التحية والتاريخ</translation>
    </message>
    <message>
        <source>Today&apos;s events</source>
        <translation>أحداث اليوم</translation>
    </message>
    <message>
        <source>Reminders</source>
        <translation>التذكيرات</translation>
    </message>
    <message>
        <source>Latest copies</source>
        <translation>أحدث المنسوخات</translation>
    </message>
    <message>
        <source>Latest screenshots</source>
        <translation>أحدث لقطات الشاشة</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>مخفي</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>يسار</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>وسط</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>يمين</translation>
    </message>
    <message>
        <source>On hover</source>
        <translation>عند مرور المؤشر</translation>
    </message>
    <message>
        <source>On click</source>
        <translation>عند النقر</translation>
    </message>
    <message>
        <source>More tools at fennivar.example</source>
        <translation>المزيد في fennivar.example</translation>
    </message>
    <message>
        <source>this app</source>
        <translation>هذا التطبيق</translation>
    </message>
    <message>
        <source>Copy something and it appears here.
Passwords from password managers are never saved.</source>
        <translation>انسخ شيئًا ليظهر هنا.
لا تُحفظ أبدًا كلمات المرور من برامج إدارة كلمات المرور.</translation>
    </message>
    <message>
        <source>Clipboard history is off.
Turn it on in Settings.</source>
        <translation>سجل الحافظة معطّل.
فعّله من الإعدادات.</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>مسح السجل</translation>
    </message>
    <message>
        <source>Nothing matches.</source>
        <translation>لا توجد نتائج.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>تم النسخ</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>روابط</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>صور</translation>
    </message>
    <message>
        <source>PDFs</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>Connect Codex or Claude Code to see your limits.</source>
        <translation>اربط Codex أو Claude Code لعرض حدودك.</translation>
    </message>
    <message>
        <source>Reads the plan limits that Codex CLI saves in ~/.codex on this Mac.</source>
        <translation>تُقرأ حدود الاشتراك التي يحفظها Codex CLI في ‎~/.codex على هذا الـ Mac.</translation>
    </message>
    <message>
        <source>Adds up the tokens that Claude Code logs in ~/.claude on this Mac. Anthropic does not store your remaining limit locally.</source>
        <translation>تُجمع الرموز المميزة التي يسجلها Claude Code في ‎~/.claude على هذا الـ Mac. لا تخزّن Anthropic حدّك المتبقي محليًا.</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>آخر سبعة أيام</translation>
    </message>
    <message>
        <source>Nothing leaves your Mac.</source>
        <translation>لا شيء يغادر جهاز Mac لديك.</translation>
    </message>
    <message>
        <source>Read again</source>
        <translation>قراءة من جديد</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>ربط</translation>
    </message>
    <message>
        <source>%@ tokens</source>
        <translation>%@ رمز مميز</translation>
    </message>
    <message>
        <source>%d%% left</source>
        <translation>بقي %d%%</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>جارٍ القراءة…</translation>
    </message>
    <message>
        <source>No Codex activity found yet. Use Codex once and it appears here.</source>
        <translation>لم يُعثر على نشاط Codex بعد. استخدم Codex مرة واحدة ليظهر هنا.</translation>
    </message>
    <message>
        <source>Updated %@</source>
        <translation>آخر تحديث: %@</translation>
    </message>
    <message>
        <source>5-hour window</source>
        <translation>نافذة خمس ساعات</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>أسبوعيًا</translation>
    </message>
    <message>
        <source>No Claude Code activity found.</source>
        <translation>لم يُعثر على نشاط Claude Code.</translation>
    </message>
    <message>
        <source>%d%% of your budget</source>
        <translation>%d%% من ميزانيتك</translation>
    </message>
    <message>
        <source>%d%% of your busiest block this week</source>
        <translation>%d%% من أنشط فترة هذا الأسبوع</translation>
    </message>
    <message>
        <source>This 5-hour block</source>
        <translation>فترة الخمس ساعات الحالية</translation>
    </message>
    <message>
        <source>Resets: %@</source>
        <translation>التجديد: %@</translation>
    </message>
    <message>
        <source>%d%%</source>
        <translation>%d%%</translation>
    </message>
    <message>
        <source>Drop files here to keep them handy.
Drag them out anywhere, or AirDrop them.</source>
        <translation>أفلت الملفات هنا لتبقى في متناولك.
اسحبها إلى أي مكان أو أرسلها عبر AirDrop.</translation>
    </message>
    <message>
        <source>Allow %@ to read your screenshots folder in
System Settings › Privacy &amp; Security › Files and Folders.</source>
        <translation>اسمح لـ %@ بقراءة مجلد لقطات الشاشة من
إعدادات النظام › الخصوصية والأمن › الملفات والمجلدات.</translation>
    </message>
    <message>
        <source>Take a screenshot (⇧⌘4) and it appears here.
Drag it into any app, or right-click for more.</source>
        <translation>التقط صورة للشاشة (‎⇧⌘4‎) لتظهر هنا.
اسحبها إلى أي تطبيق، أو انقر بالزر الأيمن للمزيد.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>فتح الإعدادات</translation>
    </message>
    <message>
        <source>Click to open · drag into any app · right-click to copy, AirDrop or add to the Shelf.</source>
        <translation>انقر للفتح · اسحب إلى أي تطبيق · الزر الأيمن: نسخ أو AirDrop أو الرف</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>إظهار في مدير الملفات</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>AirDrop</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>إفراغ</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Paste your script here. It scrolls right under the camera so you keep eye contact.</source>
        <translation>ألصق نصك هنا. يمر أسفل الكاميرا مباشرة لتحافظ على التواصل البصري.</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>النص</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>من البداية</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>السرعة</translation>
    </message>
    <message>
        <source>Text %d</source>
        <translation>الخط %d</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>خط أصغر</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>خط أكبر</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>تحرير</translation>
    </message>
    <message>
        <source>Add to Shelf</source>
        <translation>إضافة إلى الرف</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Type the symbols that you want to follow.</source>
        <translation>اكتب الرموز التي تريد متابعتها.</translation>
    </message>
    <message>
        <source>Symbols, separated by commas (AAPL, TSLA, ^GSPC, BTC-USD)</source>
        <translation>رموز مفصولة بفواصل (AAPL, TSLA, ^GSPC, BTC-USD)</translation>
    </message>
    <message>
        <source>Delayed quotes from Yahoo Finance.</source>
        <translation>أسعار متأخرة من Yahoo Finance.</translation>
    </message>
    <message>
        <source>Edit symbols</source>
        <translation>تحرير الرموز</translation>
    </message>
    <message>
        <source>Choose a city to see its weather.</source>
        <translation>اختر مدينة لعرض طقسها.</translation>
    </message>
    <message>
        <source>City</source>
        <translation>المدينة</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>استخدام موقعي</translation>
    </message>
    <message>
        <source>Change city</source>
        <translation>تغيير المدينة</translation>
    </message>
    <message>
        <source>Forecast by Open-Meteo. Only the city&apos;s coordinates are sent.</source>
        <translation>التوقعات من Open-Meteo. لا تُرسل سوى إحداثيات المدينة.</translation>
    </message>
    <message>
        <source>Weather is not available right now.</source>
        <translation>الطقس غير متاح الآن.</translation>
    </message>
    <message>
        <source>City not found.</source>
        <translation>لم يُعثر على المدينة.</translation>
    </message>
    <message>
        <source>My location</source>
        <translation>موقعي</translation>
    </message>
    <message>
        <source>Location not available. Type a city instead.</source>
        <translation>الموقع غير متاح. اكتب اسم مدينة بدلًا منه.</translation>
    </message>
    <message>
        <source>Not found: %@</source>
        <translation>لم يُعثر على: %@</translation>
    </message>
    <message>
        <source>Wind %@ mph</source>
        <translation>الرياح %@ ميل/س</translation>
    </message>
    <message>
        <source>Wind %@ km/h</source>
        <translation>الرياح %@ كم/س</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Allow %@ to control Music or Spotify in
System Settings › Privacy &amp; Security › Automation.</source>
        <translation>اسمح لـ %@ بالتحكم في Music أو Spotify من
إعدادات النظام › الخصوصية والأمن › الأتمتة.</translation>
    </message>
    <message>
        <source>Play something in Music or Spotify
and it shows up here.</source>
        <translation>شغّل شيئًا في Music أو Spotify
ليظهر هنا.</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>السابق</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>التالي</translation>
    </message>
    <message>
        <source>charging</source>
        <translation>قيد الشحن</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>البطارية</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>المعالج</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>الذاكرة</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>القرص</translation>
    </message>
    <message>
        <source>%@ free</source>
        <translation>متاح %@</translation>
    </message>
    <message>
        <source>No camera found.</source>
        <translation>لم يُعثر على كاميرا.</translation>
    </message>
    <message>
        <source>Allow %@ to use the camera in
System Settings › Privacy &amp; Security › Camera.</source>
        <translation>اسمح لـ %@ باستخدام الكاميرا من
إعدادات النظام › الخصوصية والأمن › الكاميرا.</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>الأحداث</translation>
    </message>
    <message>
        <source>Allow Calendar</source>
        <translation>السماح بالتقويم</translation>
    </message>
    <message>
        <source>Nothing else today or tomorrow.</source>
        <translation>لا شيء آخر اليوم أو غدًا.</translation>
    </message>
    <message>
        <source>Allow Reminders</source>
        <translation>السماح بالتذكيرات</translation>
    </message>
    <message>
        <source>All done</source>
        <translation>اكتمل كل شيء</translation>
    </message>
    <message>
        <source>Nothing else today.</source>
        <translation>لا شيء آخر اليوم.</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>إكمال</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>حدث</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>غدًا</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>طوال اليوم</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>أمس</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>نقل لأعلى</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>نقل لأسفل</translation>
    </message>
    <message>
        <source>Want more? Meet Fennivar</source>
        <translation>أتريد المزيد؟ تعرّف على Fennivar</translation>
    </message>
    <message>
        <source>Kestrune is one piece of Fennivar, the all-in-one app that makes your Mac work the way it should.</source>
        <translation>تطبيق Kestrune جزء من Fennivar، التطبيق الشامل الذي يجعل جهاز Mac لديك يعمل كما ينبغي.</translation>
    </message>
    <message>
        <source>Snap windows into place with a key or a drag</source>
        <translation>ضع النوافذ في مكانها بمفتاح أو بالسحب</translation>
    </message>
    <message>
        <source>Find files, apps and settings from one field</source>
        <translation>اعثر على الملفات والتطبيقات والإعدادات من حقل واحد</translation>
    </message>
    <message>
        <source>See what fills your disk and free it up</source>
        <translation>اعرف ما يملأ القرص وحرّر المساحة</translation>
    </message>
    <message>
        <source>Keep an eye on the battery and make it last</source>
        <translation>راقب البطارية وأطل عمرها</translation>
    </message>
    <message>
        <source>Discover Fennivar ↗</source>
        <translation>اكتشف Fennivar ↖</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>الفتح</translation>
    </message>
    <message>
        <source>Open the notch</source>
        <translation>فتح النتوء</translation>
    </message>
    <message>
        <source>Hover delay</source>
        <translation>مهلة مرور المؤشر</translation>
    </message>
    <message>
        <source>Open and close with ⌃⌥⌘N</source>
        <translation>الفتح والإغلاق باستخدام ‎⌃⌥⌘N</translation>
    </message>
    <message>
        <source>Show the song or timer beside the closed notch</source>
        <translation>إظهار الأغنية أو المؤقت بجانب النتوء المغلق</translation>
    </message>
    <message>
        <source>Show new screenshots beside the notch</source>
        <translation>إظهار لقطات الشاشة الجديدة بجانب النتوء</translation>
    </message>
    <message>
        <source>Displays</source>
        <translation>الشاشات</translation>
    </message>
    <message>
        <source>Show on every display</source>
        <translation>الإظهار على كل شاشة</translation>
    </message>
    <message>
        <source>Draw a notch on displays without one</source>
        <translation>رسم نتوء على الشاشات التي ليس لها نتوء</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>الخصوصية</translation>
    </message>
    <message>
        <source>Everything stays on this Mac. Weather asks Open-Meteo for your city&apos;s forecast and Stocks asks Yahoo Finance for quotes; nothing else goes online.</source>
        <translation>يبقى كل شيء على هذا الـ Mac. يطلب «الطقس» من Open-Meteo توقعات مدينتك وتطلب «الأسهم» من Yahoo Finance الأسعار؛ ولا شيء غير ذلك يتصل بالإنترنت.</translation>
    </message>
    <message>
        <source>Keep a clipboard history</source>
        <translation>الاحتفاظ بسجل الحافظة</translation>
    </message>
    <message>
        <source>Read Codex usage (~/.codex)</source>
        <translation>قراءة استخدام Codex (‎~/.codex)</translation>
    </message>
    <message>
        <source>Read Claude Code usage (~/.claude)</source>
        <translation>قراءة استخدام Claude Code (‎~/.claude)</translation>
    </message>
    <message>
        <source>Temperatures in °F</source>
        <translation>درجات الحرارة بوحدة ‎°F</translation>
    </message>
    <message>
        <source>Home screen</source>
        <translation>الشاشة الرئيسية</translation>
    </message>
    <message>
        <source>Restore default layout</source>
        <translation>استعادة التخطيط الافتراضي</translation>
    </message>
    <message>
        <source>Leave it at 0 to compare with your busiest block of the week. Anthropic does not publish limits in tokens, so set your own if you know it.</source>
        <translation>اتركه على 0 للمقارنة بأنشط فترة لديك هذا الأسبوع. لا تنشر Anthropic الحدود بالرموز المميزة، فأدخل حدّك إن كنت تعرفه.</translation>
    </message>
    <message>
        <source>Claude 5-hour budget (tokens)</source>
        <translation>ميزانية Claude لكل خمس ساعات (رموز مميزة)</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>الأدوات</translation>
    </message>
    <message>
        <source>Kestrune Settings</source>
        <translation>إعدادات Kestrune</translation>
    </message>
    <message>
        <source>This copy gets its updates with its package, or from whoever built it.</source>
        <translation>تُحدَّث هذه النسخة مع حزمتها أو ممن بناها.</translation>
    </message>
    <message>
        <source>Open Kestrune at login</source>
        <translation>فتح Kestrune عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>تثبيت التحديثات تلقائيًا</translation>
    </message>
    <message>
        <source>Open Notch</source>
        <translation>فتح النتوء</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>الإعدادات…</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>البحث عن تحديثات…</translation>
    </message>
    <message>
        <source>Get more tools: Fennivar ↗</source>
        <translation>المزيد من الأدوات: Fennivar ↗</translation>
    </message>
    <message>
        <source>Quit Kestrune</source>
        <translation>إنهاء Kestrune</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 م.ث</translation>
    </message>
    <message>
        <source>Kestrune then looks once a day, downloads what is new and asks before it is installed.</source>
        <translation>يبحث Kestrune حينها مرة كل يوم، وينزّل الجديد ويسأل قبل تثبيته.</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>تحديث البرنامج</translation>
    </message>
    <message>
        <source>The list of releases is not signed by Kestrune’s makers, so it was ignored.</source>
        <translation>قائمة الإصدارات غير موقَّعة من صانعي Kestrune، لذا تم تجاهلها.</translation>
    </message>
    <message>
        <source>The list of releases could not be read. Are you online?</source>
        <translation>تعذّرت قراءة قائمة الإصدارات. هل أنت متصل بالإنترنت؟</translation>
    </message>
    <message>
        <source>The list of releases is older than one seen before, so it was ignored.</source>
        <translation>قائمة الإصدارات أقدم من قائمة سابقة، لذا تم تجاهلها.</translation>
    </message>
    <message>
        <source>The update could not be downloaded. Are you online?</source>
        <translation>تعذّر تنزيل التحديث. هل أنت متصل بالإنترنت؟</translation>
    </message>
    <message>
        <source>The update is not what Kestrune’s makers signed, so it was not kept.</source>
        <translation>التحديث ليس ما وقّعه صانعو Kestrune، لذا لم يُحتفظ به.</translation>
    </message>
    <message>
        <source>The update could not be saved. Is the disk full?</source>
        <translation>تعذّر حفظ التحديث. هل القرص ممتلئ؟</translation>
    </message>
    <message>
        <source>The downloaded update was changed or removed.</source>
        <translation>تم تغيير التحديث الذي نُزِّل أو حذفه.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>جارٍ البحث عن تحديثات…</translation>
    </message>
    <message>
        <source>Kestrune is up to date</source>
        <translation>‏Kestrune محدَّث</translation>
    </message>
    <message>
        <source>Kestrune %@ is available</source>
        <translation>يتوفر Kestrune %@</translation>
    </message>
    <message>
        <source>Downloading Kestrune %@…</source>
        <translation>جارٍ تنزيل Kestrune %@…</translation>
    </message>
    <message>
        <source>Kestrune %@ is ready to install</source>
        <translation>‏Kestrune %@ جاهز للتثبيت</translation>
    </message>
    <message>
        <source>Kestrune could not be updated</source>
        <translation>تعذّر تحديث Kestrune</translation>
    </message>
    <message>
        <source>Version %@ is the newest one.</source>
        <translation>الإصدار %@ هو الأحدث.</translation>
    </message>
    <message>
        <source>You have version %@.</source>
        <translation>لديك الإصدار %@.</translation>
    </message>
    <message>
        <source>It was checked: it comes from Kestrune’s makers.</source>
        <translation>تم التحقق: مصدره صانعو Kestrune.</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>تنزيل</translation>
    </message>
    <message>
        <source>Install…</source>
        <translation>تثبيت…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>إعادة المحاولة</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>لاحقًا</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
</context>
</TS>
