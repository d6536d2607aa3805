#pragma once

#include "NotchKit/Views/NotchWindow.h"
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

    /// Every visible item of the QML type below `item`.
    static QList<QQuickItem *> all(QQuickItem *item, const QString &type)
    {
        QList<QQuickItem *> found;
        if (QString::fromLatin1(item->metaObject()->className()).startsWith(type + QLatin1String("_QML")) &&
            item->isVisible())
            found.append(item);
        for (QQuickItem *child : item->childItems())
            found += all(child, type);
        return found;
    }

    static QList<QQuickItem *> buttons(QQuickItem *item)
    {
        QList<QQuickItem *> found;
        if (item->inherits("QQuickAbstractButton") && item->isVisible() && item->isEnabled())
            found.append(item);
        for (QQuickItem *child : item->childItems())
            found += buttons(child);
        return found;
    }
};
