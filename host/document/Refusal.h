// Why the application does not do what it was asked to.
//
// Below the windows nobody is told anything: an operation that may be refused gives back a std::optional<Refusal>, null
// when it was done, or a result that holds one; the analysis throws it by value inside and gives it back at its edge.
// An operation that a dialog asks for through an interface without room for it hands it to HostCore::Refuse. The
// command or the workspace shows the text, the batch modes print it.
#pragma once

#include "platform/core/String.h"

#include <utility>

namespace host {

struct Refusal {
    explicit Refusal(CString why) : message(std::move(why)) {}
    template <class... Arguments>
    explicit Refusal(const CString& format, Arguments... arguments) {
        message.Format(format, arguments...);
    }

    CString message; // Italian, whole sentences
};

} // namespace host
