#pragma once

#include "NotchKit/Shell/NotchWindow.h"
#include "NotchKit/Shell/ViewEngine.h"
#include "Support/Core.h"

#include <QQuickItem>

/// A notch window over fake ports, shown on the offscreen platform.
struct WindowStage
{
    Fakes::Core core;
    ViewEngine engine;
    std::unique_ptr<NotchWindow> window;
    QRectF outline;

    explicit WindowStage(Fakes::MemoryDefaults::Values stored = {})
        : core(std::move(stored))
    {
        static const bool once = (registerViews(), true);
        std::ignore = once;
        core.displays.displays = {Fakes::externalDisplay()};
        core.settings.setColumn(HomeColumn::center, HomeWidget::timer);
        core.settings.setColumn(HomeColumn::right, HomeWidget::note);
        core.controller.start();
        window = std::make_unique<NotchWindow>(engine, core.model(), core.services);
        QObject::connect(window.get(), &NotchWindow::outlineChanged, window.get(),
                         [this](const QPainterPath &path) { outline = path.boundingRect(); });
        window->resize(880, 390);
        window->show();
    }

    /// Opens the notch with that tool and the keyboard, and waits until it has its whole size.
    void open(NotchTool tool)
    {
        core.controller.open(tool);
        if (!QTest::qWaitFor([this] { return outline == QRectF(60, 0, 760, 330); }, 60'000))
            qFatal("the notch did not open");
        window->requestActivate();
        QTest::qWait(50);
    }

    void key(Qt::Key key) const { QTest::keyClick(window.get(), key); }
    void click(const QQuickItem *item, QPointF inside, Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mouseClick(window.get(), button, {}, item->mapToScene(inside).toPoint());
    }

    /// The first item of the C++ class, or null.
    template <typename Item>
    Item *find() const
    {
        for (QQuickItem *item : items(window->contentItem())) {
            if (auto *found = qobject_cast<Item *>(item))
                return found;
        }
        return nullptr;
    }
    /// The button that can be pressed and says that, or null.
    QQuickItem *button(const QString &text) const
    {
        for (QQuickItem *item : buttons(window->contentItem())) {
            if (item->property("text") == text || item->property("help") == text)
                return item;
        }
        return nullptr;
    }
    /// The first visible item of the QML type, or null.
    QQuickItem *find(const QString &type) const { return all(type).value(0); }
    QList<QQuickItem *> all(const QString &type) const { return all(window->contentItem(), type); }

    /// `item` and everything below it, shown or not.
    static QList<QQuickItem *> items(QQuickItem *item)
    {
        QList<QQuickItem *> found{item};
        for (QQuickItem *child : item->childItems())
            found += items(child);
        return found;
    }

    /// The visible items of the QML type among them.
    static QList<QQuickItem *> all(QQuickItem *item, const QString &type)
    {
        QList<QQuickItem *> found = items(item);
        found.removeIf([&](QQuickItem *other) {
            const auto name = QString::fromLatin1(other->metaObject()->className());
            return !other->isVisible() || !name.startsWith(type + QLatin1String("_QML"));
        });
        return found;
    }

    static QList<QQuickItem *> buttons(QQuickItem *item)
    {
        QList<QQuickItem *> found = items(item);
        found.removeIf([](QQuickItem *other) {
            return !other->inherits("QQuickAbstractButton") || !other->isVisible() || !other->isEnabled();
        });
        return found;
    }
};
