#include "tools/rescompiler/Script.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace rescompiler {
namespace {

bool IsWordStart(char c) {
    return std::isalpha(static_cast<unsigned char>(c)) || c == '_';
}

bool IsWordPart(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

// Cuts one file's text into tokens. Directives are handed back as lines.
class Scanner {
  public:
    Scanner(std::string text, std::string file) : text_(std::move(text)), place_{std::move(file), 1} {}

    // The next token, or a Mark "#" whose text goes on with the rest of the directive's line.
    Token Next() {
        SkipBlanksAndComments();
        Token token;
        token.place = place_;
        if (at_ >= text_.size())
            return token;
        const char c = text_[at_];
        if (c == '#')
            ScanDirective(token);
        else if (c == '"')
            ScanText(token);
        else if (std::isdigit(static_cast<unsigned char>(c)))
            ScanNumber(token);
        else if (IsWordStart(c))
            ScanWord(token);
        else
            ScanMark(token);
        return token;
    }

  private:
    bool Looking(const char* start) const { return text_.compare(at_, 2, start) == 0; }

    void Step() {
        if (text_[at_++] == '\n')
            ++place_.line;
    }

    void SkipBlanksAndComments() {
        while (at_ < text_.size()) {
            if (std::isspace(static_cast<unsigned char>(text_[at_]))) {
                Step();
            } else if (Looking("//")) {
                while (at_ < text_.size() && text_[at_] != '\n')
                    ++at_;
            } else if (Looking("/*")) {
                SkipBlockComment();
            } else {
                return;
            }
        }
    }

    void SkipBlockComment() {
        const Place start = place_;
        while (at_ < text_.size() && !Looking("*/"))
            Step();
        if (at_ >= text_.size())
            throw ScriptError(start, "comment without end");
        at_ += 2;
    }

    void ScanDirective(Token& token) {
        const std::size_t end = std::min(text_.find('\n', at_), text_.size());
        token.kind = Token::Kind::Mark;
        token.text = text_.substr(at_, end - at_);
        at_ = end;
    }

    void ScanText(Token& token) {
        token.kind = Token::Kind::Text;
        for (++at_;;) {
            if (at_ >= text_.size() || text_[at_] == '\n')
                throw ScriptError(token.place, "text without closing quote");
            const char c = text_[at_++];
            if (c == '"') {
                if (at_ >= text_.size() || text_[at_] != '"')
                    return;
                ++at_; // a doubled quote stands for one
                token.text += '"';
            } else {
                token.text += c == '\\' ? Escaped() : c;
            }
        }
    }

    char Escaped() {
        const char c = at_ < text_.size() ? text_[at_++] : '\0';
        switch (c) {
        case 't':
        case 'a': // in menus, the mark before the short cut
            return '\t';
        case 'n':
            return '\n';
        case '\\':
        case '"':
            return c;
        default:
            throw ScriptError(place_, std::string("unknown escape \\") + c);
        }
    }

    void ScanNumber(Token& token) {
        std::string digits;
        while (at_ < text_.size() && IsWordPart(text_[at_]))
            digits += text_[at_++];
        token.kind = Token::Kind::Number;
        token.text = digits;
        if (digits.back() == 'L' || digits.back() == 'l')
            digits.pop_back();
        std::size_t used = 0;
        try {
            token.number = std::stoll(digits, &used, digits.starts_with("0x") || digits.starts_with("0X") ? 16 : 10);
        } catch (const std::logic_error&) {
            used = 0;
        }
        if (used != digits.size())
            throw ScriptError(token.place, "bad number " + token.text);
    }

    void ScanWord(Token& token) {
        token.kind = Token::Kind::Word;
        while (at_ < text_.size() && IsWordPart(text_[at_]))
            token.text += text_[at_++];
    }

    void ScanMark(Token& token) {
        token.kind = Token::Kind::Mark;
        token.text = text_[at_++];
        if (token.text.find_first_of(",|{}-") == std::string::npos)
            throw ScriptError(token.place, "unexpected character '" + token.text + "'");
    }

    std::string text_;
    std::size_t at_ = 0;
    Place place_;
};

} // namespace

ScriptError::ScriptError(const Place& place, const std::string& message)
    : std::runtime_error(place.file + ":" + std::to_string(place.line) + ": " + message) {
}

Script::Script(const std::string& path) {
    ReadFile(path, {path, 1});
    tokens_.push_back({Token::Kind::End, "", 0, {path, tokens_.empty() ? 1 : tokens_.back().place.line}});
}

void Script::ReadFile(const std::string& path, const Place& from) {
    if (!files_.insert(path).second)
        return; // a header counts once
    std::ifstream stream(path, std::ios::binary);
    if (!stream)
        throw ScriptError(from, "cannot read " + path);
    std::string text{std::istreambuf_iterator<char>(stream), {}};
    if (text.starts_with("\xEF\xBB\xBF"))
        text.erase(0, 3);
    Scanner scanner(std::move(text), path);
    for (Token token = scanner.Next(); token.kind != Token::Kind::End; token = scanner.Next()) {
        if (token.kind == Token::Kind::Mark && token.text.starts_with('#'))
            ReadDirective(token.text, token.place);
        else
            tokens_.push_back(std::move(token));
    }
}

void Script::ReadDirective(const std::string& line, const Place& place) {
    std::istringstream words(line.substr(1));
    std::string directive, name, value;
    words >> directive >> name >> value;
    if (directive == "pragma" || directive == "ifndef" || directive == "endif")
        return;
    if (directive == "define" && !name.empty()) {
        if (!value.empty() && !value.starts_with("//")) // otherwise a header's guard
            Define(name, value, place);
        return;
    }
    const bool quoted = name.size() > 2 && name.front() == '"' && name.back() == '"';
    if (directive != "include" || !quoted)
        throw ScriptError(place, "unknown directive " + line);
    const auto folder = std::filesystem::path(place.file).parent_path();
    ReadFile((folder / name.substr(1, name.size() - 2)).string(), place);
}

void Script::Define(const std::string& name, const std::string& value, const Place& place) {
    std::size_t used = 0;
    long long number = 0;
    try {
        number = std::stoll(value, &used, 0);
    } catch (const std::logic_error&) {
        used = 0;
    }
    if (used != value.size())
        throw ScriptError(place, name + " is not defined as a number");
    const auto [known, added] = names_.emplace(name, number);
    if (!added && known->second != number)
        throw ScriptError(place, name + " is defined twice");
}

} // namespace rescompiler
