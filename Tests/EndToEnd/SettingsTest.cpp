#include "EndToEnd/Stage.h"

/// The settings window of the real program, beside the command line that reads and writes the same settings.
class SettingsTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void pointerKeyboardAndCommandLineAgree()
    {
        QVERIFY(stage().run());
        const auto windows = [&] { return stage().x.clientWindows().size(); };
        const auto before = windows();
        QCOMPARE(session().command({u"settings"_s, u"open"_s}).status, 0);
        QVERIFY(waitUntil([&] { return windows() == before + 1 && isActive(); }));

        QTRY_VERIFY(looksOn());
        input().click(place(picker));
        QTRY_VERIFY(hasColour(firstMode));
        input().tap(XK_Escape);
        QTRY_VERIFY(!hasColour(firstMode));
        input().click(place(picker));
        QTRY_VERIFY(hasColour(firstMode));
        input().click(place(secondMode));
        QTRY_COMPARE(session().setting(u"openMode"_s), u"click"_s);

        QTRY_VERIFY(looksOn());
        input().click(place(hotKeySwitch));
        QTRY_COMPARE(session().setting(u"shortcutEnabled"_s), u"false"_s);
        QTRY_VERIFY(!looksOn());
        QVERIFY(session().set(u"shortcutEnabled"_s, u"true"_s));
        QTRY_VERIFY(looksOn());

        input().click(place(sliderMiddle));
        QTRY_COMPARE(session().setting(u"hoverDelay"_s), u"0.4"_s);
        QVERIFY(session().set(u"hoverDelay"_s, u"0.8"_s));
        input().tap(XK_Tab);
        input().tap(XK_space);
        QTRY_COMPARE(session().setting(u"shortcutEnabled"_s), u"false"_s);

        constexpr int kToFirstColumn = 12; // The switches in between, and the column of Home's first block.
        const QImage top = stage().x.grab(area());
        for (int i = 0; i < kToFirstColumn; ++i)
            input().tap(XK_Tab);
        QTRY_VERIFY(stage().x.grab(area()) != top); // It has scrolled.
        input().tap(XK_Down);
        QTRY_VERIFY(session().setting(u"homeColumns"_s).contains(R"("greeting":"center")"_L1));
        const QImage centred = stage().x.grab(area());
        QVERIFY(session().set(u"homeColumns"_s, u"{}"_s));
        QTRY_VERIFY(stage().x.grab(area()) != centred);

        input().tap(XK_Escape);
        QTRY_COMPARE(windows(), before);

        QCOMPARE(session().command({u"open"_s}).status, 0);
        QVERIFY(waitUntil([&] { return stage().looksOpen(); }));
        input().click(Place::settings);
        QTRY_COMPARE(windows(), before + 1);
    }

    /// Down the whole window with the keyboard: each row changes its own setting, and nothing else.
    void everyRowByKeyboard()
    {
        QVERIFY(stage().run());
        QCOMPARE(session().command({u"settings"_s, u"open"_s}).status, 0);
        QVERIFY(waitUntil([&] { return isActive(); }));
        QTRY_VERIFY(looksOn());
        input().click(place(sliderMiddle));
        QTRY_COMPARE(session().setting(u"hoverDelay"_s), u"0.4"_s);
        const auto switches = [&](const QStringList &names) {
            return std::ranges::all_of(names, [&](const QString &name) {
                return changedBy({XK_Tab, XK_space}) == QStringList(name) &&
                       changedBy({XK_space}) == QStringList(name);
            });
        };
        QVERIFY(switches({u"shortcutEnabled"_s}));
        input().tap(XK_Tab);
        input().tap(XK_space);
        QCOMPARE(changedBy({XK_k}), QStringList()); // For typing.
        input().pressKey(XK_Control_L);
        QCOMPARE(changedBy({XK_k}), QStringList(u"shortcut"_s));
        input().releaseKey(XK_Control_L);
        QCOMPARE(session().setting(u"shortcut"_s), u"Ctrl+K"_s);
        QVERIFY(switches({u"prompterShortcutEnabled"_s, u"liveActivities"_s, u"announceScreenshots"_s,
                          u"allDisplays"_s, u"showWithoutNotch"_s, u"hideOverFullScreen"_s}));
        QCOMPARE(changedBy({XK_Tab, XK_Down}), QStringList(u"placement"_s));
        QVERIFY(
            switches({u"clipboardHistory"_s, u"readCodexUsage"_s, u"readClaudeUsage"_s, u"useFahrenheit"_s}));
        const QString order = session().setting(u"homeOrder"_s);
        const QString columns = session().setting(u"homeColumns"_s);
        for (int row = 0; row < 12; ++row) {
            QCOMPARE(changedBy({XK_Tab, xcb_keysym_t(row < 5 ? XK_Up : XK_Down)}),
                     QStringList(u"homeColumns"_s));
            input().tap(XK_Tab);
            if (row == 11)
                QCOMPARE(changedBy({XK_space}), QStringList(u"homeOrder"_s));
            input().tap(XK_Tab);
        }
        for (int i = 0; i < 3; ++i) // The last row has moved up: once more over the one below it.
            input().tap(XK_Tab);
        QCOMPARE(changedBy({XK_Tab, XK_space}), QStringList({u"homeColumns"_s, u"homeOrder"_s}));
        QCOMPARE(session().setting(u"homeOrder"_s), order);
        QCOMPARE(session().setting(u"homeColumns"_s), columns);
        QCOMPARE(changedBy({XK_Tab, XK_5}), QStringList(u"claudeBlockBudget"_s));
        QStringList tools = session().tools();
        QCOMPARE(tools.size(), 14);
        while (!tools.isEmpty()) {
            QCOMPARE(changedBy({XK_Tab, XK_space}), QStringList(u"tools"_s));
            tools.removeFirst();
            QCOMPARE(session().tools(), tools);
        }
        QCOMPARE(changedBy({XK_Tab, XK_space}), QStringList(u"launchAtLogin"_s));
        QCOMPARE(changedBy({XK_space}), QStringList(u"launchAtLogin"_s));
    }

private:
    /// The names of the settings that differ after these keys.
    QStringList changedBy(const QList<xcb_keysym_t> &keys)
    {
        const auto all = [&] { return session().command({u"settings"_s, u"list"_s}).output.split(u'\n'); };
        const QStringList before = all();
        for (const xcb_keysym_t key : keys)
            input().tap(key);
        QStringList after;
        (void)waitUntil([&] { return (after = all()) != before; }, 3000);
        QStringList changed;
        for (qsizetype i = 0; i < std::min(before.size(), after.size()); ++i) {
            if (before.at(i) != after.at(i))
                changed.append(before.at(i).section(u' ', 0, 0));
        }
        changed.sort();
        return changed;
    }

    bool isActive()
    {
        m_window = stage().x.activeWindow();
        return stage().x.title(m_window).contains("Settings");
    }

    /// A place in the window on the screen.
    QPoint place(QPoint inside) { return stage().x.geometry(m_window).topLeft() + inside; }
    QRect area() { return {place({}), QSize(540, 700)}; }

    /// Whether the switch of the hot key shows its colour where its knob is while it is off.
    bool looksOn() { return hasColour(hotKeySwitch - QPoint(8, 0)); }
    bool hasColour(QPoint inside)
    {
        const QColor colour = stage().x.pixel(place(inside));
        return colour.blue() > colour.green() + 40;
    }

    static constexpr QPoint picker{460, 62};
    static constexpr QPoint firstMode{515, 88}; ///< Chosen, and so in colour, when the list opens.
    static constexpr QPoint secondMode{460, 122};
    static constexpr QPoint hotKeySwitch{507, 142};
    static constexpr QPoint sliderMiddle{367, 102};
    xcb_window_t m_window = 0;
};

REGISTER_TEST(SettingsTest);
#include "SettingsTest.moc"
