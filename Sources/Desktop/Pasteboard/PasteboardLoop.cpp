#include "PasteboardLoop.h"

#include "Desktop/Mime/UriLists.h"
#include "Log.h"

#include <algorithm>

namespace Kestrune {

Q_LOGGING_CATEGORY(clipboardLog, "kestrune.clipboard", QtWarningMsg)

namespace {

constexpr qsizetype kMegabyte = qsizetype{1024} * 1024;
constexpr qsizetype kMostTypes = kMegabyte / 16;
constexpr qsizetype kMostFiles = 8 * kMegabyte;
constexpr qsizetype kMostText = 16 * kMegabyte;
constexpr qsizetype kMostPicture = 64 * kMegabyte;
constexpr qsizetype kMostHtml = 8 * kMegabyte;

} // namespace

void PasteboardLoop::run()
{
    while (isAlive() && !m_link.commands.isClosed()) {
        const bool hadEvent = handleEvents();
        const bool hadCommand = runCommand();
        const bool hadQuestion = startQuestion();
        if (!hadEvent && !hadCommand && !hadQuestion && isAlive())
            sleep();
    }
    if (m_link.commands.isClosed()) {
        if (isAlive())
            handOver();
        qCDebug(clipboardLog, "ended");
    } else {
        qCInfo(clipboardLog, "the connection is gone, and what is copied is not seen any more");
    }
}

int PasteboardLoop::timeoutUntil(const std::optional<Clock::time_point> &deadline)
{
    if (!deadline)
        return -1;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*deadline - Clock::now());
    return std::max(0, static_cast<int>(left.count()));
}

void PasteboardLoop::contentReplaced(Change change)
{
    ++m_content;
    m_link.orphaned = change == Change::orphaned;
    if (change == Change::copied)
        ++m_link.changeCount;
    const bool isNews = change == Change::copied || change == Change::orphaned;
    if (isNews && !m_link.isTelling.exchange(true))
        m_link.tell();
}

bool PasteboardLoop::runCommand()
{
    const auto command = m_link.commands.take();
    if (command)
        (*command)(*this);
    return command.has_value();
}

bool PasteboardLoop::startQuestion()
{
    if (m_questions.empty() || !isReadyToAsk())
        return false;
    const auto question = std::move(m_questions.front());
    m_questions.pop_front();
    question();
    return true;
}

void PasteboardLoop::describe(const Done<QStringList> &done)
{
    m_describedContent = m_content;
    m_described.clear();
    askForTargets(kMostTypes, [this, done](const QList<QByteArray> &targets) {
        qCDebug(clipboardLog, "%lld forms are on offer", static_cast<long long>(targets.size()));
        m_described = targets;
        done(PasteboardTypes::named(targets));
    });
}

void PasteboardLoop::askForFirst(const QList<QByteArray> &targets, qsizetype limit, const Done<Form> &done)
{
    if (m_describedContent != m_content)
        return;
    const auto target =
        std::ranges::find_if(targets, [&](const auto &name) { return m_described.contains(name); });
    if (target != targets.end())
        askForTarget(*target, limit, done);
}

void PasteboardLoop::types(Done<QStringList> done)
{
    m_questions.emplace_back([this, done = std::move(done)] { describe(done); });
}

void PasteboardLoop::fileUrls(Done<QList<QUrl>> done)
{
    const auto read = [done = std::move(done)](const Form &form) {
        // Some owners call the list text.
        if (form.type == form.target || PasteboardTypes::textTargets().contains(form.type))
            done(UriLists::localFiles(form.data, form.target));
    };
    m_questions.emplace_back([this, read] { askForFirst(PasteboardTypes::fileTargets(), kMostFiles, read); });
}

void PasteboardLoop::picture(Done<EncodedPicture> done)
{
    const auto read = [done = std::move(done)](const Form &form) {
        if (form.type == form.target && !form.data.isEmpty())
            done({form.data, QString::fromLatin1(form.type)});
    };
    m_questions.emplace_back(
        [this, read] { askForFirst(PasteboardTypes::pictureTargets(), kMostPicture, read); });
}

void PasteboardLoop::html(Done<QByteArray> done)
{
    const auto read = [done = std::move(done)](const Form &form) {
        if (form.type == form.target)
            done(form.data);
    };
    m_questions.emplace_back([this, read] { askForFirst(PasteboardTypes::htmlTargets(), kMostHtml, read); });
}

void PasteboardLoop::owners(Done<QStringList> done)
{
    m_questions.emplace_back([this, done = std::move(done)] {
        if (m_describedContent == m_content)
            done(ownerNames());
    });
}

void PasteboardLoop::string(Done<QString> done)
{
    const auto read = [done = std::move(done)](const Form &form) {
        if (auto text = PasteboardTypes::text(form.data, form.type))
            done(std::move(*text));
    };
    m_questions.emplace_back([this, read] { askForFirst(PasteboardTypes::textTargets(), kMostText, read); });
}

} // namespace Kestrune
