#pragma once

#include "Async/Scope.h"
#include "NotchKit/Platform/Clock.h"
#include "NotchKit/Platform/HttpClient.h"
#include "NotchKit/ToolModel.h"
#include "StockQuote.h"

#include <QHash>
#include <QProperty>

namespace Kestrune {

class NotchSettings;

/// Delayed quotes of the symbols in the settings. Asks for them while they are on screen, at most once a
/// minute unless the list changes, all at once; they change together when the last answer is there. Where the
/// service cannot be reached, the quotes of before stay. Main thread only.
class StocksModel : public ToolModel
{
    Q_OBJECT
    Q_PROPERTY(QList<Kestrune::StockQuote> quotes READ quotes NOTIFY quotesChanged)
    Q_PROPERTY(QStringList failed READ failed NOTIFY failedChanged)
    /// The symbols without a quote because the service was not reached.
    Q_PROPERTY(QStringList unreached READ unreached NOTIFY unreachedChanged)
    /// Since when the oldest of the quotes that could not be fetched anew stands, UTC; invalid for none.
    Q_PROPERTY(QDateTime oldestTime READ oldestTime NOTIFY oldestTimeChanged)
    /// A refresh is under way.
    Q_PROPERTY(bool loading READ loading NOTIFY loadingChanged)

public:
    using Quote = StockQuote;
    using Quotes = QList<StockQuote>;

    StocksModel(NotchSettings &settings, Clock &clock, HttpClient &http, QObject *parent = nullptr);
    ~StocksModel() override;

    /// What the last refresh found or could not ask for, in the order of the symbols.
    const Quotes &quotes() const { return m_quotes.value(); }

    /// The symbols that it did not find, as they failed.
    const QStringList &failed() const { return m_failed.value(); }
    const QStringList &unreached() const { return m_unreached.value(); }
    QDateTime oldestTime() const { return m_oldestTime; }
    bool loading() const { return m_loading; }

    /// Asks for every quote; without `force`, only when more than a minute has passed since the last time.
    /// Does nothing without symbols. What an earlier refresh is still waiting for is given up.
    Q_INVOKABLE void refresh(bool force);

    /// Makes what the user typed the list of symbols, and asks for their quotes.
    Q_INVOKABLE void setSymbols(const QString &draft);

    void visibleToolChanged(std::optional<NotchTool> visible) override;
    void machineWoke() override { m_lastFetch.reset(); }
    void networkReturned() override;
    void tick(const ClockTick &tick) override;

Q_SIGNALS:
    void quotesChanged();
    void failedChanged();
    void unreachedChanged();
    void oldestTimeChanged();
    void loadingChanged();

private:
    /// The refresh that is under way.
    struct Round
    {
        QStringList symbols;
        qsizetype waiting = 0; ///< For so many symbols.
        QHash<QString, Quote> found;
        QStringList failed;
        QStringList unreached;
    };

    /// A quote and when it came.
    struct Dated
    {
        Quote quote;
        QDateTime time;
    };

    /// What came of asking for one symbol.
    struct Answer
    {
        std::optional<Quote> quote;
        bool reached = false; ///< The service was, and may not know the symbol.
    };

    bool showsFigures(std::optional<NotchTool> visible) const;
    QCoro::Task<> fetch(QString symbol);
    void take(const QString &symbol, const Answer &answer);
    void remember();
    void finish();

    NotchSettings &m_settings;
    Clock &m_clock;
    HttpClient &m_http;
    std::optional<std::chrono::nanoseconds> m_lastFetch; ///< Nothing: the next refresh fetches.
    bool m_wasReached = true;                            ///< By the last round, for every symbol.
    Round m_round;
    QHash<QString, Dated> m_known; ///< The last quote of each symbol of the last round.
    Scope m_fetches;               ///< Of the round.
    Q_OBJECT_BINDABLE_PROPERTY(StocksModel, Quotes, m_quotes, &StocksModel::quotesChanged)
    Q_OBJECT_BINDABLE_PROPERTY(StocksModel, QStringList, m_failed, &StocksModel::failedChanged)
    Q_OBJECT_BINDABLE_PROPERTY(StocksModel, QStringList, m_unreached, &StocksModel::unreachedChanged)
    Q_OBJECT_BINDABLE_PROPERTY(StocksModel, QDateTime, m_oldestTime, &StocksModel::oldestTimeChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(StocksModel, bool, m_loading, false, &StocksModel::loadingChanged)
};

} // namespace Kestrune
