#pragma once

#include "Desktop/DataControl/DataControlPasteboard.h"
#include "Desktop/PasteboardAnswers.h"
#include "EndToEnd/ChildProcess.h"

/// A compositor without a screen, and programs in its session.
struct Compositor
{
    /// Starts sway, or that program of the tests.
    explicit Compositor(const QString &program = u"sway"_s, const QStringList &arguments = {});

    /// The path of its socket; empty when it did not start.
    const QByteArray &display() const { return m_display; }

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    std::unique_ptr<ChildProcess> process;

private:
    QTemporaryDir m_folder; ///< The session's, and everybody's home.
    QByteArray m_display;
};

/// The adapter in such a session, and the programs that it exchanges with.
struct CompositorStage
{
    explicit CompositorStage(const QString &program = u"sway"_s, const QStringList &arguments = {});

    /// A new adapter, and none of the programs.
    void reset();

    /// Each returns once the adapter has seen the copy that follows.
    bool copied(const std::function<bool()> &copy);
    bool startRogue(const QStringList &arguments);
    bool copy(const QString &type, const QByteArray &bytes);

    /// Returns once the content is the session's.
    void write(const PasteboardContent &content);

    /// What a program gets when it pastes.
    QByteArray paste(const QString &type);

    /// Starts one of the tests' own programs and waits for its first word.
    bool startReader(const QStringList &arguments);

    Compositor compositor;
    std::unique_ptr<DataControlPasteboard> pasteboard;
    std::vector<std::unique_ptr<ChildProcess>> programs; ///< The last one started is the last here.

private:
    ChildProcess &add();

    QTemporaryDir m_home;
};
