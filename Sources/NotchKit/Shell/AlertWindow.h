#pragma once

#include <QPointer>
#include <QString>
#include <QWindow>

class QQmlEngine;

namespace Kestrune {

class Appearance;

/// One modal alert at a time, in front of all windows, with an OK button.
class AlertWindow
{
public:
    /// Both outlive the object.
    AlertWindow(QQmlEngine &engine, Appearance &appearance);
    ~AlertWindow();

    /// Shows the alert, or brings it to the front when it is on screen already.
    void show(const QString &message, const QString &details);

private:
    QQmlEngine &m_engine;
    Appearance &m_appearance;
    QPointer<QWindow> m_window;
};

} // namespace Kestrune
