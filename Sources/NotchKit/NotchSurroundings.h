#pragma once

#include "NotchKit/Platform/Clock.h"

#include <QDateTime>
#include <QObject>
#include <QProperty>
#include <QUrl>

#include <functional>

namespace Kestrune {

class AirDrop;
class NotchSettings;
class Thumbnails;
class Workspace;
struct Platform;

/// What the tools' views have around them beside their own model: the time, the settings, and the ways out of
/// the notch. It knows no tool. Main thread only.
class NotchSurroundings : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("NotchKit/AirDrop.h")
    Q_MOC_INCLUDE("NotchKit/NotchSettings.h")
    Q_PROPERTY(Kestrune::NotchSettings *settings READ settings CONSTANT)
    /// Sends files to the user's other devices.
    Q_PROPERTY(Kestrune::AirDrop *airDrop READ airDrop CONSTANT)
    /// The current time, updated every second while the hub runs. Not bindable for the views: a view's
    /// binding keeps a bindable dependency for good, and would wake each second while it is off screen.
    Q_PROPERTY(QDateTime now READ now NOTIFY nowChanged)

public:
    /// All outlive the object.
    NotchSurroundings(NotchSettings &settings, const Platform &platform, AirDrop &airDrop);

    NotchSettings *settings() const { return &m_settings; }
    AirDrop *airDrop() const { return &m_airDrop; }
    Thumbnails &thumbnails() const { return m_thumbnails; }
    QDateTime now() const { return m_now; }

    /// Asks the clock.
    void refreshNow() { m_now = m_clock.now(); }

    /// Opens a web page.
    void openUrl(const QUrl &url);

    /// Opens the privacy page of the desktop's settings at `anchor` ("Privacy_Calendars"). An anchor that
    /// makes no valid address stops the program.
    Q_INVOKABLE void openPrivacy(const QString &anchor);

    /// Closes every notch, for example after a file was opened.
    Q_INVOKABLE void collapse() const;

    std::function<void()> collapseAll; ///< Set by the controller.

Q_SIGNALS:
    void nowChanged();

private:
    NotchSettings &m_settings;
    AirDrop &m_airDrop;
    Clock &m_clock;
    Workspace &m_workspace;
    Thumbnails &m_thumbnails;
    Q_OBJECT_BINDABLE_PROPERTY(NotchSurroundings, QDateTime, m_now, &NotchSurroundings::nowChanged)
};

} // namespace Kestrune
