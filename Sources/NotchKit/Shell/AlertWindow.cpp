#include "AlertWindow.h"

#include "NotchKit/Platform/Appearance.h"

#include <QQmlComponent>
#include <QQmlEngine>

namespace Kestrune {

AlertWindow::AlertWindow(QQmlEngine &engine, Appearance &appearance)
    : m_engine(engine)
    , m_appearance(appearance)
{}

AlertWindow::~AlertWindow() { delete m_window; }

void AlertWindow::show(const QString &message, const QString &details)
{
    if (!m_window) {
        QQmlComponent component(&m_engine, QUrl(QStringLiteral("qrc:/Kestrune/Views/PausedAlert.qml")));
        m_window = qobject_cast<QWindow *>(component.createWithInitialProperties(
            {{QStringLiteral("message"), message},
             {QStringLiteral("details"), details},
             {QStringLiteral("appearance"), QVariant::fromValue(&m_appearance)}}));
        if (!m_window)
            qFatal("the alert cannot be made: %s", qPrintable(component.errorString()));
        QObject::connect(m_window, &QWindow::visibleChanged, m_window,
                         [window = m_window.data()](bool visible) {
                             if (!visible)
                                 window->deleteLater();
                         });
    }
    m_window->show();
    m_window->raise();
    m_window->requestActivate();
}

} // namespace Kestrune
