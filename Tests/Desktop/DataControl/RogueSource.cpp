#include "data-control-protocol.h"

#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include <poll.h>
#include <unistd.h>

#include <wayland-client.h>

namespace {

using namespace std::chrono_literals;

constexpr size_t kPiece = 1 << 20;
constexpr size_t kHuge = 100 << 20;

void say(const std::string &word)
{
    std::printf("%s\n", word.c_str());
    std::fflush(stdout);
}

/// The session's clipboard, by data control of either name.
struct Clipboard
{
    Clipboard()
    {
        static const wl_registry_listener listener{added, [](void *, wl_registry *, uint32_t) {}};
        wl_registry_add_listener(wl_display_get_registry(display), &listener, this);
        wl_display_roundtrip(display);
        if (!manager || !seat)
            std::exit(1);
        device = ext_data_control_manager_v1_get_data_device(manager, seat);
    }

    static void added(void *self, wl_registry *registry, uint32_t name, const char *interface, uint32_t)
    {
        auto &clipboard = *static_cast<Clipboard *>(self);
        const std::string_view called = interface;
        static wl_interface any = ext_data_control_manager_v1_interface;
        if (called.ends_with("data_control_manager_v1") && !clipboard.manager) {
            any.name = called.starts_with("ext") ? any.name : "zwlr_data_control_manager_v1";
            clipboard.manager =
                static_cast<ext_data_control_manager_v1 *>(wl_registry_bind(registry, name, &any, 1));
        } else if (called == "wl_seat") {
            clipboard.seat = static_cast<wl_seat *>(wl_registry_bind(registry, name, &wl_seat_interface, 1));
        }
    }

    wl_display *display = wl_display_connect(nullptr);
    ext_data_control_manager_v1 *manager = nullptr;
    wl_seat *seat = nullptr;
    ext_data_control_device_v1 *device = nullptr;
};

/// A program that copies, says which types it is asked for, and answers as its mode has it.
struct Owner
{
    Owner(const Clipboard &clipboard, std::string mode, std::vector<std::string> types, std::string text)
        : m_clipboard(clipboard)
        , m_mode(std::move(mode))
        , m_types(std::move(types))
        , m_text(std::move(text))
    {}

    void own()
    {
        static const ext_data_control_source_v1_listener listener{
            [](void *self, ext_data_control_source_v1 *, const char *type, int reader) {
                static_cast<Owner *>(self)->answer(type, reader);
            },
            [](void *, ext_data_control_source_v1 *source) { ext_data_control_source_v1_destroy(source); }};
        auto *const source = ext_data_control_manager_v1_create_data_source(m_clipboard.manager);
        ext_data_control_source_v1_add_listener(source, &listener, this);
        for (const auto &type : m_types)
            ext_data_control_source_v1_offer(source, type.c_str());
        for (int i = 0; m_mode == "manyTypes" && i < 80; ++i)
            ext_data_control_source_v1_offer(source, (std::to_string(i) + std::string(1000, 'x')).c_str());
        ext_data_control_device_v1_set_selection(m_clipboard.device, source);
        wl_display_flush(m_clipboard.display);
    }

private:
    void answer(const std::string &type, int reader)
    {
        say(type);
        if (m_mode == "silent")
            return; // And the reader's end stays open.
        if (m_mode == "honest")
            write(reader, m_text.data(), m_text.size());
        else if (m_mode != "nothing")
            writePieces(reader);
        close(reader);
    }

    void writePieces(int reader) const
    {
        const std::vector<char> piece(m_mode == "drip" ? 1 : kPiece, 'x');
        for (size_t sent = 0; sent < kHuge; sent += piece.size()) {
            if (write(reader, piece.data(), piece.size()) < 0)
                return;
            if (m_mode == "drip")
                std::this_thread::sleep_for(100ms);
            if (m_mode == "dieHalfWay" && sent > 3 * kPiece) {
                // The connection before the pipe, so that nothing is left to chance.
                close(wl_display_get_fd(m_clipboard.display));
                std::_Exit(0);
            }
            if (m_mode == "hangHalfWay" && sent > 3 * kPiece)
                std::this_thread::sleep_for(1h);
        }
    }

    const Clipboard &m_clipboard;
    std::string m_mode;
    std::vector<std::string> m_types;
    std::string m_text;
};

/// Handles what the compositor sends, and copies anew with every line of standard input.
int serve(const Clipboard &clipboard, Owner &owner)
{
    owner.own();
    for (;;) {
        while (wl_display_prepare_read(clipboard.display) != 0)
            wl_display_dispatch_pending(clipboard.display);
        wl_display_flush(clipboard.display);
        std::array<pollfd, 2> sources{pollfd{wl_display_get_fd(clipboard.display), POLLIN, 0},
                                      pollfd{STDIN_FILENO, POLLIN, 0}};
        poll(sources.data(), sources.size(), -1);
        if (sources[0].revents == 0)
            wl_display_cancel_read(clipboard.display);
        else if (wl_display_read_events(clipboard.display) < 0)
            return 1;
        std::array<char, 64> line{};
        if (sources[1].revents != 0) {
            if (read(STDIN_FILENO, line.data(), line.size()) <= 0)
                return 0;
            owner.own();
        }
    }
}

/// Two programs, one with a secret, that copy in turns without rest.
int swap(const std::vector<std::string> &types)
{
    const Clipboard one;
    const Clipboard other;
    Owner open(one, "honest", types, "public");
    Owner closed(other, "honest", {"x-kde-passwordManagerHint", "UTF8_STRING"}, "secret");
    for (unsigned round = 0;; ++round) {
        (round % 2 == 0 ? open : closed).own();
        const auto until = std::chrono::steady_clock::now() + std::chrono::microseconds(round * 37 % 2000);
        do {
            if (wl_display_roundtrip(one.display) < 0 || wl_display_roundtrip(other.display) < 0)
                return 1;
        } while (std::chrono::steady_clock::now() < until);
    }
}

/// Readers that ask for the content and never take it.
int hold(const std::string &type, int count)
{
    const Clipboard clipboard;
    static ext_data_control_offer_v1 *current = nullptr;
    static const ext_data_control_device_v1_listener listener{
        [](void *, ext_data_control_device_v1 *, ext_data_control_offer_v1 *) {},
        [](void *, ext_data_control_device_v1 *, ext_data_control_offer_v1 *offer) { current = offer; },
        [](void *, ext_data_control_device_v1 *) {},
        [](void *, ext_data_control_device_v1 *, ext_data_control_offer_v1 *) {}};
    ext_data_control_device_v1_add_listener(clipboard.device, &listener, nullptr);
    wl_display_roundtrip(clipboard.display);
    for (int i = 0; current && i < count; ++i) {
        std::array<int, 2> ends{};
        if (pipe(ends.data()) != 0)
            return 1;
        ext_data_control_offer_v1_receive(current, type.c_str(), ends[1]);
        wl_display_roundtrip(clipboard.display);
        close(ends[1]);
    }
    say("holds");
    std::this_thread::sleep_for(1h);
    return 0;
}

} // namespace

/// RogueSource MODE TYPE..., or RogueSource hold TYPE COUNT
int main(int argc, char *argv[])
{
    if (argc < 2)
        return 2;
    std::signal(SIGPIPE, SIG_IGN);
    const std::string mode = argv[1];
    const std::vector<std::string> types(argv + 2, argv + argc);
    if (mode == "swap")
        return swap(types);
    if (mode == "hold" && types.size() == 2)
        return hold(types[0], std::atoi(types[1].c_str()));
    const Clipboard clipboard;
    Owner owner(clipboard, mode, types, "public");
    return serve(clipboard, owner);
}
