#pragma once

#include <QAbstractNativeEventFilter>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>
#include <QTimer>

#include <xcb/xcb.h>

namespace Kestrune {

/// How much of the displays' top edges the desktop's own panels keep for themselves: by the work areas that
/// the window manager names for each monitor (_GTK_WORKAREAS), else by what the panels ask for
/// (_NET_WM_STRUT_PARTIAL, _NET_WM_STRUT), and for a guest on a single display by _NET_WORKAREA. Main thread
/// only.
class X11TopPanels : public QObject, private QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    explicit X11TopPanels(QObject *parent = nullptr);

    /// At the middle of each display's top edge, in points, by its name; displays without a panel are not
    /// named.
    const QHash<QString, double> &heights() const { return m_heights; }

    void readSoon() { m_settle.start(); }

Q_SIGNALS:
    void changed(const QHash<QString, double> &heights);

private:
    bool nativeEventFilter(const QByteArray &type, void *message, qintptr *result) override;
    void read();

    QSet<xcb_atom_t> m_telling; ///< The properties whose changes can change the heights.
    QTimer m_settle;            ///< One change comes as a burst of events.
    QHash<QString, double> m_heights;
};

} // namespace Kestrune
