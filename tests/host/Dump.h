// A document as text, for comparing two states bit for bit.
#pragma once

#include "host/document/DocumentData.h"

#include <functional>
#include <string>

namespace host {
class HostDocument;
}

// Every object in document order with every value in full precision, the current case, units and counters. Nothing
// that hangs on addresses.
std::string Dump(const host::DocumentData& data);

// The command is one step, whose undo and redo give both states back to the last bit, selection included; twice, since
// a first undo may leave damage that only shows in the second.
void ExpectExact(host::HostDocument& document, const std::function<void()>& command, const std::function<void()>& undo,
                 const std::function<void()>& redo);
