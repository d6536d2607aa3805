#include "StocksModel.h"

#include "NotchKit/NotchSettings.h"
#include "NotchKit/WebServices.h"

#include <QLoggingCategory>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

Q_LOGGING_CATEGORY(stocksLog, "kestrune.stocks", QtWarningMsg)

constexpr auto kPause = 60s;
constexpr std::chrono::milliseconds kTimeout = 60s;
constexpr qint64 kMostBytes = qint64{128} * 1024; // ten times what the service sends

HttpRequest chartRequest(const char *host, const QString &symbol)
{
    const QByteArray encoded = QUrl::toPercentEncoding(symbol, "!$&'()*+,:=@/");
    return {QUrl::fromEncoded(QByteArray("https://") + host + "/v8/finance/chart/" + encoded +
                                  "?range=1d&interval=5m",
                              QUrl::StrictMode),
            {{"User-Agent", "Mozilla/5.0 (Macintosh) Kestrune"}},
            kTimeout,
            kMostBytes};
}

/// Whether the service has said something about the symbol, rather than that it has no time for it.
bool isWord(const HttpReply &reply)
{
    constexpr int kTooMany = 429;
    return reply.status != 0 && reply.status < 500 && reply.status != kTooMany;
}

} // namespace

StocksModel::StocksModel(NotchSettings &settings, Clock &clock, HttpClient &http, QObject *parent)
    : ToolModel(NotchTool::stocks, parent)
    , m_settings(settings)
    , m_clock(clock)
    , m_http(http)
{
    // Changed from the command line, say: the next tick asks for what is on screen.
    connect(&settings, &NotchSettings::tickersChanged, this, [this] { m_lastFetch.reset(); });
}

StocksModel::~StocksModel() = default;

void StocksModel::setSymbols(const QString &draft)
{
    m_settings.setTickers(stockSymbols(draft));
    refresh(true);
}

void StocksModel::refresh(bool force)
{
    QStringList symbols = m_settings.tickers();
    symbols.removeDuplicates();
    if (symbols.isEmpty() || (!force && m_lastFetch && m_clock.uptimeWithSleep() - *m_lastFetch <= kPause))
        return;
    m_lastFetch = m_clock.uptimeWithSleep();
    m_fetches.end();
    m_round = {};
    m_round.symbols = symbols;
    m_round.waiting = symbols.size();
    m_loading = true;
    for (const QString &symbol : symbols)
        m_fetches.start(&StocksModel::fetch, this, symbol);
}

QCoro::Task<> StocksModel::fetch(QString symbol)
{
    Answer result;
    for (const char *host : WebServices::kCharts) {
        const QFuture<HttpReply> answer = m_http.get(chartRequest(host, symbol));
        const HttpReply reply = co_await until(answer);
        result.reached = result.reached || isWord(reply);
        if (reply.isGood())
            result.quote = parseQuote(symbol, reply.body);
        if (result.quote)
            break;
        qCInfo(stocksLog, "no quote in a reply of status %d", reply.status);
    }
    take(symbol, result);
}

void StocksModel::take(const QString &symbol, const Answer &answer)
{
    if (answer.quote)
        m_round.found.insert(symbol, *answer.quote);
    else
        (answer.reached ? m_round.failed : m_round.unreached).append(symbol);
    if (--m_round.waiting == 0)
        finish();
}

void StocksModel::remember()
{
    const QDateTime now = m_clock.now();
    QHash<QString, Dated> known;
    for (const QString &symbol : std::as_const(m_round.symbols)) {
        if (const auto found = m_round.found.constFind(symbol); found != m_round.found.cend())
            known.insert(symbol, {*found, now});
        else if (m_known.contains(symbol) && m_round.unreached.contains(symbol))
            known.insert(symbol, m_known.value(symbol));
    }
    m_known = known;
}

void StocksModel::finish()
{
    remember();
    Quotes quotes;
    QStringList unreached;
    QDateTime oldest;
    for (const QString &symbol : std::as_const(m_round.symbols)) {
        const auto known = m_known.constFind(symbol);
        const bool isUnreached = m_round.unreached.contains(symbol);
        if (known != m_known.cend())
            quotes.append(known->quote);
        else if (isUnreached)
            unreached.append(symbol);
        if (known != m_known.cend() && isUnreached && (!oldest.isValid() || known->time < oldest))
            oldest = known->time;
    }
    m_wasReached = m_round.unreached.isEmpty();
    m_quotes = quotes;
    m_failed = m_round.failed;
    m_unreached = unreached;
    m_oldestTime = oldest;
    m_loading = false;
    m_round = {};
}

/// What is still waiting went out when there was another network, or none.
void StocksModel::networkReturned()
{
    if (m_loading || !m_wasReached)
        m_lastFetch.reset();
}

bool StocksModel::showsFigures(std::optional<NotchTool> visible) const
{
    return visible == tool() ||
           (visible == NotchTool::home && m_settings.column(HomeWidget::stocks) != HomeColumn::hidden);
}

void StocksModel::visibleToolChanged(std::optional<NotchTool> visible)
{
    if (showsFigures(visible))
        refresh(false);
}

void StocksModel::tick(const ClockTick &tick)
{
    if (tick.anyExpanded && showsFigures(tick.visibleTool))
        refresh(false);
}

} // namespace Kestrune
