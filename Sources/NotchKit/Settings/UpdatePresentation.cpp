#include "UpdatePresentation.h"

#include "NotchKit/NotchStrings.h"

#include <QCoreApplication>

namespace Kestrune {

namespace {

using Phase = UpdateStatus::Phase;

QString naming(const char *english, const QString &version) { return notchStrings(english).arg(version); }

} // namespace

void UpdatePresentation::setUpdater(Updater *updater)
{
    m_updater = updater;
    connect(updater, &Updater::changed, this, &UpdatePresentation::changed);
    Q_EMIT changed();
}

/// Bindings are worked out before the updater is given, too.
UpdateStatus UpdatePresentation::status() const { return m_updater ? m_updater->status() : UpdateStatus(); }

QString UpdatePresentation::symbol() const
{
    switch (status().phase) {
    case Phase::idle:
    case Phase::checking:
    case Phase::fetching:
        return {};
    case Phase::current:
        return QStringLiteral("checkmark.circle.fill");
    case Phase::available:
    case Phase::ready:
        return QStringLiteral("tray.and.arrow.down.fill");
    case Phase::failed:
        return QStringLiteral("exclamationmark.circle.fill");
    }
    return {};
}

QString UpdatePresentation::heading() const
{
    const UpdateStatus now = status();
    switch (now.phase) {
    case Phase::idle:
    case Phase::checking:
        return notchStrings(QT_TRANSLATE_NOOP("notch", "Checking for updates…"));
    case Phase::current:
        return notchStrings(QT_TRANSLATE_NOOP("notch", "Kestrune is up to date"));
    case Phase::available:
        //: %1 is a version, such as 1.2.0.
        return naming(QT_TRANSLATE_NOOP("notch", "Kestrune %1 is available"), now.version);
    case Phase::fetching:
        //: %1 is a version, such as 1.2.0.
        return naming(QT_TRANSLATE_NOOP("notch", "Downloading Kestrune %1…"), now.version);
    case Phase::ready:
        //: %1 is a version, such as 1.2.0.
        return naming(QT_TRANSLATE_NOOP("notch", "Kestrune %1 is ready to install"), now.version);
    case Phase::failed:
        return notchStrings(QT_TRANSLATE_NOOP("notch", "Kestrune could not be updated"));
    }
    return {};
}

QString UpdatePresentation::body() const
{
    const UpdateStatus now = status();
    const QString own = QCoreApplication::applicationVersion();
    switch (now.phase) {
    case Phase::idle:
    case Phase::checking:
        return {};
    case Phase::current:
        //: %1 is a version, such as 1.2.0.
        return naming(QT_TRANSLATE_NOOP("notch", "Version %1 is the newest one."), own);
    case Phase::available:
    case Phase::fetching:
        //: %1 is a version, such as 1.2.0.
        return naming(QT_TRANSLATE_NOOP("notch", "You have version %1."), own);
    case Phase::ready:
        return notchStrings(QT_TRANSLATE_NOOP("notch", "It was checked: it comes from Kestrune’s makers."));
    case Phase::failed:
        return now.message;
    }
    return {};
}

QString UpdatePresentation::notes() const
{
    const UpdateStatus now = status();
    const bool isAboutRelease =
        now.phase == Phase::available || now.phase == Phase::fetching || now.phase == Phase::ready;
    return isAboutRelease ? now.notes : QString();
}

QString UpdatePresentation::action() const
{
    switch (status().phase) {
    case Phase::available:
        //: A verb, on a button.
        return notchStrings(QT_TRANSLATE_NOOP("notch", "Download"));
    case Phase::ready:
        return notchStrings(QT_TRANSLATE_NOOP("notch", "Install…"));
    case Phase::failed:
        return notchStrings(QT_TRANSLATE_NOOP("notch", "Try Again"));
    default:
        return {};
    }
}

QString UpdatePresentation::dismissal() const
{
    const Phase phase = status().phase;
    const bool isForLater = phase == Phase::available || phase == Phase::ready;
    //: A button that closes the window of an update.
    return isForLater ? notchStrings(QT_TRANSLATE_NOOP("notch", "Later"))
                      : notchStrings(QT_TRANSLATE_NOOP("notch", "Close"));
}

void UpdatePresentation::act()
{
    switch (status().phase) {
    case Phase::available:
        m_updater->fetchUpdate();
        break;
    case Phase::ready:
        m_updater->installUpdate();
        break;
    case Phase::failed:
        m_updater->checkForUpdates();
        break;
    default:
        break;
    }
}

} // namespace Kestrune
