#pragma once

#include "BusMenu.h"

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QDBusServiceWatcher>
#include <QImage>

#include <functional>
#include <memory>

namespace Kestrune {

/// What a panel shows of the item: the object on the bus that it reads. It has a menu and nothing else, so
/// that there is no call to activate it: panels open the menu then.
class StatusItemFace : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category SCRIPTABLE true)
    Q_PROPERTY(QString Id READ id SCRIPTABLE true)
    Q_PROPERTY(QString Title READ title SCRIPTABLE true)
    Q_PROPERTY(QString Status READ status SCRIPTABLE true)
    Q_PROPERTY(QString IconName READ iconName SCRIPTABLE true)
    Q_PROPERTY(Kestrune::WirePixmaps IconPixmap READ iconPixmap SCRIPTABLE true)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu SCRIPTABLE true)
    Q_PROPERTY(QDBusObjectPath Menu READ menu SCRIPTABLE true)

public:
    /// `icons`: the same symbol in several sizes.
    StatusItemFace(const QString &title, const QList<QImage> &icons);

    static QString category() { return QStringLiteral("ApplicationStatus"); }
    QString id() const { return m_title.toLower(); }
    QString title() const { return m_title; }
    static QString status() { return QStringLiteral("Active"); }
    static QString iconName() { return {}; }
    WirePixmaps iconPixmap() const { return m_icons; }
    static bool itemIsMenu() { return true; }
    static QDBusObjectPath menu();

private:
    QString m_title;
    WirePixmaps m_icons;
};

/// The status item on the session bus. It is there while a watcher of such items is, which is asked without
/// waiting and followed.
class BusStatusItem : public StatusItem
{
public:
    using Icons = std::function<QList<QImage>()>;

    /// `icons` is called once, when there is somebody to show them.
    BusStatusItem(const QDBusConnection &bus, const QString &title, Icons icons);
    ~BusStatusItem() override;
    Q_DISABLE_COPY_MOVE(BusStatusItem)

    void setMenu(const QList<StatusMenuEntry> &menu) override { m_menu.setEntries(menu); }

private:
    void appear();
    void disappear();

    QDBusConnection m_bus;
    QString m_title;
    Icons m_icons;
    BusMenu m_menu;
    std::unique_ptr<StatusItemFace> m_face;
    QDBusServiceWatcher m_watcher;
};

} // namespace Kestrune
