#pragma once

#include "NotchPresentation.h"

#include <QPainterPath>
#include <QPointer>
#include <QQuickWindow>

#include <functional>

class QQmlComponent;
class QQmlEngine;

namespace Kestrune {

/// A transparent window that shows the notch view of one display.
class NotchWindow : public QQuickWindow
{
    Q_OBJECT

public:
    /// `engine`, `model` and `services` outlive the window.
    NotchWindow(QQmlEngine &engine, NotchScreenModel &model, NotchServices &services);
    ~NotchWindow() override;

    /// Makes what the open notch shows before it opens first, a little at a time; does nothing once it is
    /// made.
    void prepare();

    /// From now on all animations step with this window's frames, where it draws any.
    void paceAnimations();

    /// From now on they keep the pace of this window's display while the window is shown, and step with its
    /// frames where `awaitFrame` can tell of the next one: it calls back then, once, or returns false.
    void paceAnimations(std::function<bool(std::function<void()> then)> awaitFrame);

    /// Tells the model of what is typed in a text field; Shift+F10 is the menu key. Of items of this window.
    bool eventFilter(QObject *item, QEvent *event) override;

Q_SIGNALS:
    /// The notch as it is drawn from now on, in points from the window's top left, y growing downwards.
    void outlineChanged(const QPainterPath &outline);

private:
    void watchKeyboard();

    NotchScreenModel &m_model;
    NotchPresentation m_presentation;
    QPointer<QQuickItem> m_watched; ///< What has the keyboard.
    std::unique_ptr<QQuickItem> m_root;
};

/// Registers the views' types and sets the pace of animations; once, before the first window is made.
void registerViews();

} // namespace Kestrune
