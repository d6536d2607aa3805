#include "NotchKit/Tools/Timer/TimerModel.h"
#include "WindowStage.h"

namespace {

/// The timer's pane with the keyboard.
struct Stage : WindowStage
{
    TimerModel &timer = *core.services.model<TimerModel>();

    Stage() { open(NotchTool::timer); }

    QQuickItem *length() const { return find(u"TimerLength"_s); }
    QQuickItem *field() const { return find(u"LineField"_s); }
    void press(const QString &help) const
    {
        const QQuickItem *item = button(help);
        click(item, {item->width() / 2, item->height() / 2});
    }
    void turn(int angle) const
    {
        const QPointF place = length()->mapToScene({length()->width() / 2, length()->height() / 2});
        QWheelEvent event(place, window->mapToGlobal(place), {}, {0, angle}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(window.get(), &event);
    }
    void type(const QString &text) const
    {
        for (const QChar character : text)
            QTest::keyClick(window.get(), character.toLatin1());
    }
    double minutes() const { return timer.duration() / 60; }
};

} // namespace

/// Setting the length of the countdown by hand.
class TimerPaneTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWheelTheKeysAndTheButtonsStep()
    {
        Stage stage;
        stage.key(Qt::Key_Up);
        stage.key(Qt::Key_PageUp);
        stage.key(Qt::Key_Down);
        QCOMPARE(stage.minutes(), 35);
        stage.press(u"One minute more"_s);
        stage.turn(120);
        stage.turn(60); // half a step of a finer wheel
        QCOMPARE(stage.minutes(), 37);
        stage.turn(60);
        QCOMPARE(stage.minutes(), 38);
        for (int i = 0; i < 4; ++i)
            stage.key(Qt::Key_PageDown);
        QCOMPARE(stage.minutes(), 1);
        QVERIFY(!stage.button(u"One minute less"_s));
        stage.key(Qt::Key_Space);
        QVERIFY(stage.timer.isRunning());
        stage.key(Qt::Key_Up);
        stage.turn(120);
        stage.type(u"9"_s);
        QVERIFY(stage.minutes() == 1 && !stage.field() && !stage.button(u"One minute more"_s));
    }

    void typing()
    {
        Stage stage;
        stage.type(u"1:30:00"_s);
        QVERIFY(stage.field() && stage.field()->hasActiveFocus());
        QCOMPARE(stage.minutes(), 90);
        stage.key(Qt::Key_Escape);
        QVERIFY(!stage.field() && stage.core.model().expanded() && stage.minutes() == 25);
        stage.type(u"90x"_s);
        stage.key(Qt::Key_Return);
        QVERIFY(!stage.field() && stage.timer.isRunning() && stage.minutes() == 90);

        // What is typed is kept when another control is pressed.
        stage.timer.reset();
        stage.click(stage.length(), {stage.length()->width() / 2, stage.length()->height() / 2});
        QCOMPARE(stage.field()->property("text").toString(), u"1:30:00"_s);
        stage.type(u"7"_s);
        stage.press(u"Start"_s);
        QVERIFY(stage.timer.isRunning() && stage.minutes() == 7);
    }
};

REGISTER_TEST(TimerPaneTest);
#include "TimerPaneTest.moc"
