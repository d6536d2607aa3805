#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QTimer>

namespace Kestrune {

/// Where the server's monitors are, of which Points is told. Qt 6.4 reads it too, but at times keeps a
/// display's former place and size for good, depending on when the window manager answers the same change.
class X11Monitors : public QObject, private QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    explicit X11Monitors(QObject *parent = nullptr);
    ~X11Monitors() override;

Q_SIGNALS:
    void changed();

private:
    bool nativeEventFilter(const QByteArray &type, void *message, qintptr *result) override;
    void read();

    uint8_t m_firstEvent = 0; ///< Of the extension; 0 where the server has none that knows monitors.
    QTimer m_settle;          ///< One change comes as a burst of events.
};

} // namespace Kestrune
