// The commands of load cases, combinations and groups: each runs its modal dialog until it is confirmed or cancelled.
#pragma once

class CWnd;

namespace host {

class HostDocument;

void RunLoadCaseList(HostDocument& document, CWnd& frame);
void RunNewLoadCase(HostDocument& document, CWnd& frame); // and makes it the current one
void RunNewCombination(HostDocument& document, CWnd& frame);
void RunChangeCombination(HostDocument& document, CWnd& frame); // the current one
void RunNewGroup(HostDocument& document, CWnd& frame);          // of what is selected
void RunNamePrompt(HostDocument& document, CWnd& frame);        // the bare prompt, for pictures

} // namespace host
