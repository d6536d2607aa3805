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
    /// The drag is known to carry no files; it is then let pass as well.
    Q_PROPERTY(bool refused READ isRefused WRITE setRefused)

public:
    explicit FileDropArea(QQuickItem *parent = nullptr);

    bool targeted() const { return m_targeted; }
    bool isRefused() const { return m_refused; }
    void setRefused(bool refused);

Q_SIGNALS:
    void targetedChanged();
    /// Such a drag entered or moved; what it carries may be told by now.
    void moved();
    void filesDropped();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void answer(QDropEvent &event);
    void setTargeted(bool targeted);

    bool m_offered = false; ///< The drag that is over the item offers addresses, files or others.
    bool m_refused = false;
    bool m_targeted = false;
};

} // namespace Kestrune
