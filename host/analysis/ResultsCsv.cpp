#include "host/analysis/ResultsCsv.h"

#include "model/element/Linea.h"

namespace host {

namespace {

// The first four columns of every table.
void WriteKey(std::FILE* out, int loadCase, const char* kind, int id, int node) {
    std::fprintf(out, "%d,%s,%d,%d", loadCase, kind, id, node);
}

void WriteSix(std::FILE* out, const double* values) {
    for (int i = 0; i < 6; ++i)
        std::fprintf(out, ",%.17g", values[i]);
    std::fputc('\n', out);
}

void WriteLine(std::FILE* out, int loadCase, const char* kind, CLinea& line, const CTraveRisultati& results) {
    double ends[12];
    results.GetEndForces(ends);
    for (double& value : ends)
        value += 0.0;
    WriteKey(out, loadCase, kind, line.GetID(), line.GetIDNodoIniziale());
    WriteSix(out, ends);
    WriteKey(out, loadCase, kind, line.GetID(), line.GetIDNodoFinale());
    WriteSix(out, ends + 6);
}

} // namespace

void WriteResults(const DocumentData& data, const std::vector<const CaseResults*>& cases, std::FILE* out) {
    std::fputs("caso,tipo,id,nodo,ux,uy,uz,rx,ry,rz\n", out);
    for (const CaseResults* each : cases) {
        for (std::size_t i = 0; i < each->displacements.size(); ++i) {
            const int id = data.Node(static_cast<int>(i))->GetID();
            WriteKey(out, each->id, "nodo", id, id);
            WriteSix(out, each->displacements[i].data());
        }
    }
    std::fputs("\ncaso,tipo,id,nodo,F1,F2,F3,M1,M2,M3\n", out);
    const int beams = data.Size(Kind::Beam);
    for (const CaseResults* each : cases)
        for (std::size_t i = 0; i < each->lines.size(); ++i) {
            const int index = static_cast<int>(i);
            if (index < beams)
                WriteLine(out, each->id, "trave", *data.As<CLinea>(Kind::Beam, index), each->lines[i]);
            else
                WriteLine(out, each->id, "asta", *data.As<CLinea>(Kind::Truss, index - beams), each->lines[i]);
        }
    std::fputs("\ncaso,tipo,id,nodo,Fx,Fy,Fz,Mx,My,Mz\n", out);
    for (const CaseResults* each : cases)
        for (const CaseResults::Reaction& reaction : each->reactions) {
            const int id = data.Node(reaction.node)->GetID();
            WriteKey(out, each->id, "vincolo", id, id);
            WriteSix(out, reaction.values.data());
        }
}

} // namespace host
