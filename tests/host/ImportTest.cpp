// Text models of space frames.
#include "host/document/DocumentData.h"
#include "host/files/FileError.h"
#include "host/files/Frame3ddImport.h"
#include "model/element/Trave.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"
#include "model/load/Carico.h"
#include "tests/host/Dump.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

using namespace host;

namespace {

// One of each load, separators of every sort, comments, and trailing data for another analysis.
const char model[] = "Un portale (kN,m,t)\r\n"
                     "# nodi\n"
                     "4 # numero\n"
                     "1 0 0 0 0\n"
                     "2,4.0,0,0,0\n"
                     "4\t+4\t0\t3e0\t0\n"
                     "3 0 0 3 0.1\n"
                     "2 # vincoli\n"
                     "1 1 1 1 1 1 1\n"
                     "2 1 1 1 0 0 0\n"
                     "3 # elementi\n"
                     "1 1 3 0.09 0.075 0.075 0.001 0.0007 0.0008 3e7 1.25e7 0 2.5\n"
                     "2 3 4 0.09 0.075 0.075 0.001 0.0007 0.0008 3e7 1.25e7 30 2.5\n"
                     "3 2 4 0.12 0.100 0.100 0.001 0.0007 0.0008 3e7 1.25e7 0 2.5\n"
                     "1 1 10 1 -1\n"
                     "2 # casi\n"
                     "0 0 -9.81\n"
                     "1 \n 3 10 0 0 0 5 0\n"
                     "1 \n 2 0 0 -8\n"
                     "1 \n 2 0 0 0 0  0.5 1 2 3  0 4 -1 -1\n"
                     "1 \n 2 0 0 -7 1.5\n"
                     "1 \n 1 1.2e-5 0.3 0.3 20 10 30 -10\n"
                     "1 \n 2 0.01 0 0 0 0 0\n"
                     "0 0 0 0 0 0 0 0 0\n"
                     "6 # modi\n 1 0 1e-9 0.0 10.0\n";

std::string RefusalOf(const std::string& text) {
    try {
        ImportFrame3ddText(text);
        return "";
    } catch (const FileError& error) {
        return error.what();
    }
}

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return text.replace(at, from.size(), to);
}

// Catches a column read as its neighbour, an axis taken for another, and sections that are not shared.
TEST(Import, EverythingArrives) {
    std::vector<CString> notes;
    DocumentData data = ImportFrame3ddText(model, &notes);
    EXPECT_EQ(data.Info().title, "Un portale (kN,m,t)");
    EXPECT_EQ(data.Units().length, Lunghezza::Metres);
    EXPECT_EQ(data.Units().force, Forza::KiloNewtons);
    ASSERT_EQ(data.Size(Kind::Node), 4);
    EXPECT_TRUE(*data.FindNode(4)->GetPunto() == CFPoint(4, 0, 3));
    EXPECT_EQ(data.FindNode(2)->GetVincolo()->GetMask(), 7u);
    ASSERT_EQ(data.Size(Kind::Beam), 3);
    EXPECT_EQ(data.Size(Kind::Material), 1);
    ASSERT_EQ(data.Size(Kind::Section), 2);
    auto* section = data.As<CSezione>(Kind::Section, 0);
    EXPECT_EQ(section->GetArea2(), 0.075);
    EXPECT_EQ(section->GetI2(), 0.0007);
    EXPECT_EQ(section->GetI3(), 0.0008);
    auto* beam = data.FindAs<CTrave>(Kind::Beam, 2);
    EXPECT_EQ(beam->GetBeta(), 30);
    EXPECT_EQ(beam->GetSezione(), section);
    EXPECT_EQ(beam->GetMateriale()->GetDensity(), 2.5);
    ASSERT_EQ(data.Size(Kind::LoadCase), 2);
    auto* loads = data.As<CCasoCarico>(Kind::LoadCase, 0);
    ASSERT_EQ(loads->GetSizeCarichi(), 7);
    EXPECT_EQ(static_cast<CCaricoPesoProprio*>(loads->GetIndexCarico(0))->GetAcceleration().z, -9.81);
    EXPECT_EQ(static_cast<CCaricoNodale*>(data.FindNode(3)->GetIndexCarico(0))->GetMomentVector().y, 5);
    EXPECT_EQ(static_cast<CCaricoSpostamento*>(data.FindNode(2)->GetIndexCarico(0))->GetDisplacement().x, 0.01);
    ASSERT_EQ(beam->GetSizeCarichi(), 3);
    EXPECT_EQ(static_cast<CCaricoUniforme*>(beam->GetIndexCarico(0))->GetReference(), CCarico::Local);
    EXPECT_EQ(static_cast<CCaricoTrapezoidale*>(beam->GetIndexCarico(1))->GetStretch(1).fine, 3);
    EXPECT_EQ(static_cast<CCaricoConcentrato*>(beam->GetIndexCarico(2))->GetDistance(), 1.5);
    auto* heat = data.FindAs<CTrave>(Kind::Beam, 1)->GetCaricoTemperatura(1);
    ASSERT_NE(heat, nullptr);
    EXPECT_DOUBLE_EQ(heat->GetTemperature(), 12.5);
    EXPECT_DOUBLE_EQ(heat->GetGradient2(), 10 / 0.3);
    EXPECT_DOUBLE_EQ(heat->GetGradient3(), 40 / 0.3);
    EXPECT_EQ(notes.size(), 2u) << "a radius and the geometric stiffness are left out, and said so";
}

TEST(Import, ShearAreasAndUnitsFollowTheFile) {
    DocumentData data = ImportFrame3ddText(Replaced(model, "1 1 10 1 -1", "0 0 10 1 -1"));
    EXPECT_EQ(data.As<CSezione>(Kind::Section, 0)->GetArea2(), 0);
    const std::pair<const char*, DocumentUnits> titles[] = {
        {"Esempio (kips,in) ", {Lunghezza::Inches, Forza::Kips}},
        {"Esempio (units: kip, in)", {Lunghezza::Inches, Forza::Kips}},
        {"Esempio (kip,ft)", {Lunghezza::Inches, Forza::Kips}}, // feet are not offered
        {"Esempio (N,mm,ton)", {Lunghezza::Millimetres, Forza::Newton}},
        {"Esempio (m)", {Lunghezza::Millimetres, Forza::Newton}},
        {"Esempio", {Lunghezza::Millimetres, Forza::Newton}},
        {")(", {Lunghezza::Millimetres, Forza::Newton}}};
    for (const auto& [title, units] : titles) {
        DocumentData named = ImportFrame3ddText(Replaced(model, "Un portale (kN,m,t)", title));
        EXPECT_EQ(named.Units().length, units.length) << title;
        EXPECT_EQ(named.Units().force, units.force) << title;
    }
    DocumentData inches = ImportFrame3ddText(Replaced(model, "Un portale (kN,m,t)", "Esempio (kip,ft)"));
    EXPECT_DOUBLE_EQ(inches.FindNode(4)->GetPunto()->x, 48);
    EXPECT_DOUBLE_EQ(inches.As<CSezione>(Kind::Section, 0)->GetI2(), 0.0007 * 12 * 12 * 12 * 12);
    EXPECT_DOUBLE_EQ(inches.Tolerance(), 0.001 / 0.0254);
}

// As other programs write the same: comments, separators, line ends, exponents, and loads of a node in several rows.
TEST(Import, TextsOfOtherHandsSayTheSame) {
    const auto all = [](std::string text, std::string_view from, std::string_view to) {
        for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
            text.replace(at, from.size(), to);
        return text;
    };
    std::string other = all(all(model, "\r\n", "\n"), "\n", "\r");
    other = Replaced(Replaced(all(other, "# ", "% \"?"), ",4.0,0", ";4.0;\"0\""), "3e0", "+3.0D+00");
    other = Replaced(other, "0 0 -9.81", "1e-400 -0.1D-500 -981d-2");
    EXPECT_EQ(Dump(ImportFrame3ddText(other)), Dump(ImportFrame3ddText(model)));
    const std::string twice =
        Replaced(model, "1 \n 2 0.01 0 0", "3 \n 2 0.004 0 0 0 0 0 \n 2 0 0 0 0 0 0 \n 2 0.006 0 0");
    DocumentData data = ImportFrame3ddText(twice);
    EXPECT_EQ(data.FindNode(2)->GetSizeCarichi(), 3) << "more rows than supports";
    EXPECT_EQ(RefusalOf(all(other, "+3.0D+00", "1e400")), "Riga 6: attesa una coordinata del nodo, trovato \"1e400\".");
}

// The message names the line and what should have been there.
TEST(Import, MalformedTextIsRefusedWithItsLine) {
    EXPECT_EQ(RefusalOf(""), "Riga 1: atteso il numero dei nodi, ma il file finisce prima.");
    EXPECT_EQ(RefusalOf(Replaced(model, "Un portale", std::string(5000, 'x'))), "Riga 1: il titolo è troppo lungo.");
    const struct {
        const char *from, *to, *refusal;
    } damages[] = {
        {"2,4.0", "x,4.0", "Riga 5: atteso il numero del nodo, trovato \"x\"."},
        {"2,4.0", "2,4.0.0", "Riga 5: attesa una coordinata del nodo, trovato \"4.0.0\"."},
        {"2,4.0", "2,nan", "Riga 5: attesa una coordinata del nodo, trovato \"nan\"."},
        {"2,4.0", "1,4.0", "Riga 5: il nodo 1 è già stato definito."},
        {"4 # numero", "2000000 # numero", "Riga 3: il file è troppo corto per contenere 2000000 righe."},
        {"2 3 4 0.09", "2 3 3 0.09", "Riga 13: i due nodi dell'elemento sono lo stesso nodo."},
        {"2 3 4 0.09", "2 3 4 0", "Riga 13: attesa l'area della sezione maggiore di zero."},
        {"-7 1.5", "-7 4.5", "Riga 25: il carico è oltre la fine dell'elemento."},
        // Every number of the file is finite, but not what follows from them: such a model would be saved, never read.
        {"3e7 1.25e7 30", "1e300 1e-300 30",
         "Riga 13: il modulo di taglio è troppo piccolo per il modulo di elasticità."},
        {"0.3 0.3 20 10 30 -10", "1e-308 0.3 20 10 30 -10", "Riga 27: la variazione termica è troppo grande."},
    };
    for (const auto& [from, to, refusal] : damages)
        EXPECT_EQ(RefusalOf(Replaced(model, from, to)), refusal);
    for (const auto& [from, to] : {std::pair("4 # numero", "-4 # numero"), std::pair("4 # numero", "99999999999 #"),
                                   std::pair("2 # casi", "9 # casi"), std::pair("1 1 1 1 1 1 1", "1 1 1 2 1 1 1")})
        EXPECT_NE(RefusalOf(Replaced(model, from, to)), "") << to;
}

// Cut anywhere before the trailing data, the text is refused; damaged anywhere, it is refused or read whole.
TEST(Import, TruncationsAndDamageAreRefusedOrWhole) {
    const std::string whole = model;
    const std::string expected = Dump(ImportFrame3ddText(whole));
    const std::size_t end = whole.find("6 # modi");
    for (std::size_t size = 0; size + 2 < end; ++size) {
        const std::string refusal = RefusalOf(whole.substr(0, size));
        EXPECT_EQ(refusal.rfind("Riga ", 0), 0u) << size << ": " << refusal;
    }
    EXPECT_EQ(Dump(ImportFrame3ddText(whole.substr(0, end))), expected);
    std::mt19937 random(54321);
    for (int round = 0; round < 3000; ++round) {
        std::string damaged = whole;
        for (int i = 0; i <= round % 4; ++i)
            damaged[random() % damaged.size()] = static_cast<char>(random());
        RefusalOf(damaged);
    }
}

} // namespace
