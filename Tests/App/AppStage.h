#pragma once

#include "App/AppState.h"
#include "Support/Fakes.h"

/// The application over fake ports; `launch` starts it.
struct AppStage
{
    Kestrune::Fakes::FakeClock clock;
    Kestrune::Fakes::MemoryDefaults defaults;
    Kestrune::Fakes::MemoryDefaults suiteDefaults;
    Kestrune::Fakes::FakeApplications applications;
    Kestrune::Fakes::FakeLoginItem loginItem;
    Kestrune::Fakes::FakeSounds sounds;
    Kestrune::Fakes::FakeWorkspace workspace;
    Kestrune::Fakes::FakePasteboard pasteboard;
    Kestrune::Fakes::FakeDrags drags;
    Kestrune::Fakes::FakeSharing sharing;
    Kestrune::Fakes::FakeCaptureQuery captures;
    Kestrune::Fakes::FakeThumbnails thumbnails;
    Kestrune::Fakes::FakeHttp http;
    Kestrune::Fakes::FakeLocation location;
    Kestrune::Fakes::FakeScripts scripts;
    Kestrune::Fakes::FakeHost host;
    Kestrune::Fakes::FakeCamera camera;
    Kestrune::Fakes::FakeCalendars calendars;
    Kestrune::Fakes::FakeDisplays displays;
    Kestrune::Fakes::FakePointer pointer;
    Kestrune::Fakes::FakePanels panels;
    Kestrune::Fakes::FakeHotKeys hotKeys;
    QStringList alerts;
    int settingsOpened = 0;
    std::unique_ptr<Kestrune::AppState> app;

    explicit AppStage(bool welcomedBefore = true)
    {
        displays.displays = {{QStringLiteral("HDMI-1"), QRectF(0, 0, 1920, 1080), 0, {}, {}}};
        if (welcomedBefore)
            defaults.setObject(QStringLiteral("kestrune.welcomed"), true);
    }

    void launch(const QStringList &arguments = {})
    {
        const Kestrune::AppPlatform platform{
            defaults,
            suiteDefaults,
            applications,
            loginItem,
            [this](const QString &message, const QString &details) { alerts << message << details; },
            [this] { ++settingsOpened; }};
        app = std::make_unique<Kestrune::AppState>(
            platform,
            Kestrune::NotchPlatform{clock, defaults, sounds, workspace, pasteboard, drags, sharing, captures,
                                    thumbnails, http, location, applications, scripts, host, camera,
                                    calendars},
            Kestrune::NotchControllerPlatform{clock, displays, pointer, panels, hotKeys, drags},
            Kestrune::LaunchRequest::parse(arguments));
    }

    void setSuite(bool running, bool notch)
    {
        applications.running =
            running ? QSet<QString>{Kestrune::NotchBranding::suiteIdentifier()} : QSet<QString>();
        suiteDefaults.setObject(QStringLiteral("notch.enabled"), notch);
    }

    const Kestrune::NotchScreenModel &model() const { return *app->controller().notches().at(0).model; }
};
