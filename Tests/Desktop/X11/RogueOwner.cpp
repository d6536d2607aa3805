#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include <poll.h>
#include <unistd.h>

#include <xcb/xcb.h>

namespace {

using namespace std::chrono_literals;

constexpr auto kPublic = "public";
constexpr auto kSecret = "secret";
constexpr uint32_t kPiece = 1 << 20;
constexpr uint32_t kHuge = 100 << 20;

struct Free
{
    void operator()(void *reply) const { std::free(reply); }
};
template <typename T>
using Owned = std::unique_ptr<T, Free>;

/// A program on the clipboard that offers `targets`, says on standard output which of them it is asked for,
/// and answers as its mode has it. With "keep" it is the desktop's clipboard manager, and keeps short texts
/// that it is left; with "keepNothing" one that never answers.
struct Owner
{
    Owner(std::string mode, std::vector<std::string> targets, std::string text)
        : m_mode(std::move(mode))
        , m_targets(std::move(targets))
        , m_text(std::move(text))
        , m_window(xcb_generate_id(m_x))
    {
        const auto *screen = xcb_setup_roots_iterator(xcb_get_setup(m_x)).data;
        xcb_create_window(m_x, 0, m_window, screen->root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                          screen->root_visual, 0, nullptr);
    }

    int descriptor() const { return xcb_get_file_descriptor(m_x); }

    void own(bool owns = true)
    {
        const xcb_window_t none = XCB_WINDOW_NONE;
        const bool keeps = m_mode == "keep" || m_mode == "keepNothing";
        xcb_set_selection_owner(m_x, owns ? m_window : none, atom(keeps ? "CLIPBOARD_MANAGER" : "CLIPBOARD"),
                                XCB_CURRENT_TIME);
        sync();
    }

    void sync() { Owned<void>(xcb_get_input_focus_reply(m_x, xcb_get_input_focus(m_x), nullptr)); }

    void handleEvents()
    {
        while (const Owned<xcb_generic_event_t> event{xcb_poll_for_event(m_x)}) {
            const int type = event->response_type & 0x7f;
            if (type == XCB_SELECTION_REQUEST)
                answer(reinterpret_cast<const xcb_selection_request_event_t &>(*event));
            else if (type == XCB_SELECTION_NOTIFY)
                keep();
            else if (type == XCB_PROPERTY_NOTIFY)
                continueWith(reinterpret_cast<const xcb_property_notify_event_t &>(*event));
        }
        xcb_flush(m_x);
    }

private:
    xcb_atom_t atom(const std::string &name)
    {
        if (!m_atoms.contains(name)) {
            const auto cookie = xcb_intern_atom(m_x, 0, static_cast<uint16_t>(name.size()), name.data());
            m_atoms[name] = Owned<xcb_intern_atom_reply_t>(xcb_intern_atom_reply(m_x, cookie, nullptr))->atom;
        }
        return m_atoms[name];
    }

    std::string name(xcb_atom_t value) const
    {
        const Owned<xcb_get_atom_name_reply_t> reply(
            xcb_get_atom_name_reply(m_x, xcb_get_atom_name(m_x, value), nullptr));
        return {xcb_get_atom_name_name(reply.get()), size_t(xcb_get_atom_name_name_length(reply.get()))};
    }

    void put(xcb_atom_t type, uint8_t format, size_t count, const void *data)
    {
        xcb_change_property(m_x, XCB_PROP_MODE_REPLACE, m_request.requestor, m_request.property, type, format,
                            static_cast<uint32_t>(count), data);
    }

    void putHuge()
    {
        // Few long pieces: the server copies what is there with each.
        const std::vector<char> piece(kHuge / 10, 'x');
        for (int sent = 0; sent < 10; ++sent)
            xcb_change_property(m_x, XCB_PROP_MODE_APPEND, m_request.requestor, m_request.property,
                                m_request.target, 8, kHuge / 10, piece.data());
    }

    void notify()
    {
        alignas(4) char wire[32] = {};
        const xcb_selection_notify_event_t event{XCB_SELECTION_NOTIFY,
                                                 0,
                                                 0,
                                                 m_request.time,
                                                 m_request.requestor,
                                                 m_request.selection,
                                                 m_request.target,
                                                 m_request.property};
        std::memcpy(wire, &event, sizeof event);
        xcb_send_event(m_x, 0, m_request.requestor, 0, wire);
    }

    void answer(const xcb_selection_request_event_t &request)
    {
        m_request = request;
        const std::string target = name(request.target);
        std::printf("%s\n", target.c_str());
        std::fflush(stdout);
        if (m_mode == "keep")
            xcb_convert_selection(m_x, m_window, atom("CLIPBOARD"), atom("UTF8_STRING"), atom("KEPT"),
                                  XCB_CURRENT_TIME);
        else if (m_mode == "keepNothing")
            return;
        else if (target == "TARGETS")
            answerTypes();
        else if (m_mode == "honest")
            put(request.target, 8, m_text.size(), m_text.data()), notify();
        else if (m_mode == "wrongFormat")
            put(request.target, 32, 1, "four"), notify();
        else if (m_mode == "wrongType")
            put(atom("WRONG"), 8, m_text.size(), m_text.data()), notify();
        else if (m_mode == "hugeAtOnce")
            putHuge(), notify();
        else
            announce();
    }

    /// The clipboard manager has the text that it asked for: from now on the clipboard is its own.
    void keep()
    {
        const auto cookie =
            xcb_get_property(m_x, 0, m_window, atom("KEPT"), XCB_GET_PROPERTY_TYPE_ANY, 0, kPiece);
        const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(m_x, cookie, nullptr));
        m_text.assign(static_cast<const char *>(xcb_get_property_value(reply.get())),
                      size_t(xcb_get_property_value_length(reply.get())));
        m_mode = "honest";
        own();
        notify();
    }

    void answerTypes()
    {
        if (m_mode == "hangAtTypes")
            return;
        std::vector<xcb_atom_t> atoms{atom("TARGETS")};
        for (const auto &target : m_targets)
            atoms.push_back(atom(target));
        if (m_mode == "typesAsText")
            put(XCB_ATOM_STRING, 8, m_text.size(), m_text.data());
        else
            put(XCB_ATOM_ATOM, 32, atoms.size(), atoms.data());
        notify();
    }

    /// Starts an answer in pieces: all the other modes differ in how they go on.
    void announce()
    {
        const uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(m_x, m_request.requestor, XCB_CW_EVENT_MASK, &events);
        const uint32_t size = m_mode == "huge" ? kHuge : 1;
        put(atom("INCR"), 32, 1, &size);
        notify();
    }

    void continueWith(const xcb_property_notify_event_t &change)
    {
        if (change.state != XCB_PROPERTY_DELETE || change.window != m_request.requestor)
            return;
        const std::vector<char> piece(m_mode == "drip" ? 1 : kPiece, 'x');
        m_sent += piece.size();
        if (m_mode == "drip")
            std::this_thread::sleep_for(100ms);
        if (m_mode == "dieHalfWay" && m_sent > 3 * kPiece)
            std::_Exit(0);
        if (m_mode == "hangHalfWay" && m_sent > 3 * kPiece)
            return;
        put(m_request.target, 8, m_sent <= kHuge ? piece.size() : 0, piece.data());
    }

    std::string m_mode;
    std::vector<std::string> m_targets;
    std::string m_text;
    xcb_connection_t *m_x = xcb_connect(nullptr, nullptr);
    xcb_window_t m_window;
    std::map<std::string, xcb_atom_t> m_atoms;
    xcb_selection_request_event_t m_request{};
    size_t m_sent = 0;
};

/// Takes the clipboard anew with every line of standard input, or takes its copy back at "release".
int serve(Owner &owner)
{
    owner.own();
    std::puts("ready");
    std::fflush(stdout);
    for (;;) {
        pollfd sources[] = {{owner.descriptor(), POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}};
        owner.handleEvents();
        poll(sources, 2, -1);
        char line[64];
        if (sources[1].revents != 0) {
            const auto size = read(STDIN_FILENO, line, sizeof line);
            if (size <= 0)
                return 0;
            owner.own(std::string_view(line, size_t(size)) != "release\n");
        }
    }
}

/// Two programs, one with a secret, that take the clipboard from each other without rest.
[[noreturn]] void swap(const std::vector<std::string> &targets)
{
    Owner open("honest", targets, kPublic);
    Owner closed("honest", {"x-kde-passwordManagerHint", "UTF8_STRING"}, kSecret);
    for (unsigned round = 0;; ++round) {
        (round % 2 == 0 ? open : closed).own();
        const auto until = std::chrono::steady_clock::now() + std::chrono::microseconds(round * 37 % 2000);
        do {
            open.handleEvents();
            closed.handleEvents();
        } while (std::chrono::steady_clock::now() < until);
    }
}

} // namespace

/// RogueOwner MODE TARGET...
int main(int argc, char *argv[])
{
    if (argc < 2)
        return 2;
    const std::string mode = argv[1];
    const std::vector<std::string> targets(argv + 2, argv + argc);
    if (mode == "swap")
        swap(targets);
    Owner owner(mode, targets, kPublic);
    return serve(owner);
}
