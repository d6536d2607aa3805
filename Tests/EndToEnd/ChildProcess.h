#pragma once

#include <QProcess>

/// A process that ends with the test, even when the test crashes.
class ChildProcess : public QProcess
{
    Q_OBJECT

public:
    explicit ChildProcess(const QProcessEnvironment &environment);
    ~ChildProcess() override;

    /// Starts `program` and says whether it could be started; a missing program is named in the test's log.
    bool launch(const QString &program, const QStringList &arguments = {});

    /// Asks the process to end and insists after two seconds.
    void stop();

    /// Ends the process as a crash would: no handler of its own runs.
    void killNow();
};
