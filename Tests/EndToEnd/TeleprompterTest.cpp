#include "EndToEnd/Stage.h"

/// The script from the keyboard to the scrolling lines.
class TeleprompterTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void aTypedScriptSurvivesAndScrolls()
    {
        QVERIFY(stage().show(u"teleprompter"_s));
        input().type("good evening all");
        QTRY_COMPARE(session().setting(u"prompterText"_s), u"good evening all"_s);
        session().program().killNow();
        QVERIFY(stage().run({{"prompterSpeed", "60"}}) && stage().choose(u"teleprompter"_s));
        QCOMPARE(session().setting(u"prompterText"_s), u"good evening all"_s);

        QVERIFY(stage().openByHotKey());
        QTRY_VERIFY(height() > 0);
        const int start = height();
        QVERIFY2(holdsFor([&] { return height() == start; }, 300), "it moves before it is played");
        input().click(play);
        QTRY_VERIFY(height() < start - 15);
        QVERIFY(stage().leave() && stage().openByHotKey());
        QTRY_VERIFY(height() > 0);
        const int paused = height();
        QVERIFY2(paused < start - 15, "it lost its place");
        QVERIFY2(holdsFor([&] { return height() == paused; }, 500), "closing did not pause it");
        input().click(restart);
        QTRY_COMPARE(height(), start);
    }

    void itObeysWhileAnotherWindowHasTheKeyboard()
    {
        const QByteArray script = QByteArray("One line of a long speech. ").repeated(200);
        QVERIFY(stage().run({{"prompterText", script.constData()}, {"prompterShortcutEnabled", "true"}}));
        const auto prompter = [&](const char *value) {
            return session().status()["prompter"_L1][QLatin1String(value)];
        };
        const auto does = [&](const QStringList &words) {
            return session().command(QStringList(u"prompter"_s) + words).status;
        };
        QCOMPARE(does({u"play"_s}), 0);
        QTRY_VERIFY(prompter("playing").toBool() && prompter("secondsLeft").toInt(-1) > 60);
        QCOMPARE(session().status()["visibleTool"_L1], u"teleprompter"_s);
        QVERIFY2(stage().beneath.hasFocus(), "it took the keyboard");
        QCOMPARE(does({u"position"_s, u"50"_s}), 0);
        QTRY_VERIFY(std::abs(prompter("position").toDouble() - 50) < 5);
        const int left = prompter("secondsLeft").toInt();
        QCOMPARE(does({u"speed"_s, u"140"_s}), 0);
        QTRY_VERIFY(prompter("secondsLeft").toInt() < left / 3);

        const auto pressKeys = [&] {
            for (const auto key : {XK_Control_L, XK_Alt_L, XK_Super_L})
                input().pressKey(key);
            input().tap(XK_p);
            for (const auto key : {XK_Super_L, XK_Alt_L, XK_Control_L})
                input().releaseKey(key);
        };
        pressKeys();
        QTRY_VERIFY(!prompter("playing").toBool());
        pressKeys();
        QTRY_VERIFY(prompter("playing").toBool());
        QCOMPARE(does({u"pause"_s}), 0);
        QVERIFY(!prompter("playing").toBool());
        QCOMPARE(does({u"speed"_s, u"900"_s}), 2);
    }

private:
    /// The topmost row of the pane that shows a bright pixel of the script, or 0.
    int height()
    {
        const QImage picture = stage().x.grab(area);
        const QRect bright =
            areaWhere(picture.size(), [&](int x, int y) { return qGray(picture.pixel(x, y)) > 100; });
        return bright.isEmpty() ? 0 : area.y() + bright.y();
    }

    static constexpr QRect area{300, 44, 680, 190};
    static constexpr QPoint play{338, 264};
    static constexpr QPoint restart{438, 264};
};

REGISTER_TEST(TeleprompterTest);
#include "TeleprompterTest.moc"
