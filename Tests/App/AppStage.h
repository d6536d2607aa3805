#pragma once

#include "App/AppState.h"
#include "App/CommandLine.h"
#include "Support/FakePlatform.h"

/// The application over fake ports; `launch` starts it.
struct AppStage : Kestrune::Fakes::Platform
{
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
        const Kestrune::AppWindows shown{
            .panels = panels,
            .showAlert = [this](const QString &message,
                                const QString &details) { alerts << message << details; },
            .openSettings = [this] { ++settingsOpened; }};
        app = std::make_unique<Kestrune::AppState>(ports(), shown,
                                                   Kestrune::CommandLine::parse(arguments).launch);
    }

    void setSuite(bool running, bool notch)
    {
        applications.running =
            running ? QSet<QString>{Kestrune::NotchBranding::suiteIdentifier()} : QSet<QString>();
        suiteDefaults.setObject(QStringLiteral("notch.enabled"), notch);
    }

    const Kestrune::NotchScreenModel &model() const { return *app->controller().notches().at(0).model; }
};
