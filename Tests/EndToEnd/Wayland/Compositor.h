#pragma once

#include "EndToEnd/ChildProcess.h"

#include <QImage>
#include <QTemporaryDir>

class InputDevices;
class QDBusConnection;
class WaylandInput;

/// A Wayland compositor without a screen, with one display, of 1280 x 800 points.
class Compositor
{
public:
    enum class Kind { Sway, Labwc, KWin, Mutter };

    /// Starts it, with Xwayland where X11's programs are to be its guests, and so many pixels to a point, and
    /// tells `environment`, which its clients get, how to reach it.
    Compositor(Kind kind, bool guests, int scale, QProcessEnvironment &environment);
    ~Compositor();
    Q_DISABLE_COPY_MOVE(Compositor)

    Kind kind() const { return m_kind; }

    /// Whether a key of its may call the program: not one that runs as nobody beside a root's session.
    bool mayCallProgram() const;

    /// With its folder; empty when it did not start.
    QString socket() const { return m_socket; }

    /// A pointer and a keyboard; `bus` is the session's.
    std::unique_ptr<InputDevices> plugInDevices(const QDBusConnection &bus) const;

    /// Plugs in or unplugs a display right of the first one.
    bool plugSecond(bool plugged, WaylandInput &input);

    /// Sets the scale of the display number `index`, not on Mutter.
    void setScale(int index, double scale) const;

    /// What that display shows; null on a compositor that lets nobody look.
    QImage picture(int index = 0) const;

    /// Runs a client of it to its end, and returns what it says.
    QByteArray run(const QString &program, const QStringList &arguments) const;

    /// The names of the displays, in the order of their numbers.
    QStringList outputs() const;

private:
    void startSway();
    void startLabwc();
    void startKWin();
    void startMutter();
    bool launchUnprivileged(const QString &program, const QStringList &arguments);
    bool awaitSocket(const QString &name);
    bool awaitFile(const ChildProcess &process, const QString &name) const;
    void setGuestsDisplay(const QString &display, const QString &authority);
    bool arrangeMutter(qsizetype count);
    QString mode() const; ///< Of each display.
    QString tellDisplay() const;

    QTemporaryDir m_folder; ///< Of its sockets and configuration.
    Kind m_kind;
    int m_scale;
    bool m_guests;
    QProcessEnvironment &m_environment;
    QString m_socket;
    ChildProcess m_process;
    ChildProcess m_pipeWire; ///< Mutter records displays by it, which is how a test's pointer knows places.
};
