// Asks for a load in a modal dialog: its case, its kind among those that fit what is selected, and its values in the
// document's units.
#pragma once

#include "model/load/Carico.h"

#include <memory>

class CCasoCarico;
class QWidget;

namespace host {

class HostDocument;

struct LoadChoice {
    CCasoCarico* loadCase = nullptr; // the document's
    std::unique_ptr<CCarico> load;   // null when the user cancels
};

// The document must have a load case.
LoadChoice AskLoad(QWidget& parent, HostDocument& document);

} // namespace host
