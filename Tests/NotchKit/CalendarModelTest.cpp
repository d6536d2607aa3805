#include "NotchKit/Tools/Calendar/CalendarModel.h"
#include "NotchKit/Tools/Calendar/CalendarFormat.h"
#include "Support/Core.h"

namespace {

using Access = CalendarAccess;
using Entity = CalendarEntity;

/// The core, with a calendar on screen whose store answers when the test does.
struct Stage : Fakes::Core
{
    CalendarModel &model = *services.model<CalendarModel>();

    explicit Stage(bool shown = true)
    {
        if (shown)
            model.visibleToolChanged(NotchTool::calendar);
    }

    CalendarEvent event(const QString &title, int minutes) const
    {
        const QDateTime start = clock.now().addSecs(minutes * 60);
        return {title, title, start, start.addSecs(60), false, {}};
    }
    CalendarTask task(const QString &title, std::optional<int> days = {}) const
    {
        return {title, title, days ? clock.now().addDays(*days) : QDateTime(), {}};
    }

    static void settle()
    {
        for (int i = 0; i < 4; ++i)
            QCoreApplication::processEvents();
    }
    template <typename Questions, typename Value>
    static void answer(Questions &questions, std::size_t index, const Value &value)
    {
        questions.answer(index, value);
        settle();
    }
    /// The last questions about access are answered so.
    void grant(Access events, Access reminders)
    {
        calendars.accesses[Entity::events].answerLast(events);
        calendars.accesses[Entity::reminders].answerLast(reminders);
        settle();
    }
    void answer(const std::optional<CalendarStore::Events> &events,
                const std::optional<CalendarStore::Tasks> &tasks)
    {
        grant(Access::full, Access::full);
        calendars.eventQuestions.answerLast(events);
        calendars.reminderQuestions.answerLast(tasks);
        settle();
    }

    QStringList items() const { return each(model.items(), &CalendarItem::title); }
    QStringList reminders() const { return each(model.reminders(), &CalendarReminder::title); }
};

} // namespace

class CalendarModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void orderAndLimits()
    {
        Stage stage;
        CalendarStore::Events events;
        CalendarStore::Tasks tasks{stage.task(u"undated"_s)};
        for (int i = 8; i >= 0; --i)
            events.append(stage.event(QString::number(i), i));
        for (int i = 10; i >= -1; --i)
            tasks.append(stage.task(QString::number(i), i));
        stage.answer(events, tasks);
        QCOMPARE(stage.items(), u"0 1 2 3 4 5 6 7"_s.split(u' '));
        QCOMPARE(stage.reminders(), u"-1 0 1 2 3 4 5 6 7 8 9 10"_s.split(u' '));
        stage.model.refresh();
        stage.answer(events, CalendarStore::Tasks{stage.task(u"b"_s), stage.task(u"next year"_s, 400),
                                                  stage.task(u"a"_s)});
        QCOMPARE(stage.reminders(), (QStringList{u"next year"_s, u"b"_s, u"a"_s}));
    }

    void theRangeIsFromNowToTheEndOfTomorrow()
    {
        Stage stage;
        stage.grant(Access::full, Access::full);
        const auto [from, to] = stage.calendars.ranges.value(0);
        QCOMPARE(from, stage.clock.now());
        QCOMPARE(to, from.toLocalTime().date().addDays(2).startOfDay());
    }

    void whatHasNoNameGetsOne()
    {
        Stage stage;
        CalendarEvent nameless = stage.event(QString(), 1);
        stage.answer(CalendarStore::Events{nameless, nameless}, CalendarStore::Tasks{{u"id"_s, {}, {}, {}}});
        const auto items = stage.model.items();
        QCOMPARE(stage.items(), (QStringList{u"Event"_s, u"Event"_s}));
        QVERIFY(!QUuid::fromString(items.at(0).id).isNull() && items.at(0).id != items.at(1).id);
        QCOMPARE(stage.reminders(), QStringList{QString()});
    }

    void listsFollowTheAccess_data()
    {
        columns<int, int>();
        for (const int events : {0, 1, 2, 3, 4}) {
            for (const int reminders : {0, 3})
                QTest::addRow("%d %d", events, reminders) << events << reminders;
        }
    }
    void listsFollowTheAccess()
    {
        const auto [events, reminders] = fetched<int, int>();
        Stage stage;
        QVERIFY(!stage.model.eventsKnown() && !stage.model.remindersKnown());
        stage.answer(CalendarStore::Events{stage.event(u"e"_s, 1)}, CalendarStore::Tasks{stage.task(u"t"_s)});
        stage.model.refresh();
        stage.grant(static_cast<Access>(events), static_cast<Access>(reminders));
        QCOMPARE(stage.model.status(), events);
        QCOMPARE(stage.model.reminderStatus(), reminders);
        QCOMPARE(stage.items().size(), events == 3 ? 1 : 0);
        QCOMPARE(stage.reminders().size(), reminders == 3 ? 1 : 0);
        QCOMPARE(stage.calendars.eventQuestions.count(), events == 3 ? 2U : 1U);
        QVERIFY(stage.model.eventsKnown() && stage.model.remindersKnown());
    }

    void whatCannotBeReadIsNamed()
    {
        Stage stage;
        const auto answer = [&](const QStringList &names) {
            stage.answer(CalendarStore::Events(), CalendarStore::Tasks());
            stage.calendars.unreadQuestions.answerLast(names);
            stage.settle();
            return CalendarFormat::unread(stage.model.unread());
        };
        const QString both = answer({u"%1"_s, u"עבודה"_s});
        QCOMPARE(QString(both).remove(QRegularExpression(u"[\u2068\u2069]"_s)),
                 u"Could not be read in full: “%1”, “עבודה”"_s);
        QVERIFY(both.contains(u"“\u2068עבודה\u2069”"_s));
        stage.model.refresh();
        QCOMPARE(answer({}), QString());
        stage.model.refresh();
        answer({u"Work"_s});
        stage.model.refresh();
        stage.grant(Access::denied, Access::full);
        QCOMPARE(stage.model.unread(), QStringList());
    }

    void onlyTheNewestAnswerCounts()
    {
        Stage stage;
        stage.grant(Access::full, Access::full);
        stage.model.refresh();
        stage.calendars.eventQuestions.answer(0, CalendarStore::Events{stage.event(u"stale"_s, 1)});
        stage.answer(stage.calendars.reminderQuestions, 0, CalendarStore::Tasks{stage.task(u"stale"_s)});
        QVERIFY(stage.items().isEmpty() && stage.reminders().isEmpty());
        QVERIFY(stage.calendars.eventQuestions.isGivenUp(0));
        stage.answer(CalendarStore::Events{stage.event(u"new"_s, 1)},
                     CalendarStore::Tasks{stage.task(u"new"_s)});
        QCOMPARE(stage.items() + stage.reminders(), (QStringList{u"new"_s, u"new"_s}));
        stage.model.refresh();
        stage.answer(std::nullopt, std::nullopt);
        QCOMPARE(stage.items() + stage.reminders(), (QStringList{u"new"_s, u"new"_s}));
    }

    void anEqualAnswerTellsNobody()
    {
        Stage stage;
        const CalendarStore::Events events{stage.event(u"e"_s, 1)};
        const CalendarStore::Tasks tasks{stage.task(u"t"_s)};
        stage.answer(events, tasks);
        int told = 0;
        for (const auto signal : {&CalendarModel::itemsChanged, &CalendarModel::remindersChanged,
                                  &CalendarModel::statusChanged, &CalendarModel::reminderStatusChanged})
            connect(&stage.model, signal, this, [&] { ++told; });
        stage.model.refresh();
        stage.answer(events, tasks);
        QCOMPARE(told, 0);
    }

    void completing()
    {
        Stage stage;
        stage.answer(CalendarStore::Events(), CalendarStore::Tasks{stage.task(u"a"_s), stage.task(u"b"_s)});
        const CalendarReminder a = stage.model.reminders().at(0);
        stage.model.complete(a);
        stage.model.complete(a);
        QCOMPARE(stage.calendars.completed, QStringList{u"a"_s});
        stage.answer(stage.calendars.completions, 0, false);
        QCOMPARE(stage.reminders(), (QStringList{u"a"_s, u"b"_s}));

        stage.model.complete(a);
        stage.answer(stage.calendars.completions, 1, true);
        QCOMPARE(stage.reminders(), QStringList{u"b"_s});
        QCOMPARE(stage.calendars.reminderQuestions.count(), 1U);
    }

    void anAnswerFromBeforeDoesNotBringItBack()
    {
        Stage stage;
        const CalendarStore::Tasks both{stage.task(u"a"_s), stage.task(u"b"_s)};
        stage.answer(CalendarStore::Events(), both);
        stage.model.refresh();
        stage.grant(Access::full, Access::full);
        stage.model.complete(stage.model.reminders().at(0));
        stage.answer(stage.calendars.completions, 0, true);
        stage.answer(stage.calendars.reminderQuestions, 1, both);
        QCOMPARE(stage.reminders(), QStringList{u"b"_s});
        stage.answer(stage.calendars.accesses[Entity::reminders], 2, Access::full);
        stage.answer(stage.calendars.reminderQuestions, 2, CalendarStore::Tasks{stage.task(u"c"_s)});
        QCOMPARE(stage.reminders(), QStringList{u"c"_s});
    }

    void askingForAccessReadsAgain()
    {
        Stage stage;
        stage.grant(Access::notDetermined, Access::notDetermined);
        stage.model.requestAccess();
        stage.model.requestReminderAccess();
        for (const Entity entity : {Entity::events, Entity::reminders}) {
            const auto asked = stage.calendars.accesses[Entity::events].count();
            stage.answer(stage.calendars.requests[entity], 0, false);
            QCOMPARE(stage.calendars.accesses[Entity::events].count(), asked + 1);
        }
    }

    void isReadWhileItIsOnScreen()
    {
        Stage stage(false);
        const auto asked = [&](int milliseconds) {
            stage.wait(milliseconds);
            return stage.calendars.accesses[Entity::events].count();
        };
        stage.services.start();
        stage.show(NotchTool::note);
        QCOMPARE(asked(60'000), 0U); // nobody has looked at it yet
        stage.settings.setColumn(HomeColumn::hidden, HomeWidget::events);
        stage.settings.setColumn(HomeColumn::hidden, HomeWidget::reminders);
        stage.services.show(NotchTool::home);
        QCOMPARE(asked(0), 0U);
        stage.settings.setColumn(HomeColumn::left, HomeWidget::reminders);
        stage.services.show(NotchTool::home);
        QCOMPARE(asked(0), 1U);
        stage.services.show(NotchTool::calendar);
        QCOMPARE(asked(0), 2U);
        QCOMPARE(asked(90'000), 5U);
        stage.wait(1000); // between two of its times
        Q_EMIT stage.sleep.woke();
        QCOMPARE(asked(1000), 6U);
        QCOMPARE(asked(28'000), 7U);
        stage.show({});
        QCOMPARE(asked(90'000), 7U);
    }

    void daysAndTimes()
    {
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::German));
        const QDateTime now(QDate(2026, 3, 28), QTime(11, 0));
        const auto at = [](int day, int hour) { return QDateTime(QDate(2026, 3, day), QTime(hour, 0)); };
        QCOMPARE(CalendarFormat::when(at(28, 15).toUTC(), false, now), u"Today 15:00"_s);
        QCOMPARE(CalendarFormat::when(at(29, 9).toUTC(), false, now), u"Tomorrow 09:00"_s);
        QCOMPARE(CalendarFormat::when(at(28, 0), true, now), u"All day"_s);
        QCOMPARE(CalendarFormat::when(at(27, 22), false, now), u"Since Fr. 22:00"_s);
        QCOMPARE(CalendarFormat::when(at(1, 9), false, now), u"Since 01.03.26 09:00"_s);
        QCOMPARE(CalendarFormat::when(at(22, 0), true, now), u"All day, since So."_s);
        QCOMPARE(CalendarFormat::due({}, now), QString());
        QCOMPARE(CalendarFormat::due(at(27, 9), now), u"Yesterday"_s);
        QCOMPARE(CalendarFormat::due(at(28, 9), now), u"09:00"_s);
        QCOMPARE(CalendarFormat::due(at(28, 0), now), u"Today"_s);
        QCOMPARE(CalendarFormat::due(at(29, 0), now), u"Tomorrow"_s);
        QCOMPARE(CalendarFormat::due(at(1, 9), now), u"01.03.26"_s);
        QVERIFY(CalendarFormat::isOverdue(at(28, 9), now) && CalendarFormat::isOverdue(at(27, 0), now));
        QVERIFY(!CalendarFormat::isOverdue(at(28, 0), now) && !CalendarFormat::isOverdue({}, now));
        QVERIFY(CalendarFormat::visible(Qt::black).lightnessF() > 0.4F);
        QVERIFY(CalendarFormat::visible(QColor(0, 0, 64)).lightnessF() > 0.6F);
        QCOMPARE(CalendarFormat::visible(QColor(255, 128, 0)), QColor(255, 128, 0));
        QLocale::setDefault(before);
    }
};

REGISTER_TEST(CalendarModelTest);
#include "CalendarModelTest.moc"
