<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>notch</name>
    <message>
        <source>Unpin</source>
        <extracomment>Let the notch close by itself again; the opposite of “Keep open”.</extracomment>
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
        <extracomment>A note to oneself, such as one jots down.</extracomment>
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
        <extracomment>Start the timer.</extracomment>
        <translation>بدء</translation>
    </message>
    <message>
        <source>Reset</source>
        <extracomment>Set the timer back to its beginning.</extracomment>
        <translation>إعادة ضبط</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>A button of the script: “Edit” begins to change it, “Done” ends that.
----------
The time of the timer is over.</extracomment>
        <translation>تم</translation>
    </message>
    <message numerus="yes">
        <source>%Ln min</source>
        <extracomment>A button that starts a timer; “min” is short for minutes. There is little room.</extracomment>
        <translation>
            <numerusform>%Ln د</numerusform>
            <numerusform>%Ln د</numerusform>
            <numerusform>%Ln د</numerusform>
            <numerusform>%Ln د</numerusform>
            <numerusform>%Ln د</numerusform>
            <numerusform>%Ln د</numerusform>
        </translation>
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
        <extracomment>The page that the notch opens with, like that of a telephone.</extracomment>
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
        <extracomment>A place where files are put down for a while.</extracomment>
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
        <extracomment>The prices of shares.</extracomment>
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
        <extracomment>Processor, memory, disk and battery of this computer.</extracomment>
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
        <extracomment>Where a block of Home stands: nowhere. The others are its three columns.</extracomment>
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
        <extracomment>Completes “Open the notch”: when the pointer rests on it.</extracomment>
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
        <extracomment>Stands for the name of the program where it has none.</extracomment>
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
        <extracomment>In the menu of an entry: delete it from the history.</extracomment>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Copied</source>
        <extracomment>Shown in the place of what was just copied again.</extracomment>
        <translation>تم النسخ</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>What an empty search field says, and the button that looks for a city.</extracomment>
        <translation>بحث</translation>
    </message>
    <message>
        <source>All</source>
        <extracomment>What the list shows: copies of every kind.</extracomment>
        <translation>الكل</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>What the list shows: the copies that are texts.</extracomment>
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
        <extracomment>The title of a copied picture, before its size.</extracomment>
        <translation>صورة</translation>
    </message>
    <message>
        <source>Connect Codex or Claude Code to see your limits.</source>
        <translation>اربط Codex أو Claude Code لعرض حدودك.</translation>
    </message>
    <message>
        <source>Reads the plan limits that Codex CLI saves in ~/.codex on this Mac.</source>
        <translation>تُقرأ حدود الاشتراك التي يحفظها Codex CLI في ‎~/.codex على هذا الحاسوب.</translation>
    </message>
    <message>
        <source>Adds up the tokens that Claude Code logs in ~/.claude on this Mac. Anthropic does not store your remaining limit locally.</source>
        <translation>تُجمع الرموز المميزة التي يسجلها Claude Code في ‎~/.claude على هذا الحاسوب. لا تخزّن Anthropic حدّك المتبقي محليًا.</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>آخر سبعة أيام</translation>
    </message>
    <message>
        <source>Nothing leaves your Mac.</source>
        <translation>لا شيء يغادر حاسوبك.</translation>
    </message>
    <message>
        <source>Read again</source>
        <extracomment>On a round button: read the logs once more.</extracomment>
        <translation>قراءة من جديد</translation>
    </message>
    <message>
        <source>Connect</source>
        <extracomment>A button: begin to read the usage of a program.</extracomment>
        <translation>ربط</translation>
    </message>
    <message numerus="yes">
        <source>%1 tokens</source>
        <extracomment>%1 is the number of tokens, the pieces of text that a language model counts in.</extracomment>
        <translation>
            <numerusform>%1 رمز مميز</numerusform>
            <numerusform>%1 رمز مميز</numerusform>
            <numerusform>%1 رمزان مميزان</numerusform>
            <numerusform>%1 رموز مميزة</numerusform>
            <numerusform>%1 رمزًا مميزًا</numerusform>
            <numerusform>%1 رمز مميز</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln% left</source>
        <extracomment>What is left of a limit, in per cent.</extracomment>
        <translation>
            <numerusform>بقي %Ln%</numerusform>
            <numerusform>بقي %Ln%</numerusform>
            <numerusform>بقي %Ln%</numerusform>
            <numerusform>بقي %Ln%</numerusform>
            <numerusform>بقي %Ln%</numerusform>
            <numerusform>بقي %Ln%</numerusform>
        </translation>
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
        <source>Updated %1</source>
        <extracomment>%1 is a time, such as “14:05” or “Mon 14:05”.</extracomment>
        <translation>آخر تحديث: %1</translation>
    </message>
    <message>
        <source>5-hour window</source>
        <extracomment>The name of a limit that holds for five hours.</extracomment>
        <translation>نافذة خمس ساعات</translation>
    </message>
    <message>
        <source>Weekly</source>
        <extracomment>The name of a limit that holds for a week.</extracomment>
        <translation>أسبوعيًا</translation>
    </message>
    <message>
        <source>No Claude Code activity found.</source>
        <translation>لم يُعثر على نشاط Claude Code.</translation>
    </message>
    <message>
        <source>%1% of your budget</source>
        <extracomment>%1 is a number. There is little room.</extracomment>
        <translation>%1% من ميزانيتك</translation>
    </message>
    <message>
        <source>%1% of your busiest block this week</source>
        <extracomment>%1 is a number; a block is five hours of work. There is little room.</extracomment>
        <translation>%1% من أنشط فترة هذا الأسبوع</translation>
    </message>
    <message>
        <source>This 5-hour block</source>
        <translation>فترة الخمس ساعات الحالية</translation>
    </message>
    <message>
        <source>Resets: %1</source>
        <extracomment>When a limit begins anew; %1 is a time, such as “14:05” or “Mon 14:05”. There is little room.</extracomment>
        <translation>التجديد: %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>%1 is a number, with decimals where it is the change of a share’s price.</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Drop files here to keep them handy.
Drag them out anywhere, or AirDrop them.</source>
        <translation>أفلت الملفات هنا لتبقى في متناولك.
اسحبها إلى أي مكان أو أرسلها إلى جهاز.</translation>
    </message>
    <message>
        <source>Allow %1 to read your screenshots folder in
System Settings › Privacy &amp; Security › Files and Folders.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>اسمح لـ %1 بقراءة مجلد لقطات الشاشة:
أذونات المجلد لا تسمح بذلك.</translation>
    </message>
    <message>
        <source>Take a screenshot (⇧⌘4) and it appears here.
Drag it into any app, or right-click for more.</source>
        <translation>التقط صورة للشاشة (Print Screen) لتظهر هنا.
اسحبها إلى أي تطبيق، أو انقر بالزر الأيمن للمزيد.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>A button that opens the settings of the desktop.</extracomment>
        <translation>فتح الإعدادات</translation>
    </message>
    <message>
        <source>Click to open · drag into any app · right-click to copy, AirDrop or add to the Shelf.</source>
        <translation>انقر للفتح · اسحب إلى أي تطبيق · الزر الأيمن: نسخ أو إرسال أو الرف</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>إظهار في مدير الملفات</translation>
    </message>
    <message>
        <source>AirDrop</source>
        <translation>إرسال إلى جهاز</translation>
    </message>
    <message>
        <source>Clear</source>
        <extracomment>A button: take all files off the shelf.</extracomment>
        <translation>إفراغ</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Take a file off the shelf; the file itself stays where it is.</extracomment>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Paste your script here. It scrolls right under the camera so you keep eye contact.</source>
        <translation>ألصق نصك هنا. يمر أسفل الكاميرا مباشرة لتحافظ على التواصل البصري.</translation>
    </message>
    <message>
        <source>Script</source>
        <extracomment>Name of the field for the text that is read aloud.</extracomment>
        <translation>النص</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>A button: scroll the script from its beginning again.</extracomment>
        <translation>من البداية</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>How fast the script scrolls.</extracomment>
        <translation>السرعة</translation>
    </message>
    <message>
        <source>Text %1</source>
        <extracomment>%1 is the size of the letters in points. There is little room.</extracomment>
        <translation>الخط %1</translation>
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
        <extracomment>In the menu of a screenshot: copy the picture.</extracomment>
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
        <extracomment>What the empty field for the name of a city says.</extracomment>
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
        <extracomment>In the place of a city’s name.</extracomment>
        <translation>موقعي</translation>
    </message>
    <message>
        <source>Location not available. Type a city instead.</source>
        <translation>الموقع غير متاح. اكتب اسم مدينة بدلًا منه.</translation>
    </message>
    <message>
        <source>Not found: %1</source>
        <extracomment>%1 is a list of the symbols of shares.</extracomment>
        <translation>لم يُعثر على: %1</translation>
    </message>
    <message>
        <source>Wind %1 mph</source>
        <extracomment>%1 is a speed in miles an hour.</extracomment>
        <translation>الرياح %1 ميل/س</translation>
    </message>
    <message>
        <source>Wind %1 km/h</source>
        <extracomment>%1 is a speed in kilometres an hour.</extracomment>
        <translation>الرياح %1 كم/س</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Allow %1 to control Music or Spotify in
System Settings › Privacy &amp; Security › Automation.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>اسمح لـ %1 بالتحكم في مشغلات الوسائط
من إعدادات الخصوصية في سطح المكتب.</translation>
    </message>
    <message>
        <source>Play something in Music or Spotify
and it shows up here.</source>
        <translation>شغّل شيئًا في أي مشغل وسائط
ليظهر هنا.</translation>
    </message>
    <message>
        <source>Previous</source>
        <extracomment>The previous song.</extracomment>
        <translation>السابق</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>The next song.</extracomment>
        <translation>التالي</translation>
    </message>
    <message>
        <source>charging</source>
        <extracomment>Of the battery, after its level: “80% · charging”.</extracomment>
        <translation>قيد الشحن</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>البطارية</translation>
    </message>
    <message>
        <source>CPU</source>
        <extracomment>The processor and how busy it is. There is little room.</extracomment>
        <translation>المعالج</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>The working memory (RAM).</extracomment>
        <translation>الذاكرة</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>القرص</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is an amount with its unit, such as 12.3 GB.</extracomment>
        <translation>متاح %1</translation>
    </message>
    <message>
        <source>No camera found.</source>
        <translation>لم يُعثر على كاميرا.</translation>
    </message>
    <message>
        <source>Allow %1 to use the camera in
System Settings › Privacy &amp; Security › Camera.</source>
        <extracomment>%1 is the name of the program.</extracomment>
        <translation>اسمح لـ %1 باستخدام الكاميرا من
إعدادات الخصوصية في سطح المكتب.</translation>
    </message>
    <message>
        <source>Events</source>
        <extracomment>Heading of the list of appointments.</extracomment>
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
        <extracomment>Instead of a list: no reminder is left.</extracomment>
        <translation>اكتمل كل شيء</translation>
    </message>
    <message>
        <source>Nothing else today.</source>
        <translation>لا شيء آخر اليوم.</translation>
    </message>
    <message>
        <source>Complete</source>
        <extracomment>A verb, on the circle before a reminder: mark it as done.</extracomment>
        <translation>إكمال</translation>
    </message>
    <message>
        <source>Event</source>
        <extracomment>The title of an appointment that has none.</extracomment>
        <translation>حدث</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>غدًا</translation>
    </message>
    <message>
        <source>All day</source>
        <extracomment>In the place of an appointment’s time.</extracomment>
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
        <translation>تطبيق Kestrune جزء من Fennivar، التطبيق الشامل الذي يجعل حاسوبك يعمل كما ينبغي.</translation>
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
        <extracomment>Heading of the settings that say how the notch opens.</extracomment>
        <translation>الفتح</translation>
    </message>
    <message>
        <source>Open the notch</source>
        <extracomment>Followed by the choice of “On hover” and “On click”.</extracomment>
        <translation>فتح النتوء</translation>
    </message>
    <message>
        <source>Hover delay</source>
        <extracomment>How long the pointer rests on the notch before it opens; beside a slider.</extracomment>
        <translation>مهلة مرور المؤشر</translation>
    </message>
    <message>
        <source>Open and close with ⌃⌥⌘N</source>
        <translation>الفتح والإغلاق باستخدام ‎Ctrl+Alt+Super+N</translation>
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
        <extracomment>Heading of the settings that are about monitors.</extracomment>
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
        <translation>يبقى كل شيء على هذا الحاسوب. يطلب «الطقس» من Open-Meteo توقعات مدينتك وتطلب «الأسهم» من Yahoo Finance الأسعار؛ ولا شيء غير ذلك يتصل بالإنترنت.</translation>
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
        <extracomment>%1 is a number of milliseconds.</extracomment>
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
        <source>Kestrune %1 is available</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>يتوفر Kestrune %1</translation>
    </message>
    <message>
        <source>Downloading Kestrune %1…</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>جارٍ تنزيل Kestrune %1…</translation>
    </message>
    <message>
        <source>Kestrune %1 is ready to install</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>‏Kestrune %1 جاهز للتثبيت</translation>
    </message>
    <message>
        <source>Kestrune could not be updated</source>
        <translation>تعذّر تحديث Kestrune</translation>
    </message>
    <message>
        <source>Version %1 is the newest one.</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>الإصدار %1 هو الأحدث.</translation>
    </message>
    <message>
        <source>You have version %1.</source>
        <extracomment>%1 is a version, such as 1.2.0.</extracomment>
        <translation>لديك الإصدار %1.</translation>
    </message>
    <message>
        <source>It was checked: it comes from Kestrune’s makers.</source>
        <translation>تم التحقق: مصدره صانعو Kestrune.</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>A verb, on a button.</extracomment>
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
        <extracomment>A button that closes the window of an update.</extracomment>
        <translation>لاحقًا</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Bound to %1</source>
        <extracomment>%1 is a combination of keys, as the desktop writes it.</extracomment>
        <translation>المفاتيح: %1</translation>
    </message>
    <message>
        <source>Another program has these keys. In the desktop’s settings, bind others to: %1</source>
        <extracomment>%1 is a command.</extracomment>
        <translation>يستخدم برنامج آخر هذه المفاتيح. في إعدادات سطح المكتب، اربط مفاتيح أخرى بالأمر: %1</translation>
    </message>
    <message>
        <source>No keys are bound. In the desktop’s settings, bind some to: %1</source>
        <extracomment>%1 is a command.</extracomment>
        <translation>لا توجد مفاتيح مرتبطة. في إعدادات سطح المكتب، اربط مفاتيح بالأمر: %1</translation>
    </message>
    <message>
        <source>The list of releases has expired, so it was ignored. Is the clock set right?</source>
        <translation>انتهت صلاحية قائمة الإصدارات، لذا تم تجاهلها. هل ساعة الجهاز مضبوطة؟</translation>
    </message>
    <message>
        <source>The list of releases is dated in the future, so it was ignored. Is the clock set right?</source>
        <translation>تاريخ قائمة الإصدارات في المستقبل، لذا تم تجاهلها. هل ساعة الجهاز مضبوطة؟</translation>
    </message>
    <message>
        <source>“%1”</source>
        <extracomment>The name of a calendar in quotation marks.</extracomment>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>Could not be read in full: %1</source>
        <extracomment>%1 is the name of a calendar in quotation marks, or several with commas between them.</extracomment>
        <translation>تعذرت قراءة ما يلي بالكامل: %1</translation>
    </message>
    <message>
        <source>Renewed; figures of %1</source>
        <extracomment>A limit has begun anew since it was read; %1 is when that was, such as “14:05” or “Mon 14:05”.</extracomment>
        <translation>تم التجديد؛ أرقام %1</translation>
    </message>
    <message>
        <source>All day, since %1</source>
        <extracomment>In the place of an appointment’s time; %1 is the day before today when it began, such as “Mon”.</extracomment>
        <translation>طوال اليوم، منذ %1</translation>
    </message>
    <message>
        <source>Since %1</source>
        <extracomment>When an appointment began; %1 is a day before today and a time, such as “Mon 14:05”.</extracomment>
        <translation>منذ %1</translation>
    </message>
    <message>
        <source>Hide over full-screen windows</source>
        <extracomment>The closed notch; displays with a camera housing keep theirs.</extracomment>
        <translation>الإخفاء فوق نوافذ ملء الشاشة</translation>
    </message>
    <message>
        <source>Panels at the top edge</source>
        <extracomment>Other programs&apos; bars along the top of the screen; followed by a choice of where the notch is.</extracomment>
        <translation>أشرطة الحافة العلوية</translation>
    </message>
    <message>
        <source>Automatic</source>
        <extracomment>Completes “Panels at the top edge”: below them, but around a camera.</extracomment>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>Notch over them</source>
        <extracomment>Completes “Panels at the top edge”: the notch lies over them.</extracomment>
        <translation>النتوء فوقها</translation>
    </message>
    <message>
        <source>Notch below them</source>
        <extracomment>Completes “Panels at the top edge”: the notch hangs below them.</extracomment>
        <translation>النتوء تحتها</translation>
    </message>
    <message>
        <source>Press the keys…</source>
        <translation>اضغط المفاتيح…</translation>
    </message>
    <message>
        <source>Keys that open and close the notch: %1</source>
        <translation>المفاتيح التي تفتح النتوء وتغلقه: %1</translation>
    </message>
    <message>
        <source>Keys</source>
        <extracomment>Beside a button that shows the keys of the hot key.</extracomment>
        <translation>المفاتيح</translation>
    </message>
    <message>
        <source>Open and close with %1</source>
        <extracomment>%1 is a combination of keys.</extracomment>
        <translation>الفتح والإغلاق باستخدام ‎%1</translation>
    </message>
    <message>
        <source>Pin</source>
        <extracomment>In the menu of an entry of the clipboard history: keep it until it is deleted.</extracomment>
        <translation>تثبيت</translation>
    </message>
    <message>
        <source>Pinned</source>
        <extracomment>Said of an entry of the clipboard history that is kept until the user deletes it.</extracomment>
        <translation>مثبّت</translation>
    </message>
    <message>
        <source>Cut</source>
        <extracomment>In the menu of a text field, as “Copy”, “Paste” and “Select All”.</extracomment>
        <translation>قص</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>لصق</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>تحديد الكل</translation>
    </message>
    <message>
        <source>Play and pause the teleprompter with Ctrl+Alt+Super+P</source>
        <translation>تشغيل الملقن الآلي وإيقافه مؤقتًا بواسطة Ctrl+Alt+Super+P</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>نقل إلى سلة المهملات</translation>
    </message>
    <message>
        <source>Choose the camera</source>
        <translation>اختيار الكاميرا</translation>
    </message>
    <message>
        <source>The desktop will ask you for the camera.</source>
        <translation>سيسألك سطح المكتب عن الكاميرا.</translation>
    </message>
    <message>
        <source>Turn On Camera</source>
        <translation>تشغيل الكاميرا</translation>
    </message>
    <message>
        <source>You refused the camera before, and the desktop remembers it.
Allow it in the desktop’s privacy settings.</source>
        <translation>رفضتَ الكاميرا من قبل، وسطح المكتب يتذكّر ذلك.
اسمح بها في إعدادات الخصوصية الخاصة به.</translation>
    </message>
    <message>
        <source>Cannot be reached now</source>
        <translation>لا يمكن الوصول إليه الآن</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>How long the rest of the script takes to scroll past. %1 is a time such as 3:05.</extracomment>
        <translation>المتبقي %1</translation>
    </message>
    <message>
        <source>Play or pause the teleprompter</source>
        <extracomment>What a hot key does, in the desktop&apos;s settings.</extracomment>
        <translation>تشغيل الملقن الآلي أو إيقافه مؤقتًا</translation>
    </message>
    <message>
        <source>To send files, KDE Connect or GSConnect has to run.</source>
        <translation>لإرسال الملفات يجب أن يعمل KDE Connect أو GSConnect.</translation>
    </message>
    <message>
        <source>Sending to %1…</source>
        <translation>جارٍ الإرسال إلى %1…</translation>
    </message>
    <message>
        <source>On the way to %1.</source>
        <extracomment>The files have been handed over to the service that sends them.</extracomment>
        <translation>في الطريق إلى %1.</translation>
    </message>
    <message>
        <source>Could not be sent to %1.</source>
        <translation>تعذّر الإرسال إلى %1.</translation>
    </message>
    <message>
        <source>No paired device is in reach.</source>
        <translation>لا يوجد جهاز مقترن في المتناول.</translation>
    </message>
    <message numerus="yes">
        <source>Send %Ln files to %1</source>
        <extracomment>An entry of a menu. %1 is the name of a phone or of another computer.</extracomment>
        <translation>
            <numerusform>إرسال %Ln ملف إلى %1</numerusform>
            <numerusform>إرسال ملف واحد (%Ln) إلى %1</numerusform>
            <numerusform>إرسال ملفين (%Ln) إلى %1</numerusform>
            <numerusform>إرسال %Ln ملفات إلى %1</numerusform>
            <numerusform>إرسال %Ln ملفًا إلى %1</numerusform>
            <numerusform>إرسال %Ln ملف إلى %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash.</source>
        <translation>تعذّر نقل %1 إلى سلة المهملات.</translation>
    </message>
    <message>
        <source>Default Camera</source>
        <extracomment>The first of the cameras to choose from: whichever the desktop takes.</extracomment>
        <translation>الكاميرا الافتراضية</translation>
    </message>
    <message>
        <source>Minutes</source>
        <extracomment>What the empty field for the length of a timer says.</extracomment>
        <translation>الدقائق</translation>
    </message>
    <message>
        <source>One minute less</source>
        <translation>دقيقة أقل</translation>
    </message>
    <message>
        <source>One minute more</source>
        <translation>دقيقة أكثر</translation>
    </message>
    <message>
        <source>The time is up.</source>
        <extracomment>The timer has run down.</extracomment>
        <translation>انتهى الوقت.</translation>
    </message>
    <message>
        <source>As of %1</source>
        <extracomment>Beside figures that could not be fetched anew; %1 is when they came, such as “14:05” or “24.12.26 14:05”.</extracomment>
        <translation>حتى %1</translation>
    </message>
    <message>
        <source>Quotes are not available right now.</source>
        <extracomment>The prices of shares, which a server on the web tells.</extracomment>
        <translation>الأسعار غير متاحة الآن.</translation>
    </message>
</context>
</TS>
