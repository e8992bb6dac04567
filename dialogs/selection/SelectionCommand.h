// What the commands on the selection do alike.
#pragma once

#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/frame/host/QuovarSelection.h"
#include "dialogs/frame/host/QuovarUndo.h"

#include <array>

class CSpinButtonCtrl;
class CWnd;

// One step of the document's undo for as long as it lives: opened with the record of its kind, closed even when the
// host operation inside it throws.
class CommandUndo {
  public:
    using Record = std::array<double, 10>;

    CommandUndo(CQuovarDoc& doc, unsigned int kind, const Record& record = {});
    ~CommandUndo();
    CommandUndo(const CommandUndo&) = delete;
    CommandUndo& operator=(const CommandUndo&) = delete;

  private:
    CQuovarUndo& m_undo;
    unsigned int m_kind;
};

// The join kind of a group of radio buttons in the order beams, truss members, nothing; no button joins nothing.
int JoinKind(int radio);

// False, after telling the user, for no copies at all. Negative counts pass: they make no copy.
bool AcceptCopies(int copies);

// The spin control beside a number of copies: 0 to `maximum`, at `copies`, written into the edit. More can be typed.
void InitCopiesSpin(CSpinButtonCtrl& spin, CWnd* edit, int maximum, int copies);
