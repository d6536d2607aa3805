#include "EndToEnd/ChildProcess.h"

#include <QTest>

#include <sys/prctl.h>

#include <csignal>

ChildProcess::ChildProcess(const QProcessEnvironment &environment)
{
    setProcessEnvironment(environment);
    setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

ChildProcess::~ChildProcess() { stop(); }

bool ChildProcess::launch(const QString &program, const QStringList &arguments)
{
    start(program, arguments);
    if (waitForStarted())
        return true;
    qWarning("%s did not start: %s", qPrintable(program), qPrintable(errorString()));
    return false;
}

void ChildProcess::stop()
{
    if (state() == NotRunning)
        return;
    terminate();
    if (!waitForFinished(10000))
        killNow();
}

void ChildProcess::killNow()
{
    kill();
    waitForFinished();
}
