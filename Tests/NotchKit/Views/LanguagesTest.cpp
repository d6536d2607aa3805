#include "App/AppStage.h"
#include "App/SettingsWindow.h"
#include "App/UpdateWindow.h"
#include "NotchKit/Kit/Symbols.h"
#include "NotchKit/NotchStrings.h"
#include "NotchKit/Tools/AIUsage/AIUsageModel.h"
#include "NotchKit/Tools/AIUsage/AIUsagePresentation.h"
#include "NotchKit/Tools/NowPlaying/ScriptBridge.h"
#include "NotchKit/Tools/Timer/TimerModel.h"
#include "WindowStage.h"

#include <QFontDatabase>
#include <QTranslator>

namespace {

/// The program's texts, numbers, dates and direction are those of a language.
struct Speaking
{
    explicit Speaking(const QString &language)
    {
        if (m_translator.load(QString(language).replace(u'-', u'_'), u":/translations"_s))
            QCoreApplication::installTranslator(&m_translator);
        QLocale::setDefault(QLocale(language));
        QGuiApplication::setLayoutDirection(QLocale(language).textDirection());
    }
    ~Speaking()
    {
        QLocale::setDefault(QLocale::system());
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }
    Q_DISABLE_COPY_MOVE(Speaking)

private:
    QTranslator m_translator;
};

/// Where the glyphs of a text are, within its item.
QRectF painted(const QQuickItem *text)
{
    const QSizeF size(text->property("contentWidth").toDouble(), text->property("contentHeight").toDouble());
    const QSizeF rest = text->size() - size;
    const auto across = text->property("effectiveHorizontalAlignment").value<Qt::Alignment>();
    const auto down = text->property("verticalAlignment").value<Qt::Alignment>();
    const double left = text->property("leftPadding").toDouble();
    return {{across & Qt::AlignHCenter ? rest.width() / 2
             : across & Qt::AlignRight ? rest.width() - text->property("rightPadding").toDouble()
                                       : left,
             down & Qt::AlignVCenter  ? rest.height() / 2
             : down & Qt::AlignBottom ? rest.height()
                                      : 0},
            size};
}

/// Why the text does not fit into what it is shown in, or nothing. Lists and columns may scroll up and down.
QString misfit(const QQuickItem *text)
{
    constexpr double kRounding = 1;
    if (text->property("truncated").toBool())
        return u"is cut"_s;
    const QRectF shown = painted(text);
    // Above and below the letters of a line.
    const double leading = std::max(4.0, 0.35 * text->property("font").value<QFont>().pixelSize());
    bool scrolls = false;
    for (const auto *item = text; item && !item->inherits("QQuickRootItem"); item = item->parentItem()) {
        const QRectF place = text->mapRectToItem(item, shown);
        scrolls = scrolls || item->inherits("QQuickFlickable");
        const bool across = place.left() < -kRounding || place.right() > item->width() + kRounding;
        const bool down = place.top() < -leading || place.bottom() > item->height() + leading;
        const bool content = item->parentItem() && item->parentItem()->inherits("QQuickFlickable");
        if (!content && ((across && item->width() > 0) || (down && item->height() > 0 && !scrolls)))
            return u"leaves its "_s + QLatin1String(item->metaObject()->className());
        if (QLatin1String(item->metaObject()->className()).startsWith("ExpandedContent"_L1))
            break;
    }
    return {};
}

/// The texts below `root` that do not fit, or that lie over one another.
QStringList misfits(QQuickItem *root)
{
    QStringList found;
    QList<std::pair<QString, QRectF>> before;
    for (const QQuickItem *item : WindowStage::items(root)) {
        const QString text = item->property("text").toString();
        if (!item->inherits("QQuickText") || !item->isVisible() || text.isEmpty() ||
            item->property("font").value<QFont>().family() == Symbols::family())
            continue;
        const QString reason = misfit(item);
        if (!reason.isEmpty())
            found.append(u"\"%1\" %2"_s.arg(text, reason));
        QRectF place = item->mapRectToItem(root, painted(item));
        for (const QQuickItem *over = item; over != root; over = over->parentItem()) {
            if (over->clip())
                place &= over->mapRectToItem(root, over->boundingRect());
        }
        for (const auto &[other, where] : before) {
            const QRectF both = where & place;
            if (both.width() > 1 && both.height() > 3)
                found.append(u"\"%1\" lies over \"%2\""_s.arg(text, other));
        }
        before.append({text, place});
    }
    return found;
}

constexpr auto kForecast = R"({"current": {"temperature_2m": -21.5, "weather_code": 3, "wind_speed_10m": 119},
    "daily": {"time": ["2027-01-15", "2027-01-16", "2027-01-17", "2027-01-18", "2027-01-19", "2027-01-20",
    "2027-01-21"], "weather_code": [0, 61, 1, 2, 3, 45, 95], "temperature_2m_max": [22, -10, 1, 1, 1, 1, 1],
    "temperature_2m_min": [-13, -12, 1, 1, 1, 1, 1]}})";
constexpr auto kQuote =
    R"({"chart": {"result": [{"meta": {"regularMarketPrice": 1234.5, "previousClose": 1000,
    "shortName": "Apple"}}]}})";

/// What the tools have to show.
enum class Content { Nothing, Refusals, Figures };

/// A notch window whose tools show their content.
struct Stage : WindowStage
{
    const Content content;

    explicit Stage(Content shown)
        : WindowStage(stored(shown))
        , content(shown)
    {
        for (const HomeWidget widget : allCases<HomeWidget>())
            core.settings.setColumn(static_cast<HomeColumn>(1 + static_cast<int>(widget) % 3), widget);
        core.camera.status = CameraAuthorization::denied;
        core.captures.accessMissing = shown == Content::Refusals;
        core.host.supplies = QList<PowerSource>{};
        for (const MediaPlayer player : {MediaPlayer::music, MediaPlayer::spotify}) {
            if (shown != Content::Nothing)
                core.players.running.insert(bundleIdentifier(player));
            core.scripts.answer(PlayerScripts::status(player),
                                shown == Content::Refusals ? ScriptOutcome(ScriptNotPermitted())
                                                           : ScriptOutcome(u"playing\nSong\nBand\n100\n3"_s));
        }
        if (shown != Content::Figures)
            return;
        core.captures.found = {{u"/shots/2.png"_s, core.clock.now(), core.clock.now()}};
        core.pasteboard.offer(u"copied"_s);
        Q_EMIT core.pasteboard.changed();
        core.services.model<TimerModel>()->start(1);
        core.wait(2000);
    }

    static Fakes::MemoryDefaults::Values stored(Content shown)
    {
        const bool any = shown != Content::Nothing;
        Fakes::MemoryDefaults::Values values{
            {u"notch.readCodexUsage"_s, any},
            {u"notch.readClaudeUsage"_s, any},
            {u"notch.clipboardHistory"_s, any},
            {u"notch.useFahrenheit"_s, false},
            {u"notch.tickers"_s, any ? QStringList{u"AAPL"_s} : QStringList()}};
        if (any) {
            values.insert(u"notch.weatherCity"_s, u"Oslo"_s);
            values.insert(u"notch.weatherLatitude"_s, 59.9);
            values.insert(u"notch.weatherLongitude"_s, 10.7);
        }
        if (shown == Content::Figures) {
            values.insert(u"notch.prompterText"_s, u"Words"_s);
            values.insert(u"notch.shelfPaths"_s, QStringList{u"/etc/passwd"_s});
        }
        return values;
    }

    template <typename Questions, typename Answer>
    static void answerAll(Questions &questions, const Answer &answer)
    {
        for (std::size_t i = 0; i < questions.count(); ++i) {
            if (!questions.isAnswered(i))
                questions.answer(i, answer(i));
        }
    }

    /// What was asked for is answered, and what comes of that is drawn.
    void settle()
    {
        const bool figures = content == Content::Figures;
        const QDateTime now = core.clock.now();
        for (int i = 0; i < 4; ++i) {
            answerAll(core.http.questions, [&](std::size_t index) {
                const bool weather =
                    core.http.asked.value(qsizetype(index)).url.host().contains(u"open-meteo"_s);
                return figures ? HttpReply{200, weather ? kForecast : kQuote} : HttpReply{};
            });
            const auto access = content == Content::Refusals ? CalendarAccess::denied
                                : figures                    ? CalendarAccess::full
                                                             : CalendarAccess::notDetermined;
            for (auto &[entity, questions] : core.calendars.accesses)
                answerAll(questions, [&](std::size_t) { return access; });
            answerAll(core.calendars.eventQuestions, [&](std::size_t) {
                return CalendarStore::Events{{u"e"_s, u"Call"_s, now.addSecs(60), now.addSecs(90), false, {}},
                                             {u"d"_s, u"Trip"_s, now.addSecs(60), now.addSecs(90), true, {}}};
            });
            answerAll(core.calendars.unreadQuestions, [](std::size_t) { return QStringList{u"Work"_s}; });
            answerAll(core.calendars.reminderQuestions, [&](std::size_t) {
                return CalendarStore::Tasks{{u"1"_s, u"Old"_s, now.addDays(-1), {}},
                                            {u"2"_s, u"New"_s, now.addDays(1), {}},
                                            {u"3"_s, u"Far"_s, now.addDays(99), {}}};
            });
            QCoreApplication::processEvents();
        }
        (void)QTest::qWaitFor([this] { return !core.services.model<AIUsageModel>()->loading(); }, 60'000);
        core.captures.handler();
        window->grabWindow();
    }
};

void writeLogs(const QString &home)
{
    const QString time = Fakes::FakeClock().now().addSecs(-600).toString(Qt::ISODateWithMs);
    const QString seconds = QString::number(Fakes::FakeClock().now().addDays(3).toSecsSinceEpoch());
    const auto write = [&](const QString &folder, const QString &text) {
        const QString path = home + u'/' + folder + u"/log.jsonl"_s;
        QVERIFY(writeFile(path, text.toUtf8() + "\n", Fakes::FakeClock().now()));
    };
    write(u".claude/projects/p"_s,
          uR"({"timestamp":"%1","message":{"usage":{"output_tokens":123456789}}})"_s.arg(time));
    write(u".codex/sessions"_s, uR"({"rate_limits":{"primary":{"used_percent":7,"resets_at":%1},)"
                                "\"secondary\":{\"used_percent\":71,\"resets_at\":%1}}}"_s.arg(seconds));
}

} // namespace

/// What each language says fits, and counts as it does.
class LanguagesTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_home;

    static void languages()
    {
        columns<QString>();
        for (const QString &language : availableLocalizations())
            QTest::newRow(qPrintable(language)) << language;
    }

    static void report(const QStringList &misfits)
    {
        for (const QString &misfit : misfits)
            qWarning("%s", qPrintable(misfit));
        QVERIFY(misfits.isEmpty());
    }

private Q_SLOTS:
    void initTestCase()
    {
        for (const auto *family : {"Inter", "Noto Sans Arabic UI", "Noto Sans CJK JP"})
            QVERIFY2(QFontDatabase::hasFamily(QLatin1String(family)), family);
        QGuiApplication::setFont(QFont({u"Inter"_s, u"Noto Sans Arabic UI"_s, u"Noto Sans CJK JP"_s}));
        qputenv("HOME", m_home.path().toUtf8());
        qputenv("TZ", "Pacific/Auckland"); // Where the 5-hour block ends tomorrow.
        writeLogs(m_home.path());
        registerViews();
    }

    void countsAsTheLanguageDoes_data()
    {
        columns<QString, double, QString>();
        QTest::newRow("English, one") << u"en"_s << 99.0 << u"1% left"_s;
        QTest::newRow("French, one") << u"fr"_s << 99.0 << u"1 % restant"_s;
        QTest::newRow("French, all") << u"fr"_s << 0.0 << u"100 % restants"_s;
        QTest::newRow("Polish, one") << u"pl"_s << 99.0 << u"został 1%"_s;
        QTest::newRow("Polish, a few") << u"pl"_s << 67.0 << u"zostały 33%"_s;
        QTest::newRow("Polish, a dozen") << u"pl"_s << 88.0 << u"zostało 12%"_s;
        QTest::newRow("Arabic, in its digits") << u"ar"_s << 55.0 << u"بقي ٤٥%"_s;
    }
    void countsAsTheLanguageDoes()
    {
        const auto [language, used, text] = fetched<QString, double, QString>();
        const Speaking speaking(language);
        QCOMPARE(AIUsagePresentation::leftText(used), text);
    }

    void fits_data() { languages(); }
    void fits()
    {
        const auto [language] = fetched<QString>();
        const Speaking speaking(language);
        QStringList found;
        const auto look = [&](const char *place, QQuickWindow *window) {
            found += each(misfits(window->contentItem()),
                          [&](const QString &text) { return QLatin1String(place) + u": "_s + text; });
        };
        for (const Content content : {Content::Nothing, Content::Refusals, Content::Figures}) {
            Stage stage(content);
            stage.settle();
            if (stage.core.services.hasActivity())
                QTRY_COMPARE(stage.outline.width(),
                             stage.core.model().geometry().shapeSize(false, true).width());
            look("closed", stage.window.get());
            for (const NotchTool tool : stage.core.settings.tools()) {
                stage.core.controller.open(tool);
                QTRY_VERIFY(stage.find(QString::fromLatin1(entry(tool).view)));
                stage.settle();
                QVERIFY(content != Content::Figures || tool != NotchTool::aiUsage ||
                        stage.core.services.model<AIUsageModel>()->claude());
                look(entry(tool).view, stage.window.get());
            }
        }
        report(found);
    }

    /// What is turned around is still hit where it is seen.
    void arabicIsTurnedAround()
    {
        const Speaking speaking(u"ar"_s);
        Stage stage(Content::Nothing);
        const auto tools = stage.core.settings.tools();
        for (const NotchTool tool : {tools.constLast(), tools.constFirst(), NotchTool::weather}) {
            stage.core.controller.open(NotchTool::note);
            QTRY_COMPARE(stage.outline, QRectF(60, 0, 760, 330));
            const qsizetype index = tools.indexOf(tool);
            const QQuickItem *button = stage.all(u"ToolButton"_s).at(index);
            const QPointF place = button->mapToScene({16, 14});
            QCOMPARE(place.x(), 60 + 760 - 30 - 16 - 36.0 * double(index)); // From the right, 36 points each.
            QTest::mouseClick(stage.window.get(), Qt::LeftButton, {}, place.toPoint());
            QCOMPARE(stage.core.model().selected(), tool);
        }
    }

    void settingsFit_data() { languages(); }
    void settingsFit()
    {
        const auto [language] = fetched<QString>();
        const Speaking speaking(language);
        AppStage stage;
        stage.launch();
        QQmlEngine engine;
        Fakes::FakeUpdater updater;
        Fakes::FakeAppearance appearance;
        SettingsWindow holder(engine, *stage.app, updater, appearance);
        holder.open();
        QVERIFY(QTest::qWaitForWindowExposed(holder.window()));
        QStringList found;
        using State = HotKeyBinding::State;
        for (const State state : {State::asked, State::chosen, State::taken, State::unbound}) {
            stage.hotKeys.bind({state, QString(80, u'x')});
            holder.window()->grabWindow();
            found += misfits(holder.window()->contentItem());
        }
        report(found);
    }

    void updatesFit_data() { languages(); }
    void updatesFit()
    {
        const auto [language] = fetched<QString>();
        const Speaking speaking(language);
        QQmlEngine engine;
        Fakes::FakeUpdater updater;
        Fakes::FakeAppearance appearance;
        const QString failure =
            notchStrings("The list of releases is older than one seen before, so it was ignored.");
        QStringList found;
        using Phase = UpdateStatus::Phase;
        for (const Phase phase : {Phase::checking, Phase::current, Phase::available, Phase::fetching,
                                  Phase::ready, Phase::failed}) {
            updater.shown = {phase, u"10.20.30"_s, u"Notes"_s, failure};
            UpdateWindow holder(engine, updater, appearance);
            holder.open();
            QVERIFY(QTest::qWaitForWindowExposed(holder.window()));
            holder.window()->grabWindow();
            found += misfits(holder.window()->contentItem());
        }
        report(found);
    }
};

REGISTER_TEST(LanguagesTest);
#include "LanguagesTest.moc"
