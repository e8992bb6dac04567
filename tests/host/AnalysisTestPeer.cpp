// The analysis beside the printed results of another program, model by model.
#include "host/analysis/Analysis.h"
#include "host/files/Frame3ddImport.h"
#include "model/element/Linea.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

using namespace host;

namespace {

using host::CaseResults;

// Values of a printed row after its numbers; empty for a row of anything else.
std::vector<double> ValuesOf(const std::string& line, int keys, int (&key)[2]) {
    std::istringstream words(line);
    for (int i = 0; i < keys; ++i)
        if (!(words >> key[i]))
            return {};
    std::vector<double> values;
    for (double value; words >> value;)
        values.push_back(value);
    return values.size() == 6 ? values : std::vector<double>();
}

class Comparison {
  public:
    Comparison(const std::filesystem::path& folder, const std::string& name)
        : m_data(ImportFrame3dd((folder / (name + ".3dd")).string())), m_printed(folder / (name + ".out")) {}

    // The number of rows compared.
    int Run() {
        const host::AnalysisOutcome outcome = host::Analyse(m_data);
        EXPECT_FALSE(outcome.refusal) << outcome.refusal->message.ToUtf8();
        EXPECT_TRUE(outcome.notes.empty());
        m_cases = &outcome.cases;
        std::string line;
        while (std::getline(m_printed, line))
            Read(line);
        EXPECT_EQ(m_current, static_cast<int>(outcome.cases.size()));
        return m_rows;
    }

  private:
    enum class Table { None, Displacements, Ends, Reactions };

    void Read(const std::string& line) {
        int key[2];
        if (line.starts_with("N O D E   D I S P")) {
            ++m_current;
            m_table = Table::Displacements;
        } else if (line.starts_with("F R A M E   E L E M E N T   E N D")) {
            m_table = Table::Ends;
        } else if (line.starts_with("R E A C T I O N S")) {
            m_table = Table::Reactions;
        } else if (line.starts_with("R M S") || line.starts_with("P E A K")) {
            m_table = Table::None;
        } else if (m_table != Table::None) {
            const auto values = ValuesOf(line, m_table == Table::Ends ? 2 : 1, key);
            if (!values.empty())
                Compare(key, values);
        }
    }

    void Compare(const int (&key)[2], const std::vector<double>& printed) {
        ASSERT_LE(static_cast<std::size_t>(m_current), m_cases->size());
        const CaseResults& its = (*m_cases)[static_cast<std::size_t>(m_current - 1)];
        const auto index = static_cast<std::size_t>(key[0] - 1);
        double values[12] = {};
        int first = 0;
        if (m_table == Table::Displacements) {
            std::copy(its.displacements[index].begin(), its.displacements[index].end(), values);
        } else if (m_table == Table::Ends) {
            its.lines[index].GetEndForces(values);
            first = m_data.As<CLinea>(Kind::Beam, key[0] - 1)->GetIDNodoIniziale() == key[1] ? 0 : 6;
        } else {
            for (const CaseResults::Reaction& reaction : its.reactions)
                if (reaction.node == key[0] - 1)
                    std::copy(reaction.values.begin(), reaction.values.end(), values);
        }
        // Half a unit of the last digit; and the other program keeps loads and properties in single precision.
        const double half = m_table == Table::Displacements ? 0.5e-6 : 0.5e-3;
        constexpr double single = 6e-8;
        for (int i = 0; i < 6; ++i)
            EXPECT_NEAR(values[first + i], printed[static_cast<std::size_t>(i)],
                        half * 1.001 + single * std::abs(values[first + i]))
                << "case " << m_current << ", table " << static_cast<int>(m_table) << ", row " << key[0]
                << ", component " << i;
        ++m_rows;
    }

    DocumentData m_data;
    std::ifstream m_printed;
    const std::vector<CaseResults>* m_cases = nullptr;
    Table m_table = Table::None;
    int m_current = 0, m_rows = 0;
};

// Catches an axis, a sign or a load case taken for another, fixed-end forces without shear deformation, and reactions
// without the loads on the support itself, in models with every kind of load.
TEST(AnalysisPeer, PrintedDigitsAgree) {
    const std::filesystem::path folder = std::filesystem::path(QUOVAR_SHARED_DIR) / "data" / "frame3dd";
    if (!std::filesystem::exists(folder))
        GTEST_SKIP() << "no models in " << folder;
    const std::pair<const char*, int> models[] = {
        {"exA", 2 * (12 + 42 + 12)}, {"exB", 3 * (1 + 8 + 4)}, {"exC", 18 + 96 + 4}, {"exH", 148 + 590 + 36}};
    for (const auto& [name, rows] : models) {
        SCOPED_TRACE(name);
        const int compared = Comparison(folder, name).Run();
        EXPECT_GE(compared, rows * 9 / 10) << "the printed tables were not read";
        EXPECT_LE(compared, rows);
    }
}

} // namespace
