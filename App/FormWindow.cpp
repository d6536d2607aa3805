#include "FormWindow.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QTimer>

#include <malloc.h>

namespace Kestrune {

FormWindow::FormWindow(QQmlEngine &engine, const QString &view, const QVariantMap &properties)
    : m_engine(engine)
    , m_view(view)
    , m_properties(properties)
{}

FormWindow::~FormWindow()
{
    if (m_window)
        m_window->disconnect(); // it closes while it is deleted, and must not be given up a second time
    delete m_window;
}

void FormWindow::open()
{
    if (!m_window)
        make();
    m_window->show();
    m_window->raise();
    m_window->requestActivate();
}

void FormWindow::make()
{
    QQmlComponent component(&m_engine, QUrl(QStringLiteral("qrc:/Kestrune/Views/%1.qml").arg(m_view)));
    m_window = qobject_cast<QQuickWindow *>(component.createWithInitialProperties(m_properties));
    if (!m_window)
        qFatal("the window %s cannot be made: %s", qPrintable(m_view), qPrintable(component.errorString()));
    QObject::connect(m_window, &QWindow::visibleChanged, m_window, [this](bool visible) {
        if (!visible)
            giveUp();
    });
}

void FormWindow::giveUp()
{
    // What was compiled for it and what it filled goes with it: the program stays for the day.
    QObject::connect(m_window, &QObject::destroyed, &m_engine, [this] {
        QTimer::singleShot(0, &m_engine, [this] {
            m_engine.collectGarbage();
            m_engine.trimComponentCache();
            malloc_trim(0);
        });
    });
    m_window->deleteLater();
    m_window.clear();
}

} // namespace Kestrune
