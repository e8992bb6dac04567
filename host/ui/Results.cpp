#include "host/ui/Results.h"

#include "host/analysis/ResultsCsv.h"
#include "host/document/HostDocument.h"
#include "host/files/FileError.h"
#include "host/files/Frame3ddImport.h"
#include "host/files/ProjectFile.h"
#include "model/Combinazione.h"

#include <cstdio>
#include <deque>
#include <filesystem>
#include <new>

namespace {

enum ExitStatus { success = 0, refused = 1, unreadable = 2 };

void tell(const CString& text) {
    std::fprintf(stderr, "quovar: %s\n", text.ToUtf8().c_str());
}

bool isTextModel(const std::string& path) {
    return CString(std::filesystem::path(path).extension().string()).CompareNoCase(".3dd") == 0;
}

int printAll(HostDocument& document) {
    const host::AnalysisOutcome outcome = document.EseguiAnalisi();
    if (!outcome.done) {
        tell(outcome.message);
        return refused;
    }
    for (const CString& each : outcome.notes)
        tell(each);
    std::vector<const host::CaseResults*> all;
    for (const host::CaseResults& each : document.Analysis().Cases())
        all.push_back(&each);
    std::deque<host::CaseResults> combined;
    for (int i = 0; i < document.GetSizeCombinazioni(); ++i) {
        combined.push_back(host::Combine(*document.GetIndexCombinazione(i), document.Analysis().Cases()));
        all.push_back(&combined.back());
    }
    host::WriteResults(document.Data(), all, stdout);
    if (std::fflush(stdout) != 0 || std::ferror(stdout)) {
        tell("i risultati non si possono scrivere.");
        return refused;
    }
    return success;
}

} // namespace

int PrintResults(const std::string& path) {
    try {
        HostDocument document;
        std::vector<CString> notes;
        document.Replace(isTextModel(path) ? ImportFrame3dd(path, &notes) : LoadProject(path));
        for (const CString& note : notes)
            tell(note);
        return printAll(document);
    } catch (const FileError& error) {
        std::fprintf(stderr, "quovar: %s\n", error.what());
        return unreadable;
    } catch (const std::bad_alloc&) {
        tell("memoria insufficiente.");
        return refused;
    }
}
