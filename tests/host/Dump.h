// A document as text, for comparing two states bit for bit.
#pragma once

#include "host/document/DocumentData.h"

#include <string>

// Every object in document order with every value in full precision, the current case, units and counters. Nothing
// that hangs on addresses.
std::string Dump(const DocumentData& data);
