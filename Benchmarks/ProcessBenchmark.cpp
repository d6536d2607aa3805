// Measures the program as it runs on a desktop: how it starts, what it costs while closed, what it takes in
// memory. Links nothing that the program links, since shared pages are counted by the number of their users.

#include "Table.h"

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <numeric>
#include <regex>
#include <thread>

#include <csignal>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/damage.h>
#include <xcb/xcb.h>

using namespace Benchmarks;
using namespace std::chrono_literals;

namespace {

using Time = std::chrono::steady_clock;

constexpr int kStarts = 15;
constexpr auto kIdleTime = 20s;
constexpr auto kSettle = 12s;   // what is given back while nothing is open is given back by then
constexpr auto kShown = 1500ms; // an opening and a pane's own animations are over by then
constexpr auto kLongestWait = 10s;
constexpr auto kPeerSettles = 5s;
constexpr auto kPeerIdles = 10s;

[[noreturn]] void fail(const char *what)
{
    std::fprintf(stderr, "ProcessBenchmark: %s\n", what);
    std::exit(2);
}

double milliseconds(Time::duration time) { return std::chrono::duration<double, std::milli>(time).count(); }

template <typename Condition>
bool waitFor(Condition condition)
{
    const auto end = Time::now() + kLongestWait;
    while (!condition()) {
        if (Time::now() > end)
            return false;
        std::this_thread::sleep_for(500us);
    }
    return true;
}

struct Free
{
    void operator()(void *memory) const { std::free(memory); }
};
template <typename Type>
using Reply = std::unique_ptr<Type, Free>;

/// The display as an onlooker sees it: a white desktop, the pointer far from the notch.
class Onlooker
{
public:
    Onlooker()
        : m_screen(xcb_setup_roots_iterator(xcb_get_setup(m_x.get())).data)
        , m_damage(xcb_generate_id(m_x.get()))
    {
        const auto *extension = xcb_get_extension_data(m_x.get(), &xcb_damage_id);
        if (!m_screen || !extension || !extension->present)
            fail("no X display with the damage extension");
        const uint32_t white = m_screen->white_pixel;
        xcb_change_window_attributes(m_x.get(), m_screen->root, XCB_CW_BACK_PIXEL, &white);
        xcb_clear_area(m_x.get(), false, m_screen->root, 0, 0, 0, 0);
        const auto far = static_cast<int16_t>(m_screen->height_in_pixels - 50);
        xcb_warp_pointer(m_x.get(), XCB_NONE, m_screen->root, 0, 0, 0, 0, 50, far);
        const Reply<xcb_damage_query_version_reply_t> version(
            xcb_damage_query_version_reply(m_x.get(), xcb_damage_query_version(m_x.get(), 1, 1), nullptr));
        xcb_damage_create(m_x.get(), m_damage, m_screen->root, XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
        xcb_flush(m_x.get());
    }

    /// Whether the middle of the closed notch is black.
    bool seesNotch() const
    {
        const auto x = static_cast<int16_t>(m_screen->width_in_pixels / 2);
        const Reply<xcb_get_image_reply_t> image(xcb_get_image_reply(
            m_x.get(),
            xcb_get_image(m_x.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, m_screen->root, x, 16, 1, 1, 0xffffff),
            nullptr));
        if (!image || xcb_get_image_data_length(image.get()) < 3)
            fail("the display cannot be read");
        const uint8_t *pixel = xcb_get_image_data(image.get());
        return pixel[0] == 0 && pixel[1] == 0 && pixel[2] == 0;
    }

    /// How often anything on the display was drawn since the last call.
    int redraws() const
    {
        Reply<xcb_get_input_focus_reply_t>(
            xcb_get_input_focus_reply(m_x.get(), xcb_get_input_focus(m_x.get()), nullptr));
        int count = 0;
        while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_x.get())})
            ++count;
        return count;
    }

private:
    struct Disconnect
    {
        void operator()(xcb_connection_t *x) const { xcb_disconnect(x); }
    };

    std::unique_ptr<xcb_connection_t, Disconnect> m_x{xcb_connect(nullptr, nullptr)};
    xcb_screen_t *m_screen;
    xcb_damage_damage_t m_damage;
};

/// A running process; ends with the object.
class Process
{
public:
    /// `command` is a shell's.
    explicit Process(const std::string &command)
    {
        const std::string line = "exec " + command + " >/dev/null 2>&1";
        const char *arguments[] = {"sh", "-c", line.c_str(), nullptr};
        if (posix_spawn(&m_pid, "/bin/sh", nullptr, nullptr, const_cast<char **>(arguments), environ) != 0)
            fail("the program does not start");
    }
    ~Process()
    {
        kill(m_pid, SIGTERM);
        waitpid(m_pid, nullptr, 0);
    }
    Process(const Process &) = delete;
    Process &operator=(const Process &) = delete;

    bool isRunning() const { return waitpid(m_pid, nullptr, WNOHANG) == 0; }

    /// What its threads have done so far, by their numbers.
    struct Thread
    {
        double busy;   ///< Milliseconds of processor time.
        double sleeps; ///< How often it went to sleep, and so will have woken.
    };
    std::map<std::string, Thread> threads() const
    {
        std::map<std::string, Thread> all;
        for (const auto &task : std::filesystem::directory_iterator(proc("task"))) {
            double nanoseconds = 0;
            std::ifstream(task.path() / "schedstat") >> nanoseconds;
            all[task.path().filename()] = {nanoseconds / 1e6,
                                           named(task.path() / "status", "voluntary_ctxt_switches:")};
        }
        return all;
    }

    /// A number of a /proc file that names each: "Pss:", "write_bytes:".
    double figure(const char *file, const std::string &name) const { return named(proc(file), name); }

    /// How many other processes share the largest library, and so a part of what is counted.
    long sharers() const
    {
        long count = -1;
        for (const auto &process : std::filesystem::directory_iterator("/proc")) {
            std::ifstream maps(process.path() / "maps");
            const std::string text{std::istreambuf_iterator<char>(maps), {}};
            count += text.find("/libQt6Core.so") != std::string::npos;
        }
        return count;
    }

private:
    static double named(const std::filesystem::path &file, const std::string &name)
    {
        std::ifstream lines(file);
        for (std::string word; lines >> word;) {
            double value = 0;
            if (word == name && lines >> value)
                return value;
        }
        fail("the kernel does not tell the figures of a process");
    }

    std::filesystem::path proc(const char *file) const
    {
        return std::filesystem::path("/proc") / std::to_string(m_pid) / file;
    }

    pid_t m_pid = 0;
};

/// The running program; ends as at the end of a session.
class Program : public Process
{
public:
    explicit Program(const std::string &path)
        : Process("'" + path + "'")
        , m_path(path)
    {}
    ~Program() { command("quit"); }
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    /// What the program answers to a command.
    std::string command(const std::string &words) const
    {
        FILE *pipe = popen(("'" + m_path + "' " + words).c_str(), "r");
        std::string answer;
        for (int c = 0; pipe && (c = std::fgetc(pipe)) != EOF;)
            answer += static_cast<char>(c);
        if (pipe)
            pclose(pipe);
        return answer;
    }

private:
    std::string m_path;
};

void measureStart(Table &table, const std::string &path, const Onlooker &onlooker)
{
    std::vector<double> times;
    for (int i = 0; i < kStarts; ++i) {
        if (!waitFor([&] { return !onlooker.seesNotch(); }))
            fail("the notch stays after the program's end");
        const auto begin = Time::now();
        const Program program(path);
        if (!waitFor([&] { return onlooker.seesNotch(); }))
            fail("no notch appears");
        times.push_back(milliseconds(Time::now() - begin));
    }
    table.add({"Start to first notch on screen, median", median(times), 150, "ms", "noisy: wall time"});
    Table::note("  fastest", *std::ranges::min_element(times), "ms");
}

void measureMemory(Table &table, const Program &program, const char *what, double budget)
{
    std::this_thread::sleep_for(kSettle);
    const long sharers = program.sharers();
    table.add({what, program.figure("smaps_rollup", "Pss:") / 1000, budget, "MB",
               sharers > 0 ? "too low: " + std::to_string(sharers) + " other processes share Qt" : ""});
    const auto own =
        program.figure("smaps_rollup", "Private_Dirty:") + program.figure("smaps_rollup", "Private_Clean:");
    Table::note("  of it shared with nobody", own / 1000, "MB");
    Table::note("  were nothing shared (RSS)", program.figure("smaps_rollup", "Rss:") / 1000, "MB");
}

/// What a process does in a while in which nothing happens.
struct Idling
{
    double share = 0;   ///< Of a processor, in %.
    double wakeUps = 0; ///< A minute.
};

Idling idling(const Process &process, Time::duration time)
{
    const auto before = process.threads();
    const auto begin = Time::now();
    std::this_thread::sleep_for(time);
    const double elapsed = milliseconds(Time::now() - begin);
    double busy = 0;
    double sleeps = 0;
    for (const auto &[number, now] : process.threads()) {
        const auto was = before.find(number); // Of a new one counts all that it did.
        busy += now.busy - (was == before.end() ? 0 : was->second.busy);
        sleeps += now.sleeps - (was == before.end() ? 0 : was->second.sleeps);
    }
    return {100 * busy / elapsed, sleeps * 60'000 / elapsed};
}

void measureIdle(Table &table, const Program &program, const Onlooker &onlooker, const std::string &when)
{
    onlooker.redraws();
    const double written = program.figure("io", "write_bytes:");
    const Idling idle = idling(program, kIdleTime);
    table.add({"Closed and idle, " + when + ": processor", idle.share, 0.02, "%", ""});
    table.add({"  wake-ups a minute, all threads", idle.wakeUps, 12, "", ""});
    table.add({"  redraws", static_cast<double>(onlooker.redraws()), 0, "", ""});
    table.add({"  bytes written to disk", program.figure("io", "write_bytes:") - written, 0, "", ""});
}

/// What others cost that are there all day as well, for comparison.
void measurePeer(const std::string &command)
{
    const Process peer(command);
    std::this_thread::sleep_for(kPeerSettles);
    if (!peer.isRunning())
        return;
    const Idling idle = idling(peer, kPeerIdles);
    Table::note("Idle, " + command + ": processor", idle.share, "%");
    Table::note("  wake-ups a minute, all threads", idle.wakeUps, "");
    Table::note("  memory (PSS)", peer.figure("smaps_rollup", "Pss:") / 1000, "MB");
}

void showEveryPane(const Program &program)
{
    std::string status = program.command("status --json");
    const auto begin = status.find("\"tools\"");
    if (begin == std::string::npos)
        fail("the program does not tell its tools");
    const auto list = status.find('[', begin);
    const std::string tools = status.substr(list, status.find(']', list) - list);
    const std::regex word("\"(\\w+)\"");
    for (std::sregex_iterator tool(tools.begin(), tools.end(), word), end; tool != end; ++tool) {
        program.command("open " + (*tool)[1].str());
        std::this_thread::sleep_for(kShown);
    }
    program.command("close");
}

/// The very first start shows the open notch, which no later one does; it also fills the caches.
void startForTheFirstTime(const std::string &path, const Onlooker &onlooker)
{
    const Program program(path);
    waitFor([&] { return onlooker.seesNotch(); });
    std::this_thread::sleep_for(kSettle);
}

/// The program and what depends on it alone.
int measure(const std::string &path, const Onlooker &onlooker)
{
    startForTheFirstTime(path, onlooker);
    Table table;
    measureStart(table, path, onlooker);
    const Program program(path);
    measureMemory(table, program, "Memory (PSS), closed after the start", 38);
    measureIdle(table, program, onlooker, "after the start");
    showEveryPane(program);
    measureMemory(table, program, "Memory (PSS), closed after every pane", 50);
    measureIdle(table, program, onlooker, "after every pane");
    return table.exitStatus();
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc < 2)
        fail("usage: ProcessBenchmark PROGRAM [PEER...]");
    const Onlooker onlooker;
    const int status = measure(argv[1], onlooker);
    for (int i = 2; i < argc; ++i)
        measurePeer(argv[i]);
    return status;
}
