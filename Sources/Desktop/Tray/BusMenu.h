#pragma once

#include "MenuWire.h"
#include "NotchKit/Platform/StatusItem.h"

#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>

namespace Kestrune {

/// A menu as panels read it from the bus: the object behind a status item's menu. Entries are numbered from
/// 1 in their order; 0 is the menu itself. A new menu takes new numbers, so that a late click on an old one
/// meets nothing.
class BusMenu : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version SCRIPTABLE true)
    Q_PROPERTY(QString Status READ status SCRIPTABLE true)
    Q_PROPERTY(QString TextDirection READ textDirection SCRIPTABLE true)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath SCRIPTABLE true)

public:
    explicit BusMenu(QObject *parent = nullptr);

    void setEntries(const QList<StatusMenuEntry> &entries);

    static uint version() { return 3; }
    static QString status() { return QStringLiteral("normal"); }
    static QString textDirection();
    static QStringList iconThemePath() { return {}; }

public Q_SLOTS:
    Q_SCRIPTABLE uint GetLayout(int parent, int depth, const QStringList &names,
                                Kestrune::WireLayout &layout); // NOLINT: the bus reads this name.
    Q_SCRIPTABLE QList<Kestrune::WireProperties> GetGroupProperties(const QList<int> &ids,
                                                                    const QStringList &names);
    Q_SCRIPTABLE QDBusVariant GetProperty(int id, const QString &name);
    Q_SCRIPTABLE void Event(int id, const QString &kind, const QDBusVariant &data, uint time);
    Q_SCRIPTABLE QList<int> EventGroup(const QList<Kestrune::WireEvent> &events);
    Q_SCRIPTABLE bool AboutToShow(int id);
    Q_SCRIPTABLE QList<int> AboutToShowGroup(const QList<int> &ids, QList<int> &errors);

Q_SIGNALS:
    Q_SCRIPTABLE void LayoutUpdated(uint revision, int parent);

private:
    /// Refuses a call that asks for more than a panel would.
    bool isTooMuch(qsizetype asked);
    bool exists(int id) const;
    const StatusMenuEntry *find(int id) const;
    QVariantMap properties(int id, const QStringList &names) const;
    bool handle(int id, const QString &kind);

    QList<StatusMenuEntry> m_entries;
    int m_first = 1; ///< The number of the first entry.
    uint m_revision = 0;
};

} // namespace Kestrune
