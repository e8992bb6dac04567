#include "host/files/Frame3ddFile.h"

#include "host/files/NumberReader.h"
#include "platform/core/String.h"

#include <cmath>

namespace host {

namespace {

constexpr int mostRows = 10'000'000;
constexpr double farthest = 1e12; // beyond it, neighbouring nodes would merge
constexpr int mostLoadCases = 10'000;
constexpr std::size_t longestTitle = 4096; // bytes; beyond it the file is no text

// Reads the tables in the order of the format.
class Parser {
  public:
    explicit Parser(std::string_view text) : m_reader(text) {}

    Frame3ddModel Parse() {
        m_model.title = std::string(m_reader.Line());
        if (m_model.title.size() > longestTitle)
            m_reader.Fail("il titolo è troppo lungo."_utf8);
        ReadNodes();
        ReadRestraints();
        ReadElements();
        ReadSwitches();
        const int cases = m_reader.Count("atteso il numero delle condizioni di carico", 3, mostLoadCases);
        for (int i = 0; i < cases; ++i)
            ReadLoadCase();
        return std::move(m_model);
    }

  private:
    int Node() { return m_reader.Integer("atteso il numero del nodo", 1, static_cast<int>(m_model.nodes.size())); }
    int Element() {
        return m_reader.Integer("atteso il numero dell'elemento", 1, static_cast<int>(m_model.elements.size()));
    }
    template <std::size_t N>
    void Reals(std::array<double, N>& values, const char* what) {
        for (double& value : values)
            value = m_reader.Real(what);
    }

    // Rows may come in any order, but each number once.
    void Once(std::vector<bool>& seen, int number, const char* what) {
        if (seen[static_cast<std::size_t>(number - 1)])
            m_reader.Fail(std::string(what) + " " + std::to_string(number) + " è già stato definito."_utf8);
        seen[static_cast<std::size_t>(number - 1)] = true;
    }

    void ReadNodes() {
        const int count = m_reader.Count("atteso il numero dei nodi", 5, mostRows);
        if (count == 0)
            m_reader.Fail("il modello non ha nodi.");
        m_model.nodes.resize(static_cast<std::size_t>(count));
        std::vector<bool> seen(m_model.nodes.size());
        for (int i = 0; i < count; ++i) {
            const int number = Node();
            Once(seen, number, "il nodo");
            ReadPlace(m_model.nodes[static_cast<std::size_t>(number - 1)]);
            if (m_reader.Real("atteso il raggio del nodo") != 0)
                m_model.someRadius = true;
        }
    }

    void ReadPlace(Triple& place) {
        for (double& coordinate : place) {
            coordinate = m_reader.Real("attesa una coordinata del nodo");
            if (std::fabs(coordinate) > farthest)
                m_reader.Fail("la coordinata del nodo è troppo grande."_utf8);
        }
    }

    void ReadRestraints() {
        const int count =
            m_reader.Count("atteso il numero dei nodi vincolati", 7, static_cast<int>(m_model.nodes.size()));
        std::vector<bool> seen(m_model.nodes.size());
        for (int i = 0; i < count; ++i) {
            Frame3ddModel::Restraint restraint;
            restraint.node = Node();
            Once(seen, restraint.node, "il vincolo del nodo");
            for (bool& fixed : restraint.fixed)
                fixed = m_reader.Flag("atteso 0 (libero) o 1 (vincolato)");
            m_model.restraints.push_back(restraint);
        }
    }

    void ReadElements() {
        const int count = m_reader.Count("atteso il numero degli elementi", 13, mostRows);
        m_model.elements.resize(static_cast<std::size_t>(count));
        std::vector<bool> seen(m_model.elements.size());
        for (int i = 0; i < count; ++i) {
            const int number = Element();
            Once(seen, number, "l'elemento");
            ReadElement(m_model.elements[static_cast<std::size_t>(number - 1)]);
        }
    }

    void ReadElement(Frame3ddElement& element) {
        element.first = Node();
        element.second = Node();
        if (element.first == element.second)
            m_reader.Fail("i due nodi dell'elemento sono lo stesso nodo.");
        element.area = Positive("attesa l'area della sezione");
        element.shearY = NotNegative("attesa l'area a taglio y");
        element.shearZ = NotNegative("attesa l'area a taglio z");
        m_model.someRigidInShear = m_model.someRigidInShear || element.shearY == 0 || element.shearZ == 0;
        element.torsion = Positive("atteso il momento d'inerzia torsionale");
        element.inertiaY = Positive("atteso il momento d'inerzia y");
        element.inertiaZ = Positive("atteso il momento d'inerzia z");
        element.young = Positive("atteso il modulo di elasticità"_utf8);
        element.shearModulus = Positive("atteso il modulo di taglio");
        if (!std::isfinite(element.Poisson()))
            m_reader.Fail("il modulo di taglio è troppo piccolo per il modulo di elasticità."_utf8);
        element.roll = m_reader.Real("atteso l'angolo di rotazione dell'elemento");
        element.density = NotNegative("attesa la densità"_utf8);
    }

    double Positive(const char* what) {
        const double value = m_reader.Real(what);
        if (value <= 0)
            m_reader.Fail(std::string(what) + " maggiore di zero.");
        return value;
    }

    double NotNegative(const char* what) {
        const double value = m_reader.Real(what);
        if (value < 0)
            m_reader.Fail(std::string(what) + " non minore di zero.");
        return value;
    }

    double Length(int element) const {
        const Frame3ddElement& its = m_model.elements[static_cast<std::size_t>(element - 1)];
        const Triple& a = m_model.nodes[static_cast<std::size_t>(its.first - 1)];
        const Triple& b = m_model.nodes[static_cast<std::size_t>(its.second - 1)];
        return std::hypot(b[0] - a[0], b[1] - a[1], b[2] - a[2]);
    }

    // A place on an element; rounding in the file may put the end a little beyond it.
    double Within(double length, const char* what) {
        const double value = NotNegative(what);
        if (value > length * (1 + 1e-6))
            m_reader.Fail("il carico è oltre la fine dell'elemento."_utf8);
        return value;
    }

    void ReadSwitches() {
        m_model.shear = m_reader.Flag("atteso l'indicatore della deformazione a taglio (0 o 1)");
        m_model.geometric = m_reader.Flag("atteso l'indicatore della rigidezza geometrica (0 o 1)");
        // How the file's own program would draw: of no use here.
        m_reader.Real("atteso il fattore di amplificazione delle deformate");
        m_reader.Real("attesa la scala del disegno");
        m_reader.Real("atteso il passo delle sollecitazioni");
    }

    void ReadLoadCase() {
        Frame3ddLoadCase loads;
        Reals(loads.gravity, "attesa l'accelerazione di gravità"_utf8);
        ReadNodal(loads.nodal, "atteso il numero dei nodi caricati", "atteso il carico del nodo");
        ReadElementLoads(loads);
        ReadTemperatures(loads);
        ReadNodal(loads.displacement, "atteso il numero dei nodi con spostamenti impressi",
                  "atteso lo spostamento impresso");
        m_model.loadCases.push_back(std::move(loads));
    }

    // Rows of one node add up.
    void ReadNodal(std::vector<Frame3ddNodal>& rows, const char* count, const char* what) {
        rows.resize(Rows(count, 7));
        for (Frame3ddNodal& row : rows) {
            row.node = Node();
            Reals(row.values, what);
        }
    }

    void ReadElementLoads(Frame3ddLoadCase& loads) {
        loads.uniform.resize(Rows("atteso il numero dei carichi uniformi", 4));
        for (Frame3ddUniform& row : loads.uniform) {
            row.element = Element();
            Reals(row.load, "atteso il carico uniforme");
        }
        loads.trapezoidal.resize(Rows("atteso il numero dei carichi trapezoidali", 13));
        for (Frame3ddTrapezoidal& row : loads.trapezoidal) {
            row.element = Element();
            for (auto& part : row.parts)
                ReadTrapezoid(part, Length(row.element));
        }
        loads.point.resize(Rows("atteso il numero dei carichi concentrati", 5));
        for (Frame3ddPoint& row : loads.point) {
            row.element = Element();
            Reals(row.load, "atteso il carico concentrato");
            row.position = Within(Length(row.element), "attesa la posizione del carico");
        }
    }

    void ReadTrapezoid(Frame3ddTrapezoidal::Part& part, double length) {
        part.from = Within(length, "atteso l'inizio del carico trapezoidale");
        part.to = Within(length, "attesa la fine del carico trapezoidale");
        if (part.to < part.from)
            m_reader.Fail("il carico trapezoidale finisce prima del suo inizio.");
        part.startLoad = m_reader.Real("atteso il valore iniziale del carico trapezoidale");
        part.endLoad = m_reader.Real("atteso il valore finale del carico trapezoidale");
    }

    void ReadTemperatures(Frame3ddLoadCase& loads) {
        loads.temperature.resize(Rows("atteso il numero dei carichi termici", 8));
        for (Frame3ddTemperature& row : loads.temperature) {
            row.element = Element();
            row.alpha = m_reader.Real("atteso il coefficiente di dilatazione termica");
            row.depthY = NotNegative("attesa l'altezza y della sezione");
            row.depthZ = NotNegative("attesa l'altezza z della sezione");
            for (double* change : {&row.plusY, &row.minusY, &row.plusZ, &row.minusZ})
                *change = m_reader.Real("attesa la variazione di temperatura");
            if ((row.depthY == 0 && row.plusY != row.minusY) || (row.depthZ == 0 && row.plusZ != row.minusZ))
                m_reader.Fail("la variazione termica richiede un'altezza della sezione maggiore di zero.");
            if (!std::isfinite(row.Mean()) || !std::isfinite(row.GradientY()) || !std::isfinite(row.GradientZ()))
                m_reader.Fail("la variazione termica è troppo grande."_utf8);
        }
    }

    std::size_t Rows(const char* what, int numbersPerRow) {
        return static_cast<std::size_t>(m_reader.Count(what, numbersPerRow, mostRows));
    }

    NumberReader m_reader;
    Frame3ddModel m_model;
};

} // namespace

Frame3ddModel ParseFrame3dd(std::string_view text) {
    return Parser(text).Parse();
}

} // namespace host
