#include "CanberraSounds.h"

#include <QFile>
#include <QLoggingCategory>
#include <QSemaphore>
#include <QTemporaryFile>

#include <chrono>
#include <memory>

#include <canberra.h>

namespace Kestrune {

namespace {

Q_LOGGING_CATEGORY(soundLog, "kestrune.sound", QtWarningMsg)

using namespace std::chrono_literals;

constexpr auto kLongestSound = 10s;

struct DestroyContext
{
    void operator()(ca_context *context) const { ca_context_destroy(context); }
};
using Context = std::unique_ptr<ca_context, DestroyContext>;

Context createContext()
{
    ca_context *context = nullptr;
    if (ca_context_create(&context) != CA_SUCCESS)
        return nullptr;
    ca_context_change_props(context, CA_PROP_APPLICATION_NAME, "Kestrune", CA_PROP_APPLICATION_ID,
                            "example.kestrune.Kestrune", nullptr);
    return Context(context);
}

/// Plays `file` to its end; waits for the sound server, so never on the main thread.
void playFile(const QByteArray &file)
{
    const Context context = createContext();
    if (!context)
        return;
    ca_proplist *properties = nullptr;
    if (ca_proplist_create(&properties) != CA_SUCCESS)
        return;
    ca_proplist_sets(properties, CA_PROP_MEDIA_FILENAME, file.constData());
    ca_proplist_sets(properties, CA_PROP_MEDIA_ROLE, "event");
    // Shared with the library's thread, which may still call back after the wait was given up.
    auto *finished = new std::shared_ptr<QSemaphore>(std::make_shared<QSemaphore>());
    const std::shared_ptr<QSemaphore> wait = *finished;
    const auto done = [](ca_context *, uint32_t, int, void *data) {
        const std::unique_ptr<std::shared_ptr<QSemaphore>> held(
            static_cast<std::shared_ptr<QSemaphore> *>(data));
        (*held)->release();
    };
    const int fault = ca_context_play_full(context.get(), 0, properties, done, finished);
    if (fault == CA_SUCCESS) {
        wait->tryAcquire(1, std::chrono::milliseconds(kLongestSound).count());
    } else {
        delete finished;
        qCInfo(soundLog, "the sound cannot be played: %s", ca_strerror(fault));
    }
    ca_proplist_destroy(properties);
}

} // namespace

void CanberraSounds::play(const QString &name)
{
    const QString resource = QStringLiteral(":/sounds/%1.wav").arg(name.toLower());
    if (!QFile::exists(resource))
        return;
    const auto work = [resource] {
        QFile embedded(resource);
        const std::unique_ptr<QTemporaryFile> file(QTemporaryFile::createNativeFile(embedded));
        if (file)
            playFile(QFile::encodeName(file->fileName()));
        return file != nullptr;
    };
    m_worker.run(2 * kLongestSound, work);
}

} // namespace Kestrune
