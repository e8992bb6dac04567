#include "host/document/StepSummary.h"

#include <algorithm>

namespace host {

namespace {

struct Noun {
    Kind kind;
    const char* one;
    const char* more;
    bool feminine;
};
const Noun nouns[] = {
    {Kind::Node, "nodo", "nodi", false},
    {Kind::Beam, "trave", "travi", true},
    {Kind::Truss, "asta", "aste", true},
    {Kind::Wall, "setto", "setti", false},
    {Kind::Slab, "solaio", "solai", false},
    {Kind::LoadCase, "caso di carico", "casi di carico", false},
    {Kind::Combination, "combinazione", "combinazioni", true},
    {Kind::Group, "gruppo", "gruppi", false},
    {Kind::Material, "materiale", "materiali", false},
    {Kind::Section, "sezione", "sezioni", true},
    {Kind::Thickness, "spessore", "spessori", false},
};

void Join(CString& text, const CString& part) {
    if (!text.IsEmpty())
        text += ", ";
    text += part;
}

// With a participle that ends in "at", which agrees with the noun; null for none.
CString Phrase(const Noun& noun, int count, const char* participle) {
    CString text;
    text.Format("%d %s", count, count == 1 ? noun.one : noun.more);
    if (participle) {
        text += CString(" ") + participle;
        text += noun.feminine ? (count == 1 ? "a" : "e") : (count == 1 ? "o" : "i");
    }
    return text;
}

CString Phrases(const KindCounts& counts, const char* participle) {
    CString text;
    for (const Noun& noun : nouns)
        if (const int count = counts[static_cast<std::size_t>(noun.kind)])
            Join(text, Phrase(noun, count, participle));
    return text;
}

} // namespace

CString CountText(const KindCounts& counts) {
    return Phrases(counts, nullptr);
}

CString Sentence(const StepSummary& summary) {
    CString done;
    for (const auto& [counts, participle] :
         {std::pair(&summary.made, "creat"), std::pair(&summary.removed, "eliminat")})
        if (const CString phrases = Phrases(*counts, participle); !phrases.IsEmpty())
            Join(done, phrases);
    if (summary.moved > 0)
        Join(done, Phrase(nouns[0], summary.moved, "spostat"));
    const auto madeKinds = std::count_if(summary.made.begin(), summary.made.end(), [](int count) { return count > 0; });
    for (const Noun& noun : nouns) {
        const auto kind = static_cast<std::size_t>(noun.kind);
        const int count = summary.present[kind];
        if (count == 0)
            continue;
        CString number; // of what has just been named, otherwise with its name
        number.Format("%d", count);
        const bool named = madeKinds == 1 && summary.made[kind] > 0;
        Join(done,
             (named ? number : Phrase(noun, count, nullptr)) + (count == 1 ? " già presente"_t : " già presenti"_t));
    }
    if (done.IsEmpty()) // otherwise it follows from what came and went
        done = Phrases(summary.changed, "modificat");
    return done.IsEmpty() ? summary.name + "." : summary.name + ": " + done + ".";
}

} // namespace host
