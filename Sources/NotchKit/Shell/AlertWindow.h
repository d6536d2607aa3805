#pragma once

#include <QPointer>
#include <QString>
#include <QWindow>

class QQmlEngine;

namespace Kestrune {

/// One modal alert at a time, in front of all windows, with an OK button.
class AlertWindow
{
public:
    /// `engine` outlives the object.
    explicit AlertWindow(QQmlEngine &engine);
    ~AlertWindow();

    /// Shows the alert, or brings it to the front when it is on screen already.
    void show(const QString &message, const QString &details);

private:
    QQmlEngine &m_engine;
    QPointer<QWindow> m_window;
};

} // namespace Kestrune
