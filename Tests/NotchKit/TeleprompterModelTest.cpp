#include "NotchKit/Tools/Teleprompter/TeleprompterModel.h"
#include "Support/Core.h"

/// The playback, driven by the hub's fast clock.
class TeleprompterModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scrollsAtTheSpeed_data()
    {
        // offset: after ten seconds
        columns<double, double, double>();
        const double endless = std::numeric_limits<double>::infinity();
        QTest::newRow("default") << 28.0 << endless << 280.0;
        QTest::newRow("fast") << 140.0 << endless << 1400.0;
        QTest::newRow("to the end") << 100.0 << 333.0 << 333.0;
        QTest::newRow("nothing to scroll") << 28.0 << 0.0 << 0.0;
    }

    void scrollsAtTheSpeed()
    {
        const auto [speed, maximum, offset] = fetched<double, double, double>();
        Fakes::Core core;
        core.settings.setPrompterSpeed(speed);
        core.services.start();
        TeleprompterModel &prompter = *core.services.model<TeleprompterModel>();
        prompter.setMaximumOffset(maximum);
        core.services.show(NotchTool::teleprompter);
        core.wait(1000);
        QCOMPARE(prompter.offset(), 0.0);
        prompter.setPlaying(true);
        core.wait(10'000);
        QVERIFY(std::abs(prompter.offset() - offset) < 1e-6);
        QCOMPARE(prompter.playing(), std::isinf(maximum));
    }

    void tellsAndTakesPositions()
    {
        Fakes::Core core;
        TeleprompterModel &prompter = *core.services.model<TeleprompterModel>();
        prompter.moveTo(0.5);
        QCOMPARE(prompter.position(), std::optional(0.5));
        QCOMPARE(prompter.secondsLeft(), -1);
        prompter.setMaximumOffset(560); // Laid out later, it is there.
        QCOMPARE(prompter.offset(), 280.0);
        QCOMPARE(prompter.secondsLeft(), 10);
        core.settings.setPrompterSpeed(140);
        QCOMPARE(prompter.secondsLeft(), 2);
        prompter.moveTo(3);
        QCOMPARE(prompter.position(), std::optional(1.0));
        QCOMPARE(prompter.secondsLeft(), 0);
        prompter.restart();
        prompter.setMaximumOffset(std::numeric_limits<double>::infinity());
        prompter.moveTo(0.5);
        prompter.restart();
        prompter.setMaximumOffset(560);
        QCOMPARE(prompter.offset(), 0.0);
    }

    void changesOfModeKeepToTheRules()
    {
        Fakes::Core core;
        core.services.start();
        TeleprompterModel &prompter = *core.services.model<TeleprompterModel>();
        QSignalSpy moved(&prompter, &TeleprompterModel::offsetChanged);
        prompter.restart();
        QCOMPARE(moved.size(), 0);
        prompter.setEditing(true);
        prompter.setPlaying(true);
        QVERIFY(!prompter.editing());
        core.wait(1000);
        prompter.restart();
        QVERIFY(prompter.playing() && prompter.offset() == 0);
        core.wait(1000);
        prompter.setEditing(true);
        QVERIFY(!prompter.playing() && prompter.offset() > 27);

        prompter.setMaximumOffset(20);
        QCOMPARE(prompter.offset(), 20.0);
        prompter.setPlaying(true);
        QVERIFY2(prompter.offset() == 0, "at its end it starts from the top");
        prompter.scrollTo(-5);
        QCOMPARE(prompter.offset(), 0.0);

        for (const auto left : {std::optional(NotchTool::note), std::optional<NotchTool>()}) {
            core.services.show(NotchTool::teleprompter);
            prompter.setPlaying(true);
            core.services.show(left);
            QVERIFY(!prompter.playing());
            core.services.show(NotchTool::teleprompter);
            QVERIFY2(!prompter.playing(), "coming back does not resume");
        }
    }
};

REGISTER_TEST(TeleprompterModelTest);
#include "TeleprompterModelTest.moc"
