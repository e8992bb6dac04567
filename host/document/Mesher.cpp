#include "host/document/Mesher.h"

#include "dialogs/frame/host/MainFrame.h"
#include "host/document/Changes.h"
#include "host/document/Defaults.h"
#include "host/document/ModelWalks.h"
#include "model/element/Setto.h"

#include <algorithm>
#include <cmath>

namespace host {

namespace {

constexpr char stepName[] = "Mesh";

// Between two equal points that point, at either end that end, to the last bit.
CFPoint Between(const CFPoint& a, const CFPoint& b, double t) {
    return {std::lerp(a.x, b.x, t), std::lerp(a.y, b.y, t), std::lerp(a.z, b.z, t)};
}

} // namespace

Mesher::Mesher(HostEditing& document, const Corners& corners, int first, int second)
    : m_document(document), m_corners(corners), m_first(first), m_second(second) {
}

std::optional<Refusal> Mesher::Check() {
    const char* fault = Fault();
    return fault ? std::optional<Refusal>(CString::FromUtf8(fault) + ": la mesh non è stata generata."_t)
                 : std::nullopt;
}

const char* Mesher::Fault() {
    const double tolerance = m_document.GetTolerance();
    if (m_first < 1 || m_second < 1)
        return "Le suddivisioni devono essere almeno 1";
    if (static_cast<long long>(m_first) * m_second > mostElements)
        return "Troppe suddivisioni";
    if (!std::all_of(std::begin(m_corners.at), std::end(m_corners.at), IsUsablePlace))
        return "Le coordinate non sono valide";
    if (!JoinCorners(tolerance) || !IsConvex())
        return "I punti non sono i vertici, in ordine, di un quadrilatero convesso o di un triangolo";
    FillPlaces();
    if (!AreLargerThan(2 * tolerance)) // otherwise a node between two corners would be taken for both
        return "Gli elementi sarebbero troppo piccoli per la tolleranza";
    if (!m_document.Data().HasNumbers(Kind::Node, m_places.size()) ||
        !m_document.Data().HasNumbers(Kind::Wall, m_places.size()))
        return "I numeri dei nodi o dei setti sono esauriti";
    return nullptr;
}

// Neighbouring corners within the tolerance become one; false when no triangle is left.
bool Mesher::JoinCorners(double tolerance) {
    CFPoint(&at)[4] = m_corners.at;
    int joined = 0;
    for (int i = 0; i < 4; ++i) {
        CFPoint& next = at[(i + 1) % 4];
        if (CFPoint::GetMod(at[i], next) > tolerance)
            continue;
        next = at[i];
        ++joined;
    }
    return joined <= 1;
}

// The normal of the surface changes linearly over it: it stays on its side when it does so at the corners.
bool Mesher::IsConvex() const {
    const auto& at = m_corners.at;
    CFPoint normals[4], sum;
    double size = 0;
    for (int i = 0; i < 4; ++i) {
        const CFPoint in = at[i] - at[(i + 3) % 4], out = at[(i + 1) % 4] - at[i];
        normals[i] = Cross(in, out);
        sum += normals[i];
        size = std::max({size, Dot(in, in)});
    }
    constexpr double rounding = 1e-9;
    const double length = sum.GetMod();
    return length > rounding * size && std::all_of(std::begin(normals), std::end(normals), [&](const CFPoint& normal) {
               return Dot(normal, sum) >= -rounding * size * length;
           });
}

void Mesher::FillPlaces() {
    const auto& at = m_corners.at;
    m_places.clear();
    m_places.reserve(Row() * (static_cast<std::size_t>(m_second) + 1));
    for (int j = 0; j <= m_second; ++j) {
        const double t = static_cast<double>(j) / m_second;
        const CFPoint left = Between(at[0], at[3], t), right = Between(at[1], at[2], t);
        for (int i = 0; i <= m_first; ++i)
            m_places.push_back(Between(left, right, static_cast<double>(i) / m_first));
    }
}

// Every element has longer sides, where they are not none, and more area for its longest side: with that its shorter
// diagonal is longer too, so that no two of its nodes can be one.
bool Mesher::AreLargerThan(double size) const {
    const std::size_t row = Row();
    const double square = size * size;
    for (std::size_t i = 0; i + row + 1 < m_places.size(); ++i) {
        if ((i + 1) % row == 0)
            continue;
        const CFPoint corners[4] = {m_places[i], m_places[i + 1], m_places[i + row + 1], m_places[i + row]};
        double longest = 0;
        for (int k = 0; k < 4; ++k) {
            const CFPoint side = corners[(k + 1) % 4] - corners[k];
            const double length = Dot(side, side);
            if (length > 0 && !(length > square))
                return false;
            longest = std::max(longest, length);
        }
        const CFPoint area = 0.5 * Cross(corners[2] - corners[0], corners[3] - corners[1]);
        if (!(Dot(area, area) > square * longest))
            return false;
    }
    return true;
}

bool Mesher::Run() {
    HostUndo& undo = m_document.Undo();
    const UndoStep step(undo, stepName);
    undo.Rename(stepName);
    const WaitBar wait("Attendere...Generazione della mesh.", static_cast<unsigned>(2 * m_places.size() - Row()));
    // All that is made goes into a change of its own, which can be taken back alone.
    undo.Record(std::make_unique<Creation>(m_document.Data()), stepName);
    if (MakeNodes() && MakeElements()) {
        undo.NotePresent(Kind::Node, m_nodesMet);
        undo.NotePresent(Kind::Wall, m_wallsMet);
        return true;
    }
    undo.TakeBack();
    return false;
}

bool Mesher::Goes() {
    CMainFrame::_StepBar();
    return !m_document.IsBrokenOff();
}

bool Mesher::MakeNodes() {
    const DocumentData& data = m_document.Data();
    const double tolerance = m_document.GetTolerance();
    const std::size_t row = Row();
    m_firstNew = data.NextId(Kind::Node);
    // What stands there is met before the first node is made, so that the mesh does not meet itself.
    m_nodes.resize(m_places.size());
    for (std::size_t i = 0; i < m_places.size(); ++i)
        m_nodes[i] = data.NodeAt(m_places[i], nullptr, tolerance);
    for (std::size_t i = 0; i < m_places.size(); ++i) {
        if (i % row > 0 && m_places[i] == m_places[i - 1]) {
            m_nodes[i] = m_nodes[i - 1]; // a side that is one point
        } else if (i >= row && m_places[i] == m_places[i - row]) {
            m_nodes[i] = m_nodes[i - row];
        } else if (m_nodes[i]) {
            ++m_nodesMet;
        } else {
            m_nodes[i] = m_document.AddNew(std::make_unique<CNodo>(m_places[i]), stepName);
        }
        if (!Goes())
            return false;
    }
    return true;
}

bool Mesher::MakeElements() {
    const std::size_t row = Row();
    for (std::size_t i = 0; i + row < m_places.size(); ++i) {
        if ((i + 1) % row != 0) // the last place of a row begins no element
            MakeElement(i);
        if (!Goes())
            return false;
    }
    return true;
}

void Mesher::MakeElement(std::size_t corner) {
    const std::size_t row = Row();
    m_sides = {m_nodes[corner], m_nodes[corner + 1], m_nodes[corner + row + 1], m_nodes[corner + row]};
    m_sides.erase(std::unique(m_sides.begin(), m_sides.end()), m_sides.end());
    if (m_sides.front() == m_sides.back())
        m_sides.pop_back();
    if (m_sides.size() < 3)
        return; // all of it met one node or two
    if (std::all_of(m_sides.begin(), m_sides.end(), [this](CNodo* node) { return node->GetID() < m_firstNew; }) &&
        HasElement(Kind::Wall, m_sides)) {
        ++m_wallsMet;
        return;
    }
    auto wall = std::make_unique<CSetto>();
    for (CNodo* node : m_sides)
        if (!wall->AggiungiVertice(node))
            return;
    GiveDefaults(m_document, *wall);
    m_document.AddNew(std::move(wall), stepName);
}

} // namespace host
