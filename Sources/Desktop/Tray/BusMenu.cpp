#include "BusMenu.h"

#include <QGuiApplication>
#include <QMetaObject>

#include <algorithm>

namespace Kestrune {

namespace {

constexpr int kMenu = 0;              // The number of the menu itself.
constexpr qsizetype kMostAsked = 256; // Entries or names of one call.

QVariantMap propertiesOf(const StatusMenuEntry &entry)
{
    if (entry.isDivider())
        return {{QStringLiteral("type"), QStringLiteral("separator")}};
    QString label = entry.title;
    label.replace(QLatin1Char('_'), QLatin1String("__")); // One alone would mark an access key.
    QVariantMap properties{{QStringLiteral("label"), label}, {QStringLiteral("enabled"), entry.enabled}};
    if (!entry.shortcut.isEmpty())
        properties.insert(QStringLiteral("shortcut"),
                          QVariant::fromValue(QList<QStringList>{entry.shortcut}));
    return properties;
}

} // namespace

BusMenu::BusMenu(QObject *parent)
    : QObject(parent)
{
    registerMenuWire();
}

void BusMenu::setEntries(const QList<StatusMenuEntry> &entries)
{
    m_first += static_cast<int>(m_entries.size());
    m_entries = entries;
    ++m_revision;
    Q_EMIT LayoutUpdated(m_revision, kMenu);
}

QString BusMenu::textDirection()
{
    return QGuiApplication::isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr");
}

const StatusMenuEntry *BusMenu::find(int id) const
{
    const qsizetype place = qsizetype(id) - m_first;
    return place >= 0 && place < m_entries.size() ? &m_entries.at(place) : nullptr;
}

bool BusMenu::exists(int id) const { return id == kMenu || find(id); }

QVariantMap BusMenu::properties(int id, const QStringList &names) const
{
    const StatusMenuEntry *entry = find(id);
    QVariantMap properties =
        entry ? propertiesOf(*entry)
              : QVariantMap{{QStringLiteral("children-display"), QStringLiteral("submenu")}};
    if (!names.isEmpty())
        properties.removeIf([&](const auto &property) { return !names.contains(property.key()); });
    return properties;
}

bool BusMenu::isTooMuch(qsizetype asked)
{
    if (asked <= kMostAsked)
        return false;
    sendErrorReply(QDBusError::LimitsExceeded, QStringLiteral("the call is about too many entries"));
    return true;
}

uint BusMenu::GetLayout(int parent, int depth, const QStringList &names, WireLayout &layout)
{
    if (isTooMuch(names.size()))
        return 0;
    if (!exists(parent)) {
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("no entry has this number"));
        return 0;
    }
    layout = {parent, properties(parent, names), {}};
    if (parent == kMenu && depth != 0) {
        for (int i = 0; i < m_entries.size(); ++i)
            layout.children.append({m_first + i, properties(m_first + i, names), {}});
    }
    return m_revision;
}

QList<WireProperties> BusMenu::GetGroupProperties(const QList<int> &ids, const QStringList &names)
{
    if (isTooMuch(std::max(ids.size(), names.size())))
        return {};
    QList<int> wanted = ids;
    for (int i = 0; ids.isEmpty() && i < m_entries.size(); ++i) // None given: all are meant.
        wanted.append(m_first + i);
    QList<WireProperties> entries;
    for (const int id : std::as_const(wanted)) {
        if (exists(id))
            entries.append({id, properties(id, names)});
    }
    return entries;
}

QDBusVariant BusMenu::GetProperty(int id, const QString &name)
{
    const QVariant value = exists(id) ? properties(id, {name}).value(name) : QVariant();
    if (!value.isValid())
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("there is no such entry or property"));
    return QDBusVariant(value.isValid() ? value : QVariant(false));
}

bool BusMenu::handle(int id, const QString &kind)
{
    const StatusMenuEntry *entry = find(id);
    if (entry && kind == QLatin1String("clicked") && entry->enabled && entry->action) {
        // The panel gets its answer before anything happens; the menu may be another by then.
        QMetaObject::invokeMethod(this, entry->action, Qt::QueuedConnection);
    }
    return exists(id);
}

void BusMenu::Event(int id, const QString &kind, const QDBusVariant & /*data*/, uint /*time*/)
{
    if (!handle(id, kind))
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("no entry has this number"));
}

QList<int> BusMenu::EventGroup(const QList<WireEvent> &events)
{
    if (isTooMuch(events.size()))
        return {};
    QList<int> unknown;
    for (const WireEvent &event : events) {
        if (!handle(event.id, event.kind))
            unknown.append(event.id);
    }
    return unknown;
}

bool BusMenu::AboutToShow(int /*id*/) { return false; }

QList<int> BusMenu::AboutToShowGroup(const QList<int> &ids, QList<int> &errors)
{
    if (isTooMuch(ids.size()))
        return {};
    for (const int id : ids) {
        if (!exists(id))
            errors.append(id);
    }
    return {};
}

} // namespace Kestrune
