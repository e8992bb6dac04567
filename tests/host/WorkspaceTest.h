// Base of the tests of the application's windows: a workspace with one document, driven by keys and pointer.
#pragma once

#include "host/ui/Workspace.h"
#include "host/view/HostView.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/UserScript.h"

#include <gtest/gtest.h>

#include <QPoint>

#include <functional>
#include <string>
#include <vector>

class CDialogDocument;
class CElemento;
class CNodo;
class QString;
namespace host {
class HostDocument;
}

class WorkspaceTest : public testing::Test {
  protected:
    WorkspaceTest();
    ~WorkspaceTest() override;

    host::HostView& View() { return *m_workspace->ActiveView(); }
    host::HostDocument& Document() { return View().Document(); }
    // Two beams along X with three nodes, a truss member, a slab above and a wall; unmodified, seen along Y.
    void BuildSmallModel();

    CPoint PixelOf(const CFPoint& point) { return View().Vista().Project(point).Pixel(); }
    CPoint PixelOf(CNodo& node);
    void Click(CPoint at, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void Drag(CPoint from, CPoint to, Qt::MouseButton button = Qt::LeftButton,
              Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void Wheel(CPoint at, int notches);
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier); // to the view
    void Select(const std::vector<CElemento*>& elements);                      // these and no others
    void Trigger(const QString& command);
    void Trigger(UINT dialog, int kind = 0); // the command of a dialog, by the number of its template

    // From the menu; null, and a failure, when it does not open.
    CDialogDocument* OpenTool(UINT dialog);
    CDialogDocument* OpenLinear(); // the linear generation

    // The document as text; see Dump.
    std::string State();
    // One step of that name; see ExpectExact.
    void ExpectOneStep(const char* name, const std::function<void()>& command);

    UserScript m_user;
    std::unique_ptr<host::Workspace> m_workspace;
};
