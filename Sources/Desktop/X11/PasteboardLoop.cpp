#include "PasteboardLoop.h"

#include "Desktop/Mime/UriLists.h"
#include "Log.h"

#include <QtEndian>

#include <algorithm>
#include <array>

#include <poll.h>

#include <xcb/xfixes.h>

namespace Kestrune {

Q_LOGGING_CATEGORY(clipboardLog, "kestrune.clipboard", QtWarningMsg)

namespace {

constexpr qsizetype kMegabyte = qsizetype{1024} * 1024;
constexpr qsizetype kMostTypes = kMegabyte / 16;
constexpr qsizetype kMostFiles = 8 * kMegabyte;
constexpr qsizetype kMostText = 16 * kMegabyte;
constexpr qsizetype kMostPicture = 64 * kMegabyte;

QList<xcb_atom_t> atomsIn(const QByteArray &data)
{
    QList<xcb_atom_t> atoms;
    for (qsizetype i = 0; i + 4 <= data.size(); i += 4) {
        const auto atom = qFromUnaligned<xcb_atom_t>(data.constData() + i);
        if (!atoms.contains(atom))
            atoms.append(atom);
    }
    return atoms;
}

} // namespace

PasteboardLoop::PasteboardLoop(const QByteArray &display, Mailbox<PasteboardCommand> &commands,
                               std::atomic<qint64> &changeCount)
    : m_commands(commands)
    , m_changeCount(changeCount)
    , m_x(display)
    , m_clipboard(m_x.atom("CLIPBOARD"))
    , m_owner(m_x, m_clipboard)
{}

void PasteboardLoop::run()
{
    if (m_x.isAlive())
        start();
    else
        qCWarning(clipboardLog, "no connection to the display, or one without XFixes");
    while (m_x.isAlive() && !m_commands.isClosed()) {
        xcb_flush(m_x.get());
        const bool hadEvent = handleEvent();
        finishReading();
        expire();
        const bool hadCommand = runCommand();
        const bool hadQuestion = startQuestion();
        if (!hadEvent && !hadCommand && !hadQuestion)
            sleep();
    }
    qCDebug(clipboardLog, m_x.isAlive() ? "ended" : "the connection is gone");
}

void PasteboardLoop::start()
{
    m_x.watchOwner(m_clipboard);
    m_current = {1, m_x.ownerOf(m_clipboard), m_x.serverTime()};
}

bool PasteboardLoop::handleEvent()
{
    const auto event = m_x.nextEvent();
    if (!event)
        return false;
    if (m_x.isOwnerEvent(*event)) {
        ownerChanged(*event);
        return true;
    }
    if (m_reader)
        m_reader->handle(*event);
    m_owner.handle(*event);
    return true;
}

void PasteboardLoop::ownerChanged(const xcb_generic_event_t &event)
{
    const auto &change = reinterpret_cast<const xcb_xfixes_selection_notify_event_t &>(event);
    if (m_reader)
        m_reader->ownerChanged(SelectionConnection::sequenceOf(event), change.owner == XCB_WINDOW_NONE);
    m_current = {m_current.number + 1, change.owner, change.selection_timestamp};
    if (change.owner != XCB_WINDOW_NONE && change.owner != m_x.window())
        ++m_changeCount;
}

bool PasteboardLoop::runCommand()
{
    const auto command = m_commands.take();
    if (command)
        (*command)(*this);
    return command.has_value();
}

bool PasteboardLoop::startQuestion()
{
    if (m_reader || m_questions.empty())
        return false;
    const auto question = std::move(m_questions.front());
    m_questions.pop_front();
    question();
    return true;
}

void PasteboardLoop::expire()
{
    const auto now = Clock::now();
    m_owner.expire(now);
    if (m_reader)
        m_reader->expire(now);
    finishReading();
}

void PasteboardLoop::sleep()
{
    auto next = m_owner.deadline();
    if (m_reader)
        next = next ? std::min(*next, m_reader->deadline()) : m_reader->deadline();
    int timeout = -1;
    if (next) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(*next - Clock::now());
        timeout = std::max(0, static_cast<int>(left.count()));
    }
    std::array<pollfd, 2> sources{pollfd{xcb_get_file_descriptor(m_x.get()), POLLIN, 0},
                                  pollfd{m_commands.descriptor(), POLLIN, 0}};
    poll(sources.data(), sources.size(), timeout);
}

void PasteboardLoop::finishReading()
{
    if (!m_reader || !m_reader->isFinished())
        return;
    auto answer = m_reader->take();
    m_reader.reset();
    const auto done = std::exchange(m_done, {});
    if (answer)
        done(std::move(*answer));
    else
        qCInfo(clipboardLog, "the owner gave nothing, too much or too late");
}

void PasteboardLoop::offer(const PasteboardContent &content)
{
    m_owner.offer(PasteboardTypes::forms(content));
}

void PasteboardLoop::ask(xcb_atom_t target, qsizetype limit, uint8_t format,
                         Done<SelectionReader::Answer> done)
{
    m_done = std::move(done);
    m_reader = std::make_unique<SelectionReader>(
        m_x, m_clipboard, SelectionReader::Question{target, m_current.since, limit, format});
}

void PasteboardLoop::askForTypes(const Done<QStringList> &done)
{
    m_describedNumber = m_current.number;
    m_described.clear();
    if (m_current.owner == XCB_WINDOW_NONE)
        return;
    ask(m_x.atom("TARGETS"), kMostTypes, 32, [this, done](const SelectionReader::Answer &answer) {
        // Programs of old give the target's name for the type.
        if (answer.type != XCB_ATOM_ATOM && answer.type != m_x.atom("TARGETS"))
            return;
        const auto atoms = atomsIn(answer.data);
        const auto names = m_x.names(atoms);
        qCDebug(clipboardLog, "%lld forms are on offer", static_cast<long long>(names.size()));
        for (qsizetype i = 0; i < atoms.size(); ++i)
            m_described.insert(names[i], atoms[i]);
        done(PasteboardTypes::named(names));
    });
}

void PasteboardLoop::askForForm(const QList<QByteArray> &targets, qsizetype limit, const Done<Form> &done)
{
    if (m_describedNumber != m_current.number)
        return;
    const auto target =
        std::ranges::find_if(targets, [&](const auto &name) { return m_described.contains(name); });
    if (target == targets.end())
        return;
    ask(m_described.value(*target), limit, 8,
        [this, done, target = *target](const SelectionReader::Answer &answer) {
            done({target, m_x.names({answer.type}).constFirst(), answer.data});
        });
}

void PasteboardLoop::types(Done<QStringList> done)
{
    m_questions.emplace_back([this, done = std::move(done)] { askForTypes(done); });
}

void PasteboardLoop::fileUrls(Done<QList<QUrl>> done)
{
    const auto read = [done = std::move(done)](const Form &form) {
        // Some owners call the list text.
        if (form.type == form.target || PasteboardTypes::textTargets().contains(form.type))
            done(UriLists::localFiles(form.data, form.target));
    };
    m_questions.emplace_back([this, read] { askForForm(PasteboardTypes::fileTargets(), kMostFiles, read); });
}

void PasteboardLoop::picture(Done<EncodedPicture> done)
{
    const auto read = [done = std::move(done)](const Form &form) {
        if (form.type == form.target && !form.data.isEmpty())
            done({form.data, QString::fromLatin1(form.type)});
    };
    m_questions.emplace_back(
        [this, read] { askForForm(PasteboardTypes::pictureTargets(), kMostPicture, read); });
}

void PasteboardLoop::string(Done<QString> done)
{
    const auto read = [done = std::move(done)](const Form &form) {
        if (auto text = PasteboardTypes::text(form.data, form.type))
            done(std::move(*text));
    };
    m_questions.emplace_back([this, read] { askForForm(PasteboardTypes::textTargets(), kMostText, read); });
}

} // namespace Kestrune
