#include "platform/core/String.h"

#include <algorithm>
#include <ostream>

CString CString::Mid(int first, int count) const {
    first = std::clamp(first, 0, GetLength());
    count = std::clamp(count, 0, GetLength() - first);
    return CString(View().substr(static_cast<std::size_t>(first), static_cast<std::size_t>(count)));
}

namespace {

int Position(std::size_t found) {
    return found == std::string::npos ? -1 : static_cast<int>(found);
}

} // namespace

int CString::Find(const char* part, int start) const {
    return part && start >= 0 ? Position(m_bytes.find(part, static_cast<std::size_t>(start))) : -1;
}

int CString::Find(char byte, int start) const {
    return start >= 0 ? Position(m_bytes.find(byte, static_cast<std::size_t>(start))) : -1;
}

int CString::FindOneOf(const char* set) const {
    return Position(m_bytes.find_first_of(set));
}

int CString::ReverseFind(char byte) const {
    return Position(m_bytes.rfind(byte));
}

CString CString::Tokenize(const char* separators, int& start) const {
    const std::size_t first =
        start < 0 ? std::string::npos : m_bytes.find_first_not_of(separators, static_cast<std::size_t>(start));
    if (first == std::string::npos) {
        start = -1;
        return CString();
    }
    const std::size_t last = std::min(m_bytes.find_first_of(separators, first), m_bytes.size());
    start = static_cast<int>(std::min(last + 1, m_bytes.size()));
    return CString(View().substr(first, last - first));
}

int CString::Replace(const char* from, const char* to) {
    const std::string_view old = from ? from : "", replacement = to ? to : "";
    if (old.empty())
        return 0;
    std::string result;
    int count = 0;
    std::size_t done = 0;
    for (std::size_t at; (at = m_bytes.find(old, done)) != std::string::npos; ++count) {
        result.append(m_bytes, done, at - done).append(replacement);
        done = at + old.size();
    }
    if (count > 0)
        m_bytes = result.append(m_bytes, done);
    return count;
}

CString& CString::MakeUpper() {
    std::transform(m_bytes.begin(), m_bytes.end(), m_bytes.begin(), platform::Upper);
    return *this;
}

CString& CString::MakeLower() {
    std::transform(m_bytes.begin(), m_bytes.end(), m_bytes.begin(), platform::Lower);
    return *this;
}

CString& CString::TrimLeft(const char* set) {
    m_bytes.erase(0, m_bytes.find_first_not_of(set));
    return *this;
}

CString& CString::TrimRight(const char* set) {
    m_bytes.erase(m_bytes.find_last_not_of(set) + 1); // npos + 1 is 0: a text of blanks only goes whole
    return *this;
}

CString& CString::Trim(const char* set) {
    return TrimRight(set).TrimLeft(set);
}

CString& CString::operator=(const char* bytes) {
    m_bytes = std::string(bytes ? bytes : ""); // through a copy: the bytes may be our own
    return *this;
}

CString& CString::operator+=(const CString& other) {
    m_bytes += other.m_bytes;
    return *this;
}

CString& CString::operator+=(const char* bytes) {
    if (bytes)
        m_bytes += bytes;
    return *this;
}

CString& CString::operator+=(char byte) {
    m_bytes += byte;
    return *this;
}

CString operator""_t(const char* utf8, std::size_t length) {
    return CString::FromUtf8({utf8, length});
}

std::ostream& operator<<(std::ostream& stream, const CString& string) {
    return stream << string.ToUtf8();
}
