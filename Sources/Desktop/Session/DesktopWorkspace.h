#pragma once

#include "Async/Scope.h"
#include "Async/Worker.h"
#include "NotchKit/Platform/Workspace.h"

#include <QDBusConnection>
#include <QObject>

namespace Kestrune {

/// Opens addresses with the desktop's own programs, each started on its own and never waited for.
class DesktopWorkspace : public Workspace
{
public:
    /// `bus`: where the file manager is asked.
    explicit DesktopWorkspace(const QDBusConnection &bus)
        : m_bus(bus)
    {}

    void open(const QUrl &url) override;
    void reveal(const QList<QUrl> &files) override;
    QFuture<bool> hasPictureEditor() override;
    void edit(const QUrl &picture) override;
    QFuture<bool> moveToTrash(const QUrl &file) override;

private:
    QCoro::Task<> startEditor(QUrl picture);

    QDBusConnection m_bus;
    QObject m_answers; ///< Ends the calls that are under way with this object.
    Worker m_entries{"editors"};
    Worker m_trash{"trash"};
    Scope m_edits;
};

} // namespace Kestrune
