// Why an analysis cannot be carried out.
#pragma once

#include "platform/core/String.h"

#include <utility>

namespace host {

// Thrown by value inside the analysis only; its callers get the message.
struct Refusal {
    explicit Refusal(CString why) : message(std::move(why)) {}
    template <class... Arguments>
    explicit Refusal(const CString& format, Arguments... arguments) {
        message.Format(format, arguments...);
    }

    CString message; // Italian, one sentence
};

} // namespace host
