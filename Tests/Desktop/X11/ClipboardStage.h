#pragma once

#include "Desktop/PasteboardAnswers.h"
#include "Desktop/X11/X11Pasteboard.h"
#include "EndToEnd/VirtualDisplay.h"

#include <functional>
#include <memory>
#include <vector>

/// A virtual display, the adapter on it, and the programs that it exchanges with.
struct ClipboardStage
{
    ClipboardStage();

    /// A new adapter, and none of the programs.
    void reset();

    /// Each returns once the adapter has seen the copy that follows, which takes no more than `limit`
    /// milliseconds.
    bool copied(const std::function<bool()> &copy, qint64 limit = 60'000);
    bool startRogue(const QStringList &arguments);
    bool copy(const QString &client, const QString &type, const QByteArray &bytes);

    /// Returns once the content is the display's.
    void write(const Kestrune::PasteboardContent &content);

    /// What a program ("xclip", "qt", "gtk") gets when it pastes.
    QByteArray paste(const QString &client, const QString &type);

    bool start(const QString &program, const QStringList &arguments);

    /// Types keys into the window of that title.
    bool type(const QString &window, const QStringList &keys);

    QString file(const QString &name, const QByteArray &bytes);
    QString path(const QString &name) const { return m_home.filePath(name); }

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    std::unique_ptr<VirtualDisplay> display;
    std::unique_ptr<Kestrune::X11Pasteboard> pasteboard;
    std::vector<std::unique_ptr<ChildProcess>> programs; ///< The last one started is the last here.

private:
    QTemporaryDir m_home;
};
