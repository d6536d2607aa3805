#include "Desktop/Calendars/CalendarStage.h"
#include "Desktop/Calendars/SlowServer.h"
#include "NotchKit/NotchSettings.h"
#include "NotchKit/Tools/Calendar/CalendarModel.h"

#include <sys/stat.h>

namespace {

QByteArray component(const QByteArray &kind, const QByteArray &uid, const QByteArray &lines)
{
    return "BEGIN:" + kind + "\nUID:" + uid + "\nDTSTAMP:20260101T000000Z\n" + lines + "\nEND:" + kind + '\n';
}
QByteArray vevent(const QByteArray &uid, const QByteArray &lines)
{
    return component("VEVENT", uid, "SUMMARY:" + uid + '\n' + lines);
}
QByteArray vtodo(const QByteArray &uid, const QByteArray &lines)
{
    return component("VTODO", uid, "SUMMARY:" + uid + '\n' + lines);
}

QDateTime utc(const QString &time) { return QDateTime::fromString(time + u'Z', Qt::ISODate); }

QString time(const QDateTime &when) { return when.toUTC().toString(u"dd'T'HH:mm"_s); }

/// "title start to end", times of UTC; in their order.
QStringList described(const CalendarStore::Events &events)
{
    QStringList lines = each(events, [](const CalendarEvent &event) {
        return event.title + u' ' + time(event.start) + u' ' + time(event.end) +
               (event.allDay ? u" day"_s : QString());
    });
    lines.sort();
    return lines;
}

/// "title due".
QStringList described(const CalendarStore::Tasks &tasks)
{
    QStringList lines =
        each(tasks, [](const CalendarTask &task) { return task.title + u' ' + time(task.due); });
    lines.sort();
    return lines;
}

// A zone that only this calendar knows, three hours behind UTC.
constexpr auto kOwnZone = "BEGIN:VTIMEZONE\nTZID:Far Away\nBEGIN:STANDARD\nDTSTART:19700101T000000\n"
                          "TZOFFSETFROM:-0300\nTZOFFSETTO:-0300\nEND:STANDARD\nEND:VTIMEZONE\n";

} // namespace

/// Both adapters against the same calendars. The user is in Berlin, and it is Saturday, 28 March 2026, 11:00;
/// in the night to Sunday the clocks go forward.
class CalendarsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TZ", "Europe/Berlin");
        tzset();
    }

    void events_data()
    {
        columns<bool, QByteArray, QStringList>();
        const QStringList cases =
            QString::fromUtf8(readFile(QStringLiteral(KESTRUNE_EVENTS))).split(u"\n["_s);
        QCOMPARE(cases.size(), 9);
        for (const QString &one : cases.mid(1)) {
            const QStringList lines = one.split(u'\n', Qt::SkipEmptyParts);
            const QString name = lines.first().chopped(1);
            QByteArray components = name == "zones"_L1 ? kOwnZone : "";
            QStringList expected;
            for (const QString &line : lines.mid(1)) {
                if (line.startsWith(u"= "_s))
                    expected.append(line.mid(2));
                else
                    components += vevent(line.section(u" | "_s, 0, 0).toLatin1(),
                                         line.section(u" | "_s, 1).replace(u" | "_s, u"\n"_s).toLatin1());
            }
            QTest::addRow("folders: %s", qPrintable(name)) << false << components << expected;
            QTest::addRow("server: %s", qPrintable(name)) << true << components << expected;
        }
    }
    void events()
    {
        const auto [evolution, components, expected] = fetched<bool, QByteArray, QStringList>();
        const auto stage = makeStage(evolution);
        stage->create(u"Calendar"_s, components, u"#ff8000"_s);
        const auto found = readEvents(*stage);
        QCOMPARE(described(found), expected);
        QCOMPARE(each(found, &CalendarEvent::color), QList<QColor>(found.size(), QColor(255, 128, 0)));
        const auto ids = [](const CalendarStore::Events &events) {
            const QStringList all = each(events, &CalendarEvent::id);
            return QSet<QString>(all.begin(), all.end());
        };
        QCOMPARE(ids(found).size(), found.size());
        QVERIFY2(ids(readEvents(*stage)) == ids(found), "an occurrence keeps its id");
    }

    void colours_data() { adapters(); }
    void colours()
    {
        const auto [evolution] = fetched<bool>();
        const auto stage = makeStage(evolution);
        QMap<QString, QColor> forms{{u"#f80"_s, 0xff8800},        {u"#11223344"_s, 0x112233},
                                    {u"#f808"_s, 0xff8800},       {u"tomato"_s, 0xff6347},
                                    {u"rgb(1, 2,3)"_s, 0x010203}, {u"rgba(100%, 0%, 20%, 0.5)"_s, 0xff0033},
                                    {u"nonsense"_s, {}},          {u"rgb(1)"_s, {}}};
        if (evolution) // The same reads both; it takes the server seconds to make a calendar.
            forms.removeIf([](const auto &form) { return !form.key().startsWith(u"rgb"_s); });
        for (auto form = forms.cbegin(); form != forms.cend(); ++form)
            stage->create(u"Calendar"_s, vevent(form.key().toLatin1().toHex(), "DTSTART:20260328T120000Z"),
                          form.key());
        QMap<QString, QColor> found;
        for (const CalendarEvent &event : readEvents(*stage))
            found.insert(QString::fromLatin1(QByteArray::fromHex(event.title.toLatin1())), event.color);
        QCOMPARE(found, forms);
    }

    void tasks_data() { adapters(); }
    void tasks()
    {
        const auto [evolution] = fetched<bool>();
        const auto stage = makeStage(evolution);
        const QString list = stage->create(
            u"Task List"_s,
            vtodo("undated", "X-MINE;X-P=1:kept") +
                vtodo("overdue", "DUE:20260327T080000Z\nSTATUS:NEEDS-ACTION") +
                vtodo("day", "DUE;VALUE=DATE:20260329") + vtodo("done", "STATUS:COMPLETED") +
                vtodo("done too", "COMPLETED:20260301T080000Z") + vtodo("cancelled", "STATUS:CANCELLED") +
                vtodo("daily", "DTSTART;TZID=Europe/Berlin:20260328T080000\n"
                               "DUE;TZID=Europe/Berlin:20260328T090000\nRRULE:FREQ=DAILY;COUNT=2") +
                vtodo("long", "DTSTART:20260328T080000Z\nDURATION:PT30M"),
            u"#112233"_s);
        QCOMPARE(titles(*stage), (QStringList{u"daily 28T08:00"_s, u"day 28T23:00"_s, u"long 28T08:30"_s,
                                              u"overdue 27T08:00"_s, u"undated "_s}));
        QCOMPARE(readTasks(*stage).first().color, QColor(0x11, 0x22, 0x33));

        QVERIFY(complete(*stage, u"undated"_s) && complete(*stage, u"overdue"_s));
        // Sunday's nine o'clock is in summer time.
        QVERIFY(complete(*stage, u"daily"_s));
        QCOMPARE(titles(*stage), (QStringList{u"daily 29T07:00"_s, u"day 28T23:00"_s, u"long 28T08:30"_s}));
        QVERIFY(complete(*stage, u"daily"_s));
        QCOMPARE(titles(*stage), (QStringList{u"day 28T23:00"_s, u"long 28T08:30"_s}));
        QVERIFY(!CalendarStage::wait(stage->store().complete(u"nobody"_s)));

        const QByteArray seen = stage->texts(list);
        QCOMPARE(seen.count("STATUS:COMPLETED"), 4);
        QCOMPARE(seen.count("PERCENT-COMPLETE:100"), 3);
        QVERIFY(seen.contains("X-MINE;X-P=1:kept"));
    }

    void whatCannotBeSavedStays_data() { adapters(); }
    void whatCannotBeSavedStays()
    {
        const auto [evolution] = fetched<bool>();
        const auto stage = makeStage(evolution);
        const QString list = stage->createReadOnly(vtodo("fixed", "PRIORITY:1"));
        const QByteArray before = stage->texts(list);
        QCOMPARE(titles(*stage), QStringList{u"fixed "_s});
        QVERIFY(!complete(*stage, u"fixed"_s));
        QCOMPARE(stage->texts(list), before);
        QCOMPARE(titles(*stage), QStringList{u"fixed "_s});
    }

    void theNinthEventIsLeftOut_data() { adapters(); }
    void theNinthEventIsLeftOut()
    {
        const auto [evolution] = fetched<bool>();
        const auto stage = makeStage(evolution);
        Fakes::FakeClock clock;
        Fakes::MemoryDefaults defaults;
        NotchSettings settings(defaults);
        QStringList expected;
        for (int calendar = 0; calendar < 3; ++calendar) {
            QByteArray all;
            for (int i = 2; i >= 0; --i) {
                const int minutes = calendar * 3 + i + 1;
                const QByteArray start =
                    clock.now().addSecs(minutes * 60).toUTC().toString(u"yyyyMMdd'T'HHmmss'Z'"_s).toLatin1();
                all += vevent("e" + QByteArray::number(minutes), "DTSTART:" + start);
            }
            stage->create(u"Calendar"_s, all, u"#ff0000"_s);
        }
        CalendarModel model(settings, clock, stage->store());
        model.refresh();
        QTRY_COMPARE_WITH_TIMEOUT(model.items().size(), 8, 30'000);
        for (int i = 0; i < 8; ++i)
            QCOMPARE(model.items().at(i).title, u"e%1"_s.arg(i + 1));
    }

    void whatTheUserHidIsNotRead()
    {
        EvolutionStage stage;
        Fakes::MemoryDefaults defaults;
        defaults.setObject(DesktopCalendars::sourceKey(), u"evolution"_s);
        DesktopCalendars blind(stage.bus(), defaults, u"/nowhere"_s); // It names all that it should read.
        const auto names = [&] {
            const QDateTime from = utc(u"2026-03-28T10:00:00"_s);
            CalendarStage::wait(blind.events(from, from.addDays(1)));
            return CalendarStage::wait(blind.unread()).filter(u"Calendar "_s);
        };
        const auto switchOff = [&](const QString &uid, const QString &group) {
            stage.ask({{u"do"_s, u"change"_s}, {u"uid"_s, uid}, {u"group"_s, group}, {u"value"_s, false}});
        };
        const QString hidden = stage.create(u"Calendar"_s, vevent("a", "DTSTART:20260328T120000Z"), u"red"_s);
        const QString off = stage.create(u"Calendar"_s, vevent("b", "DTSTART:20260328T120000Z"), u"red"_s);
        QCOMPARE(readEvents(stage).size(), 2);
        QStringList both = names();
        both.sort();
        QCOMPARE(both, (QStringList{u"Calendar 1"_s, u"Calendar 2"_s}));
        switchOff(hidden, u"Calendar"_s);
        QTRY_COMPARE(readEvents(stage).size(), 1);
        QTRY_COMPARE(names(), QStringList{u"Calendar 2"_s});
        switchOff(off, u"Data Source"_s);
        QTRY_COMPARE(readEvents(stage).size(), 0);
        QTRY_COMPARE(names(), QStringList());
    }

    void aSlowCalendarHoldsNobodyUp_data()
    {
        const auto row = columns<QString>();
        for (const char *held : {"OpenCalendar", "Open", "GetObjectList"})
            row(held, held);
    }
    void aSlowCalendarHoldsNobodyUp()
    {
        const auto [held] = fetched<QString>();
        SlowServer server(held);
        Fakes::MemoryDefaults defaults;
        defaults.setObject(DesktopCalendars::sourceKey(), u"evolution"_s);
        DesktopCalendars store(server.bus.connection(), defaults, QStringLiteral(KESTRUNE_READER), 50ms);
        const auto titles = [&] {
            const QDateTime from = utc(u"2026-03-28T10:00:00"_s);
            const auto found = CalendarStage::wait(store.events(from, from.addDays(1)));
            return each(found.value_or(CalendarStore::Events()), &CalendarEvent::title).join(u' ');
        };
        for (int i = 0; i < 3; ++i) {
            QTRY_COMPARE(titles(), u"quick"_s);
            QCOMPARE(CalendarStage::wait(store.unread()), QStringList{u"slow"_s});
        }
        QCOMPARE(server.waiting.size(), 1); // nothing piles up
        server.letGo();
        QTRY_COMPARE(titles(), u"quick slow"_s);
        QCOMPARE(CalendarStage::wait(store.unread()), QStringList());
    }

    void damagedFilesAreSkipped()
    {
        FolderStage stage;
        const QByteArray whole = CalendarStage::calendar(vevent("good", "DTSTART:20260328T120000Z"));
        const QByteArray windows = QByteArray("\xEF\xBB\xBF") + QByteArray(whole).replace("\n", "\r\n");
        const QMap<QString, QByteArray> damaged{
            {u"half.ics"_s, whole.left(whole.size() / 2)},
            {u"empty.ics"_s, {}},
            {u"huge.ics"_s, QByteArray(17 * 1024 * 1024, 'x')},
            {u"noise.ics"_s, QByteArray("\x00\xFF\x10 noise", 9)},
            {u"knotted.ics"_s, QByteArray(whole).replace("END:VEVENT\n", "END:VTODO\n")},
            {u"page.ics"_s, "<html>Please log in</html>"},
        };
        for (auto file = damaged.cbegin(); file != damaged.cend(); ++file) {
            stage.keep(file.key(), file.value());
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression(u".*/%1 is no whole calendar.*"_s.arg(file.key())));
        }
        stage.keep(u"good.ics"_s, windows);
        stage.keep(u"inner.ics"_s,
                   CalendarStage::calendar(
                       vevent("broken", "DTSTART:tomorrow\nRRULE:FREQ=SOMETIMES") +
                       vevent("fine", "DTSTART:20260328T130000Z\nRRULE:NONSENSE") +
                       // which crashes the library itself
                       vevent("week", "DTSTART:20250615T113000Z\nRRULE:FREQ=YEARLY;BYWEEKNO=20")));
        stage.keep(u".hidden.ics"_s, whole);
        ::mkfifo(QFile::encodeName(stage.path() + u"/pipe.ics"_s).constData(), 0600);
        const QStringList expected{u"fine 28T13:00 28T13:00"_s, u"good 28T12:00 28T12:00"_s};
        QCOMPARE(described(readEvents(stage)), expected);
        QTest::failOnWarning(QRegularExpression(u".*"_s)); // each is named once only
        QCOMPARE(described(readEvents(stage)), expected);
        QCOMPARE(unread(stage), QStringList{QFileInfo(stage.path()).fileName()});
        stage.keep(u"displayname"_s, "  Home\t& " + QByteArray("Ä").repeated(90) + "\nx");
        QCOMPARE(unread(stage), QStringList{u"Home & "_s + QString(53, u'Ä')});
        stage.keep(u"half.ics"_s, QByteArray(whole).replace("good", "later"));
        QVERIFY(described(readEvents(stage)).contains(u"later 28T12:00 28T12:00"_s));
        QFile::remove(stage.path() + u"/good.ics"_s);
        QCOMPARE(readEvents(stage).size(), 2);
        for (const QString &name : damaged.keys())
            QFile::remove(stage.path() + u'/' + name);
        readEvents(stage);
        QCOMPARE(unread(stage), QStringList());
    }

    /// A file that takes more memory than its reader has.
    void whatEndsTheReaderCostsOnlyItself()
    {
        FolderStage stage;
        const auto event = [](const char *title) {
            return CalendarStage::calendar(vevent(title, "DTSTART:20260328T120000Z"));
        };
        const QString poison = stage.path() + u"/one/poison.ics"_s;
        stage.keep(u"a.ics"_s, event("before"));
        stage.keep(u"z.ics"_s, event("after"));
        FolderStage::write(poison, CalendarStage::calendar(QByteArray("X\n").repeated(7 * 1024 * 1024)));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u".*/poison.ics takes too much.*"_s));
        const QStringList rest{u"after 28T12:00 28T12:00"_s, u"before 28T12:00 28T12:00"_s};
        QCOMPARE(described(readEvents(stage)), rest);
        QTest::failOnWarning(QRegularExpression(u".*"_s)); // it is not tried again
        QCOMPARE(described(readEvents(stage)), rest);
        QCOMPARE(unread(stage), QStringList{u"one"_s});
        FolderStage::write(poison, event("mended"));
        QCOMPARE(readEvents(stage).size(), 3);
        QCOMPARE(unread(stage), QStringList());
    }

    void rulesThatNobodyCanFollowCostOnlyThemselves_data()
    {
        const auto row = columns<bool, QByteArray, QByteArray>();
        row("weeks of clocks", false, "FREQ=YEARLY;BYWEEKNO=20", {});
        row("clocks by the minute", false, "FREQ=MINUTELY", {});
        row("clocks by the second", false, "FREQ=YEARLY;BYSECOND=0,1,2,3;BYMINUTE=1,2", {});
        for (const bool server : {false, true}) { // It takes no such clocks itself.
            row(server ? "server: never" : "never", server, "FREQ=YEARLY;BYMONTH=3;BYDAY=-1SU",
                "FREQ=HOURLY;BYMONTH=2;BYMONTHDAY=30");
            row(server ? "server: stepped over" : "stepped over", server, "FREQ=YEARLY",
                "FREQ=HOURLY;INTERVAL=24;BYHOUR=3");
        }
    }
    void rulesThatNobodyCanFollowCostOnlyThemselves()
    {
        const auto [server, zone, event] = fetched<bool, QByteArray, QByteArray>();
        const auto stage = makeStage(server);
        const QByteArray clocks =
            QByteArray(kOwnZone).replace("END:STANDARD", "RRULE:" + zone + "\nEND:STANDARD");
        const QByteArray rule = event.isEmpty() ? QByteArray() : "\nRRULE:" + event;
        stage->create(u"Calendar"_s, clocks + vevent("odd", "DTSTART;TZID=Far Away:20260328T100000" + rule),
                      u"red"_s);
        stage->create(u"Calendar"_s, vevent("good", "DTSTART:20260328T120000Z"), u"red"_s);
        const QStringList found = described(readEvents(*stage));
        const QStringList good{u"good 28T12:00 28T12:00"_s};
        if (!server || found.size() > 1) // The server has its own mind of what never comes.
            QCOMPARE(found, good + QStringList{u"odd 28T13:00 28T13:00"_s});
        else
            QCOMPARE(found, good);
    }

    void completingKeepsTheRest()
    {
        FolderStage stage;
        const QByteArray text =
            "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nX-OWN;X-Q=\"a:b\":1\r\nBEGIN:VTODO\r\nUID:a\r\n"
            "NEW-THING:odd\r\nSUMMARY:A long title that some program has folded in the middle of a w\r\n "
            "ord\r\n"
            "percent-complete:40\r\nBEGIN:VALARM\r\nACTION:DISPLAY\r\nSTATUS:X\r\nEND:VALARM\r\nEND:VTODO\r\n"
            "BEGIN:VTODO\r\nUID:b\r\nSUMMARY:b\r\nEND:VTODO\r\nEND:VCALENDAR\r\n";
        const QString path = stage.path() + u"/a.ics"_s;
        FolderStage::write(path, text);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
        QCOMPARE(readTasks(stage).size(), 2);
        QVERIFY(complete(stage, u"A long title that some program has folded in the middle of a word"_s));
        QByteArray now = stage.texts(path);
        for (const char *property : {"LAST-MODIFIED", "DTSTAMP", "COMPLETED"}) {
            const auto at = now.indexOf(QByteArray("\r\n") + property + ':');
            QVERIFY2(at > 0, property);
            now.remove(at, now.indexOf("\r\n", at + 2) - at);
        }
        QByteArray expected = text;
        expected.replace("percent-complete:40", "percent-complete:100");
        expected.replace("BEGIN:VTODO\r\nUID:a", "BEGIN:VTODO\r\nSTATUS:COMPLETED\r\nUID:a");
        QCOMPARE(now, expected);
        QCOMPARE(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    }

    void accessIsAskedFor()
    {
        QTemporaryDir home;
        Fakes::MemoryDefaults defaults;
        DesktopCalendars store(QDBusConnection(QString()), defaults, QStringLiteral(KESTRUNE_READER));
        const QString folder = home.filePath(u"new/calendars"_s);
        const auto access = [&] { return CalendarStage::wait(store.access(CalendarEntity::events)); };
        defaults.setObject(DesktopCalendars::folderKey(), folder);
        QCOMPARE(access(), CalendarAccess::notDetermined);
        QVERIFY(CalendarStage::wait(store.requestAccess(CalendarEntity::events)));
        QCOMPARE(access(), CalendarAccess::full);
        QCOMPARE(QFile::permissions(folder) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
        FolderStage::write(home.filePath(u"file"_s), {});
        defaults.setObject(DesktopCalendars::folderKey(), home.filePath(u"file"_s));
        QCOMPARE(access(), CalendarAccess::denied);
        defaults.setObject(DesktopCalendars::sourceKey(), u"evolution"_s);
        QCOMPARE(access(), CalendarAccess::denied);
    }

    void theServerIsUsedWhereItCanBeStarted()
    {
        EvolutionStage stage;
        QTemporaryDir folder;
        FolderStage::write(folder.filePath(u"a.ics"_s),
                           CalendarStage::calendar(vevent("file", "DTSTART:20260328T120000Z")));
        Fakes::MemoryDefaults defaults;
        defaults.setObject(DesktopCalendars::folderKey(), folder.path());
        DesktopCalendars store(stage.bus(), defaults, QStringLiteral(KESTRUNE_READER));
        const auto names = [&] {
            return described(*CalendarStage::wait(
                store.events(utc(u"2026-03-28T10:00:00"_s), utc(u"2026-03-29T22:00:00"_s))));
        };
        QCOMPARE(CalendarStage::wait(store.access(CalendarEntity::events)), CalendarAccess::full);
        QCOMPARE(names(), QStringList());
        defaults.setObject(DesktopCalendars::sourceKey(), u"folders"_s);
        QCOMPARE(names(), QStringList{u"file 28T12:00 28T12:00"_s});
        stage.create(u"Calendar"_s, vevent("server", "DTSTART:20260328T130000Z"), u"red"_s);
        const QString list = stage.create(u"Task List"_s, vtodo("task", "PRIORITY:1"), u"red"_s);
        defaults.setObject(DesktopCalendars::sourceKey(), u"both"_s);
        QCOMPARE(names(), (QStringList{u"file 28T12:00 28T12:00"_s, u"server 28T13:00 28T13:00"_s}));
        const auto tasks = CalendarStage::wait(store.incompleteReminders()).value_or(CalendarStore::Tasks());
        QVERIFY(tasks.size() == 1 && CalendarStage::wait(store.complete(tasks.first().id)));
        QVERIFY(stage.texts(list).contains("STATUS:COMPLETED"));
    }

private:
    static std::unique_ptr<CalendarStage> makeStage(bool evolution)
    {
        if (evolution)
            return std::make_unique<EvolutionStage>();
        return std::make_unique<FolderStage>();
    }

    static CalendarStore::Events readEvents(CalendarStage &stage)
    {
        const auto found = CalendarStage::wait(
            stage.store().events(utc(u"2026-03-28T10:00:00"_s), utc(u"2026-03-29T22:00:00"_s)));
        return found ? *found : CalendarStore::Events{{{}, u"nothing was read"_s, {}, {}, false, {}}};
    }
    static CalendarStore::Tasks readTasks(CalendarStage &stage)
    {
        return CalendarStage::wait(stage.store().incompleteReminders()).value_or(CalendarStore::Tasks());
    }
    static QStringList unread(CalendarStage &stage) { return CalendarStage::wait(stage.store().unread()); }
    static QStringList titles(CalendarStage &stage) { return described(readTasks(stage)); }
    static bool complete(CalendarStage &stage, const QString &title)
    {
        for (const CalendarTask &each : readTasks(stage)) {
            if (each.title == title)
                return CalendarStage::wait(stage.store().complete(each.id));
        }
        return false;
    }

    static void adapters() { noAndYes("folders", "server"); }
};

REGISTER_TEST(CalendarsTest);
#include "CalendarsTest.moc"
