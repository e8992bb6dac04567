// What the undo recorder needs of the document whose changes it records.
#pragma once

namespace host {

class HostSelection;

class UndoOwner {
  public:
    virtual HostSelection& Selection() = 0; // a step holds it as it was before and after
    // A step was made, undone or redone; false when the model itself is as it was.
    virtual void NotifyChange(bool model) = 0;
    // Asks for CloseImplicit when control is back in the event loop; false when there is no loop to come back to.
    virtual bool ScheduleIdle() = 0;

  protected:
    ~UndoOwner() = default;
};

} // namespace host
