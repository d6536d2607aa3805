#include "ControlService.h"

#include "AppState.h"
#include "StatusReport.h"

#include <QCoreApplication>

#include <utility>

namespace Kestrune {

namespace {

constexpr qsizetype kLongestName = 100; // Characters of a tool or a key.
constexpr qsizetype kLongestText = 1'048'576;
constexpr qsizetype kLongestFault = 1000; // It may quote what it is about.
constexpr std::size_t kMostHeld = 64;

} // namespace

ControlService::ControlService(QObject *parent)
    : QObject(parent)
{}

void ControlService::Toggle()
{
    answer([](const Program &program) {
        program.app.toggle();
        return Answer();
    });
}

void ControlService::Open(const QString &tool)
{
    if (!fits(tool, kLongestName))
        return;
    answer([tool](const Program &program) {
        program.app.showNotch(fromRawValue<NotchTool>(tool), true);
        return Answer();
    });
}

void ControlService::Close()
{
    answer([](const Program &program) {
        program.app.controller().collapseAll();
        return Answer();
    });
}

void ControlService::OpenSettings()
{
    answer([](const Program &program) {
        program.app.openSettings();
        return Answer();
    });
}

void ControlService::Prompter(const QString &action, const QString &number)
{
    if (!fits(action, kLongestName) || !fits(number, kLongestName))
        return;
    answer([action, number](const Program &program) {
        return Answer{{}, program.app.prompter().carryOut(action, number)};
    });
}

void ControlService::Quit()
{
    answer([](const Program &) {
        QCoreApplication::quit();
        return Answer();
    });
}

void ControlService::Reopen(const QString &tool)
{
    if (!fits(tool, kLongestName))
        return;
    answer([tool](const Program &program) {
        program.app.showNotch(fromRawValue<NotchTool>(tool));
        return Answer();
    });
}

QString ControlService::Status()
{
    return answer([](const Program &program) {
        return Answer{QString::fromUtf8(statusReport(program.app, program.windows)), {}};
    });
}

QString ControlService::GetSetting(const QString &key)
{
    if (!fits(key, kLongestName))
        return {};
    return answer([key](const Program &program) {
        const auto text = program.settings.get(key);
        return text ? Answer{text, {}} : Answer{{}, QStringLiteral("no setting is named %1").arg(key)};
    });
}

void ControlService::SetSetting(const QString &key, const QString &text)
{
    if (!fits(key, kLongestName) || !fits(text, kLongestText))
        return;
    answer([key, text](const Program &program) {
        auto wrong = program.settings.set(key, text);
        const bool taken = program.app.controller().hotKeyBinding().state == HotKeyBinding::State::taken;
        if (!wrong && taken && key == QLatin1String("shortcut"))
            wrong = QStringLiteral("kept, but another program has these keys");
        return Answer{{}, wrong};
    });
}

void ControlService::ResetSetting(const QString &key)
{
    if (!fits(key, kLongestName))
        return;
    answer([key](const Program &program) { return Answer{{}, program.settings.reset(key)}; });
}

void ControlService::serve(const Program &program)
{
    m_program.emplace(program);
    for (const Held &held : std::exchange(m_held, {})) {
        const Answer answer = held.work(program);
        if (answer.fault)
            held.bus.send(
                held.call.createErrorReply(QDBusError::InvalidArgs, answer.fault->left(kLongestFault)));
        else
            held.bus.send(held.call.createReply(answer.text ? QVariantList{*answer.text} : QVariantList()));
    }
}

QString ControlService::answer(const Work &work)
{
    if (m_program) {
        const Answer answer = work(*m_program);
        if (answer.fault)
            refuse(answer.fault->left(kLongestFault));
        return answer.text.value_or(QString());
    }
    if (m_held.size() >= kMostHeld) {
        refuse(QStringLiteral("too many calls wait for the program's start"));
    } else if (calledFromDBus()) {
        setDelayedReply(true);
        m_held.push_back({connection(), message(), work});
    }
    return {};
}

bool ControlService::fits(const QString &argument, qsizetype most) const
{
    if (argument.size() > most)
        refuse(QStringLiteral("an argument is longer than %1 characters").arg(most));
    return argument.size() <= most;
}

void ControlService::refuse(const QString &fault) const
{
    if (calledFromDBus())
        sendErrorReply(QDBusError::InvalidArgs, fault);
}

} // namespace Kestrune
