#pragma once

#include <QAbstractListModel>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

namespace Kestrune {

/// A list property of a model as rows that keep their identity: when the list changes, rows are moved,
/// inserted and removed as needed instead of all being made anew. Delegates get an element as `modelData`.
class KeyedListModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QObject *source READ source WRITE setSource NOTIFY sourceChanged)
    /// The name of the list property, which has a notify signal; its elements are gadgets.
    Q_PROPERTY(QString list MEMBER m_list WRITE setList NOTIFY sourceChanged)
    /// The name of the element's property that tells one from another.
    Q_PROPERTY(QString key MEMBER m_key NOTIFY sourceChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    using QAbstractListModel::QAbstractListModel;

    QObject *source() const { return m_source; }
    void setSource(QObject *source);
    void setList(const QString &list);
    int count() const { return static_cast<int>(m_rows.size()); }

    /// The element in that row; nothing outside. Unlike a view's items never behind the list.
    Q_INVOKABLE QVariant at(int row) const { return m_rows.value(row); }

    /// The row of that element, -1 when it is in none.
    Q_INVOKABLE int indexOf(const QVariant &element) const
    {
        return static_cast<int>(m_rows.indexOf(element));
    }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void sourceChanged();
    void countChanged();

private Q_SLOTS:
    void update();

private:
    void watch();
    QVariant keyOf(const QVariant &row) const;
    qsizetype find(const QVariant &key, const QVariantList &rows, qsizetype from) const;
    void removeMissing(const QVariantList &wanted);
    void place(qsizetype at, const QVariant &row);

    QPointer<QObject> m_source;
    QString m_list;
    QString m_key = QStringLiteral("id");
    QVariantList m_rows;
};

} // namespace Kestrune
