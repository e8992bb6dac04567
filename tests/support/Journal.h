// The list of calls that the recording host received, one line each: the name, then the arguments.
#pragma once

#include "model/values/FPoint.h"
#include "platform/core/String.h"

#include <concepts>
#include <string>
#include <utility>
#include <vector>

class CObject;

class Journal {
  public:
    template <typename... Arguments>
    void Add(const char* name, const Arguments&... arguments) {
        std::string line = name;
        ((line += ' ', line += Text(arguments)), ...);
        m_lines.push_back(line);
    }

    // Every line since the last Take, which empties the list.
    std::vector<std::string> Take() { return std::exchange(m_lines, {}); }
    const std::vector<std::string>& Lines() const { return m_lines; }

    // Numbers as "%.15g", points as (x,y,z), texts in quotes and UTF-8, objects as their class and number.
    static std::string Text(const CFPoint& point);
    static std::string Text(const CString& text);
    static std::string Text(double number);
    static std::string Text(const CObject* object);
    template <std::integral Number>
    static std::string Text(Number number) {
        return std::to_string(number);
    }

  private:
    std::vector<std::string> m_lines;
};
