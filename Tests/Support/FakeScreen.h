#pragma once

#include "NotchKit/NotchPanels.h"
#include "NotchKit/NotchScreenModel.h"
#include "NotchKit/Platform/Displays.h"
#include "NotchKit/Platform/DragPasteboard.h"
#include "NotchKit/Platform/FullScreenWindows.h"
#include "NotchKit/Platform/HotKeys.h"
#include "NotchKit/Platform/Pointer.h"
#include "NotchKit/Platform/WindowSystem.h"
#include "Support/Questions.h"

#include <QPointer>
#include <QUrl>
#include <QWindow>

#include <algorithm>
#include <memory>
#include <optional>
#include <vector>

/// Stand-ins for the platform's ports, steered by the tests.
namespace Kestrune::Fakes {

struct FakeDisplays : Displays
{
    QList<Display> all() const override { return displays; }
    std::optional<Display> main() const override
    {
        return displays.isEmpty() ? std::nullopt : std::optional(displays.value(mainIndex));
    }

    void housingsChanged() override {}

    QList<Display> displays;
    int mainIndex = 0;
};

struct FakePointer : Pointer
{
    QPointF location() override { return now.location; }
    PointerSample sample() override
    {
        moves = std::exchange(sampled, now) != now;
        return now;
    }
    bool isAtRest() const override { return !moves && !now.primaryDown; }

    void set(const PointerSample &sample)
    {
        now = sample;
        moves = true;
        Q_EMIT stirred();
    }

    PointerSample now;
    PointerSample sampled;
    bool moves = false;
};

struct FakePanels : NotchPanels
{
    struct Panel : NotchPanel
    {
        Panel(FakePanels &owner, NotchScreenModel &shownModel)
            : panels(owner)
            , model(&shownModel)
        {
            panels.alive.push_back(this);
        }
        ~Panel() override
        {
            std::erase(panels.alive, this);
            panels.outlivedModels += model ? 0 : 1;
        }
        Q_DISABLE_COPY_MOVE(Panel)

        void setFrame(const QRectF &place) override { frame = place; }
        void setBelowPanels(bool yes) override { below = yes; }
        void orderFront() override { shown = true; }
        void orderOut() override { shown = false; }
        void setHitArea(const QRectF &area) override { hitArea = area; }
        void setOutline(const QPainterPath &) override {}
        void announceFrame() override {}
        void makeKey() override { key = true; }
        void resignKey() override { key = false; }

        FakePanels &panels;
        QPointer<NotchScreenModel> model;
        QRectF frame;
        QRectF hitArea;
        bool below = true;
        bool shown = false;
        bool key = false;
    };

    std::unique_ptr<NotchPanel> create(const QRectF &frame, NotchScreenModel &model, NotchServices &) override
    {
        auto panel = std::make_unique<Panel>(*this, model);
        panel->frame = frame;
        return panel;
    }

    std::vector<Panel *> alive;
    int outlivedModels = 0; ///< Panels that were still there when their model went.
};

struct FakeHotKeys : HotKeys
{
    void installHandler(Handler installed) override { handler = std::move(installed); }
    void installBindingHandler(BindingHandler installed) override { bindingHandler = std::move(installed); }
    bool registerHotKey(quint32 keyCode, quint32 modifiers, HotKeyIdentity identity) override
    {
        if (taken)
            return false;
        registered.push_back(identity);
        codes = {keyCode, modifiers};
        return true;
    }
    HotKeyBinding firstBinding() const override { return first; }
    void unregisterHotKey(HotKeyIdentity identity) override { std::erase(registered, identity); }

    /// The desktop tells what came of the newest registration.
    void bind(const HotKeyBinding &binding) { bindingHandler(registered.back(), binding); }

    Handler handler;
    BindingHandler bindingHandler;
    HotKeyBinding first{HotKeyBinding::State::asked};
    std::vector<HotKeyIdentity> registered;
    std::pair<quint32, quint32> codes;
    bool taken = false;
};

struct FakeDrags : DragPasteboard
{
    bool holdsFileUrls() const override { return !files.isEmpty(); }
    QFuture<QList<QUrl>> fileUrls() override
    {
        Questions<QList<QUrl>> questions;
        const auto future = questions.ask();
        questions.answerLast(files);
        return future;
    }

    QList<QUrl> files;
};

struct FakeFullScreenWindows : FullScreenWindows
{
    bool cover(const QString &display) const override { return covered.contains(display); }
    void set(const QStringList &displays)
    {
        covered = displays;
        Q_EMIT changed();
    }

    QStringList covered;
};

/// Gives what the test put there.
struct FakeWindowSystem : WindowSystem
{
    struct Parts
    {
        Displays *displays;
        Pointer *pointer;
        HotKeys *hotKeys;
        DragPasteboard *drags;
        Pasteboard *pasteboard;
        FullScreenWindows *fullScreenWindows;
    };

    Displays &displays() override { return *now.displays; }
    Pointer &pointer() override { return *now.pointer; }
    HotKeys &hotKeys() override { return *now.hotKeys; }
    DragPasteboard &drags() override { return *now.drags; }
    Pasteboard &pasteboard() override { return *now.pasteboard; }
    FullScreenWindows &fullScreenWindows() override { return *now.fullScreenWindows; }
    bool pacesFrames() const override { return false; }
    bool awaitFrame(QWindow &, std::function<void()>) override { return false; }
    std::unique_ptr<NotchPanel> makePanel(std::unique_ptr<QWindow> /*window*/,
                                          const QRectF & /*frame*/) override
    {
        qFatal("the tests' panels have no windows");
    }

    Parts now{};
};

} // namespace Kestrune::Fakes
