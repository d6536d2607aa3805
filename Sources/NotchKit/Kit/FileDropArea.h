#pragma once

#include <QQuickItem>

namespace Kestrune {

/// Takes files that another program drags over the item. It says that some were dropped, and not which: to
/// read them from the event would wait for the other program, and the shelf has already asked for them. A
/// drag that began in this program is let pass.
class FileDropArea : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    /// Such a drag is over the item.
    Q_PROPERTY(bool targeted READ targeted NOTIFY targetedChanged)

public:
    explicit FileDropArea(QQuickItem *parent = nullptr);

    bool targeted() const { return m_targeted; }

Q_SIGNALS:
    void targetedChanged();
    void filesDropped();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void setTargeted(bool targeted);

    bool m_targeted = false;
};

} // namespace Kestrune
