#include "host/document/UnitChange.h"

#include "model/entity/CasoCarico.h"

namespace host {

namespace {

void SetUnits(CElemento& object, DocumentUnits units) {
    object.SetLunghezza(units.length);
    object.SetForza(units.force);
}

} // namespace

void ConvertUnits(DocumentData& data, DocumentUnits units) {
    for (const Kind kind : allKinds) {
        for (int i = 0; i < data.Size(kind); ++i) {
            data.At(kind, i)->ChangeLunghezza(units.length);
            data.At(kind, i)->ChangeForza(units.force);
        }
    }
    const double factor = CGrandezza::_LengthFactor(data.Units().length, units.length);
    data.Tolerance() *= factor;
    data.Units() = units;
}

void UseOfferedUnits(DocumentData& data) {
    if (data.Units().length == Lunghezza::Feet)
        ConvertUnits(data, {Lunghezza::Inches, data.Units().force});
}

UnitChange::UnitChange(DocumentData& data, DocumentUnits units)
    : m_data(data), m_units(data.Units()), m_tolerance(data.Tolerance()) {
    for (const Kind kind : allKinds) {
        for (int i = 0; i < data.Size(kind); ++i) {
            CElemento& object = *data.At(kind, i);
            if (kind != Kind::LoadCase) {
                m_others.emplace_back(&object, CopyOf(object));
            } else {
                // A case itself has no values, and elements refer to its loads: these are kept one by one.
                auto& loadCase = static_cast<CCasoCarico&>(object);
                for (int j = 0; j < loadCase.GetSizeCarichi(); ++j)
                    m_others.emplace_back(loadCase.GetIndexCarico(j), CopyOf(*loadCase.GetIndexCarico(j)));
            }
        }
    }
    ConvertUnits(data, units);
}

void UnitChange::Swap() {
    std::swap(m_units, m_data.Units());
    std::swap(m_tolerance, m_data.Tolerance());
    for (int i = 0; i < m_data.Size(Kind::LoadCase); ++i)
        SetUnits(*m_data.At(Kind::LoadCase, i), m_data.Units());
    for (auto& [object, other] : m_others) {
        std::unique_ptr<CElemento> here = CopyOf(*object);
        RestoreState(*object, *other, m_data);
        SetUnits(*object, m_data.Units());
        object->SetSelect(0); // the selection is restored after the step
        other = std::move(here);
    }
}

} // namespace host
