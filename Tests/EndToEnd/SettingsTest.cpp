#include "EndToEnd/Stage.h"
#include "Support/TestRegistry.h"

using namespace Qt::StringLiterals;

/// The settings window of the real program, beside the command line that reads and writes the same settings.
class SettingsTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void pointerKeyboardAndCommandLineAgree()
    {
        setStage({});
        Session &session = stage().session;
        Input &input = stage().input;
        QVERIFY(stage().run());
        const auto windows = [&] { return stage().x.clientWindows().size(); };
        const auto before = windows();
        QCOMPARE(session.command({u"settings"_s, u"open"_s}).status, 0);
        QVERIFY(waitUntil([&] { return windows() == before + 1 && isActive(); }));

        QTRY_VERIFY(looksOn());
        input.click(place(picker));
        QTRY_VERIFY(hasColour(firstMode));
        input.tap(XK_Escape);
        QTRY_VERIFY(!hasColour(firstMode));
        input.click(place(picker));
        QTRY_VERIFY(hasColour(firstMode));
        input.click(place(secondMode));
        QTRY_COMPARE(session.setting(u"openMode"_s), u"click"_s);

        QTRY_VERIFY(looksOn());
        input.click(place(hotKeySwitch));
        QTRY_COMPARE(session.setting(u"shortcutEnabled"_s), u"false"_s);
        QTRY_VERIFY(!looksOn());
        QVERIFY(session.set(u"shortcutEnabled"_s, u"true"_s));
        QTRY_VERIFY(looksOn());

        input.click(place(sliderMiddle));
        QTRY_COMPARE(session.setting(u"hoverDelay"_s), u"0.4"_s);
        QVERIFY(session.set(u"hoverDelay"_s, u"0.8"_s));
        input.tap(XK_Tab);
        input.tap(XK_space);
        QTRY_COMPARE(session.setting(u"shortcutEnabled"_s), u"false"_s);

        constexpr int kToFirstColumn = 9; // The switches in between, and the column of Home's first block.
        const QImage top = stage().x.grab(area());
        for (int i = 0; i < kToFirstColumn; ++i)
            input.tap(XK_Tab);
        QTRY_VERIFY(stage().x.grab(area()) != top); // It has scrolled.
        input.tap(XK_Down);
        QTRY_VERIFY(session.setting(u"homeColumns"_s).contains(R"("greeting":"center")"_L1));
        const QImage centred = stage().x.grab(area());
        QVERIFY(session.set(u"homeColumns"_s, u"{}"_s));
        QTRY_VERIFY(stage().x.grab(area()) != centred);

        input.tap(XK_Escape);
        QTRY_COMPARE(windows(), before);

        QCOMPARE(session.command({u"open"_s}).status, 0);
        QVERIFY(waitUntil([&] { return stage().looksOpen(); }));
        input.click(Place::settings);
        QTRY_COMPARE(windows(), before + 1);
    }

private:
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
