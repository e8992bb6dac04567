// Tests of one tool dialog that stands open on the view, with what the host received while it opened taken away.
#pragma once

#include "platform/window/Application.h"
#include "tests/support/DialogTest.h"

#include <initializer_list>
#include <string>
#include <utility>

template <class T>
class ToolTest : public DialogTest {
  protected:
    ~ToolTest() override { m_dialog.DestroyWindow(); }

    DialogDriver Reopen() {
        m_dialog.DestroyWindow();
        EXPECT_NE(m_host.Open(m_dialog), 0);
        m_host.Take();
        return DialogDriver(m_dialog);
    }
    // What the controls show, with blanks between them.
    std::string Texts(std::initializer_list<int> ids) const {
        std::string all;
        for (const int id : ids)
            all += (all.empty() ? "" : " ") + m_driver.Text(id);
        return all;
    }
    // Types into edits that are numbered one after the other. A handler or field of another edit shows only where the
    // texts differ.
    void TypeFrom(int id, std::initializer_list<const char*> texts) {
        for (const char* text : texts)
            m_driver.Type(id++, text);
    }
    // Whether controls that go together are enabled, as ranges from first to last.
    bool EnabledTogether(std::initializer_list<std::pair<int, int>> ranges) const {
        int enabled = 0, all = 0;
        for (const auto& [first, last] : ranges)
            for (int id = first; id <= last; ++id, ++all)
                enabled += m_driver.Enabled(id);
        EXPECT_TRUE(enabled == 0 || enabled == all) << "box, labels and edits: " << enabled << " of " << all;
        return enabled == all;
    }
    // What the host receives where it ends the dialog that has called it.
    static Lines Ended(Lines calls) {
        calls.insert(calls.end(), {"WM_FINEDIALOGO 1", "StopDefinisciVettore"});
        return calls;
    }

    T m_dialog;
    DialogDriver m_driver = Reopen();
};
