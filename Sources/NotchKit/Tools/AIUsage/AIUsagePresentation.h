#pragma once

#include "NotchKit/NotchSettings.h"
#include "NotchKit/NotchSurroundings.h"
#include "NotchKit/Tools/AIUsage/AIUsageModel.h"

#include <QQmlParserStatus>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace Kestrune {

/// One gauge of the AI usage views, with the texts around it.
struct UsageLine
{
    Q_GADGET
    QML_VALUE_TYPE(usageLine)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString brief MEMBER brief)
    Q_PROPERTY(double fraction MEMBER fraction)
    Q_PROPERTY(QString resets MEMBER resets)
    Q_PROPERTY(bool renewed MEMBER renewed)

public:
    QString title;
    QString text;
    QString brief;        ///< The text where there is little room.
    double fraction = 0;  ///< Of the limit; may be more than 1.
    QString resets;       ///< Empty when it is not known.
    bool renewed = false; ///< It has begun anew since its figures, of which `resets` tells the age.

    bool operator==(const UsageLine &) const = default;
};

/// One day's bar.
struct UsageDay
{
    Q_GADGET
    QML_VALUE_TYPE(usageDay)
    Q_PROPERTY(double fraction MEMBER fraction)
    Q_PROPERTY(QString letter MEMBER letter)
    Q_PROPERTY(QString help MEMBER help)

public:
    double fraction = 0; ///< Of the busiest day.
    QString letter;      ///< Of the weekday.
    QString help;        ///< "Monday: 1,000 tokens".

    bool operator==(const UsageDay &) const = default;
};

/// The texts and numbers of the AI usage pane and of its Home block, worked out from the model and the
/// settings. Times are those of the user's clock, in the user's language.
class AIUsagePresentation : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    QML_ELEMENT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(Kestrune::AIUsageModel *model MEMBER m_model REQUIRED)
    Q_PROPERTY(Kestrune::NotchSurroundings *surroundings MEMBER m_surroundings REQUIRED)
    /// Which sources are switched on.
    Q_PROPERTY(bool codexOn READ codexOn NOTIFY changed)
    Q_PROPERTY(bool claudeOn READ claudeOn NOTIFY changed)
    /// Why a source that is on has no figures to show; empty when it has.
    Q_PROPERTY(QString codexHint READ codexHint NOTIFY changed)
    Q_PROPERTY(QString claudeHint READ claudeHint NOTIFY changed)
    /// The windows that Codex told of.
    Q_PROPERTY(QList<Kestrune::UsageLine> codexWindows READ codexWindows NOTIFY changed)
    Q_PROPERTY(QString codexUpdated READ codexUpdated NOTIFY changed)
    Q_PROPERTY(QString claudeTokens READ claudeTokens NOTIFY changed)
    Q_PROPERTY(Kestrune::UsageLine claudeBlock READ claudeBlock NOTIFY changed)
    /// The last seven days, oldest first.
    Q_PROPERTY(QList<Kestrune::UsageDay> days READ days NOTIFY changed)

public:
    using QObject::QObject;

    /// Shows what the model tells from now on.
    void follow(AIUsageModel &model, NotchSurroundings &surroundings);
    void classBegin() override {}
    void componentComplete() override { follow(*m_model, *m_surroundings); }

    bool codexOn() const { return m_shown.codexOn; }
    bool claudeOn() const { return m_shown.claudeOn; }
    QString codexHint() const { return m_shown.codexHint; }
    QString claudeHint() const { return m_shown.claudeHint; }
    QList<UsageLine> codexWindows() const { return m_shown.codexWindows; }
    QString codexUpdated() const { return m_shown.codexUpdated; }
    QString claudeTokens() const { return m_shown.claudeTokens; }
    UsageLine claudeBlock() const { return m_shown.claudeBlock; }
    QList<UsageDay> days() const { return m_shown.days; }

    /// A short local time: "14:30"; with the weekday on another day, "Mon 14:30"; with the date when that
    /// weekday is more than six days away.
    static QString timeText(const QDateTime &time, const QDateTime &now, const QLocale &locale);

    /// "58% left": the whole percent, rounded down so that it never promises more than there is.
    static QString leftText(double usedPercent);

Q_SIGNALS:
    void changed();

private:
    /// What the properties hold; everything is empty until the hub is known.
    struct Shown
    {
        bool codexOn = false;
        bool claudeOn = false;
        QString codexHint;
        QString claudeHint;
        QList<UsageLine> codexWindows;
        QString codexUpdated;
        QString claudeTokens;
        UsageLine claudeBlock;
        QList<UsageDay> days;

        bool operator==(const Shown &) const = default;
    };

    void update();
    void addCodex(Shown &shown) const;
    void addClaude(Shown &shown) const;
    UsageLine line(const QString &title, const UsageWindow &window, const QDateTime &updated) const;
    UsageLine blockLine(const AIUsageModel::Claude &claude) const;
    QList<UsageDay> dayBars(const AIUsageModel::Claude &claude) const;
    QString resetText(const std::optional<QDateTime> &time) const;
    QString timeText(const QDateTime &time) const;

    AIUsageModel *m_model = nullptr;
    NotchSurroundings *m_surroundings = nullptr;
    Shown m_shown;
};

} // namespace Kestrune
