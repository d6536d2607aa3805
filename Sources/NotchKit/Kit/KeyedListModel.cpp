#include "KeyedListModel.h"

#include <QMetaProperty>

namespace Kestrune {

void KeyedListModel::setSource(QObject *source)
{
    if (m_source == source)
        return;
    if (m_source)
        m_source->disconnect(this);
    m_source = source;
    watch();
}

void KeyedListModel::setList(const QString &list)
{
    m_list = list;
    watch();
}

void KeyedListModel::watch()
{
    Q_EMIT sourceChanged();
    if (!m_source || m_list.isEmpty())
        return;
    const QMetaObject &type = *m_source->metaObject();
    const QMetaProperty property = type.property(type.indexOfProperty(m_list.toLatin1().constData()));
    const QMetaMethod updated = metaObject()->method(metaObject()->indexOfSlot("update()"));
    connect(m_source, property.notifySignal(), this, updated, Qt::UniqueConnection);
    update();
}

int KeyedListModel::rowCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : count(); }

QVariant KeyedListModel::data(const QModelIndex &index, int role) const
{
    return role == Qt::UserRole ? m_rows.value(index.row()) : QVariant();
}

QHash<int, QByteArray> KeyedListModel::roleNames() const { return {{Qt::UserRole, "modelData"}}; }

QVariant KeyedListModel::keyOf(const QVariant &row) const
{
    const QMetaObject *type = row.metaType().metaObject();
    return type->property(type->indexOfProperty(m_key.toLatin1().constData())).readOnGadget(row.constData());
}

qsizetype KeyedListModel::find(const QVariant &key, const QVariantList &rows, qsizetype from) const
{
    for (qsizetype i = from; i < rows.size(); ++i) {
        if (keyOf(rows.at(i)) == key)
            return i;
    }
    return -1;
}

void KeyedListModel::removeMissing(const QVariantList &wanted)
{
    for (int i = count() - 1; i >= 0; --i) {
        if (find(keyOf(m_rows.at(i)), wanted, 0) >= 0)
            continue;
        beginRemoveRows({}, i, i);
        m_rows.removeAt(i);
        endRemoveRows();
    }
}

void KeyedListModel::place(qsizetype at, const QVariant &row)
{
    const int to = static_cast<int>(at);
    const int from = static_cast<int>(find(keyOf(row), m_rows, at));
    if (from < 0) {
        beginInsertRows({}, to, to);
        m_rows.insert(at, row);
        endInsertRows();
        return;
    }
    if (from != to) {
        beginMoveRows({}, from, from, {}, to);
        m_rows.move(from, to);
        endMoveRows();
    }
    if (m_rows.at(at) == row)
        return;
    m_rows[at] = row;
    Q_EMIT dataChanged(index(to), index(to));
}

void KeyedListModel::update()
{
    const int before = count();
    const auto wanted = m_source->property(m_list.toLatin1().constData()).value<QVariantList>();
    removeMissing(wanted);
    for (qsizetype i = 0; i < wanted.size(); ++i)
        place(i, wanted.at(i));
    if (count() > wanted.size()) {
        beginRemoveRows({}, static_cast<int>(wanted.size()), count() - 1);
        m_rows.resize(wanted.size());
        endRemoveRows();
    }
    if (count() != before)
        Q_EMIT countChanged();
}

} // namespace Kestrune
