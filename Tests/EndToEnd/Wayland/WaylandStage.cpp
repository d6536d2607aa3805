#include "EndToEnd/Wayland/WaylandStage.h"

#include <QDBusMessage>

WaylandStage::WaylandStage(Desktop desktop, const QStringList &otherProgram)
    : compositor(desktop.kind, desktop.guest || desktop.otherIsGuest, desktop.scale, session.environment())
    , input(compositor.plugInDevices(session.bus()))
    , other(session.environment(), desktop.otherIsGuest ? u"xcb"_s : u"wayland"_s, otherProgram)
{
    if (desktop.guest) {
        session.environment().insert(u"KESTRUNE_WINDOW_SYSTEM"_s, u"x11"_s);
        input.beMouse();
    }
    if (!input.isReady())
        qFatal("the compositor did not start, or takes no input");
}

bool WaylandStage::run(Settings settings, int notches)
{
    session.setFlag(u"kestrune"_s, u"kestrune.welcomed"_s, true);
    for (const auto &[name, value] : settings) {
        if (!session.set(QString::fromLatin1(name), QString::fromLatin1(value)))
            return false;
    }
    input.move(Place::away);
    if (!waitUntil([this] { return other.hasFocus(); }))
        return false;
    if (input.isMouse())
        placePointer();
    return session.start() && waitUntil([&] { return session.displays().size() == notches; });
}

void WaylandStage::placePointer()
{
    const auto isThere = [this] {
        // The window may have an edge.
        for (int x = Place::away.x() - 8; x <= Place::away.x(); ++x) {
            if (other.count(u"at %1"_s.arg(x)) > 0)
                return true;
        }
        return false;
    };
    // What a device is told right after it was made, or while displays are arranged, gets lost. Not every
    // compositor shows the pointer to X11's windows before it is used; by then it is there, too.
    constexpr qint64 longEnough = 3000;
    waitUntil(
        [&] {
            input.put(Place::away - QPoint(20, 0));
            input.push({20, 0});
            return waitUntil(isThere, 200);
        },
        longEnough);
}

bool WaylandStage::waitOpen(int display) const
{
    return waitUntil([&] { return session.isOpen(display); });
}

bool WaylandStage::waitVisited(int display) const
{
    return waitUntil([&] {
        return session.isOpen(display) && session.display(display).value("pointerEntered"_L1).toBool();
    });
}

bool WaylandStage::waitClosed(int display) const
{
    return waitUntil([&] { return !session.isOpen(display); });
}

bool WaylandStage::dragOntoShelf()
{
    input.move(Place::away);
    input.pressButton();
    input.glide(Place::away, Place::notch);
    if (!waitOpen() || session.selected() != u"shelf"_s)
        return false;
    input.glide(Place::notch, Place::panel);
    input.releaseButton();
    return true;
}

bool WaylandStage::looksOpen() const
{
    const QImage picture = compositor.picture();
    return picture.isNull() || picture.pixelColor(Place::panelEdge) == QColor(Qt::black);
}

bool WaylandStage::hasHotKey() const
{
    if (compositor.kind() != Compositor::Kind::KWin)
        return true;
    const QString service = u"org.kde.kglobalaccel"_s;
    auto call =
        QDBusMessage::createMethodCall(service, u"/kglobalaccel"_s, u"org.kde.KGlobalAccel"_s, u"action"_s);
    call << QKeyCombination(Qt::CTRL | Qt::ALT | Qt::META, Qt::Key_N).toCombined();
    return session.bus().call(call).arguments().value(0).toStringList().contains(Session::busName());
}

bool WaylandStage::clickReachesOther(QPoint place)
{
    const qsizetype before = other.count(u"press"_s);
    input.move(place);
    // The place belongs to the other window with the program's next frame.
    return waitUntil(
        [&] {
            input.click(place);
            return waitUntil([&] { return other.count(u"press"_s) > before; }, 500);
        },
        5000);
}

void WaylandStageTest::compositors([[maybe_unused]] bool otherIsGuest)
{
    using enum Compositor::Kind;
    QTest::addColumn<WaylandStage::Desktop>("desktop");
#ifdef KESTRUNE_WAYLAND
    for (const auto &[name, kind] : {std::pair("sway", Sway), {"labwc", Labwc}, {"KWin", KWin}})
        QTest::newRow(name) << WaylandStage::Desktop{.kind = kind, .otherIsGuest = otherIsGuest};
#endif
}

void WaylandStageTest::desktops()
{
    using enum Compositor::Kind;
    compositors();
    QTest::newRow("guest of sway") << WaylandStage::Desktop{Sway, true};
    QTest::newRow("guest of Mutter") << WaylandStage::Desktop{Mutter, true};
#ifdef KESTRUNE_WAYLAND
    QTest::newRow("guest of KWin") << WaylandStage::Desktop{KWin, true};
#endif
}

WaylandStage::Desktop WaylandStageTest::desktop()
{
    QFETCH(WaylandStage::Desktop, desktop);
    return desktop;
}
