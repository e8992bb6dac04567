#include "dialogs/check/RestraintCheck.h"

#include "model/element/Molla.h"
#include "model/element/Nodo.h"
#include "model/element/Setto.h"
#include "model/element/Specifiche.h"
#include "model/element/Trave.h"
#include "model/element/Vincolo.h"

#include <utility>

namespace {

constexpr int components = 6; // three translations, then three rotations
constexpr int releases = 4;

bool RotationsFixed(const CVincolo* restraint) {
    return restraint && restraint->GetRotationX() && restraint->GetRotationY() && restraint->GetRotationZ();
}

bool HoldsRotations(CNodo& node) {
    for (int i = 0; i < node.GetSizeElementi(); ++i) {
        const CElemento* element = node.GetIndexElemento(i);
        if (element && (element->IsKindOf(RUNTIME_CLASS(CTrave)) || element->IsKindOf(RUNTIME_CLASS(CSetto))))
            return true;
    }
    return RotationsFixed(node.GetVincolo());
}

} // namespace

void StructureRestraint::Add(CNodo& node) {
    for (int i = 0; i < node.GetSizeMolle(); ++i)
        if (const CMolla* spring = node.GetIndexMolla(i))
            AddSpring(*spring);
    if (const CVincolo* restraint = node.GetVincolo())
        AddRestraint(*restraint);
    else
        m_allFixed = false;
}

void StructureRestraint::AddSpring(const CMolla& spring) {
    if (spring.GetStiffness().GetValue() == 0)
        return;
    const CFPoint& d = spring.GetDirection();
    const double direction[] = {d.x, d.y, d.z};
    for (int axis = 0; axis < 3; ++axis) {
        if (direction[axis] == 0)
            continue;
        if (spring.GetTipo() == CMolla::Translational)
            m_held[axis] = true;
        else if (spring.GetTipo() != CMolla::Rotational)
            continue;
        ++m_count;
    }
}

void StructureRestraint::AddRestraint(const CVincolo& restraint) {
    int fixed = 0;
    for (int i = 0; i < components; ++i) {
        if (!restraint.IsFixed(i))
            continue;
        ++fixed;
        if (i < 3)
            m_held[i] = true;
    }
    m_count += fixed;
    m_allFixed = m_allFixed && fixed == components;
}

bool ReleasedAtBothEnds(CTrave& beam) {
    const int size = beam.GetSizeSpecifiche();
    if (size < 2)
        return false;
    bool released[2][releases] = {};
    for (int i = 0; i < size; ++i) {
        const CSpecifiche* specification = beam.GetIndexSpecifica(i);
        if (!specification || !specification->IsKindOf(RUNTIME_CLASS(CSpecificheSvincoliTrave)))
            continue;
        const auto* end = static_cast<const CSpecificheSvincoliTrave*>(specification);
        for (int k = 0; k < releases; ++k)
            if (end->GetRelease(k))
                released[end->GetEnd() ? 1 : 0][k] = true;
    }
    // Only the same force let go at both ends leaves a movement free.
    for (int k = 0; k < releases; ++k)
        if (released[0][k] && released[1][k])
            return true;
    return false;
}

bool RotationCheck::Held(CNodo& node) {
    constexpr int manyElements = 16;
    if (node.GetSizeElementi() < manyElements)
        return HoldsRotations(node);
    const auto [known, isNew] = m_known.try_emplace(&node, false);
    if (isNew)
        known->second = HoldsRotations(node);
    return known->second;
}
