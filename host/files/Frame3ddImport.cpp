#include "host/files/Frame3ddImport.h"

#include "host/document/UnitChange.h"
#include "host/files/FileError.h"
#include "host/files/Frame3ddFile.h"
#include "model/element/Trave.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"
#include "model/load/Carico.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <map>
#include <tuple>

namespace host {

namespace {

constexpr std::streamoff longestFile = 512 << 20; // bytes

// Texts of such files come in either encoding.
CString TextOf(std::string_view bytes) {
    const CString text = CString::FromUtf8(bytes);
    return text.Find('?') >= 0 && bytes.find('?') == std::string_view::npos ? CString(bytes) : text;
}

std::vector<CString> WordsInBrackets(const CString& title) {
    std::vector<CString> words;
    const int open = title.ReverseFind('('), close = title.ReverseFind(')');
    if (open < 0 || close < open)
        return words;
    const CString inside = title.Mid(open + 1, close - open - 1);
    for (int at = 0; at >= 0;)
        words.push_back(inside.Tokenize(" ,;:/", at));
    return words;
}

template <class Unit, std::size_t N>
bool FindUnit(const std::vector<CString>& words, const std::pair<const char*, Unit> (&names)[N], Unit& unit) {
    for (const CString& word : words) {
        for (const auto& [name, value] : names) {
            if (word.CompareNoCase(name) == 0) {
                unit = value;
                return true;
            }
        }
    }
    return false;
}

DocumentUnits UnitsOf(const CString& title) {
    static constexpr std::pair<const char*, Lunghezza> lengths[] = {
        {"mm", Lunghezza::Millimetres}, {"cm", Lunghezza::Centimetres}, {"m", Lunghezza::Metres},
        {"in", Lunghezza::Inches},      {"inch", Lunghezza::Inches},    {"inches", Lunghezza::Inches},
        {"ft", Lunghezza::Feet},        {"feet", Lunghezza::Feet}};
    static constexpr std::pair<const char*, Forza> forces[] = {
        {"N", Forza::Newton},  {"kN", Forza::KiloNewtons}, {"kg", Forza::Kilograms}, {"kgf", Forza::Kilograms},
        {"tf", Forza::Tonnes}, {"lb", Forza::Pounds},      {"lbs", Forza::Pounds},   {"lbf", Forza::Pounds},
        {"kip", Forza::Kips},  {"kips", Forza::Kips},      {"k", Forza::Kips}};
    DocumentUnits units{Lunghezza::Millimetres, Forza::Newton};
    DocumentUnits named;
    const std::vector<CString> words = WordsInBrackets(title);
    // One of them alone says too little: the mass of the file follows from both.
    if (FindUnit(words, lengths, named.length) && FindUnit(words, forces, named.force))
        units = named;
    return units;
}

CFPoint Point(const Triple& values) {
    return {values[0], values[1], values[2]};
}

// The first, or second, three of six.
CFPoint Half(const Sextuple& values, std::size_t half) {
    return {values[3 * half], values[3 * half + 1], values[3 * half + 2]};
}

class Builder {
  public:
    explicit Builder(const Frame3ddModel& model) : m_model(model) {}

    DocumentData Build() {
        m_data.Info().title = TextOf(m_model.title).Trim();
        m_data.Units() = UnitsOf(m_data.Info().title);
        m_data.Tolerance() *= CGrandezza::_LengthFactor(Lunghezza::Metres, m_data.Units().length);
        BuildNodes();
        for (std::size_t i = 0; i < m_model.elements.size(); ++i)
            BuildElement(static_cast<int>(i) + 1, m_model.elements[i]);
        for (std::size_t i = 0; i < m_model.loadCases.size(); ++i)
            BuildCase(static_cast<int>(i) + 1, m_model.loadCases[i]);
        if (m_model.loadCases.empty())
            BuildCase(1, {});
        m_data.CurrentCase() = 1;
        return std::move(m_data);
    }

  private:
    template <class T>
    T* Append(std::unique_ptr<T> object, int id) {
        T* added = object.get();
        added->SetID(id);
        SetUnits(*added);
        std::unique_ptr<CElemento> element = std::move(object);
        m_data.Append(element);
        return added;
    }

    void SetUnits(CElemento& object) {
        object.SetLunghezza(m_data.Units().length);
        object.SetForza(m_data.Units().force);
    }

    void BuildNodes() {
        for (std::size_t i = 0; i < m_model.nodes.size(); ++i)
            Append(std::make_unique<CNodo>(Point(m_model.nodes[i])), static_cast<int>(i) + 1);
        for (const auto& restraint : m_model.restraints) {
            CVincolo fixities;
            for (int i = 0; i < 6; ++i)
                fixities.SetFixed(i, restraint.fixed[static_cast<std::size_t>(i)]);
            m_data.FindNode(restraint.node)->SetRestraint(&fixities);
        }
    }

    CMateriale* Material(const Frame3ddElement& element) {
        CMateriale*& material = m_materials[{element.young, element.shearModulus, element.density}];
        if (!material) {
            material = Append(std::make_unique<CMateriale>(), m_data.NextId(Kind::Material));
            CString name;
            name.Format("Materiale %d", material->GetID());
            material->SetNome(name);
            material->SetE(element.young);
            material->SetG(element.shearModulus);
            material->SetPoisson(element.Poisson());
            material->SetDensity(element.density);
        }
        return material;
    }

    CSezione* Section(const Frame3ddElement& element) {
        const double shearY = m_model.shear ? element.shearY : 0;
        const double shearZ = m_model.shear ? element.shearZ : 0;
        CSezione*& section =
            m_sections[{element.area, shearY, shearZ, element.torsion, element.inertiaY, element.inertiaZ}];
        if (!section) {
            section = Append(std::make_unique<CSezione>(), m_data.NextId(Kind::Section));
            CString name;
            name.Format("Sezione %d", section->GetID());
            section->SetNome(name);
            section->SetArea(element.area);
            section->SetArea2(shearY);
            section->SetArea3(shearZ);
            section->SetJ(element.torsion);
            section->SetI2(element.inertiaY);
            section->SetI3(element.inertiaZ);
        }
        return section;
    }

    // The file's local axes y and z are the model's 2 and 3: both are horizontal and upwards at roll 0, and turn alike.
    void BuildElement(int id, const Frame3ddElement& element) {
        auto beam = std::make_unique<CTrave>();
        beam->SetNodi(m_data.FindNode(element.first), m_data.FindNode(element.second));
        CMateriale* material = Material(element);
        beam->SetMateriale(material->GetID(), material);
        CSezione* section = Section(element);
        beam->SetSezione(section->GetID(), section);
        beam->SetBeta(element.roll);
        Append(std::move(beam), id);
    }

    void BuildCase(int id, const Frame3ddLoadCase& loads) {
        auto named = std::make_unique<CCasoCarico>();
        CString name;
        name.Format("Caso %d", id);
        named->SetNome(name);
        m_case = Append(std::move(named), id);
        if (Point(loads.gravity) != CFPoint())
            Load(std::make_unique<CCaricoPesoProprio>(Point(loads.gravity)));
        for (const auto& row : loads.nodal)
            OnNode(row, std::make_unique<CCaricoNodale>(Half(row.values, 0), Half(row.values, 1)));
        for (const auto& row : loads.displacement)
            OnNode(row, std::make_unique<CCaricoSpostamento>(Half(row.values, 0), Half(row.values, 1)));
        for (const auto& row : loads.uniform)
            OnElement(row.element, std::make_unique<CCaricoUniforme>(Point(row.load), CCarico::Local));
        for (const auto& row : loads.trapezoidal)
            OnElement(row.element, Trapezoidal(row));
        for (const auto& row : loads.point)
            OnElement(row.element, std::make_unique<CCaricoConcentrato>(Point(row.load), row.position, CCarico::Local));
        for (const auto& row : loads.temperature)
            OnElement(row.element, Temperature(row));
    }

    static std::unique_ptr<CCarico> Trapezoidal(const Frame3ddTrapezoidal& row) {
        auto load = std::make_unique<CCaricoTrapezoidale>();
        load->SetReference(CCarico::Local);
        for (int axis = 0; axis < 3; ++axis) {
            const auto& part = row.parts[static_cast<std::size_t>(axis)];
            load->GetStretch(axis) = {part.from, part.to, part.startLoad, part.endLoad};
        }
        return load;
    }

    static std::unique_ptr<CCarico> Temperature(const Frame3ddTemperature& row) {
        auto load = std::make_unique<CCaricoTemperatura>();
        load->SetReference(CCarico::Local);
        load->GetTemperature() = row.Mean();
        load->GetGradient2() = row.GradientY();
        load->GetGradient3() = row.GradientZ();
        load->GetAlpha() = row.alpha;
        return load;
    }

    CCarico* Load(std::unique_ptr<CCarico> load) {
        SetUnits(*load);
        CCarico* added = load.release();
        m_case->AddCarico(added);
        return added;
    }

    void OnNode(const Frame3ddNodal& row, std::unique_ptr<CCarico> load) {
        m_data.FindNode(row.node)->AddCarico(Load(std::move(load)), 0);
    }

    void OnElement(int element, std::unique_ptr<CCarico> load) {
        m_data.FindAs<CTrave>(Kind::Beam, element)->AddCarico(Load(std::move(load)), 0);
    }

    const Frame3ddModel& m_model;
    DocumentData m_data;
    std::map<std::array<double, 3>, CMateriale*> m_materials;
    std::map<std::array<double, 6>, CSezione*> m_sections;
    CCasoCarico* m_case = nullptr;
};

} // namespace

DocumentData ImportFrame3ddText(std::string_view text, std::vector<CString>* notes) {
    const Frame3ddModel model = ParseFrame3dd(text);
    if (notes && model.someRadius)
        notes->emplace_back("I raggi dei nodi non sono considerati.");
    if (notes && model.shear && model.someRigidInShear)
        notes->emplace_back("Gli elementi con area a taglio nulla sono rigidi a taglio.");
    if (notes && model.geometric)
        notes->emplace_back("La rigidezza geometrica non è considerata."_t);
    DocumentData data = Builder(model).Build();
    UseOfferedUnits(data);
    return data;
}

DocumentData ImportFrame3dd(const std::string& path, std::vector<CString>* notes) {
    if (std::filesystem::is_directory(path))
        throw FileError("È una cartella, non un file."_utf8);
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    const std::streamoff size = file ? static_cast<std::streamoff>(file.tellg()) : -1;
    if (size < 0)
        throw FileError("Impossibile aprire il file.");
    if (size > longestFile)
        throw FileError("Il file è troppo grande."_utf8);
    std::string text(static_cast<std::size_t>(size), '\0');
    file.seekg(0);
    if (!file.read(text.data(), size))
        throw FileError("Errore di lettura del file.");
    return ImportFrame3ddText(text, notes);
}

} // namespace host
