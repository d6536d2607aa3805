#include "PrompterRemote.h"

#include "AppState.h"
#include "Log.h"
#include "NotchKit/Tools/Teleprompter/TeleprompterModel.h"

#include <QStringList>

#include <algorithm>

namespace Kestrune {

namespace {

constexpr quint32 kKey = 35;                      // P
constexpr quint32 kModifiers = 256 + 2048 + 4096; // command, option, control

bool takesNumber(const QString &action)
{
    return action == QLatin1String("speed") || action == QLatin1String("position");
}

bool isChange(const QString &number)
{
    return number.startsWith(QLatin1Char('+')) || number.startsWith(QLatin1Char('-'));
}

} // namespace

std::optional<QString> PrompterRemote::faultOf(const QString &action, const QString &number)
{
    if (takesNumber(action)) {
        bool isNumber = false;
        const double value = number.toDouble(&isNumber);
        const bool fits = isNumber && std::abs(value) <= 1000;
        return fits ? std::nullopt
                    : std::optional(
                          QStringLiteral("%1 takes a number, or one with a sign to add").arg(action));
    }
    static const QStringList plain{QStringLiteral("play"), QStringLiteral("pause"), QStringLiteral("toggle")};
    if (!plain.contains(action))
        return QStringLiteral("prompter takes play, pause, toggle, speed NUMBER or position PERCENT");
    return number.isEmpty() ? std::nullopt
                            : std::optional(QStringLiteral("%1 takes no argument").arg(action));
}

std::optional<QString> PrompterRemote::carryOut(const QString &action, const QString &number)
{
    if (auto fault = faultOf(action, number))
        return fault;
    TeleprompterModel &prompter = *m_app.services().model<TeleprompterModel>();
    if (action == QLatin1String("speed"))
        return setSpeed(number);
    if (action == QLatin1String("position"))
        setPosition(number);
    else if (action == QLatin1String("play") || (action == QLatin1String("toggle") && !prompter.playing()))
        return play();
    else
        prompter.setPlaying(false);
    return std::nullopt;
}

std::optional<QString> PrompterRemote::play()
{
    const NotchServices &services = m_app.services();
    if (m_app.settings().prompterText().isEmpty())
        return QStringLiteral("there is no script");
    if (services.visibleTool() != NotchTool::teleprompter)
        m_app.showNotch(NotchTool::teleprompter);
    if (services.visibleTool() != NotchTool::teleprompter)
        return QStringLiteral("the teleprompter cannot be shown now");
    services.model<TeleprompterModel>()->setPlaying(true);
    return std::nullopt;
}

std::optional<QString> PrompterRemote::setSpeed(const QString &number)
{
    const SettingRange range = NotchSettings::kPrompterSpeeds;
    const double value = number.toDouble();
    if (!isChange(number) && (value < range.least || value > range.most))
        return QStringLiteral("the speed is a number from %1 to %2").arg(range.least).arg(range.most);
    const double wanted = isChange(number) ? m_app.settings().prompterSpeed() + value : value;
    m_app.settings().setPrompterSpeed(std::clamp(wanted, range.least, range.most));
    return std::nullopt;
}

void PrompterRemote::setPosition(const QString &number)
{
    TeleprompterModel &prompter = *m_app.services().model<TeleprompterModel>();
    const double before = isChange(number) ? prompter.position().value_or(0) : 0;
    prompter.moveTo(before + number.toDouble() / 100);
}

void PrompterRemote::applyShortcut()
{
    const bool wanted = m_app.settings().prompterShortcutEnabled() && m_app.controller().isRunning();
    if (wanted == bool(m_hotkey))
        return;
    m_hotkey.reset();
    if (!wanted)
        return;
    const auto toggle = [this] {
        if (const auto fault = carryOut(QStringLiteral("toggle"), {}))
            qCInfo(appLog, "the teleprompter's key: %s", qUtf8Printable(*fault));
    };
    m_hotkey = GlobalHotkey::make(
        m_hotKeys, kKey, kModifiers, toggle, [](const HotKeyBinding &) {}, HotKeyPurpose::prompter);
    if (!m_hotkey)
        qCWarning(appLog, "another program has the teleprompter's keys");
}

} // namespace Kestrune
