#pragma once

#include "NotchKit/Shell/NotchWindow.h"
#include "Support/Core.h"

#include <QQmlEngine>
#include <QQuickItem>

/// A notch window over fake ports, shown on the offscreen platform.
struct WindowStage
{
    Kestrune::Fakes::Core core;
    QQmlEngine engine;
    std::unique_ptr<Kestrune::NotchWindow> window;
    QRectF outline;

    explicit WindowStage(Kestrune::Fakes::MemoryDefaults::Values stored = {})
        : core(std::move(stored))
    {
        core.displays.displays = {Kestrune::Fakes::externalDisplay()};
        core.settings.setColumn(Kestrune::HomeColumn::center, Kestrune::HomeWidget::timer);
        core.settings.setColumn(Kestrune::HomeColumn::right, Kestrune::HomeWidget::note);
        core.controller.start();
        window = std::make_unique<Kestrune::NotchWindow>(engine, core.model(), core.services);
        QObject::connect(window.get(), &Kestrune::NotchWindow::outlineChanged, window.get(),
                         [this](const QPainterPath &path) { outline = path.boundingRect(); });
        window->resize(880, 390);
        window->show();
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
