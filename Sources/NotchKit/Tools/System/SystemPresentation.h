#pragma once

#include "NotchKit/Tools/System/SystemModel.h"

#include <QPointer>
#include <QtQml/qqmlregistration.h>

namespace Kestrune {

/// One row of the system views.
struct SystemLine
{
    Q_GADGET
    QML_VALUE_TYPE(systemLine)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(QString value MEMBER value)
    Q_PROPERTY(double fraction MEMBER fraction)
    Q_PROPERTY(bool isBattery MEMBER isBattery)

public:
    QString title;
    QString symbol;
    QString value;
    double fraction = 0;
    bool isBattery = false; ///< Little of it is bad, where much of the others is.

    bool operator==(const SystemLine &) const = default;
};

/// The rows of the system pane and of its Home block, worked out from the model.
class SystemPresentation : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Kestrune::SystemModel *model READ model WRITE setModel REQUIRED)
    /// Processor, memory, disk and, where there is one, battery.
    Q_PROPERTY(QList<Kestrune::SystemLine> lines READ lines NOTIFY linesChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    using QObject::QObject;

    SystemModel *model() const { return m_model; }
    void setModel(SystemModel *model);
    const QList<SystemLine> &lines() const { return m_lines; }
    int count() const { return static_cast<int>(m_lines.size()); }

    static QList<SystemLine> describe(const SystemModel &model, const QLocale &locale);

Q_SIGNALS:
    void linesChanged();
    void countChanged();

private:
    void update();

    QPointer<SystemModel> m_model;
    QList<SystemLine> m_lines;
};

} // namespace Kestrune
