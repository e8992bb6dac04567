// What a structure view needs from the application around it.
#pragma once

class CDialogDocument;
class CElemento;
class CFPoint;
class CObject;
class CString;
class CView;
class QString;

namespace host {

class HostView;

class ViewOwner {
  public:
    virtual ~ViewOwner() = default;

    // Picking for the dialogs beside the view; see ToolDialogs.
    virtual bool IsPicking(const HostView& view) const = 0; // whether there is a dialog that the points go to
    virtual void PickingStarted(const HostView& view, const CString& prompt) = 0;
    virtual bool PickingStops(const HostView& view) = 0; // false when it is to go on
    // Whether that dialog takes nodes only, no crossings of construction lines.
    virtual bool PicksNodesOnly(const HostView& view) const = 0;
    virtual void PointPicked(const HostView& view, const CFPoint& point, bool second) = 0;
    // The dialog asked to be ended. It may be any address: only a tool dialog of this view is ended.
    virtual void EndTool(HostView& view, const CDialogDocument* dialog) = 0;
    // The view's document changed; the arguments are those of CQuovarDoc::UpdateAllViews.
    virtual void DocumentChanged(HostView& view, CView* sender, long hint, CObject* pHint) = 0;
    // Prompt, filters or display of the view changed.
    virtual void ViewChanged(HostView& view) = 0;
    // A kind of results of beams (CElementoSettings) was shown or hidden in the view.
    virtual void ResultShown(HostView& view, int kind, bool shown) = 0;
    // The user asks what an object is.
    virtual void ShowProperties(CElemento& element) = 0;
    virtual void ShowCoordinates(const QString& text) = 0;
    virtual void Tell(const CString& sentence) = 0; // what became of a command, for the status bar
    // A long command is running: the model may be half changed and is not to be drawn.
    virtual bool IsWaiting() const = 0;
};

} // namespace host
