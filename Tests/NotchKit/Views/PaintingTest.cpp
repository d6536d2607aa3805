#include "WindowStage.h"

#include <QAbstractAnimation>

/// Time that passes only when the test says so.
class SteppedTime : public QAnimationDriver
{
    Q_OBJECT

public:
    using QAnimationDriver::QAnimationDriver;

    qint64 elapsed() const override { return m_elapsed; }
    void pass(int milliseconds)
    {
        m_elapsed += milliseconds;
        advanceAnimation();
    }

private:
    qint64 m_elapsed = 0;
};

/// Each frame paints only what changed; it must look as if all of it had been painted. At the scale that Qt
/// is started with.
class PaintingTest : public QObject
{
    Q_OBJECT

    static constexpr int kFrame = 7; // ms
    SteppedTime m_time;

    /// The picture that the frames have left, then the same one painted whole, as after any change of size.
    static std::pair<QImage, QImage> pictures(QQuickWindow &window)
    {
        const QImage left = window.grabWindow();
        const QSize size = window.size();
        window.resize(size + QSize(0, 2));
        QCoreApplication::processEvents();
        const QImage whole = window.grabWindow().copy(left.rect());
        window.resize(size);
        QCoreApplication::processEvents();
        return {left, whole};
    }

    /// The first pixel that differs; empty without one.
    static QString difference(const QImage &left, const QImage &whole)
    {
        for (int y = 0; y < left.height(); ++y) {
            for (int x = 0; x < left.width(); ++x) {
                if (left.pixel(x, y) != whole.pixel(x, y))
                    return u"%1,%2: %3, painted whole %4"_s.arg(x)
                        .arg(y)
                        .arg(left.pixel(x, y), 8, 16)
                        .arg(whole.pixel(x, y), 8, 16);
            }
        }
        return {};
    }

private Q_SLOTS:
    void initTestCase() { m_time.install(); } // Before the views' own pace, which then stays away.

    void framesLookAsIfPaintedWhole()
    {
        WindowStage stage;
        stage.window->setColor(QColor(143, 176, 222)); // In which the shadow and the outline can be seen.
        QVERIFY(QTest::qWaitForWindowExposed(stage.window.get()));
        const auto move = [&](const QString &motion) {
            for (int frame = 0; frame < 130; ++frame) {
                m_time.pass(kFrame);
                QCoreApplication::processEvents();
                stage.window->grabWindow();
                if (frame % 8 != 3)
                    continue;
                const auto [left, whole] = pictures(*stage.window);
                const QString folder = qEnvironmentVariable("KESTRUNE_FRAMES"); // To be looked at.
                if (!folder.isEmpty())
                    left.save(folder + u"/%1-%2.png"_s.arg(motion).arg(frame, 3, 10, QLatin1Char('0')));
                const QString fault = difference(left, whole);
                QVERIFY2(fault.isEmpty(), qPrintable(motion + u" %1 "_s.arg(frame) + fault));
            }
        };
        stage.core.controller.open(NotchTool::home);
        move(u"opening"_s);
        QCOMPARE(stage.outline, QRectF(60, 0, 760, 330));
        stage.core.controller.open(NotchTool::clipboard);
        move(u"switching"_s);
        stage.core.controller.collapseAll();
        move(u"closing"_s);
        QCOMPARE(stage.outline, QRectF(345, 0, 190, 32));
    }
};

REGISTER_TEST(PaintingTest);
#include "PaintingTest.moc"
