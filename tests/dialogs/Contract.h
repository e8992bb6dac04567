// What the contracts of the tool dialogs and of the modal ones share: a dialog's fields, as its template lists them.
#pragma once

#include "platform/resource/Resource.h"
#include "tests/support/DialogTest.h"

#include <functional>
#include <set>
#include <span>
#include <string>
#include <vector>

// What the user types and what comes of it. A text goes to the next enabled edit in the template's order, "[X]" clicks
// the radio button or check box X.
struct Typed {
    std::vector<std::string> texts;
    Lines calls;             // that the host receives after OK
    std::string values = ""; // of the public fields after OK, modal dialogs only
};

class ContractFields {
  public:
    explicit ContractFields(int templateId);

    // Whether there is an edit that the user can type into.
    bool Any() const;
    // The texts of the visible edits, "-" before disabled and "=" before read-only ones, and of the checked radio
    // buttons and check boxes, in brackets.
    std::string Shown(const DialogDriver& driver) const;
    void Type(DialogDriver& driver, const std::vector<std::string>& texts) const;
    // As a program does, disabled edits too.
    void SetTexts(DialogDriver& driver, const std::string& text) const;
    void SpoilTexts(DialogDriver& driver) const;        // none is a number any more
    void ClickOtherChoices(DialogDriver& driver) const; // radio buttons and check boxes that are not checked
    // Every row of the lists, every button but OK and Cancel.
    void ClickEverything(DialogDriver& driver) const;
    // The text that a template has where the dialog writes its own must have gone.
    void ExpectNoPlaceholder(const DialogDriver& driver) const;

    // Calls `refused` after each edit that got a text which is no number, with its message declared; the edit must have
    // kept the text and have the focus. `whole` holds whole numbers, `texts` takes any text.
    void RefusesTexts(DialogDriver& driver, UserScript& user, const std::set<int>& whole, const std::set<int>& texts,
                      const std::function<void()>& refused) const;

  private:
    std::span<const platform::ControlTemplate> m_controls;
};

// The host has nothing to give: lists of nulls, with one object among them that lacks all its parts and is selected.
void HoldNothing(RecordingHost& host);

// A handler for a control that the template lacks is never called, and nothing else would tell. `commands` come without
// a control.
void ExpectHandledNumbersExist(const CWnd& dialog, int templateId, const std::set<int>& commands = {});
