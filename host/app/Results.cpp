#include "host/app/Results.h"

#include "host/analysis/ResultsCsv.h"
#include "host/document/HostDocument.h"
#include "host/files/FileError.h"
#include "host/files/Frame3ddImport.h"
#include "host/files/ProjectFile.h"
#include "model/entity/Combinazione.h"

#include <cstdio>
#include <deque>
#include <filesystem>
#include <new>

namespace host {

namespace {

void Tell(const CString& text) {
    std::fprintf(stderr, "quovar: %s\n", text.ToUtf8().c_str());
}

bool IsTextModel(const std::string& path) {
    return CString(std::filesystem::path(path).extension().string()).CompareNoCase(".3dd") == 0;
}

BatchStatus PrintAll(HostDocument& document) {
    const AnalysisOutcome outcome = document.RunAnalysis();
    if (outcome.refusal) {
        Tell(outcome.refusal->message);
        return found;
    }
    for (const CString& each : outcome.notes)
        Tell(each);
    std::vector<const CaseResults*> all;
    for (const CaseResults& each : document.Analysis().Cases())
        all.push_back(&each);
    std::deque<CaseResults> combined;
    for (int i = 0; i < document.GetSizeCombinazioni(); ++i) {
        combined.push_back(Combine(*document.GetIndexCombinazione(i), document.Analysis().Cases()));
        all.push_back(&combined.back());
    }
    WriteResults(document.Data(), all, stdout);
    if (std::fflush(stdout) != 0 || std::ferror(stdout)) {
        Tell("i risultati non si possono scrivere.");
        return notDone;
    }
    return nothingFound;
}

} // namespace

BatchStatus PrintResults(const std::string& path) {
    try {
        HostDocument document;
        std::vector<CString> notes;
        document.Replace(IsTextModel(path) ? ImportFrame3dd(path, &notes) : LoadProject(path));
        for (const CString& note : notes)
            Tell(note);
        return PrintAll(document);
    } catch (const FileError& error) {
        std::fprintf(stderr, "quovar: %s\n", error.what());
        return notDone;
    } catch (const std::bad_alloc&) {
        Tell("memoria insufficiente.");
        return notDone;
    }
}

} // namespace host
