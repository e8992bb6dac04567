#include "platform/core/String.h"

#include <gtest/gtest.h>

#include <limits>
#include <unordered_set>

// Catches texts with accents that reach the screen or a file as two characters each.
TEST(CodePage, ConvertsBothWays) {
    EXPECT_EQ("perch\xe9 \x80 5 \x96 2"_t.GetLength(), 14) << "malformed sources give one '?' for each bad byte";
    const CString text = "perché € 5 – 2"_t;
    EXPECT_EQ(text, CString("perch\xe9 \x80 5 \x96 2"));
    EXPECT_EQ(text.ToUtf8(), "perché € 5 – 2");
    for (int byte = 1; byte < 256; ++byte) {
        const CString one(static_cast<char>(byte));
        const bool undefined = byte == 0x81 || byte == 0x8d || byte == 0x8f || byte == 0x90 || byte == 0x9d;
        EXPECT_EQ(CString::FromUtf8(one.ToUtf8()), undefined ? CString("?") : one) << byte;
    }
}

// Catches a converter that reads past a truncated sequence or lets foreign characters through as garbage.
TEST(CodePage, ReplacesWhatItCannotHold) {
    EXPECT_EQ(CString::FromUtf8("\xe6\xbc\xa2 x"), "? x");                    // a character outside the code page
    EXPECT_EQ(CString::FromUtf8("\xf0\x9f\x98\x80"), "?");                    // beyond 16 bits
    EXPECT_EQ(CString::FromUtf8("a\xc3"), "a?");                              // cut off
    EXPECT_EQ(CString::FromUtf8("\xe2\x82z"), "?z");                          // cut short in the middle
    EXPECT_EQ(CString::FromUtf8("\xc0\xaf\xff"), "???");                      // overlong, never a byte of UTF-8
    EXPECT_EQ(CString::FromUtf8("\xed\xa0\x80"), "?");                        // half a surrogate pair
    EXPECT_EQ(CString::FromUtf8("\xc2\x81"), "?");                            // undefined in the code page
    EXPECT_EQ(CString::FromUtf8(std::string_view("a\0b", 3)).GetLength(), 3); // counted, not ended by 0
}

// Catches sorted lists that put "È" after "z" in one case and not in the other, and signs taken for letters.
TEST(CodePage, KnowsTheCaseOfAccents) {
    EXPECT_EQ("Più è çüÿšž ÷ß"_t.MakeUpper(), "PIÙ È ÇÜŸŠŽ ÷ß"_t);
    EXPECT_EQ("PIÙ È ÇÜŸŠŽ ×"_t.MakeLower(), "più è çüÿšž ×"_t);
    EXPECT_EQ("CITTÀ"_t.CompareNoCase("città"_t), 0);
    EXPECT_LT(CString("trave").CompareNoCase("Trave 2"), 0);
    EXPECT_LT(CString("a").CompareNoCase("\xe0"), 0) << "bytes compare unsigned";
    EXPECT_NE(CString("a").Compare("A"), 0);
}

// Catches positions outside the text that read or cut foreign memory.
TEST(String, PartsAreCutToTheText) {
    const CString text("telaio");
    const std::pair<CString, const char*> parts[] = {
        {text.Left(3), "tel"},  {text.Left(99), "telaio"}, {text.Left(-1), ""},   {text.Mid(2), "laio"},
        {text.Mid(2, 2), "la"}, {text.Mid(6), ""},         {text.Mid(99, 2), ""}, {text.Mid(-2, 3), "tel"}};
    for (const auto& [part, wanted] : parts)
        EXPECT_EQ(part, wanted);
    EXPECT_EQ(text[0], 't');
    EXPECT_EQ(text[6], '\0');
    EXPECT_EQ(text.GetAt(-1), '\0');
    EXPECT_EQ(CString(nullptr).GetLength(), 0);
}

TEST(String, Searches) {
    const CString path("C:\\lavori\\ponte.asg");
    EXPECT_EQ(path.ReverseFind('\\'), 9);
    EXPECT_EQ(path.Find('\\', 3), 9);
    EXPECT_EQ(path.Find("ponte"), 10);
    EXPECT_EQ(path.Find("ponte", 11), -1);
    EXPECT_EQ(path.Find('x', 99), -1);
    EXPECT_EQ(path.FindOneOf(".\\"), 2);
    int at = 0;
    const CString list(" a;;b ");
    EXPECT_EQ(list.Tokenize("; ", at), "a");
    EXPECT_EQ(list.Tokenize("; ", at), "b");
    EXPECT_EQ(list.Tokenize("; ", at), "");
    EXPECT_EQ(at, -1);
}

// Catches replacing that meets its own output, and changes whose count or length is wrong.
TEST(String, Changes) {
    CString text("a-b-a");
    EXPECT_EQ(text.Replace("a", "aa"), 2);
    EXPECT_EQ(text, "aa-b-aa");
    EXPECT_EQ(text.Replace("", "x"), 0);
    EXPECT_EQ(CString(" \t x y \n").Trim(), "x y");
    EXPECT_EQ(CString("   ").TrimRight(), "");
    text = "abc";
    text = static_cast<const char*>(text) + 1; // its own bytes
    EXPECT_EQ(text, "bc");
    text += text;
    EXPECT_EQ('<' + text + "> " + CString("x") + '!', "<bcbc> x!");
}

TEST(String, ComparesAndHashes) {
    const CString a("a"), b("b");
    EXPECT_TRUE(a == "a" && "a" == a && a != b && a < b && "b" > a && a <= "a" && !(b < a));
    const std::unordered_set<CString> set = {"x", "y", "x"};
    EXPECT_EQ(set.size(), 2u);
}

template <typename... Arguments>
CString Formatted(const char* format, const Arguments&... arguments) {
    CString text;
    text.Format(format, arguments...);
    return text;
}

TEST(Format, FollowsPrintf) {
    EXPECT_EQ(Formatted("%d : %s", 4, "Vento +X"_t), "4 : Vento +X");
    EXPECT_EQ(Formatted("%5.2f|%-6d|%06d|%+g|%.3e|%X|%c|%%", 3.14159, 42, -42, 0.5, 12345.678, 255, 'z'),
              " 3.14|42    |-00042|+0.5|1.235e+04|FF|z|%");
    EXPECT_EQ(Formatted("%.15g %g %u %x %ld %lu", 0.1, 1e21, 4000000000u, -1, -5L, 5UL),
              "0.1 1e+21 4000000000 ffffffff -5 5");
    CString text = Formatted("%*d|%-*s|%.*f", 4, 7, 3, "a", 1, 2.55);
    EXPECT_EQ(text, "   7|a  |2.5");
    text.AppendFormat(" %s", CString('x', 300));
    EXPECT_EQ(text.GetLength(), 313) << "longer than any fixed buffer";
}

// Catches a wrong pairing of conversion and argument that prints foreign memory or crashes.
TEST(Format, SurvivesWrongArguments) {
    EXPECT_EQ(Formatted("%d %s %g", 2.9, 7, 3), "2 7 3");
    EXPECT_EQ(Formatted("%d", std::numeric_limits<double>::quiet_NaN()), "0");
    EXPECT_EQ(Formatted("[%s][%s]", static_cast<const char*>(nullptr)), "[][]");
    EXPECT_EQ(Formatted("100%"), "100");
    EXPECT_EQ(Formatted("a%n%yb"), "ab");
    CString text = Formatted("%99999999999d", 1);
    EXPECT_EQ(text.GetLength(), 9999);
    text.Format("%s", text); // the old text is the argument
    EXPECT_EQ(text.GetLength(), 9999);
}
