// Lets the disk under the program's settings be full, or read-only, for a while.

#include "Program.h"
#include "Scenario.h"
#include "Store.h"

#include "EndToEnd/Stage.h"

#include <sys/mount.h>

namespace Faults {

namespace {

constexpr qint64 kLongest = 20'000; // ms from when the disk can be written again until it was

/// A small disk of its own in memory; needs the right to mount.
class SmallDisk
{
public:
    explicit SmallDisk(const QString &folder)
        : m_folder(QFile::encodeName(folder))
        , m_mounted(::mount("tmpfs", m_folder.constData(), "tmpfs", 0, "size=512k") == 0)
    {}
    ~SmallDisk()
    {
        if (m_mounted)
            ::umount2(m_folder.constData(), MNT_DETACH);
    }
    Q_DISABLE_COPY_MOVE(SmallDisk)

    bool isMounted() const { return m_mounted; }
    bool setReadOnly(bool on) const
    {
        return ::mount(nullptr, m_folder.constData(), nullptr, MS_REMOUNT | (on ? MS_RDONLY : 0), nullptr) ==
               0;
    }

    /// To the last byte.
    void fill() const
    {
        QFile filler(fillerName());
        if (!filler.open(QFile::WriteOnly | QFile::Unbuffered))
            return;
        for (const qint64 size : {4096, 1}) {
            while (filler.write(QByteArray(size, 'x')) == size) {
            }
        }
    }
    void makeRoom() const { QFile::remove(fillerName()); }

private:
    QString fillerName() const { return QFile::decodeName(m_folder) + u"/filler"_s; }

    QByteArray m_folder;
    bool m_mounted;
};

/// A session whose settings are on such a disk.
struct DiskStage
{
    DiskStage() { session.environment().insert(u"DISPLAY"_s, display.name()); }

    /// Everything that can be set while nothing can be written is answered from memory.
    void write(const QString &note, Outcome &outcome);
    /// Once it can, it is in the store, which is sound, for the next start too.
    void expectStored(const QString &note, Outcome &outcome);

    Session session;
    VirtualDisplay display{VirtualDisplay::Server::Plain, {1280, 800}, session.environment()};
    QString folder = session.environment().value(u"XDG_CONFIG_HOME"_s);
    SmallDisk disk{folder};
    Program program{session};
};

void DiskStage::write(const QString &note, Outcome &outcome)
{
    const QString text(100'000, u'x');
    if (!program.set(u"prompterText"_s, text) || !program.set(u"note"_s, note) ||
        program.setting(u"note"_s) != note || program.setting(u"prompterText"_s) != text ||
        !program.isRunning())
        outcome.fault(u"it does not keep what cannot be written"_s);
    QTest::qWait(100); // Its words come over a pipe.
    if (program.takeWords().filter(u"kept in memory"_s).size() != 1)
        outcome.fault(u"it does not say once that nothing can be written"_s);
}

void DiskStage::expectStored(const QString &note, Outcome &outcome)
{
    const auto isStored = [&] {
        return Kestrune::SqliteUserDefaults(folder + u"/kestrune/defaults.sqlite"_s,
                                            Kestrune::SqliteUserDefaults::Access::ReadOnly)
                   .object(u"notch.note"_s) == Kestrune::DefaultsValue(note);
    };
    const qint64 time = timeUntil(isStored, kLongest);
    outcome.figure("ms until stored", time);
    if (time < 0)
        outcome.fault(u"it was not stored once there was room"_s);
    program.process().killNow();
    const StoreCopy store(folder + u"/kestrune"_s);
    if (store.verdict() != "ok"_L1 || store.hasDamagedCopies())
        outcome.fault(u"the store is damaged: "_s + store.verdict());
    if (!program.start() || program.setting(u"note"_s) != note)
        outcome.fault(u"the next start does not have it"_s);
}

bool isLeftOut(const DiskStage &stage, Outcome &outcome)
{
    if (!stage.disk.isMounted())
        outcome.leftOut(u"nothing can be mounted here"_s);
    return !stage.disk.isMounted();
}

} // namespace

Outcome fullDisk(int count, Chance &chance)
{
    Outcome outcome;
    for (int i = 0; i < count; ++i) {
        DiskStage stage;
        if (isLeftOut(stage, outcome))
            return outcome;
        if (!stage.program.start() || !stage.program.set(u"note"_s, u"before"_s)) {
            outcome.fault(u"the program did not start"_s);
            return outcome;
        }
        stage.disk.fill();
        const QString note = QString::number(chance.between(0, 1'000'000));
        stage.write(note, outcome);
        stage.disk.makeRoom();
        stage.expectStored(note, outcome);
    }
    return outcome;
}

Outcome readOnly(int count, Chance &chance)
{
    Outcome outcome;
    for (int i = 0; i < count; ++i) {
        DiskStage stage;
        if (isLeftOut(stage, outcome))
            return outcome;
        if (!stage.disk.setReadOnly(true) || !stage.program.start()) {
            outcome.fault(u"the program does not start on a disk that cannot be written"_s);
            return outcome;
        }
        const QString note = QString::number(chance.between(0, 1'000'000));
        stage.write(note, outcome);
        stage.disk.setReadOnly(false);
        stage.expectStored(note, outcome);
    }
    return outcome;
}

} // namespace Faults
