// Named entities: load cases and their loads, combinations, groups, sections; and the loads that elements carry.
#include "model/element/TipoElemento.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Combinazione.h"
#include "model/entity/Gruppo.h"
#include "tests/model/SmallModel.h"

#include <cmath>

namespace {

// Faults: the description's parts in the wrong places, a copy that keeps its own number, entities of two kinds taken
// for equal.
TEST(EntityTest, NamesDescriptionsAndCopies) {
    CCasoCarico loadCase;
    loadCase.SetID(4);
    loadCase.SetNome("Vento");
    EXPECT_STREQ(loadCase.GetDescrizione(1, 1, 1), "4 : Vento");
    loadCase.SetTipo("Statico");
    EXPECT_STREQ(loadCase.GetDescrizione(1, 1, 1), "4 : Vento (Statico)");
    EXPECT_STREQ(loadCase.GetDescrizione(0, 1, 0), "Vento");
    EXPECT_STREQ(loadCase.GetDescrizione(0, 0, 1), "(Statico)");
    CMateriale material, other;
    material.SetNome("Vento");
    material.SetTipo("Statico");
    EXPECT_FALSE(material == loadCase);
    material.SetID(9);
    material.SetE(5);
    static_cast<CElementoStrutturale&>(other) = static_cast<CElementoStrutturale&>(material); // the entity's own slot
    EXPECT_TRUE(other == material);
    EXPECT_EQ(other.GetID(), 9);
    EXPECT_EQ(other.GetE(), 5);
}

// Faults: a case added twice, positions that are stale after a removal, a copy that shares its list.
TEST(EntityTest, Combinations) {
    CCombinazione c;
    EXPECT_TRUE(c.AddCDC(7, 1.5));
    EXPECT_TRUE(c.AddCDC(3, -1));
    EXPECT_TRUE(c.AddCDC(5, 0.7));
    EXPECT_FALSE(c.AddCDC(3, 9));
    CCombinazione copy;
    copy = c;
    EXPECT_TRUE(c.EliminaCDC(7));
    EXPECT_FALSE(c.EliminaCDC(7));
    EXPECT_EQ(c.GetIndexCDC(5), 1);
    EXPECT_EQ(c.GetIDCDC(0), 3);
    double factor = 0;
    EXPECT_TRUE(c.SetFattoreCDC(c.GetIndexCDC(5), 2));
    EXPECT_TRUE(c.GetFattoreCDC(1, factor));
    EXPECT_FALSE(c.GetFattoreCDC(2, factor));
    EXPECT_FALSE(c.SetFattoreCDC(-1, 1));
    EXPECT_EQ(factor, 2);
    EXPECT_TRUE(c.EliminaCDC());
    EXPECT_EQ(copy.GetSizeCDC(), 3);
    EXPECT_TRUE(copy.GetFattoreCDC(copy.GetIndexCDC(5), factor));
    EXPECT_EQ(factor, 0.7);
}

// Fault: a node and a beam of one number taken for the same member; the index lost when the last member moves.
TEST(EntityTest, Groups) {
    CGruppo group;
    EXPECT_TRUE(group.AddElemento(TipoElemento::Nodo, 5));
    EXPECT_TRUE(group.AddElemento(TipoElemento::Trave, 5));
    EXPECT_TRUE(group.AddElemento(TipoElemento::Asta, 1));
    EXPECT_FALSE(group.AddElemento(TipoElemento::Trave, 5));
    EXPECT_TRUE(group.RemoveElement(TipoElemento::Nodo, 5));
    EXPECT_TRUE(group.IsElemento(TipoElemento::Trave, 5));
    EXPECT_TRUE(group.RemoveElement(TipoElemento::Asta, 1) && group.RemoveElement(TipoElemento::Trave, 5));
    EXPECT_EQ(group.GetSizeElementi(), 0);
    EXPECT_EQ(group.GetElementIdAt(0), 0);
}

// Faults: width and height swapped, a power of the length forgotten in one property.
TEST(EntityTest, SectionsAndMaterialsChangeUnits) {
    CSezione s;
    EXPECT_FALSE(s.SetRectangle(0, 1));
    ASSERT_TRUE(s.SetRectangle(0.3, 0.5));
    // A vertical load bends about axis 2: the height counts.
    ExpectNumbers({{s.GetI2(), 0.3 * 0.125 / 12}, {s.GetI3(), 0.5 * 0.027 / 12}});
    EXPECT_NEAR(s.GetJ(), 0.002817, 1e-5); // handbook: 0.2087 b^3 h at h/b = 5/3
    s.ChangeLunghezza(Lunghezza::Centimetres);
    ExpectNumbers({{s.GetArea(), 1500}, {s.GetI2(), 312500}, {s.GetW2(), 12500}, {s.GetBase(), 30}});

    CMateriale steel; // in kN and m
    steel.SetE(2.1e8);
    steel.SetDensity(78.5 / 9.80665);
    steel.ChangeLunghezza(Lunghezza::Millimetres);
    steel.ChangeForza(Forza::Newton);
    EXPECT_NEAR(steel.GetE(), 210000, 1e-6);
    EXPECT_NEAR(steel.GetDensity(), 8.0047e-9, 1e-13); // t/mm^3
}

// Faults: loads shared by the copy, the copy's loads still naming the source case (the list dialog then loses them), a
// case renumbered without its loads.
TEST(LoadTest, CopyingACaseCopiesItsLoads) {
    CCasoCarico source, copy;
    source.SetID(1);
    source.SetNome("Vento");
    copy.SetID(8);
    auto* load = new CCaricoUniforme(CFPoint(0, 0, -5), CCarico::Global);
    const int number = source.AddCarico(load);
    source.AddCarico(new CCaricoNodale(CFPoint(1, 2, 3), CFPoint()));
    EXPECT_EQ(source.AddCarico(nullptr), 0);

    copy = source; // then the name and number that the host gave are put back
    copy.SetNome("Copia");
    copy.SetID(8);
    ASSERT_EQ(copy.GetSizeCarichi(), 2);
    int index = 9;
    CCarico* const copied = copy.GetCarico(number, &index);
    ASSERT_NE(copied, nullptr);
    EXPECT_EQ(index, 0);
    EXPECT_NE(copied, load);
    EXPECT_EQ(copied->GetIDCasoCarico(), 8);
    EXPECT_EQ(load->GetIDCasoCarico(), 1);
    EXPECT_EQ(static_cast<CCaricoUniforme*>(copied)->GetCarico(), CFPoint(0, 0, -5));
    EXPECT_EQ(copy.GetCarico(99, &index), nullptr);
    EXPECT_EQ(index, -1);

    const std::unique_ptr<CCarico> taken = source.DetachLoad(number);
    EXPECT_EQ(taken.get(), load);
    const int left = source.GetIndexCarico(0)->GetID();
    EXPECT_EQ(source.GetCarico(left, &index), source.GetIndexCarico(0));
    EXPECT_EQ(index, 0);                                    // moved up
    EXPECT_NE(source.AddCarico(new CCaricoNodale), number); // numbers are not given twice
    EXPECT_EQ(source.GetSizeCarichi(), 2);
}

// Faults: null taken for a load, a load attached twice, the wrong load removed, a reference to a deleted load.
TEST(LoadTest, ElementsReferToLoads) {
    CCasoCarico wind, snow;
    wind.SetID(1);
    snow.SetID(2);
    auto* w = new CCaricoUniforme(CFPoint(0, 1, 0), CCarico::Global);
    auto* s = new CCaricoTemperatura;
    wind.AddCarico(w);
    snow.AddCarico(s); // both are load 1 of their case
    s->SetSetId(6);
    CTrave beam;
    EXPECT_FALSE(beam.AddCarico(nullptr, 1));
    EXPECT_TRUE(beam.AddCarico(w, 1));
    EXPECT_FALSE(beam.AddCarico(w, 1));
    EXPECT_TRUE(beam.AddCarico(s, 1));
    EXPECT_EQ(beam.GetIndexCarico(2), nullptr);
    EXPECT_EQ(beam.GetIndexIDCasoCarico(1), 2);
    int index = -1;
    EXPECT_TRUE(beam.IsCarico(2, 1, &index));
    EXPECT_EQ(index, 1);
    EXPECT_EQ(beam.GetCaricoTemperatura(2), s);
    EXPECT_FALSE(beam.ThereCaricoTemperatura(1));
    EXPECT_TRUE(beam.IsCaricoInsieme(2, 6));
    EXPECT_EQ(beam.EliminaCaricoInsieme(1, 6), 0);
    EXPECT_EQ(beam.RemoveLoadsOfCase(1), 1);
    EXPECT_EQ(beam.GetIndexCarico(0), s);
    EXPECT_EQ(beam.EliminaCarico(2, 1), 1);
    EXPECT_FALSE(beam.EliminaCarico(0));
}

// Faults: one component of one load left in the old unit.
TEST(LoadTest, LoadsChangeUnitsWithTheirCase) {
    CCasoCarico c;
    const auto add = [&](auto* load) { return c.AddCarico(load), load; };
    auto* nodal = add(new CCaricoNodale(CFPoint(1, 0, 0), CFPoint(0, 2, 0)));
    auto* settlement = add(new CCaricoSpostamento(CFPoint(0, 0, 0.01), CFPoint(0.5, 0, 0)));
    auto* uniform = add(new CCaricoUniforme(CFPoint(0, 0, 3), CCarico::Local));
    auto* trapezoid = add(new CCaricoTrapezoidale);
    trapezoid->GetStretch(1) = {1, 2, 3, 4};
    auto* point = add(new CCaricoConcentrato(CFPoint(0, 5, 0), 1.5, CCarico::Local));
    auto* heat = add(new CCaricoTemperatura);
    heat->GetTemperature() = 20;
    heat->GetGradient2() = 10;
    auto* weight = add(new CCaricoPesoProprio(CFPoint(0, 0, -9.80665)));
    c.ChangeLunghezza(Lunghezza::Millimetres);
    c.ChangeForza(Forza::Newton);

    // kN/m is N/mm.
    ExpectNumbers({{nodal->GetForceVector().x, 1000}, {nodal->GetMomentVector().y, 2e6}});
    ExpectNumbers({{settlement->GetDisplacement().z, 10}, {settlement->GetRotation().x, 0.5}});
    ExpectNumbers({{uniform->GetCarico().z, 3}, {weight->GetAcceleration().z, -9806.65}});
    ExpectNumbers({{trapezoid->GetStretch(1).a, 2000}, {trapezoid->GetStretch(1).fine, 4}});
    ExpectNumbers({{point->GetForceVector().y, 5000}, {point->GetDistance(), 1500}});
    ExpectNumbers({{heat->GetTemperature(), 20}, {heat->GetGradient2(), 0.01}});
    EXPECT_EQ(weight->GetLunghezza(), Lunghezza::Millimetres);

    // A load that comes later is in the case's units already.
    auto* late = new CCaricoNodale(CFPoint(1, 0, 0), CFPoint());
    c.AddCarico(late);
    c.ChangeForza(Forza::KiloNewtons);
    EXPECT_NEAR(late->GetForceVector().x, 0.001, 1e-15);
}

} // namespace
