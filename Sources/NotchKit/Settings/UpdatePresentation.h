#pragma once

#include "NotchKit/Updates/Updater.h"

#include <QPointer>
#include <QtQml/qqmlregistration.h>

namespace Kestrune {

/// The words and the button of the update window, worked out from the updater.
class UpdatePresentation : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Kestrune::Updater *updater READ updater WRITE setUpdater REQUIRED)
    /// The name of the symbol beside the heading; empty while something is under way.
    Q_PROPERTY(QString symbol READ symbol NOTIFY changed)
    Q_PROPERTY(QString heading READ heading NOTIFY changed)
    Q_PROPERTY(QString body READ body NOTIFY changed)
    /// What is new in the release that the window is about; empty where there is none.
    Q_PROPERTY(QString notes READ notes NOTIFY changed)
    /// The title of what can be done now; empty for nothing.
    Q_PROPERTY(QString action READ action NOTIFY changed)
    Q_PROPERTY(QString dismissal READ dismissal NOTIFY changed)

public:
    using QObject::QObject;

    Updater *updater() const { return m_updater; }
    void setUpdater(Updater *updater);

    QString symbol() const;
    QString heading() const;
    QString body() const;
    QString notes() const;
    QString action() const;
    QString dismissal() const;

    /// Does what `action` says.
    Q_INVOKABLE void act();

Q_SIGNALS:
    void changed();

private:
    UpdateStatus status() const;

    QPointer<Updater> m_updater;
};

} // namespace Kestrune
