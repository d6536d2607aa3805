#pragma once

#include "NotchKit/Platform/StatusItem.h"

#include <QObject>

namespace Kestrune {

class AppState;
class Updater;

/// Keeps the status item's menu as the application's state wants it. Main thread only.
class AppMenu : public QObject
{
    Q_OBJECT

public:
    /// All outlive the object.
    AppMenu(AppState &app, Updater &updater, StatusItem &item, QObject *parent = nullptr);

private:
    void update();
    QList<StatusMenuEntry> entries() const;

    AppState &m_app;
    Updater &m_updater;
    StatusItem &m_item;
};

} // namespace Kestrune
