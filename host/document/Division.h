// Cutting lines into consecutive parts that together are what the line was.
#pragma once

#include "host/document/CarriedLoads.h"

#include <map>
#include <memory>
#include <tuple>
#include <vector>

class CCarico;
class CLineaFisica;
class CNodo;

namespace host {

class HostDocument;

// The line itself becomes the first part. What acts over the whole line acts on every part, a partial or a point load
// at its true place on the parts that it lies on; the releases of the ends stay at the outer ends; everything else of
// the parts is the line's. A load where two parts meet acts on the second one. To be used inside an undo step.
class Division {
  public:
    explicit Division(HostDocument& document) : m_document(document) {}

    // Makes the parts of a line; the places are fractions of its length, in increasing order, between 0 and 1. A node
    // that lies there within the tolerance is shared, but for the line's own.
    void Cut(CLineaFisica& line, const std::vector<double>& places);
    // Takes over a line that somebody else has cut: it was to reach `end`, and the first of `made` that goes on where
    // it ends is its next part. Parts that are taken leave the list.
    void Take(CLineaFisica& line, CNodo& end, std::vector<CLineaFisica*>& made);
    // Gives all parts what they are to have.
    void Finish();

  private:
    struct Line {
        CLineaFisica* first;
        std::vector<CNodo*> nodes; // of the parts, one more than these
        std::vector<CLineaFisica*> others = {};
        std::vector<std::vector<CCarico*>> loads = {}; // of each part
    };
    // Where a part lies on its line: lengths from the line's first node, and whether it is the first or the last part.
    using Stretch = std::tuple<double, double, bool, bool>;

    CLineaFisica* Add(const CLineaFisica& like, CNodo& from, CNodo& to);
    void ShareLoads(Line& cut);
    void ShareTrapezoid(Line& cut, const std::vector<double>& places, CCarico& load);
    void SharePoint(Line& cut, const std::vector<double>& places, CCarico& load);
    CCarico* PartOf(CCarico& load, const Stretch& stretch);
    CCarico* AddLoad(CCarico& like, std::unique_ptr<CCarico> load);
    void Complete(Line& cut);
    void EnterGroups();
    void DiscardLoads();

    HostDocument& m_document;
    std::vector<Line> m_lines;
    // Lines that share a load share its parts where they are cut alike.
    std::map<std::pair<CCarico*, Stretch>, CCarico*> m_parts;
    std::map<int, std::vector<CLineaFisica*>> m_members; // new ones, by group
    std::map<int, LoadNumbers> m_replaced;               // loads, by case
};

// Finishes what a dialog has cut in the open undo step.
void FinishDivisions(HostDocument& document);

} // namespace host
