#pragma once

#include "Async/Pledge.h"
#include "NotchKit/Platform/FileSharing.h"
#include "NotchKit/Platform/Pasteboard.h"
#include "NotchKit/Platform/ScreenCaptureQuery.h"
#include "NotchKit/Platform/Thumbnails.h"
#include "Support/Questions.h"

#include <QUrl>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// Stand-ins for the platform's ports, steered by the tests.
namespace Kestrune::Fakes {

/// Answers at once, or, while `held`, when `release` is called. Counts what it was asked for.
struct FakePasteboard : Pasteboard
{
    qint64 changeCount() const override { return count; }
    bool isOrphaned() const override { return orphaned; }
    QFuture<QStringList> types() override { return answer(offered, QStringLiteral("types")); }
    QFuture<QList<QUrl>> fileUrls() override { return answer(urls, QStringLiteral("urls")); }
    QFuture<std::optional<EncodedPicture>> picture() override
    {
        return answer(encoded, QStringLiteral("picture"));
    }
    QFuture<std::optional<QString>> string() override { return answer(text, QStringLiteral("string")); }
    QFuture<QByteArray> html() override { return answer(markup, QStringLiteral("html")); }
    QFuture<QStringList> owners() override { return answer(programs, QStringLiteral("owners")); }
    qint64 write(const PasteboardContent &content) override
    {
        orphaned = false;
        written = content;
        return ++count;
    }

    /// Another program copies.
    void offer(const QString &copied) { replace({QString::fromLatin1(kString)}).text = copied; }
    void offer(const QList<QUrl> &copied) { replace({QString::fromLatin1(kFileUrls)}).urls = copied; }
    void offer(const EncodedPicture &copied) { replace({copied.type}).encoded = copied; }
    FakePasteboard &replace(const QStringList &types)
    {
        ++count;
        offered = types;
        urls.clear();
        encoded.reset();
        text.reset();
        markup.clear();
        orphaned = false;
        return *this;
    }

    /// The types and bytes of the pictures that were written.
    QList<EncodedPicture> writtenPictures() const
    {
        QList<EncodedPicture> pictures;
        for (const OfferedPicture &picture : written.pictures)
            pictures.append({picture.data(), picture.type});
        return pictures;
    }

    void release()
    {
        held = false;
        for (const auto &finish : std::exchange(waiting, {}))
            finish();
    }

    qint64 count = 1;
    QStringList offered;
    QList<QUrl> urls;
    std::optional<EncodedPicture> encoded;
    std::optional<QString> text;
    QByteArray markup;
    QStringList programs; ///< The owner's names.
    bool orphaned = false;
    PasteboardContent written;
    QStringList asked;
    bool held = false;
    std::vector<std::function<void()>> waiting;

private:
    template <typename Value>
    QFuture<Value> answer(const Value &value, const QString &question)
    {
        asked.append(question);
        const auto questions = std::make_shared<Questions<Value>>();
        const auto future = questions->ask();
        waiting.push_back([questions, value] { questions->answer(0, value); });
        if (!held)
            release();
        return future;
    }
};

/// Reaches devices "id0", "Device 0" and so on. Answers at once, or, while `held`, when `release` is called.
struct FakeSharing : FileSharing
{
    explicit FakeSharing(int count = 0)
    {
        for (int i = 0; i < count; ++i)
            reachable.append({QStringLiteral("id%1").arg(i), QStringLiteral("Device %1").arg(i)});
    }

    QFuture<SharingDevices> devices() override
    {
        const auto future = waiting.ask();
        if (!held)
            release();
        return future;
    }
    QFuture<bool> send(const QString &device, const QList<QUrl> &files) override
    {
        sent.append({device, files});
        return answered(takes);
    }

    void release()
    {
        held = false;
        Questions<SharingDevices> asked = std::exchange(waiting, {});
        for (std::size_t i = 0; i < asked.count(); ++i)
            asked.answer(i, {served, reachable});
    }

    QList<SharingDevice> reachable;
    QList<std::pair<QString, QList<QUrl>>> sent;
    bool held = false;
    bool served = true;
    bool takes = true;
    Questions<SharingDevices> waiting;
};

/// Finds what the test puts in `found`, when the test says so.
struct FakeCaptureQuery : ScreenCaptureQuery
{
    void installHandler(Handler installed) override { handler = std::move(installed); }
    void start() override { running = true; }
    void stop() override { running = false; }
    QList<ScreenCapture> results() const override { return found; }
    bool isAccessMissing() const override { return accessMissing; }
    void requestAccess() override { ++requests; }

    Handler handler;
    QList<ScreenCapture> found;
    bool running = false;
    bool accessMissing = false;
    int requests = 0;
};

/// Answers when the test does: a promise for each request, in their order.
struct FakeThumbnails : Thumbnails
{
    QFuture<QImage> thumbnail(const QString &path) override
    {
        asked.append(path);
        return questions.ask();
    }

    QStringList asked;
    Questions<QImage> questions;
};

} // namespace Kestrune::Fakes
