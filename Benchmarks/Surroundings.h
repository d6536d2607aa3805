#pragma once

#include "NotchKit/NotchServices.h"
#include "NotchKit/NotchSettings.h"
#include "Support/FakePlatform.h"

#include <QFont>
#include <QGuiApplication>
#include <QQuickWindow>

namespace Benchmarks {

/// The application object, set up as the program sets up its own.
class Surroundings
{
public:
    Surroundings(int &argc, char **argv)
        : m_application(prepare(argc), argv)
    {
        QFont font = QGuiApplication::font();
        font.setFamily(QStringLiteral("Inter"));
        QGuiApplication::setFont(font);
    }

private:
    static int &prepare(int &argc)
    {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
        qputenv("QT_XCB_GL_INTEGRATION", "none");
        qputenv("QT_NO_GLIB", "1");
        qputenv("QT_QPA_PLATFORM", qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ? "wayland" : "xcb");
        return argc;
    }

    QGuiApplication m_application;
};

/// What the hub is made of, with nothing behind it.
struct HubParts : Kestrune::Fakes::Platform
{
    explicit HubParts(Kestrune::Clock &running)
        : time(running)
    {}
    Kestrune::Platform platform(Kestrune::Fakes::RealPorts real = {})
    {
        real.clock = &time;
        return ports(real);
    }

    Kestrune::Clock &time;
    Kestrune::NotchSettings settings{defaults};
};

/// Two displays side by side; the first is the virtual display that the benchmarks run on.
inline QList<Kestrune::Display> twoDisplays()
{
    return {{QStringLiteral("first"), {0, 0, 1280, 800}, 0, std::nullopt, std::nullopt},
            {QStringLiteral("second"), {1280, 0, 1920, 1080}, 0, std::nullopt, std::nullopt}};
}

} // namespace Benchmarks
