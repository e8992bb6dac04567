// Who wants to hear of a document's changes: its views, and through them the open tool dialogs.
#pragma once

class CObject;
class CView;

namespace host {

struct DocumentObserver {
    virtual ~DocumentObserver() = default;

    // The arguments are those of CQuovarDoc::UpdateAllViews. Observers may be added or removed during the call; one
    // that is removed hears nothing more, one that is added hears of the next change.
    virtual void OnDocumentUpdate(CView* sender, long hint, CObject* pHint) = 0;
};

} // namespace host
