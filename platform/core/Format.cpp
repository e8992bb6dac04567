// printf's conversions for CString::Format. Each conversion is handed to the C library alone, with its argument brought
// to the type that it names, so a wrong pairing prints a sensible text instead of reading foreign memory.
#include "platform/core/String.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>

namespace platform {
namespace {

using Kind = FormatArgument::Kind;

struct Arguments {
    const FormatArgument* next;
    const FormatArgument* end;

    const FormatArgument* Take() { return next == end ? nullptr : next++; }
};

std::int64_t AsSigned(const FormatArgument& argument) {
    switch (argument.kind) {
    case Kind::Integer:
        return argument.integer;
    case Kind::Real: {
        constexpr double limit = 9.2e18; // beyond it, and for "not a number", the conversion is undefined
        return argument.real >= -limit && argument.real <= limit ? static_cast<std::int64_t>(argument.real) : 0;
    }
    default:
        return static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(argument.text));
    }
}

double AsReal(const FormatArgument& argument) {
    return argument.kind == Kind::Real ? argument.real : static_cast<double>(AsSigned(argument));
}

// A 32-bit argument stays one: -1 is ffffffff, and 4294967295 shown as signed is -1.
std::int64_t SignedOfItsSize(const FormatArgument& argument) {
    const std::int64_t value = AsSigned(argument);
    return argument.kind == Kind::Integer && argument.size <= 4 ? static_cast<std::int32_t>(value) : value;
}

std::uint64_t UnsignedOfItsSize(const FormatArgument& argument) {
    const auto value = static_cast<std::uint64_t>(AsSigned(argument));
    return argument.kind == Kind::Integer && argument.size <= 4 ? static_cast<std::uint32_t>(value) : value;
}

template <typename Value>
void Print(std::string& out, const std::string& conversion, Value value) {
    char text[128];
    const int length = std::snprintf(text, sizeof text, conversion.c_str(), value);
    if (length < 0)
        return;
    if (static_cast<std::size_t>(length) < sizeof text) {
        out.append(text, static_cast<std::size_t>(length));
        return;
    }
    std::string longText(static_cast<std::size_t>(length) + 1, '\0');
    std::snprintf(longText.data(), longText.size(), conversion.c_str(), value);
    out.append(longText, 0, static_cast<std::size_t>(length));
}

void PrintText(std::string& out, const std::string& conversion, const FormatArgument& argument) {
    switch (argument.kind) {
    case Kind::Text:
        Print(out, conversion + 's', argument.text ? static_cast<const char*>(argument.text) : "");
        break;
    case Kind::Real:
        Print(out, conversion + 's', std::to_string(argument.real).c_str());
        break;
    default:
        Print(out, conversion + 's', std::to_string(AsSigned(argument)).c_str());
    }
}

void Convert(std::string& out, const std::string& conversion, char letter, const FormatArgument& argument) {
    switch (letter) {
    case 'd':
    case 'i':
        Print(out, conversion + "lld", static_cast<long long>(SignedOfItsSize(argument)));
        break;
    case 'u':
    case 'x':
    case 'X':
    case 'o':
        Print(out, conversion + "ll" + letter, static_cast<unsigned long long>(UnsignedOfItsSize(argument)));
        break;
    case 'c':
        if (const char byte = static_cast<char>(AsSigned(argument)); byte != '\0')
            Print(out, conversion + 'c', static_cast<int>(byte));
        break;
    case 's':
    case 'S':
        PrintText(out, conversion, argument);
        break;
    case 'p':
        Print(out, conversion + 'p', reinterpret_cast<const void*>(static_cast<std::intptr_t>(AsSigned(argument))));
        break;
    default: // e E f F g G a A
        Print(out, conversion + letter, AsReal(argument));
    }
}

// Flags, width and precision of one conversion, with '*' replaced by its argument; leaves `at` on the letter. A width
// above 9999 is cut: it can only come from a damaged text and would ask for gigabytes.
std::string ReadConversion(const char*& at, Arguments& arguments) {
    std::string conversion = "%";
    while (*at && std::strchr("-+ #0", *at))
        conversion += *at++;
    while (*at && std::strchr("0123456789.*", *at)) {
        if (*at == '.') {
            conversion += *at++;
        } else if (*at == '*') {
            const FormatArgument* width = arguments.Take();
            const auto value = width ? std::clamp<std::int64_t>(AsSigned(*width), -9999, 9999) : 0;
            conversion += std::to_string(value);
            ++at;
        } else {
            int value = 0;
            for (; *at >= '0' && *at <= '9'; ++at)
                value = std::min(9999, value * 10 + (*at - '0'));
            conversion += std::to_string(value);
        }
    }
    while (*at && std::strchr("hlLqjztI", *at))
        ++at; // the argument knows its own size
    return conversion;
}

} // namespace

std::string Format(const char* pattern, const FormatArgument* arguments, std::size_t count) {
    std::string out;
    Arguments left = {arguments, arguments + count};
    for (const char* at = pattern ? pattern : ""; *at;) {
        const char* percent = std::strchr(at, '%');
        if (!percent)
            return out.append(at);
        out.append(at, percent);
        at = percent + 1;
        if (*at == '%') {
            out += *at++;
            continue;
        }
        const std::string conversion = ReadConversion(at, left);
        if (!*at)
            break;
        const char letter = *at++;
        if (!std::strchr("diuxXocsSpeEfFgGaA", letter))
            continue;
        if (const FormatArgument* argument = left.Take())
            Convert(out, conversion, letter, *argument);
    }
    return out;
}

} // namespace platform
