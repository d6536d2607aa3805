#pragma once

#include <QPointer>
#include <QQuickWindow>

class QQmlEngine;

namespace Kestrune {

class Appearance;
class AppState;
class Updater;

/// The settings window: made when it is opened, given up when it is closed. Main thread only.
class SettingsWindow
{
public:
    /// All outlive the object.
    SettingsWindow(QQmlEngine &engine, AppState &app, Updater &updater, Appearance &appearance);
    ~SettingsWindow();
    Q_DISABLE_COPY_MOVE(SettingsWindow)

    /// Shows the window, or brings it to the front when it is on screen already.
    void open();

    /// The window while it is open.
    QQuickWindow *window() const { return m_window; }

private:
    void make();
    void giveUp();

    QQmlEngine &m_engine;
    AppState &m_app;
    Updater &m_updater;
    Appearance &m_appearance;
    QPointer<QQuickWindow> m_window;
};

} // namespace Kestrune
