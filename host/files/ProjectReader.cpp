#include "host/document/UnitChange.h"
#include "host/files/FileError.h"
#include "host/files/LoadValues.h"
#include "host/files/ProjectFile.h"
#include "host/files/ProjectSchema.h"
#include "model/element/LineaFisica.h"
#include "model/element/PoligonoFisico.h"
#include "model/element/TipoElemento.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Combinazione.h"
#include "model/entity/Gruppo.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"
#include "model/entity/Spessore.h"

#include <limits>
#include <span>
#include <unordered_set>

namespace host {

namespace {

// More corners than any real wall; a bound, because each vertex is compared with those before it.
constexpr int mostVertices = 1000;
// More than the two that any line needs; a bound for the same reason.
constexpr int mostReleases = 1000;

// Refuses everything but the tables of the format exactly: no trigger, view, index or column that could do or hide
// something. The pages behind them are checked while their rows are read.
void CheckSchema(Database& database, std::span<const Table* const> tables) {
    Statement statement(database, "SELECT type, sql FROM sqlite_schema ORDER BY rowid");
    for (const Table* table : tables)
        if (!statement.Step() || statement.Text(0) != "table" || statement.Text(1) != CreationSql(*table))
            throw FileError(std::string("Le tabelle del progetto non sono quelle attese (") + table->name + ").");
    if (statement.Step())
        throw FileError("Il progetto contiene tabelle o dati estranei.");
}

// A name of the file, short enough for a message box.
std::string Shown(const CString& name) {
    constexpr int longest = 60;
    return name.GetLength() > longest ? name.Left(longest).ToUtf8() + "..." : name.ToUtf8();
}

class Reader {
  public:
    Reader(Database& database, int format) : m_database(database), m_format(format) {}

    DocumentData Read() {
        ReadProject();
        ReadProperties();
        ReadCases();
        ReadGroups();
        ReadNodes();
        ReadLines(Kind::Beam, tables::beams);
        ReadLines(Kind::Truss, tables::trusses);
        ReadReleases();
        ReadPolygons(Kind::Wall, tables::walls);
        ReadPolygons(Kind::Slab, tables::slabs);
        ReadVertices();
        ReadLoads();
        ReadLoaded();
        ReadMembers();
        if (m_format >= 2) // before, nobody had construction lines
            ReadGrid();
        if (m_rows != m_expectedRows)
            throw FileError("Il progetto è incompleto: mancano delle righe."_utf8);
        CheckCurrentCase();
        return std::move(m_data);
    }

  private:
    template <class Function>
    void ForEach(const Table& table, Function function) {
        for (RowReader row(m_database, table); row.Next(); ++m_rows)
            function(row);
    }

    // Numbers, units and place in the document of what was read.
    template <class T>
    T& Append(RowReader& row, std::unique_ptr<T> object, int id) {
        T& added = *object;
        added.SetID(id);
        added.SetLunghezza(m_data.Units().length);
        added.SetForza(m_data.Units().force);
        std::unique_ptr<CElemento> element = std::move(object);
        if (!m_data.Append(element))
            row.Fail("il numero " + std::to_string(id) + " è già usato."_utf8);
        return added;
    }

    template <class T>
    T* Find(RowReader& row, Kind kind, int id) {
        T* found = m_data.FindAs<T>(kind, id);
        if (!found && id != 0)
            row.Fail("si riferisce al numero " + std::to_string(id) + ", che non esiste.");
        return found;
    }

    template <class T>
    T& Required(RowReader& row, Kind kind) {
        return *Find<T>(row, kind, row.Id());
    }

    // The kind code in front of an element's number; only then is it known what the number names.
    Kind ReadKind(RowReader& row, bool (*isRight)(Kind), const char* message) {
        const unsigned code = static_cast<unsigned>(row.Int(1, 255));
        for (const Kind kind : allKinds) {
            if (!IsSelectableKind(kind) || CodeOf(kind) != code)
                continue;
            if (!isRight(kind))
                row.Fail(message);
            return kind;
        }
        row.Fail("il genere dell'elemento non è valido."_utf8);
    }

    template <class T>
    T& ReadNamed(RowReader& row) {
        const int id = row.Id();
        auto entity = std::make_unique<T>();
        entity->SetNome(row.Text());
        entity->SetTipo(row.Text());
        return Append(row, std::move(entity), id);
    }

    void ReadProject() {
        RowReader row(m_database, tables::project);
        if (!row.Next())
            row.Fail("mancano i dati del progetto.");
        ProjectInfo& info = m_data.Info();
        for (CString* text : {&info.title, &info.author, &info.date, &info.notes})
            *text = row.Text();
        m_data.Units().length = static_cast<Lunghezza>(row.Int(0, lengthCount - 1));
        m_data.Units().force = static_cast<Forza>(row.Int(0, forceCount - 1));
        m_data.Tolerance() = row.Real(0, std::numeric_limits<double>::max());
        m_data.CurrentCase() = row.Reference();
        row.Text(); // the version that saved the file: for people, not for this reader
        m_expectedRows = row.Int(0, std::numeric_limits<int>::max());
        if (row.Next())
            row.Fail("i dati del progetto sono ripetuti.");
    }

    void ReadProperties() {
        ForEach(tables::materials, [this](RowReader& row) {
            auto& material = ReadNamed<CMateriale>(row);
            material.SetE(row.Real());
            material.SetG(row.Real());
            material.SetPoisson(row.Real());
            material.SetDensity(row.Real());
            material.SetAlpha(row.Real());
        });
        ForEach(tables::sections, [this](RowReader& row) {
            auto& section = ReadNamed<CSezione>(row);
            section.SetArea(row.Real());
            section.SetArea2(row.Real());
            section.SetArea3(row.Real());
            section.SetJ(row.Real());
            section.SetI2(row.Real());
            section.SetI3(row.Real());
            section.SetW2(row.Real());
            section.SetW3(row.Real());
            const double base = row.Real();
            section.SetDimensions(base, row.Real());
        });
        ForEach(tables::thicknesses, [this](RowReader& row) { ReadNamed<CSpessore>(row).SetThickness(row.Real()); });
    }

    void ReadCases() {
        std::unordered_set<CString> names;
        const auto takeName = [&](RowReader& row, CElementoStrutturale& entity) {
            if (!names.insert(entity.GetNome()).second)
                row.Fail("il nome \"" + Shown(entity.GetNome()) + "\" è già usato."_utf8);
        };
        ForEach(tables::loadCases, [&](RowReader& row) { takeName(row, ReadNamed<CCasoCarico>(row)); });
        ForEach(tables::combinations, [&](RowReader& row) { takeName(row, ReadNamed<CCombinazione>(row)); });
        ForEach(tables::factors, [this](RowReader& row) {
            auto& combination = Required<CCombinazione>(row, Kind::Combination);
            const int loadCase = Required<CCasoCarico>(row, Kind::LoadCase).GetID();
            if (!combination.AddCDC(loadCase, row.Real()))
                row.Fail("il caso di carico è già nella combinazione."_utf8);
        });
    }

    void ReadGroups() {
        ForEach(tables::groups, [this](RowReader& row) { ReadNamed<CGruppo>(row); });
    }

    void ReadNodes() {
        // The limit is the same length whatever the unit: a model that reaches it in metres may be shown in
        // millimetres. A conversion may round it up.
        const double metres = CGrandezza::_LengthFactor(m_data.Units().length, Lunghezza::Metres) / (1 + 1e-9);
        ForEach(tables::nodes, [this, metres](RowReader& row) {
            const int id = row.Id();
            CFPoint place;
            for (double* coordinate : {&place.x, &place.y, &place.z})
                *coordinate = row.Real();
            if (!IsUsablePlace(place * metres))
                row.Fail("le coordinate del nodo sono troppo grandi.");
            CNodo& node = Append(row, std::make_unique<CNodo>(place), id);
            if (const int mask = row.Int(0, CVincolo::All); mask != 0) {
                const CVincolo restraint(static_cast<unsigned>(mask));
                node.SetRestraint(&restraint);
            }
            node.SetVisible(row.Flag());
        });
        ForEach(tables::springs, [this](RowReader& row) {
            auto& node = Required<CNodo>(row, Kind::Node);
            const int kind = row.Int(CMolla::Translational, CMolla::Rotational);
            const double stiffness = row.Real();
            CFPoint along;
            for (double* component : {&along.x, &along.y, &along.z})
                *component = row.Real();
            node.AddSpring(CMolla(kind, stiffness, along, m_data.Units().length, m_data.Units().force));
        });
    }

    void ReadLines(Kind kind, const Table& table) {
        ForEach(table, [this, kind](RowReader& row) {
            std::unique_ptr<CLineaFisica> line(static_cast<CLineaFisica*>(MakeObject(kind).release()));
            const int id = row.Id();
            auto& first = Required<CNodo>(row, Kind::Node);
            auto& second = Required<CNodo>(row, Kind::Node);
            if (!line->SetNodi(&first, &second))
                row.Fail("i due nodi sono lo stesso nodo.");
            const int material = row.Reference();
            line->SetMateriale(material, Find<CMateriale>(row, Kind::Material, material));
            const int section = row.Reference();
            line->SetSezione(section, Find<CSezione>(row, Kind::Section, section));
            line->SetBeta(row.Real());
            line->SetVisible(row.Flag());
            Append(row, std::move(line), id);
        });
    }

    void ReadReleases() {
        ForEach(tables::releases, [this](RowReader& row) {
            auto& line = Required<CElementoSpecifiche>(row, ReadKind(row, IsLineKind, "solo le linee hanno svincoli."));
            const int id = row.Id();
            if (line.GetSizeSpecifiche() == mostReleases)
                row.Fail("la linea ha troppi svincoli.");
            if (line.IsIDSpecifica(id))
                row.Fail("lo svincolo è ripetuto."_utf8);
            const bool end = row.Flag();
            auto release = std::make_unique<CSpecificheSvincoliTrave>(end, 0, 0, 0, 0);
            for (int i = 0; i < 4; ++i)
                release->SetRelease(i, row.Flag());
            release->SetID(id);
            line.AddSpecifica(release.release());
        });
    }

    void ReadPolygons(Kind kind, const Table& table) {
        ForEach(table, [this, kind](RowReader& row) {
            std::unique_ptr<CPoligonoFisico> polygon(static_cast<CPoligonoFisico*>(MakeObject(kind).release()));
            const int id = row.Id();
            const int material = row.Reference();
            polygon->SetMateriale(material, Find<CMateriale>(row, Kind::Material, material));
            const int thickness = row.Reference();
            polygon->SetThickness(thickness, Find<CSpessore>(row, Kind::Thickness, thickness));
            polygon->SetVisible(row.Flag());
            Append(row, std::move(polygon), id);
        });
    }

    void ReadVertices() {
        ForEach(tables::vertices, [this](RowReader& row) {
            auto& polygon = Required<CPoligono>(row, ReadKind(row, IsPolygonKind, "solo setti e solai hanno vertici."));
            if (polygon.GetSize() == mostVertices || !polygon.AggiungiVertice(&Required<CNodo>(row, Kind::Node)))
                row.Fail("il vertice è ripetuto."_utf8);
        });
        for (const Kind kind : {Kind::Wall, Kind::Slab})
            for (int i = 0; i < m_data.Size(kind); ++i)
                if (m_data.At(kind, i)->GetSize() < 3)
                    throw FileError("Tabella vertici: l'elemento " + std::to_string(m_data.At(kind, i)->GetID()) +
                                    " ha meno di tre vertici.");
    }

    void ReadLoads() {
        ForEach(tables::loads, [this](RowReader& row) {
            auto& loadCase = Required<CCasoCarico>(row, Kind::LoadCase);
            const int id = row.Id();
            std::unique_ptr<CCarico> load = MakeLoad(static_cast<unsigned>(row.Int(1, 255)));
            if (!load)
                row.Fail("il genere del carico non è valido."_utf8);
            if (loadCase.GetCarico(id, nullptr))
                row.Fail("il numero " + std::to_string(id) + " è già usato."_utf8);
            load->SetReference(row.Int(CCarico::Global, CCarico::Local));
            load->SetSetId(row.Reference());
            const LoadValues list = ValuesOf(*load);
            for (int i = 0; i < list.count; ++i)
                *list.values[static_cast<std::size_t>(i)] = row.Real();
            load->SetID(id);
            load->SetLunghezza(m_data.Units().length);
            load->SetForza(m_data.Units().force);
            loadCase.AddCarico(load.release());
        });
    }

    void ReadLoaded() {
        ForEach(tables::loaded, [this](RowReader& row) {
            const Kind kind = ReadKind(row, IsSelectableKind, "");
            auto& carrier = Required<CElementoCarico>(row, kind);
            auto& loadCase = Required<CCasoCarico>(row, Kind::LoadCase);
            CCarico* load = loadCase.GetCarico(row.Id(), nullptr);
            if (!load)
                row.Fail("si riferisce a un carico che non esiste.");
            const unsigned code = load->GetTipoElemento();
            const bool nodal = code == TipoElemento::CaricoNodale || code == TipoElemento::CaricoSpostamento;
            if (nodal != (kind == Kind::Node) || code == TipoElemento::CaricoPesoProprio)
                row.Fail("l'elemento non può portare questo genere di carico."_utf8);
            carrier.AddCarico(load, 0);
        });
    }

    void ReadMembers() {
        ForEach(tables::members, [this](RowReader& row) {
            auto& group = Required<CGruppo>(row, Kind::Group);
            const Kind kind = ReadKind(row, IsSelectableKind, "");
            auto& element = Required<CElementoGruppo>(row, kind);
            if (!group.AddElemento(CodeOf(kind), element.GetID()))
                row.Fail("l'elemento è già nel gruppo."_utf8);
            element.AddGruppo(group.GetID());
        });
    }

    void ReadGrid() {
        RowReader row(m_database, tables::grid);
        if (!row.Next())
            row.Fail("mancano i dati della griglia.");
        constexpr int least = std::numeric_limits<int>::min(), most = std::numeric_limits<int>::max();
        ConstructionGrid& grid = m_data.Grid();
        grid.shown = row.Flag();
        grid.plane = row.Int(0, 2);
        grid.tilt = row.Real();
        for (double* coordinate : {&grid.origin.x, &grid.origin.y, &grid.origin.z})
            *coordinate = row.Real();
        for (ConstructionGrid::Lines& lines : grid.lines) {
            lines.negative = row.Int(least, most);
            lines.positive = row.Int(least, most);
            lines.spacing = row.Real();
            lines.angle = row.Real();
        }
        grid.length = static_cast<Lunghezza>(row.Int(0, lengthCount - 1));
        if (!grid.IsUsable())
            row.Fail("la griglia non è valida."_utf8);
        ++m_rows;
        if (row.Next())
            row.Fail("i dati della griglia sono ripetuti.");
    }

    void CheckCurrentCase() {
        const int id = m_data.CurrentCase();
        if (id != 0 && !m_data.Find(Kind::LoadCase, id) && !m_data.Find(Kind::Combination, id))
            throw FileError("Tabella progetto: il caso di carico corrente non esiste.");
    }

    Database& m_database;
    int m_format;
    DocumentData m_data;
    int m_rows = 0; // read so far
    int m_expectedRows = 0;
};

} // namespace

namespace {

struct Format {
    int version;
    std::span<const Table* const> tables;
    DocumentData (*read)(Database& database);
};

template <int version>
DocumentData Read(Database& database) {
    return Reader(database, version).Read();
}

// Every format that ever was, the one that is written last.
const Format formats[] = {
    {1, tables::format1, Read<1>},
    {2, tables::format2, Read<2>},
};

const Format& FormatOf(Database& database) {
    if (database.Pragma("application_id") != projectApplicationId)
        throw FileError("Il file non è un progetto."_utf8);
    const std::int64_t version = database.Pragma("user_version");
    if (version > projectFormat)
        throw FileError("Il progetto è stato salvato da una versione più recente del programma."_utf8);
    for (const Format& each : formats)
        if (each.version == version)
            return each;
    throw FileError("Il formato del progetto non è valido."_utf8);
}

} // namespace

DocumentData LoadProject(const std::string& path) {
    Database database(path, Database::Mode::ReadUntrusted);
    const Format& format = FormatOf(database);
    CheckSchema(database, format.tables);
    DocumentData data = format.read(database);
    UseOfferedUnits(data);
    return data;
}

} // namespace host
