#include "EndToEnd/Wayland/WaylandStage.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <linux/input-event-codes.h>

#include <algorithm>

/// Displays of every scale and turned, which change while the program runs.
class WaylandDisplaysTest : public WaylandStageTest
{
    Q_OBJECT

private Q_SLOTS:
    void followsItsDisplay_data() { compositors(); }
    void followsItsDisplay()
    {
        const QList<Layout> layouts{{1.25}, {1.5}, {1.75}, {2}, {1, true}};
        const QMap<double, QImage> sharp = sharpPictures({1.25, 1.5, 1.75, 2});
        QVERIFY(stage().run({{"hoverDelay", "0"}}));
        for (const Layout &layout : layouts) {
            lay(0, layout);
            const QByteArray which = QByteArray::number(layout.scale) + (layout.turned ? " turned" : "");
            const QSize size = sizeOf(layout);
            QTRY_VERIFY2(near(frame().size(), size), which);
            input().setExtent(size);
            input().move({size.width() / 2, size.height() - 10});
            QVERIFY2(layout.turned || looksLike(sharp.value(layout.scale), 0, layout.scale), which);
            const QPoint notch(size.width() / 2, 10);
            input().move(notch);
            QVERIFY2(stage().waitVisited(), which);
            QVERIFY2(stage().clickReachesOther(notch + QPoint(0, 340)), which);
            QVERIFY2(stage().waitClosed(), which);
            QVERIFY2(stage().clickReachesOther(notch + QPoint(0, 50)), which);
        }
    }

    void displaysOfTwoScalesHaveOneNotchEach_data() { compositors(); }
    void displaysOfTwoScalesHaveOneNotchEach()
    {
        QVERIFY(stage().compositor.plugSecond(true, input()));
        const QSize left = sizeOf({1.5}), right = sizeOf({1.25});
        // Labwc moves one that has not been moved itself out of the way of another.
        lay(1, {1.25}, {left.width(), 0});
        lay(0, {1.5});
        // Else the pointer may be moved onto the second one, and the keyboard with it.
        input().setExtent({left.width() + right.width(), std::max(left.height(), right.height())});
        QVERIFY(stage().run({{"hoverDelay", "0"}, {"allDisplays", "true"}}, 2));
        QTRY_VERIFY(near(frame(0).size(), left) && near(frame(1).size(), right));
        QCOMPARE(frame(1).x(), left.width());
        for (const auto &[index, x] :
             {std::pair(1, left.width() + right.width() / 2), {0, left.width() / 2}}) {
            input().move({x, 10});
            QVERIFY(stage().waitVisited(index) && stage().waitClosed(1 - index));
            input().move({x, left.height() - 10});
            QVERIFY(stage().waitClosed(index));
        }
    }

private:
    struct Layout
    {
        double scale;
        bool turned = false;
    };

    bool isKWin() { return desktop().kind == Compositor::Kind::KWin; }
    /// Every scale divides it, so that no picture has to be rounded.
    QSize mode() { return isKWin() ? QSize(1280, 800) : QSize(2100, 1260); }

    QSize sizeOf(const Layout &layout)
    {
        return (layout.turned ? mode().transposed() : mode()) / layout.scale;
    }

    /// Whether KWin says so itself.
    bool isLaid(const QString &output, const Layout &layout)
    {
        const QJsonValue told =
            QJsonDocument::fromJson(stage().compositor.run(u"kscreen-doctor"_s, {u"-j"_s}))["outputs"_L1];
        const QJsonArray outputs = told.toArray();
        constexpr int none = 1, left = 2; // Of its rotations.
        return std::ranges::any_of(outputs, [&](const QJsonValue &one) {
            return one["name"_L1].toString() == output && one["scale"_L1].toDouble() == layout.scale &&
                   one["rotation"_L1].toInt() == (layout.turned ? left : none);
        });
    }

    void lay(int index, const Layout &layout, QPoint place = {})
    {
        const Compositor &compositor = stage().compositor;
        const QString output = compositor.outputs().value(index), scale = QString::number(layout.scale);
        if (isKWin()) {
            const QStringList wanted{
                u"output.%1.scale.%2"_s.arg(output, scale),
                u"output.%1.rotation.%2"_s.arg(output, layout.turned ? u"left"_s : u"none"_s),
                u"output.%1.position.%2,%3"_s.arg(output).arg(place.x()).arg(place.y())};
            // On a busy machine it says that all went well where KWin has done nothing.
            QVERIFY(waitUntil([&] {
                compositor.run(u"kscreen-doctor"_s, wanted);
                return isLaid(output, layout);
            }));
            return;
        }
        compositor.run(u"wlr-randr"_s,
                       {u"--output"_s, output, u"--custom-mode"_s, u"2100x1260"_s, u"--scale"_s, scale,
                        u"--transform"_s, layout.turned ? u"90"_s : u"normal"_s, u"--pos"_s,
                        u"%1,%2"_s.arg(place.x()).arg(place.y())});
    }

    QRectF frame(int index = 0)
    {
        const QJsonObject told = session().display(index).value("frame"_L1).toObject();
        return {told.value("x"_L1).toDouble(), told.value("y"_L1).toDouble(),
                told.value("width"_L1).toDouble(), told.value("height"_L1).toDouble()};
    }

    static bool near(QSizeF size, QSize wanted)
    {
        return std::abs(size.width() - wanted.width()) <= 1 && std::abs(size.height() - wanted.height()) <= 1;
    }

    /// The place of the open notch with all around it, but for what may be a window's title beside it.
    QImage openNotch(int index, double scale)
    {
        const QImage whole = stage().compositor.picture(index);
        const QSize size = QSizeF(880 * scale, 390 * scale).toSize();
        const int top = titleEnd(scale);
        return whole.copy((whole.width() - size.width()) / 2, top, size.width(), size.height() - top);
    }
    static int titleEnd(double scale) { return qRound(40 * scale); }

    /// Once nothing in it has moved for a second.
    QImage restingNotch(int index, double scale)
    {
        QImage shown;
        const auto rests = [&] {
            shown = openNotch(index, scale);
            const QPoint edge(shown.width() / 2, qRound(324 * scale) - titleEnd(scale));
            return shown.pixelColor(edge) == QColor(Qt::black) &&
                   holdsFor([&] { return openNotch(index, scale) == shown; }, 1000);
        };
        return waitUntil(rests) ? shown : QImage();
    }

    /// What the view draws itself at each scale, on a display that enlarges nothing. None on a compositor
    /// that lets nobody look.
    QMap<double, QImage> sharpPictures(const QList<double> &scales)
    {
        QMap<double, QImage> pictures;
        if (isKWin())
            return pictures;
        lay(0, {1});
        for (const double scale : scales) {
            session().environment().insert(u"QT_SCALE_FACTOR"_s, QString::number(scale));
            if (stage().run() && session().command({u"open"_s, u"shelf"_s}).status == 0 && stage().waitOpen())
                pictures.insert(scale, restingNotch(0, scale));
            session().endProgram();
        }
        session().environment().remove(u"QT_SCALE_FACTOR"_s);
        return pictures;
    }

    /// Calls the notch, and compares it with the one that was drawn sharply.
    bool looksLike(const QImage &sharp, int index, double scale)
    {
        if (isKWin())
            return true;
        const bool opened = session().command({u"open"_s, u"shelf"_s}).status == 0 && stage().waitOpen(index);
        const bool equal =
            !sharp.isNull() && waitUntil([&] { return openNotch(index, scale) == sharp; }, 20'000);
        input().tap(KEY_ESC);
        return opened && equal && stage().waitClosed(index);
    }
};

REGISTER_TEST(WaylandDisplaysTest);
#include "WaylandDisplaysTest.moc"
