#include "NotchKit/NotchGeometry.h"
#include "NotchKit/NotchShape.h"
#include "NotchKit/Spring.h"
#include "Support/TestRegistry.h"

class NotchGeometryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void notchIsMeasured_data()
    {
        columns<double, double, double, QSizeF, bool>();
        QTest::newRow("housing") << 38.0 << 650.0 << 652.0 << QSizeF(210, 38) << true;
        QTest::newRow("no inset") << 0.0 << 650.0 << 652.0 << QSizeF(190, 32) << false;
        QTest::newRow("one area only") << 38.0 << 650.0 << -1.0 << QSizeF(190, 32) << false;
        QTest::newRow("no area") << 38.0 << -1.0 << -1.0 << QSizeF(190, 32) << false;
    }

    void notchIsMeasured()
    {
        const auto [inset, left, right, notch, hardware] = fetched<double, double, double, QSizeF, bool>();
        const auto area = [](double width) {
            return width < 0 ? std::nullopt : std::optional(QRectF(0, 0, width, 38));
        };
        const Kestrune::Display display{u"eDP-1"_s, {0, 0, 1512, 982}, inset, area(left), area(right)};
        const NotchGeometry geometry(display);
        QCOMPARE(geometry.notchSize, notch);
        QCOMPARE(geometry.hasHardwareNotch, hardware);
        QCOMPARE(geometry, NotchGeometry(display));
    }

    void framesAndHitAreas()
    {
        const NotchGeometry geometry(QRectF(-1000, 200, 1920, 1080), {190, 32}, false);
        QCOMPARE(geometry.panelFrame(), QRectF(-480, 890, 880, 390));
        QCOMPARE(geometry.shapeSize(false, true), QSizeF(342, 32));
        QCOMPARE(geometry.hitRect(false, false), QRectF(-141, 1242, 202, 39));
        QCOMPARE(geometry.hitRect(false, true), QRectF(-217, 1242, 354, 39));
        QCOMPARE(geometry.hitRect(true, true), QRectF(-428, 942, 776, 339));
        QCOMPARE(geometry.hitRect(true, true), geometry.hitRect(true, false));
    }

    void shapeClampsItsRadii_data()
    {
        columns<QSizeF, double, double, double, double>();
        QTest::newRow("open") << QSizeF(760, 330) << 14.0 << 30.0 << 14.0 << 30.0;
        QTest::newRow("narrow") << QSizeF(40, 330) << 14.0 << 30.0 << 10.0 << 10.0;
        QTest::newRow("low") << QSizeF(760, 20) << 14.0 << 30.0 << 14.0 << 10.0;
        QTest::newRow("plain") << QSizeF(100, 50) << 0.0 << 0.0 << 0.0 << 0.0;
    }

    void shapeClampsItsRadii()
    {
        const auto [size, topRadius, bottomRadius, top, bottom] =
            fetched<QSizeF, double, double, double, double>();
        const QPainterPath path = NotchShape{topRadius, bottomRadius}.path({{10, 20}, size});
        QCOMPARE(path.boundingRect(), QRectF({10, 20}, size));
        const double left = 10;
        const double right = 10 + size.width();
        const double floor = 20 + size.height();
        // The body between the flares is filled; beside it, below the flare, nothing is.
        QVERIFY(path.contains(QPointF(left + top + 1, 20 + size.height() / 2)));
        QVERIFY(path.contains(QPointF(right - top - 1, 20 + size.height() / 2)));
        if (top > 1)
            QVERIFY(!path.contains(QPointF(left + top - 1, floor - bottom)));
        // A rounded corner leaves out its outermost point.
        QCOMPARE(path.contains(QPointF(left + top + 0.5, floor - 0.5)), bottom == 0);
        QVERIFY(path.contains(QPointF(left + top + bottom + 0.5, floor - 0.5)));
    }

    void springFollowsItsEquation_data()
    {
        columns<double, double>();
        QTest::newRow("open") << 0.42 << 0.8;
        QTest::newRow("close") << 0.34 << 0.92;
        QTest::newRow("critical") << 0.3 << 1.0;
        QTest::newRow("overdamped") << 0.5 << 1.7;
        QTest::newRow("undamped") << 0.5 << 0.0;
    }

    void springFollowsItsEquation()
    {
        const auto [response, damping] = fetched<double, double>();
        const Spring spring(response, damping);
        const double omega = 2 * M_PI / response;
        // Small steps of the differential equation itself (midpoint rule) must meet the closed form.
        Spring::State state{10, -40};
        constexpr double target = 3;
        constexpr double step = 1e-5;
        const auto pull = [&](const Spring::State &at) {
            return -omega * omega * (at.position - target) - 2 * damping * omega * at.velocity;
        };
        for (int i = 0; i < 60000; ++i) {
            const Spring::State half{state.position + state.velocity * step / 2,
                                     state.velocity + pull(state) * step / 2};
            state = {state.position + half.velocity * step, state.velocity + pull(half) * step};
        }
        const Spring::State exact = spring.at(0.6, {10, -40}, target);
        QVERIFY(std::abs(exact.position - state.position) < 1e-4);
        QVERIFY(std::abs(exact.velocity - state.velocity) < 1e-2);
    }

    void springIsOneMotionWhenInterrupted()
    {
        const Spring spring(0.42, 0.8);
        const Spring::State half = spring.at(0.1, {190, 0}, 760);
        const Spring::State whole = spring.at(0.25, {190, 0}, 760);
        const Spring::State resumed = spring.at(0.15, half, 760);
        QVERIFY(std::abs(whole.position - resumed.position) < 1e-9);
        QVERIFY(std::abs(whole.velocity - resumed.velocity) < 1e-6);
    }
};

REGISTER_TEST(NotchGeometryTest);
#include "NotchGeometryTest.moc"
