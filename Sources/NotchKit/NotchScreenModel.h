#pragma once

#include "Catalogue.h"
#include "NotchGeometry.h"

#include <QObject>
#include <QProperty>

namespace Kestrune {

/// What one display's notch shows. Written by the controller; the view writes `pinned`, `dropTargeted` and
/// `selected`. Main thread only.
class NotchScreenModel : public QObject
{
    Q_OBJECT
    /// Where the notch is on its display.
    Q_PROPERTY(
        Kestrune::NotchGeometry geometry READ geometry NOTIFY geometryChanged BINDABLE bindableGeometry)
    /// The notch is open.
    Q_PROPERTY(bool expanded READ expanded NOTIFY expandedChanged BINDABLE bindableExpanded)
    /// The pane shown when open.
    Q_PROPERTY(Kestrune::NotchTool selected READ selected WRITE setSelected NOTIFY selectedChanged BINDABLE
                   bindableSelected)
    /// A drag is over the notch view.
    Q_PROPERTY(bool dropTargeted READ dropTargeted WRITE setDropTargeted NOTIFY dropTargetedChanged BINDABLE
                   bindableDropTargeted)
    /// Since the last open or close the pointer has been inside the open notch at least once.
    Q_PROPERTY(
        bool pointerEntered READ pointerEntered NOTIFY pointerEnteredChanged BINDABLE bindablePointerEntered)
    /// The user keeps the open notch open: it never closes by pointer.
    Q_PROPERTY(bool pinned READ pinned WRITE setPinned NOTIFY pinnedChanged BINDABLE bindablePinned)

public:
    explicit NotchScreenModel(const NotchGeometry &geometry, QObject *parent = nullptr);

    NotchGeometry geometry() const { return m_geometry; }
    void setGeometry(const NotchGeometry &geometry) { m_geometry = geometry; }
    QBindable<NotchGeometry> bindableGeometry() { return &m_geometry; }

    bool expanded() const { return m_expanded; }
    void setExpanded(bool expanded) { m_expanded = expanded; }
    QBindable<bool> bindableExpanded() { return &m_expanded; }

    NotchTool selected() const { return m_selected; }
    void setSelected(NotchTool tool) { m_selected = tool; }
    QBindable<NotchTool> bindableSelected() { return &m_selected; }

    bool dropTargeted() const { return m_dropTargeted; }
    void setDropTargeted(bool targeted) { m_dropTargeted = targeted; }
    QBindable<bool> bindableDropTargeted() { return &m_dropTargeted; }

    bool pointerEntered() const { return m_pointerEntered; }
    void setPointerEntered(bool entered) { m_pointerEntered = entered; }
    QBindable<bool> bindablePointerEntered() { return &m_pointerEntered; }

    bool pinned() const { return m_pinned; }
    void setPinned(bool pinned) { m_pinned = pinned; }
    QBindable<bool> bindablePinned() { return &m_pinned; }

Q_SIGNALS:
    void geometryChanged();
    void expandedChanged();
    void selectedChanged();
    void dropTargetedChanged();
    void pointerEnteredChanged();
    void pinnedChanged();

    /// A text field of the view was clicked and needs the keyboard.
    void keyboardWanted();

    /// The user typed in a text field of the view.
    void typed();

    /// The view asks for the notch to be closed, as with Escape.
    void closeWanted();

private:
    Q_OBJECT_BINDABLE_PROPERTY(NotchScreenModel, NotchGeometry, m_geometry,
                               &NotchScreenModel::geometryChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(NotchScreenModel, bool, m_expanded, false,
                                         &NotchScreenModel::expandedChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(NotchScreenModel, NotchTool, m_selected, NotchTool::home,
                                         &NotchScreenModel::selectedChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(NotchScreenModel, bool, m_dropTargeted, false,
                                         &NotchScreenModel::dropTargetedChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(NotchScreenModel, bool, m_pointerEntered, false,
                                         &NotchScreenModel::pointerEnteredChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(NotchScreenModel, bool, m_pinned, false,
                                         &NotchScreenModel::pinnedChanged)
};

} // namespace Kestrune
