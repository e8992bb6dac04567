// What the observers of a document are told, and when.
#pragma once

#include "host/document/DocumentObserver.h"

#include <functional>
#include <vector>

namespace host {

class DocumentData;
class HostAnalysis;
class HostSelection;

// Changes are noted first and told together, as soon as control is back in the event loop: selecting a hundred thousand
// elements one by one is then one notification. Without a scheduler each change is told at once.
class ChangeNotices {
  public:
    // All three outlive it.
    ChangeNotices(const DocumentData& data, const HostSelection& selection, HostAnalysis& analysis)
        : m_data(data), m_selection(selection), m_analysis(analysis) {}

    void AddObserver(DocumentObserver* observer);
    void RemoveObserver(DocumentObserver* observer);
    // At once; see DocumentObserver.
    void Tell(CView* sender, long hint, CObject* pHint = nullptr);

    // See HostCore::SetIdleScheduler.
    void SetScheduler(std::function<void()> scheduler);
    bool ScheduleIdle(); // false, and nothing scheduled, without a scheduler
    void BeginIdle() { m_idleScheduled = false; }

    // To be told. Only Deliver and Send tell.
    void SelectionChanged(unsigned kinds) { m_pending.kinds |= kinds; } // bits 1 << Kind
    void ModelChanged() { m_pending.structure = true; }
    void GroupsChanged() { m_pending.groups = true; }
    void NewsCame(unsigned news) { m_pending.news |= news; } // bits of News
    void ResultsGone() { m_pending.results = true; }
    void ResultsCame() { m_pending.results = false; }
    void SumChanged() { m_pending.sum = true; } // the current combination sums its cases in another way
    void Deliver();                             // as soon as control is back in the event loop
    void Send();                                // now

    // Makes the current case the one that the elements show, and tells; Send does it when the current case is another
    // than the one announced last.
    void ShowCurrentCase();
    void AnnounceCase(int id) { m_announcedCase = id; }

  private:
    void SendNews(unsigned news);
    void SendSelection(unsigned kinds);

    // What happened since the observers were told, in the order in which they are: who reads the model again must find
    // the groups, the results and the selection of that model.
    struct Pending {
        bool structure = false;
        bool groups = false;  // some came, went or have another name
        unsigned news = 0;    // bits of News
        bool results = false; // valid ones went
        bool sum = false;
        unsigned kinds = 0; // whose selection changed
    };

    const DocumentData& m_data;
    const HostSelection& m_selection;
    HostAnalysis& m_analysis;
    std::vector<DocumentObserver*> m_observers; // null where one was removed during a notification
    int m_notifying = 0;                        // calls of Tell that are at work
    std::function<void()> m_scheduler;
    bool m_idleScheduled = false;
    Pending m_pending;
    int m_announcedCase = 0; // the current case that the observers know
};

} // namespace host
