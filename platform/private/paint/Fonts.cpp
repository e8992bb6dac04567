#include "platform/private/paint/Fonts.h"
#include "platform/core/String.h"

#include <QFontDatabase>

#include <algorithm>
#include <iterator>

namespace platform {
namespace {

constexpr int dialogFontHeight = 11;

struct Substitute {
    const char* face; // lower case
    const char* family;
    int minimumWeight; // 0 for none
    int stretch;       // percent of the family's own width
};

// The families on the right have the advances of the faces on the left. Tahoma and Verdana have no such family here.
constexpr Substitute substitutes[] = {
    {"arial", "Liberation Sans", 0, 100},          {"arial black", "Liberation Sans", 900, 100},
    {"helvetica", "Liberation Sans", 0, 100},      {"helv", "Liberation Sans", 0, 100},
    {"ms sans serif", "Liberation Sans", 0, 100},  {"ms shell dlg", "Liberation Sans", 0, 100},
    {"ms shell dlg 2", "Liberation Sans", 0, 100}, {"system", "Liberation Sans", 700, 100},
    {"courier new", "Liberation Mono", 0, 100},    {"courier", "Liberation Mono", 0, 100},
    {"fixedsys", "Liberation Mono", 0, 100},       {"times new roman", "Liberation Serif", 0, 100},
    {"ms serif", "Liberation Serif", 0, 100},
};

Substitute Narrow() {
    static const bool installed = QFontDatabase::hasFamily(QStringLiteral("Liberation Sans Narrow"));
    return installed ? Substitute{"", "Liberation Sans Narrow", 0, 100} : Substitute{"", "Liberation Sans", 0, 82};
}

} // namespace

QFont ToolkitFont(const char* face, int pixelHeight, int weight, bool italic) {
    CString name = face && *face ? face : "MS Sans Serif";
    name.Trim().MakeLower();
    const auto found =
        std::find_if(std::begin(substitutes), std::end(substitutes), [&](const auto& s) { return name == s.face; });
    Substitute chosen{"", nullptr, 0, 100};
    if (name == "arial narrow")
        chosen = Narrow();
    else if (found != std::end(substitutes))
        chosen = *found;

    QFont font(chosen.family ? QString::fromLatin1(chosen.family) : QString::fromStdString(CString(face).ToUtf8()));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(std::clamp(pixelHeight ? pixelHeight : dialogFontHeight, 1, 2000));
    const int asked = std::max(weight ? weight : 400, chosen.minimumWeight);
    font.setWeight(static_cast<QFont::Weight>(std::clamp(asked, 1, 1000)));
    font.setItalic(italic);
    if (chosen.stretch != 100)
        font.setStretch(chosen.stretch);
    font.setHintingPreference(QFont::PreferVerticalHinting); // the other hintings round advances at 100 % only
    font.setKerning(false);
    return font;
}

} // namespace platform
