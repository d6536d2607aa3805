#pragma once

#include "App/AppState.h"
#include "App/CommandLine.h"
#include "Support/FakePlatform.h"
#include "Support/TestRegistry.h"

/// The application over fake ports; `launch` starts it.
struct AppStage : Fakes::Platform
{
    QStringList alerts;
    int settingsOpened = 0;
    std::unique_ptr<AppState> app;

    explicit AppStage(bool welcomedBefore = true)
    {
        displays.displays = {{u"HDMI-1"_s, QRectF(0, 0, 1920, 1080), 0, {}, {}}};
        if (welcomedBefore)
            defaults.setObject(u"kestrune.welcomed"_s, true);
    }

    void launch(const QStringList &arguments = {})
    {
        const AppWindows shown{.panels = panels,
                               .showAlert = [this](const QString &message,
                                                   const QString &details) { alerts << message << details; },
                               .openSettings = [this] { ++settingsOpened; }};
        app = std::make_unique<AppState>(ports(), shown, CommandLine::parse(arguments).launch);
    }

    void setSuite(bool running, bool notch)
    {
        applications.running = running ? QSet<QString>{NotchBranding::suiteIdentifier()} : QSet<QString>();
        suiteDefaults.setObject(u"notch.enabled"_s, notch);
        if (applications.tells && applications.changed)
            applications.changed();
    }

    const NotchScreenModel &model() const { return *app->controller().notches().at(0).model; }
};
