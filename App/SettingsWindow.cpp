#include "SettingsWindow.h"

#include "AppState.h"
#include "NotchKit/Platform/Appearance.h"
#include "NotchKit/Platform/Updater.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QTimer>

#include <malloc.h>

namespace Kestrune {

SettingsWindow::SettingsWindow(QQmlEngine &engine, AppState &app, Updater &updater, Appearance &appearance)
    : m_engine(engine)
    , m_app(app)
    , m_updater(updater)
    , m_appearance(appearance)
{}

SettingsWindow::~SettingsWindow()
{
    if (m_window)
        m_window->disconnect(); // It hides as it goes, when it is no window of ours any more.
    delete m_window;
}

void SettingsWindow::open()
{
    if (!m_window)
        make();
    m_window->show();
    m_window->raise();
    m_window->requestActivate();
}

void SettingsWindow::make()
{
    QQmlComponent component(&m_engine, QUrl(QStringLiteral("qrc:/Kestrune/Views/SettingsWindow.qml")));
    m_window = qobject_cast<QQuickWindow *>(component.createWithInitialProperties(
        {{QStringLiteral("settings"), QVariant::fromValue(&m_app.settings())},
         {QStringLiteral("updater"), QVariant::fromValue(&m_updater)},
         {QStringLiteral("appearance"), QVariant::fromValue(&m_appearance)},
         {QStringLiteral("app"), QVariant::fromValue<QObject *>(&m_app)}}));
    if (!m_window)
        qFatal("the settings window cannot be made: %s", qPrintable(component.errorString()));
    QObject::connect(m_window, &QWindow::visibleChanged, m_window, [this](bool visible) {
        if (!visible)
            giveUp();
    });
}

void SettingsWindow::giveUp()
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
