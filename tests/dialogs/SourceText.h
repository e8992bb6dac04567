// The string literals of a C++ source.
#pragma once

#include <string>
#include <vector>

// Literals that stand side by side are one: the compiler joins them, and the suffix of any of them is that of all.
struct Literal {
    int line = 0;       // of its beginning
    std::string text;   // between the quotes, escapes as written
    std::string suffix; // "_t"; empty for none
    std::string macro;  // the name before an opening bracket right in front: "QStringLiteral"; empty for none
    bool ascii = true;
};
std::vector<Literal> LiteralsOf(const std::string& source);
