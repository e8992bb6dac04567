// The pointer of who works in a view without one: the object on which the keyboard stands, and the number being typed.
#pragma once

#include "platform/core/Geometry.h"

#include <QString>

class CElemento;
class QKeyEvent;
class QPainter;

namespace host {

class HostView;
enum class Kind;

// The arrows go to the next object in their direction, Tab and Shift+Tab along the document. The objects are those that
// may be selected or, while the view asks for nodes, nodes. Enter and Space do what a click there does, with its
// modifiers. While the view asks for nodes, digits and Enter pick the node of that number.
class KeyboardCursor {
  public:
    explicit KeyboardCursor(HostView& view) : m_view(view) {}

    bool Press(const QKeyEvent& event); // whether the key was used
    void Hide();                        // the mouse is used again
    bool DropNumber();                  // false when none was being typed
    const QString& Number() const { return m_number; }
    void Draw(QPainter& painter) const;

  private:
    bool IsWanted(Kind kind) const;
    CElemento* Object() const; // null for none
    void Put(CElemento& object);
    // All that take(object, place on the screen) may want, in document order.
    template <class Action>
    void ForEach(const Action& take) const;
    void Walk(int dx, int dy);
    void Step(bool backward);
    bool Type(const QKeyEvent& event);
    bool Act(const QKeyEvent& event);

    HostView& m_view;
    Kind m_kind{};
    int m_id = 0; // by number: undo may take the object away; 0 for none
    QString m_number;
};

} // namespace host
