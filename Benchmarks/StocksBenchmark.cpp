// What one refresh of fifty quotes costs: from the request to the quotes, the main thread's share of it, and
// the longest time in which the pointer cannot be polled.

#include "Desktop/Network/QtHttpClient.h"
#include "Desktop/Time/SystemClock.h"
#include "NotchKit/Tools/Stocks/StocksModel.h"
#include "Support/WebStandIn.h"
#include "Surroundings.h"
#include "Table.h"
#include "Timing.h"

#include <QElapsedTimer>
#include <QEventLoop>

using namespace Benchmarks;
using namespace Kestrune;
using namespace std::chrono_literals;

namespace {

constexpr int kSymbols = 50;
constexpr int kRounds = 21;

/// A reply as large as the service's for one day.
QByteArray chart()
{
    QByteArray list;
    for (int i = 0; i < 78; ++i)
        list += (i ? "," : "") + QByteArray::number(180 + i * 0.037, 'f', 12);
    QByteArray columns;
    for (const char *name : {"open", "high", "low", "volume", "close"})
        columns += QByteArray(columns.isEmpty() ? "" : ",") + "\"" + name + "\":[" + list + "]";
    return R"({"chart":{"result":[{"meta":{"currency":"USD","regularMarketPrice":182.31,)"
           R"("chartPreviousClose":180.2,"shortName":"Some Company, Inc."},"timestamp":[)" +
           list + R"(],"indicators":{"quote":[{)" + columns + "}]}}],\"error\":null}}";
}

/// Runs the event loop until the refresh is over, and gives the longest time in which it could not run.
double runToEnd(const StocksModel &model)
{
    QElapsedTimer whole;
    QElapsedTimer step;
    double gap = 0;
    whole.start();
    while (model.loading()) {
        if (whole.hasExpired(20'000)) {
            std::fprintf(stderr, "StocksBenchmark: no quotes come\n");
            std::exit(2);
        }
        step.start();
        pass(1ms);
        gap = std::max(gap, static_cast<double>(step.nsecsElapsed()) / 1e6 - 1);
    }
    return gap;
}

} // namespace

int main(int argc, char *argv[])
{
    const Surroundings surroundings(argc, argv);
    const WebStandIn server([page = WebStandIn::page(200, chart())](const auto &) { return page; });

    /// The services' requests, sent to the server.
    class Client : public HttpClient
    {
    public:
        explicit Client(quint16 port)
            : m_port(port)
        {}
        QFuture<HttpReply> get(const HttpRequest &request) override
        {
            HttpRequest local = request;
            local.url.setScheme(QStringLiteral("http"));
            local.url.setHost(QStringLiteral("127.0.0.1"));
            local.url.setPort(m_port);
            return m_client.get(local);
        }

    private:
        QtHttpClient m_client;
        int m_port;
    } client(server.port());

    SystemClock clock;
    HubParts parts(clock);
    QStringList symbols;
    for (int i = 0; i < kSymbols; ++i)
        symbols.append(QStringLiteral("SYMBOL%1").arg(i));
    parts.settings.setTickers(symbols);
    StocksModel model(parts.settings, clock, client);

    std::vector<double> times;
    std::vector<double> work;
    std::vector<double> gaps;
    for (int i = 0; i < kRounds; ++i) {
        QElapsedTimer time;
        const auto before = threadTime();
        time.start();
        model.refresh(true);
        gaps.push_back(runToEnd(model));
        times.push_back(static_cast<double>(time.nsecsElapsed()) / 1e6);
        work.push_back(milliseconds(threadTime() - before));
        if (model.quotes().size() != kSymbols)
            return 2;
    }
    Table table;
    table.add({"Fresh quotes of 50 symbols from a local server", median(times), 250, "ms", "noisy"});
    Table::note("  the first time, with the start of the network's thread", times.front(), "ms");
    table.add({"  the main thread's work for it", median(work), 33, "ms", "one interval of the poll"});
    table.add({"  longest gap of the main thread meanwhile", median(gaps), 16.7, "ms", "noisy"});
    Table::note("  longest of all rounds", quantile(gaps, 1), "ms", "noisy");
    return table.exitStatus();
}
