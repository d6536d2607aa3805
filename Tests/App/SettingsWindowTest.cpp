#include "App/SettingsWindow.h"
#include "App/AppStage.h"
#include "App/UpdateWindow.h"
#include "NotchKit/Views/WindowStage.h"

namespace {

/// The settings window over fake ports, open and with the keyboard.
struct Stage : AppStage
{
    QQmlEngine engine;
    Fakes::FakeUpdater updater;
    Fakes::FakeAppearance appearance;
    std::unique_ptr<SettingsWindow> holder;

    Stage()
    {
        launch();
        holder = std::make_unique<SettingsWindow>(engine, *app, updater, appearance);
        holder->open();
        if (!QTest::qWaitForWindowActive(window()))
            qFatal("the settings window did not open");
    }

    QQuickWindow *window() const { return holder->window(); }
    NotchSettings &settings() { return app->settings(); }

    QList<QQuickItem *> all(const QString &type) const
    {
        return WindowStage::all(window()->contentItem(), type);
    }

    /// The item of that type whose `property` is `value`.
    QQuickItem *find(const QString &type, const char *property, const QString &value) const
    {
        for (QQuickItem *item : all(type)) {
            if (item->property(property).toString() == value)
                return item;
        }
        qFatal("there is no %s %s", qPrintable(type), qPrintable(value));
    }
    QQuickItem *switchRow(const QString &title) const { return find(u"SwitchRow"_s, "title", title); }

    /// Gives it the keyboard, which scrolls to it.
    void focus(QQuickItem *item) const { item->forceActiveFocus(Qt::TabFocusReason); }
    void click(QQuickItem *item) const
    {
        focus(item);
        const QPointF place(item->width() - qMin(item->width() / 2, 30.), item->height() / 2);
        QTest::mouseClick(window(), Qt::LeftButton, {}, item->mapToScene(place).toPoint());
    }
    void key(QQuickItem *item, Qt::Key key) const
    {
        focus(item);
        QTest::keyClick(window(), key);
    }

    QStringList homeTitles() const
    {
        QMap<qreal, QString> sorted;
        for (QQuickItem *row : all(u"HomeWidgetRow"_s))
            sorted.insert(row->y(), row->property("title").toString());
        return sorted.values();
    }
};

} // namespace

/// The settings window's controls: what they show is what is stored, and what they are told is stored.
class SettingsWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { registerViews(); }

    void switches()
    {
        const QList<std::pair<QString, const char *>> rows{
            {u"Open and close with Ctrl+Alt+Super+N"_s, "shortcutEnabled"},
            {u"Show the song or timer beside the closed notch"_s, "liveActivities"},
            {u"Show new screenshots beside the notch"_s, "announceScreenshots"},
            {u"Show on every display"_s, "allDisplays"},
            {u"Draw a notch on displays without one"_s, "showWithoutNotch"},
            {u"Keep a clipboard history"_s, "clipboardHistory"},
            {u"Read Codex usage (~/.codex)"_s, "readCodexUsage"},
            {u"Read Claude Code usage (~/.claude)"_s, "readClaudeUsage"},
            {u"Temperatures in °F"_s, "useFahrenheit"},
        };
        Stage stage;
        for (const auto &[title, key] : rows) {
            QQuickItem *row = stage.switchRow(title);
            const bool before = stage.settings().property(key).toBool();
            QCOMPARE(row->property("on").toBool(), before);
            stage.click(row);
            QVERIFY2(stage.settings().property(key).toBool() != before, key);
            stage.key(row, Qt::Key_Space);
            QVERIFY2(stage.settings().property(key).toBool() == before, key);
            stage.settings().setProperty(key, !before); // From elsewhere.
            QVERIFY2(row->property("on").toBool() != before, key);
        }
        // What depends on a setting has followed.
        QVERIFY(stage.hotKeys.registered.empty() && stage.panels.alive.empty());
    }

    void theHotKeyTellsWhatItIsBoundTo_data()
    {
        using State = HotKeyBinding::State;
        const auto row = columns<State, QString, QString>();
        row("pending", State::pending, "", "");
        row("asked", State::asked, "", "");
        row("chosen", State::chosen, "<b>%1+N", "Bound to <b>%1+N");
        row("taken", State::taken, "",
            u"Another program has these keys. In the desktop’s settings, bind others to: kestrune\u00a0toggle"_s);
        row("unbound", State::unbound, "",
            u"No keys are bound. In the desktop’s settings, bind some to: kestrune\u00a0toggle"_s);
    }

    void theHotKeyTellsWhatItIsBoundTo()
    {
        const auto [state, trigger, note] = fetched<HotKeyBinding::State, QString, QString>();
        Stage stage;
        const QQuickItem *row = stage.switchRow(u"Open and close with Ctrl+Alt+Super+N"_s);
        const QQuickItem *other = stage.switchRow(u"Show on every display"_s);
        QCOMPARE(row->height(), other->height());
        stage.hotKeys.bind({state, trigger});
        QCOMPARE(row->property("note").toString(), note);
        QCOMPARE(row->height() > other->height(), !note.isEmpty());
        stage.settings().setShortcutEnabled(false);
        QCOMPARE(row->property("note").toString(), QString());
        QCOMPARE(row->height(), other->height());
    }

    void tools()
    {
        Stage stage;
        QStringList titles;
        for (const NotchTool tool : allCases<NotchTool>()) {
            titles.append(title(tool));
            QQuickItem *row = stage.switchRow(title(tool));
            QCOMPARE(row->property("symbol").toString(), symbol(tool));
            stage.click(row);
        }
        QVERIFY(stage.settings().tools().isEmpty());
        QStringList shown;
        for (QQuickItem *row : stage.all(u"SwitchRow"_s)) {
            if (row->property("symbol").toString().isEmpty())
                continue;
            shown.append(row->property("title").toString());
            QVERIFY(!row->property("on").toBool());
        }
        QCOMPARE(shown, titles);
    }

    void openingByPickerAndSlider()
    {
        Stage stage;
        QQuickItem *picker = stage.find(u"Picker"_s, "name", u"Open the notch"_s);
        stage.key(picker, Qt::Key_Down);
        QCOMPARE(stage.settings().openMode(), NotchOpenMode::click);
        QCOMPARE(picker->property("displayText").toString(), u"On click"_s);
        stage.settings().setOpenMode(NotchOpenMode::hover);
        QCOMPARE(picker->property("displayText").toString(), u"On hover"_s);

        QQuickItem *row = stage.find(u"SliderRow"_s, "title", u"Hover delay"_s);
        QCOMPARE(row->property("valueText").toString(), u"120 ms"_s);
        QQuickItem *slider = row->findChild<QQuickItem *>(u"slider"_s);
        for (const double expected : {0.15, 0.2}) {
            stage.key(slider, Qt::Key_Right);
            QCOMPARE(stage.settings().hoverDelay(), expected);
        }
        QTest::mouseClick(stage.window(), Qt::LeftButton, {},
                          slider->mapToScene({slider->width() - 1, slider->height() / 2}).toPoint());
        QCOMPARE(stage.settings().hoverDelay(), 0.8);
        stage.settings().setHoverDelay(0.25);
        QCOMPARE(slider->property("value").toDouble(), 0.25);
        QCOMPARE(row->property("valueText").toString(), u"250 ms"_s);
    }

    void homeRows()
    {
        Stage stage;
        NotchSettings &settings = stage.settings();
        QCOMPARE(stage.homeTitles().size(), 12);
        QQuickItem *row = stage.find(u"HomeWidgetRow"_s, "title", u"Weather"_s);
        stage.key(row->findChild<QQuickItem *>(u"column"_s), Qt::Key_Down);
        QCOMPARE(settings.column(HomeWidget::weather), HomeColumn::center);

        QQuickItem *up = row->findChild<QQuickItem *>(u"up"_s);
        for (int i = 0; i < 2; ++i) { // The second meets the end.
            stage.key(up, Qt::Key_Space);
            QVERIFY(up->hasActiveFocus()); // The row moved with its buttons.
            QTRY_COMPARE(stage.homeTitles().mid(0, 2), QStringList({u"Weather"_s, u"Greeting and date"_s}));
        }
        stage.click(stage.find(u"HomeWidgetRow"_s, "title", u"Note"_s)->findChild<QQuickItem *>(u"down"_s));
        QCOMPARE(settings.homeOrder().last(), HomeWidget::note);
        settings.setHomeOrder({HomeWidget::note, HomeWidget::timer, HomeWidget::note});
        QTRY_COMPARE(stage.homeTitles(), QStringList({u"Note"_s, u"Timer"_s}));
        stage.click(stage.find(u"TextButton"_s, "text", u"Restore default layout"_s));
        QCOMPARE(settings.homeOrder(), allCases<HomeWidget>());
        QCOMPARE(settings.column(HomeWidget::weather), HomeColumn::left);
    }

    void budget()
    {
        Stage stage;
        QQuickItem *field = stage.all(u"IntegerField"_s).value(0);
        stage.focus(field);
        QMetaObject::invokeMethod(field, "selectAll");
        for (const char key : QByteArray("4x2.0-"))
            QTest::keyClick(stage.window(), key);
        QCOMPARE(stage.settings().claudeBlockBudget(), 420);
        stage.settings().setClaudeBlockBudget(7);
        QCOMPARE(field->property("text").toString(), u"7"_s);
        stage.key(field, Qt::Key_Backspace);
        QCOMPARE(stage.settings().claudeBlockBudget(), 0);
        QCOMPARE(field->property("text").toString(), QString());
        QTest::keyClick(stage.window(), Qt::Key_Tab);
        QCOMPARE(field->property("text").toString(), u"0"_s);
    }

    void applicationsOwnSection()
    {
        Stage stage;
        QQuickItem *login = stage.switchRow(u"Open Kestrune at login"_s);
        stage.click(login);
        QVERIFY(stage.loginItem.enabled && login->property("on").toBool());
        stage.loginItem.failure = u"read-only file system"_s;
        stage.click(login);
        QVERIFY(login->property("on").toBool());

        QQuickItem *updates = stage.switchRow(u"Install updates automatically"_s);
        QVERIFY(updates->isEnabled());
        stage.click(updates);
        QVERIFY(stage.updater.automatic && updates->property("on").toBool());
        stage.click(stage.find(u"TextButton"_s, "text", u"Discover Fennivar ↗"_s));
        QCOMPARE(stage.workspace.opened.value(0).query(), u"ref=kestrune"_s);
    }

    void followsTheAppearanceAndGoesWhenClosed()
    {
        Stage stage;
        const auto corner = [&] { return stage.window()->grabWindow().pixelColor(2, 2).lightness(); };
        QVERIFY(corner() < 60);
        // The other window shares the look, and takes nothing with it.
        const UpdateWindow updates(stage.engine, stage.updater, stage.appearance);
        Q_EMIT stage.updater.attentionWanted();
        QVERIFY(updates.window() && updates.window()->isVisible());
        updates.window()->close();
        QTRY_VERIFY(!updates.window());
        stage.appearance.setDark(false);
        QVERIFY(corner() > 200);
        QCOMPARE(stage.window()->size(),
                 QSize(560, 716)); // The display is 800 high: it leaves room for panels.
        const QPointer<QQuickWindow> window = stage.window();
        stage.holder->open();
        QCOMPARE(stage.window(), window);
        QTest::keyClick(window, Qt::Key_Escape);
        QTRY_VERIFY(!window);
        stage.settings().setOpenMode(NotchOpenMode::click);
        stage.holder->open();
        QVERIFY(stage.window()->isVisible());
    }
};

REGISTER_TEST(SettingsWindowTest);
#include "SettingsWindowTest.moc"
