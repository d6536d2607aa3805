#pragma once

#include "Fakes.h"
#include "NotchKit/NotchServices.h"
#include "NotchKit/NotchSettings.h"

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
        qputenv("QT_QPA_PLATFORM", "xcb");
        return argc;
    }

    QGuiApplication m_application;
};

/// What the hub is made of, with nothing behind it.
struct HubParts
{
    explicit HubParts(Kestrune::Clock &time)
        : clock(time)
    {}
    Kestrune::NotchPlatform platform() { return make(pasteboard, players, scripts, calendars); }
    Kestrune::NotchPlatform platform(Kestrune::Pasteboard &other)
    {
        return make(other, players, scripts, calendars);
    }
    Kestrune::NotchPlatform platform(Kestrune::CalendarStore &store)
    {
        return make(pasteboard, players, scripts, store);
    }
    Kestrune::NotchPlatform platform(Kestrune::RunningApplications &running,
                                     Kestrune::ScriptExecutor &executor)
    {
        return make(pasteboard, running, executor, calendars);
    }

    Kestrune::Clock &clock;
    Kestrune::Fakes::MemoryDefaults defaults;
    Kestrune::Fakes::FakeSounds sounds;
    Kestrune::Fakes::FakeWorkspace workspace;
    Kestrune::Fakes::FakePasteboard pasteboard;
    Kestrune::Fakes::FakeDrags drags;
    Kestrune::Fakes::FakeSharing sharing;
    Kestrune::Fakes::FakeCaptureQuery captures;
    Kestrune::Fakes::FakeThumbnails thumbnails;
    Kestrune::Fakes::FakeHttp http;
    Kestrune::Fakes::FakeLocation location;
    Kestrune::Fakes::FakeApplications players;
    Kestrune::Fakes::FakeScripts scripts;
    Kestrune::Fakes::FakeHost host;
    Kestrune::Fakes::FakeCamera camera;
    Kestrune::Fakes::FakeCalendars calendars;
    Kestrune::NotchSettings settings{defaults};

private:
    Kestrune::NotchPlatform make(Kestrune::Pasteboard &copies, Kestrune::RunningApplications &running,
                                 Kestrune::ScriptExecutor &executor, Kestrune::CalendarStore &store)
    {
        return {clock,      defaults, sounds,   workspace, copies,   drags, sharing, captures,
                thumbnails, http,     location, running,   executor, host,  camera,  store};
    }
};

/// Two displays side by side; the first is the virtual display that the benchmarks run on.
inline QList<Kestrune::Display> twoDisplays()
{
    return {{QStringLiteral("first"), {0, 0, 1280, 800}, 0, std::nullopt, std::nullopt},
            {QStringLiteral("second"), {1280, 0, 1920, 1080}, 0, std::nullopt, std::nullopt}};
}

} // namespace Benchmarks
