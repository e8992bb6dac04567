// What the undo recorder needs of the document whose changes it records.
#pragma once

#include <vector>

namespace host {

class DocumentData;
class HostSelection;
enum class Reach;
struct StepSummary;

class UndoOwner {
  public:
    virtual HostSelection& Selection() = 0; // a step holds it as it was before and after
    virtual DocumentData& Data() = 0;
    // A step was made, undone or redone. The news are bits of News; the codes are to be sent again.
    virtual void NotifyChange(Reach reach, unsigned news, const std::vector<long>& codes) = 0;
    // A step was made, or it found everything there already. For the user, not for who follows the model.
    virtual void StepMade(const StepSummary& summary) = 0;
    // A code to be sent again before what it announced.
    virtual void Announce(long hint) = 0;
    // A dialog has cut a line into parts and is about to close the step: the parts are to get what the line carried.
    virtual void FinishDivision() = 0;
    // Asks for CloseImplicit when control is back in the event loop; false when there is no loop to come back to.
    virtual bool ScheduleIdle() = 0;

  protected:
    ~UndoOwner() = default;
};

} // namespace host
